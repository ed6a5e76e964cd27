#include "Platform/Linux/Qt/Windows/PopoverWindow.h"

#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <chrono>

namespace tocca::platform::linux {

namespace {

constexpr int kGap = 6; // between anchor and popover, in points
constexpr std::chrono::milliseconds kButtonPoll{40};

bool isButtonDown()
{
    auto desktop = XDesktop::requests();
    return desktop && desktop->isButtonDown();
}

} // namespace

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
    : ContentWindow(family, Kind::ordinary)
    , family_(family)
{
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    connect(this, &QWindow::activeChanged, this, [this] { focusMoved(); });
    waitForRelease_.setInterval(kButtonPoll);
    connect(&waitForRelease_, &QTimer::timeout, this, [this] {
        if (!isButtonDown()) {
            waitForRelease_.stop();
            closeForFocusLoss();
        }
    });
}

void PopoverWindow::showAt(const QRect& anchor)
{
    constexpr int kLongestClick = 800; // milliseconds
    constexpr int kTremor = 8;         // points that a pointer moves within a click
    const QPoint pointer = QCursor::pos();
    const bool isSameClick = sinceFocusWasLost_.isValid() && !sinceFocusWasLost_.hasExpired(kLongestClick) &&
                             (pointer - pointerAtFocusLoss_).manhattanLength() <= kTremor;
    sinceFocusWasLost_.invalidate();
    if (isSameClick) {
        return;
    }
    const QRect place = anchor.isValid() ? anchor : QRect(pointer, QSize(1, 1));
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    screen = screen != nullptr ? screen : QGuiApplication::primaryScreen();
    if (screen != nullptr) {
        setPosition(popoverPlace(place, size(), screen->availableGeometry()));
    }
    hasHadFocus_ = false;
    XDesktop::adopt(*this);
    present();
    bringToFront(*this);
}

void PopoverWindow::focusMoved()
{
    if (isActive()) {
        hasHadFocus_ = true;
        return;
    }
    if (!isVisible() || !hasHadFocus_) {
        return;
    }
    sinceFocusWasLost_.start();
    pointerAtFocusLoss_ = QCursor::pos();
    if (isButtonDown()) {
        // Dragging a folder here from another window takes the focus as well; only the release of the button tells which it was.
        waitForRelease_.start();
    } else {
        closeForFocusLoss();
    }
}

void PopoverWindow::closeForFocusLoss()
{
    if (isVisible() && !isActive() && !isDraggedOver() && !family_.hasDialog()) {
        hide();
    } else {
        sinceFocusWasLost_.invalidate();
    }
}

bool PopoverWindow::handleKey(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape) {
        return false;
    }
    hide();
    return true;
}

void PopoverWindow::dragEnded()
{
    if (isVisible() && !isActive()) {
        bringToFront(*this); // with the focus, so that the next click elsewhere closes it
    }
}

} // namespace tocca::platform::linux
