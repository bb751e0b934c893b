// How far a fit misses the control points that it is made from.
#pragma once

#include <zrproj/georef.h>

#include <optional>
#include <string>

namespace ZrProj::Command {

/// On the average, in the map's unit and in pixels.
struct ControlMiss {
    double onMap = 0, pixels = 0;
};

/// That of a method's fit to the controls of a record; nothing where the fit cannot be made.
std::optional<ControlMiss> controlMiss(GEOREF const& georef, TransformMethod method);

/// For people: "12.500 (2.50 pixels) on the average".
std::string missText(ControlMiss const& miss);

/// Whether points of an image are plainly wrong by such a fit.
inline bool isWide(ControlMiss const& miss) {
    return !(miss.pixels <= 1);
}

} // namespace ZrProj::Command
