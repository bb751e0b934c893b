// zrproj convert: from one kind of side file to another.
#include "cli/commands.h"
#include "cli/map_info.h"
#include "cli/text.h"
#include "cli/usage_error.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace ZrProj::Command {
namespace {

class ConvertFile : public Subcommand {
public:
    explicit ConvertFile(CLI::App& app) {
        app.add_option("IN", m_in, "A reference, RSF or world file, or an image that has them")
            ->option_text(" ")
            ->required();
        app.add_option("OUT", m_out, "The file to write, of the kind that its extension tells: zrr, rsf, wld, tfw ...")
            ->option_text(" ")
            ->required();
    }

    int run(Output&) override {
        FileFormat const* const format = formatOf(m_out);
        if (!format)
            throw UsageError(inQuotes(m_out) + " is no name of a file that can be written; end it in .zrr, .rsf, .wld "
                                               "or the like");
        for (std::string const& note : format->write(m_out, readMap(m_in)))
            std::fprintf(stderr, "zrproj: %s: %s\n", inQuotes(m_out).c_str(), note.c_str());
        return 0;
    }

private:
    std::string m_in, m_out;
};

} // namespace

std::unique_ptr<Subcommand> makeConvertFile(CLI::App& app) {
    app.footer("Example: a scanned map's world file as a reference file\n  zrproj convert map.tfw map.tif.zrr");
    return std::make_unique<ConvertFile>(app);
}

} // namespace ZrProj::Command
