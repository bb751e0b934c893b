// Longitudes and latitudes from one datum to another by the catalogue's methods, with a reason for each point.
#include "datum/conversion.h"
#include "datum/method_table.h"
#include "datum/mre.h"
#include "datum/nadcon.h"
#include "datum/nadcon_grid.h"
#include "door/parameters.h"
#include "door/points.h"
#include "host/platform.h"

#include <cfloat>
#include <limits>
#include <optional>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::Door;

struct zrproj_datum_shift {
    bool leavesPoints = false;
    datum::Conversion conversion;
    std::optional<datum::Conversion> byShifts; // instead of equations, which may run away
    std::optional<NadconGrid> grid;            // that must cover a point
};

namespace {

/// As many points as a grid is read for at a time.
constexpr std::size_t shiftedAtOnce = 16384;
constexpr DATUMPOINT mark{DBL_MAX, DBL_MAX};

std::string nameOf(DatumType type) {
    std::array<char, 64> name{};
    DatGetDatumName(type, name.data());
    return inQuotes(name.data());
}

/// Why nothing leads to a datum.
std::string oneWay(DatumType type) {
    DatumMethod method = DatumMethodNone;
    DatGetDatumMethod(type, &method);
    return "points can be converted from " + nameOf(type) + ", not to it: " + datumMethodRow(method)->name +
           " works one way only";
}

DATUMXFORM requestOf(zrproj_parameters const& from, zrproj_parameters const& to) {
    DATUMXFORM request{};
    request.Source = static_cast<DatumType>(from.datum);
    request.Destination = static_cast<DatumType>(to.datum);
    if (request.Source == DatumTypeUserDefined)
        request.SourceParams = shiftOf(from);
    if (request.Destination == DatumTypeUserDefined)
        request.DestinationParams = shiftOf(to);
    request.DestinationParams.bFromWGS84 = true;
    return request;
}

/// Both files of the grid that shifts a datum must be there; the first one's header counts.
Answer findGrid(zrproj_datum_shift& shift, DatumType type) {
    std::string const path = executableDirectory() + '/' + nadconGridName(type);
    for (char const* extension : {".LAS", ".LOS"}) {
        std::string const file = path + extension;
        if (!PlainFile(file).isOpen())
            return fileFailure(nameOf(type) + " needs a grid that is not there: " + file);
        auto const found = findNadconGrid(file);
        if (!found.grid)
            return fileFailure(found.reason);
        if (!shift.grid)
            shift.grid = found.grid;
    }
    return {};
}

Answer make(zrproj_datum_shift& shift, DATUMXFORM request) {
    std::array<char, 260> reason{};
    if (request.Source == DatumTypeNone || request.Destination == DatumTypeNone)
        return {ZRPROJ_NO_PATH, "a datum is not told"};
    if (DatCheckParams(&request, reason.data(), false) != 0)
        return badDefinition(reason.data());
    shift.leavesPoints = request.Source == request.Destination && request.Source != DatumTypeUserDefined;
    if (shift.leavesPoints)
        return {};
    shift.conversion = datum::prepareConversion(request);
    if (!shift.conversion.isDefined)
        return {ZRPROJ_NO_PATH, DatReversible(request.Destination) || request.Destination == DatumTypeUserDefined
                                    ? "a caller's own datum cannot go by that method"
                                    : oneWay(request.Destination)};
    if (shift.conversion.grid)
        return findGrid(shift, request.Source);
    if (auto const other = datum::threeShiftsOf(request.Source); other != DatumTypeNone) {
        request.Source = other;
        shift.byShifts = datum::prepareConversion(request);
    }
    return {};
}

/// What is known before a point is shifted.
Reason reasonBefore(zrproj_datum_shift const& shift, PROJPOINT const& point) {
    Reason const given = reasonOfInput(point);
    if (!hasResult(given))
        return given;
    if (!(std::fabs(point.y) <= 90))
        return ZRPROJ_BEYOND_POLE;
    bool const isCovered = !shift.grid || shift.grid->locate({wrapped(point.x), point.y});
    return isCovered ? ZRPROJ_CONVERTED : ZRPROJ_OFF_THE_GRID;
}

Reason reasonAfter(DATUMPOINT const& shifted, DATUMPOINT const* byShifts) {
    if (levels::isMarked(shifted))
        return ZRPROJ_OFF_THE_MAP;
    return byShifts && datum::haveRunAway(shifted, *byShifts) ? ZRPROJ_OUT_OF_AREA : ZRPROJ_CONVERTED;
}

bool run(datum::Conversion const& conversion, std::span<DATUMPOINT> points) {
    bool marked = false;
    return datum::convert(conversion, points, marked);
}

/// Shifts the points from `begin` to `end`. False, with nothing written, where a grid cannot be read.
bool shiftRange(zrproj_datum_shift const& shift, PointArray const& points, std::size_t begin, std::size_t end) {
    std::vector<DATUMPOINT> shifted;
    std::vector<Reason> reasons;
    for (std::size_t i = begin; i < end; ++i) {
        PROJPOINT const point = points.load(i);
        reasons.push_back(reasonBefore(shift, point));
        shifted.push_back(hasResult(reasons.back()) ? DATUMPOINT{point.x, point.y} : mark);
    }
    std::vector<DATUMPOINT> byShifts = shift.byShifts ? shifted : std::vector<DATUMPOINT>();
    if (!shift.leavesPoints && !run(shift.conversion, shifted))
        return false;
    if (shift.byShifts)
        run(*shift.byShifts, byShifts);
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (std::size_t i = 0; i < shifted.size(); ++i) {
        if (hasResult(reasons[i]))
            reasons[i] = reasonAfter(shifted[i], shift.byShifts ? &byShifts[i] : nullptr);
        bool const isGood = hasResult(reasons[i]);
        points.store(begin + i, isGood ? PROJPOINT{shifted[i].x, shifted[i].y} : PROJPOINT{none, none});
    }
    if (points.reasons)
        std::ranges::copy(reasons, points.reasons + begin);
    return true;
}

Answer convert(zrproj_datum_shift const& shift, PointArray const& points) {
    if (Answer checked = check(points); !checked.isGood())
        return checked;
    for (std::size_t begin = 0; begin < points.count; begin += shiftedAtOnce)
        if (!shiftRange(shift, points, begin, std::min(points.count, begin + shiftedAtOnce)))
            return fileFailure("a file of its grid ends too early");
    return {};
}

} // namespace

zrproj_status zrproj_datum_shift_create(zrproj_parameters const* from, zrproj_parameters const* to,
                                        zrproj_datum_shift** shift) {
    return answerWith(shift, [&](zrproj_datum_shift& made) {
        return hasKnownSize(from) && hasKnownSize(to) ? make(made, requestOf(*from, *to))
                                                      : badArgument("parameters of no known size");
    });
}

void zrproj_datum_shift_destroy(zrproj_datum_shift* shift) {
    std::unique_ptr<zrproj_datum_shift>{shift}.reset();
}

zrproj_status zrproj_datum_shift_points(zrproj_datum_shift const* shift, double* x, double* y, ptrdiff_t stride,
                                        size_t count, unsigned char* reasons) {
    return answer([&] {
        return shift ? convert(*shift, {x, y, stride, count, reasons}) : badArgument("null pointer to a datum shift");
    });
}
