#include "Platform/Linux/Qt/LinuxLocalMonitors.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tocca::platform::linux {

namespace {

TEST(LinuxLocalMonitors, HearWhatTheirMaskNamesUntilTheyAreRemoved)
{
    LinuxLocalMonitors monitors;
    std::string heard;
    const auto listen = [&](char name) {
        return [&heard, name](EventType type, const InputEvent& event) {
            heard += name;
            heard += type == EventType::KeyDown ? 'd' : 'u';
            heard += std::to_string(event.keyCode);
        };
    };
    auto both = monitors.add(maskOf(EventType::KeyDown) | maskOf(EventType::KeyUp), listen('x'));
    const auto ups = monitors.add(maskOf(EventType::KeyUp), listen('y'));
    monitors.deliver(EventType::KeyDown, {.keyCode = 7});
    monitors.deliver(EventType::KeyUp, {.keyCode = 8});
    monitors.deliver(EventType::ScrollWheel, {});
    EXPECT_EQ(heard, "xd7xu8yu8");

    both.reset();
    heard.clear();
    monitors.deliver(EventType::KeyUp, {.keyCode = 9});
    EXPECT_EQ(heard, "yu9");
}

TEST(LinuxLocalMonitors, MayBeAddedAndRemovedWhileAnEventIsDelivered)
{
    auto monitors = std::make_unique<LinuxLocalMonitors>();
    std::string heard;
    const EventMask mask = maskOf(EventType::KeyDown);
    Subscription first;
    Subscription second;
    Subscription late;
    first = monitors->add(mask, [&](EventType, const InputEvent&) {
        heard += '1';
        late = monitors->add(mask, [&](EventType, const InputEvent&) { heard += '3'; });
        second.reset();
        first.reset();
    });
    second = monitors->add(mask, [&](EventType, const InputEvent&) { heard += '2'; });
    monitors->deliver(EventType::KeyDown, {});
    EXPECT_EQ(heard, "1");
    monitors->deliver(EventType::KeyDown, {});
    EXPECT_EQ(heard, "13");
    monitors.reset();
    late.reset();
}

} // namespace

} // namespace tocca::platform::linux
