#pragma once

#include "Support/Subscription.h"

#include <functional>
#include <memory>
#include <vector>

class QKeyEvent;
class QObject;

namespace tocca::platform::linux {

class ContentWindow;

/// The program's own windows that people type into, and what they have in common.
///
/// Threads: main.
class OwnWindows {
public:
    /// A key that no window had a use for; true when it is dealt with.
    using KeyHandler = std::function<bool(const QKeyEvent&)>;
    using Observer = std::function<void(ContentWindow&)>;

    /// `listener` is shown every event that the windows receive, as an event filter of theirs; null for none.
    /// Lifetime: outlives the windows.
    void setListener(QObject* listener) noexcept { listener_ = listener; }

    void setKeyHandler(KeyHandler handler) { keyHandler_ = std::move(handler); }

    /// Calls `observer` for every window that is made from now on.
    void setMadeObserver(Observer observer) { made_ = std::move(observer); }

    void add(ContentWindow& window);
    void remove(ContentWindow& window);

    [[nodiscard]] const std::vector<ContentWindow*>& all() const noexcept { return windows_; }

    [[nodiscard]] bool handleKey(const QKeyEvent& event) const { return keyHandler_ && keyHandler_(event); }

    /// Whether a dialog that belongs to one of the windows is open: the focus is away, and yet not.
    [[nodiscard]] bool hasDialog() const noexcept { return hasDialog_; }

    void setDialog(bool isOpen) noexcept { hasDialog_ = isOpen; }

    /// Hides every window that is shown; `showAgain` undoes it.
    void hide();
    void showAgain();

private:
    QObject* listener_ = nullptr;
    KeyHandler keyHandler_;
    Observer made_;
    std::vector<ContentWindow*> windows_;
    std::vector<ContentWindow*> hidden_; // by `hide`
    bool hasDialog_ = false;
};

} // namespace tocca::platform::linux
