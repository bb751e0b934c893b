// Every projection type, and every formula that only systems reach, with several sets of parameters, for the checks
// that sweep them all.
#pragma once

#include "formulas/converter.h"

#include <zrproj/projection.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ZrProj::test {

/// A projection as the checks see it. Made with the processor level in use.
class Projection {
public:
    /// `words` as in the files of tests/data/projections, see support/cases.h.
    explicit Projection(std::string const& words);

    /// The record that conversions use: complete, a State Plane zone's own projection, Scale and K0 not 0.
    PROJDATA const& record() const { return record_; }
    std::string const& words() const { return words_; }

    /// Converts a copy of the points; a call that fails is a failure of the test.
    std::vector<PROJPOINT> forward(std::vector<PROJPOINT> points);
    std::vector<PROJPOINT> inverse(std::vector<PROJPOINT> points);
    PROJPOINT forward(PROJPOINT point) { return forward(std::vector{point}).front(); }
    PROJPOINT inverse(PROJPOINT point) { return inverse(std::vector{point}).front(); }

    /// Converts the points in place; false when the call failed.
    bool tryForward(std::span<PROJPOINT> points);
    bool tryInverse(std::span<PROJPOINT> points);
    bool isInRange(PROJPOINT const& point);

    /// Points all over the globe and where projections are delicate: poles, centre and antipode, the meridians
    /// opposite to the centre and 90 degrees from it, the antimeridian, standard parallels, -0.0.
    std::vector<PROJPOINT> samples() const;
    /// Those of them that are in range.
    std::vector<PROJPOINT> samplesInRange();

    /// How far the map moves when a point does by so many degrees, at most and about. Where the map is torn along a
    /// meridian, on the point's side; neighbours that cannot be shown do not count.
    double mapMove(PROJPOINT const& point, double degrees);

    /// Whether a point so near cannot be shown.
    bool isBesideUnplottable(PROJPOINT const& point, double degrees);

    /// A length on the map that stands for `metres` on an Earth at scale 1.
    double mapLength(double metres) const { return metres * record_.Scale * record_.MajorRadius / 6378137; }

private:
    /// A formula run as a handle runs it, without one.
    struct Direct {
        formulas::Formula formula;
        formulas::ParametersInDegrees parameters;
        formulas::Converter converter;

        bool run(formulas::Converter::Direction direction, std::span<PROJPOINT> points);
    };

    std::string words_;
    PROJDATA record_;
    CProjector projector_;
    std::optional<Direct> direct_; // in place of the projector
};

/// The parameter sets of a type, in words; those of all formulas that only systems reach.
std::vector<std::string> parameterSets(ProjType type);
std::vector<std::string> formulaParameterSets();

/// Records that pass validation but define no map, or one that hardly anybody wants.
std::vector<std::string> oddParameterSets();

/// Whether the point holds the marker.
bool isMarked(PROJPOINT const& point);

/// Whether two points are the same, to the bit.
bool sameBits(PROJPOINT const& a, PROJPOINT const& b);

/// Degrees between two longitudes, 0 to 180.
double longitudesApart(double a, double b);

/// The types that project by themselves or through a State Plane zone: 1 to 28.
std::vector<ProjType> projectingTypes();

} // namespace ZrProj::test
