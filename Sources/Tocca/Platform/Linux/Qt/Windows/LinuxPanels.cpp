#include "Platform/Linux/Qt/Windows/LinuxPanels.h"

#include "Platform/Linux/Qt/LinuxScreens.h"
#include "Platform/Linux/Qt/Windows/ContentWindow.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

namespace tocca::platform::linux {

class LinuxPanels::LinuxPanel final : public Panel {
public:
    LinuxPanel(LinuxPanels& owner, WindowLevel level, std::unique_ptr<View> content)
        : owner_(owner)
        , level_(level)
        , window_(owner.family_, ContentWindow::Kind::overlay)
        , composition_(owner.desktop_.onChange([this] { update(); }))
    {
        // Past the window manager: each has a will of its own about where a managed window lies, what may cover it and when it is hidden.
        window_.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                         Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput |
                         Qt::NoDropShadowWindowHint);
        QSurfaceFormat format = window_.format();
        constexpr int kAlphaBits = 8;
        format.setAlphaBufferSize(kAlphaBits);
        window_.setFormat(format);
        window_.setColor(Qt::transparent);
        window_.setContent(std::move(content));
        // Qt moves windows itself when screens come and go, after it has told of that.
        placeAgain_.setSingleShot(true);
        placeAgain_.setInterval(0);
        QObject::connect(&placeAgain_, &QTimer::timeout, &window_, [this] { place(); });
        const auto later = [this] { placeAgain_.start(); };
        QObject::connect(&window_, &QWindow::xChanged, &window_, later);
        QObject::connect(&window_, &QWindow::yChanged, &window_, later);
        QObject::connect(&window_, &QWindow::widthChanged, &window_, later);
        QObject::connect(&window_, &QWindow::heightChanged, &window_, later);
        QObject::connect(&window_, &QWindow::screenChanged, &window_, later);
        // What other programs show later may lie above it, as full-screen windows under i3 do.
        QObject::connect(&window_, &QQuickWindow::afterAnimating, &window_, [this] {
            constexpr int kSeldom = 250; // milliseconds
            if (!sinceRaised_.isValid() || sinceRaised_.hasExpired(kSeldom)) {
                sinceRaised_.start();
                owner_.restack();
            }
        });
        owner_.panels_.push_back(this);
    }

    LinuxPanel(const LinuxPanel&) = delete;
    LinuxPanel& operator=(const LinuxPanel&) = delete;

    ~LinuxPanel() override { std::erase(owner_.panels_, this); }

    void setFrame(const Rect& frame) override
    {
        frame_ = frame;
        place();
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
            XDesktop::requests()->makeShadowless(static_cast<xcb_window_t>(window_.winId()));
            place();
            window_.present();
        }
        owner_.restack();
    }

    /// Puts the window where it belongs, to the pixel: where the scale is no whole number Qt's points miss the edge of the screen by one.
    void place()
    {
        const QScreen* const screen = QGuiApplication::primaryScreen();
        if (screen == nullptr) {
            return;
        }
        const QPoint corner = screen->geometry().topLeft(); // which Qt does not scale
        auto desktop = XDesktop::requests();
        const auto monitor = desktop && window_.handle() != nullptr
                                 ? desktop->monitorAt(corner.x(), corner.y())
                                 : std::nullopt;
        if (!monitor) {
            window_.setGeometry(qtRect(frame_, screen->geometry()));
            return;
        }
        const QRect place = pixelRect(frame_, QRect(monitor->x, monitor->y, monitor->width, monitor->height),
                                      screen->devicePixelRatio());
        desktop->place(static_cast<xcb_window_t>(window_.winId()),
                       {place.x(), place.y(), place.width(), place.height()});
    }

    LinuxPanels& owner_;
    const WindowLevel level_;
    Rect frame_;
    bool isVisible_ = false;
    QTimer placeAgain_;
    QElapsedTimer sinceRaised_;
    ContentWindow window_;
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
