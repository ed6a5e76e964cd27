#include "Conversion/ConversionMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::audio {
namespace {

using platform::ArchiveEntry;
using Kind = ArchiveEntry::Kind;
using Entries = std::vector<std::pair<ArchiveEntry, std::string>>;
using testing::HasSubstr;

Entries filesNamed(const std::vector<std::string>& names, const std::string& contents)
{
    Entries entries;
    for (const std::string& name : names) {
        entries.push_back({{.path = name}, contents});
    }
    return entries;
}

const std::string& sound()
{
    static const std::string kSound = fileOf(tone(400));
    return kSound;
}

TEST(Archives, AreReadAsTheFoldersThatTheyAre)
{
    struct Row {
        const char* name;
        Entries entries;
        Pitches expected;
    };

    const Row kRows[] = {
        {"a plain pack",
         filesNamed({"press_standard.wav", "__MACOSX/._press_standard.wav", "._x.wav", ".DS_Store"}, sound()),
         {{"press_standard.wav", 400}}},
        {"a plain pack in a folder",
         filesNamed({"Board/press_standard.wav", "__MACOSX/Board/._press_standard.wav"}, sound()),
         {{"press_standard.wav", 400}}},
        {"a foreign pack in a folder in a folder",
         filesNamed({"a/b/press/1.wav", "a/README.txt"}, sound()),
         {{"press_standard_01.wav", 400}, {"release_standard_none.wav", 0}}},
        {"folders by backslash",
         filesNamed({"Board\\press\\1.wav"}, sound()),
         {{"press_standard_01.wav", 400}, {"release_standard_none.wav", 0}}},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        ConversionMachine machine;
        machine.write("Board v1.3.zip", "PK");
        machine.host.archives().entries = row.entries;
        ASSERT_TRUE(machine.prepare("Board v1.3.zip")) << machine.error();
        EXPECT_EQ(machine.prepared.value().path.stem(), "Board v1.3");
        EXPECT_EQ(machine.pitches(), row.expected);
        for (const auto& [path, text] : machine.contents()) {
            EXPECT_EQ(path.find("._"), std::string::npos) << path;
        }
    }
}

TEST(Archives, ThatAreDangerousOrBrokenAreRefusedAndNothingIsLeft)
{
    struct Row {
        const char* error;
        Entries entries;
        bool isCutOff = false;
    };

    std::vector<std::string> names;
    for (int i = 0; i <= 2000; ++i) {
        names.push_back(std::to_string(i) + ".wav");
    }
    const std::string large(std::size_t{30} << 20U, 'x');
    std::string deep;
    for (int i = 0; i < 100; ++i) {
        deep += "d/";
    }
    const Row kRows[] = {
        {"leads out of it", filesNamed({"../press.wav"}, sound())},
        {"leads out of it", filesNamed({"a/../../press.wav"}, sound())},
        {"leads out of it", filesNamed({"a\\..\\..\\press.wav"}, sound())},
        {"absolute path", filesNamed({"/etc/press.wav"}, sound())},
        {"absolute path", filesNamed({"C:\\press.wav"}, sound())},
        {"too deep", filesNamed({deep + "press.wav"}, sound())},
        {"neither a file nor a folder", {{{.path = "press.wav", .kind = Kind::Link}, ""}}},
        {"neither a file nor a folder", {{{.path = "press.wav", .kind = Kind::Special}, ""}}},
        {"encrypted", {{{.path = "press.wav", .isEncrypted = true}, sound()}}},
        {"more than 2,000 files", filesNamed(names, "")},
        {"larger than 32 MB", filesNamed({"press.wav"}, large + large)},
        {"more than 64 MB", filesNamed({"1.wav", "2.wav", "3.wav"}, large)},
        {"exist", filesNamed({"press.wav", "press.wav"}, sound())},
        {"cut off", filesNamed({"press.wav"}, sound()), true},
        {"no archive", {}},
        {"holds no sounds", filesNamed({"README.txt"}, "hello")},
        {"2 sound packs", filesNamed({"a/press.wav", "b/press.wav"}, sound())},
        {"no sound pack of a kind that is known",
         filesNamed({"some/thing/very/much/deeper/down/x.wav"}, sound())},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.error);
        ConversionMachine machine;
        machine.write("Board.zip", "PK");
        machine.host.files().write(machine.packs / "Board/press.wav", "installed");
        machine.host.archives().entries = row.entries;
        machine.host.archives().isCutOff = row.isCutOff;
        machine.prepare("Board.zip");
        EXPECT_THAT(machine.error(), HasSubstr(row.error));
        EXPECT_EQ(contentsOf(machine.host.files(), machine.host.fileStore(), machine.packs),
                  (FolderContents{{"Board", "(folder)"}, {"Board/press.wav", "installed"}}));
    }

    ConversionMachine machine;
    machine.write("Board.rar", "Rar!");
    machine.prepare("Board.rar");
    EXPECT_THAT(machine.error(), HasSubstr("unpack it"));
}

} // namespace
} // namespace tocca::audio
