#pragma once

#include <QList>
#include <QMetaObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>

namespace tocca::ui {

/// Keeps the keyboard's focus in its window when the control that has it disappears or is disabled: the nearest control that is left, in
/// the order of the Tab key, gets it. Threads: main.
class FocusKeeper : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit FocusKeeper(QQuickItem* parent = nullptr);

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    using Chain = QList<QPointer<QQuickItem>>;

    void focusMoved();
    void mend();

    QPointer<QQuickWindow> watched_;
    QMetaObject::Connection link_;
    QPointer<QQuickItem> last_; // the control that had the focus
    QRectF place_;              // where it was in the window
    bool hadOne_ = false;
    Chain after_; // its neighbours, nearest first
    Chain before_;
};

} // namespace tocca::ui
