#include "Platform/Linux/Qt/Windows/ContentWindow.h"

#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/Linux/Qt/Windows/QuickView.h"

#include <QKeyEvent>
#include <QQuickItem>

#include <utility>

namespace tocca::platform::linux {

ContentWindow::ContentWindow(OwnWindows& family, Kind kind)
    : family_(family)
    , kind_(kind)
{
    setTitle(QStringLiteral("Tocca")); // what assistive programs call a window that shows no title
    if (kind_ != Kind::overlay) {
        family_.add(*this);
    }
}

ContentWindow::~ContentWindow()
{
    if (kind_ != Kind::overlay) {
        family_.remove(*this);
    }
    delete item_; // before the view, which it may still refer to
}

void ContentWindow::setContent(std::unique_ptr<View> content)
{
    delete std::exchange(item_, nullptr);
    content_ = std::move(content);
    if (isVisible()) {
        fitContent();
    }
}

void ContentWindow::present()
{
    if (kind_ == Kind::ordinary) {
        family_.shown(*this);
    }
    fitContent();
    setVisible(true);
}

bool ContentWindow::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Close:
        // Qt would destroy the X window of one that accepts; ours only hide.
        event->ignore();
        closeRequested();
        return true;
    case QEvent::DragEnter:
        isDraggedOver_ = true;
        return QQuickWindow::event(event);
    case QEvent::DragLeave:
    case QEvent::Drop: {
        const bool isHandled = QQuickWindow::event(event);
        isDraggedOver_ = false;
        dragEnded();
        return isHandled;
    }
    default:
        return QQuickWindow::event(event);
    }
}

void ContentWindow::resizeEvent(QResizeEvent* event)
{
    QQuickWindow::resizeEvent(event);
    if (item_ != nullptr) {
        item_->setSize(size());
    }
}

void ContentWindow::keyPressEvent(QKeyEvent* event)
{
    QQuickWindow::keyPressEvent(event);
    if (event->isAccepted() && activeFocusItem() != nullptr) {
        return;
    }
    event->setAccepted(handleKey(*event) || family_.handleKey(*event));
}

void ContentWindow::fitContent()
{
    if (item_ == nullptr && content_) {
        item_ = static_cast<const QuickView&>(*content_).makeItem(*contentItem());
    }
    if (item_ != nullptr) {
        item_->setSize(size());
    }
}

} // namespace tocca::platform::linux
