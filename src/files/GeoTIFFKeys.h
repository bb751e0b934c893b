// The numbers of OGC GeoTIFF 1.1 (19-008r4): tags, keys, and the codes that say no more than "see the other keys".
#pragma once

#include <cstdint>

namespace ZrProj::GeoTIFF {

enum TagId : std::uint16_t {
    tagPixelScale = 33550,
    tagTiePoints = 33922,
    tagTransformation = 34264,
    tagKeyDirectory = 34735,
    tagDoubles = 34736,
    tagTexts = 34737,
};

enum TagType : std::uint16_t {
    typeAscii = 2,
    typeShort = 3,
    typeDouble = 12,
};

enum Key : std::uint16_t {
    keyModelType = 1024,
    keyRasterType = 1025,
    keyCitation = 1026,
    keyGeographicType = 2048,
    keyGeographicCitation = 2049,
    keyDatum = 2050,
    keyPrimeMeridian = 2051,
    keyGeographicLengthUnit = 2052,
    keyGeographicLengthUnitSize = 2053,
    keyAngleUnit = 2054,
    keyAngleUnitSize = 2055,
    keyEllipsoid = 2056,
    keySemiMajorAxis = 2057,
    keySemiMinorAxis = 2058,
    keyInverseFlattening = 2059,
    keyAzimuthUnit = 2060,
    keyPrimeMeridianLongitude = 2061,
    keyToWgs84 = 2062, // 3 or 7 numbers: what OGC WKT calls TOWGS84; not in the standard, but widely written
    keyProjectedType = 3072,
    keyProjectedCitation = 3073,
    keyProjection = 3074,
    keyTransformation = 3075,
    keyLengthUnit = 3076,
    keyLengthUnitSize = 3077,
    keyParallel1 = 3078,
    keyParallel2 = 3079,
    keyNaturalLongitude = 3080,
    keyNaturalLatitude = 3081,
    keyFalseEasting = 3082,
    keyFalseNorthing = 3083,
    keyFalseOriginLongitude = 3084,
    keyFalseOriginLatitude = 3085,
    keyFalseOriginEasting = 3086,
    keyFalseOriginNorthing = 3087,
    keyCentreLongitude = 3088,
    keyCentreLatitude = 3089,
    keyCentreEasting = 3090,
    keyCentreNorthing = 3091,
    keyNaturalScale = 3092,
    keyCentreScale = 3093,
    keyAzimuth = 3094,
    keyPoleLongitude = 3095,
    keyGridAngle = 3096,
};

enum Code : std::uint16_t {
    modelProjected = 1,
    modelGeographic = 2,
    modelGeocentric = 3,
    rasterIsArea = 1,
    rasterIsPoint = 2,
    meridianGreenwich = 8901,
    unitMetre = 9001,
    unitUSFoot = 9003,
    unitDegree = 9102,
    userDefined = 32767,
};

/// Coordinate transformations: how the parameters of a projection are to be read. The last is no part of the standard,
/// but what common writers use.
enum Transformation : std::uint16_t {
    transverseMercator = 1,
    obliqueMercator = 3,
    mercator = 7,
    lambertConformal2 = 8,
    lambertConformal1 = 9,
    lambertAzimuthal = 10,
    albers = 11,
    azimuthalEquidistant = 12,
    equidistantConic = 13,
    stereographic = 14,
    polarStereographic = 15,
    obliqueStereographic = 16,
    equirectangular = 17,
    cassini = 18,
    gnomonic = 19,
    miller = 20,
    orthographic = 21,
    polyconic = 22,
    robinson = 23,
    sinusoidal = 24,
    vanDerGrinten = 25,
    obliqueMercatorFromCentre = 9815,
};

} // namespace ZrProj::GeoTIFF
