// Reference ellipsoids: a fixed catalogue of 50, by number, name and POSC (EPSG) code.
#ifndef ZRPROJ_ELLIPSOID_H
#define ZRPROJ_ELLIPSOID_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

/// An ellipsoid of the catalogue, 0 to 49. 0 is the one whose radius and flattening the caller gives; 50 means none.
enum EllipsoidType : std::int32_t {
    EllipsoidTypeUserDefined = 0,
    EllipsoidTypeMerit1983 = 1,
    EllipsoidTypeSovietGeodeticSystem85 = 2,
    EllipsoidTypeGrs1980Iugg1980 = 3,
    EllipsoidTypeIau1976 = 4,
    EllipsoidTypeAiry1830 = 5,
    EllipsoidTypeApplPhysics1965 = 6,
    EllipsoidTypeNavalWeaponsLab1965 = 7,
    EllipsoidTypeModifiedAiry = 8,
    EllipsoidTypeAndrae1876DenIclnd = 9,
    EllipsoidTypeAustralianNatlSAmer1969 = 10,
    EllipsoidTypeGrs67Iugg1967 = 11,
    EllipsoidTypeBessel1841 = 12,
    EllipsoidTypeBessel1841Namibia = 13,
    EllipsoidTypeBesselModified = 14,
    EllipsoidTypeClarke1866 = 15,
    EllipsoidTypeClarke1880Mod = 16,
    EllipsoidTypeCommDesPoidsEtMesures1799 = 17,
    EllipsoidTypeDelambre1810Belgium = 18,
    EllipsoidTypeEngelis1985 = 19,
    EllipsoidTypeEverest1830 = 20,
    EllipsoidTypeEverest1948 = 21,
    EllipsoidTypeEverest1956 = 22,
    EllipsoidTypeEverest1969 = 23,
    EllipsoidTypeEverestBrunei = 24,
    EllipsoidTypeEverestSabahSarawak = 25,
    EllipsoidTypeEverestPakistan = 26,
    EllipsoidTypeFischerMercuryDatum1960 = 27,
    EllipsoidTypeModifiedFischer1960 = 28,
    EllipsoidTypeFischer1968 = 29,
    EllipsoidTypeHelmert1906 = 30,
    EllipsoidTypeHough = 31,
    EllipsoidTypeIndonesian1974 = 32,
    EllipsoidTypeInternational1909Hayford = 33,
    EllipsoidTypeInternational1924 = 34,
    EllipsoidTypeKrassovsky1942 = 35,
    EllipsoidTypeKaula1961 = 36,
    EllipsoidTypeLerch1979 = 37,
    EllipsoidTypeMaupertius1738 = 38,
    EllipsoidTypeNewInternational1967 = 39,
    EllipsoidTypePlessis1817France = 40,
    EllipsoidTypeSoutheastAsia = 41,
    EllipsoidTypeStatePlane1927Michigan = 42,
    EllipsoidTypeWalbeck = 43,
    EllipsoidTypeWgs60 = 44,
    EllipsoidTypeWgs66 = 45,
    EllipsoidTypeWgs72 = 46,
    EllipsoidTypeWgs84 = 47,
    EllipsoidTypeStandardSphereOf6370997Meters = 48,
    EllipsoidTypeStandardSphereOfOneUnit = 49,
    EllipsoidTypeNone = 50,
};

/// Copies an ellipsoid's name, semi-major axis (metres) and flattening to whichever outputs are not null, and returns
/// true for 1 to 49. The longest name has 33 characters.
/// For 0 copies "user-defined" into `name` and returns false; for any other number returns false and writes nothing.
ZRPROJ_API bool EllipsoidInfo(EllipsoidType type, char* name, double* radius, double* flattening);

/// The semi-major axis in metres; 1.0 for 0 and for numbers outside the catalogue.
ZRPROJ_API double EllipsoidRadius(EllipsoidType type);

/// The flattening; 0.0 for 0 and for numbers outside the catalogue.
ZRPROJ_API double EllipsoidFlattening(EllipsoidType type);

/// Finds an ellipsoid by its catalogue name, letter case ignored, nothing trimmed. "User Defined" is found, as 0.
/// Returns false when a pointer is null, and, with `*type` 0, when no name matches.
ZRPROJ_API bool EllipsoidFromName(EllipsoidType* type, char const* name);

/// Finds an ellipsoid by its POSC (EPSG) code and stores it in `*type` unless that is null.
/// Returns false for 0 and for codes that no entry has. Even then the codes 7011 to 7014 and 7034 store 16 (Clarke 1880
/// mod.) and 7016 to 7018 store 20 (Everest 1830): the nearest entries.
ZRPROJ_API bool EllipsoidFromPOSCNumber(int code, EllipsoidType* type);

/// Stores an ellipsoid's POSC (EPSG) code in `*code` unless that is null. False for an ellipsoid without one, for 0,
/// and for numbers outside the catalogue.
ZRPROJ_API bool EllipsoidToPOSCNumber(EllipsoidType type, int* code);

} // namespace ZrProj

#endif
