#include "cli/points/datum_converter.h"

#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
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

/// A datum with regression equations, and the same one with three shifts.
struct ThreeShifts {
    DatumType equations, shifts;
};

constexpr std::array threeShifts{
    ThreeShifts{DatumTypeAustralianGeodetic1966Mre, DatumTypeAustralianGeodetic1966},
    ThreeShifts{DatumTypeAustralianGeodetic1984Mre, DatumTypeAustralianGeodetic1984},
    ThreeShifts{DatumTypeCampoInchausepeArgentinaMre, DatumTypeCampoInchausepeArgentina},
    ThreeShifts{DatumTypeCorregoAlegreBrazilMre, DatumTypeCorregoAlegreBrazil},
    ThreeShifts{DatumTypeEuropean1950Mre, DatumTypeEuropean1950Mean},
    ThreeShifts{DatumTypeNad1927ConusMre, DatumTypeNad1927Conus},
    ThreeShifts{DatumTypeNad1927CanadaMre, DatumTypeNad1927CanadaMean},
    ThreeShifts{DatumTypeSouthAmerican1969Mre, DatumTypeSouthAmerican1969},
};

/// Equations are right to metres, and three shifts to 40 metres where equations are; what is further apart has run
/// away.
bool hasRunAway(DATUMPOINT const& point, DATUMPOINT const& byShifts) {
    constexpr double degree = 3.14159265358979 / 180, metresADegree = 111200, most = 50;
    double const north = point.y - byShifts.y;
    double const east = std::remainder(point.x - byShifts.x, 360) * std::cos(byShifts.y * degree);
    return !(metresADegree * std::hypot(east, north) <= most);
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
    DATUMXFORM xform = request(shift);
    DATUMPOINT point{0, 0};
    if (!m_transform.Create(&xform) || !m_transform.Convert(&point, 1))
        throw UsageError("there is no conversion from \"" + shift.from.name + "\" to \"" + shift.to.name + '"');
    auto const row = std::find_if(threeShifts.begin(), threeShifts.end(),
                                  [&](ThreeShifts const& pair) { return pair.equations == shift.from.type; });
    if (row == threeShifts.end())
        return;
    xform.Source = row->shifts;
    m_threeShifts.Create(&xform);
}

void DatumConverter::compareWithThreeShifts(std::span<PROJPOINT const> points, std::span<PointState> states) {
    m_compared.clear();
    for (PROJPOINT const& point : points)
        m_compared.push_back({point.x, point.y});
    m_threeShifts.Convert(m_compared.data(), static_cast<int>(m_compared.size()));
    for (std::size_t i = 0; i < points.size(); ++i)
        if (hasResult(states[i]) && hasRunAway(m_points[i], m_compared[i]))
            states[i] = PointState::OffArea;
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
    if (m_threeShifts.IsCreated())
        compareWithThreeShifts(points, states);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {m_points[i].x, m_points[i].y};
        if (hasResult(states[i]) && points[i].x == DBL_MAX)
            states[i] = PointState::NoResult;
    }
}

} // namespace ZrProj::Command
