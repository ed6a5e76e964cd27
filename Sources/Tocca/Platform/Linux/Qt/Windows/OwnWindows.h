#pragma once

#include "Support/Subscription.h"

#include <functional>
#include <memory>
#include <vector>

class QKeyEvent;
class QObject;

namespace tocca::platform::linux {

class ContentWindow;

/// The program's windows that can have the keyboard, and what they share.
///
/// Threads: main.
class OwnWindows {
public:
    /// Handles a key that no window had a use for; false when it has none either.
    using KeyHandler = std::function<bool(const QKeyEvent&)>;
    using Observer = std::function<void(ContentWindow&)>;

    /// Installs `listener` as an event filter in every window made from now on; null for none.
    /// Lifetime: outlives the windows.
    void setListener(QObject* listener) noexcept { listener_ = listener; }

    void setKeyHandler(KeyHandler handler) { keyHandler_ = std::move(handler); }

    /// Calls `observer` for every window that is made from now on.
    void setMadeObserver(Observer observer) { made_ = std::move(observer); }

    void add(ContentWindow& window);
    void remove(ContentWindow& window);

    [[nodiscard]] const std::vector<ContentWindow*>& all() const noexcept { return windows_; }

    [[nodiscard]] bool handleKey(const QKeyEvent& event) const { return keyHandler_ && keyHandler_(event); }

    /// Whether a dialog that belongs to one of the windows is open, which takes the focus without the person having left.
    [[nodiscard]] bool hasDialog() const noexcept { return hasDialog_; }

    void setDialog(bool isOpen);

    /// Hides every window that is shown; `showAgain` brings those back that were not closed or shown in between.
    void hide();
    void showAgain();

    /// A window is shown, by whomever: it need not come back any more.
    void shown(ContentWindow& window) { std::erase(hidden_, &window); }

private:
    QObject* listener_ = nullptr;
    KeyHandler keyHandler_;
    Observer made_;
    std::vector<ContentWindow*> windows_;
    std::vector<ContentWindow*> hidden_; // by `hide`
    bool hasDialog_ = false;
};

} // namespace tocca::platform::linux
