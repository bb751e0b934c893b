// UTM and US State Plane zones.
#ifndef ZRPROJ_ZONES_H
#define ZRPROJ_ZONES_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

enum ProjType : std::int32_t; // projection.h
struct PROJDATA;              // projection.h

/// A State Plane zone, 0 to 141 in catalogue order; 142 means none. The spellings are the catalogue's own.
enum StateZoneType : std::int32_t {
    StateZoneTypeAlabamaEast = 0,
    StateZoneTypeAlabamaWest = 1,
    StateZoneTypeAlaska1 = 2,
    StateZoneTypeAlaska2 = 3,
    StateZoneTypeAlaska3 = 4,
    StateZoneTypeAlaska4 = 5,
    StateZoneTypeAlaska5 = 6,
    StateZoneTypeAlaska6 = 7,
    StateZoneTypeAlaska7 = 8,
    StateZoneTypeAlaska8 = 9,
    StateZoneTypeAlaska9 = 10,
    StateZoneTypeAlaska10 = 11,
    StateZoneTypeArizonaEast = 12,
    StateZoneTypeArizonaCentral = 13,
    StateZoneTypeArizonaWest = 14,
    StateZoneTypeArkansasNorth = 15,
    StateZoneTypeArkansasSouth = 16,
    StateZoneTypeCaliforniaI = 17,
    StateZoneTypeCaliforniaII = 18,
    StateZoneTypeCaliforniaIII = 19,
    StateZoneTypeCaliforniaIV = 20,
    StateZoneTypeCaliforniaV = 21,
    StateZoneTypeCaliforniaVI = 22,
    StateZoneTypeCaliforniaVII = 23,
    StateZoneTypeColoradoNorth = 24,
    StateZoneTypeColoradoCentral = 25,
    StateZoneTypeColoradoSouth = 26,
    StateZoneTypeConnecticut = 27,
    StateZoneTypeDeleware = 28,
    StateZoneTypeFloridaNorth = 29,
    StateZoneTypeFloridaEast = 30,
    StateZoneTypeFloridaWest = 31,
    StateZoneTypeGeorgiaEast = 32,
    StateZoneTypeGeorgiaWest = 33,
    StateZoneTypeGuamIsland = 34,
    StateZoneTypeHawaii1 = 35,
    StateZoneTypeHawaii2 = 36,
    StateZoneTypeHawaii3 = 37,
    StateZoneTypeHawaii4 = 38,
    StateZoneTypeHawaii5 = 39,
    StateZoneTypeIdahoEast = 40,
    StateZoneTypeIdahoCentral = 41,
    StateZoneTypeIdahoWest = 42,
    StateZoneTypeIllinoisEast = 43,
    StateZoneTypeIllinoisWest = 44,
    StateZoneTypeIndianaEast = 45,
    StateZoneTypeIndianaWest = 46,
    StateZoneTypeIowaNorth = 47,
    StateZoneTypeIowaSouth = 48,
    StateZoneTypeKansasNorth = 49,
    StateZoneTypeKansasSouth = 50,
    StateZoneTypeKentuckyNorth = 51,
    StateZoneTypeKentuckySouth = 52,
    StateZoneTypeLouisianaNorth = 53,
    StateZoneTypeLouisianaSouth = 54,
    StateZoneTypeLouisianaOffshore = 55,
    StateZoneTypeMaineEast = 56,
    StateZoneTypeMaineWest = 57,
    StateZoneTypeMaryland = 58,
    StateZoneTypeMassachusettsMainland = 59,
    StateZoneTypeMassachusettsIsland = 60,
    StateZoneTypeMichiganEastOld = 61,
    StateZoneTypeMichiganCentralOld = 62,
    StateZoneTypeMichiganWestOld = 63,
    StateZoneTypeMichiganNorth = 64,
    StateZoneTypeMichiganCentral = 65,
    StateZoneTypeMichiganSouth = 66,
    StateZoneTypeMinnesotaNorth = 67,
    StateZoneTypeMinnesotaCentral = 68,
    StateZoneTypeMinnesotaSouth = 69,
    StateZoneTypeMissippippiEast = 70,
    StateZoneTypeMissippippiWest = 71,
    StateZoneTypeMissouriEast = 72,
    StateZoneTypeMissouriCentral = 73,
    StateZoneTypeMissouriWest = 74,
    StateZoneTypeMontana = 75,
    StateZoneTypeMontanaNorth = 76,
    StateZoneTypeMontanaCentral = 77,
    StateZoneTypeMontanaSouth = 78,
    StateZoneTypeNebraska = 79,
    StateZoneTypeNebraskaNorth = 80,
    StateZoneTypeNebraskaSouth = 81,
    StateZoneTypeNevadaEast = 82,
    StateZoneTypeNevadaCentral = 83,
    StateZoneTypeNevadaWest = 84,
    StateZoneTypeNewHampshire = 85,
    StateZoneTypeNewJersey = 86,
    StateZoneTypeNewMexicoEast = 87,
    StateZoneTypeNewMexicoCentral = 88,
    StateZoneTypeNewMexicoWest = 89,
    StateZoneTypeNewYorkEast = 90,
    StateZoneTypeNewYorkCentral = 91,
    StateZoneTypeNewYorkWest = 92,
    StateZoneTypeNewYorkLongIsland = 93,
    StateZoneTypeNorthCarolina = 94,
    StateZoneTypeNorthDakotaNorth = 95,
    StateZoneTypeNorthDakotaSouth = 96,
    StateZoneTypeOhioNorth = 97,
    StateZoneTypeOhioSouth = 98,
    StateZoneTypeOklahomaNorth = 99,
    StateZoneTypeOklahomaSouth = 100,
    StateZoneTypeOregonNorth = 101,
    StateZoneTypeOregonSouth = 102,
    StateZoneTypePennsylvaniaNorth = 103,
    StateZoneTypePennsylvaniaSouth = 104,
    StateZoneTypePuertoRicoAndVirginIslands1983 = 105,
    StateZoneTypePuertoRicoAndVirginIslands1927 = 106,
    StateZoneTypeVirginIslandsStCroix1927 = 107,
    StateZoneTypeRhodeIsland = 108,
    StateZoneTypeAmericanSamoa = 109,
    StateZoneTypeSouthCarolina = 110,
    StateZoneTypeSouthCarolinaNorth = 111,
    StateZoneTypeSouthCarolinaSouth = 112,
    StateZoneTypeSouthDakotaNorth = 113,
    StateZoneTypeSouthDakotaSouth = 114,
    StateZoneTypeTennessee = 115,
    StateZoneTypeTexasNorth = 116,
    StateZoneTypeTexasNorthCentral = 117,
    StateZoneTypeTexasCentral = 118,
    StateZoneTypeTexasSouthCentral = 119,
    StateZoneTypeTexasSouth = 120,
    StateZoneTypeUtahNorth = 121,
    StateZoneTypeUtahCentral = 122,
    StateZoneTypeUtahSouth = 123,
    StateZoneTypeVermont = 124,
    StateZoneTypeVirginiaNorth = 125,
    StateZoneTypeVirginiaSouth = 126,
    StateZoneTypeWashingtonNorth = 127,
    StateZoneTypeWashingtonSouth = 128,
    StateZoneTypeWestVirginiaNorth = 129,
    StateZoneTypeWestVirginiaSouth = 130,
    StateZoneTypeWisconsinNorth = 131,
    StateZoneTypeWisconsinCentral = 132,
    StateZoneTypeWisconsinSouth = 133,
    StateZoneTypeWyomingEast = 134,
    StateZoneTypeWyomingEastCentral = 135,
    StateZoneTypeWyomingWestCentral = 136,
    StateZoneTypeWyomingWest = 137,
    StateZoneTypeGreatLakesSurvey1 = 138,
    StateZoneTypeGreatLakesSurvey2 = 139,
    StateZoneTypeGreatLakesSurvey3 = 140,
    StateZoneTypeGreatLakesSurvey4 = 141,
    StateZoneTypeNone = 142,
};

/// How ProjUTMZoneNumberToName writes a zone.
enum UTMZoneNameFormat : std::int32_t {
    UTMZoneNameFormatShort = 0,  ///< "Zone 17N"
    UTMZoneNameFormatLetter = 1, ///< "Zone 17N (084W to 078W)"
    UTMZoneNameFormatSign = 2,   ///< "Zone 17N (-84 to -78)"
};

/// Copies a zone's name and USGS code (0 where it has none) to whichever outputs are not null. For a number outside 0
/// to 141 the outputs become "" and 0. The longest name has 37 characters.
ZRPROJ_API void ProjGetStateZoneInfo(StateZoneType zone, char* name, int* usgsCode);

/// Finds a zone by its whole catalogue name, letter case ignored. Returns false for a null pointer or an empty name,
/// and, with `*zone` 142, when no name matches.
ZRPROJ_API bool ProjGetStateZoneFromName(StateZoneType* zone, char const* name);

/// Finds the first zone with a USGS code. Returns false for a null pointer or a negative code, and, with `*zone` 142,
/// when no zone has the code. Code 0 finds 138, the first zone without a code.
ZRPROJ_API bool ProjGetStateZoneFromUSGSCode(StateZoneType* zone, int code);

/// Finds a zone by the POSC (EPSG) number of its projected system, and tells by `*type` whether the number is that of
/// the 1927 definition (type 9) or of the 1983 one (type 10). Outputs may be null. Returns false, outputs untouched,
/// for 0 and for numbers that no zone has. Where two zones share a number, the first one is found.
ZRPROJ_API bool ProjGetStateZoneFromPOSCNumber(int posc, ProjType* type, StateZoneType* zone);

/// The POSC (EPSG) number of a zone's 1927 (type 9) or 1983 (type 10) definition, stored in `*posc` unless that is
/// null. Returns false for any other type, a number that is no zone, and a definition without a number.
ZRPROJ_API bool ProjStateZoneToPOSCNumber(ProjType type, StateZoneType zone, int* posc);

/// Rewrites a State Plane record (Type 9 or 10, Zone 0 to 141) into the projection that the zone is defined by: Type,
/// Ellipsoid, MajorRadius, Flattening, Lon0, Lat0, Lon1, Lat1, Lon2, Lat2, xOrg, yOrg and K0 are set (degrees, metres),
/// and for the Hotine zones Alpha and the flags that the definition names. Other fields stay as they are.
/// On failure (any other Type, a number that is no zone, a zone without a definition for that year) Zone becomes 142;
/// in the last case the fields from Lon0 to K0 above are cleared too. Null is ignored.
ZRPROJ_API void ProjGetStateZoneParams(PROJDATA* data);

/// The central meridian of a UTM zone, whole degrees. Numbers outside 1 to 60 wrap: 0 gives 177, 61 gives -177.
ZRPROJ_API double ProjUTMZoneNumberToLon(int zone);

/// The UTM zone, 1 to 60, of a longitude in degrees. The longitude is truncated toward zero first, so that longitudes
/// between -1 and 0 fall into zone 31. Longitudes below -129780 give numbers that are no zone; one that is not finite
/// gives 0.
ZRPROJ_API int ProjUTMLonToZoneNumber(double lon);

/// Writes a UTM zone's name. Zone numbers outside 1 to 60 wrap. Returns false, `buffer` untouched, when it is null or
/// its `bufferSize` bytes cannot hold the text and its closing null, and for any other format.
ZRPROJ_API bool ProjUTMZoneNumberToName(int zone, bool south, char* buffer, int bufferSize, UTMZoneNameFormat format);

/// Reads a UTM zone from text: the first number in it, with an optional sign, and the letter that follows it directly
/// or after blanks, 's' or 'S' meaning south and anything else north. "Zone 17N", "17 s" and what
/// ProjUTMZoneNumberToName writes are all read; numbers outside 1 to 60 wrap ("-3" is zone 57). Outputs may be null.
/// Returns false, outputs untouched, for null and for a text without a number.
ZRPROJ_API bool ProjUTMZoneNameToNumber(char const* name, int* zone, bool* south);

} // namespace ZrProj

#endif
