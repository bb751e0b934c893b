#include "cli/files/control_miss.h"

#include "cli/text/output.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <span>

namespace ZrProj::Command {
namespace {

/// The root of the sum of the squared distances from their middle.
double spread(std::span<GEOREFPOINT const> points) {
    auto const count = static_cast<double>(points.size());
    double x = 0, y = 0, sum = 0;
    for (GEOREFPOINT const& point : points) {
        x += point.x / count;
        y += point.y / count;
    }
    for (GEOREFPOINT const& point : points)
        sum += (point.x - x) * (point.x - x) + (point.y - y) * (point.y - y);
    return std::sqrt(sum);
}

} // namespace

std::optional<ControlMiss> controlMiss(GEOREF const& georef, TransformMethod method) {
    GEOREF record = georef;
    record.Method = method;
    double onMap = std::numeric_limits<double>::max();
    if (!CGeorefTransform(&record).ComputeError(&onMap, nullptr) || !(onMap < std::numeric_limits<double>::max()))
        return std::nullopt;
    auto const count = static_cast<std::size_t>(georef.nControls);
    double const pixel = spread({georef.pTarget, count}) / spread({georef.pSource, count});
    return ControlMiss{onMap, onMap == 0 ? 0 : onMap / pixel};
}

std::string missText(ControlMiss const& miss) {
    std::string text;
    appendFixed(text, miss.onMap, 3);
    text += " (";
    if (std::isfinite(miss.pixels))
        appendFixed(text, miss.pixels, 2);
    else
        text += "countless";
    return text + " pixels) on the average";
}

} // namespace ZrProj::Command
