#include "UI/Access/FocusKeeper.h"

#include <QMetaObject>

#include <algorithm>
#include <cmath>

namespace tocca::ui {
namespace {

constexpr int kNeighbours = 24; // more than ever disappear at once

bool canHaveFocus(const QQuickItem* item)
{
    return item != nullptr && item->isVisible() && item->isEnabled() && item->activeFocusOnTab() &&
           item->window() != nullptr;
}

QList<QPointer<QQuickItem>> neighbours(QQuickItem& item, bool isForward)
{
    QList<QPointer<QQuickItem>> found;
    QQuickItem* next = item.nextItemInFocusChain(isForward);
    while (next != nullptr && next != &item && found.size() < kNeighbours) {
        found.append(next);
        next = next->nextItemInFocusChain(isForward);
    }
    return found;
}

/// How far apart two controls are, along the page's columns first.
qreal distance(const QRectF& from, const QQuickItem& to)
{
    const QPointF there = to.mapRectToScene(to.boundingRect()).center();
    return std::abs(there.x() - from.center().x()) + std::abs(there.y() - from.center().y());
}

} // namespace

FocusKeeper::FocusKeeper(QQuickItem* parent)
    : QQuickItem(parent)
{}

void FocusKeeper::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemSceneChange) {
        disconnect(link_);
        watched_ = data.window;
        if (watched_ != nullptr) {
            link_ = connect(watched_, &QQuickWindow::activeFocusItemChanged, this, [this] { focusMoved(); });
        }
    }
    QQuickItem::itemChange(change, data);
}

void FocusKeeper::focusMoved()
{
    QQuickItem* const now = watched_->activeFocusItem();
    if (canHaveFocus(now)) {
        last_ = now;
        hadOne_ = true;
        place_ = now->mapRectToScene(now->boundingRect());
        after_ = neighbours(*now, true);
        before_ = neighbours(*now, false);
    } else if (hadOne_) {
        // Later, when all that disappears with it has disappeared and all that takes its place is there.
        QMetaObject::invokeMethod(
            this, [this] { mend(); }, Qt::QueuedConnection);
    }
}

void FocusKeeper::mend()
{
    if (watched_ == nullptr || !watched_->isActive() || canHaveFocus(last_)) {
        return; // the window lost the focus, or something else took it on purpose
    }
    QQuickItem* const now = watched_->activeFocusItem();
    if (canHaveFocus(now) || (now != nullptr && now != watched_->contentItem() && !now->isFocusScope())) {
        return;
    }
    if (last_ != nullptr &&
        last_->window() == watched_) { // what was disabled beside it may be enabled by now
        after_ = neighbours(*last_, true);
        before_ = neighbours(*last_, false);
    }
    const auto nearest = [](const Chain& chain) {
        const auto found =
            std::find_if(chain.begin(), chain.end(), [](const auto& item) { return canHaveFocus(item); });
        return found == chain.end() ? nullptr : found->data();
    };
    QQuickItem* const next = nearest(after_);
    QQuickItem* const previous = nearest(before_);
    QQuickItem* heir = next != nullptr ? next : previous;
    if (next != nullptr && previous != nullptr && distance(place_, *previous) < distance(place_, *next)) {
        heir = previous;
    }
    if (heir != nullptr) {
        heir->forceActiveFocus(Qt::OtherFocusReason);
    }
}

} // namespace tocca::ui
