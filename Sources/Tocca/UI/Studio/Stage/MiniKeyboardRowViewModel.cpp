#include "UI/Studio/Stage/MiniKeyboardRowViewModel.h"

#include "UI/Quick/UiProperty.h"

#include <utility>

namespace tocca::ui {

MiniKeyboardRowViewModel::MiniKeyboardRowViewModel(std::span<const VisualKey> keys, QObject* parent)
    : QAbstractListModel(parent)
    , keys_(keys)
{}

void MiniKeyboardRowViewModel::light(std::optional<std::uint16_t> code)
{
    const auto before = std::exchange(litCode_, code);
    if (before == code) {
        return;
    }
    for (int row = 0; row < rowCount(); ++row) {
        const std::uint16_t own = keys_[static_cast<std::size_t>(row)].code;
        if (own == before || own == code) {
            Q_EMIT dataChanged(index(row), index(row), {IsActive});
        }
    }
}

int MiniKeyboardRowViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(keys_.size());
}

QVariant MiniKeyboardRowViewModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const VisualKey& key = keys_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Label:
        return toQString(key.label);
    case LabelSize:
        return key.labelSize();
    case WidthRatio:
        return key.widthRatio;
    case IsActive:
        return litCode_ == key.code;
    default:
        return {};
    }
}

QHash<int, QByteArray> MiniKeyboardRowViewModel::roleNames() const
{
    return {{Label, "label"}, {LabelSize, "labelSize"}, {WidthRatio, "widthRatio"}, {IsActive, "isActive"}};
}

} // namespace tocca::ui
