#pragma once

#include "Platform/Linux/Qt/LinuxLocalMonitors.h"
#include "Platform/Linux/X11/Input/KeyboardState.h"

#include <QObject>

class QKeyEvent;

namespace tocca::platform::linux {

/// An event filter that shows the local monitors the keys of the windows it is installed in. It names keys and sorts out repeats as the
/// capture of the whole session does. Threads: main.
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
