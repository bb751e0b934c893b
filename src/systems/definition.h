// What a coordinate system is, by value: what every reader of a definition makes, what the register's rows unfold to,
// and what every writer and the conversions take.
//
// Angles are in degrees, lengths in metres, whatever unit a text gave them in. Coordinates are always x, y: longitude
// or easting first. What a definition says of heights and epochs is read and left out.
#pragma once

#include "systems/methods.h"

#include <array>
#include <optional>
#include <string>

namespace ZrProj::systems {

/// A code of the register; 0 where a thing has none.
using Code = int;

/// A unit of length or of angle.
struct Unit {
    std::string name;
    double factor = 1; // metres or degrees a unit
    Code code = 0;
};

struct Ellipsoid {
    std::string name;
    double semiMajor = 0;         // metres
    double inverseFlattening = 0; // 0: a sphere
    Code code = 0;
};

struct PrimeMeridian {
    std::string name = "Greenwich";
    double longitude = 0; // degrees east of Greenwich
    Code code = 8901;
};

/// The seven parameters that carry a datum to WGS 84: metres, arcseconds (position vector), parts per million.
using ToWgs84 = std::array<double, 7>;

struct Datum {
    std::string name;
    Ellipsoid ellipsoid;
    PrimeMeridian meridian;
    Code code = 0;
    double ensembleAccuracy = 0;    // metres; above 0 for an ensemble of realizations
    std::optional<ToWgs84> toWgs84; // where the definition itself says so
    std::string grids;              // the names of grid files that the definition says, "" for none
};

/// Where a coordinate grows to. x is the one that runs east or west, y the other one.
enum class Sense : signed char { positive = 1, negative = -1 }; // east and north, or west and south

/// Degrees; west > east crosses the antimeridian.
struct Area {
    double west = -180, south = -90, east = 180, north = 90;
    std::string name;

    bool contains(double longitude, double latitude) const;
};

/// A geographic system (its method is Method::none) or a projected one.
struct Definition {
    std::string name;
    Code code = 0;
    std::string baseName; // of the geographic system that a projected one stands on
    Code baseCode = 0;
    Datum datum;

    std::string conversionName;
    Code conversionCode = 0;
    Method method = Method::none;
    ParameterValues parameters; // longitudes count from the datum's prime meridian

    Unit unit{"metre", 1, 9001};         // of a projected system's coordinates
    Unit angularUnit{"degree", 1, 9122}; // of the geographic system, for texts only
    Sense x = Sense::positive;
    Sense y = Sense::positive;  // of a projected system's axes
    bool northingFirst = false; // the order of the axes as the authority has it, for texts only

    std::optional<Area> area;
    bool deprecated = false;
    Code replacement = 0; // of a deprecated one; 0 where none is named

    bool isProjected() const { return method != Method::none; }
};

} // namespace ZrProj::systems
