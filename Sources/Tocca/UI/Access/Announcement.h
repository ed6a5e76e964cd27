#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>

namespace tocca::ui {

/// Has assistive programs read an item aloud that the keyboard's focus does not come to: what was done, or what has changed by itself.
///
/// The item has the role of a notification, and its name is what is read. Threads: main.
class Announcement : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Once the item says what it shall say. One that nobody sees is not read; one that comes into sight is read without being told.
    Q_INVOKABLE void tell(QQuickItem* item);

    Q_SIGNAL void told(QQuickItem* item);
};

} // namespace tocca::ui
