// The figure of the earth as records tell it: an ellipsoid of the catalogue, or the caller's own axes.
#pragma once

#include <zrproj/ellipsoid.h>

#include <cmath>

namespace ZrProj {

struct Figure {
    EllipsoidType type = EllipsoidTypeNone; // none where a record tells no ellipsoid
    double radius = 0, flattening = 0;
};

/// The catalogue's figure of that number, or the caller's own; none where there is neither.
inline Figure figureOf(EllipsoidType type, double radius, double flattening) {
    if (type == EllipsoidTypeUserDefined)
        return radius > 0 ? Figure{type, radius, flattening} : Figure{};
    if (type < 0 || type >= EllipsoidTypeNone)
        return {};
    return {type, EllipsoidRadius(type), EllipsoidFlattening(type)};
}

/// What a record of a projection or of a datum tells.
template <class Record> Figure figureOf(Record const& record) {
    return figureOf(record.Ellipsoid, record.MajorRadius, record.Flattening);
}

/// Whether two figures differ by less than so many metres, in the radius and at the poles.
inline bool areNear(Figure const& a, Figure const& b, double radius, double pole) {
    return std::fabs(a.radius - b.radius) < radius && std::fabs(a.flattening - b.flattening) * a.radius < pole;
}

} // namespace ZrProj
