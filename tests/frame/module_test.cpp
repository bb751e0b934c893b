// The log around the library's life, in a process of its own: this program again, with another environment.
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {

void runSelf(std::vector<std::string> const& environment) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    std::string program = "/proc/self/exe";
    std::string option = "--gtest_list_tests";
    char* arguments[] = {program.data(), option.data(), nullptr};
    std::vector<std::string> texts = environment;
    std::vector<char*> variables;
    variables.reserve(texts.size() + 1);
    for (std::string& text : texts)
        variables.push_back(text.data());
    variables.push_back(nullptr);
    pid_t child = 0;
    ASSERT_EQ(posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, variables.data()), 0);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
}

constexpr std::time_t threeHours = 10800;
constexpr char const* threeHoursEast = "TZ=TST-3";

/// Takes ctime's 24 characters after `lead`, local time three hours east, out of the text.
std::time_t takeTime(std::string& text, std::string const& lead) {
    if (text.find(lead) == std::string::npos)
        return -1;
    std::size_t const start = text.find(lead) + lead.size();
    std::string const time = text.substr(start, 24);
    text.erase(start, 24);
    std::tm parts = {};
    char const* const end = strptime(time.c_str(), "%a %b %e %H:%M:%S %Y", &parts);
    return end && !*end ? timegm(&parts) - threeHours : -1;
}

class Module : public testing::Test {
protected:
    TemporaryDirectory const directory;
    std::string const temporary = "TMPDIR=" + directory.path().string();
    std::string const log = directory.file("zrproj.log");
};

} // namespace

TEST_F(Module, LogFramesTheLibrarysLifeWhateverTheVariableHolds) {
    std::string expected = "\r\nRULE\r\nZRPROJ.DLL log output started at \r\nRULE\r\n"
                           "RULE\r\nZRPROJ.DLL log output ended at \r\nRULE\r\n\r\n";
    for (std::size_t at = 0; (at = expected.find("RULE")) != std::string::npos;)
        expected.replace(at, 4, 74, '-');
    for (char const* variable : {"ZRPROJLOG=1", "ZRPROJLOG="}) {
        std::filesystem::remove(log);
        runSelf({variable, temporary, threeHoursEast});
        std::string text = fileBytes(log);
        EXPECT_NEAR(std::difftime(std::time(nullptr), takeTime(text, "started at ")), 5, 5) << text;
        EXPECT_NEAR(std::difftime(std::time(nullptr), takeTime(text, "ended at ")), 5, 5) << text;
        EXPECT_EQ(text, expected);
    }
    auto const once = fileBytes(log).size();
    runSelf({"ZRPROJLOG=", temporary, threeHoursEast});
    EXPECT_EQ(fileBytes(log).size(), 2 * once);
}

TEST_F(Module, NoLogWithoutTheVariable) {
    runSelf({temporary});
    EXPECT_FALSE(std::filesystem::exists(log));
}

TEST_F(Module, LogIsNotWrittenThroughALink) {
    std::filesystem::create_symlink(directory.file("target"), log);
    runSelf({"ZRPROJLOG=1", temporary});
    EXPECT_FALSE(std::filesystem::exists(directory.file("target")));
}
