#pragma once

#include "Platform/Haptics.h"
#include "Platform/Random.h"
#include "Platform/StandardOutput.h"
#include "Platform/TrustQuery.h"
#include "Platform/Workspace.h"

#include <deque>
#include <string>
#include <vector>

namespace tocca::platform::memory {

/// A permission that a test grants and withdraws.
class MemoryTrustQuery : public TrustQuery {
public:
    [[nodiscard]] bool isTrusted() override { return isGranted; }

    bool promptForTrust() override
    {
        ++promptCount;
        return isGranted;
    }

    bool isGranted = true;
    int promptCount = 0;
};

class MemoryHaptics : public Haptics {
public:
    void performAlignment() override { ++pulseCount; }

    int pulseCount = 0;
};

class MemoryWorkspace : public Workspace {
public:
    bool openUrl(const std::string& url) override
    {
        openedUrls.push_back(url);
        return true;
    }

    std::vector<std::string> openedUrls;
};

/// Random bits that are the same on every run, or exactly those a test asks for.
class MemoryRandom : public Random {
public:
    [[nodiscard]] std::uint64_t next() override;

    /// Makes the following draws return `values`, in order, before the sequence goes on.
    void script(std::initializer_list<std::uint64_t> values) { scripted_.assign(values); }

private:
    std::deque<std::uint64_t> scripted_;
    std::uint64_t state_ = 0x9E3779B97F4A7C15;
};

class MemoryStandardOutput : public StandardOutput {
public:
    void printLine(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

} // namespace tocca::platform::memory
