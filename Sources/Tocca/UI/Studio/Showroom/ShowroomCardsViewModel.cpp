#include "UI/Studio/Showroom/ShowroomCardsViewModel.h"

#include "Support/DisplayText.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/Showroom/SwitchSelection.h"

#include <algorithm>

namespace tocca::ui {

ShowroomCardsViewModel::ShowroomCardsViewModel(audio::AudioEngine& engine)
    : engine_(engine)
{}

void ShowroomCardsViewModel::show(std::span<const ShowroomItem* const> items)
{
    const auto isSame = [](const ShowroomItem& shown, const ShowroomItem* item) {
        return shown.id == item->id && shown.title == item->title && shown.subtitle == item->subtitle &&
               shown.customPack == item->customPack;
    };
    if (std::equal(items_.begin(), items_.end(), items.begin(), items.end(), isSame)) {
        return;
    }
    const auto copy = [items](std::size_t count) {
        std::vector<ShowroomItem> copies;
        for (const ShowroomItem* item : items.first(count)) {
            copies.push_back(*item);
        }
        return copies;
    };
    const std::size_t before = items_.size();
    if (items.size() < before) {
        beginRemoveRows({}, static_cast<int>(items.size()), static_cast<int>(before) - 1);
        items_ = copy(items.size());
        endRemoveRows();
    }
    const std::size_t kept = std::min(before, items.size());
    items_ = copy(kept);
    changed({});
    if (items.size() > before) {
        beginInsertRows({}, static_cast<int>(before), static_cast<int>(items.size()) - 1);
        items_ = copy(items.size());
        endInsertRows();
    }
}

void ShowroomCardsViewModel::refreshSelection()
{
    changed({IsSelected});
}

void ShowroomCardsViewModel::changed(const QList<int>& roles)
{
    if (!items_.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), roles);
    }
}

int ShowroomCardsViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant ShowroomCardsViewModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const ShowroomItem& shown = item(index.row());
    switch (role) {
    case Title:
        return toQString(displayText(shown.title));
    case Subtitle:
        return toQString(displayText(shown.subtitle));
    case Tag:
        return toQString(shown.tag).toUpper();
    case Weight:
        return toQString(shown.weight);
    case Profile:
        return toQString(shown.profile).toUpper();
    case IsCustom:
        return shown.isCustom;
    case IsSelected:
        return switchSelection::isSelected(shown, engine_);
    default:
        return {};
    }
}

QHash<int, QByteArray> ShowroomCardsViewModel::roleNames() const
{
    return {{Title, "title"},          {Subtitle, "subtitle"}, {Tag, "tag"},
            {Weight, "weight"},        {Profile, "profile"},   {IsCustom, "isCustom"},
            {IsSelected, "isSelected"}};
}

} // namespace tocca::ui
