#include "cli/datum_converter.h"

#include "cli/text.h"
#include "cli/usage_error.h"

#include <cfloat>
#include <cmath>
#include <filesystem>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

DATUMXFORM request(DatumShift const& shift) {
    DATUMXFORM result = {};
    result.Source = shift.from.type;
    result.Destination = shift.to.type;
    result.SourceParams = shift.from.record;
    result.DestinationParams = shift.to.record;
    result.SourceParams.bFromWGS84 = false;
    result.DestinationParams.bFromWGS84 = true;
    return result;
}

/// The longitude as grids have it.
double within180(double longitude) {
    return std::fabs(longitude) > 180 ? std::remainder(longitude, 360) : longitude;
}

bool isSameOfCatalogue(DatumShift const& shift) {
    return shift.from.type == shift.to.type && !shift.from.isOwn();
}

/// The header of the grid that a datum's points need, both of its files being there.
GridHeader openGrid(Datum const& datum) {
    std::string const path = gridDirectory() + gridName(datum.type);
    for (char const* extension : {".LAS", ".LOS"})
        if (!std::filesystem::exists(path + extension))
            throw UsageError('"' + datum.name + "\" needs a grid that is not there: " + path + extension);
    GridFile const other(path + ".LOS");
    return GridFile(path + ".LAS").header();
}

} // namespace

DatumConverter::DatumConverter(DatumShift const& shift) {
    if (isSameOfCatalogue(shift))
        return; // points stay as they are
    if (!shift.to.isReversible())
        throw UsageError("points can be converted from \"" + shift.to.name +
                         "\", not to it: " + std::string(methodName(shift.to.method())) + " works one way only");
    if (shift.from.method() == DatumMethodNadcon)
        m_grid = openGrid(shift.from);
    DATUMXFORM const xform = request(shift);
    DATUMPOINT point{0, 0};
    if (!m_transform.Create(&xform) || !m_transform.Convert(&point, 1))
        throw UsageError("there is no conversion from \"" + shift.from.name + "\" to \"" + shift.to.name + '"');
}

void DatumConverter::convert(std::span<PROJPOINT> points, std::span<PointState> states) {
    if (!m_transform.IsCreated() || points.empty())
        return;
    m_points.clear();
    for (std::size_t i = 0; i < points.size(); ++i) {
        bool const given = hasResult(states[i]);
        m_points.push_back(given ? DATUMPOINT{points[i].x, points[i].y} : DATUMPOINT{DBL_MAX, DBL_MAX});
        if (given && m_grid && !m_grid->covers(within180(points[i].x), points[i].y))
            states[i] = PointState::OffGrid;
    }
    if (!m_transform.Convert(m_points.data(), static_cast<int>(m_points.size())))
        throw std::runtime_error("the datum conversion fails: a file of its grid ends too early");
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {m_points[i].x, m_points[i].y};
        if (hasResult(states[i]) && points[i].x == DBL_MAX)
            states[i] = PointState::NoResult;
    }
}

} // namespace ZrProj::Command
