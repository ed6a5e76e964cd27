#include "UI/Access/LoneAltKey.h"

#include <QKeyEvent>

#include <utility>

namespace tocca::ui {

LoneAltKey::LoneAltKey(QQuickItem* parent)
    : QQuickItem(parent)
{}

bool LoneAltKey::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        constexpr Qt::KeyboardModifiers kOthers =
            Qt::ShiftModifier | Qt::ControlModifier | Qt::MetaModifier | Qt::GroupSwitchModifier;
        if (key.key() != Qt::Key_Alt || !key.isAutoRepeat()) {
            isAlone_ = key.key() == Qt::Key_Alt && (key.modifiers() & kOthers) == Qt::NoModifier;
        }
        break;
    }
    case QEvent::KeyRelease: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (!key.isAutoRepeat() && std::exchange(isAlone_, false) && key.key() == Qt::Key_Alt) {
            Q_EMIT tapped();
        }
        break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::Enter: // also when a window manager lets go of the pointer
    case QEvent::Leave:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::FocusOut:
    case QEvent::Hide:
        isAlone_ = false;
        break;
    default:
        break;
    }
    return false;
}

void LoneAltKey::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemSceneChange) {
        if (watched_ != nullptr) {
            watched_->removeEventFilter(this);
        }
        watched_ = data.window;
        if (watched_ != nullptr) {
            watched_->installEventFilter(this);
        }
    }
    QQuickItem::itemChange(change, data);
}

} // namespace tocca::ui
