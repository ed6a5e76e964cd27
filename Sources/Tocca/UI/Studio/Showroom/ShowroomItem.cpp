#include "UI/Studio/Showroom/ShowroomItem.h"

#include "UI/Studio/Showroom/SwitchTraits.h"

namespace tocca::ui {
namespace {

ShowroomItem named(std::string_view id, std::string_view name, std::string_view description)
{
    ShowroomItem item;
    item.id = id;
    item.title = name;
    item.subtitle = description;
    item.tag = getTag(name);
    item.weight = getWeight(name);
    item.profile = getProfile(name);
    return item;
}

} // namespace

ShowroomItem ShowroomItem::of(audio::SwitchType switchType)
{
    ShowroomItem item = named(switchType.rawValue(), switchType.rawValue(), switchType.description());
    item.switchType = switchType;
    return item;
}

ShowroomItem ShowroomItem::of(const audio::SoundPackInfo& pack)
{
    ShowroomItem item = named(pack.id, pack.name, pack.description);
    item.isCustom = true;
    item.customPack = pack;
    return item;
}

} // namespace tocca::ui
