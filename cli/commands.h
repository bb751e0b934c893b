// The subcommands. Each adds its options to its part of the command line, and is run when it was the one given.
#pragma once

#include "cli/text/output.h"

#include <memory>

namespace CLI {
class App;
} // namespace CLI

namespace ZrProj::Command {

class Subcommand {
public:
    virtual ~Subcommand() = default;
    /// Returns the exit status. Throws UsageError for options that cannot be followed.
    virtual int run(Output& output) = 0;
};

std::unique_ptr<Subcommand> makeDatum(CLI::App& app);
std::unique_ptr<Subcommand> makeDatumConversion(CLI::App& app); // datum's own, without its subcommands
std::unique_ptr<Subcommand> makeForward(CLI::App& app);
std::unique_ptr<Subcommand> makeGrid(CLI::App& app);
std::unique_ptr<Subcommand> makeGeoref(CLI::App& app);
std::unique_ptr<Subcommand> makeInverse(CLI::App& app);
std::unique_ptr<Subcommand> makeConvertFile(CLI::App& app);
std::unique_ptr<Subcommand> makeInfo(CLI::App& app);
std::unique_ptr<Subcommand> makeLocate(CLI::App& app);
std::unique_ptr<Subcommand> makeList(CLI::App& app);
std::unique_ptr<Subcommand> makeMap(CLI::App& app);
std::unique_ptr<Subcommand> makeShow(CLI::App& app);

} // namespace ZrProj::Command
