#include "Platform/Linux/Tray/PopupMenu.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>

#include <algorithm>

namespace tocca::platform::linux {

namespace {

constexpr int kRowHeight = 30;
constexpr int kSeparatorHeight = 9;
constexpr int kMargin = 6;
constexpr int kIndent = 14;

int heightOf(const MenuNode& entry)
{
    return entry.label.isEmpty() ? kSeparatorHeight : kRowHeight;
}

} // namespace

PopupMenu::PopupMenu()
    : font_(QGuiApplication::font())
{
    setFlags(Qt::Popup | Qt::FramelessWindowHint);
    setTitle(QStringLiteral("Tocca"));
}

void PopupMenu::popUp(const MenuNode& menu, const QPoint& place)
{
    entries_ = menu.children;
    selected_ = -1;
    const QFontMetrics metrics(font_);
    int width = 0;
    int height = 2 * kMargin;
    for (const MenuNode& entry : entries_) {
        width = std::max(width, metrics.horizontalAdvance(entry.label));
        height += heightOf(entry);
    }
    const QSize size(width + 2 * (kMargin + kIndent), height);
    QPoint corner = place;
    const QScreen* screen = QGuiApplication::screenAt(place);
    screen = screen != nullptr ? screen : QGuiApplication::primaryScreen();
    if (screen != nullptr) {
        const QRect area = screen->geometry();
        corner.setX(std::clamp(place.x(), area.left(), std::max(area.left(), area.right() - size.width())));
        if (place.y() + size.height() > area.bottom()) {
            corner.setY(std::max(area.top(), place.y() - size.height()));
        }
    }
    setGeometry(QRect(corner, size));
    show();
    raise();
    setMouseGrabEnabled(true);
    setKeyboardGrabEnabled(true);
}

void PopupMenu::paintEvent(QPaintEvent* /*event*/)
{
    const QPalette palette = QGuiApplication::palette();
    QPainter painter(this);
    painter.setFont(font_);
    painter.fillRect(QRect({}, size()), palette.color(QPalette::Base));
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawRect(QRect({}, size() - QSize(1, 1)));
    for (int index = 0; index < static_cast<int>(entries_.size()); ++index) {
        const MenuNode& entry = entries_[static_cast<std::size_t>(index)];
        const QRect row = rowAt(index);
        if (entry.label.isEmpty()) {
            painter.setPen(palette.color(QPalette::Mid));
            painter.drawLine(row.left() + kIndent, row.center().y(), row.right() - kIndent, row.center().y());
            continue;
        }
        const bool isSelected = index == selected_;
        if (isSelected) {
            painter.fillRect(row, palette.color(QPalette::Highlight));
        }
        const auto group = entry.isEnabled ? QPalette::Active : QPalette::Disabled;
        painter.setPen(palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter.drawText(row.adjusted(kIndent, 0, -kIndent, 0), Qt::AlignVCenter | Qt::AlignLeft,
                         entry.label);
    }
}

void PopupMenu::mouseMoveEvent(QMouseEvent* event)
{
    select(indexAt(event->position().toPoint()));
}

void PopupMenu::mousePressEvent(QMouseEvent* event)
{
    if (!QRect({}, size()).contains(event->position().toPoint())) {
        close();
    }
}

void PopupMenu::mouseReleaseEvent(QMouseEvent* event)
{
    // The release of the click that opened the menu chooses nothing, because the pointer has not moved to an entry yet.
    if (selected_ >= 0 && indexAt(event->position().toPoint()) == selected_) {
        chooseSelected();
    }
}

void PopupMenu::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Up:
        step(-1);
        break;
    case Qt::Key_Down:
        step(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        chooseSelected();
        break;
    default:
        break;
    }
}

void PopupMenu::focusOutEvent(QFocusEvent* /*event*/)
{
    close();
}

QRect PopupMenu::rowAt(int index) const
{
    int y = kMargin;
    for (int before = 0; before < index; ++before) {
        y += heightOf(entries_[static_cast<std::size_t>(before)]);
    }
    return {kMargin, y, width() - 2 * kMargin, heightOf(entries_[static_cast<std::size_t>(index)])};
}

int PopupMenu::indexAt(const QPoint& point) const
{
    for (int index = 0; index < static_cast<int>(entries_.size()); ++index) {
        const MenuNode& entry = entries_[static_cast<std::size_t>(index)];
        if (!entry.label.isEmpty() && entry.isEnabled && rowAt(index).contains(point)) {
            return index;
        }
    }
    return -1;
}

void PopupMenu::select(int index)
{
    if (index != selected_) {
        selected_ = index;
        update();
    }
}

void PopupMenu::step(int direction)
{
    const int count = static_cast<int>(entries_.size());
    int index = selected_ < 0 && direction < 0 ? count : selected_;
    for (index += direction; index >= 0 && index < count; index += direction) {
        if (indexAt(rowAt(index).center()) == index) {
            select(index);
            return;
        }
    }
}

void PopupMenu::chooseSelected()
{
    if (selected_ < 0) {
        return;
    }
    const auto choose = entries_[static_cast<std::size_t>(selected_)].choose;
    close();
    if (choose) {
        choose();
    }
}

void PopupMenu::close()
{
    setMouseGrabEnabled(false);
    setKeyboardGrabEnabled(false);
    hide();
}

} // namespace tocca::platform::linux
