#if !defined(_WIN32)

#include "host/plain_file.h"

#include "support/side_files.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace ZrProj;
using ZrProj::test::writeFile;

TEST(PlainFile, OpensNothingThatReadersCouldWaitFor) {
    TemporaryDirectory const directory;
    std::string const pipe = directory.file("pipe"), plain = directory.file("plain"), link = directory.file("link");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    writeFile(plain, "12345");
    std::filesystem::create_symlink("plain", link);
    EXPECT_FALSE(openPlainFile(pipe));
    EXPECT_FALSE(openPlainFile(directory.path()));
    EXPECT_FALSE(openPlainFile("/dev/zero"));
    EXPECT_FALSE(openPlainFile(directory.file("none")));
    EXPECT_FALSE(createFile(pipe));
    EXPECT_FALSE(createFile(directory.path()));
    Stream const stream = openPlainFile(link);
    ASSERT_TRUE(stream);
    EXPECT_EQ(fileSize(*stream), 5U);
    EXPECT_TRUE(createFile("/dev/null"));
}

TEST(PlainFile, NothingElseIsDeleted) {
    TemporaryDirectory const directory;
    std::string const pipe = directory.file("pipe"), plain = directory.file("plain"), link = directory.file("link");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    writeFile(plain, "");
    std::filesystem::create_symlink("plain", link);
    for (std::string const& other : {pipe, link, directory.path().string(), std::string("/dev/null")}) {
        EXPECT_EQ(deletePlainFile(other), Deletion::NotPlain) << other;
        EXPECT_TRUE(std::filesystem::exists(other)) << other;
    }
    EXPECT_EQ(deletePlainFile(plain), Deletion::Done);
    EXPECT_EQ(deletePlainFile(plain), Deletion::NothingThere);
    EXPECT_EQ(deletePlainFile(pipe + "/x"), Deletion::Failed);
}

#endif
