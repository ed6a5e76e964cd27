#pragma once

#include "UI/Popover/Packs/SoundPackRows.h"

#include <QAbstractListModel>
#include <QQmlEngine>

namespace tocca::ui {

/// Rows of sounds. Threads: main.
class SoundPackRowsViewModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the popover")

public:
    enum Role { Icon = Qt::UserRole, Title, Line, IsSelected };

    using QAbstractListModel::QAbstractListModel;

    /// Rows that differ in their selection alone stay the same items on screen.
    void setRows(std::vector<SoundPackRow> rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<SoundPackRow> rows_;
};

} // namespace tocca::ui
