#include "Model/Pack.h"

#include <algorithm>

namespace tocca::soundpack {

TunedStroke strokeOf(const Pack& pack, const Slot& slot)
{
    const auto written = [&](const Slot& wanted) {
        return std::ranges::find(pack.strokes, wanted, &SlotStroke::slot);
    };
    if (const auto own = written(slot); own != pack.strokes.end()) {
        return {.stroke = own->stroke, .tuning = {}};
    }
    const auto standard = written({Key::Standard, slot.action});
    if (const auto big = std::ranges::find(pack.bigKeys, slot.key, &BigKey::key); big != pack.bigKeys.end()) {
        return onBigKey(*big, slot.action, standard->stroke);
    }
    return {.stroke = standard->stroke, .tuning = {}};
}

double targetLufs(const Pack& pack, const Slot& slot)
{
    const StrokeLevels& levels = pack.levels.at(slot.key);
    return kStandardPressLufs + (slot.action == Action::Press ? levels.pressLu : levels.releaseLu);
}

} // namespace tocca::soundpack
