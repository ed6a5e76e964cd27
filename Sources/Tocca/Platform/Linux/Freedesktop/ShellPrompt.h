#pragma once

#include "Platform/Timers.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <memory>

namespace tocca::platform::linux {

/// Whether GNOME's shell, which asks for passwords without a window of its own, may be asking for one.
///
/// While it has the focus it does, unless it says that it shows the overview, which has the focus as well. Threads: main.
class ShellPrompt : public QObject {
    Q_OBJECT

public:
    /// `report` is called on every change; nobody is taken to be asked at first.
    ShellPrompt(QDBusConnection bus, Timers& timers, std::function<void(bool)> report);

    /// To be told whether the shell has the focus.
    void setFocused(bool isFocused);

private:
    void ask();
    void answer(bool isPrompting);

    QDBusConnection bus_;
    Timers& timers_;
    const std::function<void(bool)> report_;
    std::unique_ptr<Timer> again_; // while the shell has the focus: it does not tell when the overview closes
    bool isFocused_ = false;
    bool isPrompting_ = false;
};

} // namespace tocca::platform::linux
