// Every name of the register, each ended by a 0, in the bytes of pairs.h.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr char texts[] =
    "(\03186)\002L<L\003\0" // (1986) - LatLon
    "(\2277)\002L<L\003\0" // (2007) - LatLon
    "(\231) Epoch \033\312\002L<L\003\0" // (2011) Epoch 2010 - LatLon
    "(\231)_PC@_!\2071_(ft)\0" // (2011)_PCCS_zone_1_(ft)
    "(\231)_PC@_!\2072_(ft)\0" // (2011)_PCCS_zone_2_(ft)
    "(\231)_PC@_!\2073_(ft)\0" // (2011)_PCCS_zone_3_(ft)
    "(\231)_PC@_!\2074_(ft)\0" // (2011)_PCCS_zone_4_(ft)
    "(CO|96) Epoch\32097.0\002L<L\003\0" // (CORS96) Epoch 1997.0 - LatLon
    "(CO|96) Epoch \2272.0\002L<L\003\0" // (CORS96) Epoch 2002.0 - LatLon
    "(@|)_v6_M\376Nov\253Sc\350i\253!\2074\0" // (CSRS)_v6_MTM_Nova_Scotia_zone_4
    "(@|)_v6_M\376Nov\253Sc\350i\253!\2075\0" // (CSRS)_v6_MTM_Nova_Scotia_zone_5
    "(FBN)\002L<L\003\0" // (FBN) - LatLon
    "(F\273\007\026_B\201\207N\036w\006k)\0" // (Federal_Base_Network)
    "(G\17750)\002L<L\003\0" // (G1150) - LatLon
    "(G1674)\002L<L\003\0" // (G1674) - LatLon
    "(G1762)\002L<L\003\0" // (G1762) - LatLon
    "(G7\375)\002L<L\003\0" // (G730) - LatLon
    "(G873)\002L<L\003\0" // (G873) - LatLon
    "(\332)\002L<L\003\0" // (HARN) - LatLon
    "(\332)\333ORRECTED\002L<L\003\0" // (HARN) CORRECTED - LatLon
    "(\332\374\006>\317\273)\0" // (HARN_Corrected)
    "(High_Acc\225acy_Ref\007\210c\207N\036w\006k-C\006>\317\273)\0" // (High_Accuracy_Reference_Network-Corrected)
    "(MA\177) Epoch \033\312\002L<L\003\0" // (MA11) Epoch 2010 - LatLon
    "(M\245P00)\002L<L\003\0" // (MARP00) - LatLon
    "(PA\177) Epoch \033\312\002L<L\003\0" // (PA11) Epoch 2010 - LatLon
    "(PACP00)\002L<L\003\0" // (PACP00) - LatLon
    "01 (ft\204)\0" // 01 (ftUS)
    "01 (m)\0" // 01 (m)
    "02 (ft\204)\0" // 02 (ftUS)
    "02 (m)\0" // 02 (m)
    "03 (ft\204)\0" // 03 (ftUS)
    "03 (m)\0" // 03 (m)
    "04 (ft\204)\0" // 04 (ftUS)
    "04 (m)\0" // 04 (m)
    "05-18 (ft\204)\0" // 05-18 (ftUS)
    "05-18 (m)\0" // 05-18 (m)
    "06-32 (ft\204)\0" // 06-32 (ftUS)
    "06-32 (m)\0" // 06-32 (m)
    "07 (ft\204)\0" // 07 (ftUS)
    "07 (m)\0" // 07 (m)
    "08 (ft\204)\0" // 08 (ftUS)
    "08 (m)\0" // 08 (m)
    "09 (ft\204)\0" // 09 (ftUS)
    "09 (m)\0" // 09 (m)
    "\312-22-72 (ft\204)\0" // 10-22-72 (ftUS)
    "\312-22-72 (m)\0" // 10-22-72 (m)
    "\312\376AEP\134\202\021\0" // 10TM_AEP_Forest
    "\312\376AEP_R\242\025rce\0" // 10TM_AEP_Resource
    "\177 (ft\204)\0" // 11 (ftUS)
    "\177 (m)\0" // 11 (m)
    "12 (ft\204)\0" // 12 (ftUS)
    "12 (m)\0" // 12 (m)
    "12_00\0" // 12_00
    "12`P#\026l\240\020\370v\220e\0" // 12th Parallel traverse
    "13-47-59 (ft\204)\0" // 13-47-59 (ftUS)
    "13-47-59 (m)\0" // 13-47-59 (m)
    "13_30\0" // 13_30
    "14-28 (ft\204)\0" // 14-28 (ftUS)
    "14-28 (m)\0" // 14-28 (m)
    "14_15\0" // 14_15
    "15-58-78 (ft\204)\0" // 15-58-78 (ftUS)
    "15-58-78 (m)\0" // 15-58-78 (m)
    "15_00\0" // 15_00
    "15_45\0" // 15_45
    "16-70 (ft\204)\0" // 16-70 (ftUS)
    "16-70 (m)\0" // 16-70 (m)
    "16_30\0" // 16_30
    "17 (ft\204)\0" // 17 (ftUS)
    "17 (m)\0" // 17 (m)
    "17_15\0" // 17_15
    "1\0140_Modifi\273\0" // 1830_Modified
    "1865\0" // 1865
    "1866_M$hig\005\0" // 1866_Michigan
    "1880_\326c\0" // 1880_Arc
    "1880_B\210o\243\0" // 1880_Benoit
    "1880_IGN\0" // 1880_IGN
    "1880_I\032l\134t\0" // 1880_Intl_Ft
    "1880_RGS\0" // 1880_RGS
    "1880_SGA\0" // 1880_SGA
    "18_00\0" // 18_00
    "18_45\0" // 18_45
    "\031-51 (ft\204)\0" // 19-51 (ftUS)
    "\031-51 (m)\0" // 19-51 (m)
    "\03101_Slov\210\207N<\321\026_Gr\257\0" // 1901_Slovene_National_Grid
    "\03101_Slov\210i\253Gr\257\0" // 1901_Slovenia_Grid
    "\03137_\355i\253Z\003\207IIb\0" // 1937_India_Zone_IIb
    "\03137_U\376Z\003\20745N\0" // 1937_UTM_Zone_45N
    "\03137_U\376Z\003\20746N\0" // 1937_UTM_Zone_46N
    "\03142/18\2053)\0" // 1942/18 (3)
    "\03142/21\2053)\0" // 1942/21 (3)
    "\03142/21\2056)\0" // 1942/21 (6)
    "\03142/24\2053)\0" // 1942/24 (3)
    "\03142/\313\2056)\0" // 1942/27 (6)
    "\03142\374\201p\335_Se\253M\007c<\006\0" // 1942_Caspian_Sea_Mercator
    "\03154_U\376Z\003\20746N\0" // 1954_UTM_Zone_46N
    "\03154_U\376Z\003\20747N\0" // 1954_UTM_Zone_47N
    "\03154_U\376Z\003\20748N\0" // 1954_UTM_Zone_48N
    "\03158_GUGiK-80\0" // 1958_GUGiK-80
    "\03160_\376\3126NE\0" // 1960_TM_106NE
    "\03160_U\376Z\003\20748N\0" // 1960_UTM_Zone_48N
    "\03160_U\376Z\003\20749N\0" // 1960_UTM_Zone_49N
    "\03161_U\376Z\003\20721S\0" // 1961_UTM_Zone_21S
    "\03161_U\376Z\003\20722S\0" // 1961_UTM_Zone_22S
    "\03161_U\376Z\003\20723S\0" // 1961_UTM_Zone_23S
    "\03161_U\376Z\003\20724S\0" // 1961_UTM_Zone_24S
    "\03162_\355i\253Z\003\207I\0" // 1962_India_Zone_I
    "\03162_\355i\253Z\003\207IIa\0" // 1962_India_Zone_IIa
    "\03162_U\376Z\003\20741N\0" // 1962_UTM_Zone_41N
    "\03162_U\376Z\003\20742N\0" // 1962_UTM_Zone_42N
    "\03162_U\376Z\003\20743N\0" // 1962_UTM_Zone_43N
    "\03165\270I\0" // 1965 zone I
    "\03165\270II\0" // 1965 zone II
    "\03165\270III\0" // 1965 zone III
    "\03165\270IV\0" // 1965 zone IV
    "\03165\270V\0" // 1965 zone V
    "\03168_Joh\006_Gr\257\0" // 1968_Johor_Grid
    "\03168_K\273\373_\035_P\007l=_Gr\257\0" // 1968_Kedah_and_Perlis_Grid
    "\03168_K\240\005t\005_Gr\257\0" // 1968_Kelantan_Grid
    "\03168_P\373\005g_Gr\257\0" // 1968_Pahang_Grid
    "\03168_P\007ak_Rev=\273_Gr\257\0" // 1968_Perak_Revised_Grid
    "\03168_P\024\005g_Gr\257\0" // 1968_Pinang_Grid
    "\03168_S\240\005g\006_Gr\257\0" // 1968_Selangor_Grid
    "\03168_S\206b\372\005_\035_M\240ak\253Gr\257\0" // 1968_Sembilan_and_Melaka_Grid
    "\03168_T\007\210gg\005u_Gr\257\0" // 1968_Terengganu_Grid
    "\03175 Mapp\024g Adju\021me\032\0" // 1975 Mapping Adjustment
    "\03175_U\376Z\003\20747N\0" // 1975_UTM_Zone_47N
    "\03175_U\376Z\003\20748N\0" // 1975_UTM_Zone_48N
    "\031\014_@|\0" // 1983_CSRS
    "\031\014_GK_Z\003\2072\0" // 1983_GK_Zone_2
    "\031\014_GK_Z\003\2072_E-N\0" // 1983_GK_Zone_2_E-N
    "\031\014_GK_Z\003\2073\0" // 1983_GK_Zone_3
    "\031\014_GK_Z\003\2073_E-N\0" // 1983_GK_Zone_3_E-N
    "\031\014_GK_Z\003\2074\0" // 1983_GK_Zone_4
    "\031\014_\332\0" // 1983_HARN
    "1_E-N\0" // 1_E-N
    "\033-43-85 (ft\204)\0" // 20-43-85 (ftUS)
    "\033-43-85 (m)\0" // 20-43-85 (m)
    "\2270 B\006nh\247m !\007\0" // 2000 Bornholm zoner
    "\2270 Jyl\211 !\007\0" // 2000 Jylland zoner
    "\2270{ja\240\211 !\007\0" // 2000 Sjaelland zoner
    "\2271 ext\210d\273\0" // 2001 extended
    "\033\312_U\376Z\003\20718S\0" // 2010_UTM_Zone_18S
    "\033\312_U\376Z\003\20719S\0" // 2010_UTM_Zone_19S
    "\03313_U\376Z\003\20718S\0" // 2013_UTM_Zone_18S
    "\03313_U\376Z\003\20719S\0" // 2013_UTM_Zone_19S
    "\03316_U\376Z\003\20718S\0" // 2016_UTM_Zone_18S
    "\03316_U\376Z\003\20719S\0" // 2016_UTM_Zone_19S
    "\033_15\0" // 20_15
    "21-24-81 (ft\204)\0" // 21-24-81 (ftUS)
    "21-24-81 (m)\0" // 21-24-81 (m)
    "21_45\0" // 21_45
    "23-86 (ft\204)\0" // 23-86 (ftUS)
    "23-86 (m)\0" // 23-86 (m)
    "23_15\0" // 23_15
    "25-50-71 (ft\204)\0" // 25-50-71 (ftUS)
    "25-50-71 (m)\0" // 25-50-71 (m)
    "26 (ft\204)\0" // 26 (ftUS)
    "26 (m)\0" // 26 (m)
    "\313 (ft\204)\0" // 27 (ftUS)
    "\313 (m)\0" // 27 (m)
    "29-80 (ft\204)\0" // 29-80 (ftUS)
    "29-80 (m)\0" // 29-80 (m)
    "\375-48 (ft\204)\0" // 30-48 (ftUS)
    "\375-48 (m)\0" // 30-48 (m)
    "31-88 (ft\204)\0" // 31-88 (ftUS)
    "31-88 (m)\0" // 31-88 (m)
    "31N_N-zE\0" // 31N_N-zE
    "31N_zE-N\0" // 31N_zE-N
    "32N_N-zE\0" // 32N_N-zE
    "33 (ft\204)\0" // 33 (ftUS)
    "33 (m)\0" // 33 (m)
    "33N_N-zE\0" // 33N_N-zE
    "33N_zE-N\0" // 33N_zE-N
    "34-52 (ft\204)\0" // 34-52 (ftUS)
    "34-52 (m)\0" // 34-52 (m)
    "34N_(N-E)\0" // 34N_(N-E)
    "35-92 (ft\204)\0" // 35-92 (ftUS)
    "35-92 (m)\0" // 35-92 (m)
    "35N_(N-E)\0" // 35N_(N-E)
    "36 (ft\204)\0" // 36 (ftUS)
    "36 (m)\0" // 36 (m)
    "37-64 (ft\204)\0" // 37-64 (ftUS)
    "37-64 (m)\0" // 37-64 (m)
    "38 (ft\204)\0" // 38 (ftUS)
    "38 (m)\0" // 38 (m)
    "39 (ft\204)\0" // 39 (ftUS)
    "39 (m)\0" // 39 (m)
    "3\376111\0" // 3TM_111
    "3\376114\0" // 3TM_114
    "3\376117\0" // 3TM_117
    "3\376120\0" // 3TM_120
    "3_(E-N)\0" // 3_(E-N)
    "40 (ft\204)\0" // 40 (ftUS)
    "40 (m)\0" // 40 (m)
    "41-49 (ft\204)\0" // 41-49 (ftUS)
    "41-49 (m)\0" // 41-49 (m)
    "42 (ft\204)\0" // 42 (ftUS)
    "42 (m)\0" // 42 (m)
    "42/58\0" // 42/58
    "42/83\0" // 42/83
    "44-57 (ft\204)\0" // 44-57 (ftUS)
    "44-57 (m)\0" // 44-57 (m)
    "45-56 (ft\204)\0" // 45-56 (ftUS)
    "45-56 (m)\0" // 45-56 (m)
    "46-66-75 (ft\204)\0" // 46-66-75 (ftUS)
    "46-66-75 (m)\0" // 46-66-75 (m)
    "4_(E-N)\0" // 4_(E-N)
    "53-55 (ft\204)\0" // 53-55 (ftUS)
    "53-55 (m)\0" // 53-55 (m)
    "54-67 (ft\204)\0" // 54-67 (ftUS)
    "54-67 (m)\0" // 54-67 (m)
    "58_St\007eo_70\0" // 58_Stereo_70
    "5_(E-N)\0" // 5_(E-N)
    "5_NE_dep>c<\273\0" // 5_NE_deprecated
    "6-deg>\012Ga\357s-Krug\007\27010\0" // 6-degree Gauss-Kruger zone 10
    "6-deg>\012Ga\357s-Krug\007\27011\0" // 6-degree Gauss-Kruger zone 11
    "6-deg>\012Ga\357s-Krug\007\27012\0" // 6-degree Gauss-Kruger zone 12
    "6-deg>\012Ga\357s-Krug\007\27013\0" // 6-degree Gauss-Kruger zone 13
    "6-deg>\012Ga\357s-Krug\007\27014\0" // 6-degree Gauss-Kruger zone 14
    "6-deg>\012Ga\357s-Krug\007\27015\0" // 6-degree Gauss-Kruger zone 15
    "6-deg>\012Ga\357s-Krug\007\27016\0" // 6-degree Gauss-Kruger zone 16
    "6-deg>\012Ga\357s-Krug\007\27017\0" // 6-degree Gauss-Kruger zone 17
    "6-deg>\012Ga\357s-Krug\007\27018\0" // 6-degree Gauss-Kruger zone 18
    "6-deg>\012Ga\357s-Krug\007\27019\0" // 6-degree Gauss-Kruger zone 19
    "6-deg>\012Ga\357s-Krug\007\2702\0" // 6-degree Gauss-Kruger zone 2
    "6-deg>\012Ga\357s-Krug\007\27020\0" // 6-degree Gauss-Kruger zone 20
    "6-deg>\012Ga\357s-Krug\007\27021\0" // 6-degree Gauss-Kruger zone 21
    "6-deg>\012Ga\357s-Krug\007\27022\0" // 6-degree Gauss-Kruger zone 22
    "6-deg>\012Ga\357s-Krug\007\27023\0" // 6-degree Gauss-Kruger zone 23
    "6-deg>\012Ga\357s-Krug\007\27024\0" // 6-degree Gauss-Kruger zone 24
    "6-deg>\012Ga\357s-Krug\007\27025\0" // 6-degree Gauss-Kruger zone 25
    "6-deg>\012Ga\357s-Krug\007\27026\0" // 6-degree Gauss-Kruger zone 26
    "6-deg>\012Ga\357s-Krug\007\27027\0" // 6-degree Gauss-Kruger zone 27
    "6-deg>\012Ga\357s-Krug\007\27028\0" // 6-degree Gauss-Kruger zone 28
    "6-deg>\012Ga\357s-Krug\007\27029\0" // 6-degree Gauss-Kruger zone 29
    "6-deg>\012Ga\357s-Krug\007\2703\0" // 6-degree Gauss-Kruger zone 3
    "6-deg>\012Ga\357s-Krug\007\27030\0" // 6-degree Gauss-Kruger zone 30
    "6-deg>\012Ga\357s-Krug\007\27031\0" // 6-degree Gauss-Kruger zone 31
    "6-deg>\012Ga\357s-Krug\007\27032\0" // 6-degree Gauss-Kruger zone 32
    "6-deg>\012Ga\357s-Krug\007\2704\0" // 6-degree Gauss-Kruger zone 4
    "6-deg>\012Ga\357s-Krug\007\2705\0" // 6-degree Gauss-Kruger zone 5
    "6-deg>\012Ga\357s-Krug\007\2706\0" // 6-degree Gauss-Kruger zone 6
    "6-deg>\012Ga\357s-Krug\007\2707\0" // 6-degree Gauss-Kruger zone 7
    "6-deg>\012Ga\357s-Krug\007\2708\0" // 6-degree Gauss-Kruger zone 8
    "6-deg>\012Ga\357s-Krug\007\2709\0" // 6-degree Gauss-Kruger zone 9
    "60 (ft\204)\0" // 60 (ftUS)
    "60 (m)\0" // 60 (m)
    "61-\014 (ft\204)\0" // 61-83 (ftUS)
    "61-\014 (m)\0" // 61-83 (m)
    "62 (ft\204)\0" // 62 (ftUS)
    "62 (m)\0" // 62 (m)
    "63-87 (ft\204)\0" // 63-87 (ftUS)
    "63-87 (m)\0" // 63-87 (m)
    "65 (ft\204)\0" // 65 (ftUS)
    "65 (m)\0" // 65 (m)
    "68-89 (ft\204)\0" // 68-89 (ftUS)
    "68-89 (m)\0" // 68-89 (m)
    "69 (ft\204)\0" // 69 (ftUS)
    "69 (m)\0" // 69 (m)
    "6_NE_dep>c<\273\0" // 6_NE_deprecated
    "73 (ft\204)\0" // 73 (ftUS)
    "73 (m)\0" // 73 (m)
    "74 (ft\204)\0" // 74 (ftUS)
    "74 (m)\0" // 74 (m)
    "76 (ft\204)\0" // 76 (ftUS)
    "76 (m)\0" // 76 (m)
    "77 (ft\204)\0" // 77 (ftUS)
    "77 (m)\0" // 77 (m)
    "79-91 (ft\204)\0" // 79-91 (ftUS)
    "79-91 (m)\0" // 79-91 (m)
    "798 WGS 84\205G2139)\002L<L\222\0" // 798 WGS 84 (G2139) - LatLon 
    "7_NE_dep>c<\273\0" // 7_NE_deprecated
    "82 (ft\204)\0" // 82 (ftUS)
    "82 (m)\0" // 82 (m)
    "84 (ft\204)\0" // 84 (ftUS)
    "84 (m)\0" // 84 (m)
    "8_NE_dep>c<\273\0" // 8_NE_deprecated
    "90 (ft\204)\0" // 90 (ftUS)
    "90 (m)\0" // 90 (m)
    "A\01698\0" // AAD98
    "A@21\205ft)\0" // ACS21 (ft)
    "AGD66\002L<L\003\0" // AGD66 - LatLon
    "AGD66\011ACT{t\035#d Gr\257\0" // AGD66 / ACT Standard Grid
    "AGD66\011AMG\27048\0" // AGD66 / AMG zone 48
    "AGD66\011AMG\27049\0" // AGD66 / AMG zone 49
    "AGD66\011AMG\27050\0" // AGD66 / AMG zone 50
    "AGD66\011AMG\27051\0" // AGD66 / AMG zone 51
    "AGD66\011AMG\27052\0" // AGD66 / AMG zone 52
    "AGD66\011AMG\27053\0" // AGD66 / AMG zone 53
    "AGD66\011AMG\27054\0" // AGD66 / AMG zone 54
    "AGD66\011AMG\27055\0" // AGD66 / AMG zone 55
    "AGD66\011AMG\27056\0" // AGD66 / AMG zone 56
    "AGD66\011AMG\27057\0" // AGD66 / AMG zone 57
    "AGD66\011AMG\27058\0" // AGD66 / AMG zone 58
    "AGD66\011V$gr\25766\0" // AGD66 / Vicgrid66
    "AGD84\002L<L\003\0" // AGD84 - LatLon
    "AGD84\011AMG\27048\0" // AGD84 / AMG zone 48
    "AGD84\011AMG\27049\0" // AGD84 / AMG zone 49
    "AGD84\011AMG\27050\0" // AGD84 / AMG zone 50
    "AGD84\011AMG\27051\0" // AGD84 / AMG zone 51
    "AGD84\011AMG\27052\0" // AGD84 / AMG zone 52
    "AGD84\011AMG\27053\0" // AGD84 / AMG zone 53
    "AGD84\011AMG\27054\0" // AGD84 / AMG zone 54
    "AGD84\011AMG\27055\0" // AGD84 / AMG zone 55
    "AGD84\011AMG\27056\0" // AGD84 / AMG zone 56
    "AGD84\011AMG\27057\0" // AGD84 / AMG zone 57
    "AGD84\011AMG\27058\0" // AGD84 / AMG zone 58
    "AGD\21266_ACT_St\035#d_Gr\257\0" // AGD_1966_ACT_Standard_Grid
    "AGD\21266_AMG_Z\003\207\0" // AGD_1966_AMG_Zone_
    "AGD\21266_VICGRID\0" // AGD_1966_VICGRID
    "AGD\21284_AMG_Z\003\207\0" // AGD_1984_AMG_Zone_
    "ALB86\0" // ALB86
    "ASTRO DOS 71/4\0" // ASTRO DOS 71/4
    "ATF\0" // ATF
    "ATF\205P#=)\0" // ATF (Paris)
    "ATF\205P#=%\203d d\012Gu\007>\0" // ATF (Paris) / Nord de Guerre
    "ATF_P#=\0" // ATF_Paris
    "ATRF\03314\0" // ATRF2014
    "ATRF\03314\002L<L\003\0" // ATRF2014 - LatLon
    "ATS77\0" // ATS77
    "ATS77\002L<L\003\0" // ATS77 - LatLon
    "ATS77\011M\250 Nov\030Sc\350\314\0774\0" // ATS77 / MTM Nova Scotia zone 4
    "ATS77\011M\250 Nov\030Sc\350\314\0775\0" // ATS77 / MTM Nova Scotia zone 5
    "ATS77\011\361 Brunsw$k{t\007eog\370\230$\205ATS77)\0" // ATS77 / New Brunswick Stereographic (ATS77)
    "ATS77\011Pr\024c\012Edw#d \325l.{t\007eog\370\230$\205ATS77)\0" // ATS77 / Prince Edward Isl. Stereographic (ATS77)
    "ATS77\011U\250\27019N\0" // ATS77 / UTM zone 19N
    "ATS77\011U\250\270\033N\0" // ATS77 / UTM zone 20N
    "ATS\21277\0" // ATS_1977
    "ATS\21277_M\3764_Nov\253Sc\350ia\0" // ATS_1977_MTM_4_Nova_Scotia
    "ATS\21277_M\3765_Nov\253Sc\350ia\0" // ATS_1977_MTM_5_Nova_Scotia
    "ATS\21277_\361_Brunsw$k_St\007eog\370\230$\0" // ATS_1977_New_Brunswick_Stereographic
    "ATS\21277_U\376Z\003\20719N\0" // ATS_1977_UTM_Zone_19N
    "ATS\21277_U\376Z\003\207\033N\0" // ATS_1977_UTM_Zone_20N
    "Ab\306vA96_\033\033 Gr\257\0" // AbInvA96_2020 Grid
    "Ab\306vA96_\033\033 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // AbInvA96_2020 Intermediate Reference Frame
    "Ab\306vA96_\033\033-IRF\0" // AbInvA96_2020-IRF
    "Ab\306vA96_\033\033-\250\0" // AbInvA96_2020-TM
    "Ab\306vA96_\033\033_Gr\257\0" // AbInvA96_2020_Grid
    "Ab\306vA96_\033\033_I\032\007m\273i<\207Ref\007\210ce\134r\232e\0" // AbInvA96_2020_Intermediate_Reference_Frame
    "Ab\257j\005\32087\0" // Abidjan 1987
    "Ab\257j\005\32087\011\250 5 NW\0" // Abidjan 1987 / TM 5 NW
    "Ab\257j\005\32087\011U\250\27029N\0" // Abidjan 1987 / UTM zone 29N
    "Ab\257j\005\32087\011U\250\270\375N\0" // Abidjan 1987 / UTM zone 30N
    "Ab\257j\005\21287\0" // Abidjan_1987
    "Ab\257j\005\21287_\3765_NW\0" // Abidjan_1987_TM_5_NW
    "Ab\257j\005\21287_U\376Z\003\20729N\0" // Abidjan_1987_UTM_Zone_29N
    "Ab\257j\005\21287_U\376Z\003\207\375N\0" // Abidjan_1987_UTM_Zone_30N
    "Acc\370\0" // Accra
    "Acc\370\011Gh\005\030N<\321\223Gr\257\0" // Accra / Ghana National Grid
    "Acc\370\011\250 1 NW\0" // Accra / TM 1 NW
    "Accr\253Gh\005\253Gr\257\0" // Accra_Ghana_Grid
    "Accr\253\3761_NW\0" // Accra_TM_1_NW
    "Ad\232s_(ft\204)\0" // Adams_(ftUS)
    "Ad\232s_(m)\0" // Adams_(m)
    "Ad\232s_\035_Juneau\366\0" // Adams_and_Juneau_Feet
    "Ad\232s_\035_Juneau_M\311\0" // Adams_and_Juneau_Meters
    "Ad\210\32025\0" // Aden 1925
    "Ad\210\21225\0" // Aden_1925
    "Ad\024d\005\0" // Adindan
    "Ad\024d\005\011U\250\27035N\0" // Adindan / UTM zone 35N
    "Ad\024d\005\011U\250\27036N\0" // Adindan / UTM zone 36N
    "Ad\024d\005\011U\250\27037N\0" // Adindan / UTM zone 37N
    "Ad\024d\005\011U\250\27038N\0" // Adindan / UTM zone 38N
    "Ad\024d\005_U\376Z\003\207\0" // Adindan_UTM_Zone_
    "Adju\021me\032\21237\0" // Adjustment_1937
    "Afgh\005i\021\005\0" // Afghanistan
    "Afgooye\0" // Afgooye
    "Afgooye\011U\250\27038N\0" // Afgooye / UTM zone 38N
    "Afgooye\011U\250\27039N\0" // Afgooye / UTM zone 39N
    "Afgooy\207U\376Z\003\20738N\0" // Afgooye_UTM_Zone_38N
    "Afgooy\207U\376Z\003\20739N\0" // Afgooye_UTM_Zone_39N
    "Afr\34612`p#\026l\240 N\0" // Africa - 12th parallel N
    "Afr\346Alg\007ia\307M\006occ\013\301Tun=ia\0" // Africa - Algeria, Morocco and Tunisia
    "Afr\346Ang\247\030(Cab\024da) \301DR\333\003g\013(Zai>)\002coa\021\026\0" // Africa - Angola (Cabinda) and DR Congo (Zaire) - coastal
    "Afr\346Ang\247\030(Cab\024da) \301DR\333\003g\013(Zai>)\002\216f^\202\0" // Africa - Angola (Cabinda) and DR Congo (Zaire) - offshore
    "Afr\346B\350sw\005\030\301Z\232b\215w\275\25224\015\0" // Africa - Botswana and Zambia - west of 24°E
    "Afr\346B\350sw\005a\307Esw<\024i\307L\242o\023\013\301\367Afr$a\0" // Africa - Botswana, Eswatini, Lesotho and South Africa
    "Afr\346B\350sw\005a\307M\026awi\307Z\232bia\307Zimbabwe\0" // Africa - Botswana, Malawi, Zambia, Zimbabwe
    "Afr\346B\350sw\005a\307Z\232b\314\301Zimbabw\22624}\375\015\0" // Africa - Botswana, Zambia and Zimbabwe - 24°E to 30°E
    "Afr\346B\225undi\307K\210ya\307Rw\035a\307T\005z\005\314\301Ug\035a\0" // Africa - Burundi, Kenya, Rwanda, Tanzania and Uganda
    "Afr\346Er\243>a\307E\023iop\314\035{ud\005\00236}42\015\0" // Africa - Eritrea, Ethiopia and Sudan - 36°E to 42°E
    "Afr\346Er\243>a\307E\023iopia,{\246Sud\005 \301Sud\005\0" // Africa - Eritrea, Ethiopia, South Sudan and Sudan
    "Afr\346E\023iop\314\035{ud\005\002\375}36\015\0" // Africa - Ethiopia and Sudan - 30°E to 36°E
    "Afr\346K\210y\030\301T\005z\005\215s\246\252equ<\006 \301e\315\25236\015\0" // Africa - Kenya and Tanzania - south of equator and east of 36°E
    "Afr\346K\210y\030\301Ug\035\034n\006`\252equ<\006 \301\375}36\015\0" // Africa - Kenya and Uganda - north of equator and 30°E to 36°E
    "Afr\346K\210ya\307T\005z\005\314\301Ug\035\034s\246\252equ<\006 \301\375}36\015\0" // Africa - Kenya, Tanzania and Uganda - south of equator and 30°E to 36°E
    "Afr\346M\026awi\307Z\232b\314\301Zimbabw\226e\315\252\375\015\0" // Africa - Malawi, Zambia and Zimbabwe - east of 30°E
    "Afr\346M\006occ\013\301We\021\007n{\373#\034\237\0" // Africa - Morocco and Western Sahara - onshore
    "Afr\346\367Afr$a\307L\242o\023\013\301Esw<\024i.\0" // Africa - South Africa, Lesotho and Eswatini.
    "Afr\346\367Sud\005 \035{ud\005\00224}\375\015\0" // Africa - South Sudan and Sudan - 24°E to 30°E
    "Afr\346T\005z\005\314\301Ug\035\034s\246\252equ<\006 \301w\275\252\375\015\0" // Africa - Tanzania and Uganda - south of equator and west of 30°E
    "Ag\274ez\0" // Agadez
    "A\024 \240 Abd\0" // Ain el Abd
    "A\024 \240 Abd\011\326\232c\013L\232b\007t\0" // Ain el Abd / Aramco Lambert
    "A\024 \240 Abd\011B\373\370\024 Gr\257\0" // Ain el Abd / Bahrain Grid
    "A\024 \240 Abd\011U\250\27036N\0" // Ain el Abd / UTM zone 36N
    "A\024 \240 Abd\011U\250\27037N\0" // Ain el Abd / UTM zone 37N
    "A\024 \240 Abd\011U\250\27038N\0" // Ain el Abd / UTM zone 38N
    "A\024 \240 Abd\011U\250\27039N\0" // Ain el Abd / UTM zone 39N
    "A\024 \240 Abd\011U\250\27040N\0" // Ain el Abd / UTM zone 40N
    "A\024 \240 Abd\32070\0" // Ain el Abd 1970
    "A\024_\240_Abd\21270\0" // Ain_el_Abd_1970
    "A\024_\240_Abd_\326\232co_L\232b\007t\0" // Ain_el_Abd_Aramco_Lambert
    "A\024_\240_Abd_U\376Z\003\207\0" // Ain_el_Abd_UTM_Zone_
    "A\342\2001830\0" // Airy 1830
    "A\342\200Modifi\273 1849\0" // Airy Modified 1849
    "A\342y_1830\0" // Airy_1830
    "A\342y_Modifi\273\0" // Airy_Modified
    "Alab\232\030@\313 E\315!e\0" // Alabama CS27 East zone
    "Alab\232\030@\313 W\275!e\0" // Alabama CS27 West zone
    "Alab\232\253Ea\021\2670\3121\0" // Alabama_East_FIPS_0101
    "Alab\232\253We\021\2670\3122\0" // Alabama_West_FIPS_0102
    "Al\201k\030Alb\220\205m\311)\0" // Alaska Albers (meters)
    "Al\201k\030@\313\2701\0" // Alaska CS27 zone 1
    "Al\201k\030@\313\27010\0" // Alaska CS27 zone 10
    "Al\201k\030@\313\2702\0" // Alaska CS27 zone 2
    "Al\201k\030@\313\2703\0" // Alaska CS27 zone 3
    "Al\201k\030@\313\2704\0" // Alaska CS27 zone 4
    "Al\201k\030@\313\2705\0" // Alaska CS27 zone 5
    "Al\201k\030@\313\2706\0" // Alaska CS27 zone 6
    "Al\201k\030@\313\2707\0" // Alaska CS27 zone 7
    "Al\201k\030@\313\2708\0" // Alaska CS27 zone 8
    "Al\201k\030@\313\2709\0" // Alaska CS27 zone 9
    "Al\201k\253\312\2675010\0" // Alaska_10_FIPS_5010
    "Al\201k\2531\2675001\0" // Alaska_1_FIPS_5001
    "Al\201k\2532\2675002\0" // Alaska_2_FIPS_5002
    "Al\201k\2533\2675003\0" // Alaska_3_FIPS_5003
    "Al\201k\2534\2675004\0" // Alaska_4_FIPS_5004
    "Al\201k\2535\2675005\0" // Alaska_5_FIPS_5005
    "Al\201k\2536\2675006\0" // Alaska_6_FIPS_5006
    "Al\201k\2537\2675007\0" // Alaska_7_FIPS_5007
    "Al\201k\2538\2675008\0" // Alaska_8_FIPS_5008
    "Al\201k\2539\2675009\0" // Alaska_9_FIPS_5009
    "Al\201k\253Alb\220\0" // Alaska_Albers
    "Al\201k\253Alb\220\366\0" // Alaska_Albers_Feet
    "Alb\005ia\0" // Albania
    "Alb\005\215\237\0" // Albania - onshore
    "Alb\005i\253\03310\0" // Albania_2010
    "Alb\005i\253LCC_\03310\0" // Albania_LCC_2010
    "Alb\005\335\32087\0" // Albanian 1987
    "Alb\005\335\32087\011Ga\357s Krug\007\2704\0" // Albanian 1987 / Gauss Kruger zone 4
    "Alb\005\335\32087\011Ga\357s-Krug\007\2704\0" // Albanian 1987 / Gauss-Kruger zone 4
    "Alb\005\335\21287\0" // Albanian_1987
    "Alb\005\335\21287_GK_Z\003\2074\0" // Albanian_1987_GK_Zone_4
    "Alb\005\200Gr\257 \03320\0" // Albany Grid 2020
    "Alb\007t\030\312-deg>\012\250\205F\202\021)\0" // Alberta 10-degree TM (Forest)
    "Alb\007t\030\312-deg>\012\250\205R\242\025rce)\0" // Alberta 10-degree TM (Resource)
    "Alb\007t\0303-deg>\012\250 >f\007\210c\012m\007\257\335 \1771 W\0" // Alberta 3-degree TM reference meridian 111 W
    "Alb\007t\0303-deg>\012\250 >f\007\210c\012m\007\257\335 \1774 W\0" // Alberta 3-degree TM reference meridian 114 W
    "Alb\007t\0303-deg>\012\250 >f\007\210c\012m\007\257\335 \1777 W\0" // Alberta 3-degree TM reference meridian 117 W
    "Alb\007t\0303-deg>\012\250 >f\007\210c\012m\007\257\335 1\033 W\0" // Alberta 3-degree TM reference meridian 120 W
    "Alg\007ia\0" // Algeria
    "Alg\007\2150}6\015\0" // Algeria - 0°E to 6°E
    "Alg\007\21531\004\375'N\02234\00439'N\0" // Algeria - 31°30'N to 34°39'N
    "Alg\007\21532\004N\02234\00439'N\0" // Algeria - 32°N to 34°39'N
    "Alg\007\2156\2170\037\0" // Algeria - 6°W to 0°W
    "Alg\007\215e\315\2526\015\0" // Algeria - east of 6°E
    "Alg\007\215n\006`\25232\004N\0" // Algeria - north of 32°N
    "Alg\007\215n\006`\25234\00439'N\0" // Algeria - north of 34°39'N
    "Alg\007\215w\275\2526\037\0" // Algeria - west of 6°W
    "All\210_(ft\204)\0" // Allen_(ftUS)
    "All\210_(m)\0" // Allen_(m)
    "Am\007$\005{\232oa\0" // American Samoa
    "Am\007$\005{\232o\0342 ma\024 =\211 gr\025ps\0" // American Samoa - 2 main island groups
    "Am\007$\005{\232o\0342 ma\024 =\211 gr\025ps \301Ros\012\352\0" // American Samoa - 2 main island groups and Rose Island
    "Am\007$\005{\232o\030\03162\0" // American Samoa 1962
    "Am\007$\005{\232o\030\03162\011Am\007$\005{\232o\030L\232b\007t\0" // American Samoa 1962 / American Samoa Lambert
    "Am\007$\005_S\232oa\21262\0" // American_Samoa_1962
    "Am\220fo\006t\0" // Amersfoort
    "Am\220fo\006t\011RD \361\0" // Amersfoort / RD New
    "Am\220fo\006t\011RD O\316\0" // Amersfoort / RD Old
    "Amm\201s\026ik\32058\0" // Ammassalik 1958
    "Amm\201s\026ik\32058\011G>\210\211\2707 ea\021\0" // Ammassalik 1958 / Greenland zone 7 east
    "Amm\201s\026ik\21258\0" // Ammassalik_1958
    "Amt\370k \324E\315C\006r\257\006\333o\006d\024<\012Sy\021\206 \03321\205I\032\007n<\321\223f\221)\0" // Amtrak North East Corridor Coordinate System 2021 (International feet)
    "Am\225i\374\342cu\243\0" // Amuri_Circuit
    "Anci\210n\012Tr\335gul<i\222Fr\005ca=\012(P#=)\0" // Ancienne Triangulation Francaise (Paris)
    "And\232\005 \301N$ob# \334F \250\0" // Andaman and Nicobar NSF TM
    "And\232\005_\035_N$ob#_\352s\0" // Andaman_and_Nicobar_Islands
    "Andhr\030Pr\274e^ \334F LCC\0" // Andhra Pradesh NSF LCC
    "Andhr\253Pr\274e^\0" // Andhra_Pradesh
    "Ang\247\03412\3458\015\0" // Angola - 12°E to 18°E
    "Ang\247\034Ang\247\030prop\007\0" // Angola - Angola proper
    "Ang\247\034Ang\247\030prop\007\00212\3458\015\0" // Angola - Angola proper - 12°E to 18°E
    "Ang\247\034Ang\247\030prop\007\002\216f^\202\0" // Angola - Angola proper - offshore
    "Ang\247\034Ang\247\030prop\007\002\216f^\202\002w\275\25212\015\0" // Angola - Angola proper - offshore - west of 12°E
    "Ang\247\034Cab\024da\0" // Angola - Cabinda
    "Ang\247\034e\315\25218\015\0" // Angola - east of 18°E
    "Ang\247\034\216f^\006\012block 15\0" // Angola - offshore block 15
    "Ang\247\034\216f^\006\012n\006`\2528\004S\0" // Angola - offshore north of 8°S
    "Ang\247\034w\275\25212\015\0" // Angola - west of 12°E
    "Angu\372l\034\237\0" // Anguilla - onshore
    "Angu\372l\030\03157\0" // Anguilla 1957
    "Angu\372l\030\03157\011Br\243=h W\275\355i\242 Gr\257\0" // Anguilla 1957 / British West Indies Grid
    "Angu\372la\21257\0" // Anguilla_1957
    "Angu\372la\21257_Br\243=h_We\021_\355i\242_Gr\257\0" // Anguilla_1957_British_West_Indies_Grid
    "Ann\2531\21265\0" // Anna_1_1965
    "A\032#\317$a\0" // Antarctica
    "A\032#\317\34660\004S\02264\004S\30748\21736\037\205\26423-24)\0" // Antarctica - 60°S to 64°S, 48°W to 36°W (SP23-24)
    "A\032#\317\34660\004S\02264\004S\30760\21748\037\205\26421-22)\0" // Antarctica - 60°S to 64°S, 60°W to 48°W (SP21-22)
    "A\032#\317\34660\004S\02264\004S\30772\21760\037\205\264\031-\033)\0" // Antarctica - 60°S to 64°S, 72°W to 60°W (SP19-20)
    "A\032#\317\34664\004S\02268\004S\307\3128\345\033\015\205SQ49-50)\0" // Antarctica - 64°S to 68°S, 108°E to 120°E (SQ49-50)
    "A\032#\317\34664\004S\02268\004S\3071\033\34532\015\205SQ51-52)\0" // Antarctica - 64°S to 68°S, 120°E to 132°E (SQ51-52)
    "A\032#\317\34664\004S\02268\004S\307132\34544\015\205SQ53-54)\0" // Antarctica - 64°S to 68°S, 132°E to 144°E (SQ53-54)
    "A\032#\317\34664\004S\02268\004S\307144\34556\015\205SQ55-56)\0" // Antarctica - 64°S to 68°S, 144°E to 156°E (SQ55-56)
    "A\032#\317\34664\004S\02268\004S\307156\34568\015\205SQ57-58)\0" // Antarctica - 64°S to 68°S, 156°E to 168°E (SQ57-58)
    "A\032#\317\34664\004S\02268\004S\307180\217168\037\205SQ01-02)\0" // Antarctica - 64°S to 68°S, 180°W to 168°W (SQ01-02)
    "A\032#\317\34664\004S\02268\004S\30736}48\015\205SQ37-38)\0" // Antarctica - 64°S to 68°S, 36°E to 48°E (SQ37-38)
    "A\032#\317\34664\004S\02268\004S\30748}60\015\205SQ39-40)\0" // Antarctica - 64°S to 68°S, 48°E to 60°E (SQ39-40)
    "A\032#\317\34664\004S\02268\004S\30760}72\015\205SQ41-42)\0" // Antarctica - 64°S to 68°S, 60°E to 72°E (SQ41-42)
    "A\032#\317\34664\004S\02268\004S\30760\21748\037\205SQ21-22)\0" // Antarctica - 64°S to 68°S, 60°W to 48°W (SQ21-22)
    "A\032#\317\34664\004S\02268\004S\30772}84\015\205SQ43-44)\0" // Antarctica - 64°S to 68°S, 72°E to 84°E (SQ43-44)
    "A\032#\317\34664\004S\02268\004S\30772\21760\037\205SQ\031-\033)\0" // Antarctica - 64°S to 68°S, 72°W to 60°W (SQ19-20)
    "A\032#\317\34664\004S\02268\004S\30784}96\015\205SQ45-46)\0" // Antarctica - 64°S to 68°S, 84°E to 96°E (SQ45-46)
    "A\032#\317\34664\004S\02268\004S\30796}\3128\015\205SQ47-48)\0" // Antarctica - 64°S to 68°S, 96°E to 108°E (SQ47-48)
    "A\032#\317\34668\004S\02272\004S\3070\3452\015\205SR31-32)\0" // Antarctica - 68°S to 72°S, 0°E to 12°E (SR31-32)
    "A\032#\317\34668\004S\02272\004S\307\3128\345\033\015\205SR49-50)\0" // Antarctica - 68°S to 72°S, 108°E to 120°E (SR49-50)
    "A\032#\317\34668\004S\02272\004S\307\3128\21796\037\205SR13-14)\0" // Antarctica - 68°S to 72°S, 108°W to 96°W (SR13-14)
    "A\032#\317\34668\004S\02272\004S\3071\033\34532\015\205SR51-52)\0" // Antarctica - 68°S to 72°S, 120°E to 132°E (SR51-52)
    "A\032#\317\34668\004S\02272\004S\30712}24\015\205SR33-34)\0" // Antarctica - 68°S to 72°S, 12°E to 24°E (SR33-34)
    "A\032#\317\34668\004S\02272\004S\30712\2170\037\205SR29-\375)\0" // Antarctica - 68°S to 72°S, 12°W to 0°W (SR29-30)
    "A\032#\317\34668\004S\02272\004S\307132\34544\015\205SR53-54)\0" // Antarctica - 68°S to 72°S, 132°E to 144°E (SR53-54)
    "A\032#\317\34668\004S\02272\004S\307144\34556\015\205SR55-56)\0" // Antarctica - 68°S to 72°S, 144°E to 156°E (SR55-56)
    "A\032#\317\34668\004S\02272\004S\307156\34568\015\205SR57-58)\0" // Antarctica - 68°S to 72°S, 156°E to 168°E (SR57-58)
    "A\032#\317\34668\004S\02272\004S\307168\34580\015\205SR59-60)\0" // Antarctica - 68°S to 72°S, 168°E to 180°E (SR59-60)
    "A\032#\317\34668\004S\02272\004S\30724}36\015\205SR35-36)\0" // Antarctica - 68°S to 72°S, 24°E to 36°E (SR35-36)
    "A\032#\317\34668\004S\02272\004S\30724\21712\037\205SR\313-28)\0" // Antarctica - 68°S to 72°S, 24°W to 12°W (SR27-28)
    "A\032#\317\34668\004S\02272\004S\30736}48\015\205SR37-38)\0" // Antarctica - 68°S to 72°S, 36°E to 48°E (SR37-38)
    "A\032#\317\34668\004S\02272\004S\30748}60\015\205SR39-40)\0" // Antarctica - 68°S to 72°S, 48°E to 60°E (SR39-40)
    "A\032#\317\34668\004S\02272\004S\30760}72\015\205SR41-42)\0" // Antarctica - 68°S to 72°S, 60°E to 72°E (SR41-42)
    "A\032#\317\34668\004S\02272\004S\30772}84\015\205SR43-44)\0" // Antarctica - 68°S to 72°S, 72°E to 84°E (SR43-44)
    "A\032#\317\34668\004S\02272\004S\30772\21760\037\205SR\031-\033)\0" // Antarctica - 68°S to 72°S, 72°W to 60°W (SR19-20)
    "A\032#\317\34668\004S\02272\004S\30784}96\015\205SR45-46)\0" // Antarctica - 68°S to 72°S, 84°E to 96°E (SR45-46)
    "A\032#\317\34668\004S\02272\004S\30784\21772\037\205SR17-18)\0" // Antarctica - 68°S to 72°S, 84°W to 72°W (SR17-18)
    "A\032#\317\34668\004S\02272\004S\30796}\3128\015\205SR47-48)\0" // Antarctica - 68°S to 72°S, 96°E to 108°E (SR47-48)
    "A\032#\317\34668\004S\02272\004S\30796\21784\037\205SR15-16)\0" // Antarctica - 68°S to 72°S, 96°W to 84°W (SR15-16)
    "A\032#\317\34672\004S\02276\004S\3070\3458\015\205SS31-33)\0" // Antarctica - 72°S to 76°S, 0°E to 18°E (SS31-33)
    "A\032#\317\34672\004S\02276\004S\307\3128\34526\015\205SS49-51)\0" // Antarctica - 72°S to 76°S, 108°E to 126°E (SS49-51)
    "A\032#\317\34672\004S\02276\004S\307\3128\21790\037\205SS13-15)\0" // Antarctica - 72°S to 76°S, 108°W to 90°W (SS13-15)
    "A\032#\317\34672\004S\02276\004S\307126\34544\015\205SS52-54)\0" // Antarctica - 72°S to 76°S, 126°E to 144°E (SS52-54)
    "A\032#\317\34672\004S\02276\004S\307126\217\3128\037\205SS\312-12)\0" // Antarctica - 72°S to 76°S, 126°W to 108°W (SS10-12)
    "A\032#\317\34672\004S\02276\004S\307144\34562\015\205SS55-57)\0" // Antarctica - 72°S to 76°S, 144°E to 162°E (SS55-57)
    "A\032#\317\34672\004S\02276\004S\307144\217126\037\205SS07-09)\0" // Antarctica - 72°S to 76°S, 144°W to 126°W (SS07-09)
    "A\032#\317\34672\004S\02276\004S\307162\34580\015\205SS58-60)\0" // Antarctica - 72°S to 76°S, 162°E to 180°E (SS58-60)
    "A\032#\317\34672\004S\02276\004S\307162\217144\037\205SS04-06)\0" // Antarctica - 72°S to 76°S, 162°W to 144°W (SS04-06)
    "A\032#\317\34672\004S\02276\004S\30718}36\015\205SS34-36)\0" // Antarctica - 72°S to 76°S, 18°E to 36°E (SS34-36)
    "A\032#\317\34672\004S\02276\004S\30718\2170\037\205SS28-\375)\0" // Antarctica - 72°S to 76°S, 18°W to 0°W (SS28-30)
    "A\032#\317\34672\004S\02276\004S\30736}54\015\205SS37-39)\0" // Antarctica - 72°S to 76°S, 36°E to 54°E (SS37-39)
    "A\032#\317\34672\004S\02276\004S\30736\21718\037\205SS25-\313)\0" // Antarctica - 72°S to 76°S, 36°W to 18°W (SS25-27)
    "A\032#\317\34672\004S\02276\004S\30754}72\015\205SS40-42)\0" // Antarctica - 72°S to 76°S, 54°E to 72°E (SS40-42)
    "A\032#\317\34672\004S\02276\004S\30772}90\015\205SS43-45)\0" // Antarctica - 72°S to 76°S, 72°E to 90°E (SS43-45)
    "A\032#\317\34672\004S\02276\004S\30772\21754\037\205SS\031-21)\0" // Antarctica - 72°S to 76°S, 72°W to 54°W (SS19-21)
    "A\032#\317\34672\004S\02276\004S\30790}\3128\015\205SS46-48)\0" // Antarctica - 72°S to 76°S, 90°E to 108°E (SS46-48)
    "A\032#\317\34672\004S\02276\004S\30790\21772\037\205SS16-18)\0" // Antarctica - 72°S to 76°S, 90°W to 72°W (SS16-18)
    "A\032#\317\34676\004S\02280\004S\307\3128\34532\015\205ST49-52)\0" // Antarctica - 76°S to 80°S, 108°E to 132°E (ST49-52)
    "A\032#\317\34676\004S\02280\004S\307\3128\21784\037\205ST13-16)\0" // Antarctica - 76°S to 80°S, 108°W to 84°W (ST13-16)
    "A\032#\317\34676\004S\02280\004S\30712}36\015\205ST33-36)\0" // Antarctica - 76°S to 80°S, 12°E to 36°E (ST33-36)
    "A\032#\317\34676\004S\02280\004S\30712\21712\015\205ST29-32)\0" // Antarctica - 76°S to 80°S, 12°W to 12°E (ST29-32)
    "A\032#\317\34676\004S\02280\004S\307132\34556\015\205ST53-56)\0" // Antarctica - 76°S to 80°S, 132°E to 156°E (ST53-56)
    "A\032#\317\34676\004S\02280\004S\307132\217\3128\037\205ST09-12)\0" // Antarctica - 76°S to 80°S, 132°W to 108°W (ST09-12)
    "A\032#\317\34676\004S\02280\004S\307156\34580\015\205ST57-60)\0" // Antarctica - 76°S to 80°S, 156°E to 180°E (ST57-60)
    "A\032#\317\34676\004S\02280\004S\307156\217132\037\205ST05-08)\0" // Antarctica - 76°S to 80°S, 156°W to 132°W (ST05-08)
    "A\032#\317\34676\004S\02280\004S\307180\217156\037\205ST01-04)\0" // Antarctica - 76°S to 80°S, 180°W to 156°W (ST01-04)
    "A\032#\317\34676\004S\02280\004S\30736}60\015\205ST37-40)\0" // Antarctica - 76°S to 80°S, 36°E to 60°E (ST37-40)
    "A\032#\317\34676\004S\02280\004S\30736\21712\037\205ST25-28)\0" // Antarctica - 76°S to 80°S, 36°W to 12°W (ST25-28)
    "A\032#\317\34676\004S\02280\004S\30760}84\015\205ST41-44)\0" // Antarctica - 76°S to 80°S, 60°E to 84°E (ST41-44)
    "A\032#\317\34676\004S\02280\004S\30760\21736\037\205ST21-24)\0" // Antarctica - 76°S to 80°S, 60°W to 36°W (ST21-24)
    "A\032#\317\34676\004S\02280\004S\30784}\3128\015\205ST45-48)\0" // Antarctica - 76°S to 80°S, 84°E to 108°E (ST45-48)
    "A\032#\317\34676\004S\02280\004S\30784\21760\037\205ST17-\033)\0" // Antarctica - 76°S to 80°S, 84°W to 60°W (ST17-20)
    "A\032#\317\34680\004S\02284\004S\3070}\375\015\205SU31-35)\0" // Antarctica - 80°S to 84°S, 0°E to 30°E (SU31-35)
    "A\032#\317\34680\004S\02284\004S\3071\033\34550\015\205SU51-55)\0" // Antarctica - 80°S to 84°S, 120°E to 150°E (SU51-55)
    "A\032#\317\34680\004S\02284\004S\3071\033\21790\037\205SU\177-15)\0" // Antarctica - 80°S to 84°S, 120°W to 90°W (SU11-15)
    "A\032#\317\34680\004S\02284\004S\307150\34580\004\205SU56-60)\0" // Antarctica - 80°S to 84°S, 150°E to 180° (SU56-60)
    "A\032#\317\34680\004S\02284\004S\307150\2171\033\037\205SU06-\312)\0" // Antarctica - 80°S to 84°S, 150°W to 120°W (SU06-10)
    "A\032#\317\34680\004S\02284\004S\307180\217150\037\205SU01-05)\0" // Antarctica - 80°S to 84°S, 180°W to 150°W (SU01-05)
    "A\032#\317\34680\004S\02284\004S\307\375}60\015\205SU36-40)\0" // Antarctica - 80°S to 84°S, 30°E to 60°E (SU36-40)
    "A\032#\317\34680\004S\02284\004S\307\375\2170\037\205SU26-\375)\0" // Antarctica - 80°S to 84°S, 30°W to 0°W (SU26-30)
    "A\032#\317\34680\004S\02284\004S\30760}90\015\205SU41-45)\0" // Antarctica - 80°S to 84°S, 60°E to 90°E (SU41-45)
    "A\032#\317\34680\004S\02284\004S\30760\217\375\037\205SU21-25)\0" // Antarctica - 80°S to 84°S, 60°W to 30°W (SU21-25)
    "A\032#\317\34680\004S\02284\004S\30790\345\033\015\205SU46-50)\0" // Antarctica - 80°S to 84°S, 90°E to 120°E (SU46-50)
    "A\032#\317\34680\004S\02284\004S\30790\21760\037\205SU16-\033)\0" // Antarctica - 80°S to 84°S, 90°W to 60°W (SU16-20)
    "A\032#\317\34684\004S\02288\004S\3070}60\015\205SV31-40)\0" // Antarctica - 84°S to 88°S, 0°E to 60°E (SV31-40)
    "A\032#\317\34684\004S\02288\004S\3071\033\34580\015\205SV51-60)\0" // Antarctica - 84°S to 88°S, 120°E to 180°E (SV51-60)
    "A\032#\317\34684\004S\02288\004S\3071\033\21760\037\205SV\177-\033)\0" // Antarctica - 84°S to 88°S, 120°W to 60°W (SV11-20)
    "A\032#\317\34684\004S\02288\004S\307180\2171\033\037\205SV01-\312)\0" // Antarctica - 84°S to 88°S, 180°W to 120°W (SV01-10)
    "A\032#\317\34684\004S\02288\004S\30760\345\033\015\205SV41-50)\0" // Antarctica - 84°S to 88°S, 60°E to 120°E (SV41-50)
    "A\032#\317\34684\004S\02288\004S\30760\2170\037\205SV21-\375)\0" // Antarctica - 84°S to 88°S, 60°W to 0°W (SV21-30)
    "A\032#\317\34688\004S\02290\004S\307180\217180\015\205SW01-60)\0" // Antarctica - 88°S to 90°S, 180°W to 180°E (SW01-60)
    "A\032#\317\346Ad\240i\012L\035\002P\036>ls =\211\0" // Antarctica - Adelie Land - Petrels island
    "A\032#\317\346Ad\240i\012L\301coa\021\223#ea\0" // Antarctica - Adelie Land coastal area
    "A\032#\317\346Ad\240i\012L\301coa\021\223#e\030e\315\252138\015\0" // Antarctica - Adelie Land coastal area east of 138°E
    "A\032#\317\346Ad\240i\012L\301coa\021\223#e\030w\275\252138\015\0" // Antarctica - Adelie Land coastal area west of 138°E
    "A\032#\317\346Au\021r\026\335 se\317\006\0" // Antarctica - Australian sector
    "A\032#\317\346Au\021r\026\335 se\317\006 n\006`\25280\004S\0" // Antarctica - Australian sector north of 80°S
    "A\032#\317\346B\006chg>v\024k\333o\315\262\321\0" // Antarctica - Borchgrevink Coast region
    "A\032#\317\346C\232p McM\225d\013#ea\0" // Antarctica - Camp McMurdo area
    "A\032#\317\346D#w\024 Glaci\007 \262\321\0" // Antarctica - Darwin Glacier region
    "A\032#\317\346Decepti\222\352\0" // Antarctica - Deception Island
    "A\032#\317\346McM\225d\013S\025nd \262\321\0" // Antarctica - McMurdo Sound region
    "A\032#\317\346P\210n\240l\333o\315\262\321\0" // Antarctica - Pennell Coast region
    "A\032#\317\346Ross Ic\012Sh\240f Reg\321\0" // Antarctica - Ross Ice Shelf Region
    "A\032#\317\346Ross{e\030Reg\321\0" // Antarctica - Ross Sea Region
    "A\032#\317\346Tr\005s\005t#\317$ m\025\032a\024s n\006`\25280\004S\0" // Antarctica - Transantarctic mountains north of 80°S
    "A\032igu\034\237\0" // Antigua - onshore
    "A\032igu\030\03143\0" // Antigua 1943
    "A\032igu\030\03143\011Br\243=h W\275\355i\242 Gr\257\0" // Antigua 1943 / British West Indies Grid
    "A\032igua\21243\0" // Antigua_1943
    "A\032igua\21243_Br\243=h_We\021_\355i\242_Gr\257\0" // Antigua_1943_British_West_Indies_Grid
    "A\032ipod\242 \352s Tr\005sv\220\012M\007c<\006 \2270\0" // Antipodes Islands Transverse Mercator 2000
    "A\032ipod\242_\352s_\376\2270\0" // Antipodes_Islands_TM_2000
    "\326<u\011U\250\27022S\0" // Aratu / UTM zone 22S
    "\326<u\011U\250\27023S\0" // Aratu / UTM zone 23S
    "\326<u\011U\250\27024S\0" // Aratu / UTM zone 24S
    "\326<u\011U\250\27025S\0" // Aratu / UTM zone 25S
    "\326<u_U\376Z\003\207\0" // Aratu_UTM_Zone_
    "\326auc\253\2277\0" // Arauca_2007
    "\326c\32050\0" // Arc 1950
    "\326c\32050\011U\250\27034S\0" // Arc 1950 / UTM zone 34S
    "\326c\32050\011U\250\27035S\0" // Arc 1950 / UTM zone 35S
    "\326c\32050\011U\250\27036S\0" // Arc 1950 / UTM zone 36S
    "\326c\32060\0" // Arc 1960
    "\326c\32060\011U\250\27035N\0" // Arc 1960 / UTM zone 35N
    "\326c\32060\011U\250\27035S\0" // Arc 1960 / UTM zone 35S
    "\326c\32060\011U\250\27036N\0" // Arc 1960 / UTM zone 36N
    "\326c\32060\011U\250\27036S\0" // Arc 1960 / UTM zone 36S
    "\326c\32060\011U\250\27037N\0" // Arc 1960 / UTM zone 37N
    "\326c\32060\011U\250\27037S\0" // Arc 1960 / UTM zone 37S
    "\326c\21250\0" // Arc_1950
    "\326c\21250_U\376Z\003\20734S\0" // Arc_1950_UTM_Zone_34S
    "\326c\21250_U\376Z\003\20735S\0" // Arc_1950_UTM_Zone_35S
    "\326c\21250_U\376Z\003\20736S\0" // Arc_1950_UTM_Zone_36S
    "\326c\21260\0" // Arc_1960
    "\326c\21260_U\376Z\003\207\0" // Arc_1960_UTM_Zone_
    "\326\317$\00264\004\375'N\02259\004\375'N\30744\21729\037\0" // Arctic - 64°30'N to 59°30'N, 44°W to 29°W
    "\326\317$\00264\004\375'N\02259\004\375'N\30759\21744\037\0" // Arctic - 64°30'N to 59°30'N, 59°W to 44°W
    "\326\317$\00267\00450'N\02262\00450'N\30742\21725\037\0" // Arctic - 67°50'N to 62°50'N, 42°W to 25°W
    "\326\317$\00267\00450'N\02262\00450'N\30759\21742\037\0" // Arctic - 67°50'N to 62°50'N, 59°W to 42°W
    "\326\317$\00271\004\312'N\02266\004\312'N\307\3123\21784\037\0" // Arctic - 71°10'N to 66°10'N, 103°W to 84°W
    "\326\317$\00271\004\312'N\02266\004\312'N\307122\217\3123\037\0" // Arctic - 71°10'N to 66°10'N, 122°W to 103°W
    "\326\317$\00271\004\312'N\02266\004\312'N\307141\217122\037\0" // Arctic - 71°10'N to 66°10'N, 141°W to 122°W
    "\326\317$\00271\004\312'N\02266\004\312'N\307156\217138\037\0" // Arctic - 71°10'N to 66°10'N, 156°W to 138°W
    "\326\317$\00271\004\312'N\02266\004\312'N\307174\217156\037\0" // Arctic - 71°10'N to 66°10'N, 174°W to 156°W
    "\326\317$\00271\004\312'N\02266\004\312'N\30729\217\177\037\0" // Arctic - 71°10'N to 66°10'N, 29°W to 11°W
    "\326\317$\00271\004\312'N\02266\004\312'N\30747\21729\037\0" // Arctic - 71°10'N to 66°10'N, 47°W to 29°W
    "\326\317$\00271\004\312'N\02266\004\312'N\30765\21747\037\0" // Arctic - 71°10'N to 66°10'N, 65°W to 47°W
    "\326\317$\00271\004\312'N\02266\004\312'N\30784\21765\037\0" // Arctic - 71°10'N to 66°10'N, 84°W to 65°W
    "\326\317$\00271\004N\02259\004N\30712\21778\015\0" // Arctic - 71°N to 59°N, 12°W to 78°E
    "\326\317$\00271\004N\02259\004N\307132\34538\037\0" // Arctic - 71°N to 59°N, 132°E to 138°W
    "\326\317$\00271\004N\02259\004N\307156\21766\037\0" // Arctic - 71°N to 59°N, 156°W to 66°W
    "\326\317$\00271\004N\02259\004N\30760\34550\015\0" // Arctic - 71°N to 59°N, 60°E to 150°E
    "\326\317$\00271\004N\02259\004N\30784\2176\015\0" // Arctic - 71°N to 59°N, 84°W to 6°E
    "\326\317$\00274\004\375'N\02269\004\375'N\307\3121\21781\037\0" // Arctic - 74°30'N to 69°30'N, 101°W to 81°W
    "\326\317$\00274\004\375'N\02269\004\375'N\307\3126\345\313\015\0" // Arctic - 74°30'N to 69°30'N, 106°E to 127°E
    "\326\317$\00274\004\375'N\02269\004\375'N\307121\217\3121\037\0" // Arctic - 74°30'N to 69°30'N, 121°W to 101°W
    "\326\317$\00274\004\375'N\02269\004\375'N\3071\313\34548\015\0" // Arctic - 74°30'N to 69°30'N, 127°E to 148°E
    "\326\317$\00274\004\375'N\02269\004\375'N\307141\217121\037\0" // Arctic - 74°30'N to 69°30'N, 141°W to 121°W
    "\326\317$\00274\004\375'N\02269\004\375'N\307148\34569\015\0" // Arctic - 74°30'N to 69°30'N, 148°E to 169°E
    "\326\317$\00274\004\375'N\02269\004\375'N\307157\217137\037\0" // Arctic - 74°30'N to 69°30'N, 157°W to 137°W
    "\326\317$\00274\004\375'N\02269\004\375'N\30715\2175\015\0" // Arctic - 74°30'N to 69°30'N, 15°W to 5°E
    "\326\317$\00274\004\375'N\02269\004\375'N\307169\34569\037\0" // Arctic - 74°30'N to 69°30'N, 169°E to 169°W
    "\326\317$\00274\004\375'N\02269\004\375'N\307173\217153\037\0" // Arctic - 74°30'N to 69°30'N, 173°W to 153°W
    "\326\317$\00274\004\375'N\02269\004\375'N\30724}44\015\0" // Arctic - 74°30'N to 69°30'N, 24°E to 44°E
    "\326\317$\00274\004\375'N\02269\004\375'N\30732\21712\037\0" // Arctic - 74°30'N to 69°30'N, 32°W to 12°W
    "\326\317$\00274\004\375'N\02269\004\375'N\30744}64\015\0" // Arctic - 74°30'N to 69°30'N, 44°E to 64°E
    "\326\317$\00274\004\375'N\02269\004\375'N\3074}24\015\0" // Arctic - 74°30'N to 69°30'N, 4°E to 24°E
    "\326\317$\00274\004\375'N\02269\004\375'N\30752\21732\037\0" // Arctic - 74°30'N to 69°30'N, 52°W to 32°W
    "\326\317$\00274\004\375'N\02269\004\375'N\30764}85\015\0" // Arctic - 74°30'N to 69°30'N, 64°E to 85°E
    "\326\317$\00274\004\375'N\02269\004\375'N\30772\21752\037\0" // Arctic - 74°30'N to 69°30'N, 72°W to 52°W
    "\326\317$\00274\004\375'N\02269\004\375'N\30781\21761\037\0" // Arctic - 74°30'N to 69°30'N, 81°W to 61°W
    "\326\317$\00274\004\375'N\02269\004\375'N\30785}\3126\015\0" // Arctic - 74°30'N to 69°30'N, 85°E to 106°E
    "\326\317$\00277\00450'N\02272\00450'N\307\1776\21791\037\0" // Arctic - 77°50'N to 72°50'N, 116°W to 91°W
    "\326\317$\00277\00450'N\02272\00450'N\307\1778\34542\015\0" // Arctic - 77°50'N to 72°50'N, 118°E to 142°E
    "\326\317$\00277\00450'N\02272\00450'N\307141\217\1776\037\0" // Arctic - 77°50'N to 72°50'N, 141°W to 116°W
    "\326\317$\00277\00450'N\02272\00450'N\307142\34566\015\0" // Arctic - 77°50'N to 72°50'N, 142°E to 166°E
    "\326\317$\00277\00450'N\02272\00450'N\307166\34569\037\0" // Arctic - 77°50'N to 72°50'N, 166°E to 169°W
    "\326\317$\00277\00450'N\02272\00450'N\307169\217141\037\0" // Arctic - 77°50'N to 72°50'N, 169°W to 141°W
    "\326\317$\00277\00450'N\02272\00450'N\30722}46\015\0" // Arctic - 77°50'N to 72°50'N, 22°E to 46°E
    "\326\317$\00277\00450'N\02272\00450'N\30726\2172\037\0" // Arctic - 77°50'N to 72°50'N, 26°W to 2°W
    "\326\317$\00277\00450'N\02272\00450'N\3072\21722\015\0" // Arctic - 77°50'N to 72°50'N, 2°W to 22°E
    "\326\317$\00277\00450'N\02272\00450'N\30746}70\015\0" // Arctic - 77°50'N to 72°50'N, 46°E to 70°E
    "\326\317$\00277\00450'N\02272\00450'N\30751\21726\037\0" // Arctic - 77°50'N to 72°50'N, 51°W to 26°W
    "\326\317$\00277\00450'N\02272\00450'N\30770}94\015\0" // Arctic - 77°50'N to 72°50'N, 70°E to 94°E
    "\326\317$\00277\00450'N\02272\00450'N\30776\21751\037\0" // Arctic - 77°50'N to 72°50'N, 76°W to 51°W
    "\326\317$\00277\00450'N\02272\00450'N\30791\21767\037\0" // Arctic - 77°50'N to 72°50'N, 91°W to 67°W
    "\326\317$\00277\00450'N\02272\00450'N\30794}\1778\015\0" // Arctic - 77°50'N to 72°50'N, 94°E to 118°E
    "\326\317$\00279\004N\02267\004N\30712\21778\015\0" // Arctic - 79°N to 67°N, 12°W to 78°E
    "\326\317$\00279\004N\02267\004N\307132\34538\037\0" // Arctic - 79°N to 67°N, 132°E to 138°W
    "\326\317$\00279\004N\02267\004N\307156\21766\037\0" // Arctic - 79°N to 67°N, 156°W to 66°W
    "\326\317$\00279\004N\02267\004N\30760\34550\015\0" // Arctic - 79°N to 67°N, 60°E to 150°E
    "\326\317$\00279\004N\02267\004N\30784\2176\015\0" // Arctic - 79°N to 67°N, 84°W to 6°E
    "\326\317$\00281\004\312'N\02276\004\312'N\307\1774\21784\037\0" // Arctic - 81°10'N to 76°10'N, 114°W to 84°W
    "\326\317$\00281\004\312'N\02276\004\312'N\307129\34560\015\0" // Arctic - 81°10'N to 76°10'N, 129°E to 160°E
    "\326\317$\00281\004\312'N\02276\004\312'N\307144\217\1774\037\0" // Arctic - 81°10'N to 76°10'N, 144°W to 114°W
    "\326\317$\00281\004\312'N\02276\004\312'N\307160\34569\037\0" // Arctic - 81°10'N to 76°10'N, 160°E to 169°W
    "\326\317$\00281\004\312'N\02276\004\312'N\307169\217138\037\0" // Arctic - 81°10'N to 76°10'N, 169°W to 138°W
    "\326\317$\00281\004\312'N\02276\004\312'N\30724\2173\015\0" // Arctic - 81°10'N to 76°10'N, 24°W to 3°E
    "\326\317$\00281\004\312'N\02276\004\312'N\30735}67\015\0" // Arctic - 81°10'N to 76°10'N, 35°E to 67°E
    "\326\317$\00281\004\312'N\02276\004\312'N\3074\21738\015\0" // Arctic - 81°10'N to 76°10'N, 4°W to 38°E
    "\326\317$\00281\004\312'N\02276\004\312'N\30754\21724\037\0" // Arctic - 81°10'N to 76°10'N, 54°W to 24°W
    "\326\317$\00281\004\312'N\02276\004\312'N\30767}98\015\0" // Arctic - 81°10'N to 76°10'N, 67°E to 98°E
    "\326\317$\00281\004\312'N\02276\004\312'N\30798\34529\015\0" // Arctic - 81°10'N to 76°10'N, 98°E to 129°E
    "\326\317$\00281\004\312'N\02276\004\312'N\307C\005\274\030e\315\25284\037\0" // Arctic - 81°10'N to 76°10'N, Canada east of 84°W
    "\326\317$\00281\004\312'N\02276\004\312'N\307G>\210\211 w\275\25254\037\0" // Arctic - 81°10'N to 76°10'N, Greenland west of 54°W
    "\326\317$\00284\004\375'N\02279\004\375'N\307\1773\34553\015\0" // Arctic - 84°30'N to 79°30'N, 113°E to 153°E
    "\326\317$\00284\004\375'N\02279\004\375'N\307135\21795\037\0" // Arctic - 84°30'N to 79°30'N, 135°W to 95°W
    "\326\317$\00284\004\375'N\02279\004\375'N\307146\34574\037\0" // Arctic - 84°30'N to 79°30'N, 146°E to 174°W
    "\326\317$\00284\004\375'N\02279\004\375'N\307174\217135\037\0" // Arctic - 84°30'N to 79°30'N, 174°W to 135°W
    "\326\317$\00284\004\375'N\02279\004\375'N\30732\2178\015\0" // Arctic - 84°30'N to 79°30'N, 32°W to 8°E
    "\326\317$\00284\004\375'N\02279\004\375'N\30733}73\015\0" // Arctic - 84°30'N to 79°30'N, 33°E to 73°E
    "\326\317$\00284\004\375'N\02279\004\375'N\3074\21736\015\0" // Arctic - 84°30'N to 79°30'N, 4°W to 36°E
    "\326\317$\00284\004\375'N\02279\004\375'N\30772\21732\037\0" // Arctic - 84°30'N to 79°30'N, 72°W to 32°W
    "\326\317$\00284\004\375'N\02279\004\375'N\30773}\1773\015\0" // Arctic - 84°30'N to 79°30'N, 73°E to 113°E
    "\326\317$\00284\004\375'N\02279\004\375'N\30795\21755\037\0" // Arctic - 84°30'N to 79°30'N, 95°W to 55°W
    "\326\317$\00287\00450'N\02282\00450'N\3070}60\015\0" // Arctic - 87°50'N to 82°50'N, 0°E to 60°E
    "\326\317$\00287\00450'N\02282\00450'N\3071\033\34580\015\0" // Arctic - 87°50'N to 82°50'N, 120°E to 180°E
    "\326\317$\00287\00450'N\02282\00450'N\3071\033\21760\037\0" // Arctic - 87°50'N to 82°50'N, 120°W to 60°W
    "\326\317$\00287\00450'N\02282\00450'N\307180\2171\033\037\0" // Arctic - 87°50'N to 82°50'N, 180°W to 120°W
    "\326\317$\00287\00450'N\02282\00450'N\30760\345\033\015\0" // Arctic - 87°50'N to 82°50'N, 60°E to 120°E
    "\326\317$\00287\00450'N\02282\00450'N\30760\2170\015\0" // Arctic - 87°50'N to 82°50'N, 60°W to 0°E
    "\326\317$\00287\004N\02275\004N\30712\21778\015\0" // Arctic - 87°N to 75°N, 12°W to 78°E
    "\326\317$\00287\004N\02275\004N\307132\34538\037\0" // Arctic - 87°N to 75°N, 132°E to 138°W
    "\326\317$\00287\004N\02275\004N\307156\21766\037\0" // Arctic - 87°N to 75°N, 156°W to 66°W
    "\326\317$\00287\004N\02275\004N\30760\34550\015\0" // Arctic - 87°N to 75°N, 60°E to 150°E
    "\326\317$\00287\004N\02275\004N\30784\2176\015\0" // Arctic - 87°N to 75°N, 84°W to 6°E
    "\326\317$_P\247#_St\007eog\370\230$\0" // Arctic_Polar_Stereographic
    "\326ge\032\024a\0" // Argentina
    "\326ge\032\024\03442\224\004S\02250.3\004S\0" // Argentina - 42.5°S to 50.3°S
    "\326ge\032\024\03442\224\004S\02250.3\004S \30170\224\21767\224\037\0" // Argentina - 42.5°S to 50.3°S and 70.5°W to 67.5°W
    "\326ge\032\024\03442\224\004S\02250.3\004S \301e\315\25267\224\037\0" // Argentina - 42.5°S to 50.3°S and east of 67.5°W
    "\326ge\032\024\03442\224\004S\02250.3\004S \301w\275\25270\224\037\0" // Argentina - 42.5°S to 50.3°S and west of 70.5°W
    "\326ge\032\024\03458\224\21755\224\037 \237\0" // Argentina - 58.5°W to 55.5°W onshore
    "\326ge\032\024\03461\224\21758\224\037 \237\0" // Argentina - 61.5°W to 58.5°W onshore
    "\326ge\032\024\03464\224\21761\224\037 ma\024\211 \237\0" // Argentina - 64.5°W to 61.5°W mainland onshore
    "\326ge\032\024\03464\224\21761\224\037 \237\0" // Argentina - 64.5°W to 61.5°W onshore
    "\326ge\032\024\03467\224\21764\224\037 ma\024\211 \237\0" // Argentina - 67.5°W to 64.5°W mainland onshore
    "\326ge\032\024\03467\224\21764\224\037 \237\0" // Argentina - 67.5°W to 64.5°W onshore
    "\326ge\032\024\03470\224\21767\224\037 ma\024\211 \237\0" // Argentina - 70.5°W to 67.5°W mainland onshore
    "\326ge\032\024\03470\224\21767\224\037 \237\0" // Argentina - 70.5°W to 67.5°W onshore
    "\326ge\032\024\034Bu\210os Ai>s c\243y\0" // Argentina - Buenos Aires city
    "\326ge\032\024\034M\210doz\030\301\310uqu\210\0" // Argentina - Mendoza and Neuquen
    "\326ge\032\024\034M\210doz\030\301\310uqu\210 70\224\21767\224\037\0" // Argentina - Mendoza and Neuquen 70.5°W to 67.5°W
    "\326ge\032\024\034Ti\007r\030d\240 Fueg\013\216f^\006\012e\315\25266\037\0" // Argentina - Tierra del Fuego offshore east of 66°W
    "\326ge\032\024\034Ti\007r\030d\240 Fueg\013\216f^\006\012w\275\25266\037\0" // Argentina - Tierra del Fuego offshore west of 66°W
    "\326ge\032\024\034Ti\007r\030d\240 Fueg\013\237\0" // Argentina - Tierra del Fuego onshore
    "\326ge\032\024\034Ti\007r\030d\240 Fueg\013\213\006\012w\275\25267\224\037\0" // Argentina - Tierra del Fuego onshore west of 67.5°W
    "\326ge\032\024\034e\315\25255\224\037 \237\0" // Argentina - east of 55.5°W onshore
    "\326ge\032\024\034ma\024\211 \213\006\012\301\216f^\006\012TdF\0" // Argentina - mainland onshore and offshore TdF
    "\326ge\032\024\034s\246S\005t\030Cruz\0" // Argentina - south Santa Cruz
    "\326ge\032\024\034s\246S\005t\030Cruz e\315\25270\224\037\0" // Argentina - south Santa Cruz east of 70.5°W
    "\326ge\032\024\034s\246S\005t\030Cruz w\275\25270\224\037\0" // Argentina - south Santa Cruz west of 70.5°W
    "\326ge\032\024\034w\275\25270\224\037\0" // Argentina - west of 70.5°W
    "\326ge\032\024\030\0771\0" // Argentina zone 1
    "\326ge\032\024\030\0772\0" // Argentina zone 2
    "\326ge\032\024\030\0773\0" // Argentina zone 3
    "\326ge\032\024\030\0774\0" // Argentina zone 4
    "\326ge\032\024\030\0775\0" // Argentina zone 5
    "\326ge\032\024\030\0776\0" // Argentina zone 6
    "\326ge\032\024\030\0777\0" // Argentina zone 7
    "\326i!\030Co\006d\024<\012Sy\021\206\333\365\223!e\0" // Arizona Coordinate System Central zone
    "\326i!\030Co\006d\024<\012Sy\021\206 E\315!e\0" // Arizona Coordinate System East zone
    "\326i!\030Co\006d\024<\012Sy\021\206 W\275!e\0" // Arizona Coordinate System West zone
    "\326i!\253C\365\026\2670\0332\0" // Arizona_Central_FIPS_0202
    "\326i!\253C\365\026\2670\0332\366_I\032l\0" // Arizona_Central_FIPS_0202_Feet_Intl
    "\326i!\253C\365\026\2670\0332\134t_I\032l\0" // Arizona_Central_FIPS_0202_Ft_Intl
    "\326i!\253Ea\021\2670\0331\0" // Arizona_East_FIPS_0201
    "\326i!\253Ea\021\2670\0331\366_I\032l\0" // Arizona_East_FIPS_0201_Feet_Intl
    "\326i!\253Ea\021\2670\0331\134t_I\032l\0" // Arizona_East_FIPS_0201_Ft_Intl
    "\326i!\253We\021\2670\0333\0" // Arizona_West_FIPS_0203
    "\326i!\253We\021\2670\0333\366_I\032l\0" // Arizona_West_FIPS_0203_Feet_Intl
    "\326i!\253We\021\2670\0333\134t_I\032l\0" // Arizona_West_FIPS_0203_Ft_Intl
    "\326k\005s\201 @\313 \371\0" // Arkansas CS27 North
    "\326k\005s\201 @\313{\362\0" // Arkansas CS27 South
    "\326k\005s\201_\371\2670\3751\0" // Arkansas_North_FIPS_0301
    "\326k\005s\201_\371\2670\3751\366\0" // Arkansas_North_FIPS_0301_Feet
    "\326k\005s\201_\371\2670\3751\134t_\204\0" // Arkansas_North_FIPS_0301_Ft_US
    "\326k\005s\201_S\362\2670\3752\0" // Arkansas_South_FIPS_0302
    "\326k\005s\201_S\362\2670\3752\366\0" // Arkansas_South_FIPS_0302_Feet
    "\326k\005s\201_S\362\2670\3752\134t_\204\0" // Arkansas_South_FIPS_0302_Ft_US
    "\326m\210i\253Qu\024dio_\2276\0" // Armenia_Quindio_2006
    "\326unach\223Pr\274e^ \334F LCC\0" // Arunachal Pradesh NSF LCC
    "\326unach\026_Pr\274e^\0" // Arunachal_Pradesh
    "Asc\210si\222\352\32058\0" // Ascension Island 1958
    "Asc\210s\321_\352\21258\0" // Ascension_Island_1958
    "A^\211\374\025\032y\366\0" // Ashland_County_Feet
    "A^\211\374\025\032y_M\311\0" // Ashland_County_Meters
    "A^\211\366\0" // Ashland_Feet
    "A^\211_M\311\0" // Ashland_Meters
    "As\215B\005gl\274e^; \355ia; My\005m#; Paki\021\005\002\237\0" // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    "As\215B\005gl\274e^; \355ia; My\005m#; Paki\021\005\002\077Ilb\0" // Asia - Bangladesh; India; Myanmar; Pakistan - zone Ilb
    "As\215Brunei \301E\315M\026aysia\0" // Asia - Brunei and East Malaysia
    "As\215Brunei \301E\315M\026ays\215\3128}\1774\015\0" // Asia - Brunei and East Malaysia - 108°E to 114°E
    "As\215Brunei \301E\315M\026ays\215\1774\345\033\015\0" // Asia - Brunei and East Malaysia - 114°E to 120°E
    "As\215C\232bod\314\301Vi\036n\232\002\213\006\012&\333uu L\003g b\201\024\0" // Asia - Cambodia and Vietnam - onshore & Cuu Long basin
    "As\215C\232bod\314\301Vi\036n\232\002w\275\252\3128\015\0" // Asia - Cambodia and Vietnam - west of 108°E
    "As\215FSU\00249\224}52\224\360\237\0" // Asia - FSU - 49.5°E to 52.5°E onshore
    "As\215FSU\00252\224}55\224\360\237\0" // Asia - FSU - 52.5°E to 55.5°E onshore
    "As\215FSU\00255\224}58\224\360\237\0" // Asia - FSU - 55.5°E to 58.5°E onshore
    "As\215FSU\00258\224}61\224\360\237\0" // Asia - FSU - 58.5°E to 61.5°E onshore
    "As\215FSU\00261\224}64\224\360\237\0" // Asia - FSU - 61.5°E to 64.5°E onshore
    "As\215FSU\00264\224}67\224\360\237\0" // Asia - FSU - 64.5°E to 67.5°E onshore
    "As\215FSU\00267\224}70\224\360\237\0" // Asia - FSU - 67.5°E to 70.5°E onshore
    "As\215FSU\00270\224}73\224\360\237\0" // Asia - FSU - 70.5°E to 73.5°E onshore
    "As\215FSU\00273\224}76\224\360\237\0" // Asia - FSU - 73.5°E to 76.5°E onshore
    "As\215FSU\00276\224}79\224\360\237\0" // Asia - FSU - 76.5°E to 79.5°E onshore
    "As\215FSU\00279\224}82\224\360\237\0" // Asia - FSU - 79.5°E to 82.5°E onshore
    "As\215FSU\00282\224}85\224\360\237\0" // Asia - FSU - 82.5°E to 85.5°E onshore
    "As\215FSU\00285\224}88\224\360\237\0" // Asia - FSU - 85.5°E to 88.5°E onshore
    "As\215FSU\002@63\270A1\0" // Asia - FSU - CS63 zone A1
    "As\215FSU\002@63\270A2\0" // Asia - FSU - CS63 zone A2
    "As\215FSU\002@63\270A3\0" // Asia - FSU - CS63 zone A3
    "As\215FSU\002@63\270A4\0" // Asia - FSU - CS63 zone A4
    "As\215FSU\002@63\270K2\0" // Asia - FSU - CS63 zone K2
    "As\215FSU\002@63\270K3\0" // Asia - FSU - CS63 zone K3
    "As\215FSU\002@63\270K4\0" // Asia - FSU - CS63 zone K4
    "As\215FSU\002C\201p\335{ea\0" // Asia - FSU - Caspian Sea
    "As\215FSU \213\006\01248}54\015\0" // Asia - FSU onshore 48°E to 54°E
    "As\215FSU \213\006\01254}60\015\0" // Asia - FSU onshore 54°E to 60°E
    "As\215FSU \213\006\01260}66\015\0" // Asia - FSU onshore 60°E to 66°E
    "As\215FSU \213\006\01266}72\015\0" // Asia - FSU onshore 66°E to 72°E
    "As\215FSU \213\006\01272}78\015\0" // Asia - FSU onshore 72°E to 78°E
    "As\215FSU \213\006\01278}84\015\0" // Asia - FSU onshore 78°E to 84°E
    "As\215FSU \213\006\01284}90\015\0" // Asia - FSU onshore 84°E to 90°E
    "As\215\355ia; Paki\021\005\00228\004N\02235\00435'N\0" // Asia - India; Pakistan - 28°N to 35°35'N
    "As\215\355ia; Paki\021\005\002\213\006\01221\004N\02228\004N \301w\275\25282\015\0" // Asia - India; Pakistan - onshore 21°N to 28°N and west of 82°E
    "As\215Jap\005 \301K\202a\0" // Asia - Japan and Korea
    "As\215K\202\030N \035{\002126\34528\015\0" // Asia - Korea N and S - 126°E to 128°E
    "As\215K\202\030N \035{\002128\345\375\015\0" // Asia - Korea N and S - 128°E to 130°E
    "As\215K\202\030N \035{\002e\315\2521\375\015\0" // Asia - Korea N and S - east of 130°E
    "As\215K\202\030N \035{\002w\275\252126\015\0" // Asia - Korea N and S - west of 126°E
    "As\215M\026ays\314(w\275\024clud\024g{@) \301S\024gap\202\0" // Asia - Malaysia (west including SCS) and Singapore
    "As\215M\026ays\314(we\021) \301S\024gap\202\0" // Asia - Malaysia (west) and Singapore
    "As\215M\257dl\012Ea\021\002B\373\370\024\307Kuwa\243 \301Saudi \326abia\0" // Asia - Middle East - Bahrain, Kuwait and Saudi Arabia
    "As\215M\257dl\012Ea\021\002I\370q \301Kuwa\243 42}48\015\0" // Asia - Middle East - Iraq and Kuwait 42°E to 48°E
    "As\215M\257dl\012Ea\021\002I\370q \035{W Ir\005\0" // Asia - Middle East - Iraq and SW Iran
    "As\215M\257dl\012Ea\021\002I\370q-Kuwa\243 b\025nd#y\0" // Asia - Middle East - Iraq-Kuwait boundary
    "As\215M\257dl\012Ea\021\002\325\370\240 \301P\026e\021\024\012T\007r\243\006\200\237\0" // Asia - Middle East - Israel and Palestine Territory onshore
    "As\215M\257dl\012Ea\021\002\325\370\240\307J\006d\005 \301P\026e\021\024\012\237\0" // Asia - Middle East - Israel, Jordan and Palestine onshore
    "As\215M\257dl\012Ea\021\002Kuwa\243 \035{audi\00242}48\015\0" // Asia - Middle East - Kuwait and Saudi - 42°E to 48°E
    "As\215M\257dl\012Ea\021\002Kuwa\243 \035{audi\00248}54\015\0" // Asia - Middle East - Kuwait and Saudi - 48°E to 54°E
    "As\215M\257dl\012Ea\021\002Leb\005\222\035{yr\314\237\0" // Asia - Middle East - Lebanon and Syria onshore
    "As\215M\257dl\012Ea\021\002Q<# \216f^\006\012\301UAE\0" // Asia - Middle East - Qatar offshore and UAE
    "As\215M\257dl\012Ea\021\002Q<# \216f^\006\012\301UAE w\275\25254\015\0" // Asia - Middle East - Qatar offshore and UAE west of 54°E
    "As\215My\005m# \301Thai\211\00296}\3122\015\0" // Asia - Myanmar and Thailand - 96°E to 102°E
    "As\215My\005m# \301Thai\211 \237\0" // Asia - Myanmar and Thailand onshore
    "Ass\232 \334F LCC\0" // Assam NSF LCC
    "A\021r\013DOS 71\0" // Astro DOS 71
    "A\021r\013DOS 71\011SHLG71\0" // Astro DOS 71 / SHLG71
    "A\021r\013DOS 71\011U\250\270\375S\0" // Astro DOS 71 / UTM zone 30S
    "A\021ro\21252\0" // Astro_1952
    "A\021ro_DOS_71_4_SHLG71\0" // Astro_DOS_71_4_SHLG71
    "A\021ro_DOS_71_4_U\376!\207\375S\0" // Astro_DOS_71_4_UTM_zone_30S
    "Auck\211 \352s Tr\005sv\220\012M\007c<\006 \2270\0" // Auckland Islands Transverse Mercator 2000
    "Auck\211_\352s_\376\2270\0" // Auckland_Islands_TM_2000
    "Au\021r\026\201\215Au\021r\026\314\301Chri\021m\201 \352\002\3128}\1774\015\0" // Australasia - Australia and Christmas Island - 108°E to 114°E
    "Au\021r\026\201\215Au\021r\026\314\301Chri\021m\201 \352\002w\275\252\3128\015\0" // Australasia - Australia and Christmas Island - west of 108°E
    "Au\021r\026\201\215Au\021r\026\314\301\203f\247k \352\002162\34568\015\0" // Australasia - Australia and Norfolk Island - 162°E to 168°E
    "Au\021r\026\201\215Au\021r\026\314\301PNG\002138\34544\015\0" // Australasia - Australia and PNG - 138°E to 144°E
    "Au\021r\026\201\215Au\021r\026\314\301PNG\002144\34550\015\0" // Australasia - Australia and PNG - 144°E to 150°E
    "Au\021r\026\201\215Au\021r\026\314\301PNG\002150\34556\015\0" // Australasia - Australia and PNG - 150°E to 156°E
    "Au\021r\026\201\215Au\021r\026\314\301PNG\002AGD66\0" // Australasia - Australia and PNG - AGD66
    "Au\021r\026\215\3122}\3128\015\0" // Australia - 102°E to 108°E
    "Au\021r\026\215\3128}\1774\015\205EEZ)\0" // Australia - 108°E to 114°E (EEZ)
    "Au\021r\026\215\1774\345\033\015\0" // Australia - 114°E to 120°E
    "Au\021r\026\215\1774\345\033\015\205EEZ)\0" // Australia - 114°E to 120°E (EEZ)
    "Au\021r\026\2151\033\34526\015\0" // Australia - 120°E to 126°E
    "Au\021r\026\215126\34532\015\0" // Australia - 126°E to 132°E
    "Au\021r\026\215132\34538\015\0" // Australia - 132°E to 138°E
    "Au\021r\026\215138\34544\015\0" // Australia - 138°E to 144°E
    "Au\021r\026\215144\34550\015\0" // Australia - 144°E to 150°E
    "Au\021r\026\215150\34556\015\0" // Australia - 150°E to 156°E
    "Au\021r\026\215156\34562\015\0" // Australia - 156°E to 162°E
    "Au\021r\026\215156\34562\360\024clud\024g Macqu#ie\0" // Australia - 156°E to 162°E including Macquarie
    "Au\021r\026\215AGD84\0" // Australia - AGD84
    "Au\021r\026\215Au\021r\026\335\333ap\243\223T\007r\243\006y\0" // Australia - Australian Capital Territory
    "Au\021r\026\215Br=b\005e\0" // Australia - Brisbane
    "Au\021r\026\215EEZ e\315\252162\015\0" // Australia - EEZ east of 162°E
    "Au\021r\026\215GDA\0" // Australia - GDA
    "Au\021r\026\215\361{\246W\026\242\0" // Australia - New South Wales
    "Au\021r\026\215Q\316 144\34550\015\0" // Australia - Qld 144°E to 150°E
    "Au\021r\026\215Q\316 e\315\252150\015\0" // Australia - Qld east of 150°E
    "Au\021r\026\215Que\210s\211\002Weipa\0" // Australia - Queensland - Weipa
    "Au\021r\026\215SA\0" // Australia - SA
    "Au\021r\026\215SA 132\34538\015\0" // Australia - SA 132°E to 138°E
    "Au\021r\026\215SA \301Q\316 138\34544\015\0" // Australia - SA and Qld 138°E to 144°E
    "Au\021r\026\215SA \301WA 126\34532\015\0" // Australia - SA and WA 126°E to 132°E
    "Au\021r\026\215V$t\006ia\0" // Australia - Victoria
    "Au\021r\026\215We\021\007n Au\021r\026\215Alb\005y\0" // Australia - Western Australia - Albany
    "Au\021r\026\215We\021\007n Au\021r\026\215B#row\0" // Australia - Western Australia - Barrow
    "Au\021r\026\215We\021\007n Au\021r\026\215Bro\344e\0" // Australia - Western Australia - Broome
    "Au\021r\026\215We\021\007n Au\021r\026\215B\357s\240t\003\0" // Australia - Western Australia - Busselton
    "Au\021r\026\215We\021\007n Au\021r\026\215C#n#v\003\0" // Australia - Western Australia - Carnarvon
    "Au\021r\026\215We\021\007n Au\021r\026\215C\247lie\0" // Australia - Western Australia - Collie
    "Au\021r\026\215We\021\007n Au\021r\026\215Esp\007\005ce\0" // Australia - Western Australia - Esperance
    "Au\021r\026\215We\021\007n Au\021r\026\215Exm\362\0" // Australia - Western Australia - Exmouth
    "Au\021r\026\215We\021\007n Au\021r\026\215G\007\026dt\003\0" // Australia - Western Australia - Geraldton
    "Au\021r\026\215We\021\007n Au\021r\026\215J\225i\210 Bay\0" // Australia - Western Australia - Jurien Bay
    "Au\021r\026\215We\021\007n Au\021r\026\215K\026b#ri\0" // Australia - Western Australia - Kalbarri
    "Au\021r\026\215We\021\007n Au\021r\026\215K\026go\006lie\0" // Australia - Western Australia - Kalgoorlie
    "Au\021r\026\215We\021\007n Au\021r\026\215K#\370\023a\0" // Australia - Western Australia - Karratha
    "Au\021r\026\215We\021\007n Au\021r\026\215Kunun\225\370\0" // Australia - Western Australia - Kununurra
    "Au\021r\026\215We\021\007n Au\021r\026\215L\005c\240\024\0" // Australia - Western Australia - Lancelin
    "Au\021r\026\215We\021\007n Au\021r\026\215M#g#\036 Riv\007\0" // Australia - Western Australia - Margaret River
    "Au\021r\026\215We\021\007n Au\021r\026\215P\007\023\0" // Australia - Western Australia - Perth
    "Au\021r\026\215We\021\007n Au\021r\026\215P\006t H\273\211\0" // Australia - Western Australia - Port Hedland
    "Au\021r\026\215\237\0" // Australia - onshore
    "Au\021r\026i\253Alb\220\0" // Australia_Albers
    "Au\021r\026\335\0" // Australian
    "Au\021r\026\335 A\032#\317$\0" // Australian Antarctic
    "Au\021r\026\335 A\032#\317$ D<um \03198\0" // Australian Antarctic Datum 1998
    "Au\021r\026\335\333\365\012f\006 R\206\350\012S\210s\024g L\232b\007t\333\003f\006m\223Proje\317\321\0" // Australian Centre for Remote Sensing Lambert Conformal Projection
    "Au\021r\026\335 Geod\036$ D<um\32066\0" // Australian Geodetic Datum 1966
    "Au\021r\026\335 Geod\036$ D<um\32084\0" // Australian Geodetic Datum 1984
    "Au\021r\026\335 Map Gr\257\27048\0" // Australian Map Grid zone 48
    "Au\021r\026\335 Map Gr\257\27049\0" // Australian Map Grid zone 49
    "Au\021r\026\335 Map Gr\257\27050\0" // Australian Map Grid zone 50
    "Au\021r\026\335 Map Gr\257\27051\0" // Australian Map Grid zone 51
    "Au\021r\026\335 Map Gr\257\27052\0" // Australian Map Grid zone 52
    "Au\021r\026\335 Map Gr\257\27053\0" // Australian Map Grid zone 53
    "Au\021r\026\335 Map Gr\257\27054\0" // Australian Map Grid zone 54
    "Au\021r\026\335 Map Gr\257\27055\0" // Australian Map Grid zone 55
    "Au\021r\026\335 Map Gr\257\27056\0" // Australian Map Grid zone 56
    "Au\021r\026\335 Map Gr\257\27057\0" // Australian Map Grid zone 57
    "Au\021r\026\335 Map Gr\257\27058\0" // Australian Map Grid zone 58
    "Au\021r\026\335 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03314\0" // Australian Terrestrial Reference Frame 2014
    "Au\021r\026\335\21266\0" // Australian_1966
    "Au\021r\026\335\21284\0" // Australian_1984
    "Au\021r\026\335_Alb\220\0" // Australian_Albers
    "Au\021r\026\335_A\032#\317$_\03198\0" // Australian_Antarctic_1998
    "Au\021r\026\335_A\032#\317$_L\232b\007t\0" // Australian_Antarctic_Lambert
    "Au\021r\026\335_A\032#\317$_P\247#_St\007eog\370\230$\0" // Australian_Antarctic_Polar_Stereographic
    "Au\021r\026\335\374e\032>_f\006_R\206\350\207S\210s\024g_L\232b\007t\0" // Australian_Centre_for_Remote_Sensing_Lambert
    "Au\021r\026\335_T\007>\021ri\026_Ref\007\210ce\134r\232\207\03314\0" // Australian_Terrestrial_Reference_Frame_2014
    "Au\021ria\0" // Austria
    "Au\021r\215\177\00450'E\02214\00450'E\0" // Austria - 11°50'E to 14°50'E
    "Au\021r\215e\315\25214\00450'E\0" // Austria - east of 14°50'E
    "Au\021r\215w\275\252\177\00450'E\0" // Austria - west of 11°50'E
    "Au\021r\314Ga\357s-Krug\007 C\365\026\0" // Austria Gauss-Kruger Central
    "Au\021r\314Ga\357s-Krug\007\333\365\223Z\003e\0" // Austria Gauss-Kruger Central Zone
    "Au\021r\314Ga\357s-Krug\007 Ea\021\0" // Austria Gauss-Kruger East
    "Au\021r\314Ga\357s-Krug\007 E\315Z\003e\0" // Austria Gauss-Kruger East Zone
    "Au\021r\314Ga\357s-Krug\007 M28\0" // Austria Gauss-Kruger M28
    "Au\021r\314Ga\357s-Krug\007 M31\0" // Austria Gauss-Kruger M31
    "Au\021r\314Ga\357s-Krug\007 M34\0" // Austria Gauss-Kruger M34
    "Au\021r\314Ga\357s-Krug\007 We\021\0" // Austria Gauss-Kruger West
    "Au\021r\314Ga\357s-Krug\007 W\275Z\003e\0" // Austria Gauss-Kruger West Zone
    "Au\021ri\253C\365\026_Z\003e\0" // Austria_Central_Zone
    "Au\021ri\253Ea\021_Z\003e\0" // Austria_East_Zone
    "Au\021ri\253L\232b\007t\0" // Austria_Lambert
    "Au\021ri\253We\021_Z\003e\0" // Austria_West_Zone
    "Aut\003\344\025s Reg\321s \252P\006tug\223\2278\0" // Autonomous Regions of Portugal 2008
    "Av\007ag\012T\007>\021ri\026{y\021\206\32077\0" // Average Terrestrial System 1977
    "Ayab\240le\0" // Ayabelle
    "Ayab\240l\012Ligh\023\025se\0" // Ayabelle Lighthouse
    "Az\202s\333\365\223\03148\0" // Azores Central 1948
    "Az\202s\333\365\223\03148\011U\250\27026N\0" // Azores Central 1948 / UTM zone 26N
    "Az\202s\333\365\223\03195\0" // Azores Central 1995
    "Az\202s\333\365\223\03195\011U\250\27026N\0" // Azores Central 1995 / UTM zone 26N
    "Az\202s\333\365\223\352s\32048\0" // Azores Central Islands 1948
    "Az\202s\333\365\223\352s\32095\0" // Azores Central Islands 1995
    "Az\202s Occ\257e\032\223\03139\0" // Azores Occidental 1939
    "Az\202s Occ\257e\032\223\03139\011U\250\27025N\0" // Azores Occidental 1939 / UTM zone 25N
    "Az\202s Occ\257e\032\223\352s\32039\0" // Azores Occidental Islands 1939
    "Az\202s Orie\032\223\03140\0" // Azores Oriental 1940
    "Az\202s Orie\032\223\03140\011U\250\27026N\0" // Azores Oriental 1940 / UTM zone 26N
    "Az\202s Orie\032\223\03195\0" // Azores Oriental 1995
    "Az\202s Orie\032\223\03195\011U\250\27026N\0" // Azores Oriental 1995 / UTM zone 26N
    "Az\202s Orie\032\223\352s\32040\0" // Azores Oriental Islands 1940
    "Az\202s Orie\032\223\352s\32095\0" // Azores Oriental Islands 1995
    "Az\202s\374\365\026\21248\0" // Azores_Central_1948
    "Az\202s\374\365\026\21248_U\376Z\003\20726N\0" // Azores_Central_1948_UTM_Zone_26N
    "Az\202s\374\365\026\21295\0" // Azores_Central_1995
    "Az\202s\374\365\026\21295_U\376Z\003\20726N\0" // Azores_Central_1995_UTM_Zone_26N
    "Az\202s\374\365\026_\352s\21248\0" // Azores_Central_Islands_1948
    "Az\202s\374\365\026_\352s\21295\0" // Azores_Central_Islands_1995
    "Az\202s_Occ\257e\032\026\21239\0" // Azores_Occidental_1939
    "Az\202s_Occ\257e\032\026\21239_U\376Z\003\20725N\0" // Azores_Occidental_1939_UTM_Zone_25N
    "Az\202s_Occ\257e\032\026_\352s\21239\0" // Azores_Occidental_Islands_1939
    "Az\202s_Orie\032\026\21240\0" // Azores_Oriental_1940
    "Az\202s_Orie\032\026\21240_U\376Z\003\20726N\0" // Azores_Oriental_1940_UTM_Zone_26N
    "Az\202s_Orie\032\026\21295\0" // Azores_Oriental_1995
    "Az\202s_Orie\032\026\21295_U\376Z\003\20726N\0" // Azores_Oriental_1995_UTM_Zone_26N
    "Az\202s_Orie\032\026_\352s\21240\0" // Azores_Oriental_Islands_1940
    "Az\202s_Orie\032\026_\352s\21295\0" // Azores_Oriental_Islands_1995
    "B&H GK\2705\0" // B&H GK zone 5
    "B&H GK\2706\0" // B&H GK zone 6
    "B&H GK\2707\0" // B&H GK zone 7
    "BB DLx\0" // BB DLx
    "BC_Env\342\003me\032_Alb\220\0" // BC_Environment_Albers
    "BD50\0" // BD50
    "BD50\205Br\357s\240s)\0" // BD50 (Brussels)
    "BD50\205Br\357s\240s%B\240g\012L\232b\007t 50\0" // BD50 (Brussels) / Belge Lambert 50
    "BD72\0" // BD72
    "BD72\011B\240g\012L\232b\007t 72\0" // BD72 / Belge Lambert 72
    "BD72\011B\240g\335 L\232b\007t 72\0" // BD72 / Belgian Lambert 72
    "BDA\2270\0" // BDA2000
    "BDA\2270\011B\007mud\030\2270 N<\321\223Gr\257\0" // BDA2000 / Bermuda 2000 National Grid
    "BGS\2275\0" // BGS2005
    "BGS\2275\011C@\2275\0" // BGS2005 / CCS2005
    "BGS\2275\011U\250\27034N\0" // BGS2005 / UTM zone 34N
    "BGS\2275\011U\250\27034N\205N-E)\0" // BGS2005 / UTM zone 34N (N-E)
    "BGS\2275\011U\250\27035N\0" // BGS2005 / UTM zone 35N
    "BGS\2275\011U\250\27035N\205N-E)\0" // BGS2005 / UTM zone 35N (N-E)
    "BGS\2275\011U\250\27036N\0" // BGS2005 / UTM zone 36N
    "BGS\2275\374@\2275\0" // BGS2005_CCS2005
    "BGS\2275_U\376!\207\0" // BGS2005_UTM_zone_
    "BLM\270\312N\205\204 s\225ve\200f\221)\0" // BLM zone 10N (US survey feet)
    "BLM\270\177N\205\204 s\225ve\200f\221)\0" // BLM zone 11N (US survey feet)
    "BLM\27012N\205\204 s\225ve\200f\221)\0" // BLM zone 12N (US survey feet)
    "BLM\27013N\205\204 s\225ve\200f\221)\0" // BLM zone 13N (US survey feet)
    "BLM\27014N\205\204 s\225ve\200f\221)\0" // BLM zone 14N (US survey feet)
    "BLM\27015N\205\204 s\225ve\200f\221)\0" // BLM zone 15N (US survey feet)
    "BLM\27016N\205\204 s\225ve\200f\221)\0" // BLM zone 16N (US survey feet)
    "BLM\27017N\205\204 s\225ve\200f\221)\0" // BLM zone 17N (US survey feet)
    "BLM\27018N\205\204 s\225ve\200f\221)\0" // BLM zone 18N (US survey feet)
    "BLM\270\031N\205\204 s\225ve\200f\221)\0" // BLM zone 19N (US survey feet)
    "BLM\2701N\205\204 s\225ve\200f\221)\0" // BLM zone 1N (US survey feet)
    "BLM\2702N\205\204 s\225ve\200f\221)\0" // BLM zone 2N (US survey feet)
    "BLM\2703N\205\204 s\225ve\200f\221)\0" // BLM zone 3N (US survey feet)
    "BLM\2704N\205\204 s\225ve\200f\221)\0" // BLM zone 4N (US survey feet)
    "BLM\27059N\205\204 s\225ve\200f\221)\0" // BLM zone 59N (US survey feet)
    "BLM\2705N\205\204 s\225ve\200f\221)\0" // BLM zone 5N (US survey feet)
    "BLM\27060N\205\204 s\225ve\200f\221)\0" // BLM zone 60N (US survey feet)
    "BLM\2706N\205\204 s\225ve\200f\221)\0" // BLM zone 6N (US survey feet)
    "BLM\2707N\205\204 s\225ve\200f\221)\0" // BLM zone 7N (US survey feet)
    "BLM\2708N\205\204 s\225ve\200f\221)\0" // BLM zone 8N (US survey feet)
    "BLM\2709N\205\204 s\225ve\200f\221)\0" // BLM zone 9N (US survey feet)
    "BLM_Z\003\20714N_ft\204\0" // BLM_Zone_14N_ftUS
    "BLM_Z\003\20715N_ft\204\0" // BLM_Zone_15N_ftUS
    "BLM_Z\003\20716N_ft\204\0" // BLM_Zone_16N_ftUS
    "BLM_Z\003\20717N_ft\204\0" // BLM_Zone_17N_ftUS
    "BNG\2270\0" // BNG2000
    "BT68\0" // BT68
    "B\373\370\024\002\237\0" // Bahrain - onshore
    "B\373\370\024{t<\012Gr\257\0" // Bahrain State Grid
    "B\373\370\024_St<\207Gr\257\0" // Bahrain_State_Grid
    "Bak\007_\017\212\014_\231_\250\366_I\032l\0" // Baker_NAD_1983_2011_TM_Feet_Intl
    "Bak\007_\017\212\014_\231_\376M\311\0" // Baker_NAD_1983_2011_TM_Meters
    "Bak\007_\017\212\014_CO|96_\250\366_I\032l\0" // Baker_NAD_1983_CORS96_TM_Feet_Intl
    "Bak\007_\017\212\014_CO|96_\376M\311\0" // Baker_NAD_1983_CORS96_TM_Meters
    "B\026boa\0" // Balboa
    "B\026k\005s_5\0" // Balkans_5
    "B\026k\005s_6\0" // Balkans_6
    "B\026k\005s_7\0" // Balkans_7
    "B\026k\005s_8\0" // Balkans_8
    "B\005gl\274e^\0" // Bangladesh
    "B\005gl\274e^\002\237\0" // Bangladesh - onshore
    "B\005gl\274e^\002\213\006\012e\315\25290\015\0" // Bangladesh - onshore east of 90°E
    "B\005gl\274e^\002\213\006\012w\275\25290\015\0" // Bangladesh - onshore west of 90°E
    "B#b\274os\002\237\0" // Barbados - onshore
    "B#b\274os\32038\0" // Barbados 1938
    "B#b\274os\32038\011B#b\274os N<\321\223Gr\257\0" // Barbados 1938 / Barbados National Grid
    "B#b\274os\32038\011Br\243=h W\275\355i\242 Gr\257\0" // Barbados 1938 / British West Indies Grid
    "B#b\274os\21238\0" // Barbados_1938
    "B#b\274os\21238_B#b\274os_Gr\257\0" // Barbados_1938_Barbados_Grid
    "B#b\274os\21238_Br\243=h_We\021_\355i\242_Gr\257\0" // Barbados_1938_British_West_Indies_Grid
    "B#r\005qu\372l\253Atl\005t$o_\03197\0" // Barranquilla_Atlantico_1997
    "B#r\003\374\025\032y\366\0" // Barron_County_Feet
    "B#r\003\374\025\032y_M\311\0" // Barron_County_Meters
    "B#r\003\366\0" // Barron_Feet
    "B#r\003_M\311\0" // Barron_Meters
    "B#row \352 Gr\257 \03320\0" // Barrow Island Grid 2020
    "B#\023\247\344ew_(ft\204)\0" // Bartholomew_(ftUS)
    "B#\023\247\344ew_(m)\0" // Bartholomew_(m)
    "B\201\333\003g\013\03155\0" // Bas Congo 1955
    "B<avia\0" // Batavia
    "B<av\314(Jak#ta)\0" // Batavia (Jakarta)
    "B<av\314(Jak#ta%NEIEZ\0" // Batavia (Jakarta) / NEIEZ
    "B<avia\011NEIEZ\0" // Batavia / NEIEZ
    "B<avia\011\250 \3129{E\0" // Batavia / TM 109 SE
    "B<avia\011U\250\27048S\0" // Batavia / UTM zone 48S
    "B<avia\011U\250\27049S\0" // Batavia / UTM zone 49S
    "B<avia\011U\250\27050S\0" // Batavia / UTM zone 50S
    "B<avi\253Jak#ta\0" // Batavia_Jakarta
    "B<avi\253Jak#t\253NEIEZ\0" // Batavia_Jakarta_NEIEZ
    "B<avi\253NEIEZ\0" // Batavia_NEIEZ
    "B<avi\253\376\3129_SE\0" // Batavia_TM_109_SE
    "B<avi\253U\376Z\003\20748S\0" // Batavia_UTM_Zone_48S
    "B<avi\253U\376Z\003\20749S\0" // Batavia_UTM_Zone_49S
    "B<avi\253U\376Z\003\20750S\0" // Batavia_UTM_Zone_50S
    "Bay_\216_Ple\032y\374\342cu\243\0" // Bay_of_Plenty_Circuit
    "Bayfi\240d\374\025\032y\366\0" // Bayfield_County_Feet
    "Bayfi\240d\374\025\032y_M\311\0" // Bayfield_County_Meters
    "Bayfi\240d\366\0" // Bayfield_Feet
    "Bayfi\240d_M\311\0" // Bayfield_Meters
    "Beac\003_E\21245\0" // Beacon_E_1945
    "B\273u#\232\0" // Beduaram
    "B\273u#\232\011\250 13 NE\0" // Beduaram / TM 13 NE
    "B\273u#\232_\37613_NE\0" // Beduaram_TM_13_NE
    "Beij\024g\32054\0" // Beijing 1954
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M \3122E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 102E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M \3125E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 105E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M \3128E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 108E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M \1771E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 111E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M \1774E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 114E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M \1777E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 117E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 120E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 123E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 123E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 126E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 126E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 129E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 129E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 132E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 132E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 135E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 135E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 75E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 75E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 78E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 78E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 81E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 81E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 84E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 84E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 87E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 87E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 90E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 90E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 93E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 93E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 96E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 96E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\333M 99E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 99E
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27025\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 25
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27026\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 26
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27027\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 27
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27028\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 28
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27029\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 29
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27030\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 30
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27031\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 31
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27032\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 32
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27033\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 33
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27034\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 34
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27035\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 35
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27036\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 36
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27037\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 37
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27038\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 38
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27039\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 39
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27040\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 40
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27041\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 41
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27042\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 42
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27043\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 43
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27044\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 44
    "Beij\024g\32054\0113-deg>\012Ga\357s-Krug\007\27045\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 45
    "Beij\024g\32054\011Ga\357s-Krug\007 13N\0" // Beijing 1954 / Gauss-Kruger 13N
    "Beij\024g\32054\011Ga\357s-Krug\007 14N\0" // Beijing 1954 / Gauss-Kruger 14N
    "Beij\024g\32054\011Ga\357s-Krug\007 15N\0" // Beijing 1954 / Gauss-Kruger 15N
    "Beij\024g\32054\011Ga\357s-Krug\007 16N\0" // Beijing 1954 / Gauss-Kruger 16N
    "Beij\024g\32054\011Ga\357s-Krug\007 17N\0" // Beijing 1954 / Gauss-Kruger 17N
    "Beij\024g\32054\011Ga\357s-Krug\007 18N\0" // Beijing 1954 / Gauss-Kruger 18N
    "Beij\024g\32054\011Ga\357s-Krug\007 19N\0" // Beijing 1954 / Gauss-Kruger 19N
    "Beij\024g\32054\011Ga\357s-Krug\007 \033N\0" // Beijing 1954 / Gauss-Kruger 20N
    "Beij\024g\32054\011Ga\357s-Krug\007 21N\0" // Beijing 1954 / Gauss-Kruger 21N
    "Beij\024g\32054\011Ga\357s-Krug\007 22N\0" // Beijing 1954 / Gauss-Kruger 22N
    "Beij\024g\32054\011Ga\357s-Krug\007 23N\0" // Beijing 1954 / Gauss-Kruger 23N
    "Beij\024g\32054\011Ga\357s-Krug\007\333M \3125E\0" // Beijing 1954 / Gauss-Kruger CM 105E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M \1771E\0" // Beijing 1954 / Gauss-Kruger CM 111E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M \1777E\0" // Beijing 1954 / Gauss-Kruger CM 117E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 123E\0" // Beijing 1954 / Gauss-Kruger CM 123E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 129E\0" // Beijing 1954 / Gauss-Kruger CM 129E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 135E\0" // Beijing 1954 / Gauss-Kruger CM 135E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 75E\0" // Beijing 1954 / Gauss-Kruger CM 75E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 81E\0" // Beijing 1954 / Gauss-Kruger CM 81E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 87E\0" // Beijing 1954 / Gauss-Kruger CM 87E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 93E\0" // Beijing 1954 / Gauss-Kruger CM 93E
    "Beij\024g\32054\011Ga\357s-Krug\007\333M 99E\0" // Beijing 1954 / Gauss-Kruger CM 99E
    "Beij\024g\32054\011Ga\357s-Krug\007\27013\0" // Beijing 1954 / Gauss-Kruger zone 13
    "Beij\024g\32054\011Ga\357s-Krug\007\27014\0" // Beijing 1954 / Gauss-Kruger zone 14
    "Beij\024g\32054\011Ga\357s-Krug\007\27015\0" // Beijing 1954 / Gauss-Kruger zone 15
    "Beij\024g\32054\011Ga\357s-Krug\007\27016\0" // Beijing 1954 / Gauss-Kruger zone 16
    "Beij\024g\32054\011Ga\357s-Krug\007\27017\0" // Beijing 1954 / Gauss-Kruger zone 17
    "Beij\024g\32054\011Ga\357s-Krug\007\27018\0" // Beijing 1954 / Gauss-Kruger zone 18
    "Beij\024g\32054\011Ga\357s-Krug\007\27019\0" // Beijing 1954 / Gauss-Kruger zone 19
    "Beij\024g\32054\011Ga\357s-Krug\007\27020\0" // Beijing 1954 / Gauss-Kruger zone 20
    "Beij\024g\32054\011Ga\357s-Krug\007\27021\0" // Beijing 1954 / Gauss-Kruger zone 21
    "Beij\024g\32054\011Ga\357s-Krug\007\27022\0" // Beijing 1954 / Gauss-Kruger zone 22
    "Beij\024g\32054\011Ga\357s-Krug\007\27023\0" // Beijing 1954 / Gauss-Kruger zone 23
    "Beij\024g\21254\0" // Beijing_1954
    "Beij\024g\21254_3_Deg>\207GK_\0" // Beijing_1954_3_Degree_GK_
    "Beij\024g\21254_3_Deg>\207GK_Z\003\207\0" // Beijing_1954_3_Degree_GK_Zone_
    "Beij\024g\21254_GK_Z\003\207\0" // Beijing_1954_GK_Zone_
    "Beij\024g\21254_Ga\357s_Krug\007\374M_\0" // Beijing_1954_Gauss_Kruger_CM_
    "Beka\030V\026le\200\03120\0" // Bekaa Valley 1920
    "Beka\253V\026ley\21220\0" // Bekaa_Valley_1920
    "B\240g\207\03150\0" // Belge_1950
    "B\240g\207\03150_Br\357s\240s\0" // Belge_1950_Brussels
    "B\240g\207\03172\0" // Belge_1972
    "B\240g\207L\232b\007t\21250\0" // Belge_Lambert_1950
    "B\240g\207L\232b\007t\21272\0" // Belge_Lambert_1972
    "B\240g\207L\232b\007t_\2275\0" // Belge_Lambert_2005
    "B\240g\207L\232b\007t_\2278\0" // Belge_Lambert_2008
    "B\240gium\002\237\0" // Belgium - onshore
    "B\240iz\226\237\0" // Belize - onshore
    "B\240iz\012C\247\003\200Gr\257\0" // Belize Colony Grid
    "B\240levue\0" // Bellevue
    "B\240levu\012(IGN)\0" // Bellevue (IGN)
    "B\240levu\207IGN\0" // Bellevue_IGN
    "Be\032\003_(ft\204)\0" // Benton_(ftUS)
    "Be\032\003_(m)\0" // Benton_(m)
    "B\007\024g_Sea\0" // Bering_Sea
    "B\007muda\0" // Bermuda
    "B\007mud\034\237\0" // Bermuda - onshore
    "B\007mud\030\03157\0" // Bermuda 1957
    "B\007mud\030\03157\011U\250\270\033N\0" // Bermuda 1957 / UTM zone 20N
    "B\007mud\030\2270\0" // Bermuda 2000
    "B\007mud\030N<\321\223Gr\257\0" // Bermuda National Grid
    "B\007muda\21257\0" // Bermuda_1957
    "B\007muda\21257_U\376Z\003\207\033N\0" // Bermuda_1957_UTM_Zone_20N
    "B\007mud\253\2270\0" // Bermuda_2000
    "B\007mud\253\2270_N<\321\026_Gr\257\0" // Bermuda_2000_National_Grid
    "B\007n 1898\205B\007n)\0" // Bern 1898 (Bern)
    "B\007n 1898\205B\007n%LV03C\0" // Bern 1898 (Bern) / LV03C
    "B\007n\32038\0" // Bern 1938
    "B\007n_1898_B\007n\0" // Bern_1898_Bern
    "B\007n_1898_B\007n_LV03C\0" // Bern_1898_Bern_LV03C
    "B\007n\21238\0" // Bern_1938
    "B\242s\240 1841\0" // Bessel 1841
    "B\242s\240 Modifi\273\0" // Bessel Modified
    "B\242s\240 N\232ibia\0" // Bessel Namibia
    "B\242s\240 N\232ib\314(GLM)\0" // Bessel Namibia (GLM)
    "B\242s\240_1841\0" // Bessel_1841
    "B\242s\240_Modifi\273\0" // Bessel_Modified
    "B\242s\240_N\232ibia\0" // Bessel_Namibia
    "Bhut\005\0" // Bhutan
    "Bhut\005\002Bum\023\005g di\021r$t\0" // Bhutan - Bumthang district
    "Bhut\005\002Chhukh\030di\021r$t\0" // Bhutan - Chhukha district
    "Bhut\005\002Dag\005\030di\021r$t\0" // Bhutan - Dagana district
    "Bhut\005\002G\201\030di\021r$t\0" // Bhutan - Gasa district
    "Bhut\005\002H\030di\021r$t\0" // Bhutan - Ha district
    "Bhut\005\002Lhue\032s\012di\021r$t\0" // Bhutan - Lhuentse district
    "Bhut\005\002M\003g# di\021r$t\0" // Bhutan - Mongar district
    "Bhut\005\002P#\013di\021r$t\0" // Bhutan - Paro district
    "Bhut\005\002P\206ag<^\240 di\021r$t\0" // Bhutan - Pemagatshel district
    "Bhut\005\002Punakh\030di\021r$t\0" // Bhutan - Punakha district
    "Bhut\005\002S\232drup J\003gkh# di\021r$t\0" // Bhutan - Samdrup Jongkhar district
    "Bhut\005\002S\232ts\012di\021r$t\0" // Bhutan - Samtse district
    "Bhut\005\002S#p\005g di\021r$t\0" // Bhutan - Sarpang district
    "Bhut\005\002Thim\230u di\021r$t\0" // Bhutan - Thimphu district
    "Bhut\005\002T\370^ig\005g di\021r$t\0" // Bhutan - Trashigang district
    "Bhut\005\002Tr\003gs\030di\021r$t\0" // Bhutan - Trongsa district
    "Bhut\005\002Ts\342\005g di\021r$t\0" // Bhutan - Tsirang district
    "Bhut\005\002W\005gdu\012Phodr\005g di\021r$t\0" // Bhutan - Wangdue Phodrang district
    "Bhut\005\002Y\005gts\012di\021r$t\0" // Bhutan - Yangtse district
    "Bhut\005\002Z\276g\005g di\021r$t\0" // Bhutan - Zhemgang district
    "Bhut\005 N<\321\223Geod\036$ D<um\0" // Bhutan National Geodetic Datum
    "Bhut\005_N<\321\026_Geod\036$_D<um\0" // Bhutan_National_Geodetic_Datum
    "Bhut\005_N<\321\026_Gr\257\0" // Bhutan_National_Grid
    "Bih# \334F LCC\0" // Bihar NSF LCC
    "B\372l\024gs\134t_I\032l\0" // Billings_Ft_Intl
    "B\372l\024gs_M\311\0" // Billings_Meters
    "B\024 w\257`12\224 m\036>s\0" // Bin width 12.5 metres
    "B\024 w\257`165 \204 s\225ve\200f\221\0" // Bin width 165 US survey feet
    "B\024 w\257`25 m\036>s\0" // Bin width 25 metres
    "B\024 w\257`3.125 m\036>s\0" // Bin width 3.125 metres
    "B\024 w\257`3\375 \204 s\225ve\200f\221\0" // Bin width 330 US survey feet
    "B\024 w\257`37\224 m\036>s\0" // Bin width 37.5 metres
    "B\024 w\257`6.25 m\036>s\0" // Bin width 6.25 metres
    "B\024 w\257`82\224 \204 s\225ve\200f\221\0" // Bin width 82.5 US survey feet
    "B=sau\0" // Bissau
    "B=sau\011U\250\27028N\0" // Bissau / UTM zone 28N
    "B=sau_U\376Z\003\20728N\0" // Bissau_UTM_Zone_28N
    "Blackf\221\134t_I\032l\0" // Blackfeet_Ft_Intl
    "Blackf\221_M\311\0" // Blackfeet_Meters
    "Blackf\006d-D\240aw#\207(ft\204)\0" // Blackford-Delaware_(ftUS)
    "Blackf\006d-D\240aw#\207(m)\0" // Blackford-Delaware_(m)
    "Blu\012N\372\012\03158\0" // Blue Nile 1958
    "Bluff\374\342cu\243\0" // Bluff_Circuit
    "Bobc<\134t_I\032l\0" // Bobcat_Ft_Intl
    "Bobc<_M\311\0" // Bobcat_Meters
    "Bog\350\030\03175\0" // Bogota 1975
    "Bog\350\030\03175\205Bog\350a)\0" // Bogota 1975 (Bogota)
    "Bog\350\030\03175\011C\247\344b\314Bog\350\030!e\0" // Bogota 1975 / Colombia Bogota zone
    "Bog\350\030\03175\011C\247\344b\314Ea\021\0" // Bogota 1975 / Colombia East
    "Bog\350\030\03175\011C\247\344b\314E\315C\365\223!e\0" // Bogota 1975 / Colombia East Central zone
    "Bog\350\030\03175\011C\247\344b\314E\315!e\0" // Bogota 1975 / Colombia East zone
    "Bog\350\030\03175\011C\247\344b\314W\275!e\0" // Bogota 1975 / Colombia West zone
    "Bog\350\030\03175\011U\250\27017N\0" // Bogota 1975 / UTM zone 17N
    "Bog\350\030\03175\011U\250\27018N\0" // Bogota 1975 / UTM zone 18N
    "Bog\350\253Bog\350a\0" // Bogota_Bogota
    "Bog\350\253DC_\2275\0" // Bogota_DC_2005
    "Bog\350\253U\376Z\003\20717N\0" // Bogota_UTM_Zone_17N
    "Bog\350\253U\376Z\003\20718N\0" // Bogota_UTM_Zone_18N
    "Bog\350\253Z\003e\0" // Bogota_Zone
    "B\247iv\21566\21760\037\0" // Bolivia - 66°W to 60°W
    "B\247iv\215e\315\25260\037\0" // Bolivia - east of 60°W
    "B\247iv\215w\275\25266\037\0" // Bolivia - west of 66°W
    "Bo\003e-H\210dr$ks_(ft\204)\0" // Boone-Hendricks_(ftUS)
    "Bo\003e-H\210dr$ks_(m)\0" // Boone-Hendricks_(m)
    "B\006chg>v\024k\333o\315L\232b\007t\333\003f\006m\223\2270\0" // Borchgrevink Coast Lambert Conformal 2000
    "B\006ne\013|O\0" // Borneo RSO
    "B\006ne\013Tr\335gul<i\222\252\03168\0" // Borneo Triangulation of 1968
    "B\350sw\005\03421}\313\015\0" // Botswana - 21°E to 27°E
    "B\350sw\005\034e\315\25224\015\0" // Botswana - east of 24°E
    "B\350sw\005\034w\275\25224\015\0" // Botswana - west of 24°E
    "B\370z\372\0" // Brazil
    "B\370z\372\00236\217\375\037\0" // Brazil - 36°W to 30°W
    "B\370z\372\00236\217\375\037 \216f^\202\0" // Brazil - 36°W to 30°W offshore
    "B\370z\372\00242\21736\037\0" // Brazil - 42°W to 36°W
    "B\370z\372\00242\21736\037 \301\326<u\0" // Brazil - 42°W to 36°W and Aratu
    "B\370z\372\00242\21736\037 \301n\006`\2520\004N\0" // Brazil - 42°W to 36°W and north of 0°N
    "B\370z\372\00242\21736\037 \301s\246\25215\004S \237\0" // Brazil - 42°W to 36°W and south of 15°S onshore
    "B\370z\372\00242\21736\037 \237\0" // Brazil - 42°W to 36°W onshore
    "B\370z\372\00248\21742\037\0" // Brazil - 48°W to 42°W
    "B\370z\372\00248\21742\037 \301\326<u\0" // Brazil - 48°W to 42°W and Aratu
    "B\370z\372\00248\21742\037 \301n\006`\2520\004N\0" // Brazil - 48°W to 42°W and north of 0°N
    "B\370z\372\00248\21742\037 \301s\246\25215\004S\0" // Brazil - 48°W to 42°W and south of 15°S
    "B\370z\372\00254\21748\037 \30115\004S\022\313\004\375'S\0" // Brazil - 54°W to 48°W and 15°S to 27°30'S
    "B\370z\372\00254\21748\037 \301\326<u\0" // Brazil - 54°W to 48°W and Aratu
    "B\370z\372\00254\21748\037 \301S\01669\0" // Brazil - 54°W to 48°W and SAD69
    "B\370z\372\00254\21748\037 \301s\246\25215\004S\0" // Brazil - 54°W to 48°W and south of 15°S
    "B\370z\372\00260\21754\037\0" // Brazil - 60°W to 54°W
    "B\370z\372\00266\21760\037\0" // Brazil - 66°W to 60°W
    "B\370z\372\00272\21766\037\0" // Brazil - 72°W to 66°W
    "B\370z\372\002Ama! c\003\012^\240f\0" // Brazil - Amazon cone shelf
    "B\370z\372\002\326<u\0" // Brazil - Aratu
    "B\370z\372\002C\006\262\013Alegr\012\03161\0" // Brazil - Corrego Alegre 1961
    "B\370z\372\002C\006\262\013Alegr\012\03170-\03172\0" // Brazil - Corrego Alegre 1970-1972
    "B\370z\372\002Di\021r\243\013F\273\007\026\0" // Brazil - Distrito Federal
    "B\370z\372\002e\315\252\375\037\0" // Brazil - east of 30°W
    "B\370z\372\002e\315\25236\037 \237\0" // Brazil - east of 36°W onshore
    "B\370z\372\002equ<\006i\223m#g\024\0" // Brazil - equatorial margin
    "B\370z\372\002w\275\25254\037 \301b\036we\210 18\004S \301\313\004\375'S\0" // Brazil - west of 54°W and between 18°S and 27°30'S
    "B\370z\372\002w\275\25254\037 \301s\246\25218\004S\0" // Brazil - west of 54°W and south of 18°S
    "B\370z\372\002w\275\25272\037\0" // Brazil - west of 72°W
    "Br=b\005\012C\243y{\225ve\200Gr\257 02\0" // Brisbane City Survey Grid 02
    "Br=b\005\012C\243y{\225ve\200Gr\257 \03320\0" // Brisbane City Survey Grid 2020
    "Br\243=h\333\247umb\314Alb\220\0" // British Columbia Albers
    "Br\243=h \355\335 Oce\005 T\007r\243\006y\002Dieg\013G#cia\0" // British Indian Ocean Territory - Diego Garcia
    "Br\243=h cha\024\205B\210o\243 1895 A)\0" // British chain (Benoit 1895 A)
    "Br\243=h cha\024\205B\210o\243 1895 B)\0" // British chain (Benoit 1895 B)
    "Br\243=h cha\024\205Se#s\32022\020runc<\273)\0" // British chain (Sears 1922 truncated)
    "Br\243=h cha\024\205Se#s\32022)\0" // British chain (Sears 1922)
    "Br\243=h fo\350\2051865)\0" // British foot (1865)
    "Br\243=h fo\350\205\03136)\0" // British foot (1936)
    "Br\243=h fo\350\205B\210o\243 1895 A)\0" // British foot (Benoit 1895 A)
    "Br\243=h fo\350\205B\210o\243 1895 B)\0" // British foot (Benoit 1895 B)
    "Br\243=h fo\350\205Se#s\32022\020runc<\273)\0" // British foot (Sears 1922 truncated)
    "Br\243=h fo\350\205Se#s\32022)\0" // British foot (Sears 1922)
    "Br\243=h l\024k\205B\210o\243 1895 A)\0" // British link (Benoit 1895 A)
    "Br\243=h l\024k\205B\210o\243 1895 B)\0" // British link (Benoit 1895 B)
    "Br\243=h l\024k\205Se#s\32022\020runc<\273)\0" // British link (Sears 1922 truncated)
    "Br\243=h l\024k\205Se#s\32022)\0" // British link (Sears 1922)
    "Br\243=h y#d\205B\210o\243 1895 A)\0" // British yard (Benoit 1895 A)
    "Br\243=h y#d\205B\210o\243 1895 B)\0" // British yard (Benoit 1895 B)
    "Br\243=h y#d\205Se#s\32022\020runc<\273)\0" // British yard (Sears 1922 truncated)
    "Br\243=h y#d\205Se#s\32022)\0" // British yard (Sears 1922)
    "Br\243=h\21236\0" // British_1936
    "Br\243=h_N<\321\026_Gr\257\0" // British_National_Grid
    "Bro\344\012Gr\257 \03320\0" // Broome Grid 2020
    "Brown_(ft\204)\0" // Brown_(ftUS)
    "Brown_(m)\0" // Brown_(m)
    "Brown\374\025\032y\366\0" // Brown_County_Feet
    "Brown\374\025\032y_M\311\0" // Brown_County_Meters
    "Brown\366\0" // Brown_Feet
    "Brown_M\311\0" // Brown_Meters
    "Brunei\0" // Brunei
    "Buc#\232\005g\253S\005t\035\007_\2278\0" // Bucaramanga_Santander_2008
    "Buff\026o\374\025\032y\366\0" // Buffalo_County_Feet
    "Buff\026o\374\025\032y_M\311\0" // Buffalo_County_Meters
    "Buff\026o\366\0" // Buffalo_Feet
    "Buff\026o_M\311\0" // Buffalo_Meters
    "Buk\243 Rimp\373\0" // Bukit Rimpah
    "Buk\243_Rimp\373\0" // Bukit_Rimpah
    "Bulg#ia\0" // Bulgaria
    "Bulg#\21524}\375\015\0" // Bulgaria - 24°E to 30°E
    "Bulg#\215e\315\252\375\015\0" // Bulgaria - east of 30°E
    "Bulg#\215\237\0" // Bulgaria - onshore
    "Bulg#\215w\275\25224\015\0" // Bulgaria - west of 24°E
    "Bulg#\314Geod\036${y\021\206 \2275\0" // Bulgaria Geodetic System 2005
    "Bulg#i\253Geod\036$_Sy\021\206_\2275\0" // Bulgaria_Geodetic_System_2005
    "Bull\007\374\342cu\243\0" // Buller_Circuit
    "Bum\023\005g_\250\0" // Bumthang_TM
    "Bund\242m\240d\210\036z M28\0" // Bundesmeldenetz M28
    "Bund\242m\240d\210\036z M31\0" // Bundesmeldenetz M31
    "Bund\242m\240d\210\036z M34\0" // Bundesmeldenetz M34
    "B\225n\036t\374\025\032y\366\0" // Burnett_County_Feet
    "B\225n\036t\374\025\032y_M\311\0" // Burnett_County_Meters
    "B\225n\036t\366\0" // Burnett_Feet
    "B\225n\036t_M\311\0" // Burnett_Meters
    "B\225ns-H#p\007_\017\212\014_\231_\250\134t_I\032l\0" // Burns-Harper_NAD_1983_2011_TM_Ft_Intl
    "B\225ns-H#p\007_\017\212\014_\231_\376M\311\0" // Burns-Harper_NAD_1983_2011_TM_Meters
    "B\357s\240t\222Coa\021\223Gr\257\0" // Busselton Coastal Grid
    "C \306cha\357p\012/\326ge\032\024\030\0" // C Inchauspe /Argentina 
    "CABA-P07\0" // CABA-P07
    "CG@ \2270\002L<L\003\0" // CGCS 2000 - LatLon
    "CG@\2270\0" // CGCS2000
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M \3122E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 102E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M \3125E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 105E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M \3128E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 108E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M \1771E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 111E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M \1774E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 114E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M \1777E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 117E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 120E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 123E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 123E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 126E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 126E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 129E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 129E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 132E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 132E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 135E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 135E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 75E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 75E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 78E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 78E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 81E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 81E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 84E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 84E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 87E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 87E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 90E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 90E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 93E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 93E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 96E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 96E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\333M 99E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 99E
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27025\0" // CGCS2000 / 3-degree Gauss-Kruger zone 25
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27026\0" // CGCS2000 / 3-degree Gauss-Kruger zone 26
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27027\0" // CGCS2000 / 3-degree Gauss-Kruger zone 27
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27028\0" // CGCS2000 / 3-degree Gauss-Kruger zone 28
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27029\0" // CGCS2000 / 3-degree Gauss-Kruger zone 29
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27030\0" // CGCS2000 / 3-degree Gauss-Kruger zone 30
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27031\0" // CGCS2000 / 3-degree Gauss-Kruger zone 31
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27032\0" // CGCS2000 / 3-degree Gauss-Kruger zone 32
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27033\0" // CGCS2000 / 3-degree Gauss-Kruger zone 33
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27034\0" // CGCS2000 / 3-degree Gauss-Kruger zone 34
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27035\0" // CGCS2000 / 3-degree Gauss-Kruger zone 35
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27036\0" // CGCS2000 / 3-degree Gauss-Kruger zone 36
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27037\0" // CGCS2000 / 3-degree Gauss-Kruger zone 37
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27038\0" // CGCS2000 / 3-degree Gauss-Kruger zone 38
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27039\0" // CGCS2000 / 3-degree Gauss-Kruger zone 39
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27040\0" // CGCS2000 / 3-degree Gauss-Kruger zone 40
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27041\0" // CGCS2000 / 3-degree Gauss-Kruger zone 41
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27042\0" // CGCS2000 / 3-degree Gauss-Kruger zone 42
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27043\0" // CGCS2000 / 3-degree Gauss-Kruger zone 43
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27044\0" // CGCS2000 / 3-degree Gauss-Kruger zone 44
    "CG@\2270\0113-deg>\012Ga\357s-Krug\007\27045\0" // CGCS2000 / 3-degree Gauss-Kruger zone 45
    "CG@\2270\011Ga\357s-Krug\007\333M \3125E\0" // CGCS2000 / Gauss-Kruger CM 105E
    "CG@\2270\011Ga\357s-Krug\007\333M \1771E\0" // CGCS2000 / Gauss-Kruger CM 111E
    "CG@\2270\011Ga\357s-Krug\007\333M \1777E\0" // CGCS2000 / Gauss-Kruger CM 117E
    "CG@\2270\011Ga\357s-Krug\007\333M 123E\0" // CGCS2000 / Gauss-Kruger CM 123E
    "CG@\2270\011Ga\357s-Krug\007\333M 129E\0" // CGCS2000 / Gauss-Kruger CM 129E
    "CG@\2270\011Ga\357s-Krug\007\333M 135E\0" // CGCS2000 / Gauss-Kruger CM 135E
    "CG@\2270\011Ga\357s-Krug\007\333M 75E\0" // CGCS2000 / Gauss-Kruger CM 75E
    "CG@\2270\011Ga\357s-Krug\007\333M 81E\0" // CGCS2000 / Gauss-Kruger CM 81E
    "CG@\2270\011Ga\357s-Krug\007\333M 87E\0" // CGCS2000 / Gauss-Kruger CM 87E
    "CG@\2270\011Ga\357s-Krug\007\333M 93E\0" // CGCS2000 / Gauss-Kruger CM 93E
    "CG@\2270\011Ga\357s-Krug\007\333M 99E\0" // CGCS2000 / Gauss-Kruger CM 99E
    "CG@\2270\011Ga\357s-Krug\007\27013\0" // CGCS2000 / Gauss-Kruger zone 13
    "CG@\2270\011Ga\357s-Krug\007\27014\0" // CGCS2000 / Gauss-Kruger zone 14
    "CG@\2270\011Ga\357s-Krug\007\27015\0" // CGCS2000 / Gauss-Kruger zone 15
    "CG@\2270\011Ga\357s-Krug\007\27016\0" // CGCS2000 / Gauss-Kruger zone 16
    "CG@\2270\011Ga\357s-Krug\007\27017\0" // CGCS2000 / Gauss-Kruger zone 17
    "CG@\2270\011Ga\357s-Krug\007\27018\0" // CGCS2000 / Gauss-Kruger zone 18
    "CG@\2270\011Ga\357s-Krug\007\27019\0" // CGCS2000 / Gauss-Kruger zone 19
    "CG@\2270\011Ga\357s-Krug\007\27020\0" // CGCS2000 / Gauss-Kruger zone 20
    "CG@\2270\011Ga\357s-Krug\007\27021\0" // CGCS2000 / Gauss-Kruger zone 21
    "CG@\2270\011Ga\357s-Krug\007\27022\0" // CGCS2000 / Gauss-Kruger zone 22
    "CG@\2270\011Ga\357s-Krug\007\27023\0" // CGCS2000 / Gauss-Kruger zone 23
    "CG@\2270_3_Deg>\207GK_\0" // CGCS2000_3_Degree_GK_
    "CG@\2270_3_Deg>\207GK_Z\003\207\0" // CGCS2000_3_Degree_GK_Zone_
    "CG@\2270_GK_\0" // CGCS2000_GK_
    "CG|93\0" // CGRS93
    "CG|93\011Cypr\357 Loc\223Tr\005sv\220\012M\007c<\006\0" // CGRS93 / Cyprus Local Transverse Mercator
    "CG|_\03193\0" // CGRS_1993
    "CG|\21293\374ypr\357_Loc\026_Tr\005sv\220\207M\007c<\006\0" // CGRS_1993_Cyprus_Local_Transverse_Mercator
    "CH\03103\0" // CH1903
    "CH\03103\205B\007n)\0" // CH1903 (Bern)
    "CH\03103\011LV03\0" // CH1903 / LV03
    "CH\03103\011LV03C-G\0" // CH1903 / LV03C-G
    "CH\03103+\0" // CH1903+
    "CH\03103+\011LV95\0" // CH1903+ / LV95
    "CH\03103+_LV95\0" // CH1903+_LV95
    "CH\03103_LV03\0" // CH1903_LV03
    "CH\03103_LV03C-G\0" // CH1903_LV03C-G
    "CHTRF95\0" // CHTRF95
    "CHT|95\0" // CHTRS95
    "CI\03171\0" // CI1971
    "CI\03171\011Cha\023\232 \352s Map Gr\257\0" // CI1971 / Chatham Islands Map Grid
    "CI\03179\0" // CI1979
    "CI\03179\011Cha\023\232 \352s Map Gr\257\0" // CI1979 / Chatham Islands Map Grid
    "CIGD11\0" // CIGD11
    "CM_\3122E\0" // CM_102E
    "CM_\3125E\0" // CM_105E
    "CM_\3128E\0" // CM_108E
    "CM_\1771E\0" // CM_111E
    "CM_\1774E\0" // CM_114E
    "CM_\1777E\0" // CM_117E
    "CM_1\033E\0" // CM_120E
    "CM_123E\0" // CM_123E
    "CM_126E\0" // CM_126E
    "CM_129E\0" // CM_129E
    "CM_132E\0" // CM_132E
    "CM_135E\0" // CM_135E
    "CM_24E\0" // CM_24E
    "CM_\375E\0" // CM_30E
    "CM_36E\0" // CM_36E
    "CM_75E\0" // CM_75E
    "CM_78E\0" // CM_78E
    "CM_81E\0" // CM_81E
    "CM_84E\0" // CM_84E
    "CM_87E\0" // CM_87E
    "CM_90E\0" // CM_90E
    "CM_93E\0" // CM_93E
    "CM_96E\0" // CM_96E
    "CM_99E\0" // CM_99E
    "CO|96\0" // CORS96
    "CO|96_\323\003_St<ew\257\207L\232b\007t\0" // CORS96_Oregon_Statewide_Lambert
    "CO|96_\323\003_St<ew\257\207L\232b\007t\134t_I\032l\0" // CORS96_Oregon_Statewide_Lambert_Ft_Intl
    "CO|96_\272_Pu\007to_R$o_\035_V\342g\024_\352s\0" // CORS96_SPCS_Puerto_Rico_and_Virgin_Islands
    "CR-SIRGAS\0" // CR-SIRGAS
    "CR-SIRGAS\011CR\25005\0" // CR-SIRGAS / CRTM05
    "CR-SIRGAS\011U\250\27016N\0" // CR-SIRGAS / UTM zone 16N
    "CR-SIRGAS\011U\250\27017N\0" // CR-SIRGAS / UTM zone 17N
    "CR-SIRGAS_CR\25005\0" // CR-SIRGAS_CRTM05
    "CR-SIRGAS_U\376Z\003\20716N\0" // CR-SIRGAS_UTM_Zone_16N
    "CR-SIRGAS_U\376Z\003\20717N\0" // CR-SIRGAS_UTM_Zone_17N
    "CR05\0" // CR05
    "CR05\011CR\25005\0" // CR05 / CRTM05
    "CR14\0" // CR14
    "@\2275\27034\0" // CS2005 zone 34
    "@\2275\27035\0" // CS2005 zone 35
    "@G67\0" // CSG67
    "@G67\011U\250\27021N\0" // CSG67 / UTM zone 21N
    "@G67\011U\250\27022N\0" // CSG67 / UTM zone 22N
    "@G\21267\0" // CSG_1967
    "@G\21267_U\37622N\0" // CSG_1967_UTM_22N
    "@G\21267_U\376Z\003\20721N\0" // CSG_1967_UTM_Zone_21N
    "C\274a\021r\223Co\006d\024<\012Sy\021\206 \2275\0" // Cadastral Coordinate System 2005
    "C\274a\021r\012\03197\0" // Cadastre 1997
    "C\274a\021r\012\03197\011U\250\27038S\0" // Cadastre 1997 / UTM zone 38S
    "C\274a\021>_\03197\0" // Cadastre_1997
    "C\274a\021>\21297_U\376Z\003\20738S\0" // Cadastre_1997_UTM_Zone_38S
    "C\026i_V\026l\207d\240\374auc\253\2279\0" // Cali_Valle_del_Cauca_2009
    "C\026if\006n\314@\313\270I\0" // California CS27 zone I
    "C\026if\006n\314@\313\270II\0" // California CS27 zone II
    "C\026if\006n\314@\313\270III\0" // California CS27 zone III
    "C\026if\006n\314@\313\270IV\0" // California CS27 zone IV
    "C\026if\006n\314@\313\270V\0" // California CS27 zone V
    "C\026if\006n\314@\313\270VI\0" // California CS27 zone VI
    "C\026if\006n\314@\313\270VII\0" // California CS27 zone VII
    "C\026if\006ni\253Te\026\207Alb\220\0" // California_Teale_Albers
    "C\026um\036\134\003d_du_Lac_Outag\232i\207W\024nebago\366\0" // Calumet_Fond_du_Lac_Outagamie_Winnebago_Feet
    "C\026um\036\134\003d_du_Lac_Outag\232i\207W\024nebago_M\311\0" // Calumet_Fond_du_Lac_Outagamie_Winnebago_Meters
    "C\026um\036\134\003d_du_Lac_Outag\232i\207\035_W\024nebago\366\0" // Calumet_Fond_du_Lac_Outagamie_and_Winnebago_Feet
    "C\026um\036\134\003d_du_Lac_Outag\232i\207\035_W\024nebago_M\311\0" // Calumet_Fond_du_Lac_Outagamie_and_Winnebago_Meters
    "C\232acupa\0" // Camacupa
    "C\232acup\030\03148\0" // Camacupa 1948
    "C\232acup\030\03148\011\250 \177.\375{E\0" // Camacupa 1948 / TM 11.30 SE
    "C\232acup\030\03148\011\250 12{E\0" // Camacupa 1948 / TM 12 SE
    "C\232acup\030\03148\011U\250\27032S\0" // Camacupa 1948 / UTM zone 32S
    "C\232acup\030\03148\011U\250\27033S\0" // Camacupa 1948 / UTM zone 33S
    "C\232acup\030\03315\0" // Camacupa 2015
    "C\232acup\253\0" // Camacupa_
    "C\232\007o\003\0" // Cameroon
    "C\232\007o\003\002G#\025\030#ea\0" // Cameroon - Garoua area
    "C\232\007o\003\002N'Dj\232\210\030#ea\0" // Cameroon - N'Djamena area
    "C\232\007o\003\002coa\021\223#ea\0" // Cameroon - coastal area
    "C\232p A>\030A\021ro\0" // Camp Area Astro
    "C\232p_A>a\0" // Camp_Area
    "C\232pb\240l \352 Tr\005sv\220\012M\007c<\006 \2270\0" // Campbell Island Transverse Mercator 2000
    "C\232pb\240l_\352_\376\2270\0" // Campbell_Island_TM_2000
    "C\232p\013\306cha\357pe\0" // Campo Inchauspe
    "C\232p\013\306cha\357pe\011\326ge\032\024\0301\0" // Campo Inchauspe / Argentina 1
    "C\232p\013\306cha\357pe\011\326ge\032\024\0302\0" // Campo Inchauspe / Argentina 2
    "C\232p\013\306cha\357pe\011\326ge\032\024\0303\0" // Campo Inchauspe / Argentina 3
    "C\232p\013\306cha\357pe\011\326ge\032\024\0304\0" // Campo Inchauspe / Argentina 4
    "C\232p\013\306cha\357pe\011\326ge\032\024\0305\0" // Campo Inchauspe / Argentina 5
    "C\232p\013\306cha\357pe\011\326ge\032\024\0306\0" // Campo Inchauspe / Argentina 6
    "C\232p\013\306cha\357pe\011\326ge\032\024\0307\0" // Campo Inchauspe / Argentina 7
    "C\232p\013\306cha\357pe\011U\250\27019S\0" // Campo Inchauspe / UTM zone 19S
    "C\232p\013\306cha\357pe\011U\250\270\033S\0" // Campo Inchauspe / UTM zone 20S
    "C\232po_\306cha\357pe\0" // Campo_Inchauspe
    "C\232po_\306cha\357p\207U\37619S\0" // Campo_Inchauspe_UTM_19S
    "C\232po_\306cha\357p\207U\376\033S\0" // Campo_Inchauspe_UTM_20S
    "C\005\274\034\3122\21796\037\0" // Canada - 102°W to 96°W
    "C\005\274\034\3128\217\3122\037\0" // Canada - 108°W to 102°W
    "C\005\274\034\3128\217\3122\037\307s\246\25260\004N\0" // Canada - 108°W to 102°W, south of 60°N
    "C\005\274\034\1774\217\3128\037\0" // Canada - 114°W to 108°W
    "C\005\274\034\1774\217\3128\037\307s\246\25260\004N\0" // Canada - 114°W to 108°W, south of 60°N
    "C\005\274\0341\033\217\1774\037\0" // Canada - 120°W to 114°W
    "C\005\274\0341\033\217\1774\037\307s\246\25260\004N\0" // Canada - 120°W to 114°W, south of 60°N
    "C\005\274\034126\2171\033\037\0" // Canada - 126°W to 120°W
    "C\005\274\034132\217126\037\0" // Canada - 132°W to 126°W
    "C\005\274\034138\217132\037\0" // Canada - 138°W to 132°W
    "C\005\274\034144\217138\037\0" // Canada - 144°W to 138°W
    "C\005\274\03448\21742\037\0" // Canada - 48°W to 42°W
    "C\005\274\03454\21748\037\0" // Canada - 54°W to 48°W
    "C\005\274\03460\21754\037\0" // Canada - 60°W to 54°W
    "C\005\274\03460\21754\037 \301\01727\0" // Canada - 60°W to 54°W and NAD27
    "C\005\274\03466\21760\037\0" // Canada - 66°W to 60°W
    "C\005\274\03466\21760\037\307s\246\25260\004N\0" // Canada - 66°W to 60°W, south of 60°N
    "C\005\274\03472\21766\037\0" // Canada - 72°W to 66°W
    "C\005\274\03472\21766\037\307s\246\25262\004N\0" // Canada - 72°W to 66°W, south of 62°N
    "C\005\274\03478\21772\037\0" // Canada - 78°W to 72°W
    "C\005\274\03484\21778\037\0" // Canada - 84°W to 78°W
    "C\005\274\03490\21784\037\0" // Canada - 90°W to 84°W
    "C\005\274\03496\21790\037\0" // Canada - 96°W to 90°W
    "C\005\274\034Alb\007ta\0" // Canada - Alberta
    "C\005\274\034Alb\007t\034\1775\224\217\1772\224\037\0" // Canada - Alberta - 115.5°W to 112.5°W
    "C\005\274\034Alb\007t\034\1778\224\217\1775\224\037\0" // Canada - Alberta - 118.5°W to 115.5°W
    "C\005\274\034Alb\007t\034e\315\252\1772\224\037\0" // Canada - Alberta - east of 112.5°W
    "C\005\274\034Alb\007t\034w\275\252\1778\224\037\0" // Canada - Alberta - west of 118.5°W
    "C\005\274\034Br\243=h\333\247umbia\0" // Canada - British Columbia
    "C\005\274\034@|98\0" // Canada - CSRS98
    "C\005\274\034Labr\274\006\00263\21760\037\0" // Canada - Labrador - 63°W to 60°W
    "C\005\274\034Labr\274\006\00266\21763\037\0" // Canada - Labrador - 66°W to 63°W
    "C\005\274\034Labr\274\006\002w\275\25266\037\0" // Canada - Labrador - west of 66°W
    "C\005\274\034M#\243im\012Prov\024c\242\0" // Canada - Maritime Provinces
    "C\005\274\034M#\243im\012Prov\024c\242\002e\315\25266\037\0" // Canada - Maritime Provinces - east of 66°W
    "C\005\274\034M#\243im\012Prov\024c\242\002w\275\25266\037\0" // Canada - Maritime Provinces - west of 66°W
    "C\005\274\034NWT\0" // Canada - NWT
    "C\005\274\034\361 Brunsw$k\0" // Canada - New Brunswick
    "C\005\274\034\361f\025nd\211\002e\315\25254\224\037\0" // Canada - Newfoundland - east of 54.5°W
    "C\005\274\034\361f\025nd\211 \301Labr\274\006\00257\224\21754\224\037\0" // Canada - Newfoundland and Labrador - 57.5°W to 54.5°W
    "C\005\274\034\361f\025nd\211 \301Labr\274\006\00260\21757\224\037\0" // Canada - Newfoundland and Labrador - 60°W to 57.5°W
    "C\005\274\034Nov\030Sc\350\215e\315\25263\037\0" // Canada - Nova Scotia - east of 63°W
    "C\005\274\034Nov\030Sc\350\215w\275\25263\037\0" // Canada - Nova Scotia - west of 63°W
    "C\005\274\034O\032#io\0" // Canada - Ontario
    "C\005\274\034O\032#io\00278\21775\037\0" // Canada - Ontario - 78°W to 75°W
    "C\005\274\034O\032#io\00284\21778\037\0" // Canada - Ontario - 84°W to 78°W
    "C\005\274\034O\032#io\00288\224\21785\224\037\0" // Canada - Ontario - 88.5°W to 85.5°W
    "C\005\274\034O\032#io\00290\21784\037\0" // Canada - Ontario - 90°W to 84°W
    "C\005\274\034O\032#io\00291\224\21788\224\037\0" // Canada - Ontario - 91.5°W to 88.5°W
    "C\005\274\034O\032#io\00294\224\21791\224\037\0" // Canada - Ontario - 94.5°W to 91.5°W
    "C\005\274\034O\032#io\002M\250\27010\0" // Canada - Ontario - MTM zone 10
    "C\005\274\034O\032#io\002M\250\27011\0" // Canada - Ontario - MTM zone 11
    "C\005\274\034O\032#io\002M\250\27012\0" // Canada - Ontario - MTM zone 12
    "C\005\274\034O\032#io\002M\250\27013\0" // Canada - Ontario - MTM zone 13
    "C\005\274\034O\032#io\002e\315\25275\037\0" // Canada - Ontario - east of 75°W
    "C\005\274\034O\032#io\002e\315\25278\037\0" // Canada - Ontario - east of 78°W
    "C\005\274\034O\032#io\002w\275\25290\037\0" // Canada - Ontario - west of 90°W
    "C\005\274\034O\032#io\002w\275\25294\224\037\0" // Canada - Ontario - west of 94.5°W
    "C\005\274\034Pr\024c\012Edw#d \352\0" // Canada - Prince Edward Island
    "C\005\274\034Quebec\0" // Canada - Quebec
    "C\005\274\034Quebec\00260\21757\037\0" // Canada - Quebec - 60°W to 57°W
    "C\005\274\034Quebec\00263\21760\037\0" // Canada - Quebec - 63°W to 60°W
    "C\005\274\034Quebec\00266\21760\037\0" // Canada - Quebec - 66°W to 60°W
    "C\005\274\034Quebec\00266\21763\037\0" // Canada - Quebec - 66°W to 63°W
    "C\005\274\034Quebec\00269\21766\037\0" // Canada - Quebec - 69°W to 66°W
    "C\005\274\034Quebec\00272\21766\037\0" // Canada - Quebec - 72°W to 66°W
    "C\005\274\034Quebec\00272\21769\037\0" // Canada - Quebec - 72°W to 69°W
    "C\005\274\034Quebec\00275\21772\037\0" // Canada - Quebec - 75°W to 72°W
    "C\005\274\034Quebec\00278\21772\037\0" // Canada - Quebec - 78°W to 72°W
    "C\005\274\034Quebec\00278\21775\037\0" // Canada - Quebec - 78°W to 75°W
    "C\005\274\034Quebec\002e\315\25257\037\0" // Canada - Quebec - east of 57°W
    "C\005\274\034Quebec\002e\315\25260\037\0" // Canada - Quebec - east of 60°W
    "C\005\274\034Quebec\002w\275\25278\037\0" // Canada - Quebec - west of 78°W
    "C\005\274\034Quebec \301Labr\274\006\00263\21760\037\0" // Canada - Quebec and Labrador - 63°W to 60°W
    "C\005\274\034Quebec \301Labr\274\006\00266\21763\037\0" // Canada - Quebec and Labrador - 66°W to 63°W
    "C\005\274\034Quebec \301Labr\274\006\00269\21766\037\0" // Canada - Quebec and Labrador - 69°W to 66°W
    "C\005\274\034Quebec \301O\032#io\00275\21772\037\0" // Canada - Quebec and Ontario - 75°W to 72°W
    "C\005\274\034Quebec \301O\032#io\00278\21775\037\0" // Canada - Quebec and Ontario - 78°W to 75°W
    "C\005\274\034Quebec \301O\032#io\002M\250\27010\0" // Canada - Quebec and Ontario - MTM zone 10
    "C\005\274\034Quebec\307\361f\025nd\211 \301Labr\274\006\002M\250\2703\0" // Canada - Quebec, Newfoundland and Labrador - MTM zone 3
    "C\005\274\034Yuk\003\0" // Canada - Yukon
    "C\005\274\034e\315\25242\037\0" // Canada - east of 42°W
    "C\005\274\253Atl\201_L\232b\007t\0" // Canada_Atlas_Lambert
    "C\005t\003\21266\0" // Canton_1966
    "C\005y\003\374\243y-B\225ns_\017\212\014_\231_\250\134t_I\032l\0" // Canyon_City-Burns_NAD_1983_2011_TM_Ft_Intl
    "C\005y\003\374\243y-B\225ns_\017\212\014_\231_\376M\311\0" // Canyon_City-Burns_NAD_1983_2011_TM_Meters
    "Cape\0" // Cape
    "Cape\011Lo15\0" // Cape / Lo15
    "Cape\011Lo17\0" // Cape / Lo17
    "Cape\011Lo19\0" // Cape / Lo19
    "Cape\011Lo21\0" // Cape / Lo21
    "Cape\011Lo23\0" // Cape / Lo23
    "Cape\011Lo25\0" // Cape / Lo25
    "Cape\011Lo27\0" // Cape / Lo27
    "Cape\011Lo29\0" // Cape / Lo29
    "Cape\011Lo31\0" // Cape / Lo31
    "Cape\011Lo33\0" // Cape / Lo33
    "Cape\011U\250\27034S\0" // Cape / UTM zone 34S
    "Cape\011U\250\27035S\0" // Cape / UTM zone 35S
    "Cape\011U\250\27036S\0" // Cape / UTM zone 36S
    "Cap\012C\005av\007\026\0" // Cape Canaveral
    "Cap\012V\007de\0" // Cape Verde
    "Cap\207C\005av\007\026\0" // Cape_Canaveral
    "Cap\207U\376Z\003\20734S\0" // Cape_UTM_Zone_34S
    "Cap\207U\376Z\003\20735S\0" // Cape_UTM_Zone_35S
    "Cap\207U\376Z\003\20736S\0" // Cape_UTM_Zone_36S
    "Cap\207V\007d\207Gr\257\0" // Cape_Verde_Grid
    "C#ibbe\005\002F>nch A\032\372l\242\0" // Caribbean - French Antilles
    "C#ibbe\005\002F>nch A\032\372l\242 w\275\25260\037\0" // Caribbean - French Antilles west of 60°W
    "C#ibbe\005\002Pu\007t\013R$\013\301\204 V\342g\024 \352s\0" // Caribbean - Puerto Rico and US Virgin Islands
    "C#ibbe\005\002Pu\007t\013R$\013\301\204 V\342g\024 \352s\002\237\0" // Caribbean - Puerto Rico and US Virgin Islands - onshore
    "C#ibbe\005\002Pu\007t\013R$\013\301V\342g\024 \352s\002\237\0" // Caribbean - Puerto Rico and Virgin Islands - onshore
    "C#n#v\222Gr\257 \03320\0" // Carnarvon Grid 2020
    "C#r\247l_(ft\204)\0" // Carroll_(ftUS)
    "C#r\247l_(m)\0" // Carroll_(m)
    "C#tag\210\253B\247iv#_\2275\0" // Cartagena_Bolivar_2005
    "C#\023age\0" // Carthage
    "C#\023ag\012(P#=)\0" // Carthage (Paris)
    "C#\023ag\012(P#=%Tun=\314M\024\024g Gr\257\0" // Carthage (Paris) / Tunisia Mining Grid
    "C#\023age\011\203d Tun=ie\0" // Carthage / Nord Tunisie
    "C#\023age\011Sud Tun=ie\0" // Carthage / Sud Tunisie
    "C#\023age\011\250 \177 NE\0" // Carthage / TM 11 NE
    "C#\023age\011U\250\27032N\0" // Carthage / UTM zone 32N
    "C#\023ag\207P#=\0" // Carthage_Paris
    "C#\023ag\207\376\177_NE\0" // Carthage_TM_11_NE
    "C#\023ag\207U\376Z\003\20732N\0" // Carthage_UTM_Zone_32N
    "C\201s_(ft\204)\0" // Cass_(ftUS)
    "C\201s_(m)\0" // Cass_(m)
    "Caym\005 \352s\0" // Cayman Islands
    "Caym\005 \352s\002Gr\301Caym\005\0" // Cayman Islands - Grand Cayman
    "Caym\005 \352s\002L\243tl\012Caym\005 \301Caym\005 B\370c\0" // Cayman Islands - Little Cayman and Cayman Brac
    "Caym\005 \352s Geod\036$ D<um \03311\0" // Cayman Islands Geodetic Datum 2011
    "Caym\005 \352s LCC\205ft)\0" // Cayman Islands LCC (ft)
    "Caym\005 \352s N<\321\223Gr\257 \03311\0" // Cayman Islands National Grid 2011
    "Caym\005 \352s \250\205ft)\0" // Cayman Islands TM (ft)
    "Caym\005_\352s_Geod\036$_D<um_\03311\0" // Cayman_Islands_Geodetic_Datum_2011
    "Caym\005_\352s_N<\321\026_Gr\257_\03311\0" // Cayman_Islands_National_Grid_2011
    "Ce\032im\036\007\0" // Centimeter
    "C\365\223Am\007\346Gu<\206\026a\022Co\021\030R$a\0" // Central America - Guatemala to Costa Rica
    "C\365\026_B\240t_\03310\0" // Central_Belt_2010
    "C\365\012Sp<i\223Guy\005a=\32067\0" // Centre Spatial Guyanais 1967
    "Ce\032>_Fr\005ce\0" // Centre_France
    "Cha\024\0" // Chain
    "Cha\024_B\210o\243_1895_A\0" // Chain_Benoit_1895_A
    "Cha\024_B\210o\243_1895_B\0" // Chain_Benoit_1895_B
    "Cha\024_Cl#ke\0" // Chain_Clarke
    "Cha\024_Se#s\0" // Chain_Sears
    "Cha\024_Se#s\21222_Trunc<\273\0" // Chain_Sears_1922_Truncated
    "Cha\024_\204\0" // Chain_US
    "Ch\005n\240 \352s\002Gu\007nsey\307A\316\007ney,{#k\0" // Channel Islands - Guernsey, Alderney, Sark
    "Ch\005n\240 \352s\002J\220ey\307L\242 Ec>hos \301L\242 M\024qui\220\0" // Channel Islands - Jersey, Les Ecrehos and Les Minquiers
    "Cha\023\232 \352s\32071\0" // Chatham Islands 1971
    "Cha\023\232 \352s\32079\0" // Chatham Islands 1979
    "Cha\023\232 \352s D<um\32071\0" // Chatham Islands Datum 1971
    "Cha\023\232 \352s D<um\32079\0" // Chatham Islands Datum 1979
    "Cha\023\232 \352s Tr\005sv\220\012M\007c<\006 \2270\0" // Chatham Islands Transverse Mercator 2000
    "Cha\023\232_\352\21271\0" // Chatham_Island_1971
    "Cha\023\232_\352\21271_Map_Gr\257\0" // Chatham_Island_1971_Map_Grid
    "Cha\023\232_\352\374\342cu\243\0" // Chatham_Island_Circuit
    "Cha\023\232_\352s\21279\0" // Chatham_Islands_1979
    "Cha\023\232_\352s\21279_Map_Gr\257\0" // Chatham_Islands_1979_Map_Grid
    "Cha\023\232_\352s_\376\2270\0" // Chatham_Islands_TM_2000
    "Chh<t=g#h \334F \250\0" // Chhattisgarh NSF TM
    "Chhukh\253\250\0" // Chhukha_TM
    "Ch\372\22672\21766\037\0" // Chile - 72°W to 66°W
    "Ch\372\22678\21772\037\0" // Chile - 78°W to 72°W
    "Ch\372\226Ea\021\007 \352 \237\0" // Chile - Easter Island onshore
    "Ch\372\226w\275\252\3128\037\0" // Chile - west of 108°W
    "Ch\024a\0" // China
    "Ch\024\034\3120\224}\3123\224\015\0" // China - 100.5°E to 103.5°E
    "Ch\024\034\3122}\3128\015\0" // China - 102°E to 108°E
    "Ch\024\034\3122}\3128\360\237\0" // China - 102°E to 108°E onshore
    "Ch\024\034\3123\224}\3126\224\015\0" // China - 103.5°E to 106.5°E
    "Ch\024\034\3126\224}\3129\224\360\237\0" // China - 106.5°E to 109.5°E onshore
    "Ch\024\034\3128}\1774\015\0" // China - 108°E to 114°E
    "Ch\024\034\3128}\1774\360\237\0" // China - 108°E to 114°E onshore
    "Ch\024\034\3129\224}\1772\224\360\237\0" // China - 109.5°E to 112.5°E onshore
    "Ch\024\034\1772\224}\1775\224\360\237\0" // China - 112.5°E to 115.5°E onshore
    "Ch\024\034\1774\345\033\015\0" // China - 114°E to 120°E
    "Ch\024\034\1774\345\033\360\237\0" // China - 114°E to 120°E onshore
    "Ch\024\034\1775\224}\1778\224\360\237\0" // China - 115.5°E to 118.5°E onshore
    "Ch\024\034\1778\224\34521\224\360\237\0" // China - 118.5°E to 121.5°E onshore
    "Ch\024\0341\033\34526\015\0" // China - 120°E to 126°E
    "Ch\024\0341\033\34526\360\237\0" // China - 120°E to 126°E onshore
    "Ch\024\034121\224\34524\224\360\237\0" // China - 121.5°E to 124.5°E onshore
    "Ch\024\034124\224\345\313\224\360\237\0" // China - 124.5°E to 127.5°E onshore
    "Ch\024\034126\34532\015\0" // China - 126°E to 132°E
    "Ch\024\034126\34532\360\237\0" // China - 126°E to 132°E onshore
    "Ch\024\0341\313\224\345\375\224\015\0" // China - 127.5°E to 130.5°E
    "Ch\024\0341\375\224\34533\224\015\0" // China - 130.5°E to 133.5°E
    "Ch\024\03476\224}79\224\015\0" // China - 76.5°E to 79.5°E
    "Ch\024\03478}84\015\0" // China - 78°E to 84°E
    "Ch\024\03479\224}82\224\015\0" // China - 79.5°E to 82.5°E
    "Ch\024\03482\224}85\224\015\0" // China - 82.5°E to 85.5°E
    "Ch\024\03484}90\015\0" // China - 84°E to 90°E
    "Ch\024\03485\224}88\224\015\0" // China - 85.5°E to 88.5°E
    "Ch\024\03488\224}91\224\015\0" // China - 88.5°E to 91.5°E
    "Ch\024\03490}96\015\0" // China - 90°E to 96°E
    "Ch\024\03491\224}94\224\015\0" // China - 91.5°E to 94.5°E
    "Ch\024\03494\224}97\224\015\0" // China - 94.5°E to 97.5°E
    "Ch\024\03496}\3122\015\0" // China - 96°E to 102°E
    "Ch\024\03497\224}\3120\224\015\0" // China - 97.5°E to 100.5°E
    "Ch\024\034H\003g K\003g\0" // China - Hong Kong
    "Ch\024\034Macao\0" // China - Macao
    "Ch\024\034e\315\252132\015\0" // China - east of 132°E
    "Ch\024\034e\315\252133\224\015\0" // China - east of 133.5°E
    "Ch\024\034\216f^\202\002Pe#l Riv\007 b\201\024\0" // China - offshore - Pearl River basin
    "Ch\024\034\237\0" // China - onshore
    "Ch\024\034w\275\25276\224\015\0" // China - west of 76.5°E
    "Ch\024\034w\275\25278\015\0" // China - west of 78°E
    "Ch\024\030\2270\0" // China 2000
    "Ch\024\030Geod\036$\333o\006d\024<\012Sy\021\206 \2270\0" // China Geodetic Coordinate System 2000
    "Ch\024\253\2270\0" // China_2000
    "Ch\024\253Geod\036$\374o\006d\024<\207Sy\021\206_\2270\0" // China_Geodetic_Coordinate_System_2000
    "Chippew\253C\025\032y\366\0" // Chippewa_County_Feet
    "Chippew\253C\025\032y_M\311\0" // Chippewa_County_Meters
    "Chippewa\366\0" // Chippewa_Feet
    "Chippew\253M\311\0" // Chippewa_Meters
    "Chos M\026\026\0" // Chos Malal
    "Chos M\026\223\03114\0" // Chos Malal 1914
    "Chos M\026\223\03114\011\326ge\032\024\0302\0" // Chos Malal 1914 / Argentina 2
    "Chos_M\026\026\21214\0" // Chos_Malal_1914
    "Chos_M\026\026\21214_\326ge\032\024\2532\0" // Chos_Malal_1914_Argentina_2
    "Chri\021m\201 \352\002\237\0" // Christmas Island - onshore
    "Chri\021m\201 \352 Gr\257 \03192\0" // Christmas Island Grid 1992
    "Chri\021m\201 \352 Gr\257 \03194\0" // Christmas Island Grid 1994
    "Chri\021m\201 \352 Gr\257 \03320\0" // Christmas Island Grid 2020
    "Chua\0" // Chua
    "Chua\011U\250\27023S\0" // Chua / UTM zone 23S
    "Chu\253U\376Z\003\20723S\0" // Chua_UTM_Zone_23S
    "C\243\200\301C\025\032\200\216{\005 Fr\005c=c\013@13\205\204{\225ve\200f\221)\0" // City and County of San Francisco CS13 (US Survey feet)
    "C\243\200\301C\025\032\200\216{\005 Fr\005c=c\013@13\205m\311)\0" // City and County of San Francisco CS13 (meters)
    "Cl#k-Floyd-Sc\350t_(ft\204)\0" // Clark-Floyd-Scott_(ftUS)
    "Cl#k-Floyd-Sc\350t_(m)\0" // Clark-Floyd-Scott_(m)
    "Cl#k\374\025\032y\366\0" // Clark_County_Feet
    "Cl#k\374\025\032y_M\311\0" // Clark_County_Meters
    "Cl#k\366\0" // Clark_Feet
    "Cl#k_M\311\0" // Clark_Meters
    "Cl#k\0121858\0" // Clarke 1858
    "Cl#k\0121866\0" // Clarke 1866
    "Cl#k\0121866 M$hig\005\0" // Clarke 1866 Michigan
    "Cl#k\0121880\0" // Clarke 1880
    "Cl#k\0121880\205\326c)\0" // Clarke 1880 (Arc)
    "Cl#k\0121880\205B\210o\243)\0" // Clarke 1880 (Benoit)
    "Cl#k\0121880\205IGN)\0" // Clarke 1880 (IGN)
    "Cl#k\0121880\205RGS)\0" // Clarke 1880 (RGS)
    "Cl#k\0121880\205SGA\32022)\0" // Clarke 1880 (SGA 1922)
    "Cl#k\0121880\205\024t\007n<\321\223fo\350)\0" // Clarke 1880 (international foot)
    "Cl#ke's cha\024\0" // Clarke's chain
    "Cl#ke's fo\350\0" // Clarke's foot
    "Cl#ke's l\024k\0" // Clarke's link
    "Cl#ke's y#d\0" // Clarke's yard
    "Clay_(ft\204)\0" // Clay_(ftUS)
    "Clay_(m)\0" // Clay_(m)
    "Cl\024t\003_(ft\204)\0" // Clinton_(ftUS)
    "Cl\024t\003_(m)\0" // Clinton_(m)
    "Coa\021_R\005g\207\371_\017\212\014_\231_LCC\134t_I\032l\0" // Coast_Range_North_NAD_1983_2011_LCC_Ft_Intl
    "Coa\021_R\005g\207\371_\017\212\014_\231_LCC_M\311\0" // Coast_Range_North_NAD_1983_2011_LCC_Meters
    "Cocos\205Ke\240\024g) \352s\002e\315\25296\015\0" // Cocos (Keeling) Islands - east of 96°E
    "Cocos\205Ke\240\024g) \352s\002\237\0" // Cocos (Keeling) Islands - onshore
    "Cocos\205Ke\240\024g) \352s\002w\275\25296\015\0" // Cocos (Keeling) Islands - west of 96°E
    "Cocos \352 Gr\257 \03192\0" // Cocos Island Grid 1992
    "Cocos \352 Gr\257 \03194\0" // Cocos Island Grid 1994
    "Cocos \352 Gr\257 \03320\0" // Cocos Island Grid 2020
    "Cocos \352s\32065\0" // Cocos Islands 1965
    "C\247li\012Gr\257 \03320\0" // Collie Grid 2020
    "C\247l\024gwood\374\342cu\243\0" // Collingwood_Circuit
    "C\247\344bia\0" // Colombia
    "C\247\344b\21572\00435'W\02269\00435'W\0" // Colombia - 72°35'W to 69°35'W
    "C\247\344b\21575\00435'W\02272\00435'W\0" // Colombia - 75°35'W to 72°35'W
    "C\247\344b\21578\00435'W\02275\00435'W\0" // Colombia - 78°35'W to 75°35'W
    "C\247\344b\215\326auc\030c\243y\0" // Colombia - Arauca city
    "C\247\344b\215\326m\210\314c\243y\0" // Colombia - Armenia city
    "C\247\344b\215B#r\005qu\372l\030c\243y\0" // Colombia - Barranquilla city
    "C\247\344b\215Bog\350\030c\243y\0" // Colombia - Bogota city
    "C\247\344b\215Buc#\232\005g\030c\243y\0" // Colombia - Bucaramanga city
    "C\247\344b\215C\026i c\243y\0" // Colombia - Cali city
    "C\247\344b\215C#tag\210\030c\243y\0" // Colombia - Cartagena city
    "C\247\344b\215Cucut\030c\243y\0" // Colombia - Cucuta city
    "C\247\344b\215Fl\202nc\314c\243y\0" // Colombia - Florencia city
    "C\247\344b\215Ibagu\012c\243y\0" // Colombia - Ibague city
    "C\247\344b\215\306\342\257\030c\243y\0" // Colombia - Inirida city
    "C\247\344b\215L\036$\314c\243y\0" // Colombia - Leticia city
    "C\247\344b\215M\005iz\026\242 c\243y\0" // Colombia - Manizales city
    "C\247\344b\215M\273\240l\024 c\243y\0" // Colombia - Medellin city
    "C\247\344b\215M\243u c\243y\0" // Colombia - Mitu city
    "C\247\344b\215Moco\030c\243y\0" // Colombia - Mocoa city
    "C\247\344b\215M\003t\007\314c\243y\0" // Colombia - Monteria city
    "C\247\344b\215\310iv\030c\243y\0" // Colombia - Neiva city
    "C\247\344b\215Pa\021\013c\243y\0" // Colombia - Pasto city
    "C\247\344b\215P\007e\342\030c\243y\0" // Colombia - Pereira city
    "C\247\344b\215Popay\005 c\243y\0" // Colombia - Popayan city
    "C\247\344b\215Pu\007t\013C#>n\013c\243y\0" // Colombia - Puerto Carreno city
    "C\247\344b\215Quibd\013c\243y\0" // Colombia - Quibdo city
    "C\247\344b\215Riohach\030c\243y\0" // Colombia - Riohacha city
    "C\247\344b\215S\005 And>s c\243y\0" // Colombia - San Andres city
    "C\247\344b\215S\005 Jos\012d\240 Guavi#\012c\243y\0" // Colombia - San Jose del Guaviare city
    "C\247\344b\215S\005t\030M#t\030c\243y\0" // Colombia - Santa Marta city
    "C\247\344b\215Sucr\012c\243y\0" // Colombia - Sucre city
    "C\247\344b\215Tunj\030c\243y\0" // Colombia - Tunja city
    "C\247\344b\215V\026l\273up# c\243y\0" // Colombia - Valledupar city
    "C\247\344b\215V\372lav$\210ci\013c\243y\0" // Colombia - Villavicencio city
    "C\247\344b\215Yop\223c\243y\0" // Colombia - Yopal city
    "C\247\344b\215e\315\25269\00435'W\0" // Colombia - east of 69°35'W
    "C\247\344b\215ma\024\211\0" // Colombia - mainland
    "C\247\344b\215ma\024\211 \301\216f^\006\012C#ibbe\005\0" // Colombia - mainland and offshore Caribbean
    "C\247\344b\215\216f^\006\012C#ibbe\005 w\275\25272\037\0" // Colombia - offshore Caribbean west of 72°W
    "C\247\344b\215\216f^\006\012w\275\25278\037\0" // Colombia - offshore west of 78°W
    "C\247\344b\215w\275\25275\00435'W\0" // Colombia - west of 75°35'W
    "C\247\344b\215w\275\25278\00435'W\0" // Colombia - west of 78°35'W
    "C\247\344b\314MAGNA Bog\350\030!e\0" // Colombia MAGNA Bogota zone
    "C\247\344b\314MAGNA E\315C\365\223!e\0" // Colombia MAGNA East Central zone
    "C\247\344b\314MAGNA E\315!e\0" // Colombia MAGNA East zone
    "C\247\344b\314MAGNA F# W\275!e\0" // Colombia MAGNA Far West zone
    "C\247\344b\314MAGNA W\275!e\0" // Colombia MAGNA West zone
    "C\247\344b\314Tr\005sv\220\012M\007c<\006\0" // Colombia Transverse Mercator
    "C\247\344bi\253\0" // Colombia_
    "C\247\344bi\253Bog\350a\0" // Colombia_Bogota
    "C\247\344bi\253E\021e\0" // Colombia_Este
    "C\247\344bi\253E\021\207E\021e\0" // Colombia_Este_Este
    "C\247\344bi\253Oe\021e\0" // Colombia_Oeste
    "C\247\344bi\253Oe\021\207Oe\021e\0" // Colombia_Oeste_Oeste
    "C\247\006\274\013@\313\333\365\223!e\0" // Colorado CS27 Central zone
    "C\247\006\274\013@\313 \324!e\0" // Colorado CS27 North zone
    "C\247\006\274\013@\313{\246!e\0" // Colorado CS27 South zone
    "C\247\006\274o\374\365\026\2670502\0" // Colorado_Central_FIPS_0502
    "C\247\006\274o\374\365\026\2670502\366\0" // Colorado_Central_FIPS_0502_Feet
    "C\247\006\274o\374\365\026\2670502\134t_\204\0" // Colorado_Central_FIPS_0502_Ft_US
    "C\247\006\274o_\371\2670501\0" // Colorado_North_FIPS_0501
    "C\247\006\274o_\371\2670501\366\0" // Colorado_North_FIPS_0501_Feet
    "C\247\006\274o_\371\2670501\134t_\204\0" // Colorado_North_FIPS_0501_Ft_US
    "C\247\006\274o_S\362\2670503\0" // Colorado_South_FIPS_0503
    "C\247\006\274o_S\362\2670503\366\0" // Colorado_South_FIPS_0503_Feet
    "C\247\006\274o_S\362\2670503\134t_\204\0" // Colorado_South_FIPS_0503_Ft_US
    "C\247umbi\253C\025\032y\366\0" // Columbia_County_Feet
    "C\247umbi\253C\025\032y_M\311\0" // Columbia_County_Meters
    "C\247umbia\366\0" // Columbia_Feet
    "C\247umbi\253M\311\0" // Columbia_Meters
    "C\344b\005i\32050\0" // Combani 1950
    "C\344b\005i\32050\011U\250\27038S\0" // Combani 1950 / UTM zone 38S
    "C\344b\005i\21250\0" // Combani_1950
    "C\344b\005i\21250_U\37638S\0" // Combani_1950_UTM_38S
    "C\344\006os\002Njaz\257j\030(Gr\035\012C\344\202)\0" // Comoros - Njazidja (Grande Comore)
    "C\003akr\200\03105\0" // Conakry 1905
    "C\003akr\200\03105\011U\250\27028N\0" // Conakry 1905 / UTM zone 28N
    "C\003akr\200\03105\011U\250\27029N\0" // Conakry 1905 / UTM zone 29N
    "C\003akry\21205\0" // Conakry_1905
    "C\003akry\21205_U\376Z\003\20728N\0" // Conakry_1905_UTM_Zone_28N
    "C\003akry\21205_U\376Z\003\20729N\0" // Conakry_1905_UTM_Zone_29N
    "C\003g\013\03160 Po\024t\012Noi>\0" // Congo 1960 Pointe Noire
    "C\003g\013DR\205Zai>)\0" // Congo DR (Zaire)
    "C\003g\013DR\205Zai>)\002\177\3453\015\0" // Congo DR (Zaire) - 11°E to 13°E
    "C\003g\013DR\205Zai>)\002\177\3453\360\237\0" // Congo DR (Zaire) - 11°E to 13°E onshore
    "C\003g\013DR\205Zai>)\00213\3455\015\0" // Congo DR (Zaire) - 13°E to 15°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\362\0" // Congo DR (Zaire) - 6th parallel south
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24615\3457\015\0" // Congo DR (Zaire) - 6th parallel south 15°E to 17°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24617}\031\015\0" // Congo DR (Zaire) - 6th parallel south 17°E to 19°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\246\031}21\015\0" // Congo DR (Zaire) - 6th parallel south 19°E to 21°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24621\224}23\015\0" // Congo DR (Zaire) - 6th parallel south 21.5°E to 23°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24621}23\015\0" // Congo DR (Zaire) - 6th parallel south 21°E to 23°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24623}25\015\0" // Congo DR (Zaire) - 6th parallel south 23°E to 25°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24625}\313\015\0" // Congo DR (Zaire) - 6th parallel south 25°E to 27°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\246\313}29\015\0" // Congo DR (Zaire) - 6th parallel south 27°E to 29°E
    "C\003g\013DR\205Zai>)\0026`p#\026l\240 s\24629}31\015\0" // Congo DR (Zaire) - 6th parallel south 29°E to 31°E
    "C\003g\013DR\205Zai>)\002B\201 C\003go\0" // Congo DR (Zaire) - Bas Congo
    "C\003g\013DR\205Zai>)\002B\201\333\003g\013e\315\25215\015\0" // Congo DR (Zaire) - Bas Congo east of 15°E
    "C\003g\013DR\205Zai>)\002K\201ai\002SE\0" // Congo DR (Zaire) - Kasai - SE
    "C\003g\013DR\205Zai>)\002K<\005ga\0" // Congo DR (Zaire) - Katanga
    "C\003g\013DR\205Zai>)\002K<\005g\03024\224}\313\224\015\0" // Congo DR (Zaire) - Katanga 24.5°E to 27.5°E
    "C\003g\013DR\205Zai>)\002K<\005g\03026\224}29\224\015\0" // Congo DR (Zaire) - Katanga 26.5°E to 29.5°E
    "C\003g\013DR\205Zai>)\002K<\005g\030e\315\25228\224\015\0" // Congo DR (Zaire) - Katanga east of 28.5°E
    "C\003g\013DR\205Zai>)\002K<\005g\030w\275\25225\224\015\0" // Congo DR (Zaire) - Katanga west of 25.5°E
    "C\003g\013DR\205Zai>)\002s\362\0" // Congo DR (Zaire) - south
    "C\003g\013DR\205Zai>)\002s\246\30112\3458\015\0" // Congo DR (Zaire) - south and 12°E to 18°E
    "C\003g\013DR\205Zai>)\002s\246\30115\3457\015\0" // Congo DR (Zaire) - south and 15°E to 17°E
    "C\003g\013DR\205Zai>)\002s\246\30117\360\301\031\015\0" // Congo DR (Zaire) - south and 17°E and 19°E
    "C\003g\013DR\205Zai>)\002s\246\30118}24\015\0" // Congo DR (Zaire) - south and 18°E to 24°E
    "C\003g\013DR\205Zai>)\002s\246\301\031}21\015\0" // Congo DR (Zaire) - south and 19°E to 21°E
    "C\003g\013DR\205Zai>)\002s\246\30121}23\015\0" // Congo DR (Zaire) - south and 21°E to 23°E
    "C\003g\013DR\205Zai>)\002s\246\30123}25\015\0" // Congo DR (Zaire) - south and 23°E to 25°E
    "C\003g\013DR\205Zai>)\002s\246\30124}\375\015\0" // Congo DR (Zaire) - south and 24°E to 30°E
    "C\003g\013DR\205Zai>)\002s\246\30125}\313\015\0" // Congo DR (Zaire) - south and 25°E to 27°E
    "C\003g\013DR\205Zai>)\002s\246\301\313}29\015\0" // Congo DR (Zaire) - south and 27°E to 29°E
    "C\003g\013DR\205Zai>)\002s\246\30129}31\015\0" // Congo DR (Zaire) - south and 29°E to 31°E
    "C\003g\013Tr\005sv\220\012M\007c<\006\27012\0" // Congo Transverse Mercator zone 12
    "C\003g\013Tr\005sv\220\012M\007c<\006\27014\0" // Congo Transverse Mercator zone 14
    "C\003g\013Tr\005sv\220\012M\007c<\006\27016\0" // Congo Transverse Mercator zone 16
    "C\003g\013Tr\005sv\220\012M\007c<\006\27018\0" // Congo Transverse Mercator zone 18
    "C\003g\013Tr\005sv\220\012M\007c<\006\27020\0" // Congo Transverse Mercator zone 20
    "C\003g\013Tr\005sv\220\012M\007c<\006\27022\0" // Congo Transverse Mercator zone 22
    "C\003g\013Tr\005sv\220\012M\007c<\006\27024\0" // Congo Transverse Mercator zone 24
    "C\003g\013Tr\005sv\220\012M\007c<\006\27026\0" // Congo Transverse Mercator zone 26
    "C\003g\013Tr\005sv\220\012M\007c<\006\27028\0" // Congo Transverse Mercator zone 28
    "C\003g\013Tr\005sv\220\012M\007c<\006\27030\0" // Congo Transverse Mercator zone 30
    "C\003ne\317$ut @27\0" // Connecticut CS27
    "C\003ne\317$ut\2670600\0" // Connecticut_FIPS_0600
    "C\003ne\317$ut\2670600\366\0" // Connecticut_FIPS_0600_Feet
    "C\003ne\317$ut\2670600\134t_\204\0" // Connecticut_FIPS_0600_Ft_US
    "C\003tigu\025s_\234_Alb\220\0" // Contiguous_USA_Albers
    "Co\006d\024<\012Sy\021\206 \2275\27034\0" // Coordinate System 2005 zone 34
    "Co\006d\024<\012Sy\021\206 \2275\27035\0" // Coordinate System 2005 zone 35
    "C\006\262\013Aleg>\0" // Corrego Alegre
    "C\006\262\013Alegr\012\03161\011U\250\27021S\0" // Corrego Alegre 1961 / UTM zone 21S
    "C\006\262\013Alegr\012\03161\011U\250\27022S\0" // Corrego Alegre 1961 / UTM zone 22S
    "C\006\262\013Alegr\012\03161\011U\250\27023S\0" // Corrego Alegre 1961 / UTM zone 23S
    "C\006\262\013Alegr\012\03161\011U\250\27024S\0" // Corrego Alegre 1961 / UTM zone 24S
    "C\006\262\013Alegr\012\03170-72\0" // Corrego Alegre 1970-72
    "C\006\262\013Alegr\012\03170-72\011U\250\27021S\0" // Corrego Alegre 1970-72 / UTM zone 21S
    "C\006\262\013Alegr\012\03170-72\011U\250\27022S\0" // Corrego Alegre 1970-72 / UTM zone 22S
    "C\006\262\013Alegr\012\03170-72\011U\250\27023S\0" // Corrego Alegre 1970-72 / UTM zone 23S
    "C\006\262\013Alegr\012\03170-72\011U\250\27024S\0" // Corrego Alegre 1970-72 / UTM zone 24S
    "C\006\262\013Alegr\012\03170-72\011U\250\27025S\0" // Corrego Alegre 1970-72 / UTM zone 25S
    "C\006\262o_Aleg>\0" // Corrego_Alegre
    "C\006\262o_Aleg>_\0" // Corrego_Alegre_
    "C\006\262o_Aleg>\21261\0" // Corrego_Alegre_1961
    "Co\021\030R\346\216f^\006\012C#ibbe\005\0" // Costa Rica - offshore Caribbean
    "Co\021\030R\346\216f^\006\012Pacif$\0" // Costa Rica - offshore Pacific
    "Co\021\030R\346\237\0" // Costa Rica - onshore
    "Co\021\030R\346\213\006\012\301\216f^\006\012e\315\25286\004\375'W\0" // Costa Rica - onshore and offshore east of 86°30'W
    "Co\021\030R\346\213\006\012n\006`\2529\00432'N\0" // Costa Rica - onshore north of 9°32'N
    "Co\021\030R\346\213\006\012s\246\2529\00456'N\0" // Costa Rica - onshore south of 9°56'N
    "Co\021\030R$\030\2275\0" // Costa Rica 2005
    "Co\021\030R$\030\250 \2275\0" // Costa Rica TM 2005
    "Co\021\253R$\253\2275\0" // Costa_Rica_2005
    "Co\021\253R$\253\203te\0" // Costa_Rica_Norte
    "Co\021\253R$\253S\225\0" // Costa_Rica_Sur
    "C\350\012d'Ivoi>\0" // Cote d'Ivoire
    "C\350\012d'Ivo\342\012(Iv\006\200Coa\021)\0" // Cote d'Ivoire (Ivory Coast)
    "C\350\012d'Ivo\342\012(Iv\006\200Coa\021)\002e\315\2526\037\0" // Cote d'Ivoire (Ivory Coast) - east of 6°W
    "C\350\012d'Ivo\342\012(Iv\006\200Coa\021)\002\216f^\202\0" // Cote d'Ivoire (Ivory Coast) - offshore
    "C\350\012d'Ivo\342\012(Iv\006\200Coa\021)\002w\275\2526\037\0" // Cote d'Ivoire (Ivory Coast) - west of 6°W
    "C\350\207d_Ivoi>\0" // Cote_d_Ivoire
    "C\025\032\200ST74\0" // County ST74
    "C\025\032y_ST74\0" // County_ST74
    "C\370wf\006d-Law>nce-Or\005g\207(ft\204)\0" // Crawford-Lawrence-Orange_(ftUS)
    "C\370wf\006d-Law>nce-Or\005g\207(m)\0" // Crawford-Lawrence-Orange_(m)
    "C\370wf\006d\374\025\032y\366\0" // Crawford_County_Feet
    "C\370wf\006d\374\025\032y_M\311\0" // Crawford_County_Meters
    "C\370wf\006d\366\0" // Crawford_Feet
    "C\370wf\006d_M\311\0" // Crawford_Meters
    "Cro<ia\0" // Croatia
    "Cro<\215e\315\25218\015\0" // Croatia - east of 18°E
    "Cro<\215\237\0" // Croatia - onshore
    "Cro<\215w\275\25218\015\0" // Croatia - west of 18°E
    "Cro<\314L\232b\007t\333\003f\006m\223C\003$\0" // Croatia Lambert Conformal Conic
    "Cro<\314Tr\005sv\220\012M\007c<\006\0" // Croatia Transverse Mercator
    "Cro<\335 T\007>\021ri\223Ref\007\210c\012Sy\021\206\0" // Croatian Terrestrial Reference System
    "Cro<\335_T\007>\021ri\026_Ref\007\210c\207Sy\021\206\0" // Croatian_Terrestrial_Reference_System
    "Crow\134t_I\032l\0" // Crow_Ft_Intl
    "Crow_M\311\0" // Crow_Meters
    "Cub\034\213\006\012n\006`\25221\004\375'N\0" // Cuba - onshore north of 21°30'N
    "Cub\034\213\006\012s\246\25221\004\375'N\0" // Cuba - onshore south of 21°30'N
    "Cub\253\203te\0" // Cuba_Norte
    "Cub\253S\225\0" // Cuba_Sur
    "Cucut\253\203t\207d\207S\005t\035\007_\03311\0" // Cucuta_Norte_de_Santander_2011
    "Cypr\357\002\237\0" // Cyprus - onshore
    "Cypr\357 Geod\036$ Ref\007\210c\012Sy\021\206 \03193\0" // Cyprus Geodetic Reference System 1993
    "Cypr\357 Tr\005sv\220\012M\007c<\006\0" // Cyprus Transverse Mercator
    "Cypr\357_Geod\036$_Ref\007\210c\207Sy\021\206_\03193\0" // Cyprus_Geodetic_Reference_System_1993
    "Czechia\0" // Czechia
    "D48\0" // D48
    "D48/GK\0" // D48/GK
    "D73\0" // D73
    "D96\0" // D96
    "D96/\250\0" // D96/TM
    "D96/U\250\0" // D96/UTM
    "DB_REF\0" // DB_REF
    "DB_REF\0113-deg>\012Ga\357s-Krug\007\2702\205E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 2 (E-N)
    "DB_REF\0113-deg>\012Ga\357s-Krug\007\2703\205E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 3 (E-N)
    "DB_REF\0113-deg>\012Ga\357s-Krug\007\2704\205E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 4 (E-N)
    "DB_REF\0113-deg>\012Ga\357s-Krug\007\2705\205E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 5 (E-N)
    "DB_REF\2273\0" // DB_REF2003
    "DB_REF\03316\0" // DB_REF2016
    "DB_REF_3-Deg>\207GK_Z\003\207\0" // DB_REF_3-Degree_GK_Zone_
    "DGF00P01\002L<L\003\0" // DGF00P01 - LatLon
    "DGF01P01\002L<L\003\0" // DGF01P01 - LatLon
    "DGF01P02\002L<L\003\0" // DGF01P02 - LatLon
    "DGF02P01\002L<L\003\0" // DGF02P01 - LatLon
    "DGF04P01\002L<L\003\0" // DGF04P01 - LatLon
    "DGF05P01\002L<L\003\0" // DGF05P01 - LatLon
    "DGF06P01\002L<L\003\0" // DGF06P01 - LatLon
    "DGF07P01\002L<L\003\0" // DGF07P01 - LatLon
    "DGF08P01\002L<L\003\0" // DGF08P01 - LatLon
    "DGN95\0" // DGN95
    "DGN95\011\355\003\242\314\250-3\27046.2\0" // DGN95 / Indonesia TM-3 zone 46.2
    "DGN95\011\355\003\242\314\250-3\27047.1\0" // DGN95 / Indonesia TM-3 zone 47.1
    "DGN95\011\355\003\242\314\250-3\27047.2\0" // DGN95 / Indonesia TM-3 zone 47.2
    "DGN95\011\355\003\242\314\250-3\27048.1\0" // DGN95 / Indonesia TM-3 zone 48.1
    "DGN95\011\355\003\242\314\250-3\27048.2\0" // DGN95 / Indonesia TM-3 zone 48.2
    "DGN95\011\355\003\242\314\250-3\27049.1\0" // DGN95 / Indonesia TM-3 zone 49.1
    "DGN95\011\355\003\242\314\250-3\27049.2\0" // DGN95 / Indonesia TM-3 zone 49.2
    "DGN95\011\355\003\242\314\250-3\27050.1\0" // DGN95 / Indonesia TM-3 zone 50.1
    "DGN95\011\355\003\242\314\250-3\27050.2\0" // DGN95 / Indonesia TM-3 zone 50.2
    "DGN95\011\355\003\242\314\250-3\27051.1\0" // DGN95 / Indonesia TM-3 zone 51.1
    "DGN95\011\355\003\242\314\250-3\27051.2\0" // DGN95 / Indonesia TM-3 zone 51.2
    "DGN95\011\355\003\242\314\250-3\27052.1\0" // DGN95 / Indonesia TM-3 zone 52.1
    "DGN95\011\355\003\242\314\250-3\27052.2\0" // DGN95 / Indonesia TM-3 zone 52.2
    "DGN95\011\355\003\242\314\250-3\27053.1\0" // DGN95 / Indonesia TM-3 zone 53.1
    "DGN95\011\355\003\242\314\250-3\27053.2\0" // DGN95 / Indonesia TM-3 zone 53.2
    "DGN95\011\355\003\242\314\250-3\27054.1\0" // DGN95 / Indonesia TM-3 zone 54.1
    "DGN95\011U\250\27046N\0" // DGN95 / UTM zone 46N
    "DGN95\011U\250\27047N\0" // DGN95 / UTM zone 47N
    "DGN95\011U\250\27047S\0" // DGN95 / UTM zone 47S
    "DGN95\011U\250\27048N\0" // DGN95 / UTM zone 48N
    "DGN95\011U\250\27048S\0" // DGN95 / UTM zone 48S
    "DGN95\011U\250\27049N\0" // DGN95 / UTM zone 49N
    "DGN95\011U\250\27049S\0" // DGN95 / UTM zone 49S
    "DGN95\011U\250\27050N\0" // DGN95 / UTM zone 50N
    "DGN95\011U\250\27050S\0" // DGN95 / UTM zone 50S
    "DGN95\011U\250\27051N\0" // DGN95 / UTM zone 51N
    "DGN95\011U\250\27051S\0" // DGN95 / UTM zone 51S
    "DGN95\011U\250\27052N\0" // DGN95 / UTM zone 52N
    "DGN95\011U\250\27052S\0" // DGN95 / UTM zone 52S
    "DGN95\011U\250\27053S\0" // DGN95 / UTM zone 53S
    "DGN95\011U\250\27054S\0" // DGN95 / UTM zone 54S
    "DGN\21295\0" // DGN_1995
    "DGN\21295_\355\003\242i\253\250-3_Z\003\207\0" // DGN_1995_Indonesia_TM-3_Zone_
    "DGN\21295_U\376Z\003\207\0" // DGN_1995_UTM_Zone_
    "DHDN\0" // DHDN
    "DHDN\0113-deg>\012Ga\357s\2701\0" // DHDN / 3-degree Gauss zone 1
    "DHDN\0113-deg>\012Ga\357s\2702\0" // DHDN / 3-degree Gauss zone 2
    "DHDN\0113-deg>\012Ga\357s\2703\0" // DHDN / 3-degree Gauss zone 3
    "DHDN\0113-deg>\012Ga\357s\2704\0" // DHDN / 3-degree Gauss zone 4
    "DHDN\0113-deg>\012Ga\357s\2705\0" // DHDN / 3-degree Gauss zone 5
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2701\0" // DHDN / 3-degree Gauss-Kruger zone 1
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2701\205E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 1 (E-N)
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2702\0" // DHDN / 3-degree Gauss-Kruger zone 2
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2702\205E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 2 (E-N)
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2703\0" // DHDN / 3-degree Gauss-Kruger zone 3
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2703\205E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 3 (E-N)
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2704\0" // DHDN / 3-degree Gauss-Kruger zone 4
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2704\205E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 4 (E-N)
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2705\0" // DHDN / 3-degree Gauss-Kruger zone 5
    "DHDN\0113-deg>\012Ga\357s-Krug\007\2705\205E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 5 (E-N)
    "DHDN\011S\247dn\007 B\007l\024\0" // DHDN / Soldner Berlin
    "DHDN_3_Deg>\207GK_Z\003\207\0" // DHDN_3_Degree_GK_Zone_
    "DHDN_3_Deg>\207Ga\357s_Z\003\207\0" // DHDN_3_Degree_Gauss_Zone_
    "DHDN_S\247dn\007_B\007l\024\0" // DHDN_Soldner_Berlin
    "DOS_71_4\0" // DOS_71_4
    "DRUKREF 03\0" // DRUKREF 03
    "DRUKREF 03\011Bhut\005 N<\321\223Gr\257\0" // DRUKREF 03 / Bhutan National Grid
    "DRUKREF 03\011Bum\023\005g \250\0" // DRUKREF 03 / Bumthang TM
    "DRUKREF 03\011Chhukh\030\250\0" // DRUKREF 03 / Chhukha TM
    "DRUKREF 03\011Dag\005\030\250\0" // DRUKREF 03 / Dagana TM
    "DRUKREF 03\011G\201\030\250\0" // DRUKREF 03 / Gasa TM
    "DRUKREF 03\011H\030\250\0" // DRUKREF 03 / Ha TM
    "DRUKREF 03\011Lhue\032s\012\250\0" // DRUKREF 03 / Lhuentse TM
    "DRUKREF 03\011M\003g# \250\0" // DRUKREF 03 / Mongar TM
    "DRUKREF 03\011P#\013\250\0" // DRUKREF 03 / Paro TM
    "DRUKREF 03\011P\206ag<^\240 \250\0" // DRUKREF 03 / Pemagatshel TM
    "DRUKREF 03\011Punakh\030\250\0" // DRUKREF 03 / Punakha TM
    "DRUKREF 03\011S\232drup J\003gkh# \250\0" // DRUKREF 03 / Samdrup Jongkhar TM
    "DRUKREF 03\011S\232ts\012\250\0" // DRUKREF 03 / Samtse TM
    "DRUKREF 03\011S#p\005g \250\0" // DRUKREF 03 / Sarpang TM
    "DRUKREF 03\011Thim\230u \250\0" // DRUKREF 03 / Thimphu TM
    "DRUKREF 03\011T\370^ig\005g \250\0" // DRUKREF 03 / Trashigang TM
    "DRUKREF 03\011Tr\003gs\030\250\0" // DRUKREF 03 / Trongsa TM
    "DRUKREF 03\011Ts\342\005g \250\0" // DRUKREF 03 / Tsirang TM
    "DRUKREF 03\011W\005gdu\012Phodr\005g \250\0" // DRUKREF 03 / Wangdue Phodrang TM
    "DRUKREF 03\011Y\005gts\012\250\0" // DRUKREF 03 / Yangtse TM
    "DRUKREF 03\011Z\276g\005g \250\0" // DRUKREF 03 / Zhemgang TM
    "DRUKREF_03\0" // DRUKREF_03
    "DRUKREF_03_\0" // DRUKREF_03_
    "D_\0" // D_
    "D_Cl#k\207\0" // D_Clarke_
    "D_ITRF_\0" // D_ITRF_
    "D_\017\212\014_\0" // D_NAD_1983_
    "D_\371_Am\007$\005_\0" // D_North_American_
    "D_R\242eau_Geod\242iqu\207\0" // D_Reseau_Geodesique_
    "Dab\247\030\03181\0" // Dabola 1981
    "Dab\247\030\03181\011U\250\27028N\0" // Dabola 1981 / UTM zone 28N
    "Dab\247\030\03181\011U\250\27029N\0" // Dabola 1981 / UTM zone 29N
    "Dab\247a\21281\0" // Dabola_1981
    "Dab\247a\21281_U\376Z\003\207\0" // Dabola_1981_UTM_Zone_
    "Dag\005\253\250\0" // Dagana_TM
    "D\005\207C\025\032y\366\0" // Dane_County_Feet
    "D\005\207C\025\032y_M\311\0" // Dane_County_Meters
    "D\005e\366\0" // Dane_Feet
    "D\005\207M\311\0" // Dane_Meters
    "D\005=h 1876\0" // Danish 1876
    "D\005=h_1876\0" // Danish_1876
    "D#w\024 Glaci\007 L\232b\007t\333\003f\006m\223\2270\0" // Darwin Glacier Lambert Conformal 2000
    "D<um 73\0" // Datum 73
    "D<um 73\011Modifi\273 P\006tugu\242\012Gr\257\0" // Datum 73 / Modified Portuguese Grid
    "D<um 73\011U\250\27029N\0" // Datum 73 / UTM zone 29N
    "D<um Geod\242i N\201\321\223\03195\0" // Datum Geodesi Nasional 1995
    "D<um_73\0" // Datum_73
    "D<um_73_Modifi\273_P\006tugu\242\207Gr\257\0" // Datum_73_Modified_Portuguese_Grid
    "D<um_73_U\376Z\003\20729N\0" // Datum_73_UTM_Zone_29N
    "D<um_Geod\242i_N\201\321\026\21295\0" // Datum_Geodesi_Nasional_1995
    "Davi\242s-G>\210\207(ft\204)\0" // Daviess-Greene_(ftUS)
    "Davi\242s-G>\210\207(m)\0" // Daviess-Greene_(m)
    "Dayv\372le-P\370\342i\207C\243y_\017\212\014_\231_\250\134t_I\032l\0" // Dayville-Prairie_City_NAD_1983_2011_TM_Ft_Intl
    "Dayv\372le-P\370\342i\207C\243y_\017\212\014_\231_\376M\311\0" // Dayville-Prairie_City_NAD_1983_2011_TM_Meters
    "DeK\026b_(ft\204)\0" // DeKalb_(ftUS)
    "DeK\026b_(m)\0" // DeKalb_(m)
    "De\026ul P=cului\32030\0" // Dealul Piscului 1930
    "De\026ul P=cului\320\375\011St\007e\01333\0" // Dealul Piscului 1930 / Stereo 33
    "De\026ul P=cului\32033\0" // Dealul Piscului 1933
    "De\026ul P=cului\32033\010St\007e\01333\0" // Dealul Piscului 1933/ Stereo 33
    "De\026ul P=cului\32070\0" // Dealul Piscului 1970
    "De\026ul P=cului\32070\010St\007e\01370\0" // Dealul Piscului 1970/ Stereo 70
    "De\026ul_P=cului\21233\0" // Dealul_Piscului_1933
    "De\026ul_P=cului\21270\0" // Dealul_Piscului_1970
    "De#b\006n-Ohio-Sw\243z\007\211_(ft\204)\0" // Dearborn-Ohio-Switzerland_(ftUS)
    "De#b\006n-Ohio-Sw\243z\007\211_(m)\0" // Dearborn-Ohio-Switzerland_(m)
    "Dec<\225-Ru^_(ft\204)\0" // Decatur-Rush_(ftUS)
    "Dec<\225-Ru^_(m)\0" // Decatur-Rush_(m)
    "Decept\321_\352\0" // Deception_Island
    "Def\024\243\321\21262\0" // Definition_1962
    "Def\024\243\321\21267\0" // Definition_1967
    "Def\024\243\321\21275\0" // Definition_1975
    "De\342 ez Z\006\0" // Deir ez Zor
    "De\342 ez Z\006\011Lev\005t{t\007eog\370\230$\0" // Deir ez Zor / Levant Stereographic
    "De\342 ez Z\006\011Lev\005t Z\003e\0" // Deir ez Zor / Levant Zone
    "De\342 ez Z\006\011Syr\314L\232b\007t\0" // Deir ez Zor / Syria Lambert
    "De\342_ez_Z\006\0" // Deir_ez_Zor
    "De\342_ez_Z\006_Lev\005t_St\007eog\370\230$\0" // Deir_ez_Zor_Levant_Stereographic
    "De\342_ez_Z\006_Lev\005t_Z\003e\0" // Deir_ez_Zor_Levant_Zone
    "De\342_ez_Z\006_Syri\253L\232b\007t\0" // Deir_ez_Zor_Syria_Lambert
    "D\240aw#\012@27\0" // Delaware CS27
    "D\240aw#e\2670700\0" // Delaware_FIPS_0700
    "D\240aw#e\2670700\366\0" // Delaware_FIPS_0700_Feet
    "D\240aw#e\2670700\134t_\204\0" // Delaware_FIPS_0700_Ft_US
    "D\240hi \334F LCC\0" // Delhi NSF LCC
    "D\210io-B\225ns_\017\212\014_\231_\250\134t_I\032l\0" // Denio-Burns_NAD_1983_2011_TM_Ft_Intl
    "D\210io-B\225ns_\017\212\014_\231_\376M\311\0" // Denio-Burns_NAD_1983_2011_TM_Meters
    "D\210m#k\002\213\006\012B\006nh\247m\0" // Denmark - onshore Bornholm
    "D\210m#k\002\213\006\012Jut\211 \301Fun\210\0" // Denmark - onshore Jutland and Funen
    "D\210m#k\002\213\006\012Jut\211 e\315\2529\360\301Fun\210\0" // Denmark - onshore Jutland east of 9°E and Funen
    "D\210m#k\002\213\006\012Jut\211 w\275\252\312\015\0" // Denmark - onshore Jutland west of 10°E
    "D\210m#k\002\213\006\012Ze\026\301\301L\247\211\0" // Denmark - onshore Zealand and Lolland
    "Deutsch\012B\373n Ref\007\210c\012Sy\021\206\0" // Deutsche Bahn Reference System
    "Deutsch\207B\373n_Ref\007\210c\207Sy\021\206\0" // Deutsche_Bahn_Reference_System
    "Deutsch\242 Hauptd>iecksn\036z\0" // Deutsches Hauptdreiecksnetz
    "Deutsch\242_Hauptd>iecksn\036z\0" // Deutsches_Hauptdreiecksnetz
    "Dieg\013G#c\314\03169\0" // Diego Garcia 1969
    "Djib\025ti\0" // Djibouti
    "Dodg\207\035_Jeff\220\003\366\0" // Dodge_and_Jefferson_Feet
    "Dodg\207\035_Jeff\220\003_M\311\0" // Dodge_and_Jefferson_Meters
    "D\344\024\346\237\0" // Dominica - onshore
    "D\344\024$\030\03145\0" // Dominica 1945
    "D\344\024$\030\03145\011Br\243=h W\275\355i\242 Gr\257\0" // Dominica 1945 / British West Indies Grid
    "D\344\024$a\21245\0" // Dominica_1945
    "D\344\024$a\21245_Br\243=h_We\021_\355i\242_Gr\257\0" // Dominica_1945_British_West_Indies_Grid
    "Do\006\374\025\032y\366\0" // Door_County_Feet
    "Do\006\374\025\032y_M\311\0" // Door_County_Meters
    "Do\006\366\0" // Door_Feet
    "Do\006_M\311\0" // Door_Meters
    "D\025\026a\0" // Douala
    "D\025\026a\011U\250\27032N\0" // Douala / UTM zone 32N
    "D\025\026\030\03148\0" // Douala 1948
    "D\025\026\030\03148\011AEF we\021\0" // Douala 1948 / AEF west
    "D\025\026\030\03148\011AOF we\021\0" // Douala 1948 / AOF west
    "D\025\026a\21248\0" // Douala_1948
    "D\025\026a\21248_AEF_We\021\0" // Douala_1948_AEF_West
    "D\025\026\253U\376Z\003\20732N\0" // Douala_UTM_Zone_32N
    "D\025gl\201\374\025\032y\366\0" // Douglas_County_Feet
    "D\025gl\201\374\025\032y_M\311\0" // Douglas_County_Meters
    "D\025gl\201\366\0" // Douglas_Feet
    "D\025gl\201_M\311\0" // Douglas_Meters
    "Dubai Loc\223Tr\005sv\220\012M\007c<\006\0" // Dubai Local Transverse Mercator
    "Dubai_Loc\026_\250\0" // Dubai_Local_TM
    "Dubo=-M#t\024_(ft\204)\0" // Dubois-Martin_(ftUS)
    "Dubo=-M#t\024_(m)\0" // Dubois-Martin_(m)
    "Dunn\374\025\032y\366\0" // Dunn_County_Feet
    "Dunn\374\025\032y_M\311\0" // Dunn_County_Meters
    "Dunn\366\0" // Dunn_Feet
    "Dunn_M\311\0" // Dunn_Meters
    "EASE-Gr\257_2.0_Glob\026\0" // EASE-Grid_2.0_Global
    "EASE-Gr\257_2.0_\371\0" // EASE-Grid_2.0_North
    "EASE-Gr\257_2.0_S\362\0" // EASE-Grid_2.0_South
    "EBBWV14 Gr\257\0" // EBBWV14 Grid
    "EBBWV14 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // EBBWV14 Intermediate Reference Frame
    "EBBWV14-IRF\0" // EBBWV14-IRF
    "EBBWV14-\250\0" // EBBWV14-TM
    "ECML14_NB Gr\257\0" // ECML14_NB Grid
    "ECML14_NB I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // ECML14_NB Intermediate Reference Frame
    "ECML14_NB-IRF\0" // ECML14_NB-IRF
    "ECML14_NB-\250\0" // ECML14_NB-TM
    "ED50\0" // ED50
    "ED50\0113-deg>\012Ga\357s-Krug\007\27010\0" // ED50 / 3-degree Gauss-Kruger zone 10
    "ED50\0113-deg>\012Ga\357s-Krug\007\27011\0" // ED50 / 3-degree Gauss-Kruger zone 11
    "ED50\0113-deg>\012Ga\357s-Krug\007\27012\0" // ED50 / 3-degree Gauss-Kruger zone 12
    "ED50\0113-deg>\012Ga\357s-Krug\007\27013\0" // ED50 / 3-degree Gauss-Kruger zone 13
    "ED50\0113-deg>\012Ga\357s-Krug\007\27014\0" // ED50 / 3-degree Gauss-Kruger zone 14
    "ED50\0113-deg>\012Ga\357s-Krug\007\27015\0" // ED50 / 3-degree Gauss-Kruger zone 15
    "ED50\0113-deg>\012Ga\357s-Krug\007\2709\0" // ED50 / 3-degree Gauss-Kruger zone 9
    "ED50\011Fr\005c\012E\225oL\232b\007t\0" // ED50 / France EuroLambert
    "ED50\011I\370q N<\321\223Gr\257\0" // ED50 / Iraq National Grid
    "ED50\011J\006d\005 \250\0" // ED50 / Jordan TM
    "ED50\011\264BA LCC\0" // ED50 / SPBA LCC
    "ED50\011\250 0 N\0" // ED50 / TM 0 N
    "ED50\011\250 5 NE\0" // ED50 / TM 5 NE
    "ED50\011\250 6 NE\0" // ED50 / TM 6 NE
    "ED50\011\25027\0" // ED50 / TM27
    "ED50\011\25030\0" // ED50 / TM30
    "ED50\011\25033\0" // ED50 / TM33
    "ED50\011\25036\0" // ED50 / TM36
    "ED50\011\25039\0" // ED50 / TM39
    "ED50\011\25042\0" // ED50 / TM42
    "ED50\011\25045\0" // ED50 / TM45
    "ED50\011U\250\27028N\0" // ED50 / UTM zone 28N
    "ED50\011U\250\27029N\0" // ED50 / UTM zone 29N
    "ED50\011U\250\270\375N\0" // ED50 / UTM zone 30N
    "ED50\011U\250\27031N\0" // ED50 / UTM zone 31N
    "ED50\011U\250\27032N\0" // ED50 / UTM zone 32N
    "ED50\011U\250\27033N\0" // ED50 / UTM zone 33N
    "ED50\011U\250\27034N\0" // ED50 / UTM zone 34N
    "ED50\011U\250\27035N\0" // ED50 / UTM zone 35N
    "ED50\011U\250\27036N\0" // ED50 / UTM zone 36N
    "ED50\011U\250\27037N\0" // ED50 / UTM zone 37N
    "ED50\011U\250\27038N\0" // ED50 / UTM zone 38N
    "ED50(ED77)\0" // ED50(ED77)
    "ED50(ED77%U\250\27038N\0" // ED50(ED77) / UTM zone 38N
    "ED50(ED77%U\250\27039N\0" // ED50(ED77) / UTM zone 39N
    "ED50(ED77%U\250\27040N\0" // ED50(ED77) / UTM zone 40N
    "ED50(ED77%U\250\27041N\0" // ED50(ED77) / UTM zone 41N
    "ED77_U\376Z\003\20738N\0" // ED77_UTM_Zone_38N
    "ED77_U\376Z\003\20739N\0" // ED77_UTM_Zone_39N
    "ED77_U\376Z\003\20740N\0" // ED77_UTM_Zone_40N
    "ED77_U\376Z\003\20741N\0" // ED77_UTM_Zone_41N
    "ED79\0" // ED79
    "ED87\0" // ED87
    "ED\21250_\0" // ED_1950_
    "ED\21250_3_Deg>\207GK_Z\003\207\0" // ED_1950_3_Degree_GK_Zone_
    "ED\21250_U\376Z\003\207\0" // ED_1950_UTM_Zone_
    "ELD79\0" // ELD79
    "ELD79\011Liby\030\07710\0" // ELD79 / Libya zone 10
    "ELD79\011Liby\030\07711\0" // ELD79 / Libya zone 11
    "ELD79\011Liby\030\07712\0" // ELD79 / Libya zone 12
    "ELD79\011Liby\030\07713\0" // ELD79 / Libya zone 13
    "ELD79\011Liby\030\0775\0" // ELD79 / Libya zone 5
    "ELD79\011Liby\030\0776\0" // ELD79 / Libya zone 6
    "ELD79\011Liby\030\0777\0" // ELD79 / Libya zone 7
    "ELD79\011Liby\030\0778\0" // ELD79 / Libya zone 8
    "ELD79\011Liby\030\0779\0" // ELD79 / Libya zone 9
    "ELD79\011\250 12 NE\0" // ELD79 / TM 12 NE
    "ELD79\011U\250\27032N\0" // ELD79 / UTM zone 32N
    "ELD79\011U\250\27033N\0" // ELD79 / UTM zone 33N
    "ELD79\011U\250\27034N\0" // ELD79 / UTM zone 34N
    "ELD79\011U\250\27035N\0" // ELD79 / UTM zone 35N
    "ELD\21279_Liby\253\0" // ELD_1979_Libya_
    "ELD\21279_\37612_NE\0" // ELD_1979_TM_12_NE
    "ELD\21279_U\376Z\003\207\0" // ELD_1979_UTM_Zone_
    "EOS21 Gr\257\0" // EOS21 Grid
    "EOS21 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // EOS21 Intermediate Reference Frame
    "EOS21-IRF\0" // EOS21-IRF
    "EOS21-\250\0" // EOS21-TM
    "E\236G \326\317$ LCC\2701-21\0" // EPSG Arctic LCC zone 1-21
    "E\236G \326\317$ LCC\2701-23\0" // EPSG Arctic LCC zone 1-23
    "E\236G \326\317$ LCC\2701-25\0" // EPSG Arctic LCC zone 1-25
    "E\236G \326\317$ LCC\2701-27\0" // EPSG Arctic LCC zone 1-27
    "E\236G \326\317$ LCC\2701-29\0" // EPSG Arctic LCC zone 1-29
    "E\236G \326\317$ LCC\2701-31\0" // EPSG Arctic LCC zone 1-31
    "E\236G \326\317$ LCC\2702-10\0" // EPSG Arctic LCC zone 2-10
    "E\236G \326\317$ LCC\2702-12\0" // EPSG Arctic LCC zone 2-12
    "E\236G \326\317$ LCC\2702-14\0" // EPSG Arctic LCC zone 2-14
    "E\236G \326\317$ LCC\2702-16\0" // EPSG Arctic LCC zone 2-16
    "E\236G \326\317$ LCC\2702-18\0" // EPSG Arctic LCC zone 2-18
    "E\236G \326\317$ LCC\2702-20\0" // EPSG Arctic LCC zone 2-20
    "E\236G \326\317$ LCC\2702-22\0" // EPSG Arctic LCC zone 2-22
    "E\236G \326\317$ LCC\2702-24\0" // EPSG Arctic LCC zone 2-24
    "E\236G \326\317$ LCC\2702-26\0" // EPSG Arctic LCC zone 2-26
    "E\236G \326\317$ LCC\2702-28\0" // EPSG Arctic LCC zone 2-28
    "E\236G \326\317$ LCC\2703-11\0" // EPSG Arctic LCC zone 3-11
    "E\236G \326\317$ LCC\2703-13\0" // EPSG Arctic LCC zone 3-13
    "E\236G \326\317$ LCC\2703-15\0" // EPSG Arctic LCC zone 3-15
    "E\236G \326\317$ LCC\2703-17\0" // EPSG Arctic LCC zone 3-17
    "E\236G \326\317$ LCC\2703-19\0" // EPSG Arctic LCC zone 3-19
    "E\236G \326\317$ LCC\2703-21\0" // EPSG Arctic LCC zone 3-21
    "E\236G \326\317$ LCC\2703-23\0" // EPSG Arctic LCC zone 3-23
    "E\236G \326\317$ LCC\2703-25\0" // EPSG Arctic LCC zone 3-25
    "E\236G \326\317$ LCC\2703-27\0" // EPSG Arctic LCC zone 3-27
    "E\236G \326\317$ LCC\2703-29\0" // EPSG Arctic LCC zone 3-29
    "E\236G \326\317$ LCC\2703-31\0" // EPSG Arctic LCC zone 3-31
    "E\236G \326\317$ LCC\2703-33\0" // EPSG Arctic LCC zone 3-33
    "E\236G \326\317$ LCC\2704-12\0" // EPSG Arctic LCC zone 4-12
    "E\236G \326\317$ LCC\2704-14\0" // EPSG Arctic LCC zone 4-14
    "E\236G \326\317$ LCC\2704-16\0" // EPSG Arctic LCC zone 4-16
    "E\236G \326\317$ LCC\2704-18\0" // EPSG Arctic LCC zone 4-18
    "E\236G \326\317$ LCC\2704-20\0" // EPSG Arctic LCC zone 4-20
    "E\236G \326\317$ LCC\2704-22\0" // EPSG Arctic LCC zone 4-22
    "E\236G \326\317$ LCC\2704-24\0" // EPSG Arctic LCC zone 4-24
    "E\236G \326\317$ LCC\2704-26\0" // EPSG Arctic LCC zone 4-26
    "E\236G \326\317$ LCC\2704-28\0" // EPSG Arctic LCC zone 4-28
    "E\236G \326\317$ LCC\2704-30\0" // EPSG Arctic LCC zone 4-30
    "E\236G \326\317$ LCC\2704-32\0" // EPSG Arctic LCC zone 4-32
    "E\236G \326\317$ LCC\2704-34\0" // EPSG Arctic LCC zone 4-34
    "E\236G \326\317$ LCC\2704-36\0" // EPSG Arctic LCC zone 4-36
    "E\236G \326\317$ LCC\2704-38\0" // EPSG Arctic LCC zone 4-38
    "E\236G \326\317$ LCC\2704-40\0" // EPSG Arctic LCC zone 4-40
    "E\236G \326\317$ LCC\2705-11\0" // EPSG Arctic LCC zone 5-11
    "E\236G \326\317$ LCC\2705-13\0" // EPSG Arctic LCC zone 5-13
    "E\236G \326\317$ LCC\2705-15\0" // EPSG Arctic LCC zone 5-15
    "E\236G \326\317$ LCC\2705-17\0" // EPSG Arctic LCC zone 5-17
    "E\236G \326\317$ LCC\2705-19\0" // EPSG Arctic LCC zone 5-19
    "E\236G \326\317$ LCC\2705-21\0" // EPSG Arctic LCC zone 5-21
    "E\236G \326\317$ LCC\2705-23\0" // EPSG Arctic LCC zone 5-23
    "E\236G \326\317$ LCC\2705-25\0" // EPSG Arctic LCC zone 5-25
    "E\236G \326\317$ LCC\2705-27\0" // EPSG Arctic LCC zone 5-27
    "E\236G \326\317$ LCC\2705-29\0" // EPSG Arctic LCC zone 5-29
    "E\236G \326\317$ LCC\2705-31\0" // EPSG Arctic LCC zone 5-31
    "E\236G \326\317$ LCC\2705-33\0" // EPSG Arctic LCC zone 5-33
    "E\236G \326\317$ LCC\2705-35\0" // EPSG Arctic LCC zone 5-35
    "E\236G \326\317$ LCC\2705-37\0" // EPSG Arctic LCC zone 5-37
    "E\236G \326\317$ LCC\2705-39\0" // EPSG Arctic LCC zone 5-39
    "E\236G \326\317$ LCC\2705-41\0" // EPSG Arctic LCC zone 5-41
    "E\236G \326\317$ LCC\2705-43\0" // EPSG Arctic LCC zone 5-43
    "E\236G \326\317$ LCC\2705-45\0" // EPSG Arctic LCC zone 5-45
    "E\236G \326\317$ LCC\2705-47\0" // EPSG Arctic LCC zone 5-47
    "E\236G \326\317$ LCC\2706-14\0" // EPSG Arctic LCC zone 6-14
    "E\236G \326\317$ LCC\2706-16\0" // EPSG Arctic LCC zone 6-16
    "E\236G \326\317$ LCC\2706-18\0" // EPSG Arctic LCC zone 6-18
    "E\236G \326\317$ LCC\2706-20\0" // EPSG Arctic LCC zone 6-20
    "E\236G \326\317$ LCC\2706-22\0" // EPSG Arctic LCC zone 6-22
    "E\236G \326\317$ LCC\2706-24\0" // EPSG Arctic LCC zone 6-24
    "E\236G \326\317$ LCC\2706-26\0" // EPSG Arctic LCC zone 6-26
    "E\236G \326\317$ LCC\2706-28\0" // EPSG Arctic LCC zone 6-28
    "E\236G \326\317$ LCC\2706-30\0" // EPSG Arctic LCC zone 6-30
    "E\236G \326\317$ LCC\2707-11\0" // EPSG Arctic LCC zone 7-11
    "E\236G \326\317$ LCC\2707-13\0" // EPSG Arctic LCC zone 7-13
    "E\236G \326\317$ LCC\2708-20\0" // EPSG Arctic LCC zone 8-20
    "E\236G \326\317$ LCC\2708-22\0" // EPSG Arctic LCC zone 8-22
    "E\236G \326\317$ Reg\321\223LCC\270A1\0" // EPSG Arctic Regional LCC zone A1
    "E\236G \326\317$ Reg\321\223LCC\270A2\0" // EPSG Arctic Regional LCC zone A2
    "E\236G \326\317$ Reg\321\223LCC\270A3\0" // EPSG Arctic Regional LCC zone A3
    "E\236G \326\317$ Reg\321\223LCC\270A4\0" // EPSG Arctic Regional LCC zone A4
    "E\236G \326\317$ Reg\321\223LCC\270A5\0" // EPSG Arctic Regional LCC zone A5
    "E\236G \326\317$ Reg\321\223LCC\270B1\0" // EPSG Arctic Regional LCC zone B1
    "E\236G \326\317$ Reg\321\223LCC\270B2\0" // EPSG Arctic Regional LCC zone B2
    "E\236G \326\317$ Reg\321\223LCC\270B3\0" // EPSG Arctic Regional LCC zone B3
    "E\236G \326\317$ Reg\321\223LCC\270B4\0" // EPSG Arctic Regional LCC zone B4
    "E\236G \326\317$ Reg\321\223LCC\270B5\0" // EPSG Arctic Regional LCC zone B5
    "E\236G \326\317$ Reg\321\223LCC\270C1\0" // EPSG Arctic Regional LCC zone C1
    "E\236G \326\317$ Reg\321\223LCC\270C2\0" // EPSG Arctic Regional LCC zone C2
    "E\236G \326\317$ Reg\321\223LCC\270C3\0" // EPSG Arctic Regional LCC zone C3
    "E\236G \326\317$ Reg\321\223LCC\270C4\0" // EPSG Arctic Regional LCC zone C4
    "E\236G \326\317$ Reg\321\223LCC\270C5\0" // EPSG Arctic Regional LCC zone C5
    "E\236G_Al\201k\253P\247#_St\007eog\370\230$\0" // EPSG_Alaska_Polar_Stereographic
    "E\236G_\326\317$_!\2075-29\0" // EPSG_Arctic_zone_5-29
    "E\236G_\326\317$_!\2075-31\0" // EPSG_Arctic_zone_5-31
    "E\236G_\326\317$_!\2076-14\0" // EPSG_Arctic_zone_6-14
    "E\236G_\326\317$_!\2076-16\0" // EPSG_Arctic_zone_6-16
    "E\236G\374\005\274\253P\247#_St\007eog\370\230$\0" // EPSG_Canada_Polar_Stereographic
    "E\236G_G>\210\211_P\247#_St\007eog\370\230$\0" // EPSG_Greenland_Polar_Stereographic
    "E\236G_\203way_P\247#_St\007eog\370\230$\0" // EPSG_Norway_Polar_Stereographic
    "E\236G_R\357si\253P\247#_St\007eog\370\230$\0" // EPSG_Russia_Polar_Stereographic
    "EST92\0" // EST92
    "EST97\0" // EST97
    "ETRF\2270\002L<L\003\0" // ETRF2000 - LatLon
    "ETRF\2270 Po\211\0" // ETRF2000 Poland
    "ETRF\2270 epoc\030\2278.0\0" // ETRF2000 epoca 2008.0
    "ETRF\2270 epoc\030\2278.0 f\357\013\0" // ETRF2000 epoca 2008.0 fuso 
    "ETRF\2270-PL\0" // ETRF2000-PL
    "ETRF\2270-PL\011@\2270/15\0" // ETRF2000-PL / CS2000/15
    "ETRF\2270-PL\011@\2270/18\0" // ETRF2000-PL / CS2000/18
    "ETRF\2270-PL\011@\2270/21\0" // ETRF2000-PL / CS2000/21
    "ETRF\2270-PL\011@\2270/24\0" // ETRF2000-PL / CS2000/24
    "ETRF\2270-PL\011@92\0" // ETRF2000-PL / CS92
    "ETRF\2275\0" // ETRF2005
    "ETRF\2275\002L<L\003\0" // ETRF2005 - LatLon
    "ETRF\03314\0" // ETRF2014
    "ETRF\03314\001L<L\003\0" // ETRF2014- LatLon
    "ETRF89\0" // ETRF89
    "ETRF89\002L<L\003\0" // ETRF89 - LatLon
    "ETRF89 IT\0" // ETRF89 IT
    "ETRF90\0" // ETRF90
    "ETRF90\002L<L\003\0" // ETRF90 - LatLon
    "ETRF91\0" // ETRF91
    "ETRF91\002L<L\003\0" // ETRF91 - LatLon
    "ETRF92\0" // ETRF92
    "ETRF92\002L<L\003\0" // ETRF92 - LatLon
    "ETRF93\0" // ETRF93
    "ETRF93\002L<L\003\0" // ETRF93 - LatLon
    "ETRF94\0" // ETRF94
    "ETRF94\002L<L\003\0" // ETRF94 - LatLon
    "ETRF96\0" // ETRF96
    "ETRF96\002L<L\003\0" // ETRF96 - LatLon
    "ETRF97\0" // ETRF97
    "ETRF97\002L<L\003\0" // ETRF97 - LatLon
    "ETRF_\03189\0" // ETRF_1989
    "ET|\002\0" // ETRS - 
    "ET|-\25026\0" // ETRS-TM26
    "ET|-\25027\0" // ETRS-TM27
    "ET|-TM28\0" // ETRS-TM28
    "ET|-\25029\0" // ETRS-TM29
    "ET|-\25030\0" // ETRS-TM30
    "ET|-TM31\0" // ETRS-TM31
    "ET|-\25032\0" // ETRS-TM32
    "ET|-\25033\0" // ETRS-TM33
    "ET|-TM34\0" // ETRS-TM34
    "ET|-\25035\0" // ETRS-TM35
    "ET|-\25035FIN(E,N)\0" // ETRS-TM35FIN(E,N)
    "ET|-\25035FIN(N,E)\0" // ETRS-TM35FIN(N,E)
    "ET|-\25036\0" // ETRS-TM36
    "ET|-\25037\0" // ETRS-TM37
    "ET|-\25038\0" // ETRS-TM38
    "ET|-\25039\0" // ETRS-TM39
    "ET|89\011Alb\005\314LCC \03310\0" // ETRS89 / Albania LCC 2010
    "ET|89\011Alb\005\314\250 \03310\0" // ETRS89 / Albania TM 2010
    "ET|89\011Au\021r\314L\232b\007t\0" // ETRS89 / Austria Lambert
    "ET|89\011B\240g\335 L\232b\007t \2275\0" // ETRS89 / Belgian Lambert 2005
    "ET|89\011B\240g\335 L\232b\007t \2278\0" // ETRS89 / Belgian Lambert 2008
    "ET|89\011DK\2501\0" // ETRS89 / DKTM1
    "ET|89\011DK\2502\0" // ETRS89 / DKTM2
    "ET|89\011DK\2503\0" // ETRS89 / DKTM3
    "ET|89\011DK\2504\0" // ETRS89 / DKTM4
    "ET|89\011E\236G \326\317$\2702-22\0" // ETRS89 / EPSG Arctic zone 2-22
    "ET|89\011E\236G \326\317$\2703-11\0" // ETRS89 / EPSG Arctic zone 3-11
    "ET|89\011E\236G \326\317$\2704-26\0" // ETRS89 / EPSG Arctic zone 4-26
    "ET|89\011E\236G \326\317$\2704-28\0" // ETRS89 / EPSG Arctic zone 4-28
    "ET|89\011E\236G \326\317$\2705-11\0" // ETRS89 / EPSG Arctic zone 5-11
    "ET|89\011E\236G \326\317$\2705-13\0" // ETRS89 / EPSG Arctic zone 5-13
    "ET|89\011E\236G \326\317$\2705-47\0" // ETRS89 / EPSG Arctic zone 5-47
    "ET|89\011ET|-GK\031FIN\0" // ETRS89 / ETRS-GK19FIN
    "ET|89\011ET|-GK\033FIN\0" // ETRS89 / ETRS-GK20FIN
    "ET|89\011ET|-GK21FIN\0" // ETRS89 / ETRS-GK21FIN
    "ET|89\011ET|-GK22FIN\0" // ETRS89 / ETRS-GK22FIN
    "ET|89\011ET|-GK23FIN\0" // ETRS89 / ETRS-GK23FIN
    "ET|89\011ET|-GK24FIN\0" // ETRS89 / ETRS-GK24FIN
    "ET|89\011ET|-GK25FIN\0" // ETRS89 / ETRS-GK25FIN
    "ET|89\011ET|-GK26FIN\0" // ETRS89 / ETRS-GK26FIN
    "ET|89\011ET|-GK\313FIN\0" // ETRS89 / ETRS-GK27FIN
    "ET|89\011ET|-GK28FIN\0" // ETRS89 / ETRS-GK28FIN
    "ET|89\011ET|-GK29FIN\0" // ETRS89 / ETRS-GK29FIN
    "ET|89\011ET|-GK\375FIN\0" // ETRS89 / ETRS-GK30FIN
    "ET|89\011ET|-GK31FIN\0" // ETRS89 / ETRS-GK31FIN
    "ET|89\011F#o\012L\232b\007t\0" // ETRS89 / Faroe Lambert
    "ET|89\011F#o\012\250\0" // ETRS89 / Faroe TM
    "ET|89\011GK\031FIN\0" // ETRS89 / GK19FIN
    "ET|89\011GK\033FIN\0" // ETRS89 / GK20FIN
    "ET|89\011GK21FIN\0" // ETRS89 / GK21FIN
    "ET|89\011GK22FIN\0" // ETRS89 / GK22FIN
    "ET|89\011GK23FIN\0" // ETRS89 / GK23FIN
    "ET|89\011GK24FIN\0" // ETRS89 / GK24FIN
    "ET|89\011GK25FIN\0" // ETRS89 / GK25FIN
    "ET|89\011GK26FIN\0" // ETRS89 / GK26FIN
    "ET|89\011GK\313FIN\0" // ETRS89 / GK27FIN
    "ET|89\011GK28FIN\0" // ETRS89 / GK28FIN
    "ET|89\011GK29FIN\0" // ETRS89 / GK29FIN
    "ET|89\011GK\375FIN\0" // ETRS89 / GK30FIN
    "ET|89\011GK31FIN\0" // ETRS89 / GK31FIN
    "ET|89\011Ga\357s-Krug\007\333M 9E\0" // ETRS89 / Gauss-Kruger CM 9E
    "ET|89\011Gu\007nse\200Gr\257\0" // ETRS89 / Guernsey Grid
    "ET|89\011J\220e\200Tr\005sv\220\012M\007c<\006\0" // ETRS89 / Jersey Transverse Mercator
    "ET|89\011Kp\2270 B\006nh\247m\0" // ETRS89 / Kp2000 Bornholm
    "ET|89\011Kp\2270 Jut\211\0" // ETRS89 / Kp2000 Jutland
    "ET|89\011Kp\2270 Ze\026\035\0" // ETRS89 / Kp2000 Zealand
    "ET|89\011LCC G\007m\005\200(E-N)\0" // ETRS89 / LCC Germany (E-N)
    "ET|89\011LCC G\007m\005\200(N-E)\0" // ETRS89 / LCC Germany (N-E)
    "ET|89\011N\250\27010\0" // ETRS89 / NTM zone 10
    "ET|89\011N\250\27011\0" // ETRS89 / NTM zone 11
    "ET|89\011N\250\27012\0" // ETRS89 / NTM zone 12
    "ET|89\011N\250\27013\0" // ETRS89 / NTM zone 13
    "ET|89\011N\250\27014\0" // ETRS89 / NTM zone 14
    "ET|89\011N\250\27015\0" // ETRS89 / NTM zone 15
    "ET|89\011N\250\27016\0" // ETRS89 / NTM zone 16
    "ET|89\011N\250\27017\0" // ETRS89 / NTM zone 17
    "ET|89\011N\250\27018\0" // ETRS89 / NTM zone 18
    "ET|89\011N\250\27019\0" // ETRS89 / NTM zone 19
    "ET|89\011N\250\27020\0" // ETRS89 / NTM zone 20
    "ET|89\011N\250\27021\0" // ETRS89 / NTM zone 21
    "ET|89\011N\250\27022\0" // ETRS89 / NTM zone 22
    "ET|89\011N\250\27023\0" // ETRS89 / NTM zone 23
    "ET|89\011N\250\27024\0" // ETRS89 / NTM zone 24
    "ET|89\011N\250\27025\0" // ETRS89 / NTM zone 25
    "ET|89\011N\250\27026\0" // ETRS89 / NTM zone 26
    "ET|89\011N\250\27027\0" // ETRS89 / NTM zone 27
    "ET|89\011N\250\27028\0" // ETRS89 / NTM zone 28
    "ET|89\011N\250\27029\0" // ETRS89 / NTM zone 29
    "ET|89\011N\250\27030\0" // ETRS89 / NTM zone 30
    "ET|89\011N\250\2705\0" // ETRS89 / NTM zone 5
    "ET|89\011N\250\2706\0" // ETRS89 / NTM zone 6
    "ET|89\011N\250\2707\0" // ETRS89 / NTM zone 7
    "ET|89\011N\250\2708\0" // ETRS89 / NTM zone 8
    "ET|89\011N\250\2709\0" // ETRS89 / NTM zone 9
    "ET|89\011P\006tug\223\25006\0" // ETRS89 / Portugal TM06
    "ET|89\011\250 \375 NE\0" // ETRS89 / TM 30 NE
    "ET|89\011\250 B\026t$93\0" // ETRS89 / TM Baltic93
    "ET|89\011\25026\0" // ETRS89 / TM26
    "ET|89\011\25027\0" // ETRS89 / TM27
    "ET|89\011\25035FIN(E,N)\0" // ETRS89 / TM35FIN(E,N)
    "ET|89\011\25035FIN(N,E)\0" // ETRS89 / TM35FIN(N,E)
    "ET|89\011\25038\0" // ETRS89 / TM38
    "ET|89\011\25039\0" // ETRS89 / TM39
    "ET|89\011U\250\27028N\0" // ETRS89 / UTM zone 28N
    "ET|89\011U\250\27028N\205N-E)\0" // ETRS89 / UTM zone 28N (N-E)
    "ET|89\011U\250\27029N\0" // ETRS89 / UTM zone 29N
    "ET|89\011U\250\27029N\205N-E)\0" // ETRS89 / UTM zone 29N (N-E)
    "ET|89\011U\250\270\375N\0" // ETRS89 / UTM zone 30N
    "ET|89\011U\250\270\375N\205N-E)\0" // ETRS89 / UTM zone 30N (N-E)
    "ET|89\011U\250\27031N\0" // ETRS89 / UTM zone 31N
    "ET|89\011U\250\27031N\205N-E)\0" // ETRS89 / UTM zone 31N (N-E)
    "ET|89\011U\250\27031N\205N-zE)\0" // ETRS89 / UTM zone 31N (N-zE)
    "ET|89\011U\250\27031N\205zE-N)\0" // ETRS89 / UTM zone 31N (zE-N)
    "ET|89\011U\250\27032N\0" // ETRS89 / UTM zone 32N
    "ET|89\011U\250\27032N\205N-E)\0" // ETRS89 / UTM zone 32N (N-E)
    "ET|89\011U\250\27032N\205N-zE)\0" // ETRS89 / UTM zone 32N (N-zE)
    "ET|89\011U\250\27032N\205zE-N)\0" // ETRS89 / UTM zone 32N (zE-N)
    "ET|89\011U\250\27033N\0" // ETRS89 / UTM zone 33N
    "ET|89\011U\250\27033N\205N-E)\0" // ETRS89 / UTM zone 33N (N-E)
    "ET|89\011U\250\27033N\205N-zE)\0" // ETRS89 / UTM zone 33N (N-zE)
    "ET|89\011U\250\27033N\205zE-N)\0" // ETRS89 / UTM zone 33N (zE-N)
    "ET|89\011U\250\27034N\205N-E)\0" // ETRS89 / UTM zone 34N (N-E)
    "ET|89\011U\250\27035N\0" // ETRS89 / UTM zone 35N
    "ET|89\011U\250\27035N\205N-E)\0" // ETRS89 / UTM zone 35N (N-E)
    "ET|89\011U\250\27036N\0" // ETRS89 / UTM zone 36N
    "ET|89\011U\250\27036N\205N-E)\0" // ETRS89 / UTM zone 36N (N-E)
    "ET|89\011U\250\27037N\0" // ETRS89 / UTM zone 37N
    "ET|89\011U\250\27037N\205N-E)\0" // ETRS89 / UTM zone 37N (N-E)
    "ET|89\011U\250\27038N\0" // ETRS89 / UTM zone 38N
    "ET|89-G|80\0" // ETRS89-GRS80
    "ET|89-LAEA\0" // ETRS89-LAEA
    "ET|89-LCC\0" // ETRS89-LCC
    "ET|89-LCC-DE(E-N)\0" // ETRS89-LCC-DE(E-N)
    "ET|89-LCC-DE(N-E)\0" // ETRS89-LCC-DE(N-E)
    "ET|89-TM28\0" // ETRS89-TM28
    "ET|89-\25029\0" // ETRS89-TM29
    "ET|89-\25030\0" // ETRS89-TM30
    "ET|89-TM31\0" // ETRS89-TM31
    "ET|89-\25032\0" // ETRS89-TM32
    "ET|89-\25033\0" // ETRS89-TM33
    "ET|89-TM34\0" // ETRS89-TM34
    "ET|89-\25035\0" // ETRS89-TM35
    "ET|89-\25036\0" // ETRS89-TM36
    "ET|89-\25037\0" // ETRS89-TM37
    "ET|89-ext\210d\273\011LAEA E\225ope\0" // ETRS89-extended / LAEA Europe
    "ET|89-ext\210d\273\011LCC E\225ope\0" // ETRS89-extended / LCC Europe
    "ET|_\03189\0" // ETRS_1989
    "ET|\21289_\0" // ETRS_1989_
    "ET|\21289_E\236G_\326\317$_!\207\0" // ETRS_1989_EPSG_Arctic_zone_
    "ET|\21289_N\376Z\003\207\0" // ETRS_1989_NTM_Zone_
    "ET|\21289_Po\211_@\2270_Z\003\207\0" // ETRS_1989_Poland_CS2000_Zone_
    "ET|\21289_U\376Z\003\207\0" // ETRS_1989_UTM_Zone_
    "EUREF\265N_\25035FIN\0" // EUREF_FIN_TM35FIN
    "EWR2 Gr\257\0" // EWR2 Grid
    "EWR2 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // EWR2 Intermediate Reference Frame
    "EWR2-IRF\0" // EWR2-IRF
    "EWR2-\250\0" // EWR2-TM
    "Ea\021_B\240t_\03310\0" // East_Belt_2010
    "Ea\021\374\365\026_Z\003e\0" // East_Central_Zone
    "Ea\021_\017\212\014_\231_LCC\366_I\032l\0" // East_NAD_1983_2011_LCC_Feet_Intl
    "Ea\021_\017\212\014_\231_LCC_M\311\0" // East_NAD_1983_2011_LCC_Meters
    "Ea\021_\017\212\014_CO|96_LCC\366_I\032l\0" // East_NAD_1983_CORS96_LCC_Feet_Intl
    "Ea\021_\017\212\014_CO|96_LCC_M\311\0" // East_NAD_1983_CORS96_LCC_Meters
    "Ea\021_Se\253B\240t_\03310\0" // East_Sea_Belt_2010
    "Ea\021\007 \352\32067\0" // Easter Island 1967
    "Ea\021\007_\352\21267\0" // Easter_Island_1967
    "EauClai>\374\025\032y\366\0" // EauClaire_County_Feet
    "EauClai>\374\025\032y_M\311\0" // EauClaire_County_Meters
    "EauClai>_M\311\0" // EauClaire_Meters
    "Eau\374lai>\366\0" // Eau_Claire_Feet
    "Egypt\0" // Egypt
    "Egypt\00229}33\015\0" // Egypt - 29°E to 33°E
    "Egypt\002Gulf \216{uez\0" // Egypt - Gulf of Suez
    "Egypt\002e\315\25233\360\237\0" // Egypt - east of 33°E onshore
    "Egypt\002\237\0" // Egypt - onshore
    "Egypt\002w\275\25229\015; n\006`\25228\004\177'N\0" // Egypt - west of 29°E; north of 28°11'N
    "Egypt\002w\275\25229\015; s\246\25228\004\177'N\0" // Egypt - west of 29°E; south of 28°11'N
    "Egypt\32007\0" // Egypt 1907
    "Egypt\32007\011Blu\012B\240t\0" // Egypt 1907 / Blue Belt
    "Egypt\32007\011Ext\210d\273 P\225pl\012B\240t\0" // Egypt 1907 / Extended Purple Belt
    "Egypt\32007\011P\225pl\012B\240t\0" // Egypt 1907 / Purple Belt
    "Egypt\32007\011R\273 B\240t\0" // Egypt 1907 / Red Belt
    "Egypt\32030\0" // Egypt 1930
    "Egypt Blu\012B\240t\0" // Egypt Blue Belt
    "Egypt Ext\210d\273 P\225pl\012B\240t\0" // Egypt Extended Purple Belt
    "Egypt Gulf \216{uez S-650 TL\0" // Egypt Gulf of Suez S-650 TL
    "Egypt Gulf \216{uez{-650 TL\011R\273 B\240t\0" // Egypt Gulf of Suez S-650 TL / Red Belt
    "Egypt P\225pl\012B\240t\0" // Egypt Purple Belt
    "Egypt R\273 B\240t\0" // Egypt Red Belt
    "Egypt\21207\0" // Egypt_1907
    "Egypt\21230\0" // Egypt_1930
    "Egypt_Blu\207B\240t\0" // Egypt_Blue_Belt
    "Egypt_Ext\210d\273_P\225pl\207B\240t\0" // Egypt_Extended_Purple_Belt
    "Egypt_Gulf_\216_Suez_S-650_TL\0" // Egypt_Gulf_of_Suez_S-650_TL
    "Egypt_Gulf_\216_Suez_S-650_TL_R\273_B\240t\0" // Egypt_Gulf_of_Suez_S-650_TL_Red_Belt
    "Egypt_P\225pl\207B\240t\0" // Egypt_Purple_Belt
    "Egypt_R\273_B\240t\0" // Egypt_Red_Belt
    "Egyseg\242 Orszagos V\036ul\036i\0" // Egyseges Orszagos Vetuleti
    "El{\026v\274\006\002\237\0" // El Salvador - onshore
    "El_S\026v\274\006_L\232b\007t\0" // El_Salvador_Lambert
    "Elkh#t-Kosci\357ko-Waba^_(ft\204)\0" // Elkhart-Kosciusko-Wabash_(ftUS)
    "Elkh#t-Kosci\357ko-Waba^_(m)\0" // Elkhart-Kosciusko-Wabash_(m)
    "Equ\026_E#\023_Am\007$\201\0" // Equal_Earth_Americas
    "Equ\026_E#\023_Asi\253Pacif$\0" // Equal_Earth_Asia_Pacific
    "Equ\026_E#\023_G>\210w$h\0" // Equal_Earth_Greenwich
    "Equ<\006i\223Gu\024e\034Bioko\0" // Equatorial Guinea - Bioko
    "Er\243>a\0" // Eritrea
    "Esp\007\005c\012Gr\257 \03320\0" // Esperance Grid 2020
    "E\021\003ia\0" // Estonia
    "E\021\003\215\237\0" // Estonia - onshore
    "E\021\003\314\03192\0" // Estonia 1992
    "E\021\003\314\03197\0" // Estonia 1997
    "E\021\003i\253\03192\0" // Estonia_1992
    "E\021\003i\253\03197\0" // Estonia_1997
    "E\021\003ia\21297_E\021\003i\253N<\321\026_Gr\257\0" // Estonia_1997_Estonia_National_Grid
    "E\021\003\335\333o\006d\024<\012Sy\021\206 \252\03192\0" // Estonian Coordinate System of 1992
    "E\021\003\335\333o\006d\024<\012Sy\021\206 \252\03197\0" // Estonian Coordinate System of 1997
    "E\021\003\335 N<\321\223Gr\257\0" // Estonian National Grid
    "E\021\003\335\374o\006d\024<\207Sy\021\206_\216_\03192\0" // Estonian_Coordinate_System_of_1992
    "E\023iop\215e\315\25242\015\0" // Ethiopia - east of 42°E
    "E\225op\2260}6\360\301ED50 \363\0" // Europe - 0°E to 6°E and ED50 by country
    "E\225op\2260}6\360\301ET|89 \363\0" // Europe - 0°E to 6°E and ETRS89 by country
    "E\225op\226\312\224\3453\224\360\213\006\012\363\0" // Europe - 10.5°E to 13.5°E onshore by country
    "E\225op\22612\3458\360\301ED50 \363\0" // Europe - 12°E to 18°E and ED50 by country
    "E\225op\22612\3458\360\301ET|89 \363\0" // Europe - 12°E to 18°E and ETRS89 by country
    "E\225op\22612\3458\360\213\006\012\035{-42(58) \363\0" // Europe - 12°E to 18°E onshore and S-42(58) by country
    "E\225op\22612\3458\360\213\006\012\035{-42(\014) \363\0" // Europe - 12°E to 18°E onshore and S-42(83) by country
    "E\225op\22612\2176\037 \301ED50 \363\0" // Europe - 12°W to 6°W and ED50 by country
    "E\225op\22612\2176\037 \301ET|89 \363\0" // Europe - 12°W to 6°W and ETRS89 by country
    "E\225op\22613\224\3456\224\360\213\006\012\035{-42(58) \363\0" // Europe - 13.5°E to 16.5°E onshore and S-42(58) by country
    "E\225op\22613\224\3456\224\360\213\006\012\035{-42(\014) \363\0" // Europe - 13.5°E to 16.5°E onshore and S-42(83) by country
    "E\225op\22616\224}\031\224\360\213\006\012\035{-42(58) \363\0" // Europe - 16.5°E to 19.5°E onshore and S-42(58) by country
    "E\225op\22616\224}\031\224\360\213\006\012\035{-42(\014) \363\0" // Europe - 16.5°E to 19.5°E onshore and S-42(83) by country
    "E\225op\22618}24\360\301ED50 \363\0" // Europe - 18°E to 24°E and ED50 by country
    "E\225op\22618}24\360\301ET|89 \363\0" // Europe - 18°E to 24°E and ETRS89 by country
    "E\225op\22618}24\360\213\006\012\035{-42(58) \363\0" // Europe - 18°E to 24°E onshore and S-42(58) by country
    "E\225op\22618}24\360\213\006\012\035{-42(\014) \363\0" // Europe - 18°E to 24°E onshore and S-42(83) by country
    "E\225op\22618\21712\037 \301ED50 \363\0" // Europe - 18°W to 12°W and ED50 by country
    "E\225op\22618\21712\037 \301ET|89 \363\0" // Europe - 18°W to 12°W and ETRS89 by country
    "E\225op\226\031\224}22\224\360\213\006\012\035{-42(58) \363\0" // Europe - 19.5°E to 22.5°E onshore and S-42(58) by country
    "E\225op\226\031\224}22\224\360\213\006\012\035{-42(\014) \363\0" // Europe - 19.5°E to 22.5°E onshore and S-42(83) by country
    "E\225op\22622\224}25\224\360\213\006\012\035{-42(58) \363\0" // Europe - 22.5°E to 25.5°E onshore and S-42(58) by country
    "E\225op\22622\224}25\224\360\213\006\012\035{-42(\014) \363\0" // Europe - 22.5°E to 25.5°E onshore and S-42(83) by country
    "E\225op\22624}\375\360\301ED50 \363\0" // Europe - 24°E to 30°E and ED50 by country
    "E\225op\22624}\375\360\301ET|89 \363\0" // Europe - 24°E to 30°E and ETRS89 by country
    "E\225op\22624}\375\360\213\006\012\035{-42(58) \363\0" // Europe - 24°E to 30°E onshore and S-42(58) by country
    "E\225op\22624\21718\037\0" // Europe - 24°W to 18°W
    "E\225op\22625\224}28\224\360\213\006\012\035{-42(58) \363\0" // Europe - 25.5°E to 28.5°E onshore and S-42(58) by country
    "E\225op\22628\224}31\224\360\213\006\012\035{-42(58) \363\0" // Europe - 28.5°E to 31.5°E onshore and S-42(58) by country
    "E\225op\226\375}36\360\301ED50 \363\0" // Europe - 30°E to 36°E and ED50 by country
    "E\225op\226\375}36\360\301ET|89 \363\0" // Europe - 30°E to 36°E and ETRS89 by country
    "E\225op\226\375\21724\037\0" // Europe - 30°W to 24°W
    "E\225op\22636}42\360\301ED50 \363\0" // Europe - 36°E to 42°E and ED50 by country
    "E\225op\22636}42\360\301ET|89 \363\0" // Europe - 36°E to 42°E and ETRS89 by country
    "E\225op\22642}48\015\0" // Europe - 42°E to 48°E
    "E\225op\22642}48\360\301ED50 \363\0" // Europe - 42°E to 48°E and ED50 by country
    "E\225op\22642}48\360\301ET|89 \363\0" // Europe - 42°E to 48°E and ETRS89 by country
    "E\225op\22648}54\015\0" // Europe - 48°E to 54°E
    "E\225op\2266\3452\360\301ED50 \363\0" // Europe - 6°E to 12°E and ED50 by country
    "E\225op\2266\3452\360\301ET|89 \363\0" // Europe - 6°E to 12°E and ETRS89 by country
    "E\225op\2266\3452\360\301Pulkov\013\363\0" // Europe - 6°E to 12°E and Pulkovo by country
    "E\225op\2266\2170\037 \301ED50 \363\0" // Europe - 6°W to 0°W and ED50 by country
    "E\225op\2266\2170\037 \301ET|89 \363\0" // Europe - 6°W to 0°W and ETRS89 by country
    "E\225op\226Au\021r\314\301f\006m\007 Yugoslav\314\237\0" // Europe - Austria and former Yugoslavia onshore
    "E\225op\226Br\243=h \325l\242\002UK \301I>\211 \237\0" // Europe - British Isles - UK and Ireland onshore
    "E\225op\226Czechoslovakia\0" // Europe - Czechoslovakia
    "E\225op\226ED50 \363\0" // Europe - ED50 by country
    "E\225op\226ETRF \363\0" // Europe - ETRF by country
    "E\225op\226E\021\003ia; L<via; Li\023u\005ia\0" // Europe - Estonia; Latvia; Lithuania
    "E\225op\226FSU\002\031\224}22\224\360\237\0" // Europe - FSU - 19.5°E to 22.5°E onshore
    "E\225op\226FSU\00222\224}25\224\360\237\0" // Europe - FSU - 22.5°E to 25.5°E onshore
    "E\225op\226FSU\00225\224}28\224\360\237\0" // Europe - FSU - 25.5°E to 28.5°E onshore
    "E\225op\226FSU\00228\224}31\224\360\237\0" // Europe - FSU - 28.5°E to 31.5°E onshore
    "E\225op\226FSU\00231\224}34\224\360\237\0" // Europe - FSU - 31.5°E to 34.5°E onshore
    "E\225op\226FSU\00234\224}37\224\360\237\0" // Europe - FSU - 34.5°E to 37.5°E onshore
    "E\225op\226FSU\00237\224}40\224\360\237\0" // Europe - FSU - 37.5°E to 40.5°E onshore
    "E\225op\226FSU\00240\224}43\224\360\237\0" // Europe - FSU - 40.5°E to 43.5°E onshore
    "E\225op\226FSU\00243\224}46\224\360\237\0" // Europe - FSU - 43.5°E to 46.5°E onshore
    "E\225op\226FSU\00246\224}49\224\360\237\0" // Europe - FSU - 46.5°E to 49.5°E onshore
    "E\225op\226FSU\002@63\270C0\0" // Europe - FSU - CS63 zone C0
    "E\225op\226FSU\002@63\270C1\0" // Europe - FSU - CS63 zone C1
    "E\225op\226FSU\002@63\270C2\0" // Europe - FSU - CS63 zone C2
    "E\225op\226FSU \237\0" // Europe - FSU onshore
    "E\225op\226FSU \213\006\01218}24\360\035{-42 \363\0" // Europe - FSU onshore 18°E to 24°E and S-42 by country
    "E\225op\226FSU \213\006\01224}\375\360\035{-42 \363\0" // Europe - FSU onshore 24°E to 30°E and S-42 by country
    "E\225op\226FSU \213\006\012\375}36\015\0" // Europe - FSU onshore 30°E to 36°E
    "E\225op\226FSU \213\006\01236}42\015\0" // Europe - FSU onshore 36°E to 42°E
    "E\225op\226FSU \213\006\01242}48\015\0" // Europe - FSU onshore 42°E to 48°E
    "E\225op\226Fehm#nb\240t \025t\007\0" // Europe - Fehmarnbelt outer
    "E\225op\226I>\211\205Republ$ \301Ul\021\007)\002\237\0" // Europe - Ireland (Republic and Ulster) - onshore
    "E\225op\226LCC & LAEA\0" // Europe - LCC & LAEA
    "E\225op\226Liecht\210\021e\024 \035{w\243z\007\211\0" // Europe - Liechtenstein and Switzerland
    "E\225op\226Low\007 Au\021r\314\301M\006avia\0" // Europe - Lower Austria and Moravia
    "E\225op\226Ly\003-T\225\024\0" // Europe - Lyon-Turin
    "E\225op\226\367P\007m\335 b\201\024\0" // Europe - South Permian basin
    "E\225op\226Upp\007 Au\021ria,{\026zb\225g \301Bo\276ia\0" // Europe - Upper Austria, Salzburg and Bohemia
    "E\225op\226f\006m\007 Yugoslav\314\237\0" // Europe - former Yugoslavia onshore
    "E\225op\226f\006m\007 Yugoslav\314\213\006\01216\224}\031\224\015\0" // Europe - former Yugoslavia onshore 16.5°E to 19.5°E
    "E\225op\226f\006m\007 Yugoslav\314\213\006\012\031\224}22\224\015\0" // Europe - former Yugoslavia onshore 19.5°E to 22.5°E
    "E\225op\226f\006m\007 Yugoslav\314\213\006\012e\315\25222\224\015\0" // Europe - former Yugoslavia onshore east of 22.5°E
    "E\225op\226f\006m\007 Yugoslav\314\213\006\012w\275\25216\224\015\0" // Europe - former Yugoslavia onshore west of 16.5°E
    "E\225op\226\237\002ea\021\007n\002S-42(58)\0" // Europe - onshore - eastern - S-42(58)
    "E\225op\226\237\002ea\021\007n\002S-42(\014)\0" // Europe - onshore - eastern - S-42(83)
    "E\225op\226we\021\0" // Europe - west
    "E\225op\012C\003f\006m\223\2271\0" // Europe Conformal 2001
    "E\225op\012Equ\223A>\030\2271\0" // Europe Equal Area 2001
    "E\225ope\005 D<um\32050\0" // European Datum 1950
    "E\225ope\005 D<um\32050(\03177)\0" // European Datum 1950(1977)
    "E\225ope\005 D<um\32079\0" // European Datum 1979
    "E\225ope\005 D<um\32087\0" // European Datum 1987
    "E\225ope\005 Liby\005 D<um\32079\0" // European Libyan Datum 1979
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03189\0" // European Terrestrial Reference Frame 1989
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03190\0" // European Terrestrial Reference Frame 1990
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03191\0" // European Terrestrial Reference Frame 1991
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03192\0" // European Terrestrial Reference Frame 1992
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03193\0" // European Terrestrial Reference Frame 1993
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03194\0" // European Terrestrial Reference Frame 1994
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03196\0" // European Terrestrial Reference Frame 1996
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03197\0" // European Terrestrial Reference Frame 1997
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\2270\0" // European Terrestrial Reference Frame 2000
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\2275\0" // European Terrestrial Reference Frame 2005
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Fr\232\012\03314\0" // European Terrestrial Reference Frame 2014
    "E\225ope\005 T\007>\021ri\223Ref\007\210c\012Sy\021\206\32089 \210s\206ble\0" // European Terrestrial Reference System 1989 ensemble
    "E\225ope\005\21250\0" // European_1950
    "E\225ope\005\21250_ED77\0" // European_1950_ED77
    "E\225ope\005\21279\0" // European_1979
    "E\225ope\005\21287\0" // European_1987
    "E\225ope\005_Liby\005\21279\0" // European_Libyan_1979
    "E\225ope\005_Liby\005_D<um\21279\0" // European_Libyan_Datum_1979
    "E\225ope\005_T\007>\021ri\026_Ref\007\210ce\134r\232\207\0" // European_Terrestrial_Reference_Frame_
    "Ev\007\275(1\0140 Def\024\243\321)\0" // Everest (1830 Definition)
    "Ev\007\2751\0140\205\03137 Adju\021me\032)\0" // Everest 1830 (1937 Adjustment)
    "Ev\007\2751\0140\205\03162 Def\024\243\321)\0" // Everest 1830 (1962 Definition)
    "Ev\007\2751\0140\205\03167 Def\024\243\321)\0" // Everest 1830 (1967 Definition)
    "Ev\007\2751\0140\205\03175 Def\024\243\321)\0" // Everest 1830 (1975 Definition)
    "Ev\007\2751\0140\205|O\32069)\0" // Everest 1830 (RSO 1969)
    "Ev\007\2751\0140 Modifi\273\0" // Everest 1830 Modified
    "Ev\007e\021_\0" // Everest_
    "Ev\007e\021_1830\0" // Everest_1830
    "Ev\007e\021_Adj\21237\0" // Everest_Adj_1937
    "Ev\007e\021_Def\21262\0" // Everest_Def_1962
    "Ev\007e\021_Def\21267\0" // Everest_Def_1967
    "Ev\007e\021_Def\21275\0" // Everest_Def_1975
    "Ev\007e\021_Modifi\273\0" // Everest_Modified
    "Ev\007e\021_def\21262\0" // Everest_def_1962
    "Ev\007e\021_def\21267\0" // Everest_def_1967
    "Ev\007e\021_def\21275\0" // Everest_def_1975
    "Exm\246Gr\257 \03320\0" // Exmouth Grid 2020
    "F\245OE_\250\0" // FAROE_TM
    "F@\0" // FCS
    "FD54\0" // FD54
    "FD54\011F#o\012L\232b\007t\0" // FD54 / Faroe Lambert
    "FD54\011U\250\27029N\0" // FD54 / UTM zone 29N
    "FD54a\0" // FD54a
    "FD58\011I\370q !e\0" // FD58 / Iraq zone
    "FD\21254\0" // FD_1954
    "FD\21254_U\376Z\003\20729N\0" // FD_1954_UTM_Zone_29N
    "FD\21258\0" // FD_1958
    "FD\21258_I\370q\0" // FD_1958_Iraq
    "FEH10\0" // FEH10
    "FEH\03310\0" // FEH2010
    "FEH\033\312\011Fehm#nb\240t \250\0" // FEH2010 / Fehmarnbelt TM
    "FEH\033\312\134ehm#nb\240t_\250\0" // FEH2010_Fehmarnbelt_TM
    "FGD\32086\0" // FGD 1986
    "FNL22 Gr\257\0" // FNL22 Grid
    "FNL22 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // FNL22 Intermediate Reference Frame
    "FNL22-IRF\0" // FNL22-IRF
    "FNL22-\250\0" // FNL22-TM
    "F\373ud\0" // Fahud
    "F\373ud\011U\250\27039N\0" // Fahud / UTM zone 39N
    "F\373ud\011U\250\27040N\0" // Fahud / UTM zone 40N
    "F\373ud_U\376Z\003\20739N\0" // Fahud_UTM_Zone_39N
    "F\373ud_U\376Z\003\20740N\0" // Fahud_UTM_Zone_40N
    "F\026k\211 \352s\002\216f^\006\01263\21757\037\0" // Falkland Islands - offshore 63°W to 57°W
    "F\026k\211 \352s\002\237\0" // Falkland Islands - onshore
    "F\026k\211 \352s\002\213\006\012e\315\25260\037\0" // Falkland Islands - onshore east of 60°W
    "F\026k\211 \352s\002\213\006\012w\275\25260\037\0" // Falkland Islands - onshore west of 60°W
    "F#o\012C\274a\021r\012\03154\0" // Faroe Cadastre 1954
    "F#o\012C\274a\021r\012\03189\0" // Faroe Cadastre 1989
    "F#o\012D<um\32054\0" // Faroe Datum 1954
    "F#o\012\352s\0" // Faroe Islands
    "F#o\012\352s\002\237\0" // Faroe Islands - onshore
    "F#o\012L\232b\007t fk89\0" // Faroe Lambert fk89
    "F#o\012Tr\005sv\220\012M\007c<\006\0" // Faroe Transverse Mercator
    "F#o\207D<um\21254\0" // Faroe_Datum_1954
    "Fa\023\344\0" // Fathom
    "F<u Iv\03072\0" // Fatu Iva 72
    "F<u Iv\03072\011U\250\2707S\0" // Fatu Iva 72 / UTM zone 7S
    "F<u_Iva\21272\0" // Fatu_Iva_1972
    "F<u_Iva\21272_U\376Z\003\2077S\0" // Fatu_Iva_1972_UTM_Zone_7S
    "Fay\036te-Fr\005kl\024-Un\321_(ft\204)\0" // Fayette-Franklin-Union_(ftUS)
    "Fay\036te-Fr\005kl\024-Un\321_(m)\0" // Fayette-Franklin-Union_(m)
    "Fehm#nb\240t\333o\006d\024<\012Sy\021\206\0" // Fehmarnbelt Coordinate System
    "Fehm#nb\240t D<um \03310\0" // Fehmarnbelt Datum 2010
    "Fehm#nb\240t_D<um_\03310\0" // Fehmarnbelt_Datum_2010
    "F\007ro_Au\021ri\253GK_C\365\026\0" // Ferro_Austria_GK_Central
    "F\007ro_Au\021ri\253GK_Ea\021\0" // Ferro_Austria_GK_East
    "F\007ro_Au\021ri\253GK_We\021\0" // Ferro_Austria_GK_West
    "F\007ro_Krovak\0" // Ferro_Krovak
    "F\007ro_Krovak_Ea\021_\371\0" // Ferro_Krovak_East_North
    "F\007ro_M28\0" // Ferro_M28
    "F\007ro_M31\0" // Ferro_M31
    "F\007ro_M34\0" // Ferro_M34
    "Fiji\002V\005u\030Levu \301Taveuni\0" // Fiji - Vanua Levu and Taveuni
    "Fiji\002V\243i Levu\0" // Fiji - Viti Levu
    "Fiji\002ma\024 =\211s\0" // Fiji - main islands
    "Fiji\002ma\024 =\211s\002e\315\252180\004\0" // Fiji - main islands - east of 180°
    "Fiji\002ma\024 =\211s\002w\275\252180\004\0" // Fiji - main islands - west of 180°
    "Fiji\002\237\0" // Fiji - onshore
    "Fiji\32056\0" // Fiji 1956
    "Fiji\32056\011U\250\2701S\0" // Fiji 1956 / UTM zone 1S
    "Fiji\32056\011U\250\27060S\0" // Fiji 1956 / UTM zone 60S
    "Fiji\32086\0" // Fiji 1986
    "Fiji\32086\011Fiji Map Gr\257\0" // Fiji 1986 / Fiji Map Grid
    "Fiji Geod\036$ D<um\32086\0" // Fiji Geodetic Datum 1986
    "Fiji\21256\0" // Fiji_1956
    "Fiji\21256_U\376Z\003\2071S\0" // Fiji_1956_UTM_Zone_1S
    "Fiji\21256_U\376Z\003\20760S\0" // Fiji_1956_UTM_Zone_60S
    "Fiji\21286\0" // Fiji_1986
    "Fiji\21286\134iji_Map_Gr\257\0" // Fiji_1986_Fiji_Map_Grid
    "F\024\223D<um\32058\0" // Final Datum 1958
    "F\024\223D<um\32058\205Ir\005)\0" // Final Datum 1958 (Iran)
    "F\024\211\0" // Finland
    "F\024\211\002\031\224}\033\224\360\237\0" // Finland - 19.5°E to 20.5°E onshore
    "F\024\211\002\031\224}\033\224\360\213\006\012n\344\024\026\0" // Finland - 19.5°E to 20.5°E onshore nominal
    "F\024\211\002\031\224}22\224\360\237\0" // Finland - 19.5°E to 22.5°E onshore
    "F\024\211\002\033\224}21\224\360\237\0" // Finland - 20.5°E to 21.5°E onshore
    "F\024\211\002\033\224}21\224\360\213\006\012n\344\024\026\0" // Finland - 20.5°E to 21.5°E onshore nominal
    "F\024\211\00221\224}22\224\360\237\0" // Finland - 21.5°E to 22.5°E onshore
    "F\024\211\00221\224}22\224\360\213\006\012n\344\024\026\0" // Finland - 21.5°E to 22.5°E onshore nominal
    "F\024\211\00222\224}23\224\360\237\0" // Finland - 22.5°E to 23.5°E onshore
    "F\024\211\00222\224}23\224\360\213\006\012n\344\024\026\0" // Finland - 22.5°E to 23.5°E onshore nominal
    "F\024\211\00222\224}25\224\360\237\0" // Finland - 22.5°E to 25.5°E onshore
    "F\024\211\00223\224}24\224\360\237\0" // Finland - 23.5°E to 24.5°E onshore
    "F\024\211\00223\224}24\224\360\213\006\012n\344\024\026\0" // Finland - 23.5°E to 24.5°E onshore nominal
    "F\024\211\00224\224}25\224\360\237\0" // Finland - 24.5°E to 25.5°E onshore
    "F\024\211\00224\224}25\224\360\213\006\012n\344\024\026\0" // Finland - 24.5°E to 25.5°E onshore nominal
    "F\024\211\00225\224}26\224\360\237\0" // Finland - 25.5°E to 26.5°E onshore
    "F\024\211\00225\224}26\224\360\213\006\012n\344\024\026\0" // Finland - 25.5°E to 26.5°E onshore nominal
    "F\024\211\00225\224}28\224\360\237\0" // Finland - 25.5°E to 28.5°E onshore
    "F\024\211\00226\224}\313\224\360\237\0" // Finland - 26.5°E to 27.5°E onshore
    "F\024\211\00226\224}\313\224\360\213\006\012n\344\024\026\0" // Finland - 26.5°E to 27.5°E onshore nominal
    "F\024\211\002\313\224}28\224\360\237\0" // Finland - 27.5°E to 28.5°E onshore
    "F\024\211\002\313\224}28\224\360\213\006\012n\344\024\026\0" // Finland - 27.5°E to 28.5°E onshore nominal
    "F\024\211\00228\224}29\224\015\0" // Finland - 28.5°E to 29.5°E
    "F\024\211\00228\224}29\224\360n\344\024\026\0" // Finland - 28.5°E to 29.5°E nominal
    "F\024\211\00228\224}31\224\015\0" // Finland - 28.5°E to 31.5°E
    "F\024\211\00229\224}\375\224\015\0" // Finland - 29.5°E to 30.5°E
    "F\024\211\00229\224}\375\224\360n\344\024\026\0" // Finland - 29.5°E to 30.5°E nominal
    "F\024\211\002e\315\252\375\224\015\0" // Finland - east of 30.5°E
    "F\024\211\002e\315\252\375\224\360n\344\024\026\0" // Finland - east of 30.5°E nominal
    "F\024\211\002e\315\25231\224\015\0" // Finland - east of 31.5°E
    "F\024\211\002\237\0" // Finland - onshore
    "F\024\211\002w\275\252\031\224\360\237\0" // Finland - west of 19.5°E onshore
    "F\024\211\002w\275\252\031\224\360\213\006\012n\344\024\026\0" // Finland - west of 19.5°E onshore nominal
    "F\024\211 ET|-GK19\0" // Finland ETRS-GK19
    "F\024\211 ET|-GK20\0" // Finland ETRS-GK20
    "F\024\211 ET|-GK21\0" // Finland ETRS-GK21
    "F\024\211 ET|-GK22\0" // Finland ETRS-GK22
    "F\024\211 ET|-GK23\0" // Finland ETRS-GK23
    "F\024\211 ET|-GK24\0" // Finland ETRS-GK24
    "F\024\211 ET|-GK25\0" // Finland ETRS-GK25
    "F\024\211 ET|-GK26\0" // Finland ETRS-GK26
    "F\024\211 ET|-GK27\0" // Finland ETRS-GK27
    "F\024\211 ET|-GK28\0" // Finland ETRS-GK28
    "F\024\211 ET|-GK29\0" // Finland ETRS-GK29
    "F\024\211 ET|-GK30\0" // Finland ETRS-GK30
    "F\024\211 ET|-GK31\0" // Finland ETRS-GK31
    "F\024\211 Ga\357s-Krug\007\27019\0" // Finland Gauss-Kruger zone 19
    "F\024\211 Ga\357s-Krug\007\27020\0" // Finland Gauss-Kruger zone 20
    "F\024\211 Ga\357s-Krug\007\27021\0" // Finland Gauss-Kruger zone 21
    "F\024\211 Ga\357s-Krug\007\27022\0" // Finland Gauss-Kruger zone 22
    "F\024\211 Ga\357s-Krug\007\27023\0" // Finland Gauss-Kruger zone 23
    "F\024\211 Ga\357s-Krug\007\27024\0" // Finland Gauss-Kruger zone 24
    "F\024\211 Ga\357s-Krug\007\27025\0" // Finland Gauss-Kruger zone 25
    "F\024\211 Ga\357s-Krug\007\27026\0" // Finland Gauss-Kruger zone 26
    "F\024\211 Ga\357s-Krug\007\27027\0" // Finland Gauss-Kruger zone 27
    "F\024\211 Ga\357s-Krug\007\27028\0" // Finland Gauss-Kruger zone 28
    "F\024\211 Ga\357s-Krug\007\27029\0" // Finland Gauss-Kruger zone 29
    "F\024\211 Ga\357s-Krug\007\27030\0" // Finland Gauss-Kruger zone 30
    "F\024\211 Ga\357s-Krug\007\27031\0" // Finland Gauss-Kruger zone 31
    "F\024\211_Z\003\2071\0" // Finland_Zone_1
    "F\024\211_Z\003\2072\0" // Finland_Zone_2
    "F\024\211_Z\003\2073\0" // Finland_Zone_3
    "F\024\211_Z\003\2074\0" // Finland_Zone_4
    "Fl\202nc\207C\025\032y\366\0" // Florence_County_Feet
    "Fl\202nc\207C\025\032y_M\311\0" // Florence_County_Meters
    "Fl\202nce\366\0" // Florence_Feet
    "Fl\202nc\207M\311\0" // Florence_Meters
    "Fl\202nci\253Caqu\036\253\2277\0" // Florencia_Caqueta_2007
    "Fl\006\257\030@\313 E\315!e\0" // Florida CS27 East zone
    "Fl\006\257\030@\313 \324!e\0" // Florida CS27 North zone
    "Fl\006\257\030@\313 W\275!e\0" // Florida CS27 West zone
    "Fl\006\257\030GDL Alb\220\205m\311)\0" // Florida GDL Albers (meters)
    "Fl\006\257\253Ea\021\2670901\0" // Florida_East_FIPS_0901
    "Fl\006\257\253Ea\021\2670901\366\0" // Florida_East_FIPS_0901_Feet
    "Fl\006\257\253Ea\021\2670901\134t_\204\0" // Florida_East_FIPS_0901_Ft_US
    "Fl\006\257\253GDL_Alb\220\0" // Florida_GDL_Albers
    "Fl\006\257\253\371\2670903\0" // Florida_North_FIPS_0903
    "Fl\006\257\253\371\2670903\366\0" // Florida_North_FIPS_0903_Feet
    "Fl\006\257\253\371\2670903\134t_\204\0" // Florida_North_FIPS_0903_Ft_US
    "Fl\006\257\253We\021\2670902\0" // Florida_West_FIPS_0902
    "Fl\006\257\253We\021\2670902\366\0" // Florida_West_FIPS_0902_Feet
    "Fl\006\257\253We\021\2670902\134t_\204\0" // Florida_West_FIPS_0902_Ft_US
    "Fo\350\0" // Foot
    "Fo\350_\0" // Foot_
    "F\202\021\374\025\032y\366\0" // Forest_County_Feet
    "F\202\021\374\025\032y_M\311\0" // Forest_County_Meters
    "F\202\021\366\0" // Forest_Feet
    "F\202\021_M\311\0" // Forest_Meters
    "F\006t D\242aix\0" // Fort Desaix
    "F\006t M#ig\350\0" // Fort Marigot
    "F\006t M#ig\350\011U\250\270\033N\0" // Fort Marigot / UTM zone 20N
    "F\006t_B\240knap\134t_I\032l\0" // Fort_Belknap_Ft_Intl
    "F\006t_B\240knap_M\311\0" // Fort_Belknap_Meters
    "F\006t_D\242aix\0" // Fort_Desaix
    "F\006t_D\242aix_U\376\033N\0" // Fort_Desaix_UTM_20N
    "F\006t_M#ig\350\0" // Fort_Marigot
    "F\006t_M#ig\350_U\376\033N\0" // Fort_Marigot_UTM_20N
    "F\006t_Peck_Ass\024ibo\024e\134t_I\032l\0" // Fort_Peck_Assiniboine_Ft_Intl
    "F\006t_Peck_Ass\024ibo\024\207M\311\0" // Fort_Peck_Assiniboine_Meters
    "F\006t_Peck_Si\025x\134t_I\032l\0" // Fort_Peck_Sioux_Ft_Intl
    "F\006t_Peck_Si\025x_M\311\0" // Fort_Peck_Sioux_Meters
    "F\006t\026eza\0" // Fortaleza
    "F\025\032a\024-W#>n_(ft\204)\0" // Fountain-Warren_(ftUS)
    "F\025\032a\024-W#>n_(m)\0" // Fountain-Warren_(m)
    "Fr\005c\226Alsace\0" // France - Alsace
    "Fr\005c\226C\006s$\030\237\0" // France - Corsica onshore
    "Fr\005c\226ma\024\211\00243\004N\02245\004N\0" // France - mainland - 43°N to 45°N
    "Fr\005c\226ma\024\211\00244\004N\02246\004N\0" // France - mainland - 44°N to 46°N
    "Fr\005c\226ma\024\211\00245\004N\02247\004N\0" // France - mainland - 45°N to 47°N
    "Fr\005c\226ma\024\211\00246\004N\02248\004N\0" // France - mainland - 46°N to 48°N
    "Fr\005c\226ma\024\211\00247\004N\02249\004N\0" // France - mainland - 47°N to 49°N
    "Fr\005c\226ma\024\211\00248\004N\02250\004N\0" // France - mainland - 48°N to 50°N
    "Fr\005c\226ma\024\211 45.45\004N\02248.15\004N\0" // France - mainland 45.45°N to 48.15°N
    "Fr\005c\226ma\024\211 45.45\004N\02248.15\004N. Als\013\026l ma\024\211.\0" // France - mainland 45.45°N to 48.15°N. Also all mainland.
    "Fr\005c\226ma\024\211 n\006`\25248.15\004N\0" // France - mainland north of 48.15°N
    "Fr\005c\226ma\024\211 n\006`\25249\004N\0" // France - mainland north of 49°N
    "Fr\005c\226ma\024\211 \237\0" // France - mainland onshore
    "Fr\005c\226ma\024\211 s\246\25243\004N \301C\006s$a\0" // France - mainland south of 43°N and Corsica
    "Fr\005c\226ma\024\211 s\246\25244\004N\0" // France - mainland south of 44°N
    "Fr\005c\226ma\024\211 s\246\25245.45\004N\0" // France - mainland south of 45.45°N
    "Fr\005c\226\216f^\006\012M\273\243\007r\005e\005\0" // France - offshore Mediterranean
    "Fr\005c\226\237\002ma\024\211 \301C\006s$a\0" // France - onshore - mainland and Corsica
    "Fr\005c\012C\003$\333\003f\006m\223\0771\0" // France Conic Conformal zone 1
    "Fr\005c\012C\003$\333\003f\006m\223\0772\0" // France Conic Conformal zone 2
    "Fr\005c\012C\003$\333\003f\006m\223\0773\0" // France Conic Conformal zone 3
    "Fr\005c\012C\003$\333\003f\006m\223\0774\0" // France Conic Conformal zone 4
    "Fr\005c\012C\003$\333\003f\006m\223\0775\0" // France Conic Conformal zone 5
    "Fr\005c\012C\003$\333\003f\006m\223\0776\0" // France Conic Conformal zone 6
    "Fr\005c\012C\003$\333\003f\006m\223\0777\0" // France Conic Conformal zone 7
    "Fr\005c\012C\003$\333\003f\006m\223\0778\0" // France Conic Conformal zone 8
    "Fr\005c\012C\003$\333\003f\006m\223\0779\0" // France Conic Conformal zone 9
    "Fr\005c\207E\225oL\232b\007t\0" // France_EuroLambert
    "Fr\005c\207I\0" // France_I
    "Fr\005c\207II\0" // France_II
    "Fr\005c\207III\0" // France_III
    "Fr\005c\207IV\0" // France_IV
    "F>nch Equ<\006i\223Afr$\030w\275!e\0" // French Equatorial Africa west zone
    "F>nch Gu\335a\0" // French Guiana
    "F>nch Gu\335\034coa\021\223#ea\0" // French Guiana - coastal area
    "F>nch Gu\335\034coa\021\223#e\030e\315\25254\037\0" // French Guiana - coastal area east of 54°W
    "F>nch Gu\335\034coa\021\223#e\030w\275\25254\037\0" // French Guiana - coastal area west of 54°W
    "F>nch Gu\335\034e\315\25254\037\0" // French Guiana - east of 54°W
    "F>nch Gu\335\034w\275\25254\037\0" // French Guiana - west of 54°W
    "F>nch P\247yn\242ia\0" // French Polynesia
    "F>nch P\247yn\242\215144\217138\037\0" // French Polynesia - 144°W to 138°W
    "F>nch P\247yn\242\215150\217144\037\0" // French Polynesia - 150°W to 144°W
    "F>nch P\247yn\242\215M#qu\242\201 \352s\002F<u Hiva\0" // French Polynesia - Marquesas Islands - Fatu Hiva
    "F>nch P\247yn\242\215M#qu\242\201 \352s\002Hiv\030O\030\301T\373u<a\0" // French Polynesia - Marquesas Islands - Hiva Oa and Tahuata
    "F>nch P\247yn\242\215M#qu\242\201 \352s\002Nuku Hiva\307U\030Huk\030\301U\030P\025\0" // French Polynesia - Marquesas Islands - Nuku Hiva, Ua Huka and Ua Pou
    "F>nch P\247yn\242\215Soci\036\200\352s\002B\006\030B\006a\307Hu\373\024e\307Rai<ea\307T\373aa\0" // French Polynesia - Society Islands - Bora Bora, Huahine, Raiatea, Tahaa
    "F>nch P\247yn\242\215Soci\036\200\352s\002Maup\243i\0" // French Polynesia - Society Islands - Maupiti
    "F>nch P\247yn\242\215Soci\036\200\352s\002Mo\202a\0" // French Polynesia - Society Islands - Moorea
    "F>nch P\247yn\242\215Soci\036\200\352s\002Mo\202\030\301T\373\243i\0" // French Polynesia - Society Islands - Moorea and Tahiti
    "F>nch P\247yn\242\215Soci\036\200\352s\002T\373\243i\0" // French Polynesia - Society Islands - Tahiti
    "F>nch P\247yn\242\215e\315\252138\037\0" // French Polynesia - east of 138°W
    "F>nch P\247yn\242\215w\275\252150\037\0" // French Polynesia - west of 150°W
    "F>nch{\362\007n T\007r\243\006i\242\00260}66\015\0" // French Southern Territories - 60°E to 66°E
    "F>nch{\362\007n T\007r\243\006i\242\00266}72\015\0" // French Southern Territories - 66°E to 72°E
    "F>nch{\362\007n T\007r\243\006i\242\00272}78\015\0" // French Southern Territories - 72°E to 78°E
    "F>nch{\362\007n T\007r\243\006i\242\002Croz\036 48}54\015\0" // French Southern Territories - Crozet 48°E to 54°E
    "F>nch{\362\007n T\007r\243\006i\242\002Croz\036 e\315\25254\015\0" // French Southern Territories - Crozet east of 54°E
    "F>nch{\362\007n T\007r\243\006i\242\002Croz\036 w\275\25248\015\0" // French Southern Territories - Crozet west of 48°E
    "F>nch{\362\007n T\007r\243\006i\242\002E\225opa\0" // French Southern Territories - Europa
    "F>nch{\362\007n T\007r\243\006i\242\002K\007gu\240\210 \237\0" // French Southern Territories - Kerguelen onshore
    "F>nch{\362\007n T\007r\243\006i\242\002e\315\25278\015\0" // French Southern Territories - east of 78°E
    "F>nch{\362\007n \301A\032#\317$ T\007r\243\006i\242\0" // French Southern and Antarctic Territories
    "Fult\003-M#^\026l-St_Jose\230_(ft\204)\0" // Fulton-Marshall-St_Joseph_(ftUS)
    "Fult\003-M#^\026l-St_Jose\230_(m)\0" // Fulton-Marshall-St_Joseph_(m)
    "GA_LCC\0" // GA_LCC
    "GBK\031 Gr\257\0" // GBK19 Grid
    "GBK\031 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // GBK19 Intermediate Reference Frame
    "GBK\031-IRF\0" // GBK19-IRF
    "GBK\031-\250\0" // GBK19-TM
    "GBK\031_Gr\257\0" // GBK19_Grid
    "GBK\031_I\032\007m\273i<\207Ref\007\210ce\134r\232e\0" // GBK19_Intermediate_Reference_Frame
    "GCGD59\0" // GCGD59
    "GCNG59\0" // GCNG59
    "G@_Cl#k\207\0" // GCS_Clarke_
    "G@_ITRF_\0" // GCS_ITRF_
    "G@_\017\212\014_\0" // GCS_NAD_1983_
    "G@_\371_Am\007$\005_\0" // GCS_North_American_
    "GDA\03320\0" // GDA2020
    "GDA\033\033\002L<L\003\0" // GDA2020 - LatLon
    "GDA\033\033\011ALB\03320\0" // GDA2020 / ALB2020
    "GDA\033\033\011Au\021r\026\335 Alb\220\0" // GDA2020 / Australian Albers
    "GDA\033\033\011BCG\03320\0" // GDA2020 / BCG2020
    "GDA\033\033\011B@G\03320\0" // GDA2020 / BCSG2020
    "GDA\033\033\011BIO\03320\0" // GDA2020 / BIO2020
    "GDA\033\033\011BRO\03320\0" // GDA2020 / BRO2020
    "GDA\033\033\011C\331\03320\0" // GDA2020 / CARN2020
    "GDA\033\033\011CIG\03320\0" // GDA2020 / CIG2020
    "GDA\033\033\011CKIG\03320\0" // GDA2020 / CKIG2020
    "GDA\033\033\011COL\03320\0" // GDA2020 / COL2020
    "GDA\033\033\011E\264\03320\0" // GDA2020 / ESP2020
    "GDA\033\033\011EXM\03320\0" // GDA2020 / EXM2020
    "GDA\033\033\011GA LCC\0" // GDA2020 / GA LCC
    "GDA\033\033\011GCG\03320\0" // GDA2020 / GCG2020
    "GDA\033\033\011GOLD\03320\0" // GDA2020 / GOLD2020
    "GDA\033\033\011JCG\03320\0" // GDA2020 / JCG2020
    "GDA\033\033\011KALB\03320\0" // GDA2020 / KALB2020
    "GDA\033\033\011K\245\03320\0" // GDA2020 / KAR2020
    "GDA\033\033\011KUN\03320\0" // GDA2020 / KUN2020
    "GDA\033\033\011LCG\03320\0" // GDA2020 / LCG2020
    "GDA\033\033\011MGA\27046\0" // GDA2020 / MGA zone 46
    "GDA\033\033\011MGA\27047\0" // GDA2020 / MGA zone 47
    "GDA\033\033\011MGA\27048\0" // GDA2020 / MGA zone 48
    "GDA\033\033\011MGA\27049\0" // GDA2020 / MGA zone 49
    "GDA\033\033\011MGA\27050\0" // GDA2020 / MGA zone 50
    "GDA\033\033\011MGA\27051\0" // GDA2020 / MGA zone 51
    "GDA\033\033\011MGA\27052\0" // GDA2020 / MGA zone 52
    "GDA\033\033\011MGA\27053\0" // GDA2020 / MGA zone 53
    "GDA\033\033\011MGA\27054\0" // GDA2020 / MGA zone 54
    "GDA\033\033\011MGA\27055\0" // GDA2020 / MGA zone 55
    "GDA\033\033\011MGA\27056\0" // GDA2020 / MGA zone 56
    "GDA\033\033\011MGA\27057\0" // GDA2020 / MGA zone 57
    "GDA\033\033\011MGA\27058\0" // GDA2020 / MGA zone 58
    "GDA\033\033\011MGA\27059\0" // GDA2020 / MGA zone 59
    "GDA\033\033\011MRCG\03320\0" // GDA2020 / MRCG2020
    "GDA\033\033\011\334W L\232b\007t\0" // GDA2020 / NSW Lambert
    "GDA\033\033\011PCG\03320\0" // GDA2020 / PCG2020
    "GDA\033\033\011PHG\03320\0" // GDA2020 / PHG2020
    "GDA\033\033\011SA L\232b\007t\0" // GDA2020 / SA Lambert
    "GDA\033\033\011V$gr\257\0" // GDA2020 / Vicgrid
    "GDA\033\033_\0" // GDA2020_
    "GDA\033\033_MGA_Z\003\207\0" // GDA2020_MGA_Zone_
    "GDA94\0" // GDA94
    "GDA94\002L<L\003\0" // GDA94 - LatLon
    "GDA94\011Au\021r\026\335 Alb\220\0" // GDA94 / Australian Albers
    "GDA94\011B@G02\0" // GDA94 / BCSG02
    "GDA94\011CIG94\0" // GDA94 / CIG94
    "GDA94\011CKIG94\0" // GDA94 / CKIG94
    "GDA94\011Geosci\210c\012Au\021r\026\314L\232b\007t\0" // GDA94 / Geoscience Australia Lambert
    "GDA94\011MGA\27041\0" // GDA94 / MGA zone 41
    "GDA94\011MGA\27042\0" // GDA94 / MGA zone 42
    "GDA94\011MGA\27043\0" // GDA94 / MGA zone 43
    "GDA94\011MGA\27044\0" // GDA94 / MGA zone 44
    "GDA94\011MGA\27046\0" // GDA94 / MGA zone 46
    "GDA94\011MGA\27047\0" // GDA94 / MGA zone 47
    "GDA94\011MGA\27048\0" // GDA94 / MGA zone 48
    "GDA94\011MGA\27049\0" // GDA94 / MGA zone 49
    "GDA94\011MGA\27050\0" // GDA94 / MGA zone 50
    "GDA94\011MGA\27051\0" // GDA94 / MGA zone 51
    "GDA94\011MGA\27052\0" // GDA94 / MGA zone 52
    "GDA94\011MGA\27053\0" // GDA94 / MGA zone 53
    "GDA94\011MGA\27054\0" // GDA94 / MGA zone 54
    "GDA94\011MGA\27055\0" // GDA94 / MGA zone 55
    "GDA94\011MGA\27056\0" // GDA94 / MGA zone 56
    "GDA94\011MGA\27057\0" // GDA94 / MGA zone 57
    "GDA94\011MGA\27058\0" // GDA94 / MGA zone 58
    "GDA94\011MGA\27059\0" // GDA94 / MGA zone 59
    "GDA94\011\334W L\232b\007t\0" // GDA94 / NSW Lambert
    "GDA94\011SA L\232b\007t\0" // GDA94 / SA Lambert
    "GDA94\011V$gr\257\0" // GDA94 / Vicgrid
    "GDA94\011WEIPA94\0" // GDA94 / WEIPA94
    "GDA_\03194\0" // GDA_1994
    "GDA\21294_\0" // GDA_1994_
    "GDA\21294_MGA_Z\003\207\0" // GDA_1994_MGA_Zone_
    "GDBD\2279\0" // GDBD2009
    "GDBD\2279\011Brunei B|O\0" // GDBD2009 / Brunei BRSO
    "GDBD\2279_GEO|O\0" // GDBD2009_GEORSO
    "GDM\2270\0" // GDM2000
    "GDM\2270\011E\315M\026ays\314B|O\0" // GDM2000 / East Malaysia BRSO
    "GDM\2270\011Joh\006 Gr\257\0" // GDM2000 / Johor Grid
    "GDM\2270\011K\273\373 \301P\007l= Gr\257\0" // GDM2000 / Kedah and Perlis Grid
    "GDM\2270\011K\240\005t\005 Gr\257\0" // GDM2000 / Kelantan Grid
    "GDM\2270\011P\373\005g Gr\257\0" // GDM2000 / Pahang Grid
    "GDM\2270\011P\210\024sul\030|O\0" // GDM2000 / Peninsula RSO
    "GDM\2270\011P\007ak Gr\257\0" // GDM2000 / Perak Grid
    "GDM\2270\011P\024\005g Gr\257\0" // GDM2000 / Pinang Grid
    "GDM\2270\011S\240\005g\006 Gr\257\0" // GDM2000 / Selangor Grid
    "GDM\2270\011S\206b\372\005 \301M\240ak\030Gr\257\0" // GDM2000 / Sembilan and Melaka Grid
    "GDM\2270\011T\007\210gg\005u Gr\257\0" // GDM2000 / Terengganu Grid
    "GDM_\2270\0" // GDM_2000
    "GDM_\2270_B|O_Ea\021_M\026aysia\0" // GDM_2000_BRSO_East_Malaysia
    "GDM_\2270_M|O_P\210\024sul#_M\026aysia\0" // GDM_2000_MRSO_Peninsular_Malaysia
    "GDM_\2270_St<\207C\201s\024i_\0" // GDM_2000_State_Cassini_
    "GD\21249_\361_Ze\026\035_Map_Gr\257\0" // GD_1949_New_Zealand_Map_Grid
    "GEM \312C\0" // GEM 10C
    "GEM_\312C\0" // GEM_10C
    "GGN93\0" // GGN93
    "GG|87\0" // GGRS87
    "GG|87\011G>ek Gr\257\0" // GGRS87 / Greek Grid
    "GG|\21287\0" // GGRS_1987
    "GK_CM_21E\0" // GK_CM_21E
    "GK_CM_\313E\0" // GK_CM_27E
    "GK_CM_33E\0" // GK_CM_33E
    "GK_CM_39E\0" // GK_CM_39E
    "GK\374M_9E\0" // GK_CM_9E
    "GK_M28\0" // GK_M28
    "GK_M31\0" // GK_M31
    "GK_M34\0" // GK_M34
    "GK_Z\003\2076\0" // GK_Zone_6
    "GK_Z\003\2077\0" // GK_Zone_7
    "GR96\0" // GR96
    "GR96\011E\236G \326\317$\2701-25\0" // GR96 / EPSG Arctic zone 1-25
    "GR96\011E\236G \326\317$\2702-18\0" // GR96 / EPSG Arctic zone 2-18
    "GR96\011E\236G \326\317$\2702-20\0" // GR96 / EPSG Arctic zone 2-20
    "GR96\011E\236G \326\317$\2703-29\0" // GR96 / EPSG Arctic zone 3-29
    "GR96\011E\236G \326\317$\2703-31\0" // GR96 / EPSG Arctic zone 3-31
    "GR96\011E\236G \326\317$\2703-33\0" // GR96 / EPSG Arctic zone 3-33
    "GR96\011E\236G \326\317$\2704-20\0" // GR96 / EPSG Arctic zone 4-20
    "GR96\011E\236G \326\317$\2704-22\0" // GR96 / EPSG Arctic zone 4-22
    "GR96\011E\236G \326\317$\2704-24\0" // GR96 / EPSG Arctic zone 4-24
    "GR96\011E\236G \326\317$\2705-41\0" // GR96 / EPSG Arctic zone 5-41
    "GR96\011E\236G \326\317$\2705-43\0" // GR96 / EPSG Arctic zone 5-43
    "GR96\011E\236G \326\317$\2705-45\0" // GR96 / EPSG Arctic zone 5-45
    "GR96\011E\236G \326\317$\2706-26\0" // GR96 / EPSG Arctic zone 6-26
    "GR96\011E\236G \326\317$\2706-28\0" // GR96 / EPSG Arctic zone 6-28
    "GR96\011E\236G \326\317$\2706-30\0" // GR96 / EPSG Arctic zone 6-30
    "GR96\011E\236G \326\317$\2707-11\0" // GR96 / EPSG Arctic zone 7-11
    "GR96\011E\236G \326\317$\2707-13\0" // GR96 / EPSG Arctic zone 7-13
    "GR96\011E\236G \326\317$\2708-20\0" // GR96 / EPSG Arctic zone 8-20
    "GR96\011E\236G \326\317$\2708-22\0" // GR96 / EPSG Arctic zone 8-22
    "GR96\011U\250\27018N\0" // GR96 / UTM zone 18N
    "GR96\011U\250\27019N\0" // GR96 / UTM zone 19N
    "GR96\011U\250\270\033N\0" // GR96 / UTM zone 20N
    "GR96\011U\250\27021N\0" // GR96 / UTM zone 21N
    "GR96\011U\250\27022N\0" // GR96 / UTM zone 22N
    "GR96\011U\250\27023N\0" // GR96 / UTM zone 23N
    "GR96\011U\250\27024N\0" // GR96 / UTM zone 24N
    "GR96\011U\250\27025N\0" // GR96 / UTM zone 25N
    "GR96\011U\250\27026N\0" // GR96 / UTM zone 26N
    "GR96\011U\250\27027N\0" // GR96 / UTM zone 27N
    "GR96\011U\250\27028N\0" // GR96 / UTM zone 28N
    "GR96\011U\250\27029N\0" // GR96 / UTM zone 29N
    "GR96_E\236G_\326\317$_!\207\0" // GR96_EPSG_Arctic_zone_
    "G|\32067\0" // GRS 1967
    "G|\32067 Modifi\273\0" // GRS 1967 Modified
    "G|\32080\0" // GRS 1980
    "G|-\03311\0" // GRS-2011
    "G|\21267\0" // GRS_1967
    "G|\21267_Trunc<\273\0" // GRS_1967_Truncated
    "G|\21280\0" // GRS_1980
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \3122E\0" // GSK 3-degree Gauss-Kruger CM 102E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \3125E\0" // GSK 3-degree Gauss-Kruger CM 105E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \3128E\0" // GSK 3-degree Gauss-Kruger CM 108E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \1771E\0" // GSK 3-degree Gauss-Kruger CM 111E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \1774E\0" // GSK 3-degree Gauss-Kruger CM 114E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \1777E\0" // GSK 3-degree Gauss-Kruger CM 117E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // GSK 3-degree Gauss-Kruger CM 120E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 123E\0" // GSK 3-degree Gauss-Kruger CM 123E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 126E\0" // GSK 3-degree Gauss-Kruger CM 126E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 129E\0" // GSK 3-degree Gauss-Kruger CM 129E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 132E\0" // GSK 3-degree Gauss-Kruger CM 132E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 135E\0" // GSK 3-degree Gauss-Kruger CM 135E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 138E\0" // GSK 3-degree Gauss-Kruger CM 138E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 141E\0" // GSK 3-degree Gauss-Kruger CM 141E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 144E\0" // GSK 3-degree Gauss-Kruger CM 144E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 147E\0" // GSK 3-degree Gauss-Kruger CM 147E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 150E\0" // GSK 3-degree Gauss-Kruger CM 150E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 153E\0" // GSK 3-degree Gauss-Kruger CM 153E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 156E\0" // GSK 3-degree Gauss-Kruger CM 156E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 159E\0" // GSK 3-degree Gauss-Kruger CM 159E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 162E\0" // GSK 3-degree Gauss-Kruger CM 162E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 165E\0" // GSK 3-degree Gauss-Kruger CM 165E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 168E\0" // GSK 3-degree Gauss-Kruger CM 168E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 168W\0" // GSK 3-degree Gauss-Kruger CM 168W
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 171E\0" // GSK 3-degree Gauss-Kruger CM 171E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 171W\0" // GSK 3-degree Gauss-Kruger CM 171W
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 174E\0" // GSK 3-degree Gauss-Kruger CM 174E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 174W\0" // GSK 3-degree Gauss-Kruger CM 174W
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 177E\0" // GSK 3-degree Gauss-Kruger CM 177E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 177W\0" // GSK 3-degree Gauss-Kruger CM 177W
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 180E\0" // GSK 3-degree Gauss-Kruger CM 180E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 21E\0" // GSK 3-degree Gauss-Kruger CM 21E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 24E\0" // GSK 3-degree Gauss-Kruger CM 24E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \313E\0" // GSK 3-degree Gauss-Kruger CM 27E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M \375E\0" // GSK 3-degree Gauss-Kruger CM 30E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 33E\0" // GSK 3-degree Gauss-Kruger CM 33E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 36E\0" // GSK 3-degree Gauss-Kruger CM 36E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 39E\0" // GSK 3-degree Gauss-Kruger CM 39E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 42E\0" // GSK 3-degree Gauss-Kruger CM 42E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 45E\0" // GSK 3-degree Gauss-Kruger CM 45E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 48E\0" // GSK 3-degree Gauss-Kruger CM 48E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 51E\0" // GSK 3-degree Gauss-Kruger CM 51E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 54E\0" // GSK 3-degree Gauss-Kruger CM 54E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 57E\0" // GSK 3-degree Gauss-Kruger CM 57E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 60E\0" // GSK 3-degree Gauss-Kruger CM 60E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 63E\0" // GSK 3-degree Gauss-Kruger CM 63E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 66E\0" // GSK 3-degree Gauss-Kruger CM 66E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 69E\0" // GSK 3-degree Gauss-Kruger CM 69E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 72E\0" // GSK 3-degree Gauss-Kruger CM 72E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 75E\0" // GSK 3-degree Gauss-Kruger CM 75E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 78E\0" // GSK 3-degree Gauss-Kruger CM 78E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 81E\0" // GSK 3-degree Gauss-Kruger CM 81E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 84E\0" // GSK 3-degree Gauss-Kruger CM 84E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 87E\0" // GSK 3-degree Gauss-Kruger CM 87E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 90E\0" // GSK 3-degree Gauss-Kruger CM 90E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 93E\0" // GSK 3-degree Gauss-Kruger CM 93E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 96E\0" // GSK 3-degree Gauss-Kruger CM 96E
    "GSK 3-deg>\012Ga\357s-Krug\007\333M 99E\0" // GSK 3-degree Gauss-Kruger CM 99E
    "GSK 3-deg>\012Ga\357s-Krug\007\27010\0" // GSK 3-degree Gauss-Kruger zone 10
    "GSK 3-deg>\012Ga\357s-Krug\007\27011\0" // GSK 3-degree Gauss-Kruger zone 11
    "GSK 3-deg>\012Ga\357s-Krug\007\27012\0" // GSK 3-degree Gauss-Kruger zone 12
    "GSK 3-deg>\012Ga\357s-Krug\007\27013\0" // GSK 3-degree Gauss-Kruger zone 13
    "GSK 3-deg>\012Ga\357s-Krug\007\27014\0" // GSK 3-degree Gauss-Kruger zone 14
    "GSK 3-deg>\012Ga\357s-Krug\007\27015\0" // GSK 3-degree Gauss-Kruger zone 15
    "GSK 3-deg>\012Ga\357s-Krug\007\27016\0" // GSK 3-degree Gauss-Kruger zone 16
    "GSK 3-deg>\012Ga\357s-Krug\007\27017\0" // GSK 3-degree Gauss-Kruger zone 17
    "GSK 3-deg>\012Ga\357s-Krug\007\27018\0" // GSK 3-degree Gauss-Kruger zone 18
    "GSK 3-deg>\012Ga\357s-Krug\007\27019\0" // GSK 3-degree Gauss-Kruger zone 19
    "GSK 3-deg>\012Ga\357s-Krug\007\27020\0" // GSK 3-degree Gauss-Kruger zone 20
    "GSK 3-deg>\012Ga\357s-Krug\007\27021\0" // GSK 3-degree Gauss-Kruger zone 21
    "GSK 3-deg>\012Ga\357s-Krug\007\27022\0" // GSK 3-degree Gauss-Kruger zone 22
    "GSK 3-deg>\012Ga\357s-Krug\007\27023\0" // GSK 3-degree Gauss-Kruger zone 23
    "GSK 3-deg>\012Ga\357s-Krug\007\27024\0" // GSK 3-degree Gauss-Kruger zone 24
    "GSK 3-deg>\012Ga\357s-Krug\007\27025\0" // GSK 3-degree Gauss-Kruger zone 25
    "GSK 3-deg>\012Ga\357s-Krug\007\27026\0" // GSK 3-degree Gauss-Kruger zone 26
    "GSK 3-deg>\012Ga\357s-Krug\007\27027\0" // GSK 3-degree Gauss-Kruger zone 27
    "GSK 3-deg>\012Ga\357s-Krug\007\27028\0" // GSK 3-degree Gauss-Kruger zone 28
    "GSK 3-deg>\012Ga\357s-Krug\007\27029\0" // GSK 3-degree Gauss-Kruger zone 29
    "GSK 3-deg>\012Ga\357s-Krug\007\27030\0" // GSK 3-degree Gauss-Kruger zone 30
    "GSK 3-deg>\012Ga\357s-Krug\007\27031\0" // GSK 3-degree Gauss-Kruger zone 31
    "GSK 3-deg>\012Ga\357s-Krug\007\27032\0" // GSK 3-degree Gauss-Kruger zone 32
    "GSK 3-deg>\012Ga\357s-Krug\007\27033\0" // GSK 3-degree Gauss-Kruger zone 33
    "GSK 3-deg>\012Ga\357s-Krug\007\27034\0" // GSK 3-degree Gauss-Kruger zone 34
    "GSK 3-deg>\012Ga\357s-Krug\007\27035\0" // GSK 3-degree Gauss-Kruger zone 35
    "GSK 3-deg>\012Ga\357s-Krug\007\27036\0" // GSK 3-degree Gauss-Kruger zone 36
    "GSK 3-deg>\012Ga\357s-Krug\007\27037\0" // GSK 3-degree Gauss-Kruger zone 37
    "GSK 3-deg>\012Ga\357s-Krug\007\27038\0" // GSK 3-degree Gauss-Kruger zone 38
    "GSK 3-deg>\012Ga\357s-Krug\007\27039\0" // GSK 3-degree Gauss-Kruger zone 39
    "GSK 3-deg>\012Ga\357s-Krug\007\27040\0" // GSK 3-degree Gauss-Kruger zone 40
    "GSK 3-deg>\012Ga\357s-Krug\007\27041\0" // GSK 3-degree Gauss-Kruger zone 41
    "GSK 3-deg>\012Ga\357s-Krug\007\27042\0" // GSK 3-degree Gauss-Kruger zone 42
    "GSK 3-deg>\012Ga\357s-Krug\007\27043\0" // GSK 3-degree Gauss-Kruger zone 43
    "GSK 3-deg>\012Ga\357s-Krug\007\27044\0" // GSK 3-degree Gauss-Kruger zone 44
    "GSK 3-deg>\012Ga\357s-Krug\007\27045\0" // GSK 3-degree Gauss-Kruger zone 45
    "GSK 3-deg>\012Ga\357s-Krug\007\27046\0" // GSK 3-degree Gauss-Kruger zone 46
    "GSK 3-deg>\012Ga\357s-Krug\007\27047\0" // GSK 3-degree Gauss-Kruger zone 47
    "GSK 3-deg>\012Ga\357s-Krug\007\27048\0" // GSK 3-degree Gauss-Kruger zone 48
    "GSK 3-deg>\012Ga\357s-Krug\007\27049\0" // GSK 3-degree Gauss-Kruger zone 49
    "GSK 3-deg>\012Ga\357s-Krug\007\27050\0" // GSK 3-degree Gauss-Kruger zone 50
    "GSK 3-deg>\012Ga\357s-Krug\007\27051\0" // GSK 3-degree Gauss-Kruger zone 51
    "GSK 3-deg>\012Ga\357s-Krug\007\27052\0" // GSK 3-degree Gauss-Kruger zone 52
    "GSK 3-deg>\012Ga\357s-Krug\007\27053\0" // GSK 3-degree Gauss-Kruger zone 53
    "GSK 3-deg>\012Ga\357s-Krug\007\27054\0" // GSK 3-degree Gauss-Kruger zone 54
    "GSK 3-deg>\012Ga\357s-Krug\007\27055\0" // GSK 3-degree Gauss-Kruger zone 55
    "GSK 3-deg>\012Ga\357s-Krug\007\27056\0" // GSK 3-degree Gauss-Kruger zone 56
    "GSK 3-deg>\012Ga\357s-Krug\007\27057\0" // GSK 3-degree Gauss-Kruger zone 57
    "GSK 3-deg>\012Ga\357s-Krug\007\27058\0" // GSK 3-degree Gauss-Kruger zone 58
    "GSK 3-deg>\012Ga\357s-Krug\007\27059\0" // GSK 3-degree Gauss-Kruger zone 59
    "GSK 3-deg>\012Ga\357s-Krug\007\27060\0" // GSK 3-degree Gauss-Kruger zone 60
    "GSK 3-deg>\012Ga\357s-Krug\007\27061\0" // GSK 3-degree Gauss-Kruger zone 61
    "GSK 3-deg>\012Ga\357s-Krug\007\27062\0" // GSK 3-degree Gauss-Kruger zone 62
    "GSK 3-deg>\012Ga\357s-Krug\007\27063\0" // GSK 3-degree Gauss-Kruger zone 63
    "GSK 3-deg>\012Ga\357s-Krug\007\27064\0" // GSK 3-degree Gauss-Kruger zone 64
    "GSK 3-deg>\012Ga\357s-Krug\007\2707\0" // GSK 3-degree Gauss-Kruger zone 7
    "GSK 3-deg>\012Ga\357s-Krug\007\2708\0" // GSK 3-degree Gauss-Kruger zone 8
    "GSK 3-deg>\012Ga\357s-Krug\007\2709\0" // GSK 3-degree Gauss-Kruger zone 9
    "GSK-\03311\0" // GSK-2011
    "GSK-\231\011GSK 3GK\333M \3122E\0" // GSK-2011 / GSK 3GK CM 102E
    "GSK-\231\011GSK 3GK\333M \3125E\0" // GSK-2011 / GSK 3GK CM 105E
    "GSK-\231\011GSK 3GK\333M \3128E\0" // GSK-2011 / GSK 3GK CM 108E
    "GSK-\231\011GSK 3GK\333M \1771E\0" // GSK-2011 / GSK 3GK CM 111E
    "GSK-\231\011GSK 3GK\333M \1774E\0" // GSK-2011 / GSK 3GK CM 114E
    "GSK-\231\011GSK 3GK\333M \1777E\0" // GSK-2011 / GSK 3GK CM 117E
    "GSK-\231\011GSK 3GK\333M 1\033E\0" // GSK-2011 / GSK 3GK CM 120E
    "GSK-\231\011GSK 3GK\333M 123E\0" // GSK-2011 / GSK 3GK CM 123E
    "GSK-\231\011GSK 3GK\333M 126E\0" // GSK-2011 / GSK 3GK CM 126E
    "GSK-\231\011GSK 3GK\333M 129E\0" // GSK-2011 / GSK 3GK CM 129E
    "GSK-\231\011GSK 3GK\333M 132E\0" // GSK-2011 / GSK 3GK CM 132E
    "GSK-\231\011GSK 3GK\333M 135E\0" // GSK-2011 / GSK 3GK CM 135E
    "GSK-\231\011GSK 3GK\333M 138E\0" // GSK-2011 / GSK 3GK CM 138E
    "GSK-\231\011GSK 3GK\333M 141E\0" // GSK-2011 / GSK 3GK CM 141E
    "GSK-\231\011GSK 3GK\333M 144E\0" // GSK-2011 / GSK 3GK CM 144E
    "GSK-\231\011GSK 3GK\333M 147E\0" // GSK-2011 / GSK 3GK CM 147E
    "GSK-\231\011GSK 3GK\333M 150E\0" // GSK-2011 / GSK 3GK CM 150E
    "GSK-\231\011GSK 3GK\333M 153E\0" // GSK-2011 / GSK 3GK CM 153E
    "GSK-\231\011GSK 3GK\333M 156E\0" // GSK-2011 / GSK 3GK CM 156E
    "GSK-\231\011GSK 3GK\333M 159E\0" // GSK-2011 / GSK 3GK CM 159E
    "GSK-\231\011GSK 3GK\333M 162E\0" // GSK-2011 / GSK 3GK CM 162E
    "GSK-\231\011GSK 3GK\333M 165E\0" // GSK-2011 / GSK 3GK CM 165E
    "GSK-\231\011GSK 3GK\333M 168E\0" // GSK-2011 / GSK 3GK CM 168E
    "GSK-\231\011GSK 3GK\333M 168W\0" // GSK-2011 / GSK 3GK CM 168W
    "GSK-\231\011GSK 3GK\333M 171E\0" // GSK-2011 / GSK 3GK CM 171E
    "GSK-\231\011GSK 3GK\333M 171W\0" // GSK-2011 / GSK 3GK CM 171W
    "GSK-\231\011GSK 3GK\333M 174E\0" // GSK-2011 / GSK 3GK CM 174E
    "GSK-\231\011GSK 3GK\333M 174W\0" // GSK-2011 / GSK 3GK CM 174W
    "GSK-\231\011GSK 3GK\333M 177E\0" // GSK-2011 / GSK 3GK CM 177E
    "GSK-\231\011GSK 3GK\333M 177W\0" // GSK-2011 / GSK 3GK CM 177W
    "GSK-\231\011GSK 3GK\333M 180E\0" // GSK-2011 / GSK 3GK CM 180E
    "GSK-\231\011GSK 3GK\333M 21E\0" // GSK-2011 / GSK 3GK CM 21E
    "GSK-\231\011GSK 3GK\333M 24E\0" // GSK-2011 / GSK 3GK CM 24E
    "GSK-\231\011GSK 3GK\333M \313E\0" // GSK-2011 / GSK 3GK CM 27E
    "GSK-\231\011GSK 3GK\333M \375E\0" // GSK-2011 / GSK 3GK CM 30E
    "GSK-\231\011GSK 3GK\333M 33E\0" // GSK-2011 / GSK 3GK CM 33E
    "GSK-\231\011GSK 3GK\333M 36E\0" // GSK-2011 / GSK 3GK CM 36E
    "GSK-\231\011GSK 3GK\333M 39E\0" // GSK-2011 / GSK 3GK CM 39E
    "GSK-\231\011GSK 3GK\333M 42E\0" // GSK-2011 / GSK 3GK CM 42E
    "GSK-\231\011GSK 3GK\333M 45E\0" // GSK-2011 / GSK 3GK CM 45E
    "GSK-\231\011GSK 3GK\333M 48E\0" // GSK-2011 / GSK 3GK CM 48E
    "GSK-\231\011GSK 3GK\333M 51E\0" // GSK-2011 / GSK 3GK CM 51E
    "GSK-\231\011GSK 3GK\333M 54E\0" // GSK-2011 / GSK 3GK CM 54E
    "GSK-\231\011GSK 3GK\333M 57E\0" // GSK-2011 / GSK 3GK CM 57E
    "GSK-\231\011GSK 3GK\333M 60E\0" // GSK-2011 / GSK 3GK CM 60E
    "GSK-\231\011GSK 3GK\333M 63E\0" // GSK-2011 / GSK 3GK CM 63E
    "GSK-\231\011GSK 3GK\333M 66E\0" // GSK-2011 / GSK 3GK CM 66E
    "GSK-\231\011GSK 3GK\333M 69E\0" // GSK-2011 / GSK 3GK CM 69E
    "GSK-\231\011GSK 3GK\333M 72E\0" // GSK-2011 / GSK 3GK CM 72E
    "GSK-\231\011GSK 3GK\333M 75E\0" // GSK-2011 / GSK 3GK CM 75E
    "GSK-\231\011GSK 3GK\333M 78E\0" // GSK-2011 / GSK 3GK CM 78E
    "GSK-\231\011GSK 3GK\333M 81E\0" // GSK-2011 / GSK 3GK CM 81E
    "GSK-\231\011GSK 3GK\333M 84E\0" // GSK-2011 / GSK 3GK CM 84E
    "GSK-\231\011GSK 3GK\333M 87E\0" // GSK-2011 / GSK 3GK CM 87E
    "GSK-\231\011GSK 3GK\333M 90E\0" // GSK-2011 / GSK 3GK CM 90E
    "GSK-\231\011GSK 3GK\333M 93E\0" // GSK-2011 / GSK 3GK CM 93E
    "GSK-\231\011GSK 3GK\333M 96E\0" // GSK-2011 / GSK 3GK CM 96E
    "GSK-\231\011GSK 3GK\333M 99E\0" // GSK-2011 / GSK 3GK CM 99E
    "GSK-\231\011GSK 3GK\27010\0" // GSK-2011 / GSK 3GK zone 10
    "GSK-\231\011GSK 3GK\27011\0" // GSK-2011 / GSK 3GK zone 11
    "GSK-\231\011GSK 3GK\27012\0" // GSK-2011 / GSK 3GK zone 12
    "GSK-\231\011GSK 3GK\27013\0" // GSK-2011 / GSK 3GK zone 13
    "GSK-\231\011GSK 3GK\27014\0" // GSK-2011 / GSK 3GK zone 14
    "GSK-\231\011GSK 3GK\27015\0" // GSK-2011 / GSK 3GK zone 15
    "GSK-\231\011GSK 3GK\27016\0" // GSK-2011 / GSK 3GK zone 16
    "GSK-\231\011GSK 3GK\27017\0" // GSK-2011 / GSK 3GK zone 17
    "GSK-\231\011GSK 3GK\27018\0" // GSK-2011 / GSK 3GK zone 18
    "GSK-\231\011GSK 3GK\27019\0" // GSK-2011 / GSK 3GK zone 19
    "GSK-\231\011GSK 3GK\27020\0" // GSK-2011 / GSK 3GK zone 20
    "GSK-\231\011GSK 3GK\27021\0" // GSK-2011 / GSK 3GK zone 21
    "GSK-\231\011GSK 3GK\27022\0" // GSK-2011 / GSK 3GK zone 22
    "GSK-\231\011GSK 3GK\27023\0" // GSK-2011 / GSK 3GK zone 23
    "GSK-\231\011GSK 3GK\27024\0" // GSK-2011 / GSK 3GK zone 24
    "GSK-\231\011GSK 3GK\27025\0" // GSK-2011 / GSK 3GK zone 25
    "GSK-\231\011GSK 3GK\27026\0" // GSK-2011 / GSK 3GK zone 26
    "GSK-\231\011GSK 3GK\27027\0" // GSK-2011 / GSK 3GK zone 27
    "GSK-\231\011GSK 3GK\27028\0" // GSK-2011 / GSK 3GK zone 28
    "GSK-\231\011GSK 3GK\27029\0" // GSK-2011 / GSK 3GK zone 29
    "GSK-\231\011GSK 3GK\27030\0" // GSK-2011 / GSK 3GK zone 30
    "GSK-\231\011GSK 3GK\27031\0" // GSK-2011 / GSK 3GK zone 31
    "GSK-\231\011GSK 3GK\27032\0" // GSK-2011 / GSK 3GK zone 32
    "GSK-\231\011GSK 3GK\27033\0" // GSK-2011 / GSK 3GK zone 33
    "GSK-\231\011GSK 3GK\27034\0" // GSK-2011 / GSK 3GK zone 34
    "GSK-\231\011GSK 3GK\27035\0" // GSK-2011 / GSK 3GK zone 35
    "GSK-\231\011GSK 3GK\27036\0" // GSK-2011 / GSK 3GK zone 36
    "GSK-\231\011GSK 3GK\27037\0" // GSK-2011 / GSK 3GK zone 37
    "GSK-\231\011GSK 3GK\27038\0" // GSK-2011 / GSK 3GK zone 38
    "GSK-\231\011GSK 3GK\27039\0" // GSK-2011 / GSK 3GK zone 39
    "GSK-\231\011GSK 3GK\27040\0" // GSK-2011 / GSK 3GK zone 40
    "GSK-\231\011GSK 3GK\27041\0" // GSK-2011 / GSK 3GK zone 41
    "GSK-\231\011GSK 3GK\27042\0" // GSK-2011 / GSK 3GK zone 42
    "GSK-\231\011GSK 3GK\27043\0" // GSK-2011 / GSK 3GK zone 43
    "GSK-\231\011GSK 3GK\27044\0" // GSK-2011 / GSK 3GK zone 44
    "GSK-\231\011GSK 3GK\27045\0" // GSK-2011 / GSK 3GK zone 45
    "GSK-\231\011GSK 3GK\27046\0" // GSK-2011 / GSK 3GK zone 46
    "GSK-\231\011GSK 3GK\27047\0" // GSK-2011 / GSK 3GK zone 47
    "GSK-\231\011GSK 3GK\27048\0" // GSK-2011 / GSK 3GK zone 48
    "GSK-\231\011GSK 3GK\27049\0" // GSK-2011 / GSK 3GK zone 49
    "GSK-\231\011GSK 3GK\27050\0" // GSK-2011 / GSK 3GK zone 50
    "GSK-\231\011GSK 3GK\27051\0" // GSK-2011 / GSK 3GK zone 51
    "GSK-\231\011GSK 3GK\27052\0" // GSK-2011 / GSK 3GK zone 52
    "GSK-\231\011GSK 3GK\27053\0" // GSK-2011 / GSK 3GK zone 53
    "GSK-\231\011GSK 3GK\27054\0" // GSK-2011 / GSK 3GK zone 54
    "GSK-\231\011GSK 3GK\27055\0" // GSK-2011 / GSK 3GK zone 55
    "GSK-\231\011GSK 3GK\27056\0" // GSK-2011 / GSK 3GK zone 56
    "GSK-\231\011GSK 3GK\27057\0" // GSK-2011 / GSK 3GK zone 57
    "GSK-\231\011GSK 3GK\27058\0" // GSK-2011 / GSK 3GK zone 58
    "GSK-\231\011GSK 3GK\27059\0" // GSK-2011 / GSK 3GK zone 59
    "GSK-\231\011GSK 3GK\27060\0" // GSK-2011 / GSK 3GK zone 60
    "GSK-\231\011GSK 3GK\27061\0" // GSK-2011 / GSK 3GK zone 61
    "GSK-\231\011GSK 3GK\27062\0" // GSK-2011 / GSK 3GK zone 62
    "GSK-\231\011GSK 3GK\27063\0" // GSK-2011 / GSK 3GK zone 63
    "GSK-\231\011GSK 3GK\27064\0" // GSK-2011 / GSK 3GK zone 64
    "GSK-\231\011GSK 3GK\2707\0" // GSK-2011 / GSK 3GK zone 7
    "GSK-\231\011GSK 3GK\2708\0" // GSK-2011 / GSK 3GK zone 8
    "GSK-\231\011GSK 3GK\2709\0" // GSK-2011 / GSK 3GK zone 9
    "GSK-\231\011Ga\357s-Krug\007\333M \3125E\0" // GSK-2011 / Gauss-Kruger CM 105E
    "GSK-\231\011Ga\357s-Krug\007\333M \1771E\0" // GSK-2011 / Gauss-Kruger CM 111E
    "GSK-\231\011Ga\357s-Krug\007\333M \1777E\0" // GSK-2011 / Gauss-Kruger CM 117E
    "GSK-\231\011Ga\357s-Krug\007\333M 123E\0" // GSK-2011 / Gauss-Kruger CM 123E
    "GSK-\231\011Ga\357s-Krug\007\333M 129E\0" // GSK-2011 / Gauss-Kruger CM 129E
    "GSK-\231\011Ga\357s-Krug\007\333M 135E\0" // GSK-2011 / Gauss-Kruger CM 135E
    "GSK-\231\011Ga\357s-Krug\007\333M 141E\0" // GSK-2011 / Gauss-Kruger CM 141E
    "GSK-\231\011Ga\357s-Krug\007\333M 147E\0" // GSK-2011 / Gauss-Kruger CM 147E
    "GSK-\231\011Ga\357s-Krug\007\333M 153E\0" // GSK-2011 / Gauss-Kruger CM 153E
    "GSK-\231\011Ga\357s-Krug\007\333M 159E\0" // GSK-2011 / Gauss-Kruger CM 159E
    "GSK-\231\011Ga\357s-Krug\007\333M 165E\0" // GSK-2011 / Gauss-Kruger CM 165E
    "GSK-\231\011Ga\357s-Krug\007\333M 171E\0" // GSK-2011 / Gauss-Kruger CM 171E
    "GSK-\231\011Ga\357s-Krug\007\333M 171W\0" // GSK-2011 / Gauss-Kruger CM 171W
    "GSK-\231\011Ga\357s-Krug\007\333M 177E\0" // GSK-2011 / Gauss-Kruger CM 177E
    "GSK-\231\011Ga\357s-Krug\007\333M 177W\0" // GSK-2011 / Gauss-Kruger CM 177W
    "GSK-\231\011Ga\357s-Krug\007\333M 21E\0" // GSK-2011 / Gauss-Kruger CM 21E
    "GSK-\231\011Ga\357s-Krug\007\333M \313E\0" // GSK-2011 / Gauss-Kruger CM 27E
    "GSK-\231\011Ga\357s-Krug\007\333M 33E\0" // GSK-2011 / Gauss-Kruger CM 33E
    "GSK-\231\011Ga\357s-Krug\007\333M 39E\0" // GSK-2011 / Gauss-Kruger CM 39E
    "GSK-\231\011Ga\357s-Krug\007\333M 45E\0" // GSK-2011 / Gauss-Kruger CM 45E
    "GSK-\231\011Ga\357s-Krug\007\333M 51E\0" // GSK-2011 / Gauss-Kruger CM 51E
    "GSK-\231\011Ga\357s-Krug\007\333M 57E\0" // GSK-2011 / Gauss-Kruger CM 57E
    "GSK-\231\011Ga\357s-Krug\007\333M 63E\0" // GSK-2011 / Gauss-Kruger CM 63E
    "GSK-\231\011Ga\357s-Krug\007\333M 69E\0" // GSK-2011 / Gauss-Kruger CM 69E
    "GSK-\231\011Ga\357s-Krug\007\333M 75E\0" // GSK-2011 / Gauss-Kruger CM 75E
    "GSK-\231\011Ga\357s-Krug\007\333M 81E\0" // GSK-2011 / Gauss-Kruger CM 81E
    "GSK-\231\011Ga\357s-Krug\007\333M 87E\0" // GSK-2011 / Gauss-Kruger CM 87E
    "GSK-\231\011Ga\357s-Krug\007\333M 93E\0" // GSK-2011 / Gauss-Kruger CM 93E
    "GSK-\231\011Ga\357s-Krug\007\333M 99E\0" // GSK-2011 / Gauss-Kruger CM 99E
    "GSK-\231\011Ga\357s-Krug\007\27010\0" // GSK-2011 / Gauss-Kruger zone 10
    "GSK-\231\011Ga\357s-Krug\007\27011\0" // GSK-2011 / Gauss-Kruger zone 11
    "GSK-\231\011Ga\357s-Krug\007\27012\0" // GSK-2011 / Gauss-Kruger zone 12
    "GSK-\231\011Ga\357s-Krug\007\27013\0" // GSK-2011 / Gauss-Kruger zone 13
    "GSK-\231\011Ga\357s-Krug\007\27014\0" // GSK-2011 / Gauss-Kruger zone 14
    "GSK-\231\011Ga\357s-Krug\007\27015\0" // GSK-2011 / Gauss-Kruger zone 15
    "GSK-\231\011Ga\357s-Krug\007\27016\0" // GSK-2011 / Gauss-Kruger zone 16
    "GSK-\231\011Ga\357s-Krug\007\27017\0" // GSK-2011 / Gauss-Kruger zone 17
    "GSK-\231\011Ga\357s-Krug\007\27018\0" // GSK-2011 / Gauss-Kruger zone 18
    "GSK-\231\011Ga\357s-Krug\007\27019\0" // GSK-2011 / Gauss-Kruger zone 19
    "GSK-\231\011Ga\357s-Krug\007\27020\0" // GSK-2011 / Gauss-Kruger zone 20
    "GSK-\231\011Ga\357s-Krug\007\27021\0" // GSK-2011 / Gauss-Kruger zone 21
    "GSK-\231\011Ga\357s-Krug\007\27022\0" // GSK-2011 / Gauss-Kruger zone 22
    "GSK-\231\011Ga\357s-Krug\007\27023\0" // GSK-2011 / Gauss-Kruger zone 23
    "GSK-\231\011Ga\357s-Krug\007\27024\0" // GSK-2011 / Gauss-Kruger zone 24
    "GSK-\231\011Ga\357s-Krug\007\27025\0" // GSK-2011 / Gauss-Kruger zone 25
    "GSK-\231\011Ga\357s-Krug\007\27026\0" // GSK-2011 / Gauss-Kruger zone 26
    "GSK-\231\011Ga\357s-Krug\007\27027\0" // GSK-2011 / Gauss-Kruger zone 27
    "GSK-\231\011Ga\357s-Krug\007\27028\0" // GSK-2011 / Gauss-Kruger zone 28
    "GSK-\231\011Ga\357s-Krug\007\27029\0" // GSK-2011 / Gauss-Kruger zone 29
    "GSK-\231\011Ga\357s-Krug\007\27030\0" // GSK-2011 / Gauss-Kruger zone 30
    "GSK-\231\011Ga\357s-Krug\007\27031\0" // GSK-2011 / Gauss-Kruger zone 31
    "GSK-\231\011Ga\357s-Krug\007\27032\0" // GSK-2011 / Gauss-Kruger zone 32
    "GSK-\231\011Ga\357s-Krug\007\2704\0" // GSK-2011 / Gauss-Kruger zone 4
    "GSK-\231\011Ga\357s-Krug\007\2705\0" // GSK-2011 / Gauss-Kruger zone 5
    "GSK-\231\011Ga\357s-Krug\007\2706\0" // GSK-2011 / Gauss-Kruger zone 6
    "GSK-\231\011Ga\357s-Krug\007\2707\0" // GSK-2011 / Gauss-Kruger zone 7
    "GSK-\231\011Ga\357s-Krug\007\2708\0" // GSK-2011 / Gauss-Kruger zone 8
    "GSK-\231\011Ga\357s-Krug\007\2709\0" // GSK-2011 / Gauss-Kruger zone 9
    "Gab\003\0" // Gabon
    "Gab\003\002n\006`\252equ<\006 \301w\275\25212\360\237\0" // Gabon - north of equator and west of 12°E onshore
    "Gab\003\002\237\0" // Gabon - onshore
    "Gab\003\002w\275\25212\015\0" // Gabon - west of 12°E
    "Gab\222Tr\005sv\220\012M\007c<\006\0" // Gabon Transverse Mercator
    "Gab\222Tr\005sv\220\012M\007c<\006 \03311\0" // Gabon Transverse Mercator 2011
    "G\232bia\0" // Gambia
    "G\232b\215\237\0" // Gambia - onshore
    "G\005\32070\0" // Gan 1970
    "G\005\21270\0" // Gan_1970
    "G\035ajika\0" // Gandajika
    "G\035ajik\030\03170\0" // Gandajika 1970
    "G\035ajika\21270\0" // Gandajika_1970
    "G#\025a\0" // Garoua
    "G#\025a\011U\250\27033N\0" // Garoua / UTM zone 33N
    "G#\025\253U\376Z\003\20733N\0" // Garoua_UTM_Zone_33N
    "G\201\253\250\0" // Gasa_TM
    "Ga\357s-Krug\007\333ABA \03319\0" // Gauss-Kruger CABA 2019
    "Ga\357s_Z\003\207A\0" // Gauss_Zone_A
    "Ga\357s_Z\003\207B\0" // Gauss_Zone_B
    "Ga\357s_Z\003\207C\0" // Gauss_Zone_C
    "Ga\357s_Z\003\207D\0" // Gauss_Zone_D
    "Gawl\007\374\342cu\243\0" // Gawler_Circuit
    "Geb\370uchsn\036z M28\0" // Gebrauchsnetz M28
    "Geb\370uchsn\036z M31\0" // Gebrauchsnetz M31
    "Geb\370uchsn\036z M34\0" // Gebrauchsnetz M34
    "G\210uk\0" // Genuk
    "G\210uk\205Jak#ta)\0" // Genuk (Jakarta)
    "Geoc\365$ D<um Brunei D#\357s\026\232 \2279\0" // Geocentric Datum Brunei Darussalam 2009
    "Geoc\365$ D<um \252Au\021r\026\314\03194\0" // Geocentric Datum of Australia 1994
    "Geoc\365$ D<um \252Au\021r\026\314\03320\0" // Geocentric Datum of Australia 2020
    "Geoc\365$ d<um \252K\202a\0" // Geocentric datum of Korea
    "Geod\036$ D<um \252\03165\0" // Geodetic Datum of 1965
    "Geod\036$ D<um \252M\026ays\314\2270\0" // Geodetic Datum of Malaysia 2000
    "Geodez$h\242kay\030Si\021\206\030Ko\006d\024< \03311\0" // Geodezicheskaya Sistema Koordinat 2011
    "Geodez$h\242kay\253Si\021\206\253Ko\006d\024<_\03311\0" // Geodezicheskaya_Sistema_Koordinat_2011
    "Ge\006g\314@\313 E\315!e\0" // Georgia CS27 East zone
    "Ge\006g\314@\313 W\275!e\0" // Georgia CS27 West zone
    "Ge\006gi\253Ea\021\267\31201\0" // Georgia_East_FIPS_1001
    "Ge\006gi\253Ea\021\267\31201\366\0" // Georgia_East_FIPS_1001_Feet
    "Ge\006gi\253Ea\021\267\31201\134t_\204\0" // Georgia_East_FIPS_1001_Ft_US
    "Ge\006gi\253We\021\267\31202\0" // Georgia_West_FIPS_1002
    "Ge\006gi\253We\021\267\31202\366\0" // Georgia_West_FIPS_1002_Feet
    "Ge\006gi\253We\021\267\31202\134t_\204\0" // Georgia_West_FIPS_1002_Ft_US
    "Geosci\210c\012Au\021r\026\314St\035#d N<\321\026{c\026\012L\232b\007t Proje\317\321\0" // Geoscience Australia Standard National Scale Lambert Projection
    "Geosci\210c\207Au\021r\026i\253L\232b\007t\0" // Geoscience_Australia_Lambert
    "G\007\026dt\222Coa\021\223Gr\257\0" // Geraldton Coastal Grid
    "G\007m\005 leg\223m\036>\0" // German legal metre
    "G\007m\005y\0026\3452\015\0" // Germany - 6°E to 12°E
    "G\007m\005y\002B\007l\024\0" // Germany - Berlin
    "G\007m\005y\002E\315G\007m\005y\002w\275\252\312\224\015\0" // Germany - East Germany - west of 10.5°E
    "G\007m\005y\002E\315G\007m\005y\002w\275\25212\015\0" // Germany - East Germany - west of 12°E
    "G\007m\005y\002H\232b\225g\0" // Germany - Hamburg
    "G\007m\005y\002Sax\003y\0" // Germany - Saxony
    "G\007m\005y\002Sax\003y\002e\315\25213\224\015\0" // Germany - Saxony - east of 13.5°E
    "G\007m\005y\002Sax\003y\002w\275\25213\224\015\0" // Germany - Saxony - west of 13.5°E
    "G\007m\005y\002Th\225\024g\210\0" // Germany - Thuringen
    "G\007m\005y\002Th\225\024g\210\002e\315\252\312\224\015\0" // Germany - Thuringen - east of 10.5°E
    "G\007m\005y\002Th\225\024g\210\002w\275\252\312\224\015\0" // Germany - Thuringen - west of 10.5°E
    "G\007m\005y\002W\275G\007m\005y\002\312\224\3453\224\015\0" // Germany - West Germany - 10.5°E to 13.5°E
    "G\007m\005y\002W\275G\007m\005y\002e\315\25213\224\015\0" // Germany - West Germany - east of 13.5°E
    "G\007m\005y\002W\275G\007m\005y\002w\275\2527\224\015\0" // Germany - West Germany - west of 7.5°E
    "G\007m\005y\002W\275G\007m\005\200\026l \021<\242\0" // Germany - West Germany all states
    "G\007m\005y\002We\021-G\007m\005y\0027\224}\312\224\015\0" // Germany - West-Germany - 7.5°E to 10.5°E
    "G\007m\005y\002e\315\25212\015\0" // Germany - east of 12°E
    "G\007m\005y\002\216f^\006\012\324Se\030w\275\2524\224\015\0" // Germany - offshore North Sea west of 4.5°E
    "G\007m\005y\002\237\0" // Germany - onshore
    "G\007m\005y\002\213\006\012\312\224\3453\224\015\0" // Germany - onshore 10.5°E to 13.5°E
    "G\007m\005y\002\213\006\0127\224}\312\224\015\0" // Germany - onshore 7.5°E to 10.5°E
    "G\007m\005y\002\213\006\012e\315\25213\224\015\0" // Germany - onshore east of 13.5°E
    "G\007m\005y\002w\275\2524\224\015\0" // Germany - west of 4.5°E
    "G\007m\005y\002w\275\2526\015\0" // Germany - west of 6°E
    "Gh\005a\0" // Ghana
    "Gh\005\034\216f^\202\0" // Ghana - offshore
    "Gh\005\034\237\0" // Ghana - onshore
    "Gh\005\253M\036>_Gr\257\0" // Ghana_Metre_Grid
    "Gibs\003_(ft\204)\0" // Gibson_(ftUS)
    "Gibs\003_(m)\0" // Gibson_(m)
    "Go\030\334F \250\0" // Goa NSF TM
    "G\247d\333o\315fo\350\0" // Gold Coast foot
    "G\247d\374oa\021\0" // Gold_Coast
    "G\247dfi\240ds Gr\257 \03320\0" // Goldfields Grid 2020
    "Googl\012Maps Glob\223M\007c<\006\0" // Google Maps Global Mercator
    "Gr\301Caym\005\32059\0" // Grand Cayman 1959
    "Gr\301Caym\005\32059\011U\250\27017N\0" // Grand Cayman 1959 / UTM zone 17N
    "Gr\301Caym\005 Geod\036$ D<um\32059\0" // Grand Cayman Geodetic Datum 1959
    "Gr\301Caym\005 N<\321\223Gr\257\32059\0" // Grand Cayman National Grid 1959
    "Gr\301C\344\006os\0" // Grand Comoros
    "Gr\301C\344\006os\011U\250\27038S\0" // Grand Comoros / UTM zone 38S
    "Gr\035\374aym\005\21259\0" // Grand_Cayman_1959
    "Gr\035\374aym\005\21259_U\376Z\003\20717N\0" // Grand_Cayman_1959_UTM_Zone_17N
    "Gr\035\374aym\005_N<\321\026_Gr\257\21259\0" // Grand_Cayman_National_Grid_1959
    "Gr\035\374\344\006os\0" // Grand_Comoros
    "Gr\035\374\344\006os_U\37638S\0" // Grand_Comoros_UTM_38S
    "Gr\005t_(ft\204)\0" // Grant_(ftUS)
    "Gr\005t_(m)\0" // Grant_(m)
    "Gr\005t\374\025\032y\366\0" // Grant_County_Feet
    "Gr\005t\374\025\032y_M\311\0" // Grant_County_Meters
    "Gr\005t\366\0" // Grant_Feet
    "Gr\005t_M\311\0" // Grant_Meters
    "G><_Lak\242_B\201\024_Alb\220\0" // Great_Lakes_Basin_Albers
    "G><_Lak\242_\035_St_Law>nc\207Alb\220\0" // Great_Lakes_and_St_Lawrence_Albers
    "G>ec\226\237\0" // Greece - onshore
    "G>ek\0" // Greek
    "G>ek\205A\023\210s)\0" // Greek (Athens)
    "G>ek Geod\036$ Ref\007\210c\012Sy\021\206\32087\0" // Greek Geodetic Reference System 1987
    "G>ek_A\023\210s\0" // Greek_Athens
    "G>ek_Gr\257\0" // Greek_Grid
    "G>\210_Lak\207\035_M#qu\036te\366\0" // Green_Lake_and_Marquette_Feet
    "G>\210_Lak\207\035_M#qu\036t\207M\311\0" // Green_Lake_and_Marquette_Meters
    "G>\210_\035_Lafay\036te\366\0" // Green_and_Lafayette_Feet
    "G>\210_\035_Lafay\036t\207M\311\0" // Green_and_Lafayette_Meters
    "G>\210\211\0" // Greenland
    "G>\210\211\00212\2176\037\0" // Greenland - 12°W to 6°W
    "G>\210\211\00218\21712\037\0" // Greenland - 18°W to 12°W
    "G>\210\211\00224\21718\037\0" // Greenland - 24°W to 18°W
    "G>\210\211\002\375\21724\037\0" // Greenland - 30°W to 24°W
    "G>\210\211\00236\217\375\037\0" // Greenland - 36°W to 30°W
    "G>\210\211\00242\21736\037\0" // Greenland - 42°W to 36°W
    "G>\210\211\00248\21742\037\0" // Greenland - 48°W to 42°W
    "G>\210\211\00254\21748\037\0" // Greenland - 54°W to 48°W
    "G>\210\211\00260\21754\037\0" // Greenland - 60°W to 54°W
    "G>\210\211\00266\21760\037\0" // Greenland - 66°W to 60°W
    "G>\210\211\00272\21766\037\0" // Greenland - 72°W to 66°W
    "G>\210\211\002Amm\201s\026ik #ea\0" // Greenland - Ammassalik area
    "G>\210\211\002Sc\202sbysund #ea\0" // Greenland - Scoresbysund area
    "G>\210\211\002ea\021\00272\004N\02275\004N\0" // Greenland - east - 72°N to 75°N
    "G>\210\211\002ea\021\00275\004N\02278\004N\0" // Greenland - east - 75°N to 78°N
    "G>\210\211\002ea\021\00278\004N\02281\004N\0" // Greenland - east - 78°N to 81°N
    "G>\210\211\002e\315coa\021\00268\004N\02269\004N\0" // Greenland - east coast - 68°N to 69°N
    "G>\210\211\002e\315coa\021\00269\004N\02272\004N\0" // Greenland - east coast - 69°N to 72°N
    "G>\210\211\002n\006`\25281\004N\0" // Greenland - north of 81°N
    "G>\210\211\002s\362w\275co\31554\21748\037\0" // Greenland - southwest coast 54°W to 48°W
    "G>\210\211\002s\362w\275co\315e\315\25248\037\0" // Greenland - southwest coast east of 48°W
    "G>\210\211\002s\362w\275co\315s\246\25263\004N\0" // Greenland - southwest coast south of 63°N
    "G>\210\211\002w\275coa\021\0" // Greenland - west coast
    "G>\210\211\002w\275coa\021\00263\004N\02266\004N\0" // Greenland - west coast - 63°N to 66°N
    "G>\210\211\002w\275coa\021\00266\004N\02269\004N\0" // Greenland - west coast - 66°N to 69°N
    "G>\210\211\002w\275coa\021\00269\004N\02272\004N\0" // Greenland - west coast - 69°N to 72°N
    "G>\210\211\002w\275coa\021\00272\004N\02275\004N\0" // Greenland - west coast - 72°N to 75°N
    "G>\210\211\002w\275coa\021\00275\004N\02278\004N\0" // Greenland - west coast - 75°N to 78°N
    "G>\210\211\002w\275coa\021\00278\004N\02279\004N\0" // Greenland - west coast - 78°N to 79°N
    "G>\210\211\002w\275\25272\037\0" // Greenland - west of 72°W
    "G>\210\211 \03196\0" // Greenland 1996
    "G>\210\211_\03196\0" // Greenland_1996
    "G>\210\211\21296_U\376Z\003\207\0" // Greenland_1996_UTM_Zone_
    "G>n\274\030\03153\0" // Grenada 1953
    "G>n\274\030\03153\011Br\243=h W\275\355i\242 Gr\257\0" // Grenada 1953 / British West Indies Grid
    "G>n\274\030\301s\362\007n G>n\274\024\242\002\237\0" // Grenada and southern Grenadines - onshore
    "G>n\274a\21253\0" // Grenada_1953
    "G>n\274a\21253_Br\243=h_We\021_\355i\242_Gr\257\0" // Grenada_1953_British_West_Indies_Grid
    "G>y\374\342cu\243\0" // Grey_Circuit
    "Gr\257_M1\0" // Grid_M1
    "Gr\257_M3\0" // Grid_M3
    "Gr\257_\250\0" // Grid_TM
    "Gu\274\240\025p\226Gr\035e-T\007r\012\301s\225r\025nd\024g =\211s\002\237\0" // Guadeloupe - Grande-Terre and surrounding islands - onshore
    "Gu\274\240\025p\226St M#t\024 \035{t B#\023\240\206y\002\237\0" // Guadeloupe - St Martin and St Barthelemy - onshore
    "Gu\274\240\025p\012\03148\0" // Guadeloupe 1948
    "Gu\274\240\025p\012\03148\011U\250\270\033N\0" // Guadeloupe 1948 / UTM zone 20N
    "Gu\232\002\237\0" // Guam - onshore
    "Gu\232\32063\0" // Guam 1963
    "Gu\232\32063\011Gu\232{P@\0" // Guam 1963 / Guam SPCS
    "Gu\232\32063\011Yap \352s\0" // Guam 1963 / Yap Islands
    "Gu\232 Geod\036$ N\036w\006k \03193\0" // Guam Geodetic Network 1993
    "Gu\232\21263\0" // Guam_1963
    "Gu\232\21263_Yap_\352s\0" // Guam_1963_Yap_Islands
    "Gu<\206\026\034n\006`\25215\00451'\375\042N\0" // Guatemala - north of 15°51'30"N
    "Gu<\206\026\034s\246\25215\00451'\375\042N\0" // Guatemala - south of 15°51'30"N
    "Gu<\206\026\253\203te\0" // Guatemala_Norte
    "Gu<\206\026\253S\225\0" // Guatemala_Sur
    "Gu\007nsey_Gr\257\0" // Guernsey_Grid
    "Gu\024e\034e\315\25212\037\0" // Guinea - east of 12°W
    "Gu\024e\034\237\0" // Guinea - onshore
    "Gu\024e\034w\275\25212\037\0" // Guinea - west of 12°W
    "Gu\024ea-B=sau\002\237\0" // Guinea-Bissau - onshore
    "Guj#< \334F LCC\0" // Gujarat NSF LCC
    "Gul^\005 \3753\0" // Gulshan 303
    "Gul^\005 \3753\011B\005gl\274e^ Tr\005sv\220\012M\007c<\006\0" // Gulshan 303 / Bangladesh Transverse Mercator
    "Gul^\005 \3753\011\250 90 NE\0" // Gulshan 303 / TM 90 NE
    "Gul^\005_\3753\0" // Gulshan_303
    "Gul^\005_\3753_B\005gl\274e^_\250\0" // Gulshan_303_Bangladesh_TM
    "Gul^\005_\3753_B\005gl\274e^_Tr\005sv\220\207M\007c<\006\0" // Gulshan_303_Bangladesh_Transverse_Mercator
    "Gunung Seg#a\0" // Gunung Segara
    "Gunung Seg#\030(Jak#ta)\0" // Gunung Segara (Jakarta)
    "Gunung_Seg#a\0" // Gunung_Segara
    "Gunung_Seg#\253Jak#ta\0" // Gunung_Segara_Jakarta
    "Gunung_Seg#\253Jak#t\253NEIEZ\0" // Gunung_Segara_Jakarta_NEIEZ
    "Gunung_Seg#\253NEIEZ\0" // Gunung_Segara_NEIEZ
    "Gunung_Seg#\253U\376Z\003\20750S\0" // Gunung_Segara_UTM_Zone_50S
    "Gu\021\007b\007g\205F\007ro)\0" // Gusterberg (Ferro)
    "Gu\021\007b\007g Gr\257\0" // Gusterberg Grid
    "Gu\021\007b\007g Gr\257\205F\007ro)\0" // Gusterberg Grid (Ferro)
    "Gu\021\007b\007g(F\007ro)\0" // Gusterberg(Ferro)
    "Gu\021\007b\007g_(F\007ro)\0" // Gusterberg_(Ferro)
    "Guy\005\012Fr\005ca=e\0" // Guyane Francaise
    "Guy\005e\134r\005ca=e\0" // Guyane_Francaise
    "HD\03109\0" // HD1909
    "HD72\0" // HD72
    "HD72\011EOV\0" // HD72 / EOV
    "HK\32080 Gr\257{y\021\206\0" // HK 1980 Grid System
    "HK\03180\0" // HK1980
    "HK63\0" // HK63
    "HK63(67)\0" // HK63(67)
    "HK80\0" // HK80
    "HR\03101\0" // HR1901
    "HS2 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // HS2 Intermediate Reference Frame
    "HS2{\225ve\200Gr\257\0" // HS2 Survey Grid
    "HS2-IRF\0" // HS2-IRF
    "HS2-\250\0" // HS2-TM
    "HS2_I\032\007m\273i<\207Ref\007\210ce\134r\232e\0" // HS2_Intermediate_Reference_Frame
    "HS2_S\225vey_Gr\257\0" // HS2_Survey_Grid
    "HT|96\0" // HTRS96
    "HT|96\011Cro<\314LCC\0" // HTRS96 / Croatia LCC
    "HT|96\011Cro<\314\250\0" // HTRS96 / Croatia TM
    "HT|96\011U\250\27033N\0" // HTRS96 / UTM zone 33N
    "HT|96\011U\250\27034N\0" // HTRS96 / UTM zone 34N
    "HT|96\374ro<i\253LCC\0" // HTRS96_Croatia_LCC
    "HT|96\374ro<i\253\250\0" // HTRS96_Croatia_TM
    "HT|96_U\376Z\003\20733N\0" // HTRS96_UTM_Zone_33N
    "HT|96_U\376Z\003\20734N\0" // HTRS96_UTM_Zone_34N
    "HULLEE13 Gr\257\0" // HULLEE13 Grid
    "HULLEE13 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // HULLEE13 Intermediate Reference Frame
    "HULLEE13-IRF\0" // HULLEE13-IRF
    "HULLEE13-\250\0" // HULLEE13-TM
    "H\253\250\0" // Ha_TM
    "H\026fway_\017\212\014_\231_LCC\134t_I\032l\0" // Halfway_NAD_1983_2011_LCC_Ft_Intl
    "H\026fway_\017\212\014_\231_LCC_M\311\0" // Halfway_NAD_1983_2011_LCC_Meters
    "H\232\372t\003-Tipt\003_(ft\204)\0" // Hamilton-Tipton_(ftUS)
    "H\232\372t\003-Tipt\003_(m)\0" // Hamilton-Tipton_(m)
    "H\232p^i>\2672800\366\0" // Hampshire_FIPS_2800_Feet
    "H\005cock-M\274=\003_(ft\204)\0" // Hancock-Madison_(ftUS)
    "H\005cock-M\274=\003_(m)\0" // Hancock-Madison_(m)
    "H\005oi\32072\0" // Hanoi 1972
    "H\005oi\32072\011GK \3126 NE\0" // Hanoi 1972 / GK 106 NE
    "H\005oi\32072\011Ga\357s-Krug\007\27018\0" // Hanoi 1972 / Gauss-Kruger zone 18
    "H\005oi\32072\011Ga\357s-Krug\007\27019\0" // Hanoi 1972 / Gauss-Kruger zone 19
    "H\005oi\21272\0" // Hanoi_1972
    "H\005oi\21272_GK_\3126_NE\0" // Hanoi_1972_GK_106_NE
    "H\005oi\21272_GK_Z\003\20718\0" // Hanoi_1972_GK_Zone_18
    "H\005oi\21272_GK_Z\003\20719\0" // Hanoi_1972_GK_Zone_19
    "H#r=\003-Wa^\024gt\003_(ft\204)\0" // Harrison-Washington_(ftUS)
    "H#r=\003-Wa^\024gt\003_(m)\0" // Harrison-Washington_(m)
    "H#tebee\021hoek94\0" // Hartebeesthoek94
    "H#tebee\021hoek94\011Lo15\0" // Hartebeesthoek94 / Lo15
    "H#tebee\021hoek94\011Lo17\0" // Hartebeesthoek94 / Lo17
    "H#tebee\021hoek94\011Lo19\0" // Hartebeesthoek94 / Lo19
    "H#tebee\021hoek94\011Lo21\0" // Hartebeesthoek94 / Lo21
    "H#tebee\021hoek94\011Lo23\0" // Hartebeesthoek94 / Lo23
    "H#tebee\021hoek94\011Lo25\0" // Hartebeesthoek94 / Lo25
    "H#tebee\021hoek94\011Lo27\0" // Hartebeesthoek94 / Lo27
    "H#tebee\021hoek94\011Lo29\0" // Hartebeesthoek94 / Lo29
    "H#tebee\021hoek94\011Lo31\0" // Hartebeesthoek94 / Lo31
    "H#tebee\021hoek94\011Lo33\0" // Hartebeesthoek94 / Lo33
    "H#tebee\021hoek94\011ZAF BSU Alb\220 25E\0" // Hartebeesthoek94 / ZAF BSU Albers 25E
    "H#tebee\021hoek94\011ZAF BSU Alb\220 44E\0" // Hartebeesthoek94 / ZAF BSU Albers 44E
    "H#tebee\021hoek94_ZAF_BSU_Alb\220_25E\0" // Hartebeesthoek94_ZAF_BSU_Albers_25E
    "H#tebee\021hoek94_ZAF_BSU_Alb\220_44E\0" // Hartebeesthoek94_ZAF_BSU_Albers_44E
    "H#tebee\021hoek_\03194\0" // Hartebeesthoek_1994
    "H#y\005\030\334F LCC\0" // Haryana NSF LCC
    "Hawaii @\313\2701\0" // Hawaii CS27 zone 1
    "Hawaii @\313\2702\0" // Hawaii CS27 zone 2
    "Hawaii @\313\2703\0" // Hawaii CS27 zone 3
    "Hawaii @\313\2704\0" // Hawaii CS27 zone 4
    "Hawaii @\313\2705\0" // Hawaii CS27 zone 5
    "Hawaii_1\2675\3121\0" // Hawaii_1_FIPS_5101
    "Hawaii_2\2675\3122\0" // Hawaii_2_FIPS_5102
    "Hawaii_3\2675\3123\0" // Hawaii_3_FIPS_5103
    "Hawaii_3\2675\3123\366\0" // Hawaii_3_FIPS_5103_Feet
    "Hawaii_4\2675\3124\0" // Hawaii_4_FIPS_5104
    "Hawaii_5\2675\3125\0" // Hawaii_5_FIPS_5105
    "Hawk\242_Bay\374\342cu\243\0" // Hawkes_Bay_Circuit
    "He#d \352 \301McD\003\026d \352s\00266}72\015\0" // Heard Island and McDonald Islands - 66°E to 72°E
    "He#d \352 \301McD\003\026d \352s\00272}78\015\0" // Heard Island and McDonald Islands - 72°E to 78°E
    "He#d \352 \301McD\003\026d \352s\002e\315\25278\015\0" // Heard Island and McDonald Islands - east of 78°E
    "He#d \352 \301McD\003\026d \352s\002w\275\25266\015\0" // Heard Island and McDonald Islands - west of 66°E
    "H\240l\012\03154\0" // Helle 1954
    "H\240l\012\03154\011J\005 May\210 Gr\257\0" // Helle 1954 / Jan Mayen Grid
    "H\240l\207\03154\0" // Helle_1954
    "H\240l\207\03154_J\005_May\210_Gr\257\0" // Helle_1954_Jan_Mayen_Grid
    "H\240m\007t\32006\0" // Helmert 1906
    "H\240m\007t\21206\0" // Helmert_1906
    "H\210ry_(ft\204)\0" // Henry_(ftUS)
    "H\210ry_(m)\0" // Henry_(m)
    "H\007< \371\0" // Herat North
    "H\007<_\371\0" // Herat_North
    "Himach\223Pr\274e^ \334F LCC\0" // Himachal Pradesh NSF LCC
    "Himach\026_Pr\274e^\0" // Himachal_Pradesh
    "H\243\013XVIII\0" // Hito XVIII
    "H\243\013XVIII\32063\0" // Hito XVIII 1963
    "H\243\013XVIII\32063\011\326ge\032\024\0302\0" // Hito XVIII 1963 / Argentina 2
    "H\243\013XVIII\32063\011U\250\27019S\0" // Hito XVIII 1963 / UTM zone 19S
    "H\243o_XVIII\21263\0" // Hito_XVIII_1963
    "H\243o_XVIII\21263_\326ge\032\024\2532\0" // Hito_XVIII_1963_Argentina_2
    "H\243o_XVIII\21263_U\37619S\0" // Hito_XVIII_1963_UTM_19S
    "Hj\006se\200\03155\0" // Hjorsey 1955
    "Hj\006se\200\03155\011L\232b\007t\32055\0" // Hjorsey 1955 / Lambert 1955
    "Hj\006se\200\03155\011U\250\27026N\0" // Hjorsey 1955 / UTM zone 26N
    "Hj\006se\200\03155\011U\250\27027N\0" // Hjorsey 1955 / UTM zone 27N
    "Hj\006se\200\03155\011U\250\27028N\0" // Hjorsey 1955 / UTM zone 28N
    "Hj\006sey\21255\0" // Hjorsey_1955
    "Hj\006sey\21255_U\376Z\003\207\0" // Hjorsey_1955_UTM_Zone_
    "Hok\243ik\253C\342cu\243\0" // Hokitika_Circuit
    "H\003g K\003g\32063\0" // Hong Kong 1963
    "H\003g K\003g\32063 Gr\257\0" // Hong Kong 1963 Grid
    "H\003g K\003g\32063 Gr\257{y\021\206\0" // Hong Kong 1963 Grid System
    "H\003g K\003g\32063(67)\0" // Hong Kong 1963(67)
    "H\003g K\003g\32080\0" // Hong Kong 1980
    "H\003g K\003g\32080 Gr\257\0" // Hong Kong 1980 Grid
    "H\003g K\003g\32080 Gr\257{y\021\206\0" // Hong Kong 1980 Grid System
    "H\003g K\003g Geod\036$\0" // Hong Kong Geodetic
    "H\003g K\003g Geod\036$ @\0" // Hong Kong Geodetic CS
    "H\003g_K\003g\21263\0" // Hong_Kong_1963
    "H\003g_K\003g\21263_67\0" // Hong_Kong_1963_67
    "H\003g_K\003g\21263_Gr\257_Sy\021\206\0" // Hong_Kong_1963_Grid_System
    "H\003g_K\003g\21280\0" // Hong_Kong_1980
    "H\003g_K\003g\21280_Gr\257\0" // Hong_Kong_1980_Grid
    "H\003g_K\003g_Geod\036$\0" // Hong_Kong_Geodetic
    "H\003g_K\003g_Geod\036$_@\0" // Hong_Kong_Geodetic_CS
    "H\025gh\32060\0" // Hough 1960
    "H\025gh\21260\0" // Hough_1960
    "How#d-Mi\232i_(ft\204)\0" // Howard-Miami_(ftUS)
    "How#d-Mi\232i_(m)\0" // Howard-Miami_(m)
    "Hu Tzu{h\005\0" // Hu Tzu Shan
    "Hu Tzu{h\005\32050\0" // Hu Tzu Shan 1950
    "Hu Tzu{h\005\32050\011U\250\27051N\0" // Hu Tzu Shan 1950 / UTM zone 51N
    "Hu_Tzu_Sh\005\0" // Hu_Tzu_Shan
    "Hu_Tzu_Sh\005_U\376Z\003\20751N\0" // Hu_Tzu_Shan_UTM_Zone_51N
    "Hugh\242\32080\0" // Hughes 1980
    "Hugh\242\21280\0" // Hughes_1980
    "Hung#\335 D<um\32009\0" // Hungarian Datum 1909
    "Hung#\335 D<um\32072\0" // Hungarian Datum 1972
    "Hung#\335\21272\0" // Hungarian_1972
    "Hung#\335\21272_Egyseg\242_Orszagos_V\036ul\036i\0" // Hungarian_1972_Egyseges_Orszagos_Vetuleti
    "Hung#\335_D<um\21209\0" // Hungarian_Datum_1909
    "Hung#y\0" // Hungary
    "Hu\032\024gt\003-Wh\243ley_(ft\204)\0" // Huntington-Whitley_(ftUS)
    "Hu\032\024gt\003-Wh\243ley_(m)\0" // Huntington-Whitley_(m)
    "IAG\32075\0" // IAG 1975
    "IBCAO_P\247#_St\007eog\370\230$\0" // IBCAO_Polar_Stereographic
    "IB@O_P\247#_St\007eog\370\230$\0" // IBCSO_Polar_Stereographic
    "ID74\0" // ID74
    "ID74\011U\250\27046N\0" // ID74 / UTM zone 46N
    "ID74\011U\250\27046S\0" // ID74 / UTM zone 46S
    "ID74\011U\250\27047N\0" // ID74 / UTM zone 47N
    "ID74\011U\250\27047S\0" // ID74 / UTM zone 47S
    "ID74\011U\250\27048N\0" // ID74 / UTM zone 48N
    "ID74\011U\250\27048S\0" // ID74 / UTM zone 48S
    "ID74\011U\250\27049N\0" // ID74 / UTM zone 49N
    "ID74\011U\250\27049S\0" // ID74 / UTM zone 49S
    "ID74\011U\250\27050N\0" // ID74 / UTM zone 50N
    "ID74\011U\250\27050S\0" // ID74 / UTM zone 50S
    "ID74\011U\250\27051N\0" // ID74 / UTM zone 51N
    "ID74\011U\250\27051S\0" // ID74 / UTM zone 51S
    "ID74\011U\250\27052N\0" // ID74 / UTM zone 52N
    "ID74\011U\250\27052S\0" // ID74 / UTM zone 52S
    "ID74\011U\250\27053N\0" // ID74 / UTM zone 53N
    "ID74\011U\250\27053S\0" // ID74 / UTM zone 53S
    "ID74\011U\250\27054S\0" // ID74 / UTM zone 54S
    "IE| T\007>\021ri\223Ref\007\210c\012Fr\232\012\0" // IERS Terrestrial Reference Frame 
    "IG05\0" // IG05
    "IG05 I\032\007m\273i<\012C|\0" // IG05 Intermediate CRS
    "IG05 I\032\007m\273i<\012D<um\0" // IG05 Intermediate Datum
    "IG05(\03312)_I\032\007m\273i<\207C|\0" // IG05(2012)_Intermediate_CRS
    "IG05(\03312)_I\032\007m\273i<\207D<um\0" // IG05(2012)_Intermediate_Datum
    "IG05/12\0" // IG05/12
    "IG05/12 I\032\007m\273i<\012C|\0" // IG05/12 Intermediate CRS
    "IG05/12 I\032\007m\273i<\012D<um\0" // IG05/12 Intermediate Datum
    "IG05_I\032\007m\273i<\207C|\0" // IG05_Intermediate_CRS
    "IG05_I\032\007m\273i<\207D<um\0" // IG05_Intermediate_Datum
    "IGC\32062\0" // IGC 1962
    "IGC\32062\011C\003g\013\250\27012\0" // IGC 1962 / Congo TM zone 12
    "IGC\32062\011C\003g\013\250\27014\0" // IGC 1962 / Congo TM zone 14
    "IGC\32062\011C\003g\013\250\27016\0" // IGC 1962 / Congo TM zone 16
    "IGC\32062\011C\003g\013\250\27018\0" // IGC 1962 / Congo TM zone 18
    "IGC\32062\011C\003g\013\250\27020\0" // IGC 1962 / Congo TM zone 20
    "IGC\32062\011C\003g\013\250\27022\0" // IGC 1962 / Congo TM zone 22
    "IGC\32062\011C\003g\013\250\27024\0" // IGC 1962 / Congo TM zone 24
    "IGC\32062\011C\003g\013\250\27026\0" // IGC 1962 / Congo TM zone 26
    "IGC\32062\011C\003g\013\250\27028\0" // IGC 1962 / Congo TM zone 28
    "IGC\32062\011C\003g\013\250\27030\0" // IGC 1962 / Congo TM zone 30
    "IGC\32062 6`P#\026l\240{\362\0" // IGC 1962 6th Parallel South
    "IGC\32062 \326c \216\020h\0126`P#\026l\240{\362\0" // IGC 1962 Arc of the 6th Parallel South
    "IGCB\32055\0" // IGCB 1955
    "IGCB\32055\011C\003g\013\250\27012\0" // IGCB 1955 / Congo TM zone 12
    "IGCB\32055\011C\003g\013\250\27014\0" // IGCB 1955 / Congo TM zone 14
    "IGCB\32055\011C\003g\013\250\27016\0" // IGCB 1955 / Congo TM zone 16
    "IGCB\32055\011U\250\27033S\0" // IGCB 1955 / UTM zone 33S
    "IGCB\21255\0" // IGCB_1955
    "IGCB\21255\374\003go_\376Z\003\207\0" // IGCB_1955_Congo_TM_Zone_
    "IGCB\21255_U\376Z\003\20733S\0" // IGCB_1955_UTM_Zone_33S
    "IGC\21262_6\023_P#\026l\240_S\362\0" // IGC_1962_6th_Parallel_South
    "IGC\21262_\326c_\216_\023\2076\023_P#\026l\240_S\362\0" // IGC_1962_Arc_of_the_6th_Parallel_South
    "IGC\21262\374\003go_\376Z\003\207\0" // IGC_1962_Congo_TM_Zone_
    "IGD05\0" // IGD05
    "IGD05(\03312)\0" // IGD05(2012)
    "IGD05/12\0" // IGD05/12
    "IGD95\0" // IGD95
    "IGM95\0" // IGM95
    "IGM95\011U\250\27032N\0" // IGM95 / UTM zone 32N
    "IGM95\011U\250\27033N\0" // IGM95 / UTM zone 33N
    "IGM95\011U\250\27034N\0" // IGM95 / UTM zone 34N
    "IGM\21295\0" // IGM_1995
    "IGM\21295_U\376Z\003\20732N\0" // IGM_1995_UTM_Zone_32N
    "IGM\21295_U\376Z\003\20733N\0" // IGM_1995_UTM_Zone_33N
    "IGN\32052\0" // IGN 1952
    "IGN\32062 K\007gu\240\210\0" // IGN 1962 Kerguelen
    "IGN\32062 K\007gu\240\210\011U\250\27042S\0" // IGN 1962 Kerguelen / UTM zone 42S
    "IGN A\021r\013\03160\0" // IGN Astro 1960
    "IGN A\021r\013\03160\011U\250\27028N\0" // IGN Astro 1960 / UTM zone 28N
    "IGN A\021r\013\03160\011U\250\27029N\0" // IGN Astro 1960 / UTM zone 29N
    "IGN A\021r\013\03160\011U\250\270\375N\0" // IGN Astro 1960 / UTM zone 30N
    "IGN50\0" // IGN50
    "IGN53 M#e\0" // IGN53 Mare
    "IGN53 M#e\011U\250\27058S\0" // IGN53 Mare / UTM zone 58S
    "IGN53 M#e\011U\250\27059S\0" // IGN53 Mare / UTM zone 59S
    "IGN53_M#e\0" // IGN53_Mare
    "IGN53_M#\207U\37658S\0" // IGN53_Mare_UTM_58S
    "IGN53_M#\207U\376Z\003\20759S\0" // IGN53_Mare_UTM_Zone_59S
    "IGN56 Lif\025\0" // IGN56 Lifou
    "IGN56 Lif\025\011U\250\27058S\0" // IGN56 Lifou / UTM zone 58S
    "IGN56_Lif\025\0" // IGN56_Lifou
    "IGN56_Lif\025_U\37658S\0" // IGN56_Lifou_UTM_58S
    "IGN63 Hiv\030Oa\0" // IGN63 Hiva Oa
    "IGN63 Hiv\030Oa\011U\250\2707S\0" // IGN63 Hiva Oa / UTM zone 7S
    "IGN63_Hiv\253Oa\0" // IGN63_Hiva_Oa
    "IGN63_Hiv\253O\253U\376Z\003\2077S\0" // IGN63_Hiva_Oa_UTM_Zone_7S
    "IGN72 Gr\301T\007>\0" // IGN72 Grand Terre
    "IGN72 Gr\301T\007>\011U\250\27058S\0" // IGN72 Grand Terre / UTM zone 58S
    "IGN72 Gr\035\012T\007>\0" // IGN72 Grande Terre
    "IGN72 Gr\035\012T\007>\011U\250\27058S\0" // IGN72 Grande Terre / UTM zone 58S
    "IGN72 Nuku Hiva\0" // IGN72 Nuku Hiva
    "IGN72 Nuku Hiva\011U\250\2707S\0" // IGN72 Nuku Hiva / UTM zone 7S
    "IGN72_Gr\035\207T\007>\0" // IGN72_Grande_Terre
    "IGN72_Gr\035\207T\007>_U\37658S\0" // IGN72_Grande_Terre_UTM_58S
    "IGN72_Nuku_Hiva\0" // IGN72_Nuku_Hiva
    "IGN72_Nuku_Hiv\253U\3767S\0" // IGN72_Nuku_Hiva_UTM_7S
    "IGN79 T\373\243i\0" // IGN79 Tahiti
    "IGN_A\021ro\21260\0" // IGN_Astro_1960
    "IGN_A\021ro\21260_U\376Z\003\207\0" // IGN_Astro_1960_UTM_Zone_
    "IG|\0" // IGRS
    "IG|\011U\250\27037N\0" // IGRS / UTM zone 37N
    "IG|\011U\250\27038N\0" // IGRS / UTM zone 38N
    "IG|\011U\250\27039N\0" // IGRS / UTM zone 39N
    "IG|_U\376Z\003\20737N\0" // IGRS_UTM_Zone_37N
    "IG|_U\376Z\003\20738N\0" // IGRS_UTM_Zone_38N
    "IG|_U\376Z\003\20739N\0" // IGRS_UTM_Zone_39N
    "IGS00\0" // IGS00
    "IGS00\002L<L\003\0" // IGS00 - LatLon
    "IGS05\0" // IGS05
    "IGS05\002L<L\003\0" // IGS05 - LatLon
    "IGS08\0" // IGS08
    "IGS08\002L<L\003\0" // IGS08 - LatLon
    "IGS14\0" // IGS14
    "IGS14\002L<L\003\0" // IGS14 - LatLon
    "IGS97\0" // IGS97
    "IGS97\002L<L\003\0" // IGS97 - LatLon
    "IGb00\0" // IGb00
    "IGb00\002L<L\003\0" // IGb00 - LatLon
    "IGb08\0" // IGb08
    "IGb08\002L<L\003\0" // IGb08 - LatLon
    "IGb14\0" // IGb14
    "IGb14\002L<L\003\0" // IGb14 - LatLon
    "III\2670403\0" // III_FIPS_0403
    "III\2670403\366\0" // III_FIPS_0403_Feet
    "III\2670403\134t_\204\0" // III_FIPS_0403_Ft_US
    "II\2670402\0" // II_FIPS_0402
    "II\2670402\366\0" // II_FIPS_0402_Feet
    "II\2670402\134t_\204\0" // II_FIPS_0402_Ft_US
    "IKBD-92\0" // IKBD-92
    "IKBD_\03192\0" // IKBD_1992
    "IRENET95\0" // IRENET95
    "IRENET95\011Ir=h Tr\005sv\220\012M\007c<\006\0" // IRENET95 / Irish Transverse Mercator
    "IRENET95\011U\250\27029N\0" // IRENET95 / UTM zone 29N
    "IRENET95_Ir=h_Tr\005sv\220\207M\007c<\006\0" // IRENET95_Irish_Transverse_Mercator
    "IRENET95_U\376Z\003\20729N\0" // IRENET95_UTM_Zone_29N
    "ISN\2274\0" // ISN2004
    "ISN\2274\011LAEA E\225ope\0" // ISN2004 / LAEA Europe
    "ISN\2274\011LAEA Ice\211\0" // ISN2004 / LAEA Iceland
    "ISN\2274\011LCC E\225ope\0" // ISN2004 / LCC Europe
    "ISN\2274\011L\232b\007t \2274\0" // ISN2004 / Lambert 2004
    "ISN\03316\0" // ISN2016
    "ISN\03316\011LAEA E\225ope\0" // ISN2016 / LAEA Europe
    "ISN\03316\011LCC E\225ope\0" // ISN2016 / LCC Europe
    "ISN\03316\011L\232b\007t \03316\0" // ISN2016 / Lambert 2016
    "ISN\03316_LAEA_E\225ope\0" // ISN2016_LAEA_Europe
    "ISN\03316_LCC_E\225ope\0" // ISN2016_LCC_Europe
    "ISN\03316_L\232b\007t_\03316\0" // ISN2016_Lambert_2016
    "ISN93\0" // ISN93
    "ISN93\011L\232b\007t \03193\0" // ISN93 / Lambert 1993
    "ISN_\03193\0" // ISN_1993
    "ISN\21293_L\232b\007t_\03193\0" // ISN_1993_Lambert_1993
    "ISN_\2274\0" // ISN_2004
    "ISN_\2274_LAEA_E\225ope\0" // ISN_2004_LAEA_Europe
    "ISN_\2274_LCC_E\225ope\0" // ISN_2004_LCC_Europe
    "ISN_\2274_L\232b\007t_\2274\0" // ISN_2004_Lambert_2004
    "ISTS_061\21268\0" // ISTS_061_1968
    "ISTS_073\21269\0" // ISTS_073_1969
    "ITRF\2270\0" // ITRF2000
    "ITRF\2270\002L<L\003\0" // ITRF2000 - LatLon
    "ITRF\2275\0" // ITRF2005
    "ITRF\2275\002L<L\003\0" // ITRF2005 - LatLon
    "ITRF\2278\002L<L\003\0" // ITRF2008 - LatLon
    "ITRF\03314\0" // ITRF2014
    "ITRF\03314\002L<L\003\0" // ITRF2014 - LatLon
    "ITRF\03320\0" // ITRF2020
    "ITRF\033\033\002L<L\003\0" // ITRF2020 - LatLon
    "ITRF88\0" // ITRF88
    "ITRF88\002L<L\003\0" // ITRF88 - LatLon
    "ITRF89\0" // ITRF89
    "ITRF89\002L<L\003\0" // ITRF89 - LatLon
    "ITRF90\0" // ITRF90
    "ITRF90\002L<L\003\0" // ITRF90 - LatLon
    "ITRF91\0" // ITRF91
    "ITRF91\002L<L\003\0" // ITRF91 - LatLon
    "ITRF92\002L<L\003\0" // ITRF92 - LatLon
    "ITRF93\0" // ITRF93
    "ITRF93\002L<L\003\0" // ITRF93 - LatLon
    "ITRF94\0" // ITRF94
    "ITRF94\002L<L\003\0" // ITRF94 - LatLon
    "ITRF96\0" // ITRF96
    "ITRF96\002L<L\003\0" // ITRF96 - LatLon
    "ITRF97\0" // ITRF97
    "ITRF97\002L<L\003\0" // ITRF97 - LatLon
    "IV\2670404\0" // IV_FIPS_0404
    "IV\2670404\366\0" // IV_FIPS_0404_Feet
    "IV\2670404\134t_\204\0" // IV_FIPS_0404_Ft_US
    "I\2670401\0" // I_FIPS_0401
    "I\2670401\366\0" // I_FIPS_0401_Feet
    "I\2670401\134t_\204\0" // I_FIPS_0401_Ft_US
    "Ibagu\207T\247im\253\2277\0" // Ibague_Tolima_2007
    "Ice\211\002ma\024\211\0" // Iceland - mainland
    "Ice\211\002ma\024\211 24\21718\037\0" // Iceland - mainland 24°W to 18°W
    "Ice\211\002ma\024\211 e\315\25218\037\0" // Iceland - mainland east of 18°W
    "Ice\211\002ma\024\211 w\275\25224\037\0" // Iceland - mainland west of 24°W
    "Ice\211 L\232b\007t\32000\0" // Iceland Lambert 1900
    "Ice\211 L\232b\007t\32055\0" // Iceland Lambert 1955
    "Ice\211 L\232b\007t \03193\0" // Iceland Lambert 1993
    "Ice\211 L\232b\007t \2274\0" // Iceland Lambert 2004
    "Ice\211 L\232b\007t \03316\0" // Iceland Lambert 2016
    "Ice\211 L\232b\007t Azimu\023\223Equ\223A>a\0" // Iceland Lambert Azimuthal Equal Area
    "Id\373\013@\313\333\365\223!e\0" // Idaho CS27 Central zone
    "Id\373\013@\313 E\315!e\0" // Idaho CS27 East zone
    "Id\373\013@\313 W\275!e\0" // Idaho CS27 West zone
    "Id\373o\374\365\026\267\17702\0" // Idaho_Central_FIPS_1102
    "Id\373o\374\365\026\267\17702\366\0" // Idaho_Central_FIPS_1102_Feet
    "Id\373o\374\365\026\267\17702\134t_\204\0" // Idaho_Central_FIPS_1102_Ft_US
    "Id\373o_Ea\021\267\17701\0" // Idaho_East_FIPS_1101
    "Id\373o_Ea\021\267\17701\366\0" // Idaho_East_FIPS_1101_Feet
    "Id\373o_Ea\021\267\17701\134t_\204\0" // Idaho_East_FIPS_1101_Ft_US
    "Id\373o_\250\0" // Idaho_TM
    "Id\373o_We\021\267\17703\0" // Idaho_West_FIPS_1103
    "Id\373o_We\021\267\17703\366\0" // Idaho_West_FIPS_1103_Feet
    "Id\373o_We\021\267\17703\134t_\204\0" // Idaho_West_FIPS_1103_Ft_US
    "Ill\024o= @\313 E\315!e\0" // Illinois CS27 East zone
    "Ill\024o= @\313 W\275!e\0" // Illinois CS27 West zone
    "Ill\024o=_Ea\021\2671\0331\0" // Illinois_East_FIPS_1201
    "Ill\024o=_Ea\021\2671\0331\366\0" // Illinois_East_FIPS_1201_Feet
    "Ill\024o=_Ea\021\2671\0331\134t_\204\0" // Illinois_East_FIPS_1201_Ft_US
    "Ill\024o=_We\021\2671\0332\0" // Illinois_West_FIPS_1202
    "Ill\024o=_We\021\2671\0332\366\0" // Illinois_West_FIPS_1202_Feet
    "Ill\024o=_We\021\2671\0332\134t_\204\0" // Illinois_West_FIPS_1202_Ft_US
    "\306G@ \231 \0" // InGCS 2011 
    "\355ia\0" // India
    "\355\215And\232\005 \301N$ob# \352s\0" // India - Andaman and Nicobar Islands
    "\355\215Andhr\030Pr\274e^ \301T\240\005g\005a\0" // India - Andhra Pradesh and Telangana
    "\355\215\326unach\223Pr\274e^\0" // India - Arunachal Pradesh
    "\355\215Ass\232\0" // India - Assam
    "\355\215Bih#\0" // India - Bihar
    "\355\215Chh<t=g#h\0" // India - Chhattisgarh
    "\355\215D\240hi\0" // India - Delhi
    "\355\215Goa\0" // India - Goa
    "\355\215Guj#<\0" // India - Gujarat
    "\355\215H#y\005a\0" // India - Haryana
    "\355\215Himach\223Pr\274e^\0" // India - Himachal Pradesh
    "\355\215J\232mu \301Ka^m\342\0" // India - Jammu and Kashmir
    "\355\215Jh#kh\035\0" // India - Jharkhand
    "\355\215K#n<aka\0" // India - Karnataka
    "\355\215K\007\026a\0" // India - Kerala
    "\355\215Lak^\274weep\0" // India - Lakshadweep
    "\355\215M\274hy\030Pr\274e^\0" // India - Madhya Pradesh
    "\355\215M\373#a^t\370\0" // India - Maharashtra
    "\355\215M\005ip\225\0" // India - Manipur
    "\355\215Megh\026aya\0" // India - Meghalaya
    "\355\215Miz\006\232\0" // India - Mizoram
    "\355\215Nag\026\035\0" // India - Nagaland
    "\355\215Od=ha\0" // India - Odisha
    "\355\215Punjab\0" // India - Punjab
    "\355\215Raja\021h\005\0" // India - Rajasthan
    "\355\215Sikkim\0" // India - Sikkim
    "\355\215T\232\372 N\274u\0" // India - Tamil Nadu
    "\355\215Trip\225a\0" // India - Tripura
    "\355\215Utt# Pr\274e^\0" // India - Uttar Pradesh
    "\355\215Utt#akh\035\0" // India - Uttarakhand
    "\355\215W\275B\210g\026\0" // India - West Bengal
    "\355\215e\315\25296\015\0" // India - east of 96°E
    "\355\215ma\024\211\0" // India - mainland
    "\355\215ma\024\211 72}78\015\0" // India - mainland 72°E to 78°E
    "\355\215ma\024\211 90}96\015\0" // India - mainland 90°E to 96°E
    "\355\215ma\024\211 s\246\25215\004N\0" // India - mainland south of 15°N
    "\355\215n\006`\25228\004N\0" // India - north of 28°N
    "\355\215n\006\023ea\021\0" // India - northeast
    "\355\215\213\006\01215\004N\02221\004N\0" // India - onshore 15°N to 21°N
    "\355\215\213\006\01221\004N\02228\004N \301w\275\25282\015\0" // India - onshore 21°N to 28°N and west of 82°E
    "\355\215\213\006\01278}84\015\0" // India - onshore 78°E to 84°E
    "\355\215\213\006\01284}90\015\0" // India - onshore 84°E to 90°E
    "\355\215\213\006\012n\006`\25221\004N \301e\315\25282\015\0" // India - onshore north of 21°N and east of 82°E
    "\355\215\213\006\012w\275\25272\015\0" // India - onshore west of 72°E
    "\355\314\077I\205\03162 m\036>s)\0" // India zone I (1962 metres)
    "\355\314\077I\205\03175 m\036>s)\0" // India zone I (1975 metres)
    "\355\314\077III\030(\03175 m\036>s)\0" // India zone IIIa (1975 metres)
    "\355\314\077II\030(\03162 m\036>s)\0" // India zone IIa (1962 metres)
    "\355\314\077II\030(\03175 m\036>s)\0" // India zone IIa (1975 metres)
    "\355\314\077IIb\205\03137 m\036>s)\0" // India zone IIb (1937 metres)
    "\355\314\077IIb\205\03175 m\036>s)\0" // India zone IIb (1975 metres)
    "\355\314\077IV\030(\03175 m\036>s)\0" // India zone IVa (1975 metres)
    "\355i\253\334F_LCC\0" // India_NSF_LCC
    "\355i\253\371ea\021\0" // India_Northeast
    "\355\335\205DMA R\273uc\273)\0" // Indian (DMA Reduced)
    "\355\335\32054\0" // Indian 1954
    "\355\335\32054\011U\250\27046N\0" // Indian 1954 / UTM zone 46N
    "\355\335\32054\011U\250\27047N\0" // Indian 1954 / UTM zone 47N
    "\355\335\32054\011U\250\27048N\0" // Indian 1954 / UTM zone 48N
    "\355\335\32060\0" // Indian 1960
    "\355\335\32060\011\250 \3126 NE\0" // Indian 1960 / TM 106 NE
    "\355\335\32060\011U\250\27048N\0" // Indian 1960 / UTM zone 48N
    "\355\335\32060\011U\250\27049N\0" // Indian 1960 / UTM zone 49N
    "\355\335\32075\0" // Indian 1975
    "\355\335\32075\011U\250\27047N\0" // Indian 1975 / UTM zone 47N
    "\355\335\32075\011U\250\27048N\0" // Indian 1975 / UTM zone 48N
    "\355\335 fo\350\0" // Indian foot
    "\355\335 fo\350\205\03137)\0" // Indian foot (1937)
    "\355\335 fo\350\205\03162)\0" // Indian foot (1962)
    "\355\335 fo\350\205\03175)\0" // Indian foot (1975)
    "\355\335 y#d\0" // Indian yard
    "\355\335 y#d\205\03137)\0" // Indian yard (1937)
    "\355\335 y#d\205\03162)\0" // Indian yard (1962)
    "\355\335 y#d\205\03175)\0" // Indian yard (1975)
    "\355\335_\0" // Indian_
    "\355\335\21254\0" // Indian_1954
    "\355\335\21260\0" // Indian_1960
    "\355\335\030@\313 E\315!e\0" // Indiana CS27 East zone
    "\355\335\030@\313 W\275!e\0" // Indiana CS27 West zone
    "\355\335\253Ea\021\2671\3751\0" // Indiana_East_FIPS_1301
    "\355\335\253Ea\021\2671\3751\366\0" // Indiana_East_FIPS_1301_Feet
    "\355\335\253Ea\021\2671\3751\134t_\204\0" // Indiana_East_FIPS_1301_Ft_US
    "\355\335\253We\021\2671\3752\0" // Indiana_West_FIPS_1302
    "\355\335\253We\021\2671\3752\366\0" // Indiana_West_FIPS_1302_Feet
    "\355\335\253We\021\2671\3752\134t_\204\0" // Indiana_West_FIPS_1302_Ft_US
    "\355\003\242ia\0" // Indonesia
    "\355\003\242\215\3122}\3125\360\237\0" // Indonesia - 102°E to 105°E onshore
    "\355\003\242\215\3122}\3128\015\307N\305e\0" // Indonesia - 102°E to 108°E, N hemisphere
    "\355\003\242\215\3122}\3128\015\307N\305\012\237\0" // Indonesia - 102°E to 108°E, N hemisphere onshore
    "\355\003\242\215\3122}\3128\015,{\305e\0" // Indonesia - 102°E to 108°E, S hemisphere
    "\355\003\242\215\3122}\3128\015,{\305\012\237\0" // Indonesia - 102°E to 108°E, S hemisphere onshore
    "\355\003\242\215\3125}\3128\360\237\0" // Indonesia - 105°E to 108°E onshore
    "\355\003\242\215\3128}\1771\360\237\0" // Indonesia - 108°E to 111°E onshore
    "\355\003\242\215\3128}\1774\015\307N\305e\0" // Indonesia - 108°E to 114°E, N hemisphere
    "\355\003\242\215\3128}\1774\015\307N\305\012\237\0" // Indonesia - 108°E to 114°E, N hemisphere onshore
    "\355\003\242\215\3128}\1774\015,{\305e\0" // Indonesia - 108°E to 114°E, S hemisphere
    "\355\003\242\215\3128}\1774\015,{\305\012\237\0" // Indonesia - 108°E to 114°E, S hemisphere onshore
    "\355\003\242\215\1771}\1774\360\237\0" // Indonesia - 111°E to 114°E onshore
    "\355\003\242\215\1774}\1777\360\237\0" // Indonesia - 114°E to 117°E onshore
    "\355\003\242\215\1774\345\033\015\307N\305e\0" // Indonesia - 114°E to 120°E, N hemisphere
    "\355\003\242\215\1774\345\033\015\307N\305\012\237\0" // Indonesia - 114°E to 120°E, N hemisphere onshore
    "\355\003\242\215\1774\345\033\015,{\305e\0" // Indonesia - 114°E to 120°E, S hemisphere
    "\355\003\242\215\1774\345\033\015,{\305\012\237\0" // Indonesia - 114°E to 120°E, S hemisphere onshore
    "\355\003\242\215\1777\345\033\360\237\0" // Indonesia - 117°E to 120°E onshore
    "\355\003\242\2151\033\34523\360\237\0" // Indonesia - 120°E to 123°E onshore
    "\355\003\242\2151\033\34526\015\307N\305e\0" // Indonesia - 120°E to 126°E, N hemisphere
    "\355\003\242\2151\033\34526\015\307N\305\012\237\0" // Indonesia - 120°E to 126°E, N hemisphere onshore
    "\355\003\242\2151\033\34526\015,{\305e\0" // Indonesia - 120°E to 126°E, S hemisphere
    "\355\003\242\2151\033\34526\015,{\305\012\237\0" // Indonesia - 120°E to 126°E, S hemisphere onshore
    "\355\003\242\215123\34526\360\237\0" // Indonesia - 123°E to 126°E onshore
    "\355\003\242\215126\34529\360\237\0" // Indonesia - 126°E to 129°E onshore
    "\355\003\242\215126\34532\015\307N\305e\0" // Indonesia - 126°E to 132°E, N hemisphere
    "\355\003\242\215126\34532\015\307N\305\012\237\0" // Indonesia - 126°E to 132°E, N hemisphere onshore
    "\355\003\242\215126\34532\015,{\305e\0" // Indonesia - 126°E to 132°E, S hemisphere
    "\355\003\242\215126\34532\015,{\305\012\237\0" // Indonesia - 126°E to 132°E, S hemisphere onshore
    "\355\003\242\215129\34532\360\237\0" // Indonesia - 129°E to 132°E onshore
    "\355\003\242\215132\34535\360\237\0" // Indonesia - 132°E to 135°E onshore
    "\355\003\242\215132\34538\015\307N\305e\0" // Indonesia - 132°E to 138°E, N hemisphere
    "\355\003\242\215132\34538\015,{\305e\0" // Indonesia - 132°E to 138°E, S hemisphere
    "\355\003\242\215132\34538\015,{\305\012\237\0" // Indonesia - 132°E to 138°E, S hemisphere onshore
    "\355\003\242\215135\34538\360\237\0" // Indonesia - 135°E to 138°E onshore
    "\355\003\242\21596}\3122\015\307N\305e\0" // Indonesia - 96°E to 102°E, N hemisphere
    "\355\003\242\21596}\3122\015\307N\305\012\237\0" // Indonesia - 96°E to 102°E, N hemisphere onshore
    "\355\003\242\21596}\3122\015,{\305e\0" // Indonesia - 96°E to 102°E, S hemisphere
    "\355\003\242\21596}\3122\015,{\305\012\237\0" // Indonesia - 96°E to 102°E, S hemisphere onshore
    "\355\003\242\21596}99\360\237\0" // Indonesia - 96°E to 99°E onshore
    "\355\003\242\21599}\3122\360\237\0" // Indonesia - 99°E to 102°E onshore
    "\355\003\242\215B\026i{e\030we\021\0" // Indonesia - Bali Sea west
    "\355\003\242\215B\026i\307Jav\030\301we\021\007n{um<r\030\237\0" // Indonesia - Bali, Java and western Sumatra onshore
    "\355\003\242\215B\005g\030& B\240\243ung \352s\0" // Indonesia - Banga & Belitung Islands
    "\355\003\242\215Jav\030Se\034\216f^\006\012n\006\023w\275Java\0" // Indonesia - Java Sea - offshore northwest Java
    "\355\003\242\215Jav\030\301Jav\030Se\034\3128}\1774\015\0" // Indonesia - Java and Java Sea - 108°E to 114°E
    "\355\003\242\215Jav\030\301Jav\030Se\034e\315\252\1774\015\0" // Indonesia - Java and Java Sea - east of 114°E
    "\355\003\242\215Jav\030\301Jav\030Se\034w\275\252\3128\015\0" // Indonesia - Java and Java Sea - west of 108°E
    "\355\003\242\215Java\307Jav\030Se\030\301we\021\007n{um<\370\0" // Indonesia - Java, Java Sea and western Sumatra
    "\355\003\242\215K\026im\005t\005\002M\373ak\232 d\240ta\0" // Indonesia - Kalimantan - Mahakam delta
    "\355\003\242\215K\026im\005t\005 E\0" // Indonesia - Kalimantan E
    "\355\003\242\215K\026im\005t\005{E\0" // Indonesia - Kalimantan SE
    "\355\003\242\215K\026im\005t\005 W\002coa\021\026\0" // Indonesia - Kalimantan W - coastal
    "\355\003\242\215Sulaw\242i{W\0" // Indonesia - Sulawesi SW
    "\355\003\242\215Sum<\370\0" // Indonesia - Sumatra
    "\355\003\242\215W\275Papu\034T\005gguh\0" // Indonesia - West Papua - Tangguh
    "\355\003\242\215e\315\252138\360\237\0" // Indonesia - east of 138°E onshore
    "\355\003\242\215e\315\252138\015,{\305e\0" // Indonesia - east of 138°E, S hemisphere
    "\355\003\242\215\237\0" // Indonesia - onshore
    "\355\003\242\215w\275\25296\360\237\0" // Indonesia - west of 96°E onshore
    "\355\003\242\215w\275\25296\015\307N\305e\0" // Indonesia - west of 96°E, N hemisphere
    "\355\003\242\215w\275\25296\015,{\305e\0" // Indonesia - west of 96°E, S hemisphere
    "\355\003\242\335\0" // Indonesian
    "\355\003\242\335 D<um\32074\0" // Indonesian Datum 1974
    "\355\003\242\335 Geod\036$ D<um\32095\0" // Indonesian Geodetic Datum 1995
    "\355\003\242\335 Geosp<i\223Ref\007\210c\012Sy\021\206 \03313\0" // Indonesian Geospatial Reference System 2013
    "\355\003\242\335\21274\0" // Indonesian_1974
    "\355\003\242\335\21274_U\376Z\003\207\0" // Indonesian_1974_UTM_Zone_
    "\306\342\257\253Gua\024i\253\2278\0" // Inirida_Guainia_2008
    "\306\021\243ut Geog\370\230iqu\012du\333\003g\013B\240g\012\03155\0" // Institut Geographique du Congo Belge 1955
    "\306\021\243ut_Geog\370\230iqu\207du\374\003go_B\240g\207\03155\0" // Institut_Geographique_du_Congo_Belge_1955
    "I\032\007n<\321\223\03124\0" // International 1924
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03188\0" // International Terrestrial Reference Frame 1988
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03189\0" // International Terrestrial Reference Frame 1989
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03190\0" // International Terrestrial Reference Frame 1990
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03191\0" // International Terrestrial Reference Frame 1991
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03192\0" // International Terrestrial Reference Frame 1992
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03193\0" // International Terrestrial Reference Frame 1993
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03194\0" // International Terrestrial Reference Frame 1994
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03196\0" // International Terrestrial Reference Frame 1996
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03197\0" // International Terrestrial Reference Frame 1997
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\2270\0" // International Terrestrial Reference Frame 2000
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\2275\0" // International Terrestrial Reference Frame 2005
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\2278\0" // International Terrestrial Reference Frame 2008
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03314\0" // International Terrestrial Reference Frame 2014
    "I\032\007n<\321\223T\007>\021ri\223Ref\007\210c\012Fr\232\012\03320\0" // International Terrestrial Reference Frame 2020
    "I\032\007n<\321\026\21224\0" // International_1924
    "I\032\007n<\321\026_T\007>\021ri\026_Ref\007\210ce\134r\232\207\03314\0" // International_Terrestrial_Reference_Frame_2014
    "Iow\030@\313 \324!e\0" // Iowa CS27 North zone
    "Iow\030@\313{\246!e\0" // Iowa CS27 South zone
    "Iow\030\262\321\223\0771{p\210c\007\0" // Iowa regional zone 1 Spencer
    "Iow\030\262\321\223\077\312\333\273# Rap\257s\0" // Iowa regional zone 10 Cedar Rapids
    "Iow\030\262\321\223\077\177 Dubuque-Dav\210p\006t\0" // Iowa regional zone 11 Dubuque-Davenport
    "Iow\030\262\321\223\07712 R\273 Oak-Ottumwa\0" // Iowa regional zone 12 Red Oak-Ottumwa
    "Iow\030\262\321\223\07713 Fa\342fi\240d\0" // Iowa regional zone 13 Fairfield
    "Iow\030\262\321\223\07714 B\225l\024gt\003\0" // Iowa regional zone 14 Burlington
    "Iow\030\262\321\223\0772 M\201\222C\243y\0" // Iowa regional zone 2 Mason City
    "Iow\030\262\321\223\0773 Elk\274\007\0" // Iowa regional zone 3 Elkader
    "Iow\030\262\321\223\0774{i\025x\333\243y-Iow\030F\026ls\0" // Iowa regional zone 4 Sioux City-Iowa Falls
    "Iow\030\262\321\223\0775 W<\007loo\0" // Iowa regional zone 5 Waterloo
    "Iow\030\262\321\223\0776\333\025nc\372 Bluffs\0" // Iowa regional zone 6 Council Bluffs
    "Iow\030\262\321\223\0777\333#r\247l-Atl\005t$\0" // Iowa regional zone 7 Carroll-Atlantic
    "Iow\030\262\321\223\0778 Am\242-D\242 Mo\024\242\0" // Iowa regional zone 8 Ames-Des Moines
    "Iow\030\262\321\223\0779 \361t\003\0" // Iowa regional zone 9 Newton
    "Iow\253C\025\032y\366\0" // Iowa_County_Feet
    "Iow\253C\025\032y_M\311\0" // Iowa_County_Meters
    "Iowa\366\0" // Iowa_Feet
    "Iow\253M\311\0" // Iowa_Meters
    "Iow\253\371\2671401\0" // Iowa_North_FIPS_1401
    "Iow\253\371\2671401\366\0" // Iowa_North_FIPS_1401_Feet
    "Iow\253\371\2671401\134t_\204\0" // Iowa_North_FIPS_1401_Ft_US
    "Iow\253S\362\2671402\0" // Iowa_South_FIPS_1402
    "Iow\253S\362\2671402\366\0" // Iowa_South_FIPS_1402_Feet
    "Iow\253S\362\2671402\134t_\204\0" // Iowa_South_FIPS_1402_Ft_US
    "Ir\005\00248}54\015\0" // Iran - 48°E to 54°E
    "Ir\005\00254}60\015\0" // Iran - 54°E to 60°E
    "Ir\005\002FD58\0" // Iran - FD58
    "Ir\005\002K\005g\005 di\021r$t\0" // Iran - Kangan district
    "Ir\005\002T\373\007i >f\024\007y\0" // Iran - Taheri refinery
    "Ir\005\002e\315\25260\360\237\0" // Iran - east of 60°E onshore
    "Ir\005\002w\275\25248\015\0" // Iran - west of 48°E
    "I\370q\00242}48\015\0" // Iraq - 42°E to 48°E
    "I\370q\002e\315\25248\015\0" // Iraq - east of 48°E
    "I\370q\002e\315\25248\360\237\0" // Iraq - east of 48°E onshore
    "I\370q\002\237\0" // Iraq - onshore
    "I\370q\002w\275\25242\015\0" // Iraq - west of 42°E
    "I\370q-Kuwa\243 B\025nd#\200D<um \03192\0" // Iraq-Kuwait Boundary Datum 1992
    "I\370q_Kuwa\243_B\025nd#y_\03192\0" // Iraq_Kuwait_Boundary_1992
    "I\370qi Geosp<i\223Ref\007\210c\012Sy\021\206\0" // Iraqi Geospatial Reference System
    "I\370qi_Geosp<i\026_Ref\007\210c\207Sy\021\206\0" // Iraqi_Geospatial_Reference_System
    "Ir\003\374\025\032y\366\0" // Iron_County_Feet
    "Ir\003\374\025\032y_M\311\0" // Iron_County_Meters
    "Ir\003\366\0" // Iron_Feet
    "Ir\003_M\311\0" // Iron_Meters
    "\352 \252Pr\024cip\012d<um\0" // Island of Principe datum
    "\352 \216{a\013T\344\012d<um\0" // Island of Sao Tome datum
    "\352s N\036 \03193\0" // Islands Net 1993
    "\352s N\036 \2274\0" // Islands Net 2004
    "\352s N\036 \03316\0" // Islands Net 2016
    "\352s_N\036_\03316\0" // Islands_Net_2016
    "\352s_N\036w\006k_\03193\0" // Islands_Network_1993
    "\352s_N\036w\006k_\2274\0" // Islands_Network_2004
    "\325\370\240\0" // Israel
    "\325\370\240 \03193\0" // Israel 1993
    "\325\370\240\32093\011\325\370\240i \250 Gr\257\0" // Israel 1993 / Israeli TM Grid
    "\325\370\240_Geod\036$_D<um_\2275\0" // Israel_Geodetic_Datum_2005
    "\325\370\240_\376Gr\257\0" // Israel_TM_Grid
    "\325\370\240i @\0" // Israeli CS
    "\325\370\240i Geod\036$ D<um \2275\0" // Israeli Geodetic Datum 2005
    "\325\370\240i Geod\036$ D<um \2275(\03312)\0" // Israeli Geodetic Datum 2005(2012)
    "\325\370\240i Gr\257 05\0" // Israeli Grid 05
    "\325\370\240i Gr\257 05/12\0" // Israeli Grid 05/12
    "\325\370\240i \361 Gr\257\0" // Israeli New Grid
    "\325\370\240i \250\0" // Israeli TM
    "\325\370\240i_Geod\036$_D<um_\2275(\03312)\0" // Israeli_Geodetic_Datum_2005(2012)
    "\325\370\240i_Gr\257_05\0" // Israeli_Grid_05
    "\325\370\240i_Gr\257_05-12\0" // Israeli_Grid_05-12
    "I\021\243ut\013Geog\370f$\013M\372\243a\342\012\03195\0" // Istituto Geografico Militaire 1995
    "It\026ia\0" // Italia
    "It\026y\0" // Italy
    "It\026y\00212\3458\015\0" // Italy - 12°E to 18°E
    "It\026y\002Em\372ia-R\344agna\0" // Italy - Emilia-Romagna
    "It\026y\002e\315\25212\015\0" // Italy - east of 12°E
    "It\026y\002e\315\25218\015\0" // Italy - east of 18°E
    "It\026y\002\024clud\024g{\005 M#\024\013\301V<$\005\0" // Italy - including San Marino and Vatican
    "It\026y\002w\275\25212\015\0" // Italy - west of 12°E
    "It\026\200!e\0" // Italy zone
    "It\026\200\07712\0" // Italy zone 12
    "It\026y_!e\0" // Italy_zone
    "It\026y_!\207(E-N)\0" // Italy_zone_(E-N)
    "Iw\013Jim\030\03145\0" // Iwo Jima 1945
    "J\016\2271\0" // JAD2001
    "J\016\2271\011J\232a$\030M\036r$ Gr\257\0" // JAD2001 / Jamaica Metric Grid
    "J\016\2271\011U\250\27017N\0" // JAD2001 / UTM zone 17N
    "J\016\2271\011U\250\27018N\0" // JAD2001 / UTM zone 18N
    "J\01669\0" // JAD69
    "J\01669\011J\232a$\030N<\321\223Gr\257\0" // JAD69 / Jamaica National Grid
    "J\016_\2271\0" // JAD_2001
    "J\016_\2271_J\232a$\253Gr\257\0" // JAD_2001_Jamaica_Grid
    "J\016_\2271_U\376Z\003\20717N\0" // JAD_2001_UTM_Zone_17N
    "J\016_\2271_U\376Z\003\20718N\0" // JAD_2001_UTM_Zone_18N
    "JAXA{now Dep`\236 \371\0" // JAXA Snow Depth PS North
    "JAXA{now Dep`P\247#{t\007eog\370\230$ \371\0" // JAXA Snow Depth Polar Stereographic North
    "JAXA_Snow_Dep\023_P\247#_St\007eog\370\230$_\371\0" // JAXA_Snow_Depth_Polar_Stereographic_North
    "JGD\2270\0" // JGD2000
    "JGD\2270\002L<L\003\0" // JGD2000 - LatLon
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ I\0" // JGD2000 / Japan Plane Rectangular CS I
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ II\0" // JGD2000 / Japan Plane Rectangular CS II
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ III\0" // JGD2000 / Japan Plane Rectangular CS III
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ IV\0" // JGD2000 / Japan Plane Rectangular CS IV
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ IX\0" // JGD2000 / Japan Plane Rectangular CS IX
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ V\0" // JGD2000 / Japan Plane Rectangular CS V
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ VI\0" // JGD2000 / Japan Plane Rectangular CS VI
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ VII\0" // JGD2000 / Japan Plane Rectangular CS VII
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ VIII\0" // JGD2000 / Japan Plane Rectangular CS VIII
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ X\0" // JGD2000 / Japan Plane Rectangular CS X
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XI\0" // JGD2000 / Japan Plane Rectangular CS XI
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XII\0" // JGD2000 / Japan Plane Rectangular CS XII
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XIII\0" // JGD2000 / Japan Plane Rectangular CS XIII
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XIV\0" // JGD2000 / Japan Plane Rectangular CS XIV
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XIX\0" // JGD2000 / Japan Plane Rectangular CS XIX
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XV\0" // JGD2000 / Japan Plane Rectangular CS XV
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XVI\0" // JGD2000 / Japan Plane Rectangular CS XVI
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XVII\0" // JGD2000 / Japan Plane Rectangular CS XVII
    "JGD\2270\011Jap\005 Pl\005\012Re\317\005gul# @ XVIII\0" // JGD2000 / Japan Plane Rectangular CS XVIII
    "JGD\2270\011U\250\27051N\0" // JGD2000 / UTM zone 51N
    "JGD\2270\011U\250\27052N\0" // JGD2000 / UTM zone 52N
    "JGD\2270\011U\250\27053N\0" // JGD2000 / UTM zone 53N
    "JGD\2270\011U\250\27054N\0" // JGD2000 / UTM zone 54N
    "JGD\2270\011U\250\27055N\0" // JGD2000 / UTM zone 55N
    "JGD\03311\0" // JGD2011
    "JGD\231\002L<L\003\0" // JGD2011 - LatLon
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ I\0" // JGD2011 / Japan Plane Rectangular CS I
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ II\0" // JGD2011 / Japan Plane Rectangular CS II
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ III\0" // JGD2011 / Japan Plane Rectangular CS III
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ IV\0" // JGD2011 / Japan Plane Rectangular CS IV
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ IX\0" // JGD2011 / Japan Plane Rectangular CS IX
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ V\0" // JGD2011 / Japan Plane Rectangular CS V
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ VI\0" // JGD2011 / Japan Plane Rectangular CS VI
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ VII\0" // JGD2011 / Japan Plane Rectangular CS VII
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ VIII\0" // JGD2011 / Japan Plane Rectangular CS VIII
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ X\0" // JGD2011 / Japan Plane Rectangular CS X
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XI\0" // JGD2011 / Japan Plane Rectangular CS XI
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XII\0" // JGD2011 / Japan Plane Rectangular CS XII
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XIII\0" // JGD2011 / Japan Plane Rectangular CS XIII
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XIV\0" // JGD2011 / Japan Plane Rectangular CS XIV
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XIX\0" // JGD2011 / Japan Plane Rectangular CS XIX
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XV\0" // JGD2011 / Japan Plane Rectangular CS XV
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XVI\0" // JGD2011 / Japan Plane Rectangular CS XVI
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XVII\0" // JGD2011 / Japan Plane Rectangular CS XVII
    "JGD\231\011Jap\005 Pl\005\012Re\317\005gul# @ XVIII\0" // JGD2011 / Japan Plane Rectangular CS XVIII
    "JGD\231\011U\250\27051N\0" // JGD2011 / UTM zone 51N
    "JGD\231\011U\250\27052N\0" // JGD2011 / UTM zone 52N
    "JGD\231\011U\250\27053N\0" // JGD2011 / UTM zone 53N
    "JGD\231\011U\250\27054N\0" // JGD2011 / UTM zone 54N
    "JGD\231\011U\250\27055N\0" // JGD2011 / UTM zone 55N
    "JGD_\2270\0" // JGD_2000
    "JGD_\2270_Jap\005_Z\003\207\0" // JGD_2000_Japan_Zone_
    "JGD_\2270_U\376Z\003\207\0" // JGD_2000_UTM_Zone_
    "JGD_\03311\0" // JGD_2011
    "JGD_\231_Jap\005_Z\003\207\0" // JGD_2011_Japan_Zone_
    "JGD_\231_U\376Z\003\207\0" // JGD_2011_UTM_Zone_
    "Jacks\003_(ft\204)\0" // Jackson_(ftUS)
    "Jacks\003_(m)\0" // Jackson_(m)
    "Jacks\003\374\025\032y\366\0" // Jackson_County_Feet
    "Jacks\003\374\025\032y_M\311\0" // Jackson_County_Meters
    "Jacks\003\366\0" // Jackson_Feet
    "Jacks\003_M\311\0" // Jackson_Meters
    "Jacks\003s_Bay\374\342cu\243\0" // Jacksons_Bay_Circuit
    "J\232a$a\0" // Jamaica
    "J\232a\346e\315\25278\037\0" // Jamaica - east of 78°W
    "J\232a\346\237\0" // Jamaica - onshore
    "J\232a\346w\275\25278\037\0" // Jamaica - west of 78°W
    "J\232a$\0301875\0" // Jamaica 1875
    "J\232a$\0301875\011J\232a$\030(O\316 Gr\257)\0" // Jamaica 1875 / Jamaica (Old Grid)
    "J\232a$\030\03169\0" // Jamaica 1969
    "J\232a$\030\2271\0" // Jamaica 2001
    "J\232a$\030M\036r$ Gr\257 \2271\0" // Jamaica Metric Grid 2001
    "J\232a$\2531875\0" // Jamaica_1875
    "J\232a$\2531875_O\316_Gr\257\0" // Jamaica_1875_Old_Grid
    "J\232a$a\21269\0" // Jamaica_1969
    "J\232a$\253\2271\0" // Jamaica_2001
    "J\232mu \301Ka^m\342 \334F LCC\0" // Jammu and Kashmir NSF LCC
    "J\232mu_\035_Ka^m\342\0" // Jammu_and_Kashmir
    "J\005 May\210\002\237\0" // Jan Mayen - onshore
    "Jap\005\0" // Japan
    "Jap\005\0021\033\34526\015\0" // Japan - 120°E to 126°E
    "Jap\005\0021\033\34526\360\237\0" // Japan - 120°E to 126°E onshore
    "Jap\005\002126\34532\015\0" // Japan - 126°E to 132°E
    "Jap\005\002126\34532\360\237\0" // Japan - 126°E to 132°E onshore
    "Jap\005\002132\34538\015\0" // Japan - 132°E to 138°E
    "Jap\005\002132\34538\360\237\0" // Japan - 132°E to 138°E onshore
    "Jap\005\002138\34544\015\0" // Japan - 138°E to 144°E
    "Jap\005\002138\34544\360\237\0" // Japan - 138°E to 144°E onshore
    "Jap\005\002144\34550\015\0" // Japan - 144°E to 150°E
    "Jap\005\002144\34550\360\237\0" // Japan - 144°E to 150°E onshore
    "Jap\005\002Iw\013Jima\0" // Japan - Iwo Jima
    "Jap\005\002M\024\232\243\006i-^im\030(M#c\357 \352)\002\237\0" // Japan - Minamitori-shima (Marcus Island) - onshore
    "Jap\005\002\077I\0" // Japan - zone I
    "Jap\005\002\077II\0" // Japan - zone II
    "Jap\005\002\077III\0" // Japan - zone III
    "Jap\005\002\077IV\0" // Japan - zone IV
    "Jap\005\002\077IX\0" // Japan - zone IX
    "Jap\005\002\077V\0" // Japan - zone V
    "Jap\005\002\077VI\0" // Japan - zone VI
    "Jap\005\002\077VII\0" // Japan - zone VII
    "Jap\005\002\077VIII\0" // Japan - zone VIII
    "Jap\005\002\077X\0" // Japan - zone X
    "Jap\005\002\077XI\0" // Japan - zone XI
    "Jap\005\002\077XII\0" // Japan - zone XII
    "Jap\005\002\077XIII\0" // Japan - zone XIII
    "Jap\005\002\077XIV\0" // Japan - zone XIV
    "Jap\005\002\077XV\0" // Japan - zone XV
    "Jap\005\002\077XVI\0" // Japan - zone XVI
    "Jap\005\002\077XVII\0" // Japan - zone XVII
    "Jap\005\002\077XVIII\0" // Japan - zone XVIII
    "Jap\005 Pl\005\012Re\317\005gul# @\270I\0" // Japan Plane Rectangular CS zone I
    "Jap\005 Pl\005\012Re\317\005gul# @\270II\0" // Japan Plane Rectangular CS zone II
    "Jap\005 Pl\005\012Re\317\005gul# @\270III\0" // Japan Plane Rectangular CS zone III
    "Jap\005 Pl\005\012Re\317\005gul# @\270IV\0" // Japan Plane Rectangular CS zone IV
    "Jap\005 Pl\005\012Re\317\005gul# @\270IX\0" // Japan Plane Rectangular CS zone IX
    "Jap\005 Pl\005\012Re\317\005gul# @\270V\0" // Japan Plane Rectangular CS zone V
    "Jap\005 Pl\005\012Re\317\005gul# @\270VI\0" // Japan Plane Rectangular CS zone VI
    "Jap\005 Pl\005\012Re\317\005gul# @\270VII\0" // Japan Plane Rectangular CS zone VII
    "Jap\005 Pl\005\012Re\317\005gul# @\270VIII\0" // Japan Plane Rectangular CS zone VIII
    "Jap\005 Pl\005\012Re\317\005gul# @\270X\0" // Japan Plane Rectangular CS zone X
    "Jap\005 Pl\005\012Re\317\005gul# @\270XI\0" // Japan Plane Rectangular CS zone XI
    "Jap\005 Pl\005\012Re\317\005gul# @\270XII\0" // Japan Plane Rectangular CS zone XII
    "Jap\005 Pl\005\012Re\317\005gul# @\270XIII\0" // Japan Plane Rectangular CS zone XIII
    "Jap\005 Pl\005\012Re\317\005gul# @\270XIV\0" // Japan Plane Rectangular CS zone XIV
    "Jap\005 Pl\005\012Re\317\005gul# @\270XIX\0" // Japan Plane Rectangular CS zone XIX
    "Jap\005 Pl\005\012Re\317\005gul# @\270XV\0" // Japan Plane Rectangular CS zone XV
    "Jap\005 Pl\005\012Re\317\005gul# @\270XVI\0" // Japan Plane Rectangular CS zone XVI
    "Jap\005 Pl\005\012Re\317\005gul# @\270XVII\0" // Japan Plane Rectangular CS zone XVII
    "Jap\005 Pl\005\012Re\317\005gul# @\270XVIII\0" // Japan Plane Rectangular CS zone XVIII
    "Jap\005\242\012Geod\036$ D<um \2270\0" // Japanese Geodetic Datum 2000
    "Jap\005\242\012Geod\036$ D<um \03311\0" // Japanese Geodetic Datum 2011
    "J#\024g K\003tr\247 Geod\242i\205JKG)\0" // Jaring Kontrol Geodesi (JKG)
    "J\201p\007-P\006t\007_(ft\204)\0" // Jasper-Porter_(ftUS)
    "J\201p\007-P\006t\007_(m)\0" // Jasper-Porter_(m)
    "Jay_(ft\204)\0" // Jay_(ftUS)
    "Jay_(m)\0" // Jay_(m)
    "Jeff\220\003_(ft\204)\0" // Jefferson_(ftUS)
    "Jeff\220\003_(m)\0" // Jefferson_(m)
    "J\210n\024gs_(ft\204)\0" // Jennings_(ftUS)
    "J\210n\024gs_(m)\0" // Jennings_(m)
    "J\220ey\2672900\366\0" // Jersey_FIPS_2900_Feet
    "J\220ey_Tr\005sv\220\207M\007c<\006\0" // Jersey_Transverse_Mercator
    "Jh#kh\301\334F LCC\0" // Jharkhand NSF LCC
    "Johns\003-M#\321_(ft\204)\0" // Johnson-Marion_(ftUS)
    "Johns\003-M#\321_(m)\0" // Johnson-Marion_(m)
    "John\021\222At\247l\32061\0" // Johnston Atoll 1961
    "John\021\222\352\0" // Johnston Island
    "John\021\222\352\32061\0" // Johnston Island 1961
    "John\021\003_\352\21261\0" // Johnston_Island_1961
    "Joh\006\333\201s\024i Gr\257\0" // Johor Cassini Grid
    "J\006d\005\0" // Jordan
    "J\006d\005 Tr\005sv\220\012M\007c<\006\0" // Jordan Transverse Mercator
    "J\006d\005_\250\0" // Jordan_TM
    "J\025ik\32061\0" // Jouik 1961
    "J\025ik\21261\0" // Jouik_1961
    "J\225i\210\333oa\021\223Gr\257\0" // Jurien Coastal Grid
    "K0\32049\0" // K0 1949
    "K0\32049\011U\250\27042S\0" // K0 1949 / UTM zone 42S
    "KKJ\0" // KKJ
    "KKJ\011F\024\211 Unif\006m\333o\006d\024<\012Sy\021\206\0" // KKJ / Finland Uniform Coordinate System
    "KKJ\011F\024\211\2700\0" // KKJ / Finland zone 0
    "KKJ\011F\024\211\2701\0" // KKJ / Finland zone 1
    "KKJ\011F\024\211\2702\0" // KKJ / Finland zone 2
    "KKJ\011F\024\211\2704\0" // KKJ / Finland zone 4
    "KKJ\011F\024\211\2705\0" // KKJ / Finland zone 5
    "KKJ\134\024\211_Z\003\2070\0" // KKJ_Finland_Zone_0
    "KKJ\134\024\211_Z\003\2075\0" // KKJ_Finland_Zone_5
    "KOC\0" // KOC
    "KOC L\232b\007t\0" // KOC Lambert
    "KOC_L\232b\007t\0" // KOC_Lambert
    "KOSOV\245EF01\0" // KOSOVAREF01
    "KOSOV\245EF01\205\03312)\0" // KOSOVAREF01 (2012)
    "KOSOV\245EF01\011B\026k\005s\2707\0" // KOSOVAREF01 / Balkans zone 7
    "KOSOV\245EF01_B\026k\005s_Z\003\2077\0" // KOSOVAREF01_Balkans_Zone_7
    "KOSOV\245EF12\0" // KOSOVAREF12
    "KRGJSH-\03310\0" // KRGJSH-2010
    "KSA-GRF17\0" // KSA-GRF17
    "KSA-GRF17\002L<L\003\0" // KSA-GRF17 - LatLon
    "KSA-GRF17\011U\250\27036N\0" // KSA-GRF17 / UTM zone 36N
    "KSA-GRF17\011U\250\27037N\0" // KSA-GRF17 / UTM zone 37N
    "KSA-GRF17\011U\250\27038N\0" // KSA-GRF17 / UTM zone 38N
    "KSA-GRF17\011U\250\27039N\0" // KSA-GRF17 / UTM zone 39N
    "KSA-GRF17\011U\250\27040N\0" // KSA-GRF17 / UTM zone 40N
    "KSA-GRF17_U\376!\207\0" // KSA-GRF17_UTM_zone_
    "KUDAMS\0" // KUDAMS
    "KUDAMS\011K\250\0" // KUDAMS / KTM
    "KUDAMS_K\250\0" // KUDAMS_KTM
    "K\026b#ri Gr\257 \03320\0" // Kalbarri Grid 2020
    "K\026\335p\225 1880\0" // Kalianpur 1880
    "K\026\335p\225 1880\011\355\314\0770\0" // Kalianpur 1880 / India zone 0
    "K\026\335p\225 1880\011\355\314\077I\0" // Kalianpur 1880 / India zone I
    "K\026\335p\225 1880\011\355\314\077IIIa\0" // Kalianpur 1880 / India zone IIIa
    "K\026\335p\225 1880\011\355\314\077IIa\0" // Kalianpur 1880 / India zone IIa
    "K\026\335p\225 1880\011\355\314\077IIb\0" // Kalianpur 1880 / India zone IIb
    "K\026\335p\225 1880\011\355\314\077IVa\0" // Kalianpur 1880 / India zone IVa
    "K\026\335p\225\32037\0" // Kalianpur 1937
    "K\026\335p\225\32037\011\355\314\077IIb\0" // Kalianpur 1937 / India zone IIb
    "K\026\335p\225\32037\011U\250\27045N\0" // Kalianpur 1937 / UTM zone 45N
    "K\026\335p\225\32037\011U\250\27046N\0" // Kalianpur 1937 / UTM zone 46N
    "K\026\335p\225\32062\0" // Kalianpur 1962
    "K\026\335p\225\32062\011\355\314\077I\0" // Kalianpur 1962 / India zone I
    "K\026\335p\225\32062\011\355\314\077IIa\0" // Kalianpur 1962 / India zone IIa
    "K\026\335p\225\32062\011U\250\27041N\0" // Kalianpur 1962 / UTM zone 41N
    "K\026\335p\225\32062\011U\250\27042N\0" // Kalianpur 1962 / UTM zone 42N
    "K\026\335p\225\32062\011U\250\27043N\0" // Kalianpur 1962 / UTM zone 43N
    "K\026\335p\225\32075\0" // Kalianpur 1975
    "K\026\335p\225\32075\011\355\314\077I\0" // Kalianpur 1975 / India zone I
    "K\026\335p\225\32075\011\355\314\077IIIa\0" // Kalianpur 1975 / India zone IIIa
    "K\026\335p\225\32075\011\355\314\077IIa\0" // Kalianpur 1975 / India zone IIa
    "K\026\335p\225\32075\011\355\314\077IIb\0" // Kalianpur 1975 / India zone IIb
    "K\026\335p\225\32075\011\355\314\077IVa\0" // Kalianpur 1975 / India zone IVa
    "K\026\335p\225\32075\011U\250\27042N\0" // Kalianpur 1975 / UTM zone 42N
    "K\026\335p\225\32075\011U\250\27043N\0" // Kalianpur 1975 / UTM zone 43N
    "K\026\335p\225\32075\011U\250\27044N\0" // Kalianpur 1975 / UTM zone 44N
    "K\026\335p\225\32075\011U\250\27045N\0" // Kalianpur 1975 / UTM zone 45N
    "K\026\335p\225\32075\011U\250\27046N\0" // Kalianpur 1975 / UTM zone 46N
    "K\026\335p\225\32075\011U\250\27047N\0" // Kalianpur 1975 / UTM zone 47N
    "K\026\335p\225_\0" // Kalianpur_
    "K\026\335p\225_1880\0" // Kalianpur_1880
    "K\026\335p\225_1880_\355i\253Z\003\207\0" // Kalianpur_1880_India_Zone_
    "K\026\335p\225\21237\0" // Kalianpur_1937
    "K\026\335p\225\21262\0" // Kalianpur_1962
    "K\026\335p\225\21275\0" // Kalianpur_1975
    "K\026\335p\225\21275_\355i\253Z\003\207\0" // Kalianpur_1975_India_Zone_
    "K\026\335p\225\21275_U\376Z\003\207\0" // Kalianpur_1975_UTM_Zone_
    "K\035aw\026a\0" // Kandawala
    "K\035aw\026a\011Sri L\005k\030Gr\257\0" // Kandawala / Sri Lanka Grid
    "K\035aw\026\253Sri_L\005k\253Gr\257\0" // Kandawala_Sri_Lanka_Grid
    "K\005s\201 @\313 \324!e\0" // Kansas CS27 North zone
    "K\005s\201 @\313{\246!e\0" // Kansas CS27 South zone
    "K\005s\201 DOT L\232b\007t\205\204{\225ve\200f\221)\0" // Kansas DOT Lambert (US Survey feet)
    "K\005s\201 DOT L\232b\007t\205m\311)\0" // Kansas DOT Lambert (meters)
    "K\005s\201 \262\321\223\0771 Good\211 (ft\204)\0" // Kansas regional zone 1 Goodland (ftUS)
    "K\005s\201 \262\321\223\077\312 Atch=\222(ft\204)\0" // Kansas regional zone 10 Atchison (ftUS)
    "K\005s\201 \262\321\223\077\177 K\005s\201\333\243\200(ft\204)\0" // Kansas regional zone 11 Kansas City (ftUS)
    "K\005s\201 \262\321\223\07712 Ulyss\242 (ft\204)\0" // Kansas regional zone 12 Ulysses (ftUS)
    "K\005s\201 \262\321\223\07713 G#d\210\333\243\200(ft\204)\0" // Kansas regional zone 13 Garden City (ftUS)
    "K\005s\201 \262\321\223\07714 Dodg\012C\243\200(ft\204)\0" // Kansas regional zone 14 Dodge City (ftUS)
    "K\005s\201 \262\321\223\07715 L#n\273 (ft\204)\0" // Kansas regional zone 15 Larned (ftUS)
    "K\005s\201 \262\321\223\07716 Pr<t (ft\204)\0" // Kansas regional zone 16 Pratt (ftUS)
    "K\005s\201 \262\321\223\07717 W$h\243\030(ft\204)\0" // Kansas regional zone 17 Wichita (ftUS)
    "K\005s\201 \262\321\223\07718 \326k\005s\201\333\243\200(ft\204)\0" // Kansas regional zone 18 Arkansas City (ftUS)
    "K\005s\201 \262\321\223\077\031\333\216feyv\372l\012(ft\204)\0" // Kansas regional zone 19 Coffeyville (ftUS)
    "K\005s\201 \262\321\223\0772\333\247\351(ft\204)\0" // Kansas regional zone 2 Colby (ftUS)
    "K\005s\201 \262\321\223\077\033 P\243tsb\225g (ft\204)\0" // Kansas regional zone 20 Pittsburg (ftUS)
    "K\005s\201 \262\321\223\0773 Ob\007l\024 (ft\204)\0" // Kansas regional zone 3 Oberlin (ftUS)
    "K\005s\201 \262\321\223\0774 Hays (ft\204)\0" // Kansas regional zone 4 Hays (ftUS)
    "K\005s\201 \262\321\223\0775 G>< B\210d (ft\204)\0" // Kansas regional zone 5 Great Bend (ftUS)
    "K\005s\201 \262\321\223\0776 B\240i\350 (ft\204)\0" // Kansas regional zone 6 Beliot (ftUS)
    "K\005s\201 \262\321\223\0777{\026\024\030(ft\204)\0" // Kansas regional zone 7 Salina (ftUS)
    "K\005s\201 \262\321\223\0778 M\005h<t\005 (ft\204)\0" // Kansas regional zone 8 Manhattan (ftUS)
    "K\005s\201 \262\321\223\0779 Emp\006\314(ft\204)\0" // Kansas regional zone 9 Emporia (ftUS)
    "K\005s\201_LCC\0" // Kansas_LCC
    "K\005s\201_LCC_ft\204\0" // Kansas_LCC_ftUS
    "K\005s\201_\371\2671501\0" // Kansas_North_FIPS_1501
    "K\005s\201_\371\2671501\366\0" // Kansas_North_FIPS_1501_Feet
    "K\005s\201_\371\2671501\134t_\204\0" // Kansas_North_FIPS_1501_Ft_US
    "K\005s\201_S\362\2671502\0" // Kansas_South_FIPS_1502
    "K\005s\201_S\362\2671502\366\0" // Kansas_South_FIPS_1502_Feet
    "K\005s\201_S\362\2671502\134t_\204\0" // Kansas_South_FIPS_1502_Ft_US
    "K#\232e\253C\342cu\243\0" // Karamea_Circuit
    "K#b\026\030\03179\0" // Karbala 1979
    "K#b\026\030\03179\205P\247s\007v$e)\0" // Karbala 1979 (Polservice)
    "K#b\026\030\03179\011I\370q N<\321\223Gr\257\0" // Karbala 1979 / Iraq National Grid
    "K#b\026\030\03179\011U\250\27037N\0" // Karbala 1979 / UTM zone 37N
    "K#b\026\030\03179\011U\250\27038N\0" // Karbala 1979 / UTM zone 38N
    "K#b\026\030\03179\011U\250\27039N\0" // Karbala 1979 / UTM zone 39N
    "K#b\026a\21279_I\370q_N<\321\026_Gr\257\0" // Karbala_1979_Iraq_National_Grid
    "K#b\026a\21279_P\247s\007v$e\0" // Karbala_1979_Polservice
    "K#b\026a\21279_P\247s\007v$\207U\376Z\003\207\0" // Karbala_1979_Polservice_UTM_Zone_
    "K#n<ak\030\334F \250\0" // Karnataka NSF TM
    "K#\370\023\030Gr\257 \03320\0" // Karratha Grid 2020
    "K#ta\021oko\006d\024a<tij#je\021\240m\030(\03166)\0" // Kartastokoordinaattijarjestelma (1966)
    "K#ta\021oko\006d\024a<tij\303\244rje\021\240m\303\244\205\03166)\0" // Kartastokoordinaattijärjestelmä (1966)
    "K\201ai\32053\0" // Kasai 1953
    "K\201ai\32053\011C\003g\013\250\27022\0" // Kasai 1953 / Congo TM zone 22
    "K\201ai\32053\011C\003g\013\250\27024\0" // Kasai 1953 / Congo TM zone 24
    "K\201ai\21253\0" // Kasai_1953
    "K\201ai\21253\374\003go_\376Z\003\20722\0" // Kasai_1953_Congo_TM_Zone_22
    "K\201ai\21253\374\003go_\376Z\003\20724\0" // Kasai_1953_Congo_TM_Zone_24
    "K<\005g\030\03155\0" // Katanga 1955
    "K<\005g\030\03155\011K<\005g\030Ga\357s\270A\0" // Katanga 1955 / Katanga Gauss zone A
    "K<\005g\030\03155\011K<\005g\030Ga\357s\270B\0" // Katanga 1955 / Katanga Gauss zone B
    "K<\005g\030\03155\011K<\005g\030Ga\357s\270C\0" // Katanga 1955 / Katanga Gauss zone C
    "K<\005g\030\03155\011K<\005g\030Ga\357s\270D\0" // Katanga 1955 / Katanga Gauss zone D
    "K<\005g\030\03155\011K<\005g\030L\232b\007t\0" // Katanga 1955 / Katanga Lambert
    "K<\005g\030\03155\011K<\005g\030\250\0" // Katanga 1955 / Katanga TM
    "K<\005g\030L\232b\007t\333\003f\006m\026\0" // Katanga Lambert Conformal
    "K<\005g\030Tr\005sv\220\012M\007c<\006\0" // Katanga Transverse Mercator
    "K<\005ga\21255\0" // Katanga_1955
    "K<\005ga\21255_K<\005g\253\0" // Katanga_1955_Katanga_
    "K\273\373 \301P\007l=\333\201s\024i Gr\257\0" // Kedah and Perlis Cassini Grid
    "K\240\005t\005\333\201s\024i Gr\257\0" // Kelantan Cassini Grid
    "K\210o^\253M\372wauke\207Ozauke\207Rac\024e\366\0" // Kenosha_Milwaukee_Ozaukee_Racine_Feet
    "K\210o^\253M\372wauke\207Ozauke\207Rac\024\207M\311\0" // Kenosha_Milwaukee_Ozaukee_Racine_Meters
    "K\210o^\253M\372wauke\207Ozauke\207\035_Rac\024e\366\0" // Kenosha_Milwaukee_Ozaukee_and_Racine_Feet
    "K\210o^\253M\372wauke\207Ozauke\207\035_Rac\024\207M\311\0" // Kenosha_Milwaukee_Ozaukee_and_Racine_Meters
    "Ke\032uck\200@\313 \324!e\0" // Kentucky CS27 North zone
    "Ke\032uck\200@\313{\246!e\0" // Kentucky CS27 South zone
    "Ke\032uck\200@\014 \324!e\0" // Kentucky CS83 North zone
    "Ke\032ucky\2671600\0" // Kentucky_FIPS_1600
    "Ke\032ucky\2671600\366\0" // Kentucky_FIPS_1600_Feet
    "Ke\032ucky\2671600\134t_\204\0" // Kentucky_FIPS_1600_Ft_US
    "Ke\032ucky_\371\2671601\0" // Kentucky_North_FIPS_1601
    "Ke\032ucky_\371\2671601\366\0" // Kentucky_North_FIPS_1601_Feet
    "Ke\032ucky_\371\2671601\134t_\204\0" // Kentucky_North_FIPS_1601_Ft_US
    "Ke\032ucky_S\362\2671602\0" // Kentucky_South_FIPS_1602
    "Ke\032ucky_S\362\2671602\366\0" // Kentucky_South_FIPS_1602_Feet
    "Ke\032ucky_S\362\2671602\134t_\204\0" // Kentucky_South_FIPS_1602_Ft_US
    "K\210y\034n\006`\252equ<\006 \301e\315\25236\015\0" // Kenya - north of equator and east of 36°E
    "K\007\026\030\334F \250\0" // Kerala NSF TM
    "K\007gu\240\210_\352\21249\0" // Kerguelen_Island_1949
    "K\007gu\240\210_\352\21249_U\37642S\0" // Kerguelen_Island_1949_UTM_42S
    "K\007tau\0" // Kertau
    "K\007tau\205|O)\0" // Kertau (RSO)
    "K\007tau\205|O%|O M\026ay\030(ch)\0" // Kertau (RSO) / RSO Malaya (ch)
    "K\007tau\205|O%|O M\026ay\030(m)\0" // Kertau (RSO) / RSO Malaya (m)
    "K\007tau\011R.S.O. M\026ay\030(ch)\0" // Kertau / R.S.O. Malaya (ch)
    "K\007tau\32068\0" // Kertau 1968
    "K\007tau\32068\011Joh\006 Gr\257\0" // Kertau 1968 / Johor Grid
    "K\007tau\32068\011K\273\373 \301P\007l= Gr\257\0" // Kertau 1968 / Kedah and Perlis Grid
    "K\007tau\32068\011K\240\005t\005 Gr\257\0" // Kertau 1968 / Kelantan Grid
    "K\007tau\32068\011P\373\005g Gr\257\0" // Kertau 1968 / Pahang Grid
    "K\007tau\32068\011P\007ak Rev=\273 Gr\257\0" // Kertau 1968 / Perak Revised Grid
    "K\007tau\32068\011P\024\005g Gr\257\0" // Kertau 1968 / Pinang Grid
    "K\007tau\32068\011S\240\005g\006 Gr\257\0" // Kertau 1968 / Selangor Grid
    "K\007tau\32068\011S\206b\372\005 \301M\240ak\030Gr\257\0" // Kertau 1968 / Sembilan and Melaka Grid
    "K\007tau\32068\011S\024gap\006\012Gr\257\0" // Kertau 1968 / Singapore Grid
    "K\007tau\32068\011T\007\210gg\005u Gr\257\0" // Kertau 1968 / Terengganu Grid
    "K\007tau\32068\011U\250\27047N\0" // Kertau 1968 / UTM zone 47N
    "K\007tau\32068\011U\250\27048N\0" // Kertau 1968 / UTM zone 48N
    "K\007tau_\0" // Kertau_
    "K\007tau_|O\0" // Kertau_RSO
    "Kewaune\207M\005\243owoc_Sheboyg\005\366\0" // Kewaunee_Manitowoc_Sheboygan_Feet
    "Kewaune\207M\005\243owoc_Sheboyg\005_M\311\0" // Kewaunee_Manitowoc_Sheboygan_Meters
    "Kewaune\207M\005\243owoc_\035_Sheboyg\005\366\0" // Kewaunee_Manitowoc_and_Sheboygan_Feet
    "Kewaune\207M\005\243owoc_\035_Sheboyg\005_M\311\0" // Kewaunee_Manitowoc_and_Sheboygan_Meters
    "K\372\344\036\007\0" // Kilometer
    "K\024gd\344 \216{audi \326ab\314Geod\036$ Ref\007\210c\012Fr\232\012\03317\0" // Kingdom of Saudi Arabia Geodetic Reference Frame 2017
    "K\024gd\344_\216_Saudi_\326abi\253Geod\036$_Ref\007\210ce\134r\232\207\03317\0" // Kingdom_of_Saudi_Arabia_Geodetic_Reference_Frame_2017
    "K\342ib<i\002Pho\210ix \352s\0" // Kiribati - Phoenix Islands
    "Knox_(ft\204)\0" // Knox_(ftUS)
    "Knox_(m)\0" // Knox_(m)
    "K\202\030\2270\0" // Korea 2000
    "K\202\030\2270\011C\365\223B\240t\0" // Korea 2000 / Central Belt
    "K\202\030\2270\011C\365\223B\240t \03310\0" // Korea 2000 / Central Belt 2010
    "K\202\030\2270\011C\365\223B\240t Jeju\0" // Korea 2000 / Central Belt Jeju
    "K\202\030\2270\011E\315B\240t\0" // Korea 2000 / East Belt
    "K\202\030\2270\011E\315B\240t \03310\0" // Korea 2000 / East Belt 2010
    "K\202\030\2270\011Ea\021{e\030B\240t\0" // Korea 2000 / East Sea Belt
    "K\202\030\2270\011Ea\021{e\030B\240t \03310\0" // Korea 2000 / East Sea Belt 2010
    "K\202\030\2270\011Unifi\273 @\0" // Korea 2000 / Unified CS
    "K\202\030\2270\011W\275B\240t\0" // Korea 2000 / West Belt
    "K\202\030\2270\011W\275B\240t \03310\0" // Korea 2000 / West Belt 2010
    "K\202\030C\365\223B\240t \03310\0" // Korea Central Belt 2010
    "K\202\030C\365\223B\240t Jeju\0" // Korea Central Belt Jeju
    "K\202\030E\315B\240t \03310\0" // Korea East Belt 2010
    "K\202\030Ea\021{e\030B\240t \03310\0" // Korea East Sea Belt 2010
    "K\202\030Modifi\273\333\365\223B\240t\0" // Korea Modified Central Belt
    "K\202\030Modifi\273\333\365\223B\240t Jeju\0" // Korea Modified Central Belt Jeju
    "K\202\030Modifi\273 E\315B\240t\0" // Korea Modified East Belt
    "K\202\030Modifi\273 Ea\021{e\030B\240t\0" // Korea Modified East Sea Belt
    "K\202\030Modifi\273 W\275B\240t\0" // Korea Modified West Belt
    "K\202\030Unifi\273 B\240t\0" // Korea Unified Belt
    "K\202\030W\275B\240t \03310\0" // Korea West Belt 2010
    "K\202a\307Republ$ \216\205\367K\202a)\0" // Korea, Republic of (South Korea)
    "K\202a\307Republ$ \216\205\367K\202a)\002124\34526\360\237\0" // Korea, Republic of (South Korea) - 124°E to 126°E onshore
    "K\202a\307Republ$ \216\205\367K\202a)\002126\34528\360Jeju\0" // Korea, Republic of (South Korea) - 126°E to 128°E Jeju
    "K\202a\307Republ$ \216\205\367K\202a)\002126\34528\360ma\024\211\0" // Korea, Republic of (South Korea) - 126°E to 128°E mainland
    "K\202a\307Republ$ \216\205\367K\202a)\002126\34528\360\237\0" // Korea, Republic of (South Korea) - 126°E to 128°E onshore
    "K\202a\307Republ$ \216\205\367K\202a)\0021\375\34532\360\237\0" // Korea, Republic of (South Korea) - 130°E to 132°E onshore
    "K\202a\307Republ$ \216\205\367K\202a)\002e\315\252128\360\237\0" // Korea, Republic of (South Korea) - east of 128°E onshore
    "K\202a\307Republ$ \216\205\367K\202a)\002\237\0" // Korea, Republic of (South Korea) - onshore
    "K\202\253\2270\0" // Korea_2000
    "K\202\253\2270_K\202\253\0" // Korea_2000_Korea_
    "K\202\253C\365\026_B\240t\0" // Korea_Central_Belt
    "K\202\253C\365\026_B\240t_Jeju\0" // Korea_Central_Belt_Jeju
    "K\202\253Ea\021_B\240t\0" // Korea_East_Belt
    "K\202\253Ea\021_Se\253B\240t\0" // Korea_East_Sea_Belt
    "K\202\253Unifi\273\374o\006d\024<\207Sy\021\206\0" // Korea_Unified_Coordinate_System
    "K\202\253We\021_B\240t\0" // Korea_West_Belt
    "K\202\005\32085\0" // Korean 1985
    "K\202\005\32085\011C\365\223B\240t\0" // Korean 1985 / Central Belt
    "K\202\005\32085\011C\365\223B\240t Jeju\0" // Korean 1985 / Central Belt Jeju
    "K\202\005\32085\011E\315B\240t\0" // Korean 1985 / East Belt
    "K\202\005\32085\011Ea\021{e\030B\240t\0" // Korean 1985 / East Sea Belt
    "K\202\005\32085\011Modifi\273\333\365\223B\240t\0" // Korean 1985 / Modified Central Belt
    "K\202\005\32085\011Modifi\273\333\365\223B\240t Jeju\0" // Korean 1985 / Modified Central Belt Jeju
    "K\202\005\32085\011Modifi\273 E\315B\240t\0" // Korean 1985 / Modified East Belt
    "K\202\005\32085\011Modifi\273 Ea\021{e\030B\240t\0" // Korean 1985 / Modified East Sea Belt
    "K\202\005\32085\011Modifi\273 W\275B\240t\0" // Korean 1985 / Modified West Belt
    "K\202\005\32085\011Unifi\273 @\0" // Korean 1985 / Unified CS
    "K\202\005\32085\011W\275B\240t\0" // Korean 1985 / West Belt
    "K\202\005\32095\0" // Korean 1995
    "K\202\005 D<um\32085\0" // Korean Datum 1985
    "K\202\005 D<um\32095\0" // Korean Datum 1995
    "K\202\005\21285_\0" // Korean_1985_
    "K\202\005\21285_Modifi\273_K\202\253\0" // Korean_1985_Modified_Korea_
    "K\202\005_D<um\21285\0" // Korean_Datum_1985
    "K\202\005_D<um\21295\0" // Korean_Datum_1995
    "Kosovo\0" // Kosovo
    "Kosov\013Ref\007\210c\012Sy\021\206 \2271\0" // Kosovo Reference System 2001
    "Kosovo_Ref\007\210c\207Sy\021\206_\2271\0" // Kosovo_Reference_System_2001
    "K\025ss\007i\0" // Kousseri
    "K\025ss\007i\011U\250\27033N\0" // Kousseri / UTM zone 33N
    "K\025ss\007i_U\376Z\003\20733N\0" // Kousseri_UTM_Zone_33N
    "Kp\2270 Jyl\211 og Fyn\0" // Kp2000 Jylland og Fyn
    "Kp\2270{ja\240\211\0" // Kp2000 Sjaelland
    "Kp\2270_B\006nh\247m\0" // Kp2000_Bornholm
    "Kp\2270_Jut\211\0" // Kp2000_Jutland
    "Kp\2270_Ze\026\035\0" // Kp2000_Zealand
    "Kr\201ovsky\21240\0" // Krasovsky_1940
    "Kr\201sowsk\200\03140\0" // Krassowsky 1940
    "Kunun\225r\030Gr\257 \03320\0" // Kununurra Grid 2020
    "K\357ai\012\03151\0" // Kusaie 1951
    "K\357ai\207\03151\0" // Kusaie_1951
    "Kuwa\243\002Kuwa\243\333\243y\0" // Kuwait - Kuwait City
    "Kuwa\243\002e\315\25248\360\237\0" // Kuwait - east of 48°E onshore
    "Kuwa\243\002\237\0" // Kuwait - onshore
    "Kuwa\243\002w\275\25248\360\237\0" // Kuwait - west of 48°E onshore
    "Kuwa\243 O\372\333\344p\005y\0" // Kuwait Oil Company
    "Kuwa\243 \250\0" // Kuwait TM
    "Kuwa\243 Tr\005sv\220\012M\007c<\006\0" // Kuwait Transverse Mercator
    "Kuwa\243 Ut\372\243y\0" // Kuwait Utility
    "Kuwa\243_O\372\374\344p\005y\0" // Kuwait_Oil_Company
    "Kuwa\243_Ut\372\243y\0" // Kuwait_Utility
    "Kyrg-06\0" // Kyrg-06
    "Kyrg-06\011\0771\0" // Kyrg-06 / zone 1
    "Kyrg-06\011\0772\0" // Kyrg-06 / zone 2
    "Kyrg-06\011\0773\0" // Kyrg-06 / zone 3
    "Kyrg-06\011\0774\0" // Kyrg-06 / zone 4
    "Kyrg-06\011\0775\0" // Kyrg-06 / zone 5
    "Kyrg-06_\376Z\003\207\0" // Kyrg-06_TM_Zone_
    "Kyrg06-68\0" // Kyrg06-68
    "Kyrg06-71\0" // Kyrg06-71
    "Kyrg06-74\0" // Kyrg06-74
    "Kyrg06-77\0" // Kyrg06-77
    "Kyrg06-80\0" // Kyrg06-80
    "Kyrgyz_Republ$_\2276\0" // Kyrgyz_Republic_2006
    "Kyrgyz\021\005\0" // Kyrgyzstan
    "Kyrgyz\021\005\00270\00401'E\02273\00401'E\0" // Kyrgyzstan - 70°01'E to 73°01'E
    "Kyrgyz\021\005\00273\00401'E\02276\00401'E\0" // Kyrgyzstan - 73°01'E to 76°01'E
    "Kyrgyz\021\005\00276\00401'E\02279\00401'E\0" // Kyrgyzstan - 76°01'E to 79°01'E
    "Kyrgyz\021\005\002e\315\25279\00401'E\0" // Kyrgyzstan - east of 79°01'E
    "Kyrgyz\021\005\002w\275\25270\00401'E\0" // Kyrgyzstan - west of 70°01'E
    "Kyrgyz\021\005 Geod\036$ D<um \2276\0" // Kyrgyzstan Geodetic Datum 2006
    "Kyrgyz\021\005\2701\0" // Kyrgyzstan zone 1
    "Kyrgyz\021\005\2702\0" // Kyrgyzstan zone 2
    "Kyrgyz\021\005\2703\0" // Kyrgyzstan zone 3
    "Kyrgyz\021\005\2704\0" // Kyrgyzstan zone 4
    "Kyrgyz\021\005\2705\0" // Kyrgyzstan zone 5
    "LCC G\007m\005y\0" // LCC Germany
    "LCC_G\007m\005y_E-N\0" // LCC_Germany_E-N
    "LCC_G\007m\005y_N-E\0" // LCC_Germany_N-E
    "LGD\2276\0" // LGD2006
    "LGD\2276\011Liby\030\250\0" // LGD2006 / Libya TM
    "LGD\2276\011Liby\030\250\27010\0" // LGD2006 / Libya TM zone 10
    "LGD\2276\011Liby\030\250\27011\0" // LGD2006 / Libya TM zone 11
    "LGD\2276\011Liby\030\250\27012\0" // LGD2006 / Libya TM zone 12
    "LGD\2276\011Liby\030\250\27013\0" // LGD2006 / Libya TM zone 13
    "LGD\2276\011Liby\030\250\2705\0" // LGD2006 / Libya TM zone 5
    "LGD\2276\011Liby\030\250\2706\0" // LGD2006 / Libya TM zone 6
    "LGD\2276\011Liby\030\250\2707\0" // LGD2006 / Libya TM zone 7
    "LGD\2276\011Liby\030\250\2708\0" // LGD2006 / Libya TM zone 8
    "LGD\2276\011Liby\030\250\2709\0" // LGD2006 / Libya TM zone 9
    "LGD\2276\011U\250\27032N\0" // LGD2006 / UTM zone 32N
    "LGD\2276\011U\250\27033N\0" // LGD2006 / UTM zone 33N
    "LGD\2276\011U\250\27034N\0" // LGD2006 / UTM zone 34N
    "LGD\2276\011U\250\27035N\0" // LGD2006 / UTM zone 35N
    "LGD\2276_Liby\253\250\0" // LGD2006_Libya_TM
    "LGD\2276_Liby\253\376Z\003\207\0" // LGD2006_Libya_TM_Zone_
    "LGD\2276_U\376Z\003\207\0" // LGD2006_UTM_Zone_
    "LKS92\0" // LKS92
    "LKS92\011L<v\314\250\0" // LKS92 / Latvia TM
    "LKS94\0" // LKS94
    "LKS94\205ET|89)\0" // LKS94 (ETRS89)
    "LKS94\011Li\023u\005\314\250\0" // LKS94 / Lithuania TM
    "LKS_\03192\0" // LKS_1992
    "LKS\21292_L<vi\253\250\0" // LKS_1992_Latvia_TM
    "LKS_\03194\0" // LKS_1994
    "LKS\21294_Li\023u\005i\253\250\0" // LKS_1994_Lithuania_TM
    "LTF\2274\0" // LTF2004
    "LTF\2274(G)\0" // LTF2004(G)
    "LUREF\0" // LUREF
    "LUREF\011Lux\206b\025rg \250\0" // LUREF / Luxembourg TM
    "LUREF\011Lux\206b\025rg \250\2053D)\0" // LUREF / Luxembourg TM (3D)
    "LUREF_Lux\206b\025rg_\250\0" // LUREF_Luxembourg_TM
    "LV03M\0" // LV03M
    "L\030C\005oa\0" // La Canoa
    "L\030C\005oa\011U\250\27018N\0" // La Canoa / UTM zone 18N
    "L\030C\005oa\011U\250\27019N\0" // La Canoa / UTM zone 19N
    "L\030C\005oa\011U\250\270\033N\0" // La Canoa / UTM zone 20N
    "LaCross\207C\025\032y\366\0" // LaCrosse_County_Feet
    "LaCross\207C\025\032y_M\311\0" // LaCrosse_County_Meters
    "LaGr\005ge-Nobl\207(ft\204)\0" // LaGrange-Noble_(ftUS)
    "LaGr\005ge-Nobl\207(m)\0" // LaGrange-Noble_(m)
    "LaP\006te-Pul\201ki-St#k\207(ft\204)\0" // LaPorte-Pulaski-Starke_(ftUS)
    "LaP\006te-Pul\201ki-St#k\207(m)\0" // LaPorte-Pulaski-Starke_(m)
    "L\253C\005oa\0" // La_Canoa
    "L\253C\005o\253U\376Z\003\20718N\0" // La_Canoa_UTM_Zone_18N
    "L\253C\005o\253U\376Z\003\20719N\0" // La_Canoa_UTM_Zone_19N
    "L\253C\005o\253U\376Z\003\207\033N\0" // La_Canoa_UTM_Zone_20N
    "L\253Crosse\366\0" // La_Crosse_Feet
    "L\253Cross\207M\311\0" // La_Crosse_Meters
    "L\253Ros\253Gr\257\0" // La_Rosa_Grid
    "Lab\006d\012Gr\257\205G>\210w$h)\0" // Laborde Grid (Greenwich)
    "Lake\011M#acaib\013Gr\257\0" // Lake / Maracaibo Grid
    "Lake\011M#acaib\013Gr\257 M1\0" // Lake / Maracaibo Grid M1
    "Lake\011M#acaib\013Gr\257 M3\0" // Lake / Maracaibo Grid M3
    "Lake\011M#acaib\013L\030Ros\030Gr\257\0" // Lake / Maracaibo La Rosa Grid
    "Lake-\361t\003_(ft\204)\0" // Lake-Newton_(ftUS)
    "Lake-\361t\003_(m)\0" // Lake-Newton_(m)
    "Lak\207M#acaibo_\0" // Lake_Maracaibo_
    "Lak^\274weep \334F \250\0" // Lakshadweep NSF TM
    "L\232b\007t_93\0" // Lambert_93
    "L\005c\240\024\333oa\021\223Gr\257\0" // Lancelin Coastal Grid
    "L\005gl\274\207C\025\032y\366\0" // Langlade_County_Feet
    "L\005gl\274\207C\025\032y_M\311\0" // Langlade_County_Meters
    "L\005gl\274e\366\0" // Langlade_Feet
    "L\005gl\274\207M\311\0" // Langlade_Meters
    "La\013\03193\0" // Lao 1993
    "La\013\03197\0" // Lao 1997
    "La\013N<\321\223D<um \03197\0" // Lao National Datum 1997
    "Lao_\03193\0" // Lao_1993
    "Lao_\03197\0" // Lao_1997
    "Lao_N<\321\026_D<um_\03197\0" // Lao_National_Datum_1997
    "Laos\0" // Laos
    "L<\024 Am\007\346\3122\21796\037\0" // Latin America - 102°W to 96°W
    "L<\024 Am\007\346\3128\217\3122\037\0" // Latin America - 108°W to 102°W
    "L<\024 Am\007\346\1774\217\3128\037\0" // Latin America - 114°W to 108°W
    "L<\024 Am\007\3461\033\217\1774\037\0" // Latin America - 120°W to 114°W
    "L<\024 Am\007\34678\21772\037e\021; N\305\012\035{IRGAS \363\0" // Latin America - 78°W to 72°West; N hemisphere and SIRGAS by country
    "L<\024 Am\007\34684\21778\037e\021; N\305\012\035{IRGAS \363\0" // Latin America - 84°W to 78°West; N hemisphere and SIRGAS by country
    "L<\024 Am\007\34690\21784\037; N\305\012\035{IRGAS \2270 \363\0" // Latin America - 90°W to 84°W; N hemisphere and SIRGAS 2000 by country
    "L<\024 Am\007\34696\21790\037; N\305\012\035{IRGAS \2270 \363\0" // Latin America - 96°W to 90°W; N hemisphere and SIRGAS 2000 by country
    "L<\024 Am\007\346C\365\223Am\007$\030\035{\246Am\007$a\0" // Latin America - Central America and South America
    "L<\024 Am\007\346SIRGAS \2270 \363\0" // Latin America - SIRGAS 2000 by country
    "L<via\0" // Latvia
    "L<v\314\03192\0" // Latvia 1992
    "L<vi\253\03192\0" // Latvia_1992
    "L<v\335 Tr\005sv\220\012M\007c<\006\0" // Latvian Transverse Mercator
    "L\012P\025c\012(Ma\225\243i\357 \0" // Le Pouce (Mauritius 
    "L\012P\025c\012\03134\0" // Le Pouce 1934
    "L\012P\025c\012\03134\011Ma\225\243i\357 Gr\257\0" // Le Pouce 1934 / Mauritius Grid
    "L\207P\025c\207\03134\0" // Le_Pouce_1934
    "L\207P\025c\207\03134_Ma\225\243i\357_Gr\257\0" // Le_Pouce_1934_Mauritius_Grid
    "Leb\005\003\002\237\0" // Lebanon - onshore
    "Leig\003\0" // Leigon
    "Leig\003\011Gh\005\030M\036r\012Gr\257\0" // Leigon / Ghana Metre Grid
    "L\036$i\253Ama!\201_\03194\0" // Leticia_Amazonas_1994
    "Lev\005t\0" // Levant
    "Lhue\032s\207\250\0" // Lhuentse_TM
    "Lib\007\215\237\0" // Liberia - onshore
    "Lib\007\314\03164\0" // Liberia 1964
    "Lib\007ia\21264\0" // Liberia_1964
    "Libya\0" // Libya
    "Liby\034\312\3452\360\237\0" // Libya - 10°E to 12°E onshore
    "Liby\03412\3454\360\237\0" // Libya - 12°E to 14°E onshore
    "Liby\03412\3458\015\0" // Libya - 12°E to 18°E
    "Liby\03412\3458\360\237\0" // Libya - 12°E to 18°E onshore
    "Liby\03414\3456\360\237\0" // Libya - 14°E to 16°E onshore
    "Liby\03416\3458\360\237\0" // Libya - 16°E to 18°E onshore
    "Liby\03418}\033\360\237\0" // Libya - 18°E to 20°E onshore
    "Liby\03418}24\015\0" // Libya - 18°E to 24°E
    "Liby\03418}24\360\237\0" // Libya - 18°E to 24°E onshore
    "Liby\034\033}22\360\237\0" // Libya - 20°E to 22°E onshore
    "Liby\03422}24\360\237\0" // Libya - 22°E to 24°E onshore
    "Liby\034e\315\25224\015\0" // Libya - east of 24°E
    "Liby\034e\315\25224\360\237\0" // Libya - east of 24°E onshore
    "Liby\034w\275\252\312\015\0" // Libya - west of 10°E
    "Liby\034w\275\25212\015\0" // Libya - west of 12°E
    "Liby\034w\275\25212\360\237\0" // Libya - west of 12°E onshore
    "Liby\034w\275\25215\360\237\0" // Libya - west of 15°E onshore
    "Liby\005 Geod\036$ D<um \2276\0" // Libyan Geodetic Datum 2006
    "Liby\005_Geod\036$_D<um_\2276\0" // Libyan_Geodetic_Datum_2006
    "Liecht\210\021e\024\0" // Liechtenstein
    "Li\036uvos Ko\006d\024aciu{i\021\206\030\03194\0" // Lietuvos Koordinaciu Sistema 1994
    "Li\036uvos Ko\006d\024oei{i\021\206\030\03194\0" // Lietuvos Koordinoei Sistema 1994
    "L\024c\247n\374\025\032y\366\0" // Lincoln_County_Feet
    "L\024c\247n\374\025\032y_M\311\0" // Lincoln_County_Meters
    "L\024c\247n\366\0" // Lincoln_Feet
    "L\024c\247n_M\311\0" // Lincoln_Meters
    "L\024d=_Peak\374\342cu\243\0" // Lindis_Peak_Circuit
    "L\024k\0" // Link
    "L\024k_B\210o\243_1895_A\0" // Link_Benoit_1895_A
    "L\024k_B\210o\243_1895_B\0" // Link_Benoit_1895_B
    "L\024k_Cl#ke\0" // Link_Clarke
    "L\024k_Se#s\0" // Link_Sears
    "L\024k_Se#s\21222_Trunc<\273\0" // Link_Sears_1922_Truncated
    "L\024k_\204\0" // Link_US
    "L=b\003\205L=b\003)\0" // Lisbon (Lisbon)
    "L=b\003\205L=b\003%P\006tugu\242\012Gr\257\0" // Lisbon (Lisbon) / Portuguese Grid
    "L=b\003\205L=b\003%P\006tugu\242\012N<\321\223Gr\257\0" // Lisbon (Lisbon) / Portuguese National Grid
    "L=b\003\011P\006tugu\242\012Gr\257 \361\0" // Lisbon / Portuguese Grid New
    "L=b\2221890\0" // Lisbon 1890
    "L=b\2221890\205L=b\003)\0" // Lisbon 1890 (Lisbon)
    "L=b\2221890\205L=b\003%P\006tug\223B\003ne\0" // Lisbon 1890 (Lisbon) / Portugal Bonne
    "L=b\2221890\011P\006tug\223B\003n\012\361\0" // Lisbon 1890 / Portugal Bonne New
    "L=b\222\03137\0" // Lisbon 1937
    "L=b\222\03137\205L=b\003)\0" // Lisbon 1937 (Lisbon)
    "L=b\222\03137\205L=b\003)/P\006tugu\242\012N<\321\223Gr\257\0" // Lisbon 1937 (Lisbon)/Portuguese National Grid
    "L=b\003_1890\0" // Lisbon_1890
    "L=b\003_1890_L=b\003\0" // Lisbon_1890_Lisbon
    "L=b\003_L=b\003\0" // Lisbon_Lisbon
    "L=b\003_L=b\003_P\006tugu\242\207Gr\257\0" // Lisbon_Lisbon_Portuguese_Grid
    "L=b\003_P\006tugu\242\207Gr\257_\361\0" // Lisbon_Portuguese_Grid_New
    "Li\023u\005\314\03194\0" // Lithuania 1994
    "Li\023u\005\314\03194\205ET|89)\0" // Lithuania 1994 (ETRS89)
    "Li\023u\005i\253\03194\0" // Lithuania_1994
    "L\243tl\012Caym\005\32061\0" // Little Cayman 1961
    "L\243tl\012Caym\005\32061\011U\250\27017N\0" // Little Cayman 1961 / UTM zone 17N
    "L\243tl\012Caym\005 Geod\036$ D<um\32061\0" // Little Cayman Geodetic Datum 1961
    "L\243tl\207Caym\005\21261\0" // Little_Cayman_1961
    "L\243tl\207Caym\005\21261_U\376Z\003\20717N\0" // Little_Cayman_1961_UTM_Zone_17N
    "Loc\223co\006d\024<\012sy\021\206 \252Ch\007k\201\200\262\321\0" // Local coordinate system of Cherkasy region
    "Loc\223co\006d\024<\012sy\021\206 \252Ch\007nihiv \262\321\0" // Local coordinate system of Chernihiv region
    "Loc\223co\006d\024<\012sy\021\206 \252Ch\007nivtsi \262\321\0" // Local coordinate system of Chernivtsi region
    "Loc\223co\006d\024<\012sy\021\206 \252Crime\030\262\321\0" // Local coordinate system of Crimea region
    "Loc\223co\006d\024<\012sy\021\206 \252Dniprop\036rovsk \262\321\0" // Local coordinate system of Dnipropetrovsk region
    "Loc\223co\006d\024<\012sy\021\206 \252D\003\036sk \262\321\0" // Local coordinate system of Donetsk region
    "Loc\223co\006d\024<\012sy\021\206 \252Iv\005o-Fr\005kivsk \262\321\0" // Local coordinate system of Ivano-Frankivsk region
    "Loc\223co\006d\024<\012sy\021\206 \252Kh#kiv \262\321\0" // Local coordinate system of Kharkiv region
    "Loc\223co\006d\024<\012sy\021\206 \252Kh\220\222\262\321\0" // Local coordinate system of Kherson region
    "Loc\223co\006d\024<\012sy\021\206 \252K\342ovohr\274 \262\321\0" // Local coordinate system of Kirovohrad region
    "Loc\223co\006d\024<\012sy\021\206 \252Kyiv\0" // Local coordinate system of Kyiv
    "Loc\223co\006d\024<\012sy\021\206 \252Luh\005sk \262\321\0" // Local coordinate system of Luhansk region
    "Loc\223co\006d\024<\012sy\021\206 \252Lviv \262\321\0" // Local coordinate system of Lviv region
    "Loc\223co\006d\024<\012sy\021\206 \252Myk\247aiv \262\321\0" // Local coordinate system of Mykolaiv region
    "Loc\223co\006d\024<\012sy\021\206 \252Od\242s\030\262\321\0" // Local coordinate system of Odessa region
    "Loc\223co\006d\024<\012sy\021\206 \252P\247tav\030\262\321\0" // Local coordinate system of Poltava region
    "Loc\223co\006d\024<\012sy\021\206 \252Rivn\012\301Khm\240nytsk\200\262\321s\0" // Local coordinate system of Rivne and Khmelnytsky regions
    "Loc\223co\006d\024<\012sy\021\206 \216{eva\021op\247 c\243y\0" // Local coordinate system of Sevastopol city
    "Loc\223co\006d\024<\012sy\021\206 \216{um\200\262\321\0" // Local coordinate system of Sumy region
    "Loc\223co\006d\024<\012sy\021\206 \252T\007nop\372 \262\321\0" // Local coordinate system of Ternopil region
    "Loc\223co\006d\024<\012sy\021\206 \252V\024nyts\314\262\321\0" // Local coordinate system of Vinnytsia region
    "Loc\223co\006d\024<\012sy\021\206 \252V\247yn \262\321\0" // Local coordinate system of Volyn region
    "Loc\223co\006d\024<\012sy\021\206 \252Zak#p<t\314\262\321\0" // Local coordinate system of Zakarpattia region
    "Loc\223co\006d\024<\012sy\021\206 \252Zap\006izhzh\314\262\321\0" // Local coordinate system of Zaporizhzhia region
    "Loc\223co\006d\024<\012sy\021\206 \252Zhyt\344yr \262\321\0" // Local coordinate system of Zhytomyr region
    "Locodj\013\03165\0" // Locodjo 1965
    "Locodj\013\03165\011\250 5 NW\0" // Locodjo 1965 / TM 5 NW
    "Locodj\013\03165\011U\250\27029N\0" // Locodjo 1965 / UTM zone 29N
    "Locodj\013\03165\011U\250\270\375N\0" // Locodjo 1965 / UTM zone 30N
    "Locodjo\21265\0" // Locodjo_1965
    "Locodjo\21265_\3765_NW\0" // Locodjo_1965_TM_5_NW
    "Locodjo\21265_U\376Z\003\20729N\0" // Locodjo_1965_UTM_Zone_29N
    "Locodjo\21265_U\376Z\003\207\375N\0" // Locodjo_1965_UTM_Zone_30N
    "L\344\030Qu\024t\005a\0" // Loma Quintana
    "L\344\253Qu\024t\005a\0" // Loma_Quintana
    "L\344e\0" // Lome
    "L\344e\011U\250\27031N\0" // Lome / UTM zone 31N
    "L\344\207U\376Z\003\20731N\0" // Lome_UTM_Zone_31N
    "L\025=\335\030@\313 \324!e\0" // Louisiana CS27 North zone
    "L\025=\335\030@\313 Off^\006\012!e\0" // Louisiana CS27 Offshore zone
    "L\025=\335\030@\313{\246!e\0" // Louisiana CS27 South zone
    "L\025=\335\253\371\2671701\0" // Louisiana_North_FIPS_1701
    "L\025=\335\253\371\2671701\366\0" // Louisiana_North_FIPS_1701_Feet
    "L\025=\335\253\371\2671701\134t_\204\0" // Louisiana_North_FIPS_1701_Ft_US
    "L\025=\335\253Off^\202\2671703\0" // Louisiana_Offshore_FIPS_1703
    "L\025=\335\253Off^\202\2671703\366\0" // Louisiana_Offshore_FIPS_1703_Feet
    "L\025=\335\253S\362\2671702\0" // Louisiana_South_FIPS_1702
    "L\025=\335\253S\362\2671702\366\0" // Louisiana_South_FIPS_1702_Feet
    "L\025=\335\253S\362\2671702\134t_\204\0" // Louisiana_South_FIPS_1702_Ft_US
    "Lux\206b\025rg\32030\0" // Luxembourg 1930
    "Lux\206b\025rg Ref\007\210c\012Fr\232e\0" // Luxembourg Reference Frame
    "Lux\206b\025rg_Ref\007\210ce\134r\232e\0" // Luxembourg_Reference_Frame
    "Lu!\32011\0" // Luzon 1911
    "Lu!\320\177\011Ph\372ipp\024\242\270I\0" // Luzon 1911 / Philippines zone I
    "Lu!\320\177\011Ph\372ipp\024\242\270II\0" // Luzon 1911 / Philippines zone II
    "Lu!\320\177\011Ph\372ipp\024\242\270III\0" // Luzon 1911 / Philippines zone III
    "Lu!\320\177\011Ph\372ipp\024\242\270IV\0" // Luzon 1911 / Philippines zone IV
    "Lu!\320\177\011Ph\372ipp\024\242\270V\0" // Luzon 1911 / Philippines zone V
    "Lu!\21211\0" // Luzon_1911
    "Ly\222T\225\024 F\007rovia\342\012\2274\0" // Lyon Turin Ferroviaire 2004
    "Ly\003_T\225\024\134\007roviai>_\2274\0" // Lyon_Turin_Ferroviaire_2004
    "M'p\006\026oko\0" // M'poraloko
    "M'p\006\026oko\011U\250\27032N\0" // M'poraloko / UTM zone 32N
    "M'p\006\026oko\011U\250\27032S\0" // M'poraloko / UTM zone 32S
    "MA11\0" // MA11
    "MA\177_Gu\232_Map_Gr\257\0" // MA11_Guam_Map_Grid
    "MA\177_U\376Z\003\20754N\0" // MA11_UTM_Zone_54N
    "MA\177_U\376Z\003\20755N\0" // MA11_UTM_Zone_55N
    "MACAO_\2278\0" // MACAO_2008
    "MAGNA\0" // MAGNA
    "MAGNA-SIRGAS\0" // MAGNA-SIRGAS
    "MAGNA-SIRGAS\011\326auc\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Arauca urban grid
    "MAGNA-SIRGAS\011\326m\210\314\225b\005 gr\257\0" // MAGNA-SIRGAS / Armenia urban grid
    "MAGNA-SIRGAS\011B#r\005qu\372l\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Barranquilla urban grid
    "MAGNA-SIRGAS\011Bog\350\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Bogota urban grid
    "MAGNA-SIRGAS\011Buc#\232\005g\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Bucaramanga urban grid
    "MAGNA-SIRGAS\011C\026i \225b\005 gr\257\0" // MAGNA-SIRGAS / Cali urban grid
    "MAGNA-SIRGAS\011C#tag\210\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Cartagena urban grid
    "MAGNA-SIRGAS\011C\247\344b\314Bog\350\030!e\0" // MAGNA-SIRGAS / Colombia Bogota zone
    "MAGNA-SIRGAS\011C\247\344b\314E\315C\365\223!e\0" // MAGNA-SIRGAS / Colombia East Central zone
    "MAGNA-SIRGAS\011C\247\344b\314E\315!e\0" // MAGNA-SIRGAS / Colombia East zone
    "MAGNA-SIRGAS\011C\247\344b\314F# W\275!e\0" // MAGNA-SIRGAS / Colombia Far West zone
    "MAGNA-SIRGAS\011C\247\344b\314W\275!e\0" // MAGNA-SIRGAS / Colombia West zone
    "MAGNA-SIRGAS\011Cucut\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Cucuta urban grid
    "MAGNA-SIRGAS\011Fl\202nc\314\225b\005 gr\257\0" // MAGNA-SIRGAS / Florencia urban grid
    "MAGNA-SIRGAS\011Ibagu\012\225b\005 gr\257\0" // MAGNA-SIRGAS / Ibague urban grid
    "MAGNA-SIRGAS\011\306\342\257\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Inirida urban grid
    "MAGNA-SIRGAS\011L\036$\314\225b\005 gr\257\0" // MAGNA-SIRGAS / Leticia urban grid
    "MAGNA-SIRGAS\011M\005iz\026\242 \225b\005 gr\257\0" // MAGNA-SIRGAS / Manizales urban grid
    "MAGNA-SIRGAS\011M\273\240l\024 \225b\005 gr\257\0" // MAGNA-SIRGAS / Medellin urban grid
    "MAGNA-SIRGAS\011M\243u \225b\005 gr\257\0" // MAGNA-SIRGAS / Mitu urban grid
    "MAGNA-SIRGAS\011Moco\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Mocoa urban grid
    "MAGNA-SIRGAS\011M\003t\007\314\225b\005 gr\257\0" // MAGNA-SIRGAS / Monteria urban grid
    "MAGNA-SIRGAS\011\310iv\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Neiva urban grid
    "MAGNA-SIRGAS\011Orig\210-Nac\321\026\0" // MAGNA-SIRGAS / Origen-Nacional
    "MAGNA-SIRGAS\011Pa\021\013\225b\005 gr\257\0" // MAGNA-SIRGAS / Pasto urban grid
    "MAGNA-SIRGAS\011P\007e\342\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Pereira urban grid
    "MAGNA-SIRGAS\011Popay\005 \225b\005 gr\257\0" // MAGNA-SIRGAS / Popayan urban grid
    "MAGNA-SIRGAS\011Pu\007t\013C#>n\013\225b\005 gr\257\0" // MAGNA-SIRGAS / Puerto Carreno urban grid
    "MAGNA-SIRGAS\011Quibd\013\225b\005 gr\257\0" // MAGNA-SIRGAS / Quibdo urban grid
    "MAGNA-SIRGAS\011Riohach\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Riohacha urban grid
    "MAGNA-SIRGAS\011S\005 And>s \225b\005 gr\257\0" // MAGNA-SIRGAS / San Andres urban grid
    "MAGNA-SIRGAS\011S\005 Jos\012d\240 Guavi#\012\225b\005 gr\257\0" // MAGNA-SIRGAS / San Jose del Guaviare urban grid
    "MAGNA-SIRGAS\011S\005t\030M#t\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Santa Marta urban grid
    "MAGNA-SIRGAS\011Sucr\012\225b\005 gr\257\0" // MAGNA-SIRGAS / Sucre urban grid
    "MAGNA-SIRGAS\011Tunj\030\225b\005 gr\257\0" // MAGNA-SIRGAS / Tunja urban grid
    "MAGNA-SIRGAS\011V\026l\273up# \225b\005 gr\257\0" // MAGNA-SIRGAS / Valledupar urban grid
    "MAGNA-SIRGAS\011V\372lav$\210ci\013\225b\005 gr\257\0" // MAGNA-SIRGAS / Villavicencio urban grid
    "MAGNA-SIRGAS\011Yop\223\225b\005 gr\257\0" // MAGNA-SIRGAS / Yopal urban grid
    "MAGNA-SIRGAS_Orig\210-Nac\321\026\0" // MAGNA-SIRGAS_Origen-Nacional
    "MAGNA_\0" // MAGNA_
    "M\245GEN\0" // MARGEN
    "M\245GEN\011U\250\27019S\0" // MARGEN / UTM zone 19S
    "M\245GEN\011U\250\270\033S\0" // MARGEN / UTM zone 20S
    "M\245GEN\011U\250\27021S\0" // MARGEN / UTM zone 21S
    "M\245GEN_U\376Z\003\20719S\0" // MARGEN_UTM_Zone_19S
    "M\245GEN_U\376Z\003\207\033S\0" // MARGEN_UTM_Zone_20S
    "M\245GEN_U\376Z\003\20721S\0" // MARGEN_UTM_Zone_21S
    "M\245P00\0" // MARP00
    "MGA_!\20741\0" // MGA_zone_41
    "MGA_!\20742\0" // MGA_zone_42
    "MGA_!\20743\0" // MGA_zone_43
    "MGA_!\20744\0" // MGA_zone_44
    "MGD-\2270\0" // MGD-2000
    "MGI\0" // MGI
    "MGI\205F\007ro)\0" // MGI (Ferro)
    "MGI\205F\007ro%Au\021r\314C\365\223Z\003e\0" // MGI (Ferro) / Austria Central Zone
    "MGI\205F\007ro%Au\021r\314E\315Z\003e\0" // MGI (Ferro) / Austria East Zone
    "MGI\205F\007ro%Au\021r\314GK\333\365\223Z\003e\0" // MGI (Ferro) / Austria GK Central Zone
    "MGI\205F\007ro%Au\021r\314GK E\315Z\003e\0" // MGI (Ferro) / Austria GK East Zone
    "MGI\205F\007ro%Au\021r\314GK W\275Z\003e\0" // MGI (Ferro) / Austria GK West Zone
    "MGI\205F\007ro%Au\021r\314W\275Z\003e\0" // MGI (Ferro) / Austria West Zone
    "MGI\205F\007ro%Au\021r\314\077M28\0" // MGI (Ferro) / Austria zone M28
    "MGI\205F\007ro%Au\021r\314\077M31\0" // MGI (Ferro) / Austria zone M31
    "MGI\205F\007ro%Au\021r\314\077M34\0" // MGI (Ferro) / Austria zone M34
    "MGI\0113-deg>\012Ga\357s\2705\0" // MGI / 3-degree Gauss zone 5
    "MGI\0113-deg>\012Ga\357s\2706\0" // MGI / 3-degree Gauss zone 6
    "MGI\0113-deg>\012Ga\357s\2707\0" // MGI / 3-degree Gauss zone 7
    "MGI\0113-deg>\012Ga\357s\2708\0" // MGI / 3-degree Gauss zone 8
    "MGI\011Au\021r\314C\365\026\0" // MGI / Austria Central
    "MGI\011Au\021r\314Ea\021\0" // MGI / Austria East
    "MGI\011Au\021r\314GK C\365\026\0" // MGI / Austria GK Central
    "MGI\011Au\021r\314GK Ea\021\0" // MGI / Austria GK East
    "MGI\011Au\021r\314GK M28\0" // MGI / Austria GK M28
    "MGI\011Au\021r\314GK M31\0" // MGI / Austria GK M31
    "MGI\011Au\021r\314GK M34\0" // MGI / Austria GK M34
    "MGI\011Au\021r\314GK We\021\0" // MGI / Austria GK West
    "MGI\011Au\021r\314L\232b\007t\0" // MGI / Austria Lambert
    "MGI\011Au\021r\314M28\0" // MGI / Austria M28
    "MGI\011Au\021r\314M31\0" // MGI / Austria M31
    "MGI\011Au\021r\314M34\0" // MGI / Austria M34
    "MGI\011Au\021r\314We\021\0" // MGI / Austria West
    "MGI\011B\026k\005s\2705\0" // MGI / Balkans zone 5
    "MGI\011B\026k\005s\2706\0" // MGI / Balkans zone 6
    "MGI\011B\026k\005s\2707\0" // MGI / Balkans zone 7
    "MGI\011B\026k\005s\2708\0" // MGI / Balkans zone 8
    "MGI\011M28\0" // MGI / M28
    "MGI\011M31\0" // MGI / M31
    "MGI\011M34\0" // MGI / M34
    "MGI\011Slov\210\012N<\321\223Gr\257\0" // MGI / Slovene National Grid
    "MGI\011Slov\210\314Gr\257\0" // MGI / Slovenia Grid
    "MGI\32001\0" // MGI 1901
    "MGI\32001\011B\026k\005s\2705\0" // MGI 1901 / Balkans zone 5
    "MGI\32001\011B\026k\005s\2706\0" // MGI 1901 / Balkans zone 6
    "MGI\32001\011B\026k\005s\2707\0" // MGI 1901 / Balkans zone 7
    "MGI\32001\011B\026k\005s\2708\0" // MGI 1901 / Balkans zone 8
    "MGI\32001\011Slov\210\012N<\321\223Gr\257\0" // MGI 1901 / Slovene National Grid
    "MGI\32001\011Slov\210\314Gr\257\0" // MGI 1901 / Slovenia Grid
    "MGI_\0" // MGI_
    "MGI\21201\0" // MGI_1901
    "MGI\21201_B\026k\005s_\0" // MGI_1901_Balkans_
    "MGI_3_Deg>\207Ga\357s_Z\003\207\0" // MGI_3_Degree_Gauss_Zone_
    "MGI_Au\021ri\253\0" // MGI_Austria_
    "MGI_F\007ro\0" // MGI_Ferro
    "MHEFO 55\0" // MHEFO 55
    "MHNC72\0" // MHNC72
    "MML07 Gr\257\0" // MML07 Grid
    "MML07 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // MML07 Intermediate Reference Frame
    "MML07-IRF\0" // MML07-IRF
    "MML07-\250\0" // MML07-TM
    "MML07_Gr\257\0" // MML07_Grid
    "MML07_I\032\007m\273i<\207Ref\007\210ce\134r\232e\0" // MML07_Intermediate_Reference_Frame
    "MMN\0" // MMN
    "MMN\011\326ge\032\024\0302\0" // MMN / Argentina 2
    "MMN_\326ge\032\024\2532\0" // MMN_Argentina_2
    "MMS\0" // MMS
    "MMS\011\326ge\032\024\0302\0" // MMS / Argentina 2
    "MMS_\326ge\032\024\2532\0" // MMS_Argentina_2
    "MOLDOR\177 Gr\257\0" // MOLDOR11 Grid
    "MOLDOR\177 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // MOLDOR11 Intermediate Reference Frame
    "MOLDOR\177-IRF\0" // MOLDOR11-IRF
    "MOLDOR\177-\250\0" // MOLDOR11-TM
    "MOLDREF99\0" // MOLDREF99
    "MOLDREF99\011M\247dov\030\250\0" // MOLDREF99 / Moldova TM
    "MOLDREF99_M\247dov\253\250\0" // MOLDREF99_Moldova_TM
    "MOMRA T\007>\021ri\223Ref\007\210c\012Fr\232\012\2270\0" // MOMRA Terrestrial Reference Frame 2000
    "MOMRA_T\007>\021ri\026_Ref\007\210ce\134r\232\207\2270\0" // MOMRA_Terrestrial_Reference_Frame_2000
    "MOP \03183\0" // MOP 1983
    "MOP78\0" // MOP78
    "MOP78\011U\250\2701S\0" // MOP78 / UTM zone 1S
    "MOP78_U\3761S\0" // MOP78_UTM_1S
    "MRH21 Gr\257\0" // MRH21 Grid
    "MRH21 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // MRH21 Intermediate Reference Frame
    "MRH21-IRF\0" // MRH21-IRF
    "MRH21-\250\0" // MRH21-TM
    "MRT68\0" // MRT68
    "MS@\0" // MSCS
    "MS@\020runc<\273\0" // MSCS truncated
    "MS@\2707\0" // MSCS zone 7
    "M\250 Nov\030Sc\350\314\03197\2704\0" // MTM Nova Scotia 1997 zone 4
    "M\250 Nov\030Sc\350\314\03197\2705\0" // MTM Nova Scotia 1997 zone 5
    "M\250 Nov\030Sc\350\314\033\312\2704\0" // MTM Nova Scotia 2010 zone 4
    "M\250 Nov\030Sc\350\314\033\312\2705\0" // MTM Nova Scotia 2010 zone 5
    "M\250 Quebec\2702\0" // MTM Quebec zone 2
    "M\3761\0" // MTM_1
    "M\376\312_\322oPQ\0" // MTM_10_SCoPQ
    "M\3762\0" // MTM_2
    "M\3762_\322oPQ\0" // MTM_2_SCoPQ
    "M\3763\0" // MTM_3
    "M\3763_\322oPQ\0" // MTM_3_SCoPQ
    "M\3764\0" // MTM_4
    "M\3764_\322oPQ\0" // MTM_4_SCoPQ
    "M\3765\0" // MTM_5
    "M\3765_\322oPQ\0" // MTM_5_SCoPQ
    "M\3766\0" // MTM_6
    "M\3766_\322oPQ\0" // MTM_6_SCoPQ
    "M\3767_\322oPQ\0" // MTM_7_SCoPQ
    "M\3768_\322oPQ\0" // MTM_8_SCoPQ
    "M\3769_\322oPQ\0" // MTM_9_SCoPQ
    "MTQ_L\232b\007t\0" // MTQ_Lambert
    "MTRF-\2270\0" // MTRF-2000
    "MTRF-\2270\011U\250\27036N\0" // MTRF-2000 / UTM zone 36N
    "MTRF-\2270\011U\250\27037N\0" // MTRF-2000 / UTM zone 37N
    "MTRF-\2270\011U\250\27038N\0" // MTRF-2000 / UTM zone 38N
    "MTRF-\2270\011U\250\27039N\0" // MTRF-2000 / UTM zone 39N
    "MTRF-\2270\011U\250\27040N\0" // MTRF-2000 / UTM zone 40N
    "MTRF-\2270_U\376!\207\0" // MTRF-2000_UTM_zone_
    "MWC18 Gr\257\0" // MWC18 Grid
    "MWC18 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // MWC18 Intermediate Reference Frame
    "MWC18-IRF\0" // MWC18-IRF
    "MWC18-\250\0" // MWC18-TM
    "Maca\013\03120\0" // Macao 1920
    "Maca\013\031\033\011Maca\013Gr\257\0" // Macao 1920 / Macao Grid
    "Maca\013\031\033 Gr\257{y\021\206\0" // Macao 1920 Grid System
    "Maca\013\2278\0" // Macao 2008
    "Maca\013Geod\036$ D<um \2278\0" // Macao Geodetic Datum 2008
    "Macao\21220\0" // Macao_1920
    "Macao\212\033_Macao_Gr\257\0" // Macao_1920_Macao_Grid
    "Macau Gr\257\0" // Macau Grid
    "Mac\273\003\314Ga\357s-Krug\007\0" // Macedonia Gauss-Kruger
    "Mac\273\003\314Ga\357s-Krug\007\020runc<\273\0" // Macedonia Gauss-Kruger truncated
    "Mac\273\003\314St<\012Co\006d\024<\012Sy\021\206\0" // Macedonia State Coordinate System
    "Mac\273\003\314St<\012Co\006d\024<\012Sy\021\206\020runc<\273\0" // Macedonia State Coordinate System truncated
    "Mac\273\003\314St<\012Co\006d\024<\012Sy\021\206\2707\0" // Macedonia State Coordinate System zone 7
    "Mac\273\003\335_St<\207Co\006d\024<\207Sy\021\206\0" // Macedonian_State_Coordinate_System
    "M\274ag\201c#\002ne#^\202\002e\315\25248\015\0" // Madagascar - nearshore - east of 48°E
    "M\274ag\201c#\002ne#^\202\002w\275\25248\015\0" // Madagascar - nearshore - west of 48°E
    "M\274ag\201c#\002\237\0" // Madagascar - onshore
    "M\274ag\201c#\002\213\006\012\301ne#^\202\0" // Madagascar - onshore and nearshore
    "M\274e\342\030\03136\0" // Madeira 1936
    "M\274e\342\030\03136\011U\250\27028N\0" // Madeira 1936 / UTM zone 28N
    "M\274e\342\030SE B\201e\0" // Madeira SE Base
    "M\274e\342\030SE B\201\012\03195\0" // Madeira SE Base 1995
    "M\274e\342a\21236\0" // Madeira_1936
    "M\274e\342a\21236_U\376Z\003\20728N\0" // Madeira_1936_UTM_Zone_28N
    "M\274hy\030Pr\274e^ \334F LCC\0" // Madhya Pradesh NSF LCC
    "M\274hy\253Pr\274e^\0" // Madhya_Pradesh
    "M\274r\257\002LCC\0" // Madrid - LCC
    "M\274r\257 1870\205M\274r\257)\0" // Madrid 1870 (Madrid)
    "M\274r\257 1870\205M\274r\257%Spa\024 LCC\0" // Madrid 1870 (Madrid) / Spain LCC
    "M\274r\257_1870\0" // Madrid_1870
    "M\274r\257_1870_M\274r\257\0" // Madrid_1870_Madrid
    "M\274r\257_1870_M\274r\257_Spa\024\0" // Madrid_1870_Madrid_Spain
    "M\274z\005sua\0" // Madzansua
    "M\373#a^tr\030\334F LCC\0" // Maharashtra NSF LCC
    "M\373\012\03171\0" // Mahe 1971
    "M\373\207\03171\0" // Mahe_1971
    "Ma\024\012@\2270\333\365\223!e\0" // Maine CS2000 Central zone
    "Ma\024\012@\2270\333\365\223\336m\311)\0" // Maine CS2000 Central zone (meters)
    "Ma\024\012@\2270 E\315\336m\311)\0" // Maine CS2000 East zone (meters)
    "Ma\024\012@\2270 W\275\336m\311)\0" // Maine CS2000 West zone (meters)
    "Ma\024\012@\313 E\315!e\0" // Maine CS27 East zone
    "Ma\024\012@\313 W\275!e\0" // Maine CS27 West zone
    "Ma\024\012Co\006d\024<\012Sy\021\206 \252\031\313 E\315Z\003e\0" // Maine Coordinate System of 1927 East Zone
    "Ma\024\012Co\006d\024<\012Sy\021\206 \252\031\313 W\275Z\003e\0" // Maine Coordinate System of 1927 West Zone
    "Ma\024\207\2270\374\365\026_Z\003e\0" // Maine_2000_Central_Zone
    "Ma\024\207\2270_Ea\021_Z\003e\0" // Maine_2000_East_Zone
    "Ma\024\207\2270_We\021_Z\003e\0" // Maine_2000_West_Zone
    "Ma\024\207Ea\021\2671801\0" // Maine_East_FIPS_1801
    "Ma\024\207Ea\021\2671801\366\0" // Maine_East_FIPS_1801_Feet
    "Ma\024\207Ea\021\2671801\134t_\204\0" // Maine_East_FIPS_1801_Ft_US
    "Ma\024\207We\021\2671802\0" // Maine_West_FIPS_1802
    "Ma\024\207We\021\2671802\366\0" // Maine_West_FIPS_1802_Feet
    "Ma\024\207We\021\2671802\134t_\204\0" // Maine_West_FIPS_1802_Ft_US
    "Mak\201s#\0" // Makassar
    "Mak\201s#\205Jak#ta)\0" // Makassar (Jakarta)
    "Mak\201s#\205Jak#ta%NEIEZ\0" // Makassar (Jakarta) / NEIEZ
    "Mak\201s#\011NEIEZ\0" // Makassar / NEIEZ
    "Mak\201s#_Jak#ta\0" // Makassar_Jakarta
    "Mak\201s#_Jak#t\253NEIEZ\0" // Makassar_Jakarta_NEIEZ
    "Mak\201s#_NEIEZ\0" // Makassar_NEIEZ
    "M\026ays\215E\315M\026aysia\0" // Malaysia - East Malaysia
    "M\026ays\215E\315M\026ays\215S#awak \237\0" // Malaysia - East Malaysia - Sarawak onshore
    "M\026ays\215W\275M\026aysia\0" // Malaysia - West Malaysia
    "M\026ays\215W\275M\026ays\215Joh\006\0" // Malaysia - West Malaysia - Johor
    "M\026ays\215W\275M\026ays\215K\273\373 \301P\007l=\0" // Malaysia - West Malaysia - Kedah and Perlis
    "M\026ays\215W\275M\026ays\215K\240\005t\005\0" // Malaysia - West Malaysia - Kelantan
    "M\026ays\215W\275M\026ays\215P\373\005g\0" // Malaysia - West Malaysia - Pahang
    "M\026ays\215W\275M\026ays\215P\007ak\0" // Malaysia - West Malaysia - Perak
    "M\026ays\215W\275M\026ays\215Pulau P\024\005g\0" // Malaysia - West Malaysia - Pulau Pinang
    "M\026ays\215W\275M\026ays\215S\240\005g\006\0" // Malaysia - West Malaysia - Selangor
    "M\026ays\215W\275M\026ays\215S\206b\372\005 \301M\240aka\0" // Malaysia - West Malaysia - Sembilan and Melaka
    "M\026ays\215W\275M\026ays\215T\007\210gg\005u\0" // Malaysia - West Malaysia - Terengganu
    "M\026ays\215W\275M\026ays\215e\315\252\3122\015\0" // Malaysia - West Malaysia - east of 102°E
    "M\026ays\215W\275M\026ays\215\237\0" // Malaysia - West Malaysia - onshore
    "M\026ays\215W\275M\026ays\215\213\006\012w\275\252\3122\015\0" // Malaysia - West Malaysia - onshore west of 102°E
    "M\026ays\314Rev=\273 Tr\335gul<i\222\03168\0" // Malaysia Revised Triangulation 1968
    "M\026div\242\0" // Maldives
    "M\026div\242\002\237\0" // Maldives - onshore
    "M\026\003g\013\03187\0" // Malongo 1987
    "M\026\003g\013\03187\011U\250\27032S\0" // Malongo 1987 / UTM zone 32S
    "M\026\003g\013\03187\011U\250\27033S\0" // Malongo 1987 / UTM zone 33S
    "M\026\003go\21287\0" // Malongo_1987
    "M\026\003go\21287_U\376Z\003\20732S\0" // Malongo_1987_UTM_Zone_32S
    "M\026\003go\21287_U\376!\20733S\0" // Malongo_1987_UTM_zone_33S
    "M\005ip\225 \334F LCC\0" // Manipur NSF LCC
    "M\005iz\026\242\374\026d\201_\03311\0" // Manizales_Caldas_2011
    "M\005oca\0" // Manoca
    "M\005oc\030\03162\0" // Manoca 1962
    "M\005oc\030\03162\011U\250\27032N\0" // Manoca 1962 / UTM zone 32N
    "M\005oca\21262\0" // Manoca_1962
    "M\005oca\21262_U\376Z\003\20732N\0" // Manoca_1962_UTM_Zone_32N
    "Map Gr\257 \252Au\021r\026\314\07741\0" // Map Grid of Australia zone 41
    "Map Gr\257 \252Au\021r\026\314\07742\0" // Map Grid of Australia zone 42
    "Map Gr\257 \252Au\021r\026\314\07743\0" // Map Grid of Australia zone 43
    "Map Gr\257 \252Au\021r\026\314\07744\0" // Map Grid of Australia zone 44
    "Map Gr\257 \252Au\021r\026\314\07746\0" // Map Grid of Australia zone 46
    "Map Gr\257 \252Au\021r\026\314\07747\0" // Map Grid of Australia zone 47
    "Map Gr\257 \252Au\021r\026\314\07748\0" // Map Grid of Australia zone 48
    "Map Gr\257 \252Au\021r\026\314\07749\0" // Map Grid of Australia zone 49
    "Map Gr\257 \252Au\021r\026\314\07750\0" // Map Grid of Australia zone 50
    "Map Gr\257 \252Au\021r\026\314\07751\0" // Map Grid of Australia zone 51
    "Map Gr\257 \252Au\021r\026\314\07752\0" // Map Grid of Australia zone 52
    "Map Gr\257 \252Au\021r\026\314\07753\0" // Map Grid of Australia zone 53
    "Map Gr\257 \252Au\021r\026\314\07754\0" // Map Grid of Australia zone 54
    "Map Gr\257 \252Au\021r\026\314\07755\0" // Map Grid of Australia zone 55
    "Map Gr\257 \252Au\021r\026\314\07756\0" // Map Grid of Australia zone 56
    "Map Gr\257 \252Au\021r\026\314\07757\0" // Map Grid of Australia zone 57
    "Map Gr\257 \252Au\021r\026\314\07758\0" // Map Grid of Australia zone 58
    "Map Gr\257 \252Au\021r\026\314\07759\0" // Map Grid of Australia zone 59
    "M#acaib\013Gr\257\205M1)\0" // Maracaibo Grid (M1)
    "M#acaib\013Gr\257\205M3)\0" // Maracaibo Grid (M3)
    "M#a\023\003\374\025\032y\366\0" // Marathon_County_Feet
    "M#a\023\003\374\025\032y_M\311\0" // Marathon_County_Meters
    "M#a\023\003\366\0" // Marathon_Feet
    "M#a\023\003_M\311\0" // Marathon_Meters
    "M#c\013A\021ro\0" // Marco Astro
    "M#c\013Geoc\365$\013Nac\321\223d\012Ref\007\210cia\0" // Marco Geocentrico Nacional de Referencia
    "M#c\013Geod\242$\013Nac\321\223d\012B\247ivia\0" // Marco Geodesico Nacional de Bolivia
    "M#c\013d\012Ref\007\210c\314Geod\303\251s$\013Nac\321\223Of$i\026\0" // Marco de Referencia Geodésico Nacional Oficial
    "M#co_Geod\242$o_Nac\321\026\0" // Marco_Geodesico_Nacional
    "M#c\357 \352\32052\0" // Marcus Island 1952
    "M#g#\036 Riv\007\333oa\021\223Gr\257\0" // Margaret River Coastal Grid
    "M#\024\036t\207C\025\032y\366\0" // Marinette_County_Feet
    "M#\024\036t\207C\025\032y_M\311\0" // Marinette_County_Meters
    "M#\024\036te\366\0" // Marinette_Feet
    "M#\024\036t\207M\311\0" // Marinette_Meters
    "M#lb\006\025gh\374\342cu\243\0" // Marlborough_Circuit
    "M#^\026l \352s\32060\0" // Marshall Islands 1960
    "M#t\024iqu\226\237\0" // Martinique - onshore
    "M#t\024iqu\012\03138\0" // Martinique 1938
    "M#t\024iqu\012\03138\011U\250\270\033N\0" // Martinique 1938 / UTM zone 20N
    "M#y\211 @27\0" // Maryland CS27
    "M#y\211\266\21200\0" // Maryland_FIPS_1900
    "M#y\211\266\21200\366\0" // Maryland_FIPS_1900_Feet
    "M#y\211\266\21200\134t_\204\0" // Maryland_FIPS_1900_Ft_US
    "M\201sach\357\036ts @\313 \352 !e\0" // Massachusetts CS27 Island zone
    "M\201sach\357\036ts @\313 Ma\024\211 !e\0" // Massachusetts CS27 Mainland zone
    "M\201sach\357\036ts_\325l\267\2272\134t\204\0" // Massachusetts_Isl_FIPS_2002_FtUS
    "M\201sach\357\036ts_\352\267\2272\0" // Massachusetts_Island_FIPS_2002
    "M\201sach\357\036ts_\352\267\2272\366\0" // Massachusetts_Island_FIPS_2002_Feet
    "M\201sach\357\036ts_Ma\024\211\267\2271\0" // Massachusetts_Mainland_FIPS_2001
    "M\201sach\357\036ts_Ma\024\211\267\2271\366\0" // Massachusetts_Mainland_FIPS_2001_Feet
    "M\201sach\357\036ts_Mn\316\267\2271\134t\204\0" // Massachusetts_Mnld_FIPS_2001_FtUS
    "M\201sawa\0" // Massawa
    "M\201sawa\011U\250\27037N\0" // Massawa / UTM zone 37N
    "M\201saw\253U\376Z\003\20737N\0" // Massawa_UTM_Zone_37N
    "Maup\243i 83\0" // Maupiti 83
    "Maup\243i \014\011U\250\2705S\0" // Maupiti 83 / UTM zone 5S
    "Maup\243i_\03183\0" // Maupiti_1983
    "Maup\243i\212\014_U\376Z\003\2075S\0" // Maupiti_1983_UTM_Zone_5S
    "Ma\225\243\005ia\0" // Mauritania
    "Ma\225\243\005\21512\2176\037\0" // Mauritania - 12°W to 6°W
    "Ma\225\243\005\21518\21712\037\0" // Mauritania - 18°W to 12°W
    "Ma\225\243\005\215c\365\223coa\021\0" // Mauritania - central coast
    "Ma\225\243\005\215e\315\2526\037\0" // Mauritania - east of 6°W
    "Ma\225\243\005\215n\006`coa\021\0" // Mauritania - north coast
    "Ma\225\243\005\215\237\0" // Mauritania - onshore
    "Ma\225\243\005\215w\275\25212\037 \237\0" // Mauritania - west of 12°W onshore
    "Ma\225\243\005\314\03199\0" // Mauritania 1999
    "Ma\225\243\005\314\03199\011U\250\27028N\0" // Mauritania 1999 / UTM zone 28N
    "Ma\225\243\005\314\03199\011U\250\27029N\0" // Mauritania 1999 / UTM zone 29N
    "Ma\225\243\005\314\03199\011U\250\270\375N\0" // Mauritania 1999 / UTM zone 30N
    "Ma\225\243\005ia\21299\0" // Mauritania_1999
    "Ma\225\243\005ia\21299_U\376Z\003\207\0" // Mauritania_1999_UTM_Zone_
    "Ma\225\243\005\335 M\024\024g\333\274a\021r\012\03199\0" // Mauritanian Mining Cadastre 1999
    "Ma\225\243i\357\002ma\024\211\0" // Mauritius - mainland
    "May\350te\0" // Mayotte
    "May\350t\226\237\0" // Mayotte - onshore
    "McM\225d\013S\025nd L\232b\007t\333\003f\006m\223\2270\0" // McMurdo Sound Lambert Conformal 2000
    "M\273\240l\024_A\032ioqui\253\03310\0" // Medellin_Antioquia_2010
    "M\273f\006d-Di\232\003d_Lak\207\017\212\014_\231_LCC\134t_I\032l\0" // Medford-Diamond_Lake_NAD_1983_2011_LCC_Ft_Intl
    "M\273f\006d-Di\232\003d_Lak\207\017\212\014_\231_LCC_M\311\0" // Medford-Diamond_Lake_NAD_1983_2011_LCC_Meters
    "Megh\026ay\030\334F LCC\0" // Meghalaya NSF LCC
    "M\210\344\024e\207C\025\032y\366\0" // Menominee_County_Feet
    "M\210\344\024e\207C\025\032y_M\311\0" // Menominee_County_Meters
    "M\210\344\024ee\366\0" // Menominee_Feet
    "M\210\344\024e\207M\311\0" // Menominee_Meters
    "M\007c<\006_41\0" // Mercator_41
    "M\007ch$h\0" // Merchich
    "M\007ch$h\011\203d M#oc\0" // Merchich / Nord Maroc
    "M\007ch$h\011S\373#a\0" // Merchich / Sahara
    "M\007ch$h\011S\373#\030\203d\0" // Merchich / Sahara Nord
    "M\007ch$h\011S\373#\030Sud\0" // Merchich / Sahara Sud
    "M\007ch$h\011Sud M#oc\0" // Merchich / Sud Maroc
    "M\007ch$h_S\373#\253\203d\0" // Merchich_Sahara_Nord
    "M\007ch$h_S\373#\253Sud\0" // Merchich_Sahara_Sud
    "M\036\007\0" // Meter
    "M\036\007_G\007m\005\0" // Meter_German
    "Mex$\005 D<um \252\03193\0" // Mexican Datum of 1993
    "Mex$\005_D<um\21293_U\376Z\003\207\0" // Mexican_Datum_1993_UTM_Zone_
    "Mex$\005_D<um_\216_\03193\0" // Mexican_Datum_of_1993
    "Mex$o\0" // Mexico
    "Mex$o\002\3122\21796\037\0" // Mexico - 102°W to 96°W
    "Mex$o\002\3128\217\3122\037\0" // Mexico - 108°W to 102°W
    "Mex$o\002\1774\217\3128\037\0" // Mexico - 114°W to 108°W
    "Mex$o\00296\21790\037\0" // Mexico - 96°W to 90°W
    "Mex$o\002e\315\25290\037\0" // Mexico - east of 90°W
    "Mex$o\002w\275\252\1774\037\0" // Mexico - west of 114°W
    "Mex$\013ITRF\2278\0" // Mexico ITRF2008
    "Mex$\013ITRF\2278\011LCC\0" // Mexico ITRF2008 / LCC
    "Mex$\013ITRF\2278\011U\250\27011N\0" // Mexico ITRF2008 / UTM zone 11N
    "Mex$\013ITRF\2278\011U\250\27012N\0" // Mexico ITRF2008 / UTM zone 12N
    "Mex$\013ITRF\2278\011U\250\27013N\0" // Mexico ITRF2008 / UTM zone 13N
    "Mex$\013ITRF\2278\011U\250\27014N\0" // Mexico ITRF2008 / UTM zone 14N
    "Mex$\013ITRF\2278\011U\250\27015N\0" // Mexico ITRF2008 / UTM zone 15N
    "Mex$\013ITRF\2278\011U\250\27016N\0" // Mexico ITRF2008 / UTM zone 16N
    "Mex$\013ITRF92\0" // Mexico ITRF92
    "Mex$\013ITRF92\011LCC\0" // Mexico ITRF92 / LCC
    "Mex$\013ITRF92\011U\250\27011N\0" // Mexico ITRF92 / UTM zone 11N
    "Mex$\013ITRF92\011U\250\27012N\0" // Mexico ITRF92 / UTM zone 12N
    "Mex$\013ITRF92\011U\250\27013N\0" // Mexico ITRF92 / UTM zone 13N
    "Mex$\013ITRF92\011U\250\27014N\0" // Mexico ITRF92 / UTM zone 14N
    "Mex$\013ITRF92\011U\250\27015N\0" // Mexico ITRF92 / UTM zone 15N
    "Mex$\013ITRF92\011U\250\27016N\0" // Mexico ITRF92 / UTM zone 16N
    "Mex$\013LCC\0" // Mexico LCC
    "Mex$o\374\365\026\267\37502\366\0" // Mexico_Central_FIPS_3002_Feet
    "Mex$o_Ea\021\267\37501\366\0" // Mexico_East_FIPS_3001_Feet
    "Mex$o_ITRF\2278\0" // Mexico_ITRF2008
    "Mex$o_ITRF\2278_LCC\0" // Mexico_ITRF2008_LCC
    "Mex$o_ITRF\2278_U\376Z\003\207\0" // Mexico_ITRF2008_UTM_Zone_
    "Mex$o_ITRF92_LCC\0" // Mexico_ITRF92_LCC
    "Mex$o_We\021\267\37503\366\0" // Mexico_West_FIPS_3003_Feet
    "Mha\021\0" // Mhast
    "Mh\315(\216f^\202)\0" // Mhast (offshore)
    "Mh\315(\216f^\202%U\250\27032S\0" // Mhast (offshore) / UTM zone 32S
    "Mh\315(\237)\0" // Mhast (onshore)
    "Mh\315(\237%U\250\27032S\0" // Mhast (onshore) / UTM zone 32S
    "Mha\021\011U\250\27032S\0" // Mhast / UTM zone 32S
    "Mh\315\03151\0" // Mhast 1951
    "Mha\021\21251\0" // Mhast_1951
    "Mha\021_Off^\202\0" // Mhast_Offshore
    "Mha\021_Off^\202_U\376Z\003\20732S\0" // Mhast_Offshore_UTM_Zone_32S
    "Mha\021_On^\202\0" // Mhast_Onshore
    "Mha\021_On^\202_U\376Z\003\20732S\0" // Mhast_Onshore_UTM_Zone_32S
    "Mha\021_U\376Z\003\20732S\0" // Mhast_UTM_Zone_32S
    "M$hig\005 @\313\333\365\223!e\0" // Michigan CS27 Central zone
    "M$hig\005 @\313 \324!e\0" // Michigan CS27 North zone
    "M$hig\005 @\313{\246!e\0" // Michigan CS27 South zone
    "M$hig\005 Obliqu\012M\007c<\006\205m\311)\0" // Michigan Oblique Mercator (meters)
    "M$hig\005{t<\012Pl\005\012E\315!e\0" // Michigan State Plane East zone
    "M$hig\005{t<\012Pl\005\012O\316\333\365\223!e\0" // Michigan State Plane Old Central zone
    "M$hig\005{t<\012Pl\005\012W\275!e\0" // Michigan State Plane West zone
    "M$hig\005_C\365\026\2672112\0" // Michigan_Central_FIPS_2112
    "M$hig\005\374\365\026\2672\1772\366_I\032l\0" // Michigan_Central_FIPS_2112_Feet_Intl
    "M$hig\005\374\365\026\2672\1772\134t_I\032l\0" // Michigan_Central_FIPS_2112_Ft_Intl
    "M$hig\005_C\365\026_O\316\2672\3122\0" // Michigan_Central_Old_FIPS_2102
    "M$hig\005_Ea\021_O\316\2672\3121\0" // Michigan_East_Old_FIPS_2101
    "M$hig\005_GeoRef_M\311\0" // Michigan_GeoRef_Meters
    "M$hig\005_\371\2672111\0" // Michigan_North_FIPS_2111
    "M$hig\005_\371\2672\1771\366_I\032l\0" // Michigan_North_FIPS_2111_Feet_Intl
    "M$hig\005_\371\2672\1771\134t_I\032l\0" // Michigan_North_FIPS_2111_Ft_Intl
    "M$hig\005_S\362\2672113\0" // Michigan_South_FIPS_2113
    "M$hig\005_S\362\2672\1773\366_I\032l\0" // Michigan_South_FIPS_2113_Feet_Intl
    "M$hig\005_S\362\2672\1773\134t_I\032l\0" // Michigan_South_FIPS_2113_Ft_Intl
    "M$hig\005_We\021_O\316\2672\3123\0" // Michigan_West_Old_FIPS_2103
    "M$r\003\242\215Kos\370\012(K\357aie)\0" // Micronesia - Kosrae (Kusaie)
    "M$r\003\242\215Yap \352s\0" // Micronesia - Yap Islands
    "M\257wa\200\03161\0" // Midway 1961
    "M\257wa\200\352s\002S\301\301Ea\021\007n \352s\0" // Midway Islands - Sand and Eastern Islands
    "M\257way\21261\0" // Midway_1961
    "M\372\207\204\0" // Mile_US
    "M\372\243#-Geog\370\230=ch\012\306\021\243ut\0" // Militar-Geographische Institut
    "M\372\243#-Geog\370\230=ch\012\306\021\243ut\205F\007ro)\0" // Militar-Geographische Institut (Ferro)
    "M\372k_Riv\007\134t_I\032l\0" // Milk_River_Ft_Intl
    "M\372k_Riv\007_M\311\0" // Milk_River_Meters
    "M\372lim\036\007\0" // Millimeter
    "M\024i\021\007i\013d\012M#\024\030\203te\0" // Ministerio de Marina Norte
    "M\024i\021\007i\013d\012M#\024\030S\225\0" // Ministerio de Marina Sur
    "M\024i\021\007io_d\207M#\024\253\203te\0" // Ministerio_de_Marina_Norte
    "M\024i\021\007io_d\207M#\024\253S\225\0" // Ministerio_de_Marina_Sur
    "M\024i\021r\200\252Tr\005sp\006t \252Quebec L\232b\007t\0" // Ministry of Transport of Quebec Lambert
    "M\024na\0" // Minna
    "M\024na\011Nig\007\314E\315B\240t\0" // Minna / Nigeria East Belt
    "M\024na\011Nig\007\314M\257 B\240t\0" // Minna / Nigeria Mid Belt
    "M\024na\011Nig\007\314W\275B\240t\0" // Minna / Nigeria West Belt
    "M\024na\011U\250\27031N\0" // Minna / UTM zone 31N
    "M\024na\011U\250\27032N\0" // Minna / UTM zone 32N
    "M\024n\253U\376Z\003\20731N\0" // Minna_UTM_Zone_31N
    "M\024n\253U\376Z\003\20732N\0" // Minna_UTM_Zone_32N
    "M\024n\242\350\030@\313\333\365\223!e\0" // Minnesota CS27 Central zone
    "M\024n\242\350\030@\313 \324!e\0" // Minnesota CS27 North zone
    "M\024n\242\350\030@\313{\246!e\0" // Minnesota CS27 South zone
    "M\024n\242\350\253C\365\026\2672\0332\0" // Minnesota_Central_FIPS_2202
    "M\024n\242\350\253C\365\026\2672\0332\366\0" // Minnesota_Central_FIPS_2202_Feet
    "M\024n\242\350\253C\365\026\2672\0332\134t_\204\0" // Minnesota_Central_FIPS_2202_Ft_US
    "M\024n\242\350\253\371\2672\0331\0" // Minnesota_North_FIPS_2201
    "M\024n\242\350\253\371\2672\0331\366\0" // Minnesota_North_FIPS_2201_Feet
    "M\024n\242\350\253\371\2672\0331\134t_\204\0" // Minnesota_North_FIPS_2201_Ft_US
    "M\024n\242\350\253S\362\2672\0333\0" // Minnesota_South_FIPS_2203
    "M\024n\242\350\253S\362\2672\0333\366\0" // Minnesota_South_FIPS_2203_Feet
    "M\024n\242\350\253S\362\2672\0333\134t_\204\0" // Minnesota_South_FIPS_2203_Ft_US
    "M=sa\013H\257rog\370f$\013Ang\247\030y{a\013T\344\012\03151\0" // Missao Hidrografico Angola y Sao Tome 1951
    "M=s=sippi @\313 E\315!e\0" // Mississippi CS27 East zone
    "M=s=sippi @\313 W\275!e\0" // Mississippi CS27 West zone
    "M=s=sippi Tr\005sv\220\012M\007c<\006\0" // Mississippi Transverse Mercator
    "M=s=sippi_Ea\021\2672\3751\0" // Mississippi_East_FIPS_2301
    "M=s=sippi_Ea\021\2672\3751\366\0" // Mississippi_East_FIPS_2301_Feet
    "M=s=sippi_Ea\021\2672\3751\134t_\204\0" // Mississippi_East_FIPS_2301_Ft_US
    "M=s=sippi_\250\0" // Mississippi_TM
    "M=s=sippi_We\021\2672\3752\0" // Mississippi_West_FIPS_2302
    "M=s=sippi_We\021\2672\3752\366\0" // Mississippi_West_FIPS_2302_Feet
    "M=s=sippi_We\021\2672\3752\134t_\204\0" // Mississippi_West_FIPS_2302_Ft_US
    "M=s\025ri @\313\333\365\223!e\0" // Missouri CS27 Central zone
    "M=s\025ri @\313 E\315!e\0" // Missouri CS27 East zone
    "M=s\025ri @\313 W\275!e\0" // Missouri CS27 West zone
    "M=s\025ri\374\365\026\2672402\0" // Missouri_Central_FIPS_2402
    "M=s\025ri_Ea\021\2672401\0" // Missouri_East_FIPS_2401
    "M=s\025ri_We\021\2672403\0" // Missouri_West_FIPS_2403
    "M\243ch\240l_\017\212\014_\231_LCC\134t_I\032l\0" // Mitchell_NAD_1983_2011_LCC_Ft_Intl
    "M\243ch\240l_\017\212\014_\231_LCC_M\311\0" // Mitchell_NAD_1983_2011_LCC_Meters
    "M\243u_Vaup\242_\03311\0" // Mitu_Vaupes_2011
    "Miz\006\232 \334F \250\0" // Mizoram NSF TM
    "Moco\253Putumayo_\03311\0" // Mocoa_Putumayo_2011
    "Modifi\273 Krovak\205G>\210w$h)\0" // Modified Krovak (Greenwich)
    "Modifi\273 Krovak E\315\324(G>\210w$h)\0" // Modified Krovak East North (Greenwich)
    "Modifi\273 Lu! D<um\0" // Modified Luzon Datum
    "Modifi\273\21269\0" // Modified_1969
    "M\247dova\0" // Moldova
    "M\247dov\034e\315\252\375\015\0" // Moldova - east of 30°E
    "M\247dov\034w\275\252\375\015\0" // Moldova - west of 30°E
    "M\247dov\030Tr\005sv\220\012M\007c<\006\0" // Moldova Transverse Mercator
    "M\003g#_\250\0" // Mongar_TM
    "M\003roe-M\006g\005_(ft\204)\0" // Monroe-Morgan_(ftUS)
    "M\003roe-M\006g\005_(m)\0" // Monroe-Morgan_(m)
    "M\003ro\207C\025\032y\366\0" // Monroe_County_Feet
    "M\003ro\207C\025\032y_M\311\0" // Monroe_County_Meters
    "M\003roe\366\0" // Monroe_Feet
    "M\003ro\207M\311\0" // Monroe_Meters
    "M\003t\005\030B\372l\024gs\205I\032\007n<\321\223f\221)\0" // Montana Billings (International feet)
    "M\003t\005\030B\372l\024gs\205m\311)\0" // Montana Billings (meters)
    "M\003t\005\030Blackf\221\205I\032\007n<\321\223f\221)\0" // Montana Blackfeet (International feet)
    "M\003t\005\030Blackf\221\205m\311)\0" // Montana Blackfeet (meters)
    "M\003t\005\030Blackf\221{t M#\200V\026le\200(I\032\007n<\321\223f\221)\0" // Montana Blackfeet St Mary Valley (International feet)
    "M\003t\005\030Blackf\221{t M#\200V\026le\200(m\311)\0" // Montana Blackfeet St Mary Valley (meters)
    "M\003t\005\030Bobc<\205I\032\007n<\321\223f\221)\0" // Montana Bobcat (International feet)
    "M\003t\005\030Bobc<\205m\311)\0" // Montana Bobcat (meters)
    "M\003t\005\030@\313\333\365\223!e\0" // Montana CS27 Central zone
    "M\003t\005\030@\313 \324!e\0" // Montana CS27 North zone
    "M\003t\005\030@\313{\246!e\0" // Montana CS27 South zone
    "M\003t\005\030Crow\205I\032\007n<\321\223f\221)\0" // Montana Crow (International feet)
    "M\003t\005\030Crow\205m\311)\0" // Montana Crow (meters)
    "M\003t\005\030F\006t B\240knap\205I\032\007n<\321\223f\221)\0" // Montana Fort Belknap (International feet)
    "M\003t\005\030F\006t B\240knap\205m\311)\0" // Montana Fort Belknap (meters)
    "M\003t\005\030F\006t Peck Ass\024ibo\024\012(I\032\007n<\321\223f\221)\0" // Montana Fort Peck Assiniboine (International feet)
    "M\003t\005\030F\006t Peck Ass\024ibo\024\012(m\311)\0" // Montana Fort Peck Assiniboine (meters)
    "M\003t\005\030F\006t Peck{i\025x\205I\032\007n<\321\223f\221)\0" // Montana Fort Peck Sioux (International feet)
    "M\003t\005\030F\006t Peck{i\025x\205m\311)\0" // Montana Fort Peck Sioux (meters)
    "M\003t\005\030M\372k Riv\007\205I\032\007n<\321\223f\221)\0" // Montana Milk River (International feet)
    "M\003t\005\030M\372k Riv\007\205m\311)\0" // Montana Milk River (meters)
    "M\003t\005\253C\365\026\2672502\0" // Montana_Central_FIPS_2502
    "M\003t\005a\2672500\0" // Montana_FIPS_2500
    "M\003t\005a\2672500\366_I\032l\0" // Montana_FIPS_2500_Feet_Intl
    "M\003t\005a\2672500\134t_I\032l\0" // Montana_FIPS_2500_Ft_Intl
    "M\003t\005\253\371\2672501\0" // Montana_North_FIPS_2501
    "M\003t\005\253S\362\2672503\0" // Montana_South_FIPS_2503
    "M\003t\012M#io\0" // Monte Mario
    "M\003t\012M#i\013(R\344e)\0" // Monte Mario (Rome)
    "M\003t\012M#i\013(R\344e%It\026\200\0771\0" // Monte Mario (Rome) / Italy zone 1
    "M\003t\012M#i\013(R\344e%It\026\200\0772\0" // Monte Mario (Rome) / Italy zone 2
    "M\003t\012M#io\011It\026\200\0771\0" // Monte Mario / Italy zone 1
    "M\003t\012M#io\011It\026\200\0772\0" // Monte Mario / Italy zone 2
    "M\003t\012M#io\011\250 Em\372ia-R\344agna\0" // Monte Mario / TM Emilia-Romagna
    "M\003t\207M#io\0" // Monte_Mario
    "M\003t\207M#io_\0" // Monte_Mario_
    "M\003t\207M#io_R\344e\0" // Monte_Mario_Rome
    "M\003t\007i\253C\006dob\253\2276\0" // Monteria_Cordoba_2006
    "M\003tg\344\007y-Putn\232_(ft\204)\0" // Montgomery-Putnam_(ftUS)
    "M\003tg\344\007y-Putn\232_(m)\0" // Montgomery-Putnam_(m)
    "M\003ts\007r<\002\237\0" // Montserrat - onshore
    "M\003ts\007r<\32058\0" // Montserrat 1958
    "M\003ts\007r<\32058\011Br\243=h W\275\355i\242 Gr\257\0" // Montserrat 1958 / British West Indies Grid
    "M\003ts\007r< 58\0" // Montserrat 58
    "M\003ts\007r<\21258\0" // Montserrat_1958
    "M\003ts\007r<\21258_Br\243=h_We\021_\355i\242_Gr\257\0" // Montserrat_1958_British_West_Indies_Grid
    "Mo\202\03087\0" // Moorea 87
    "Mo\202\03087\011U\250\2706S\0" // Moorea 87 / UTM zone 6S
    "Mo\202a\21287\0" // Moorea_1987
    "Mo\202a\21287_U\376Z\003\2076S\0" // Moorea_1987_UTM_Zone_6S
    "M\006occo\002n\006`\25231\224\004N\0" // Morocco - north of 31.5°N
    "M\006occo\002s\246\252\313.9\004N\0" // Morocco - south of 27.9°N
    "M\006occo\002s\246\25231\224\004N\0" // Morocco - south of 31.5°N
    "M\006r\013d\013Papagaio\0" // Morro do Papagaio
    "M\025\032 D\372l\003\0" // Mount Dillon
    "M\025\032 D\372l\003\011Tobag\013Gr\257\0" // Mount Dillon / Tobago Grid
    "M\025\032_D\372l\003\0" // Mount_Dillon
    "M\025\032_D\372l\003_Tobago_Gr\257\0" // Mount_Dillon_Tobago_Grid
    "M\025\032_Ed\210\374\342cu\243\0" // Mount_Eden_Circuit
    "M\025\032_N$h\247\201\374\342cu\243\0" // Mount_Nicholas_Circuit
    "M\025\032_Ple\201\005t\374\342cu\243\0" // Mount_Pleasant_Circuit
    "M\025\032_Y\006k\374\342cu\243\0" // Mount_York_Circuit
    "Moz\232bique\0" // Mozambique
    "Moz\232biqu\22636}42\015\0" // Mozambique - 36°E to 42°E
    "Moz\232biqu\226\216f^\202\0" // Mozambique - offshore
    "Moz\232biqu\226\237\0" // Mozambique - onshore
    "Moz\232biqu\226\213\006\012e\315\25236\015\0" // Mozambique - onshore east of 36°E
    "Moz\232biqu\226\213\006\012w\275\25236\015\0" // Mozambique - onshore west of 36°E
    "Moz\232biqu\226s\362\0" // Mozambique - south
    "Moz\232biqu\226we\021\002T\036\012prov\024ce\0" // Mozambique - west - Tete province
    "Moz\232biqu\226w\275\25236\015\0" // Mozambique - west of 36°E
    "Mozn\036\0" // Moznet
    "Mozn\036\205ITRF94)\0" // Moznet (ITRF94)
    "Mozn\036\011U\250\27036S\0" // Moznet / UTM zone 36S
    "Mozn\036\011U\250\27037S\0" // Moznet / UTM zone 37S
    "Mozn\036\011U\250\27038S\0" // Moznet / UTM zone 38S
    "Mozn\036_U\376Z\003\20736S\0" // Moznet_UTM_Zone_36S
    "Mozn\036_U\376Z\003\20737S\0" // Moznet_UTM_Zone_37S
    "Mozn\036_U\376Z\003\20738S\0" // Moznet_UTM_Zone_38S
    "Mp\006\026oko\0" // Mporaloko
    "Mp\006\026oko_U\376Z\003\20732N\0" // Mporaloko_UTM_Zone_32N
    "Mp\006\026oko_U\376Z\003\20732S\0" // Mporaloko_UTM_Zone_32S
    "My\005m#\205B\225ma)\002\213\006\012w\275\25296\015\0" // Myanmar (Burma) - onshore west of 96°E
    "N32\0" // N32
    "\017 \014 \0" // NAD 83 
    "\017 M$hig\005\0" // NAD Michigan
    "\017 M$hig\005\011M$hig\005 C\365\026\0" // NAD Michigan / Michigan Central
    "\017 M$hig\005\011M$hig\005 Ea\021\0" // NAD Michigan / Michigan East
    "\017 M$hig\005\011M$hig\005 \371\0" // NAD Michigan / Michigan North
    "\017 M$hig\005\011M$hig\005 O\316 C\365\026\0" // NAD Michigan / Michigan Old Central
    "\017 M$hig\005\011M$hig\005{\362\0" // NAD Michigan / Michigan South
    "\017 M$hig\005\011M$hig\005 We\021\0" // NAD Michigan / Michigan West
    "\017\313\002L<L\003\0" // NAD27 - LatLon
    "\017\313\011Alab\232\030Ea\021\0" // NAD27 / Alabama East
    "\017\313\011Alab\232\030We\021\0" // NAD27 / Alabama West
    "\017\313\011Al\201k\030Alb\220\0" // NAD27 / Alaska Albers
    "\017\313\011Al\201k\030\0771\0" // NAD27 / Alaska zone 1
    "\017\313\011Al\201k\030\07710\0" // NAD27 / Alaska zone 10
    "\017\313\011Al\201k\030\0772\0" // NAD27 / Alaska zone 2
    "\017\313\011Al\201k\030\0773\0" // NAD27 / Alaska zone 3
    "\017\313\011Al\201k\030\0774\0" // NAD27 / Alaska zone 4
    "\017\313\011Al\201k\030\0775\0" // NAD27 / Alaska zone 5
    "\017\313\011Al\201k\030\0776\0" // NAD27 / Alaska zone 6
    "\017\313\011Al\201k\030\0777\0" // NAD27 / Alaska zone 7
    "\017\313\011Al\201k\030\0778\0" // NAD27 / Alaska zone 8
    "\017\313\011Al\201k\030\0779\0" // NAD27 / Alaska zone 9
    "\017\313\011Alb\007t\0303\250 >f m\007\257 \1771 W\0" // NAD27 / Alberta 3TM ref merid 111 W
    "\017\313\011Alb\007t\0303\250 >f m\007\257 \1774 W\0" // NAD27 / Alberta 3TM ref merid 114 W
    "\017\313\011Alb\007t\0303\250 >f m\007\257 \1777 W\0" // NAD27 / Alberta 3TM ref merid 117 W
    "\017\313\011Alb\007t\0303\250 >f m\007\257 1\033 W\0" // NAD27 / Alberta 3TM ref merid 120 W
    "\017\313\011\326i!\030C\365\026\0" // NAD27 / Arizona Central
    "\017\313\011\326i!\030Ea\021\0" // NAD27 / Arizona East
    "\017\313\011\326i!\030We\021\0" // NAD27 / Arizona West
    "\017\313\011\326k\005s\201 \371\0" // NAD27 / Arkansas North
    "\017\313\011\326k\005s\201{\362\0" // NAD27 / Arkansas South
    "\017\313\011BLM \312N (ft\204)\0" // NAD27 / BLM 10N (ftUS)
    "\017\313\011BLM \177N (ft\204)\0" // NAD27 / BLM 11N (ftUS)
    "\017\313\011BLM 12N (ft\204)\0" // NAD27 / BLM 12N (ftUS)
    "\017\313\011BLM 13N (ft\204)\0" // NAD27 / BLM 13N (ftUS)
    "\017\313\011BLM 14N\205f\221)\0" // NAD27 / BLM 14N (feet)
    "\017\313\011BLM 14N (ft\204)\0" // NAD27 / BLM 14N (ftUS)
    "\017\313\011BLM 15N\205f\221)\0" // NAD27 / BLM 15N (feet)
    "\017\313\011BLM 15N (ft\204)\0" // NAD27 / BLM 15N (ftUS)
    "\017\313\011BLM 16N\205f\221)\0" // NAD27 / BLM 16N (feet)
    "\017\313\011BLM 16N (ft\204)\0" // NAD27 / BLM 16N (ftUS)
    "\017\313\011BLM 17N\205f\221)\0" // NAD27 / BLM 17N (feet)
    "\017\313\011BLM 17N (ft\204)\0" // NAD27 / BLM 17N (ftUS)
    "\017\313\011BLM 18N (ft\204)\0" // NAD27 / BLM 18N (ftUS)
    "\017\313\011BLM\320N (ft\204)\0" // NAD27 / BLM 19N (ftUS)
    "\017\313\011BLM 1N (ft\204)\0" // NAD27 / BLM 1N (ftUS)
    "\017\313\011BLM 2N (ft\204)\0" // NAD27 / BLM 2N (ftUS)
    "\017\313\011BLM 3N (ft\204)\0" // NAD27 / BLM 3N (ftUS)
    "\017\313\011BLM 4N (ft\204)\0" // NAD27 / BLM 4N (ftUS)
    "\017\313\011BLM 59N (ft\204)\0" // NAD27 / BLM 59N (ftUS)
    "\017\313\011BLM 5N (ft\204)\0" // NAD27 / BLM 5N (ftUS)
    "\017\313\011BLM 60N (ft\204)\0" // NAD27 / BLM 60N (ftUS)
    "\017\313\011BLM 6N (ft\204)\0" // NAD27 / BLM 6N (ftUS)
    "\017\313\011BLM 7N (ft\204)\0" // NAD27 / BLM 7N (ftUS)
    "\017\313\011BLM 8N (ft\204)\0" // NAD27 / BLM 8N (ftUS)
    "\017\313\011BLM 9N (ft\204)\0" // NAD27 / BLM 9N (ftUS)
    "\017\313\011C\026if\006n\314Alb\220\0" // NAD27 / California Albers
    "\017\313\011C\026if\006n\314\077I\0" // NAD27 / California zone I
    "\017\313\011C\026if\006n\314\077II\0" // NAD27 / California zone II
    "\017\313\011C\026if\006n\314\077III\0" // NAD27 / California zone III
    "\017\313\011C\026if\006n\314\077IV\0" // NAD27 / California zone IV
    "\017\313\011C\026if\006n\314\077V\0" // NAD27 / California zone V
    "\017\313\011C\026if\006n\314\077VI\0" // NAD27 / California zone VI
    "\017\313\011C\026if\006n\314\077VII\0" // NAD27 / California zone VII
    "\017\313\011C\247\006\274\013C\365\026\0" // NAD27 / Colorado Central
    "\017\313\011C\247\006\274\013\371\0" // NAD27 / Colorado North
    "\017\313\011C\247\006\274\013S\362\0" // NAD27 / Colorado South
    "\017\313\011C\003ne\317$ut\0" // NAD27 / Connecticut
    "\017\313\011C\003\357 Alb\220\0" // NAD27 / Conus Albers
    "\017\313\011Cub\030\203te\0" // NAD27 / Cuba Norte
    "\017\313\011Cub\030S\225\0" // NAD27 / Cuba Sur
    "\017\313\011D\240aw#e\0" // NAD27 / Delaware
    "\017\313\011Fl\006\257\030Ea\021\0" // NAD27 / Florida East
    "\017\313\011Fl\006\257\030\371\0" // NAD27 / Florida North
    "\017\313\011Fl\006\257\030We\021\0" // NAD27 / Florida West
    "\017\313\011Ge\006g\314Ea\021\0" // NAD27 / Georgia East
    "\017\313\011Ge\006g\314We\021\0" // NAD27 / Georgia West
    "\017\313\011Gu<\206\026\030\203te\0" // NAD27 / Guatemala Norte
    "\017\313\011Gu<\206\026\030S\225\0" // NAD27 / Guatemala Sur
    "\017\313\011Id\373\013C\365\026\0" // NAD27 / Idaho Central
    "\017\313\011Id\373\013Ea\021\0" // NAD27 / Idaho East
    "\017\313\011Id\373\013We\021\0" // NAD27 / Idaho West
    "\017\313\011Ill\024o= Ea\021\0" // NAD27 / Illinois East
    "\017\313\011Ill\024o= We\021\0" // NAD27 / Illinois West
    "\017\313\011\355\335\030Ea\021\0" // NAD27 / Indiana East
    "\017\313\011\355\335\030We\021\0" // NAD27 / Indiana West
    "\017\313\011Iow\030\371\0" // NAD27 / Iowa North
    "\017\313\011Iow\030S\362\0" // NAD27 / Iowa South
    "\017\313\011K\005s\201 \371\0" // NAD27 / Kansas North
    "\017\313\011K\005s\201{\362\0" // NAD27 / Kansas South
    "\017\313\011Ke\032uck\200\371\0" // NAD27 / Kentucky North
    "\017\313\011Ke\032ucky{\362\0" // NAD27 / Kentucky South
    "\017\313\011L\025=\335\030\371\0" // NAD27 / Louisiana North
    "\017\313\011L\025=\335\030Off^\202\0" // NAD27 / Louisiana Offshore
    "\017\313\011L\025=\335\030S\362\0" // NAD27 / Louisiana South
    "\017\313\011M\250\2701\0" // NAD27 / MTM zone 1
    "\017\313\011M\250\27010\0" // NAD27 / MTM zone 10
    "\017\313\011M\250\2702\0" // NAD27 / MTM zone 2
    "\017\313\011M\250\2703\0" // NAD27 / MTM zone 3
    "\017\313\011M\250\2704\0" // NAD27 / MTM zone 4
    "\017\313\011M\250\2705\0" // NAD27 / MTM zone 5
    "\017\313\011M\250\2706\0" // NAD27 / MTM zone 6
    "\017\313\011MTQ L\232b\007t\0" // NAD27 / MTQ Lambert
    "\017\313\011Ma\024\012Ea\021\0" // NAD27 / Maine East
    "\017\313\011Ma\024\012We\021\0" // NAD27 / Maine West
    "\017\313\011M#y\211\0" // NAD27 / Maryland
    "\017\313\011M\201sach\357\036ts \352\0" // NAD27 / Massachusetts Island
    "\017\313\011M\201sach\357\036ts Ma\024\211\0" // NAD27 / Massachusetts Mainland
    "\017\313\011M$hig\005 C\365\026\0" // NAD27 / Michigan Central
    "\017\313\011M$hig\005 Ea\021\0" // NAD27 / Michigan East
    "\017\313\011M$hig\005 \371\0" // NAD27 / Michigan North
    "\017\313\011M$hig\005 O\316 C\365\026\0" // NAD27 / Michigan Old Central
    "\017\313\011M$hig\005{\362\0" // NAD27 / Michigan South
    "\017\313\011M$hig\005 We\021\0" // NAD27 / Michigan West
    "\017\313\011M\024n\242\350\030C\365\026\0" // NAD27 / Minnesota Central
    "\017\313\011M\024n\242\350\030\371\0" // NAD27 / Minnesota North
    "\017\313\011M\024n\242\350\030S\362\0" // NAD27 / Minnesota South
    "\017\313\011M=s=sippi Ea\021\0" // NAD27 / Mississippi East
    "\017\313\011M=s=sippi We\021\0" // NAD27 / Mississippi West
    "\017\313\011M=s\025ri C\365\026\0" // NAD27 / Missouri Central
    "\017\313\011M=s\025ri Ea\021\0" // NAD27 / Missouri East
    "\017\313\011M=s\025ri We\021\0" // NAD27 / Missouri West
    "\017\313\011M\003t\005\030C\365\026\0" // NAD27 / Montana Central
    "\017\313\011M\003t\005\030\371\0" // NAD27 / Montana North
    "\017\313\011M\003t\005\030S\362\0" // NAD27 / Montana South
    "\017\313\011\310br\201k\030\371\0" // NAD27 / Nebraska North
    "\017\313\011\310br\201k\030S\362\0" // NAD27 / Nebraska South
    "\017\313\011\310v\274\030C\365\026\0" // NAD27 / Nevada Central
    "\017\313\011\310v\274\030Ea\021\0" // NAD27 / Nevada East
    "\017\313\011\310v\274\030We\021\0" // NAD27 / Nevada West
    "\017\313\011\361 Brunsw$k{t\007eog\370\230$\205\017\313)\0" // NAD27 / New Brunswick Stereographic (NAD27)
    "\017\313\011\361 H\232p^i>\0" // NAD27 / New Hampshire
    "\017\313\011\361 J\220ey\0" // NAD27 / New Jersey
    "\017\313\011\361 Mex$\013C\365\026\0" // NAD27 / New Mexico Central
    "\017\313\011\361 Mex$\013Ea\021\0" // NAD27 / New Mexico East
    "\017\313\011\361 Mex$\013We\021\0" // NAD27 / New Mexico West
    "\017\313\011\361 Y\006k C\365\026\0" // NAD27 / New York Central
    "\017\313\011\361 Y\006k Ea\021\0" // NAD27 / New York East
    "\017\313\011\361 Y\006k L\003g \352\0" // NAD27 / New York Long Island
    "\017\313\011\361 Y\006k We\021\0" // NAD27 / New York West
    "\017\313\011\324C#\247\024a\0" // NAD27 / North Carolina
    "\017\313\011\324Dak\350\030\371\0" // NAD27 / North Dakota North
    "\017\313\011\324Dak\350\030S\362\0" // NAD27 / North Dakota South
    "\017\313\011Ohi\013\371\0" // NAD27 / Ohio North
    "\017\313\011Ohi\013S\362\0" // NAD27 / Ohio South
    "\017\313\011Okl\373\344\030\371\0" // NAD27 / Oklahoma North
    "\017\313\011Okl\373\344\030S\362\0" // NAD27 / Oklahoma South
    "\017\313\011\377\371\0" // NAD27 / Oregon North
    "\017\313\011\323\003{\362\0" // NAD27 / Oregon South
    "\017\313\011P\210nsylv\005\314\371\0" // NAD27 / Pennsylvania North
    "\017\313\011P\210nsylv\005\314S\362\0" // NAD27 / Pennsylvania South
    "\017\313\011Quebec L\232b\007t\0" // NAD27 / Quebec Lambert
    "\017\313\011Rhod\012\352\0" // NAD27 / Rhode Island
    "\017\313\011Shacklef\006d\0" // NAD27 / Shackleford
    "\017\313\011\367C#\247\024\030\371\0" // NAD27 / South Carolina North
    "\017\313\011\367C#\247\024\030S\362\0" // NAD27 / South Carolina South
    "\017\313\011\367Dak\350\030\371\0" // NAD27 / South Dakota North
    "\017\313\011\367Dak\350\030S\362\0" // NAD27 / South Dakota South
    "\017\313\011T\210n\242see\0" // NAD27 / Tennessee
    "\017\313\011Tex\201 C\365\026\0" // NAD27 / Texas Central
    "\017\313\011Tex\201 \371\0" // NAD27 / Texas North
    "\017\313\011Tex\201 \324C\365\026\0" // NAD27 / Texas North Central
    "\017\313\011Tex\201{\362\0" // NAD27 / Texas South
    "\017\313\011Tex\201{\246C\365\026\0" // NAD27 / Texas South Central
    "\017\313\011\204 N<\321\223Atl\201 Equ\223A>a\0" // NAD27 / US National Atlas Equal Area
    "\017\313\011U\250\270\312N\0" // NAD27 / UTM zone 10N
    "\017\313\011U\250\27011N\0" // NAD27 / UTM zone 11N
    "\017\313\011U\250\27012N\0" // NAD27 / UTM zone 12N
    "\017\313\011U\250\27013N\0" // NAD27 / UTM zone 13N
    "\017\313\011U\250\27014N\0" // NAD27 / UTM zone 14N
    "\017\313\011U\250\27015N\0" // NAD27 / UTM zone 15N
    "\017\313\011U\250\27016N\0" // NAD27 / UTM zone 16N
    "\017\313\011U\250\27017N\0" // NAD27 / UTM zone 17N
    "\017\313\011U\250\27018N\0" // NAD27 / UTM zone 18N
    "\017\313\011U\250\27019N\0" // NAD27 / UTM zone 19N
    "\017\313\011U\250\2701N\0" // NAD27 / UTM zone 1N
    "\017\313\011U\250\270\033N\0" // NAD27 / UTM zone 20N
    "\017\313\011U\250\27021N\0" // NAD27 / UTM zone 21N
    "\017\313\011U\250\27022N\0" // NAD27 / UTM zone 22N
    "\017\313\011U\250\2702N\0" // NAD27 / UTM zone 2N
    "\017\313\011U\250\2703N\0" // NAD27 / UTM zone 3N
    "\017\313\011U\250\2704N\0" // NAD27 / UTM zone 4N
    "\017\313\011U\250\27059N\0" // NAD27 / UTM zone 59N
    "\017\313\011U\250\2705N\0" // NAD27 / UTM zone 5N
    "\017\313\011U\250\27060N\0" // NAD27 / UTM zone 60N
    "\017\313\011U\250\2706N\0" // NAD27 / UTM zone 6N
    "\017\313\011U\250\2707N\0" // NAD27 / UTM zone 7N
    "\017\313\011U\250\2708N\0" // NAD27 / UTM zone 8N
    "\017\313\011U\250\2709N\0" // NAD27 / UTM zone 9N
    "\017\313\011Ut\373 C\365\026\0" // NAD27 / Utah Central
    "\017\313\011Ut\373 \371\0" // NAD27 / Utah North
    "\017\313\011Ut\373{\362\0" // NAD27 / Utah South
    "\017\313\011V\007m\003t\0" // NAD27 / Vermont
    "\017\313\011V\342g\024\314\371\0" // NAD27 / Virginia North
    "\017\313\011V\342g\024\314S\362\0" // NAD27 / Virginia South
    "\017\313\011Wa^\024gt\222\371\0" // NAD27 / Washington North
    "\017\313\011Wa^\024gt\003{\362\0" // NAD27 / Washington South
    "\017\313\011W\275V\342g\024\314\371\0" // NAD27 / West Virginia North
    "\017\313\011W\275V\342g\024\314S\362\0" // NAD27 / West Virginia South
    "\017\313\011W=c\003s\024 C\365\026\0" // NAD27 / Wisconsin Central
    "\017\313\011W=c\003s\024 \371\0" // NAD27 / Wisconsin North
    "\017\313\011W=c\003s\024{\362\0" // NAD27 / Wisconsin South
    "\017\313\011W=c\003s\024 Tr\005sv\220\012M\007c<\006\0" // NAD27 / Wisconsin Transverse Mercator
    "\017\313\011Wy\344\024g Ea\021\0" // NAD27 / Wyoming East
    "\017\313\011Wy\344\024g E\315C\365\026\0" // NAD27 / Wyoming East Central
    "\017\313\011Wy\344\024g We\021\0" // NAD27 / Wyoming West
    "\017\313\011Wy\344\024g W\275C\365\026\0" // NAD27 / Wyoming West Central
    "\017\313 M$hig\005\0" // NAD27 Michigan
    "\017\313(76)\0" // NAD27(76)
    "\017\313(76%M\250\27010\0" // NAD27(76) / MTM zone 10
    "\017\313(76%M\250\27011\0" // NAD27(76) / MTM zone 11
    "\017\313(76%M\250\27012\0" // NAD27(76) / MTM zone 12
    "\017\313(76%M\250\27013\0" // NAD27(76) / MTM zone 13
    "\017\313(76%M\250\27014\0" // NAD27(76) / MTM zone 14
    "\017\313(76%M\250\27015\0" // NAD27(76) / MTM zone 15
    "\017\313(76%M\250\27016\0" // NAD27(76) / MTM zone 16
    "\017\313(76%M\250\27017\0" // NAD27(76) / MTM zone 17
    "\017\313(76%M\250\2708\0" // NAD27(76) / MTM zone 8
    "\017\313(76%M\250\2709\0" // NAD27(76) / MTM zone 9
    "\017\313(76%U\250\27015N\0" // NAD27(76) / UTM zone 15N
    "\017\313(76%U\250\27016N\0" // NAD27(76) / UTM zone 16N
    "\017\313(76%U\250\27017N\0" // NAD27(76) / UTM zone 17N
    "\017\313(76%U\250\27018N\0" // NAD27(76) / UTM zone 18N
    "\017\313(CGQ77)\0" // NAD27(CGQ77)
    "\017\313(CGQ77)\002L<L\003\0" // NAD27(CGQ77) - LatLon
    "\017\313(CGQ77%Quebec L\232b\007t\0" // NAD27(CGQ77) / Quebec Lambert
    "\017\313(CGQ77%\322oPQ\27010\0" // NAD27(CGQ77) / SCoPQ zone 10
    "\017\313(CGQ77%\322oPQ\2702\0" // NAD27(CGQ77) / SCoPQ zone 2
    "\017\313(CGQ77%\322oPQ\2703\0" // NAD27(CGQ77) / SCoPQ zone 3
    "\017\313(CGQ77%\322oPQ\2704\0" // NAD27(CGQ77) / SCoPQ zone 4
    "\017\313(CGQ77%\322oPQ\2705\0" // NAD27(CGQ77) / SCoPQ zone 5
    "\017\313(CGQ77%\322oPQ\2706\0" // NAD27(CGQ77) / SCoPQ zone 6
    "\017\313(CGQ77%\322oPQ\2707\0" // NAD27(CGQ77) / SCoPQ zone 7
    "\017\313(CGQ77%\322oPQ\2708\0" // NAD27(CGQ77) / SCoPQ zone 8
    "\017\313(CGQ77%\322oPQ\2709\0" // NAD27(CGQ77) / SCoPQ zone 9
    "\017\313(CGQ77%U\250\27017N\0" // NAD27(CGQ77) / UTM zone 17N
    "\017\313(CGQ77%U\250\27018N\0" // NAD27(CGQ77) / UTM zone 18N
    "\017\313(CGQ77%U\250\27019N\0" // NAD27(CGQ77) / UTM zone 19N
    "\017\313(CGQ77%U\250\270\033N\0" // NAD27(CGQ77) / UTM zone 20N
    "\017\313(CGQ77%U\250\27021N\0" // NAD27(CGQ77) / UTM zone 21N
    "\017\313(MAY76)\002L<L\003\0" // NAD27(MAY76) - LatLon
    "\017\313_M\376!\20710\0" // NAD27_MTM_zone_10
    "\027\205C\003t\024u\025sl\200Op\007<\024g Ref\007\210c\012St<i\222\03196)\0" // NAD83 (Continuously Operating Reference Station 1996)
    "\027\205F\273\007\223B\201\012N\036w\006k)\0" // NAD83 (Federal Base Network)
    "\027\205High Acc\225ac\200Ref\007\210c\012N\036w\006k\002C\006>\317\273)\0" // NAD83 (High Accuracy Reference Network - Corrected)
    "\027\205High Acc\225ac\200Ref\007\210c\012N\036w\006k)\0" // NAD83 (High Accuracy Reference Network)
    "\027\205High Acc\225ac\200Reg\321\223N\036w\006k)\0" // NAD83 (High Accuracy Regional Network)
    "\027\205High P>c=i\222Geod\036$ N\036w\006k)\0" // NAD83 (High Precision Geodetic Network)
    "\027\205N<\321\026{p<i\223Ref\007\210c\012Sy\021\206 \2277)\0" // NAD83 (National Spatial Reference System 2007)
    "\027\205N<\321\026{p<i\223Ref\007\210c\012Sy\021\206 \231)\0" // NAD83 (National Spatial Reference System 2011)
    "\027\205N<\321\026{p<i\223Ref\007\210c\012Sy\021\206 MA\177)\0" // NAD83 (National Spatial Reference System MA11)
    "\027\205N<\321\026{p<i\223Ref\007\210c\012Sy\021\206 PA\177)\0" // NAD83 (National Spatial Reference System PA11)
    "\364Alab\232\030Ea\021\0" // NAD83 / Alabama East
    "\364Alab\232\030We\021\0" // NAD83 / Alabama West
    "\364Al\201k\030Alb\220\0" // NAD83 / Alaska Albers
    "\364Al\201k\030\0771\0" // NAD83 / Alaska zone 1
    "\364Al\201k\030\07710\0" // NAD83 / Alaska zone 10
    "\364Al\201k\030\0772\0" // NAD83 / Alaska zone 2
    "\364Al\201k\030\0773\0" // NAD83 / Alaska zone 3
    "\364Al\201k\030\0774\0" // NAD83 / Alaska zone 4
    "\364Al\201k\030\0775\0" // NAD83 / Alaska zone 5
    "\364Al\201k\030\0776\0" // NAD83 / Alaska zone 6
    "\364Al\201k\030\0777\0" // NAD83 / Alaska zone 7
    "\364Al\201k\030\0778\0" // NAD83 / Alaska zone 8
    "\364Al\201k\030\0779\0" // NAD83 / Alaska zone 9
    "\364Alb\007t\030\312-\250\205F\202\021)\0" // NAD83 / Alberta 10-TM (Forest)
    "\364Alb\007t\030\312-\250\205R\242\025rce)\0" // NAD83 / Alberta 10-TM (Resource)
    "\364Alb\007t\0303\250 >f m\007\257 \1771 W\0" // NAD83 / Alberta 3TM ref merid 111 W
    "\364Alb\007t\0303\250 >f m\007\257 \1774 W\0" // NAD83 / Alberta 3TM ref merid 114 W
    "\364Alb\007t\0303\250 >f m\007\257 \1777 W\0" // NAD83 / Alberta 3TM ref merid 117 W
    "\364Alb\007t\0303\250 >f m\007\257 1\033 W\0" // NAD83 / Alberta 3TM ref merid 120 W
    "\364\326i!\030C\365\026\0" // NAD83 / Arizona Central
    "\364\326i!\030C\365\026\205ft)\0" // NAD83 / Arizona Central (ft)
    "\364\326i!\030Ea\021\0" // NAD83 / Arizona East
    "\364\326i!\030E\315(ft)\0" // NAD83 / Arizona East (ft)
    "\364\326i!\030We\021\0" // NAD83 / Arizona West
    "\364\326i!\030W\275(ft)\0" // NAD83 / Arizona West (ft)
    "\364\326k\005s\201 \371\0" // NAD83 / Arkansas North
    "\364\326k\005s\201 \324(ft\204)\0" // NAD83 / Arkansas North (ftUS)
    "\364\326k\005s\201{\362\0" // NAD83 / Arkansas South
    "\364\326k\005s\201{\246(ft\204)\0" // NAD83 / Arkansas South (ftUS)
    "\364BC Alb\220\0" // NAD83 / BC Albers
    "\364BLM \312N (ft\204)\0" // NAD83 / BLM 10N (ftUS)
    "\364BLM \177N (ft\204)\0" // NAD83 / BLM 11N (ftUS)
    "\364BLM 12N (ft\204)\0" // NAD83 / BLM 12N (ftUS)
    "\364BLM 13N (ft\204)\0" // NAD83 / BLM 13N (ftUS)
    "\364BLM 14N (ft\204)\0" // NAD83 / BLM 14N (ftUS)
    "\364BLM 15N (ft\204)\0" // NAD83 / BLM 15N (ftUS)
    "\364BLM 16N (ft\204)\0" // NAD83 / BLM 16N (ftUS)
    "\364BLM 17N (ft\204)\0" // NAD83 / BLM 17N (ftUS)
    "\364BLM 18N (ft\204)\0" // NAD83 / BLM 18N (ftUS)
    "\364BLM\320N (ft\204)\0" // NAD83 / BLM 19N (ftUS)
    "\364BLM 1N (ft\204)\0" // NAD83 / BLM 1N (ftUS)
    "\364BLM 2N (ft\204)\0" // NAD83 / BLM 2N (ftUS)
    "\364BLM 3N (ft\204)\0" // NAD83 / BLM 3N (ftUS)
    "\364BLM 4N (ft\204)\0" // NAD83 / BLM 4N (ftUS)
    "\364BLM 59N (ft\204)\0" // NAD83 / BLM 59N (ftUS)
    "\364BLM 5N (ft\204)\0" // NAD83 / BLM 5N (ftUS)
    "\364BLM 60N (ft\204)\0" // NAD83 / BLM 60N (ftUS)
    "\364BLM 6N (ft\204)\0" // NAD83 / BLM 6N (ftUS)
    "\364BLM 7N (ft\204)\0" // NAD83 / BLM 7N (ftUS)
    "\364BLM 8N (ft\204)\0" // NAD83 / BLM 8N (ftUS)
    "\364BLM 9N (ft\204)\0" // NAD83 / BLM 9N (ftUS)
    "\364C\026if\006n\314Alb\220\0" // NAD83 / California Albers
    "\364C\026if\006n\314\0771\0" // NAD83 / California zone 1
    "\364C\026if\006n\314\0771 (ft\204)\0" // NAD83 / California zone 1 (ftUS)
    "\364C\026if\006n\314\0772\0" // NAD83 / California zone 2
    "\364C\026if\006n\314\0772 (ft\204)\0" // NAD83 / California zone 2 (ftUS)
    "\364C\026if\006n\314\0773\0" // NAD83 / California zone 3
    "\364C\026if\006n\314\0773 (ft\204)\0" // NAD83 / California zone 3 (ftUS)
    "\364C\026if\006n\314\0774\0" // NAD83 / California zone 4
    "\364C\026if\006n\314\0774 (ft\204)\0" // NAD83 / California zone 4 (ftUS)
    "\364C\026if\006n\314\0775\0" // NAD83 / California zone 5
    "\364C\026if\006n\314\0775 (ft\204)\0" // NAD83 / California zone 5 (ftUS)
    "\364C\026if\006n\314\0776\0" // NAD83 / California zone 6
    "\364C\026if\006n\314\0776 (ft\204)\0" // NAD83 / California zone 6 (ftUS)
    "\364C\005\274\030Atl\201 L\232b\007t\0" // NAD83 / Canada Atlas Lambert
    "\364C\247\006\274\013C\365\026\0" // NAD83 / Colorado Central
    "\364C\247\006\274\013C\365\223(ft\204)\0" // NAD83 / Colorado Central (ftUS)
    "\364C\247\006\274\013\371\0" // NAD83 / Colorado North
    "\364C\247\006\274\013\324(ft\204)\0" // NAD83 / Colorado North (ftUS)
    "\364C\247\006\274\013S\362\0" // NAD83 / Colorado South
    "\364C\247\006\274\013\367(ft\204)\0" // NAD83 / Colorado South (ftUS)
    "\364C\003ne\317$ut\0" // NAD83 / Connecticut
    "\364C\003ne\317$ut (ft\204)\0" // NAD83 / Connecticut (ftUS)
    "\364C\003\357 Alb\220\0" // NAD83 / Conus Albers
    "\364D\240aw#e\0" // NAD83 / Delaware
    "\364D\240aw#\012(ft\204)\0" // NAD83 / Delaware (ftUS)
    "\364Fl\006\257\030Ea\021\0" // NAD83 / Florida East
    "\364Fl\006\257\030E\315(ft\204)\0" // NAD83 / Florida East (ftUS)
    "\364Fl\006\257\030GDL Alb\220\0" // NAD83 / Florida GDL Albers
    "\364Fl\006\257\030\371\0" // NAD83 / Florida North
    "\364Fl\006\257\030\324(ft\204)\0" // NAD83 / Florida North (ftUS)
    "\364Fl\006\257\030We\021\0" // NAD83 / Florida West
    "\364Fl\006\257\030W\275(ft\204)\0" // NAD83 / Florida West (ftUS)
    "\364Ge\006g\314Ea\021\0" // NAD83 / Georgia East
    "\364Ge\006g\314E\315(ft\204)\0" // NAD83 / Georgia East (ftUS)
    "\364Ge\006g\314We\021\0" // NAD83 / Georgia West
    "\364Ge\006g\314W\275(ft\204)\0" // NAD83 / Georgia West (ftUS)
    "\364G>< Lak\242 Alb\220\0" // NAD83 / Great Lakes Albers
    "\364G>< Lak\242 \035{t Law>nc\012Alb\220\0" // NAD83 / Great Lakes and St Lawrence Albers
    "\364Hawaii\2701\0" // NAD83 / Hawaii zone 1
    "\364Hawaii\2702\0" // NAD83 / Hawaii zone 2
    "\364Hawaii\2703\0" // NAD83 / Hawaii zone 3
    "\364Hawaii\2703 (ft\204)\0" // NAD83 / Hawaii zone 3 (ftUS)
    "\364Hawaii\2704\0" // NAD83 / Hawaii zone 4
    "\364Hawaii\2705\0" // NAD83 / Hawaii zone 5
    "\364Id\373\013C\365\026\0" // NAD83 / Idaho Central
    "\364Id\373\013C\365\223(ft\204)\0" // NAD83 / Idaho Central (ftUS)
    "\364Id\373\013Ea\021\0" // NAD83 / Idaho East
    "\364Id\373\013E\315(ft\204)\0" // NAD83 / Idaho East (ftUS)
    "\364Id\373\013Tr\005sv\220\012M\007c<\006\0" // NAD83 / Idaho Transverse Mercator
    "\364Id\373\013We\021\0" // NAD83 / Idaho West
    "\364Id\373\013W\275(ft\204)\0" // NAD83 / Idaho West (ftUS)
    "\364Ill\024o= Ea\021\0" // NAD83 / Illinois East
    "\364Ill\024o= E\315(ft\204)\0" // NAD83 / Illinois East (ftUS)
    "\364Ill\024o= We\021\0" // NAD83 / Illinois West
    "\364Ill\024o= W\275(ft\204)\0" // NAD83 / Illinois West (ftUS)
    "\364\355\335\030Ea\021\0" // NAD83 / Indiana East
    "\364\355\335\030E\315(ft\204)\0" // NAD83 / Indiana East (ftUS)
    "\364\355\335\030We\021\0" // NAD83 / Indiana West
    "\364\355\335\030W\275(ft\204)\0" // NAD83 / Indiana West (ftUS)
    "\364Iow\030\371\0" // NAD83 / Iowa North
    "\364Iow\030\324(ft\204)\0" // NAD83 / Iowa North (ftUS)
    "\364Iow\030S\362\0" // NAD83 / Iowa South
    "\364Iow\030\367(ft\204)\0" // NAD83 / Iowa South (ftUS)
    "\364K\005s\201 LCC\0" // NAD83 / Kansas LCC
    "\364K\005s\201 LCC (ft\204)\0" // NAD83 / Kansas LCC (ftUS)
    "\364K\005s\201 \371\0" // NAD83 / Kansas North
    "\364K\005s\201 \324(ft\204)\0" // NAD83 / Kansas North (ftUS)
    "\364K\005s\201{\362\0" // NAD83 / Kansas South
    "\364K\005s\201{\246(ft\204)\0" // NAD83 / Kansas South (ftUS)
    "\364Ke\032uck\200\371\0" // NAD83 / Kentucky North
    "\364Ke\032uck\200\324(ft\204)\0" // NAD83 / Kentucky North (ftUS)
    "\364Ke\032ucky{\024gl\012Z\003e\0" // NAD83 / Kentucky Single Zone
    "\364Ke\032ucky{\024gl\012Z\003\012(ft\204)\0" // NAD83 / Kentucky Single Zone (ftUS)
    "\364Ke\032ucky{\362\0" // NAD83 / Kentucky South
    "\364Ke\032ucky{\246(ft\204)\0" // NAD83 / Kentucky South (ftUS)
    "\364L\025=\335\030\371\0" // NAD83 / Louisiana North
    "\364L\025=\335\030\324(ft\204)\0" // NAD83 / Louisiana North (ftUS)
    "\364L\025=\335\030Off^\202\0" // NAD83 / Louisiana Offshore
    "\364L\025=\335\030Off^\006\012(ft\204)\0" // NAD83 / Louisiana Offshore (ftUS)
    "\364L\025=\335\030S\362\0" // NAD83 / Louisiana South
    "\364L\025=\335\030\367(ft\204)\0" // NAD83 / Louisiana South (ftUS)
    "\364M\250\2701\0" // NAD83 / MTM zone 1
    "\364M\250\27010\0" // NAD83 / MTM zone 10
    "\364M\250\27011\0" // NAD83 / MTM zone 11
    "\364M\250\27012\0" // NAD83 / MTM zone 12
    "\364M\250\27013\0" // NAD83 / MTM zone 13
    "\364M\250\27014\0" // NAD83 / MTM zone 14
    "\364M\250\27015\0" // NAD83 / MTM zone 15
    "\364M\250\27016\0" // NAD83 / MTM zone 16
    "\364M\250\27017\0" // NAD83 / MTM zone 17
    "\364M\250\2702\0" // NAD83 / MTM zone 2
    "\364M\250\2703\0" // NAD83 / MTM zone 3
    "\364M\250\2704\0" // NAD83 / MTM zone 4
    "\364M\250\2705\0" // NAD83 / MTM zone 5
    "\364M\250\2706\0" // NAD83 / MTM zone 6
    "\364M\250\2707\0" // NAD83 / MTM zone 7
    "\364M\250\2708\0" // NAD83 / MTM zone 8
    "\364M\250\2709\0" // NAD83 / MTM zone 9
    "\364MTQ L\232b\007t\0" // NAD83 / MTQ Lambert
    "\364Ma\024\012@\2270 C\365\026\0" // NAD83 / Maine CS2000 Central
    "\364Ma\024\012@\2270 Ea\021\0" // NAD83 / Maine CS2000 East
    "\364Ma\024\012@\2270 We\021\0" // NAD83 / Maine CS2000 West
    "\364Ma\024\012Ea\021\0" // NAD83 / Maine East
    "\364Ma\024\012E\315(ft\204)\0" // NAD83 / Maine East (ftUS)
    "\364Ma\024\012We\021\0" // NAD83 / Maine West
    "\364Ma\024\012W\275(ft\204)\0" // NAD83 / Maine West (ftUS)
    "\364M#y\211\0" // NAD83 / Maryland
    "\364M#y\211 (ft\204)\0" // NAD83 / Maryland (ftUS)
    "\364M\201sach\357\036ts \352\0" // NAD83 / Massachusetts Island
    "\364M\201sach\357\036ts \352 (ft\204)\0" // NAD83 / Massachusetts Island (ftUS)
    "\364M\201sach\357\036ts Ma\024\211\0" // NAD83 / Massachusetts Mainland
    "\364M\201sach\357\036ts Ma\024\211 (ft\204)\0" // NAD83 / Massachusetts Mainland (ftUS)
    "\364M$hig\005 C\365\026\0" // NAD83 / Michigan Central
    "\364M$hig\005\333\365\026\205ft)\0" // NAD83 / Michigan Central (ft)
    "\364M$hig\005 \371\0" // NAD83 / Michigan North
    "\364M$hig\005 \324(ft)\0" // NAD83 / Michigan North (ft)
    "\364M$hig\005 Obliqu\012M\007c<\006\0" // NAD83 / Michigan Oblique Mercator
    "\364M$hig\005{\362\0" // NAD83 / Michigan South
    "\364M$hig\005{\246(ft)\0" // NAD83 / Michigan South (ft)
    "\364M\024n\242\350\030C\365\026\0" // NAD83 / Minnesota Central
    "\364M\024n\242\350\030C\365\223(ft\204)\0" // NAD83 / Minnesota Central (ftUS)
    "\364M\024n\242\350\030\371\0" // NAD83 / Minnesota North
    "\364M\024n\242\350\030\324(ft\204)\0" // NAD83 / Minnesota North (ftUS)
    "\364M\024n\242\350\030S\362\0" // NAD83 / Minnesota South
    "\364M\024n\242\350\030\367(ft\204)\0" // NAD83 / Minnesota South (ftUS)
    "\364M=s=sippi Ea\021\0" // NAD83 / Mississippi East
    "\364M=s=sippi E\315(ft\204)\0" // NAD83 / Mississippi East (ftUS)
    "\364M=s=sippi \250\0" // NAD83 / Mississippi TM
    "\364M=s=sippi We\021\0" // NAD83 / Mississippi West
    "\364M=s=sippi W\275(ft\204)\0" // NAD83 / Mississippi West (ftUS)
    "\364M=s\025ri C\365\026\0" // NAD83 / Missouri Central
    "\364M=s\025ri Ea\021\0" // NAD83 / Missouri East
    "\364M=s\025ri We\021\0" // NAD83 / Missouri West
    "\364M\003t\005a\0" // NAD83 / Montana
    "\364M\003t\005\030(ft)\0" // NAD83 / Montana (ft)
    "\364NC| L\201 Veg\201 (ft\204)\0" // NAD83 / NCRS Las Vegas (ftUS)
    "\364NC| L\201 Veg\201 (m)\0" // NAD83 / NCRS Las Vegas (m)
    "\364NC| L\201 Veg\201 high (ft\204)\0" // NAD83 / NCRS Las Vegas high (ftUS)
    "\364NC| L\201 Veg\201 high (m)\0" // NAD83 / NCRS Las Vegas high (m)
    "\364NWT L\232b\007t\0" // NAD83 / NWT Lambert
    "\364\310br\201ka\0" // NAD83 / Nebraska
    "\364\310br\201k\030(ft\204)\0" // NAD83 / Nebraska (ftUS)
    "\364\310v\274\030C\365\026\0" // NAD83 / Nevada Central
    "\364\310v\274\030C\365\223(ft\204)\0" // NAD83 / Nevada Central (ftUS)
    "\364\310v\274\030Ea\021\0" // NAD83 / Nevada East
    "\364\310v\274\030E\315(ft\204)\0" // NAD83 / Nevada East (ftUS)
    "\364\310v\274\030We\021\0" // NAD83 / Nevada West
    "\364\310v\274\030W\275(ft\204)\0" // NAD83 / Nevada West (ftUS)
    "\364\361 H\232p^i>\0" // NAD83 / New Hampshire
    "\364\361 H\232p^\342\012(ft\204)\0" // NAD83 / New Hampshire (ftUS)
    "\364\361 J\220ey\0" // NAD83 / New Jersey
    "\364\361 J\220e\200(ft\204)\0" // NAD83 / New Jersey (ftUS)
    "\364\361 Mex$\013C\365\026\0" // NAD83 / New Mexico Central
    "\364\361 Mex$\013C\365\223(ft\204)\0" // NAD83 / New Mexico Central (ftUS)
    "\364\361 Mex$\013Ea\021\0" // NAD83 / New Mexico East
    "\364\361 Mex$\013E\315(ft\204)\0" // NAD83 / New Mexico East (ftUS)
    "\364\361 Mex$\013We\021\0" // NAD83 / New Mexico West
    "\364\361 Mex$\013W\275(ft\204)\0" // NAD83 / New Mexico West (ftUS)
    "\364\361 Y\006k C\365\026\0" // NAD83 / New York Central
    "\364\361 Y\006k\333\365\223(ft\204)\0" // NAD83 / New York Central (ftUS)
    "\364\361 Y\006k Ea\021\0" // NAD83 / New York East
    "\364\361 Y\006k E\315(ft\204)\0" // NAD83 / New York East (ftUS)
    "\364\361 Y\006k L\003g \352\0" // NAD83 / New York Long Island
    "\364\361 Y\006k L\003g \352 (ft\204)\0" // NAD83 / New York Long Island (ftUS)
    "\364\361 Y\006k We\021\0" // NAD83 / New York West
    "\364\361 Y\006k W\275(ft\204)\0" // NAD83 / New York West (ftUS)
    "\364\324C#\247\024a\0" // NAD83 / North Carolina
    "\364\324C#\247\024\030(ft\204)\0" // NAD83 / North Carolina (ftUS)
    "\364\324Dak\350\030\371\0" // NAD83 / North Dakota North
    "\364\324Dak\350\030\324(ft)\0" // NAD83 / North Dakota North (ft)
    "\364\324Dak\350\030S\362\0" // NAD83 / North Dakota South
    "\364\324Dak\350\030\367(ft)\0" // NAD83 / North Dakota South (ft)
    "\364Ohi\013\371\0" // NAD83 / Ohio North
    "\364Ohi\013\324(ft\204)\0" // NAD83 / Ohio North (ftUS)
    "\364Ohi\013S\362\0" // NAD83 / Ohio South
    "\364Ohi\013\367(ft\204)\0" // NAD83 / Ohio South (ftUS)
    "\364Okl\373\344\030\371\0" // NAD83 / Oklahoma North
    "\364Okl\373\344\030\324(ft\204)\0" // NAD83 / Oklahoma North (ftUS)
    "\364Okl\373\344\030S\362\0" // NAD83 / Oklahoma South
    "\364Okl\373\344\030\367(ft\204)\0" // NAD83 / Oklahoma South (ftUS)
    "\364O\032#i\013MNR L\232b\007t\0" // NAD83 / Ontario MNR Lambert
    "\364\377GIC L\232b\007t\205ft)\0" // NAD83 / Oregon GIC Lambert (ft)
    "\364\377LCC (m)\0" // NAD83 / Oregon LCC (m)
    "\364\377\371\0" // NAD83 / Oregon North
    "\364\377\324(ft)\0" // NAD83 / Oregon North (ft)
    "\364\323\003{\362\0" // NAD83 / Oregon South
    "\364\323\003{\246(ft)\0" // NAD83 / Oregon South (ft)
    "\364P\210nsylv\005\314\371\0" // NAD83 / Pennsylvania North
    "\364P\210nsylv\005\314\324(ft\204)\0" // NAD83 / Pennsylvania North (ftUS)
    "\364P\210nsylv\005\314S\362\0" // NAD83 / Pennsylvania South
    "\364P\210nsylv\005\314\367(ft\204)\0" // NAD83 / Pennsylvania South (ftUS)
    "\364Pu\007t\013R$\013& V\342g\024 \325.\0" // NAD83 / Puerto Rico & Virgin Is.
    "\364Quebec Alb\220\0" // NAD83 / Quebec Albers
    "\364Quebec L\232b\007t\0" // NAD83 / Quebec Lambert
    "\364Rhod\012\352\0" // NAD83 / Rhode Island
    "\364Rhod\012\352 (ft\204)\0" // NAD83 / Rhode Island (ftUS)
    "\364\322oPQ\2702\0" // NAD83 / SCoPQ zone 2
    "\364\367C#\247\024a\0" // NAD83 / South Carolina
    "\364\367C#\247\024\030(ft)\0" // NAD83 / South Carolina (ft)
    "\364\367Dak\350\030\371\0" // NAD83 / South Dakota North
    "\364\367Dak\350\030\324(ft\204)\0" // NAD83 / South Dakota North (ftUS)
    "\364\367Dak\350\030S\362\0" // NAD83 / South Dakota South
    "\364\367Dak\350\030\367(ft\204)\0" // NAD83 / South Dakota South (ftUS)
    "\364St<i\021$s\333\005\274\030L\232b\007t\0" // NAD83 / Statistics Canada Lambert
    "\364T\210n\242see\0" // NAD83 / Tennessee
    "\364T\210n\242se\012(ft\204)\0" // NAD83 / Tennessee (ftUS)
    "\364T\007\005\036 O\032#i\013L\232b\007t\0" // NAD83 / Teranet Ontario Lambert
    "\364Tex\201 C\365\026\0" // NAD83 / Texas Central
    "\364Tex\201\333\365\223(ft\204)\0" // NAD83 / Texas Central (ftUS)
    "\364Tex\201\333\365$ Alb\220 Equ\223A>a\0" // NAD83 / Texas Centric Albers Equal Area
    "\364Tex\201\333\365$ L\232b\007t\333\003f\006m\026\0" // NAD83 / Texas Centric Lambert Conformal
    "\364Tex\201 \371\0" // NAD83 / Texas North
    "\364Tex\201 \324(ft\204)\0" // NAD83 / Texas North (ftUS)
    "\364Tex\201 \324C\365\026\0" // NAD83 / Texas North Central
    "\364Tex\201 \324C\365\223(ft\204)\0" // NAD83 / Texas North Central (ftUS)
    "\364Tex\201{\362\0" // NAD83 / Texas South
    "\364Tex\201{\246(ft\204)\0" // NAD83 / Texas South (ftUS)
    "\364Tex\201{\246C\365\026\0" // NAD83 / Texas South Central
    "\364Tex\201{\246C\365\223(ft\204)\0" // NAD83 / Texas South Central (ftUS)
    "\364Tex\201{t<\012Mapp\024g{y\021\206\0" // NAD83 / Texas State Mapping System
    "\364\204FS R6 Alb\220\0" // NAD83 / USFS R6 Albers
    "\364U\250\270\312N\0" // NAD83 / UTM zone 10N
    "\364U\250\27011N\0" // NAD83 / UTM zone 11N
    "\364U\250\27012N\0" // NAD83 / UTM zone 12N
    "\364U\250\27013N\0" // NAD83 / UTM zone 13N
    "\364U\250\27014N\0" // NAD83 / UTM zone 14N
    "\364U\250\27015N\0" // NAD83 / UTM zone 15N
    "\364U\250\27016N\0" // NAD83 / UTM zone 16N
    "\364U\250\27017N\0" // NAD83 / UTM zone 17N
    "\364U\250\27018N\0" // NAD83 / UTM zone 18N
    "\364U\250\27019N\0" // NAD83 / UTM zone 19N
    "\364U\250\2701N\0" // NAD83 / UTM zone 1N
    "\364U\250\270\033N\0" // NAD83 / UTM zone 20N
    "\364U\250\27021N\0" // NAD83 / UTM zone 21N
    "\364U\250\27022N\0" // NAD83 / UTM zone 22N
    "\364U\250\27023N\0" // NAD83 / UTM zone 23N
    "\364U\250\27024N\0" // NAD83 / UTM zone 24N
    "\364U\250\2702N\0" // NAD83 / UTM zone 2N
    "\364U\250\2703N\0" // NAD83 / UTM zone 3N
    "\364U\250\2704N\0" // NAD83 / UTM zone 4N
    "\364U\250\27059N\0" // NAD83 / UTM zone 59N
    "\364U\250\2705N\0" // NAD83 / UTM zone 5N
    "\364U\250\27060N\0" // NAD83 / UTM zone 60N
    "\364U\250\2706N\0" // NAD83 / UTM zone 6N
    "\364U\250\2707N\0" // NAD83 / UTM zone 7N
    "\364U\250\2708N\0" // NAD83 / UTM zone 8N
    "\364U\250\2709N\0" // NAD83 / UTM zone 9N
    "\364Ut\373 C\365\026\0" // NAD83 / Utah Central
    "\364Ut\373\333\365\026\205ft)\0" // NAD83 / Utah Central (ft)
    "\364Ut\373\333\365\223(ft\204)\0" // NAD83 / Utah Central (ftUS)
    "\364Ut\373 \371\0" // NAD83 / Utah North
    "\364Ut\373 \324(ft)\0" // NAD83 / Utah North (ft)
    "\364Ut\373 \324(ft\204)\0" // NAD83 / Utah North (ftUS)
    "\364Ut\373{\362\0" // NAD83 / Utah South
    "\364Ut\373{\246(ft)\0" // NAD83 / Utah South (ft)
    "\364Ut\373{\246(ft\204)\0" // NAD83 / Utah South (ftUS)
    "\364V\007m\003t\0" // NAD83 / Vermont
    "\364V\007m\003t (ft\204)\0" // NAD83 / Vermont (ftUS)
    "\364V\342g\024\314L\232b\007t\0" // NAD83 / Virginia Lambert
    "\364V\342g\024\314\371\0" // NAD83 / Virginia North
    "\364V\342g\024\314\324(ft\204)\0" // NAD83 / Virginia North (ftUS)
    "\364V\342g\024\314S\362\0" // NAD83 / Virginia South
    "\364V\342g\024\314\367(ft\204)\0" // NAD83 / Virginia South (ftUS)
    "\364Wa^\024gt\222\371\0" // NAD83 / Washington North
    "\364Wa^\024gt\222\324(ft\204)\0" // NAD83 / Washington North (ftUS)
    "\364Wa^\024gt\003{\362\0" // NAD83 / Washington South
    "\364Wa^\024gt\003{\246(ft\204)\0" // NAD83 / Washington South (ftUS)
    "\364W\275V\342g\024\314\371\0" // NAD83 / West Virginia North
    "\364W\275V\342g\024\314\324(ft\204)\0" // NAD83 / West Virginia North (ftUS)
    "\364W\275V\342g\024\314S\362\0" // NAD83 / West Virginia South
    "\364W\275V\342g\024\314\367(ft\204)\0" // NAD83 / West Virginia South (ftUS)
    "\364W=c\003s\024 C\365\026\0" // NAD83 / Wisconsin Central
    "\364W=c\003s\024\333\365\223(ft\204)\0" // NAD83 / Wisconsin Central (ftUS)
    "\364W=c\003s\024 \371\0" // NAD83 / Wisconsin North
    "\364W=c\003s\024 \324(ft\204)\0" // NAD83 / Wisconsin North (ftUS)
    "\364W=c\003s\024{\362\0" // NAD83 / Wisconsin South
    "\364W=c\003s\024{\246(ft\204)\0" // NAD83 / Wisconsin South (ftUS)
    "\364W=c\003s\024 Tr\005sv\220\012M\007c<\006\0" // NAD83 / Wisconsin Transverse Mercator
    "\364Wy\344\024g Ea\021\0" // NAD83 / Wyoming East
    "\364Wy\344\024g E\315(ft\204)\0" // NAD83 / Wyoming East (ftUS)
    "\364Wy\344\024g E\315C\365\026\0" // NAD83 / Wyoming East Central
    "\364Wy\344\024g E\315C\365\223(ft\204)\0" // NAD83 / Wyoming East Central (ftUS)
    "\364Wy\344\024g L\232b\007t\0" // NAD83 / Wyoming Lambert
    "\364Wy\344\024g We\021\0" // NAD83 / Wyoming West
    "\364Wy\344\024g W\275(ft\204)\0" // NAD83 / Wyoming West (ftUS)
    "\364Wy\344\024g W\275C\365\026\0" // NAD83 / Wyoming West Central
    "\364Wy\344\024g W\275C\365\223(ft\204)\0" // NAD83 / Wyoming West Central (ftUS)
    "\364Yuk\222Alb\220\0" // NAD83 / Yukon Albers
    "\027\333\005\274\335{p<i\223Ref\007\210c\012Sy\021\206\0" // NAD83 Canadian Spatial Reference System
    "*\03186)\0" // NAD83(1986)
    "*\03192 AK)\0" // NAD83(1992 AK)
    "*\03193 AS)\0" // NAD83(1993 AS)
    "*\03193 GU)\0" // NAD83(1993 GU)
    "*\03193 HI)\0" // NAD83(1993 HI)
    "*\03193 PRVI)\0" // NAD83(1993 PRVI)
    "*\03197 PRVI)\0" // NAD83(1997 PRVI)
    "\254)\0" // NAD83(2011)
    "\256Alab\232\030Ea\021\0" // NAD83(2011) / Alabama East
    "\256Alab\232\030E\315(ft\204)\0" // NAD83(2011) / Alabama East (ftUS)
    "\256Alab\232\030We\021\0" // NAD83(2011) / Alabama West
    "\256Alab\232\030W\275(ft\204)\0" // NAD83(2011) / Alabama West (ftUS)
    "\256Al\201k\030Alb\220\0" // NAD83(2011) / Alaska Albers
    "\256Al\201k\030\0771\0" // NAD83(2011) / Alaska zone 1
    "\256Al\201k\030\07710\0" // NAD83(2011) / Alaska zone 10
    "\256Al\201k\030\0772\0" // NAD83(2011) / Alaska zone 2
    "\256Al\201k\030\0773\0" // NAD83(2011) / Alaska zone 3
    "\256Al\201k\030\0774\0" // NAD83(2011) / Alaska zone 4
    "\256Al\201k\030\0775\0" // NAD83(2011) / Alaska zone 5
    "\256Al\201k\030\0776\0" // NAD83(2011) / Alaska zone 6
    "\256Al\201k\030\0777\0" // NAD83(2011) / Alaska zone 7
    "\256Al\201k\030\0778\0" // NAD83(2011) / Alaska zone 8
    "\256Al\201k\030\0779\0" // NAD83(2011) / Alaska zone 9
    "\256Amt\370k NEC@21\205ft)\0" // NAD83(2011) / Amtrak NECCS21 (ft)
    "\256\326i!\030C\365\026\0" // NAD83(2011) / Arizona Central
    "\256\326i!\030C\365\026\205ft)\0" // NAD83(2011) / Arizona Central (ft)
    "\256\326i!\030Ea\021\0" // NAD83(2011) / Arizona East
    "\256\326i!\030E\315(ft)\0" // NAD83(2011) / Arizona East (ft)
    "\256\326i!\030We\021\0" // NAD83(2011) / Arizona West
    "\256\326i!\030W\275(ft)\0" // NAD83(2011) / Arizona West (ft)
    "\256\326k\005s\201 \371\0" // NAD83(2011) / Arkansas North
    "\256\326k\005s\201 \324(ft\204)\0" // NAD83(2011) / Arkansas North (ftUS)
    "\256\326k\005s\201{\362\0" // NAD83(2011) / Arkansas South
    "\256\326k\005s\201{\246(ft\204)\0" // NAD83(2011) / Arkansas South (ftUS)
    "\256C\026if\006n\314Alb\220\0" // NAD83(2011) / California Albers
    "\256C\026if\006n\314\0771\0" // NAD83(2011) / California zone 1
    "\256C\026if\006n\314\0771 (ft\204)\0" // NAD83(2011) / California zone 1 (ftUS)
    "\256C\026if\006n\314\0772\0" // NAD83(2011) / California zone 2
    "\256C\026if\006n\314\0772 (ft\204)\0" // NAD83(2011) / California zone 2 (ftUS)
    "\256C\026if\006n\314\0773\0" // NAD83(2011) / California zone 3
    "\256C\026if\006n\314\0773 (ft\204)\0" // NAD83(2011) / California zone 3 (ftUS)
    "\256C\026if\006n\314\0774\0" // NAD83(2011) / California zone 4
    "\256C\026if\006n\314\0774 (ft\204)\0" // NAD83(2011) / California zone 4 (ftUS)
    "\256C\026if\006n\314\0775\0" // NAD83(2011) / California zone 5
    "\256C\026if\006n\314\0775 (ft\204)\0" // NAD83(2011) / California zone 5 (ftUS)
    "\256C\026if\006n\314\0776\0" // NAD83(2011) / California zone 6
    "\256C\026if\006n\314\0776 (ft\204)\0" // NAD83(2011) / California zone 6 (ftUS)
    "\256C\247\006\274\013C\365\026\0" // NAD83(2011) / Colorado Central
    "\256C\247\006\274\013C\365\223(ft\204)\0" // NAD83(2011) / Colorado Central (ftUS)
    "\256C\247\006\274\013\371\0" // NAD83(2011) / Colorado North
    "\256C\247\006\274\013\324(ft\204)\0" // NAD83(2011) / Colorado North (ftUS)
    "\256C\247\006\274\013S\362\0" // NAD83(2011) / Colorado South
    "\256C\247\006\274\013\367(ft\204)\0" // NAD83(2011) / Colorado South (ftUS)
    "\256C\003ne\317$ut\0" // NAD83(2011) / Connecticut
    "\256C\003ne\317$ut (ft\204)\0" // NAD83(2011) / Connecticut (ftUS)
    "\256C\003\357 Alb\220\0" // NAD83(2011) / Conus Albers
    "\256D\240aw#e\0" // NAD83(2011) / Delaware
    "\256D\240aw#\012(ft\204)\0" // NAD83(2011) / Delaware (ftUS)
    "\256E\236G \326\317$\2705-29\0" // NAD83(2011) / EPSG Arctic zone 5-29
    "\256E\236G \326\317$\2705-31\0" // NAD83(2011) / EPSG Arctic zone 5-31
    "\256E\236G \326\317$\2706-14\0" // NAD83(2011) / EPSG Arctic zone 6-14
    "\256E\236G \326\317$\2706-16\0" // NAD83(2011) / EPSG Arctic zone 6-16
    "\256Fl\006\257\030Ea\021\0" // NAD83(2011) / Florida East
    "\256Fl\006\257\030E\315(ft\204)\0" // NAD83(2011) / Florida East (ftUS)
    "\256Fl\006\257\030GDL Alb\220\0" // NAD83(2011) / Florida GDL Albers
    "\256Fl\006\257\030\371\0" // NAD83(2011) / Florida North
    "\256Fl\006\257\030\324(ft\204)\0" // NAD83(2011) / Florida North (ftUS)
    "\256Fl\006\257\030We\021\0" // NAD83(2011) / Florida West
    "\256Fl\006\257\030W\275(ft\204)\0" // NAD83(2011) / Florida West (ftUS)
    "\256Ge\006g\314Ea\021\0" // NAD83(2011) / Georgia East
    "\256Ge\006g\314E\315(ft\204)\0" // NAD83(2011) / Georgia East (ftUS)
    "\256Ge\006g\314We\021\0" // NAD83(2011) / Georgia West
    "\256Ge\006g\314W\275(ft\204)\0" // NAD83(2011) / Georgia West (ftUS)
    "\256IaR@\2701\0" // NAD83(2011) / IaRCS zone 1
    "\256IaR@\27010\0" // NAD83(2011) / IaRCS zone 10
    "\256IaR@\27011\0" // NAD83(2011) / IaRCS zone 11
    "\256IaR@\27012\0" // NAD83(2011) / IaRCS zone 12
    "\256IaR@\27013\0" // NAD83(2011) / IaRCS zone 13
    "\256IaR@\27014\0" // NAD83(2011) / IaRCS zone 14
    "\256IaR@\2702\0" // NAD83(2011) / IaRCS zone 2
    "\256IaR@\2703\0" // NAD83(2011) / IaRCS zone 3
    "\256IaR@\2704\0" // NAD83(2011) / IaRCS zone 4
    "\256IaR@\2705\0" // NAD83(2011) / IaRCS zone 5
    "\256IaR@\2706\0" // NAD83(2011) / IaRCS zone 6
    "\256IaR@\2707\0" // NAD83(2011) / IaRCS zone 7
    "\256IaR@\2708\0" // NAD83(2011) / IaRCS zone 8
    "\256IaR@\2709\0" // NAD83(2011) / IaRCS zone 9
    "\256Id\373\013C\365\026\0" // NAD83(2011) / Idaho Central
    "\256Id\373\013C\365\223(ft\204)\0" // NAD83(2011) / Idaho Central (ftUS)
    "\256Id\373\013Ea\021\0" // NAD83(2011) / Idaho East
    "\256Id\373\013E\315(ft\204)\0" // NAD83(2011) / Idaho East (ftUS)
    "\256Id\373\013We\021\0" // NAD83(2011) / Idaho West
    "\256Id\373\013W\275(ft\204)\0" // NAD83(2011) / Idaho West (ftUS)
    "\256Ill\024o= Ea\021\0" // NAD83(2011) / Illinois East
    "\256Ill\024o= E\315(ft\204)\0" // NAD83(2011) / Illinois East (ftUS)
    "\256Ill\024o= We\021\0" // NAD83(2011) / Illinois West
    "\256Ill\024o= W\275(ft\204)\0" // NAD83(2011) / Illinois West (ftUS)
    "\256\306G@ Ad\232s (ft\204)\0" // NAD83(2011) / InGCS Adams (ftUS)
    "\256\306G@ Ad\232s (m)\0" // NAD83(2011) / InGCS Adams (m)
    "\256\306G@ All\210 (ft\204)\0" // NAD83(2011) / InGCS Allen (ftUS)
    "\256\306G@ All\210 (m)\0" // NAD83(2011) / InGCS Allen (m)
    "\256\306G@ B#\023\247\344ew (ft\204)\0" // NAD83(2011) / InGCS Bartholomew (ftUS)
    "\256\306G@ B#\023\247\344ew (m)\0" // NAD83(2011) / InGCS Bartholomew (m)
    "\256\306G@ Be\032\222(ft\204)\0" // NAD83(2011) / InGCS Benton (ftUS)
    "\256\306G@ Be\032\222(m)\0" // NAD83(2011) / InGCS Benton (m)
    "\256\306G@ Blackf\006d-D\240aw#\012(ft\204)\0" // NAD83(2011) / InGCS Blackford-Delaware (ftUS)
    "\256\306G@ Blackf\006d-D\240aw#\012(m)\0" // NAD83(2011) / InGCS Blackford-Delaware (m)
    "\256\306G@ Bo\003e-H\210dr$ks (ft\204)\0" // NAD83(2011) / InGCS Boone-Hendricks (ftUS)
    "\256\306G@ Bo\003e-H\210dr$ks (m)\0" // NAD83(2011) / InGCS Boone-Hendricks (m)
    "\256\306G@ Brown (ft\204)\0" // NAD83(2011) / InGCS Brown (ftUS)
    "\256\306G@ Brown (m)\0" // NAD83(2011) / InGCS Brown (m)
    "\256\306G@\333#r\247l (ft\204)\0" // NAD83(2011) / InGCS Carroll (ftUS)
    "\256\306G@\333#r\247l (m)\0" // NAD83(2011) / InGCS Carroll (m)
    "\256\306G@\333\201s (ft\204)\0" // NAD83(2011) / InGCS Cass (ftUS)
    "\256\306G@\333\201s (m)\0" // NAD83(2011) / InGCS Cass (m)
    "\256\306G@\333l#k-Floyd-Sc\350t (ft\204)\0" // NAD83(2011) / InGCS Clark-Floyd-Scott (ftUS)
    "\256\306G@\333l#k-Floyd-Sc\350t (m)\0" // NAD83(2011) / InGCS Clark-Floyd-Scott (m)
    "\256\306G@\333la\200(ft\204)\0" // NAD83(2011) / InGCS Clay (ftUS)
    "\256\306G@\333la\200(m)\0" // NAD83(2011) / InGCS Clay (m)
    "\256\306G@\333l\024t\222(ft\204)\0" // NAD83(2011) / InGCS Clinton (ftUS)
    "\256\306G@\333l\024t\222(m)\0" // NAD83(2011) / InGCS Clinton (m)
    "\256\306G@\333\370wf\006d-Law>nce-Or\005g\012(ft\204)\0" // NAD83(2011) / InGCS Crawford-Lawrence-Orange (ftUS)
    "\256\306G@\333\370wf\006d-Law>nce-Or\005g\012(m)\0" // NAD83(2011) / InGCS Crawford-Lawrence-Orange (m)
    "\256\306G@ Davi\242s-G>\210\012(ft\204)\0" // NAD83(2011) / InGCS Daviess-Greene (ftUS)
    "\256\306G@ Davi\242s-G>\210\012(m)\0" // NAD83(2011) / InGCS Daviess-Greene (m)
    "\256\306G@ DeK\026b (ft\204)\0" // NAD83(2011) / InGCS DeKalb (ftUS)
    "\256\306G@ DeK\026b (m)\0" // NAD83(2011) / InGCS DeKalb (m)
    "\256\306G@ De#b\006n-Ohio-Sw\243z\007\211 (ft\204)\0" // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (ftUS)
    "\256\306G@ De#b\006n-Ohio-Sw\243z\007\211 (m)\0" // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (m)
    "\256\306G@ Dec<\225-Ru^ (ft\204)\0" // NAD83(2011) / InGCS Decatur-Rush (ftUS)
    "\256\306G@ Dec<\225-Ru^ (m)\0" // NAD83(2011) / InGCS Decatur-Rush (m)
    "\256\306G@ Dubo=-M#t\024 (ft\204)\0" // NAD83(2011) / InGCS Dubois-Martin (ftUS)
    "\256\306G@ Dubo=-M#t\024 (m)\0" // NAD83(2011) / InGCS Dubois-Martin (m)
    "\256\306G@ Elkh#t-Kosci\357ko-Waba^ (ft\204)\0" // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (ftUS)
    "\256\306G@ Elkh#t-Kosci\357ko-Waba^ (m)\0" // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (m)
    "\256\306G@ Fay\036te-Fr\005kl\024-Uni\222(ft\204)\0" // NAD83(2011) / InGCS Fayette-Franklin-Union (ftUS)
    "\256\306G@ Fay\036te-Fr\005kl\024-Uni\222(m)\0" // NAD83(2011) / InGCS Fayette-Franklin-Union (m)
    "\256\306G@ F\025\032a\024-W#>n (ft\204)\0" // NAD83(2011) / InGCS Fountain-Warren (ftUS)
    "\256\306G@ F\025\032a\024-W#>n (m)\0" // NAD83(2011) / InGCS Fountain-Warren (m)
    "\256\306G@ Fult\003-M#^\026l-St. Jose\230 (ft\204)\0" // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (ftUS)
    "\256\306G@ Fult\003-M#^\026l-St. Jose\230 (m)\0" // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (m)
    "\256\306G@ Gibs\222(ft\204)\0" // NAD83(2011) / InGCS Gibson (ftUS)
    "\256\306G@ Gibs\222(m)\0" // NAD83(2011) / InGCS Gibson (m)
    "\256\306G@ Gr\005t (ft\204)\0" // NAD83(2011) / InGCS Grant (ftUS)
    "\256\306G@ Gr\005t (m)\0" // NAD83(2011) / InGCS Grant (m)
    "\256\306G@ H\232\372t\003-Tipt\222(ft\204)\0" // NAD83(2011) / InGCS Hamilton-Tipton (ftUS)
    "\256\306G@ H\232\372t\003-Tipt\222(m)\0" // NAD83(2011) / InGCS Hamilton-Tipton (m)
    "\256\306G@ H\005cock-M\274=\222(ft\204)\0" // NAD83(2011) / InGCS Hancock-Madison (ftUS)
    "\256\306G@ H\005cock-M\274=\222(m)\0" // NAD83(2011) / InGCS Hancock-Madison (m)
    "\256\306G@ H#r=\003-Wa^\024gt\222(ft\204)\0" // NAD83(2011) / InGCS Harrison-Washington (ftUS)
    "\256\306G@ H#r=\003-Wa^\024gt\222(m)\0" // NAD83(2011) / InGCS Harrison-Washington (m)
    "\256\306G@ H\210r\200(ft\204)\0" // NAD83(2011) / InGCS Henry (ftUS)
    "\256\306G@ H\210r\200(m)\0" // NAD83(2011) / InGCS Henry (m)
    "\256\306G@ How#d-Mi\232i (ft\204)\0" // NAD83(2011) / InGCS Howard-Miami (ftUS)
    "\256\306G@ How#d-Mi\232i (m)\0" // NAD83(2011) / InGCS Howard-Miami (m)
    "\256\306G@ Hu\032\024gt\003-Wh\243le\200(ft\204)\0" // NAD83(2011) / InGCS Huntington-Whitley (ftUS)
    "\256\306G@ Hu\032\024gt\003-Wh\243le\200(m)\0" // NAD83(2011) / InGCS Huntington-Whitley (m)
    "\256\306G@ Jacks\222(ft\204)\0" // NAD83(2011) / InGCS Jackson (ftUS)
    "\256\306G@ Jacks\222(m)\0" // NAD83(2011) / InGCS Jackson (m)
    "\256\306G@ J\201p\007-P\006t\007 (ft\204)\0" // NAD83(2011) / InGCS Jasper-Porter (ftUS)
    "\256\306G@ J\201p\007-P\006t\007 (m)\0" // NAD83(2011) / InGCS Jasper-Porter (m)
    "\256\306G@ Ja\200(ft\204)\0" // NAD83(2011) / InGCS Jay (ftUS)
    "\256\306G@ Ja\200(m)\0" // NAD83(2011) / InGCS Jay (m)
    "\256\306G@ Jeff\220\222(ft\204)\0" // NAD83(2011) / InGCS Jefferson (ftUS)
    "\256\306G@ Jeff\220\222(m)\0" // NAD83(2011) / InGCS Jefferson (m)
    "\256\306G@ J\210n\024gs (ft\204)\0" // NAD83(2011) / InGCS Jennings (ftUS)
    "\256\306G@ J\210n\024gs (m)\0" // NAD83(2011) / InGCS Jennings (m)
    "\256\306G@ Johns\003-M#i\222(ft\204)\0" // NAD83(2011) / InGCS Johnson-Marion (ftUS)
    "\256\306G@ Johns\003-M#i\222(m)\0" // NAD83(2011) / InGCS Johnson-Marion (m)
    "\256\306G@ Knox (ft\204)\0" // NAD83(2011) / InGCS Knox (ftUS)
    "\256\306G@ Knox (m)\0" // NAD83(2011) / InGCS Knox (m)
    "\256\306G@ LaGr\005ge-Nobl\012(ft\204)\0" // NAD83(2011) / InGCS LaGrange-Noble (ftUS)
    "\256\306G@ LaGr\005ge-Nobl\012(m)\0" // NAD83(2011) / InGCS LaGrange-Noble (m)
    "\256\306G@ LaP\006te-Pul\201ki-St#k\012(ft\204)\0" // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (ftUS)
    "\256\306G@ LaP\006te-Pul\201ki-St#k\012(m)\0" // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (m)
    "\256\306G@ Lake-\361t\222(ft\204)\0" // NAD83(2011) / InGCS Lake-Newton (ftUS)
    "\256\306G@ Lake-\361t\222(m)\0" // NAD83(2011) / InGCS Lake-Newton (m)
    "\256\306G@ M\003roe-M\006g\005 (ft\204)\0" // NAD83(2011) / InGCS Monroe-Morgan (ftUS)
    "\256\306G@ M\003roe-M\006g\005 (m)\0" // NAD83(2011) / InGCS Monroe-Morgan (m)
    "\256\306G@ M\003tg\344\007y-Putn\232 (ft\204)\0" // NAD83(2011) / InGCS Montgomery-Putnam (ftUS)
    "\256\306G@ M\003tg\344\007y-Putn\232 (m)\0" // NAD83(2011) / InGCS Montgomery-Putnam (m)
    "\256\306G@ Ow\210 (ft\204)\0" // NAD83(2011) / InGCS Owen (ftUS)
    "\256\306G@ Ow\210 (m)\0" // NAD83(2011) / InGCS Owen (m)
    "\256\306G@ P#ke-V\007m\372li\222(ft\204)\0" // NAD83(2011) / InGCS Parke-Vermillion (ftUS)
    "\256\306G@ P#ke-V\007m\372li\222(m)\0" // NAD83(2011) / InGCS Parke-Vermillion (m)
    "\256\306G@ P\007r\200(ft\204)\0" // NAD83(2011) / InGCS Perry (ftUS)
    "\256\306G@ P\007r\200(m)\0" // NAD83(2011) / InGCS Perry (m)
    "\256\306G@ Pike-W#r$k (ft\204)\0" // NAD83(2011) / InGCS Pike-Warrick (ftUS)
    "\256\306G@ Pike-W#r$k (m)\0" // NAD83(2011) / InGCS Pike-Warrick (m)
    "\256\306G@ Pose\200(ft\204)\0" // NAD83(2011) / InGCS Posey (ftUS)
    "\256\306G@ Pose\200(m)\0" // NAD83(2011) / InGCS Posey (m)
    "\256\306G@ R\035\247\230-Wayn\012(ft\204)\0" // NAD83(2011) / InGCS Randolph-Wayne (ftUS)
    "\256\306G@ R\035\247\230-Wayn\012(m)\0" // NAD83(2011) / InGCS Randolph-Wayne (m)
    "\256\306G@ Riple\200(ft\204)\0" // NAD83(2011) / InGCS Ripley (ftUS)
    "\256\306G@ Riple\200(m)\0" // NAD83(2011) / InGCS Ripley (m)
    "\256\306G@{h\240\351(ft\204)\0" // NAD83(2011) / InGCS Shelby (ftUS)
    "\256\306G@{h\240\351(m)\0" // NAD83(2011) / InGCS Shelby (m)
    "\256\306G@{p\210c\007 (ft\204)\0" // NAD83(2011) / InGCS Spencer (ftUS)
    "\256\306G@{p\210c\007 (m)\0" // NAD83(2011) / InGCS Spencer (m)
    "\256\306G@{teub\210 (ft\204)\0" // NAD83(2011) / InGCS Steuben (ftUS)
    "\256\306G@{teub\210 (m)\0" // NAD83(2011) / InGCS Steuben (m)
    "\256\306G@{ulliv\005 (ft\204)\0" // NAD83(2011) / InGCS Sullivan (ftUS)
    "\256\306G@{ulliv\005 (m)\0" // NAD83(2011) / InGCS Sullivan (m)
    "\256\306G@ Tippec\005oe-Wh\243\012(ft\204)\0" // NAD83(2011) / InGCS Tippecanoe-White (ftUS)
    "\256\306G@ Tippec\005oe-Wh\243\012(m)\0" // NAD83(2011) / InGCS Tippecanoe-White (m)
    "\256\306G@ V\035\007b\225gh (ft\204)\0" // NAD83(2011) / InGCS Vanderburgh (ftUS)
    "\256\306G@ V\035\007b\225gh (m)\0" // NAD83(2011) / InGCS Vanderburgh (m)
    "\256\306G@ Vig\013(ft\204)\0" // NAD83(2011) / InGCS Vigo (ftUS)
    "\256\306G@ Vig\013(m)\0" // NAD83(2011) / InGCS Vigo (m)
    "\256\306G@ W\240ls (ft\204)\0" // NAD83(2011) / InGCS Wells (ftUS)
    "\256\306G@ W\240ls (m)\0" // NAD83(2011) / InGCS Wells (m)
    "\256\355\335\030Ea\021\0" // NAD83(2011) / Indiana East
    "\256\355\335\030E\315(ft\204)\0" // NAD83(2011) / Indiana East (ftUS)
    "\256\355\335\030We\021\0" // NAD83(2011) / Indiana West
    "\256\355\335\030W\275(ft\204)\0" // NAD83(2011) / Indiana West (ftUS)
    "\256Iow\030\371\0" // NAD83(2011) / Iowa North
    "\256Iow\030\324(ft\204)\0" // NAD83(2011) / Iowa North (ftUS)
    "\256Iow\030S\362\0" // NAD83(2011) / Iowa South
    "\256Iow\030\367(ft\204)\0" // NAD83(2011) / Iowa South (ftUS)
    "\256KS R@\2701\0" // NAD83(2011) / KS RCS zone 1
    "\256KS R@\27010\0" // NAD83(2011) / KS RCS zone 10
    "\256KS R@\27011\0" // NAD83(2011) / KS RCS zone 11
    "\256KS R@\27012\0" // NAD83(2011) / KS RCS zone 12
    "\256KS R@\27013\0" // NAD83(2011) / KS RCS zone 13
    "\256KS R@\27014\0" // NAD83(2011) / KS RCS zone 14
    "\256KS R@\27015\0" // NAD83(2011) / KS RCS zone 15
    "\256KS R@\27016\0" // NAD83(2011) / KS RCS zone 16
    "\256KS R@\27017\0" // NAD83(2011) / KS RCS zone 17
    "\256KS R@\27018\0" // NAD83(2011) / KS RCS zone 18
    "\256KS R@\27019\0" // NAD83(2011) / KS RCS zone 19
    "\256KS R@\2702\0" // NAD83(2011) / KS RCS zone 2
    "\256KS R@\27020\0" // NAD83(2011) / KS RCS zone 20
    "\256KS R@\2703\0" // NAD83(2011) / KS RCS zone 3
    "\256KS R@\2704\0" // NAD83(2011) / KS RCS zone 4
    "\256KS R@\2705\0" // NAD83(2011) / KS RCS zone 5
    "\256KS R@\2706\0" // NAD83(2011) / KS RCS zone 6
    "\256KS R@\2707\0" // NAD83(2011) / KS RCS zone 7
    "\256KS R@\2708\0" // NAD83(2011) / KS RCS zone 8
    "\256KS R@\2709\0" // NAD83(2011) / KS RCS zone 9
    "\256K\005s\201 LCC\0" // NAD83(2011) / Kansas LCC
    "\256K\005s\201 LCC (ft\204)\0" // NAD83(2011) / Kansas LCC (ftUS)
    "\256K\005s\201 \371\0" // NAD83(2011) / Kansas North
    "\256K\005s\201 \324(ft\204)\0" // NAD83(2011) / Kansas North (ftUS)
    "\256K\005s\201{\362\0" // NAD83(2011) / Kansas South
    "\256K\005s\201{\246(ft\204)\0" // NAD83(2011) / Kansas South (ftUS)
    "\256Ke\032uck\200\371\0" // NAD83(2011) / Kentucky North
    "\256Ke\032uck\200\324(ft\204)\0" // NAD83(2011) / Kentucky North (ftUS)
    "\256Ke\032ucky{\024gl\012Z\003e\0" // NAD83(2011) / Kentucky Single Zone
    "\256Ke\032ucky{\024gl\012Z\003\012(ft\204)\0" // NAD83(2011) / Kentucky Single Zone (ftUS)
    "\256Ke\032ucky{\362\0" // NAD83(2011) / Kentucky South
    "\256Ke\032ucky{\246(ft\204)\0" // NAD83(2011) / Kentucky South (ftUS)
    "\256L\025=\335\030\371\0" // NAD83(2011) / Louisiana North
    "\256L\025=\335\030\324(ft\204)\0" // NAD83(2011) / Louisiana North (ftUS)
    "\256L\025=\335\030S\362\0" // NAD83(2011) / Louisiana South
    "\256L\025=\335\030\367(ft\204)\0" // NAD83(2011) / Louisiana South (ftUS)
    "\256Ma\024\012@\2270 C\365\026\0" // NAD83(2011) / Maine CS2000 Central
    "\256Ma\024\012@\2270 Ea\021\0" // NAD83(2011) / Maine CS2000 East
    "\256Ma\024\012@\2270 We\021\0" // NAD83(2011) / Maine CS2000 West
    "\256Ma\024\012Ea\021\0" // NAD83(2011) / Maine East
    "\256Ma\024\012E\315(ft\204)\0" // NAD83(2011) / Maine East (ftUS)
    "\256Ma\024\012We\021\0" // NAD83(2011) / Maine West
    "\256Ma\024\012W\275(ft\204)\0" // NAD83(2011) / Maine West (ftUS)
    "\256M#y\211\0" // NAD83(2011) / Maryland
    "\256M#y\211 (ft\204)\0" // NAD83(2011) / Maryland (ftUS)
    "\256M\201sach\357\036ts \352\0" // NAD83(2011) / Massachusetts Island
    "\256M\201sach\357\036ts \352 (ft\204)\0" // NAD83(2011) / Massachusetts Island (ftUS)
    "\256M\201sach\357\036ts Ma\024\211\0" // NAD83(2011) / Massachusetts Mainland
    "\256M\201sach\357\036ts Ma\024\211 (ft\204)\0" // NAD83(2011) / Massachusetts Mainland (ftUS)
    "\256M$hig\005 C\365\026\0" // NAD83(2011) / Michigan Central
    "\256M$hig\005\333\365\026\205ft)\0" // NAD83(2011) / Michigan Central (ft)
    "\256M$hig\005 \371\0" // NAD83(2011) / Michigan North
    "\256M$hig\005 \324(ft)\0" // NAD83(2011) / Michigan North (ft)
    "\256M$hig\005 Obliqu\012M\007c<\006\0" // NAD83(2011) / Michigan Oblique Mercator
    "\256M$hig\005{\362\0" // NAD83(2011) / Michigan South
    "\256M$hig\005{\246(ft)\0" // NAD83(2011) / Michigan South (ft)
    "\256M\024n\242\350\030C\365\026\0" // NAD83(2011) / Minnesota Central
    "\256M\024n\242\350\030C\365\223(ft\204)\0" // NAD83(2011) / Minnesota Central (ftUS)
    "\256M\024n\242\350\030\371\0" // NAD83(2011) / Minnesota North
    "\256M\024n\242\350\030\324(ft\204)\0" // NAD83(2011) / Minnesota North (ftUS)
    "\256M\024n\242\350\030S\362\0" // NAD83(2011) / Minnesota South
    "\256M\024n\242\350\030\367(ft\204)\0" // NAD83(2011) / Minnesota South (ftUS)
    "\256M=s=sippi Ea\021\0" // NAD83(2011) / Mississippi East
    "\256M=s=sippi E\315(ft\204)\0" // NAD83(2011) / Mississippi East (ftUS)
    "\256M=s=sippi \250\0" // NAD83(2011) / Mississippi TM
    "\256M=s=sippi We\021\0" // NAD83(2011) / Mississippi West
    "\256M=s=sippi W\275(ft\204)\0" // NAD83(2011) / Mississippi West (ftUS)
    "\256M=s\025ri C\365\026\0" // NAD83(2011) / Missouri Central
    "\256M=s\025ri Ea\021\0" // NAD83(2011) / Missouri East
    "\256M=s\025ri We\021\0" // NAD83(2011) / Missouri West
    "\256M\003t\005a\0" // NAD83(2011) / Montana
    "\256M\003t\005\030(ft)\0" // NAD83(2011) / Montana (ft)
    "\256NC| L\201 Veg\201 (ft\204)\0" // NAD83(2011) / NCRS Las Vegas (ftUS)
    "\256NC| L\201 Veg\201 (m)\0" // NAD83(2011) / NCRS Las Vegas (m)
    "\256NC| L\201 Veg\201 high (ft\204)\0" // NAD83(2011) / NCRS Las Vegas high (ftUS)
    "\256NC| L\201 Veg\201 high (m)\0" // NAD83(2011) / NCRS Las Vegas high (m)
    "\256\310br\201ka\0" // NAD83(2011) / Nebraska
    "\256\310br\201k\030(ft\204)\0" // NAD83(2011) / Nebraska (ftUS)
    "\256\310v\274\030C\365\026\0" // NAD83(2011) / Nevada Central
    "\256\310v\274\030C\365\223(ft\204)\0" // NAD83(2011) / Nevada Central (ftUS)
    "\256\310v\274\030Ea\021\0" // NAD83(2011) / Nevada East
    "\256\310v\274\030E\315(ft\204)\0" // NAD83(2011) / Nevada East (ftUS)
    "\256\310v\274\030We\021\0" // NAD83(2011) / Nevada West
    "\256\310v\274\030W\275(ft\204)\0" // NAD83(2011) / Nevada West (ftUS)
    "\256\361 H\232p^i>\0" // NAD83(2011) / New Hampshire
    "\256\361 H\232p^\342\012(ft\204)\0" // NAD83(2011) / New Hampshire (ftUS)
    "\256\361 J\220ey\0" // NAD83(2011) / New Jersey
    "\256\361 J\220e\200(ft\204)\0" // NAD83(2011) / New Jersey (ftUS)
    "\256\361 Mex$\013C\365\026\0" // NAD83(2011) / New Mexico Central
    "\256\361 Mex$\013C\365\223(ft\204)\0" // NAD83(2011) / New Mexico Central (ftUS)
    "\256\361 Mex$\013Ea\021\0" // NAD83(2011) / New Mexico East
    "\256\361 Mex$\013E\315(ft\204)\0" // NAD83(2011) / New Mexico East (ftUS)
    "\256\361 Mex$\013We\021\0" // NAD83(2011) / New Mexico West
    "\256\361 Mex$\013W\275(ft\204)\0" // NAD83(2011) / New Mexico West (ftUS)
    "\256\361 Y\006k C\365\026\0" // NAD83(2011) / New York Central
    "\256\361 Y\006k\333\365\223(ft\204)\0" // NAD83(2011) / New York Central (ftUS)
    "\256\361 Y\006k Ea\021\0" // NAD83(2011) / New York East
    "\256\361 Y\006k E\315(ft\204)\0" // NAD83(2011) / New York East (ftUS)
    "\256\361 Y\006k L\003g \352\0" // NAD83(2011) / New York Long Island
    "\256\361 Y\006k L\003g \352 (ft\204)\0" // NAD83(2011) / New York Long Island (ftUS)
    "\256\361 Y\006k We\021\0" // NAD83(2011) / New York West
    "\256\361 Y\006k W\275(ft\204)\0" // NAD83(2011) / New York West (ftUS)
    "\256\324C#\247\024a\0" // NAD83(2011) / North Carolina
    "\256\324C#\247\024\030(ft\204)\0" // NAD83(2011) / North Carolina (ftUS)
    "\256\324Dak\350\030\371\0" // NAD83(2011) / North Dakota North
    "\256\324Dak\350\030\324(ft)\0" // NAD83(2011) / North Dakota North (ft)
    "\256\324Dak\350\030S\362\0" // NAD83(2011) / North Dakota South
    "\256\324Dak\350\030\367(ft)\0" // NAD83(2011) / North Dakota South (ft)
    "\256Ohi\013\371\0" // NAD83(2011) / Ohio North
    "\256Ohi\013\324(ft\204)\0" // NAD83(2011) / Ohio North (ftUS)
    "\256Ohi\013S\362\0" // NAD83(2011) / Ohio South
    "\256Ohi\013\367(ft\204)\0" // NAD83(2011) / Ohio South (ftUS)
    "\256Okl\373\344\030\371\0" // NAD83(2011) / Oklahoma North
    "\256Okl\373\344\030\324(ft\204)\0" // NAD83(2011) / Oklahoma North (ftUS)
    "\256Okl\373\344\030S\362\0" // NAD83(2011) / Oklahoma South
    "\256Okl\373\344\030\367(ft\204)\0" // NAD83(2011) / Oklahoma South (ftUS)
    "\256\377Bak\007\270(ft)\0" // NAD83(2011) / Oregon Baker zone (ft)
    "\256\377Bak\007\270(m)\0" // NAD83(2011) / Oregon Baker zone (m)
    "\256\377B\210d-B\225ns\270(ft)\0" // NAD83(2011) / Oregon Bend-Burns zone (ft)
    "\256\377B\210d-B\225ns\270(m)\0" // NAD83(2011) / Oregon Bend-Burns zone (m)
    "\256\377B\210d-Kl\232a`F\026ls\270(ft)\0" // NAD83(2011) / Oregon Bend-Klamath Falls zone (ft)
    "\256\377B\210d-Kl\232a`F\026ls\270(m)\0" // NAD83(2011) / Oregon Bend-Klamath Falls zone (m)
    "\256\377B\210d-R\273m\003d-Pr\024ev\372l\012\336ft)\0" // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (ft)
    "\256\377B\210d-R\273m\003d-Pr\024ev\372l\012\077(m)\0" // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (m)
    "\256\377B\225ns-H#p\007\270(ft)\0" // NAD83(2011) / Oregon Burns-Harper zone (ft)
    "\256\377B\225ns-H#p\007\270(m)\0" // NAD83(2011) / Oregon Burns-Harper zone (m)
    "\256\377C\005y\222C\243y-B\225ns\270(ft)\0" // NAD83(2011) / Oregon Canyon City-Burns zone (ft)
    "\256\377C\005y\222C\243y-B\225ns\270(m)\0" // NAD83(2011) / Oregon Canyon City-Burns zone (m)
    "\256\377C\005y\003v\372le-Gr\005ts P\201s\270(ft)\0" // NAD83(2011) / Oregon Canyonville-Grants Pass zone (ft)
    "\256\377C\005y\003v\372le-Gr\005ts P\201s\270(m)\0" // NAD83(2011) / Oregon Canyonville-Grants Pass zone (m)
    "\256\377Co\315R\005g\012\324\336ft)\0" // NAD83(2011) / Oregon Coast Range North zone (ft)
    "\256\377Co\315R\005g\012\324\077(m)\0" // NAD83(2011) / Oregon Coast Range North zone (m)
    "\256\377Co\315\336ft)\0" // NAD83(2011) / Oregon Coast zone (ft)
    "\256\377Co\315\077(m)\0" // NAD83(2011) / Oregon Coast zone (m)
    "\256\377C\247umb\314Riv\007 E\315\336ft)\0" // NAD83(2011) / Oregon Columbia River East zone (ft)
    "\256\377C\247umb\314Riv\007 E\315\077(m)\0" // NAD83(2011) / Oregon Columbia River East zone (m)
    "\256\377C\247umb\314Riv\007 W\275\336ft)\0" // NAD83(2011) / Oregon Columbia River West zone (ft)
    "\256\377C\247umb\314Riv\007 W\275\077(m)\0" // NAD83(2011) / Oregon Columbia River West zone (m)
    "\256\377C\350tag\012Grove-C\005y\003v\372l\012\336ft)\0" // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (ft)
    "\256\377C\350tag\012Grove-C\005y\003v\372l\012\077(m)\0" // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (m)
    "\256\377Dayv\372le-P\370\342i\012C\243\200\336ft)\0" // NAD83(2011) / Oregon Dayville-Prairie City zone (ft)
    "\256\377Dayv\372le-P\370\342i\012C\243\200\077(m)\0" // NAD83(2011) / Oregon Dayville-Prairie City zone (m)
    "\256\377D\210io-B\225ns\270(ft)\0" // NAD83(2011) / Oregon Denio-Burns zone (ft)
    "\256\377D\210io-B\225ns\270(m)\0" // NAD83(2011) / Oregon Denio-Burns zone (m)
    "\256\377Duf\225-M\274r\201\270(ft)\0" // NAD83(2011) / Oregon Dufur-Madras zone (ft)
    "\256\377Duf\225-M\274r\201\270(m)\0" // NAD83(2011) / Oregon Dufur-Madras zone (m)
    "\256\377Eug\210\012\336ft)\0" // NAD83(2011) / Oregon Eugene zone (ft)
    "\256\377Eug\210\012\077(m)\0" // NAD83(2011) / Oregon Eugene zone (m)
    "\256\377GIC L\232b\007t\205ft)\0" // NAD83(2011) / Oregon GIC Lambert (ft)
    "\256\377Gr\005ts P\201s-A^\211\270(ft)\0" // NAD83(2011) / Oregon Grants Pass-Ashland zone (ft)
    "\256\377Gr\005ts P\201s-A^\211\270(m)\0" // NAD83(2011) / Oregon Grants Pass-Ashland zone (m)
    "\256\377G>^\232-W#m{pr\024gs\270(ft)\0" // NAD83(2011) / Oregon Gresham-Warm Springs zone (ft)
    "\256\377G>^\232-W#m{pr\024gs\270(m)\0" // NAD83(2011) / Oregon Gresham-Warm Springs zone (m)
    "\256\377H\026fwa\200\336ft)\0" // NAD83(2011) / Oregon Halfway zone (ft)
    "\256\377H\026fwa\200\077(m)\0" // NAD83(2011) / Oregon Halfway zone (m)
    "\256\377LCC (m)\0" // NAD83(2011) / Oregon LCC (m)
    "\256\377L\030Gr\035\012\336ft)\0" // NAD83(2011) / Oregon La Grande zone (ft)
    "\256\377L\030Gr\035\012\077(m)\0" // NAD83(2011) / Oregon La Grande zone (m)
    "\256\377M\273f\006d-Di\232\003d Lak\012\336ft)\0" // NAD83(2011) / Oregon Medford-Diamond Lake zone (ft)
    "\256\377M\273f\006d-Di\232\003d Lak\012\077(m)\0" // NAD83(2011) / Oregon Medford-Diamond Lake zone (m)
    "\256\377M\243ch\240l\270(ft)\0" // NAD83(2011) / Oregon Mitchell zone (ft)
    "\256\377M\243ch\240l\270(m)\0" // NAD83(2011) / Oregon Mitchell zone (m)
    "\256\377\371\0" // NAD83(2011) / Oregon North
    "\256\377\324(ft)\0" // NAD83(2011) / Oregon North (ft)
    "\256\377\324C\365\223\336ft)\0" // NAD83(2011) / Oregon North Central zone (ft)
    "\256\377\324C\365\223\077(m)\0" // NAD83(2011) / Oregon North Central zone (m)
    "\256\377Ochoc\013Summ\243\270(ft)\0" // NAD83(2011) / Oregon Ochoco Summit zone (ft)
    "\256\377Ochoc\013Summ\243\270(m)\0" // NAD83(2011) / Oregon Ochoco Summit zone (m)
    "\256\377O\032#i\013\336ft)\0" // NAD83(2011) / Oregon Ontario zone (ft)
    "\256\377O\032#i\013\077(m)\0" // NAD83(2011) / Oregon Ontario zone (m)
    "\256\377Owyhe\012\336ft)\0" // NAD83(2011) / Oregon Owyhee zone (ft)
    "\256\377Owyhe\012\077(m)\0" // NAD83(2011) / Oregon Owyhee zone (m)
    "\256\377P\210dl\036\222\336ft)\0" // NAD83(2011) / Oregon Pendleton zone (ft)
    "\256\377P\210dl\036\222\077(m)\0" // NAD83(2011) / Oregon Pendleton zone (m)
    "\256\377P\210dl\036\003-L\030Gr\035\012\336ft)\0" // NAD83(2011) / Oregon Pendleton-La Grande zone (ft)
    "\256\377P\210dl\036\003-L\030Gr\035\012\077(m)\0" // NAD83(2011) / Oregon Pendleton-La Grande zone (m)
    "\256\377P\372\350 Rock-Uki\373\270(ft)\0" // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (ft)
    "\256\377P\372\350 Rock-Uki\373\270(m)\0" // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (m)
    "\256\377P\006t\211\270(ft)\0" // NAD83(2011) / Oregon Portland zone (ft)
    "\256\377P\006t\211\270(m)\0" // NAD83(2011) / Oregon Portland zone (m)
    "\256\377P\370\342i\012C\243y-Brog\005\270(ft)\0" // NAD83(2011) / Oregon Prairie City-Brogan zone (ft)
    "\256\377P\370\342i\012C\243y-Brog\005\270(m)\0" // NAD83(2011) / Oregon Prairie City-Brogan zone (m)
    "\256\377R\372ey-Lakeview\270(ft)\0" // NAD83(2011) / Oregon Riley-Lakeview zone (ft)
    "\256\377R\372ey-Lakeview\270(m)\0" // NAD83(2011) / Oregon Riley-Lakeview zone (m)
    "\256\323\003{\026\206\270(ft)\0" // NAD83(2011) / Oregon Salem zone (ft)
    "\256\323\003{\026\206\270(m)\0" // NAD83(2011) / Oregon Salem zone (m)
    "\256\323\003{\005ti\232 P\201s\270(ft)\0" // NAD83(2011) / Oregon Santiam Pass zone (ft)
    "\256\323\003{\005ti\232 P\201s\270(m)\0" // NAD83(2011) / Oregon Santiam Pass zone (m)
    "\256\323\003{=kiy\025 P\201s\270(ft)\0" // NAD83(2011) / Oregon Siskiyou Pass zone (ft)
    "\256\323\003{=kiy\025 P\201s\270(m)\0" // NAD83(2011) / Oregon Siskiyou Pass zone (m)
    "\256\323\003{\362\0" // NAD83(2011) / Oregon South
    "\256\323\003{\246(ft)\0" // NAD83(2011) / Oregon South (ft)
    "\256\377Uki\373-Fox\270(ft)\0" // NAD83(2011) / Oregon Ukiah-Fox zone (ft)
    "\256\377Uki\373-Fox\270(m)\0" // NAD83(2011) / Oregon Ukiah-Fox zone (m)
    "\256\377W\026low\030\336ft)\0" // NAD83(2011) / Oregon Wallowa zone (ft)
    "\256\377W\026low\030\077(m)\0" // NAD83(2011) / Oregon Wallowa zone (m)
    "\256\377W#n\007 Highwa\200\336ft)\0" // NAD83(2011) / Oregon Warner Highway zone (ft)
    "\256\377W#n\007 Highwa\200\077(m)\0" // NAD83(2011) / Oregon Warner Highway zone (m)
    "\256\377W\372l\232\036t\012P\201s\270(ft)\0" // NAD83(2011) / Oregon Willamette Pass zone (ft)
    "\256\377W\372l\232\036t\012P\201s\270(m)\0" // NAD83(2011) / Oregon Willamette Pass zone (m)
    "\256PC@\2701\205ft)\0" // NAD83(2011) / PCCS zone 1 (ft)
    "\256PC@\2702\205ft)\0" // NAD83(2011) / PCCS zone 2 (ft)
    "\256PC@\2703\205ft)\0" // NAD83(2011) / PCCS zone 3 (ft)
    "\256PC@\2704\205ft)\0" // NAD83(2011) / PCCS zone 4 (ft)
    "\256P\210nsylv\005\314\371\0" // NAD83(2011) / Pennsylvania North
    "\256P\210nsylv\005\314\324(ft\204)\0" // NAD83(2011) / Pennsylvania North (ftUS)
    "\256P\210nsylv\005\314S\362\0" // NAD83(2011) / Pennsylvania South
    "\256P\210nsylv\005\314\367(ft\204)\0" // NAD83(2011) / Pennsylvania South (ftUS)
    "\256Pu\007t\013R$\013\301V\342g\024 \325.\0" // NAD83(2011) / Puerto Rico and Virgin Is.
    "\256RMTC| B\372l\024gs\205ft)\0" // NAD83(2011) / RMTCRS Billings (ft)
    "\256RMTC| B\372l\024gs (m)\0" // NAD83(2011) / RMTCRS Billings (m)
    "\256RMTC| Blackf\221\205ft)\0" // NAD83(2011) / RMTCRS Blackfeet (ft)
    "\256RMTC| Blackf\221 (m)\0" // NAD83(2011) / RMTCRS Blackfeet (m)
    "\256RMTC| Bobc<\205ft)\0" // NAD83(2011) / RMTCRS Bobcat (ft)
    "\256RMTC| Bobc< (m)\0" // NAD83(2011) / RMTCRS Bobcat (m)
    "\256RMTC|\333row\205ft)\0" // NAD83(2011) / RMTCRS Crow (ft)
    "\256RMTC|\333row (m)\0" // NAD83(2011) / RMTCRS Crow (m)
    "\256RMTC| F\006t B\240knap\205ft)\0" // NAD83(2011) / RMTCRS Fort Belknap (ft)
    "\256RMTC| F\006t B\240knap (m)\0" // NAD83(2011) / RMTCRS Fort Belknap (m)
    "\256RMTC| F\006t Peck Ass\024ibo\024\012(ft)\0" // NAD83(2011) / RMTCRS Fort Peck Assiniboine (ft)
    "\256RMTC| F\006t Peck Ass\024ibo\024\012(m)\0" // NAD83(2011) / RMTCRS Fort Peck Assiniboine (m)
    "\256RMTC| F\006t Peck{i\025x\205ft)\0" // NAD83(2011) / RMTCRS Fort Peck Sioux (ft)
    "\256RMTC| F\006t Peck{i\025x (m)\0" // NAD83(2011) / RMTCRS Fort Peck Sioux (m)
    "\256RMTC| M\372k Riv\007\205ft)\0" // NAD83(2011) / RMTCRS Milk River (ft)
    "\256RMTC| M\372k Riv\007 (m)\0" // NAD83(2011) / RMTCRS Milk River (m)
    "\256RMTC|{t M#\200(ft)\0" // NAD83(2011) / RMTCRS St Mary (ft)
    "\256RMTC|{t M#\200(m)\0" // NAD83(2011) / RMTCRS St Mary (m)
    "\256RMTC| W\024d Riv\007 (ft\204)\0" // NAD83(2011) / RMTCRS Wind River (ftUS)
    "\256RMTC| W\024d Riv\007 (m)\0" // NAD83(2011) / RMTCRS Wind River (m)
    "\256Rhod\012\352\0" // NAD83(2011) / Rhode Island
    "\256Rhod\012\352 (ft\204)\0" // NAD83(2011) / Rhode Island (ftUS)
    "\256S\005 Fr\005c=c\013@13\0" // NAD83(2011) / San Francisco CS13
    "\256S\005 Fr\005c=c\013@13 (ft\204)\0" // NAD83(2011) / San Francisco CS13 (ftUS)
    "\256\367C#\247\024a\0" // NAD83(2011) / South Carolina
    "\256\367C#\247\024\030(ft)\0" // NAD83(2011) / South Carolina (ft)
    "\256\367Dak\350\030\371\0" // NAD83(2011) / South Dakota North
    "\256\367Dak\350\030\324(ft\204)\0" // NAD83(2011) / South Dakota North (ftUS)
    "\256\367Dak\350\030S\362\0" // NAD83(2011) / South Dakota South
    "\256\367Dak\350\030\367(ft\204)\0" // NAD83(2011) / South Dakota South (ftUS)
    "\256T\210n\242see\0" // NAD83(2011) / Tennessee
    "\256T\210n\242se\012(ft\204)\0" // NAD83(2011) / Tennessee (ftUS)
    "\256Tex\201 C\365\026\0" // NAD83(2011) / Texas Central
    "\256Tex\201\333\365\223(ft\204)\0" // NAD83(2011) / Texas Central (ftUS)
    "\256Tex\201\333\365$ Alb\220 Equ\223A>a\0" // NAD83(2011) / Texas Centric Albers Equal Area
    "\256Tex\201\333\365$ L\232b\007t\333\003f\006m\026\0" // NAD83(2011) / Texas Centric Lambert Conformal
    "\256Tex\201 \371\0" // NAD83(2011) / Texas North
    "\256Tex\201 \324(ft\204)\0" // NAD83(2011) / Texas North (ftUS)
    "\256Tex\201 \324C\365\026\0" // NAD83(2011) / Texas North Central
    "\256Tex\201 \324C\365\223(ft\204)\0" // NAD83(2011) / Texas North Central (ftUS)
    "\256Tex\201{\362\0" // NAD83(2011) / Texas South
    "\256Tex\201{\246(ft\204)\0" // NAD83(2011) / Texas South (ftUS)
    "\256Tex\201{\246C\365\026\0" // NAD83(2011) / Texas South Central
    "\256Tex\201{\246C\365\223(ft\204)\0" // NAD83(2011) / Texas South Central (ftUS)
    "\256U\250\270\312N\0" // NAD83(2011) / UTM zone 10N
    "\256U\250\27011N\0" // NAD83(2011) / UTM zone 11N
    "\256U\250\27012N\0" // NAD83(2011) / UTM zone 12N
    "\256U\250\27013N\0" // NAD83(2011) / UTM zone 13N
    "\256U\250\27014N\0" // NAD83(2011) / UTM zone 14N
    "\256U\250\27015N\0" // NAD83(2011) / UTM zone 15N
    "\256U\250\27016N\0" // NAD83(2011) / UTM zone 16N
    "\256U\250\27017N\0" // NAD83(2011) / UTM zone 17N
    "\256U\250\27018N\0" // NAD83(2011) / UTM zone 18N
    "\256U\250\27019N\0" // NAD83(2011) / UTM zone 19N
    "\256U\250\2701N\0" // NAD83(2011) / UTM zone 1N
    "\256U\250\2702N\0" // NAD83(2011) / UTM zone 2N
    "\256U\250\2703N\0" // NAD83(2011) / UTM zone 3N
    "\256U\250\2704N\0" // NAD83(2011) / UTM zone 4N
    "\256U\250\27059N\0" // NAD83(2011) / UTM zone 59N
    "\256U\250\2705N\0" // NAD83(2011) / UTM zone 5N
    "\256U\250\27060N\0" // NAD83(2011) / UTM zone 60N
    "\256U\250\2706N\0" // NAD83(2011) / UTM zone 6N
    "\256U\250\2707N\0" // NAD83(2011) / UTM zone 7N
    "\256U\250\2708N\0" // NAD83(2011) / UTM zone 8N
    "\256U\250\2709N\0" // NAD83(2011) / UTM zone 9N
    "\256Ut\373 C\365\026\0" // NAD83(2011) / Utah Central
    "\256Ut\373\333\365\223(ft\204)\0" // NAD83(2011) / Utah Central (ftUS)
    "\256Ut\373 \371\0" // NAD83(2011) / Utah North
    "\256Ut\373 \324(ft\204)\0" // NAD83(2011) / Utah North (ftUS)
    "\256Ut\373{\362\0" // NAD83(2011) / Utah South
    "\256Ut\373{\246(ft\204)\0" // NAD83(2011) / Utah South (ftUS)
    "\256V\007m\003t\0" // NAD83(2011) / Vermont
    "\256V\007m\003t (ft\204)\0" // NAD83(2011) / Vermont (ftUS)
    "\256V\342g\024\314L\232b\007t\0" // NAD83(2011) / Virginia Lambert
    "\256V\342g\024\314\371\0" // NAD83(2011) / Virginia North
    "\256V\342g\024\314\324(ft\204)\0" // NAD83(2011) / Virginia North (ftUS)
    "\256V\342g\024\314S\362\0" // NAD83(2011) / Virginia South
    "\256V\342g\024\314\367(ft\204)\0" // NAD83(2011) / Virginia South (ftUS)
    "\256WI\322| Ad\232s \301Juneau (ft\204)\0" // NAD83(2011) / WISCRS Adams and Juneau (ftUS)
    "\256WI\322| Ad\232s \301Juneau (m)\0" // NAD83(2011) / WISCRS Adams and Juneau (m)
    "\256WI\322| A^\211 (ft\204)\0" // NAD83(2011) / WISCRS Ashland (ftUS)
    "\256WI\322| A^\211 (m)\0" // NAD83(2011) / WISCRS Ashland (m)
    "\256WI\322| B#r\222(ft\204)\0" // NAD83(2011) / WISCRS Barron (ftUS)
    "\256WI\322| B#r\222(m)\0" // NAD83(2011) / WISCRS Barron (m)
    "\256WI\322| Bayfi\240d (ft\204)\0" // NAD83(2011) / WISCRS Bayfield (ftUS)
    "\256WI\322| Bayfi\240d (m)\0" // NAD83(2011) / WISCRS Bayfield (m)
    "\256WI\322| Brown (ft\204)\0" // NAD83(2011) / WISCRS Brown (ftUS)
    "\256WI\322| Brown (m)\0" // NAD83(2011) / WISCRS Brown (m)
    "\256WI\322| Buff\026\013(ft\204)\0" // NAD83(2011) / WISCRS Buffalo (ftUS)
    "\256WI\322| Buff\026\013(m)\0" // NAD83(2011) / WISCRS Buffalo (m)
    "\256WI\322| B\225n\036t (ft\204)\0" // NAD83(2011) / WISCRS Burnett (ftUS)
    "\256WI\322| B\225n\036t (m)\0" // NAD83(2011) / WISCRS Burnett (m)
    "\256WI\322|\333\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebag\013(ft\204)\0" // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    "\256WI\322|\333\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebag\013(m)\0" // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    "\256WI\322|\333hippew\030(ft\204)\0" // NAD83(2011) / WISCRS Chippewa (ftUS)
    "\256WI\322|\333hippew\030(m)\0" // NAD83(2011) / WISCRS Chippewa (m)
    "\256WI\322|\333l#k (ft\204)\0" // NAD83(2011) / WISCRS Clark (ftUS)
    "\256WI\322|\333l#k (m)\0" // NAD83(2011) / WISCRS Clark (m)
    "\256WI\322|\333\247umb\314(ft\204)\0" // NAD83(2011) / WISCRS Columbia (ftUS)
    "\256WI\322|\333\247umb\314(m)\0" // NAD83(2011) / WISCRS Columbia (m)
    "\256WI\322|\333\370wf\006d (ft\204)\0" // NAD83(2011) / WISCRS Crawford (ftUS)
    "\256WI\322|\333\370wf\006d (m)\0" // NAD83(2011) / WISCRS Crawford (m)
    "\256WI\322| D\005\012(ft\204)\0" // NAD83(2011) / WISCRS Dane (ftUS)
    "\256WI\322| D\005\012(m)\0" // NAD83(2011) / WISCRS Dane (m)
    "\256WI\322| Dodg\012\301Jeff\220\222(ft\204)\0" // NAD83(2011) / WISCRS Dodge and Jefferson (ftUS)
    "\256WI\322| Dodg\012\301Jeff\220\222(m)\0" // NAD83(2011) / WISCRS Dodge and Jefferson (m)
    "\256WI\322| Do\006 (ft\204)\0" // NAD83(2011) / WISCRS Door (ftUS)
    "\256WI\322| Do\006 (m)\0" // NAD83(2011) / WISCRS Door (m)
    "\256WI\322| D\025gl\201 (ft\204)\0" // NAD83(2011) / WISCRS Douglas (ftUS)
    "\256WI\322| D\025gl\201 (m)\0" // NAD83(2011) / WISCRS Douglas (m)
    "\256WI\322| Dunn (ft\204)\0" // NAD83(2011) / WISCRS Dunn (ftUS)
    "\256WI\322| Dunn (m)\0" // NAD83(2011) / WISCRS Dunn (m)
    "\256WI\322| Eau\333la\342\012(ft\204)\0" // NAD83(2011) / WISCRS Eau Claire (ftUS)
    "\256WI\322| Eau\333la\342\012(m)\0" // NAD83(2011) / WISCRS Eau Claire (m)
    "\256WI\322| Fl\202nc\012(ft\204)\0" // NAD83(2011) / WISCRS Florence (ftUS)
    "\256WI\322| Fl\202nc\012(m)\0" // NAD83(2011) / WISCRS Florence (m)
    "\256WI\322| F\202~(ft\204)\0" // NAD83(2011) / WISCRS Forest (ftUS)
    "\256WI\322| F\202~(m)\0" // NAD83(2011) / WISCRS Forest (m)
    "\256WI\322| Gr\005t (ft\204)\0" // NAD83(2011) / WISCRS Grant (ftUS)
    "\256WI\322| Gr\005t (m)\0" // NAD83(2011) / WISCRS Grant (m)
    "\256WI\322| G>\210 Lak\012\301M#qu\036t\012(ft\204)\0" // NAD83(2011) / WISCRS Green Lake and Marquette (ftUS)
    "\256WI\322| G>\210 Lak\012\301M#qu\036t\012(m)\0" // NAD83(2011) / WISCRS Green Lake and Marquette (m)
    "\256WI\322| G>\210 \301Lafay\036t\012(ft\204)\0" // NAD83(2011) / WISCRS Green and Lafayette (ftUS)
    "\256WI\322| G>\210 \301Lafay\036t\012(m)\0" // NAD83(2011) / WISCRS Green and Lafayette (m)
    "\256WI\322| Iow\030(ft\204)\0" // NAD83(2011) / WISCRS Iowa (ftUS)
    "\256WI\322| Iow\030(m)\0" // NAD83(2011) / WISCRS Iowa (m)
    "\256WI\322| Ir\222(ft\204)\0" // NAD83(2011) / WISCRS Iron (ftUS)
    "\256WI\322| Ir\222(m)\0" // NAD83(2011) / WISCRS Iron (m)
    "\256WI\322| Jacks\222(ft\204)\0" // NAD83(2011) / WISCRS Jackson (ftUS)
    "\256WI\322| Jacks\222(m)\0" // NAD83(2011) / WISCRS Jackson (m)
    "\256WI\322| K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024\012(ft\204)\0" // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    "\256WI\322| K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024\012(m)\0" // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    "\256WI\322| Kewaunee\307M\005\243owoc \035{heboyg\005 (ft\204)\0" // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    "\256WI\322| Kewaunee\307M\005\243owoc \035{heboyg\005 (m)\0" // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    "\256WI\322| L\030Cross\012(ft\204)\0" // NAD83(2011) / WISCRS La Crosse (ftUS)
    "\256WI\322| L\030Cross\012(m)\0" // NAD83(2011) / WISCRS La Crosse (m)
    "\256WI\322| L\005gl\274\012(ft\204)\0" // NAD83(2011) / WISCRS Langlade (ftUS)
    "\256WI\322| L\005gl\274\012(m)\0" // NAD83(2011) / WISCRS Langlade (m)
    "\256WI\322| L\024c\247n (ft\204)\0" // NAD83(2011) / WISCRS Lincoln (ftUS)
    "\256WI\322| L\024c\247n (m)\0" // NAD83(2011) / WISCRS Lincoln (m)
    "\256WI\322| M#a\023\222(ft\204)\0" // NAD83(2011) / WISCRS Marathon (ftUS)
    "\256WI\322| M#a\023\222(m)\0" // NAD83(2011) / WISCRS Marathon (m)
    "\256WI\322| M#\024\036t\012(ft\204)\0" // NAD83(2011) / WISCRS Marinette (ftUS)
    "\256WI\322| M#\024\036t\012(m)\0" // NAD83(2011) / WISCRS Marinette (m)
    "\256WI\322| M\210\344\024e\012(ft\204)\0" // NAD83(2011) / WISCRS Menominee (ftUS)
    "\256WI\322| M\210\344\024e\012(m)\0" // NAD83(2011) / WISCRS Menominee (m)
    "\256WI\322| M\003ro\012(ft\204)\0" // NAD83(2011) / WISCRS Monroe (ftUS)
    "\256WI\322| M\003ro\012(m)\0" // NAD83(2011) / WISCRS Monroe (m)
    "\256WI\322| Oc\003t\013(ft\204)\0" // NAD83(2011) / WISCRS Oconto (ftUS)
    "\256WI\322| Oc\003t\013(m)\0" // NAD83(2011) / WISCRS Oconto (m)
    "\256WI\322| One\257\030(ft\204)\0" // NAD83(2011) / WISCRS Oneida (ftUS)
    "\256WI\322| One\257\030(m)\0" // NAD83(2011) / WISCRS Oneida (m)
    "\256WI\322| Pep\024 \301Pi\007c\012(ft\204)\0" // NAD83(2011) / WISCRS Pepin and Pierce (ftUS)
    "\256WI\322| Pep\024 \301Pi\007c\012(m)\0" // NAD83(2011) / WISCRS Pepin and Pierce (m)
    "\256WI\322| P\247k (ft\204)\0" // NAD83(2011) / WISCRS Polk (ftUS)
    "\256WI\322| P\247k (m)\0" // NAD83(2011) / WISCRS Polk (m)
    "\256WI\322| P\006tag\012(ft\204)\0" // NAD83(2011) / WISCRS Portage (ftUS)
    "\256WI\322| P\006tag\012(m)\0" // NAD83(2011) / WISCRS Portage (m)
    "\256WI\322| Pr$\012(ft\204)\0" // NAD83(2011) / WISCRS Price (ftUS)
    "\256WI\322| Pr$\012(m)\0" // NAD83(2011) / WISCRS Price (m)
    "\256WI\322| R$h\211 (ft\204)\0" // NAD83(2011) / WISCRS Richland (ftUS)
    "\256WI\322| R$h\211 (m)\0" // NAD83(2011) / WISCRS Richland (m)
    "\256WI\322| Rock (ft\204)\0" // NAD83(2011) / WISCRS Rock (ftUS)
    "\256WI\322| Rock (m)\0" // NAD83(2011) / WISCRS Rock (m)
    "\256WI\322| R\357k (ft\204)\0" // NAD83(2011) / WISCRS Rusk (ftUS)
    "\256WI\322| R\357k (m)\0" // NAD83(2011) / WISCRS Rusk (m)
    "\256WI\322|{auk (ft\204)\0" // NAD83(2011) / WISCRS Sauk (ftUS)
    "\256WI\322|{auk (m)\0" // NAD83(2011) / WISCRS Sauk (m)
    "\256WI\322|{awy\007 (ft\204)\0" // NAD83(2011) / WISCRS Sawyer (ftUS)
    "\256WI\322|{awy\007 (m)\0" // NAD83(2011) / WISCRS Sawyer (m)
    "\256WI\322|{haw\005\013(ft\204)\0" // NAD83(2011) / WISCRS Shawano (ftUS)
    "\256WI\322|{haw\005\013(m)\0" // NAD83(2011) / WISCRS Shawano (m)
    "\256WI\322|{t.\333roix (ft\204)\0" // NAD83(2011) / WISCRS St. Croix (ftUS)
    "\256WI\322|{t.\333roix (m)\0" // NAD83(2011) / WISCRS St. Croix (m)
    "\256WI\322| Tayl\006 (ft\204)\0" // NAD83(2011) / WISCRS Taylor (ftUS)
    "\256WI\322| Tayl\006 (m)\0" // NAD83(2011) / WISCRS Taylor (m)
    "\256WI\322| T>mpe\026eau (ft\204)\0" // NAD83(2011) / WISCRS Trempealeau (ftUS)
    "\256WI\322| T>mpe\026eau (m)\0" // NAD83(2011) / WISCRS Trempealeau (m)
    "\256WI\322| V\007n\222(ft\204)\0" // NAD83(2011) / WISCRS Vernon (ftUS)
    "\256WI\322| V\007n\222(m)\0" // NAD83(2011) / WISCRS Vernon (m)
    "\256WI\322| V\372\201 (ft\204)\0" // NAD83(2011) / WISCRS Vilas (ftUS)
    "\256WI\322| V\372\201 (m)\0" // NAD83(2011) / WISCRS Vilas (m)
    "\256WI\322| W\026w\006`(ft\204)\0" // NAD83(2011) / WISCRS Walworth (ftUS)
    "\256WI\322| W\026w\006`(m)\0" // NAD83(2011) / WISCRS Walworth (m)
    "\256WI\322| Wa^b\225n (ft\204)\0" // NAD83(2011) / WISCRS Washburn (ftUS)
    "\256WI\322| Wa^b\225n (m)\0" // NAD83(2011) / WISCRS Washburn (m)
    "\256WI\322| Wa^\024gt\222(ft\204)\0" // NAD83(2011) / WISCRS Washington (ftUS)
    "\256WI\322| Wa^\024gt\222(m)\0" // NAD83(2011) / WISCRS Washington (m)
    "\256WI\322| Wauke^\030(ft\204)\0" // NAD83(2011) / WISCRS Waukesha (ftUS)
    "\256WI\322| Wauke^\030(m)\0" // NAD83(2011) / WISCRS Waukesha (m)
    "\256WI\322| Waupac\030(ft\204)\0" // NAD83(2011) / WISCRS Waupaca (ftUS)
    "\256WI\322| Waupac\030(m)\0" // NAD83(2011) / WISCRS Waupaca (m)
    "\256WI\322| Wau^#\030(ft\204)\0" // NAD83(2011) / WISCRS Waushara (ftUS)
    "\256WI\322| Wau^#\030(m)\0" // NAD83(2011) / WISCRS Waushara (m)
    "\256WI\322| Wood (ft\204)\0" // NAD83(2011) / WISCRS Wood (ftUS)
    "\256WI\322| Wood (m)\0" // NAD83(2011) / WISCRS Wood (m)
    "\256Wa^\024gt\222\371\0" // NAD83(2011) / Washington North
    "\256Wa^\024gt\222\324(ft\204)\0" // NAD83(2011) / Washington North (ftUS)
    "\256Wa^\024gt\003{\362\0" // NAD83(2011) / Washington South
    "\256Wa^\024gt\003{\246(ft\204)\0" // NAD83(2011) / Washington South (ftUS)
    "\256W\275V\342g\024\314\371\0" // NAD83(2011) / West Virginia North
    "\256W\275V\342g\024\314\324(ft\204)\0" // NAD83(2011) / West Virginia North (ftUS)
    "\256W\275V\342g\024\314S\362\0" // NAD83(2011) / West Virginia South
    "\256W\275V\342g\024\314\367(ft\204)\0" // NAD83(2011) / West Virginia South (ftUS)
    "\256W=c\003s\024 C\365\026\0" // NAD83(2011) / Wisconsin Central
    "\256W=c\003s\024\333\365\223(ft\204)\0" // NAD83(2011) / Wisconsin Central (ftUS)
    "\256W=c\003s\024 \371\0" // NAD83(2011) / Wisconsin North
    "\256W=c\003s\024 \324(ft\204)\0" // NAD83(2011) / Wisconsin North (ftUS)
    "\256W=c\003s\024{\362\0" // NAD83(2011) / Wisconsin South
    "\256W=c\003s\024{\246(ft\204)\0" // NAD83(2011) / Wisconsin South (ftUS)
    "\256W=c\003s\024 Tr\005sv\220\012M\007c<\006\0" // NAD83(2011) / Wisconsin Transverse Mercator
    "\256Wy\344\024g Ea\021\0" // NAD83(2011) / Wyoming East
    "\256Wy\344\024g E\315(ft\204)\0" // NAD83(2011) / Wyoming East (ftUS)
    "\256Wy\344\024g E\315C\365\026\0" // NAD83(2011) / Wyoming East Central
    "\256Wy\344\024g E\315C\365\223(ft\204)\0" // NAD83(2011) / Wyoming East Central (ftUS)
    "\256Wy\344\024g We\021\0" // NAD83(2011) / Wyoming West
    "\256Wy\344\024g W\275(ft\204)\0" // NAD83(2011) / Wyoming West (ftUS)
    "\256Wy\344\024g W\275C\365\026\0" // NAD83(2011) / Wyoming West Central
    "\256Wy\344\024g W\275C\365\223(ft\204)\0" // NAD83(2011) / Wyoming West Central (ftUS)
    "*CO|96)\0" // NAD83(CORS96)
    "*CO|96%\377Bak\007\270(ft)\0" // NAD83(CORS96) / Oregon Baker zone (ft)
    "*CO|96%\377Bak\007\270(m)\0" // NAD83(CORS96) / Oregon Baker zone (m)
    "*CO|96%\377B\210d-B\225ns\270(ft)\0" // NAD83(CORS96) / Oregon Bend-Burns zone (ft)
    "*CO|96%\377B\210d-B\225ns\270(m)\0" // NAD83(CORS96) / Oregon Bend-Burns zone (m)
    "*CO|96%\377B\210d-Kl\232a`F\026ls\270(ft)\0" // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (ft)
    "*CO|96%\377B\210d-Kl\232a`F\026ls\270(m)\0" // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (m)
    "*CO|96%\377B\210d-R\273m\003d-Pr\024ev\372l\012\336ft)\0" // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (ft)
    "*CO|96%\377B\210d-R\273m\003d-Pr\024ev\372l\012\077(m)\0" // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (m)
    "*CO|96%\377C\005y\003v\372le-Gr\005ts P\201s\270(ft)\0" // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (ft)
    "*CO|96%\377C\005y\003v\372le-Gr\005ts P\201s\270(m)\0" // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (m)
    "*CO|96%\377Co\315\336ft)\0" // NAD83(CORS96) / Oregon Coast zone (ft)
    "*CO|96%\377Co\315\077(m)\0" // NAD83(CORS96) / Oregon Coast zone (m)
    "*CO|96%\377C\247umb\314Riv\007 E\315\336ft)\0" // NAD83(CORS96) / Oregon Columbia River East zone (ft)
    "*CO|96%\377C\247umb\314Riv\007 E\315\077(m)\0" // NAD83(CORS96) / Oregon Columbia River East zone (m)
    "*CO|96%\377C\247umb\314Riv\007 W\275\336ft)\0" // NAD83(CORS96) / Oregon Columbia River West zone (ft)
    "*CO|96%\377C\247umb\314Riv\007 W\275\077(m)\0" // NAD83(CORS96) / Oregon Columbia River West zone (m)
    "*CO|96%\377C\350tag\012Grove-C\005y\003v\372l\012\336ft)\0" // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (ft)
    "*CO|96%\377C\350tag\012Grove-C\005y\003v\372l\012\077(m)\0" // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (m)
    "*CO|96%\377Duf\225-M\274r\201\270(ft)\0" // NAD83(CORS96) / Oregon Dufur-Madras zone (ft)
    "*CO|96%\377Duf\225-M\274r\201\270(m)\0" // NAD83(CORS96) / Oregon Dufur-Madras zone (m)
    "*CO|96%\377Eug\210\012\336ft)\0" // NAD83(CORS96) / Oregon Eugene zone (ft)
    "*CO|96%\377Eug\210\012\077(m)\0" // NAD83(CORS96) / Oregon Eugene zone (m)
    "*CO|96%\377GIC L\232b\007t\205ft)\0" // NAD83(CORS96) / Oregon GIC Lambert (ft)
    "*CO|96%\377Gr\005ts P\201s-A^\211\270(ft)\0" // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (ft)
    "*CO|96%\377Gr\005ts P\201s-A^\211\270(m)\0" // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (m)
    "*CO|96%\377G>^\232-W#m{pr\024gs\270(ft)\0" // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (ft)
    "*CO|96%\377G>^\232-W#m{pr\024gs\270(m)\0" // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (m)
    "*CO|96%\377LCC (m)\0" // NAD83(CORS96) / Oregon LCC (m)
    "*CO|96%\377L\030Gr\035\012\336ft)\0" // NAD83(CORS96) / Oregon La Grande zone (ft)
    "*CO|96%\377L\030Gr\035\012\077(m)\0" // NAD83(CORS96) / Oregon La Grande zone (m)
    "*CO|96%\377\371\0" // NAD83(CORS96) / Oregon North
    "*CO|96%\377\324(ft)\0" // NAD83(CORS96) / Oregon North (ft)
    "*CO|96%\377O\032#i\013\336ft)\0" // NAD83(CORS96) / Oregon Ontario zone (ft)
    "*CO|96%\377O\032#i\013\077(m)\0" // NAD83(CORS96) / Oregon Ontario zone (m)
    "*CO|96%\377P\210dl\036\222\336ft)\0" // NAD83(CORS96) / Oregon Pendleton zone (ft)
    "*CO|96%\377P\210dl\036\222\077(m)\0" // NAD83(CORS96) / Oregon Pendleton zone (m)
    "*CO|96%\377P\210dl\036\003-L\030Gr\035\012\336ft)\0" // NAD83(CORS96) / Oregon Pendleton-La Grande zone (ft)
    "*CO|96%\377P\210dl\036\003-L\030Gr\035\012\077(m)\0" // NAD83(CORS96) / Oregon Pendleton-La Grande zone (m)
    "*CO|96%\377P\006t\211\270(ft)\0" // NAD83(CORS96) / Oregon Portland zone (ft)
    "*CO|96%\377P\006t\211\270(m)\0" // NAD83(CORS96) / Oregon Portland zone (m)
    "*CO|96%\323\003{\026\206\270(ft)\0" // NAD83(CORS96) / Oregon Salem zone (ft)
    "*CO|96%\323\003{\026\206\270(m)\0" // NAD83(CORS96) / Oregon Salem zone (m)
    "*CO|96%\323\003{\005ti\232 P\201s\270(ft)\0" // NAD83(CORS96) / Oregon Santiam Pass zone (ft)
    "*CO|96%\323\003{\005ti\232 P\201s\270(m)\0" // NAD83(CORS96) / Oregon Santiam Pass zone (m)
    "*CO|96%\323\003{\362\0" // NAD83(CORS96) / Oregon South
    "*CO|96%\323\003{\246(ft)\0" // NAD83(CORS96) / Oregon South (ft)
    "*CO|96%Pu\007t\013R$\013\301V\342g\024 \325.\0" // NAD83(CORS96) / Puerto Rico and Virgin Is.
    "*@|)\0" // NAD83(CSRS)
    "*@|) \0" // NAD83(CSRS) 
    "*@|%Alb\007t\030\312-\250\205F\202\021)\0" // NAD83(CSRS) / Alberta 10-TM (Forest)
    "*@|%Alb\007t\030\312-\250\205R\242\025rce)\0" // NAD83(CSRS) / Alberta 10-TM (Resource)
    "*@|%Alb\007t\0303\250 >f m\007\257 \1771 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 111 W
    "*@|%Alb\007t\0303\250 >f m\007\257 \1774 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 114 W
    "*@|%Alb\007t\0303\250 >f m\007\257 \1777 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 117 W
    "*@|%Alb\007t\0303\250 >f m\007\257 1\033 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    "*@|%BC Alb\220\0" // NAD83(CSRS) / BC Albers
    "*@|%C\005\274\030Atl\201 L\232b\007t\0" // NAD83(CSRS) / Canada Atlas Lambert
    "*@|%E\236G \326\317$\2701-23\0" // NAD83(CSRS) / EPSG Arctic zone 1-23
    "*@|%E\236G \326\317$\2702-14\0" // NAD83(CSRS) / EPSG Arctic zone 2-14
    "*@|%E\236G \326\317$\2702-16\0" // NAD83(CSRS) / EPSG Arctic zone 2-16
    "*@|%E\236G \326\317$\2703-25\0" // NAD83(CSRS) / EPSG Arctic zone 3-25
    "*@|%E\236G \326\317$\2703-27\0" // NAD83(CSRS) / EPSG Arctic zone 3-27
    "*@|%E\236G \326\317$\2703-29\0" // NAD83(CSRS) / EPSG Arctic zone 3-29
    "*@|%E\236G \326\317$\2704-14\0" // NAD83(CSRS) / EPSG Arctic zone 4-14
    "*@|%E\236G \326\317$\2704-16\0" // NAD83(CSRS) / EPSG Arctic zone 4-16
    "*@|%E\236G \326\317$\2704-18\0" // NAD83(CSRS) / EPSG Arctic zone 4-18
    "*@|%E\236G \326\317$\2705-33\0" // NAD83(CSRS) / EPSG Arctic zone 5-33
    "*@|%E\236G \326\317$\2705-35\0" // NAD83(CSRS) / EPSG Arctic zone 5-35
    "*@|%E\236G \326\317$\2705-37\0" // NAD83(CSRS) / EPSG Arctic zone 5-37
    "*@|%E\236G \326\317$\2705-39\0" // NAD83(CSRS) / EPSG Arctic zone 5-39
    "*@|%E\236G \326\317$\2706-18\0" // NAD83(CSRS) / EPSG Arctic zone 6-18
    "*@|%E\236G \326\317$\2706-20\0" // NAD83(CSRS) / EPSG Arctic zone 6-20
    "*@|%E\236G \326\317$\2706-22\0" // NAD83(CSRS) / EPSG Arctic zone 6-22
    "*@|%E\236G \326\317$\2706-24\0" // NAD83(CSRS) / EPSG Arctic zone 6-24
    "*@|%M\250\2701\0" // NAD83(CSRS) / MTM zone 1
    "*@|%M\250\27010\0" // NAD83(CSRS) / MTM zone 10
    "*@|%M\250\27011\0" // NAD83(CSRS) / MTM zone 11
    "*@|%M\250\27012\0" // NAD83(CSRS) / MTM zone 12
    "*@|%M\250\27013\0" // NAD83(CSRS) / MTM zone 13
    "*@|%M\250\27014\0" // NAD83(CSRS) / MTM zone 14
    "*@|%M\250\27015\0" // NAD83(CSRS) / MTM zone 15
    "*@|%M\250\27016\0" // NAD83(CSRS) / MTM zone 16
    "*@|%M\250\27017\0" // NAD83(CSRS) / MTM zone 17
    "*@|%M\250\2702\0" // NAD83(CSRS) / MTM zone 2
    "*@|%M\250\2703\0" // NAD83(CSRS) / MTM zone 3
    "*@|%M\250\2704\0" // NAD83(CSRS) / MTM zone 4
    "*@|%M\250\2705\0" // NAD83(CSRS) / MTM zone 5
    "*@|%M\250\2706\0" // NAD83(CSRS) / MTM zone 6
    "*@|%M\250\2707\0" // NAD83(CSRS) / MTM zone 7
    "*@|%M\250\2708\0" // NAD83(CSRS) / MTM zone 8
    "*@|%M\250\2709\0" // NAD83(CSRS) / MTM zone 9
    "*@|%MTQ L\232b\007t\0" // NAD83(CSRS) / MTQ Lambert
    "*@|%NWT L\232b\007t\0" // NAD83(CSRS) / NWT Lambert
    "*@|%\361 Brunsw$k{t\007eog\370\230$\0" // NAD83(CSRS) / New Brunswick Stereographic
    "*@|%O\032#i\013MNR L\232b\007t\0" // NAD83(CSRS) / Ontario MNR Lambert
    "*@|%Pr\024c\012Edw#d \325l.{t\007eog\370\230$\205\027)\0" // NAD83(CSRS) / Prince Edward Isl. Stereographic (NAD83)
    "*@|%Quebec Alb\220\0" // NAD83(CSRS) / Quebec Albers
    "*@|%Quebec L\232b\007t\0" // NAD83(CSRS) / Quebec Lambert
    "*@|%\322oPQ\2702\0" // NAD83(CSRS) / SCoPQ zone 2
    "*@|%St<i\021$s\333\005\274\030L\232b\007t\0" // NAD83(CSRS) / Statistics Canada Lambert
    "*@|%T\007\005\036 O\032#i\013L\232b\007t\0" // NAD83(CSRS) / Teranet Ontario Lambert
    "*@|%U\250\270\312N\0" // NAD83(CSRS) / UTM zone 10N
    "*@|%U\250\27011N\0" // NAD83(CSRS) / UTM zone 11N
    "*@|%U\250\27012N\0" // NAD83(CSRS) / UTM zone 12N
    "*@|%U\250\27013N\0" // NAD83(CSRS) / UTM zone 13N
    "*@|%U\250\27014N\0" // NAD83(CSRS) / UTM zone 14N
    "*@|%U\250\27015N\0" // NAD83(CSRS) / UTM zone 15N
    "*@|%U\250\27016N\0" // NAD83(CSRS) / UTM zone 16N
    "*@|%U\250\27017N\0" // NAD83(CSRS) / UTM zone 17N
    "*@|%U\250\27018N\0" // NAD83(CSRS) / UTM zone 18N
    "*@|%U\250\27019N\0" // NAD83(CSRS) / UTM zone 19N
    "*@|%U\250\270\033N\0" // NAD83(CSRS) / UTM zone 20N
    "*@|%U\250\27021N\0" // NAD83(CSRS) / UTM zone 21N
    "*@|%U\250\27022N\0" // NAD83(CSRS) / UTM zone 22N
    "*@|%U\250\27023N\0" // NAD83(CSRS) / UTM zone 23N
    "*@|%U\250\27024N\0" // NAD83(CSRS) / UTM zone 24N
    "*@|%U\250\2707N\0" // NAD83(CSRS) / UTM zone 7N
    "*@|%U\250\2708N\0" // NAD83(CSRS) / UTM zone 8N
    "*@|%U\250\2709N\0" // NAD83(CSRS) / UTM zone 9N
    "*@|%Yuk\222Alb\220\0" // NAD83(CSRS) / Yukon Albers
    "*@|)v1\0" // NAD83(CSRS)v1
    "*@|)v2\0" // NAD83(CSRS)v2
    "*@|)v2\011Alb\007t\0303\250 >f m\007\257 \1771 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 111 W
    "*@|)v2\011Alb\007t\0303\250 >f m\007\257 \1774 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 114 W
    "*@|)v2\011Alb\007t\0303\250 >f m\007\257 \1777 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 117 W
    "*@|)v2\011Alb\007t\0303\250 >f m\007\257 1\033 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 120 W
    "*@|)v2\011NB{t\007eog\370\230$\0" // NAD83(CSRS)v2 / NB Stereographic
    "*@|)v2\011PEI{t\007eog\370\230$\0" // NAD83(CSRS)v2 / PEI Stereographic
    "*@|)v2\011\322oPQ\27010\0" // NAD83(CSRS)v2 / SCoPQ zone 10
    "*@|)v2\011\322oPQ\2703\0" // NAD83(CSRS)v2 / SCoPQ zone 3
    "*@|)v2\011\322oPQ\2704\0" // NAD83(CSRS)v2 / SCoPQ zone 4
    "*@|)v2\011\322oPQ\2705\0" // NAD83(CSRS)v2 / SCoPQ zone 5
    "*@|)v2\011\322oPQ\2706\0" // NAD83(CSRS)v2 / SCoPQ zone 6
    "*@|)v2\011\322oPQ\2707\0" // NAD83(CSRS)v2 / SCoPQ zone 7
    "*@|)v2\011\322oPQ\2708\0" // NAD83(CSRS)v2 / SCoPQ zone 8
    "*@|)v2\011\322oPQ\2709\0" // NAD83(CSRS)v2 / SCoPQ zone 9
    "*@|)v2\011U\250\270\312N\0" // NAD83(CSRS)v2 / UTM zone 10N
    "*@|)v2\011U\250\27011N\0" // NAD83(CSRS)v2 / UTM zone 11N
    "*@|)v2\011U\250\27012N\0" // NAD83(CSRS)v2 / UTM zone 12N
    "*@|)v2\011U\250\27013N\0" // NAD83(CSRS)v2 / UTM zone 13N
    "*@|)v2\011U\250\27014N\0" // NAD83(CSRS)v2 / UTM zone 14N
    "*@|)v2\011U\250\27015N\0" // NAD83(CSRS)v2 / UTM zone 15N
    "*@|)v2\011U\250\27016N\0" // NAD83(CSRS)v2 / UTM zone 16N
    "*@|)v2\011U\250\27017N\0" // NAD83(CSRS)v2 / UTM zone 17N
    "*@|)v2\011U\250\27018N\0" // NAD83(CSRS)v2 / UTM zone 18N
    "*@|)v2\011U\250\27019N\0" // NAD83(CSRS)v2 / UTM zone 19N
    "*@|)v2\011U\250\270\033N\0" // NAD83(CSRS)v2 / UTM zone 20N
    "*@|)v2\011U\250\27021N\0" // NAD83(CSRS)v2 / UTM zone 21N
    "*@|)v2\011U\250\27022N\0" // NAD83(CSRS)v2 / UTM zone 22N
    "*@|)v2\011U\250\2707N\0" // NAD83(CSRS)v2 / UTM zone 7N
    "*@|)v2\011U\250\2708N\0" // NAD83(CSRS)v2 / UTM zone 8N
    "*@|)v2\011U\250\2709N\0" // NAD83(CSRS)v2 / UTM zone 9N
    "*@|)v3\0" // NAD83(CSRS)v3
    "*@|)v3\011M\250 \334\32097\2704\0" // NAD83(CSRS)v3 / MTM NS 1997 zone 4
    "*@|)v3\011M\250 \334\32097\2705\0" // NAD83(CSRS)v3 / MTM NS 1997 zone 5
    "*@|)v3\011M\250\27010\0" // NAD83(CSRS)v3 / MTM zone 10
    "*@|)v3\011M\250\27011\0" // NAD83(CSRS)v3 / MTM zone 11
    "*@|)v3\011M\250\27012\0" // NAD83(CSRS)v3 / MTM zone 12
    "*@|)v3\011M\250\27013\0" // NAD83(CSRS)v3 / MTM zone 13
    "*@|)v3\011M\250\27014\0" // NAD83(CSRS)v3 / MTM zone 14
    "*@|)v3\011M\250\27015\0" // NAD83(CSRS)v3 / MTM zone 15
    "*@|)v3\011M\250\27016\0" // NAD83(CSRS)v3 / MTM zone 16
    "*@|)v3\011M\250\27017\0" // NAD83(CSRS)v3 / MTM zone 17
    "*@|)v3\011M\250\2708\0" // NAD83(CSRS)v3 / MTM zone 8
    "*@|)v3\011M\250\2709\0" // NAD83(CSRS)v3 / MTM zone 9
    "*@|)v3\011U\250\270\312N\0" // NAD83(CSRS)v3 / UTM zone 10N
    "*@|)v3\011U\250\27011N\0" // NAD83(CSRS)v3 / UTM zone 11N
    "*@|)v3\011U\250\27012N\0" // NAD83(CSRS)v3 / UTM zone 12N
    "*@|)v3\011U\250\27013N\0" // NAD83(CSRS)v3 / UTM zone 13N
    "*@|)v3\011U\250\27014N\0" // NAD83(CSRS)v3 / UTM zone 14N
    "*@|)v3\011U\250\27015N\0" // NAD83(CSRS)v3 / UTM zone 15N
    "*@|)v3\011U\250\27016N\0" // NAD83(CSRS)v3 / UTM zone 16N
    "*@|)v3\011U\250\27017N\0" // NAD83(CSRS)v3 / UTM zone 17N
    "*@|)v3\011U\250\27018N\0" // NAD83(CSRS)v3 / UTM zone 18N
    "*@|)v3\011U\250\27019N\0" // NAD83(CSRS)v3 / UTM zone 19N
    "*@|)v3\011U\250\270\033N\0" // NAD83(CSRS)v3 / UTM zone 20N
    "*@|)v3\011U\250\27021N\0" // NAD83(CSRS)v3 / UTM zone 21N
    "*@|)v3\011U\250\27022N\0" // NAD83(CSRS)v3 / UTM zone 22N
    "*@|)v3\011U\250\2707N\0" // NAD83(CSRS)v3 / UTM zone 7N
    "*@|)v3\011U\250\2708N\0" // NAD83(CSRS)v3 / UTM zone 8N
    "*@|)v3\011U\250\2709N\0" // NAD83(CSRS)v3 / UTM zone 9N
    "*@|)v4\0" // NAD83(CSRS)v4
    "*@|)v4\011Alb\007t\0303\250 >f m\007\257 \1771 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 111 W
    "*@|)v4\011Alb\007t\0303\250 >f m\007\257 \1774 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 114 W
    "*@|)v4\011Alb\007t\0303\250 >f m\007\257 \1777 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 117 W
    "*@|)v4\011Alb\007t\0303\250 >f m\007\257 1\033 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 120 W
    "*@|)v4\011U\250\270\312N\0" // NAD83(CSRS)v4 / UTM zone 10N
    "*@|)v4\011U\250\27011N\0" // NAD83(CSRS)v4 / UTM zone 11N
    "*@|)v4\011U\250\27012N\0" // NAD83(CSRS)v4 / UTM zone 12N
    "*@|)v4\011U\250\27013N\0" // NAD83(CSRS)v4 / UTM zone 13N
    "*@|)v4\011U\250\27014N\0" // NAD83(CSRS)v4 / UTM zone 14N
    "*@|)v4\011U\250\27015N\0" // NAD83(CSRS)v4 / UTM zone 15N
    "*@|)v4\011U\250\27016N\0" // NAD83(CSRS)v4 / UTM zone 16N
    "*@|)v4\011U\250\27017N\0" // NAD83(CSRS)v4 / UTM zone 17N
    "*@|)v4\011U\250\27018N\0" // NAD83(CSRS)v4 / UTM zone 18N
    "*@|)v4\011U\250\27019N\0" // NAD83(CSRS)v4 / UTM zone 19N
    "*@|)v4\011U\250\270\033N\0" // NAD83(CSRS)v4 / UTM zone 20N
    "*@|)v4\011U\250\27021N\0" // NAD83(CSRS)v4 / UTM zone 21N
    "*@|)v4\011U\250\27022N\0" // NAD83(CSRS)v4 / UTM zone 22N
    "*@|)v4\011U\250\2707N\0" // NAD83(CSRS)v4 / UTM zone 7N
    "*@|)v4\011U\250\2708N\0" // NAD83(CSRS)v4 / UTM zone 8N
    "*@|)v4\011U\250\2709N\0" // NAD83(CSRS)v4 / UTM zone 9N
    "*@|)v5\0" // NAD83(CSRS)v5
    "*@|)v6\0" // NAD83(CSRS)v6
    "*@|)v6\011M\250 \334 \033\312\2704\0" // NAD83(CSRS)v6 / MTM NS 2010 zone 4
    "*@|)v6\011M\250 \334 \033\312\2705\0" // NAD83(CSRS)v6 / MTM NS 2010 zone 5
    "*@|)v6\011M\250\2701\0" // NAD83(CSRS)v6 / MTM zone 1
    "*@|)v6\011M\250\27010\0" // NAD83(CSRS)v6 / MTM zone 10
    "*@|)v6\011M\250\27011\0" // NAD83(CSRS)v6 / MTM zone 11
    "*@|)v6\011M\250\27012\0" // NAD83(CSRS)v6 / MTM zone 12
    "*@|)v6\011M\250\27013\0" // NAD83(CSRS)v6 / MTM zone 13
    "*@|)v6\011M\250\27014\0" // NAD83(CSRS)v6 / MTM zone 14
    "*@|)v6\011M\250\27015\0" // NAD83(CSRS)v6 / MTM zone 15
    "*@|)v6\011M\250\27016\0" // NAD83(CSRS)v6 / MTM zone 16
    "*@|)v6\011M\250\27017\0" // NAD83(CSRS)v6 / MTM zone 17
    "*@|)v6\011M\250\2702\0" // NAD83(CSRS)v6 / MTM zone 2
    "*@|)v6\011M\250\2703\0" // NAD83(CSRS)v6 / MTM zone 3
    "*@|)v6\011M\250\2704\0" // NAD83(CSRS)v6 / MTM zone 4
    "*@|)v6\011M\250\2705\0" // NAD83(CSRS)v6 / MTM zone 5
    "*@|)v6\011M\250\2706\0" // NAD83(CSRS)v6 / MTM zone 6
    "*@|)v6\011M\250\2708\0" // NAD83(CSRS)v6 / MTM zone 8
    "*@|)v6\011M\250\2709\0" // NAD83(CSRS)v6 / MTM zone 9
    "*@|)v6\011PEI{t\007eog\370\230$\0" // NAD83(CSRS)v6 / PEI Stereographic
    "*@|)v6\011U\250\270\312N\0" // NAD83(CSRS)v6 / UTM zone 10N
    "*@|)v6\011U\250\27011N\0" // NAD83(CSRS)v6 / UTM zone 11N
    "*@|)v6\011U\250\27012N\0" // NAD83(CSRS)v6 / UTM zone 12N
    "*@|)v6\011U\250\27013N\0" // NAD83(CSRS)v6 / UTM zone 13N
    "*@|)v6\011U\250\27014N\0" // NAD83(CSRS)v6 / UTM zone 14N
    "*@|)v6\011U\250\27015N\0" // NAD83(CSRS)v6 / UTM zone 15N
    "*@|)v6\011U\250\27016N\0" // NAD83(CSRS)v6 / UTM zone 16N
    "*@|)v6\011U\250\27017N\0" // NAD83(CSRS)v6 / UTM zone 17N
    "*@|)v6\011U\250\27018N\0" // NAD83(CSRS)v6 / UTM zone 18N
    "*@|)v6\011U\250\27019N\0" // NAD83(CSRS)v6 / UTM zone 19N
    "*@|)v6\011U\250\270\033N\0" // NAD83(CSRS)v6 / UTM zone 20N
    "*@|)v6\011U\250\27021N\0" // NAD83(CSRS)v6 / UTM zone 21N
    "*@|)v6\011U\250\27022N\0" // NAD83(CSRS)v6 / UTM zone 22N
    "*@|)v6\011U\250\2707N\0" // NAD83(CSRS)v6 / UTM zone 7N
    "*@|)v6\011U\250\2708N\0" // NAD83(CSRS)v6 / UTM zone 8N
    "*@|)v6\011U\250\2709N\0" // NAD83(CSRS)v6 / UTM zone 9N
    "*@|)v7\0" // NAD83(CSRS)v7
    "*@|)v7\011Alb\007t\0303\250 >f m\007\257 \1771 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 111 W
    "*@|)v7\011Alb\007t\0303\250 >f m\007\257 \1774 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 114 W
    "*@|)v7\011Alb\007t\0303\250 >f m\007\257 \1777 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 117 W
    "*@|)v7\011Alb\007t\0303\250 >f m\007\257 1\033 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 120 W
    "*@|)v7\011PEI{t\007eog\370\230$\0" // NAD83(CSRS)v7 / PEI Stereographic
    "*@|)v7\011U\250\270\312N\0" // NAD83(CSRS)v7 / UTM zone 10N
    "*@|)v7\011U\250\27011N\0" // NAD83(CSRS)v7 / UTM zone 11N
    "*@|)v7\011U\250\27012N\0" // NAD83(CSRS)v7 / UTM zone 12N
    "*@|)v7\011U\250\27013N\0" // NAD83(CSRS)v7 / UTM zone 13N
    "*@|)v7\011U\250\27014N\0" // NAD83(CSRS)v7 / UTM zone 14N
    "*@|)v7\011U\250\27015N\0" // NAD83(CSRS)v7 / UTM zone 15N
    "*@|)v7\011U\250\27016N\0" // NAD83(CSRS)v7 / UTM zone 16N
    "*@|)v7\011U\250\27017N\0" // NAD83(CSRS)v7 / UTM zone 17N
    "*@|)v7\011U\250\27018N\0" // NAD83(CSRS)v7 / UTM zone 18N
    "*@|)v7\011U\250\27019N\0" // NAD83(CSRS)v7 / UTM zone 19N
    "*@|)v7\011U\250\270\033N\0" // NAD83(CSRS)v7 / UTM zone 20N
    "*@|)v7\011U\250\27021N\0" // NAD83(CSRS)v7 / UTM zone 21N
    "*@|)v7\011U\250\27022N\0" // NAD83(CSRS)v7 / UTM zone 22N
    "*@|)v7\011U\250\2707N\0" // NAD83(CSRS)v7 / UTM zone 7N
    "*@|)v7\011U\250\2708N\0" // NAD83(CSRS)v7 / UTM zone 8N
    "*@|)v7\011U\250\2709N\0" // NAD83(CSRS)v7 / UTM zone 9N
    "*@|96)\0" // NAD83(CSRS96)
    "*@|96) v1\002L<L\003\0" // NAD83(CSRS96) v1 - LatLon
    "*@|96)v1\0" // NAD83(CSRS96)v1
    "*@|98)\0" // NAD83(CSRS98)
    "*@|98%M\250\27010\0" // NAD83(CSRS98) / MTM zone 10
    "*@|98%M\250\2703\0" // NAD83(CSRS98) / MTM zone 3
    "*@|98%M\250\2704\0" // NAD83(CSRS98) / MTM zone 4
    "*@|98%M\250\2705\0" // NAD83(CSRS98) / MTM zone 5
    "*@|98%M\250\2706\0" // NAD83(CSRS98) / MTM zone 6
    "*@|98%M\250\2707\0" // NAD83(CSRS98) / MTM zone 7
    "*@|98%M\250\2708\0" // NAD83(CSRS98) / MTM zone 8
    "*@|98%M\250\2709\0" // NAD83(CSRS98) / MTM zone 9
    "*@|98%\361 Brunsw$k{t\007eo\0" // NAD83(CSRS98) / New Brunswick Stereo
    "*@|98%Pr\024c\012Edw#d \325l.{t\007eog\370\230$\205\027)\0" // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    "*@|98%\322oPQ\2702\0" // NAD83(CSRS98) / SCoPQ zone 2
    "*@|98%U\250\27011N\0" // NAD83(CSRS98) / UTM zone 11N
    "*@|98%U\250\27012N\0" // NAD83(CSRS98) / UTM zone 12N
    "*@|98%U\250\27013N\0" // NAD83(CSRS98) / UTM zone 13N
    "*@|98%U\250\27017N\0" // NAD83(CSRS98) / UTM zone 17N
    "*@|98%U\250\27018N\0" // NAD83(CSRS98) / UTM zone 18N
    "*@|98%U\250\27019N\0" // NAD83(CSRS98) / UTM zone 19N
    "*@|98%U\250\270\033N\0" // NAD83(CSRS98) / UTM zone 20N
    "*@|98%U\250\27021N\0" // NAD83(CSRS98) / UTM zone 21N
    "\027(FBN)\0" // NAD83(FBN)
    "\340\333\006>\317\273)\0" // NAD83(HARN Corrected)
    "\340)\0" // NAD83(HARN)
    "\341Alab\232\030Ea\021\0" // NAD83(HARN) / Alabama East
    "\341Alab\232\030We\021\0" // NAD83(HARN) / Alabama West
    "\341\326i!\030C\365\026\0" // NAD83(HARN) / Arizona Central
    "\341\326i!\030C\365\026\205ft)\0" // NAD83(HARN) / Arizona Central (ft)
    "\341\326i!\030Ea\021\0" // NAD83(HARN) / Arizona East
    "\341\326i!\030E\315(ft)\0" // NAD83(HARN) / Arizona East (ft)
    "\341\326i!\030We\021\0" // NAD83(HARN) / Arizona West
    "\341\326i!\030W\275(ft)\0" // NAD83(HARN) / Arizona West (ft)
    "\341\326k\005s\201 \371\0" // NAD83(HARN) / Arkansas North
    "\341\326k\005s\201 \324(ft\204)\0" // NAD83(HARN) / Arkansas North (ftUS)
    "\341\326k\005s\201{\362\0" // NAD83(HARN) / Arkansas South
    "\341\326k\005s\201{\246(ft\204)\0" // NAD83(HARN) / Arkansas South (ftUS)
    "\341C\026if\006n\314Alb\220\0" // NAD83(HARN) / California Albers
    "\341C\026if\006n\314\0771\0" // NAD83(HARN) / California zone 1
    "\341C\026if\006n\314\0771 (ft\204)\0" // NAD83(HARN) / California zone 1 (ftUS)
    "\341C\026if\006n\314\0772\0" // NAD83(HARN) / California zone 2
    "\341C\026if\006n\314\0772 (ft\204)\0" // NAD83(HARN) / California zone 2 (ftUS)
    "\341C\026if\006n\314\0773\0" // NAD83(HARN) / California zone 3
    "\341C\026if\006n\314\0773 (ft\204)\0" // NAD83(HARN) / California zone 3 (ftUS)
    "\341C\026if\006n\314\0774\0" // NAD83(HARN) / California zone 4
    "\341C\026if\006n\314\0774 (ft\204)\0" // NAD83(HARN) / California zone 4 (ftUS)
    "\341C\026if\006n\314\0775\0" // NAD83(HARN) / California zone 5
    "\341C\026if\006n\314\0775 (ft\204)\0" // NAD83(HARN) / California zone 5 (ftUS)
    "\341C\026if\006n\314\0776\0" // NAD83(HARN) / California zone 6
    "\341C\026if\006n\314\0776 (ft\204)\0" // NAD83(HARN) / California zone 6 (ftUS)
    "\341C\247\006\274\013C\365\026\0" // NAD83(HARN) / Colorado Central
    "\341C\247\006\274\013C\365\223(ft\204)\0" // NAD83(HARN) / Colorado Central (ftUS)
    "\341C\247\006\274\013\371\0" // NAD83(HARN) / Colorado North
    "\341C\247\006\274\013\324(ft\204)\0" // NAD83(HARN) / Colorado North (ftUS)
    "\341C\247\006\274\013S\362\0" // NAD83(HARN) / Colorado South
    "\341C\247\006\274\013\367(ft\204)\0" // NAD83(HARN) / Colorado South (ftUS)
    "\341C\003ne\317$ut\0" // NAD83(HARN) / Connecticut
    "\341C\003ne\317$ut (ft\204)\0" // NAD83(HARN) / Connecticut (ftUS)
    "\341C\003\357 Alb\220\0" // NAD83(HARN) / Conus Albers
    "\341D\240aw#e\0" // NAD83(HARN) / Delaware
    "\341D\240aw#\012(ft\204)\0" // NAD83(HARN) / Delaware (ftUS)
    "\341Fl\006\257\030Ea\021\0" // NAD83(HARN) / Florida East
    "\341Fl\006\257\030E\315(ft\204)\0" // NAD83(HARN) / Florida East (ftUS)
    "\341Fl\006\257\030GDL Alb\220\0" // NAD83(HARN) / Florida GDL Albers
    "\341Fl\006\257\030\371\0" // NAD83(HARN) / Florida North
    "\341Fl\006\257\030\324(ft\204)\0" // NAD83(HARN) / Florida North (ftUS)
    "\341Fl\006\257\030We\021\0" // NAD83(HARN) / Florida West
    "\341Fl\006\257\030W\275(ft\204)\0" // NAD83(HARN) / Florida West (ftUS)
    "\341Ge\006g\314Ea\021\0" // NAD83(HARN) / Georgia East
    "\341Ge\006g\314E\315(ft\204)\0" // NAD83(HARN) / Georgia East (ftUS)
    "\341Ge\006g\314We\021\0" // NAD83(HARN) / Georgia West
    "\341Ge\006g\314W\275(ft\204)\0" // NAD83(HARN) / Georgia West (ftUS)
    "\341Gu\232 Map Gr\257\0" // NAD83(HARN) / Guam Map Grid
    "\341Hawaii\2701\0" // NAD83(HARN) / Hawaii zone 1
    "\341Hawaii\2702\0" // NAD83(HARN) / Hawaii zone 2
    "\341Hawaii\2703\0" // NAD83(HARN) / Hawaii zone 3
    "\341Hawaii\2703 (ft\204)\0" // NAD83(HARN) / Hawaii zone 3 (ftUS)
    "\341Hawaii\2704\0" // NAD83(HARN) / Hawaii zone 4
    "\341Hawaii\2705\0" // NAD83(HARN) / Hawaii zone 5
    "\341Id\373\013C\365\026\0" // NAD83(HARN) / Idaho Central
    "\341Id\373\013C\365\223(ft\204)\0" // NAD83(HARN) / Idaho Central (ftUS)
    "\341Id\373\013Ea\021\0" // NAD83(HARN) / Idaho East
    "\341Id\373\013E\315(ft\204)\0" // NAD83(HARN) / Idaho East (ftUS)
    "\341Id\373\013We\021\0" // NAD83(HARN) / Idaho West
    "\341Id\373\013W\275(ft\204)\0" // NAD83(HARN) / Idaho West (ftUS)
    "\341Ill\024o= Ea\021\0" // NAD83(HARN) / Illinois East
    "\341Ill\024o= E\315(ft\204)\0" // NAD83(HARN) / Illinois East (ftUS)
    "\341Ill\024o= We\021\0" // NAD83(HARN) / Illinois West
    "\341Ill\024o= W\275(ft\204)\0" // NAD83(HARN) / Illinois West (ftUS)
    "\341\355\335\030Ea\021\0" // NAD83(HARN) / Indiana East
    "\341\355\335\030E\315(ft\204)\0" // NAD83(HARN) / Indiana East (ftUS)
    "\341\355\335\030We\021\0" // NAD83(HARN) / Indiana West
    "\341\355\335\030W\275(ft\204)\0" // NAD83(HARN) / Indiana West (ftUS)
    "\341Iow\030\371\0" // NAD83(HARN) / Iowa North
    "\341Iow\030\324(ft\204)\0" // NAD83(HARN) / Iowa North (ftUS)
    "\341Iow\030S\362\0" // NAD83(HARN) / Iowa South
    "\341Iow\030\367(ft\204)\0" // NAD83(HARN) / Iowa South (ftUS)
    "\341K\005s\201 \371\0" // NAD83(HARN) / Kansas North
    "\341K\005s\201 \324(ft\204)\0" // NAD83(HARN) / Kansas North (ftUS)
    "\341K\005s\201{\362\0" // NAD83(HARN) / Kansas South
    "\341K\005s\201{\246(ft\204)\0" // NAD83(HARN) / Kansas South (ftUS)
    "\341Ke\032uck\200\371\0" // NAD83(HARN) / Kentucky North
    "\341Ke\032uck\200\324(ft\204)\0" // NAD83(HARN) / Kentucky North (ftUS)
    "\341Ke\032ucky{\024gl\012Z\003e\0" // NAD83(HARN) / Kentucky Single Zone
    "\341Ke\032ucky{\024gl\012Z\003\012(ft\204)\0" // NAD83(HARN) / Kentucky Single Zone (ftUS)
    "\341Ke\032ucky{\362\0" // NAD83(HARN) / Kentucky South
    "\341Ke\032ucky{\246(ft\204)\0" // NAD83(HARN) / Kentucky South (ftUS)
    "\341L\025=\335\030\371\0" // NAD83(HARN) / Louisiana North
    "\341L\025=\335\030\324(ft\204)\0" // NAD83(HARN) / Louisiana North (ftUS)
    "\341L\025=\335\030S\362\0" // NAD83(HARN) / Louisiana South
    "\341L\025=\335\030\367(ft\204)\0" // NAD83(HARN) / Louisiana South (ftUS)
    "\341Ma\024\012@\2270 C\365\026\0" // NAD83(HARN) / Maine CS2000 Central
    "\341Ma\024\012@\2270 Ea\021\0" // NAD83(HARN) / Maine CS2000 East
    "\341Ma\024\012@\2270 We\021\0" // NAD83(HARN) / Maine CS2000 West
    "\341Ma\024\012Ea\021\0" // NAD83(HARN) / Maine East
    "\341Ma\024\012E\315(ft\204)\0" // NAD83(HARN) / Maine East (ftUS)
    "\341Ma\024\012We\021\0" // NAD83(HARN) / Maine West
    "\341Ma\024\012W\275(ft\204)\0" // NAD83(HARN) / Maine West (ftUS)
    "\341M#y\211\0" // NAD83(HARN) / Maryland
    "\341M#y\211 (ft\204)\0" // NAD83(HARN) / Maryland (ftUS)
    "\341M\201sach\357\036ts \352\0" // NAD83(HARN) / Massachusetts Island
    "\341M\201sach\357\036ts \352 (ft\204)\0" // NAD83(HARN) / Massachusetts Island (ftUS)
    "\341M\201sach\357\036ts Ma\024\211\0" // NAD83(HARN) / Massachusetts Mainland
    "\341M\201sach\357\036ts Ma\024\211 (ft\204)\0" // NAD83(HARN) / Massachusetts Mainland (ftUS)
    "\341M$hig\005 C\365\026\0" // NAD83(HARN) / Michigan Central
    "\341M$hig\005\333\365\026\205ft)\0" // NAD83(HARN) / Michigan Central (ft)
    "\341M$hig\005 \371\0" // NAD83(HARN) / Michigan North
    "\341M$hig\005 \324(ft)\0" // NAD83(HARN) / Michigan North (ft)
    "\341M$hig\005 Obliqu\012M\007c<\006\0" // NAD83(HARN) / Michigan Oblique Mercator
    "\341M$hig\005{\362\0" // NAD83(HARN) / Michigan South
    "\341M$hig\005{\246(ft)\0" // NAD83(HARN) / Michigan South (ft)
    "\341M\024n\242\350\030C\365\026\0" // NAD83(HARN) / Minnesota Central
    "\341M\024n\242\350\030C\365\223(ft\204)\0" // NAD83(HARN) / Minnesota Central (ftUS)
    "\341M\024n\242\350\030\371\0" // NAD83(HARN) / Minnesota North
    "\341M\024n\242\350\030\324(ft\204)\0" // NAD83(HARN) / Minnesota North (ftUS)
    "\341M\024n\242\350\030S\362\0" // NAD83(HARN) / Minnesota South
    "\341M\024n\242\350\030\367(ft\204)\0" // NAD83(HARN) / Minnesota South (ftUS)
    "\341M=s=sippi Ea\021\0" // NAD83(HARN) / Mississippi East
    "\341M=s=sippi E\315(ft\204)\0" // NAD83(HARN) / Mississippi East (ftUS)
    "\341M=s=sippi \250\0" // NAD83(HARN) / Mississippi TM
    "\341M=s=sippi We\021\0" // NAD83(HARN) / Mississippi West
    "\341M=s=sippi W\275(ft\204)\0" // NAD83(HARN) / Mississippi West (ftUS)
    "\341M=s\025ri C\365\026\0" // NAD83(HARN) / Missouri Central
    "\341M=s\025ri Ea\021\0" // NAD83(HARN) / Missouri East
    "\341M=s\025ri We\021\0" // NAD83(HARN) / Missouri West
    "\341M\003t\005a\0" // NAD83(HARN) / Montana
    "\341M\003t\005\030(ft)\0" // NAD83(HARN) / Montana (ft)
    "\341\310br\201ka\0" // NAD83(HARN) / Nebraska
    "\341\310br\201k\030(ft\204)\0" // NAD83(HARN) / Nebraska (ftUS)
    "\341\310v\274\030C\365\026\0" // NAD83(HARN) / Nevada Central
    "\341\310v\274\030C\365\223(ft\204)\0" // NAD83(HARN) / Nevada Central (ftUS)
    "\341\310v\274\030Ea\021\0" // NAD83(HARN) / Nevada East
    "\341\310v\274\030E\315(ft\204)\0" // NAD83(HARN) / Nevada East (ftUS)
    "\341\310v\274\030We\021\0" // NAD83(HARN) / Nevada West
    "\341\310v\274\030W\275(ft\204)\0" // NAD83(HARN) / Nevada West (ftUS)
    "\341\361 H\232p^i>\0" // NAD83(HARN) / New Hampshire
    "\341\361 H\232p^\342\012(ft\204)\0" // NAD83(HARN) / New Hampshire (ftUS)
    "\341\361 J\220ey\0" // NAD83(HARN) / New Jersey
    "\341\361 J\220e\200(ft\204)\0" // NAD83(HARN) / New Jersey (ftUS)
    "\341\361 Mex$\013C\365\026\0" // NAD83(HARN) / New Mexico Central
    "\341\361 Mex$\013C\365\223(ft\204)\0" // NAD83(HARN) / New Mexico Central (ftUS)
    "\341\361 Mex$\013Ea\021\0" // NAD83(HARN) / New Mexico East
    "\341\361 Mex$\013E\315(ft\204)\0" // NAD83(HARN) / New Mexico East (ftUS)
    "\341\361 Mex$\013We\021\0" // NAD83(HARN) / New Mexico West
    "\341\361 Mex$\013W\275(ft\204)\0" // NAD83(HARN) / New Mexico West (ftUS)
    "\341\361 Y\006k C\365\026\0" // NAD83(HARN) / New York Central
    "\341\361 Y\006k\333\365\223(ft\204)\0" // NAD83(HARN) / New York Central (ftUS)
    "\341\361 Y\006k Ea\021\0" // NAD83(HARN) / New York East
    "\341\361 Y\006k E\315(ft\204)\0" // NAD83(HARN) / New York East (ftUS)
    "\341\361 Y\006k L\003g \352\0" // NAD83(HARN) / New York Long Island
    "\341\361 Y\006k L\003g \352 (ft\204)\0" // NAD83(HARN) / New York Long Island (ftUS)
    "\341\361 Y\006k We\021\0" // NAD83(HARN) / New York West
    "\341\361 Y\006k W\275(ft\204)\0" // NAD83(HARN) / New York West (ftUS)
    "\341\324C#\247\024a\0" // NAD83(HARN) / North Carolina
    "\341\324C#\247\024\030(ft\204)\0" // NAD83(HARN) / North Carolina (ftUS)
    "\341\324Dak\350\030\371\0" // NAD83(HARN) / North Dakota North
    "\341\324Dak\350\030\324(ft)\0" // NAD83(HARN) / North Dakota North (ft)
    "\341\324Dak\350\030S\362\0" // NAD83(HARN) / North Dakota South
    "\341\324Dak\350\030\367(ft)\0" // NAD83(HARN) / North Dakota South (ft)
    "\341Ohi\013\371\0" // NAD83(HARN) / Ohio North
    "\341Ohi\013\324(ft\204)\0" // NAD83(HARN) / Ohio North (ftUS)
    "\341Ohi\013S\362\0" // NAD83(HARN) / Ohio South
    "\341Ohi\013\367(ft\204)\0" // NAD83(HARN) / Ohio South (ftUS)
    "\341Okl\373\344\030\371\0" // NAD83(HARN) / Oklahoma North
    "\341Okl\373\344\030\324(ft\204)\0" // NAD83(HARN) / Oklahoma North (ftUS)
    "\341Okl\373\344\030S\362\0" // NAD83(HARN) / Oklahoma South
    "\341Okl\373\344\030\367(ft\204)\0" // NAD83(HARN) / Oklahoma South (ftUS)
    "\341\377GIC L\232b\007t\205ft)\0" // NAD83(HARN) / Oregon GIC Lambert (ft)
    "\341\377LCC (m)\0" // NAD83(HARN) / Oregon LCC (m)
    "\341\377\371\0" // NAD83(HARN) / Oregon North
    "\341\377\324(ft)\0" // NAD83(HARN) / Oregon North (ft)
    "\341\323\003{\362\0" // NAD83(HARN) / Oregon South
    "\341\323\003{\246(ft)\0" // NAD83(HARN) / Oregon South (ft)
    "\341P\210nsylv\005\314\371\0" // NAD83(HARN) / Pennsylvania North
    "\341P\210nsylv\005\314\324(ft\204)\0" // NAD83(HARN) / Pennsylvania North (ftUS)
    "\341P\210nsylv\005\314S\362\0" // NAD83(HARN) / Pennsylvania South
    "\341P\210nsylv\005\314\367(ft\204)\0" // NAD83(HARN) / Pennsylvania South (ftUS)
    "\341Pu\007t\013R$\013\301V\342g\024 \325.\0" // NAD83(HARN) / Puerto Rico and Virgin Is.
    "\341Rhod\012\352\0" // NAD83(HARN) / Rhode Island
    "\341Rhod\012\352 (ft\204)\0" // NAD83(HARN) / Rhode Island (ftUS)
    "\341\367C#\247\024a\0" // NAD83(HARN) / South Carolina
    "\341\367C#\247\024\030(ft)\0" // NAD83(HARN) / South Carolina (ft)
    "\341\367Dak\350\030\371\0" // NAD83(HARN) / South Dakota North
    "\341\367Dak\350\030\324(ft\204)\0" // NAD83(HARN) / South Dakota North (ftUS)
    "\341\367Dak\350\030S\362\0" // NAD83(HARN) / South Dakota South
    "\341\367Dak\350\030\367(ft\204)\0" // NAD83(HARN) / South Dakota South (ftUS)
    "\341T\210n\242see\0" // NAD83(HARN) / Tennessee
    "\341T\210n\242se\012(ft\204)\0" // NAD83(HARN) / Tennessee (ftUS)
    "\341Tex\201 C\365\026\0" // NAD83(HARN) / Texas Central
    "\341Tex\201\333\365\223(ft\204)\0" // NAD83(HARN) / Texas Central (ftUS)
    "\341Tex\201\333\365$ Alb\220 Equ\223A>a\0" // NAD83(HARN) / Texas Centric Albers Equal Area
    "\341Tex\201\333\365$ L\232b\007t\333\003f\006m\026\0" // NAD83(HARN) / Texas Centric Lambert Conformal
    "\341Tex\201 \371\0" // NAD83(HARN) / Texas North
    "\341Tex\201 \324(ft\204)\0" // NAD83(HARN) / Texas North (ftUS)
    "\341Tex\201 \324C\365\026\0" // NAD83(HARN) / Texas North Central
    "\341Tex\201 \324C\365\223(ft\204)\0" // NAD83(HARN) / Texas North Central (ftUS)
    "\341Tex\201{\362\0" // NAD83(HARN) / Texas South
    "\341Tex\201{\246(ft\204)\0" // NAD83(HARN) / Texas South (ftUS)
    "\341Tex\201{\246C\365\026\0" // NAD83(HARN) / Texas South Central
    "\341Tex\201{\246C\365\223(ft\204)\0" // NAD83(HARN) / Texas South Central (ftUS)
    "\341U\250\270\312N\0" // NAD83(HARN) / UTM zone 10N
    "\341U\250\27011N\0" // NAD83(HARN) / UTM zone 11N
    "\341U\250\27012N\0" // NAD83(HARN) / UTM zone 12N
    "\341U\250\27013N\0" // NAD83(HARN) / UTM zone 13N
    "\341U\250\27014N\0" // NAD83(HARN) / UTM zone 14N
    "\341U\250\27015N\0" // NAD83(HARN) / UTM zone 15N
    "\341U\250\27016N\0" // NAD83(HARN) / UTM zone 16N
    "\341U\250\27017N\0" // NAD83(HARN) / UTM zone 17N
    "\341U\250\27018N\0" // NAD83(HARN) / UTM zone 18N
    "\341U\250\27019N\0" // NAD83(HARN) / UTM zone 19N
    "\341U\250\2702S\0" // NAD83(HARN) / UTM zone 2S
    "\341U\250\2704N\0" // NAD83(HARN) / UTM zone 4N
    "\341U\250\27059S\0" // NAD83(HARN) / UTM zone 59S
    "\341U\250\2705N\0" // NAD83(HARN) / UTM zone 5N
    "\341Ut\373 C\365\026\0" // NAD83(HARN) / Utah Central
    "\341Ut\373\333\365\026\205ft)\0" // NAD83(HARN) / Utah Central (ft)
    "\341Ut\373\333\365\223(ft\204)\0" // NAD83(HARN) / Utah Central (ftUS)
    "\341Ut\373 \371\0" // NAD83(HARN) / Utah North
    "\341Ut\373 \324(ft)\0" // NAD83(HARN) / Utah North (ft)
    "\341Ut\373 \324(ft\204)\0" // NAD83(HARN) / Utah North (ftUS)
    "\341Ut\373{\362\0" // NAD83(HARN) / Utah South
    "\341Ut\373{\246(ft)\0" // NAD83(HARN) / Utah South (ft)
    "\341Ut\373{\246(ft\204)\0" // NAD83(HARN) / Utah South (ftUS)
    "\341V\007m\003t\0" // NAD83(HARN) / Vermont
    "\341V\007m\003t (ft\204)\0" // NAD83(HARN) / Vermont (ftUS)
    "\341V\342g\024\314L\232b\007t\0" // NAD83(HARN) / Virginia Lambert
    "\341V\342g\024\314\371\0" // NAD83(HARN) / Virginia North
    "\341V\342g\024\314\324(ft\204)\0" // NAD83(HARN) / Virginia North (ftUS)
    "\341V\342g\024\314S\362\0" // NAD83(HARN) / Virginia South
    "\341V\342g\024\314\367(ft\204)\0" // NAD83(HARN) / Virginia South (ftUS)
    "\341WI\322| Ad\232s \301Juneau (ft\204)\0" // NAD83(HARN) / WISCRS Adams and Juneau (ftUS)
    "\341WI\322| Ad\232s \301Juneau (m)\0" // NAD83(HARN) / WISCRS Adams and Juneau (m)
    "\341WI\322| A^\211 (ft\204)\0" // NAD83(HARN) / WISCRS Ashland (ftUS)
    "\341WI\322| A^\211 (m)\0" // NAD83(HARN) / WISCRS Ashland (m)
    "\341WI\322| B#r\222(ft\204)\0" // NAD83(HARN) / WISCRS Barron (ftUS)
    "\341WI\322| B#r\222(m)\0" // NAD83(HARN) / WISCRS Barron (m)
    "\341WI\322| Bayfi\240d (ft\204)\0" // NAD83(HARN) / WISCRS Bayfield (ftUS)
    "\341WI\322| Bayfi\240d (m)\0" // NAD83(HARN) / WISCRS Bayfield (m)
    "\341WI\322| Brown (ft\204)\0" // NAD83(HARN) / WISCRS Brown (ftUS)
    "\341WI\322| Brown (m)\0" // NAD83(HARN) / WISCRS Brown (m)
    "\341WI\322| Buff\026\013(ft\204)\0" // NAD83(HARN) / WISCRS Buffalo (ftUS)
    "\341WI\322| Buff\026\013(m)\0" // NAD83(HARN) / WISCRS Buffalo (m)
    "\341WI\322| B\225n\036t (ft\204)\0" // NAD83(HARN) / WISCRS Burnett (ftUS)
    "\341WI\322| B\225n\036t (m)\0" // NAD83(HARN) / WISCRS Burnett (m)
    "\341WI\322|\333\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebag\013(ft\204)\0" // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    "\341WI\322|\333\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebag\013(m)\0" // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    "\341WI\322|\333hippew\030(ft\204)\0" // NAD83(HARN) / WISCRS Chippewa (ftUS)
    "\341WI\322|\333hippew\030(m)\0" // NAD83(HARN) / WISCRS Chippewa (m)
    "\341WI\322|\333l#k (ft\204)\0" // NAD83(HARN) / WISCRS Clark (ftUS)
    "\341WI\322|\333l#k (m)\0" // NAD83(HARN) / WISCRS Clark (m)
    "\341WI\322|\333\247umb\314(ft\204)\0" // NAD83(HARN) / WISCRS Columbia (ftUS)
    "\341WI\322|\333\247umb\314(m)\0" // NAD83(HARN) / WISCRS Columbia (m)
    "\341WI\322|\333\370wf\006d (ft\204)\0" // NAD83(HARN) / WISCRS Crawford (ftUS)
    "\341WI\322|\333\370wf\006d (m)\0" // NAD83(HARN) / WISCRS Crawford (m)
    "\341WI\322| D\005\012(ft\204)\0" // NAD83(HARN) / WISCRS Dane (ftUS)
    "\341WI\322| D\005\012(m)\0" // NAD83(HARN) / WISCRS Dane (m)
    "\341WI\322| Dodg\012\301Jeff\220\222(ft\204)\0" // NAD83(HARN) / WISCRS Dodge and Jefferson (ftUS)
    "\341WI\322| Dodg\012\301Jeff\220\222(m)\0" // NAD83(HARN) / WISCRS Dodge and Jefferson (m)
    "\341WI\322| Do\006 (ft\204)\0" // NAD83(HARN) / WISCRS Door (ftUS)
    "\341WI\322| Do\006 (m)\0" // NAD83(HARN) / WISCRS Door (m)
    "\341WI\322| D\025gl\201 (ft\204)\0" // NAD83(HARN) / WISCRS Douglas (ftUS)
    "\341WI\322| D\025gl\201 (m)\0" // NAD83(HARN) / WISCRS Douglas (m)
    "\341WI\322| Dunn (ft\204)\0" // NAD83(HARN) / WISCRS Dunn (ftUS)
    "\341WI\322| Dunn (m)\0" // NAD83(HARN) / WISCRS Dunn (m)
    "\341WI\322| Eau\333la\342\012(ft\204)\0" // NAD83(HARN) / WISCRS Eau Claire (ftUS)
    "\341WI\322| Eau\333la\342\012(m)\0" // NAD83(HARN) / WISCRS Eau Claire (m)
    "\341WI\322| Fl\202nc\012(ft\204)\0" // NAD83(HARN) / WISCRS Florence (ftUS)
    "\341WI\322| Fl\202nc\012(m)\0" // NAD83(HARN) / WISCRS Florence (m)
    "\341WI\322| F\202~(ft\204)\0" // NAD83(HARN) / WISCRS Forest (ftUS)
    "\341WI\322| F\202~(m)\0" // NAD83(HARN) / WISCRS Forest (m)
    "\341WI\322| Gr\005t (ft\204)\0" // NAD83(HARN) / WISCRS Grant (ftUS)
    "\341WI\322| Gr\005t (m)\0" // NAD83(HARN) / WISCRS Grant (m)
    "\341WI\322| G>\210 Lak\012\301M#qu\036t\012(ft\204)\0" // NAD83(HARN) / WISCRS Green Lake and Marquette (ftUS)
    "\341WI\322| G>\210 Lak\012\301M#qu\036t\012(m)\0" // NAD83(HARN) / WISCRS Green Lake and Marquette (m)
    "\341WI\322| G>\210 \301Lafay\036t\012(ft\204)\0" // NAD83(HARN) / WISCRS Green and Lafayette (ftUS)
    "\341WI\322| G>\210 \301Lafay\036t\012(m)\0" // NAD83(HARN) / WISCRS Green and Lafayette (m)
    "\341WI\322| Iow\030(ft\204)\0" // NAD83(HARN) / WISCRS Iowa (ftUS)
    "\341WI\322| Iow\030(m)\0" // NAD83(HARN) / WISCRS Iowa (m)
    "\341WI\322| Ir\222(ft\204)\0" // NAD83(HARN) / WISCRS Iron (ftUS)
    "\341WI\322| Ir\222(m)\0" // NAD83(HARN) / WISCRS Iron (m)
    "\341WI\322| Jacks\222(ft\204)\0" // NAD83(HARN) / WISCRS Jackson (ftUS)
    "\341WI\322| Jacks\222(m)\0" // NAD83(HARN) / WISCRS Jackson (m)
    "\341WI\322| K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024\012(ft\204)\0" // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    "\341WI\322| K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024\012(m)\0" // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    "\341WI\322| Kewaunee\307M\005\243owoc \035{heboyg\005 (ft\204)\0" // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    "\341WI\322| Kewaunee\307M\005\243owoc \035{heboyg\005 (m)\0" // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    "\341WI\322| L\030Cross\012(ft\204)\0" // NAD83(HARN) / WISCRS La Crosse (ftUS)
    "\341WI\322| L\030Cross\012(m)\0" // NAD83(HARN) / WISCRS La Crosse (m)
    "\341WI\322| L\005gl\274\012(ft\204)\0" // NAD83(HARN) / WISCRS Langlade (ftUS)
    "\341WI\322| L\005gl\274\012(m)\0" // NAD83(HARN) / WISCRS Langlade (m)
    "\341WI\322| L\024c\247n (ft\204)\0" // NAD83(HARN) / WISCRS Lincoln (ftUS)
    "\341WI\322| L\024c\247n (m)\0" // NAD83(HARN) / WISCRS Lincoln (m)
    "\341WI\322| M#a\023\222(ft\204)\0" // NAD83(HARN) / WISCRS Marathon (ftUS)
    "\341WI\322| M#a\023\222(m)\0" // NAD83(HARN) / WISCRS Marathon (m)
    "\341WI\322| M#\024\036t\012(ft\204)\0" // NAD83(HARN) / WISCRS Marinette (ftUS)
    "\341WI\322| M#\024\036t\012(m)\0" // NAD83(HARN) / WISCRS Marinette (m)
    "\341WI\322| M\210\344\024e\012(ft\204)\0" // NAD83(HARN) / WISCRS Menominee (ftUS)
    "\341WI\322| M\210\344\024e\012(m)\0" // NAD83(HARN) / WISCRS Menominee (m)
    "\341WI\322| M\003ro\012(ft\204)\0" // NAD83(HARN) / WISCRS Monroe (ftUS)
    "\341WI\322| M\003ro\012(m)\0" // NAD83(HARN) / WISCRS Monroe (m)
    "\341WI\322| Oc\003t\013(ft\204)\0" // NAD83(HARN) / WISCRS Oconto (ftUS)
    "\341WI\322| Oc\003t\013(m)\0" // NAD83(HARN) / WISCRS Oconto (m)
    "\341WI\322| One\257\030(ft\204)\0" // NAD83(HARN) / WISCRS Oneida (ftUS)
    "\341WI\322| One\257\030(m)\0" // NAD83(HARN) / WISCRS Oneida (m)
    "\341WI\322| Pep\024 \301Pi\007c\012(ft\204)\0" // NAD83(HARN) / WISCRS Pepin and Pierce (ftUS)
    "\341WI\322| Pep\024 \301Pi\007c\012(m)\0" // NAD83(HARN) / WISCRS Pepin and Pierce (m)
    "\341WI\322| P\247k (ft\204)\0" // NAD83(HARN) / WISCRS Polk (ftUS)
    "\341WI\322| P\247k (m)\0" // NAD83(HARN) / WISCRS Polk (m)
    "\341WI\322| P\006tag\012(ft\204)\0" // NAD83(HARN) / WISCRS Portage (ftUS)
    "\341WI\322| P\006tag\012(m)\0" // NAD83(HARN) / WISCRS Portage (m)
    "\341WI\322| Pr$\012(ft\204)\0" // NAD83(HARN) / WISCRS Price (ftUS)
    "\341WI\322| Pr$\012(m)\0" // NAD83(HARN) / WISCRS Price (m)
    "\341WI\322| R$h\211 (ft\204)\0" // NAD83(HARN) / WISCRS Richland (ftUS)
    "\341WI\322| R$h\211 (m)\0" // NAD83(HARN) / WISCRS Richland (m)
    "\341WI\322| Rock (ft\204)\0" // NAD83(HARN) / WISCRS Rock (ftUS)
    "\341WI\322| Rock (m)\0" // NAD83(HARN) / WISCRS Rock (m)
    "\341WI\322| R\357k (ft\204)\0" // NAD83(HARN) / WISCRS Rusk (ftUS)
    "\341WI\322| R\357k (m)\0" // NAD83(HARN) / WISCRS Rusk (m)
    "\341WI\322|{auk (ft\204)\0" // NAD83(HARN) / WISCRS Sauk (ftUS)
    "\341WI\322|{auk (m)\0" // NAD83(HARN) / WISCRS Sauk (m)
    "\341WI\322|{awy\007 (ft\204)\0" // NAD83(HARN) / WISCRS Sawyer (ftUS)
    "\341WI\322|{awy\007 (m)\0" // NAD83(HARN) / WISCRS Sawyer (m)
    "\341WI\322|{haw\005\013(ft\204)\0" // NAD83(HARN) / WISCRS Shawano (ftUS)
    "\341WI\322|{haw\005\013(m)\0" // NAD83(HARN) / WISCRS Shawano (m)
    "\341WI\322|{t.\333roix (ft\204)\0" // NAD83(HARN) / WISCRS St. Croix (ftUS)
    "\341WI\322|{t.\333roix (m)\0" // NAD83(HARN) / WISCRS St. Croix (m)
    "\341WI\322| Tayl\006 (ft\204)\0" // NAD83(HARN) / WISCRS Taylor (ftUS)
    "\341WI\322| Tayl\006 (m)\0" // NAD83(HARN) / WISCRS Taylor (m)
    "\341WI\322| T>mpe\026eau (ft\204)\0" // NAD83(HARN) / WISCRS Trempealeau (ftUS)
    "\341WI\322| T>mpe\026eau (m)\0" // NAD83(HARN) / WISCRS Trempealeau (m)
    "\341WI\322| V\007n\222(ft\204)\0" // NAD83(HARN) / WISCRS Vernon (ftUS)
    "\341WI\322| V\007n\222(m)\0" // NAD83(HARN) / WISCRS Vernon (m)
    "\341WI\322| V\372\201 (ft\204)\0" // NAD83(HARN) / WISCRS Vilas (ftUS)
    "\341WI\322| V\372\201 (m)\0" // NAD83(HARN) / WISCRS Vilas (m)
    "\341WI\322| W\026w\006`(ft\204)\0" // NAD83(HARN) / WISCRS Walworth (ftUS)
    "\341WI\322| W\026w\006`(m)\0" // NAD83(HARN) / WISCRS Walworth (m)
    "\341WI\322| Wa^b\225n (ft\204)\0" // NAD83(HARN) / WISCRS Washburn (ftUS)
    "\341WI\322| Wa^b\225n (m)\0" // NAD83(HARN) / WISCRS Washburn (m)
    "\341WI\322| Wa^\024gt\222(ft\204)\0" // NAD83(HARN) / WISCRS Washington (ftUS)
    "\341WI\322| Wa^\024gt\222(m)\0" // NAD83(HARN) / WISCRS Washington (m)
    "\341WI\322| Wauke^\030(ft\204)\0" // NAD83(HARN) / WISCRS Waukesha (ftUS)
    "\341WI\322| Wauke^\030(m)\0" // NAD83(HARN) / WISCRS Waukesha (m)
    "\341WI\322| Waupac\030(ft\204)\0" // NAD83(HARN) / WISCRS Waupaca (ftUS)
    "\341WI\322| Waupac\030(m)\0" // NAD83(HARN) / WISCRS Waupaca (m)
    "\341WI\322| Wau^#\030(ft\204)\0" // NAD83(HARN) / WISCRS Waushara (ftUS)
    "\341WI\322| Wau^#\030(m)\0" // NAD83(HARN) / WISCRS Waushara (m)
    "\341WI\322| Wood (ft\204)\0" // NAD83(HARN) / WISCRS Wood (ftUS)
    "\341WI\322| Wood (m)\0" // NAD83(HARN) / WISCRS Wood (m)
    "\341Wa^\024gt\222\371\0" // NAD83(HARN) / Washington North
    "\341Wa^\024gt\222\324(ft\204)\0" // NAD83(HARN) / Washington North (ftUS)
    "\341Wa^\024gt\003{\362\0" // NAD83(HARN) / Washington South
    "\341Wa^\024gt\003{\246(ft\204)\0" // NAD83(HARN) / Washington South (ftUS)
    "\341W\275V\342g\024\314\371\0" // NAD83(HARN) / West Virginia North
    "\341W\275V\342g\024\314\324(ft\204)\0" // NAD83(HARN) / West Virginia North (ftUS)
    "\341W\275V\342g\024\314S\362\0" // NAD83(HARN) / West Virginia South
    "\341W\275V\342g\024\314\367(ft\204)\0" // NAD83(HARN) / West Virginia South (ftUS)
    "\341W=c\003s\024 C\365\026\0" // NAD83(HARN) / Wisconsin Central
    "\341W=c\003s\024\333\365\223(ft\204)\0" // NAD83(HARN) / Wisconsin Central (ftUS)
    "\341W=c\003s\024 \371\0" // NAD83(HARN) / Wisconsin North
    "\341W=c\003s\024 \324(ft\204)\0" // NAD83(HARN) / Wisconsin North (ftUS)
    "\341W=c\003s\024{\362\0" // NAD83(HARN) / Wisconsin South
    "\341W=c\003s\024{\246(ft\204)\0" // NAD83(HARN) / Wisconsin South (ftUS)
    "\341W=c\003s\024 Tr\005sv\220\012M\007c<\006\0" // NAD83(HARN) / Wisconsin Transverse Mercator
    "\341Wy\344\024g Ea\021\0" // NAD83(HARN) / Wyoming East
    "\341Wy\344\024g E\315(ft\204)\0" // NAD83(HARN) / Wyoming East (ftUS)
    "\341Wy\344\024g E\315C\365\026\0" // NAD83(HARN) / Wyoming East Central
    "\341Wy\344\024g E\315C\365\223(ft\204)\0" // NAD83(HARN) / Wyoming East Central (ftUS)
    "\341Wy\344\024g We\021\0" // NAD83(HARN) / Wyoming West
    "\341Wy\344\024g W\275(ft\204)\0" // NAD83(HARN) / Wyoming West (ftUS)
    "\341Wy\344\024g W\275C\365\026\0" // NAD83(HARN) / Wyoming West Central
    "\341Wy\344\024g W\275C\365\223(ft\204)\0" // NAD83(HARN) / Wyoming West Central (ftUS)
    "*HPGN)\0" // NAD83(HPGN)
    "*MA\177)\0" // NAD83(MA11)
    "*MA\177%Gu\232 Map Gr\257\0" // NAD83(MA11) / Guam Map Grid
    "*MA\177%U\250\27054N\0" // NAD83(MA11) / UTM zone 54N
    "*MA\177%U\250\27055N\0" // NAD83(MA11) / UTM zone 55N
    "*M\245P00)\0" // NAD83(MARP00)
    "*\334|\2277)\0" // NAD83(NSRS2007)
    "*\334|\2277%Alab\232\030Ea\021\0" // NAD83(NSRS2007) / Alabama East
    "*\334|\2277%Alab\232\030We\021\0" // NAD83(NSRS2007) / Alabama West
    "*\334|\2277%Al\201k\030Alb\220\0" // NAD83(NSRS2007) / Alaska Albers
    "*\334|\2277%Al\201k\030\0771\0" // NAD83(NSRS2007) / Alaska zone 1
    "*\334|\2277%Al\201k\030\07710\0" // NAD83(NSRS2007) / Alaska zone 10
    "*\334|\2277%Al\201k\030\0772\0" // NAD83(NSRS2007) / Alaska zone 2
    "*\334|\2277%Al\201k\030\0773\0" // NAD83(NSRS2007) / Alaska zone 3
    "*\334|\2277%Al\201k\030\0774\0" // NAD83(NSRS2007) / Alaska zone 4
    "*\334|\2277%Al\201k\030\0775\0" // NAD83(NSRS2007) / Alaska zone 5
    "*\334|\2277%Al\201k\030\0776\0" // NAD83(NSRS2007) / Alaska zone 6
    "*\334|\2277%Al\201k\030\0777\0" // NAD83(NSRS2007) / Alaska zone 7
    "*\334|\2277%Al\201k\030\0778\0" // NAD83(NSRS2007) / Alaska zone 8
    "*\334|\2277%Al\201k\030\0779\0" // NAD83(NSRS2007) / Alaska zone 9
    "*\334|\2277%\326i!\030C\365\026\0" // NAD83(NSRS2007) / Arizona Central
    "*\334|\2277%\326i!\030C\365\026\205ft)\0" // NAD83(NSRS2007) / Arizona Central (ft)
    "*\334|\2277%\326i!\030Ea\021\0" // NAD83(NSRS2007) / Arizona East
    "*\334|\2277%\326i!\030E\315(ft)\0" // NAD83(NSRS2007) / Arizona East (ft)
    "*\334|\2277%\326i!\030We\021\0" // NAD83(NSRS2007) / Arizona West
    "*\334|\2277%\326i!\030W\275(ft)\0" // NAD83(NSRS2007) / Arizona West (ft)
    "*\334|\2277%\326k\005s\201 \371\0" // NAD83(NSRS2007) / Arkansas North
    "*\334|\2277%\326k\005s\201 \324(ft\204)\0" // NAD83(NSRS2007) / Arkansas North (ftUS)
    "*\334|\2277%\326k\005s\201{\362\0" // NAD83(NSRS2007) / Arkansas South
    "*\334|\2277%\326k\005s\201{\246(ft\204)\0" // NAD83(NSRS2007) / Arkansas South (ftUS)
    "*\334|\2277%C\026if\006n\314Alb\220\0" // NAD83(NSRS2007) / California Albers
    "*\334|\2277%C\026if\006n\314\0771\0" // NAD83(NSRS2007) / California zone 1
    "*\334|\2277%C\026if\006n\314\0771 (ft\204)\0" // NAD83(NSRS2007) / California zone 1 (ftUS)
    "*\334|\2277%C\026if\006n\314\0772\0" // NAD83(NSRS2007) / California zone 2
    "*\334|\2277%C\026if\006n\314\0772 (ft\204)\0" // NAD83(NSRS2007) / California zone 2 (ftUS)
    "*\334|\2277%C\026if\006n\314\0773\0" // NAD83(NSRS2007) / California zone 3
    "*\334|\2277%C\026if\006n\314\0773 (ft\204)\0" // NAD83(NSRS2007) / California zone 3 (ftUS)
    "*\334|\2277%C\026if\006n\314\0774\0" // NAD83(NSRS2007) / California zone 4
    "*\334|\2277%C\026if\006n\314\0774 (ft\204)\0" // NAD83(NSRS2007) / California zone 4 (ftUS)
    "*\334|\2277%C\026if\006n\314\0775\0" // NAD83(NSRS2007) / California zone 5
    "*\334|\2277%C\026if\006n\314\0775 (ft\204)\0" // NAD83(NSRS2007) / California zone 5 (ftUS)
    "*\334|\2277%C\026if\006n\314\0776\0" // NAD83(NSRS2007) / California zone 6
    "*\334|\2277%C\026if\006n\314\0776 (ft\204)\0" // NAD83(NSRS2007) / California zone 6 (ftUS)
    "*\334|\2277%C\247\006\274\013C\365\026\0" // NAD83(NSRS2007) / Colorado Central
    "*\334|\2277%C\247\006\274\013C\365\223(ft\204)\0" // NAD83(NSRS2007) / Colorado Central (ftUS)
    "*\334|\2277%C\247\006\274\013\371\0" // NAD83(NSRS2007) / Colorado North
    "*\334|\2277%C\247\006\274\013\324(ft\204)\0" // NAD83(NSRS2007) / Colorado North (ftUS)
    "*\334|\2277%C\247\006\274\013S\362\0" // NAD83(NSRS2007) / Colorado South
    "*\334|\2277%C\247\006\274\013\367(ft\204)\0" // NAD83(NSRS2007) / Colorado South (ftUS)
    "*\334|\2277%C\003ne\317$ut\0" // NAD83(NSRS2007) / Connecticut
    "*\334|\2277%C\003ne\317$ut (ft\204)\0" // NAD83(NSRS2007) / Connecticut (ftUS)
    "*\334|\2277%C\003\357 Alb\220\0" // NAD83(NSRS2007) / Conus Albers
    "*\334|\2277%D\240aw#e\0" // NAD83(NSRS2007) / Delaware
    "*\334|\2277%D\240aw#\012(ft\204)\0" // NAD83(NSRS2007) / Delaware (ftUS)
    "*\334|\2277%E\236G \326\317$\2705-29\0" // NAD83(NSRS2007) / EPSG Arctic zone 5-29
    "*\334|\2277%E\236G \326\317$\2705-31\0" // NAD83(NSRS2007) / EPSG Arctic zone 5-31
    "*\334|\2277%E\236G \326\317$\2706-14\0" // NAD83(NSRS2007) / EPSG Arctic zone 6-14
    "*\334|\2277%E\236G \326\317$\2706-16\0" // NAD83(NSRS2007) / EPSG Arctic zone 6-16
    "*\334|\2277%Fl\006\257\030Ea\021\0" // NAD83(NSRS2007) / Florida East
    "*\334|\2277%Fl\006\257\030E\315(ft\204)\0" // NAD83(NSRS2007) / Florida East (ftUS)
    "*\334|\2277%Fl\006\257\030GDL Alb\220\0" // NAD83(NSRS2007) / Florida GDL Albers
    "*\334|\2277%Fl\006\257\030\371\0" // NAD83(NSRS2007) / Florida North
    "*\334|\2277%Fl\006\257\030\324(ft\204)\0" // NAD83(NSRS2007) / Florida North (ftUS)
    "*\334|\2277%Fl\006\257\030We\021\0" // NAD83(NSRS2007) / Florida West
    "*\334|\2277%Fl\006\257\030W\275(ft\204)\0" // NAD83(NSRS2007) / Florida West (ftUS)
    "*\334|\2277%Ge\006g\314Ea\021\0" // NAD83(NSRS2007) / Georgia East
    "*\334|\2277%Ge\006g\314E\315(ft\204)\0" // NAD83(NSRS2007) / Georgia East (ftUS)
    "*\334|\2277%Ge\006g\314We\021\0" // NAD83(NSRS2007) / Georgia West
    "*\334|\2277%Ge\006g\314W\275(ft\204)\0" // NAD83(NSRS2007) / Georgia West (ftUS)
    "*\334|\2277%Id\373\013C\365\026\0" // NAD83(NSRS2007) / Idaho Central
    "*\334|\2277%Id\373\013C\365\223(ft\204)\0" // NAD83(NSRS2007) / Idaho Central (ftUS)
    "*\334|\2277%Id\373\013Ea\021\0" // NAD83(NSRS2007) / Idaho East
    "*\334|\2277%Id\373\013E\315(ft\204)\0" // NAD83(NSRS2007) / Idaho East (ftUS)
    "*\334|\2277%Id\373\013We\021\0" // NAD83(NSRS2007) / Idaho West
    "*\334|\2277%Id\373\013W\275(ft\204)\0" // NAD83(NSRS2007) / Idaho West (ftUS)
    "*\334|\2277%Ill\024o= Ea\021\0" // NAD83(NSRS2007) / Illinois East
    "*\334|\2277%Ill\024o= E\315(ft\204)\0" // NAD83(NSRS2007) / Illinois East (ftUS)
    "*\334|\2277%Ill\024o= We\021\0" // NAD83(NSRS2007) / Illinois West
    "*\334|\2277%Ill\024o= W\275(ft\204)\0" // NAD83(NSRS2007) / Illinois West (ftUS)
    "*\334|\2277%\355\335\030Ea\021\0" // NAD83(NSRS2007) / Indiana East
    "*\334|\2277%\355\335\030E\315(ft\204)\0" // NAD83(NSRS2007) / Indiana East (ftUS)
    "*\334|\2277%\355\335\030We\021\0" // NAD83(NSRS2007) / Indiana West
    "*\334|\2277%\355\335\030W\275(ft\204)\0" // NAD83(NSRS2007) / Indiana West (ftUS)
    "*\334|\2277%Iow\030\371\0" // NAD83(NSRS2007) / Iowa North
    "*\334|\2277%Iow\030\324(ft\204)\0" // NAD83(NSRS2007) / Iowa North (ftUS)
    "*\334|\2277%Iow\030S\362\0" // NAD83(NSRS2007) / Iowa South
    "*\334|\2277%Iow\030\367(ft\204)\0" // NAD83(NSRS2007) / Iowa South (ftUS)
    "*\334|\2277%K\005s\201 \371\0" // NAD83(NSRS2007) / Kansas North
    "*\334|\2277%K\005s\201 \324(ft\204)\0" // NAD83(NSRS2007) / Kansas North (ftUS)
    "*\334|\2277%K\005s\201{\362\0" // NAD83(NSRS2007) / Kansas South
    "*\334|\2277%K\005s\201{\246(ft\204)\0" // NAD83(NSRS2007) / Kansas South (ftUS)
    "*\334|\2277%Ke\032uck\200\371\0" // NAD83(NSRS2007) / Kentucky North
    "*\334|\2277%Ke\032uck\200\324(ft\204)\0" // NAD83(NSRS2007) / Kentucky North (ftUS)
    "*\334|\2277%Ke\032ucky{\024gl\012Z\003e\0" // NAD83(NSRS2007) / Kentucky Single Zone
    "*\334|\2277%Ke\032ucky{\024gl\012Z\003\012(ft\204)\0" // NAD83(NSRS2007) / Kentucky Single Zone (ftUS)
    "*\334|\2277%Ke\032ucky{\362\0" // NAD83(NSRS2007) / Kentucky South
    "*\334|\2277%Ke\032ucky{\246(ft\204)\0" // NAD83(NSRS2007) / Kentucky South (ftUS)
    "*\334|\2277%L\025=\335\030\371\0" // NAD83(NSRS2007) / Louisiana North
    "*\334|\2277%L\025=\335\030\324(ft\204)\0" // NAD83(NSRS2007) / Louisiana North (ftUS)
    "*\334|\2277%L\025=\335\030S\362\0" // NAD83(NSRS2007) / Louisiana South
    "*\334|\2277%L\025=\335\030\367(ft\204)\0" // NAD83(NSRS2007) / Louisiana South (ftUS)
    "*\334|\2277%Ma\024\012@\2270 C\365\026\0" // NAD83(NSRS2007) / Maine CS2000 Central
    "*\334|\2277%Ma\024\012@\2270 Ea\021\0" // NAD83(NSRS2007) / Maine CS2000 East
    "*\334|\2277%Ma\024\012@\2270 We\021\0" // NAD83(NSRS2007) / Maine CS2000 West
    "*\334|\2277%Ma\024\012Ea\021\0" // NAD83(NSRS2007) / Maine East
    "*\334|\2277%Ma\024\012E\315(ft\204)\0" // NAD83(NSRS2007) / Maine East (ftUS)
    "*\334|\2277%Ma\024\012We\021\0" // NAD83(NSRS2007) / Maine West
    "*\334|\2277%Ma\024\012W\275(ft\204)\0" // NAD83(NSRS2007) / Maine West (ftUS)
    "*\334|\2277%M#y\211\0" // NAD83(NSRS2007) / Maryland
    "*\334|\2277%M#y\211 (ft\204)\0" // NAD83(NSRS2007) / Maryland (ftUS)
    "*\334|\2277%M\201sach\357\036ts \352\0" // NAD83(NSRS2007) / Massachusetts Island
    "*\334|\2277%M\201sach\357\036ts \352 (ft\204)\0" // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    "*\334|\2277%M\201sach\357\036ts Ma\024\211\0" // NAD83(NSRS2007) / Massachusetts Mainland
    "*\334|\2277%M\201sach\357\036ts Ma\024\211 (ft\204)\0" // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    "*\334|\2277%M$hig\005 C\365\026\0" // NAD83(NSRS2007) / Michigan Central
    "*\334|\2277%M$hig\005\333\365\026\205ft)\0" // NAD83(NSRS2007) / Michigan Central (ft)
    "*\334|\2277%M$hig\005 \371\0" // NAD83(NSRS2007) / Michigan North
    "*\334|\2277%M$hig\005 \324(ft)\0" // NAD83(NSRS2007) / Michigan North (ft)
    "*\334|\2277%M$hig\005 Obliqu\012M\007c<\006\0" // NAD83(NSRS2007) / Michigan Oblique Mercator
    "*\334|\2277%M$hig\005{\362\0" // NAD83(NSRS2007) / Michigan South
    "*\334|\2277%M$hig\005{\246(ft)\0" // NAD83(NSRS2007) / Michigan South (ft)
    "*\334|\2277%M\024n\242\350\030C\365\026\0" // NAD83(NSRS2007) / Minnesota Central
    "*\334|\2277%M\024n\242\350\030C\365\223(ft\204)\0" // NAD83(NSRS2007) / Minnesota Central (ftUS)
    "*\334|\2277%M\024n\242\350\030\371\0" // NAD83(NSRS2007) / Minnesota North
    "*\334|\2277%M\024n\242\350\030\324(ft\204)\0" // NAD83(NSRS2007) / Minnesota North (ftUS)
    "*\334|\2277%M\024n\242\350\030S\362\0" // NAD83(NSRS2007) / Minnesota South
    "*\334|\2277%M\024n\242\350\030\367(ft\204)\0" // NAD83(NSRS2007) / Minnesota South (ftUS)
    "*\334|\2277%M=s=sippi Ea\021\0" // NAD83(NSRS2007) / Mississippi East
    "*\334|\2277%M=s=sippi E\315(ft\204)\0" // NAD83(NSRS2007) / Mississippi East (ftUS)
    "*\334|\2277%M=s=sippi \250\0" // NAD83(NSRS2007) / Mississippi TM
    "*\334|\2277%M=s=sippi We\021\0" // NAD83(NSRS2007) / Mississippi West
    "*\334|\2277%M=s=sippi W\275(ft\204)\0" // NAD83(NSRS2007) / Mississippi West (ftUS)
    "*\334|\2277%M=s\025ri C\365\026\0" // NAD83(NSRS2007) / Missouri Central
    "*\334|\2277%M=s\025ri Ea\021\0" // NAD83(NSRS2007) / Missouri East
    "*\334|\2277%M=s\025ri We\021\0" // NAD83(NSRS2007) / Missouri West
    "*\334|\2277%M\003t\005a\0" // NAD83(NSRS2007) / Montana
    "*\334|\2277%M\003t\005\030(ft)\0" // NAD83(NSRS2007) / Montana (ft)
    "*\334|\2277%\310br\201ka\0" // NAD83(NSRS2007) / Nebraska
    "*\334|\2277%\310br\201k\030(ft\204)\0" // NAD83(NSRS2007) / Nebraska (ftUS)
    "*\334|\2277%\310v\274\030C\365\026\0" // NAD83(NSRS2007) / Nevada Central
    "*\334|\2277%\310v\274\030C\365\223(ft\204)\0" // NAD83(NSRS2007) / Nevada Central (ftUS)
    "*\334|\2277%\310v\274\030Ea\021\0" // NAD83(NSRS2007) / Nevada East
    "*\334|\2277%\310v\274\030E\315(ft\204)\0" // NAD83(NSRS2007) / Nevada East (ftUS)
    "*\334|\2277%\310v\274\030We\021\0" // NAD83(NSRS2007) / Nevada West
    "*\334|\2277%\310v\274\030W\275(ft\204)\0" // NAD83(NSRS2007) / Nevada West (ftUS)
    "*\334|\2277%\361 H\232p^i>\0" // NAD83(NSRS2007) / New Hampshire
    "*\334|\2277%\361 H\232p^\342\012(ft\204)\0" // NAD83(NSRS2007) / New Hampshire (ftUS)
    "*\334|\2277%\361 J\220ey\0" // NAD83(NSRS2007) / New Jersey
    "*\334|\2277%\361 J\220e\200(ft\204)\0" // NAD83(NSRS2007) / New Jersey (ftUS)
    "*\334|\2277%\361 Mex$\013C\365\026\0" // NAD83(NSRS2007) / New Mexico Central
    "*\334|\2277%\361 Mex$\013C\365\223(ft\204)\0" // NAD83(NSRS2007) / New Mexico Central (ftUS)
    "*\334|\2277%\361 Mex$\013Ea\021\0" // NAD83(NSRS2007) / New Mexico East
    "*\334|\2277%\361 Mex$\013E\315(ft\204)\0" // NAD83(NSRS2007) / New Mexico East (ftUS)
    "*\334|\2277%\361 Mex$\013We\021\0" // NAD83(NSRS2007) / New Mexico West
    "*\334|\2277%\361 Mex$\013W\275(ft\204)\0" // NAD83(NSRS2007) / New Mexico West (ftUS)
    "*\334|\2277%\361 Y\006k C\365\026\0" // NAD83(NSRS2007) / New York Central
    "*\334|\2277%\361 Y\006k\333\365\223(ft\204)\0" // NAD83(NSRS2007) / New York Central (ftUS)
    "*\334|\2277%\361 Y\006k Ea\021\0" // NAD83(NSRS2007) / New York East
    "*\334|\2277%\361 Y\006k E\315(ft\204)\0" // NAD83(NSRS2007) / New York East (ftUS)
    "*\334|\2277%\361 Y\006k L\003g \352\0" // NAD83(NSRS2007) / New York Long Island
    "*\334|\2277%\361 Y\006k L\003g \352 (ft\204)\0" // NAD83(NSRS2007) / New York Long Island (ftUS)
    "*\334|\2277%\361 Y\006k We\021\0" // NAD83(NSRS2007) / New York West
    "*\334|\2277%\361 Y\006k W\275(ft\204)\0" // NAD83(NSRS2007) / New York West (ftUS)
    "*\334|\2277%\324C#\247\024a\0" // NAD83(NSRS2007) / North Carolina
    "*\334|\2277%\324C#\247\024\030(ft\204)\0" // NAD83(NSRS2007) / North Carolina (ftUS)
    "*\334|\2277%\324Dak\350\030\371\0" // NAD83(NSRS2007) / North Dakota North
    "*\334|\2277%\324Dak\350\030\324(ft)\0" // NAD83(NSRS2007) / North Dakota North (ft)
    "*\334|\2277%\324Dak\350\030S\362\0" // NAD83(NSRS2007) / North Dakota South
    "*\334|\2277%\324Dak\350\030\367(ft)\0" // NAD83(NSRS2007) / North Dakota South (ft)
    "*\334|\2277%Ohi\013\371\0" // NAD83(NSRS2007) / Ohio North
    "*\334|\2277%Ohi\013\324(ft\204)\0" // NAD83(NSRS2007) / Ohio North (ftUS)
    "*\334|\2277%Ohi\013S\362\0" // NAD83(NSRS2007) / Ohio South
    "*\334|\2277%Ohi\013\367(ft\204)\0" // NAD83(NSRS2007) / Ohio South (ftUS)
    "*\334|\2277%Okl\373\344\030\371\0" // NAD83(NSRS2007) / Oklahoma North
    "*\334|\2277%Okl\373\344\030\324(ft\204)\0" // NAD83(NSRS2007) / Oklahoma North (ftUS)
    "*\334|\2277%Okl\373\344\030S\362\0" // NAD83(NSRS2007) / Oklahoma South
    "*\334|\2277%Okl\373\344\030\367(ft\204)\0" // NAD83(NSRS2007) / Oklahoma South (ftUS)
    "*\334|\2277%\377GIC L\232b\007t\205ft)\0" // NAD83(NSRS2007) / Oregon GIC Lambert (ft)
    "*\334|\2277%\377LCC (m)\0" // NAD83(NSRS2007) / Oregon LCC (m)
    "*\334|\2277%\377\371\0" // NAD83(NSRS2007) / Oregon North
    "*\334|\2277%\377\324(ft)\0" // NAD83(NSRS2007) / Oregon North (ft)
    "*\334|\2277%\323\003{\362\0" // NAD83(NSRS2007) / Oregon South
    "*\334|\2277%\323\003{\246(ft)\0" // NAD83(NSRS2007) / Oregon South (ft)
    "*\334|\2277%P\210nsylv\005\314\371\0" // NAD83(NSRS2007) / Pennsylvania North
    "*\334|\2277%P\210nsylv\005\314\324(ft\204)\0" // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    "*\334|\2277%P\210nsylv\005\314S\362\0" // NAD83(NSRS2007) / Pennsylvania South
    "*\334|\2277%P\210nsylv\005\314\367(ft\204)\0" // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    "*\334|\2277%Pu\007t\013R$\013\301V\342g\024 \325.\0" // NAD83(NSRS2007) / Puerto Rico and Virgin Is.
    "*\334|\2277%Rhod\012\352\0" // NAD83(NSRS2007) / Rhode Island
    "*\334|\2277%Rhod\012\352 (ft\204)\0" // NAD83(NSRS2007) / Rhode Island (ftUS)
    "*\334|\2277%\367C#\247\024a\0" // NAD83(NSRS2007) / South Carolina
    "*\334|\2277%\367C#\247\024\030(ft)\0" // NAD83(NSRS2007) / South Carolina (ft)
    "*\334|\2277%\367Dak\350\030\371\0" // NAD83(NSRS2007) / South Dakota North
    "*\334|\2277%\367Dak\350\030\324(ft\204)\0" // NAD83(NSRS2007) / South Dakota North (ftUS)
    "*\334|\2277%\367Dak\350\030S\362\0" // NAD83(NSRS2007) / South Dakota South
    "*\334|\2277%\367Dak\350\030\367(ft\204)\0" // NAD83(NSRS2007) / South Dakota South (ftUS)
    "*\334|\2277%T\210n\242see\0" // NAD83(NSRS2007) / Tennessee
    "*\334|\2277%T\210n\242se\012(ft\204)\0" // NAD83(NSRS2007) / Tennessee (ftUS)
    "*\334|\2277%Tex\201 C\365\026\0" // NAD83(NSRS2007) / Texas Central
    "*\334|\2277%Tex\201\333\365\223(ft\204)\0" // NAD83(NSRS2007) / Texas Central (ftUS)
    "*\334|\2277%Tex\201\333\365$ Alb\220 Equ\223A>a\0" // NAD83(NSRS2007) / Texas Centric Albers Equal Area
    "*\334|\2277%Tex\201\333\365$ L\232b\007t\333\003f\006m\026\0" // NAD83(NSRS2007) / Texas Centric Lambert Conformal
    "*\334|\2277%Tex\201 \371\0" // NAD83(NSRS2007) / Texas North
    "*\334|\2277%Tex\201 \324(ft\204)\0" // NAD83(NSRS2007) / Texas North (ftUS)
    "*\334|\2277%Tex\201 \324C\365\026\0" // NAD83(NSRS2007) / Texas North Central
    "*\334|\2277%Tex\201 \324C\365\223(ft\204)\0" // NAD83(NSRS2007) / Texas North Central (ftUS)
    "*\334|\2277%Tex\201{\362\0" // NAD83(NSRS2007) / Texas South
    "*\334|\2277%Tex\201{\246(ft\204)\0" // NAD83(NSRS2007) / Texas South (ftUS)
    "*\334|\2277%Tex\201{\246C\365\026\0" // NAD83(NSRS2007) / Texas South Central
    "*\334|\2277%Tex\201{\246C\365\223(ft\204)\0" // NAD83(NSRS2007) / Texas South Central (ftUS)
    "*\334|\2277%U\250\270\312N\0" // NAD83(NSRS2007) / UTM zone 10N
    "*\334|\2277%U\250\27011N\0" // NAD83(NSRS2007) / UTM zone 11N
    "*\334|\2277%U\250\27012N\0" // NAD83(NSRS2007) / UTM zone 12N
    "*\334|\2277%U\250\27013N\0" // NAD83(NSRS2007) / UTM zone 13N
    "*\334|\2277%U\250\27014N\0" // NAD83(NSRS2007) / UTM zone 14N
    "*\334|\2277%U\250\27015N\0" // NAD83(NSRS2007) / UTM zone 15N
    "*\334|\2277%U\250\27016N\0" // NAD83(NSRS2007) / UTM zone 16N
    "*\334|\2277%U\250\27017N\0" // NAD83(NSRS2007) / UTM zone 17N
    "*\334|\2277%U\250\27018N\0" // NAD83(NSRS2007) / UTM zone 18N
    "*\334|\2277%U\250\27019N\0" // NAD83(NSRS2007) / UTM zone 19N
    "*\334|\2277%U\250\2701N\0" // NAD83(NSRS2007) / UTM zone 1N
    "*\334|\2277%U\250\2702N\0" // NAD83(NSRS2007) / UTM zone 2N
    "*\334|\2277%U\250\2703N\0" // NAD83(NSRS2007) / UTM zone 3N
    "*\334|\2277%U\250\2704N\0" // NAD83(NSRS2007) / UTM zone 4N
    "*\334|\2277%U\250\27059N\0" // NAD83(NSRS2007) / UTM zone 59N
    "*\334|\2277%U\250\2705N\0" // NAD83(NSRS2007) / UTM zone 5N
    "*\334|\2277%U\250\27060N\0" // NAD83(NSRS2007) / UTM zone 60N
    "*\334|\2277%U\250\2706N\0" // NAD83(NSRS2007) / UTM zone 6N
    "*\334|\2277%U\250\2707N\0" // NAD83(NSRS2007) / UTM zone 7N
    "*\334|\2277%U\250\2708N\0" // NAD83(NSRS2007) / UTM zone 8N
    "*\334|\2277%U\250\2709N\0" // NAD83(NSRS2007) / UTM zone 9N
    "*\334|\2277%Ut\373 C\365\026\0" // NAD83(NSRS2007) / Utah Central
    "*\334|\2277%Ut\373\333\365\026\205ft)\0" // NAD83(NSRS2007) / Utah Central (ft)
    "*\334|\2277%Ut\373\333\365\223(ft\204)\0" // NAD83(NSRS2007) / Utah Central (ftUS)
    "*\334|\2277%Ut\373 \371\0" // NAD83(NSRS2007) / Utah North
    "*\334|\2277%Ut\373 \324(ft)\0" // NAD83(NSRS2007) / Utah North (ft)
    "*\334|\2277%Ut\373 \324(ft\204)\0" // NAD83(NSRS2007) / Utah North (ftUS)
    "*\334|\2277%Ut\373{\362\0" // NAD83(NSRS2007) / Utah South
    "*\334|\2277%Ut\373{\246(ft)\0" // NAD83(NSRS2007) / Utah South (ft)
    "*\334|\2277%Ut\373{\246(ft\204)\0" // NAD83(NSRS2007) / Utah South (ftUS)
    "*\334|\2277%V\007m\003t\0" // NAD83(NSRS2007) / Vermont
    "*\334|\2277%V\007m\003t (ft\204)\0" // NAD83(NSRS2007) / Vermont (ftUS)
    "*\334|\2277%V\342g\024\314L\232b\007t\0" // NAD83(NSRS2007) / Virginia Lambert
    "*\334|\2277%V\342g\024\314\371\0" // NAD83(NSRS2007) / Virginia North
    "*\334|\2277%V\342g\024\314\324(ft\204)\0" // NAD83(NSRS2007) / Virginia North (ftUS)
    "*\334|\2277%V\342g\024\314S\362\0" // NAD83(NSRS2007) / Virginia South
    "*\334|\2277%V\342g\024\314\367(ft\204)\0" // NAD83(NSRS2007) / Virginia South (ftUS)
    "*\334|\2277%Wa^\024gt\222\371\0" // NAD83(NSRS2007) / Washington North
    "*\334|\2277%Wa^\024gt\222\324(ft\204)\0" // NAD83(NSRS2007) / Washington North (ftUS)
    "*\334|\2277%Wa^\024gt\003{\362\0" // NAD83(NSRS2007) / Washington South
    "*\334|\2277%Wa^\024gt\003{\246(ft\204)\0" // NAD83(NSRS2007) / Washington South (ftUS)
    "*\334|\2277%W\275V\342g\024\314\371\0" // NAD83(NSRS2007) / West Virginia North
    "*\334|\2277%W\275V\342g\024\314\324(ft\204)\0" // NAD83(NSRS2007) / West Virginia North (ftUS)
    "*\334|\2277%W\275V\342g\024\314S\362\0" // NAD83(NSRS2007) / West Virginia South
    "*\334|\2277%W\275V\342g\024\314\367(ft\204)\0" // NAD83(NSRS2007) / West Virginia South (ftUS)
    "*\334|\2277%W=c\003s\024 C\365\026\0" // NAD83(NSRS2007) / Wisconsin Central
    "*\334|\2277%W=c\003s\024\333\365\223(ft\204)\0" // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    "*\334|\2277%W=c\003s\024 \371\0" // NAD83(NSRS2007) / Wisconsin North
    "*\334|\2277%W=c\003s\024 \324(ft\204)\0" // NAD83(NSRS2007) / Wisconsin North (ftUS)
    "*\334|\2277%W=c\003s\024{\362\0" // NAD83(NSRS2007) / Wisconsin South
    "*\334|\2277%W=c\003s\024{\246(ft\204)\0" // NAD83(NSRS2007) / Wisconsin South (ftUS)
    "*\334|\2277%W=c\003s\024 Tr\005sv\220\012M\007c<\006\0" // NAD83(NSRS2007) / Wisconsin Transverse Mercator
    "*\334|\2277%Wy\344\024g Ea\021\0" // NAD83(NSRS2007) / Wyoming East
    "*\334|\2277%Wy\344\024g E\315(ft\204)\0" // NAD83(NSRS2007) / Wyoming East (ftUS)
    "*\334|\2277%Wy\344\024g E\315C\365\026\0" // NAD83(NSRS2007) / Wyoming East Central
    "*\334|\2277%Wy\344\024g E\315C\365\223(ft\204)\0" // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    "*\334|\2277%Wy\344\024g We\021\0" // NAD83(NSRS2007) / Wyoming West
    "*\334|\2277%Wy\344\024g W\275(ft\204)\0" // NAD83(NSRS2007) / Wyoming West (ftUS)
    "*\334|\2277%Wy\344\024g W\275C\365\026\0" // NAD83(NSRS2007) / Wyoming West Central
    "*\334|\2277%Wy\344\024g W\275C\365\223(ft\204)\0" // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    "\027(Orig\024\026)\0" // NAD83(Original)
    "*PA\177)\0" // NAD83(PA11)
    "*PA\177%Hawaii\2701\0" // NAD83(PA11) / Hawaii zone 1
    "*PA\177%Hawaii\2702\0" // NAD83(PA11) / Hawaii zone 2
    "*PA\177%Hawaii\2703\0" // NAD83(PA11) / Hawaii zone 3
    "*PA\177%Hawaii\2703 (ft\204)\0" // NAD83(PA11) / Hawaii zone 3 (ftUS)
    "*PA\177%Hawaii\2704\0" // NAD83(PA11) / Hawaii zone 4
    "*PA\177%Hawaii\2705\0" // NAD83(PA11) / Hawaii zone 5
    "*PA\177%U\250\2702S\0" // NAD83(PA11) / UTM zone 2S
    "*PA\177%U\250\2704N\0" // NAD83(PA11) / UTM zone 4N
    "*PA\177%U\250\2705N\0" // NAD83(PA11) / UTM zone 5N
    "*PACP00)\0" // NAD83(PACP00)
    "\017\212\313_\0" // NAD_1927_
    "\017\212\313_BLM_Z\003\207\0" // NAD_1927_BLM_Zone_
    "\017\212\313_CGQ77\0" // NAD_1927_CGQ77
    "\017\212\313\374GQ77_\0" // NAD_1927_CGQ77_
    "\017\212\313_DEF\21276_M\376\0" // NAD_1927_DEF_1976_MTM_
    "\017\212\313_DEF\21276_U\376Z\003\207\0" // NAD_1927_DEF_1976_UTM_Zone_
    "\017\212\313_Def\024\243\321\21276\0" // NAD_1927_Definition_1976
    "\017\212\313_St<ePl\005\207\0" // NAD_1927_StatePlane_
    "\017\212\313_St<ePl\005\207C\026if\006ni\253\0" // NAD_1927_StatePlane_California_
    "\017\212\313_U\376Z\003\207\0" // NAD_1927_UTM_Zone_
    "\017\212\014_(\231)_IaR@_!\207\0" // NAD_1983_(2011)_IaRCS_zone_
    "\017\212\014_(\231)_NC|_L\201_Veg\201_\0" // NAD_1983_(2011)_NCRS_Las_Vegas_
    "\017\212\014_\231_\0" // NAD_1983_2011_
    "\017\212\014_\231_\306G@_\0" // NAD_1983_2011_InGCS_
    "\017\212\014_\231_KS_R@_Z\003\207\0" // NAD_1983_2011_KS_RCS_Zone_
    "\017\212\014_\231_RMTC|_\0" // NAD_1983_2011_RMTCRS_
    "\017\212\014_\231_St<ePl\005\207\0" // NAD_1983_2011_StatePlane_
    "\017\212\014_\231_St<ePl\005\207C\026if\006ni\253\0" // NAD_1983_2011_StatePlane_California_
    "\017\212\014_\231_U\376Z\003\207\0" // NAD_1983_2011_UTM_Zone_
    "\017\212\014_\231_WI\322|_\0" // NAD_1983_2011_WISCRS_
    "\017\212\014_BLM_Z\003\207\0" // NAD_1983_BLM_Zone_
    "\017\212\014\374O|96_St<ePl\005\207\323\003_\0" // NAD_1983_CORS96_StatePlane_Oregon_
    "\017\212\014_@|_\0" // NAD_1983_CSRS_
    "\017\212\014_@|_E\236G_\326\317$_!\207\0" // NAD_1983_CSRS_EPSG_Arctic_zone_
    "\017\212\014_@|_M\376\0" // NAD_1983_CSRS_MTM_
    "\017\212\014_@|_U\376Z\003\207\0" // NAD_1983_CSRS_UTM_Zone_
    "\017\212\014_\332_\0" // NAD_1983_HARN_
    "\017\212\014_\332_St<ePl\005\207\0" // NAD_1983_HARN_StatePlane_
    "\017\212\014_\332_St<ePl\005\207C\026if\006ni\253\0" // NAD_1983_HARN_StatePlane_California_
    "\017\212\014_\332_St<ePl\005\207\361_\0" // NAD_1983_HARN_StatePlane_New_
    "\017\212\014_\332_U\376Z\003\207\0" // NAD_1983_HARN_UTM_Zone_
    "\017\212\014_\332_WI\322|_\0" // NAD_1983_HARN_WISCRS_
    "\017\212\014_M\376\0" // NAD_1983_MTM_
    "\017\212\014_\334|\2277_\0" // NAD_1983_NSRS2007_
    "\017\212\014_\334|\2277_St<ePl\005\207\0" // NAD_1983_NSRS2007_StatePlane_
    "\017\212\014_\334|\2277_St<ePl\005\207C\026if\006ni\253\0" // NAD_1983_NSRS2007_StatePlane_California_
    "\017\212\014_\334|\2277_U\376Z\003\207\0" // NAD_1983_NSRS2007_UTM_Zone_
    "\017\212\014_PA\177_St<ePl\005\207Hawaii_\0" // NAD_1983_PA11_StatePlane_Hawaii_
    "\017\212\014_St<ePl\005\207\0" // NAD_1983_StatePlane_
    "\017\212\014_St<ePl\005\207Al\201k\253\0" // NAD_1983_StatePlane_Alaska_
    "\017\212\014_St<ePl\005\207C\026if\006ni\253\0" // NAD_1983_StatePlane_California_
    "\017\212\014_St<ePl\005\207\361_\0" // NAD_1983_StatePlane_New_
    "\017\212\014_U\376Z\003\207\0" // NAD_1983_UTM_Zone_
    "\017_M$hig\005_St<ePl\005\207M$hig\005_\0" // NAD_Michigan_StatePlane_Michigan_
    "NC| L\201 Veg\201 \0" // NCRS Las Vegas 
    "NC| L\201 Veg\201 high \240ev<i\222\077(ft\204)\0" // NCRS Las Vegas high elevation zone (ftUS)
    "NC| L\201 Veg\201 high \240ev<i\222\077(m)\0" // NCRS Las Vegas high elevation zone (m)
    "NC| L\201 Veg\201\270(ft\204)\0" // NCRS Las Vegas zone (ftUS)
    "NC| L\201 Veg\201\270(m)\0" // NCRS Las Vegas zone (m)
    "NC|_L\201_Veg\201_(ft\204)\0" // NCRS_Las_Vegas_(ftUS)
    "NC|_L\201_Veg\201_(m)\0" // NCRS_Las_Vegas_(m)
    "NC|_L\201_Veg\201_high_(ft\204)\0" // NCRS_Las_Vegas_high_(ftUS)
    "NC|_L\201_Veg\201_high_(m)\0" // NCRS_Las_Vegas_high_(m)
    "NDG\205P#=)\0" // NDG (Paris)
    "NEA74 N\025mea\0" // NEA74 Noumea
    "NEA74 N\025mea\011N\025me\030L\232b\007t\0" // NEA74 Noumea / Noumea Lambert
    "NEA74 N\025mea\011N\025me\030L\232b\007t 2\0" // NEA74 Noumea / Noumea Lambert 2
    "NEA74 N\025mea\011U\250\27058S\0" // NEA74 Noumea / UTM zone 58S
    "NEA74_N\025mea\0" // NEA74_Noumea
    "NEA74_N\025me\253L\232b\007t\0" // NEA74_Noumea_Lambert
    "NEA74_N\025me\253L\232b\007t_2\0" // NEA74_Noumea_Lambert_2
    "NEA74_N\025me\253U\37658S\0" // NEA74_Noumea_UTM_58S
    "NGN\0" // NGN
    "NGN\011U\250\27038N\0" // NGN / UTM zone 38N
    "NGN\011U\250\27039N\0" // NGN / UTM zone 39N
    "NGN_U\376Z\003\20738N\0" // NGN_UTM_Zone_38N
    "NGN_U\376Z\003\20739N\0" // NGN_UTM_Zone_39N
    "NGO\32048\0" // NGO 1948
    "NGO\32048\205Oslo)\0" // NGO 1948 (Oslo)
    "NGO\32048\205Oslo%NGO\270I\0" // NGO 1948 (Oslo) / NGO zone I
    "NGO\32048\205Oslo%NGO\270II\0" // NGO 1948 (Oslo) / NGO zone II
    "NGO\32048\205Oslo%NGO\270III\0" // NGO 1948 (Oslo) / NGO zone III
    "NGO\32048\205Oslo%NGO\270IV\0" // NGO 1948 (Oslo) / NGO zone IV
    "NGO\32048\205Oslo%NGO\270V\0" // NGO 1948 (Oslo) / NGO zone V
    "NGO\32048\205Oslo%NGO\270VI\0" // NGO 1948 (Oslo) / NGO zone VI
    "NGO\32048\205Oslo%NGO\270VII\0" // NGO 1948 (Oslo) / NGO zone VII
    "NGO\32048\205Oslo%NGO\270VIII\0" // NGO 1948 (Oslo) / NGO zone VIII
    "NGO\21248\0" // NGO_1948
    "NGO\21248_Oslo\0" // NGO_1948_Oslo
    "NGO\21248_Oslo_\203way_Z\003\207\0" // NGO_1948_Oslo_Norway_Zone_
    "NIWA_Alb\220\0" // NIWA_Albers
    "\334IDC{e\030Ic\012\236 \371\0" // NSIDC Sea Ice PS North
    "\334IDC{e\030Ic\012\236{\362\0" // NSIDC Sea Ice PS South
    "\334IDC_EASE_Gr\257_Glob\026\0" // NSIDC_EASE_Grid_Global
    "\334IDC_EASE_Gr\257_\371\0" // NSIDC_EASE_Grid_North
    "\334IDC_EASE_Gr\257_S\362\0" // NSIDC_EASE_Grid_South
    "\334IDC_Se\253Ic\207P\247#_St\007eog\370\230$_\371\0" // NSIDC_Sea_Ice_Polar_Stereographic_North
    "\334IDC_Se\253Ic\207P\247#_St\007eog\370\230$_S\362\0" // NSIDC_Sea_Ice_Polar_Stereographic_South
    "\334|\2277\0" // NSRS2007
    "\334WC 9Z-2\0" // NSWC 9Z-2
    "\334WC_9Z_2\0" // NSWC_9Z_2
    "\334W_L\232b\007t\0" // NSW_Lambert
    "NTF\0" // NTF
    "NTF\205P#=)\0" // NTF (Paris)
    "NTF\205P#=%C\365\012Fr\005ce\0" // NTF (Paris) / Centre France
    "NTF\205P#=%C\006se\0" // NTF (Paris) / Corse
    "NTF\205P#=%Fr\005c\012I\0" // NTF (Paris) / France I
    "NTF\205P#=%Fr\005c\012II\0" // NTF (Paris) / France II
    "NTF\205P#=%Fr\005c\012III\0" // NTF (Paris) / France III
    "NTF\205P#=%Fr\005c\012IV\0" // NTF (Paris) / France IV
    "NTF\205P#=%L\232b\007t\333\365\012Fr\005ce\0" // NTF (Paris) / Lambert Centre France
    "NTF\205P#=%L\232b\007t C\006se\0" // NTF (Paris) / Lambert Corse
    "NTF\205P#=%L\232b\007t \203d Fr\005ce\0" // NTF (Paris) / Lambert Nord France
    "NTF\205P#=%L\232b\007t{ud Fr\005ce\0" // NTF (Paris) / Lambert Sud France
    "NTF\205P#=%L\232b\007t\270I\0" // NTF (Paris) / Lambert zone I
    "NTF\205P#=%L\232b\007t\270II\0" // NTF (Paris) / Lambert zone II
    "NTF\205P#=%L\232b\007t\270III\0" // NTF (Paris) / Lambert zone III
    "NTF\205P#=%L\232b\007t\270IV\0" // NTF (Paris) / Lambert zone IV
    "NTF\205P#=%\203d Fr\005ce\0" // NTF (Paris) / Nord France
    "NTF\205P#=%Sud Fr\005ce\0" // NTF (Paris) / Sud France
    "NTF_P#=\0" // NTF_Paris
    "NTF_P#=_\0" // NTF_Paris_
    "NTF_P#=_L\232b\007t_\0" // NTF_Paris_Lambert_
    "NTL\0" // NTL
    "NTL\205\031\375)\0" // NTL (1930)
    "NWL 9D\0" // NWL 9D
    "NWL_9D\0" // NWL_9D
    "NZGD\03149\002L<L\003\0" // NZGD1949 - LatLon
    "NZGD\2270\0" // NZGD2000
    "NZGD\2270\002L<L\003\0" // NZGD2000 - LatLon
    "NZGD\2270\011Am\225i \2270\0" // NZGD2000 / Amuri 2000
    "NZGD\2270\011A\032ipod\242 \352s \250 \2270\0" // NZGD2000 / Antipodes Islands TM 2000
    "NZGD\2270\011Auck\211 \352s \250 \2270\0" // NZGD2000 / Auckland Islands TM 2000
    "NZGD\2270\011Ba\200\252Ple\032\200\2270\0" // NZGD2000 / Bay of Plenty 2000
    "NZGD\2270\011Bluff \2270\0" // NZGD2000 / Bluff 2000
    "NZGD\2270\011Bull\007 \2270\0" // NZGD2000 / Buller 2000
    "NZGD\2270\011C\232pb\240l \352 \250 \2270\0" // NZGD2000 / Campbell Island TM 2000
    "NZGD\2270\011Cha\023\232 \352\333\342cu\243 \2270\0" // NZGD2000 / Chatham Island Circuit 2000
    "NZGD\2270\011Cha\023\232 \352s \250 \2270\0" // NZGD2000 / Chatham Islands TM 2000
    "NZGD\2270\011C\247l\024gwood \2270\0" // NZGD2000 / Collingwood 2000
    "NZGD\2270\011Gawl\007 \2270\0" // NZGD2000 / Gawler 2000
    "NZGD\2270\011G>\200\2270\0" // NZGD2000 / Grey 2000
    "NZGD\2270\011Hawk\242 Ba\200\2270\0" // NZGD2000 / Hawkes Bay 2000
    "NZGD\2270\011Hok\243ik\030\2270\0" // NZGD2000 / Hokitika 2000
    "NZGD\2270\011Jacks\003s Ba\200\2270\0" // NZGD2000 / Jacksons Bay 2000
    "NZGD\2270\011K#\232e\030\2270\0" // NZGD2000 / Karamea 2000
    "NZGD\2270\011L\024d= Peak \2270\0" // NZGD2000 / Lindis Peak 2000
    "NZGD\2270\011M#lb\006\025gh \2270\0" // NZGD2000 / Marlborough 2000
    "NZGD\2270\011M\025\032 Ed\210 \2270\0" // NZGD2000 / Mount Eden 2000
    "NZGD\2270\011M\025\032 N$h\247\201 \2270\0" // NZGD2000 / Mount Nicholas 2000
    "NZGD\2270\011M\025\032 Ple\201\005t \2270\0" // NZGD2000 / Mount Pleasant 2000
    "NZGD\2270\011M\025\032 Y\006k \2270\0" // NZGD2000 / Mount York 2000
    "NZGD\2270\011NZ@\2270\0" // NZGD2000 / NZCS2000
    "NZGD\2270\011N\240s\222\2270\0" // NZGD2000 / Nelson 2000
    "NZGD\2270\011\361 Ze\026\301Tr\005sv\220\012M\007c<\006 \2270\0" // NZGD2000 / New Zealand Transverse Mercator 2000
    "NZGD\2270\011\324Tai\007i \2270\0" // NZGD2000 / North Taieri 2000
    "NZGD\2270\011Obs\007v<i\222Po\024t \2270\0" // NZGD2000 / Observation Point 2000
    "NZGD\2270\011Ok#\243\013\2270\0" // NZGD2000 / Okarito 2000
    "NZGD\2270\011Pov\007t\200Ba\200\2270\0" // NZGD2000 / Poverty Bay 2000
    "NZGD\2270\011Ra\025l \352 \250 \2270\0" // NZGD2000 / Raoul Island TM 2000
    "NZGD\2270\011T#\005aki \2270\0" // NZGD2000 / Taranaki 2000
    "NZGD\2270\011Tim#u \2270\0" // NZGD2000 / Timaru 2000
    "NZGD\2270\011Tuh\342\005gi \2270\0" // NZGD2000 / Tuhirangi 2000
    "NZGD\2270\011U\250\2701S\0" // NZGD2000 / UTM zone 1S
    "NZGD\2270\011U\250\27058S\0" // NZGD2000 / UTM zone 58S
    "NZGD\2270\011U\250\27059S\0" // NZGD2000 / UTM zone 59S
    "NZGD\2270\011U\250\27060S\0" // NZGD2000 / UTM zone 60S
    "NZGD\2270\011Wa\342#ap\030\2270\0" // NZGD2000 / Wairarapa 2000
    "NZGD\2270\011W\005g\005ui \2270\0" // NZGD2000 / Wanganui 2000
    "NZGD\2270\011W\240l\024gt\222\2270\0" // NZGD2000 / Wellington 2000
    "NZGD49\0" // NZGD49
    "NZGD49\011Am\225i\333\342cu\243\0" // NZGD49 / Amuri Circuit
    "NZGD49\011Ba\200\252Ple\032\200C\342cu\243\0" // NZGD49 / Bay of Plenty Circuit
    "NZGD49\011Bluff\333\342cu\243\0" // NZGD49 / Bluff Circuit
    "NZGD49\011Bull\007\333\342cu\243\0" // NZGD49 / Buller Circuit
    "NZGD49\011C\247l\024gwood\333\342cu\243\0" // NZGD49 / Collingwood Circuit
    "NZGD49\011Gawl\007\333\342cu\243\0" // NZGD49 / Gawler Circuit
    "NZGD49\011G>\200C\342cu\243\0" // NZGD49 / Grey Circuit
    "NZGD49\011Hawk\242 Ba\200C\342cu\243\0" // NZGD49 / Hawkes Bay Circuit
    "NZGD49\011Hok\243ik\030C\342cu\243\0" // NZGD49 / Hokitika Circuit
    "NZGD49\011Jacks\003s Ba\200C\342cu\243\0" // NZGD49 / Jacksons Bay Circuit
    "NZGD49\011K#\232e\030C\342cu\243\0" // NZGD49 / Karamea Circuit
    "NZGD49\011L\024d= Peak\333\342cu\243\0" // NZGD49 / Lindis Peak Circuit
    "NZGD49\011M#lb\006\025gh\333\342cu\243\0" // NZGD49 / Marlborough Circuit
    "NZGD49\011M\025\032 Ed\210\333\342cu\243\0" // NZGD49 / Mount Eden Circuit
    "NZGD49\011M\025\032 N$h\247\201\333\342cu\243\0" // NZGD49 / Mount Nicholas Circuit
    "NZGD49\011M\025\032 Ple\201\005t\333\342cu\243\0" // NZGD49 / Mount Pleasant Circuit
    "NZGD49\011M\025\032 Y\006k\333\342cu\243\0" // NZGD49 / Mount York Circuit
    "NZGD49\011N\240s\222C\342cu\243\0" // NZGD49 / Nelson Circuit
    "NZGD49\011\361 Ze\026\301Map Gr\257\0" // NZGD49 / New Zealand Map Grid
    "NZGD49\011\324\352 Gr\257\0" // NZGD49 / North Island Grid
    "NZGD49\011\324Tai\007i\333\342cu\243\0" // NZGD49 / North Taieri Circuit
    "NZGD49\011Obs\007v<i\222Po\024t\333\342cu\243\0" // NZGD49 / Observation Point Circuit
    "NZGD49\011Ok#\243\013C\342cu\243\0" // NZGD49 / Okarito Circuit
    "NZGD49\011Pov\007t\200Ba\200C\342cu\243\0" // NZGD49 / Poverty Bay Circuit
    "NZGD49\011\367\352 Gr\257\0" // NZGD49 / South Island Grid
    "NZGD49\011T#\005aki\333\342cu\243\0" // NZGD49 / Taranaki Circuit
    "NZGD49\011Tim#u\333\342cu\243\0" // NZGD49 / Timaru Circuit
    "NZGD49\011Tuh\342\005gi\333\342cu\243\0" // NZGD49 / Tuhirangi Circuit
    "NZGD49\011U\250\27058S\0" // NZGD49 / UTM zone 58S
    "NZGD49\011U\250\27059S\0" // NZGD49 / UTM zone 59S
    "NZGD49\011U\250\27060S\0" // NZGD49 / UTM zone 60S
    "NZGD49\011Wa\342#ap\030C\342cu\243\0" // NZGD49 / Wairarapa Circuit
    "NZGD49\011W\005g\005ui\333\342cu\243\0" // NZGD49 / Wanganui Circuit
    "NZGD49\011W\240l\024gt\222C\342cu\243\0" // NZGD49 / Wellington Circuit
    "NZGD\21249_\0" // NZGD_1949_
    "NZGD_\2270\0" // NZGD_2000
    "NZGD_\2270_\0" // NZGD_2000_
    "NZ\374\003t\024e\032\026_Sh\240f_\2270\0" // NZ_Continental_Shelf_2000
    "Nag\026\301\334F LCC\0" // Nagaland NSF LCC
    "N\373rw\005\32034\0" // Nahrwan 1934
    "N\373rw\005\32034\011I\370q !e\0" // Nahrwan 1934 / Iraq zone
    "N\373rw\005\32034\011U\250\27037N\0" // Nahrwan 1934 / UTM zone 37N
    "N\373rw\005\32034\011U\250\27038N\0" // Nahrwan 1934 / UTM zone 38N
    "N\373rw\005\32034\011U\250\27039N\0" // Nahrwan 1934 / UTM zone 39N
    "N\373rw\005\32067\0" // Nahrwan 1967
    "N\373rw\005\32067\011U\250\27037N\0" // Nahrwan 1967 / UTM zone 37N
    "N\373rw\005\32067\011U\250\27038N\0" // Nahrwan 1967 / UTM zone 38N
    "N\373rw\005\32067\011U\250\27039N\0" // Nahrwan 1967 / UTM zone 39N
    "N\373rw\005\32067\011U\250\27040N\0" // Nahrwan 1967 / UTM zone 40N
    "N\373rw\005\21234\0" // Nahrwan_1934
    "N\373rw\005\21234_I\370q_Z\003e\0" // Nahrwan_1934_Iraq_Zone
    "N\373rw\005\21234_U\376!\207\0" // Nahrwan_1934_UTM_zone_
    "N\373rw\005\21267\0" // Nahrwan_1967
    "N\373rw\005\21267_U\376Z\003\207\0" // Nahrwan_1967_UTM_Zone_
    "Nakhl \012Taqi Obliqu\012M\007c<\006\0" // Nakhl e Taqi Oblique Mercator
    "Nakhl-\012Gh\005\206\0" // Nakhl-e Ghanem
    "Nakhl-\012Gh\005\206\011U\250\27039N\0" // Nakhl-e Ghanem / UTM zone 39N
    "Nakhl-\207Gh\005\206\0" // Nakhl-e_Ghanem
    "Nakhl-\207Gh\005\206_U\376Z\003\20739N\0" // Nakhl-e_Ghanem_UTM_Zone_39N
    "N\232ib\21512\3454\015\0" // Namibia - 12°E to 14°E
    "N\232ib\21514\3456\015\0" // Namibia - 14°E to 16°E
    "N\232ib\21516\3458\015\0" // Namibia - 16°E to 18°E
    "N\232ib\21518}\033\015\0" // Namibia - 18°E to 20°E
    "N\232ib\215\033}22\015\0" // Namibia - 20°E to 22°E
    "N\232ib\21522}24\015\0" // Namibia - 22°E to 24°E
    "N\232ib\215W\026v= Bay\0" // Namibia - Walvis Bay
    "N\232ib\215e\315\25224\015\0" // Namibia - east of 24°E
    "N\232ib\215\216f^\202\0" // Namibia - offshore
    "N\232ib\215w\275\25212\015\0" // Namibia - west of 12°E
    "Nap#im\030\03155\0" // Naparima 1955
    "Nap#im\030\03155\011U\250\270\033N\0" // Naparima 1955 / UTM zone 20N
    "Nap#im\030\03172\0" // Naparima 1972
    "Nap#im\030\03172\011U\250\270\033N\0" // Naparima 1972 / UTM zone 20N
    "Nap#ima\21255\0" // Naparima_1955
    "Nap#ima\21255_U\376Z\003\207\033N\0" // Naparima_1955_UTM_Zone_20N
    "Nap#ima\21272\0" // Naparima_1972
    "Nap#ima\21272_U\376Z\003\207\033N\0" // Naparima_1972_UTM_Zone_20N
    "N<\321\223Geod\036$ N\036w\006k\0" // National Geodetic Network
    "Naut$\026_M\372e\0" // Nautical_Mile
    "\310br\201k\030@\313 \324!e\0" // Nebraska CS27 North zone
    "\310br\201k\030@\313{\246!e\0" // Nebraska CS27 South zone
    "\310br\201ka\2672600\0" // Nebraska_FIPS_2600
    "\310br\201ka\2672600\366\0" // Nebraska_FIPS_2600_Feet
    "\310br\201ka\2672600\134t_\204\0" // Nebraska_FIPS_2600_Ft_US
    "\310br\201k\253\371\2672601\0" // Nebraska_North_FIPS_2601
    "\310br\201k\253S\362\2672602\0" // Nebraska_South_FIPS_2602
    "\310g\007i_S\206b\372\005_\035_M\240aka\0" // Negeri_Sembilan_and_Melaka
    "\310iv\253Hu\372\253\2276\0" // Neiva_Huila_2006
    "N\240s\003\374\342cu\243\0" // Nelson_Circuit
    "\310p\026\0" // Nepal
    "\310p\223\03181\0" // Nepal 1981
    "\310p\026_Nag#k\350\0" // Nepal_Nagarkot
    "\310\023\007\211s\002\216f^\202\0" // Netherlands - offshore
    "\310\023\007\211s\002\237\0" // Netherlands - onshore
    "\310\023\007\211s E\315\355i\242 Equ<\006i\223Z\003e\0" // Netherlands East Indies Equatorial Zone
    "\310\023\007\211s E\315\355i\242 Equ<\006i\223Z\003\012(Jkt)\0" // Netherlands East Indies Equatorial Zone (Jkt)
    "\310v\274\030@\313\333\365\223!e\0" // Nevada CS27 Central zone
    "\310v\274\030@\313 E\315!e\0" // Nevada CS27 East zone
    "\310v\274\030@\313 W\275!e\0" // Nevada CS27 West zone
    "\310v\274\253C\365\026\267\31302\0" // Nevada_Central_FIPS_2702
    "\310v\274\253C\365\026\267\31302\366\0" // Nevada_Central_FIPS_2702_Feet
    "\310v\274\253C\365\026\267\31302\134t_\204\0" // Nevada_Central_FIPS_2702_Ft_US
    "\310v\274\253Ea\021\267\31301\0" // Nevada_East_FIPS_2701
    "\310v\274\253Ea\021\267\31301\366\0" // Nevada_East_FIPS_2701_Feet
    "\310v\274\253Ea\021\267\31301\134t_\204\0" // Nevada_East_FIPS_2701_Ft_US
    "\310v\274\253We\021\267\31303\0" // Nevada_West_FIPS_2703
    "\310v\274\253We\021\267\31303\366\0" // Nevada_West_FIPS_2703_Feet
    "\310v\274\253We\021\267\31303\134t_\204\0" // Nevada_West_FIPS_2703_Ft_US
    "\361 Beij\024g\0" // New Beijing
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M \3122E\0" // New Beijing / 3-degree Gauss-Kruger CM 102E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M \3125E\0" // New Beijing / 3-degree Gauss-Kruger CM 105E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M \3128E\0" // New Beijing / 3-degree Gauss-Kruger CM 108E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M \1771E\0" // New Beijing / 3-degree Gauss-Kruger CM 111E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M \1774E\0" // New Beijing / 3-degree Gauss-Kruger CM 114E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M \1777E\0" // New Beijing / 3-degree Gauss-Kruger CM 117E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // New Beijing / 3-degree Gauss-Kruger CM 120E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 123E\0" // New Beijing / 3-degree Gauss-Kruger CM 123E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 126E\0" // New Beijing / 3-degree Gauss-Kruger CM 126E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 129E\0" // New Beijing / 3-degree Gauss-Kruger CM 129E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 132E\0" // New Beijing / 3-degree Gauss-Kruger CM 132E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 135E\0" // New Beijing / 3-degree Gauss-Kruger CM 135E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 75E\0" // New Beijing / 3-degree Gauss-Kruger CM 75E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 78E\0" // New Beijing / 3-degree Gauss-Kruger CM 78E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 81E\0" // New Beijing / 3-degree Gauss-Kruger CM 81E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 84E\0" // New Beijing / 3-degree Gauss-Kruger CM 84E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 87E\0" // New Beijing / 3-degree Gauss-Kruger CM 87E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 90E\0" // New Beijing / 3-degree Gauss-Kruger CM 90E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 93E\0" // New Beijing / 3-degree Gauss-Kruger CM 93E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 96E\0" // New Beijing / 3-degree Gauss-Kruger CM 96E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\333M 99E\0" // New Beijing / 3-degree Gauss-Kruger CM 99E
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27025\0" // New Beijing / 3-degree Gauss-Kruger zone 25
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27026\0" // New Beijing / 3-degree Gauss-Kruger zone 26
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27027\0" // New Beijing / 3-degree Gauss-Kruger zone 27
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27028\0" // New Beijing / 3-degree Gauss-Kruger zone 28
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27029\0" // New Beijing / 3-degree Gauss-Kruger zone 29
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27030\0" // New Beijing / 3-degree Gauss-Kruger zone 30
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27031\0" // New Beijing / 3-degree Gauss-Kruger zone 31
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27032\0" // New Beijing / 3-degree Gauss-Kruger zone 32
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27033\0" // New Beijing / 3-degree Gauss-Kruger zone 33
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27034\0" // New Beijing / 3-degree Gauss-Kruger zone 34
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27035\0" // New Beijing / 3-degree Gauss-Kruger zone 35
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27036\0" // New Beijing / 3-degree Gauss-Kruger zone 36
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27037\0" // New Beijing / 3-degree Gauss-Kruger zone 37
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27038\0" // New Beijing / 3-degree Gauss-Kruger zone 38
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27039\0" // New Beijing / 3-degree Gauss-Kruger zone 39
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27040\0" // New Beijing / 3-degree Gauss-Kruger zone 40
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27041\0" // New Beijing / 3-degree Gauss-Kruger zone 41
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27042\0" // New Beijing / 3-degree Gauss-Kruger zone 42
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27043\0" // New Beijing / 3-degree Gauss-Kruger zone 43
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27044\0" // New Beijing / 3-degree Gauss-Kruger zone 44
    "\361 Beij\024g\0113-deg>\012Ga\357s-Krug\007\27045\0" // New Beijing / 3-degree Gauss-Kruger zone 45
    "\361 Beij\024g\011Ga\357s-Krug\007\333M \3125E\0" // New Beijing / Gauss-Kruger CM 105E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M \1771E\0" // New Beijing / Gauss-Kruger CM 111E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M \1777E\0" // New Beijing / Gauss-Kruger CM 117E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 123E\0" // New Beijing / Gauss-Kruger CM 123E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 129E\0" // New Beijing / Gauss-Kruger CM 129E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 135E\0" // New Beijing / Gauss-Kruger CM 135E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 75E\0" // New Beijing / Gauss-Kruger CM 75E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 81E\0" // New Beijing / Gauss-Kruger CM 81E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 87E\0" // New Beijing / Gauss-Kruger CM 87E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 93E\0" // New Beijing / Gauss-Kruger CM 93E
    "\361 Beij\024g\011Ga\357s-Krug\007\333M 99E\0" // New Beijing / Gauss-Kruger CM 99E
    "\361 Beij\024g\011Ga\357s-Krug\007\27013\0" // New Beijing / Gauss-Kruger zone 13
    "\361 Beij\024g\011Ga\357s-Krug\007\27014\0" // New Beijing / Gauss-Kruger zone 14
    "\361 Beij\024g\011Ga\357s-Krug\007\27015\0" // New Beijing / Gauss-Kruger zone 15
    "\361 Beij\024g\011Ga\357s-Krug\007\27016\0" // New Beijing / Gauss-Kruger zone 16
    "\361 Beij\024g\011Ga\357s-Krug\007\27017\0" // New Beijing / Gauss-Kruger zone 17
    "\361 Beij\024g\011Ga\357s-Krug\007\27018\0" // New Beijing / Gauss-Kruger zone 18
    "\361 Beij\024g\011Ga\357s-Krug\007\27019\0" // New Beijing / Gauss-Kruger zone 19
    "\361 Beij\024g\011Ga\357s-Krug\007\27020\0" // New Beijing / Gauss-Kruger zone 20
    "\361 Beij\024g\011Ga\357s-Krug\007\27021\0" // New Beijing / Gauss-Kruger zone 21
    "\361 Beij\024g\011Ga\357s-Krug\007\27022\0" // New Beijing / Gauss-Kruger zone 22
    "\361 Beij\024g\011Ga\357s-Krug\007\27023\0" // New Beijing / Gauss-Kruger zone 23
    "\361 Brunsw$k{t\007eog\370\230$\205\027)\0" // New Brunswick Stereographic (NAD83)
    "\361\333\026\273\003\215162\34568\015\0" // New Caledonia - 162°E to 168°E
    "\361\333\026\273\003\215B\240ep\0" // New Caledonia - Belep
    "\361\333\026\273\003\215B\240ep\307Gr\035\012T\007>\307Il\012d\242 P\024s\307Loy\026t\200\352s\0" // New Caledonia - Belep, Grande Terre, Ile des Pins, Loyalty Islands
    "\361\333\026\273\003\215Gr\035\012T\007>\0" // New Caledonia - Grande Terre
    "\361\333\026\273\003\215Gr\035\012T\007>\002N\025mea\0" // New Caledonia - Grande Terre - Noumea
    "\361\333\026\273\003\215Il\012d\242 P\024s\0" // New Caledonia - Ile des Pins
    "\361\333\026\273\003\215Lif\025\0" // New Caledonia - Lifou
    "\361\333\026\273\003\215M#e\0" // New Caledonia - Mare
    "\361\333\026\273\003\215M#\226e\315\252168\015\0" // New Caledonia - Mare - east of 168°E
    "\361\333\026\273\003\215M#\226w\275\252168\015\0" // New Caledonia - Mare - west of 168°E
    "\361\333\026\273\003\215Ouvea\0" // New Caledonia - Ouvea
    "\361\333\026\273\003\215e\315\252168\015\0" // New Caledonia - east of 168°E
    "\361\333\026\273\003\215w\275\252162\015\0" // New Caledonia - west of 162°E
    "\361 Egypt\335\0" // New Egyptian
    "\361 H\232p^\342\012@27\0" // New Hampshire CS27
    "\361 J\220e\200@27\0" // New Jersey CS27
    "\361 Lu!\0" // New Luzon
    "\361 Mex$\013@\313\333\365\223!e\0" // New Mexico CS27 Central zone
    "\361 Mex$\013@\313 E\315!e\0" // New Mexico CS27 East zone
    "\361 Mex$\013@\313 W\275!e\0" // New Mexico CS27 West zone
    "\361{ Afr$\005 @\270\0" // New S African CS zone 
    "\361{\246W\026\242 L\232b\007t\0" // New South Wales Lambert
    "\361 W# Off$\012Si\007r\030Le\003\012Gr\257\0" // New War Office Sierra Leone Grid
    "\361 Y\006k @\313\333\365\223!e\0" // New York CS27 Central zone
    "\361 Y\006k @\313 E\315!e\0" // New York CS27 East zone
    "\361 Y\006k @\313 L\003g \352 !e\0" // New York CS27 Long Island zone
    "\361 Y\006k @\313 W\275!e\0" // New York CS27 West zone
    "\361 Ze\026\035\0" // New Zealand
    "\361 Ze\026\035\002A\032ipod\242 \301B\025\032\200\352s\0" // New Zealand - Antipodes and Bounty Islands
    "\361 Ze\026\035\002C\232pb\240l \352\0" // New Zealand - Campbell Island
    "\361 Ze\026\035\002Cha\023\232 \352s gr\025p\0" // New Zealand - Chatham Islands group
    "\361 Ze\026\035\002\324\352\0" // New Zealand - North Island
    "\361 Ze\026\035\002\324\352\002Ba\200\252Ple\032\200mc\0" // New Zealand - North Island - Bay of Plenty mc
    "\361 Ze\026\035\002\324\352\002Hawk\242 Ba\200mc Napi\007 vcrs\0" // New Zealand - North Island - Hawkes Bay mc Napier vcrs
    "\361 Ze\026\035\002\324\352\002M\025\032 Ed\210 mc\0" // New Zealand - North Island - Mount Eden mc
    "\361 Ze\026\035\002\324\352\002Pov\007t\200Ba\200mc\0" // New Zealand - North Island - Poverty Bay mc
    "\361 Ze\026\035\002\324\352\002T#\005aki mc\0" // New Zealand - North Island - Taranaki mc
    "\361 Ze\026\035\002\324\352\002Tuh\342\005gi mc\0" // New Zealand - North Island - Tuhirangi mc
    "\361 Ze\026\035\002\324\352\002Wa\342#ap\030mc\0" // New Zealand - North Island - Wairarapa mc
    "\361 Ze\026\035\002\324\352\002W\005g\005ui mc\0" // New Zealand - North Island - Wanganui mc
    "\361 Ze\026\035\002\324\352\002W\240l\024gt\222mc\0" // New Zealand - North Island - Wellington mc
    "\361 Ze\026\035\002Ra\025l \301K\007m\274ec \352s\0" // New Zealand - Raoul and Kermadec Islands
    "\361 Ze\026\035\002Sn#\242 \301Auck\211 \352s\0" // New Zealand - Snares and Auckland Islands
    "\361 Ze\026\035\002\367\352\002Am\225i mc\0" // New Zealand - South Island - Amuri mc
    "\361 Ze\026\035\002\367\352\002Bull\007 mc\0" // New Zealand - South Island - Buller mc
    "\361 Ze\026\035\002\367\352\002C\247l\024gwood mc\0" // New Zealand - South Island - Collingwood mc
    "\361 Ze\026\035\002\367\352\002Gawl\007 mc\0" // New Zealand - South Island - Gawler mc
    "\361 Ze\026\035\002\367\352\002G>\200mc\0" // New Zealand - South Island - Grey mc
    "\361 Ze\026\035\002\367\352\002Hok\243ik\030mc\0" // New Zealand - South Island - Hokitika mc
    "\361 Ze\026\035\002\367\352\002Jacks\003s Ba\200mc\0" // New Zealand - South Island - Jacksons Bay mc
    "\361 Ze\026\035\002\367\352\002K#\232e\030mc\0" // New Zealand - South Island - Karamea mc
    "\361 Ze\026\035\002\367\352\002L\024d= Peak mc\0" // New Zealand - South Island - Lindis Peak mc
    "\361 Ze\026\035\002\367\352\002M#lb\006\025gh mc\0" // New Zealand - South Island - Marlborough mc
    "\361 Ze\026\035\002\367\352\002M\025\032 N$h\247\201 mc\0" // New Zealand - South Island - Mount Nicholas mc
    "\361 Ze\026\035\002\367\352\002M\025\032 Ple\201\005t mc\0" // New Zealand - South Island - Mount Pleasant mc
    "\361 Ze\026\035\002\367\352\002M\025\032 Y\006k mc\0" // New Zealand - South Island - Mount York mc
    "\361 Ze\026\035\002\367\352\002N\240s\222mc\0" // New Zealand - South Island - Nelson mc
    "\361 Ze\026\035\002\367\352\002\324Tai\007i mc\0" // New Zealand - South Island - North Taieri mc
    "\361 Ze\026\035\002\367\352\002Obs\007v<i\222Po\024t mc\0" // New Zealand - South Island - Observation Point mc
    "\361 Ze\026\035\002\367\352\002Ok#\243\013mc\0" // New Zealand - South Island - Okarito mc
    "\361 Ze\026\035\002\367\352\002Tim#u mc\0" // New Zealand - South Island - Timaru mc
    "\361 Ze\026\035\002\367\035{tew#t \352s\0" // New Zealand - South and Stewart Islands
    "\361 Ze\026\035\002\367\035{tew#t \352s\002Bluff mc\0" // New Zealand - South and Stewart Islands - Bluff mc
    "\361 Ze\026\035\002ne#^\006\012168\34574\015\0" // New Zealand - nearshore 168°E to 174°E
    "\361 Ze\026\035\002ne#^\006\012e\315\252174\015\0" // New Zealand - nearshore east of 174°E
    "\361 Ze\026\035\002ne#^\006\012w\275\252168\015\0" // New Zealand - nearshore west of 168°E
    "\361 Ze\026\035\002\216f^\202\0" // New Zealand - offshore
    "\361 Ze\026\035\002\216f^\006\012162\015\020o168\015\0" // New Zealand - offshore 162°E to168°E
    "\361 Ze\026\035\002\216f^\006\012168\34574\015\0" // New Zealand - offshore 168°E to 174°E
    "\361 Ze\026\035\002\216f^\006\012174\34580\015\0" // New Zealand - offshore 174°E to 180°E
    "\361 Ze\026\035\002\216f^\006\012180\217174\037\0" // New Zealand - offshore 180°W to 174°W
    "\361 Ze\026\035\002\216f^\006\012Pacif$ Oce\005,{\362\007n Oce\005\0" // New Zealand - offshore Pacific Ocean, Southern Ocean
    "\361 Ze\026\035\002\237\0" // New Zealand - onshore
    "\361 Ze\026\035\002\213\006\012\301ne#^\202\0" // New Zealand - onshore and nearshore
    "\361 Ze\026\301C\003t\024e\032\026{h\240f L\232b\007t\333\003f\006m\223\2270\0" // New Zealand Continental Shelf Lambert Conformal 2000
    "\361 Ze\026\301Geod\036$ D<um\32049\0" // New Zealand Geodetic Datum 1949
    "\361 Ze\026\301Geod\036$ D<um \2270\0" // New Zealand Geodetic Datum 2000
    "\361 Ze\026\301\324\352 N<\321\223Gr\257\0" // New Zealand North Island National Grid
    "\361 Ze\026\035{\246\352 N<\321\223Gr\257\0" // New Zealand South Island National Grid
    "\361_Beij\024g\0" // New_Beijing
    "\361_Beij\024g_3_Deg>\207Ga\357s_Krug\007_\0" // New_Beijing_3_Degree_Gauss_Kruger_
    "\361_Beij\024g_3_Deg>\207Ga\357s_Krug\007_Z\003\207\0" // New_Beijing_3_Degree_Gauss_Kruger_Zone_
    "\361_Beij\024g_Ga\357s_Krug\007_\0" // New_Beijing_Gauss_Kruger_
    "\361_H\232p^i>\2672800\0" // New_Hampshire_FIPS_2800
    "\361_H\232p^i>\2672800\134t_\204\0" // New_Hampshire_FIPS_2800_Ft_US
    "\361_J\220ey\2672900\0" // New_Jersey_FIPS_2900
    "\361_J\220ey\2672900\134t_\204\0" // New_Jersey_FIPS_2900_Ft_US
    "\361_Mex$o\374\365\026\267\37502\0" // New_Mexico_Central_FIPS_3002
    "\361_Mex$o\374\365\026\267\37502\134t_\204\0" // New_Mexico_Central_FIPS_3002_Ft_US
    "\361_Mex$o_Ea\021\267\37501\0" // New_Mexico_East_FIPS_3001
    "\361_Mex$o_Ea\021\267\37501\134t_\204\0" // New_Mexico_East_FIPS_3001_Ft_US
    "\361_Mex$o_We\021\267\37503\0" // New_Mexico_West_FIPS_3003
    "\361_Mex$o_We\021\267\37503\134t_\204\0" // New_Mexico_West_FIPS_3003_Ft_US
    "\361_Y\006k\374\365\026\2673\3122\0" // New_York_Central_FIPS_3102
    "\361_Y\006k\374\365\026\2673\3122\134t_\204\0" // New_York_Central_FIPS_3102_Ft_US
    "\361_Y\006k_Ea\021\2673\3121\0" // New_York_East_FIPS_3101
    "\361_Y\006k_Ea\021\2673\3121\134t_\204\0" // New_York_East_FIPS_3101_Ft_US
    "\361_Y\006k_L\003g_\325l\2673\3124\134t_\204\0" // New_York_Long_Isl_FIPS_3104_Ft_US
    "\361_Y\006k_L\003g_\352\2673\3124\0" // New_York_Long_Island_FIPS_3104
    "\361_Y\006k_We\021\2673\3123\0" // New_York_West_FIPS_3103
    "\361_Y\006k_We\021\2673\3123\134t_\204\0" // New_York_West_FIPS_3103_Ft_US
    "\361_Ze\026\035\21249\0" // New_Zealand_1949
    "\361_Ze\026\035_\371_\352\0" // New_Zealand_North_Island
    "\361_Ze\026\035_S\362_\352\0" // New_Zealand_South_Island
    "\361_Ze\026\035_Tr\005sv\220\207M\007c<\006\0" // New_Zealand_Transverse_Mercator
    "N$#agu\034\213\006\012n\006`\25212\00448'N\0" // Nicaragua - onshore north of 12°48'N
    "N$#agu\034\213\006\012s\246\25212\00448'N\0" // Nicaragua - onshore south of 12°48'N
    "N$#agu\253\203te\0" // Nicaragua_Norte
    "N$#agu\253S\225\0" // Nicaragua_Sur
    "Nig\007\0" // Niger
    "Nig\007\002s\362ea\021\0" // Niger - southeast
    "Nig\007ia\0" // Nigeria
    "Nig\007\2156\224}\312\224\015\0" // Nigeria - 6.5°E to 10.5°E
    "Nig\007\215e\315\252\312\224\015\0" // Nigeria - east of 10.5°E
    "Nig\007\215\216f^\202\0" // Nigeria - offshore
    "Nig\007\215\216f^\006\012deep w<\007\002e\315\2526\015\0" // Nigeria - offshore deep water - east of 6°E
    "Nig\007\215\216f^\006\012deep w<\007\002w\275\2526\015\0" // Nigeria - offshore deep water - west of 6°E
    "Nig\007\215w\275\2526\224\015\0" // Nigeria - west of 6.5°E
    "Nig\007i\253Ea\021_B\240t\0" // Nigeria_East_Belt
    "Nig\007i\253M\257_B\240t\0" // Nigeria_Mid_Belt
    "Nig\007i\253We\021_B\240t\0" // Nigeria_West_Belt
    "\203d{\373#\030\03159\0" // Nord Sahara 1959
    "\203d{\373#\030\03159\205P#=)\0" // Nord Sahara 1959 (Paris)
    "\203d{\373#\030\03159\011\203d Alg\007ie\0" // Nord Sahara 1959 / Nord Algerie
    "\203d{\373#\030\03159\011Sud Alg\007ie\0" // Nord Sahara 1959 / Sud Algerie
    "\203d{\373#\030\03159\011U\250\27029N\0" // Nord Sahara 1959 / UTM zone 29N
    "\203d{\373#\030\03159\011U\250\270\375N\0" // Nord Sahara 1959 / UTM zone 30N
    "\203d{\373#\030\03159\011U\250\27031N\0" // Nord Sahara 1959 / UTM zone 31N
    "\203d{\373#\030\03159\011U\250\27032N\0" // Nord Sahara 1959 / UTM zone 32N
    "\203d d\012Gu\007r\012(P#=)\0" // Nord de Guerre (Paris)
    "\203d_Fr\005ce\0" // Nord_France
    "\203d_M#oc\0" // Nord_Maroc
    "\203d_S\373#a\21259\0" // Nord_Sahara_1959
    "\203d_S\373#a\21259_\0" // Nord_Sahara_1959_
    "\203d_S\373#a\21259_P#=\0" // Nord_Sahara_1959_Paris
    "\203d_Tun=ie\0" // Nord_Tunisie
    "\203d_d\207Gu\007>\0" // Nord_de_Guerre
    "\203d_d\207Gu\007>_P#=\0" // Nord_de_Guerre_Paris
    "\203f\247k \352\002e\315\252168\015\0" // Norfolk Island - east of 168°E
    "\324Am\007\346\3122\21796\037 \301\017\313 \363\0" // North America - 102°W to 96°W and NAD27 by country
    "\324Am\007\346\3122\21796\037 \301\027 \363\0" // North America - 102°W to 96°W and NAD83 by country
    "\324Am\007\346\3128\217\3122\037 \301\017\313 \363\0" // North America - 108°W to 102°W and NAD27 by country
    "\324Am\007\346\3128\217\3122\037 \301\027 \363\0" // North America - 108°W to 102°W and NAD83 by country
    "\324Am\007\346\1774\217\3128\037 \301\017\313 \363\0" // North America - 114°W to 108°W and NAD27 by country
    "\324Am\007\346\1774\217\3128\037 \301\027 \363\0" // North America - 114°W to 108°W and NAD83 by country
    "\324Am\007\3461\033\217\1774\037 \301\017\313 \363\002\237\0" // North America - 120°W to 114°W and NAD27 by country - onshore
    "\324Am\007\3461\033\217\1774\037 \301\027 \363\0" // North America - 120°W to 114°W and NAD83 by country
    "\324Am\007\346126\2171\033\037 \301\017\313 \363\002\237\0" // North America - 126°W to 120°W and NAD27 by country - onshore
    "\324Am\007\346126\2171\033\037 \301\027 \363\0" // North America - 126°W to 120°W and NAD83 by country
    "\324Am\007\346132\217126\037 \301\017\313 \363\002\237\0" // North America - 132°W to 126°W and NAD27 by country - onshore
    "\324Am\007\346132\217126\037 \301\027 \363\0" // North America - 132°W to 126°W and NAD83 by country
    "\324Am\007\346138\217132\037 \301\017\313 \363\002\237\0" // North America - 138°W to 132°W and NAD27 by country - onshore
    "\324Am\007\346138\217132\037 \301\027 \363\0" // North America - 138°W to 132°W and NAD83 by country
    "\324Am\007\346144\217138\037 \301\017\313 \363\0" // North America - 144°W to 138°W and NAD27 by country
    "\324Am\007\346144\217138\037 \301\027 \363\0" // North America - 144°W to 138°W and NAD83 by country
    "\324Am\007\34666\21760\037 \301\017\313 \363\0" // North America - 66°W to 60°W and NAD27 by country
    "\324Am\007\34666\21760\037 \301\027 \363\0" // North America - 66°W to 60°W and NAD83 by country
    "\324Am\007\34672\21766\037 \301\017\313 \363\0" // North America - 72°W to 66°W and NAD27 by country
    "\324Am\007\34672\21766\037 \301\027 \363\0" // North America - 72°W to 66°W and NAD83 by country
    "\324Am\007\34678\21772\037 \301\017\313 \363\0" // North America - 78°W to 72°W and NAD27 by country
    "\324Am\007\34678\21772\037 \301\027 \363\0" // North America - 78°W to 72°W and NAD83 by country
    "\324Am\007\34684\21778\037 \301\017\313 \363\0" // North America - 84°W to 78°W and NAD27 by country
    "\324Am\007\34684\21778\037 \301\027 \363\0" // North America - 84°W to 78°W and NAD83 by country
    "\324Am\007\34690\21784\037 \301\017\313 \363\0" // North America - 90°W to 84°W and NAD27 by country
    "\324Am\007\34690\21784\037 \301\027 \363\0" // North America - 90°W to 84°W and NAD83 by country
    "\324Am\007\34696\21790\037 \301\017\313 \363\0" // North America - 96°W to 90°W and NAD27 by country
    "\324Am\007\34696\21790\037 \301\027 \363\0" // North America - 96°W to 90°W and NAD83 by country
    "\324Am\007\346B\373\232\201 \301\235Fl\006\257\034\237\0" // North America - Bahamas and USA - Florida - onshore
    "\324Am\007\346G>< Lak\242 b\201\024\0" // North America - Great Lakes basin
    "\324Am\007\346G>< Lak\242 b\201\024 \035{t Law>nc\012Seaway\0" // North America - Great Lakes basin and St Lawrence Seaway
    "\324Am\007\346\01727\0" // North America - NAD27
    "\324Am\007\346\01783\0" // North America - NAD83
    "\324Am\007$\005 D<um \03127\0" // North American Datum 1927
    "\324Am\007$\005 D<um\320\313\205\03176)\0" // North American Datum 1927 (1976)
    "\324Am\007$\005 D<um\320\313\205CGQ77)\0" // North American Datum 1927 (CGQ77)
    "\324Am\007$\005 D<um \03183\0" // North American Datum 1983
    "\324Am\007$\005 D<um \252\031\014\205@|) v\220i\2222\0" // North American Datum of 1983 (CSRS) version 2
    "\324Am\007$\005 D<um \252\031\014\205@|) v\220i\2223\0" // North American Datum of 1983 (CSRS) version 3
    "\324Am\007$\005 D<um \252\031\014\205@|) v\220i\2224\0" // North American Datum of 1983 (CSRS) version 4
    "\324Am\007$\005 D<um \252\031\014\205@|) v\220i\2225\0" // North American Datum of 1983 (CSRS) version 5
    "\324Am\007$\005 D<um \252\031\014\205@|) v\220i\2226\0" // North American Datum of 1983 (CSRS) version 6
    "\324Am\007$\005 D<um \252\031\014\205@|) v\220i\2227\0" // North American Datum of 1983 (CSRS) version 7
    "\324Am\007$\005 D<um \252\031\014\205@|96)\0" // North American Datum of 1983 (CSRS96)
    "\324Am\007$\005 D<um \252\031\014\205M\245P00)\0" // North American Datum of 1983 (MARP00)
    "\324Am\007$\005 D<um \252\031\014\205PACP00)\0" // North American Datum of 1983 (PACP00)
    "\324C#\247\024\030@27\0" // North Carolina CS27
    "\324Dak\350\030@\313 \324!e\0" // North Dakota CS27 North zone
    "\324Dak\350\030@\313{\246!e\0" // North Dakota CS27 South zone
    "\324Mac\273\003ia\0" // North Macedonia
    "\324P\247\012L\232b\007t Azimu\023\223Equ\223A>\030(Al\201ka)\0" // North Pole Lambert Azimuthal Equal Area (Alaska)
    "\324P\247\012L\232b\007t Azimu\023\223Equ\223A>\030(Atl\005t$)\0" // North Pole Lambert Azimuthal Equal Area (Atlantic)
    "\324P\247\012L\232b\007t Azimu\023\223Equ\223A>\030(B\007\024g{ea)\0" // North Pole Lambert Azimuthal Equal Area (Bering Sea)
    "\324P\247\012L\232b\007t Azimu\023\223Equ\223A>\030(C\005\274a)\0" // North Pole Lambert Azimuthal Equal Area (Canada)
    "\324P\247\012L\232b\007t Azimu\023\223Equ\223A>\030(E\225ope)\0" // North Pole Lambert Azimuthal Equal Area (Europe)
    "\324P\247\012L\232b\007t Azimu\023\223Equ\223A>\030(R\357sia)\0" // North Pole Lambert Azimuthal Equal Area (Russia)
    "\371_Am\007$\005_D<um_\216\212\014_(@|)_v\220\321_\0" // North_American_Datum_of_1983_(CSRS)_version_
    "\371_Am\007$\005_D<um_\216\212\014_(@|96)\0" // North_American_Datum_of_1983_(CSRS96)
    "\371\374#\247\024a\2673\0330\0" // North_Carolina_FIPS_3200
    "\371\374#\247\024a\2673\227\366\0" // North_Carolina_FIPS_3200_Feet
    "\371\374#\247\024a\2673\227\134t_\204\0" // North_Carolina_FIPS_3200_Ft_US
    "\371\374\365\026_\017\212\014_\231_LCC\134t_I\032l\0" // North_Central_NAD_1983_2011_LCC_Ft_Intl
    "\371\374\365\026_\017\212\014_\231_LCC_M\311\0" // North_Central_NAD_1983_2011_LCC_Meters
    "\371_Dak\350\253\371\2673\3751\0" // North_Dakota_North_FIPS_3301
    "\371_Dak\350\253\371\2673\3751\366_I\032l\0" // North_Dakota_North_FIPS_3301_Feet_Intl
    "\371_Dak\350\253\371\2673\3751\134tI\0" // North_Dakota_North_FIPS_3301_FtI
    "\371_Dak\350\253S\362\2673\3752\0" // North_Dakota_South_FIPS_3302
    "\371_Dak\350\253S\362\2673\3752\366_I\032l\0" // North_Dakota_South_FIPS_3302_Feet_Intl
    "\371_Dak\350\253S\362\2673\3752\134tI\0" // North_Dakota_South_FIPS_3302_FtI
    "\371_Tai\007i\374\342cu\243\0" // North_Taieri_Circuit
    "\371e\315\355\314\334F LCC\0" // Northeast India NSF LCC
    "\371w\275T\007r\243\006i\242 L\232b\007t\0" // Northwest Territories Lambert
    "\371we\021_T\007r\243\006i\242_L\232b\007t\0" // Northwest_Territories_Lambert
    "\203way\002\237\0" // Norway - onshore
    "\203way\002\237\002\312}\177\015\0" // Norway - onshore - 10°E to 11°E
    "\203way\002\237\002\177\3452\015\0" // Norway - onshore - 11°E to 12°E
    "\203way\002\237\00212\3453\015\0" // Norway - onshore - 12°E to 13°E
    "\203way\002\237\00213\3454\015\0" // Norway - onshore - 13°E to 14°E
    "\203way\002\237\00214\3455\015\0" // Norway - onshore - 14°E to 15°E
    "\203way\002\237\00215\3456\015\0" // Norway - onshore - 15°E to 16°E
    "\203way\002\237\00216\3457\015\0" // Norway - onshore - 16°E to 17°E
    "\203way\002\237\00217\3458\015\0" // Norway - onshore - 17°E to 18°E
    "\203way\002\237\00218}\031\015\0" // Norway - onshore - 18°E to 19°E
    "\203way\002\237\002\031}\033\015\0" // Norway - onshore - 19°E to 20°E
    "\203way\002\237\002\033}21\015\0" // Norway - onshore - 20°E to 21°E
    "\203way\002\237\00221}22\015\0" // Norway - onshore - 21°E to 22°E
    "\203way\002\237\00222}23\015\0" // Norway - onshore - 22°E to 23°E
    "\203way\002\237\00223}24\015\0" // Norway - onshore - 23°E to 24°E
    "\203way\002\237\00224}25\015\0" // Norway - onshore - 24°E to 25°E
    "\203way\002\237\00225}26\015\0" // Norway - onshore - 25°E to 26°E
    "\203way\002\237\00226}\313\015\0" // Norway - onshore - 26°E to 27°E
    "\203way\002\237\002\313}28\015\0" // Norway - onshore - 27°E to 28°E
    "\203way\002\237\00228}29\015\0" // Norway - onshore - 28°E to 29°E
    "\203way\002\237\00229}\375\015\0" // Norway - onshore - 29°E to 30°E
    "\203way\002\237\0026}7\015\0" // Norway - onshore - 6°E to 7°E
    "\203way\002\237\0027}8\015\0" // Norway - onshore - 7°E to 8°E
    "\203way\002\237\0028}9\015\0" // Norway - onshore - 8°E to 9°E
    "\203way\002\237\0029}\312\015\0" // Norway - onshore - 9°E to 10°E
    "\203way\002\237\002e\315\252\375\015\0" // Norway - onshore - east of 30°E
    "\203way\002\237\002w\275\2526\015\0" // Norway - onshore - west of 6°E
    "\203way\002\077I\0" // Norway - zone I
    "\203way\002\077II\0" // Norway - zone II
    "\203way\002\077III\0" // Norway - zone III
    "\203way\002\077IV\0" // Norway - zone IV
    "\203way\002\077V\0" // Norway - zone V
    "\203way\002\077VI\0" // Norway - zone VI
    "\203way\002\077VII\0" // Norway - zone VII
    "\203way\002\077VIII\0" // Norway - zone VIII
    "\203wa\200\250\27010\0" // Norway TM zone 10
    "\203wa\200\250\27011\0" // Norway TM zone 11
    "\203wa\200\250\27012\0" // Norway TM zone 12
    "\203wa\200\250\27013\0" // Norway TM zone 13
    "\203wa\200\250\27014\0" // Norway TM zone 14
    "\203wa\200\250\27015\0" // Norway TM zone 15
    "\203wa\200\250\27016\0" // Norway TM zone 16
    "\203wa\200\250\27017\0" // Norway TM zone 17
    "\203wa\200\250\27018\0" // Norway TM zone 18
    "\203wa\200\250\27019\0" // Norway TM zone 19
    "\203wa\200\250\27020\0" // Norway TM zone 20
    "\203wa\200\250\27021\0" // Norway TM zone 21
    "\203wa\200\250\27022\0" // Norway TM zone 22
    "\203wa\200\250\27023\0" // Norway TM zone 23
    "\203wa\200\250\27024\0" // Norway TM zone 24
    "\203wa\200\250\27025\0" // Norway TM zone 25
    "\203wa\200\250\27026\0" // Norway TM zone 26
    "\203wa\200\250\27027\0" // Norway TM zone 27
    "\203wa\200\250\27028\0" // Norway TM zone 28
    "\203wa\200\250\27029\0" // Norway TM zone 29
    "\203wa\200\250\27030\0" // Norway TM zone 30
    "\203wa\200\250\2705\0" // Norway TM zone 5
    "\203wa\200\250\2706\0" // Norway TM zone 6
    "\203wa\200\250\2707\0" // Norway TM zone 7
    "\203wa\200\250\2708\0" // Norway TM zone 8
    "\203wa\200\250\2709\0" // Norway TM zone 9
    "N\350 specifi\273\0" // Not specified
    "N\350 specifi\273\205b\201\273 \222A\342\2001\0140 \240lipso\257)\0" // Not specified (based on Airy 1830 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222A\342\200Modifi\273 1849 \240lipso\257)\0" // Not specified (based on Airy Modified 1849 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Au\021r\026\335 N<\321\026{\271o\257)\0" // Not specified (based on Australian National Spheroid)
    "N\350 specifi\273\205b\201\273 \222Au\023\026${\271e)\0" // Not specified (based on Authalic Sphere)
    "N\350 specifi\273\205b\201\273 \222Av\007ag\012T\007>\021ri\026{y\021\206\32077 \240lipso\257)\0" // Not specified (based on Average Terrestrial System 1977 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222B\242s\240 1841 \240lipso\257)\0" // Not specified (based on Bessel 1841 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222B\242s\240 Modifi\273 \240lipso\257)\0" // Not specified (based on Bessel Modified ellipsoid)
    "N\350 specifi\273\205b\201\273 \222B\242s\240 N\232ib\314\240lipso\257)\0" // Not specified (based on Bessel Namibia ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121858 \240lipso\257)\0" // Not specified (based on Clarke 1858 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121866 Au\023\026${\271e)\0" // Not specified (based on Clarke 1866 Authalic Sphere)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121866 M$hig\005 \240lipso\257)\0" // Not specified (based on Clarke 1866 Michigan ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121866 \240lipso\257)\0" // Not specified (based on Clarke 1866 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121880\205\326c) \240lipso\257)\0" // Not specified (based on Clarke 1880 (Arc) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121880\205B\210o\243) \240lipso\257)\0" // Not specified (based on Clarke 1880 (Benoit) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121880\205IGN) \240lipso\257)\0" // Not specified (based on Clarke 1880 (IGN) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121880\205RGS) \240lipso\257)\0" // Not specified (based on Clarke 1880 (RGS) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121880\205SGA\32022) \240lipso\257)\0" // Not specified (based on Clarke 1880 (SGA 1922) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Cl#k\0121880 \240lipso\257)\0" // Not specified (based on Clarke 1880 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Ev\007\275(1\0140 Def\024\243\321) \240lipso\257)\0" // Not specified (based on Everest (1830 Definition) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Ev\007\2751\0140\205\03137 Adju\021me\032) \240lipso\257)\0" // Not specified (based on Everest 1830 (1937 Adjustment) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Ev\007\2751\0140\205\03162 Def\024\243\321) \240lipso\257)\0" // Not specified (based on Everest 1830 (1962 Definition) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Ev\007\2751\0140\205\03167 Def\024\243\321) \240lipso\257)\0" // Not specified (based on Everest 1830 (1967 Definition) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Ev\007\2751\0140\205\03175 Def\024\243\321) \240lipso\257)\0" // Not specified (based on Everest 1830 (1975 Definition) ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Ev\007\2751\0140 Modifi\273 \240lipso\257)\0" // Not specified (based on Everest 1830 Modified ellipsoid)
    "N\350 specifi\273\205b\201\273 \222GEM \312C \240lipso\257)\0" // Not specified (based on GEM 10C ellipsoid)
    "N\350 specifi\273\205b\201\273 \222G|\32067 \240lipso\257)\0" // Not specified (based on GRS 1967 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222G|\32080 Au\023\026${\271e)\0" // Not specified (based on GRS 1980 Authalic Sphere)
    "N\350 specifi\273\205b\201\273 \222G|\32080 \240lipso\257)\0" // Not specified (based on GRS 1980 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222H\240m\007t\32006 \240lipso\257)\0" // Not specified (based on Helmert 1906 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Hugh\242\32080 \240lipso\257)\0" // Not specified (based on Hughes 1980 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222\355\003\242\335 N<\321\026{\271o\257)\0" // Not specified (based on Indonesian National Spheroid)
    "N\350 specifi\273\205b\201\273 \222I\032\007n<\321\223\03124 Au\023\026${\271e)\0" // Not specified (based on International 1924 Authalic Sphere)
    "N\350 specifi\273\205b\201\273 \222I\032\007n<\321\223\03124 \240lipso\257)\0" // Not specified (based on International 1924 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Kr\201sowsk\200\03140 \240lipso\257)\0" // Not specified (based on Krassowsky 1940 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222NWL 9D \240lipso\257)\0" // Not specified (based on NWL 9D ellipsoid)
    "N\350 specifi\273\205b\201\273 \222OSU86F \240lipso\257)\0" // Not specified (based on OSU86F ellipsoid)
    "N\350 specifi\273\205b\201\273 \222OSU91A \240lipso\257)\0" // Not specified (based on OSU91A ellipsoid)
    "N\350 specifi\273\205b\201\273 \222Pl\242s= 1817 \240lipso\257)\0" // Not specified (based on Plessis 1817 ellipsoid)
    "N\350 specifi\273\205b\201\273 \003{truv\0121860 \240lipso\257)\0" // Not specified (based on Struve 1860 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222WGS 72 \240lipso\257)\0" // Not specified (based on WGS 72 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222WGS 84 \240lipso\257)\0" // Not specified (based on WGS 84 ellipsoid)
    "N\350 specifi\273\205b\201\273 \222W# Off$\012\240lipso\257)\0" // Not specified (based on War Office ellipsoid)
    "N\025akch\350t\32065\0" // Nouakchott 1965
    "N\025akch\350t\21265\0" // Nouakchott_1965
    "N\025v\240l\012Tr\335gul<i\222Fr\005ca=e\0" // Nouvelle Triangulation Francaise
    "N\025v\240l\012Tr\335gul<i\222Fr\005ca=\012(P#=)\0" // Nouvelle Triangulation Francaise (Paris)
    "N\025v\240l\012Tr\335gul<i\222du Lux\206b\025rg\0" // Nouvelle Triangulation du Luxembourg
    "OC|_\0" // OCRS_
    "OC|_B\210d-B\225ns_\017\212\014_\0" // OCRS_Bend-Burns_NAD_1983_
    "OC|_B\210d-Kl\232a\023\134\026ls_\017\212\014_\0" // OCRS_Bend-Klamath_Falls_NAD_1983_
    "OC|_B\210d-R\273m\003d-Pr\024ev\372l\207\017\212\014_\0" // OCRS_Bend-Redmond-Prineville_NAD_1983_
    "OC|\374\005y\003v\372le-Gr\005ts_P\201s_\017\212\014_\0" // OCRS_Canyonville-Grants_Pass_NAD_1983_
    "OC|\374\247umbi\253Riv\007_\0" // OCRS_Columbia_River_
    "OC|\374\350tag\207Grove-C\005y\003v\372l\207\017\212\014_\0" // OCRS_Cottage_Grove-Canyonville_NAD_1983_
    "OC|_Duf\225-M\274r\201_\017\212\014_\0" // OCRS_Dufur-Madras_NAD_1983_
    "OC|_Eug\210\207\017\212\014_\0" // OCRS_Eugene_NAD_1983_
    "OC|_Gr\005ts_P\201s-A^\211_\017\212\014_\0" // OCRS_Grants_Pass-Ashland_NAD_1983_
    "OC|_G>^\232-W#m_Spr\024gs_\017\212\014_\0" // OCRS_Gresham-Warm_Springs_NAD_1983_
    "OC|_L\253Gr\035\207\017\212\014_\0" // OCRS_La_Grande_NAD_1983_
    "OC|_O\032#io_\017\212\014_\0" // OCRS_Ontario_NAD_1983_
    "OC|_\323\003\374oa\021_\017\212\014_\0" // OCRS_Oregon_Coast_NAD_1983_
    "OC|_P\210dl\036\003-L\253Gr\035\207\017\212\014_\0" // OCRS_Pendleton-La_Grande_NAD_1983_
    "OC|_P\210dl\036\003_\017\212\014_\0" // OCRS_Pendleton_NAD_1983_
    "OC|_P\006t\211_\017\212\014_\0" // OCRS_Portland_NAD_1983_
    "OC|_S\005ti\232_P\201s_\017\212\014_\0" // OCRS_Santiam_Pass_NAD_1983_
    "OID\0" // OID
    "ONGD14\0" // ONGD14
    "ONGD14\011U\250\27039N\0" // ONGD14 / UTM zone 39N
    "ONGD14\011U\250\27040N\0" // ONGD14 / UTM zone 40N
    "ONGD14\011U\250\27041N\0" // ONGD14 / UTM zone 41N
    "ONGD14_U\376Z\003\20739N\0" // ONGD14_UTM_Zone_39N
    "ONGD14_U\376Z\003\20740N\0" // ONGD14_UTM_Zone_40N
    "ONGD14_U\376Z\003\20741N\0" // ONGD14_UTM_Zone_41N
    "ONGD17\0" // ONGD17
    "ONGD17\011U\250\27039N\0" // ONGD17 / UTM zone 39N
    "ONGD17\011U\250\27040N\0" // ONGD17 / UTM zone 40N
    "ONGD17\011U\250\27041N\0" // ONGD17 / UTM zone 41N
    "ONGD17_U\376Z\003\20739N\0" // ONGD17_UTM_Zone_39N
    "ONGD17_U\376Z\003\20740N\0" // ONGD17_UTM_Zone_40N
    "ONGD17_U\376Z\003\20741N\0" // ONGD17_UTM_Zone_41N
    "OS\205SN)\32080\0" // OS (SN) 1980
    "OS(SN)80\0" // OS(SN)80
    "OSGB\32036\0" // OSGB 1936
    "OSGB\32070\205SN)\0" // OSGB 1970 (SN)
    "OSGB36\0" // OSGB36
    "OSGB36\011Br\243=h N<\321\223Gr\257\0" // OSGB36 / British National Grid
    "OSGB70\0" // OSGB70
    "OSGB\21236\0" // OSGB_1936
    "OSGB\21270_SN\0" // OSGB_1970_SN
    "OSNI\32052\0" // OSNI 1952
    "OSNI\32052\011Ir=h N<\321\223Gr\257\0" // OSNI 1952 / Irish National Grid
    "OSNI\21252\0" // OSNI_1952
    "OSNI\21252_Ir=h_N<\321\026_Gr\257\0" // OSNI_1952_Irish_National_Grid
    "OSU86F\0" // OSU86F
    "OSU91A\0" // OSU91A
    "OSU_86F\0" // OSU_86F
    "OSU_91A\0" // OSU_91A
    "OS_SN\21280\0" // OS_SN_1980
    "Obs\007v<#io\0" // Observatario
    "Obs\007v<#i\013C\232pos Rodrigu\242\32007\0" // Observatario Campos Rodrigues 1907
    "Obs\007v<#i\013Fl\202s\0" // Observatario Flores
    "Obs\007v<\321_Po\024t\374\342cu\243\0" // Observation_Point_Circuit
    "Obs\007v<\006i\013\03166\0" // Observatorio 1966
    "Obs\007v<\006i\013M\036e\006\247og$\013\03139\0" // Observatorio Meteorologico 1939
    "Ochoco_Summ\243_\017\212\014_\231_LCC\134t_I\032l\0" // Ochoco_Summit_NAD_1983_2011_LCC_Ft_Intl
    "Ochoco_Summ\243_\017\212\014_\231_LCC_M\311\0" // Ochoco_Summit_NAD_1983_2011_LCC_Meters
    "Oc\003to\374\025\032y\366\0" // Oconto_County_Feet
    "Oc\003to\374\025\032y_M\311\0" // Oconto_County_Meters
    "Oc\003to\366\0" // Oconto_Feet
    "Oc\003to_M\311\0" // Oconto_Meters
    "Oc\350epequ\012\03135\0" // Ocotepeque 1935
    "Oc\350epequ\012\03135\011Co\021\030R$\030\203te\0" // Ocotepeque 1935 / Costa Rica Norte
    "Oc\350epequ\012\03135\011Co\021\030R$\030S\225\0" // Ocotepeque 1935 / Costa Rica Sur
    "Oc\350epequ\012\03135\011El{\026v\274\006 L\232b\007t\0" // Ocotepeque 1935 / El Salvador Lambert
    "Oc\350epequ\012\03135\011Gu<\206\026\030\203te\0" // Ocotepeque 1935 / Guatemala Norte
    "Oc\350epequ\012\03135\011Gu<\206\026\030S\225\0" // Ocotepeque 1935 / Guatemala Sur
    "Oc\350epequ\012\03135\011N$#agu\030\203te\0" // Ocotepeque 1935 / Nicaragua Norte
    "Oc\350epequ\012\03135\011N$#agu\030S\225\0" // Ocotepeque 1935 / Nicaragua Sur
    "Oc\350epequ\207\03135\0" // Ocotepeque_1935
    "Oc\350epequ\207\03135_\0" // Ocotepeque_1935_
    "Ohi\013@\313 \324!e\0" // Ohio CS27 North zone
    "Ohi\013@\313{\246!e\0" // Ohio CS27 South zone
    "Ohio_\371\2673401\0" // Ohio_North_FIPS_3401
    "Ohio_\371\2673401\366\0" // Ohio_North_FIPS_3401_Feet
    "Ohio_\371\2673401\134t_\204\0" // Ohio_North_FIPS_3401_Ft_US
    "Ohio_S\362\2673402\0" // Ohio_South_FIPS_3402
    "Ohio_S\362\2673402\366\0" // Ohio_South_FIPS_3402_Feet
    "Ohio_S\362\2673402\134t_\204\0" // Ohio_South_FIPS_3402_Ft_US
    "Ok#\243o\374\342cu\243\0" // Okarito_Circuit
    "Okl\373\344\030@\313 \324!e\0" // Oklahoma CS27 North zone
    "Okl\373\344\030@\313{\246!e\0" // Oklahoma CS27 South zone
    "Okl\373\344\253\371\2673501\0" // Oklahoma_North_FIPS_3501
    "Okl\373\344\253\371\2673501\366\0" // Oklahoma_North_FIPS_3501_Feet
    "Okl\373\344\253\371\2673501\134t_\204\0" // Oklahoma_North_FIPS_3501_Ft_US
    "Okl\373\344\253S\362\2673502\0" // Oklahoma_South_FIPS_3502
    "Okl\373\344\253S\362\2673502\366\0" // Oklahoma_South_FIPS_3502_Feet
    "Okl\373\344\253S\362\2673502\134t_\204\0" // Oklahoma_South_FIPS_3502_Ft_US
    "O\316 Egypt\335\0" // Old Egyptian
    "O\316 Hawai\335\0" // Old Hawaiian
    "O\316 Hawai\335\011Hawaii\2701\0" // Old Hawaiian / Hawaii zone 1
    "O\316 Hawai\335\011Hawaii\2702\0" // Old Hawaiian / Hawaii zone 2
    "O\316 Hawai\335\011Hawaii\2703\0" // Old Hawaiian / Hawaii zone 3
    "O\316 Hawai\335\011Hawaii\2704\0" // Old Hawaiian / Hawaii zone 4
    "O\316 Hawai\335\011Hawaii\2705\0" // Old Hawaiian / Hawaii zone 5
    "O\316 \325\370\240i D<um\0" // Old Israeli Datum
    "O\316_Hawai\335\0" // Old_Hawaiian
    "O\316_Hawai\335_St<ePl\005\207Hawaii_\0" // Old_Hawaiian_StatePlane_Hawaii_
    "Om\005\0" // Oman
    "Om\005\00254}60\015\0" // Oman - 54°E to 60°E
    "Om\005\002e\315\25260\015\0" // Oman - east of 60°E
    "Om\005\002ma\024\211\0" // Oman - mainland
    "Om\005\002ma\024\211 e\315\25254\015\0" // Oman - mainland east of 54°E
    "Om\005\002\237\0" // Oman - onshore
    "Om\005\002\213\006\012e\315\25254\015\0" // Oman - onshore east of 54°E
    "Om\005\002\213\006\012w\275\25254\015\0" // Oman - onshore west of 54°E
    "Om\005\002w\275\25254\015\0" // Oman - west of 54°E
    "Om\005 N<\321\223Geod\036$ D<um \03314\0" // Oman National Geodetic Datum 2014
    "Om\005 N<\321\223Geod\036$ D<um \03317\0" // Oman National Geodetic Datum 2017
    "Om\005_N<\321\026_Geod\036$_D<um_\03314\0" // Oman_National_Geodetic_Datum_2014
    "Om\005_N<\321\026_Geod\036$_D<um_\03317\0" // Oman_National_Geodetic_Datum_2017
    "One\257\253C\025\032y\366\0" // Oneida_County_Feet
    "One\257\253C\025\032y_M\311\0" // Oneida_County_Meters
    "One\257a\366\0" // Oneida_Feet
    "One\257\253M\311\0" // Oneida_Meters
    "O\032#io_MNR_L\232b\007t\0" // Ontario_MNR_Lambert
    "Ordn\005c\012S\225ve\200\252G>< Br\243a\024\32036\0" // Ordnance Survey of Great Britain 1936
    "\377Bak\007\270(I\032\007n<\321\223f\221)\0" // Oregon Baker zone (International feet)
    "\377Bak\007\270(m\311)\0" // Oregon Baker zone (meters)
    "\377B\210d-B\225ns\270(I\032\007n<\321\223f\221)\0" // Oregon Bend-Burns zone (International feet)
    "\377B\210d-B\225ns\270(m\311)\0" // Oregon Bend-Burns zone (meters)
    "\377B\210d-Kl\232a`F\026ls\270(I\032\007n<\321\223f\221)\0" // Oregon Bend-Klamath Falls zone (International feet)
    "\377B\210d-Kl\232a`F\026ls\270(m\311)\0" // Oregon Bend-Klamath Falls zone (meters)
    "\377B\210d-R\273m\003d-Pr\024ev\372l\012\336I\032\007n<\321\223f\221)\0" // Oregon Bend-Redmond-Prineville zone (International feet)
    "\377B\210d-R\273m\003d-Pr\024ev\372l\012\336m\311)\0" // Oregon Bend-Redmond-Prineville zone (meters)
    "\377B\225ns-H#p\007\270(I\032\007n<\321\223f\221)\0" // Oregon Burns-Harper zone (International feet)
    "\377B\225ns-H#p\007\270(m\311)\0" // Oregon Burns-Harper zone (meters)
    "\377@\313 \324!e\0" // Oregon CS27 North zone
    "\377@\313{\246!e\0" // Oregon CS27 South zone
    "\377C\005y\222C\243y-B\225ns\270(I\032\007n<\321\223f\221)\0" // Oregon Canyon City-Burns zone (International feet)
    "\377C\005y\222C\243y-B\225ns\270(m\311)\0" // Oregon Canyon City-Burns zone (meters)
    "\377C\005y\003v\372le-Gr\005ts P\201s\270(I\032\007n<\321\223f\221)\0" // Oregon Canyonville-Grants Pass zone (International feet)
    "\377C\005y\003v\372le-Gr\005ts P\201s\270(m\311)\0" // Oregon Canyonville-Grants Pass zone (meters)
    "\377Co\315R\005g\012\324\336I\032\007n<\321\223f\221)\0" // Oregon Coast Range North zone (International feet)
    "\377Co\315R\005g\012\324\336m\311)\0" // Oregon Coast Range North zone (meters)
    "\377Co\315\336I\032\007n<\321\223f\221)\0" // Oregon Coast zone (International feet)
    "\377Co\315\336m\311)\0" // Oregon Coast zone (meters)
    "\377C\247umb\314Riv\007 E\315\336I\032\007n<\321\223f\221)\0" // Oregon Columbia River East zone (International feet)
    "\377C\247umb\314Riv\007 E\315\336m\311)\0" // Oregon Columbia River East zone (meters)
    "\377C\247umb\314Riv\007 W\275\336I\032\007n<\321\223f\221)\0" // Oregon Columbia River West zone (International feet)
    "\377C\247umb\314Riv\007 W\275\336m\311)\0" // Oregon Columbia River West zone (meters)
    "\377C\350tag\012Grove-C\005y\003v\372l\012\336I\032\007n<\321\223f\221)\0" // Oregon Cottage Grove-Canyonville zone (International feet)
    "\377C\350tag\012Grove-C\005y\003v\372l\012\336m\311)\0" // Oregon Cottage Grove-Canyonville zone (meters)
    "\377Dayv\372le-P\370\342i\012C\243\200\336I\032\007n<\321\223f\221)\0" // Oregon Dayville-Prairie City zone (International feet)
    "\377Dayv\372le-P\370\342i\012C\243\200\336m\311)\0" // Oregon Dayville-Prairie City zone (meters)
    "\377D\210io-B\225ns\270(I\032\007n<\321\223f\221)\0" // Oregon Denio-Burns zone (International feet)
    "\377D\210io-B\225ns\270(m\311)\0" // Oregon Denio-Burns zone (meters)
    "\377Duf\225-M\274r\201\270(I\032\007n<\321\223f\221)\0" // Oregon Dufur-Madras zone (International feet)
    "\377Duf\225-M\274r\201\270(m\311)\0" // Oregon Dufur-Madras zone (meters)
    "\377Eug\210\012\336I\032\007n<\321\223f\221)\0" // Oregon Eugene zone (International feet)
    "\377Eug\210\012\336m\311)\0" // Oregon Eugene zone (meters)
    "\377GIC L\232b\007t\205I\032\007n<\321\223f\221)\0" // Oregon GIC Lambert (International feet)
    "\377Gr\005ts P\201s-A^\211\270(I\032\007n<\321\223f\221)\0" // Oregon Grants Pass-Ashland zone (International feet)
    "\377Gr\005ts P\201s-A^\211\270(m\311)\0" // Oregon Grants Pass-Ashland zone (meters)
    "\377G>^\232-W#m{pr\024gs\270(I\032\007n<\321\223f\221)\0" // Oregon Gresham-Warm Springs zone (International feet)
    "\377G>^\232-W#m{pr\024gs\270(m\311)\0" // Oregon Gresham-Warm Springs zone (meters)
    "\377H\026fwa\200\336I\032\007n<\321\223f\221)\0" // Oregon Halfway zone (International feet)
    "\377H\026fwa\200\336m\311)\0" // Oregon Halfway zone (meters)
    "\377L\030Gr\035\012\336I\032\007n<\321\223f\221)\0" // Oregon La Grande zone (International feet)
    "\377L\030Gr\035\012\336m\311)\0" // Oregon La Grande zone (meters)
    "\377L\232b\007t\205m\311)\0" // Oregon Lambert (meters)
    "\377M\273f\006d-Di\232\003d Lak\012\336I\032\007n<\321\223f\221)\0" // Oregon Medford-Diamond Lake zone (International feet)
    "\377M\273f\006d-Di\232\003d Lak\012\336m\311)\0" // Oregon Medford-Diamond Lake zone (meters)
    "\377M\243ch\240l\270(I\032\007n<\321\223f\221)\0" // Oregon Mitchell zone (International feet)
    "\377M\243ch\240l\270(m\311)\0" // Oregon Mitchell zone (meters)
    "\377\324C\365\223\336I\032\007n<\321\223f\221)\0" // Oregon North Central zone (International feet)
    "\377\324C\365\223\336m\311)\0" // Oregon North Central zone (meters)
    "\377Ochoc\013Summ\243\270(I\032\007n<\321\223f\221)\0" // Oregon Ochoco Summit zone (International feet)
    "\377Ochoc\013Summ\243\270(m\311)\0" // Oregon Ochoco Summit zone (meters)
    "\377O\032#i\013\336I\032\007n<\321\223f\221)\0" // Oregon Ontario zone (International feet)
    "\377O\032#i\013\336m\311)\0" // Oregon Ontario zone (meters)
    "\377Owyhe\012\336I\032\007n<\321\223f\221)\0" // Oregon Owyhee zone (International feet)
    "\377Owyhe\012\336m\311)\0" // Oregon Owyhee zone (meters)
    "\377P\210dl\036\222\336I\032\007n<\321\223f\221)\0" // Oregon Pendleton zone (International feet)
    "\377P\210dl\036\222\336m\311)\0" // Oregon Pendleton zone (meters)
    "\377P\210dl\036\003-L\030Gr\035\012\336I\032\007n<\321\223f\221)\0" // Oregon Pendleton-La Grande zone (International feet)
    "\377P\210dl\036\003-L\030Gr\035\012\336m\311)\0" // Oregon Pendleton-La Grande zone (meters)
    "\377P\372\350 Rock-Uki\373\270(I\032\007n<\321\223f\221)\0" // Oregon Pilot Rock-Ukiah zone (International feet)
    "\377P\372\350 Rock-Uki\373\270(m\311)\0" // Oregon Pilot Rock-Ukiah zone (meters)
    "\377P\006t\211\270(I\032\007n<\321\223f\221)\0" // Oregon Portland zone (International feet)
    "\377P\006t\211\270(m\311)\0" // Oregon Portland zone (meters)
    "\377P\370\342i\012C\243y-Brog\005\270(I\032\007n<\321\223f\221)\0" // Oregon Prairie City-Brogan zone (International feet)
    "\377P\370\342i\012C\243y-Brog\005\270(m\311)\0" // Oregon Prairie City-Brogan zone (meters)
    "\377R\372ey-Lakeview\270(I\032\007n<\321\223f\221)\0" // Oregon Riley-Lakeview zone (International feet)
    "\377R\372ey-Lakeview\270(m\311)\0" // Oregon Riley-Lakeview zone (meters)
    "\323\003{\026\206\270(I\032\007n<\321\223f\221)\0" // Oregon Salem zone (International feet)
    "\323\003{\026\206\270(m\311)\0" // Oregon Salem zone (meters)
    "\323\003{\005ti\232 P\201s\270(I\032\007n<\321\223f\221)\0" // Oregon Santiam Pass zone (International feet)
    "\323\003{\005ti\232 P\201s\270(m\311)\0" // Oregon Santiam Pass zone (meters)
    "\323\003{=kiy\025 P\201s\270(I\032\007n<\321\223f\221)\0" // Oregon Siskiyou Pass zone (International feet)
    "\323\003{=kiy\025 P\201s\270(m\311)\0" // Oregon Siskiyou Pass zone (meters)
    "\377Uki\373-Fox\270(I\032\007n<\321\223f\221)\0" // Oregon Ukiah-Fox zone (International feet)
    "\377Uki\373-Fox\270(m\311)\0" // Oregon Ukiah-Fox zone (meters)
    "\377W\026low\030\336I\032\007n<\321\223f\221)\0" // Oregon Wallowa zone (International feet)
    "\377W\026low\030\336m\311)\0" // Oregon Wallowa zone (meters)
    "\377W#n\007 Highwa\200\336I\032\007n<\321\223f\221)\0" // Oregon Warner Highway zone (International feet)
    "\377W#n\007 Highwa\200\336m\311)\0" // Oregon Warner Highway zone (meters)
    "\377W\372l\232\036t\012P\201s\270(I\032\007n<\321\223f\221)\0" // Oregon Willamette Pass zone (International feet)
    "\377W\372l\232\036t\012P\201s\270(m\311)\0" // Oregon Willamette Pass zone (meters)
    "\323\003_\371\2673601\0" // Oregon_North_FIPS_3601
    "\323\003_\371\2673601\366_I\032l\0" // Oregon_North_FIPS_3601_Feet_Intl
    "\323\003_\371\2673601\134t_I\032l\0" // Oregon_North_FIPS_3601_Ft_Intl
    "\323\003_S\362\2673602\0" // Oregon_South_FIPS_3602
    "\323\003_S\362\2673602\366_I\032l\0" // Oregon_South_FIPS_3602_Feet_Intl
    "\323\003_S\362\2673602\134t_I\032l\0" // Oregon_South_FIPS_3602_Ft_Intl
    "\323\003_St<ew\257\207L\232b\007t\366_I\032l\0" // Oregon_Statewide_Lambert_Feet_Intl
    "Or=s\030\334F LCC\0" // Orissa NSF LCC
    "Ow\210_(ft\204)\0" // Owen_(ftUS)
    "Ow\210_(m)\0" // Owen_(m)
    "Owyhe\207\017\212\014_\231_\250\134t_I\032l\0" // Owyhee_NAD_1983_2011_TM_Ft_Intl
    "Owyhe\207\017\212\014_\231_\376M\311\0" // Owyhee_NAD_1983_2011_TM_Meters
    "P2 Exc\0" // P2 Exc
    "P2 Exc-T9\0" // P2 Exc-T9
    "PA11\0" // PA11
    "PA\177_U\376Z\003\2072S\0" // PA11_UTM_Zone_2S
    "PA\177_U\376Z\003\2074N\0" // PA11_UTM_Zone_4N
    "PA\177_U\376Z\003\2075N\0" // PA11_UTM_Zone_5N
    "PACP00\0" // PACP00
    "PD/83\0" // PD/83
    "PD/\014\0113-deg>\012Ga\357s-Krug\007\2703\0" // PD/83 / 3-degree Gauss-Kruger zone 3
    "PD/\014\0113-deg>\012Ga\357s-Krug\007\2703\205E-N)\0" // PD/83 / 3-degree Gauss-Kruger zone 3 (E-N)
    "PD/\014\0113-deg>\012Ga\357s-Krug\007\2704\0" // PD/83 / 3-degree Gauss-Kruger zone 4
    "PD/\014\0113-deg>\012Ga\357s-Krug\007\2704\205E-N)\0" // PD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    "PD/\014_3_Deg>\207GK_Z\003\2073_E-N\0" // PD/83_3_Degree_GK_Zone_3_E-N
    "PD/\014_3_Deg>\207GK_Z\003\2074_E-N\0" // PD/83_3_Degree_GK_Zone_4_E-N
    "PD/\014_GK_Z\003\2073\0" // PD/83_GK_Zone_3
    "PD/\014_GK_Z\003\2074\0" // PD/83_GK_Zone_4
    "PDC_M\007c<\006\0" // PDC_Mercator
    "PDO{\225ve\200D<um \03193\0" // PDO Survey Datum 1993
    "PDO_\03193\0" // PDO_1993
    "PDO\21293_U\376Z\003\20739N\0" // PDO_1993_UTM_Zone_39N
    "PDO\21293_U\376Z\003\20740N\0" // PDO_1993_UTM_Zone_40N
    "PL-\03192\0" // PL-1992
    "PL-\2270/15\0" // PL-2000/15
    "PL-\2270/18\0" // PL-2000/18
    "PL-\2270/21\0" // PL-2000/21
    "PL-\2270/24\0" // PL-2000/24
    "PL-ETRF\2270\0" // PL-ETRF2000
    "PN 94)\0" // PN 94)
    "PN68\0" // PN68
    "PN68\011U\250\27027N\0" // PN68 / UTM zone 27N
    "PN68\011U\250\27028N\0" // PN68 / UTM zone 28N
    "PN68_U\376!\20727N\0" // PN68_UTM_zone_27N
    "PN68_U\376!\20728N\0" // PN68_UTM_zone_28N
    "PN84\0" // PN84
    "PN84\011U\250\27027N\0" // PN84 / UTM zone 27N
    "PN84\011U\250\27028N\0" // PN84 / UTM zone 28N
    "PN84_U\376!\20727N\0" // PN84_UTM_zone_27N
    "PN84_U\376!\20728N\0" // PN84_UTM_zone_28N
    "PNG94\0" // PNG94
    "PNG94\011PNGMG94\27054\0" // PNG94 / PNGMG94 zone 54
    "PNG94\011PNGMG94\27055\0" // PNG94 / PNGMG94 zone 55
    "PNG94\011PNGMG94\27056\0" // PNG94 / PNGMG94 zone 56
    "PNG94\011PNGMG94\27057\0" // PNG94 / PNGMG94 zone 57
    "PNG94\011PNGMG94\27058\0" // PNG94 / PNGMG94 zone 58
    "PNG94_PNGMG94_Z\003\20754\0" // PNG94_PNGMG94_Zone_54
    "PNG94_PNGMG94_Z\003\20755\0" // PNG94_PNGMG94_Zone_55
    "PNG94_PNGMG94_Z\003\20756\0" // PNG94_PNGMG94_Zone_56
    "POSG\245\0" // POSGAR
    "POSG\245 \2277\0" // POSGAR 2007
    "POSG\245 \2277\011\326ge\032\024\0301\0" // POSGAR 2007 / Argentina 1
    "POSG\245 \2277\011\326ge\032\024\0302\0" // POSGAR 2007 / Argentina 2
    "POSG\245 \2277\011\326ge\032\024\0303\0" // POSGAR 2007 / Argentina 3
    "POSG\245 \2277\011\326ge\032\024\0304\0" // POSGAR 2007 / Argentina 4
    "POSG\245 \2277\011\326ge\032\024\0305\0" // POSGAR 2007 / Argentina 5
    "POSG\245 \2277\011\326ge\032\024\0306\0" // POSGAR 2007 / Argentina 6
    "POSG\245 \2277\011\326ge\032\024\0307\0" // POSGAR 2007 / Argentina 7
    "POSG\245 \2277\011CABA \03319\0" // POSGAR 2007 / CABA 2019
    "POSG\245 \2277\011U\250\27019S\0" // POSGAR 2007 / UTM zone 19S
    "POSG\245 94\0" // POSGAR 94
    "POSG\245 94\011\326ge\032\024\0301\0" // POSGAR 94 / Argentina 1
    "POSG\245 94\011\326ge\032\024\0302\0" // POSGAR 94 / Argentina 2
    "POSG\245 94\011\326ge\032\024\0303\0" // POSGAR 94 / Argentina 3
    "POSG\245 94\011\326ge\032\024\0304\0" // POSGAR 94 / Argentina 4
    "POSG\245 94\011\326ge\032\024\0305\0" // POSGAR 94 / Argentina 5
    "POSG\245 94\011\326ge\032\024\0306\0" // POSGAR 94 / Argentina 6
    "POSG\245 94\011\326ge\032\024\0307\0" // POSGAR 94 / Argentina 7
    "POSG\245 98\0" // POSGAR 98
    "POSG\245 98\011\326ge\032\024\0301\0" // POSGAR 98 / Argentina 1
    "POSG\245 98\011\326ge\032\024\0302\0" // POSGAR 98 / Argentina 2
    "POSG\245 98\011\326ge\032\024\0303\0" // POSGAR 98 / Argentina 3
    "POSG\245 98\011\326ge\032\024\0304\0" // POSGAR 98 / Argentina 4
    "POSG\245 98\011\326ge\032\024\0305\0" // POSGAR 98 / Argentina 5
    "POSG\245 98\011\326ge\032\024\0306\0" // POSGAR 98 / Argentina 6
    "POSG\245 98\011\326ge\032\024\0307\0" // POSGAR 98 / Argentina 7
    "POSG\245_\03194\0" // POSGAR_1994
    "POSG\245\21294_\326ge\032\024\253Z\003\207\0" // POSGAR_1994_Argentina_Zone_
    "POSG\245_\03198\0" // POSGAR_1998
    "POSG\245\21298_\326ge\032\024\253Z\003\207\0" // POSGAR_1998_Argentina_Zone_
    "POSG\245_\2277\0" // POSGAR_2007
    "POSG\245_\2277_\326ge\032\024\253Z\003\207\0" // POSGAR_2007_Argentina_Zone_
    "POSG\245_\2277\374ABA_\03319\0" // POSGAR_2007_CABA_2019
    "POSG\245_\2277_U\376!\20719S\0" // POSGAR_2007_UTM_zone_19S
    "P|92\0" // PRS92
    "P|92\011Ph\372ipp\024\242\2701\0" // PRS92 / Philippines zone 1
    "P|92\011Ph\372ipp\024\242\2702\0" // PRS92 / Philippines zone 2
    "P|92\011Ph\372ipp\024\242\2703\0" // PRS92 / Philippines zone 3
    "P|92\011Ph\372ipp\024\242\2704\0" // PRS92 / Philippines zone 4
    "P|92\011Ph\372ipp\024\242\2705\0" // PRS92 / Philippines zone 5
    "P|_\03192\0" // PRS_1992
    "P|\21292_Ph\372ipp\024\242_Z\003\207\0" // PRS_1992_Philippines_Zone_
    "\236\01656\0" // PSAD56
    "\236\01656\011ICN Reg\321\026\0" // PSAD56 / ICN Regional
    "\236\01656\011P\007u c\365\223!e\0" // PSAD56 / Peru central zone
    "\236\01656\011P\007u e\315!e\0" // PSAD56 / Peru east zone
    "\236\01656\011P\007u w\275!e\0" // PSAD56 / Peru west zone
    "\236\01656\011U\250\27017N\0" // PSAD56 / UTM zone 17N
    "\236\01656\011U\250\27017S\0" // PSAD56 / UTM zone 17S
    "\236\01656\011U\250\27018N\0" // PSAD56 / UTM zone 18N
    "\236\01656\011U\250\27018S\0" // PSAD56 / UTM zone 18S
    "\236\01656\011U\250\27019N\0" // PSAD56 / UTM zone 19N
    "\236\01656\011U\250\27019S\0" // PSAD56 / UTM zone 19S
    "\236\01656\011U\250\270\033N\0" // PSAD56 / UTM zone 20N
    "\236\01656\011U\250\270\033S\0" // PSAD56 / UTM zone 20S
    "\236\01656\011U\250\27021N\0" // PSAD56 / UTM zone 21N
    "\236\01656\011U\250\27021S\0" // PSAD56 / UTM zone 21S
    "\236\01656\011U\250\27022S\0" // PSAD56 / UTM zone 22S
    "\236\016\21256_ICN_Reg\321\026\0" // PSAD_1956_ICN_Regional
    "\236\016\21256_U\376Z\003\207\0" // PSAD_1956_UTM_Zone_
    "\236D93\0" // PSD93
    "\236D93\011U\250\27039N\0" // PSD93 / UTM zone 39N
    "\236D93\011U\250\27040N\0" // PSD93 / UTM zone 40N
    "PTRA08\0" // PTRA08
    "PTRA08\011LAEA E\225ope\0" // PTRA08 / LAEA Europe
    "PTRA08\011LCC E\225ope\0" // PTRA08 / LCC Europe
    "PTRA08\011U\250\27025N\0" // PTRA08 / UTM zone 25N
    "PTRA08\011U\250\27026N\0" // PTRA08 / UTM zone 26N
    "PTRA08\011U\250\27028N\0" // PTRA08 / UTM zone 28N
    "PTRA08_LAEA_E\225ope\0" // PTRA08_LAEA_Europe
    "PTRA08_LCC_E\225ope\0" // PTRA08_LCC_Europe
    "PTRA08_U\376Z\003\20725N\0" // PTRA08_UTM_Zone_25N
    "PTRA08_U\376Z\003\20726N\0" // PTRA08_UTM_Zone_26N
    "PTRA08_U\376Z\003\20728N\0" // PTRA08_UTM_Zone_28N
    "PZ-90\0" // PZ-90
    "PZ-90.02\0" // PZ-90.02
    "PZ-90.11\0" // PZ-90.11
    "PZ_\03190\0" // PZ_1990
    "Pacif$\002Gu\232 \301NMI\002\237\0" // Pacific - Guam and NMI - onshore
    "Pacif$\002Gu\232 \301NMI e\315\252144\015\0" // Pacific - Guam and NMI east of 144°E
    "Pacif$\002Gu\232 \301NMI w\275\252144\015\0" // Pacific - Guam and NMI west of 144°E
    "Pacif$\002M#^\026l \352s\307Wak\226\237\0" // Pacific - Marshall Islands, Wake - onshore
    "Pacif$\002\204 \024t\007e\021s M#\335\030pl<e\0" // Pacific - US interests Mariana plate
    "Pacif$\002\204 \024t\007e\021s Pacif$ pl<e\0" // Pacific - US interests Pacific plate
    "Pacif$ D=a\021\007\333e\032\007 M\007c<\006\0" // Pacific Disaster Center Mercator
    "Pacif$ Oce\005\0" // Pacific Ocean
    "P\274\005g\0" // Padang
    "P\274\005g\205Jak#ta)\0" // Padang (Jakarta)
    "P\274\005g 1884\0" // Padang 1884
    "P\274\005g 1884\205Jak#ta)\0" // Padang 1884 (Jakarta)
    "P\274\005g_1884\0" // Padang_1884
    "P\274\005g_1884_Jak#ta\0" // Padang_1884_Jakarta
    "P\373\005g\333\201s\024i Gr\257\0" // Pahang Cassini Grid
    "Paki\021\005\0" // Pakistan
    "Paki\021\005\002e\315\25272\015\0" // Pakistan - east of 72°E
    "Paki\021\005\002n\006`\25235\00435'N\0" // Pakistan - north of 35°35'N
    "Paki\021\005\002\213\006\01266}72\015\0" // Pakistan - onshore 66°E to 72°E
    "Paki\021\005\002\213\006\012s\246\25228\004N\0" // Pakistan - onshore south of 28°N
    "Paki\021\005\002\213\006\012w\275\25266\015\0" // Pakistan - onshore west of 66°E
    "P\026e\021\024\012\03123\0" // Palestine 1923
    "P\026e\021\024\012\03123\011\325\370\240i @ Gr\257\0" // Palestine 1923 / Israeli CS Grid
    "P\026e\021\024\012\03123\011P\026e\021\024\012B\240t\0" // Palestine 1923 / Palestine Belt
    "P\026e\021\024\012\03123\011P\026e\021\024\012Gr\257\0" // Palestine 1923 / Palestine Grid
    "P\026e\021\024\012\03123\011P\026e\021\024\012Gr\257 modifi\273\0" // Palestine 1923 / Palestine Grid modified
    "P\026e\021\024\207\03123\0" // Palestine_1923
    "P\026e\021\024\207\03123_\325\370\240_@_Gr\257\0" // Palestine_1923_Israel_CS_Grid
    "P\026e\021\024\207\03123_P\026e\021\024\207\0" // Palestine_1923_Palestine_
    "P\232p\030C\201\0" // Pampa Cas
    "P\232p\030d\240\333a\021\372lo\0" // Pampa del Castillo
    "P\232p\030d\240\333a\021\372lo\011\326ge\032\024\0301\0" // Pampa del Castillo / Argentina 1
    "P\232p\030d\240\333a\021\372lo\011\326ge\032\024\0302\0" // Pampa del Castillo / Argentina 2
    "P\232p\030d\240\333a\021\372lo\011\326ge\032\024\0303\0" // Pampa del Castillo / Argentina 3
    "P\232p\253d\240\374a\021\372lo\0" // Pampa_del_Castillo
    "P\232p\253d\240\374a\021\372lo_\326ge\032\024\253\0" // Pampa_del_Castillo_Argentina_
    "P\005\232a\0" // Panama
    "P\005\232\034\237\0" // Panama - onshore
    "P\005\232a-C\247\222\03111\0" // Panama-Colon 1911
    "P\005\232a-C\247\222\031\177\011P\005\232\030L\232b\007t\0" // Panama-Colon 1911 / Panama Lambert
    "P\005\232a-C\247\222\031\177\011P\005\232\030P\247yc\003$\0" // Panama-Colon 1911 / Panama Polyconic
    "P\005\232a-C\247\003-\03111\0" // Panama-Colon-1911
    "P\005\232a-C\247\003\21211\0" // Panama-Colon_1911
    "P\005\232a-C\247\003\212\177_P\005\232\253L\232b\007t\0" // Panama-Colon_1911_Panama_Lambert
    "P\005\232a-C\247\003\212\177_P\005\232\253P\247yc\003$\0" // Panama-Colon_1911_Panama_Polyconic
    "P\005\232\303\241-C\247\303\263n\32011\0" // Panamá-Colón 1911
    "Papu\030\361 Gu\024ea\0" // Papua New Guinea
    "Papu\030\361 Gu\024e\034144\34550\015\0" // Papua New Guinea - 144°E to 150°E
    "Papu\030\361 Gu\024e\034150\34556\015\0" // Papua New Guinea - 150°E to 156°E
    "Papu\030\361 Gu\024e\034156\34562\015\0" // Papua New Guinea - 156°E to 162°E
    "Papu\030\361 Gu\024e\034e\315\252162\015\0" // Papua New Guinea - east of 162°E
    "Papu\030\361 Gu\024e\034w\275\252144\015\0" // Papua New Guinea - west of 144°E
    "Papu\030\361 Gu\024e\030Geod\036$ D<um \03194\0" // Papua New Guinea Geodetic Datum 1994
    "Papu\030\361 Gu\024e\030Map Gr\257\32094\27054\0" // Papua New Guinea Map Grid 1994 zone 54
    "Papu\030\361 Gu\024e\030Map Gr\257\32094\27055\0" // Papua New Guinea Map Grid 1994 zone 55
    "Papu\030\361 Gu\024e\030Map Gr\257\32094\27056\0" // Papua New Guinea Map Grid 1994 zone 56
    "Papu\030\361 Gu\024e\030Map Gr\257\32094\27057\0" // Papua New Guinea Map Grid 1994 zone 57
    "Papu\030\361 Gu\024e\030Map Gr\257\32094\27058\0" // Papua New Guinea Map Grid 1994 zone 58
    "Papu\253\361_Gu\024e\253Geod\036$_D<um_\03194\0" // Papua_New_Guinea_Geodetic_Datum_1994
    "P#\232\036rop_Z\206p_\03190\0" // Parametrop_Zemp_1990
    "P#\232\036r\200Z\206li \03190\0" // Parametry Zemli 1990
    "P#\232\036r\200Z\206li\32090.02\0" // Parametry Zemli 1990.02
    "P#\232\036r\200Z\206li\32090.11\0" // Parametry Zemli 1990.11
    "P#\232\036ry_Z\206li\21290.02\0" // Parametry_Zemli_1990.02
    "P#\232\036ry_Z\206li\21290.11\0" // Parametry_Zemli_1990.11
    "P#= RGS\0" // Paris RGS
    "P#=_Lab\006d\207Gr\257\0" // Paris_Laborde_Grid
    "P#=_RGS\0" // Paris_RGS
    "P#ke-V\007m\372l\321_(ft\204)\0" // Parke-Vermillion_(ftUS)
    "P#ke-V\007m\372l\321_(m)\0" // Parke-Vermillion_(m)
    "P#o_\250\0" // Paro_TM
    "Pa\021o_N#\024o_\2278\0" // Pasto_Narino_2008
    "P\206ag<^\240_\250\0" // Pemagatshel_TM
    "P\210\024sul# |O\0" // Peninsular RSO
    "P\210n\240l\333o\315L\232b\007t\333\003f\006m\223\2270\0" // Pennell Coast Lambert Conformal 2000
    "P\210nsylv\005\314@\313 \324!e\0" // Pennsylvania CS27 North zone
    "P\210nsylv\005\314@\313{\246!e\0" // Pennsylvania CS27 South zone
    "P\210nsylv\005i\253\371\2673701\0" // Pennsylvania_North_FIPS_3701
    "P\210nsylv\005i\253\371\2673701\366\0" // Pennsylvania_North_FIPS_3701_Feet
    "P\210nsylv\005i\253\371\2673701\134t_\204\0" // Pennsylvania_North_FIPS_3701_Ft_US
    "P\210nsylv\005i\253S\362\2673702\0" // Pennsylvania_South_FIPS_3702
    "P\210nsylv\005i\253S\362\2673702\366\0" // Pennsylvania_South_FIPS_3702_Feet
    "P\210nsylv\005i\253S\362\2673702\134t_\204\0" // Pennsylvania_South_FIPS_3702_Ft_US
    "Pep\024_\035_Pi\007ce\366\0" // Pepin_and_Pierce_Feet
    "Pep\024_\035_Pi\007c\207M\311\0" // Pepin_and_Pierce_Meters
    "P\007ak Rev=\273\333\201s\024i Gr\257\0" // Perak Revised Cassini Grid
    "P\007e\342\253R=#\026d\253\2277\0" // Pereira_Risaralda_2007
    "P\007r\025d\32050\011T\007r\012Ad\240i\012P\247#{t\007eog\370\230$\0" // Perroud 1950 / Terre Adelie Polar Stereographic
    "P\007r\025d\21250_T\007>_Ad\240i\207P\247#_St\007eog\370\230$\0" // Perroud_1950_Terre_Adelie_Polar_Stereographic
    "P\007ry_(ft\204)\0" // Perry_(ftUS)
    "P\007ry_(m)\0" // Perry_(m)
    "P\007`Coa\021\223Gr\257\0" // Perth Coastal Grid
    "P\007u\0" // Peru
    "P\007u\00278\21772\037\0" // Peru - 78°W to 72°W
    "P\007u\00279\21773\037\0" // Peru - 79°W to 73°W
    "P\007u\00284\21778\037\0" // Peru - 84°W to 78°W
    "P\007u\002e\315\25272\037\0" // Peru - east of 72°W
    "P\007u\002e\315\25273\037\0" // Peru - east of 73°W
    "P\007u\002w\275\25279\037\0" // Peru - west of 79°W
    "P\007u96\0" // Peru96
    "P\007u96\011U\250\27017S\0" // Peru96 / UTM zone 17S
    "P\007u96\011U\250\27018S\0" // Peru96 / UTM zone 18S
    "P\007u96\011U\250\27019S\0" // Peru96 / UTM zone 19S
    "P\007u96_U\376Z\003\207\0" // Peru96_UTM_Zone_
    "P\007u\374\365\026_Z\003e\0" // Peru_Central_Zone
    "P\007u_Ea\021_Z\003e\0" // Peru_East_Zone
    "P\007u_We\021_Z\003e\0" // Peru_West_Zone
    "P\036>ls\32072\0" // Petrels 1972
    "P\036>ls\32072\011T\007r\012Ad\240i\012P\247#{t\007eog\370\230$\0" // Petrels 1972 / Terre Adelie Polar Stereographic
    "P\036>ls\21272\0" // Petrels_1972
    "P\036>ls\21272_T\007>_Ad\240i\207P\247#_St\007eog\370\230$\0" // Petrels_1972_Terre_Adelie_Polar_Stereographic
    "P\036robr\201 M\007c<\006\0" // Petrobras Mercator
    "Ph\372ipp\024\012Ref\007\210c\012Sy\021\206 \03192\0" // Philippine Reference System 1992
    "Ph\372ipp\024\207Ref\007\210c\207Sy\021\206_\03192\0" // Philippine_Reference_System_1992
    "Ph\372ipp\024\242\0" // Philippines
    "Ph\372ipp\024\242\002\237\0" // Philippines - onshore
    "Ph\372ipp\024\242\002\077I\0" // Philippines - zone I
    "Ph\372ipp\024\242\002\077I \237\0" // Philippines - zone I onshore
    "Ph\372ipp\024\242\002\077II\0" // Philippines - zone II
    "Ph\372ipp\024\242\002\077II \237\0" // Philippines - zone II onshore
    "Ph\372ipp\024\242\002\077III\0" // Philippines - zone III
    "Ph\372ipp\024\242\002\077III \237\0" // Philippines - zone III onshore
    "Ph\372ipp\024\242\002\077IV\0" // Philippines - zone IV
    "Ph\372ipp\024\242\002\077IV \237\0" // Philippines - zone IV onshore
    "Ph\372ipp\024\242\002\077V\0" // Philippines - zone V
    "Ph\372ipp\024\242\002\077V \237\0" // Philippines - zone V onshore
    "Pho\210ix \352s\32066\0" // Phoenix Islands 1966
    "P$\013d\012l\201 Niev\242\32068\0" // Pico de las Nieves 1968
    "P$\013d\012l\201 Niev\242\32084\0" // Pico de las Nieves 1984
    "P$o_d\207L\201_Niev\242\0" // Pico_de_Las_Nieves
    "P$o_d\207l\201_Niev\242\21268\0" // Pico_de_las_Nieves_1968
    "Pike-W#r$k_(ft\204)\0" // Pike-Warrick_(ftUS)
    "Pike-W#r$k_(m)\0" // Pike-Warrick_(m)
    "P\372\350_Rock-Uki\373_\017\212\014_\231_LCC\134t_I\032l\0" // Pilot_Rock-Ukiah_NAD_1983_2011_LCC_Ft_Intl
    "P\372\350_Rock-Uki\373_\017\212\014_\231_LCC_M\311\0" // Pilot_Rock-Ukiah_NAD_1983_2011_LCC_Meters
    "Pim\030C\025\032\200\0771 E\315(ft)\0" // Pima County zone 1 East (ft)
    "Pim\030C\025\032\200\0772\333\365\026\205ft)\0" // Pima County zone 2 Central (ft)
    "Pim\030C\025\032\200\0773 W\275(ft)\0" // Pima County zone 3 West (ft)
    "Pim\030C\025\032\200\0774 Mt. L\206m\003\205ft)\0" // Pima County zone 4 Mt. Lemmon (ft)
    "P\024\005g\333\201s\024i Gr\257\0" // Pinang Cassini Grid
    "P\243ca\342n\002P\243ca\342n \352\0" // Pitcairn - Pitcairn Island
    "P\243ca\342n\32067\0" // Pitcairn 1967
    "P\243ca\342n\32067\011U\250\2709S\0" // Pitcairn 1967 / UTM zone 9S
    "P\243ca\342n \2276\0" // Pitcairn 2006
    "P\243ca\342n \2276\011P\243ca\342n \250 \2276\0" // Pitcairn 2006 / Pitcairn TM 2006
    "P\243ca\342n\21267\0" // Pitcairn_1967
    "P\243ca\342n\21267_U\376Z\003\2079S\0" // Pitcairn_1967_UTM_Zone_9S
    "P\243ca\342n_\2276\0" // Pitcairn_2006
    "P\243ca\342n_\2276_P\243ca\342n_\376\2276\0" // Pitcairn_2006_Pitcairn_TM_2006
    "P\243\222d\242 \310ig\242\0" // Piton des Neiges
    "Pl<\207C#>e\0" // Plate_Carree
    "Pl\242s= 1817\0" // Plessis 1817
    "Pl\242s=_1817\0" // Plessis_1817
    "Po\024t 58\0" // Point 58
    "Po\024t_58\0" // Point_58
    "Po\024t\012Ge\247ogi\012P\007r\025d\32050\0" // Pointe Geologie Perroud 1950
    "Po\024t\012Noi>\011U\250\27032S\0" // Pointe Noire / UTM zone 32S
    "Po\024t\207Ge\247ogi\207P\007r\025d\21250\0" // Pointe_Geologie_Perroud_1950
    "Po\024t\207Noi>\0" // Pointe_Noire
    "Po\024t\207Noi>_U\376Z\003\20732S\0" // Pointe_Noire_UTM_Zone_32S
    "Po\211\00216\224}\031\224\015\0" // Poland - 16.5°E to 19.5°E
    "Po\211\002\031\224}22\224\015\0" // Poland - 19.5°E to 22.5°E
    "Po\211\002e\315\25222\224\015\0" // Poland - east of 22.5°E
    "Po\211\002\237\0" // Poland - onshore
    "Po\211\002w\275\25216\224\015\0" // Poland - west of 16.5°E
    "Po\211\002\077I\0" // Poland - zone I
    "Po\211\002\077II\0" // Poland - zone II
    "Po\211\002\077III\0" // Poland - zone III
    "Po\211\002\077IV\0" // Poland - zone IV
    "Po\211\002\077V\0" // Poland - zone V
    "Po\211 @\2270\2705\0" // Poland CS2000 zone 5
    "Po\211 @\2270\2706\0" // Poland CS2000 zone 6
    "Po\211 @\2270\2707\0" // Poland CS2000 zone 7
    "Po\211 @\2270\2708\0" // Poland CS2000 zone 8
    "Po\211 @92\0" // Poland CS92
    "Po\211_@92\0" // Poland_CS92
    "P\247k\374\025\032y\366\0" // Polk_County_Feet
    "P\247k\374\025\032y_M\311\0" // Polk_County_Meters
    "P\247k\366\0" // Polk_Feet
    "P\247k_M\311\0" // Polk_Meters
    "Popay\005\374auc\253\2276\0" // Popayan_Cauca_2006
    "Popul# V=u\026=<i\222C|\0" // Popular Visualisation CRS
    "Popul# V=u\026=<i\222C|\011M\007c<\006\0" // Popular Visualisation CRS / Mercator
    "Popul# V=u\026=<i\222D<um\0" // Popular Visualisation Datum
    "Popul# V=u\026=<i\222M\007c<\006\0" // Popular Visualisation Mercator
    "Popul# V=u\026=<i\222Pseudo-M\007c<\006\0" // Popular Visualisation Pseudo-Mercator
    "Popul# V=u\026=<i\222S\271e\0" // Popular Visualisation Sphere
    "P\006t H\273\211 Gr\257 \03320\0" // Port Hedland Grid 2020
    "P\006tag\207C\025\032y\366\0" // Portage_County_Feet
    "P\006tag\207C\025\032y_M\311\0" // Portage_County_Meters
    "P\006tage\366\0" // Portage_Feet
    "P\006tag\207M\311\0" // Portage_Meters
    "P\006t\013S\005to\0" // Porto Santo
    "P\006t\013S\005to\011U\250\27028N\0" // Porto Santo / UTM zone 28N
    "P\006t\013S\005t\013\03136\0" // Porto Santo 1936
    "P\006t\013S\005t\013\03195\0" // Porto Santo 1995
    "P\006t\013S\005t\013\03195\011U\250\27028N\0" // Porto Santo 1995 / UTM zone 28N
    "P\006to_S\005to\21236\0" // Porto_Santo_1936
    "P\006to_S\005to\21236_U\376Z\003\20728N\0" // Porto_Santo_1936_UTM_Zone_28N
    "P\006to_S\005to\21295\0" // Porto_Santo_1995
    "P\006to_S\005to\21295_U\376Z\003\20728N\0" // Porto_Santo_1995_UTM_Zone_28N
    "P\006tug\026\002Az\202s\002w\275\252\375\037\0" // Portugal - Azores - west of 30°W
    "P\006tug\026\002Az\202s \375\21724\037\0" // Portugal - Azores 30°W to 24°W
    "P\006tug\026\002Az\202s\333\002\237\0" // Portugal - Azores C - onshore
    "P\006tug\026\002Az\202s E\002\237\0" // Portugal - Azores E - onshore
    "P\006tug\026\002Az\202s W\002\237\0" // Portugal - Azores W - onshore
    "P\006tug\026\002Az\202s \301M\274e\342a\0" // Portugal - Azores and Madeira
    "P\006tug\026\002M\274e\342\030\301EEZ E \25218\037\0" // Portugal - Madeira and EEZ E of 18°W
    "P\006tug\026\002M\274e\342\030#chip\240ag\013\237\0" // Portugal - Madeira archipelago onshore
    "P\006tug\026\002S\240vag\210s \237\0" // Portugal - Selvagens onshore
    "P\006tug\026\002ma\024\211\002\237\0" // Portugal - mainland - onshore
    "P\006tug\026_\25006\0" // Portugal_TM06
    "P\006tugu\223\25006\0" // Portugual TM06
    "P\006tugu\242\207N<\321\026_Gr\257\0" // Portuguese_National_Grid
    "Posey_(ft\204)\0" // Posey_(ftUS)
    "Posey_(m)\0" // Posey_(m)
    "Pos$\321\242 Geod\242$\201 \326ge\032\024\201\0" // Posiciones Geodesicas Argentinas
    "Pos$\321\242 Geod\242$\201 \326ge\032\024\201 \03194\0" // Posiciones Geodesicas Argentinas 1994
    "Pos$\321\242 Geod\242$\201 \326ge\032\024\201 \03198\0" // Posiciones Geodesicas Argentinas 1998
    "Pos$\321\242 Geod\242$\201 \326ge\032\024\201 \2277\0" // Posiciones Geodesicas Argentinas 2007
    "Pos$\321\242 Geod\303\251s$\201 \326ge\032\024\201\0" // Posiciones Geodésicas Argentinas
    "Pos$\321\242 Geod\303\251s$\201 \326ge\032\024\201 \0" // Posiciones Geodésicas Argentinas 
    "P\350sd\232 D<um/83\0" // Potsdam Datum/83
    "P\350sd\232_\03183\0" // Potsdam_1983
    "Pov\007ty_Bay\374\342cu\243\0" // Poverty_Bay_Circuit
    "P\370\342i\207C\243y-Brog\005_\017\212\014_\231_LCC\134t_I\032l\0" // Prairie_City-Brogan_NAD_1983_2011_LCC_Ft_Intl
    "P\370\342i\207C\243y-Brog\005_\017\212\014_\231_LCC_M\311\0" // Prairie_City-Brogan_NAD_1983_2011_LCC_Meters
    "Pr$\207C\025\032y\366\0" // Price_County_Feet
    "Pr$\207C\025\032y_M\311\0" // Price_County_Meters
    "Pr$e\366\0" // Price_Feet
    "Pr$\207M\311\0" // Price_Meters
    "Pr\024c\012Edw#d \352{t\007eog\370\230$\205ATS77)\0" // Prince Edward Island Stereographic (ATS77)
    "Pr\024c\207Edw#d_\352\0" // Prince_Edward_Island
    "Pr\024c\207Edw#d_\352_St\007eog\370\230$\0" // Prince_Edward_Island_Stereographic
    "Prov=\321\026{\246Am\007$\005 D<um\32056\0" // Provisional South American Datum 1956
    "Prov=\321\026_S_Am\007$\005\21256\0" // Provisional_S_American_1956
    "Pu\007t\013R$o\0" // Puerto Rico
    "Pu\007t\013R$o\002\237\0" // Puerto Rico - onshore
    "Pu\007t\013R$o\011St.\333roix\0" // Puerto Rico / St. Croix
    "Pu\007t\013R$o\011U\250\270\033N\0" // Puerto Rico / UTM zone 20N
    "Pu\007t\013R$\013@27\0" // Puerto Rico CS27
    "Pu\007t\013R$\013\272 27\0" // Puerto Rico SPCS 27
    "Pu\007t\013R$\013St<\012Pl\005\012@ \252\03127\0" // Puerto Rico State Plane CS of 1927
    "Pu\007to\374#>no_V$h\274\253\03311\0" // Puerto_Carreno_Vichada_2011
    "Pu\007to_R$o\0" // Puerto_Rico
    "Pu\007to_R$o_St<ePl\005\207Pu\007to_R$o\2675\0331\0" // Puerto_Rico_StatePlane_Puerto_Rico_FIPS_5201
    "Pu\007to_R$o_St<ePl\005\207V\342g\024_\352s_St\374roix\2675\0332\0" // Puerto_Rico_StatePlane_Virgin_Islands_St_Croix_FIPS_5202
    "Pu\007to_R$o_U\376Z\003\207\033N\0" // Puerto_Rico_UTM_Zone_20N
    "Pu\007to_R$o_V\342g\024_\352s\2675\0330\0" // Puerto_Rico_Virgin_Islands_FIPS_5200
    "Pu\007to_R$o_V\342g\024_\325ls\2675\0330\0" // Puerto_Rico_Virgin_Isls_FIPS_5200
    "Pulau_P\024\005g_\035_Seb\007\005g_P\007ai\0" // Pulau_Pinang_and_Seberang_Perai
    "Pulkov\013\03142\0" // Pulkovo 1942
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \3122E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 102E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \3125E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 105E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \3128E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 108E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \1771E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 111E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \1774E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 114E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \1777E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 117E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 120E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 123E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 123E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 126E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 126E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 129E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 129E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 132E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 132E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 135E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 135E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 138E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 138E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 141E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 141E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 144E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 144E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 147E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 147E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 150E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 150E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 153E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 153E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 156E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 156E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 159E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 159E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 162E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 162E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 165E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 165E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 168E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 168W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168W
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 171E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 171W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171W
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 174E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 174W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174W
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 177E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 177W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177W
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 180E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 180E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 18E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 18E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 21E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 21E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 24E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 24E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \313E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 27E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M \375E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 30E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 33E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 33E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 36E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 36E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 39E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 39E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 42E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 42E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 45E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 45E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 48E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 48E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 51E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 51E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 54E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 54E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 57E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 57E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 60E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 60E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 63E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 63E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 66E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 66E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 69E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 69E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 72E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 72E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 75E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 75E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 78E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 78E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 81E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 81E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 84E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 84E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 87E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 87E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 90E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 90E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 93E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 93E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 96E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 96E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\333M 99E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 99E
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27010\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 10
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27011\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 11
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27012\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 12
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27013\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 13
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27014\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 14
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27015\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 15
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27016\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 16
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27017\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 17
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27018\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 18
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27019\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 19
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27020\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 20
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27021\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 21
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27022\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 22
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27023\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 23
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27024\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 24
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27025\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 25
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27026\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 26
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27027\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 27
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27028\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 28
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27029\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 29
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27030\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 30
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27031\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 31
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27032\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 32
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27033\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 33
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27034\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 34
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27035\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 35
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27036\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 36
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27037\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 37
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27038\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 38
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27039\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 39
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27040\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 40
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27041\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 41
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27042\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 42
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27043\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 43
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27044\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 44
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27045\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 45
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27046\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 46
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27047\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 47
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27048\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 48
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27049\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 49
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27050\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 50
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27051\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 51
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27052\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 52
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27053\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 53
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27054\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 54
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27055\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 55
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27056\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 56
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27057\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 57
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27058\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 58
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27059\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 59
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\2706\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27060\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27061\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 61
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27062\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 62
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27063\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 63
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\27064\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 64
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\2707\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\2708\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03142\0113-deg>\012Ga\357s-Krug\007\2709\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 9
    "Pulkov\013\03142\011@63\270A1\0" // Pulkovo 1942 / CS63 zone A1
    "Pulkov\013\03142\011@63\270A2\0" // Pulkovo 1942 / CS63 zone A2
    "Pulkov\013\03142\011@63\270A3\0" // Pulkovo 1942 / CS63 zone A3
    "Pulkov\013\03142\011@63\270A4\0" // Pulkovo 1942 / CS63 zone A4
    "Pulkov\013\03142\011@63\270C0\0" // Pulkovo 1942 / CS63 zone C0
    "Pulkov\013\03142\011@63\270C1\0" // Pulkovo 1942 / CS63 zone C1
    "Pulkov\013\03142\011@63\270C2\0" // Pulkovo 1942 / CS63 zone C2
    "Pulkov\013\03142\011@63\270K2\0" // Pulkovo 1942 / CS63 zone K2
    "Pulkov\013\03142\011@63\270K3\0" // Pulkovo 1942 / CS63 zone K3
    "Pulkov\013\03142\011@63\270K4\0" // Pulkovo 1942 / CS63 zone K4
    "Pulkov\013\03142\011@63\270X1\0" // Pulkovo 1942 / CS63 zone X1
    "Pulkov\013\03142\011@63\270X2\0" // Pulkovo 1942 / CS63 zone X2
    "Pulkov\013\03142\011@63\270X3\0" // Pulkovo 1942 / CS63 zone X3
    "Pulkov\013\03142\011@63\270X4\0" // Pulkovo 1942 / CS63 zone X4
    "Pulkov\013\03142\011@63\270X5\0" // Pulkovo 1942 / CS63 zone X5
    "Pulkov\013\03142\011@63\270X6\0" // Pulkovo 1942 / CS63 zone X6
    "Pulkov\013\03142\011@63\270X7\0" // Pulkovo 1942 / CS63 zone X7
    "Pulkov\013\03142\011C\201p\335{e\030M\007c<\006\0" // Pulkovo 1942 / Caspian Sea Mercator
    "Pulkov\013\03142\011Ga\357s-Krug\007 \312N\0" // Pulkovo 1942 / Gauss-Kruger 10N
    "Pulkov\013\03142\011Ga\357s-Krug\007 11N\0" // Pulkovo 1942 / Gauss-Kruger 11N
    "Pulkov\013\03142\011Ga\357s-Krug\007 12N\0" // Pulkovo 1942 / Gauss-Kruger 12N
    "Pulkov\013\03142\011Ga\357s-Krug\007 13N\0" // Pulkovo 1942 / Gauss-Kruger 13N
    "Pulkov\013\03142\011Ga\357s-Krug\007 14N\0" // Pulkovo 1942 / Gauss-Kruger 14N
    "Pulkov\013\03142\011Ga\357s-Krug\007 15N\0" // Pulkovo 1942 / Gauss-Kruger 15N
    "Pulkov\013\03142\011Ga\357s-Krug\007 16N\0" // Pulkovo 1942 / Gauss-Kruger 16N
    "Pulkov\013\03142\011Ga\357s-Krug\007 17N\0" // Pulkovo 1942 / Gauss-Kruger 17N
    "Pulkov\013\03142\011Ga\357s-Krug\007 18N\0" // Pulkovo 1942 / Gauss-Kruger 18N
    "Pulkov\013\03142\011Ga\357s-Krug\007 19N\0" // Pulkovo 1942 / Gauss-Kruger 19N
    "Pulkov\013\03142\011Ga\357s-Krug\007 \033N\0" // Pulkovo 1942 / Gauss-Kruger 20N
    "Pulkov\013\03142\011Ga\357s-Krug\007 21N\0" // Pulkovo 1942 / Gauss-Kruger 21N
    "Pulkov\013\03142\011Ga\357s-Krug\007 22N\0" // Pulkovo 1942 / Gauss-Kruger 22N
    "Pulkov\013\03142\011Ga\357s-Krug\007 23N\0" // Pulkovo 1942 / Gauss-Kruger 23N
    "Pulkov\013\03142\011Ga\357s-Krug\007 24N\0" // Pulkovo 1942 / Gauss-Kruger 24N
    "Pulkov\013\03142\011Ga\357s-Krug\007 25N\0" // Pulkovo 1942 / Gauss-Kruger 25N
    "Pulkov\013\03142\011Ga\357s-Krug\007 26N\0" // Pulkovo 1942 / Gauss-Kruger 26N
    "Pulkov\013\03142\011Ga\357s-Krug\007 27N\0" // Pulkovo 1942 / Gauss-Kruger 27N
    "Pulkov\013\03142\011Ga\357s-Krug\007 28N\0" // Pulkovo 1942 / Gauss-Kruger 28N
    "Pulkov\013\03142\011Ga\357s-Krug\007 29N\0" // Pulkovo 1942 / Gauss-Kruger 29N
    "Pulkov\013\03142\011Ga\357s-Krug\007 2N\0" // Pulkovo 1942 / Gauss-Kruger 2N
    "Pulkov\013\03142\011Ga\357s-Krug\007 \375N\0" // Pulkovo 1942 / Gauss-Kruger 30N
    "Pulkov\013\03142\011Ga\357s-Krug\007 31N\0" // Pulkovo 1942 / Gauss-Kruger 31N
    "Pulkov\013\03142\011Ga\357s-Krug\007 32N\0" // Pulkovo 1942 / Gauss-Kruger 32N
    "Pulkov\013\03142\011Ga\357s-Krug\007 3N\0" // Pulkovo 1942 / Gauss-Kruger 3N
    "Pulkov\013\03142\011Ga\357s-Krug\007 4N\0" // Pulkovo 1942 / Gauss-Kruger 4N
    "Pulkov\013\03142\011Ga\357s-Krug\007 5N\0" // Pulkovo 1942 / Gauss-Kruger 5N
    "Pulkov\013\03142\011Ga\357s-Krug\007 6N\0" // Pulkovo 1942 / Gauss-Kruger 6N
    "Pulkov\013\03142\011Ga\357s-Krug\007 7N\0" // Pulkovo 1942 / Gauss-Kruger 7N
    "Pulkov\013\03142\011Ga\357s-Krug\007 8N\0" // Pulkovo 1942 / Gauss-Kruger 8N
    "Pulkov\013\03142\011Ga\357s-Krug\007 9N\0" // Pulkovo 1942 / Gauss-Kruger 9N
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M \3125E\0" // Pulkovo 1942 / Gauss-Kruger CM 105E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M \1771E\0" // Pulkovo 1942 / Gauss-Kruger CM 111E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M \1777E\0" // Pulkovo 1942 / Gauss-Kruger CM 117E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 123E\0" // Pulkovo 1942 / Gauss-Kruger CM 123E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 129E\0" // Pulkovo 1942 / Gauss-Kruger CM 129E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 135E\0" // Pulkovo 1942 / Gauss-Kruger CM 135E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 141E\0" // Pulkovo 1942 / Gauss-Kruger CM 141E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 147E\0" // Pulkovo 1942 / Gauss-Kruger CM 147E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 153E\0" // Pulkovo 1942 / Gauss-Kruger CM 153E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 159E\0" // Pulkovo 1942 / Gauss-Kruger CM 159E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 15E\0" // Pulkovo 1942 / Gauss-Kruger CM 15E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 165E\0" // Pulkovo 1942 / Gauss-Kruger CM 165E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 171E\0" // Pulkovo 1942 / Gauss-Kruger CM 171E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 171W\0" // Pulkovo 1942 / Gauss-Kruger CM 171W
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 177E\0" // Pulkovo 1942 / Gauss-Kruger CM 177E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 177W\0" // Pulkovo 1942 / Gauss-Kruger CM 177W
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 21E\0" // Pulkovo 1942 / Gauss-Kruger CM 21E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M \313E\0" // Pulkovo 1942 / Gauss-Kruger CM 27E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 33E\0" // Pulkovo 1942 / Gauss-Kruger CM 33E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 39E\0" // Pulkovo 1942 / Gauss-Kruger CM 39E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 45E\0" // Pulkovo 1942 / Gauss-Kruger CM 45E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 51E\0" // Pulkovo 1942 / Gauss-Kruger CM 51E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 57E\0" // Pulkovo 1942 / Gauss-Kruger CM 57E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 63E\0" // Pulkovo 1942 / Gauss-Kruger CM 63E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 69E\0" // Pulkovo 1942 / Gauss-Kruger CM 69E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 75E\0" // Pulkovo 1942 / Gauss-Kruger CM 75E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 81E\0" // Pulkovo 1942 / Gauss-Kruger CM 81E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 87E\0" // Pulkovo 1942 / Gauss-Kruger CM 87E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 93E\0" // Pulkovo 1942 / Gauss-Kruger CM 93E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 99E\0" // Pulkovo 1942 / Gauss-Kruger CM 99E
    "Pulkov\013\03142\011Ga\357s-Krug\007\333M 9E\0" // Pulkovo 1942 / Gauss-Kruger CM 9E
    "Pulkov\013\03142\011Ga\357s-Krug\007\27010\0" // Pulkovo 1942 / Gauss-Kruger zone 10
    "Pulkov\013\03142\011Ga\357s-Krug\007\27011\0" // Pulkovo 1942 / Gauss-Kruger zone 11
    "Pulkov\013\03142\011Ga\357s-Krug\007\27012\0" // Pulkovo 1942 / Gauss-Kruger zone 12
    "Pulkov\013\03142\011Ga\357s-Krug\007\27013\0" // Pulkovo 1942 / Gauss-Kruger zone 13
    "Pulkov\013\03142\011Ga\357s-Krug\007\27014\0" // Pulkovo 1942 / Gauss-Kruger zone 14
    "Pulkov\013\03142\011Ga\357s-Krug\007\27015\0" // Pulkovo 1942 / Gauss-Kruger zone 15
    "Pulkov\013\03142\011Ga\357s-Krug\007\27016\0" // Pulkovo 1942 / Gauss-Kruger zone 16
    "Pulkov\013\03142\011Ga\357s-Krug\007\27017\0" // Pulkovo 1942 / Gauss-Kruger zone 17
    "Pulkov\013\03142\011Ga\357s-Krug\007\27018\0" // Pulkovo 1942 / Gauss-Kruger zone 18
    "Pulkov\013\03142\011Ga\357s-Krug\007\27019\0" // Pulkovo 1942 / Gauss-Kruger zone 19
    "Pulkov\013\03142\011Ga\357s-Krug\007\2702\0" // Pulkovo 1942 / Gauss-Kruger zone 2
    "Pulkov\013\03142\011Ga\357s-Krug\007\27020\0" // Pulkovo 1942 / Gauss-Kruger zone 20
    "Pulkov\013\03142\011Ga\357s-Krug\007\27021\0" // Pulkovo 1942 / Gauss-Kruger zone 21
    "Pulkov\013\03142\011Ga\357s-Krug\007\27022\0" // Pulkovo 1942 / Gauss-Kruger zone 22
    "Pulkov\013\03142\011Ga\357s-Krug\007\27023\0" // Pulkovo 1942 / Gauss-Kruger zone 23
    "Pulkov\013\03142\011Ga\357s-Krug\007\27024\0" // Pulkovo 1942 / Gauss-Kruger zone 24
    "Pulkov\013\03142\011Ga\357s-Krug\007\27025\0" // Pulkovo 1942 / Gauss-Kruger zone 25
    "Pulkov\013\03142\011Ga\357s-Krug\007\27026\0" // Pulkovo 1942 / Gauss-Kruger zone 26
    "Pulkov\013\03142\011Ga\357s-Krug\007\27027\0" // Pulkovo 1942 / Gauss-Kruger zone 27
    "Pulkov\013\03142\011Ga\357s-Krug\007\27028\0" // Pulkovo 1942 / Gauss-Kruger zone 28
    "Pulkov\013\03142\011Ga\357s-Krug\007\27029\0" // Pulkovo 1942 / Gauss-Kruger zone 29
    "Pulkov\013\03142\011Ga\357s-Krug\007\2703\0" // Pulkovo 1942 / Gauss-Kruger zone 3
    "Pulkov\013\03142\011Ga\357s-Krug\007\27030\0" // Pulkovo 1942 / Gauss-Kruger zone 30
    "Pulkov\013\03142\011Ga\357s-Krug\007\27031\0" // Pulkovo 1942 / Gauss-Kruger zone 31
    "Pulkov\013\03142\011Ga\357s-Krug\007\27032\0" // Pulkovo 1942 / Gauss-Kruger zone 32
    "Pulkov\013\03142\011Ga\357s-Krug\007\2704\0" // Pulkovo 1942 / Gauss-Kruger zone 4
    "Pulkov\013\03142\011Ga\357s-Krug\007\2705\0" // Pulkovo 1942 / Gauss-Kruger zone 5
    "Pulkov\013\03142\011Ga\357s-Krug\007\2706\0" // Pulkovo 1942 / Gauss-Kruger zone 6
    "Pulkov\013\03142\011Ga\357s-Krug\007\2707\0" // Pulkovo 1942 / Gauss-Kruger zone 7
    "Pulkov\013\03142\011Ga\357s-Krug\007\2708\0" // Pulkovo 1942 / Gauss-Kruger zone 8
    "Pulkov\013\03142\011Ga\357s-Krug\007\2709\0" // Pulkovo 1942 / Gauss-Kruger zone 9
    "Pulkov\013\03142(56)\0" // Pulkovo 1942(56)
    "Pulkov\013\03142(57)\0" // Pulkovo 1942(57)
    "Pulkov\013\03142(58)\0" // Pulkovo 1942(58)
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\27010\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 10
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2703\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2703\205E-N)\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2704\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2704\205E-N)\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4 (E-N)
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2705\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2705\205E-N)\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5 (E-N)
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2706\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2707\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2708\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03142(58%3-deg>\012Ga\357s-Krug\007\2709\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 9
    "Pulkov\013\03142(58%GUGiK-80\0" // Pulkovo 1942(58) / GUGiK-80
    "Pulkov\013\03142(58%Ga\357s-Krug\007\2702\0" // Pulkovo 1942(58) / Gauss-Kruger zone 2
    "Pulkov\013\03142(58%Ga\357s-Krug\007\2702\205E-N)\0" // Pulkovo 1942(58) / Gauss-Kruger zone 2 (E-N)
    "Pulkov\013\03142(58%Ga\357s-Krug\007\2703\0" // Pulkovo 1942(58) / Gauss-Kruger zone 3
    "Pulkov\013\03142(58%Ga\357s-Krug\007\2703\205E-N)\0" // Pulkovo 1942(58) / Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(58%Ga\357s-Krug\007\2704\0" // Pulkovo 1942(58) / Gauss-Kruger zone 4
    "Pulkov\013\03142(58%Ga\357s-Krug\007\2705\0" // Pulkovo 1942(58) / Gauss-Kruger zone 5
    "Pulkov\013\03142(58%Po\211\270I\0" // Pulkovo 1942(58) / Poland zone I
    "Pulkov\013\03142(58%Po\211\270II\0" // Pulkovo 1942(58) / Poland zone II
    "Pulkov\013\03142(58%Po\211\270III\0" // Pulkovo 1942(58) / Poland zone III
    "Pulkov\013\03142(58%Po\211\270IV\0" // Pulkovo 1942(58) / Poland zone IV
    "Pulkov\013\03142(58%Po\211\270V\0" // Pulkovo 1942(58) / Poland zone V
    "Pulkov\013\03142(58%St\007eo70\0" // Pulkovo 1942(58) / Stereo70
    "Pulkov\013\03142(\014)\0" // Pulkovo 1942(83)
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2703\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2703\205E-N)\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2704\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2704\205E-N)\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4 (E-N)
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2705\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2705\205E-N)\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5 (E-N)
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2706\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2707\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03142(\014%3-deg>\012Ga\357s-Krug\007\2708\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03142(\014%Ga\357s Krug\007\2703\0" // Pulkovo 1942(83) / Gauss Kruger zone 3
    "Pulkov\013\03142(\014%Ga\357s Krug\007\2704\0" // Pulkovo 1942(83) / Gauss Kruger zone 4
    "Pulkov\013\03142(\014%Ga\357s Krug\007\2705\0" // Pulkovo 1942(83) / Gauss Kruger zone 5
    "Pulkov\013\03142(\014%Ga\357s-Krug\007\2702\0" // Pulkovo 1942(83) / Gauss-Kruger zone 2
    "Pulkov\013\03142(\014%Ga\357s-Krug\007\2702\205E-N)\0" // Pulkovo 1942(83) / Gauss-Kruger zone 2 (E-N)
    "Pulkov\013\03142(\014%Ga\357s-Krug\007\2703\0" // Pulkovo 1942(83) / Gauss-Kruger zone 3
    "Pulkov\013\03142(\014%Ga\357s-Krug\007\2703\205E-N)\0" // Pulkovo 1942(83) / Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(\014%Ga\357s-Krug\007\2704\0" // Pulkovo 1942(83) / Gauss-Kruger zone 4
    "Pulkov\013\03195\0" // Pulkovo 1995
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \3122E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 102E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \3125E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 105E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \3128E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 108E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \1771E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 111E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \1774E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 114E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \1777E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 117E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 120E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 123E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 123E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 126E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 126E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 129E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 129E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 132E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 132E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 135E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 135E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 138E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 138E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 141E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 141E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 144E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 144E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 147E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 147E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 150E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 150E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 153E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 153E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 156E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 156E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 159E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 159E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 162E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 162E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 165E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 165E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 168E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 168W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168W
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 171E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 171W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171W
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 174E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 174W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174W
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 177E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 177W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177W
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 180E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 180E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 18E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 18E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 21E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 21E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 24E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 24E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \313E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 27E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M \375E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 30E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 33E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 33E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 36E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 36E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 39E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 39E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 42E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 42E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 45E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 45E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 48E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 48E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 51E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 51E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 54E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 54E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 57E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 57E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 60E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 60E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 63E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 63E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 66E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 66E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 69E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 69E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 72E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 72E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 75E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 75E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 78E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 78E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 81E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 81E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 84E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 84E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 87E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 87E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 90E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 90E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 93E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 93E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 96E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 96E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\333M 99E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 99E
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27010\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 10
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27011\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 11
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27012\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 12
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27013\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 13
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27014\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 14
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27015\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 15
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27016\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 16
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27017\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 17
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27018\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 18
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27019\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 19
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27020\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 20
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27021\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 21
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27022\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 22
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27023\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 23
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27024\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 24
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27025\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 25
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27026\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 26
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27027\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 27
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27028\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 28
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27029\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 29
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27030\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 30
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27031\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 31
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27032\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 32
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27033\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 33
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27034\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 34
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27035\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 35
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27036\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 36
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27037\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 37
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27038\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 38
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27039\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 39
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27040\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 40
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27041\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 41
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27042\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 42
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27043\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 43
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27044\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 44
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27045\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 45
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27046\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 46
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27047\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 47
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27048\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 48
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27049\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 49
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27050\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 50
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27051\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 51
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27052\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 52
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27053\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 53
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27054\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 54
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27055\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 55
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27056\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 56
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27057\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 57
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27058\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 58
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27059\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 59
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\2706\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27060\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27061\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 61
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27062\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 62
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27063\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 63
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\27064\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 64
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\2707\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\2708\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03195\0113-deg>\012Ga\357s-Krug\007\2709\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 9
    "Pulkov\013\03195\011Ga\357s-Krug\007 \312N\0" // Pulkovo 1995 / Gauss-Kruger 10N
    "Pulkov\013\03195\011Ga\357s-Krug\007 11N\0" // Pulkovo 1995 / Gauss-Kruger 11N
    "Pulkov\013\03195\011Ga\357s-Krug\007 12N\0" // Pulkovo 1995 / Gauss-Kruger 12N
    "Pulkov\013\03195\011Ga\357s-Krug\007 13N\0" // Pulkovo 1995 / Gauss-Kruger 13N
    "Pulkov\013\03195\011Ga\357s-Krug\007 14N\0" // Pulkovo 1995 / Gauss-Kruger 14N
    "Pulkov\013\03195\011Ga\357s-Krug\007 15N\0" // Pulkovo 1995 / Gauss-Kruger 15N
    "Pulkov\013\03195\011Ga\357s-Krug\007 16N\0" // Pulkovo 1995 / Gauss-Kruger 16N
    "Pulkov\013\03195\011Ga\357s-Krug\007 17N\0" // Pulkovo 1995 / Gauss-Kruger 17N
    "Pulkov\013\03195\011Ga\357s-Krug\007 18N\0" // Pulkovo 1995 / Gauss-Kruger 18N
    "Pulkov\013\03195\011Ga\357s-Krug\007 19N\0" // Pulkovo 1995 / Gauss-Kruger 19N
    "Pulkov\013\03195\011Ga\357s-Krug\007 \033N\0" // Pulkovo 1995 / Gauss-Kruger 20N
    "Pulkov\013\03195\011Ga\357s-Krug\007 21N\0" // Pulkovo 1995 / Gauss-Kruger 21N
    "Pulkov\013\03195\011Ga\357s-Krug\007 22N\0" // Pulkovo 1995 / Gauss-Kruger 22N
    "Pulkov\013\03195\011Ga\357s-Krug\007 23N\0" // Pulkovo 1995 / Gauss-Kruger 23N
    "Pulkov\013\03195\011Ga\357s-Krug\007 24N\0" // Pulkovo 1995 / Gauss-Kruger 24N
    "Pulkov\013\03195\011Ga\357s-Krug\007 25N\0" // Pulkovo 1995 / Gauss-Kruger 25N
    "Pulkov\013\03195\011Ga\357s-Krug\007 26N\0" // Pulkovo 1995 / Gauss-Kruger 26N
    "Pulkov\013\03195\011Ga\357s-Krug\007 27N\0" // Pulkovo 1995 / Gauss-Kruger 27N
    "Pulkov\013\03195\011Ga\357s-Krug\007 28N\0" // Pulkovo 1995 / Gauss-Kruger 28N
    "Pulkov\013\03195\011Ga\357s-Krug\007 29N\0" // Pulkovo 1995 / Gauss-Kruger 29N
    "Pulkov\013\03195\011Ga\357s-Krug\007 \375N\0" // Pulkovo 1995 / Gauss-Kruger 30N
    "Pulkov\013\03195\011Ga\357s-Krug\007 31N\0" // Pulkovo 1995 / Gauss-Kruger 31N
    "Pulkov\013\03195\011Ga\357s-Krug\007 32N\0" // Pulkovo 1995 / Gauss-Kruger 32N
    "Pulkov\013\03195\011Ga\357s-Krug\007 4N\0" // Pulkovo 1995 / Gauss-Kruger 4N
    "Pulkov\013\03195\011Ga\357s-Krug\007 5N\0" // Pulkovo 1995 / Gauss-Kruger 5N
    "Pulkov\013\03195\011Ga\357s-Krug\007 6N\0" // Pulkovo 1995 / Gauss-Kruger 6N
    "Pulkov\013\03195\011Ga\357s-Krug\007 7N\0" // Pulkovo 1995 / Gauss-Kruger 7N
    "Pulkov\013\03195\011Ga\357s-Krug\007 8N\0" // Pulkovo 1995 / Gauss-Kruger 8N
    "Pulkov\013\03195\011Ga\357s-Krug\007 9N\0" // Pulkovo 1995 / Gauss-Kruger 9N
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M \3125E\0" // Pulkovo 1995 / Gauss-Kruger CM 105E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M \1771E\0" // Pulkovo 1995 / Gauss-Kruger CM 111E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M \1777E\0" // Pulkovo 1995 / Gauss-Kruger CM 117E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 123E\0" // Pulkovo 1995 / Gauss-Kruger CM 123E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 129E\0" // Pulkovo 1995 / Gauss-Kruger CM 129E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 135E\0" // Pulkovo 1995 / Gauss-Kruger CM 135E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 141E\0" // Pulkovo 1995 / Gauss-Kruger CM 141E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 147E\0" // Pulkovo 1995 / Gauss-Kruger CM 147E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 153E\0" // Pulkovo 1995 / Gauss-Kruger CM 153E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 159E\0" // Pulkovo 1995 / Gauss-Kruger CM 159E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 165E\0" // Pulkovo 1995 / Gauss-Kruger CM 165E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 171E\0" // Pulkovo 1995 / Gauss-Kruger CM 171E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 171W\0" // Pulkovo 1995 / Gauss-Kruger CM 171W
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 177E\0" // Pulkovo 1995 / Gauss-Kruger CM 177E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 177W\0" // Pulkovo 1995 / Gauss-Kruger CM 177W
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 21E\0" // Pulkovo 1995 / Gauss-Kruger CM 21E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M \313E\0" // Pulkovo 1995 / Gauss-Kruger CM 27E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 33E\0" // Pulkovo 1995 / Gauss-Kruger CM 33E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 39E\0" // Pulkovo 1995 / Gauss-Kruger CM 39E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 45E\0" // Pulkovo 1995 / Gauss-Kruger CM 45E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 51E\0" // Pulkovo 1995 / Gauss-Kruger CM 51E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 57E\0" // Pulkovo 1995 / Gauss-Kruger CM 57E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 63E\0" // Pulkovo 1995 / Gauss-Kruger CM 63E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 69E\0" // Pulkovo 1995 / Gauss-Kruger CM 69E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 75E\0" // Pulkovo 1995 / Gauss-Kruger CM 75E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 81E\0" // Pulkovo 1995 / Gauss-Kruger CM 81E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 87E\0" // Pulkovo 1995 / Gauss-Kruger CM 87E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 93E\0" // Pulkovo 1995 / Gauss-Kruger CM 93E
    "Pulkov\013\03195\011Ga\357s-Krug\007\333M 99E\0" // Pulkovo 1995 / Gauss-Kruger CM 99E
    "Pulkov\013\03195\011Ga\357s-Krug\007\27010\0" // Pulkovo 1995 / Gauss-Kruger zone 10
    "Pulkov\013\03195\011Ga\357s-Krug\007\27011\0" // Pulkovo 1995 / Gauss-Kruger zone 11
    "Pulkov\013\03195\011Ga\357s-Krug\007\27012\0" // Pulkovo 1995 / Gauss-Kruger zone 12
    "Pulkov\013\03195\011Ga\357s-Krug\007\27013\0" // Pulkovo 1995 / Gauss-Kruger zone 13
    "Pulkov\013\03195\011Ga\357s-Krug\007\27014\0" // Pulkovo 1995 / Gauss-Kruger zone 14
    "Pulkov\013\03195\011Ga\357s-Krug\007\27015\0" // Pulkovo 1995 / Gauss-Kruger zone 15
    "Pulkov\013\03195\011Ga\357s-Krug\007\27016\0" // Pulkovo 1995 / Gauss-Kruger zone 16
    "Pulkov\013\03195\011Ga\357s-Krug\007\27017\0" // Pulkovo 1995 / Gauss-Kruger zone 17
    "Pulkov\013\03195\011Ga\357s-Krug\007\27018\0" // Pulkovo 1995 / Gauss-Kruger zone 18
    "Pulkov\013\03195\011Ga\357s-Krug\007\27019\0" // Pulkovo 1995 / Gauss-Kruger zone 19
    "Pulkov\013\03195\011Ga\357s-Krug\007\27020\0" // Pulkovo 1995 / Gauss-Kruger zone 20
    "Pulkov\013\03195\011Ga\357s-Krug\007\27021\0" // Pulkovo 1995 / Gauss-Kruger zone 21
    "Pulkov\013\03195\011Ga\357s-Krug\007\27022\0" // Pulkovo 1995 / Gauss-Kruger zone 22
    "Pulkov\013\03195\011Ga\357s-Krug\007\27023\0" // Pulkovo 1995 / Gauss-Kruger zone 23
    "Pulkov\013\03195\011Ga\357s-Krug\007\27024\0" // Pulkovo 1995 / Gauss-Kruger zone 24
    "Pulkov\013\03195\011Ga\357s-Krug\007\27025\0" // Pulkovo 1995 / Gauss-Kruger zone 25
    "Pulkov\013\03195\011Ga\357s-Krug\007\27026\0" // Pulkovo 1995 / Gauss-Kruger zone 26
    "Pulkov\013\03195\011Ga\357s-Krug\007\27027\0" // Pulkovo 1995 / Gauss-Kruger zone 27
    "Pulkov\013\03195\011Ga\357s-Krug\007\27028\0" // Pulkovo 1995 / Gauss-Kruger zone 28
    "Pulkov\013\03195\011Ga\357s-Krug\007\27029\0" // Pulkovo 1995 / Gauss-Kruger zone 29
    "Pulkov\013\03195\011Ga\357s-Krug\007\27030\0" // Pulkovo 1995 / Gauss-Kruger zone 30
    "Pulkov\013\03195\011Ga\357s-Krug\007\27031\0" // Pulkovo 1995 / Gauss-Kruger zone 31
    "Pulkov\013\03195\011Ga\357s-Krug\007\27032\0" // Pulkovo 1995 / Gauss-Kruger zone 32
    "Pulkov\013\03195\011Ga\357s-Krug\007\2704\0" // Pulkovo 1995 / Gauss-Kruger zone 4
    "Pulkov\013\03195\011Ga\357s-Krug\007\2705\0" // Pulkovo 1995 / Gauss-Kruger zone 5
    "Pulkov\013\03195\011Ga\357s-Krug\007\2706\0" // Pulkovo 1995 / Gauss-Kruger zone 6
    "Pulkov\013\03195\011Ga\357s-Krug\007\2707\0" // Pulkovo 1995 / Gauss-Kruger zone 7
    "Pulkov\013\03195\011Ga\357s-Krug\007\2708\0" // Pulkovo 1995 / Gauss-Kruger zone 8
    "Pulkov\013\03195\011Ga\357s-Krug\007\2709\0" // Pulkovo 1995 / Gauss-Kruger zone 9
    "Pulkovo_\0" // Pulkovo_
    "Pulkovo\21242\0" // Pulkovo_1942
    "Pulkovo\21242_3_Deg>\207GK_\0" // Pulkovo_1942_3_Degree_GK_
    "Pulkovo\21242_3_Deg>\207GK\374M_\0" // Pulkovo_1942_3_Degree_GK_CM_
    "Pulkovo\21242_3_Deg>\207GK_Z\003\207\0" // Pulkovo_1942_3_Degree_GK_Zone_
    "Pulkovo\21242_Adj_\0" // Pulkovo_1942_Adj_
    "Pulkovo\21242_Adj\21258\0" // Pulkovo_1942_Adj_1958
    "Pulkovo\21242_Adj\21258_3_Deg>\207GK_Z\003\207\0" // Pulkovo_1942_Adj_1958_3_Degree_GK_Zone_
    "Pulkovo\21242_Adj\21258_GK_Z\003\207\0" // Pulkovo_1942_Adj_1958_GK_Zone_
    "Pulkovo\21242_Adj\21258_Po\211_Z\003\207\0" // Pulkovo_1942_Adj_1958_Poland_Zone_
    "Pulkovo\21242_Adj_\03183\0" // Pulkovo_1942_Adj_1983
    "Pulkovo\21242_Adj\212\014_3_Deg>\207GK_Z\003\207\0" // Pulkovo_1942_Adj_1983_3_Degree_GK_Zone_
    "Pulkovo\21242_@63_\0" // Pulkovo_1942_CS63_
    "Pulkovo\21242_GK_Z\003\207\0" // Pulkovo_1942_GK_Zone_
    "Pulkovo\21242_Ga\357s-Krug\007\374M_\0" // Pulkovo_1942_Gauss-Kruger_CM_
    "Pulkovo\21295\0" // Pulkovo_1995
    "Pulkovo\21295_3_Deg>\207GK_\0" // Pulkovo_1995_3_Degree_GK_
    "Pulkovo\21295_3_Deg>\207GK\374M_\0" // Pulkovo_1995_3_Degree_GK_CM_
    "Pulkovo\21295_3_Deg>\207GK_Z\003\207\0" // Pulkovo_1995_3_Degree_GK_Zone_
    "Pulkovo\21295_GK_Z\003\207\0" // Pulkovo_1995_GK_Zone_
    "Pulkovo\21295_Ga\357s-Krug\007\374M_\0" // Pulkovo_1995_Gauss-Kruger_CM_
    "Punakh\253\250\0" // Punakha_TM
    "Punjab \334F LCC\0" // Punjab NSF LCC
    "QND95\0" // QND95
    "QND95\011Q<# N<\321\223Gr\257\0" // QND95 / Qatar National Grid
    "QND\21295\0" // QND_1995
    "QND\21295_Q<#_N<\321\026_Gr\257\0" // QND_1995_Qatar_National_Grid
    "Q<#\0" // Qatar
    "Q<#\002\237\0" // Qatar - onshore
    "Q<#\32048\0" // Qatar 1948
    "Q<#\32048\011Q<# Gr\257\0" // Qatar 1948 / Qatar Grid
    "Q<#\32074\0" // Qatar 1974
    "Q<#\32074\011Q<# N<\321\223Gr\257\0" // Qatar 1974 / Qatar National Grid
    "Q<# N<\321\223D<um\32095\0" // Qatar National Datum 1995
    "Q<# Pl\005\012@\0" // Qatar Plane CS
    "Q<#\21248\0" // Qatar_1948
    "Q<#\21248_Q<#_Gr\257\0" // Qatar_1948_Qatar_Grid
    "Q<#\21274\0" // Qatar_1974
    "Q\006noq\0" // Qornoq
    "Q\006noq \03127\0" // Qornoq 1927
    "Q\006noq\320\313\011G>\210\211\2701 ea\021\0" // Qornoq 1927 / Greenland zone 1 east
    "Q\006noq\320\313\011G>\210\211\2702 ea\021\0" // Qornoq 1927 / Greenland zone 2 east
    "Q\006noq\320\313\011G>\210\211\2702 we\021\0" // Qornoq 1927 / Greenland zone 2 west
    "Q\006noq\320\313\011G>\210\211\2703 ea\021\0" // Qornoq 1927 / Greenland zone 3 east
    "Q\006noq\320\313\011G>\210\211\2703 we\021\0" // Qornoq 1927 / Greenland zone 3 west
    "Q\006noq\320\313\011G>\210\211\2704 ea\021\0" // Qornoq 1927 / Greenland zone 4 east
    "Q\006noq\320\313\011G>\210\211\2704 we\021\0" // Qornoq 1927 / Greenland zone 4 west
    "Q\006noq\320\313\011G>\210\211\2705 we\021\0" // Qornoq 1927 / Greenland zone 5 west
    "Q\006noq\320\313\011G>\210\211\2706 we\021\0" // Qornoq 1927 / Greenland zone 6 west
    "Q\006noq\320\313\011G>\210\211\2707 we\021\0" // Qornoq 1927 / Greenland zone 7 west
    "Q\006noq\320\313\011G>\210\211\2708 ea\021\0" // Qornoq 1927 / Greenland zone 8 east
    "Q\006noq\320\313\011U\250\27022N\0" // Qornoq 1927 / UTM zone 22N
    "Q\006noq\320\313\011U\250\27023N\0" // Qornoq 1927 / UTM zone 23N
    "Q\006noq_\03127\0" // Qornoq_1927
    "Q\006noq\212\313_U\376Z\003\20722N\0" // Qornoq_1927_UTM_Zone_22N
    "Q\006noq\212\313_U\376Z\003\20723N\0" // Qornoq_1927_UTM_Zone_23N
    "Quebec Alb\220 Proje\317\321\0" // Quebec Albers Projection
    "Quebec L\232b\007t Proje\317\321\0" // Quebec Lambert Projection
    "Quebec_Alb\220\0" // Quebec_Albers
    "Quebec_L\232b\007t\0" // Quebec_Lambert
    "Quibdo\374hoco_\03311\0" // Quibdo_Choco_2011
    "Qu\024i-Huao\0" // Quini-Huao
    "Qui\303\261i-Huao\0" // Quiñi-Huao
    "RD B\242s\240\0" // RD Bessel
    "RD/83\0" // RD/83
    "RD/\014\0113-deg>\012Ga\357s-Krug\007\2704\0" // RD/83 / 3-degree Gauss-Kruger zone 4
    "RD/\014\0113-deg>\012Ga\357s-Krug\007\2704\205E-N)\0" // RD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    "RD/\014\0113-deg>\012Ga\357s-Krug\007\2705\0" // RD/83 / 3-degree Gauss-Kruger zone 5
    "RD/\014\0113-deg>\012Ga\357s-Krug\007\2705\205E-N)\0" // RD/83 / 3-degree Gauss-Kruger zone 5 (E-N)
    "RD/\014_3_Deg>\207GK_Z\003\2074_E-N\0" // RD/83_3_Degree_GK_Zone_4_E-N
    "RD/\014_3_Deg>\207GK_Z\003\2075_E-N\0" // RD/83_3_Degree_GK_Zone_5_E-N
    "RD/\014_GK_Z\003\2074\0" // RD/83_GK_Zone_4
    "RD/\014_GK_Z\003\2075\0" // RD/83_GK_Zone_5
    "RDN\2278\0" // RDN2008
    "RDN\2278\011It\026\200\336E-N)\0" // RDN2008 / Italy zone (E-N)
    "RDN\2278\011It\026\200\336N-E)\0" // RDN2008 / Italy zone (N-E)
    "RDN\2278\011U\250\27032N\0" // RDN2008 / UTM zone 32N
    "RDN\2278\011U\250\27032N\205N-E)\0" // RDN2008 / UTM zone 32N (N-E)
    "RDN\2278\011U\250\27033N\0" // RDN2008 / UTM zone 33N
    "RDN\2278\011U\250\27033N\205N-E)\0" // RDN2008 / UTM zone 33N (N-E)
    "RDN\2278\011U\250\27034N\0" // RDN2008 / UTM zone 34N
    "RDN\2278\011U\250\27034N\205N-E)\0" // RDN2008 / UTM zone 34N (N-E)
    "RDN\2278\011Z\003\01212\205E-N)\0" // RDN2008 / Zone 12 (E-N)
    "RDN\2278\011Z\003\01212\205N-E)\0" // RDN2008 / Zone 12 (N-E)
    "RDN\2278_\0" // RDN2008_
    "RD_\361\0" // RD_New
    "RD_O\316\0" // RD_Old
    "REDGEOMIN\0" // REDGEOMIN
    "REDGEOMIN\011U\250\27012S\0" // REDGEOMIN / UTM zone 12S
    "REDGEOMIN\011U\250\27018S\0" // REDGEOMIN / UTM zone 18S
    "REDGEOMIN\011U\250\27019S\0" // REDGEOMIN / UTM zone 19S
    "REDGEOMIN_U\376!\20712S\0" // REDGEOMIN_UTM_zone_12S
    "REDGEOMIN_U\376!\20718S\0" // REDGEOMIN_UTM_zone_18S
    "REDGEOMIN_U\376!\20719S\0" // REDGEOMIN_UTM_zone_19S
    "REGCAN95\0" // REGCAN95
    "REGCAN95\002LAEA\0" // REGCAN95 - LAEA
    "REGCAN95\002LCC\0" // REGCAN95 - LCC
    "REGCAN95\011LAEA E\225ope\0" // REGCAN95 / LAEA Europe
    "REGCAN95\011LCC E\225ope\0" // REGCAN95 / LCC Europe
    "REGCAN95\011U\250\27027N\0" // REGCAN95 / UTM zone 27N
    "REGCAN95\011U\250\27028N\0" // REGCAN95 / UTM zone 28N
    "REGCAN95_LAEA_E\225ope\0" // REGCAN95_LAEA_Europe
    "REGCAN95_LCC_E\225ope\0" // REGCAN95_LCC_Europe
    "REGCAN95_U\376Z\003\20727N\0" // REGCAN95_UTM_Zone_27N
    "REGCAN95_U\376Z\003\20728N\0" // REGCAN95_UTM_Zone_28N
    "REGVEN\011U\250\27018N\0" // REGVEN / UTM zone 18N
    "REGVEN\011U\250\27019N\0" // REGVEN / UTM zone 19N
    "REGVEN\011U\250\270\033N\0" // REGVEN / UTM zone 20N
    "REGVEN_U\376Z\003\20718N\0" // REGVEN_UTM_Zone_18N
    "REGVEN_U\376Z\003\20719N\0" // REGVEN_UTM_Zone_19N
    "REGVEN_U\376Z\003\207\033N\0" // REGVEN_UTM_Zone_20N
    "REPANGOL\0" // REPANGOL
    "RGAF09\0" // RGAF09
    "RGAF09\205l<-l\003)\0" // RGAF09 (lat-lon)
    "RGAF09\205l\003-l<)\0" // RGAF09 (lon-lat)
    "RGAF09\011U\250\270\033N\0" // RGAF09 / UTM zone 20N
    "RGAF09_(l\003-l<)\0" // RGAF09_(lon-lat)
    "RGAF09_U\376Z\003\207\033N\0" // RGAF09_UTM_Zone_20N
    "RGF93\0" // RGF93
    "RGF93 v1\0" // RGF93 v1
    "RGF93 v1\205l<-l\003)\0" // RGF93 v1 (lat-lon)
    "RGF93 v1\205l\003-l<)\0" // RGF93 v1 (lon-lat)
    "RGF93 v1\011CC42\0" // RGF93 v1 / CC42
    "RGF93 v1\011CC43\0" // RGF93 v1 / CC43
    "RGF93 v1\011CC44\0" // RGF93 v1 / CC44
    "RGF93 v1\011CC45\0" // RGF93 v1 / CC45
    "RGF93 v1\011CC46\0" // RGF93 v1 / CC46
    "RGF93 v1\011CC47\0" // RGF93 v1 / CC47
    "RGF93 v1\011CC48\0" // RGF93 v1 / CC48
    "RGF93 v1\011CC49\0" // RGF93 v1 / CC49
    "RGF93 v1\011CC50\0" // RGF93 v1 / CC50
    "RGF93 v1\011L\232b\007t-93\0" // RGF93 v1 / Lambert-93
    "RGF93 v2\0" // RGF93 v2
    "RGF93 v2\205l<-l\003)\0" // RGF93 v2 (lat-lon)
    "RGF93 v2\205l\003-l<)\0" // RGF93 v2 (lon-lat)
    "RGF93 v2\011CC42\0" // RGF93 v2 / CC42
    "RGF93 v2\011CC43\0" // RGF93 v2 / CC43
    "RGF93 v2\011CC44\0" // RGF93 v2 / CC44
    "RGF93 v2\011CC45\0" // RGF93 v2 / CC45
    "RGF93 v2\011CC46\0" // RGF93 v2 / CC46
    "RGF93 v2\011CC47\0" // RGF93 v2 / CC47
    "RGF93 v2\011CC48\0" // RGF93 v2 / CC48
    "RGF93 v2\011CC49\0" // RGF93 v2 / CC49
    "RGF93 v2\011CC50\0" // RGF93 v2 / CC50
    "RGF93 v2\011L\232b\007t-93\0" // RGF93 v2 / Lambert-93
    "RGF93 v2b\0" // RGF93 v2b
    "RGF93 v2b\205l<-l\003)\0" // RGF93 v2b (lat-lon)
    "RGF93 v2b\205l\003-l<)\0" // RGF93 v2b (lon-lat)
    "RGF93 v2b\011CC42\0" // RGF93 v2b / CC42
    "RGF93 v2b\011CC43\0" // RGF93 v2b / CC43
    "RGF93 v2b\011CC44\0" // RGF93 v2b / CC44
    "RGF93 v2b\011CC45\0" // RGF93 v2b / CC45
    "RGF93 v2b\011CC46\0" // RGF93 v2b / CC46
    "RGF93 v2b\011CC47\0" // RGF93 v2b / CC47
    "RGF93 v2b\011CC48\0" // RGF93 v2b / CC48
    "RGF93 v2b\011CC49\0" // RGF93 v2b / CC49
    "RGF93 v2b\011CC50\0" // RGF93 v2b / CC50
    "RGF93 v2b\011L\232b\007t-93\0" // RGF93 v2b / Lambert-93
    "RGF93_(l\003-l<)\0" // RGF93_(lon-lat)
    "RGFG95\0" // RGFG95
    "RGFG95\205l<-l\003)\0" // RGFG95 (lat-lon)
    "RGFG95\205l\003-l<)\0" // RGFG95 (lon-lat)
    "RGFG95\011U\250\27021N\0" // RGFG95 / UTM zone 21N
    "RGFG95\011U\250\27022N\0" // RGFG95 / UTM zone 22N
    "RGFG95_(l\003-l<)\0" // RGFG95_(lon-lat)
    "RGFG\21295\0" // RGFG_1995
    "RGFG\21295_U\37622N\0" // RGFG_1995_UTM_22N
    "RGFG\21295_U\376Z\003\20721N\0" // RGFG_1995_UTM_Zone_21N
    "RGF_\03193\0" // RGF_1993
    "RGF\21293_\0" // RGF_1993_
    "RGM04\0" // RGM04
    "RGM04\205l<-l\003)\0" // RGM04 (lat-lon)
    "RGM04\205l\003-l<)\0" // RGM04 (lon-lat)
    "RGM04\011U\250\27038S\0" // RGM04 / UTM zone 38S
    "RGM04_(l\003-l<)\0" // RGM04_(lon-lat)
    "RGM_\2274\0" // RGM_2004
    "RGM_\2274_U\376Z\003\20738S\0" // RGM_2004_UTM_Zone_38S
    "RGNC\0" // RGNC
    "RGNC \03191\0" // RGNC 1991
    "RGNC\32091\011L\232b\007t \361\333\026\273\003ia\0" // RGNC 1991 / Lambert New Caledonia
    "RGNC91\0" // RGNC91
    "RGNC91-93\0" // RGNC91-93
    "RGNC91-93\011L\232b\007t \361\333\026\273\003ia\0" // RGNC91-93 / Lambert New Caledonia
    "RGNC91-93\011U\250\27057S\0" // RGNC91-93 / UTM zone 57S
    "RGNC91-93\011U\250\27058S\0" // RGNC91-93 / UTM zone 58S
    "RGNC91-93\011U\250\27059S\0" // RGNC91-93 / UTM zone 59S
    "RGNC_\03191\0" // RGNC_1991
    "RGNC\21291-93\0" // RGNC_1991-93
    "RGNC\21291-93_U\376Z\003\207\0" // RGNC_1991-93_UTM_Zone_
    "RGNC\21291_93_L\232b\007t_\361\374\026\273\003ia\0" // RGNC_1991_93_Lambert_New_Caledonia
    "RGNC\21291_L\232b\007t_\361\374\026\273\003ia\0" // RGNC_1991_Lambert_New_Caledonia
    "RGPF\0" // RGPF
    "RGPF\011U\250\2705S\0" // RGPF / UTM zone 5S
    "RGPF\011U\250\2706S\0" // RGPF / UTM zone 6S
    "RGPF\011U\250\2707S\0" // RGPF / UTM zone 7S
    "RGPF\011U\250\2708S\0" // RGPF / UTM zone 8S
    "RGPF_U\376Z\003\2075S\0" // RGPF_UTM_Zone_5S
    "RGPF_U\376Z\003\2076S\0" // RGPF_UTM_Zone_6S
    "RGPF_U\376Z\003\2077S\0" // RGPF_UTM_Zone_7S
    "RGPF_U\376Z\003\2078S\0" // RGPF_UTM_Zone_8S
    "RGR92\0" // RGR92
    "RGR92\205l<-l\003)\0" // RGR92 (lat-lon)
    "RGR92\205l\003-l<)\0" // RGR92 (lon-lat)
    "RGR92\011U\250\27039S\0" // RGR92 / UTM zone 39S
    "RGR92\011U\250\27040S\0" // RGR92 / UTM zone 40S
    "RGR92_(l\003-l<)\0" // RGR92_(lon-lat)
    "RGRDC \2275\0" // RGRDC 2005
    "RGRDC \2275\011C\003g\013\250\27012\0" // RGRDC 2005 / Congo TM zone 12
    "RGRDC \2275\011C\003g\013\250\27014\0" // RGRDC 2005 / Congo TM zone 14
    "RGRDC \2275\011C\003g\013\250\27016\0" // RGRDC 2005 / Congo TM zone 16
    "RGRDC \2275\011C\003g\013\250\27018\0" // RGRDC 2005 / Congo TM zone 18
    "RGRDC \2275\011C\003g\013\250\27020\0" // RGRDC 2005 / Congo TM zone 20
    "RGRDC \2275\011C\003g\013\250\27022\0" // RGRDC 2005 / Congo TM zone 22
    "RGRDC \2275\011C\003g\013\250\27024\0" // RGRDC 2005 / Congo TM zone 24
    "RGRDC \2275\011C\003g\013\250\27026\0" // RGRDC 2005 / Congo TM zone 26
    "RGRDC \2275\011C\003g\013\250\27028\0" // RGRDC 2005 / Congo TM zone 28
    "RGRDC \2275\011C\003g\013\250\27030\0" // RGRDC 2005 / Congo TM zone 30
    "RGRDC \2275\011U\250\27033S\0" // RGRDC 2005 / UTM zone 33S
    "RGRDC \2275\011U\250\27034S\0" // RGRDC 2005 / UTM zone 34S
    "RGRDC \2275\011U\250\27035S\0" // RGRDC 2005 / UTM zone 35S
    "RGRDC_\2275\0" // RGRDC_2005
    "RGRDC_\2275\374\003go_\376Z\003\207\0" // RGRDC_2005_Congo_TM_Zone_
    "RGRDC_\2275_U\376Z\003\20733S\0" // RGRDC_2005_UTM_Zone_33S
    "RGRDC_\2275_U\376Z\003\20734S\0" // RGRDC_2005_UTM_Zone_34S
    "RGRDC_\2275_U\376Z\003\20735S\0" // RGRDC_2005_UTM_Zone_35S
    "RGR_\03192\0" // RGR_1992
    "RGR\21292_U\37639S\0" // RGR_1992_UTM_39S
    "RGR\21292_U\37640S\0" // RGR_1992_UTM_40S
    "RG\264M06\0" // RGSPM06
    "RG\264M06\205l<-l\003)\0" // RGSPM06 (lat-lon)
    "RG\264M06\205l\003-l<)\0" // RGSPM06 (lon-lat)
    "RG\264M06\011U\250\27021N\0" // RGSPM06 / UTM zone 21N
    "RG\264M06_(l\003-l<)\0" // RGSPM06_(lon-lat)
    "RG\264M_\2276\0" // RGSPM_2006
    "RG\264M_\2276_U\376Z\003\20721N\0" // RGSPM_2006_UTM_Zone_21N
    "RGTAAF07\0" // RGTAAF07
    "RGTAAF07\205l<-l\003)\0" // RGTAAF07 (lat-lon)
    "RGTAAF07\205l\003-l<)\0" // RGTAAF07 (lon-lat)
    "RGTAAF07\011T\007r\012Ad\240i\012P\247#{t\007eog\370\230$\0" // RGTAAF07 / Terre Adelie Polar Stereographic
    "RGTAAF07\011U\250\27037S\0" // RGTAAF07 / UTM zone 37S
    "RGTAAF07\011U\250\27038S\0" // RGTAAF07 / UTM zone 38S
    "RGTAAF07\011U\250\27039S\0" // RGTAAF07 / UTM zone 39S
    "RGTAAF07\011U\250\27040S\0" // RGTAAF07 / UTM zone 40S
    "RGTAAF07\011U\250\27041S\0" // RGTAAF07 / UTM zone 41S
    "RGTAAF07\011U\250\27042S\0" // RGTAAF07 / UTM zone 42S
    "RGTAAF07\011U\250\27043S\0" // RGTAAF07 / UTM zone 43S
    "RGTAAF07\011U\250\27044S\0" // RGTAAF07 / UTM zone 44S
    "RGTAAF07\011U\250\27053S\0" // RGTAAF07 / UTM zone 53S
    "RGTAAF07\011U\250\27054S\0" // RGTAAF07 / UTM zone 54S
    "RGTAAF07_(l\003-l<)\0" // RGTAAF07_(lon-lat)
    "RGTAAF07_T\007>_Ad\240i\207P\247#_St\007eog\370\230$\0" // RGTAAF07_Terre_Adelie_Polar_Stereographic
    "RGTAAF07_U\376Z\003\20753S\0" // RGTAAF07_UTM_Zone_53S
    "RGTAAF07_U\376Z\003\20754S\0" // RGTAAF07_UTM_Zone_54S
    "RGTAAF07_U\376!\207\0" // RGTAAF07_UTM_zone_
    "RGWF96\0" // RGWF96
    "RGWF96\205l<-l\003)\0" // RGWF96 (lat-lon)
    "RGWF96\205l\003-l<)\0" // RGWF96 (lon-lat)
    "RGWF96\011U\250\2701S\0" // RGWF96 / UTM zone 1S
    "RGWF96_(l\003-l<)\0" // RGWF96_(lon-lat)
    "RGWF96_U\376Z\003\2071S\0" // RGWF96_UTM_Zone_1S
    "ROU-\234MS\0" // ROU-USAMS
    "RRAF \03191\0" // RRAF 1991
    "RRAF\32091\011U\250\270\033N\0" // RRAF 1991 / UTM zone 20N
    "RRAF_\03191\0" // RRAF_1991
    "RRAF\21291_U\376\033N\0" // RRAF_1991_UTM_20N
    "|AO13\0" // RSAO13
    "|AO13\011\250 12{E\0" // RSAO13 / TM 12 SE
    "|AO13\011U\250\27032S\0" // RSAO13 / UTM zone 32S
    "|AO13\011U\250\27033S\0" // RSAO13 / UTM zone 33S
    "|AO13\011U\250\27034S\0" // RSAO13 / UTM zone 34S
    "|AO13_\37612_SE\0" // RSAO13_TM_12_SE
    "|AO13_U\376Z\003\20732S\0" // RSAO13_UTM_Zone_32S
    "|AO13_U\376Z\003\20733S\0" // RSAO13_UTM_Zone_33S
    "|AO13_U\376Z\003\20734S\0" // RSAO13_UTM_Zone_34S
    "|O_B\006neo\374ha\024s\0" // RSO_Borneo_Chains
    "|O_B\006neo\366\0" // RSO_Borneo_Feet
    "|O_B\006neo_M\311\0" // RSO_Borneo_Meters
    "|O_M\026ay\253Cha\024s\0" // RSO_Malaya_Chains
    "|O_|O_M\026aya\0" // RSO_RSO_Malaya
    "|O_|O_M\026ay\253ChSe#s\03122trunc\0" // RSO_RSO_Malaya_ChSears1922trunc
    "|O_S#awak_LSD_(m)\0" // RSO_Sarawak_LSD_(m)
    "|RGD\2270\0" // RSRGD2000
    "|RGD\2270\011BCLC\2270\0" // RSRGD2000 / BCLC2000
    "|RGD\2270\011DGLC\2270\0" // RSRGD2000 / DGLC2000
    "|RGD\2270\011MSLC\2270\0" // RSRGD2000 / MSLC2000
    "|RGD\2270\011PCLC\2270\0" // RSRGD2000 / PCLC2000
    "|RGD\2270\011|\236\2270\0" // RSRGD2000 / RSPS2000
    "|RGD\2270_BCLC\2270\0" // RSRGD2000_BCLC2000
    "|RGD\2270_DGLC\2270\0" // RSRGD2000_DGLC2000
    "|RGD\2270_MSLC\2270\0" // RSRGD2000_MSLC2000
    "|RGD\2270_PCLC\2270\0" // RSRGD2000_PCLC2000
    "|RGD\2270_|\236\2270\0" // RSRGD2000_RSPS2000
    "RT38\0" // RT38
    "RT38\205Stockh\247m)\0" // RT38 (Stockholm)
    "RT38 0 g\003\0" // RT38 0 gon
    "RT38 0 g\2220:-15\0" // RT38 0 gon 0:-15
    "RT38 2\224 g\222O\0" // RT38 2.5 gon O
    "RT38 2\224 g\222O 0:-15\0" // RT38 2.5 gon O 0:-15
    "RT38 2\224 g\222V\0" // RT38 2.5 gon V
    "RT38 2\224 g\222W\0" // RT38 2.5 gon W
    "RT38 5 g\222O\0" // RT38 5 gon O
    "RT38 5 g\222O 0:-15\0" // RT38 5 gon O 0:-15
    "RT38 5 g\222V\0" // RT38 5 gon V
    "RT38 5 g\222V 0:-15\0" // RT38 5 gon V 0:-15
    "RT38 7\224 g\222V\0" // RT38 7.5 gon V
    "RT38_0_g\003\0" // RT38_0_gon
    "RT38_25_g\003_O\0" // RT38_25_gon_O
    "RT38_25_g\003_V\0" // RT38_25_gon_V
    "RT38_5_g\003_O\0" // RT38_5_gon_O
    "RT38_5_g\003_V\0" // RT38_5_gon_V
    "RT38_75_g\003_V\0" // RT38_75_gon_V
    "RT38_Stockh\247m\0" // RT38_Stockholm
    "RT90\0" // RT90
    "RT90 0 g\003\0" // RT90 0 gon
    "RT90 0 g\2220:-15\0" // RT90 0 gon 0:-15
    "RT90 2\224 g\222O\0" // RT90 2.5 gon O
    "RT90 2\224 g\222O 0:-15\0" // RT90 2.5 gon O 0:-15
    "RT90 2\224 g\222V\0" // RT90 2.5 gon V
    "RT90 2\224 g\222V 0:-15\0" // RT90 2.5 gon V 0:-15
    "RT90 2\224 g\222W\0" // RT90 2.5 gon W
    "RT90 5 g\222O\0" // RT90 5 gon O
    "RT90 5 g\222O 0:-15\0" // RT90 5 gon O 0:-15
    "RT90 5 g\222V\0" // RT90 5 gon V
    "RT90 5 g\222V 0:-15\0" // RT90 5 gon V 0:-15
    "RT90 7\224 g\222V\0" // RT90 7.5 gon V
    "RT90 7\224 g\222V 0:-15\0" // RT90 7.5 gon V 0:-15
    "RT90\2700 g\222\206ul<\321\0" // RT90 zone 0 gon emulation
    "RT90\2702\224 g\222O \206ul<\321\0" // RT90 zone 2.5 gon O emulation
    "RT90\2702\224 g\222V \206ul<\321\0" // RT90 zone 2.5 gon V emulation
    "RT90\2705 g\222O \206ul<\321\0" // RT90 zone 5 gon O emulation
    "RT90\2705 g\222V \206ul<\321\0" // RT90 zone 5 gon V emulation
    "RT90\2707\224 g\222V \206ul<\321\0" // RT90 zone 7.5 gon V emulation
    "RT90_0_g\003\0" // RT90_0_gon
    "RT90_0_g\003_\206ul<\321\0" // RT90_0_gon_emulation
    "RT90_2\224_g\003_O_\206ul<\321\0" // RT90_2.5_gon_O_emulation
    "RT90_2\224_g\003_V_\206ul<\321\0" // RT90_2.5_gon_V_emulation
    "RT90_25_g\003_O\0" // RT90_25_gon_O
    "RT90_25_g\003_V\0" // RT90_25_gon_V
    "RT90_25_g\003_W\0" // RT90_25_gon_W
    "RT90_5_g\003_O\0" // RT90_5_gon_O
    "RT90_5_g\003_O_\206ul<\321\0" // RT90_5_gon_O_emulation
    "RT90_5_g\003_V\0" // RT90_5_gon_V
    "RT90_5_g\003_V_\206ul<\321\0" // RT90_5_gon_V_emulation
    "RT90_7\224_g\003_V_\206ul<\321\0" // RT90_7.5_gon_V_emulation
    "RT90_75_g\003_V\0" // RT90_75_gon_V
    "RT_\03190\0" // RT_1990
    "Raja\021h\005 \334F LCC\0" // Rajasthan NSF LCC
    "R\035\247\230-Wayn\207(ft\204)\0" // Randolph-Wayne_(ftUS)
    "R\035\247\230-Wayn\207(m)\0" // Randolph-Wayne_(m)
    "Ra\025l \352 Tr\005sv\220\012M\007c<\006 \2270\0" // Raoul Island Transverse Mercator 2000
    "Ra\025l_\352_\376\2270\0" // Raoul_Island_TM_2000
    "R\201s\274\342\005\0" // Rassadiran
    "R\201s\274\342\005\011Nakhl \012Taqi\0" // Rassadiran / Nakhl e Taqi
    "R\201s\274\342\005_Nakhl_\207Taqi\0" // Rassadiran_Nakhl_e_Taqi
    "Rau\210b\007g D<um/83\0" // Rauenberg Datum/83
    "Rau\210b\007g_\03183\0" // Rauenberg_1983
    "Re\317ifi\273{kew Or\023\344\006\230$ B\006ne\013Gr\257\205cha\024s)\0" // Rectified Skew Orthomorphic Borneo Grid (chains)
    "Re\317ifi\273{kew Or\023\344\006\230$ B\006ne\013Gr\257\205f\221)\0" // Rectified Skew Orthomorphic Borneo Grid (feet)
    "Re\317ifi\273{kew Or\023\344\006\230$ B\006ne\013Gr\257\205m\036>s)\0" // Rectified Skew Orthomorphic Borneo Grid (metres)
    "Re\317ifi\273{kew Or\023\344\006\230$ M\026ay\030Gr\257\0" // Rectified Skew Orthomorphic Malaya Grid
    "Re\317ifi\273{kew Or\023\344\006\230$ M\026ay\030Gr\257\205cha\024s)\0" // Rectified Skew Orthomorphic Malaya Grid (chains)
    "Re\317ifi\273{kew Or\023\344\006\230$ M\026ay\030Gr\257\205m\036>s)\0" // Rectified Skew Orthomorphic Malaya Grid (metres)
    "Re\317ifi\273{kew Or\023\344\006\230${#awak LSD\205m\036>s)\0" // Rectified Skew Orthomorphic Sarawak LSD (metres)
    "R\273 Geod\242$\030Nac\321\223\0" // Red Geodesica Nacional 
    "R\273 Geod\242$\030P#\030M\024\007\314\210 Ch\372e\0" // Red Geodesica Para Mineria en Chile
    "R\273 Geod\242$\030V\210ez\247\005a\0" // Red Geodesica Venezolana
    "R\273 Geod\242$\030d\012C\005#i\201\32095\0" // Red Geodesica de Canarias 1995
    "R\273 Geod\303\251s$\030B\303\241s$\030Nac\321\223d\012El{\026v\274\006\0" // Red Geodésica Básica Nacional de El Salvador
    "R\273_Geod\242$\253P#\253M\024\007i\253\210_Ch\372e\0" // Red_Geodesica_Para_Mineria_en_Chile
    "R\273_Geod\242$\253d\207C\005#i\201\21295\0" // Red_Geodesica_de_Canarias_1995
    "R\273\012P\007m\005e\032\242 d\012E\021ac\321\242 G\334S d\012Ang\247a\0" // Rede Permanentes de Estaciones GNSS de Angola
    "Ref\007\210c\012Sy\021\206 d\012Ang\247\030\03313\0" // Reference System de Angola 2013
    "Ref\007\210c\207Sy\021\206_d\207Ang\247\253\03313\0" // Reference_System_de_Angola_2013
    "R\242eau Geod\242iqu\012Fr\005ca= \03193\0" // Reseau Geodesique Francais 1993
    "R\242eau Geod\242iqu\012Fr\005ca=\32093 v1\0" // Reseau Geodesique Francais 1993 v1
    "R\242eau Geod\242iqu\012Fr\005ca=\32093 v2\0" // Reseau Geodesique Francais 1993 v2
    "R\242eau Geod\242iqu\012Fr\005ca=\32093 v2b\0" // Reseau Geodesique Francais 1993 v2b
    "R\242eau Geod\242iqu\012Fr\005ca= Guy\005\012\03195\0" // Reseau Geodesique Francais Guyane 1995
    "R\242eau Geod\242iqu\012N\025v\240l\012C\026\273\003i\012\03191\0" // Reseau Geodesique Nouvelle Caledonie 1991
    "R\242eau Geod\242iqu\012d\012May\350t\012\2274\0" // Reseau Geodesique de Mayotte 2004
    "R\242eau Geod\242iqu\012d\012N\025v\240l\012C\026\273\003i\01291-93\0" // Reseau Geodesique de Nouvelle Caledonie 91-93
    "R\242eau Geod\242iqu\012d\012Sa\024t Pi\007r\012\036 Miqu\240\222\2276\0" // Reseau Geodesique de Saint Pierre et Miquelon 2006
    "R\242eau Geod\242iqu\012d\012W\026l= \036 Futun\030\03196\0" // Reseau Geodesique de Wallis et Futuna 1996
    "R\242eau Geod\242iqu\012d\012l\030P\247yn\242i\012Fr\005ca=e\0" // Reseau Geodesique de la Polynesie Francaise
    "R\242eau Geod\242iqu\012d\012l\030RDC \2275\0" // Reseau Geodesique de la RDC 2005
    "R\242eau Geod\242iqu\012d\012l\030Reuni\222\03192\0" // Reseau Geodesique de la Reunion 1992
    "R\242eau Geod\242iqu\012d\242 A\032\372l\242 Fr\005ca=\242 \2279\0" // Reseau Geodesique des Antilles Francaises 2009
    "R\242eau Geod\242iqu\012d\242 TAAF \2277\0" // Reseau Geodesique des TAAF 2007
    "R\242eau Geod\242iqu\012d\242 T\007>s Au\021r\026\242 \036 A\032#\317iqu\242 Fr\005ca=\242 \2277\0" // Reseau Geodesique des Terres Australes et Antarctiques Francaises 2007
    "R\242eau N<\321\223B\240g\012\03150\0" // Reseau National Belge 1950
    "R\242eau N<\321\223B\240g\012\03150\205Br\357s\240s)\0" // Reseau National Belge 1950 (Brussels)
    "R\242eau N<\321\223B\240g\012\03172\0" // Reseau National Belge 1972
    "R\242eau d\012Ref\007\210c\012d\242 A\032\372l\242 Fr\005ca=\242 \03191\0" // Reseau de Reference des Antilles Francaises 1991
    "R\242eau_Geod\242iqu\207d\207W\026l=_\036\134utun\253\03196\0" // Reseau_Geodesique_de_Wallis_et_Futuna_1996
    "R\242eau_Geod\242iqu\207d\242_A\032\372l\242\134r\005ca=\242_\2279\0" // Reseau_Geodesique_des_Antilles_Francaises_2009
    "R\036\012D\024\232$\030Naz\321\026\012\2278\0" // Rete Dinamica Nazionale 2008
    "R\036\207D\024\232$\253Naz\321\026\207\2278\0" // Rete_Dinamica_Nazionale_2008
    "Reun\321\002e\315\25254\015\0" // Reunion - east of 54°E
    "Reun\321\002\237\0" // Reunion - onshore
    "Reun\321\002w\275\25254\015\0" // Reunion - west of 54°E
    "Reuni\222\03147\0" // Reunion 1947
    "Reuni\222\03147\011\250 Reun\321\0" // Reunion 1947 / TM Reunion
    "Reun\321\21247\0" // Reunion_1947
    "Reun\321\21247_\376Reun\321\0" // Reunion_1947_TM_Reunion
    "Reykjavik\32000\0" // Reykjavik 1900
    "Reykjavik\32000\011L\232b\007t\32000\0" // Reykjavik 1900 / Lambert 1900
    "Reykjavik\21200\0" // Reykjavik_1900
    "Rhod\012\352 @27\0" // Rhode Island CS27
    "Rhod\207\352\2673800\0" // Rhode_Island_FIPS_3800
    "Rhod\207\352\2673800\366\0" // Rhode_Island_FIPS_3800_Feet
    "Rhod\207\352\2673800\134t_\204\0" // Rhode_Island_FIPS_3800_Ft_US
    "R$h\211\374\025\032y\366\0" // Richland_County_Feet
    "R$h\211\374\025\032y_M\311\0" // Richland_County_Meters
    "R$h\211\366\0" // Richland_Feet
    "R$h\211_M\311\0" // Richland_Meters
    "Rik\036s ko\006d\024<sy\021\206\32038\0" // Rikets koordinatsystem 1938
    "Rik\036s ko\006d\024<sy\021\206 \03190\0" // Rikets koordinatsystem 1990
    "R\372ey-Lakeview_\017\212\014_\231_\250\134t_I\032l\0" // Riley-Lakeview_NAD_1983_2011_TM_Ft_Intl
    "R\372ey-Lakeview_\017\212\014_\231_\376M\311\0" // Riley-Lakeview_NAD_1983_2011_TM_Meters
    "Riohach\253L\253Guaj\342\253\2276\0" // Riohacha_La_Guajira_2006
    "Ripley_(ft\204)\0" // Ripley_(ftUS)
    "Ripley_(m)\0" // Ripley_(m)
    "Rock\374\025\032y\366\0" // Rock_County_Feet
    "Rock\374\025\032y_M\311\0" // Rock_County_Meters
    "Rock\366\0" // Rock_Feet
    "Rock_M\311\0" // Rock_Meters
    "R\344a40\0" // Roma40
    "R\344\005ia\0" // Romania
    "R\344\005\215\216f^\202\0" // Romania - offshore
    "R\344\005\215\237\0" // Romania - onshore
    "R\344\012\03140\0" // Rome 1940
    "R\344\012\03140\205R\344e)\0" // Rome 1940 (Rome)
    "R\344\207It\026y_1\0" // Rome_Italy_1
    "R\344\207It\026y_2\0" // Rome_Italy_2
    "Ross{e\030P\247#{t\007eog\370\230$ \2270\0" // Ross Sea Polar Stereographic 2000
    "Ross{e\030Regi\222Geod\036$ D<um \2270\0" // Ross Sea Region Geodetic Datum 2000
    "Ross_Se\253Reg\321_Geod\036$_D<um_\2270\0" // Ross_Sea_Region_Geodetic_Datum_2000
    "R\357k\374\025\032y\366\0" // Rusk_County_Feet
    "R\357k\374\025\032y_M\311\0" // Rusk_County_Meters
    "R\357k\366\0" // Rusk_Feet
    "R\357k_M\311\0" // Rusk_Meters
    "R\357s\215\3120\224}\3123\224\360\237\0" // Russia - 100.5°E to 103.5°E onshore
    "R\357s\215\3122}\3128\360\237\0" // Russia - 102°E to 108°E onshore
    "R\357s\215\3123\224}\3126\224\360\237\0" // Russia - 103.5°E to 106.5°E onshore
    "R\357s\215\3126\224}\3129\224\360\237\0" // Russia - 106.5°E to 109.5°E onshore
    "R\357s\215\3128}\1774\360\237\0" // Russia - 108°E to 114°E onshore
    "R\357s\215\3129\224}\1772\224\360\237\0" // Russia - 109.5°E to 112.5°E onshore
    "R\357s\215\1772\224}\1775\224\360\237\0" // Russia - 112.5°E to 115.5°E onshore
    "R\357s\215\1774\345\033\360\237\0" // Russia - 114°E to 120°E onshore
    "R\357s\215\1775\224}\1778\224\360\237\0" // Russia - 115.5°E to 118.5°E onshore
    "R\357s\215\1778\224\34521\224\360\237\0" // Russia - 118.5°E to 121.5°E onshore
    "R\357s\2151\033\34526\360\237\0" // Russia - 120°E to 126°E onshore
    "R\357s\215121\224\34524\224\360\237\0" // Russia - 121.5°E to 124.5°E onshore
    "R\357s\215124\224\345\313\224\360\237\0" // Russia - 124.5°E to 127.5°E onshore
    "R\357s\215126\34532\360\237\0" // Russia - 126°E to 132°E onshore
    "R\357s\2151\313\224\345\375\224\360\237\0" // Russia - 127.5°E to 130.5°E onshore
    "R\357s\2151\375\224\34533\224\360\237\0" // Russia - 130.5°E to 133.5°E onshore
    "R\357s\215132\34538\360\237\0" // Russia - 132°E to 138°E onshore
    "R\357s\215133\224\34536\224\360\237\0" // Russia - 133.5°E to 136.5°E onshore
    "R\357s\215136\224\34539\224\360\237\0" // Russia - 136.5°E to 139.5°E onshore
    "R\357s\215138\34544\360\237\0" // Russia - 138°E to 144°E onshore
    "R\357s\215139\224\34542\224\360\237\0" // Russia - 139.5°E to 142.5°E onshore
    "R\357s\215142\224\34545\224\360\237\0" // Russia - 142.5°E to 145.5°E onshore
    "R\357s\215144\34550\360\237\0" // Russia - 144°E to 150°E onshore
    "R\357s\215145\224\34548\224\360\237\0" // Russia - 145.5°E to 148.5°E onshore
    "R\357s\215148\224\34551\224\360\237\0" // Russia - 148.5°E to 151.5°E onshore
    "R\357s\215150\34556\360\237\0" // Russia - 150°E to 156°E onshore
    "R\357s\215151\224\34554\224\360\237\0" // Russia - 151.5°E to 154.5°E onshore
    "R\357s\215154\224\34557\224\360\237\0" // Russia - 154.5°E to 157.5°E onshore
    "R\357s\215156\34562\360\237\0" // Russia - 156°E to 162°E onshore
    "R\357s\215157\224\34560\224\360\237\0" // Russia - 157.5°E to 160.5°E onshore
    "R\357s\215160\224\34563\224\360\237\0" // Russia - 160.5°E to 163.5°E onshore
    "R\357s\215162\34568\360\237\0" // Russia - 162°E to 168°E onshore
    "R\357s\215163\224\34566\224\360\237\0" // Russia - 163.5°E to 166.5°E onshore
    "R\357s\215166\224\34569\224\360\237\0" // Russia - 166.5°E to 169.5°E onshore
    "R\357s\215168\34574\360\237\0" // Russia - 168°E to 174°E onshore
    "R\357s\215169\224\34572\224\360\237\0" // Russia - 169.5°E to 172.5°E onshore
    "R\357s\215172\224\34575\224\360\237\0" // Russia - 172.5°E to 175.5°E onshore
    "R\357s\215172\224\217169\224\037 \237\0" // Russia - 172.5°W to 169.5°W onshore
    "R\357s\215174\34580\360\237\0" // Russia - 174°E to 180°E onshore
    "R\357s\215175\224\34578\224\360\237\0" // Russia - 175.5°E to 178.5°E onshore
    "R\357s\215175\224\217172\224\037 \237\0" // Russia - 175.5°W to 172.5°W onshore
    "R\357s\215178\224\34578\224\037 \237\0" // Russia - 178.5°E to 178.5°W onshore
    "R\357s\215178\224\217175\224\037 \237\0" // Russia - 178.5°W to 175.5°W onshore
    "R\357s\215180\004\022174\037 \237\0" // Russia - 180° to 174°W onshore
    "R\357s\215\031\224}22\224\360\237\0" // Russia - 19.5°E to 22.5°E onshore
    "R\357s\21522\224}25\224\360\237\0" // Russia - 22.5°E to 25.5°E onshore
    "R\357s\21524}\375\360\237\0" // Russia - 24°E to 30°E onshore
    "R\357s\21525\224}28\224\360\237\0" // Russia - 25.5°E to 28.5°E onshore
    "R\357s\21528\224}31\224\360\237\0" // Russia - 28.5°E to 31.5°E onshore
    "R\357s\215\375}36\360\237\0" // Russia - 30°E to 36°E onshore
    "R\357s\21531\224}34\224\360\237\0" // Russia - 31.5°E to 34.5°E onshore
    "R\357s\21534\224}37\224\360\237\0" // Russia - 34.5°E to 37.5°E onshore
    "R\357s\21536}42\360\237\0" // Russia - 36°E to 42°E onshore
    "R\357s\21537\224}40\224\360\237\0" // Russia - 37.5°E to 40.5°E onshore
    "R\357s\21540\224}43\224\360\237\0" // Russia - 40.5°E to 43.5°E onshore
    "R\357s\21542}48\360\237\0" // Russia - 42°E to 48°E onshore
    "R\357s\21543\224}46\224\360\237\0" // Russia - 43.5°E to 46.5°E onshore
    "R\357s\21546\224}49\224\360\237\0" // Russia - 46.5°E to 49.5°E onshore
    "R\357s\21548}54\360\237\0" // Russia - 48°E to 54°E onshore
    "R\357s\21549\224}52\224\360\237\0" // Russia - 49.5°E to 52.5°E onshore
    "R\357s\21552\224}55\224\360\237\0" // Russia - 52.5°E to 55.5°E onshore
    "R\357s\21554}60\360\237\0" // Russia - 54°E to 60°E onshore
    "R\357s\21555\224}58\224\360\237\0" // Russia - 55.5°E to 58.5°E onshore
    "R\357s\21558\224}61\224\360\237\0" // Russia - 58.5°E to 61.5°E onshore
    "R\357s\21560}66\360\237\0" // Russia - 60°E to 66°E onshore
    "R\357s\21561\224}64\224\360\237\0" // Russia - 61.5°E to 64.5°E onshore
    "R\357s\21564\224}67\224\360\237\0" // Russia - 64.5°E to 67.5°E onshore
    "R\357s\21566}72\360\237\0" // Russia - 66°E to 72°E onshore
    "R\357s\21567\224}70\224\360\237\0" // Russia - 67.5°E to 70.5°E onshore
    "R\357s\21570\224}73\224\360\237\0" // Russia - 70.5°E to 73.5°E onshore
    "R\357s\21572}78\360\237\0" // Russia - 72°E to 78°E onshore
    "R\357s\21573\224}76\224\360\237\0" // Russia - 73.5°E to 76.5°E onshore
    "R\357s\21576\224}79\224\360\237\0" // Russia - 76.5°E to 79.5°E onshore
    "R\357s\21578}84\360\237\0" // Russia - 78°E to 84°E onshore
    "R\357s\21579\224}82\224\360\237\0" // Russia - 79.5°E to 82.5°E onshore
    "R\357s\21582\224}85\224\360\237\0" // Russia - 82.5°E to 85.5°E onshore
    "R\357s\21584}90\360\237\0" // Russia - 84°E to 90°E onshore
    "R\357s\21585\224}88\224\360\237\0" // Russia - 85.5°E to 88.5°E onshore
    "R\357s\21588\224}91\224\360\237\0" // Russia - 88.5°E to 91.5°E onshore
    "R\357s\21590}96\360\237\0" // Russia - 90°E to 96°E onshore
    "R\357s\21591\224}94\224\360\237\0" // Russia - 91.5°E to 94.5°E onshore
    "R\357s\21594\224}97\224\360\237\0" // Russia - 94.5°E to 97.5°E onshore
    "R\357s\21596}\3122\360\237\0" // Russia - 96°E to 102°E onshore
    "R\357s\21597\224}\3120\224\360\237\0" // Russia - 97.5°E to 100.5°E onshore
    "R\357s\215e\315\252169\224\037 \237\0" // Russia - east of 169.5°W onshore
    "R\357s\215e\315\252174\037 \237\0" // Russia - east of 174°W onshore
    "R\357s\215w\275\252\031\224\015\0" // Russia - west of 19.5°E
    "R\357s\215w\275\25224\360\237\0" // Russia - west of 24°E onshore
    "S-42\270\0" // S-42 zone 
    "S-95\0" // S-95
    "S-95\270\0" // S-95 zone 
    "S-JTSK\0" // S-JTSK
    "S-JTSK\205F\007ro)\0" // S-JTSK (Ferro)
    "S-JTSK\205F\007ro%Krovak\0" // S-JTSK (Ferro) / Krovak
    "S-JTSK\205F\007ro%Krovak E\315\371\0" // S-JTSK (Ferro) / Krovak East North
    "S-JTSK\011Krovak\0" // S-JTSK / Krovak
    "S-JTSK\011Krovak E\315\371\0" // S-JTSK / Krovak East North
    "S-JTSK [JTSK03]\0" // S-JTSK [JTSK03]
    "S-JTSK [JTSK03]\011Krovak\0" // S-JTSK [JTSK03] / Krovak
    "S-JTSK [JTSK03]\011Krovak E\315\371\0" // S-JTSK [JTSK03] / Krovak East North
    "S-JTSK/05\0" // S-JTSK/05
    "S-JTSK/05\205F\007ro)\0" // S-JTSK/05 (Ferro)
    "S-JTSK/05\205F\007ro%Modifi\273 Krovak\0" // S-JTSK/05 (Ferro) / Modified Krovak
    "S-JTSK/05\205F\007ro%Modifi\273 Krovak E\315\371\0" // S-JTSK/05 (Ferro) / Modified Krovak East North
    "S-JTSK/05\011Modifi\273 Krovak\0" // S-JTSK/05 / Modified Krovak
    "S-JTSK/05\011Modifi\273 Krovak E\315\371\0" // S-JTSK/05 / Modified Krovak East North
    "S-JTSK_\0" // S-JTSK_
    "S\01669\011B\370z\372 P\247yc\003$\0" // SAD69 / Brazil Polyconic
    "S\01669\011U\250\27017N\0" // SAD69 / UTM zone 17N
    "S\01669\011U\250\27017S\0" // SAD69 / UTM zone 17S
    "S\01669\011U\250\27018N\0" // SAD69 / UTM zone 18N
    "S\01669\011U\250\27018S\0" // SAD69 / UTM zone 18S
    "S\01669\011U\250\27019N\0" // SAD69 / UTM zone 19N
    "S\01669\011U\250\27019S\0" // SAD69 / UTM zone 19S
    "S\01669\011U\250\270\033N\0" // SAD69 / UTM zone 20N
    "S\01669\011U\250\270\033S\0" // SAD69 / UTM zone 20S
    "S\01669\011U\250\27021N\0" // SAD69 / UTM zone 21N
    "S\01669\011U\250\27021S\0" // SAD69 / UTM zone 21S
    "S\01669\011U\250\27022N\0" // SAD69 / UTM zone 22N
    "S\01669\011U\250\27022S\0" // SAD69 / UTM zone 22S
    "S\01669\011U\250\27023S\0" // SAD69 / UTM zone 23S
    "S\01669\011U\250\27024S\0" // SAD69 / UTM zone 24S
    "S\01669\011U\250\27025S\0" // SAD69 / UTM zone 25S
    "S\01669(96)\0" // SAD69(96)
    "S\01669(96%B\370z\372 P\247yc\003$\0" // SAD69(96) / Brazil Polyconic
    "S\01669(96%U\250\27018S\0" // SAD69(96) / UTM zone 18S
    "S\01669(96%U\250\27019S\0" // SAD69(96) / UTM zone 19S
    "S\01669(96%U\250\270\033S\0" // SAD69(96) / UTM zone 20S
    "S\01669(96%U\250\27021S\0" // SAD69(96) / UTM zone 21S
    "S\01669(96%U\250\27022S\0" // SAD69(96) / UTM zone 22S
    "S\01669(96%U\250\27023S\0" // SAD69(96) / UTM zone 23S
    "S\01669(96%U\250\27024S\0" // SAD69(96) / UTM zone 24S
    "S\01669(96%U\250\27025S\0" // SAD69(96) / UTM zone 25S
    "S\016\21269_96\0" // SAD_1969_96
    "S\016\21269_96_B\370z\372_P\247yc\003$\0" // SAD_1969_96_Brazil_Polyconic
    "S\016\21269_96_U\376Z\003\207\0" // SAD_1969_96_UTM_Zone_
    "S\016\21269_B\370z\372_P\247yc\003$\0" // SAD_1969_Brazil_Polyconic
    "S\016\21269_U\376Z\003\207\0" // SAD_1969_UTM_Zone_
    "\322M22 Gr\257\0" // SCM22 Grid
    "\322M22 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // SCM22 Intermediate Reference Frame
    "\322M22-IRF\0" // SCM22-IRF
    "\322M22-\250\0" // SCM22-TM
    "SGNP_M\245C\245IO_SOLIS\0" // SGNP_MARCARIO_SOLIS
    "SHGD\03315\0" // SHGD2015
    "SHMG\03315\0" // SHMG2015
    "SIGD61\0" // SIGD61
    "SING61\0" // SING61
    "SIR09P01\002L<L\003\0" // SIR09P01 - LatLon
    "SIR\312P01\002L<L\003\0" // SIR10P01 - LatLon
    "SIR\177P01\002L<L\003\0" // SIR11P01 - LatLon
    "SIR13P01\002L<L\003\0" // SIR13P01 - LatLon
    "SIR14P01\002L<L\003\0" // SIR14P01 - LatLon
    "SIR15P01\002L<L\003\0" // SIR15P01 - LatLon
    "SIR17P01\002L<L\003\0" // SIR17P01 - LatLon
    "SIRGAS\32095\0" // SIRGAS 1995
    "SIRGAS\32095\011U\250\27017N\0" // SIRGAS 1995 / UTM zone 17N
    "SIRGAS\32095\011U\250\27017S\0" // SIRGAS 1995 / UTM zone 17S
    "SIRGAS\32095\011U\250\27018N\0" // SIRGAS 1995 / UTM zone 18N
    "SIRGAS\32095\011U\250\27018S\0" // SIRGAS 1995 / UTM zone 18S
    "SIRGAS\32095\011U\250\27019N\0" // SIRGAS 1995 / UTM zone 19N
    "SIRGAS\32095\011U\250\27019S\0" // SIRGAS 1995 / UTM zone 19S
    "SIRGAS\32095\011U\250\270\033N\0" // SIRGAS 1995 / UTM zone 20N
    "SIRGAS\32095\011U\250\270\033S\0" // SIRGAS 1995 / UTM zone 20S
    "SIRGAS\32095\011U\250\27021N\0" // SIRGAS 1995 / UTM zone 21N
    "SIRGAS\32095\011U\250\27021S\0" // SIRGAS 1995 / UTM zone 21S
    "SIRGAS\32095\011U\250\27022N\0" // SIRGAS 1995 / UTM zone 22N
    "SIRGAS\32095\011U\250\27022S\0" // SIRGAS 1995 / UTM zone 22S
    "SIRGAS\32095\011U\250\27023S\0" // SIRGAS 1995 / UTM zone 23S
    "SIRGAS\32095\011U\250\27024S\0" // SIRGAS 1995 / UTM zone 24S
    "SIRGAS\32095\011U\250\27025S\0" // SIRGAS 1995 / UTM zone 25S
    "SIRGAS \2270\0" // SIRGAS 2000
    "SIRGAS \2270\011B\370z\372 M\007c<\006\0" // SIRGAS 2000 / Brazil Mercator
    "SIRGAS \2270\011B\370z\372 P\247yc\003$\0" // SIRGAS 2000 / Brazil Polyconic
    "SIRGAS \2270\011U\250\27011N\0" // SIRGAS 2000 / UTM zone 11N
    "SIRGAS \2270\011U\250\27012N\0" // SIRGAS 2000 / UTM zone 12N
    "SIRGAS \2270\011U\250\27013N\0" // SIRGAS 2000 / UTM zone 13N
    "SIRGAS \2270\011U\250\27014N\0" // SIRGAS 2000 / UTM zone 14N
    "SIRGAS \2270\011U\250\27015N\0" // SIRGAS 2000 / UTM zone 15N
    "SIRGAS \2270\011U\250\27016N\0" // SIRGAS 2000 / UTM zone 16N
    "SIRGAS \2270\011U\250\27017N\0" // SIRGAS 2000 / UTM zone 17N
    "SIRGAS \2270\011U\250\27017S\0" // SIRGAS 2000 / UTM zone 17S
    "SIRGAS \2270\011U\250\27018N\0" // SIRGAS 2000 / UTM zone 18N
    "SIRGAS \2270\011U\250\27018S\0" // SIRGAS 2000 / UTM zone 18S
    "SIRGAS \2270\011U\250\27019N\0" // SIRGAS 2000 / UTM zone 19N
    "SIRGAS \2270\011U\250\27019S\0" // SIRGAS 2000 / UTM zone 19S
    "SIRGAS \2270\011U\250\270\033N\0" // SIRGAS 2000 / UTM zone 20N
    "SIRGAS \2270\011U\250\270\033S\0" // SIRGAS 2000 / UTM zone 20S
    "SIRGAS \2270\011U\250\27021N\0" // SIRGAS 2000 / UTM zone 21N
    "SIRGAS \2270\011U\250\27021S\0" // SIRGAS 2000 / UTM zone 21S
    "SIRGAS \2270\011U\250\27022N\0" // SIRGAS 2000 / UTM zone 22N
    "SIRGAS \2270\011U\250\27022S\0" // SIRGAS 2000 / UTM zone 22S
    "SIRGAS \2270\011U\250\27023N\0" // SIRGAS 2000 / UTM zone 23N
    "SIRGAS \2270\011U\250\27023S\0" // SIRGAS 2000 / UTM zone 23S
    "SIRGAS \2270\011U\250\27024N\0" // SIRGAS 2000 / UTM zone 24N
    "SIRGAS \2270\011U\250\27024S\0" // SIRGAS 2000 / UTM zone 24S
    "SIRGAS \2270\011U\250\27025S\0" // SIRGAS 2000 / UTM zone 25S
    "SIRGAS \2270\011U\250\27026S\0" // SIRGAS 2000 / UTM zone 26S
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF00P01\0" // SIRGAS Continuously Operating Network DGF00P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF01P01\0" // SIRGAS Continuously Operating Network DGF01P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF01P02\0" // SIRGAS Continuously Operating Network DGF01P02
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF02P01\0" // SIRGAS Continuously Operating Network DGF02P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF04P01\0" // SIRGAS Continuously Operating Network DGF04P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF05P01\0" // SIRGAS Continuously Operating Network DGF05P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF06P01\0" // SIRGAS Continuously Operating Network DGF06P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF07P01\0" // SIRGAS Continuously Operating Network DGF07P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k DGF08P01\0" // SIRGAS Continuously Operating Network DGF08P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR09P01\0" // SIRGAS Continuously Operating Network SIR09P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR\312P01\0" // SIRGAS Continuously Operating Network SIR10P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR\177P01\0" // SIRGAS Continuously Operating Network SIR11P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR13P01\0" // SIRGAS Continuously Operating Network SIR13P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR14P01\0" // SIRGAS Continuously Operating Network SIR14P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR15P01\0" // SIRGAS Continuously Operating Network SIR15P01
    "SIRGAS\333\003t\024u\025sl\200Op\007<\024g N\036w\006k SIR17P01\0" // SIRGAS Continuously Operating Network SIR17P01
    "SIRGAS Multi-Ye#{\247uti\222\0" // SIRGAS Multi-Year Solution 
    "SIRGAS-CON \0" // SIRGAS-CON 
    "SIRGAS-CON DGF00P01\0" // SIRGAS-CON DGF00P01
    "SIRGAS-CON DGF01P01\0" // SIRGAS-CON DGF01P01
    "SIRGAS-CON DGF01P02\0" // SIRGAS-CON DGF01P02
    "SIRGAS-CON DGF02P01\0" // SIRGAS-CON DGF02P01
    "SIRGAS-CON DGF04P01\0" // SIRGAS-CON DGF04P01
    "SIRGAS-CON DGF05P01\0" // SIRGAS-CON DGF05P01
    "SIRGAS-CON DGF06P01\0" // SIRGAS-CON DGF06P01
    "SIRGAS-CON DGF07P01\0" // SIRGAS-CON DGF07P01
    "SIRGAS-CON DGF08P01\0" // SIRGAS-CON DGF08P01
    "SIRGAS-CON SIR09P01\0" // SIRGAS-CON SIR09P01
    "SIRGAS-CON SIR\312P01\0" // SIRGAS-CON SIR10P01
    "SIRGAS-CON SIR\177P01\0" // SIRGAS-CON SIR11P01
    "SIRGAS-CON SIR13P01\0" // SIRGAS-CON SIR13P01
    "SIRGAS-CON SIR14P01\0" // SIRGAS-CON SIR14P01
    "SIRGAS-CON SIR15P01\0" // SIRGAS-CON SIR15P01
    "SIRGAS-CON SIR17P01\0" // SIRGAS-CON SIR17P01
    "SIRGAS-CON_\0" // SIRGAS-CON_
    "SIRGAS-Ch\372e\0" // SIRGAS-Chile
    "SIRGAS-Ch\372\012\0" // SIRGAS-Chile 
    "SIRGAS-Ch\372\012\2272\0" // SIRGAS-Chile 2002
    "SIRGAS-Ch\372\012\2272\011U\250\27018S\0" // SIRGAS-Chile 2002 / UTM zone 18S
    "SIRGAS-Ch\372\012\2272\011U\250\27019S\0" // SIRGAS-Chile 2002 / UTM zone 19S
    "SIRGAS-Ch\372\012\03310\0" // SIRGAS-Chile 2010
    "SIRGAS-Ch\372\012\033\312\011U\250\27018S\0" // SIRGAS-Chile 2010 / UTM zone 18S
    "SIRGAS-Ch\372\012\033\312\011U\250\27019S\0" // SIRGAS-Chile 2010 / UTM zone 19S
    "SIRGAS-Ch\372\012\03313\0" // SIRGAS-Chile 2013
    "SIRGAS-Ch\372\012\03313\011U\250\27018S\0" // SIRGAS-Chile 2013 / UTM zone 18S
    "SIRGAS-Ch\372\012\03313\011U\250\27019S\0" // SIRGAS-Chile 2013 / UTM zone 19S
    "SIRGAS-Ch\372\012\03316\0" // SIRGAS-Chile 2016
    "SIRGAS-Ch\372\012\03316\011U\250\27018S\0" // SIRGAS-Chile 2016 / UTM zone 18S
    "SIRGAS-Ch\372\012\03316\011U\250\27019S\0" // SIRGAS-Chile 2016 / UTM zone 19S
    "SIRGAS-Ch\372\012\03321\0" // SIRGAS-Chile 2021
    "SIRGAS-Ch\372\012\03321\011U\250\27012S\0" // SIRGAS-Chile 2021 / UTM zone 12S
    "SIRGAS-Ch\372\012\03321\011U\250\27018S\0" // SIRGAS-Chile 2021 / UTM zone 18S
    "SIRGAS-Ch\372\012\03321\011U\250\27019S\0" // SIRGAS-Chile 2021 / UTM zone 19S
    "SIRGAS-Ch\372\012>\026iz<i\2221 epoch \2272\0" // SIRGAS-Chile realization 1 epoch 2002
    "SIRGAS-Ch\372\012>\026iz<i\2222 epoch \03310\0" // SIRGAS-Chile realization 2 epoch 2010
    "SIRGAS-Ch\372\012>\026iz<i\2223 epoch \03313\0" // SIRGAS-Chile realization 3 epoch 2013
    "SIRGAS-Ch\372\012>\026iz<i\2224 epoch \03316\0" // SIRGAS-Chile realization 4 epoch 2016
    "SIRGAS-Ch\372\012>\026iz<i\2225 epoch \03321\0" // SIRGAS-Chile realization 5 epoch 2021
    "SIRGAS-Ch\372\207\0" // SIRGAS-Chile_
    "SIRGAS-REGVEN\0" // SIRGAS-REGVEN
    "SIRGAS-ROU98\0" // SIRGAS-ROU98
    "SIRGAS-ROU98\011U\250\27021S\0" // SIRGAS-ROU98 / UTM zone 21S
    "SIRGAS-ROU98\011U\250\27022S\0" // SIRGAS-ROU98 / UTM zone 22S
    "SIRGAS-ROU98_U\376Z\003\20721S\0" // SIRGAS-ROU98_UTM_Zone_21S
    "SIRGAS-ROU98_U\376Z\003\20722S\0" // SIRGAS-ROU98_UTM_Zone_22S
    "SIRGAS\2270\002L<L\003\0" // SIRGAS2000 - LatLon
    "SIRGAS95\002L<L\003\0" // SIRGAS95 - LatLon
    "SIRGAS_\2270\0" // SIRGAS_2000
    "SIRGAS_\2270_B\370z\372_M\007c<\006\0" // SIRGAS_2000_Brazil_Mercator
    "SIRGAS_\2270_B\370z\372_P\247yc\003$\0" // SIRGAS_2000_Brazil_Polyconic
    "SIRGAS_\2270_U\376Z\003\207\0" // SIRGAS_2000_UTM_Zone_
    "SIRGAS\374\003t\024u\025sly_Op\007<\024g_N\036w\006k_\0" // SIRGAS_Continuously_Operating_Network_
    "SIRGAS_ES\2277.8\0" // SIRGAS_ES2007.8
    "SIRGAS_U\376Z\003\207\0" // SIRGAS_UTM_Zone_
    "SLD99\0" // SLD99
    "SLD99\011Sri L\005k\030Gr\257\32099\0" // SLD99 / Sri Lanka Grid 1999
    "SLD99_Sri_L\005k\253Gr\257\21299\0" // SLD99_Sri_Lanka_Grid_1999
    "\356 Alab\232\030E\315\336\204{\225ve\200f\221)\0" // SPCS83 Alabama East zone (US Survey feet)
    "\356 Alab\232\030E\315\336m\311)\0" // SPCS83 Alabama East zone (meters)
    "\356 Alab\232\030W\275\336\204{\225ve\200f\221)\0" // SPCS83 Alabama West zone (US Survey feet)
    "\356 Alab\232\030W\275\336m\311)\0" // SPCS83 Alabama West zone (meters)
    "\356 Al\201k\030\0771\205m\311)\0" // SPCS83 Alaska zone 1 (meters)
    "\356 Al\201k\030\077\312\205m\311)\0" // SPCS83 Alaska zone 10 (meters)
    "\356 Al\201k\030\0772\205m\311)\0" // SPCS83 Alaska zone 2 (meters)
    "\356 Al\201k\030\0773\205m\311)\0" // SPCS83 Alaska zone 3 (meters)
    "\356 Al\201k\030\0774\205m\311)\0" // SPCS83 Alaska zone 4 (meters)
    "\356 Al\201k\030\0775\205m\311)\0" // SPCS83 Alaska zone 5 (meters)
    "\356 Al\201k\030\0776\205m\311)\0" // SPCS83 Alaska zone 6 (meters)
    "\356 Al\201k\030\0777\205m\311)\0" // SPCS83 Alaska zone 7 (meters)
    "\356 Al\201k\030\0778\205m\311)\0" // SPCS83 Alaska zone 8 (meters)
    "\356 Al\201k\030\0779\205m\311)\0" // SPCS83 Alaska zone 9 (meters)
    "\356 \326i!\030C\365\223\336I\032\007n<\321\223f\221)\0" // SPCS83 Arizona Central zone (International feet)
    "\356 \326i!\030C\365\223\336m\311)\0" // SPCS83 Arizona Central zone (meters)
    "\356 \326i!\030E\315\336I\032\007n<\321\223f\221)\0" // SPCS83 Arizona East zone (International feet)
    "\356 \326i!\030E\315\336m\311)\0" // SPCS83 Arizona East zone (meters)
    "\356 \326i!\030W\275\336I\032\007n<\321\223f\221)\0" // SPCS83 Arizona West zone (International feet)
    "\356 \326i!\030W\275\336m\311)\0" // SPCS83 Arizona West zone (meters)
    "\356 \326k\005s\201 \324\336\204{\225ve\200f\221)\0" // SPCS83 Arkansas North zone (US Survey feet)
    "\356 \326k\005s\201 \324\336m\311)\0" // SPCS83 Arkansas North zone (meters)
    "\356 \326k\005s\201{\246\336\204{\225ve\200f\221)\0" // SPCS83 Arkansas South zone (US Survey feet)
    "\356 \326k\005s\201{\246\336m\311)\0" // SPCS83 Arkansas South zone (meters)
    "\356\333\026if\006n\314\0771\205\204{\225ve\200f\221)\0" // SPCS83 California zone 1 (US Survey feet)
    "\356\333\026if\006n\314\0771\205m\311)\0" // SPCS83 California zone 1 (meters)
    "\356\333\026if\006n\314\0772\205\204{\225ve\200f\221)\0" // SPCS83 California zone 2 (US Survey feet)
    "\356\333\026if\006n\314\0772\205m\311)\0" // SPCS83 California zone 2 (meters)
    "\356\333\026if\006n\314\0773\205\204{\225ve\200f\221)\0" // SPCS83 California zone 3 (US Survey feet)
    "\356\333\026if\006n\314\0773\205m\311)\0" // SPCS83 California zone 3 (meters)
    "\356\333\026if\006n\314\0774\205\204{\225ve\200f\221)\0" // SPCS83 California zone 4 (US Survey feet)
    "\356\333\026if\006n\314\0774\205m\311)\0" // SPCS83 California zone 4 (meters)
    "\356\333\026if\006n\314\0775\205\204{\225ve\200f\221)\0" // SPCS83 California zone 5 (US Survey feet)
    "\356\333\026if\006n\314\0775\205m\311)\0" // SPCS83 California zone 5 (meters)
    "\356\333\026if\006n\314\0776\205\204{\225ve\200f\221)\0" // SPCS83 California zone 6 (US Survey feet)
    "\356\333\026if\006n\314\0776\205m\311)\0" // SPCS83 California zone 6 (meters)
    "\356\333\247\006\274\013C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Colorado Central zone (US Survey feet)
    "\356\333\247\006\274\013C\365\223\336m\311)\0" // SPCS83 Colorado Central zone (meters)
    "\356\333\247\006\274\013\324\336\204{\225ve\200f\221)\0" // SPCS83 Colorado North zone (US Survey feet)
    "\356\333\247\006\274\013\324\336m\311)\0" // SPCS83 Colorado North zone (meters)
    "\356\333\247\006\274\013\367\336\204{\225ve\200f\221)\0" // SPCS83 Colorado South zone (US Survey feet)
    "\356\333\247\006\274\013\367\336m\311)\0" // SPCS83 Colorado South zone (meters)
    "\356\333\003ne\317$ut\270(\204{\225ve\200f\221)\0" // SPCS83 Connecticut zone (US Survey feet)
    "\356\333\003ne\317$ut\270(m\311)\0" // SPCS83 Connecticut zone (meters)
    "\356 D\240aw#\012\336\204{\225ve\200f\221)\0" // SPCS83 Delaware zone (US Survey feet)
    "\356 D\240aw#\012\336m\311)\0" // SPCS83 Delaware zone (meters)
    "\356 Fl\006\257\030E\315\336\204{\225ve\200f\221)\0" // SPCS83 Florida East zone (US Survey feet)
    "\356 Fl\006\257\030E\315\336m\311)\0" // SPCS83 Florida East zone (meters)
    "\356 Fl\006\257\030\324\336\204{\225ve\200f\221)\0" // SPCS83 Florida North zone (US Survey feet)
    "\356 Fl\006\257\030\324\336m\311)\0" // SPCS83 Florida North zone (meters)
    "\356 Fl\006\257\030W\275\336\204{\225ve\200f\221)\0" // SPCS83 Florida West zone (US Survey feet)
    "\356 Fl\006\257\030W\275\336m\311)\0" // SPCS83 Florida West zone (meters)
    "\356 Ge\006g\314E\315\336\204{\225ve\200f\221)\0" // SPCS83 Georgia East zone (US Survey feet)
    "\356 Ge\006g\314E\315\336m\311)\0" // SPCS83 Georgia East zone (meters)
    "\356 Ge\006g\314W\275\336\204{\225ve\200f\221)\0" // SPCS83 Georgia West zone (US Survey feet)
    "\356 Ge\006g\314W\275\336m\311)\0" // SPCS83 Georgia West zone (meters)
    "\356 Hawaii\2701\205m\311)\0" // SPCS83 Hawaii zone 1 (meters)
    "\356 Hawaii\2702\205m\311)\0" // SPCS83 Hawaii zone 2 (meters)
    "\356 Hawaii\2703\205\204{\225ve\200f\221)\0" // SPCS83 Hawaii zone 3 (US Survey feet)
    "\356 Hawaii\2703\205m\311)\0" // SPCS83 Hawaii zone 3 (meters)
    "\356 Hawaii\2704\205m\311)\0" // SPCS83 Hawaii zone 4 (meters)
    "\356 Hawaii\2705\205m\311)\0" // SPCS83 Hawaii zone 5 (meters)
    "\356 Id\373\013C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Idaho Central zone (US Survey feet)
    "\356 Id\373\013C\365\223\336m\311)\0" // SPCS83 Idaho Central zone (meters)
    "\356 Id\373\013E\315\336\204{\225ve\200f\221)\0" // SPCS83 Idaho East zone (US Survey feet)
    "\356 Id\373\013E\315\336m\311)\0" // SPCS83 Idaho East zone (meters)
    "\356 Id\373\013W\275\336\204{\225ve\200f\221)\0" // SPCS83 Idaho West zone (US Survey feet)
    "\356 Id\373\013W\275\336m\311)\0" // SPCS83 Idaho West zone (meters)
    "\356 Ill\024o= E\315\336\204{\225ve\200f\221)\0" // SPCS83 Illinois East zone (US Survey feet)
    "\356 Ill\024o= E\315\336m\311)\0" // SPCS83 Illinois East zone (meters)
    "\356 Ill\024o= W\275\336\204{\225ve\200f\221)\0" // SPCS83 Illinois West zone (US Survey feet)
    "\356 Ill\024o= W\275\336m\311)\0" // SPCS83 Illinois West zone (meters)
    "\356 \355\335\030E\315\336\204{\225ve\200f\221)\0" // SPCS83 Indiana East zone (US Survey feet)
    "\356 \355\335\030E\315\336m\311)\0" // SPCS83 Indiana East zone (meters)
    "\356 \355\335\030W\275\336\204{\225ve\200f\221)\0" // SPCS83 Indiana West zone (US Survey feet)
    "\356 \355\335\030W\275\336m\311)\0" // SPCS83 Indiana West zone (meters)
    "\356 Iow\030\324\336\204{\225ve\200f\221)\0" // SPCS83 Iowa North zone (US Survey feet)
    "\356 Iow\030\324\336m\311)\0" // SPCS83 Iowa North zone (meters)
    "\356 Iow\030\367\336\204{\225ve\200f\221)\0" // SPCS83 Iowa South zone (US Survey feet)
    "\356 Iow\030\367\336m\311)\0" // SPCS83 Iowa South zone (meters)
    "\356 K\005s\201 \324\336\204{\225ve\200f\221)\0" // SPCS83 Kansas North zone (US Survey feet)
    "\356 K\005s\201 \324\336m\311)\0" // SPCS83 Kansas North zone (meters)
    "\356 K\005s\201{\246\336\204{\225ve\200f\221)\0" // SPCS83 Kansas South zone (US Survey feet)
    "\356 K\005s\201{\246\336m\311)\0" // SPCS83 Kansas South zone (meters)
    "\356 Ke\032uck\200\324\336\204{\225ve\200f\221)\0" // SPCS83 Kentucky North zone (US Survey feet)
    "\356 Ke\032uck\200\324\336m\311)\0" // SPCS83 Kentucky North zone (meters)
    "\356 Ke\032ucky{\024gl\012Z\003\012(\204{\225ve\200f\221)\0" // SPCS83 Kentucky Single Zone (US Survey feet)
    "\356 Ke\032ucky{\024gl\012Z\003\012(m\311)\0" // SPCS83 Kentucky Single Zone (meters)
    "\356 Ke\032ucky{\246\336\204{\225ve\200f\221)\0" // SPCS83 Kentucky South zone (US Survey feet)
    "\356 Ke\032ucky{\246\336m\311)\0" // SPCS83 Kentucky South zone (meters)
    "\356 L\025=\335\030\324\336\204{\225ve\200f\221)\0" // SPCS83 Louisiana North zone (US Survey feet)
    "\356 L\025=\335\030\324\336m\311)\0" // SPCS83 Louisiana North zone (meters)
    "\356 L\025=\335\030Off^\006\012\336\204{\225ve\200f\221)\0" // SPCS83 Louisiana Offshore zone (US Survey feet)
    "\356 L\025=\335\030Off^\006\012\336m\311)\0" // SPCS83 Louisiana Offshore zone (meters)
    "\356 L\025=\335\030\367\336\204{\225ve\200f\221)\0" // SPCS83 Louisiana South zone (US Survey feet)
    "\356 L\025=\335\030\367\336m\311)\0" // SPCS83 Louisiana South zone (meters)
    "\356 Ma\024\012E\315\336\204{\225ve\200f\221)\0" // SPCS83 Maine East zone (US Survey feet)
    "\356 Ma\024\012E\315\336m\311)\0" // SPCS83 Maine East zone (meters)
    "\356 Ma\024\012W\275\336\204{\225ve\200f\221)\0" // SPCS83 Maine West zone (US Survey feet)
    "\356 Ma\024\012W\275\336m\311)\0" // SPCS83 Maine West zone (meters)
    "\356 M#y\211\270(\204{\225ve\200f\221)\0" // SPCS83 Maryland zone (US Survey feet)
    "\356 M#y\211\270(m\311)\0" // SPCS83 Maryland zone (meters)
    "\356 M\201sach\357\036ts \352\270(\204{\225ve\200f\221)\0" // SPCS83 Massachusetts Island zone (US Survey feet)
    "\356 M\201sach\357\036ts \352\270(m\311)\0" // SPCS83 Massachusetts Island zone (meters)
    "\356 M\201sach\357\036ts Ma\024\211\270(\204{\225ve\200f\221)\0" // SPCS83 Massachusetts Mainland zone (US Survey feet)
    "\356 M\201sach\357\036ts Ma\024\211\270(m\311)\0" // SPCS83 Massachusetts Mainland zone (meters)
    "\356 M$hig\005\333\365\223\336I\032\007n<\321\223f\221)\0" // SPCS83 Michigan Central zone (International feet)
    "\356 M$hig\005\333\365\223\336m\311)\0" // SPCS83 Michigan Central zone (meters)
    "\356 M$hig\005 \324\336I\032\007n<\321\223f\221)\0" // SPCS83 Michigan North zone (International feet)
    "\356 M$hig\005 \324\336m\311)\0" // SPCS83 Michigan North zone (meters)
    "\356 M$hig\005{\246\336I\032\007n<\321\223f\221)\0" // SPCS83 Michigan South zone (International feet)
    "\356 M$hig\005{\246\336m\311)\0" // SPCS83 Michigan South zone (meters)
    "\356 M\024n\242\350\030C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Minnesota Central zone (US Survey feet)
    "\356 M\024n\242\350\030C\365\223\336m\311)\0" // SPCS83 Minnesota Central zone (meters)
    "\356 M\024n\242\350\030\324\336\204{\225ve\200f\221)\0" // SPCS83 Minnesota North zone (US Survey feet)
    "\356 M\024n\242\350\030\324\336m\311)\0" // SPCS83 Minnesota North zone (meters)
    "\356 M\024n\242\350\030\367\336\204{\225ve\200f\221)\0" // SPCS83 Minnesota South zone (US Survey feet)
    "\356 M\024n\242\350\030\367\336m\311)\0" // SPCS83 Minnesota South zone (meters)
    "\356 M=s=sippi E\315\336\204{\225ve\200f\221)\0" // SPCS83 Mississippi East zone (US Survey feet)
    "\356 M=s=sippi E\315\336m\311)\0" // SPCS83 Mississippi East zone (meters)
    "\356 M=s=sippi W\275\336\204{\225ve\200f\221)\0" // SPCS83 Mississippi West zone (US Survey feet)
    "\356 M=s=sippi W\275\336m\311)\0" // SPCS83 Mississippi West zone (meters)
    "\356 M=s\025ri\333\365\223\336m\311)\0" // SPCS83 Missouri Central zone (meters)
    "\356 M=s\025ri E\315\336m\311)\0" // SPCS83 Missouri East zone (meters)
    "\356 M=s\025ri W\275\336m\311)\0" // SPCS83 Missouri West zone (meters)
    "\356 M\003t\005\030\336I\032\007n<\321\223f\221)\0" // SPCS83 Montana zone (International feet)
    "\356 M\003t\005\030\336m\311)\0" // SPCS83 Montana zone (meters)
    "\356 \310br\201k\030\336\204{\225ve\200f\221)\0" // SPCS83 Nebraska zone (US Survey feet)
    "\356 \310br\201k\030\336m\311)\0" // SPCS83 Nebraska zone (meters)
    "\356 \310v\274\030C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Nevada Central zone (US Survey feet)
    "\356 \310v\274\030C\365\223\336m\311)\0" // SPCS83 Nevada Central zone (meters)
    "\356 \310v\274\030E\315\336\204{\225ve\200f\221)\0" // SPCS83 Nevada East zone (US Survey feet)
    "\356 \310v\274\030E\315\336m\311)\0" // SPCS83 Nevada East zone (meters)
    "\356 \310v\274\030W\275\336\204{\225ve\200f\221)\0" // SPCS83 Nevada West zone (US Survey feet)
    "\356 \310v\274\030W\275\336m\311)\0" // SPCS83 Nevada West zone (meters)
    "\356 \361 H\232p^\342\012\336\204{\225ve\200f\221)\0" // SPCS83 New Hampshire zone (US Survey feet)
    "\356 \361 H\232p^\342\012\336m\311)\0" // SPCS83 New Hampshire zone (meters)
    "\356 \361 J\220e\200\336\204{\225ve\200f\221)\0" // SPCS83 New Jersey zone (US Survey feet)
    "\356 \361 J\220e\200\336m\311)\0" // SPCS83 New Jersey zone (meters)
    "\356 \361 Mex$\013C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 New Mexico Central zone (US Survey feet)
    "\356 \361 Mex$\013C\365\223\336m\311)\0" // SPCS83 New Mexico Central zone (meters)
    "\356 \361 Mex$\013E\315\336\204{\225ve\200f\221)\0" // SPCS83 New Mexico East zone (US Survey feet)
    "\356 \361 Mex$\013E\315\336m\311)\0" // SPCS83 New Mexico East zone (meters)
    "\356 \361 Mex$\013W\275\336\204{\225ve\200f\221)\0" // SPCS83 New Mexico West zone (US Survey feet)
    "\356 \361 Mex$\013W\275\336m\311)\0" // SPCS83 New Mexico West zone (meters)
    "\356 \361 Y\006k\333\365\223\336\204{\225ve\200f\221)\0" // SPCS83 New York Central zone (US Survey feet)
    "\356 \361 Y\006k\333\365\223\336m\311)\0" // SPCS83 New York Central zone (meters)
    "\356 \361 Y\006k E\315\336\204{\225ve\200f\221)\0" // SPCS83 New York East zone (US Survey feet)
    "\356 \361 Y\006k E\315\336m\311)\0" // SPCS83 New York East zone (meters)
    "\356 \361 Y\006k L\003g \352\270(\204{\225ve\200f\221)\0" // SPCS83 New York Long Island zone (US Survey feet)
    "\356 \361 Y\006k L\003g \352\270(m\311)\0" // SPCS83 New York Long Island zone (meters)
    "\356 \361 Y\006k W\275\336\204{\225ve\200f\221)\0" // SPCS83 New York West zone (US Survey feet)
    "\356 \361 Y\006k W\275\336m\311)\0" // SPCS83 New York West zone (meters)
    "\356 \324C#\247\024\030\336\204{\225ve\200f\221)\0" // SPCS83 North Carolina zone (US Survey feet)
    "\356 \324C#\247\024\030\336m\311)\0" // SPCS83 North Carolina zone (meters)
    "\356 \324Dak\350\030\324\336I\032\007n<\321\223f\221)\0" // SPCS83 North Dakota North zone (International feet)
    "\356 \324Dak\350\030\324\336m\311)\0" // SPCS83 North Dakota North zone (meters)
    "\356 \324Dak\350\030\367\336I\032\007n<\321\223f\221)\0" // SPCS83 North Dakota South zone (International feet)
    "\356 \324Dak\350\030\367\336m\311)\0" // SPCS83 North Dakota South zone (meters)
    "\356 Ohi\013\324\336\204{\225ve\200f\221)\0" // SPCS83 Ohio North zone (US Survey feet)
    "\356 Ohi\013\324\336m\311)\0" // SPCS83 Ohio North zone (meters)
    "\356 Ohi\013\367\336\204{\225ve\200f\221)\0" // SPCS83 Ohio South zone (US Survey feet)
    "\356 Ohi\013\367\336m\311)\0" // SPCS83 Ohio South zone (meters)
    "\356 Okl\373\344\030\324\336\204{\225ve\200f\221)\0" // SPCS83 Oklahoma North zone (US Survey feet)
    "\356 Okl\373\344\030\324\336m\311)\0" // SPCS83 Oklahoma North zone (meters)
    "\356 Okl\373\344\030\367\336\204{\225ve\200f\221)\0" // SPCS83 Oklahoma South zone (US Survey feet)
    "\356 Okl\373\344\030\367\336m\311)\0" // SPCS83 Oklahoma South zone (meters)
    "\356 \377\324\336I\032\007n<\321\223f\221)\0" // SPCS83 Oregon North zone (International feet)
    "\356 \377\324\336m\311)\0" // SPCS83 Oregon North zone (meters)
    "\356 \323\003{\246\336I\032\007n<\321\223f\221)\0" // SPCS83 Oregon South zone (International feet)
    "\356 \323\003{\246\336m\311)\0" // SPCS83 Oregon South zone (meters)
    "\356 P\210nsylv\005\314\324\336\204{\225ve\200f\221)\0" // SPCS83 Pennsylvania North zone (US Survey feet)
    "\356 P\210nsylv\005\314\324\336m\311)\0" // SPCS83 Pennsylvania North zone (meters)
    "\356 P\210nsylv\005\314\367\336\204{\225ve\200f\221)\0" // SPCS83 Pennsylvania South zone (US Survey feet)
    "\356 P\210nsylv\005\314\367\336m\311)\0" // SPCS83 Pennsylvania South zone (meters)
    "\356 Pu\007t\013R$\013& V\342g\024 \352s\270(m\311)\0" // SPCS83 Puerto Rico & Virgin Islands zone (meters)
    "\356 Rhod\012\352\270(\204{\225ve\200f\221)\0" // SPCS83 Rhode Island zone (US Survey feet)
    "\356 Rhod\012\352\270(m\311)\0" // SPCS83 Rhode Island zone (meters)
    "\356{\246C#\247\024\030\336I\032\007n<\321\223f\221)\0" // SPCS83 South Carolina zone (International feet)
    "\356{\246C#\247\024\030\336m\311)\0" // SPCS83 South Carolina zone (meters)
    "\356{\246Dak\350\030\324\336\204{\225ve\200f\221)\0" // SPCS83 South Dakota North zone (US Survey feet)
    "\356{\246Dak\350\030\324\336m\311)\0" // SPCS83 South Dakota North zone (meters)
    "\356{\246Dak\350\030\367\336\204{\225ve\200f\221)\0" // SPCS83 South Dakota South zone (US Survey feet)
    "\356{\246Dak\350\030\367\336m\311)\0" // SPCS83 South Dakota South zone (meters)
    "\356 T\210n\242se\012\336\204{\225ve\200f\221)\0" // SPCS83 Tennessee zone (US Survey feet)
    "\356 T\210n\242se\012\336m\311)\0" // SPCS83 Tennessee zone (meters)
    "\356 Tex\201\333\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Texas Central zone (US Survey feet)
    "\356 Tex\201\333\365\223\336m\311)\0" // SPCS83 Texas Central zone (meters)
    "\356 Tex\201 \324C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Texas North Central zone (US Survey feet)
    "\356 Tex\201 \324C\365\223\336m\311)\0" // SPCS83 Texas North Central zone (meters)
    "\356 Tex\201 \324\336\204{\225ve\200f\221)\0" // SPCS83 Texas North zone (US Survey feet)
    "\356 Tex\201 \324\336m\311)\0" // SPCS83 Texas North zone (meters)
    "\356 Tex\201{\246C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Texas South Central zone (US Survey feet)
    "\356 Tex\201{\246C\365\223\336m\311)\0" // SPCS83 Texas South Central zone (meters)
    "\356 Tex\201{\246\336\204{\225ve\200f\221)\0" // SPCS83 Texas South zone (US Survey feet)
    "\356 Tex\201{\246\336m\311)\0" // SPCS83 Texas South zone (meters)
    "\356 Ut\373\333\365\223\336I\032\007n<\321\223f\221)\0" // SPCS83 Utah Central zone (International feet)
    "\356 Ut\373\333\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Utah Central zone (US Survey feet)
    "\356 Ut\373\333\365\223\336m\311)\0" // SPCS83 Utah Central zone (meters)
    "\356 Ut\373 \324\336I\032\007n<\321\223f\221)\0" // SPCS83 Utah North zone (International feet)
    "\356 Ut\373 \324\336\204{\225ve\200f\221)\0" // SPCS83 Utah North zone (US Survey feet)
    "\356 Ut\373 \324\336m\311)\0" // SPCS83 Utah North zone (meters)
    "\356 Ut\373{\246\336I\032\007n<\321\223f\221)\0" // SPCS83 Utah South zone (International feet)
    "\356 Ut\373{\246\336\204{\225ve\200f\221)\0" // SPCS83 Utah South zone (US Survey feet)
    "\356 Ut\373{\246\336m\311)\0" // SPCS83 Utah South zone (meters)
    "\356 V\007m\003t\270(\204{\225ve\200f\221)\0" // SPCS83 Vermont zone (US Survey feet)
    "\356 V\007m\003t\270(m\311)\0" // SPCS83 Vermont zone (meters)
    "\356 V\342g\024\314\324\336\204{\225ve\200f\221)\0" // SPCS83 Virginia North zone (US Survey feet)
    "\356 V\342g\024\314\324\336m\311)\0" // SPCS83 Virginia North zone (meters)
    "\356 V\342g\024\314\367\336\204{\225ve\200f\221)\0" // SPCS83 Virginia South zone (US Survey feet)
    "\356 V\342g\024\314\367\336m\311)\0" // SPCS83 Virginia South zone (meters)
    "\356 Wa^\024gt\222\324\336\204{\225ve\200f\221)\0" // SPCS83 Washington North zone (US Survey feet)
    "\356 Wa^\024gt\222\324\336m\311)\0" // SPCS83 Washington North zone (meters)
    "\356 Wa^\024gt\003{\246\336\204{\225ve\200f\221)\0" // SPCS83 Washington South zone (US Survey feet)
    "\356 Wa^\024gt\003{\246\336m\311)\0" // SPCS83 Washington South zone (meters)
    "\356 W\275V\342g\024\314\324\336\204{\225ve\200f\221)\0" // SPCS83 West Virginia North zone (US Survey feet)
    "\356 W\275V\342g\024\314\324\336m\311)\0" // SPCS83 West Virginia North zone (meters)
    "\356 W\275V\342g\024\314\367\336\204{\225ve\200f\221)\0" // SPCS83 West Virginia South zone (US Survey feet)
    "\356 W\275V\342g\024\314\367\336m\311)\0" // SPCS83 West Virginia South zone (meters)
    "\356 W=c\003s\024\333\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Wisconsin Central zone (US Survey feet)
    "\356 W=c\003s\024\333\365\223\336m\311)\0" // SPCS83 Wisconsin Central zone (meters)
    "\356 W=c\003s\024 \324\336\204{\225ve\200f\221)\0" // SPCS83 Wisconsin North zone (US Survey feet)
    "\356 W=c\003s\024 \324\336m\311)\0" // SPCS83 Wisconsin North zone (meters)
    "\356 W=c\003s\024{\246\336\204{\225ve\200f\221)\0" // SPCS83 Wisconsin South zone (US Survey feet)
    "\356 W=c\003s\024{\246\336m\311)\0" // SPCS83 Wisconsin South zone (meters)
    "\356 Wy\344\024g E\315C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Wyoming East Central zone (US Survey feet)
    "\356 Wy\344\024g E\315C\365\223\336m\311)\0" // SPCS83 Wyoming East Central zone (meters)
    "\356 Wy\344\024g E\315\336\204{\225ve\200f\221)\0" // SPCS83 Wyoming East zone (US Survey feet)
    "\356 Wy\344\024g E\315\336m\311)\0" // SPCS83 Wyoming East zone (meters)
    "\356 Wy\344\024g W\275C\365\223\336\204{\225ve\200f\221)\0" // SPCS83 Wyoming West Central zone (US Survey feet)
    "\356 Wy\344\024g W\275C\365\223\336m\311)\0" // SPCS83 Wyoming West Central zone (meters)
    "\356 Wy\344\024g W\275\336\204{\225ve\200f\221)\0" // SPCS83 Wyoming West zone (US Survey feet)
    "\356 Wy\344\024g W\275\336m\311)\0" // SPCS83 Wyoming West zone (meters)
    "SRB_ET|89\0" // SRB_ETRS89
    "SRB_ET|89\011U\250\27034N\0" // SRB_ETRS89 / UTM zone 34N
    "SRB_ET|89_U\376!\20734N\0" // SRB_ETRS89_UTM_zone_34N
    "SREF98\0" // SREF98
    "SRGI\03313\0" // SRGI2013
    "SRGI\03313\011U\250\27046N\0" // SRGI2013 / UTM zone 46N
    "SRGI\03313\011U\250\27047N\0" // SRGI2013 / UTM zone 47N
    "SRGI\03313\011U\250\27047S\0" // SRGI2013 / UTM zone 47S
    "SRGI\03313\011U\250\27048N\0" // SRGI2013 / UTM zone 48N
    "SRGI\03313\011U\250\27048S\0" // SRGI2013 / UTM zone 48S
    "SRGI\03313\011U\250\27049N\0" // SRGI2013 / UTM zone 49N
    "SRGI\03313\011U\250\27049S\0" // SRGI2013 / UTM zone 49S
    "SRGI\03313\011U\250\27050N\0" // SRGI2013 / UTM zone 50N
    "SRGI\03313\011U\250\27050S\0" // SRGI2013 / UTM zone 50S
    "SRGI\03313\011U\250\27051N\0" // SRGI2013 / UTM zone 51N
    "SRGI\03313\011U\250\27051S\0" // SRGI2013 / UTM zone 51S
    "SRGI\03313\011U\250\27052N\0" // SRGI2013 / UTM zone 52N
    "SRGI\03313\011U\250\27052S\0" // SRGI2013 / UTM zone 52S
    "SRGI\03313\011U\250\27053S\0" // SRGI2013 / UTM zone 53S
    "SRGI\03313\011U\250\27054S\0" // SRGI2013 / UTM zone 54S
    "SRGI\03313_U\376!\207\0" // SRGI2013_UTM_zone_
    "ST71 B\240ep\0" // ST71 Belep
    "ST71 B\240ep\011U\250\27058S\0" // ST71 Belep / UTM zone 58S
    "ST71_B\240ep\0" // ST71_Belep
    "ST71_B\240ep_U\37658S\0" // ST71_Belep_UTM_58S
    "ST84 Il\012d\242 P\024s\0" // ST84 Ile des Pins
    "ST84 Il\012d\242 P\024s\011U\250\27058S\0" // ST84 Ile des Pins / UTM zone 58S
    "ST84_Il\207d\242_P\024s\0" // ST84_Ile_des_Pins
    "ST84_Il\207d\242_P\024s_U\37658S\0" // ST84_Ile_des_Pins_UTM_58S
    "ST87 Ouvea\0" // ST87 Ouvea
    "ST87 Ouvea\011U\250\27058S\0" // ST87 Ouvea / UTM zone 58S
    "ST87_Ouvea\0" // ST87_Ouvea
    "ST87_Ouve\253U\37658S\0" // ST87_Ouvea_UTM_58S
    "ST|00\0" // STRS00
    "SVY21\0" // SVY21
    "SVY21\011S\024gap\006\012\250\0" // SVY21 / Singapore TM
    "SVY21 pl\005\012co\006d\024<\012sy\021\206\0" // SVY21 plane coordinate system
    "SVY21_S\024gap\202_\250\0" // SVY21_Singapore_TM
    "SW Afr$\005 @\270\0" // SW African CS zone 
    "SWEREF99\0" // SWEREF99
    "SWEREF99\011RT90 0 g\222\206ul<\321\0" // SWEREF99 / RT90 0 gon emulation
    "SWEREF99\011RT90 2\224 g\222O \206ul<\321\0" // SWEREF99 / RT90 2.5 gon O emulation
    "SWEREF99\011RT90 2\224 g\222V \206ul<\321\0" // SWEREF99 / RT90 2.5 gon V emulation
    "SWEREF99\011RT90 5 g\222O \206ul<\321\0" // SWEREF99 / RT90 5 gon O emulation
    "SWEREF99\011RT90 5 g\222V \206ul<\321\0" // SWEREF99 / RT90 5 gon V emulation
    "SWEREF99\011RT90 7\224 g\222V \206ul<\321\0" // SWEREF99 / RT90 7.5 gon V emulation
    "SWEREF99 12 00\0" // SWEREF99 12 00
    "SWEREF99 13 30\0" // SWEREF99 13 30
    "SWEREF99 14 15\0" // SWEREF99 14 15
    "SWEREF99 15 00\0" // SWEREF99 15 00
    "SWEREF99 15 45\0" // SWEREF99 15 45
    "SWEREF99 16 30\0" // SWEREF99 16 30
    "SWEREF99 17 15\0" // SWEREF99 17 15
    "SWEREF99 18 00\0" // SWEREF99 18 00
    "SWEREF99 18 45\0" // SWEREF99 18 45
    "SWEREF99 \033 15\0" // SWEREF99 20 15
    "SWEREF99 21 45\0" // SWEREF99 21 45
    "SWEREF99 23 15\0" // SWEREF99 23 15
    "SWEREF99 \250\0" // SWEREF99 TM
    "SWEREF99_\0" // SWEREF99_
    "S_JTSK\0" // S_JTSK
    "S_JTSK/05\0" // S_JTSK/05
    "S_JTSK/05_F\007ro\0" // S_JTSK/05_Ferro
    "S_JTSK_05\0" // S_JTSK_05
    "S_JTSK_05_F\007ro\0" // S_JTSK_05_Ferro
    "S_JTSK_F\007ro\0" // S_JTSK_Ferro
    "Sa\024t Pi\007r\012\036 Miqu\240\222\03150\0" // Saint Pierre et Miquelon 1950
    "Sa\024t Pi\007r\012\036 Miqu\240\222\03150\011U\250\27021N\0" // Saint Pierre et Miquelon 1950 / UTM zone 21N
    "Sa\024t_Pi\007>_\036_Miqu\240\003\21250\0" // Saint_Pierre_et_Miquelon_1950
    "Sa\024t_Pi\007>_\036_Miqu\240\003\21250_U\37621N\0" // Saint_Pierre_et_Miquelon_1950_UTM_21N
    "Sa\024t\012Anne\0" // Sainte Anne
    "Sa\024t\207Anne\0" // Sainte_Anne
    "Sa\024t\207Ann\207U\376\033N\0" // Sainte_Anne_UTM_20N
    "S\026\206_\017\212\014_\231_\250\366_I\032l\0" // Salem_NAD_1983_2011_TM_Feet_Intl
    "S\026\206_\017\212\014_\231_\376M\311\0" // Salem_NAD_1983_2011_TM_Meters
    "S\026\206_\017\212\014_CO|96_\250\366_I\032l\0" // Salem_NAD_1983_CORS96_TM_Feet_Intl
    "S\026\206_\017\212\014_CO|96_\376M\311\0" // Salem_NAD_1983_CORS96_TM_Meters
    "S\232boja\0" // Samboja
    "S\232boj\030(Jak#ta)\0" // Samboja (Jakarta)
    "S\232boja\011U\250\27050S\0" // Samboja / UTM zone 50S
    "S\232boj\030P2 exc T9\0" // Samboja P2 exc T9
    "S\232boj\253U\376Z\003\20750S\0" // Samboja_UTM_Zone_50S
    "S\232drup_J\003gkh#_\250\0" // Samdrup_Jongkhar_TM
    "S\232oa\21262_S\232o\253L\232b\007t\0" // Samoa_1962_Samoa_Lambert
    "S\232ts\207\250\0" // Samtse_TM
    "S\005_And>s_\2277\0" // San_Andres_2007
    "S\005\134r\005c=co_@13_M\311\0" // San_Francisco_CS13_Meters
    "S\005\134r\005c=co_@13_ft\204\0" // San_Francisco_CS13_ftUS
    "S\005_Jos\207d\240_Guavi#\207\03311\0" // San_Jose_del_Guaviare_2011
    "S\005t\253M#t\253Magd\026\210\253\2277\0" // Santa_Marta_Magdalena_2007
    "S\005t\013(DOS)\0" // Santo (DOS)
    "S\005t\013\03165\0" // Santo 1965
    "S\005to_DOS\21265\0" // Santo_DOS_1965
    "Sa\013T\344\012\301Pr\024cip\226\237\002Pr\024cipe\0" // Sao Tome and Principe - onshore - Principe
    "Sa\013T\344\012\301Pr\024cip\226\237\002Sa\013T\344e\0" // Sao Tome and Principe - onshore - Sao Tome
    "Sao_T\344e\0" // Sao_Tome
    "Sapp\007 H\372l\32043\0" // Sapper Hill 1943
    "Sapp\007 H\372l\32043\011U\250\270\033S\0" // Sapper Hill 1943 / UTM zone 20S
    "Sapp\007 H\372l\32043\011U\250\27021S\0" // Sapper Hill 1943 / UTM zone 21S
    "Sapp\007_H\372l\21243\0" // Sapper_Hill_1943
    "Sapp\007_H\372l\21243_U\376Z\003\207\033S\0" // Sapper_Hill_1943_UTM_Zone_20S
    "Sapp\007_H\372l\21243_U\376Z\003\20721S\0" // Sapper_Hill_1943_UTM_Zone_21S
    "S#p\005g_\250\0" // Sarpang_TM
    "Saudi \326ab\21536}42\015\0" // Saudi Arabia - 36°E to 42°E
    "Saudi \326ab\21542}48\015\0" // Saudi Arabia - 42°E to 48°E
    "Saudi \326ab\21548}54\015\0" // Saudi Arabia - 48°E to 54°E
    "Saudi \326ab\215e\315\25254\015\0" // Saudi Arabia - east of 54°E
    "Saudi \326ab\215\237\0" // Saudi Arabia - onshore
    "Saudi \326ab\215\213\006\01236}42\015\0" // Saudi Arabia - onshore 36°E to 42°E
    "Saudi \326ab\215\213\006\012w\275\25236\015\0" // Saudi Arabia - onshore west of 36°E
    "Saudi \326ab\215w\275\25236\015\0" // Saudi Arabia - west of 36°E
    "Sauk\374\025\032y\366\0" // Sauk_County_Feet
    "Sauk\374\025\032y_M\311\0" // Sauk_County_Meters
    "Sauk\366\0" // Sauk_Feet
    "Sauk_M\311\0" // Sauk_Meters
    "Sawy\007\374\025\032y\366\0" // Sawyer_County_Feet
    "Sawy\007\374\025\032y_M\311\0" // Sawyer_County_Meters
    "Sawy\007\366\0" // Sawyer_Feet
    "Sawy\007_M\311\0" // Sawyer_Meters
    "Schw#zeck\0" // Schwarzeck
    "Schw#zeck\011Lo22/11\0" // Schwarzeck / Lo22/11
    "Schw#zeck\011Lo22/13\0" // Schwarzeck / Lo22/13
    "Schw#zeck\011Lo22/15\0" // Schwarzeck / Lo22/15
    "Schw#zeck\011Lo22/17\0" // Schwarzeck / Lo22/17
    "Schw#zeck\011Lo22/19\0" // Schwarzeck / Lo22/19
    "Schw#zeck\011Lo22/21\0" // Schwarzeck / Lo22/21
    "Schw#zeck\011Lo22/23\0" // Schwarzeck / Lo22/23
    "Schw#zeck\011Lo22/25\0" // Schwarzeck / Lo22/25
    "Schw#zeck\011U\250\27033S\0" // Schwarzeck / UTM zone 33S
    "Schw#zeck_U\376Z\003\20733S\0" // Schwarzeck_UTM_Zone_33S
    "Sc\202sbysund\32052\0" // Scoresbysund 1952
    "Sc\202sbysund\32052\011G>\210\211\2705 ea\021\0" // Scoresbysund 1952 / Greenland zone 5 east
    "Sc\202sbysund\32052\011G>\210\211\2706 ea\021\0" // Scoresbysund 1952 / Greenland zone 6 east
    "Sc\202sbysund\21252\0" // Scoresbysund_1952
    "Seg#\030(Jak#ta%NEIEZ\0" // Segara (Jakarta) / NEIEZ
    "Seg#a\011NEIEZ\0" // Segara / NEIEZ
    "Seg#a\011U\250\27050S\0" // Segara / UTM zone 50S
    "Seg\006a\0" // Segora
    "S\240\005g\006\333\201s\024i Gr\257\0" // Selangor Cassini Grid
    "S\240vag\206 Gr\035e\0" // Selvagem Grande
    "S\240vag\206 Gr\035e\011U\250\27028N\0" // Selvagem Grande / UTM zone 28N
    "S\240vag\206 Gr\035\012\03138\0" // Selvagem Grande 1938
    "S\240vag\206_Gr\035\207\03138\0" // Selvagem_Grande_1938
    "S\240vag\206_Gr\035\207\03138_U\376Z\003\20728N\0" // Selvagem_Grande_1938_UTM_Zone_28N
    "S\206b\372\005 \301M\240ak\030C\201s\024i Gr\257\0" // Sembilan and Melaka Cassini Grid
    "S\210eg\026\0" // Senegal
    "S\007bia\0" // Serbia
    "S\007b\335 Ref\007\210c\012N\036w\006k \03198\0" // Serbian Reference Network 1998
    "S\007b\335{p<i\223Ref\007\210c\012Sy\021\206 \2270\0" // Serbian Spatial Reference System 2000
    "S\007b\335_Ref\007\210c\207N\036w\006k_\03198\0" // Serbian_Reference_Network_1998
    "S\007b\335_Sp<i\026_Ref\007\210c\207Sy\021\206_\2270\0" // Serbian_Spatial_Reference_System_2000
    "S\007\024dung\0" // Serindung
    "Seych\240l\242\002M\373\012\352\0" // Seychelles - Mahe Island
    "Seych\240l\242\002Seych\240l\242 B\005k\0" // Seychelles - Seychelles Bank
    "Shaw\005o\374\025\032y\366\0" // Shawano_County_Feet
    "Shaw\005o\374\025\032y_M\311\0" // Shawano_County_Meters
    "Shaw\005o\366\0" // Shawano_Feet
    "Shaw\005o_M\311\0" // Shawano_Meters
    "Sh\240by_(ft\204)\0" // Shelby_(ftUS)
    "Sh\240by_(m)\0" // Shelby_(m)
    "Sibun G\006g\012\03122\0" // Sibun Gorge 1922
    "Sibun G\006g\012\03122\011C\247\003\200Gr\257\0" // Sibun Gorge 1922 / Colony Grid
    "Sibun_G\006g\207\03122\0" // Sibun_Gorge_1922
    "Sibun_G\006g\207\03122\374\247\003y_Gr\257\0" // Sibun_Gorge_1922_Colony_Grid
    "Si\007r\030Le\003\226F>\036own P\210\024sula\0" // Sierra Leone - Freetown Peninsula
    "Si\007r\030Le\003\226e\315\25212\037\0" // Sierra Leone - east of 12°W
    "Si\007r\030Le\003\226\237\0" // Sierra Leone - onshore
    "Si\007r\030Le\003\226w\275\25212\037\0" // Sierra Leone - west of 12°W
    "Si\007r\030Le\003\012\03124\0" // Sierra Leone 1924
    "Si\007r\030Le\003\012\03124\011\361\333\247\003\200Gr\257\0" // Sierra Leone 1924 / New Colony Grid
    "Si\007r\030Le\003\012\03124\011\361 W# Off$\012Gr\257\0" // Sierra Leone 1924 / New War Office Grid
    "Si\007r\030Le\003\012\03168\0" // Sierra Leone 1968
    "Si\007r\030Le\003\012\03168\011U\250\27028N\0" // Sierra Leone 1968 / UTM zone 28N
    "Si\007r\030Le\003\012\03168\011U\250\27029N\0" // Sierra Leone 1968 / UTM zone 29N
    "Si\007r\030Le\003\01268 /U\250 28N\0" // Sierra Leone 68 /UTM 28N
    "Si\007r\030Le\003\01268 /U\250 29N\0" // Sierra Leone 68 /UTM 29N
    "Si\007r\030Le\003\012C\247\003\200\03124\0" // Sierra Leone Colony 1924
    "Si\007r\030Le\003\012\361\333\247\003\200Gr\257\0" // Sierra Leone New Colony Grid
    "Si\007r\030Le\003\012P\210\024sul#\32024\0" // Sierra Leone Peninsular 1924
    "Si\007r\253Le\003\207\03124\0" // Sierra_Leone_1924
    "Si\007r\253Le\003\207\03124_\361\374\247\003y_Gr\257\0" // Sierra_Leone_1924_New_Colony_Grid
    "Si\007r\253Le\003\207\03124_\361_W#_Off$\207Gr\257\0" // Sierra_Leone_1924_New_War_Office_Grid
    "Si\007r\253Le\003\207\03168\0" // Sierra_Leone_1968
    "Si\007r\253Le\003\207\03168_U\376Z\003\20728N\0" // Sierra_Leone_1968_UTM_Zone_28N
    "Si\007r\253Le\003\207\03168_U\376Z\003\20729N\0" // Sierra_Leone_1968_UTM_Zone_29N
    "Sikkim \334F \250\0" // Sikkim NSF TM
    "S\024gap\006\012Tr\005sv\220\012M\007c<\006\0" // Singapore Transverse Mercator
    "S\024gap\202_Gr\257\0" // Singapore_Grid
    "S=kiy\025_P\201s_\017\212\014_\231_LCC\134t_I\032l\0" // Siskiyou_Pass_NAD_1983_2011_LCC_Ft_Intl
    "S=kiy\025_P\201s_\017\212\014_\231_LCC_M\311\0" // Siskiyou_Pass_NAD_1983_2011_LCC_Meters
    "Si\021\206 Ref\007\210si Geosp\201i\223\355\003\242\314\03313\0" // Sistem Referensi Geospasial Indonesia 2013
    "Si\021\206_Ref\007\210si_Geosp\201i\026_\355\003\242i\253\03313\0" // Sistem_Referensi_Geospasial_Indonesia_2013
    "Si\021\206\030Geod\242$\013Nac\321\223d\012P\005\232\030MAC\245IO{OLIS\0" // Sistema Geodesico Nacional de Panama MACARIO SOLIS
    "Si\021\206\030Geod\303\251s$\013Nac\321\026\0" // Sistema Geodésico Nacional
    "Si\021\206\030d\012Ref\007\210c\314Geoc\365$\013p#\030Am\007$\030d\240{\225\32095\0" // Sistema de Referencia Geocentrico para America del Sur 1995
    "Si\021\206\030d\012Ref\007\210c\314Geoc\365$\013p#\030Am\007$\030d\240{\225 \2270\0" // Sistema de Referencia Geocentrico para America del Sur 2000
    "Si\021\206\030d\012Ref\007\210c\314Geoc\365$\013p#\030l\201 Am\007$aS \2270\0" // Sistema de Referencia Geocentrico para las AmericaS 2000
    "Si\021\007 \352s Geod\036$ D<um\32061\0" // Sister Islands Geodetic Datum 1961
    "Si\021\007 \352s N<\321\223Gr\257\32061\0" // Sister Islands National Grid 1961
    "Si\021\007_\352s_N<\321\026_Gr\257\21261\0" // Sister_Islands_National_Grid_1961
    "Slovakia\0" // Slovakia
    "Slov\210ia\0" // Slovenia
    "Slov\210\314\03196\0" // Slovenia 1996
    "Slov\210\314\03196\011Slov\210\012N<\321\223Gr\257\0" // Slovenia 1996 / Slovene National Grid
    "Slov\210\314\03196\011U\250\27033N\0" // Slovenia 1996 / UTM zone 33N
    "Slov\210\314Geod\036$ D<um \03196\0" // Slovenia Geodetic Datum 1996
    "Slov\210i\253\03196\0" // Slovenia_1996
    "Slov\210ia\21296_Slov\210\207N<\321\026_Gr\257\0" // Slovenia_1996_Slovene_National_Grid
    "Slov\210ia\21296_U\376Z\003\20733N\0" // Slovenia_1996_UTM_Zone_33N
    "Slov\210i\253Geod\036$_D<um_\03196\0" // Slovenia_Geodetic_Datum_1996
    "S\247\344\222\03168\0" // Solomon 1968
    "S\247\344\222\352s\002\213\006\012ma\024 =\211s\0" // Solomon Islands - onshore main islands
    "S\247\344\003\21268\0" // Solomon_1968
    "S\344\026\21542}48\015\307N\305\012\237\0" // Somalia - 42°E to 48°E, N hemisphere onshore
    "S\344\026\215\237\0" // Somalia - onshore
    "S\344\026\215\213\006\012e\315\25248\015\0" // Somalia - onshore east of 48°E
    "\367Afr\34618}\033\015\0" // South Africa - 18°E to 20°E
    "\367Afr\346\033}22\015\0" // South Africa - 20°E to 22°E
    "\367Afr\34622}24\015\0" // South Africa - 22°E to 24°E
    "\367Afr\34624}26\015\0" // South Africa - 24°E to 26°E
    "\367Afr\34626}28\015\0" // South Africa - 26°E to 28°E
    "\367Afr\34628}\375\015\0" // South Africa - 28°E to 30°E
    "\367Afr\346\375}32\015\0" // South Africa - 30°E to 32°E
    "\367Afr\346Pr\024c\012Edw#d =\211s\002\213\006\012\301\216f^\202\0" // South Africa - Prince Edward islands - onshore and offshore
    "\367Afr\346e\315\25232\015\0" // South Africa - east of 32°E
    "\367Afr\346ma\024\211\002\213\006\012\301\216f^\202\0" // South Africa - mainland - onshore and offshore
    "\367Afr\346w\275\25218\015\0" // South Africa - west of 18°E
    "\367Afr$\030B\201${\225ve\200Un\243 Alb\220 25E\0" // South Africa Basic Survey Unit Albers 25E
    "\367Afr$\030B\201${\225ve\200Un\243 Alb\220 44E\0" // South Africa Basic Survey Unit Albers 44E
    "\367Afr$\005 @\270\0" // South African CS zone 
    "\367Afr$\005\333o\006d\024<\012Sy\021\206\270\0" // South African Coordinate System zone 
    "\367Afr$\005{\225ve\200Gr\257\27015\0" // South African Survey Grid zone 15
    "\367Afr$\005{\225ve\200Gr\257\27017\0" // South African Survey Grid zone 17
    "\367Afr$\005{\225ve\200Gr\257\27019\0" // South African Survey Grid zone 19
    "\367Afr$\005{\225ve\200Gr\257\27021\0" // South African Survey Grid zone 21
    "\367Afr$\005{\225ve\200Gr\257\27023\0" // South African Survey Grid zone 23
    "\367Afr$\005{\225ve\200Gr\257\27025\0" // South African Survey Grid zone 25
    "\367Afr$\005{\225ve\200Gr\257\27027\0" // South African Survey Grid zone 27
    "\367Afr$\005{\225ve\200Gr\257\27029\0" // South African Survey Grid zone 29
    "\367Afr$\005{\225ve\200Gr\257\27031\0" // South African Survey Grid zone 31
    "\367Afr$\005{\225ve\200Gr\257\27033\0" // South African Survey Grid zone 33
    "\367Am\007\34636\217\375\037\0" // South America - 36°W to 30°W
    "\367Am\007\34642\21736\037\0" // South America - 42°W to 36°W
    "\367Am\007\34648\21742\037\0" // South America - 48°W to 42°W
    "\367Am\007\34654\21748\037\307N\305e\0" // South America - 54°W to 48°W, N hemisphere
    "\367Am\007\34654\21748\037\307N\305\012\035{\01669 \363\0" // South America - 54°W to 48°W, N hemisphere and SAD69 by country
    "\367Am\007\34654\21748\037\307N\305\012\035{IRGAS \2270 \363\0" // South America - 54°W to 48°W, N hemisphere and SIRGAS 2000 by country
    "\367Am\007\34654\21748\037,{\305e\0" // South America - 54°W to 48°W, S hemisphere
    "\367Am\007\34654\21748\037,{\305\012\035{\01669 \363\0" // South America - 54°W to 48°W, S hemisphere and SAD69 by country
    "\367Am\007\34654\21748\037,{\305\012\035{IRGAS \2270 \363\0" // South America - 54°W to 48°W, S hemisphere and SIRGAS 2000 by country
    "\367Am\007\34660\21754\037\307N\305e\0" // South America - 60°W to 54°W, N hemisphere
    "\367Am\007\34660\21754\037\307N\305\012\301\236\01656 \363\0" // South America - 60°W to 54°W, N hemisphere and PSAD56 by country
    "\367Am\007\34660\21754\037\307N\305\012\035{\01669 \363\0" // South America - 60°W to 54°W, N hemisphere and SAD69 by country
    "\367Am\007\34660\21754\037\307N\305\012\035{IRGAS \2270 \363\0" // South America - 60°W to 54°W, N hemisphere and SIRGAS 2000 by country
    "\367Am\007\34660\21754\037,{\305e\0" // South America - 60°W to 54°W, S hemisphere
    "\367Am\007\34660\21754\037,{\305\012\035{\01669 \363\0" // South America - 60°W to 54°W, S hemisphere and SAD69 by country
    "\367Am\007\34660\21754\037,{\305\012\035{IRGAS \2270 \363\0" // South America - 60°W to 54°W, S hemisphere and SIRGAS 2000 by country
    "\367Am\007\34666\21760\037\307N\305e\0" // South America - 66°W to 60°W, N hemisphere
    "\367Am\007\34666\21760\037\307N\305\012\301\236\01656 \363\0" // South America - 66°W to 60°W, N hemisphere and PSAD56 by country
    "\367Am\007\34666\21760\037\307N\305\012\035{\01669 \363\0" // South America - 66°W to 60°W, N hemisphere and SAD69 by country
    "\367Am\007\34666\21760\037\307N\305\012\035{IRGAS \2270 \363\0" // South America - 66°W to 60°W, N hemisphere and SIRGAS 2000 by country
    "\367Am\007\34666\21760\037,{\305e\0" // South America - 66°W to 60°W, S hemisphere
    "\367Am\007\34666\21760\037,{\305\012\035{\01669 \363\0" // South America - 66°W to 60°W, S hemisphere and SAD69 by country
    "\367Am\007\34666\21760\037,{\305\012\035{IRGAS \2270 \363\0" // South America - 66°W to 60°W, S hemisphere and SIRGAS 2000 by country
    "\367Am\007\34672\21766\037\307N\305e\0" // South America - 72°W to 66°W, N hemisphere
    "\367Am\007\34672\21766\037\307N\305\012\301\236\01656 \363\0" // South America - 72°W to 66°W, N hemisphere and PSAD56 by country
    "\367Am\007\34672\21766\037\307N\305\012\035{IRGAS \2270 \363\0" // South America - 72°W to 66°W, N hemisphere and SIRGAS 2000 by country
    "\367Am\007\34672\21766\037\307N\305\012\237\0" // South America - 72°W to 66°W, N hemisphere onshore
    "\367Am\007\34672\21766\037,{\305e\0" // South America - 72°W to 66°W, S hemisphere
    "\367Am\007\34672\21766\037,{\305\012\301\236\01656 \363\0" // South America - 72°W to 66°W, S hemisphere and PSAD56 by country
    "\367Am\007\34672\21766\037,{\305\012\035{IRGAS \2270 \363\0" // South America - 72°W to 66°W, S hemisphere and SIRGAS 2000 by country
    "\367Am\007\34672\21766\037,{\305\012\237\0" // South America - 72°W to 66°W, S hemisphere onshore
    "\367Am\007\34678\21772\037\307N\305e\0" // South America - 78°W to 72°W, N hemisphere
    "\367Am\007\34678\21772\037\307N\305\012\301\236\01656 \363\0" // South America - 78°W to 72°W, N hemisphere and PSAD56 by country
    "\367Am\007\34678\21772\037\307N\305\012\035{\01669 \363\0" // South America - 78°W to 72°W, N hemisphere and SAD69 by country
    "\367Am\007\34678\21772\037,{\305\012\301\236\01656 \363\0" // South America - 78°W to 72°W, S hemisphere and PSAD56 by country
    "\367Am\007\34678\21772\037,{\305\012\035{\01669 \363\0" // South America - 78°W to 72°W, S hemisphere and SAD69 by country
    "\367Am\007\34678\21772\037,{\305\012\035{IRGAS\32095 \363\0" // South America - 78°W to 72°W, S hemisphere and SIRGAS 1995 by country
    "\367Am\007\34678\21772\037,{\305\012\035{IRGAS \2270 \363\0" // South America - 78°W to 72°W, S hemisphere and SIRGAS 2000 by country
    "\367Am\007\34684\21778\037\307N\305\012\301\236\01656 \363\0" // South America - 84°W to 78°W, N hemisphere and PSAD56 by country
    "\367Am\007\34684\21778\037\307N\305\012\035{\01669 \363\0" // South America - 84°W to 78°W, N hemisphere and SAD69 by country
    "\367Am\007\34684\21778\037\307N\305\012\035{IRGAS95 \363\0" // South America - 84°W to 78°W, N hemisphere and SIRGAS95 by country
    "\367Am\007\34684\21778\037,{\305e\0" // South America - 84°W to 78°W, S hemisphere
    "\367Am\007\34684\21778\037,{\305\012\301\236\01656 \363\0" // South America - 84°W to 78°W, S hemisphere and PSAD56 by country
    "\367Am\007\34684\21778\037,{\305\012\035{\01669 \363\0" // South America - 84°W to 78°W, S hemisphere and SAD69 by country
    "\367Am\007\34684\21778\037,{\305\012\035{IRGAS95 \363\0" // South America - 84°W to 78°W, S hemisphere and SIRGAS95 by country
    "\367Am\007\346B\370z\372\002s\246\25218\004S \301w\275\25254\037 + DF; N P#aguay\0" // South America - Brazil - south of 18°S and west of 54°W + DF; N Paraguay
    "\367Am\007\346\236\01656 \363\0" // South America - PSAD56 by country
    "\367Am\007\346S\01669 \363\0" // South America - SAD69 by country
    "\367Am\007\346SIRGAS\32095 \363\0" // South America - SIRGAS 1995 by country
    "\367Am\007\346Ti\007r\030d\240 Fuego\0" // South America - Tierra del Fuego
    "\367Am\007\346U\250 17S \035{\01669 \363\0" // South America - UTM 17S and SAD69 by country
    "\367Am\007\346U\250 18N \035{\01669 \363\0" // South America - UTM 18N and SAD69 by country
    "\367Am\007\346U\250 18S \035{\01669 \363\0" // South America - UTM 18S and SAD69 by country
    "\367Am\007\346U\250\320N \035{\01669 \363\0" // South America - UTM 19N and SAD69 by country
    "\367Am\007\346U\250\320S \035{\01669 \363\0" // South America - UTM 19S and SAD69 by country
    "\367Am\007\346U\250 \033N \035{\01669 \363\0" // South America - UTM 20N and SAD69 by country
    "\367Am\007\346U\250 \033S \035{\01669 \363\0" // South America - UTM 20S and SAD69 by country
    "\367Am\007\346U\250 21N \301S\01669\0" // South America - UTM 21N and SAD69
    "\367Am\007$\005 D<um\32069\0" // South American Datum 1969
    "\367Am\007$\005 D<um\32069(96)\0" // South American Datum 1969(96)
    "\367Au\021r\026\314L\232b\007t\0" // South Australia Lambert
    "\367C#\247\024\030@\313 \324!e\0" // South Carolina CS27 North zone
    "\367C#\247\024\030@\313{\246!e\0" // South Carolina CS27 South zone
    "\367Dak\350\030@\313 \324!e\0" // South Dakota CS27 North zone
    "\367Dak\350\030@\313{\246!e\0" // South Dakota CS27 South zone
    "\367E\315\352\32043\0" // South East Island 1943
    "\367E\315\352\32043\011U\250\27040N\0" // South East Island 1943 / UTM zone 40N
    "\367Ge\006g\215\237\0" // South Georgia - onshore
    "\367Ge\006g\314\03168\0" // South Georgia 1968
    "\367W\275Afr$\005\333o\006d.{y\021\206\270\0" // South West African Coord. System zone 
    "\367W\275Afr$\005{\225ve\200Gr\257\27011\0" // South West African Survey Grid zone 11
    "\367W\275Afr$\005{\225ve\200Gr\257\27013\0" // South West African Survey Grid zone 13
    "\367W\275Afr$\005{\225ve\200Gr\257\27015\0" // South West African Survey Grid zone 15
    "\367W\275Afr$\005{\225ve\200Gr\257\27017\0" // South West African Survey Grid zone 17
    "\367W\275Afr$\005{\225ve\200Gr\257\27019\0" // South West African Survey Grid zone 19
    "\367W\275Afr$\005{\225ve\200Gr\257\27021\0" // South West African Survey Grid zone 21
    "\367W\275Afr$\005{\225ve\200Gr\257\27023\0" // South West African Survey Grid zone 23
    "\367W\275Afr$\005{\225ve\200Gr\257\27025\0" // South West African Survey Grid zone 25
    "\367Y\206\210\0" // South Yemen
    "\367Y\206\210\011Ga\357s Krug\007\2708\0" // South Yemen / Gauss Kruger zone 8
    "\367Y\206\210\011Ga\357s Krug\007\2709\0" // South Yemen / Gauss Kruger zone 9
    "\367Y\206\210\011Ga\357s-Krug\007\2708\0" // South Yemen / Gauss-Kruger zone 8
    "\367Y\206\210\011Ga\357s-Krug\007\2709\0" // South Yemen / Gauss-Kruger zone 9
    "S\362_Am\007$\005\21269\0" // South_American_1969
    "S\362_Am\007$\005_D<um\21269_96\0" // South_American_Datum_1969_96
    "S\362_Au\021r\026i\253L\232b\007t\0" // South_Australia_Lambert
    "S\362\374#\247\024a\2673900\0" // South_Carolina_FIPS_3900
    "S\362\374#\247\024a\2673900\366_I\032l\0" // South_Carolina_FIPS_3900_Feet_Intl
    "S\362\374#\247\024a\2673900\134t_I\032l\0" // South_Carolina_FIPS_3900_Ft_Intl
    "S\362\374#\247\024\253\371\2673901\0" // South_Carolina_North_FIPS_3901
    "S\362\374#\247\024\253S\362\2673902\0" // South_Carolina_South_FIPS_3902
    "S\362_Dak\350\253\371\2674001\0" // South_Dakota_North_FIPS_4001
    "S\362_Dak\350\253\371\2674001\366\0" // South_Dakota_North_FIPS_4001_Feet
    "S\362_Dak\350\253\371\2674001\134t_\204\0" // South_Dakota_North_FIPS_4001_Ft_US
    "S\362_Dak\350\253S\362\2674002\0" // South_Dakota_South_FIPS_4002
    "S\362_Dak\350\253S\362\2674002\366\0" // South_Dakota_South_FIPS_4002_Feet
    "S\362_Dak\350\253S\362\2674002\134t_\204\0" // South_Dakota_South_FIPS_4002_Ft_US
    "S\362_Ea\021_\352\21243\0" // South_East_Island_1943
    "S\362_Ea\021_\352\21243_U\376Z\003\20740N\0" // South_East_Island_1943_UTM_Zone_40N
    "S\362_Ge\006gi\253L\232b\007t\0" // South_Georgia_Lambert
    "S\362_Y\206\210\0" // South_Yemen
    "S\362_Y\206\210_GK_Z\003\207\0" // South_Yemen_GK_Zone_
    "S\362\007n P\007m\335 B\201\024 Atl\201 L\232b\007t\0" // Southern Permian Basin Atlas Lambert
    "S\362\007n_P\007m\335_B\201\024_L\232b\007t\0" // Southern_Permian_Basin_Lambert
    "Spa\024\002C\005#\200\352s\0" // Spain - Canary Islands
    "Spa\024\002C\005#\200\352s\002El Hi\007r\013w\275\25218\037\0" // Spain - Canary Islands - El Hierro west of 18°W
    "Spa\024\002C\005#\200\352s\002e\315\25218\037\0" // Spain - Canary Islands - east of 18°W
    "Spa\024\002C\005#\200\352s\002w\275\25218\037\0" // Spain - Canary Islands - west of 18°W
    "Spa\024\002C\005#\200\352s \237\0" // Spain - Canary Islands onshore
    "Spa\024\002C\005#\200\352s \213\006\012e\315\25218\037\0" // Spain - Canary Islands onshore east of 18°W
    "Spa\024\002C\005#\200\352s we\021\007n\0" // Spain - Canary Islands western
    "Spa\024\002C\005#\200\352s we\021\007n e\315\25218\037\0" // Spain - Canary Islands western east of 18°W
    "Spa\024\002ma\024\211 \237\0" // Spain - mainland onshore
    "Sp\210c\007_(ft\204)\0" // Spencer_(ftUS)
    "Sp\210c\007_(m)\0" // Spencer_(m)
    "S\271\207Cl#k\2071866_Au\023\026$\0" // Sphere_Clarke_1866_Authalic
    "S\271\207G|\21280_Au\023\026$\0" // Sphere_GRS_1980_Authalic
    "S\271\207I\032\007n<\321\026\21224_Au\023\026$\0" // Sphere_International_1924_Authalic
    "Sri L\005k\034\237\0" // Sri Lanka - onshore
    "Sri L\005k\030D<um\32099\0" // Sri Lanka Datum 1999
    "Sri_L\005k\253D<um\21299\0" // Sri_Lanka_Datum_1999
    "St H\240\210\034Asc\210si\222\352\0" // St Helena - Ascension Island
    "St H\240\210\034St H\240\210\030\352\0" // St Helena - St Helena Island
    "St H\240\210\034Tri\021\005 d\030Cunha\0" // St Helena - Tristan da Cunha
    "St K\243ts \301\310v=\002\237\0" // St Kitts and Nevis - onshore
    "St Luc\215\237\0" // St Lucia - onshore
    "St Pi\007r\012Miqu\240\222\03150\0" // St Pierre Miquelon 1950
    "St Pi\007r\012\301Miqu\240\003\0" // St Pierre and Miquelon
    "St Pi\007r\012\301Miqu\240\003\002\237\0" // St Pierre and Miquelon - onshore
    "St V\024ce\032 \035\020h\012G>n\274\024\242\002\237\0" // St Vincent and the Grenadines - onshore
    "St.\333roix @27\0" // St. Croix CS27
    "St. H\240\210\030\03171\0" // St. Helena 1971
    "St. H\240\210\030Geod\036$ D<um \03315\0" // St. Helena Geodetic Datum 2015
    "St. H\240\210\030Loc\223Gr\257\205Tr\243\005)\0" // St. Helena Local Grid (Tritan)
    "St. H\240\210\030Loc\223Gr\257\32071\0" // St. Helena Local Grid 1971
    "St. H\240\210\030Map Gr\257 \03315\0" // St. Helena Map Grid 2015
    "St. H\240\210\030Tr\243\005\0" // St. Helena Tritan
    "St. H\240\210\030Tr\243\005\011SHLG(Tr\243\005)\0" // St. Helena Tritan / SHLG(Tritan)
    "St. H\240\210\030Tr\243\005\011U\250\270\375S\0" // St. Helena Tritan / UTM zone 30S
    "St. K\243ts\32055\0" // St. Kitts 1955
    "St. K\243ts\32055\011Br\243=h W\275\355i\242 Gr\257\0" // St. Kitts 1955 / British West Indies Grid
    "St. Luc\314\03155\0" // St. Lucia 1955
    "St. Luc\314\03155\011Br\243=h W\275\355i\242 Gr\257\0" // St. Lucia 1955 / British West Indies Grid
    "St. Pi\007r\012\036 Miqu\240\222\03150\0" // St. Pierre et Miquelon 1950
    "St.{te\230\210\205F\007ro)\0" // St. Stephen (Ferro)
    "St.{te\230\210 Gr\257\0" // St. Stephen Grid
    "St.{te\230\210 Gr\257\205F\007ro)\0" // St. Stephen Grid (Ferro)
    "St. V\024ce\032\32045\0" // St. Vincent 1945
    "St. V\024ce\032 45\011Br\243=h W\275\355i\242 Gr\257\0" // St. Vincent 45 / British West Indies Grid
    "St._Ste\230\210(F\007ro)\0" // St._Stephen(Ferro)
    "St._Ste\230\210_(F\007ro)\0" // St._Stephen_(Ferro)
    "St\374roix\374\025\032y\366\0" // St_Croix_County_Feet
    "St\374roix\374\025\032y_M\311\0" // St_Croix_County_Meters
    "St\374roix\366\0" // St_Croix_Feet
    "St\374roix_M\311\0" // St_Croix_Meters
    "St_Ge\006g\207\352\0" // St_George_Island
    "St_H\240\210\253Geod\036$_D<um_\03315\0" // St_Helena_Geodetic_Datum_2015
    "St_H\240\210\253Tr\243\005\0" // St_Helena_Tritan
    "St_H\240\210\253Tr\243\005_SHLG(Tr\243\005)\0" // St_Helena_Tritan_SHLG(Tritan)
    "St_H\240\210\253Tr\243\005_U\376!\207\375S\0" // St_Helena_Tritan_UTM_zone_30S
    "St_K\243ts\21255\0" // St_Kitts_1955
    "St_K\243ts\21255_Br\243=h_We\021_\355i\242_Gr\257\0" // St_Kitts_1955_British_West_Indies_Grid
    "St_Law>nc\207\352\0" // St_Lawrence_Island
    "St_Lucia\21255\0" // St_Lucia_1955
    "St_Lucia\21255_Br\243=h_We\021_\355i\242_Gr\257\0" // St_Lucia_1955_British_West_Indies_Grid
    "St_M#y\134t_I\032l\0" // St_Mary_Ft_Intl
    "St_M#y_M\311\0" // St_Mary_Meters
    "St_Paul_\352\0" // St_Paul_Island
    "St_V\024ce\032\21245\0" // St_Vincent_1945
    "St_V\024ce\032\21245_Br\243=h_We\021_\355i\242_Gr\257\0" // St_Vincent_1945_British_West_Indies_Grid
    "St<i\021$s\374\005\274\253L\232b\007t\0" // Statistics_Canada_Lambert
    "St<ut\012m\372e\0" // Statute mile
    "St<ut\207M\372e\0" // Statute_Mile
    "St\240s\240 v\005 d\012Rijksdriehoeksm\036\024g\0" // Stelsel van de Rijksdriehoeksmeting
    "St\007e\01330\0" // Stereo 30
    "St\007eo_33\0" // Stereo_33
    "Steub\210_(ft\204)\0" // Steuben_(ftUS)
    "Steub\210_(m)\0" // Steuben_(m)
    "Stockh\247m\32038\0" // Stockholm 1938
    "Stockh\247m\32038\205Stockh\247m)\0" // Stockholm 1938 (Stockholm)
    "Stockh\247m\21238\0" // Stockholm_1938
    "Struv\0121860\0" // Struve 1860
    "Struv\2071860\0" // Struve_1860
    "Suc>_\2276\0" // Sucre_2006
    "Sud_Fr\005ce\0" // Sud_France
    "Sud_M#oc\0" // Sud_Maroc
    "Sud_Tun=ie\0" // Sud_Tunisie
    "Sud\005\002s\362\0" // Sudan - south
    "Sud\005\002s\362\002e\315\252\375\015\0" // Sudan - south - east of 30°E
    "Sud\005\002s\362\002w\275\252\375\015\0" // Sudan - south - west of 30°E
    "Sud\005\011U\250\27035N\0" // Sudan / UTM zone 35N
    "Sud\005\011U\250\27036N\0" // Sudan / UTM zone 36N
    "Sud\005_U\376Z\003\20735N\0" // Sudan_UTM_Zone_35N
    "Sud\005_U\376Z\003\20736N\0" // Sudan_UTM_Zone_36N
    "Sulliv\005_(ft\204)\0" // Sullivan_(ftUS)
    "Sulliv\005_(m)\0" // Sullivan_(m)
    "S\225\024\232e\0" // Suriname
    "S\225\024\232\226\216f^\202\0" // Suriname - offshore
    "S\225\024\232\226\237\0" // Suriname - onshore
    "S\225ve\200\252\355\314L\232b\007t\0" // Survey of India Lambert
    "Sw\273\210\0" // Sweden
    "Sw\273\210\0020 g\003\0" // Sweden - 0 gon
    "Sw\273\210\00212 00\0" // Sweden - 12 00
    "Sw\273\210\00213 30\0" // Sweden - 13 30
    "Sw\273\210\00214 15\0" // Sweden - 14 15
    "Sw\273\210\00215 00\0" // Sweden - 15 00
    "Sw\273\210\00215 45\0" // Sweden - 15 45
    "Sw\273\210\00216 30\0" // Sweden - 16 30
    "Sw\273\210\00217 15\0" // Sweden - 17 15
    "Sw\273\210\00218 00\0" // Sweden - 18 00
    "Sw\273\210\00218 45\0" // Sweden - 18 45
    "Sw\273\210\0022\224 g\222E\0" // Sweden - 2.5 gon E
    "Sw\273\210\0022\224 g\222W\0" // Sweden - 2.5 gon W
    "Sw\273\210\002\033 15\0" // Sweden - 20 15
    "Sw\273\210\00221 45\0" // Sweden - 21 45
    "Sw\273\210\00223 15\0" // Sweden - 23 15
    "Sw\273\210\0025 g\222E\0" // Sweden - 5 gon E
    "Sw\273\210\0025 g\222W\0" // Sweden - 5 gon W
    "Sw\273\210\0027\224 g\222W\0" // Sweden - 7.5 gon W
    "Sw\273\210\002Stockh\247m\0" // Sweden - Stockholm
    "Sw\273\210\002Stockh\247m \347\032y\0" // Sweden - Stockholm county
    "Sw\273\210\002\237\0" // Sweden - onshore
    "Sw\273\210\2700 g\003\0" // Sweden zone 0 gon
    "Sw\273\210\2702\224 g\222O\0" // Sweden zone 2.5 gon O
    "Sw\273\210\2702\224 g\222V\0" // Sweden zone 2.5 gon V
    "Sw\273\210\2705 g\222O\0" // Sweden zone 5 gon O
    "Sw\273\210\2705 g\222V\0" // Sweden zone 5 gon V
    "Sw\273\210\2707\224 g\222V\0" // Sweden zone 7.5 gon V
    "Sw\273=h_N<\321\026_Gr\257\0" // Swedish_National_Grid
    "Sw=s Obliqu\012M\007c<\006\32003C\0" // Swiss Oblique Mercator 1903C
    "Sw=s Obliqu\012M\007c<\006\32003C\205G>\210w$h)\0" // Swiss Oblique Mercator 1903C (Greenwich)
    "Sw=s Obliqu\012M\007c<\006\32003M\0" // Swiss Oblique Mercator 1903M
    "Sw=s Obliqu\012M\007c<\006\32095\0" // Swiss Oblique Mercator 1995
    "Sw=s T\007>\021ri\223Ref\007\210c\012Fr\232\012\03195\205CHTRF95)\0" // Swiss Terrestrial Reference Frame 1995 (CHTRF95)
    "Sw=s T\007>\021ri\223Ref\007\210c\012Sy\021\206\32095\0" // Swiss Terrestrial Reference System 1995
    "Sw=s_TRF\21295\0" // Swiss_TRF_1995
    "Sy\021\206 \0" // System 
    "Sy\021\206 \216\020h\012Unifi\273 Trig\003\344\036r$\223C\274a\021r\223N\036w\006k\0" // System of the Unified Trigonometrical Cadastral Network
    "Sy\021\206 \216\020h\012Unifi\273 Trig\003\344\036r$\223C\274a\021r\223N\036w\006k\205F\007ro)\0" // System of the Unified Trigonometrical Cadastral Network (Ferro)
    "Sy\021\206 \216\020h\012Unifi\273 Trig\003\344\036r$\223C\274a\021r\223N\036w\006k [JTSK03]\0" // System of the Unified Trigonometrical Cadastral Network [JTSK03]
    "Sy\021\206 \216\020h\012Unifi\273 Trig\003\344\036r$\223C\274a\021r\223N\036w\006k/05\0" // System of the Unified Trigonometrical Cadastral Network/05
    "Sy\021\206 \216\020h\012Unifi\273 Trig\003\344\036r$\223C\274a\021r\223N\036w\006k/05\205F\007ro)\0" // System of the Unified Trigonometrical Cadastral Network/05 (Ferro)
    "Sy\021\303\251m J\273n\350nej\020rig\003\344\036r$kej si\036\012\0" // Systém Jednotnej trigonometrickej siete 
    "Sy\021\303\251m J\273n\350n\303\251\020rig\003\344\036r$k\303\251 s\303\255t\304\233 \0" // Systém Jednotné trigonometrické sítě 
    "TC(\03148)\0" // TC(1948)
    "TC(\03148%U\250\27039N\0" // TC(1948) / UTM zone 39N
    "TC(\03148%U\250\27040N\0" // TC(1948) / UTM zone 40N
    "TC\21248_U\376Z\003\20739N\0" // TC_1948_UTM_Zone_39N
    "TC\21248_U\376Z\003\20740N\0" // TC_1948_UTM_Zone_40N
    "TGD\2275\0" // TGD2005
    "TGD\2275\011T\003g\030Map Gr\257\0" // TGD2005 / Tonga Map Grid
    "TGD\2275_T\003g\253Map_Gr\257\0" // TGD2005_Tonga_Map_Grid
    "\250 B\026t$ 93\0" // TM Baltic 93
    "\250 Z\003\012\033N\205\204 s\225ve\200f\221)\0" // TM Zone 20N (US survey feet)
    "\250 Z\003\01221N\205\204 s\225ve\200f\221)\0" // TM Zone 21N (US survey feet)
    "\25035FIN_NE\0" // TM35FIN_NE
    "\25065\0" // TM65
    "\25065\011Ir=h Gr\257\0" // TM65 / Irish Grid
    "\25065\011Ir=h N<\321\223Gr\257\0" // TM65 / Irish National Grid
    "\25065_Ir=h_Gr\257\0" // TM65_Irish_Grid
    "\25075\0" // TM75
    "\25075\011Ir=h Gr\257\0" // TM75 / Irish Grid
    "\25075_Ir=h_Gr\257\0" // TM75_Irish_Grid
    "\3760_N\0" // TM_0_N
    "\376\1776_SE\0" // TM_116_SE
    "\376\177_\375_SE\0" // TM_11_30_SE
    "\376132_SE\0" // TM_132_SE
    "\376\375_NE\0" // TM_30_NE
    "\37636_SE\0" // TM_36_SE
    "\3765_NE\0" // TM_5_NE
    "\37660_SW\0" // TM_60_SW
    "\3766_NE\0" // TM_6_NE
    "\376B\026t$_\03193\0" // TM_Baltic_1993
    "\376Em\372ia-R\344agna\0" // TM_Emilia-Romagna
    "\376Z\003\20710\0" // TM_Zone_10
    "\376Z\003\20711\0" // TM_Zone_11
    "\376Z\003\20712\0" // TM_Zone_12
    "\376Z\003\20713\0" // TM_Zone_13
    "\376Z\003\207\033N_(\204\366)\0" // TM_Zone_20N_(US_Feet)
    "\376Z\003\20721N_(\204\366)\0" // TM_Zone_21N_(US_Feet)
    "\376Z\003\2077\0" // TM_Zone_7
    "\376Z\003\2078\0" // TM_Zone_8
    "\376Z\003\2079\0" // TM_Zone_9
    "TPEN\177 Gr\257\0" // TPEN11 Grid
    "TPEN\177 I\032\007m\273i<\012Ref\007\210c\012Fr\232e\0" // TPEN11 Intermediate Reference Frame
    "TPEN\177-IRF\0" // TPEN11-IRF
    "TPEN\177-\250\0" // TPEN11-TM
    "TPEN\177_Gr\257\0" // TPEN11_Grid
    "TPEN\177_I\032\007m\273i<\207Ref\007\210ce\134r\232e\0" // TPEN11_Intermediate_Reference_Frame
    "TRA\334IT\002L<L\003\0" // TRANSIT - LatLon
    "TUREF\0" // TUREF
    "TUREF\0113-deg>\012Ga\357s-Krug\007\27010\0" // TUREF / 3-degree Gauss-Kruger zone 10
    "TUREF\0113-deg>\012Ga\357s-Krug\007\27011\0" // TUREF / 3-degree Gauss-Kruger zone 11
    "TUREF\0113-deg>\012Ga\357s-Krug\007\27012\0" // TUREF / 3-degree Gauss-Kruger zone 12
    "TUREF\0113-deg>\012Ga\357s-Krug\007\27013\0" // TUREF / 3-degree Gauss-Kruger zone 13
    "TUREF\0113-deg>\012Ga\357s-Krug\007\27014\0" // TUREF / 3-degree Gauss-Kruger zone 14
    "TUREF\0113-deg>\012Ga\357s-Krug\007\27015\0" // TUREF / 3-degree Gauss-Kruger zone 15
    "TUREF\0113-deg>\012Ga\357s-Krug\007\2709\0" // TUREF / 3-degree Gauss-Kruger zone 9
    "TUREF\011LAEA E\225ope\0" // TUREF / LAEA Europe
    "TUREF\011LCC E\225ope\0" // TUREF / LCC Europe
    "TUREF\011\25027\0" // TUREF / TM27
    "TUREF\011\25030\0" // TUREF / TM30
    "TUREF\011\25033\0" // TUREF / TM33
    "TUREF\011\25036\0" // TUREF / TM36
    "TUREF\011\25039\0" // TUREF / TM39
    "TUREF\011\25042\0" // TUREF / TM42
    "TUREF\011\25045\0" // TUREF / TM45
    "TUREF_\0" // TUREF_
    "TUREF_3_Deg>\207GK_Z\003\207\0" // TUREF_3_Degree_GK_Zone_
    "TWD67\0" // TWD67
    "TWD67\011\2502\270119\0" // TWD67 / TM2 zone 119
    "TWD67\011\2502\270121\0" // TWD67 / TM2 zone 121
    "TWD97\0" // TWD97
    "TWD97\011\2502\270119\0" // TWD97 / TM2 zone 119
    "TWD97\011\2502\270121\0" // TWD97 / TM2 zone 121
    "TWD\21267\0" // TWD_1967
    "TWD\21267_\376P\210ghu\0" // TWD_1967_TM_Penghu
    "TWD\21267_\376Taiw\005\0" // TWD_1967_TM_Taiwan
    "TWD_\03197\0" // TWD_1997
    "TWD\21297_\376P\210ghu\0" // TWD_1997_TM_Penghu
    "TWD\21297_\376Taiw\005\0" // TWD_1997_TM_Taiwan
    "T\373a\03054\0" // Tahaa 54
    "T\373a\03054\011U\250\2705S\0" // Tahaa 54 / UTM zone 5S
    "T\373aa\21254\0" // Tahaa_1954
    "T\373aa\21254_U\3765S\0" // Tahaa_1954_UTM_5S
    "T\373\243i 52\0" // Tahiti 52
    "T\373\243i 52\011U\250\2706S\0" // Tahiti 52 / UTM zone 6S
    "T\373\243i 79\0" // Tahiti 79
    "T\373\243i 79\011U\250\2706S\0" // Tahiti 79 / UTM zone 6S
    "T\373\243i\21252\0" // Tahiti_1952
    "T\373\243i\21252_U\3766S\0" // Tahiti_1952_UTM_6S
    "T\373\243i\21279\0" // Tahiti_1979
    "T\373\243i\21279_U\376Z\003\2076S\0" // Tahiti_1979_UTM_Zone_6S
    "Taiw\005\002\1778\345\033\015\0" // Taiwan - 118°E to 120°E
    "Taiw\005\0021\033\34522\015\0" // Taiwan - 120°E to 122°E
    "Taiw\005\002\237\002P\210ghu\0" // Taiwan - onshore - Penghu
    "Taiw\005\002\237\002ma\024\211\0" // Taiwan - onshore - mainland
    "Taiw\005\002\237\002ma\024\211 \301P\210ghu\0" // Taiwan - onshore - mainland and Penghu
    "Taiw\005 2-deg>\012\250\270119\0" // Taiwan 2-degree TM zone 119
    "Taiw\005 2-deg>\012\250\270121\0" // Taiwan 2-degree TM zone 121
    "Taiw\005 D<um\32067\0" // Taiwan Datum 1967
    "Taiw\005 D<um \03197\0" // Taiwan Datum 1997
    "T\232\372 N\274u \334F \250\0" // Tamil Nadu NSF TM
    "T\232\372_N\274u\0" // Tamil_Nadu
    "T\005\005#ive\0" // Tananarive
    "T\005\005#iv\012(P#=)\0" // Tananarive (Paris)
    "T\005\005#iv\012(P#=%Lab\006d\012Gr\257\0" // Tananarive (Paris) / Laborde Grid
    "T\005\005#iv\012(P#=%Lab\006d\012Gr\257 approxim<\321\0" // Tananarive (Paris) / Laborde Grid approximation
    "T\005\005#ive\011Lab\006d\012Gr\257\0" // Tananarive / Laborde Grid
    "T\005\005#ive\011U\250\27038S\0" // Tananarive / UTM zone 38S
    "T\005\005#ive\011U\250\27039S\0" // Tananarive / UTM zone 39S
    "T\005\005#iv\012\03125\0" // Tananarive 1925
    "T\005\005#iv\012\03125\205P#=)\0" // Tananarive 1925 (Paris)
    "T\005\005#iv\207\03125\0" // Tananarive_1925
    "T\005\005#iv\207\03125_\0" // Tananarive_1925_
    "T\005\005#iv\207\03125_P#=\0" // Tananarive_1925_Paris
    "Tapi Aike\0" // Tapi Aike
    "Tapi Aike\011\326ge\032\024\0301\0" // Tapi Aike / Argentina 1
    "Tapi Aike\011\326ge\032\024\0302\0" // Tapi Aike / Argentina 2
    "Tapi_Aike\0" // Tapi_Aike
    "Tapi_Aik\207\326ge\032\024\2531\0" // Tapi_Aike_Argentina_1
    "Tapi_Aik\207\326ge\032\024\2532\0" // Tapi_Aike_Argentina_2
    "T#\005aki\374\342cu\243\0" // Taranaki_Circuit
    "Tayl\006\374\025\032y\366\0" // Taylor_County_Feet
    "Tayl\006\374\025\032y_M\311\0" // Taylor_County_Meters
    "Tayl\006\366\0" // Taylor_Feet
    "Tayl\006_M\311\0" // Taylor_Meters
    "T\210n\242se\012@27\0" // Tennessee CS27
    "T\210n\242see\2674\3120\0" // Tennessee_FIPS_4100
    "T\210n\242see\2674\3120\366\0" // Tennessee_FIPS_4100_Feet
    "T\210n\242see\2674\3120\134t_\204\0" // Tennessee_FIPS_4100_Ft_US
    "T\007\005\036_O\032#io_L\232b\007t\0" // Teranet_Ontario_Lambert
    "T\007\210gg\005u\333\201s\024i Gr\257\0" // Terengganu Cassini Grid
    "T\007n \352\32061\0" // Tern Island 1961
    "T\007n_\352\21261\0" // Tern_Island_1961
    "T\036e\0" // Tete
    "T\036e\011U\250\27036S\0" // Tete / UTM zone 36S
    "T\036e\011U\250\27037S\0" // Tete / UTM zone 37S
    "T\036\012\03160\0" // Tete 1960
    "T\036\207U\376Z\003\20736S\0" // Tete_UTM_Zone_36S
    "T\036\207U\376Z\003\20737S\0" // Tete_UTM_Zone_37S
    "Tex\201 @\313\333\365\223!e\0" // Texas CS27 Central zone
    "Tex\201 @\313 \324C\365\223!e\0" // Texas CS27 North Central zone
    "Tex\201 @\313 \324!e\0" // Texas CS27 North zone
    "Tex\201 @\313{\246C\365\223!e\0" // Texas CS27 South Central zone
    "Tex\201 @\313{\246!e\0" // Texas CS27 South zone
    "Tex\201{t<\012Mapp\024g{y\021\206\205m\311)\0" // Texas State Mapping System (meters)
    "Tex\201\374\365\026\2674\0333\0" // Texas_Central_FIPS_4203
    "Tex\201\374\365\026\2674\0333\366\0" // Texas_Central_FIPS_4203_Feet
    "Tex\201\374\365\026\2674\0333\134t_\204\0" // Texas_Central_FIPS_4203_Ft_US
    "Tex\201\374\365$_Mapp\024g_Sy\021\206_Alb\220\0" // Texas_Centric_Mapping_System_Albers
    "Tex\201\374\365$_Mapp\024g_Sy\021\206_L\232b\007t\0" // Texas_Centric_Mapping_System_Lambert
    "Tex\201_\371\374\365\026\2674\0332\0" // Texas_North_Central_FIPS_4202
    "Tex\201_\371\374\365\026\2674\0332\366\0" // Texas_North_Central_FIPS_4202_Feet
    "Tex\201_\371\374\365\026\2674\0332\134t\204\0" // Texas_North_Central_FIPS_4202_FtUS
    "Tex\201_\371\2674\0331\0" // Texas_North_FIPS_4201
    "Tex\201_\371\2674\0331\366\0" // Texas_North_FIPS_4201_Feet
    "Tex\201_\371\2674\0331\134t_\204\0" // Texas_North_FIPS_4201_Ft_US
    "Tex\201_S\362\374\365\026\2674\0334\0" // Texas_South_Central_FIPS_4204
    "Tex\201_S\362\374\365\026\2674\0334\366\0" // Texas_South_Central_FIPS_4204_Feet
    "Tex\201_S\362\374\365\026\2674\0334\134t\204\0" // Texas_South_Central_FIPS_4204_FtUS
    "Tex\201_S\362\2674\0335\0" // Texas_South_FIPS_4205
    "Tex\201_S\362\2674\0335\366\0" // Texas_South_FIPS_4205_Feet
    "Tex\201_S\362\2674\0335\134t_\204\0" // Texas_South_FIPS_4205_Ft_US
    "Tex\201_St<ew\257\207Mapp\024g_Sy\021\206\0" // Texas_Statewide_Mapping_System
    "Thai\211\002e\315\252\3122\015\0" // Thailand - east of 102°E
    "Thai\211\002\213\006\012\301GoT 96\015\020o\3122\015\0" // Thailand - onshore and GoT 96°E to102°E
    "Thai\211\002\213\006\012\301Gulf \252Thai\211\0" // Thailand - onshore and Gulf of Thailand
    "Thai\211\002\213\006\012e\315\252\3122\015\0" // Thailand - onshore east of 102°E
    "Thim\230u_\250\0" // Thimphu_TM
    "Tim#u\374\342cu\243\0" // Timaru_Circuit
    "Timb\026ai\32048\0" // Timbalai 1948
    "Timb\026ai\32048\011|O B\006ne\013(ch)\0" // Timbalai 1948 / RSO Borneo (ch)
    "Timb\026ai\32048\011|O B\006ne\013(ftSe)\0" // Timbalai 1948 / RSO Borneo (ftSe)
    "Timb\026ai\32048\011|O B\006ne\013(m)\0" // Timbalai 1948 / RSO Borneo (m)
    "Timb\026ai\32048\011|O{#awak LSD (m)\0" // Timbalai 1948 / RSO Sarawak LSD (m)
    "Timb\026ai\32048\011U\250\27049N\0" // Timbalai 1948 / UTM zone 49N
    "Timb\026ai\32048\011U\250\27050N\0" // Timbalai 1948 / UTM zone 50N
    "Timb\026ai\32068\0" // Timbalai 1968
    "Timb\026ai\21248\0" // Timbalai_1948
    "Timb\026ai\21248_\0" // Timbalai_1948_
    "Tippec\005oe-Wh\243\207(ft\204)\0" // Tippecanoe-White_(ftUS)
    "Tippec\005oe-Wh\243\207(m)\0" // Tippecanoe-White_(m)
    "Togo\0" // Togo
    "Tokyo\0" // Tokyo
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ I\0" // Tokyo / Japan Plane Rectangular CS I
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ II\0" // Tokyo / Japan Plane Rectangular CS II
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ III\0" // Tokyo / Japan Plane Rectangular CS III
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ IV\0" // Tokyo / Japan Plane Rectangular CS IV
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ IX\0" // Tokyo / Japan Plane Rectangular CS IX
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ V\0" // Tokyo / Japan Plane Rectangular CS V
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ VI\0" // Tokyo / Japan Plane Rectangular CS VI
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ VII\0" // Tokyo / Japan Plane Rectangular CS VII
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ VIII\0" // Tokyo / Japan Plane Rectangular CS VIII
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ X\0" // Tokyo / Japan Plane Rectangular CS X
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XI\0" // Tokyo / Japan Plane Rectangular CS XI
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XII\0" // Tokyo / Japan Plane Rectangular CS XII
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XIII\0" // Tokyo / Japan Plane Rectangular CS XIII
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XIV\0" // Tokyo / Japan Plane Rectangular CS XIV
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XIX\0" // Tokyo / Japan Plane Rectangular CS XIX
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XV\0" // Tokyo / Japan Plane Rectangular CS XV
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XVI\0" // Tokyo / Japan Plane Rectangular CS XVI
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XVII\0" // Tokyo / Japan Plane Rectangular CS XVII
    "Tokyo\011Jap\005 Pl\005\012Re\317\005gul# @ XVIII\0" // Tokyo / Japan Plane Rectangular CS XVIII
    "Tokyo\011U\250\27051N\0" // Tokyo / UTM zone 51N
    "Tokyo\011U\250\27052N\0" // Tokyo / UTM zone 52N
    "Tokyo\011U\250\27053N\0" // Tokyo / UTM zone 53N
    "Tokyo\011U\250\27054N\0" // Tokyo / UTM zone 54N
    "Tokyo\011U\250\27055N\0" // Tokyo / UTM zone 55N
    "Toky\0131892\0" // Tokyo 1892
    "Toky\0131892\011K\202\030C\365\223B\240t\0" // Tokyo 1892 / Korea Central Belt
    "Toky\0131892\011K\202\030E\315B\240t\0" // Tokyo 1892 / Korea East Belt
    "Toky\0131892\011K\202\030Ea\021{e\030B\240t\0" // Tokyo 1892 / Korea East Sea Belt
    "Toky\0131892\011K\202\030W\275B\240t\0" // Tokyo 1892 / Korea West Belt
    "Toky\0131898\0" // Tokyo 1898
    "Toky\013\03118\0" // Tokyo 1918
    "Tokyo_U\376Z\003\207\0" // Tokyo_UTM_Zone_
    "T\003ga\0" // Tonga
    "T\003g\030Geod\036$ D<um \2275\0" // Tonga Geodetic Datum 2005
    "T\003g\253Geod\036$_D<um_\2275\0" // Tonga_Geodetic_Datum_2005
    "T\370^ig\005g_\250\0" // Trashigang_TM
    "T>mpe\026eau\374\025\032y\366\0" // Trempealeau_County_Feet
    "T>mpe\026eau\374\025\032y_M\311\0" // Trempealeau_County_Meters
    "T>mpe\026eau\366\0" // Trempealeau_Feet
    "T>mpe\026eau_M\311\0" // Trempealeau_Meters
    "Tr\024\257\274 03 Gr\257\205ftCla)\0" // Trinidad 03 Grid (ftCla)
    "Tr\024\257\274\32003\0" // Trinidad 1903
    "Tr\024\257\274\32003\011Tr\024\257\274 Gr\257\0" // Trinidad 1903 / Trinidad Grid
    "Tr\024\257\274\32003\011Tr\024\257\274 Gr\257\205ftCla)\0" // Trinidad 1903 / Trinidad Grid (ftCla)
    "Tr\024\257\274 Gr\257\205Cl#ke's f\221)\0" // Trinidad Grid (Clarke's feet)
    "Tr\024\257\274 \301Tobago\002Tobago\002\237\0" // Trinidad and Tobago - Tobago - onshore
    "Tr\024\257\274 \301Tobago\002Tr\024\257\274\0" // Trinidad and Tobago - Trinidad
    "Tr\024\257\274 \301Tobago\002Tr\024\257\274\002\237\0" // Trinidad and Tobago - Trinidad - onshore
    "Tr\024\257\274 \301Tobago\002\216f^\006\012e\315\25260\037\0" // Trinidad and Tobago - offshore east of 60°W
    "Tr\024\257\274 \301Tobago\002\216f^\006\012w\275\25260\037\0" // Trinidad and Tobago - offshore west of 60°W
    "Tr\024\257\274\21203\0" // Trinidad_1903
    "Tr\024\257\274\21203_Tr\024\257\274_Gr\257\0" // Trinidad_1903_Trinidad_Grid
    "Tr\024\257\274\21203_Tr\024\257\274_Gr\257\366_Cl#ke\0" // Trinidad_1903_Trinidad_Grid_Feet_Clarke
    "Trip\225\030\334F \250\0" // Tripura NSF TM
    "Tri\021\005\32068\0" // Tristan 1968
    "Tri\021\005\21268\0" // Tristan_1968
    "Tr\243\005{t. H\240\210a\0" // Tritan St. Helena
    "Tr\003gs\253\250\0" // Trongsa_TM
    "Truci\223Co\315\03148\0" // Trucial Coast 1948
    "Truci\026\374oa\021\21248\0" // Trucial_Coast_1948
    "Ts\342\005g_\250\0" // Tsirang_TM
    "Tuh\342\005gi\374\342cu\243\0" // Tuhirangi_Circuit
    "Tun=\215n\006`\25234\00439'N\0" // Tunisia - north of 34°39'N
    "Tun=\215\216f^\202\0" // Tunisia - offshore
    "Tun=\215\237\0" // Tunisia - onshore
    "Tun=\215s\246\25234\00439'N\0" // Tunisia - south of 34°39'N
    "Tunj\253Boyac\253\03197\0" // Tunja_Boyaca_1997
    "T\225key\0" // Turkey
    "T\225key\00228\224}31\224\360\237\0" // Turkey - 28.5°E to 31.5°E onshore
    "T\225key\00231\224}34\224\360\237\0" // Turkey - 31.5°E to 34.5°E onshore
    "T\225key\00234\224}37\224\360\237\0" // Turkey - 34.5°E to 37.5°E onshore
    "T\225key\00237\224}40\224\360\237\0" // Turkey - 37.5°E to 40.5°E onshore
    "T\225key\00240\224}43\224\360\237\0" // Turkey - 40.5°E to 43.5°E onshore
    "T\225key\002e\315\25243\224\015\0" // Turkey - east of 43.5°E
    "T\225key\002w\275\25228\224\360\237\0" // Turkey - west of 28.5°E onshore
    "T\225k=h N<\321\223Ref\007\210c\012Fr\232e\0" // Turkish National Reference Frame
    "T\225k=h_N<\321\026_Ref\007\210ce\134r\232e\0" // Turkish_National_Reference_Frame
    "UAE\002Abu Dhabi\002\213\006\012w\275\25254\015\0" // UAE - Abu Dhabi - onshore west of 54°E
    "UAE\002Abu Dhabi \301Dubai\002\237\0" // UAE - Abu Dhabi and Dubai - onshore
    "UAE\002Abu Dhabi \301Dubai\002\213\006\012e\315\25254\015\0" // UAE - Abu Dhabi and Dubai - onshore east of 54°E
    "UAE\002Dubai mun$ip\026\243y\0" // UAE - Dubai municipality
    "UAE\002e\315\25254\015\0" // UAE - east of 54°E
    "U@-\2270\0" // UCS-2000
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M 21E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M 24E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M \313E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M \375E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M 33E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M 36E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\333M 39E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\27010\0" // UCS-2000 / 3-degree Gauss-Kruger zone 10
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\27011\0" // UCS-2000 / 3-degree Gauss-Kruger zone 11
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\27012\0" // UCS-2000 / 3-degree Gauss-Kruger zone 12
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\27013\0" // UCS-2000 / 3-degree Gauss-Kruger zone 13
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\2707\0" // UCS-2000 / 3-degree Gauss-Kruger zone 7
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\2708\0" // UCS-2000 / 3-degree Gauss-Kruger zone 8
    "U@-\2270\0113-deg>\012Ga\357s-Krug\007\2709\0" // UCS-2000 / 3-degree Gauss-Kruger zone 9
    "U@-\2270\011Ga\357s-Krug\007\333M 21E\0" // UCS-2000 / Gauss-Kruger CM 21E
    "U@-\2270\011Ga\357s-Krug\007\333M \313E\0" // UCS-2000 / Gauss-Kruger CM 27E
    "U@-\2270\011Ga\357s-Krug\007\333M 33E\0" // UCS-2000 / Gauss-Kruger CM 33E
    "U@-\2270\011Ga\357s-Krug\007\333M 39E\0" // UCS-2000 / Gauss-Kruger CM 39E
    "U@-\2270\011Ga\357s-Krug\007\2704\0" // UCS-2000 / Gauss-Kruger zone 4
    "U@-\2270\011Ga\357s-Krug\007\2705\0" // UCS-2000 / Gauss-Kruger zone 5
    "U@-\2270\011Ga\357s-Krug\007\2706\0" // UCS-2000 / Gauss-Kruger zone 6
    "U@-\2270\011Ga\357s-Krug\007\2707\0" // UCS-2000 / Gauss-Kruger zone 7
    "U@-\2270\011L@-01\333rimea\0" // UCS-2000 / LCS-01 Crimea
    "U@-\2270\011L@-05 V\024nytsia\0" // UCS-2000 / LCS-05 Vinnytsia
    "U@-\2270\011L@-07 V\247yn\0" // UCS-2000 / LCS-07 Volyn
    "U@-\2270\011L@-12 Dniprop\036rovsk\0" // UCS-2000 / LCS-12 Dnipropetrovsk
    "U@-\2270\011L@-14 D\003\036sk\0" // UCS-2000 / LCS-14 Donetsk
    "U@-\2270\011L@-18 Zhyt\344yr\0" // UCS-2000 / LCS-18 Zhytomyr
    "U@-\2270\011L@-21 Zak#p<tia\0" // UCS-2000 / LCS-21 Zakarpattia
    "U@-\2270\011L@-23 Zap\006izhzhia\0" // UCS-2000 / LCS-23 Zaporizhzhia
    "U@-\2270\011L@-26 Iv\005o-Fr\005kivsk\0" // UCS-2000 / LCS-26 Ivano-Frankivsk
    "U@-\2270\011L@-32 Kyiv \262\321\0" // UCS-2000 / LCS-32 Kyiv region
    "U@-\2270\011L@-35 K\342ovohr\274\0" // UCS-2000 / LCS-35 Kirovohrad
    "U@-\2270\011L@-44 Luh\005sk\0" // UCS-2000 / LCS-44 Luhansk
    "U@-\2270\011L@-46 Lviv\0" // UCS-2000 / LCS-46 Lviv
    "U@-\2270\011L@-48 Myk\247aiv\0" // UCS-2000 / LCS-48 Mykolaiv
    "U@-\2270\011L@-51 Od\242sa\0" // UCS-2000 / LCS-51 Odessa
    "U@-\2270\011L@-53 P\247tava\0" // UCS-2000 / LCS-53 Poltava
    "U@-\2270\011L@-56 Rivne\0" // UCS-2000 / LCS-56 Rivne
    "U@-\2270\011L@-59{umy\0" // UCS-2000 / LCS-59 Sumy
    "U@-\2270\011L@-61 T\007nop\372\0" // UCS-2000 / LCS-61 Ternopil
    "U@-\2270\011L@-63 Kh#kiv\0" // UCS-2000 / LCS-63 Kharkiv
    "U@-\2270\011L@-65 Kh\220\003\0" // UCS-2000 / LCS-65 Kherson
    "U@-\2270\011L@-68 Khm\240nytsky\0" // UCS-2000 / LCS-68 Khmelnytsky
    "U@-\2270\011L@-71\333h\007k\201y\0" // UCS-2000 / LCS-71 Cherkasy
    "U@-\2270\011L@-73\333h\007nivtsi\0" // UCS-2000 / LCS-73 Chernivtsi
    "U@-\2270\011L@-74\333h\007nihiv\0" // UCS-2000 / LCS-74 Chernihiv
    "U@-\2270\011L@-80 Kyiv c\243y\0" // UCS-2000 / LCS-80 Kyiv city
    "U@-\2270\011L@-85{eva\021op\247\0" // UCS-2000 / LCS-85 Sevastopol
    "U@-\2270\011Uk\370\024\012\250\27010\0" // UCS-2000 / Ukraine TM zone 10
    "U@-\2270\011Uk\370\024\012\250\27011\0" // UCS-2000 / Ukraine TM zone 11
    "U@-\2270\011Uk\370\024\012\250\27012\0" // UCS-2000 / Ukraine TM zone 12
    "U@-\2270\011Uk\370\024\012\250\27013\0" // UCS-2000 / Ukraine TM zone 13
    "U@-\2270\011Uk\370\024\012\250\2707\0" // UCS-2000 / Ukraine TM zone 7
    "U@-\2270\011Uk\370\024\012\250\2708\0" // UCS-2000 / Ukraine TM zone 8
    "U@-\2270\011Uk\370\024\012\250\2709\0" // UCS-2000 / Ukraine TM zone 9
    "U@-\2270\2704\0" // UCS-2000 zone 4
    "U@-\2270\2705\0" // UCS-2000 zone 5
    "U@-\2270\2706\0" // UCS-2000 zone 6
    "U@-\2270\2707\0" // UCS-2000 zone 7
    "UK\002Ab\007de\210\022\306v\007n\242s\0" // UK - Aberdeen to Inverness
    "UK\002Br\243a\024 \301UK@ 49\00445'N\02261\004N\3079\2172\015\0" // UK - Britain and UKCS 49°45'N to 61°N, 9°W to 2°E
    "UK\002C#diff\022L\024c\247n\0" // UK - Cardiff to Lincoln
    "UK\002Gl\201gow\022K\372m#nock\0" // UK - Glasgow to Kilmarnock
    "UK\002G>< Br\243a\024 \213\006\012\301ne#^\202; \325l\012\252M\005\0" // UK - Great Britain onshore and nearshore; Isle of Man
    "UK\002\306v\007n\242s\022Th\225so\0" // UK - Inverness to Thurso
    "UK\002Le\273s\022Hull\0" // UK - Leeds to Hull
    "UK\002Liv\007po\247\022Le\273s\0" // UK - Liverpool to Leeds
    "UK\002L\003d\003\022B\342m\024gh\232 \301C>we\0" // UK - London to Birmingham and Crewe
    "UK\002L\003d\003\022Sheffi\240d\0" // UK - London to Sheffield
    "UK\002M\005che\021\007\022D\202\0" // UK - Manchester to Dore
    "UK\002M\005che\021\007\307Wig\005 \301Che\021\007\0" // UK - Manchester, Wigan and Chester
    "UK\002Mo\023\007w\240l\022\306v\007n\242s\0" // UK - Motherwell to Inverness
    "UK\002\361ca\021l\012t\013A^\024gt\003\0" // UK - Newcastle to Ashington
    "UK\002\361p\006t\022Ebbw V\026e\0" // UK - Newport to Ebbw Vale
    "UK\002\371\007n I>\211\002\237\0" // UK - Northern Ireland - onshore
    "UK\002Oxf\006d\022B\273f\006d\0" // UK - Oxford to Bedford
    "UK\002Twe\273m\362\022Ab\007de\210\0" // UK - Tweedmouth to Aberdeen
    "UK\002\216f^\202\002\324Sea\0" // UK - offshore - North Sea
    "U\236_\371\0" // UPS_North
    "U\236_S\362\0" // UPS_South
    "\204 F\202\021{\007v$\012\262i\2226 Alb\220\0" // US Forest Service region 6 Albers
    "\204 \334IDC EASE-Gr\257 2.0 Glob\026\0" // US NSIDC EASE-Grid 2.0 Global
    "\204 \334IDC EASE-Gr\257 2.0 \371\0" // US NSIDC EASE-Grid 2.0 North
    "\204 \334IDC EASE-Gr\257 2.0{\362\0" // US NSIDC EASE-Grid 2.0 South
    "\204 \334IDC Equ\223A>\030glob\223proje\317\321\0" // US NSIDC Equal Area global projection
    "\204 \334IDC Equ\223A>\030n\006`proje\317\321\0" // US NSIDC Equal Area north projection
    "\204 \334IDC Equ\223A>\030s\246proje\317\321\0" // US NSIDC Equal Area south projection
    "\204 \334IDC{e\030Ic\012p\247# \021\007eog\370\230$ n\006\023\0" // US NSIDC Sea Ice polar stereographic north
    "\204 \334IDC{e\030Ic\012p\247# \021\007eog\370\230$ s\362\0" // US NSIDC Sea Ice polar stereographic south
    "\204 s\225ve\200cha\024\0" // US survey chain
    "\204 s\225ve\200fo\350\0" // US survey foot
    "\204 s\225ve\200l\024k\0" // US survey link
    "\204 s\225ve\200m\372e\0" // US survey mile
    "\234\0" // USA
    "\235\3122\21796\037\0" // USA - 102°W to 96°W
    "\235\3122\21796\037 \301GoM O@\0" // USA - 102°W to 96°W and GoM OCS
    "\235\3122\21796\037 \237\0" // USA - 102°W to 96°W onshore
    "\235\3128\217\3122\037\0" // USA - 108°W to 102°W
    "\235\1774\217\3128\037\0" // USA - 114°W to 108°W
    "\2351\033\217\1774\037\0" // USA - 120°W to 114°W
    "\2351\033\217\1774\037 \237\0" // USA - 120°W to 114°W onshore
    "\235126\2171\033\037\0" // USA - 126°W to 120°W
    "\235126\2171\033\037 \237\0" // USA - 126°W to 120°W onshore
    "\235132\217126\037\0" // USA - 132°W to 126°W
    "\235138\217132\037\0" // USA - 138°W to 132°W
    "\235144\217138\037\0" // USA - 144°W to 138°W
    "\235150\217144\037\002AK\307O@\0" // USA - 150°W to 144°W - AK, OCS
    "\235156\217150\037\002AK\307HI\0" // USA - 156°W to 150°W - AK, HI
    "\235156\217150\037\002AK\307O@\0" // USA - 156°W to 150°W - AK, OCS
    "\235156\217150\037 \237\002HI\0" // USA - 156°W to 150°W onshore - HI
    "\235162\217156\037\002AK\307HI\0" // USA - 162°W to 156°W - AK, HI
    "\235162\217156\037\002AK\307O@\0" // USA - 162°W to 156°W - AK, OCS
    "\235162\217156\037 \237\002HI\0" // USA - 162°W to 156°W onshore - HI
    "\235168\217162\037\002AK\307O@\0" // USA - 168°W to 162°W - AK, OCS
    "\235174\34580\015\002AK\307O@\0" // USA - 174°E to 180°E - AK, OCS
    "\235174\217168\037\002AK\307O@\0" // USA - 174°W to 168°W - AK, OCS
    "\235180\217174\037\002AK\307O@\0" // USA - 180°W to 174°W - AK, OCS
    "\23572\21766\037\0" // USA - 72°W to 66°W
    "\23572\21766\037 \237\0" // USA - 72°W to 66°W onshore
    "\23578\21772\037\0" // USA - 78°W to 72°W
    "\23578\21772\037 \237\0" // USA - 78°W to 72°W onshore
    "\23584\21778\037\0" // USA - 84°W to 78°W
    "\23584\21778\037 \301GoM O@\0" // USA - 84°W to 78°W and GoM OCS
    "\23584\21778\037 \237\0" // USA - 84°W to 78°W onshore
    "\23590\21784\037\0" // USA - 90°W to 84°W
    "\23590\21784\037 \301GoM O@\0" // USA - 90°W to 84°W and GoM OCS
    "\23590\21784\037 \237\0" // USA - 90°W to 84°W onshore
    "\23596\21790\037\0" // USA - 96°W to 90°W
    "\23596\21790\037 \301GoM O@\0" // USA - 96°W to 90°W and GoM OCS
    "\23596\21790\037 \237\0" // USA - 96°W to 90°W onshore
    "\235Alab\232\034\272\002E\0" // USA - Alabama - SPCS - E
    "\235Alab\232\034\272\002W\0" // USA - Alabama - SPCS - W
    "\235Al\201ka\0" // USA - Alaska
    "\235Al\201k\034144\217141\037\0" // USA - Alaska - 144°W to 141°W
    "\235Al\201k\034148\217144\037\0" // USA - Alaska - 148°W to 144°W
    "\235Al\201k\034152\217148\037\0" // USA - Alaska - 152°W to 148°W
    "\235Al\201k\034156\217152\037\0" // USA - Alaska - 156°W to 152°W
    "\235Al\201k\034160\217156\037\0" // USA - Alaska - 160°W to 156°W
    "\235Al\201k\034164\217160\037\0" // USA - Alaska - 164°W to 160°W
    "\235Al\201k\034Aleut\335 \352s\0" // USA - Alaska - Aleutian Islands
    "\235Al\201k\034P\005h\035le\0" // USA - Alaska - Panhandle
    "\235Al\201k\034St. Ge\006g\012\352\0" // USA - Alaska - St. George Island
    "\235Al\201k\034St. Law>nc\012\352\0" // USA - Alaska - St. Lawrence Island
    "\235Al\201k\034St. Paul \352\0" // USA - Alaska - St. Paul Island
    "\235Al\201k\034n\006`\25254\224\004N; 168\217164\037\0" // USA - Alaska - north of 54.5°N; 168°W to 164°W
    "\235Al\201k\034n\006`\25254\224\004N; w\275\252168\037\0" // USA - Alaska - north of 54.5°N; west of 168°W
    "\235Amt\370k NE c\006r\257\006\0" // USA - Amtrak NE corridor
    "\235\326i!\034Pim\030\347\032\200Mt. L\206m\003\0" // USA - Arizona - Pima county Mt. Lemmon
    "\235\326i!\034Pim\030\347\032\200c\365\026\0" // USA - Arizona - Pima county central
    "\235\326i!\034Pim\030\347\032\200ea\021\0" // USA - Arizona - Pima county east
    "\235\326i!\034Pim\030\347\032\200we\021\0" // USA - Arizona - Pima county west
    "\235\326i!\034\272\002C\0" // USA - Arizona - SPCS - C
    "\235\326i!\034\272\002E\0" // USA - Arizona - SPCS - E
    "\235\326i!\034\272\002W\0" // USA - Arizona - SPCS - W
    "\235\326k\005s\201\002\272\002N\0" // USA - Arkansas - SPCS - N
    "\235\326k\005s\201\002\272\002S\0" // USA - Arkansas - SPCS - S
    "\235CON\204\002\237\0" // USA - CONUS - onshore
    "\235CON\204 \301Al\201ka; PRVI\0" // USA - CONUS and Alaska; PRVI
    "\235C\026if\006nia\0" // USA - California
    "\235C\026if\006n\215\272\0021\0" // USA - California - SPCS - 1
    "\235C\026if\006n\215\272\0022\0" // USA - California - SPCS - 2
    "\235C\026if\006n\215\272\0023\0" // USA - California - SPCS - 3
    "\235C\026if\006n\215\272\0024\0" // USA - California - SPCS - 4
    "\235C\026if\006n\215\272\0026\0" // USA - California - SPCS - 6
    "\235C\026if\006n\215\272\313\0025\0" // USA - California - SPCS27 - 5
    "\235C\026if\006n\215\272\313\0027\0" // USA - California - SPCS27 - 7
    "\235C\026if\006n\215\356\0025\0" // USA - California - SPCS83 - 5
    "\235C\026if\006n\215S\005 Fr\005c=c\013Ba\200A>a\0" // USA - California - San Francisco Bay Area
    "\235C\247\006\274o\002\272\002C\0" // USA - Colorado - SPCS - C
    "\235C\247\006\274o\002\272\002N\0" // USA - Colorado - SPCS - N
    "\235C\247\006\274o\002\272\002S\0" // USA - Colorado - SPCS - S
    "\235C\003ne\317$ut\0" // USA - Connecticut
    "\235D\240aw#e\0" // USA - Delaware
    "\235FBN\0" // USA - FBN
    "\235Fl\006\257a\0" // USA - Florida
    "\235Fl\006\257\034\272\002E\0" // USA - Florida - SPCS - E
    "\235Fl\006\257\034\272\002N\0" // USA - Florida - SPCS - N
    "\235Fl\006\257\034\272\002W\0" // USA - Florida - SPCS - W
    "\235Ge\006g\215\272\002E\0" // USA - Georgia - SPCS - E
    "\235Ge\006g\215\272\002W\0" // USA - Georgia - SPCS - W
    "\235GoM O@\00290\21784\037\0" // USA - GoM OCS - 90°W to 84°W
    "\235GoM O@\00296\21790\037\0" // USA - GoM OCS - 96°W to 90°W
    "\235GoM O@\002e\315\25284\037\0" // USA - GoM OCS - east of 84°W
    "\235GoM O@\002w\275\25296\037\0" // USA - GoM OCS - west of 96°W
    "\235\332\0" // USA - HARN
    "\235Hawaii\002Kauai\002\237\0" // USA - Hawaii - Kauai - onshore
    "\235Hawaii\002Maui; K\373o\247awe; L\005ai; M\247okai\002\237\0" // USA - Hawaii - Maui; Kahoolawe; Lanai; Molokai - onshore
    "\235Hawaii\002Niihau\002\237\0" // USA - Hawaii - Niihau - onshore
    "\235Hawaii\002O\373u\002\237\0" // USA - Hawaii - Oahu - onshore
    "\235Hawaii\002T\007n \352 \035{\202l At\247l\0" // USA - Hawaii - Tern Island and Sorel Atoll
    "\235Hawaii\002=\211 \252Hawaii\002\237\0" // USA - Hawaii - island of Hawaii - onshore
    "\235Hawaii\002\237\0" // USA - Hawaii - onshore
    "\235Id\373o\0" // USA - Idaho
    "\235Id\373o\002\272\002C\0" // USA - Idaho - SPCS - C
    "\235Id\373o\002\272\002E\0" // USA - Idaho - SPCS - E
    "\235Id\373o\002\272\002W\0" // USA - Idaho - SPCS - W
    "\235Ill\024o=\002\272\002E\0" // USA - Illinois - SPCS - E
    "\235Ill\024o=\002\272\002W\0" // USA - Illinois - SPCS - W
    "\235\355\335\034Ad\232s\0" // USA - Indiana - Adams
    "\235\355\335\034All\210\0" // USA - Indiana - Allen
    "\235\355\335\034B#\023\247\344ew\0" // USA - Indiana - Bartholomew
    "\235\355\335\034Be\032\003\0" // USA - Indiana - Benton
    "\235\355\335\034Blackf\006d \301D\240aw#e\0" // USA - Indiana - Blackford and Delaware
    "\235\355\335\034Bo\003\012\301H\210dr$ks\0" // USA - Indiana - Boone and Hendricks
    "\235\355\335\034Brown\0" // USA - Indiana - Brown
    "\235\355\335\034C#r\247l\0" // USA - Indiana - Carroll
    "\235\355\335\034C\201s\0" // USA - Indiana - Cass
    "\235\355\335\034Cl#k\307Floyd,{c\350t\0" // USA - Indiana - Clark, Floyd, Scott
    "\235\355\335\034Clay\0" // USA - Indiana - Clay
    "\235\355\335\034Cl\024t\003\0" // USA - Indiana - Clinton
    "\235\355\335\034C\370wf\006d\307Law>nce\307Or\005ge\0" // USA - Indiana - Crawford, Lawrence, Orange
    "\235\355\335\034Davi\242s \301G>\210e\0" // USA - Indiana - Daviess and Greene
    "\235\355\335\034DeK\026b\0" // USA - Indiana - DeKalb
    "\235\355\335\034De#b\006n\307Ohio,{w\243z\007\211\0" // USA - Indiana - Dearborn, Ohio, Switzerland
    "\235\355\335\034Dec<\225 \301Ru^\0" // USA - Indiana - Decatur and Rush
    "\235\355\335\034Dubo= \301M#t\024\0" // USA - Indiana - Dubois and Martin
    "\235\355\335\034Elkh#t\307Kosci\357ko\307Waba^\0" // USA - Indiana - Elkhart, Kosciusko, Wabash
    "\235\355\335\034Fay\036te\307Fr\005kl\024\307Un\321\0" // USA - Indiana - Fayette, Franklin, Union
    "\235\355\335\034F\025\032a\024 \301W#>n\0" // USA - Indiana - Fountain and Warren
    "\235\355\335\034Fult\003\307M#^\026l,{t Jose\230\0" // USA - Indiana - Fulton, Marshall, St Joseph
    "\235\355\335\034Gibs\003\0" // USA - Indiana - Gibson
    "\235\355\335\034Gr\005t\0" // USA - Indiana - Grant
    "\235\355\335\034H\232\372t\222\301Tipt\003\0" // USA - Indiana - Hamilton and Tipton
    "\235\355\335\034H\005cock \301M\274=\003\0" // USA - Indiana - Hancock and Madison
    "\235\355\335\034H#r=\222\301Wa^\024gt\003\0" // USA - Indiana - Harrison and Washington
    "\235\355\335\034H\210ry\0" // USA - Indiana - Henry
    "\235\355\335\034How#d \301Mi\232i\0" // USA - Indiana - Howard and Miami
    "\235\355\335\034Hu\032\024gt\222\301Wh\243ley\0" // USA - Indiana - Huntington and Whitley
    "\235\355\335\034Jacks\003\0" // USA - Indiana - Jackson
    "\235\355\335\034J\201p\007 \301P\006t\007\0" // USA - Indiana - Jasper and Porter
    "\235\355\335\034Jay\0" // USA - Indiana - Jay
    "\235\355\335\034Jeff\220\003\0" // USA - Indiana - Jefferson
    "\235\355\335\034J\210n\024gs\0" // USA - Indiana - Jennings
    "\235\355\335\034Johns\222\301M#\321\0" // USA - Indiana - Johnson and Marion
    "\235\355\335\034Knox\0" // USA - Indiana - Knox
    "\235\355\335\034LaGr\005g\012\301Noble\0" // USA - Indiana - LaGrange and Noble
    "\235\355\335\034LaP\006te\307Pul\201ki,{t#ke\0" // USA - Indiana - LaPorte, Pulaski, Starke
    "\235\355\335\034Lak\012\301\361t\003\0" // USA - Indiana - Lake and Newton
    "\235\355\335\034M\003ro\012\301M\006g\005\0" // USA - Indiana - Monroe and Morgan
    "\235\355\335\034M\003tg\344\007\200\301Putn\232\0" // USA - Indiana - Montgomery and Putnam
    "\235\355\335\034Ow\210\0" // USA - Indiana - Owen
    "\235\355\335\034P#k\012\301V\007m\372l\321\0" // USA - Indiana - Parke and Vermillion
    "\235\355\335\034P\007ry\0" // USA - Indiana - Perry
    "\235\355\335\034Pik\012\301W#r$k\0" // USA - Indiana - Pike and Warrick
    "\235\355\335\034Posey\0" // USA - Indiana - Posey
    "\235\355\335\034R\035\247\230 \301Wayne\0" // USA - Indiana - Randolph and Wayne
    "\235\355\335\034Ripley\0" // USA - Indiana - Ripley
    "\235\355\335\034\272\002E\0" // USA - Indiana - SPCS - E
    "\235\355\335\034\272\002W\0" // USA - Indiana - SPCS - W
    "\235\355\335\034Sh\240by\0" // USA - Indiana - Shelby
    "\235\355\335\034Sp\210c\007\0" // USA - Indiana - Spencer
    "\235\355\335\034Steub\210\0" // USA - Indiana - Steuben
    "\235\355\335\034Sulliv\005\0" // USA - Indiana - Sullivan
    "\235\355\335\034Tippec\005o\012\301Wh\243e\0" // USA - Indiana - Tippecanoe and White
    "\235\355\335\034V\035\007b\225gh\0" // USA - Indiana - Vanderburgh
    "\235\355\335\034Vigo\0" // USA - Indiana - Vigo
    "\235\355\335\034W\240ls\0" // USA - Indiana - Wells
    "\235Iow\034Am\242-D\242 Mo\024\242\0" // USA - Iowa - Ames-Des Moines
    "\235Iow\034B\225l\024gt\003\0" // USA - Iowa - Burlington
    "\235Iow\034C#r\247l-Atl\005t$\0" // USA - Iowa - Carroll-Atlantic
    "\235Iow\034C\273# Rap\257s\0" // USA - Iowa - Cedar Rapids
    "\235Iow\034C\025nc\372 Bluffs\0" // USA - Iowa - Council Bluffs
    "\235Iow\034Dubuque-Dav\210p\006t\0" // USA - Iowa - Dubuque-Davenport
    "\235Iow\034Elk\274\007\0" // USA - Iowa - Elkader
    "\235Iow\034Fa\342fi\240d\0" // USA - Iowa - Fairfield
    "\235Iow\034M\201\222C\243y\0" // USA - Iowa - Mason City
    "\235Iow\034\361t\003\0" // USA - Iowa - Newton
    "\235Iow\034R\273 Oak-Ottumwa\0" // USA - Iowa - Red Oak-Ottumwa
    "\235Iow\034\272\002N\0" // USA - Iowa - SPCS - N
    "\235Iow\034\272\002S\0" // USA - Iowa - SPCS - S
    "\235Iow\034Si\025x\333\243y-Iow\030F\026ls\0" // USA - Iowa - Sioux City-Iowa Falls
    "\235Iow\034Sp\210c\007\0" // USA - Iowa - Spencer
    "\235Iow\034W<\007loo\0" // USA - Iowa - Waterloo
    "\235K\005s\201\0" // USA - Kansas
    "\235K\005s\201\002\326k\005s\201\333\243y\0" // USA - Kansas - Arkansas City
    "\235K\005s\201\002Atch=\003\0" // USA - Kansas - Atchison
    "\235K\005s\201\002B\240o\243\0" // USA - Kansas - Beloit
    "\235K\005s\201\002C\216feyv\372le\0" // USA - Kansas - Coffeyville
    "\235K\005s\201\002C\247by\0" // USA - Kansas - Colby
    "\235K\005s\201\002Dodg\012C\243y\0" // USA - Kansas - Dodge City
    "\235K\005s\201\002Emp\006ia\0" // USA - Kansas - Emporia
    "\235K\005s\201\002G#d\210\333\243y\0" // USA - Kansas - Garden City
    "\235K\005s\201\002Good\211\0" // USA - Kansas - Goodland
    "\235K\005s\201\002G>< B\210d\0" // USA - Kansas - Great Bend
    "\235K\005s\201\002Hays\0" // USA - Kansas - Hays
    "\235K\005s\201\002K\005s\201\333\243y\0" // USA - Kansas - Kansas City
    "\235K\005s\201\002L#n\273\0" // USA - Kansas - Larned
    "\235K\005s\201\002M\005h<t\005\0" // USA - Kansas - Manhattan
    "\235K\005s\201\002Ob\007l\024\0" // USA - Kansas - Oberlin
    "\235K\005s\201\002P\243tsb\225g\0" // USA - Kansas - Pittsburg
    "\235K\005s\201\002Pr<t\0" // USA - Kansas - Pratt
    "\235K\005s\201\002\272\002N\0" // USA - Kansas - SPCS - N
    "\235K\005s\201\002\272\002S\0" // USA - Kansas - SPCS - S
    "\235K\005s\201\002S\026\024a\0" // USA - Kansas - Salina
    "\235K\005s\201\002Ulyss\242\0" // USA - Kansas - Ulysses
    "\235K\005s\201\002W$h\243a\0" // USA - Kansas - Wichita
    "\235Ke\032ucky\0" // USA - Kentucky
    "\235Ke\032ucky\002\272\002N\0" // USA - Kentucky - SPCS - N
    "\235Ke\032ucky\002\272\002S\0" // USA - Kentucky - SPCS - S
    "\235L\025=\335a\0" // USA - Louisiana
    "\235L\025=\335\034\272\002N\0" // USA - Louisiana - SPCS - N
    "\235L\025=\335\034\272\313\002S\0" // USA - Louisiana - SPCS27 - S
    "\235L\025=\335\034\356\002S\0" // USA - Louisiana - SPCS83 - S
    "\235Ma\024\226@\2270\002C\0" // USA - Maine - CS2000 - C
    "\235Ma\024\226@\2270\002E\0" // USA - Maine - CS2000 - E
    "\235Ma\024\226@\2270\002W\0" // USA - Maine - CS2000 - W
    "\235Ma\024\226\272\002E\0" // USA - Maine - SPCS - E
    "\235Ma\024\226\272\002W\0" // USA - Maine - SPCS - W
    "\235M#y\211\0" // USA - Maryland
    "\235M\201sach\357\036ts\002\272\002=\211s\0" // USA - Massachusetts - SPCS - islands
    "\235M\201sach\357\036ts\002\272\002ma\024\211\0" // USA - Massachusetts - SPCS - mainland
    "\235M$hig\005\0" // USA - Michigan
    "\235M$hig\005\002\272\002C\0" // USA - Michigan - SPCS - C
    "\235M$hig\005\002\272\002E\0" // USA - Michigan - SPCS - E
    "\235M$hig\005\002\272\002N\0" // USA - Michigan - SPCS - N
    "\235M$hig\005\002\272\002S\0" // USA - Michigan - SPCS - S
    "\235M$hig\005\002\272\002W\0" // USA - Michigan - SPCS - W
    "\235M$hig\005\002\272\002\247d c\365\026\0" // USA - Michigan - SPCS - old central
    "\235M\024n\242\350\034\272\002C\0" // USA - Minnesota - SPCS - C
    "\235M\024n\242\350\034\272\002N\0" // USA - Minnesota - SPCS - N
    "\235M\024n\242\350\034\272\002S\0" // USA - Minnesota - SPCS - S
    "\235M=s=sippi\0" // USA - Mississippi
    "\235M=s=sippi\002\272\002E\0" // USA - Mississippi - SPCS - E
    "\235M=s=sippi\002\272\002W\0" // USA - Mississippi - SPCS - W
    "\235M=s\025ri\002\272\002C\0" // USA - Missouri - SPCS - C
    "\235M=s\025ri\002\272\002E\0" // USA - Missouri - SPCS - E
    "\235M=s\025ri\002\272\002W\0" // USA - Missouri - SPCS - W
    "\235M\003t\005a\0" // USA - Montana
    "\235M\003t\005\034B\372l\024gs\0" // USA - Montana - Billings
    "\235M\003t\005\034Blackf\221 >s\007v<\321\0" // USA - Montana - Blackfeet reservation
    "\235M\003t\005\034Crow >s\007v<\321\0" // USA - Montana - Crow reservation
    "\235M\003t\005\034F\006t B\240knap\0" // USA - Montana - Fort Belknap
    "\235M\003t\005\034F\006t Peck high\007 #e\201\0" // USA - Montana - Fort Peck higher areas
    "\235M\003t\005\034F\006t Peck low\007 #e\201\0" // USA - Montana - Fort Peck lower areas
    "\235M\003t\005\034M\372k Riv\007\0" // USA - Montana - Milk River
    "\235M\003t\005\034\272\313\002C\0" // USA - Montana - SPCS27 - C
    "\235M\003t\005\034\272\313\002N\0" // USA - Montana - SPCS27 - N
    "\235M\003t\005\034\272\313\002S\0" // USA - Montana - SPCS27 - S
    "\235M\003t\005\034St M#\200v\026ley\0" // USA - Montana - St Mary valley
    "\235M\003t\005\034Th>\012F\006ks\0" // USA - Montana - Three Forks
    "\235\310br\201ka\0" // USA - Nebraska
    "\235\310br\201k\034\272\313\002N\0" // USA - Nebraska - SPCS27 - N
    "\235\310br\201k\034\272\313\002S\0" // USA - Nebraska - SPCS27 - S
    "\235\310v\274\034L\201 Veg\201\0" // USA - Nevada - Las Vegas
    "\235\310v\274\034L\201 Veg\201 high \240ev<\321\0" // USA - Nevada - Las Vegas high elevation
    "\235\310v\274\034\272\002C\0" // USA - Nevada - SPCS - C
    "\235\310v\274\034\272\002E\0" // USA - Nevada - SPCS - E
    "\235\310v\274\034\272\002W\0" // USA - Nevada - SPCS - W
    "\235\361 H\232p^i>\0" // USA - New Hampshire
    "\235\361 J\220ey\0" // USA - New Jersey
    "\235\361 Mex$o\002\272\002E\0" // USA - New Mexico - SPCS - E
    "\235\361 Mex$o\002\272\313\002C\0" // USA - New Mexico - SPCS27 - C
    "\235\361 Mex$o\002\272\313\002W\0" // USA - New Mexico - SPCS27 - W
    "\235\361 Mex$o\002\356\002C\0" // USA - New Mexico - SPCS83 - C
    "\235\361 Mex$o\002\356\002W\0" // USA - New Mexico - SPCS83 - W
    "\235\361 Y\006k\002\272\002C\0" // USA - New York - SPCS - C
    "\235\361 Y\006k\002\272\002E\0" // USA - New York - SPCS - E
    "\235\361 Y\006k\002\272\002L\003g \352\0" // USA - New York - SPCS - Long Island
    "\235\361 Y\006k\002\272\002W\0" // USA - New York - SPCS - W
    "\235\324C#\247\024a\0" // USA - North Carolina
    "\235\324Dak\350\034\272\002N\0" // USA - North Dakota - SPCS - N
    "\235\324Dak\350\034\272\002S\0" // USA - North Dakota - SPCS - S
    "\235Ohio\002\272\002N\0" // USA - Ohio - SPCS - N
    "\235Ohio\002\272\002S\0" // USA - Ohio - SPCS - S
    "\235Okl\373\344\034\272\002N\0" // USA - Oklahoma - SPCS - N
    "\235Okl\373\344\034\272\002S\0" // USA - Oklahoma - SPCS - S
    "\235O>g\003\0" // USA - Oregon
    "\235\323\003\002Bak\007\333\243y\0" // USA - Oregon - Baker City
    "\235\323\003\002B\210d-B\225ns\0" // USA - Oregon - Bend-Burns
    "\235\323\003\002B\210d-Kl\232a`F\026ls\0" // USA - Oregon - Bend-Klamath Falls
    "\235\323\003\002B\210d-R\273m\003d-Pr\024ev\372le\0" // USA - Oregon - Bend-Redmond-Prineville
    "\235\323\003\002B\225ns-H#p\007\0" // USA - Oregon - Burns-Harper
    "\235\323\003\002C\005y\222C\243y-B\225ns\0" // USA - Oregon - Canyon City-Burns
    "\235\323\003\002C\005y\003v\372le-Gr\005ts P\201s\0" // USA - Oregon - Canyonville-Grants Pass
    "\235\323\003\002Co\315R\005g\012\371\0" // USA - Oregon - Coast Range North
    "\235\323\003\002C\247umb\314Riv\007 Ea\021\0" // USA - Oregon - Columbia River East
    "\235\323\003\002C\247umb\314Riv\007 We\021\0" // USA - Oregon - Columbia River West
    "\235\323\003\002C\350tag\012Grove-C\005y\003v\372le\0" // USA - Oregon - Cottage Grove-Canyonville
    "\235\323\003\002Dayv\372le-P\370\342i\012C\243y\0" // USA - Oregon - Dayville-Prairie City
    "\235\323\003\002D\210io-B\225ns\0" // USA - Oregon - Denio-Burns
    "\235\323\003\002Duf\225-M\274r\201\0" // USA - Oregon - Dufur-Madras
    "\235\323\003\002Eug\210e\0" // USA - Oregon - Eugene
    "\235\323\003\002Gr\005ts P\201s-A^\211\0" // USA - Oregon - Grants Pass-Ashland
    "\235\323\003\002G>^\232-W#m{pr\024gs\0" // USA - Oregon - Gresham-Warm Springs
    "\235\323\003\002H\026fway\0" // USA - Oregon - Halfway
    "\235\323\003\002L\030Gr\035e\0" // USA - Oregon - La Grande
    "\235\323\003\002M\273f\006d-Di\232\003d Lake\0" // USA - Oregon - Medford-Diamond Lake
    "\235\323\003\002M\243ch\240l\0" // USA - Oregon - Mitchell
    "\235\323\003\002\324C\365\026\0" // USA - Oregon - North Central
    "\235\323\003\002Ochoc\013Summ\243\0" // USA - Oregon - Ochoco Summit
    "\235\323\003\002O\032#io\0" // USA - Oregon - Ontario
    "\235\323\003\002\377Coa\021\0" // USA - Oregon - Oregon Coast
    "\235\323\003\002Owyhee\0" // USA - Oregon - Owyhee
    "\235\323\003\002P\210dl\036\003\0" // USA - Oregon - Pendleton
    "\235\323\003\002P\210dl\036\003-L\030Gr\035e\0" // USA - Oregon - Pendleton-La Grande
    "\235\323\003\002P\372\350 Rock-Uki\373\0" // USA - Oregon - Pilot Rock-Ukiah
    "\235\323\003\002P\006t\211\0" // USA - Oregon - Portland
    "\235\323\003\002P\370\342i\012C\243y-Brog\005\0" // USA - Oregon - Prairie City-Brogan
    "\235\323\003\002R\372ey-Lakeview\0" // USA - Oregon - Riley-Lakeview
    "\235\323\003\002\272\002N\0" // USA - Oregon - SPCS - N
    "\235\323\003\002\272\002S\0" // USA - Oregon - SPCS - S
    "\235\323\003\002S\026\206\0" // USA - Oregon - Salem
    "\235\323\003\002S=kiy\025 P\201s\0" // USA - Oregon - Siskiyou Pass
    "\235\323\003\002Sw\221 H\344e-Si\021\220\0" // USA - Oregon - Sweet Home-Sisters
    "\235\323\003\002Uki\373-Fox\0" // USA - Oregon - Ukiah-Fox
    "\235\323\003\002W\026lowa\0" // USA - Oregon - Wallowa
    "\235\323\003\002W#n\007 Highway\0" // USA - Oregon - Warner Highway
    "\235\323\003\002W\372l\232\036t\012P\201s\0" // USA - Oregon - Willamette Pass
    "\235\377\301Wa^\024gt\003\0" // USA - Oregon and Washington
    "\235P\210nsylv\005\215\272\002N\0" // USA - Pennsylvania - SPCS - N
    "\235P\210nsylv\005\215\272\002S\0" // USA - Pennsylvania - SPCS - S
    "\235Rhod\012\352\0" // USA - Rhode Island
    "\235\367C#\247\024a\0" // USA - South Carolina
    "\235\367C#\247\024\034\272\313\002N\0" // USA - South Carolina - SPCS27 - N
    "\235\367C#\247\024\034\272\313\002S\0" // USA - South Carolina - SPCS27 - S
    "\235\367Dak\350\034\272\002N\0" // USA - South Dakota - SPCS - N
    "\235\367Dak\350\034\272\002S\0" // USA - South Dakota - SPCS - S
    "\235T\210n\242see\0" // USA - Tennessee
    "\235Tex\201\0" // USA - Texas
    "\235Tex\201\002\272\002C\0" // USA - Texas - SPCS - C
    "\235Tex\201\002\272\002N\0" // USA - Texas - SPCS - N
    "\235Tex\201\002\272\002NC\0" // USA - Texas - SPCS - NC
    "\235Tex\201\002\272\313\002S\0" // USA - Texas - SPCS27 - S
    "\235Tex\201\002\272\313\002\322\0" // USA - Texas - SPCS27 - SC
    "\235Tex\201\002\356\002S\0" // USA - Texas - SPCS83 - S
    "\235Tex\201\002\356\002\322\0" // USA - Texas - SPCS83 - SC
    "\235Ut\373\002\272\002C\0" // USA - Utah - SPCS - C
    "\235Ut\373\002\272\002N\0" // USA - Utah - SPCS - N
    "\235Ut\373\002\272\002S\0" // USA - Utah - SPCS - S
    "\235V\007m\003t\0" // USA - Vermont
    "\235V\342g\024ia\0" // USA - Virginia
    "\235V\342g\024\215\272\002N\0" // USA - Virginia - SPCS - N
    "\235V\342g\024\215\272\002S\0" // USA - Virginia - SPCS - S
    "\235Wa^\024gt\003\002\272\313\002N\0" // USA - Washington - SPCS27 - N
    "\235Wa^\024gt\003\002\272\313\002S\0" // USA - Washington - SPCS27 - S
    "\235Wa^\024gt\003\002\356\002N\0" // USA - Washington - SPCS83 - N
    "\235Wa^\024gt\003\002\356\002S\0" // USA - Washington - SPCS83 - S
    "\235W\275V\342g\024\215\272\002N\0" // USA - West Virginia - SPCS - N
    "\235W\275V\342g\024\215\272\002S\0" // USA - West Virginia - SPCS - S
    "\235W=c\003s\024\0" // USA - Wisconsin
    "\235W=c\003s\024\002Ad\232s \301Juneau\0" // USA - Wisconsin - Adams and Juneau
    "\235W=c\003s\024\002A^\211\0" // USA - Wisconsin - Ashland
    "\235W=c\003s\024\002B#r\003\0" // USA - Wisconsin - Barron
    "\235W=c\003s\024\002Bayfi\240d\0" // USA - Wisconsin - Bayfield
    "\235W=c\003s\024\002Brown\0" // USA - Wisconsin - Brown
    "\235W=c\003s\024\002Buff\026o\0" // USA - Wisconsin - Buffalo
    "\235W=c\003s\024\002B\225n\036t\0" // USA - Wisconsin - Burnett
    "\235W=c\003s\024\002C\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebago\0" // USA - Wisconsin - Calumet, Fond du Lac, Outagamie and Winnebago
    "\235W=c\003s\024\002Chippewa\0" // USA - Wisconsin - Chippewa
    "\235W=c\003s\024\002Cl#k\0" // USA - Wisconsin - Clark
    "\235W=c\003s\024\002C\247umbia\0" // USA - Wisconsin - Columbia
    "\235W=c\003s\024\002C\370wf\006d\0" // USA - Wisconsin - Crawford
    "\235W=c\003s\024\002D\005e\0" // USA - Wisconsin - Dane
    "\235W=c\003s\024\002Dodg\012\301Jeff\220\003\0" // USA - Wisconsin - Dodge and Jefferson
    "\235W=c\003s\024\002Do\006\0" // USA - Wisconsin - Door
    "\235W=c\003s\024\002D\025gl\201\0" // USA - Wisconsin - Douglas
    "\235W=c\003s\024\002Dunn\0" // USA - Wisconsin - Dunn
    "\235W=c\003s\024\002Eau\333lai>\0" // USA - Wisconsin - Eau Claire
    "\235W=c\003s\024\002Fl\202nce\0" // USA - Wisconsin - Florence
    "\235W=c\003s\024\002F\202\021\0" // USA - Wisconsin - Forest
    "\235W=c\003s\024\002Gr\005t\0" // USA - Wisconsin - Grant
    "\235W=c\003s\024\002G>\210 Lak\012\301M#qu\036te\0" // USA - Wisconsin - Green Lake and Marquette
    "\235W=c\003s\024\002G>\210 \301Lafay\036te\0" // USA - Wisconsin - Green and Lafayette
    "\235W=c\003s\024\002Iowa\0" // USA - Wisconsin - Iowa
    "\235W=c\003s\024\002Ir\003\0" // USA - Wisconsin - Iron
    "\235W=c\003s\024\002Jacks\003\0" // USA - Wisconsin - Jackson
    "\235W=c\003s\024\002K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024e\0" // USA - Wisconsin - Kenosha, Milwaukee, Ozaukee and Racine
    "\235W=c\003s\024\002Kewaunee\307M\005\243owoc \035{heboyg\005\0" // USA - Wisconsin - Kewaunee, Manitowoc and Sheboygan
    "\235W=c\003s\024\002L\030Crosse\0" // USA - Wisconsin - La Crosse
    "\235W=c\003s\024\002L\005gl\274e\0" // USA - Wisconsin - Langlade
    "\235W=c\003s\024\002L\024c\247n\0" // USA - Wisconsin - Lincoln
    "\235W=c\003s\024\002M#a\023\003\0" // USA - Wisconsin - Marathon
    "\235W=c\003s\024\002M#\024\036te\0" // USA - Wisconsin - Marinette
    "\235W=c\003s\024\002M\210\344\024ee\0" // USA - Wisconsin - Menominee
    "\235W=c\003s\024\002M\003roe\0" // USA - Wisconsin - Monroe
    "\235W=c\003s\024\002Oc\003to\0" // USA - Wisconsin - Oconto
    "\235W=c\003s\024\002One\257a\0" // USA - Wisconsin - Oneida
    "\235W=c\003s\024\002Pep\024 \301Pi\007ce\0" // USA - Wisconsin - Pepin and Pierce
    "\235W=c\003s\024\002P\247k\0" // USA - Wisconsin - Polk
    "\235W=c\003s\024\002P\006tage\0" // USA - Wisconsin - Portage
    "\235W=c\003s\024\002Pr$e\0" // USA - Wisconsin - Price
    "\235W=c\003s\024\002R$h\211\0" // USA - Wisconsin - Richland
    "\235W=c\003s\024\002Rock\0" // USA - Wisconsin - Rock
    "\235W=c\003s\024\002R\357k\0" // USA - Wisconsin - Rusk
    "\235W=c\003s\024\002\272\002C\0" // USA - Wisconsin - SPCS - C
    "\235W=c\003s\024\002\272\002N\0" // USA - Wisconsin - SPCS - N
    "\235W=c\003s\024\002\272\002S\0" // USA - Wisconsin - SPCS - S
    "\235W=c\003s\024\002Sauk\0" // USA - Wisconsin - Sauk
    "\235W=c\003s\024\002Sawy\007\0" // USA - Wisconsin - Sawyer
    "\235W=c\003s\024\002Shaw\005o\0" // USA - Wisconsin - Shawano
    "\235W=c\003s\024\002St.\333roix\0" // USA - Wisconsin - St. Croix
    "\235W=c\003s\024\002Tayl\006\0" // USA - Wisconsin - Taylor
    "\235W=c\003s\024\002T>mpe\026eau\0" // USA - Wisconsin - Trempealeau
    "\235W=c\003s\024\002V\007n\003\0" // USA - Wisconsin - Vernon
    "\235W=c\003s\024\002V\372\201\0" // USA - Wisconsin - Vilas
    "\235W=c\003s\024\002W\026w\006\023\0" // USA - Wisconsin - Walworth
    "\235W=c\003s\024\002Wa^b\225n\0" // USA - Wisconsin - Washburn
    "\235W=c\003s\024\002Wa^\024gt\003\0" // USA - Wisconsin - Washington
    "\235W=c\003s\024\002Wauke^a\0" // USA - Wisconsin - Waukesha
    "\235W=c\003s\024\002Waupaca\0" // USA - Wisconsin - Waupaca
    "\235W=c\003s\024\002Wau^#a\0" // USA - Wisconsin - Waushara
    "\235W=c\003s\024\002Wood\0" // USA - Wisconsin - Wood
    "\235Wy\344\024g\0" // USA - Wyoming
    "\235Wy\344\024g\002\272\002E\0" // USA - Wyoming - SPCS - E
    "\235Wy\344\024g\002\272\002EC\0" // USA - Wyoming - SPCS - EC
    "\235Wy\344\024g\002\272\002W\0" // USA - Wyoming - SPCS - W
    "\235Wy\344\024g\002\272\002WC\0" // USA - Wyoming - SPCS - WC
    "\235Wy\344\024g\002W\024d Riv\007 >s\007v<\321\0" // USA - Wyoming - Wind River reservation
    "\235w\275\252174\015\002AK\307O@\0" // USA - west of 174°E - AK, OCS
    "\204FS_R6_Alb\220\0" // USFS_R6_Albers
    "\204GS_Tr\005s\005t#\317$_M\025\032a\024s\0" // USGS_Transantarctic_Mountains
    "\204_N<\321\026_Atl\201_Equ\026_A>a\0" // US_National_Atlas_Equal_Area
    "U\250\27031N wi`p>fix\0" // UTM zone 31N with prefix
    "U\250\27032N wi`p>fix\0" // UTM zone 32N with prefix
    "U\250\27033N wi`p>fix\0" // UTM zone 33N with prefix
    "U\376Gab\003_\250\0" // UTM_Gabon_TM
    "U\376Gab\003_\376\03311\0" // UTM_Gabon_TM_2011
    "U\376Z\003\20725S\0" // UTM_Zone_25S
    "U\376Z\003\20739S\0" // UTM_Zone_39S
    "U\376Z\003\20750N\0" // UTM_Zone_50N
    "U\376Z\003\20758S\0" // UTM_Zone_58S
    "U\376!\20732N\0" // UTM_zone_32N
    "U\376!\20733N\0" // UTM_zone_33N
    "Ug\035\034n\006`\252equ<\006 \301w\275\252\375\015\0" // Uganda - north of equator and west of 30°E
    "Uki\373-Fox_\017\212\014_\231_LCC\134t_I\032l\0" // Ukiah-Fox_NAD_1983_2011_LCC_Ft_Intl
    "Uki\373-Fox_\017\212\014_\231_LCC_M\311\0" // Ukiah-Fox_NAD_1983_2011_LCC_Meters
    "Uk\370\024e\0" // Ukraine
    "Uk\370\024\22622\224}25\224\015\0" // Ukraine - 22.5°E to 25.5°E
    "Uk\370\024\22624}\375\015\0" // Ukraine - 24°E to 30°E
    "Uk\370\024\22625\224}28\224\015\0" // Ukraine - 25.5°E to 28.5°E
    "Uk\370\024\22625}28\015\0" // Ukraine - 25°E to 28°E
    "Uk\370\024\22628\224}31\224\015\0" // Ukraine - 28.5°E to 31.5°E
    "Uk\370\024\22628}31\360\237\0" // Ukraine - 28°E to 31°E onshore
    "Uk\370\024\226\375}36\015\0" // Ukraine - 30°E to 36°E
    "Uk\370\024\22631\224}34\224\015\0" // Ukraine - 31.5°E to 34.5°E
    "Uk\370\024\22631}34\360\237\0" // Ukraine - 31°E to 34°E onshore
    "Uk\370\024\22634\224}37\224\015\0" // Ukraine - 34.5°E to 37.5°E
    "Uk\370\024\22634}37\360\237\0" // Ukraine - 34°E to 37°E onshore
    "Uk\370\024\22637}40\360\237\0" // Ukraine - 37°E to 40°E onshore
    "Uk\370\024\226Ch\007k\201\200obla\021\0" // Ukraine - Cherkasy oblast
    "Uk\370\024\226Ch\007nihiv obla\021\0" // Ukraine - Chernihiv oblast
    "Uk\370\024\226Ch\007nivtsi obla\021\0" // Ukraine - Chernivtsi oblast
    "Uk\370\024\226Crimea\0" // Ukraine - Crimea
    "Uk\370\024\226Dniprop\036rovsk obla\021\0" // Ukraine - Dnipropetrovsk oblast
    "Uk\370\024\226D\003\036sk obla\021\0" // Ukraine - Donetsk oblast
    "Uk\370\024\226Iv\005o-Fr\005kivsk obla\021\0" // Ukraine - Ivano-Frankivsk oblast
    "Uk\370\024\226Kh#kiv obla\021\0" // Ukraine - Kharkiv oblast
    "Uk\370\024\226Kh\220\222obla\021\0" // Ukraine - Kherson oblast
    "Uk\370\024\226Khm\240nytskyi obla\021\0" // Ukraine - Khmelnytskyi oblast
    "Uk\370\024\226K\342ovohr\274 obla\021\0" // Ukraine - Kirovohrad oblast
    "Uk\370\024\226Kyiv c\243y\0" // Ukraine - Kyiv city
    "Uk\370\024\226Kyiv obla\021\0" // Ukraine - Kyiv oblast
    "Uk\370\024\226Luh\005sk obla\021\0" // Ukraine - Luhansk oblast
    "Uk\370\024\226Lviv obla\021\0" // Ukraine - Lviv oblast
    "Uk\370\024\226Myk\247aiv obla\021\0" // Ukraine - Mykolaiv oblast
    "Uk\370\024\226Od\242s\030obla\021\0" // Ukraine - Odessa oblast
    "Uk\370\024\226P\247tav\030obla\021\0" // Ukraine - Poltava oblast
    "Uk\370\024\226Rivn\012obla\021\0" // Ukraine - Rivne oblast
    "Uk\370\024\226Seva\021op\247\0" // Ukraine - Sevastopol
    "Uk\370\024\226Sum\200obla\021\0" // Ukraine - Sumy oblast
    "Uk\370\024\226T\007nop\372 obla\021\0" // Ukraine - Ternopil oblast
    "Uk\370\024\226V\024nyts\314obla\021\0" // Ukraine - Vinnytsia oblast
    "Uk\370\024\226V\247yn obla\021\0" // Ukraine - Volyn oblast
    "Uk\370\024\226Zak#p<t\314obla\021\0" // Ukraine - Zakarpattia oblast
    "Uk\370\024\226Zap\006izhzh\314obla\021\0" // Ukraine - Zaporizhzhia oblast
    "Uk\370\024\226Zhyt\344yr obla\021\0" // Ukraine - Zhytomyr oblast
    "Uk\370\024\226e\315\25236\015\0" // Ukraine - east of 36°E
    "Uk\370\024\226e\315\25237\224\015\0" // Ukraine - east of 37.5°E
    "Uk\370\024\226e\315\25240\015\0" // Ukraine - east of 40°E
    "Uk\370\024\226w\275\25222\224\015\0" // Ukraine - west of 22.5°E
    "Uk\370\024\226w\275\25224\015\0" // Ukraine - west of 24°E
    "Uk\370\024\226w\275\25225\015\0" // Ukraine - west of 25°E
    "Uk\370\024\012\2270\0" // Ukraine 2000
    "Uk\370\024\207\2270\0" // Ukraine_2000
    "Uk\370\024\207\2270_\0" // Ukraine_2000_
    "Uk\370\024\207\2270_3_Deg>\207GK_\0" // Ukraine_2000_3_Degree_GK_
    "Unif\006m A\021ro-Geod\036$ N\036w\006k\205UAGN)\32056\0" // Uniform Astro-Geodetic Network (UAGN) 1956
    "Unif\006m A\021ro-Geod\036$ N\036w\006k\205UAGN) \03183\0" // Uniform Astro-Geodetic Network (UAGN) 1983
    "Univ\220\223P\247#{t\007eog\370\230$ \371\0" // Universal Polar Stereographic North
    "Univ\220\223P\247#{t\007eog\370\230${\362\0" // Universal Polar Stereographic South
    "Unknown d<um b\201\273 up\003\020h\012A\342\2001\0140 \240lipso\257\0" // Unknown datum based upon the Airy 1830 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012A\342\200Modifi\273 1849 \240lipso\257\0" // Unknown datum based upon the Airy Modified 1849 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Au\021r\026\335 N<\321\026{\271o\257\0" // Unknown datum based upon the Australian National Spheroid
    "Unknown d<um b\201\273 up\003\020h\012Au\023\026$ S\271e\0" // Unknown datum based upon the Authalic Sphere
    "Unknown d<um b\201\273 up\003\020h\012Av\007ag\012T\007>\021ri\026{y\021\206\32077 \240lipso\257\0" // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012B\242s\240 1841 \240lipso\257\0" // Unknown datum based upon the Bessel 1841 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012B\242s\240 Modifi\273 \240lipso\257\0" // Unknown datum based upon the Bessel Modified ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012B\242s\240 N\232ib\314\240lipso\257\0" // Unknown datum based upon the Bessel Namibia ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121858 \240lipso\257\0" // Unknown datum based upon the Clarke 1858 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121866 M$hig\005 \240lipso\257\0" // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121866 \240lipso\257\0" // Unknown datum based upon the Clarke 1866 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121880\205\326c) \240lipso\257\0" // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121880\205B\210o\243) \240lipso\257\0" // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121880\205IGN) \240lipso\257\0" // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121880\205RGS) \240lipso\257\0" // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121880\205SGA\32022) \240lipso\257\0" // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Cl#k\0121880 \240lipso\257\0" // Unknown datum based upon the Clarke 1880 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Ev\007\275(1\0140 Def\024\243\321) \240lipso\257\0" // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Ev\007\2751\0140\205\03137 Adju\021me\032) \240lipso\257\0" // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Ev\007\2751\0140\205\03162 Def\024\243\321) \240lipso\257\0" // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Ev\007\2751\0140\205\03167 Def\024\243\321) \240lipso\257\0" // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Ev\007\2751\0140\205\03175 Def\024\243\321) \240lipso\257\0" // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Ev\007\2751\0140 Modifi\273 \240lipso\257\0" // Unknown datum based upon the Everest 1830 Modified ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012GEM \312C \240lipso\257\0" // Unknown datum based upon the GEM 10C ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012G|\32067 \240lipso\257\0" // Unknown datum based upon the GRS 1967 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012G|\32080 \240lipso\257\0" // Unknown datum based upon the GRS 1980 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012H\240m\007t\32006 \240lipso\257\0" // Unknown datum based upon the Helmert 1906 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012\355\003\242\335 N<\321\026{\271o\257\0" // Unknown datum based upon the Indonesian National Spheroid
    "Unknown d<um b\201\273 up\003\020h\012I\032\007n<\321\223\03124 \240lipso\257\0" // Unknown datum based upon the International 1924 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Kr\201sowsk\200\03140 \240lipso\257\0" // Unknown datum based upon the Krassowsky 1940 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012NWL 9D \240lipso\257\0" // Unknown datum based upon the NWL 9D ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012OSU86F \240lipso\257\0" // Unknown datum based upon the OSU86F ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012OSU91A \240lipso\257\0" // Unknown datum based upon the OSU91A ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Pl\242s= 1817 \240lipso\257\0" // Unknown datum based upon the Plessis 1817 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012Struv\0121860 \240lipso\257\0" // Unknown datum based upon the Struve 1860 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012WGS 72 \240lipso\257\0" // Unknown datum based upon the WGS 72 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012WGS 84 \240lipso\257\0" // Unknown datum based upon the WGS 84 ellipsoid
    "Unknown d<um b\201\273 up\003\020h\012W# Off$\012\240lipso\257\0" // Unknown datum based upon the War Office ellipsoid
    "Unspecifi\273 d<um b\201\273 up\003\020h\012Cl#k\0121866 Au\023\026$ S\271e\0" // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    "Unspecifi\273 d<um b\201\273 up\003\020h\012G|\32080 Au\023\026$ S\271e\0" // Unspecified datum based upon the GRS 1980 Authalic Sphere
    "Unspecifi\273 d<um b\201\273 up\003\020h\012Hugh\242\32080 \240lipso\257\0" // Unspecified datum based upon the Hughes 1980 ellipsoid
    "Unspecifi\273 d<um b\201\273 up\003\020h\012I\032\007n<\321\223\03124 Au\023\026$ S\271e\0" // Unspecified datum based upon the International 1924 Authalic Sphere
    "Uruguay\0" // Uruguay
    "Uruguay\002e\315\25254\037\0" // Uruguay - east of 54°W
    "Uruguay\002\237\0" // Uruguay - onshore
    "Uruguay\002w\275\25254\037\0" // Uruguay - west of 54°W
    "Ut\373 @\313\333\365\223!e\0" // Utah CS27 Central zone
    "Ut\373 @\313 \324!e\0" // Utah CS27 North zone
    "Ut\373 @\313{\246!e\0" // Utah CS27 South zone
    "Ut\373\374\365\026\2674\3752\0" // Utah_Central_FIPS_4302
    "Ut\373\374\365\026\2674\3752\366\0" // Utah_Central_FIPS_4302_Feet
    "Ut\373\374\365\026\2674\3752\366_I\032l\0" // Utah_Central_FIPS_4302_Feet_Intl
    "Ut\373\374\365\026\2674\3752\134t_I\032l\0" // Utah_Central_FIPS_4302_Ft_Intl
    "Ut\373\374\365\026\2674\3752\134t_\204\0" // Utah_Central_FIPS_4302_Ft_US
    "Ut\373_\371\2674\3751\0" // Utah_North_FIPS_4301
    "Ut\373_\371\2674\3751\366\0" // Utah_North_FIPS_4301_Feet
    "Ut\373_\371\2674\3751\366_I\032l\0" // Utah_North_FIPS_4301_Feet_Intl
    "Ut\373_\371\2674\3751\134t_I\032l\0" // Utah_North_FIPS_4301_Ft_Intl
    "Ut\373_\371\2674\3751\134t_\204\0" // Utah_North_FIPS_4301_Ft_US
    "Ut\373_S\362\2674\3753\0" // Utah_South_FIPS_4303
    "Ut\373_S\362\2674\3753\366\0" // Utah_South_FIPS_4303_Feet
    "Ut\373_S\362\2674\3753\366_I\032l\0" // Utah_South_FIPS_4303_Feet_Intl
    "Ut\373_S\362\2674\3753\134t_I\032l\0" // Utah_South_FIPS_4303_Ft_Intl
    "Ut\373_S\362\2674\3753\134t_\204\0" // Utah_South_FIPS_4303_Ft_US
    "Utt# Pr\274e^ \334F LCC\0" // Uttar Pradesh NSF LCC
    "Utt#_Pr\274e^\0" // Uttar_Pradesh
    "Utt#\005ch\223\334F LCC\0" // Uttaranchal NSF LCC
    "Uve\030SHOM\32078\0" // Uvea SHOM 1978
    "VICGRID94\0" // VICGRID94
    "VII\2670407\0" // VII_FIPS_0407
    "VI\2670406\0" // VI_FIPS_0406
    "VI\2670406\366\0" // VI_FIPS_0406_Feet
    "VI\2670406\134t_\204\0" // VI_FIPS_0406_Ft_US
    "VN-\2270\0" // VN-2000
    "VN-\2270\011\250-3 \3123-00\0" // VN-2000 / TM-3 103-00
    "VN-\2270\011\250-3 \3124-00\0" // VN-2000 / TM-3 104-00
    "VN-\2270\011\250-3 \3124-30\0" // VN-2000 / TM-3 104-30
    "VN-\2270\011\250-3 \3124-45\0" // VN-2000 / TM-3 104-45
    "VN-\2270\011\250-3 \3125-30\0" // VN-2000 / TM-3 105-30
    "VN-\2270\011\250-3 \3125-45\0" // VN-2000 / TM-3 105-45
    "VN-\2270\011\250-3 \3126-00\0" // VN-2000 / TM-3 106-00
    "VN-\2270\011\250-3 \3126-15\0" // VN-2000 / TM-3 106-15
    "VN-\2270\011\250-3 \3126-30\0" // VN-2000 / TM-3 106-30
    "VN-\2270\011\250-3 \3127-00\0" // VN-2000 / TM-3 107-00
    "VN-\2270\011\250-3 \3127-15\0" // VN-2000 / TM-3 107-15
    "VN-\2270\011\250-3 \3127-30\0" // VN-2000 / TM-3 107-30
    "VN-\2270\011\250-3 \3127-45\0" // VN-2000 / TM-3 107-45
    "VN-\2270\011\250-3 \3128-15\0" // VN-2000 / TM-3 108-15
    "VN-\2270\011\250-3 \3128-30\0" // VN-2000 / TM-3 108-30
    "VN-\2270\011\250-3 D\030N\005g !e\0" // VN-2000 / TM-3 Da Nang zone
    "VN-\2270\011\250-3\270481\0" // VN-2000 / TM-3 zone 481
    "VN-\2270\011\250-3\270482\0" // VN-2000 / TM-3 zone 482
    "VN-\2270\011\250-3\270491\0" // VN-2000 / TM-3 zone 491
    "VN-\2270\011U\250\27048N\0" // VN-2000 / UTM zone 48N
    "VN-\2270\011U\250\27049N\0" // VN-2000 / UTM zone 49N
    "VN-\2270_\250-3_\0" // VN-2000_TM-3_
    "VN_\2270\0" // VN_2000
    "VN_\2270_\250-3_\3127-45\0" // VN_2000_TM-3_107-45
    "VN_\2270_\250-3_!\207481\0" // VN_2000_TM-3_zone_481
    "VN_\2270_\250-3_!\207482\0" // VN_2000_TM-3_zone_482
    "VN_\2270_\250-3_!\207491\0" // VN_2000_TM-3_zone_491
    "VN_\2270_U\376Z\003\20748N\0" // VN_2000_UTM_Zone_48N
    "VN_\2270_U\376Z\003\20749N\0" // VN_2000_UTM_Zone_49N
    "V\2670405\0" // V_FIPS_0405
    "V\2670405\366\0" // V_FIPS_0405_Feet
    "V\2670405\134t_\204\0" // V_FIPS_0405_Ft_US
    "V\026l\273up#\374\242#_\03311\0" // Valledupar_Cesar_2011
    "V\035\007b\225gh_(ft\204)\0" // Vanderburgh_(ftUS)
    "V\035\007b\225gh_(m)\0" // Vanderburgh_(m)
    "V\005u\030Levu\32015\0" // Vanua Levu 1915
    "V\005u\030Levu\32015\011V\005u\030Levu Gr\257\0" // Vanua Levu 1915 / Vanua Levu Grid
    "V\005u\030Levu\32017\0" // Vanua Levu 1917
    "V\005u\253Levu\21215\0" // Vanua_Levu_1915
    "V\005u<u\002n\006\023\007n =\211s\0" // Vanuatu - northern islands
    "V\005u<u\002s\362\007n =\211s\0" // Vanuatu - southern islands
    "V\210ezu\240a\0" // Venezuela
    "V\210ezu\240\03472\037 \30166\037\0" // Venezuela - 72°W and 66°W
    "V\210ezu\240\03472\037 \30166\037 \237\0" // Venezuela - 72°W and 66°W onshore
    "V\210ezu\240\034Lak\012M#acaibo\0" // Venezuela - Lake Maracaibo
    "V\210ezu\240\034M#acaibo\002blocks I II \301III\0" // Venezuela - Maracaibo - blocks I II and III
    "V\210ezu\240\034M#acaib\013#ea\0" // Venezuela - Maracaibo area
    "V\210ezu\240\034e\315\25266\037\0" // Venezuela - east of 66°W
    "V\210ezu\240\034e\315\25266\037 \237\0" // Venezuela - east of 66°W onshore
    "V\210ezu\240\034n\006`\2527\00445'N\0" // Venezuela - north of 7°45'N
    "V\210ezu\240\034\237\0" // Venezuela - onshore
    "V\210ezu\240\034w\275\25272\037\0" // Venezuela - west of 72°W
    "V\007m\003t @27\0" // Vermont CS27
    "V\007m\003t\2674400\0" // Vermont_FIPS_4400
    "V\007m\003t\2674400\366\0" // Vermont_FIPS_4400_Feet
    "V\007m\003t\2674400\134t_\204\0" // Vermont_FIPS_4400_Ft_US
    "V\007n\003\374\025\032y\366\0" // Vernon_County_Feet
    "V\007n\003\374\025\032y_M\311\0" // Vernon_County_Meters
    "V\007n\003\366\0" // Vernon_Feet
    "V\007n\003_M\311\0" // Vernon_Meters
    "Vie\032\335\012\03182\0" // Vientiane 1982
    "Vie\032\335\207\03182\0" // Vientiane_1982
    "Vi\036n\232\002\3123\224}\3126\224\360\237\0" // Vietnam - 103.5°E to 106.5°E onshore
    "Vi\036n\232\002\3124\004\033'E\022\3126\00440'E \351prov\024ce\0" // Vietnam - 104°20'E to 106°40'E by province
    "Vi\036n\232\002\3125\00415'E\022\3127\00450'E \351prov\024c\226HCMC\0" // Vietnam - 105°15'E to 107°50'E by province - HCMC
    "Vi\036n\232\002An G\335g\307La\013Cai\307Ngh\012An\307Phu Tho\307Y\210 Bai\0" // Vietnam - An Giang, Lao Cai, Nghe An, Phu Tho, Yen Bai
    "Vi\036n\232\002Bac G\335g \301Thu\030Thi\210-Hue\0" // Vietnam - Bac Giang and Thua Thien-Hue
    "Vi\036n\232\002Bac K\005 \301Thai Nguy\210\0" // Vietnam - Bac Kan and Thai Nguyen
    "Vi\036n\232\002B\024h D\024h\307Kh\005h Hoa\307N\024h Thu\005\0" // Vietnam - Binh Dinh, Khanh Hoa, Ninh Thuan
    "Vi\036n\232\002B\024h Phuoc \301Qu\005g Tri\0" // Vietnam - Binh Phuoc and Quang Tri
    "Vi\036n\232\002B\024h Thu\005\307Dak Lak\307Dak N\003g\307G\314Lai\307Phu Y\210\0" // Vietnam - Binh Thuan, Dak Lak, Dak Nong, Gia Lai, Phu Yen
    "Vi\036n\232\002C\030Mau \301Ki\210 G\335g\0" // Vietnam - Ca Mau and Kien Giang
    "Vi\036n\232\002Di\210 Bi\210 \301Lai\333hau\0" // Vietnam - Dien Bien and Lai Chau
    "Vi\036n\232\002Ho\030B\024h\307Qu\005g B\024h \301Tuy\210 Qu\005g\0" // Vietnam - Hoa Binh, Quang Binh and Tuyen Quang
    "Vi\036n\232\002K\222Tum\0" // Vietnam - Kon Tum
    "Vi\036n\232\002L\005g{\003\0" // Vietnam - Lang Son
    "Vi\036n\232\002Qu\005g N\024h; D\030N\005g\307Qu\005g N\232; B\030Ria-Vung Tau\307D\003g Nai\307L\232 D\003g\0" // Vietnam - Quang Ninh; Da Nang, Quang Nam; Ba Ria-Vung Tau, Dong Nai, Lam Dong
    "Vi\036n\232\002S\222La\0" // Vietnam - Son La
    "Vi\036n\232\002e\315\252\3126\224\360\237\0" // Vietnam - east of 106.5°E onshore
    "Vi\036n\232\002e\315\252\3128\360\237\0" // Vietnam - east of 108°E onshore
    "Vi\036n\232\002\216f^\006\012Cuu L\003g b\201\024\0" // Vietnam - offshore Cuu Long basin
    "Vi\036n\232\002\237\0" // Vietnam - onshore
    "Vi\036n\232\002\213\006\012Vung Tau #ea\0" // Vietnam - onshore Vung Tau area
    "Vi\036n\232\002w\275\252\3123\004\375'E \237\0" // Vietnam - west of 103°30'E onshore
    "Vi\036n\232\002w\275\252\3128\360\237\0" // Vietnam - west of 108°E onshore
    "Vi\036n\232 \2270\0" // Vietnam 2000
    "Vi\036n\232 \250-3 \3123-00\0" // Vietnam TM-3 103-00
    "Vi\036n\232 \250-3 \3124-00\0" // Vietnam TM-3 104-00
    "Vi\036n\232 \250-3 \3124-30\0" // Vietnam TM-3 104-30
    "Vi\036n\232 \250-3 \3124-45\0" // Vietnam TM-3 104-45
    "Vi\036n\232 \250-3 \3125-30\0" // Vietnam TM-3 105-30
    "Vi\036n\232 \250-3 \3125-45\0" // Vietnam TM-3 105-45
    "Vi\036n\232 \250-3 \3126-00\0" // Vietnam TM-3 106-00
    "Vi\036n\232 \250-3 \3126-15\0" // Vietnam TM-3 106-15
    "Vi\036n\232 \250-3 \3126-30\0" // Vietnam TM-3 106-30
    "Vi\036n\232 \250-3 \3127-00\0" // Vietnam TM-3 107-00
    "Vi\036n\232 \250-3 \3127-15\0" // Vietnam TM-3 107-15
    "Vi\036n\232 \250-3 \3127-30\0" // Vietnam TM-3 107-30
    "Vi\036n\232 \250-3 \3127-45\0" // Vietnam TM-3 107-45
    "Vi\036n\232 \250-3 \3128-15\0" // Vietnam TM-3 108-15
    "Vi\036n\232 \250-3 \3128-30\0" // Vietnam TM-3 108-30
    "Vi\036n\232 \250-3 D\030N\005g !e\0" // Vietnam TM-3 Da Nang zone
    "Vi\036n\232 \250-3\270481\0" // Vietnam TM-3 zone 481
    "Vi\036n\232 \250-3\270482\0" // Vietnam TM-3 zone 482
    "Vi\036n\232 \250-3\270491\0" // Vietnam TM-3 zone 491
    "Vi\036n\232_\2270\0" // Vietnam_2000
    "Vigo_(ft\204)\0" // Vigo_(ftUS)
    "Vigo_(m)\0" // Vigo_(m)
    "V\372\201\374\025\032y\366\0" // Vilas_County_Feet
    "V\372\201\374\025\032y_M\311\0" // Vilas_County_Meters
    "V\372\201\366\0" // Vilas_Feet
    "V\372\201_M\311\0" // Vilas_Meters
    "V\372lav$\210cio_M\036\253\03311\0" // Villavicencio_Meta_2011
    "V\342g\024 \352s\307Br\243=h\002\237\0" // Virgin Islands, British - onshore
    "V\342g\024 \352s\307\204\002\237\0" // Virgin Islands, US - onshore
    "V\342g\024\314L\232b\007t\333\003$\333\003f\006m\026\0" // Virginia Lambert Conic Conformal
    "V\342g\024i\253L\232b\007t\0" // Virginia_Lambert
    "V\342g\024i\253\371\2674501\0" // Virginia_North_FIPS_4501
    "V\342g\024i\253\371\2674501\366\0" // Virginia_North_FIPS_4501_Feet
    "V\342g\024i\253\371\2674501\134t_\204\0" // Virginia_North_FIPS_4501_Ft_US
    "V\342g\024i\253S\362\2674502\0" // Virginia_South_FIPS_4502
    "V\342g\024i\253S\362\2674502\366\0" // Virginia_South_FIPS_4502_Feet
    "V\342g\024i\253S\362\2674502\134t_\204\0" // Virginia_South_FIPS_4502_Ft_US
    "V\243i Levu\32012\0" // Viti Levu 1912
    "V\243i Levu\32012\011V\243i Levu Gr\257\0" // Viti Levu 1912 / Viti Levu Grid
    "V\243i Levu\32016\0" // Viti Levu 1916
    "V\243i_Levu\21212\0" // Viti_Levu_1912
    "V\243i_Levu\21216\0" // Viti_Levu_1916
    "Vo\342\247 1875\0" // Voirol 1875
    "Vo\342\247 1875\205P#=)\0" // Voirol 1875 (Paris)
    "Vo\342\247 1875\011\203d Alg\007i\012(\005ci\210ne)\0" // Voirol 1875 / Nord Algerie (ancienne)
    "Vo\342\247 1875\011Sud Alg\007i\012(\005ci\210ne)\0" // Voirol 1875 / Sud Algerie (ancienne)
    "Vo\342\247 1879\0" // Voirol 1879
    "Vo\342\247 1879\205P#=)\0" // Voirol 1879 (Paris)
    "Vo\342\247 1879\011\203d Alg\007i\012(\005ci\210ne)\0" // Voirol 1879 / Nord Algerie (ancienne)
    "Vo\342\247 1879\011Sud Alg\007i\012(\005ci\210ne)\0" // Voirol 1879 / Sud Algerie (ancienne)
    "Vo\342\247_1875\0" // Voirol_1875
    "Vo\342\247_1875_P#=\0" // Voirol_1875_Paris
    "Vo\342\247_1879\0" // Voirol_1879
    "Vo\342\247_1879_\203d_Alg\007i\207Anci\210ne\0" // Voirol_1879_Nord_Algerie_Ancienne
    "Vo\342\247_1879_P#=\0" // Voirol_1879_Paris
    "Vo\342\247_1879_Sud_Alg\007i\207Anci\210ne\0" // Voirol_1879_Sud_Algerie_Ancienne
    "Vo\342\247_Unifi\207\203d\0" // Voirol_Unifie_Nord
    "Vo\342\247_Unifi\207Sud\0" // Voirol_Unifie_Sud
    "WGS 66\0" // WGS 66
    "WGS 72\0" // WGS 72
    "WGS 72\011U\250\270\312N\0" // WGS 72 / UTM zone 10N
    "WGS 72\011U\250\270\312S\0" // WGS 72 / UTM zone 10S
    "WGS 72\011U\250\27011N\0" // WGS 72 / UTM zone 11N
    "WGS 72\011U\250\27011S\0" // WGS 72 / UTM zone 11S
    "WGS 72\011U\250\27012N\0" // WGS 72 / UTM zone 12N
    "WGS 72\011U\250\27012S\0" // WGS 72 / UTM zone 12S
    "WGS 72\011U\250\27013N\0" // WGS 72 / UTM zone 13N
    "WGS 72\011U\250\27013S\0" // WGS 72 / UTM zone 13S
    "WGS 72\011U\250\27014N\0" // WGS 72 / UTM zone 14N
    "WGS 72\011U\250\27014S\0" // WGS 72 / UTM zone 14S
    "WGS 72\011U\250\27015N\0" // WGS 72 / UTM zone 15N
    "WGS 72\011U\250\27015S\0" // WGS 72 / UTM zone 15S
    "WGS 72\011U\250\27016N\0" // WGS 72 / UTM zone 16N
    "WGS 72\011U\250\27016S\0" // WGS 72 / UTM zone 16S
    "WGS 72\011U\250\27017N\0" // WGS 72 / UTM zone 17N
    "WGS 72\011U\250\27017S\0" // WGS 72 / UTM zone 17S
    "WGS 72\011U\250\27018N\0" // WGS 72 / UTM zone 18N
    "WGS 72\011U\250\27018S\0" // WGS 72 / UTM zone 18S
    "WGS 72\011U\250\27019N\0" // WGS 72 / UTM zone 19N
    "WGS 72\011U\250\27019S\0" // WGS 72 / UTM zone 19S
    "WGS 72\011U\250\2701N\0" // WGS 72 / UTM zone 1N
    "WGS 72\011U\250\2701S\0" // WGS 72 / UTM zone 1S
    "WGS 72\011U\250\270\033N\0" // WGS 72 / UTM zone 20N
    "WGS 72\011U\250\270\033S\0" // WGS 72 / UTM zone 20S
    "WGS 72\011U\250\27021N\0" // WGS 72 / UTM zone 21N
    "WGS 72\011U\250\27021S\0" // WGS 72 / UTM zone 21S
    "WGS 72\011U\250\27022N\0" // WGS 72 / UTM zone 22N
    "WGS 72\011U\250\27022S\0" // WGS 72 / UTM zone 22S
    "WGS 72\011U\250\27023N\0" // WGS 72 / UTM zone 23N
    "WGS 72\011U\250\27023S\0" // WGS 72 / UTM zone 23S
    "WGS 72\011U\250\27024N\0" // WGS 72 / UTM zone 24N
    "WGS 72\011U\250\27024S\0" // WGS 72 / UTM zone 24S
    "WGS 72\011U\250\27025N\0" // WGS 72 / UTM zone 25N
    "WGS 72\011U\250\27025S\0" // WGS 72 / UTM zone 25S
    "WGS 72\011U\250\27026N\0" // WGS 72 / UTM zone 26N
    "WGS 72\011U\250\27026S\0" // WGS 72 / UTM zone 26S
    "WGS 72\011U\250\27027N\0" // WGS 72 / UTM zone 27N
    "WGS 72\011U\250\27027S\0" // WGS 72 / UTM zone 27S
    "WGS 72\011U\250\27028N\0" // WGS 72 / UTM zone 28N
    "WGS 72\011U\250\27028S\0" // WGS 72 / UTM zone 28S
    "WGS 72\011U\250\27029N\0" // WGS 72 / UTM zone 29N
    "WGS 72\011U\250\27029S\0" // WGS 72 / UTM zone 29S
    "WGS 72\011U\250\2702N\0" // WGS 72 / UTM zone 2N
    "WGS 72\011U\250\2702S\0" // WGS 72 / UTM zone 2S
    "WGS 72\011U\250\270\375N\0" // WGS 72 / UTM zone 30N
    "WGS 72\011U\250\270\375S\0" // WGS 72 / UTM zone 30S
    "WGS 72\011U\250\27031N\0" // WGS 72 / UTM zone 31N
    "WGS 72\011U\250\27031S\0" // WGS 72 / UTM zone 31S
    "WGS 72\011U\250\27032N\0" // WGS 72 / UTM zone 32N
    "WGS 72\011U\250\27032S\0" // WGS 72 / UTM zone 32S
    "WGS 72\011U\250\27033N\0" // WGS 72 / UTM zone 33N
    "WGS 72\011U\250\27033S\0" // WGS 72 / UTM zone 33S
    "WGS 72\011U\250\27034N\0" // WGS 72 / UTM zone 34N
    "WGS 72\011U\250\27034S\0" // WGS 72 / UTM zone 34S
    "WGS 72\011U\250\27035N\0" // WGS 72 / UTM zone 35N
    "WGS 72\011U\250\27035S\0" // WGS 72 / UTM zone 35S
    "WGS 72\011U\250\27036N\0" // WGS 72 / UTM zone 36N
    "WGS 72\011U\250\27036S\0" // WGS 72 / UTM zone 36S
    "WGS 72\011U\250\27037N\0" // WGS 72 / UTM zone 37N
    "WGS 72\011U\250\27037S\0" // WGS 72 / UTM zone 37S
    "WGS 72\011U\250\27038N\0" // WGS 72 / UTM zone 38N
    "WGS 72\011U\250\27038S\0" // WGS 72 / UTM zone 38S
    "WGS 72\011U\250\27039N\0" // WGS 72 / UTM zone 39N
    "WGS 72\011U\250\27039S\0" // WGS 72 / UTM zone 39S
    "WGS 72\011U\250\2703N\0" // WGS 72 / UTM zone 3N
    "WGS 72\011U\250\2703S\0" // WGS 72 / UTM zone 3S
    "WGS 72\011U\250\27040N\0" // WGS 72 / UTM zone 40N
    "WGS 72\011U\250\27040S\0" // WGS 72 / UTM zone 40S
    "WGS 72\011U\250\27041N\0" // WGS 72 / UTM zone 41N
    "WGS 72\011U\250\27041S\0" // WGS 72 / UTM zone 41S
    "WGS 72\011U\250\27042N\0" // WGS 72 / UTM zone 42N
    "WGS 72\011U\250\27042S\0" // WGS 72 / UTM zone 42S
    "WGS 72\011U\250\27043N\0" // WGS 72 / UTM zone 43N
    "WGS 72\011U\250\27043S\0" // WGS 72 / UTM zone 43S
    "WGS 72\011U\250\27044N\0" // WGS 72 / UTM zone 44N
    "WGS 72\011U\250\27044S\0" // WGS 72 / UTM zone 44S
    "WGS 72\011U\250\27045N\0" // WGS 72 / UTM zone 45N
    "WGS 72\011U\250\27045S\0" // WGS 72 / UTM zone 45S
    "WGS 72\011U\250\27046N\0" // WGS 72 / UTM zone 46N
    "WGS 72\011U\250\27046S\0" // WGS 72 / UTM zone 46S
    "WGS 72\011U\250\27047N\0" // WGS 72 / UTM zone 47N
    "WGS 72\011U\250\27047S\0" // WGS 72 / UTM zone 47S
    "WGS 72\011U\250\27048N\0" // WGS 72 / UTM zone 48N
    "WGS 72\011U\250\27048S\0" // WGS 72 / UTM zone 48S
    "WGS 72\011U\250\27049N\0" // WGS 72 / UTM zone 49N
    "WGS 72\011U\250\27049S\0" // WGS 72 / UTM zone 49S
    "WGS 72\011U\250\2704N\0" // WGS 72 / UTM zone 4N
    "WGS 72\011U\250\2704S\0" // WGS 72 / UTM zone 4S
    "WGS 72\011U\250\27050N\0" // WGS 72 / UTM zone 50N
    "WGS 72\011U\250\27050S\0" // WGS 72 / UTM zone 50S
    "WGS 72\011U\250\27051N\0" // WGS 72 / UTM zone 51N
    "WGS 72\011U\250\27051S\0" // WGS 72 / UTM zone 51S
    "WGS 72\011U\250\27052N\0" // WGS 72 / UTM zone 52N
    "WGS 72\011U\250\27052S\0" // WGS 72 / UTM zone 52S
    "WGS 72\011U\250\27053N\0" // WGS 72 / UTM zone 53N
    "WGS 72\011U\250\27053S\0" // WGS 72 / UTM zone 53S
    "WGS 72\011U\250\27054N\0" // WGS 72 / UTM zone 54N
    "WGS 72\011U\250\27054S\0" // WGS 72 / UTM zone 54S
    "WGS 72\011U\250\27055N\0" // WGS 72 / UTM zone 55N
    "WGS 72\011U\250\27055S\0" // WGS 72 / UTM zone 55S
    "WGS 72\011U\250\27056N\0" // WGS 72 / UTM zone 56N
    "WGS 72\011U\250\27056S\0" // WGS 72 / UTM zone 56S
    "WGS 72\011U\250\27057N\0" // WGS 72 / UTM zone 57N
    "WGS 72\011U\250\27057S\0" // WGS 72 / UTM zone 57S
    "WGS 72\011U\250\27058N\0" // WGS 72 / UTM zone 58N
    "WGS 72\011U\250\27058S\0" // WGS 72 / UTM zone 58S
    "WGS 72\011U\250\27059N\0" // WGS 72 / UTM zone 59N
    "WGS 72\011U\250\27059S\0" // WGS 72 / UTM zone 59S
    "WGS 72\011U\250\2705N\0" // WGS 72 / UTM zone 5N
    "WGS 72\011U\250\2705S\0" // WGS 72 / UTM zone 5S
    "WGS 72\011U\250\27060N\0" // WGS 72 / UTM zone 60N
    "WGS 72\011U\250\27060S\0" // WGS 72 / UTM zone 60S
    "WGS 72\011U\250\2706N\0" // WGS 72 / UTM zone 6N
    "WGS 72\011U\250\2706S\0" // WGS 72 / UTM zone 6S
    "WGS 72\011U\250\2707N\0" // WGS 72 / UTM zone 7N
    "WGS 72\011U\250\2707S\0" // WGS 72 / UTM zone 7S
    "WGS 72\011U\250\2708N\0" // WGS 72 / UTM zone 8N
    "WGS 72\011U\250\2708S\0" // WGS 72 / UTM zone 8S
    "WGS 72\011U\250\2709N\0" // WGS 72 / UTM zone 9N
    "WGS 72\011U\250\2709S\0" // WGS 72 / UTM zone 9S
    "WGS 72 Tr\005s\243 Bro\274c\315E\230\206\007=\0" // WGS 72 Transit Broadcast Ephemeris
    "WGS 72BE\011\367Ch\024\030Se\030L\232b\007t\0" // WGS 72BE / South China Sea Lambert
    "WGS 72BE\011\250 \3126 NE\0" // WGS 72BE / TM 106 NE
    "WGS 72BE\011U\250\270\312N\0" // WGS 72BE / UTM zone 10N
    "WGS 72BE\011U\250\270\312S\0" // WGS 72BE / UTM zone 10S
    "WGS 72BE\011U\250\27011N\0" // WGS 72BE / UTM zone 11N
    "WGS 72BE\011U\250\27011S\0" // WGS 72BE / UTM zone 11S
    "WGS 72BE\011U\250\27012N\0" // WGS 72BE / UTM zone 12N
    "WGS 72BE\011U\250\27012S\0" // WGS 72BE / UTM zone 12S
    "WGS 72BE\011U\250\27013N\0" // WGS 72BE / UTM zone 13N
    "WGS 72BE\011U\250\27013S\0" // WGS 72BE / UTM zone 13S
    "WGS 72BE\011U\250\27014N\0" // WGS 72BE / UTM zone 14N
    "WGS 72BE\011U\250\27014S\0" // WGS 72BE / UTM zone 14S
    "WGS 72BE\011U\250\27015N\0" // WGS 72BE / UTM zone 15N
    "WGS 72BE\011U\250\27015S\0" // WGS 72BE / UTM zone 15S
    "WGS 72BE\011U\250\27016N\0" // WGS 72BE / UTM zone 16N
    "WGS 72BE\011U\250\27016S\0" // WGS 72BE / UTM zone 16S
    "WGS 72BE\011U\250\27017N\0" // WGS 72BE / UTM zone 17N
    "WGS 72BE\011U\250\27017S\0" // WGS 72BE / UTM zone 17S
    "WGS 72BE\011U\250\27018N\0" // WGS 72BE / UTM zone 18N
    "WGS 72BE\011U\250\27018S\0" // WGS 72BE / UTM zone 18S
    "WGS 72BE\011U\250\27019N\0" // WGS 72BE / UTM zone 19N
    "WGS 72BE\011U\250\27019S\0" // WGS 72BE / UTM zone 19S
    "WGS 72BE\011U\250\2701N\0" // WGS 72BE / UTM zone 1N
    "WGS 72BE\011U\250\2701S\0" // WGS 72BE / UTM zone 1S
    "WGS 72BE\011U\250\270\033N\0" // WGS 72BE / UTM zone 20N
    "WGS 72BE\011U\250\270\033S\0" // WGS 72BE / UTM zone 20S
    "WGS 72BE\011U\250\27021N\0" // WGS 72BE / UTM zone 21N
    "WGS 72BE\011U\250\27021S\0" // WGS 72BE / UTM zone 21S
    "WGS 72BE\011U\250\27022N\0" // WGS 72BE / UTM zone 22N
    "WGS 72BE\011U\250\27022S\0" // WGS 72BE / UTM zone 22S
    "WGS 72BE\011U\250\27023N\0" // WGS 72BE / UTM zone 23N
    "WGS 72BE\011U\250\27023S\0" // WGS 72BE / UTM zone 23S
    "WGS 72BE\011U\250\27024N\0" // WGS 72BE / UTM zone 24N
    "WGS 72BE\011U\250\27024S\0" // WGS 72BE / UTM zone 24S
    "WGS 72BE\011U\250\27025N\0" // WGS 72BE / UTM zone 25N
    "WGS 72BE\011U\250\27025S\0" // WGS 72BE / UTM zone 25S
    "WGS 72BE\011U\250\27026N\0" // WGS 72BE / UTM zone 26N
    "WGS 72BE\011U\250\27026S\0" // WGS 72BE / UTM zone 26S
    "WGS 72BE\011U\250\27027N\0" // WGS 72BE / UTM zone 27N
    "WGS 72BE\011U\250\27027S\0" // WGS 72BE / UTM zone 27S
    "WGS 72BE\011U\250\27028N\0" // WGS 72BE / UTM zone 28N
    "WGS 72BE\011U\250\27028S\0" // WGS 72BE / UTM zone 28S
    "WGS 72BE\011U\250\27029N\0" // WGS 72BE / UTM zone 29N
    "WGS 72BE\011U\250\27029S\0" // WGS 72BE / UTM zone 29S
    "WGS 72BE\011U\250\2702N\0" // WGS 72BE / UTM zone 2N
    "WGS 72BE\011U\250\2702S\0" // WGS 72BE / UTM zone 2S
    "WGS 72BE\011U\250\270\375N\0" // WGS 72BE / UTM zone 30N
    "WGS 72BE\011U\250\270\375S\0" // WGS 72BE / UTM zone 30S
    "WGS 72BE\011U\250\27031N\0" // WGS 72BE / UTM zone 31N
    "WGS 72BE\011U\250\27031S\0" // WGS 72BE / UTM zone 31S
    "WGS 72BE\011U\250\27032N\0" // WGS 72BE / UTM zone 32N
    "WGS 72BE\011U\250\27032S\0" // WGS 72BE / UTM zone 32S
    "WGS 72BE\011U\250\27033N\0" // WGS 72BE / UTM zone 33N
    "WGS 72BE\011U\250\27033S\0" // WGS 72BE / UTM zone 33S
    "WGS 72BE\011U\250\27034N\0" // WGS 72BE / UTM zone 34N
    "WGS 72BE\011U\250\27034S\0" // WGS 72BE / UTM zone 34S
    "WGS 72BE\011U\250\27035N\0" // WGS 72BE / UTM zone 35N
    "WGS 72BE\011U\250\27035S\0" // WGS 72BE / UTM zone 35S
    "WGS 72BE\011U\250\27036N\0" // WGS 72BE / UTM zone 36N
    "WGS 72BE\011U\250\27036S\0" // WGS 72BE / UTM zone 36S
    "WGS 72BE\011U\250\27037N\0" // WGS 72BE / UTM zone 37N
    "WGS 72BE\011U\250\27037S\0" // WGS 72BE / UTM zone 37S
    "WGS 72BE\011U\250\27038N\0" // WGS 72BE / UTM zone 38N
    "WGS 72BE\011U\250\27038S\0" // WGS 72BE / UTM zone 38S
    "WGS 72BE\011U\250\27039N\0" // WGS 72BE / UTM zone 39N
    "WGS 72BE\011U\250\27039S\0" // WGS 72BE / UTM zone 39S
    "WGS 72BE\011U\250\2703N\0" // WGS 72BE / UTM zone 3N
    "WGS 72BE\011U\250\2703S\0" // WGS 72BE / UTM zone 3S
    "WGS 72BE\011U\250\27040N\0" // WGS 72BE / UTM zone 40N
    "WGS 72BE\011U\250\27040S\0" // WGS 72BE / UTM zone 40S
    "WGS 72BE\011U\250\27041N\0" // WGS 72BE / UTM zone 41N
    "WGS 72BE\011U\250\27041S\0" // WGS 72BE / UTM zone 41S
    "WGS 72BE\011U\250\27042N\0" // WGS 72BE / UTM zone 42N
    "WGS 72BE\011U\250\27042S\0" // WGS 72BE / UTM zone 42S
    "WGS 72BE\011U\250\27043N\0" // WGS 72BE / UTM zone 43N
    "WGS 72BE\011U\250\27043S\0" // WGS 72BE / UTM zone 43S
    "WGS 72BE\011U\250\27044N\0" // WGS 72BE / UTM zone 44N
    "WGS 72BE\011U\250\27044S\0" // WGS 72BE / UTM zone 44S
    "WGS 72BE\011U\250\27045N\0" // WGS 72BE / UTM zone 45N
    "WGS 72BE\011U\250\27045S\0" // WGS 72BE / UTM zone 45S
    "WGS 72BE\011U\250\27046N\0" // WGS 72BE / UTM zone 46N
    "WGS 72BE\011U\250\27046S\0" // WGS 72BE / UTM zone 46S
    "WGS 72BE\011U\250\27047N\0" // WGS 72BE / UTM zone 47N
    "WGS 72BE\011U\250\27047S\0" // WGS 72BE / UTM zone 47S
    "WGS 72BE\011U\250\27048N\0" // WGS 72BE / UTM zone 48N
    "WGS 72BE\011U\250\27048S\0" // WGS 72BE / UTM zone 48S
    "WGS 72BE\011U\250\27049N\0" // WGS 72BE / UTM zone 49N
    "WGS 72BE\011U\250\27049S\0" // WGS 72BE / UTM zone 49S
    "WGS 72BE\011U\250\2704N\0" // WGS 72BE / UTM zone 4N
    "WGS 72BE\011U\250\2704S\0" // WGS 72BE / UTM zone 4S
    "WGS 72BE\011U\250\27050N\0" // WGS 72BE / UTM zone 50N
    "WGS 72BE\011U\250\27050S\0" // WGS 72BE / UTM zone 50S
    "WGS 72BE\011U\250\27051N\0" // WGS 72BE / UTM zone 51N
    "WGS 72BE\011U\250\27051S\0" // WGS 72BE / UTM zone 51S
    "WGS 72BE\011U\250\27052N\0" // WGS 72BE / UTM zone 52N
    "WGS 72BE\011U\250\27052S\0" // WGS 72BE / UTM zone 52S
    "WGS 72BE\011U\250\27053N\0" // WGS 72BE / UTM zone 53N
    "WGS 72BE\011U\250\27053S\0" // WGS 72BE / UTM zone 53S
    "WGS 72BE\011U\250\27054N\0" // WGS 72BE / UTM zone 54N
    "WGS 72BE\011U\250\27054S\0" // WGS 72BE / UTM zone 54S
    "WGS 72BE\011U\250\27055N\0" // WGS 72BE / UTM zone 55N
    "WGS 72BE\011U\250\27055S\0" // WGS 72BE / UTM zone 55S
    "WGS 72BE\011U\250\27056N\0" // WGS 72BE / UTM zone 56N
    "WGS 72BE\011U\250\27056S\0" // WGS 72BE / UTM zone 56S
    "WGS 72BE\011U\250\27057N\0" // WGS 72BE / UTM zone 57N
    "WGS 72BE\011U\250\27057S\0" // WGS 72BE / UTM zone 57S
    "WGS 72BE\011U\250\27058N\0" // WGS 72BE / UTM zone 58N
    "WGS 72BE\011U\250\27058S\0" // WGS 72BE / UTM zone 58S
    "WGS 72BE\011U\250\27059N\0" // WGS 72BE / UTM zone 59N
    "WGS 72BE\011U\250\27059S\0" // WGS 72BE / UTM zone 59S
    "WGS 72BE\011U\250\2705N\0" // WGS 72BE / UTM zone 5N
    "WGS 72BE\011U\250\2705S\0" // WGS 72BE / UTM zone 5S
    "WGS 72BE\011U\250\27060N\0" // WGS 72BE / UTM zone 60N
    "WGS 72BE\011U\250\27060S\0" // WGS 72BE / UTM zone 60S
    "WGS 72BE\011U\250\2706N\0" // WGS 72BE / UTM zone 6N
    "WGS 72BE\011U\250\2706S\0" // WGS 72BE / UTM zone 6S
    "WGS 72BE\011U\250\2707N\0" // WGS 72BE / UTM zone 7N
    "WGS 72BE\011U\250\2707S\0" // WGS 72BE / UTM zone 7S
    "WGS 72BE\011U\250\2708N\0" // WGS 72BE / UTM zone 8N
    "WGS 72BE\011U\250\2708S\0" // WGS 72BE / UTM zone 8S
    "WGS 72BE\011U\250\2709N\0" // WGS 72BE / UTM zone 9N
    "WGS 72BE\011U\250\2709S\0" // WGS 72BE / UTM zone 9S
    "WGS 84\0" // WGS 84
    "WGS 84 \0" // WGS 84 
    "WGS 84 (G\17750)\0" // WGS 84 (G1150)
    "WGS 84 (G1674)\0" // WGS 84 (G1674)
    "WGS 84 (G1762)\0" // WGS 84 (G1762)
    "WGS 84 (G2139)\0" // WGS 84 (G2139)
    "WGS 84 (G7\375)\0" // WGS 84 (G730)
    "WGS 84 (G873)\0" // WGS 84 (G873)
    "WGS 84 (Tr\005s\243)\0" // WGS 84 (Transit)
    "WGS 84\011And\232\005 \301N$ob#\0" // WGS 84 / Andaman and Nicobar
    "WGS 84\011Andhr\030Pr\274e^\0" // WGS 84 / Andhra Pradesh
    "WGS 84\011A\032#\317$ P\247#{t\007eog\370\230$\0" // WGS 84 / Antarctic Polar Stereographic
    "WGS 84\011\326\317$ P\247#{t\007eog\370\230$\0" // WGS 84 / Arctic Polar Stereographic
    "WGS 84\011\326unach\223Pr\274e^\0" // WGS 84 / Arunachal Pradesh
    "WGS 84\011Ass\232\0" // WGS 84 / Assam
    "WGS 84\011Au\021r\026\335 A\032#\317$ L\232b\007t\0" // WGS 84 / Australian Antarctic Lambert
    "WGS 84\011Au\021r\026\335 A\032#\317$ P\247#{t\007eog\370\230$\0" // WGS 84 / Australian Antarctic Polar Stereographic
    "WGS 84\011Au\021r\026\335\333\365\012f\006 R\206\350\012S\210s\024g L\232b\007t\0" // WGS 84 / Australian Centre for Remote Sensing Lambert
    "WGS 84\011BLM 14N (ft\204)\0" // WGS 84 / BLM 14N (ftUS)
    "WGS 84\011BLM 15N (ft\204)\0" // WGS 84 / BLM 15N (ftUS)
    "WGS 84\011BLM 16N (ft\204)\0" // WGS 84 / BLM 16N (ftUS)
    "WGS 84\011BLM 17N (ft\204)\0" // WGS 84 / BLM 17N (ftUS)
    "WGS 84\011Bih#\0" // WGS 84 / Bihar
    "WGS 84\011CIG92\0" // WGS 84 / CIG92
    "WGS 84\011CKIG92\0" // WGS 84 / CKIG92
    "WGS 84\011Cap\012V\007d\012N<\321\026\0" // WGS 84 / Cape Verde National
    "WGS 84\011Chh<t=g#h\0" // WGS 84 / Chhattisgarh
    "WGS 84\011D\240hi\0" // WGS 84 / Delhi
    "WGS 84\011Dubai Loc\223\250\0" // WGS 84 / Dubai Local TM
    "WGS 84\011E\236G Al\201k\030P\247#{t\007eog\370\230$\0" // WGS 84 / EPSG Alaska Polar Stereographic
    "WGS 84\011E\236G \326\317$ Reg\321\223\077A1\0" // WGS 84 / EPSG Arctic Regional zone A1
    "WGS 84\011E\236G \326\317$ Reg\321\223\077A2\0" // WGS 84 / EPSG Arctic Regional zone A2
    "WGS 84\011E\236G \326\317$ Reg\321\223\077A3\0" // WGS 84 / EPSG Arctic Regional zone A3
    "WGS 84\011E\236G \326\317$ Reg\321\223\077A4\0" // WGS 84 / EPSG Arctic Regional zone A4
    "WGS 84\011E\236G \326\317$ Reg\321\223\077A5\0" // WGS 84 / EPSG Arctic Regional zone A5
    "WGS 84\011E\236G \326\317$ Reg\321\223\077B1\0" // WGS 84 / EPSG Arctic Regional zone B1
    "WGS 84\011E\236G \326\317$ Reg\321\223\077B2\0" // WGS 84 / EPSG Arctic Regional zone B2
    "WGS 84\011E\236G \326\317$ Reg\321\223\077B3\0" // WGS 84 / EPSG Arctic Regional zone B3
    "WGS 84\011E\236G \326\317$ Reg\321\223\077B4\0" // WGS 84 / EPSG Arctic Regional zone B4
    "WGS 84\011E\236G \326\317$ Reg\321\223\077B5\0" // WGS 84 / EPSG Arctic Regional zone B5
    "WGS 84\011E\236G \326\317$ Reg\321\223\077C1\0" // WGS 84 / EPSG Arctic Regional zone C1
    "WGS 84\011E\236G \326\317$ Reg\321\223\077C2\0" // WGS 84 / EPSG Arctic Regional zone C2
    "WGS 84\011E\236G \326\317$ Reg\321\223\077C3\0" // WGS 84 / EPSG Arctic Regional zone C3
    "WGS 84\011E\236G \326\317$ Reg\321\223\077C4\0" // WGS 84 / EPSG Arctic Regional zone C4
    "WGS 84\011E\236G \326\317$ Reg\321\223\077C5\0" // WGS 84 / EPSG Arctic Regional zone C5
    "WGS 84\011E\236G \326\317$\2701-21\0" // WGS 84 / EPSG Arctic zone 1-21
    "WGS 84\011E\236G \326\317$\2701-27\0" // WGS 84 / EPSG Arctic zone 1-27
    "WGS 84\011E\236G \326\317$\2701-29\0" // WGS 84 / EPSG Arctic zone 1-29
    "WGS 84\011E\236G \326\317$\2701-31\0" // WGS 84 / EPSG Arctic zone 1-31
    "WGS 84\011E\236G \326\317$\2702-10\0" // WGS 84 / EPSG Arctic zone 2-10
    "WGS 84\011E\236G \326\317$\2702-12\0" // WGS 84 / EPSG Arctic zone 2-12
    "WGS 84\011E\236G \326\317$\2702-24\0" // WGS 84 / EPSG Arctic zone 2-24
    "WGS 84\011E\236G \326\317$\2702-26\0" // WGS 84 / EPSG Arctic zone 2-26
    "WGS 84\011E\236G \326\317$\2702-28\0" // WGS 84 / EPSG Arctic zone 2-28
    "WGS 84\011E\236G \326\317$\2703-13\0" // WGS 84 / EPSG Arctic zone 3-13
    "WGS 84\011E\236G \326\317$\2703-15\0" // WGS 84 / EPSG Arctic zone 3-15
    "WGS 84\011E\236G \326\317$\2703-17\0" // WGS 84 / EPSG Arctic zone 3-17
    "WGS 84\011E\236G \326\317$\2703-19\0" // WGS 84 / EPSG Arctic zone 3-19
    "WGS 84\011E\236G \326\317$\2703-21\0" // WGS 84 / EPSG Arctic zone 3-21
    "WGS 84\011E\236G \326\317$\2703-23\0" // WGS 84 / EPSG Arctic zone 3-23
    "WGS 84\011E\236G \326\317$\2704-12\0" // WGS 84 / EPSG Arctic zone 4-12
    "WGS 84\011E\236G \326\317$\2704-30\0" // WGS 84 / EPSG Arctic zone 4-30
    "WGS 84\011E\236G \326\317$\2704-32\0" // WGS 84 / EPSG Arctic zone 4-32
    "WGS 84\011E\236G \326\317$\2704-34\0" // WGS 84 / EPSG Arctic zone 4-34
    "WGS 84\011E\236G \326\317$\2704-36\0" // WGS 84 / EPSG Arctic zone 4-36
    "WGS 84\011E\236G \326\317$\2704-38\0" // WGS 84 / EPSG Arctic zone 4-38
    "WGS 84\011E\236G \326\317$\2704-40\0" // WGS 84 / EPSG Arctic zone 4-40
    "WGS 84\011E\236G \326\317$\2705-15\0" // WGS 84 / EPSG Arctic zone 5-15
    "WGS 84\011E\236G \326\317$\2705-17\0" // WGS 84 / EPSG Arctic zone 5-17
    "WGS 84\011E\236G \326\317$\2705-19\0" // WGS 84 / EPSG Arctic zone 5-19
    "WGS 84\011E\236G \326\317$\2705-21\0" // WGS 84 / EPSG Arctic zone 5-21
    "WGS 84\011E\236G \326\317$\2705-23\0" // WGS 84 / EPSG Arctic zone 5-23
    "WGS 84\011E\236G \326\317$\2705-25\0" // WGS 84 / EPSG Arctic zone 5-25
    "WGS 84\011E\236G \326\317$\2705-27\0" // WGS 84 / EPSG Arctic zone 5-27
    "WGS 84\011E\236G\333\005\274\030P\247#{t\007eog\370\230$\0" // WGS 84 / EPSG Canada Polar Stereographic
    "WGS 84\011E\236G G>\210\211 P\247#{t\007eog\370\230$\0" // WGS 84 / EPSG Greenland Polar Stereographic
    "WGS 84\011E\236G \203wa\200P\247#{t\007eog\370\230$\0" // WGS 84 / EPSG Norway Polar Stereographic
    "WGS 84\011E\236G R\357s\314P\247#{t\007eog\370\230$\0" // WGS 84 / EPSG Russia Polar Stereographic
    "WGS 84\011Equ\223E#`Am\007$\201\0" // WGS 84 / Equal Earth Americas
    "WGS 84\011Equ\223E#`Asia-Pacif$\0" // WGS 84 / Equal Earth Asia-Pacific
    "WGS 84\011Equ\223E#`G>\210w$h\0" // WGS 84 / Equal Earth Greenwich
    "WGS 84\011Gab\222\250\0" // WGS 84 / Gabon TM
    "WGS 84\011Gab\222\250 \03311\0" // WGS 84 / Gabon TM 2011
    "WGS 84\011Goa\0" // WGS 84 / Goa
    "WGS 84\011Guj#<\0" // WGS 84 / Gujarat
    "WGS 84\011H#y\005a\0" // WGS 84 / Haryana
    "WGS 84\011Himach\223Pr\274e^\0" // WGS 84 / Himachal Pradesh
    "WGS 84\011IBCAO P\247#{t\007eog\370\230$\0" // WGS 84 / IBCAO Polar Stereographic
    "WGS 84\011IB@O P\247#{t\007eog\370\230$\0" // WGS 84 / IBCSO Polar Stereographic
    "WGS 84\011\355\314\334F LCC\0" // WGS 84 / India NSF LCC
    "WGS 84\011\355\314\371ea\021\0" // WGS 84 / India Northeast
    "WGS 84\011J\232mu \301Ka^m\342\0" // WGS 84 / Jammu and Kashmir
    "WGS 84\011Jh#kh\035\0" // WGS 84 / Jharkhand
    "WGS 84\011K#n<aka\0" // WGS 84 / Karnataka
    "WGS 84\011K\007\026a\0" // WGS 84 / Kerala
    "WGS 84\011Lak^\274weep\0" // WGS 84 / Lakshadweep
    "WGS 84\011M\274hy\030Pr\274e^\0" // WGS 84 / Madhya Pradesh
    "WGS 84\011M\373#a^t\370\0" // WGS 84 / Maharashtra
    "WGS 84\011M\005ip\225\0" // WGS 84 / Manipur
    "WGS 84\011Megh\026aya\0" // WGS 84 / Meghalaya
    "WGS 84\011M\007c<\006 41\0" // WGS 84 / Mercator 41
    "WGS 84\011Miz\006\232\0" // WGS 84 / Mizoram
    "WGS 84\011NIWA Alb\220\0" // WGS 84 / NIWA Albers
    "WGS 84\011\334IDC EASE-Gr\257 2.0 Glob\026\0" // WGS 84 / NSIDC EASE-Grid 2.0 Global
    "WGS 84\011\334IDC EASE-Gr\257 2.0 \371\0" // WGS 84 / NSIDC EASE-Grid 2.0 North
    "WGS 84\011\334IDC EASE-Gr\257 2.0{\362\0" // WGS 84 / NSIDC EASE-Grid 2.0 South
    "WGS 84\011\334IDC EASE-Gr\257 Glob\026\0" // WGS 84 / NSIDC EASE-Grid Global
    "WGS 84\011\334IDC EASE-Gr\257 \371\0" // WGS 84 / NSIDC EASE-Grid North
    "WGS 84\011\334IDC EASE-Gr\257{\362\0" // WGS 84 / NSIDC EASE-Grid South
    "WGS 84\011\334IDC{e\030Ic\012P\247#{t\007eog\370\230$ \371\0" // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    "WGS 84\011\334IDC{e\030Ic\012P\247#{t\007eog\370\230${\362\0" // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    "WGS 84\011Nag\026\035\0" // WGS 84 / Nagaland
    "WGS 84\011\324P\247\012LAEA Al\201ka\0" // WGS 84 / North Pole LAEA Alaska
    "WGS 84\011\324P\247\012LAEA Atl\005t$\0" // WGS 84 / North Pole LAEA Atlantic
    "WGS 84\011\324P\247\012LAEA B\007\024g{ea\0" // WGS 84 / North Pole LAEA Bering Sea
    "WGS 84\011\324P\247\012LAEA C\005\274a\0" // WGS 84 / North Pole LAEA Canada
    "WGS 84\011\324P\247\012LAEA E\225ope\0" // WGS 84 / North Pole LAEA Europe
    "WGS 84\011\324P\247\012LAEA R\357sia\0" // WGS 84 / North Pole LAEA Russia
    "WGS 84\011Or=sa\0" // WGS 84 / Orissa
    "WGS 84\011PDC M\007c<\006\0" // WGS 84 / PDC Mercator
    "WGS 84\011Pl<\012C#>e\0" // WGS 84 / Plate Carree
    "WGS 84\011Pseudo-M\007c<\006\0" // WGS 84 / Pseudo-Mercator
    "WGS 84\011Punjab\0" // WGS 84 / Punjab
    "WGS 84\011Raja\021h\005\0" // WGS 84 / Rajasthan
    "WGS 84\011\322\245 IMW{P\031-20\0" // WGS 84 / SCAR IMW SP19-20
    "WGS 84\011\322\245 IMW{P21-22\0" // WGS 84 / SCAR IMW SP21-22
    "WGS 84\011\322\245 IMW{P23-24\0" // WGS 84 / SCAR IMW SP23-24
    "WGS 84\011\322\245 IMW{Q01-02\0" // WGS 84 / SCAR IMW SQ01-02
    "WGS 84\011\322\245 IMW{Q\031-20\0" // WGS 84 / SCAR IMW SQ19-20
    "WGS 84\011\322\245 IMW{Q21-22\0" // WGS 84 / SCAR IMW SQ21-22
    "WGS 84\011\322\245 IMW{Q37-38\0" // WGS 84 / SCAR IMW SQ37-38
    "WGS 84\011\322\245 IMW{Q39-40\0" // WGS 84 / SCAR IMW SQ39-40
    "WGS 84\011\322\245 IMW{Q41-42\0" // WGS 84 / SCAR IMW SQ41-42
    "WGS 84\011\322\245 IMW{Q43-44\0" // WGS 84 / SCAR IMW SQ43-44
    "WGS 84\011\322\245 IMW{Q45-46\0" // WGS 84 / SCAR IMW SQ45-46
    "WGS 84\011\322\245 IMW{Q47-48\0" // WGS 84 / SCAR IMW SQ47-48
    "WGS 84\011\322\245 IMW{Q49-50\0" // WGS 84 / SCAR IMW SQ49-50
    "WGS 84\011\322\245 IMW{Q51-52\0" // WGS 84 / SCAR IMW SQ51-52
    "WGS 84\011\322\245 IMW{Q53-54\0" // WGS 84 / SCAR IMW SQ53-54
    "WGS 84\011\322\245 IMW{Q55-56\0" // WGS 84 / SCAR IMW SQ55-56
    "WGS 84\011\322\245 IMW{Q57-58\0" // WGS 84 / SCAR IMW SQ57-58
    "WGS 84\011\322\245 IMW{R13-14\0" // WGS 84 / SCAR IMW SR13-14
    "WGS 84\011\322\245 IMW{R15-16\0" // WGS 84 / SCAR IMW SR15-16
    "WGS 84\011\322\245 IMW{R17-18\0" // WGS 84 / SCAR IMW SR17-18
    "WGS 84\011\322\245 IMW{R\031-20\0" // WGS 84 / SCAR IMW SR19-20
    "WGS 84\011\322\245 IMW{R\313-28\0" // WGS 84 / SCAR IMW SR27-28
    "WGS 84\011\322\245 IMW{R29-30\0" // WGS 84 / SCAR IMW SR29-30
    "WGS 84\011\322\245 IMW{R31-32\0" // WGS 84 / SCAR IMW SR31-32
    "WGS 84\011\322\245 IMW{R33-34\0" // WGS 84 / SCAR IMW SR33-34
    "WGS 84\011\322\245 IMW{R35-36\0" // WGS 84 / SCAR IMW SR35-36
    "WGS 84\011\322\245 IMW{R37-38\0" // WGS 84 / SCAR IMW SR37-38
    "WGS 84\011\322\245 IMW{R39-40\0" // WGS 84 / SCAR IMW SR39-40
    "WGS 84\011\322\245 IMW{R41-42\0" // WGS 84 / SCAR IMW SR41-42
    "WGS 84\011\322\245 IMW{R43-44\0" // WGS 84 / SCAR IMW SR43-44
    "WGS 84\011\322\245 IMW{R45-46\0" // WGS 84 / SCAR IMW SR45-46
    "WGS 84\011\322\245 IMW{R47-48\0" // WGS 84 / SCAR IMW SR47-48
    "WGS 84\011\322\245 IMW{R49-50\0" // WGS 84 / SCAR IMW SR49-50
    "WGS 84\011\322\245 IMW{R51-52\0" // WGS 84 / SCAR IMW SR51-52
    "WGS 84\011\322\245 IMW{R53-54\0" // WGS 84 / SCAR IMW SR53-54
    "WGS 84\011\322\245 IMW{R55-56\0" // WGS 84 / SCAR IMW SR55-56
    "WGS 84\011\322\245 IMW{R57-58\0" // WGS 84 / SCAR IMW SR57-58
    "WGS 84\011\322\245 IMW{R59-60\0" // WGS 84 / SCAR IMW SR59-60
    "WGS 84\011\322\245 IMW{S04-06\0" // WGS 84 / SCAR IMW SS04-06
    "WGS 84\011\322\245 IMW{S07-09\0" // WGS 84 / SCAR IMW SS07-09
    "WGS 84\011\322\245 IMW{S\312-12\0" // WGS 84 / SCAR IMW SS10-12
    "WGS 84\011\322\245 IMW{S13-15\0" // WGS 84 / SCAR IMW SS13-15
    "WGS 84\011\322\245 IMW{S16-18\0" // WGS 84 / SCAR IMW SS16-18
    "WGS 84\011\322\245 IMW{S\031-21\0" // WGS 84 / SCAR IMW SS19-21
    "WGS 84\011\322\245 IMW{S25-27\0" // WGS 84 / SCAR IMW SS25-27
    "WGS 84\011\322\245 IMW{S28-30\0" // WGS 84 / SCAR IMW SS28-30
    "WGS 84\011\322\245 IMW{S31-33\0" // WGS 84 / SCAR IMW SS31-33
    "WGS 84\011\322\245 IMW{S34-36\0" // WGS 84 / SCAR IMW SS34-36
    "WGS 84\011\322\245 IMW{S37-39\0" // WGS 84 / SCAR IMW SS37-39
    "WGS 84\011\322\245 IMW{S40-42\0" // WGS 84 / SCAR IMW SS40-42
    "WGS 84\011\322\245 IMW{S43-45\0" // WGS 84 / SCAR IMW SS43-45
    "WGS 84\011\322\245 IMW{S46-48\0" // WGS 84 / SCAR IMW SS46-48
    "WGS 84\011\322\245 IMW{S49-51\0" // WGS 84 / SCAR IMW SS49-51
    "WGS 84\011\322\245 IMW{S52-54\0" // WGS 84 / SCAR IMW SS52-54
    "WGS 84\011\322\245 IMW{S55-57\0" // WGS 84 / SCAR IMW SS55-57
    "WGS 84\011\322\245 IMW{S58-60\0" // WGS 84 / SCAR IMW SS58-60
    "WGS 84\011\322\245 IMW{T01-04\0" // WGS 84 / SCAR IMW ST01-04
    "WGS 84\011\322\245 IMW{T05-08\0" // WGS 84 / SCAR IMW ST05-08
    "WGS 84\011\322\245 IMW{T09-12\0" // WGS 84 / SCAR IMW ST09-12
    "WGS 84\011\322\245 IMW{T13-16\0" // WGS 84 / SCAR IMW ST13-16
    "WGS 84\011\322\245 IMW{T17-20\0" // WGS 84 / SCAR IMW ST17-20
    "WGS 84\011\322\245 IMW{T21-24\0" // WGS 84 / SCAR IMW ST21-24
    "WGS 84\011\322\245 IMW{T25-28\0" // WGS 84 / SCAR IMW ST25-28
    "WGS 84\011\322\245 IMW{T29-32\0" // WGS 84 / SCAR IMW ST29-32
    "WGS 84\011\322\245 IMW{T33-36\0" // WGS 84 / SCAR IMW ST33-36
    "WGS 84\011\322\245 IMW{T37-40\0" // WGS 84 / SCAR IMW ST37-40
    "WGS 84\011\322\245 IMW{T41-44\0" // WGS 84 / SCAR IMW ST41-44
    "WGS 84\011\322\245 IMW{T45-48\0" // WGS 84 / SCAR IMW ST45-48
    "WGS 84\011\322\245 IMW{T49-52\0" // WGS 84 / SCAR IMW ST49-52
    "WGS 84\011\322\245 IMW{T53-56\0" // WGS 84 / SCAR IMW ST53-56
    "WGS 84\011\322\245 IMW{T57-60\0" // WGS 84 / SCAR IMW ST57-60
    "WGS 84\011\322\245 IMW{U01-05\0" // WGS 84 / SCAR IMW SU01-05
    "WGS 84\011\322\245 IMW{U06-10\0" // WGS 84 / SCAR IMW SU06-10
    "WGS 84\011\322\245 IMW{U\177-15\0" // WGS 84 / SCAR IMW SU11-15
    "WGS 84\011\322\245 IMW{U16-20\0" // WGS 84 / SCAR IMW SU16-20
    "WGS 84\011\322\245 IMW{U21-25\0" // WGS 84 / SCAR IMW SU21-25
    "WGS 84\011\322\245 IMW{U26-30\0" // WGS 84 / SCAR IMW SU26-30
    "WGS 84\011\322\245 IMW{U31-35\0" // WGS 84 / SCAR IMW SU31-35
    "WGS 84\011\322\245 IMW{U36-40\0" // WGS 84 / SCAR IMW SU36-40
    "WGS 84\011\322\245 IMW{U41-45\0" // WGS 84 / SCAR IMW SU41-45
    "WGS 84\011\322\245 IMW{U46-50\0" // WGS 84 / SCAR IMW SU46-50
    "WGS 84\011\322\245 IMW{U51-55\0" // WGS 84 / SCAR IMW SU51-55
    "WGS 84\011\322\245 IMW{U56-60\0" // WGS 84 / SCAR IMW SU56-60
    "WGS 84\011\322\245 IMW{V01-10\0" // WGS 84 / SCAR IMW SV01-10
    "WGS 84\011\322\245 IMW{V\177-20\0" // WGS 84 / SCAR IMW SV11-20
    "WGS 84\011\322\245 IMW{V21-30\0" // WGS 84 / SCAR IMW SV21-30
    "WGS 84\011\322\245 IMW{V31-40\0" // WGS 84 / SCAR IMW SV31-40
    "WGS 84\011\322\245 IMW{V41-50\0" // WGS 84 / SCAR IMW SV41-50
    "WGS 84\011\322\245 IMW{V51-60\0" // WGS 84 / SCAR IMW SV51-60
    "WGS 84\011\322\245 IMW{W01-60\0" // WGS 84 / SCAR IMW SW01-60
    "WGS 84\011Sikkim\0" // WGS 84 / Sikkim
    "WGS 84\011\367Ge\006g\314L\232b\007t\0" // WGS 84 / South Georgia Lambert
    "WGS 84\011\250 \1776{E\0" // WGS 84 / TM 116 SE
    "WGS 84\011\250 12{E\0" // WGS 84 / TM 12 SE
    "WGS 84\011\250 132{E\0" // WGS 84 / TM 132 SE
    "WGS 84\011\250 36{E\0" // WGS 84 / TM 36 SE
    "WGS 84\011\250 6 NE\0" // WGS 84 / TM 6 NE
    "WGS 84\011\250 60{W\0" // WGS 84 / TM 60 SW
    "WGS 84\011\250 90 NE\0" // WGS 84 / TM 90 NE
    "WGS 84\011\250 Z\003\012\033N (ft\204)\0" // WGS 84 / TM Zone 20N (ftUS)
    "WGS 84\011\250 Z\003\01221N (ft\204)\0" // WGS 84 / TM Zone 21N (ftUS)
    "WGS 84\011\250zn35N\0" // WGS 84 / TMzn35N
    "WGS 84\011\250zn36N\0" // WGS 84 / TMzn36N
    "WGS 84\011T\232\372 N\274u\0" // WGS 84 / Tamil Nadu
    "WGS 84\011Trip\225a\0" // WGS 84 / Tripura
    "WGS 84\011U\236 \324(E,N)\0" // WGS 84 / UPS North (E,N)
    "WGS 84\011U\236 \324(N,E)\0" // WGS 84 / UPS North (N,E)
    "WGS 84\011U\236{\246(E,N)\0" // WGS 84 / UPS South (E,N)
    "WGS 84\011U\236{\246(N,E)\0" // WGS 84 / UPS South (N,E)
    "WGS 84\011\204GS Tr\005s\005t#\317$ M\025\032a\024s\0" // WGS 84 / USGS Transantarctic Mountains
    "WGS 84\011U\250 gr\257 sy\021\206\205n\006\023\007n\305e)\0" // WGS 84 / UTM grid system (northern hemisphere)
    "WGS 84\011U\250 gr\257 sy\021\206\205s\362\007n\305e)\0" // WGS 84 / UTM grid system (southern hemisphere)
    "WGS 84\011U\250\270\312N\0" // WGS 84 / UTM zone 10N
    "WGS 84\011U\250\270\312S\0" // WGS 84 / UTM zone 10S
    "WGS 84\011U\250\27011N\0" // WGS 84 / UTM zone 11N
    "WGS 84\011U\250\27011S\0" // WGS 84 / UTM zone 11S
    "WGS 84\011U\250\27012N\0" // WGS 84 / UTM zone 12N
    "WGS 84\011U\250\27012S\0" // WGS 84 / UTM zone 12S
    "WGS 84\011U\250\27013N\0" // WGS 84 / UTM zone 13N
    "WGS 84\011U\250\27013S\0" // WGS 84 / UTM zone 13S
    "WGS 84\011U\250\27014N\0" // WGS 84 / UTM zone 14N
    "WGS 84\011U\250\27014S\0" // WGS 84 / UTM zone 14S
    "WGS 84\011U\250\27015N\0" // WGS 84 / UTM zone 15N
    "WGS 84\011U\250\27015S\0" // WGS 84 / UTM zone 15S
    "WGS 84\011U\250\27016N\0" // WGS 84 / UTM zone 16N
    "WGS 84\011U\250\27016S\0" // WGS 84 / UTM zone 16S
    "WGS 84\011U\250\27017N\0" // WGS 84 / UTM zone 17N
    "WGS 84\011U\250\27017S\0" // WGS 84 / UTM zone 17S
    "WGS 84\011U\250\27018N\0" // WGS 84 / UTM zone 18N
    "WGS 84\011U\250\27018S\0" // WGS 84 / UTM zone 18S
    "WGS 84\011U\250\27019N\0" // WGS 84 / UTM zone 19N
    "WGS 84\011U\250\27019S\0" // WGS 84 / UTM zone 19S
    "WGS 84\011U\250\2701N\0" // WGS 84 / UTM zone 1N
    "WGS 84\011U\250\2701S\0" // WGS 84 / UTM zone 1S
    "WGS 84\011U\250\270\033N\0" // WGS 84 / UTM zone 20N
    "WGS 84\011U\250\270\033S\0" // WGS 84 / UTM zone 20S
    "WGS 84\011U\250\27021N\0" // WGS 84 / UTM zone 21N
    "WGS 84\011U\250\27021S\0" // WGS 84 / UTM zone 21S
    "WGS 84\011U\250\27022N\0" // WGS 84 / UTM zone 22N
    "WGS 84\011U\250\27022S\0" // WGS 84 / UTM zone 22S
    "WGS 84\011U\250\27023N\0" // WGS 84 / UTM zone 23N
    "WGS 84\011U\250\27023S\0" // WGS 84 / UTM zone 23S
    "WGS 84\011U\250\27024N\0" // WGS 84 / UTM zone 24N
    "WGS 84\011U\250\27024S\0" // WGS 84 / UTM zone 24S
    "WGS 84\011U\250\27025N\0" // WGS 84 / UTM zone 25N
    "WGS 84\011U\250\27025S\0" // WGS 84 / UTM zone 25S
    "WGS 84\011U\250\27026N\0" // WGS 84 / UTM zone 26N
    "WGS 84\011U\250\27026S\0" // WGS 84 / UTM zone 26S
    "WGS 84\011U\250\27027N\0" // WGS 84 / UTM zone 27N
    "WGS 84\011U\250\27027S\0" // WGS 84 / UTM zone 27S
    "WGS 84\011U\250\27028N\0" // WGS 84 / UTM zone 28N
    "WGS 84\011U\250\27028S\0" // WGS 84 / UTM zone 28S
    "WGS 84\011U\250\27029N\0" // WGS 84 / UTM zone 29N
    "WGS 84\011U\250\27029S\0" // WGS 84 / UTM zone 29S
    "WGS 84\011U\250\2702N\0" // WGS 84 / UTM zone 2N
    "WGS 84\011U\250\2702S\0" // WGS 84 / UTM zone 2S
    "WGS 84\011U\250\270\375N\0" // WGS 84 / UTM zone 30N
    "WGS 84\011U\250\270\375S\0" // WGS 84 / UTM zone 30S
    "WGS 84\011U\250\27031N\0" // WGS 84 / UTM zone 31N
    "WGS 84\011U\250\27031S\0" // WGS 84 / UTM zone 31S
    "WGS 84\011U\250\27032N\0" // WGS 84 / UTM zone 32N
    "WGS 84\011U\250\27032S\0" // WGS 84 / UTM zone 32S
    "WGS 84\011U\250\27033N\0" // WGS 84 / UTM zone 33N
    "WGS 84\011U\250\27033S\0" // WGS 84 / UTM zone 33S
    "WGS 84\011U\250\27034N\0" // WGS 84 / UTM zone 34N
    "WGS 84\011U\250\27034S\0" // WGS 84 / UTM zone 34S
    "WGS 84\011U\250\27035N\0" // WGS 84 / UTM zone 35N
    "WGS 84\011U\250\27035S\0" // WGS 84 / UTM zone 35S
    "WGS 84\011U\250\27036N\0" // WGS 84 / UTM zone 36N
    "WGS 84\011U\250\27036S\0" // WGS 84 / UTM zone 36S
    "WGS 84\011U\250\27037N\0" // WGS 84 / UTM zone 37N
    "WGS 84\011U\250\27037S\0" // WGS 84 / UTM zone 37S
    "WGS 84\011U\250\27038N\0" // WGS 84 / UTM zone 38N
    "WGS 84\011U\250\27038S\0" // WGS 84 / UTM zone 38S
    "WGS 84\011U\250\27039N\0" // WGS 84 / UTM zone 39N
    "WGS 84\011U\250\27039S\0" // WGS 84 / UTM zone 39S
    "WGS 84\011U\250\2703N\0" // WGS 84 / UTM zone 3N
    "WGS 84\011U\250\2703S\0" // WGS 84 / UTM zone 3S
    "WGS 84\011U\250\27040N\0" // WGS 84 / UTM zone 40N
    "WGS 84\011U\250\27040S\0" // WGS 84 / UTM zone 40S
    "WGS 84\011U\250\27041N\0" // WGS 84 / UTM zone 41N
    "WGS 84\011U\250\27041S\0" // WGS 84 / UTM zone 41S
    "WGS 84\011U\250\27042N\0" // WGS 84 / UTM zone 42N
    "WGS 84\011U\250\27042S\0" // WGS 84 / UTM zone 42S
    "WGS 84\011U\250\27043N\0" // WGS 84 / UTM zone 43N
    "WGS 84\011U\250\27043S\0" // WGS 84 / UTM zone 43S
    "WGS 84\011U\250\27044N\0" // WGS 84 / UTM zone 44N
    "WGS 84\011U\250\27044S\0" // WGS 84 / UTM zone 44S
    "WGS 84\011U\250\27045N\0" // WGS 84 / UTM zone 45N
    "WGS 84\011U\250\27045S\0" // WGS 84 / UTM zone 45S
    "WGS 84\011U\250\27046N\0" // WGS 84 / UTM zone 46N
    "WGS 84\011U\250\27046S\0" // WGS 84 / UTM zone 46S
    "WGS 84\011U\250\27047N\0" // WGS 84 / UTM zone 47N
    "WGS 84\011U\250\27047S\0" // WGS 84 / UTM zone 47S
    "WGS 84\011U\250\27048N\0" // WGS 84 / UTM zone 48N
    "WGS 84\011U\250\27048S\0" // WGS 84 / UTM zone 48S
    "WGS 84\011U\250\27049N\0" // WGS 84 / UTM zone 49N
    "WGS 84\011U\250\27049S\0" // WGS 84 / UTM zone 49S
    "WGS 84\011U\250\2704N\0" // WGS 84 / UTM zone 4N
    "WGS 84\011U\250\2704S\0" // WGS 84 / UTM zone 4S
    "WGS 84\011U\250\27050N\0" // WGS 84 / UTM zone 50N
    "WGS 84\011U\250\27050S\0" // WGS 84 / UTM zone 50S
    "WGS 84\011U\250\27051N\0" // WGS 84 / UTM zone 51N
    "WGS 84\011U\250\27051S\0" // WGS 84 / UTM zone 51S
    "WGS 84\011U\250\27052N\0" // WGS 84 / UTM zone 52N
    "WGS 84\011U\250\27052S\0" // WGS 84 / UTM zone 52S
    "WGS 84\011U\250\27053N\0" // WGS 84 / UTM zone 53N
    "WGS 84\011U\250\27053S\0" // WGS 84 / UTM zone 53S
    "WGS 84\011U\250\27054N\0" // WGS 84 / UTM zone 54N
    "WGS 84\011U\250\27054S\0" // WGS 84 / UTM zone 54S
    "WGS 84\011U\250\27055N\0" // WGS 84 / UTM zone 55N
    "WGS 84\011U\250\27055S\0" // WGS 84 / UTM zone 55S
    "WGS 84\011U\250\27056N\0" // WGS 84 / UTM zone 56N
    "WGS 84\011U\250\27056S\0" // WGS 84 / UTM zone 56S
    "WGS 84\011U\250\27057N\0" // WGS 84 / UTM zone 57N
    "WGS 84\011U\250\27057S\0" // WGS 84 / UTM zone 57S
    "WGS 84\011U\250\27058N\0" // WGS 84 / UTM zone 58N
    "WGS 84\011U\250\27058S\0" // WGS 84 / UTM zone 58S
    "WGS 84\011U\250\27059N\0" // WGS 84 / UTM zone 59N
    "WGS 84\011U\250\27059S\0" // WGS 84 / UTM zone 59S
    "WGS 84\011U\250\2705N\0" // WGS 84 / UTM zone 5N
    "WGS 84\011U\250\2705S\0" // WGS 84 / UTM zone 5S
    "WGS 84\011U\250\27060N\0" // WGS 84 / UTM zone 60N
    "WGS 84\011U\250\27060S\0" // WGS 84 / UTM zone 60S
    "WGS 84\011U\250\2706N\0" // WGS 84 / UTM zone 6N
    "WGS 84\011U\250\2706S\0" // WGS 84 / UTM zone 6S
    "WGS 84\011U\250\2707N\0" // WGS 84 / UTM zone 7N
    "WGS 84\011U\250\2707S\0" // WGS 84 / UTM zone 7S
    "WGS 84\011U\250\2708N\0" // WGS 84 / UTM zone 8N
    "WGS 84\011U\250\2708S\0" // WGS 84 / UTM zone 8S
    "WGS 84\011U\250\2709N\0" // WGS 84 / UTM zone 9N
    "WGS 84\011U\250\2709S\0" // WGS 84 / UTM zone 9S
    "WGS 84\011Utt# Pr\274e^\0" // WGS 84 / Uttar Pradesh
    "WGS 84\011Utt#\005ch\026\0" // WGS 84 / Uttaranchal
    "WGS 84\011W\275B\210g\026\0" // WGS 84 / West Bengal
    "WGS 84\011\330 Equ\257i\021\005t\333yl\024dr$\026\0" // WGS 84 / World Equidistant Cylindrical
    "WGS 84\011\330 M\007c<\006\0" // WGS 84 / World Mercator
    "WGS84\0" // WGS84
    "WGS\21266\0" // WGS_1966
    "WGS\21272\0" // WGS_1972
    "WGS\21272_BE\0" // WGS_1972_BE
    "WGS\21272_BE_S\362\374h\024\253Se\253L\232b\007t\0" // WGS_1972_BE_South_China_Sea_Lambert
    "WGS\21272_BE_\376\3126_NE\0" // WGS_1972_BE_TM_106_NE
    "WGS\21272_U\376Z\003\207\0" // WGS_1972_UTM_Zone_
    "WGS\21284\0" // WGS_1984
    "WGS\21284_\0" // WGS_1984_
    "WGS\21284_E\236G_\326\317$_\0" // WGS_1984_EPSG_Arctic_
    "WGS\21284_E\236G_\326\317$_Reg\321\026_!\207\0" // WGS_1984_EPSG_Arctic_Regional_zone_
    "WGS\21284_E\236G_\326\317$_!\207\0" // WGS_1984_EPSG_Arctic_zone_
    "WGS\21284_Maj\006_Aux\372i#y_S\271e\0" // WGS_1984_Major_Auxiliary_Sphere
    "WGS\21284_\371_P\247\207LAEA_\0" // WGS_1984_North_Pole_LAEA_
    "WGS\21284_U\376Z\003\207\0" // WGS_1984_UTM_Zone_
    "WGS_84_\37690_NE\0" // WGS_84_TM_90_NE
    "WI\322| Ad\232s \301Juneau\333\025\032i\242 (ft\204)\0" // WISCRS Adams and Juneau Counties (ftUS)
    "WI\322| Ad\232s \301Juneau\333\025\032i\242 (m)\0" // WISCRS Adams and Juneau Counties (m)
    "WI\322| A^\211\333\025\032\200(ft\204)\0" // WISCRS Ashland County (ftUS)
    "WI\322| A^\211\333\025\032\200(m)\0" // WISCRS Ashland County (m)
    "WI\322| B#r\222C\025\032\200(ft\204)\0" // WISCRS Barron County (ftUS)
    "WI\322| B#r\222C\025\032\200(m)\0" // WISCRS Barron County (m)
    "WI\322| Bayfi\240d\333\025\032\200(ft\204)\0" // WISCRS Bayfield County (ftUS)
    "WI\322| Bayfi\240d\333\025\032\200(m)\0" // WISCRS Bayfield County (m)
    "WI\322| Brown\333\025\032\200(ft\204)\0" // WISCRS Brown County (ftUS)
    "WI\322| Brown\333\025\032\200(m)\0" // WISCRS Brown County (m)
    "WI\322| Buff\026\013C\025\032\200(ft\204)\0" // WISCRS Buffalo County (ftUS)
    "WI\322| Buff\026\013C\025\032\200(m)\0" // WISCRS Buffalo County (m)
    "WI\322| B\225n\036t\333\025\032\200(ft\204)\0" // WISCRS Burnett County (ftUS)
    "WI\322| B\225n\036t\333\025\032\200(m)\0" // WISCRS Burnett County (m)
    "WI\322|\333\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebag\013C\025\032i\242 (ft\204)\0" // WISCRS Calumet, Fond du Lac, Outagamie and Winnebago Counties (ftUS)
    "WI\322|\333\026um\036\307F\003d du Lac\307Outag\232i\012\301W\024nebag\013C\025\032i\242 (m)\0" // WISCRS Calumet, Fond du Lac, Outagamie and Winnebago Counties (m)
    "WI\322|\333hippew\030C\025\032\200(ft\204)\0" // WISCRS Chippewa County (ftUS)
    "WI\322|\333hippew\030C\025\032\200(m)\0" // WISCRS Chippewa County (m)
    "WI\322|\333l#k\333\025\032\200(ft\204)\0" // WISCRS Clark County (ftUS)
    "WI\322|\333l#k\333\025\032\200(m)\0" // WISCRS Clark County (m)
    "WI\322|\333\247umb\314C\025\032\200(ft\204)\0" // WISCRS Columbia County (ftUS)
    "WI\322|\333\247umb\314C\025\032\200(m)\0" // WISCRS Columbia County (m)
    "WI\322|\333\370wf\006d\333\025\032\200(ft\204)\0" // WISCRS Crawford County (ftUS)
    "WI\322|\333\370wf\006d\333\025\032\200(m)\0" // WISCRS Crawford County (m)
    "WI\322| D\005\012C\025\032\200(ft\204)\0" // WISCRS Dane County (ftUS)
    "WI\322| D\005\012C\025\032\200(m)\0" // WISCRS Dane County (m)
    "WI\322| Dodg\012\301Jeff\220\222C\025\032i\242 (ft\204)\0" // WISCRS Dodge and Jefferson Counties (ftUS)
    "WI\322| Dodg\012\301Jeff\220\222C\025\032i\242 (m)\0" // WISCRS Dodge and Jefferson Counties (m)
    "WI\322| Do\006\333\025\032\200(ft\204)\0" // WISCRS Door County (ftUS)
    "WI\322| Do\006\333\025\032\200(m)\0" // WISCRS Door County (m)
    "WI\322| D\025gl\201\333\025\032\200(ft\204)\0" // WISCRS Douglas County (ftUS)
    "WI\322| D\025gl\201\333\025\032\200(m)\0" // WISCRS Douglas County (m)
    "WI\322| Dunn\333\025\032\200(ft\204)\0" // WISCRS Dunn County (ftUS)
    "WI\322| Dunn\333\025\032\200(m)\0" // WISCRS Dunn County (m)
    "WI\322| Eau\333la\342\012C\025\032\200(ft\204)\0" // WISCRS Eau Claire County (ftUS)
    "WI\322| Eau\333la\342\012C\025\032\200(m)\0" // WISCRS Eau Claire County (m)
    "WI\322| Fl\202nc\012C\025\032\200(ft\204)\0" // WISCRS Florence County (ftUS)
    "WI\322| Fl\202nc\012C\025\032\200(m)\0" // WISCRS Florence County (m)
    "WI\322| F\202~C\025\032\200(ft\204)\0" // WISCRS Forest County (ftUS)
    "WI\322| F\202~C\025\032\200(m)\0" // WISCRS Forest County (m)
    "WI\322| Gr\005t\333\025\032\200(ft\204)\0" // WISCRS Grant County (ftUS)
    "WI\322| Gr\005t\333\025\032\200(m)\0" // WISCRS Grant County (m)
    "WI\322| G>\210 Lak\012\301M#qu\036t\012C\025\032i\242 (ft\204)\0" // WISCRS Green Lake and Marquette Counties (ftUS)
    "WI\322| G>\210 Lak\012\301M#qu\036t\012C\025\032i\242 (m)\0" // WISCRS Green Lake and Marquette Counties (m)
    "WI\322| G>\210 \301Lafay\036t\012C\025\032i\242 (ft\204)\0" // WISCRS Green and Lafayette Counties (ftUS)
    "WI\322| G>\210 \301Lafay\036t\012C\025\032i\242 (m)\0" // WISCRS Green and Lafayette Counties (m)
    "WI\322| Iow\030C\025\032\200(ft\204)\0" // WISCRS Iowa County (ftUS)
    "WI\322| Iow\030C\025\032\200(m)\0" // WISCRS Iowa County (m)
    "WI\322| Ir\222C\025\032\200(ft\204)\0" // WISCRS Iron County (ftUS)
    "WI\322| Ir\222C\025\032\200(m)\0" // WISCRS Iron County (m)
    "WI\322| Jacks\222C\025\032\200(ft\204)\0" // WISCRS Jackson County (ftUS)
    "WI\322| Jacks\222C\025\032\200(m)\0" // WISCRS Jackson County (m)
    "WI\322| K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024\012C\025\032i\242 (ft\204)\0" // WISCRS Kenosha, Milwaukee, Ozaukee and Racine Counties (ftUS)
    "WI\322| K\210o^a\307M\372waukee\307Ozauke\012\301Rac\024\012C\025\032i\242 (m)\0" // WISCRS Kenosha, Milwaukee, Ozaukee and Racine Counties (m)
    "WI\322| Kewaunee\307M\005\243owoc \035{heboyg\005\333\025\032i\242 (ft\204)\0" // WISCRS Kewaunee, Manitowoc and Sheboygan Counties (ftUS)
    "WI\322| Kewaunee\307M\005\243owoc \035{heboyg\005\333\025\032i\242 (m)\0" // WISCRS Kewaunee, Manitowoc and Sheboygan Counties (m)
    "WI\322| L\030Cross\012C\025\032\200(ft\204)\0" // WISCRS La Crosse County (ftUS)
    "WI\322| L\030Cross\012C\025\032\200(m)\0" // WISCRS La Crosse County (m)
    "WI\322| L\005gl\274\012C\025\032\200(ft\204)\0" // WISCRS Langlade County (ftUS)
    "WI\322| L\005gl\274\012C\025\032\200(m)\0" // WISCRS Langlade County (m)
    "WI\322| L\024c\247n\333\025\032\200(ft\204)\0" // WISCRS Lincoln County (ftUS)
    "WI\322| L\024c\247n\333\025\032\200(m)\0" // WISCRS Lincoln County (m)
    "WI\322| M#a\023\222C\025\032\200(ft\204)\0" // WISCRS Marathon County (ftUS)
    "WI\322| M#a\023\222C\025\032\200(m)\0" // WISCRS Marathon County (m)
    "WI\322| M#\024\036t\012C\025\032\200(ft\204)\0" // WISCRS Marinette County (ftUS)
    "WI\322| M#\024\036t\012C\025\032\200(m)\0" // WISCRS Marinette County (m)
    "WI\322| M\210\344\024e\012C\025\032\200(ft\204)\0" // WISCRS Menominee County (ftUS)
    "WI\322| M\210\344\024e\012C\025\032\200(m)\0" // WISCRS Menominee County (m)
    "WI\322| M\003ro\012C\025\032\200(ft\204)\0" // WISCRS Monroe County (ftUS)
    "WI\322| M\003ro\012C\025\032\200(m)\0" // WISCRS Monroe County (m)
    "WI\322| Oc\003t\013C\025\032\200(ft\204)\0" // WISCRS Oconto County (ftUS)
    "WI\322| Oc\003t\013C\025\032\200(m)\0" // WISCRS Oconto County (m)
    "WI\322| One\257\030C\025\032\200(ft\204)\0" // WISCRS Oneida County (ftUS)
    "WI\322| One\257\030C\025\032\200(m)\0" // WISCRS Oneida County (m)
    "WI\322| Pep\024 \301Pi\007c\012C\025\032i\242 (ft\204)\0" // WISCRS Pepin and Pierce Counties (ftUS)
    "WI\322| Pep\024 \301Pi\007c\012C\025\032i\242 (m)\0" // WISCRS Pepin and Pierce Counties (m)
    "WI\322| P\247k\333\025\032\200(ft\204)\0" // WISCRS Polk County (ftUS)
    "WI\322| P\247k\333\025\032\200(m)\0" // WISCRS Polk County (m)
    "WI\322| P\006tag\012C\025\032\200(ft\204)\0" // WISCRS Portage County (ftUS)
    "WI\322| P\006tag\012C\025\032\200(m)\0" // WISCRS Portage County (m)
    "WI\322| Pr$\012C\025\032\200(ft\204)\0" // WISCRS Price County (ftUS)
    "WI\322| Pr$\012C\025\032\200(m)\0" // WISCRS Price County (m)
    "WI\322| R$h\211\333\025\032\200(ft\204)\0" // WISCRS Richland County (ftUS)
    "WI\322| R$h\211\333\025\032\200(m)\0" // WISCRS Richland County (m)
    "WI\322| Rock\333\025\032\200(ft\204)\0" // WISCRS Rock County (ftUS)
    "WI\322| Rock\333\025\032\200(m)\0" // WISCRS Rock County (m)
    "WI\322| R\357k\333\025\032\200(ft\204)\0" // WISCRS Rusk County (ftUS)
    "WI\322| R\357k\333\025\032\200(m)\0" // WISCRS Rusk County (m)
    "WI\322|{auk\333\025\032\200(ft\204)\0" // WISCRS Sauk County (ftUS)
    "WI\322|{auk\333\025\032\200(m)\0" // WISCRS Sauk County (m)
    "WI\322|{awy\007\333\025\032\200(ft\204)\0" // WISCRS Sawyer County (ftUS)
    "WI\322|{awy\007\333\025\032\200(m)\0" // WISCRS Sawyer County (m)
    "WI\322|{haw\005\013C\025\032\200(ft\204)\0" // WISCRS Shawano County (ftUS)
    "WI\322|{haw\005\013C\025\032\200(m)\0" // WISCRS Shawano County (m)
    "WI\322|{t.\333roix\333\025\032\200(ft\204)\0" // WISCRS St. Croix County (ftUS)
    "WI\322|{t.\333roix\333\025\032\200(m)\0" // WISCRS St. Croix County (m)
    "WI\322| Tayl\006\333\025\032\200(ft\204)\0" // WISCRS Taylor County (ftUS)
    "WI\322| Tayl\006\333\025\032\200(m)\0" // WISCRS Taylor County (m)
    "WI\322| T>mpe\026eau\333\025\032\200(ft\204)\0" // WISCRS Trempealeau County (ftUS)
    "WI\322| T>mpe\026eau\333\025\032\200(m)\0" // WISCRS Trempealeau County (m)
    "WI\322| V\007n\222C\025\032\200(ft\204)\0" // WISCRS Vernon County (ftUS)
    "WI\322| V\007n\222C\025\032\200(m)\0" // WISCRS Vernon County (m)
    "WI\322| V\372\201\333\025\032\200(ft\204)\0" // WISCRS Vilas County (ftUS)
    "WI\322| V\372\201\333\025\032\200(m)\0" // WISCRS Vilas County (m)
    "WI\322| W\026w\006`C\025\032\200(ft\204)\0" // WISCRS Walworth County (ftUS)
    "WI\322| W\026w\006`C\025\032\200(m)\0" // WISCRS Walworth County (m)
    "WI\322| Wa^b\225n\333\025\032\200(ft\204)\0" // WISCRS Washburn County (ftUS)
    "WI\322| Wa^b\225n\333\025\032\200(m)\0" // WISCRS Washburn County (m)
    "WI\322| Wa^\024gt\222C\025\032\200(ft\204)\0" // WISCRS Washington County (ftUS)
    "WI\322| Wa^\024gt\222C\025\032\200(m)\0" // WISCRS Washington County (m)
    "WI\322| Wauke^\030C\025\032\200(ft\204)\0" // WISCRS Waukesha County (ftUS)
    "WI\322| Wauke^\030C\025\032\200(m)\0" // WISCRS Waukesha County (m)
    "WI\322| Waupac\030C\025\032\200(ft\204)\0" // WISCRS Waupaca County (ftUS)
    "WI\322| Waupac\030C\025\032\200(m)\0" // WISCRS Waupaca County (m)
    "WI\322| Wau^#\030C\025\032\200(ft\204)\0" // WISCRS Waushara County (ftUS)
    "WI\322| Wau^#\030C\025\032\200(m)\0" // WISCRS Waushara County (m)
    "WI\322| Wood\333\025\032\200(ft\204)\0" // WISCRS Wood County (ftUS)
    "WI\322| Wood\333\025\032\200(m)\0" // WISCRS Wood County (m)
    "Wa\342#ap\253C\342cu\243\0" // Wairarapa_Circuit
    "Wak\012\352\32052\0" // Wake Island 1952
    "Wak\207Eniw\036ok\21260\0" // Wake_Eniwetok_1960
    "Wak\207\352\21252\0" // Wake_Island_1952
    "W\026l= \301Futuna\0" // Wallis and Futuna
    "W\026l= \301Futun\034W\026l=\0" // Wallis and Futuna - Wallis
    "W\026low\253\017\212\014_\231_\250\134t_I\032l\0" // Wallowa_NAD_1983_2011_TM_Ft_Intl
    "W\026low\253\017\212\014_\231_\376M\311\0" // Wallowa_NAD_1983_2011_TM_Meters
    "W\026w\006\023\374\025\032y\366\0" // Walworth_County_Feet
    "W\026w\006\023\374\025\032y_M\311\0" // Walworth_County_Meters
    "W\026w\006\023\366\0" // Walworth_Feet
    "W\026w\006\023_M\311\0" // Walworth_Meters
    "W\005g\005ui\374\342cu\243\0" // Wanganui_Circuit
    "W\005gdu\207Phodr\005g_\250\0" // Wangdue_Phodrang_TM
    "W# Off$e\0" // War Office
    "W#_Off$e\0" // War_Office
    "W#n\007_Highway_\017\212\014_\231_LCC\134t_I\032l\0" // Warner_Highway_NAD_1983_2011_LCC_Ft_Intl
    "W#n\007_Highway_\017\212\014_\231_LCC_M\311\0" // Warner_Highway_NAD_1983_2011_LCC_Meters
    "Wa^b\225n\374\025\032y\366\0" // Washburn_County_Feet
    "Wa^b\225n\374\025\032y_M\311\0" // Washburn_County_Meters
    "Wa^b\225n\366\0" // Washburn_Feet
    "Wa^b\225n_M\311\0" // Washburn_Meters
    "Wa^\024gt\222@\313 \324!e\0" // Washington CS27 North zone
    "Wa^\024gt\222@\313{\246!e\0" // Washington CS27 South zone
    "Wa^\024gt\003\374\025\032y\366\0" // Washington_County_Feet
    "Wa^\024gt\003\374\025\032y_M\311\0" // Washington_County_Meters
    "Wa^\024gt\003\366\0" // Washington_Feet
    "Wa^\024gt\003_M\311\0" // Washington_Meters
    "Wa^\024gt\003_\371\2674601\0" // Washington_North_FIPS_4601
    "Wa^\024gt\003_\371\2674601\366\0" // Washington_North_FIPS_4601_Feet
    "Wa^\024gt\003_\371\2674601\134t_\204\0" // Washington_North_FIPS_4601_Ft_US
    "Wa^\024gt\003_S\362\2674602\0" // Washington_South_FIPS_4602
    "Wa^\024gt\003_S\362\2674602\366\0" // Washington_South_FIPS_4602_Feet
    "Wa^\024gt\003_S\362\2674602\134t_\204\0" // Washington_South_FIPS_4602_Ft_US
    "Wauke^\253C\025\032y\366\0" // Waukesha_County_Feet
    "Wauke^\253C\025\032y_M\311\0" // Waukesha_County_Meters
    "Wauke^a\366\0" // Waukesha_Feet
    "Wauke^\253M\311\0" // Waukesha_Meters
    "Waupac\253C\025\032y\366\0" // Waupaca_County_Feet
    "Waupac\253C\025\032y_M\311\0" // Waupaca_County_Meters
    "Waupaca\366\0" // Waupaca_Feet
    "Waupac\253M\311\0" // Waupaca_Meters
    "Wau^#\253C\025\032y\366\0" // Waushara_County_Feet
    "Wau^#\253C\025\032y_M\311\0" // Waushara_County_Meters
    "Wau^#a\366\0" // Waushara_Feet
    "Wau^#\253M\311\0" // Waushara_Meters
    "Web M\007c<\006\0" // Web Mercator
    "Web_M\007c<\006\0" // Web_Mercator
    "Web_M\007c<\006_Aux\372i#y_S\271e\0" // Web_Mercator_Auxiliary_Sphere
    "W\240l\024gt\003\374\342cu\243\0" // Wellington_Circuit
    "W\240ls_(ft\204)\0" // Wells_(ftUS)
    "W\240ls_(m)\0" // Wells_(m)
    "W\275B\210g\223\334F \250\0" // West Bengal NSF TM
    "W\275V\342g\024\314@\313 \324!e\0" // West Virginia CS27 North zone
    "W\275V\342g\024\314@\313{\246!e\0" // West Virginia CS27 South zone
    "We\021_B\240t_\03310\0" // West_Belt_2010
    "We\021_B\210g\026\0" // West_Bengal
    "We\021_\017\212\014_\231_OM\366_I\032l\0" // West_NAD_1983_2011_OM_Feet_Intl
    "We\021_\017\212\014_\231_OM_M\311\0" // West_NAD_1983_2011_OM_Meters
    "We\021_\017\212\014_CO|96_OM\366_I\032l\0" // West_NAD_1983_CORS96_OM_Feet_Intl
    "We\021_\017\212\014_CO|96_OM_M\311\0" // West_NAD_1983_CORS96_OM_Meters
    "We\021_V\342g\024i\253\371\2674701\0" // West_Virginia_North_FIPS_4701
    "We\021_V\342g\024i\253\371\2674701\366\0" // West_Virginia_North_FIPS_4701_Feet
    "We\021_V\342g\024i\253\371\2674701\134t\204\0" // West_Virginia_North_FIPS_4701_FtUS
    "We\021_V\342g\024i\253S\362\2674702\0" // West_Virginia_South_FIPS_4702
    "We\021_V\342g\024i\253S\362\2674702\366\0" // West_Virginia_South_FIPS_4702_Feet
    "We\021_V\342g\024i\253S\362\2674702\134t\204\0" // West_Virginia_South_FIPS_4702_FtUS
    "We\021\007n{\373#\034n\006`\25224.3\004N\0" // Western Sahara - north of 24.3°N
    "We\021\007n{\373#\034s\246\25224.3\004N\0" // Western Sahara - south of 24.3°N
    "W\372l\232\036t\207P\201s_\017\212\014_\231_\250\134t_I\032l\0" // Willamette_Pass_NAD_1983_2011_TM_Ft_Intl
    "W\372l\232\036t\207P\201s_\017\212\014_\231_\376M\311\0" // Willamette_Pass_NAD_1983_2011_TM_Meters
    "W\024d_Riv\007_(ft\204)\0" // Wind_River_(ftUS)
    "W\024d_Riv\007_M\311\0" // Wind_River_Meters
    "W=c\003s\024 @\313\333\365\223!e\0" // Wisconsin CS27 Central zone
    "W=c\003s\024 @\313 \324!e\0" // Wisconsin CS27 North zone
    "W=c\003s\024 @\313{\246!e\0" // Wisconsin CS27 South zone
    "W=c\003s\024 Tr\005sv\220\012M\007c<\006 27\0" // Wisconsin Transverse Mercator 27
    "W=c\003s\024 Tr\005sv\220\012M\007c<\006 83\0" // Wisconsin Transverse Mercator 83
    "W=c\003s\024\374\365\026\2674802\0" // Wisconsin_Central_FIPS_4802
    "W=c\003s\024\374\365\026\2674802\366\0" // Wisconsin_Central_FIPS_4802_Feet
    "W=c\003s\024\374\365\026\2674802\134t_\204\0" // Wisconsin_Central_FIPS_4802_Ft_US
    "W=c\003s\024_\371\2674801\0" // Wisconsin_North_FIPS_4801
    "W=c\003s\024_\371\2674801\366\0" // Wisconsin_North_FIPS_4801_Feet
    "W=c\003s\024_\371\2674801\134t_\204\0" // Wisconsin_North_FIPS_4801_Ft_US
    "W=c\003s\024_S\362\2674803\0" // Wisconsin_South_FIPS_4803
    "W=c\003s\024_S\362\2674803\366\0" // Wisconsin_South_FIPS_4803_Feet
    "W=c\003s\024_S\362\2674803\134t_\204\0" // Wisconsin_South_FIPS_4803_Ft_US
    "W=c\003s\024_\250\0" // Wisconsin_TM
    "Wood\374\025\032y\366\0" // Wood_County_Feet
    "Wood\374\025\032y_M\311\0" // Wood_County_Meters
    "Wood\366\0" // Wood_Feet
    "Wood_M\311\0" // Wood_Meters
    "\330\0" // World
    "\33785\004S\02285\004N\0" // World - 85°S to 85°N
    "\33786\004S\02286\004N\0" // World - 86°S to 86°N
    "\337N\3430}6\015\0" // World - N hemisphere - 0°E to 6°E
    "\337N\3430}6\015\002\363\0" // World - N hemisphere - 0°E to 6°E - by country
    "\337N\3430\004N\02284\004N\0" // World - N hemisphere - 0°N to 84°N
    "\337N\343\3122}\3128\015\0" // World - N hemisphere - 102°E to 108°E
    "\337N\343\3122}\3128\015\002\363\0" // World - N hemisphere - 102°E to 108°E - by country
    "\337N\343\3122}\3128\015\002\354\200\301WGS 72BE\0" // World - N hemisphere - 102°E to 108°E - by country and WGS 72BE
    "\337N\343\3122\21796\037\0" // World - N hemisphere - 102°W to 96°W
    "\337N\343\3122\21796\037\002\363\0" // World - N hemisphere - 102°W to 96°W - by country
    "\337N\343\3128}\1774\015\0" // World - N hemisphere - 108°E to 114°E
    "\337N\343\3128}\1774\015\002\363\0" // World - N hemisphere - 108°E to 114°E - by country
    "\337N\343\3128}\1774\015\002\354\200\301WGS 72BE\0" // World - N hemisphere - 108°E to 114°E - by country and WGS 72BE
    "\337N\343\3128\217\3122\037\0" // World - N hemisphere - 108°W to 102°W
    "\337N\343\3128\217\3122\037\002\363\0" // World - N hemisphere - 108°W to 102°W - by country
    "\337N\343\1774\345\033\015\0" // World - N hemisphere - 114°E to 120°E
    "\337N\343\1774\345\033\015\002\363\0" // World - N hemisphere - 114°E to 120°E - by country
    "\337N\343\1774\217\3128\037\0" // World - N hemisphere - 114°W to 108°W
    "\337N\343\1774\217\3128\037\002\363\0" // World - N hemisphere - 114°W to 108°W - by country
    "\337N\3431\033\34526\015\0" // World - N hemisphere - 120°E to 126°E
    "\337N\3431\033\34526\015\002\363\0" // World - N hemisphere - 120°E to 126°E - by country
    "\337N\3431\033\217\1774\037\0" // World - N hemisphere - 120°W to 114°W
    "\337N\3431\033\217\1774\037\002\363\0" // World - N hemisphere - 120°W to 114°W - by country
    "\337N\343126\34532\015\0" // World - N hemisphere - 126°E to 132°E
    "\337N\343126\34532\015\002\363\0" // World - N hemisphere - 126°E to 132°E - by country
    "\337N\343126\2171\033\037\0" // World - N hemisphere - 126°W to 120°W
    "\337N\343126\2171\033\037\002\363\0" // World - N hemisphere - 126°W to 120°W - by country
    "\337N\34312\3458\015\0" // World - N hemisphere - 12°E to 18°E
    "\337N\34312\3458\015\002\363\0" // World - N hemisphere - 12°E to 18°E - by country
    "\337N\34312\3458\015\002\354\200\301WGS 72BE\0" // World - N hemisphere - 12°E to 18°E - by country and WGS 72BE
    "\337N\34312\2176\037\0" // World - N hemisphere - 12°W to 6°W
    "\337N\34312\2176\037\002\363\0" // World - N hemisphere - 12°W to 6°W - by country
    "\337N\343132\34538\015\0" // World - N hemisphere - 132°E to 138°E
    "\337N\343132\34538\015\002\363\0" // World - N hemisphere - 132°E to 138°E - by country
    "\337N\343132\217126\037\0" // World - N hemisphere - 132°W to 126°W
    "\337N\343132\217126\037\002\363\0" // World - N hemisphere - 132°W to 126°W - by country
    "\337N\343138\34544\015\0" // World - N hemisphere - 138°E to 144°E
    "\337N\343138\34544\015\002\363\0" // World - N hemisphere - 138°E to 144°E - by country
    "\337N\343138\217132\037\0" // World - N hemisphere - 138°W to 132°W
    "\337N\343138\217132\037\002\363\0" // World - N hemisphere - 138°W to 132°W - by country
    "\337N\343144\34550\015\0" // World - N hemisphere - 144°E to 150°E
    "\337N\343144\34550\015\002\363\0" // World - N hemisphere - 144°E to 150°E - by country
    "\337N\343144\217138\037\0" // World - N hemisphere - 144°W to 138°W
    "\337N\343144\217138\037\002\363\0" // World - N hemisphere - 144°W to 138°W - by country
    "\337N\343150\34556\015\0" // World - N hemisphere - 150°E to 156°E
    "\337N\343150\34556\015\002\363\0" // World - N hemisphere - 150°E to 156°E - by country
    "\337N\343150\217144\037\0" // World - N hemisphere - 150°W to 144°W
    "\337N\343150\217144\037\002\363\0" // World - N hemisphere - 150°W to 144°W - by country
    "\337N\343156\34562\015\0" // World - N hemisphere - 156°E to 162°E
    "\337N\343156\34562\015\002\363\0" // World - N hemisphere - 156°E to 162°E - by country
    "\337N\343156\217150\037\0" // World - N hemisphere - 156°W to 150°W
    "\337N\343156\217150\037\002\363\0" // World - N hemisphere - 156°W to 150°W - by country
    "\337N\343162\34568\015\0" // World - N hemisphere - 162°E to 168°E
    "\337N\343162\34568\015\002\363\0" // World - N hemisphere - 162°E to 168°E - by country
    "\337N\343162\217156\037\0" // World - N hemisphere - 162°W to 156°W
    "\337N\343162\217156\037\002\363\0" // World - N hemisphere - 162°W to 156°W - by country
    "\337N\343168\34574\015\0" // World - N hemisphere - 168°E to 174°E
    "\337N\343168\34574\015\002\363\0" // World - N hemisphere - 168°E to 174°E - by country
    "\337N\343168\217162\037\0" // World - N hemisphere - 168°W to 162°W
    "\337N\343168\217162\037\002\363\0" // World - N hemisphere - 168°W to 162°W - by country
    "\337N\343174\34580\015\0" // World - N hemisphere - 174°E to 180°E
    "\337N\343174\34580\015\002\363\0" // World - N hemisphere - 174°E to 180°E - by country
    "\337N\343174\217168\037\0" // World - N hemisphere - 174°W to 168°W
    "\337N\343174\217168\037\002\363\0" // World - N hemisphere - 174°W to 168°W - by country
    "\337N\343180\217174\037\0" // World - N hemisphere - 180°W to 174°W
    "\337N\343180\217174\037\002\363\0" // World - N hemisphere - 180°W to 174°W - by country
    "\337N\34318}24\015\0" // World - N hemisphere - 18°E to 24°E
    "\337N\34318}24\015\002\363\0" // World - N hemisphere - 18°E to 24°E - by country
    "\337N\34318}24\015\002\354\200\301WGS 72BE\0" // World - N hemisphere - 18°E to 24°E - by country and WGS 72BE
    "\337N\34318\21712\037\0" // World - N hemisphere - 18°W to 12°W
    "\337N\34318\21712\037\002\363\0" // World - N hemisphere - 18°W to 12°W - by country
    "\337N\34324}\375\015\0" // World - N hemisphere - 24°E to 30°E
    "\337N\34324}\375\015\002\363\0" // World - N hemisphere - 24°E to 30°E - by country
    "\337N\34324\21718\037\0" // World - N hemisphere - 24°W to 18°W
    "\337N\34324\21718\037\002\363\0" // World - N hemisphere - 24°W to 18°W - by country
    "\337N\343\375}36\015\0" // World - N hemisphere - 30°E to 36°E
    "\337N\343\375}36\015\002\363\0" // World - N hemisphere - 30°E to 36°E - by country
    "\337N\343\375\21724\037\0" // World - N hemisphere - 30°W to 24°W
    "\337N\343\375\21724\037\002\363\0" // World - N hemisphere - 30°W to 24°W - by country
    "\337N\34336}42\015\0" // World - N hemisphere - 36°E to 42°E
    "\337N\34336}42\015\002\363\0" // World - N hemisphere - 36°E to 42°E - by country
    "\337N\34336\217\375\037\0" // World - N hemisphere - 36°W to 30°W
    "\337N\34336\217\375\037\002\363\0" // World - N hemisphere - 36°W to 30°W - by country
    "\337N\34342}48\015\0" // World - N hemisphere - 42°E to 48°E
    "\337N\34342}48\015\002\363\0" // World - N hemisphere - 42°E to 48°E - by country
    "\337N\34342\21736\037\0" // World - N hemisphere - 42°W to 36°W
    "\337N\34342\21736\037\002\363\0" // World - N hemisphere - 42°W to 36°W - by country
    "\337N\34348}54\015\0" // World - N hemisphere - 48°E to 54°E
    "\337N\34348}54\015\002\363\0" // World - N hemisphere - 48°E to 54°E - by country
    "\337N\34348\21742\037\0" // World - N hemisphere - 48°W to 42°W
    "\337N\34348\21742\037\002\363\0" // World - N hemisphere - 48°W to 42°W - by country
    "\337N\34354}60\015\0" // World - N hemisphere - 54°E to 60°E
    "\337N\34354}60\015\002\363\0" // World - N hemisphere - 54°E to 60°E - by country
    "\337N\34354\21748\037\0" // World - N hemisphere - 54°W to 48°W
    "\337N\34354\21748\037\002\363\0" // World - N hemisphere - 54°W to 48°W - by country
    "\337N\34360}66\015\0" // World - N hemisphere - 60°E to 66°E
    "\337N\34360}66\015\002\363\0" // World - N hemisphere - 60°E to 66°E - by country
    "\337N\34360\21754\037\0" // World - N hemisphere - 60°W to 54°W
    "\337N\34360\21754\037\002\363\0" // World - N hemisphere - 60°W to 54°W - by country
    "\337N\34366}72\015\0" // World - N hemisphere - 66°E to 72°E
    "\337N\34366}72\015\002\363\0" // World - N hemisphere - 66°E to 72°E - by country
    "\337N\34366\21760\037\0" // World - N hemisphere - 66°W to 60°W
    "\337N\34366\21760\037\002\363\0" // World - N hemisphere - 66°W to 60°W - by country
    "\337N\3436\3452\015\0" // World - N hemisphere - 6°E to 12°E
    "\337N\3436\3452\015\002\363\0" // World - N hemisphere - 6°E to 12°E - by country
    "\337N\3436\2170\037\0" // World - N hemisphere - 6°W to 0°W
    "\337N\3436\2170\037\002\363\0" // World - N hemisphere - 6°W to 0°W - by country
    "\337N\34372}78\015\0" // World - N hemisphere - 72°E to 78°E
    "\337N\34372}78\015\002\363\0" // World - N hemisphere - 72°E to 78°E - by country
    "\337N\34372\21766\037\0" // World - N hemisphere - 72°W to 66°W
    "\337N\34372\21766\037\002\363\0" // World - N hemisphere - 72°W to 66°W - by country
    "\337N\34378}84\015\0" // World - N hemisphere - 78°E to 84°E
    "\337N\34378}84\015\002\363\0" // World - N hemisphere - 78°E to 84°E - by country
    "\337N\34378\21772\037\0" // World - N hemisphere - 78°W to 72°W
    "\337N\34378\21772\037\002\363\0" // World - N hemisphere - 78°W to 72°W - by country
    "\337N\34384}90\015\0" // World - N hemisphere - 84°E to 90°E
    "\337N\34384}90\015\002\363\0" // World - N hemisphere - 84°E to 90°E - by country
    "\337N\34384\21778\037\0" // World - N hemisphere - 84°W to 78°W
    "\337N\34384\21778\037\002\363\0" // World - N hemisphere - 84°W to 78°W - by country
    "\337N\34390}96\015\0" // World - N hemisphere - 90°E to 96°E
    "\337N\34390}96\015\002\363\0" // World - N hemisphere - 90°E to 96°E - by country
    "\337N\34390\21784\037\0" // World - N hemisphere - 90°W to 84°W
    "\337N\34390\21784\037\002\363\0" // World - N hemisphere - 90°W to 84°W - by country
    "\337N\34396}\3122\015\0" // World - N hemisphere - 96°E to 102°E
    "\337N\34396}\3122\015\002\363\0" // World - N hemisphere - 96°E to 102°E - by country
    "\337N\34396\21790\037\0" // World - N hemisphere - 96°W to 90°W
    "\337N\34396\21790\037\002\363\0" // World - N hemisphere - 96°W to 90°W - by country
    "\337N\343n\006`\25260\004N\0" // World - N hemisphere - north of 60°N
    "\337S\3430}6\015\0" // World - S hemisphere - 0°E to 6°E
    "\337S\3430}6\015\002\363\0" // World - S hemisphere - 0°E to 6°E - by country
    "\337S\3430\004N\02280\004S\0" // World - S hemisphere - 0°N to 80°S
    "\337S\343\3122}\3128\015\0" // World - S hemisphere - 102°E to 108°E
    "\337S\343\3122}\3128\015\002\363\0" // World - S hemisphere - 102°E to 108°E - by country
    "\337S\343\3122\21796\037\0" // World - S hemisphere - 102°W to 96°W
    "\337S\343\3122\21796\037\002\363\0" // World - S hemisphere - 102°W to 96°W - by country
    "\337S\343\3128}\1774\015\0" // World - S hemisphere - 108°E to 114°E
    "\337S\343\3128}\1774\015\002\363\0" // World - S hemisphere - 108°E to 114°E - by country
    "\337S\343\3128}\1774\015\002\354\200\301WGS 72BE\0" // World - S hemisphere - 108°E to 114°E - by country and WGS 72BE
    "\337S\343\3128\217\3122\037\0" // World - S hemisphere - 108°W to 102°W
    "\337S\343\3128\217\3122\037\002\363\0" // World - S hemisphere - 108°W to 102°W - by country
    "\337S\343\1774\345\033\015\0" // World - S hemisphere - 114°E to 120°E
    "\337S\343\1774\345\033\015\002\363\0" // World - S hemisphere - 114°E to 120°E - by country
    "\337S\343\1774\217\3128\037\0" // World - S hemisphere - 114°W to 108°W
    "\337S\343\1774\217\3128\037\002\363\0" // World - S hemisphere - 114°W to 108°W - by country
    "\337S\3431\033\34526\015\0" // World - S hemisphere - 120°E to 126°E
    "\337S\3431\033\34526\015\002\363\0" // World - S hemisphere - 120°E to 126°E - by country
    "\337S\3431\033\217\1774\037\0" // World - S hemisphere - 120°W to 114°W
    "\337S\3431\033\217\1774\037\002\363\0" // World - S hemisphere - 120°W to 114°W - by country
    "\337S\343126\34532\015\0" // World - S hemisphere - 126°E to 132°E
    "\337S\343126\34532\015\002\363\0" // World - S hemisphere - 126°E to 132°E - by country
    "\337S\343126\2171\033\037\0" // World - S hemisphere - 126°W to 120°W
    "\337S\343126\2171\033\037\002\363\0" // World - S hemisphere - 126°W to 120°W - by country
    "\337S\34312\3458\015\0" // World - S hemisphere - 12°E to 18°E
    "\337S\34312\3458\015\002\363\0" // World - S hemisphere - 12°E to 18°E - by country
    "\337S\34312\2176\037\0" // World - S hemisphere - 12°W to 6°W
    "\337S\34312\2176\037\002\363\0" // World - S hemisphere - 12°W to 6°W - by country
    "\337S\343132\34538\015\0" // World - S hemisphere - 132°E to 138°E
    "\337S\343132\34538\015\002\363\0" // World - S hemisphere - 132°E to 138°E - by country
    "\337S\343132\217126\037\0" // World - S hemisphere - 132°W to 126°W
    "\337S\343132\217126\037\002\363\0" // World - S hemisphere - 132°W to 126°W - by country
    "\337S\343138\34544\015\0" // World - S hemisphere - 138°E to 144°E
    "\337S\343138\34544\015\002\363\0" // World - S hemisphere - 138°E to 144°E - by country
    "\337S\343138\217132\037\0" // World - S hemisphere - 138°W to 132°W
    "\337S\343138\217132\037\002\363\0" // World - S hemisphere - 138°W to 132°W - by country
    "\337S\343144\34550\015\0" // World - S hemisphere - 144°E to 150°E
    "\337S\343144\34550\015\002\363\0" // World - S hemisphere - 144°E to 150°E - by country
    "\337S\343144\217138\037\0" // World - S hemisphere - 144°W to 138°W
    "\337S\343144\217138\037\002\363\0" // World - S hemisphere - 144°W to 138°W - by country
    "\337S\343150\34556\015\0" // World - S hemisphere - 150°E to 156°E
    "\337S\343150\34556\015\002\363\0" // World - S hemisphere - 150°E to 156°E - by country
    "\337S\343150\217144\037\0" // World - S hemisphere - 150°W to 144°W
    "\337S\343150\217144\037\002\363\0" // World - S hemisphere - 150°W to 144°W - by country
    "\337S\343156\34562\015\0" // World - S hemisphere - 156°E to 162°E
    "\337S\343156\34562\015\002\363\0" // World - S hemisphere - 156°E to 162°E - by country
    "\337S\343156\217150\037\0" // World - S hemisphere - 156°W to 150°W
    "\337S\343156\217150\037\002\363\0" // World - S hemisphere - 156°W to 150°W - by country
    "\337S\343162\34568\015\0" // World - S hemisphere - 162°E to 168°E
    "\337S\343162\34568\015\002\363\0" // World - S hemisphere - 162°E to 168°E - by country
    "\337S\343162\217156\037\0" // World - S hemisphere - 162°W to 156°W
    "\337S\343162\217156\037\002\363\0" // World - S hemisphere - 162°W to 156°W - by country
    "\337S\343168\34574\015\0" // World - S hemisphere - 168°E to 174°E
    "\337S\343168\34574\015\002\363\0" // World - S hemisphere - 168°E to 174°E - by country
    "\337S\343168\217162\037\0" // World - S hemisphere - 168°W to 162°W
    "\337S\343168\217162\037\002\363\0" // World - S hemisphere - 168°W to 162°W - by country
    "\337S\343174\34580\015\0" // World - S hemisphere - 174°E to 180°E
    "\337S\343174\34580\015\002\363\0" // World - S hemisphere - 174°E to 180°E - by country
    "\337S\343174\217168\037\0" // World - S hemisphere - 174°W to 168°W
    "\337S\343174\217168\037\002\363\0" // World - S hemisphere - 174°W to 168°W - by country
    "\337S\343180\217174\037\0" // World - S hemisphere - 180°W to 174°W
    "\337S\343180\217174\037\002\363\0" // World - S hemisphere - 180°W to 174°W - by country
    "\337S\34318}24\015\0" // World - S hemisphere - 18°E to 24°E
    "\337S\34318}24\015\002\363\0" // World - S hemisphere - 18°E to 24°E - by country
    "\337S\34318\21712\037\0" // World - S hemisphere - 18°W to 12°W
    "\337S\34318\21712\037\002\363\0" // World - S hemisphere - 18°W to 12°W - by country
    "\337S\34324}\375\015\0" // World - S hemisphere - 24°E to 30°E
    "\337S\34324}\375\015\002\363\0" // World - S hemisphere - 24°E to 30°E - by country
    "\337S\34324\21718\037\0" // World - S hemisphere - 24°W to 18°W
    "\337S\34324\21718\037\002\363\0" // World - S hemisphere - 24°W to 18°W - by country
    "\337S\343\375}36\015\0" // World - S hemisphere - 30°E to 36°E
    "\337S\343\375}36\015\002\363\0" // World - S hemisphere - 30°E to 36°E - by country
    "\337S\343\375\21724\037\0" // World - S hemisphere - 30°W to 24°W
    "\337S\343\375\21724\037\002\363\0" // World - S hemisphere - 30°W to 24°W - by country
    "\337S\34336}42\015\0" // World - S hemisphere - 36°E to 42°E
    "\337S\34336}42\015\002\363\0" // World - S hemisphere - 36°E to 42°E - by country
    "\337S\34336\217\375\037\0" // World - S hemisphere - 36°W to 30°W
    "\337S\34336\217\375\037\002\363\0" // World - S hemisphere - 36°W to 30°W - by country
    "\337S\34342}48\015\0" // World - S hemisphere - 42°E to 48°E
    "\337S\34342}48\015\002\363\0" // World - S hemisphere - 42°E to 48°E - by country
    "\337S\34342\21736\037\0" // World - S hemisphere - 42°W to 36°W
    "\337S\34342\21736\037\002\363\0" // World - S hemisphere - 42°W to 36°W - by country
    "\337S\34348}54\015\0" // World - S hemisphere - 48°E to 54°E
    "\337S\34348}54\015\002\363\0" // World - S hemisphere - 48°E to 54°E - by country
    "\337S\34348\21742\037\0" // World - S hemisphere - 48°W to 42°W
    "\337S\34348\21742\037\002\363\0" // World - S hemisphere - 48°W to 42°W - by country
    "\337S\34354}60\015\0" // World - S hemisphere - 54°E to 60°E
    "\337S\34354}60\015\002\363\0" // World - S hemisphere - 54°E to 60°E - by country
    "\337S\34354\21748\037\0" // World - S hemisphere - 54°W to 48°W
    "\337S\34354\21748\037\002\363\0" // World - S hemisphere - 54°W to 48°W - by country
    "\337S\34360}66\015\0" // World - S hemisphere - 60°E to 66°E
    "\337S\34360}66\015\002\363\0" // World - S hemisphere - 60°E to 66°E - by country
    "\337S\34360\21754\037\0" // World - S hemisphere - 60°W to 54°W
    "\337S\34360\21754\037\002\363\0" // World - S hemisphere - 60°W to 54°W - by country
    "\337S\34366}72\015\0" // World - S hemisphere - 66°E to 72°E
    "\337S\34366}72\015\002\363\0" // World - S hemisphere - 66°E to 72°E - by country
    "\337S\34366\21760\037\0" // World - S hemisphere - 66°W to 60°W
    "\337S\34366\21760\037\002\363\0" // World - S hemisphere - 66°W to 60°W - by country
    "\337S\3436\3452\015\0" // World - S hemisphere - 6°E to 12°E
    "\337S\3436\3452\015\002\363\0" // World - S hemisphere - 6°E to 12°E - by country
    "\337S\3436\2170\037\0" // World - S hemisphere - 6°W to 0°W
    "\337S\3436\2170\037\002\363\0" // World - S hemisphere - 6°W to 0°W - by country
    "\337S\34372}78\015\0" // World - S hemisphere - 72°E to 78°E
    "\337S\34372}78\015\002\363\0" // World - S hemisphere - 72°E to 78°E - by country
    "\337S\34372\21766\037\0" // World - S hemisphere - 72°W to 66°W
    "\337S\34372\21766\037\002\363\0" // World - S hemisphere - 72°W to 66°W - by country
    "\337S\34378}84\015\0" // World - S hemisphere - 78°E to 84°E
    "\337S\34378}84\015\002\363\0" // World - S hemisphere - 78°E to 84°E - by country
    "\337S\34378\21772\037\0" // World - S hemisphere - 78°W to 72°W
    "\337S\34378\21772\037\002\363\0" // World - S hemisphere - 78°W to 72°W - by country
    "\337S\34384}90\015\0" // World - S hemisphere - 84°E to 90°E
    "\337S\34384}90\015\002\363\0" // World - S hemisphere - 84°E to 90°E - by country
    "\337S\34384\21778\037\0" // World - S hemisphere - 84°W to 78°W
    "\337S\34384\21778\037\002\363\0" // World - S hemisphere - 84°W to 78°W - by country
    "\337S\34390}96\015\0" // World - S hemisphere - 90°E to 96°E
    "\337S\34390}96\015\002\363\0" // World - S hemisphere - 90°E to 96°E - by country
    "\337S\34390\21784\037\0" // World - S hemisphere - 90°W to 84°W
    "\337S\34390\21784\037\002\363\0" // World - S hemisphere - 90°W to 84°W - by country
    "\337S\34396}\3122\015\0" // World - S hemisphere - 96°E to 102°E
    "\337S\34396}\3122\015\002\363\0" // World - S hemisphere - 96°E to 102°E - by country
    "\337S\34396\21790\037\0" // World - S hemisphere - 96°W to 90°W
    "\337S\34396\21790\037\002\363\0" // World - S hemisphere - 96°W to 90°W - by country
    "\337S\343s\246\25260\004S\0" // World - S hemisphere - south of 60°S
    "\337b\036we\210 80\004S \30184\004N\0" // World - between 80°S and 84°N
    "\337n\006`\2520\004N\0" // World - north of 0°N
    "\337n\006`\25245\004N\0" // World - north of 45°N
    "\337s\246\2520\004N\0" // World - south of 0°N
    "\337s\246\25250\004S\0" // World - south of 50°S
    "\330 Equ\257i\021\005t\333yl\0" // World Equidistant Cyl
    "\330 Equ\257i\021\005t\333yl\024dr$\026\205S\271e)\0" // World Equidistant Cylindrical (Sphere)
    "\330 Geod\036${y\021\206\32066\0" // World Geodetic System 1966
    "\330 Geod\036${y\021\206\32072\0" // World Geodetic System 1972
    "\330 Geod\036${y\021\206\32084 (G\17750)\0" // World Geodetic System 1984 (G1150)
    "\330 Geod\036${y\021\206\32084 (G1674)\0" // World Geodetic System 1984 (G1674)
    "\330 Geod\036${y\021\206\32084 (G1762)\0" // World Geodetic System 1984 (G1762)
    "\330 Geod\036${y\021\206\32084 (G2139)\0" // World Geodetic System 1984 (G2139)
    "\330 Geod\036${y\021\206\32084 (G7\375)\0" // World Geodetic System 1984 (G730)
    "\330 Geod\036${y\021\206\32084 (G873)\0" // World Geodetic System 1984 (G873)
    "\330 Geod\036${y\021\206\32084 (Tr\005s\243)\0" // World Geodetic System 1984 (Transit)
    "\330 Geod\036${y\021\206\32084 \210s\206ble\0" // World Geodetic System 1984 ensemble
    "\330 ce\032>d \222150\015\0" // World centred on 150°E
    "\330 ce\032>d \22290\037\0" // World centred on 90°W
    "\330_Equ\257i\021\005t\374yl\024dr$\026\0" // World_Equidistant_Cylindrical
    "\330_Equ\257i\021\005t\374yl\024dr$\026_(S\271e)\0" // World_Equidistant_Cylindrical_(Sphere)
    "\330_Geod\036$_Sy\021\206\21284_\0" // World_Geodetic_System_1984_
    "\330_M\007c<\006\0" // World_Mercator
    "Wy\344\024g @\313 E\315C\365\223!e\0" // Wyoming CS27 East Central zone
    "Wy\344\024g @\313 E\315!e\0" // Wyoming CS27 East zone
    "Wy\344\024g @\313 W\275C\365\223!e\0" // Wyoming CS27 West Central zone
    "Wy\344\024g @\313 W\275!e\0" // Wyoming CS27 West zone
    "Wy\344\024g W\024d Riv\007\205\204{\225ve\200f\221)\0" // Wyoming Wind River (US Survey feet)
    "Wy\344\024g W\024d Riv\007\205m\311)\0" // Wyoming Wind River (meters)
    "Wy\344\024g_E\374\365\026\2674902\134t_\204\0" // Wyoming_E_Central_FIPS_4902_Ft_US
    "Wy\344\024g_Ea\021\374\365\026\2674902\0" // Wyoming_East_Central_FIPS_4902
    "Wy\344\024g_Ea\021\374\365\026\2674902\366\0" // Wyoming_East_Central_FIPS_4902_Feet
    "Wy\344\024g_Ea\021\2674901\0" // Wyoming_East_FIPS_4901
    "Wy\344\024g_Ea\021\2674901\366\0" // Wyoming_East_FIPS_4901_Feet
    "Wy\344\024g_Ea\021\2674901\134t_\204\0" // Wyoming_East_FIPS_4901_Ft_US
    "Wy\344\024g_W\374\365\026\2674903\134t_\204\0" // Wyoming_W_Central_FIPS_4903_Ft_US
    "Wy\344\024g_We\021\374\365\026\2674903\0" // Wyoming_West_Central_FIPS_4903
    "Wy\344\024g_We\021\374\365\026\2674903\366\0" // Wyoming_West_Central_FIPS_4903_Feet
    "Wy\344\024g_We\021\2674904\0" // Wyoming_West_FIPS_4904
    "Wy\344\024g_We\021\2674904\366\0" // Wyoming_West_FIPS_4904_Feet
    "Wy\344\024g_We\021\2674904\134t_\204\0" // Wyoming_West_FIPS_4904_Ft_US
    "X\335\32080\0" // Xian 1980
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M \3122E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 102E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M \3125E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 105E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M \3128E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 108E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M \1771E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 111E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M \1774E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 114E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M \1777E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 117E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 1\033E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 120E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 123E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 123E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 126E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 126E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 129E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 129E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 132E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 132E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 135E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 135E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 75E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 75E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 78E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 78E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 81E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 81E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 84E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 84E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 87E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 87E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 90E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 90E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 93E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 93E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 96E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 96E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\333M 99E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 99E
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27025\0" // Xian 1980 / 3-degree Gauss-Kruger zone 25
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27026\0" // Xian 1980 / 3-degree Gauss-Kruger zone 26
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27027\0" // Xian 1980 / 3-degree Gauss-Kruger zone 27
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27028\0" // Xian 1980 / 3-degree Gauss-Kruger zone 28
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27029\0" // Xian 1980 / 3-degree Gauss-Kruger zone 29
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27030\0" // Xian 1980 / 3-degree Gauss-Kruger zone 30
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27031\0" // Xian 1980 / 3-degree Gauss-Kruger zone 31
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27032\0" // Xian 1980 / 3-degree Gauss-Kruger zone 32
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27033\0" // Xian 1980 / 3-degree Gauss-Kruger zone 33
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27034\0" // Xian 1980 / 3-degree Gauss-Kruger zone 34
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27035\0" // Xian 1980 / 3-degree Gauss-Kruger zone 35
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27036\0" // Xian 1980 / 3-degree Gauss-Kruger zone 36
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27037\0" // Xian 1980 / 3-degree Gauss-Kruger zone 37
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27038\0" // Xian 1980 / 3-degree Gauss-Kruger zone 38
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27039\0" // Xian 1980 / 3-degree Gauss-Kruger zone 39
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27040\0" // Xian 1980 / 3-degree Gauss-Kruger zone 40
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27041\0" // Xian 1980 / 3-degree Gauss-Kruger zone 41
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27042\0" // Xian 1980 / 3-degree Gauss-Kruger zone 42
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27043\0" // Xian 1980 / 3-degree Gauss-Kruger zone 43
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27044\0" // Xian 1980 / 3-degree Gauss-Kruger zone 44
    "X\335\32080\0113-deg>\012Ga\357s-Krug\007\27045\0" // Xian 1980 / 3-degree Gauss-Kruger zone 45
    "X\335\32080\011Ga\357s-Krug\007\333M \3125E\0" // Xian 1980 / Gauss-Kruger CM 105E
    "X\335\32080\011Ga\357s-Krug\007\333M \1771E\0" // Xian 1980 / Gauss-Kruger CM 111E
    "X\335\32080\011Ga\357s-Krug\007\333M \1777E\0" // Xian 1980 / Gauss-Kruger CM 117E
    "X\335\32080\011Ga\357s-Krug\007\333M 123E\0" // Xian 1980 / Gauss-Kruger CM 123E
    "X\335\32080\011Ga\357s-Krug\007\333M 129E\0" // Xian 1980 / Gauss-Kruger CM 129E
    "X\335\32080\011Ga\357s-Krug\007\333M 135E\0" // Xian 1980 / Gauss-Kruger CM 135E
    "X\335\32080\011Ga\357s-Krug\007\333M 75E\0" // Xian 1980 / Gauss-Kruger CM 75E
    "X\335\32080\011Ga\357s-Krug\007\333M 81E\0" // Xian 1980 / Gauss-Kruger CM 81E
    "X\335\32080\011Ga\357s-Krug\007\333M 87E\0" // Xian 1980 / Gauss-Kruger CM 87E
    "X\335\32080\011Ga\357s-Krug\007\333M 93E\0" // Xian 1980 / Gauss-Kruger CM 93E
    "X\335\32080\011Ga\357s-Krug\007\333M 99E\0" // Xian 1980 / Gauss-Kruger CM 99E
    "X\335\32080\011Ga\357s-Krug\007\27013\0" // Xian 1980 / Gauss-Kruger zone 13
    "X\335\32080\011Ga\357s-Krug\007\27014\0" // Xian 1980 / Gauss-Kruger zone 14
    "X\335\32080\011Ga\357s-Krug\007\27015\0" // Xian 1980 / Gauss-Kruger zone 15
    "X\335\32080\011Ga\357s-Krug\007\27016\0" // Xian 1980 / Gauss-Kruger zone 16
    "X\335\32080\011Ga\357s-Krug\007\27017\0" // Xian 1980 / Gauss-Kruger zone 17
    "X\335\32080\011Ga\357s-Krug\007\27018\0" // Xian 1980 / Gauss-Kruger zone 18
    "X\335\32080\011Ga\357s-Krug\007\27019\0" // Xian 1980 / Gauss-Kruger zone 19
    "X\335\32080\011Ga\357s-Krug\007\27020\0" // Xian 1980 / Gauss-Kruger zone 20
    "X\335\32080\011Ga\357s-Krug\007\27021\0" // Xian 1980 / Gauss-Kruger zone 21
    "X\335\32080\011Ga\357s-Krug\007\27022\0" // Xian 1980 / Gauss-Kruger zone 22
    "X\335\32080\011Ga\357s-Krug\007\27023\0" // Xian 1980 / Gauss-Kruger zone 23
    "X\335\21280\0" // Xian_1980
    "X\335\21280_3_Deg>\207GK_\0" // Xian_1980_3_Degree_GK_
    "X\335\21280_3_Deg>\207GK_Z\003\207\0" // Xian_1980_3_Degree_GK_Zone_
    "X\335\21280_GK_\0" // Xian_1980_GK_
    "YKG\0" // YKG
    "YNGN96\0" // YNGN96
    "Yac#e\0" // Yacare
    "Y\005gts\207\250\0" // Yangtse_TM
    "Y#d\0" // Yard
    "Y#d_B\210o\243_1895_A\0" // Yard_Benoit_1895_A
    "Y#d_B\210o\243_1895_B\0" // Yard_Benoit_1895_B
    "Y#d_Cl#ke\0" // Yard_Clarke
    "Y#d_\355\335\0" // Yard_Indian
    "Y#d_\355\335\21237\0" // Yard_Indian_1937
    "Y#d_\355\335\21262\0" // Yard_Indian_1962
    "Y#d_\355\335\21275\0" // Yard_Indian_1975
    "Y#d_Se#s\0" // Yard_Sears
    "Y#d_Se#s\21222_Trunc<\273\0" // Yard_Sears_1922_Truncated
    "Y\206\210\00242}48\015\0" // Yemen - 42°E to 48°E
    "Y\206\210\00248}54\015\0" // Yemen - 48°E to 54°E
    "Y\206\210\002\367Y\206\210\002ma\024\211\0" // Yemen - South Yemen - mainland
    "Y\206\210\002\367Y\206\210\002ma\024\211 e\315\25248\015\0" // Yemen - South Yemen - mainland east of 48°E
    "Y\206\210\002\367Y\206\210\002ma\024\211 w\275\25248\015\0" // Yemen - South Yemen - mainland west of 48°E
    "Y\206\210\002e\315\25254\015\0" // Yemen - east of 54°E
    "Y\206\210\002w\275\25242\015\0" // Yemen - west of 42°E
    "Y\206\210 NGN96\0" // Yemen NGN96
    "Y\206\210 NGN96\011U\250\27037N\0" // Yemen NGN96 / UTM zone 37N
    "Y\206\210 NGN96\011U\250\27038N\0" // Yemen NGN96 / UTM zone 38N
    "Y\206\210 NGN96\011U\250\27039N\0" // Yemen NGN96 / UTM zone 39N
    "Y\206\210 NGN96\011U\250\27040N\0" // Yemen NGN96 / UTM zone 40N
    "Y\206\210 N<\321\223Geod\036$ N\036w\006k \03196\0" // Yemen National Geodetic Network 1996
    "Y\206\210_NGN_\03196\0" // Yemen_NGN_1996
    "Y\206\210_NGN\21296_U\376Z\003\207\0" // Yemen_NGN_1996_UTM_Zone_
    "Y\216f\0" // Yoff
    "Y\216f\011U\250\27028N\0" // Yoff / UTM zone 28N
    "Y\216f\21272_U\376Z\003\20728N\0" // Yoff_1972_UTM_Zone_28N
    "Yop\026\374\201\005#\207\2276\0" // Yopal_Casanare_2006
    "Y\006k\374\365\026\2673\3122\366\0" // York_Central_FIPS_3102_Feet
    "Y\006k_Ea\021\2673\3121\366\0" // York_East_FIPS_3101_Feet
    "Y\006k_L\003g_\352\2673\3124\366\0" // York_Long_Island_FIPS_3104_Feet
    "Y\006k_We\021\2673\3123\366\0" // York_West_FIPS_3103_Feet
    "Yuk\003_Alb\220\0" // Yukon_Albers
    "Zach 1812\0" // Zach 1812
    "Zach_1812\0" // Zach_1812
    "Z\035\007ij\0" // Zanderij
    "Z\035\007ij\011S\225\024\232\012O\316 \250\0" // Zanderij / Suriname Old TM
    "Z\035\007ij\011S\225\024\232\012\250\0" // Zanderij / Suriname TM
    "Z\035\007ij\011\250 54 NW\0" // Zanderij / TM 54 NW
    "Z\035\007ij\011U\250\27021N\0" // Zanderij / UTM zone 21N
    "Z\035\007ij\21272_U\376Z\003\20721N\0" // Zanderij_1972_UTM_Zone_21N
    "Z\035\007ij_S\225\024\232\207O\316_\250\0" // Zanderij_Suriname_Old_TM
    "Z\035\007ij_S\225\024\232\207\250\0" // Zanderij_Suriname_TM
    "Z\035\007ij_\37654_NW\0" // Zanderij_TM_54_NW
    "Z\276g\005g_\250\0" // Zhemgang_TM
    "Z\003\20712_(E-N)\0" // Zone_12_(E-N)
    "Z\003\20714\0" // Zone_14
    "Z\003\20715\0" // Zone_15
    "Z\003\20716\0" // Zone_16
    "Z\003\20717\0" // Zone_17
    "Z\003\20720\0" // Zone_20
    "Z\003\20721\0" // Zone_21
    "Z\003\20723\0" // Zone_23
    "Z\003\207A1\0" // Zone_A1
    "Z\003\207A2\0" // Zone_A2
    "Z\003\207A3\0" // Zone_A3
    "Z\003\207A4\0" // Zone_A4
    "Z\003\207C0\0" // Zone_C0
    "Z\003\207C1\0" // Zone_C1
    "Z\003\207C2\0" // Zone_C2
    "Z\003\207II\0" // Zone_II
    "Z\003\207III\0" // Zone_III
    "Z\003\207IV\0" // Zone_IV
    "Z\003\207K2\0" // Zone_K2
    "Z\003\207K3\0" // Zone_K3
    "Z\003\207K4\0" // Zone_K4
    "[JTSK03]_Krovak\0" // [JTSK03]_Krovak
    "[JTSK03]_Krovak_Ea\021_\371\0" // [JTSK03]_Krovak_East_North
    "#c-m\024ute\0" // arc-minute
    "ce\032\242im\223m\024ute\0" // centesimal minute
    "ce\032im\036>\0" // centimetre
    "d\207May\350t\207\2274\0" // de_Mayotte_2004
    "d\207N\025v\240l\207C\026\273\003i\207\03191-93\0" // de_Nouvelle_Caledonie_1991-93
    "d\207St_Pi\007>_\036_Miqu\240\003_\2276\0" // de_St_Pierre_et_Miquelon_2006
    "d\207l\253P\247yn\242ie\134r\005ca=e\0" // de_la_Polynesie_Francaise
    "d\207l\253RDC_\2275\0" // de_la_RDC_2005
    "deg>\012(suppli\007\022def\024\012>p>se\032<\321)\0" // degree (supplier to define representation)
    "deg>\012\300e\0" // degree hemisphere
    "deg>\012m\024ut\012\300e\0" // degree minute hemisphere
    "deg>\012m\024ut\012sec\003d\305e\0" // degree minute second hemisphere
    "d\242_T\007>s_Au\021r\026\242_\036_A\032#\317iqu\242\134r\005ca=\242_\2277\0" // des_Terres_Australes_et_Antarctiques_Francaises_2007
    "epoch \2272.00\0" // epoch 2002.00
    "epoch \033\312.00\0" // epoch 2010.00
    "epoch \03313.00\0" // epoch 2013.00
    "epoch \03316.00\0" // epoch 2016.00
    "epoch \03321.00\0" // epoch 2021.00
    "fa\023\344\0" // fathom
    "fk54\0" // fk54
    "fk89\011F#o\012L\232b\007t FK89\0" // fk89 / Faroe Lambert FK89
    "fke\0" // fke
    "gr\274\0" // grad
    "\300\012deg>e\0" // hemisphere degree
    "\300\012deg>\012m\024ute\0" // hemisphere degree minute
    "h\007m\005nskog\240\0" // hermannskogel
    "i>65\0" // ire65
    "k<a\021r\303\241lnej\0" // katastrálnej
    "k<a\021r\303\241lnej\205F\007ro)\0" // katastrálnej (Ferro)
    "k<a\021r\303\241lnej [JTSK03]\0" // katastrálnej [JTSK03]
    "k<a\021r\303\241ln\303\255\0" // katastrální
    "k<a\021r\303\241ln\303\255\205F\007ro)\0" // katastrální (Ferro)
    "k<a\021r\303\241ln\303\255/05\0" // katastrální/05
    "k<a\021r\303\241ln\303\255/05\205F\007ro)\0" // katastrální/05 (Ferro)
    "k\372om\036>\0" // kilometre
    "m$ror\274\335\0" // microradian
    "m\372_6400\0" // mil_6400
    "m\372lim\036>\0" // millimetre
    "naut$\223m\372e\0" // nautical mile
    "nzgd49\0" // nzgd49
    "p\350sd\232\0" // potsdam
    ">\026izaci\303\263n 1\0" // realización 1
    ">\026izaci\303\263n 2\0" // realización 2
    ">\026izaci\303\263n 3\0" // realización 3
    ">\026izaci\303\263n 4\0" // realización 4
    ">\026izaci\303\263n 5\0" // realización 5
    ">\026iz<\321_2_epoch_\03310\0" // realization_2_epoch_2010
    ">\026iz<\321_3_epoch_\03313\0" // realization_3_epoch_2013
    ">\026iz<\321_4_epoch_\03316\0" // realization_4_epoch_2016
    "sexag\242im\223DM\0" // sexagesimal DM
    "sexag\242im\223DMS\0" // sexagesimal DMS
    "sexag\242im\223DMS.s\0" // sexagesimal DMS.s
    "v2\002L<L\003\0" // v2 - LatLon
    "v3\002L<L\003\0" // v3 - LatLon
    "v4\002L<L\003\0" // v4 - LatLon
    "v5\002L<L\003\0" // v5 - LatLon
    "v6\002L<L\003\0" // v6 - LatLon
    "v7\002L<L\003\0" // v7 - LatLon
    "!\2076\0" // zone_6
    "!\2077\0" // zone_7
    "!\2078\0" // zone_8
    "!\207X1\0" // zone_X1
    "!\207X2\0" // zone_X2
    "!\207X3\0" // zone_X3
    "!\207X4\0" // zone_X4
    "!\207X5\0" // zone_X5
    "!\207X6\0" // zone_X6
    "!\207X7\0" // zone_X7
    ;
// clang-format on

} // namespace ZrProj::systems::rows
