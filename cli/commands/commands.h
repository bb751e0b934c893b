// The subcommands. Each adds its options to its part of the command line, and is run when it was the one given.
#pragma once

#include "cli/text/command_line.h"
#include "cli/text/output.h"

#include <memory>

namespace ZrProj::Command {

class Subcommand {
public:
    virtual ~Subcommand() = default;
    /// Returns the exit status. Throws UsageError for options that cannot be followed.
    virtual int run(Output& output) = 0;
};

std::unique_ptr<Subcommand> makeDatum(CommandLine line);
std::unique_ptr<Subcommand> makeDatumConversion(CommandLine line); // datum's own, without its subcommands
std::unique_ptr<Subcommand> makeForward(CommandLine line);
std::unique_ptr<Subcommand> makeGrid(CommandLine line);
std::unique_ptr<Subcommand> makeGeoref(CommandLine line);
std::unique_ptr<Subcommand> makeInverse(CommandLine line);
std::unique_ptr<Subcommand> makeConvertFile(CommandLine line);
std::unique_ptr<Subcommand> makeIdentify(CommandLine line);
std::unique_ptr<Subcommand> makeInfo(CommandLine line);
std::unique_ptr<Subcommand> makeLocate(CommandLine line);
std::unique_ptr<Subcommand> makeList(CommandLine line);
std::unique_ptr<Subcommand> makeMap(CommandLine line);
std::unique_ptr<Subcommand> makeShow(CommandLine line);
std::unique_ptr<Subcommand> makeTransform(CommandLine line);

} // namespace ZrProj::Command
