#include "Platform/Linux/Qt/Menu/StandardActions.h"

#include "Platform/Linux/Qt/XDesktop.h"

#include <QGuiApplication>
#include <QMetaObject>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace tocca::platform::linux {

namespace {

/// An editing selector, and the method of Qt's text fields that does it.
struct Edit {
    std::string_view action;
    const char* method;
};

constexpr std::array kEdits{
    Edit{"undo:", "undo"}, Edit{"redo:", "redo"},   Edit{"cut:", "cut"},
    Edit{"copy:", "copy"}, Edit{"paste:", "paste"}, Edit{"selectAll:", "selectAll"},
};

void edit(const char* method)
{
    QObject* const focus = QGuiApplication::focusObject();
    const QByteArray signature = QByteArray(method) + "()";
    if (focus != nullptr && focus->metaObject()->indexOfMethod(signature.constData()) >= 0) {
        QMetaObject::invokeMethod(focus, method);
    }
}

void zoom(QWindow& window)
{
    window.setWindowStates(window.windowStates() ^ Qt::WindowMaximized);
}

} // namespace

StandardActions::StandardActions(OwnWindows& windows, Commands commands)
    : windows_(windows)
    , commands_(std::move(commands))
{}

bool StandardActions::perform(std::string_view action)
{
    QWindow* const key = QGuiApplication::focusWindow();
    if (const auto* const found = std::find_if(kEdits.begin(), kEdits.end(),
                                               [action](const Edit& each) { return each.action == action; });
        found != kEdits.end()) {
        edit(found->method);
    } else if (action == "orderFrontStandardAboutPanel:") {
        commands_.showAbout();
    } else if (action == "hide:") {
        windows_.hide();
        commands_.hidden();
    } else if (action == "hideOtherApplications:") {
        hideOthers();
    } else if (action == "unhideAllApplications:") {
        showAll();
    } else if (action == "terminate:") {
        commands_.quit();
    } else if (action == "performClose:") {
        if (key != nullptr) {
            key->close();
        }
    } else if (action == "performMiniaturize:") {
        if (key != nullptr && key->type() == Qt::Window) {
            key->showMinimized();
        }
    } else if (action == "performZoom:") {
        if (key != nullptr && key->type() == Qt::Window) {
            zoom(*key);
        }
    } else {
        return false;
    }
    return true;
}

void StandardActions::hideOthers()
{
    auto desktop = XDesktop::requests();
    if (!desktop) {
        return;
    }
    for (const auto window :
         desktop->ordinaryWindows(static_cast<std::uint32_t>(QCoreApplication::applicationPid()))) {
        desktop->minimise(window);
        std::erase(minimised_, window);
        minimised_.push_back(window);
    }
}

void StandardActions::showAll()
{
    auto desktop = XDesktop::requests();
    for (const auto window : std::exchange(minimised_, {})) {
        if (desktop && desktop->isThere(window)) {
            desktop->activate(window);
        }
    }
    windows_.showAgain();
}

} // namespace tocca::platform::linux
