#include "PopoverScreens.h"
#include "StudioScreens.h"

#include <QDir>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(Tocca_UIPlugin)

// Takes pictures of the views for people to look at: screens DIRECTORY SCALE
int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: screens DIRECTORY SCALE\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", argv[2]);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    const QString directory = QString::fromLocal8Bit(argv[1]);
    if (!QDir().mkpath(directory)) {
        qFatal("cannot make %s", qPrintable(directory));
    }
    const QString suffix = QStringLiteral("@%1x").arg(QLatin1String(argv[2]));
    tocca::ui::takePopoverScreens(directory, suffix);
    tocca::ui::takeStudioScreens(directory, suffix);
    return 0;
}
