#include "cli/projection/parameter_rows.h"

#include <array>
#include <cmath>

namespace ZrProj::Command {
namespace {

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
        result.insert(result.end(), {ProjParamXOrg, ProjParamYOrg});
    return result;
}

} // namespace

void addParameterRows(Table& table, PROJDATA const& record) {
    table.rows.push_back({"Projection", projectionName(record.Type), "--projection " + std::to_string(record.Type)});
    for (int id : shownParameters(record.Type)) {
        Parameter const& shown = parameter(id);
        bool const settable = ProjUsesParam(record.Type, id);
        table.rows.push_back(
            {shown.name, parameterText(record, shown) + anglePartsText(record, shown), settable ? shown.option : ""});
    }
}

} // namespace ZrProj::Command
