#include "Platform/Linux/Qt/RendererChoice.h"

#include <QDir>
#include <QOpenGLContext>
#include <QQuickWindow>

namespace tocca::platform::linux {

namespace {

bool hasGraphicsHardware()
{
    const QDir devices(QStringLiteral("/dev/dri"), QStringLiteral("renderD*"), QDir::Name, QDir::System);
    return !devices.isEmpty();
}

bool canUseOpenGl()
{
    return hasGraphicsHardware() && QOpenGLContext().create();
}

} // namespace

void chooseRenderer()
{
    QQuickWindow::setGraphicsApi(canUseOpenGl() ? QSGRendererInterface::OpenGL
                                                : QSGRendererInterface::Software);
}

} // namespace tocca::platform::linux
