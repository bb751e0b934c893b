// zrproj convert: from one kind of side file to another, and to and from the tags of TIFF files.
#include "cli/commands.h"
#include "cli/map_info.h"
#include "cli/text.h"
#include "cli/tiff_format.h"
#include "cli/usage_error.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace ZrProj::Command {
namespace {

class ConvertFile : public Subcommand {
public:
    explicit ConvertFile(CLI::App& app) {
        app.add_option("IN", m_in,
                       "A reference, RSF or world file, or an image: a TIFF file, or one that has such files")
            ->option_text(" ")
            ->required();
        app.add_option("OUT", m_out,
                       "The file to write, of the kind that its extension tells: zrr, rsf, wld, tfw ...; or a TIFF "
                       "file that is "
                       "there, whose tags are set")
            ->option_text(" ")
            ->required();
    }

    int run(Output&) override {
        FileFormat const* const format = isTiffFile(m_out) ? &tiffFormat() : formatOf(m_out);
        if (!format)
            throw UsageError(inQuotes(m_out) + " is no TIFF file that is there, and no name of a side file; end it in "
                                               ".zrr, .rsf, .wld or the like");
        for (std::string const& note : format->write(m_out, readMap(m_in)))
            std::fprintf(stderr, "zrproj: %s: %s\n", inQuotes(m_out).c_str(), note.c_str());
        return 0;
    }

private:
    std::string m_in, m_out;
};

} // namespace

std::unique_ptr<Subcommand> makeConvertFile(CLI::App& app) {
    app.footer("Example: a scanned map's world file as a reference file\n  zrproj convert map.tfw map.tif.zrr\n"
               "Example: all that is known of a scanned map, in its own tags\n  zrproj convert map.tif map.tif");
    return std::make_unique<ConvertFile>(app);
}

} // namespace ZrProj::Command
