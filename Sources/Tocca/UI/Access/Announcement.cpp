#include "UI/Access/Announcement.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

namespace tocca::ui {

void Announcement::tell(QQuickItem* item)
{
    if (item == nullptr || !item->isVisible() || item->window() == nullptr || !item->window()->isVisible()) {
        return;
    }
    // Screen readers read a notification when it comes into sight; one whose text changes comes into sight anew.
    QAccessibleEvent seen(item, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&seen);
    Q_EMIT told(item);
}

} // namespace tocca::ui
