#include "door/points.h"
#include "door/system.h"
#include "systems/datum_link.h"
#include "systems/text/number.h"

using namespace ZrProj;
using namespace ZrProj::Door;

/// From one system's coordinates to degrees from Greenwich, and on to the other's.
struct zrproj_transform {
    zrproj_system from, to;
    systems::DatumLink link;
    int threads = 0;
};

namespace {

constexpr std::array reasonNames{"converted", "far", "out of area"};
constexpr std::array failureNames{"not finite", "beyond pole", "not shown", "off the map", "off the grid"};

/// Why no way is known from one system to the other.
std::string separation(systems::Datum const& from, systems::Datum const& to) {
    if (from.name == to.name)
        return "the systems lie on different ellipsoids or shifts of the datum " + from.name;
    return "the systems lie on different datums: " + from.name + " and " + to.name;
}

Answer make(zrproj_transform& transform, zrproj_system const& from, zrproj_system const& to,
            zrproj_options const& options) {
    if (options.threads < -1)
        return badArgument("threads below -1");
    auto link = systems::linkBetween(from.definition.datum, to.definition.datum);
    if (!link)
        return {ZRPROJ_NO_PATH, separation(from.definition.datum, to.definition.datum)};
    if (options.refuse_rough && link->accuracy > 1)
        return {ZRPROJ_NO_PATH, link->told + " to no more than " + systems::numberText(link->accuracy) + " m"};
    transform.from = from;
    transform.to = to;
    transform.link = *std::move(link);
    transform.threads = options.threads;
    return {};
}

Answer convert(zrproj_transform const& transform, bool backwards, PointArray const& points) {
    if (Answer checked = check(points); !checked.isGood())
        return checked;
    zrproj_system const& from = backwards ? transform.to : transform.from;
    zrproj_system const& to = backwards ? transform.from : transform.to;
    convertArray(points, transform.threads, [&](std::span<PROJPOINT> block, std::span<Reason> reasons) {
        from.projection->inverse(block, reasons);
        to.projection->forward(block, reasons);
    });
    return {};
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
    if (!transform.link.told.empty())
        text += transform.link.told + '\n';
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
        give(accuracy, transform->link.accuracy);
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
