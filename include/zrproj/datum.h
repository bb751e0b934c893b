// Datums: a fixed catalogue of 236, each with its way to WGS 84, and handles that convert points from one to another.
//
//     ZrProj::DATUMXFORM request = {};
//     request.Source = ZrProj::DatumTypeEuropean1950Mean;
//     request.Destination = ZrProj::DatumTypeWorldGeodeticSystem1984;
//     ZrProj::CDatumTransform toWgs84(&request);
//     ZrProj::DATUMPOINT p = {9.19, 45.46};   // longitude, latitude
//     toWgs84.Convert(&p, 1);
//
// Angles are decimal degrees, east and north positive; rotations are arcseconds and lengths metres. A conversion is as
// good as its datums' parameters: 5 to 25 m for Molodensky inside the datum's area, a metre to a few for Bursa-Wolf,
// 1 to 3 m for regression equations, decimetres for NADCON. Its arithmetic adds nothing to that.
//
// A handle is one thread's at a time, since conversions write its flag; distinct handles may be used at once.
#ifndef ZRPROJ_DATUM_H
#define ZRPROJ_DATUM_H

#include "api.h"
#include "ellipsoid.h"

#include <cstdint>

namespace ZrProj {

/// A datum, 0 to 236. Each line says the area that the datum's parameters were determined in, outside of which they may
/// be worse than useless, and its ellipsoid, or the method where that implies it (MRE: regression equations). Datums
/// with "Mean" in their name serve an area that those named after its parts serve better. The spellings are the
/// catalogue's own.
enum DatumType : std::int32_t {
    DatumTypeUserDefined = 0,                            ///< a record of the caller's own says it
    DatumTypeNorthAmericanDatum1983 = 1,                 ///< North America; GRS 1980 / IUGG 1980
    DatumTypeNorthAmericanDatum1927 = 2,                 ///< contiguous United States; Clarke 1866
    DatumTypeWorldGeodeticSystem1984 = 3,                ///< the world; WGS 84
    DatumTypeWorldGeodeticSystem1972 = 4,                ///< the world; WGS 72
    DatumTypeEuropean1950Mean = 5,                       ///< western Europe; International 1924
    DatumTypeSouthAmerican1969 = 6,                      ///< South America; Australian Natl & S. Amer. 1969
    DatumTypeTokyo = 7,                                  ///< Japan, Korea, Okinawa; Bessel 1841
    DatumTypeAdindanMean = 8,                            ///< Ethiopia and Sudan; Clarke 1880 mod.
    DatumTypeAdindanBurkinaFaso = 9,                     ///< Burkina Faso; Clarke 1880 mod.
    DatumTypeAdindanCameroon = 10,                       ///< Cameroon; Clarke 1880 mod.
    DatumTypeAdindanEthiopia = 11,                       ///< Ethiopia; Clarke 1880 mod.
    DatumTypeAdindanMali = 12,                           ///< Mali; Clarke 1880 mod.
    DatumTypeAdindanSenegal = 13,                        ///< Senegal; Clarke 1880 mod.
    DatumTypeAdindanSudan = 14,                          ///< Sudan; Clarke 1880 mod.
    DatumTypeAfgooyeSomalia = 15,                        ///< Somalia; Krassovsky, 1942
    DatumTypeAinElAbdBahrainIsland = 16,                 ///< Bahrain; International 1924
    DatumTypeAinElAbdSaudiArabia = 17,                   ///< Saudi Arabia; International 1924
    DatumTypeAnna1Astro1965 = 18,                        ///< Cocos Islands; Australian Natl & S. Amer. 1969
    DatumTypeAmericanSamoaIslands1962 = 19,              ///< American Samoa; Clarke 1866
    DatumTypeAntiguaIslandAstro1943 = 20,                ///< Antigua, Leeward Islands; Clarke 1880 mod.
    DatumTypeArc1950Mean = 21,                           ///< southern Africa from Zaire to Botswana; Clarke 1880 mod.
    DatumTypeArc1950Botswana = 22,                       ///< Botswana; Clarke 1880 mod.
    DatumTypeArc1950Burundi = 23,                        ///< Burundi; Clarke 1880 mod.
    DatumTypeArc1950Lesotho = 24,                        ///< Lesotho; Clarke 1880 mod.
    DatumTypeArc1950Malawi = 25,                         ///< Malawi; Clarke 1880 mod.
    DatumTypeArc1950Swaziland = 26,                      ///< Swaziland; Clarke 1880 mod.
    DatumTypeArc1950Zaire = 27,                          ///< Zaire; Clarke 1880 mod.
    DatumTypeArc1950Zambia = 28,                         ///< Zambia; Clarke 1880 mod.
    DatumTypeArc1950Zimbabwe = 29,                       ///< Zimbabwe; Clarke 1880 mod.
    DatumTypeArc1960Mean = 30,                           ///< Kenya and Tanzania; Clarke 1880 mod.
    DatumTypeAscensionIsland1958 = 31,                   ///< Ascension Island; International 1924
    DatumTypeAstroBeaconE1945 = 32,                      ///< Iwo Jima; International 1924
    DatumTypeAstroB4SorolAtoll = 33,                     ///< Tern Island, Hawaii; International 1924
    DatumTypeAstroDos71_4 = 34,                          ///< St. Helena; International 1924
    DatumTypeAstroTernIsland1961 = 35,                   ///< Tern Island, Hawaii; International 1924
    DatumTypeAstronomicStation1952 = 36,                 ///< Marcus Island; International 1924
    DatumTypeAustralianGeodetic1966 = 37,                ///< Australia and Tasmania; Australian Natl & S. Amer. 1969
    DatumTypeAustralianGeodetic1984 = 38,                ///< Australia and Tasmania; Australian Natl & S. Amer. 1969
    DatumTypeAyabelleLighthouse = 39,                    ///< Djibouti; Clarke 1880 mod.
    DatumTypeBelgium = 40,                               ///< Belgium; International 1924
    DatumTypeBellevue = 41,                              ///< Efate and Erromango, Vanuatu; International 1924
    DatumTypeBermuda1957 = 42,                           ///< Bermuda; Clarke 1866
    DatumTypeBissau = 43,                                ///< Guinea-Bissau; International 1924
    DatumTypeBogotaObservatory = 44,                     ///< Colombia; International 1924
    DatumTypeBukitRimpahBangkaBelitungIs = 45,           ///< Bangka and Belitung, Indonesia; Bessel 1841
    DatumTypeCampAreaAstroAntarctica = 46,               ///< McMurdo, Antarctica; International 1924
    DatumTypeCampoInchausepeArgentina = 47,              ///< Argentina; International 1924
    DatumTypeCantonAstro1966 = 48,                       ///< Phoenix Islands; International 1924
    DatumTypeCape = 49,                                  ///< South Africa; Clarke 1880 mod.
    DatumTypeCapeCanaveral = 50,                         ///< Florida and the Bahamas; Clarke 1866
    DatumTypeCarthageTunisia = 51,                       ///< Tunisia; Clarke 1880 mod.
    DatumTypeChatham1971 = 52,                           ///< Chatham Island, New Zealand; International 1924
    DatumTypeChuaAstro = 53,                             ///< Paraguay; International 1924
    DatumTypeCorregoAlegreBrazil = 54,                   ///< Brazil; International 1924
    DatumTypeCzechoslovakiaBefore1993 = 55,              ///< Czechoslovakia; Bessel 1841
    DatumTypeDabola = 56,                                ///< Guinea; Clarke 1880 mod.
    DatumTypeDeceptionIslandAntarctica = 57,             ///< Deception Island, Antarctica; Clarke 1880 mod.
    DatumTypeDjakartaSumatra = 58,                       ///< Sumatra; Bessel 1841
    DatumTypeDLxPortugal = 59,                           ///< Portugal; International 1924
    DatumTypeD73Portugal = 60,                           ///< Portugal; International 1924
    DatumTypeDos1968 = 61,                               ///< Gizo, Solomon Islands; International 1924
    DatumTypeEasterIsland1967 = 62,                      ///< Easter Island; International 1924
    DatumTypeFahud = 63,                                 ///< Oman; Clarke 1880 mod.
    DatumTypeEuropean1950WEurope = 64,                   ///< Denmark to France and Austria; International 1924
    DatumTypeEuropean1950UKIreland = 65,                 ///< Great Britain and Ireland; International 1924
    DatumTypeEuropean1950UKOnly = 66,                    ///< Great Britain; International 1924
    DatumTypeEuropean1950Cyprus = 67,                    ///< Cyprus; International 1924
    DatumTypeEuropean1950Egypt = 68,                     ///< Egypt; International 1924
    DatumTypeEuropean1950IraqIsraelJordanEtc = 69,       ///< Iraq, Israel, Jordan and around; International 1924
    DatumTypeEuropean1950Iran = 70,                      ///< Iran; International 1924
    DatumTypeEuropean1950Greece = 71,                    ///< Greece; International 1924
    DatumTypeEuropean1950Sardinia = 72,                  ///< Sardinia; International 1924
    DatumTypeEuropean1950Sicily = 73,                    ///< Sicily; International 1924
    DatumTypeEuropean1950Malta = 74,                     ///< Malta; International 1924
    DatumTypeEuropean1950NorwayFinland = 75,             ///< Norway and Finland; International 1924
    DatumTypeEuropean1950PortSpain = 76,                 ///< Portugal and Spain; International 1924
    DatumTypeEur1979Mean = 77,                           ///< Europe, Spain to Finland; International 1924
    DatumTypeEuropean1950Tunisia = 78,                   ///< Tunisia; International 1924
    DatumTypeFortThomas1955 = 79,                        ///< St. Kitts and Nevis; Clarke 1880 mod.
    DatumTypeGandajika1970 = 80,                         ///< Maldives; International 1924
    DatumTypeGeodeticDatum1949NewZealand = 81,           ///< New Zealand; International 1924
    DatumTypeGraciosaBaseSW1948 = 82,                    ///< central Azores; International 1924
    DatumTypeGuam1963 = 83,                              ///< Guam; Clarke 1866
    DatumTypeGux1Astro = 84,                             ///< Guadalcanal; International 1924
    DatumTypeGunungSegaraKalimantanIndonesia = 85,       ///< Kalimantan, Indonesia; Bessel 1841
    DatumTypeHeratNorthAfghanistan = 86,                 ///< Afghanistan; International 1924
    DatumTypeHjorsey1955Iceland = 87,                    ///< Iceland; International 1924
    DatumTypeHongKong1963 = 88,                          ///< Hong Kong; International 1924
    DatumTypeHuTzuShan = 89,                             ///< Taiwan; International 1924
    DatumTypeIndianPakistan = 90,                        ///< Pakistan; Everest Pakistan
    DatumTypeIndianBangladesh = 91,                      ///< Bangladesh; Everest 1830
    DatumTypeIndianIndiaNepal = 92,                      ///< India and Nepal; Everest 1956
    DatumTypeIndian1954 = 93,                            ///< mainland Southeast Asia; Everest 1830
    DatumTypeIndian1954Thailand = 94,                    ///< Thailand; Everest 1830
    DatumTypeIndian1960Vietnam = 95,                     ///< Vietnam; Everest 1830
    DatumTypeIndian1960ConSonIsland = 96,                ///< Con Son Island, Vietnam; Everest 1830
    DatumTypeIndian1975Thailand = 97,                    ///< Thailand; Everest 1830
    DatumTypeIndonesian1974 = 98,                        ///< Indonesia; Indonesian 1974
    DatumTypeIreland1965 = 99,                           ///< Ireland; Modified Airy
    DatumTypeIsts061Astro1968 = 100,                     ///< South Georgia; International 1924
    DatumTypeIsts073Astro1969 = 101,                     ///< Diego Garcia; International 1924
    DatumTypeJohnstonIsland1961 = 102,                   ///< Johnston Island; International 1924
    DatumTypeKandawalaSriLanka = 103,                    ///< Sri Lanka; Everest 1830
    DatumTypeKerguelenIsland1949 = 104,                  ///< Kerguelen; International 1924
    DatumTypeKertau1948WestMalaysiaSingapore = 105,      ///< West Malaysia and Singapore; Everest 1948
    DatumTypeKusaieAstro1951 = 106,                      ///< Kosrae, Caroline Islands; International 1924
    DatumTypeLC5Astro1961 = 107,                         ///< Cayman Brac; Clarke 1866
    DatumTypeLeigon = 108,                               ///< Ghana; Clarke 1880 mod.
    DatumTypeLiberia1964 = 109,                          ///< Liberia; Clarke 1880 mod.
    DatumTypeLuzonPhilippinesExeptMindanaoIsland = 110,  ///< Philippines but Mindanao; Clarke 1866
    DatumTypeLuzonMindanaoIsland = 111,                  ///< Mindanao, Philippines; Clarke 1866
    DatumTypeMahe1971 = 112,                             ///< Mahe, Seychelles; Clarke 1880 mod.
    DatumTypeMarcoAstro = 113,                           ///< Salvage Islands; International 1924
    DatumTypeMassawaEritrea = 114,                       ///< Eritrea; Bessel 1841
    DatumTypeMerchichMorocco = 115,                      ///< Morocco; Clarke 1880 mod.
    DatumTypeMidwayAstro1961 = 116,                      ///< Midway Islands; International 1924
    DatumTypeMinnaNigeria = 117,                         ///< Nigeria; Clarke 1880 mod.
    DatumTypeMinnaCameroon = 118,                        ///< Cameroon; Clarke 1880 mod.
    DatumTypeMontserratIslandAstro1958 = 119,            ///< Montserrat; Clarke 1880 mod.
    DatumTypeNahrwanMasirahIsland = 120,                 ///< Masirah Island, Oman; Clarke 1880 mod.
    DatumTypeNahrwanUArabEmer = 121,                     ///< United Arab Emirates; Clarke 1880 mod.
    DatumTypeNahrwanSaudiArabia = 122,                   ///< Saudi Arabia; Clarke 1880 mod.
    DatumTypeNaparimaBwi = 123,                          ///< Trinidad and Tobago; International 1924
    DatumTypeNad1927Conus = 124,                         ///< contiguous United States; Clarke 1866
    DatumTypeNad1927WesternUS = 125,                     ///< United States, west of the Mississippi; Clarke 1866
    DatumTypeNad1927EasternUS = 126,                     ///< United States, east of the Mississippi; Clarke 1866
    DatumTypeNad1927Alaska = 127,                        ///< Alaska; Clarke 1866
    DatumTypeNad1927EastOf180WAleutians = 128,           ///< Aleutians east of 180 degrees; Clarke 1866
    DatumTypeNad1927WestOf180WAleutians = 129,           ///< Aleutians west of 180 degrees; Clarke 1866
    DatumTypeNad1927AleutianIslands = 130,               ///< Aleutian Islands; Clarke 1866
    DatumTypeNad1927Bahamas = 131,                       ///< Bahamas but San Salvador Island; Clarke 1866
    DatumTypeNad1927CanadaMean = 132,                    ///< Canada; Clarke 1866
    DatumTypeNad1927CanadaAlbBC = 133,                   ///< Alberta and British Columbia; Clarke 1866
    DatumTypeNad1927CanadaEastern = 134,                 ///< Newfoundland to Quebec; Clarke 1866
    DatumTypeNad1927CanadaManOnt = 135,                  ///< Manitoba and Ontario; Clarke 1866
    DatumTypeNad1927CanadaNWSas = 136,                   ///< Northwest Territories, Saskatchewan; Clarke 1866
    DatumTypeNad1927CanadaYukon = 137,                   ///< Yukon; Clarke 1866
    DatumTypeNad1927CanalZone = 138,                     ///< Panama Canal Zone; Clarke 1866
    DatumTypeNad1927Caribbean = 139,                     ///< Caribbean islands; Clarke 1866
    DatumTypeNad1927CentralAmerica = 140,                ///< Belize to Costa Rica; Clarke 1866
    DatumTypeNad1927Cuba = 141,                          ///< Cuba; Clarke 1866
    DatumTypeNad1927Greenland = 142,                     ///< Hayes Peninsula, Greenland; Clarke 1866
    DatumTypeNad1927Hawaii = 143,                        ///< Hawaii; Clarke 1866
    DatumTypeNad1927Mexico = 144,                        ///< Mexico; Clarke 1866
    DatumTypeNad1927SanSalvadorIsland = 145,             ///< San Salvador Island, Bahamas; Clarke 1866
    DatumTypeNetherlands = 146,                          ///< Netherlands; Bessel 1841
    DatumTypeNtfFranceParisMeridian = 147,               ///< France, longitudes from Paris; International 1924
    DatumTypeNtfFranceGreenwichMeridian = 148,           ///< France; Clarke 1880 mod.
    DatumTypeObservatorio1939 = 149,                     ///< Corvo and Flores, Azores; International 1924
    DatumTypeOldEgyptian1907Egypt = 150,                 ///< Egypt; Helmert 1906
    DatumTypeOldHawaiianMean = 151,                      ///< Hawaii, all islands; Clarke 1866
    DatumTypeOldHawaiianHawaii = 152,                    ///< Hawaii, the island; Clarke 1866
    DatumTypeOldHawaiianKauai = 153,                     ///< Kauai; Clarke 1866
    DatumTypeOldHawaiianMaui = 154,                      ///< Maui; Clarke 1866
    DatumTypeOldHawaiianOahu = 155,                      ///< Oahu; Clarke 1866
    DatumTypeOman = 156,                                 ///< Oman; Clarke 1880 mod.
    DatumTypeOrdSurvOfGrBr1936 = 157,                    ///< Great Britain; Airy 1830
    DatumTypeOrdSurv1936ScotlandShetland = 158,          ///< Scotland and Shetland; Airy 1830
    DatumTypeOrdSurv1936Wales = 159,                     ///< Wales; Airy 1830
    DatumTypePicoDeLasNieves = 160,                      ///< Canary Islands; International 1924
    DatumTypePitcairnAstro1967 = 161,                    ///< Pitcairn Island; International 1924
    DatumTypePortoSanto1936 = 162,                       ///< Porto Santo and Madeira; International 1924
    DatumTypePoint58 = 163,                              ///< Burkina Faso and Niger; Clarke 1880 mod.
    DatumTypePointeNoire1948 = 164,                      ///< Congo; Clarke 1880 mod.
    DatumTypeProvSA1956Mean = 165,                       ///< South America, Venezuela to Chile; International 1924
    DatumTypeProvSA1956Bolivia = 166,                    ///< Bolivia; International 1924
    DatumTypeProvSA1956NChile = 167,                     ///< northern Chile; International 1924
    DatumTypeProvSA1956SChile = 168,                     ///< southern Chile; International 1924
    DatumTypeProvSA1956Colombia = 169,                   ///< Colombia; International 1924
    DatumTypeProvSA1956Ecuador = 170,                    ///< Ecuador; International 1924
    DatumTypeProvSA1956Guyana = 171,                     ///< Guyana; International 1924
    DatumTypeProvSA1956Peru = 172,                       ///< Peru; International 1924
    DatumTypeProvSA1956Venez = 173,                      ///< Venezuela; International 1924
    DatumTypeProvSoChilean1963 = 174,                    ///< Tierra del Fuego; International 1924
    DatumTypePuertoRico = 175,                           ///< Puerto Rico and Virgin Islands; Clarke 1866
    DatumTypePulkovo1942Hungary = 176,                   ///< Hungary; Krassovsky, 1942
    DatumTypeQatarNational = 177,                        ///< Qatar; International 1924
    DatumTypeQornoq = 178,                               ///< southern Greenland; International 1924
    DatumTypeReunion = 179,                              ///< Reunion; International 1924
    DatumTypeRome1940 = 180,                             ///< Sardinia; International 1924
    DatumTypeSantoDos1965 = 181,                         ///< Espiritu Santo, Vanuatu; International 1924
    DatumTypeSaoBraz = 182,                              ///< Sao Miguel and Santa Maria, Azores; International 1924
    DatumTypeSapperHill1943 = 183,                       ///< East Falkland; International 1924
    DatumTypeSchwarzeck = 184,                           ///< Namibia; Bessel 1841 (Namibia)
    DatumTypeSelvagemGrande1938 = 185,                   ///< Salvage Islands; International 1924
    DatumTypeSoAmer1969Mean = 186,                       ///< South America; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Argentina = 187,                  ///< Argentina; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Bolivia = 188,                    ///< Bolivia; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Brazil = 189,                     ///< Brazil; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Chile = 190,                      ///< Chile; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Colombia = 191,                   ///< Colombia; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Ecuador = 192,                    ///< Ecuador; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Baltra = 193,                     ///< Galapagos Islands; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Guyana = 194,                     ///< Guyana; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Paraguay = 195,                   ///< Paraguay; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Peru = 196,                       ///< Peru; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Trinidad = 197,                   ///< Trinidad and Tobago; Australian Natl & S. Amer. 1969
    DatumTypeSoAmer1969Venezuela = 198,                  ///< Venezuela; Australian Natl & S. Amer. 1969
    DatumTypeSouthAsia = 199,                            ///< Singapore; Modified Fischer 1960
    DatumTypeSoutheastBase = 200,                        ///< Porto Santo and Madeira; International 1924
    DatumTypeSouthwestBaseAzores = 201,                  ///< central Azores; International 1924
    DatumTypeTananariveObservatory1925Madagascar = 202,  ///< Madagascar; International 1924
    DatumTypeTimbalai1948Brunei = 203,                   ///< Brunei and East Malaysia; Everest - Brunei
    DatumTypeTokyoMean = 204,                            ///< Japan, Korea, Okinawa; Bessel 1841
    DatumTypeTokyoJapan = 205,                           ///< Japan; Bessel 1841
    DatumTypeTokyoKorea = 206,                           ///< Korea; Bessel 1841
    DatumTypeTokyoOkinawa = 207,                         ///< Okinawa; Bessel 1841
    DatumTypeTokyoSouthKorea = 208,                      ///< South Korea; Bessel 1841
    DatumTypeTristanAstro1968 = 209,                     ///< Tristan da Cunha; International 1924
    DatumTypeVitiLevu1916 = 210,                         ///< Viti Levu, Fiji; Clarke 1880 mod.
    DatumTypeWakeEniwetok1960 = 211,                     ///< Marshall Islands; Hough
    DatumTypeWakeIslandAstro1952 = 212,                  ///< Wake Island; International 1924
    DatumTypeYacareUruguay = 213,                        ///< Uruguay; International 1924
    DatumTypeZanderijSuriname = 214,                     ///< Suriname; International 1924
    DatumTypeWorldGeodeticSystem1972BursaWolf = 215,     ///< the world; WGS 72
    DatumTypeDhdn1BursaWolf = 216,                       ///< Germany; Bessel Modified
    DatumTypeDhdnBursaWolf = 217,                        ///< Germany; Bessel Modified
    DatumTypeAustralianGeodetic1984BursaWolf = 218,      ///< Australia; Australian Natl & S. Amer. 1969
    DatumTypeAns84BursaWolf = 219,                       ///< Australia; Australian Natl & S. Amer. 1969
    DatumTypeMrtEverestModifiedBursaWolf = 220,          ///< West Malaysia; Everest 1948
    DatumTypeSwitzerlandCH1903BursaWolf = 221,           ///< Switzerland; Bessel 1841
    DatumTypeNtfFranceParisMeridianBursaWolf = 222,      ///< France, longitudes from Paris; Clarke 1880 mod.
    DatumTypePulkovo1942BursaWolf = 223,                 ///< eastern Europe; Krassovsky, 1942
    DatumTypeAustralianGeodetic1966Mre = 224,            ///< Australia; MRE
    DatumTypeAustralianGeodetic1984Mre = 225,            ///< Australia; MRE
    DatumTypeCampoInchausepeArgentinaMre = 226,          ///< Argentina; MRE
    DatumTypeCorregoAlegreBrazilMre = 227,               ///< Brazil; MRE
    DatumTypeEuropean1950Mre = 228,                      ///< western Europe; MRE
    DatumTypeNad1927ConusMre = 229,                      ///< contiguous United States; MRE
    DatumTypeNad1927CanadaMre = 230,                     ///< Canada; MRE
    DatumTypeSouthAmerican1969Mre = 231,                 ///< South America; MRE
    DatumTypeNad1927ConusNadcon = 232,                   ///< contiguous United States; NADCON
    DatumTypeNad1927PuertoRicoVirginIslandsNadcon = 233, ///< Puerto Rico and Virgin Islands; NADCON
    DatumTypeKrassovski1940EstoniaBursaWolf = 234,       ///< Estonia; Krassovsky, 1942
    DatumTypeEuref89Grs80BursaWolf = 235,                ///< Europe; GRS 1980 / IUGG 1980
    DatumTypePulkovo1942HungaryBursaWolf = 236,          ///< Hungary; Krassovsky, 1942
    DatumTypeNone = 237,                                 ///< no datum; an end mark
};

/// How a datum is carried to WGS 84.
enum DatumMethod : std::int32_t {
    DatumMethodNone = 0,       ///< not at all: its coordinates count as WGS 84
    DatumMethodNadcon = 1,     ///< NADCON grid shift; to WGS 84 only
    DatumMethodBursaWolf = 2,  ///< seven parameters, by way of geocentric coordinates; both ways
    DatumMethodMolodensky = 3, ///< three shifts by the standard formulas; both ways
    DatumMethodReserved = 4,   ///< no method; refused
    DatumMethodMRE = 5,        ///< multiple regression equations; to WGS 84 only
};

#pragma pack(push, 1)
/// How one datum is carried to WGS 84: 153 bytes without padding. Zero the whole record, then set what its method uses.
struct DATUM2WGS84 {
    DatumMethod Method;         ///< only None, Bursa-Wolf and Molodensky are computed from a record
    bool bFromWGS84;            ///< false: from the datum to WGS 84; true: from WGS 84 to the datum
    EllipsoidType Ellipsoid;    ///< 0: MajorRadius and Flattening are the caller's own
    double PrimeMeridian;       ///< longitude of the datum's prime meridian, degrees east of Greenwich, within 180
    double dX, dY, dZ;          ///< shifts to WGS 84, metres
    double rX, rY, rZ;          ///< rotations (Bursa-Wolf), arcseconds, within 3600 either way
    double Scale;               ///< scale (Bursa-Wolf), parts per million on top of 1
    double MajorRadius;         ///< semi-major axis, metres, above 0
    double Flattening;          ///< at least 0, below 1
    unsigned char Reserved[64]; ///< carried along unchanged
};

/// A request for a conversion: 315 bytes without padding. Zero the whole record, then set what is used. The source is
/// carried to WGS 84, and from there to the destination.
struct DATUMXFORM {
    DatumType Source, Destination; ///< 0 to 236 each; 0: the parameters below say it
    bool bFlag;                    ///< without effect
    DATUM2WGS84 SourceParams;      ///< used when Source is 0
    /// Used when Destination is 0; its bFromWGS84 must be set to go from WGS 84 to the datum.
    DATUM2WGS84 DestinationParams;
};
#pragma pack(pop)

/// Longitude in x and latitude in y, degrees. Both hold DBL_MAX where a point cannot be converted; such a point is
/// called marked.
struct DATUMPOINT {
    double x, y;
};

/// Tells how many DatumType values there are, "User Defined" and the catalogue: 237.
ZRPROJ_API int DatNumDatums();

/// Copies a datum's name into `name`, which needs 49 bytes: "User Defined" for 0, "" for a number that is no datum.
/// Null is ignored.
ZRPROJ_API void DatGetDatumName(DatumType type, char* name);

/// Finds a datum by its catalogue name. ASCII letter case is ignored and nothing is trimmed; "User Defined" is found,
/// as 0. Returns false, with nothing written, when no name matches and when a pointer is null.
ZRPROJ_API bool DatGetDatumFromName(DatumType* type, char const* name);

/// Stores a datum's POSC (EPSG) code in `*code` unless that is null. Returns false, with nothing written, for a datum
/// without a code, for 0, and for a number that is no datum.
ZRPROJ_API bool DatGetDatumPOSCNumber(DatumType type, int* code);

/// Finds the first datum with a POSC (EPSG) code: four share 6267, which gives 2, "North American Datum 1927". Returns
/// false, with nothing written, for a null pointer, for 0, and for a code that no datum has.
ZRPROJ_API bool DatGetDatumFromPOSCNumber(DatumType* type, int code);

/// Tells whether a datum can be converted to as well as from, which those of Molodensky and Bursa-Wolf can. Returns
/// false for 0 and for a number that is no datum.
ZRPROJ_API bool DatReversible(DatumType type);

/// Fills a record with a datum's parameters and its ellipsoid's figures from the catalogue. bFromWGS84 becomes false;
/// Reserved stays as it is.
///
/// Returns false, with nothing written, for a null pointer, for NADCON and regression datums, for 0, and for a number
/// that is no datum.
ZRPROJ_API bool DatGetDatumParams(DatumType type, DATUM2WGS84* params);

/// Stores a datum's method. Returns false, with nothing written, for a null pointer, for 0, and for a number that is no
/// datum.
ZRPROJ_API bool DatGetDatumMethod(DatumType type, DatumMethod* method);

/// Checks a request, which is never changed. Returns 0 when a handle can be made of it, otherwise what is at fault:
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
/// The scale may be anything. `message` may be null, otherwise it needs 260 bytes; it receives the reason, "" when
/// there is none. With `report` each fault but the null pointer also goes to the host's error callback by its number
/// (20249, 20250, 20260 to 20270).
ZRPROJ_API int DatCheckParams(DATUMXFORM const* xform, char* message, bool report);

/// Makes a handle that converts points. The request is checked with DatCheckParams first, reporting on.
///
/// A handle is also made for a request that DatConvertDatum cannot serve, one with a NADCON destination for instance.
/// Returns null for a null or refused request and when memory runs out. Delete the handle with DatDeleteDatum.
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
/// Returns true also when points were marked. Returns false for a null pointer and a count below 1; for a NADCON or
/// regression datum as the destination; for a user-defined end whose method is not 0, 2 or 3; and for a NADCON source
/// whose grid cannot be read. Points are then as they were, but for the grid's case: those before the failure may be
/// converted, or normalised, later ones are not.
ZRPROJ_API bool DatConvertDatum(void* handle, DATUMPOINT* points, int count);

/// Tells whether a handle's last conversion met or made a marked point. Returns false for null.
ZRPROJ_API bool DatHadUnplottables(void* handle);

/// Copies a handle's request to `xform`, as it was given. Returns false, with nothing written, when either is null.
ZRPROJ_API bool DatGetHandleInfo(void* handle, DATUMXFORM* xform);

/// Owns a datum handle. A member that forwards takes and returns what the function that it names does, and returns
/// false while no handle is owned. Copying makes a handle of its own from the source's request; assignment shares the
/// source's handle.
class ZRPROJ_API CDatumTransform {
public:
    /// Owns no handle yet.
    CDatumTransform();
    /// Makes a handle as Create does. IsCreated tells whether there is one.
    explicit CDatumTransform(DATUMXFORM const* xform);
    /// Makes a handle of its own from the source's request, so that each may go to a thread of its own. Owns none where
    /// the source does not, or where memory runs out.
    CDatumTransform(CDatumTransform const& other);
    /// Lets go of the handle.
    virtual ~CDatumTransform();
    /// Lets go of the present handle and shares the source's. Self-assignment is harmless.
    CDatumTransform& operator=(CDatumTransform const& other);

    /// Lets go of the present handle and makes a new one by DatCreateDatum. Returns false when that fails; no handle is
    /// then owned.
    bool Create(DATUMXFORM const* xform);
    /// Lets go of the handle; DatDeleteDatum.
    void Delete();
    /// Tells whether a handle is owned.
    bool IsCreated() const;
    /// Converts points in place; DatConvertDatum.
    bool Convert(DATUMPOINT* points, int count);
    /// Tells whether the last conversion met or made a marked point; DatHadUnplottables.
    bool HadUnplottables();
    /// Copies the handle's request; DatGetHandleInfo.
    bool GetInfo(DATUMXFORM* xform);

private:
    void* m_handle; // null: no handle is owned
};

} // namespace ZrProj

#endif
