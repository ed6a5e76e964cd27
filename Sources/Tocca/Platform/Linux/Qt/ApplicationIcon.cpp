#include "Platform/Linux/Qt/ApplicationIcon.h"

#include "Platform/Linux/System/ApplicationId.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace tocca::platform::linux {

namespace {

/// The icon as the program carries it, drawn here: what lets QIcon read such a file is a plugin that may be missing.
QIcon ownIcon(const QString& name)
{
    QIcon icon;
    QSvgRenderer drawing(QStringLiteral(":/org.tocca/%1.svg").arg(name));
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

QIcon applicationIcon()
{
    const QString name = QLatin1String(kApplicationId);
    return QIcon::hasThemeIcon(name) ? QIcon::fromTheme(name) : ownIcon(name);
}

} // namespace tocca::platform::linux
