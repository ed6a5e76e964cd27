#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace tocca::platform::linux {

namespace {

using instruments::TemporaryDirectory;

/// Sets an environment variable, or removes it, for as long as it lives.
class Variable {
public:
    Variable(const char* name, const char* value)
        : name_(name)
    {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        set(value);
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    ~Variable() { set(old_ ? old_->c_str() : nullptr); }

private:
    void set(const char* value)
    {
        if (value != nullptr) {
            ::setenv(name_, value, 1);
        } else {
            ::unsetenv(name_);
        }
    }

    const char* name_;
    std::optional<std::string> old_;
};

TEST(LinuxDirectories, FindsResourcesOfABuildTreeAndOfAnInstallation)
{
    const TemporaryDirectory prefix;
    const LinuxDirectories directories(prefix.path() / "bin");
    EXPECT_EQ(directories.resources(), std::nullopt);

    TemporaryDirectory::write(prefix.path() / "Resources", "a file is no directory");
    std::filesystem::create_directories(prefix.path() / "share" / "tocca");
    EXPECT_EQ(directories.resources(), prefix.path() / "share" / "tocca");

    std::filesystem::remove(prefix.path() / "Resources");
    std::filesystem::create_directory(prefix.path() / "Resources");
    EXPECT_EQ(directories.resources(), prefix.path() / "Resources");
}

TEST(LinuxDirectories, PlaceTheUsersDataWhereTheDesktopsRulesSay)
{
    const struct {
        const char* data;
        const char* home;
        const char* expected;
    } kRows[] = {
        {"/data", "/home/user", "/data"},
        {nullptr, "/home/user", "/home/user/.local/share"},
        {"", "/home/user", "/home/user/.local/share"},
        {"relative/data", "/home/user", "/home/user/.local/share"},
    };

    for (const auto& row : kRows) {
        const Variable data("XDG_DATA_HOME", row.data);
        const Variable home("HOME", row.home);
        EXPECT_EQ(LinuxDirectories().applicationSupport(), row.expected);
    }
    // Without HOME the user database knows.
    const Variable data("XDG_DATA_HOME", nullptr);
    const Variable home("HOME", nullptr);
    const auto fallback = LinuxDirectories().applicationSupport();
    ASSERT_TRUE(fallback);
    EXPECT_TRUE(fallback->is_absolute());
}

} // namespace

} // namespace tocca::platform::linux
