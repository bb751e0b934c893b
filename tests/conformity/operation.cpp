#include "operation.h"

#include "report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <sstream>
#include <string_view>
#include <vector>

namespace ZrProj::Conformity {
namespace {

constexpr double degreesOfGrad = 0.9;

using Words = std::vector<std::string>;
using Steps = std::vector<Words>;

Words wordsOf(std::string const& text) {
    Words words;
    std::istringstream stream(text);
    for (std::string word; stream >> word;)
        words.push_back(word.substr(word.starts_with('+') ? 1 : 0));
    return words;
}

bool has(Words const& words, std::string_view word) {
    return std::ranges::find(words, word) != words.end();
}

/// What stands before the first step is left out if it only turns off shifts, of which nothing is asked between two
/// systems on one datum.
Steps stepsOf(Words const& words) {
    Steps steps;
    for (std::string const& word : words)
        if (word == "step")
            steps.emplace_back();
        else if (!steps.empty())
            steps.back().push_back(word);
        else if (word != "proj=pipeline" && word != "towgs84=0,0,0")
            throw Fault("not understood before the first step: " + word);
    return steps;
}

/// Takes a change between grads and radians off an end of the steps.
double takeUnit(Steps& steps, Steps::iterator step, std::string_view in, std::string_view out) {
    if (!has(*step, "proj=unitconvert"))
        return 1;
    if (step->size() != 3 || !has(*step, in) || !has(*step, out))
        throw Fault("a change of units other than between grads and radians");
    steps.erase(step);
    return degreesOfGrad;
}

std::string definitionOf(Words const& words) {
    std::string text;
    for (std::string const& word : words)
        text += (text.empty() ? "+" : " +") + word;
    return text;
}

bool startsWithOneOf(std::string_view word, std::initializer_list<std::string_view> keys) {
    return std::ranges::any_of(keys, [&](std::string_view key) { return word.starts_with(key); });
}

/// A step that is spelled out without a datum is arithmetic on a figure.
bool tellsNoDatum(Words const& step) {
    return std::ranges::none_of(step, [](std::string const& word) {
        return startsWithOneOf(word, {"init=", "datum=", "nadgrids="});
    });
}

/// The system of a step, on a datum that is not told: its figure is all that is left of it. A shift stays, unless it is
/// none, so that systems with different ones are not taken as one.
System onUntoldDatum(Words words) {
    System const told = systemOf(definitionOf(words));
    if (!tellsNoDatum(words)) {
        std::array<char, 500> text;
        demand(zrproj_system_text(told.get(), ZRPROJ_PROJ_STRING, text.data(), text.size(), nullptr));
        words = wordsOf(text.data());
    }
    std::erase_if(words, [](std::string const& word) {
        return startsWithOneOf(word, {"datum=", "ellps=", "a=", "b=", "rf=", "f=", "R="}) ||
               (word.starts_with("towgs84=") && word.find_first_of("123456789", 8) == std::string::npos);
    });
    auto const [radius, flattening] = figureOf(told);
    std::array<char, 100> figure;
    std::snprintf(figure.data(), figure.size(), " +a=%.17g +b=%.17g", radius, radius * (1 - flattening));
    return systemOf(definitionOf(words) + figure.data());
}

} // namespace

End::End(System const& system, double degreesOfUnit) {
    if (!isGeographic(system)) {
        if (degreesOfUnit != 1)
            throw Fault("an angular unit of map coordinates");
        return;
    }
    auto const [radius, flattening] = figureOf(system);
    scale_ = degreesOfUnit;
    metresOfDegree_ = radius / (1 - flattening) * std::numbers::pi / 180; // a meridian's at the pole, the longest
}

double End::distance(Point a, Point b) const {
    double const dx = (a.x - b.x) * scale_, dy = (a.y - b.y) * scale_;
    if (metresOfDegree_ == 0)
        return std::hypot(dx, dy);
    double const latitude = b.y * scale_ * std::numbers::pi / 180;
    return std::hypot(std::remainder(dx, 360) * std::cos(latitude), dy) * metresOfDegree_;
}

Operation::Operation(System const& from, System const& to, double degreesOfFrom, double degreesOfTo)
    : way_(from, to), from_(from, degreesOfFrom), to_(to, degreesOfTo) {}

Point Operation::convert(Point point, bool backwards) const {
    return end(!backwards).fromDegrees(way_.convert(end(backwards).toDegrees(point), backwards));
}

Operation operationOf(std::string const& pipeline) {
    Steps steps = stepsOf(wordsOf(pipeline));
    if (steps.size() < 2)
        throw Fault("not a pipeline from one system to another");
    double const degreesOfFrom = takeUnit(steps, steps.begin(), "xy_in=grad", "xy_out=rad");
    double const degreesOfTo = takeUnit(steps, steps.end() - 1, "xy_in=rad", "xy_out=grad");
    if (steps.size() != 2 || std::erase(steps[0], "inv") != 1 || has(steps[1], "inv"))
        throw Fault("not the inverse of one step and then another");
    if (tellsNoDatum(steps[0]) || tellsNoDatum(steps[1]))
        return {onUntoldDatum(steps[0]), onUntoldDatum(steps[1]), degreesOfFrom, degreesOfTo};
    return {systemOf(definitionOf(steps[0])), systemOf(definitionOf(steps[1])), degreesOfFrom, degreesOfTo};
}

} // namespace ZrProj::Conformity
