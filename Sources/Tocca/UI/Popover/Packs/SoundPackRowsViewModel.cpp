#include "UI/Popover/Packs/SoundPackRowsViewModel.h"

#include <algorithm>
#include <utility>

namespace tocca::ui {
namespace {

bool isSamePack(const SoundPackRow& a, const SoundPackRow& b)
{
    return a.icon == b.icon && a.title == b.title && a.line == b.line;
}

} // namespace

void SoundPackRowsViewModel::setRows(std::vector<SoundPackRow> rows)
{
    if (std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(), isSamePack)) {
        rows_ = std::move(rows);
        if (!rows_.empty()) {
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsSelected});
        }
        return;
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int SoundPackRowsViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SoundPackRowsViewModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const SoundPackRow& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Icon:
        return QString::fromStdString(row.icon);
    case Title:
        return QString::fromStdString(row.title);
    case Line:
        return QString::fromStdString(row.line);
    case IsSelected:
        return row.isSelected;
    default:
        return {};
    }
}

QHash<int, QByteArray> SoundPackRowsViewModel::roleNames() const
{
    return {{Icon, "icon"}, {Title, "title"}, {Line, "line"}, {IsSelected, "isSelected"}};
}

} // namespace tocca::ui
