#include "door/points.h"
#include "door/system.h"
#include "systems/datum_path.h"
#include "systems/route_text.h"

#include <cmath>

using namespace ZrProj;
using namespace ZrProj::Door;

/// From one system's coordinates to degrees from Greenwich, from one datum to the other, and on to the other system's
/// coordinates.
struct zrproj_transform {
    zrproj_system from, to;
    systems::Route route;
    systems::DatumPath path;
    int threads = 0;
};

namespace {

constexpr std::array reasonNames{"converted", "far", "out of area"};
constexpr std::array failureNames{"not finite", "beyond pole", "not shown", "off the map", "off the grid"};

Answer make(zrproj_transform& transform, zrproj_system const& from, zrproj_system const& to,
            zrproj_options const& options) {
    if (Answer checked = checkThreads(options.threads); !checked.isGood())
        return checked;
    datum::GridFolders const folders(options.grids ? options.grids : "");
    auto const isThere = [&folders](std::string_view name) { return folders.find(name).has_value(); };
    auto route = systems::routeBetween(from.definition, to.definition, isThere, options.refuse_rough != 0);
    if (auto* const none = std::get_if<systems::NoRoute>(&route))
        return {ZRPROJ_NO_PATH, std::move(none->reason)};
    transform.route = std::get<systems::Route>(std::move(route));
    auto path = systems::DatumPath::make(transform.route, folders);
    if (auto* const problem = std::get_if<systems::PathProblem>(&path))
        return {problem->isOfFile ? ZRPROJ_FILE : ZRPROJ_UNSUPPORTED, std::move(problem->reason)};
    transform.path = std::get<systems::DatumPath>(std::move(path));
    transform.from = from;
    transform.to = to;
    transform.threads = options.threads;
    return {};
}

/// What to think of places on the datum that a transform starts from, where its shift is stated for an area.
void tellOutOfArea(systems::Route const& route, std::span<PROJPOINT const> places, std::span<Reason> reasons) {
    if (!route.area)
        return;
    for (std::size_t i = 0; i < places.size(); ++i)
        if (hasResult(reasons[i]) && !route.area->contains(places[i].x, places[i].y))
            reasons[i] = std::max<Reason>(reasons[i], ZRPROJ_OUT_OF_AREA);
}

/// From datum to datum.
void carry(systems::DatumPath const& path, bool backwards, std::span<PROJPOINT> places, std::span<Reason> reasons) {
    std::array<Reason, blockPoints> shifted;
    markLost(places, reasons);
    auto const used = std::span(shifted).first(places.size());
    backwards ? path.inverse(places, used) : path.forward(places, used);
    for (std::size_t i = 0; i < places.size(); ++i)
        if (hasResult(reasons[i]) && used[i] != ZRPROJ_CONVERTED)
            reasons[i] = used[i];
}

/// From datum to datum, with the places that lie out of the way's area told by where they are on the datum that the
/// transform starts from, both ways.
void shift(zrproj_transform const& transform, bool backwards, std::span<PROJPOINT> places, std::span<Reason> reasons) {
    if (!backwards)
        tellOutOfArea(transform.route, places, reasons);
    if (!transform.path.isEmpty())
        carry(transform.path, backwards, places, reasons);
    if (backwards)
        tellOutOfArea(transform.route, places, reasons);
}

/// Rounds what came back, to 2^-26 m or 2^-42 degrees, some hundredths of a micrometre: so much more than what rounding
/// makes of a trip there and back that the next one ends at the very same numbers.
void settle(zrproj_system const& system, std::span<PROJPOINT> points) {
    int const unit = std::ilogb(system.projection->conversion().scale); // of a metre, as a power of 2
    // Numbers of this size end where the result shall end.
    double const magic = system.projection->isGeographic() ? 0x1.8p10 : std::ldexp(0x1.8p26, unit);
    for (PROJPOINT& point : points)
        point = {(point.x + magic) - magic, (point.y + magic) - magic};
}

void convertBlock(zrproj_transform const& transform, bool backwards, std::span<PROJPOINT> block,
                  std::span<Reason> reasons) {
    zrproj_system const& from = backwards ? transform.to : transform.from;
    zrproj_system const& to = backwards ? transform.from : transform.to;
    from.projection->inverse(block, reasons);
    bool const hasSteps = !transform.route.steps.empty(); // though they may leave the numbers as they are
    if (hasSteps)
        shift(transform, backwards, block, reasons);
    to.projection->forward(block, reasons);
    if (hasSteps && backwards)
        settle(to, block);
}

Answer convert(zrproj_transform const& transform, bool backwards, PointArray const& points) {
    return convertArray(points, transform.threads, [&](std::span<PROJPOINT> block, std::span<Reason> reasons) {
        convertBlock(transform, backwards, block, reasons);
    });
}

/// A line for an end of the way; none for a geographic one without a name.
std::string endText(std::string const& way, zrproj_system const& system) {
    std::string const name = calledBy(system);
    bool const isMap = !system.projection->isGeographic();
    if (name.empty())
        return isMap ? way + " map coordinates by " + methodOf(system) + '\n' : "";
    return way + ' ' + name + (isMap ? " by " + methodOf(system) : "") + '\n';
}

std::string description(zrproj_transform const& transform) {
    std::string text = endText("from", transform.from);
    for (std::string const& line : systems::linesOf(transform.route))
        text += line + '\n';
    text += endText("to", transform.to);
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
        give(accuracy, transform->route.accuracy);
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
