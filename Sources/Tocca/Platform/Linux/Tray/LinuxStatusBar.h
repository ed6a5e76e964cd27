#pragma once

#include "Platform/Desktop/StatusBar.h"
#include "Platform/Linux/Qt/XDesktop.h"
#include "Platform/Linux/Tray/DBusMenu.h"
#include "Platform/Linux/Tray/EmbeddedIcon.h"
#include "Platform/Linux/Tray/PopupMenu.h"
#include "Platform/Linux/Tray/StatusNotifierItem.h"
#include "Platform/Linux/Tray/StatusNotifierWatch.h"

#include <QPoint>
#include <QRect>
#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <optional>

namespace tocca::platform::linux {

class LinuxStatusItem;

/// The tray: a StatusNotifierItem where the desktop shows those, else an icon embedded in an X11 tray. Both kinds of tray may come and go
/// at any time.
class LinuxStatusBar : public StatusBar {
public:
    /// What the icon's menu does besides showing the popover.
    struct Commands {
        std::function<void()> openStudio;
        std::function<void()> quit;
    };

    LinuxStatusBar(XDesktop& desktop, Commands commands);

    /// One at a time.
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override;

    /// Whether the icon can be seen, as far as the desktop tells.
    [[nodiscard]] bool isShown() const;

private:
    friend class LinuxStatusItem;

    XDesktop& desktop_;
    const Commands commands_;
    LinuxStatusItem* item_ = nullptr;
};

/// The icon in the tray, with its menu. Lifetime: ends before its status bar.
class LinuxStatusItem final : public StatusItem {
public:
    explicit LinuxStatusItem(LinuxStatusBar& bar);
    LinuxStatusItem(const LinuxStatusItem&) = delete;
    LinuxStatusItem& operator=(const LinuxStatusItem&) = delete;
    ~LinuxStatusItem() override;

    [[nodiscard]] bool hasButton() const override { return true; }

    void setIcon(const TemplateIcon& icon) override;

    void setAction(std::function<void()> action) override { action_ = std::move(action); }

    /// Where the icon is on the screen; empty when the desktop does not tell. Units: Qt's points.
    [[nodiscard]] QRect iconPlace() const;

    /// What the desktop said about the place when it last passed a click on; nothing when it did not. Units: pixels.
    [[nodiscard]] std::optional<QPoint> activationPlace() const { return activationPlace_; }

    [[nodiscard]] bool isShown() const;

private:
    void click(const std::optional<QPoint>& place = std::nullopt);
    void openMenu();
    [[nodiscard]] MenuNode menu();

    /// Embeds the icon in the X11 tray, or removes it, whichever the trays that are there now ask for.
    void follow();

    LinuxStatusBar& bar_;
    TemplateIcon icon_;
    std::function<void()> action_;
    std::optional<QPoint> activationPlace_;
    PopupMenu popup_;
    std::unique_ptr<DBusMenu> busMenu_;
    std::unique_ptr<StatusNotifierItem> notifierItem_;
    std::unique_ptr<StatusNotifierWatch> notifierWatch_;
    std::unique_ptr<EmbeddedIcon> embedded_;
    std::unique_ptr<QSocketNotifier> embeddedNotifier_;
    xcb_window_t refusedTray_ = XCB_NONE; // the tray that has thrown the icon out
    Subscription traysChanged_;
};

} // namespace tocca::platform::linux
