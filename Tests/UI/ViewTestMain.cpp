#include <QGuiApplication>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <gmock/gmock.h>

Q_IMPORT_QML_PLUGIN(Tocca_UIPlugin)

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
