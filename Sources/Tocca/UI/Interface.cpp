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
    reducesMotion_ = reducesMotion;
    applyMotion();
}

QQuickItem* Interface::makeMenuBarView(QQuickItem& parent)
{
    return inMotion(
        makeQmlView(engine_, QStringLiteral("Popover/MenuBarView.qml"), menuBar_.value(), parent));
}

QQuickItem* Interface::makeMainWindowView(QQuickItem& parent)
{
    if (!mainWindow_) {
        mainWindow_.emplace(Controllers::shared());
    }
    return inMotion(makeQmlView(engine_, QStringLiteral("Studio/MainWindowView.qml"), *mainWindow_, parent));
}

QQuickItem* Interface::makeNotchHUDView(QQuickItem& parent)
{
    return inMotion(ui::makeNotchHUDView(engine_, NotchAcousticHUDController::shared(), parent));
}

QQuickItem* Interface::makeUnderglowView(QQuickItem& parent)
{
    return inMotion(ui::makeSpatialUnderglowView(engine_, SpatialUnderglowController::shared(), parent));
}

QQuickItem* Interface::inMotion(QQuickItem* item)
{
    applyMotion();
    return item;
}

void Interface::applyMotion()
{
    // The theme is there from the first view on.
    const int theme = qmlTypeId("Tocca.UI", 1, 0, "Theme");
    if (auto* const object = theme >= 0 ? engine_.singletonInstance<QObject*>(theme) : nullptr) {
        object->setProperty("reducesMotion", reducesMotion_);
    }
}

} // namespace tocca::ui
