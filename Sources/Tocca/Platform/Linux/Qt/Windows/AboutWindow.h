#pragma once

#include "Platform/Linux/Qt/Windows/ContentWindow.h"

#include <QQmlEngine>

namespace tocca::platform::linux {

/// The window that says what the program is: icon, name, version, licence. Escape closes it, and the menu's keys hold in it.
///
/// Threads: main.
class AboutWindow final : public ContentWindow {
public:
    explicit AboutWindow(OwnWindows& family);
    ~AboutWindow() override;

    void showInFront();

private:
    [[nodiscard]] QQuickItem* makeContent(QQuickItem& parent);
    [[nodiscard]] bool handleKey(const QKeyEvent& event) override;

    QQmlEngine engine_;
};

} // namespace tocca::platform::linux
