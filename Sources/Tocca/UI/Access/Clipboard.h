#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace tocca::ui {

/// Puts text on the desktop's clipboard. Threads: main.
class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static void copy(const QString& text);
};

} // namespace tocca::ui
