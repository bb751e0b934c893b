// The methods by which systems are projected and the parameters that they take, by value: what the register calls them
// stands in method_table.h.
#pragma once

#include <array>
#include <cstddef>
#include <limits>

namespace ZrProj::systems {

/// The map projections of the register by their codes, and those that only other texts name. Methods that the register
/// keeps under two codes and that compute the same are one.
enum class Method : unsigned char {
    none,                         // a geographic system
    pseudoMercator,               // 1024
    lambertAzimuthalSphere,       // 1027, 9821
    equidistantCylindrical,       // 1028, 9842
    equidistantCylindricalSphere, // 1029, 9823
    krovakNorth,                  // 1041
    krovakModified,               // 1042
    krovakModifiedNorth,          // 1043
    lambertConicMichigan,         // 1051
    colombiaUrban,                // 1052
    equalEarth,                   // 1078
    transverseMercator3D,         // 1111
    lambertConic1,                // 9801
    lambertConic2,                // 9802
    lambertConicBelgium,          // 9803
    mercatorA,                    // 9804
    mercatorB,                    // 9805
    cassini,                      // 9806
    transverseMercator,           // 9807
    transverseMercatorSouth,      // 9808
    obliqueStereographic,         // 9809
    polarStereographicA,          // 9810
    newZealandMapGrid,            // 9811
    hotineA,                      // 9812
    laborde,                      // 9813
    hotineB,                      // 9815
    tunisiaMiningGrid,            // 9816
    lambertConicNearConformal,    // 9817
    polyconic,                    // 9818
    krovak,                       // 9819
    lambertAzimuthal,             // 9820
    albers,                       // 9822
    transverseMercatorZoned,      // 9824
    lambertConicWest,             // 9826
    bonne,                        // 9827
    bonneSouth,                   // 9828
    polarStereographicB,          // 9829
    polarStereographicC,          // 9830
    guam,                         // 9831
    modifiedAzimuthalEquidistant, // 9832
    hyperbolicCassini,            // 9833
    cylindricalEqualAreaSphere,   // 9834
    cylindricalEqualArea,         // 9835
    verticalPerspective,          // 9838
    orthographic,                 // 9840
    mercatorSphere,               // 9841
    // Without a code in the register:
    stereographic,
    gnomonic,
    azimuthalEquidistant,
    equidistantConic,
    miller,
    mollweide,
    sinusoidal,
    robinson,
    vanDerGrinten,
    eckert4,
    eckert6,
    gaussSchreiber,
    hotineTwoPoints,
};

/// What a method may take, by what it means; one meaning may have several codes, as the codes at the end of each line
/// tell.
enum class Parameter : unsigned char {
    latitudeOfOrigin,  // 8801, 8811, 8821, 8828
    longitudeOfOrigin, // 8802, 8812, 8822, 8829, 8830, 8833
    scaleFactor,       // 8805, 8815, 8819
    falseEasting,      // 8806, 8816, 8826
    falseNorthing,     // 8807, 8817, 8827
    azimuth,           // 8813
    rectifiedAngle,    // 8814
    standardParallel1, // 8818, 8823, 8832
    standardParallel2, // 8824
    coLatitudeOfAxis,  // 1036
    ellipsoidScale,    // 1038
    planeHeight,       // 1039
    viewHeight,        // 8840
    zoneWidth,         // 8831
    latitudeOfPoint1,
    longitudeOfPoint1,
    latitudeOfPoint2,
    longitudeOfPoint2,
};
inline constexpr std::size_t parameterCount = 18;

/// The numbers of a conversion: angles in degrees, lengths in metres, factors as such; NaN where the method takes none.
class ParameterValues {
public:
    constexpr ParameterValues() { values_.fill(std::numeric_limits<double>::quiet_NaN()); }

    constexpr double& operator[](Parameter p) { return values_[std::size_t(p)]; }
    constexpr double operator[](Parameter p) const { return values_[std::size_t(p)]; }
    constexpr bool has(Parameter p) const { return values_[std::size_t(p)] == values_[std::size_t(p)]; }
    constexpr double valueOr(Parameter p, double other) const { return has(p) ? (*this)[p] : other; }

private:
    std::array<double, parameterCount> values_{};
};

} // namespace ZrProj::systems
