#include "datum/conversion.h"

#include "datum/catalogue.h"
#include "datum/method_table.h"
#include "datum/nadcon.h"
#include "levels/level.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <optional>

namespace ZrProj::datum {
namespace {

/// One end of a request: how it is carried to WGS 84, or from it.
using End = std::optional<DATUM2WGS84>;

/// The caller's own record, where its method can be used for one. Its flag may be any byte.
End ownEnd(DATUM2WGS84 const& record) {
    if (!datumMethodIs(record.Method, &DatumMethodRow::isOwn))
        return {};
    DATUM2WGS84 end = record;
    unsigned char flag = 0;
    std::memcpy(&flag, &record.bFromWGS84, 1);
    end.bFromWGS84 = flag != 0;
    completeFigures(end);
    return end;
}

End catalogueEnd(DatumRow const& row, bool fromWgs84) {
    if (row.type == DatumTypeNone)
        return {};
    DATUM2WGS84 end{};
    fillRecord(end, row);
    end.bFromWGS84 = fromWgs84;
    return end;
}

End sourceEnd(DATUMXFORM const& request) {
    if (request.Source == DatumTypeUserDefined)
        return ownEnd(request.SourceParams);
    return catalogueEnd(datumRow(request.Source), false);
}

End destinationEnd(DATUMXFORM const& request) {
    if (request.Destination == DatumTypeUserDefined)
        return ownEnd(request.DestinationParams);
    return catalogueEnd(twoWayDatumRow(request.Destination), true);
}

/// Empty for a method that is not computed.
Step stepOf(MethodSet const& methods, DatumType type, DATUM2WGS84 const& end) {
    auto const row =
        std::ranges::find(datumMethodTable, end.Method, &DatumMethodRow::method) - datumMethodTable.begin();
    auto const make = methods.steps[row];
    return make ? make(end, type) : Step{};
}

template <DatumType type> bool shiftByGrid(DATUMPOINT* points, std::size_t count) {
    return convertNadcon(nadconGridName(type), points, count);
}

/// Whether a point was marked.
template <std::size_t count>
bool run(MethodSet const& methods, levels::Stage const (&stages)[count], std::span<DATUMPOINT> points) {
    return methods.driver(stages, count, levels::pointsOf(points.data(), points.size()), {}).lost;
}

/// A grid takes many points at once, since each time it reads files: turns are kept until it has shifted them.
constexpr std::size_t gridPoints = 16384;

/// What the longitude is cut by, in full turns.
signed char turnOf(double lon) {
    double const rest = std::fmod(lon, 360.0);
    return rest > 180 ? 1 : rest < -180 ? -1 : 0;
}

bool convertByGrid(Conversion const& c, std::span<DATUMPOINT> points, bool& marked) {
    auto const& methods = *c.methods;
    std::array<signed char, gridPoints> turns;
    std::ranges::transform(points, turns.begin(), turnOf, &DATUMPOINT::x);
    marked |= run(methods, {{methods.cut, nullptr}}, points);
    if (!c.grid(points.data(), points.size()))
        return false;
    marked |= run(methods, {c.destination.stage()}, points);
    std::ranges::transform(points, turns, points.begin(), [](DATUMPOINT p, signed char turn) {
        return DATUMPOINT{p.x + 360.0 * turn, p.y};
    });
    marked |= run(methods, {{methods.normalise, nullptr}}, points);
    return true;
}

} // namespace

Conversion prepareConversion(DATUMXFORM const& request) noexcept {
    Conversion result;
    auto const source = sourceEnd(request), destination = destinationEnd(request);
    if (!source || !destination)
        return result;
    result.isDefined = true;
    result.methods = &levels::operationsInUse<MethodSet>();
    result.source = stepOf(*result.methods, request.Source, *source);
    result.destination = stepOf(*result.methods, request.Destination, *destination);
    if (source->Method == DatumMethodNadcon)
        result.grid = request.Source == DatumTypeNad1927ConusNadcon
                          ? shiftByGrid<DatumTypeNad1927ConusNadcon>
                          : shiftByGrid<DatumTypeNad1927PuertoRicoVirginIslandsNadcon>;
    return result;
}

bool convert(Conversion const& c, std::span<DATUMPOINT> points, bool& marked) {
    if (c.grid) {
        for (; !points.empty(); points = points.subspan(std::min(points.size(), gridPoints)))
            if (!convertByGrid(c, points.first(std::min(points.size(), gridPoints)), marked))
                return false;
        return true;
    }
    auto const& methods = *c.methods;
    marked |= run(
        methods, {{methods.cut, nullptr}, c.source.stage(), c.destination.stage(), {methods.restore, nullptr}}, points);
    return true;
}

} // namespace ZrProj::datum
