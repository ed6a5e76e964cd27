#pragma once

#include "Platform/FileStore.h"
#include "Platform/Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

namespace tocca::platform {

/// What every implementation of `FileStore` keeps to.
///
/// `Machine` is as for `FilesConformance`, hands out `fileStore()` too, and has `makeLink(path, target)`.
template <class Machine>
class FileStoreConformance : public ::testing::Test {
protected:
    FileStore& store() { return machine_.fileStore(); }

    std::filesystem::path root() { return machine_.root(); }

    FileKind kind(const std::string& name)
    {
        const auto status = store().status(root() / name);
        EXPECT_TRUE(status);
        return status.value().kind;
    }

    std::string read(const std::string& name)
    {
        constexpr std::size_t kLimit = 1000;
        const auto bytes = machine_.files().read(root() / name, kLimit);
        std::string text;
        if (bytes) {
            std::transform(bytes.value()->begin(), bytes.value()->end(), std::back_inserter(text),
                           [](std::byte byte) { return static_cast<char>(byte); });
        }
        return text;
    }

    /// Whether `result` is an error that names `name`.
    template <class T>
    static bool complains(const Result<T>& result, const std::string& name)
    {
        return !result && result.error().describe().find(name) != std::string::npos;
    }

    Machine machine_;
};

TYPED_TEST_SUITE_P(FileStoreConformance);

TYPED_TEST_P(FileStoreConformance, TellsWhatIsAtAPathAndWhetherItIsTheSame)
{
    auto& machine = this->machine_;
    const auto root = this->root();
    machine.makeDirectory(root / "directory");
    machine.write(root / "file", "x");
    machine.makeSpecial(root / "special");
    machine.makeLink(root / "link", "directory");
    machine.makeLink(root / "dangling", "nowhere");

    EXPECT_EQ(this->kind("directory"), FileKind::Directory);
    EXPECT_EQ(this->kind("file"), FileKind::File);
    EXPECT_EQ(this->kind("special"), FileKind::Special);
    EXPECT_EQ(this->kind("link"), FileKind::Link);
    EXPECT_EQ(this->kind("dangling"), FileKind::Link);
    EXPECT_EQ(this->kind("missing"), FileKind::Missing);
    EXPECT_EQ(this->kind("file/below"), FileKind::Missing);

    const auto identity = [this, root](const char* name) {
        return this->store().status(root / name).value().identity;
    };
    EXPECT_EQ(identity("directory"), identity("link/../directory"));
    EXPECT_NE(identity("directory"), identity("file"));
    EXPECT_NE(identity("directory"), identity("link"));
}

TYPED_TEST_P(FileStoreConformance, ResolvesPaths)
{
    auto& machine = this->machine_;
    auto& store = this->store();
    const auto root = store.resolve(this->root()).value();
    machine.makeDirectory(root / "a");
    machine.makeDirectory(root / "a/b");
    machine.makeLink(root / "link", "a/b");
    machine.makeLink(root / "loop", "loop");
    machine.makeLink(root / "dangling", "nowhere");

    EXPECT_EQ(store.resolve(root / "link").value(), root / "a/b");
    EXPECT_EQ(store.resolve(root / "link/..").value(), root / "a");
    EXPECT_EQ(store.resolve(root / "a/./b/").value(), root / "a/b");
    EXPECT_EQ(store.resolve("/").value(), "/");
    EXPECT_TRUE(this->complains(store.resolve(root / "loop"), "loop"));
    EXPECT_TRUE(this->complains(store.resolve(root / "dangling"), "dangling"));
    EXPECT_TRUE(this->complains(store.resolve(root / "missing"), "missing"));
    EXPECT_FALSE(store.resolve(""));
}

TYPED_TEST_P(FileStoreConformance, MakesDirectories)
{
    auto& store = this->store();
    const auto root = this->root();
    this->machine_.write(root / "file", "x");
    EXPECT_TRUE(store.makeDirectories(root / "a/b/c"));
    EXPECT_TRUE(store.makeDirectories(root / "a/b"));
    EXPECT_EQ(this->kind("a/b/c"), FileKind::Directory);
    EXPECT_FALSE(store.makeDirectories(root / "file"));
    EXPECT_FALSE(store.makeDirectories(root / "file/below"));
    EXPECT_TRUE(store.syncDirectory(root / "a"));
    EXPECT_FALSE(store.syncDirectory(root / "file"));
    EXPECT_FALSE(store.syncDirectory(root / "missing"));
}

TYPED_TEST_P(FileStoreConformance, CopiesOneThingToWhereNothingIs)
{
    auto& machine = this->machine_;
    auto& store = this->store();
    const auto root = this->root();
    machine.write(root / "file", std::string("a\0b", 3));
    machine.makeLink(root / "link", "file");
    machine.makeLink(root / "dangling", "nowhere");
    machine.makeDirectory(root / "directory");
    machine.write(root / "directory/inner", "x");
    machine.makeSpecial(root / "special");

    EXPECT_TRUE(store.copyEntry(root / "file", root / "file 2"));
    EXPECT_EQ(this->read("file 2"), std::string("a\0b", 3));
    EXPECT_TRUE(store.copyEntry(root / "link", root / "directory/link 2"));
    EXPECT_EQ(this->kind("directory/link 2"), FileKind::Link);
    EXPECT_EQ(this->read("directory/link 2"), "") << "a link was rewritten";
    EXPECT_TRUE(store.copyEntry(root / "dangling", root / "dangling 2"));
    EXPECT_EQ(this->kind("dangling 2"), FileKind::Link);
    EXPECT_TRUE(store.copyEntry(root / "directory", root / "directory 2"));
    EXPECT_EQ(this->kind("directory 2"), FileKind::Directory);
    EXPECT_EQ(this->kind("directory 2/inner"), FileKind::Missing);

    machine.write(root / "there", "old");
    for (const char* name : {"file", "link", "directory"}) {
        EXPECT_TRUE(this->complains(store.copyEntry(root / name, root / "there"), "there")) << name;
    }
    EXPECT_EQ(this->read("there"), "old");
    EXPECT_TRUE(this->complains(store.copyEntry(root / "special", root / "new"), "special"));
    EXPECT_TRUE(this->complains(store.copyEntry(root / "missing", root / "new"), "missing"));
    EXPECT_EQ(this->kind("new"), FileKind::Missing);
}

TYPED_TEST_P(FileStoreConformance, MovesAndExchangesWithoutLosingAnything)
{
    auto& machine = this->machine_;
    auto& store = this->store();
    const auto root = this->root();
    machine.makeDirectory(root / "a");
    machine.write(root / "a/inner", "1");
    machine.write(root / "file", "2");

    EXPECT_TRUE(this->complains(store.move(root / "a", root / "file"), "file"));
    EXPECT_TRUE(this->complains(store.move(root / "missing", root / "new"), "missing"));
    EXPECT_FALSE(store.move(root / "a", root / "a/below"));
    EXPECT_FALSE(store.move(root / "a", root / "nowhere/below"));
    EXPECT_EQ(this->read("a/inner"), "1");
    EXPECT_EQ(this->read("file"), "2");

    EXPECT_TRUE(store.move(root / "a", root / "b"));
    EXPECT_EQ(this->kind("a"), FileKind::Missing);
    EXPECT_EQ(this->read("b/inner"), "1");

    EXPECT_FALSE(store.exchange(root / "b", root / "missing"));
    const auto exchanged = store.exchange(root / "b", root / "file");
    ASSERT_TRUE(exchanged);
    EXPECT_EQ(this->read(exchanged.value() ? "file/inner" : "b/inner"), "1");
    EXPECT_EQ(this->read(exchanged.value() ? "b" : "file"), "2");
}

TYPED_TEST_P(FileStoreConformance, RemovesTreesButNotWhatLinksLeadTo)
{
    auto& machine = this->machine_;
    auto& store = this->store();
    const auto root = this->root();
    machine.makeDirectory(root / "kept");
    machine.write(root / "kept/inner", "x");
    machine.makeDirectory(root / "tree");
    machine.makeDirectory(root / "tree/sub");
    machine.makeSpecial(root / "tree/sub/special");
    machine.makeLink(root / "tree/link", root / "kept");
    machine.makeLink(root / "link", "kept");

    EXPECT_TRUE(store.removeTree(root / "tree"));
    EXPECT_TRUE(store.removeTree(root / "link"));
    EXPECT_TRUE(store.removeTree(root / "missing"));
    EXPECT_EQ(this->kind("tree"), FileKind::Missing);
    EXPECT_EQ(this->kind("link"), FileKind::Missing);
    EXPECT_EQ(this->read("kept/inner"), "x");
}

TYPED_TEST_P(FileStoreConformance, WritesFilesAndTellsTheirSize)
{
    auto& store = this->store();
    const auto root = this->root();
    const std::string text("a\0b", 3);
    EXPECT_TRUE(store.writeFile(root / "file", std::as_bytes(std::span(text))));
    EXPECT_EQ(this->read("file"), text);
    EXPECT_EQ(store.status(root / "file").value().byteCount, text.size());
    EXPECT_TRUE(this->complains(store.writeFile(root / "file", {}), "file"));
    EXPECT_FALSE(store.writeFile(root / "nowhere/below", {}));
    EXPECT_EQ(this->read("file"), text);
    EXPECT_EQ(store.status(root).value().byteCount, 0U);
}

TYPED_TEST_P(FileStoreConformance, MovesThingsOfOneNameToTheTrash)
{
    auto& store = this->store();
    const auto root = this->root();
    for (const char* name : {"a", "b"}) {
        this->machine_.makeDirectory(root / name);
        this->machine_.write(root / name / "inner", name);
        EXPECT_TRUE(store.moveToTrash(root / name, root / "original"));
        EXPECT_EQ(this->kind(name), FileKind::Missing);
    }
    EXPECT_FALSE(store.moveToTrash(root / "missing", root / "original"));
}

REGISTER_TYPED_TEST_SUITE_P(FileStoreConformance, WritesFilesAndTellsTheirSize,
                            MovesThingsOfOneNameToTheTrash, TellsWhatIsAtAPathAndWhetherItIsTheSame,
                            ResolvesPaths, MakesDirectories, CopiesOneThingToWhereNothingIs,
                            MovesAndExchangesWithoutLosingAnything, RemovesTreesButNotWhatLinksLeadTo);

} // namespace tocca::platform
