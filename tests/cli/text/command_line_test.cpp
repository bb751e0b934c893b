#include "cli/text/command_line.h"

#include "cli/text/usage_error.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

/// A program with a subcommand of each kind of thing.
struct Program {
    ProgramLine line{"tool", "Does things.", "tool 1"};
    CommandLine draw = line.command().subcommand("draw", "Draw them");
    std::string what, size = "7", tone;
    std::vector<std::string> files, extras;
    bool big = false;
    Option whatOption = draw.argument("WHAT", what, "What to draw");
    Option sizeOption = draw.inGroup("Looks").option("-s,--size", size, "N", "How large");
    Option toneOption = draw.inGroup("Looks").option("--tone", tone, "TONE", "Of what tone");
    Option bigOption = draw.flag("--big", big, "Larger");
    Option quietOption = draw.flag("-q,--quiet", "Say nothing");

    Program() {
        draw.arguments("FILE", files, "What to draw on");
        draw.repeatedOption("--extra", extras, "EXTRA", "More");
        whatOption.require();
        toneOption.allowNoValue();
        sizeOption.showStandard();
        draw.footer("That is all.");
    }

    std::string read(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "tool");
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        return line.read(static_cast<int>(pointers.size()), pointers.data());
    }
};

TEST(CommandLine, ValuesFlagsAndWhatIsNotGiven) {
    Program program;
    EXPECT_EQ(program.read({"draw", "house", "-s", "9", "a", "b", "--big"}), "");
    EXPECT_TRUE(program.draw.isGiven());
    EXPECT_EQ(program.what, "house");
    EXPECT_EQ(program.size, "9");
    EXPECT_EQ(program.files, (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(program.big && program.bigOption.isGiven() && program.sizeOption.isGiven());
    EXPECT_FALSE(program.toneOption.isGiven() || program.quietOption.isGiven());
    EXPECT_EQ(program.sizeOption.name(), "--size");
}

TEST(CommandLine, RepeatedOptionsTakeOneValueEach) {
    Program program;
    program.read({"draw", "--extra", "x", "house", "--extra=y z", "--tone"});
    EXPECT_EQ(program.extras, (std::vector<std::string>{"x", "y z"}));
    EXPECT_EQ(program.what, "house");
    EXPECT_TRUE(program.toneOption.isGiven());
    EXPECT_EQ(program.tone, "");
}

TEST(CommandLine, WhatCannotBeFollowedIsRefused) {
    for (std::vector<std::string> const& arguments : {std::vector<std::string>{"draw"},
                                                      {"draw", "x", "--size"},
                                                      {"draw", "x", "--wild"},
                                                      {"draw", "x", "--big=1"},
                                                      {"wild"}}) {
        std::string const message = messageOf<UsageError>([&] { Program().read(arguments); });
        EXPECT_TRUE(message.ends_with("; \"tool --help\" tells more")) << arguments.back() << ": " << message;
    }
    EXPECT_EQ(messageOf<UsageError>([] { EXPECT_EQ(Program().read({}), ""); }), "");
}

TEST(CommandLine, HelpListsGroupsAndStandardValues) {
    std::string const help = Program().read({"draw", "--help"});
    for (char const* part : {"Draw them\n", "Usage: tool draw [OPTIONS] WHAT [FILE...]\n", "-s,--size N=7 ", "Looks:\n",
                             "--tone TONE", "-q,--quiet", "That is all.\n"})
        EXPECT_NE(help.find(part), std::string::npos) << part << " in\n" << help;
    EXPECT_EQ(Program().read({"--version"}), "tool 1\n");
}

} // namespace
} // namespace ZrProj::Command
