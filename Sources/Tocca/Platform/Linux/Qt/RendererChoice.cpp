#include "Platform/Linux/Qt/RendererChoice.h"

#include <QOpenGLContext>
#include <QQuickWindow>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tocca::platform::linux {

namespace {

bool hasGraphicsHardware()
{
    std::error_code error;
    const std::filesystem::directory_iterator devices("/dev/dri", error);
    return !error && std::any_of(begin(devices), end(devices), [](const auto& device) {
        return device.path().filename().native().starts_with("renderD");
    });
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
