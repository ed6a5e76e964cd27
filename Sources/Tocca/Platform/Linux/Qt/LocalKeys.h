#pragma once

#include "Platform/Linux/Qt/LinuxLocalMonitors.h"
#include "Platform/Linux/X11/Input/KeyboardState.h"

#include <QObject>

class QKeyEvent;

namespace tocca::platform::linux {

/// Shows the monitors the keys that reach the windows it is installed in as an event filter, named and counted as those of the whole
/// session are. Threads: main.
class LocalKeys : public QObject {
public:
    explicit LocalKeys(LinuxLocalMonitors& monitors) noexcept
        : monitors_(monitors)
    {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(const QKeyEvent& event);
    void deliver(KeyTransition transition, double time);

    LinuxLocalMonitors& monitors_;
    KeyboardState keys_;
};

} // namespace tocca::platform::linux
