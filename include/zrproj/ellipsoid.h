// Reference ellipsoids: a fixed catalogue of 50, by number, name and POSC (EPSG) code.
//
// Radii are semi-major axes in metres; a flattening is (a - b) / a of the semi-axes, 0 for a sphere. Any integer may be
// passed as an EllipsoidType: a number outside the catalogue gets the answer that is said below.
#ifndef ZRPROJ_ELLIPSOID_H
#define ZRPROJ_ELLIPSOID_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

/// An ellipsoid of the catalogue, 0 to 49. Each line says the semi-major axis and the flattening. The spellings are the
/// catalogue's own.
enum EllipsoidType : std::int32_t {
    EllipsoidTypeUserDefined = 0,                    ///< the caller gives axis and flattening
    EllipsoidTypeMerit1983 = 1,                      ///< 6378137 m, 1/298.257
    EllipsoidTypeSovietGeodeticSystem85 = 2,         ///< 6378136 m, 1/298.257
    EllipsoidTypeGrs1980Iugg1980 = 3,                ///< 6378137 m, 1/298.257222101
    EllipsoidTypeIau1976 = 4,                        ///< 6378140 m, 1/298.257
    EllipsoidTypeAiry1830 = 5,                       ///< 6377563.396 m, 1/299.3249646
    EllipsoidTypeApplPhysics1965 = 6,                ///< 6378137 m, 1/298.25
    EllipsoidTypeNavalWeaponsLab1965 = 7,            ///< 6378145 m, 1/298.25
    EllipsoidTypeModifiedAiry = 8,                   ///< 6377340.189 m, 1/299.3249646
    EllipsoidTypeAndrae1876DenIclnd = 9,             ///< 6377104.43 m, 1/300
    EllipsoidTypeAustralianNatlSAmer1969 = 10,       ///< 6378160 m, 1/298.25
    EllipsoidTypeGrs67Iugg1967 = 11,                 ///< 6378160 m, 1/298.247167427
    EllipsoidTypeBessel1841 = 12,                    ///< 6377397.155 m, 1/299.1528128
    EllipsoidTypeBessel1841Namibia = 13,             ///< 6377483.865 m, 1/299.1528128
    EllipsoidTypeBesselModified = 14,                ///< 6377397.155 m, 1/299.152815351
    EllipsoidTypeClarke1866 = 15,                    ///< 6378206.4 m, 1/294.9786982
    EllipsoidTypeClarke1880Mod = 16,                 ///< 6378249.145 m, 1/293.4663
    EllipsoidTypeCommDesPoidsEtMesures1799 = 17,     ///< 6375738.7 m, 1/334.29
    EllipsoidTypeDelambre1810Belgium = 18,           ///< 6376428 m, 1/311.5
    EllipsoidTypeEngelis1985 = 19,                   ///< 6378136.05 m, 1/298.2566
    EllipsoidTypeEverest1830 = 20,                   ///< 6377276.345 m, 1/300.8017
    EllipsoidTypeEverest1948 = 21,                   ///< 6377304.063 m, 1/300.8017
    EllipsoidTypeEverest1956 = 22,                   ///< 6377301 m, 1/300.8017
    EllipsoidTypeEverest1969 = 23,                   ///< 6377295 m, 1/300.8017
    EllipsoidTypeEverestBrunei = 24,                 ///< 6377298.556 m, 1/300.8017
    EllipsoidTypeEverestSabahSarawak = 25,           ///< 6377298 m, 1/300.8017
    EllipsoidTypeEverestPakistan = 26,               ///< 6377309.613 m, 1/300.8017
    EllipsoidTypeFischerMercuryDatum1960 = 27,       ///< 6378166 m, 1/298.3
    EllipsoidTypeModifiedFischer1960 = 28,           ///< 6378155 m, 1/298.3
    EllipsoidTypeFischer1968 = 29,                   ///< 6378150 m, 1/298.3
    EllipsoidTypeHelmert1906 = 30,                   ///< 6378200 m, 1/298.3
    EllipsoidTypeHough = 31,                         ///< 6378270 m, 1/297
    EllipsoidTypeIndonesian1974 = 32,                ///< 6378160 m, 1/298.247
    EllipsoidTypeInternational1909Hayford = 33,      ///< 6378388 m, 1/297
    EllipsoidTypeInternational1924 = 34,             ///< 6378388 m, 1/297
    EllipsoidTypeKrassovsky1942 = 35,                ///< 6378245 m, 1/298.3
    EllipsoidTypeKaula1961 = 36,                     ///< 6378163 m, 1/298.24
    EllipsoidTypeLerch1979 = 37,                     ///< 6378139 m, 1/298.257
    EllipsoidTypeMaupertius1738 = 38,                ///< 6397300 m, 1/191
    EllipsoidTypeNewInternational1967 = 39,          ///< 6378157.5 m, 1/298.25
    EllipsoidTypePlessis1817France = 40,             ///< 6376523 m, 1/308.64
    EllipsoidTypeSoutheastAsia = 41,                 ///< 6378155 m, 1/298.3
    EllipsoidTypeStatePlane1927Michigan = 42,        ///< 6378450.047 m, 1/294.9786982
    EllipsoidTypeWalbeck = 43,                       ///< 6376896 m, 1/302.78
    EllipsoidTypeWgs60 = 44,                         ///< 6378165 m, 1/298.3
    EllipsoidTypeWgs66 = 45,                         ///< 6378145 m, 1/298.25
    EllipsoidTypeWgs72 = 46,                         ///< 6378135 m, 1/298.26
    EllipsoidTypeWgs84 = 47,                         ///< 6378137 m, 1/298.257223563
    EllipsoidTypeStandardSphereOf6370997Meters = 48, ///< 6370997 m, a sphere
    EllipsoidTypeStandardSphereOfOneUnit = 49,       ///< 1 m, a sphere
    EllipsoidTypeNone = 50,                          ///< no ellipsoid
};

/// Copies an ellipsoid's name, semi-major axis (metres) and flattening to whichever outputs are not null. `name` needs
/// 34 bytes.
///
/// Returns true for 1 to 49. For 0 it writes "user-defined" to `name` and nothing else, and returns false; for any
/// other number it writes nothing and returns false.
ZRPROJ_API bool EllipsoidInfo(EllipsoidType type, char* name, double* radius, double* flattening);

/// Gives the semi-major axis in metres. Returns 1.0 for 0 and for numbers outside the catalogue.
ZRPROJ_API double EllipsoidRadius(EllipsoidType type);

/// Gives the flattening. Returns 0.0 for spheres, for 0 and for numbers outside the catalogue.
ZRPROJ_API double EllipsoidFlattening(EllipsoidType type);

/// Finds an ellipsoid by its catalogue name. ASCII letter case is ignored and nothing is trimmed; "User Defined" is
/// found, as 0.
///
/// Returns false, with nothing written, when a pointer is null, and false, with `*type` 0, when no name matches.
ZRPROJ_API bool EllipsoidFromName(EllipsoidType* type, char const* name);

/// Finds an ellipsoid by its POSC (EPSG) code and stores it in `*type` unless that is null.
///
/// Returns false, with nothing written, for 0 and for codes that no entry has or is near to. The codes 7011 to 7014 and
/// 7034 store 16 (Clarke 1880 mod.) and 7016 to 7018 store 20 (Everest 1830), the nearest entries, and return false all
/// the same.
ZRPROJ_API bool EllipsoidFromPOSCNumber(int code, EllipsoidType* type);

/// Stores an ellipsoid's POSC (EPSG) code in `*code` unless that is null. Returns false, with nothing written, for an
/// ellipsoid without a code, for 0, and for numbers outside the catalogue.
ZRPROJ_API bool EllipsoidToPOSCNumber(EllipsoidType type, int* code);

} // namespace ZrProj

#endif
