#pragma once

#include "Platform/Desktop/MainMenu.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace tocca::ui {

/// A menu item as it was when its menu was opened.
struct ShownMenuItem {
    platform::MenuItem item;
    platform::MenuItemState state;
};

/// The items of the open menu. Threads: main.
class MenuItemsViewModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the main menu")

public:
    enum Role { Title = Qt::UserRole, Shortcut, IsSeparator, IsEnabled, IsChecked };

    void show(std::vector<ShownMenuItem> items);

    [[nodiscard]] const ShownMenuItem& item(int row) const
    {
        return items_.at(static_cast<std::size_t>(row));
    }

    /// The next item from `row` on that can be chosen, `step` rows at a time and round the ends; −1 when there is none.
    Q_INVOKABLE int next(int row, int step) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<ShownMenuItem> items_;
};

} // namespace tocca::ui
