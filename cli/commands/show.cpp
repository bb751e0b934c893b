// zrproj show: the completed parameters of a projection.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/model/parameters.h"
#include "cli/model/zones.h"
#include "cli/text/numbers.h"
#include "cli/text/usage_error.h"

namespace ZrProj::Command {
namespace {

class Show : public Subcommand {
public:
    explicit Show(CommandLine line) {
        m_projection.addTo(line);
        m_asOption = line.inGroup("Output").option("--as", m_as, "FORM",
                                                   "A definition of the system instead: wkt2, wkt1, esri, proj, "
                                                   "projjson, code or name");
        m_projection.addParametersTo(line);
    }

    int run(Output& output) override {
        ProjectionChoice const choice = m_projection.choice();
        if (choice.zonePerPoint)
            throw UsageError("--utm auto is one projection for each zone; name a zone to see it");
        if (m_asOption.isGiven()) {
            output << systemOf(choice)->text(formatNamed(m_as)) << '\n';
            return 0;
        }
        if (choice.system) {
            writeSystem(output, *choice.system);
            return 0;
        }
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
    static SystemPointer systemOf(ProjectionChoice const& choice) {
        return choice.system ? choice.system : systemOfRecord(choice.record);
    }

    static std::string figureText(System const& system) {
        double radius = 0, flattening = 0;
        zrproj_system_ellipsoid(system.handle(), &radius, &flattening);
        return numberText(radius) + " metres, " + (flattening == 0 ? "a sphere" : "1/" + numberText(1 / flattening));
    }

    static void writeSystem(Output& output, System const& system) {
        Table table{{}, "ll", {}};
        table.rows.push_back({"System", system.title()});
        if (!system.isGeographic()) {
            table.rows.push_back({"Longitude, latitude", system.geographic()->title()});
            std::string_view const words = system.unit().words;
            table.rows.push_back(
                {"Unit",
                 std::string(words) +
                     (system.unit().name.empty() ? " of " + numberText(system.unit().metres) + " metres" : "")});
        }
        table.rows.push_back({"Ellipsoid", figureText(system)});
        double west = 0, south = 0, east = 0, north = 0;
        if (zrproj_system_area(system.handle(), &west, &south, &east, &north) == ZRPROJ_OK)
            table.rows.push_back({"Area of use", numberText(west) + " to " + numberText(east) + ", " +
                                                     numberText(south) + " to " + numberText(north) + " degrees"});
        table.write(output);
    }

    static void writeDefinition(Output& output, PROJDATA const& definition) {
        Table table{{}, "lll", {}};
        addParameterRows(table, definition);
        output << "\nThe zone is defined as\n\n";
        table.write(output);
    }

    ProjectionOptions m_projection;
    Option m_asOption;
    std::string m_as;
};

} // namespace

std::unique_ptr<Subcommand> makeShow(CommandLine line) {
    line.footer("Examples: what a State Plane zone is made of; a coordinate system as well-known text\n"
                "  zrproj show --state-plane \"California I\" --year 1927\n  zrproj show --crs EPSG:28992 --as wkt2");
    return std::make_unique<Show>(line);
}

} // namespace ZrProj::Command
