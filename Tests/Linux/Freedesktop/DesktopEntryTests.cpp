#include "Platform/Linux/Freedesktop/Applications/DesktopEntry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tocca::platform::linux {

namespace {

TEST(DesktopEntry, ReadsItsMainGroupAlone)
{
    const DesktopEntry entry("Name=before any group\n"
                             "# [Desktop Entry]\n"
                             "[Desktop Entry]\r\n"
                             "#Name=a comment\n"
                             "  Name = Passwords and Keys \n"
                             "Name=a second one\n"
                             "Comment=one\\ntwo\\sthree\\\\four\\\n"
                             "nonsense\n"
                             "Hidden=true\n"
                             "[Desktop Action new]\n"
                             "Icon=other");
    EXPECT_EQ(entry.text("Name"), "Passwords and Keys");
    EXPECT_EQ(entry.text("Comment"), "one\ntwo three\\four\\");
    EXPECT_EQ(entry.text("Icon"), std::nullopt);
    EXPECT_EQ(entry.text("Hidden"), "true");
    EXPECT_EQ(DesktopEntry("").text("Name"), std::nullopt);
}

TEST(DesktopEntry, PrefersTheUsersLanguage)
{
    using Locales = std::vector<std::string>;
    EXPECT_EQ(localeVariants("sr_RS.UTF-8@latin"), (Locales{"sr_RS@latin", "sr_RS", "sr@latin", "sr"}));
    EXPECT_EQ(localeVariants("de_AT.UTF-8"), (Locales{"de_AT", "de"}));
    EXPECT_EQ(localeVariants("C"), (Locales{"C"}));

    const DesktopEntry entry("[Desktop Entry]\nName=Keys\nName[de]=Schlüssel\nName[sr@latin]=Ključevi\n");

    const struct {
        const char* locale;
        const char* name;
    } kRows[] = {{"de_AT.UTF-8", "Schlüssel"},
                 {"sr_RS.UTF-8@latin", "Ključevi"},
                 {"fr_FR.UTF-8", "Keys"},
                 {"C.UTF-8", "Keys"}};

    for (const auto& row : kRows) {
        EXPECT_EQ(entry.localizedText("Name", localeVariants(row.locale)), row.name) << row.locale;
    }
}

TEST(DesktopEntry, QuotesAnyPathAsOneArgument)
{
    EXPECT_EQ(escapedArgument("/usr/bin/tocca"), "\"/usr/bin/tocca\"");
    EXPECT_EQ(escapedArgument("/home/a b/100%/tocca"), "\"/home/a b/100%%/tocca\"");
    EXPECT_EQ(escapedArgument("/x/\"$HOME`\\"), "\"/x/\\\\\"\\\\$HOME\\\\`\\\\\\\\\"");
    EXPECT_EQ(DesktopEntry("[Desktop Entry]\nTryExec=" + escapedText("/a\\b\nc d")).text("TryExec"),
              "/a\\b\nc d");
}

} // namespace

} // namespace tocca::platform::linux
