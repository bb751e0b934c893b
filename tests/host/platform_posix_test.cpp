#if !defined(_WIN32)

#include "host/platform.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using namespace ZrProj;

namespace {

std::string logFileIn(char const* temporary) {
    char const* const before = std::getenv("TMPDIR");
    std::string const saved = before ? before : "";
    temporary ? setenv("TMPDIR", temporary, 1) : unsetenv("TMPDIR");
    FileName const name = logFileName();
    before ? setenv("TMPDIR", saved.c_str(), 1) : unsetenv("TMPDIR");
    return name.data();
}

} // namespace

TEST(Platform, LogStandsInTheTemporaryDirectory) {
    EXPECT_EQ(logFileIn("/some/where"), "/some/where/zrproj.log");
    EXPECT_EQ(logFileIn(nullptr), "/tmp/zrproj.log");
    EXPECT_EQ(logFileIn(""), "/tmp/zrproj.log");
    std::string const longest(259 - 11, 'd');
    EXPECT_EQ(logFileIn(longest.c_str()), longest + "/zrproj.log");
    EXPECT_EQ(logFileIn((longest + "d").c_str()), "/tmp/zrproj.log");
}

TEST(Platform, ExecutableDirectoryHoldsThisProgram) {
    EXPECT_TRUE(std::filesystem::exists(executableDirectory() + "/" + program_invocation_short_name));
}

TEST(Platform, AppendsToAFileOfItsOwnersAlone) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("log");
    mode_t const mask = umask(0);
    appendToFile(name.c_str(), "one\r\n");
    umask(mask);
    appendToFile(name.c_str(), "two\0three");
    EXPECT_EQ(fileBytes(name), "one\r\ntwo");
    struct stat info = {};
    ASSERT_EQ(stat(name.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777u, 0600u);
}

TEST(Platform, AppendsToNothingButPlainFiles) {
    TemporaryDirectory const directory;
    std::string const target = directory.file("target");
    appendToFile(target.c_str(), "as it was");

    std::string const link = directory.file("link");
    std::filesystem::create_symlink(target, link);
    appendToFile(link.c_str(), "through a link");
    std::filesystem::remove(link);
    std::filesystem::create_hard_link(target, link);
    appendToFile(link.c_str(), "through a hard link");
    EXPECT_EQ(fileBytes(target), "as it was");

    std::string const pipe = directory.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    appendToFile(pipe.c_str(), "nobody reads"); // must not wait for a reader
    int const reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    appendToFile(pipe.c_str(), "somebody reads");
    char byte = 0;
    EXPECT_LE(read(reader, &byte, 1), 0);
    close(reader);
}

#endif
