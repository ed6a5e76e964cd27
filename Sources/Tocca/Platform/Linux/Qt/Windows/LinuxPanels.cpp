#include "Platform/Linux/Qt/Windows/LinuxPanels.h"

#include "Platform/Linux/Qt/LinuxScreens.h"
#include "Platform/Linux/Qt/Windows/ContentWindow.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace tocca::platform::linux {

namespace {

class OverlayWindow final : public ContentWindow {
public:
    explicit OverlayWindow(OwnWindows& family)
        : ContentWindow(family, Kind::overlay)
    {}

private:
    void exposeEvent(QExposeEvent* event) override
    {
        ContentWindow::exposeEvent(event);
        if (auto desktop = XDesktop::requests(); desktop && isExposed()) {
            desktop->passInputThrough(static_cast<xcb_window_t>(winId()));
        }
    }
};

} // namespace

class LinuxPanels::LinuxPanel final : public Panel {
public:
    LinuxPanel(LinuxPanels& owner, WindowLevel level, std::unique_ptr<View> content)
        : owner_(owner)
        , level_(level)
        , window_(owner.family_)
        , composition_(owner.desktop_.onChange([this] { update(); }))
    {
        window_.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                         Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput |
                         Qt::NoDropShadowWindowHint);
        QSurfaceFormat format = window_.format();
        constexpr int kAlphaBits = 8;
        format.setAlphaBufferSize(kAlphaBits);
        window_.setFormat(format);
        window_.setColor(Qt::transparent);
        window_.setContent(std::move(content));
        owner_.panels_.push_back(this);
    }

    LinuxPanel(const LinuxPanel&) = delete;
    LinuxPanel& operator=(const LinuxPanel&) = delete;

    ~LinuxPanel() override { std::erase(owner_.panels_, this); }

    void setFrame(const Rect& frame) override
    {
        if (const QScreen* const screen = QGuiApplication::primaryScreen()) {
            window_.setGeometry(qtRect(frame, screen->geometry()));
        }
    }

    void orderFront() override
    {
        isVisible_ = true;
        update();
    }

    void orderOut() override
    {
        isVisible_ = false;
        update();
    }

    [[nodiscard]] bool isVisible() const override { return isVisible_; }

    [[nodiscard]] WindowLevel level() const noexcept { return level_; }

    void raise()
    {
        if (window_.isVisible()) {
            window_.raise();
        }
    }

private:
    /// Shows the window only while a compositor can make it transparent, instead of a black box.
    void update()
    {
        if (!isVisible_ || !owner_.desktop_.isComposed()) {
            window_.hide();
            return;
        }
        if (!window_.isVisible()) {
            XDesktop::adopt(window_);
            // Each time, because a window manager forgets what it knew about a window that was hidden.
            XDesktop::requests()->makeOverlay(static_cast<xcb_window_t>(window_.winId()));
            window_.present();
        }
        owner_.restack();
    }

    LinuxPanels& owner_;
    const WindowLevel level_;
    bool isVisible_ = false;
    OverlayWindow window_;
    Subscription composition_;
};

std::unique_ptr<Panel> LinuxPanels::make(const Rect& frame, WindowLevel level, std::unique_ptr<View> content)
{
    auto panel = std::make_unique<LinuxPanel>(*this, level, std::move(content));
    panel->setFrame(frame);
    return panel;
}

void LinuxPanels::restack()
{
    std::vector<LinuxPanel*> order = panels_;
    std::stable_sort(order.begin(), order.end(),
                     [](const auto* a, const auto* b) { return a->level() < b->level(); });
    for (LinuxPanel* const panel : order) {
        panel->raise();
    }
}

} // namespace tocca::platform::linux
