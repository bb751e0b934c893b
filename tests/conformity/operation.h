// What a gie file calls an operation, as a way from one system to another.
#pragma once

#include "door.h"

#include <string>

namespace ZrProj::Conformity {

/// One end of an operation: how points are written there, and how far apart they are.
class End {
public:
    End(System const& system, double degreesOfUnit);

    Point toDegrees(Point point) const { return {point.x * scale_, point.y * scale_}; }
    Point fromDegrees(Point point) const { return {point.x / scale_, point.y / scale_}; }

    /// In metres on the ground, rather too far than too near, by up to about 1 %; on a map in the map's unit.
    double distance(Point a, Point b) const;

private:
    double scale_ = 1;          // degrees of a unit of angle; 1 on a map
    double metresOfDegree_ = 0; // 0 on a map
};

class Operation {
public:
    Operation(System const& from, System const& to, double degreesOfFrom = 1, double degreesOfTo = 1);

    Point convert(Point point, bool backwards) const;
    End const& end(bool target) const { return target ? to_ : from_; }

private:
    Way way_;
    End from_, to_;
};

/// Reads a pipeline: the inverse of one step, then another step, and a change of angular units at either end. Throws a
/// Fault for any other text.
Operation operationOf(std::string const& pipeline);

} // namespace ZrProj::Conformity
