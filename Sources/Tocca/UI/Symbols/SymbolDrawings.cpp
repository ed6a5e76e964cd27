#include "UI/Symbols/SymbolDrawings.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>
#include <unordered_map>

namespace tocca::ui {
namespace {

QString fileOf(const QString& name)
{
    return QStringLiteral(":/qt/qml/Tocca/UI/Symbols/") + name + QStringLiteral(".svg");
}

/// Reading a drawing costs several times what painting it does, and lists repeat the same few.
QSvgRenderer& drawing(const QString& name)
{
    static auto& known = *new std::unordered_map<QString, std::unique_ptr<QSvgRenderer>>;
    auto& renderer = known[name];
    if (!renderer) {
        renderer = std::make_unique<QSvgRenderer>(fileOf(name));
    }
    return *renderer;
}

void takeInkAsColour(QImage& image, const QColor& colour)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int ink = (qAlpha(line[x]) - qRed(line[x])) * colour.alpha() / 255;
            line[x] = qPremultiply(qRgba(colour.red(), colour.green(), colour.blue(), ink));
        }
    }
}

} // namespace

bool hasSymbol(const QString& name)
{
    return QFile::exists(fileOf(name));
}

QImage drawSymbol(const QString& name, int pixels, const QColor& colour)
{
    if (pixels <= 0 || !hasSymbol(name)) {
        return {};
    }
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing(name).render(&painter, QRectF(0, 0, pixels, pixels));
    painter.end();
    takeInkAsColour(image, colour);
    return image;
}

} // namespace tocca::ui
