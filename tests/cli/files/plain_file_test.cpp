#include "cli/files/plain_file.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace ZrProj::Command {
namespace {

void put(std::string const& name, std::string const& text) {
    std::ofstream(name, std::ios::binary) << text;
}

std::size_t filesIn(TemporaryDirectory const& directory) {
    auto const files = std::filesystem::directory_iterator(directory.path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(PlainFile, AReplacementAppearsWhenItIsCommitted) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("file");
    put(name, "old");
    {
        ReplacementFile given(name);
        put(given.name(), "half");
    }
    EXPECT_EQ(fileBytes(name), "old");
    EXPECT_EQ(filesIn(directory), 1U);
    ReplacementFile file(name);
    file.copyOriginal();
    EXPECT_EQ(fileBytes(file.name()), "old");
    put(file.name(), "new");
    EXPECT_EQ(fileBytes(name), "old");
    file.commit();
    EXPECT_EQ(fileBytes(name), "new");
    EXPECT_EQ(filesIn(directory), 1U);
    EXPECT_THROW(ReplacementFile(directory.file("none/file")), std::runtime_error);
}

TEST(PlainFile, LinksAndModesStay) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("file"), link = directory.file("link");
    put(name, "old");
    chmod(name.c_str(), 0600);
    std::filesystem::create_symlink("file", link);
    writeWholeFile(link, "new");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(fileBytes(name), "new");
    struct stat status = {};
    ASSERT_EQ(stat(name.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    writeWholeFile("/dev/null", "a device is written to");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_THROW(writeWholeFile("/dev/full", "x"), std::runtime_error);
    EXPECT_THROW(writeWholeFile(directory.path().string(), "x"), std::runtime_error);
}

TEST(PlainFile, SizesAndLines) {
    TemporaryDirectory const directory;
    std::string const one = directory.file("one"), two = directory.file("two");
    put(one, "a\nb\r\n\nlast");
    put(two, "12345");
    EXPECT_EQ(totalSize({one, two}), 15U);
    EXPECT_EQ(totalSize({one, "/dev/null"}), 0U); // one that does not tell
    EXPECT_EQ(totalSize({one, directory.file("none")}), 0U);
    std::vector<std::string> lines;
    readLines(InputFile(one), [&](InputLine const& line) { lines.emplace_back(line.text); });
    EXPECT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines.back(), "last");
    auto const nothing = [](InputLine const&) {};
    std::string const missing = directory.file("none");
    EXPECT_EQ(messageOf<std::runtime_error>([&] { readLines(InputFile(missing), nothing); }),
              "cannot open " + missing + ": No such file or directory");
    EXPECT_THROW(readLines(InputFile(directory.path().string()), nothing), std::runtime_error);
}

} // namespace
} // namespace ZrProj::Command
