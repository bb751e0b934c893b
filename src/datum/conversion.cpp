#include "datum/conversion.h"

#include "datum/catalogue.h"
#include "datum/method_table.h"
#include "datum/nadcon.h"

#include <algorithm>
#include <array>
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

void prepareStep(Step& step, MethodSet const& methods, DatumType type, DATUM2WGS84 const& end) {
    if (end.Method == DatumMethodMolodensky)
        methods.molodensky(step, end);
    else if (end.Method == DatumMethodBursaWolf)
        methods.bursaWolf(step, end);
    else if (end.Method == DatumMethodMRE)
        methods.regression(step, type);
}

bool shiftByConus(DATUMPOINT* points, std::size_t count) {
    return convertNadcon("conus", points, count);
}
bool shiftByPrvi(DATUMPOINT* points, std::size_t count) {
    return convertNadcon("prvi", points, count);
}

void run(Step const& step, Block& block) {
    if (step.run)
        step.run(step, block);
}

template <class Work> void forEachBlock(std::span<DATUMPOINT> points, Work const& work) {
    while (!points.empty()) {
        auto const count = std::min<std::size_t>(points.size(), blockPoints);
        work(points.data(), static_cast<int>(count));
        points = points.subspan(count);
    }
}

/// A grid takes many points at once, since each time it reads files: turns are kept until it has shifted them.
constexpr std::size_t gridPoints = 16384;

bool convertByGrid(Conversion const& c, std::span<DATUMPOINT> points, bool& marked) {
    auto const& methods = *c.methods;
    std::array<signed char, gridPoints> turns; // in full turns
    Block block;
    auto turn = turns.begin();
    forEachBlock(points, [&](DATUMPOINT* p, int count) {
        methods.read(block, p, count);
        methods.cut(block);
        turn = std::transform(block.turn, block.turn + count, turn, [](double t) { return t / 360; });
        marked |= methods.write(block, p);
    });
    if (!c.grid(points.data(), points.size()))
        return false;
    turn = turns.begin();
    forEachBlock(points, [&](DATUMPOINT* p, int count) {
        methods.read(block, p, count);
        run(c.destination, block);
        std::transform(turn, turn + count, block.turn, [](signed char t) { return 360.0 * t; });
        turn += count;
        methods.restore(block);
        marked |= methods.write(block, p);
    });
    return true;
}

} // namespace

Conversion prepareConversion(DATUMXFORM const& request) noexcept {
    Conversion result;
    auto const source = sourceEnd(request), destination = destinationEnd(request);
    if (!source || !destination)
        return result;
    result.isDefined = true;
    result.methods = &methodsInUse();
    prepareStep(result.source, *result.methods, request.Source, *source);
    prepareStep(result.destination, *result.methods, request.Destination, *destination);
    if (source->Method == DatumMethodNadcon)
        result.grid = request.Source == DatumTypeNad1927ConusNadcon ? shiftByConus : shiftByPrvi;
    return result;
}

bool convert(Conversion const& c, std::span<DATUMPOINT> points, bool& marked) {
    if (c.grid) {
        for (; !points.empty(); points = points.subspan(std::min(points.size(), gridPoints)))
            if (!convertByGrid(c, points.first(std::min(points.size(), gridPoints)), marked))
                return false;
        return true;
    }
    Block block;
    forEachBlock(points, [&](DATUMPOINT* p, int count) {
        c.methods->read(block, p, count);
        c.methods->cut(block);
        run(c.source, block);
        run(c.destination, block);
        c.methods->restore(block);
        marked |= c.methods->write(block, p);
    });
    return true;
}

} // namespace ZrProj::datum
