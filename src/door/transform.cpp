#include "door/points.h"
#include "door/system.h"
#include "proj/projection_table.h"

using namespace ZrProj;
using namespace ZrProj::Door;

/// From map coordinates to degrees by one projection, and on to map coordinates by the other.
struct zrproj_transform {
    zrproj_system from, to;
    int threads = 0;
};

namespace {

constexpr std::array reasonNames{"converted", "far", "out of area"};
constexpr std::array failureNames{"not finite", "beyond pole", "not shown", "off the map", "off the grid"};

bool areEqual(zrproj_shift const& a, zrproj_shift const& b) {
    return a.method == b.method && a.dx == b.dx && a.dy == b.dy && a.dz == b.dz && a.rx == b.rx && a.ry == b.ry &&
           a.rz == b.rz && a.scale == b.scale && a.prime_meridian == b.prime_meridian;
}

/// Why no way is known from one system to the other; "" where nothing lies between them.
std::string separation(zrproj_parameters const& from, zrproj_parameters const& to) {
    if (!hasDatum(from) || !hasDatum(to)) {
        if (hasDatum(from) != hasDatum(to))
            return "the datum of one of the systems is not told";
    } else if (from.datum != to.datum || (from.datum == DatumTypeUserDefined && !areEqual(from.shift, to.shift))) {
        return "the systems lie on different datums";
    }
    if (from.radius != to.radius || from.flattening != to.flattening)
        return "the systems lie on different ellipsoids";
    return "";
}

Answer make(zrproj_transform& transform, zrproj_system const& from, zrproj_system const& to,
            zrproj_options const& options) {
    if (options.threads < -1)
        return badArgument("threads below -1");
    std::string const reason = separation(from.parameters, to.parameters);
    if (!reason.empty())
        return {ZRPROJ_NO_PATH, reason};
    transform.from = from;
    transform.to = to;
    transform.threads = options.threads;
    return {};
}

/// Map coordinates or degrees of a system, as degrees.
void toDegrees(zrproj_system const& system, std::span<PROJPOINT> points, std::span<Reason> reasons) {
    if (system.projection) {
        system.projection->inverse(points, reasons);
        return;
    }
    for (std::size_t i = 0; i < points.size(); ++i)
        if (hasResult(reasons[i]) && std::fabs(points[i].y) > 90)
            reasons[i] = ZRPROJ_BEYOND_POLE;
}

void fromDegrees(zrproj_system const& system, std::span<PROJPOINT> points, std::span<Reason> reasons) {
    if (system.projection) {
        system.projection->forward(points, reasons);
        return;
    }
    for (PROJPOINT& point : points)
        point.x = wrapped(point.x);
}

Answer convert(zrproj_transform const& transform, bool backwards, PointArray const& points) {
    if (Answer checked = check(points); !checked.isGood())
        return checked;
    zrproj_system const& from = backwards ? transform.to : transform.from;
    zrproj_system const& to = backwards ? transform.from : transform.to;
    convertArray(points, transform.threads, [&](std::span<PROJPOINT> block, std::span<Reason> reasons) {
        toDegrees(from, block, reasons);
        fromDegrees(to, block, reasons);
    });
    return {};
}

std::string stepText(char const* before, zrproj_system const& system) {
    return before + std::string(projectionTable[static_cast<std::size_t>(system.parameters.type)].name) + '\n';
}

std::string description(zrproj_transform const& transform) {
    std::string text;
    if (transform.from.projection)
        text += stepText("from map coordinates by ", transform.from);
    if (transform.to.projection)
        text += stepText("to map coordinates by ", transform.to);
    if (text.empty())
        return "longitudes and latitudes as they are";
    text.pop_back();
    return text;
}

} // namespace

zrproj_status zrproj_transform_create(zrproj_system const* from, zrproj_system const* to, zrproj_options const* options,
                                      zrproj_transform** transform) {
    return answerWith(transform, [&](zrproj_transform& made) {
        if (!from || !to)
            return badArgument("null pointer to a system");
        if (options && !hasKnownSize(options))
            return badArgument("options of no known size");
        return make(made, *from, *to, options ? *options : zrproj_options{});
    });
}

void zrproj_transform_destroy(zrproj_transform* transform) {
    std::unique_ptr<zrproj_transform>{transform}.reset();
}

zrproj_status zrproj_transform_describe(zrproj_transform const* transform, char* buffer, size_t size, size_t* length,
                                        double* accuracy) {
    return answer([&] {
        if (!transform)
            return badArgument("null pointer to a transform");
        give(accuracy, 0.0);
        return giveText(description(*transform), buffer, size, length);
    });
}

zrproj_status zrproj_transform_points(zrproj_transform const* transform, int backwards, double* x, double* y,
                                      ptrdiff_t stride, size_t count, unsigned char* reasons) {
    return answer([&] {
        return transform ? convert(*transform, backwards != 0, {x, y, stride, count, reasons})
                         : badArgument("null pointer to a transform");
    });
}

char const* zrproj_reason_name(zrproj_reason reason) {
    auto const index = static_cast<std::size_t>(reason);
    if (index < reasonNames.size())
        return reasonNames[index];
    bool const isFailure = index >= ZRPROJ_NOT_FINITE && index - ZRPROJ_NOT_FINITE < failureNames.size();
    return isFailure ? failureNames[index - ZRPROJ_NOT_FINITE] : "";
}
