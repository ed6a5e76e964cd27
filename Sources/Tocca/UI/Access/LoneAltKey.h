#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace tocca::ui {

/// Tells when the Alt key of its window is pressed and released with nothing in between, which opens a menu by custom. A click, a turn of
/// the wheel, another key, a move of the window, or the pointer's or keyboard's leaving in between make it something else. Threads: main.
class LoneAltKey : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit LoneAltKey(QQuickItem* parent = nullptr);

    Q_SIGNAL void tapped();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QPointer<QQuickWindow> watched_;
    bool isAlone_ = false; // since it was pressed
};

} // namespace tocca::ui
