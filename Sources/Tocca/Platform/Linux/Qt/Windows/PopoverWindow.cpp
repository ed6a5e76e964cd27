#include "Platform/Linux/Qt/Windows/PopoverWindow.h"

#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace tocca::platform::linux {

namespace {

constexpr int kGap = 6; // between anchor and popover, in points

bool isButtonDown()
{
    auto desktop = XDesktop::requests();
    return desktop && desktop->isButtonDown();
}

const QScreen* screenOf(const QPoint& point)
{
    const QScreen* const screen = QGuiApplication::screenAt(point);
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

/// In Qt's points, of which a screen's corner is where it is in pixels.
QPoint fromPixels(const QPoint& pixels)
{
    for (const QScreen* const screen : QGuiApplication::screens()) {
        const QPoint corner = screen->geometry().topLeft();
        const QPointF inside = QPointF(pixels - corner) / screen->devicePixelRatio();
        if (const QPoint point = corner + inside.toPoint(); screen->geometry().contains(point)) {
            return point;
        }
    }
    return pixels;
}

/// The desktop's panel at a place, if there is one.
std::optional<QRect> panelAt(const QPoint& point)
{
    auto desktop = XDesktop::requests();
    const QScreen* const screen = screenOf(point);
    if (!desktop || screen == nullptr) {
        return std::nullopt;
    }
    const QPoint corner = screen->geometry().topLeft();
    const double scale = screen->devicePixelRatio();
    const QPoint pixels = corner + (QPointF(point - corner) * scale).toPoint();
    const auto dock = desktop->dockAt(pixels.x(), pixels.y());
    if (!dock) {
        return std::nullopt;
    }
    return QRectF(corner + QPointF(QPoint(dock->x, dock->y) - corner) / scale,
                  QSizeF(dock->width, dock->height) / scale)
        .toAlignedRect();
}

/// Where the popover belongs when the desktop does not say where the icon is.
QRect guessedAnchor(const std::optional<QPoint>& told)
{
    const QPoint pointer = QCursor::pos();
    const QScreen* screen = screenOf(pointer);
    const bool isOnPanel =
        panelAt(pointer) || (screen != nullptr && !screen->availableGeometry().contains(pointer));
    if (isOnPanel || !XDesktop::isPresent()) {
        return {pointer, QSize(1, 1)};
    }
    if (told && !told->isNull()) { // some desktops say 0, 0 for nowhere
        if (const QPoint place = fromPixels(*told); QGuiApplication::screenAt(place) != nullptr) {
            return {place, QSize(1, 1)};
        }
    }
    screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return {pointer, QSize(1, 1)};
    }
    const QRect whole = screen->geometry();
    const QRect area = screen->availableGeometry();
    const bool isPanelBelow = whole.bottom() - area.bottom() > area.top() - whole.top();
    return {isPanelBelow ? whole.bottomRight() : whole.topRight(), QSize(1, 1)};
}

} // namespace

QRect besidePanel(const QRect& area, const QRect& panel)
{
    if (!panel.intersects(area)) {
        return area;
    }
    QRect rest = area;
    if (panel.width() >= panel.height()) {
        if (panel.center().y() > area.center().y()) {
            rest.setBottom(panel.top() - 1);
        } else {
            rest.setTop(panel.bottom() + 1);
        }
    } else if (panel.center().x() > area.center().x()) {
        rest.setRight(panel.left() - 1);
    } else {
        rest.setLeft(panel.right() + 1);
    }
    return rest;
}

QPoint popoverPlace(const QRect& anchor, const QSize& size, const QRect& area)
{
    const int below = anchor.bottom() + 1 + kGap;
    const int above = anchor.top() - kGap - size.height();
    const bool fitsBelow = below + size.height() <= area.bottom() + 1;
    const int x = anchor.left() + (anchor.width() - size.width()) / 2;
    const int y = fitsBelow ? below : above;
    return {std::max(area.left(), std::min(x, area.right() + 1 - size.width())),
            std::max(area.top(), std::min(y, area.bottom() + 1 - size.height()))};
}

PopoverWindow::PopoverWindow(OwnWindows& family)
    : ContentWindow(family, Kind::popover)
    , family_(family)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    connect(this, &QWindow::activeChanged, this, [this] { focusMoved(); });
}

void PopoverWindow::showAt(const QRect& icon, const std::optional<QPoint>& told)
{
    constexpr int kLongestClick = 800; // milliseconds
    constexpr int kTremor = 8;         // points that a pointer moves within a click
    const bool isSameClick = sinceClickedAway_.isValid() && !sinceClickedAway_.hasExpired(kLongestClick) &&
                             (QCursor::pos() - pointerAtClick_).manhattanLength() <= kTremor;
    sinceClickedAway_.invalidate();
    if (!isSameClick) {
        presentAt(icon.isValid() ? icon : guessedAnchor(told));
    }
}

void PopoverWindow::presentAt(const QRect& anchor)
{
    if (const QScreen* const screen = screenOf(anchor.center())) {
        // Where there are several monitors Qt does not know which part of them the panels leave.
        const auto panel = panelAt(anchor.center());
        const QRect free = screen->availableGeometry();
        const QRect area = panel ? besidePanel(free, *panel) : free;
        resize(contentSize_.boundedTo(area.size()));
        setPosition(popoverPlace(anchor, size(), area));
    }
    XDesktop::adopt(*this);
    ContentWindow::present();
    raise();
    hasHadFocus_ = false;
    watchButtons();
    takeKeyboard();
}

void PopoverWindow::dismiss()
{
    isAside_ = false;
    stopWatching();
    if (auto desktop = XDesktop::requests(); desktop && isVisible() && keyboardBefore_ &&
                                             desktop->keyboard() == static_cast<xcb_window_t>(winId())) {
        desktop->giveKeyboard(*keyboardBefore_);
    }
    keyboardBefore_.reset();
    hide();
}

void PopoverWindow::watchButtons()
{
    stopWatching();
    buttons_ = ButtonWatch::open([this](auto action, auto over) { buttonChanged(action, over); });
    if (buttons_) {
        buttonNotifier_ = std::make_unique<QSocketNotifier>(buttons_->fd(), QSocketNotifier::Read);
        connect(buttonNotifier_.get(), &QSocketNotifier::activated, this, [this] {
            const auto serving = buttons_; // for what it tells may end the watch
            if (!serving->serve()) {
                stopWatching();
            }
        });
    }
}

void PopoverWindow::stopWatching()
{
    isPressedOutside_ = false;
    if (buttonNotifier_) {
        buttonNotifier_->setEnabled(false);
        buttonNotifier_.release()->deleteLater(); // it may be calling
    }
    buttons_.reset();
}

void PopoverWindow::buttonChanged(ButtonWatch::Action action, xcb_window_t over)
{
    const bool isOver = over == static_cast<xcb_window_t>(winId());
    if (action == ButtonWatch::Action::pressed) {
        isPressedOutside_ = !isOver;
    } else if (std::exchange(isPressedOutside_, false) && !isOver && !isDraggedOver()) {
        dismissByClick();
    }
}

void PopoverWindow::takeKeyboard()
{
    sinceShown_.start();
    auto desktop = XDesktop::requests();
    if (!desktop) {
        requestActivate();
        return;
    }
    const auto own = static_cast<xcb_window_t>(winId());
    if (const xcb_window_t before = desktop->keyboard(); before != own) {
        keyboardBefore_ = before;
    }
    desktop->giveKeyboard(own);
}

void PopoverWindow::focusMoved()
{
    constexpr int kSettling =
        1000; // milliseconds in which a window manager may still be busy with who was in front before
    if (isActive()) {
        hasHadFocus_ = true;
    } else if (!isVisible() || !hasHadFocus_ || isPressedOutside_) {
        return;
    } else if (isButtonDown()) {
        isPressedOutside_ =
            true; // whose release tells what it was: dragging a folder here takes the keyboard as well
    } else if (sinceShown_.isValid() && !sinceShown_.hasExpired(kSettling)) {
        hasHadFocus_ = false;
        takeKeyboard();
    } else {
        dismissByClick();
    }
}

void PopoverWindow::dismissByClick()
{
    sinceClickedAway_.start();
    pointerAtClick_ = QCursor::pos();
    dismiss();
}

bool PopoverWindow::handleKey(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape) {
        return false;
    }
    dismiss();
    return true;
}

void PopoverWindow::dragEnded()
{
    if (isVisible() && !isActive()) {
        takeKeyboard(); // so that keys and the next click elsewhere close it
    }
}

void PopoverWindow::dialogChanged(bool isOpen)
{
    if (isOpen && isVisible()) {
        dismiss(); // in front of everything, it would cover the dialog
        isAside_ = true;
    } else if (!isOpen && isAside_) {
        isAside_ = false;
        XDesktop::adopt(*this);
        ContentWindow::present();
        raise();
        hasHadFocus_ = false;
        watchButtons();
        takeKeyboard();
    }
}

} // namespace tocca::platform::linux
