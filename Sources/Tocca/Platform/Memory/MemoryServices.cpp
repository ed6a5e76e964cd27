#include "Platform/Memory/MemoryServices.h"

#include <algorithm>
#include <utility>

namespace tocca::platform::memory {

Result<std::vector<AudioDevice>> MemoryAudioDevices::devices() const
{
    ++queryCount;
    if (!isServerRunning) {
        return Error{"no sound server"};
    }
    return devices_;
}

void MemoryAudioDevices::plugIn(const AudioDevice& device)
{
    unplug(device.name);
    devices_.push_back(device);
}

void MemoryAudioDevices::unplug(const std::string& name)
{
    std::erase_if(devices_, [&name](const AudioDevice& device) { return device.name == name; });
}

Outcome MemoryLoginItem::change(LoginItemStatus status)
{
    if (refusal) {
        return Error{*refusal};
    }
    currentStatus = status;
    return std::monostate();
}

void MemoryWorkspace::activate(const std::optional<RunningApplication>& application)
{
    frontmost_ = application;
    activations_.call(application);
}

std::uint64_t MemoryRandom::next()
{
    if (!scripted_.empty()) {
        const std::uint64_t value = scripted_.front();
        scripted_.pop_front();
        return value;
    }
    // splitmix64 (Steele, Lea and Flood 2014)
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EB;
    return z ^ (z >> 31U);
}

} // namespace tocca::platform::memory
