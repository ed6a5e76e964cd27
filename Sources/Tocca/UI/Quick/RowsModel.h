#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QVariant>

#include <iterator>
#include <utility>
#include <vector>

namespace tocca::ui {

/// Rows of a list as QML repeats them; what a delegate sees of a row are some of its members. `Row` can be compared.
/// Threads: main.
template <class Row>
class RowsModel final : public QAbstractListModel {
public:
    struct Role {
        const char* name;
        QVariant (*of)(const Row&);
    };

    /// The role by which delegates know a member.
    template <auto member>
    [[nodiscard]] static constexpr Role role(const char* name)
    {
        return {name, [](const Row& row) { return QVariant::fromValue(row.*member); }};
    }

    explicit RowsModel(std::vector<Role> roles, QObject* parent = nullptr)
        : QAbstractListModel(parent)
        , roles_(std::move(roles))
    {}

    [[nodiscard]] const std::vector<Row>& rows() const noexcept { return rows_; }

    /// A row; null where there is none.
    [[nodiscard]] const Row* at(int index) const
    {
        return index >= 0 && index < rowCount() ? &rows_[static_cast<std::size_t>(index)] : nullptr;
    }

    /// Shows other rows. The items on screen stay as far as there are as many.
    void show(std::vector<Row> rows)
    {
        const int before = rowCount();
        const auto after = static_cast<int>(rows.size());
        if (after < before) {
            beginRemoveRows({}, after, before - 1);
            rows_.erase(rows_.begin() + after, rows_.end());
            endRemoveRows();
        }
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            if (!(rows_[i] == rows[i])) {
                rows_[i] = std::move(rows[i]);
                Q_EMIT dataChanged(index(static_cast<int>(i)), index(static_cast<int>(i)));
            }
        }
        if (after > before) {
            beginInsertRows({}, before, after - 1);
            rows_.insert(rows_.end(), std::make_move_iterator(rows.begin() + before),
                         std::make_move_iterator(rows.end()));
            endInsertRows();
        }
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        const Row* const row = at(index.row());
        const auto which = static_cast<std::size_t>(role - Qt::UserRole);
        return row != nullptr && which < roles_.size() ? roles_[which].of(*row) : QVariant();
    }

    [[nodiscard]] QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> names;
        for (const Role& role : roles_) {
            names.insert(Qt::UserRole + static_cast<int>(names.size()), role.name);
        }
        return names;
    }

private:
    const std::vector<Role> roles_;
    std::vector<Row> rows_;
};

} // namespace tocca::ui
