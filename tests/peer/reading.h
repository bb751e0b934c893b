// One system as the library and as PROJ read it, and how far their maps lie apart.
#pragma once

#include "support/handle.h"

#include <array>
#include <string>

#include <proj.h>

namespace ZrProj::peer {

using test::Destroyer, test::System, test::Transform;
using Peer = std::unique_ptr<PJ, Destroyer<proj_destroy>>;

/// x, y, or longitude and latitude in degrees.
struct Point {
    double x = 0, y = 0;
};

/// 7 by 7 places over an area of use, edges included, in degrees from Greenwich.
using Places = std::array<Point, 49>;
Places placesOf(zrproj_system const& system);

/// The same places in degrees from a prime meridian.
Places from(double meridian, Places places);

/// An ellipsoid's axes, metres.
struct Figure {
    double semiMajor = 0, semiMinor = 0;
};

/// A system as the library reads it.
class Ours {
public:
    /// Of what cannot be read, `why` tells.
    explicit Ours(std::string const& definition);

    explicit operator bool() const { return system_ != nullptr; }
    zrproj_system const& system() const { return *system_; }
    std::string const& why() const { return why_; }
    bool isProjected() const { return isProjected_; }
    double metresAUnit() const { return unit_; }
    Figure figure() const;

    /// "" where the form cannot say the system, as zrproj_message tells.
    std::string text(zrproj_format format) const;

    /// Between degrees from the system's own prime meridian and its coordinates.
    Point forward(Point place) const { return run(0, place); }
    Point inverse(Point map) const { return run(1, map); }

private:
    Point run(int backwards, Point point) const;

    System system_;
    Transform transform_;
    std::string why_;
    bool isProjected_ = false;
    double unit_ = 1;
};

/// A system as PROJ reads it.
class Theirs {
public:
    explicit Theirs(std::string const& definition);

    explicit operator bool() const { return system_ != nullptr; }
    bool isProjected() const { return conversion_ != nullptr; }

    /// Whether PROJ has a formula for it.
    bool converts() const { return converts_; }
    std::string const& method() const { return method_; }
    Figure figure() const { return figure_; }
    double meridian() const { return meridian_; } // degrees east of Greenwich

    /// As PROJ writes it; "" where it cannot. Well-known text of the second generation as of 2015 or 2019.
    std::string text(zrproj_format format, int year = 2019) const;

    /// Whether PROJ finds both to say the same, the order of axes left aside.
    bool isSameAs(Theirs const& other) const;

    /// As ours: PROJ's axes are put into the order x, y, angles are degrees.
    Point forward(Point place) const;
    Point inverse(Point map) const;

private:
    void takeConversion();

    Peer system_, conversion_;
    bool converts_ = false;
    std::string method_;
    Figure figure_;
    double meridian_ = 0, degreesAUnit_ = 1;
    bool latitudeFirst_ = false, northingFirst_ = false;
};

/// Metres on the ground, the greatest over all places; NaN where there or back one of the two is not shown.
struct Distances {
    double forward = 0;    // between the two
    double inverse = 0;    // between the two, of the same map coordinates
    double firstTrip = 0;  // of the first one, there as the second has it and back
    double secondTrip = 0; // of the second one, there and back
    int compared = 0;      // of the places; the others neither or only one of the two shows
    int onlyFirst = 0, onlySecond = 0;
};

/// Of maps whose coordinates count in the same unit.
template <class First, class Second>
Distances distancesBetween(First const& first, Second const& second, Places const& places, double metresAUnit);

} // namespace ZrProj::peer
