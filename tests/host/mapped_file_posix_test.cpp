#include "host/mapped_file.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using ZrProj::MappedFile;

TEST(MappedFile, HasAPlainFilesBytesForAsLongAsItLives) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("a"), text(10000, 'x');
    std::ofstream(name) << text;
    MappedFile file(name);
    std::filesystem::remove(name);
    MappedFile const moved(std::move(file));
    ASSERT_TRUE(moved.isOpen());
    auto const bytes = moved.bytes();
    EXPECT_EQ(std::string(reinterpret_cast<char const*>(bytes.data()), bytes.size()), text);
    EXPECT_FALSE(MappedFile(name).isOpen());
}

TEST(MappedFile, OpensNothingElse) {
    TemporaryDirectory const directory;
    std::ofstream(directory.file("empty")).close();
    MappedFile const empty(directory.file("empty"));
    EXPECT_TRUE(empty.isOpen() && empty.bytes().empty());
    ASSERT_EQ(mkfifo(directory.file("pipe").c_str(), 0600), 0);
    for (std::string const& name : {directory.file("pipe"), directory.path().string(), std::string("/dev/zero")})
        EXPECT_FALSE(MappedFile(name).isOpen()) << name; // without waiting
}
