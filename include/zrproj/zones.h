// UTM and US State Plane zones.
//
// A State Plane zone is named by its StateZoneType; a projection record of type 9 or 10 with that zone uses its
// definition of 1927 or of 1983, on the definition's own ellipsoid. A UTM zone is a number from 1 to 60, and a record
// of type 4 says it by its central meridian:
//
//     data.Type = ZrProj::ProjTypeUniversalTransverseMercator;
//     data.Lon0 = ZrProj::ProjUTMZoneNumberToLon(ZrProj::ProjUTMLonToZoneNumber(-79.38)); // zone 17: -81
#ifndef ZRPROJ_ZONES_H
#define ZRPROJ_ZONES_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

enum ProjType : std::int32_t; // projection.h
struct PROJDATA;              // projection.h

/// A State Plane zone, 0 to 141 in catalogue order. Each line says for which years the zone is defined, by which
/// projection, and its USGS code where it has one; a record of the other year's type is refused. The spellings are the
/// catalogue's own. Hotine stands for Hotine Oblique Mercator.
enum StateZoneType : std::int32_t {
    StateZoneTypeAlabamaEast = 0,                      ///< 1927 and 1983: Transverse Mercator; USGS 101
    StateZoneTypeAlabamaWest = 1,                      ///< 1927 and 1983: Transverse Mercator; USGS 102
    StateZoneTypeAlaska1 = 2,                          ///< 1927 and 1983: Hotine; USGS 5001
    StateZoneTypeAlaska2 = 3,                          ///< 1927 and 1983: Transverse Mercator; USGS 5002
    StateZoneTypeAlaska3 = 4,                          ///< 1927 and 1983: Transverse Mercator; USGS 5003
    StateZoneTypeAlaska4 = 5,                          ///< 1927 and 1983: Transverse Mercator; USGS 5004
    StateZoneTypeAlaska5 = 6,                          ///< 1927 and 1983: Transverse Mercator; USGS 5005
    StateZoneTypeAlaska6 = 7,                          ///< 1927 and 1983: Transverse Mercator; USGS 5006
    StateZoneTypeAlaska7 = 8,                          ///< 1927 and 1983: Transverse Mercator; USGS 5007
    StateZoneTypeAlaska8 = 9,                          ///< 1927 and 1983: Transverse Mercator; USGS 5008
    StateZoneTypeAlaska9 = 10,                         ///< 1927 and 1983: Transverse Mercator; USGS 5009
    StateZoneTypeAlaska10 = 11,                        ///< 1927 and 1983: Lambert conformal conic; USGS 5010
    StateZoneTypeArizonaEast = 12,                     ///< 1927 and 1983: Transverse Mercator; USGS 201
    StateZoneTypeArizonaCentral = 13,                  ///< 1927 and 1983: Transverse Mercator; USGS 202
    StateZoneTypeArizonaWest = 14,                     ///< 1927 and 1983: Transverse Mercator; USGS 203
    StateZoneTypeArkansasNorth = 15,                   ///< 1927 and 1983: Lambert conformal conic; USGS 301
    StateZoneTypeArkansasSouth = 16,                   ///< 1927 and 1983: Lambert conformal conic; USGS 302
    StateZoneTypeCaliforniaI = 17,                     ///< 1927 and 1983: Lambert conformal conic; USGS 401
    StateZoneTypeCaliforniaII = 18,                    ///< 1927 and 1983: Lambert conformal conic; USGS 402
    StateZoneTypeCaliforniaIII = 19,                   ///< 1927 and 1983: Lambert conformal conic; USGS 403
    StateZoneTypeCaliforniaIV = 20,                    ///< 1927 and 1983: Lambert conformal conic; USGS 404
    StateZoneTypeCaliforniaV = 21,                     ///< 1927 and 1983: Lambert conformal conic; USGS 405
    StateZoneTypeCaliforniaVI = 22,                    ///< 1927 and 1983: Lambert conformal conic; USGS 406
    StateZoneTypeCaliforniaVII = 23,                   ///< 1927 only: Lambert conformal conic; USGS 407
    StateZoneTypeColoradoNorth = 24,                   ///< 1927 and 1983: Lambert conformal conic; USGS 501
    StateZoneTypeColoradoCentral = 25,                 ///< 1927 and 1983: Lambert conformal conic; USGS 502
    StateZoneTypeColoradoSouth = 26,                   ///< 1927 and 1983: Lambert conformal conic; USGS 503
    StateZoneTypeConnecticut = 27,                     ///< 1927 and 1983: Lambert conformal conic; USGS 600
    StateZoneTypeDeleware = 28,                        ///< 1927 and 1983: Transverse Mercator; USGS 700
    StateZoneTypeFloridaNorth = 29,                    ///< 1927 and 1983: Lambert conformal conic; USGS 903
    StateZoneTypeFloridaEast = 30,                     ///< 1927 and 1983: Transverse Mercator; USGS 901
    StateZoneTypeFloridaWest = 31,                     ///< 1927 and 1983: Transverse Mercator; USGS 902
    StateZoneTypeGeorgiaEast = 32,                     ///< 1927 and 1983: Transverse Mercator; USGS 1001
    StateZoneTypeGeorgiaWest = 33,                     ///< 1927 and 1983: Transverse Mercator; USGS 1002
    StateZoneTypeGuamIsland = 34,                      ///< 1927 only: Polyconic; USGS 5400
    StateZoneTypeHawaii1 = 35,                         ///< 1927 and 1983: Transverse Mercator; USGS 5101
    StateZoneTypeHawaii2 = 36,                         ///< 1927 and 1983: Transverse Mercator; USGS 5102
    StateZoneTypeHawaii3 = 37,                         ///< 1927 and 1983: Transverse Mercator; USGS 5103
    StateZoneTypeHawaii4 = 38,                         ///< 1927 and 1983: Transverse Mercator; USGS 5104
    StateZoneTypeHawaii5 = 39,                         ///< 1927 and 1983: Transverse Mercator; USGS 5105
    StateZoneTypeIdahoEast = 40,                       ///< 1927 and 1983: Transverse Mercator; USGS 1101
    StateZoneTypeIdahoCentral = 41,                    ///< 1927 and 1983: Transverse Mercator; USGS 1102
    StateZoneTypeIdahoWest = 42,                       ///< 1927 and 1983: Transverse Mercator; USGS 1103
    StateZoneTypeIllinoisEast = 43,                    ///< 1927 and 1983: Transverse Mercator; USGS 1201
    StateZoneTypeIllinoisWest = 44,                    ///< 1927 and 1983: Transverse Mercator; USGS 1202
    StateZoneTypeIndianaEast = 45,                     ///< 1927 and 1983: Transverse Mercator; USGS 1301
    StateZoneTypeIndianaWest = 46,                     ///< 1927 and 1983: Transverse Mercator; USGS 1302
    StateZoneTypeIowaNorth = 47,                       ///< 1927 and 1983: Lambert conformal conic; USGS 1401
    StateZoneTypeIowaSouth = 48,                       ///< 1927 and 1983: Lambert conformal conic; USGS 1402
    StateZoneTypeKansasNorth = 49,                     ///< 1927 and 1983: Lambert conformal conic; USGS 1501
    StateZoneTypeKansasSouth = 50,                     ///< 1927 and 1983: Lambert conformal conic; USGS 1502
    StateZoneTypeKentuckyNorth = 51,                   ///< 1927 and 1983: Lambert conformal conic; USGS 1601
    StateZoneTypeKentuckySouth = 52,                   ///< 1927 and 1983: Lambert conformal conic; USGS 1602
    StateZoneTypeLouisianaNorth = 53,                  ///< 1927 and 1983: Lambert conformal conic; USGS 1701
    StateZoneTypeLouisianaSouth = 54,                  ///< 1927 and 1983: Lambert conformal conic; USGS 1702
    StateZoneTypeLouisianaOffshore = 55,               ///< 1927 and 1983: Lambert conformal conic; USGS 1703
    StateZoneTypeMaineEast = 56,                       ///< 1927 and 1983: Transverse Mercator; USGS 1801
    StateZoneTypeMaineWest = 57,                       ///< 1927 and 1983: Transverse Mercator; USGS 1802
    StateZoneTypeMaryland = 58,                        ///< 1927 and 1983: Lambert conformal conic; USGS 1900
    StateZoneTypeMassachusettsMainland = 59,           ///< 1927 and 1983: Lambert conformal conic; USGS 2001
    StateZoneTypeMassachusettsIsland = 60,             ///< 1927 and 1983: Lambert conformal conic; USGS 2002
    StateZoneTypeMichiganEastOld = 61,                 ///< 1927 only: Transverse Mercator; USGS 2101
    StateZoneTypeMichiganCentralOld = 62,              ///< 1927 only: Transverse Mercator; USGS 2102
    StateZoneTypeMichiganWestOld = 63,                 ///< 1927 only: Transverse Mercator; USGS 2103
    StateZoneTypeMichiganNorth = 64,                   ///< 1927 and 1983: Lambert conformal conic; USGS 2111
    StateZoneTypeMichiganCentral = 65,                 ///< 1927 and 1983: Lambert conformal conic; USGS 2112
    StateZoneTypeMichiganSouth = 66,                   ///< 1927 and 1983: Lambert conformal conic; USGS 2113
    StateZoneTypeMinnesotaNorth = 67,                  ///< 1927 and 1983: Lambert conformal conic; USGS 2201
    StateZoneTypeMinnesotaCentral = 68,                ///< 1927 and 1983: Lambert conformal conic; USGS 2202
    StateZoneTypeMinnesotaSouth = 69,                  ///< 1927 and 1983: Lambert conformal conic; USGS 2203
    StateZoneTypeMissippippiEast = 70,                 ///< 1927 and 1983: Transverse Mercator; USGS 2301
    StateZoneTypeMissippippiWest = 71,                 ///< 1927 and 1983: Transverse Mercator; USGS 2302
    StateZoneTypeMissouriEast = 72,                    ///< 1927 and 1983: Transverse Mercator; USGS 2401
    StateZoneTypeMissouriCentral = 73,                 ///< 1927 and 1983: Transverse Mercator; USGS 2402
    StateZoneTypeMissouriWest = 74,                    ///< 1927 and 1983: Transverse Mercator; USGS 2403
    StateZoneTypeMontana = 75,                         ///< 1983 only: Lambert conformal conic; USGS 2500
    StateZoneTypeMontanaNorth = 76,                    ///< 1927 only: Lambert conformal conic; USGS 2501
    StateZoneTypeMontanaCentral = 77,                  ///< 1927 only: Lambert conformal conic; USGS 2502
    StateZoneTypeMontanaSouth = 78,                    ///< 1927 only: Lambert conformal conic; USGS 2503
    StateZoneTypeNebraska = 79,                        ///< 1983 only: Lambert conformal conic; USGS 2600
    StateZoneTypeNebraskaNorth = 80,                   ///< 1927 only: Lambert conformal conic; USGS 2601
    StateZoneTypeNebraskaSouth = 81,                   ///< 1927 only: Lambert conformal conic; USGS 2602
    StateZoneTypeNevadaEast = 82,                      ///< 1927 and 1983: Transverse Mercator; USGS 2701
    StateZoneTypeNevadaCentral = 83,                   ///< 1927 and 1983: Transverse Mercator; USGS 2702
    StateZoneTypeNevadaWest = 84,                      ///< 1927 and 1983: Transverse Mercator; USGS 2703
    StateZoneTypeNewHampshire = 85,                    ///< 1927 and 1983: Transverse Mercator; USGS 2800
    StateZoneTypeNewJersey = 86,                       ///< 1927 and 1983: Transverse Mercator; USGS 2900
    StateZoneTypeNewMexicoEast = 87,                   ///< 1927 and 1983: Transverse Mercator; USGS 3001
    StateZoneTypeNewMexicoCentral = 88,                ///< 1927 and 1983: Transverse Mercator; USGS 3002
    StateZoneTypeNewMexicoWest = 89,                   ///< 1927 and 1983: Transverse Mercator; USGS 3003
    StateZoneTypeNewYorkEast = 90,                     ///< 1927 and 1983: Transverse Mercator; USGS 3101
    StateZoneTypeNewYorkCentral = 91,                  ///< 1927 and 1983: Transverse Mercator; USGS 3102
    StateZoneTypeNewYorkWest = 92,                     ///< 1927 and 1983: Transverse Mercator; USGS 3103
    StateZoneTypeNewYorkLongIsland = 93,               ///< 1927 and 1983: Lambert conformal conic; USGS 3104
    StateZoneTypeNorthCarolina = 94,                   ///< 1927 and 1983: Lambert conformal conic; USGS 3200
    StateZoneTypeNorthDakotaNorth = 95,                ///< 1927 and 1983: Lambert conformal conic; USGS 3301
    StateZoneTypeNorthDakotaSouth = 96,                ///< 1927 and 1983: Lambert conformal conic; USGS 3302
    StateZoneTypeOhioNorth = 97,                       ///< 1927 and 1983: Lambert conformal conic; USGS 3401
    StateZoneTypeOhioSouth = 98,                       ///< 1927 and 1983: Lambert conformal conic; USGS 3402
    StateZoneTypeOklahomaNorth = 99,                   ///< 1927 and 1983: Lambert conformal conic; USGS 3501
    StateZoneTypeOklahomaSouth = 100,                  ///< 1927 and 1983: Lambert conformal conic; USGS 3502
    StateZoneTypeOregonNorth = 101,                    ///< 1927 and 1983: Lambert conformal conic; USGS 3601
    StateZoneTypeOregonSouth = 102,                    ///< 1927 and 1983: Lambert conformal conic; USGS 3602
    StateZoneTypePennsylvaniaNorth = 103,              ///< 1927 and 1983: Lambert conformal conic; USGS 3701
    StateZoneTypePennsylvaniaSouth = 104,              ///< 1927 and 1983: Lambert conformal conic; USGS 3702
    StateZoneTypePuertoRicoAndVirginIslands1983 = 105, ///< 1983 only: Lambert conformal conic; USGS 5200
    StateZoneTypePuertoRicoAndVirginIslands1927 = 106, ///< 1927 only: Lambert conformal conic; USGS 5201
    StateZoneTypeVirginIslandsStCroix1927 = 107,       ///< 1927 only: Lambert conformal conic; USGS 5202
    StateZoneTypeRhodeIsland = 108,                    ///< 1927 and 1983: Transverse Mercator; USGS 3800
    StateZoneTypeAmericanSamoa = 109,                  ///< 1927 only: Lambert conformal conic; USGS 5300
    StateZoneTypeSouthCarolina = 110,                  ///< 1983 only: Lambert conformal conic; USGS 3900
    StateZoneTypeSouthCarolinaNorth = 111,             ///< 1927 only: Lambert conformal conic; USGS 3901
    StateZoneTypeSouthCarolinaSouth = 112,             ///< 1927 only: Lambert conformal conic; USGS 3902
    StateZoneTypeSouthDakotaNorth = 113,               ///< 1927 and 1983: Lambert conformal conic; USGS 4001
    StateZoneTypeSouthDakotaSouth = 114,               ///< 1927 and 1983: Lambert conformal conic; USGS 4002
    StateZoneTypeTennessee = 115,                      ///< 1927 and 1983: Lambert conformal conic; USGS 4100
    StateZoneTypeTexasNorth = 116,                     ///< 1927 and 1983: Lambert conformal conic; USGS 4201
    StateZoneTypeTexasNorthCentral = 117,              ///< 1927 and 1983: Lambert conformal conic; USGS 4202
    StateZoneTypeTexasCentral = 118,                   ///< 1927 and 1983: Lambert conformal conic; USGS 4203
    StateZoneTypeTexasSouthCentral = 119,              ///< 1927 and 1983: Lambert conformal conic; USGS 4204
    StateZoneTypeTexasSouth = 120,                     ///< 1927 and 1983: Lambert conformal conic; USGS 4205
    StateZoneTypeUtahNorth = 121,                      ///< 1927 and 1983: Lambert conformal conic; USGS 4301
    StateZoneTypeUtahCentral = 122,                    ///< 1927 and 1983: Lambert conformal conic; USGS 4302
    StateZoneTypeUtahSouth = 123,                      ///< 1927 and 1983: Lambert conformal conic; USGS 4303
    StateZoneTypeVermont = 124,                        ///< 1927 and 1983: Transverse Mercator; USGS 4400
    StateZoneTypeVirginiaNorth = 125,                  ///< 1927 and 1983: Lambert conformal conic; USGS 4501
    StateZoneTypeVirginiaSouth = 126,                  ///< 1927 and 1983: Lambert conformal conic; USGS 4502
    StateZoneTypeWashingtonNorth = 127,                ///< 1927 and 1983: Lambert conformal conic; USGS 4601
    StateZoneTypeWashingtonSouth = 128,                ///< 1927 and 1983: Lambert conformal conic; USGS 4602
    StateZoneTypeWestVirginiaNorth = 129,              ///< 1927 and 1983: Lambert conformal conic; USGS 4701
    StateZoneTypeWestVirginiaSouth = 130,              ///< 1927 and 1983: Lambert conformal conic; USGS 4702
    StateZoneTypeWisconsinNorth = 131,                 ///< 1927 and 1983: Lambert conformal conic; USGS 4801
    StateZoneTypeWisconsinCentral = 132,               ///< 1927 and 1983: Lambert conformal conic; USGS 4802
    StateZoneTypeWisconsinSouth = 133,                 ///< 1927 and 1983: Lambert conformal conic; USGS 4803
    StateZoneTypeWyomingEast = 134,                    ///< 1927 and 1983: Transverse Mercator; USGS 4901
    StateZoneTypeWyomingEastCentral = 135,             ///< 1927 and 1983: Transverse Mercator; USGS 4902
    StateZoneTypeWyomingWestCentral = 136,             ///< 1927 and 1983: Transverse Mercator; USGS 4903
    StateZoneTypeWyomingWest = 137,                    ///< 1927 and 1983: Transverse Mercator; USGS 4904
    StateZoneTypeGreatLakesSurvey1 = 138,              ///< 1927 and 1983: Hotine
    StateZoneTypeGreatLakesSurvey2 = 139,              ///< 1927 and 1983: Hotine
    StateZoneTypeGreatLakesSurvey3 = 140,              ///< 1927 and 1983: Hotine
    StateZoneTypeGreatLakesSurvey4 = 141,              ///< 1927 and 1983: Hotine
    StateZoneTypeNone = 142,                           ///< no zone
};

/// How ProjUTMZoneNumberToName writes a zone: alone, or with the longitudes that bound it.
enum UTMZoneNameFormat : std::int32_t {
    UTMZoneNameFormatShort = 0,  ///< "Zone 17N"
    UTMZoneNameFormatLetter = 1, ///< "Zone 17N (084W to 078W)"
    UTMZoneNameFormatSign = 2,   ///< "Zone 17N (-84 to -78)"
};

/// Copies a zone's name and USGS code, 0 where it has none, to whichever outputs are not null. `name` needs 38 bytes.
/// For a number outside 0 to 141 the outputs become "" and 0.
ZRPROJ_API void ProjGetStateZoneInfo(StateZoneType zone, char* name, int* usgsCode);

/// Finds a zone by its whole catalogue name; ASCII letter case is ignored. Returns false, with nothing written, for a
/// null pointer or an empty name, and false, with `*zone` 142, when no name matches.
ZRPROJ_API bool ProjGetStateZoneFromName(StateZoneType* zone, char const* name);

/// Finds the first zone with a USGS code. Code 0 finds 138, the first zone without a code. Returns false, with nothing
/// written, for a null pointer or a negative code, and false, with `*zone` 142, when no zone has the code.
ZRPROJ_API bool ProjGetStateZoneFromUSGSCode(StateZoneType* zone, int code);

/// Finds a zone by the POSC (EPSG) number of its projected system, and tells by `*type` whether the number is that of
/// the 1927 definition (type 9) or of the 1983 one (type 10).
///
/// Outputs may be null. Where two zones share a number, the first one is found. Returns false, with nothing written,
/// for 0 and for numbers that no zone has.
ZRPROJ_API bool ProjGetStateZoneFromPOSCNumber(int posc, ProjType* type, StateZoneType* zone);

/// Stores the POSC (EPSG) number of a zone's 1927 (type 9) or 1983 (type 10) definition in `*posc` unless that is null.
/// Returns false, with nothing written, for any other type, a number that is no zone, and a definition without a
/// number.
ZRPROJ_API bool ProjStateZoneToPOSCNumber(ProjType type, StateZoneType zone, int* posc);

/// Rewrites a State Plane record (Type 9 or 10, Zone 0 to 141) into the projection that the zone is defined by: Type,
/// Ellipsoid, MajorRadius, Flattening, Lon0, Lat0, Lon1, Lat1, Lon2, Lat2, xOrg, yOrg and K0 are set (degrees, metres),
/// and for the Hotine zones Alpha and the flags that the definition names. Other fields stay as they are.
///
/// Zone becomes 142 on failure, which is how to tell: for any other Type, a number that is no zone, and a zone without
/// a definition for that year. In the last case the fields from Lon0 to K0 above are cleared too. Null is ignored.
ZRPROJ_API void ProjGetStateZoneParams(PROJDATA* data);

/// Gives the central meridian of a UTM zone, whole degrees from -177 to 177. Numbers outside 1 to 60 wrap: 0 gives 177,
/// 61 gives -177.
ZRPROJ_API double ProjUTMZoneNumberToLon(int zone);

/// Gives the UTM zone, 1 to 60, of a longitude in degrees, which may be turns away.
///
/// The longitude is truncated toward zero first, so that longitudes between -1 and 0 fall into zone 31. Longitudes
/// below -129780 give numbers that are no zone; one that is not finite gives 0.
ZRPROJ_API int ProjUTMLonToZoneNumber(double lon);

/// Writes a UTM zone's name and a closing null to `buffer`, which has `bufferSize` bytes; 24 hold every name. Zone
/// numbers outside 1 to 60 wrap. Returns false, with `buffer` untouched, when it is null or too small, and for a number
/// that is no format.
ZRPROJ_API bool ProjUTMZoneNumberToName(int zone, bool south, char* buffer, int bufferSize, UTMZoneNameFormat format);

/// Reads a UTM zone from text: the first number in it, with an optional sign, and the letter that follows it directly
/// or after blanks, 's' or 'S' meaning south and anything else north.
///
/// "Zone 17N", "17 s" and what ProjUTMZoneNumberToName writes are all read; numbers outside 1 to 60 wrap ("-3" is zone
/// 57). Outputs may be null. Returns false, with nothing written, for null and for a text without a number.
ZRPROJ_API bool ProjUTMZoneNameToNumber(char const* name, int* zone, bool* south);

} // namespace ZrProj

#endif
