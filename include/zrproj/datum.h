// Datums: a fixed catalogue of 236, each with its way to WGS 84, and handles that convert points from one to another.
//
//     ZrProj::DATUMXFORM request = {};
//     request.Source = ZrProj::DatumTypeEuropean1950Mean;
//     request.Destination = ZrProj::DatumTypeWorldGeodeticSystem1984;
//     ZrProj::CDatumTransform toWgs84(&request);
//     ZrProj::DATUMPOINT p = {9.19, 45.46};   // longitude, latitude
//     toWgs84.Convert(&p, 1);
#ifndef ZRPROJ_DATUM_H
#define ZRPROJ_DATUM_H

#include "api.h"
#include "ellipsoid.h"

#include <cstdint>

namespace ZrProj {

/// A datum: 0 is the one whose parameters the caller gives, 1 to 236 are the catalogue's, 237 means none.
enum DatumType : std::int32_t {
    DatumTypeUserDefined = 0,
    DatumTypeNorthAmericanDatum1983 = 1,
    DatumTypeNorthAmericanDatum1927 = 2,
    DatumTypeWorldGeodeticSystem1984 = 3,
    DatumTypeWorldGeodeticSystem1972 = 4,
    DatumTypeEuropean1950Mean = 5,
    DatumTypeSouthAmerican1969 = 6,
    DatumTypeTokyo = 7,
    DatumTypeAdindanMean = 8,
    DatumTypeAdindanBurkinaFaso = 9,
    DatumTypeAdindanCameroon = 10,
    DatumTypeAdindanEthiopia = 11,
    DatumTypeAdindanMali = 12,
    DatumTypeAdindanSenegal = 13,
    DatumTypeAdindanSudan = 14,
    DatumTypeAfgooyeSomalia = 15,
    DatumTypeAinElAbdBahrainIsland = 16,
    DatumTypeAinElAbdSaudiArabia = 17,
    DatumTypeAnna1Astro1965 = 18,
    DatumTypeAmericanSamoaIslands1962 = 19,
    DatumTypeAntiguaIslandAstro1943 = 20,
    DatumTypeArc1950Mean = 21,
    DatumTypeArc1950Botswana = 22,
    DatumTypeArc1950Burundi = 23,
    DatumTypeArc1950Lesotho = 24,
    DatumTypeArc1950Malawi = 25,
    DatumTypeArc1950Swaziland = 26,
    DatumTypeArc1950Zaire = 27,
    DatumTypeArc1950Zambia = 28,
    DatumTypeArc1950Zimbabwe = 29,
    DatumTypeArc1960Mean = 30,
    DatumTypeAscensionIsland1958 = 31,
    DatumTypeAstroBeaconE1945 = 32,
    DatumTypeAstroB4SorolAtoll = 33,
    DatumTypeAstroDos71_4 = 34,
    DatumTypeAstroTernIsland1961 = 35,
    DatumTypeAstronomicStation1952 = 36,
    DatumTypeAustralianGeodetic1966 = 37,
    DatumTypeAustralianGeodetic1984 = 38,
    DatumTypeAyabelleLighthouse = 39,
    DatumTypeBelgium = 40,
    DatumTypeBellevue = 41,
    DatumTypeBermuda1957 = 42,
    DatumTypeBissau = 43,
    DatumTypeBogotaObservatory = 44,
    DatumTypeBukitRimpahBangkaBelitungIs = 45,
    DatumTypeCampAreaAstroAntarctica = 46,
    DatumTypeCampoInchausepeArgentina = 47,
    DatumTypeCantonAstro1966 = 48,
    DatumTypeCape = 49,
    DatumTypeCapeCanaveral = 50,
    DatumTypeCarthageTunisia = 51,
    DatumTypeChatham1971 = 52,
    DatumTypeChuaAstro = 53,
    DatumTypeCorregoAlegreBrazil = 54,
    DatumTypeCzechoslovakiaBefore1993 = 55,
    DatumTypeDabola = 56,
    DatumTypeDeceptionIslandAntarctica = 57,
    DatumTypeDjakartaSumatra = 58,
    DatumTypeDLxPortugal = 59,
    DatumTypeD73Portugal = 60,
    DatumTypeDos1968 = 61,
    DatumTypeEasterIsland1967 = 62,
    DatumTypeFahud = 63,
    DatumTypeEuropean1950WEurope = 64,
    DatumTypeEuropean1950UKIreland = 65,
    DatumTypeEuropean1950UKOnly = 66,
    DatumTypeEuropean1950Cyprus = 67,
    DatumTypeEuropean1950Egypt = 68,
    DatumTypeEuropean1950IraqIsraelJordanEtc = 69,
    DatumTypeEuropean1950Iran = 70,
    DatumTypeEuropean1950Greece = 71,
    DatumTypeEuropean1950Sardinia = 72,
    DatumTypeEuropean1950Sicily = 73,
    DatumTypeEuropean1950Malta = 74,
    DatumTypeEuropean1950NorwayFinland = 75,
    DatumTypeEuropean1950PortSpain = 76,
    DatumTypeEur1979Mean = 77,
    DatumTypeEuropean1950Tunisia = 78,
    DatumTypeFortThomas1955 = 79,
    DatumTypeGandajika1970 = 80,
    DatumTypeGeodeticDatum1949NewZealand = 81,
    DatumTypeGraciosaBaseSW1948 = 82,
    DatumTypeGuam1963 = 83,
    DatumTypeGux1Astro = 84,
    DatumTypeGunungSegaraKalimantanIndonesia = 85,
    DatumTypeHeratNorthAfghanistan = 86,
    DatumTypeHjorsey1955Iceland = 87,
    DatumTypeHongKong1963 = 88,
    DatumTypeHuTzuShan = 89,
    DatumTypeIndianPakistan = 90,
    DatumTypeIndianBangladesh = 91,
    DatumTypeIndianIndiaNepal = 92,
    DatumTypeIndian1954 = 93,
    DatumTypeIndian1954Thailand = 94,
    DatumTypeIndian1960Vietnam = 95,
    DatumTypeIndian1960ConSonIsland = 96,
    DatumTypeIndian1975Thailand = 97,
    DatumTypeIndonesian1974 = 98,
    DatumTypeIreland1965 = 99,
    DatumTypeIsts061Astro1968 = 100,
    DatumTypeIsts073Astro1969 = 101,
    DatumTypeJohnstonIsland1961 = 102,
    DatumTypeKandawalaSriLanka = 103,
    DatumTypeKerguelenIsland1949 = 104,
    DatumTypeKertau1948WestMalaysiaSingapore = 105,
    DatumTypeKusaieAstro1951 = 106,
    DatumTypeLC5Astro1961 = 107,
    DatumTypeLeigon = 108,
    DatumTypeLiberia1964 = 109,
    DatumTypeLuzonPhilippinesExeptMindanaoIsland = 110,
    DatumTypeLuzonMindanaoIsland = 111,
    DatumTypeMahe1971 = 112,
    DatumTypeMarcoAstro = 113,
    DatumTypeMassawaEritrea = 114,
    DatumTypeMerchichMorocco = 115,
    DatumTypeMidwayAstro1961 = 116,
    DatumTypeMinnaNigeria = 117,
    DatumTypeMinnaCameroon = 118,
    DatumTypeMontserratIslandAstro1958 = 119,
    DatumTypeNahrwanMasirahIsland = 120,
    DatumTypeNahrwanUArabEmer = 121,
    DatumTypeNahrwanSaudiArabia = 122,
    DatumTypeNaparimaBwi = 123,
    DatumTypeNad1927Conus = 124,
    DatumTypeNad1927WesternUS = 125,
    DatumTypeNad1927EasternUS = 126,
    DatumTypeNad1927Alaska = 127,
    DatumTypeNad1927EastOf180WAleutians = 128,
    DatumTypeNad1927WestOf180WAleutians = 129,
    DatumTypeNad1927AleutianIslands = 130,
    DatumTypeNad1927Bahamas = 131,
    DatumTypeNad1927CanadaMean = 132,
    DatumTypeNad1927CanadaAlbBC = 133,
    DatumTypeNad1927CanadaEastern = 134,
    DatumTypeNad1927CanadaManOnt = 135,
    DatumTypeNad1927CanadaNWSas = 136,
    DatumTypeNad1927CanadaYukon = 137,
    DatumTypeNad1927CanalZone = 138,
    DatumTypeNad1927Caribbean = 139,
    DatumTypeNad1927CentralAmerica = 140,
    DatumTypeNad1927Cuba = 141,
    DatumTypeNad1927Greenland = 142,
    DatumTypeNad1927Hawaii = 143,
    DatumTypeNad1927Mexico = 144,
    DatumTypeNad1927SanSalvadorIsland = 145,
    DatumTypeNetherlands = 146,
    DatumTypeNtfFranceParisMeridian = 147,
    DatumTypeNtfFranceGreenwichMeridian = 148,
    DatumTypeObservatorio1939 = 149,
    DatumTypeOldEgyptian1907Egypt = 150,
    DatumTypeOldHawaiianMean = 151,
    DatumTypeOldHawaiianHawaii = 152,
    DatumTypeOldHawaiianKauai = 153,
    DatumTypeOldHawaiianMaui = 154,
    DatumTypeOldHawaiianOahu = 155,
    DatumTypeOman = 156,
    DatumTypeOrdSurvOfGrBr1936 = 157,
    DatumTypeOrdSurv1936ScotlandShetland = 158,
    DatumTypeOrdSurv1936Wales = 159,
    DatumTypePicoDeLasNieves = 160,
    DatumTypePitcairnAstro1967 = 161,
    DatumTypePortoSanto1936 = 162,
    DatumTypePoint58 = 163,
    DatumTypePointeNoire1948 = 164,
    DatumTypeProvSA1956Mean = 165,
    DatumTypeProvSA1956Bolivia = 166,
    DatumTypeProvSA1956NChile = 167,
    DatumTypeProvSA1956SChile = 168,
    DatumTypeProvSA1956Colombia = 169,
    DatumTypeProvSA1956Ecuador = 170,
    DatumTypeProvSA1956Guyana = 171,
    DatumTypeProvSA1956Peru = 172,
    DatumTypeProvSA1956Venez = 173,
    DatumTypeProvSoChilean1963 = 174,
    DatumTypePuertoRico = 175,
    DatumTypePulkovo1942Hungary = 176,
    DatumTypeQatarNational = 177,
    DatumTypeQornoq = 178,
    DatumTypeReunion = 179,
    DatumTypeRome1940 = 180,
    DatumTypeSantoDos1965 = 181,
    DatumTypeSaoBraz = 182,
    DatumTypeSapperHill1943 = 183,
    DatumTypeSchwarzeck = 184,
    DatumTypeSelvagemGrande1938 = 185,
    DatumTypeSoAmer1969Mean = 186,
    DatumTypeSoAmer1969Argentina = 187,
    DatumTypeSoAmer1969Bolivia = 188,
    DatumTypeSoAmer1969Brazil = 189,
    DatumTypeSoAmer1969Chile = 190,
    DatumTypeSoAmer1969Colombia = 191,
    DatumTypeSoAmer1969Ecuador = 192,
    DatumTypeSoAmer1969Baltra = 193,
    DatumTypeSoAmer1969Guyana = 194,
    DatumTypeSoAmer1969Paraguay = 195,
    DatumTypeSoAmer1969Peru = 196,
    DatumTypeSoAmer1969Trinidad = 197,
    DatumTypeSoAmer1969Venezuela = 198,
    DatumTypeSouthAsia = 199,
    DatumTypeSoutheastBase = 200,
    DatumTypeSouthwestBaseAzores = 201,
    DatumTypeTananariveObservatory1925Madagascar = 202,
    DatumTypeTimbalai1948Brunei = 203,
    DatumTypeTokyoMean = 204,
    DatumTypeTokyoJapan = 205,
    DatumTypeTokyoKorea = 206,
    DatumTypeTokyoOkinawa = 207,
    DatumTypeTokyoSouthKorea = 208,
    DatumTypeTristanAstro1968 = 209,
    DatumTypeVitiLevu1916 = 210,
    DatumTypeWakeEniwetok1960 = 211,
    DatumTypeWakeIslandAstro1952 = 212,
    DatumTypeYacareUruguay = 213,
    DatumTypeZanderijSuriname = 214,
    DatumTypeWorldGeodeticSystem1972BursaWolf = 215,
    DatumTypeDhdn1BursaWolf = 216,
    DatumTypeDhdnBursaWolf = 217,
    DatumTypeAustralianGeodetic1984BursaWolf = 218,
    DatumTypeAns84BursaWolf = 219,
    DatumTypeMrtEverestModifiedBursaWolf = 220,
    DatumTypeSwitzerlandCH1903BursaWolf = 221,
    DatumTypeNtfFranceParisMeridianBursaWolf = 222,
    DatumTypePulkovo1942BursaWolf = 223,
    DatumTypeAustralianGeodetic1966Mre = 224,
    DatumTypeAustralianGeodetic1984Mre = 225,
    DatumTypeCampoInchausepeArgentinaMre = 226,
    DatumTypeCorregoAlegreBrazilMre = 227,
    DatumTypeEuropean1950Mre = 228,
    DatumTypeNad1927ConusMre = 229,
    DatumTypeNad1927CanadaMre = 230,
    DatumTypeSouthAmerican1969Mre = 231,
    DatumTypeNad1927ConusNadcon = 232,
    DatumTypeNad1927PuertoRicoVirginIslandsNadcon = 233,
    DatumTypeKrassovski1940EstoniaBursaWolf = 234,
    DatumTypeEuref89Grs80BursaWolf = 235,
    DatumTypePulkovo1942HungaryBursaWolf = 236,
    DatumTypeNone = 237,
};

/// How a datum is carried to WGS 84.
enum DatumMethod : std::int32_t {
    DatumMethodNone = 0,       ///< not at all: its coordinates count as WGS 84
    DatumMethodNadcon = 1,     ///< NADCON grid shift; to WGS 84 only
    DatumMethodBursaWolf = 2,  ///< seven parameters, by way of geocentric coordinates
    DatumMethodMolodensky = 3, ///< three shifts, standard formulas
    DatumMethodReserved = 4,   ///< no method
    DatumMethodMRE = 5,        ///< multiple regression equations; to WGS 84 only
};

#pragma pack(push, 1)
/// How one datum is carried to WGS 84: 153 bytes without padding.
struct DATUM2WGS84 {
    DatumMethod Method;
    bool bFromWGS84;            ///< false: from the datum to WGS 84; true: from WGS 84 to the datum
    EllipsoidType Ellipsoid;    ///< 0: MajorRadius and Flattening are the caller's own
    double PrimeMeridian;       ///< longitude of the datum's prime meridian, degrees east of Greenwich
    double dX, dY, dZ;          ///< shifts to WGS 84, metres
    double rX, rY, rZ;          ///< rotations (Bursa-Wolf), arcseconds
    double Scale;               ///< Bursa-Wolf: parts per million on top of 1
    double MajorRadius;         ///< semi-major axis, metres
    double Flattening;          ///< at least 0, below 1
    unsigned char Reserved[64]; ///< carried along unchanged
};

/// A conversion: 315 bytes without padding. Zero the whole record, then set what is used.
struct DATUMXFORM {
    DatumType Source, Destination;
    bool bFlag;               ///< without effect
    DATUM2WGS84 SourceParams; ///< used when Source is 0
    DATUM2WGS84
    DestinationParams; ///< used when Destination is 0; bFromWGS84 must be set to go from WGS 84 to the datum
};
#pragma pack(pop)

/// Longitude and latitude, degrees. Both hold DBL_MAX where a point cannot be converted.
struct DATUMPOINT {
    double x, y;
};

/// The number of DatumType values, "User Defined" and the catalogue: 237.
ZRPROJ_API int DatNumDatums();

/// Copies a datum's name into `name`, at least 49 bytes: "User Defined" for 0, "" for a number that is no datum. Does
/// nothing for null.
ZRPROJ_API void DatGetDatumName(DatumType type, char* name);

/// Finds a datum by its catalogue name, letter case ignored, nothing trimmed. "User Defined" is found, as 0. Where
/// nothing matches, or a pointer is null, returns false and writes nothing.
ZRPROJ_API bool DatGetDatumFromName(DatumType* type, char const* name);

/// Stores a datum's POSC (EPSG) code in `*code` unless that is null. False, nothing written, for a datum without one,
/// for 0, and for a number that is no datum.
ZRPROJ_API bool DatGetDatumPOSCNumber(DatumType type, int* code);

/// Finds the first datum with a POSC (EPSG) code: four share 6267, which gives 2, "North American Datum 1927". False,
/// nothing written, for a null pointer, for 0, and for a code that no datum has.
ZRPROJ_API bool DatGetDatumFromPOSCNumber(DatumType* type, int code);

/// Whether a datum can be converted to as well as from: Molodensky and Bursa-Wolf. False for 0 and for a number that is
/// no datum.
ZRPROJ_API bool DatReversible(DatumType type);

/// Fills a record from the catalogue, with the figures of its ellipsoid and bFromWGS84 false; Reserved is left alone.
/// False, nothing written, for a null pointer, for NADCON and regression datums, for 0, and for a number that is no
/// datum.
ZRPROJ_API bool DatGetDatumParams(DatumType type, DATUM2WGS84* params);

/// Stores a datum's method. False, nothing written, for a null pointer, for 0, and for a number that is no datum.
ZRPROJ_API bool DatGetDatumMethod(DatumType type, DatumMethod* method);

/// Checks a request. Returns 0 when a handle can be made of it, otherwise what is at fault:
///
///     998        the pointer is null
///     1, 2       source, destination datum outside 0 to 236
///
/// and for a user-defined source (for the destination 12 more):
///
///     3          method outside 0 to 5, or 4; with methods 0, 1 and 5 nothing more is checked
///     4          ellipsoid outside 0 to 49
///     13, 14     ellipsoid 0: radius not above 0; flattening not at least 0 and below 1
///     5          prime meridian not within 180 degrees
///     6, 7, 8    dX, dY, dZ beyond 1.7014117331926443e38 (a NaN passes)
///     9, 10, 11  Bursa-Wolf: rX, rY, rZ not within 3600 arcseconds
///
/// The scale may be anything. `message` (at least 260 bytes, or null) receives the reason, "" when there is none. With
/// `report` each failure but the null pointer also goes to the host's error callback.
ZRPROJ_API int DatCheckParams(DATUMXFORM const* xform, char* message, bool report);

/// Makes a handle that converts points, after checking the request with DatCheckParams and reporting on. Null for a
/// null or refused request, or when memory runs out. Delete it with DatDeleteDatum.
ZRPROJ_API void* DatCreateDatum(DATUMXFORM const* xform);

/// Lets go of a handle; its memory is freed with the last CDatumTransform that shares it. Null is ignored.
ZRPROJ_API void DatDeleteDatum(void* handle);

/// Converts `count` points in place, heights taken as 0: from the source datum to WGS 84 by the source's method, and on
/// to the destination by the destination's. Where source and destination are the same datum of the catalogue, the
/// points stay as they are.
///
/// Longitudes are taken modulo 360 and latitudes folded over the pole (100 becomes 80; the longitude is not turned). A
/// longitude beyond 180 either way is converted as its equal within, and stays on the caller's side: 200 comes out near
/// 200. Points with an infinite, NaN or marked coordinate, and points for which a formula gives no finite result, are
/// marked: both coordinates become DBL_MAX, and DatHadUnplottables then gives true. The other points are converted.
///
/// Returns false for a null pointer and a count below 1; for a NADCON or regression datum as the destination; for a
/// user-defined end whose method is not 0, 2 or 3; and for a NADCON source whose grid cannot be read. Points are then
/// as they were, but for the grid's case: those before the failure may be converted, or normalised, later ones are not.
ZRPROJ_API bool DatConvertDatum(void* handle, DATUMPOINT* points, int count);

/// Whether the last conversion met or made a marked point; false for null.
ZRPROJ_API bool DatHadUnplottables(void* handle);

/// Copies a handle's request to `xform`, as it was given. False when either is null.
ZRPROJ_API bool DatGetHandleInfo(void* handle, DATUMXFORM* xform);

/// Owns a datum handle, and forwards to the function of the like name. Copying makes a handle of its own from the
/// source's request; assignment shares the source's handle.
class ZRPROJ_API CDatumTransform {
public:
    CDatumTransform();
    explicit CDatumTransform(DATUMXFORM const* xform);
    CDatumTransform(CDatumTransform const& other);
    virtual ~CDatumTransform();
    CDatumTransform& operator=(CDatumTransform const& other);

    /// Lets go of the present handle and makes a new one; false when that fails.
    bool Create(DATUMXFORM const* xform);
    void Delete();
    bool IsCreated() const;
    bool Convert(DATUMPOINT* points, int count);
    bool HadUnplottables();
    bool GetInfo(DATUMXFORM* xform);

private:
    void* m_handle;
};

} // namespace ZrProj

#endif
