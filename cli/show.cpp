// zrproj show: the completed parameters of a projection.
#include "cli/commands.h"
#include "cli/parameters.h"
#include "cli/projection_options.h"
#include "cli/state_plane.h"
#include "cli/table.h"
#include "cli/usage_error.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr int falseEastingId = 3, falseNorthingId = 4;

/// An angle in degrees, minutes and seconds, "" for one of whole degrees.
std::string anglePartsText(PROJDATA const& record, Parameter const& parameter) {
    bool const isAngle = parameter.quantity == Quantity::Longitude || parameter.quantity == Quantity::Latitude ||
                         parameter.quantity == Quantity::Azimuth;
    double value = 0;
    std::array<char, 64> text{};
    if (!isAngle || !ProjGetParam(&record, parameter.id, &value) || value == std::floor(value) ||
        !DegreesToLatLon(value, text.data(), static_cast<int>(text.size()), AngleTextFormatDegreesMinutesSeconds, 4,
                         'd'))
        return "";
    return std::string(" (") + text.data() + "\")";
}

/// The parameters that a type uses, and the false origin, which UTM has without being asked.
std::vector<int> shownParameters(ProjType type) {
    std::vector<int> result = usedParameters(type);
    if (type == ProjTypeUniversalTransverseMercator)
        result.insert(result.end(), {falseEastingId, falseNorthingId});
    return result;
}

void addRows(Table& table, PROJDATA const& record) {
    table.rows.push_back({"Projection", projectionName(record.Type), "--projection " + std::to_string(record.Type)});
    for (int id : shownParameters(record.Type)) {
        Parameter const& shown = parameter(id);
        bool const settable = ProjUsesParam(record.Type, id);
        table.rows.push_back(
            {shown.name, parameterText(record, shown) + anglePartsText(record, shown), settable ? shown.option : ""});
    }
}

class Show : public Subcommand {
public:
    explicit Show(CLI::App& app) {
        m_projection.addTo(app);
        m_projection.addParametersTo(app);
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
        addRows(table, record);
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
        addRows(table, definition);
        output << "\nThe zone is defined as\n\n";
        table.write(output);
    }

    ProjectionOptions m_projection;
};

} // namespace

std::unique_ptr<Subcommand> makeShow(CLI::App& app) {
    app.footer("Example: what a State Plane zone is made of\n  zrproj show --state-plane \"California I\" --year 1927");
    return std::make_unique<Show>(app);
}

} // namespace ZrProj::Command
