// zrproj show: the completed parameters of a projection.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/model/parameters.h"
#include "cli/model/zones.h"
#include "cli/text/usage_error.h"

namespace ZrProj::Command {
namespace {

class Show : public Subcommand {
public:
    explicit Show(CommandLine line) {
        m_projection.addTo(line);
        m_projection.addParametersTo(line);
    }

    int run(Output& output) override {
        ProjectionChoice const choice = m_projection.choice();
        if (choice.zonePerPoint)
            throw UsageError("--utm auto is one projection for each zone; name a zone to see it");
        PROJDATA record = choice.record;
        CProjector projector(&record);
        if (record.Type != ProjTypeUnprojectedLatLong && !projector.GetInfo(&record))
            throw UsageError("the projection cannot be made");
        Table table{{}, "lll", {}};
        addParameterRows(table, record);
        table.write(output);
        if (auto definition = zoneDefinition({record.Type, record.Zone})) {
            definition->Scale = record.Scale;
            writeDefinition(output, *definition);
        }
        return 0;
    }

private:
    static void writeDefinition(Output& output, PROJDATA const& definition) {
        Table table{{}, "lll", {}};
        addParameterRows(table, definition);
        output << "\nThe zone is defined as\n\n";
        table.write(output);
    }

    ProjectionOptions m_projection;
};

} // namespace

std::unique_ptr<Subcommand> makeShow(CommandLine line) {
    line.footer(
        "Example: what a State Plane zone is made of\n  zrproj show --state-plane \"California I\" --year 1927");
    return std::make_unique<Show>(line);
}

} // namespace ZrProj::Command
