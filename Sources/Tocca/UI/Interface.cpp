#include "UI/Interface.h"

#include "UI/Controllers.h"
#include "UI/NotchHUD/NotchHUDViewModel.h"
#include "UI/Quick/QmlView.h"
#include "UI/Underglow/SpatialUnderglowViewModel.h"

#include <utility>

namespace tocca::ui {

Interface::Interface(Commands commands)
    : commands_(std::move(commands))
{}

void Interface::prepareMenuBar()
{
    menuBar_.emplace(Controllers::shared(), commands_.showMainWindow, commands_.terminate);
}

void Interface::setReducesMotion(bool reducesMotion)
{
    if (std::exchange(reducesMotion_, reducesMotion) != reducesMotion) {
        ui::setReducesMotion(engine_, reducesMotion);
    }
}

QQuickItem* Interface::makeMenuBarView(QQuickItem& parent)
{
    return makeQmlView(engine_, QStringLiteral("Popover/MenuBarView.qml"), menuBar_.value(), parent);
}

QQuickItem* Interface::makeMainWindowView(QQuickItem& parent)
{
    if (!mainWindow_) {
        mainWindow_.emplace(Controllers::shared());
    }
    return makeQmlView(engine_, QStringLiteral("Studio/MainWindowView.qml"), *mainWindow_, parent);
}

QQuickItem* Interface::makeNotchHUDView(QQuickItem& parent)
{
    return makeOverlayView<NotchHUDViewModel>(engine_, NotchAcousticHUDController::shared(), parent);
}

QQuickItem* Interface::makeUnderglowView(QQuickItem& parent)
{
    return makeOverlayView<SpatialUnderglowViewModel>(engine_, SpatialUnderglowController::shared(), parent);
}

} // namespace tocca::ui
