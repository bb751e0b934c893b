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
    "(\03186)\002L=L\003\0" // (1986) - LatLon
    "(\2277)\002L=L\003\0" // (2007) - LatLon
    "(\240) Epoch \034\312\002L=L\003\0" // (2011) Epoch 2010 - LatLon
    "(\240)_PC\134_$\2151_(ft)\0" // (2011)_PCCS_zone_1_(ft)
    "(\240)_PC\134_$\2152_(ft)\0" // (2011)_PCCS_zone_2_(ft)
    "(\240)_PC\134_$\2153_(ft)\0" // (2011)_PCCS_zone_3_(ft)
    "(\240)_PC\134_$\2154_(ft)\0" // (2011)_PCCS_zone_4_(ft)
    "(CO{96) Epoch\31797.0\002L=L\003\0" // (CORS96) Epoch 1997.0 - LatLon
    "(CO{96) Epoch \2272.0\002L=L\003\0" // (CORS96) Epoch 2002.0 - LatLon
    "(\134{)_v6_M\254_Nov\256Sc\337i\256$\2154\0" // (CSRS)_v6_MTM_Nova_Scotia_zone_4
    "(\134{)_v6_M\254_Nov\256Sc\337i\256$\2155\0" // (CSRS)_v6_MTM_Nova_Scotia_zone_5
    "(FBN)\002L=L\003\0" // (FBN) - LatLon
    "(F\275\007\025_B}\215N\036w\006k)\0" // (Federal_Base_Network)
    "(G\20250)\002L=L\003\0" // (G1150) - LatLon
    "(G1674)\002L=L\003\0" // (G1674) - LatLon
    "(G1762)\002L=L\003\0" // (G1762) - LatLon
    "(G730)\002L=L\003\0" // (G730) - LatLon
    "(G873)\002L=L\003\0" // (G873) - LatLon
    "(\334)\002L=L\003\0" // (HARN) - LatLon
    "(\334)\327ORRECTED\002L=L\003\0" // (HARN) CORRECTED - LatLon
    "(\334\377\006>\322\275)\0" // (HARN_Corrected)
    "(High_Acc\224acy_Ref\007\207c\215N\036w\006k-C\006>\322\275)\0" // (High_Accuracy_Reference_Network-Corrected)
    "(MA\202) Epoch \034\312\002L=L\003\0" // (MA11) Epoch 2010 - LatLon
    "(M\252P00)\002L=L\003\0" // (MARP00) - LatLon
    "(PA\202) Epoch \034\312\002L=L\003\0" // (PA11) Epoch 2010 - LatLon
    "(PACP00)\002L=L\003\0" // (PACP00) - LatLon
    "01 (ft\203)\0" // 01 (ftUS)
    "01 (m)\0" // 01 (m)
    "02 (ft\203)\0" // 02 (ftUS)
    "02 (m)\0" // 02 (m)
    "03 (ft\203)\0" // 03 (ftUS)
    "03 (m)\0" // 03 (m)
    "04 (ft\203)\0" // 04 (ftUS)
    "04 (m)\0" // 04 (m)
    "05-18 (ft\203)\0" // 05-18 (ftUS)
    "05-18 (m)\0" // 05-18 (m)
    "06-32 (ft\203)\0" // 06-32 (ftUS)
    "06-32 (m)\0" // 06-32 (m)
    "07 (ft\203)\0" // 07 (ftUS)
    "07 (m)\0" // 07 (m)
    "08 (ft\203)\0" // 08 (ftUS)
    "08 (m)\0" // 08 (m)
    "09 (ft\203)\0" // 09 (ftUS)
    "09 (m)\0" // 09 (m)
    "\312-22-72 (ft\203)\0" // 10-22-72 (ftUS)
    "\312-22-72 (m)\0" // 10-22-72 (m)
    "\3120800401.gsb\0" // 100800401.gsb
    "\312\254_AEP`\006e\020\0" // 10TM_AEP_Forest
    "\312\254_AEP_R\220\026rce\0" // 10TM_AEP_Resource
    "\202 (ft\203)\0" // 11 (ftUS)
    "\202 (m)\0" // 11 (m)
    "12 (ft\203)\0" // 12 (ftUS)
    "12 (m)\0" // 12 (m)
    "12_00\0" // 12_00
    "12@P\037\025l\242\017\350v\232e\0" // 12th Parallel traverse
    "13-47-59 (ft\203)\0" // 13-47-59 (ftUS)
    "13-47-59 (m)\0" // 13-47-59 (m)
    "13_30\0" // 13_30
    "14-28 (ft\203)\0" // 14-28 (ftUS)
    "14-28 (m)\0" // 14-28 (m)
    "14_15\0" // 14_15
    "15-58-78 (ft\203)\0" // 15-58-78 (ftUS)
    "15-58-78 (m)\0" // 15-58-78 (m)
    "15_00\0" // 15_00
    "15_45\0" // 15_45
    "16-70 (ft\203)\0" // 16-70 (ftUS)
    "16-70 (m)\0" // 16-70 (m)
    "16_30\0" // 16_30
    "17 (ft\203)\0" // 17 (ftUS)
    "17 (m)\0" // 17 (m)
    "17_15\0" // 17_15
    "1\0140_Modifi\275\0" // 1830_Modified
    "1865\0" // 1865
    "1866_M#hig\005\0" // 1866_Michigan
    "1880_\325c\0" // 1880_Arc
    "1880_B\207o\245\0" // 1880_Benoit
    "1880_IGN\0" // 1880_IGN
    "1880_I\035l`t\0" // 1880_Intl_Ft
    "1880_RGS\0" // 1880_RGS
    "1880_SGA\0" // 1880_SGA
    "18_00\0" // 18_00
    "18_45\0" // 18_45
    "\031-51 (ft\203)\0" // 19-51 (ftUS)
    "\031-51 (m)\0" // 19-51 (m)
    "\03101_Slov\207\215N=\320\025_Gr\257\0" // 1901_Slovene_National_Grid
    "\03101_Slov\207i\256Gr\257\0" // 1901_Slovenia_Grid
    "\03137_\360i\256Z\003\215IIb\0" // 1937_India_Zone_IIb
    "\03137_U\254_Z\003\21545N\0" // 1937_UTM_Zone_45N
    "\03137_U\254_Z\003\21546N\0" // 1937_UTM_Zone_46N
    "\03142/18\2013)\0" // 1942/18 (3)
    "\03142/21\2013)\0" // 1942/21 (3)
    "\03142/21\2016)\0" // 1942/21 (6)
    "\03142/24\2013)\0" // 1942/24 (3)
    "\03142/\306\2016)\0" // 1942/27 (6)
    "\03142\377}p\336_Se\256M\007c=\006\0" // 1942_Caspian_Sea_Mercator
    "\03154_U\254_Z\003\21546N\0" // 1954_UTM_Zone_46N
    "\03154_U\254_Z\003\21547N\0" // 1954_UTM_Zone_47N
    "\03154_U\254_Z\003\21548N\0" // 1954_UTM_Zone_48N
    "\03158_GUGiK-80\0" // 1958_GUGiK-80
    "\03160_\254_\3126NE\0" // 1960_TM_106NE
    "\03160_U\254_Z\003\21548N\0" // 1960_UTM_Zone_48N
    "\03160_U\254_Z\003\21549N\0" // 1960_UTM_Zone_49N
    "\03161_U\254_Z\003\21521S\0" // 1961_UTM_Zone_21S
    "\03161_U\254_Z\003\21522S\0" // 1961_UTM_Zone_22S
    "\03161_U\254_Z\003\21523S\0" // 1961_UTM_Zone_23S
    "\03161_U\254_Z\003\21524S\0" // 1961_UTM_Zone_24S
    "\03162_\360i\256Z\003\215I\0" // 1962_India_Zone_I
    "\03162_\360i\256Z\003\215IIa\0" // 1962_India_Zone_IIa
    "\03162_U\254_Z\003\21541N\0" // 1962_UTM_Zone_41N
    "\03162_U\254_Z\003\21542N\0" // 1962_UTM_Zone_42N
    "\03162_U\254_Z\003\21543N\0" // 1962_UTM_Zone_43N
    "\03165\273I\0" // 1965 zone I
    "\03165\273II\0" // 1965 zone II
    "\03165\273III\0" // 1965 zone III
    "\03165\273IV\0" // 1965 zone IV
    "\03165\273V\0" // 1965 zone V
    "\03168_Joh\006_Gr\257\0" // 1968_Johor_Grid
    "\03168_K\275\361_\033_P\007l\077_Gr\257\0" // 1968_Kedah_and_Perlis_Grid
    "\03168_K\242\005t\005_Gr\257\0" // 1968_Kelantan_Grid
    "\03168_P\361\005g_Gr\257\0" // 1968_Pahang_Grid
    "\03168_P\007ak_Rev\077\275_Gr\257\0" // 1968_Perak_Revised_Grid
    "\03168_P\023\005g_Gr\257\0" // 1968_Pinang_Grid
    "\03168_S\242\005g\006_Gr\257\0" // 1968_Selangor_Grid
    "\03168_S\212b\341\005_\033_M\242ak\256Gr\257\0" // 1968_Sembilan_and_Melaka_Grid
    "\03168_T\007\207gg\005u_Gr\257\0" // 1968_Terengganu_Grid
    "\03175 Mapp\023g Adju\020me\035\0" // 1975 Mapping Adjustment
    "\03175_U\254_Z\003\21547N\0" // 1975_UTM_Zone_47N
    "\03175_U\254_Z\003\21548N\0" // 1975_UTM_Zone_48N
    "\031\014_\134{\0" // 1983_CSRS
    "\031\014_GK_Z\003\2152\0" // 1983_GK_Zone_2
    "\031\014_GK_Z\003\2152_E-N\0" // 1983_GK_Zone_2_E-N
    "\031\014_GK_Z\003\2153\0" // 1983_GK_Zone_3
    "\031\014_GK_Z\003\2153_E-N\0" // 1983_GK_Zone_3_E-N
    "\031\014_GK_Z\003\2154\0" // 1983_GK_Zone_4
    "\031\014_\334\0" // 1983_HARN
    "1_E-N\0" // 1_E-N
    "\034-43-85 (ft\203)\0" // 20-43-85 (ftUS)
    "\034-43-85 (m)\0" // 20-43-85 (m)
    "\2270 B\006nh\246m $\007\0" // 2000 Bornholm zoner
    "\2270 Jyl\206 $\007\0" // 2000 Jylland zoner
    "\2270|ja\242\206 $\007\0" // 2000 Sjaelland zoner
    "\2271 ext\207d\275\0" // 2001 extended
    "\034\312_U\254_Z\003\21518S\0" // 2010_UTM_Zone_18S
    "\034\312_U\254_Z\003\21519S\0" // 2010_UTM_Zone_19S
    "\03413_U\254_Z\003\21518S\0" // 2013_UTM_Zone_18S
    "\03413_U\254_Z\003\21519S\0" // 2013_UTM_Zone_19S
    "\03416_U\254_Z\003\21518S\0" // 2016_UTM_Zone_18S
    "\03416_U\254_Z\003\21519S\0" // 2016_UTM_Zone_19S
    "\034_15\0" // 20_15
    "21-24-81 (ft\203)\0" // 21-24-81 (ftUS)
    "21-24-81 (m)\0" // 21-24-81 (m)
    "21_45\0" // 21_45
    "23-86 (ft\203)\0" // 23-86 (ftUS)
    "23-86 (m)\0" // 23-86 (m)
    "23_15\0" // 23_15
    "25-50-71 (ft\203)\0" // 25-50-71 (ftUS)
    "25-50-71 (m)\0" // 25-50-71 (m)
    "26 (ft\203)\0" // 26 (ftUS)
    "26 (m)\0" // 26 (m)
    "\306 (ft\203)\0" // 27 (ftUS)
    "\306 (m)\0" // 27 (m)
    "29-80 (ft\203)\0" // 29-80 (ftUS)
    "29-80 (m)\0" // 29-80 (m)
    "30-48 (ft\203)\0" // 30-48 (ftUS)
    "30-48 (m)\0" // 30-48 (m)
    "31-88 (ft\203)\0" // 31-88 (ftUS)
    "31-88 (m)\0" // 31-88 (m)
    "31N_N-zE\0" // 31N_N-zE
    "31N_zE-N\0" // 31N_zE-N
    "32N_N-zE\0" // 32N_N-zE
    "33 (ft\203)\0" // 33 (ftUS)
    "33 (m)\0" // 33 (m)
    "33N_N-zE\0" // 33N_N-zE
    "33N_zE-N\0" // 33N_zE-N
    "34-52 (ft\203)\0" // 34-52 (ftUS)
    "34-52 (m)\0" // 34-52 (m)
    "34N_(N-E)\0" // 34N_(N-E)
    "35-92 (ft\203)\0" // 35-92 (ftUS)
    "35-92 (m)\0" // 35-92 (m)
    "35160622_47161840_E50`00.gsb\0" // 35160622_47161840_E50_F00.gsb
    "35160622_47161840_E50`89.gsb\0" // 35160622_47161840_E50_F89.gsb
    "35160622_47161840`89`00.gsb\0" // 35160622_47161840_F89_F00.gsb
    "35160622_47161840_R40_E50.gsb\0" // 35160622_47161840_R40_E50.gsb
    "35160622_47161840_R40`00.gsb\0" // 35160622_47161840_R40_F00.gsb
    "35160622_47161840_R40`89.gsb\0" // 35160622_47161840_R40_F89.gsb
    "35N_(N-E)\0" // 35N_(N-E)
    "36 (ft\203)\0" // 36 (ftUS)
    "36 (m)\0" // 36 (m)
    "37-64 (ft\203)\0" // 37-64 (ftUS)
    "37-64 (m)\0" // 37-64 (m)
    "38 (ft\203)\0" // 38 (ftUS)
    "38 (m)\0" // 38 (m)
    "39 (ft\203)\0" // 39 (ftUS)
    "39 (m)\0" // 39 (m)
    "3\254_111\0" // 3TM_111
    "3\254_114\0" // 3TM_114
    "3\254_117\0" // 3TM_117
    "3\254_120\0" // 3TM_120
    "3_(E-N)\0" // 3_(E-N)
    "40 (ft\203)\0" // 40 (ftUS)
    "40 (m)\0" // 40 (m)
    "41-49 (ft\203)\0" // 41-49 (ftUS)
    "41-49 (m)\0" // 41-49 (m)
    "42 (ft\203)\0" // 42 (ftUS)
    "42 (m)\0" // 42 (m)
    "42/58\0" // 42/58
    "42/83\0" // 42/83
    "44-57 (ft\203)\0" // 44-57 (ftUS)
    "44-57 (m)\0" // 44-57 (m)
    "45-56 (ft\203)\0" // 45-56 (ftUS)
    "45-56 (m)\0" // 45-56 (m)
    "46-66-75 (ft\203)\0" // 46-66-75 (ftUS)
    "46-66-75 (m)\0" // 46-66-75 (m)
    "4_(E-N)\0" // 4_(E-N)
    "53-55 (ft\203)\0" // 53-55 (ftUS)
    "53-55 (m)\0" // 53-55 (m)
    "54-67 (ft\203)\0" // 54-67 (ftUS)
    "54-67 (m)\0" // 54-67 (m)
    "58_St\007eo_70\0" // 58_Stereo_70
    "5_(E-N)\0" // 5_(E-N)
    "5_NE_dep>c=\275\0" // 5_NE_deprecated
    "6-deg>\010Ga\351s-Krug\007\27310\0" // 6-degree Gauss-Kruger zone 10
    "6-deg>\010Ga\351s-Krug\007\27311\0" // 6-degree Gauss-Kruger zone 11
    "6-deg>\010Ga\351s-Krug\007\27312\0" // 6-degree Gauss-Kruger zone 12
    "6-deg>\010Ga\351s-Krug\007\27313\0" // 6-degree Gauss-Kruger zone 13
    "6-deg>\010Ga\351s-Krug\007\27314\0" // 6-degree Gauss-Kruger zone 14
    "6-deg>\010Ga\351s-Krug\007\27315\0" // 6-degree Gauss-Kruger zone 15
    "6-deg>\010Ga\351s-Krug\007\27316\0" // 6-degree Gauss-Kruger zone 16
    "6-deg>\010Ga\351s-Krug\007\27317\0" // 6-degree Gauss-Kruger zone 17
    "6-deg>\010Ga\351s-Krug\007\27318\0" // 6-degree Gauss-Kruger zone 18
    "6-deg>\010Ga\351s-Krug\007\27319\0" // 6-degree Gauss-Kruger zone 19
    "6-deg>\010Ga\351s-Krug\007\2732\0" // 6-degree Gauss-Kruger zone 2
    "6-deg>\010Ga\351s-Krug\007\27320\0" // 6-degree Gauss-Kruger zone 20
    "6-deg>\010Ga\351s-Krug\007\27321\0" // 6-degree Gauss-Kruger zone 21
    "6-deg>\010Ga\351s-Krug\007\27322\0" // 6-degree Gauss-Kruger zone 22
    "6-deg>\010Ga\351s-Krug\007\27323\0" // 6-degree Gauss-Kruger zone 23
    "6-deg>\010Ga\351s-Krug\007\27324\0" // 6-degree Gauss-Kruger zone 24
    "6-deg>\010Ga\351s-Krug\007\27325\0" // 6-degree Gauss-Kruger zone 25
    "6-deg>\010Ga\351s-Krug\007\27326\0" // 6-degree Gauss-Kruger zone 26
    "6-deg>\010Ga\351s-Krug\007\27327\0" // 6-degree Gauss-Kruger zone 27
    "6-deg>\010Ga\351s-Krug\007\27328\0" // 6-degree Gauss-Kruger zone 28
    "6-deg>\010Ga\351s-Krug\007\27329\0" // 6-degree Gauss-Kruger zone 29
    "6-deg>\010Ga\351s-Krug\007\2733\0" // 6-degree Gauss-Kruger zone 3
    "6-deg>\010Ga\351s-Krug\007\27330\0" // 6-degree Gauss-Kruger zone 30
    "6-deg>\010Ga\351s-Krug\007\27331\0" // 6-degree Gauss-Kruger zone 31
    "6-deg>\010Ga\351s-Krug\007\27332\0" // 6-degree Gauss-Kruger zone 32
    "6-deg>\010Ga\351s-Krug\007\2734\0" // 6-degree Gauss-Kruger zone 4
    "6-deg>\010Ga\351s-Krug\007\2735\0" // 6-degree Gauss-Kruger zone 5
    "6-deg>\010Ga\351s-Krug\007\2736\0" // 6-degree Gauss-Kruger zone 6
    "6-deg>\010Ga\351s-Krug\007\2737\0" // 6-degree Gauss-Kruger zone 7
    "6-deg>\010Ga\351s-Krug\007\2738\0" // 6-degree Gauss-Kruger zone 8
    "6-deg>\010Ga\351s-Krug\007\2739\0" // 6-degree Gauss-Kruger zone 9
    "60 (ft\203)\0" // 60 (ftUS)
    "60 (m)\0" // 60 (m)
    "61-\014 (ft\203)\0" // 61-83 (ftUS)
    "61-\014 (m)\0" // 61-83 (m)
    "62 (ft\203)\0" // 62 (ftUS)
    "62 (m)\0" // 62 (m)
    "63-87 (ft\203)\0" // 63-87 (ftUS)
    "63-87 (m)\0" // 63-87 (m)
    "65 (ft\203)\0" // 65 (ftUS)
    "65 (m)\0" // 65 (m)
    "68-89 (ft\203)\0" // 68-89 (ftUS)
    "68-89 (m)\0" // 68-89 (m)
    "69 (ft\203)\0" // 69 (ftUS)
    "69 (m)\0" // 69 (m)
    "6_NE_dep>c=\275\0" // 6_NE_deprecated
    "73 (ft\203)\0" // 73 (ftUS)
    "73 (m)\0" // 73 (m)
    "74 (ft\203)\0" // 74 (ftUS)
    "74 (m)\0" // 74 (m)
    "76 (ft\203)\0" // 76 (ftUS)
    "76 (m)\0" // 76 (m)
    "77 (ft\203)\0" // 77 (ftUS)
    "77 (m)\0" // 77 (m)
    "79-91 (ft\203)\0" // 79-91 (ftUS)
    "79-91 (m)\0" // 79-91 (m)
    "798 WGS 84\201G2139)\002L=L\231\0" // 798 WGS 84 (G2139) - LatLon 
    "7_NE_dep>c=\275\0" // 7_NE_deprecated
    "82 (ft\203)\0" // 82 (ftUS)
    "82 (m)\0" // 82 (m)
    "84 (ft\203)\0" // 84 (ftUS)
    "84 (m)\0" // 84 (m)
    "8_NE_dep>c=\275\0" // 8_NE_deprecated
    "90 (ft\203)\0" // 90 (ftUS)
    "90 (m)\0" // 90 (m)
    "A66 N=\320\025\20113.09.01).gsb\0" // A66 National (13.09.01).gsb
    "A66_N=\320\025_13_09_01.gsb\0" // A66_National_13_09_01.gsb
    "A\01698\0" // AAD98
    "AB\134{V4.GSB\0" // ABCSRSV4.GSB
    "AB\134{V7.GSB\0" // ABCSRSV7.GSB
    "AB_\134{.DAC\0" // AB_CSRS.DAC
    "A\13421\201ft)\0" // ACS21 (ft)
    "AGD66\002L=L\003\0" // AGD66 - LatLon
    "AGD66\012ACT|t\033\037d Gr\257\0" // AGD66 / ACT Standard Grid
    "AGD66\012AMG\27348\0" // AGD66 / AMG zone 48
    "AGD66\012AMG\27349\0" // AGD66 / AMG zone 49
    "AGD66\012AMG\27350\0" // AGD66 / AMG zone 50
    "AGD66\012AMG\27351\0" // AGD66 / AMG zone 51
    "AGD66\012AMG\27352\0" // AGD66 / AMG zone 52
    "AGD66\012AMG\27353\0" // AGD66 / AMG zone 53
    "AGD66\012AMG\27354\0" // AGD66 / AMG zone 54
    "AGD66\012AMG\27355\0" // AGD66 / AMG zone 55
    "AGD66\012AMG\27356\0" // AGD66 / AMG zone 56
    "AGD66\012AMG\27357\0" // AGD66 / AMG zone 57
    "AGD66\012AMG\27358\0" // AGD66 / AMG zone 58
    "AGD66\012V#gr\25766\0" // AGD66 / Vicgrid66
    "AGD84\002L=L\003\0" // AGD84 - LatLon
    "AGD84\012AMG\27348\0" // AGD84 / AMG zone 48
    "AGD84\012AMG\27349\0" // AGD84 / AMG zone 49
    "AGD84\012AMG\27350\0" // AGD84 / AMG zone 50
    "AGD84\012AMG\27351\0" // AGD84 / AMG zone 51
    "AGD84\012AMG\27352\0" // AGD84 / AMG zone 52
    "AGD84\012AMG\27353\0" // AGD84 / AMG zone 53
    "AGD84\012AMG\27354\0" // AGD84 / AMG zone 54
    "AGD84\012AMG\27355\0" // AGD84 / AMG zone 55
    "AGD84\012AMG\27356\0" // AGD84 / AMG zone 56
    "AGD84\012AMG\27357\0" // AGD84 / AMG zone 57
    "AGD84\012AMG\27358\0" // AGD84 / AMG zone 58
    "AGD\21166_ACT_St\033\037d_Gr\257\0" // AGD_1966_ACT_Standard_Grid
    "AGD\21166_AMG_Z\003\215\0" // AGD_1966_AMG_Zone_
    "AGD\21166_VICGRID\0" // AGD_1966_VICGRID
    "AGD\21184_AMG_Z\003\215\0" // AGD_1984_AMG_Zone_
    "ALB86\0" // ALB86
    "\252AMCO_AAA-KSAGRF_6.tac\0" // ARAMCO_AAA-KSAGRF_6.tac
    "ASTRO DOS 71/4\0" // ASTRO DOS 71/4
    "ATF\0" // ATF
    "ATF\201P\037\077)\0" // ATF (Paris)
    "ATF\201P\037\077*\205d d\010Gu\007>\0" // ATF (Paris) / Nord de Guerre
    "ATF_P\037\077\0" // ATF_Paris
    "ATRF\03414\0" // ATRF2014
    "ATRF\03414\002L=L\003\0" // ATRF2014 - LatLon
    "ATS77\0" // ATS77
    "ATS77\002L=L\003\0" // ATS77 - LatLon
    "ATS77\012M\254 Nov\027Sc\337\315^4\0" // ATS77 / MTM Nova Scotia zone 4
    "ATS77\012M\254 Nov\027Sc\337\315^5\0" // ATS77 / MTM Nova Scotia zone 5
    "ATS77\012\357 Brunsw#k|t\007eog\350\237#\201ATS77)\0" // ATS77 / New Brunswick Stereographic (ATS77)
    "ATS77\012Pr\023c\010Edw\037d \316l.|t\007eog\350\237#\201ATS77)\0" // ATS77 / Prince Edward Isl. Stereographic (ATS77)
    "ATS77\012U\254\27319N\0" // ATS77 / UTM zone 19N
    "ATS77\012U\254\273\034N\0" // ATS77 / UTM zone 20N
    "ATS\21177\0" // ATS_1977
    "ATS\21177_M\254_4_Nov\256Sc\337ia\0" // ATS_1977_MTM_4_Nova_Scotia
    "ATS\21177_M\254_5_Nov\256Sc\337ia\0" // ATS_1977_MTM_5_Nova_Scotia
    "ATS\21177_\357_Brunsw#k_St\007eog\350\237#\0" // ATS_1977_New_Brunswick_Stereographic
    "ATS\21177_U\254_Z\003\21519N\0" // ATS_1977_UTM_Zone_19N
    "ATS\21177_U\254_Z\003\215\034N\0" // ATS_1977_UTM_Zone_20N
    "AT_GIS_GRID.gsb\0" // AT_GIS_GRID.gsb
    "AT_GIS_GRID_\03421_09_28.gsb\0" // AT_GIS_GRID_2021_09_28.gsb
    "Ab\310vA96_\034\034 Gr\257\0" // AbInvA96_2020 Grid
    "Ab\310vA96_\034\034 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // AbInvA96_2020 Intermediate Reference Frame
    "Ab\310vA96_\034\034-IRF\0" // AbInvA96_2020-IRF
    "Ab\310vA96_\034\034-\254\0" // AbInvA96_2020-TM
    "Ab\310vA96_\034\034_Gr\257\0" // AbInvA96_2020_Grid
    "Ab\310vA96_\034\034_I\035\007m\275i=\215Ref\007\207ce`r\225e\0" // AbInvA96_2020_Intermediate_Reference_Frame
    "Ab\257j\005\31787\0" // Abidjan 1987
    "Ab\257j\005\31787\012\254 5 NW\0" // Abidjan 1987 / TM 5 NW
    "Ab\257j\005\31787\012U\254\27329N\0" // Abidjan 1987 / UTM zone 29N
    "Ab\257j\005\31787\012U\254\27330N\0" // Abidjan 1987 / UTM zone 30N
    "Ab\257j\005\21187\0" // Abidjan_1987
    "Ab\257j\005\21187_\254_5_NW\0" // Abidjan_1987_TM_5_NW
    "Ab\257j\005\21187_U\254_Z\003\21529N\0" // Abidjan_1987_UTM_Zone_29N
    "Ab\257j\005\21187_U\254_Z\003\21530N\0" // Abidjan_1987_UTM_Zone_30N
    "Acc\350\0" // Accra
    "Acc\350\012Gh\005\027N=\320\230Gr\257\0" // Accra / Ghana National Grid
    "Acc\350\012\254 1 NW\0" // Accra / TM 1 NW
    "Accr\256Gh\005\256Gr\257\0" // Accra_Ghana_Grid
    "Accr\256\254_1_NW\0" // Accra_TM_1_NW
    "Ad\225s_(ft\203)\0" // Adams_(ftUS)
    "Ad\225s_(m)\0" // Adams_(m)
    "Ad\225s_\033_Juneau\372\0" // Adams_and_Juneau_Feet
    "Ad\225s_\033_Juneau_M\313\0" // Adams_and_Juneau_Meters
    "Ad\207\31725\0" // Aden 1925
    "Ad\207\21125\0" // Aden_1925
    "Ad\023d\005\0" // Adindan
    "Ad\023d\005\012U\254\27335N\0" // Adindan / UTM zone 35N
    "Ad\023d\005\012U\254\27336N\0" // Adindan / UTM zone 36N
    "Ad\023d\005\012U\254\27337N\0" // Adindan / UTM zone 37N
    "Ad\023d\005\012U\254\27338N\0" // Adindan / UTM zone 38N
    "Ad\023d\005_U\254_Z\003\215\0" // Adindan_UTM_Zone_
    "Adju\020me\035\21137\0" // Adjustment_1937
    "Afgh\005i\020\005\0" // Afghanistan
    "Afgooye\0" // Afgooye
    "Afgooy\010\011U\254\27338N\0" // Afgooye / UTM zone 38N
    "Afgooy\010\011U\254\27339N\0" // Afgooye / UTM zone 39N
    "Afgooy\215U\254_Z\003\21538N\0" // Afgooye_UTM_Zone_38N
    "Afgooy\215U\254_Z\003\21539N\0" // Afgooye_UTM_Zone_39N
    "Afr\34512@p\037\025l\242 N\0" // Africa - 12th parallel N
    "Afr\345Alg\007ia\277M\006occ\013\253Tun\077ia\0" // Africa - Algeria, Morocco and Tunisia
    "Afr\345Ang\246\027(Cab\023da)\374DR\327\003g\013(Zai>)\002coa\020\025\0" // Africa - Angola (Cabinda) and DR Congo (Zaire) - coastal
    "Afr\345Ang\246\027(Cab\023da)\374DR\327\003g\013(Zai>)\002\214f~e\0" // Africa - Angola (Cabinda) and DR Congo (Zaire) - offshore
    "Afr\345B\337sw\005\027\253Z\225b\213w\267\24324\015\0" // Africa - Botswana and Zambia - west of 24°E
    "Afr\345B\337sw\005a\277Esw=\023i\277L\220o\024\013\253\370Afr#a\0" // Africa - Botswana, Eswatini, Lesotho and South Africa
    "Afr\345B\337sw\005a\277Esw=\023i\277L\220o\024o\277M\025awi\277Z\225bia\277Zimbabwe\0" // Africa - Botswana, Eswatini, Lesotho, Malawi, Zambia, Zimbabwe
    "Afr\345B\337sw\005a\277M\025awi\277Z\225bia\277Zimbabwe\0" // Africa - Botswana, Malawi, Zambia, Zimbabwe
    "Afr\345B\337sw\005a\277Z\225b\315\253Zimbabw\21624\20030\015\0" // Africa - Botswana, Zambia and Zimbabwe - 24°E to 30°E
    "Afr\345B\224k\023\027F}\013\033|W Nig\007\0" // Africa - Burkina Faso and SW Niger
    "Afr\345B\224undi\277K\207ya\277Rw\033a\277T\005z\005\315\253Ug\033a\0" // Africa - Burundi, Kenya, Rwanda, Tanzania and Uganda
    "Afr\345Er\245>a\277E\024iop\315\033|ud\005\00236\20042\015\0" // Africa - Eritrea, Ethiopia and Sudan - 36°E to 42°E
    "Afr\345Er\245>a\277E\024iopia,|\250Sud\005\374Sud\005\0" // Africa - Eritrea, Ethiopia, South Sudan and Sudan
    "Afr\345E\024iop\315\033|ud\005\00230\20036\015\0" // Africa - Ethiopia and Sudan - 30°E to 36°E
    "Afr\345K\207y\027\253T\005z\005ia\0" // Africa - Kenya and Tanzania
    "Afr\345K\207y\027\253T\005z\005\213s\250\243equ=\006\374e\314\24336\015\0" // Africa - Kenya and Tanzania - south of equator and east of 36°E
    "Afr\345K\207y\027\253Ug\033\030n\006@\243equ=\006\37430\20036\015\0" // Africa - Kenya and Uganda - north of equator and 30°E to 36°E
    "Afr\345K\207ya\277T\005z\005\315\253Ug\033\030s\250\243equ=\006\37430\20036\015\0" // Africa - Kenya, Tanzania and Uganda - south of equator and 30°E to 36°E
    "Afr\345M\025awi\277Z\225b\315\253Zimbabw\216e\314\24330\015\0" // Africa - Malawi, Zambia and Zimbabwe - east of 30°E
    "Afr\345M\006occ\013\253We\020\007n|\361\037\030\236\0" // Africa - Morocco and Western Sahara - onshore
    "Afr\345\370Afr#a\277L\220o\024\013\253Esw=\023i.\0" // Africa - South Africa, Lesotho and Eswatini.
    "Afr\345\370Sud\005 \033|ud\005\00224\20030\015\0" // Africa - South Sudan and Sudan - 24°E to 30°E
    "Afr\345\370Sud\005 \033|ud\005\356\0" // Africa - South Sudan and Sudan onshore
    "Afr\345T\005z\005\315\253Ug\033\030s\250\243equ=\006\374w\267\24330\015\0" // Africa - Tanzania and Uganda - south of equator and west of 30°E
    "Ag\226ez\0" // Agadez
    "A\023 \242 Abd\0" // Ain el Abd
    "A\023 \242 Abd\012\325\225c\013L\225b\007t\0" // Ain el Abd / Aramco Lambert
    "A\023 \242 Abd\012B\361\350\023 Gr\257\0" // Ain el Abd / Bahrain Grid
    "A\023 \242 Abd\012U\254\27336N\0" // Ain el Abd / UTM zone 36N
    "A\023 \242 Abd\012U\254\27337N\0" // Ain el Abd / UTM zone 37N
    "A\023 \242 Abd\012U\254\27338N\0" // Ain el Abd / UTM zone 38N
    "A\023 \242 Abd\012U\254\27339N\0" // Ain el Abd / UTM zone 39N
    "A\023 \242 Abd\012U\254\27340N\0" // Ain el Abd / UTM zone 40N
    "A\023 \242 Abd\31770\0" // Ain el Abd 1970
    "A\023_\242_Abd\21170\0" // Ain_el_Abd_1970
    "A\023_\242_Abd_\325\225co_L\225b\007t\0" // Ain_el_Abd_Aramco_Lambert
    "A\023_\242_Abd_U\254_Z\003\215\0" // Ain_el_Abd_UTM_Zone_
    "A\340\2041830\0" // Airy 1830
    "A\340\204Modifi\275 1849\0" // Airy Modified 1849
    "A\340y_1830\0" // Airy_1830
    "A\340y_Modifi\275\0" // Airy_Modified
    "Alab\225\027\134\306 E\314$e\0" // Alabama CS27 East zone
    "Alab\225\027\134\306 W\267$e\0" // Alabama CS27 West zone
    "Alab\225\256Ea\020\2720\3121\0" // Alabama_East_FIPS_0101
    "Alab\225\256We\020\2720\3122\0" // Alabama_West_FIPS_0102
    "Al}k\027Alb\232\201m\313)\0" // Alaska Albers (meters)
    "Al}k\027\134\306\2731\0" // Alaska CS27 zone 1
    "Al}k\027\134\306\27310\0" // Alaska CS27 zone 10
    "Al}k\027\134\306\2732\0" // Alaska CS27 zone 2
    "Al}k\027\134\306\2733\0" // Alaska CS27 zone 3
    "Al}k\027\134\306\2734\0" // Alaska CS27 zone 4
    "Al}k\027\134\306\2735\0" // Alaska CS27 zone 5
    "Al}k\027\134\306\2736\0" // Alaska CS27 zone 6
    "Al}k\027\134\306\2737\0" // Alaska CS27 zone 7
    "Al}k\027\134\306\2738\0" // Alaska CS27 zone 8
    "Al}k\027\134\306\2739\0" // Alaska CS27 zone 9
    "Al}k\256\312\2725010\0" // Alaska_10_FIPS_5010
    "Al}k\2561\2725001\0" // Alaska_1_FIPS_5001
    "Al}k\2562\2725002\0" // Alaska_2_FIPS_5002
    "Al}k\2563\2725003\0" // Alaska_3_FIPS_5003
    "Al}k\2564\2725004\0" // Alaska_4_FIPS_5004
    "Al}k\2565\2725005\0" // Alaska_5_FIPS_5005
    "Al}k\2566\2725006\0" // Alaska_6_FIPS_5006
    "Al}k\2567\2725007\0" // Alaska_7_FIPS_5007
    "Al}k\2568\2725008\0" // Alaska_8_FIPS_5008
    "Al}k\2569\2725009\0" // Alaska_9_FIPS_5009
    "Al}k\256Alb\232\0" // Alaska_Albers
    "Al}k\256Alb\232\372\0" // Alaska_Albers_Feet
    "Alb\005ia\0" // Albania
    "Alb\005\213n\006@\24341\00418'N\374e\314\243\031\00409'E\0" // Albania - north of 41°18'N and east of 19°09'E
    "Alb\005\213\236\0" // Albania - onshore
    "Alb\005i\256\03410\0" // Albania_2010
    "Alb\005i\256LCC_\03410\0" // Albania_LCC_2010
    "Alb\005\336\31787\0" // Albanian 1987
    "Alb\005\336\31787\012Ga\351s Krug\007\2734\0" // Albanian 1987 / Gauss Kruger zone 4
    "Alb\005\336\31787\012Ga\351s-Krug\007\2734\0" // Albanian 1987 / Gauss-Kruger zone 4
    "Alb\005\336\21187\0" // Albanian_1987
    "Alb\005\336\21187_GK_Z\003\2154\0" // Albanian_1987_GK_Zone_4
    "Alb\005\204Gr\257 \03420\0" // Albany Grid 2020
    "Alb\007t\027\312-deg>\010\254\201F\006e\020)\0" // Alberta 10-degree TM (Forest)
    "Alb\007t\027\312-deg>\010\254\201R\220\026rce)\0" // Alberta 10-degree TM (Resource)
    "Alb\007t\0273-deg>\010\254 >f\007\207c\010m\007\257\336 \2021 W\0" // Alberta 3-degree TM reference meridian 111 W
    "Alb\007t\0273-deg>\010\254 >f\007\207c\010m\007\257\336 \2024 W\0" // Alberta 3-degree TM reference meridian 114 W
    "Alb\007t\0273-deg>\010\254 >f\007\207c\010m\007\257\336 \2027 W\0" // Alberta 3-degree TM reference meridian 117 W
    "Alb\007t\0273-deg>\010\254 >f\007\207c\010m\007\257\336 1\034 W\0" // Alberta 3-degree TM reference meridian 120 W
    "Alg\007ia\0" // Algeria
    "Alg\007\2130\2006\015\0" // Algeria - 0°E to 6°E
    "Alg\007\21331\00430'N\02234\00439'N\0" // Algeria - 31°30'N to 34°39'N
    "Alg\007\21332\004N\02234\00439'N\0" // Algeria - 32°N to 34°39'N
    "Alg\007\2136\2210!\0" // Algeria - 6°W to 0°W
    "Alg\007\213Ahn\036 l#\207c\010\037ea\0" // Algeria - Ahnet licence area
    "Alg\007\213A\023 Ts\341a\0" // Algeria - Ain Tsila
    "Alg\007\213Di\375#t 3\0" // Algeria - District 3
    "Alg\007\213H}si B\340 Reikaz\0" // Algeria - Hassi Bir Reikaz
    "Alg\007\213H}si M\220sa\026d\0" // Algeria - Hassi Messaoud
    "Alg\007\213H}si M\026\023\027l#\207c\010\037ea\0" // Algeria - Hassi Mouina licence area
    "Alg\007\213\310 Am\207}\0" // Algeria - In Amenas
    "Alg\007\213e\314\2436\015\0" // Algeria - east of 6°E
    "Alg\007\213n\006@\24332\004N\0" // Algeria - north of 32°N
    "Alg\007\213n\006@\24334\00439'N\0" // Algeria - north of 34°39'N
    "Alg\007\213\236\0" // Algeria - onshore
    "Alg\007\213w\267\2436!\0" // Algeria - west of 6°W
    "All\207_(ft\203)\0" // Allen_(ftUS)
    "All\207_(m)\0" // Allen_(m)
    "Am\007#\005|\225oa\0" // American Samoa
    "Am\007#\005|\225o\0302 ma\023 \077\206 gr\026ps\0" // American Samoa - 2 main island groups
    "Am\007#\005|\225o\0302 ma\023 \077\206 gr\026ps\374Ros\010\335\0" // American Samoa - 2 main island groups and Rose Island
    "Am\007#\005|\225o\030Ofu\277Ol\220eg\027\253Ta'u \077\206s\0" // American Samoa - Ofu, Olesega and Ta'u islands
    "Am\007#\005|\225o\030Tutu\341\027\077\206\0" // American Samoa - Tutuila island
    "Am\007#\005|\225o\027\03162\0" // American Samoa 1962
    "Am\007#\005|\225o\027\03162\012Am\007#\005|\225o\027L\225b\007t\0" // American Samoa 1962 / American Samoa Lambert
    "Am\007#\005_S\225oa\21162\0" // American_Samoa_1962
    "Am\232fo\006t\0" // Amersfoort
    "Am\232fo\006t\012RD \357\0" // Amersfoort / RD New
    "Am\232fo\006t\012RD O\321\0" // Amersfoort / RD Old
    "Am\232fo\006t\022ET{89\2011)\0" // Amersfoort to ETRS89 (1)
    "Amm}s\025ik\31758\0" // Ammassalik 1958
    "Amm}s\025ik\31758\012G>\207\206\2737 ea\020\0" // Ammassalik 1958 / Greenland zone 7 east
    "Amm}s\025ik\21158\0" // Ammassalik_1958
    "Amt\350k \324E\314C\006r\257\006\327o\006d\023=\010Sy\020\212 \03421\201I\035\007n=\320\230f\234)\0" // Amtrak North East Corridor Coordinate System 2021 (International feet)
    "Am\224i\377\340cu\245\0" // Amuri_Circuit
    "Anci\207n\010Tr\336gul=i\231Fr\005ca\077\010(P\037\077)\0" // Ancienne Triangulation Francaise (Paris)
    "And\225\005\374N#ob\037 \333F \254\0" // Andaman and Nicobar NSF TM
    "And\225\005_\033_N#ob\037_\335s\0" // Andaman_and_Nicobar_Islands
    "Andhr\027Pr\226e< \333F LCC\0" // Andhra Pradesh NSF LCC
    "Andhr\256Pr\226e<\0" // Andhra_Pradesh
    "Ang\246\03012\3548\015\0" // Angola - 12°E to 18°E
    "Ang\246\030Ang\246\027prop\007\0" // Angola - Angola proper
    "Ang\246\030Ang\246\027prop\007\00212\3548\015\0" // Angola - Angola proper - 12°E to 18°E
    "Ang\246\030Ang\246\027prop\007\002\214f~e\0" // Angola - Angola proper - offshore
    "Ang\246\030Ang\246\027prop\007\002\214f~\216w\267\24312\015\0" // Angola - Angola proper - offshore - west of 12°E
    "Ang\246\030Cab\023da\0" // Angola - Cabinda
    "Ang\246\030Cab\023d\027\214f~e\0" // Angola - Cabinda offshore
    "Ang\246\030e\314\24318\015\0" // Angola - east of 18°E
    "Ang\246\030\214f~\010block 15\0" // Angola - offshore block 15
    "Ang\246\030\214f~\010block 2\0" // Angola - offshore block 2
    "Ang\246\030\214f~\010block 3\0" // Angola - offshore block 3
    "Ang\246\030\214f~\010block 5\0" // Angola - offshore block 5
    "Ang\246\030\214f~\010block 7\0" // Angola - offshore block 7
    "Ang\246\030\214f~\010blocks 1 16\37418\0" // Angola - offshore blocks 1 16 and 18
    "Ang\246\030\214f~\010blocks 1\37416\0" // Angola - offshore blocks 1 and 16
    "Ang\246\030\214f~\010blocks 2 3 17-18\37431-33\0" // Angola - offshore blocks 2 3 17-18 and 31-33
    "Ang\246\030\214f~\010blocks 3 7 15\37417\0" // Angola - offshore blocks 3 7 15 and 17
    "Ang\246\030\214f~\010blocks 7 8 24 + WGC spec\0" // Angola - offshore blocks 7 8 24 + WGC spec
    "Ang\246\030\214f~\010n\006@\2438\376\0" // Angola - offshore north of 8°S
    "Ang\246\030\236\0" // Angola - onshore
    "Ang\246\030w\267\24312\015\0" // Angola - west of 12°E
    "Angu\341l\030\236\0" // Anguilla - onshore
    "Angu\341l\027\03157\0" // Anguilla 1957
    "Angu\341l\027\03157\012Br\245i< W\267\360i\220 Gr\257\0" // Anguilla 1957 / British West Indies Grid
    "Angu\341la\21157\0" // Anguilla_1957
    "Angu\341la\21157_Br\245i<_We\020_\360i\220_Gr\257\0" // Anguilla_1957_British_West_Indies_Grid
    "Ann\2561\21165\0" // Anna_1_1965
    "A\035\037\322#a\0" // Antarctica
    "A\035\037\322\34560\376\02264\376\27748\22136!\201\26623-24)\0" // Antarctica - 60°S to 64°S, 48°W to 36°W (SP23-24)
    "A\035\037\322\34560\376\02264\376\27760\22148!\201\26621-22)\0" // Antarctica - 60°S to 64°S, 60°W to 48°W (SP21-22)
    "A\035\037\322\34560\376\02264\376\27772\22160!\201\266\031-\034)\0" // Antarctica - 60°S to 64°S, 72°W to 60°W (SP19-20)
    "A\035\037\322\34564\376\02268\376\277\3128\354\034\015\201SQ49-50)\0" // Antarctica - 64°S to 68°S, 108°E to 120°E (SQ49-50)
    "A\035\037\322\34564\376\02268\376\2771\034\35432\015\201SQ51-52)\0" // Antarctica - 64°S to 68°S, 120°E to 132°E (SQ51-52)
    "A\035\037\322\34564\376\02268\376\277132\35444\015\201SQ53-54)\0" // Antarctica - 64°S to 68°S, 132°E to 144°E (SQ53-54)
    "A\035\037\322\34564\376\02268\376\277144\35456\015\201SQ55-56)\0" // Antarctica - 64°S to 68°S, 144°E to 156°E (SQ55-56)
    "A\035\037\322\34564\376\02268\376\277156\35468\015\201SQ57-58)\0" // Antarctica - 64°S to 68°S, 156°E to 168°E (SQ57-58)
    "A\035\037\322\34564\376\02268\376\277180\221168!\201SQ01-02)\0" // Antarctica - 64°S to 68°S, 180°W to 168°W (SQ01-02)
    "A\035\037\322\34564\376\02268\376\27736\20048\015\201SQ37-38)\0" // Antarctica - 64°S to 68°S, 36°E to 48°E (SQ37-38)
    "A\035\037\322\34564\376\02268\376\27748\20060\015\201SQ39-40)\0" // Antarctica - 64°S to 68°S, 48°E to 60°E (SQ39-40)
    "A\035\037\322\34564\376\02268\376\27760\20072\015\201SQ41-42)\0" // Antarctica - 64°S to 68°S, 60°E to 72°E (SQ41-42)
    "A\035\037\322\34564\376\02268\376\27760\22148!\201SQ21-22)\0" // Antarctica - 64°S to 68°S, 60°W to 48°W (SQ21-22)
    "A\035\037\322\34564\376\02268\376\27772\20084\015\201SQ43-44)\0" // Antarctica - 64°S to 68°S, 72°E to 84°E (SQ43-44)
    "A\035\037\322\34564\376\02268\376\27772\22160!\201SQ\031-\034)\0" // Antarctica - 64°S to 68°S, 72°W to 60°W (SQ19-20)
    "A\035\037\322\34564\376\02268\376\27784\20096\015\201SQ45-46)\0" // Antarctica - 64°S to 68°S, 84°E to 96°E (SQ45-46)
    "A\035\037\322\34564\376\02268\376\27796\200\3128\015\201SQ47-48)\0" // Antarctica - 64°S to 68°S, 96°E to 108°E (SQ47-48)
    "A\035\037\322\34568\376\02272\376\2770\3542\015\201SR31-32)\0" // Antarctica - 68°S to 72°S, 0°E to 12°E (SR31-32)
    "A\035\037\322\34568\376\02272\376\277\3128\354\034\015\201SR49-50)\0" // Antarctica - 68°S to 72°S, 108°E to 120°E (SR49-50)
    "A\035\037\322\34568\376\02272\376\277\3128\22196!\201SR13-14)\0" // Antarctica - 68°S to 72°S, 108°W to 96°W (SR13-14)
    "A\035\037\322\34568\376\02272\376\2771\034\35432\015\201SR51-52)\0" // Antarctica - 68°S to 72°S, 120°E to 132°E (SR51-52)
    "A\035\037\322\34568\376\02272\376\27712\20024\015\201SR33-34)\0" // Antarctica - 68°S to 72°S, 12°E to 24°E (SR33-34)
    "A\035\037\322\34568\376\02272\376\27712\2210!\201SR29-30)\0" // Antarctica - 68°S to 72°S, 12°W to 0°W (SR29-30)
    "A\035\037\322\34568\376\02272\376\277132\35444\015\201SR53-54)\0" // Antarctica - 68°S to 72°S, 132°E to 144°E (SR53-54)
    "A\035\037\322\34568\376\02272\376\277144\35456\015\201SR55-56)\0" // Antarctica - 68°S to 72°S, 144°E to 156°E (SR55-56)
    "A\035\037\322\34568\376\02272\376\277156\35468\015\201SR57-58)\0" // Antarctica - 68°S to 72°S, 156°E to 168°E (SR57-58)
    "A\035\037\322\34568\376\02272\376\277168\35480\015\201SR59-60)\0" // Antarctica - 68°S to 72°S, 168°E to 180°E (SR59-60)
    "A\035\037\322\34568\376\02272\376\27724\20036\015\201SR35-36)\0" // Antarctica - 68°S to 72°S, 24°E to 36°E (SR35-36)
    "A\035\037\322\34568\376\02272\376\27724\22112!\201SR\306-28)\0" // Antarctica - 68°S to 72°S, 24°W to 12°W (SR27-28)
    "A\035\037\322\34568\376\02272\376\27736\20048\015\201SR37-38)\0" // Antarctica - 68°S to 72°S, 36°E to 48°E (SR37-38)
    "A\035\037\322\34568\376\02272\376\27748\20060\015\201SR39-40)\0" // Antarctica - 68°S to 72°S, 48°E to 60°E (SR39-40)
    "A\035\037\322\34568\376\02272\376\27760\20072\015\201SR41-42)\0" // Antarctica - 68°S to 72°S, 60°E to 72°E (SR41-42)
    "A\035\037\322\34568\376\02272\376\27772\20084\015\201SR43-44)\0" // Antarctica - 68°S to 72°S, 72°E to 84°E (SR43-44)
    "A\035\037\322\34568\376\02272\376\27772\22160!\201SR\031-\034)\0" // Antarctica - 68°S to 72°S, 72°W to 60°W (SR19-20)
    "A\035\037\322\34568\376\02272\376\27784\20096\015\201SR45-46)\0" // Antarctica - 68°S to 72°S, 84°E to 96°E (SR45-46)
    "A\035\037\322\34568\376\02272\376\27784\22172!\201SR17-18)\0" // Antarctica - 68°S to 72°S, 84°W to 72°W (SR17-18)
    "A\035\037\322\34568\376\02272\376\27796\200\3128\015\201SR47-48)\0" // Antarctica - 68°S to 72°S, 96°E to 108°E (SR47-48)
    "A\035\037\322\34568\376\02272\376\27796\22184!\201SR15-16)\0" // Antarctica - 68°S to 72°S, 96°W to 84°W (SR15-16)
    "A\035\037\322\34572\376\02276\376\2770\3548\015\201SS31-33)\0" // Antarctica - 72°S to 76°S, 0°E to 18°E (SS31-33)
    "A\035\037\322\34572\376\02276\376\277\3128\35426\015\201SS49-51)\0" // Antarctica - 72°S to 76°S, 108°E to 126°E (SS49-51)
    "A\035\037\322\34572\376\02276\376\277\3128\22190!\201SS13-15)\0" // Antarctica - 72°S to 76°S, 108°W to 90°W (SS13-15)
    "A\035\037\322\34572\376\02276\376\277126\35444\015\201SS52-54)\0" // Antarctica - 72°S to 76°S, 126°E to 144°E (SS52-54)
    "A\035\037\322\34572\376\02276\376\277126\221\3128!\201SS\312-12)\0" // Antarctica - 72°S to 76°S, 126°W to 108°W (SS10-12)
    "A\035\037\322\34572\376\02276\376\277144\35462\015\201SS55-57)\0" // Antarctica - 72°S to 76°S, 144°E to 162°E (SS55-57)
    "A\035\037\322\34572\376\02276\376\277144\221126!\201SS07-09)\0" // Antarctica - 72°S to 76°S, 144°W to 126°W (SS07-09)
    "A\035\037\322\34572\376\02276\376\277162\35480\015\201SS58-60)\0" // Antarctica - 72°S to 76°S, 162°E to 180°E (SS58-60)
    "A\035\037\322\34572\376\02276\376\277162\221144!\201SS04-06)\0" // Antarctica - 72°S to 76°S, 162°W to 144°W (SS04-06)
    "A\035\037\322\34572\376\02276\376\27718\20036\015\201SS34-36)\0" // Antarctica - 72°S to 76°S, 18°E to 36°E (SS34-36)
    "A\035\037\322\34572\376\02276\376\27718\2210!\201SS28-30)\0" // Antarctica - 72°S to 76°S, 18°W to 0°W (SS28-30)
    "A\035\037\322\34572\376\02276\376\27736\20054\015\201SS37-39)\0" // Antarctica - 72°S to 76°S, 36°E to 54°E (SS37-39)
    "A\035\037\322\34572\376\02276\376\27736\22118!\201SS25-\306)\0" // Antarctica - 72°S to 76°S, 36°W to 18°W (SS25-27)
    "A\035\037\322\34572\376\02276\376\27754\20072\015\201SS40-42)\0" // Antarctica - 72°S to 76°S, 54°E to 72°E (SS40-42)
    "A\035\037\322\34572\376\02276\376\27772\20090\015\201SS43-45)\0" // Antarctica - 72°S to 76°S, 72°E to 90°E (SS43-45)
    "A\035\037\322\34572\376\02276\376\27772\22154!\201SS\031-21)\0" // Antarctica - 72°S to 76°S, 72°W to 54°W (SS19-21)
    "A\035\037\322\34572\376\02276\376\27790\200\3128\015\201SS46-48)\0" // Antarctica - 72°S to 76°S, 90°E to 108°E (SS46-48)
    "A\035\037\322\34572\376\02276\376\27790\22172!\201SS16-18)\0" // Antarctica - 72°S to 76°S, 90°W to 72°W (SS16-18)
    "A\035\037\322\34576\376\02280\376\277\3128\35432\015\201ST49-52)\0" // Antarctica - 76°S to 80°S, 108°E to 132°E (ST49-52)
    "A\035\037\322\34576\376\02280\376\277\3128\22184!\201ST13-16)\0" // Antarctica - 76°S to 80°S, 108°W to 84°W (ST13-16)
    "A\035\037\322\34576\376\02280\376\27712\20036\015\201ST33-36)\0" // Antarctica - 76°S to 80°S, 12°E to 36°E (ST33-36)
    "A\035\037\322\34576\376\02280\376\27712\22112\015\201ST29-32)\0" // Antarctica - 76°S to 80°S, 12°W to 12°E (ST29-32)
    "A\035\037\322\34576\376\02280\376\277132\35456\015\201ST53-56)\0" // Antarctica - 76°S to 80°S, 132°E to 156°E (ST53-56)
    "A\035\037\322\34576\376\02280\376\277132\221\3128!\201ST09-12)\0" // Antarctica - 76°S to 80°S, 132°W to 108°W (ST09-12)
    "A\035\037\322\34576\376\02280\376\277156\35480\015\201ST57-60)\0" // Antarctica - 76°S to 80°S, 156°E to 180°E (ST57-60)
    "A\035\037\322\34576\376\02280\376\277156\221132!\201ST05-08)\0" // Antarctica - 76°S to 80°S, 156°W to 132°W (ST05-08)
    "A\035\037\322\34576\376\02280\376\277180\221156!\201ST01-04)\0" // Antarctica - 76°S to 80°S, 180°W to 156°W (ST01-04)
    "A\035\037\322\34576\376\02280\376\27736\20060\015\201ST37-40)\0" // Antarctica - 76°S to 80°S, 36°E to 60°E (ST37-40)
    "A\035\037\322\34576\376\02280\376\27736\22112!\201ST25-28)\0" // Antarctica - 76°S to 80°S, 36°W to 12°W (ST25-28)
    "A\035\037\322\34576\376\02280\376\27760\20084\015\201ST41-44)\0" // Antarctica - 76°S to 80°S, 60°E to 84°E (ST41-44)
    "A\035\037\322\34576\376\02280\376\27760\22136!\201ST21-24)\0" // Antarctica - 76°S to 80°S, 60°W to 36°W (ST21-24)
    "A\035\037\322\34576\376\02280\376\27784\200\3128\015\201ST45-48)\0" // Antarctica - 76°S to 80°S, 84°E to 108°E (ST45-48)
    "A\035\037\322\34576\376\02280\376\27784\22160!\201ST17-\034)\0" // Antarctica - 76°S to 80°S, 84°W to 60°W (ST17-20)
    "A\035\037\322\34580\376\02284\376\2770\20030\015\201SU31-35)\0" // Antarctica - 80°S to 84°S, 0°E to 30°E (SU31-35)
    "A\035\037\322\34580\376\02284\376\2771\034\35450\015\201SU51-55)\0" // Antarctica - 80°S to 84°S, 120°E to 150°E (SU51-55)
    "A\035\037\322\34580\376\02284\376\2771\034\22190!\201SU\202-15)\0" // Antarctica - 80°S to 84°S, 120°W to 90°W (SU11-15)
    "A\035\037\322\34580\376\02284\376\277150\35480\004\201SU56-60)\0" // Antarctica - 80°S to 84°S, 150°E to 180° (SU56-60)
    "A\035\037\322\34580\376\02284\376\277150\2211\034!\201SU06-\312)\0" // Antarctica - 80°S to 84°S, 150°W to 120°W (SU06-10)
    "A\035\037\322\34580\376\02284\376\277180\221150!\201SU01-05)\0" // Antarctica - 80°S to 84°S, 180°W to 150°W (SU01-05)
    "A\035\037\322\34580\376\02284\376\27730\20060\015\201SU36-40)\0" // Antarctica - 80°S to 84°S, 30°E to 60°E (SU36-40)
    "A\035\037\322\34580\376\02284\376\27730\2210!\201SU26-30)\0" // Antarctica - 80°S to 84°S, 30°W to 0°W (SU26-30)
    "A\035\037\322\34580\376\02284\376\27760\20090\015\201SU41-45)\0" // Antarctica - 80°S to 84°S, 60°E to 90°E (SU41-45)
    "A\035\037\322\34580\376\02284\376\27760\22130!\201SU21-25)\0" // Antarctica - 80°S to 84°S, 60°W to 30°W (SU21-25)
    "A\035\037\322\34580\376\02284\376\27790\354\034\015\201SU46-50)\0" // Antarctica - 80°S to 84°S, 90°E to 120°E (SU46-50)
    "A\035\037\322\34580\376\02284\376\27790\22160!\201SU16-\034)\0" // Antarctica - 80°S to 84°S, 90°W to 60°W (SU16-20)
    "A\035\037\322\34584\376\02288\376\2770\20060\015\201SV31-40)\0" // Antarctica - 84°S to 88°S, 0°E to 60°E (SV31-40)
    "A\035\037\322\34584\376\02288\376\2771\034\35480\015\201SV51-60)\0" // Antarctica - 84°S to 88°S, 120°E to 180°E (SV51-60)
    "A\035\037\322\34584\376\02288\376\2771\034\22160!\201SV\202-\034)\0" // Antarctica - 84°S to 88°S, 120°W to 60°W (SV11-20)
    "A\035\037\322\34584\376\02288\376\277180\2211\034!\201SV01-\312)\0" // Antarctica - 84°S to 88°S, 180°W to 120°W (SV01-10)
    "A\035\037\322\34584\376\02288\376\27760\354\034\015\201SV41-50)\0" // Antarctica - 84°S to 88°S, 60°E to 120°E (SV41-50)
    "A\035\037\322\34584\376\02288\376\27760\2210!\201SV21-30)\0" // Antarctica - 84°S to 88°S, 60°W to 0°W (SV21-30)
    "A\035\037\322\34588\376\02290\376\277180\221180\015\201SW01-60)\0" // Antarctica - 88°S to 90°S, 180°W to 180°E (SW01-60)
    "A\035\037\322\345Ad\242i\010L\033\002P\036>ls \077\206\0" // Antarctica - Adelie Land - Petrels island
    "A\035\037\322\345Ad\242i\010L\253coa\020\230\037ea\0" // Antarctica - Adelie Land coastal area
    "A\035\037\322\345Ad\242i\010L\253coa\020\230\037e\027e\314\243138\015\0" // Antarctica - Adelie Land coastal area east of 138°E
    "A\035\037\322\345Ad\242i\010L\253coa\020\230\037e\027w\267\243138\015\0" // Antarctica - Adelie Land coastal area west of 138°E
    "A\035\037\322\345Au\375\025\336 se\322\006\0" // Antarctica - Australian sector
    "A\035\037\322\345Au\375\025\336 se\322\006 n\006@\24380\376\0" // Antarctica - Australian sector north of 80°S
    "A\035\037\322\345B\006chg>v\023k\327o\314\265\320\0" // Antarctica - Borchgrevink Coast region
    "A\035\037\322\345C\225p McM\224d\013\037ea\0" // Antarctica - Camp McMurdo area
    "A\035\037\322\345D\037w\023 Glaci\007 \265\320\0" // Antarctica - Darwin Glacier region
    "A\035\037\322\345Decepti\231\335\0" // Antarctica - Deception Island
    "A\035\037\322\345McM\224d\013S\026nd \265\320\0" // Antarctica - McMurdo Sound region
    "A\035\037\322\345P\207n\242l\327o\314\265\320\0" // Antarctica - Pennell Coast region
    "A\035\037\322\345Ross Ic\010Sh\242f Reg\320\0" // Antarctica - Ross Ice Shelf Region
    "A\035\037\322\345Ross|e\027Reg\320\0" // Antarctica - Ross Sea Region
    "A\035\037\322\345Tr\005s\005t\037\322# m\026\035a\023s n\006@\24380\376\0" // Antarctica - Transantarctic mountains north of 80°S
    "A\035igu\030\236\0" // Antigua - onshore
    "A\035igu\027\03143\0" // Antigua 1943
    "A\035igu\027\03143\012Br\245i< W\267\360i\220 Gr\257\0" // Antigua 1943 / British West Indies Grid
    "A\035igua\21143\0" // Antigua_1943
    "A\035igua\21143_Br\245i<_We\020_\360i\220_Gr\257\0" // Antigua_1943_British_West_Indies_Grid
    "A\035ipod\220 \335s Tr\005sv\232\010M\007c=\006 \2270\0" // Antipodes Islands Transverse Mercator 2000
    "A\035ipod\220_\335s_\254_\2270\0" // Antipodes_Islands_TM_2000
    "\325=u\012U\254\27322S\0" // Aratu / UTM zone 22S
    "\325=u\012U\254\27323S\0" // Aratu / UTM zone 23S
    "\325=u\012U\254\27324S\0" // Aratu / UTM zone 24S
    "\325=u\012U\254\27325S\0" // Aratu / UTM zone 25S
    "\325=u_U\254_Z\003\215\0" // Aratu_UTM_Zone_
    "\325auc\256\2277\0" // Arauca_2007
    "\325c\31750\0" // Arc 1950
    "\325c\31750\012U\254\27334S\0" // Arc 1950 / UTM zone 34S
    "\325c\31750\012U\254\27335S\0" // Arc 1950 / UTM zone 35S
    "\325c\31750\012U\254\27336S\0" // Arc 1950 / UTM zone 36S
    "\325c\31760\0" // Arc 1960
    "\325c\31760\012U\254\27335N\0" // Arc 1960 / UTM zone 35N
    "\325c\31760\012U\254\27335S\0" // Arc 1960 / UTM zone 35S
    "\325c\31760\012U\254\27336N\0" // Arc 1960 / UTM zone 36N
    "\325c\31760\012U\254\27336S\0" // Arc 1960 / UTM zone 36S
    "\325c\31760\012U\254\27337N\0" // Arc 1960 / UTM zone 37N
    "\325c\31760\012U\254\27337S\0" // Arc 1960 / UTM zone 37S
    "\325c\21150\0" // Arc_1950
    "\325c\21150_U\254_Z\003\21534S\0" // Arc_1950_UTM_Zone_34S
    "\325c\21150_U\254_Z\003\21535S\0" // Arc_1950_UTM_Zone_35S
    "\325c\21150_U\254_Z\003\21536S\0" // Arc_1950_UTM_Zone_36S
    "\325c\21160\0" // Arc_1960
    "\325c\21160_U\254_Z\003\215\0" // Arc_1960_UTM_Zone_
    "\325\322#\00264\00430'N\02259\00430'N\27744\22129!\0" // Arctic - 64°30'N to 59°30'N, 44°W to 29°W
    "\325\322#\00264\00430'N\02259\00430'N\27759\22144!\0" // Arctic - 64°30'N to 59°30'N, 59°W to 44°W
    "\325\322#\00267\00450'N\02262\00450'N\27742\22125!\0" // Arctic - 67°50'N to 62°50'N, 42°W to 25°W
    "\325\322#\00267\00450'N\02262\00450'N\27759\22142!\0" // Arctic - 67°50'N to 62°50'N, 59°W to 42°W
    "\325\322#\00271\004\312'N\02266\004\312'N\277\3123\22184!\0" // Arctic - 71°10'N to 66°10'N, 103°W to 84°W
    "\325\322#\00271\004\312'N\02266\004\312'N\277122\221\3123!\0" // Arctic - 71°10'N to 66°10'N, 122°W to 103°W
    "\325\322#\00271\004\312'N\02266\004\312'N\277141\221122!\0" // Arctic - 71°10'N to 66°10'N, 141°W to 122°W
    "\325\322#\00271\004\312'N\02266\004\312'N\277156\221138!\0" // Arctic - 71°10'N to 66°10'N, 156°W to 138°W
    "\325\322#\00271\004\312'N\02266\004\312'N\277174\221156!\0" // Arctic - 71°10'N to 66°10'N, 174°W to 156°W
    "\325\322#\00271\004\312'N\02266\004\312'N\27729\221\202!\0" // Arctic - 71°10'N to 66°10'N, 29°W to 11°W
    "\325\322#\00271\004\312'N\02266\004\312'N\27747\22129!\0" // Arctic - 71°10'N to 66°10'N, 47°W to 29°W
    "\325\322#\00271\004\312'N\02266\004\312'N\27765\22147!\0" // Arctic - 71°10'N to 66°10'N, 65°W to 47°W
    "\325\322#\00271\004\312'N\02266\004\312'N\27784\22165!\0" // Arctic - 71°10'N to 66°10'N, 84°W to 65°W
    "\325\322#\00271\004N\02259\004N\27712\22178\015\0" // Arctic - 71°N to 59°N, 12°W to 78°E
    "\325\322#\00271\004N\02259\004N\277132\35438!\0" // Arctic - 71°N to 59°N, 132°E to 138°W
    "\325\322#\00271\004N\02259\004N\277156\22166!\0" // Arctic - 71°N to 59°N, 156°W to 66°W
    "\325\322#\00271\004N\02259\004N\27760\35450\015\0" // Arctic - 71°N to 59°N, 60°E to 150°E
    "\325\322#\00271\004N\02259\004N\27784\2216\015\0" // Arctic - 71°N to 59°N, 84°W to 6°E
    "\325\322#\00274\00430'N\02269\00430'N\277\3121\22181!\0" // Arctic - 74°30'N to 69°30'N, 101°W to 81°W
    "\325\322#\00274\00430'N\02269\00430'N\277\3126\354\306\015\0" // Arctic - 74°30'N to 69°30'N, 106°E to 127°E
    "\325\322#\00274\00430'N\02269\00430'N\277121\221\3121!\0" // Arctic - 74°30'N to 69°30'N, 121°W to 101°W
    "\325\322#\00274\00430'N\02269\00430'N\2771\306\35448\015\0" // Arctic - 74°30'N to 69°30'N, 127°E to 148°E
    "\325\322#\00274\00430'N\02269\00430'N\277141\221121!\0" // Arctic - 74°30'N to 69°30'N, 141°W to 121°W
    "\325\322#\00274\00430'N\02269\00430'N\277148\35469\015\0" // Arctic - 74°30'N to 69°30'N, 148°E to 169°E
    "\325\322#\00274\00430'N\02269\00430'N\277157\221137!\0" // Arctic - 74°30'N to 69°30'N, 157°W to 137°W
    "\325\322#\00274\00430'N\02269\00430'N\27715\2215\015\0" // Arctic - 74°30'N to 69°30'N, 15°W to 5°E
    "\325\322#\00274\00430'N\02269\00430'N\277169\35469!\0" // Arctic - 74°30'N to 69°30'N, 169°E to 169°W
    "\325\322#\00274\00430'N\02269\00430'N\277173\221153!\0" // Arctic - 74°30'N to 69°30'N, 173°W to 153°W
    "\325\322#\00274\00430'N\02269\00430'N\27724\20044\015\0" // Arctic - 74°30'N to 69°30'N, 24°E to 44°E
    "\325\322#\00274\00430'N\02269\00430'N\27732\22112!\0" // Arctic - 74°30'N to 69°30'N, 32°W to 12°W
    "\325\322#\00274\00430'N\02269\00430'N\27744\20064\015\0" // Arctic - 74°30'N to 69°30'N, 44°E to 64°E
    "\325\322#\00274\00430'N\02269\00430'N\2774\20024\015\0" // Arctic - 74°30'N to 69°30'N, 4°E to 24°E
    "\325\322#\00274\00430'N\02269\00430'N\27752\22132!\0" // Arctic - 74°30'N to 69°30'N, 52°W to 32°W
    "\325\322#\00274\00430'N\02269\00430'N\27764\20085\015\0" // Arctic - 74°30'N to 69°30'N, 64°E to 85°E
    "\325\322#\00274\00430'N\02269\00430'N\27772\22152!\0" // Arctic - 74°30'N to 69°30'N, 72°W to 52°W
    "\325\322#\00274\00430'N\02269\00430'N\27781\22161!\0" // Arctic - 74°30'N to 69°30'N, 81°W to 61°W
    "\325\322#\00274\00430'N\02269\00430'N\27785\200\3126\015\0" // Arctic - 74°30'N to 69°30'N, 85°E to 106°E
    "\325\322#\00277\00450'N\02272\00450'N\277\2026\22191!\0" // Arctic - 77°50'N to 72°50'N, 116°W to 91°W
    "\325\322#\00277\00450'N\02272\00450'N\277\2028\35442\015\0" // Arctic - 77°50'N to 72°50'N, 118°E to 142°E
    "\325\322#\00277\00450'N\02272\00450'N\277141\221\2026!\0" // Arctic - 77°50'N to 72°50'N, 141°W to 116°W
    "\325\322#\00277\00450'N\02272\00450'N\277142\35466\015\0" // Arctic - 77°50'N to 72°50'N, 142°E to 166°E
    "\325\322#\00277\00450'N\02272\00450'N\277166\35469!\0" // Arctic - 77°50'N to 72°50'N, 166°E to 169°W
    "\325\322#\00277\00450'N\02272\00450'N\277169\221141!\0" // Arctic - 77°50'N to 72°50'N, 169°W to 141°W
    "\325\322#\00277\00450'N\02272\00450'N\27722\20046\015\0" // Arctic - 77°50'N to 72°50'N, 22°E to 46°E
    "\325\322#\00277\00450'N\02272\00450'N\27726\2212!\0" // Arctic - 77°50'N to 72°50'N, 26°W to 2°W
    "\325\322#\00277\00450'N\02272\00450'N\2772\22122\015\0" // Arctic - 77°50'N to 72°50'N, 2°W to 22°E
    "\325\322#\00277\00450'N\02272\00450'N\27746\20070\015\0" // Arctic - 77°50'N to 72°50'N, 46°E to 70°E
    "\325\322#\00277\00450'N\02272\00450'N\27751\22126!\0" // Arctic - 77°50'N to 72°50'N, 51°W to 26°W
    "\325\322#\00277\00450'N\02272\00450'N\27770\20094\015\0" // Arctic - 77°50'N to 72°50'N, 70°E to 94°E
    "\325\322#\00277\00450'N\02272\00450'N\27776\22151!\0" // Arctic - 77°50'N to 72°50'N, 76°W to 51°W
    "\325\322#\00277\00450'N\02272\00450'N\27791\22167!\0" // Arctic - 77°50'N to 72°50'N, 91°W to 67°W
    "\325\322#\00277\00450'N\02272\00450'N\27794\200\2028\015\0" // Arctic - 77°50'N to 72°50'N, 94°E to 118°E
    "\325\322#\00279\004N\02267\004N\27712\22178\015\0" // Arctic - 79°N to 67°N, 12°W to 78°E
    "\325\322#\00279\004N\02267\004N\277132\35438!\0" // Arctic - 79°N to 67°N, 132°E to 138°W
    "\325\322#\00279\004N\02267\004N\277156\22166!\0" // Arctic - 79°N to 67°N, 156°W to 66°W
    "\325\322#\00279\004N\02267\004N\27760\35450\015\0" // Arctic - 79°N to 67°N, 60°E to 150°E
    "\325\322#\00279\004N\02267\004N\27784\2216\015\0" // Arctic - 79°N to 67°N, 84°W to 6°E
    "\325\322#\00281\004\312'N\02276\004\312'N\277\2024\22184!\0" // Arctic - 81°10'N to 76°10'N, 114°W to 84°W
    "\325\322#\00281\004\312'N\02276\004\312'N\277129\35460\015\0" // Arctic - 81°10'N to 76°10'N, 129°E to 160°E
    "\325\322#\00281\004\312'N\02276\004\312'N\277144\221\2024!\0" // Arctic - 81°10'N to 76°10'N, 144°W to 114°W
    "\325\322#\00281\004\312'N\02276\004\312'N\277160\35469!\0" // Arctic - 81°10'N to 76°10'N, 160°E to 169°W
    "\325\322#\00281\004\312'N\02276\004\312'N\277169\221138!\0" // Arctic - 81°10'N to 76°10'N, 169°W to 138°W
    "\325\322#\00281\004\312'N\02276\004\312'N\27724\2213\015\0" // Arctic - 81°10'N to 76°10'N, 24°W to 3°E
    "\325\322#\00281\004\312'N\02276\004\312'N\27735\20067\015\0" // Arctic - 81°10'N to 76°10'N, 35°E to 67°E
    "\325\322#\00281\004\312'N\02276\004\312'N\2774\22138\015\0" // Arctic - 81°10'N to 76°10'N, 4°W to 38°E
    "\325\322#\00281\004\312'N\02276\004\312'N\27754\22124!\0" // Arctic - 81°10'N to 76°10'N, 54°W to 24°W
    "\325\322#\00281\004\312'N\02276\004\312'N\27767\20098\015\0" // Arctic - 81°10'N to 76°10'N, 67°E to 98°E
    "\325\322#\00281\004\312'N\02276\004\312'N\27798\35429\015\0" // Arctic - 81°10'N to 76°10'N, 98°E to 129°E
    "\325\322#\00281\004\312'N\02276\004\312'N\277C\005\226\027e\314\24384!\0" // Arctic - 81°10'N to 76°10'N, Canada east of 84°W
    "\325\322#\00281\004\312'N\02276\004\312'N\277G>\207\206 w\267\24354!\0" // Arctic - 81°10'N to 76°10'N, Greenland west of 54°W
    "\325\322#\00284\00430'N\02279\00430'N\277\2023\35453\015\0" // Arctic - 84°30'N to 79°30'N, 113°E to 153°E
    "\325\322#\00284\00430'N\02279\00430'N\277135\22195!\0" // Arctic - 84°30'N to 79°30'N, 135°W to 95°W
    "\325\322#\00284\00430'N\02279\00430'N\277146\35474!\0" // Arctic - 84°30'N to 79°30'N, 146°E to 174°W
    "\325\322#\00284\00430'N\02279\00430'N\277174\221135!\0" // Arctic - 84°30'N to 79°30'N, 174°W to 135°W
    "\325\322#\00284\00430'N\02279\00430'N\27732\2218\015\0" // Arctic - 84°30'N to 79°30'N, 32°W to 8°E
    "\325\322#\00284\00430'N\02279\00430'N\27733\20073\015\0" // Arctic - 84°30'N to 79°30'N, 33°E to 73°E
    "\325\322#\00284\00430'N\02279\00430'N\2774\22136\015\0" // Arctic - 84°30'N to 79°30'N, 4°W to 36°E
    "\325\322#\00284\00430'N\02279\00430'N\27772\22132!\0" // Arctic - 84°30'N to 79°30'N, 72°W to 32°W
    "\325\322#\00284\00430'N\02279\00430'N\27773\200\2023\015\0" // Arctic - 84°30'N to 79°30'N, 73°E to 113°E
    "\325\322#\00284\00430'N\02279\00430'N\27795\22155!\0" // Arctic - 84°30'N to 79°30'N, 95°W to 55°W
    "\325\322#\00287\00450'N\02282\00450'N\2770\20060\015\0" // Arctic - 87°50'N to 82°50'N, 0°E to 60°E
    "\325\322#\00287\00450'N\02282\00450'N\2771\034\35480\015\0" // Arctic - 87°50'N to 82°50'N, 120°E to 180°E
    "\325\322#\00287\00450'N\02282\00450'N\2771\034\22160!\0" // Arctic - 87°50'N to 82°50'N, 120°W to 60°W
    "\325\322#\00287\00450'N\02282\00450'N\277180\2211\034!\0" // Arctic - 87°50'N to 82°50'N, 180°W to 120°W
    "\325\322#\00287\00450'N\02282\00450'N\27760\354\034\015\0" // Arctic - 87°50'N to 82°50'N, 60°E to 120°E
    "\325\322#\00287\00450'N\02282\00450'N\27760\2210\015\0" // Arctic - 87°50'N to 82°50'N, 60°W to 0°E
    "\325\322#\00287\004N\02275\004N\27712\22178\015\0" // Arctic - 87°N to 75°N, 12°W to 78°E
    "\325\322#\00287\004N\02275\004N\277132\35438!\0" // Arctic - 87°N to 75°N, 132°E to 138°W
    "\325\322#\00287\004N\02275\004N\277156\22166!\0" // Arctic - 87°N to 75°N, 156°W to 66°W
    "\325\322#\00287\004N\02275\004N\27760\35450\015\0" // Arctic - 87°N to 75°N, 60°E to 150°E
    "\325\322#\00287\004N\02275\004N\27784\2216\015\0" // Arctic - 87°N to 75°N, 84°W to 6°E
    "\325\322#_P\246\037_St\007eog\350\237#\0" // Arctic_Polar_Stereographic
    "\325ge\035\023a\0" // Argentina
    "\325ge\035\023\03042\235\376\02250.3\376\0" // Argentina - 42.5°S to 50.3°S
    "\325ge\035\023\03042\235\376\02250.3\376\37470\235\22167\235!\0" // Argentina - 42.5°S to 50.3°S and 70.5°W to 67.5°W
    "\325ge\035\023\03042\235\376\02250.3\376\374e\314\24367\235!\0" // Argentina - 42.5°S to 50.3°S and east of 67.5°W
    "\325ge\035\023\03042\235\376\02250.3\376\374w\267\24370\235!\0" // Argentina - 42.5°S to 50.3°S and west of 70.5°W
    "\325ge\035\023\03044\376\02247\235\376\0" // Argentina - 44°S to 47.5°S
    "\325ge\035\023\03058\235\22155\235!\356\0" // Argentina - 58.5°W to 55.5°W onshore
    "\325ge\035\023\03061\235\22158\235!\356\0" // Argentina - 61.5°W to 58.5°W onshore
    "\325ge\035\023\03064\235\22161\235! ma\023\206\356\0" // Argentina - 64.5°W to 61.5°W mainland onshore
    "\325ge\035\023\03064\235\22161\235!\356\0" // Argentina - 64.5°W to 61.5°W onshore
    "\325ge\035\023\03067\235\22164\235! ma\023\206\356\0" // Argentina - 67.5°W to 64.5°W mainland onshore
    "\325ge\035\023\03067\235\22164\235!\356\0" // Argentina - 67.5°W to 64.5°W onshore
    "\325ge\035\023\03070\235\22167\235! ma\023\206\356\0" // Argentina - 70.5°W to 67.5°W mainland onshore
    "\325ge\035\023\03070\235\22167\235!\356\0" // Argentina - 70.5°W to 67.5°W onshore
    "\325ge\035\023\030Bu\207os Ai>s c\245y\0" // Argentina - Buenos Aires city
    "\325ge\035\023\030C\343od\006\013Riv\226avia\0" // Argentina - Comodoro Rivadavia
    "\325ge\035\023\030M\207doz\030Cuy\013b}\023\0" // Argentina - Mendoza - Cuyo basin
    "\325ge\035\023\030M\207doz\027\253\307uqu\207\0" // Argentina - Mendoza and Neuquen
    "\325ge\035\023\030M\207doz\027\253\307uqu\207 70\235\22167\235!\0" // Argentina - Mendoza and Neuquen 70.5°W to 67.5°W
    "\325ge\035\023\030\307uqu\207 prov\023ce\0" // Argentina - Neuquen province
    "\325ge\035\023\030\307uqu\207 prov\023c\010Auc\027M\361u\257\027\037ea\0" // Argentina - Neuquen province Auca Mahuida area
    "\325ge\035\023\030Ti\007r\027d\242 Fueg\013\214f~\010e\314\24366!\0" // Argentina - Tierra del Fuego offshore east of 66°W
    "\325ge\035\023\030Ti\007r\027d\242 Fueg\013\214f~\010w\267\24366!\0" // Argentina - Tierra del Fuego offshore west of 66°W
    "\325ge\035\023\030Ti\007r\027d\242 Fueg\013\236\0" // Argentina - Tierra del Fuego onshore
    "\325ge\035\023\030Ti\007r\027d\242 Fueg\013\210\010w\267\24367\235!\0" // Argentina - Tierra del Fuego onshore west of 67.5°W
    "\325ge\035\023\030e\314\24355\235!\356\0" // Argentina - east of 55.5°W onshore
    "\325ge\035\023\030ma\023\206\356\0" // Argentina - mainland onshore
    "\325ge\035\023\030ma\023\206 \210\010\253\214f~\010TdF\0" // Argentina - mainland onshore and offshore TdF
    "\325ge\035\023\030s\250S\005t\027Cruz\0" // Argentina - south Santa Cruz
    "\325ge\035\023\030s\250S\005t\027Cruz e\314\24370\235!\0" // Argentina - south Santa Cruz east of 70.5°W
    "\325ge\035\023\030s\250S\005t\027Cruz w\267\24370\235!\0" // Argentina - south Santa Cruz west of 70.5°W
    "\325ge\035\023\030w\267\24370\235!\0" // Argentina - west of 70.5°W
    "\325ge\035\023\027^1\0" // Argentina zone 1
    "\325ge\035\023\027^2\0" // Argentina zone 2
    "\325ge\035\023\027^3\0" // Argentina zone 3
    "\325ge\035\023\027^4\0" // Argentina zone 4
    "\325ge\035\023\027^5\0" // Argentina zone 5
    "\325ge\035\023\027^6\0" // Argentina zone 6
    "\325ge\035\023\027^7\0" // Argentina zone 7
    "\325i$\027Co\006d\023=\010Sy\020\212\327\367\230$e\0" // Arizona Coordinate System Central zone
    "\325i$\027Co\006d\023=\010Sy\020\212 E\314$e\0" // Arizona Coordinate System East zone
    "\325i$\027Co\006d\023=\010Sy\020\212 W\267$e\0" // Arizona Coordinate System West zone
    "\325i$\256C\367\025\2720\0342\0" // Arizona_Central_FIPS_0202
    "\325i$\256C\367\025\2720\0342\372_I\035l\0" // Arizona_Central_FIPS_0202_Feet_Intl
    "\325i$\256C\367\025\2720\0342`t_I\035l\0" // Arizona_Central_FIPS_0202_Ft_Intl
    "\325i$\256Ea\020\2720\0341\0" // Arizona_East_FIPS_0201
    "\325i$\256Ea\020\2720\0341\372_I\035l\0" // Arizona_East_FIPS_0201_Feet_Intl
    "\325i$\256Ea\020\2720\0341`t_I\035l\0" // Arizona_East_FIPS_0201_Ft_Intl
    "\325i$\256We\020\2720\0343\0" // Arizona_West_FIPS_0203
    "\325i$\256We\020\2720\0343\372_I\035l\0" // Arizona_West_FIPS_0203_Feet_Intl
    "\325i$\256We\020\2720\0343`t_I\035l\0" // Arizona_West_FIPS_0203_Ft_Intl
    "\325k\005s} \134\306 \373\0" // Arkansas CS27 North
    "\325k\005s} \134\306|\365\0" // Arkansas CS27 South
    "\325k\005s}_\373\2720301\0" // Arkansas_North_FIPS_0301
    "\325k\005s}_\373\2720301\372\0" // Arkansas_North_FIPS_0301_Feet
    "\325k\005s}_\373\2720301`t_\203\0" // Arkansas_North_FIPS_0301_Ft_US
    "\325k\005s}_S\365\2720302\0" // Arkansas_South_FIPS_0302
    "\325k\005s}_S\365\2720302\372\0" // Arkansas_South_FIPS_0302_Feet
    "\325k\005s}_S\365\2720302`t_\203\0" // Arkansas_South_FIPS_0302_Ft_US
    "\325m\207i\256Qu\023dio_\2276\0" // Armenia_Quindio_2006
    "\325unach\230Pr\226e< \333F LCC\0" // Arunachal Pradesh NSF LCC
    "\325unach\025_Pr\226e<\0" // Arunachal_Pradesh
    "Asc\207si\231\335\31758\0" // Ascension Island 1958
    "Asc\207s\320_\335\21158\0" // Ascension_Island_1958
    "A<\206\377\026\035y\372\0" // Ashland_County_Feet
    "A<\206\377\026\035y_M\313\0" // Ashland_County_Meters
    "A<\206\372\0" // Ashland_Feet
    "A<\206_M\313\0" // Ashland_Meters
    "As\213B\005gl\226e<; \360ia; My\005m\037; Paki\020\005\002\236\0" // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    "As\213B\005gl\226e<; \360ia; My\005m\037; Paki\020\005\002^Ilb\0" // Asia - Bangladesh; India; Myanmar; Pakistan - zone Ilb
    "As\213Brunei\374E\314M\025aysia\0" // Asia - Brunei and East Malaysia
    "As\213Brunei\374E\314M\025ays\213\3128\200\2024\015\0" // Asia - Brunei and East Malaysia - 108°E to 114°E
    "As\213Brunei\374E\314M\025ays\213\2024\354\034\015\0" // Asia - Brunei and East Malaysia - 114°E to 120°E
    "As\213C\225bod\315\253Vi\036n\225\002\210\010&\327uu L\003g b}\023\0" // Asia - Cambodia and Vietnam - onshore & Cuu Long basin
    "As\213C\225bod\315\253Vi\036n\225\002w\267\243\3128\015\0" // Asia - Cambodia and Vietnam - west of 108°E
    "As\213FSU\00249\235\20052\235\015\356\0" // Asia - FSU - 49.5°E to 52.5°E onshore
    "As\213FSU\00252\235\20055\235\015\356\0" // Asia - FSU - 52.5°E to 55.5°E onshore
    "As\213FSU\00255\235\20058\235\015\356\0" // Asia - FSU - 55.5°E to 58.5°E onshore
    "As\213FSU\00258\235\20061\235\015\356\0" // Asia - FSU - 58.5°E to 61.5°E onshore
    "As\213FSU\00261\235\20064\235\015\356\0" // Asia - FSU - 61.5°E to 64.5°E onshore
    "As\213FSU\00264\235\20067\235\015\356\0" // Asia - FSU - 64.5°E to 67.5°E onshore
    "As\213FSU\00267\235\20070\235\015\356\0" // Asia - FSU - 67.5°E to 70.5°E onshore
    "As\213FSU\00270\235\20073\235\015\356\0" // Asia - FSU - 70.5°E to 73.5°E onshore
    "As\213FSU\00273\235\20076\235\015\356\0" // Asia - FSU - 73.5°E to 76.5°E onshore
    "As\213FSU\00276\235\20079\235\015\356\0" // Asia - FSU - 76.5°E to 79.5°E onshore
    "As\213FSU\00279\235\20082\235\015\356\0" // Asia - FSU - 79.5°E to 82.5°E onshore
    "As\213FSU\00282\235\20085\235\015\356\0" // Asia - FSU - 82.5°E to 85.5°E onshore
    "As\213FSU\00285\235\20088\235\015\356\0" // Asia - FSU - 85.5°E to 88.5°E onshore
    "As\213FSU\002Az\007baij\005\374Ge\006gia\0" // Asia - FSU - Azerbaijan and Georgia
    "As\213FSU\002\13463\273A1\0" // Asia - FSU - CS63 zone A1
    "As\213FSU\002\13463\273A2\0" // Asia - FSU - CS63 zone A2
    "As\213FSU\002\13463\273A3\0" // Asia - FSU - CS63 zone A3
    "As\213FSU\002\13463\273A4\0" // Asia - FSU - CS63 zone A4
    "As\213FSU\002\13463\273K2\0" // Asia - FSU - CS63 zone K2
    "As\213FSU\002\13463\273K3\0" // Asia - FSU - CS63 zone K3
    "As\213FSU\002\13463\273K4\0" // Asia - FSU - CS63 zone K4
    "As\213FSU\002C}p\336|ea\0" // Asia - FSU - Caspian Sea
    "As\213FSU \210\01048\20054\015\0" // Asia - FSU onshore 48°E to 54°E
    "As\213FSU \210\01054\20060\015\0" // Asia - FSU onshore 54°E to 60°E
    "As\213FSU \210\01060\20066\015\0" // Asia - FSU onshore 60°E to 66°E
    "As\213FSU \210\01066\20072\015\0" // Asia - FSU onshore 66°E to 72°E
    "As\213FSU \210\01072\20078\015\0" // Asia - FSU onshore 72°E to 78°E
    "As\213FSU \210\01078\20084\015\0" // Asia - FSU onshore 78°E to 84°E
    "As\213FSU \210\01084\20090\015\0" // Asia - FSU onshore 84°E to 90°E
    "As\213\360\315ma\023\206\374\307p\025\0" // Asia - India mainland and Nepal
    "As\213\360ia; Paki\020\005\00228\004N\02235\00435'N\0" // Asia - India; Pakistan - 28°N to 35°35'N
    "As\213\360ia; Paki\020\005\002\210\01021\004N\02228\004N\374w\267\24382\015\0" // Asia - India; Pakistan - onshore 21°N to 28°N and west of 82°E
    "As\213Jap\005\374K\006ea\0" // Asia - Japan and Korea
    "As\213Jap\005 \033|\250K\006ea\0" // Asia - Japan and South Korea
    "As\213K\006e\027N \033|\002126\35428\015\0" // Asia - Korea N and S - 126°E to 128°E
    "As\213K\006e\027N \033|\002128\35430\015\0" // Asia - Korea N and S - 128°E to 130°E
    "As\213K\006e\027N \033|\002e\314\243130\015\0" // Asia - Korea N and S - east of 130°E
    "As\213K\006e\027N \033|\002w\267\243126\015\0" // Asia - Korea N and S - west of 126°E
    "As\213M\025ays\315(w\267\023clud\023g|\134)\374S\023gap\006e\0" // Asia - Malaysia (west including SCS) and Singapore
    "As\213M\025ays\315(we\020)\374S\023gap\006e\0" // Asia - Malaysia (west) and Singapore
    "As\213M\257dl\010Ea\020\002B\361\350\023\277Kuwa\245\374Saudi \325abia\0" // Asia - Middle East - Bahrain, Kuwait and Saudi Arabia
    "As\213M\257dl\010Ea\020\002I\350q\374Kuwa\245 42\20048\015\0" // Asia - Middle East - Iraq and Kuwait 42°E to 48°E
    "As\213M\257dl\010Ea\020\002I\350q \033|W Ir\005\0" // Asia - Middle East - Iraq and SW Iran
    "As\213M\257dl\010Ea\020\002I\350q-Kuwa\245 b\026nd\037y\0" // Asia - Middle East - Iraq-Kuwait boundary
    "As\213M\257dl\010Ea\020\002I\350q; \316\350\242; J\006d\005; Leb\005\003; Kuwa\245;|audi \325abia; Syria\0" // Asia - Middle East - Iraq; Israel; Jordan; Lebanon; Kuwait; Saudi Arabia; Syria
    "As\213M\257dl\010Ea\020\002\316\350\242\374P\025e\020\023\010T\007r\245\006\204\236\0" // Asia - Middle East - Israel and Palestine Territory onshore
    "As\213M\257dl\010Ea\020\002\316\350\242\277J\006d\005\374P\025e\020\023\010\236\0" // Asia - Middle East - Israel, Jordan and Palestine onshore
    "As\213M\257dl\010Ea\020\002\316\350\242\277P\025e\020\023\010T\007r\245\006y\277T\224key\002\214f~e\0" // Asia - Middle East - Israel, Palestine Territory, Turkey - offshore
    "As\213M\257dl\010Ea\020\002Kuwa\245 \033|audi\00242\20048\015\0" // Asia - Middle East - Kuwait and Saudi - 42°E to 48°E
    "As\213M\257dl\010Ea\020\002Kuwa\245 \033|audi\00248\20054\015\0" // Asia - Middle East - Kuwait and Saudi - 48°E to 54°E
    "As\213M\257dl\010Ea\020\002Leb\005\231\033|yr\315\236\0" // Asia - Middle East - Lebanon and Syria onshore
    "As\213M\257dl\010Ea\020\002Q=\037 \214f~\010\253UAE\0" // Asia - Middle East - Qatar offshore and UAE
    "As\213M\257dl\010Ea\020\002Q=\037 \214f~\010\253UAE w\267\24354\015\0" // Asia - Middle East - Qatar offshore and UAE west of 54°E
    "As\213My\005m\037\374Thai\206\00296\200\3122\015\0" // Asia - Myanmar and Thailand - 96°E to 102°E
    "As\213My\005m\037\374Thai\206\356\0" // Asia - Myanmar and Thailand onshore
    "Ass\225 \333F LCC\0" // Assam NSF LCC
    "A\375\013DOS 71\0" // Astro DOS 71
    "A\375\013DOS 71\012SHLG71\0" // Astro DOS 71 / SHLG71
    "A\375\013DOS 71\012U\254\27330S\0" // Astro DOS 71 / UTM zone 30S
    "A\375o\21152\0" // Astro_1952
    "A\375o_DOS_71_4_SHLG71\0" // Astro_DOS_71_4_SHLG71
    "A\375o_DOS_71_4_U\254_$\21530S\0" // Astro_DOS_71_4_UTM_zone_30S
    "Auck\206 \335s Tr\005sv\232\010M\007c=\006 \2270\0" // Auckland Islands Transverse Mercator 2000
    "Auck\206_\335s_\254_\2270\0" // Auckland_Islands_TM_2000
    "Au\375\025}\213Au\375\025\315\253Chri\020m} \335\002\3128\200\2024\015\0" // Australasia - Australia and Christmas Island - 108°E to 114°E
    "Au\375\025}\213Au\375\025\315\253Chri\020m} \335\002w\267\243\3128\015\0" // Australasia - Australia and Christmas Island - west of 108°E
    "Au\375\025}\213Au\375\025\315\253\205f\246k \335\002162\35468\015\0" // Australasia - Australia and Norfolk Island - 162°E to 168°E
    "Au\375\025}\213Au\375\025\315\253PNG\002138\35444\015\0" // Australasia - Australia and PNG - 138°E to 144°E
    "Au\375\025}\213Au\375\025\315\253PNG\002144\35450\015\0" // Australasia - Australia and PNG - 144°E to 150°E
    "Au\375\025}\213Au\375\025\315\253PNG\002150\35456\015\0" // Australasia - Australia and PNG - 150°E to 156°E
    "Au\375\025}\213Au\375\025\315\253PNG\002AGD66\0" // Australasia - Australia and PNG - AGD66
    "Au\375\025\213\3122\200\3128\015\0" // Australia - 102°E to 108°E
    "Au\375\025\213\3128\200\2024\015\201EEZ)\0" // Australia - 108°E to 114°E (EEZ)
    "Au\375\025\213\2024\354\034\015\0" // Australia - 114°E to 120°E
    "Au\375\025\213\2024\354\034\015\201EEZ)\0" // Australia - 114°E to 120°E (EEZ)
    "Au\375\025\2131\034\35426\015\0" // Australia - 120°E to 126°E
    "Au\375\025\213126\35432\015\0" // Australia - 126°E to 132°E
    "Au\375\025\213132\35438\015\0" // Australia - 132°E to 138°E
    "Au\375\025\213138\35444\015\0" // Australia - 138°E to 144°E
    "Au\375\025\213144\35450\015\0" // Australia - 144°E to 150°E
    "Au\375\025\213150\35456\015\0" // Australia - 150°E to 156°E
    "Au\375\025\213156\35462\015\0" // Australia - 156°E to 162°E
    "Au\375\025\213156\35462\015 \023clud\023g Macqu\037ie\0" // Australia - 156°E to 162°E including Macquarie
    "Au\375\025\213AGD84\0" // Australia - AGD84
    "Au\375\025\213Au\375\025\336\327ap\245\230T\007r\245\006y\0" // Australia - Australian Capital Territory
    "Au\375\025\213Br\077b\005e\0" // Australia - Brisbane
    "Au\375\025\213EEZ e\314\243162\015\0" // Australia - EEZ east of 162°E
    "Au\375\025\213GDA\0" // Australia - GDA
    "Au\375\025\213\357|\250W\025\220\0" // Australia - New South Wales
    "Au\375\025\213\357|\250W\025\220\374V#t\006ia\0" // Australia - New South Wales and Victoria
    "Au\375\025\213\373\007n T\007r\245\006y\0" // Australia - Northern Territory
    "Au\375\025\213Q\321 144\35450\015\0" // Australia - Qld 144°E to 150°E
    "Au\375\025\213Q\321 e\314\243150\015\0" // Australia - Qld east of 150°E
    "Au\375\025\213Que\207s\206\002Weipa\0" // Australia - Queensland - Weipa
    "Au\375\025\213SA\0" // Australia - SA
    "Au\375\025\213SA 132\35438\015\0" // Australia - SA 132°E to 138°E
    "Au\375\025\213SA\374Q\321 138\35444\015\0" // Australia - SA and Qld 138°E to 144°E
    "Au\375\025\213SA\374WA 126\35432\015\0" // Australia - SA and WA 126°E to 132°E
    "Au\375\025\213SE Au\375\025\315(ACT \333W V#)\0" // Australia - SE Australia (ACT NSW Vic)
    "Au\375\025\213T}m\005ia\0" // Australia - Tasmania
    "Au\375\025\213V#t\006ia\0" // Australia - Victoria
    "Au\375\025\213We\020\007n Au\375\025ia\0" // Australia - Western Australia
    "Au\375\025\213We\020\007n Au\375\025\213Alb\005y\0" // Australia - Western Australia - Albany
    "Au\375\025\213We\020\007n Au\375\025\213B\037row\0" // Australia - Western Australia - Barrow
    "Au\375\025\213We\020\007n Au\375\025\213Bro\343e\0" // Australia - Western Australia - Broome
    "Au\375\025\213We\020\007n Au\375\025\213B\351s\242t\003\0" // Australia - Western Australia - Busselton
    "Au\375\025\213We\020\007n Au\375\025\213C\037n\037v\003\0" // Australia - Western Australia - Carnarvon
    "Au\375\025\213We\020\007n Au\375\025\213C\246lie\0" // Australia - Western Australia - Collie
    "Au\375\025\213We\020\007n Au\375\025\213Esp\007\005ce\0" // Australia - Western Australia - Esperance
    "Au\375\025\213We\020\007n Au\375\025\213Exm\365\0" // Australia - Western Australia - Exmouth
    "Au\375\025\213We\020\007n Au\375\025\213G\007\025dt\003\0" // Australia - Western Australia - Geraldton
    "Au\375\025\213We\020\007n Au\375\025\213J\224i\207 Bay\0" // Australia - Western Australia - Jurien Bay
    "Au\375\025\213We\020\007n Au\375\025\213K\025b\037ri\0" // Australia - Western Australia - Kalbarri
    "Au\375\025\213We\020\007n Au\375\025\213K\025go\006lie\0" // Australia - Western Australia - Kalgoorlie
    "Au\375\025\213We\020\007n Au\375\025\213K\037\350\024a\0" // Australia - Western Australia - Karratha
    "Au\375\025\213We\020\007n Au\375\025\213Kunun\224\350\0" // Australia - Western Australia - Kununurra
    "Au\375\025\213We\020\007n Au\375\025\213L\005c\242\023\0" // Australia - Western Australia - Lancelin
    "Au\375\025\213We\020\007n Au\375\025\213M\037g\037\036 Riv\007\0" // Australia - Western Australia - Margaret River
    "Au\375\025\213We\020\007n Au\375\025\213P\007\024\0" // Australia - Western Australia - Perth
    "Au\375\025\213We\020\007n Au\375\025\213P\006t H\275\206\0" // Australia - Western Australia - Port Hedland
    "Au\375\025\213\214f~e\0" // Australia - offshore
    "Au\375\025\213\236\0" // Australia - onshore
    "Au\375\025\213\210\010\253EEZ\0" // Australia - onshore and EEZ
    "Au\375\025i\256Alb\232\0" // Australia_Albers
    "Au\375\025\336\0" // Australian
    "Au\375\025\336 A\035\037\322#\0" // Australian Antarctic
    "Au\375\025\336 A\035\037\322# D=um \03198\0" // Australian Antarctic Datum 1998
    "Au\375\025\336\327\367\010f\006 R\212\337\010S\207s\023g L\225b\007t\327\003f\006m\230Proje\322\320\0" // Australian Centre for Remote Sensing Lambert Conformal Projection
    "Au\375\025\336 Geod\036# D=um\31766\0" // Australian Geodetic Datum 1966
    "Au\375\025\336 Geod\036# D=um\31784\0" // Australian Geodetic Datum 1984
    "Au\375\025\336 Map Gr\257\27348\0" // Australian Map Grid zone 48
    "Au\375\025\336 Map Gr\257\27349\0" // Australian Map Grid zone 49
    "Au\375\025\336 Map Gr\257\27350\0" // Australian Map Grid zone 50
    "Au\375\025\336 Map Gr\257\27351\0" // Australian Map Grid zone 51
    "Au\375\025\336 Map Gr\257\27352\0" // Australian Map Grid zone 52
    "Au\375\025\336 Map Gr\257\27353\0" // Australian Map Grid zone 53
    "Au\375\025\336 Map Gr\257\27354\0" // Australian Map Grid zone 54
    "Au\375\025\336 Map Gr\257\27355\0" // Australian Map Grid zone 55
    "Au\375\025\336 Map Gr\257\27356\0" // Australian Map Grid zone 56
    "Au\375\025\336 Map Gr\257\27357\0" // Australian Map Grid zone 57
    "Au\375\025\336 Map Gr\257\27358\0" // Australian Map Grid zone 58
    "Au\375\025\336 T\007>\375i\230Ref\007\207c\010Fr\225\010\03414\0" // Australian Terrestrial Reference Frame 2014
    "Au\375\025\336\21166\0" // Australian_1966
    "Au\375\025\336\21184\0" // Australian_1984
    "Au\375\025\336_Alb\232\0" // Australian_Albers
    "Au\375\025\336_A\035\037\322#_\03198\0" // Australian_Antarctic_1998
    "Au\375\025\336_A\035\037\322#_L\225b\007t\0" // Australian_Antarctic_Lambert
    "Au\375\025\336_A\035\037\322#_P\246\037_St\007eog\350\237#\0" // Australian_Antarctic_Polar_Stereographic
    "Au\375\025\336\377e\035>_f\006_R\212\337\215S\207s\023g_L\225b\007t\0" // Australian_Centre_for_Remote_Sensing_Lambert
    "Au\375\025\336_T\007>\375i\025_Ref\007\207ce`r\225\215\03414\0" // Australian_Terrestrial_Reference_Frame_2014
    "Au\375ia\0" // Austria
    "Au\375\213\202\00450'E\02214\00450'E\0" // Austria - 11°50'E to 14°50'E
    "Au\375\213Styria\0" // Austria - Styria
    "Au\375\213e\314\24314\00450'E\0" // Austria - east of 14°50'E
    "Au\375\213w\267\243\202\00450'E\0" // Austria - west of 11°50'E
    "Au\375\315Ga\351s-Krug\007 C\367\025\0" // Austria Gauss-Kruger Central
    "Au\375\315Ga\351s-Krug\007\327\367\230Z\003e\0" // Austria Gauss-Kruger Central Zone
    "Au\375\315Ga\351s-Krug\007 Ea\020\0" // Austria Gauss-Kruger East
    "Au\375\315Ga\351s-Krug\007 E\314Z\003e\0" // Austria Gauss-Kruger East Zone
    "Au\375\315Ga\351s-Krug\007 M28\0" // Austria Gauss-Kruger M28
    "Au\375\315Ga\351s-Krug\007 M31\0" // Austria Gauss-Kruger M31
    "Au\375\315Ga\351s-Krug\007 M34\0" // Austria Gauss-Kruger M34
    "Au\375\315Ga\351s-Krug\007 We\020\0" // Austria Gauss-Kruger West
    "Au\375\315Ga\351s-Krug\007 W\267Z\003e\0" // Austria Gauss-Kruger West Zone
    "Au\375i\256C\367\025_Z\003e\0" // Austria_Central_Zone
    "Au\375i\256Ea\020_Z\003e\0" // Austria_East_Zone
    "Au\375i\256L\225b\007t\0" // Austria_Lambert
    "Au\375i\256We\020_Z\003e\0" // Austria_West_Zone
    "Aut\003\343\026s Reg\320s \243P\006tug\230\2278\0" // Autonomous Regions of Portugal 2008
    "Av\007ag\010T\007>\375i\025|y\020\212\31777\0" // Average Terrestrial System 1977
    "Ayab\242le\0" // Ayabelle
    "Ayab\242l\010Ligh\024\026se\0" // Ayabelle Lighthouse
    "Az\007baij\005\0" // Azerbaijan
    "Az\007baij\005\002coa\020\230\037e\027Baku\022A\020\037a\0" // Azerbaijan - coastal area Baku to Astara
    "Az\006\220\327\367\230\03148\0" // Azores Central 1948
    "Az\006\220\327\367\230\03148\012U\254\27326N\0" // Azores Central 1948 / UTM zone 26N
    "Az\006\220\327\367\230\03195\0" // Azores Central 1995
    "Az\006\220\327\367\230\03195\012U\254\27326N\0" // Azores Central 1995 / UTM zone 26N
    "Az\006\220\327\367\230\335s\31748\0" // Azores Central Islands 1948
    "Az\006\220\327\367\230\335s\31795\0" // Azores Central Islands 1995
    "Az\006\220 Occ\257e\035\230\03139\0" // Azores Occidental 1939
    "Az\006\220 Occ\257e\035\230\03139\012U\254\27325N\0" // Azores Occidental 1939 / UTM zone 25N
    "Az\006\220 Occ\257e\035\230\335s\31739\0" // Azores Occidental Islands 1939
    "Az\006\220 Orie\035\230\03140\0" // Azores Oriental 1940
    "Az\006\220 Orie\035\230\03140\012U\254\27326N\0" // Azores Oriental 1940 / UTM zone 26N
    "Az\006\220 Orie\035\230\03195\0" // Azores Oriental 1995
    "Az\006\220 Orie\035\230\03195\012U\254\27326N\0" // Azores Oriental 1995 / UTM zone 26N
    "Az\006\220 Orie\035\230\335s\31740\0" // Azores Oriental Islands 1940
    "Az\006\220 Orie\035\230\335s\31795\0" // Azores Oriental Islands 1995
    "Az\006\220\377\367\025\21148\0" // Azores_Central_1948
    "Az\006\220\377\367\025\21148_U\254_Z\003\21526N\0" // Azores_Central_1948_UTM_Zone_26N
    "Az\006\220\377\367\025\21195\0" // Azores_Central_1995
    "Az\006\220\377\367\025\21195_U\254_Z\003\21526N\0" // Azores_Central_1995_UTM_Zone_26N
    "Az\006\220\377\367\025_\335s\21148\0" // Azores_Central_Islands_1948
    "Az\006\220\377\367\025_\335s\21195\0" // Azores_Central_Islands_1995
    "Az\006\220_Occ\257e\035\025\21139\0" // Azores_Occidental_1939
    "Az\006\220_Occ\257e\035\025\21139_U\254_Z\003\21525N\0" // Azores_Occidental_1939_UTM_Zone_25N
    "Az\006\220_Occ\257e\035\025_\335s\21139\0" // Azores_Occidental_Islands_1939
    "Az\006\220_Orie\035\025\21140\0" // Azores_Oriental_1940
    "Az\006\220_Orie\035\025\21140_U\254_Z\003\21526N\0" // Azores_Oriental_1940_UTM_Zone_26N
    "Az\006\220_Orie\035\025\21195\0" // Azores_Oriental_1995
    "Az\006\220_Orie\035\025\21195_U\254_Z\003\21526N\0" // Azores_Oriental_1995_UTM_Zone_26N
    "Az\006\220_Orie\035\025_\335s\21140\0" // Azores_Oriental_Islands_1940
    "Az\006\220_Orie\035\025_\335s\21195\0" // Azores_Oriental_Islands_1995
    "B&H GK\2735\0" // B&H GK zone 5
    "B&H GK\2736\0" // B&H GK zone 6
    "B&H GK\2737\0" // B&H GK zone 7
    "BALR\2279.gsb\0" // BALR2009.gsb
    "BB DLx\0" // BB DLx
    "BC_\306_05.GSB\0" // BC_27_05.GSB
    "BC_\306_98.GSB\0" // BC_27_98.GSB
    "BC_93_05.GSB\0" // BC_93_05.GSB
    "BC_93_98.GSB\0" // BC_93_98.GSB
    "BC_98_05.GSB\0" // BC_98_05.GSB
    "BC_Env\340\003me\035_Alb\232\0" // BC_Environment_Albers
    "BD50\0" // BD50
    "BD50\201Br\351s\242s)\0" // BD50 (Brussels)
    "BD50\201Br\351s\242s*B\242g\010L\225b\007t 50\0" // BD50 (Brussels) / Belge Lambert 50
    "BD72\0" // BD72
    "BD72\012B\242g\010L\225b\007t 72\0" // BD72 / Belge Lambert 72
    "BD72\012B\242g\336 L\225b\007t 72\0" // BD72 / Belgian Lambert 72
    "BDA\2270\0" // BDA2000
    "BDA\2270\012B\007mud\027\2270 N=\320\230Gr\257\0" // BDA2000 / Bermuda 2000 National Grid
    "BETA\2277.gsb\0" // BETA2007.gsb
    "BGS\2275\0" // BGS2005
    "BGS\2275\012C\134\2275\0" // BGS2005 / CCS2005
    "BGS\2275\012U\254\27334N\0" // BGS2005 / UTM zone 34N
    "BGS\2275\012U\254\27334N\201N-E)\0" // BGS2005 / UTM zone 34N (N-E)
    "BGS\2275\012U\254\27335N\0" // BGS2005 / UTM zone 35N
    "BGS\2275\012U\254\27335N\201N-E)\0" // BGS2005 / UTM zone 35N (N-E)
    "BGS\2275\012U\254\27336N\0" // BGS2005 / UTM zone 36N
    "BGS\2275\377\134\2275\0" // BGS2005_CCS2005
    "BGS\2275_U\254_$\215\0" // BGS2005_UTM_zone_
    "BLM\273\312N\201\203 s\224ve\204f\234)\0" // BLM zone 10N (US survey feet)
    "BLM\273\202N\201\203 s\224ve\204f\234)\0" // BLM zone 11N (US survey feet)
    "BLM\27312N\201\203 s\224ve\204f\234)\0" // BLM zone 12N (US survey feet)
    "BLM\27313N\201\203 s\224ve\204f\234)\0" // BLM zone 13N (US survey feet)
    "BLM\27314N\201\203 s\224ve\204f\234)\0" // BLM zone 14N (US survey feet)
    "BLM\27315N\201\203 s\224ve\204f\234)\0" // BLM zone 15N (US survey feet)
    "BLM\27316N\201\203 s\224ve\204f\234)\0" // BLM zone 16N (US survey feet)
    "BLM\27317N\201\203 s\224ve\204f\234)\0" // BLM zone 17N (US survey feet)
    "BLM\27318N\201\203 s\224ve\204f\234)\0" // BLM zone 18N (US survey feet)
    "BLM\273\031N\201\203 s\224ve\204f\234)\0" // BLM zone 19N (US survey feet)
    "BLM\2731N\201\203 s\224ve\204f\234)\0" // BLM zone 1N (US survey feet)
    "BLM\2732N\201\203 s\224ve\204f\234)\0" // BLM zone 2N (US survey feet)
    "BLM\2733N\201\203 s\224ve\204f\234)\0" // BLM zone 3N (US survey feet)
    "BLM\2734N\201\203 s\224ve\204f\234)\0" // BLM zone 4N (US survey feet)
    "BLM\27359N\201\203 s\224ve\204f\234)\0" // BLM zone 59N (US survey feet)
    "BLM\2735N\201\203 s\224ve\204f\234)\0" // BLM zone 5N (US survey feet)
    "BLM\27360N\201\203 s\224ve\204f\234)\0" // BLM zone 60N (US survey feet)
    "BLM\2736N\201\203 s\224ve\204f\234)\0" // BLM zone 6N (US survey feet)
    "BLM\2737N\201\203 s\224ve\204f\234)\0" // BLM zone 7N (US survey feet)
    "BLM\2738N\201\203 s\224ve\204f\234)\0" // BLM zone 8N (US survey feet)
    "BLM\2739N\201\203 s\224ve\204f\234)\0" // BLM zone 9N (US survey feet)
    "BLM_Z\003\21514N_ft\203\0" // BLM_Zone_14N_ftUS
    "BLM_Z\003\21515N_ft\203\0" // BLM_Zone_15N_ftUS
    "BLM_Z\003\21516N_ft\203\0" // BLM_Zone_16N_ftUS
    "BLM_Z\003\21517N_ft\203\0" // BLM_Zone_17N_ftUS
    "BNG\2270\0" // BNG2000
    "BT68\0" // BT68
    "BWTA\03417.gsb\0" // BWTA2017.gsb
    "B\361\225}\201S\005|\025v\226\006 \335)\002\236\0" // Bahamas (San Salvador Island) - onshore
    "B\361\225}\002ma\023 \077\206s\356\0" // Bahamas - main islands onshore
    "B\361\350\023\002\236\0" // Bahrain - onshore
    "B\361\350\023|t=\010Gr\257\0" // Bahrain State Grid
    "B\361\350\023_St=\215Gr\257\0" // Bahrain_State_Grid
    "Bak\007_\021\211\014_\240_\254\372_I\035l\0" // Baker_NAD_1983_2011_TM_Feet_Intl
    "Bak\007_\021\211\014_\240_\254_M\313\0" // Baker_NAD_1983_2011_TM_Meters
    "Bak\007_\021\211\014_CO{96_\254\372_I\035l\0" // Baker_NAD_1983_CORS96_TM_Feet_Intl
    "Bak\007_\021\211\014_CO{96_\254_M\313\0" // Baker_NAD_1983_CORS96_TM_Meters
    "B\025boa\0" // Balboa
    "B\025k\005s_5\0" // Balkans_5
    "B\025k\005s_6\0" // Balkans_6
    "B\025k\005s_7\0" // Balkans_7
    "B\025k\005s_8\0" // Balkans_8
    "B\005gl\226e<\0" // Bangladesh
    "B\005gl\226e<\002\236\0" // Bangladesh - onshore
    "B\005gl\226e<\002\210\010e\314\24390\015\0" // Bangladesh - onshore east of 90°E
    "B\005gl\226e<\002\210\010w\267\24390\015\0" // Bangladesh - onshore west of 90°E
    "B\037b\226os\002\236\0" // Barbados - onshore
    "B\037b\226os\31738\0" // Barbados 1938
    "B\037b\226os\31738\012B\037b\226os N=\320\230Gr\257\0" // Barbados 1938 / Barbados National Grid
    "B\037b\226os\31738\012Br\245i< W\267\360i\220 Gr\257\0" // Barbados 1938 / British West Indies Grid
    "B\037b\226os\21138\0" // Barbados_1938
    "B\037b\226os\21138_B\037b\226os_Gr\257\0" // Barbados_1938_Barbados_Grid
    "B\037b\226os\21138_Br\245i<_We\020_\360i\220_Gr\257\0" // Barbados_1938_British_West_Indies_Grid
    "B\037r\005qu\341l\256Atl\005t#o_\03197\0" // Barranquilla_Atlantico_1997
    "B\037r\003\377\026\035y\372\0" // Barron_County_Feet
    "B\037r\003\377\026\035y_M\313\0" // Barron_County_Meters
    "B\037r\003\372\0" // Barron_Feet
    "B\037r\003_M\313\0" // Barron_Meters
    "B\037row \335 Gr\257 \03420\0" // Barrow Island Grid 2020
    "B\037\024\246\343ew_(ft\203)\0" // Bartholomew_(ftUS)
    "B\037\024\246\343ew_(m)\0" // Bartholomew_(m)
    "B}\327\003g\013\03155\0" // Bas Congo 1955
    "B=avia\0" // Batavia
    "B=av\315(Jak\037ta)\0" // Batavia (Jakarta)
    "B=av\315(Jak\037ta*NEIEZ\0" // Batavia (Jakarta) / NEIEZ
    "B=av\315(Jak\037ta)\022B=av\315(G>\207w#h)\0" // Batavia (Jakarta) to Batavia (Greenwich)
    "B=avia\012NEIEZ\0" // Batavia / NEIEZ
    "B=avia\012\254 \3129|E\0" // Batavia / TM 109 SE
    "B=avia\012U\254\27348S\0" // Batavia / UTM zone 48S
    "B=avia\012U\254\27349S\0" // Batavia / UTM zone 49S
    "B=avia\012U\254\27350S\0" // Batavia / UTM zone 50S
    "B=avi\256Jak\037ta\0" // Batavia_Jakarta
    "B=avi\256Jak\037t\256NEIEZ\0" // Batavia_Jakarta_NEIEZ
    "B=avi\256NEIEZ\0" // Batavia_NEIEZ
    "B=avi\256\254_\3129_SE\0" // Batavia_TM_109_SE
    "B=avi\256U\254_Z\003\21548S\0" // Batavia_UTM_Zone_48S
    "B=avi\256U\254_Z\003\21549S\0" // Batavia_UTM_Zone_49S
    "B=avi\256U\254_Z\003\21550S\0" // Batavia_UTM_Zone_50S
    "Bay_\214_Ple\035y\377\340cu\245\0" // Bay_of_Plenty_Circuit
    "Bayfi\242d\377\026\035y\372\0" // Bayfield_County_Feet
    "Bayfi\242d\377\026\035y_M\313\0" // Bayfield_County_Meters
    "Bayfi\242d\372\0" // Bayfield_Feet
    "Bayfi\242d_M\313\0" // Bayfield_Meters
    "Beac\003_E\21145\0" // Beacon_E_1945
    "B\275u\037\225\0" // Beduaram
    "B\275u\037\225\012\254 13 NE\0" // Beduaram / TM 13 NE
    "B\275u\037\225_\254_13_NE\0" // Beduaram_TM_13_NE
    "Beij\023g\31754\0" // Beijing 1954
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M \3122E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 102E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M \3125E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 105E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M \3128E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 108E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M \2021E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 111E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M \2024E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 114E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M \2027E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 117E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 120E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 123E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 123E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 126E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 126E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 129E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 129E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 132E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 132E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 135E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 135E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 75E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 75E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 78E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 78E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 81E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 81E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 84E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 84E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 87E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 87E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 90E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 90E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 93E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 93E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 96E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 96E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\327M 99E\0" // Beijing 1954 / 3-degree Gauss-Kruger CM 99E
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27325\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 25
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27326\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 26
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27327\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 27
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27328\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 28
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27329\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 29
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27330\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 30
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27331\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 31
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27332\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 32
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27333\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 33
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27334\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 34
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27335\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 35
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27336\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 36
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27337\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 37
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27338\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 38
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27339\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 39
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27340\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 40
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27341\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 41
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27342\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 42
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27343\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 43
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27344\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 44
    "Beij\023g\31754\0123-deg>\010Ga\351s-Krug\007\27345\0" // Beijing 1954 / 3-degree Gauss-Kruger zone 45
    "Beij\023g\31754\012Ga\351s-Krug\007 13N\0" // Beijing 1954 / Gauss-Kruger 13N
    "Beij\023g\31754\012Ga\351s-Krug\007 14N\0" // Beijing 1954 / Gauss-Kruger 14N
    "Beij\023g\31754\012Ga\351s-Krug\007 15N\0" // Beijing 1954 / Gauss-Kruger 15N
    "Beij\023g\31754\012Ga\351s-Krug\007 16N\0" // Beijing 1954 / Gauss-Kruger 16N
    "Beij\023g\31754\012Ga\351s-Krug\007 17N\0" // Beijing 1954 / Gauss-Kruger 17N
    "Beij\023g\31754\012Ga\351s-Krug\007 18N\0" // Beijing 1954 / Gauss-Kruger 18N
    "Beij\023g\31754\012Ga\351s-Krug\007 19N\0" // Beijing 1954 / Gauss-Kruger 19N
    "Beij\023g\31754\012Ga\351s-Krug\007 \034N\0" // Beijing 1954 / Gauss-Kruger 20N
    "Beij\023g\31754\012Ga\351s-Krug\007 21N\0" // Beijing 1954 / Gauss-Kruger 21N
    "Beij\023g\31754\012Ga\351s-Krug\007 22N\0" // Beijing 1954 / Gauss-Kruger 22N
    "Beij\023g\31754\012Ga\351s-Krug\007 23N\0" // Beijing 1954 / Gauss-Kruger 23N
    "Beij\023g\31754\012Ga\351s-Krug\007\327M \3125E\0" // Beijing 1954 / Gauss-Kruger CM 105E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M \2021E\0" // Beijing 1954 / Gauss-Kruger CM 111E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M \2027E\0" // Beijing 1954 / Gauss-Kruger CM 117E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 123E\0" // Beijing 1954 / Gauss-Kruger CM 123E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 129E\0" // Beijing 1954 / Gauss-Kruger CM 129E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 135E\0" // Beijing 1954 / Gauss-Kruger CM 135E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 75E\0" // Beijing 1954 / Gauss-Kruger CM 75E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 81E\0" // Beijing 1954 / Gauss-Kruger CM 81E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 87E\0" // Beijing 1954 / Gauss-Kruger CM 87E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 93E\0" // Beijing 1954 / Gauss-Kruger CM 93E
    "Beij\023g\31754\012Ga\351s-Krug\007\327M 99E\0" // Beijing 1954 / Gauss-Kruger CM 99E
    "Beij\023g\31754\012Ga\351s-Krug\007\27313\0" // Beijing 1954 / Gauss-Kruger zone 13
    "Beij\023g\31754\012Ga\351s-Krug\007\27314\0" // Beijing 1954 / Gauss-Kruger zone 14
    "Beij\023g\31754\012Ga\351s-Krug\007\27315\0" // Beijing 1954 / Gauss-Kruger zone 15
    "Beij\023g\31754\012Ga\351s-Krug\007\27316\0" // Beijing 1954 / Gauss-Kruger zone 16
    "Beij\023g\31754\012Ga\351s-Krug\007\27317\0" // Beijing 1954 / Gauss-Kruger zone 17
    "Beij\023g\31754\012Ga\351s-Krug\007\27318\0" // Beijing 1954 / Gauss-Kruger zone 18
    "Beij\023g\31754\012Ga\351s-Krug\007\27319\0" // Beijing 1954 / Gauss-Kruger zone 19
    "Beij\023g\31754\012Ga\351s-Krug\007\27320\0" // Beijing 1954 / Gauss-Kruger zone 20
    "Beij\023g\31754\012Ga\351s-Krug\007\27321\0" // Beijing 1954 / Gauss-Kruger zone 21
    "Beij\023g\31754\012Ga\351s-Krug\007\27322\0" // Beijing 1954 / Gauss-Kruger zone 22
    "Beij\023g\31754\012Ga\351s-Krug\007\27323\0" // Beijing 1954 / Gauss-Kruger zone 23
    "Beij\023g\21154\0" // Beijing_1954
    "Beij\023g\21154_3_Deg>\215GK_\0" // Beijing_1954_3_Degree_GK_
    "Beij\023g\21154_3_Deg>\215GK_Z\003\215\0" // Beijing_1954_3_Degree_GK_Zone_
    "Beij\023g\21154_GK_Z\003\215\0" // Beijing_1954_GK_Zone_
    "Beij\023g\21154_Ga\351s_Krug\007\377M_\0" // Beijing_1954_Gauss_Kruger_CM_
    "Beka\027V\025le\204\03120\0" // Bekaa Valley 1920
    "Beka\256V\025ley\21120\0" // Bekaa_Valley_1920
    "B\242ge\21150\0" // Belge_1950
    "B\242ge\21150_Br\351s\242s\0" // Belge_1950_Brussels
    "B\242ge\21172\0" // Belge_1972
    "B\242g\215L\225b\007t\21150\0" // Belge_Lambert_1950
    "B\242g\215L\225b\007t\21172\0" // Belge_Lambert_1972
    "B\242g\215L\225b\007t_\2275\0" // Belge_Lambert_2005
    "B\242g\215L\225b\007t_\2278\0" // Belge_Lambert_2008
    "B\242gium\0" // Belgium
    "B\242gium\002\236\0" // Belgium - onshore
    "B\242iz\216\236\0" // Belize - onshore
    "B\242iz\010C\246\003\204Gr\257\0" // Belize Colony Grid
    "B\242levue\0" // Bellevue
    "B\242levu\010(IGN)\0" // Bellevue (IGN)
    "B\242levu\215IGN\0" // Bellevue_IGN
    "Be\035\003_(ft\203)\0" // Benton_(ftUS)
    "Be\035\003_(m)\0" // Benton_(m)
    "B\007\023g_Sea\0" // Bering_Sea
    "B\007muda\0" // Bermuda
    "B\007mud\030\236\0" // Bermuda - onshore
    "B\007mud\027\03157\0" // Bermuda 1957
    "B\007mud\027\03157\012U\254\273\034N\0" // Bermuda 1957 / UTM zone 20N
    "B\007mud\027\2270\0" // Bermuda 2000
    "B\007mud\027N=\320\230Gr\257\0" // Bermuda National Grid
    "B\007muda\21157\0" // Bermuda_1957
    "B\007muda\21157_U\254_Z\003\215\034N\0" // Bermuda_1957_UTM_Zone_20N
    "B\007mud\256\2270\0" // Bermuda_2000
    "B\007mud\256\2270_N=\320\025_Gr\257\0" // Bermuda_2000_National_Grid
    "B\007n 1898\201B\007n)\0" // Bern 1898 (Bern)
    "B\007n 1898\201B\007n*LV03C\0" // Bern 1898 (Bern) / LV03C
    "B\007n 1898\201B\007n)\022CH\03103\201G>\207w#h)\0" // Bern 1898 (Bern) to CH1903 (Greenwich)
    "B\007n\31738\0" // Bern 1938
    "B\007n_1898_B\007n\0" // Bern_1898_Bern
    "B\007n_1898_B\007n_LV03C\0" // Bern_1898_Bern_LV03C
    "B\007n\21138\0" // Bern_1938
    "B\220s\242 1841\0" // Bessel 1841
    "B\220s\242 Modifi\275\0" // Bessel Modified
    "B\220s\242 N\225ibia\0" // Bessel Namibia
    "B\220s\242 N\225ib\315(GLM)\0" // Bessel Namibia (GLM)
    "B\220s\242_1841\0" // Bessel_1841
    "B\220s\242_Modifi\275\0" // Bessel_Modified
    "B\220s\242_N\225ibia\0" // Bessel_Namibia
    "Bhut\005\0" // Bhutan
    "Bhut\005\002Bum\024\005g di\375#t\0" // Bhutan - Bumthang district
    "Bhut\005\002Chhukh\027di\375#t\0" // Bhutan - Chhukha district
    "Bhut\005\002Dag\005\027di\375#t\0" // Bhutan - Dagana district
    "Bhut\005\002G}\027di\375#t\0" // Bhutan - Gasa district
    "Bhut\005\002H\027di\375#t\0" // Bhutan - Ha district
    "Bhut\005\002Lhue\035s\010di\375#t\0" // Bhutan - Lhuentse district
    "Bhut\005\002M\003g\037 di\375#t\0" // Bhutan - Mongar district
    "Bhut\005\002P\037\013di\375#t\0" // Bhutan - Paro district
    "Bhut\005\002P\212ag=<\242 di\375#t\0" // Bhutan - Pemagatshel district
    "Bhut\005\002Punakh\027di\375#t\0" // Bhutan - Punakha district
    "Bhut\005\002S\225drup J\003gkh\037 di\375#t\0" // Bhutan - Samdrup Jongkhar district
    "Bhut\005\002S\225ts\010di\375#t\0" // Bhutan - Samtse district
    "Bhut\005\002S\037p\005g di\375#t\0" // Bhutan - Sarpang district
    "Bhut\005\002Thim\237u di\375#t\0" // Bhutan - Thimphu district
    "Bhut\005\002T\350<ig\005g di\375#t\0" // Bhutan - Trashigang district
    "Bhut\005\002Tr\003gs\027di\375#t\0" // Bhutan - Trongsa district
    "Bhut\005\002Ts\340\005g di\375#t\0" // Bhutan - Tsirang district
    "Bhut\005\002W\005gdu\010Phodr\005g di\375#t\0" // Bhutan - Wangdue Phodrang district
    "Bhut\005\002Y\005gts\010di\375#t\0" // Bhutan - Yangtse district
    "Bhut\005\002Z\300g\005g di\375#t\0" // Bhutan - Zhemgang district
    "Bhut\005 N=\320\230Geod\036# D=um\0" // Bhutan National Geodetic Datum
    "Bhut\005_N=\320\025_Geod\036#_D=um\0" // Bhutan_National_Geodetic_Datum
    "Bhut\005_N=\320\025_Gr\257\0" // Bhutan_National_Grid
    "Bih\037 \333F LCC\0" // Bihar NSF LCC
    "B\341l\023gs`t_I\035l\0" // Billings_Ft_Intl
    "B\341l\023gs_M\313\0" // Billings_Meters
    "B\023 w\257@12\235 m\036>s\0" // Bin width 12.5 metres
    "B\023 w\257@165 \203 s\224ve\204f\234\0" // Bin width 165 US survey feet
    "B\023 w\257@25 m\036>s\0" // Bin width 25 metres
    "B\023 w\257@3.125 m\036>s\0" // Bin width 3.125 metres
    "B\023 w\257@330 \203 s\224ve\204f\234\0" // Bin width 330 US survey feet
    "B\023 w\257@37\235 m\036>s\0" // Bin width 37.5 metres
    "B\023 w\257@6.25 m\036>s\0" // Bin width 6.25 metres
    "B\023 w\257@82\235 \203 s\224ve\204f\234\0" // Bin width 82.5 US survey feet
    "B\077sau\0" // Bissau
    "B\077sau\012U\254\27328N\0" // Bissau / UTM zone 28N
    "B\077sau_U\254_Z\003\21528N\0" // Bissau_UTM_Zone_28N
    "Blackf\234`t_I\035l\0" // Blackfeet_Ft_Intl
    "Blackf\234_M\313\0" // Blackfeet_Meters
    "Blackf\006d-D\242aw\037\215(ft\203)\0" // Blackford-Delaware_(ftUS)
    "Blackf\006d-D\242aw\037\215(m)\0" // Blackford-Delaware_(m)
    "Blu\010N\341\010\03158\0" // Blue Nile 1958
    "Bluff\377\340cu\245\0" // Bluff_Circuit
    "Bobc=`t_I\035l\0" // Bobcat_Ft_Intl
    "Bobc=_M\313\0" // Bobcat_Meters
    "Bog\337\027\03175\0" // Bogota 1975
    "Bog\337\027\03175\201Bog\337a)\0" // Bogota 1975 (Bogota)
    "Bog\337\027\03175\201Bog\337a)\022Bog\337\027\03175\201G>\207w#h)\0" // Bogota 1975 (Bogota) to Bogota 1975 (Greenwich)
    "Bog\337\027\03175\012C\246\343b\315Bog\337\027$e\0" // Bogota 1975 / Colombia Bogota zone
    "Bog\337\027\03175\012C\246\343b\315Ea\020\0" // Bogota 1975 / Colombia East
    "Bog\337\027\03175\012C\246\343b\315E\314C\367\230$e\0" // Bogota 1975 / Colombia East Central zone
    "Bog\337\027\03175\012C\246\343b\315E\314$e\0" // Bogota 1975 / Colombia East zone
    "Bog\337\027\03175\012C\246\343b\315W\267$e\0" // Bogota 1975 / Colombia West zone
    "Bog\337\027\03175\012U\254\27317N\0" // Bogota 1975 / UTM zone 17N
    "Bog\337\027\03175\012U\254\27318N\0" // Bogota 1975 / UTM zone 18N
    "Bog\337\256Bog\337a\0" // Bogota_Bogota
    "Bog\337\256DC_\2275\0" // Bogota_DC_2005
    "Bog\337\256U\254_Z\003\21517N\0" // Bogota_UTM_Zone_17N
    "Bog\337\256U\254_Z\003\21518N\0" // Bogota_UTM_Zone_18N
    "Bog\337\256Z\003e\0" // Bogota_Zone
    "B\246iv\21366\22160!\0" // Bolivia - 66°W to 60°W
    "B\246iv\213Block 20\0" // Bolivia - Block 20
    "B\246iv\213M\226\257i\0" // Bolivia - Madidi
    "B\246iv\213e\314\24360!\0" // Bolivia - east of 60°W
    "B\246iv\213w\267\24366!\0" // Bolivia - west of 66°W
    "Bo\003e-H\207dr#ks_(ft\203)\0" // Boone-Hendricks_(ftUS)
    "Bo\003e-H\207dr#ks_(m)\0" // Boone-Hendricks_(m)
    "B\006chg>v\023k\327o\314L\225b\007t\327\003f\006m\230\2270\0" // Borchgrevink Coast Lambert Conformal 2000
    "B\006ne\013{O\0" // Borneo RSO
    "B\006ne\013Tr\336gul=i\231\243\03168\0" // Borneo Triangulation of 1968
    "Bosn\315\253H\007zegov\023a\0" // Bosnia and Herzegovina
    "B\337sw\005a\0" // Botswana
    "B\337sw\005\03021\200\306\015\0" // Botswana - 21°E to 27°E
    "B\337sw\005\030e\314\24324\015\0" // Botswana - east of 24°E
    "B\337sw\005\030w\267\24324\015\0" // Botswana - west of 24°E
    "B\350z\341\0" // Brazil
    "B\350z\341\00236\22130!\0" // Brazil - 36°W to 30°W
    "B\350z\341\00236\22130! \214f~e\0" // Brazil - 36°W to 30°W offshore
    "B\350z\341\00242\22136!\0" // Brazil - 42°W to 36°W
    "B\350z\341\00242\22136!\374\325=u\0" // Brazil - 42°W to 36°W and Aratu
    "B\350z\341\00242\22136!\374n\006@\2430\004N\0" // Brazil - 42°W to 36°W and north of 0°N
    "B\350z\341\00242\22136!\374s\250\24315\376\356\0" // Brazil - 42°W to 36°W and south of 15°S onshore
    "B\350z\341\00242\22136!\356\0" // Brazil - 42°W to 36°W onshore
    "B\350z\341\00248\22142!\0" // Brazil - 48°W to 42°W
    "B\350z\341\00248\22142!\374\325=u\0" // Brazil - 48°W to 42°W and Aratu
    "B\350z\341\00248\22142!\374n\006@\2430\004N\0" // Brazil - 48°W to 42°W and north of 0°N
    "B\350z\341\00248\22142!\374s\250\24315\376\0" // Brazil - 48°W to 42°W and south of 15°S
    "B\350z\341\00254\22148!\37415\376\022\306\00430'S\0" // Brazil - 54°W to 48°W and 15°S to 27°30'S
    "B\350z\341\00254\22148!\374\325=u\0" // Brazil - 54°W to 48°W and Aratu
    "B\350z\341\00254\22148!\374S\01669\0" // Brazil - 54°W to 48°W and SAD69
    "B\350z\341\00254\22148!\374s\250\24315\376\0" // Brazil - 54°W to 48°W and south of 15°S
    "B\350z\341\00260\22154!\0" // Brazil - 60°W to 54°W
    "B\350z\341\00266\22160!\0" // Brazil - 66°W to 60°W
    "B\350z\341\00272\22166!\0" // Brazil - 72°W to 66°W
    "B\350z\341\002Ama$ c\003\010<\242f\0" // Brazil - Amazon cone shelf
    "B\350z\341\002\325=u\0" // Brazil - Aratu
    "B\350z\341\002C\225pos\0" // Brazil - Campos
    "B\350z\341\002C\225pos; Esp\340\245\013S\005t\013\033|\005tos b}\023s\0" // Brazil - Campos; Espirito Santo and Santos basins
    "B\350z\341\002C\006\265\013Alegr\010\03161\0" // Brazil - Corrego Alegre 1961
    "B\350z\341\002C\006\265\013Alegr\010\03170-\03172\0" // Brazil - Corrego Alegre 1970-1972
    "B\350z\341\002Cum\224ux=iba\277Jequ\245\023h\003h\027\253C\225\225u-Alm\226a\0" // Brazil - Cumuruxatiba, Jequitinhonha and Camamu-Almada
    "B\350z\341\002Di\375\245\013F\275\007\025\0" // Brazil - Distrito Federal
    "B\350z\341\002Esp\340\245\013S\005t\013\253Muc\224i\0" // Brazil - Espirito Santo and Mucuri
    "B\350z\341\002P\037aiba-P\007n\225buco\0" // Brazil - Paraiba-Pernambuco
    "B\350z\341\002P\242\337}\0" // Brazil - Pelotas
    "B\350z\341\002P\337igu\037\277Ce\037\027\253B\037>\340\023h}\0" // Brazil - Potiguar, Ceara and Barreirinhas
    "B\350z\341\002Rec\003cav\013\253Jacuipe\0" // Brazil - Reconcavo and Jacuipe
    "B\350z\341\002S\005tos\0" // Brazil - Santos
    "B\350z\341\002S\005tos\374P\242\337}\0" // Brazil - Santos and Pelotas
    "B\350z\341\002S\007gip\010\253Alago}\0" // Brazil - Sergipe and Alagoas
    "B\350z\341\002Tuc\005\013\253J=oba\0" // Brazil - Tucano and Jatoba
    "B\350z\341\002Tuc\005\013b}\023 c\367\025\0" // Brazil - Tucano basin central
    "B\350z\341\002Tuc\005\013b}\023 n\006\024\0" // Brazil - Tucano basin north
    "B\350z\341\002Tuc\005\013b}\023 s\365\0" // Brazil - Tucano basin south
    "B\350z\341\002e\314\24330!\0" // Brazil - east of 30°W
    "B\350z\341\002e\314\24336!\356\0" // Brazil - east of 36°W onshore
    "B\350z\341\002equ=\006i\230m\037g\023\0" // Brazil - equatorial margin
    "B\350z\341\002\214f~\01018\376\02234\376\0" // Brazil - offshore 18°S to 34°S
    "B\350z\341\002\210\010s\250\24314\376\374e\314\24353!\0" // Brazil - onshore south of 14°S and east of 53°W
    "B\350z\341\002w\267\24354!\374b\036we\207 18\376\374\306\00430'S\0" // Brazil - west of 54°W and between 18°S and 27°30'S
    "B\350z\341\002w\267\24354!\374s\250\24318\376\0" // Brazil - west of 54°W and south of 18°S
    "B\350z\341\002w\267\24372!\0" // Brazil - west of 72°W
    "Br\077b\005\010C\245y|\224ve\204Gr\257 02\0" // Brisbane City Survey Grid 02
    "Br\077b\005\010C\245y|\224ve\204Gr\257 \03420\0" // Brisbane City Survey Grid 2020
    "Br\245i<\327\246umb\315Alb\232\0" // British Columbia Albers
    "Br\245i< \360\336 Oce\005 T\007r\245\006y\002Dieg\013G\037cia\0" // British Indian Ocean Territory - Diego Garcia
    "Br\245i< cha\023\201B\207o\245 1895 A)\0" // British chain (Benoit 1895 A)
    "Br\245i< cha\023\201B\207o\245 1895 B)\0" // British chain (Benoit 1895 B)
    "Br\245i< cha\023\201Se\037s\31722\017runc=\275)\0" // British chain (Sears 1922 truncated)
    "Br\245i< cha\023\201Se\037s\31722)\0" // British chain (Sears 1922)
    "Br\245i< fo\337\2011865)\0" // British foot (1865)
    "Br\245i< fo\337\201\03136)\0" // British foot (1936)
    "Br\245i< fo\337\201B\207o\245 1895 A)\0" // British foot (Benoit 1895 A)
    "Br\245i< fo\337\201B\207o\245 1895 B)\0" // British foot (Benoit 1895 B)
    "Br\245i< fo\337\201Se\037s\31722\017runc=\275)\0" // British foot (Sears 1922 truncated)
    "Br\245i< fo\337\201Se\037s\31722)\0" // British foot (Sears 1922)
    "Br\245i< l\023k\201B\207o\245 1895 A)\0" // British link (Benoit 1895 A)
    "Br\245i< l\023k\201B\207o\245 1895 B)\0" // British link (Benoit 1895 B)
    "Br\245i< l\023k\201Se\037s\31722\017runc=\275)\0" // British link (Sears 1922 truncated)
    "Br\245i< l\023k\201Se\037s\31722)\0" // British link (Sears 1922)
    "Br\245i< y\037d\201B\207o\245 1895 A)\0" // British yard (Benoit 1895 A)
    "Br\245i< y\037d\201B\207o\245 1895 B)\0" // British yard (Benoit 1895 B)
    "Br\245i< y\037d\201Se\037s\31722\017runc=\275)\0" // British yard (Sears 1922 truncated)
    "Br\245i< y\037d\201Se\037s\31722)\0" // British yard (Sears 1922)
    "Br\245i<\21136\0" // British_1936
    "Br\245i<_N=\320\025_Gr\257\0" // British_National_Grid
    "Bro\343\010Gr\257 \03420\0" // Broome Grid 2020
    "Brown_(ft\203)\0" // Brown_(ftUS)
    "Brown_(m)\0" // Brown_(m)
    "Brown\377\026\035y\372\0" // Brown_County_Feet
    "Brown\377\026\035y_M\313\0" // Brown_County_Meters
    "Brown\372\0" // Brown_Feet
    "Brown_M\313\0" // Brown_Meters
    "Brunei\0" // Brunei
    "Brunei\002\236\0" // Brunei - onshore
    "Buc\037\225\005g\256S\005t\033\007_\2278\0" // Bucaramanga_Santander_2008
    "Buff\025o\377\026\035y\372\0" // Buffalo_County_Feet
    "Buff\025o\377\026\035y_M\313\0" // Buffalo_County_Meters
    "Buff\025o\372\0" // Buffalo_Feet
    "Buff\025o_M\313\0" // Buffalo_Meters
    "Buk\245 Rimp\361\0" // Bukit Rimpah
    "Buk\245_Rimp\361\0" // Bukit_Rimpah
    "Bulg\037ia\0" // Bulgaria
    "Bulg\037\21324\20030\015\0" // Bulgaria - 24°E to 30°E
    "Bulg\037\213e\314\24330\015\0" // Bulgaria - east of 30°E
    "Bulg\037\213\236\0" // Bulgaria - onshore
    "Bulg\037\213w\267\24324\015\0" // Bulgaria - west of 24°E
    "Bulg\037\315Geod\036#|y\020\212 \2275\0" // Bulgaria Geodetic System 2005
    "Bulg\037i\256Geod\036#_Sy\020\212_\2275\0" // Bulgaria_Geodetic_System_2005
    "Bull\007\377\340cu\245\0" // Buller_Circuit
    "Bum\024\005g_\254\0" // Bumthang_TM
    "Bund\220m\242d\207\036z M28\0" // Bundesmeldenetz M28
    "Bund\220m\242d\207\036z M31\0" // Bundesmeldenetz M31
    "Bund\220m\242d\207\036z M34\0" // Bundesmeldenetz M34
    "B\224k\023\027F}o\0" // Burkina Faso
    "B\224n\036t\377\026\035y\372\0" // Burnett_County_Feet
    "B\224n\036t\377\026\035y_M\313\0" // Burnett_County_Meters
    "B\224n\036t\372\0" // Burnett_Feet
    "B\224n\036t_M\313\0" // Burnett_Meters
    "B\224ns-H\037p\007_\021\211\014_\240_\254`t_I\035l\0" // Burns-Harper_NAD_1983_2011_TM_Ft_Intl
    "B\224ns-H\037p\007_\021\211\014_\240_\254_M\313\0" // Burns-Harper_NAD_1983_2011_TM_Meters
    "B\224undi\0" // Burundi
    "B\351s\242t\231Coa\020\230Gr\257\0" // Busselton Coastal Grid
    "C \310cha\351p\010/\325ge\035\023\027\0" // C Inchauspe /Argentina 
    "CA61_003.gsb\0" // CA61_003.gsb
    "CA7072_003.gsb\0" // CA7072_003.gsb
    "CABA-P07\0" // CABA-P07
    "CG\134 \2270\002L=L\003\0" // CGCS 2000 - LatLon
    "CG\134\2270\0" // CGCS2000
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M \3122E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 102E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M \3125E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 105E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M \3128E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 108E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M \2021E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 111E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M \2024E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 114E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M \2027E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 117E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 120E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 123E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 123E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 126E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 126E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 129E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 129E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 132E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 132E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 135E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 135E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 75E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 75E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 78E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 78E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 81E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 81E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 84E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 84E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 87E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 87E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 90E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 90E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 93E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 93E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 96E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 96E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\327M 99E\0" // CGCS2000 / 3-degree Gauss-Kruger CM 99E
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27325\0" // CGCS2000 / 3-degree Gauss-Kruger zone 25
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27326\0" // CGCS2000 / 3-degree Gauss-Kruger zone 26
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27327\0" // CGCS2000 / 3-degree Gauss-Kruger zone 27
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27328\0" // CGCS2000 / 3-degree Gauss-Kruger zone 28
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27329\0" // CGCS2000 / 3-degree Gauss-Kruger zone 29
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27330\0" // CGCS2000 / 3-degree Gauss-Kruger zone 30
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27331\0" // CGCS2000 / 3-degree Gauss-Kruger zone 31
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27332\0" // CGCS2000 / 3-degree Gauss-Kruger zone 32
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27333\0" // CGCS2000 / 3-degree Gauss-Kruger zone 33
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27334\0" // CGCS2000 / 3-degree Gauss-Kruger zone 34
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27335\0" // CGCS2000 / 3-degree Gauss-Kruger zone 35
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27336\0" // CGCS2000 / 3-degree Gauss-Kruger zone 36
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27337\0" // CGCS2000 / 3-degree Gauss-Kruger zone 37
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27338\0" // CGCS2000 / 3-degree Gauss-Kruger zone 38
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27339\0" // CGCS2000 / 3-degree Gauss-Kruger zone 39
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27340\0" // CGCS2000 / 3-degree Gauss-Kruger zone 40
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27341\0" // CGCS2000 / 3-degree Gauss-Kruger zone 41
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27342\0" // CGCS2000 / 3-degree Gauss-Kruger zone 42
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27343\0" // CGCS2000 / 3-degree Gauss-Kruger zone 43
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27344\0" // CGCS2000 / 3-degree Gauss-Kruger zone 44
    "CG\134\2270\0123-deg>\010Ga\351s-Krug\007\27345\0" // CGCS2000 / 3-degree Gauss-Kruger zone 45
    "CG\134\2270\012Ga\351s-Krug\007\327M \3125E\0" // CGCS2000 / Gauss-Kruger CM 105E
    "CG\134\2270\012Ga\351s-Krug\007\327M \2021E\0" // CGCS2000 / Gauss-Kruger CM 111E
    "CG\134\2270\012Ga\351s-Krug\007\327M \2027E\0" // CGCS2000 / Gauss-Kruger CM 117E
    "CG\134\2270\012Ga\351s-Krug\007\327M 123E\0" // CGCS2000 / Gauss-Kruger CM 123E
    "CG\134\2270\012Ga\351s-Krug\007\327M 129E\0" // CGCS2000 / Gauss-Kruger CM 129E
    "CG\134\2270\012Ga\351s-Krug\007\327M 135E\0" // CGCS2000 / Gauss-Kruger CM 135E
    "CG\134\2270\012Ga\351s-Krug\007\327M 75E\0" // CGCS2000 / Gauss-Kruger CM 75E
    "CG\134\2270\012Ga\351s-Krug\007\327M 81E\0" // CGCS2000 / Gauss-Kruger CM 81E
    "CG\134\2270\012Ga\351s-Krug\007\327M 87E\0" // CGCS2000 / Gauss-Kruger CM 87E
    "CG\134\2270\012Ga\351s-Krug\007\327M 93E\0" // CGCS2000 / Gauss-Kruger CM 93E
    "CG\134\2270\012Ga\351s-Krug\007\327M 99E\0" // CGCS2000 / Gauss-Kruger CM 99E
    "CG\134\2270\012Ga\351s-Krug\007\27313\0" // CGCS2000 / Gauss-Kruger zone 13
    "CG\134\2270\012Ga\351s-Krug\007\27314\0" // CGCS2000 / Gauss-Kruger zone 14
    "CG\134\2270\012Ga\351s-Krug\007\27315\0" // CGCS2000 / Gauss-Kruger zone 15
    "CG\134\2270\012Ga\351s-Krug\007\27316\0" // CGCS2000 / Gauss-Kruger zone 16
    "CG\134\2270\012Ga\351s-Krug\007\27317\0" // CGCS2000 / Gauss-Kruger zone 17
    "CG\134\2270\012Ga\351s-Krug\007\27318\0" // CGCS2000 / Gauss-Kruger zone 18
    "CG\134\2270\012Ga\351s-Krug\007\27319\0" // CGCS2000 / Gauss-Kruger zone 19
    "CG\134\2270\012Ga\351s-Krug\007\27320\0" // CGCS2000 / Gauss-Kruger zone 20
    "CG\134\2270\012Ga\351s-Krug\007\27321\0" // CGCS2000 / Gauss-Kruger zone 21
    "CG\134\2270\012Ga\351s-Krug\007\27322\0" // CGCS2000 / Gauss-Kruger zone 22
    "CG\134\2270\012Ga\351s-Krug\007\27323\0" // CGCS2000 / Gauss-Kruger zone 23
    "CG\134\2270_3_Deg>\215GK_\0" // CGCS2000_3_Degree_GK_
    "CG\134\2270_3_Deg>\215GK_Z\003\215\0" // CGCS2000_3_Degree_GK_Zone_
    "CG\134\2270_GK_\0" // CGCS2000_GK_
    "CGQ77-98.gsb\0" // CGQ77-98.gsb
    "CG{93\0" // CGRS93
    "CG{93\012Cypr\351 Loc\230Tr\005sv\232\010M\007c=\006\0" // CGRS93 / Cyprus Local Transverse Mercator
    "CG{_\03193\0" // CGRS_1993
    "CG{\21193\377ypr\351_Loc\025_Tr\005sv\232\215M\007c=\006\0" // CGRS_1993_Cyprus_Local_Transverse_Mercator
    "CH\03103\0" // CH1903
    "CH\03103\201B\007n)\0" // CH1903 (Bern)
    "CH\03103\012LV03\0" // CH1903 / LV03
    "CH\03103\012LV03C-G\0" // CH1903 / LV03C-G
    "CH\03103+\0" // CH1903+
    "CH\03103+\012LV95\0" // CH1903+ / LV95
    "CH\03103+_LV95\0" // CH1903+_LV95
    "CH\03103_LV03\0" // CH1903_LV03
    "CH\03103_LV03C-G\0" // CH1903_LV03C-G
    "CHENyx06_ET{.gsb\0" // CHENyx06_ETRS.gsb
    "CHENyx06a.gsb\0" // CHENyx06a.gsb
    "CHTRF95\0" // CHTRF95
    "CHT{95\0" // CHTRS95
    "CI\03171\0" // CI1971
    "CI\03171\012Cha\024\225 \335s Map Gr\257\0" // CI1971 / Chatham Islands Map Grid
    "CI\03171\022WGS 84\2011)\0" // CI1971 to WGS 84 (1)
    "CI\03179\0" // CI1979
    "CI\03179\012Cha\024\225 \335s Map Gr\257\0" // CI1979 / Chatham Islands Map Grid
    "CI\03179\022NZGD\2270\2011)\0" // CI1979 to NZGD2000 (1)
    "CI\03179\022WGS 84\2011)\0" // CI1979 to WGS 84 (1)
    "CIGD11\0" // CIGD11
    "CM_\3122E\0" // CM_102E
    "CM_\3125E\0" // CM_105E
    "CM_\3128E\0" // CM_108E
    "CM_\2021E\0" // CM_111E
    "CM_\2024E\0" // CM_114E
    "CM_\2027E\0" // CM_117E
    "CM_1\034E\0" // CM_120E
    "CM_123E\0" // CM_123E
    "CM_126E\0" // CM_126E
    "CM_129E\0" // CM_129E
    "CM_132E\0" // CM_132E
    "CM_135E\0" // CM_135E
    "CM_24E\0" // CM_24E
    "CM_30E\0" // CM_30E
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
    "CO{96\0" // CORS96
    "CO{96_\326\003_St=ew\257\215L\225b\007t\0" // CORS96_Oregon_Statewide_Lambert
    "CO{96_\326\003_St=ew\257\215L\225b\007t`t_I\035l\0" // CORS96_Oregon_Statewide_Lambert_Ft_Intl
    "CO{96_\276_Pu\007to_R#o_\033_V\340g\023_\335s\0" // CORS96_SPCS_Puerto_Rico_and_Virgin_Islands
    "CQ77NA\014.GSB\0" // CQ77NA83.GSB
    "CQ77\323{.GSB\0" // CQ77SCRS.GSB
    "CR-SIRGAS\0" // CR-SIRGAS
    "CR-SIRGAS\012CR\25405\0" // CR-SIRGAS / CRTM05
    "CR-SIRGAS\012U\254\27316N\0" // CR-SIRGAS / UTM zone 16N
    "CR-SIRGAS\012U\254\27317N\0" // CR-SIRGAS / UTM zone 17N
    "CR-SIRGAS_CR\25405\0" // CR-SIRGAS_CRTM05
    "CR-SIRGAS_U\254_Z\003\21516N\0" // CR-SIRGAS_UTM_Zone_16N
    "CR-SIRGAS_U\254_Z\003\21517N\0" // CR-SIRGAS_UTM_Zone_17N
    "CR05\0" // CR05
    "CR05\012CR\25405\0" // CR05 / CRTM05
    "CR14\0" // CR14
    "CRD\306_00.GSB\0" // CRD27_00.GSB
    "CRD93_00.GSB\0" // CRD93_00.GSB
    "CRD98_00.GSB\0" // CRD98_00.GSB
    "\134\2275\27334\0" // CS2005 zone 34
    "\134\2275\27335\0" // CS2005 zone 35
    "\134G67\0" // CSG67
    "\134G67\012U\254\27321N\0" // CSG67 / UTM zone 21N
    "\134G67\012U\254\27322N\0" // CSG67 / UTM zone 22N
    "\134G\21167\0" // CSG_1967
    "\134G\21167_U\254_22N\0" // CSG_1967_UTM_22N
    "\134G\21167_U\254_Z\003\21521N\0" // CSG_1967_UTM_Zone_21N
    "C\226a\375\230Co\006d\023=\010Sy\020\212 \2275\0" // Cadastral Coordinate System 2005
    "C\226a\375\010\03197\0" // Cadastre 1997
    "C\226a\375\010\03197\012U\254\27338S\0" // Cadastre 1997 / UTM zone 38S
    "C\226a\020>_\03197\0" // Cadastre_1997
    "C\226a\020>\21197_U\254_Z\003\21538S\0" // Cadastre_1997_UTM_Zone_38S
    "C\025i_V\025l\215d\242\377auc\256\2279\0" // Cali_Valle_del_Cauca_2009
    "C\025if\006n\315\134\306\273I\0" // California CS27 zone I
    "C\025if\006n\315\134\306\273II\0" // California CS27 zone II
    "C\025if\006n\315\134\306\273III\0" // California CS27 zone III
    "C\025if\006n\315\134\306\273IV\0" // California CS27 zone IV
    "C\025if\006n\315\134\306\273V\0" // California CS27 zone V
    "C\025if\006n\315\134\306\273VI\0" // California CS27 zone VI
    "C\025if\006n\315\134\306\273VII\0" // California CS27 zone VII
    "C\025if\006ni\256Te\025\215Alb\232\0" // California_Teale_Albers
    "C\025um\036`\003d_du_Lac_Outag\225i\215W\023nebago\372\0" // Calumet_Fond_du_Lac_Outagamie_Winnebago_Feet
    "C\025um\036`\003d_du_Lac_Outag\225i\215W\023nebago_M\313\0" // Calumet_Fond_du_Lac_Outagamie_Winnebago_Meters
    "C\025um\036`\003d_du_Lac_Outag\225i\215\033_W\023nebago\372\0" // Calumet_Fond_du_Lac_Outagamie_and_Winnebago_Feet
    "C\025um\036`\003d_du_Lac_Outag\225i\215\033_W\023nebago_M\313\0" // Calumet_Fond_du_Lac_Outagamie_and_Winnebago_Meters
    "C\225acupa\0" // Camacupa
    "C\225acup\027\03148\0" // Camacupa 1948
    "C\225acup\027\03148\012\254 \202.30|E\0" // Camacupa 1948 / TM 11.30 SE
    "C\225acup\027\03148\012\254 12|E\0" // Camacupa 1948 / TM 12 SE
    "C\225acup\027\03148\012U\254\27332S\0" // Camacupa 1948 / UTM zone 32S
    "C\225acup\027\03148\012U\254\27333S\0" // Camacupa 1948 / UTM zone 33S
    "C\225acup\027\03415\0" // Camacupa 2015
    "C\225acupa\022WGS 84\201\202)\0" // Camacupa to WGS 84 (11)
    "C\225acup\256\0" // Camacupa_
    "C\225\007o\003\0" // Cameroon
    "C\225\007o\003\002G\037\026\027\037ea\0" // Cameroon - Garoua area
    "C\225\007o\003\002N'Dj\225\207\027\037ea\0" // Cameroon - N'Djamena area
    "C\225\007o\003\002coa\020\230\037ea\0" // Cameroon - coastal area
    "C\225\007o\003\002\236\0" // Cameroon - onshore
    "C\225p A>\027A\375o\0" // Camp Area Astro
    "C\225p_A>a\0" // Camp_Area
    "C\225pb\242l \335 Tr\005sv\232\010M\007c=\006 \2270\0" // Campbell Island Transverse Mercator 2000
    "C\225pb\242l_\335_\254_\2270\0" // Campbell_Island_TM_2000
    "C\225p\013\310cha\351pe\0" // Campo Inchauspe
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0271\0" // Campo Inchauspe / Argentina 1
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0272\0" // Campo Inchauspe / Argentina 2
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0273\0" // Campo Inchauspe / Argentina 3
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0274\0" // Campo Inchauspe / Argentina 4
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0275\0" // Campo Inchauspe / Argentina 5
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0276\0" // Campo Inchauspe / Argentina 6
    "C\225p\013\310cha\351p\010\011\325ge\035\023\0277\0" // Campo Inchauspe / Argentina 7
    "C\225p\013\310cha\351p\010\011U\254\27319S\0" // Campo Inchauspe / UTM zone 19S
    "C\225p\013\310cha\351p\010\011U\254\273\034S\0" // Campo Inchauspe / UTM zone 20S
    "C\225po_\310cha\351pe\0" // Campo_Inchauspe
    "C\225po_\310cha\351p\215U\254_19S\0" // Campo_Inchauspe_UTM_19S
    "C\225po_\310cha\351p\215U\254_\034S\0" // Campo_Inchauspe_UTM_20S
    "C\005\226\030\3122\22196!\0" // Canada - 102°W to 96°W
    "C\005\226\030\3128\221\3122!\0" // Canada - 108°W to 102°W
    "C\005\226\030\3128\221\3122!\277s\250\24360\004N\0" // Canada - 108°W to 102°W, south of 60°N
    "C\005\226\030\2024\221\3128!\0" // Canada - 114°W to 108°W
    "C\005\226\030\2024\221\3128!\277s\250\24360\004N\0" // Canada - 114°W to 108°W, south of 60°N
    "C\005\226\0301\034\221\2024!\0" // Canada - 120°W to 114°W
    "C\005\226\0301\034\221\2024!\277s\250\24360\004N\0" // Canada - 120°W to 114°W, south of 60°N
    "C\005\226\030126\2211\034!\0" // Canada - 126°W to 120°W
    "C\005\226\030132\221126!\0" // Canada - 132°W to 126°W
    "C\005\226\030138\221132!\0" // Canada - 138°W to 132°W
    "C\005\226\030144\221138!\0" // Canada - 144°W to 138°W
    "C\005\226\03048\22142!\0" // Canada - 48°W to 42°W
    "C\005\226\03054\22148!\0" // Canada - 54°W to 48°W
    "C\005\226\03060\22154!\0" // Canada - 60°W to 54°W
    "C\005\226\03060\22154!\374\02127\0" // Canada - 60°W to 54°W and NAD27
    "C\005\226\03066\22160!\0" // Canada - 66°W to 60°W
    "C\005\226\03066\22160!\277s\250\24360\004N\0" // Canada - 66°W to 60°W, south of 60°N
    "C\005\226\03072\22166!\0" // Canada - 72°W to 66°W
    "C\005\226\03072\22166!\277s\250\24362\004N\0" // Canada - 72°W to 66°W, south of 62°N
    "C\005\226\03078\22172!\0" // Canada - 78°W to 72°W
    "C\005\226\03084\22178!\0" // Canada - 84°W to 78°W
    "C\005\226\03090\22184!\0" // Canada - 90°W to 84°W
    "C\005\226\03096\22190!\0" // Canada - 96°W to 90°W
    "C\005\226\030Alb\007ta\0" // Canada - Alberta
    "C\005\226\030Alb\007t\030\2025\235\221\2022\235!\0" // Canada - Alberta - 115.5°W to 112.5°W
    "C\005\226\030Alb\007t\030\2028\235\221\2025\235!\0" // Canada - Alberta - 118.5°W to 115.5°W
    "C\005\226\030Alb\007t\030e\314\243\2022\235!\0" // Canada - Alberta - east of 112.5°W
    "C\005\226\030Alb\007t\030w\267\243\2028\235!\0" // Canada - Alberta - west of 118.5°W
    "C\005\226\030Alb\007t\027\253Br\245i<\327\246umbia\0" // Canada - Alberta and British Columbia
    "C\005\226\030Atl\005t# \214f~e\0" // Canada - Atlantic offshore
    "C\005\226\030Br\245i<\327\246umbia\0" // Canada - British Columbia
    "C\005\226\030Br\245i<\327\246umb\213CRD\0" // Canada - British Columbia - CRD
    "C\005\226\030Br\245i<\327\246umb\213ma\023\206\0" // Canada - British Columbia - mainland
    "C\005\226\030Br\245i<\327\246umb\213n\006@V\005\352v\007 \316\0" // Canada - British Columbia - north Vancouver Is
    "C\005\226\030\134{98\0" // Canada - CSRS98
    "C\005\226\030Labr\226\006\00263\22160!\0" // Canada - Labrador - 63°W to 60°W
    "C\005\226\030Labr\226\006\00266\22163!\0" // Canada - Labrador - 66°W to 63°W
    "C\005\226\030Labr\226\006\002w\267\24366!\0" // Canada - Labrador - west of 66°W
    "C\005\226\030M\005\245ob\027\253O\035\037io\0" // Canada - Manitoba and Ontario
    "C\005\226\030M\037\245im\010Prov\023c\220\0" // Canada - Maritime Provinces
    "C\005\226\030M\037\245im\010Prov\023c\220\002e\314\24366!\0" // Canada - Maritime Provinces - east of 66°W
    "C\005\226\030M\037\245im\010Prov\023c\220\002w\267\24366!\0" // Canada - Maritime Provinces - west of 66°W
    "C\005\226\030\02127\0" // Canada - NAD27
    "C\005\226\030NWT\0" // Canada - NWT
    "C\005\226\030NWT; Nunavut;|}k=chew\005\0" // Canada - NWT; Nunavut; Saskatchewan
    "C\005\226\030\357 Brunsw#k\0" // Canada - New Brunswick
    "C\005\226\030\357f\026nd\206\0" // Canada - Newfoundland
    "C\005\226\030\357f\026nd\206\002e\314\24354\235!\0" // Canada - Newfoundland - east of 54.5°W
    "C\005\226\030\357f\026nd\206\374Labr\226\006\00257\235\22154\235!\0" // Canada - Newfoundland and Labrador - 57.5°W to 54.5°W
    "C\005\226\030\357f\026nd\206\374Labr\226\006\00260\22157\235!\0" // Canada - Newfoundland and Labrador - 60°W to 57.5°W
    "C\005\226\030Nov\027Sc\337ia\0" // Canada - Nova Scotia
    "C\005\226\030Nov\027Sc\337\213e\314\24363!\0" // Canada - Nova Scotia - east of 63°W
    "C\005\226\030Nov\027Sc\337\213w\267\24363!\0" // Canada - Nova Scotia - west of 63°W
    "C\005\226\030O\035\037io\0" // Canada - Ontario
    "C\005\226\030O\035\037io\00278\22175!\0" // Canada - Ontario - 78°W to 75°W
    "C\005\226\030O\035\037io\00284\22178!\0" // Canada - Ontario - 84°W to 78°W
    "C\005\226\030O\035\037io\00288\235\22185\235!\0" // Canada - Ontario - 88.5°W to 85.5°W
    "C\005\226\030O\035\037io\00290\22184!\0" // Canada - Ontario - 90°W to 84°W
    "C\005\226\030O\035\037io\00291\235\22188\235!\0" // Canada - Ontario - 91.5°W to 88.5°W
    "C\005\226\030O\035\037io\00294\235\22191\235!\0" // Canada - Ontario - 94.5°W to 91.5°W
    "C\005\226\030O\035\037io\002M\254\27310\0" // Canada - Ontario - MTM zone 10
    "C\005\226\030O\035\037io\002M\254\27311\0" // Canada - Ontario - MTM zone 11
    "C\005\226\030O\035\037io\002M\254\27312\0" // Canada - Ontario - MTM zone 12
    "C\005\226\030O\035\037io\002M\254\27313\0" // Canada - Ontario - MTM zone 13
    "C\005\226\030O\035\037io\002T\006\003to\0" // Canada - Ontario - Toronto
    "C\005\226\030O\035\037io\002e\314\24375!\0" // Canada - Ontario - east of 75°W
    "C\005\226\030O\035\037io\002e\314\24378!\0" // Canada - Ontario - east of 78°W
    "C\005\226\030O\035\037io\002w\267\24390!\0" // Canada - Ontario - west of 90°W
    "C\005\226\030O\035\037io\002w\267\24394\235!\0" // Canada - Ontario - west of 94.5°W
    "C\005\226\030O\035\037i\013ex. T\006\003to\0" // Canada - Ontario ex. Toronto
    "C\005\226\030Pr\023c\010Edw\037d \335\0" // Canada - Prince Edward Island
    "C\005\226\030Quebec\0" // Canada - Quebec
    "C\005\226\030Quebec\00260\22157!\0" // Canada - Quebec - 60°W to 57°W
    "C\005\226\030Quebec\00263\22160!\0" // Canada - Quebec - 63°W to 60°W
    "C\005\226\030Quebec\00266\22160!\0" // Canada - Quebec - 66°W to 60°W
    "C\005\226\030Quebec\00266\22163!\0" // Canada - Quebec - 66°W to 63°W
    "C\005\226\030Quebec\00269\22166!\0" // Canada - Quebec - 69°W to 66°W
    "C\005\226\030Quebec\00272\22166!\0" // Canada - Quebec - 72°W to 66°W
    "C\005\226\030Quebec\00272\22169!\0" // Canada - Quebec - 72°W to 69°W
    "C\005\226\030Quebec\00275\22172!\0" // Canada - Quebec - 75°W to 72°W
    "C\005\226\030Quebec\00278\22172!\0" // Canada - Quebec - 78°W to 72°W
    "C\005\226\030Quebec\00278\22175!\0" // Canada - Quebec - 78°W to 75°W
    "C\005\226\030Quebec\002e\314\24357!\0" // Canada - Quebec - east of 57°W
    "C\005\226\030Quebec\002e\314\24360!\0" // Canada - Quebec - east of 60°W
    "C\005\226\030Quebec\002w\267\24378!\0" // Canada - Quebec - west of 78°W
    "C\005\226\030Quebec\374Labr\226\006\00263\22160!\0" // Canada - Quebec and Labrador - 63°W to 60°W
    "C\005\226\030Quebec\374Labr\226\006\00266\22163!\0" // Canada - Quebec and Labrador - 66°W to 63°W
    "C\005\226\030Quebec\374Labr\226\006\00269\22166!\0" // Canada - Quebec and Labrador - 69°W to 66°W
    "C\005\226\030Quebec\374O\035\037io\00275\22172!\0" // Canada - Quebec and Ontario - 75°W to 72°W
    "C\005\226\030Quebec\374O\035\037io\00278\22175!\0" // Canada - Quebec and Ontario - 78°W to 75°W
    "C\005\226\030Quebec\374O\035\037io\002M\254\27310\0" // Canada - Quebec and Ontario - MTM zone 10
    "C\005\226\030Quebec\277\357f\026nd\206\374Labr\226\006\002M\254\2733\0" // Canada - Quebec, Newfoundland and Labrador - MTM zone 3
    "C\005\226\030S}k=chew\005\0" // Canada - Saskatchewan
    "C\005\226\030Yuk\003\0" // Canada - Yukon
    "C\005\226\030e\314\24342!\0" // Canada - east of 42°W
    "C\005\226\030ea\020\007n prov\023c\220\0" // Canada - eastern provinces
    "C\005\226\256Atl}_L\225b\007t\0" // Canada_Atlas_Lambert
    "C\005t\003\21166\0" // Canton_1966
    "C\005y\003\377\245y-B\224ns_\021\211\014_\240_\254`t_I\035l\0" // Canyon_City-Burns_NAD_1983_2011_TM_Ft_Intl
    "C\005y\003\377\245y-B\224ns_\021\211\014_\240_\254_M\313\0" // Canyon_City-Burns_NAD_1983_2011_TM_Meters
    "Cape\0" // Cape
    "Cap\010\011Lo15\0" // Cape / Lo15
    "Cap\010\011Lo17\0" // Cape / Lo17
    "Cap\010\011Lo19\0" // Cape / Lo19
    "Cap\010\011Lo21\0" // Cape / Lo21
    "Cap\010\011Lo23\0" // Cape / Lo23
    "Cap\010\011Lo25\0" // Cape / Lo25
    "Cap\010\011Lo27\0" // Cape / Lo27
    "Cap\010\011Lo29\0" // Cape / Lo29
    "Cap\010\011Lo31\0" // Cape / Lo31
    "Cap\010\011Lo33\0" // Cape / Lo33
    "Cap\010\011U\254\27334S\0" // Cape / UTM zone 34S
    "Cap\010\011U\254\27335S\0" // Cape / UTM zone 35S
    "Cap\010\011U\254\27336S\0" // Cape / UTM zone 36S
    "Cap\010C\005av\007\025\0" // Cape Canaveral
    "Cap\010V\007de\0" // Cape Verde
    "Cap\215C\005av\007\025\0" // Cape_Canaveral
    "Cap\215U\254_Z\003\21534S\0" // Cape_UTM_Zone_34S
    "Cap\215U\254_Z\003\21535S\0" // Cape_UTM_Zone_35S
    "Cap\215U\254_Z\003\21536S\0" // Cape_UTM_Zone_36S
    "Cap\215V\007d\215Gr\257\0" // Cape_Verde_Grid
    "C\037ibbe\005\002F>nch A\035\341l\220\0" // Caribbean - French Antilles
    "C\037ibbe\005\002F>nch A\035\341l\220 w\267\24360!\0" // Caribbean - French Antilles west of 60°W
    "C\037ibbe\005\002Pu\007t\013R#\013\253\203 V\340g\023 \335s\0" // Caribbean - Puerto Rico and US Virgin Islands
    "C\037ibbe\005\002Pu\007t\013R#\013\253\203 V\340g\023 \335s\002\236\0" // Caribbean - Puerto Rico and US Virgin Islands - onshore
    "C\037ibbe\005\002Pu\007t\013R#\013\253V\340g\023 \335s\002\236\0" // Caribbean - Puerto Rico and Virgin Islands - onshore
    "C\037ibbe\005\002c\367\025\201DMA\017fm)\0" // Caribbean - central (DMA tfm)
    "C\037n\037v\231Gr\257 \03420\0" // Carnarvon Grid 2020
    "C\037r\246l_(ft\203)\0" // Carroll_(ftUS)
    "C\037r\246l_(m)\0" // Carroll_(m)
    "C\037tag\207\256B\246iv\037_\2275\0" // Cartagena_Bolivar_2005
    "C\037\024age\0" // Carthage
    "C\037\024ag\010(P\037\077)\0" // Carthage (Paris)
    "C\037\024ag\010(P\037\077*Tun\077\315M\023\023g Gr\257\0" // Carthage (Paris) / Tunisia Mining Grid
    "C\037\024ag\010\011\205d Tun\077ie\0" // Carthage / Nord Tunisie
    "C\037\024ag\010\011Sud Tun\077ie\0" // Carthage / Sud Tunisie
    "C\037\024ag\010\011\254 \202 NE\0" // Carthage / TM 11 NE
    "C\037\024ag\010\011U\254\27332N\0" // Carthage / UTM zone 32N
    "C\037\024ag\215P\037\077\0" // Carthage_Paris
    "C\037\024ag\215\254_\202_NE\0" // Carthage_TM_11_NE
    "C\037\024ag\215U\254_Z\003\21532N\0" // Carthage_UTM_Zone_32N
    "C}s_(ft\203)\0" // Cass_(ftUS)
    "C}s_(m)\0" // Cass_(m)
    "Caym\005 \335s\0" // Cayman Islands
    "Caym\005 \335s\002Gr\253Caym\005\0" // Cayman Islands - Grand Cayman
    "Caym\005 \335s\002L\245tl\010Caym\005\374Caym\005 B\350c\0" // Cayman Islands - Little Cayman and Cayman Brac
    "Caym\005 \335s Geod\036# D=um \03411\0" // Cayman Islands Geodetic Datum 2011
    "Caym\005 \335s LCC\201ft)\0" // Cayman Islands LCC (ft)
    "Caym\005 \335s N=\320\230Gr\257 \03411\0" // Cayman Islands National Grid 2011
    "Caym\005 \335s \254\201ft)\0" // Cayman Islands TM (ft)
    "Caym\005_\335s_Geod\036#_D=um_\03411\0" // Cayman_Islands_Geodetic_Datum_2011
    "Caym\005_\335s_N=\320\025_Gr\257_\03411\0" // Cayman_Islands_National_Grid_2011
    "Ce\035im\036\007\0" // Centimeter
    "C\367\230Am\007\345B\242iz\010t\013Co\020\027R#a\0" // Central America - Belize to Costa Rica
    "C\367\230Am\007\345Gu=\212\025a\022Co\020\027R#a\0" // Central America - Guatemala to Costa Rica
    "C\367\025_B\242t_\03410\0" // Central_Belt_2010
    "C\367\010Sp=i\230Guy\005a\077\31767\0" // Centre Spatial Guyanais 1967
    "Ce\035>_Fr\005ce\0" // Centre_France
    "Cha\023\0" // Chain
    "Cha\023_B\207o\245_1895_A\0" // Chain_Benoit_1895_A
    "Cha\023_B\207o\245_1895_B\0" // Chain_Benoit_1895_B
    "Cha\023_Cl\037ke\0" // Chain_Clarke
    "Cha\023_Se\037s\0" // Chain_Sears
    "Cha\023_Se\037s\21122_Trunc=\275\0" // Chain_Sears_1922_Truncated
    "Cha\023_\203\0" // Chain_US
    "Ch\005n\242 \335s\002Gu\007nsey\277A\321\007ney,|\037k\0" // Channel Islands - Guernsey, Alderney, Sark
    "Ch\005n\242 \335s\002J\232ey\277L\220 Ec>hos\374L\220 M\023qui\232\0" // Channel Islands - Jersey, Les Ecrehos and Les Minquiers
    "Cha\024\225 \335s\31771\0" // Chatham Islands 1971
    "Cha\024\225 \335s\31779\0" // Chatham Islands 1979
    "Cha\024\225 \335s D=um\31771\0" // Chatham Islands Datum 1971
    "Cha\024\225 \335s D=um\31779\0" // Chatham Islands Datum 1979
    "Cha\024\225 \335s Tr\005sv\232\010M\007c=\006 \2270\0" // Chatham Islands Transverse Mercator 2000
    "Cha\024\225_\335\21171\0" // Chatham_Island_1971
    "Cha\024\225_\335\21171_Map_Gr\257\0" // Chatham_Island_1971_Map_Grid
    "Cha\024\225_\335\377\340cu\245\0" // Chatham_Island_Circuit
    "Cha\024\225_\335s\21179\0" // Chatham_Islands_1979
    "Cha\024\225_\335s\21179_Map_Gr\257\0" // Chatham_Islands_1979_Map_Grid
    "Cha\024\225_\335s_\254_\2270\0" // Chatham_Islands_TM_2000
    "Chh=t\077g\037h \333F \254\0" // Chhattisgarh NSF TM
    "Chhukh\256\254\0" // Chhukha_TM
    "Ch\341\21672\22166!\0" // Chile - 72°W to 66°W
    "Ch\341\21678\22172!\0" // Chile - 78°W to 72°W
    "Ch\341\216Ea\020\007 \335\356\0" // Chile - Easter Island onshore
    "Ch\341\216Ti\007r\027d\242 Fuego\0" // Chile - Tierra del Fuego
    "Ch\341\216\210\01026\376\02236\376\0" // Chile - onshore 26°S to 36°S
    "Ch\341\216\210\01032\376\02236\376\0" // Chile - onshore 32°S to 36°S
    "Ch\341\216\210\01036\376\02243\235\376\0" // Chile - onshore 36°S to 43.5°S
    "Ch\341\216\210\01039\376\02243\00430'S\0" // Chile - onshore 39°S to 43°30'S
    "Ch\341\216\210\010n\006@\24321\00430'S\0" // Chile - onshore north of 21°30'S
    "Ch\341\216\210\010n\006@\24326\376\0" // Chile - onshore north of 26°S
    "Ch\341\216\210\010n\006@\24332\376\0" // Chile - onshore north of 32°S
    "Ch\341\216\210\010n\006@\24345\376\0" // Chile - onshore north of 45°S
    "Ch\341\216w\267\243\3128!\0" // Chile - west of 108°W
    "Ch\023a\0" // China
    "Ch\023\030\3120\235\200\3123\235\015\0" // China - 100.5°E to 103.5°E
    "Ch\023\030\3122\200\3128\015\0" // China - 102°E to 108°E
    "Ch\023\030\3122\200\3128\015\356\0" // China - 102°E to 108°E onshore
    "Ch\023\030\3123\235\200\3126\235\015\0" // China - 103.5°E to 106.5°E
    "Ch\023\030\3126\235\200\3129\235\015\356\0" // China - 106.5°E to 109.5°E onshore
    "Ch\023\030\3128\200\2024\015\0" // China - 108°E to 114°E
    "Ch\023\030\3128\200\2024\015\356\0" // China - 108°E to 114°E onshore
    "Ch\023\030\3129\235\200\2022\235\015\356\0" // China - 109.5°E to 112.5°E onshore
    "Ch\023\030\2022\235\200\2025\235\015\356\0" // China - 112.5°E to 115.5°E onshore
    "Ch\023\030\2024\354\034\015\0" // China - 114°E to 120°E
    "Ch\023\030\2024\354\034\015\356\0" // China - 114°E to 120°E onshore
    "Ch\023\030\2025\235\200\2028\235\015\356\0" // China - 115.5°E to 118.5°E onshore
    "Ch\023\030\2028\235\35421\235\015\356\0" // China - 118.5°E to 121.5°E onshore
    "Ch\023\0301\034\35426\015\0" // China - 120°E to 126°E
    "Ch\023\0301\034\35426\015\356\0" // China - 120°E to 126°E onshore
    "Ch\023\030121\235\35424\235\015\356\0" // China - 121.5°E to 124.5°E onshore
    "Ch\023\030124\235\354\306\235\015\356\0" // China - 124.5°E to 127.5°E onshore
    "Ch\023\030126\35432\015\0" // China - 126°E to 132°E
    "Ch\023\030126\35432\015\356\0" // China - 126°E to 132°E onshore
    "Ch\023\0301\306\235\35430\235\015\0" // China - 127.5°E to 130.5°E
    "Ch\023\030130\235\35433\235\015\0" // China - 130.5°E to 133.5°E
    "Ch\023\03076\235\20079\235\015\0" // China - 76.5°E to 79.5°E
    "Ch\023\03078\20084\015\0" // China - 78°E to 84°E
    "Ch\023\03079\235\20082\235\015\0" // China - 79.5°E to 82.5°E
    "Ch\023\03082\235\20085\235\015\0" // China - 82.5°E to 85.5°E
    "Ch\023\03084\20090\015\0" // China - 84°E to 90°E
    "Ch\023\03085\235\20088\235\015\0" // China - 85.5°E to 88.5°E
    "Ch\023\03088\235\20091\235\015\0" // China - 88.5°E to 91.5°E
    "Ch\023\03090\20096\015\0" // China - 90°E to 96°E
    "Ch\023\03091\235\20094\235\015\0" // China - 91.5°E to 94.5°E
    "Ch\023\03094\235\20097\235\015\0" // China - 94.5°E to 97.5°E
    "Ch\023\03096\200\3122\015\0" // China - 96°E to 102°E
    "Ch\023\03097\235\200\3120\235\015\0" // China - 97.5°E to 100.5°E
    "Ch\023\030H\003g K\003g\0" // China - Hong Kong
    "Ch\023\030Macao\0" // China - Macao
    "Ch\023\030Ordos b}\023\0" // China - Ordos basin
    "Ch\023\030T\037im\00277\235\20088\015\37437\004N\02242\004N\0" // China - Tarim - 77.5°E to 88°E and 37°N to 42°N
    "Ch\023\030e\314\243132\015\0" // China - east of 132°E
    "Ch\023\030e\314\243133\235\015\0" // China - east of 133.5°E
    "Ch\023\030\214f~\216Bei Bu\0" // China - offshore - Bei Bu
    "Ch\023\030\214f~\216Pe\037l Riv\007 b}\023\0" // China - offshore - Pearl River basin
    "Ch\023\030\214f~\216Y\242low|ea\0" // China - offshore - Yellow Sea
    "Ch\023\030\236\0" // China - onshore
    "Ch\023\030w\267\24376\235\015\0" // China - west of 76.5°E
    "Ch\023\030w\267\24378\015\0" // China - west of 78°E
    "Ch\023\027\2270\0" // China 2000
    "Ch\023\027Geod\036#\327o\006d\023=\010Sy\020\212 \2270\0" // China Geodetic Coordinate System 2000
    "Ch\023\256\2270\0" // China_2000
    "Ch\023\256Geod\036#\377o\006d\023=\215Sy\020\212_\2270\0" // China_Geodetic_Coordinate_System_2000
    "Chippew\256C\026\035y\372\0" // Chippewa_County_Feet
    "Chippew\256C\026\035y_M\313\0" // Chippewa_County_Meters
    "Chippewa\372\0" // Chippewa_Feet
    "Chippew\256M\313\0" // Chippewa_Meters
    "Chos M\025\025\0" // Chos Malal
    "Chos M\025\230\03114\0" // Chos Malal 1914
    "Chos M\025\230\03114\012\325ge\035\023\0272\0" // Chos Malal 1914 / Argentina 2
    "Chos_M\025\025\21114\0" // Chos_Malal_1914
    "Chos_M\025\025\21114_\325ge\035\023\2562\0" // Chos_Malal_1914_Argentina_2
    "Chri\020m} \335\002\236\0" // Christmas Island - onshore
    "Chri\020m} \335 Gr\257 \03192\0" // Christmas Island Grid 1992
    "Chri\020m} \335 Gr\257 \03194\0" // Christmas Island Grid 1994
    "Chri\020m} \335 Gr\257 \03420\0" // Christmas Island Grid 2020
    "Chua\0" // Chua
    "Chua\012U\254\27323S\0" // Chua / UTM zone 23S
    "Chua\022WGS 84\2013)\0" // Chua to WGS 84 (3)
    "Chu\256U\254_Z\003\21523S\0" // Chua_UTM_Zone_23S
    "C\245\204\253C\026\035\204\214|\005 Fr\005c\077c\013\13413\201\203|\224ve\204f\234)\0" // City and County of San Francisco CS13 (US Survey feet)
    "C\245\204\253C\026\035\204\214|\005 Fr\005c\077c\013\13413\201m\313)\0" // City and County of San Francisco CS13 (meters)
    "Cl\037k-Floyd-Sc\337t_(ft\203)\0" // Clark-Floyd-Scott_(ftUS)
    "Cl\037k-Floyd-Sc\337t_(m)\0" // Clark-Floyd-Scott_(m)
    "Cl\037k\377\026\035y\372\0" // Clark_County_Feet
    "Cl\037k\377\026\035y_M\313\0" // Clark_County_Meters
    "Cl\037k\372\0" // Clark_Feet
    "Cl\037k_M\313\0" // Clark_Meters
    "Cl\037k\0101858\0" // Clarke 1858
    "Cl\037k\0101866\0" // Clarke 1866
    "Cl\037k\0101866 M#hig\005\0" // Clarke 1866 Michigan
    "Cl\037k\0101880\0" // Clarke 1880
    "Cl\037k\0101880\201\325c)\0" // Clarke 1880 (Arc)
    "Cl\037k\0101880\201B\207o\245)\0" // Clarke 1880 (Benoit)
    "Cl\037k\0101880\201IGN)\0" // Clarke 1880 (IGN)
    "Cl\037k\0101880\201RGS)\0" // Clarke 1880 (RGS)
    "Cl\037k\0101880\201SGA\31722)\0" // Clarke 1880 (SGA 1922)
    "Cl\037k\0101880\201\023t\007n=\320\230fo\337)\0" // Clarke 1880 (international foot)
    "Cl\037ke's cha\023\0" // Clarke's chain
    "Cl\037ke's fo\337\0" // Clarke's foot
    "Cl\037ke's l\023k\0" // Clarke's link
    "Cl\037ke's y\037d\0" // Clarke's yard
    "Clay_(ft\203)\0" // Clay_(ftUS)
    "Clay_(m)\0" // Clay_(m)
    "Cl\023t\003_(ft\203)\0" // Clinton_(ftUS)
    "Cl\023t\003_(m)\0" // Clinton_(m)
    "Coa\020_R\005g\215\373_\021\211\014_\240_LCC`t_I\035l\0" // Coast_Range_North_NAD_1983_2011_LCC_Ft_Intl
    "Coa\020_R\005g\215\373_\021\211\014_\240_LCC_M\313\0" // Coast_Range_North_NAD_1983_2011_LCC_Meters
    "Cocos\201Ke\242\023g) \335s\002e\314\24396\015\0" // Cocos (Keeling) Islands - east of 96°E
    "Cocos\201Ke\242\023g) \335s\002\236\0" // Cocos (Keeling) Islands - onshore
    "Cocos\201Ke\242\023g) \335s\002w\267\24396\015\0" // Cocos (Keeling) Islands - west of 96°E
    "Cocos \335 Gr\257 \03192\0" // Cocos Island Grid 1992
    "Cocos \335 Gr\257 \03194\0" // Cocos Island Grid 1994
    "Cocos \335 Gr\257 \03420\0" // Cocos Island Grid 2020
    "Cocos \335s\31765\0" // Cocos Islands 1965
    "C\246li\010Gr\257 \03420\0" // Collie Grid 2020
    "C\246l\023gwood\377\340cu\245\0" // Collingwood_Circuit
    "C\246\343bia\0" // Colombia
    "C\246\343b\21372\00435'W\02269\00435'W\0" // Colombia - 72°35'W to 69°35'W
    "C\246\343b\21375\00435'W\02272\00435'W\0" // Colombia - 75°35'W to 72°35'W
    "C\246\343b\21378\00435'W\02275\00435'W\0" // Colombia - 78°35'W to 75°35'W
    "C\246\343b\213\325auc\027c\245y\0" // Colombia - Arauca city
    "C\246\343b\213\325m\207\315c\245y\0" // Colombia - Armenia city
    "C\246\343b\213B\037r\005qu\341l\027c\245y\0" // Colombia - Barranquilla city
    "C\246\343b\213Bog\337\027c\245y\0" // Colombia - Bogota city
    "C\246\343b\213Buc\037\225\005g\027c\245y\0" // Colombia - Bucaramanga city
    "C\246\343b\213C\025i c\245y\0" // Colombia - Cali city
    "C\246\343b\213C\037tag\207\027c\245y\0" // Colombia - Cartagena city
    "C\246\343b\213Cucut\027c\245y\0" // Colombia - Cucuta city
    "C\246\343b\213C\351\336a\0" // Colombia - Cusiana
    "C\246\343b\213Fl\006\207c\315c\245y\0" // Colombia - Florencia city
    "C\246\343b\213Ibagu\010c\245y\0" // Colombia - Ibague city
    "C\246\343b\213\310\340\257\027c\245y\0" // Colombia - Inirida city
    "C\246\343b\213L\036#\315c\245y\0" // Colombia - Leticia city
    "C\246\343b\213M\005iz\025\220 c\245y\0" // Colombia - Manizales city
    "C\246\343b\213M\275\242l\023 c\245y\0" // Colombia - Medellin city
    "C\246\343b\213M\245u c\245y\0" // Colombia - Mitu city
    "C\246\343b\213Moco\027c\245y\0" // Colombia - Mocoa city
    "C\246\343b\213M\003t\007\315c\245y\0" // Colombia - Monteria city
    "C\246\343b\213\307iv\027c\245y\0" // Colombia - Neiva city
    "C\246\343b\213Pa\020\013c\245y\0" // Colombia - Pasto city
    "C\246\343b\213P\007e\340\027c\245y\0" // Colombia - Pereira city
    "C\246\343b\213Popay\005 c\245y\0" // Colombia - Popayan city
    "C\246\343b\213Pu\007t\013C\037>n\013c\245y\0" // Colombia - Puerto Carreno city
    "C\246\343b\213Quibd\013c\245y\0" // Colombia - Quibdo city
    "C\246\343b\213Riohach\027c\245y\0" // Colombia - Riohacha city
    "C\246\343b\213S\005 And>s c\245y\0" // Colombia - San Andres city
    "C\246\343b\213S\005 Jos\010d\242 Guavi\037\010c\245y\0" // Colombia - San Jose del Guaviare city
    "C\246\343b\213S\005t\027M\037t\027c\245y\0" // Colombia - Santa Marta city
    "C\246\343b\213Sucr\010c\245y\0" // Colombia - Sucre city
    "C\246\343b\213Tunj\027c\245y\0" // Colombia - Tunja city
    "C\246\343b\213V\025l\275up\037 c\245y\0" // Colombia - Valledupar city
    "C\246\343b\213V\341lav#\207ci\013c\245y\0" // Colombia - Villavicencio city
    "C\246\343b\213Yop\230c\245y\0" // Colombia - Yopal city
    "C\246\343b\213e\314\24369\00435'W\0" // Colombia - east of 69°35'W
    "C\246\343b\213ma\023\206\0" // Colombia - mainland
    "C\246\343b\213ma\023\206\374\214f~\010C\037ibbe\005\0" // Colombia - mainland and offshore Caribbean
    "C\246\343b\213\214f~\010C\037ibbe\005 w\267\24372!\0" // Colombia - offshore Caribbean west of 72°W
    "C\246\343b\213\214f~\010w\267\24378!\0" // Colombia - offshore west of 78°W
    "C\246\343b\213w\267\24375\00435'W\0" // Colombia - west of 75°35'W
    "C\246\343b\213w\267\24378\00435'W\0" // Colombia - west of 78°35'W
    "C\246\343b\315MAGNA Bog\337\027$e\0" // Colombia MAGNA Bogota zone
    "C\246\343b\315MAGNA E\314C\367\230$e\0" // Colombia MAGNA East Central zone
    "C\246\343b\315MAGNA E\314$e\0" // Colombia MAGNA East zone
    "C\246\343b\315MAGNA F\037 W\267$e\0" // Colombia MAGNA Far West zone
    "C\246\343b\315MAGNA W\267$e\0" // Colombia MAGNA West zone
    "C\246\343b\315Tr\005sv\232\010M\007c=\006\0" // Colombia Transverse Mercator
    "C\246\343b\315\265i\2311\0" // Colombia region 1
    "C\246\343b\315\265i\2312\0" // Colombia region 2
    "C\246\343b\315\265i\2313\0" // Colombia region 3
    "C\246\343b\315\265i\2314\0" // Colombia region 4
    "C\246\343b\315\265i\2315\0" // Colombia region 5
    "C\246\343b\315\265i\2316\0" // Colombia region 6
    "C\246\343b\315\265i\2317\0" // Colombia region 7
    "C\246\343b\315\265i\2318\0" // Colombia region 8
    "C\246\343bi\256\0" // Colombia_
    "C\246\343bi\256Bog\337a\0" // Colombia_Bogota
    "C\246\343bi\256E\020e\0" // Colombia_Este
    "C\246\343bi\256E\020\215E\020e\0" // Colombia_Este_Este
    "C\246\343bi\256Oe\020e\0" // Colombia_Oeste
    "C\246\343bi\256Oe\020\215Oe\020e\0" // Colombia_Oeste_Oeste
    "C\246\006\226\013\134\306\327\367\230$e\0" // Colorado CS27 Central zone
    "C\246\006\226\013\134\306 \324$e\0" // Colorado CS27 North zone
    "C\246\006\226\013\134\306|\250$e\0" // Colorado CS27 South zone
    "C\246\006\226o\377\367\025\2720502\0" // Colorado_Central_FIPS_0502
    "C\246\006\226o\377\367\025\2720502\372\0" // Colorado_Central_FIPS_0502_Feet
    "C\246\006\226o\377\367\025\2720502`t_\203\0" // Colorado_Central_FIPS_0502_Ft_US
    "C\246\006\226o_\373\2720501\0" // Colorado_North_FIPS_0501
    "C\246\006\226o_\373\2720501\372\0" // Colorado_North_FIPS_0501_Feet
    "C\246\006\226o_\373\2720501`t_\203\0" // Colorado_North_FIPS_0501_Ft_US
    "C\246\006\226o_S\365\2720503\0" // Colorado_South_FIPS_0503
    "C\246\006\226o_S\365\2720503\372\0" // Colorado_South_FIPS_0503_Feet
    "C\246\006\226o_S\365\2720503`t_\203\0" // Colorado_South_FIPS_0503_Ft_US
    "C\246umbi\256C\026\035y\372\0" // Columbia_County_Feet
    "C\246umbi\256C\026\035y_M\313\0" // Columbia_County_Meters
    "C\246umbia\372\0" // Columbia_Feet
    "C\246umbi\256M\313\0" // Columbia_Meters
    "C\343b\005i\31750\0" // Combani 1950
    "C\343b\005i\31750\012U\254\27338S\0" // Combani 1950 / UTM zone 38S
    "C\343b\005i\21150\0" // Combani_1950
    "C\343b\005i\21150_U\254_38S\0" // Combani_1950_UTM_38S
    "C\343\006os\002Njaz\257j\027(Gr\033\010C\343\006e)\0" // Comoros - Njazidja (Grande Comore)
    "C\003akr\204\03105\0" // Conakry 1905
    "C\003akr\204\03105\012U\254\27328N\0" // Conakry 1905 / UTM zone 28N
    "C\003akr\204\03105\012U\254\27329N\0" // Conakry 1905 / UTM zone 29N
    "C\003akry\21105\0" // Conakry_1905
    "C\003akry\21105_U\254_Z\003\21528N\0" // Conakry_1905_UTM_Zone_28N
    "C\003akry\21105_U\254_Z\003\21529N\0" // Conakry_1905_UTM_Zone_29N
    "C\003go\002coa\020\230\037e\027\253\214f~e\0" // Congo - coastal area and offshore
    "C\003g\013\03160 Po\023t\010Noi>\0" // Congo 1960 Pointe Noire
    "C\003g\013DR\201Zai>)\0" // Congo DR (Zaire)
    "C\003g\013DR\201Zai>)\002\202\3543\015\0" // Congo DR (Zaire) - 11°E to 13°E
    "C\003g\013DR\201Zai>)\002\202\3543\015\356\0" // Congo DR (Zaire) - 11°E to 13°E onshore
    "C\003g\013DR\201Zai>)\00213\3545\015\0" // Congo DR (Zaire) - 13°E to 15°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\365\0" // Congo DR (Zaire) - 6th parallel south
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25015\3547\015\0" // Congo DR (Zaire) - 6th parallel south 15°E to 17°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25017\200\031\015\0" // Congo DR (Zaire) - 6th parallel south 17°E to 19°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\250\031\20021\015\0" // Congo DR (Zaire) - 6th parallel south 19°E to 21°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25021\235\20023\015\0" // Congo DR (Zaire) - 6th parallel south 21.5°E to 23°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25021\20023\015\0" // Congo DR (Zaire) - 6th parallel south 21°E to 23°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25023\20025\015\0" // Congo DR (Zaire) - 6th parallel south 23°E to 25°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25025\200\306\015\0" // Congo DR (Zaire) - 6th parallel south 25°E to 27°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\250\306\20029\015\0" // Congo DR (Zaire) - 6th parallel south 27°E to 29°E
    "C\003g\013DR\201Zai>)\0026@p\037\025l\242 s\25029\20031\015\0" // Congo DR (Zaire) - 6th parallel south 29°E to 31°E
    "C\003g\013DR\201Zai>)\002B} C\003go\0" // Congo DR (Zaire) - Bas Congo
    "C\003g\013DR\201Zai>)\002B}\327\003g\013e\314\24315\015\0" // Congo DR (Zaire) - Bas Congo east of 15°E
    "C\003g\013DR\201Zai>)\002K}ai\002SE\0" // Congo DR (Zaire) - Kasai - SE
    "C\003g\013DR\201Zai>)\002K=\005ga\0" // Congo DR (Zaire) - Katanga
    "C\003g\013DR\201Zai>)\002K=\005g\030Lubumba<i \037ea\0" // Congo DR (Zaire) - Katanga - Lubumbashi area
    "C\003g\013DR\201Zai>)\002K=\005g\02724\235\200\306\235\015\0" // Congo DR (Zaire) - Katanga 24.5°E to 27.5°E
    "C\003g\013DR\201Zai>)\002K=\005g\02726\235\20029\235\015\0" // Congo DR (Zaire) - Katanga 26.5°E to 29.5°E
    "C\003g\013DR\201Zai>)\002K=\005g\027e\314\24328\235\015\0" // Congo DR (Zaire) - Katanga east of 28.5°E
    "C\003g\013DR\201Zai>)\002K=\005g\027w\267\24325\235\015\0" // Congo DR (Zaire) - Katanga west of 25.5°E
    "C\003g\013DR\201Zai>)\002s\365\0" // Congo DR (Zaire) - south
    "C\003g\013DR\201Zai>)\002s\250\25312\3548\015\0" // Congo DR (Zaire) - south and 12°E to 18°E
    "C\003g\013DR\201Zai>)\002s\250\25315\3547\015\0" // Congo DR (Zaire) - south and 15°E to 17°E
    "C\003g\013DR\201Zai>)\002s\250\25317\015\374\031\015\0" // Congo DR (Zaire) - south and 17°E and 19°E
    "C\003g\013DR\201Zai>)\002s\250\25318\20024\015\0" // Congo DR (Zaire) - south and 18°E to 24°E
    "C\003g\013DR\201Zai>)\002s\250\253\031\20021\015\0" // Congo DR (Zaire) - south and 19°E to 21°E
    "C\003g\013DR\201Zai>)\002s\250\25321\20023\015\0" // Congo DR (Zaire) - south and 21°E to 23°E
    "C\003g\013DR\201Zai>)\002s\250\25323\20025\015\0" // Congo DR (Zaire) - south and 23°E to 25°E
    "C\003g\013DR\201Zai>)\002s\250\25324\20030\015\0" // Congo DR (Zaire) - south and 24°E to 30°E
    "C\003g\013DR\201Zai>)\002s\250\25325\200\306\015\0" // Congo DR (Zaire) - south and 25°E to 27°E
    "C\003g\013DR\201Zai>)\002s\250\253\306\20029\015\0" // Congo DR (Zaire) - south and 27°E to 29°E
    "C\003g\013DR\201Zai>)\002s\250\25329\20031\015\0" // Congo DR (Zaire) - south and 29°E to 31°E
    "C\003g\013Tr\005sv\232\010M\007c=\006\27312\0" // Congo Transverse Mercator zone 12
    "C\003g\013Tr\005sv\232\010M\007c=\006\27314\0" // Congo Transverse Mercator zone 14
    "C\003g\013Tr\005sv\232\010M\007c=\006\27316\0" // Congo Transverse Mercator zone 16
    "C\003g\013Tr\005sv\232\010M\007c=\006\27318\0" // Congo Transverse Mercator zone 18
    "C\003g\013Tr\005sv\232\010M\007c=\006\27320\0" // Congo Transverse Mercator zone 20
    "C\003g\013Tr\005sv\232\010M\007c=\006\27322\0" // Congo Transverse Mercator zone 22
    "C\003g\013Tr\005sv\232\010M\007c=\006\27324\0" // Congo Transverse Mercator zone 24
    "C\003g\013Tr\005sv\232\010M\007c=\006\27326\0" // Congo Transverse Mercator zone 26
    "C\003g\013Tr\005sv\232\010M\007c=\006\27328\0" // Congo Transverse Mercator zone 28
    "C\003g\013Tr\005sv\232\010M\007c=\006\27330\0" // Congo Transverse Mercator zone 30
    "C\003ne\322#ut \13427\0" // Connecticut CS27
    "C\003ne\322#ut\2720600\0" // Connecticut_FIPS_0600
    "C\003ne\322#ut\2720600\372\0" // Connecticut_FIPS_0600_Feet
    "C\003ne\322#ut\2720600`t_\203\0" // Connecticut_FIPS_0600_Ft_US
    "C\003tigu\026s_\222_Alb\232\0" // Contiguous_USA_Albers
    "Co\006d\023=\010Sy\020\212 \2275\27334\0" // Coordinate System 2005 zone 34
    "Co\006d\023=\010Sy\020\212 \2275\27335\0" // Coordinate System 2005 zone 35
    "C\006\265\013Aleg>\0" // Corrego Alegre
    "C\006\265\013Alegr\010\03161\012U\254\27321S\0" // Corrego Alegre 1961 / UTM zone 21S
    "C\006\265\013Alegr\010\03161\012U\254\27322S\0" // Corrego Alegre 1961 / UTM zone 22S
    "C\006\265\013Alegr\010\03161\012U\254\27323S\0" // Corrego Alegre 1961 / UTM zone 23S
    "C\006\265\013Alegr\010\03161\012U\254\27324S\0" // Corrego Alegre 1961 / UTM zone 24S
    "C\006\265\013Alegr\010\03170-72\0" // Corrego Alegre 1970-72
    "C\006\265\013Alegr\010\03170-72\012U\254\27321S\0" // Corrego Alegre 1970-72 / UTM zone 21S
    "C\006\265\013Alegr\010\03170-72\012U\254\27322S\0" // Corrego Alegre 1970-72 / UTM zone 22S
    "C\006\265\013Alegr\010\03170-72\012U\254\27323S\0" // Corrego Alegre 1970-72 / UTM zone 23S
    "C\006\265\013Alegr\010\03170-72\012U\254\27324S\0" // Corrego Alegre 1970-72 / UTM zone 24S
    "C\006\265\013Alegr\010\03170-72\012U\254\27325S\0" // Corrego Alegre 1970-72 / UTM zone 25S
    "C\006\265o_Aleg>\0" // Corrego_Alegre
    "C\006\265o_Aleg>_\0" // Corrego_Alegre_
    "C\006\265o_Aleg>\21161\0" // Corrego_Alegre_1961
    "Co\020\027R\345\214f~\010C\037ibbe\005\0" // Costa Rica - offshore Caribbean
    "Co\020\027R\345\214f~\010Pacif#\0" // Costa Rica - offshore Pacific
    "Co\020\027R\345\236\0" // Costa Rica - onshore
    "Co\020\027R\345\210\010\253\214f~\010e\314\24386\00430'W\0" // Costa Rica - onshore and offshore east of 86°30'W
    "Co\020\027R\345\210\010n\006@\2439\00432'N\0" // Costa Rica - onshore north of 9°32'N
    "Co\020\027R\345\210\010s\250\2439\00456'N\0" // Costa Rica - onshore south of 9°56'N
    "Co\020\027R#\027\2275\0" // Costa Rica 2005
    "Co\020\027R#\027\254 \2275\0" // Costa Rica TM 2005
    "Co\020\256R#\256\2275\0" // Costa_Rica_2005
    "Co\020\256R#\256\205te\0" // Costa_Rica_Norte
    "Co\020\256R#\256S\224\0" // Costa_Rica_Sur
    "C\337\010d'Ivoi>\0" // Cote d'Ivoire
    "C\337\010d'Ivo\340\010(Iv\006\204Coa\020)\0" // Cote d'Ivoire (Ivory Coast)
    "C\337\010d'Ivo\340\010(Iv\006\204Coa\020)\002Ab\257j\005 \037ea\0" // Cote d'Ivoire (Ivory Coast) - Abidjan area
    "C\337\010d'Ivo\340\010(Iv\006\204Coa\020)\002e\314\2436!\0" // Cote d'Ivoire (Ivory Coast) - east of 6°W
    "C\337\010d'Ivo\340\010(Iv\006\204Coa\020)\002\214f~e\0" // Cote d'Ivoire (Ivory Coast) - offshore
    "C\337\010d'Ivo\340\010(Iv\006\204Coa\020)\002w\267\2436!\0" // Cote d'Ivoire (Ivory Coast) - west of 6°W
    "C\337\215d_Ivoi>\0" // Cote_d_Ivoire
    "C\026\035\204ST74\0" // County ST74
    "C\026\035y_ST74\0" // County_ST74
    "C\350wf\006d-Law>nce-Or\005g\215(ft\203)\0" // Crawford-Lawrence-Orange_(ftUS)
    "C\350wf\006d-Law>nce-Or\005g\215(m)\0" // Crawford-Lawrence-Orange_(m)
    "C\350wf\006d\377\026\035y\372\0" // Crawford_County_Feet
    "C\350wf\006d\377\026\035y_M\313\0" // Crawford_County_Meters
    "C\350wf\006d\372\0" // Crawford_Feet
    "C\350wf\006d_M\313\0" // Crawford_Meters
    "Cro=ia\0" // Croatia
    "Cro=\213e\314\24318\015\0" // Croatia - east of 18°E
    "Cro=\213\236\0" // Croatia - onshore
    "Cro=\213w\267\24318\015\0" // Croatia - west of 18°E
    "Cro=\315L\225b\007t\327\003f\006m\230C\003#\0" // Croatia Lambert Conformal Conic
    "Cro=\315Tr\005sv\232\010M\007c=\006\0" // Croatia Transverse Mercator
    "Cro=\336 T\007>\375i\230Ref\007\207c\010Sy\020\212\0" // Croatian Terrestrial Reference System
    "Cro=\336_T\007>\375i\025_Ref\007\207c\215Sy\020\212\0" // Croatian_Terrestrial_Reference_System
    "Crow`t_I\035l\0" // Crow_Ft_Intl
    "Crow_M\313\0" // Crow_Meters
    "Cuba\0" // Cuba
    "Cub\030\236\0" // Cuba - onshore
    "Cub\030\210\010n\006@\24321\00430'N\0" // Cuba - onshore north of 21°30'N
    "Cub\030\210\010s\250\24321\00430'N\0" // Cuba - onshore south of 21°30'N
    "Cub\256\205te\0" // Cuba_Norte
    "Cub\256S\224\0" // Cuba_Sur
    "Cucut\256\205t\215d\215S\005t\033\007_\03411\0" // Cucuta_Norte_de_Santander_2011
    "Cypr\351\0" // Cyprus
    "Cypr\351\002\236\0" // Cyprus - onshore
    "Cypr\351 Geod\036# Ref\007\207c\010Sy\020\212 \03193\0" // Cyprus Geodetic Reference System 1993
    "Cypr\351 Tr\005sv\232\010M\007c=\006\0" // Cyprus Transverse Mercator
    "Cypr\351_Geod\036#_Ref\007\207c\215Sy\020\212_\03193\0" // Cyprus_Geodetic_Reference_System_1993
    "Czechia\0" // Czechia
    "D48\0" // D48
    "D48/GK\0" // D48/GK
    "D73\0" // D73
    "D73_ET{89_geo.gsb\0" // D73_ETRS89_geo.gsb
    "D96\0" // D96
    "D96/\254\0" // D96/TM
    "D96/U\254\0" // D96/UTM
    "DB_REF\0" // DB_REF
    "DB_REF\0123-deg>\010Ga\351s-Krug\007\2732\201E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 2 (E-N)
    "DB_REF\0123-deg>\010Ga\351s-Krug\007\2733\201E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 3 (E-N)
    "DB_REF\0123-deg>\010Ga\351s-Krug\007\2734\201E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 4 (E-N)
    "DB_REF\0123-deg>\010Ga\351s-Krug\007\2735\201E-N)\0" // DB_REF / 3-degree Gauss-Kruger zone 5 (E-N)
    "DB_REF\2273\0" // DB_REF2003
    "DB_REF\03416\0" // DB_REF2016
    "DB_REF_3-Deg>\215GK_Z\003\215\0" // DB_REF_3-Degree_GK_Zone_
    "DGF00P01\002L=L\003\0" // DGF00P01 - LatLon
    "DGF01P01\002L=L\003\0" // DGF01P01 - LatLon
    "DGF01P02\002L=L\003\0" // DGF01P02 - LatLon
    "DGF02P01\002L=L\003\0" // DGF02P01 - LatLon
    "DGF04P01\002L=L\003\0" // DGF04P01 - LatLon
    "DGF05P01\002L=L\003\0" // DGF05P01 - LatLon
    "DGF06P01\002L=L\003\0" // DGF06P01 - LatLon
    "DGF07P01\002L=L\003\0" // DGF07P01 - LatLon
    "DGF08P01\002L=L\003\0" // DGF08P01 - LatLon
    "DGN95\0" // DGN95
    "DGN95\012\360\003\220\315\254-3\27346.2\0" // DGN95 / Indonesia TM-3 zone 46.2
    "DGN95\012\360\003\220\315\254-3\27347.1\0" // DGN95 / Indonesia TM-3 zone 47.1
    "DGN95\012\360\003\220\315\254-3\27347.2\0" // DGN95 / Indonesia TM-3 zone 47.2
    "DGN95\012\360\003\220\315\254-3\27348.1\0" // DGN95 / Indonesia TM-3 zone 48.1
    "DGN95\012\360\003\220\315\254-3\27348.2\0" // DGN95 / Indonesia TM-3 zone 48.2
    "DGN95\012\360\003\220\315\254-3\27349.1\0" // DGN95 / Indonesia TM-3 zone 49.1
    "DGN95\012\360\003\220\315\254-3\27349.2\0" // DGN95 / Indonesia TM-3 zone 49.2
    "DGN95\012\360\003\220\315\254-3\27350.1\0" // DGN95 / Indonesia TM-3 zone 50.1
    "DGN95\012\360\003\220\315\254-3\27350.2\0" // DGN95 / Indonesia TM-3 zone 50.2
    "DGN95\012\360\003\220\315\254-3\27351.1\0" // DGN95 / Indonesia TM-3 zone 51.1
    "DGN95\012\360\003\220\315\254-3\27351.2\0" // DGN95 / Indonesia TM-3 zone 51.2
    "DGN95\012\360\003\220\315\254-3\27352.1\0" // DGN95 / Indonesia TM-3 zone 52.1
    "DGN95\012\360\003\220\315\254-3\27352.2\0" // DGN95 / Indonesia TM-3 zone 52.2
    "DGN95\012\360\003\220\315\254-3\27353.1\0" // DGN95 / Indonesia TM-3 zone 53.1
    "DGN95\012\360\003\220\315\254-3\27353.2\0" // DGN95 / Indonesia TM-3 zone 53.2
    "DGN95\012\360\003\220\315\254-3\27354.1\0" // DGN95 / Indonesia TM-3 zone 54.1
    "DGN95\012U\254\27346N\0" // DGN95 / UTM zone 46N
    "DGN95\012U\254\27347N\0" // DGN95 / UTM zone 47N
    "DGN95\012U\254\27347S\0" // DGN95 / UTM zone 47S
    "DGN95\012U\254\27348N\0" // DGN95 / UTM zone 48N
    "DGN95\012U\254\27348S\0" // DGN95 / UTM zone 48S
    "DGN95\012U\254\27349N\0" // DGN95 / UTM zone 49N
    "DGN95\012U\254\27349S\0" // DGN95 / UTM zone 49S
    "DGN95\012U\254\27350N\0" // DGN95 / UTM zone 50N
    "DGN95\012U\254\27350S\0" // DGN95 / UTM zone 50S
    "DGN95\012U\254\27351N\0" // DGN95 / UTM zone 51N
    "DGN95\012U\254\27351S\0" // DGN95 / UTM zone 51S
    "DGN95\012U\254\27352N\0" // DGN95 / UTM zone 52N
    "DGN95\012U\254\27352S\0" // DGN95 / UTM zone 52S
    "DGN95\012U\254\27353S\0" // DGN95 / UTM zone 53S
    "DGN95\012U\254\27354S\0" // DGN95 / UTM zone 54S
    "DGN\21195\0" // DGN_1995
    "DGN\21195_\360\003\220i\256\254-3_Z\003\215\0" // DGN_1995_Indonesia_TM-3_Zone_
    "DGN\21195_U\254_Z\003\215\0" // DGN_1995_UTM_Zone_
    "DHDN\0" // DHDN
    "DHDN\0123-deg>\010Ga\351s\2731\0" // DHDN / 3-degree Gauss zone 1
    "DHDN\0123-deg>\010Ga\351s\2732\0" // DHDN / 3-degree Gauss zone 2
    "DHDN\0123-deg>\010Ga\351s\2733\0" // DHDN / 3-degree Gauss zone 3
    "DHDN\0123-deg>\010Ga\351s\2734\0" // DHDN / 3-degree Gauss zone 4
    "DHDN\0123-deg>\010Ga\351s\2735\0" // DHDN / 3-degree Gauss zone 5
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2731\0" // DHDN / 3-degree Gauss-Kruger zone 1
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2731\201E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 1 (E-N)
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2732\0" // DHDN / 3-degree Gauss-Kruger zone 2
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2732\201E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 2 (E-N)
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2733\0" // DHDN / 3-degree Gauss-Kruger zone 3
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2733\201E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 3 (E-N)
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2734\0" // DHDN / 3-degree Gauss-Kruger zone 4
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2734\201E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 4 (E-N)
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2735\0" // DHDN / 3-degree Gauss-Kruger zone 5
    "DHDN\0123-deg>\010Ga\351s-Krug\007\2735\201E-N)\0" // DHDN / 3-degree Gauss-Kruger zone 5 (E-N)
    "DHDN\012S\246dn\007 B\007l\023\0" // DHDN / Soldner Berlin
    "DHDN_3_Deg>\215GK_Z\003\215\0" // DHDN_3_Degree_GK_Zone_
    "DHDN_3_Deg>\215Ga\351s_Z\003\215\0" // DHDN_3_Degree_Gauss_Zone_
    "DHDN_S\246dn\007_B\007l\023\0" // DHDN_Soldner_Berlin
    "DLx_ET{89_geo.gsb\0" // DLx_ETRS89_geo.gsb
    "DOS_71_4\0" // DOS_71_4
    "DRUKREF 03\0" // DRUKREF 03
    "DRUKREF 03\012Bhut\005 N=\320\230Gr\257\0" // DRUKREF 03 / Bhutan National Grid
    "DRUKREF 03\012Bum\024\005g \254\0" // DRUKREF 03 / Bumthang TM
    "DRUKREF 03\012Chhukh\027\254\0" // DRUKREF 03 / Chhukha TM
    "DRUKREF 03\012Dag\005\027\254\0" // DRUKREF 03 / Dagana TM
    "DRUKREF 03\012G}\027\254\0" // DRUKREF 03 / Gasa TM
    "DRUKREF 03\012H\027\254\0" // DRUKREF 03 / Ha TM
    "DRUKREF 03\012Lhue\035s\010\254\0" // DRUKREF 03 / Lhuentse TM
    "DRUKREF 03\012M\003g\037 \254\0" // DRUKREF 03 / Mongar TM
    "DRUKREF 03\012P\037\013\254\0" // DRUKREF 03 / Paro TM
    "DRUKREF 03\012P\212ag=<\242 \254\0" // DRUKREF 03 / Pemagatshel TM
    "DRUKREF 03\012Punakh\027\254\0" // DRUKREF 03 / Punakha TM
    "DRUKREF 03\012S\225drup J\003gkh\037 \254\0" // DRUKREF 03 / Samdrup Jongkhar TM
    "DRUKREF 03\012S\225ts\010\254\0" // DRUKREF 03 / Samtse TM
    "DRUKREF 03\012S\037p\005g \254\0" // DRUKREF 03 / Sarpang TM
    "DRUKREF 03\012Thim\237u \254\0" // DRUKREF 03 / Thimphu TM
    "DRUKREF 03\012T\350<ig\005g \254\0" // DRUKREF 03 / Trashigang TM
    "DRUKREF 03\012Tr\003gs\027\254\0" // DRUKREF 03 / Trongsa TM
    "DRUKREF 03\012Ts\340\005g \254\0" // DRUKREF 03 / Tsirang TM
    "DRUKREF 03\012W\005gdu\010Phodr\005g \254\0" // DRUKREF 03 / Wangdue Phodrang TM
    "DRUKREF 03\012Y\005gts\010\254\0" // DRUKREF 03 / Yangtse TM
    "DRUKREF 03\012Z\300g\005g \254\0" // DRUKREF 03 / Zhemgang TM
    "DRUKREF_03\0" // DRUKREF_03
    "DRUKREF_03_\0" // DRUKREF_03_
    "D_\0" // D_
    "D_Cl\037k\215\0" // D_Clarke_
    "D_ITRF_\0" // D_ITRF_
    "D_\021\211\014_\0" // D_NAD_1983_
    "D_\373_Am\007#\005_\0" // D_North_American_
    "D_R\220eau_Geod\220iqu\215\0" // D_Reseau_Geodesique_
    "Dab\246\027\03181\0" // Dabola 1981
    "Dab\246\027\03181\012U\254\27328N\0" // Dabola 1981 / UTM zone 28N
    "Dab\246\027\03181\012U\254\27329N\0" // Dabola 1981 / UTM zone 29N
    "Dab\246a\21181\0" // Dabola_1981
    "Dab\246a\21181_U\254_Z\003\215\0" // Dabola_1981_UTM_Zone_
    "Dag\005\256\254\0" // Dagana_TM
    "D\005\215C\026\035y\372\0" // Dane_County_Feet
    "D\005\215C\026\035y_M\313\0" // Dane_County_Meters
    "D\005e\372\0" // Dane_Feet
    "D\005\215M\313\0" // Dane_Meters
    "D\005i< 1876\0" // Danish 1876
    "D\005i<_1876\0" // Danish_1876
    "D\037w\023 Glaci\007 L\225b\007t\327\003f\006m\230\2270\0" // Darwin Glacier Lambert Conformal 2000
    "D=um 73\0" // Datum 73
    "D=um 73\012Modifi\275 P\006tugu\220\010Gr\257\0" // Datum 73 / Modified Portuguese Grid
    "D=um 73\012U\254\27329N\0" // Datum 73 / UTM zone 29N
    "D=um 73\022WGS 84\2012)\0" // Datum 73 to WGS 84 (2)
    "D=um Geod\220i N}\320\230\03195\0" // Datum Geodesi Nasional 1995
    "D=um_73\0" // Datum_73
    "D=um_73_Modifi\275_P\006tugu\220\215Gr\257\0" // Datum_73_Modified_Portuguese_Grid
    "D=um_73_U\254_Z\003\21529N\0" // Datum_73_UTM_Zone_29N
    "D=um_Geod\220i_N}\320\025\21195\0" // Datum_Geodesi_Nasional_1995
    "Davi\220s-G>\207\215(ft\203)\0" // Daviess-Greene_(ftUS)
    "Davi\220s-G>\207\215(m)\0" // Daviess-Greene_(m)
    "Dayv\341le-P\350\340i\215C\245y_\021\211\014_\240_\254`t_I\035l\0" // Dayville-Prairie_City_NAD_1983_2011_TM_Ft_Intl
    "Dayv\341le-P\350\340i\215C\245y_\021\211\014_\240_\254_M\313\0" // Dayville-Prairie_City_NAD_1983_2011_TM_Meters
    "DeK\025b_(ft\203)\0" // DeKalb_(ftUS)
    "DeK\025b_(m)\0" // DeKalb_(m)
    "De\025ui P\077cului\31733\022WGS 84\2011)\0" // Dealui Piscului 1933 to WGS 84 (1)
    "De\025ul P\077cului\31730\0" // Dealul Piscului 1930
    "De\025ul P\077cului\31730\012St\007e\01333\0" // Dealul Piscului 1930 / Stereo 33
    "De\025ul P\077cului\31733\0" // Dealul Piscului 1933
    "De\025ul P\077cului\31733\011St\007e\01333\0" // Dealul Piscului 1933/ Stereo 33
    "De\025ul P\077cului\31770\0" // Dealul Piscului 1970
    "De\025ul P\077cului\31770\011St\007e\01370\0" // Dealul Piscului 1970/ Stereo 70
    "De\025ul_P\077cului\21133\0" // Dealul_Piscului_1933
    "De\025ul_P\077cului\21170\0" // Dealul_Piscului_1970
    "De\037b\006n-Ohio-Sw\245z\007\206_(ft\203)\0" // Dearborn-Ohio-Switzerland_(ftUS)
    "De\037b\006n-Ohio-Sw\245z\007\206_(m)\0" // Dearborn-Ohio-Switzerland_(m)
    "Dec=\224-Ru<_(ft\203)\0" // Decatur-Rush_(ftUS)
    "Dec=\224-Ru<_(m)\0" // Decatur-Rush_(m)
    "Decept\320_\335\0" // Deception_Island
    "Def\023\245\320\21162\0" // Definition_1962
    "Def\023\245\320\21167\0" // Definition_1967
    "Def\023\245\320\21175\0" // Definition_1975
    "De\340 ez Z\006\0" // Deir ez Zor
    "De\340 ez Z\006\012Lev\005t|t\007eog\350\237#\0" // Deir ez Zor / Levant Stereographic
    "De\340 ez Z\006\012Lev\005t Z\003e\0" // Deir ez Zor / Levant Zone
    "De\340 ez Z\006\012Syr\315L\225b\007t\0" // Deir ez Zor / Syria Lambert
    "De\340_ez_Z\006\0" // Deir_ez_Zor
    "De\340_ez_Z\006_Lev\005t_St\007eog\350\237#\0" // Deir_ez_Zor_Levant_Stereographic
    "De\340_ez_Z\006_Lev\005t_Z\003e\0" // Deir_ez_Zor_Levant_Zone
    "De\340_ez_Z\006_Syri\256L\225b\007t\0" // Deir_ez_Zor_Syria_Lambert
    "D\242aw\037\010\13427\0" // Delaware CS27
    "D\242aw\037e\2720700\0" // Delaware_FIPS_0700
    "D\242aw\037e\2720700\372\0" // Delaware_FIPS_0700_Feet
    "D\242aw\037e\2720700`t_\203\0" // Delaware_FIPS_0700_Ft_US
    "D\242hi \333F LCC\0" // Delhi NSF LCC
    "D\207io-B\224ns_\021\211\014_\240_\254`t_I\035l\0" // Denio-Burns_NAD_1983_2011_TM_Ft_Intl
    "D\207io-B\224ns_\021\211\014_\240_\254_M\313\0" // Denio-Burns_NAD_1983_2011_TM_Meters
    "D\207m\037k\002\236\0" // Denmark - onshore
    "D\207m\037k\002\210\010B\006nh\246m\0" // Denmark - onshore Bornholm
    "D\207m\037k\002\210\010Jut\206\374Fun\207\0" // Denmark - onshore Jutland and Funen
    "D\207m\037k\002\210\010Jut\206 e\314\2439\015\374Fun\207\0" // Denmark - onshore Jutland east of 9°E and Funen
    "D\207m\037k\002\210\010Jut\206 w\267\243\312\015\0" // Denmark - onshore Jutland west of 10°E
    "D\207m\037k\002\210\010Ze\025\253\253L\246\206\0" // Denmark - onshore Zealand and Lolland
    "Deutsch\010B\361n Ref\007\207c\010Sy\020\212\0" // Deutsche Bahn Reference System
    "Deutsch\215B\361n_Ref\007\207c\215Sy\020\212\0" // Deutsche_Bahn_Reference_System
    "Deutsch\220 Hauptd>iecksn\036z\0" // Deutsches Hauptdreiecksnetz
    "Deutsch\220_Hauptd>iecksn\036z\0" // Deutsches_Hauptdreiecksnetz
    "Dieg\013G\037c\315\03169\0" // Diego Garcia 1969
    "Djib\026ti\0" // Djibouti
    "Djib\026ti\002\236\0" // Djibouti - onshore
    "Dodg\215\033_Jeff\232\003\372\0" // Dodge_and_Jefferson_Feet
    "Dodg\215\033_Jeff\232\003_M\313\0" // Dodge_and_Jefferson_Meters
    "D\343\023\345\236\0" // Dominica - onshore
    "D\343\023#\027\03145\0" // Dominica 1945
    "D\343\023#\027\03145\012Br\245i< W\267\360i\220 Gr\257\0" // Dominica 1945 / British West Indies Grid
    "D\343\023#a\21145\0" // Dominica_1945
    "D\343\023#a\21145_Br\245i<_We\020_\360i\220_Gr\257\0" // Dominica_1945_British_West_Indies_Grid
    "Do\006\377\026\035y\372\0" // Door_County_Feet
    "Do\006\377\026\035y_M\313\0" // Door_County_Meters
    "Do\006\372\0" // Door_Feet
    "Do\006_M\313\0" // Door_Meters
    "D\026\025a\0" // Douala
    "D\026\025a\012U\254\27332N\0" // Douala / UTM zone 32N
    "D\026\025\027\03148\0" // Douala 1948
    "D\026\025\027\03148\012AEF we\020\0" // Douala 1948 / AEF west
    "D\026\025\027\03148\012AOF we\020\0" // Douala 1948 / AOF west
    "D\026\025a\21148\0" // Douala_1948
    "D\026\025a\21148_AEF_We\020\0" // Douala_1948_AEF_West
    "D\026\025\256U\254_Z\003\21532N\0" // Douala_UTM_Zone_32N
    "D\026gl}\377\026\035y\372\0" // Douglas_County_Feet
    "D\026gl}\377\026\035y_M\313\0" // Douglas_County_Meters
    "D\026gl}\372\0" // Douglas_Feet
    "D\026gl}_M\313\0" // Douglas_Meters
    "Dubai Loc\230Tr\005sv\232\010M\007c=\006\0" // Dubai Local Transverse Mercator
    "Dubai_Loc\025_\254\0" // Dubai_Local_TM
    "Dubo\077-M\037t\023_(ft\203)\0" // Dubois-Martin_(ftUS)
    "Dubo\077-M\037t\023_(m)\0" // Dubois-Martin_(m)
    "Dunn\377\026\035y\372\0" // Dunn_County_Feet
    "Dunn\377\026\035y_M\313\0" // Dunn_County_Meters
    "Dunn\372\0" // Dunn_Feet
    "Dunn_M\313\0" // Dunn_Meters
    "EASE-Gr\257_2.0_Glob\025\0" // EASE-Grid_2.0_Global
    "EASE-Gr\257_2.0_\373\0" // EASE-Grid_2.0_North
    "EASE-Gr\257_2.0_S\365\0" // EASE-Grid_2.0_South
    "EBBWV14 Gr\257\0" // EBBWV14 Grid
    "EBBWV14 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // EBBWV14 Intermediate Reference Frame
    "EBBWV14-IRF\0" // EBBWV14-IRF
    "EBBWV14-\254\0" // EBBWV14-TM
    "ECML14_NB Gr\257\0" // ECML14_NB Grid
    "ECML14_NB I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // ECML14_NB Intermediate Reference Frame
    "ECML14_NB-IRF\0" // ECML14_NB-IRF
    "ECML14_NB-\254\0" // ECML14_NB-TM
    "ED50\0" // ED50
    "ED50\0123-deg>\010Ga\351s-Krug\007\27310\0" // ED50 / 3-degree Gauss-Kruger zone 10
    "ED50\0123-deg>\010Ga\351s-Krug\007\27311\0" // ED50 / 3-degree Gauss-Kruger zone 11
    "ED50\0123-deg>\010Ga\351s-Krug\007\27312\0" // ED50 / 3-degree Gauss-Kruger zone 12
    "ED50\0123-deg>\010Ga\351s-Krug\007\27313\0" // ED50 / 3-degree Gauss-Kruger zone 13
    "ED50\0123-deg>\010Ga\351s-Krug\007\27314\0" // ED50 / 3-degree Gauss-Kruger zone 14
    "ED50\0123-deg>\010Ga\351s-Krug\007\27315\0" // ED50 / 3-degree Gauss-Kruger zone 15
    "ED50\0123-deg>\010Ga\351s-Krug\007\2739\0" // ED50 / 3-degree Gauss-Kruger zone 9
    "ED50\012Fr\005c\010E\224oL\225b\007t\0" // ED50 / France EuroLambert
    "ED50\012I\350q N=\320\230Gr\257\0" // ED50 / Iraq National Grid
    "ED50\012J\006d\005 \254\0" // ED50 / Jordan TM
    "ED50\012\266BA LCC\0" // ED50 / SPBA LCC
    "ED50\012\254 0 N\0" // ED50 / TM 0 N
    "ED50\012\254 5 NE\0" // ED50 / TM 5 NE
    "ED50\012\254 6 NE\0" // ED50 / TM 6 NE
    "ED50\012\25427\0" // ED50 / TM27
    "ED50\012\25430\0" // ED50 / TM30
    "ED50\012\25433\0" // ED50 / TM33
    "ED50\012\25436\0" // ED50 / TM36
    "ED50\012\25439\0" // ED50 / TM39
    "ED50\012\25442\0" // ED50 / TM42
    "ED50\012\25445\0" // ED50 / TM45
    "ED50\012U\254\27328N\0" // ED50 / UTM zone 28N
    "ED50\012U\254\27329N\0" // ED50 / UTM zone 29N
    "ED50\012U\254\27330N\0" // ED50 / UTM zone 30N
    "ED50\012U\254\27331N\0" // ED50 / UTM zone 31N
    "ED50\012U\254\27332N\0" // ED50 / UTM zone 32N
    "ED50\012U\254\27333N\0" // ED50 / UTM zone 33N
    "ED50\012U\254\27334N\0" // ED50 / UTM zone 34N
    "ED50\012U\254\27335N\0" // ED50 / UTM zone 35N
    "ED50\012U\254\27336N\0" // ED50 / UTM zone 36N
    "ED50\012U\254\27337N\0" // ED50 / UTM zone 37N
    "ED50\012U\254\27338N\0" // ED50 / UTM zone 38N
    "ED50(ED77)\0" // ED50(ED77)
    "ED50(ED77*U\254\27338N\0" // ED50(ED77) / UTM zone 38N
    "ED50(ED77*U\254\27339N\0" // ED50(ED77) / UTM zone 39N
    "ED50(ED77*U\254\27340N\0" // ED50(ED77) / UTM zone 40N
    "ED50(ED77*U\254\27341N\0" // ED50(ED77) / UTM zone 41N
    "ED77_U\254_Z\003\21538N\0" // ED77_UTM_Zone_38N
    "ED77_U\254_Z\003\21539N\0" // ED77_UTM_Zone_39N
    "ED77_U\254_Z\003\21540N\0" // ED77_UTM_Zone_40N
    "ED77_U\254_Z\003\21541N\0" // ED77_UTM_Zone_41N
    "ED79\0" // ED79
    "ED87\0" // ED87
    "ED\21150_\0" // ED_1950_
    "ED\21150_3_Deg>\215GK_Z\003\215\0" // ED_1950_3_Degree_GK_Zone_
    "ED\21150_U\254_Z\003\215\0" // ED_1950_UTM_Zone_
    "ELD79\0" // ELD79
    "ELD79\012Liby\027^10\0" // ELD79 / Libya zone 10
    "ELD79\012Liby\027^11\0" // ELD79 / Libya zone 11
    "ELD79\012Liby\027^12\0" // ELD79 / Libya zone 12
    "ELD79\012Liby\027^13\0" // ELD79 / Libya zone 13
    "ELD79\012Liby\027^5\0" // ELD79 / Libya zone 5
    "ELD79\012Liby\027^6\0" // ELD79 / Libya zone 6
    "ELD79\012Liby\027^7\0" // ELD79 / Libya zone 7
    "ELD79\012Liby\027^8\0" // ELD79 / Libya zone 8
    "ELD79\012Liby\027^9\0" // ELD79 / Libya zone 9
    "ELD79\012\254 12 NE\0" // ELD79 / TM 12 NE
    "ELD79\012U\254\27332N\0" // ELD79 / UTM zone 32N
    "ELD79\012U\254\27333N\0" // ELD79 / UTM zone 33N
    "ELD79\012U\254\27334N\0" // ELD79 / UTM zone 34N
    "ELD79\012U\254\27335N\0" // ELD79 / UTM zone 35N
    "ELD\21179_Liby\256\0" // ELD_1979_Libya_
    "ELD\21179_\254_12_NE\0" // ELD_1979_TM_12_NE
    "ELD\21179_U\254_Z\003\215\0" // ELD_1979_UTM_Zone_
    "EOS21 Gr\257\0" // EOS21 Grid
    "EOS21 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // EOS21 Intermediate Reference Frame
    "EOS21-IRF\0" // EOS21-IRF
    "EOS21-\254\0" // EOS21-TM
    "E\247G \325\322# LCC\2731-21\0" // EPSG Arctic LCC zone 1-21
    "E\247G \325\322# LCC\2731-23\0" // EPSG Arctic LCC zone 1-23
    "E\247G \325\322# LCC\2731-25\0" // EPSG Arctic LCC zone 1-25
    "E\247G \325\322# LCC\2731-27\0" // EPSG Arctic LCC zone 1-27
    "E\247G \325\322# LCC\2731-29\0" // EPSG Arctic LCC zone 1-29
    "E\247G \325\322# LCC\2731-31\0" // EPSG Arctic LCC zone 1-31
    "E\247G \325\322# LCC\2732-10\0" // EPSG Arctic LCC zone 2-10
    "E\247G \325\322# LCC\2732-12\0" // EPSG Arctic LCC zone 2-12
    "E\247G \325\322# LCC\2732-14\0" // EPSG Arctic LCC zone 2-14
    "E\247G \325\322# LCC\2732-16\0" // EPSG Arctic LCC zone 2-16
    "E\247G \325\322# LCC\2732-18\0" // EPSG Arctic LCC zone 2-18
    "E\247G \325\322# LCC\2732-20\0" // EPSG Arctic LCC zone 2-20
    "E\247G \325\322# LCC\2732-22\0" // EPSG Arctic LCC zone 2-22
    "E\247G \325\322# LCC\2732-24\0" // EPSG Arctic LCC zone 2-24
    "E\247G \325\322# LCC\2732-26\0" // EPSG Arctic LCC zone 2-26
    "E\247G \325\322# LCC\2732-28\0" // EPSG Arctic LCC zone 2-28
    "E\247G \325\322# LCC\2733-11\0" // EPSG Arctic LCC zone 3-11
    "E\247G \325\322# LCC\2733-13\0" // EPSG Arctic LCC zone 3-13
    "E\247G \325\322# LCC\2733-15\0" // EPSG Arctic LCC zone 3-15
    "E\247G \325\322# LCC\2733-17\0" // EPSG Arctic LCC zone 3-17
    "E\247G \325\322# LCC\2733-19\0" // EPSG Arctic LCC zone 3-19
    "E\247G \325\322# LCC\2733-21\0" // EPSG Arctic LCC zone 3-21
    "E\247G \325\322# LCC\2733-23\0" // EPSG Arctic LCC zone 3-23
    "E\247G \325\322# LCC\2733-25\0" // EPSG Arctic LCC zone 3-25
    "E\247G \325\322# LCC\2733-27\0" // EPSG Arctic LCC zone 3-27
    "E\247G \325\322# LCC\2733-29\0" // EPSG Arctic LCC zone 3-29
    "E\247G \325\322# LCC\2733-31\0" // EPSG Arctic LCC zone 3-31
    "E\247G \325\322# LCC\2733-33\0" // EPSG Arctic LCC zone 3-33
    "E\247G \325\322# LCC\2734-12\0" // EPSG Arctic LCC zone 4-12
    "E\247G \325\322# LCC\2734-14\0" // EPSG Arctic LCC zone 4-14
    "E\247G \325\322# LCC\2734-16\0" // EPSG Arctic LCC zone 4-16
    "E\247G \325\322# LCC\2734-18\0" // EPSG Arctic LCC zone 4-18
    "E\247G \325\322# LCC\2734-20\0" // EPSG Arctic LCC zone 4-20
    "E\247G \325\322# LCC\2734-22\0" // EPSG Arctic LCC zone 4-22
    "E\247G \325\322# LCC\2734-24\0" // EPSG Arctic LCC zone 4-24
    "E\247G \325\322# LCC\2734-26\0" // EPSG Arctic LCC zone 4-26
    "E\247G \325\322# LCC\2734-28\0" // EPSG Arctic LCC zone 4-28
    "E\247G \325\322# LCC\2734-30\0" // EPSG Arctic LCC zone 4-30
    "E\247G \325\322# LCC\2734-32\0" // EPSG Arctic LCC zone 4-32
    "E\247G \325\322# LCC\2734-34\0" // EPSG Arctic LCC zone 4-34
    "E\247G \325\322# LCC\2734-36\0" // EPSG Arctic LCC zone 4-36
    "E\247G \325\322# LCC\2734-38\0" // EPSG Arctic LCC zone 4-38
    "E\247G \325\322# LCC\2734-40\0" // EPSG Arctic LCC zone 4-40
    "E\247G \325\322# LCC\2735-11\0" // EPSG Arctic LCC zone 5-11
    "E\247G \325\322# LCC\2735-13\0" // EPSG Arctic LCC zone 5-13
    "E\247G \325\322# LCC\2735-15\0" // EPSG Arctic LCC zone 5-15
    "E\247G \325\322# LCC\2735-17\0" // EPSG Arctic LCC zone 5-17
    "E\247G \325\322# LCC\2735-19\0" // EPSG Arctic LCC zone 5-19
    "E\247G \325\322# LCC\2735-21\0" // EPSG Arctic LCC zone 5-21
    "E\247G \325\322# LCC\2735-23\0" // EPSG Arctic LCC zone 5-23
    "E\247G \325\322# LCC\2735-25\0" // EPSG Arctic LCC zone 5-25
    "E\247G \325\322# LCC\2735-27\0" // EPSG Arctic LCC zone 5-27
    "E\247G \325\322# LCC\2735-29\0" // EPSG Arctic LCC zone 5-29
    "E\247G \325\322# LCC\2735-31\0" // EPSG Arctic LCC zone 5-31
    "E\247G \325\322# LCC\2735-33\0" // EPSG Arctic LCC zone 5-33
    "E\247G \325\322# LCC\2735-35\0" // EPSG Arctic LCC zone 5-35
    "E\247G \325\322# LCC\2735-37\0" // EPSG Arctic LCC zone 5-37
    "E\247G \325\322# LCC\2735-39\0" // EPSG Arctic LCC zone 5-39
    "E\247G \325\322# LCC\2735-41\0" // EPSG Arctic LCC zone 5-41
    "E\247G \325\322# LCC\2735-43\0" // EPSG Arctic LCC zone 5-43
    "E\247G \325\322# LCC\2735-45\0" // EPSG Arctic LCC zone 5-45
    "E\247G \325\322# LCC\2735-47\0" // EPSG Arctic LCC zone 5-47
    "E\247G \325\322# LCC\2736-14\0" // EPSG Arctic LCC zone 6-14
    "E\247G \325\322# LCC\2736-16\0" // EPSG Arctic LCC zone 6-16
    "E\247G \325\322# LCC\2736-18\0" // EPSG Arctic LCC zone 6-18
    "E\247G \325\322# LCC\2736-20\0" // EPSG Arctic LCC zone 6-20
    "E\247G \325\322# LCC\2736-22\0" // EPSG Arctic LCC zone 6-22
    "E\247G \325\322# LCC\2736-24\0" // EPSG Arctic LCC zone 6-24
    "E\247G \325\322# LCC\2736-26\0" // EPSG Arctic LCC zone 6-26
    "E\247G \325\322# LCC\2736-28\0" // EPSG Arctic LCC zone 6-28
    "E\247G \325\322# LCC\2736-30\0" // EPSG Arctic LCC zone 6-30
    "E\247G \325\322# LCC\2737-11\0" // EPSG Arctic LCC zone 7-11
    "E\247G \325\322# LCC\2737-13\0" // EPSG Arctic LCC zone 7-13
    "E\247G \325\322# LCC\2738-20\0" // EPSG Arctic LCC zone 8-20
    "E\247G \325\322# LCC\2738-22\0" // EPSG Arctic LCC zone 8-22
    "E\247G \325\322# Reg\320\230LCC\273A1\0" // EPSG Arctic Regional LCC zone A1
    "E\247G \325\322# Reg\320\230LCC\273A2\0" // EPSG Arctic Regional LCC zone A2
    "E\247G \325\322# Reg\320\230LCC\273A3\0" // EPSG Arctic Regional LCC zone A3
    "E\247G \325\322# Reg\320\230LCC\273A4\0" // EPSG Arctic Regional LCC zone A4
    "E\247G \325\322# Reg\320\230LCC\273A5\0" // EPSG Arctic Regional LCC zone A5
    "E\247G \325\322# Reg\320\230LCC\273B1\0" // EPSG Arctic Regional LCC zone B1
    "E\247G \325\322# Reg\320\230LCC\273B2\0" // EPSG Arctic Regional LCC zone B2
    "E\247G \325\322# Reg\320\230LCC\273B3\0" // EPSG Arctic Regional LCC zone B3
    "E\247G \325\322# Reg\320\230LCC\273B4\0" // EPSG Arctic Regional LCC zone B4
    "E\247G \325\322# Reg\320\230LCC\273B5\0" // EPSG Arctic Regional LCC zone B5
    "E\247G \325\322# Reg\320\230LCC\273C1\0" // EPSG Arctic Regional LCC zone C1
    "E\247G \325\322# Reg\320\230LCC\273C2\0" // EPSG Arctic Regional LCC zone C2
    "E\247G \325\322# Reg\320\230LCC\273C3\0" // EPSG Arctic Regional LCC zone C3
    "E\247G \325\322# Reg\320\230LCC\273C4\0" // EPSG Arctic Regional LCC zone C4
    "E\247G \325\322# Reg\320\230LCC\273C5\0" // EPSG Arctic Regional LCC zone C5
    "E\247G_Al}k\256P\246\037_St\007eog\350\237#\0" // EPSG_Alaska_Polar_Stereographic
    "E\247G_\325\322#_$\2155-29\0" // EPSG_Arctic_zone_5-29
    "E\247G_\325\322#_$\2155-31\0" // EPSG_Arctic_zone_5-31
    "E\247G_\325\322#_$\2156-14\0" // EPSG_Arctic_zone_6-14
    "E\247G_\325\322#_$\2156-16\0" // EPSG_Arctic_zone_6-16
    "E\247G\377\005\226\256P\246\037_St\007eog\350\237#\0" // EPSG_Canada_Polar_Stereographic
    "E\247G_G>\207\206_P\246\037_St\007eog\350\237#\0" // EPSG_Greenland_Polar_Stereographic
    "E\247G_\205way_P\246\037_St\007eog\350\237#\0" // EPSG_Norway_Polar_Stereographic
    "E\247G_R\351si\256P\246\037_St\007eog\350\237#\0" // EPSG_Russia_Polar_Stereographic
    "EST92\0" // EST92
    "EST97\0" // EST97
    "ETRF\2270\002L=L\003\0" // ETRF2000 - LatLon
    "ETRF\2270 Po\206\0" // ETRF2000 Poland
    "ETRF\2270 epoc\027\2278.0\0" // ETRF2000 epoca 2008.0
    "ETRF\2270 epoc\027\2278.0 f\351\013\0" // ETRF2000 epoca 2008.0 fuso 
    "ETRF\2270-PL\0" // ETRF2000-PL
    "ETRF\2270-PL\012\134\2270/15\0" // ETRF2000-PL / CS2000/15
    "ETRF\2270-PL\012\134\2270/18\0" // ETRF2000-PL / CS2000/18
    "ETRF\2270-PL\012\134\2270/21\0" // ETRF2000-PL / CS2000/21
    "ETRF\2270-PL\012\134\2270/24\0" // ETRF2000-PL / CS2000/24
    "ETRF\2270-PL\012\13492\0" // ETRF2000-PL / CS92
    "ETRF\2275\0" // ETRF2005
    "ETRF\2275\002L=L\003\0" // ETRF2005 - LatLon
    "ETRF\03414\0" // ETRF2014
    "ETRF\03414\001L=L\003\0" // ETRF2014- LatLon
    "ETRF89\0" // ETRF89
    "ETRF89\002L=L\003\0" // ETRF89 - LatLon
    "ETRF89 IT\0" // ETRF89 IT
    "ETRF90\0" // ETRF90
    "ETRF90\002L=L\003\0" // ETRF90 - LatLon
    "ETRF91\0" // ETRF91
    "ETRF91\002L=L\003\0" // ETRF91 - LatLon
    "ETRF92\0" // ETRF92
    "ETRF92\002L=L\003\0" // ETRF92 - LatLon
    "ETRF93\0" // ETRF93
    "ETRF93\002L=L\003\0" // ETRF93 - LatLon
    "ETRF94\0" // ETRF94
    "ETRF94\002L=L\003\0" // ETRF94 - LatLon
    "ETRF96\0" // ETRF96
    "ETRF96\002L=L\003\0" // ETRF96 - LatLon
    "ETRF97\0" // ETRF97
    "ETRF97\002L=L\003\0" // ETRF97 - LatLon
    "ETRF_\03189\0" // ETRF_1989
    "ET{\002\0" // ETRS - 
    "ET{-\25426\0" // ETRS-TM26
    "ET{-\25427\0" // ETRS-TM27
    "ET{-TM28\0" // ETRS-TM28
    "ET{-\25429\0" // ETRS-TM29
    "ET{-\25430\0" // ETRS-TM30
    "ET{-TM31\0" // ETRS-TM31
    "ET{-\25432\0" // ETRS-TM32
    "ET{-\25433\0" // ETRS-TM33
    "ET{-TM34\0" // ETRS-TM34
    "ET{-\25435\0" // ETRS-TM35
    "ET{-\25435FIN(E,N)\0" // ETRS-TM35FIN(E,N)
    "ET{-\25435FIN(N,E)\0" // ETRS-TM35FIN(N,E)
    "ET{-\25436\0" // ETRS-TM36
    "ET{-\25437\0" // ETRS-TM37
    "ET{-\25438\0" // ETRS-TM38
    "ET{-\25439\0" // ETRS-TM39
    "ET{89\012Alb\005\315LCC \03410\0" // ETRS89 / Albania LCC 2010
    "ET{89\012Alb\005\315\254 \03410\0" // ETRS89 / Albania TM 2010
    "ET{89\012Au\375\315L\225b\007t\0" // ETRS89 / Austria Lambert
    "ET{89\012B\242g\336 L\225b\007t \2275\0" // ETRS89 / Belgian Lambert 2005
    "ET{89\012B\242g\336 L\225b\007t \2278\0" // ETRS89 / Belgian Lambert 2008
    "ET{89\012DK\2541\0" // ETRS89 / DKTM1
    "ET{89\012DK\2542\0" // ETRS89 / DKTM2
    "ET{89\012DK\2543\0" // ETRS89 / DKTM3
    "ET{89\012DK\2544\0" // ETRS89 / DKTM4
    "ET{89\012E\247G \325\322#\2732-22\0" // ETRS89 / EPSG Arctic zone 2-22
    "ET{89\012E\247G \325\322#\2733-11\0" // ETRS89 / EPSG Arctic zone 3-11
    "ET{89\012E\247G \325\322#\2734-26\0" // ETRS89 / EPSG Arctic zone 4-26
    "ET{89\012E\247G \325\322#\2734-28\0" // ETRS89 / EPSG Arctic zone 4-28
    "ET{89\012E\247G \325\322#\2735-11\0" // ETRS89 / EPSG Arctic zone 5-11
    "ET{89\012E\247G \325\322#\2735-13\0" // ETRS89 / EPSG Arctic zone 5-13
    "ET{89\012E\247G \325\322#\2735-47\0" // ETRS89 / EPSG Arctic zone 5-47
    "ET{89\012ET{-GK\031FIN\0" // ETRS89 / ETRS-GK19FIN
    "ET{89\012ET{-GK\034FIN\0" // ETRS89 / ETRS-GK20FIN
    "ET{89\012ET{-GK21FIN\0" // ETRS89 / ETRS-GK21FIN
    "ET{89\012ET{-GK22FIN\0" // ETRS89 / ETRS-GK22FIN
    "ET{89\012ET{-GK23FIN\0" // ETRS89 / ETRS-GK23FIN
    "ET{89\012ET{-GK24FIN\0" // ETRS89 / ETRS-GK24FIN
    "ET{89\012ET{-GK25FIN\0" // ETRS89 / ETRS-GK25FIN
    "ET{89\012ET{-GK26FIN\0" // ETRS89 / ETRS-GK26FIN
    "ET{89\012ET{-GK\306FIN\0" // ETRS89 / ETRS-GK27FIN
    "ET{89\012ET{-GK28FIN\0" // ETRS89 / ETRS-GK28FIN
    "ET{89\012ET{-GK29FIN\0" // ETRS89 / ETRS-GK29FIN
    "ET{89\012ET{-GK30FIN\0" // ETRS89 / ETRS-GK30FIN
    "ET{89\012ET{-GK31FIN\0" // ETRS89 / ETRS-GK31FIN
    "ET{89\012F\037o\010L\225b\007t\0" // ETRS89 / Faroe Lambert
    "ET{89\012F\037o\010\254\0" // ETRS89 / Faroe TM
    "ET{89\012GK\031FIN\0" // ETRS89 / GK19FIN
    "ET{89\012GK\034FIN\0" // ETRS89 / GK20FIN
    "ET{89\012GK21FIN\0" // ETRS89 / GK21FIN
    "ET{89\012GK22FIN\0" // ETRS89 / GK22FIN
    "ET{89\012GK23FIN\0" // ETRS89 / GK23FIN
    "ET{89\012GK24FIN\0" // ETRS89 / GK24FIN
    "ET{89\012GK25FIN\0" // ETRS89 / GK25FIN
    "ET{89\012GK26FIN\0" // ETRS89 / GK26FIN
    "ET{89\012GK\306FIN\0" // ETRS89 / GK27FIN
    "ET{89\012GK28FIN\0" // ETRS89 / GK28FIN
    "ET{89\012GK29FIN\0" // ETRS89 / GK29FIN
    "ET{89\012GK30FIN\0" // ETRS89 / GK30FIN
    "ET{89\012GK31FIN\0" // ETRS89 / GK31FIN
    "ET{89\012Ga\351s-Krug\007\327M 9E\0" // ETRS89 / Gauss-Kruger CM 9E
    "ET{89\012Gu\007nse\204Gr\257\0" // ETRS89 / Guernsey Grid
    "ET{89\012J\232e\204Tr\005sv\232\010M\007c=\006\0" // ETRS89 / Jersey Transverse Mercator
    "ET{89\012Kp\2270 B\006nh\246m\0" // ETRS89 / Kp2000 Bornholm
    "ET{89\012Kp\2270 Jut\206\0" // ETRS89 / Kp2000 Jutland
    "ET{89\012Kp\2270 Ze\025\033\0" // ETRS89 / Kp2000 Zealand
    "ET{89\012LCC G\007m\005y\201E-N)\0" // ETRS89 / LCC Germany (E-N)
    "ET{89\012LCC G\007m\005y\201N-E)\0" // ETRS89 / LCC Germany (N-E)
    "ET{89\012N\254\27310\0" // ETRS89 / NTM zone 10
    "ET{89\012N\254\27311\0" // ETRS89 / NTM zone 11
    "ET{89\012N\254\27312\0" // ETRS89 / NTM zone 12
    "ET{89\012N\254\27313\0" // ETRS89 / NTM zone 13
    "ET{89\012N\254\27314\0" // ETRS89 / NTM zone 14
    "ET{89\012N\254\27315\0" // ETRS89 / NTM zone 15
    "ET{89\012N\254\27316\0" // ETRS89 / NTM zone 16
    "ET{89\012N\254\27317\0" // ETRS89 / NTM zone 17
    "ET{89\012N\254\27318\0" // ETRS89 / NTM zone 18
    "ET{89\012N\254\27319\0" // ETRS89 / NTM zone 19
    "ET{89\012N\254\27320\0" // ETRS89 / NTM zone 20
    "ET{89\012N\254\27321\0" // ETRS89 / NTM zone 21
    "ET{89\012N\254\27322\0" // ETRS89 / NTM zone 22
    "ET{89\012N\254\27323\0" // ETRS89 / NTM zone 23
    "ET{89\012N\254\27324\0" // ETRS89 / NTM zone 24
    "ET{89\012N\254\27325\0" // ETRS89 / NTM zone 25
    "ET{89\012N\254\27326\0" // ETRS89 / NTM zone 26
    "ET{89\012N\254\27327\0" // ETRS89 / NTM zone 27
    "ET{89\012N\254\27328\0" // ETRS89 / NTM zone 28
    "ET{89\012N\254\27329\0" // ETRS89 / NTM zone 29
    "ET{89\012N\254\27330\0" // ETRS89 / NTM zone 30
    "ET{89\012N\254\2735\0" // ETRS89 / NTM zone 5
    "ET{89\012N\254\2736\0" // ETRS89 / NTM zone 6
    "ET{89\012N\254\2737\0" // ETRS89 / NTM zone 7
    "ET{89\012N\254\2738\0" // ETRS89 / NTM zone 8
    "ET{89\012N\254\2739\0" // ETRS89 / NTM zone 9
    "ET{89\012P\006tug\230\25406\0" // ETRS89 / Portugal TM06
    "ET{89\012\254 30 NE\0" // ETRS89 / TM 30 NE
    "ET{89\012\254 B\025t#93\0" // ETRS89 / TM Baltic93
    "ET{89\012\25426\0" // ETRS89 / TM26
    "ET{89\012\25427\0" // ETRS89 / TM27
    "ET{89\012\25435FIN(E,N)\0" // ETRS89 / TM35FIN(E,N)
    "ET{89\012\25435FIN(N,E)\0" // ETRS89 / TM35FIN(N,E)
    "ET{89\012\25438\0" // ETRS89 / TM38
    "ET{89\012\25439\0" // ETRS89 / TM39
    "ET{89\012U\254\27328N\0" // ETRS89 / UTM zone 28N
    "ET{89\012U\254\27328N\201N-E)\0" // ETRS89 / UTM zone 28N (N-E)
    "ET{89\012U\254\27329N\0" // ETRS89 / UTM zone 29N
    "ET{89\012U\254\27329N\201N-E)\0" // ETRS89 / UTM zone 29N (N-E)
    "ET{89\012U\254\27330N\0" // ETRS89 / UTM zone 30N
    "ET{89\012U\254\27330N\201N-E)\0" // ETRS89 / UTM zone 30N (N-E)
    "ET{89\012U\254\27331N\0" // ETRS89 / UTM zone 31N
    "ET{89\012U\254\27331N\201N-E)\0" // ETRS89 / UTM zone 31N (N-E)
    "ET{89\012U\254\27331N\201N-zE)\0" // ETRS89 / UTM zone 31N (N-zE)
    "ET{89\012U\254\27331N\201zE-N)\0" // ETRS89 / UTM zone 31N (zE-N)
    "ET{89\012U\254\27332N\0" // ETRS89 / UTM zone 32N
    "ET{89\012U\254\27332N\201N-E)\0" // ETRS89 / UTM zone 32N (N-E)
    "ET{89\012U\254\27332N\201N-zE)\0" // ETRS89 / UTM zone 32N (N-zE)
    "ET{89\012U\254\27332N\201zE-N)\0" // ETRS89 / UTM zone 32N (zE-N)
    "ET{89\012U\254\27333N\0" // ETRS89 / UTM zone 33N
    "ET{89\012U\254\27333N\201N-E)\0" // ETRS89 / UTM zone 33N (N-E)
    "ET{89\012U\254\27333N\201N-zE)\0" // ETRS89 / UTM zone 33N (N-zE)
    "ET{89\012U\254\27333N\201zE-N)\0" // ETRS89 / UTM zone 33N (zE-N)
    "ET{89\012U\254\27334N\201N-E)\0" // ETRS89 / UTM zone 34N (N-E)
    "ET{89\012U\254\27335N\0" // ETRS89 / UTM zone 35N
    "ET{89\012U\254\27335N\201N-E)\0" // ETRS89 / UTM zone 35N (N-E)
    "ET{89\012U\254\27336N\0" // ETRS89 / UTM zone 36N
    "ET{89\012U\254\27336N\201N-E)\0" // ETRS89 / UTM zone 36N (N-E)
    "ET{89\012U\254\27337N\0" // ETRS89 / UTM zone 37N
    "ET{89\012U\254\27337N\201N-E)\0" // ETRS89 / UTM zone 37N (N-E)
    "ET{89\012U\254\27338N\0" // ETRS89 / UTM zone 38N
    "ET{89-G{80\0" // ETRS89-GRS80
    "ET{89-LAEA\0" // ETRS89-LAEA
    "ET{89-LCC\0" // ETRS89-LCC
    "ET{89-LCC-DE(E-N)\0" // ETRS89-LCC-DE(E-N)
    "ET{89-LCC-DE(N-E)\0" // ETRS89-LCC-DE(N-E)
    "ET{89-TM28\0" // ETRS89-TM28
    "ET{89-\25429\0" // ETRS89-TM29
    "ET{89-\25430\0" // ETRS89-TM30
    "ET{89-TM31\0" // ETRS89-TM31
    "ET{89-\25432\0" // ETRS89-TM32
    "ET{89-\25433\0" // ETRS89-TM33
    "ET{89-TM34\0" // ETRS89-TM34
    "ET{89-\25435\0" // ETRS89-TM35
    "ET{89-\25436\0" // ETRS89-TM36
    "ET{89-\25437\0" // ETRS89-TM37
    "ET{89-ext\207d\275\012LAEA E\224ope\0" // ETRS89-extended / LAEA Europe
    "ET{89-ext\207d\275\012LCC E\224ope\0" // ETRS89-extended / LCC Europe
    "ET{_\03189\0" // ETRS_1989
    "ET{\21189_\0" // ETRS_1989_
    "ET{\21189_E\247G_\325\322#_$\215\0" // ETRS_1989_EPSG_Arctic_zone_
    "ET{\21189_N\254_Z\003\215\0" // ETRS_1989_NTM_Zone_
    "ET{\21189_Po\206_\134\2270_Z\003\215\0" // ETRS_1989_Poland_CS2000_Zone_
    "ET{\21189_U\254_Z\003\215\0" // ETRS_1989_UTM_Zone_
    "EUREF\270N_\25435FIN\0" // EUREF_FIN_TM35FIN
    "EWR2 Gr\257\0" // EWR2 Grid
    "EWR2 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // EWR2 Intermediate Reference Frame
    "EWR2-IRF\0" // EWR2-IRF
    "EWR2-\254\0" // EWR2-TM
    "Ea\020_B\242t_\03410\0" // East_Belt_2010
    "Ea\020\377\367\025_Z\003e\0" // East_Central_Zone
    "Ea\020_\021\211\014_\240_LCC\372_I\035l\0" // East_NAD_1983_2011_LCC_Feet_Intl
    "Ea\020_\021\211\014_\240_LCC_M\313\0" // East_NAD_1983_2011_LCC_Meters
    "Ea\020_\021\211\014_CO{96_LCC\372_I\035l\0" // East_NAD_1983_CORS96_LCC_Feet_Intl
    "Ea\020_\021\211\014_CO{96_LCC_M\313\0" // East_NAD_1983_CORS96_LCC_Meters
    "Ea\020_Se\256B\242t_\03410\0" // East_Sea_Belt_2010
    "Ea\020\007 \335\31767\0" // Easter Island 1967
    "Ea\020\007_\335\21167\0" // Easter_Island_1967
    "EauClai>\377\026\035y\372\0" // EauClaire_County_Feet
    "EauClai>\377\026\035y_M\313\0" // EauClaire_County_Meters
    "EauClai>_M\313\0" // EauClaire_Meters
    "Eau\377lai>\372\0" // Eau_Claire_Feet
    "Ecu\226\006\0" // Ecuador
    "Ecu\226\006\002G\025apagos\356\0" // Ecuador - Galapagos onshore
    "Ecu\226\006\002ma\023\206\356\0" // Ecuador - mainland onshore
    "Egypt\0" // Egypt
    "Egypt\00229\20033\015\0" // Egypt - 29°E to 33°E
    "Egypt\002Gulf \214|uez\0" // Egypt - Gulf of Suez
    "Egypt\002We\020\007n D\220\007t\0" // Egypt - Western Desert
    "Egypt\002e\314\24333\015\356\0" // Egypt - east of 33°E onshore
    "Egypt\002\236\0" // Egypt - onshore
    "Egypt\002w\267\24329\015; n\006@\24328\004\202'N\0" // Egypt - west of 29°E; north of 28°11'N
    "Egypt\002w\267\24329\015; s\250\24328\004\202'N\0" // Egypt - west of 29°E; south of 28°11'N
    "Egypt\31707\0" // Egypt 1907
    "Egypt\31707\012Blu\010B\242t\0" // Egypt 1907 / Blue Belt
    "Egypt\31707\012Ext\207d\275 P\224pl\010B\242t\0" // Egypt 1907 / Extended Purple Belt
    "Egypt\31707\012P\224pl\010B\242t\0" // Egypt 1907 / Purple Belt
    "Egypt\31707\012R\275 B\242t\0" // Egypt 1907 / Red Belt
    "Egypt\31730\0" // Egypt 1930
    "Egypt Blu\010B\242t\0" // Egypt Blue Belt
    "Egypt Ext\207d\275 P\224pl\010B\242t\0" // Egypt Extended Purple Belt
    "Egypt Gulf \214|uez S-650 TL\0" // Egypt Gulf of Suez S-650 TL
    "Egypt Gulf \214|uez|-650 TL\012R\275 B\242t\0" // Egypt Gulf of Suez S-650 TL / Red Belt
    "Egypt P\224pl\010B\242t\0" // Egypt Purple Belt
    "Egypt R\275 B\242t\0" // Egypt Red Belt
    "Egypt\21107\0" // Egypt_1907
    "Egypt\21130\0" // Egypt_1930
    "Egypt_Blu\215B\242t\0" // Egypt_Blue_Belt
    "Egypt_Ext\207d\275_P\224pl\215B\242t\0" // Egypt_Extended_Purple_Belt
    "Egypt_Gulf_\214_Suez_S-650_TL\0" // Egypt_Gulf_of_Suez_S-650_TL
    "Egypt_Gulf_\214_Suez_S-650_TL_R\275_B\242t\0" // Egypt_Gulf_of_Suez_S-650_TL_Red_Belt
    "Egypt_P\224pl\215B\242t\0" // Egypt_Purple_Belt
    "Egypt_R\275_B\242t\0" // Egypt_Red_Belt
    "Egyseg\220 Orszagos V\036ul\036i\0" // Egyseges Orszagos Vetuleti
    "El|\025v\226\006\002\236\0" // El Salvador - onshore
    "El_S\025v\226\006_L\225b\007t\0" // El_Salvador_Lambert
    "Elkh\037t-Kosci\351ko-Waba<_(ft\203)\0" // Elkhart-Kosciusko-Wabash_(ftUS)
    "Elkh\037t-Kosci\351ko-Waba<_(m)\0" // Elkhart-Kosciusko-Wabash_(m)
    "Equ\025_E\037\024_Am\007#}\0" // Equal_Earth_Americas
    "Equ\025_E\037\024_Asi\256Pacif#\0" // Equal_Earth_Asia_Pacific
    "Equ\025_E\037\024_G>\207w#h\0" // Equal_Earth_Greenwich
    "Equ=\006i\230Gu\023e\030Bioko\0" // Equatorial Guinea - Bioko
    "Er\245>a\0" // Eritrea
    "Esp\007\005c\010Gr\257 \03420\0" // Esperance Grid 2020
    "E\020\003ia\0" // Estonia
    "E\020\003\213\236\0" // Estonia - onshore
    "E\020\003\315\03192\0" // Estonia 1992
    "E\020\003\315\03197\0" // Estonia 1997
    "E\020\003i\256\03192\0" // Estonia_1992
    "E\020\003i\256\03197\0" // Estonia_1997
    "E\020\003ia\21197_E\020\003i\256N=\320\025_Gr\257\0" // Estonia_1997_Estonia_National_Grid
    "E\020\003\336\327o\006d\023=\010Sy\020\212 \243\03192\0" // Estonian Coordinate System of 1992
    "E\020\003\336\327o\006d\023=\010Sy\020\212 \243\03197\0" // Estonian Coordinate System of 1997
    "E\020\003\336 N=\320\230Gr\257\0" // Estonian National Grid
    "E\020\003\336\377o\006d\023=\215Sy\020\212_\214_\03192\0" // Estonian_Coordinate_System_of_1992
    "Esw=\023i\0" // Eswatini
    "E\024iopia\0" // Ethiopia
    "E\024iop\213e\314\24342\015\0" // Ethiopia - east of 42°E
    "E\224op\2160\2006\015\374ED50 \366\0" // Europe - 0°E to 6°E and ED50 by country
    "E\224op\2160\2006\015\374ET{89 \366\0" // Europe - 0°E to 6°E and ETRS89 by country
    "E\224op\216\312\235\3543\235\015 \210\010\366\0" // Europe - 10.5°E to 13.5°E onshore by country
    "E\224op\21612\3548\015\374ED50 \366\0" // Europe - 12°E to 18°E and ED50 by country
    "E\224op\21612\3548\015\374ET{89 \366\0" // Europe - 12°E to 18°E and ETRS89 by country
    "E\224op\21612\3548\015 \210\010\033|-42(58) \366\0" // Europe - 12°E to 18°E onshore and S-42(58) by country
    "E\224op\21612\3548\015 \210\010\033|-42(\014) \366\0" // Europe - 12°E to 18°E onshore and S-42(83) by country
    "E\224op\21612\2216!\374ED50 \366\0" // Europe - 12°W to 6°W and ED50 by country
    "E\224op\21612\2216!\374ET{89 \366\0" // Europe - 12°W to 6°W and ETRS89 by country
    "E\224op\21613\235\3546\235\015 \210\010\033|-42(58) \366\0" // Europe - 13.5°E to 16.5°E onshore and S-42(58) by country
    "E\224op\21613\235\3546\235\015 \210\010\033|-42(\014) \366\0" // Europe - 13.5°E to 16.5°E onshore and S-42(83) by country
    "E\224op\21616\235\200\031\235\015 \210\010\033|-42(58) \366\0" // Europe - 16.5°E to 19.5°E onshore and S-42(58) by country
    "E\224op\21616\235\200\031\235\015 \210\010\033|-42(\014) \366\0" // Europe - 16.5°E to 19.5°E onshore and S-42(83) by country
    "E\224op\21618\20024\015\374ED50 \366\0" // Europe - 18°E to 24°E and ED50 by country
    "E\224op\21618\20024\015\374ET{89 \366\0" // Europe - 18°E to 24°E and ETRS89 by country
    "E\224op\21618\20024\015 \210\010\033|-42(58) \366\0" // Europe - 18°E to 24°E onshore and S-42(58) by country
    "E\224op\21618\20024\015 \210\010\033|-42(\014) \366\0" // Europe - 18°E to 24°E onshore and S-42(83) by country
    "E\224op\21618\22112!\374ED50 \366\0" // Europe - 18°W to 12°W and ED50 by country
    "E\224op\21618\22112!\374ET{89 \366\0" // Europe - 18°W to 12°W and ETRS89 by country
    "E\224op\216\031\235\20022\235\015 \210\010\033|-42(58) \366\0" // Europe - 19.5°E to 22.5°E onshore and S-42(58) by country
    "E\224op\216\031\235\20022\235\015 \210\010\033|-42(\014) \366\0" // Europe - 19.5°E to 22.5°E onshore and S-42(83) by country
    "E\224op\21622\235\20025\235\015 \210\010\033|-42(58) \366\0" // Europe - 22.5°E to 25.5°E onshore and S-42(58) by country
    "E\224op\21622\235\20025\235\015 \210\010\033|-42(\014) \366\0" // Europe - 22.5°E to 25.5°E onshore and S-42(83) by country
    "E\224op\21624\20030\015\374ED50 \366\0" // Europe - 24°E to 30°E and ED50 by country
    "E\224op\21624\20030\015\374ET{89 \366\0" // Europe - 24°E to 30°E and ETRS89 by country
    "E\224op\21624\20030\015 \210\010\033|-42(58) \366\0" // Europe - 24°E to 30°E onshore and S-42(58) by country
    "E\224op\21624\22118!\0" // Europe - 24°W to 18°W
    "E\224op\21625\235\20028\235\015 \210\010\033|-42(58) \366\0" // Europe - 25.5°E to 28.5°E onshore and S-42(58) by country
    "E\224op\21628\235\20031\235\015 \210\010\033|-42(58) \366\0" // Europe - 28.5°E to 31.5°E onshore and S-42(58) by country
    "E\224op\21630\20036\015\374ED50 \366\0" // Europe - 30°E to 36°E and ED50 by country
    "E\224op\21630\20036\015\374ET{89 \366\0" // Europe - 30°E to 36°E and ETRS89 by country
    "E\224op\21630\22124!\0" // Europe - 30°W to 24°W
    "E\224op\21636\20042\015\374ED50 \366\0" // Europe - 36°E to 42°E and ED50 by country
    "E\224op\21636\20042\015\374ET{89 \366\0" // Europe - 36°E to 42°E and ETRS89 by country
    "E\224op\21642\20048\015\0" // Europe - 42°E to 48°E
    "E\224op\21642\20048\015\374ED50 \366\0" // Europe - 42°E to 48°E and ED50 by country
    "E\224op\21642\20048\015\374ET{89 \366\0" // Europe - 42°E to 48°E and ETRS89 by country
    "E\224op\21648\20054\015\0" // Europe - 48°E to 54°E
    "E\224op\2166\3542\015\374ED50 \366\0" // Europe - 6°E to 12°E and ED50 by country
    "E\224op\2166\3542\015\374ET{89 \366\0" // Europe - 6°E to 12°E and ETRS89 by country
    "E\224op\2166\3542\015\374Pulkov\013\366\0" // Europe - 6°E to 12°E and Pulkovo by country
    "E\224op\2166\2210!\374ED50 \366\0" // Europe - 6°W to 0°W and ED50 by country
    "E\224op\2166\2210!\374ET{89 \366\0" // Europe - 6°W to 0°W and ETRS89 by country
    "E\224op\216Au\375\315\253f\006m\007 Yugoslav\315\236\0" // Europe - Austria and former Yugoslavia onshore
    "E\224op\216Br\245i< \316l\220\002UK\374I>\206\356\0" // Europe - British Isles - UK and Ireland onshore
    "E\224op\216Br\245i< \316l\220\374Ch\005n\242 \335s\356\0" // Europe - British Isles and Channel Islands onshore
    "E\224op\216Czechoslovakia\0" // Europe - Czechoslovakia
    "E\224op\216ED50 \366\0" // Europe - ED50 by country
    "E\224op\216ETRF \366\0" // Europe - ETRF by country
    "E\224op\216E\020\003ia; L=via; Li\024u\005ia\0" // Europe - Estonia; Latvia; Lithuania
    "E\224op\216FSU\002\031\235\20022\235\015\356\0" // Europe - FSU - 19.5°E to 22.5°E onshore
    "E\224op\216FSU\00222\235\20025\235\015\356\0" // Europe - FSU - 22.5°E to 25.5°E onshore
    "E\224op\216FSU\00225\235\20028\235\015\356\0" // Europe - FSU - 25.5°E to 28.5°E onshore
    "E\224op\216FSU\00228\235\20031\235\015\356\0" // Europe - FSU - 28.5°E to 31.5°E onshore
    "E\224op\216FSU\00231\235\20034\235\015\356\0" // Europe - FSU - 31.5°E to 34.5°E onshore
    "E\224op\216FSU\00234\235\20037\235\015\356\0" // Europe - FSU - 34.5°E to 37.5°E onshore
    "E\224op\216FSU\00237\235\20040\235\015\356\0" // Europe - FSU - 37.5°E to 40.5°E onshore
    "E\224op\216FSU\00240\235\20043\235\015\356\0" // Europe - FSU - 40.5°E to 43.5°E onshore
    "E\224op\216FSU\00243\235\20046\235\015\356\0" // Europe - FSU - 43.5°E to 46.5°E onshore
    "E\224op\216FSU\00246\235\20049\235\015\356\0" // Europe - FSU - 46.5°E to 49.5°E onshore
    "E\224op\216FSU\002\13463\273C0\0" // Europe - FSU - CS63 zone C0
    "E\224op\216FSU\002\13463\273C1\0" // Europe - FSU - CS63 zone C1
    "E\224op\216FSU\002\13463\273C2\0" // Europe - FSU - CS63 zone C2
    "E\224op\216FSU\356\0" // Europe - FSU onshore
    "E\224op\216FSU \210\01018\20024\015 \033|-42 \366\0" // Europe - FSU onshore 18°E to 24°E and S-42 by country
    "E\224op\216FSU \210\01024\20030\015 \033|-42 \366\0" // Europe - FSU onshore 24°E to 30°E and S-42 by country
    "E\224op\216FSU \210\01030\20036\015\0" // Europe - FSU onshore 30°E to 36°E
    "E\224op\216FSU \210\01036\20042\015\0" // Europe - FSU onshore 36°E to 42°E
    "E\224op\216FSU \210\01042\20048\015\0" // Europe - FSU onshore 42°E to 48°E
    "E\224op\216Fehm\037nb\242t \026t\007\0" // Europe - Fehmarnbelt outer
    "E\224op\216F\023\206\374\205way\002\236\0" // Europe - Finland and Norway - onshore
    "E\224op\216I>\206\201Republ#\374Ul\020\007)\002\236\0" // Europe - Ireland (Republic and Ulster) - onshore
    "E\224op\216LCC & LAEA\0" // Europe - LCC & LAEA
    "E\224op\216Liecht\207\020e\023 \033|w\245z\007\206\0" // Europe - Liechtenstein and Switzerland
    "E\224op\216Low\007 Au\375\315\253M\006avia\0" // Europe - Lower Austria and Moravia
    "E\224op\216Ly\003-T\224\023\0" // Europe - Lyon-Turin
    "E\224op\216\324Sea\0" // Europe - North Sea
    "E\224op\216P\006tug\230\253Spa\023\0" // Europe - Portugal and Spain
    "E\224op\216\370P\007m\336 b}\023\0" // Europe - South Permian basin
    "E\224op\216Upp\007 Au\375ia,|\025zb\224g\374Bo\300ia\0" // Europe - Upper Austria, Salzburg and Bohemia
    "E\224op\216c\343m\231\214f~e\0" // Europe - common offshore
    "E\224op\216f\006m\007 Yugoslav\315\236\0" // Europe - former Yugoslavia onshore
    "E\224op\216f\006m\007 Yugoslav\315\210\01016\235\200\031\235\015\0" // Europe - former Yugoslavia onshore 16.5°E to 19.5°E
    "E\224op\216f\006m\007 Yugoslav\315\210\010\031\235\20022\235\015\0" // Europe - former Yugoslavia onshore 19.5°E to 22.5°E
    "E\224op\216f\006m\007 Yugoslav\315\210\010e\314\24322\235\015\0" // Europe - former Yugoslavia onshore east of 22.5°E
    "E\224op\216f\006m\007 Yugoslav\315\210\010w\267\24316\235\015\0" // Europe - former Yugoslavia onshore west of 16.5°E
    "E\224op\216\214f~\010\324Se\030G\007m\005\204\253\307\024\007\206s e\314\2435\015\0" // Europe - offshore North Sea - Germany and Netherlands east of 5°E
    "E\224op\216\210\216ea\020\007n\002S-42(58)\0" // Europe - onshore - eastern - S-42(58)
    "E\224op\216\210\216ea\020\007n\002S-42(\014)\0" // Europe - onshore - eastern - S-42(83)
    "E\224op\216we\020\0" // Europe - west
    "E\224op\216w\267(DMA ED50 me\005)\0" // Europe - west (DMA ED50 mean)
    "E\224op\216w\267c\367\025\201\366)\0" // Europe - west central (by country)
    "E\224op\010C\003f\006m\230\2271\0" // Europe Conformal 2001
    "E\224op\010Equ\230A>\027\2271\0" // Europe Equal Area 2001
    "E\224ope\005 D=um\31750\0" // European Datum 1950
    "E\224ope\005 D=um\31750(\03177)\0" // European Datum 1950(1977)
    "E\224ope\005 D=um\31779\0" // European Datum 1979
    "E\224ope\005 D=um\31787\0" // European Datum 1987
    "E\224ope\005 Liby\005 D=um\31779\0" // European Libyan Datum 1979
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03189\0" // European Terrestrial Reference Frame 1989
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03190\0" // European Terrestrial Reference Frame 1990
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03191\0" // European Terrestrial Reference Frame 1991
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03192\0" // European Terrestrial Reference Frame 1992
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03193\0" // European Terrestrial Reference Frame 1993
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03194\0" // European Terrestrial Reference Frame 1994
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03196\0" // European Terrestrial Reference Frame 1996
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03197\0" // European Terrestrial Reference Frame 1997
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\2270\0" // European Terrestrial Reference Frame 2000
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\2275\0" // European Terrestrial Reference Frame 2005
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Fr\225\010\03414\0" // European Terrestrial Reference Frame 2014
    "E\224ope\005 T\007>\375i\230Ref\007\207c\010Sy\020\212\31789 \207s\212ble\0" // European Terrestrial Reference System 1989 ensemble
    "E\224ope\005\21150\0" // European_1950
    "E\224ope\005\21150_ED77\0" // European_1950_ED77
    "E\224ope\005\21179\0" // European_1979
    "E\224ope\005\21187\0" // European_1987
    "E\224ope\005_Liby\005\21179\0" // European_Libyan_1979
    "E\224ope\005_Liby\005_D=um\21179\0" // European_Libyan_Datum_1979
    "E\224ope\005_T\007>\375i\025_Ref\007\207ce`r\225\215\0" // European_Terrestrial_Reference_Frame_
    "Ev\007\267(1\0140 Def\023\245\320)\0" // Everest (1830 Definition)
    "Ev\007\2671\0140\201\03137 Adju\020me\035)\0" // Everest 1830 (1937 Adjustment)
    "Ev\007\2671\0140\201\03162 Def\023\245\320)\0" // Everest 1830 (1962 Definition)
    "Ev\007\2671\0140\201\03167 Def\023\245\320)\0" // Everest 1830 (1967 Definition)
    "Ev\007\2671\0140\201\03175 Def\023\245\320)\0" // Everest 1830 (1975 Definition)
    "Ev\007\2671\0140\201{O\31769)\0" // Everest 1830 (RSO 1969)
    "Ev\007\2671\0140 Modifi\275\0" // Everest 1830 Modified
    "Ev\007e\020_\0" // Everest_
    "Ev\007e\020_1830\0" // Everest_1830
    "Ev\007e\020_Adj\21137\0" // Everest_Adj_1937
    "Ev\007e\020_Def\21162\0" // Everest_Def_1962
    "Ev\007e\020_Def\21167\0" // Everest_Def_1967
    "Ev\007e\020_Def\21175\0" // Everest_Def_1975
    "Ev\007e\020_Modifi\275\0" // Everest_Modified
    "Ev\007e\020_def\21162\0" // Everest_def_1962
    "Ev\007e\020_def\21167\0" // Everest_def_1967
    "Ev\007e\020_def\21175\0" // Everest_def_1975
    "Exm\250Gr\257 \03420\0" // Exmouth Grid 2020
    "F\252OE_\254\0" // FAROE_TM
    "F\134\0" // FCS
    "FD54\0" // FD54
    "FD54\012F\037o\010L\225b\007t\0" // FD54 / Faroe Lambert
    "FD54\012U\254\27329N\0" // FD54 / UTM zone 29N
    "FD54a\0" // FD54a
    "FD58\012I\350q $e\0" // FD58 / Iraq zone
    "FD\21154\0" // FD_1954
    "FD\21154_U\254_Z\003\21529N\0" // FD_1954_UTM_Zone_29N
    "FD\21158\0" // FD_1958
    "FD\21158_I\350q\0" // FD_1958_Iraq
    "FEH10\0" // FEH10
    "FEH\03410\0" // FEH2010
    "FEH\034\312\012Fehm\037nb\242t \254\0" // FEH2010 / Fehmarnbelt TM
    "FEH\034\312`ehm\037nb\242t_\254\0" // FEH2010_Fehmarnbelt_TM
    "FGD\31786\0" // FGD 1986
    "FNL22 Gr\257\0" // FNL22 Grid
    "FNL22 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // FNL22 Intermediate Reference Frame
    "FNL22-IRF\0" // FNL22-IRF
    "FNL22-\254\0" // FNL22-TM
    "F\361ud\0" // Fahud
    "F\361ud\012U\254\27339N\0" // Fahud / UTM zone 39N
    "F\361ud\012U\254\27340N\0" // Fahud / UTM zone 40N
    "F\361ud_U\254_Z\003\21539N\0" // Fahud_UTM_Zone_39N
    "F\361ud_U\254_Z\003\21540N\0" // Fahud_UTM_Zone_40N
    "F\025k\206 \335s\002E\314F\025k\206 \335\0" // Falkland Islands - East Falkland Island
    "F\025k\206 \335s\002\214f~\01063\22157!\0" // Falkland Islands - offshore 63°W to 57°W
    "F\025k\206 \335s\002\236\0" // Falkland Islands - onshore
    "F\025k\206 \335s\002\210\010e\314\24360!\0" // Falkland Islands - onshore east of 60°W
    "F\025k\206 \335s\002\210\010w\267\24360!\0" // Falkland Islands - onshore west of 60°W
    "F\037o\010C\226a\375\010\03154\0" // Faroe Cadastre 1954
    "F\037o\010C\226a\375\010\03189\0" // Faroe Cadastre 1989
    "F\037o\010D=um\31754\0" // Faroe Datum 1954
    "F\037o\010\335s\0" // Faroe Islands
    "F\037o\010\335s\002\236\0" // Faroe Islands - onshore
    "F\037o\010L\225b\007t fk89\0" // Faroe Lambert fk89
    "F\037o\010Tr\005sv\232\010M\007c=\006\0" // Faroe Transverse Mercator
    "F\037o\215D=um\21154\0" // Faroe_Datum_1954
    "Fa\024\343\0" // Fathom
    "F=u Iv\02772\0" // Fatu Iva 72
    "F=u Iv\02772\012U\254\2737S\0" // Fatu Iva 72 / UTM zone 7S
    "F=u_Iva\21172\0" // Fatu_Iva_1972
    "F=u_Iva\21172_U\254_Z\003\2157S\0" // Fatu_Iva_1972_UTM_Zone_7S
    "Fay\036te-Fr\005kl\023-Un\320_(ft\203)\0" // Fayette-Franklin-Union_(ftUS)
    "Fay\036te-Fr\005kl\023-Un\320_(m)\0" // Fayette-Franklin-Union_(m)
    "Fehm\037nb\242t\327o\006d\023=\010Sy\020\212\0" // Fehmarnbelt Coordinate System
    "Fehm\037nb\242t D=um \03410\0" // Fehmarnbelt Datum 2010
    "Fehm\037nb\242t_D=um_\03410\0" // Fehmarnbelt_Datum_2010
    "F\007ro_Au\375i\256GK_C\367\025\0" // Ferro_Austria_GK_Central
    "F\007ro_Au\375i\256GK_Ea\020\0" // Ferro_Austria_GK_East
    "F\007ro_Au\375i\256GK_We\020\0" // Ferro_Austria_GK_West
    "F\007ro_Krovak\0" // Ferro_Krovak
    "F\007ro_Krovak_Ea\020_\373\0" // Ferro_Krovak_East_North
    "F\007ro_M28\0" // Ferro_M28
    "F\007ro_M31\0" // Ferro_M31
    "F\007ro_M34\0" // Ferro_M34
    "Fiji\002V\005u\027Levu\374Taveuni\0" // Fiji - Vanua Levu and Taveuni
    "Fiji\002V\245i Levu\0" // Fiji - Viti Levu
    "Fiji\002ma\023 \077\206s\0" // Fiji - main islands
    "Fiji\002ma\023 \077\206s\002e\314\243180\004\0" // Fiji - main islands - east of 180°
    "Fiji\002ma\023 \077\206s\002w\267\243180\004\0" // Fiji - main islands - west of 180°
    "Fiji\002\236\0" // Fiji - onshore
    "Fiji\31756\0" // Fiji 1956
    "Fiji\31756\012U\254\2731S\0" // Fiji 1956 / UTM zone 1S
    "Fiji\31756\012U\254\27360S\0" // Fiji 1956 / UTM zone 60S
    "Fiji\31786\0" // Fiji 1986
    "Fiji\31786\012Fiji Map Gr\257\0" // Fiji 1986 / Fiji Map Grid
    "Fiji Geod\036# D=um\31786\0" // Fiji Geodetic Datum 1986
    "Fiji\21156\0" // Fiji_1956
    "Fiji\21156_U\254_Z\003\2151S\0" // Fiji_1956_UTM_Zone_1S
    "Fiji\21156_U\254_Z\003\21560S\0" // Fiji_1956_UTM_Zone_60S
    "Fiji\21186\0" // Fiji_1986
    "Fiji\21186`iji_Map_Gr\257\0" // Fiji_1986_Fiji_Map_Grid
    "F\023\230D=um\31758\0" // Final Datum 1958
    "F\023\230D=um\31758\201Ir\005)\0" // Final Datum 1958 (Iran)
    "F\023\206\0" // Finland
    "F\023\206\002\031\235\200\034\235\015\356\0" // Finland - 19.5°E to 20.5°E onshore
    "F\023\206\002\031\235\200\034\235\015 \210\010n\343\023\025\0" // Finland - 19.5°E to 20.5°E onshore nominal
    "F\023\206\002\031\235\20022\235\015\356\0" // Finland - 19.5°E to 22.5°E onshore
    "F\023\206\002\034\235\20021\235\015\356\0" // Finland - 20.5°E to 21.5°E onshore
    "F\023\206\002\034\235\20021\235\015 \210\010n\343\023\025\0" // Finland - 20.5°E to 21.5°E onshore nominal
    "F\023\206\00221\235\20022\235\015\356\0" // Finland - 21.5°E to 22.5°E onshore
    "F\023\206\00221\235\20022\235\015 \210\010n\343\023\025\0" // Finland - 21.5°E to 22.5°E onshore nominal
    "F\023\206\00222\235\20023\235\015\356\0" // Finland - 22.5°E to 23.5°E onshore
    "F\023\206\00222\235\20023\235\015 \210\010n\343\023\025\0" // Finland - 22.5°E to 23.5°E onshore nominal
    "F\023\206\00222\235\20025\235\015\356\0" // Finland - 22.5°E to 25.5°E onshore
    "F\023\206\00223\235\20024\235\015\356\0" // Finland - 23.5°E to 24.5°E onshore
    "F\023\206\00223\235\20024\235\015 \210\010n\343\023\025\0" // Finland - 23.5°E to 24.5°E onshore nominal
    "F\023\206\00224\235\20025\235\015\356\0" // Finland - 24.5°E to 25.5°E onshore
    "F\023\206\00224\235\20025\235\015 \210\010n\343\023\025\0" // Finland - 24.5°E to 25.5°E onshore nominal
    "F\023\206\00225\235\20026\235\015\356\0" // Finland - 25.5°E to 26.5°E onshore
    "F\023\206\00225\235\20026\235\015 \210\010n\343\023\025\0" // Finland - 25.5°E to 26.5°E onshore nominal
    "F\023\206\00225\235\20028\235\015\356\0" // Finland - 25.5°E to 28.5°E onshore
    "F\023\206\00226\235\200\306\235\015\356\0" // Finland - 26.5°E to 27.5°E onshore
    "F\023\206\00226\235\200\306\235\015 \210\010n\343\023\025\0" // Finland - 26.5°E to 27.5°E onshore nominal
    "F\023\206\002\306\235\20028\235\015\356\0" // Finland - 27.5°E to 28.5°E onshore
    "F\023\206\002\306\235\20028\235\015 \210\010n\343\023\025\0" // Finland - 27.5°E to 28.5°E onshore nominal
    "F\023\206\00228\235\20029\235\015\0" // Finland - 28.5°E to 29.5°E
    "F\023\206\00228\235\20029\235\015 n\343\023\025\0" // Finland - 28.5°E to 29.5°E nominal
    "F\023\206\00228\235\20031\235\015\0" // Finland - 28.5°E to 31.5°E
    "F\023\206\00229\235\20030\235\015\0" // Finland - 29.5°E to 30.5°E
    "F\023\206\00229\235\20030\235\015 n\343\023\025\0" // Finland - 29.5°E to 30.5°E nominal
    "F\023\206\002e\314\24330\235\015\0" // Finland - east of 30.5°E
    "F\023\206\002e\314\24330\235\015 n\343\023\025\0" // Finland - east of 30.5°E nominal
    "F\023\206\002e\314\24331\235\015\0" // Finland - east of 31.5°E
    "F\023\206\002\236\0" // Finland - onshore
    "F\023\206\002w\267\243\031\235\015\356\0" // Finland - west of 19.5°E onshore
    "F\023\206\002w\267\243\031\235\015 \210\010n\343\023\025\0" // Finland - west of 19.5°E onshore nominal
    "F\023\206 ET{-GK19\0" // Finland ETRS-GK19
    "F\023\206 ET{-GK20\0" // Finland ETRS-GK20
    "F\023\206 ET{-GK21\0" // Finland ETRS-GK21
    "F\023\206 ET{-GK22\0" // Finland ETRS-GK22
    "F\023\206 ET{-GK23\0" // Finland ETRS-GK23
    "F\023\206 ET{-GK24\0" // Finland ETRS-GK24
    "F\023\206 ET{-GK25\0" // Finland ETRS-GK25
    "F\023\206 ET{-GK26\0" // Finland ETRS-GK26
    "F\023\206 ET{-GK27\0" // Finland ETRS-GK27
    "F\023\206 ET{-GK28\0" // Finland ETRS-GK28
    "F\023\206 ET{-GK29\0" // Finland ETRS-GK29
    "F\023\206 ET{-GK30\0" // Finland ETRS-GK30
    "F\023\206 ET{-GK31\0" // Finland ETRS-GK31
    "F\023\206 Ga\351s-Krug\007\27319\0" // Finland Gauss-Kruger zone 19
    "F\023\206 Ga\351s-Krug\007\27320\0" // Finland Gauss-Kruger zone 20
    "F\023\206 Ga\351s-Krug\007\27321\0" // Finland Gauss-Kruger zone 21
    "F\023\206 Ga\351s-Krug\007\27322\0" // Finland Gauss-Kruger zone 22
    "F\023\206 Ga\351s-Krug\007\27323\0" // Finland Gauss-Kruger zone 23
    "F\023\206 Ga\351s-Krug\007\27324\0" // Finland Gauss-Kruger zone 24
    "F\023\206 Ga\351s-Krug\007\27325\0" // Finland Gauss-Kruger zone 25
    "F\023\206 Ga\351s-Krug\007\27326\0" // Finland Gauss-Kruger zone 26
    "F\023\206 Ga\351s-Krug\007\27327\0" // Finland Gauss-Kruger zone 27
    "F\023\206 Ga\351s-Krug\007\27328\0" // Finland Gauss-Kruger zone 28
    "F\023\206 Ga\351s-Krug\007\27329\0" // Finland Gauss-Kruger zone 29
    "F\023\206 Ga\351s-Krug\007\27330\0" // Finland Gauss-Kruger zone 30
    "F\023\206 Ga\351s-Krug\007\27331\0" // Finland Gauss-Kruger zone 31
    "F\023\206_Z\003\2151\0" // Finland_Zone_1
    "F\023\206_Z\003\2152\0" // Finland_Zone_2
    "F\023\206_Z\003\2153\0" // Finland_Zone_3
    "F\023\206_Z\003\2154\0" // Finland_Zone_4
    "Fl\006\207c\215C\026\035y\372\0" // Florence_County_Feet
    "Fl\006\207c\215C\026\035y_M\313\0" // Florence_County_Meters
    "Fl\006\207ce\372\0" // Florence_Feet
    "Fl\006\207c\215M\313\0" // Florence_Meters
    "Fl\006\207ci\256Caqu\036\256\2277\0" // Florencia_Caqueta_2007
    "Fl\006\257\027\134\306 E\314$e\0" // Florida CS27 East zone
    "Fl\006\257\027\134\306 \324$e\0" // Florida CS27 North zone
    "Fl\006\257\027\134\306 W\267$e\0" // Florida CS27 West zone
    "Fl\006\257\027GDL Alb\232\201m\313)\0" // Florida GDL Albers (meters)
    "Fl\006\257\256Ea\020\2720901\0" // Florida_East_FIPS_0901
    "Fl\006\257\256Ea\020\2720901\372\0" // Florida_East_FIPS_0901_Feet
    "Fl\006\257\256Ea\020\2720901`t_\203\0" // Florida_East_FIPS_0901_Ft_US
    "Fl\006\257\256GDL_Alb\232\0" // Florida_GDL_Albers
    "Fl\006\257\256\373\2720903\0" // Florida_North_FIPS_0903
    "Fl\006\257\256\373\2720903\372\0" // Florida_North_FIPS_0903_Feet
    "Fl\006\257\256\373\2720903`t_\203\0" // Florida_North_FIPS_0903_Ft_US
    "Fl\006\257\256We\020\2720902\0" // Florida_West_FIPS_0902
    "Fl\006\257\256We\020\2720902\372\0" // Florida_West_FIPS_0902_Feet
    "Fl\006\257\256We\020\2720902`t_\203\0" // Florida_West_FIPS_0902_Ft_US
    "Fo\337\0" // Foot
    "Fo\337_\0" // Foot_
    "F\006e\020\377\026\035y\372\0" // Forest_County_Feet
    "F\006e\020\377\026\035y_M\313\0" // Forest_County_Meters
    "F\006e\020\372\0" // Forest_Feet
    "F\006e\020_M\313\0" // Forest_Meters
    "F\006t D\220aix\0" // Fort Desaix
    "F\006t M\037ig\337\0" // Fort Marigot
    "F\006t M\037ig\337\012U\254\273\034N\0" // Fort Marigot / UTM zone 20N
    "F\006t_B\242knap`t_I\035l\0" // Fort_Belknap_Ft_Intl
    "F\006t_B\242knap_M\313\0" // Fort_Belknap_Meters
    "F\006t_D\220aix\0" // Fort_Desaix
    "F\006t_D\220aix_U\254_\034N\0" // Fort_Desaix_UTM_20N
    "F\006t_M\037ig\337\0" // Fort_Marigot
    "F\006t_M\037ig\337_U\254_\034N\0" // Fort_Marigot_UTM_20N
    "F\006t_Peck_Ass\023ibo\023e`t_I\035l\0" // Fort_Peck_Assiniboine_Ft_Intl
    "F\006t_Peck_Ass\023ibo\023\215M\313\0" // Fort_Peck_Assiniboine_Meters
    "F\006t_Peck_Si\026x`t_I\035l\0" // Fort_Peck_Sioux_Ft_Intl
    "F\006t_Peck_Si\026x_M\313\0" // Fort_Peck_Sioux_Meters
    "F\006t\025eza\0" // Fortaleza
    "F\026\035a\023-W\037>n_(ft\203)\0" // Fountain-Warren_(ftUS)
    "F\026\035a\023-W\037>n_(m)\0" // Fountain-Warren_(m)
    "Fr\005c\216Alsace\0" // France - Alsace
    "Fr\005c\216C\006s#\027\236\0" // France - Corsica onshore
    "Fr\005c\216ma\023\206\00243\004N\02245\004N\0" // France - mainland - 43°N to 45°N
    "Fr\005c\216ma\023\206\00244\004N\02246\004N\0" // France - mainland - 44°N to 46°N
    "Fr\005c\216ma\023\206\00245\004N\02247\004N\0" // France - mainland - 45°N to 47°N
    "Fr\005c\216ma\023\206\00246\004N\02248\004N\0" // France - mainland - 46°N to 48°N
    "Fr\005c\216ma\023\206\00247\004N\02249\004N\0" // France - mainland - 47°N to 49°N
    "Fr\005c\216ma\023\206\00248\004N\02250\004N\0" // France - mainland - 48°N to 50°N
    "Fr\005c\216ma\023\206 45.45\004N\02248.15\004N\0" // France - mainland 45.45°N to 48.15°N
    "Fr\005c\216ma\023\206 45.45\004N\02248.15\004N. Als\013\025l ma\023\206.\0" // France - mainland 45.45°N to 48.15°N. Also all mainland.
    "Fr\005c\216ma\023\206 n\006@\24348.15\004N\0" // France - mainland north of 48.15°N
    "Fr\005c\216ma\023\206 n\006@\24349\004N\0" // France - mainland north of 49°N
    "Fr\005c\216ma\023\206\356\0" // France - mainland onshore
    "Fr\005c\216ma\023\206 s\250\24343\004N\374C\006s#a\0" // France - mainland south of 43°N and Corsica
    "Fr\005c\216ma\023\206 s\250\24344\004N\0" // France - mainland south of 44°N
    "Fr\005c\216ma\023\206 s\250\24345.45\004N\0" // France - mainland south of 45.45°N
    "Fr\005c\216\214f~\010M\275\245\007r\005e\005\0" // France - offshore Mediterranean
    "Fr\005c\216\210\216ma\023\206\374C\006s#a\0" // France - onshore - mainland and Corsica
    "Fr\005c\010C\003#\327\003f\006m\230^1\0" // France Conic Conformal zone 1
    "Fr\005c\010C\003#\327\003f\006m\230^2\0" // France Conic Conformal zone 2
    "Fr\005c\010C\003#\327\003f\006m\230^3\0" // France Conic Conformal zone 3
    "Fr\005c\010C\003#\327\003f\006m\230^4\0" // France Conic Conformal zone 4
    "Fr\005c\010C\003#\327\003f\006m\230^5\0" // France Conic Conformal zone 5
    "Fr\005c\010C\003#\327\003f\006m\230^6\0" // France Conic Conformal zone 6
    "Fr\005c\010C\003#\327\003f\006m\230^7\0" // France Conic Conformal zone 7
    "Fr\005c\010C\003#\327\003f\006m\230^8\0" // France Conic Conformal zone 8
    "Fr\005c\010C\003#\327\003f\006m\230^9\0" // France Conic Conformal zone 9
    "Fr\005c\215E\224oL\225b\007t\0" // France_EuroLambert
    "Fr\005c\215I\0" // France_I
    "Fr\005c\215II\0" // France_II
    "Fr\005c\215III\0" // France_III
    "Fr\005c\215IV\0" // France_IV
    "F>nch Equ=\006i\230Afr#\027w\267$e\0" // French Equatorial Africa west zone
    "F>nch Gu\336a\0" // French Guiana
    "F>nch Gu\336\030coa\020\230\037ea\0" // French Guiana - coastal area
    "F>nch Gu\336\030coa\020\230\037e\027e\314\24354!\0" // French Guiana - coastal area east of 54°W
    "F>nch Gu\336\030coa\020\230\037e\027w\267\24354!\0" // French Guiana - coastal area west of 54°W
    "F>nch Gu\336\030e\314\24354!\0" // French Guiana - east of 54°W
    "F>nch Gu\336\030w\267\24354!\0" // French Guiana - west of 54°W
    "F>nch P\246yn\220ia\0" // French Polynesia
    "F>nch P\246yn\220\213144\221138!\0" // French Polynesia - 144°W to 138°W
    "F>nch P\246yn\220\213150\221144!\0" // French Polynesia - 150°W to 144°W
    "F>nch P\246yn\220\213M\037qu\220} \335s\002F=u Hiva\0" // French Polynesia - Marquesas Islands - Fatu Hiva
    "F>nch P\246yn\220\213M\037qu\220} \335s\002Hiv\027Oa\0" // French Polynesia - Marquesas Islands - Hiva Oa
    "F>nch P\246yn\220\213M\037qu\220} \335s\002Hiv\027O\027\253T\361u=a\0" // French Polynesia - Marquesas Islands - Hiva Oa and Tahuata
    "F>nch P\246yn\220\213M\037qu\220} \335s\002Nuku Hiva\0" // French Polynesia - Marquesas Islands - Nuku Hiva
    "F>nch P\246yn\220\213M\037qu\220} \335s\002Nuku Hiva\277U\027Huk\027\253U\027P\026\0" // French Polynesia - Marquesas Islands - Nuku Hiva, Ua Huka and Ua Pou
    "F>nch P\246yn\220\213M\037qu\220} \335s\002T\361u=a\0" // French Polynesia - Marquesas Islands - Tahuata
    "F>nch P\246yn\220\213M\037qu\220} \335s\002U\027Huka\0" // French Polynesia - Marquesas Islands - Ua Huka
    "F>nch P\246yn\220\213M\037qu\220} \335s\002U\027P\026\0" // French Polynesia - Marquesas Islands - Ua Pou
    "F>nch P\246yn\220\213Soci\036\204\335s\002B\006\027B\006a\277Hu\361\023e\277Rai=ea\277T\361aa\0" // French Polynesia - Society Islands - Bora Bora, Huahine, Raiatea, Tahaa
    "F>nch P\246yn\220\213Soci\036\204\335s\002Maup\245i\0" // French Polynesia - Society Islands - Maupiti
    "F>nch P\246yn\220\213Soci\036\204\335s\002Mo\006ea\0" // French Polynesia - Society Islands - Moorea
    "F>nch P\246yn\220\213Soci\036\204\335s\002Mo\006e\027\253T\361\245i\0" // French Polynesia - Society Islands - Moorea and Tahiti
    "F>nch P\246yn\220\213Soci\036\204\335s\002T\361\245i\0" // French Polynesia - Society Islands - Tahiti
    "F>nch P\246yn\220\213e\314\243138!\0" // French Polynesia - east of 138°W
    "F>nch P\246yn\220\213w\267\243150!\0" // French Polynesia - west of 150°W
    "F>nch|\365\007n T\007r\245\006i\220\00260\20066\015\0" // French Southern Territories - 60°E to 66°E
    "F>nch|\365\007n T\007r\245\006i\220\00266\20072\015\0" // French Southern Territories - 66°E to 72°E
    "F>nch|\365\007n T\007r\245\006i\220\00272\20078\015\0" // French Southern Territories - 72°E to 78°E
    "F>nch|\365\007n T\007r\245\006i\220\002Croz\036 48\20054\015\0" // French Southern Territories - Crozet 48°E to 54°E
    "F>nch|\365\007n T\007r\245\006i\220\002Croz\036 e\314\24354\015\0" // French Southern Territories - Crozet east of 54°E
    "F>nch|\365\007n T\007r\245\006i\220\002Croz\036 w\267\24348\015\0" // French Southern Territories - Crozet west of 48°E
    "F>nch|\365\007n T\007r\245\006i\220\002E\224opa\0" // French Southern Territories - Europa
    "F>nch|\365\007n T\007r\245\006i\220\002K\007gu\242\207\356\0" // French Southern Territories - Kerguelen onshore
    "F>nch|\365\007n T\007r\245\006i\220\002e\314\24378\015\0" // French Southern Territories - east of 78°E
    "F>nch|\365\007n\374A\035\037\322# T\007r\245\006i\220\0" // French Southern and Antarctic Territories
    "Fult\003-M\037<\025l-St_Jose\237_(ft\203)\0" // Fulton-Marshall-St_Joseph_(ftUS)
    "Fult\003-M\037<\025l-St_Jose\237_(m)\0" // Fulton-Marshall-St_Joseph_(m)
    "GA_LCC\0" // GA_LCC
    "GBK\031 Gr\257\0" // GBK19 Grid
    "GBK\031 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // GBK19 Intermediate Reference Frame
    "GBK\031-IRF\0" // GBK19-IRF
    "GBK\031-\254\0" // GBK19-TM
    "GBK\031_Gr\257\0" // GBK19_Grid
    "GBK\031_I\035\007m\275i=\215Ref\007\207ce`r\225e\0" // GBK19_Intermediate_Reference_Frame
    "GCGD59\0" // GCGD59
    "GCNG59\0" // GCNG59
    "G\134_Cl\037k\215\0" // GCS_Clarke_
    "G\134_ITRF_\0" // GCS_ITRF_
    "G\134_\021\211\014_\0" // GCS_NAD_1983_
    "G\134_\373_Am\007#\005_\0" // GCS_North_American_
    "GDA\03420\0" // GDA2020
    "GDA\034\034\002L=L\003\0" // GDA2020 - LatLon
    "GDA\034\034\012ALB\03420\0" // GDA2020 / ALB2020
    "GDA\034\034\012Au\375\025\336 Alb\232\0" // GDA2020 / Australian Albers
    "GDA\034\034\012BCG\03420\0" // GDA2020 / BCG2020
    "GDA\034\034\012B\134G\03420\0" // GDA2020 / BCSG2020
    "GDA\034\034\012BIO\03420\0" // GDA2020 / BIO2020
    "GDA\034\034\012BRO\03420\0" // GDA2020 / BRO2020
    "GDA\034\034\012C\332\03420\0" // GDA2020 / CARN2020
    "GDA\034\034\012CIG\03420\0" // GDA2020 / CIG2020
    "GDA\034\034\012CKIG\03420\0" // GDA2020 / CKIG2020
    "GDA\034\034\012COL\03420\0" // GDA2020 / COL2020
    "GDA\034\034\012E\266\03420\0" // GDA2020 / ESP2020
    "GDA\034\034\012EXM\03420\0" // GDA2020 / EXM2020
    "GDA\034\034\012GA LCC\0" // GDA2020 / GA LCC
    "GDA\034\034\012GCG\03420\0" // GDA2020 / GCG2020
    "GDA\034\034\012GOLD\03420\0" // GDA2020 / GOLD2020
    "GDA\034\034\012JCG\03420\0" // GDA2020 / JCG2020
    "GDA\034\034\012KALB\03420\0" // GDA2020 / KALB2020
    "GDA\034\034\012K\252\03420\0" // GDA2020 / KAR2020
    "GDA\034\034\012KUN\03420\0" // GDA2020 / KUN2020
    "GDA\034\034\012LCG\03420\0" // GDA2020 / LCG2020
    "GDA\034\034\012MGA\27346\0" // GDA2020 / MGA zone 46
    "GDA\034\034\012MGA\27347\0" // GDA2020 / MGA zone 47
    "GDA\034\034\012MGA\27348\0" // GDA2020 / MGA zone 48
    "GDA\034\034\012MGA\27349\0" // GDA2020 / MGA zone 49
    "GDA\034\034\012MGA\27350\0" // GDA2020 / MGA zone 50
    "GDA\034\034\012MGA\27351\0" // GDA2020 / MGA zone 51
    "GDA\034\034\012MGA\27352\0" // GDA2020 / MGA zone 52
    "GDA\034\034\012MGA\27353\0" // GDA2020 / MGA zone 53
    "GDA\034\034\012MGA\27354\0" // GDA2020 / MGA zone 54
    "GDA\034\034\012MGA\27355\0" // GDA2020 / MGA zone 55
    "GDA\034\034\012MGA\27356\0" // GDA2020 / MGA zone 56
    "GDA\034\034\012MGA\27357\0" // GDA2020 / MGA zone 57
    "GDA\034\034\012MGA\27358\0" // GDA2020 / MGA zone 58
    "GDA\034\034\012MGA\27359\0" // GDA2020 / MGA zone 59
    "GDA\034\034\012MRCG\03420\0" // GDA2020 / MRCG2020
    "GDA\034\034\012\333W L\225b\007t\0" // GDA2020 / NSW Lambert
    "GDA\034\034\012PCG\03420\0" // GDA2020 / PCG2020
    "GDA\034\034\012PHG\03420\0" // GDA2020 / PHG2020
    "GDA\034\034\012SA L\225b\007t\0" // GDA2020 / SA Lambert
    "GDA\034\034\012V#gr\257\0" // GDA2020 / Vicgrid
    "GDA\034\034_\0" // GDA2020_
    "GDA\034\034_MGA_Z\003\215\0" // GDA2020_MGA_Zone_
    "GDA94\0" // GDA94
    "GDA94\002L=L\003\0" // GDA94 - LatLon
    "GDA94\012Au\375\025\336 Alb\232\0" // GDA94 / Australian Albers
    "GDA94\012B\134G02\0" // GDA94 / BCSG02
    "GDA94\012CIG94\0" // GDA94 / CIG94
    "GDA94\012CKIG94\0" // GDA94 / CKIG94
    "GDA94\012Geosci\207c\010Au\375\025\315L\225b\007t\0" // GDA94 / Geoscience Australia Lambert
    "GDA94\012MGA\27341\0" // GDA94 / MGA zone 41
    "GDA94\012MGA\27342\0" // GDA94 / MGA zone 42
    "GDA94\012MGA\27343\0" // GDA94 / MGA zone 43
    "GDA94\012MGA\27344\0" // GDA94 / MGA zone 44
    "GDA94\012MGA\27346\0" // GDA94 / MGA zone 46
    "GDA94\012MGA\27347\0" // GDA94 / MGA zone 47
    "GDA94\012MGA\27348\0" // GDA94 / MGA zone 48
    "GDA94\012MGA\27349\0" // GDA94 / MGA zone 49
    "GDA94\012MGA\27350\0" // GDA94 / MGA zone 50
    "GDA94\012MGA\27351\0" // GDA94 / MGA zone 51
    "GDA94\012MGA\27352\0" // GDA94 / MGA zone 52
    "GDA94\012MGA\27353\0" // GDA94 / MGA zone 53
    "GDA94\012MGA\27354\0" // GDA94 / MGA zone 54
    "GDA94\012MGA\27355\0" // GDA94 / MGA zone 55
    "GDA94\012MGA\27356\0" // GDA94 / MGA zone 56
    "GDA94\012MGA\27357\0" // GDA94 / MGA zone 57
    "GDA94\012MGA\27358\0" // GDA94 / MGA zone 58
    "GDA94\012MGA\27359\0" // GDA94 / MGA zone 59
    "GDA94\012\333W L\225b\007t\0" // GDA94 / NSW Lambert
    "GDA94\012SA L\225b\007t\0" // GDA94 / SA Lambert
    "GDA94\012V#gr\257\0" // GDA94 / Vicgrid
    "GDA94\012WEIPA94\0" // GDA94 / WEIPA94
    "GDA94_GDA\034\034_c\003f\006m\025.gsb\0" // GDA94_GDA2020_conformal.gsb
    "GDA94_GDA\034\034_c\003f\006m\025_\033_di\020\006t\320.gsb\0" // GDA94_GDA2020_conformal_and_distortion.gsb
    "GDA94_GDA\034\034_c\003f\006m\025_chri\020m}_\077\206.gsb\0" // GDA94_GDA2020_conformal_christmas_island.gsb
    "GDA94_GDA\034\034_c\003f\006m\025_cocos_\077\206.gsb\0" // GDA94_GDA2020_conformal_cocos_island.gsb
    "GDA_\03194\0" // GDA_1994
    "GDA\21194_\0" // GDA_1994_
    "GDA\21194_MGA_Z\003\215\0" // GDA_1994_MGA_Zone_
    "GDBD\2279\0" // GDBD2009
    "GDBD\2279\012Brunei B{O\0" // GDBD2009 / Brunei BRSO
    "GDBD\2279_GEO{O\0" // GDBD2009_GEORSO
    "GDM\2270\0" // GDM2000
    "GDM\2270\012E\314M\025ays\315B{O\0" // GDM2000 / East Malaysia BRSO
    "GDM\2270\012Joh\006 Gr\257\0" // GDM2000 / Johor Grid
    "GDM\2270\012K\275\361\374P\007l\077 Gr\257\0" // GDM2000 / Kedah and Perlis Grid
    "GDM\2270\012K\242\005t\005 Gr\257\0" // GDM2000 / Kelantan Grid
    "GDM\2270\012P\361\005g Gr\257\0" // GDM2000 / Pahang Grid
    "GDM\2270\012P\207\023sul\027{O\0" // GDM2000 / Peninsula RSO
    "GDM\2270\012P\007ak Gr\257\0" // GDM2000 / Perak Grid
    "GDM\2270\012P\023\005g Gr\257\0" // GDM2000 / Pinang Grid
    "GDM\2270\012S\242\005g\006 Gr\257\0" // GDM2000 / Selangor Grid
    "GDM\2270\012S\212b\341\005\374M\242ak\027Gr\257\0" // GDM2000 / Sembilan and Melaka Grid
    "GDM\2270\012T\007\207gg\005u Gr\257\0" // GDM2000 / Terengganu Grid
    "GDM_\2270\0" // GDM_2000
    "GDM_\2270_B{O_Ea\020_M\025aysia\0" // GDM_2000_BRSO_East_Malaysia
    "GDM_\2270_M{O_P\207\023sul\037_M\025aysia\0" // GDM_2000_MRSO_Peninsular_Malaysia
    "GDM_\2270_St=\215C}s\023i_\0" // GDM_2000_State_Cassini_
    "GD\21149_\357_Ze\025\033_Map_Gr\257\0" // GD_1949_New_Zealand_Map_Grid
    "GEM \312C\0" // GEM 10C
    "GEM_\312C\0" // GEM_10C
    "GGN93\0" // GGN93
    "GG{87\0" // GGRS87
    "GG{87\012G>ek Gr\257\0" // GGRS87 / Greek Grid
    "GG{\21187\0" // GGRS_1987
    "GK_CM_21E\0" // GK_CM_21E
    "GK_CM_\306E\0" // GK_CM_27E
    "GK_CM_33E\0" // GK_CM_33E
    "GK_CM_39E\0" // GK_CM_39E
    "GK\377M_9E\0" // GK_CM_9E
    "GK_M28\0" // GK_M28
    "GK_M31\0" // GK_M31
    "GK_M34\0" // GK_M34
    "GK_Z\003\2156\0" // GK_Zone_6
    "GK_Z\003\2157\0" // GK_Zone_7
    "GR96\0" // GR96
    "GR96\012E\247G \325\322#\2731-25\0" // GR96 / EPSG Arctic zone 1-25
    "GR96\012E\247G \325\322#\2732-18\0" // GR96 / EPSG Arctic zone 2-18
    "GR96\012E\247G \325\322#\2732-20\0" // GR96 / EPSG Arctic zone 2-20
    "GR96\012E\247G \325\322#\2733-29\0" // GR96 / EPSG Arctic zone 3-29
    "GR96\012E\247G \325\322#\2733-31\0" // GR96 / EPSG Arctic zone 3-31
    "GR96\012E\247G \325\322#\2733-33\0" // GR96 / EPSG Arctic zone 3-33
    "GR96\012E\247G \325\322#\2734-20\0" // GR96 / EPSG Arctic zone 4-20
    "GR96\012E\247G \325\322#\2734-22\0" // GR96 / EPSG Arctic zone 4-22
    "GR96\012E\247G \325\322#\2734-24\0" // GR96 / EPSG Arctic zone 4-24
    "GR96\012E\247G \325\322#\2735-41\0" // GR96 / EPSG Arctic zone 5-41
    "GR96\012E\247G \325\322#\2735-43\0" // GR96 / EPSG Arctic zone 5-43
    "GR96\012E\247G \325\322#\2735-45\0" // GR96 / EPSG Arctic zone 5-45
    "GR96\012E\247G \325\322#\2736-26\0" // GR96 / EPSG Arctic zone 6-26
    "GR96\012E\247G \325\322#\2736-28\0" // GR96 / EPSG Arctic zone 6-28
    "GR96\012E\247G \325\322#\2736-30\0" // GR96 / EPSG Arctic zone 6-30
    "GR96\012E\247G \325\322#\2737-11\0" // GR96 / EPSG Arctic zone 7-11
    "GR96\012E\247G \325\322#\2737-13\0" // GR96 / EPSG Arctic zone 7-13
    "GR96\012E\247G \325\322#\2738-20\0" // GR96 / EPSG Arctic zone 8-20
    "GR96\012E\247G \325\322#\2738-22\0" // GR96 / EPSG Arctic zone 8-22
    "GR96\012U\254\27318N\0" // GR96 / UTM zone 18N
    "GR96\012U\254\27319N\0" // GR96 / UTM zone 19N
    "GR96\012U\254\273\034N\0" // GR96 / UTM zone 20N
    "GR96\012U\254\27321N\0" // GR96 / UTM zone 21N
    "GR96\012U\254\27322N\0" // GR96 / UTM zone 22N
    "GR96\012U\254\27323N\0" // GR96 / UTM zone 23N
    "GR96\012U\254\27324N\0" // GR96 / UTM zone 24N
    "GR96\012U\254\27325N\0" // GR96 / UTM zone 25N
    "GR96\012U\254\27326N\0" // GR96 / UTM zone 26N
    "GR96\012U\254\27327N\0" // GR96 / UTM zone 27N
    "GR96\012U\254\27328N\0" // GR96 / UTM zone 28N
    "GR96\012U\254\27329N\0" // GR96 / UTM zone 29N
    "GR96_E\247G_\325\322#_$\215\0" // GR96_EPSG_Arctic_zone_
    "G{\31767\0" // GRS 1967
    "G{\31767 Modifi\275\0" // GRS 1967 Modified
    "G{\31780\0" // GRS 1980
    "G{-\03411\0" // GRS-2011
    "G{\21167\0" // GRS_1967
    "G{\21167_Trunc=\275\0" // GRS_1967_Truncated
    "G{\21180\0" // GRS_1980
    "GS\306\014v1.QUE\0" // GS2783v1.QUE
    "GS77\014.GSB\0" // GS7783.GSB
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \3122E\0" // GSK 3-degree Gauss-Kruger CM 102E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \3125E\0" // GSK 3-degree Gauss-Kruger CM 105E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \3128E\0" // GSK 3-degree Gauss-Kruger CM 108E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \2021E\0" // GSK 3-degree Gauss-Kruger CM 111E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \2024E\0" // GSK 3-degree Gauss-Kruger CM 114E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \2027E\0" // GSK 3-degree Gauss-Kruger CM 117E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // GSK 3-degree Gauss-Kruger CM 120E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 123E\0" // GSK 3-degree Gauss-Kruger CM 123E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 126E\0" // GSK 3-degree Gauss-Kruger CM 126E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 129E\0" // GSK 3-degree Gauss-Kruger CM 129E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 132E\0" // GSK 3-degree Gauss-Kruger CM 132E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 135E\0" // GSK 3-degree Gauss-Kruger CM 135E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 138E\0" // GSK 3-degree Gauss-Kruger CM 138E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 141E\0" // GSK 3-degree Gauss-Kruger CM 141E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 144E\0" // GSK 3-degree Gauss-Kruger CM 144E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 147E\0" // GSK 3-degree Gauss-Kruger CM 147E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 150E\0" // GSK 3-degree Gauss-Kruger CM 150E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 153E\0" // GSK 3-degree Gauss-Kruger CM 153E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 156E\0" // GSK 3-degree Gauss-Kruger CM 156E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 159E\0" // GSK 3-degree Gauss-Kruger CM 159E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 162E\0" // GSK 3-degree Gauss-Kruger CM 162E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 165E\0" // GSK 3-degree Gauss-Kruger CM 165E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 168E\0" // GSK 3-degree Gauss-Kruger CM 168E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 168W\0" // GSK 3-degree Gauss-Kruger CM 168W
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 171E\0" // GSK 3-degree Gauss-Kruger CM 171E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 171W\0" // GSK 3-degree Gauss-Kruger CM 171W
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 174E\0" // GSK 3-degree Gauss-Kruger CM 174E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 174W\0" // GSK 3-degree Gauss-Kruger CM 174W
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 177E\0" // GSK 3-degree Gauss-Kruger CM 177E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 177W\0" // GSK 3-degree Gauss-Kruger CM 177W
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 180E\0" // GSK 3-degree Gauss-Kruger CM 180E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 21E\0" // GSK 3-degree Gauss-Kruger CM 21E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 24E\0" // GSK 3-degree Gauss-Kruger CM 24E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M \306E\0" // GSK 3-degree Gauss-Kruger CM 27E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 30E\0" // GSK 3-degree Gauss-Kruger CM 30E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 33E\0" // GSK 3-degree Gauss-Kruger CM 33E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 36E\0" // GSK 3-degree Gauss-Kruger CM 36E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 39E\0" // GSK 3-degree Gauss-Kruger CM 39E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 42E\0" // GSK 3-degree Gauss-Kruger CM 42E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 45E\0" // GSK 3-degree Gauss-Kruger CM 45E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 48E\0" // GSK 3-degree Gauss-Kruger CM 48E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 51E\0" // GSK 3-degree Gauss-Kruger CM 51E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 54E\0" // GSK 3-degree Gauss-Kruger CM 54E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 57E\0" // GSK 3-degree Gauss-Kruger CM 57E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 60E\0" // GSK 3-degree Gauss-Kruger CM 60E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 63E\0" // GSK 3-degree Gauss-Kruger CM 63E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 66E\0" // GSK 3-degree Gauss-Kruger CM 66E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 69E\0" // GSK 3-degree Gauss-Kruger CM 69E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 72E\0" // GSK 3-degree Gauss-Kruger CM 72E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 75E\0" // GSK 3-degree Gauss-Kruger CM 75E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 78E\0" // GSK 3-degree Gauss-Kruger CM 78E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 81E\0" // GSK 3-degree Gauss-Kruger CM 81E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 84E\0" // GSK 3-degree Gauss-Kruger CM 84E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 87E\0" // GSK 3-degree Gauss-Kruger CM 87E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 90E\0" // GSK 3-degree Gauss-Kruger CM 90E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 93E\0" // GSK 3-degree Gauss-Kruger CM 93E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 96E\0" // GSK 3-degree Gauss-Kruger CM 96E
    "GSK 3-deg>\010Ga\351s-Krug\007\327M 99E\0" // GSK 3-degree Gauss-Kruger CM 99E
    "GSK 3-deg>\010Ga\351s-Krug\007\27310\0" // GSK 3-degree Gauss-Kruger zone 10
    "GSK 3-deg>\010Ga\351s-Krug\007\27311\0" // GSK 3-degree Gauss-Kruger zone 11
    "GSK 3-deg>\010Ga\351s-Krug\007\27312\0" // GSK 3-degree Gauss-Kruger zone 12
    "GSK 3-deg>\010Ga\351s-Krug\007\27313\0" // GSK 3-degree Gauss-Kruger zone 13
    "GSK 3-deg>\010Ga\351s-Krug\007\27314\0" // GSK 3-degree Gauss-Kruger zone 14
    "GSK 3-deg>\010Ga\351s-Krug\007\27315\0" // GSK 3-degree Gauss-Kruger zone 15
    "GSK 3-deg>\010Ga\351s-Krug\007\27316\0" // GSK 3-degree Gauss-Kruger zone 16
    "GSK 3-deg>\010Ga\351s-Krug\007\27317\0" // GSK 3-degree Gauss-Kruger zone 17
    "GSK 3-deg>\010Ga\351s-Krug\007\27318\0" // GSK 3-degree Gauss-Kruger zone 18
    "GSK 3-deg>\010Ga\351s-Krug\007\27319\0" // GSK 3-degree Gauss-Kruger zone 19
    "GSK 3-deg>\010Ga\351s-Krug\007\27320\0" // GSK 3-degree Gauss-Kruger zone 20
    "GSK 3-deg>\010Ga\351s-Krug\007\27321\0" // GSK 3-degree Gauss-Kruger zone 21
    "GSK 3-deg>\010Ga\351s-Krug\007\27322\0" // GSK 3-degree Gauss-Kruger zone 22
    "GSK 3-deg>\010Ga\351s-Krug\007\27323\0" // GSK 3-degree Gauss-Kruger zone 23
    "GSK 3-deg>\010Ga\351s-Krug\007\27324\0" // GSK 3-degree Gauss-Kruger zone 24
    "GSK 3-deg>\010Ga\351s-Krug\007\27325\0" // GSK 3-degree Gauss-Kruger zone 25
    "GSK 3-deg>\010Ga\351s-Krug\007\27326\0" // GSK 3-degree Gauss-Kruger zone 26
    "GSK 3-deg>\010Ga\351s-Krug\007\27327\0" // GSK 3-degree Gauss-Kruger zone 27
    "GSK 3-deg>\010Ga\351s-Krug\007\27328\0" // GSK 3-degree Gauss-Kruger zone 28
    "GSK 3-deg>\010Ga\351s-Krug\007\27329\0" // GSK 3-degree Gauss-Kruger zone 29
    "GSK 3-deg>\010Ga\351s-Krug\007\27330\0" // GSK 3-degree Gauss-Kruger zone 30
    "GSK 3-deg>\010Ga\351s-Krug\007\27331\0" // GSK 3-degree Gauss-Kruger zone 31
    "GSK 3-deg>\010Ga\351s-Krug\007\27332\0" // GSK 3-degree Gauss-Kruger zone 32
    "GSK 3-deg>\010Ga\351s-Krug\007\27333\0" // GSK 3-degree Gauss-Kruger zone 33
    "GSK 3-deg>\010Ga\351s-Krug\007\27334\0" // GSK 3-degree Gauss-Kruger zone 34
    "GSK 3-deg>\010Ga\351s-Krug\007\27335\0" // GSK 3-degree Gauss-Kruger zone 35
    "GSK 3-deg>\010Ga\351s-Krug\007\27336\0" // GSK 3-degree Gauss-Kruger zone 36
    "GSK 3-deg>\010Ga\351s-Krug\007\27337\0" // GSK 3-degree Gauss-Kruger zone 37
    "GSK 3-deg>\010Ga\351s-Krug\007\27338\0" // GSK 3-degree Gauss-Kruger zone 38
    "GSK 3-deg>\010Ga\351s-Krug\007\27339\0" // GSK 3-degree Gauss-Kruger zone 39
    "GSK 3-deg>\010Ga\351s-Krug\007\27340\0" // GSK 3-degree Gauss-Kruger zone 40
    "GSK 3-deg>\010Ga\351s-Krug\007\27341\0" // GSK 3-degree Gauss-Kruger zone 41
    "GSK 3-deg>\010Ga\351s-Krug\007\27342\0" // GSK 3-degree Gauss-Kruger zone 42
    "GSK 3-deg>\010Ga\351s-Krug\007\27343\0" // GSK 3-degree Gauss-Kruger zone 43
    "GSK 3-deg>\010Ga\351s-Krug\007\27344\0" // GSK 3-degree Gauss-Kruger zone 44
    "GSK 3-deg>\010Ga\351s-Krug\007\27345\0" // GSK 3-degree Gauss-Kruger zone 45
    "GSK 3-deg>\010Ga\351s-Krug\007\27346\0" // GSK 3-degree Gauss-Kruger zone 46
    "GSK 3-deg>\010Ga\351s-Krug\007\27347\0" // GSK 3-degree Gauss-Kruger zone 47
    "GSK 3-deg>\010Ga\351s-Krug\007\27348\0" // GSK 3-degree Gauss-Kruger zone 48
    "GSK 3-deg>\010Ga\351s-Krug\007\27349\0" // GSK 3-degree Gauss-Kruger zone 49
    "GSK 3-deg>\010Ga\351s-Krug\007\27350\0" // GSK 3-degree Gauss-Kruger zone 50
    "GSK 3-deg>\010Ga\351s-Krug\007\27351\0" // GSK 3-degree Gauss-Kruger zone 51
    "GSK 3-deg>\010Ga\351s-Krug\007\27352\0" // GSK 3-degree Gauss-Kruger zone 52
    "GSK 3-deg>\010Ga\351s-Krug\007\27353\0" // GSK 3-degree Gauss-Kruger zone 53
    "GSK 3-deg>\010Ga\351s-Krug\007\27354\0" // GSK 3-degree Gauss-Kruger zone 54
    "GSK 3-deg>\010Ga\351s-Krug\007\27355\0" // GSK 3-degree Gauss-Kruger zone 55
    "GSK 3-deg>\010Ga\351s-Krug\007\27356\0" // GSK 3-degree Gauss-Kruger zone 56
    "GSK 3-deg>\010Ga\351s-Krug\007\27357\0" // GSK 3-degree Gauss-Kruger zone 57
    "GSK 3-deg>\010Ga\351s-Krug\007\27358\0" // GSK 3-degree Gauss-Kruger zone 58
    "GSK 3-deg>\010Ga\351s-Krug\007\27359\0" // GSK 3-degree Gauss-Kruger zone 59
    "GSK 3-deg>\010Ga\351s-Krug\007\27360\0" // GSK 3-degree Gauss-Kruger zone 60
    "GSK 3-deg>\010Ga\351s-Krug\007\27361\0" // GSK 3-degree Gauss-Kruger zone 61
    "GSK 3-deg>\010Ga\351s-Krug\007\27362\0" // GSK 3-degree Gauss-Kruger zone 62
    "GSK 3-deg>\010Ga\351s-Krug\007\27363\0" // GSK 3-degree Gauss-Kruger zone 63
    "GSK 3-deg>\010Ga\351s-Krug\007\27364\0" // GSK 3-degree Gauss-Kruger zone 64
    "GSK 3-deg>\010Ga\351s-Krug\007\2737\0" // GSK 3-degree Gauss-Kruger zone 7
    "GSK 3-deg>\010Ga\351s-Krug\007\2738\0" // GSK 3-degree Gauss-Kruger zone 8
    "GSK 3-deg>\010Ga\351s-Krug\007\2739\0" // GSK 3-degree Gauss-Kruger zone 9
    "GSK-\03411\0" // GSK-2011
    "GSK-\240\012GSK 3GK\327M \3122E\0" // GSK-2011 / GSK 3GK CM 102E
    "GSK-\240\012GSK 3GK\327M \3125E\0" // GSK-2011 / GSK 3GK CM 105E
    "GSK-\240\012GSK 3GK\327M \3128E\0" // GSK-2011 / GSK 3GK CM 108E
    "GSK-\240\012GSK 3GK\327M \2021E\0" // GSK-2011 / GSK 3GK CM 111E
    "GSK-\240\012GSK 3GK\327M \2024E\0" // GSK-2011 / GSK 3GK CM 114E
    "GSK-\240\012GSK 3GK\327M \2027E\0" // GSK-2011 / GSK 3GK CM 117E
    "GSK-\240\012GSK 3GK\327M 1\034E\0" // GSK-2011 / GSK 3GK CM 120E
    "GSK-\240\012GSK 3GK\327M 123E\0" // GSK-2011 / GSK 3GK CM 123E
    "GSK-\240\012GSK 3GK\327M 126E\0" // GSK-2011 / GSK 3GK CM 126E
    "GSK-\240\012GSK 3GK\327M 129E\0" // GSK-2011 / GSK 3GK CM 129E
    "GSK-\240\012GSK 3GK\327M 132E\0" // GSK-2011 / GSK 3GK CM 132E
    "GSK-\240\012GSK 3GK\327M 135E\0" // GSK-2011 / GSK 3GK CM 135E
    "GSK-\240\012GSK 3GK\327M 138E\0" // GSK-2011 / GSK 3GK CM 138E
    "GSK-\240\012GSK 3GK\327M 141E\0" // GSK-2011 / GSK 3GK CM 141E
    "GSK-\240\012GSK 3GK\327M 144E\0" // GSK-2011 / GSK 3GK CM 144E
    "GSK-\240\012GSK 3GK\327M 147E\0" // GSK-2011 / GSK 3GK CM 147E
    "GSK-\240\012GSK 3GK\327M 150E\0" // GSK-2011 / GSK 3GK CM 150E
    "GSK-\240\012GSK 3GK\327M 153E\0" // GSK-2011 / GSK 3GK CM 153E
    "GSK-\240\012GSK 3GK\327M 156E\0" // GSK-2011 / GSK 3GK CM 156E
    "GSK-\240\012GSK 3GK\327M 159E\0" // GSK-2011 / GSK 3GK CM 159E
    "GSK-\240\012GSK 3GK\327M 162E\0" // GSK-2011 / GSK 3GK CM 162E
    "GSK-\240\012GSK 3GK\327M 165E\0" // GSK-2011 / GSK 3GK CM 165E
    "GSK-\240\012GSK 3GK\327M 168E\0" // GSK-2011 / GSK 3GK CM 168E
    "GSK-\240\012GSK 3GK\327M 168W\0" // GSK-2011 / GSK 3GK CM 168W
    "GSK-\240\012GSK 3GK\327M 171E\0" // GSK-2011 / GSK 3GK CM 171E
    "GSK-\240\012GSK 3GK\327M 171W\0" // GSK-2011 / GSK 3GK CM 171W
    "GSK-\240\012GSK 3GK\327M 174E\0" // GSK-2011 / GSK 3GK CM 174E
    "GSK-\240\012GSK 3GK\327M 174W\0" // GSK-2011 / GSK 3GK CM 174W
    "GSK-\240\012GSK 3GK\327M 177E\0" // GSK-2011 / GSK 3GK CM 177E
    "GSK-\240\012GSK 3GK\327M 177W\0" // GSK-2011 / GSK 3GK CM 177W
    "GSK-\240\012GSK 3GK\327M 180E\0" // GSK-2011 / GSK 3GK CM 180E
    "GSK-\240\012GSK 3GK\327M 21E\0" // GSK-2011 / GSK 3GK CM 21E
    "GSK-\240\012GSK 3GK\327M 24E\0" // GSK-2011 / GSK 3GK CM 24E
    "GSK-\240\012GSK 3GK\327M \306E\0" // GSK-2011 / GSK 3GK CM 27E
    "GSK-\240\012GSK 3GK\327M 30E\0" // GSK-2011 / GSK 3GK CM 30E
    "GSK-\240\012GSK 3GK\327M 33E\0" // GSK-2011 / GSK 3GK CM 33E
    "GSK-\240\012GSK 3GK\327M 36E\0" // GSK-2011 / GSK 3GK CM 36E
    "GSK-\240\012GSK 3GK\327M 39E\0" // GSK-2011 / GSK 3GK CM 39E
    "GSK-\240\012GSK 3GK\327M 42E\0" // GSK-2011 / GSK 3GK CM 42E
    "GSK-\240\012GSK 3GK\327M 45E\0" // GSK-2011 / GSK 3GK CM 45E
    "GSK-\240\012GSK 3GK\327M 48E\0" // GSK-2011 / GSK 3GK CM 48E
    "GSK-\240\012GSK 3GK\327M 51E\0" // GSK-2011 / GSK 3GK CM 51E
    "GSK-\240\012GSK 3GK\327M 54E\0" // GSK-2011 / GSK 3GK CM 54E
    "GSK-\240\012GSK 3GK\327M 57E\0" // GSK-2011 / GSK 3GK CM 57E
    "GSK-\240\012GSK 3GK\327M 60E\0" // GSK-2011 / GSK 3GK CM 60E
    "GSK-\240\012GSK 3GK\327M 63E\0" // GSK-2011 / GSK 3GK CM 63E
    "GSK-\240\012GSK 3GK\327M 66E\0" // GSK-2011 / GSK 3GK CM 66E
    "GSK-\240\012GSK 3GK\327M 69E\0" // GSK-2011 / GSK 3GK CM 69E
    "GSK-\240\012GSK 3GK\327M 72E\0" // GSK-2011 / GSK 3GK CM 72E
    "GSK-\240\012GSK 3GK\327M 75E\0" // GSK-2011 / GSK 3GK CM 75E
    "GSK-\240\012GSK 3GK\327M 78E\0" // GSK-2011 / GSK 3GK CM 78E
    "GSK-\240\012GSK 3GK\327M 81E\0" // GSK-2011 / GSK 3GK CM 81E
    "GSK-\240\012GSK 3GK\327M 84E\0" // GSK-2011 / GSK 3GK CM 84E
    "GSK-\240\012GSK 3GK\327M 87E\0" // GSK-2011 / GSK 3GK CM 87E
    "GSK-\240\012GSK 3GK\327M 90E\0" // GSK-2011 / GSK 3GK CM 90E
    "GSK-\240\012GSK 3GK\327M 93E\0" // GSK-2011 / GSK 3GK CM 93E
    "GSK-\240\012GSK 3GK\327M 96E\0" // GSK-2011 / GSK 3GK CM 96E
    "GSK-\240\012GSK 3GK\327M 99E\0" // GSK-2011 / GSK 3GK CM 99E
    "GSK-\240\012GSK 3GK\27310\0" // GSK-2011 / GSK 3GK zone 10
    "GSK-\240\012GSK 3GK\27311\0" // GSK-2011 / GSK 3GK zone 11
    "GSK-\240\012GSK 3GK\27312\0" // GSK-2011 / GSK 3GK zone 12
    "GSK-\240\012GSK 3GK\27313\0" // GSK-2011 / GSK 3GK zone 13
    "GSK-\240\012GSK 3GK\27314\0" // GSK-2011 / GSK 3GK zone 14
    "GSK-\240\012GSK 3GK\27315\0" // GSK-2011 / GSK 3GK zone 15
    "GSK-\240\012GSK 3GK\27316\0" // GSK-2011 / GSK 3GK zone 16
    "GSK-\240\012GSK 3GK\27317\0" // GSK-2011 / GSK 3GK zone 17
    "GSK-\240\012GSK 3GK\27318\0" // GSK-2011 / GSK 3GK zone 18
    "GSK-\240\012GSK 3GK\27319\0" // GSK-2011 / GSK 3GK zone 19
    "GSK-\240\012GSK 3GK\27320\0" // GSK-2011 / GSK 3GK zone 20
    "GSK-\240\012GSK 3GK\27321\0" // GSK-2011 / GSK 3GK zone 21
    "GSK-\240\012GSK 3GK\27322\0" // GSK-2011 / GSK 3GK zone 22
    "GSK-\240\012GSK 3GK\27323\0" // GSK-2011 / GSK 3GK zone 23
    "GSK-\240\012GSK 3GK\27324\0" // GSK-2011 / GSK 3GK zone 24
    "GSK-\240\012GSK 3GK\27325\0" // GSK-2011 / GSK 3GK zone 25
    "GSK-\240\012GSK 3GK\27326\0" // GSK-2011 / GSK 3GK zone 26
    "GSK-\240\012GSK 3GK\27327\0" // GSK-2011 / GSK 3GK zone 27
    "GSK-\240\012GSK 3GK\27328\0" // GSK-2011 / GSK 3GK zone 28
    "GSK-\240\012GSK 3GK\27329\0" // GSK-2011 / GSK 3GK zone 29
    "GSK-\240\012GSK 3GK\27330\0" // GSK-2011 / GSK 3GK zone 30
    "GSK-\240\012GSK 3GK\27331\0" // GSK-2011 / GSK 3GK zone 31
    "GSK-\240\012GSK 3GK\27332\0" // GSK-2011 / GSK 3GK zone 32
    "GSK-\240\012GSK 3GK\27333\0" // GSK-2011 / GSK 3GK zone 33
    "GSK-\240\012GSK 3GK\27334\0" // GSK-2011 / GSK 3GK zone 34
    "GSK-\240\012GSK 3GK\27335\0" // GSK-2011 / GSK 3GK zone 35
    "GSK-\240\012GSK 3GK\27336\0" // GSK-2011 / GSK 3GK zone 36
    "GSK-\240\012GSK 3GK\27337\0" // GSK-2011 / GSK 3GK zone 37
    "GSK-\240\012GSK 3GK\27338\0" // GSK-2011 / GSK 3GK zone 38
    "GSK-\240\012GSK 3GK\27339\0" // GSK-2011 / GSK 3GK zone 39
    "GSK-\240\012GSK 3GK\27340\0" // GSK-2011 / GSK 3GK zone 40
    "GSK-\240\012GSK 3GK\27341\0" // GSK-2011 / GSK 3GK zone 41
    "GSK-\240\012GSK 3GK\27342\0" // GSK-2011 / GSK 3GK zone 42
    "GSK-\240\012GSK 3GK\27343\0" // GSK-2011 / GSK 3GK zone 43
    "GSK-\240\012GSK 3GK\27344\0" // GSK-2011 / GSK 3GK zone 44
    "GSK-\240\012GSK 3GK\27345\0" // GSK-2011 / GSK 3GK zone 45
    "GSK-\240\012GSK 3GK\27346\0" // GSK-2011 / GSK 3GK zone 46
    "GSK-\240\012GSK 3GK\27347\0" // GSK-2011 / GSK 3GK zone 47
    "GSK-\240\012GSK 3GK\27348\0" // GSK-2011 / GSK 3GK zone 48
    "GSK-\240\012GSK 3GK\27349\0" // GSK-2011 / GSK 3GK zone 49
    "GSK-\240\012GSK 3GK\27350\0" // GSK-2011 / GSK 3GK zone 50
    "GSK-\240\012GSK 3GK\27351\0" // GSK-2011 / GSK 3GK zone 51
    "GSK-\240\012GSK 3GK\27352\0" // GSK-2011 / GSK 3GK zone 52
    "GSK-\240\012GSK 3GK\27353\0" // GSK-2011 / GSK 3GK zone 53
    "GSK-\240\012GSK 3GK\27354\0" // GSK-2011 / GSK 3GK zone 54
    "GSK-\240\012GSK 3GK\27355\0" // GSK-2011 / GSK 3GK zone 55
    "GSK-\240\012GSK 3GK\27356\0" // GSK-2011 / GSK 3GK zone 56
    "GSK-\240\012GSK 3GK\27357\0" // GSK-2011 / GSK 3GK zone 57
    "GSK-\240\012GSK 3GK\27358\0" // GSK-2011 / GSK 3GK zone 58
    "GSK-\240\012GSK 3GK\27359\0" // GSK-2011 / GSK 3GK zone 59
    "GSK-\240\012GSK 3GK\27360\0" // GSK-2011 / GSK 3GK zone 60
    "GSK-\240\012GSK 3GK\27361\0" // GSK-2011 / GSK 3GK zone 61
    "GSK-\240\012GSK 3GK\27362\0" // GSK-2011 / GSK 3GK zone 62
    "GSK-\240\012GSK 3GK\27363\0" // GSK-2011 / GSK 3GK zone 63
    "GSK-\240\012GSK 3GK\27364\0" // GSK-2011 / GSK 3GK zone 64
    "GSK-\240\012GSK 3GK\2737\0" // GSK-2011 / GSK 3GK zone 7
    "GSK-\240\012GSK 3GK\2738\0" // GSK-2011 / GSK 3GK zone 8
    "GSK-\240\012GSK 3GK\2739\0" // GSK-2011 / GSK 3GK zone 9
    "GSK-\240\012Ga\351s-Krug\007\327M \3125E\0" // GSK-2011 / Gauss-Kruger CM 105E
    "GSK-\240\012Ga\351s-Krug\007\327M \2021E\0" // GSK-2011 / Gauss-Kruger CM 111E
    "GSK-\240\012Ga\351s-Krug\007\327M \2027E\0" // GSK-2011 / Gauss-Kruger CM 117E
    "GSK-\240\012Ga\351s-Krug\007\327M 123E\0" // GSK-2011 / Gauss-Kruger CM 123E
    "GSK-\240\012Ga\351s-Krug\007\327M 129E\0" // GSK-2011 / Gauss-Kruger CM 129E
    "GSK-\240\012Ga\351s-Krug\007\327M 135E\0" // GSK-2011 / Gauss-Kruger CM 135E
    "GSK-\240\012Ga\351s-Krug\007\327M 141E\0" // GSK-2011 / Gauss-Kruger CM 141E
    "GSK-\240\012Ga\351s-Krug\007\327M 147E\0" // GSK-2011 / Gauss-Kruger CM 147E
    "GSK-\240\012Ga\351s-Krug\007\327M 153E\0" // GSK-2011 / Gauss-Kruger CM 153E
    "GSK-\240\012Ga\351s-Krug\007\327M 159E\0" // GSK-2011 / Gauss-Kruger CM 159E
    "GSK-\240\012Ga\351s-Krug\007\327M 165E\0" // GSK-2011 / Gauss-Kruger CM 165E
    "GSK-\240\012Ga\351s-Krug\007\327M 171E\0" // GSK-2011 / Gauss-Kruger CM 171E
    "GSK-\240\012Ga\351s-Krug\007\327M 171W\0" // GSK-2011 / Gauss-Kruger CM 171W
    "GSK-\240\012Ga\351s-Krug\007\327M 177E\0" // GSK-2011 / Gauss-Kruger CM 177E
    "GSK-\240\012Ga\351s-Krug\007\327M 177W\0" // GSK-2011 / Gauss-Kruger CM 177W
    "GSK-\240\012Ga\351s-Krug\007\327M 21E\0" // GSK-2011 / Gauss-Kruger CM 21E
    "GSK-\240\012Ga\351s-Krug\007\327M \306E\0" // GSK-2011 / Gauss-Kruger CM 27E
    "GSK-\240\012Ga\351s-Krug\007\327M 33E\0" // GSK-2011 / Gauss-Kruger CM 33E
    "GSK-\240\012Ga\351s-Krug\007\327M 39E\0" // GSK-2011 / Gauss-Kruger CM 39E
    "GSK-\240\012Ga\351s-Krug\007\327M 45E\0" // GSK-2011 / Gauss-Kruger CM 45E
    "GSK-\240\012Ga\351s-Krug\007\327M 51E\0" // GSK-2011 / Gauss-Kruger CM 51E
    "GSK-\240\012Ga\351s-Krug\007\327M 57E\0" // GSK-2011 / Gauss-Kruger CM 57E
    "GSK-\240\012Ga\351s-Krug\007\327M 63E\0" // GSK-2011 / Gauss-Kruger CM 63E
    "GSK-\240\012Ga\351s-Krug\007\327M 69E\0" // GSK-2011 / Gauss-Kruger CM 69E
    "GSK-\240\012Ga\351s-Krug\007\327M 75E\0" // GSK-2011 / Gauss-Kruger CM 75E
    "GSK-\240\012Ga\351s-Krug\007\327M 81E\0" // GSK-2011 / Gauss-Kruger CM 81E
    "GSK-\240\012Ga\351s-Krug\007\327M 87E\0" // GSK-2011 / Gauss-Kruger CM 87E
    "GSK-\240\012Ga\351s-Krug\007\327M 93E\0" // GSK-2011 / Gauss-Kruger CM 93E
    "GSK-\240\012Ga\351s-Krug\007\327M 99E\0" // GSK-2011 / Gauss-Kruger CM 99E
    "GSK-\240\012Ga\351s-Krug\007\27310\0" // GSK-2011 / Gauss-Kruger zone 10
    "GSK-\240\012Ga\351s-Krug\007\27311\0" // GSK-2011 / Gauss-Kruger zone 11
    "GSK-\240\012Ga\351s-Krug\007\27312\0" // GSK-2011 / Gauss-Kruger zone 12
    "GSK-\240\012Ga\351s-Krug\007\27313\0" // GSK-2011 / Gauss-Kruger zone 13
    "GSK-\240\012Ga\351s-Krug\007\27314\0" // GSK-2011 / Gauss-Kruger zone 14
    "GSK-\240\012Ga\351s-Krug\007\27315\0" // GSK-2011 / Gauss-Kruger zone 15
    "GSK-\240\012Ga\351s-Krug\007\27316\0" // GSK-2011 / Gauss-Kruger zone 16
    "GSK-\240\012Ga\351s-Krug\007\27317\0" // GSK-2011 / Gauss-Kruger zone 17
    "GSK-\240\012Ga\351s-Krug\007\27318\0" // GSK-2011 / Gauss-Kruger zone 18
    "GSK-\240\012Ga\351s-Krug\007\27319\0" // GSK-2011 / Gauss-Kruger zone 19
    "GSK-\240\012Ga\351s-Krug\007\27320\0" // GSK-2011 / Gauss-Kruger zone 20
    "GSK-\240\012Ga\351s-Krug\007\27321\0" // GSK-2011 / Gauss-Kruger zone 21
    "GSK-\240\012Ga\351s-Krug\007\27322\0" // GSK-2011 / Gauss-Kruger zone 22
    "GSK-\240\012Ga\351s-Krug\007\27323\0" // GSK-2011 / Gauss-Kruger zone 23
    "GSK-\240\012Ga\351s-Krug\007\27324\0" // GSK-2011 / Gauss-Kruger zone 24
    "GSK-\240\012Ga\351s-Krug\007\27325\0" // GSK-2011 / Gauss-Kruger zone 25
    "GSK-\240\012Ga\351s-Krug\007\27326\0" // GSK-2011 / Gauss-Kruger zone 26
    "GSK-\240\012Ga\351s-Krug\007\27327\0" // GSK-2011 / Gauss-Kruger zone 27
    "GSK-\240\012Ga\351s-Krug\007\27328\0" // GSK-2011 / Gauss-Kruger zone 28
    "GSK-\240\012Ga\351s-Krug\007\27329\0" // GSK-2011 / Gauss-Kruger zone 29
    "GSK-\240\012Ga\351s-Krug\007\27330\0" // GSK-2011 / Gauss-Kruger zone 30
    "GSK-\240\012Ga\351s-Krug\007\27331\0" // GSK-2011 / Gauss-Kruger zone 31
    "GSK-\240\012Ga\351s-Krug\007\27332\0" // GSK-2011 / Gauss-Kruger zone 32
    "GSK-\240\012Ga\351s-Krug\007\2734\0" // GSK-2011 / Gauss-Kruger zone 4
    "GSK-\240\012Ga\351s-Krug\007\2735\0" // GSK-2011 / Gauss-Kruger zone 5
    "GSK-\240\012Ga\351s-Krug\007\2736\0" // GSK-2011 / Gauss-Kruger zone 6
    "GSK-\240\012Ga\351s-Krug\007\2737\0" // GSK-2011 / Gauss-Kruger zone 7
    "GSK-\240\012Ga\351s-Krug\007\2738\0" // GSK-2011 / Gauss-Kruger zone 8
    "GSK-\240\012Ga\351s-Krug\007\2739\0" // GSK-2011 / Gauss-Kruger zone 9
    "Gab\003\0" // Gabon
    "Gab\003\002n\006@\243equ=\006\374w\267\24312\015\356\0" // Gabon - north of equator and west of 12°E onshore
    "Gab\003\002\236\0" // Gabon - onshore
    "Gab\003\002w\267\24312\015\0" // Gabon - west of 12°E
    "Gab\231Tr\005sv\232\010M\007c=\006\0" // Gabon Transverse Mercator
    "Gab\231Tr\005sv\232\010M\007c=\006 \03411\0" // Gabon Transverse Mercator 2011
    "G\225bia\0" // Gambia
    "G\225b\213\236\0" // Gambia - onshore
    "G\005\31770\0" // Gan 1970
    "G\005\21170\0" // Gan_1970
    "G\033ajika\0" // Gandajika
    "G\033ajik\027\03170\0" // Gandajika 1970
    "G\033ajika\21170\0" // Gandajika_1970
    "G\037\026a\0" // Garoua
    "G\037\026a\012U\254\27333N\0" // Garoua / UTM zone 33N
    "G\037\026\256U\254_Z\003\21533N\0" // Garoua_UTM_Zone_33N
    "G}\256\254\0" // Gasa_TM
    "Ga\351s-Krug\007\327ABA \03419\0" // Gauss-Kruger CABA 2019
    "Ga\351s_Z\003\215A\0" // Gauss_Zone_A
    "Ga\351s_Z\003\215B\0" // Gauss_Zone_B
    "Ga\351s_Z\003\215C\0" // Gauss_Zone_C
    "Ga\351s_Z\003\215D\0" // Gauss_Zone_D
    "Gawl\007\377\340cu\245\0" // Gawler_Circuit
    "Geb\350uchsn\036z M28\0" // Gebrauchsnetz M28
    "Geb\350uchsn\036z M31\0" // Gebrauchsnetz M31
    "Geb\350uchsn\036z M34\0" // Gebrauchsnetz M34
    "G\207uk\0" // Genuk
    "G\207uk\201Jak\037ta)\0" // Genuk (Jakarta)
    "Geoc\367# D=um Brunei D\037\351s\025\225 \2279\0" // Geocentric Datum Brunei Darussalam 2009
    "Geoc\367# D=um \243Au\375\025\315\03194\0" // Geocentric Datum of Australia 1994
    "Geoc\367# D=um \243Au\375\025\315\03420\0" // Geocentric Datum of Australia 2020
    "Geoc\367# d=um \243K\006ea\0" // Geocentric datum of Korea
    "Geod\036# D=um \243\03165\0" // Geodetic Datum of 1965
    "Geod\036# D=um \243M\025ays\315\2270\0" // Geodetic Datum of Malaysia 2000
    "Geodez#h\220kay\027Si\020\212\027Ko\006d\023= \03411\0" // Geodezicheskaya Sistema Koordinat 2011
    "Geodez#h\220kay\256Si\020\212\256Ko\006d\023=_\03411\0" // Geodezicheskaya_Sistema_Koordinat_2011
    "Ge\006g\315\134\306 E\314$e\0" // Georgia CS27 East zone
    "Ge\006g\315\134\306 W\267$e\0" // Georgia CS27 West zone
    "Ge\006gi\256Ea\020\272\31201\0" // Georgia_East_FIPS_1001
    "Ge\006gi\256Ea\020\272\31201\372\0" // Georgia_East_FIPS_1001_Feet
    "Ge\006gi\256Ea\020\272\31201`t_\203\0" // Georgia_East_FIPS_1001_Ft_US
    "Ge\006gi\256We\020\272\31202\0" // Georgia_West_FIPS_1002
    "Ge\006gi\256We\020\272\31202\372\0" // Georgia_West_FIPS_1002_Feet
    "Ge\006gi\256We\020\272\31202`t_\203\0" // Georgia_West_FIPS_1002_Ft_US
    "Geosci\207c\010Au\375\025\315St\033\037d N=\320\025|c\025\010L\225b\007t Proje\322\320\0" // Geoscience Australia Standard National Scale Lambert Projection
    "Geosci\207c\215Au\375\025i\256L\225b\007t\0" // Geoscience_Australia_Lambert
    "G\007\025dt\231Coa\020\230Gr\257\0" // Geraldton Coastal Grid
    "G\007m\005 leg\230m\036>\0" // German legal metre
    "G\007m\005y\0026\3542\015\0" // Germany - 6°E to 12°E
    "G\007m\005y\002B\226\207-W\224tt\212b\007g\0" // Germany - Baden-Wurttemberg
    "G\007m\005y\002B\007l\023\0" // Germany - Berlin
    "G\007m\005y\002E\314G\007m\005y\002w\267\243\312\235\015\0" // Germany - East Germany - west of 10.5°E
    "G\007m\005y\002E\314G\007m\005y\002w\267\24312\015\0" // Germany - East Germany - west of 12°E
    "G\007m\005y\002E\314G\007m\005\204\025l \020=\220\0" // Germany - East Germany all states
    "G\007m\005y\002H\225b\224g\0" // Germany - Hamburg
    "G\007m\005y\002H\220s\207\0" // Germany - Hessen
    "G\007m\005y\002Sa\037\206\0" // Germany - Saarland
    "G\007m\005y\002Sax\003y\0" // Germany - Saxony
    "G\007m\005y\002Sax\003y\002e\314\24313\235\015\0" // Germany - Saxony - east of 13.5°E
    "G\007m\005y\002Sax\003y\002w\267\24313\235\015\0" // Germany - Saxony - west of 13.5°E
    "G\007m\005y\002Th\224\023g\207\0" // Germany - Thuringen
    "G\007m\005y\002Th\224\023g\207\002e\314\243\312\235\015\0" // Germany - Thuringen - east of 10.5°E
    "G\007m\005y\002Th\224\023g\207\002w\267\243\312\235\015\0" // Germany - Thuringen - west of 10.5°E
    "G\007m\005y\002W\267G\007m\005y\002\312\235\3543\235\015\0" // Germany - West Germany - 10.5°E to 13.5°E
    "G\007m\005y\002W\267G\007m\005y\002e\314\24313\235\015\0" // Germany - West Germany - east of 13.5°E
    "G\007m\005y\002W\267G\007m\005y\002w\267\2437\235\015\0" // Germany - West Germany - west of 7.5°E
    "G\007m\005y\002W\267G\007m\005\204C\0" // Germany - West Germany C
    "G\007m\005y\002W\267G\007m\005\204N\0" // Germany - West Germany N
    "G\007m\005y\002W\267G\007m\005y|\0" // Germany - West Germany S
    "G\007m\005y\002W\267G\007m\005\204\025l \020=\220\0" // Germany - West Germany all states
    "G\007m\005y\002We\020-G\007m\005y\0027\235\200\312\235\015\0" // Germany - West-Germany - 7.5°E to 10.5°E
    "G\007m\005y\002e\314\24312\015\0" // Germany - east of 12°E
    "G\007m\005y\002\214f~\010\324Sea\0" // Germany - offshore North Sea
    "G\007m\005y\002\214f~\010\324Se\027w\267\2434\235\015\0" // Germany - offshore North Sea west of 4.5°E
    "G\007m\005y\002\236\0" // Germany - onshore
    "G\007m\005y\002\210\010\312\235\3543\235\015\0" // Germany - onshore 10.5°E to 13.5°E
    "G\007m\005y\002\210\0107\235\200\312\235\015\0" // Germany - onshore 7.5°E to 10.5°E
    "G\007m\005y\002\210\010e\314\24313\235\015\0" // Germany - onshore east of 13.5°E
    "G\007m\005y\002w\267\2434\235\015\0" // Germany - west of 4.5°E
    "G\007m\005y\002w\267\2436\015\0" // Germany - west of 6°E
    "Gh\005a\0" // Ghana
    "Gh\005\030\214f~e\0" // Ghana - offshore
    "Gh\005\030\236\0" // Ghana - onshore
    "Gh\005\256M\036>_Gr\257\0" // Ghana_Metre_Grid
    "Gibr\025t\037\0" // Gibraltar
    "Gibs\003_(ft\203)\0" // Gibson_(ftUS)
    "Gibs\003_(m)\0" // Gibson_(m)
    "Go\027\333F \254\0" // Goa NSF TM
    "G\246d\327o\314fo\337\0" // Gold Coast foot
    "G\246d\377oa\020\0" // Gold_Coast
    "G\246dfi\242ds Gr\257 \03420\0" // Goldfields Grid 2020
    "Googl\010Maps Glob\230M\007c=\006\0" // Google Maps Global Mercator
    "Gr\253Caym\005\31759\0" // Grand Cayman 1959
    "Gr\253Caym\005\31759\012U\254\27317N\0" // Grand Cayman 1959 / UTM zone 17N
    "Gr\253Caym\005 Geod\036# D=um\31759\0" // Grand Cayman Geodetic Datum 1959
    "Gr\253Caym\005 N=\320\230Gr\257\31759\0" // Grand Cayman National Grid 1959
    "Gr\253C\343\006os\0" // Grand Comoros
    "Gr\253C\343\006os\012U\254\27338S\0" // Grand Comoros / UTM zone 38S
    "Gr\033\377aym\005\21159\0" // Grand_Cayman_1959
    "Gr\033\377aym\005\21159_U\254_Z\003\21517N\0" // Grand_Cayman_1959_UTM_Zone_17N
    "Gr\033\377aym\005_N=\320\025_Gr\257\21159\0" // Grand_Cayman_National_Grid_1959
    "Gr\033\377\343\006os\0" // Grand_Comoros
    "Gr\033\377\343\006os_U\254_38S\0" // Grand_Comoros_UTM_38S
    "Gr\005t_(ft\203)\0" // Grant_(ftUS)
    "Gr\005t_(m)\0" // Grant_(m)
    "Gr\005t\377\026\035y\372\0" // Grant_County_Feet
    "Gr\005t\377\026\035y_M\313\0" // Grant_County_Meters
    "Gr\005t\372\0" // Grant_Feet
    "Gr\005t_M\313\0" // Grant_Meters
    "G>=_Lak\220_B}\023_Alb\232\0" // Great_Lakes_Basin_Albers
    "G>=_Lak\220_\033_St_Law>nc\215Alb\232\0" // Great_Lakes_and_St_Lawrence_Albers
    "G>ece\0" // Greece
    "G>ec\216\236\0" // Greece - onshore
    "G>ek\0" // Greek
    "G>ek\201A\024\207s)\0" // Greek (Athens)
    "G>ek\201A\024\207s)\022G>ek\201G>\207w#h)\0" // Greek (Athens) to Greek (Greenwich)
    "G>ek Geod\036# Ref\007\207c\010Sy\020\212\31787\0" // Greek Geodetic Reference System 1987
    "G>ek_A\024\207s\0" // Greek_Athens
    "G>ek_Gr\257\0" // Greek_Grid
    "G>\207_Lak\215\033_M\037qu\036te\372\0" // Green_Lake_and_Marquette_Feet
    "G>\207_Lak\215\033_M\037qu\036t\215M\313\0" // Green_Lake_and_Marquette_Meters
    "G>\207_\033_Lafay\036te\372\0" // Green_and_Lafayette_Feet
    "G>\207_\033_Lafay\036t\215M\313\0" // Green_and_Lafayette_Meters
    "G>\207\206\0" // Greenland
    "G>\207\206\00212\2216!\0" // Greenland - 12°W to 6°W
    "G>\207\206\00218\22112!\0" // Greenland - 18°W to 12°W
    "G>\207\206\00224\22118!\0" // Greenland - 24°W to 18°W
    "G>\207\206\00230\22124!\0" // Greenland - 30°W to 24°W
    "G>\207\206\00236\22130!\0" // Greenland - 36°W to 30°W
    "G>\207\206\00242\22136!\0" // Greenland - 42°W to 36°W
    "G>\207\206\00248\22142!\0" // Greenland - 48°W to 42°W
    "G>\207\206\00254\22148!\0" // Greenland - 54°W to 48°W
    "G>\207\206\00260\22154!\0" // Greenland - 60°W to 54°W
    "G>\207\206\00266\22160!\0" // Greenland - 66°W to 60°W
    "G>\207\206\00272\22166!\0" // Greenland - 72°W to 66°W
    "G>\207\206\002Amm}s\025ik \037ea\0" // Greenland - Ammassalik area
    "G>\207\206\002Hay\220 P\207\023sula\0" // Greenland - Hayes Peninsula
    "G>\207\206\002Sc\006\220bysund \037ea\0" // Greenland - Scoresbysund area
    "G>\207\206\002ea\020\00272\004N\02275\004N\0" // Greenland - east - 72°N to 75°N
    "G>\207\206\002ea\020\00275\004N\02278\004N\0" // Greenland - east - 75°N to 78°N
    "G>\207\206\002ea\020\00278\004N\02281\004N\0" // Greenland - east - 78°N to 81°N
    "G>\207\206\002e\314coa\020\00268\004N\02269\004N\0" // Greenland - east coast - 68°N to 69°N
    "G>\207\206\002e\314coa\020\00269\004N\02272\004N\0" // Greenland - east coast - 69°N to 72°N
    "G>\207\206\002n\006@\24381\004N\0" // Greenland - north of 81°N
    "G>\207\206\002s\250\24372\004N\0" // Greenland - south of 72°N
    "G>\207\206\002s\365w\267co\31454\22148!\0" // Greenland - southwest coast 54°W to 48°W
    "G>\207\206\002s\365w\267co\314e\314\24348!\0" // Greenland - southwest coast east of 48°W
    "G>\207\206\002s\365w\267co\314s\250\24363\004N\0" // Greenland - southwest coast south of 63°N
    "G>\207\206\002w\267coa\020\0" // Greenland - west coast
    "G>\207\206\002w\267coa\020\00263\004N\02266\004N\0" // Greenland - west coast - 63°N to 66°N
    "G>\207\206\002w\267coa\020\00266\004N\02269\004N\0" // Greenland - west coast - 66°N to 69°N
    "G>\207\206\002w\267coa\020\00269\004N\02272\004N\0" // Greenland - west coast - 69°N to 72°N
    "G>\207\206\002w\267coa\020\00272\004N\02275\004N\0" // Greenland - west coast - 72°N to 75°N
    "G>\207\206\002w\267coa\020\00275\004N\02278\004N\0" // Greenland - west coast - 75°N to 78°N
    "G>\207\206\002w\267coa\020\00278\004N\02279\004N\0" // Greenland - west coast - 78°N to 79°N
    "G>\207\206\002w\267\24372!\0" // Greenland - west of 72°W
    "G>\207\206 \03196\0" // Greenland 1996
    "G>\207\206_\03196\0" // Greenland_1996
    "G>\207\206\21196_U\254_Z\003\215\0" // Greenland_1996_UTM_Zone_
    "G>n\226\030ma\023 \077\206\002\236\0" // Grenada - main island - onshore
    "G>n\226\027\03153\0" // Grenada 1953
    "G>n\226\027\03153\012Br\245i< W\267\360i\220 Gr\257\0" // Grenada 1953 / British West Indies Grid
    "G>n\226\027\253s\365\007n G>n\226\023\220\002\236\0" // Grenada and southern Grenadines - onshore
    "G>n\226a\21153\0" // Grenada_1953
    "G>n\226a\21153_Br\245i<_We\020_\360i\220_Gr\257\0" // Grenada_1953_British_West_Indies_Grid
    "G>y\377\340cu\245\0" // Grey_Circuit
    "Gr\257_M1\0" // Grid_M1
    "Gr\257_M3\0" // Grid_M3
    "Gr\257_\254\0" // Grid_TM
    "Gu\226\242\026p\216Gr\033e-T\007r\010\253s\224r\026nd\023g \077\206s\002\236\0" // Guadeloupe - Grande-Terre and surrounding islands - onshore
    "Gu\226\242\026p\216St M\037t\023 \033|t B\037\024\242\212y\002\236\0" // Guadeloupe - St Martin and St Barthelemy - onshore
    "Gu\226\242\026p\010\03148\0" // Guadeloupe 1948
    "Gu\226\242\026p\010\03148\012U\254\273\034N\0" // Guadeloupe 1948 / UTM zone 20N
    "Gu\225\002\236\0" // Guam - onshore
    "Gu\225\31763\0" // Guam 1963
    "Gu\225\31763\012Gu\225|P\134\0" // Guam 1963 / Guam SPCS
    "Gu\225\31763\012Yap \335s\0" // Guam 1963 / Yap Islands
    "Gu\225 Geod\036# N\036w\006k \03193\0" // Guam Geodetic Network 1993
    "Gu\225\21163\0" // Guam_1963
    "Gu\225\21163_Yap_\335s\0" // Guam_1963_Yap_Islands
    "Gu=\212\025\030n\006@\24315\00451'30\042N\0" // Guatemala - north of 15°51'30"N
    "Gu=\212\025\030s\250\24315\00451'30\042N\0" // Guatemala - south of 15°51'30"N
    "Gu=\212\025\256\205te\0" // Guatemala_Norte
    "Gu=\212\025\256S\224\0" // Guatemala_Sur
    "Gu\007nsey_Gr\257\0" // Guernsey_Grid
    "Gu\023e\030e\314\24312!\0" // Guinea - east of 12°W
    "Gu\023e\030\236\0" // Guinea - onshore
    "Gu\023e\030w\267\24312!\0" // Guinea - west of 12°W
    "Gu\023ea-B\077sau\002\236\0" // Guinea-Bissau - onshore
    "Guj\037= \333F LCC\0" // Gujarat NSF LCC
    "Gul<\005 303\0" // Gulshan 303
    "Gul<\005 303\012B\005gl\226e< Tr\005sv\232\010M\007c=\006\0" // Gulshan 303 / Bangladesh Transverse Mercator
    "Gul<\005 303\012\254 90 NE\0" // Gulshan 303 / TM 90 NE
    "Gul<\005_303\0" // Gulshan_303
    "Gul<\005_303_B\005gl\226e<_\254\0" // Gulshan_303_Bangladesh_TM
    "Gul<\005_303_B\005gl\226e<_Tr\005sv\232\215M\007c=\006\0" // Gulshan_303_Bangladesh_Transverse_Mercator
    "Gunung Seg\037a\0" // Gunung Segara
    "Gunung Seg\037\027(Jak\037ta)\0" // Gunung Segara (Jakarta)
    "Gunung_Seg\037a\0" // Gunung_Segara
    "Gunung_Seg\037\256Jak\037ta\0" // Gunung_Segara_Jakarta
    "Gunung_Seg\037\256Jak\037t\256NEIEZ\0" // Gunung_Segara_Jakarta_NEIEZ
    "Gunung_Seg\037\256NEIEZ\0" // Gunung_Segara_NEIEZ
    "Gunung_Seg\037\256U\254_Z\003\21550S\0" // Gunung_Segara_UTM_Zone_50S
    "Gu\020\007b\007g\201F\007ro)\0" // Gusterberg (Ferro)
    "Gu\020\007b\007g Gr\257\0" // Gusterberg Grid
    "Gu\020\007b\007g Gr\257\201F\007ro)\0" // Gusterberg Grid (Ferro)
    "Gu\020\007b\007g(F\007ro)\0" // Gusterberg(Ferro)
    "Gu\020\007b\007g_(F\007ro)\0" // Gusterberg_(Ferro)
    "Guy\005a\0" // Guyana
    "Guy\005\030\236\0" // Guyana - onshore
    "Guy\005\010Fr\005ca\077e\0" // Guyane Francaise
    "Guy\005e`r\005ca\077e\0" // Guyane_Francaise
    "HD\03109\0" // HD1909
    "HD72\0" // HD72
    "HD72\012EOV\0" // HD72 / EOV
    "HK\31780 Gr\257|y\020\212\0" // HK 1980 Grid System
    "HK\03180\0" // HK1980
    "HK63\0" // HK63
    "HK63(67)\0" // HK63(67)
    "HK80\0" // HK80
    "HR\03101\0" // HR1901
    "HS2 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // HS2 Intermediate Reference Frame
    "HS2|\224ve\204Gr\257\0" // HS2 Survey Grid
    "HS2-IRF\0" // HS2-IRF
    "HS2-\254\0" // HS2-TM
    "HS2TN15_NTv2.gsb\0" // HS2TN15_NTv2.gsb
    "HS2_I\035\007m\275i=\215Ref\007\207ce`r\225e\0" // HS2_Intermediate_Reference_Frame
    "HS2_S\224vey_Gr\257\0" // HS2_Survey_Grid
    "HT{96\0" // HTRS96
    "HT{96\012Cro=\315LCC\0" // HTRS96 / Croatia LCC
    "HT{96\012Cro=\315\254\0" // HTRS96 / Croatia TM
    "HT{96\012U\254\27333N\0" // HTRS96 / UTM zone 33N
    "HT{96\012U\254\27334N\0" // HTRS96 / UTM zone 34N
    "HT{96\377ro=i\256LCC\0" // HTRS96_Croatia_LCC
    "HT{96\377ro=i\256\254\0" // HTRS96_Croatia_TM
    "HT{96_U\254_Z\003\21533N\0" // HTRS96_UTM_Zone_33N
    "HT{96_U\254_Z\003\21534N\0" // HTRS96_UTM_Zone_34N
    "HULLEE13 Gr\257\0" // HULLEE13 Grid
    "HULLEE13 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // HULLEE13 Intermediate Reference Frame
    "HULLEE13-IRF\0" // HULLEE13-IRF
    "HULLEE13-\254\0" // HULLEE13-TM
    "H\256\254\0" // Ha_TM
    "H\025fway_\021\211\014_\240_LCC`t_I\035l\0" // Halfway_NAD_1983_2011_LCC_Ft_Intl
    "H\025fway_\021\211\014_\240_LCC_M\313\0" // Halfway_NAD_1983_2011_LCC_Meters
    "H\225\341t\003-Tipt\003_(ft\203)\0" // Hamilton-Tipton_(ftUS)
    "H\225\341t\003-Tipt\003_(m)\0" // Hamilton-Tipton_(m)
    "H\225p<i>\2722800\372\0" // Hampshire_FIPS_2800_Feet
    "H\005cock-M\226\077\003_(ft\203)\0" // Hancock-Madison_(ftUS)
    "H\005cock-M\226\077\003_(m)\0" // Hancock-Madison_(m)
    "H\005oi\31772\0" // Hanoi 1972
    "H\005oi\31772\012GK \3126 NE\0" // Hanoi 1972 / GK 106 NE
    "H\005oi\31772\012Ga\351s-Krug\007\27318\0" // Hanoi 1972 / Gauss-Kruger zone 18
    "H\005oi\31772\012Ga\351s-Krug\007\27319\0" // Hanoi 1972 / Gauss-Kruger zone 19
    "H\005oi\21172\0" // Hanoi_1972
    "H\005oi\21172_GK_\3126_NE\0" // Hanoi_1972_GK_106_NE
    "H\005oi\21172_GK_Z\003\21518\0" // Hanoi_1972_GK_Zone_18
    "H\005oi\21172_GK_Z\003\21519\0" // Hanoi_1972_GK_Zone_19
    "H\037r\077\003-Wa<\023gt\003_(ft\203)\0" // Harrison-Washington_(ftUS)
    "H\037r\077\003-Wa<\023gt\003_(m)\0" // Harrison-Washington_(m)
    "H\037tebee\020hoek94\0" // Hartebeesthoek94
    "H\037tebee\020hoek94\012Lo15\0" // Hartebeesthoek94 / Lo15
    "H\037tebee\020hoek94\012Lo17\0" // Hartebeesthoek94 / Lo17
    "H\037tebee\020hoek94\012Lo19\0" // Hartebeesthoek94 / Lo19
    "H\037tebee\020hoek94\012Lo21\0" // Hartebeesthoek94 / Lo21
    "H\037tebee\020hoek94\012Lo23\0" // Hartebeesthoek94 / Lo23
    "H\037tebee\020hoek94\012Lo25\0" // Hartebeesthoek94 / Lo25
    "H\037tebee\020hoek94\012Lo27\0" // Hartebeesthoek94 / Lo27
    "H\037tebee\020hoek94\012Lo29\0" // Hartebeesthoek94 / Lo29
    "H\037tebee\020hoek94\012Lo31\0" // Hartebeesthoek94 / Lo31
    "H\037tebee\020hoek94\012Lo33\0" // Hartebeesthoek94 / Lo33
    "H\037tebee\020hoek94\012ZAF BSU Alb\232 25E\0" // Hartebeesthoek94 / ZAF BSU Albers 25E
    "H\037tebee\020hoek94\012ZAF BSU Alb\232 44E\0" // Hartebeesthoek94 / ZAF BSU Albers 44E
    "H\037tebee\020hoek94_ZAF_BSU_Alb\232_25E\0" // Hartebeesthoek94_ZAF_BSU_Albers_25E
    "H\037tebee\020hoek94_ZAF_BSU_Alb\232_44E\0" // Hartebeesthoek94_ZAF_BSU_Albers_44E
    "H\037tebee\020hoek_\03194\0" // Hartebeesthoek_1994
    "H\037y\005\027\333F LCC\0" // Haryana NSF LCC
    "Hawaii \134\306\2731\0" // Hawaii CS27 zone 1
    "Hawaii \134\306\2732\0" // Hawaii CS27 zone 2
    "Hawaii \134\306\2733\0" // Hawaii CS27 zone 3
    "Hawaii \134\306\2734\0" // Hawaii CS27 zone 4
    "Hawaii \134\306\2735\0" // Hawaii CS27 zone 5
    "Hawaii_1\2725\3121\0" // Hawaii_1_FIPS_5101
    "Hawaii_2\2725\3122\0" // Hawaii_2_FIPS_5102
    "Hawaii_3\2725\3123\0" // Hawaii_3_FIPS_5103
    "Hawaii_3\2725\3123\372\0" // Hawaii_3_FIPS_5103_Feet
    "Hawaii_4\2725\3124\0" // Hawaii_4_FIPS_5104
    "Hawaii_5\2725\3125\0" // Hawaii_5_FIPS_5105
    "Hawk\220_Bay\377\340cu\245\0" // Hawkes_Bay_Circuit
    "HeTa\034\312.gsb\0" // HeTa2010.gsb
    "He\037d \335\374McD\003\025d \335s\00266\20072\015\0" // Heard Island and McDonald Islands - 66°E to 72°E
    "He\037d \335\374McD\003\025d \335s\00272\20078\015\0" // Heard Island and McDonald Islands - 72°E to 78°E
    "He\037d \335\374McD\003\025d \335s\002e\314\24378\015\0" // Heard Island and McDonald Islands - east of 78°E
    "He\037d \335\374McD\003\025d \335s\002w\267\24366\015\0" // Heard Island and McDonald Islands - west of 66°E
    "H\242l\010\03154\0" // Helle 1954
    "H\242l\010\03154\012J\005 May\207 Gr\257\0" // Helle 1954 / Jan Mayen Grid
    "H\242le\21154\0" // Helle_1954
    "H\242le\21154_J\005_May\207_Gr\257\0" // Helle_1954_Jan_Mayen_Grid
    "H\242m\007t\31706\0" // Helmert 1906
    "H\242m\007t\21106\0" // Helmert_1906
    "H\207ry_(ft\203)\0" // Henry_(ftUS)
    "H\207ry_(m)\0" // Henry_(m)
    "H\007= \373\0" // Herat North
    "H\007=_\373\0" // Herat_North
    "Himach\230Pr\226e< \333F LCC\0" // Himachal Pradesh NSF LCC
    "Himach\025_Pr\226e<\0" // Himachal_Pradesh
    "H\245\013XVIII\0" // Hito XVIII
    "H\245\013XVIII\31763\0" // Hito XVIII 1963
    "H\245\013XVIII\31763\012\325ge\035\023\0272\0" // Hito XVIII 1963 / Argentina 2
    "H\245\013XVIII\31763\012U\254\27319S\0" // Hito XVIII 1963 / UTM zone 19S
    "H\245\013XVIII\022WGS 84\2011)\0" // Hito XVIII to WGS 84 (1)
    "H\245o_XVIII\21163\0" // Hito_XVIII_1963
    "H\245o_XVIII\21163_\325ge\035\023\2562\0" // Hito_XVIII_1963_Argentina_2
    "H\245o_XVIII\21163_U\254_19S\0" // Hito_XVIII_1963_UTM_19S
    "Hj\006se\204\03155\0" // Hjorsey 1955
    "Hj\006se\204\03155\012L\225b\007t\31755\0" // Hjorsey 1955 / Lambert 1955
    "Hj\006se\204\03155\012U\254\27326N\0" // Hjorsey 1955 / UTM zone 26N
    "Hj\006se\204\03155\012U\254\27327N\0" // Hjorsey 1955 / UTM zone 27N
    "Hj\006se\204\03155\012U\254\27328N\0" // Hjorsey 1955 / UTM zone 28N
    "Hj\006sey\21155\0" // Hjorsey_1955
    "Hj\006sey\21155_U\254_Z\003\215\0" // Hjorsey_1955_UTM_Zone_
    "Hok\245ik\256C\340cu\245\0" // Hokitika_Circuit
    "H\003g K\003g\31763\0" // Hong Kong 1963
    "H\003g K\003g\31763 Gr\257\0" // Hong Kong 1963 Grid
    "H\003g K\003g\31763 Gr\257|y\020\212\0" // Hong Kong 1963 Grid System
    "H\003g K\003g\31763(67)\0" // Hong Kong 1963(67)
    "H\003g K\003g\31780\0" // Hong Kong 1980
    "H\003g K\003g\31780 Gr\257\0" // Hong Kong 1980 Grid
    "H\003g K\003g\31780 Gr\257|y\020\212\0" // Hong Kong 1980 Grid System
    "H\003g K\003g Geod\036#\0" // Hong Kong Geodetic
    "H\003g K\003g Geod\036# \134\0" // Hong Kong Geodetic CS
    "H\003g_K\003g\21163\0" // Hong_Kong_1963
    "H\003g_K\003g\21163_67\0" // Hong_Kong_1963_67
    "H\003g_K\003g\21163_Gr\257_Sy\020\212\0" // Hong_Kong_1963_Grid_System
    "H\003g_K\003g\21180\0" // Hong_Kong_1980
    "H\003g_K\003g\21180_Gr\257\0" // Hong_Kong_1980_Grid
    "H\003g_K\003g_Geod\036#\0" // Hong_Kong_Geodetic
    "H\003g_K\003g_Geod\036#_\134\0" // Hong_Kong_Geodetic_CS
    "H\026gh\31760\0" // Hough 1960
    "H\026gh\21160\0" // Hough_1960
    "How\037d-Mi\225i_(ft\203)\0" // Howard-Miami_(ftUS)
    "How\037d-Mi\225i_(m)\0" // Howard-Miami_(m)
    "Hu Tzu|h\005\0" // Hu Tzu Shan
    "Hu Tzu|h\005\31750\0" // Hu Tzu Shan 1950
    "Hu Tzu|h\005\31750\012U\254\27351N\0" // Hu Tzu Shan 1950 / UTM zone 51N
    "Hu_Tzu_Sh\005\0" // Hu_Tzu_Shan
    "Hu_Tzu_Sh\005_U\254_Z\003\21551N\0" // Hu_Tzu_Shan_UTM_Zone_51N
    "Hugh\220\31780\0" // Hughes 1980
    "Hugh\220\21180\0" // Hughes_1980
    "Hung\037\336 D=um\31709\0" // Hungarian Datum 1909
    "Hung\037\336 D=um\31772\0" // Hungarian Datum 1972
    "Hung\037\336\21172\0" // Hungarian_1972
    "Hung\037\336\21172_Egyseg\220_Orszagos_V\036ul\036i\0" // Hungarian_1972_Egyseges_Orszagos_Vetuleti
    "Hung\037\336_D=um\21109\0" // Hungarian_Datum_1909
    "Hung\037y\0" // Hungary
    "Hu\035\023gt\003-Wh\245ley_(ft\203)\0" // Huntington-Whitley_(ftUS)
    "Hu\035\023gt\003-Wh\245ley_(m)\0" // Huntington-Whitley_(m)
    "IAG\31775\0" // IAG 1975
    "IBCAO_P\246\037_St\007eog\350\237#\0" // IBCAO_Polar_Stereographic
    "IB\134O_P\246\037_St\007eog\350\237#\0" // IBCSO_Polar_Stereographic
    "ID74\0" // ID74
    "ID74\012U\254\27346N\0" // ID74 / UTM zone 46N
    "ID74\012U\254\27346S\0" // ID74 / UTM zone 46S
    "ID74\012U\254\27347N\0" // ID74 / UTM zone 47N
    "ID74\012U\254\27347S\0" // ID74 / UTM zone 47S
    "ID74\012U\254\27348N\0" // ID74 / UTM zone 48N
    "ID74\012U\254\27348S\0" // ID74 / UTM zone 48S
    "ID74\012U\254\27349N\0" // ID74 / UTM zone 49N
    "ID74\012U\254\27349S\0" // ID74 / UTM zone 49S
    "ID74\012U\254\27350N\0" // ID74 / UTM zone 50N
    "ID74\012U\254\27350S\0" // ID74 / UTM zone 50S
    "ID74\012U\254\27351N\0" // ID74 / UTM zone 51N
    "ID74\012U\254\27351S\0" // ID74 / UTM zone 51S
    "ID74\012U\254\27352N\0" // ID74 / UTM zone 52N
    "ID74\012U\254\27352S\0" // ID74 / UTM zone 52S
    "ID74\012U\254\27353N\0" // ID74 / UTM zone 53N
    "ID74\012U\254\27353S\0" // ID74 / UTM zone 53S
    "ID74\012U\254\27354S\0" // ID74 / UTM zone 54S
    "IE{ T\007>\375i\230Ref\007\207c\010Fr\225\010\0" // IERS Terrestrial Reference Frame 
    "IG05\0" // IG05
    "IG05 I\035\007m\275i=\010D=um\0" // IG05 Intermediate Datum
    "IG05(\03412)_I\035\007m\275i=\215C{\0" // IG05(2012)_Intermediate_CRS
    "IG05(\03412)_I\035\007m\275i=\215D=um\0" // IG05(2012)_Intermediate_Datum
    "IG05/12\0" // IG05/12
    "IG05/12 I\035\007m\275i=\010D=um\0" // IG05/12 Intermediate Datum
    "IG05_I\035\007m\275i=\215C{\0" // IG05_Intermediate_CRS
    "IG05_I\035\007m\275i=\215D=um\0" // IG05_Intermediate_Datum
    "IGC\31762\0" // IGC 1962
    "IGC\31762\012C\003g\013\254\27312\0" // IGC 1962 / Congo TM zone 12
    "IGC\31762\012C\003g\013\254\27314\0" // IGC 1962 / Congo TM zone 14
    "IGC\31762\012C\003g\013\254\27316\0" // IGC 1962 / Congo TM zone 16
    "IGC\31762\012C\003g\013\254\27318\0" // IGC 1962 / Congo TM zone 18
    "IGC\31762\012C\003g\013\254\27320\0" // IGC 1962 / Congo TM zone 20
    "IGC\31762\012C\003g\013\254\27322\0" // IGC 1962 / Congo TM zone 22
    "IGC\31762\012C\003g\013\254\27324\0" // IGC 1962 / Congo TM zone 24
    "IGC\31762\012C\003g\013\254\27326\0" // IGC 1962 / Congo TM zone 26
    "IGC\31762\012C\003g\013\254\27328\0" // IGC 1962 / Congo TM zone 28
    "IGC\31762\012C\003g\013\254\27330\0" // IGC 1962 / Congo TM zone 30
    "IGC\31762 6@P\037\025l\242|\365\0" // IGC 1962 6th Parallel South
    "IGC\31762 \325c \214\017h\0106@P\037\025l\242|\365\0" // IGC 1962 Arc of the 6th Parallel South
    "IGCB\31755\0" // IGCB 1955
    "IGCB\31755\012C\003g\013\254\27312\0" // IGCB 1955 / Congo TM zone 12
    "IGCB\31755\012C\003g\013\254\27314\0" // IGCB 1955 / Congo TM zone 14
    "IGCB\31755\012C\003g\013\254\27316\0" // IGCB 1955 / Congo TM zone 16
    "IGCB\31755\012U\254\27333S\0" // IGCB 1955 / UTM zone 33S
    "IGCB\21155\0" // IGCB_1955
    "IGCB\21155\377\003go_\254_Z\003\215\0" // IGCB_1955_Congo_TM_Zone_
    "IGCB\21155_U\254_Z\003\21533S\0" // IGCB_1955_UTM_Zone_33S
    "IGC\21162_6\024_P\037\025l\242_S\365\0" // IGC_1962_6th_Parallel_South
    "IGC\21162_\325c_\214_\024\2156\024_P\037\025l\242_S\365\0" // IGC_1962_Arc_of_the_6th_Parallel_South
    "IGC\21162\377\003go_\254_Z\003\215\0" // IGC_1962_Congo_TM_Zone_
    "IGD05\0" // IGD05
    "IGD05\022IG05 I\035\007m\275i=\010C{\0" // IGD05 to IG05 Intermediate CRS
    "IGD05\022IGD05/12\0" // IGD05 to IGD05/12
    "IGD05(\03412)\0" // IGD05(2012)
    "IGD05/12\022IG05/12 I\035\007m\275i=\010C{\0" // IGD05/12 to IG05/12 Intermediate CRS
    "IGD95\0" // IGD95
    "IGM95\0" // IGM95
    "IGM95\012U\254\27332N\0" // IGM95 / UTM zone 32N
    "IGM95\012U\254\27333N\0" // IGM95 / UTM zone 33N
    "IGM95\012U\254\27334N\0" // IGM95 / UTM zone 34N
    "IGM\21195\0" // IGM_1995
    "IGM\21195_U\254_Z\003\21532N\0" // IGM_1995_UTM_Zone_32N
    "IGM\21195_U\254_Z\003\21533N\0" // IGM_1995_UTM_Zone_33N
    "IGN\31752\0" // IGN 1952
    "IGN\31762 K\007gu\242\207\0" // IGN 1962 Kerguelen
    "IGN\31762 K\007gu\242\207\012U\254\27342S\0" // IGN 1962 Kerguelen / UTM zone 42S
    "IGN A\375\013\03160\0" // IGN Astro 1960
    "IGN A\375\013\03160\012U\254\27328N\0" // IGN Astro 1960 / UTM zone 28N
    "IGN A\375\013\03160\012U\254\27329N\0" // IGN Astro 1960 / UTM zone 29N
    "IGN A\375\013\03160\012U\254\27330N\0" // IGN Astro 1960 / UTM zone 30N
    "IGN50\0" // IGN50
    "IGN53 M\037e\0" // IGN53 Mare
    "IGN53 M\037\010\011U\254\27358S\0" // IGN53 Mare / UTM zone 58S
    "IGN53 M\037\010\011U\254\27359S\0" // IGN53 Mare / UTM zone 59S
    "IGN53_M\037e\0" // IGN53_Mare
    "IGN53_M\037\215U\254_58S\0" // IGN53_Mare_UTM_58S
    "IGN53_M\037\215U\254_Z\003\21559S\0" // IGN53_Mare_UTM_Zone_59S
    "IGN56 Lif\026\0" // IGN56 Lifou
    "IGN56 Lif\026\012U\254\27358S\0" // IGN56 Lifou / UTM zone 58S
    "IGN56_Lif\026\0" // IGN56_Lifou
    "IGN56_Lif\026_U\254_58S\0" // IGN56_Lifou_UTM_58S
    "IGN63 Hiv\027Oa\0" // IGN63 Hiva Oa
    "IGN63 Hiv\027Oa\012U\254\2737S\0" // IGN63 Hiva Oa / UTM zone 7S
    "IGN63_Hiv\256Oa\0" // IGN63_Hiva_Oa
    "IGN63_Hiv\256O\256U\254_Z\003\2157S\0" // IGN63_Hiva_Oa_UTM_Zone_7S
    "IGN72 Gr\253T\007>\0" // IGN72 Grand Terre
    "IGN72 Gr\253T\007r\010\011U\254\27358S\0" // IGN72 Grand Terre / UTM zone 58S
    "IGN72 Gr\033\010T\007>\0" // IGN72 Grande Terre
    "IGN72 Gr\033\010T\007r\010\011U\254\27358S\0" // IGN72 Grande Terre / UTM zone 58S
    "IGN72 Nuku Hiva\0" // IGN72 Nuku Hiva
    "IGN72 Nuku Hiva\012U\254\2737S\0" // IGN72 Nuku Hiva / UTM zone 7S
    "IGN72_Gr\033\215T\007>\0" // IGN72_Grande_Terre
    "IGN72_Gr\033\215T\007>_U\254_58S\0" // IGN72_Grande_Terre_UTM_58S
    "IGN72_Nuku_Hiva\0" // IGN72_Nuku_Hiva
    "IGN72_Nuku_Hiv\256U\254_7S\0" // IGN72_Nuku_Hiva_UTM_7S
    "IGN79 T\361\245i\0" // IGN79 Tahiti
    "IGN_A\375o\21160\0" // IGN_Astro_1960
    "IGN_A\375o\21160_U\254_Z\003\215\0" // IGN_Astro_1960_UTM_Zone_
    "IG{\0" // IGRS
    "IG{\012U\254\27337N\0" // IGRS / UTM zone 37N
    "IG{\012U\254\27338N\0" // IGRS / UTM zone 38N
    "IG{\012U\254\27339N\0" // IGRS / UTM zone 39N
    "IG{_U\254_Z\003\21537N\0" // IGRS_UTM_Zone_37N
    "IG{_U\254_Z\003\21538N\0" // IGRS_UTM_Zone_38N
    "IG{_U\254_Z\003\21539N\0" // IGRS_UTM_Zone_39N
    "IGS00\0" // IGS00
    "IGS00\002L=L\003\0" // IGS00 - LatLon
    "IGS05\0" // IGS05
    "IGS05\002L=L\003\0" // IGS05 - LatLon
    "IGS08\0" // IGS08
    "IGS08\002L=L\003\0" // IGS08 - LatLon
    "IGS14\0" // IGS14
    "IGS14\002L=L\003\0" // IGS14 - LatLon
    "IGS97\0" // IGS97
    "IGS97\002L=L\003\0" // IGS97 - LatLon
    "IGb00\0" // IGb00
    "IGb00\002L=L\003\0" // IGb00 - LatLon
    "IGb08\0" // IGb08
    "IGb08\002L=L\003\0" // IGb08 - LatLon
    "IGb14\0" // IGb14
    "IGb14\002L=L\003\0" // IGb14 - LatLon
    "III\2720403\0" // III_FIPS_0403
    "III\2720403\372\0" // III_FIPS_0403_Feet
    "III\2720403`t_\203\0" // III_FIPS_0403_Ft_US
    "II\2720402\0" // II_FIPS_0402
    "II\2720402\372\0" // II_FIPS_0402_Feet
    "II\2720402`t_\203\0" // II_FIPS_0402_Ft_US
    "IKBD-92\0" // IKBD-92
    "IKBD_\03192\0" // IKBD_1992
    "IRENET95\0" // IRENET95
    "IRENET95\012Iri< Tr\005sv\232\010M\007c=\006\0" // IRENET95 / Irish Transverse Mercator
    "IRENET95\012U\254\27329N\0" // IRENET95 / UTM zone 29N
    "IRENET95_Iri<_Tr\005sv\232\215M\007c=\006\0" // IRENET95_Irish_Transverse_Mercator
    "IRENET95_U\254_Z\003\21529N\0" // IRENET95_UTM_Zone_29N
    "ISN\2274\0" // ISN2004
    "ISN\2274\012LAEA E\224ope\0" // ISN2004 / LAEA Europe
    "ISN\2274\012LAEA Ice\206\0" // ISN2004 / LAEA Iceland
    "ISN\2274\012LCC E\224ope\0" // ISN2004 / LCC Europe
    "ISN\2274\012L\225b\007t \2274\0" // ISN2004 / Lambert 2004
    "ISN\2274_ISN\03416.gsb\0" // ISN2004_ISN2016.gsb
    "ISN\03416\0" // ISN2016
    "ISN\03416\012LAEA E\224ope\0" // ISN2016 / LAEA Europe
    "ISN\03416\012LCC E\224ope\0" // ISN2016 / LCC Europe
    "ISN\03416\012L\225b\007t \03416\0" // ISN2016 / Lambert 2016
    "ISN\03416_LAEA_E\224ope\0" // ISN2016_LAEA_Europe
    "ISN\03416_LCC_E\224ope\0" // ISN2016_LCC_Europe
    "ISN\03416_L\225b\007t_\03416\0" // ISN2016_Lambert_2016
    "ISN93\0" // ISN93
    "ISN93\012L\225b\007t \03193\0" // ISN93 / Lambert 1993
    "ISN93_ISN\03416.gsb\0" // ISN93_ISN2016.gsb
    "ISN_\03193\0" // ISN_1993
    "ISN\21193_L\225b\007t_\03193\0" // ISN_1993_Lambert_1993
    "ISN_\2274\0" // ISN_2004
    "ISN_\2274_LAEA_E\224ope\0" // ISN_2004_LAEA_Europe
    "ISN_\2274_LCC_E\224ope\0" // ISN_2004_LCC_Europe
    "ISN_\2274_L\225b\007t_\2274\0" // ISN_2004_Lambert_2004
    "ISTS_061\21168\0" // ISTS_061_1968
    "ISTS_073\21169\0" // ISTS_073_1969
    "ITRF\2270\0" // ITRF2000
    "ITRF\2270\002L=L\003\0" // ITRF2000 - LatLon
    "ITRF\2270\022ETRF\03414\2011)\0" // ITRF2000 to ETRF2014 (1)
    "ITRF\2275\0" // ITRF2005
    "ITRF\2275\002L=L\003\0" // ITRF2005 - LatLon
    "ITRF\2275\022ETRF\03414\2011)\0" // ITRF2005 to ETRF2014 (1)
    "ITRF\2278\002L=L\003\0" // ITRF2008 - LatLon
    "ITRF\2278\022ETRF\03414\2011)\0" // ITRF2008 to ETRF2014 (1)
    "ITRF\2278\022IG05/12 I\035\007m\275i=\010C{\0" // ITRF2008 to IG05/12 Intermediate CRS
    "ITRF\03414\0" // ITRF2014
    "ITRF\03414\002L=L\003\0" // ITRF2014 - LatLon
    "ITRF\03414\022ETRF\03414\2012)\0" // ITRF2014 to ETRF2014 (2)
    "ITRF\03420\0" // ITRF2020
    "ITRF\034\034\002L=L\003\0" // ITRF2020 - LatLon
    "ITRF88\0" // ITRF88
    "ITRF88\002L=L\003\0" // ITRF88 - LatLon
    "ITRF89\0" // ITRF89
    "ITRF89\002L=L\003\0" // ITRF89 - LatLon
    "ITRF89\022ETRF\03414\2011)\0" // ITRF89 to ETRF2014 (1)
    "ITRF90\0" // ITRF90
    "ITRF90\002L=L\003\0" // ITRF90 - LatLon
    "ITRF90\022ETRF\03414\2011)\0" // ITRF90 to ETRF2014 (1)
    "ITRF91\0" // ITRF91
    "ITRF91\002L=L\003\0" // ITRF91 - LatLon
    "ITRF91\022ETRF\03414\2011)\0" // ITRF91 to ETRF2014 (1)
    "ITRF92\002L=L\003\0" // ITRF92 - LatLon
    "ITRF92\022ETRF\03414\2011)\0" // ITRF92 to ETRF2014 (1)
    "ITRF93\0" // ITRF93
    "ITRF93\002L=L\003\0" // ITRF93 - LatLon
    "ITRF93\022ETRF\03414\2011)\0" // ITRF93 to ETRF2014 (1)
    "ITRF94\0" // ITRF94
    "ITRF94\002L=L\003\0" // ITRF94 - LatLon
    "ITRF94\022ETRF\03414\2011)\0" // ITRF94 to ETRF2014 (1)
    "ITRF96\0" // ITRF96
    "ITRF96\002L=L\003\0" // ITRF96 - LatLon
    "ITRF96\022ETRF\03414\2011)\0" // ITRF96 to ETRF2014 (1)
    "ITRF97\0" // ITRF97
    "ITRF97\002L=L\003\0" // ITRF97 - LatLon
    "ITRF97\022ETRF\03414\2011)\0" // ITRF97 to ETRF2014 (1)
    "IV\2720404\0" // IV_FIPS_0404
    "IV\2720404\372\0" // IV_FIPS_0404_Feet
    "IV\2720404`t_\203\0" // IV_FIPS_0404_Ft_US
    "I\2720401\0" // I_FIPS_0401
    "I\2720401\372\0" // I_FIPS_0401_Feet
    "I\2720401`t_\203\0" // I_FIPS_0401_Ft_US
    "Ibagu\215T\246im\256\2277\0" // Ibague_Tolima_2007
    "Ice\206\002ma\023\206\0" // Iceland - mainland
    "Ice\206\002ma\023\206 24\22118!\0" // Iceland - mainland 24°W to 18°W
    "Ice\206\002ma\023\206 e\314\24318!\0" // Iceland - mainland east of 18°W
    "Ice\206\002ma\023\206 w\267\24324!\0" // Iceland - mainland west of 24°W
    "Ice\206 L\225b\007t\31700\0" // Iceland Lambert 1900
    "Ice\206 L\225b\007t\31755\0" // Iceland Lambert 1955
    "Ice\206 L\225b\007t \03193\0" // Iceland Lambert 1993
    "Ice\206 L\225b\007t \2274\0" // Iceland Lambert 2004
    "Ice\206 L\225b\007t \03416\0" // Iceland Lambert 2016
    "Ice\206 L\225b\007t Azimu\024\230Equ\230A>a\0" // Iceland Lambert Azimuthal Equal Area
    "Id\361\013\134\306\327\367\230$e\0" // Idaho CS27 Central zone
    "Id\361\013\134\306 E\314$e\0" // Idaho CS27 East zone
    "Id\361\013\134\306 W\267$e\0" // Idaho CS27 West zone
    "Id\361o\377\367\025\272\20202\0" // Idaho_Central_FIPS_1102
    "Id\361o\377\367\025\272\20202\372\0" // Idaho_Central_FIPS_1102_Feet
    "Id\361o\377\367\025\272\20202`t_\203\0" // Idaho_Central_FIPS_1102_Ft_US
    "Id\361o_Ea\020\272\20201\0" // Idaho_East_FIPS_1101
    "Id\361o_Ea\020\272\20201\372\0" // Idaho_East_FIPS_1101_Feet
    "Id\361o_Ea\020\272\20201`t_\203\0" // Idaho_East_FIPS_1101_Ft_US
    "Id\361o_\254\0" // Idaho_TM
    "Id\361o_We\020\272\20203\0" // Idaho_West_FIPS_1103
    "Id\361o_We\020\272\20203\372\0" // Idaho_West_FIPS_1103_Feet
    "Id\361o_We\020\272\20203`t_\203\0" // Idaho_West_FIPS_1103_Ft_US
    "Ill\023o\077 \134\306 E\314$e\0" // Illinois CS27 East zone
    "Ill\023o\077 \134\306 W\267$e\0" // Illinois CS27 West zone
    "Ill\023o\077_Ea\020\2721\0341\0" // Illinois_East_FIPS_1201
    "Ill\023o\077_Ea\020\2721\0341\372\0" // Illinois_East_FIPS_1201_Feet
    "Ill\023o\077_Ea\020\2721\0341`t_\203\0" // Illinois_East_FIPS_1201_Ft_US
    "Ill\023o\077_We\020\2721\0342\0" // Illinois_West_FIPS_1202
    "Ill\023o\077_We\020\2721\0342\372\0" // Illinois_West_FIPS_1202_Feet
    "Ill\023o\077_We\020\2721\0342`t_\203\0" // Illinois_West_FIPS_1202_Ft_US
    "\310G\134 \240 \0" // InGCS 2011 
    "\360ia\0" // India
    "\360\213And\225\005\374N#ob\037 \335s\0" // India - Andaman and Nicobar Islands
    "\360\213Andhr\027Pr\226e<\374T\242\005g\005a\0" // India - Andhra Pradesh and Telangana
    "\360\213\325unach\230Pr\226e<\0" // India - Arunachal Pradesh
    "\360\213Ass\225\0" // India - Assam
    "\360\213Bih\037\0" // India - Bihar
    "\360\213Chh=t\077g\037h\0" // India - Chhattisgarh
    "\360\213D\242hi\0" // India - Delhi
    "\360\213Goa\0" // India - Goa
    "\360\213Guj\037=\0" // India - Gujarat
    "\360\213H\037y\005a\0" // India - Haryana
    "\360\213Himach\230Pr\226e<\0" // India - Himachal Pradesh
    "\360\213J\225mu\374Ka<m\340\0" // India - Jammu and Kashmir
    "\360\213Jh\037kh\033\0" // India - Jharkhand
    "\360\213K\037n=aka\0" // India - Karnataka
    "\360\213K\007\025a\0" // India - Kerala
    "\360\213Lak<\226weep\0" // India - Lakshadweep
    "\360\213M\226hy\027Pr\226e<\0" // India - Madhya Pradesh
    "\360\213M\361\037a<t\350\0" // India - Maharashtra
    "\360\213M\005ip\224\0" // India - Manipur
    "\360\213Megh\025aya\0" // India - Meghalaya
    "\360\213Miz\006\225\0" // India - Mizoram
    "\360\213Nag\025\033\0" // India - Nagaland
    "\360\213Odi<a\0" // India - Odisha
    "\360\213Punjab\0" // India - Punjab
    "\360\213Raja\020h\005\0" // India - Rajasthan
    "\360\213Sikkim\0" // India - Sikkim
    "\360\213T\225\341 N\226u\0" // India - Tamil Nadu
    "\360\213Trip\224a\0" // India - Tripura
    "\360\213Utt\037 Pr\226e<\0" // India - Uttar Pradesh
    "\360\213Utt\037akh\033\0" // India - Uttarakhand
    "\360\213W\267B\207g\025\0" // India - West Bengal
    "\360\213e\314\24396\015\0" // India - east of 96°E
    "\360\213ma\023\206\0" // India - mainland
    "\360\213ma\023\206 72\20078\015\0" // India - mainland 72°E to 78°E
    "\360\213ma\023\206 90\20096\015\0" // India - mainland 90°E to 96°E
    "\360\213ma\023\206 s\250\24315\004N\0" // India - mainland south of 15°N
    "\360\213n\006@\24328\004N\0" // India - north of 28°N
    "\360\213n\006\024ea\020\0" // India - northeast
    "\360\213\210\01015\004N\02221\004N\0" // India - onshore 15°N to 21°N
    "\360\213\210\01021\004N\02228\004N\374w\267\24382\015\0" // India - onshore 21°N to 28°N and west of 82°E
    "\360\213\210\01078\20084\015\0" // India - onshore 78°E to 84°E
    "\360\213\210\01084\20090\015\0" // India - onshore 84°E to 90°E
    "\360\213\210\010n\006@\24321\004N\374e\314\24382\015\0" // India - onshore north of 21°N and east of 82°E
    "\360\213\210\010w\267\24372\015\0" // India - onshore west of 72°E
    "\360\315^I\201\03162 m\036>s)\0" // India zone I (1962 metres)
    "\360\315^I\201\03175 m\036>s)\0" // India zone I (1975 metres)
    "\360\315^III\027(\03175 m\036>s)\0" // India zone IIIa (1975 metres)
    "\360\315^II\027(\03162 m\036>s)\0" // India zone IIa (1962 metres)
    "\360\315^II\027(\03175 m\036>s)\0" // India zone IIa (1975 metres)
    "\360\315^IIb\201\03137 m\036>s)\0" // India zone IIb (1937 metres)
    "\360\315^IIb\201\03175 m\036>s)\0" // India zone IIb (1975 metres)
    "\360\315^IV\027(\03175 m\036>s)\0" // India zone IVa (1975 metres)
    "\360i\256\333F_LCC\0" // India_NSF_LCC
    "\360i\256\373ea\020\0" // India_Northeast
    "\360\336\201DMA R\275uc\275)\0" // Indian (DMA Reduced)
    "\360\336\31754\0" // Indian 1954
    "\360\336\31754\012U\254\27346N\0" // Indian 1954 / UTM zone 46N
    "\360\336\31754\012U\254\27347N\0" // Indian 1954 / UTM zone 47N
    "\360\336\31754\012U\254\27348N\0" // Indian 1954 / UTM zone 48N
    "\360\336\31760\0" // Indian 1960
    "\360\336\31760\012\254 \3126 NE\0" // Indian 1960 / TM 106 NE
    "\360\336\31760\012U\254\27348N\0" // Indian 1960 / UTM zone 48N
    "\360\336\31760\012U\254\27349N\0" // Indian 1960 / UTM zone 49N
    "\360\336\31775\0" // Indian 1975
    "\360\336\31775\012U\254\27347N\0" // Indian 1975 / UTM zone 47N
    "\360\336\31775\012U\254\27348N\0" // Indian 1975 / UTM zone 48N
    "\360\336 fo\337\0" // Indian foot
    "\360\336 fo\337\201\03137)\0" // Indian foot (1937)
    "\360\336 fo\337\201\03162)\0" // Indian foot (1962)
    "\360\336 fo\337\201\03175)\0" // Indian foot (1975)
    "\360\336 y\037d\0" // Indian yard
    "\360\336 y\037d\201\03137)\0" // Indian yard (1937)
    "\360\336 y\037d\201\03162)\0" // Indian yard (1962)
    "\360\336 y\037d\201\03175)\0" // Indian yard (1975)
    "\360\336_\0" // Indian_
    "\360\336\21154\0" // Indian_1954
    "\360\336\21160\0" // Indian_1960
    "\360\336\027\134\306 E\314$e\0" // Indiana CS27 East zone
    "\360\336\027\134\306 W\267$e\0" // Indiana CS27 West zone
    "\360\336\256Ea\020\2721301\0" // Indiana_East_FIPS_1301
    "\360\336\256Ea\020\2721301\372\0" // Indiana_East_FIPS_1301_Feet
    "\360\336\256Ea\020\2721301`t_\203\0" // Indiana_East_FIPS_1301_Ft_US
    "\360\336\256We\020\2721302\0" // Indiana_West_FIPS_1302
    "\360\336\256We\020\2721302\372\0" // Indiana_West_FIPS_1302_Feet
    "\360\336\256We\020\2721302`t_\203\0" // Indiana_West_FIPS_1302_Ft_US
    "\360\003\220ia\0" // Indonesia
    "\360\003\220\213\3122\200\3125\015\356\0" // Indonesia - 102°E to 105°E onshore
    "\360\003\220\213\3122\200\3128\015\277N\311e\0" // Indonesia - 102°E to 108°E, N hemisphere
    "\360\003\220\213\3122\200\3128\015\277N\311\010\236\0" // Indonesia - 102°E to 108°E, N hemisphere onshore
    "\360\003\220\213\3122\200\3128\015,|\311e\0" // Indonesia - 102°E to 108°E, S hemisphere
    "\360\003\220\213\3122\200\3128\015,|\311\010\236\0" // Indonesia - 102°E to 108°E, S hemisphere onshore
    "\360\003\220\213\3125\200\3128\015\356\0" // Indonesia - 105°E to 108°E onshore
    "\360\003\220\213\3128\200\2021\015\356\0" // Indonesia - 108°E to 111°E onshore
    "\360\003\220\213\3128\200\2024\015\277N\311e\0" // Indonesia - 108°E to 114°E, N hemisphere
    "\360\003\220\213\3128\200\2024\015\277N\311\010\236\0" // Indonesia - 108°E to 114°E, N hemisphere onshore
    "\360\003\220\213\3128\200\2024\015,|\311e\0" // Indonesia - 108°E to 114°E, S hemisphere
    "\360\003\220\213\3128\200\2024\015,|\311\010\236\0" // Indonesia - 108°E to 114°E, S hemisphere onshore
    "\360\003\220\213\2021\200\2024\015\356\0" // Indonesia - 111°E to 114°E onshore
    "\360\003\220\213\2024\200\2027\015\356\0" // Indonesia - 114°E to 117°E onshore
    "\360\003\220\213\2024\354\034\015\277N\311e\0" // Indonesia - 114°E to 120°E, N hemisphere
    "\360\003\220\213\2024\354\034\015\277N\311\010\236\0" // Indonesia - 114°E to 120°E, N hemisphere onshore
    "\360\003\220\213\2024\354\034\015,|\311e\0" // Indonesia - 114°E to 120°E, S hemisphere
    "\360\003\220\213\2024\354\034\015,|\311\010\236\0" // Indonesia - 114°E to 120°E, S hemisphere onshore
    "\360\003\220\213\2027\354\034\015\356\0" // Indonesia - 117°E to 120°E onshore
    "\360\003\220\2131\034\35423\015\356\0" // Indonesia - 120°E to 123°E onshore
    "\360\003\220\2131\034\35426\015\277N\311e\0" // Indonesia - 120°E to 126°E, N hemisphere
    "\360\003\220\2131\034\35426\015\277N\311\010\236\0" // Indonesia - 120°E to 126°E, N hemisphere onshore
    "\360\003\220\2131\034\35426\015,|\311e\0" // Indonesia - 120°E to 126°E, S hemisphere
    "\360\003\220\2131\034\35426\015,|\311\010\236\0" // Indonesia - 120°E to 126°E, S hemisphere onshore
    "\360\003\220\213123\35426\015\356\0" // Indonesia - 123°E to 126°E onshore
    "\360\003\220\213126\35429\015\356\0" // Indonesia - 126°E to 129°E onshore
    "\360\003\220\213126\35432\015\277N\311e\0" // Indonesia - 126°E to 132°E, N hemisphere
    "\360\003\220\213126\35432\015\277N\311\010\236\0" // Indonesia - 126°E to 132°E, N hemisphere onshore
    "\360\003\220\213126\35432\015,|\311e\0" // Indonesia - 126°E to 132°E, S hemisphere
    "\360\003\220\213126\35432\015,|\311\010\236\0" // Indonesia - 126°E to 132°E, S hemisphere onshore
    "\360\003\220\213129\35432\015\356\0" // Indonesia - 129°E to 132°E onshore
    "\360\003\220\213132\35435\015\356\0" // Indonesia - 132°E to 135°E onshore
    "\360\003\220\213132\35438\015\277N\311e\0" // Indonesia - 132°E to 138°E, N hemisphere
    "\360\003\220\213132\35438\015,|\311e\0" // Indonesia - 132°E to 138°E, S hemisphere
    "\360\003\220\213132\35438\015,|\311\010\236\0" // Indonesia - 132°E to 138°E, S hemisphere onshore
    "\360\003\220\213135\35438\015\356\0" // Indonesia - 135°E to 138°E onshore
    "\360\003\220\21396\200\3122\015\277N\311e\0" // Indonesia - 96°E to 102°E, N hemisphere
    "\360\003\220\21396\200\3122\015\277N\311\010\236\0" // Indonesia - 96°E to 102°E, N hemisphere onshore
    "\360\003\220\21396\200\3122\015,|\311e\0" // Indonesia - 96°E to 102°E, S hemisphere
    "\360\003\220\21396\200\3122\015,|\311\010\236\0" // Indonesia - 96°E to 102°E, S hemisphere onshore
    "\360\003\220\21396\20099\015\356\0" // Indonesia - 96°E to 99°E onshore
    "\360\003\220\21399\200\3122\015\356\0" // Indonesia - 99°E to 102°E onshore
    "\360\003\220\213B\025i|e\027we\020\0" // Indonesia - Bali Sea west
    "\360\003\220\213B\025i\277Jav\027\253we\020\007n|um=r\027\236\0" // Indonesia - Bali, Java and western Sumatra onshore
    "\360\003\220\213B\005g\027& B\242\245ung \335s\0" // Indonesia - Banga & Belitung Islands
    "\360\003\220\213Jav\027Se\030\214f~\010n\006\024w\267Java\0" // Indonesia - Java Sea - offshore northwest Java
    "\360\003\220\213Jav\027\253Jav\027Se\030\3128\200\2024\015\0" // Indonesia - Java and Java Sea - 108°E to 114°E
    "\360\003\220\213Jav\027\253Jav\027Se\030e\314\243\2024\015\0" // Indonesia - Java and Java Sea - east of 114°E
    "\360\003\220\213Jav\027\253Jav\027Se\030w\267\243\3128\015\0" // Indonesia - Java and Java Sea - west of 108°E
    "\360\003\220\213Java\277Jav\027Se\027\253we\020\007n|um=\350\0" // Indonesia - Java, Java Sea and western Sumatra
    "\360\003\220\213K\025im\005t\005\0" // Indonesia - Kalimantan
    "\360\003\220\213K\025im\005t\005\002M\361ak\225 d\242ta\0" // Indonesia - Kalimantan - Mahakam delta
    "\360\003\220\213K\025im\005t\005 E\0" // Indonesia - Kalimantan E
    "\360\003\220\213K\025im\005t\005|E\0" // Indonesia - Kalimantan SE
    "\360\003\220\213K\025im\005t\005 W\002coa\020\025\0" // Indonesia - Kalimantan W - coastal
    "\360\003\220\213Sulaw\220i|W\0" // Indonesia - Sulawesi SW
    "\360\003\220\213Sum=\350\0" // Indonesia - Sumatra
    "\360\003\220\213W\267Papu\030T\005gguh\0" // Indonesia - West Papua - Tangguh
    "\360\003\220\213e\314\243138\015\356\0" // Indonesia - east of 138°E onshore
    "\360\003\220\213e\314\243138\015,|\311e\0" // Indonesia - east of 138°E, S hemisphere
    "\360\003\220\213n\006\024e\314K\025im\005t\005\0" // Indonesia - northeast Kalimantan
    "\360\003\220\213\236\0" // Indonesia - onshore
    "\360\003\220\213w\267\24396\015\356\0" // Indonesia - west of 96°E onshore
    "\360\003\220\213w\267\24396\015\277N\311e\0" // Indonesia - west of 96°E, N hemisphere
    "\360\003\220\213w\267\24396\015,|\311e\0" // Indonesia - west of 96°E, S hemisphere
    "\360\003\220\336\0" // Indonesian
    "\360\003\220\336 D=um\31774\0" // Indonesian Datum 1974
    "\360\003\220\336 Geod\036# D=um\31795\0" // Indonesian Geodetic Datum 1995
    "\360\003\220\336 Geosp=i\230Ref\007\207c\010Sy\020\212 \03413\0" // Indonesian Geospatial Reference System 2013
    "\360\003\220\336\21174\0" // Indonesian_1974
    "\360\003\220\336\21174_U\254_Z\003\215\0" // Indonesian_1974_UTM_Zone_
    "\310\340\257\256Gua\023i\256\2278\0" // Inirida_Guainia_2008
    "\310\020\245ut Geog\350\237iqu\010du\327\003g\013B\242g\010\03155\0" // Institut Geographique du Congo Belge 1955
    "\310\020\245ut_Geog\350\237iqu\215du\377\003go_B\242ge\21155\0" // Institut_Geographique_du_Congo_Belge_1955
    "I\035\007n=\320\230\03124\0" // International 1924
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03188\0" // International Terrestrial Reference Frame 1988
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03189\0" // International Terrestrial Reference Frame 1989
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03190\0" // International Terrestrial Reference Frame 1990
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03191\0" // International Terrestrial Reference Frame 1991
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03192\0" // International Terrestrial Reference Frame 1992
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03193\0" // International Terrestrial Reference Frame 1993
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03194\0" // International Terrestrial Reference Frame 1994
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03196\0" // International Terrestrial Reference Frame 1996
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03197\0" // International Terrestrial Reference Frame 1997
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\2270\0" // International Terrestrial Reference Frame 2000
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\2275\0" // International Terrestrial Reference Frame 2005
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\2278\0" // International Terrestrial Reference Frame 2008
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03414\0" // International Terrestrial Reference Frame 2014
    "I\035\007n=\320\230T\007>\375i\230Ref\007\207c\010Fr\225\010\03420\0" // International Terrestrial Reference Frame 2020
    "I\035\007n=\320\025\21124\0" // International_1924
    "I\035\007n=\320\025_T\007>\375i\025_Ref\007\207ce`r\225\215\03414\0" // International_Terrestrial_Reference_Frame_2014
    "Iow\027\134\306 \324$e\0" // Iowa CS27 North zone
    "Iow\027\134\306|\250$e\0" // Iowa CS27 South zone
    "Iow\027\265\320\230^1|p\207c\007\0" // Iowa regional zone 1 Spencer
    "Iow\027\265\320\230^\312\327\275\037 Rap\257s\0" // Iowa regional zone 10 Cedar Rapids
    "Iow\027\265\320\230^\202 Dubuque-Dav\207p\006t\0" // Iowa regional zone 11 Dubuque-Davenport
    "Iow\027\265\320\230^12 R\275 Oak-Ottumwa\0" // Iowa regional zone 12 Red Oak-Ottumwa
    "Iow\027\265\320\230^13 Fa\340fi\242d\0" // Iowa regional zone 13 Fairfield
    "Iow\027\265\320\230^14 B\224l\023gt\003\0" // Iowa regional zone 14 Burlington
    "Iow\027\265\320\230^2 M}\231C\245y\0" // Iowa regional zone 2 Mason City
    "Iow\027\265\320\230^3 Elk\226\007\0" // Iowa regional zone 3 Elkader
    "Iow\027\265\320\230^4|i\026x\327\245y-Iow\027F\025ls\0" // Iowa regional zone 4 Sioux City-Iowa Falls
    "Iow\027\265\320\230^5 W=\007loo\0" // Iowa regional zone 5 Waterloo
    "Iow\027\265\320\230^6\327\026nc\341 Bluffs\0" // Iowa regional zone 6 Council Bluffs
    "Iow\027\265\320\230^7\327\037r\246l-Atl\005t#\0" // Iowa regional zone 7 Carroll-Atlantic
    "Iow\027\265\320\230^8 Am\220-D\220 Mo\023\220\0" // Iowa regional zone 8 Ames-Des Moines
    "Iow\027\265\320\230^9 \357t\003\0" // Iowa regional zone 9 Newton
    "Iow\256C\026\035y\372\0" // Iowa_County_Feet
    "Iow\256C\026\035y_M\313\0" // Iowa_County_Meters
    "Iowa\372\0" // Iowa_Feet
    "Iow\256M\313\0" // Iowa_Meters
    "Iow\256\373\2721401\0" // Iowa_North_FIPS_1401
    "Iow\256\373\2721401\372\0" // Iowa_North_FIPS_1401_Feet
    "Iow\256\373\2721401`t_\203\0" // Iowa_North_FIPS_1401_Ft_US
    "Iow\256S\365\2721402\0" // Iowa_South_FIPS_1402
    "Iow\256S\365\2721402\372\0" // Iowa_South_FIPS_1402_Feet
    "Iow\256S\365\2721402`t_\203\0" // Iowa_South_FIPS_1402_Ft_US
    "Ir\005\00248\20054\015\0" // Iran - 48°E to 54°E
    "Ir\005\00254\20060\015\0" // Iran - 54°E to 60°E
    "Ir\005\002FD58\0" // Iran - FD58
    "Ir\005\002K\005g\005 di\375#t\0" // Iran - Kangan district
    "Ir\005\002Kh\037g \335\0" // Iran - Kharg Island
    "Ir\005\002Lav\005 \335\374B\025\230fi\242d\0" // Iran - Lavan Island and Balal field
    "Ir\005\002\370P\037s block 11\0" // Iran - South Pars block 11
    "Ir\005\002\370P\037s blocks 2\3743\0" // Iran - South Pars blocks 2 and 3
    "Ir\005\002T\361\007i >f\023\007y\0" // Iran - Taheri refinery
    "Ir\005\002T\343bak LNG pl\005t\0" // Iran - Tombak LNG plant
    "Ir\005\002e\314\24360\015\356\0" // Iran - east of 60°E onshore
    "Ir\005\002w\267\24348\015\0" // Iran - west of 48°E
    "I\350q\00242\20048\015\0" // Iraq - 42°E to 48°E
    "I\350q\002B}r\027\037ea\0" // Iraq - Basra area
    "I\350q\002e\314\24348\015\0" // Iraq - east of 48°E
    "I\350q\002e\314\24348\015\356\0" // Iraq - east of 48°E onshore
    "I\350q\002\236\0" // Iraq - onshore
    "I\350q\002w\267\24342\015\0" // Iraq - west of 42°E
    "I\350q-Kuwa\245 B\026nd\037\204D=um \03192\0" // Iraq-Kuwait Boundary Datum 1992
    "I\350q_Kuwa\245_B\026nd\037y_\03192\0" // Iraq_Kuwait_Boundary_1992
    "I\350qi Geosp=i\230Ref\007\207c\010Sy\020\212\0" // Iraqi Geospatial Reference System
    "I\350qi_Geosp=i\025_Ref\007\207c\215Sy\020\212\0" // Iraqi_Geospatial_Reference_System
    "I>\206\002C\006rib\374Errig\025\0" // Ireland - Corrib and Errigal
    "Ir\003\377\026\035y\372\0" // Iron_County_Feet
    "Ir\003\377\026\035y_M\313\0" // Iron_County_Meters
    "Ir\003\372\0" // Iron_Feet
    "Ir\003_M\313\0" // Iron_Meters
    "\335 \243Pr\023cip\010d=um\0" // Island of Principe datum
    "\335 \214|a\013T\343\010d=um\0" // Island of Sao Tome datum
    "\335s N\036 \03193\0" // Islands Net 1993
    "\335s N\036 \2274\0" // Islands Net 2004
    "\335s N\036 \03416\0" // Islands Net 2016
    "\335s_N\036_\03416\0" // Islands_Net_2016
    "\335s_N\036w\006k_\03193\0" // Islands_Network_1993
    "\335s_N\036w\006k_\2274\0" // Islands_Network_2004
    "\316\350\242\0" // Israel
    "\316\350\242 \03193\0" // Israel 1993
    "\316\350\242\31793\012\316\350\242i \254 Gr\257\0" // Israel 1993 / Israeli TM Grid
    "\316\350\242_Geod\036#_D=um_\2275\0" // Israel_Geodetic_Datum_2005
    "\316\350\242_\254_Gr\257\0" // Israel_TM_Grid
    "\316\350\242i \134\0" // Israeli CS
    "\316\350\242i Geod\036# D=um \2275\0" // Israeli Geodetic Datum 2005
    "\316\350\242i Geod\036# D=um \2275(\03412)\0" // Israeli Geodetic Datum 2005(2012)
    "\316\350\242i Gr\257 05\0" // Israeli Grid 05
    "\316\350\242i Gr\257 05/12\0" // Israeli Grid 05/12
    "\316\350\242i \357 Gr\257\0" // Israeli New Grid
    "\316\350\242i \254\0" // Israeli TM
    "\316\350\242i_Geod\036#_D=um_\2275(\03412)\0" // Israeli_Geodetic_Datum_2005(2012)
    "\316\350\242i_Gr\257_05\0" // Israeli_Grid_05
    "\316\350\242i_Gr\257_05-12\0" // Israeli_Grid_05-12
    "I\020\245ut\013Geog\350f#\013M\341\245a\340\010\03195\0" // Istituto Geografico Militaire 1995
    "It\025ia\0" // Italia
    "It\025y\0" // Italy
    "It\025y\00212\3548\015\0" // Italy - 12°E to 18°E
    "It\025y\0026\00422'E\02218\00440'E\374n\006@\24335\00416'N;|\005 M\037\023o\277V=#\005\327\245y|t=e\0" // Italy - 6°22'E to 18°40'E and north of 35°16'N; San Marino, Vatican City State
    "It\025y\002Adri=#\002\324Anc\003a\0" // Italy - Adriatic - North Ancona
    "It\025y\002Adri=#\002\370Anc\003a\012\324G\037g\005o\0" // Italy - Adriatic - South Ancona / North Gargano
    "It\025y\002Adri=#\002\370G\037g\005o\0" // Italy - Adriatic - South Gargano
    "It\025y\002Em\341ia-R\343agna\0" // Italy - Emilia-Romagna
    "It\025y\002Otr\005t\013ch\005n\242\0" // Italy - Otranto channel
    "It\025y\002S\037d\023\315\236\0" // Italy - Sardinia onshore
    "It\025y\002S#\341y|t\350\245 e\314\24313\015\0" // Italy - Sicily Strait east of 13°E
    "It\025y\002S#\341y|t\350\245 w\267\24313\015\0" // Italy - Sicily Strait west of 13°E
    "It\025y\002S#\341\204\236\0" // Italy - Sicily onshore
    "It\025y\002e\314\24312\015\0" // Italy - east of 12°E
    "It\025y\002e\314\24318\015\0" // Italy - east of 18°E
    "It\025y\002\023clud\023g|\005 M\037\023\013\253V=#\005\0" // Italy - including San Marino and Vatican
    "It\025y\002ma\023\206\0" // Italy - mainland
    "It\025y\002n\006@I\003\336|ea\0" // Italy - north Ionian Sea
    "It\025y\002w\267\24312\015\0" // Italy - west of 12°E
    "It\025\204$e\0" // Italy zone
    "It\025\204^12\0" // Italy zone 12
    "It\025y_$e\0" // Italy_zone
    "It\025y_$\215(E-N)\0" // Italy_zone_(E-N)
    "Iw\013Jim\027\03145\0" // Iwo Jima 1945
    "J\016\2271\0" // JAD2001
    "J\016\2271\012J\225a#\027M\036r# Gr\257\0" // JAD2001 / Jamaica Metric Grid
    "J\016\2271\012U\254\27317N\0" // JAD2001 / UTM zone 17N
    "J\016\2271\012U\254\27318N\0" // JAD2001 / UTM zone 18N
    "J\01669\0" // JAD69
    "J\01669\012J\225a#\027N=\320\230Gr\257\0" // JAD69 / Jamaica National Grid
    "J\016_\2271\0" // JAD_2001
    "J\016_\2271_J\225a#\256Gr\257\0" // JAD_2001_Jamaica_Grid
    "J\016_\2271_U\254_Z\003\21517N\0" // JAD_2001_UTM_Zone_17N
    "J\016_\2271_U\254_Z\003\21518N\0" // JAD_2001_UTM_Zone_18N
    "JAXA|now Dep@\247 \373\0" // JAXA Snow Depth PS North
    "JAXA|now Dep@P\246\037|t\007eog\350\237# \373\0" // JAXA Snow Depth Polar Stereographic North
    "JAXA_Snow_Dep\024_P\246\037_St\007eog\350\237#_\373\0" // JAXA_Snow_Depth_Polar_Stereographic_North
    "JGD\2270\0" // JGD2000
    "JGD\2270\002L=L\003\0" // JGD2000 - LatLon
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 I\0" // JGD2000 / Japan Plane Rectangular CS I
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 II\0" // JGD2000 / Japan Plane Rectangular CS II
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 III\0" // JGD2000 / Japan Plane Rectangular CS III
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 IV\0" // JGD2000 / Japan Plane Rectangular CS IV
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 IX\0" // JGD2000 / Japan Plane Rectangular CS IX
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 V\0" // JGD2000 / Japan Plane Rectangular CS V
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VI\0" // JGD2000 / Japan Plane Rectangular CS VI
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VII\0" // JGD2000 / Japan Plane Rectangular CS VII
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VIII\0" // JGD2000 / Japan Plane Rectangular CS VIII
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 X\0" // JGD2000 / Japan Plane Rectangular CS X
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XI\0" // JGD2000 / Japan Plane Rectangular CS XI
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XII\0" // JGD2000 / Japan Plane Rectangular CS XII
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIII\0" // JGD2000 / Japan Plane Rectangular CS XIII
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIV\0" // JGD2000 / Japan Plane Rectangular CS XIV
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIX\0" // JGD2000 / Japan Plane Rectangular CS XIX
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XV\0" // JGD2000 / Japan Plane Rectangular CS XV
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVI\0" // JGD2000 / Japan Plane Rectangular CS XVI
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVII\0" // JGD2000 / Japan Plane Rectangular CS XVII
    "JGD\2270\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVIII\0" // JGD2000 / Japan Plane Rectangular CS XVIII
    "JGD\2270\012U\254\27351N\0" // JGD2000 / UTM zone 51N
    "JGD\2270\012U\254\27352N\0" // JGD2000 / UTM zone 52N
    "JGD\2270\012U\254\27353N\0" // JGD2000 / UTM zone 53N
    "JGD\2270\012U\254\27354N\0" // JGD2000 / UTM zone 54N
    "JGD\2270\012U\254\27355N\0" // JGD2000 / UTM zone 55N
    "JGD\03411\0" // JGD2011
    "JGD\240\002L=L\003\0" // JGD2011 - LatLon
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 I\0" // JGD2011 / Japan Plane Rectangular CS I
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 II\0" // JGD2011 / Japan Plane Rectangular CS II
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 III\0" // JGD2011 / Japan Plane Rectangular CS III
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 IV\0" // JGD2011 / Japan Plane Rectangular CS IV
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 IX\0" // JGD2011 / Japan Plane Rectangular CS IX
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 V\0" // JGD2011 / Japan Plane Rectangular CS V
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VI\0" // JGD2011 / Japan Plane Rectangular CS VI
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VII\0" // JGD2011 / Japan Plane Rectangular CS VII
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VIII\0" // JGD2011 / Japan Plane Rectangular CS VIII
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 X\0" // JGD2011 / Japan Plane Rectangular CS X
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XI\0" // JGD2011 / Japan Plane Rectangular CS XI
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XII\0" // JGD2011 / Japan Plane Rectangular CS XII
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIII\0" // JGD2011 / Japan Plane Rectangular CS XIII
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIV\0" // JGD2011 / Japan Plane Rectangular CS XIV
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIX\0" // JGD2011 / Japan Plane Rectangular CS XIX
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XV\0" // JGD2011 / Japan Plane Rectangular CS XV
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVI\0" // JGD2011 / Japan Plane Rectangular CS XVI
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVII\0" // JGD2011 / Japan Plane Rectangular CS XVII
    "JGD\240\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVIII\0" // JGD2011 / Japan Plane Rectangular CS XVIII
    "JGD\240\012U\254\27351N\0" // JGD2011 / UTM zone 51N
    "JGD\240\012U\254\27352N\0" // JGD2011 / UTM zone 52N
    "JGD\240\012U\254\27353N\0" // JGD2011 / UTM zone 53N
    "JGD\240\012U\254\27354N\0" // JGD2011 / UTM zone 54N
    "JGD\240\012U\254\27355N\0" // JGD2011 / UTM zone 55N
    "JGD_\2270\0" // JGD_2000
    "JGD_\2270_Jap\005_Z\003\215\0" // JGD_2000_Japan_Zone_
    "JGD_\2270_U\254_Z\003\215\0" // JGD_2000_UTM_Zone_
    "JGD_\03411\0" // JGD_2011
    "JGD_\240_Jap\005_Z\003\215\0" // JGD_2011_Japan_Zone_
    "JGD_\240_U\254_Z\003\215\0" // JGD_2011_UTM_Zone_
    "Jacks\003_(ft\203)\0" // Jackson_(ftUS)
    "Jacks\003_(m)\0" // Jackson_(m)
    "Jacks\003\377\026\035y\372\0" // Jackson_County_Feet
    "Jacks\003\377\026\035y_M\313\0" // Jackson_County_Meters
    "Jacks\003\372\0" // Jackson_Feet
    "Jacks\003_M\313\0" // Jackson_Meters
    "Jacks\003s_Bay\377\340cu\245\0" // Jacksons_Bay_Circuit
    "J\225a#a\0" // Jamaica
    "J\225a\345e\314\24378!\0" // Jamaica - east of 78°W
    "J\225a\345\236\0" // Jamaica - onshore
    "J\225a\345w\267\24378!\0" // Jamaica - west of 78°W
    "J\225a#\0271875\0" // Jamaica 1875
    "J\225a#\0271875\012J\225a#\027(O\321 Gr\257)\0" // Jamaica 1875 / Jamaica (Old Grid)
    "J\225a#\027\03169\0" // Jamaica 1969
    "J\225a#\027\2271\0" // Jamaica 2001
    "J\225a#\027M\036r# Gr\257 \2271\0" // Jamaica Metric Grid 2001
    "J\225a#\2561875\0" // Jamaica_1875
    "J\225a#\2561875_O\321_Gr\257\0" // Jamaica_1875_Old_Grid
    "J\225a#a\21169\0" // Jamaica_1969
    "J\225a#\256\2271\0" // Jamaica_2001
    "J\225mu\374Ka<m\340 \333F LCC\0" // Jammu and Kashmir NSF LCC
    "J\225mu_\033_Ka<m\340\0" // Jammu_and_Kashmir
    "J\005 May\207\002\236\0" // Jan Mayen - onshore
    "Jap\005\0" // Japan
    "Jap\005\0021\034\35426\015\0" // Japan - 120°E to 126°E
    "Jap\005\0021\034\35426\015\356\0" // Japan - 120°E to 126°E onshore
    "Jap\005\002126\35432\015\0" // Japan - 126°E to 132°E
    "Jap\005\002126\35432\015\356\0" // Japan - 126°E to 132°E onshore
    "Jap\005\002132\35438\015\0" // Japan - 132°E to 138°E
    "Jap\005\002132\35438\015\356\0" // Japan - 132°E to 138°E onshore
    "Jap\005\002138\35444\015\0" // Japan - 138°E to 144°E
    "Jap\005\002138\35444\015\356\0" // Japan - 138°E to 144°E onshore
    "Jap\005\002144\35450\015\0" // Japan - 144°E to 150°E
    "Jap\005\002144\35450\015\356\0" // Japan - 144°E to 150°E onshore
    "Jap\005\00245\004\034'N\02246\004N; 141\35442\015\0" // Japan - 45°20'N to 46°N; 141°E to 142°E
    "Jap\005\002Iw\013Jima\0" // Japan - Iwo Jima
    "Jap\005\002M\023\225\245\006i-<im\027(M\037c\351 \335)\002\236\0" // Japan - Minamitori-shima (Marcus Island) - onshore
    "Jap\005\002Ok\023awa\0" // Japan - Okinawa
    "Jap\005\002n\006\024\007n H\003<u\0" // Japan - northern Honshu
    "Jap\005\002\236\0" // Japan - onshore
    "Jap\005\002\210\010ma\023\206\374\226jace\035 \077\206s\0" // Japan - onshore mainland and adjacent islands
    "Jap\005\002^I\0" // Japan - zone I
    "Jap\005\002^II\0" // Japan - zone II
    "Jap\005\002^III\0" // Japan - zone III
    "Jap\005\002^IV\0" // Japan - zone IV
    "Jap\005\002^IX\0" // Japan - zone IX
    "Jap\005\002^V\0" // Japan - zone V
    "Jap\005\002^VI\0" // Japan - zone VI
    "Jap\005\002^VII\0" // Japan - zone VII
    "Jap\005\002^VIII\0" // Japan - zone VIII
    "Jap\005\002^X\0" // Japan - zone X
    "Jap\005\002^XI\0" // Japan - zone XI
    "Jap\005\002^XII\0" // Japan - zone XII
    "Jap\005\002^XIII\0" // Japan - zone XIII
    "Jap\005\002^XIV\0" // Japan - zone XIV
    "Jap\005\002^XV\0" // Japan - zone XV
    "Jap\005\002^XVI\0" // Japan - zone XVI
    "Jap\005\002^XVII\0" // Japan - zone XVII
    "Jap\005\002^XVIII\0" // Japan - zone XVIII
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273I\0" // Japan Plane Rectangular CS zone I
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273II\0" // Japan Plane Rectangular CS zone II
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273III\0" // Japan Plane Rectangular CS zone III
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273IV\0" // Japan Plane Rectangular CS zone IV
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273IX\0" // Japan Plane Rectangular CS zone IX
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273V\0" // Japan Plane Rectangular CS zone V
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273VI\0" // Japan Plane Rectangular CS zone VI
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273VII\0" // Japan Plane Rectangular CS zone VII
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273VIII\0" // Japan Plane Rectangular CS zone VIII
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273X\0" // Japan Plane Rectangular CS zone X
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XI\0" // Japan Plane Rectangular CS zone XI
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XII\0" // Japan Plane Rectangular CS zone XII
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XIII\0" // Japan Plane Rectangular CS zone XIII
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XIV\0" // Japan Plane Rectangular CS zone XIV
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XIX\0" // Japan Plane Rectangular CS zone XIX
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XV\0" // Japan Plane Rectangular CS zone XV
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XVI\0" // Japan Plane Rectangular CS zone XVI
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XVII\0" // Japan Plane Rectangular CS zone XVII
    "Jap\005 Pl\005\010Re\322\005gul\037 \134\273XVIII\0" // Japan Plane Rectangular CS zone XVIII
    "Jap\005 exclud\023g n\006\024\007n ma\023 prov\023ce\0" // Japan excluding northern main province
    "Jap\005 \210\010exclud\023g n\006\024\007n ma\023 prov\023ce\0" // Japan onshore excluding northern main province
    "Jap\005\220\010Geod\036# D=um \2270\0" // Japanese Geodetic Datum 2000
    "Jap\005\220\010Geod\036# D=um \03411\0" // Japanese Geodetic Datum 2011
    "J\037\023g K\003tr\246 Geod\220i\201JKG)\0" // Jaring Kontrol Geodesi (JKG)
    "J}p\007-P\006t\007_(ft\203)\0" // Jasper-Porter_(ftUS)
    "J}p\007-P\006t\007_(m)\0" // Jasper-Porter_(m)
    "Jay_(ft\203)\0" // Jay_(ftUS)
    "Jay_(m)\0" // Jay_(m)
    "Jeff\232\003_(ft\203)\0" // Jefferson_(ftUS)
    "Jeff\232\003_(m)\0" // Jefferson_(m)
    "J\207n\023gs_(ft\203)\0" // Jennings_(ftUS)
    "J\207n\023gs_(m)\0" // Jennings_(m)
    "J\232ey\2722900\372\0" // Jersey_FIPS_2900_Feet
    "J\232ey_Tr\005sv\232\215M\007c=\006\0" // Jersey_Transverse_Mercator
    "Jh\037kh\253\333F LCC\0" // Jharkhand NSF LCC
    "Johns\003-M\037\320_(ft\203)\0" // Johnson-Marion_(ftUS)
    "Johns\003-M\037\320_(m)\0" // Johnson-Marion_(m)
    "John\020\231At\246l\31761\0" // Johnston Atoll 1961
    "John\020\231\335\0" // Johnston Island
    "John\020\231\335\31761\0" // Johnston Island 1961
    "John\020\003_\335\21161\0" // Johnston_Island_1961
    "Joh\006\327}s\023i Gr\257\0" // Johor Cassini Grid
    "J\006d\005\0" // Jordan
    "J\006d\005 Tr\005sv\232\010M\007c=\006\0" // Jordan Transverse Mercator
    "J\006d\005_\254\0" // Jordan_TM
    "J\026ik\31761\0" // Jouik 1961
    "J\026ik\21161\0" // Jouik_1961
    "J\224i\207\327oa\020\230Gr\257\0" // Jurien Coastal Grid
    "K0\31749\0" // K0 1949
    "K0\31749\012U\254\27342S\0" // K0 1949 / UTM zone 42S
    "KKJ\0" // KKJ
    "KKJ\012F\023\206 Unif\006m\327o\006d\023=\010Sy\020\212\0" // KKJ / Finland Uniform Coordinate System
    "KKJ\012F\023\206\2730\0" // KKJ / Finland zone 0
    "KKJ\012F\023\206\2731\0" // KKJ / Finland zone 1
    "KKJ\012F\023\206\2732\0" // KKJ / Finland zone 2
    "KKJ\012F\023\206\2734\0" // KKJ / Finland zone 4
    "KKJ\012F\023\206\2735\0" // KKJ / Finland zone 5
    "KKJ`\023\206_Z\003\2150\0" // KKJ_Finland_Zone_0
    "KKJ`\023\206_Z\003\2155\0" // KKJ_Finland_Zone_5
    "KOC\0" // KOC
    "KOC L\225b\007t\0" // KOC Lambert
    "KOC_L\225b\007t\0" // KOC_Lambert
    "KOSOV\252EF01\0" // KOSOVAREF01
    "KOSOV\252EF01\201\03412)\0" // KOSOVAREF01 (2012)
    "KOSOV\252EF01\012B\025k\005s\2737\0" // KOSOVAREF01 / Balkans zone 7
    "KOSOV\252EF01_B\025k\005s_Z\003\2157\0" // KOSOVAREF01_Balkans_Zone_7
    "KOSOV\252EF12\0" // KOSOVAREF12
    "KRGJSH-\03410\0" // KRGJSH-2010
    "KSA-GRF17\0" // KSA-GRF17
    "KSA-GRF17\002L=L\003\0" // KSA-GRF17 - LatLon
    "KSA-GRF17\012U\254\27336N\0" // KSA-GRF17 / UTM zone 36N
    "KSA-GRF17\012U\254\27337N\0" // KSA-GRF17 / UTM zone 37N
    "KSA-GRF17\012U\254\27338N\0" // KSA-GRF17 / UTM zone 38N
    "KSA-GRF17\012U\254\27339N\0" // KSA-GRF17 / UTM zone 39N
    "KSA-GRF17\012U\254\27340N\0" // KSA-GRF17 / UTM zone 40N
    "KSA-GRF17_U\254_$\215\0" // KSA-GRF17_UTM_zone_
    "KUDAMS\0" // KUDAMS
    "KUDAMS\012K\254\0" // KUDAMS / KTM
    "KUDAMS_K\254\0" // KUDAMS_KTM
    "K\025b\037ri Gr\257 \03420\0" // Kalbarri Grid 2020
    "K\025\336p\224 1880\0" // Kalianpur 1880
    "K\025\336p\224 1880\012\360\315^0\0" // Kalianpur 1880 / India zone 0
    "K\025\336p\224 1880\012\360\315^I\0" // Kalianpur 1880 / India zone I
    "K\025\336p\224 1880\012\360\315^IIIa\0" // Kalianpur 1880 / India zone IIIa
    "K\025\336p\224 1880\012\360\315^IIa\0" // Kalianpur 1880 / India zone IIa
    "K\025\336p\224 1880\012\360\315^IIb\0" // Kalianpur 1880 / India zone IIb
    "K\025\336p\224 1880\012\360\315^IVa\0" // Kalianpur 1880 / India zone IVa
    "K\025\336p\224\31737\0" // Kalianpur 1937
    "K\025\336p\224\31737\012\360\315^IIb\0" // Kalianpur 1937 / India zone IIb
    "K\025\336p\224\31737\012U\254\27345N\0" // Kalianpur 1937 / UTM zone 45N
    "K\025\336p\224\31737\012U\254\27346N\0" // Kalianpur 1937 / UTM zone 46N
    "K\025\336p\224\31762\0" // Kalianpur 1962
    "K\025\336p\224\31762\012\360\315^I\0" // Kalianpur 1962 / India zone I
    "K\025\336p\224\31762\012\360\315^IIa\0" // Kalianpur 1962 / India zone IIa
    "K\025\336p\224\31762\012U\254\27341N\0" // Kalianpur 1962 / UTM zone 41N
    "K\025\336p\224\31762\012U\254\27342N\0" // Kalianpur 1962 / UTM zone 42N
    "K\025\336p\224\31762\012U\254\27343N\0" // Kalianpur 1962 / UTM zone 43N
    "K\025\336p\224\31775\0" // Kalianpur 1975
    "K\025\336p\224\31775\012\360\315^I\0" // Kalianpur 1975 / India zone I
    "K\025\336p\224\31775\012\360\315^IIIa\0" // Kalianpur 1975 / India zone IIIa
    "K\025\336p\224\31775\012\360\315^IIa\0" // Kalianpur 1975 / India zone IIa
    "K\025\336p\224\31775\012\360\315^IIb\0" // Kalianpur 1975 / India zone IIb
    "K\025\336p\224\31775\012\360\315^IVa\0" // Kalianpur 1975 / India zone IVa
    "K\025\336p\224\31775\012U\254\27342N\0" // Kalianpur 1975 / UTM zone 42N
    "K\025\336p\224\31775\012U\254\27343N\0" // Kalianpur 1975 / UTM zone 43N
    "K\025\336p\224\31775\012U\254\27344N\0" // Kalianpur 1975 / UTM zone 44N
    "K\025\336p\224\31775\012U\254\27345N\0" // Kalianpur 1975 / UTM zone 45N
    "K\025\336p\224\31775\012U\254\27346N\0" // Kalianpur 1975 / UTM zone 46N
    "K\025\336p\224\31775\012U\254\27347N\0" // Kalianpur 1975 / UTM zone 47N
    "K\025\336p\224_\0" // Kalianpur_
    "K\025\336p\224_1880\0" // Kalianpur_1880
    "K\025\336p\224_1880_\360i\256Z\003\215\0" // Kalianpur_1880_India_Zone_
    "K\025\336p\224\21137\0" // Kalianpur_1937
    "K\025\336p\224\21162\0" // Kalianpur_1962
    "K\025\336p\224\21175\0" // Kalianpur_1975
    "K\025\336p\224\21175_\360i\256Z\003\215\0" // Kalianpur_1975_India_Zone_
    "K\025\336p\224\21175_U\254_Z\003\215\0" // Kalianpur_1975_UTM_Zone_
    "K\033aw\025a\0" // Kandawala
    "K\033aw\025a\012Sri L\005k\027Gr\257\0" // Kandawala / Sri Lanka Grid
    "K\033aw\025\256Sri_L\005k\256Gr\257\0" // Kandawala_Sri_Lanka_Grid
    "K\005s} \134\306 \324$e\0" // Kansas CS27 North zone
    "K\005s} \134\306|\250$e\0" // Kansas CS27 South zone
    "K\005s} DOT L\225b\007t\201\203|\224ve\204f\234)\0" // Kansas DOT Lambert (US Survey feet)
    "K\005s} DOT L\225b\007t\201m\313)\0" // Kansas DOT Lambert (meters)
    "K\005s} \265\320\230^1 Good\206 (ft\203)\0" // Kansas regional zone 1 Goodland (ftUS)
    "K\005s} \265\320\230^\312 Atch\077\231(ft\203)\0" // Kansas regional zone 10 Atchison (ftUS)
    "K\005s} \265\320\230^\202 K\005s}\327\245\204(ft\203)\0" // Kansas regional zone 11 Kansas City (ftUS)
    "K\005s} \265\320\230^12 Ulyss\220 (ft\203)\0" // Kansas regional zone 12 Ulysses (ftUS)
    "K\005s} \265\320\230^13 G\037d\207\327\245\204(ft\203)\0" // Kansas regional zone 13 Garden City (ftUS)
    "K\005s} \265\320\230^14 Dodg\010C\245\204(ft\203)\0" // Kansas regional zone 14 Dodge City (ftUS)
    "K\005s} \265\320\230^15 L\037n\275 (ft\203)\0" // Kansas regional zone 15 Larned (ftUS)
    "K\005s} \265\320\230^16 Pr=t (ft\203)\0" // Kansas regional zone 16 Pratt (ftUS)
    "K\005s} \265\320\230^17 W#h\245\027(ft\203)\0" // Kansas regional zone 17 Wichita (ftUS)
    "K\005s} \265\320\230^18 \325k\005s}\327\245\204(ft\203)\0" // Kansas regional zone 18 Arkansas City (ftUS)
    "K\005s} \265\320\230^\031\327\214feyv\341l\010(ft\203)\0" // Kansas regional zone 19 Coffeyville (ftUS)
    "K\005s} \265\320\230^2\327\246\355(ft\203)\0" // Kansas regional zone 2 Colby (ftUS)
    "K\005s} \265\320\230^\034 P\245tsb\224g (ft\203)\0" // Kansas regional zone 20 Pittsburg (ftUS)
    "K\005s} \265\320\230^3 Ob\007l\023 (ft\203)\0" // Kansas regional zone 3 Oberlin (ftUS)
    "K\005s} \265\320\230^4 Hays (ft\203)\0" // Kansas regional zone 4 Hays (ftUS)
    "K\005s} \265\320\230^5 G>= B\207d (ft\203)\0" // Kansas regional zone 5 Great Bend (ftUS)
    "K\005s} \265\320\230^6 B\242i\337 (ft\203)\0" // Kansas regional zone 6 Beliot (ftUS)
    "K\005s} \265\320\230^7|\025\023\027(ft\203)\0" // Kansas regional zone 7 Salina (ftUS)
    "K\005s} \265\320\230^8 M\005h=t\005 (ft\203)\0" // Kansas regional zone 8 Manhattan (ftUS)
    "K\005s} \265\320\230^9 Emp\006\315(ft\203)\0" // Kansas regional zone 9 Emporia (ftUS)
    "K\005s}_LCC\0" // Kansas_LCC
    "K\005s}_LCC_ft\203\0" // Kansas_LCC_ftUS
    "K\005s}_\373\2721501\0" // Kansas_North_FIPS_1501
    "K\005s}_\373\2721501\372\0" // Kansas_North_FIPS_1501_Feet
    "K\005s}_\373\2721501`t_\203\0" // Kansas_North_FIPS_1501_Ft_US
    "K\005s}_S\365\2721502\0" // Kansas_South_FIPS_1502
    "K\005s}_S\365\2721502\372\0" // Kansas_South_FIPS_1502_Feet
    "K\005s}_S\365\2721502`t_\203\0" // Kansas_South_FIPS_1502_Ft_US
    "K\037\225e\256C\340cu\245\0" // Karamea_Circuit
    "K\037b\025\027\03179\0" // Karbala 1979
    "K\037b\025\027\03179\201P\246s\007v#e)\0" // Karbala 1979 (Polservice)
    "K\037b\025\027\03179\012I\350q N=\320\230Gr\257\0" // Karbala 1979 / Iraq National Grid
    "K\037b\025\027\03179\012U\254\27337N\0" // Karbala 1979 / UTM zone 37N
    "K\037b\025\027\03179\012U\254\27338N\0" // Karbala 1979 / UTM zone 38N
    "K\037b\025\027\03179\012U\254\27339N\0" // Karbala 1979 / UTM zone 39N
    "K\037b\025a\21179_I\350q_N=\320\025_Gr\257\0" // Karbala_1979_Iraq_National_Grid
    "K\037b\025a\21179_P\246s\007v#e\0" // Karbala_1979_Polservice
    "K\037b\025a\21179_P\246s\007v#\215U\254_Z\003\215\0" // Karbala_1979_Polservice_UTM_Zone_
    "K\037n=ak\027\333F \254\0" // Karnataka NSF TM
    "K\037\350\024\027Gr\257 \03420\0" // Karratha Grid 2020
    "K\037ta\020oko\006d\023a=tij\037je\020\242m\027(\03166)\0" // Kartastokoordinaattijarjestelma (1966)
    "K\037ta\020oko\006d\023a=tij\303\244rje\020\242m\303\244\201\03166)\0" // Kartastokoordinaattijärjestelmä (1966)
    "K}ai\31753\0" // Kasai 1953
    "K}ai\31753\012C\003g\013\254\27322\0" // Kasai 1953 / Congo TM zone 22
    "K}ai\31753\012C\003g\013\254\27324\0" // Kasai 1953 / Congo TM zone 24
    "K}ai\21153\0" // Kasai_1953
    "K}ai\21153\377\003go_\254_Z\003\21522\0" // Kasai_1953_Congo_TM_Zone_22
    "K}ai\21153\377\003go_\254_Z\003\21524\0" // Kasai_1953_Congo_TM_Zone_24
    "K=\005g\027\03155\0" // Katanga 1955
    "K=\005g\027\03155\012K=\005g\027Ga\351s\273A\0" // Katanga 1955 / Katanga Gauss zone A
    "K=\005g\027\03155\012K=\005g\027Ga\351s\273B\0" // Katanga 1955 / Katanga Gauss zone B
    "K=\005g\027\03155\012K=\005g\027Ga\351s\273C\0" // Katanga 1955 / Katanga Gauss zone C
    "K=\005g\027\03155\012K=\005g\027Ga\351s\273D\0" // Katanga 1955 / Katanga Gauss zone D
    "K=\005g\027\03155\012K=\005g\027L\225b\007t\0" // Katanga 1955 / Katanga Lambert
    "K=\005g\027\03155\012K=\005g\027\254\0" // Katanga 1955 / Katanga TM
    "K=\005g\027L\225b\007t\327\003f\006m\025\0" // Katanga Lambert Conformal
    "K=\005g\027Tr\005sv\232\010M\007c=\006\0" // Katanga Transverse Mercator
    "K=\005ga\21155\0" // Katanga_1955
    "K=\005ga\21155_K=\005g\256\0" // Katanga_1955_Katanga_
    "Kazakh\020\005\0" // Kazakhstan
    "Kazakh\020\005\002C}p\336|ea\0" // Kazakhstan - Caspian Sea
    "K\275\361\374P\007l\077\327}s\023i Gr\257\0" // Kedah and Perlis Cassini Grid
    "K\242\005t\005\327}s\023i Gr\257\0" // Kelantan Cassini Grid
    "K\207o<\256M\341wauke\215Ozauke\215Rac\023e\372\0" // Kenosha_Milwaukee_Ozaukee_Racine_Feet
    "K\207o<\256M\341wauke\215Ozauke\215Rac\023\215M\313\0" // Kenosha_Milwaukee_Ozaukee_Racine_Meters
    "K\207o<\256M\341wauke\215Ozauke\215\033_Rac\023e\372\0" // Kenosha_Milwaukee_Ozaukee_and_Racine_Feet
    "K\207o<\256M\341wauke\215Ozauke\215\033_Rac\023\215M\313\0" // Kenosha_Milwaukee_Ozaukee_and_Racine_Meters
    "Ke\035uck\204\134\306 \324$e\0" // Kentucky CS27 North zone
    "Ke\035uck\204\134\306|\250$e\0" // Kentucky CS27 South zone
    "Ke\035uck\204\134\014 \324$e\0" // Kentucky CS83 North zone
    "Ke\035ucky\2721600\0" // Kentucky_FIPS_1600
    "Ke\035ucky\2721600\372\0" // Kentucky_FIPS_1600_Feet
    "Ke\035ucky\2721600`t_\203\0" // Kentucky_FIPS_1600_Ft_US
    "Ke\035ucky_\373\2721601\0" // Kentucky_North_FIPS_1601
    "Ke\035ucky_\373\2721601\372\0" // Kentucky_North_FIPS_1601_Feet
    "Ke\035ucky_\373\2721601`t_\203\0" // Kentucky_North_FIPS_1601_Ft_US
    "Ke\035ucky_S\365\2721602\0" // Kentucky_South_FIPS_1602
    "Ke\035ucky_S\365\2721602\372\0" // Kentucky_South_FIPS_1602_Feet
    "Ke\035ucky_S\365\2721602`t_\203\0" // Kentucky_South_FIPS_1602_Ft_US
    "K\207y\030n\006@\243equ=\006\374e\314\24336\015\0" // Kenya - north of equator and east of 36°E
    "K\207y\030\236\0" // Kenya - onshore
    "K\007\025\027\333F \254\0" // Kerala NSF TM
    "K\007gu\242\207_\335\21149\0" // Kerguelen_Island_1949
    "K\007gu\242\207_\335\21149_U\254_42S\0" // Kerguelen_Island_1949_UTM_42S
    "K\007tau\0" // Kertau
    "K\007tau\201{O)\0" // Kertau (RSO)
    "K\007tau\201{O*{O M\025ay\027(ch)\0" // Kertau (RSO) / RSO Malaya (ch)
    "K\007tau\201{O*{O M\025ay\027(m)\0" // Kertau (RSO) / RSO Malaya (m)
    "K\007tau\012R.S.O. M\025ay\027(ch)\0" // Kertau / R.S.O. Malaya (ch)
    "K\007tau\31768\0" // Kertau 1968
    "K\007tau\31768\012Joh\006 Gr\257\0" // Kertau 1968 / Johor Grid
    "K\007tau\31768\012K\275\361\374P\007l\077 Gr\257\0" // Kertau 1968 / Kedah and Perlis Grid
    "K\007tau\31768\012K\242\005t\005 Gr\257\0" // Kertau 1968 / Kelantan Grid
    "K\007tau\31768\012P\361\005g Gr\257\0" // Kertau 1968 / Pahang Grid
    "K\007tau\31768\012P\007ak Rev\077\275 Gr\257\0" // Kertau 1968 / Perak Revised Grid
    "K\007tau\31768\012P\023\005g Gr\257\0" // Kertau 1968 / Pinang Grid
    "K\007tau\31768\012S\242\005g\006 Gr\257\0" // Kertau 1968 / Selangor Grid
    "K\007tau\31768\012S\212b\341\005\374M\242ak\027Gr\257\0" // Kertau 1968 / Sembilan and Melaka Grid
    "K\007tau\31768\012S\023gap\006\010Gr\257\0" // Kertau 1968 / Singapore Grid
    "K\007tau\31768\012T\007\207gg\005u Gr\257\0" // Kertau 1968 / Terengganu Grid
    "K\007tau\31768\012U\254\27347N\0" // Kertau 1968 / UTM zone 47N
    "K\007tau\31768\012U\254\27348N\0" // Kertau 1968 / UTM zone 48N
    "K\007tau_\0" // Kertau_
    "K\007tau_{O\0" // Kertau_RSO
    "Kewaune\215M\005\245owoc_Sheboyg\005\372\0" // Kewaunee_Manitowoc_Sheboygan_Feet
    "Kewaune\215M\005\245owoc_Sheboyg\005_M\313\0" // Kewaunee_Manitowoc_Sheboygan_Meters
    "Kewaune\215M\005\245owoc_\033_Sheboyg\005\372\0" // Kewaunee_Manitowoc_and_Sheboygan_Feet
    "Kewaune\215M\005\245owoc_\033_Sheboyg\005_M\313\0" // Kewaunee_Manitowoc_and_Sheboygan_Meters
    "K\341\343\036\007\0" // Kilometer
    "K\023gd\343 \214|audi \325ab\315Geod\036# Ref\007\207c\010Fr\225\010\03417\0" // Kingdom of Saudi Arabia Geodetic Reference Frame 2017
    "K\023gd\343_\214_Saudi_\325abi\256Geod\036#_Ref\007\207ce`r\225\215\03417\0" // Kingdom_of_Saudi_Arabia_Geodetic_Reference_Frame_2017
    "K\340ib=i\002Pho\207ix \335s\0" // Kiribati - Phoenix Islands
    "Knox_(ft\203)\0" // Knox_(ftUS)
    "Knox_(m)\0" // Knox_(m)
    "K\006e\027\2270\0" // Korea 2000
    "K\006e\027\2270\012C\367\230B\242t\0" // Korea 2000 / Central Belt
    "K\006e\027\2270\012C\367\230B\242t \03410\0" // Korea 2000 / Central Belt 2010
    "K\006e\027\2270\012C\367\230B\242t Jeju\0" // Korea 2000 / Central Belt Jeju
    "K\006e\027\2270\012E\314B\242t\0" // Korea 2000 / East Belt
    "K\006e\027\2270\012E\314B\242t \03410\0" // Korea 2000 / East Belt 2010
    "K\006e\027\2270\012Ea\020|e\027B\242t\0" // Korea 2000 / East Sea Belt
    "K\006e\027\2270\012Ea\020|e\027B\242t \03410\0" // Korea 2000 / East Sea Belt 2010
    "K\006e\027\2270\012Unifi\275 \134\0" // Korea 2000 / Unified CS
    "K\006e\027\2270\012W\267B\242t\0" // Korea 2000 / West Belt
    "K\006e\027\2270\012W\267B\242t \03410\0" // Korea 2000 / West Belt 2010
    "K\006e\027C\367\230B\242t \03410\0" // Korea Central Belt 2010
    "K\006e\027C\367\230B\242t Jeju\0" // Korea Central Belt Jeju
    "K\006e\027E\314B\242t \03410\0" // Korea East Belt 2010
    "K\006e\027Ea\020|e\027B\242t \03410\0" // Korea East Sea Belt 2010
    "K\006e\027Modifi\275\327\367\230B\242t\0" // Korea Modified Central Belt
    "K\006e\027Modifi\275\327\367\230B\242t Jeju\0" // Korea Modified Central Belt Jeju
    "K\006e\027Modifi\275 E\314B\242t\0" // Korea Modified East Belt
    "K\006e\027Modifi\275 Ea\020|e\027B\242t\0" // Korea Modified East Sea Belt
    "K\006e\027Modifi\275 W\267B\242t\0" // Korea Modified West Belt
    "K\006e\027Unifi\275 B\242t\0" // Korea Unified Belt
    "K\006e\027W\267B\242t \03410\0" // Korea West Belt 2010
    "K\006ea\277Republ# \214\201\370K\006ea)\0" // Korea, Republic of (South Korea)
    "K\006ea\277Republ# \214\201\370K\006ea)\002124\35426\015\356\0" // Korea, Republic of (South Korea) - 124°E to 126°E onshore
    "K\006ea\277Republ# \214\201\370K\006ea)\002126\35428\015 Jeju\0" // Korea, Republic of (South Korea) - 126°E to 128°E Jeju
    "K\006ea\277Republ# \214\201\370K\006ea)\002126\35428\015 ma\023\206\0" // Korea, Republic of (South Korea) - 126°E to 128°E mainland
    "K\006ea\277Republ# \214\201\370K\006ea)\002126\35428\015\356\0" // Korea, Republic of (South Korea) - 126°E to 128°E onshore
    "K\006ea\277Republ# \214\201\370K\006ea)\002130\35432\015\356\0" // Korea, Republic of (South Korea) - 130°E to 132°E onshore
    "K\006ea\277Republ# \214\201\370K\006ea)\002e\314\243128\015\356\0" // Korea, Republic of (South Korea) - east of 128°E onshore
    "K\006ea\277Republ# \214\201\370K\006ea)\002\236\0" // Korea, Republic of (South Korea) - onshore
    "K\006e\256\2270\0" // Korea_2000
    "K\006e\256\2270_K\006e\256\0" // Korea_2000_Korea_
    "K\006e\256C\367\025_B\242t\0" // Korea_Central_Belt
    "K\006e\256C\367\025_B\242t_Jeju\0" // Korea_Central_Belt_Jeju
    "K\006e\256Ea\020_B\242t\0" // Korea_East_Belt
    "K\006e\256Ea\020_Se\256B\242t\0" // Korea_East_Sea_Belt
    "K\006e\256Unifi\275\377o\006d\023=\215Sy\020\212\0" // Korea_Unified_Coordinate_System
    "K\006e\256We\020_B\242t\0" // Korea_West_Belt
    "K\006e\005\31785\0" // Korean 1985
    "K\006e\005\31785\012C\367\230B\242t\0" // Korean 1985 / Central Belt
    "K\006e\005\31785\012C\367\230B\242t Jeju\0" // Korean 1985 / Central Belt Jeju
    "K\006e\005\31785\012E\314B\242t\0" // Korean 1985 / East Belt
    "K\006e\005\31785\012Ea\020|e\027B\242t\0" // Korean 1985 / East Sea Belt
    "K\006e\005\31785\012Modifi\275\327\367\230B\242t\0" // Korean 1985 / Modified Central Belt
    "K\006e\005\31785\012Modifi\275\327\367\230B\242t Jeju\0" // Korean 1985 / Modified Central Belt Jeju
    "K\006e\005\31785\012Modifi\275 E\314B\242t\0" // Korean 1985 / Modified East Belt
    "K\006e\005\31785\012Modifi\275 Ea\020|e\027B\242t\0" // Korean 1985 / Modified East Sea Belt
    "K\006e\005\31785\012Modifi\275 W\267B\242t\0" // Korean 1985 / Modified West Belt
    "K\006e\005\31785\012Unifi\275 \134\0" // Korean 1985 / Unified CS
    "K\006e\005\31785\012W\267B\242t\0" // Korean 1985 / West Belt
    "K\006e\005\31795\0" // Korean 1995
    "K\006e\005 D=um\31785\0" // Korean Datum 1985
    "K\006e\005 D=um\31795\0" // Korean Datum 1995
    "K\006e\005\21185_\0" // Korean_1985_
    "K\006e\005\21185_Modifi\275_K\006e\256\0" // Korean_1985_Modified_Korea_
    "K\006e\005_D=um\21185\0" // Korean_Datum_1985
    "K\006e\005_D=um\21195\0" // Korean_Datum_1995
    "Kosovo\0" // Kosovo
    "Kosov\013Ref\007\207c\010Sy\020\212 \2271\0" // Kosovo Reference System 2001
    "Kosovo_Ref\007\207c\215Sy\020\212_\2271\0" // Kosovo_Reference_System_2001
    "K\026ss\007i\0" // Kousseri
    "K\026ss\007i\012U\254\27333N\0" // Kousseri / UTM zone 33N
    "K\026ss\007i_U\254_Z\003\21533N\0" // Kousseri_UTM_Zone_33N
    "Kp\2270 Jyl\206 og Fyn\0" // Kp2000 Jylland og Fyn
    "Kp\2270|ja\242\206\0" // Kp2000 Sjaelland
    "Kp\2270_B\006nh\246m\0" // Kp2000_Bornholm
    "Kp\2270_Jut\206\0" // Kp2000_Jutland
    "Kp\2270_Ze\025\033\0" // Kp2000_Zealand
    "Kr}ovsky\21140\0" // Krasovsky_1940
    "Kr}sowsk\204\03140\0" // Krassowsky 1940
    "Kud\225s\022WGS 84\2011)\0" // Kudams to WGS 84 (1)
    "Kud\225s\022WGS 84\2012)\0" // Kudams to WGS 84 (2)
    "Kunun\224r\027Gr\257 \03420\0" // Kununurra Grid 2020
    "K\351ai\010\03151\0" // Kusaie 1951
    "K\351aie\21151\0" // Kusaie_1951
    "Kuwa\245\002Kuwa\245\327\245y\0" // Kuwait - Kuwait City
    "Kuwa\245\002e\314\24348\015\356\0" // Kuwait - east of 48°E onshore
    "Kuwa\245\002n\006@\24329.25\004N\0" // Kuwait - north of 29.25°N
    "Kuwa\245\002\236\0" // Kuwait - onshore
    "Kuwa\245\002s\250\24329.25\004N\0" // Kuwait - south of 29.25°N
    "Kuwa\245\002w\267\24348\015\356\0" // Kuwait - west of 48°E onshore
    "Kuwa\245 O\341\327\343p\005y\0" // Kuwait Oil Company
    "Kuwa\245 \254\0" // Kuwait TM
    "Kuwa\245 Tr\005sv\232\010M\007c=\006\0" // Kuwait Transverse Mercator
    "Kuwa\245 Ut\341\245y\0" // Kuwait Utility
    "Kuwa\245_O\341\377\343p\005y\0" // Kuwait_Oil_Company
    "Kuwa\245_Ut\341\245y\0" // Kuwait_Utility
    "Kyrg-06\0" // Kyrg-06
    "Kyrg-06\012^1\0" // Kyrg-06 / zone 1
    "Kyrg-06\012^2\0" // Kyrg-06 / zone 2
    "Kyrg-06\012^3\0" // Kyrg-06 / zone 3
    "Kyrg-06\012^4\0" // Kyrg-06 / zone 4
    "Kyrg-06\012^5\0" // Kyrg-06 / zone 5
    "Kyrg-06_\254_Z\003\215\0" // Kyrg-06_TM_Zone_
    "Kyrg06-68\0" // Kyrg06-68
    "Kyrg06-71\0" // Kyrg06-71
    "Kyrg06-74\0" // Kyrg06-74
    "Kyrg06-77\0" // Kyrg06-77
    "Kyrg06-80\0" // Kyrg06-80
    "Kyrgyz_Republ#_\2276\0" // Kyrgyz_Republic_2006
    "Kyrgyz\020\005\0" // Kyrgyzstan
    "Kyrgyz\020\005\00270\00401'E\02273\00401'E\0" // Kyrgyzstan - 70°01'E to 73°01'E
    "Kyrgyz\020\005\00273\00401'E\02276\00401'E\0" // Kyrgyzstan - 73°01'E to 76°01'E
    "Kyrgyz\020\005\00276\00401'E\02279\00401'E\0" // Kyrgyzstan - 76°01'E to 79°01'E
    "Kyrgyz\020\005\002e\314\24379\00401'E\0" // Kyrgyzstan - east of 79°01'E
    "Kyrgyz\020\005\002w\267\24370\00401'E\0" // Kyrgyzstan - west of 70°01'E
    "Kyrgyz\020\005 Geod\036# D=um \2276\0" // Kyrgyzstan Geodetic Datum 2006
    "Kyrgyz\020\005\2731\0" // Kyrgyzstan zone 1
    "Kyrgyz\020\005\2732\0" // Kyrgyzstan zone 2
    "Kyrgyz\020\005\2733\0" // Kyrgyzstan zone 3
    "Kyrgyz\020\005\2734\0" // Kyrgyzstan zone 4
    "Kyrgyz\020\005\2735\0" // Kyrgyzstan zone 5
    "LCC G\007m\005y\0" // LCC Germany
    "LCC_G\007m\005y_E-N\0" // LCC_Germany_E-N
    "LCC_G\007m\005y_N-E\0" // LCC_Germany_N-E
    "LGD\2276\0" // LGD2006
    "LGD\2276\012Liby\027\254\0" // LGD2006 / Libya TM
    "LGD\2276\012Liby\027\254\27310\0" // LGD2006 / Libya TM zone 10
    "LGD\2276\012Liby\027\254\27311\0" // LGD2006 / Libya TM zone 11
    "LGD\2276\012Liby\027\254\27312\0" // LGD2006 / Libya TM zone 12
    "LGD\2276\012Liby\027\254\27313\0" // LGD2006 / Libya TM zone 13
    "LGD\2276\012Liby\027\254\2735\0" // LGD2006 / Libya TM zone 5
    "LGD\2276\012Liby\027\254\2736\0" // LGD2006 / Libya TM zone 6
    "LGD\2276\012Liby\027\254\2737\0" // LGD2006 / Libya TM zone 7
    "LGD\2276\012Liby\027\254\2738\0" // LGD2006 / Libya TM zone 8
    "LGD\2276\012Liby\027\254\2739\0" // LGD2006 / Libya TM zone 9
    "LGD\2276\012U\254\27332N\0" // LGD2006 / UTM zone 32N
    "LGD\2276\012U\254\27333N\0" // LGD2006 / UTM zone 33N
    "LGD\2276\012U\254\27334N\0" // LGD2006 / UTM zone 34N
    "LGD\2276\012U\254\27335N\0" // LGD2006 / UTM zone 35N
    "LGD\2276_Liby\256\254\0" // LGD2006_Libya_TM
    "LGD\2276_Liby\256\254_Z\003\215\0" // LGD2006_Libya_TM_Zone_
    "LGD\2276_U\254_Z\003\215\0" // LGD2006_UTM_Zone_
    "LKS92\0" // LKS92
    "LKS92\012L=v\315\254\0" // LKS92 / Latvia TM
    "LKS94\0" // LKS94
    "LKS94\201ET{89)\0" // LKS94 (ETRS89)
    "LKS94\012Li\024u\005\315\254\0" // LKS94 / Lithuania TM
    "LKS_\03192\0" // LKS_1992
    "LKS\21192_L=vi\256\254\0" // LKS_1992_Latvia_TM
    "LKS_\03194\0" // LKS_1994
    "LKS\21194_Li\024u\005i\256\254\0" // LKS_1994_Lithuania_TM
    "LTF\2274\0" // LTF2004
    "LTF\2274(G)\0" // LTF2004(G)
    "LUREF\0" // LUREF
    "LUREF\012Lux\212b\026rg \254\0" // LUREF / Luxembourg TM
    "LUREF\012Lux\212b\026rg \254\2013D)\0" // LUREF / Luxembourg TM (3D)
    "LUREF_Lux\212b\026rg_\254\0" // LUREF_Luxembourg_TM
    "LV03M\0" // LV03M
    "L\027C\005oa\0" // La Canoa
    "L\027C\005oa\012U\254\27318N\0" // La Canoa / UTM zone 18N
    "L\027C\005oa\012U\254\27319N\0" // La Canoa / UTM zone 19N
    "L\027C\005oa\012U\254\273\034N\0" // La Canoa / UTM zone 20N
    "L\027C\005oa\022WGS84\2011)\0" // La Canoa to WGS84 (1)
    "LaCross\215C\026\035y\372\0" // LaCrosse_County_Feet
    "LaCross\215C\026\035y_M\313\0" // LaCrosse_County_Meters
    "LaGr\005ge-Nobl\215(ft\203)\0" // LaGrange-Noble_(ftUS)
    "LaGr\005ge-Nobl\215(m)\0" // LaGrange-Noble_(m)
    "LaP\006te-Pul}ki-St\037k\215(ft\203)\0" // LaPorte-Pulaski-Starke_(ftUS)
    "LaP\006te-Pul}ki-St\037k\215(m)\0" // LaPorte-Pulaski-Starke_(m)
    "L\256C\005oa\0" // La_Canoa
    "L\256C\005o\256U\254_Z\003\21518N\0" // La_Canoa_UTM_Zone_18N
    "L\256C\005o\256U\254_Z\003\21519N\0" // La_Canoa_UTM_Zone_19N
    "L\256C\005o\256U\254_Z\003\215\034N\0" // La_Canoa_UTM_Zone_20N
    "L\256Crosse\372\0" // La_Crosse_Feet
    "L\256Cross\215M\313\0" // La_Crosse_Meters
    "L\256Ros\256Gr\257\0" // La_Rosa_Grid
    "Lab\006d\010Gr\257\201G>\207w#h)\0" // Laborde Grid (Greenwich)
    "Lak\010\011M\037acaib\013Gr\257\0" // Lake / Maracaibo Grid
    "Lak\010\011M\037acaib\013Gr\257 M1\0" // Lake / Maracaibo Grid M1
    "Lak\010\011M\037acaib\013Gr\257 M3\0" // Lake / Maracaibo Grid M3
    "Lak\010\011M\037acaib\013L\027Ros\027Gr\257\0" // Lake / Maracaibo La Rosa Grid
    "Lake-\357t\003_(ft\203)\0" // Lake-Newton_(ftUS)
    "Lake-\357t\003_(m)\0" // Lake-Newton_(m)
    "Lak\215M\037acaibo_\0" // Lake_Maracaibo_
    "Lak<\226weep \333F \254\0" // Lakshadweep NSF TM
    "L\225b\007t_93\0" // Lambert_93
    "L\005c\242\023\327oa\020\230Gr\257\0" // Lancelin Coastal Grid
    "L\005gl\226\215C\026\035y\372\0" // Langlade_County_Feet
    "L\005gl\226\215C\026\035y_M\313\0" // Langlade_County_Meters
    "L\005gl\226e\372\0" // Langlade_Feet
    "L\005gl\226\215M\313\0" // Langlade_Meters
    "La\013\03193\0" // Lao 1993
    "La\013\03197\0" // Lao 1997
    "La\013N=\320\230D=um \03197\0" // Lao National Datum 1997
    "Lao_\03193\0" // Lao_1993
    "Lao_\03197\0" // Lao_1997
    "Lao_N=\320\025_D=um_\03197\0" // Lao_National_Datum_1997
    "Laos\0" // Laos
    "L=\023 Am\007\345\3122\22196!\0" // Latin America - 102°W to 96°W
    "L=\023 Am\007\345\3128\221\3122!\0" // Latin America - 108°W to 102°W
    "L=\023 Am\007\345\2024\221\3128!\0" // Latin America - 114°W to 108°W
    "L=\023 Am\007\3451\034\221\2024!\0" // Latin America - 120°W to 114°W
    "L=\023 Am\007\34578\22172!e\020; N\311\010\033|IRGAS \366\0" // Latin America - 78°W to 72°West; N hemisphere and SIRGAS by country
    "L=\023 Am\007\34584\22178!e\020; N\311\010\033|IRGAS \366\0" // Latin America - 84°W to 78°West; N hemisphere and SIRGAS by country
    "L=\023 Am\007\34590\22184!; N\311\010\033|IRGAS \2270 \366\0" // Latin America - 90°W to 84°W; N hemisphere and SIRGAS 2000 by country
    "L=\023 Am\007\34596\22190!; N\311\010\033|IRGAS \2270 \366\0" // Latin America - 96°W to 90°W; N hemisphere and SIRGAS 2000 by country
    "L=\023 Am\007\345C\367\230Am\007#\027\033|\250Am\007#a\0" // Latin America - Central America and South America
    "L=\023 Am\007\345SIRGAS \2270 \366\0" // Latin America - SIRGAS 2000 by country
    "L=via\0" // Latvia
    "L=v\213\236\0" // Latvia - onshore
    "L=v\315\03192\0" // Latvia 1992
    "L=vi\256\03192\0" // Latvia_1992
    "L=v\336 Tr\005sv\232\010M\007c=\006\0" // Latvian Transverse Mercator
    "L\010P\026c\010(Ma\224\245i\351 \0" // Le Pouce (Mauritius 
    "L\010P\026c\010\03134\0" // Le Pouce 1934
    "L\010P\026c\010\03134\012Ma\224\245i\351 Gr\257\0" // Le Pouce 1934 / Mauritius Grid
    "L\215P\026ce\21134\0" // Le_Pouce_1934
    "L\215P\026ce\21134_Ma\224\245i\351_Gr\257\0" // Le_Pouce_1934_Mauritius_Grid
    "Leb\005\003\002\236\0" // Lebanon - onshore
    "Leig\003\0" // Leigon
    "Leig\003\012Gh\005\027M\036r\010Gr\257\0" // Leigon / Ghana Metre Grid
    "L\220o\024o\0" // Lesotho
    "L\036#i\256Ama$}_\03194\0" // Leticia_Amazonas_1994
    "Lev\005t\0" // Levant
    "Lhue\035s\215\254\0" // Lhuentse_TM
    "Lib\007\213\236\0" // Liberia - onshore
    "Lib\007\315\03164\0" // Liberia 1964
    "Lib\007ia\21164\0" // Liberia_1964
    "Libya\0" // Libya
    "Liby\030\312\3542\015\356\0" // Libya - 10°E to 12°E onshore
    "Liby\03012\3544\015\356\0" // Libya - 12°E to 14°E onshore
    "Liby\03012\3548\015\0" // Libya - 12°E to 18°E
    "Liby\03012\3548\015\356\0" // Libya - 12°E to 18°E onshore
    "Liby\03014\3546\015\356\0" // Libya - 14°E to 16°E onshore
    "Liby\03016\3548\015\356\0" // Libya - 16°E to 18°E onshore
    "Liby\03018\200\034\015\356\0" // Libya - 18°E to 20°E onshore
    "Liby\03018\20024\015\0" // Libya - 18°E to 24°E
    "Liby\03018\20024\015\356\0" // Libya - 18°E to 24°E onshore
    "Liby\030\034\20022\015\356\0" // Libya - 20°E to 22°E onshore
    "Liby\03022\20024\015\356\0" // Libya - 22°E to 24°E onshore
    "Liby\030Am\025\0" // Libya - Amal
    "Liby\030Cy>na#a\0" // Libya - Cyrenaica
    "Liby\030Mabruk\0" // Libya - Mabruk
    "Liby\030M\224zuq\374En Naga\0" // Libya - Murzuq and En Naga
    "Liby\030S\340t\010NC\0312\0" // Libya - Sirte NC192
    "Liby\030e\314\24324\015\0" // Libya - east of 24°E
    "Liby\030e\314\24324\015\356\0" // Libya - east of 24°E onshore
    "Liby\030\236\0" // Libya - onshore
    "Liby\030w\267\243\312\015\0" // Libya - west of 10°E
    "Liby\030w\267\24312\015\0" // Libya - west of 12°E
    "Liby\030w\267\24312\015\356\0" // Libya - west of 12°E onshore
    "Liby\030w\267\24315\015\356\0" // Libya - west of 15°E onshore
    "Liby\005 Geod\036# D=um \2276\0" // Libyan Geodetic Datum 2006
    "Liby\005_Geod\036#_D=um_\2276\0" // Libyan_Geodetic_Datum_2006
    "Liecht\207\020e\023\0" // Liechtenstein
    "Li\036uvos Ko\006d\023aciu|i\020\212\027\03194\0" // Lietuvos Koordinaciu Sistema 1994
    "Li\036uvos Ko\006d\023oei|i\020\212\027\03194\0" // Lietuvos Koordinoei Sistema 1994
    "L\023c\246n\377\026\035y\372\0" // Lincoln_County_Feet
    "L\023c\246n\377\026\035y_M\313\0" // Lincoln_County_Meters
    "L\023c\246n\372\0" // Lincoln_Feet
    "L\023c\246n_M\313\0" // Lincoln_Meters
    "L\023d\077_Peak\377\340cu\245\0" // Lindis_Peak_Circuit
    "L\023k\0" // Link
    "L\023k_B\207o\245_1895_A\0" // Link_Benoit_1895_A
    "L\023k_B\207o\245_1895_B\0" // Link_Benoit_1895_B
    "L\023k_Cl\037ke\0" // Link_Clarke
    "L\023k_Se\037s\0" // Link_Sears
    "L\023k_Se\037s\21122_Trunc=\275\0" // Link_Sears_1922_Truncated
    "L\023k_\203\0" // Link_US
    "L\077b\003\201L\077b\003)\0" // Lisbon (Lisbon)
    "L\077b\003\201L\077b\003*P\006tugu\220\010Gr\257\0" // Lisbon (Lisbon) / Portuguese Grid
    "L\077b\003\201L\077b\003*P\006tugu\220\010N=\320\230Gr\257\0" // Lisbon (Lisbon) / Portuguese National Grid
    "L\077b\003\201L\077b\003)\022L\077b\003\201G>\207w#h)\0" // Lisbon (Lisbon) to Lisbon (Greenwich)
    "L\077b\003\012P\006tugu\220\010Gr\257 \357\0" // Lisbon / Portuguese Grid New
    "L\077b\2311890\0" // Lisbon 1890
    "L\077b\2311890\201L\077b\003)\0" // Lisbon 1890 (Lisbon)
    "L\077b\2311890\201L\077b\003*P\006tug\230B\003ne\0" // Lisbon 1890 (Lisbon) / Portugal Bonne
    "L\077b\2311890\012P\006tug\230B\003n\010\357\0" // Lisbon 1890 / Portugal Bonne New
    "L\077b\231\03137\0" // Lisbon 1937
    "L\077b\231\03137\201L\077b\003)\0" // Lisbon 1937 (Lisbon)
    "L\077b\231\03137\201L\077b\003)/P\006tugu\220\010N=\320\230Gr\257\0" // Lisbon 1937 (Lisbon)/Portuguese National Grid
    "L\077b\003\022WGS 84\2012)\0" // Lisbon to WGS 84 (2)
    "L\077b\003_1890\0" // Lisbon_1890
    "L\077b\003_1890_L\077b\003\0" // Lisbon_1890_Lisbon
    "L\077b\003_L\077b\003\0" // Lisbon_Lisbon
    "L\077b\003_L\077b\003_P\006tugu\220\215Gr\257\0" // Lisbon_Lisbon_Portuguese_Grid
    "L\077b\003_P\006tugu\220\215Gr\257_\357\0" // Lisbon_Portuguese_Grid_New
    "Li\024u\005\213\236\0" // Lithuania - onshore
    "Li\024u\005\315\03194\0" // Lithuania 1994
    "Li\024u\005\315\03194\201ET{89)\0" // Lithuania 1994 (ETRS89)
    "Li\024u\005i\256\03194\0" // Lithuania_1994
    "L\245tl\010Caym\005\31761\0" // Little Cayman 1961
    "L\245tl\010Caym\005\31761\012U\254\27317N\0" // Little Cayman 1961 / UTM zone 17N
    "L\245tl\010Caym\005 Geod\036# D=um\31761\0" // Little Cayman Geodetic Datum 1961
    "L\245tl\215Caym\005\21161\0" // Little_Cayman_1961
    "L\245tl\215Caym\005\21161_U\254_Z\003\21517N\0" // Little_Cayman_1961_UTM_Zone_17N
    "Loc\230co\006d\023=\010sy\020\212 \243Ch\007k}\204\265\320\0" // Local coordinate system of Cherkasy region
    "Loc\230co\006d\023=\010sy\020\212 \243Ch\007nihiv \265\320\0" // Local coordinate system of Chernihiv region
    "Loc\230co\006d\023=\010sy\020\212 \243Ch\007nivtsi \265\320\0" // Local coordinate system of Chernivtsi region
    "Loc\230co\006d\023=\010sy\020\212 \243Crime\027\265\320\0" // Local coordinate system of Crimea region
    "Loc\230co\006d\023=\010sy\020\212 \243Dniprop\036rovsk \265\320\0" // Local coordinate system of Dnipropetrovsk region
    "Loc\230co\006d\023=\010sy\020\212 \243D\003\036sk \265\320\0" // Local coordinate system of Donetsk region
    "Loc\230co\006d\023=\010sy\020\212 \243Iv\005o-Fr\005kivsk \265\320\0" // Local coordinate system of Ivano-Frankivsk region
    "Loc\230co\006d\023=\010sy\020\212 \243Kh\037kiv \265\320\0" // Local coordinate system of Kharkiv region
    "Loc\230co\006d\023=\010sy\020\212 \243Kh\232\231\265\320\0" // Local coordinate system of Kherson region
    "Loc\230co\006d\023=\010sy\020\212 \243K\340ovohr\226 \265\320\0" // Local coordinate system of Kirovohrad region
    "Loc\230co\006d\023=\010sy\020\212 \243Kyiv\0" // Local coordinate system of Kyiv
    "Loc\230co\006d\023=\010sy\020\212 \243Luh\005sk \265\320\0" // Local coordinate system of Luhansk region
    "Loc\230co\006d\023=\010sy\020\212 \243Lviv \265\320\0" // Local coordinate system of Lviv region
    "Loc\230co\006d\023=\010sy\020\212 \243Myk\246aiv \265\320\0" // Local coordinate system of Mykolaiv region
    "Loc\230co\006d\023=\010sy\020\212 \243Od\220s\027\265\320\0" // Local coordinate system of Odessa region
    "Loc\230co\006d\023=\010sy\020\212 \243P\246tav\027\265\320\0" // Local coordinate system of Poltava region
    "Loc\230co\006d\023=\010sy\020\212 \243Rivn\010\253Khm\242nytsk\204\265\320s\0" // Local coordinate system of Rivne and Khmelnytsky regions
    "Loc\230co\006d\023=\010sy\020\212 \214|eva\020op\246 c\245y\0" // Local coordinate system of Sevastopol city
    "Loc\230co\006d\023=\010sy\020\212 \214|um\204\265\320\0" // Local coordinate system of Sumy region
    "Loc\230co\006d\023=\010sy\020\212 \243T\007nop\341 \265\320\0" // Local coordinate system of Ternopil region
    "Loc\230co\006d\023=\010sy\020\212 \243V\023nyts\315\265\320\0" // Local coordinate system of Vinnytsia region
    "Loc\230co\006d\023=\010sy\020\212 \243V\246yn \265\320\0" // Local coordinate system of Volyn region
    "Loc\230co\006d\023=\010sy\020\212 \243Zak\037p=t\315\265\320\0" // Local coordinate system of Zakarpattia region
    "Loc\230co\006d\023=\010sy\020\212 \243Zap\006izhzh\315\265\320\0" // Local coordinate system of Zaporizhzhia region
    "Loc\230co\006d\023=\010sy\020\212 \243Zhyt\343yr \265\320\0" // Local coordinate system of Zhytomyr region
    "Locodj\013\03165\0" // Locodjo 1965
    "Locodj\013\03165\012\254 5 NW\0" // Locodjo 1965 / TM 5 NW
    "Locodj\013\03165\012U\254\27329N\0" // Locodjo 1965 / UTM zone 29N
    "Locodj\013\03165\012U\254\27330N\0" // Locodjo 1965 / UTM zone 30N
    "Locodjo\21165\0" // Locodjo_1965
    "Locodjo\21165_\254_5_NW\0" // Locodjo_1965_TM_5_NW
    "Locodjo\21165_U\254_Z\003\21529N\0" // Locodjo_1965_UTM_Zone_29N
    "Locodjo\21165_U\254_Z\003\21530N\0" // Locodjo_1965_UTM_Zone_30N
    "L\343\027Qu\023t\005a\0" // Loma Quintana
    "L\343\256Qu\023t\005a\0" // Loma_Quintana
    "L\343e\0" // Lome
    "L\343\010\011U\254\27331N\0" // Lome / UTM zone 31N
    "L\343\215U\254_Z\003\21531N\0" // Lome_UTM_Zone_31N
    "L\026\077\336\027\134\306 \324$e\0" // Louisiana CS27 North zone
    "L\026\077\336\027\134\306 Off~\010$e\0" // Louisiana CS27 Offshore zone
    "L\026\077\336\027\134\306|\250$e\0" // Louisiana CS27 South zone
    "L\026\077\336\256\373\2721701\0" // Louisiana_North_FIPS_1701
    "L\026\077\336\256\373\2721701\372\0" // Louisiana_North_FIPS_1701_Feet
    "L\026\077\336\256\373\2721701`t_\203\0" // Louisiana_North_FIPS_1701_Ft_US
    "L\026\077\336\256Off~e\2721703\0" // Louisiana_Offshore_FIPS_1703
    "L\026\077\336\256Off~e\2721703\372\0" // Louisiana_Offshore_FIPS_1703_Feet
    "L\026\077\336\256S\365\2721702\0" // Louisiana_South_FIPS_1702
    "L\026\077\336\256S\365\2721702\372\0" // Louisiana_South_FIPS_1702_Feet
    "L\026\077\336\256S\365\2721702`t_\203\0" // Louisiana_South_FIPS_1702_Ft_US
    "Lux\212b\026rg\31730\0" // Luxembourg 1930
    "Lux\212b\026rg Ref\007\207c\010Fr\225e\0" // Luxembourg Reference Frame
    "Lux\212b\026rg_Ref\007\207ce`r\225e\0" // Luxembourg_Reference_Frame
    "Lu$\31711\0" // Luzon 1911
    "Lu$\317\202\012Ph\341ipp\023\220\273I\0" // Luzon 1911 / Philippines zone I
    "Lu$\317\202\012Ph\341ipp\023\220\273II\0" // Luzon 1911 / Philippines zone II
    "Lu$\317\202\012Ph\341ipp\023\220\273III\0" // Luzon 1911 / Philippines zone III
    "Lu$\317\202\012Ph\341ipp\023\220\273IV\0" // Luzon 1911 / Philippines zone IV
    "Lu$\317\202\012Ph\341ipp\023\220\273V\0" // Luzon 1911 / Philippines zone V
    "Lu$\21111\0" // Luzon_1911
    "Ly\231T\224\023 F\007rovia\340\010\2274\0" // Lyon Turin Ferroviaire 2004
    "Ly\003_T\224\023`\007roviai>_\2274\0" // Lyon_Turin_Ferroviaire_2004
    "M'p\006\025oko\0" // M'poraloko
    "M'p\006\025oko\012U\254\27332N\0" // M'poraloko / UTM zone 32N
    "M'p\006\025oko\012U\254\27332S\0" // M'poraloko / UTM zone 32S
    "MA11\0" // MA11
    "MA\202_Gu\225_Map_Gr\257\0" // MA11_Guam_Map_Grid
    "MA\202_U\254_Z\003\21554N\0" // MA11_UTM_Zone_54N
    "MA\202_U\254_Z\003\21555N\0" // MA11_UTM_Zone_55N
    "MACAO_\2278\0" // MACAO_2008
    "MAGNA\0" // MAGNA
    "MAGNA-SIRGAS\0" // MAGNA-SIRGAS
    "MAGNA-SIRGAS\012\325auc\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Arauca urban grid
    "MAGNA-SIRGAS\012\325m\207\315\224b\005 gr\257\0" // MAGNA-SIRGAS / Armenia urban grid
    "MAGNA-SIRGAS\012B\037r\005qu\341l\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Barranquilla urban grid
    "MAGNA-SIRGAS\012Bog\337\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Bogota urban grid
    "MAGNA-SIRGAS\012Buc\037\225\005g\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Bucaramanga urban grid
    "MAGNA-SIRGAS\012C\025i \224b\005 gr\257\0" // MAGNA-SIRGAS / Cali urban grid
    "MAGNA-SIRGAS\012C\037tag\207\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Cartagena urban grid
    "MAGNA-SIRGAS\012C\246\343b\315Bog\337\027$e\0" // MAGNA-SIRGAS / Colombia Bogota zone
    "MAGNA-SIRGAS\012C\246\343b\315E\314C\367\230$e\0" // MAGNA-SIRGAS / Colombia East Central zone
    "MAGNA-SIRGAS\012C\246\343b\315E\314$e\0" // MAGNA-SIRGAS / Colombia East zone
    "MAGNA-SIRGAS\012C\246\343b\315F\037 W\267$e\0" // MAGNA-SIRGAS / Colombia Far West zone
    "MAGNA-SIRGAS\012C\246\343b\315W\267$e\0" // MAGNA-SIRGAS / Colombia West zone
    "MAGNA-SIRGAS\012Cucut\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Cucuta urban grid
    "MAGNA-SIRGAS\012Fl\006\207c\315\224b\005 gr\257\0" // MAGNA-SIRGAS / Florencia urban grid
    "MAGNA-SIRGAS\012Ibagu\010\224b\005 gr\257\0" // MAGNA-SIRGAS / Ibague urban grid
    "MAGNA-SIRGAS\012\310\340\257\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Inirida urban grid
    "MAGNA-SIRGAS\012L\036#\315\224b\005 gr\257\0" // MAGNA-SIRGAS / Leticia urban grid
    "MAGNA-SIRGAS\012M\005iz\025\220 \224b\005 gr\257\0" // MAGNA-SIRGAS / Manizales urban grid
    "MAGNA-SIRGAS\012M\275\242l\023 \224b\005 gr\257\0" // MAGNA-SIRGAS / Medellin urban grid
    "MAGNA-SIRGAS\012M\245u \224b\005 gr\257\0" // MAGNA-SIRGAS / Mitu urban grid
    "MAGNA-SIRGAS\012Moco\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Mocoa urban grid
    "MAGNA-SIRGAS\012M\003t\007\315\224b\005 gr\257\0" // MAGNA-SIRGAS / Monteria urban grid
    "MAGNA-SIRGAS\012\307iv\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Neiva urban grid
    "MAGNA-SIRGAS\012Orig\207-Nac\320\025\0" // MAGNA-SIRGAS / Origen-Nacional
    "MAGNA-SIRGAS\012Pa\020\013\224b\005 gr\257\0" // MAGNA-SIRGAS / Pasto urban grid
    "MAGNA-SIRGAS\012P\007e\340\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Pereira urban grid
    "MAGNA-SIRGAS\012Popay\005 \224b\005 gr\257\0" // MAGNA-SIRGAS / Popayan urban grid
    "MAGNA-SIRGAS\012Pu\007t\013C\037>n\013\224b\005 gr\257\0" // MAGNA-SIRGAS / Puerto Carreno urban grid
    "MAGNA-SIRGAS\012Quibd\013\224b\005 gr\257\0" // MAGNA-SIRGAS / Quibdo urban grid
    "MAGNA-SIRGAS\012Riohach\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Riohacha urban grid
    "MAGNA-SIRGAS\012S\005 And>s \224b\005 gr\257\0" // MAGNA-SIRGAS / San Andres urban grid
    "MAGNA-SIRGAS\012S\005 Jos\010d\242 Guavi\037\010\224b\005 gr\257\0" // MAGNA-SIRGAS / San Jose del Guaviare urban grid
    "MAGNA-SIRGAS\012S\005t\027M\037t\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Santa Marta urban grid
    "MAGNA-SIRGAS\012Sucr\010\224b\005 gr\257\0" // MAGNA-SIRGAS / Sucre urban grid
    "MAGNA-SIRGAS\012Tunj\027\224b\005 gr\257\0" // MAGNA-SIRGAS / Tunja urban grid
    "MAGNA-SIRGAS\012V\025l\275up\037 \224b\005 gr\257\0" // MAGNA-SIRGAS / Valledupar urban grid
    "MAGNA-SIRGAS\012V\341lav#\207ci\013\224b\005 gr\257\0" // MAGNA-SIRGAS / Villavicencio urban grid
    "MAGNA-SIRGAS\012Yop\230\224b\005 gr\257\0" // MAGNA-SIRGAS / Yopal urban grid
    "MAGNA-SIRGAS_Orig\207-Nac\320\025\0" // MAGNA-SIRGAS_Origen-Nacional
    "MAGNA_\0" // MAGNA_
    "M\252GEN\0" // MARGEN
    "M\252GEN\012U\254\27319S\0" // MARGEN / UTM zone 19S
    "M\252GEN\012U\254\273\034S\0" // MARGEN / UTM zone 20S
    "M\252GEN\012U\254\27321S\0" // MARGEN / UTM zone 21S
    "M\252GEN_U\254_Z\003\21519S\0" // MARGEN_UTM_Zone_19S
    "M\252GEN_U\254_Z\003\215\034S\0" // MARGEN_UTM_Zone_20S
    "M\252GEN_U\254_Z\003\21521S\0" // MARGEN_UTM_Zone_21S
    "M\252P00\0" // MARP00
    "MAY76V\034.gsb\0" // MAY76V20.gsb
    "MGA_$\21541\0" // MGA_zone_41
    "MGA_$\21542\0" // MGA_zone_42
    "MGA_$\21543\0" // MGA_zone_43
    "MGA_$\21544\0" // MGA_zone_44
    "MGD-\2270\0" // MGD-2000
    "MGI\0" // MGI
    "MGI\201F\007ro)\0" // MGI (Ferro)
    "MGI\201F\007ro*Au\375\315C\367\230Z\003e\0" // MGI (Ferro) / Austria Central Zone
    "MGI\201F\007ro*Au\375\315E\314Z\003e\0" // MGI (Ferro) / Austria East Zone
    "MGI\201F\007ro*Au\375\315GK\327\367\230Z\003e\0" // MGI (Ferro) / Austria GK Central Zone
    "MGI\201F\007ro*Au\375\315GK E\314Z\003e\0" // MGI (Ferro) / Austria GK East Zone
    "MGI\201F\007ro*Au\375\315GK W\267Z\003e\0" // MGI (Ferro) / Austria GK West Zone
    "MGI\201F\007ro*Au\375\315W\267Z\003e\0" // MGI (Ferro) / Austria West Zone
    "MGI\201F\007ro*Au\375\315^M28\0" // MGI (Ferro) / Austria zone M28
    "MGI\201F\007ro*Au\375\315^M31\0" // MGI (Ferro) / Austria zone M31
    "MGI\201F\007ro*Au\375\315^M34\0" // MGI (Ferro) / Austria zone M34
    "MGI\201F\007ro)\022MGI\201G>\207w#h)\0" // MGI (Ferro) to MGI (Greenwich)
    "MGI\0123-deg>\010Ga\351s\2735\0" // MGI / 3-degree Gauss zone 5
    "MGI\0123-deg>\010Ga\351s\2736\0" // MGI / 3-degree Gauss zone 6
    "MGI\0123-deg>\010Ga\351s\2737\0" // MGI / 3-degree Gauss zone 7
    "MGI\0123-deg>\010Ga\351s\2738\0" // MGI / 3-degree Gauss zone 8
    "MGI\012Au\375\315C\367\025\0" // MGI / Austria Central
    "MGI\012Au\375\315Ea\020\0" // MGI / Austria East
    "MGI\012Au\375\315GK C\367\025\0" // MGI / Austria GK Central
    "MGI\012Au\375\315GK Ea\020\0" // MGI / Austria GK East
    "MGI\012Au\375\315GK M28\0" // MGI / Austria GK M28
    "MGI\012Au\375\315GK M31\0" // MGI / Austria GK M31
    "MGI\012Au\375\315GK M34\0" // MGI / Austria GK M34
    "MGI\012Au\375\315GK We\020\0" // MGI / Austria GK West
    "MGI\012Au\375\315L\225b\007t\0" // MGI / Austria Lambert
    "MGI\012Au\375\315M28\0" // MGI / Austria M28
    "MGI\012Au\375\315M31\0" // MGI / Austria M31
    "MGI\012Au\375\315M34\0" // MGI / Austria M34
    "MGI\012Au\375\315We\020\0" // MGI / Austria West
    "MGI\012B\025k\005s\2735\0" // MGI / Balkans zone 5
    "MGI\012B\025k\005s\2736\0" // MGI / Balkans zone 6
    "MGI\012B\025k\005s\2737\0" // MGI / Balkans zone 7
    "MGI\012B\025k\005s\2738\0" // MGI / Balkans zone 8
    "MGI\012M28\0" // MGI / M28
    "MGI\012M31\0" // MGI / M31
    "MGI\012M34\0" // MGI / M34
    "MGI\012Slov\207\010N=\320\230Gr\257\0" // MGI / Slovene National Grid
    "MGI\012Slov\207\315Gr\257\0" // MGI / Slovenia Grid
    "MGI\31701\0" // MGI 1901
    "MGI\31701\012B\025k\005s\2735\0" // MGI 1901 / Balkans zone 5
    "MGI\31701\012B\025k\005s\2736\0" // MGI 1901 / Balkans zone 6
    "MGI\31701\012B\025k\005s\2737\0" // MGI 1901 / Balkans zone 7
    "MGI\31701\012B\025k\005s\2738\0" // MGI 1901 / Balkans zone 8
    "MGI\31701\012Slov\207\010N=\320\230Gr\257\0" // MGI 1901 / Slovene National Grid
    "MGI\31701\012Slov\207\315Gr\257\0" // MGI 1901 / Slovenia Grid
    "MGI\31701\022SRB-ET{89\2018)\0" // MGI 1901 to SRB-ETRS89 (8)
    "MGI\31701\022SRB-ET{89\2019)\0" // MGI 1901 to SRB-ETRS89 (9)
    "MGI\31701\022WGS 84\20112)\0" // MGI 1901 to WGS 84 (12)
    "MGI\03101_TO_SRBET{89_NTv2.gsb\0" // MGI1901_TO_SRBETRS89_NTv2.gsb
    "MGI_\0" // MGI_
    "MGI\21101\0" // MGI_1901
    "MGI\21101_B\025k\005s_\0" // MGI_1901_Balkans_
    "MGI_3_Deg>\215Ga\351s_Z\003\215\0" // MGI_3_Degree_Gauss_Zone_
    "MGI_Au\375i\256\0" // MGI_Austria_
    "MGI_F\007ro\0" // MGI_Ferro
    "MHEFO 55\0" // MHEFO 55
    "MHNC72\0" // MHNC72
    "MML07 Gr\257\0" // MML07 Grid
    "MML07 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // MML07 Intermediate Reference Frame
    "MML07-IRF\0" // MML07-IRF
    "MML07-\254\0" // MML07-TM
    "MML07_Gr\257\0" // MML07_Grid
    "MML07_I\035\007m\275i=\215Ref\007\207ce`r\225e\0" // MML07_Intermediate_Reference_Frame
    "MMN\0" // MMN
    "MMN\012\325ge\035\023\0272\0" // MMN / Argentina 2
    "MMN_\325ge\035\023\2562\0" // MMN_Argentina_2
    "MMS\0" // MMS
    "MMS\012\325ge\035\023\0272\0" // MMS / Argentina 2
    "MMS_\325ge\035\023\2562\0" // MMS_Argentina_2
    "MOLDOR\202 Gr\257\0" // MOLDOR11 Grid
    "MOLDOR\202 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // MOLDOR11 Intermediate Reference Frame
    "MOLDOR\202-IRF\0" // MOLDOR11-IRF
    "MOLDOR\202-\254\0" // MOLDOR11-TM
    "MOLDREF99\0" // MOLDREF99
    "MOLDREF99\012M\246dov\027\254\0" // MOLDREF99 / Moldova TM
    "MOLDREF99_M\246dov\256\254\0" // MOLDREF99_Moldova_TM
    "MOMRA T\007>\375i\230Ref\007\207c\010Fr\225\010\2270\0" // MOMRA Terrestrial Reference Frame 2000
    "MOMRA_T\007>\375i\025_Ref\007\207ce`r\225\215\2270\0" // MOMRA_Terrestrial_Reference_Frame_2000
    "MOP \03183\0" // MOP 1983
    "MOP78\0" // MOP78
    "MOP78\012U\254\2731S\0" // MOP78 / UTM zone 1S
    "MOP78_U\254_1S\0" // MOP78_UTM_1S
    "MRH21 Gr\257\0" // MRH21 Grid
    "MRH21 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // MRH21 Intermediate Reference Frame
    "MRH21-IRF\0" // MRH21-IRF
    "MRH21-\254\0" // MRH21-TM
    "MRT68\0" // MRT68
    "MS\134\0" // MSCS
    "MS\134\017runc=\275\0" // MSCS truncated
    "MS\134\2737\0" // MSCS zone 7
    "M\254 Nov\027Sc\337\315\03197\2734\0" // MTM Nova Scotia 1997 zone 4
    "M\254 Nov\027Sc\337\315\03197\2735\0" // MTM Nova Scotia 1997 zone 5
    "M\254 Nov\027Sc\337\315\034\312\2734\0" // MTM Nova Scotia 2010 zone 4
    "M\254 Nov\027Sc\337\315\034\312\2735\0" // MTM Nova Scotia 2010 zone 5
    "M\254 Quebec\2732\0" // MTM Quebec zone 2
    "M\254_1\0" // MTM_1
    "M\254_\312_\323oPQ\0" // MTM_10_SCoPQ
    "M\254_2\0" // MTM_2
    "M\254_2_\323oPQ\0" // MTM_2_SCoPQ
    "M\254_3\0" // MTM_3
    "M\254_3_\323oPQ\0" // MTM_3_SCoPQ
    "M\254_4\0" // MTM_4
    "M\254_4_\323oPQ\0" // MTM_4_SCoPQ
    "M\254_5\0" // MTM_5
    "M\254_5_\323oPQ\0" // MTM_5_SCoPQ
    "M\254_6\0" // MTM_6
    "M\254_6_\323oPQ\0" // MTM_6_SCoPQ
    "M\254_7_\323oPQ\0" // MTM_7_SCoPQ
    "M\254_8_\323oPQ\0" // MTM_8_SCoPQ
    "M\254_9_\323oPQ\0" // MTM_9_SCoPQ
    "MTQ_L\225b\007t\0" // MTQ_Lambert
    "MTRF-\2270\0" // MTRF-2000
    "MTRF-\2270\012U\254\27336N\0" // MTRF-2000 / UTM zone 36N
    "MTRF-\2270\012U\254\27337N\0" // MTRF-2000 / UTM zone 37N
    "MTRF-\2270\012U\254\27338N\0" // MTRF-2000 / UTM zone 38N
    "MTRF-\2270\012U\254\27339N\0" // MTRF-2000 / UTM zone 39N
    "MTRF-\2270\012U\254\27340N\0" // MTRF-2000 / UTM zone 40N
    "MTRF-\2270_U\254_$\215\0" // MTRF-2000_UTM_zone_
    "MWC18 Gr\257\0" // MWC18 Grid
    "MWC18 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // MWC18 Intermediate Reference Frame
    "MWC18-IRF\0" // MWC18-IRF
    "MWC18-\254\0" // MWC18-TM
    "Maca\013\03120\0" // Macao 1920
    "Maca\013\031\034\012Maca\013Gr\257\0" // Macao 1920 / Macao Grid
    "Maca\013\031\034 Gr\257|y\020\212\0" // Macao 1920 Grid System
    "Maca\013\2278\0" // Macao 2008
    "Maca\013Geod\036# D=um \2278\0" // Macao Geodetic Datum 2008
    "Macao\21120\0" // Macao_1920
    "Macao\211\034_Macao_Gr\257\0" // Macao_1920_Macao_Grid
    "Macau Gr\257\0" // Macau Grid
    "Mac\275\003\315Ga\351s-Krug\007\0" // Macedonia Gauss-Kruger
    "Mac\275\003\315Ga\351s-Krug\007\017runc=\275\0" // Macedonia Gauss-Kruger truncated
    "Mac\275\003\315St=\010Co\006d\023=\010Sy\020\212\0" // Macedonia State Coordinate System
    "Mac\275\003\315St=\010Co\006d\023=\010Sy\020\212\017runc=\275\0" // Macedonia State Coordinate System truncated
    "Mac\275\003\315St=\010Co\006d\023=\010Sy\020\212\2737\0" // Macedonia State Coordinate System zone 7
    "Mac\275\003\336_St=\215Co\006d\023=\215Sy\020\212\0" // Macedonian_State_Coordinate_System
    "M\226ag}c\037\002ne\037~\216e\314\24348\015\0" // Madagascar - nearshore - east of 48°E
    "M\226ag}c\037\002ne\037~\216w\267\24348\015\0" // Madagascar - nearshore - west of 48°E
    "M\226ag}c\037\002\236\0" // Madagascar - onshore
    "M\226ag}c\037\002\210\010\253ne\037~e\0" // Madagascar - onshore and nearshore
    "M\226e\340\027\03136\0" // Madeira 1936
    "M\226e\340\027\03136\012U\254\27328N\0" // Madeira 1936 / UTM zone 28N
    "M\226e\340\027SE B}e\0" // Madeira SE Base
    "M\226e\340\027SE B}\010\03195\0" // Madeira SE Base 1995
    "M\226e\340a\21136\0" // Madeira_1936
    "M\226e\340a\21136_U\254_Z\003\21528N\0" // Madeira_1936_UTM_Zone_28N
    "M\226hy\027Pr\226e< \333F LCC\0" // Madhya Pradesh NSF LCC
    "M\226hy\256Pr\226e<\0" // Madhya_Pradesh
    "M\226r\257\002LCC\0" // Madrid - LCC
    "M\226r\257 1870\201M\226r\257)\0" // Madrid 1870 (Madrid)
    "M\226r\257 1870\201M\226r\257*Spa\023 LCC\0" // Madrid 1870 (Madrid) / Spain LCC
    "M\226r\257_1870\0" // Madrid_1870
    "M\226r\257_1870_M\226r\257\0" // Madrid_1870_Madrid
    "M\226r\257_1870_M\226r\257_Spa\023\0" // Madrid_1870_Madrid_Spain
    "M\226z\005sua\0" // Madzansua
    "M\361\037a<tr\027\333F LCC\0" // Maharashtra NSF LCC
    "M\361\010\03171\0" // Mahe 1971
    "M\361e\21171\0" // Mahe_1971
    "Ma\023\010\134\2270\327\367\230$e\0" // Maine CS2000 Central zone
    "Ma\023\010\134\2270\327\367\230\344m\313)\0" // Maine CS2000 Central zone (meters)
    "Ma\023\010\134\2270 E\314\344m\313)\0" // Maine CS2000 East zone (meters)
    "Ma\023\010\134\2270 W\267\344m\313)\0" // Maine CS2000 West zone (meters)
    "Ma\023\010\134\306 E\314$e\0" // Maine CS27 East zone
    "Ma\023\010\134\306 W\267$e\0" // Maine CS27 West zone
    "Ma\023\010Co\006d\023=\010Sy\020\212 \243\031\306 E\314Z\003e\0" // Maine Coordinate System of 1927 East Zone
    "Ma\023\010Co\006d\023=\010Sy\020\212 \243\031\306 W\267Z\003e\0" // Maine Coordinate System of 1927 West Zone
    "Ma\023\215\2270\377\367\025_Z\003e\0" // Maine_2000_Central_Zone
    "Ma\023\215\2270_Ea\020_Z\003e\0" // Maine_2000_East_Zone
    "Ma\023\215\2270_We\020_Z\003e\0" // Maine_2000_West_Zone
    "Ma\023\215Ea\020\2721801\0" // Maine_East_FIPS_1801
    "Ma\023\215Ea\020\2721801\372\0" // Maine_East_FIPS_1801_Feet
    "Ma\023\215Ea\020\2721801`t_\203\0" // Maine_East_FIPS_1801_Ft_US
    "Ma\023\215We\020\2721802\0" // Maine_West_FIPS_1802
    "Ma\023\215We\020\2721802\372\0" // Maine_West_FIPS_1802_Feet
    "Ma\023\215We\020\2721802`t_\203\0" // Maine_West_FIPS_1802_Ft_US
    "Mak}s\037\0" // Makassar
    "Mak}s\037\201Jak\037ta)\0" // Makassar (Jakarta)
    "Mak}s\037\201Jak\037ta*NEIEZ\0" // Makassar (Jakarta) / NEIEZ
    "Mak}s\037\012NEIEZ\0" // Makassar / NEIEZ
    "Mak}s\037_Jak\037ta\0" // Makassar_Jakarta
    "Mak}s\037_Jak\037t\256NEIEZ\0" // Makassar_Jakarta_NEIEZ
    "Mak}s\037_NEIEZ\0" // Makassar_NEIEZ
    "M\025awi\0" // Malawi
    "M\025ays\213E\314M\025aysia\0" // Malaysia - East Malaysia
    "M\025ays\213E\314M\025ays\213S\037awak\356\0" // Malaysia - East Malaysia - Sarawak onshore
    "M\025ays\213E\314M\025ays\213\214f~\010S\134\0" // Malaysia - East Malaysia - offshore SCS
    "M\025ays\213W\267M\025aysia\0" // Malaysia - West Malaysia
    "M\025ays\213W\267M\025ays\213Joh\006\0" // Malaysia - West Malaysia - Johor
    "M\025ays\213W\267M\025ays\213K\275\361\374P\007l\077\0" // Malaysia - West Malaysia - Kedah and Perlis
    "M\025ays\213W\267M\025ays\213K\242\005t\005\0" // Malaysia - West Malaysia - Kelantan
    "M\025ays\213W\267M\025ays\213P\361\005g\0" // Malaysia - West Malaysia - Pahang
    "M\025ays\213W\267M\025ays\213P\007ak\0" // Malaysia - West Malaysia - Perak
    "M\025ays\213W\267M\025ays\213Pulau P\023\005g\0" // Malaysia - West Malaysia - Pulau Pinang
    "M\025ays\213W\267M\025ays\213S\242\005g\006\0" // Malaysia - West Malaysia - Selangor
    "M\025ays\213W\267M\025ays\213S\212b\341\005\374M\242aka\0" // Malaysia - West Malaysia - Sembilan and Melaka
    "M\025ays\213W\267M\025ays\213T\007\207gg\005u\0" // Malaysia - West Malaysia - Terengganu
    "M\025ays\213W\267M\025ays\213e\314\243\3122\015\0" // Malaysia - West Malaysia - east of 102°E
    "M\025ays\213W\267M\025ays\213\236\0" // Malaysia - West Malaysia - onshore
    "M\025ays\213W\267M\025ays\213\210\010w\267\243\3122\015\0" // Malaysia - West Malaysia - onshore west of 102°E
    "M\025ays\315Rev\077\275 Tr\336gul=i\231\03168\0" // Malaysia Revised Triangulation 1968
    "M\025div\220\0" // Maldives
    "M\025div\220\002\236\0" // Maldives - onshore
    "M\025i\0" // Mali
    "M\025\003g\013\03187\0" // Malongo 1987
    "M\025\003g\013\03187\012U\254\27332S\0" // Malongo 1987 / UTM zone 32S
    "M\025\003g\013\03187\012U\254\27333S\0" // Malongo 1987 / UTM zone 33S
    "M\025\003go\21187\0" // Malongo_1987
    "M\025\003go\21187_U\254_Z\003\21532S\0" // Malongo_1987_UTM_Zone_32S
    "M\025\003go\21187_U\254_$\21533S\0" // Malongo_1987_UTM_zone_33S
    "M\025t\030\236\0" // Malta - onshore
    "M\005ip\224 \333F LCC\0" // Manipur NSF LCC
    "M\005iz\025\220\377\025d}_\03411\0" // Manizales_Caldas_2011
    "M\005oca\0" // Manoca
    "M\005oc\027\03162\0" // Manoca 1962
    "M\005oc\027\03162\012U\254\27332N\0" // Manoca 1962 / UTM zone 32N
    "M\005oca\21162\0" // Manoca_1962
    "M\005oca\21162_U\254_Z\003\21532N\0" // Manoca_1962_UTM_Zone_32N
    "Map Gr\257 \243Au\375\025\315^41\0" // Map Grid of Australia zone 41
    "Map Gr\257 \243Au\375\025\315^42\0" // Map Grid of Australia zone 42
    "Map Gr\257 \243Au\375\025\315^43\0" // Map Grid of Australia zone 43
    "Map Gr\257 \243Au\375\025\315^44\0" // Map Grid of Australia zone 44
    "Map Gr\257 \243Au\375\025\315^46\0" // Map Grid of Australia zone 46
    "Map Gr\257 \243Au\375\025\315^47\0" // Map Grid of Australia zone 47
    "Map Gr\257 \243Au\375\025\315^48\0" // Map Grid of Australia zone 48
    "Map Gr\257 \243Au\375\025\315^49\0" // Map Grid of Australia zone 49
    "Map Gr\257 \243Au\375\025\315^50\0" // Map Grid of Australia zone 50
    "Map Gr\257 \243Au\375\025\315^51\0" // Map Grid of Australia zone 51
    "Map Gr\257 \243Au\375\025\315^52\0" // Map Grid of Australia zone 52
    "Map Gr\257 \243Au\375\025\315^53\0" // Map Grid of Australia zone 53
    "Map Gr\257 \243Au\375\025\315^54\0" // Map Grid of Australia zone 54
    "Map Gr\257 \243Au\375\025\315^55\0" // Map Grid of Australia zone 55
    "Map Gr\257 \243Au\375\025\315^56\0" // Map Grid of Australia zone 56
    "Map Gr\257 \243Au\375\025\315^57\0" // Map Grid of Australia zone 57
    "Map Gr\257 \243Au\375\025\315^58\0" // Map Grid of Australia zone 58
    "Map Gr\257 \243Au\375\025\315^59\0" // Map Grid of Australia zone 59
    "M\037acaib\013Gr\257\201M1)\0" // Maracaibo Grid (M1)
    "M\037acaib\013Gr\257\201M3)\0" // Maracaibo Grid (M3)
    "M\037a\024\003\377\026\035y\372\0" // Marathon_County_Feet
    "M\037a\024\003\377\026\035y_M\313\0" // Marathon_County_Meters
    "M\037a\024\003\372\0" // Marathon_Feet
    "M\037a\024\003_M\313\0" // Marathon_Meters
    "M\037c\013A\375o\0" // Marco Astro
    "M\037c\013Geoc\367#\013Nac\320\230d\010Ref\007\207cia\0" // Marco Geocentrico Nacional de Referencia
    "M\037c\013Geod\220#\013Nac\320\230d\010B\246ivia\0" // Marco Geodesico Nacional de Bolivia
    "M\037c\013d\010Ref\007\207c\315Geod\303\251s#\013Nac\320\230Of#i\025\0" // Marco de Referencia Geodésico Nacional Oficial
    "M\037co_Geod\220#o_Nac\320\025\0" // Marco_Geodesico_Nacional
    "M\037c\351 \335\31752\0" // Marcus Island 1952
    "M\037g\037\036 Riv\007\327oa\020\230Gr\257\0" // Margaret River Coastal Grid
    "M\037\023\036t\215C\026\035y\372\0" // Marinette_County_Feet
    "M\037\023\036t\215C\026\035y_M\313\0" // Marinette_County_Meters
    "M\037\023\036te\372\0" // Marinette_Feet
    "M\037\023\036t\215M\313\0" // Marinette_Meters
    "M\037lb\006\026gh\377\340cu\245\0" // Marlborough_Circuit
    "M\037<\025l \335s\31760\0" // Marshall Islands 1960
    "M\037t\023ique\0" // Martinique
    "M\037t\023iqu\216\236\0" // Martinique - onshore
    "M\037t\023iqu\010\03138\0" // Martinique 1938
    "M\037t\023iqu\010\03138\012U\254\273\034N\0" // Martinique 1938 / UTM zone 20N
    "M\037y\206 \13427\0" // Maryland CS27
    "M\037y\206\271\21100\0" // Maryland_FIPS_1900
    "M\037y\206\271\21100\372\0" // Maryland_FIPS_1900_Feet
    "M\037y\206\271\21100`t_\203\0" // Maryland_FIPS_1900_Ft_US
    "M}sach\351\036ts \134\306 \335 $e\0" // Massachusetts CS27 Island zone
    "M}sach\351\036ts \134\306 Ma\023\206 $e\0" // Massachusetts CS27 Mainland zone
    "M}sach\351\036ts_\316l\272\2272`t\203\0" // Massachusetts_Isl_FIPS_2002_FtUS
    "M}sach\351\036ts_\335\272\2272\0" // Massachusetts_Island_FIPS_2002
    "M}sach\351\036ts_\335\272\2272\372\0" // Massachusetts_Island_FIPS_2002_Feet
    "M}sach\351\036ts_Ma\023\206\272\2271\0" // Massachusetts_Mainland_FIPS_2001
    "M}sach\351\036ts_Ma\023\206\272\2271\372\0" // Massachusetts_Mainland_FIPS_2001_Feet
    "M}sach\351\036ts_Mn\321\272\2271`t\203\0" // Massachusetts_Mnld_FIPS_2001_FtUS
    "M}sawa\0" // Massawa
    "M}sawa\012U\254\27337N\0" // Massawa / UTM zone 37N
    "M}saw\256U\254_Z\003\21537N\0" // Massawa_UTM_Zone_37N
    "Maup\245i 83\0" // Maupiti 83
    "Maup\245i \014\012U\254\2735S\0" // Maupiti 83 / UTM zone 5S
    "Maup\245i_\03183\0" // Maupiti_1983
    "Maup\245i\211\014_U\254_Z\003\2155S\0" // Maupiti_1983_UTM_Zone_5S
    "Ma\224\245\005ia\0" // Mauritania
    "Ma\224\245\005\21312\2216!\0" // Mauritania - 12°W to 6°W
    "Ma\224\245\005\21318\22112!\0" // Mauritania - 18°W to 12°W
    "Ma\224\245\005\213N\026akchutt\0" // Mauritania - Nouakchutt
    "Ma\224\245\005\213c\367\230coa\020\0" // Mauritania - central coast
    "Ma\224\245\005\213e\314\2436!\0" // Mauritania - east of 6°W
    "Ma\224\245\005\213n\006@coa\020\0" // Mauritania - north coast
    "Ma\224\245\005\213\236\0" // Mauritania - onshore
    "Ma\224\245\005\213w\267\24312!\356\0" // Mauritania - west of 12°W onshore
    "Ma\224\245\005\315\03199\0" // Mauritania 1999
    "Ma\224\245\005\315\03199\012U\254\27328N\0" // Mauritania 1999 / UTM zone 28N
    "Ma\224\245\005\315\03199\012U\254\27329N\0" // Mauritania 1999 / UTM zone 29N
    "Ma\224\245\005\315\03199\012U\254\27330N\0" // Mauritania 1999 / UTM zone 30N
    "Ma\224\245\005ia\21199\0" // Mauritania_1999
    "Ma\224\245\005ia\21199_U\254_Z\003\215\0" // Mauritania_1999_UTM_Zone_
    "Ma\224\245\005\336 M\023\023g\327\226a\375\010\03199\0" // Mauritanian Mining Cadastre 1999
    "Ma\224\245i\351\002ma\023\206\0" // Mauritius - mainland
    "May76v\034.gsb\0" // May76v20.gsb
    "May\337te\0" // Mayotte
    "May\337t\216\236\0" // Mayotte - onshore
    "McM\224d\013S\026nd L\225b\007t\327\003f\006m\230\2270\0" // McMurdo Sound Lambert Conformal 2000
    "M\275\242l\023_A\035ioqui\256\03410\0" // Medellin_Antioquia_2010
    "M\275f\006d-Di\225\003d_Lak\215\021\211\014_\240_LCC`t_I\035l\0" // Medford-Diamond_Lake_NAD_1983_2011_LCC_Ft_Intl
    "M\275f\006d-Di\225\003d_Lak\215\021\211\014_\240_LCC_M\313\0" // Medford-Diamond_Lake_NAD_1983_2011_LCC_Meters
    "Megh\025ay\027\333F LCC\0" // Meghalaya NSF LCC
    "M\207\343\023e\215C\026\035y\372\0" // Menominee_County_Feet
    "M\207\343\023e\215C\026\035y_M\313\0" // Menominee_County_Meters
    "M\207\343\023ee\372\0" // Menominee_Feet
    "M\207\343\023e\215M\313\0" // Menominee_Meters
    "M\007c=\006_41\0" // Mercator_41
    "M\007ch#h\0" // Merchich
    "M\007ch#h\012\205d M\037oc\0" // Merchich / Nord Maroc
    "M\007ch#h\012S\361\037a\0" // Merchich / Sahara
    "M\007ch#h\012S\361\037\027\205d\0" // Merchich / Sahara Nord
    "M\007ch#h\012S\361\037\027Sud\0" // Merchich / Sahara Sud
    "M\007ch#h\012Sud M\037oc\0" // Merchich / Sud Maroc
    "M\007ch#h_S\361\037\256\205d\0" // Merchich_Sahara_Nord
    "M\007ch#h_S\361\037\256Sud\0" // Merchich_Sahara_Sud
    "M\036\007\0" // Meter
    "M\036\007_G\007m\005\0" // Meter_German
    "Mex#\005 D=um \243\03193\0" // Mexican Datum of 1993
    "Mex#\005_D=um\21193_U\254_Z\003\215\0" // Mexican_Datum_1993_UTM_Zone_
    "Mex#\005_D=um_\214_\03193\0" // Mexican_Datum_of_1993
    "Mex#o\002\3122\22196!\0" // Mexico - 102°W to 96°W
    "Mex#o\002\3128\221\3122!\0" // Mexico - 108°W to 102°W
    "Mex#o\002\2024\221\3128!\0" // Mexico - 114°W to 108°W
    "Mex#o\00296\22190!\0" // Mexico - 96°W to 90°W
    "Mex#o\002e\314\24390!\0" // Mexico - east of 90°W
    "Mex#o\002\214f~\010GoM\002C\225pech\010\037e\027N\0" // Mexico - offshore GoM - Campeche area N
    "Mex#o\002\214f~\010GoM\002C\225pech\010\037e\027S\0" // Mexico - offshore GoM - Campeche area S
    "Mex#o\002\214f~\010GoM\002T\225p#\013\037ea\0" // Mexico - offshore GoM - Tampico area
    "Mex#o\002\236\0" // Mexico - onshore
    "Mex#o\002w\267\243\2024!\0" // Mexico - west of 114°W
    "Mex#\013ITRF\2278\0" // Mexico ITRF2008
    "Mex#\013ITRF\2278\012LCC\0" // Mexico ITRF2008 / LCC
    "Mex#\013ITRF\2278\012U\254\27311N\0" // Mexico ITRF2008 / UTM zone 11N
    "Mex#\013ITRF\2278\012U\254\27312N\0" // Mexico ITRF2008 / UTM zone 12N
    "Mex#\013ITRF\2278\012U\254\27313N\0" // Mexico ITRF2008 / UTM zone 13N
    "Mex#\013ITRF\2278\012U\254\27314N\0" // Mexico ITRF2008 / UTM zone 14N
    "Mex#\013ITRF\2278\012U\254\27315N\0" // Mexico ITRF2008 / UTM zone 15N
    "Mex#\013ITRF\2278\012U\254\27316N\0" // Mexico ITRF2008 / UTM zone 16N
    "Mex#\013ITRF92\0" // Mexico ITRF92
    "Mex#\013ITRF92\012LCC\0" // Mexico ITRF92 / LCC
    "Mex#\013ITRF92\012U\254\27311N\0" // Mexico ITRF92 / UTM zone 11N
    "Mex#\013ITRF92\012U\254\27312N\0" // Mexico ITRF92 / UTM zone 12N
    "Mex#\013ITRF92\012U\254\27313N\0" // Mexico ITRF92 / UTM zone 13N
    "Mex#\013ITRF92\012U\254\27314N\0" // Mexico ITRF92 / UTM zone 14N
    "Mex#\013ITRF92\012U\254\27315N\0" // Mexico ITRF92 / UTM zone 15N
    "Mex#\013ITRF92\012U\254\27316N\0" // Mexico ITRF92 / UTM zone 16N
    "Mex#\013LCC\0" // Mexico LCC
    "Mex#o\377\367\025\2723002\372\0" // Mexico_Central_FIPS_3002_Feet
    "Mex#o_Ea\020\2723001\372\0" // Mexico_East_FIPS_3001_Feet
    "Mex#o_ITRF\2278\0" // Mexico_ITRF2008
    "Mex#o_ITRF\2278_LCC\0" // Mexico_ITRF2008_LCC
    "Mex#o_ITRF\2278_U\254_Z\003\215\0" // Mexico_ITRF2008_UTM_Zone_
    "Mex#o_ITRF92_LCC\0" // Mexico_ITRF92_LCC
    "Mex#o_We\020\2723003\372\0" // Mexico_West_FIPS_3003_Feet
    "Mha\020\0" // Mhast
    "Mh\314(\214f~e)\0" // Mhast (offshore)
    "Mh\314(\214f~e*U\254\27332S\0" // Mhast (offshore) / UTM zone 32S
    "Mh\314(\236)\0" // Mhast (onshore)
    "Mh\314(\236*U\254\27332S\0" // Mhast (onshore) / UTM zone 32S
    "Mha\020\012U\254\27332S\0" // Mhast / UTM zone 32S
    "Mh\314\03151\0" // Mhast 1951
    "Mha\020\21151\0" // Mhast_1951
    "Mha\020_Off~e\0" // Mhast_Offshore
    "Mha\020_Off~\215U\254_Z\003\21532S\0" // Mhast_Offshore_UTM_Zone_32S
    "Mha\020_On~e\0" // Mhast_Onshore
    "Mha\020_On~\215U\254_Z\003\21532S\0" // Mhast_Onshore_UTM_Zone_32S
    "Mha\020_U\254_Z\003\21532S\0" // Mhast_UTM_Zone_32S
    "M#hig\005 \134\306\327\367\230$e\0" // Michigan CS27 Central zone
    "M#hig\005 \134\306 \324$e\0" // Michigan CS27 North zone
    "M#hig\005 \134\306|\250$e\0" // Michigan CS27 South zone
    "M#hig\005 Obliqu\010M\007c=\006\201m\313)\0" // Michigan Oblique Mercator (meters)
    "M#hig\005|t=\010Pl\005\010E\314$e\0" // Michigan State Plane East zone
    "M#hig\005|t=\010Pl\005\010O\321\327\367\230$e\0" // Michigan State Plane Old Central zone
    "M#hig\005|t=\010Pl\005\010W\267$e\0" // Michigan State Plane West zone
    "M#hig\005_C\367\025\2722112\0" // Michigan_Central_FIPS_2112
    "M#hig\005\377\367\025\2722\2022\372_I\035l\0" // Michigan_Central_FIPS_2112_Feet_Intl
    "M#hig\005\377\367\025\2722\2022`t_I\035l\0" // Michigan_Central_FIPS_2112_Ft_Intl
    "M#hig\005_C\367\025_O\321\2722\3122\0" // Michigan_Central_Old_FIPS_2102
    "M#hig\005_Ea\020_O\321\2722\3121\0" // Michigan_East_Old_FIPS_2101
    "M#hig\005_GeoRef_M\313\0" // Michigan_GeoRef_Meters
    "M#hig\005_\373\2722111\0" // Michigan_North_FIPS_2111
    "M#hig\005_\373\2722\2021\372_I\035l\0" // Michigan_North_FIPS_2111_Feet_Intl
    "M#hig\005_\373\2722\2021`t_I\035l\0" // Michigan_North_FIPS_2111_Ft_Intl
    "M#hig\005_S\365\2722113\0" // Michigan_South_FIPS_2113
    "M#hig\005_S\365\2722\2023\372_I\035l\0" // Michigan_South_FIPS_2113_Feet_Intl
    "M#hig\005_S\365\2722\2023`t_I\035l\0" // Michigan_South_FIPS_2113_Ft_Intl
    "M#hig\005_We\020_O\321\2722\3123\0" // Michigan_West_Old_FIPS_2103
    "M#r\003\220\213Kos\350\010(K\351aie)\0" // Micronesia - Kosrae (Kusaie)
    "M#r\003\220\213Yap \335s\0" // Micronesia - Yap Islands
    "M\257wa\204\03161\0" // Midway 1961
    "M\257wa\204\335s\002S\253\253Ea\020\007n \335s\0" // Midway Islands - Sand and Eastern Islands
    "M\257way\21161\0" // Midway_1961
    "M\341\215\203\0" // Mile_US
    "M\341\245\037-Geog\350\237\077ch\010\310\020\245ut\0" // Militar-Geographische Institut
    "M\341\245\037-Geog\350\237\077ch\010\310\020\245ut\201F\007ro)\0" // Militar-Geographische Institut (Ferro)
    "M\341k_Riv\007`t_I\035l\0" // Milk_River_Ft_Intl
    "M\341k_Riv\007_M\313\0" // Milk_River_Meters
    "M\341lim\036\007\0" // Millimeter
    "M\023i\020\007i\013d\010M\037\023\027\205te\0" // Ministerio de Marina Norte
    "M\023i\020\007i\013d\010M\037\023\027S\224\0" // Ministerio de Marina Sur
    "M\023i\020\007io_d\215M\037\023\256\205te\0" // Ministerio_de_Marina_Norte
    "M\023i\020\007io_d\215M\037\023\256S\224\0" // Ministerio_de_Marina_Sur
    "M\023i\375\204\243Tr\005sp\006t \243Quebec L\225b\007t\0" // Ministry of Transport of Quebec Lambert
    "M\023na\0" // Minna
    "M\023na\012Nig\007\315E\314B\242t\0" // Minna / Nigeria East Belt
    "M\023na\012Nig\007\315M\257 B\242t\0" // Minna / Nigeria Mid Belt
    "M\023na\012Nig\007\315W\267B\242t\0" // Minna / Nigeria West Belt
    "M\023na\012U\254\27331N\0" // Minna / UTM zone 31N
    "M\023na\012U\254\27332N\0" // Minna / UTM zone 32N
    "M\023n\256U\254_Z\003\21531N\0" // Minna_UTM_Zone_31N
    "M\023n\256U\254_Z\003\21532N\0" // Minna_UTM_Zone_32N
    "M\023n\220\337\027\134\306\327\367\230$e\0" // Minnesota CS27 Central zone
    "M\023n\220\337\027\134\306 \324$e\0" // Minnesota CS27 North zone
    "M\023n\220\337\027\134\306|\250$e\0" // Minnesota CS27 South zone
    "M\023n\220\337\256C\367\025\2722\0342\0" // Minnesota_Central_FIPS_2202
    "M\023n\220\337\256C\367\025\2722\0342\372\0" // Minnesota_Central_FIPS_2202_Feet
    "M\023n\220\337\256C\367\025\2722\0342`t_\203\0" // Minnesota_Central_FIPS_2202_Ft_US
    "M\023n\220\337\256\373\2722\0341\0" // Minnesota_North_FIPS_2201
    "M\023n\220\337\256\373\2722\0341\372\0" // Minnesota_North_FIPS_2201_Feet
    "M\023n\220\337\256\373\2722\0341`t_\203\0" // Minnesota_North_FIPS_2201_Ft_US
    "M\023n\220\337\256S\365\2722\0343\0" // Minnesota_South_FIPS_2203
    "M\023n\220\337\256S\365\2722\0343\372\0" // Minnesota_South_FIPS_2203_Feet
    "M\023n\220\337\256S\365\2722\0343`t_\203\0" // Minnesota_South_FIPS_2203_Ft_US
    "M\077sa\013H\257rog\350f#\013Ang\246\027y|a\013T\343\010\03151\0" // Missao Hidrografico Angola y Sao Tome 1951
    "M\077s\077sippi \134\306 E\314$e\0" // Mississippi CS27 East zone
    "M\077s\077sippi \134\306 W\267$e\0" // Mississippi CS27 West zone
    "M\077s\077sippi Tr\005sv\232\010M\007c=\006\0" // Mississippi Transverse Mercator
    "M\077s\077sippi_Ea\020\2722301\0" // Mississippi_East_FIPS_2301
    "M\077s\077sippi_Ea\020\2722301\372\0" // Mississippi_East_FIPS_2301_Feet
    "M\077s\077sippi_Ea\020\2722301`t_\203\0" // Mississippi_East_FIPS_2301_Ft_US
    "M\077s\077sippi_\254\0" // Mississippi_TM
    "M\077s\077sippi_We\020\2722302\0" // Mississippi_West_FIPS_2302
    "M\077s\077sippi_We\020\2722302\372\0" // Mississippi_West_FIPS_2302_Feet
    "M\077s\077sippi_We\020\2722302`t_\203\0" // Mississippi_West_FIPS_2302_Ft_US
    "M\077s\026ri \134\306\327\367\230$e\0" // Missouri CS27 Central zone
    "M\077s\026ri \134\306 E\314$e\0" // Missouri CS27 East zone
    "M\077s\026ri \134\306 W\267$e\0" // Missouri CS27 West zone
    "M\077s\026ri\377\367\025\2722402\0" // Missouri_Central_FIPS_2402
    "M\077s\026ri_Ea\020\2722401\0" // Missouri_East_FIPS_2401
    "M\077s\026ri_We\020\2722403\0" // Missouri_West_FIPS_2403
    "M\245ch\242l_\021\211\014_\240_LCC`t_I\035l\0" // Mitchell_NAD_1983_2011_LCC_Ft_Intl
    "M\245ch\242l_\021\211\014_\240_LCC_M\313\0" // Mitchell_NAD_1983_2011_LCC_Meters
    "M\245u_Vaup\220_\03411\0" // Mitu_Vaupes_2011
    "Miz\006\225 \333F \254\0" // Mizoram NSF TM
    "Moco\256Putumayo_\03411\0" // Mocoa_Putumayo_2011
    "Modifi\275 Krovak\201G>\207w#h)\0" // Modified Krovak (Greenwich)
    "Modifi\275 Krovak E\314\324(G>\207w#h)\0" // Modified Krovak East North (Greenwich)
    "Modifi\275 Lu$ D=um\0" // Modified Luzon Datum
    "Modifi\275\21169\0" // Modified_1969
    "M\246dova\0" // Moldova
    "M\246dov\030e\314\24330\015\0" // Moldova - east of 30°E
    "M\246dov\030w\267\24330\015\0" // Moldova - west of 30°E
    "M\246dov\027Tr\005sv\232\010M\007c=\006\0" // Moldova Transverse Mercator
    "M\003g\037_\254\0" // Mongar_TM
    "M\003roe-M\006g\005_(ft\203)\0" // Monroe-Morgan_(ftUS)
    "M\003roe-M\006g\005_(m)\0" // Monroe-Morgan_(m)
    "M\003ro\215C\026\035y\372\0" // Monroe_County_Feet
    "M\003ro\215C\026\035y_M\313\0" // Monroe_County_Meters
    "M\003roe\372\0" // Monroe_Feet
    "M\003ro\215M\313\0" // Monroe_Meters
    "M\003t\005\027B\341l\023gs\201I\035\007n=\320\230f\234)\0" // Montana Billings (International feet)
    "M\003t\005\027B\341l\023gs\201m\313)\0" // Montana Billings (meters)
    "M\003t\005\027Blackf\234\201I\035\007n=\320\230f\234)\0" // Montana Blackfeet (International feet)
    "M\003t\005\027Blackf\234\201m\313)\0" // Montana Blackfeet (meters)
    "M\003t\005\027Blackf\234|t M\037\204V\025ley\201I\035\007n=\320\230f\234)\0" // Montana Blackfeet St Mary Valley (International feet)
    "M\003t\005\027Blackf\234|t M\037\204V\025ley\201m\313)\0" // Montana Blackfeet St Mary Valley (meters)
    "M\003t\005\027Bobc=\201I\035\007n=\320\230f\234)\0" // Montana Bobcat (International feet)
    "M\003t\005\027Bobc=\201m\313)\0" // Montana Bobcat (meters)
    "M\003t\005\027\134\306\327\367\230$e\0" // Montana CS27 Central zone
    "M\003t\005\027\134\306 \324$e\0" // Montana CS27 North zone
    "M\003t\005\027\134\306|\250$e\0" // Montana CS27 South zone
    "M\003t\005\027Crow\201I\035\007n=\320\230f\234)\0" // Montana Crow (International feet)
    "M\003t\005\027Crow\201m\313)\0" // Montana Crow (meters)
    "M\003t\005\027F\006t B\242knap\201I\035\007n=\320\230f\234)\0" // Montana Fort Belknap (International feet)
    "M\003t\005\027F\006t B\242knap\201m\313)\0" // Montana Fort Belknap (meters)
    "M\003t\005\027F\006t Peck Ass\023ibo\023\010(I\035\007n=\320\230f\234)\0" // Montana Fort Peck Assiniboine (International feet)
    "M\003t\005\027F\006t Peck Ass\023ibo\023\010(m\313)\0" // Montana Fort Peck Assiniboine (meters)
    "M\003t\005\027F\006t Peck|i\026x\201I\035\007n=\320\230f\234)\0" // Montana Fort Peck Sioux (International feet)
    "M\003t\005\027F\006t Peck|i\026x\201m\313)\0" // Montana Fort Peck Sioux (meters)
    "M\003t\005\027M\341k Riv\007\201I\035\007n=\320\230f\234)\0" // Montana Milk River (International feet)
    "M\003t\005\027M\341k Riv\007\201m\313)\0" // Montana Milk River (meters)
    "M\003t\005\256C\367\025\2722502\0" // Montana_Central_FIPS_2502
    "M\003t\005a\2722500\0" // Montana_FIPS_2500
    "M\003t\005a\2722500\372_I\035l\0" // Montana_FIPS_2500_Feet_Intl
    "M\003t\005a\2722500`t_I\035l\0" // Montana_FIPS_2500_Ft_Intl
    "M\003t\005\256\373\2722501\0" // Montana_North_FIPS_2501
    "M\003t\005\256S\365\2722503\0" // Montana_South_FIPS_2503
    "M\003t\010M\037io\0" // Monte Mario
    "M\003t\010M\037i\013(R\343e)\0" // Monte Mario (Rome)
    "M\003t\010M\037i\013(R\343e*It\025\204^1\0" // Monte Mario (Rome) / Italy zone 1
    "M\003t\010M\037i\013(R\343e*It\025\204^2\0" // Monte Mario (Rome) / Italy zone 2
    "M\003t\010M\037io\012It\025\204^1\0" // Monte Mario / Italy zone 1
    "M\003t\010M\037io\012It\025\204^2\0" // Monte Mario / Italy zone 2
    "M\003t\010M\037io\012\254 Em\341ia-R\343agna\0" // Monte Mario / TM Emilia-Romagna
    "M\003t\215M\037io\0" // Monte_Mario
    "M\003t\215M\037io_\0" // Monte_Mario_
    "M\003t\215M\037io_R\343e\0" // Monte_Mario_Rome
    "M\003t\207egro\002\236\0" // Montenegro - onshore
    "M\003t\007i\256C\006dob\256\2276\0" // Monteria_Cordoba_2006
    "M\003tg\343\007y-Putn\225_(ft\203)\0" // Montgomery-Putnam_(ftUS)
    "M\003tg\343\007y-Putn\225_(m)\0" // Montgomery-Putnam_(m)
    "M\003ts\007r=\002\236\0" // Montserrat - onshore
    "M\003ts\007r=\31758\0" // Montserrat 1958
    "M\003ts\007r=\31758\012Br\245i< W\267\360i\220 Gr\257\0" // Montserrat 1958 / British West Indies Grid
    "M\003ts\007r= 58\0" // Montserrat 58
    "M\003ts\007r=\21158\0" // Montserrat_1958
    "M\003ts\007r=\21158_Br\245i<_We\020_\360i\220_Gr\257\0" // Montserrat_1958_British_West_Indies_Grid
    "Mo\006e\02787\0" // Moorea 87
    "Mo\006e\02787\012U\254\2736S\0" // Moorea 87 / UTM zone 6S
    "Mo\006ea\21187\0" // Moorea_1987
    "Mo\006ea\21187_U\254_Z\003\2156S\0" // Moorea_1987_UTM_Zone_6S
    "M\006occo\0" // Morocco
    "M\006occo\002n\006@\24331\235\004N\0" // Morocco - north of 31.5°N
    "M\006occo\002\236\0" // Morocco - onshore
    "M\006occo\002s\250\243\306.9\004N\0" // Morocco - south of 27.9°N
    "M\006occo\002s\250\24331\235\004N\0" // Morocco - south of 31.5°N
    "M\006r\013d\013Papagaio\0" // Morro do Papagaio
    "M\026\035 D\341l\003\0" // Mount Dillon
    "M\026\035 D\341l\003\012Tobag\013Gr\257\0" // Mount Dillon / Tobago Grid
    "M\026\035_D\341l\003\0" // Mount_Dillon
    "M\026\035_D\341l\003_Tobago_Gr\257\0" // Mount_Dillon_Tobago_Grid
    "M\026\035_Ed\207\377\340cu\245\0" // Mount_Eden_Circuit
    "M\026\035_N#h\246}\377\340cu\245\0" // Mount_Nicholas_Circuit
    "M\026\035_Ple}\005t\377\340cu\245\0" // Mount_Pleasant_Circuit
    "M\026\035_Y\006k\377\340cu\245\0" // Mount_York_Circuit
    "Moz\225bique\0" // Mozambique
    "Moz\225biqu\21636\20042\015\0" // Mozambique - 36°E to 42°E
    "Moz\225biqu\216A\0" // Mozambique - A
    "Moz\225biqu\216B\0" // Mozambique - B
    "Moz\225biqu\216C\0" // Mozambique - C
    "Moz\225biqu\216D\0" // Mozambique - D
    "Moz\225biqu\216\214f~e\0" // Mozambique - offshore
    "Moz\225biqu\216\236\0" // Mozambique - onshore
    "Moz\225biqu\216\210\010e\314\24336\015\0" // Mozambique - onshore east of 36°E
    "Moz\225biqu\216\210\010w\267\24336\015\0" // Mozambique - onshore west of 36°E
    "Moz\225biqu\216s\365\0" // Mozambique - south
    "Moz\225biqu\216we\020\002T\036\010prov\023ce\0" // Mozambique - west - Tete province
    "Moz\225biqu\216w\267\24336\015\0" // Mozambique - west of 36°E
    "Mozn\036\0" // Moznet
    "Mozn\036\201ITRF94)\0" // Moznet (ITRF94)
    "Mozn\036\012U\254\27336S\0" // Moznet / UTM zone 36S
    "Mozn\036\012U\254\27337S\0" // Moznet / UTM zone 37S
    "Mozn\036\012U\254\27338S\0" // Moznet / UTM zone 38S
    "Mozn\036_U\254_Z\003\21536S\0" // Moznet_UTM_Zone_36S
    "Mozn\036_U\254_Z\003\21537S\0" // Moznet_UTM_Zone_37S
    "Mozn\036_U\254_Z\003\21538S\0" // Moznet_UTM_Zone_38S
    "Mp\006\025oko\0" // Mporaloko
    "Mp\006\025oko_U\254_Z\003\21532N\0" // Mporaloko_UTM_Zone_32N
    "Mp\006\025oko_U\254_Z\003\21532S\0" // Mporaloko_UTM_Zone_32S
    "My\005m\037\201B\224ma)\002Mo=t\225\027\037ea\0" // Myanmar (Burma) - Moattama area
    "My\005m\037\201B\224ma)\002\210\010w\267\24396\015\0" // Myanmar (Burma) - onshore west of 96°E
    "N32\0" // N32
    "NA\306NA\014.GSB\0" // NA27NA83.GSB
    "NA\306\323{.GSB\0" // NA27SCRS.GSB
    "NA\014\323{.GSB\0" // NA83SCRS.GSB
    "\021 \014 \0" // NAD 83 
    "\021 M#hig\005\0" // NAD Michigan
    "\021 M#hig\005\012M#hig\005 C\367\025\0" // NAD Michigan / Michigan Central
    "\021 M#hig\005\012M#hig\005 Ea\020\0" // NAD Michigan / Michigan East
    "\021 M#hig\005\012M#hig\005 \373\0" // NAD Michigan / Michigan North
    "\021 M#hig\005\012M#hig\005 O\321 C\367\025\0" // NAD Michigan / Michigan Old Central
    "\021 M#hig\005\012M#hig\005|\365\0" // NAD Michigan / Michigan South
    "\021 M#hig\005\012M#hig\005 We\020\0" // NAD Michigan / Michigan West
    "\021\306\002L=L\003\0" // NAD27 - LatLon
    "\021\306\012Alab\225\027Ea\020\0" // NAD27 / Alabama East
    "\021\306\012Alab\225\027We\020\0" // NAD27 / Alabama West
    "\021\306\012Al}k\027Alb\232\0" // NAD27 / Alaska Albers
    "\021\306\012Al}k\027^1\0" // NAD27 / Alaska zone 1
    "\021\306\012Al}k\027^10\0" // NAD27 / Alaska zone 10
    "\021\306\012Al}k\027^2\0" // NAD27 / Alaska zone 2
    "\021\306\012Al}k\027^3\0" // NAD27 / Alaska zone 3
    "\021\306\012Al}k\027^4\0" // NAD27 / Alaska zone 4
    "\021\306\012Al}k\027^5\0" // NAD27 / Alaska zone 5
    "\021\306\012Al}k\027^6\0" // NAD27 / Alaska zone 6
    "\021\306\012Al}k\027^7\0" // NAD27 / Alaska zone 7
    "\021\306\012Al}k\027^8\0" // NAD27 / Alaska zone 8
    "\021\306\012Al}k\027^9\0" // NAD27 / Alaska zone 9
    "\021\306\012Alb\007t\0273\254 >f m\007\257 \2021 W\0" // NAD27 / Alberta 3TM ref merid 111 W
    "\021\306\012Alb\007t\0273\254 >f m\007\257 \2024 W\0" // NAD27 / Alberta 3TM ref merid 114 W
    "\021\306\012Alb\007t\0273\254 >f m\007\257 \2027 W\0" // NAD27 / Alberta 3TM ref merid 117 W
    "\021\306\012Alb\007t\0273\254 >f m\007\257 1\034 W\0" // NAD27 / Alberta 3TM ref merid 120 W
    "\021\306\012\325i$\027C\367\025\0" // NAD27 / Arizona Central
    "\021\306\012\325i$\027Ea\020\0" // NAD27 / Arizona East
    "\021\306\012\325i$\027We\020\0" // NAD27 / Arizona West
    "\021\306\012\325k\005s} \373\0" // NAD27 / Arkansas North
    "\021\306\012\325k\005s}|\365\0" // NAD27 / Arkansas South
    "\021\306\012BLM \312N (ft\203)\0" // NAD27 / BLM 10N (ftUS)
    "\021\306\012BLM \202N (ft\203)\0" // NAD27 / BLM 11N (ftUS)
    "\021\306\012BLM 12N (ft\203)\0" // NAD27 / BLM 12N (ftUS)
    "\021\306\012BLM 13N (ft\203)\0" // NAD27 / BLM 13N (ftUS)
    "\021\306\012BLM 14N\201f\234)\0" // NAD27 / BLM 14N (feet)
    "\021\306\012BLM 14N (ft\203)\0" // NAD27 / BLM 14N (ftUS)
    "\021\306\012BLM 15N\201f\234)\0" // NAD27 / BLM 15N (feet)
    "\021\306\012BLM 15N (ft\203)\0" // NAD27 / BLM 15N (ftUS)
    "\021\306\012BLM 16N\201f\234)\0" // NAD27 / BLM 16N (feet)
    "\021\306\012BLM 16N (ft\203)\0" // NAD27 / BLM 16N (ftUS)
    "\021\306\012BLM 17N\201f\234)\0" // NAD27 / BLM 17N (feet)
    "\021\306\012BLM 17N (ft\203)\0" // NAD27 / BLM 17N (ftUS)
    "\021\306\012BLM 18N (ft\203)\0" // NAD27 / BLM 18N (ftUS)
    "\021\306\012BLM\317N (ft\203)\0" // NAD27 / BLM 19N (ftUS)
    "\021\306\012BLM 1N (ft\203)\0" // NAD27 / BLM 1N (ftUS)
    "\021\306\012BLM 2N (ft\203)\0" // NAD27 / BLM 2N (ftUS)
    "\021\306\012BLM 3N (ft\203)\0" // NAD27 / BLM 3N (ftUS)
    "\021\306\012BLM 4N (ft\203)\0" // NAD27 / BLM 4N (ftUS)
    "\021\306\012BLM 59N (ft\203)\0" // NAD27 / BLM 59N (ftUS)
    "\021\306\012BLM 5N (ft\203)\0" // NAD27 / BLM 5N (ftUS)
    "\021\306\012BLM 60N (ft\203)\0" // NAD27 / BLM 60N (ftUS)
    "\021\306\012BLM 6N (ft\203)\0" // NAD27 / BLM 6N (ftUS)
    "\021\306\012BLM 7N (ft\203)\0" // NAD27 / BLM 7N (ftUS)
    "\021\306\012BLM 8N (ft\203)\0" // NAD27 / BLM 8N (ftUS)
    "\021\306\012BLM 9N (ft\203)\0" // NAD27 / BLM 9N (ftUS)
    "\021\306\012C\025if\006n\315Alb\232\0" // NAD27 / California Albers
    "\021\306\012C\025if\006n\315^I\0" // NAD27 / California zone I
    "\021\306\012C\025if\006n\315^II\0" // NAD27 / California zone II
    "\021\306\012C\025if\006n\315^III\0" // NAD27 / California zone III
    "\021\306\012C\025if\006n\315^IV\0" // NAD27 / California zone IV
    "\021\306\012C\025if\006n\315^V\0" // NAD27 / California zone V
    "\021\306\012C\025if\006n\315^VI\0" // NAD27 / California zone VI
    "\021\306\012C\025if\006n\315^VII\0" // NAD27 / California zone VII
    "\021\306\012C\246\006\226\013C\367\025\0" // NAD27 / Colorado Central
    "\021\306\012C\246\006\226\013\373\0" // NAD27 / Colorado North
    "\021\306\012C\246\006\226\013S\365\0" // NAD27 / Colorado South
    "\021\306\012C\003ne\322#ut\0" // NAD27 / Connecticut
    "\021\306\012C\003\351 Alb\232\0" // NAD27 / Conus Albers
    "\021\306\012Cub\027\205te\0" // NAD27 / Cuba Norte
    "\021\306\012Cub\027S\224\0" // NAD27 / Cuba Sur
    "\021\306\012D\242aw\037e\0" // NAD27 / Delaware
    "\021\306\012Fl\006\257\027Ea\020\0" // NAD27 / Florida East
    "\021\306\012Fl\006\257\027\373\0" // NAD27 / Florida North
    "\021\306\012Fl\006\257\027We\020\0" // NAD27 / Florida West
    "\021\306\012Ge\006g\315Ea\020\0" // NAD27 / Georgia East
    "\021\306\012Ge\006g\315We\020\0" // NAD27 / Georgia West
    "\021\306\012Gu=\212\025\027\205te\0" // NAD27 / Guatemala Norte
    "\021\306\012Gu=\212\025\027S\224\0" // NAD27 / Guatemala Sur
    "\021\306\012Id\361\013C\367\025\0" // NAD27 / Idaho Central
    "\021\306\012Id\361\013Ea\020\0" // NAD27 / Idaho East
    "\021\306\012Id\361\013We\020\0" // NAD27 / Idaho West
    "\021\306\012Ill\023o\077 Ea\020\0" // NAD27 / Illinois East
    "\021\306\012Ill\023o\077 We\020\0" // NAD27 / Illinois West
    "\021\306\012\360\336\027Ea\020\0" // NAD27 / Indiana East
    "\021\306\012\360\336\027We\020\0" // NAD27 / Indiana West
    "\021\306\012Iow\027\373\0" // NAD27 / Iowa North
    "\021\306\012Iow\027S\365\0" // NAD27 / Iowa South
    "\021\306\012K\005s} \373\0" // NAD27 / Kansas North
    "\021\306\012K\005s}|\365\0" // NAD27 / Kansas South
    "\021\306\012Ke\035uck\204\373\0" // NAD27 / Kentucky North
    "\021\306\012Ke\035ucky|\365\0" // NAD27 / Kentucky South
    "\021\306\012L\026\077\336\027\373\0" // NAD27 / Louisiana North
    "\021\306\012L\026\077\336\027Off~e\0" // NAD27 / Louisiana Offshore
    "\021\306\012L\026\077\336\027S\365\0" // NAD27 / Louisiana South
    "\021\306\012M\254\2731\0" // NAD27 / MTM zone 1
    "\021\306\012M\254\27310\0" // NAD27 / MTM zone 10
    "\021\306\012M\254\2732\0" // NAD27 / MTM zone 2
    "\021\306\012M\254\2733\0" // NAD27 / MTM zone 3
    "\021\306\012M\254\2734\0" // NAD27 / MTM zone 4
    "\021\306\012M\254\2735\0" // NAD27 / MTM zone 5
    "\021\306\012M\254\2736\0" // NAD27 / MTM zone 6
    "\021\306\012MTQ L\225b\007t\0" // NAD27 / MTQ Lambert
    "\021\306\012Ma\023\010Ea\020\0" // NAD27 / Maine East
    "\021\306\012Ma\023\010We\020\0" // NAD27 / Maine West
    "\021\306\012M\037y\206\0" // NAD27 / Maryland
    "\021\306\012M}sach\351\036ts \335\0" // NAD27 / Massachusetts Island
    "\021\306\012M}sach\351\036ts Ma\023\206\0" // NAD27 / Massachusetts Mainland
    "\021\306\012M#hig\005 C\367\025\0" // NAD27 / Michigan Central
    "\021\306\012M#hig\005 Ea\020\0" // NAD27 / Michigan East
    "\021\306\012M#hig\005 \373\0" // NAD27 / Michigan North
    "\021\306\012M#hig\005 O\321 C\367\025\0" // NAD27 / Michigan Old Central
    "\021\306\012M#hig\005|\365\0" // NAD27 / Michigan South
    "\021\306\012M#hig\005 We\020\0" // NAD27 / Michigan West
    "\021\306\012M\023n\220\337\027C\367\025\0" // NAD27 / Minnesota Central
    "\021\306\012M\023n\220\337\027\373\0" // NAD27 / Minnesota North
    "\021\306\012M\023n\220\337\027S\365\0" // NAD27 / Minnesota South
    "\021\306\012M\077s\077sippi Ea\020\0" // NAD27 / Mississippi East
    "\021\306\012M\077s\077sippi We\020\0" // NAD27 / Mississippi West
    "\021\306\012M\077s\026ri C\367\025\0" // NAD27 / Missouri Central
    "\021\306\012M\077s\026ri Ea\020\0" // NAD27 / Missouri East
    "\021\306\012M\077s\026ri We\020\0" // NAD27 / Missouri West
    "\021\306\012M\003t\005\027C\367\025\0" // NAD27 / Montana Central
    "\021\306\012M\003t\005\027\373\0" // NAD27 / Montana North
    "\021\306\012M\003t\005\027S\365\0" // NAD27 / Montana South
    "\021\306\012\307br}k\027\373\0" // NAD27 / Nebraska North
    "\021\306\012\307br}k\027S\365\0" // NAD27 / Nebraska South
    "\021\306\012\307v\226\027C\367\025\0" // NAD27 / Nevada Central
    "\021\306\012\307v\226\027Ea\020\0" // NAD27 / Nevada East
    "\021\306\012\307v\226\027We\020\0" // NAD27 / Nevada West
    "\021\306\012\357 Brunsw#k|t\007eog\350\237#\201\021\306)\0" // NAD27 / New Brunswick Stereographic (NAD27)
    "\021\306\012\357 H\225p<i>\0" // NAD27 / New Hampshire
    "\021\306\012\357 J\232ey\0" // NAD27 / New Jersey
    "\021\306\012\357 Mex#\013C\367\025\0" // NAD27 / New Mexico Central
    "\021\306\012\357 Mex#\013Ea\020\0" // NAD27 / New Mexico East
    "\021\306\012\357 Mex#\013We\020\0" // NAD27 / New Mexico West
    "\021\306\012\357 Y\006k C\367\025\0" // NAD27 / New York Central
    "\021\306\012\357 Y\006k Ea\020\0" // NAD27 / New York East
    "\021\306\012\357 Y\006k L\003g \335\0" // NAD27 / New York Long Island
    "\021\306\012\357 Y\006k We\020\0" // NAD27 / New York West
    "\021\306\012\324C\037\246\023a\0" // NAD27 / North Carolina
    "\021\306\012\324Dak\337\027\373\0" // NAD27 / North Dakota North
    "\021\306\012\324Dak\337\027S\365\0" // NAD27 / North Dakota South
    "\021\306\012Ohi\013\373\0" // NAD27 / Ohio North
    "\021\306\012Ohi\013S\365\0" // NAD27 / Ohio South
    "\021\306\012Okl\361\343\027\373\0" // NAD27 / Oklahoma North
    "\021\306\012Okl\361\343\027S\365\0" // NAD27 / Oklahoma South
    "\021\306\012\326\231\373\0" // NAD27 / Oregon North
    "\021\306\012\326\003|\365\0" // NAD27 / Oregon South
    "\021\306\012P\207nsylv\005\315\373\0" // NAD27 / Pennsylvania North
    "\021\306\012P\207nsylv\005\315S\365\0" // NAD27 / Pennsylvania South
    "\021\306\012Quebec L\225b\007t\0" // NAD27 / Quebec Lambert
    "\021\306\012Rhod\010\335\0" // NAD27 / Rhode Island
    "\021\306\012Shacklef\006d\0" // NAD27 / Shackleford
    "\021\306\012\370C\037\246\023\027\373\0" // NAD27 / South Carolina North
    "\021\306\012\370C\037\246\023\027S\365\0" // NAD27 / South Carolina South
    "\021\306\012\370Dak\337\027\373\0" // NAD27 / South Dakota North
    "\021\306\012\370Dak\337\027S\365\0" // NAD27 / South Dakota South
    "\021\306\012T\207n\220see\0" // NAD27 / Tennessee
    "\021\306\012Tex} C\367\025\0" // NAD27 / Texas Central
    "\021\306\012Tex} \373\0" // NAD27 / Texas North
    "\021\306\012Tex} \324C\367\025\0" // NAD27 / Texas North Central
    "\021\306\012Tex}|\365\0" // NAD27 / Texas South
    "\021\306\012Tex}|\250C\367\025\0" // NAD27 / Texas South Central
    "\021\306\012\203 N=\320\230Atl} Equ\230A>a\0" // NAD27 / US National Atlas Equal Area
    "\021\306\012U\254\273\312N\0" // NAD27 / UTM zone 10N
    "\021\306\012U\254\27311N\0" // NAD27 / UTM zone 11N
    "\021\306\012U\254\27312N\0" // NAD27 / UTM zone 12N
    "\021\306\012U\254\27313N\0" // NAD27 / UTM zone 13N
    "\021\306\012U\254\27314N\0" // NAD27 / UTM zone 14N
    "\021\306\012U\254\27315N\0" // NAD27 / UTM zone 15N
    "\021\306\012U\254\27316N\0" // NAD27 / UTM zone 16N
    "\021\306\012U\254\27317N\0" // NAD27 / UTM zone 17N
    "\021\306\012U\254\27318N\0" // NAD27 / UTM zone 18N
    "\021\306\012U\254\27319N\0" // NAD27 / UTM zone 19N
    "\021\306\012U\254\2731N\0" // NAD27 / UTM zone 1N
    "\021\306\012U\254\273\034N\0" // NAD27 / UTM zone 20N
    "\021\306\012U\254\27321N\0" // NAD27 / UTM zone 21N
    "\021\306\012U\254\27322N\0" // NAD27 / UTM zone 22N
    "\021\306\012U\254\2732N\0" // NAD27 / UTM zone 2N
    "\021\306\012U\254\2733N\0" // NAD27 / UTM zone 3N
    "\021\306\012U\254\2734N\0" // NAD27 / UTM zone 4N
    "\021\306\012U\254\27359N\0" // NAD27 / UTM zone 59N
    "\021\306\012U\254\2735N\0" // NAD27 / UTM zone 5N
    "\021\306\012U\254\27360N\0" // NAD27 / UTM zone 60N
    "\021\306\012U\254\2736N\0" // NAD27 / UTM zone 6N
    "\021\306\012U\254\2737N\0" // NAD27 / UTM zone 7N
    "\021\306\012U\254\2738N\0" // NAD27 / UTM zone 8N
    "\021\306\012U\254\2739N\0" // NAD27 / UTM zone 9N
    "\021\306\012Ut\361 C\367\025\0" // NAD27 / Utah Central
    "\021\306\012Ut\361 \373\0" // NAD27 / Utah North
    "\021\306\012Ut\361|\365\0" // NAD27 / Utah South
    "\021\306\012V\007m\003t\0" // NAD27 / Vermont
    "\021\306\012V\340g\023\315\373\0" // NAD27 / Virginia North
    "\021\306\012V\340g\023\315S\365\0" // NAD27 / Virginia South
    "\021\306\012Wa<\023gt\231\373\0" // NAD27 / Washington North
    "\021\306\012Wa<\023gt\003|\365\0" // NAD27 / Washington South
    "\021\306\012W\267V\340g\023\315\373\0" // NAD27 / West Virginia North
    "\021\306\012W\267V\340g\023\315S\365\0" // NAD27 / West Virginia South
    "\021\306\012W\077c\003s\023 C\367\025\0" // NAD27 / Wisconsin Central
    "\021\306\012W\077c\003s\023 \373\0" // NAD27 / Wisconsin North
    "\021\306\012W\077c\003s\023|\365\0" // NAD27 / Wisconsin South
    "\021\306\012W\077c\003s\023 Tr\005sv\232\010M\007c=\006\0" // NAD27 / Wisconsin Transverse Mercator
    "\021\306\012Wy\343\023g Ea\020\0" // NAD27 / Wyoming East
    "\021\306\012Wy\343\023g E\314C\367\025\0" // NAD27 / Wyoming East Central
    "\021\306\012Wy\343\023g We\020\0" // NAD27 / Wyoming West
    "\021\306\012Wy\343\023g W\267C\367\025\0" // NAD27 / Wyoming West Central
    "\021\306 M#hig\005\0" // NAD27 Michigan
    "\021\306(76)\0" // NAD27(76)
    "\021\306(76*M\254\27310\0" // NAD27(76) / MTM zone 10
    "\021\306(76*M\254\27311\0" // NAD27(76) / MTM zone 11
    "\021\306(76*M\254\27312\0" // NAD27(76) / MTM zone 12
    "\021\306(76*M\254\27313\0" // NAD27(76) / MTM zone 13
    "\021\306(76*M\254\27314\0" // NAD27(76) / MTM zone 14
    "\021\306(76*M\254\27315\0" // NAD27(76) / MTM zone 15
    "\021\306(76*M\254\27316\0" // NAD27(76) / MTM zone 16
    "\021\306(76*M\254\27317\0" // NAD27(76) / MTM zone 17
    "\021\306(76*M\254\2738\0" // NAD27(76) / MTM zone 8
    "\021\306(76*M\254\2739\0" // NAD27(76) / MTM zone 9
    "\021\306(76*U\254\27315N\0" // NAD27(76) / UTM zone 15N
    "\021\306(76*U\254\27316N\0" // NAD27(76) / UTM zone 16N
    "\021\306(76*U\254\27317N\0" // NAD27(76) / UTM zone 17N
    "\021\306(76*U\254\27318N\0" // NAD27(76) / UTM zone 18N
    "\021\306(CGQ77)\0" // NAD27(CGQ77)
    "\021\306(CGQ77)\002L=L\003\0" // NAD27(CGQ77) - LatLon
    "\021\306(CGQ77*Quebec L\225b\007t\0" // NAD27(CGQ77) / Quebec Lambert
    "\021\306(CGQ77*\323oPQ\27310\0" // NAD27(CGQ77) / SCoPQ zone 10
    "\021\306(CGQ77*\323oPQ\2732\0" // NAD27(CGQ77) / SCoPQ zone 2
    "\021\306(CGQ77*\323oPQ\2733\0" // NAD27(CGQ77) / SCoPQ zone 3
    "\021\306(CGQ77*\323oPQ\2734\0" // NAD27(CGQ77) / SCoPQ zone 4
    "\021\306(CGQ77*\323oPQ\2735\0" // NAD27(CGQ77) / SCoPQ zone 5
    "\021\306(CGQ77*\323oPQ\2736\0" // NAD27(CGQ77) / SCoPQ zone 6
    "\021\306(CGQ77*\323oPQ\2737\0" // NAD27(CGQ77) / SCoPQ zone 7
    "\021\306(CGQ77*\323oPQ\2738\0" // NAD27(CGQ77) / SCoPQ zone 8
    "\021\306(CGQ77*\323oPQ\2739\0" // NAD27(CGQ77) / SCoPQ zone 9
    "\021\306(CGQ77*U\254\27317N\0" // NAD27(CGQ77) / UTM zone 17N
    "\021\306(CGQ77*U\254\27318N\0" // NAD27(CGQ77) / UTM zone 18N
    "\021\306(CGQ77*U\254\27319N\0" // NAD27(CGQ77) / UTM zone 19N
    "\021\306(CGQ77*U\254\273\034N\0" // NAD27(CGQ77) / UTM zone 20N
    "\021\306(CGQ77*U\254\27321N\0" // NAD27(CGQ77) / UTM zone 21N
    "\021\306(MAY76)\002L=L\003\0" // NAD27(MAY76) - LatLon
    "\021\306_M\254_$\21510\0" // NAD27_MTM_zone_10
    "\032\201C\003t\023u\026sl\204Op\007=\023g Ref\007\207c\010St=i\231\03196)\0" // NAD83 (Continuously Operating Reference Station 1996)
    "\032\201F\275\007\230B}\010N\036w\006k)\0" // NAD83 (Federal Base Network)
    "\032\201High Acc\224ac\204Ref\007\207c\010N\036w\006k\002C\006>\322\275)\0" // NAD83 (High Accuracy Reference Network - Corrected)
    "\032\201High Acc\224ac\204Ref\007\207c\010N\036w\006k)\0" // NAD83 (High Accuracy Reference Network)
    "\032\201High Acc\224ac\204Reg\320\230N\036w\006k)\0" // NAD83 (High Accuracy Regional Network)
    "\032\201High P>c\077i\231Geod\036# N\036w\006k)\0" // NAD83 (High Precision Geodetic Network)
    "\032\201N=\320\025|p=i\230Ref\007\207c\010Sy\020\212 \2277)\0" // NAD83 (National Spatial Reference System 2007)
    "\032\201N=\320\025|p=i\230Ref\007\207c\010Sy\020\212 \240)\0" // NAD83 (National Spatial Reference System 2011)
    "\032\201N=\320\025|p=i\230Ref\007\207c\010Sy\020\212 MA\202)\0" // NAD83 (National Spatial Reference System MA11)
    "\032\201N=\320\025|p=i\230Ref\007\207c\010Sy\020\212 PA\202)\0" // NAD83 (National Spatial Reference System PA11)
    "\371Alab\225\027Ea\020\0" // NAD83 / Alabama East
    "\371Alab\225\027We\020\0" // NAD83 / Alabama West
    "\371Al}k\027Alb\232\0" // NAD83 / Alaska Albers
    "\371Al}k\027^1\0" // NAD83 / Alaska zone 1
    "\371Al}k\027^10\0" // NAD83 / Alaska zone 10
    "\371Al}k\027^2\0" // NAD83 / Alaska zone 2
    "\371Al}k\027^3\0" // NAD83 / Alaska zone 3
    "\371Al}k\027^4\0" // NAD83 / Alaska zone 4
    "\371Al}k\027^5\0" // NAD83 / Alaska zone 5
    "\371Al}k\027^6\0" // NAD83 / Alaska zone 6
    "\371Al}k\027^7\0" // NAD83 / Alaska zone 7
    "\371Al}k\027^8\0" // NAD83 / Alaska zone 8
    "\371Al}k\027^9\0" // NAD83 / Alaska zone 9
    "\371Alb\007t\027\312-\254\201F\006e\020)\0" // NAD83 / Alberta 10-TM (Forest)
    "\371Alb\007t\027\312-\254\201R\220\026rce)\0" // NAD83 / Alberta 10-TM (Resource)
    "\371Alb\007t\0273\254 >f m\007\257 \2021 W\0" // NAD83 / Alberta 3TM ref merid 111 W
    "\371Alb\007t\0273\254 >f m\007\257 \2024 W\0" // NAD83 / Alberta 3TM ref merid 114 W
    "\371Alb\007t\0273\254 >f m\007\257 \2027 W\0" // NAD83 / Alberta 3TM ref merid 117 W
    "\371Alb\007t\0273\254 >f m\007\257 1\034 W\0" // NAD83 / Alberta 3TM ref merid 120 W
    "\371\325i$\027C\367\025\0" // NAD83 / Arizona Central
    "\371\325i$\027C\367\025\201ft)\0" // NAD83 / Arizona Central (ft)
    "\371\325i$\027Ea\020\0" // NAD83 / Arizona East
    "\371\325i$\027E\314(ft)\0" // NAD83 / Arizona East (ft)
    "\371\325i$\027We\020\0" // NAD83 / Arizona West
    "\371\325i$\027W\267(ft)\0" // NAD83 / Arizona West (ft)
    "\371\325k\005s} \373\0" // NAD83 / Arkansas North
    "\371\325k\005s} \324(ft\203)\0" // NAD83 / Arkansas North (ftUS)
    "\371\325k\005s}|\365\0" // NAD83 / Arkansas South
    "\371\325k\005s}|\250(ft\203)\0" // NAD83 / Arkansas South (ftUS)
    "\371BC Alb\232\0" // NAD83 / BC Albers
    "\371BLM \312N (ft\203)\0" // NAD83 / BLM 10N (ftUS)
    "\371BLM \202N (ft\203)\0" // NAD83 / BLM 11N (ftUS)
    "\371BLM 12N (ft\203)\0" // NAD83 / BLM 12N (ftUS)
    "\371BLM 13N (ft\203)\0" // NAD83 / BLM 13N (ftUS)
    "\371BLM 14N (ft\203)\0" // NAD83 / BLM 14N (ftUS)
    "\371BLM 15N (ft\203)\0" // NAD83 / BLM 15N (ftUS)
    "\371BLM 16N (ft\203)\0" // NAD83 / BLM 16N (ftUS)
    "\371BLM 17N (ft\203)\0" // NAD83 / BLM 17N (ftUS)
    "\371BLM 18N (ft\203)\0" // NAD83 / BLM 18N (ftUS)
    "\371BLM\317N (ft\203)\0" // NAD83 / BLM 19N (ftUS)
    "\371BLM 1N (ft\203)\0" // NAD83 / BLM 1N (ftUS)
    "\371BLM 2N (ft\203)\0" // NAD83 / BLM 2N (ftUS)
    "\371BLM 3N (ft\203)\0" // NAD83 / BLM 3N (ftUS)
    "\371BLM 4N (ft\203)\0" // NAD83 / BLM 4N (ftUS)
    "\371BLM 59N (ft\203)\0" // NAD83 / BLM 59N (ftUS)
    "\371BLM 5N (ft\203)\0" // NAD83 / BLM 5N (ftUS)
    "\371BLM 60N (ft\203)\0" // NAD83 / BLM 60N (ftUS)
    "\371BLM 6N (ft\203)\0" // NAD83 / BLM 6N (ftUS)
    "\371BLM 7N (ft\203)\0" // NAD83 / BLM 7N (ftUS)
    "\371BLM 8N (ft\203)\0" // NAD83 / BLM 8N (ftUS)
    "\371BLM 9N (ft\203)\0" // NAD83 / BLM 9N (ftUS)
    "\371C\025if\006n\315Alb\232\0" // NAD83 / California Albers
    "\371C\025if\006n\315^1\0" // NAD83 / California zone 1
    "\371C\025if\006n\315^1 (ft\203)\0" // NAD83 / California zone 1 (ftUS)
    "\371C\025if\006n\315^2\0" // NAD83 / California zone 2
    "\371C\025if\006n\315^2 (ft\203)\0" // NAD83 / California zone 2 (ftUS)
    "\371C\025if\006n\315^3\0" // NAD83 / California zone 3
    "\371C\025if\006n\315^3 (ft\203)\0" // NAD83 / California zone 3 (ftUS)
    "\371C\025if\006n\315^4\0" // NAD83 / California zone 4
    "\371C\025if\006n\315^4 (ft\203)\0" // NAD83 / California zone 4 (ftUS)
    "\371C\025if\006n\315^5\0" // NAD83 / California zone 5
    "\371C\025if\006n\315^5 (ft\203)\0" // NAD83 / California zone 5 (ftUS)
    "\371C\025if\006n\315^6\0" // NAD83 / California zone 6
    "\371C\025if\006n\315^6 (ft\203)\0" // NAD83 / California zone 6 (ftUS)
    "\371C\005\226\027Atl} L\225b\007t\0" // NAD83 / Canada Atlas Lambert
    "\371C\246\006\226\013C\367\025\0" // NAD83 / Colorado Central
    "\371C\246\006\226\013C\367\230(ft\203)\0" // NAD83 / Colorado Central (ftUS)
    "\371C\246\006\226\013\373\0" // NAD83 / Colorado North
    "\371C\246\006\226\013\324(ft\203)\0" // NAD83 / Colorado North (ftUS)
    "\371C\246\006\226\013S\365\0" // NAD83 / Colorado South
    "\371C\246\006\226\013\370(ft\203)\0" // NAD83 / Colorado South (ftUS)
    "\371C\003ne\322#ut\0" // NAD83 / Connecticut
    "\371C\003ne\322#ut (ft\203)\0" // NAD83 / Connecticut (ftUS)
    "\371C\003\351 Alb\232\0" // NAD83 / Conus Albers
    "\371D\242aw\037e\0" // NAD83 / Delaware
    "\371D\242aw\037\010(ft\203)\0" // NAD83 / Delaware (ftUS)
    "\371Fl\006\257\027Ea\020\0" // NAD83 / Florida East
    "\371Fl\006\257\027E\314(ft\203)\0" // NAD83 / Florida East (ftUS)
    "\371Fl\006\257\027GDL Alb\232\0" // NAD83 / Florida GDL Albers
    "\371Fl\006\257\027\373\0" // NAD83 / Florida North
    "\371Fl\006\257\027\324(ft\203)\0" // NAD83 / Florida North (ftUS)
    "\371Fl\006\257\027We\020\0" // NAD83 / Florida West
    "\371Fl\006\257\027W\267(ft\203)\0" // NAD83 / Florida West (ftUS)
    "\371Ge\006g\315Ea\020\0" // NAD83 / Georgia East
    "\371Ge\006g\315E\314(ft\203)\0" // NAD83 / Georgia East (ftUS)
    "\371Ge\006g\315We\020\0" // NAD83 / Georgia West
    "\371Ge\006g\315W\267(ft\203)\0" // NAD83 / Georgia West (ftUS)
    "\371G>= Lak\220 Alb\232\0" // NAD83 / Great Lakes Albers
    "\371G>= Lak\220 \033|t Law>nc\010Alb\232\0" // NAD83 / Great Lakes and St Lawrence Albers
    "\371Hawaii\2731\0" // NAD83 / Hawaii zone 1
    "\371Hawaii\2732\0" // NAD83 / Hawaii zone 2
    "\371Hawaii\2733\0" // NAD83 / Hawaii zone 3
    "\371Hawaii\2733 (ft\203)\0" // NAD83 / Hawaii zone 3 (ftUS)
    "\371Hawaii\2734\0" // NAD83 / Hawaii zone 4
    "\371Hawaii\2735\0" // NAD83 / Hawaii zone 5
    "\371Id\361\013C\367\025\0" // NAD83 / Idaho Central
    "\371Id\361\013C\367\230(ft\203)\0" // NAD83 / Idaho Central (ftUS)
    "\371Id\361\013Ea\020\0" // NAD83 / Idaho East
    "\371Id\361\013E\314(ft\203)\0" // NAD83 / Idaho East (ftUS)
    "\371Id\361\013Tr\005sv\232\010M\007c=\006\0" // NAD83 / Idaho Transverse Mercator
    "\371Id\361\013We\020\0" // NAD83 / Idaho West
    "\371Id\361\013W\267(ft\203)\0" // NAD83 / Idaho West (ftUS)
    "\371Ill\023o\077 Ea\020\0" // NAD83 / Illinois East
    "\371Ill\023o\077 E\314(ft\203)\0" // NAD83 / Illinois East (ftUS)
    "\371Ill\023o\077 We\020\0" // NAD83 / Illinois West
    "\371Ill\023o\077 W\267(ft\203)\0" // NAD83 / Illinois West (ftUS)
    "\371\360\336\027Ea\020\0" // NAD83 / Indiana East
    "\371\360\336\027E\314(ft\203)\0" // NAD83 / Indiana East (ftUS)
    "\371\360\336\027We\020\0" // NAD83 / Indiana West
    "\371\360\336\027W\267(ft\203)\0" // NAD83 / Indiana West (ftUS)
    "\371Iow\027\373\0" // NAD83 / Iowa North
    "\371Iow\027\324(ft\203)\0" // NAD83 / Iowa North (ftUS)
    "\371Iow\027S\365\0" // NAD83 / Iowa South
    "\371Iow\027\370(ft\203)\0" // NAD83 / Iowa South (ftUS)
    "\371K\005s} LCC\0" // NAD83 / Kansas LCC
    "\371K\005s} LCC (ft\203)\0" // NAD83 / Kansas LCC (ftUS)
    "\371K\005s} \373\0" // NAD83 / Kansas North
    "\371K\005s} \324(ft\203)\0" // NAD83 / Kansas North (ftUS)
    "\371K\005s}|\365\0" // NAD83 / Kansas South
    "\371K\005s}|\250(ft\203)\0" // NAD83 / Kansas South (ftUS)
    "\371Ke\035uck\204\373\0" // NAD83 / Kentucky North
    "\371Ke\035uck\204\324(ft\203)\0" // NAD83 / Kentucky North (ftUS)
    "\371Ke\035ucky|\023gl\010Z\003e\0" // NAD83 / Kentucky Single Zone
    "\371Ke\035ucky|\023gl\010Z\003\010(ft\203)\0" // NAD83 / Kentucky Single Zone (ftUS)
    "\371Ke\035ucky|\365\0" // NAD83 / Kentucky South
    "\371Ke\035ucky|\250(ft\203)\0" // NAD83 / Kentucky South (ftUS)
    "\371L\026\077\336\027\373\0" // NAD83 / Louisiana North
    "\371L\026\077\336\027\324(ft\203)\0" // NAD83 / Louisiana North (ftUS)
    "\371L\026\077\336\027Off~e\0" // NAD83 / Louisiana Offshore
    "\371L\026\077\336\027Off~\010(ft\203)\0" // NAD83 / Louisiana Offshore (ftUS)
    "\371L\026\077\336\027S\365\0" // NAD83 / Louisiana South
    "\371L\026\077\336\027\370(ft\203)\0" // NAD83 / Louisiana South (ftUS)
    "\371M\254\2731\0" // NAD83 / MTM zone 1
    "\371M\254\27310\0" // NAD83 / MTM zone 10
    "\371M\254\27311\0" // NAD83 / MTM zone 11
    "\371M\254\27312\0" // NAD83 / MTM zone 12
    "\371M\254\27313\0" // NAD83 / MTM zone 13
    "\371M\254\27314\0" // NAD83 / MTM zone 14
    "\371M\254\27315\0" // NAD83 / MTM zone 15
    "\371M\254\27316\0" // NAD83 / MTM zone 16
    "\371M\254\27317\0" // NAD83 / MTM zone 17
    "\371M\254\2732\0" // NAD83 / MTM zone 2
    "\371M\254\2733\0" // NAD83 / MTM zone 3
    "\371M\254\2734\0" // NAD83 / MTM zone 4
    "\371M\254\2735\0" // NAD83 / MTM zone 5
    "\371M\254\2736\0" // NAD83 / MTM zone 6
    "\371M\254\2737\0" // NAD83 / MTM zone 7
    "\371M\254\2738\0" // NAD83 / MTM zone 8
    "\371M\254\2739\0" // NAD83 / MTM zone 9
    "\371MTQ L\225b\007t\0" // NAD83 / MTQ Lambert
    "\371Ma\023\010\134\2270 C\367\025\0" // NAD83 / Maine CS2000 Central
    "\371Ma\023\010\134\2270 Ea\020\0" // NAD83 / Maine CS2000 East
    "\371Ma\023\010\134\2270 We\020\0" // NAD83 / Maine CS2000 West
    "\371Ma\023\010Ea\020\0" // NAD83 / Maine East
    "\371Ma\023\010E\314(ft\203)\0" // NAD83 / Maine East (ftUS)
    "\371Ma\023\010We\020\0" // NAD83 / Maine West
    "\371Ma\023\010W\267(ft\203)\0" // NAD83 / Maine West (ftUS)
    "\371M\037y\206\0" // NAD83 / Maryland
    "\371M\037y\206 (ft\203)\0" // NAD83 / Maryland (ftUS)
    "\371M}sach\351\036ts \335\0" // NAD83 / Massachusetts Island
    "\371M}sach\351\036ts \335 (ft\203)\0" // NAD83 / Massachusetts Island (ftUS)
    "\371M}sach\351\036ts Ma\023\206\0" // NAD83 / Massachusetts Mainland
    "\371M}sach\351\036ts Ma\023\206 (ft\203)\0" // NAD83 / Massachusetts Mainland (ftUS)
    "\371M#hig\005 C\367\025\0" // NAD83 / Michigan Central
    "\371M#hig\005\327\367\025\201ft)\0" // NAD83 / Michigan Central (ft)
    "\371M#hig\005 \373\0" // NAD83 / Michigan North
    "\371M#hig\005 \324(ft)\0" // NAD83 / Michigan North (ft)
    "\371M#hig\005 Obliqu\010M\007c=\006\0" // NAD83 / Michigan Oblique Mercator
    "\371M#hig\005|\365\0" // NAD83 / Michigan South
    "\371M#hig\005|\250(ft)\0" // NAD83 / Michigan South (ft)
    "\371M\023n\220\337\027C\367\025\0" // NAD83 / Minnesota Central
    "\371M\023n\220\337\027C\367\230(ft\203)\0" // NAD83 / Minnesota Central (ftUS)
    "\371M\023n\220\337\027\373\0" // NAD83 / Minnesota North
    "\371M\023n\220\337\027\324(ft\203)\0" // NAD83 / Minnesota North (ftUS)
    "\371M\023n\220\337\027S\365\0" // NAD83 / Minnesota South
    "\371M\023n\220\337\027\370(ft\203)\0" // NAD83 / Minnesota South (ftUS)
    "\371M\077s\077sippi Ea\020\0" // NAD83 / Mississippi East
    "\371M\077s\077sippi E\314(ft\203)\0" // NAD83 / Mississippi East (ftUS)
    "\371M\077s\077sippi \254\0" // NAD83 / Mississippi TM
    "\371M\077s\077sippi We\020\0" // NAD83 / Mississippi West
    "\371M\077s\077sippi W\267(ft\203)\0" // NAD83 / Mississippi West (ftUS)
    "\371M\077s\026ri C\367\025\0" // NAD83 / Missouri Central
    "\371M\077s\026ri Ea\020\0" // NAD83 / Missouri East
    "\371M\077s\026ri We\020\0" // NAD83 / Missouri West
    "\371M\003t\005a\0" // NAD83 / Montana
    "\371M\003t\005\027(ft)\0" // NAD83 / Montana (ft)
    "\371NC{ L} Veg} (ft\203)\0" // NAD83 / NCRS Las Vegas (ftUS)
    "\371NC{ L} Veg} (m)\0" // NAD83 / NCRS Las Vegas (m)
    "\371NC{ L} Veg} high (ft\203)\0" // NAD83 / NCRS Las Vegas high (ftUS)
    "\371NC{ L} Veg} high (m)\0" // NAD83 / NCRS Las Vegas high (m)
    "\371NWT L\225b\007t\0" // NAD83 / NWT Lambert
    "\371\307br}ka\0" // NAD83 / Nebraska
    "\371\307br}k\027(ft\203)\0" // NAD83 / Nebraska (ftUS)
    "\371\307v\226\027C\367\025\0" // NAD83 / Nevada Central
    "\371\307v\226\027C\367\230(ft\203)\0" // NAD83 / Nevada Central (ftUS)
    "\371\307v\226\027Ea\020\0" // NAD83 / Nevada East
    "\371\307v\226\027E\314(ft\203)\0" // NAD83 / Nevada East (ftUS)
    "\371\307v\226\027We\020\0" // NAD83 / Nevada West
    "\371\307v\226\027W\267(ft\203)\0" // NAD83 / Nevada West (ftUS)
    "\371\357 H\225p<i>\0" // NAD83 / New Hampshire
    "\371\357 H\225p<\340\010(ft\203)\0" // NAD83 / New Hampshire (ftUS)
    "\371\357 J\232ey\0" // NAD83 / New Jersey
    "\371\357 J\232e\204(ft\203)\0" // NAD83 / New Jersey (ftUS)
    "\371\357 Mex#\013C\367\025\0" // NAD83 / New Mexico Central
    "\371\357 Mex#\013C\367\230(ft\203)\0" // NAD83 / New Mexico Central (ftUS)
    "\371\357 Mex#\013Ea\020\0" // NAD83 / New Mexico East
    "\371\357 Mex#\013E\314(ft\203)\0" // NAD83 / New Mexico East (ftUS)
    "\371\357 Mex#\013We\020\0" // NAD83 / New Mexico West
    "\371\357 Mex#\013W\267(ft\203)\0" // NAD83 / New Mexico West (ftUS)
    "\371\357 Y\006k C\367\025\0" // NAD83 / New York Central
    "\371\357 Y\006k\327\367\230(ft\203)\0" // NAD83 / New York Central (ftUS)
    "\371\357 Y\006k Ea\020\0" // NAD83 / New York East
    "\371\357 Y\006k E\314(ft\203)\0" // NAD83 / New York East (ftUS)
    "\371\357 Y\006k L\003g \335\0" // NAD83 / New York Long Island
    "\371\357 Y\006k L\003g \335 (ft\203)\0" // NAD83 / New York Long Island (ftUS)
    "\371\357 Y\006k We\020\0" // NAD83 / New York West
    "\371\357 Y\006k W\267(ft\203)\0" // NAD83 / New York West (ftUS)
    "\371\324C\037\246\023a\0" // NAD83 / North Carolina
    "\371\324C\037\246\023\027(ft\203)\0" // NAD83 / North Carolina (ftUS)
    "\371\324Dak\337\027\373\0" // NAD83 / North Dakota North
    "\371\324Dak\337\027\324(ft)\0" // NAD83 / North Dakota North (ft)
    "\371\324Dak\337\027S\365\0" // NAD83 / North Dakota South
    "\371\324Dak\337\027\370(ft)\0" // NAD83 / North Dakota South (ft)
    "\371Ohi\013\373\0" // NAD83 / Ohio North
    "\371Ohi\013\324(ft\203)\0" // NAD83 / Ohio North (ftUS)
    "\371Ohi\013S\365\0" // NAD83 / Ohio South
    "\371Ohi\013\370(ft\203)\0" // NAD83 / Ohio South (ftUS)
    "\371Okl\361\343\027\373\0" // NAD83 / Oklahoma North
    "\371Okl\361\343\027\324(ft\203)\0" // NAD83 / Oklahoma North (ftUS)
    "\371Okl\361\343\027S\365\0" // NAD83 / Oklahoma South
    "\371Okl\361\343\027\370(ft\203)\0" // NAD83 / Oklahoma South (ftUS)
    "\371O\035\037i\013MNR L\225b\007t\0" // NAD83 / Ontario MNR Lambert
    "\371\326\231GIC L\225b\007t\201ft)\0" // NAD83 / Oregon GIC Lambert (ft)
    "\371\326\231LCC (m)\0" // NAD83 / Oregon LCC (m)
    "\371\326\231\373\0" // NAD83 / Oregon North
    "\371\326\231\324(ft)\0" // NAD83 / Oregon North (ft)
    "\371\326\003|\365\0" // NAD83 / Oregon South
    "\371\326\003|\250(ft)\0" // NAD83 / Oregon South (ft)
    "\371P\207nsylv\005\315\373\0" // NAD83 / Pennsylvania North
    "\371P\207nsylv\005\315\324(ft\203)\0" // NAD83 / Pennsylvania North (ftUS)
    "\371P\207nsylv\005\315S\365\0" // NAD83 / Pennsylvania South
    "\371P\207nsylv\005\315\370(ft\203)\0" // NAD83 / Pennsylvania South (ftUS)
    "\371Pu\007t\013R#\013& V\340g\023 \316.\0" // NAD83 / Puerto Rico & Virgin Is.
    "\371Quebec Alb\232\0" // NAD83 / Quebec Albers
    "\371Quebec L\225b\007t\0" // NAD83 / Quebec Lambert
    "\371Rhod\010\335\0" // NAD83 / Rhode Island
    "\371Rhod\010\335 (ft\203)\0" // NAD83 / Rhode Island (ftUS)
    "\371\323oPQ\2732\0" // NAD83 / SCoPQ zone 2
    "\371\370C\037\246\023a\0" // NAD83 / South Carolina
    "\371\370C\037\246\023\027(ft)\0" // NAD83 / South Carolina (ft)
    "\371\370Dak\337\027\373\0" // NAD83 / South Dakota North
    "\371\370Dak\337\027\324(ft\203)\0" // NAD83 / South Dakota North (ftUS)
    "\371\370Dak\337\027S\365\0" // NAD83 / South Dakota South
    "\371\370Dak\337\027\370(ft\203)\0" // NAD83 / South Dakota South (ftUS)
    "\371St=i\020#s\327\005\226\027L\225b\007t\0" // NAD83 / Statistics Canada Lambert
    "\371T\207n\220see\0" // NAD83 / Tennessee
    "\371T\207n\220se\010(ft\203)\0" // NAD83 / Tennessee (ftUS)
    "\371T\007\005\036 O\035\037i\013L\225b\007t\0" // NAD83 / Teranet Ontario Lambert
    "\371Tex} C\367\025\0" // NAD83 / Texas Central
    "\371Tex}\327\367\230(ft\203)\0" // NAD83 / Texas Central (ftUS)
    "\371Tex}\327\367# Alb\232 Equ\230A>a\0" // NAD83 / Texas Centric Albers Equal Area
    "\371Tex}\327\367# L\225b\007t\327\003f\006m\025\0" // NAD83 / Texas Centric Lambert Conformal
    "\371Tex} \373\0" // NAD83 / Texas North
    "\371Tex} \324(ft\203)\0" // NAD83 / Texas North (ftUS)
    "\371Tex} \324C\367\025\0" // NAD83 / Texas North Central
    "\371Tex} \324C\367\230(ft\203)\0" // NAD83 / Texas North Central (ftUS)
    "\371Tex}|\365\0" // NAD83 / Texas South
    "\371Tex}|\250(ft\203)\0" // NAD83 / Texas South (ftUS)
    "\371Tex}|\250C\367\025\0" // NAD83 / Texas South Central
    "\371Tex}|\250C\367\230(ft\203)\0" // NAD83 / Texas South Central (ftUS)
    "\371Tex}|t=\010Mapp\023g|y\020\212\0" // NAD83 / Texas State Mapping System
    "\371\203FS R6 Alb\232\0" // NAD83 / USFS R6 Albers
    "\371U\254\273\312N\0" // NAD83 / UTM zone 10N
    "\371U\254\27311N\0" // NAD83 / UTM zone 11N
    "\371U\254\27312N\0" // NAD83 / UTM zone 12N
    "\371U\254\27313N\0" // NAD83 / UTM zone 13N
    "\371U\254\27314N\0" // NAD83 / UTM zone 14N
    "\371U\254\27315N\0" // NAD83 / UTM zone 15N
    "\371U\254\27316N\0" // NAD83 / UTM zone 16N
    "\371U\254\27317N\0" // NAD83 / UTM zone 17N
    "\371U\254\27318N\0" // NAD83 / UTM zone 18N
    "\371U\254\27319N\0" // NAD83 / UTM zone 19N
    "\371U\254\2731N\0" // NAD83 / UTM zone 1N
    "\371U\254\273\034N\0" // NAD83 / UTM zone 20N
    "\371U\254\27321N\0" // NAD83 / UTM zone 21N
    "\371U\254\27322N\0" // NAD83 / UTM zone 22N
    "\371U\254\27323N\0" // NAD83 / UTM zone 23N
    "\371U\254\27324N\0" // NAD83 / UTM zone 24N
    "\371U\254\2732N\0" // NAD83 / UTM zone 2N
    "\371U\254\2733N\0" // NAD83 / UTM zone 3N
    "\371U\254\2734N\0" // NAD83 / UTM zone 4N
    "\371U\254\27359N\0" // NAD83 / UTM zone 59N
    "\371U\254\2735N\0" // NAD83 / UTM zone 5N
    "\371U\254\27360N\0" // NAD83 / UTM zone 60N
    "\371U\254\2736N\0" // NAD83 / UTM zone 6N
    "\371U\254\2737N\0" // NAD83 / UTM zone 7N
    "\371U\254\2738N\0" // NAD83 / UTM zone 8N
    "\371U\254\2739N\0" // NAD83 / UTM zone 9N
    "\371Ut\361 C\367\025\0" // NAD83 / Utah Central
    "\371Ut\361\327\367\025\201ft)\0" // NAD83 / Utah Central (ft)
    "\371Ut\361\327\367\230(ft\203)\0" // NAD83 / Utah Central (ftUS)
    "\371Ut\361 \373\0" // NAD83 / Utah North
    "\371Ut\361 \324(ft)\0" // NAD83 / Utah North (ft)
    "\371Ut\361 \324(ft\203)\0" // NAD83 / Utah North (ftUS)
    "\371Ut\361|\365\0" // NAD83 / Utah South
    "\371Ut\361|\250(ft)\0" // NAD83 / Utah South (ft)
    "\371Ut\361|\250(ft\203)\0" // NAD83 / Utah South (ftUS)
    "\371V\007m\003t\0" // NAD83 / Vermont
    "\371V\007m\003t (ft\203)\0" // NAD83 / Vermont (ftUS)
    "\371V\340g\023\315L\225b\007t\0" // NAD83 / Virginia Lambert
    "\371V\340g\023\315\373\0" // NAD83 / Virginia North
    "\371V\340g\023\315\324(ft\203)\0" // NAD83 / Virginia North (ftUS)
    "\371V\340g\023\315S\365\0" // NAD83 / Virginia South
    "\371V\340g\023\315\370(ft\203)\0" // NAD83 / Virginia South (ftUS)
    "\371Wa<\023gt\231\373\0" // NAD83 / Washington North
    "\371Wa<\023gt\231\324(ft\203)\0" // NAD83 / Washington North (ftUS)
    "\371Wa<\023gt\003|\365\0" // NAD83 / Washington South
    "\371Wa<\023gt\003|\250(ft\203)\0" // NAD83 / Washington South (ftUS)
    "\371W\267V\340g\023\315\373\0" // NAD83 / West Virginia North
    "\371W\267V\340g\023\315\324(ft\203)\0" // NAD83 / West Virginia North (ftUS)
    "\371W\267V\340g\023\315S\365\0" // NAD83 / West Virginia South
    "\371W\267V\340g\023\315\370(ft\203)\0" // NAD83 / West Virginia South (ftUS)
    "\371W\077c\003s\023 C\367\025\0" // NAD83 / Wisconsin Central
    "\371W\077c\003s\023\327\367\230(ft\203)\0" // NAD83 / Wisconsin Central (ftUS)
    "\371W\077c\003s\023 \373\0" // NAD83 / Wisconsin North
    "\371W\077c\003s\023 \324(ft\203)\0" // NAD83 / Wisconsin North (ftUS)
    "\371W\077c\003s\023|\365\0" // NAD83 / Wisconsin South
    "\371W\077c\003s\023|\250(ft\203)\0" // NAD83 / Wisconsin South (ftUS)
    "\371W\077c\003s\023 Tr\005sv\232\010M\007c=\006\0" // NAD83 / Wisconsin Transverse Mercator
    "\371Wy\343\023g Ea\020\0" // NAD83 / Wyoming East
    "\371Wy\343\023g E\314(ft\203)\0" // NAD83 / Wyoming East (ftUS)
    "\371Wy\343\023g E\314C\367\025\0" // NAD83 / Wyoming East Central
    "\371Wy\343\023g E\314C\367\230(ft\203)\0" // NAD83 / Wyoming East Central (ftUS)
    "\371Wy\343\023g L\225b\007t\0" // NAD83 / Wyoming Lambert
    "\371Wy\343\023g We\020\0" // NAD83 / Wyoming West
    "\371Wy\343\023g W\267(ft\203)\0" // NAD83 / Wyoming West (ftUS)
    "\371Wy\343\023g W\267C\367\025\0" // NAD83 / Wyoming West Central
    "\371Wy\343\023g W\267C\367\230(ft\203)\0" // NAD83 / Wyoming West Central (ftUS)
    "\371Yuk\231Alb\232\0" // NAD83 / Yukon Albers
    "\032\327\005\226\336|p=i\230Ref\007\207c\010Sy\020\212\0" // NAD83 Canadian Spatial Reference System
    "\032\022%\134{98)\2013)\0" // NAD83 to NAD83(CSRS98) (3)
    "%\03186)\0" // NAD83(1986)
    "%\03192 AK)\0" // NAD83(1992 AK)
    "%\03193 AS)\0" // NAD83(1993 AS)
    "%\03193 GU)\0" // NAD83(1993 GU)
    "%\03193 HI)\0" // NAD83(1993 HI)
    "%\03193 PRVI)\0" // NAD83(1993 PRVI)
    "%\03197 PRVI)\0" // NAD83(1997 PRVI)
    "\262)\0" // NAD83(2011)
    "\264Alab\225\027Ea\020\0" // NAD83(2011) / Alabama East
    "\264Alab\225\027E\314(ft\203)\0" // NAD83(2011) / Alabama East (ftUS)
    "\264Alab\225\027We\020\0" // NAD83(2011) / Alabama West
    "\264Alab\225\027W\267(ft\203)\0" // NAD83(2011) / Alabama West (ftUS)
    "\264Al}k\027Alb\232\0" // NAD83(2011) / Alaska Albers
    "\264Al}k\027^1\0" // NAD83(2011) / Alaska zone 1
    "\264Al}k\027^10\0" // NAD83(2011) / Alaska zone 10
    "\264Al}k\027^2\0" // NAD83(2011) / Alaska zone 2
    "\264Al}k\027^3\0" // NAD83(2011) / Alaska zone 3
    "\264Al}k\027^4\0" // NAD83(2011) / Alaska zone 4
    "\264Al}k\027^5\0" // NAD83(2011) / Alaska zone 5
    "\264Al}k\027^6\0" // NAD83(2011) / Alaska zone 6
    "\264Al}k\027^7\0" // NAD83(2011) / Alaska zone 7
    "\264Al}k\027^8\0" // NAD83(2011) / Alaska zone 8
    "\264Al}k\027^9\0" // NAD83(2011) / Alaska zone 9
    "\264Amt\350k NEC\13421\201ft)\0" // NAD83(2011) / Amtrak NECCS21 (ft)
    "\264\325i$\027C\367\025\0" // NAD83(2011) / Arizona Central
    "\264\325i$\027C\367\025\201ft)\0" // NAD83(2011) / Arizona Central (ft)
    "\264\325i$\027Ea\020\0" // NAD83(2011) / Arizona East
    "\264\325i$\027E\314(ft)\0" // NAD83(2011) / Arizona East (ft)
    "\264\325i$\027We\020\0" // NAD83(2011) / Arizona West
    "\264\325i$\027W\267(ft)\0" // NAD83(2011) / Arizona West (ft)
    "\264\325k\005s} \373\0" // NAD83(2011) / Arkansas North
    "\264\325k\005s} \324(ft\203)\0" // NAD83(2011) / Arkansas North (ftUS)
    "\264\325k\005s}|\365\0" // NAD83(2011) / Arkansas South
    "\264\325k\005s}|\250(ft\203)\0" // NAD83(2011) / Arkansas South (ftUS)
    "\264C\025if\006n\315Alb\232\0" // NAD83(2011) / California Albers
    "\264C\025if\006n\315^1\0" // NAD83(2011) / California zone 1
    "\264C\025if\006n\315^1 (ft\203)\0" // NAD83(2011) / California zone 1 (ftUS)
    "\264C\025if\006n\315^2\0" // NAD83(2011) / California zone 2
    "\264C\025if\006n\315^2 (ft\203)\0" // NAD83(2011) / California zone 2 (ftUS)
    "\264C\025if\006n\315^3\0" // NAD83(2011) / California zone 3
    "\264C\025if\006n\315^3 (ft\203)\0" // NAD83(2011) / California zone 3 (ftUS)
    "\264C\025if\006n\315^4\0" // NAD83(2011) / California zone 4
    "\264C\025if\006n\315^4 (ft\203)\0" // NAD83(2011) / California zone 4 (ftUS)
    "\264C\025if\006n\315^5\0" // NAD83(2011) / California zone 5
    "\264C\025if\006n\315^5 (ft\203)\0" // NAD83(2011) / California zone 5 (ftUS)
    "\264C\025if\006n\315^6\0" // NAD83(2011) / California zone 6
    "\264C\025if\006n\315^6 (ft\203)\0" // NAD83(2011) / California zone 6 (ftUS)
    "\264C\246\006\226\013C\367\025\0" // NAD83(2011) / Colorado Central
    "\264C\246\006\226\013C\367\230(ft\203)\0" // NAD83(2011) / Colorado Central (ftUS)
    "\264C\246\006\226\013\373\0" // NAD83(2011) / Colorado North
    "\264C\246\006\226\013\324(ft\203)\0" // NAD83(2011) / Colorado North (ftUS)
    "\264C\246\006\226\013S\365\0" // NAD83(2011) / Colorado South
    "\264C\246\006\226\013\370(ft\203)\0" // NAD83(2011) / Colorado South (ftUS)
    "\264C\003ne\322#ut\0" // NAD83(2011) / Connecticut
    "\264C\003ne\322#ut (ft\203)\0" // NAD83(2011) / Connecticut (ftUS)
    "\264C\003\351 Alb\232\0" // NAD83(2011) / Conus Albers
    "\264D\242aw\037e\0" // NAD83(2011) / Delaware
    "\264D\242aw\037\010(ft\203)\0" // NAD83(2011) / Delaware (ftUS)
    "\264E\247G \325\322#\2735-29\0" // NAD83(2011) / EPSG Arctic zone 5-29
    "\264E\247G \325\322#\2735-31\0" // NAD83(2011) / EPSG Arctic zone 5-31
    "\264E\247G \325\322#\2736-14\0" // NAD83(2011) / EPSG Arctic zone 6-14
    "\264E\247G \325\322#\2736-16\0" // NAD83(2011) / EPSG Arctic zone 6-16
    "\264Fl\006\257\027Ea\020\0" // NAD83(2011) / Florida East
    "\264Fl\006\257\027E\314(ft\203)\0" // NAD83(2011) / Florida East (ftUS)
    "\264Fl\006\257\027GDL Alb\232\0" // NAD83(2011) / Florida GDL Albers
    "\264Fl\006\257\027\373\0" // NAD83(2011) / Florida North
    "\264Fl\006\257\027\324(ft\203)\0" // NAD83(2011) / Florida North (ftUS)
    "\264Fl\006\257\027We\020\0" // NAD83(2011) / Florida West
    "\264Fl\006\257\027W\267(ft\203)\0" // NAD83(2011) / Florida West (ftUS)
    "\264Ge\006g\315Ea\020\0" // NAD83(2011) / Georgia East
    "\264Ge\006g\315E\314(ft\203)\0" // NAD83(2011) / Georgia East (ftUS)
    "\264Ge\006g\315We\020\0" // NAD83(2011) / Georgia West
    "\264Ge\006g\315W\267(ft\203)\0" // NAD83(2011) / Georgia West (ftUS)
    "\264IaR\134\2731\0" // NAD83(2011) / IaRCS zone 1
    "\264IaR\134\27310\0" // NAD83(2011) / IaRCS zone 10
    "\264IaR\134\27311\0" // NAD83(2011) / IaRCS zone 11
    "\264IaR\134\27312\0" // NAD83(2011) / IaRCS zone 12
    "\264IaR\134\27313\0" // NAD83(2011) / IaRCS zone 13
    "\264IaR\134\27314\0" // NAD83(2011) / IaRCS zone 14
    "\264IaR\134\2732\0" // NAD83(2011) / IaRCS zone 2
    "\264IaR\134\2733\0" // NAD83(2011) / IaRCS zone 3
    "\264IaR\134\2734\0" // NAD83(2011) / IaRCS zone 4
    "\264IaR\134\2735\0" // NAD83(2011) / IaRCS zone 5
    "\264IaR\134\2736\0" // NAD83(2011) / IaRCS zone 6
    "\264IaR\134\2737\0" // NAD83(2011) / IaRCS zone 7
    "\264IaR\134\2738\0" // NAD83(2011) / IaRCS zone 8
    "\264IaR\134\2739\0" // NAD83(2011) / IaRCS zone 9
    "\264Id\361\013C\367\025\0" // NAD83(2011) / Idaho Central
    "\264Id\361\013C\367\230(ft\203)\0" // NAD83(2011) / Idaho Central (ftUS)
    "\264Id\361\013Ea\020\0" // NAD83(2011) / Idaho East
    "\264Id\361\013E\314(ft\203)\0" // NAD83(2011) / Idaho East (ftUS)
    "\264Id\361\013We\020\0" // NAD83(2011) / Idaho West
    "\264Id\361\013W\267(ft\203)\0" // NAD83(2011) / Idaho West (ftUS)
    "\264Ill\023o\077 Ea\020\0" // NAD83(2011) / Illinois East
    "\264Ill\023o\077 E\314(ft\203)\0" // NAD83(2011) / Illinois East (ftUS)
    "\264Ill\023o\077 We\020\0" // NAD83(2011) / Illinois West
    "\264Ill\023o\077 W\267(ft\203)\0" // NAD83(2011) / Illinois West (ftUS)
    "\264\310G\134 Ad\225s (ft\203)\0" // NAD83(2011) / InGCS Adams (ftUS)
    "\264\310G\134 Ad\225s (m)\0" // NAD83(2011) / InGCS Adams (m)
    "\264\310G\134 All\207 (ft\203)\0" // NAD83(2011) / InGCS Allen (ftUS)
    "\264\310G\134 All\207 (m)\0" // NAD83(2011) / InGCS Allen (m)
    "\264\310G\134 B\037\024\246\343ew (ft\203)\0" // NAD83(2011) / InGCS Bartholomew (ftUS)
    "\264\310G\134 B\037\024\246\343ew (m)\0" // NAD83(2011) / InGCS Bartholomew (m)
    "\264\310G\134 Be\035\231(ft\203)\0" // NAD83(2011) / InGCS Benton (ftUS)
    "\264\310G\134 Be\035\231(m)\0" // NAD83(2011) / InGCS Benton (m)
    "\264\310G\134 Blackf\006d-D\242aw\037\010(ft\203)\0" // NAD83(2011) / InGCS Blackford-Delaware (ftUS)
    "\264\310G\134 Blackf\006d-D\242aw\037\010(m)\0" // NAD83(2011) / InGCS Blackford-Delaware (m)
    "\264\310G\134 Bo\003e-H\207dr#ks (ft\203)\0" // NAD83(2011) / InGCS Boone-Hendricks (ftUS)
    "\264\310G\134 Bo\003e-H\207dr#ks (m)\0" // NAD83(2011) / InGCS Boone-Hendricks (m)
    "\264\310G\134 Brown (ft\203)\0" // NAD83(2011) / InGCS Brown (ftUS)
    "\264\310G\134 Brown (m)\0" // NAD83(2011) / InGCS Brown (m)
    "\264\310G\134\327\037r\246l (ft\203)\0" // NAD83(2011) / InGCS Carroll (ftUS)
    "\264\310G\134\327\037r\246l (m)\0" // NAD83(2011) / InGCS Carroll (m)
    "\264\310G\134\327}s (ft\203)\0" // NAD83(2011) / InGCS Cass (ftUS)
    "\264\310G\134\327}s (m)\0" // NAD83(2011) / InGCS Cass (m)
    "\264\310G\134\327l\037k-Floyd-Sc\337t (ft\203)\0" // NAD83(2011) / InGCS Clark-Floyd-Scott (ftUS)
    "\264\310G\134\327l\037k-Floyd-Sc\337t (m)\0" // NAD83(2011) / InGCS Clark-Floyd-Scott (m)
    "\264\310G\134\327la\204(ft\203)\0" // NAD83(2011) / InGCS Clay (ftUS)
    "\264\310G\134\327la\204(m)\0" // NAD83(2011) / InGCS Clay (m)
    "\264\310G\134\327l\023t\231(ft\203)\0" // NAD83(2011) / InGCS Clinton (ftUS)
    "\264\310G\134\327l\023t\231(m)\0" // NAD83(2011) / InGCS Clinton (m)
    "\264\310G\134\327\350wf\006d-Law>nce-Or\005g\010(ft\203)\0" // NAD83(2011) / InGCS Crawford-Lawrence-Orange (ftUS)
    "\264\310G\134\327\350wf\006d-Law>nce-Or\005g\010(m)\0" // NAD83(2011) / InGCS Crawford-Lawrence-Orange (m)
    "\264\310G\134 Davi\220s-G>\207\010(ft\203)\0" // NAD83(2011) / InGCS Daviess-Greene (ftUS)
    "\264\310G\134 Davi\220s-G>\207\010(m)\0" // NAD83(2011) / InGCS Daviess-Greene (m)
    "\264\310G\134 DeK\025b (ft\203)\0" // NAD83(2011) / InGCS DeKalb (ftUS)
    "\264\310G\134 DeK\025b (m)\0" // NAD83(2011) / InGCS DeKalb (m)
    "\264\310G\134 De\037b\006n-Ohio-Sw\245z\007\206 (ft\203)\0" // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (ftUS)
    "\264\310G\134 De\037b\006n-Ohio-Sw\245z\007\206 (m)\0" // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (m)
    "\264\310G\134 Dec=\224-Ru< (ft\203)\0" // NAD83(2011) / InGCS Decatur-Rush (ftUS)
    "\264\310G\134 Dec=\224-Ru< (m)\0" // NAD83(2011) / InGCS Decatur-Rush (m)
    "\264\310G\134 Dubo\077-M\037t\023 (ft\203)\0" // NAD83(2011) / InGCS Dubois-Martin (ftUS)
    "\264\310G\134 Dubo\077-M\037t\023 (m)\0" // NAD83(2011) / InGCS Dubois-Martin (m)
    "\264\310G\134 Elkh\037t-Kosci\351ko-Waba< (ft\203)\0" // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (ftUS)
    "\264\310G\134 Elkh\037t-Kosci\351ko-Waba< (m)\0" // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (m)
    "\264\310G\134 Fay\036te-Fr\005kl\023-Uni\231(ft\203)\0" // NAD83(2011) / InGCS Fayette-Franklin-Union (ftUS)
    "\264\310G\134 Fay\036te-Fr\005kl\023-Uni\231(m)\0" // NAD83(2011) / InGCS Fayette-Franklin-Union (m)
    "\264\310G\134 F\026\035a\023-W\037>n (ft\203)\0" // NAD83(2011) / InGCS Fountain-Warren (ftUS)
    "\264\310G\134 F\026\035a\023-W\037>n (m)\0" // NAD83(2011) / InGCS Fountain-Warren (m)
    "\264\310G\134 Fult\003-M\037<\025l-St. Jose\237 (ft\203)\0" // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (ftUS)
    "\264\310G\134 Fult\003-M\037<\025l-St. Jose\237 (m)\0" // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (m)
    "\264\310G\134 Gibs\231(ft\203)\0" // NAD83(2011) / InGCS Gibson (ftUS)
    "\264\310G\134 Gibs\231(m)\0" // NAD83(2011) / InGCS Gibson (m)
    "\264\310G\134 Gr\005t (ft\203)\0" // NAD83(2011) / InGCS Grant (ftUS)
    "\264\310G\134 Gr\005t (m)\0" // NAD83(2011) / InGCS Grant (m)
    "\264\310G\134 H\225\341t\003-Tipt\231(ft\203)\0" // NAD83(2011) / InGCS Hamilton-Tipton (ftUS)
    "\264\310G\134 H\225\341t\003-Tipt\231(m)\0" // NAD83(2011) / InGCS Hamilton-Tipton (m)
    "\264\310G\134 H\005cock-M\226\077\231(ft\203)\0" // NAD83(2011) / InGCS Hancock-Madison (ftUS)
    "\264\310G\134 H\005cock-M\226\077\231(m)\0" // NAD83(2011) / InGCS Hancock-Madison (m)
    "\264\310G\134 H\037r\077\003-Wa<\023gt\231(ft\203)\0" // NAD83(2011) / InGCS Harrison-Washington (ftUS)
    "\264\310G\134 H\037r\077\003-Wa<\023gt\231(m)\0" // NAD83(2011) / InGCS Harrison-Washington (m)
    "\264\310G\134 H\207r\204(ft\203)\0" // NAD83(2011) / InGCS Henry (ftUS)
    "\264\310G\134 H\207r\204(m)\0" // NAD83(2011) / InGCS Henry (m)
    "\264\310G\134 How\037d-Mi\225i (ft\203)\0" // NAD83(2011) / InGCS Howard-Miami (ftUS)
    "\264\310G\134 How\037d-Mi\225i (m)\0" // NAD83(2011) / InGCS Howard-Miami (m)
    "\264\310G\134 Hu\035\023gt\003-Wh\245le\204(ft\203)\0" // NAD83(2011) / InGCS Huntington-Whitley (ftUS)
    "\264\310G\134 Hu\035\023gt\003-Wh\245le\204(m)\0" // NAD83(2011) / InGCS Huntington-Whitley (m)
    "\264\310G\134 Jacks\231(ft\203)\0" // NAD83(2011) / InGCS Jackson (ftUS)
    "\264\310G\134 Jacks\231(m)\0" // NAD83(2011) / InGCS Jackson (m)
    "\264\310G\134 J}p\007-P\006t\007 (ft\203)\0" // NAD83(2011) / InGCS Jasper-Porter (ftUS)
    "\264\310G\134 J}p\007-P\006t\007 (m)\0" // NAD83(2011) / InGCS Jasper-Porter (m)
    "\264\310G\134 Ja\204(ft\203)\0" // NAD83(2011) / InGCS Jay (ftUS)
    "\264\310G\134 Ja\204(m)\0" // NAD83(2011) / InGCS Jay (m)
    "\264\310G\134 Jeff\232\231(ft\203)\0" // NAD83(2011) / InGCS Jefferson (ftUS)
    "\264\310G\134 Jeff\232\231(m)\0" // NAD83(2011) / InGCS Jefferson (m)
    "\264\310G\134 J\207n\023gs (ft\203)\0" // NAD83(2011) / InGCS Jennings (ftUS)
    "\264\310G\134 J\207n\023gs (m)\0" // NAD83(2011) / InGCS Jennings (m)
    "\264\310G\134 Johns\003-M\037i\231(ft\203)\0" // NAD83(2011) / InGCS Johnson-Marion (ftUS)
    "\264\310G\134 Johns\003-M\037i\231(m)\0" // NAD83(2011) / InGCS Johnson-Marion (m)
    "\264\310G\134 Knox (ft\203)\0" // NAD83(2011) / InGCS Knox (ftUS)
    "\264\310G\134 Knox (m)\0" // NAD83(2011) / InGCS Knox (m)
    "\264\310G\134 LaGr\005ge-Nobl\010(ft\203)\0" // NAD83(2011) / InGCS LaGrange-Noble (ftUS)
    "\264\310G\134 LaGr\005ge-Nobl\010(m)\0" // NAD83(2011) / InGCS LaGrange-Noble (m)
    "\264\310G\134 LaP\006te-Pul}ki-St\037k\010(ft\203)\0" // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (ftUS)
    "\264\310G\134 LaP\006te-Pul}ki-St\037k\010(m)\0" // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (m)
    "\264\310G\134 Lake-\357t\231(ft\203)\0" // NAD83(2011) / InGCS Lake-Newton (ftUS)
    "\264\310G\134 Lake-\357t\231(m)\0" // NAD83(2011) / InGCS Lake-Newton (m)
    "\264\310G\134 M\003roe-M\006g\005 (ft\203)\0" // NAD83(2011) / InGCS Monroe-Morgan (ftUS)
    "\264\310G\134 M\003roe-M\006g\005 (m)\0" // NAD83(2011) / InGCS Monroe-Morgan (m)
    "\264\310G\134 M\003tg\343\007y-Putn\225 (ft\203)\0" // NAD83(2011) / InGCS Montgomery-Putnam (ftUS)
    "\264\310G\134 M\003tg\343\007y-Putn\225 (m)\0" // NAD83(2011) / InGCS Montgomery-Putnam (m)
    "\264\310G\134 Ow\207 (ft\203)\0" // NAD83(2011) / InGCS Owen (ftUS)
    "\264\310G\134 Ow\207 (m)\0" // NAD83(2011) / InGCS Owen (m)
    "\264\310G\134 P\037ke-V\007m\341li\231(ft\203)\0" // NAD83(2011) / InGCS Parke-Vermillion (ftUS)
    "\264\310G\134 P\037ke-V\007m\341li\231(m)\0" // NAD83(2011) / InGCS Parke-Vermillion (m)
    "\264\310G\134 P\007r\204(ft\203)\0" // NAD83(2011) / InGCS Perry (ftUS)
    "\264\310G\134 P\007r\204(m)\0" // NAD83(2011) / InGCS Perry (m)
    "\264\310G\134 Pike-W\037r#k (ft\203)\0" // NAD83(2011) / InGCS Pike-Warrick (ftUS)
    "\264\310G\134 Pike-W\037r#k (m)\0" // NAD83(2011) / InGCS Pike-Warrick (m)
    "\264\310G\134 Pose\204(ft\203)\0" // NAD83(2011) / InGCS Posey (ftUS)
    "\264\310G\134 Pose\204(m)\0" // NAD83(2011) / InGCS Posey (m)
    "\264\310G\134 R\033\246\237-Wayn\010(ft\203)\0" // NAD83(2011) / InGCS Randolph-Wayne (ftUS)
    "\264\310G\134 R\033\246\237-Wayn\010(m)\0" // NAD83(2011) / InGCS Randolph-Wayne (m)
    "\264\310G\134 Riple\204(ft\203)\0" // NAD83(2011) / InGCS Ripley (ftUS)
    "\264\310G\134 Riple\204(m)\0" // NAD83(2011) / InGCS Ripley (m)
    "\264\310G\134|h\242\355(ft\203)\0" // NAD83(2011) / InGCS Shelby (ftUS)
    "\264\310G\134|h\242\355(m)\0" // NAD83(2011) / InGCS Shelby (m)
    "\264\310G\134|p\207c\007 (ft\203)\0" // NAD83(2011) / InGCS Spencer (ftUS)
    "\264\310G\134|p\207c\007 (m)\0" // NAD83(2011) / InGCS Spencer (m)
    "\264\310G\134|teub\207 (ft\203)\0" // NAD83(2011) / InGCS Steuben (ftUS)
    "\264\310G\134|teub\207 (m)\0" // NAD83(2011) / InGCS Steuben (m)
    "\264\310G\134|ulliv\005 (ft\203)\0" // NAD83(2011) / InGCS Sullivan (ftUS)
    "\264\310G\134|ulliv\005 (m)\0" // NAD83(2011) / InGCS Sullivan (m)
    "\264\310G\134 Tippec\005oe-Wh\245\010(ft\203)\0" // NAD83(2011) / InGCS Tippecanoe-White (ftUS)
    "\264\310G\134 Tippec\005oe-Wh\245\010(m)\0" // NAD83(2011) / InGCS Tippecanoe-White (m)
    "\264\310G\134 V\033\007b\224gh (ft\203)\0" // NAD83(2011) / InGCS Vanderburgh (ftUS)
    "\264\310G\134 V\033\007b\224gh (m)\0" // NAD83(2011) / InGCS Vanderburgh (m)
    "\264\310G\134 Vig\013(ft\203)\0" // NAD83(2011) / InGCS Vigo (ftUS)
    "\264\310G\134 Vig\013(m)\0" // NAD83(2011) / InGCS Vigo (m)
    "\264\310G\134 W\242ls (ft\203)\0" // NAD83(2011) / InGCS Wells (ftUS)
    "\264\310G\134 W\242ls (m)\0" // NAD83(2011) / InGCS Wells (m)
    "\264\360\336\027Ea\020\0" // NAD83(2011) / Indiana East
    "\264\360\336\027E\314(ft\203)\0" // NAD83(2011) / Indiana East (ftUS)
    "\264\360\336\027We\020\0" // NAD83(2011) / Indiana West
    "\264\360\336\027W\267(ft\203)\0" // NAD83(2011) / Indiana West (ftUS)
    "\264Iow\027\373\0" // NAD83(2011) / Iowa North
    "\264Iow\027\324(ft\203)\0" // NAD83(2011) / Iowa North (ftUS)
    "\264Iow\027S\365\0" // NAD83(2011) / Iowa South
    "\264Iow\027\370(ft\203)\0" // NAD83(2011) / Iowa South (ftUS)
    "\264KS R\134\2731\0" // NAD83(2011) / KS RCS zone 1
    "\264KS R\134\27310\0" // NAD83(2011) / KS RCS zone 10
    "\264KS R\134\27311\0" // NAD83(2011) / KS RCS zone 11
    "\264KS R\134\27312\0" // NAD83(2011) / KS RCS zone 12
    "\264KS R\134\27313\0" // NAD83(2011) / KS RCS zone 13
    "\264KS R\134\27314\0" // NAD83(2011) / KS RCS zone 14
    "\264KS R\134\27315\0" // NAD83(2011) / KS RCS zone 15
    "\264KS R\134\27316\0" // NAD83(2011) / KS RCS zone 16
    "\264KS R\134\27317\0" // NAD83(2011) / KS RCS zone 17
    "\264KS R\134\27318\0" // NAD83(2011) / KS RCS zone 18
    "\264KS R\134\27319\0" // NAD83(2011) / KS RCS zone 19
    "\264KS R\134\2732\0" // NAD83(2011) / KS RCS zone 2
    "\264KS R\134\27320\0" // NAD83(2011) / KS RCS zone 20
    "\264KS R\134\2733\0" // NAD83(2011) / KS RCS zone 3
    "\264KS R\134\2734\0" // NAD83(2011) / KS RCS zone 4
    "\264KS R\134\2735\0" // NAD83(2011) / KS RCS zone 5
    "\264KS R\134\2736\0" // NAD83(2011) / KS RCS zone 6
    "\264KS R\134\2737\0" // NAD83(2011) / KS RCS zone 7
    "\264KS R\134\2738\0" // NAD83(2011) / KS RCS zone 8
    "\264KS R\134\2739\0" // NAD83(2011) / KS RCS zone 9
    "\264K\005s} LCC\0" // NAD83(2011) / Kansas LCC
    "\264K\005s} LCC (ft\203)\0" // NAD83(2011) / Kansas LCC (ftUS)
    "\264K\005s} \373\0" // NAD83(2011) / Kansas North
    "\264K\005s} \324(ft\203)\0" // NAD83(2011) / Kansas North (ftUS)
    "\264K\005s}|\365\0" // NAD83(2011) / Kansas South
    "\264K\005s}|\250(ft\203)\0" // NAD83(2011) / Kansas South (ftUS)
    "\264Ke\035uck\204\373\0" // NAD83(2011) / Kentucky North
    "\264Ke\035uck\204\324(ft\203)\0" // NAD83(2011) / Kentucky North (ftUS)
    "\264Ke\035ucky|\023gl\010Z\003e\0" // NAD83(2011) / Kentucky Single Zone
    "\264Ke\035ucky|\023gl\010Z\003\010(ft\203)\0" // NAD83(2011) / Kentucky Single Zone (ftUS)
    "\264Ke\035ucky|\365\0" // NAD83(2011) / Kentucky South
    "\264Ke\035ucky|\250(ft\203)\0" // NAD83(2011) / Kentucky South (ftUS)
    "\264L\026\077\336\027\373\0" // NAD83(2011) / Louisiana North
    "\264L\026\077\336\027\324(ft\203)\0" // NAD83(2011) / Louisiana North (ftUS)
    "\264L\026\077\336\027S\365\0" // NAD83(2011) / Louisiana South
    "\264L\026\077\336\027\370(ft\203)\0" // NAD83(2011) / Louisiana South (ftUS)
    "\264Ma\023\010\134\2270 C\367\025\0" // NAD83(2011) / Maine CS2000 Central
    "\264Ma\023\010\134\2270 Ea\020\0" // NAD83(2011) / Maine CS2000 East
    "\264Ma\023\010\134\2270 We\020\0" // NAD83(2011) / Maine CS2000 West
    "\264Ma\023\010Ea\020\0" // NAD83(2011) / Maine East
    "\264Ma\023\010E\314(ft\203)\0" // NAD83(2011) / Maine East (ftUS)
    "\264Ma\023\010We\020\0" // NAD83(2011) / Maine West
    "\264Ma\023\010W\267(ft\203)\0" // NAD83(2011) / Maine West (ftUS)
    "\264M\037y\206\0" // NAD83(2011) / Maryland
    "\264M\037y\206 (ft\203)\0" // NAD83(2011) / Maryland (ftUS)
    "\264M}sach\351\036ts \335\0" // NAD83(2011) / Massachusetts Island
    "\264M}sach\351\036ts \335 (ft\203)\0" // NAD83(2011) / Massachusetts Island (ftUS)
    "\264M}sach\351\036ts Ma\023\206\0" // NAD83(2011) / Massachusetts Mainland
    "\264M}sach\351\036ts Ma\023\206 (ft\203)\0" // NAD83(2011) / Massachusetts Mainland (ftUS)
    "\264M#hig\005 C\367\025\0" // NAD83(2011) / Michigan Central
    "\264M#hig\005\327\367\025\201ft)\0" // NAD83(2011) / Michigan Central (ft)
    "\264M#hig\005 \373\0" // NAD83(2011) / Michigan North
    "\264M#hig\005 \324(ft)\0" // NAD83(2011) / Michigan North (ft)
    "\264M#hig\005 Obliqu\010M\007c=\006\0" // NAD83(2011) / Michigan Oblique Mercator
    "\264M#hig\005|\365\0" // NAD83(2011) / Michigan South
    "\264M#hig\005|\250(ft)\0" // NAD83(2011) / Michigan South (ft)
    "\264M\023n\220\337\027C\367\025\0" // NAD83(2011) / Minnesota Central
    "\264M\023n\220\337\027C\367\230(ft\203)\0" // NAD83(2011) / Minnesota Central (ftUS)
    "\264M\023n\220\337\027\373\0" // NAD83(2011) / Minnesota North
    "\264M\023n\220\337\027\324(ft\203)\0" // NAD83(2011) / Minnesota North (ftUS)
    "\264M\023n\220\337\027S\365\0" // NAD83(2011) / Minnesota South
    "\264M\023n\220\337\027\370(ft\203)\0" // NAD83(2011) / Minnesota South (ftUS)
    "\264M\077s\077sippi Ea\020\0" // NAD83(2011) / Mississippi East
    "\264M\077s\077sippi E\314(ft\203)\0" // NAD83(2011) / Mississippi East (ftUS)
    "\264M\077s\077sippi \254\0" // NAD83(2011) / Mississippi TM
    "\264M\077s\077sippi We\020\0" // NAD83(2011) / Mississippi West
    "\264M\077s\077sippi W\267(ft\203)\0" // NAD83(2011) / Mississippi West (ftUS)
    "\264M\077s\026ri C\367\025\0" // NAD83(2011) / Missouri Central
    "\264M\077s\026ri Ea\020\0" // NAD83(2011) / Missouri East
    "\264M\077s\026ri We\020\0" // NAD83(2011) / Missouri West
    "\264M\003t\005a\0" // NAD83(2011) / Montana
    "\264M\003t\005\027(ft)\0" // NAD83(2011) / Montana (ft)
    "\264NC{ L} Veg} (ft\203)\0" // NAD83(2011) / NCRS Las Vegas (ftUS)
    "\264NC{ L} Veg} (m)\0" // NAD83(2011) / NCRS Las Vegas (m)
    "\264NC{ L} Veg} high (ft\203)\0" // NAD83(2011) / NCRS Las Vegas high (ftUS)
    "\264NC{ L} Veg} high (m)\0" // NAD83(2011) / NCRS Las Vegas high (m)
    "\264\307br}ka\0" // NAD83(2011) / Nebraska
    "\264\307br}k\027(ft\203)\0" // NAD83(2011) / Nebraska (ftUS)
    "\264\307v\226\027C\367\025\0" // NAD83(2011) / Nevada Central
    "\264\307v\226\027C\367\230(ft\203)\0" // NAD83(2011) / Nevada Central (ftUS)
    "\264\307v\226\027Ea\020\0" // NAD83(2011) / Nevada East
    "\264\307v\226\027E\314(ft\203)\0" // NAD83(2011) / Nevada East (ftUS)
    "\264\307v\226\027We\020\0" // NAD83(2011) / Nevada West
    "\264\307v\226\027W\267(ft\203)\0" // NAD83(2011) / Nevada West (ftUS)
    "\264\357 H\225p<i>\0" // NAD83(2011) / New Hampshire
    "\264\357 H\225p<\340\010(ft\203)\0" // NAD83(2011) / New Hampshire (ftUS)
    "\264\357 J\232ey\0" // NAD83(2011) / New Jersey
    "\264\357 J\232e\204(ft\203)\0" // NAD83(2011) / New Jersey (ftUS)
    "\264\357 Mex#\013C\367\025\0" // NAD83(2011) / New Mexico Central
    "\264\357 Mex#\013C\367\230(ft\203)\0" // NAD83(2011) / New Mexico Central (ftUS)
    "\264\357 Mex#\013Ea\020\0" // NAD83(2011) / New Mexico East
    "\264\357 Mex#\013E\314(ft\203)\0" // NAD83(2011) / New Mexico East (ftUS)
    "\264\357 Mex#\013We\020\0" // NAD83(2011) / New Mexico West
    "\264\357 Mex#\013W\267(ft\203)\0" // NAD83(2011) / New Mexico West (ftUS)
    "\264\357 Y\006k C\367\025\0" // NAD83(2011) / New York Central
    "\264\357 Y\006k\327\367\230(ft\203)\0" // NAD83(2011) / New York Central (ftUS)
    "\264\357 Y\006k Ea\020\0" // NAD83(2011) / New York East
    "\264\357 Y\006k E\314(ft\203)\0" // NAD83(2011) / New York East (ftUS)
    "\264\357 Y\006k L\003g \335\0" // NAD83(2011) / New York Long Island
    "\264\357 Y\006k L\003g \335 (ft\203)\0" // NAD83(2011) / New York Long Island (ftUS)
    "\264\357 Y\006k We\020\0" // NAD83(2011) / New York West
    "\264\357 Y\006k W\267(ft\203)\0" // NAD83(2011) / New York West (ftUS)
    "\264\324C\037\246\023a\0" // NAD83(2011) / North Carolina
    "\264\324C\037\246\023\027(ft\203)\0" // NAD83(2011) / North Carolina (ftUS)
    "\264\324Dak\337\027\373\0" // NAD83(2011) / North Dakota North
    "\264\324Dak\337\027\324(ft)\0" // NAD83(2011) / North Dakota North (ft)
    "\264\324Dak\337\027S\365\0" // NAD83(2011) / North Dakota South
    "\264\324Dak\337\027\370(ft)\0" // NAD83(2011) / North Dakota South (ft)
    "\264Ohi\013\373\0" // NAD83(2011) / Ohio North
    "\264Ohi\013\324(ft\203)\0" // NAD83(2011) / Ohio North (ftUS)
    "\264Ohi\013S\365\0" // NAD83(2011) / Ohio South
    "\264Ohi\013\370(ft\203)\0" // NAD83(2011) / Ohio South (ftUS)
    "\264Okl\361\343\027\373\0" // NAD83(2011) / Oklahoma North
    "\264Okl\361\343\027\324(ft\203)\0" // NAD83(2011) / Oklahoma North (ftUS)
    "\264Okl\361\343\027S\365\0" // NAD83(2011) / Oklahoma South
    "\264Okl\361\343\027\370(ft\203)\0" // NAD83(2011) / Oklahoma South (ftUS)
    "\264\326\231Bak\007\273(ft)\0" // NAD83(2011) / Oregon Baker zone (ft)
    "\264\326\231Bak\007\273(m)\0" // NAD83(2011) / Oregon Baker zone (m)
    "\264\326\231B\207d-B\224ns\273(ft)\0" // NAD83(2011) / Oregon Bend-Burns zone (ft)
    "\264\326\231B\207d-B\224ns\273(m)\0" // NAD83(2011) / Oregon Bend-Burns zone (m)
    "\264\326\231B\207d-Kl\225a@F\025ls\273(ft)\0" // NAD83(2011) / Oregon Bend-Klamath Falls zone (ft)
    "\264\326\231B\207d-Kl\225a@F\025ls\273(m)\0" // NAD83(2011) / Oregon Bend-Klamath Falls zone (m)
    "\264\326\231B\207d-R\275m\003d-Pr\023ev\341l\010\344ft)\0" // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (ft)
    "\264\326\231B\207d-R\275m\003d-Pr\023ev\341l\010^(m)\0" // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (m)
    "\264\326\231B\224ns-H\037p\007\273(ft)\0" // NAD83(2011) / Oregon Burns-Harper zone (ft)
    "\264\326\231B\224ns-H\037p\007\273(m)\0" // NAD83(2011) / Oregon Burns-Harper zone (m)
    "\264\326\231C\005y\231C\245y-B\224ns\273(ft)\0" // NAD83(2011) / Oregon Canyon City-Burns zone (ft)
    "\264\326\231C\005y\231C\245y-B\224ns\273(m)\0" // NAD83(2011) / Oregon Canyon City-Burns zone (m)
    "\264\326\231C\005y\003v\341le-Gr\005ts P}s\273(ft)\0" // NAD83(2011) / Oregon Canyonville-Grants Pass zone (ft)
    "\264\326\231C\005y\003v\341le-Gr\005ts P}s\273(m)\0" // NAD83(2011) / Oregon Canyonville-Grants Pass zone (m)
    "\264\326\231Co\314R\005g\010\324\344ft)\0" // NAD83(2011) / Oregon Coast Range North zone (ft)
    "\264\326\231Co\314R\005g\010\324^(m)\0" // NAD83(2011) / Oregon Coast Range North zone (m)
    "\264\326\231Co\314\344ft)\0" // NAD83(2011) / Oregon Coast zone (ft)
    "\264\326\231Co\314^(m)\0" // NAD83(2011) / Oregon Coast zone (m)
    "\264\326\231C\246umb\315Riv\007 E\314\344ft)\0" // NAD83(2011) / Oregon Columbia River East zone (ft)
    "\264\326\231C\246umb\315Riv\007 E\314^(m)\0" // NAD83(2011) / Oregon Columbia River East zone (m)
    "\264\326\231C\246umb\315Riv\007 W\267\344ft)\0" // NAD83(2011) / Oregon Columbia River West zone (ft)
    "\264\326\231C\246umb\315Riv\007 W\267^(m)\0" // NAD83(2011) / Oregon Columbia River West zone (m)
    "\264\326\231C\337tag\010Grove-C\005y\003v\341l\010\344ft)\0" // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (ft)
    "\264\326\231C\337tag\010Grove-C\005y\003v\341l\010^(m)\0" // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (m)
    "\264\326\231Dayv\341le-P\350\340i\010C\245\204\344ft)\0" // NAD83(2011) / Oregon Dayville-Prairie City zone (ft)
    "\264\326\231Dayv\341le-P\350\340i\010C\245\204^(m)\0" // NAD83(2011) / Oregon Dayville-Prairie City zone (m)
    "\264\326\231D\207io-B\224ns\273(ft)\0" // NAD83(2011) / Oregon Denio-Burns zone (ft)
    "\264\326\231D\207io-B\224ns\273(m)\0" // NAD83(2011) / Oregon Denio-Burns zone (m)
    "\264\326\231Duf\224-M\226r}\273(ft)\0" // NAD83(2011) / Oregon Dufur-Madras zone (ft)
    "\264\326\231Duf\224-M\226r}\273(m)\0" // NAD83(2011) / Oregon Dufur-Madras zone (m)
    "\264\326\231Eug\207\010\344ft)\0" // NAD83(2011) / Oregon Eugene zone (ft)
    "\264\326\231Eug\207\010^(m)\0" // NAD83(2011) / Oregon Eugene zone (m)
    "\264\326\231GIC L\225b\007t\201ft)\0" // NAD83(2011) / Oregon GIC Lambert (ft)
    "\264\326\231Gr\005ts P}s-A<\206\273(ft)\0" // NAD83(2011) / Oregon Grants Pass-Ashland zone (ft)
    "\264\326\231Gr\005ts P}s-A<\206\273(m)\0" // NAD83(2011) / Oregon Grants Pass-Ashland zone (m)
    "\264\326\231G><\225-W\037m|pr\023gs\273(ft)\0" // NAD83(2011) / Oregon Gresham-Warm Springs zone (ft)
    "\264\326\231G><\225-W\037m|pr\023gs\273(m)\0" // NAD83(2011) / Oregon Gresham-Warm Springs zone (m)
    "\264\326\231H\025fwa\204\344ft)\0" // NAD83(2011) / Oregon Halfway zone (ft)
    "\264\326\231H\025fwa\204^(m)\0" // NAD83(2011) / Oregon Halfway zone (m)
    "\264\326\231LCC (m)\0" // NAD83(2011) / Oregon LCC (m)
    "\264\326\231L\027Gr\033\010\344ft)\0" // NAD83(2011) / Oregon La Grande zone (ft)
    "\264\326\231L\027Gr\033\010^(m)\0" // NAD83(2011) / Oregon La Grande zone (m)
    "\264\326\231M\275f\006d-Di\225\003d Lak\010\344ft)\0" // NAD83(2011) / Oregon Medford-Diamond Lake zone (ft)
    "\264\326\231M\275f\006d-Di\225\003d Lak\010^(m)\0" // NAD83(2011) / Oregon Medford-Diamond Lake zone (m)
    "\264\326\231M\245ch\242l\273(ft)\0" // NAD83(2011) / Oregon Mitchell zone (ft)
    "\264\326\231M\245ch\242l\273(m)\0" // NAD83(2011) / Oregon Mitchell zone (m)
    "\264\326\231\373\0" // NAD83(2011) / Oregon North
    "\264\326\231\324(ft)\0" // NAD83(2011) / Oregon North (ft)
    "\264\326\231\324C\367\230\344ft)\0" // NAD83(2011) / Oregon North Central zone (ft)
    "\264\326\231\324C\367\230^(m)\0" // NAD83(2011) / Oregon North Central zone (m)
    "\264\326\231Ochoc\013Summ\245\273(ft)\0" // NAD83(2011) / Oregon Ochoco Summit zone (ft)
    "\264\326\231Ochoc\013Summ\245\273(m)\0" // NAD83(2011) / Oregon Ochoco Summit zone (m)
    "\264\326\231O\035\037i\013\344ft)\0" // NAD83(2011) / Oregon Ontario zone (ft)
    "\264\326\231O\035\037i\013^(m)\0" // NAD83(2011) / Oregon Ontario zone (m)
    "\264\326\231Owyhe\010\344ft)\0" // NAD83(2011) / Oregon Owyhee zone (ft)
    "\264\326\231Owyhe\010^(m)\0" // NAD83(2011) / Oregon Owyhee zone (m)
    "\264\326\231P\207dl\036\231\344ft)\0" // NAD83(2011) / Oregon Pendleton zone (ft)
    "\264\326\231P\207dl\036\231^(m)\0" // NAD83(2011) / Oregon Pendleton zone (m)
    "\264\326\231P\207dl\036\003-L\027Gr\033\010\344ft)\0" // NAD83(2011) / Oregon Pendleton-La Grande zone (ft)
    "\264\326\231P\207dl\036\003-L\027Gr\033\010^(m)\0" // NAD83(2011) / Oregon Pendleton-La Grande zone (m)
    "\264\326\231P\341\337 Rock-Uki\361\273(ft)\0" // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (ft)
    "\264\326\231P\341\337 Rock-Uki\361\273(m)\0" // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (m)
    "\264\326\231P\006t\206\273(ft)\0" // NAD83(2011) / Oregon Portland zone (ft)
    "\264\326\231P\006t\206\273(m)\0" // NAD83(2011) / Oregon Portland zone (m)
    "\264\326\231P\350\340i\010C\245y-Brog\005\273(ft)\0" // NAD83(2011) / Oregon Prairie City-Brogan zone (ft)
    "\264\326\231P\350\340i\010C\245y-Brog\005\273(m)\0" // NAD83(2011) / Oregon Prairie City-Brogan zone (m)
    "\264\326\231R\341ey-Lakeview\273(ft)\0" // NAD83(2011) / Oregon Riley-Lakeview zone (ft)
    "\264\326\231R\341ey-Lakeview\273(m)\0" // NAD83(2011) / Oregon Riley-Lakeview zone (m)
    "\264\326\003|\025\212\273(ft)\0" // NAD83(2011) / Oregon Salem zone (ft)
    "\264\326\003|\025\212\273(m)\0" // NAD83(2011) / Oregon Salem zone (m)
    "\264\326\003|\005ti\225 P}s\273(ft)\0" // NAD83(2011) / Oregon Santiam Pass zone (ft)
    "\264\326\003|\005ti\225 P}s\273(m)\0" // NAD83(2011) / Oregon Santiam Pass zone (m)
    "\264\326\003|\077kiy\026 P}s\273(ft)\0" // NAD83(2011) / Oregon Siskiyou Pass zone (ft)
    "\264\326\003|\077kiy\026 P}s\273(m)\0" // NAD83(2011) / Oregon Siskiyou Pass zone (m)
    "\264\326\003|\365\0" // NAD83(2011) / Oregon South
    "\264\326\003|\250(ft)\0" // NAD83(2011) / Oregon South (ft)
    "\264\326\231Uki\361-Fox\273(ft)\0" // NAD83(2011) / Oregon Ukiah-Fox zone (ft)
    "\264\326\231Uki\361-Fox\273(m)\0" // NAD83(2011) / Oregon Ukiah-Fox zone (m)
    "\264\326\231W\025low\027\344ft)\0" // NAD83(2011) / Oregon Wallowa zone (ft)
    "\264\326\231W\025low\027^(m)\0" // NAD83(2011) / Oregon Wallowa zone (m)
    "\264\326\231W\037n\007 Highwa\204\344ft)\0" // NAD83(2011) / Oregon Warner Highway zone (ft)
    "\264\326\231W\037n\007 Highwa\204^(m)\0" // NAD83(2011) / Oregon Warner Highway zone (m)
    "\264\326\231W\341l\225\036t\010P}s\273(ft)\0" // NAD83(2011) / Oregon Willamette Pass zone (ft)
    "\264\326\231W\341l\225\036t\010P}s\273(m)\0" // NAD83(2011) / Oregon Willamette Pass zone (m)
    "\264PC\134\2731\201ft)\0" // NAD83(2011) / PCCS zone 1 (ft)
    "\264PC\134\2732\201ft)\0" // NAD83(2011) / PCCS zone 2 (ft)
    "\264PC\134\2733\201ft)\0" // NAD83(2011) / PCCS zone 3 (ft)
    "\264PC\134\2734\201ft)\0" // NAD83(2011) / PCCS zone 4 (ft)
    "\264P\207nsylv\005\315\373\0" // NAD83(2011) / Pennsylvania North
    "\264P\207nsylv\005\315\324(ft\203)\0" // NAD83(2011) / Pennsylvania North (ftUS)
    "\264P\207nsylv\005\315S\365\0" // NAD83(2011) / Pennsylvania South
    "\264P\207nsylv\005\315\370(ft\203)\0" // NAD83(2011) / Pennsylvania South (ftUS)
    "\264Pu\007t\013R#\013\253V\340g\023 \316.\0" // NAD83(2011) / Puerto Rico and Virgin Is.
    "\264RMTC{ B\341l\023gs\201ft)\0" // NAD83(2011) / RMTCRS Billings (ft)
    "\264RMTC{ B\341l\023gs (m)\0" // NAD83(2011) / RMTCRS Billings (m)
    "\264RMTC{ Blackf\234\201ft)\0" // NAD83(2011) / RMTCRS Blackfeet (ft)
    "\264RMTC{ Blackf\234 (m)\0" // NAD83(2011) / RMTCRS Blackfeet (m)
    "\264RMTC{ Bobc=\201ft)\0" // NAD83(2011) / RMTCRS Bobcat (ft)
    "\264RMTC{ Bobc= (m)\0" // NAD83(2011) / RMTCRS Bobcat (m)
    "\264RMTC{\327row\201ft)\0" // NAD83(2011) / RMTCRS Crow (ft)
    "\264RMTC{\327row (m)\0" // NAD83(2011) / RMTCRS Crow (m)
    "\264RMTC{ F\006t B\242knap\201ft)\0" // NAD83(2011) / RMTCRS Fort Belknap (ft)
    "\264RMTC{ F\006t B\242knap (m)\0" // NAD83(2011) / RMTCRS Fort Belknap (m)
    "\264RMTC{ F\006t Peck Ass\023ibo\023\010(ft)\0" // NAD83(2011) / RMTCRS Fort Peck Assiniboine (ft)
    "\264RMTC{ F\006t Peck Ass\023ibo\023\010(m)\0" // NAD83(2011) / RMTCRS Fort Peck Assiniboine (m)
    "\264RMTC{ F\006t Peck|i\026x\201ft)\0" // NAD83(2011) / RMTCRS Fort Peck Sioux (ft)
    "\264RMTC{ F\006t Peck|i\026x (m)\0" // NAD83(2011) / RMTCRS Fort Peck Sioux (m)
    "\264RMTC{ M\341k Riv\007\201ft)\0" // NAD83(2011) / RMTCRS Milk River (ft)
    "\264RMTC{ M\341k Riv\007 (m)\0" // NAD83(2011) / RMTCRS Milk River (m)
    "\264RMTC{|t M\037y\201ft)\0" // NAD83(2011) / RMTCRS St Mary (ft)
    "\264RMTC{|t M\037\204(m)\0" // NAD83(2011) / RMTCRS St Mary (m)
    "\264RMTC{ W\023d Riv\007 (ft\203)\0" // NAD83(2011) / RMTCRS Wind River (ftUS)
    "\264RMTC{ W\023d Riv\007 (m)\0" // NAD83(2011) / RMTCRS Wind River (m)
    "\264Rhod\010\335\0" // NAD83(2011) / Rhode Island
    "\264Rhod\010\335 (ft\203)\0" // NAD83(2011) / Rhode Island (ftUS)
    "\264S\005 Fr\005c\077c\013\13413\0" // NAD83(2011) / San Francisco CS13
    "\264S\005 Fr\005c\077c\013\13413 (ft\203)\0" // NAD83(2011) / San Francisco CS13 (ftUS)
    "\264\370C\037\246\023a\0" // NAD83(2011) / South Carolina
    "\264\370C\037\246\023\027(ft)\0" // NAD83(2011) / South Carolina (ft)
    "\264\370Dak\337\027\373\0" // NAD83(2011) / South Dakota North
    "\264\370Dak\337\027\324(ft\203)\0" // NAD83(2011) / South Dakota North (ftUS)
    "\264\370Dak\337\027S\365\0" // NAD83(2011) / South Dakota South
    "\264\370Dak\337\027\370(ft\203)\0" // NAD83(2011) / South Dakota South (ftUS)
    "\264T\207n\220see\0" // NAD83(2011) / Tennessee
    "\264T\207n\220se\010(ft\203)\0" // NAD83(2011) / Tennessee (ftUS)
    "\264Tex} C\367\025\0" // NAD83(2011) / Texas Central
    "\264Tex}\327\367\230(ft\203)\0" // NAD83(2011) / Texas Central (ftUS)
    "\264Tex}\327\367# Alb\232 Equ\230A>a\0" // NAD83(2011) / Texas Centric Albers Equal Area
    "\264Tex}\327\367# L\225b\007t\327\003f\006m\025\0" // NAD83(2011) / Texas Centric Lambert Conformal
    "\264Tex} \373\0" // NAD83(2011) / Texas North
    "\264Tex} \324(ft\203)\0" // NAD83(2011) / Texas North (ftUS)
    "\264Tex} \324C\367\025\0" // NAD83(2011) / Texas North Central
    "\264Tex} \324C\367\230(ft\203)\0" // NAD83(2011) / Texas North Central (ftUS)
    "\264Tex}|\365\0" // NAD83(2011) / Texas South
    "\264Tex}|\250(ft\203)\0" // NAD83(2011) / Texas South (ftUS)
    "\264Tex}|\250C\367\025\0" // NAD83(2011) / Texas South Central
    "\264Tex}|\250C\367\230(ft\203)\0" // NAD83(2011) / Texas South Central (ftUS)
    "\264U\254\273\312N\0" // NAD83(2011) / UTM zone 10N
    "\264U\254\27311N\0" // NAD83(2011) / UTM zone 11N
    "\264U\254\27312N\0" // NAD83(2011) / UTM zone 12N
    "\264U\254\27313N\0" // NAD83(2011) / UTM zone 13N
    "\264U\254\27314N\0" // NAD83(2011) / UTM zone 14N
    "\264U\254\27315N\0" // NAD83(2011) / UTM zone 15N
    "\264U\254\27316N\0" // NAD83(2011) / UTM zone 16N
    "\264U\254\27317N\0" // NAD83(2011) / UTM zone 17N
    "\264U\254\27318N\0" // NAD83(2011) / UTM zone 18N
    "\264U\254\27319N\0" // NAD83(2011) / UTM zone 19N
    "\264U\254\2731N\0" // NAD83(2011) / UTM zone 1N
    "\264U\254\2732N\0" // NAD83(2011) / UTM zone 2N
    "\264U\254\2733N\0" // NAD83(2011) / UTM zone 3N
    "\264U\254\2734N\0" // NAD83(2011) / UTM zone 4N
    "\264U\254\27359N\0" // NAD83(2011) / UTM zone 59N
    "\264U\254\2735N\0" // NAD83(2011) / UTM zone 5N
    "\264U\254\27360N\0" // NAD83(2011) / UTM zone 60N
    "\264U\254\2736N\0" // NAD83(2011) / UTM zone 6N
    "\264U\254\2737N\0" // NAD83(2011) / UTM zone 7N
    "\264U\254\2738N\0" // NAD83(2011) / UTM zone 8N
    "\264U\254\2739N\0" // NAD83(2011) / UTM zone 9N
    "\264Ut\361 C\367\025\0" // NAD83(2011) / Utah Central
    "\264Ut\361\327\367\230(ft\203)\0" // NAD83(2011) / Utah Central (ftUS)
    "\264Ut\361 \373\0" // NAD83(2011) / Utah North
    "\264Ut\361 \324(ft\203)\0" // NAD83(2011) / Utah North (ftUS)
    "\264Ut\361|\365\0" // NAD83(2011) / Utah South
    "\264Ut\361|\250(ft\203)\0" // NAD83(2011) / Utah South (ftUS)
    "\264V\007m\003t\0" // NAD83(2011) / Vermont
    "\264V\007m\003t (ft\203)\0" // NAD83(2011) / Vermont (ftUS)
    "\264V\340g\023\315L\225b\007t\0" // NAD83(2011) / Virginia Lambert
    "\264V\340g\023\315\373\0" // NAD83(2011) / Virginia North
    "\264V\340g\023\315\324(ft\203)\0" // NAD83(2011) / Virginia North (ftUS)
    "\264V\340g\023\315S\365\0" // NAD83(2011) / Virginia South
    "\264V\340g\023\315\370(ft\203)\0" // NAD83(2011) / Virginia South (ftUS)
    "\264WI\323{ Ad\225s\374Juneau (ft\203)\0" // NAD83(2011) / WISCRS Adams and Juneau (ftUS)
    "\264WI\323{ Ad\225s\374Juneau (m)\0" // NAD83(2011) / WISCRS Adams and Juneau (m)
    "\264WI\323{ A<\206 (ft\203)\0" // NAD83(2011) / WISCRS Ashland (ftUS)
    "\264WI\323{ A<\206 (m)\0" // NAD83(2011) / WISCRS Ashland (m)
    "\264WI\323{ B\037r\231(ft\203)\0" // NAD83(2011) / WISCRS Barron (ftUS)
    "\264WI\323{ B\037r\231(m)\0" // NAD83(2011) / WISCRS Barron (m)
    "\264WI\323{ Bayfi\242d (ft\203)\0" // NAD83(2011) / WISCRS Bayfield (ftUS)
    "\264WI\323{ Bayfi\242d (m)\0" // NAD83(2011) / WISCRS Bayfield (m)
    "\264WI\323{ Brown (ft\203)\0" // NAD83(2011) / WISCRS Brown (ftUS)
    "\264WI\323{ Brown (m)\0" // NAD83(2011) / WISCRS Brown (m)
    "\264WI\323{ Buff\025\013(ft\203)\0" // NAD83(2011) / WISCRS Buffalo (ftUS)
    "\264WI\323{ Buff\025\013(m)\0" // NAD83(2011) / WISCRS Buffalo (m)
    "\264WI\323{ B\224n\036t (ft\203)\0" // NAD83(2011) / WISCRS Burnett (ftUS)
    "\264WI\323{ B\224n\036t (m)\0" // NAD83(2011) / WISCRS Burnett (m)
    "\264WI\323{\327\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebag\013(ft\203)\0" // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    "\264WI\323{\327\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebag\013(m)\0" // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    "\264WI\323{\327hippew\027(ft\203)\0" // NAD83(2011) / WISCRS Chippewa (ftUS)
    "\264WI\323{\327hippew\027(m)\0" // NAD83(2011) / WISCRS Chippewa (m)
    "\264WI\323{\327l\037k (ft\203)\0" // NAD83(2011) / WISCRS Clark (ftUS)
    "\264WI\323{\327l\037k (m)\0" // NAD83(2011) / WISCRS Clark (m)
    "\264WI\323{\327\246umb\315(ft\203)\0" // NAD83(2011) / WISCRS Columbia (ftUS)
    "\264WI\323{\327\246umb\315(m)\0" // NAD83(2011) / WISCRS Columbia (m)
    "\264WI\323{\327\350wf\006d (ft\203)\0" // NAD83(2011) / WISCRS Crawford (ftUS)
    "\264WI\323{\327\350wf\006d (m)\0" // NAD83(2011) / WISCRS Crawford (m)
    "\264WI\323{ D\005\010(ft\203)\0" // NAD83(2011) / WISCRS Dane (ftUS)
    "\264WI\323{ D\005\010(m)\0" // NAD83(2011) / WISCRS Dane (m)
    "\264WI\323{ Dodg\010\253Jeff\232\231(ft\203)\0" // NAD83(2011) / WISCRS Dodge and Jefferson (ftUS)
    "\264WI\323{ Dodg\010\253Jeff\232\231(m)\0" // NAD83(2011) / WISCRS Dodge and Jefferson (m)
    "\264WI\323{ Do\006 (ft\203)\0" // NAD83(2011) / WISCRS Door (ftUS)
    "\264WI\323{ Do\006 (m)\0" // NAD83(2011) / WISCRS Door (m)
    "\264WI\323{ D\026gl} (ft\203)\0" // NAD83(2011) / WISCRS Douglas (ftUS)
    "\264WI\323{ D\026gl} (m)\0" // NAD83(2011) / WISCRS Douglas (m)
    "\264WI\323{ Dunn (ft\203)\0" // NAD83(2011) / WISCRS Dunn (ftUS)
    "\264WI\323{ Dunn (m)\0" // NAD83(2011) / WISCRS Dunn (m)
    "\264WI\323{ Eau\327la\340\010(ft\203)\0" // NAD83(2011) / WISCRS Eau Claire (ftUS)
    "\264WI\323{ Eau\327la\340\010(m)\0" // NAD83(2011) / WISCRS Eau Claire (m)
    "\264WI\323{ Fl\006\207c\010(ft\203)\0" // NAD83(2011) / WISCRS Florence (ftUS)
    "\264WI\323{ Fl\006\207c\010(m)\0" // NAD83(2011) / WISCRS Florence (m)
    "\264WI\323{ F\006\267(ft\203)\0" // NAD83(2011) / WISCRS Forest (ftUS)
    "\264WI\323{ F\006\267(m)\0" // NAD83(2011) / WISCRS Forest (m)
    "\264WI\323{ Gr\005t (ft\203)\0" // NAD83(2011) / WISCRS Grant (ftUS)
    "\264WI\323{ Gr\005t (m)\0" // NAD83(2011) / WISCRS Grant (m)
    "\264WI\323{ G>\207 Lak\010\253M\037qu\036t\010(ft\203)\0" // NAD83(2011) / WISCRS Green Lake and Marquette (ftUS)
    "\264WI\323{ G>\207 Lak\010\253M\037qu\036t\010(m)\0" // NAD83(2011) / WISCRS Green Lake and Marquette (m)
    "\264WI\323{ G>\207\374Lafay\036t\010(ft\203)\0" // NAD83(2011) / WISCRS Green and Lafayette (ftUS)
    "\264WI\323{ G>\207\374Lafay\036t\010(m)\0" // NAD83(2011) / WISCRS Green and Lafayette (m)
    "\264WI\323{ Iow\027(ft\203)\0" // NAD83(2011) / WISCRS Iowa (ftUS)
    "\264WI\323{ Iow\027(m)\0" // NAD83(2011) / WISCRS Iowa (m)
    "\264WI\323{ Ir\231(ft\203)\0" // NAD83(2011) / WISCRS Iron (ftUS)
    "\264WI\323{ Ir\231(m)\0" // NAD83(2011) / WISCRS Iron (m)
    "\264WI\323{ Jacks\231(ft\203)\0" // NAD83(2011) / WISCRS Jackson (ftUS)
    "\264WI\323{ Jacks\231(m)\0" // NAD83(2011) / WISCRS Jackson (m)
    "\264WI\323{ K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023\010(ft\203)\0" // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    "\264WI\323{ K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023\010(m)\0" // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    "\264WI\323{ Kewaunee\277M\005\245owoc \033|heboyg\005 (ft\203)\0" // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    "\264WI\323{ Kewaunee\277M\005\245owoc \033|heboyg\005 (m)\0" // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    "\264WI\323{ L\027Cross\010(ft\203)\0" // NAD83(2011) / WISCRS La Crosse (ftUS)
    "\264WI\323{ L\027Cross\010(m)\0" // NAD83(2011) / WISCRS La Crosse (m)
    "\264WI\323{ L\005gl\226\010(ft\203)\0" // NAD83(2011) / WISCRS Langlade (ftUS)
    "\264WI\323{ L\005gl\226\010(m)\0" // NAD83(2011) / WISCRS Langlade (m)
    "\264WI\323{ L\023c\246n (ft\203)\0" // NAD83(2011) / WISCRS Lincoln (ftUS)
    "\264WI\323{ L\023c\246n (m)\0" // NAD83(2011) / WISCRS Lincoln (m)
    "\264WI\323{ M\037a\024\231(ft\203)\0" // NAD83(2011) / WISCRS Marathon (ftUS)
    "\264WI\323{ M\037a\024\231(m)\0" // NAD83(2011) / WISCRS Marathon (m)
    "\264WI\323{ M\037\023\036t\010(ft\203)\0" // NAD83(2011) / WISCRS Marinette (ftUS)
    "\264WI\323{ M\037\023\036t\010(m)\0" // NAD83(2011) / WISCRS Marinette (m)
    "\264WI\323{ M\207\343\023e\010(ft\203)\0" // NAD83(2011) / WISCRS Menominee (ftUS)
    "\264WI\323{ M\207\343\023e\010(m)\0" // NAD83(2011) / WISCRS Menominee (m)
    "\264WI\323{ M\003ro\010(ft\203)\0" // NAD83(2011) / WISCRS Monroe (ftUS)
    "\264WI\323{ M\003ro\010(m)\0" // NAD83(2011) / WISCRS Monroe (m)
    "\264WI\323{ Oc\003t\013(ft\203)\0" // NAD83(2011) / WISCRS Oconto (ftUS)
    "\264WI\323{ Oc\003t\013(m)\0" // NAD83(2011) / WISCRS Oconto (m)
    "\264WI\323{ One\257\027(ft\203)\0" // NAD83(2011) / WISCRS Oneida (ftUS)
    "\264WI\323{ One\257\027(m)\0" // NAD83(2011) / WISCRS Oneida (m)
    "\264WI\323{ Pep\023\374Pi\007c\010(ft\203)\0" // NAD83(2011) / WISCRS Pepin and Pierce (ftUS)
    "\264WI\323{ Pep\023\374Pi\007c\010(m)\0" // NAD83(2011) / WISCRS Pepin and Pierce (m)
    "\264WI\323{ P\246k (ft\203)\0" // NAD83(2011) / WISCRS Polk (ftUS)
    "\264WI\323{ P\246k (m)\0" // NAD83(2011) / WISCRS Polk (m)
    "\264WI\323{ P\006tag\010(ft\203)\0" // NAD83(2011) / WISCRS Portage (ftUS)
    "\264WI\323{ P\006tag\010(m)\0" // NAD83(2011) / WISCRS Portage (m)
    "\264WI\323{ Pr#\010(ft\203)\0" // NAD83(2011) / WISCRS Price (ftUS)
    "\264WI\323{ Pr#\010(m)\0" // NAD83(2011) / WISCRS Price (m)
    "\264WI\323{ R#h\206 (ft\203)\0" // NAD83(2011) / WISCRS Richland (ftUS)
    "\264WI\323{ R#h\206 (m)\0" // NAD83(2011) / WISCRS Richland (m)
    "\264WI\323{ Rock (ft\203)\0" // NAD83(2011) / WISCRS Rock (ftUS)
    "\264WI\323{ Rock (m)\0" // NAD83(2011) / WISCRS Rock (m)
    "\264WI\323{ R\351k (ft\203)\0" // NAD83(2011) / WISCRS Rusk (ftUS)
    "\264WI\323{ R\351k (m)\0" // NAD83(2011) / WISCRS Rusk (m)
    "\264WI\323{|auk (ft\203)\0" // NAD83(2011) / WISCRS Sauk (ftUS)
    "\264WI\323{|auk (m)\0" // NAD83(2011) / WISCRS Sauk (m)
    "\264WI\323{|awy\007 (ft\203)\0" // NAD83(2011) / WISCRS Sawyer (ftUS)
    "\264WI\323{|awy\007 (m)\0" // NAD83(2011) / WISCRS Sawyer (m)
    "\264WI\323{|haw\005\013(ft\203)\0" // NAD83(2011) / WISCRS Shawano (ftUS)
    "\264WI\323{|haw\005\013(m)\0" // NAD83(2011) / WISCRS Shawano (m)
    "\264WI\323{|t.\327roix (ft\203)\0" // NAD83(2011) / WISCRS St. Croix (ftUS)
    "\264WI\323{|t.\327roix (m)\0" // NAD83(2011) / WISCRS St. Croix (m)
    "\264WI\323{ Tayl\006 (ft\203)\0" // NAD83(2011) / WISCRS Taylor (ftUS)
    "\264WI\323{ Tayl\006 (m)\0" // NAD83(2011) / WISCRS Taylor (m)
    "\264WI\323{ T>mpe\025eau (ft\203)\0" // NAD83(2011) / WISCRS Trempealeau (ftUS)
    "\264WI\323{ T>mpe\025eau (m)\0" // NAD83(2011) / WISCRS Trempealeau (m)
    "\264WI\323{ V\007n\231(ft\203)\0" // NAD83(2011) / WISCRS Vernon (ftUS)
    "\264WI\323{ V\007n\231(m)\0" // NAD83(2011) / WISCRS Vernon (m)
    "\264WI\323{ V\341} (ft\203)\0" // NAD83(2011) / WISCRS Vilas (ftUS)
    "\264WI\323{ V\341} (m)\0" // NAD83(2011) / WISCRS Vilas (m)
    "\264WI\323{ W\025w\006@(ft\203)\0" // NAD83(2011) / WISCRS Walworth (ftUS)
    "\264WI\323{ W\025w\006@(m)\0" // NAD83(2011) / WISCRS Walworth (m)
    "\264WI\323{ Wa<b\224n (ft\203)\0" // NAD83(2011) / WISCRS Washburn (ftUS)
    "\264WI\323{ Wa<b\224n (m)\0" // NAD83(2011) / WISCRS Washburn (m)
    "\264WI\323{ Wa<\023gt\231(ft\203)\0" // NAD83(2011) / WISCRS Washington (ftUS)
    "\264WI\323{ Wa<\023gt\231(m)\0" // NAD83(2011) / WISCRS Washington (m)
    "\264WI\323{ Wauke<\027(ft\203)\0" // NAD83(2011) / WISCRS Waukesha (ftUS)
    "\264WI\323{ Wauke<\027(m)\0" // NAD83(2011) / WISCRS Waukesha (m)
    "\264WI\323{ Waupac\027(ft\203)\0" // NAD83(2011) / WISCRS Waupaca (ftUS)
    "\264WI\323{ Waupac\027(m)\0" // NAD83(2011) / WISCRS Waupaca (m)
    "\264WI\323{ Wau<\037\027(ft\203)\0" // NAD83(2011) / WISCRS Waushara (ftUS)
    "\264WI\323{ Wau<\037\027(m)\0" // NAD83(2011) / WISCRS Waushara (m)
    "\264WI\323{ Wood (ft\203)\0" // NAD83(2011) / WISCRS Wood (ftUS)
    "\264WI\323{ Wood (m)\0" // NAD83(2011) / WISCRS Wood (m)
    "\264Wa<\023gt\231\373\0" // NAD83(2011) / Washington North
    "\264Wa<\023gt\231\324(ft\203)\0" // NAD83(2011) / Washington North (ftUS)
    "\264Wa<\023gt\003|\365\0" // NAD83(2011) / Washington South
    "\264Wa<\023gt\003|\250(ft\203)\0" // NAD83(2011) / Washington South (ftUS)
    "\264W\267V\340g\023\315\373\0" // NAD83(2011) / West Virginia North
    "\264W\267V\340g\023\315\324(ft\203)\0" // NAD83(2011) / West Virginia North (ftUS)
    "\264W\267V\340g\023\315S\365\0" // NAD83(2011) / West Virginia South
    "\264W\267V\340g\023\315\370(ft\203)\0" // NAD83(2011) / West Virginia South (ftUS)
    "\264W\077c\003s\023 C\367\025\0" // NAD83(2011) / Wisconsin Central
    "\264W\077c\003s\023\327\367\230(ft\203)\0" // NAD83(2011) / Wisconsin Central (ftUS)
    "\264W\077c\003s\023 \373\0" // NAD83(2011) / Wisconsin North
    "\264W\077c\003s\023 \324(ft\203)\0" // NAD83(2011) / Wisconsin North (ftUS)
    "\264W\077c\003s\023|\365\0" // NAD83(2011) / Wisconsin South
    "\264W\077c\003s\023|\250(ft\203)\0" // NAD83(2011) / Wisconsin South (ftUS)
    "\264W\077c\003s\023 Tr\005sv\232\010M\007c=\006\0" // NAD83(2011) / Wisconsin Transverse Mercator
    "\264Wy\343\023g Ea\020\0" // NAD83(2011) / Wyoming East
    "\264Wy\343\023g E\314(ft\203)\0" // NAD83(2011) / Wyoming East (ftUS)
    "\264Wy\343\023g E\314C\367\025\0" // NAD83(2011) / Wyoming East Central
    "\264Wy\343\023g E\314C\367\230(ft\203)\0" // NAD83(2011) / Wyoming East Central (ftUS)
    "\264Wy\343\023g We\020\0" // NAD83(2011) / Wyoming West
    "\264Wy\343\023g W\267(ft\203)\0" // NAD83(2011) / Wyoming West (ftUS)
    "\264Wy\343\023g W\267C\367\025\0" // NAD83(2011) / Wyoming West Central
    "\264Wy\343\023g W\267C\367\230(ft\203)\0" // NAD83(2011) / Wyoming West Central (ftUS)
    "%CO{96)\0" // NAD83(CORS96)
    "%CO{96*\326\231Bak\007\273(ft)\0" // NAD83(CORS96) / Oregon Baker zone (ft)
    "%CO{96*\326\231Bak\007\273(m)\0" // NAD83(CORS96) / Oregon Baker zone (m)
    "%CO{96*\326\231B\207d-B\224ns\273(ft)\0" // NAD83(CORS96) / Oregon Bend-Burns zone (ft)
    "%CO{96*\326\231B\207d-B\224ns\273(m)\0" // NAD83(CORS96) / Oregon Bend-Burns zone (m)
    "%CO{96*\326\231B\207d-Kl\225a@F\025ls\273(ft)\0" // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (ft)
    "%CO{96*\326\231B\207d-Kl\225a@F\025ls\273(m)\0" // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (m)
    "%CO{96*\326\231B\207d-R\275m\003d-Pr\023ev\341l\010\344ft)\0" // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (ft)
    "%CO{96*\326\231B\207d-R\275m\003d-Pr\023ev\341l\010^(m)\0" // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (m)
    "%CO{96*\326\231C\005y\003v\341le-Gr\005ts P}s\273(ft)\0" // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (ft)
    "%CO{96*\326\231C\005y\003v\341le-Gr\005ts P}s\273(m)\0" // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (m)
    "%CO{96*\326\231Co\314\344ft)\0" // NAD83(CORS96) / Oregon Coast zone (ft)
    "%CO{96*\326\231Co\314^(m)\0" // NAD83(CORS96) / Oregon Coast zone (m)
    "%CO{96*\326\231C\246umb\315Riv\007 E\314\344ft)\0" // NAD83(CORS96) / Oregon Columbia River East zone (ft)
    "%CO{96*\326\231C\246umb\315Riv\007 E\314^(m)\0" // NAD83(CORS96) / Oregon Columbia River East zone (m)
    "%CO{96*\326\231C\246umb\315Riv\007 W\267\344ft)\0" // NAD83(CORS96) / Oregon Columbia River West zone (ft)
    "%CO{96*\326\231C\246umb\315Riv\007 W\267^(m)\0" // NAD83(CORS96) / Oregon Columbia River West zone (m)
    "%CO{96*\326\231C\337tag\010Grove-C\005y\003v\341l\010\344ft)\0" // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (ft)
    "%CO{96*\326\231C\337tag\010Grove-C\005y\003v\341l\010^(m)\0" // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (m)
    "%CO{96*\326\231Duf\224-M\226r}\273(ft)\0" // NAD83(CORS96) / Oregon Dufur-Madras zone (ft)
    "%CO{96*\326\231Duf\224-M\226r}\273(m)\0" // NAD83(CORS96) / Oregon Dufur-Madras zone (m)
    "%CO{96*\326\231Eug\207\010\344ft)\0" // NAD83(CORS96) / Oregon Eugene zone (ft)
    "%CO{96*\326\231Eug\207\010^(m)\0" // NAD83(CORS96) / Oregon Eugene zone (m)
    "%CO{96*\326\231GIC L\225b\007t\201ft)\0" // NAD83(CORS96) / Oregon GIC Lambert (ft)
    "%CO{96*\326\231Gr\005ts P}s-A<\206\273(ft)\0" // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (ft)
    "%CO{96*\326\231Gr\005ts P}s-A<\206\273(m)\0" // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (m)
    "%CO{96*\326\231G><\225-W\037m|pr\023gs\273(ft)\0" // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (ft)
    "%CO{96*\326\231G><\225-W\037m|pr\023gs\273(m)\0" // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (m)
    "%CO{96*\326\231LCC (m)\0" // NAD83(CORS96) / Oregon LCC (m)
    "%CO{96*\326\231L\027Gr\033\010\344ft)\0" // NAD83(CORS96) / Oregon La Grande zone (ft)
    "%CO{96*\326\231L\027Gr\033\010^(m)\0" // NAD83(CORS96) / Oregon La Grande zone (m)
    "%CO{96*\326\231\373\0" // NAD83(CORS96) / Oregon North
    "%CO{96*\326\231\324(ft)\0" // NAD83(CORS96) / Oregon North (ft)
    "%CO{96*\326\231O\035\037i\013\344ft)\0" // NAD83(CORS96) / Oregon Ontario zone (ft)
    "%CO{96*\326\231O\035\037i\013^(m)\0" // NAD83(CORS96) / Oregon Ontario zone (m)
    "%CO{96*\326\231P\207dl\036\231\344ft)\0" // NAD83(CORS96) / Oregon Pendleton zone (ft)
    "%CO{96*\326\231P\207dl\036\231^(m)\0" // NAD83(CORS96) / Oregon Pendleton zone (m)
    "%CO{96*\326\231P\207dl\036\003-L\027Gr\033\010\344ft)\0" // NAD83(CORS96) / Oregon Pendleton-La Grande zone (ft)
    "%CO{96*\326\231P\207dl\036\003-L\027Gr\033\010^(m)\0" // NAD83(CORS96) / Oregon Pendleton-La Grande zone (m)
    "%CO{96*\326\231P\006t\206\273(ft)\0" // NAD83(CORS96) / Oregon Portland zone (ft)
    "%CO{96*\326\231P\006t\206\273(m)\0" // NAD83(CORS96) / Oregon Portland zone (m)
    "%CO{96*\326\003|\025\212\273(ft)\0" // NAD83(CORS96) / Oregon Salem zone (ft)
    "%CO{96*\326\003|\025\212\273(m)\0" // NAD83(CORS96) / Oregon Salem zone (m)
    "%CO{96*\326\003|\005ti\225 P}s\273(ft)\0" // NAD83(CORS96) / Oregon Santiam Pass zone (ft)
    "%CO{96*\326\003|\005ti\225 P}s\273(m)\0" // NAD83(CORS96) / Oregon Santiam Pass zone (m)
    "%CO{96*\326\003|\365\0" // NAD83(CORS96) / Oregon South
    "%CO{96*\326\003|\250(ft)\0" // NAD83(CORS96) / Oregon South (ft)
    "%CO{96*Pu\007t\013R#\013\253V\340g\023 \316.\0" // NAD83(CORS96) / Puerto Rico and Virgin Is.
    "%\134{)\0" // NAD83(CSRS)
    "%\134{) \0" // NAD83(CSRS) 
    "%\134{*Alb\007t\027\312-\254\201F\006e\020)\0" // NAD83(CSRS) / Alberta 10-TM (Forest)
    "%\134{*Alb\007t\027\312-\254\201R\220\026rce)\0" // NAD83(CSRS) / Alberta 10-TM (Resource)
    "%\134{*Alb\007t\0273\254 >f m\007\257 \2021 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 111 W
    "%\134{*Alb\007t\0273\254 >f m\007\257 \2024 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 114 W
    "%\134{*Alb\007t\0273\254 >f m\007\257 \2027 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 117 W
    "%\134{*Alb\007t\0273\254 >f m\007\257 1\034 W\0" // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    "%\134{*BC Alb\232\0" // NAD83(CSRS) / BC Albers
    "%\134{*C\005\226\027Atl} L\225b\007t\0" // NAD83(CSRS) / Canada Atlas Lambert
    "%\134{*E\247G \325\322#\2731-23\0" // NAD83(CSRS) / EPSG Arctic zone 1-23
    "%\134{*E\247G \325\322#\2732-14\0" // NAD83(CSRS) / EPSG Arctic zone 2-14
    "%\134{*E\247G \325\322#\2732-16\0" // NAD83(CSRS) / EPSG Arctic zone 2-16
    "%\134{*E\247G \325\322#\2733-25\0" // NAD83(CSRS) / EPSG Arctic zone 3-25
    "%\134{*E\247G \325\322#\2733-27\0" // NAD83(CSRS) / EPSG Arctic zone 3-27
    "%\134{*E\247G \325\322#\2733-29\0" // NAD83(CSRS) / EPSG Arctic zone 3-29
    "%\134{*E\247G \325\322#\2734-14\0" // NAD83(CSRS) / EPSG Arctic zone 4-14
    "%\134{*E\247G \325\322#\2734-16\0" // NAD83(CSRS) / EPSG Arctic zone 4-16
    "%\134{*E\247G \325\322#\2734-18\0" // NAD83(CSRS) / EPSG Arctic zone 4-18
    "%\134{*E\247G \325\322#\2735-33\0" // NAD83(CSRS) / EPSG Arctic zone 5-33
    "%\134{*E\247G \325\322#\2735-35\0" // NAD83(CSRS) / EPSG Arctic zone 5-35
    "%\134{*E\247G \325\322#\2735-37\0" // NAD83(CSRS) / EPSG Arctic zone 5-37
    "%\134{*E\247G \325\322#\2735-39\0" // NAD83(CSRS) / EPSG Arctic zone 5-39
    "%\134{*E\247G \325\322#\2736-18\0" // NAD83(CSRS) / EPSG Arctic zone 6-18
    "%\134{*E\247G \325\322#\2736-20\0" // NAD83(CSRS) / EPSG Arctic zone 6-20
    "%\134{*E\247G \325\322#\2736-22\0" // NAD83(CSRS) / EPSG Arctic zone 6-22
    "%\134{*E\247G \325\322#\2736-24\0" // NAD83(CSRS) / EPSG Arctic zone 6-24
    "%\134{*M\254\2731\0" // NAD83(CSRS) / MTM zone 1
    "%\134{*M\254\27310\0" // NAD83(CSRS) / MTM zone 10
    "%\134{*M\254\27311\0" // NAD83(CSRS) / MTM zone 11
    "%\134{*M\254\27312\0" // NAD83(CSRS) / MTM zone 12
    "%\134{*M\254\27313\0" // NAD83(CSRS) / MTM zone 13
    "%\134{*M\254\27314\0" // NAD83(CSRS) / MTM zone 14
    "%\134{*M\254\27315\0" // NAD83(CSRS) / MTM zone 15
    "%\134{*M\254\27316\0" // NAD83(CSRS) / MTM zone 16
    "%\134{*M\254\27317\0" // NAD83(CSRS) / MTM zone 17
    "%\134{*M\254\2732\0" // NAD83(CSRS) / MTM zone 2
    "%\134{*M\254\2733\0" // NAD83(CSRS) / MTM zone 3
    "%\134{*M\254\2734\0" // NAD83(CSRS) / MTM zone 4
    "%\134{*M\254\2735\0" // NAD83(CSRS) / MTM zone 5
    "%\134{*M\254\2736\0" // NAD83(CSRS) / MTM zone 6
    "%\134{*M\254\2737\0" // NAD83(CSRS) / MTM zone 7
    "%\134{*M\254\2738\0" // NAD83(CSRS) / MTM zone 8
    "%\134{*M\254\2739\0" // NAD83(CSRS) / MTM zone 9
    "%\134{*MTQ L\225b\007t\0" // NAD83(CSRS) / MTQ Lambert
    "%\134{*NWT L\225b\007t\0" // NAD83(CSRS) / NWT Lambert
    "%\134{*\357 Brunsw#k|t\007eog\350\237#\0" // NAD83(CSRS) / New Brunswick Stereographic
    "%\134{*O\035\037i\013MNR L\225b\007t\0" // NAD83(CSRS) / Ontario MNR Lambert
    "%\134{*Pr\023c\010Edw\037d \316l.|t\007eog\350\237#\201\032)\0" // NAD83(CSRS) / Prince Edward Isl. Stereographic (NAD83)
    "%\134{*Quebec Alb\232\0" // NAD83(CSRS) / Quebec Albers
    "%\134{*Quebec L\225b\007t\0" // NAD83(CSRS) / Quebec Lambert
    "%\134{*\323oPQ\2732\0" // NAD83(CSRS) / SCoPQ zone 2
    "%\134{*St=i\020#s\327\005\226\027L\225b\007t\0" // NAD83(CSRS) / Statistics Canada Lambert
    "%\134{*T\007\005\036 O\035\037i\013L\225b\007t\0" // NAD83(CSRS) / Teranet Ontario Lambert
    "%\134{*U\254\273\312N\0" // NAD83(CSRS) / UTM zone 10N
    "%\134{*U\254\27311N\0" // NAD83(CSRS) / UTM zone 11N
    "%\134{*U\254\27312N\0" // NAD83(CSRS) / UTM zone 12N
    "%\134{*U\254\27313N\0" // NAD83(CSRS) / UTM zone 13N
    "%\134{*U\254\27314N\0" // NAD83(CSRS) / UTM zone 14N
    "%\134{*U\254\27315N\0" // NAD83(CSRS) / UTM zone 15N
    "%\134{*U\254\27316N\0" // NAD83(CSRS) / UTM zone 16N
    "%\134{*U\254\27317N\0" // NAD83(CSRS) / UTM zone 17N
    "%\134{*U\254\27318N\0" // NAD83(CSRS) / UTM zone 18N
    "%\134{*U\254\27319N\0" // NAD83(CSRS) / UTM zone 19N
    "%\134{*U\254\273\034N\0" // NAD83(CSRS) / UTM zone 20N
    "%\134{*U\254\27321N\0" // NAD83(CSRS) / UTM zone 21N
    "%\134{*U\254\27322N\0" // NAD83(CSRS) / UTM zone 22N
    "%\134{*U\254\27323N\0" // NAD83(CSRS) / UTM zone 23N
    "%\134{*U\254\27324N\0" // NAD83(CSRS) / UTM zone 24N
    "%\134{*U\254\2737N\0" // NAD83(CSRS) / UTM zone 7N
    "%\134{*U\254\2738N\0" // NAD83(CSRS) / UTM zone 8N
    "%\134{*U\254\2739N\0" // NAD83(CSRS) / UTM zone 9N
    "%\134{*Yuk\231Alb\232\0" // NAD83(CSRS) / Yukon Albers
    "%\134{)v1\0" // NAD83(CSRS)v1
    "%\134{)v2\0" // NAD83(CSRS)v2
    "%\134{)v2\012Alb\007t\0273\254 >f m\007\257 \2021 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 111 W
    "%\134{)v2\012Alb\007t\0273\254 >f m\007\257 \2024 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 114 W
    "%\134{)v2\012Alb\007t\0273\254 >f m\007\257 \2027 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 117 W
    "%\134{)v2\012Alb\007t\0273\254 >f m\007\257 1\034 W\0" // NAD83(CSRS)v2 / Alberta 3TM ref merid 120 W
    "%\134{)v2\012NB|t\007eog\350\237#\0" // NAD83(CSRS)v2 / NB Stereographic
    "%\134{)v2\012PEI|t\007eog\350\237#\0" // NAD83(CSRS)v2 / PEI Stereographic
    "%\134{)v2\012\323oPQ\27310\0" // NAD83(CSRS)v2 / SCoPQ zone 10
    "%\134{)v2\012\323oPQ\2733\0" // NAD83(CSRS)v2 / SCoPQ zone 3
    "%\134{)v2\012\323oPQ\2734\0" // NAD83(CSRS)v2 / SCoPQ zone 4
    "%\134{)v2\012\323oPQ\2735\0" // NAD83(CSRS)v2 / SCoPQ zone 5
    "%\134{)v2\012\323oPQ\2736\0" // NAD83(CSRS)v2 / SCoPQ zone 6
    "%\134{)v2\012\323oPQ\2737\0" // NAD83(CSRS)v2 / SCoPQ zone 7
    "%\134{)v2\012\323oPQ\2738\0" // NAD83(CSRS)v2 / SCoPQ zone 8
    "%\134{)v2\012\323oPQ\2739\0" // NAD83(CSRS)v2 / SCoPQ zone 9
    "%\134{)v2\012U\254\273\312N\0" // NAD83(CSRS)v2 / UTM zone 10N
    "%\134{)v2\012U\254\27311N\0" // NAD83(CSRS)v2 / UTM zone 11N
    "%\134{)v2\012U\254\27312N\0" // NAD83(CSRS)v2 / UTM zone 12N
    "%\134{)v2\012U\254\27313N\0" // NAD83(CSRS)v2 / UTM zone 13N
    "%\134{)v2\012U\254\27314N\0" // NAD83(CSRS)v2 / UTM zone 14N
    "%\134{)v2\012U\254\27315N\0" // NAD83(CSRS)v2 / UTM zone 15N
    "%\134{)v2\012U\254\27316N\0" // NAD83(CSRS)v2 / UTM zone 16N
    "%\134{)v2\012U\254\27317N\0" // NAD83(CSRS)v2 / UTM zone 17N
    "%\134{)v2\012U\254\27318N\0" // NAD83(CSRS)v2 / UTM zone 18N
    "%\134{)v2\012U\254\27319N\0" // NAD83(CSRS)v2 / UTM zone 19N
    "%\134{)v2\012U\254\273\034N\0" // NAD83(CSRS)v2 / UTM zone 20N
    "%\134{)v2\012U\254\27321N\0" // NAD83(CSRS)v2 / UTM zone 21N
    "%\134{)v2\012U\254\27322N\0" // NAD83(CSRS)v2 / UTM zone 22N
    "%\134{)v2\012U\254\2737N\0" // NAD83(CSRS)v2 / UTM zone 7N
    "%\134{)v2\012U\254\2738N\0" // NAD83(CSRS)v2 / UTM zone 8N
    "%\134{)v2\012U\254\2739N\0" // NAD83(CSRS)v2 / UTM zone 9N
    "%\134{)v2\022%\134{)v4\2011)\0" // NAD83(CSRS)v2 to NAD83(CSRS)v4 (1)
    "%\134{)v3\0" // NAD83(CSRS)v3
    "%\134{)v3\012M\254 \333\31797\2734\0" // NAD83(CSRS)v3 / MTM NS 1997 zone 4
    "%\134{)v3\012M\254 \333\31797\2735\0" // NAD83(CSRS)v3 / MTM NS 1997 zone 5
    "%\134{)v3\012M\254\27310\0" // NAD83(CSRS)v3 / MTM zone 10
    "%\134{)v3\012M\254\27311\0" // NAD83(CSRS)v3 / MTM zone 11
    "%\134{)v3\012M\254\27312\0" // NAD83(CSRS)v3 / MTM zone 12
    "%\134{)v3\012M\254\27313\0" // NAD83(CSRS)v3 / MTM zone 13
    "%\134{)v3\012M\254\27314\0" // NAD83(CSRS)v3 / MTM zone 14
    "%\134{)v3\012M\254\27315\0" // NAD83(CSRS)v3 / MTM zone 15
    "%\134{)v3\012M\254\27316\0" // NAD83(CSRS)v3 / MTM zone 16
    "%\134{)v3\012M\254\27317\0" // NAD83(CSRS)v3 / MTM zone 17
    "%\134{)v3\012M\254\2738\0" // NAD83(CSRS)v3 / MTM zone 8
    "%\134{)v3\012M\254\2739\0" // NAD83(CSRS)v3 / MTM zone 9
    "%\134{)v3\012U\254\273\312N\0" // NAD83(CSRS)v3 / UTM zone 10N
    "%\134{)v3\012U\254\27311N\0" // NAD83(CSRS)v3 / UTM zone 11N
    "%\134{)v3\012U\254\27312N\0" // NAD83(CSRS)v3 / UTM zone 12N
    "%\134{)v3\012U\254\27313N\0" // NAD83(CSRS)v3 / UTM zone 13N
    "%\134{)v3\012U\254\27314N\0" // NAD83(CSRS)v3 / UTM zone 14N
    "%\134{)v3\012U\254\27315N\0" // NAD83(CSRS)v3 / UTM zone 15N
    "%\134{)v3\012U\254\27316N\0" // NAD83(CSRS)v3 / UTM zone 16N
    "%\134{)v3\012U\254\27317N\0" // NAD83(CSRS)v3 / UTM zone 17N
    "%\134{)v3\012U\254\27318N\0" // NAD83(CSRS)v3 / UTM zone 18N
    "%\134{)v3\012U\254\27319N\0" // NAD83(CSRS)v3 / UTM zone 19N
    "%\134{)v3\012U\254\273\034N\0" // NAD83(CSRS)v3 / UTM zone 20N
    "%\134{)v3\012U\254\27321N\0" // NAD83(CSRS)v3 / UTM zone 21N
    "%\134{)v3\012U\254\27322N\0" // NAD83(CSRS)v3 / UTM zone 22N
    "%\134{)v3\012U\254\2737N\0" // NAD83(CSRS)v3 / UTM zone 7N
    "%\134{)v3\012U\254\2738N\0" // NAD83(CSRS)v3 / UTM zone 8N
    "%\134{)v3\012U\254\2739N\0" // NAD83(CSRS)v3 / UTM zone 9N
    "%\134{)v4\0" // NAD83(CSRS)v4
    "%\134{)v4\012Alb\007t\0273\254 >f m\007\257 \2021 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 111 W
    "%\134{)v4\012Alb\007t\0273\254 >f m\007\257 \2024 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 114 W
    "%\134{)v4\012Alb\007t\0273\254 >f m\007\257 \2027 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 117 W
    "%\134{)v4\012Alb\007t\0273\254 >f m\007\257 1\034 W\0" // NAD83(CSRS)v4 / Alberta 3TM ref merid 120 W
    "%\134{)v4\012U\254\273\312N\0" // NAD83(CSRS)v4 / UTM zone 10N
    "%\134{)v4\012U\254\27311N\0" // NAD83(CSRS)v4 / UTM zone 11N
    "%\134{)v4\012U\254\27312N\0" // NAD83(CSRS)v4 / UTM zone 12N
    "%\134{)v4\012U\254\27313N\0" // NAD83(CSRS)v4 / UTM zone 13N
    "%\134{)v4\012U\254\27314N\0" // NAD83(CSRS)v4 / UTM zone 14N
    "%\134{)v4\012U\254\27315N\0" // NAD83(CSRS)v4 / UTM zone 15N
    "%\134{)v4\012U\254\27316N\0" // NAD83(CSRS)v4 / UTM zone 16N
    "%\134{)v4\012U\254\27317N\0" // NAD83(CSRS)v4 / UTM zone 17N
    "%\134{)v4\012U\254\27318N\0" // NAD83(CSRS)v4 / UTM zone 18N
    "%\134{)v4\012U\254\27319N\0" // NAD83(CSRS)v4 / UTM zone 19N
    "%\134{)v4\012U\254\273\034N\0" // NAD83(CSRS)v4 / UTM zone 20N
    "%\134{)v4\012U\254\27321N\0" // NAD83(CSRS)v4 / UTM zone 21N
    "%\134{)v4\012U\254\27322N\0" // NAD83(CSRS)v4 / UTM zone 22N
    "%\134{)v4\012U\254\2737N\0" // NAD83(CSRS)v4 / UTM zone 7N
    "%\134{)v4\012U\254\2738N\0" // NAD83(CSRS)v4 / UTM zone 8N
    "%\134{)v4\012U\254\2739N\0" // NAD83(CSRS)v4 / UTM zone 9N
    "%\134{)v5\0" // NAD83(CSRS)v5
    "%\134{)v6\0" // NAD83(CSRS)v6
    "%\134{)v6\012M\254 \333 \034\312\2734\0" // NAD83(CSRS)v6 / MTM NS 2010 zone 4
    "%\134{)v6\012M\254 \333 \034\312\2735\0" // NAD83(CSRS)v6 / MTM NS 2010 zone 5
    "%\134{)v6\012M\254\2731\0" // NAD83(CSRS)v6 / MTM zone 1
    "%\134{)v6\012M\254\27310\0" // NAD83(CSRS)v6 / MTM zone 10
    "%\134{)v6\012M\254\27311\0" // NAD83(CSRS)v6 / MTM zone 11
    "%\134{)v6\012M\254\27312\0" // NAD83(CSRS)v6 / MTM zone 12
    "%\134{)v6\012M\254\27313\0" // NAD83(CSRS)v6 / MTM zone 13
    "%\134{)v6\012M\254\27314\0" // NAD83(CSRS)v6 / MTM zone 14
    "%\134{)v6\012M\254\27315\0" // NAD83(CSRS)v6 / MTM zone 15
    "%\134{)v6\012M\254\27316\0" // NAD83(CSRS)v6 / MTM zone 16
    "%\134{)v6\012M\254\27317\0" // NAD83(CSRS)v6 / MTM zone 17
    "%\134{)v6\012M\254\2732\0" // NAD83(CSRS)v6 / MTM zone 2
    "%\134{)v6\012M\254\2733\0" // NAD83(CSRS)v6 / MTM zone 3
    "%\134{)v6\012M\254\2734\0" // NAD83(CSRS)v6 / MTM zone 4
    "%\134{)v6\012M\254\2735\0" // NAD83(CSRS)v6 / MTM zone 5
    "%\134{)v6\012M\254\2736\0" // NAD83(CSRS)v6 / MTM zone 6
    "%\134{)v6\012M\254\2738\0" // NAD83(CSRS)v6 / MTM zone 8
    "%\134{)v6\012M\254\2739\0" // NAD83(CSRS)v6 / MTM zone 9
    "%\134{)v6\012PEI|t\007eog\350\237#\0" // NAD83(CSRS)v6 / PEI Stereographic
    "%\134{)v6\012U\254\273\312N\0" // NAD83(CSRS)v6 / UTM zone 10N
    "%\134{)v6\012U\254\27311N\0" // NAD83(CSRS)v6 / UTM zone 11N
    "%\134{)v6\012U\254\27312N\0" // NAD83(CSRS)v6 / UTM zone 12N
    "%\134{)v6\012U\254\27313N\0" // NAD83(CSRS)v6 / UTM zone 13N
    "%\134{)v6\012U\254\27314N\0" // NAD83(CSRS)v6 / UTM zone 14N
    "%\134{)v6\012U\254\27315N\0" // NAD83(CSRS)v6 / UTM zone 15N
    "%\134{)v6\012U\254\27316N\0" // NAD83(CSRS)v6 / UTM zone 16N
    "%\134{)v6\012U\254\27317N\0" // NAD83(CSRS)v6 / UTM zone 17N
    "%\134{)v6\012U\254\27318N\0" // NAD83(CSRS)v6 / UTM zone 18N
    "%\134{)v6\012U\254\27319N\0" // NAD83(CSRS)v6 / UTM zone 19N
    "%\134{)v6\012U\254\273\034N\0" // NAD83(CSRS)v6 / UTM zone 20N
    "%\134{)v6\012U\254\27321N\0" // NAD83(CSRS)v6 / UTM zone 21N
    "%\134{)v6\012U\254\27322N\0" // NAD83(CSRS)v6 / UTM zone 22N
    "%\134{)v6\012U\254\2737N\0" // NAD83(CSRS)v6 / UTM zone 7N
    "%\134{)v6\012U\254\2738N\0" // NAD83(CSRS)v6 / UTM zone 8N
    "%\134{)v6\012U\254\2739N\0" // NAD83(CSRS)v6 / UTM zone 9N
    "%\134{)v7\0" // NAD83(CSRS)v7
    "%\134{)v7\012Alb\007t\0273\254 >f m\007\257 \2021 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 111 W
    "%\134{)v7\012Alb\007t\0273\254 >f m\007\257 \2024 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 114 W
    "%\134{)v7\012Alb\007t\0273\254 >f m\007\257 \2027 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 117 W
    "%\134{)v7\012Alb\007t\0273\254 >f m\007\257 1\034 W\0" // NAD83(CSRS)v7 / Alberta 3TM ref merid 120 W
    "%\134{)v7\012PEI|t\007eog\350\237#\0" // NAD83(CSRS)v7 / PEI Stereographic
    "%\134{)v7\012U\254\273\312N\0" // NAD83(CSRS)v7 / UTM zone 10N
    "%\134{)v7\012U\254\27311N\0" // NAD83(CSRS)v7 / UTM zone 11N
    "%\134{)v7\012U\254\27312N\0" // NAD83(CSRS)v7 / UTM zone 12N
    "%\134{)v7\012U\254\27313N\0" // NAD83(CSRS)v7 / UTM zone 13N
    "%\134{)v7\012U\254\27314N\0" // NAD83(CSRS)v7 / UTM zone 14N
    "%\134{)v7\012U\254\27315N\0" // NAD83(CSRS)v7 / UTM zone 15N
    "%\134{)v7\012U\254\27316N\0" // NAD83(CSRS)v7 / UTM zone 16N
    "%\134{)v7\012U\254\27317N\0" // NAD83(CSRS)v7 / UTM zone 17N
    "%\134{)v7\012U\254\27318N\0" // NAD83(CSRS)v7 / UTM zone 18N
    "%\134{)v7\012U\254\27319N\0" // NAD83(CSRS)v7 / UTM zone 19N
    "%\134{)v7\012U\254\273\034N\0" // NAD83(CSRS)v7 / UTM zone 20N
    "%\134{)v7\012U\254\27321N\0" // NAD83(CSRS)v7 / UTM zone 21N
    "%\134{)v7\012U\254\27322N\0" // NAD83(CSRS)v7 / UTM zone 22N
    "%\134{)v7\012U\254\2737N\0" // NAD83(CSRS)v7 / UTM zone 7N
    "%\134{)v7\012U\254\2738N\0" // NAD83(CSRS)v7 / UTM zone 8N
    "%\134{)v7\012U\254\2739N\0" // NAD83(CSRS)v7 / UTM zone 9N
    "%\134{96)\0" // NAD83(CSRS96)
    "%\134{96) v1\002L=L\003\0" // NAD83(CSRS96) v1 - LatLon
    "%\134{96)v1\0" // NAD83(CSRS96)v1
    "%\134{98)\0" // NAD83(CSRS98)
    "%\134{98*M\254\27310\0" // NAD83(CSRS98) / MTM zone 10
    "%\134{98*M\254\2733\0" // NAD83(CSRS98) / MTM zone 3
    "%\134{98*M\254\2734\0" // NAD83(CSRS98) / MTM zone 4
    "%\134{98*M\254\2735\0" // NAD83(CSRS98) / MTM zone 5
    "%\134{98*M\254\2736\0" // NAD83(CSRS98) / MTM zone 6
    "%\134{98*M\254\2737\0" // NAD83(CSRS98) / MTM zone 7
    "%\134{98*M\254\2738\0" // NAD83(CSRS98) / MTM zone 8
    "%\134{98*M\254\2739\0" // NAD83(CSRS98) / MTM zone 9
    "%\134{98*\357 Brunsw#k|t\007eo\0" // NAD83(CSRS98) / New Brunswick Stereo
    "%\134{98*Pr\023c\010Edw\037d \316l.|t\007eog\350\237#\201\032)\0" // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    "%\134{98*\323oPQ\2732\0" // NAD83(CSRS98) / SCoPQ zone 2
    "%\134{98*U\254\27311N\0" // NAD83(CSRS98) / UTM zone 11N
    "%\134{98*U\254\27312N\0" // NAD83(CSRS98) / UTM zone 12N
    "%\134{98*U\254\27313N\0" // NAD83(CSRS98) / UTM zone 13N
    "%\134{98*U\254\27317N\0" // NAD83(CSRS98) / UTM zone 17N
    "%\134{98*U\254\27318N\0" // NAD83(CSRS98) / UTM zone 18N
    "%\134{98*U\254\27319N\0" // NAD83(CSRS98) / UTM zone 19N
    "%\134{98*U\254\273\034N\0" // NAD83(CSRS98) / UTM zone 20N
    "%\134{98*U\254\27321N\0" // NAD83(CSRS98) / UTM zone 21N
    "\032(FBN)\0" // NAD83(FBN)
    "\346\327\006>\322\275)\0" // NAD83(HARN Corrected)
    "\346)\0" // NAD83(HARN)
    "\347Alab\225\027Ea\020\0" // NAD83(HARN) / Alabama East
    "\347Alab\225\027We\020\0" // NAD83(HARN) / Alabama West
    "\347\325i$\027C\367\025\0" // NAD83(HARN) / Arizona Central
    "\347\325i$\027C\367\025\201ft)\0" // NAD83(HARN) / Arizona Central (ft)
    "\347\325i$\027Ea\020\0" // NAD83(HARN) / Arizona East
    "\347\325i$\027E\314(ft)\0" // NAD83(HARN) / Arizona East (ft)
    "\347\325i$\027We\020\0" // NAD83(HARN) / Arizona West
    "\347\325i$\027W\267(ft)\0" // NAD83(HARN) / Arizona West (ft)
    "\347\325k\005s} \373\0" // NAD83(HARN) / Arkansas North
    "\347\325k\005s} \324(ft\203)\0" // NAD83(HARN) / Arkansas North (ftUS)
    "\347\325k\005s}|\365\0" // NAD83(HARN) / Arkansas South
    "\347\325k\005s}|\250(ft\203)\0" // NAD83(HARN) / Arkansas South (ftUS)
    "\347C\025if\006n\315Alb\232\0" // NAD83(HARN) / California Albers
    "\347C\025if\006n\315^1\0" // NAD83(HARN) / California zone 1
    "\347C\025if\006n\315^1 (ft\203)\0" // NAD83(HARN) / California zone 1 (ftUS)
    "\347C\025if\006n\315^2\0" // NAD83(HARN) / California zone 2
    "\347C\025if\006n\315^2 (ft\203)\0" // NAD83(HARN) / California zone 2 (ftUS)
    "\347C\025if\006n\315^3\0" // NAD83(HARN) / California zone 3
    "\347C\025if\006n\315^3 (ft\203)\0" // NAD83(HARN) / California zone 3 (ftUS)
    "\347C\025if\006n\315^4\0" // NAD83(HARN) / California zone 4
    "\347C\025if\006n\315^4 (ft\203)\0" // NAD83(HARN) / California zone 4 (ftUS)
    "\347C\025if\006n\315^5\0" // NAD83(HARN) / California zone 5
    "\347C\025if\006n\315^5 (ft\203)\0" // NAD83(HARN) / California zone 5 (ftUS)
    "\347C\025if\006n\315^6\0" // NAD83(HARN) / California zone 6
    "\347C\025if\006n\315^6 (ft\203)\0" // NAD83(HARN) / California zone 6 (ftUS)
    "\347C\246\006\226\013C\367\025\0" // NAD83(HARN) / Colorado Central
    "\347C\246\006\226\013C\367\230(ft\203)\0" // NAD83(HARN) / Colorado Central (ftUS)
    "\347C\246\006\226\013\373\0" // NAD83(HARN) / Colorado North
    "\347C\246\006\226\013\324(ft\203)\0" // NAD83(HARN) / Colorado North (ftUS)
    "\347C\246\006\226\013S\365\0" // NAD83(HARN) / Colorado South
    "\347C\246\006\226\013\370(ft\203)\0" // NAD83(HARN) / Colorado South (ftUS)
    "\347C\003ne\322#ut\0" // NAD83(HARN) / Connecticut
    "\347C\003ne\322#ut (ft\203)\0" // NAD83(HARN) / Connecticut (ftUS)
    "\347C\003\351 Alb\232\0" // NAD83(HARN) / Conus Albers
    "\347D\242aw\037e\0" // NAD83(HARN) / Delaware
    "\347D\242aw\037\010(ft\203)\0" // NAD83(HARN) / Delaware (ftUS)
    "\347Fl\006\257\027Ea\020\0" // NAD83(HARN) / Florida East
    "\347Fl\006\257\027E\314(ft\203)\0" // NAD83(HARN) / Florida East (ftUS)
    "\347Fl\006\257\027GDL Alb\232\0" // NAD83(HARN) / Florida GDL Albers
    "\347Fl\006\257\027\373\0" // NAD83(HARN) / Florida North
    "\347Fl\006\257\027\324(ft\203)\0" // NAD83(HARN) / Florida North (ftUS)
    "\347Fl\006\257\027We\020\0" // NAD83(HARN) / Florida West
    "\347Fl\006\257\027W\267(ft\203)\0" // NAD83(HARN) / Florida West (ftUS)
    "\347Ge\006g\315Ea\020\0" // NAD83(HARN) / Georgia East
    "\347Ge\006g\315E\314(ft\203)\0" // NAD83(HARN) / Georgia East (ftUS)
    "\347Ge\006g\315We\020\0" // NAD83(HARN) / Georgia West
    "\347Ge\006g\315W\267(ft\203)\0" // NAD83(HARN) / Georgia West (ftUS)
    "\347Gu\225 Map Gr\257\0" // NAD83(HARN) / Guam Map Grid
    "\347Hawaii\2731\0" // NAD83(HARN) / Hawaii zone 1
    "\347Hawaii\2732\0" // NAD83(HARN) / Hawaii zone 2
    "\347Hawaii\2733\0" // NAD83(HARN) / Hawaii zone 3
    "\347Hawaii\2733 (ft\203)\0" // NAD83(HARN) / Hawaii zone 3 (ftUS)
    "\347Hawaii\2734\0" // NAD83(HARN) / Hawaii zone 4
    "\347Hawaii\2735\0" // NAD83(HARN) / Hawaii zone 5
    "\347Id\361\013C\367\025\0" // NAD83(HARN) / Idaho Central
    "\347Id\361\013C\367\230(ft\203)\0" // NAD83(HARN) / Idaho Central (ftUS)
    "\347Id\361\013Ea\020\0" // NAD83(HARN) / Idaho East
    "\347Id\361\013E\314(ft\203)\0" // NAD83(HARN) / Idaho East (ftUS)
    "\347Id\361\013We\020\0" // NAD83(HARN) / Idaho West
    "\347Id\361\013W\267(ft\203)\0" // NAD83(HARN) / Idaho West (ftUS)
    "\347Ill\023o\077 Ea\020\0" // NAD83(HARN) / Illinois East
    "\347Ill\023o\077 E\314(ft\203)\0" // NAD83(HARN) / Illinois East (ftUS)
    "\347Ill\023o\077 We\020\0" // NAD83(HARN) / Illinois West
    "\347Ill\023o\077 W\267(ft\203)\0" // NAD83(HARN) / Illinois West (ftUS)
    "\347\360\336\027Ea\020\0" // NAD83(HARN) / Indiana East
    "\347\360\336\027E\314(ft\203)\0" // NAD83(HARN) / Indiana East (ftUS)
    "\347\360\336\027We\020\0" // NAD83(HARN) / Indiana West
    "\347\360\336\027W\267(ft\203)\0" // NAD83(HARN) / Indiana West (ftUS)
    "\347Iow\027\373\0" // NAD83(HARN) / Iowa North
    "\347Iow\027\324(ft\203)\0" // NAD83(HARN) / Iowa North (ftUS)
    "\347Iow\027S\365\0" // NAD83(HARN) / Iowa South
    "\347Iow\027\370(ft\203)\0" // NAD83(HARN) / Iowa South (ftUS)
    "\347K\005s} \373\0" // NAD83(HARN) / Kansas North
    "\347K\005s} \324(ft\203)\0" // NAD83(HARN) / Kansas North (ftUS)
    "\347K\005s}|\365\0" // NAD83(HARN) / Kansas South
    "\347K\005s}|\250(ft\203)\0" // NAD83(HARN) / Kansas South (ftUS)
    "\347Ke\035uck\204\373\0" // NAD83(HARN) / Kentucky North
    "\347Ke\035uck\204\324(ft\203)\0" // NAD83(HARN) / Kentucky North (ftUS)
    "\347Ke\035ucky|\023gl\010Z\003e\0" // NAD83(HARN) / Kentucky Single Zone
    "\347Ke\035ucky|\023gl\010Z\003\010(ft\203)\0" // NAD83(HARN) / Kentucky Single Zone (ftUS)
    "\347Ke\035ucky|\365\0" // NAD83(HARN) / Kentucky South
    "\347Ke\035ucky|\250(ft\203)\0" // NAD83(HARN) / Kentucky South (ftUS)
    "\347L\026\077\336\027\373\0" // NAD83(HARN) / Louisiana North
    "\347L\026\077\336\027\324(ft\203)\0" // NAD83(HARN) / Louisiana North (ftUS)
    "\347L\026\077\336\027S\365\0" // NAD83(HARN) / Louisiana South
    "\347L\026\077\336\027\370(ft\203)\0" // NAD83(HARN) / Louisiana South (ftUS)
    "\347Ma\023\010\134\2270 C\367\025\0" // NAD83(HARN) / Maine CS2000 Central
    "\347Ma\023\010\134\2270 Ea\020\0" // NAD83(HARN) / Maine CS2000 East
    "\347Ma\023\010\134\2270 We\020\0" // NAD83(HARN) / Maine CS2000 West
    "\347Ma\023\010Ea\020\0" // NAD83(HARN) / Maine East
    "\347Ma\023\010E\314(ft\203)\0" // NAD83(HARN) / Maine East (ftUS)
    "\347Ma\023\010We\020\0" // NAD83(HARN) / Maine West
    "\347Ma\023\010W\267(ft\203)\0" // NAD83(HARN) / Maine West (ftUS)
    "\347M\037y\206\0" // NAD83(HARN) / Maryland
    "\347M\037y\206 (ft\203)\0" // NAD83(HARN) / Maryland (ftUS)
    "\347M}sach\351\036ts \335\0" // NAD83(HARN) / Massachusetts Island
    "\347M}sach\351\036ts \335 (ft\203)\0" // NAD83(HARN) / Massachusetts Island (ftUS)
    "\347M}sach\351\036ts Ma\023\206\0" // NAD83(HARN) / Massachusetts Mainland
    "\347M}sach\351\036ts Ma\023\206 (ft\203)\0" // NAD83(HARN) / Massachusetts Mainland (ftUS)
    "\347M#hig\005 C\367\025\0" // NAD83(HARN) / Michigan Central
    "\347M#hig\005\327\367\025\201ft)\0" // NAD83(HARN) / Michigan Central (ft)
    "\347M#hig\005 \373\0" // NAD83(HARN) / Michigan North
    "\347M#hig\005 \324(ft)\0" // NAD83(HARN) / Michigan North (ft)
    "\347M#hig\005 Obliqu\010M\007c=\006\0" // NAD83(HARN) / Michigan Oblique Mercator
    "\347M#hig\005|\365\0" // NAD83(HARN) / Michigan South
    "\347M#hig\005|\250(ft)\0" // NAD83(HARN) / Michigan South (ft)
    "\347M\023n\220\337\027C\367\025\0" // NAD83(HARN) / Minnesota Central
    "\347M\023n\220\337\027C\367\230(ft\203)\0" // NAD83(HARN) / Minnesota Central (ftUS)
    "\347M\023n\220\337\027\373\0" // NAD83(HARN) / Minnesota North
    "\347M\023n\220\337\027\324(ft\203)\0" // NAD83(HARN) / Minnesota North (ftUS)
    "\347M\023n\220\337\027S\365\0" // NAD83(HARN) / Minnesota South
    "\347M\023n\220\337\027\370(ft\203)\0" // NAD83(HARN) / Minnesota South (ftUS)
    "\347M\077s\077sippi Ea\020\0" // NAD83(HARN) / Mississippi East
    "\347M\077s\077sippi E\314(ft\203)\0" // NAD83(HARN) / Mississippi East (ftUS)
    "\347M\077s\077sippi \254\0" // NAD83(HARN) / Mississippi TM
    "\347M\077s\077sippi We\020\0" // NAD83(HARN) / Mississippi West
    "\347M\077s\077sippi W\267(ft\203)\0" // NAD83(HARN) / Mississippi West (ftUS)
    "\347M\077s\026ri C\367\025\0" // NAD83(HARN) / Missouri Central
    "\347M\077s\026ri Ea\020\0" // NAD83(HARN) / Missouri East
    "\347M\077s\026ri We\020\0" // NAD83(HARN) / Missouri West
    "\347M\003t\005a\0" // NAD83(HARN) / Montana
    "\347M\003t\005\027(ft)\0" // NAD83(HARN) / Montana (ft)
    "\347\307br}ka\0" // NAD83(HARN) / Nebraska
    "\347\307br}k\027(ft\203)\0" // NAD83(HARN) / Nebraska (ftUS)
    "\347\307v\226\027C\367\025\0" // NAD83(HARN) / Nevada Central
    "\347\307v\226\027C\367\230(ft\203)\0" // NAD83(HARN) / Nevada Central (ftUS)
    "\347\307v\226\027Ea\020\0" // NAD83(HARN) / Nevada East
    "\347\307v\226\027E\314(ft\203)\0" // NAD83(HARN) / Nevada East (ftUS)
    "\347\307v\226\027We\020\0" // NAD83(HARN) / Nevada West
    "\347\307v\226\027W\267(ft\203)\0" // NAD83(HARN) / Nevada West (ftUS)
    "\347\357 H\225p<i>\0" // NAD83(HARN) / New Hampshire
    "\347\357 H\225p<\340\010(ft\203)\0" // NAD83(HARN) / New Hampshire (ftUS)
    "\347\357 J\232ey\0" // NAD83(HARN) / New Jersey
    "\347\357 J\232e\204(ft\203)\0" // NAD83(HARN) / New Jersey (ftUS)
    "\347\357 Mex#\013C\367\025\0" // NAD83(HARN) / New Mexico Central
    "\347\357 Mex#\013C\367\230(ft\203)\0" // NAD83(HARN) / New Mexico Central (ftUS)
    "\347\357 Mex#\013Ea\020\0" // NAD83(HARN) / New Mexico East
    "\347\357 Mex#\013E\314(ft\203)\0" // NAD83(HARN) / New Mexico East (ftUS)
    "\347\357 Mex#\013We\020\0" // NAD83(HARN) / New Mexico West
    "\347\357 Mex#\013W\267(ft\203)\0" // NAD83(HARN) / New Mexico West (ftUS)
    "\347\357 Y\006k C\367\025\0" // NAD83(HARN) / New York Central
    "\347\357 Y\006k\327\367\230(ft\203)\0" // NAD83(HARN) / New York Central (ftUS)
    "\347\357 Y\006k Ea\020\0" // NAD83(HARN) / New York East
    "\347\357 Y\006k E\314(ft\203)\0" // NAD83(HARN) / New York East (ftUS)
    "\347\357 Y\006k L\003g \335\0" // NAD83(HARN) / New York Long Island
    "\347\357 Y\006k L\003g \335 (ft\203)\0" // NAD83(HARN) / New York Long Island (ftUS)
    "\347\357 Y\006k We\020\0" // NAD83(HARN) / New York West
    "\347\357 Y\006k W\267(ft\203)\0" // NAD83(HARN) / New York West (ftUS)
    "\347\324C\037\246\023a\0" // NAD83(HARN) / North Carolina
    "\347\324C\037\246\023\027(ft\203)\0" // NAD83(HARN) / North Carolina (ftUS)
    "\347\324Dak\337\027\373\0" // NAD83(HARN) / North Dakota North
    "\347\324Dak\337\027\324(ft)\0" // NAD83(HARN) / North Dakota North (ft)
    "\347\324Dak\337\027S\365\0" // NAD83(HARN) / North Dakota South
    "\347\324Dak\337\027\370(ft)\0" // NAD83(HARN) / North Dakota South (ft)
    "\347Ohi\013\373\0" // NAD83(HARN) / Ohio North
    "\347Ohi\013\324(ft\203)\0" // NAD83(HARN) / Ohio North (ftUS)
    "\347Ohi\013S\365\0" // NAD83(HARN) / Ohio South
    "\347Ohi\013\370(ft\203)\0" // NAD83(HARN) / Ohio South (ftUS)
    "\347Okl\361\343\027\373\0" // NAD83(HARN) / Oklahoma North
    "\347Okl\361\343\027\324(ft\203)\0" // NAD83(HARN) / Oklahoma North (ftUS)
    "\347Okl\361\343\027S\365\0" // NAD83(HARN) / Oklahoma South
    "\347Okl\361\343\027\370(ft\203)\0" // NAD83(HARN) / Oklahoma South (ftUS)
    "\347\326\231GIC L\225b\007t\201ft)\0" // NAD83(HARN) / Oregon GIC Lambert (ft)
    "\347\326\231LCC (m)\0" // NAD83(HARN) / Oregon LCC (m)
    "\347\326\231\373\0" // NAD83(HARN) / Oregon North
    "\347\326\231\324(ft)\0" // NAD83(HARN) / Oregon North (ft)
    "\347\326\003|\365\0" // NAD83(HARN) / Oregon South
    "\347\326\003|\250(ft)\0" // NAD83(HARN) / Oregon South (ft)
    "\347P\207nsylv\005\315\373\0" // NAD83(HARN) / Pennsylvania North
    "\347P\207nsylv\005\315\324(ft\203)\0" // NAD83(HARN) / Pennsylvania North (ftUS)
    "\347P\207nsylv\005\315S\365\0" // NAD83(HARN) / Pennsylvania South
    "\347P\207nsylv\005\315\370(ft\203)\0" // NAD83(HARN) / Pennsylvania South (ftUS)
    "\347Pu\007t\013R#\013\253V\340g\023 \316.\0" // NAD83(HARN) / Puerto Rico and Virgin Is.
    "\347Rhod\010\335\0" // NAD83(HARN) / Rhode Island
    "\347Rhod\010\335 (ft\203)\0" // NAD83(HARN) / Rhode Island (ftUS)
    "\347\370C\037\246\023a\0" // NAD83(HARN) / South Carolina
    "\347\370C\037\246\023\027(ft)\0" // NAD83(HARN) / South Carolina (ft)
    "\347\370Dak\337\027\373\0" // NAD83(HARN) / South Dakota North
    "\347\370Dak\337\027\324(ft\203)\0" // NAD83(HARN) / South Dakota North (ftUS)
    "\347\370Dak\337\027S\365\0" // NAD83(HARN) / South Dakota South
    "\347\370Dak\337\027\370(ft\203)\0" // NAD83(HARN) / South Dakota South (ftUS)
    "\347T\207n\220see\0" // NAD83(HARN) / Tennessee
    "\347T\207n\220se\010(ft\203)\0" // NAD83(HARN) / Tennessee (ftUS)
    "\347Tex} C\367\025\0" // NAD83(HARN) / Texas Central
    "\347Tex}\327\367\230(ft\203)\0" // NAD83(HARN) / Texas Central (ftUS)
    "\347Tex}\327\367# Alb\232 Equ\230A>a\0" // NAD83(HARN) / Texas Centric Albers Equal Area
    "\347Tex}\327\367# L\225b\007t\327\003f\006m\025\0" // NAD83(HARN) / Texas Centric Lambert Conformal
    "\347Tex} \373\0" // NAD83(HARN) / Texas North
    "\347Tex} \324(ft\203)\0" // NAD83(HARN) / Texas North (ftUS)
    "\347Tex} \324C\367\025\0" // NAD83(HARN) / Texas North Central
    "\347Tex} \324C\367\230(ft\203)\0" // NAD83(HARN) / Texas North Central (ftUS)
    "\347Tex}|\365\0" // NAD83(HARN) / Texas South
    "\347Tex}|\250(ft\203)\0" // NAD83(HARN) / Texas South (ftUS)
    "\347Tex}|\250C\367\025\0" // NAD83(HARN) / Texas South Central
    "\347Tex}|\250C\367\230(ft\203)\0" // NAD83(HARN) / Texas South Central (ftUS)
    "\347U\254\273\312N\0" // NAD83(HARN) / UTM zone 10N
    "\347U\254\27311N\0" // NAD83(HARN) / UTM zone 11N
    "\347U\254\27312N\0" // NAD83(HARN) / UTM zone 12N
    "\347U\254\27313N\0" // NAD83(HARN) / UTM zone 13N
    "\347U\254\27314N\0" // NAD83(HARN) / UTM zone 14N
    "\347U\254\27315N\0" // NAD83(HARN) / UTM zone 15N
    "\347U\254\27316N\0" // NAD83(HARN) / UTM zone 16N
    "\347U\254\27317N\0" // NAD83(HARN) / UTM zone 17N
    "\347U\254\27318N\0" // NAD83(HARN) / UTM zone 18N
    "\347U\254\27319N\0" // NAD83(HARN) / UTM zone 19N
    "\347U\254\2732S\0" // NAD83(HARN) / UTM zone 2S
    "\347U\254\2734N\0" // NAD83(HARN) / UTM zone 4N
    "\347U\254\27359S\0" // NAD83(HARN) / UTM zone 59S
    "\347U\254\2735N\0" // NAD83(HARN) / UTM zone 5N
    "\347Ut\361 C\367\025\0" // NAD83(HARN) / Utah Central
    "\347Ut\361\327\367\025\201ft)\0" // NAD83(HARN) / Utah Central (ft)
    "\347Ut\361\327\367\230(ft\203)\0" // NAD83(HARN) / Utah Central (ftUS)
    "\347Ut\361 \373\0" // NAD83(HARN) / Utah North
    "\347Ut\361 \324(ft)\0" // NAD83(HARN) / Utah North (ft)
    "\347Ut\361 \324(ft\203)\0" // NAD83(HARN) / Utah North (ftUS)
    "\347Ut\361|\365\0" // NAD83(HARN) / Utah South
    "\347Ut\361|\250(ft)\0" // NAD83(HARN) / Utah South (ft)
    "\347Ut\361|\250(ft\203)\0" // NAD83(HARN) / Utah South (ftUS)
    "\347V\007m\003t\0" // NAD83(HARN) / Vermont
    "\347V\007m\003t (ft\203)\0" // NAD83(HARN) / Vermont (ftUS)
    "\347V\340g\023\315L\225b\007t\0" // NAD83(HARN) / Virginia Lambert
    "\347V\340g\023\315\373\0" // NAD83(HARN) / Virginia North
    "\347V\340g\023\315\324(ft\203)\0" // NAD83(HARN) / Virginia North (ftUS)
    "\347V\340g\023\315S\365\0" // NAD83(HARN) / Virginia South
    "\347V\340g\023\315\370(ft\203)\0" // NAD83(HARN) / Virginia South (ftUS)
    "\347WI\323{ Ad\225s\374Juneau (ft\203)\0" // NAD83(HARN) / WISCRS Adams and Juneau (ftUS)
    "\347WI\323{ Ad\225s\374Juneau (m)\0" // NAD83(HARN) / WISCRS Adams and Juneau (m)
    "\347WI\323{ A<\206 (ft\203)\0" // NAD83(HARN) / WISCRS Ashland (ftUS)
    "\347WI\323{ A<\206 (m)\0" // NAD83(HARN) / WISCRS Ashland (m)
    "\347WI\323{ B\037r\231(ft\203)\0" // NAD83(HARN) / WISCRS Barron (ftUS)
    "\347WI\323{ B\037r\231(m)\0" // NAD83(HARN) / WISCRS Barron (m)
    "\347WI\323{ Bayfi\242d (ft\203)\0" // NAD83(HARN) / WISCRS Bayfield (ftUS)
    "\347WI\323{ Bayfi\242d (m)\0" // NAD83(HARN) / WISCRS Bayfield (m)
    "\347WI\323{ Brown (ft\203)\0" // NAD83(HARN) / WISCRS Brown (ftUS)
    "\347WI\323{ Brown (m)\0" // NAD83(HARN) / WISCRS Brown (m)
    "\347WI\323{ Buff\025\013(ft\203)\0" // NAD83(HARN) / WISCRS Buffalo (ftUS)
    "\347WI\323{ Buff\025\013(m)\0" // NAD83(HARN) / WISCRS Buffalo (m)
    "\347WI\323{ B\224n\036t (ft\203)\0" // NAD83(HARN) / WISCRS Burnett (ftUS)
    "\347WI\323{ B\224n\036t (m)\0" // NAD83(HARN) / WISCRS Burnett (m)
    "\347WI\323{\327\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebag\013(ft\203)\0" // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    "\347WI\323{\327\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebag\013(m)\0" // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    "\347WI\323{\327hippew\027(ft\203)\0" // NAD83(HARN) / WISCRS Chippewa (ftUS)
    "\347WI\323{\327hippew\027(m)\0" // NAD83(HARN) / WISCRS Chippewa (m)
    "\347WI\323{\327l\037k (ft\203)\0" // NAD83(HARN) / WISCRS Clark (ftUS)
    "\347WI\323{\327l\037k (m)\0" // NAD83(HARN) / WISCRS Clark (m)
    "\347WI\323{\327\246umb\315(ft\203)\0" // NAD83(HARN) / WISCRS Columbia (ftUS)
    "\347WI\323{\327\246umb\315(m)\0" // NAD83(HARN) / WISCRS Columbia (m)
    "\347WI\323{\327\350wf\006d (ft\203)\0" // NAD83(HARN) / WISCRS Crawford (ftUS)
    "\347WI\323{\327\350wf\006d (m)\0" // NAD83(HARN) / WISCRS Crawford (m)
    "\347WI\323{ D\005\010(ft\203)\0" // NAD83(HARN) / WISCRS Dane (ftUS)
    "\347WI\323{ D\005\010(m)\0" // NAD83(HARN) / WISCRS Dane (m)
    "\347WI\323{ Dodg\010\253Jeff\232\231(ft\203)\0" // NAD83(HARN) / WISCRS Dodge and Jefferson (ftUS)
    "\347WI\323{ Dodg\010\253Jeff\232\231(m)\0" // NAD83(HARN) / WISCRS Dodge and Jefferson (m)
    "\347WI\323{ Do\006 (ft\203)\0" // NAD83(HARN) / WISCRS Door (ftUS)
    "\347WI\323{ Do\006 (m)\0" // NAD83(HARN) / WISCRS Door (m)
    "\347WI\323{ D\026gl} (ft\203)\0" // NAD83(HARN) / WISCRS Douglas (ftUS)
    "\347WI\323{ D\026gl} (m)\0" // NAD83(HARN) / WISCRS Douglas (m)
    "\347WI\323{ Dunn (ft\203)\0" // NAD83(HARN) / WISCRS Dunn (ftUS)
    "\347WI\323{ Dunn (m)\0" // NAD83(HARN) / WISCRS Dunn (m)
    "\347WI\323{ Eau\327la\340\010(ft\203)\0" // NAD83(HARN) / WISCRS Eau Claire (ftUS)
    "\347WI\323{ Eau\327la\340\010(m)\0" // NAD83(HARN) / WISCRS Eau Claire (m)
    "\347WI\323{ Fl\006\207c\010(ft\203)\0" // NAD83(HARN) / WISCRS Florence (ftUS)
    "\347WI\323{ Fl\006\207c\010(m)\0" // NAD83(HARN) / WISCRS Florence (m)
    "\347WI\323{ F\006\267(ft\203)\0" // NAD83(HARN) / WISCRS Forest (ftUS)
    "\347WI\323{ F\006\267(m)\0" // NAD83(HARN) / WISCRS Forest (m)
    "\347WI\323{ Gr\005t (ft\203)\0" // NAD83(HARN) / WISCRS Grant (ftUS)
    "\347WI\323{ Gr\005t (m)\0" // NAD83(HARN) / WISCRS Grant (m)
    "\347WI\323{ G>\207 Lak\010\253M\037qu\036t\010(ft\203)\0" // NAD83(HARN) / WISCRS Green Lake and Marquette (ftUS)
    "\347WI\323{ G>\207 Lak\010\253M\037qu\036t\010(m)\0" // NAD83(HARN) / WISCRS Green Lake and Marquette (m)
    "\347WI\323{ G>\207\374Lafay\036t\010(ft\203)\0" // NAD83(HARN) / WISCRS Green and Lafayette (ftUS)
    "\347WI\323{ G>\207\374Lafay\036t\010(m)\0" // NAD83(HARN) / WISCRS Green and Lafayette (m)
    "\347WI\323{ Iow\027(ft\203)\0" // NAD83(HARN) / WISCRS Iowa (ftUS)
    "\347WI\323{ Iow\027(m)\0" // NAD83(HARN) / WISCRS Iowa (m)
    "\347WI\323{ Ir\231(ft\203)\0" // NAD83(HARN) / WISCRS Iron (ftUS)
    "\347WI\323{ Ir\231(m)\0" // NAD83(HARN) / WISCRS Iron (m)
    "\347WI\323{ Jacks\231(ft\203)\0" // NAD83(HARN) / WISCRS Jackson (ftUS)
    "\347WI\323{ Jacks\231(m)\0" // NAD83(HARN) / WISCRS Jackson (m)
    "\347WI\323{ K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023\010(ft\203)\0" // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    "\347WI\323{ K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023\010(m)\0" // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    "\347WI\323{ Kewaunee\277M\005\245owoc \033|heboyg\005 (ft\203)\0" // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    "\347WI\323{ Kewaunee\277M\005\245owoc \033|heboyg\005 (m)\0" // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    "\347WI\323{ L\027Cross\010(ft\203)\0" // NAD83(HARN) / WISCRS La Crosse (ftUS)
    "\347WI\323{ L\027Cross\010(m)\0" // NAD83(HARN) / WISCRS La Crosse (m)
    "\347WI\323{ L\005gl\226\010(ft\203)\0" // NAD83(HARN) / WISCRS Langlade (ftUS)
    "\347WI\323{ L\005gl\226\010(m)\0" // NAD83(HARN) / WISCRS Langlade (m)
    "\347WI\323{ L\023c\246n (ft\203)\0" // NAD83(HARN) / WISCRS Lincoln (ftUS)
    "\347WI\323{ L\023c\246n (m)\0" // NAD83(HARN) / WISCRS Lincoln (m)
    "\347WI\323{ M\037a\024\231(ft\203)\0" // NAD83(HARN) / WISCRS Marathon (ftUS)
    "\347WI\323{ M\037a\024\231(m)\0" // NAD83(HARN) / WISCRS Marathon (m)
    "\347WI\323{ M\037\023\036t\010(ft\203)\0" // NAD83(HARN) / WISCRS Marinette (ftUS)
    "\347WI\323{ M\037\023\036t\010(m)\0" // NAD83(HARN) / WISCRS Marinette (m)
    "\347WI\323{ M\207\343\023e\010(ft\203)\0" // NAD83(HARN) / WISCRS Menominee (ftUS)
    "\347WI\323{ M\207\343\023e\010(m)\0" // NAD83(HARN) / WISCRS Menominee (m)
    "\347WI\323{ M\003ro\010(ft\203)\0" // NAD83(HARN) / WISCRS Monroe (ftUS)
    "\347WI\323{ M\003ro\010(m)\0" // NAD83(HARN) / WISCRS Monroe (m)
    "\347WI\323{ Oc\003t\013(ft\203)\0" // NAD83(HARN) / WISCRS Oconto (ftUS)
    "\347WI\323{ Oc\003t\013(m)\0" // NAD83(HARN) / WISCRS Oconto (m)
    "\347WI\323{ One\257\027(ft\203)\0" // NAD83(HARN) / WISCRS Oneida (ftUS)
    "\347WI\323{ One\257\027(m)\0" // NAD83(HARN) / WISCRS Oneida (m)
    "\347WI\323{ Pep\023\374Pi\007c\010(ft\203)\0" // NAD83(HARN) / WISCRS Pepin and Pierce (ftUS)
    "\347WI\323{ Pep\023\374Pi\007c\010(m)\0" // NAD83(HARN) / WISCRS Pepin and Pierce (m)
    "\347WI\323{ P\246k (ft\203)\0" // NAD83(HARN) / WISCRS Polk (ftUS)
    "\347WI\323{ P\246k (m)\0" // NAD83(HARN) / WISCRS Polk (m)
    "\347WI\323{ P\006tag\010(ft\203)\0" // NAD83(HARN) / WISCRS Portage (ftUS)
    "\347WI\323{ P\006tag\010(m)\0" // NAD83(HARN) / WISCRS Portage (m)
    "\347WI\323{ Pr#\010(ft\203)\0" // NAD83(HARN) / WISCRS Price (ftUS)
    "\347WI\323{ Pr#\010(m)\0" // NAD83(HARN) / WISCRS Price (m)
    "\347WI\323{ R#h\206 (ft\203)\0" // NAD83(HARN) / WISCRS Richland (ftUS)
    "\347WI\323{ R#h\206 (m)\0" // NAD83(HARN) / WISCRS Richland (m)
    "\347WI\323{ Rock (ft\203)\0" // NAD83(HARN) / WISCRS Rock (ftUS)
    "\347WI\323{ Rock (m)\0" // NAD83(HARN) / WISCRS Rock (m)
    "\347WI\323{ R\351k (ft\203)\0" // NAD83(HARN) / WISCRS Rusk (ftUS)
    "\347WI\323{ R\351k (m)\0" // NAD83(HARN) / WISCRS Rusk (m)
    "\347WI\323{|auk (ft\203)\0" // NAD83(HARN) / WISCRS Sauk (ftUS)
    "\347WI\323{|auk (m)\0" // NAD83(HARN) / WISCRS Sauk (m)
    "\347WI\323{|awy\007 (ft\203)\0" // NAD83(HARN) / WISCRS Sawyer (ftUS)
    "\347WI\323{|awy\007 (m)\0" // NAD83(HARN) / WISCRS Sawyer (m)
    "\347WI\323{|haw\005\013(ft\203)\0" // NAD83(HARN) / WISCRS Shawano (ftUS)
    "\347WI\323{|haw\005\013(m)\0" // NAD83(HARN) / WISCRS Shawano (m)
    "\347WI\323{|t.\327roix (ft\203)\0" // NAD83(HARN) / WISCRS St. Croix (ftUS)
    "\347WI\323{|t.\327roix (m)\0" // NAD83(HARN) / WISCRS St. Croix (m)
    "\347WI\323{ Tayl\006 (ft\203)\0" // NAD83(HARN) / WISCRS Taylor (ftUS)
    "\347WI\323{ Tayl\006 (m)\0" // NAD83(HARN) / WISCRS Taylor (m)
    "\347WI\323{ T>mpe\025eau (ft\203)\0" // NAD83(HARN) / WISCRS Trempealeau (ftUS)
    "\347WI\323{ T>mpe\025eau (m)\0" // NAD83(HARN) / WISCRS Trempealeau (m)
    "\347WI\323{ V\007n\231(ft\203)\0" // NAD83(HARN) / WISCRS Vernon (ftUS)
    "\347WI\323{ V\007n\231(m)\0" // NAD83(HARN) / WISCRS Vernon (m)
    "\347WI\323{ V\341} (ft\203)\0" // NAD83(HARN) / WISCRS Vilas (ftUS)
    "\347WI\323{ V\341} (m)\0" // NAD83(HARN) / WISCRS Vilas (m)
    "\347WI\323{ W\025w\006@(ft\203)\0" // NAD83(HARN) / WISCRS Walworth (ftUS)
    "\347WI\323{ W\025w\006@(m)\0" // NAD83(HARN) / WISCRS Walworth (m)
    "\347WI\323{ Wa<b\224n (ft\203)\0" // NAD83(HARN) / WISCRS Washburn (ftUS)
    "\347WI\323{ Wa<b\224n (m)\0" // NAD83(HARN) / WISCRS Washburn (m)
    "\347WI\323{ Wa<\023gt\231(ft\203)\0" // NAD83(HARN) / WISCRS Washington (ftUS)
    "\347WI\323{ Wa<\023gt\231(m)\0" // NAD83(HARN) / WISCRS Washington (m)
    "\347WI\323{ Wauke<\027(ft\203)\0" // NAD83(HARN) / WISCRS Waukesha (ftUS)
    "\347WI\323{ Wauke<\027(m)\0" // NAD83(HARN) / WISCRS Waukesha (m)
    "\347WI\323{ Waupac\027(ft\203)\0" // NAD83(HARN) / WISCRS Waupaca (ftUS)
    "\347WI\323{ Waupac\027(m)\0" // NAD83(HARN) / WISCRS Waupaca (m)
    "\347WI\323{ Wau<\037\027(ft\203)\0" // NAD83(HARN) / WISCRS Waushara (ftUS)
    "\347WI\323{ Wau<\037\027(m)\0" // NAD83(HARN) / WISCRS Waushara (m)
    "\347WI\323{ Wood (ft\203)\0" // NAD83(HARN) / WISCRS Wood (ftUS)
    "\347WI\323{ Wood (m)\0" // NAD83(HARN) / WISCRS Wood (m)
    "\347Wa<\023gt\231\373\0" // NAD83(HARN) / Washington North
    "\347Wa<\023gt\231\324(ft\203)\0" // NAD83(HARN) / Washington North (ftUS)
    "\347Wa<\023gt\003|\365\0" // NAD83(HARN) / Washington South
    "\347Wa<\023gt\003|\250(ft\203)\0" // NAD83(HARN) / Washington South (ftUS)
    "\347W\267V\340g\023\315\373\0" // NAD83(HARN) / West Virginia North
    "\347W\267V\340g\023\315\324(ft\203)\0" // NAD83(HARN) / West Virginia North (ftUS)
    "\347W\267V\340g\023\315S\365\0" // NAD83(HARN) / West Virginia South
    "\347W\267V\340g\023\315\370(ft\203)\0" // NAD83(HARN) / West Virginia South (ftUS)
    "\347W\077c\003s\023 C\367\025\0" // NAD83(HARN) / Wisconsin Central
    "\347W\077c\003s\023\327\367\230(ft\203)\0" // NAD83(HARN) / Wisconsin Central (ftUS)
    "\347W\077c\003s\023 \373\0" // NAD83(HARN) / Wisconsin North
    "\347W\077c\003s\023 \324(ft\203)\0" // NAD83(HARN) / Wisconsin North (ftUS)
    "\347W\077c\003s\023|\365\0" // NAD83(HARN) / Wisconsin South
    "\347W\077c\003s\023|\250(ft\203)\0" // NAD83(HARN) / Wisconsin South (ftUS)
    "\347W\077c\003s\023 Tr\005sv\232\010M\007c=\006\0" // NAD83(HARN) / Wisconsin Transverse Mercator
    "\347Wy\343\023g Ea\020\0" // NAD83(HARN) / Wyoming East
    "\347Wy\343\023g E\314(ft\203)\0" // NAD83(HARN) / Wyoming East (ftUS)
    "\347Wy\343\023g E\314C\367\025\0" // NAD83(HARN) / Wyoming East Central
    "\347Wy\343\023g E\314C\367\230(ft\203)\0" // NAD83(HARN) / Wyoming East Central (ftUS)
    "\347Wy\343\023g We\020\0" // NAD83(HARN) / Wyoming West
    "\347Wy\343\023g W\267(ft\203)\0" // NAD83(HARN) / Wyoming West (ftUS)
    "\347Wy\343\023g W\267C\367\025\0" // NAD83(HARN) / Wyoming West Central
    "\347Wy\343\023g W\267C\367\230(ft\203)\0" // NAD83(HARN) / Wyoming West Central (ftUS)
    "\346)\022%\333{\2277)\2011)\0" // NAD83(HARN) to NAD83(NSRS2007) (1)
    "%HPGN)\0" // NAD83(HPGN)
    "%MA\202)\0" // NAD83(MA11)
    "%MA\202*Gu\225 Map Gr\257\0" // NAD83(MA11) / Guam Map Grid
    "%MA\202*U\254\27354N\0" // NAD83(MA11) / UTM zone 54N
    "%MA\202*U\254\27355N\0" // NAD83(MA11) / UTM zone 55N
    "%M\252P00)\0" // NAD83(MARP00)
    "%\333{\2277)\0" // NAD83(NSRS2007)
    "%\333{\2277*Alab\225\027Ea\020\0" // NAD83(NSRS2007) / Alabama East
    "%\333{\2277*Alab\225\027We\020\0" // NAD83(NSRS2007) / Alabama West
    "%\333{\2277*Al}k\027Alb\232\0" // NAD83(NSRS2007) / Alaska Albers
    "%\333{\2277*Al}k\027^1\0" // NAD83(NSRS2007) / Alaska zone 1
    "%\333{\2277*Al}k\027^10\0" // NAD83(NSRS2007) / Alaska zone 10
    "%\333{\2277*Al}k\027^2\0" // NAD83(NSRS2007) / Alaska zone 2
    "%\333{\2277*Al}k\027^3\0" // NAD83(NSRS2007) / Alaska zone 3
    "%\333{\2277*Al}k\027^4\0" // NAD83(NSRS2007) / Alaska zone 4
    "%\333{\2277*Al}k\027^5\0" // NAD83(NSRS2007) / Alaska zone 5
    "%\333{\2277*Al}k\027^6\0" // NAD83(NSRS2007) / Alaska zone 6
    "%\333{\2277*Al}k\027^7\0" // NAD83(NSRS2007) / Alaska zone 7
    "%\333{\2277*Al}k\027^8\0" // NAD83(NSRS2007) / Alaska zone 8
    "%\333{\2277*Al}k\027^9\0" // NAD83(NSRS2007) / Alaska zone 9
    "%\333{\2277*\325i$\027C\367\025\0" // NAD83(NSRS2007) / Arizona Central
    "%\333{\2277*\325i$\027C\367\025\201ft)\0" // NAD83(NSRS2007) / Arizona Central (ft)
    "%\333{\2277*\325i$\027Ea\020\0" // NAD83(NSRS2007) / Arizona East
    "%\333{\2277*\325i$\027E\314(ft)\0" // NAD83(NSRS2007) / Arizona East (ft)
    "%\333{\2277*\325i$\027We\020\0" // NAD83(NSRS2007) / Arizona West
    "%\333{\2277*\325i$\027W\267(ft)\0" // NAD83(NSRS2007) / Arizona West (ft)
    "%\333{\2277*\325k\005s} \373\0" // NAD83(NSRS2007) / Arkansas North
    "%\333{\2277*\325k\005s} \324(ft\203)\0" // NAD83(NSRS2007) / Arkansas North (ftUS)
    "%\333{\2277*\325k\005s}|\365\0" // NAD83(NSRS2007) / Arkansas South
    "%\333{\2277*\325k\005s}|\250(ft\203)\0" // NAD83(NSRS2007) / Arkansas South (ftUS)
    "%\333{\2277*C\025if\006n\315Alb\232\0" // NAD83(NSRS2007) / California Albers
    "%\333{\2277*C\025if\006n\315^1\0" // NAD83(NSRS2007) / California zone 1
    "%\333{\2277*C\025if\006n\315^1 (ft\203)\0" // NAD83(NSRS2007) / California zone 1 (ftUS)
    "%\333{\2277*C\025if\006n\315^2\0" // NAD83(NSRS2007) / California zone 2
    "%\333{\2277*C\025if\006n\315^2 (ft\203)\0" // NAD83(NSRS2007) / California zone 2 (ftUS)
    "%\333{\2277*C\025if\006n\315^3\0" // NAD83(NSRS2007) / California zone 3
    "%\333{\2277*C\025if\006n\315^3 (ft\203)\0" // NAD83(NSRS2007) / California zone 3 (ftUS)
    "%\333{\2277*C\025if\006n\315^4\0" // NAD83(NSRS2007) / California zone 4
    "%\333{\2277*C\025if\006n\315^4 (ft\203)\0" // NAD83(NSRS2007) / California zone 4 (ftUS)
    "%\333{\2277*C\025if\006n\315^5\0" // NAD83(NSRS2007) / California zone 5
    "%\333{\2277*C\025if\006n\315^5 (ft\203)\0" // NAD83(NSRS2007) / California zone 5 (ftUS)
    "%\333{\2277*C\025if\006n\315^6\0" // NAD83(NSRS2007) / California zone 6
    "%\333{\2277*C\025if\006n\315^6 (ft\203)\0" // NAD83(NSRS2007) / California zone 6 (ftUS)
    "%\333{\2277*C\246\006\226\013C\367\025\0" // NAD83(NSRS2007) / Colorado Central
    "%\333{\2277*C\246\006\226\013C\367\230(ft\203)\0" // NAD83(NSRS2007) / Colorado Central (ftUS)
    "%\333{\2277*C\246\006\226\013\373\0" // NAD83(NSRS2007) / Colorado North
    "%\333{\2277*C\246\006\226\013\324(ft\203)\0" // NAD83(NSRS2007) / Colorado North (ftUS)
    "%\333{\2277*C\246\006\226\013S\365\0" // NAD83(NSRS2007) / Colorado South
    "%\333{\2277*C\246\006\226\013\370(ft\203)\0" // NAD83(NSRS2007) / Colorado South (ftUS)
    "%\333{\2277*C\003ne\322#ut\0" // NAD83(NSRS2007) / Connecticut
    "%\333{\2277*C\003ne\322#ut (ft\203)\0" // NAD83(NSRS2007) / Connecticut (ftUS)
    "%\333{\2277*C\003\351 Alb\232\0" // NAD83(NSRS2007) / Conus Albers
    "%\333{\2277*D\242aw\037e\0" // NAD83(NSRS2007) / Delaware
    "%\333{\2277*D\242aw\037\010(ft\203)\0" // NAD83(NSRS2007) / Delaware (ftUS)
    "%\333{\2277*E\247G \325\322#\2735-29\0" // NAD83(NSRS2007) / EPSG Arctic zone 5-29
    "%\333{\2277*E\247G \325\322#\2735-31\0" // NAD83(NSRS2007) / EPSG Arctic zone 5-31
    "%\333{\2277*E\247G \325\322#\2736-14\0" // NAD83(NSRS2007) / EPSG Arctic zone 6-14
    "%\333{\2277*E\247G \325\322#\2736-16\0" // NAD83(NSRS2007) / EPSG Arctic zone 6-16
    "%\333{\2277*Fl\006\257\027Ea\020\0" // NAD83(NSRS2007) / Florida East
    "%\333{\2277*Fl\006\257\027E\314(ft\203)\0" // NAD83(NSRS2007) / Florida East (ftUS)
    "%\333{\2277*Fl\006\257\027GDL Alb\232\0" // NAD83(NSRS2007) / Florida GDL Albers
    "%\333{\2277*Fl\006\257\027\373\0" // NAD83(NSRS2007) / Florida North
    "%\333{\2277*Fl\006\257\027\324(ft\203)\0" // NAD83(NSRS2007) / Florida North (ftUS)
    "%\333{\2277*Fl\006\257\027We\020\0" // NAD83(NSRS2007) / Florida West
    "%\333{\2277*Fl\006\257\027W\267(ft\203)\0" // NAD83(NSRS2007) / Florida West (ftUS)
    "%\333{\2277*Ge\006g\315Ea\020\0" // NAD83(NSRS2007) / Georgia East
    "%\333{\2277*Ge\006g\315E\314(ft\203)\0" // NAD83(NSRS2007) / Georgia East (ftUS)
    "%\333{\2277*Ge\006g\315We\020\0" // NAD83(NSRS2007) / Georgia West
    "%\333{\2277*Ge\006g\315W\267(ft\203)\0" // NAD83(NSRS2007) / Georgia West (ftUS)
    "%\333{\2277*Id\361\013C\367\025\0" // NAD83(NSRS2007) / Idaho Central
    "%\333{\2277*Id\361\013C\367\230(ft\203)\0" // NAD83(NSRS2007) / Idaho Central (ftUS)
    "%\333{\2277*Id\361\013Ea\020\0" // NAD83(NSRS2007) / Idaho East
    "%\333{\2277*Id\361\013E\314(ft\203)\0" // NAD83(NSRS2007) / Idaho East (ftUS)
    "%\333{\2277*Id\361\013We\020\0" // NAD83(NSRS2007) / Idaho West
    "%\333{\2277*Id\361\013W\267(ft\203)\0" // NAD83(NSRS2007) / Idaho West (ftUS)
    "%\333{\2277*Ill\023o\077 Ea\020\0" // NAD83(NSRS2007) / Illinois East
    "%\333{\2277*Ill\023o\077 E\314(ft\203)\0" // NAD83(NSRS2007) / Illinois East (ftUS)
    "%\333{\2277*Ill\023o\077 We\020\0" // NAD83(NSRS2007) / Illinois West
    "%\333{\2277*Ill\023o\077 W\267(ft\203)\0" // NAD83(NSRS2007) / Illinois West (ftUS)
    "%\333{\2277*\360\336\027Ea\020\0" // NAD83(NSRS2007) / Indiana East
    "%\333{\2277*\360\336\027E\314(ft\203)\0" // NAD83(NSRS2007) / Indiana East (ftUS)
    "%\333{\2277*\360\336\027We\020\0" // NAD83(NSRS2007) / Indiana West
    "%\333{\2277*\360\336\027W\267(ft\203)\0" // NAD83(NSRS2007) / Indiana West (ftUS)
    "%\333{\2277*Iow\027\373\0" // NAD83(NSRS2007) / Iowa North
    "%\333{\2277*Iow\027\324(ft\203)\0" // NAD83(NSRS2007) / Iowa North (ftUS)
    "%\333{\2277*Iow\027S\365\0" // NAD83(NSRS2007) / Iowa South
    "%\333{\2277*Iow\027\370(ft\203)\0" // NAD83(NSRS2007) / Iowa South (ftUS)
    "%\333{\2277*K\005s} \373\0" // NAD83(NSRS2007) / Kansas North
    "%\333{\2277*K\005s} \324(ft\203)\0" // NAD83(NSRS2007) / Kansas North (ftUS)
    "%\333{\2277*K\005s}|\365\0" // NAD83(NSRS2007) / Kansas South
    "%\333{\2277*K\005s}|\250(ft\203)\0" // NAD83(NSRS2007) / Kansas South (ftUS)
    "%\333{\2277*Ke\035uck\204\373\0" // NAD83(NSRS2007) / Kentucky North
    "%\333{\2277*Ke\035uck\204\324(ft\203)\0" // NAD83(NSRS2007) / Kentucky North (ftUS)
    "%\333{\2277*Ke\035ucky|\023gl\010Z\003e\0" // NAD83(NSRS2007) / Kentucky Single Zone
    "%\333{\2277*Ke\035ucky|\023gl\010Z\003\010(ft\203)\0" // NAD83(NSRS2007) / Kentucky Single Zone (ftUS)
    "%\333{\2277*Ke\035ucky|\365\0" // NAD83(NSRS2007) / Kentucky South
    "%\333{\2277*Ke\035ucky|\250(ft\203)\0" // NAD83(NSRS2007) / Kentucky South (ftUS)
    "%\333{\2277*L\026\077\336\027\373\0" // NAD83(NSRS2007) / Louisiana North
    "%\333{\2277*L\026\077\336\027\324(ft\203)\0" // NAD83(NSRS2007) / Louisiana North (ftUS)
    "%\333{\2277*L\026\077\336\027S\365\0" // NAD83(NSRS2007) / Louisiana South
    "%\333{\2277*L\026\077\336\027\370(ft\203)\0" // NAD83(NSRS2007) / Louisiana South (ftUS)
    "%\333{\2277*Ma\023\010\134\2270 C\367\025\0" // NAD83(NSRS2007) / Maine CS2000 Central
    "%\333{\2277*Ma\023\010\134\2270 Ea\020\0" // NAD83(NSRS2007) / Maine CS2000 East
    "%\333{\2277*Ma\023\010\134\2270 We\020\0" // NAD83(NSRS2007) / Maine CS2000 West
    "%\333{\2277*Ma\023\010Ea\020\0" // NAD83(NSRS2007) / Maine East
    "%\333{\2277*Ma\023\010E\314(ft\203)\0" // NAD83(NSRS2007) / Maine East (ftUS)
    "%\333{\2277*Ma\023\010We\020\0" // NAD83(NSRS2007) / Maine West
    "%\333{\2277*Ma\023\010W\267(ft\203)\0" // NAD83(NSRS2007) / Maine West (ftUS)
    "%\333{\2277*M\037y\206\0" // NAD83(NSRS2007) / Maryland
    "%\333{\2277*M\037y\206 (ft\203)\0" // NAD83(NSRS2007) / Maryland (ftUS)
    "%\333{\2277*M}sach\351\036ts \335\0" // NAD83(NSRS2007) / Massachusetts Island
    "%\333{\2277*M}sach\351\036ts \335 (ft\203)\0" // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    "%\333{\2277*M}sach\351\036ts Ma\023\206\0" // NAD83(NSRS2007) / Massachusetts Mainland
    "%\333{\2277*M}sach\351\036ts Ma\023\206 (ft\203)\0" // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    "%\333{\2277*M#hig\005 C\367\025\0" // NAD83(NSRS2007) / Michigan Central
    "%\333{\2277*M#hig\005\327\367\025\201ft)\0" // NAD83(NSRS2007) / Michigan Central (ft)
    "%\333{\2277*M#hig\005 \373\0" // NAD83(NSRS2007) / Michigan North
    "%\333{\2277*M#hig\005 \324(ft)\0" // NAD83(NSRS2007) / Michigan North (ft)
    "%\333{\2277*M#hig\005 Obliqu\010M\007c=\006\0" // NAD83(NSRS2007) / Michigan Oblique Mercator
    "%\333{\2277*M#hig\005|\365\0" // NAD83(NSRS2007) / Michigan South
    "%\333{\2277*M#hig\005|\250(ft)\0" // NAD83(NSRS2007) / Michigan South (ft)
    "%\333{\2277*M\023n\220\337\027C\367\025\0" // NAD83(NSRS2007) / Minnesota Central
    "%\333{\2277*M\023n\220\337\027C\367\230(ft\203)\0" // NAD83(NSRS2007) / Minnesota Central (ftUS)
    "%\333{\2277*M\023n\220\337\027\373\0" // NAD83(NSRS2007) / Minnesota North
    "%\333{\2277*M\023n\220\337\027\324(ft\203)\0" // NAD83(NSRS2007) / Minnesota North (ftUS)
    "%\333{\2277*M\023n\220\337\027S\365\0" // NAD83(NSRS2007) / Minnesota South
    "%\333{\2277*M\023n\220\337\027\370(ft\203)\0" // NAD83(NSRS2007) / Minnesota South (ftUS)
    "%\333{\2277*M\077s\077sippi Ea\020\0" // NAD83(NSRS2007) / Mississippi East
    "%\333{\2277*M\077s\077sippi E\314(ft\203)\0" // NAD83(NSRS2007) / Mississippi East (ftUS)
    "%\333{\2277*M\077s\077sippi \254\0" // NAD83(NSRS2007) / Mississippi TM
    "%\333{\2277*M\077s\077sippi We\020\0" // NAD83(NSRS2007) / Mississippi West
    "%\333{\2277*M\077s\077sippi W\267(ft\203)\0" // NAD83(NSRS2007) / Mississippi West (ftUS)
    "%\333{\2277*M\077s\026ri C\367\025\0" // NAD83(NSRS2007) / Missouri Central
    "%\333{\2277*M\077s\026ri Ea\020\0" // NAD83(NSRS2007) / Missouri East
    "%\333{\2277*M\077s\026ri We\020\0" // NAD83(NSRS2007) / Missouri West
    "%\333{\2277*M\003t\005a\0" // NAD83(NSRS2007) / Montana
    "%\333{\2277*M\003t\005\027(ft)\0" // NAD83(NSRS2007) / Montana (ft)
    "%\333{\2277*\307br}ka\0" // NAD83(NSRS2007) / Nebraska
    "%\333{\2277*\307br}k\027(ft\203)\0" // NAD83(NSRS2007) / Nebraska (ftUS)
    "%\333{\2277*\307v\226\027C\367\025\0" // NAD83(NSRS2007) / Nevada Central
    "%\333{\2277*\307v\226\027C\367\230(ft\203)\0" // NAD83(NSRS2007) / Nevada Central (ftUS)
    "%\333{\2277*\307v\226\027Ea\020\0" // NAD83(NSRS2007) / Nevada East
    "%\333{\2277*\307v\226\027E\314(ft\203)\0" // NAD83(NSRS2007) / Nevada East (ftUS)
    "%\333{\2277*\307v\226\027We\020\0" // NAD83(NSRS2007) / Nevada West
    "%\333{\2277*\307v\226\027W\267(ft\203)\0" // NAD83(NSRS2007) / Nevada West (ftUS)
    "%\333{\2277*\357 H\225p<i>\0" // NAD83(NSRS2007) / New Hampshire
    "%\333{\2277*\357 H\225p<\340\010(ft\203)\0" // NAD83(NSRS2007) / New Hampshire (ftUS)
    "%\333{\2277*\357 J\232ey\0" // NAD83(NSRS2007) / New Jersey
    "%\333{\2277*\357 J\232e\204(ft\203)\0" // NAD83(NSRS2007) / New Jersey (ftUS)
    "%\333{\2277*\357 Mex#\013C\367\025\0" // NAD83(NSRS2007) / New Mexico Central
    "%\333{\2277*\357 Mex#\013C\367\230(ft\203)\0" // NAD83(NSRS2007) / New Mexico Central (ftUS)
    "%\333{\2277*\357 Mex#\013Ea\020\0" // NAD83(NSRS2007) / New Mexico East
    "%\333{\2277*\357 Mex#\013E\314(ft\203)\0" // NAD83(NSRS2007) / New Mexico East (ftUS)
    "%\333{\2277*\357 Mex#\013We\020\0" // NAD83(NSRS2007) / New Mexico West
    "%\333{\2277*\357 Mex#\013W\267(ft\203)\0" // NAD83(NSRS2007) / New Mexico West (ftUS)
    "%\333{\2277*\357 Y\006k C\367\025\0" // NAD83(NSRS2007) / New York Central
    "%\333{\2277*\357 Y\006k\327\367\230(ft\203)\0" // NAD83(NSRS2007) / New York Central (ftUS)
    "%\333{\2277*\357 Y\006k Ea\020\0" // NAD83(NSRS2007) / New York East
    "%\333{\2277*\357 Y\006k E\314(ft\203)\0" // NAD83(NSRS2007) / New York East (ftUS)
    "%\333{\2277*\357 Y\006k L\003g \335\0" // NAD83(NSRS2007) / New York Long Island
    "%\333{\2277*\357 Y\006k L\003g \335 (ft\203)\0" // NAD83(NSRS2007) / New York Long Island (ftUS)
    "%\333{\2277*\357 Y\006k We\020\0" // NAD83(NSRS2007) / New York West
    "%\333{\2277*\357 Y\006k W\267(ft\203)\0" // NAD83(NSRS2007) / New York West (ftUS)
    "%\333{\2277*\324C\037\246\023a\0" // NAD83(NSRS2007) / North Carolina
    "%\333{\2277*\324C\037\246\023\027(ft\203)\0" // NAD83(NSRS2007) / North Carolina (ftUS)
    "%\333{\2277*\324Dak\337\027\373\0" // NAD83(NSRS2007) / North Dakota North
    "%\333{\2277*\324Dak\337\027\324(ft)\0" // NAD83(NSRS2007) / North Dakota North (ft)
    "%\333{\2277*\324Dak\337\027S\365\0" // NAD83(NSRS2007) / North Dakota South
    "%\333{\2277*\324Dak\337\027\370(ft)\0" // NAD83(NSRS2007) / North Dakota South (ft)
    "%\333{\2277*Ohi\013\373\0" // NAD83(NSRS2007) / Ohio North
    "%\333{\2277*Ohi\013\324(ft\203)\0" // NAD83(NSRS2007) / Ohio North (ftUS)
    "%\333{\2277*Ohi\013S\365\0" // NAD83(NSRS2007) / Ohio South
    "%\333{\2277*Ohi\013\370(ft\203)\0" // NAD83(NSRS2007) / Ohio South (ftUS)
    "%\333{\2277*Okl\361\343\027\373\0" // NAD83(NSRS2007) / Oklahoma North
    "%\333{\2277*Okl\361\343\027\324(ft\203)\0" // NAD83(NSRS2007) / Oklahoma North (ftUS)
    "%\333{\2277*Okl\361\343\027S\365\0" // NAD83(NSRS2007) / Oklahoma South
    "%\333{\2277*Okl\361\343\027\370(ft\203)\0" // NAD83(NSRS2007) / Oklahoma South (ftUS)
    "%\333{\2277*\326\231GIC L\225b\007t\201ft)\0" // NAD83(NSRS2007) / Oregon GIC Lambert (ft)
    "%\333{\2277*\326\231LCC (m)\0" // NAD83(NSRS2007) / Oregon LCC (m)
    "%\333{\2277*\326\231\373\0" // NAD83(NSRS2007) / Oregon North
    "%\333{\2277*\326\231\324(ft)\0" // NAD83(NSRS2007) / Oregon North (ft)
    "%\333{\2277*\326\003|\365\0" // NAD83(NSRS2007) / Oregon South
    "%\333{\2277*\326\003|\250(ft)\0" // NAD83(NSRS2007) / Oregon South (ft)
    "%\333{\2277*P\207nsylv\005\315\373\0" // NAD83(NSRS2007) / Pennsylvania North
    "%\333{\2277*P\207nsylv\005\315\324(ft\203)\0" // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    "%\333{\2277*P\207nsylv\005\315S\365\0" // NAD83(NSRS2007) / Pennsylvania South
    "%\333{\2277*P\207nsylv\005\315\370(ft\203)\0" // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    "%\333{\2277*Pu\007t\013R#\013\253V\340g\023 \316.\0" // NAD83(NSRS2007) / Puerto Rico and Virgin Is.
    "%\333{\2277*Rhod\010\335\0" // NAD83(NSRS2007) / Rhode Island
    "%\333{\2277*Rhod\010\335 (ft\203)\0" // NAD83(NSRS2007) / Rhode Island (ftUS)
    "%\333{\2277*\370C\037\246\023a\0" // NAD83(NSRS2007) / South Carolina
    "%\333{\2277*\370C\037\246\023\027(ft)\0" // NAD83(NSRS2007) / South Carolina (ft)
    "%\333{\2277*\370Dak\337\027\373\0" // NAD83(NSRS2007) / South Dakota North
    "%\333{\2277*\370Dak\337\027\324(ft\203)\0" // NAD83(NSRS2007) / South Dakota North (ftUS)
    "%\333{\2277*\370Dak\337\027S\365\0" // NAD83(NSRS2007) / South Dakota South
    "%\333{\2277*\370Dak\337\027\370(ft\203)\0" // NAD83(NSRS2007) / South Dakota South (ftUS)
    "%\333{\2277*T\207n\220see\0" // NAD83(NSRS2007) / Tennessee
    "%\333{\2277*T\207n\220se\010(ft\203)\0" // NAD83(NSRS2007) / Tennessee (ftUS)
    "%\333{\2277*Tex} C\367\025\0" // NAD83(NSRS2007) / Texas Central
    "%\333{\2277*Tex}\327\367\230(ft\203)\0" // NAD83(NSRS2007) / Texas Central (ftUS)
    "%\333{\2277*Tex}\327\367# Alb\232 Equ\230A>a\0" // NAD83(NSRS2007) / Texas Centric Albers Equal Area
    "%\333{\2277*Tex}\327\367# L\225b\007t\327\003f\006m\025\0" // NAD83(NSRS2007) / Texas Centric Lambert Conformal
    "%\333{\2277*Tex} \373\0" // NAD83(NSRS2007) / Texas North
    "%\333{\2277*Tex} \324(ft\203)\0" // NAD83(NSRS2007) / Texas North (ftUS)
    "%\333{\2277*Tex} \324C\367\025\0" // NAD83(NSRS2007) / Texas North Central
    "%\333{\2277*Tex} \324C\367\230(ft\203)\0" // NAD83(NSRS2007) / Texas North Central (ftUS)
    "%\333{\2277*Tex}|\365\0" // NAD83(NSRS2007) / Texas South
    "%\333{\2277*Tex}|\250(ft\203)\0" // NAD83(NSRS2007) / Texas South (ftUS)
    "%\333{\2277*Tex}|\250C\367\025\0" // NAD83(NSRS2007) / Texas South Central
    "%\333{\2277*Tex}|\250C\367\230(ft\203)\0" // NAD83(NSRS2007) / Texas South Central (ftUS)
    "%\333{\2277*U\254\273\312N\0" // NAD83(NSRS2007) / UTM zone 10N
    "%\333{\2277*U\254\27311N\0" // NAD83(NSRS2007) / UTM zone 11N
    "%\333{\2277*U\254\27312N\0" // NAD83(NSRS2007) / UTM zone 12N
    "%\333{\2277*U\254\27313N\0" // NAD83(NSRS2007) / UTM zone 13N
    "%\333{\2277*U\254\27314N\0" // NAD83(NSRS2007) / UTM zone 14N
    "%\333{\2277*U\254\27315N\0" // NAD83(NSRS2007) / UTM zone 15N
    "%\333{\2277*U\254\27316N\0" // NAD83(NSRS2007) / UTM zone 16N
    "%\333{\2277*U\254\27317N\0" // NAD83(NSRS2007) / UTM zone 17N
    "%\333{\2277*U\254\27318N\0" // NAD83(NSRS2007) / UTM zone 18N
    "%\333{\2277*U\254\27319N\0" // NAD83(NSRS2007) / UTM zone 19N
    "%\333{\2277*U\254\2731N\0" // NAD83(NSRS2007) / UTM zone 1N
    "%\333{\2277*U\254\2732N\0" // NAD83(NSRS2007) / UTM zone 2N
    "%\333{\2277*U\254\2733N\0" // NAD83(NSRS2007) / UTM zone 3N
    "%\333{\2277*U\254\2734N\0" // NAD83(NSRS2007) / UTM zone 4N
    "%\333{\2277*U\254\27359N\0" // NAD83(NSRS2007) / UTM zone 59N
    "%\333{\2277*U\254\2735N\0" // NAD83(NSRS2007) / UTM zone 5N
    "%\333{\2277*U\254\27360N\0" // NAD83(NSRS2007) / UTM zone 60N
    "%\333{\2277*U\254\2736N\0" // NAD83(NSRS2007) / UTM zone 6N
    "%\333{\2277*U\254\2737N\0" // NAD83(NSRS2007) / UTM zone 7N
    "%\333{\2277*U\254\2738N\0" // NAD83(NSRS2007) / UTM zone 8N
    "%\333{\2277*U\254\2739N\0" // NAD83(NSRS2007) / UTM zone 9N
    "%\333{\2277*Ut\361 C\367\025\0" // NAD83(NSRS2007) / Utah Central
    "%\333{\2277*Ut\361\327\367\025\201ft)\0" // NAD83(NSRS2007) / Utah Central (ft)
    "%\333{\2277*Ut\361\327\367\230(ft\203)\0" // NAD83(NSRS2007) / Utah Central (ftUS)
    "%\333{\2277*Ut\361 \373\0" // NAD83(NSRS2007) / Utah North
    "%\333{\2277*Ut\361 \324(ft)\0" // NAD83(NSRS2007) / Utah North (ft)
    "%\333{\2277*Ut\361 \324(ft\203)\0" // NAD83(NSRS2007) / Utah North (ftUS)
    "%\333{\2277*Ut\361|\365\0" // NAD83(NSRS2007) / Utah South
    "%\333{\2277*Ut\361|\250(ft)\0" // NAD83(NSRS2007) / Utah South (ft)
    "%\333{\2277*Ut\361|\250(ft\203)\0" // NAD83(NSRS2007) / Utah South (ftUS)
    "%\333{\2277*V\007m\003t\0" // NAD83(NSRS2007) / Vermont
    "%\333{\2277*V\007m\003t (ft\203)\0" // NAD83(NSRS2007) / Vermont (ftUS)
    "%\333{\2277*V\340g\023\315L\225b\007t\0" // NAD83(NSRS2007) / Virginia Lambert
    "%\333{\2277*V\340g\023\315\373\0" // NAD83(NSRS2007) / Virginia North
    "%\333{\2277*V\340g\023\315\324(ft\203)\0" // NAD83(NSRS2007) / Virginia North (ftUS)
    "%\333{\2277*V\340g\023\315S\365\0" // NAD83(NSRS2007) / Virginia South
    "%\333{\2277*V\340g\023\315\370(ft\203)\0" // NAD83(NSRS2007) / Virginia South (ftUS)
    "%\333{\2277*Wa<\023gt\231\373\0" // NAD83(NSRS2007) / Washington North
    "%\333{\2277*Wa<\023gt\231\324(ft\203)\0" // NAD83(NSRS2007) / Washington North (ftUS)
    "%\333{\2277*Wa<\023gt\003|\365\0" // NAD83(NSRS2007) / Washington South
    "%\333{\2277*Wa<\023gt\003|\250(ft\203)\0" // NAD83(NSRS2007) / Washington South (ftUS)
    "%\333{\2277*W\267V\340g\023\315\373\0" // NAD83(NSRS2007) / West Virginia North
    "%\333{\2277*W\267V\340g\023\315\324(ft\203)\0" // NAD83(NSRS2007) / West Virginia North (ftUS)
    "%\333{\2277*W\267V\340g\023\315S\365\0" // NAD83(NSRS2007) / West Virginia South
    "%\333{\2277*W\267V\340g\023\315\370(ft\203)\0" // NAD83(NSRS2007) / West Virginia South (ftUS)
    "%\333{\2277*W\077c\003s\023 C\367\025\0" // NAD83(NSRS2007) / Wisconsin Central
    "%\333{\2277*W\077c\003s\023\327\367\230(ft\203)\0" // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    "%\333{\2277*W\077c\003s\023 \373\0" // NAD83(NSRS2007) / Wisconsin North
    "%\333{\2277*W\077c\003s\023 \324(ft\203)\0" // NAD83(NSRS2007) / Wisconsin North (ftUS)
    "%\333{\2277*W\077c\003s\023|\365\0" // NAD83(NSRS2007) / Wisconsin South
    "%\333{\2277*W\077c\003s\023|\250(ft\203)\0" // NAD83(NSRS2007) / Wisconsin South (ftUS)
    "%\333{\2277*W\077c\003s\023 Tr\005sv\232\010M\007c=\006\0" // NAD83(NSRS2007) / Wisconsin Transverse Mercator
    "%\333{\2277*Wy\343\023g Ea\020\0" // NAD83(NSRS2007) / Wyoming East
    "%\333{\2277*Wy\343\023g E\314(ft\203)\0" // NAD83(NSRS2007) / Wyoming East (ftUS)
    "%\333{\2277*Wy\343\023g E\314C\367\025\0" // NAD83(NSRS2007) / Wyoming East Central
    "%\333{\2277*Wy\343\023g E\314C\367\230(ft\203)\0" // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    "%\333{\2277*Wy\343\023g We\020\0" // NAD83(NSRS2007) / Wyoming West
    "%\333{\2277*Wy\343\023g W\267(ft\203)\0" // NAD83(NSRS2007) / Wyoming West (ftUS)
    "%\333{\2277*Wy\343\023g W\267C\367\025\0" // NAD83(NSRS2007) / Wyoming West Central
    "%\333{\2277*Wy\343\023g W\267C\367\230(ft\203)\0" // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    "\032(Orig\023\025)\0" // NAD83(Original)
    "%PA\202)\0" // NAD83(PA11)
    "%PA\202*Hawaii\2731\0" // NAD83(PA11) / Hawaii zone 1
    "%PA\202*Hawaii\2732\0" // NAD83(PA11) / Hawaii zone 2
    "%PA\202*Hawaii\2733\0" // NAD83(PA11) / Hawaii zone 3
    "%PA\202*Hawaii\2733 (ft\203)\0" // NAD83(PA11) / Hawaii zone 3 (ftUS)
    "%PA\202*Hawaii\2734\0" // NAD83(PA11) / Hawaii zone 4
    "%PA\202*Hawaii\2735\0" // NAD83(PA11) / Hawaii zone 5
    "%PA\202*U\254\2732S\0" // NAD83(PA11) / UTM zone 2S
    "%PA\202*U\254\2734N\0" // NAD83(PA11) / UTM zone 4N
    "%PA\202*U\254\2735N\0" // NAD83(PA11) / UTM zone 5N
    "%PACP00)\0" // NAD83(PACP00)
    "\032-98.gsb\0" // NAD83-98.gsb
    "\021\211\306_\0" // NAD_1927_
    "\021\211\306_BLM_Z\003\215\0" // NAD_1927_BLM_Zone_
    "\021\211\306_CGQ77\0" // NAD_1927_CGQ77
    "\021\211\306\377GQ77_\0" // NAD_1927_CGQ77_
    "\021\211\306_DEF\21176_M\254_\0" // NAD_1927_DEF_1976_MTM_
    "\021\211\306_DEF\21176_U\254_Z\003\215\0" // NAD_1927_DEF_1976_UTM_Zone_
    "\021\211\306_Def\023\245\320\21176\0" // NAD_1927_Definition_1976
    "\021\211\306_St=ePl\005\215\0" // NAD_1927_StatePlane_
    "\021\211\306_St=ePl\005\215C\025if\006ni\256\0" // NAD_1927_StatePlane_California_
    "\021\211\306_U\254_Z\003\215\0" // NAD_1927_UTM_Zone_
    "\021\211\014_(\240)_IaR\134_$\215\0" // NAD_1983_(2011)_IaRCS_zone_
    "\021\211\014_(\240)_NC{_L}_Veg}_\0" // NAD_1983_(2011)_NCRS_Las_Vegas_
    "\021\211\014_\240_\0" // NAD_1983_2011_
    "\021\211\014_\240_\310G\134_\0" // NAD_1983_2011_InGCS_
    "\021\211\014_\240_KS_R\134_Z\003\215\0" // NAD_1983_2011_KS_RCS_Zone_
    "\021\211\014_\240_RMTC{_\0" // NAD_1983_2011_RMTCRS_
    "\021\211\014_\240_St=ePl\005\215\0" // NAD_1983_2011_StatePlane_
    "\021\211\014_\240_St=ePl\005\215C\025if\006ni\256\0" // NAD_1983_2011_StatePlane_California_
    "\021\211\014_\240_U\254_Z\003\215\0" // NAD_1983_2011_UTM_Zone_
    "\021\211\014_\240_WI\323{_\0" // NAD_1983_2011_WISCRS_
    "\021\211\014_BLM_Z\003\215\0" // NAD_1983_BLM_Zone_
    "\021\211\014\377O{96_St=ePl\005\215\326\003_\0" // NAD_1983_CORS96_StatePlane_Oregon_
    "\021\211\014_\134{_\0" // NAD_1983_CSRS_
    "\021\211\014_\134{_E\247G_\325\322#_$\215\0" // NAD_1983_CSRS_EPSG_Arctic_zone_
    "\021\211\014_\134{_M\254_\0" // NAD_1983_CSRS_MTM_
    "\021\211\014_\134{_U\254_Z\003\215\0" // NAD_1983_CSRS_UTM_Zone_
    "\021\211\014_\334_\0" // NAD_1983_HARN_
    "\021\211\014_\334_St=ePl\005\215\0" // NAD_1983_HARN_StatePlane_
    "\021\211\014_\334_St=ePl\005\215C\025if\006ni\256\0" // NAD_1983_HARN_StatePlane_California_
    "\021\211\014_\334_St=ePl\005\215\357_\0" // NAD_1983_HARN_StatePlane_New_
    "\021\211\014_\334_U\254_Z\003\215\0" // NAD_1983_HARN_UTM_Zone_
    "\021\211\014_\334_WI\323{_\0" // NAD_1983_HARN_WISCRS_
    "\021\211\014_M\254_\0" // NAD_1983_MTM_
    "\021\211\014_\333{\2277_\0" // NAD_1983_NSRS2007_
    "\021\211\014_\333{\2277_St=ePl\005\215\0" // NAD_1983_NSRS2007_StatePlane_
    "\021\211\014_\333{\2277_St=ePl\005\215C\025if\006ni\256\0" // NAD_1983_NSRS2007_StatePlane_California_
    "\021\211\014_\333{\2277_U\254_Z\003\215\0" // NAD_1983_NSRS2007_UTM_Zone_
    "\021\211\014_PA\202_St=ePl\005\215Hawaii_\0" // NAD_1983_PA11_StatePlane_Hawaii_
    "\021\211\014_St=ePl\005\215\0" // NAD_1983_StatePlane_
    "\021\211\014_St=ePl\005\215Al}k\256\0" // NAD_1983_StatePlane_Alaska_
    "\021\211\014_St=ePl\005\215C\025if\006ni\256\0" // NAD_1983_StatePlane_California_
    "\021\211\014_St=ePl\005\215\357_\0" // NAD_1983_StatePlane_New_
    "\021\211\014_U\254_Z\003\215\0" // NAD_1983_UTM_Zone_
    "\021_M#hig\005_St=ePl\005\215M#hig\005_\0" // NAD_Michigan_StatePlane_Michigan_
    "NB\306\014v2.GSB\0" // NB2783v2.GSB
    "NB\306\014v2.gsb\0" // NB2783v2.gsb
    "NB77\014v2.GSB\0" // NB7783v2.GSB
    "NB77\014v2.gsb\0" // NB7783v2.gsb
    "NC{ L} Veg} \0" // NCRS Las Vegas 
    "NC{ L} Veg} high \242ev=i\231^(ft\203)\0" // NCRS Las Vegas high elevation zone (ftUS)
    "NC{ L} Veg} high \242ev=i\231^(m)\0" // NCRS Las Vegas high elevation zone (m)
    "NC{ L} Veg}\273(ft\203)\0" // NCRS Las Vegas zone (ftUS)
    "NC{ L} Veg}\273(m)\0" // NCRS Las Vegas zone (m)
    "NC{_L}_Veg}_(ft\203)\0" // NCRS_Las_Vegas_(ftUS)
    "NC{_L}_Veg}_(m)\0" // NCRS_Las_Vegas_(m)
    "NC{_L}_Veg}_high_(ft\203)\0" // NCRS_Las_Vegas_high_(ftUS)
    "NC{_L}_Veg}_high_(m)\0" // NCRS_Las_Vegas_high_(m)
    "NDG\201P\037\077)\0" // NDG (Paris)
    "NEA74 N\026mea\0" // NEA74 Noumea
    "NEA74 N\026mea\012N\026me\027L\225b\007t\0" // NEA74 Noumea / Noumea Lambert
    "NEA74 N\026mea\012N\026me\027L\225b\007t 2\0" // NEA74 Noumea / Noumea Lambert 2
    "NEA74 N\026mea\012U\254\27358S\0" // NEA74 Noumea / UTM zone 58S
    "NEA74_N\026mea\0" // NEA74_Noumea
    "NEA74_N\026me\256L\225b\007t\0" // NEA74_Noumea_Lambert
    "NEA74_N\026me\256L\225b\007t_2\0" // NEA74_Noumea_Lambert_2
    "NEA74_N\026me\256U\254_58S\0" // NEA74_Noumea_UTM_58S
    "NGN\0" // NGN
    "NGN\012U\254\27338N\0" // NGN / UTM zone 38N
    "NGN\012U\254\27339N\0" // NGN / UTM zone 39N
    "NGN_U\254_Z\003\21538N\0" // NGN_UTM_Zone_38N
    "NGN_U\254_Z\003\21539N\0" // NGN_UTM_Zone_39N
    "NGO\31748\0" // NGO 1948
    "NGO\31748\201Oslo)\0" // NGO 1948 (Oslo)
    "NGO\31748\201Oslo*NGO\273I\0" // NGO 1948 (Oslo) / NGO zone I
    "NGO\31748\201Oslo*NGO\273II\0" // NGO 1948 (Oslo) / NGO zone II
    "NGO\31748\201Oslo*NGO\273III\0" // NGO 1948 (Oslo) / NGO zone III
    "NGO\31748\201Oslo*NGO\273IV\0" // NGO 1948 (Oslo) / NGO zone IV
    "NGO\31748\201Oslo*NGO\273V\0" // NGO 1948 (Oslo) / NGO zone V
    "NGO\31748\201Oslo*NGO\273VI\0" // NGO 1948 (Oslo) / NGO zone VI
    "NGO\31748\201Oslo*NGO\273VII\0" // NGO 1948 (Oslo) / NGO zone VII
    "NGO\31748\201Oslo*NGO\273VIII\0" // NGO 1948 (Oslo) / NGO zone VIII
    "NGO\31748\201Oslo)\022NGO\03148\2011)\0" // NGO 1948 (Oslo) to NGO1948 (1)
    "NGO\31748\201Oslo)\022NGO\03148\201G>\207w#h)\0" // NGO 1948 (Oslo) to NGO1948 (Greenwich)
    "NGO\21148\0" // NGO_1948
    "NGO\21148_Oslo\0" // NGO_1948_Oslo
    "NGO\21148_Oslo_\205way_Z\003\215\0" // NGO_1948_Oslo_Norway_Zone_
    "NIWA_Alb\232\0" // NIWA_Albers
    "NL\134{V4A.GSB\0" // NLCSRSV4A.GSB
    "\33377\01401.gsb\0" // NS778301.gsb
    "\33377\01402.GSB\0" // NS778302.GSB
    "\33377\01402.gsb\0" // NS778302.gsb
    "\333IDC|e\027Ic\010\247 \373\0" // NSIDC Sea Ice PS North
    "\333IDC|e\027Ic\010\247|\365\0" // NSIDC Sea Ice PS South
    "\333IDC_EASE_Gr\257_Glob\025\0" // NSIDC_EASE_Grid_Global
    "\333IDC_EASE_Gr\257_\373\0" // NSIDC_EASE_Grid_North
    "\333IDC_EASE_Gr\257_S\365\0" // NSIDC_EASE_Grid_South
    "\333IDC_Se\256Ic\215P\246\037_St\007eog\350\237#_\373\0" // NSIDC_Sea_Ice_Polar_Stereographic_North
    "\333IDC_Se\256Ic\215P\246\037_St\007eog\350\237#_S\365\0" // NSIDC_Sea_Ice_Polar_Stereographic_South
    "\333{\2277\0" // NSRS2007
    "\333WC 9Z-2\0" // NSWC 9Z-2
    "\333WC_9Z_2\0" // NSWC_9Z_2
    "\333W_L\225b\007t\0" // NSW_Lambert
    "NTF\0" // NTF
    "NTF\201P\037\077)\0" // NTF (Paris)
    "NTF\201P\037\077*C\367\010Fr\005ce\0" // NTF (Paris) / Centre France
    "NTF\201P\037\077*C\006se\0" // NTF (Paris) / Corse
    "NTF\201P\037\077*Fr\005c\010I\0" // NTF (Paris) / France I
    "NTF\201P\037\077*Fr\005c\010II\0" // NTF (Paris) / France II
    "NTF\201P\037\077*Fr\005c\010III\0" // NTF (Paris) / France III
    "NTF\201P\037\077*Fr\005c\010IV\0" // NTF (Paris) / France IV
    "NTF\201P\037\077*L\225b\007t\327\367\010Fr\005ce\0" // NTF (Paris) / Lambert Centre France
    "NTF\201P\037\077*L\225b\007t C\006se\0" // NTF (Paris) / Lambert Corse
    "NTF\201P\037\077*L\225b\007t \205d Fr\005ce\0" // NTF (Paris) / Lambert Nord France
    "NTF\201P\037\077*L\225b\007t|ud Fr\005ce\0" // NTF (Paris) / Lambert Sud France
    "NTF\201P\037\077*L\225b\007t\273I\0" // NTF (Paris) / Lambert zone I
    "NTF\201P\037\077*L\225b\007t\273II\0" // NTF (Paris) / Lambert zone II
    "NTF\201P\037\077*L\225b\007t\273III\0" // NTF (Paris) / Lambert zone III
    "NTF\201P\037\077*L\225b\007t\273IV\0" // NTF (Paris) / Lambert zone IV
    "NTF\201P\037\077*\205d Fr\005ce\0" // NTF (Paris) / Nord France
    "NTF\201P\037\077*Sud Fr\005ce\0" // NTF (Paris) / Sud France
    "NTF\201P\037\077)\022NTF\201G>\207w#h)\2011)\0" // NTF (Paris) to NTF (Greenwich) (1)
    "NTF\201P\037\077)\022NTF\201G>\207w#h)\2012)\0" // NTF (Paris) to NTF (Greenwich) (2)
    "NTF\022RGF93\2012)\0" // NTF to RGF93 (2)
    "NTF_P\037\077\0" // NTF_Paris
    "NTF_P\037\077_\0" // NTF_Paris_
    "NTF_P\037\077_L\225b\007t_\0" // NTF_Paris_Lambert_
    "NTL\0" // NTL
    "NTL\201\03130)\0" // NTL (1930)
    "NTv1_0.gsb\0" // NTv1_0.gsb
    "NTv2_0.gsb\0" // NTv2_0.gsb
    "NTv2_SN.gsb\0" // NTv2_SN.gsb
    "NVI\306_05.GSB\0" // NVI27_05.GSB
    "NVI93_05.GSB\0" // NVI93_05.GSB
    "NVI98_05.GSB\0" // NVI98_05.GSB
    "NWL 9D\0" // NWL 9D
    "NWL_9D\0" // NWL_9D
    "NZGD\03149\002L=L\003\0" // NZGD1949 - LatLon
    "NZGD\2270\0" // NZGD2000
    "NZGD\2270\002L=L\003\0" // NZGD2000 - LatLon
    "NZGD\2270\012Am\224i \2270\0" // NZGD2000 / Amuri 2000
    "NZGD\2270\012A\035ipod\220 \335s \254 \2270\0" // NZGD2000 / Antipodes Islands TM 2000
    "NZGD\2270\012Auck\206 \335s \254 \2270\0" // NZGD2000 / Auckland Islands TM 2000
    "NZGD\2270\012Ba\204\243Ple\035\204\2270\0" // NZGD2000 / Bay of Plenty 2000
    "NZGD\2270\012Bluff \2270\0" // NZGD2000 / Bluff 2000
    "NZGD\2270\012Bull\007 \2270\0" // NZGD2000 / Buller 2000
    "NZGD\2270\012C\225pb\242l \335 \254 \2270\0" // NZGD2000 / Campbell Island TM 2000
    "NZGD\2270\012Cha\024\225 \335\327\340cu\245 \2270\0" // NZGD2000 / Chatham Island Circuit 2000
    "NZGD\2270\012Cha\024\225 \335s \254 \2270\0" // NZGD2000 / Chatham Islands TM 2000
    "NZGD\2270\012C\246l\023gwood \2270\0" // NZGD2000 / Collingwood 2000
    "NZGD\2270\012Gawl\007 \2270\0" // NZGD2000 / Gawler 2000
    "NZGD\2270\012G>\204\2270\0" // NZGD2000 / Grey 2000
    "NZGD\2270\012Hawk\220 Ba\204\2270\0" // NZGD2000 / Hawkes Bay 2000
    "NZGD\2270\012Hok\245ik\027\2270\0" // NZGD2000 / Hokitika 2000
    "NZGD\2270\012Jacks\003s Ba\204\2270\0" // NZGD2000 / Jacksons Bay 2000
    "NZGD\2270\012K\037\225e\027\2270\0" // NZGD2000 / Karamea 2000
    "NZGD\2270\012L\023d\077 Peak \2270\0" // NZGD2000 / Lindis Peak 2000
    "NZGD\2270\012M\037lb\006\026gh \2270\0" // NZGD2000 / Marlborough 2000
    "NZGD\2270\012M\026\035 Ed\207 \2270\0" // NZGD2000 / Mount Eden 2000
    "NZGD\2270\012M\026\035 N#h\246} \2270\0" // NZGD2000 / Mount Nicholas 2000
    "NZGD\2270\012M\026\035 Ple}\005t \2270\0" // NZGD2000 / Mount Pleasant 2000
    "NZGD\2270\012M\026\035 Y\006k \2270\0" // NZGD2000 / Mount York 2000
    "NZGD\2270\012NZ\134\2270\0" // NZGD2000 / NZCS2000
    "NZGD\2270\012N\242s\231\2270\0" // NZGD2000 / Nelson 2000
    "NZGD\2270\012\357 Ze\025\253Tr\005sv\232\010M\007c=\006 \2270\0" // NZGD2000 / New Zealand Transverse Mercator 2000
    "NZGD\2270\012\324Tai\007i \2270\0" // NZGD2000 / North Taieri 2000
    "NZGD\2270\012Obs\007v=i\231Po\023t \2270\0" // NZGD2000 / Observation Point 2000
    "NZGD\2270\012Ok\037\245\013\2270\0" // NZGD2000 / Okarito 2000
    "NZGD\2270\012Pov\007t\204Ba\204\2270\0" // NZGD2000 / Poverty Bay 2000
    "NZGD\2270\012Ra\026l \335 \254 \2270\0" // NZGD2000 / Raoul Island TM 2000
    "NZGD\2270\012T\037\005aki \2270\0" // NZGD2000 / Taranaki 2000
    "NZGD\2270\012Tim\037u \2270\0" // NZGD2000 / Timaru 2000
    "NZGD\2270\012Tuh\340\005gi \2270\0" // NZGD2000 / Tuhirangi 2000
    "NZGD\2270\012U\254\2731S\0" // NZGD2000 / UTM zone 1S
    "NZGD\2270\012U\254\27358S\0" // NZGD2000 / UTM zone 58S
    "NZGD\2270\012U\254\27359S\0" // NZGD2000 / UTM zone 59S
    "NZGD\2270\012U\254\27360S\0" // NZGD2000 / UTM zone 60S
    "NZGD\2270\012Wa\340\037ap\027\2270\0" // NZGD2000 / Wairarapa 2000
    "NZGD\2270\012W\005g\005ui \2270\0" // NZGD2000 / Wanganui 2000
    "NZGD\2270\012W\242l\023gt\231\2270\0" // NZGD2000 / Wellington 2000
    "NZGD49\0" // NZGD49
    "NZGD49\012Am\224i\327\340cu\245\0" // NZGD49 / Amuri Circuit
    "NZGD49\012Ba\204\243Ple\035\204C\340cu\245\0" // NZGD49 / Bay of Plenty Circuit
    "NZGD49\012Bluff\327\340cu\245\0" // NZGD49 / Bluff Circuit
    "NZGD49\012Bull\007\327\340cu\245\0" // NZGD49 / Buller Circuit
    "NZGD49\012C\246l\023gwood\327\340cu\245\0" // NZGD49 / Collingwood Circuit
    "NZGD49\012Gawl\007\327\340cu\245\0" // NZGD49 / Gawler Circuit
    "NZGD49\012G>\204C\340cu\245\0" // NZGD49 / Grey Circuit
    "NZGD49\012Hawk\220 Ba\204C\340cu\245\0" // NZGD49 / Hawkes Bay Circuit
    "NZGD49\012Hok\245ik\027C\340cu\245\0" // NZGD49 / Hokitika Circuit
    "NZGD49\012Jacks\003s Ba\204C\340cu\245\0" // NZGD49 / Jacksons Bay Circuit
    "NZGD49\012K\037\225e\027C\340cu\245\0" // NZGD49 / Karamea Circuit
    "NZGD49\012L\023d\077 Peak\327\340cu\245\0" // NZGD49 / Lindis Peak Circuit
    "NZGD49\012M\037lb\006\026gh\327\340cu\245\0" // NZGD49 / Marlborough Circuit
    "NZGD49\012M\026\035 Ed\207\327\340cu\245\0" // NZGD49 / Mount Eden Circuit
    "NZGD49\012M\026\035 N#h\246}\327\340cu\245\0" // NZGD49 / Mount Nicholas Circuit
    "NZGD49\012M\026\035 Ple}\005t\327\340cu\245\0" // NZGD49 / Mount Pleasant Circuit
    "NZGD49\012M\026\035 Y\006k\327\340cu\245\0" // NZGD49 / Mount York Circuit
    "NZGD49\012N\242s\231C\340cu\245\0" // NZGD49 / Nelson Circuit
    "NZGD49\012\357 Ze\025\253Map Gr\257\0" // NZGD49 / New Zealand Map Grid
    "NZGD49\012\324\335 Gr\257\0" // NZGD49 / North Island Grid
    "NZGD49\012\324Tai\007i\327\340cu\245\0" // NZGD49 / North Taieri Circuit
    "NZGD49\012Obs\007v=i\231Po\023t\327\340cu\245\0" // NZGD49 / Observation Point Circuit
    "NZGD49\012Ok\037\245\013C\340cu\245\0" // NZGD49 / Okarito Circuit
    "NZGD49\012Pov\007t\204Ba\204C\340cu\245\0" // NZGD49 / Poverty Bay Circuit
    "NZGD49\012\370\335 Gr\257\0" // NZGD49 / South Island Grid
    "NZGD49\012T\037\005aki\327\340cu\245\0" // NZGD49 / Taranaki Circuit
    "NZGD49\012Tim\037u\327\340cu\245\0" // NZGD49 / Timaru Circuit
    "NZGD49\012Tuh\340\005gi\327\340cu\245\0" // NZGD49 / Tuhirangi Circuit
    "NZGD49\012U\254\27358S\0" // NZGD49 / UTM zone 58S
    "NZGD49\012U\254\27359S\0" // NZGD49 / UTM zone 59S
    "NZGD49\012U\254\27360S\0" // NZGD49 / UTM zone 60S
    "NZGD49\012Wa\340\037ap\027C\340cu\245\0" // NZGD49 / Wairarapa Circuit
    "NZGD49\012W\005g\005ui\327\340cu\245\0" // NZGD49 / Wanganui Circuit
    "NZGD49\012W\242l\023gt\231C\340cu\245\0" // NZGD49 / Wellington Circuit
    "NZGD\21149_\0" // NZGD_1949_
    "NZGD_\2270\0" // NZGD_2000
    "NZGD_\2270_\0" // NZGD_2000_
    "NZ\377\003t\023e\035\025_Sh\242f_\2270\0" // NZ_Continental_Shelf_2000
    "Nag\025\253\333F LCC\0" // Nagaland NSF LCC
    "N\361rw\005\31734\0" // Nahrwan 1934
    "N\361rw\005\31734\012I\350q $e\0" // Nahrwan 1934 / Iraq zone
    "N\361rw\005\31734\012U\254\27337N\0" // Nahrwan 1934 / UTM zone 37N
    "N\361rw\005\31734\012U\254\27338N\0" // Nahrwan 1934 / UTM zone 38N
    "N\361rw\005\31734\012U\254\27339N\0" // Nahrwan 1934 / UTM zone 39N
    "N\361rw\005\31767\0" // Nahrwan 1967
    "N\361rw\005\31767\012U\254\27337N\0" // Nahrwan 1967 / UTM zone 37N
    "N\361rw\005\31767\012U\254\27338N\0" // Nahrwan 1967 / UTM zone 38N
    "N\361rw\005\31767\012U\254\27339N\0" // Nahrwan 1967 / UTM zone 39N
    "N\361rw\005\31767\012U\254\27340N\0" // Nahrwan 1967 / UTM zone 40N
    "N\361rw\005\21134\0" // Nahrwan_1934
    "N\361rw\005\21134_I\350q_Z\003e\0" // Nahrwan_1934_Iraq_Zone
    "N\361rw\005\21134_U\254_$\215\0" // Nahrwan_1934_UTM_zone_
    "N\361rw\005\21167\0" // Nahrwan_1967
    "N\361rw\005\21167_U\254_Z\003\215\0" // Nahrwan_1967_UTM_Zone_
    "Nakhl \010Taqi Obliqu\010M\007c=\006\0" // Nakhl e Taqi Oblique Mercator
    "Nakhl-\010Gh\005\212\0" // Nakhl-e Ghanem
    "Nakhl-\010Gh\005\212\012U\254\27339N\0" // Nakhl-e Ghanem / UTM zone 39N
    "Nakhl-\215Gh\005\212\0" // Nakhl-e_Ghanem
    "Nakhl-\215Gh\005\212_U\254_Z\003\21539N\0" // Nakhl-e_Ghanem_UTM_Zone_39N
    "N\225ib\21312\3544\015\0" // Namibia - 12°E to 14°E
    "N\225ib\21314\3546\015\0" // Namibia - 14°E to 16°E
    "N\225ib\21316\3548\015\0" // Namibia - 16°E to 18°E
    "N\225ib\21318\200\034\015\0" // Namibia - 18°E to 20°E
    "N\225ib\213\034\20022\015\0" // Namibia - 20°E to 22°E
    "N\225ib\21322\20024\015\0" // Namibia - 22°E to 24°E
    "N\225ib\213W\025v\077 Bay\0" // Namibia - Walvis Bay
    "N\225ib\213e\314\24324\015\0" // Namibia - east of 24°E
    "N\225ib\213\214f~e\0" // Namibia - offshore
    "N\225ib\213w\267\24312\015\0" // Namibia - west of 12°E
    "Nap\037im\027\03155\0" // Naparima 1955
    "Nap\037im\027\03155\012U\254\273\034N\0" // Naparima 1955 / UTM zone 20N
    "Nap\037im\027\03172\0" // Naparima 1972
    "Nap\037im\027\03172\012U\254\273\034N\0" // Naparima 1972 / UTM zone 20N
    "Nap\037ima\21155\0" // Naparima_1955
    "Nap\037ima\21155_U\254_Z\003\215\034N\0" // Naparima_1955_UTM_Zone_20N
    "Nap\037ima\21172\0" // Naparima_1972
    "Nap\037ima\21172_U\254_Z\003\215\034N\0" // Naparima_1972_UTM_Zone_20N
    "N=\320\23084\20102.07.01).gsb\0" // National 84 (02.07.01).gsb
    "N=\320\230Geod\036# N\036w\006k\0" // National Geodetic Network
    "N=\320\025_84_02_07_01.gsb\0" // National_84_02_07_01.gsb
    "Naut#\025_M\341e\0" // Nautical_Mile
    "\307br}k\027\134\306 \324$e\0" // Nebraska CS27 North zone
    "\307br}k\027\134\306|\250$e\0" // Nebraska CS27 South zone
    "\307br}ka\2722600\0" // Nebraska_FIPS_2600
    "\307br}ka\2722600\372\0" // Nebraska_FIPS_2600_Feet
    "\307br}ka\2722600`t_\203\0" // Nebraska_FIPS_2600_Ft_US
    "\307br}k\256\373\2722601\0" // Nebraska_North_FIPS_2601
    "\307br}k\256S\365\2722602\0" // Nebraska_South_FIPS_2602
    "\307g\007i_S\212b\341\005_\033_M\242aka\0" // Negeri_Sembilan_and_Melaka
    "\307iv\256Hu\341\256\2276\0" // Neiva_Huila_2006
    "N\242s\003\377\340cu\245\0" // Nelson_Circuit
    "\307p\230\03181\0" // Nepal 1981
    "\307p\025_Nag\037k\337\0" // Nepal_Nagarkot
    "\307\024\007\206s\0" // Netherlands
    "\307\024\007\206s\002\214f~e\0" // Netherlands - offshore
    "\307\024\007\206s\002\236\0" // Netherlands - onshore
    "\307\024\007\206s E\314\360i\220 Equ=\006i\230Z\003e\0" // Netherlands East Indies Equatorial Zone
    "\307\024\007\206s E\314\360i\220 Equ=\006i\230Z\003\010(Jkt)\0" // Netherlands East Indies Equatorial Zone (Jkt)
    "\307v\226\027\134\306\327\367\230$e\0" // Nevada CS27 Central zone
    "\307v\226\027\134\306 E\314$e\0" // Nevada CS27 East zone
    "\307v\226\027\134\306 W\267$e\0" // Nevada CS27 West zone
    "\307v\226\256C\367\025\272\30602\0" // Nevada_Central_FIPS_2702
    "\307v\226\256C\367\025\272\30602\372\0" // Nevada_Central_FIPS_2702_Feet
    "\307v\226\256C\367\025\272\30602`t_\203\0" // Nevada_Central_FIPS_2702_Ft_US
    "\307v\226\256Ea\020\272\30601\0" // Nevada_East_FIPS_2701
    "\307v\226\256Ea\020\272\30601\372\0" // Nevada_East_FIPS_2701_Feet
    "\307v\226\256Ea\020\272\30601`t_\203\0" // Nevada_East_FIPS_2701_Ft_US
    "\307v\226\256We\020\272\30603\0" // Nevada_West_FIPS_2703
    "\307v\226\256We\020\272\30603\372\0" // Nevada_West_FIPS_2703_Feet
    "\307v\226\256We\020\272\30603`t_\203\0" // Nevada_West_FIPS_2703_Ft_US
    "\357 Beij\023g\0" // New Beijing
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M \3122E\0" // New Beijing / 3-degree Gauss-Kruger CM 102E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M \3125E\0" // New Beijing / 3-degree Gauss-Kruger CM 105E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M \3128E\0" // New Beijing / 3-degree Gauss-Kruger CM 108E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M \2021E\0" // New Beijing / 3-degree Gauss-Kruger CM 111E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M \2024E\0" // New Beijing / 3-degree Gauss-Kruger CM 114E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M \2027E\0" // New Beijing / 3-degree Gauss-Kruger CM 117E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // New Beijing / 3-degree Gauss-Kruger CM 120E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 123E\0" // New Beijing / 3-degree Gauss-Kruger CM 123E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 126E\0" // New Beijing / 3-degree Gauss-Kruger CM 126E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 129E\0" // New Beijing / 3-degree Gauss-Kruger CM 129E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 132E\0" // New Beijing / 3-degree Gauss-Kruger CM 132E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 135E\0" // New Beijing / 3-degree Gauss-Kruger CM 135E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 75E\0" // New Beijing / 3-degree Gauss-Kruger CM 75E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 78E\0" // New Beijing / 3-degree Gauss-Kruger CM 78E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 81E\0" // New Beijing / 3-degree Gauss-Kruger CM 81E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 84E\0" // New Beijing / 3-degree Gauss-Kruger CM 84E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 87E\0" // New Beijing / 3-degree Gauss-Kruger CM 87E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 90E\0" // New Beijing / 3-degree Gauss-Kruger CM 90E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 93E\0" // New Beijing / 3-degree Gauss-Kruger CM 93E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 96E\0" // New Beijing / 3-degree Gauss-Kruger CM 96E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\327M 99E\0" // New Beijing / 3-degree Gauss-Kruger CM 99E
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27325\0" // New Beijing / 3-degree Gauss-Kruger zone 25
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27326\0" // New Beijing / 3-degree Gauss-Kruger zone 26
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27327\0" // New Beijing / 3-degree Gauss-Kruger zone 27
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27328\0" // New Beijing / 3-degree Gauss-Kruger zone 28
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27329\0" // New Beijing / 3-degree Gauss-Kruger zone 29
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27330\0" // New Beijing / 3-degree Gauss-Kruger zone 30
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27331\0" // New Beijing / 3-degree Gauss-Kruger zone 31
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27332\0" // New Beijing / 3-degree Gauss-Kruger zone 32
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27333\0" // New Beijing / 3-degree Gauss-Kruger zone 33
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27334\0" // New Beijing / 3-degree Gauss-Kruger zone 34
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27335\0" // New Beijing / 3-degree Gauss-Kruger zone 35
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27336\0" // New Beijing / 3-degree Gauss-Kruger zone 36
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27337\0" // New Beijing / 3-degree Gauss-Kruger zone 37
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27338\0" // New Beijing / 3-degree Gauss-Kruger zone 38
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27339\0" // New Beijing / 3-degree Gauss-Kruger zone 39
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27340\0" // New Beijing / 3-degree Gauss-Kruger zone 40
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27341\0" // New Beijing / 3-degree Gauss-Kruger zone 41
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27342\0" // New Beijing / 3-degree Gauss-Kruger zone 42
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27343\0" // New Beijing / 3-degree Gauss-Kruger zone 43
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27344\0" // New Beijing / 3-degree Gauss-Kruger zone 44
    "\357 Beij\023g\0123-deg>\010Ga\351s-Krug\007\27345\0" // New Beijing / 3-degree Gauss-Kruger zone 45
    "\357 Beij\023g\012Ga\351s-Krug\007\327M \3125E\0" // New Beijing / Gauss-Kruger CM 105E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M \2021E\0" // New Beijing / Gauss-Kruger CM 111E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M \2027E\0" // New Beijing / Gauss-Kruger CM 117E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 123E\0" // New Beijing / Gauss-Kruger CM 123E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 129E\0" // New Beijing / Gauss-Kruger CM 129E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 135E\0" // New Beijing / Gauss-Kruger CM 135E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 75E\0" // New Beijing / Gauss-Kruger CM 75E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 81E\0" // New Beijing / Gauss-Kruger CM 81E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 87E\0" // New Beijing / Gauss-Kruger CM 87E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 93E\0" // New Beijing / Gauss-Kruger CM 93E
    "\357 Beij\023g\012Ga\351s-Krug\007\327M 99E\0" // New Beijing / Gauss-Kruger CM 99E
    "\357 Beij\023g\012Ga\351s-Krug\007\27313\0" // New Beijing / Gauss-Kruger zone 13
    "\357 Beij\023g\012Ga\351s-Krug\007\27314\0" // New Beijing / Gauss-Kruger zone 14
    "\357 Beij\023g\012Ga\351s-Krug\007\27315\0" // New Beijing / Gauss-Kruger zone 15
    "\357 Beij\023g\012Ga\351s-Krug\007\27316\0" // New Beijing / Gauss-Kruger zone 16
    "\357 Beij\023g\012Ga\351s-Krug\007\27317\0" // New Beijing / Gauss-Kruger zone 17
    "\357 Beij\023g\012Ga\351s-Krug\007\27318\0" // New Beijing / Gauss-Kruger zone 18
    "\357 Beij\023g\012Ga\351s-Krug\007\27319\0" // New Beijing / Gauss-Kruger zone 19
    "\357 Beij\023g\012Ga\351s-Krug\007\27320\0" // New Beijing / Gauss-Kruger zone 20
    "\357 Beij\023g\012Ga\351s-Krug\007\27321\0" // New Beijing / Gauss-Kruger zone 21
    "\357 Beij\023g\012Ga\351s-Krug\007\27322\0" // New Beijing / Gauss-Kruger zone 22
    "\357 Beij\023g\012Ga\351s-Krug\007\27323\0" // New Beijing / Gauss-Kruger zone 23
    "\357 Brunsw#k|t\007eog\350\237#\201\032)\0" // New Brunswick Stereographic (NAD83)
    "\357\327\025\275\003\213162\35468\015\0" // New Caledonia - 162°E to 168°E
    "\357\327\025\275\003\213B\242ep\0" // New Caledonia - Belep
    "\357\327\025\275\003\213B\242ep\277Gr\033\010T\007>\277Il\010d\220 P\023s\277Loy\025t\204\335s\0" // New Caledonia - Belep, Grande Terre, Ile des Pins, Loyalty Islands
    "\357\327\025\275\003\213Gr\033\010T\007>\0" // New Caledonia - Grande Terre
    "\357\327\025\275\003\213Gr\033\010T\007>\002N\026mea\0" // New Caledonia - Grande Terre - Noumea
    "\357\327\025\275\003\213Il\010d\220 P\023s\0" // New Caledonia - Ile des Pins
    "\357\327\025\275\003\213Lif\026\0" // New Caledonia - Lifou
    "\357\327\025\275\003\213M\037e\0" // New Caledonia - Mare
    "\357\327\025\275\003\213M\037\216e\314\243168\015\0" // New Caledonia - Mare - east of 168°E
    "\357\327\025\275\003\213M\037\216w\267\243168\015\0" // New Caledonia - Mare - west of 168°E
    "\357\327\025\275\003\213Ouvea\0" // New Caledonia - Ouvea
    "\357\327\025\275\003\213e\314\243168\015\0" // New Caledonia - east of 168°E
    "\357\327\025\275\003\213w\267\243162\015\0" // New Caledonia - west of 162°E
    "\357 Egypt\336\0" // New Egyptian
    "\357 H\225p<\340\010\13427\0" // New Hampshire CS27
    "\357 J\232e\204\13427\0" // New Jersey CS27
    "\357 Lu$\0" // New Luzon
    "\357 Mex#\013\134\306\327\367\230$e\0" // New Mexico CS27 Central zone
    "\357 Mex#\013\134\306 E\314$e\0" // New Mexico CS27 East zone
    "\357 Mex#\013\134\306 W\267$e\0" // New Mexico CS27 West zone
    "\357| Afr#\005 \134\273\0" // New S African CS zone 
    "\357|\250W\025\220 L\225b\007t\0" // New South Wales Lambert
    "\357 W\037 Off#\010Si\007r\027Le\003\010Gr\257\0" // New War Office Sierra Leone Grid
    "\357 Y\006k \134\306\327\367\230$e\0" // New York CS27 Central zone
    "\357 Y\006k \134\306 E\314$e\0" // New York CS27 East zone
    "\357 Y\006k \134\306 L\003g \335 $e\0" // New York CS27 Long Island zone
    "\357 Y\006k \134\306 W\267$e\0" // New York CS27 West zone
    "\357 Ze\025\033\0" // New Zealand
    "\357 Ze\025\033\002A\035ipod\220\374B\026\035\204\335s\0" // New Zealand - Antipodes and Bounty Islands
    "\357 Ze\025\033\002C\225pb\242l \335\0" // New Zealand - Campbell Island
    "\357 Ze\025\033\002Cha\024\225 \335s gr\026p\0" // New Zealand - Chatham Islands group
    "\357 Ze\025\033\002\324\335\0" // New Zealand - North Island
    "\357 Ze\025\033\002\324\335\002Ba\204\243Ple\035\204mc\0" // New Zealand - North Island - Bay of Plenty mc
    "\357 Ze\025\033\002\324\335\002Hawk\220 Ba\204mc Napi\007 vcrs\0" // New Zealand - North Island - Hawkes Bay mc Napier vcrs
    "\357 Ze\025\033\002\324\335\002M\026\035 Ed\207 mc\0" // New Zealand - North Island - Mount Eden mc
    "\357 Ze\025\033\002\324\335\002Pov\007t\204Ba\204mc\0" // New Zealand - North Island - Poverty Bay mc
    "\357 Ze\025\033\002\324\335\002T\037\005aki mc\0" // New Zealand - North Island - Taranaki mc
    "\357 Ze\025\033\002\324\335\002Tuh\340\005gi mc\0" // New Zealand - North Island - Tuhirangi mc
    "\357 Ze\025\033\002\324\335\002Wa\340\037ap\027mc\0" // New Zealand - North Island - Wairarapa mc
    "\357 Ze\025\033\002\324\335\002W\005g\005ui mc\0" // New Zealand - North Island - Wanganui mc
    "\357 Ze\025\033\002\324\335\002W\242l\023gt\231mc\0" // New Zealand - North Island - Wellington mc
    "\357 Ze\025\033\002Ra\026l\374K\007m\226ec \335s\0" // New Zealand - Raoul and Kermadec Islands
    "\357 Ze\025\033\002Sn\037\220\374Auck\206 \335s\0" // New Zealand - Snares and Auckland Islands
    "\357 Ze\025\033\002\370\335\002Am\224i mc\0" // New Zealand - South Island - Amuri mc
    "\357 Ze\025\033\002\370\335\002Bull\007 mc\0" // New Zealand - South Island - Buller mc
    "\357 Ze\025\033\002\370\335\002C\246l\023gwood mc\0" // New Zealand - South Island - Collingwood mc
    "\357 Ze\025\033\002\370\335\002Gawl\007 mc\0" // New Zealand - South Island - Gawler mc
    "\357 Ze\025\033\002\370\335\002G>\204mc\0" // New Zealand - South Island - Grey mc
    "\357 Ze\025\033\002\370\335\002Hok\245ik\027mc\0" // New Zealand - South Island - Hokitika mc
    "\357 Ze\025\033\002\370\335\002Jacks\003s Ba\204mc\0" // New Zealand - South Island - Jacksons Bay mc
    "\357 Ze\025\033\002\370\335\002K\037\225e\027mc\0" // New Zealand - South Island - Karamea mc
    "\357 Ze\025\033\002\370\335\002L\023d\077 Peak mc\0" // New Zealand - South Island - Lindis Peak mc
    "\357 Ze\025\033\002\370\335\002M\037lb\006\026gh mc\0" // New Zealand - South Island - Marlborough mc
    "\357 Ze\025\033\002\370\335\002M\026\035 N#h\246} mc\0" // New Zealand - South Island - Mount Nicholas mc
    "\357 Ze\025\033\002\370\335\002M\026\035 Ple}\005t mc\0" // New Zealand - South Island - Mount Pleasant mc
    "\357 Ze\025\033\002\370\335\002M\026\035 Y\006k mc\0" // New Zealand - South Island - Mount York mc
    "\357 Ze\025\033\002\370\335\002N\242s\231mc\0" // New Zealand - South Island - Nelson mc
    "\357 Ze\025\033\002\370\335\002\324Tai\007i mc\0" // New Zealand - South Island - North Taieri mc
    "\357 Ze\025\033\002\370\335\002Obs\007v=i\231Po\023t mc\0" // New Zealand - South Island - Observation Point mc
    "\357 Ze\025\033\002\370\335\002Ok\037\245\013mc\0" // New Zealand - South Island - Okarito mc
    "\357 Ze\025\033\002\370\335\002Tim\037u mc\0" // New Zealand - South Island - Timaru mc
    "\357 Ze\025\033\002\370\033|tew\037t \335s\0" // New Zealand - South and Stewart Islands
    "\357 Ze\025\033\002\370\033|tew\037t \335s\002Bluff mc\0" // New Zealand - South and Stewart Islands - Bluff mc
    "\357 Ze\025\033\002ne\037~\010168\35474\015\0" // New Zealand - nearshore 168°E to 174°E
    "\357 Ze\025\033\002ne\037~\010e\314\243174\015\0" // New Zealand - nearshore east of 174°E
    "\357 Ze\025\033\002ne\037~\010w\267\243168\015\0" // New Zealand - nearshore west of 168°E
    "\357 Ze\025\033\002\214f~e\0" // New Zealand - offshore
    "\357 Ze\025\033\002\214f~\010162\015\017o168\015\0" // New Zealand - offshore 162°E to168°E
    "\357 Ze\025\033\002\214f~\010168\35474\015\0" // New Zealand - offshore 168°E to 174°E
    "\357 Ze\025\033\002\214f~\010174\35480\015\0" // New Zealand - offshore 174°E to 180°E
    "\357 Ze\025\033\002\214f~\010180\221174!\0" // New Zealand - offshore 180°W to 174°W
    "\357 Ze\025\033\002\214f~\010Pacif# Oce\005,|\365\007n Oce\005\0" // New Zealand - offshore Pacific Ocean, Southern Ocean
    "\357 Ze\025\033\002\236\0" // New Zealand - onshore
    "\357 Ze\025\033\002\210\010\253ne\037~e\0" // New Zealand - onshore and nearshore
    "\357 Ze\025\253C\003t\023e\035\025|h\242f L\225b\007t\327\003f\006m\230\2270\0" // New Zealand Continental Shelf Lambert Conformal 2000
    "\357 Ze\025\253Geod\036# D=um\31749\0" // New Zealand Geodetic Datum 1949
    "\357 Ze\025\253Geod\036# D=um \2270\0" // New Zealand Geodetic Datum 2000
    "\357 Ze\025\253\324\335 N=\320\230Gr\257\0" // New Zealand North Island National Grid
    "\357 Ze\025\033|\250\335 N=\320\230Gr\257\0" // New Zealand South Island National Grid
    "\357_Beij\023g\0" // New_Beijing
    "\357_Beij\023g_3_Deg>\215Ga\351s_Krug\007_\0" // New_Beijing_3_Degree_Gauss_Kruger_
    "\357_Beij\023g_3_Deg>\215Ga\351s_Krug\007_Z\003\215\0" // New_Beijing_3_Degree_Gauss_Kruger_Zone_
    "\357_Beij\023g_Ga\351s_Krug\007_\0" // New_Beijing_Gauss_Kruger_
    "\357_H\225p<i>\2722800\0" // New_Hampshire_FIPS_2800
    "\357_H\225p<i>\2722800`t_\203\0" // New_Hampshire_FIPS_2800_Ft_US
    "\357_J\232ey\2722900\0" // New_Jersey_FIPS_2900
    "\357_J\232ey\2722900`t_\203\0" // New_Jersey_FIPS_2900_Ft_US
    "\357_Mex#o\377\367\025\2723002\0" // New_Mexico_Central_FIPS_3002
    "\357_Mex#o\377\367\025\2723002`t_\203\0" // New_Mexico_Central_FIPS_3002_Ft_US
    "\357_Mex#o_Ea\020\2723001\0" // New_Mexico_East_FIPS_3001
    "\357_Mex#o_Ea\020\2723001`t_\203\0" // New_Mexico_East_FIPS_3001_Ft_US
    "\357_Mex#o_We\020\2723003\0" // New_Mexico_West_FIPS_3003
    "\357_Mex#o_We\020\2723003`t_\203\0" // New_Mexico_West_FIPS_3003_Ft_US
    "\357_Y\006k\377\367\025\2723\3122\0" // New_York_Central_FIPS_3102
    "\357_Y\006k\377\367\025\2723\3122`t_\203\0" // New_York_Central_FIPS_3102_Ft_US
    "\357_Y\006k_Ea\020\2723\3121\0" // New_York_East_FIPS_3101
    "\357_Y\006k_Ea\020\2723\3121`t_\203\0" // New_York_East_FIPS_3101_Ft_US
    "\357_Y\006k_L\003g_\316l\2723\3124`t_\203\0" // New_York_Long_Isl_FIPS_3104_Ft_US
    "\357_Y\006k_L\003g_\335\2723\3124\0" // New_York_Long_Island_FIPS_3104
    "\357_Y\006k_We\020\2723\3123\0" // New_York_West_FIPS_3103
    "\357_Y\006k_We\020\2723\3123`t_\203\0" // New_York_West_FIPS_3103_Ft_US
    "\357_Ze\025\033\21149\0" // New_Zealand_1949
    "\357_Ze\025\033_\373_\335\0" // New_Zealand_North_Island
    "\357_Ze\025\033_S\365_\335\0" // New_Zealand_South_Island
    "\357_Ze\025\033_Tr\005sv\232\215M\007c=\006\0" // New_Zealand_Transverse_Mercator
    "N#\037agu\030\210\010n\006@\24312\00448'N\0" // Nicaragua - onshore north of 12°48'N
    "N#\037agu\030\210\010s\250\24312\00448'N\0" // Nicaragua - onshore south of 12°48'N
    "N#\037agu\256\205te\0" // Nicaragua_Norte
    "N#\037agu\256S\224\0" // Nicaragua_Sur
    "Nig\007\002s\365ea\020\0" // Niger - southeast
    "Nig\007ia\0" // Nigeria
    "Nig\007\2134\004N\0225\004N\2776\2008\015\0" // Nigeria - 4°N to 5°N, 6°E to 8°E
    "Nig\007\2136\235\200\312\235\015\0" // Nigeria - 6.5°E to 10.5°E
    "Nig\007\213G\003g\246\027B}\023\0" // Nigeria - Gongola Basin
    "Nig\007\213OML 124\0" // Nigeria - OML 124
    "Nig\007\213OML 58\0" // Nigeria - OML 58
    "Nig\007\213e\314\243\312\235\015\0" // Nigeria - east of 10.5°E
    "Nig\007\213\214f~e\0" // Nigeria - offshore
    "Nig\007\213\214f~\010blocks OML 99-\3122\374OPL 222\374223\0" // Nigeria - offshore blocks OML 99-102 and OPL 222 and 223
    "Nig\007\213\214f~\010blocks OPL \0349\2772\031\374220\0" // Nigeria - offshore blocks OPL 209, 219 and 220
    "Nig\007\213\214f~\010blocks OPL \0349-213\374316\0" // Nigeria - offshore blocks OPL 209-213 and 316
    "Nig\007\213\214f~\010blocks OPL 2\312\277213\277217\374218\0" // Nigeria - offshore blocks OPL 210, 213, 217 and 218
    "Nig\007\213\214f~\010blocks OPL 215\374221\0" // Nigeria - offshore blocks OPL 215 and 221
    "Nig\007\213\214f~\010blocks OPL 217-223\0" // Nigeria - offshore blocks OPL 217-223
    "Nig\007\213\214f~\010deep w=\007\0" // Nigeria - offshore deep water
    "Nig\007\213\214f~\010deep w=\007\002e\314\2436\015\0" // Nigeria - offshore deep water - east of 6°E
    "Nig\007\213\214f~\010deep w=\007\002w\267\2436\015\0" // Nigeria - offshore deep water - west of 6°E
    "Nig\007\213s\365\0" // Nigeria - south
    "Nig\007\213w\267\2436\235\015\0" // Nigeria - west of 6.5°E
    "Nig\007i\256Ea\020_B\242t\0" // Nigeria_East_Belt
    "Nig\007i\256M\257_B\242t\0" // Nigeria_Mid_Belt
    "Nig\007i\256We\020_B\242t\0" // Nigeria_West_Belt
    "\205d|\361\037\027\03159\0" // Nord Sahara 1959
    "\205d|\361\037\027\03159\201P\037\077)\0" // Nord Sahara 1959 (Paris)
    "\205d|\361\037\027\03159\012\205d Alg\007ie\0" // Nord Sahara 1959 / Nord Algerie
    "\205d|\361\037\027\03159\012Sud Alg\007ie\0" // Nord Sahara 1959 / Sud Algerie
    "\205d|\361\037\027\03159\012U\254\27329N\0" // Nord Sahara 1959 / UTM zone 29N
    "\205d|\361\037\027\03159\012U\254\27330N\0" // Nord Sahara 1959 / UTM zone 30N
    "\205d|\361\037\027\03159\012U\254\27331N\0" // Nord Sahara 1959 / UTM zone 31N
    "\205d|\361\037\027\03159\012U\254\27332N\0" // Nord Sahara 1959 / UTM zone 32N
    "\205d d\010Gu\007r\010(P\037\077)\0" // Nord de Guerre (Paris)
    "\205d_Fr\005ce\0" // Nord_France
    "\205d_M\037oc\0" // Nord_Maroc
    "\205d_S\361\037a\21159\0" // Nord_Sahara_1959
    "\205d_S\361\037a\21159_\0" // Nord_Sahara_1959_
    "\205d_S\361\037a\21159_P\037\077\0" // Nord_Sahara_1959_Paris
    "\205d_Tun\077ie\0" // Nord_Tunisie
    "\205d_d\215Gu\007>\0" // Nord_de_Guerre
    "\205d_d\215Gu\007>_P\037\077\0" // Nord_de_Guerre_Paris
    "\205f\246k \335\002e\314\243168\015\0" // Norfolk Island - east of 168°E
    "\324Am\007\345\3122\22196!\374\021\306 \366\0" // North America - 102°W to 96°W and NAD27 by country
    "\324Am\007\345\3122\22196!\374\032 \366\0" // North America - 102°W to 96°W and NAD83 by country
    "\324Am\007\345\3128\221\3122!\374\021\306 \366\0" // North America - 108°W to 102°W and NAD27 by country
    "\324Am\007\345\3128\221\3122!\374\032 \366\0" // North America - 108°W to 102°W and NAD83 by country
    "\324Am\007\345\2024\221\3128!\374\021\306 \366\0" // North America - 114°W to 108°W and NAD27 by country
    "\324Am\007\345\2024\221\3128!\374\032 \366\0" // North America - 114°W to 108°W and NAD83 by country
    "\324Am\007\3451\034\221\2024!\374\021\306 \366\002\236\0" // North America - 120°W to 114°W and NAD27 by country - onshore
    "\324Am\007\3451\034\221\2024!\374\032 \366\0" // North America - 120°W to 114°W and NAD83 by country
    "\324Am\007\345126\2211\034!\374\021\306 \366\002\236\0" // North America - 126°W to 120°W and NAD27 by country - onshore
    "\324Am\007\345126\2211\034!\374\032 \366\0" // North America - 126°W to 120°W and NAD83 by country
    "\324Am\007\345132\221126!\374\021\306 \366\002\236\0" // North America - 132°W to 126°W and NAD27 by country - onshore
    "\324Am\007\345132\221126!\374\032 \366\0" // North America - 132°W to 126°W and NAD83 by country
    "\324Am\007\345138\221132!\374\021\306 \366\002\236\0" // North America - 138°W to 132°W and NAD27 by country - onshore
    "\324Am\007\345138\221132!\374\032 \366\0" // North America - 138°W to 132°W and NAD83 by country
    "\324Am\007\345144\221138!\374\021\306 \366\0" // North America - 144°W to 138°W and NAD27 by country
    "\324Am\007\345144\221138!\374\032 \366\0" // North America - 144°W to 138°W and NAD83 by country
    "\324Am\007\34566\22160!\374\021\306 \366\0" // North America - 66°W to 60°W and NAD27 by country
    "\324Am\007\34566\22160!\374\032 \366\0" // North America - 66°W to 60°W and NAD83 by country
    "\324Am\007\34572\22166!\374\021\306 \366\0" // North America - 72°W to 66°W and NAD27 by country
    "\324Am\007\34572\22166!\374\032 \366\0" // North America - 72°W to 66°W and NAD83 by country
    "\324Am\007\34578\22172!\374\021\306 \366\0" // North America - 78°W to 72°W and NAD27 by country
    "\324Am\007\34578\22172!\374\032 \366\0" // North America - 78°W to 72°W and NAD83 by country
    "\324Am\007\34584\22178!\374\021\306 \366\0" // North America - 84°W to 78°W and NAD27 by country
    "\324Am\007\34584\22178!\374\032 \366\0" // North America - 84°W to 78°W and NAD83 by country
    "\324Am\007\34590\22184!\374\021\306 \366\0" // North America - 90°W to 84°W and NAD27 by country
    "\324Am\007\34590\22184!\374\032 \366\0" // North America - 90°W to 84°W and NAD83 by country
    "\324Am\007\34596\22190!\374\021\306 \366\0" // North America - 96°W to 90°W and NAD27 by country
    "\324Am\007\34596\22190!\374\032 \366\0" // North America - 96°W to 90°W and NAD83 by country
    "\324Am\007\345B\361\225}\374\223Fl\006\257\030\236\0" // North America - Bahamas and USA - Florida - onshore
    "\324Am\007\345C\005\226\027\253\222\201CON\203\277Al}k\027ma\023\206)\0" // North America - Canada and USA (CONUS, Alaska mainland)
    "\324Am\007\345C\005\226a\277\203\201C\003\351+AK)\277PRVI\0" // North America - Canada, US (Conus+AK), PRVI
    "\324Am\007\345G>= Lak\220 b}\023\0" // North America - Great Lakes basin
    "\324Am\007\345G>= Lak\220 b}\023 \033|t Law>nc\010Seaway\0" // North America - Great Lakes basin and St Lawrence Seaway
    "\324Am\007\345\02127\0" // North America - NAD27
    "\324Am\007\345\02183\0" // North America - NAD83
    "\324Am\007#\005 D=um \03127\0" // North American Datum 1927
    "\324Am\007#\005 D=um\317\306\201\03176)\0" // North American Datum 1927 (1976)
    "\324Am\007#\005 D=um\317\306\201CGQ77)\0" // North American Datum 1927 (CGQ77)
    "\324Am\007#\005 D=um \03183\0" // North American Datum 1983
    "\324Am\007#\005 D=um \243\031\014\201\134{) v\232i\2312\0" // North American Datum of 1983 (CSRS) version 2
    "\324Am\007#\005 D=um \243\031\014\201\134{) v\232i\2313\0" // North American Datum of 1983 (CSRS) version 3
    "\324Am\007#\005 D=um \243\031\014\201\134{) v\232i\2314\0" // North American Datum of 1983 (CSRS) version 4
    "\324Am\007#\005 D=um \243\031\014\201\134{) v\232i\2315\0" // North American Datum of 1983 (CSRS) version 5
    "\324Am\007#\005 D=um \243\031\014\201\134{) v\232i\2316\0" // North American Datum of 1983 (CSRS) version 6
    "\324Am\007#\005 D=um \243\031\014\201\134{) v\232i\2317\0" // North American Datum of 1983 (CSRS) version 7
    "\324Am\007#\005 D=um \243\031\014\201\134{96)\0" // North American Datum of 1983 (CSRS96)
    "\324Am\007#\005 D=um \243\031\014\201M\252P00)\0" // North American Datum of 1983 (MARP00)
    "\324Am\007#\005 D=um \243\031\014\201PACP00)\0" // North American Datum of 1983 (PACP00)
    "\324C\037\246\023\027\13427\0" // North Carolina CS27
    "\324Dak\337\027\134\306 \324$e\0" // North Dakota CS27 North zone
    "\324Dak\337\027\134\306|\250$e\0" // North Dakota CS27 South zone
    "\324Mac\275\003ia\0" // North Macedonia
    "\324P\246\010L\225b\007t Azimu\024\230Equ\230A>\027(Al}ka)\0" // North Pole Lambert Azimuthal Equal Area (Alaska)
    "\324P\246\010L\225b\007t Azimu\024\230Equ\230A>\027(Atl\005t#)\0" // North Pole Lambert Azimuthal Equal Area (Atlantic)
    "\324P\246\010L\225b\007t Azimu\024\230Equ\230A>\027(B\007\023g|ea)\0" // North Pole Lambert Azimuthal Equal Area (Bering Sea)
    "\324P\246\010L\225b\007t Azimu\024\230Equ\230A>\027(C\005\226a)\0" // North Pole Lambert Azimuthal Equal Area (Canada)
    "\324P\246\010L\225b\007t Azimu\024\230Equ\230A>\027(E\224ope)\0" // North Pole Lambert Azimuthal Equal Area (Europe)
    "\324P\246\010L\225b\007t Azimu\024\230Equ\230A>\027(R\351sia)\0" // North Pole Lambert Azimuthal Equal Area (Russia)
    "\373_Am\007#\005_D=um_\214\211\014_(\134{)_v\232\320_\0" // North_American_Datum_of_1983_(CSRS)_version_
    "\373_Am\007#\005_D=um_\214\211\014_(\134{96)\0" // North_American_Datum_of_1983_(CSRS96)
    "\373\377\037\246\023a\2723\0340\0" // North_Carolina_FIPS_3200
    "\373\377\037\246\023a\2723\227\372\0" // North_Carolina_FIPS_3200_Feet
    "\373\377\037\246\023a\2723\227`t_\203\0" // North_Carolina_FIPS_3200_Ft_US
    "\373\377\367\025_\021\211\014_\240_LCC`t_I\035l\0" // North_Central_NAD_1983_2011_LCC_Ft_Intl
    "\373\377\367\025_\021\211\014_\240_LCC_M\313\0" // North_Central_NAD_1983_2011_LCC_Meters
    "\373_Dak\337\256\373\2723301\0" // North_Dakota_North_FIPS_3301
    "\373_Dak\337\256\373\2723301\372_I\035l\0" // North_Dakota_North_FIPS_3301_Feet_Intl
    "\373_Dak\337\256\373\2723301`tI\0" // North_Dakota_North_FIPS_3301_FtI
    "\373_Dak\337\256S\365\2723302\0" // North_Dakota_South_FIPS_3302
    "\373_Dak\337\256S\365\2723302\372_I\035l\0" // North_Dakota_South_FIPS_3302_Feet_Intl
    "\373_Dak\337\256S\365\2723302`tI\0" // North_Dakota_South_FIPS_3302_FtI
    "\373_Tai\007i\377\340cu\245\0" // North_Taieri_Circuit
    "\373e\314\360\315\333F LCC\0" // Northeast India NSF LCC
    "\373w\267T\007r\245\006i\220 L\225b\007t\0" // Northwest Territories Lambert
    "\373we\020_T\007r\245\006i\220_L\225b\007t\0" // Northwest_Territories_Lambert
    "\205way\002\324Se\030\214f~\010s\250\24362\004N\0" // Norway - North Sea - offshore south of 62°N
    "\205way\002\214f~\010n\006@\24362\004N;|v\025b\037d\0" // Norway - offshore north of 62°N; Svalbard
    "\205way\002\214f~\010n\006@\24365\004N;|v\025b\037d\0" // Norway - offshore north of 65°N; Svalbard
    "\205way\002\210\216\312\200\202\015\0" // Norway - onshore - 10°E to 11°E
    "\205way\002\210\216\202\3542\015\0" // Norway - onshore - 11°E to 12°E
    "\205way\002\210\21612\3543\015\0" // Norway - onshore - 12°E to 13°E
    "\205way\002\210\21613\3544\015\0" // Norway - onshore - 13°E to 14°E
    "\205way\002\210\21614\3545\015\0" // Norway - onshore - 14°E to 15°E
    "\205way\002\210\21615\3546\015\0" // Norway - onshore - 15°E to 16°E
    "\205way\002\210\21616\3547\015\0" // Norway - onshore - 16°E to 17°E
    "\205way\002\210\21617\3548\015\0" // Norway - onshore - 17°E to 18°E
    "\205way\002\210\21618\200\031\015\0" // Norway - onshore - 18°E to 19°E
    "\205way\002\210\216\031\200\034\015\0" // Norway - onshore - 19°E to 20°E
    "\205way\002\210\216\034\20021\015\0" // Norway - onshore - 20°E to 21°E
    "\205way\002\210\21621\20022\015\0" // Norway - onshore - 21°E to 22°E
    "\205way\002\210\21622\20023\015\0" // Norway - onshore - 22°E to 23°E
    "\205way\002\210\21623\20024\015\0" // Norway - onshore - 23°E to 24°E
    "\205way\002\210\21624\20025\015\0" // Norway - onshore - 24°E to 25°E
    "\205way\002\210\21625\20026\015\0" // Norway - onshore - 25°E to 26°E
    "\205way\002\210\21626\200\306\015\0" // Norway - onshore - 26°E to 27°E
    "\205way\002\210\216\306\20028\015\0" // Norway - onshore - 27°E to 28°E
    "\205way\002\210\21628\20029\015\0" // Norway - onshore - 28°E to 29°E
    "\205way\002\210\21629\20030\015\0" // Norway - onshore - 29°E to 30°E
    "\205way\002\210\2166\2007\015\0" // Norway - onshore - 6°E to 7°E
    "\205way\002\210\2167\2008\015\0" // Norway - onshore - 7°E to 8°E
    "\205way\002\210\2168\2009\015\0" // Norway - onshore - 8°E to 9°E
    "\205way\002\210\2169\200\312\015\0" // Norway - onshore - 9°E to 10°E
    "\205way\002\210\216e\314\24330\015\0" // Norway - onshore - east of 30°E
    "\205way\002\210\216w\267\2436\015\0" // Norway - onshore - west of 6°E
    "\205way\002^I\0" // Norway - zone I
    "\205way\002^II\0" // Norway - zone II
    "\205way\002^III\0" // Norway - zone III
    "\205way\002^IV\0" // Norway - zone IV
    "\205way\002^V\0" // Norway - zone V
    "\205way\002^VI\0" // Norway - zone VI
    "\205way\002^VII\0" // Norway - zone VII
    "\205way\002^VIII\0" // Norway - zone VIII
    "\205wa\204\254\27310\0" // Norway TM zone 10
    "\205wa\204\254\27311\0" // Norway TM zone 11
    "\205wa\204\254\27312\0" // Norway TM zone 12
    "\205wa\204\254\27313\0" // Norway TM zone 13
    "\205wa\204\254\27314\0" // Norway TM zone 14
    "\205wa\204\254\27315\0" // Norway TM zone 15
    "\205wa\204\254\27316\0" // Norway TM zone 16
    "\205wa\204\254\27317\0" // Norway TM zone 17
    "\205wa\204\254\27318\0" // Norway TM zone 18
    "\205wa\204\254\27319\0" // Norway TM zone 19
    "\205wa\204\254\27320\0" // Norway TM zone 20
    "\205wa\204\254\27321\0" // Norway TM zone 21
    "\205wa\204\254\27322\0" // Norway TM zone 22
    "\205wa\204\254\27323\0" // Norway TM zone 23
    "\205wa\204\254\27324\0" // Norway TM zone 24
    "\205wa\204\254\27325\0" // Norway TM zone 25
    "\205wa\204\254\27326\0" // Norway TM zone 26
    "\205wa\204\254\27327\0" // Norway TM zone 27
    "\205wa\204\254\27328\0" // Norway TM zone 28
    "\205wa\204\254\27329\0" // Norway TM zone 29
    "\205wa\204\254\27330\0" // Norway TM zone 30
    "\205wa\204\254\2735\0" // Norway TM zone 5
    "\205wa\204\254\2736\0" // Norway TM zone 6
    "\205wa\204\254\2737\0" // Norway TM zone 7
    "\205wa\204\254\2738\0" // Norway TM zone 8
    "\205wa\204\254\2739\0" // Norway TM zone 9
    "N\337 specifi\275\0" // Not specified
    "N\337 specifi\275\201b}\275 \231A\340\2041\0140 \242lipso\257)\0" // Not specified (based on Airy 1830 ellipsoid)
    "N\337 specifi\275\201b}\275 \231A\340\204Modifi\275 1849 \242lipso\257)\0" // Not specified (based on Airy Modified 1849 ellipsoid)
    "N\337 specifi\275\201b}\275 \231Au\375\025\336 N=\320\025|\274o\257)\0" // Not specified (based on Australian National Spheroid)
    "N\337 specifi\275\201b}\275 \231Au\024\025#|\274e)\0" // Not specified (based on Authalic Sphere)
    "N\337 specifi\275\201b}\275 \231Av\007ag\010T\007>\375i\025|y\020\212\31777 \242lipso\257)\0" // Not specified (based on Average Terrestrial System 1977 ellipsoid)
    "N\337 specifi\275\201b}\275 \231B\220s\242 1841 \242lipso\257)\0" // Not specified (based on Bessel 1841 ellipsoid)
    "N\337 specifi\275\201b}\275 \231B\220s\242 Modifi\275 \242lipso\257)\0" // Not specified (based on Bessel Modified ellipsoid)
    "N\337 specifi\275\201b}\275 \231B\220s\242 N\225ib\315\242lipso\257)\0" // Not specified (based on Bessel Namibia ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101858 \242lipso\257)\0" // Not specified (based on Clarke 1858 ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101866 Au\024\025#|\274e)\0" // Not specified (based on Clarke 1866 Authalic Sphere)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101866 M#hig\005 \242lipso\257)\0" // Not specified (based on Clarke 1866 Michigan ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101866 \242lipso\257)\0" // Not specified (based on Clarke 1866 ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101880\201\325c) \242lipso\257)\0" // Not specified (based on Clarke 1880 (Arc) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101880\201B\207o\245) \242lipso\257)\0" // Not specified (based on Clarke 1880 (Benoit) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101880\201IGN) \242lipso\257)\0" // Not specified (based on Clarke 1880 (IGN) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101880\201RGS) \242lipso\257)\0" // Not specified (based on Clarke 1880 (RGS) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101880\201SGA\31722) \242lipso\257)\0" // Not specified (based on Clarke 1880 (SGA 1922) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Cl\037k\0101880 \242lipso\257)\0" // Not specified (based on Clarke 1880 ellipsoid)
    "N\337 specifi\275\201b}\275 \231Ev\007\267(1\0140 Def\023\245\320) \242lipso\257)\0" // Not specified (based on Everest (1830 Definition) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Ev\007\2671\0140\201\03137 Adju\020me\035) \242lipso\257)\0" // Not specified (based on Everest 1830 (1937 Adjustment) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Ev\007\2671\0140\201\03162 Def\023\245\320) \242lipso\257)\0" // Not specified (based on Everest 1830 (1962 Definition) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Ev\007\2671\0140\201\03167 Def\023\245\320) \242lipso\257)\0" // Not specified (based on Everest 1830 (1967 Definition) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Ev\007\2671\0140\201\03175 Def\023\245\320) \242lipso\257)\0" // Not specified (based on Everest 1830 (1975 Definition) ellipsoid)
    "N\337 specifi\275\201b}\275 \231Ev\007\2671\0140 Modifi\275 \242lipso\257)\0" // Not specified (based on Everest 1830 Modified ellipsoid)
    "N\337 specifi\275\201b}\275 \231GEM \312C \242lipso\257)\0" // Not specified (based on GEM 10C ellipsoid)
    "N\337 specifi\275\201b}\275 \231G{\31767 \242lipso\257)\0" // Not specified (based on GRS 1967 ellipsoid)
    "N\337 specifi\275\201b}\275 \231G{\31780 Au\024\025#|\274e)\0" // Not specified (based on GRS 1980 Authalic Sphere)
    "N\337 specifi\275\201b}\275 \231G{\31780 \242lipso\257)\0" // Not specified (based on GRS 1980 ellipsoid)
    "N\337 specifi\275\201b}\275 \231H\242m\007t\31706 \242lipso\257)\0" // Not specified (based on Helmert 1906 ellipsoid)
    "N\337 specifi\275\201b}\275 \231Hugh\220\31780 \242lipso\257)\0" // Not specified (based on Hughes 1980 ellipsoid)
    "N\337 specifi\275\201b}\275 \231\360\003\220\336 N=\320\025|\274o\257)\0" // Not specified (based on Indonesian National Spheroid)
    "N\337 specifi\275\201b}\275 \231I\035\007n=\320\230\03124 Au\024\025#|\274e)\0" // Not specified (based on International 1924 Authalic Sphere)
    "N\337 specifi\275\201b}\275 \231I\035\007n=\320\230\03124 \242lipso\257)\0" // Not specified (based on International 1924 ellipsoid)
    "N\337 specifi\275\201b}\275 \231Kr}sowsk\204\03140 \242lipso\257)\0" // Not specified (based on Krassowsky 1940 ellipsoid)
    "N\337 specifi\275\201b}\275 \231NWL 9D \242lipso\257)\0" // Not specified (based on NWL 9D ellipsoid)
    "N\337 specifi\275\201b}\275 \231OSU86F \242lipso\257)\0" // Not specified (based on OSU86F ellipsoid)
    "N\337 specifi\275\201b}\275 \231OSU91A \242lipso\257)\0" // Not specified (based on OSU91A ellipsoid)
    "N\337 specifi\275\201b}\275 \231Pl\220s\077 1817 \242lipso\257)\0" // Not specified (based on Plessis 1817 ellipsoid)
    "N\337 specifi\275\201b}\275 \003|truv\0101860 \242lipso\257)\0" // Not specified (based on Struve 1860 ellipsoid)
    "N\337 specifi\275\201b}\275 \231WGS 72 \242lipso\257)\0" // Not specified (based on WGS 72 ellipsoid)
    "N\337 specifi\275\201b}\275 \231WGS 84 \242lipso\257)\0" // Not specified (based on WGS 84 ellipsoid)
    "N\337 specifi\275\201b}\275 \231W\037 Off#\010\242lipso\257)\0" // Not specified (based on War Office ellipsoid)
    "N\026akch\337t\31765\0" // Nouakchott 1965
    "N\026akch\337t\31765\022WGS 84\2011)\0" // Nouakchott 1965 to WGS 84 (1)
    "N\026akch\337t\21165\0" // Nouakchott_1965
    "N\026v\242l\010Tr\336gul=i\231Fr\005ca\077e\0" // Nouvelle Triangulation Francaise
    "N\026v\242l\010Tr\336gul=i\231Fr\005ca\077\010(P\037\077)\0" // Nouvelle Triangulation Francaise (Paris)
    "N\026v\242l\010Tr\336gul=i\231du Lux\212b\026rg\0" // Nouvelle Triangulation du Luxembourg
    "OC{_\0" // OCRS_
    "OC{_B\207d-B\224ns_\021\211\014_\0" // OCRS_Bend-Burns_NAD_1983_
    "OC{_B\207d-Kl\225a\024`\025ls_\021\211\014_\0" // OCRS_Bend-Klamath_Falls_NAD_1983_
    "OC{_B\207d-R\275m\003d-Pr\023ev\341l\215\021\211\014_\0" // OCRS_Bend-Redmond-Prineville_NAD_1983_
    "OC{\377\005y\003v\341le-Gr\005ts_P}s_\021\211\014_\0" // OCRS_Canyonville-Grants_Pass_NAD_1983_
    "OC{\377\246umbi\256Riv\007_\0" // OCRS_Columbia_River_
    "OC{\377\337tag\215Grove-C\005y\003v\341l\215\021\211\014_\0" // OCRS_Cottage_Grove-Canyonville_NAD_1983_
    "OC{_Duf\224-M\226r}_\021\211\014_\0" // OCRS_Dufur-Madras_NAD_1983_
    "OC{_Eug\207\215\021\211\014_\0" // OCRS_Eugene_NAD_1983_
    "OC{_Gr\005ts_P}s-A<\206_\021\211\014_\0" // OCRS_Grants_Pass-Ashland_NAD_1983_
    "OC{_G><\225-W\037m_Spr\023gs_\021\211\014_\0" // OCRS_Gresham-Warm_Springs_NAD_1983_
    "OC{_L\256Gr\033\215\021\211\014_\0" // OCRS_La_Grande_NAD_1983_
    "OC{_O\035\037io_\021\211\014_\0" // OCRS_Ontario_NAD_1983_
    "OC{_\326\003\377oa\020_\021\211\014_\0" // OCRS_Oregon_Coast_NAD_1983_
    "OC{_P\207dl\036\003-L\256Gr\033\215\021\211\014_\0" // OCRS_Pendleton-La_Grande_NAD_1983_
    "OC{_P\207dl\036\003_\021\211\014_\0" // OCRS_Pendleton_NAD_1983_
    "OC{_P\006t\206_\021\211\014_\0" // OCRS_Portland_NAD_1983_
    "OC{_S\005ti\225_P}s_\021\211\014_\0" // OCRS_Santiam_Pass_NAD_1983_
    "OID\0" // OID
    "ON\306\134v1.GSB\0" // ON27CSv1.GSB
    "ON76\134v1.GSB\0" // ON76CSv1.GSB
    "ON\014\134v1.GSB\0" // ON83CSv1.GSB
    "ONGD14\0" // ONGD14
    "ONGD14\012U\254\27339N\0" // ONGD14 / UTM zone 39N
    "ONGD14\012U\254\27340N\0" // ONGD14 / UTM zone 40N
    "ONGD14\012U\254\27341N\0" // ONGD14 / UTM zone 41N
    "ONGD14_U\254_Z\003\21539N\0" // ONGD14_UTM_Zone_39N
    "ONGD14_U\254_Z\003\21540N\0" // ONGD14_UTM_Zone_40N
    "ONGD14_U\254_Z\003\21541N\0" // ONGD14_UTM_Zone_41N
    "ONGD17\0" // ONGD17
    "ONGD17\012U\254\27339N\0" // ONGD17 / UTM zone 39N
    "ONGD17\012U\254\27340N\0" // ONGD17 / UTM zone 40N
    "ONGD17\012U\254\27341N\0" // ONGD17 / UTM zone 41N
    "ONGD17_U\254_Z\003\21539N\0" // ONGD17_UTM_Zone_39N
    "ONGD17_U\254_Z\003\21540N\0" // ONGD17_UTM_Zone_40N
    "ONGD17_U\254_Z\003\21541N\0" // ONGD17_UTM_Zone_41N
    "OS\201SN)\31780\0" // OS (SN) 1980
    "OS(SN)80\0" // OS(SN)80
    "OSGB\31736\0" // OSGB 1936
    "OSGB\31770\201SN)\0" // OSGB 1970 (SN)
    "OSGB36\0" // OSGB36
    "OSGB36\012Br\245i< N=\320\230Gr\257\0" // OSGB36 / British National Grid
    "OSGB70\0" // OSGB70
    "OSGB\21136\0" // OSGB_1936
    "OSGB\21170_SN\0" // OSGB_1970_SN
    "OSNI\31752\0" // OSNI 1952
    "OSNI\31752\012Iri< N=\320\230Gr\257\0" // OSNI 1952 / Irish National Grid
    "OSNI\21152\0" // OSNI_1952
    "OSNI\21152_Iri<_N=\320\025_Gr\257\0" // OSNI_1952_Irish_National_Grid
    "OSTN02_NTv2.gsb\0" // OSTN02_NTv2.gsb
    "OSTN15_NTv2_OSGBtoET{.gsb\0" // OSTN15_NTv2_OSGBtoETRS.gsb
    "OSU86F\0" // OSU86F
    "OSU91A\0" // OSU91A
    "OSU_86F\0" // OSU_86F
    "OSU_91A\0" // OSU_91A
    "OS_SN\21180\0" // OS_SN_1980
    "Obs\007v=\037io\0" // Observatario
    "Obs\007v=\037i\013C\225pos Rodrigu\220\31707\0" // Observatario Campos Rodrigues 1907
    "Obs\007v=\037i\013Fl\006\220\0" // Observatario Flores
    "Obs\007v=\320_Po\023t\377\340cu\245\0" // Observation_Point_Circuit
    "Obs\007v=\006i\013\03166\0" // Observatorio 1966
    "Obs\007v=\006i\013M\036e\006\246og#\013\03139\0" // Observatorio Meteorologico 1939
    "Ochoco_Summ\245_\021\211\014_\240_LCC`t_I\035l\0" // Ochoco_Summit_NAD_1983_2011_LCC_Ft_Intl
    "Ochoco_Summ\245_\021\211\014_\240_LCC_M\313\0" // Ochoco_Summit_NAD_1983_2011_LCC_Meters
    "Oc\003to\377\026\035y\372\0" // Oconto_County_Feet
    "Oc\003to\377\026\035y_M\313\0" // Oconto_County_Meters
    "Oc\003to\372\0" // Oconto_Feet
    "Oc\003to_M\313\0" // Oconto_Meters
    "Oc\337epequ\010\03135\0" // Ocotepeque 1935
    "Oc\337epequ\010\03135\012Co\020\027R#\027\205te\0" // Ocotepeque 1935 / Costa Rica Norte
    "Oc\337epequ\010\03135\012Co\020\027R#\027S\224\0" // Ocotepeque 1935 / Costa Rica Sur
    "Oc\337epequ\010\03135\012El|\025v\226\006 L\225b\007t\0" // Ocotepeque 1935 / El Salvador Lambert
    "Oc\337epequ\010\03135\012Gu=\212\025\027\205te\0" // Ocotepeque 1935 / Guatemala Norte
    "Oc\337epequ\010\03135\012Gu=\212\025\027S\224\0" // Ocotepeque 1935 / Guatemala Sur
    "Oc\337epequ\010\03135\012N#\037agu\027\205te\0" // Ocotepeque 1935 / Nicaragua Norte
    "Oc\337epequ\010\03135\012N#\037agu\027S\224\0" // Ocotepeque 1935 / Nicaragua Sur
    "Oc\337epequ\010\03135\022\021\306\2011)\0" // Ocotepeque 1935 to NAD27 (1)
    "Oc\337epeque\21135\0" // Ocotepeque_1935
    "Oc\337epeque\21135_\0" // Ocotepeque_1935_
    "Ohi\013\134\306 \324$e\0" // Ohio CS27 North zone
    "Ohi\013\134\306|\250$e\0" // Ohio CS27 South zone
    "Ohio_\373\2723401\0" // Ohio_North_FIPS_3401
    "Ohio_\373\2723401\372\0" // Ohio_North_FIPS_3401_Feet
    "Ohio_\373\2723401`t_\203\0" // Ohio_North_FIPS_3401_Ft_US
    "Ohio_S\365\2723402\0" // Ohio_South_FIPS_3402
    "Ohio_S\365\2723402\372\0" // Ohio_South_FIPS_3402_Feet
    "Ohio_S\365\2723402`t_\203\0" // Ohio_South_FIPS_3402_Ft_US
    "Ok\037\245o\377\340cu\245\0" // Okarito_Circuit
    "Okl\361\343\027\134\306 \324$e\0" // Oklahoma CS27 North zone
    "Okl\361\343\027\134\306|\250$e\0" // Oklahoma CS27 South zone
    "Okl\361\343\256\373\2723501\0" // Oklahoma_North_FIPS_3501
    "Okl\361\343\256\373\2723501\372\0" // Oklahoma_North_FIPS_3501_Feet
    "Okl\361\343\256\373\2723501`t_\203\0" // Oklahoma_North_FIPS_3501_Ft_US
    "Okl\361\343\256S\365\2723502\0" // Oklahoma_South_FIPS_3502
    "Okl\361\343\256S\365\2723502\372\0" // Oklahoma_South_FIPS_3502_Feet
    "Okl\361\343\256S\365\2723502`t_\203\0" // Oklahoma_South_FIPS_3502_Ft_US
    "O\321 Egypt\336\0" // Old Egyptian
    "O\321 Hawai\336\0" // Old Hawaiian
    "O\321 Hawai\336\012Hawaii\2731\0" // Old Hawaiian / Hawaii zone 1
    "O\321 Hawai\336\012Hawaii\2732\0" // Old Hawaiian / Hawaii zone 2
    "O\321 Hawai\336\012Hawaii\2733\0" // Old Hawaiian / Hawaii zone 3
    "O\321 Hawai\336\012Hawaii\2734\0" // Old Hawaiian / Hawaii zone 4
    "O\321 Hawai\336\012Hawaii\2735\0" // Old Hawaiian / Hawaii zone 5
    "O\321 \316\350\242i D=um\0" // Old Israeli Datum
    "O\321_Hawai\336\0" // Old_Hawaiian
    "O\321_Hawai\336_St=ePl\005\215Hawaii_\0" // Old_Hawaiian_StatePlane_Hawaii_
    "Om\005\0" // Oman
    "Om\005\00254\20060\015\0" // Oman - 54°E to 60°E
    "Om\005\002M}\340\361 \335\0" // Oman - Masirah Island
    "Om\005\002block 4\0" // Oman - block 4
    "Om\005\002e\314\24360\015\0" // Oman - east of 60°E
    "Om\005\002ma\023\206\0" // Oman - mainland
    "Om\005\002ma\023\206 e\314\24354\015\0" // Oman - mainland east of 54°E
    "Om\005\002\236\0" // Oman - onshore
    "Om\005\002\210\010e\314\24354\015\0" // Oman - onshore east of 54°E
    "Om\005\002\210\010w\267\24354\015\0" // Oman - onshore west of 54°E
    "Om\005\002w\267\24354\015\0" // Oman - west of 54°E
    "Om\005 N=\320\230Geod\036# D=um \03414\0" // Oman National Geodetic Datum 2014
    "Om\005 N=\320\230Geod\036# D=um \03417\0" // Oman National Geodetic Datum 2017
    "Om\005_N=\320\025_Geod\036#_D=um_\03414\0" // Oman_National_Geodetic_Datum_2014
    "Om\005_N=\320\025_Geod\036#_D=um_\03417\0" // Oman_National_Geodetic_Datum_2017
    "One\257\256C\026\035y\372\0" // Oneida_County_Feet
    "One\257\256C\026\035y_M\313\0" // Oneida_County_Meters
    "One\257a\372\0" // Oneida_Feet
    "One\257\256M\313\0" // Oneida_Meters
    "O\035\037io_MNR_L\225b\007t\0" // Ontario_MNR_Lambert
    "Ordn\005c\010S\224ve\204\243G>= Br\245a\023\31736\0" // Ordnance Survey of Great Britain 1936
    "\326\231Bak\007\273(I\035\007n=\320\230f\234)\0" // Oregon Baker zone (International feet)
    "\326\231Bak\007\273(m\313)\0" // Oregon Baker zone (meters)
    "\326\231B\207d-B\224ns\273(I\035\007n=\320\230f\234)\0" // Oregon Bend-Burns zone (International feet)
    "\326\231B\207d-B\224ns\273(m\313)\0" // Oregon Bend-Burns zone (meters)
    "\326\231B\207d-Kl\225a@F\025ls\273(I\035\007n=\320\230f\234)\0" // Oregon Bend-Klamath Falls zone (International feet)
    "\326\231B\207d-Kl\225a@F\025ls\273(m\313)\0" // Oregon Bend-Klamath Falls zone (meters)
    "\326\231B\207d-R\275m\003d-Pr\023ev\341l\010\344I\035\007n=\320\230f\234)\0" // Oregon Bend-Redmond-Prineville zone (International feet)
    "\326\231B\207d-R\275m\003d-Pr\023ev\341l\010\344m\313)\0" // Oregon Bend-Redmond-Prineville zone (meters)
    "\326\231B\224ns-H\037p\007\273(I\035\007n=\320\230f\234)\0" // Oregon Burns-Harper zone (International feet)
    "\326\231B\224ns-H\037p\007\273(m\313)\0" // Oregon Burns-Harper zone (meters)
    "\326\231\134\306 \324$e\0" // Oregon CS27 North zone
    "\326\231\134\306|\250$e\0" // Oregon CS27 South zone
    "\326\231C\005y\231C\245y-B\224ns\273(I\035\007n=\320\230f\234)\0" // Oregon Canyon City-Burns zone (International feet)
    "\326\231C\005y\231C\245y-B\224ns\273(m\313)\0" // Oregon Canyon City-Burns zone (meters)
    "\326\231C\005y\003v\341le-Gr\005ts P}s\273(I\035\007n=\320\230f\234)\0" // Oregon Canyonville-Grants Pass zone (International feet)
    "\326\231C\005y\003v\341le-Gr\005ts P}s\273(m\313)\0" // Oregon Canyonville-Grants Pass zone (meters)
    "\326\231Co\314R\005g\010\324\344I\035\007n=\320\230f\234)\0" // Oregon Coast Range North zone (International feet)
    "\326\231Co\314R\005g\010\324\344m\313)\0" // Oregon Coast Range North zone (meters)
    "\326\231Co\314\344I\035\007n=\320\230f\234)\0" // Oregon Coast zone (International feet)
    "\326\231Co\314\344m\313)\0" // Oregon Coast zone (meters)
    "\326\231C\246umb\315Riv\007 E\314\344I\035\007n=\320\230f\234)\0" // Oregon Columbia River East zone (International feet)
    "\326\231C\246umb\315Riv\007 E\314\344m\313)\0" // Oregon Columbia River East zone (meters)
    "\326\231C\246umb\315Riv\007 W\267\344I\035\007n=\320\230f\234)\0" // Oregon Columbia River West zone (International feet)
    "\326\231C\246umb\315Riv\007 W\267\344m\313)\0" // Oregon Columbia River West zone (meters)
    "\326\231C\337tag\010Grove-C\005y\003v\341l\010\344I\035\007n=\320\230f\234)\0" // Oregon Cottage Grove-Canyonville zone (International feet)
    "\326\231C\337tag\010Grove-C\005y\003v\341l\010\344m\313)\0" // Oregon Cottage Grove-Canyonville zone (meters)
    "\326\231Dayv\341le-P\350\340i\010C\245\204\344I\035\007n=\320\230f\234)\0" // Oregon Dayville-Prairie City zone (International feet)
    "\326\231Dayv\341le-P\350\340i\010C\245\204\344m\313)\0" // Oregon Dayville-Prairie City zone (meters)
    "\326\231D\207io-B\224ns\273(I\035\007n=\320\230f\234)\0" // Oregon Denio-Burns zone (International feet)
    "\326\231D\207io-B\224ns\273(m\313)\0" // Oregon Denio-Burns zone (meters)
    "\326\231Duf\224-M\226r}\273(I\035\007n=\320\230f\234)\0" // Oregon Dufur-Madras zone (International feet)
    "\326\231Duf\224-M\226r}\273(m\313)\0" // Oregon Dufur-Madras zone (meters)
    "\326\231Eug\207\010\344I\035\007n=\320\230f\234)\0" // Oregon Eugene zone (International feet)
    "\326\231Eug\207\010\344m\313)\0" // Oregon Eugene zone (meters)
    "\326\231GIC L\225b\007t\201I\035\007n=\320\230f\234)\0" // Oregon GIC Lambert (International feet)
    "\326\231Gr\005ts P}s-A<\206\273(I\035\007n=\320\230f\234)\0" // Oregon Grants Pass-Ashland zone (International feet)
    "\326\231Gr\005ts P}s-A<\206\273(m\313)\0" // Oregon Grants Pass-Ashland zone (meters)
    "\326\231G><\225-W\037m|pr\023gs\273(I\035\007n=\320\230f\234)\0" // Oregon Gresham-Warm Springs zone (International feet)
    "\326\231G><\225-W\037m|pr\023gs\273(m\313)\0" // Oregon Gresham-Warm Springs zone (meters)
    "\326\231H\025fwa\204\344I\035\007n=\320\230f\234)\0" // Oregon Halfway zone (International feet)
    "\326\231H\025fwa\204\344m\313)\0" // Oregon Halfway zone (meters)
    "\326\231L\027Gr\033\010\344I\035\007n=\320\230f\234)\0" // Oregon La Grande zone (International feet)
    "\326\231L\027Gr\033\010\344m\313)\0" // Oregon La Grande zone (meters)
    "\326\231L\225b\007t\201m\313)\0" // Oregon Lambert (meters)
    "\326\231M\275f\006d-Di\225\003d Lak\010\344I\035\007n=\320\230f\234)\0" // Oregon Medford-Diamond Lake zone (International feet)
    "\326\231M\275f\006d-Di\225\003d Lak\010\344m\313)\0" // Oregon Medford-Diamond Lake zone (meters)
    "\326\231M\245ch\242l\273(I\035\007n=\320\230f\234)\0" // Oregon Mitchell zone (International feet)
    "\326\231M\245ch\242l\273(m\313)\0" // Oregon Mitchell zone (meters)
    "\326\231\324C\367\230\344I\035\007n=\320\230f\234)\0" // Oregon North Central zone (International feet)
    "\326\231\324C\367\230\344m\313)\0" // Oregon North Central zone (meters)
    "\326\231Ochoc\013Summ\245\273(I\035\007n=\320\230f\234)\0" // Oregon Ochoco Summit zone (International feet)
    "\326\231Ochoc\013Summ\245\273(m\313)\0" // Oregon Ochoco Summit zone (meters)
    "\326\231O\035\037i\013\344I\035\007n=\320\230f\234)\0" // Oregon Ontario zone (International feet)
    "\326\231O\035\037i\013\344m\313)\0" // Oregon Ontario zone (meters)
    "\326\231Owyhe\010\344I\035\007n=\320\230f\234)\0" // Oregon Owyhee zone (International feet)
    "\326\231Owyhe\010\344m\313)\0" // Oregon Owyhee zone (meters)
    "\326\231P\207dl\036\231\344I\035\007n=\320\230f\234)\0" // Oregon Pendleton zone (International feet)
    "\326\231P\207dl\036\231\344m\313)\0" // Oregon Pendleton zone (meters)
    "\326\231P\207dl\036\003-L\027Gr\033\010\344I\035\007n=\320\230f\234)\0" // Oregon Pendleton-La Grande zone (International feet)
    "\326\231P\207dl\036\003-L\027Gr\033\010\344m\313)\0" // Oregon Pendleton-La Grande zone (meters)
    "\326\231P\341\337 Rock-Uki\361\273(I\035\007n=\320\230f\234)\0" // Oregon Pilot Rock-Ukiah zone (International feet)
    "\326\231P\341\337 Rock-Uki\361\273(m\313)\0" // Oregon Pilot Rock-Ukiah zone (meters)
    "\326\231P\006t\206\273(I\035\007n=\320\230f\234)\0" // Oregon Portland zone (International feet)
    "\326\231P\006t\206\273(m\313)\0" // Oregon Portland zone (meters)
    "\326\231P\350\340i\010C\245y-Brog\005\273(I\035\007n=\320\230f\234)\0" // Oregon Prairie City-Brogan zone (International feet)
    "\326\231P\350\340i\010C\245y-Brog\005\273(m\313)\0" // Oregon Prairie City-Brogan zone (meters)
    "\326\231R\341ey-Lakeview\273(I\035\007n=\320\230f\234)\0" // Oregon Riley-Lakeview zone (International feet)
    "\326\231R\341ey-Lakeview\273(m\313)\0" // Oregon Riley-Lakeview zone (meters)
    "\326\003|\025\212\273(I\035\007n=\320\230f\234)\0" // Oregon Salem zone (International feet)
    "\326\003|\025\212\273(m\313)\0" // Oregon Salem zone (meters)
    "\326\003|\005ti\225 P}s\273(I\035\007n=\320\230f\234)\0" // Oregon Santiam Pass zone (International feet)
    "\326\003|\005ti\225 P}s\273(m\313)\0" // Oregon Santiam Pass zone (meters)
    "\326\003|\077kiy\026 P}s\273(I\035\007n=\320\230f\234)\0" // Oregon Siskiyou Pass zone (International feet)
    "\326\003|\077kiy\026 P}s\273(m\313)\0" // Oregon Siskiyou Pass zone (meters)
    "\326\231Uki\361-Fox\273(I\035\007n=\320\230f\234)\0" // Oregon Ukiah-Fox zone (International feet)
    "\326\231Uki\361-Fox\273(m\313)\0" // Oregon Ukiah-Fox zone (meters)
    "\326\231W\025low\027\344I\035\007n=\320\230f\234)\0" // Oregon Wallowa zone (International feet)
    "\326\231W\025low\027\344m\313)\0" // Oregon Wallowa zone (meters)
    "\326\231W\037n\007 Highwa\204\344I\035\007n=\320\230f\234)\0" // Oregon Warner Highway zone (International feet)
    "\326\231W\037n\007 Highwa\204\344m\313)\0" // Oregon Warner Highway zone (meters)
    "\326\231W\341l\225\036t\010P}s\273(I\035\007n=\320\230f\234)\0" // Oregon Willamette Pass zone (International feet)
    "\326\231W\341l\225\036t\010P}s\273(m\313)\0" // Oregon Willamette Pass zone (meters)
    "\326\003_\373\2723601\0" // Oregon_North_FIPS_3601
    "\326\003_\373\2723601\372_I\035l\0" // Oregon_North_FIPS_3601_Feet_Intl
    "\326\003_\373\2723601`t_I\035l\0" // Oregon_North_FIPS_3601_Ft_Intl
    "\326\003_S\365\2723602\0" // Oregon_South_FIPS_3602
    "\326\003_S\365\2723602\372_I\035l\0" // Oregon_South_FIPS_3602_Feet_Intl
    "\326\003_S\365\2723602`t_I\035l\0" // Oregon_South_FIPS_3602_Ft_Intl
    "\326\003_St=ew\257\215L\225b\007t\372_I\035l\0" // Oregon_Statewide_Lambert_Feet_Intl
    "Or\077s\027\333F LCC\0" // Orissa NSF LCC
    "Ow\207_(ft\203)\0" // Owen_(ftUS)
    "Ow\207_(m)\0" // Owen_(m)
    "Owyhe\215\021\211\014_\240_\254`t_I\035l\0" // Owyhee_NAD_1983_2011_TM_Ft_Intl
    "Owyhe\215\021\211\014_\240_\254_M\313\0" // Owyhee_NAD_1983_2011_TM_Meters
    "P2 Exc\0" // P2 Exc
    "P2 Exc-T9\0" // P2 Exc-T9
    "PA11\0" // PA11
    "PA\202_U\254_Z\003\2152S\0" // PA11_UTM_Zone_2S
    "PA\202_U\254_Z\003\2154N\0" // PA11_UTM_Zone_4N
    "PA\202_U\254_Z\003\2155N\0" // PA11_UTM_Zone_5N
    "PACP00\0" // PACP00
    "PD/83\0" // PD/83
    "PD/\014\0123-deg>\010Ga\351s-Krug\007\2733\0" // PD/83 / 3-degree Gauss-Kruger zone 3
    "PD/\014\0123-deg>\010Ga\351s-Krug\007\2733\201E-N)\0" // PD/83 / 3-degree Gauss-Kruger zone 3 (E-N)
    "PD/\014\0123-deg>\010Ga\351s-Krug\007\2734\0" // PD/83 / 3-degree Gauss-Kruger zone 4
    "PD/\014\0123-deg>\010Ga\351s-Krug\007\2734\201E-N)\0" // PD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    "PD/\014_3_Deg>\215GK_Z\003\2153_E-N\0" // PD/83_3_Degree_GK_Zone_3_E-N
    "PD/\014_3_Deg>\215GK_Z\003\2154_E-N\0" // PD/83_3_Degree_GK_Zone_4_E-N
    "PD/\014_GK_Z\003\2153\0" // PD/83_GK_Zone_3
    "PD/\014_GK_Z\003\2154\0" // PD/83_GK_Zone_4
    "PDC_M\007c=\006\0" // PDC_Mercator
    "PDO|\224ve\204D=um \03193\0" // PDO Survey Datum 1993
    "PDO_\03193\0" // PDO_1993
    "PDO\21193_U\254_Z\003\21539N\0" // PDO_1993_UTM_Zone_39N
    "PDO\21193_U\254_Z\003\21540N\0" // PDO_1993_UTM_Zone_40N
    "PE77\014V2.GSB\0" // PE7783V2.GSB
    "PE77\014V2.gsb\0" // PE7783V2.gsb
    "PENR\2279.gsb\0" // PENR2009.gsb
    "PL-\03192\0" // PL-1992
    "PL-\2270/15\0" // PL-2000/15
    "PL-\2270/18\0" // PL-2000/18
    "PL-\2270/21\0" // PL-2000/21
    "PL-\2270/24\0" // PL-2000/24
    "PL-ETRF\2270\0" // PL-ETRF2000
    "PN 94)\0" // PN 94)
    "PN68\0" // PN68
    "PN68\012U\254\27327N\0" // PN68 / UTM zone 27N
    "PN68\012U\254\27328N\0" // PN68 / UTM zone 28N
    "PN68_U\254_$\21527N\0" // PN68_UTM_zone_27N
    "PN68_U\254_$\21528N\0" // PN68_UTM_zone_28N
    "PN84\0" // PN84
    "PN84\012U\254\27327N\0" // PN84 / UTM zone 27N
    "PN84\012U\254\27328N\0" // PN84 / UTM zone 28N
    "PN84_U\254_$\21527N\0" // PN84_UTM_zone_27N
    "PN84_U\254_$\21528N\0" // PN84_UTM_zone_28N
    "PNG94\0" // PNG94
    "PNG94\012PNGMG94\27354\0" // PNG94 / PNGMG94 zone 54
    "PNG94\012PNGMG94\27355\0" // PNG94 / PNGMG94 zone 55
    "PNG94\012PNGMG94\27356\0" // PNG94 / PNGMG94 zone 56
    "PNG94\012PNGMG94\27357\0" // PNG94 / PNGMG94 zone 57
    "PNG94\012PNGMG94\27358\0" // PNG94 / PNGMG94 zone 58
    "PNG94_PNGMG94_Z\003\21554\0" // PNG94_PNGMG94_Zone_54
    "PNG94_PNGMG94_Z\003\21555\0" // PNG94_PNGMG94_Zone_55
    "PNG94_PNGMG94_Z\003\21556\0" // PNG94_PNGMG94_Zone_56
    "POSG\252\0" // POSGAR
    "POSG\252 \2277\0" // POSGAR 2007
    "POSG\252 \2277\012\325ge\035\023\0271\0" // POSGAR 2007 / Argentina 1
    "POSG\252 \2277\012\325ge\035\023\0272\0" // POSGAR 2007 / Argentina 2
    "POSG\252 \2277\012\325ge\035\023\0273\0" // POSGAR 2007 / Argentina 3
    "POSG\252 \2277\012\325ge\035\023\0274\0" // POSGAR 2007 / Argentina 4
    "POSG\252 \2277\012\325ge\035\023\0275\0" // POSGAR 2007 / Argentina 5
    "POSG\252 \2277\012\325ge\035\023\0276\0" // POSGAR 2007 / Argentina 6
    "POSG\252 \2277\012\325ge\035\023\0277\0" // POSGAR 2007 / Argentina 7
    "POSG\252 \2277\012CABA \03419\0" // POSGAR 2007 / CABA 2019
    "POSG\252 \2277\012U\254\27319S\0" // POSGAR 2007 / UTM zone 19S
    "POSG\252 94\0" // POSGAR 94
    "POSG\252 94\012\325ge\035\023\0271\0" // POSGAR 94 / Argentina 1
    "POSG\252 94\012\325ge\035\023\0272\0" // POSGAR 94 / Argentina 2
    "POSG\252 94\012\325ge\035\023\0273\0" // POSGAR 94 / Argentina 3
    "POSG\252 94\012\325ge\035\023\0274\0" // POSGAR 94 / Argentina 4
    "POSG\252 94\012\325ge\035\023\0275\0" // POSGAR 94 / Argentina 5
    "POSG\252 94\012\325ge\035\023\0276\0" // POSGAR 94 / Argentina 6
    "POSG\252 94\012\325ge\035\023\0277\0" // POSGAR 94 / Argentina 7
    "POSG\252 94\022WGS 84\2011)\0" // POSGAR 94 to WGS 84 (1)
    "POSG\252 98\0" // POSGAR 98
    "POSG\252 98\012\325ge\035\023\0271\0" // POSGAR 98 / Argentina 1
    "POSG\252 98\012\325ge\035\023\0272\0" // POSGAR 98 / Argentina 2
    "POSG\252 98\012\325ge\035\023\0273\0" // POSGAR 98 / Argentina 3
    "POSG\252 98\012\325ge\035\023\0274\0" // POSGAR 98 / Argentina 4
    "POSG\252 98\012\325ge\035\023\0275\0" // POSGAR 98 / Argentina 5
    "POSG\252 98\012\325ge\035\023\0276\0" // POSGAR 98 / Argentina 6
    "POSG\252 98\012\325ge\035\023\0277\0" // POSGAR 98 / Argentina 7
    "POSG\252_\03194\0" // POSGAR_1994
    "POSG\252\21194_\325ge\035\023\256Z\003\215\0" // POSGAR_1994_Argentina_Zone_
    "POSG\252_\03198\0" // POSGAR_1998
    "POSG\252\21198_\325ge\035\023\256Z\003\215\0" // POSGAR_1998_Argentina_Zone_
    "POSG\252_\2277\0" // POSGAR_2007
    "POSG\252_\2277_\325ge\035\023\256Z\003\215\0" // POSGAR_2007_Argentina_Zone_
    "POSG\252_\2277\377ABA_\03419\0" // POSGAR_2007_CABA_2019
    "POSG\252_\2277_U\254_$\21519S\0" // POSGAR_2007_UTM_zone_19S
    "PQV4.DAC\0" // PQV4.DAC
    "P{92\0" // PRS92
    "P{92\012Ph\341ipp\023\220\2731\0" // PRS92 / Philippines zone 1
    "P{92\012Ph\341ipp\023\220\2732\0" // PRS92 / Philippines zone 2
    "P{92\012Ph\341ipp\023\220\2733\0" // PRS92 / Philippines zone 3
    "P{92\012Ph\341ipp\023\220\2734\0" // PRS92 / Philippines zone 4
    "P{92\012Ph\341ipp\023\220\2735\0" // PRS92 / Philippines zone 5
    "P{_\03192\0" // PRS_1992
    "P{\21192_Ph\341ipp\023\220_Z\003\215\0" // PRS_1992_Philippines_Zone_
    "\247\01656\0" // PSAD56
    "\247\01656\012ICN Reg\320\025\0" // PSAD56 / ICN Regional
    "\247\01656\012P\007u c\367\230$e\0" // PSAD56 / Peru central zone
    "\247\01656\012P\007u e\314$e\0" // PSAD56 / Peru east zone
    "\247\01656\012P\007u w\267$e\0" // PSAD56 / Peru west zone
    "\247\01656\012U\254\27317N\0" // PSAD56 / UTM zone 17N
    "\247\01656\012U\254\27317S\0" // PSAD56 / UTM zone 17S
    "\247\01656\012U\254\27318N\0" // PSAD56 / UTM zone 18N
    "\247\01656\012U\254\27318S\0" // PSAD56 / UTM zone 18S
    "\247\01656\012U\254\27319N\0" // PSAD56 / UTM zone 19N
    "\247\01656\012U\254\27319S\0" // PSAD56 / UTM zone 19S
    "\247\01656\012U\254\273\034N\0" // PSAD56 / UTM zone 20N
    "\247\01656\012U\254\273\034S\0" // PSAD56 / UTM zone 20S
    "\247\01656\012U\254\27321N\0" // PSAD56 / UTM zone 21N
    "\247\01656\012U\254\27321S\0" // PSAD56 / UTM zone 21S
    "\247\01656\012U\254\27322S\0" // PSAD56 / UTM zone 22S
    "\247\01656\022WGS84\2011)\0" // PSAD56 to WGS84 (1)
    "\247\016\21156_ICN_Reg\320\025\0" // PSAD_1956_ICN_Regional
    "\247\016\21156_U\254_Z\003\215\0" // PSAD_1956_UTM_Zone_
    "\247D93\0" // PSD93
    "\247D93\012U\254\27339N\0" // PSD93 / UTM zone 39N
    "\247D93\012U\254\27340N\0" // PSD93 / UTM zone 40N
    "PTRA08\0" // PTRA08
    "PTRA08\012LAEA E\224ope\0" // PTRA08 / LAEA Europe
    "PTRA08\012LCC E\224ope\0" // PTRA08 / LCC Europe
    "PTRA08\012U\254\27325N\0" // PTRA08 / UTM zone 25N
    "PTRA08\012U\254\27326N\0" // PTRA08 / UTM zone 26N
    "PTRA08\012U\254\27328N\0" // PTRA08 / UTM zone 28N
    "PTRA08_LAEA_E\224ope\0" // PTRA08_LAEA_Europe
    "PTRA08_LCC_E\224ope\0" // PTRA08_LCC_Europe
    "PTRA08_U\254_Z\003\21525N\0" // PTRA08_UTM_Zone_25N
    "PTRA08_U\254_Z\003\21526N\0" // PTRA08_UTM_Zone_26N
    "PTRA08_U\254_Z\003\21528N\0" // PTRA08_UTM_Zone_28N
    "PZ-90\0" // PZ-90
    "PZ-90.02\0" // PZ-90.02
    "PZ-90.11\0" // PZ-90.11
    "PZ_\03190\0" // PZ_1990
    "Pacif#\002Gu\225\374NMI\002\236\0" // Pacific - Guam and NMI - onshore
    "Pacif#\002Gu\225\374NMI e\314\243144\015\0" // Pacific - Guam and NMI east of 144°E
    "Pacif#\002Gu\225\374NMI w\267\243144\015\0" // Pacific - Guam and NMI west of 144°E
    "Pacif#\002M\037<\025l \335s\277Wak\216\236\0" // Pacific - Marshall Islands, Wake - onshore
    "Pacif#\002\203 \023t\007e\020s M\037\336\027pl=e\0" // Pacific - US interests Mariana plate
    "Pacif#\002\203 \023t\007e\020s Pacif# pl=e\0" // Pacific - US interests Pacific plate
    "Pacif# D\077a\020\007\327e\035\007 M\007c=\006\0" // Pacific Disaster Center Mercator
    "Pacif# Oce\005\0" // Pacific Ocean
    "P\226\005g\0" // Padang
    "P\226\005g\201Jak\037ta)\0" // Padang (Jakarta)
    "P\226\005g\201Jak\037ta)\022P\226\005g\201G>\207w#h)\0" // Padang (Jakarta) to Padang (Greenwich)
    "P\226\005g 1884\0" // Padang 1884
    "P\226\005g 1884\201Jak\037ta)\0" // Padang 1884 (Jakarta)
    "P\226\005g_1884\0" // Padang_1884
    "P\226\005g_1884_Jak\037ta\0" // Padang_1884_Jakarta
    "P\361\005g\327}s\023i Gr\257\0" // Pahang Cassini Grid
    "Paki\020\005\0" // Pakistan
    "Paki\020\005\002B\226\023\374Mehr\005\0" // Pakistan - Badin and Mehran
    "Paki\020\005\002Ea\020|\023d\0" // Pakistan - East Sind
    "Paki\020\005\002G\225b=\0" // Pakistan - Gambat
    "Paki\020\005\002K\037achi\0" // Pakistan - Karachi
    "Paki\020\005\002e\314\24372\015\0" // Pakistan - east of 72°E
    "Paki\020\005\002n\006@\24335\00435'N\0" // Pakistan - north of 35°35'N
    "Paki\020\005\002\214f~\010\360\351\0" // Pakistan - offshore Indus
    "Paki\020\005\002\210\01066\20072\015\0" // Pakistan - onshore 66°E to 72°E
    "Paki\020\005\002\210\010s\250\24328\004N\0" // Pakistan - onshore south of 28°N
    "Paki\020\005\002\210\010w\267\24366\015\0" // Pakistan - onshore west of 66°E
    "P\025e\020\023\010\03123\0" // Palestine 1923
    "P\025e\020\023\010\03123\012\316\350\242i \134 Gr\257\0" // Palestine 1923 / Israeli CS Grid
    "P\025e\020\023\010\03123\012P\025e\020\023\010B\242t\0" // Palestine 1923 / Palestine Belt
    "P\025e\020\023\010\03123\012P\025e\020\023\010Gr\257\0" // Palestine 1923 / Palestine Grid
    "P\025e\020\023\010\03123\012P\025e\020\023\010Gr\257 modifi\275\0" // Palestine 1923 / Palestine Grid modified
    "P\025e\020\023e\21123\0" // Palestine_1923
    "P\025e\020\023e\21123_\316\350\242_\134_Gr\257\0" // Palestine_1923_Israel_CS_Grid
    "P\025e\020\023e\21123_P\025e\020\023\215\0" // Palestine_1923_Palestine_
    "P\225p\027C}\0" // Pampa Cas
    "P\225p\027d\242\327a\020\341lo\0" // Pampa del Castillo
    "P\225p\027d\242\327a\020\341lo\012\325ge\035\023\0271\0" // Pampa del Castillo / Argentina 1
    "P\225p\027d\242\327a\020\341lo\012\325ge\035\023\0272\0" // Pampa del Castillo / Argentina 2
    "P\225p\027d\242\327a\020\341lo\012\325ge\035\023\0273\0" // Pampa del Castillo / Argentina 3
    "P\225p\256d\242\377a\020\341lo\0" // Pampa_del_Castillo
    "P\225p\256d\242\377a\020\341lo_\325ge\035\023\256\0" // Pampa_del_Castillo_Argentina_
    "P\005\225a\0" // Panama
    "P\005\225\030C\005\230Z\003e\0" // Panama - Canal Zone
    "P\005\225\030\236\0" // Panama - onshore
    "P\005\225a-C\246\231\03111\0" // Panama-Colon 1911
    "P\005\225a-C\246\231\031\202\012P\005\225\027L\225b\007t\0" // Panama-Colon 1911 / Panama Lambert
    "P\005\225a-C\246\231\031\202\012P\005\225\027P\246yc\003#\0" // Panama-Colon 1911 / Panama Polyconic
    "P\005\225a-C\246\003-\03111\0" // Panama-Colon-1911
    "P\005\225a-C\246\003\21111\0" // Panama-Colon_1911
    "P\005\225a-C\246\003\211\202_P\005\225\256L\225b\007t\0" // Panama-Colon_1911_Panama_Lambert
    "P\005\225a-C\246\003\211\202_P\005\225\256P\246yc\003#\0" // Panama-Colon_1911_Panama_Polyconic
    "P\005\225\303\241-C\246\303\263n\31711\0" // Panamá-Colón 1911
    "Papu\027\357 Gu\023ea\0" // Papua New Guinea
    "Papu\027\357 Gu\023e\030144\35450\015\0" // Papua New Guinea - 144°E to 150°E
    "Papu\027\357 Gu\023e\030150\35456\015\0" // Papua New Guinea - 150°E to 156°E
    "Papu\027\357 Gu\023e\030156\35462\015\0" // Papua New Guinea - 156°E to 162°E
    "Papu\027\357 Gu\023e\030\324Fly\0" // Papua New Guinea - North Fly
    "Papu\027\357 Gu\023e\030PFTB\0" // Papua New Guinea - PFTB
    "Papu\027\357 Gu\023e\030e\314\243162\015\0" // Papua New Guinea - east of 162°E
    "Papu\027\357 Gu\023e\030ma\023\206\356\0" // Papua New Guinea - mainland onshore
    "Papu\027\357 Gu\023e\030w\267\243144\015\0" // Papua New Guinea - west of 144°E
    "Papu\027\357 Gu\023e\027Geod\036# D=um \03194\0" // Papua New Guinea Geodetic Datum 1994
    "Papu\027\357 Gu\023e\027Map Gr\257\31794\27354\0" // Papua New Guinea Map Grid 1994 zone 54
    "Papu\027\357 Gu\023e\027Map Gr\257\31794\27355\0" // Papua New Guinea Map Grid 1994 zone 55
    "Papu\027\357 Gu\023e\027Map Gr\257\31794\27356\0" // Papua New Guinea Map Grid 1994 zone 56
    "Papu\027\357 Gu\023e\027Map Gr\257\31794\27357\0" // Papua New Guinea Map Grid 1994 zone 57
    "Papu\027\357 Gu\023e\027Map Gr\257\31794\27358\0" // Papua New Guinea Map Grid 1994 zone 58
    "Papu\256\357_Gu\023e\256Geod\036#_D=um_\03194\0" // Papua_New_Guinea_Geodetic_Datum_1994
    "P\037aguay\002n\006@\24322\376\0" // Paraguay - north of 22°S
    "P\037\225\036rop_Z\212p_\03190\0" // Parametrop_Zemp_1990
    "P\037\225\036r\204Z\212li \03190\0" // Parametry Zemli 1990
    "P\037\225\036r\204Z\212li\31790.02\0" // Parametry Zemli 1990.02
    "P\037\225\036r\204Z\212li\31790.11\0" // Parametry Zemli 1990.11
    "P\037\225\036ry_Z\212li\21190.02\0" // Parametry_Zemli_1990.02
    "P\037\225\036ry_Z\212li\21190.11\0" // Parametry_Zemli_1990.11
    "P\037\077 RGS\0" // Paris RGS
    "P\037\077_Lab\006d\215Gr\257\0" // Paris_Laborde_Grid
    "P\037\077_RGS\0" // Paris_RGS
    "P\037ke-V\007m\341l\320_(ft\203)\0" // Parke-Vermillion_(ftUS)
    "P\037ke-V\007m\341l\320_(m)\0" // Parke-Vermillion_(m)
    "P\037o_\254\0" // Paro_TM
    "Pa\020o_N\037\023o_\2278\0" // Pasto_Narino_2008
    "P\212ag=<\242_\254\0" // Pemagatshel_TM
    "P\207\023sul\037 {O\0" // Peninsular RSO
    "P\207n\242l\327o\314L\225b\007t\327\003f\006m\230\2270\0" // Pennell Coast Lambert Conformal 2000
    "P\207nsylv\005\315\134\306 \324$e\0" // Pennsylvania CS27 North zone
    "P\207nsylv\005\315\134\306|\250$e\0" // Pennsylvania CS27 South zone
    "P\207nsylv\005i\256\373\2723701\0" // Pennsylvania_North_FIPS_3701
    "P\207nsylv\005i\256\373\2723701\372\0" // Pennsylvania_North_FIPS_3701_Feet
    "P\207nsylv\005i\256\373\2723701`t_\203\0" // Pennsylvania_North_FIPS_3701_Ft_US
    "P\207nsylv\005i\256S\365\2723702\0" // Pennsylvania_South_FIPS_3702
    "P\207nsylv\005i\256S\365\2723702\372\0" // Pennsylvania_South_FIPS_3702_Feet
    "P\207nsylv\005i\256S\365\2723702`t_\203\0" // Pennsylvania_South_FIPS_3702_Ft_US
    "Pep\023_\033_Pi\007ce\372\0" // Pepin_and_Pierce_Feet
    "Pep\023_\033_Pi\007c\215M\313\0" // Pepin_and_Pierce_Meters
    "P\007ak Rev\077\275\327}s\023i Gr\257\0" // Perak Revised Cassini Grid
    "P\007e\340\256R\077\037\025d\256\2277\0" // Pereira_Risaralda_2007
    "P\007r\026d\31750\012T\007r\010Ad\242i\010P\246\037|t\007eog\350\237#\0" // Perroud 1950 / Terre Adelie Polar Stereographic
    "P\007r\026d\21150_T\007>_Ad\242i\215P\246\037_St\007eog\350\237#\0" // Perroud_1950_Terre_Adelie_Polar_Stereographic
    "P\007ry_(ft\203)\0" // Perry_(ftUS)
    "P\007ry_(m)\0" // Perry_(m)
    "P\007@Coa\020\230Gr\257\0" // Perth Coastal Grid
    "P\007u\0" // Peru
    "P\007u\00278\22172!\0" // Peru - 78°W to 72°W
    "P\007u\00279\22173!\0" // Peru - 79°W to 73°W
    "P\007u\00284\22178!\0" // Peru - 84°W to 78°W
    "P\007u\002e\314\24372!\0" // Peru - east of 72°W
    "P\007u\002e\314\24373!\0" // Peru - east of 73°W
    "P\007u\002\236\0" // Peru - onshore
    "P\007u\002w\267\24379!\0" // Peru - west of 79°W
    "P\007u96\0" // Peru96
    "P\007u96\012U\254\27317S\0" // Peru96 / UTM zone 17S
    "P\007u96\012U\254\27318S\0" // Peru96 / UTM zone 18S
    "P\007u96\012U\254\27319S\0" // Peru96 / UTM zone 19S
    "P\007u96_U\254_Z\003\215\0" // Peru96_UTM_Zone_
    "P\007u\377\367\025_Z\003e\0" // Peru_Central_Zone
    "P\007u_Ea\020_Z\003e\0" // Peru_East_Zone
    "P\007u_We\020_Z\003e\0" // Peru_West_Zone
    "P\036>ls\31772\0" // Petrels 1972
    "P\036>ls\31772\012T\007r\010Ad\242i\010P\246\037|t\007eog\350\237#\0" // Petrels 1972 / Terre Adelie Polar Stereographic
    "P\036>ls\21172\0" // Petrels_1972
    "P\036>ls\21172_T\007>_Ad\242i\215P\246\037_St\007eog\350\237#\0" // Petrels_1972_Terre_Adelie_Polar_Stereographic
    "P\036robr} M\007c=\006\0" // Petrobras Mercator
    "Ph\341ipp\023\010Ref\007\207c\010Sy\020\212 \03192\0" // Philippine Reference System 1992
    "Ph\341ipp\023\215Ref\007\207c\215Sy\020\212_\03192\0" // Philippine_Reference_System_1992
    "Ph\341ipp\023\220\0" // Philippines
    "Ph\341ipp\023\220\002M\023d\005a\013\236\0" // Philippines - Mindanao onshore
    "Ph\341ipp\023\220\002\236\0" // Philippines - onshore
    "Ph\341ipp\023\220\002\210\010exclud\023g M\023d\005ao\0" // Philippines - onshore excluding Mindanao
    "Ph\341ipp\023\220\002^I\0" // Philippines - zone I
    "Ph\341ipp\023\220\002^I\356\0" // Philippines - zone I onshore
    "Ph\341ipp\023\220\002^II\0" // Philippines - zone II
    "Ph\341ipp\023\220\002^II\356\0" // Philippines - zone II onshore
    "Ph\341ipp\023\220\002^III\0" // Philippines - zone III
    "Ph\341ipp\023\220\002^III\356\0" // Philippines - zone III onshore
    "Ph\341ipp\023\220\002^IV\0" // Philippines - zone IV
    "Ph\341ipp\023\220\002^IV\356\0" // Philippines - zone IV onshore
    "Ph\341ipp\023\220\002^V\0" // Philippines - zone V
    "Ph\341ipp\023\220\002^V\356\0" // Philippines - zone V onshore
    "Pho\207ix \335s\31766\0" // Phoenix Islands 1966
    "P#\013d\010l} Niev\220\31768\0" // Pico de las Nieves 1968
    "P#\013d\010l} Niev\220\31784\0" // Pico de las Nieves 1984
    "P#o_d\215L}_Niev\220\0" // Pico_de_Las_Nieves
    "P#o_d\215l}_Niev\220\21168\0" // Pico_de_las_Nieves_1968
    "Pike-W\037r#k_(ft\203)\0" // Pike-Warrick_(ftUS)
    "Pike-W\037r#k_(m)\0" // Pike-Warrick_(m)
    "P\341\337_Rock-Uki\361_\021\211\014_\240_LCC`t_I\035l\0" // Pilot_Rock-Ukiah_NAD_1983_2011_LCC_Ft_Intl
    "P\341\337_Rock-Uki\361_\021\211\014_\240_LCC_M\313\0" // Pilot_Rock-Ukiah_NAD_1983_2011_LCC_Meters
    "Pim\027C\026\035\204^1 E\314(ft)\0" // Pima County zone 1 East (ft)
    "Pim\027C\026\035\204^2\327\367\025\201ft)\0" // Pima County zone 2 Central (ft)
    "Pim\027C\026\035\204^3 W\267(ft)\0" // Pima County zone 3 West (ft)
    "Pim\027C\026\035\204^4 Mt. L\212m\003\201ft)\0" // Pima County zone 4 Mt. Lemmon (ft)
    "P\023\005g\327}s\023i Gr\257\0" // Pinang Cassini Grid
    "P\245ca\340n\002P\245ca\340n \335\0" // Pitcairn - Pitcairn Island
    "P\245ca\340n\31767\0" // Pitcairn 1967
    "P\245ca\340n\31767\012U\254\2739S\0" // Pitcairn 1967 / UTM zone 9S
    "P\245ca\340n \2276\0" // Pitcairn 2006
    "P\245ca\340n \2276\012P\245ca\340n \254 \2276\0" // Pitcairn 2006 / Pitcairn TM 2006
    "P\245ca\340n\21167\0" // Pitcairn_1967
    "P\245ca\340n\21167_U\254_Z\003\2159S\0" // Pitcairn_1967_UTM_Zone_9S
    "P\245ca\340n_\2276\0" // Pitcairn_2006
    "P\245ca\340n_\2276_P\245ca\340n_\254_\2276\0" // Pitcairn_2006_Pitcairn_TM_2006
    "P\245\231d\220 \307ig\220\0" // Piton des Neiges
    "Pl=\215C\037>e\0" // Plate_Carree
    "Pl\220s\077 1817\0" // Plessis 1817
    "Pl\220s\077_1817\0" // Plessis_1817
    "Po\023t 58\0" // Point 58
    "Po\023t_58\0" // Point_58
    "Po\023t\010Ge\246ogi\010P\007r\026d\31750\0" // Pointe Geologie Perroud 1950
    "Po\023t\010No\340\010\011U\254\27332S\0" // Pointe Noire / UTM zone 32S
    "Po\023t\215Ge\246ogi\215P\007r\026d\21150\0" // Pointe_Geologie_Perroud_1950
    "Po\023t\215Noi>\0" // Pointe_Noire
    "Po\023t\215Noi>_U\254_Z\003\21532S\0" // Pointe_Noire_UTM_Zone_32S
    "Po\206\00216\235\200\031\235\015\0" // Poland - 16.5°E to 19.5°E
    "Po\206\002\031\235\20022\235\015\0" // Poland - 19.5°E to 22.5°E
    "Po\206\002e\314\24322\235\015\0" // Poland - east of 22.5°E
    "Po\206\002\236\0" // Poland - onshore
    "Po\206\002w\267\24316\235\015\0" // Poland - west of 16.5°E
    "Po\206\002^I\0" // Poland - zone I
    "Po\206\002^II\0" // Poland - zone II
    "Po\206\002^III\0" // Poland - zone III
    "Po\206\002^IV\0" // Poland - zone IV
    "Po\206\002^V\0" // Poland - zone V
    "Po\206 \134\2270\2735\0" // Poland CS2000 zone 5
    "Po\206 \134\2270\2736\0" // Poland CS2000 zone 6
    "Po\206 \134\2270\2737\0" // Poland CS2000 zone 7
    "Po\206 \134\2270\2738\0" // Poland CS2000 zone 8
    "Po\206 \13492\0" // Poland CS92
    "Po\206_\13492\0" // Poland_CS92
    "P\246k\377\026\035y\372\0" // Polk_County_Feet
    "P\246k\377\026\035y_M\313\0" // Polk_County_Meters
    "P\246k\372\0" // Polk_Feet
    "P\246k_M\313\0" // Polk_Meters
    "Popay\005\377auc\256\2276\0" // Popayan_Cauca_2006
    "Popul\037 V\077u\025\077=i\231C{\0" // Popular Visualisation CRS
    "Popul\037 V\077u\025\077=i\231C{\012M\007c=\006\0" // Popular Visualisation CRS / Mercator
    "Popul\037 V\077u\025\077=i\231D=um\0" // Popular Visualisation Datum
    "Popul\037 V\077u\025\077=i\231M\007c=\006\0" // Popular Visualisation Mercator
    "Popul\037 V\077u\025\077=i\231Pseudo-M\007c=\006\0" // Popular Visualisation Pseudo-Mercator
    "Popul\037 V\077u\025\077=i\231S\274e\0" // Popular Visualisation Sphere
    "P\006t H\275\206 Gr\257 \03420\0" // Port Hedland Grid 2020
    "P\006tag\215C\026\035y\372\0" // Portage_County_Feet
    "P\006tag\215C\026\035y_M\313\0" // Portage_County_Meters
    "P\006tage\372\0" // Portage_Feet
    "P\006tag\215M\313\0" // Portage_Meters
    "P\006t\013S\005to\0" // Porto Santo
    "P\006t\013S\005to\012U\254\27328N\0" // Porto Santo / UTM zone 28N
    "P\006t\013S\005t\013\03136\0" // Porto Santo 1936
    "P\006t\013S\005t\013\03195\0" // Porto Santo 1995
    "P\006t\013S\005t\013\03195\012U\254\27328N\0" // Porto Santo 1995 / UTM zone 28N
    "P\006to_S\005to\21136\0" // Porto_Santo_1936
    "P\006to_S\005to\21136_U\254_Z\003\21528N\0" // Porto_Santo_1936_UTM_Zone_28N
    "P\006to_S\005to\21195\0" // Porto_Santo_1995
    "P\006to_S\005to\21195_U\254_Z\003\21528N\0" // Porto_Santo_1995_UTM_Zone_28N
    "P\006tug\025\002Az\006\220\002w\267\24330!\0" // Portugal - Azores - west of 30°W
    "P\006tug\025\002Az\006\220 30\22124!\0" // Portugal - Azores 30°W to 24°W
    "P\006tug\025\002Az\006\220\327\002Fai\230\236\0" // Portugal - Azores C - Faial onshore
    "P\006tug\025\002Az\006\220\327\002G\350cios\027\236\0" // Portugal - Azores C - Graciosa onshore
    "P\006tug\025\002Az\006\220\327\002P#\013\236\0" // Portugal - Azores C - Pico onshore
    "P\006tug\025\002Az\006\220\327\002S J\006g\010\236\0" // Portugal - Azores C - S Jorge onshore
    "P\006tug\025\002Az\006\220\327\002T\007ce\340\027\236\0" // Portugal - Azores C - Terceira onshore
    "P\006tug\025\002Az\006\220\327\002\236\0" // Portugal - Azores C - onshore
    "P\006tug\025\002Az\006\220 E\002S Migu\242\356\0" // Portugal - Azores E - S Miguel onshore
    "P\006tug\025\002Az\006\220 E\002S\005t\027M\037\315\236\0" // Portugal - Azores E - Santa Maria onshore
    "P\006tug\025\002Az\006\220 E\002\236\0" // Portugal - Azores E - onshore
    "P\006tug\025\002Az\006\220 W\002C\006v\013\236\0" // Portugal - Azores W - Corvo onshore
    "P\006tug\025\002Az\006\220 W\002Fl\006\220\356\0" // Portugal - Azores W - Flores onshore
    "P\006tug\025\002Az\006\220 W\002\236\0" // Portugal - Azores W - onshore
    "P\006tug\025\002Az\006\220\374M\226e\340a\0" // Portugal - Azores and Madeira
    "P\006tug\025\002M\226e\340\027\253EEZ E \24318!\0" // Portugal - Madeira and EEZ E of 18°W
    "P\006tug\025\002M\226e\340\027\253P\006t\013S\005t\013\077\206s\356\0" // Portugal - Madeira and Porto Santo islands onshore
    "P\006tug\025\002M\226e\340\027\037chip\242ag\013\236\0" // Portugal - Madeira archipelago onshore
    "P\006tug\025\002M\226e\340\027\077\206\356\0" // Portugal - Madeira island onshore
    "P\006tug\025\002P\006t\013S\005t\013\077\206\356\0" // Portugal - Porto Santo island onshore
    "P\006tug\025\002S\242vag\207s\356\0" // Portugal - Selvagens onshore
    "P\006tug\025\002ma\023\206\002\214f~e\0" // Portugal - mainland - offshore
    "P\006tug\025\002ma\023\206\002\236\0" // Portugal - mainland - onshore
    "P\006tug\025_\25406\0" // Portugal_TM06
    "P\006tugu\230\25406\0" // Portugual TM06
    "P\006tugu\220\215N=\320\025_Gr\257\0" // Portuguese_National_Grid
    "Posey_(ft\203)\0" // Posey_(ftUS)
    "Posey_(m)\0" // Posey_(m)
    "Pos#\320\220 Geod\220#} \325ge\035\023}\0" // Posiciones Geodesicas Argentinas
    "Pos#\320\220 Geod\220#} \325ge\035\023} \03194\0" // Posiciones Geodesicas Argentinas 1994
    "Pos#\320\220 Geod\220#} \325ge\035\023} \03198\0" // Posiciones Geodesicas Argentinas 1998
    "Pos#\320\220 Geod\220#} \325ge\035\023} \2277\0" // Posiciones Geodesicas Argentinas 2007
    "Pos#\320\220 Geod\303\251s#} \325ge\035\023}\0" // Posiciones Geodésicas Argentinas
    "Pos#\320\220 Geod\303\251s#} \325ge\035\023} \0" // Posiciones Geodésicas Argentinas 
    "P\337sd\225 D=um/83\0" // Potsdam Datum/83
    "P\337sd\225_\03183\0" // Potsdam_1983
    "Pov\007ty_Bay\377\340cu\245\0" // Poverty_Bay_Circuit
    "P\350\340i\215C\245y-Brog\005_\021\211\014_\240_LCC`t_I\035l\0" // Prairie_City-Brogan_NAD_1983_2011_LCC_Ft_Intl
    "P\350\340i\215C\245y-Brog\005_\021\211\014_\240_LCC_M\313\0" // Prairie_City-Brogan_NAD_1983_2011_LCC_Meters
    "Pr#\215C\026\035y\372\0" // Price_County_Feet
    "Pr#\215C\026\035y_M\313\0" // Price_County_Meters
    "Pr#e\372\0" // Price_Feet
    "Pr#\215M\313\0" // Price_Meters
    "Pr\023c\010Edw\037d \335|t\007eog\350\237#\201ATS77)\0" // Prince Edward Island Stereographic (ATS77)
    "Pr\023c\215Edw\037d_\335\0" // Prince_Edward_Island
    "Pr\023c\215Edw\037d_\335_St\007eog\350\237#\0" // Prince_Edward_Island_Stereographic
    "Prov\077\320\025|\250Am\007#\005 D=um\31756\0" // Provisional South American Datum 1956
    "Prov\077\320\025_S_Am\007#\005\21156\0" // Provisional_S_American_1956
    "Pu\007t\013R#o\0" // Puerto Rico
    "Pu\007t\013R#o\002\236\0" // Puerto Rico - onshore
    "Pu\007t\013R#o\012St.\327roix\0" // Puerto Rico / St. Croix
    "Pu\007t\013R#o\012U\254\273\034N\0" // Puerto Rico / UTM zone 20N
    "Pu\007t\013R#\013\13427\0" // Puerto Rico CS27
    "Pu\007t\013R#\013\276 27\0" // Puerto Rico SPCS 27
    "Pu\007t\013R#\013St=\010Pl\005\010\134 \243\03127\0" // Puerto Rico State Plane CS of 1927
    "Pu\007to\377\037>no_V#h\226\256\03411\0" // Puerto_Carreno_Vichada_2011
    "Pu\007to_R#o\0" // Puerto_Rico
    "Pu\007to_R#o_St=ePl\005\215Pu\007to_R#o\2725\0341\0" // Puerto_Rico_StatePlane_Puerto_Rico_FIPS_5201
    "Pu\007to_R#o_St=ePl\005\215V\340g\023_\335s_St\377roix\2725\0342\0" // Puerto_Rico_StatePlane_Virgin_Islands_St_Croix_FIPS_5202
    "Pu\007to_R#o_U\254_Z\003\215\034N\0" // Puerto_Rico_UTM_Zone_20N
    "Pu\007to_R#o_V\340g\023_\335s\2725\0340\0" // Puerto_Rico_Virgin_Islands_FIPS_5200
    "Pu\007to_R#o_V\340g\023_\316ls\2725\0340\0" // Puerto_Rico_Virgin_Isls_FIPS_5200
    "Pulau_P\023\005g_\033_Seb\007\005g_P\007ai\0" // Pulau_Pinang_and_Seberang_Perai
    "Pulkov\013\03142\0" // Pulkovo 1942
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \3122E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 102E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \3125E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 105E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \3128E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 108E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \2021E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 111E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \2024E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 114E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \2027E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 117E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 120E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 123E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 123E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 126E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 126E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 129E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 129E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 132E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 132E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 135E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 135E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 138E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 138E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 141E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 141E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 144E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 144E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 147E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 147E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 150E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 150E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 153E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 153E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 156E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 156E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 159E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 159E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 162E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 162E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 165E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 165E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 168E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 168W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168W
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 171E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 171W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171W
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 174E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 174W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174W
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 177E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 177W\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177W
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 180E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 180E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 18E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 18E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 21E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 21E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 24E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 24E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M \306E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 27E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 30E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 30E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 33E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 33E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 36E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 36E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 39E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 39E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 42E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 42E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 45E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 45E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 48E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 48E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 51E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 51E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 54E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 54E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 57E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 57E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 60E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 60E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 63E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 63E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 66E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 66E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 69E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 69E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 72E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 72E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 75E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 75E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 78E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 78E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 81E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 81E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 84E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 84E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 87E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 87E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 90E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 90E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 93E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 93E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 96E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 96E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\327M 99E\0" // Pulkovo 1942 / 3-degree Gauss-Kruger CM 99E
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27310\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 10
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27311\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 11
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27312\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 12
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27313\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 13
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27314\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 14
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27315\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 15
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27316\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 16
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27317\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 17
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27318\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 18
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27319\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 19
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27320\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 20
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27321\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 21
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27322\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 22
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27323\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 23
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27324\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 24
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27325\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 25
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27326\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 26
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27327\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 27
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27328\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 28
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27329\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 29
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27330\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 30
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27331\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 31
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27332\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 32
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27333\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 33
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27334\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 34
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27335\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 35
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27336\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 36
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27337\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 37
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27338\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 38
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27339\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 39
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27340\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 40
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27341\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 41
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27342\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 42
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27343\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 43
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27344\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 44
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27345\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 45
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27346\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 46
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27347\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 47
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27348\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 48
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27349\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 49
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27350\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 50
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27351\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 51
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27352\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 52
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27353\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 53
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27354\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 54
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27355\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 55
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27356\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 56
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27357\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 57
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27358\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 58
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27359\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 59
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\2736\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27360\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27361\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 61
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27362\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 62
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27363\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 63
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\27364\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 64
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\2737\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\2738\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03142\0123-deg>\010Ga\351s-Krug\007\2739\0" // Pulkovo 1942 / 3-degree Gauss-Kruger zone 9
    "Pulkov\013\03142\012\13463\273A1\0" // Pulkovo 1942 / CS63 zone A1
    "Pulkov\013\03142\012\13463\273A2\0" // Pulkovo 1942 / CS63 zone A2
    "Pulkov\013\03142\012\13463\273A3\0" // Pulkovo 1942 / CS63 zone A3
    "Pulkov\013\03142\012\13463\273A4\0" // Pulkovo 1942 / CS63 zone A4
    "Pulkov\013\03142\012\13463\273C0\0" // Pulkovo 1942 / CS63 zone C0
    "Pulkov\013\03142\012\13463\273C1\0" // Pulkovo 1942 / CS63 zone C1
    "Pulkov\013\03142\012\13463\273C2\0" // Pulkovo 1942 / CS63 zone C2
    "Pulkov\013\03142\012\13463\273K2\0" // Pulkovo 1942 / CS63 zone K2
    "Pulkov\013\03142\012\13463\273K3\0" // Pulkovo 1942 / CS63 zone K3
    "Pulkov\013\03142\012\13463\273K4\0" // Pulkovo 1942 / CS63 zone K4
    "Pulkov\013\03142\012\13463\273X1\0" // Pulkovo 1942 / CS63 zone X1
    "Pulkov\013\03142\012\13463\273X2\0" // Pulkovo 1942 / CS63 zone X2
    "Pulkov\013\03142\012\13463\273X3\0" // Pulkovo 1942 / CS63 zone X3
    "Pulkov\013\03142\012\13463\273X4\0" // Pulkovo 1942 / CS63 zone X4
    "Pulkov\013\03142\012\13463\273X5\0" // Pulkovo 1942 / CS63 zone X5
    "Pulkov\013\03142\012\13463\273X6\0" // Pulkovo 1942 / CS63 zone X6
    "Pulkov\013\03142\012\13463\273X7\0" // Pulkovo 1942 / CS63 zone X7
    "Pulkov\013\03142\012C}p\336|e\027M\007c=\006\0" // Pulkovo 1942 / Caspian Sea Mercator
    "Pulkov\013\03142\012Ga\351s-Krug\007 \312N\0" // Pulkovo 1942 / Gauss-Kruger 10N
    "Pulkov\013\03142\012Ga\351s-Krug\007 11N\0" // Pulkovo 1942 / Gauss-Kruger 11N
    "Pulkov\013\03142\012Ga\351s-Krug\007 12N\0" // Pulkovo 1942 / Gauss-Kruger 12N
    "Pulkov\013\03142\012Ga\351s-Krug\007 13N\0" // Pulkovo 1942 / Gauss-Kruger 13N
    "Pulkov\013\03142\012Ga\351s-Krug\007 14N\0" // Pulkovo 1942 / Gauss-Kruger 14N
    "Pulkov\013\03142\012Ga\351s-Krug\007 15N\0" // Pulkovo 1942 / Gauss-Kruger 15N
    "Pulkov\013\03142\012Ga\351s-Krug\007 16N\0" // Pulkovo 1942 / Gauss-Kruger 16N
    "Pulkov\013\03142\012Ga\351s-Krug\007 17N\0" // Pulkovo 1942 / Gauss-Kruger 17N
    "Pulkov\013\03142\012Ga\351s-Krug\007 18N\0" // Pulkovo 1942 / Gauss-Kruger 18N
    "Pulkov\013\03142\012Ga\351s-Krug\007 19N\0" // Pulkovo 1942 / Gauss-Kruger 19N
    "Pulkov\013\03142\012Ga\351s-Krug\007 \034N\0" // Pulkovo 1942 / Gauss-Kruger 20N
    "Pulkov\013\03142\012Ga\351s-Krug\007 21N\0" // Pulkovo 1942 / Gauss-Kruger 21N
    "Pulkov\013\03142\012Ga\351s-Krug\007 22N\0" // Pulkovo 1942 / Gauss-Kruger 22N
    "Pulkov\013\03142\012Ga\351s-Krug\007 23N\0" // Pulkovo 1942 / Gauss-Kruger 23N
    "Pulkov\013\03142\012Ga\351s-Krug\007 24N\0" // Pulkovo 1942 / Gauss-Kruger 24N
    "Pulkov\013\03142\012Ga\351s-Krug\007 25N\0" // Pulkovo 1942 / Gauss-Kruger 25N
    "Pulkov\013\03142\012Ga\351s-Krug\007 26N\0" // Pulkovo 1942 / Gauss-Kruger 26N
    "Pulkov\013\03142\012Ga\351s-Krug\007 27N\0" // Pulkovo 1942 / Gauss-Kruger 27N
    "Pulkov\013\03142\012Ga\351s-Krug\007 28N\0" // Pulkovo 1942 / Gauss-Kruger 28N
    "Pulkov\013\03142\012Ga\351s-Krug\007 29N\0" // Pulkovo 1942 / Gauss-Kruger 29N
    "Pulkov\013\03142\012Ga\351s-Krug\007 2N\0" // Pulkovo 1942 / Gauss-Kruger 2N
    "Pulkov\013\03142\012Ga\351s-Krug\007 30N\0" // Pulkovo 1942 / Gauss-Kruger 30N
    "Pulkov\013\03142\012Ga\351s-Krug\007 31N\0" // Pulkovo 1942 / Gauss-Kruger 31N
    "Pulkov\013\03142\012Ga\351s-Krug\007 32N\0" // Pulkovo 1942 / Gauss-Kruger 32N
    "Pulkov\013\03142\012Ga\351s-Krug\007 3N\0" // Pulkovo 1942 / Gauss-Kruger 3N
    "Pulkov\013\03142\012Ga\351s-Krug\007 4N\0" // Pulkovo 1942 / Gauss-Kruger 4N
    "Pulkov\013\03142\012Ga\351s-Krug\007 5N\0" // Pulkovo 1942 / Gauss-Kruger 5N
    "Pulkov\013\03142\012Ga\351s-Krug\007 6N\0" // Pulkovo 1942 / Gauss-Kruger 6N
    "Pulkov\013\03142\012Ga\351s-Krug\007 7N\0" // Pulkovo 1942 / Gauss-Kruger 7N
    "Pulkov\013\03142\012Ga\351s-Krug\007 8N\0" // Pulkovo 1942 / Gauss-Kruger 8N
    "Pulkov\013\03142\012Ga\351s-Krug\007 9N\0" // Pulkovo 1942 / Gauss-Kruger 9N
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M \3125E\0" // Pulkovo 1942 / Gauss-Kruger CM 105E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M \2021E\0" // Pulkovo 1942 / Gauss-Kruger CM 111E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M \2027E\0" // Pulkovo 1942 / Gauss-Kruger CM 117E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 123E\0" // Pulkovo 1942 / Gauss-Kruger CM 123E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 129E\0" // Pulkovo 1942 / Gauss-Kruger CM 129E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 135E\0" // Pulkovo 1942 / Gauss-Kruger CM 135E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 141E\0" // Pulkovo 1942 / Gauss-Kruger CM 141E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 147E\0" // Pulkovo 1942 / Gauss-Kruger CM 147E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 153E\0" // Pulkovo 1942 / Gauss-Kruger CM 153E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 159E\0" // Pulkovo 1942 / Gauss-Kruger CM 159E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 15E\0" // Pulkovo 1942 / Gauss-Kruger CM 15E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 165E\0" // Pulkovo 1942 / Gauss-Kruger CM 165E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 171E\0" // Pulkovo 1942 / Gauss-Kruger CM 171E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 171W\0" // Pulkovo 1942 / Gauss-Kruger CM 171W
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 177E\0" // Pulkovo 1942 / Gauss-Kruger CM 177E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 177W\0" // Pulkovo 1942 / Gauss-Kruger CM 177W
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 21E\0" // Pulkovo 1942 / Gauss-Kruger CM 21E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M \306E\0" // Pulkovo 1942 / Gauss-Kruger CM 27E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 33E\0" // Pulkovo 1942 / Gauss-Kruger CM 33E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 39E\0" // Pulkovo 1942 / Gauss-Kruger CM 39E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 45E\0" // Pulkovo 1942 / Gauss-Kruger CM 45E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 51E\0" // Pulkovo 1942 / Gauss-Kruger CM 51E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 57E\0" // Pulkovo 1942 / Gauss-Kruger CM 57E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 63E\0" // Pulkovo 1942 / Gauss-Kruger CM 63E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 69E\0" // Pulkovo 1942 / Gauss-Kruger CM 69E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 75E\0" // Pulkovo 1942 / Gauss-Kruger CM 75E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 81E\0" // Pulkovo 1942 / Gauss-Kruger CM 81E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 87E\0" // Pulkovo 1942 / Gauss-Kruger CM 87E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 93E\0" // Pulkovo 1942 / Gauss-Kruger CM 93E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 99E\0" // Pulkovo 1942 / Gauss-Kruger CM 99E
    "Pulkov\013\03142\012Ga\351s-Krug\007\327M 9E\0" // Pulkovo 1942 / Gauss-Kruger CM 9E
    "Pulkov\013\03142\012Ga\351s-Krug\007\27310\0" // Pulkovo 1942 / Gauss-Kruger zone 10
    "Pulkov\013\03142\012Ga\351s-Krug\007\27311\0" // Pulkovo 1942 / Gauss-Kruger zone 11
    "Pulkov\013\03142\012Ga\351s-Krug\007\27312\0" // Pulkovo 1942 / Gauss-Kruger zone 12
    "Pulkov\013\03142\012Ga\351s-Krug\007\27313\0" // Pulkovo 1942 / Gauss-Kruger zone 13
    "Pulkov\013\03142\012Ga\351s-Krug\007\27314\0" // Pulkovo 1942 / Gauss-Kruger zone 14
    "Pulkov\013\03142\012Ga\351s-Krug\007\27315\0" // Pulkovo 1942 / Gauss-Kruger zone 15
    "Pulkov\013\03142\012Ga\351s-Krug\007\27316\0" // Pulkovo 1942 / Gauss-Kruger zone 16
    "Pulkov\013\03142\012Ga\351s-Krug\007\27317\0" // Pulkovo 1942 / Gauss-Kruger zone 17
    "Pulkov\013\03142\012Ga\351s-Krug\007\27318\0" // Pulkovo 1942 / Gauss-Kruger zone 18
    "Pulkov\013\03142\012Ga\351s-Krug\007\27319\0" // Pulkovo 1942 / Gauss-Kruger zone 19
    "Pulkov\013\03142\012Ga\351s-Krug\007\2732\0" // Pulkovo 1942 / Gauss-Kruger zone 2
    "Pulkov\013\03142\012Ga\351s-Krug\007\27320\0" // Pulkovo 1942 / Gauss-Kruger zone 20
    "Pulkov\013\03142\012Ga\351s-Krug\007\27321\0" // Pulkovo 1942 / Gauss-Kruger zone 21
    "Pulkov\013\03142\012Ga\351s-Krug\007\27322\0" // Pulkovo 1942 / Gauss-Kruger zone 22
    "Pulkov\013\03142\012Ga\351s-Krug\007\27323\0" // Pulkovo 1942 / Gauss-Kruger zone 23
    "Pulkov\013\03142\012Ga\351s-Krug\007\27324\0" // Pulkovo 1942 / Gauss-Kruger zone 24
    "Pulkov\013\03142\012Ga\351s-Krug\007\27325\0" // Pulkovo 1942 / Gauss-Kruger zone 25
    "Pulkov\013\03142\012Ga\351s-Krug\007\27326\0" // Pulkovo 1942 / Gauss-Kruger zone 26
    "Pulkov\013\03142\012Ga\351s-Krug\007\27327\0" // Pulkovo 1942 / Gauss-Kruger zone 27
    "Pulkov\013\03142\012Ga\351s-Krug\007\27328\0" // Pulkovo 1942 / Gauss-Kruger zone 28
    "Pulkov\013\03142\012Ga\351s-Krug\007\27329\0" // Pulkovo 1942 / Gauss-Kruger zone 29
    "Pulkov\013\03142\012Ga\351s-Krug\007\2733\0" // Pulkovo 1942 / Gauss-Kruger zone 3
    "Pulkov\013\03142\012Ga\351s-Krug\007\27330\0" // Pulkovo 1942 / Gauss-Kruger zone 30
    "Pulkov\013\03142\012Ga\351s-Krug\007\27331\0" // Pulkovo 1942 / Gauss-Kruger zone 31
    "Pulkov\013\03142\012Ga\351s-Krug\007\27332\0" // Pulkovo 1942 / Gauss-Kruger zone 32
    "Pulkov\013\03142\012Ga\351s-Krug\007\2734\0" // Pulkovo 1942 / Gauss-Kruger zone 4
    "Pulkov\013\03142\012Ga\351s-Krug\007\2735\0" // Pulkovo 1942 / Gauss-Kruger zone 5
    "Pulkov\013\03142\012Ga\351s-Krug\007\2736\0" // Pulkovo 1942 / Gauss-Kruger zone 6
    "Pulkov\013\03142\012Ga\351s-Krug\007\2737\0" // Pulkovo 1942 / Gauss-Kruger zone 7
    "Pulkov\013\03142\012Ga\351s-Krug\007\2738\0" // Pulkovo 1942 / Gauss-Kruger zone 8
    "Pulkov\013\03142\012Ga\351s-Krug\007\2739\0" // Pulkovo 1942 / Gauss-Kruger zone 9
    "Pulkov\013\03142(56)\0" // Pulkovo 1942(56)
    "Pulkov\013\03142(57)\0" // Pulkovo 1942(57)
    "Pulkov\013\03142(58)\0" // Pulkovo 1942(58)
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\27310\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 10
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2733\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2733\201E-N)\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2734\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2734\201E-N)\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4 (E-N)
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2735\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2735\201E-N)\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5 (E-N)
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2736\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2737\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2738\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03142(58*3-deg>\010Ga\351s-Krug\007\2739\0" // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 9
    "Pulkov\013\03142(58*GUGiK-80\0" // Pulkovo 1942(58) / GUGiK-80
    "Pulkov\013\03142(58*Ga\351s-Krug\007\2732\0" // Pulkovo 1942(58) / Gauss-Kruger zone 2
    "Pulkov\013\03142(58*Ga\351s-Krug\007\2732\201E-N)\0" // Pulkovo 1942(58) / Gauss-Kruger zone 2 (E-N)
    "Pulkov\013\03142(58*Ga\351s-Krug\007\2733\0" // Pulkovo 1942(58) / Gauss-Kruger zone 3
    "Pulkov\013\03142(58*Ga\351s-Krug\007\2733\201E-N)\0" // Pulkovo 1942(58) / Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(58*Ga\351s-Krug\007\2734\0" // Pulkovo 1942(58) / Gauss-Kruger zone 4
    "Pulkov\013\03142(58*Ga\351s-Krug\007\2735\0" // Pulkovo 1942(58) / Gauss-Kruger zone 5
    "Pulkov\013\03142(58*Po\206\273I\0" // Pulkovo 1942(58) / Poland zone I
    "Pulkov\013\03142(58*Po\206\273II\0" // Pulkovo 1942(58) / Poland zone II
    "Pulkov\013\03142(58*Po\206\273III\0" // Pulkovo 1942(58) / Poland zone III
    "Pulkov\013\03142(58*Po\206\273IV\0" // Pulkovo 1942(58) / Poland zone IV
    "Pulkov\013\03142(58*Po\206\273V\0" // Pulkovo 1942(58) / Poland zone V
    "Pulkov\013\03142(58*St\007eo70\0" // Pulkovo 1942(58) / Stereo70
    "Pulkov\013\03142(\014)\0" // Pulkovo 1942(83)
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2733\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2733\201E-N)\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2734\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2734\201E-N)\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4 (E-N)
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2735\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2735\201E-N)\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5 (E-N)
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2736\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2737\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03142(\014*3-deg>\010Ga\351s-Krug\007\2738\0" // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03142(\014*Ga\351s Krug\007\2733\0" // Pulkovo 1942(83) / Gauss Kruger zone 3
    "Pulkov\013\03142(\014*Ga\351s Krug\007\2734\0" // Pulkovo 1942(83) / Gauss Kruger zone 4
    "Pulkov\013\03142(\014*Ga\351s Krug\007\2735\0" // Pulkovo 1942(83) / Gauss Kruger zone 5
    "Pulkov\013\03142(\014*Ga\351s-Krug\007\2732\0" // Pulkovo 1942(83) / Gauss-Kruger zone 2
    "Pulkov\013\03142(\014*Ga\351s-Krug\007\2732\201E-N)\0" // Pulkovo 1942(83) / Gauss-Kruger zone 2 (E-N)
    "Pulkov\013\03142(\014*Ga\351s-Krug\007\2733\0" // Pulkovo 1942(83) / Gauss-Kruger zone 3
    "Pulkov\013\03142(\014*Ga\351s-Krug\007\2733\201E-N)\0" // Pulkovo 1942(83) / Gauss-Kruger zone 3 (E-N)
    "Pulkov\013\03142(\014*Ga\351s-Krug\007\2734\0" // Pulkovo 1942(83) / Gauss-Kruger zone 4
    "Pulkov\013\03195\0" // Pulkovo 1995
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \3122E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 102E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \3125E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 105E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \3128E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 108E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \2021E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 111E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \2024E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 114E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \2027E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 117E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 120E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 123E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 123E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 126E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 126E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 129E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 129E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 132E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 132E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 135E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 135E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 138E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 138E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 141E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 141E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 144E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 144E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 147E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 147E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 150E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 150E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 153E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 153E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 156E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 156E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 159E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 159E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 162E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 162E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 165E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 165E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 168E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 168W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168W
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 171E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 171W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171W
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 174E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 174W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174W
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 177E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 177W\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177W
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 180E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 180E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 18E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 18E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 21E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 21E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 24E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 24E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M \306E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 27E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 30E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 30E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 33E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 33E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 36E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 36E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 39E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 39E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 42E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 42E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 45E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 45E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 48E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 48E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 51E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 51E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 54E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 54E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 57E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 57E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 60E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 60E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 63E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 63E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 66E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 66E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 69E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 69E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 72E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 72E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 75E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 75E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 78E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 78E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 81E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 81E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 84E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 84E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 87E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 87E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 90E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 90E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 93E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 93E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 96E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 96E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\327M 99E\0" // Pulkovo 1995 / 3-degree Gauss-Kruger CM 99E
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27310\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 10
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27311\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 11
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27312\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 12
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27313\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 13
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27314\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 14
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27315\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 15
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27316\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 16
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27317\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 17
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27318\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 18
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27319\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 19
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27320\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 20
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27321\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 21
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27322\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 22
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27323\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 23
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27324\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 24
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27325\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 25
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27326\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 26
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27327\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 27
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27328\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 28
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27329\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 29
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27330\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 30
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27331\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 31
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27332\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 32
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27333\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 33
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27334\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 34
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27335\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 35
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27336\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 36
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27337\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 37
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27338\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 38
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27339\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 39
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27340\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 40
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27341\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 41
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27342\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 42
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27343\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 43
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27344\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 44
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27345\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 45
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27346\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 46
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27347\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 47
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27348\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 48
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27349\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 49
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27350\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 50
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27351\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 51
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27352\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 52
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27353\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 53
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27354\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 54
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27355\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 55
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27356\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 56
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27357\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 57
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27358\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 58
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27359\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 59
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\2736\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 6
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27360\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27361\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 61
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27362\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 62
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27363\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 63
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\27364\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 64
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\2737\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 7
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\2738\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 8
    "Pulkov\013\03195\0123-deg>\010Ga\351s-Krug\007\2739\0" // Pulkovo 1995 / 3-degree Gauss-Kruger zone 9
    "Pulkov\013\03195\012Ga\351s-Krug\007 \312N\0" // Pulkovo 1995 / Gauss-Kruger 10N
    "Pulkov\013\03195\012Ga\351s-Krug\007 11N\0" // Pulkovo 1995 / Gauss-Kruger 11N
    "Pulkov\013\03195\012Ga\351s-Krug\007 12N\0" // Pulkovo 1995 / Gauss-Kruger 12N
    "Pulkov\013\03195\012Ga\351s-Krug\007 13N\0" // Pulkovo 1995 / Gauss-Kruger 13N
    "Pulkov\013\03195\012Ga\351s-Krug\007 14N\0" // Pulkovo 1995 / Gauss-Kruger 14N
    "Pulkov\013\03195\012Ga\351s-Krug\007 15N\0" // Pulkovo 1995 / Gauss-Kruger 15N
    "Pulkov\013\03195\012Ga\351s-Krug\007 16N\0" // Pulkovo 1995 / Gauss-Kruger 16N
    "Pulkov\013\03195\012Ga\351s-Krug\007 17N\0" // Pulkovo 1995 / Gauss-Kruger 17N
    "Pulkov\013\03195\012Ga\351s-Krug\007 18N\0" // Pulkovo 1995 / Gauss-Kruger 18N
    "Pulkov\013\03195\012Ga\351s-Krug\007 19N\0" // Pulkovo 1995 / Gauss-Kruger 19N
    "Pulkov\013\03195\012Ga\351s-Krug\007 \034N\0" // Pulkovo 1995 / Gauss-Kruger 20N
    "Pulkov\013\03195\012Ga\351s-Krug\007 21N\0" // Pulkovo 1995 / Gauss-Kruger 21N
    "Pulkov\013\03195\012Ga\351s-Krug\007 22N\0" // Pulkovo 1995 / Gauss-Kruger 22N
    "Pulkov\013\03195\012Ga\351s-Krug\007 23N\0" // Pulkovo 1995 / Gauss-Kruger 23N
    "Pulkov\013\03195\012Ga\351s-Krug\007 24N\0" // Pulkovo 1995 / Gauss-Kruger 24N
    "Pulkov\013\03195\012Ga\351s-Krug\007 25N\0" // Pulkovo 1995 / Gauss-Kruger 25N
    "Pulkov\013\03195\012Ga\351s-Krug\007 26N\0" // Pulkovo 1995 / Gauss-Kruger 26N
    "Pulkov\013\03195\012Ga\351s-Krug\007 27N\0" // Pulkovo 1995 / Gauss-Kruger 27N
    "Pulkov\013\03195\012Ga\351s-Krug\007 28N\0" // Pulkovo 1995 / Gauss-Kruger 28N
    "Pulkov\013\03195\012Ga\351s-Krug\007 29N\0" // Pulkovo 1995 / Gauss-Kruger 29N
    "Pulkov\013\03195\012Ga\351s-Krug\007 30N\0" // Pulkovo 1995 / Gauss-Kruger 30N
    "Pulkov\013\03195\012Ga\351s-Krug\007 31N\0" // Pulkovo 1995 / Gauss-Kruger 31N
    "Pulkov\013\03195\012Ga\351s-Krug\007 32N\0" // Pulkovo 1995 / Gauss-Kruger 32N
    "Pulkov\013\03195\012Ga\351s-Krug\007 4N\0" // Pulkovo 1995 / Gauss-Kruger 4N
    "Pulkov\013\03195\012Ga\351s-Krug\007 5N\0" // Pulkovo 1995 / Gauss-Kruger 5N
    "Pulkov\013\03195\012Ga\351s-Krug\007 6N\0" // Pulkovo 1995 / Gauss-Kruger 6N
    "Pulkov\013\03195\012Ga\351s-Krug\007 7N\0" // Pulkovo 1995 / Gauss-Kruger 7N
    "Pulkov\013\03195\012Ga\351s-Krug\007 8N\0" // Pulkovo 1995 / Gauss-Kruger 8N
    "Pulkov\013\03195\012Ga\351s-Krug\007 9N\0" // Pulkovo 1995 / Gauss-Kruger 9N
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M \3125E\0" // Pulkovo 1995 / Gauss-Kruger CM 105E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M \2021E\0" // Pulkovo 1995 / Gauss-Kruger CM 111E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M \2027E\0" // Pulkovo 1995 / Gauss-Kruger CM 117E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 123E\0" // Pulkovo 1995 / Gauss-Kruger CM 123E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 129E\0" // Pulkovo 1995 / Gauss-Kruger CM 129E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 135E\0" // Pulkovo 1995 / Gauss-Kruger CM 135E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 141E\0" // Pulkovo 1995 / Gauss-Kruger CM 141E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 147E\0" // Pulkovo 1995 / Gauss-Kruger CM 147E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 153E\0" // Pulkovo 1995 / Gauss-Kruger CM 153E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 159E\0" // Pulkovo 1995 / Gauss-Kruger CM 159E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 165E\0" // Pulkovo 1995 / Gauss-Kruger CM 165E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 171E\0" // Pulkovo 1995 / Gauss-Kruger CM 171E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 171W\0" // Pulkovo 1995 / Gauss-Kruger CM 171W
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 177E\0" // Pulkovo 1995 / Gauss-Kruger CM 177E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 177W\0" // Pulkovo 1995 / Gauss-Kruger CM 177W
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 21E\0" // Pulkovo 1995 / Gauss-Kruger CM 21E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M \306E\0" // Pulkovo 1995 / Gauss-Kruger CM 27E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 33E\0" // Pulkovo 1995 / Gauss-Kruger CM 33E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 39E\0" // Pulkovo 1995 / Gauss-Kruger CM 39E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 45E\0" // Pulkovo 1995 / Gauss-Kruger CM 45E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 51E\0" // Pulkovo 1995 / Gauss-Kruger CM 51E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 57E\0" // Pulkovo 1995 / Gauss-Kruger CM 57E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 63E\0" // Pulkovo 1995 / Gauss-Kruger CM 63E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 69E\0" // Pulkovo 1995 / Gauss-Kruger CM 69E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 75E\0" // Pulkovo 1995 / Gauss-Kruger CM 75E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 81E\0" // Pulkovo 1995 / Gauss-Kruger CM 81E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 87E\0" // Pulkovo 1995 / Gauss-Kruger CM 87E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 93E\0" // Pulkovo 1995 / Gauss-Kruger CM 93E
    "Pulkov\013\03195\012Ga\351s-Krug\007\327M 99E\0" // Pulkovo 1995 / Gauss-Kruger CM 99E
    "Pulkov\013\03195\012Ga\351s-Krug\007\27310\0" // Pulkovo 1995 / Gauss-Kruger zone 10
    "Pulkov\013\03195\012Ga\351s-Krug\007\27311\0" // Pulkovo 1995 / Gauss-Kruger zone 11
    "Pulkov\013\03195\012Ga\351s-Krug\007\27312\0" // Pulkovo 1995 / Gauss-Kruger zone 12
    "Pulkov\013\03195\012Ga\351s-Krug\007\27313\0" // Pulkovo 1995 / Gauss-Kruger zone 13
    "Pulkov\013\03195\012Ga\351s-Krug\007\27314\0" // Pulkovo 1995 / Gauss-Kruger zone 14
    "Pulkov\013\03195\012Ga\351s-Krug\007\27315\0" // Pulkovo 1995 / Gauss-Kruger zone 15
    "Pulkov\013\03195\012Ga\351s-Krug\007\27316\0" // Pulkovo 1995 / Gauss-Kruger zone 16
    "Pulkov\013\03195\012Ga\351s-Krug\007\27317\0" // Pulkovo 1995 / Gauss-Kruger zone 17
    "Pulkov\013\03195\012Ga\351s-Krug\007\27318\0" // Pulkovo 1995 / Gauss-Kruger zone 18
    "Pulkov\013\03195\012Ga\351s-Krug\007\27319\0" // Pulkovo 1995 / Gauss-Kruger zone 19
    "Pulkov\013\03195\012Ga\351s-Krug\007\27320\0" // Pulkovo 1995 / Gauss-Kruger zone 20
    "Pulkov\013\03195\012Ga\351s-Krug\007\27321\0" // Pulkovo 1995 / Gauss-Kruger zone 21
    "Pulkov\013\03195\012Ga\351s-Krug\007\27322\0" // Pulkovo 1995 / Gauss-Kruger zone 22
    "Pulkov\013\03195\012Ga\351s-Krug\007\27323\0" // Pulkovo 1995 / Gauss-Kruger zone 23
    "Pulkov\013\03195\012Ga\351s-Krug\007\27324\0" // Pulkovo 1995 / Gauss-Kruger zone 24
    "Pulkov\013\03195\012Ga\351s-Krug\007\27325\0" // Pulkovo 1995 / Gauss-Kruger zone 25
    "Pulkov\013\03195\012Ga\351s-Krug\007\27326\0" // Pulkovo 1995 / Gauss-Kruger zone 26
    "Pulkov\013\03195\012Ga\351s-Krug\007\27327\0" // Pulkovo 1995 / Gauss-Kruger zone 27
    "Pulkov\013\03195\012Ga\351s-Krug\007\27328\0" // Pulkovo 1995 / Gauss-Kruger zone 28
    "Pulkov\013\03195\012Ga\351s-Krug\007\27329\0" // Pulkovo 1995 / Gauss-Kruger zone 29
    "Pulkov\013\03195\012Ga\351s-Krug\007\27330\0" // Pulkovo 1995 / Gauss-Kruger zone 30
    "Pulkov\013\03195\012Ga\351s-Krug\007\27331\0" // Pulkovo 1995 / Gauss-Kruger zone 31
    "Pulkov\013\03195\012Ga\351s-Krug\007\27332\0" // Pulkovo 1995 / Gauss-Kruger zone 32
    "Pulkov\013\03195\012Ga\351s-Krug\007\2734\0" // Pulkovo 1995 / Gauss-Kruger zone 4
    "Pulkov\013\03195\012Ga\351s-Krug\007\2735\0" // Pulkovo 1995 / Gauss-Kruger zone 5
    "Pulkov\013\03195\012Ga\351s-Krug\007\2736\0" // Pulkovo 1995 / Gauss-Kruger zone 6
    "Pulkov\013\03195\012Ga\351s-Krug\007\2737\0" // Pulkovo 1995 / Gauss-Kruger zone 7
    "Pulkov\013\03195\012Ga\351s-Krug\007\2738\0" // Pulkovo 1995 / Gauss-Kruger zone 8
    "Pulkov\013\03195\012Ga\351s-Krug\007\2739\0" // Pulkovo 1995 / Gauss-Kruger zone 9
    "Pulkovo_\0" // Pulkovo_
    "Pulkovo\21142\0" // Pulkovo_1942
    "Pulkovo\21142_3_Deg>\215GK_\0" // Pulkovo_1942_3_Degree_GK_
    "Pulkovo\21142_3_Deg>\215GK\377M_\0" // Pulkovo_1942_3_Degree_GK_CM_
    "Pulkovo\21142_3_Deg>\215GK_Z\003\215\0" // Pulkovo_1942_3_Degree_GK_Zone_
    "Pulkovo\21142_Adj_\0" // Pulkovo_1942_Adj_
    "Pulkovo\21142_Adj\21158\0" // Pulkovo_1942_Adj_1958
    "Pulkovo\21142_Adj\21158_3_Deg>\215GK_Z\003\215\0" // Pulkovo_1942_Adj_1958_3_Degree_GK_Zone_
    "Pulkovo\21142_Adj\21158_GK_Z\003\215\0" // Pulkovo_1942_Adj_1958_GK_Zone_
    "Pulkovo\21142_Adj\21158_Po\206_Z\003\215\0" // Pulkovo_1942_Adj_1958_Poland_Zone_
    "Pulkovo\21142_Adj_\03183\0" // Pulkovo_1942_Adj_1983
    "Pulkovo\21142_Adj\211\014_3_Deg>\215GK_Z\003\215\0" // Pulkovo_1942_Adj_1983_3_Degree_GK_Zone_
    "Pulkovo\21142_\13463_\0" // Pulkovo_1942_CS63_
    "Pulkovo\21142_GK_Z\003\215\0" // Pulkovo_1942_GK_Zone_
    "Pulkovo\21142_Ga\351s-Krug\007\377M_\0" // Pulkovo_1942_Gauss-Kruger_CM_
    "Pulkovo\21195\0" // Pulkovo_1995
    "Pulkovo\21195_3_Deg>\215GK_\0" // Pulkovo_1995_3_Degree_GK_
    "Pulkovo\21195_3_Deg>\215GK\377M_\0" // Pulkovo_1995_3_Degree_GK_CM_
    "Pulkovo\21195_3_Deg>\215GK_Z\003\215\0" // Pulkovo_1995_3_Degree_GK_Zone_
    "Pulkovo\21195_GK_Z\003\215\0" // Pulkovo_1995_GK_Zone_
    "Pulkovo\21195_Ga\351s-Krug\007\377M_\0" // Pulkovo_1995_Gauss-Kruger_CM_
    "Punakh\256\254\0" // Punakha_TM
    "Punjab \333F LCC\0" // Punjab NSF LCC
    "QND95\0" // QND95
    "QND95\012Q=\037 N=\320\230Gr\257\0" // QND95 / Qatar National Grid
    "QND\21195\0" // QND_1995
    "QND\21195_Q=\037_N=\320\025_Gr\257\0" // QND_1995_Qatar_National_Grid
    "QUE\306-98.gsb\0" // QUE27-98.gsb
    "Q=\037\0" // Qatar
    "Q=\037\002\214f~e\0" // Qatar - offshore
    "Q=\037\002\236\0" // Qatar - onshore
    "Q=\037\31748\0" // Qatar 1948
    "Q=\037\31748\012Q=\037 Gr\257\0" // Qatar 1948 / Qatar Grid
    "Q=\037\31774\0" // Qatar 1974
    "Q=\037\31774\012Q=\037 N=\320\230Gr\257\0" // Qatar 1974 / Qatar National Grid
    "Q=\037 N=\320\230D=um\31795\0" // Qatar National Datum 1995
    "Q=\037 Pl\005\010\134\0" // Qatar Plane CS
    "Q=\037\21148\0" // Qatar_1948
    "Q=\037\21148_Q=\037_Gr\257\0" // Qatar_1948_Qatar_Grid
    "Q=\037\21174\0" // Qatar_1974
    "Q\006noq\0" // Qornoq
    "Q\006noq \03127\0" // Qornoq 1927
    "Q\006noq\317\306\012G>\207\206\2731 ea\020\0" // Qornoq 1927 / Greenland zone 1 east
    "Q\006noq\317\306\012G>\207\206\2732 ea\020\0" // Qornoq 1927 / Greenland zone 2 east
    "Q\006noq\317\306\012G>\207\206\2732 we\020\0" // Qornoq 1927 / Greenland zone 2 west
    "Q\006noq\317\306\012G>\207\206\2733 ea\020\0" // Qornoq 1927 / Greenland zone 3 east
    "Q\006noq\317\306\012G>\207\206\2733 we\020\0" // Qornoq 1927 / Greenland zone 3 west
    "Q\006noq\317\306\012G>\207\206\2734 ea\020\0" // Qornoq 1927 / Greenland zone 4 east
    "Q\006noq\317\306\012G>\207\206\2734 we\020\0" // Qornoq 1927 / Greenland zone 4 west
    "Q\006noq\317\306\012G>\207\206\2735 we\020\0" // Qornoq 1927 / Greenland zone 5 west
    "Q\006noq\317\306\012G>\207\206\2736 we\020\0" // Qornoq 1927 / Greenland zone 6 west
    "Q\006noq\317\306\012G>\207\206\2737 we\020\0" // Qornoq 1927 / Greenland zone 7 west
    "Q\006noq\317\306\012G>\207\206\2738 ea\020\0" // Qornoq 1927 / Greenland zone 8 east
    "Q\006noq\317\306\012U\254\27322N\0" // Qornoq 1927 / UTM zone 22N
    "Q\006noq\317\306\012U\254\27323N\0" // Qornoq 1927 / UTM zone 23N
    "Q\006noq\022GR96\2011)\0" // Qornoq to GR96 (1)
    "Q\006noq_\03127\0" // Qornoq_1927
    "Q\006noq\211\306_U\254_Z\003\21522N\0" // Qornoq_1927_UTM_Zone_22N
    "Q\006noq\211\306_U\254_Z\003\21523N\0" // Qornoq_1927_UTM_Zone_23N
    "Quebec Alb\232 Proje\322\320\0" // Quebec Albers Projection
    "Quebec L\225b\007t Proje\322\320\0" // Quebec Lambert Projection
    "Quebec_Alb\232\0" // Quebec_Albers
    "Quebec_L\225b\007t\0" // Quebec_Lambert
    "Quibdo\377hoco_\03411\0" // Quibdo_Choco_2011
    "Qu\023i-Huao\0" // Quini-Huao
    "Qui\303\261i-Huao\0" // Quiñi-Huao
    "RD B\220s\242\0" // RD Bessel
    "RD/83\0" // RD/83
    "RD/\014\0123-deg>\010Ga\351s-Krug\007\2734\0" // RD/83 / 3-degree Gauss-Kruger zone 4
    "RD/\014\0123-deg>\010Ga\351s-Krug\007\2734\201E-N)\0" // RD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    "RD/\014\0123-deg>\010Ga\351s-Krug\007\2735\0" // RD/83 / 3-degree Gauss-Kruger zone 5
    "RD/\014\0123-deg>\010Ga\351s-Krug\007\2735\201E-N)\0" // RD/83 / 3-degree Gauss-Kruger zone 5 (E-N)
    "RD/\014_3_Deg>\215GK_Z\003\2154_E-N\0" // RD/83_3_Degree_GK_Zone_4_E-N
    "RD/\014_3_Deg>\215GK_Z\003\2155_E-N\0" // RD/83_3_Degree_GK_Zone_5_E-N
    "RD/\014_GK_Z\003\2154\0" // RD/83_GK_Zone_4
    "RD/\014_GK_Z\003\2155\0" // RD/83_GK_Zone_5
    "RDN\2278\0" // RDN2008
    "RDN\2278\012It\025\204\344E-N)\0" // RDN2008 / Italy zone (E-N)
    "RDN\2278\012It\025\204\344N-E)\0" // RDN2008 / Italy zone (N-E)
    "RDN\2278\012U\254\27332N\0" // RDN2008 / UTM zone 32N
    "RDN\2278\012U\254\27332N\201N-E)\0" // RDN2008 / UTM zone 32N (N-E)
    "RDN\2278\012U\254\27333N\0" // RDN2008 / UTM zone 33N
    "RDN\2278\012U\254\27333N\201N-E)\0" // RDN2008 / UTM zone 33N (N-E)
    "RDN\2278\012U\254\27334N\0" // RDN2008 / UTM zone 34N
    "RDN\2278\012U\254\27334N\201N-E)\0" // RDN2008 / UTM zone 34N (N-E)
    "RDN\2278\012Z\003\01012\201E-N)\0" // RDN2008 / Zone 12 (E-N)
    "RDN\2278\012Z\003\01012\201N-E)\0" // RDN2008 / Zone 12 (N-E)
    "RDN\2278_\0" // RDN2008_
    "RD_\357\0" // RD_New
    "RD_O\321\0" // RD_Old
    "REDGEOMIN\0" // REDGEOMIN
    "REDGEOMIN\012U\254\27312S\0" // REDGEOMIN / UTM zone 12S
    "REDGEOMIN\012U\254\27318S\0" // REDGEOMIN / UTM zone 18S
    "REDGEOMIN\012U\254\27319S\0" // REDGEOMIN / UTM zone 19S
    "REDGEOMIN_U\254_$\21512S\0" // REDGEOMIN_UTM_zone_12S
    "REDGEOMIN_U\254_$\21518S\0" // REDGEOMIN_UTM_zone_18S
    "REDGEOMIN_U\254_$\21519S\0" // REDGEOMIN_UTM_zone_19S
    "REGCAN95\0" // REGCAN95
    "REGCAN95\002LAEA\0" // REGCAN95 - LAEA
    "REGCAN95\002LCC\0" // REGCAN95 - LCC
    "REGCAN95\012LAEA E\224ope\0" // REGCAN95 / LAEA Europe
    "REGCAN95\012LCC E\224ope\0" // REGCAN95 / LCC Europe
    "REGCAN95\012U\254\27327N\0" // REGCAN95 / UTM zone 27N
    "REGCAN95\012U\254\27328N\0" // REGCAN95 / UTM zone 28N
    "REGCAN95_LAEA_E\224ope\0" // REGCAN95_LAEA_Europe
    "REGCAN95_LCC_E\224ope\0" // REGCAN95_LCC_Europe
    "REGCAN95_U\254_Z\003\21527N\0" // REGCAN95_UTM_Zone_27N
    "REGCAN95_U\254_Z\003\21528N\0" // REGCAN95_UTM_Zone_28N
    "REGVEN\012U\254\27318N\0" // REGVEN / UTM zone 18N
    "REGVEN\012U\254\27319N\0" // REGVEN / UTM zone 19N
    "REGVEN\012U\254\273\034N\0" // REGVEN / UTM zone 20N
    "REGVEN_U\254_Z\003\21518N\0" // REGVEN_UTM_Zone_18N
    "REGVEN_U\254_Z\003\21519N\0" // REGVEN_UTM_Zone_19N
    "REGVEN_U\254_Z\003\215\034N\0" // REGVEN_UTM_Zone_20N
    "REPANGOL\0" // REPANGOL
    "RGAF09\0" // RGAF09
    "RGAF09\201l=-l\003)\0" // RGAF09 (lat-lon)
    "RGAF09\201l\003-l=)\0" // RGAF09 (lon-lat)
    "RGAF09\012U\254\273\034N\0" // RGAF09 / UTM zone 20N
    "RGAF09_(l\003-l=)\0" // RGAF09_(lon-lat)
    "RGAF09_U\254_Z\003\215\034N\0" // RGAF09_UTM_Zone_20N
    "RGF93\0" // RGF93
    "RGF93\022WGS 84\2011)\0" // RGF93 to WGS 84 (1)
    "RGF93 v1\0" // RGF93 v1
    "RGF93 v1\201l=-l\003)\0" // RGF93 v1 (lat-lon)
    "RGF93 v1\201l\003-l=)\0" // RGF93 v1 (lon-lat)
    "RGF93 v1\012CC42\0" // RGF93 v1 / CC42
    "RGF93 v1\012CC43\0" // RGF93 v1 / CC43
    "RGF93 v1\012CC44\0" // RGF93 v1 / CC44
    "RGF93 v1\012CC45\0" // RGF93 v1 / CC45
    "RGF93 v1\012CC46\0" // RGF93 v1 / CC46
    "RGF93 v1\012CC47\0" // RGF93 v1 / CC47
    "RGF93 v1\012CC48\0" // RGF93 v1 / CC48
    "RGF93 v1\012CC49\0" // RGF93 v1 / CC49
    "RGF93 v1\012CC50\0" // RGF93 v1 / CC50
    "RGF93 v1\012L\225b\007t-93\0" // RGF93 v1 / Lambert-93
    "RGF93 v2\0" // RGF93 v2
    "RGF93 v2\201l=-l\003)\0" // RGF93 v2 (lat-lon)
    "RGF93 v2\201l\003-l=)\0" // RGF93 v2 (lon-lat)
    "RGF93 v2\012CC42\0" // RGF93 v2 / CC42
    "RGF93 v2\012CC43\0" // RGF93 v2 / CC43
    "RGF93 v2\012CC44\0" // RGF93 v2 / CC44
    "RGF93 v2\012CC45\0" // RGF93 v2 / CC45
    "RGF93 v2\012CC46\0" // RGF93 v2 / CC46
    "RGF93 v2\012CC47\0" // RGF93 v2 / CC47
    "RGF93 v2\012CC48\0" // RGF93 v2 / CC48
    "RGF93 v2\012CC49\0" // RGF93 v2 / CC49
    "RGF93 v2\012CC50\0" // RGF93 v2 / CC50
    "RGF93 v2\012L\225b\007t-93\0" // RGF93 v2 / Lambert-93
    "RGF93 v2\022RGF93 v2b\0" // RGF93 v2 to RGF93 v2b
    "RGF93 v2b\201l=-l\003)\0" // RGF93 v2b (lat-lon)
    "RGF93 v2b\201l\003-l=)\0" // RGF93 v2b (lon-lat)
    "RGF93 v2b\012CC42\0" // RGF93 v2b / CC42
    "RGF93 v2b\012CC43\0" // RGF93 v2b / CC43
    "RGF93 v2b\012CC44\0" // RGF93 v2b / CC44
    "RGF93 v2b\012CC45\0" // RGF93 v2b / CC45
    "RGF93 v2b\012CC46\0" // RGF93 v2b / CC46
    "RGF93 v2b\012CC47\0" // RGF93 v2b / CC47
    "RGF93 v2b\012CC48\0" // RGF93 v2b / CC48
    "RGF93 v2b\012CC49\0" // RGF93 v2b / CC49
    "RGF93 v2b\012CC50\0" // RGF93 v2b / CC50
    "RGF93 v2b\012L\225b\007t-93\0" // RGF93 v2b / Lambert-93
    "RGF93_(l\003-l=)\0" // RGF93_(lon-lat)
    "RGFG95\0" // RGFG95
    "RGFG95\201l=-l\003)\0" // RGFG95 (lat-lon)
    "RGFG95\201l\003-l=)\0" // RGFG95 (lon-lat)
    "RGFG95\012U\254\27321N\0" // RGFG95 / UTM zone 21N
    "RGFG95\012U\254\27322N\0" // RGFG95 / UTM zone 22N
    "RGFG95_(l\003-l=)\0" // RGFG95_(lon-lat)
    "RGFG\21195\0" // RGFG_1995
    "RGFG\21195_U\254_22N\0" // RGFG_1995_UTM_22N
    "RGFG\21195_U\254_Z\003\21521N\0" // RGFG_1995_UTM_Zone_21N
    "RGF_\03193\0" // RGF_1993
    "RGF\21193_\0" // RGF_1993_
    "RGM04\0" // RGM04
    "RGM04\201l=-l\003)\0" // RGM04 (lat-lon)
    "RGM04\201l\003-l=)\0" // RGM04 (lon-lat)
    "RGM04\012U\254\27338S\0" // RGM04 / UTM zone 38S
    "RGM04_(l\003-l=)\0" // RGM04_(lon-lat)
    "RGM_\2274\0" // RGM_2004
    "RGM_\2274_U\254_Z\003\21538S\0" // RGM_2004_UTM_Zone_38S
    "RGNC\0" // RGNC
    "RGNC \03191\0" // RGNC 1991
    "RGNC\31791\012L\225b\007t \357\327\025\275\003ia\0" // RGNC 1991 / Lambert New Caledonia
    "RGNC\03191_IGN72Gr\033eT\007>.gsb\0" // RGNC1991_IGN72GrandeTerre.gsb
    "RGNC\03191_NEA74N\026mea.gsb\0" // RGNC1991_NEA74Noumea.gsb
    "RGNC91\0" // RGNC91
    "RGNC91-93\0" // RGNC91-93
    "RGNC91-93\012L\225b\007t \357\327\025\275\003ia\0" // RGNC91-93 / Lambert New Caledonia
    "RGNC91-93\012U\254\27357S\0" // RGNC91-93 / UTM zone 57S
    "RGNC91-93\012U\254\27358S\0" // RGNC91-93 / UTM zone 58S
    "RGNC91-93\012U\254\27359S\0" // RGNC91-93 / UTM zone 59S
    "RGNC_\03191\0" // RGNC_1991
    "RGNC\21191-93\0" // RGNC_1991-93
    "RGNC\21191-93_U\254_Z\003\215\0" // RGNC_1991-93_UTM_Zone_
    "RGNC\21191_93_L\225b\007t_\357\377\025\275\003ia\0" // RGNC_1991_93_Lambert_New_Caledonia
    "RGNC\21191_L\225b\007t_\357\377\025\275\003ia\0" // RGNC_1991_Lambert_New_Caledonia
    "RGPF\0" // RGPF
    "RGPF\012U\254\2735S\0" // RGPF / UTM zone 5S
    "RGPF\012U\254\2736S\0" // RGPF / UTM zone 6S
    "RGPF\012U\254\2737S\0" // RGPF / UTM zone 7S
    "RGPF\012U\254\2738S\0" // RGPF / UTM zone 8S
    "RGPF_U\254_Z\003\2155S\0" // RGPF_UTM_Zone_5S
    "RGPF_U\254_Z\003\2156S\0" // RGPF_UTM_Zone_6S
    "RGPF_U\254_Z\003\2157S\0" // RGPF_UTM_Zone_7S
    "RGPF_U\254_Z\003\2158S\0" // RGPF_UTM_Zone_8S
    "RGR92\0" // RGR92
    "RGR92\201l=-l\003)\0" // RGR92 (lat-lon)
    "RGR92\201l\003-l=)\0" // RGR92 (lon-lat)
    "RGR92\012U\254\27339S\0" // RGR92 / UTM zone 39S
    "RGR92\012U\254\27340S\0" // RGR92 / UTM zone 40S
    "RGR92\022P\245\231d\220 Nieg\220\2011)\0" // RGR92 to Piton des Nieges (1)
    "RGR92_(l\003-l=)\0" // RGR92_(lon-lat)
    "RGRDC \2275\0" // RGRDC 2005
    "RGRDC \2275\012C\003g\013\254\27312\0" // RGRDC 2005 / Congo TM zone 12
    "RGRDC \2275\012C\003g\013\254\27314\0" // RGRDC 2005 / Congo TM zone 14
    "RGRDC \2275\012C\003g\013\254\27316\0" // RGRDC 2005 / Congo TM zone 16
    "RGRDC \2275\012C\003g\013\254\27318\0" // RGRDC 2005 / Congo TM zone 18
    "RGRDC \2275\012C\003g\013\254\27320\0" // RGRDC 2005 / Congo TM zone 20
    "RGRDC \2275\012C\003g\013\254\27322\0" // RGRDC 2005 / Congo TM zone 22
    "RGRDC \2275\012C\003g\013\254\27324\0" // RGRDC 2005 / Congo TM zone 24
    "RGRDC \2275\012C\003g\013\254\27326\0" // RGRDC 2005 / Congo TM zone 26
    "RGRDC \2275\012C\003g\013\254\27328\0" // RGRDC 2005 / Congo TM zone 28
    "RGRDC \2275\012C\003g\013\254\27330\0" // RGRDC 2005 / Congo TM zone 30
    "RGRDC \2275\012U\254\27333S\0" // RGRDC 2005 / UTM zone 33S
    "RGRDC \2275\012U\254\27334S\0" // RGRDC 2005 / UTM zone 34S
    "RGRDC \2275\012U\254\27335S\0" // RGRDC 2005 / UTM zone 35S
    "RGRDC_\2275\0" // RGRDC_2005
    "RGRDC_\2275\377\003go_\254_Z\003\215\0" // RGRDC_2005_Congo_TM_Zone_
    "RGRDC_\2275_U\254_Z\003\21533S\0" // RGRDC_2005_UTM_Zone_33S
    "RGRDC_\2275_U\254_Z\003\21534S\0" // RGRDC_2005_UTM_Zone_34S
    "RGRDC_\2275_U\254_Z\003\21535S\0" // RGRDC_2005_UTM_Zone_35S
    "RGR_\03192\0" // RGR_1992
    "RGR\21192_U\254_39S\0" // RGR_1992_UTM_39S
    "RGR\21192_U\254_40S\0" // RGR_1992_UTM_40S
    "RG\266M06\0" // RGSPM06
    "RG\266M06\201l=-l\003)\0" // RGSPM06 (lat-lon)
    "RG\266M06\201l\003-l=)\0" // RGSPM06 (lon-lat)
    "RG\266M06\012U\254\27321N\0" // RGSPM06 / UTM zone 21N
    "RG\266M06_(l\003-l=)\0" // RGSPM06_(lon-lat)
    "RG\266M_\2276\0" // RGSPM_2006
    "RG\266M_\2276_U\254_Z\003\21521N\0" // RGSPM_2006_UTM_Zone_21N
    "RGTAAF07\0" // RGTAAF07
    "RGTAAF07\201l=-l\003)\0" // RGTAAF07 (lat-lon)
    "RGTAAF07\201l\003-l=)\0" // RGTAAF07 (lon-lat)
    "RGTAAF07\012T\007r\010Ad\242i\010P\246\037|t\007eog\350\237#\0" // RGTAAF07 / Terre Adelie Polar Stereographic
    "RGTAAF07\012U\254\27337S\0" // RGTAAF07 / UTM zone 37S
    "RGTAAF07\012U\254\27338S\0" // RGTAAF07 / UTM zone 38S
    "RGTAAF07\012U\254\27339S\0" // RGTAAF07 / UTM zone 39S
    "RGTAAF07\012U\254\27340S\0" // RGTAAF07 / UTM zone 40S
    "RGTAAF07\012U\254\27341S\0" // RGTAAF07 / UTM zone 41S
    "RGTAAF07\012U\254\27342S\0" // RGTAAF07 / UTM zone 42S
    "RGTAAF07\012U\254\27343S\0" // RGTAAF07 / UTM zone 43S
    "RGTAAF07\012U\254\27344S\0" // RGTAAF07 / UTM zone 44S
    "RGTAAF07\012U\254\27353S\0" // RGTAAF07 / UTM zone 53S
    "RGTAAF07\012U\254\27354S\0" // RGTAAF07 / UTM zone 54S
    "RGTAAF07_(l\003-l=)\0" // RGTAAF07_(lon-lat)
    "RGTAAF07_T\007>_Ad\242i\215P\246\037_St\007eog\350\237#\0" // RGTAAF07_Terre_Adelie_Polar_Stereographic
    "RGTAAF07_U\254_Z\003\21553S\0" // RGTAAF07_UTM_Zone_53S
    "RGTAAF07_U\254_Z\003\21554S\0" // RGTAAF07_UTM_Zone_54S
    "RGTAAF07_U\254_$\215\0" // RGTAAF07_UTM_zone_
    "RGWF96\0" // RGWF96
    "RGWF96\201l=-l\003)\0" // RGWF96 (lat-lon)
    "RGWF96\201l\003-l=)\0" // RGWF96 (lon-lat)
    "RGWF96\012U\254\2731S\0" // RGWF96 / UTM zone 1S
    "RGWF96_(l\003-l=)\0" // RGWF96_(lon-lat)
    "RGWF96_U\254_Z\003\2151S\0" // RGWF96_UTM_Zone_1S
    "ROU-\222MS\0" // ROU-USAMS
    "RRAF \03191\0" // RRAF 1991
    "RRAF\31791\012U\254\273\034N\0" // RRAF 1991 / UTM zone 20N
    "RRAF_\03191\0" // RRAF_1991
    "RRAF\21191_U\254_\034N\0" // RRAF_1991_UTM_20N
    "{AO13\0" // RSAO13
    "{AO13\012\254 12|E\0" // RSAO13 / TM 12 SE
    "{AO13\012U\254\27332S\0" // RSAO13 / UTM zone 32S
    "{AO13\012U\254\27333S\0" // RSAO13 / UTM zone 33S
    "{AO13\012U\254\27334S\0" // RSAO13 / UTM zone 34S
    "{AO13_\254_12_SE\0" // RSAO13_TM_12_SE
    "{AO13_U\254_Z\003\21532S\0" // RSAO13_UTM_Zone_32S
    "{AO13_U\254_Z\003\21533S\0" // RSAO13_UTM_Zone_33S
    "{AO13_U\254_Z\003\21534S\0" // RSAO13_UTM_Zone_34S
    "{O_B\006neo\377ha\023s\0" // RSO_Borneo_Chains
    "{O_B\006neo\372\0" // RSO_Borneo_Feet
    "{O_B\006neo_M\313\0" // RSO_Borneo_Meters
    "{O_M\025ay\256Cha\023s\0" // RSO_Malaya_Chains
    "{O_{O_M\025aya\0" // RSO_RSO_Malaya
    "{O_{O_M\025ay\256ChSe\037s\03122trunc\0" // RSO_RSO_Malaya_ChSears1922trunc
    "{O_S\037awak_LSD_(m)\0" // RSO_Sarawak_LSD_(m)
    "{RGD\2270\0" // RSRGD2000
    "{RGD\2270\012BCLC\2270\0" // RSRGD2000 / BCLC2000
    "{RGD\2270\012DGLC\2270\0" // RSRGD2000 / DGLC2000
    "{RGD\2270\012MSLC\2270\0" // RSRGD2000 / MSLC2000
    "{RGD\2270\012PCLC\2270\0" // RSRGD2000 / PCLC2000
    "{RGD\2270\012{\247\2270\0" // RSRGD2000 / RSPS2000
    "{RGD\2270_BCLC\2270\0" // RSRGD2000_BCLC2000
    "{RGD\2270_DGLC\2270\0" // RSRGD2000_DGLC2000
    "{RGD\2270_MSLC\2270\0" // RSRGD2000_MSLC2000
    "{RGD\2270_PCLC\2270\0" // RSRGD2000_PCLC2000
    "{RGD\2270_{\247\2270\0" // RSRGD2000_RSPS2000
    "RT38\0" // RT38
    "RT38\201Stockh\246m)\0" // RT38 (Stockholm)
    "RT38\201Stockh\246m)\022RT38\201G>\207w#h)\0" // RT38 (Stockholm) to RT38 (Greenwich)
    "RT38 0 g\003\0" // RT38 0 gon
    "RT38 0 g\2310:-15\0" // RT38 0 gon 0:-15
    "RT38 2\235 g\231O\0" // RT38 2.5 gon O
    "RT38 2\235 g\231O 0:-15\0" // RT38 2.5 gon O 0:-15
    "RT38 2\235 g\231V\0" // RT38 2.5 gon V
    "RT38 2\235 g\231W\0" // RT38 2.5 gon W
    "RT38 5 g\231O\0" // RT38 5 gon O
    "RT38 5 g\231O 0:-15\0" // RT38 5 gon O 0:-15
    "RT38 5 g\231V\0" // RT38 5 gon V
    "RT38 5 g\231V 0:-15\0" // RT38 5 gon V 0:-15
    "RT38 7\235 g\231V\0" // RT38 7.5 gon V
    "RT38_0_g\003\0" // RT38_0_gon
    "RT38_25_g\003_O\0" // RT38_25_gon_O
    "RT38_25_g\003_V\0" // RT38_25_gon_V
    "RT38_5_g\003_O\0" // RT38_5_gon_O
    "RT38_5_g\003_V\0" // RT38_5_gon_V
    "RT38_75_g\003_V\0" // RT38_75_gon_V
    "RT38_Stockh\246m\0" // RT38_Stockholm
    "RT90\0" // RT90
    "RT90 0 g\003\0" // RT90 0 gon
    "RT90 0 g\2310:-15\0" // RT90 0 gon 0:-15
    "RT90 2\235 g\231O\0" // RT90 2.5 gon O
    "RT90 2\235 g\231O 0:-15\0" // RT90 2.5 gon O 0:-15
    "RT90 2\235 g\231V\0" // RT90 2.5 gon V
    "RT90 2\235 g\231V 0:-15\0" // RT90 2.5 gon V 0:-15
    "RT90 2\235 g\231W\0" // RT90 2.5 gon W
    "RT90 5 g\231O\0" // RT90 5 gon O
    "RT90 5 g\231O 0:-15\0" // RT90 5 gon O 0:-15
    "RT90 5 g\231V\0" // RT90 5 gon V
    "RT90 5 g\231V 0:-15\0" // RT90 5 gon V 0:-15
    "RT90 7\235 g\231V\0" // RT90 7.5 gon V
    "RT90 7\235 g\231V 0:-15\0" // RT90 7.5 gon V 0:-15
    "RT90\2730 g\231\212ul=\320\0" // RT90 zone 0 gon emulation
    "RT90\2732\235 g\231O \212ul=\320\0" // RT90 zone 2.5 gon O emulation
    "RT90\2732\235 g\231V \212ul=\320\0" // RT90 zone 2.5 gon V emulation
    "RT90\2735 g\231O \212ul=\320\0" // RT90 zone 5 gon O emulation
    "RT90\2735 g\231V \212ul=\320\0" // RT90 zone 5 gon V emulation
    "RT90\2737\235 g\231V \212ul=\320\0" // RT90 zone 7.5 gon V emulation
    "RT90_0_g\003\0" // RT90_0_gon
    "RT90_0_g\003_\212ul=\320\0" // RT90_0_gon_emulation
    "RT90_2\235_g\003_O_\212ul=\320\0" // RT90_2.5_gon_O_emulation
    "RT90_2\235_g\003_V_\212ul=\320\0" // RT90_2.5_gon_V_emulation
    "RT90_25_g\003_O\0" // RT90_25_gon_O
    "RT90_25_g\003_V\0" // RT90_25_gon_V
    "RT90_25_g\003_W\0" // RT90_25_gon_W
    "RT90_5_g\003_O\0" // RT90_5_gon_O
    "RT90_5_g\003_O_\212ul=\320\0" // RT90_5_gon_O_emulation
    "RT90_5_g\003_V\0" // RT90_5_gon_V
    "RT90_5_g\003_V_\212ul=\320\0" // RT90_5_gon_V_emulation
    "RT90_7\235_g\003_V_\212ul=\320\0" // RT90_7.5_gon_V_emulation
    "RT90_75_g\003_V\0" // RT90_75_gon_V
    "RT_\03190\0" // RT_1990
    "Raja\020h\005 \333F LCC\0" // Rajasthan NSF LCC
    "R\033\246\237-Wayn\215(ft\203)\0" // Randolph-Wayne_(ftUS)
    "R\033\246\237-Wayn\215(m)\0" // Randolph-Wayne_(m)
    "Ra\026l \335 Tr\005sv\232\010M\007c=\006 \2270\0" // Raoul Island Transverse Mercator 2000
    "Ra\026l_\335_\254_\2270\0" // Raoul_Island_TM_2000
    "R}s\226\340\005\0" // Rassadiran
    "R}s\226\340\005\012Nakhl \010Taqi\0" // Rassadiran / Nakhl e Taqi
    "R}s\226\340\005_Nakhl_\215Taqi\0" // Rassadiran_Nakhl_e_Taqi
    "Rau\207b\007g D=um/83\0" // Rauenberg Datum/83
    "Rau\207b\007g_\03183\0" // Rauenberg_1983
    "Re\322ifi\275|kew Or\024\343\006\237# B\006ne\013Gr\257\201cha\023s)\0" // Rectified Skew Orthomorphic Borneo Grid (chains)
    "Re\322ifi\275|kew Or\024\343\006\237# B\006ne\013Gr\257\201f\234)\0" // Rectified Skew Orthomorphic Borneo Grid (feet)
    "Re\322ifi\275|kew Or\024\343\006\237# B\006ne\013Gr\257\201m\036>s)\0" // Rectified Skew Orthomorphic Borneo Grid (metres)
    "Re\322ifi\275|kew Or\024\343\006\237# M\025ay\027Gr\257\0" // Rectified Skew Orthomorphic Malaya Grid
    "Re\322ifi\275|kew Or\024\343\006\237# M\025ay\027Gr\257\201cha\023s)\0" // Rectified Skew Orthomorphic Malaya Grid (chains)
    "Re\322ifi\275|kew Or\024\343\006\237# M\025ay\027Gr\257\201m\036>s)\0" // Rectified Skew Orthomorphic Malaya Grid (metres)
    "Re\322ifi\275|kew Or\024\343\006\237#|\037awak LSD\201m\036>s)\0" // Rectified Skew Orthomorphic Sarawak LSD (metres)
    "R\275 Geod\220#\027Nac\320\230\0" // Red Geodesica Nacional 
    "R\275 Geod\220#\027P\037\027M\023\007\315\207 Ch\341e\0" // Red Geodesica Para Mineria en Chile
    "R\275 Geod\220#\027V\207ez\246\005a\0" // Red Geodesica Venezolana
    "R\275 Geod\220#\027d\010C\005\037i}\31795\0" // Red Geodesica de Canarias 1995
    "R\275 Geod\303\251s#\027B\303\241s#\027Nac\320\230d\010El|\025v\226\006\0" // Red Geodésica Básica Nacional de El Salvador
    "R\275_Geod\220#\256P\037\256M\023\007i\256\207_Ch\341e\0" // Red_Geodesica_Para_Mineria_en_Chile
    "R\275_Geod\220#\256d\215C\005\037i}\21195\0" // Red_Geodesica_de_Canarias_1995
    "R\275\010P\007m\005e\035\220 d\010E\020ac\320\220 G\333S d\010Ang\246a\0" // Rede Permanentes de Estaciones GNSS de Angola
    "Ref\007\207c\010Sy\020\212 d\010Ang\246\027\03413\0" // Reference System de Angola 2013
    "Ref\007\207c\215Sy\020\212_d\215Ang\246\256\03413\0" // Reference_System_de_Angola_2013
    "R\220eau Geod\220iqu\010Fr\005ca\077 \03193\0" // Reseau Geodesique Francais 1993
    "R\220eau Geod\220iqu\010Fr\005ca\077\31793 v1\0" // Reseau Geodesique Francais 1993 v1
    "R\220eau Geod\220iqu\010Fr\005ca\077\31793 v2\0" // Reseau Geodesique Francais 1993 v2
    "R\220eau Geod\220iqu\010Fr\005ca\077\31793 v2b\0" // Reseau Geodesique Francais 1993 v2b
    "R\220eau Geod\220iqu\010Fr\005ca\077 Guy\005\010\03195\0" // Reseau Geodesique Francais Guyane 1995
    "R\220eau Geod\220iqu\010N\026v\242l\010C\025\275\003i\010\03191\0" // Reseau Geodesique Nouvelle Caledonie 1991
    "R\220eau Geod\220iqu\010d\010May\337t\010\2274\0" // Reseau Geodesique de Mayotte 2004
    "R\220eau Geod\220iqu\010d\010N\026v\242l\010C\025\275\003i\01091-93\0" // Reseau Geodesique de Nouvelle Caledonie 91-93
    "R\220eau Geod\220iqu\010d\010Sa\023t Pi\007r\010\036 Miqu\242\231\2276\0" // Reseau Geodesique de Saint Pierre et Miquelon 2006
    "R\220eau Geod\220iqu\010d\010W\025l\077 \036 Futun\027\03196\0" // Reseau Geodesique de Wallis et Futuna 1996
    "R\220eau Geod\220iqu\010d\010l\027P\246yn\220i\010Fr\005ca\077e\0" // Reseau Geodesique de la Polynesie Francaise
    "R\220eau Geod\220iqu\010d\010l\027RDC \2275\0" // Reseau Geodesique de la RDC 2005
    "R\220eau Geod\220iqu\010d\010l\027Reuni\231\03192\0" // Reseau Geodesique de la Reunion 1992
    "R\220eau Geod\220iqu\010d\220 A\035\341l\220 Fr\005ca\077\220 \2279\0" // Reseau Geodesique des Antilles Francaises 2009
    "R\220eau Geod\220iqu\010d\220 TAAF \2277\0" // Reseau Geodesique des TAAF 2007
    "R\220eau Geod\220iqu\010d\220 T\007>s Au\375\025\220 \036 A\035\037\322iqu\220 Fr\005ca\077\220 \2277\0" // Reseau Geodesique des Terres Australes et Antarctiques Francaises 2007
    "R\220eau N=\320\230B\242g\010\03150\0" // Reseau National Belge 1950
    "R\220eau N=\320\230B\242g\010\03150\201Br\351s\242s)\0" // Reseau National Belge 1950 (Brussels)
    "R\220eau N=\320\230B\242g\010\03172\0" // Reseau National Belge 1972
    "R\220eau d\010Ref\007\207c\010d\220 A\035\341l\220 Fr\005ca\077\220 \03191\0" // Reseau de Reference des Antilles Francaises 1991
    "R\220eau_Geod\220iqu\215d\215W\025l\077_\036`utun\256\03196\0" // Reseau_Geodesique_de_Wallis_et_Futuna_1996
    "R\220eau_Geod\220iqu\215d\220_A\035\341l\220`r\005ca\077\220_\2279\0" // Reseau_Geodesique_des_Antilles_Francaises_2009
    "R\036\010D\023\225#\027Naz\320\025\010\2278\0" // Rete Dinamica Nazionale 2008
    "R\036\215D\023\225#\256Naz\320\025\215\2278\0" // Rete_Dinamica_Nazionale_2008
    "Reun\320\002e\314\24354\015\0" // Reunion - east of 54°E
    "Reun\320\002\236\0" // Reunion - onshore
    "Reun\320\002w\267\24354\015\0" // Reunion - west of 54°E
    "Reuni\231\03147\0" // Reunion 1947
    "Reuni\231\03147\012\254 Reun\320\0" // Reunion 1947 / TM Reunion
    "Reun\320\21147\0" // Reunion_1947
    "Reun\320\21147_\254_Reun\320\0" // Reunion_1947_TM_Reunion
    "Reykjavik\31700\0" // Reykjavik 1900
    "Reykjavik\31700\012L\225b\007t\31700\0" // Reykjavik 1900 / Lambert 1900
    "Reykjavik\21100\0" // Reykjavik_1900
    "Rhod\010\335 \13427\0" // Rhode Island CS27
    "Rhod\215\335\2723800\0" // Rhode_Island_FIPS_3800
    "Rhod\215\335\2723800\372\0" // Rhode_Island_FIPS_3800_Feet
    "Rhod\215\335\2723800`t_\203\0" // Rhode_Island_FIPS_3800_Ft_US
    "R#h\206\377\026\035y\372\0" // Richland_County_Feet
    "R#h\206\377\026\035y_M\313\0" // Richland_County_Meters
    "R#h\206\372\0" // Richland_Feet
    "R#h\206_M\313\0" // Richland_Meters
    "Rik\036s ko\006d\023=sy\020\212\31738\0" // Rikets koordinatsystem 1938
    "Rik\036s ko\006d\023=sy\020\212 \03190\0" // Rikets koordinatsystem 1990
    "R\341ey-Lakeview_\021\211\014_\240_\254`t_I\035l\0" // Riley-Lakeview_NAD_1983_2011_TM_Ft_Intl
    "R\341ey-Lakeview_\021\211\014_\240_\254_M\313\0" // Riley-Lakeview_NAD_1983_2011_TM_Meters
    "Riohach\256L\256Guaj\340\256\2276\0" // Riohacha_La_Guajira_2006
    "Ripley_(ft\203)\0" // Ripley_(ftUS)
    "Ripley_(m)\0" // Ripley_(m)
    "Rock\377\026\035y\372\0" // Rock_County_Feet
    "Rock\377\026\035y_M\313\0" // Rock_County_Meters
    "Rock\372\0" // Rock_Feet
    "Rock_M\313\0" // Rock_Meters
    "R\343a40\0" // Roma40
    "R\343\005ia\0" // Romania
    "R\343\005\213\214f~e\0" // Romania - offshore
    "R\343\005\213\236\0" // Romania - onshore
    "R\343\010\03140\0" // Rome 1940
    "R\343\010\03140\201R\343e)\0" // Rome 1940 (Rome)
    "R\343\215It\025y_1\0" // Rome_Italy_1
    "R\343\215It\025y_2\0" // Rome_Italy_2
    "Ross|e\027P\246\037|t\007eog\350\237# \2270\0" // Ross Sea Polar Stereographic 2000
    "Ross|e\027Regi\231Geod\036# D=um \2270\0" // Ross Sea Region Geodetic Datum 2000
    "Ross_Se\256Reg\320_Geod\036#_D=um_\2270\0" // Ross_Sea_Region_Geodetic_Datum_2000
    "R\351k\377\026\035y\372\0" // Rusk_County_Feet
    "R\351k\377\026\035y_M\313\0" // Rusk_County_Meters
    "R\351k\372\0" // Rusk_Feet
    "R\351k_M\313\0" // Rusk_Meters
    "R\351s\213\3120\235\200\3123\235\015\356\0" // Russia - 100.5°E to 103.5°E onshore
    "R\351s\213\3122\200\3128\015\356\0" // Russia - 102°E to 108°E onshore
    "R\351s\213\3123\235\200\3126\235\015\356\0" // Russia - 103.5°E to 106.5°E onshore
    "R\351s\213\3126\235\200\3129\235\015\356\0" // Russia - 106.5°E to 109.5°E onshore
    "R\351s\213\3128\200\2024\015\356\0" // Russia - 108°E to 114°E onshore
    "R\351s\213\3129\235\200\2022\235\015\356\0" // Russia - 109.5°E to 112.5°E onshore
    "R\351s\213\2022\235\200\2025\235\015\356\0" // Russia - 112.5°E to 115.5°E onshore
    "R\351s\213\2024\354\034\015\356\0" // Russia - 114°E to 120°E onshore
    "R\351s\213\2025\235\200\2028\235\015\356\0" // Russia - 115.5°E to 118.5°E onshore
    "R\351s\213\2028\235\35421\235\015\356\0" // Russia - 118.5°E to 121.5°E onshore
    "R\351s\2131\034\35426\015\356\0" // Russia - 120°E to 126°E onshore
    "R\351s\213121\235\35424\235\015\356\0" // Russia - 121.5°E to 124.5°E onshore
    "R\351s\213124\235\354\306\235\015\356\0" // Russia - 124.5°E to 127.5°E onshore
    "R\351s\213126\35432\015\356\0" // Russia - 126°E to 132°E onshore
    "R\351s\2131\306\235\35430\235\015\356\0" // Russia - 127.5°E to 130.5°E onshore
    "R\351s\213130\235\35433\235\015\356\0" // Russia - 130.5°E to 133.5°E onshore
    "R\351s\213132\35438\015\356\0" // Russia - 132°E to 138°E onshore
    "R\351s\213133\235\35436\235\015\356\0" // Russia - 133.5°E to 136.5°E onshore
    "R\351s\213136\235\35439\235\015\356\0" // Russia - 136.5°E to 139.5°E onshore
    "R\351s\213138\35444\015\356\0" // Russia - 138°E to 144°E onshore
    "R\351s\213139\235\35442\235\015\356\0" // Russia - 139.5°E to 142.5°E onshore
    "R\351s\213142\235\35445\235\015\356\0" // Russia - 142.5°E to 145.5°E onshore
    "R\351s\213144\35450\015\356\0" // Russia - 144°E to 150°E onshore
    "R\351s\213145\235\35448\235\015\356\0" // Russia - 145.5°E to 148.5°E onshore
    "R\351s\213148\235\35451\235\015\356\0" // Russia - 148.5°E to 151.5°E onshore
    "R\351s\213150\35456\015\356\0" // Russia - 150°E to 156°E onshore
    "R\351s\213151\235\35454\235\015\356\0" // Russia - 151.5°E to 154.5°E onshore
    "R\351s\213154\235\35457\235\015\356\0" // Russia - 154.5°E to 157.5°E onshore
    "R\351s\213156\35462\015\356\0" // Russia - 156°E to 162°E onshore
    "R\351s\213157\235\35460\235\015\356\0" // Russia - 157.5°E to 160.5°E onshore
    "R\351s\213160\235\35463\235\015\356\0" // Russia - 160.5°E to 163.5°E onshore
    "R\351s\213162\35468\015\356\0" // Russia - 162°E to 168°E onshore
    "R\351s\213163\235\35466\235\015\356\0" // Russia - 163.5°E to 166.5°E onshore
    "R\351s\213166\235\35469\235\015\356\0" // Russia - 166.5°E to 169.5°E onshore
    "R\351s\213168\35474\015\356\0" // Russia - 168°E to 174°E onshore
    "R\351s\213169\235\35472\235\015\356\0" // Russia - 169.5°E to 172.5°E onshore
    "R\351s\213172\235\35475\235\015\356\0" // Russia - 172.5°E to 175.5°E onshore
    "R\351s\213172\235\221169\235!\356\0" // Russia - 172.5°W to 169.5°W onshore
    "R\351s\213174\35480\015\356\0" // Russia - 174°E to 180°E onshore
    "R\351s\213175\235\35478\235\015\356\0" // Russia - 175.5°E to 178.5°E onshore
    "R\351s\213175\235\221172\235!\356\0" // Russia - 175.5°W to 172.5°W onshore
    "R\351s\213178\235\35478\235!\356\0" // Russia - 178.5°E to 178.5°W onshore
    "R\351s\213178\235\221175\235!\356\0" // Russia - 178.5°W to 175.5°W onshore
    "R\351s\213180\004\022174!\356\0" // Russia - 180° to 174°W onshore
    "R\351s\213\031\235\20022\235\015\356\0" // Russia - 19.5°E to 22.5°E onshore
    "R\351s\21322\235\20025\235\015\356\0" // Russia - 22.5°E to 25.5°E onshore
    "R\351s\21324\20030\015\356\0" // Russia - 24°E to 30°E onshore
    "R\351s\21325\235\20028\235\015\356\0" // Russia - 25.5°E to 28.5°E onshore
    "R\351s\21328\235\20031\235\015\356\0" // Russia - 28.5°E to 31.5°E onshore
    "R\351s\21330\20036\015\356\0" // Russia - 30°E to 36°E onshore
    "R\351s\21331\235\20034\235\015\356\0" // Russia - 31.5°E to 34.5°E onshore
    "R\351s\21334\235\20037\235\015\356\0" // Russia - 34.5°E to 37.5°E onshore
    "R\351s\21336\20042\015\356\0" // Russia - 36°E to 42°E onshore
    "R\351s\21337\235\20040\235\015\356\0" // Russia - 37.5°E to 40.5°E onshore
    "R\351s\21340\235\20043\235\015\356\0" // Russia - 40.5°E to 43.5°E onshore
    "R\351s\21342\20048\015\356\0" // Russia - 42°E to 48°E onshore
    "R\351s\21343\235\20046\235\015\356\0" // Russia - 43.5°E to 46.5°E onshore
    "R\351s\21346\235\20049\235\015\356\0" // Russia - 46.5°E to 49.5°E onshore
    "R\351s\21348\20054\015\356\0" // Russia - 48°E to 54°E onshore
    "R\351s\21349\235\20052\235\015\356\0" // Russia - 49.5°E to 52.5°E onshore
    "R\351s\21352\235\20055\235\015\356\0" // Russia - 52.5°E to 55.5°E onshore
    "R\351s\21354\20060\015\356\0" // Russia - 54°E to 60°E onshore
    "R\351s\21355\235\20058\235\015\356\0" // Russia - 55.5°E to 58.5°E onshore
    "R\351s\21358\235\20061\235\015\356\0" // Russia - 58.5°E to 61.5°E onshore
    "R\351s\21360\20066\015\356\0" // Russia - 60°E to 66°E onshore
    "R\351s\21361\235\20064\235\015\356\0" // Russia - 61.5°E to 64.5°E onshore
    "R\351s\21364\235\20067\235\015\356\0" // Russia - 64.5°E to 67.5°E onshore
    "R\351s\21366\20072\015\356\0" // Russia - 66°E to 72°E onshore
    "R\351s\21367\235\20070\235\015\356\0" // Russia - 67.5°E to 70.5°E onshore
    "R\351s\21370\235\20073\235\015\356\0" // Russia - 70.5°E to 73.5°E onshore
    "R\351s\21372\20078\015\356\0" // Russia - 72°E to 78°E onshore
    "R\351s\21373\235\20076\235\015\356\0" // Russia - 73.5°E to 76.5°E onshore
    "R\351s\21376\235\20079\235\015\356\0" // Russia - 76.5°E to 79.5°E onshore
    "R\351s\21378\20084\015\356\0" // Russia - 78°E to 84°E onshore
    "R\351s\21379\235\20082\235\015\356\0" // Russia - 79.5°E to 82.5°E onshore
    "R\351s\21382\235\20085\235\015\356\0" // Russia - 82.5°E to 85.5°E onshore
    "R\351s\21384\20090\015\356\0" // Russia - 84°E to 90°E onshore
    "R\351s\21385\235\20088\235\015\356\0" // Russia - 85.5°E to 88.5°E onshore
    "R\351s\21388\235\20091\235\015\356\0" // Russia - 88.5°E to 91.5°E onshore
    "R\351s\21390\20096\015\356\0" // Russia - 90°E to 96°E onshore
    "R\351s\21391\235\20094\235\015\356\0" // Russia - 91.5°E to 94.5°E onshore
    "R\351s\21394\235\20097\235\015\356\0" // Russia - 94.5°E to 97.5°E onshore
    "R\351s\21396\200\3122\015\356\0" // Russia - 96°E to 102°E onshore
    "R\351s\21397\235\200\3120\235\015\356\0" // Russia - 97.5°E to 100.5°E onshore
    "R\351s\213e\314\243169\235!\356\0" // Russia - east of 169.5°W onshore
    "R\351s\213e\314\243174!\356\0" // Russia - east of 174°W onshore
    "R\351s\213\236\0" // Russia - onshore
    "R\351s\213w\267\243\031\235\015\0" // Russia - west of 19.5°E
    "R\351s\213w\267\24324\015\356\0" // Russia - west of 24°E onshore
    "S-42\273\0" // S-42 zone 
    "S-95\0" // S-95
    "S-95\273\0" // S-95 zone 
    "S-JTSK\0" // S-JTSK
    "S-JTSK\201F\007ro)\0" // S-JTSK (Ferro)
    "S-JTSK\201F\007ro*Krovak\0" // S-JTSK (Ferro) / Krovak
    "S-JTSK\201F\007ro*Krovak E\314\373\0" // S-JTSK (Ferro) / Krovak East North
    "S-JTSK\012Krovak\0" // S-JTSK / Krovak
    "S-JTSK\012Krovak E\314\373\0" // S-JTSK / Krovak East North
    "S-JTSK [JTSK03]\0" // S-JTSK [JTSK03]
    "S-JTSK [JTSK03]\012Krovak\0" // S-JTSK [JTSK03] / Krovak
    "S-JTSK [JTSK03]\012Krovak E\314\373\0" // S-JTSK [JTSK03] / Krovak East North
    "S-JTSK/05\0" // S-JTSK/05
    "S-JTSK/05\201F\007ro)\0" // S-JTSK/05 (Ferro)
    "S-JTSK/05\201F\007ro*Modifi\275 Krovak\0" // S-JTSK/05 (Ferro) / Modified Krovak
    "S-JTSK/05\201F\007ro*Modifi\275 Krovak E\314\373\0" // S-JTSK/05 (Ferro) / Modified Krovak East North
    "S-JTSK/05\012Modifi\275 Krovak\0" // S-JTSK/05 / Modified Krovak
    "S-JTSK/05\012Modifi\275 Krovak E\314\373\0" // S-JTSK/05 / Modified Krovak East North
    "S-JTSK_\0" // S-JTSK_
    "S\01669\012B\350z\341 P\246yc\003#\0" // SAD69 / Brazil Polyconic
    "S\01669\012U\254\27317N\0" // SAD69 / UTM zone 17N
    "S\01669\012U\254\27317S\0" // SAD69 / UTM zone 17S
    "S\01669\012U\254\27318N\0" // SAD69 / UTM zone 18N
    "S\01669\012U\254\27318S\0" // SAD69 / UTM zone 18S
    "S\01669\012U\254\27319N\0" // SAD69 / UTM zone 19N
    "S\01669\012U\254\27319S\0" // SAD69 / UTM zone 19S
    "S\01669\012U\254\273\034N\0" // SAD69 / UTM zone 20N
    "S\01669\012U\254\273\034S\0" // SAD69 / UTM zone 20S
    "S\01669\012U\254\27321N\0" // SAD69 / UTM zone 21N
    "S\01669\012U\254\27321S\0" // SAD69 / UTM zone 21S
    "S\01669\012U\254\27322N\0" // SAD69 / UTM zone 22N
    "S\01669\012U\254\27322S\0" // SAD69 / UTM zone 22S
    "S\01669\012U\254\27323S\0" // SAD69 / UTM zone 23S
    "S\01669\012U\254\27324S\0" // SAD69 / UTM zone 24S
    "S\01669\012U\254\27325S\0" // SAD69 / UTM zone 25S
    "S\01669\022SIRGAS-Ch\341\010(1)\0" // SAD69 to SIRGAS-Chile (1)
    "S\01669\022SIRGAS-Ch\341\010(3)\0" // SAD69 to SIRGAS-Chile (3)
    "S\01669(96)\0" // SAD69(96)
    "S\01669(96*B\350z\341 P\246yc\003#\0" // SAD69(96) / Brazil Polyconic
    "S\01669(96*U\254\27318S\0" // SAD69(96) / UTM zone 18S
    "S\01669(96*U\254\27319S\0" // SAD69(96) / UTM zone 19S
    "S\01669(96*U\254\273\034S\0" // SAD69(96) / UTM zone 20S
    "S\01669(96*U\254\27321S\0" // SAD69(96) / UTM zone 21S
    "S\01669(96*U\254\27322S\0" // SAD69(96) / UTM zone 22S
    "S\01669(96*U\254\27323S\0" // SAD69(96) / UTM zone 23S
    "S\01669(96*U\254\27324S\0" // SAD69(96) / UTM zone 24S
    "S\01669(96*U\254\27325S\0" // SAD69(96) / UTM zone 25S
    "S\01669_003.gsb\0" // SAD69_003.gsb
    "S\01696_003.gsb\0" // SAD96_003.gsb
    "S\016\21169_96\0" // SAD_1969_96
    "S\016\21169_96_B\350z\341_P\246yc\003#\0" // SAD_1969_96_Brazil_Polyconic
    "S\016\21169_96_U\254_Z\003\215\0" // SAD_1969_96_UTM_Zone_
    "S\016\21169_B\350z\341_P\246yc\003#\0" // SAD_1969_Brazil_Polyconic
    "S\016\21169_U\254_Z\003\215\0" // SAD_1969_UTM_Zone_
    "\323M22 Gr\257\0" // SCM22 Grid
    "\323M22 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // SCM22 Intermediate Reference Frame
    "\323M22-IRF\0" // SCM22-IRF
    "\323M22-\254\0" // SCM22-TM
    "SEAu\020_21_06_00.gsb\0" // SEAust_21_06_00.gsb
    "SGNP_M\252C\252IO_SOLIS\0" // SGNP_MARCARIO_SOLIS
    "SHGD\03415\0" // SHGD2015
    "SHGD\03415\022A\375\013DOS 71\2012)\0" // SHGD2015 to Astro DOS 71 (2)
    "SHMG\03415\0" // SHMG2015
    "SIGD61\0" // SIGD61
    "SING61\0" // SING61
    "SIR09P01\002L=L\003\0" // SIR09P01 - LatLon
    "SIR\312P01\002L=L\003\0" // SIR10P01 - LatLon
    "SIR\202P01\002L=L\003\0" // SIR11P01 - LatLon
    "SIR13P01\002L=L\003\0" // SIR13P01 - LatLon
    "SIR14P01\002L=L\003\0" // SIR14P01 - LatLon
    "SIR15P01\002L=L\003\0" // SIR15P01 - LatLon
    "SIR17P01\002L=L\003\0" // SIR17P01 - LatLon
    "SIRGAS\31795\0" // SIRGAS 1995
    "SIRGAS\31795\012U\254\27317N\0" // SIRGAS 1995 / UTM zone 17N
    "SIRGAS\31795\012U\254\27317S\0" // SIRGAS 1995 / UTM zone 17S
    "SIRGAS\31795\012U\254\27318N\0" // SIRGAS 1995 / UTM zone 18N
    "SIRGAS\31795\012U\254\27318S\0" // SIRGAS 1995 / UTM zone 18S
    "SIRGAS\31795\012U\254\27319N\0" // SIRGAS 1995 / UTM zone 19N
    "SIRGAS\31795\012U\254\27319S\0" // SIRGAS 1995 / UTM zone 19S
    "SIRGAS\31795\012U\254\273\034N\0" // SIRGAS 1995 / UTM zone 20N
    "SIRGAS\31795\012U\254\273\034S\0" // SIRGAS 1995 / UTM zone 20S
    "SIRGAS\31795\012U\254\27321N\0" // SIRGAS 1995 / UTM zone 21N
    "SIRGAS\31795\012U\254\27321S\0" // SIRGAS 1995 / UTM zone 21S
    "SIRGAS\31795\012U\254\27322N\0" // SIRGAS 1995 / UTM zone 22N
    "SIRGAS\31795\012U\254\27322S\0" // SIRGAS 1995 / UTM zone 22S
    "SIRGAS\31795\012U\254\27323S\0" // SIRGAS 1995 / UTM zone 23S
    "SIRGAS\31795\012U\254\27324S\0" // SIRGAS 1995 / UTM zone 24S
    "SIRGAS\31795\012U\254\27325S\0" // SIRGAS 1995 / UTM zone 25S
    "SIRGAS \2270\0" // SIRGAS 2000
    "SIRGAS \2270\012B\350z\341 M\007c=\006\0" // SIRGAS 2000 / Brazil Mercator
    "SIRGAS \2270\012B\350z\341 P\246yc\003#\0" // SIRGAS 2000 / Brazil Polyconic
    "SIRGAS \2270\012U\254\27311N\0" // SIRGAS 2000 / UTM zone 11N
    "SIRGAS \2270\012U\254\27312N\0" // SIRGAS 2000 / UTM zone 12N
    "SIRGAS \2270\012U\254\27313N\0" // SIRGAS 2000 / UTM zone 13N
    "SIRGAS \2270\012U\254\27314N\0" // SIRGAS 2000 / UTM zone 14N
    "SIRGAS \2270\012U\254\27315N\0" // SIRGAS 2000 / UTM zone 15N
    "SIRGAS \2270\012U\254\27316N\0" // SIRGAS 2000 / UTM zone 16N
    "SIRGAS \2270\012U\254\27317N\0" // SIRGAS 2000 / UTM zone 17N
    "SIRGAS \2270\012U\254\27317S\0" // SIRGAS 2000 / UTM zone 17S
    "SIRGAS \2270\012U\254\27318N\0" // SIRGAS 2000 / UTM zone 18N
    "SIRGAS \2270\012U\254\27318S\0" // SIRGAS 2000 / UTM zone 18S
    "SIRGAS \2270\012U\254\27319N\0" // SIRGAS 2000 / UTM zone 19N
    "SIRGAS \2270\012U\254\27319S\0" // SIRGAS 2000 / UTM zone 19S
    "SIRGAS \2270\012U\254\273\034N\0" // SIRGAS 2000 / UTM zone 20N
    "SIRGAS \2270\012U\254\273\034S\0" // SIRGAS 2000 / UTM zone 20S
    "SIRGAS \2270\012U\254\27321N\0" // SIRGAS 2000 / UTM zone 21N
    "SIRGAS \2270\012U\254\27321S\0" // SIRGAS 2000 / UTM zone 21S
    "SIRGAS \2270\012U\254\27322N\0" // SIRGAS 2000 / UTM zone 22N
    "SIRGAS \2270\012U\254\27322S\0" // SIRGAS 2000 / UTM zone 22S
    "SIRGAS \2270\012U\254\27323N\0" // SIRGAS 2000 / UTM zone 23N
    "SIRGAS \2270\012U\254\27323S\0" // SIRGAS 2000 / UTM zone 23S
    "SIRGAS \2270\012U\254\27324N\0" // SIRGAS 2000 / UTM zone 24N
    "SIRGAS \2270\012U\254\27324S\0" // SIRGAS 2000 / UTM zone 24S
    "SIRGAS \2270\012U\254\27325S\0" // SIRGAS 2000 / UTM zone 25S
    "SIRGAS \2270\012U\254\27326S\0" // SIRGAS 2000 / UTM zone 26S
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF00P01\0" // SIRGAS Continuously Operating Network DGF00P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF01P01\0" // SIRGAS Continuously Operating Network DGF01P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF01P02\0" // SIRGAS Continuously Operating Network DGF01P02
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF02P01\0" // SIRGAS Continuously Operating Network DGF02P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF04P01\0" // SIRGAS Continuously Operating Network DGF04P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF05P01\0" // SIRGAS Continuously Operating Network DGF05P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF06P01\0" // SIRGAS Continuously Operating Network DGF06P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF07P01\0" // SIRGAS Continuously Operating Network DGF07P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k DGF08P01\0" // SIRGAS Continuously Operating Network DGF08P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR09P01\0" // SIRGAS Continuously Operating Network SIR09P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR\312P01\0" // SIRGAS Continuously Operating Network SIR10P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR\202P01\0" // SIRGAS Continuously Operating Network SIR11P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR13P01\0" // SIRGAS Continuously Operating Network SIR13P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR14P01\0" // SIRGAS Continuously Operating Network SIR14P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR15P01\0" // SIRGAS Continuously Operating Network SIR15P01
    "SIRGAS\327\003t\023u\026sl\204Op\007=\023g N\036w\006k SIR17P01\0" // SIRGAS Continuously Operating Network SIR17P01
    "SIRGAS Multi-Ye\037|\246uti\231\0" // SIRGAS Multi-Year Solution 
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
    "SIRGAS-CON SIR\202P01\0" // SIRGAS-CON SIR11P01
    "SIRGAS-CON SIR13P01\0" // SIRGAS-CON SIR13P01
    "SIRGAS-CON SIR14P01\0" // SIRGAS-CON SIR14P01
    "SIRGAS-CON SIR15P01\0" // SIRGAS-CON SIR15P01
    "SIRGAS-CON SIR17P01\0" // SIRGAS-CON SIR17P01
    "SIRGAS-CON_\0" // SIRGAS-CON_
    "SIRGAS-Ch\341e\0" // SIRGAS-Chile
    "SIRGAS-Ch\341\010\0" // SIRGAS-Chile 
    "SIRGAS-Ch\341\010\2272\0" // SIRGAS-Chile 2002
    "SIRGAS-Ch\341\010\2272\012U\254\27318S\0" // SIRGAS-Chile 2002 / UTM zone 18S
    "SIRGAS-Ch\341\010\2272\012U\254\27319S\0" // SIRGAS-Chile 2002 / UTM zone 19S
    "SIRGAS-Ch\341\010\03410\0" // SIRGAS-Chile 2010
    "SIRGAS-Ch\341\010\034\312\012U\254\27318S\0" // SIRGAS-Chile 2010 / UTM zone 18S
    "SIRGAS-Ch\341\010\034\312\012U\254\27319S\0" // SIRGAS-Chile 2010 / UTM zone 19S
    "SIRGAS-Ch\341\010\03413\0" // SIRGAS-Chile 2013
    "SIRGAS-Ch\341\010\03413\012U\254\27318S\0" // SIRGAS-Chile 2013 / UTM zone 18S
    "SIRGAS-Ch\341\010\03413\012U\254\27319S\0" // SIRGAS-Chile 2013 / UTM zone 19S
    "SIRGAS-Ch\341\010\03416\0" // SIRGAS-Chile 2016
    "SIRGAS-Ch\341\010\03416\012U\254\27318S\0" // SIRGAS-Chile 2016 / UTM zone 18S
    "SIRGAS-Ch\341\010\03416\012U\254\27319S\0" // SIRGAS-Chile 2016 / UTM zone 19S
    "SIRGAS-Ch\341\010\03421\0" // SIRGAS-Chile 2021
    "SIRGAS-Ch\341\010\03421\012U\254\27312S\0" // SIRGAS-Chile 2021 / UTM zone 12S
    "SIRGAS-Ch\341\010\03421\012U\254\27318S\0" // SIRGAS-Chile 2021 / UTM zone 18S
    "SIRGAS-Ch\341\010\03421\012U\254\27319S\0" // SIRGAS-Chile 2021 / UTM zone 19S
    "SIRGAS-Ch\341\010>\025iz=i\2311 epoch \2272\0" // SIRGAS-Chile realization 1 epoch 2002
    "SIRGAS-Ch\341\010>\025iz=i\2312 epoch \03410\0" // SIRGAS-Chile realization 2 epoch 2010
    "SIRGAS-Ch\341\010>\025iz=i\2313 epoch \03413\0" // SIRGAS-Chile realization 3 epoch 2013
    "SIRGAS-Ch\341\010>\025iz=i\2314 epoch \03416\0" // SIRGAS-Chile realization 4 epoch 2016
    "SIRGAS-Ch\341\010>\025iz=i\2315 epoch \03421\0" // SIRGAS-Chile realization 5 epoch 2021
    "SIRGAS-Ch\341\215\0" // SIRGAS-Chile_
    "SIRGAS-REGVEN\0" // SIRGAS-REGVEN
    "SIRGAS-ROU98\0" // SIRGAS-ROU98
    "SIRGAS-ROU98\012U\254\27321S\0" // SIRGAS-ROU98 / UTM zone 21S
    "SIRGAS-ROU98\012U\254\27322S\0" // SIRGAS-ROU98 / UTM zone 22S
    "SIRGAS-ROU98_U\254_Z\003\21521S\0" // SIRGAS-ROU98_UTM_Zone_21S
    "SIRGAS-ROU98_U\254_Z\003\21522S\0" // SIRGAS-ROU98_UTM_Zone_22S
    "SIRGAS\03195-to-SIRGAS\2270.gsb\0" // SIRGAS1995-to-SIRGAS2000.gsb
    "SIRGAS\2270\002L=L\003\0" // SIRGAS2000 - LatLon
    "SIRGAS\2270-to-SIRGAS-CO\333IR17P01.gsb\0" // SIRGAS2000-to-SIRGAS-CONSIR17P01.gsb
    "SIRGAS95\002L=L\003\0" // SIRGAS95 - LatLon
    "SIRGAS_\2270\0" // SIRGAS_2000
    "SIRGAS_\2270_B\350z\341_M\007c=\006\0" // SIRGAS_2000_Brazil_Mercator
    "SIRGAS_\2270_B\350z\341_P\246yc\003#\0" // SIRGAS_2000_Brazil_Polyconic
    "SIRGAS_\2270_U\254_Z\003\215\0" // SIRGAS_2000_UTM_Zone_
    "SIRGAS\377\003t\023u\026sly_Op\007=\023g_N\036w\006k_\0" // SIRGAS_Continuously_Operating_Network_
    "SIRGAS_ES\2277.8\0" // SIRGAS_ES2007.8
    "SIRGAS_U\254_Z\003\215\0" // SIRGAS_UTM_Zone_
    "SK\306-\014.gsb\0" // SK27-83.gsb
    "SK\306-98.GSB\0" // SK27-98.GSB
    "SK\306-98.gsb\0" // SK27-98.gsb
    "SK\014-98.GSB\0" // SK83-98.GSB
    "SK\014-98.gsb\0" // SK83-98.gsb
    "SLD99\0" // SLD99
    "SLD99\012Sri L\005k\027Gr\257\31799\0" // SLD99 / Sri Lanka Grid 1999
    "SLD99_Sri_L\005k\256Gr\257\21199\0" // SLD99_Sri_Lanka_Grid_1999
    "\364 Alab\225\027E\314\344\203|\224ve\204f\234)\0" // SPCS83 Alabama East zone (US Survey feet)
    "\364 Alab\225\027E\314\344m\313)\0" // SPCS83 Alabama East zone (meters)
    "\364 Alab\225\027W\267\344\203|\224ve\204f\234)\0" // SPCS83 Alabama West zone (US Survey feet)
    "\364 Alab\225\027W\267\344m\313)\0" // SPCS83 Alabama West zone (meters)
    "\364 Al}k\027^1\201m\313)\0" // SPCS83 Alaska zone 1 (meters)
    "\364 Al}k\027^\312\201m\313)\0" // SPCS83 Alaska zone 10 (meters)
    "\364 Al}k\027^2\201m\313)\0" // SPCS83 Alaska zone 2 (meters)
    "\364 Al}k\027^3\201m\313)\0" // SPCS83 Alaska zone 3 (meters)
    "\364 Al}k\027^4\201m\313)\0" // SPCS83 Alaska zone 4 (meters)
    "\364 Al}k\027^5\201m\313)\0" // SPCS83 Alaska zone 5 (meters)
    "\364 Al}k\027^6\201m\313)\0" // SPCS83 Alaska zone 6 (meters)
    "\364 Al}k\027^7\201m\313)\0" // SPCS83 Alaska zone 7 (meters)
    "\364 Al}k\027^8\201m\313)\0" // SPCS83 Alaska zone 8 (meters)
    "\364 Al}k\027^9\201m\313)\0" // SPCS83 Alaska zone 9 (meters)
    "\364 \325i$\027C\367\230\344I\035\007n=\320\230f\234)\0" // SPCS83 Arizona Central zone (International feet)
    "\364 \325i$\027C\367\230\344m\313)\0" // SPCS83 Arizona Central zone (meters)
    "\364 \325i$\027E\314\344I\035\007n=\320\230f\234)\0" // SPCS83 Arizona East zone (International feet)
    "\364 \325i$\027E\314\344m\313)\0" // SPCS83 Arizona East zone (meters)
    "\364 \325i$\027W\267\344I\035\007n=\320\230f\234)\0" // SPCS83 Arizona West zone (International feet)
    "\364 \325i$\027W\267\344m\313)\0" // SPCS83 Arizona West zone (meters)
    "\364 \325k\005s} \324\344\203|\224ve\204f\234)\0" // SPCS83 Arkansas North zone (US Survey feet)
    "\364 \325k\005s} \324\344m\313)\0" // SPCS83 Arkansas North zone (meters)
    "\364 \325k\005s}|\250\344\203|\224ve\204f\234)\0" // SPCS83 Arkansas South zone (US Survey feet)
    "\364 \325k\005s}|\250\344m\313)\0" // SPCS83 Arkansas South zone (meters)
    "\364\327\025if\006n\315^1\201\203|\224ve\204f\234)\0" // SPCS83 California zone 1 (US Survey feet)
    "\364\327\025if\006n\315^1\201m\313)\0" // SPCS83 California zone 1 (meters)
    "\364\327\025if\006n\315^2\201\203|\224ve\204f\234)\0" // SPCS83 California zone 2 (US Survey feet)
    "\364\327\025if\006n\315^2\201m\313)\0" // SPCS83 California zone 2 (meters)
    "\364\327\025if\006n\315^3\201\203|\224ve\204f\234)\0" // SPCS83 California zone 3 (US Survey feet)
    "\364\327\025if\006n\315^3\201m\313)\0" // SPCS83 California zone 3 (meters)
    "\364\327\025if\006n\315^4\201\203|\224ve\204f\234)\0" // SPCS83 California zone 4 (US Survey feet)
    "\364\327\025if\006n\315^4\201m\313)\0" // SPCS83 California zone 4 (meters)
    "\364\327\025if\006n\315^5\201\203|\224ve\204f\234)\0" // SPCS83 California zone 5 (US Survey feet)
    "\364\327\025if\006n\315^5\201m\313)\0" // SPCS83 California zone 5 (meters)
    "\364\327\025if\006n\315^6\201\203|\224ve\204f\234)\0" // SPCS83 California zone 6 (US Survey feet)
    "\364\327\025if\006n\315^6\201m\313)\0" // SPCS83 California zone 6 (meters)
    "\364\327\246\006\226\013C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Colorado Central zone (US Survey feet)
    "\364\327\246\006\226\013C\367\230\344m\313)\0" // SPCS83 Colorado Central zone (meters)
    "\364\327\246\006\226\013\324\344\203|\224ve\204f\234)\0" // SPCS83 Colorado North zone (US Survey feet)
    "\364\327\246\006\226\013\324\344m\313)\0" // SPCS83 Colorado North zone (meters)
    "\364\327\246\006\226\013\370\344\203|\224ve\204f\234)\0" // SPCS83 Colorado South zone (US Survey feet)
    "\364\327\246\006\226\013\370\344m\313)\0" // SPCS83 Colorado South zone (meters)
    "\364\327\003ne\322#ut\273(\203|\224ve\204f\234)\0" // SPCS83 Connecticut zone (US Survey feet)
    "\364\327\003ne\322#ut\273(m\313)\0" // SPCS83 Connecticut zone (meters)
    "\364 D\242aw\037\010\344\203|\224ve\204f\234)\0" // SPCS83 Delaware zone (US Survey feet)
    "\364 D\242aw\037\010\344m\313)\0" // SPCS83 Delaware zone (meters)
    "\364 Fl\006\257\027E\314\344\203|\224ve\204f\234)\0" // SPCS83 Florida East zone (US Survey feet)
    "\364 Fl\006\257\027E\314\344m\313)\0" // SPCS83 Florida East zone (meters)
    "\364 Fl\006\257\027\324\344\203|\224ve\204f\234)\0" // SPCS83 Florida North zone (US Survey feet)
    "\364 Fl\006\257\027\324\344m\313)\0" // SPCS83 Florida North zone (meters)
    "\364 Fl\006\257\027W\267\344\203|\224ve\204f\234)\0" // SPCS83 Florida West zone (US Survey feet)
    "\364 Fl\006\257\027W\267\344m\313)\0" // SPCS83 Florida West zone (meters)
    "\364 Ge\006g\315E\314\344\203|\224ve\204f\234)\0" // SPCS83 Georgia East zone (US Survey feet)
    "\364 Ge\006g\315E\314\344m\313)\0" // SPCS83 Georgia East zone (meters)
    "\364 Ge\006g\315W\267\344\203|\224ve\204f\234)\0" // SPCS83 Georgia West zone (US Survey feet)
    "\364 Ge\006g\315W\267\344m\313)\0" // SPCS83 Georgia West zone (meters)
    "\364 Hawaii\2731\201m\313)\0" // SPCS83 Hawaii zone 1 (meters)
    "\364 Hawaii\2732\201m\313)\0" // SPCS83 Hawaii zone 2 (meters)
    "\364 Hawaii\2733\201\203|\224ve\204f\234)\0" // SPCS83 Hawaii zone 3 (US Survey feet)
    "\364 Hawaii\2733\201m\313)\0" // SPCS83 Hawaii zone 3 (meters)
    "\364 Hawaii\2734\201m\313)\0" // SPCS83 Hawaii zone 4 (meters)
    "\364 Hawaii\2735\201m\313)\0" // SPCS83 Hawaii zone 5 (meters)
    "\364 Id\361\013C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Idaho Central zone (US Survey feet)
    "\364 Id\361\013C\367\230\344m\313)\0" // SPCS83 Idaho Central zone (meters)
    "\364 Id\361\013E\314\344\203|\224ve\204f\234)\0" // SPCS83 Idaho East zone (US Survey feet)
    "\364 Id\361\013E\314\344m\313)\0" // SPCS83 Idaho East zone (meters)
    "\364 Id\361\013W\267\344\203|\224ve\204f\234)\0" // SPCS83 Idaho West zone (US Survey feet)
    "\364 Id\361\013W\267\344m\313)\0" // SPCS83 Idaho West zone (meters)
    "\364 Ill\023o\077 E\314\344\203|\224ve\204f\234)\0" // SPCS83 Illinois East zone (US Survey feet)
    "\364 Ill\023o\077 E\314\344m\313)\0" // SPCS83 Illinois East zone (meters)
    "\364 Ill\023o\077 W\267\344\203|\224ve\204f\234)\0" // SPCS83 Illinois West zone (US Survey feet)
    "\364 Ill\023o\077 W\267\344m\313)\0" // SPCS83 Illinois West zone (meters)
    "\364 \360\336\027E\314\344\203|\224ve\204f\234)\0" // SPCS83 Indiana East zone (US Survey feet)
    "\364 \360\336\027E\314\344m\313)\0" // SPCS83 Indiana East zone (meters)
    "\364 \360\336\027W\267\344\203|\224ve\204f\234)\0" // SPCS83 Indiana West zone (US Survey feet)
    "\364 \360\336\027W\267\344m\313)\0" // SPCS83 Indiana West zone (meters)
    "\364 Iow\027\324\344\203|\224ve\204f\234)\0" // SPCS83 Iowa North zone (US Survey feet)
    "\364 Iow\027\324\344m\313)\0" // SPCS83 Iowa North zone (meters)
    "\364 Iow\027\370\344\203|\224ve\204f\234)\0" // SPCS83 Iowa South zone (US Survey feet)
    "\364 Iow\027\370\344m\313)\0" // SPCS83 Iowa South zone (meters)
    "\364 K\005s} \324\344\203|\224ve\204f\234)\0" // SPCS83 Kansas North zone (US Survey feet)
    "\364 K\005s} \324\344m\313)\0" // SPCS83 Kansas North zone (meters)
    "\364 K\005s}|\250\344\203|\224ve\204f\234)\0" // SPCS83 Kansas South zone (US Survey feet)
    "\364 K\005s}|\250\344m\313)\0" // SPCS83 Kansas South zone (meters)
    "\364 Ke\035uck\204\324\344\203|\224ve\204f\234)\0" // SPCS83 Kentucky North zone (US Survey feet)
    "\364 Ke\035uck\204\324\344m\313)\0" // SPCS83 Kentucky North zone (meters)
    "\364 Ke\035ucky|\023gl\010Z\003\010(\203|\224ve\204f\234)\0" // SPCS83 Kentucky Single Zone (US Survey feet)
    "\364 Ke\035ucky|\023gl\010Z\003\010(m\313)\0" // SPCS83 Kentucky Single Zone (meters)
    "\364 Ke\035ucky|\250\344\203|\224ve\204f\234)\0" // SPCS83 Kentucky South zone (US Survey feet)
    "\364 Ke\035ucky|\250\344m\313)\0" // SPCS83 Kentucky South zone (meters)
    "\364 L\026\077\336\027\324\344\203|\224ve\204f\234)\0" // SPCS83 Louisiana North zone (US Survey feet)
    "\364 L\026\077\336\027\324\344m\313)\0" // SPCS83 Louisiana North zone (meters)
    "\364 L\026\077\336\027Off~\010\344\203|\224ve\204f\234)\0" // SPCS83 Louisiana Offshore zone (US Survey feet)
    "\364 L\026\077\336\027Off~\010\344m\313)\0" // SPCS83 Louisiana Offshore zone (meters)
    "\364 L\026\077\336\027\370\344\203|\224ve\204f\234)\0" // SPCS83 Louisiana South zone (US Survey feet)
    "\364 L\026\077\336\027\370\344m\313)\0" // SPCS83 Louisiana South zone (meters)
    "\364 Ma\023\010E\314\344\203|\224ve\204f\234)\0" // SPCS83 Maine East zone (US Survey feet)
    "\364 Ma\023\010E\314\344m\313)\0" // SPCS83 Maine East zone (meters)
    "\364 Ma\023\010W\267\344\203|\224ve\204f\234)\0" // SPCS83 Maine West zone (US Survey feet)
    "\364 Ma\023\010W\267\344m\313)\0" // SPCS83 Maine West zone (meters)
    "\364 M\037y\206\273(\203|\224ve\204f\234)\0" // SPCS83 Maryland zone (US Survey feet)
    "\364 M\037y\206\273(m\313)\0" // SPCS83 Maryland zone (meters)
    "\364 M}sach\351\036ts \335\273(\203|\224ve\204f\234)\0" // SPCS83 Massachusetts Island zone (US Survey feet)
    "\364 M}sach\351\036ts \335\273(m\313)\0" // SPCS83 Massachusetts Island zone (meters)
    "\364 M}sach\351\036ts Ma\023\206\273(\203|\224ve\204f\234)\0" // SPCS83 Massachusetts Mainland zone (US Survey feet)
    "\364 M}sach\351\036ts Ma\023\206\273(m\313)\0" // SPCS83 Massachusetts Mainland zone (meters)
    "\364 M#hig\005\327\367\230\344I\035\007n=\320\230f\234)\0" // SPCS83 Michigan Central zone (International feet)
    "\364 M#hig\005\327\367\230\344m\313)\0" // SPCS83 Michigan Central zone (meters)
    "\364 M#hig\005 \324\344I\035\007n=\320\230f\234)\0" // SPCS83 Michigan North zone (International feet)
    "\364 M#hig\005 \324\344m\313)\0" // SPCS83 Michigan North zone (meters)
    "\364 M#hig\005|\250\344I\035\007n=\320\230f\234)\0" // SPCS83 Michigan South zone (International feet)
    "\364 M#hig\005|\250\344m\313)\0" // SPCS83 Michigan South zone (meters)
    "\364 M\023n\220\337\027C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Minnesota Central zone (US Survey feet)
    "\364 M\023n\220\337\027C\367\230\344m\313)\0" // SPCS83 Minnesota Central zone (meters)
    "\364 M\023n\220\337\027\324\344\203|\224ve\204f\234)\0" // SPCS83 Minnesota North zone (US Survey feet)
    "\364 M\023n\220\337\027\324\344m\313)\0" // SPCS83 Minnesota North zone (meters)
    "\364 M\023n\220\337\027\370\344\203|\224ve\204f\234)\0" // SPCS83 Minnesota South zone (US Survey feet)
    "\364 M\023n\220\337\027\370\344m\313)\0" // SPCS83 Minnesota South zone (meters)
    "\364 M\077s\077sippi E\314\344\203|\224ve\204f\234)\0" // SPCS83 Mississippi East zone (US Survey feet)
    "\364 M\077s\077sippi E\314\344m\313)\0" // SPCS83 Mississippi East zone (meters)
    "\364 M\077s\077sippi W\267\344\203|\224ve\204f\234)\0" // SPCS83 Mississippi West zone (US Survey feet)
    "\364 M\077s\077sippi W\267\344m\313)\0" // SPCS83 Mississippi West zone (meters)
    "\364 M\077s\026ri\327\367\230\344m\313)\0" // SPCS83 Missouri Central zone (meters)
    "\364 M\077s\026ri E\314\344m\313)\0" // SPCS83 Missouri East zone (meters)
    "\364 M\077s\026ri W\267\344m\313)\0" // SPCS83 Missouri West zone (meters)
    "\364 M\003t\005\027\344I\035\007n=\320\230f\234)\0" // SPCS83 Montana zone (International feet)
    "\364 M\003t\005\027\344m\313)\0" // SPCS83 Montana zone (meters)
    "\364 \307br}k\027\344\203|\224ve\204f\234)\0" // SPCS83 Nebraska zone (US Survey feet)
    "\364 \307br}k\027\344m\313)\0" // SPCS83 Nebraska zone (meters)
    "\364 \307v\226\027C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Nevada Central zone (US Survey feet)
    "\364 \307v\226\027C\367\230\344m\313)\0" // SPCS83 Nevada Central zone (meters)
    "\364 \307v\226\027E\314\344\203|\224ve\204f\234)\0" // SPCS83 Nevada East zone (US Survey feet)
    "\364 \307v\226\027E\314\344m\313)\0" // SPCS83 Nevada East zone (meters)
    "\364 \307v\226\027W\267\344\203|\224ve\204f\234)\0" // SPCS83 Nevada West zone (US Survey feet)
    "\364 \307v\226\027W\267\344m\313)\0" // SPCS83 Nevada West zone (meters)
    "\364 \357 H\225p<\340\010\344\203|\224ve\204f\234)\0" // SPCS83 New Hampshire zone (US Survey feet)
    "\364 \357 H\225p<\340\010\344m\313)\0" // SPCS83 New Hampshire zone (meters)
    "\364 \357 J\232e\204\344\203|\224ve\204f\234)\0" // SPCS83 New Jersey zone (US Survey feet)
    "\364 \357 J\232e\204\344m\313)\0" // SPCS83 New Jersey zone (meters)
    "\364 \357 Mex#\013C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 New Mexico Central zone (US Survey feet)
    "\364 \357 Mex#\013C\367\230\344m\313)\0" // SPCS83 New Mexico Central zone (meters)
    "\364 \357 Mex#\013E\314\344\203|\224ve\204f\234)\0" // SPCS83 New Mexico East zone (US Survey feet)
    "\364 \357 Mex#\013E\314\344m\313)\0" // SPCS83 New Mexico East zone (meters)
    "\364 \357 Mex#\013W\267\344\203|\224ve\204f\234)\0" // SPCS83 New Mexico West zone (US Survey feet)
    "\364 \357 Mex#\013W\267\344m\313)\0" // SPCS83 New Mexico West zone (meters)
    "\364 \357 Y\006k\327\367\230\344\203|\224ve\204f\234)\0" // SPCS83 New York Central zone (US Survey feet)
    "\364 \357 Y\006k\327\367\230\344m\313)\0" // SPCS83 New York Central zone (meters)
    "\364 \357 Y\006k E\314\344\203|\224ve\204f\234)\0" // SPCS83 New York East zone (US Survey feet)
    "\364 \357 Y\006k E\314\344m\313)\0" // SPCS83 New York East zone (meters)
    "\364 \357 Y\006k L\003g \335\273(\203|\224ve\204f\234)\0" // SPCS83 New York Long Island zone (US Survey feet)
    "\364 \357 Y\006k L\003g \335\273(m\313)\0" // SPCS83 New York Long Island zone (meters)
    "\364 \357 Y\006k W\267\344\203|\224ve\204f\234)\0" // SPCS83 New York West zone (US Survey feet)
    "\364 \357 Y\006k W\267\344m\313)\0" // SPCS83 New York West zone (meters)
    "\364 \324C\037\246\023\027\344\203|\224ve\204f\234)\0" // SPCS83 North Carolina zone (US Survey feet)
    "\364 \324C\037\246\023\027\344m\313)\0" // SPCS83 North Carolina zone (meters)
    "\364 \324Dak\337\027\324\344I\035\007n=\320\230f\234)\0" // SPCS83 North Dakota North zone (International feet)
    "\364 \324Dak\337\027\324\344m\313)\0" // SPCS83 North Dakota North zone (meters)
    "\364 \324Dak\337\027\370\344I\035\007n=\320\230f\234)\0" // SPCS83 North Dakota South zone (International feet)
    "\364 \324Dak\337\027\370\344m\313)\0" // SPCS83 North Dakota South zone (meters)
    "\364 Ohi\013\324\344\203|\224ve\204f\234)\0" // SPCS83 Ohio North zone (US Survey feet)
    "\364 Ohi\013\324\344m\313)\0" // SPCS83 Ohio North zone (meters)
    "\364 Ohi\013\370\344\203|\224ve\204f\234)\0" // SPCS83 Ohio South zone (US Survey feet)
    "\364 Ohi\013\370\344m\313)\0" // SPCS83 Ohio South zone (meters)
    "\364 Okl\361\343\027\324\344\203|\224ve\204f\234)\0" // SPCS83 Oklahoma North zone (US Survey feet)
    "\364 Okl\361\343\027\324\344m\313)\0" // SPCS83 Oklahoma North zone (meters)
    "\364 Okl\361\343\027\370\344\203|\224ve\204f\234)\0" // SPCS83 Oklahoma South zone (US Survey feet)
    "\364 Okl\361\343\027\370\344m\313)\0" // SPCS83 Oklahoma South zone (meters)
    "\364 \326\231\324\344I\035\007n=\320\230f\234)\0" // SPCS83 Oregon North zone (International feet)
    "\364 \326\231\324\344m\313)\0" // SPCS83 Oregon North zone (meters)
    "\364 \326\003|\250\344I\035\007n=\320\230f\234)\0" // SPCS83 Oregon South zone (International feet)
    "\364 \326\003|\250\344m\313)\0" // SPCS83 Oregon South zone (meters)
    "\364 P\207nsylv\005\315\324\344\203|\224ve\204f\234)\0" // SPCS83 Pennsylvania North zone (US Survey feet)
    "\364 P\207nsylv\005\315\324\344m\313)\0" // SPCS83 Pennsylvania North zone (meters)
    "\364 P\207nsylv\005\315\370\344\203|\224ve\204f\234)\0" // SPCS83 Pennsylvania South zone (US Survey feet)
    "\364 P\207nsylv\005\315\370\344m\313)\0" // SPCS83 Pennsylvania South zone (meters)
    "\364 Pu\007t\013R#\013& V\340g\023 \335s\273(m\313)\0" // SPCS83 Puerto Rico & Virgin Islands zone (meters)
    "\364 Rhod\010\335\273(\203|\224ve\204f\234)\0" // SPCS83 Rhode Island zone (US Survey feet)
    "\364 Rhod\010\335\273(m\313)\0" // SPCS83 Rhode Island zone (meters)
    "\364|\250C\037\246\023\027\344I\035\007n=\320\230f\234)\0" // SPCS83 South Carolina zone (International feet)
    "\364|\250C\037\246\023\027\344m\313)\0" // SPCS83 South Carolina zone (meters)
    "\364|\250Dak\337\027\324\344\203|\224ve\204f\234)\0" // SPCS83 South Dakota North zone (US Survey feet)
    "\364|\250Dak\337\027\324\344m\313)\0" // SPCS83 South Dakota North zone (meters)
    "\364|\250Dak\337\027\370\344\203|\224ve\204f\234)\0" // SPCS83 South Dakota South zone (US Survey feet)
    "\364|\250Dak\337\027\370\344m\313)\0" // SPCS83 South Dakota South zone (meters)
    "\364 T\207n\220se\010\344\203|\224ve\204f\234)\0" // SPCS83 Tennessee zone (US Survey feet)
    "\364 T\207n\220se\010\344m\313)\0" // SPCS83 Tennessee zone (meters)
    "\364 Tex}\327\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Texas Central zone (US Survey feet)
    "\364 Tex}\327\367\230\344m\313)\0" // SPCS83 Texas Central zone (meters)
    "\364 Tex} \324C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Texas North Central zone (US Survey feet)
    "\364 Tex} \324C\367\230\344m\313)\0" // SPCS83 Texas North Central zone (meters)
    "\364 Tex} \324\344\203|\224ve\204f\234)\0" // SPCS83 Texas North zone (US Survey feet)
    "\364 Tex} \324\344m\313)\0" // SPCS83 Texas North zone (meters)
    "\364 Tex}|\250C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Texas South Central zone (US Survey feet)
    "\364 Tex}|\250C\367\230\344m\313)\0" // SPCS83 Texas South Central zone (meters)
    "\364 Tex}|\250\344\203|\224ve\204f\234)\0" // SPCS83 Texas South zone (US Survey feet)
    "\364 Tex}|\250\344m\313)\0" // SPCS83 Texas South zone (meters)
    "\364 Ut\361\327\367\230\344I\035\007n=\320\230f\234)\0" // SPCS83 Utah Central zone (International feet)
    "\364 Ut\361\327\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Utah Central zone (US Survey feet)
    "\364 Ut\361\327\367\230\344m\313)\0" // SPCS83 Utah Central zone (meters)
    "\364 Ut\361 \324\344I\035\007n=\320\230f\234)\0" // SPCS83 Utah North zone (International feet)
    "\364 Ut\361 \324\344\203|\224ve\204f\234)\0" // SPCS83 Utah North zone (US Survey feet)
    "\364 Ut\361 \324\344m\313)\0" // SPCS83 Utah North zone (meters)
    "\364 Ut\361|\250\344I\035\007n=\320\230f\234)\0" // SPCS83 Utah South zone (International feet)
    "\364 Ut\361|\250\344\203|\224ve\204f\234)\0" // SPCS83 Utah South zone (US Survey feet)
    "\364 Ut\361|\250\344m\313)\0" // SPCS83 Utah South zone (meters)
    "\364 V\007m\003t\273(\203|\224ve\204f\234)\0" // SPCS83 Vermont zone (US Survey feet)
    "\364 V\007m\003t\273(m\313)\0" // SPCS83 Vermont zone (meters)
    "\364 V\340g\023\315\324\344\203|\224ve\204f\234)\0" // SPCS83 Virginia North zone (US Survey feet)
    "\364 V\340g\023\315\324\344m\313)\0" // SPCS83 Virginia North zone (meters)
    "\364 V\340g\023\315\370\344\203|\224ve\204f\234)\0" // SPCS83 Virginia South zone (US Survey feet)
    "\364 V\340g\023\315\370\344m\313)\0" // SPCS83 Virginia South zone (meters)
    "\364 Wa<\023gt\231\324\344\203|\224ve\204f\234)\0" // SPCS83 Washington North zone (US Survey feet)
    "\364 Wa<\023gt\231\324\344m\313)\0" // SPCS83 Washington North zone (meters)
    "\364 Wa<\023gt\003|\250\344\203|\224ve\204f\234)\0" // SPCS83 Washington South zone (US Survey feet)
    "\364 Wa<\023gt\003|\250\344m\313)\0" // SPCS83 Washington South zone (meters)
    "\364 W\267V\340g\023\315\324\344\203|\224ve\204f\234)\0" // SPCS83 West Virginia North zone (US Survey feet)
    "\364 W\267V\340g\023\315\324\344m\313)\0" // SPCS83 West Virginia North zone (meters)
    "\364 W\267V\340g\023\315\370\344\203|\224ve\204f\234)\0" // SPCS83 West Virginia South zone (US Survey feet)
    "\364 W\267V\340g\023\315\370\344m\313)\0" // SPCS83 West Virginia South zone (meters)
    "\364 W\077c\003s\023\327\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Wisconsin Central zone (US Survey feet)
    "\364 W\077c\003s\023\327\367\230\344m\313)\0" // SPCS83 Wisconsin Central zone (meters)
    "\364 W\077c\003s\023 \324\344\203|\224ve\204f\234)\0" // SPCS83 Wisconsin North zone (US Survey feet)
    "\364 W\077c\003s\023 \324\344m\313)\0" // SPCS83 Wisconsin North zone (meters)
    "\364 W\077c\003s\023|\250\344\203|\224ve\204f\234)\0" // SPCS83 Wisconsin South zone (US Survey feet)
    "\364 W\077c\003s\023|\250\344m\313)\0" // SPCS83 Wisconsin South zone (meters)
    "\364 Wy\343\023g E\314C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Wyoming East Central zone (US Survey feet)
    "\364 Wy\343\023g E\314C\367\230\344m\313)\0" // SPCS83 Wyoming East Central zone (meters)
    "\364 Wy\343\023g E\314\344\203|\224ve\204f\234)\0" // SPCS83 Wyoming East zone (US Survey feet)
    "\364 Wy\343\023g E\314\344m\313)\0" // SPCS83 Wyoming East zone (meters)
    "\364 Wy\343\023g W\267C\367\230\344\203|\224ve\204f\234)\0" // SPCS83 Wyoming West Central zone (US Survey feet)
    "\364 Wy\343\023g W\267C\367\230\344m\313)\0" // SPCS83 Wyoming West Central zone (meters)
    "\364 Wy\343\023g W\267\344\203|\224ve\204f\234)\0" // SPCS83 Wyoming West zone (US Survey feet)
    "\364 Wy\343\023g W\267\344m\313)\0" // SPCS83 Wyoming West zone (meters)
    "\266ED2ETV2.gsb\0" // SPED2ETV2.gsb
    "SRB_ET{89\0" // SRB_ETRS89
    "SRB_ET{89\012U\254\27334N\0" // SRB_ETRS89 / UTM zone 34N
    "SRB_ET{89_U\254_$\21534N\0" // SRB_ETRS89_UTM_zone_34N
    "SREF98\0" // SREF98
    "SRGI\03413\0" // SRGI2013
    "SRGI\03413\012U\254\27346N\0" // SRGI2013 / UTM zone 46N
    "SRGI\03413\012U\254\27347N\0" // SRGI2013 / UTM zone 47N
    "SRGI\03413\012U\254\27347S\0" // SRGI2013 / UTM zone 47S
    "SRGI\03413\012U\254\27348N\0" // SRGI2013 / UTM zone 48N
    "SRGI\03413\012U\254\27348S\0" // SRGI2013 / UTM zone 48S
    "SRGI\03413\012U\254\27349N\0" // SRGI2013 / UTM zone 49N
    "SRGI\03413\012U\254\27349S\0" // SRGI2013 / UTM zone 49S
    "SRGI\03413\012U\254\27350N\0" // SRGI2013 / UTM zone 50N
    "SRGI\03413\012U\254\27350S\0" // SRGI2013 / UTM zone 50S
    "SRGI\03413\012U\254\27351N\0" // SRGI2013 / UTM zone 51N
    "SRGI\03413\012U\254\27351S\0" // SRGI2013 / UTM zone 51S
    "SRGI\03413\012U\254\27352N\0" // SRGI2013 / UTM zone 52N
    "SRGI\03413\012U\254\27352S\0" // SRGI2013 / UTM zone 52S
    "SRGI\03413\012U\254\27353S\0" // SRGI2013 / UTM zone 53S
    "SRGI\03413\012U\254\27354S\0" // SRGI2013 / UTM zone 54S
    "SRGI\03413_U\254_$\215\0" // SRGI2013_UTM_zone_
    "ST71 B\242ep\0" // ST71 Belep
    "ST71 B\242ep\012U\254\27358S\0" // ST71 Belep / UTM zone 58S
    "ST71_B\242ep\0" // ST71_Belep
    "ST71_B\242ep_U\254_58S\0" // ST71_Belep_UTM_58S
    "ST84 Il\010d\220 P\023s\0" // ST84 Ile des Pins
    "ST84 Il\010d\220 P\023s\012U\254\27358S\0" // ST84 Ile des Pins / UTM zone 58S
    "ST84_Il\215d\220_P\023s\0" // ST84_Ile_des_Pins
    "ST84_Il\215d\220_P\023s_U\254_58S\0" // ST84_Ile_des_Pins_UTM_58S
    "ST87 Ouvea\0" // ST87 Ouvea
    "ST87 Ouvea\012U\254\27358S\0" // ST87 Ouvea / UTM zone 58S
    "ST87_Ouvea\0" // ST87_Ouvea
    "ST87_Ouve\256U\254_58S\0" // ST87_Ouvea_UTM_58S
    "ST{00\0" // STRS00
    "SVY21\0" // SVY21
    "SVY21\012S\023gap\006\010\254\0" // SVY21 / Singapore TM
    "SVY21 pl\005\010co\006d\023=\010sy\020\212\0" // SVY21 plane coordinate system
    "SVY21_S\023gap\006\215\254\0" // SVY21_Singapore_TM
    "SW Afr#\005 \134\273\0" // SW African CS zone 
    "SWEREF99\0" // SWEREF99
    "SWEREF99\012RT90 0 g\231\212ul=\320\0" // SWEREF99 / RT90 0 gon emulation
    "SWEREF99\012RT90 2\235 g\231O \212ul=\320\0" // SWEREF99 / RT90 2.5 gon O emulation
    "SWEREF99\012RT90 2\235 g\231V \212ul=\320\0" // SWEREF99 / RT90 2.5 gon V emulation
    "SWEREF99\012RT90 5 g\231O \212ul=\320\0" // SWEREF99 / RT90 5 gon O emulation
    "SWEREF99\012RT90 5 g\231V \212ul=\320\0" // SWEREF99 / RT90 5 gon V emulation
    "SWEREF99\012RT90 7\235 g\231V \212ul=\320\0" // SWEREF99 / RT90 7.5 gon V emulation
    "SWEREF99 12 00\0" // SWEREF99 12 00
    "SWEREF99 13 30\0" // SWEREF99 13 30
    "SWEREF99 14 15\0" // SWEREF99 14 15
    "SWEREF99 15 00\0" // SWEREF99 15 00
    "SWEREF99 15 45\0" // SWEREF99 15 45
    "SWEREF99 16 30\0" // SWEREF99 16 30
    "SWEREF99 17 15\0" // SWEREF99 17 15
    "SWEREF99 18 00\0" // SWEREF99 18 00
    "SWEREF99 18 45\0" // SWEREF99 18 45
    "SWEREF99 \034 15\0" // SWEREF99 20 15
    "SWEREF99 21 45\0" // SWEREF99 21 45
    "SWEREF99 23 15\0" // SWEREF99 23 15
    "SWEREF99 \254\0" // SWEREF99 TM
    "SWEREF99_\0" // SWEREF99_
    "S_JTSK\0" // S_JTSK
    "S_JTSK/05\0" // S_JTSK/05
    "S_JTSK/05_F\007ro\0" // S_JTSK/05_Ferro
    "S_JTSK_05\0" // S_JTSK_05
    "S_JTSK_05_F\007ro\0" // S_JTSK_05_Ferro
    "S_JTSK_F\007ro\0" // S_JTSK_Ferro
    "Sa\023t Pi\007r\010\036 Miqu\242\231\03150\0" // Saint Pierre et Miquelon 1950
    "Sa\023t Pi\007r\010\036 Miqu\242\231\03150\012U\254\27321N\0" // Saint Pierre et Miquelon 1950 / UTM zone 21N
    "Sa\023t_Pi\007>_\036_Miqu\242\003\21150\0" // Saint_Pierre_et_Miquelon_1950
    "Sa\023t_Pi\007>_\036_Miqu\242\003\21150_U\254_21N\0" // Saint_Pierre_et_Miquelon_1950_UTM_21N
    "Sa\023t\010Anne\0" // Sainte Anne
    "Sa\023t\215Anne\0" // Sainte_Anne
    "Sa\023t\215Ann\215U\254_\034N\0" // Sainte_Anne_UTM_20N
    "S\025\212_\021\211\014_\240_\254\372_I\035l\0" // Salem_NAD_1983_2011_TM_Feet_Intl
    "S\025\212_\021\211\014_\240_\254_M\313\0" // Salem_NAD_1983_2011_TM_Meters
    "S\025\212_\021\211\014_CO{96_\254\372_I\035l\0" // Salem_NAD_1983_CORS96_TM_Feet_Intl
    "S\025\212_\021\211\014_CO{96_\254_M\313\0" // Salem_NAD_1983_CORS96_TM_Meters
    "S\225boja\0" // Samboja
    "S\225boj\027(Jak\037ta)\0" // Samboja (Jakarta)
    "S\225boja\012U\254\27350S\0" // Samboja / UTM zone 50S
    "S\225boj\027P2 exc T9\0" // Samboja P2 exc T9
    "S\225boj\256U\254_Z\003\21550S\0" // Samboja_UTM_Zone_50S
    "S\225drup_J\003gkh\037_\254\0" // Samdrup_Jongkhar_TM
    "S\225oa\21162_S\225o\256L\225b\007t\0" // Samoa_1962_Samoa_Lambert
    "S\225ts\215\254\0" // Samtse_TM
    "S\005_And>s_\2277\0" // San_Andres_2007
    "S\005`r\005c\077co_\13413_M\313\0" // San_Francisco_CS13_Meters
    "S\005`r\005c\077co_\13413_ft\203\0" // San_Francisco_CS13_ftUS
    "S\005_Jos\215d\242_Guavi\037\215\03411\0" // San_Jose_del_Guaviare_2011
    "S\005t\256M\037t\256Magd\025\207\256\2277\0" // Santa_Marta_Magdalena_2007
    "S\005t\013(DOS)\0" // Santo (DOS)
    "S\005t\013\03165\0" // Santo 1965
    "S\005to_DOS\21165\0" // Santo_DOS_1965
    "Sa\013T\343\010\253Pr\023cip\216\210\216Pr\023cipe\0" // Sao Tome and Principe - onshore - Principe
    "Sa\013T\343\010\253Pr\023cip\216\210\216Sa\013T\343e\0" // Sao Tome and Principe - onshore - Sao Tome
    "Sao_T\343e\0" // Sao_Tome
    "Sapp\007 H\341l\31743\0" // Sapper Hill 1943
    "Sapp\007 H\341l\31743\012U\254\273\034S\0" // Sapper Hill 1943 / UTM zone 20S
    "Sapp\007 H\341l\31743\012U\254\27321S\0" // Sapper Hill 1943 / UTM zone 21S
    "Sapp\007_H\341l\21143\0" // Sapper_Hill_1943
    "Sapp\007_H\341l\21143_U\254_Z\003\215\034S\0" // Sapper_Hill_1943_UTM_Zone_20S
    "Sapp\007_H\341l\21143_U\254_Z\003\21521S\0" // Sapper_Hill_1943_UTM_Zone_21S
    "S\037p\005g_\254\0" // Sarpang_TM
    "Saudi \325ab\21336\20042\015\0" // Saudi Arabia - 36°E to 42°E
    "Saudi \325ab\21342\20048\015\0" // Saudi Arabia - 42°E to 48°E
    "Saudi \325ab\21348\20054\015\0" // Saudi Arabia - 48°E to 54°E
    "Saudi \325ab\213e\314\24354\015\0" // Saudi Arabia - east of 54°E
    "Saudi \325ab\213\236\0" // Saudi Arabia - onshore
    "Saudi \325ab\213\210\01036\20042\015\0" // Saudi Arabia - onshore 36°E to 42°E
    "Saudi \325ab\213\210\010Gulf coa\020\0" // Saudi Arabia - onshore Gulf coast
    "Saudi \325ab\213\210\010w\267\24336\015\0" // Saudi Arabia - onshore west of 36°E
    "Saudi \325ab\213w\267\24336\015\0" // Saudi Arabia - west of 36°E
    "Sauk\377\026\035y\372\0" // Sauk_County_Feet
    "Sauk\377\026\035y_M\313\0" // Sauk_County_Meters
    "Sauk\372\0" // Sauk_Feet
    "Sauk_M\313\0" // Sauk_Meters
    "Sawy\007\377\026\035y\372\0" // Sawyer_County_Feet
    "Sawy\007\377\026\035y_M\313\0" // Sawyer_County_Meters
    "Sawy\007\372\0" // Sawyer_Feet
    "Sawy\007_M\313\0" // Sawyer_Meters
    "Schw\037zeck\0" // Schwarzeck
    "Schw\037zeck\012Lo22/11\0" // Schwarzeck / Lo22/11
    "Schw\037zeck\012Lo22/13\0" // Schwarzeck / Lo22/13
    "Schw\037zeck\012Lo22/15\0" // Schwarzeck / Lo22/15
    "Schw\037zeck\012Lo22/17\0" // Schwarzeck / Lo22/17
    "Schw\037zeck\012Lo22/19\0" // Schwarzeck / Lo22/19
    "Schw\037zeck\012Lo22/21\0" // Schwarzeck / Lo22/21
    "Schw\037zeck\012Lo22/23\0" // Schwarzeck / Lo22/23
    "Schw\037zeck\012Lo22/25\0" // Schwarzeck / Lo22/25
    "Schw\037zeck\012U\254\27333S\0" // Schwarzeck / UTM zone 33S
    "Schw\037zeck_U\254_Z\003\21533S\0" // Schwarzeck_UTM_Zone_33S
    "Sc\006\220bysund\31752\0" // Scoresbysund 1952
    "Sc\006\220bysund\31752\012G>\207\206\2735 ea\020\0" // Scoresbysund 1952 / Greenland zone 5 east
    "Sc\006\220bysund\31752\012G>\207\206\2736 ea\020\0" // Scoresbysund 1952 / Greenland zone 6 east
    "Sc\006\220bysund\21152\0" // Scoresbysund_1952
    "SeTa\03416.gsb\0" // SeTa2016.gsb
    "Seg\037\027(Jak\037ta*NEIEZ\0" // Segara (Jakarta) / NEIEZ
    "Seg\037a\012NEIEZ\0" // Segara / NEIEZ
    "Seg\037a\012U\254\27350S\0" // Segara / UTM zone 50S
    "Seg\037a\022WGS 84\2011)\0" // Segara to WGS 84 (1)
    "Seg\037a\022WGS 84\2012)\0" // Segara to WGS 84 (2)
    "Seg\037a\022WGS 84\2013)\0" // Segara to WGS 84 (3)
    "Seg\006a\0" // Segora
    "S\242\005g\006\327}s\023i Gr\257\0" // Selangor Cassini Grid
    "S\242vag\212 Gr\033e\0" // Selvagem Grande
    "S\242vag\212 Gr\033\010\011U\254\27328N\0" // Selvagem Grande / UTM zone 28N
    "S\242vag\212 Gr\033\010\03138\0" // Selvagem Grande 1938
    "S\242vag\212_Gr\033e\21138\0" // Selvagem_Grande_1938
    "S\242vag\212_Gr\033e\21138_U\254_Z\003\21528N\0" // Selvagem_Grande_1938_UTM_Zone_28N
    "S\242vag\207 Gr\033\010t\013WGS 84\2011)\0" // Selvagen Grande to WGS 84 (1)
    "S\212b\341\005\374M\242ak\027C}s\023i Gr\257\0" // Sembilan and Melaka Cassini Grid
    "S\207eg\025\0" // Senegal
    "S\207eg\025\002\236\0" // Senegal - onshore
    "S\007bia\0" // Serbia
    "S\007b\336 Ref\007\207c\010N\036w\006k \03198\0" // Serbian Reference Network 1998
    "S\007b\336|p=i\230Ref\007\207c\010Sy\020\212 \2270\0" // Serbian Spatial Reference System 2000
    "S\007b\336_Ref\007\207c\215N\036w\006k_\03198\0" // Serbian_Reference_Network_1998
    "S\007b\336_Sp=i\025_Ref\007\207c\215Sy\020\212_\2270\0" // Serbian_Spatial_Reference_System_2000
    "S\007\023dung\0" // Serindung
    "Seych\242l\220\002M\361\010\335\0" // Seychelles - Mahe Island
    "Seych\242l\220\002Seych\242l\220 B\005k\0" // Seychelles - Seychelles Bank
    "Shaw\005o\377\026\035y\372\0" // Shawano_County_Feet
    "Shaw\005o\377\026\035y_M\313\0" // Shawano_County_Meters
    "Shaw\005o\372\0" // Shawano_Feet
    "Shaw\005o_M\313\0" // Shawano_Meters
    "Sh\242by_(ft\203)\0" // Shelby_(ftUS)
    "Sh\242by_(m)\0" // Shelby_(m)
    "Sibun G\006g\010\03122\0" // Sibun Gorge 1922
    "Sibun G\006g\010\03122\012C\246\003\204Gr\257\0" // Sibun Gorge 1922 / Colony Grid
    "Sibun_G\006ge\21122\0" // Sibun_Gorge_1922
    "Sibun_G\006ge\21122\377\246\003y_Gr\257\0" // Sibun_Gorge_1922_Colony_Grid
    "Si\007r\027Le\003\216F>\036own P\207\023sula\0" // Sierra Leone - Freetown Peninsula
    "Si\007r\027Le\003\216e\314\24312!\0" // Sierra Leone - east of 12°W
    "Si\007r\027Le\003\216\236\0" // Sierra Leone - onshore
    "Si\007r\027Le\003\216w\267\24312!\0" // Sierra Leone - west of 12°W
    "Si\007r\027Le\003\010\03124\0" // Sierra Leone 1924
    "Si\007r\027Le\003\010\03124\012\357\327\246\003\204Gr\257\0" // Sierra Leone 1924 / New Colony Grid
    "Si\007r\027Le\003\010\03124\012\357 W\037 Off#\010Gr\257\0" // Sierra Leone 1924 / New War Office Grid
    "Si\007r\027Le\003\010\03168\0" // Sierra Leone 1968
    "Si\007r\027Le\003\010\03168\012U\254\27328N\0" // Sierra Leone 1968 / UTM zone 28N
    "Si\007r\027Le\003\010\03168\012U\254\27329N\0" // Sierra Leone 1968 / UTM zone 29N
    "Si\007r\027Le\003\01068 /U\254 28N\0" // Sierra Leone 68 /UTM 28N
    "Si\007r\027Le\003\01068 /U\254 29N\0" // Sierra Leone 68 /UTM 29N
    "Si\007r\027Le\003\010C\246\003\204\03124\0" // Sierra Leone Colony 1924
    "Si\007r\027Le\003\010\357\327\246\003\204Gr\257\0" // Sierra Leone New Colony Grid
    "Si\007r\027Le\003\010P\207\023sul\037\31724\0" // Sierra Leone Peninsular 1924
    "Si\007r\256Le\003e\21124\0" // Sierra_Leone_1924
    "Si\007r\256Le\003e\21124_\357\377\246\003y_Gr\257\0" // Sierra_Leone_1924_New_Colony_Grid
    "Si\007r\256Le\003e\21124_\357_W\037_Off#\215Gr\257\0" // Sierra_Leone_1924_New_War_Office_Grid
    "Si\007r\256Le\003e\21168\0" // Sierra_Leone_1968
    "Si\007r\256Le\003e\21168_U\254_Z\003\21528N\0" // Sierra_Leone_1968_UTM_Zone_28N
    "Si\007r\256Le\003e\21168_U\254_Z\003\21529N\0" // Sierra_Leone_1968_UTM_Zone_29N
    "Sikkim \333F \254\0" // Sikkim NSF TM
    "S\023gap\006\010Tr\005sv\232\010M\007c=\006\0" // Singapore Transverse Mercator
    "S\023gap\006\215Gr\257\0" // Singapore_Grid
    "S\077kiy\026_P}s_\021\211\014_\240_LCC`t_I\035l\0" // Siskiyou_Pass_NAD_1983_2011_LCC_Ft_Intl
    "S\077kiy\026_P}s_\021\211\014_\240_LCC_M\313\0" // Siskiyou_Pass_NAD_1983_2011_LCC_Meters
    "Si\020\212 Ref\007\207si Geosp}i\230\360\003\220\315\03413\0" // Sistem Referensi Geospasial Indonesia 2013
    "Si\020\212_Ref\007\207si_Geosp}i\025_\360\003\220i\256\03413\0" // Sistem_Referensi_Geospasial_Indonesia_2013
    "Si\020\212\027Geod\220#\013Nac\320\230d\010P\005\225\027MAC\252IO|OLIS\0" // Sistema Geodesico Nacional de Panama MACARIO SOLIS
    "Si\020\212\027Geod\303\251s#\013Nac\320\025\0" // Sistema Geodésico Nacional
    "Si\020\212\027d\010Ref\007\207c\315Geoc\367#\013p\037\027Am\007#\027d\242|\224\31795\0" // Sistema de Referencia Geocentrico para America del Sur 1995
    "Si\020\212\027d\010Ref\007\207c\315Geoc\367#\013p\037\027Am\007#\027d\242|\224 \2270\0" // Sistema de Referencia Geocentrico para America del Sur 2000
    "Si\020\212\027d\010Ref\007\207c\315Geoc\367#\013p\037\027l} Am\007#aS \2270\0" // Sistema de Referencia Geocentrico para las AmericaS 2000
    "Si\020\007 \335s Geod\036# D=um\31761\0" // Sister Islands Geodetic Datum 1961
    "Si\020\007 \335s N=\320\230Gr\257\31761\0" // Sister Islands National Grid 1961
    "Si\020\007_\335s_N=\320\025_Gr\257\21161\0" // Sister_Islands_National_Grid_1961
    "Slovakia\0" // Slovakia
    "Slovaki\256JTSK03_to_JTSK.LAS\0" // Slovakia_JTSK03_to_JTSK.LAS
    "Slovaki\256JTSK03_to_JTSK.LOS\0" // Slovakia_JTSK03_to_JTSK.LOS
    "Slov\207ia\0" // Slovenia
    "Slov\207\213D\246\207jska\0" // Slovenia - Dolenjska
    "Slov\207\213G\006\207jsk\027\253N Prim\006sko\0" // Slovenia - Gorenjska and N Primorsko
    "Slov\207\213NE\0" // Slovenia - NE
    "Slov\207\213P\343\224je\0" // Slovenia - Pomurje
    "Slov\207\213Prim\006sk\027\253N\337r\005jsk\027\236\0" // Slovenia - Primorska and Notranjska onshore
    "Slov\207\213SE\0" // Slovenia - SE
    "Slov\207\213Staj\232ka\0" // Slovenia - Stajerska
    "Slov\207\213c\367\025\0" // Slovenia - central
    "Slov\207\213\236\0" // Slovenia - onshore
    "Slov\207\213s\365ea\020\007n\0" // Slovenia - southeastern
    "Slov\207\213w\267\24314\00430'E\356\0" // Slovenia - west of 14°30'E onshore
    "Slov\207\315\03196\0" // Slovenia 1996
    "Slov\207\315\03196\012Slov\207\010N=\320\230Gr\257\0" // Slovenia 1996 / Slovene National Grid
    "Slov\207\315\03196\012U\254\27333N\0" // Slovenia 1996 / UTM zone 33N
    "Slov\207\315Geod\036# D=um \03196\0" // Slovenia Geodetic Datum 1996
    "Slov\207i\256\03196\0" // Slovenia_1996
    "Slov\207ia\21196_Slov\207\215N=\320\025_Gr\257\0" // Slovenia_1996_Slovene_National_Grid
    "Slov\207ia\21196_U\254_Z\003\21533N\0" // Slovenia_1996_UTM_Zone_33N
    "Slov\207i\256Geod\036#_D=um_\03196\0" // Slovenia_Geodetic_Datum_1996
    "S\246\343\231\03168\0" // Solomon 1968
    "S\246\343\231\335s\002Gu\226\025c\005\230\335\0" // Solomon Islands - Guadalcanal Island
    "S\246\343\231\335s\002\357 Ge\006g\213Ghiz\013(Gizo)\0" // Solomon Islands - New Georgia - Ghizo (Gizo)
    "S\246\343\231\335s\002\210\010ma\023 \077\206s\0" // Solomon Islands - onshore main islands
    "S\246\343\003\21168\0" // Solomon_1968
    "S\343\025\21342\20048\015\277N\311\010\236\0" // Somalia - 42°E to 48°E, N hemisphere onshore
    "S\343\025\213\236\0" // Somalia - onshore
    "S\343\025\213\210\010e\314\24348\015\0" // Somalia - onshore east of 48°E
    "\370Afr\34518\200\034\015\0" // South Africa - 18°E to 20°E
    "\370Afr\345\034\20022\015\0" // South Africa - 20°E to 22°E
    "\370Afr\34522\20024\015\0" // South Africa - 22°E to 24°E
    "\370Afr\34524\20026\015\0" // South Africa - 24°E to 26°E
    "\370Afr\34526\20028\015\0" // South Africa - 26°E to 28°E
    "\370Afr\34528\20030\015\0" // South Africa - 28°E to 30°E
    "\370Afr\34530\20032\015\0" // South Africa - 30°E to 32°E
    "\370Afr\345Pr\023c\010Edw\037d \077\206s\002\210\010\253\214f~e\0" // South Africa - Prince Edward islands - onshore and offshore
    "\370Afr\345e\314\24332\015\0" // South Africa - east of 32°E
    "\370Afr\345ma\023\206\002\210\010\253\214f~e\0" // South Africa - mainland - onshore and offshore
    "\370Afr\345\236\0" // South Africa - onshore
    "\370Afr\345w\267\24318\015\0" // South Africa - west of 18°E
    "\370Afr#\027B}#|\224ve\204Un\245 Alb\232 25E\0" // South Africa Basic Survey Unit Albers 25E
    "\370Afr#\027B}#|\224ve\204Un\245 Alb\232 44E\0" // South Africa Basic Survey Unit Albers 44E
    "\370Afr#\005 \134\273\0" // South African CS zone 
    "\370Afr#\005\327o\006d\023=\010Sy\020\212\273\0" // South African Coordinate System zone 
    "\370Afr#\005|\224ve\204Gr\257\27315\0" // South African Survey Grid zone 15
    "\370Afr#\005|\224ve\204Gr\257\27317\0" // South African Survey Grid zone 17
    "\370Afr#\005|\224ve\204Gr\257\27319\0" // South African Survey Grid zone 19
    "\370Afr#\005|\224ve\204Gr\257\27321\0" // South African Survey Grid zone 21
    "\370Afr#\005|\224ve\204Gr\257\27323\0" // South African Survey Grid zone 23
    "\370Afr#\005|\224ve\204Gr\257\27325\0" // South African Survey Grid zone 25
    "\370Afr#\005|\224ve\204Gr\257\27327\0" // South African Survey Grid zone 27
    "\370Afr#\005|\224ve\204Gr\257\27329\0" // South African Survey Grid zone 29
    "\370Afr#\005|\224ve\204Gr\257\27331\0" // South African Survey Grid zone 31
    "\370Afr#\005|\224ve\204Gr\257\27333\0" // South African Survey Grid zone 33
    "\370Am\007\34536\22130!\0" // South America - 36°W to 30°W
    "\370Am\007\34542\22136!\0" // South America - 42°W to 36°W
    "\370Am\007\34548\22142!\0" // South America - 48°W to 42°W
    "\370Am\007\34554\22148!\277N\311e\0" // South America - 54°W to 48°W, N hemisphere
    "\370Am\007\34554\22148!\277N\311\010\033|\01669 \366\0" // South America - 54°W to 48°W, N hemisphere and SAD69 by country
    "\370Am\007\34554\22148!\277N\311\010\033|IRGAS \2270 \366\0" // South America - 54°W to 48°W, N hemisphere and SIRGAS 2000 by country
    "\370Am\007\34554\22148!,|\311e\0" // South America - 54°W to 48°W, S hemisphere
    "\370Am\007\34554\22148!,|\311\010\033|\01669 \366\0" // South America - 54°W to 48°W, S hemisphere and SAD69 by country
    "\370Am\007\34554\22148!,|\311\010\033|IRGAS \2270 \366\0" // South America - 54°W to 48°W, S hemisphere and SIRGAS 2000 by country
    "\370Am\007\34560\22154!\277N\311e\0" // South America - 60°W to 54°W, N hemisphere
    "\370Am\007\34560\22154!\277N\311\010\253\247\01656 \366\0" // South America - 60°W to 54°W, N hemisphere and PSAD56 by country
    "\370Am\007\34560\22154!\277N\311\010\033|\01669 \366\0" // South America - 60°W to 54°W, N hemisphere and SAD69 by country
    "\370Am\007\34560\22154!\277N\311\010\033|IRGAS \2270 \366\0" // South America - 60°W to 54°W, N hemisphere and SIRGAS 2000 by country
    "\370Am\007\34560\22154!,|\311e\0" // South America - 60°W to 54°W, S hemisphere
    "\370Am\007\34560\22154!,|\311\010\033|\01669 \366\0" // South America - 60°W to 54°W, S hemisphere and SAD69 by country
    "\370Am\007\34560\22154!,|\311\010\033|IRGAS \2270 \366\0" // South America - 60°W to 54°W, S hemisphere and SIRGAS 2000 by country
    "\370Am\007\34566\22160!\277N\311e\0" // South America - 66°W to 60°W, N hemisphere
    "\370Am\007\34566\22160!\277N\311\010\253\247\01656 \366\0" // South America - 66°W to 60°W, N hemisphere and PSAD56 by country
    "\370Am\007\34566\22160!\277N\311\010\033|\01669 \366\0" // South America - 66°W to 60°W, N hemisphere and SAD69 by country
    "\370Am\007\34566\22160!\277N\311\010\033|IRGAS \2270 \366\0" // South America - 66°W to 60°W, N hemisphere and SIRGAS 2000 by country
    "\370Am\007\34566\22160!,|\311e\0" // South America - 66°W to 60°W, S hemisphere
    "\370Am\007\34566\22160!,|\311\010\033|\01669 \366\0" // South America - 66°W to 60°W, S hemisphere and SAD69 by country
    "\370Am\007\34566\22160!,|\311\010\033|IRGAS \2270 \366\0" // South America - 66°W to 60°W, S hemisphere and SIRGAS 2000 by country
    "\370Am\007\34572\22166!\277N\311e\0" // South America - 72°W to 66°W, N hemisphere
    "\370Am\007\34572\22166!\277N\311\010\253\247\01656 \366\0" // South America - 72°W to 66°W, N hemisphere and PSAD56 by country
    "\370Am\007\34572\22166!\277N\311\010\033|IRGAS \2270 \366\0" // South America - 72°W to 66°W, N hemisphere and SIRGAS 2000 by country
    "\370Am\007\34572\22166!\277N\311\010\236\0" // South America - 72°W to 66°W, N hemisphere onshore
    "\370Am\007\34572\22166!,|\311e\0" // South America - 72°W to 66°W, S hemisphere
    "\370Am\007\34572\22166!,|\311\010\253\247\01656 \366\0" // South America - 72°W to 66°W, S hemisphere and PSAD56 by country
    "\370Am\007\34572\22166!,|\311\010\033|IRGAS \2270 \366\0" // South America - 72°W to 66°W, S hemisphere and SIRGAS 2000 by country
    "\370Am\007\34572\22166!,|\311\010\236\0" // South America - 72°W to 66°W, S hemisphere onshore
    "\370Am\007\34578\22172!\277N\311e\0" // South America - 78°W to 72°W, N hemisphere
    "\370Am\007\34578\22172!\277N\311\010\253\247\01656 \366\0" // South America - 78°W to 72°W, N hemisphere and PSAD56 by country
    "\370Am\007\34578\22172!\277N\311\010\033|\01669 \366\0" // South America - 78°W to 72°W, N hemisphere and SAD69 by country
    "\370Am\007\34578\22172!,|\311\010\253\247\01656 \366\0" // South America - 78°W to 72°W, S hemisphere and PSAD56 by country
    "\370Am\007\34578\22172!,|\311\010\033|\01669 \366\0" // South America - 78°W to 72°W, S hemisphere and SAD69 by country
    "\370Am\007\34578\22172!,|\311\010\033|IRGAS\31795 \366\0" // South America - 78°W to 72°W, S hemisphere and SIRGAS 1995 by country
    "\370Am\007\34578\22172!,|\311\010\033|IRGAS \2270 \366\0" // South America - 78°W to 72°W, S hemisphere and SIRGAS 2000 by country
    "\370Am\007\34584\22178!\277N\311\010\253\247\01656 \366\0" // South America - 84°W to 78°W, N hemisphere and PSAD56 by country
    "\370Am\007\34584\22178!\277N\311\010\033|\01669 \366\0" // South America - 84°W to 78°W, N hemisphere and SAD69 by country
    "\370Am\007\34584\22178!\277N\311\010\033|IRGAS95 \366\0" // South America - 84°W to 78°W, N hemisphere and SIRGAS95 by country
    "\370Am\007\34584\22178!,|\311e\0" // South America - 84°W to 78°W, S hemisphere
    "\370Am\007\34584\22178!,|\311\010\253\247\01656 \366\0" // South America - 84°W to 78°W, S hemisphere and PSAD56 by country
    "\370Am\007\34584\22178!,|\311\010\033|\01669 \366\0" // South America - 84°W to 78°W, S hemisphere and SAD69 by country
    "\370Am\007\34584\22178!,|\311\010\033|IRGAS95 \366\0" // South America - 84°W to 78°W, S hemisphere and SIRGAS95 by country
    "\370Am\007\345B\246ivia;\327h\341e; Ecu\226\006; Guy\005a; P\007u; V\207ezu\242a\0" // South America - Bolivia; Chile; Ecuador; Guyana; Peru; Venezuela
    "\370Am\007\345B\350z\341\002s\250\24318\376\374w\267\24354! + DF; N P\037aguay\0" // South America - Brazil - south of 18°S and west of 54°W + DF; N Paraguay
    "\370Am\007\345\247\01656 \366\0" // South America - PSAD56 by country
    "\370Am\007\345S\01669 \366\0" // South America - SAD69 by country
    "\370Am\007\345SIRGAS\31795 \366\0" // South America - SIRGAS 1995 by country
    "\370Am\007\345Ti\007r\027d\242 Fuego\0" // South America - Tierra del Fuego
    "\370Am\007\345U\254 17S \033|\01669 \366\0" // South America - UTM 17S and SAD69 by country
    "\370Am\007\345U\254 18N \033|\01669 \366\0" // South America - UTM 18N and SAD69 by country
    "\370Am\007\345U\254 18S \033|\01669 \366\0" // South America - UTM 18S and SAD69 by country
    "\370Am\007\345U\254\317N \033|\01669 \366\0" // South America - UTM 19N and SAD69 by country
    "\370Am\007\345U\254\317S \033|\01669 \366\0" // South America - UTM 19S and SAD69 by country
    "\370Am\007\345U\254 \034N \033|\01669 \366\0" // South America - UTM 20N and SAD69 by country
    "\370Am\007\345U\254 \034S \033|\01669 \366\0" // South America - UTM 20S and SAD69 by country
    "\370Am\007\345U\254 21N\374S\01669\0" // South America - UTM 21N and SAD69
    "\370Am\007\345\210\010n\006@\24345\376\0" // South America - onshore north of 45°S
    "\370Am\007#\027\366\0" // South America by country
    "\370Am\007#\005 D=um\31769\0" // South American Datum 1969
    "\370Am\007#\005 D=um\31769(96)\0" // South American Datum 1969(96)
    "\370Au\375\025\315L\225b\007t\0" // South Australia Lambert
    "\370C\037\246\023\027\134\306 \324$e\0" // South Carolina CS27 North zone
    "\370C\037\246\023\027\134\306|\250$e\0" // South Carolina CS27 South zone
    "\370Dak\337\027\134\306 \324$e\0" // South Dakota CS27 North zone
    "\370Dak\337\027\134\306|\250$e\0" // South Dakota CS27 South zone
    "\370E\314\335\31743\0" // South East Island 1943
    "\370E\314\335\31743\012U\254\27340N\0" // South East Island 1943 / UTM zone 40N
    "\370Ge\006g\213\236\0" // South Georgia - onshore
    "\370Ge\006g\315\03168\0" // South Georgia 1968
    "\370W\267Afr#\005\327o\006d.|y\020\212\273\0" // South West African Coord. System zone 
    "\370W\267Afr#\005|\224ve\204Gr\257\27311\0" // South West African Survey Grid zone 11
    "\370W\267Afr#\005|\224ve\204Gr\257\27313\0" // South West African Survey Grid zone 13
    "\370W\267Afr#\005|\224ve\204Gr\257\27315\0" // South West African Survey Grid zone 15
    "\370W\267Afr#\005|\224ve\204Gr\257\27317\0" // South West African Survey Grid zone 17
    "\370W\267Afr#\005|\224ve\204Gr\257\27319\0" // South West African Survey Grid zone 19
    "\370W\267Afr#\005|\224ve\204Gr\257\27321\0" // South West African Survey Grid zone 21
    "\370W\267Afr#\005|\224ve\204Gr\257\27323\0" // South West African Survey Grid zone 23
    "\370W\267Afr#\005|\224ve\204Gr\257\27325\0" // South West African Survey Grid zone 25
    "\370Y\212\207\0" // South Yemen
    "\370Y\212\207\012Ga\351s Krug\007\2738\0" // South Yemen / Gauss Kruger zone 8
    "\370Y\212\207\012Ga\351s Krug\007\2739\0" // South Yemen / Gauss Kruger zone 9
    "\370Y\212\207\012Ga\351s-Krug\007\2738\0" // South Yemen / Gauss-Kruger zone 8
    "\370Y\212\207\012Ga\351s-Krug\007\2739\0" // South Yemen / Gauss-Kruger zone 9
    "S\365_Am\007#\005\21169\0" // South_American_1969
    "S\365_Am\007#\005_D=um\21169_96\0" // South_American_Datum_1969_96
    "S\365_Au\375\025i\256L\225b\007t\0" // South_Australia_Lambert
    "S\365\377\037\246\023a\2723900\0" // South_Carolina_FIPS_3900
    "S\365\377\037\246\023a\2723900\372_I\035l\0" // South_Carolina_FIPS_3900_Feet_Intl
    "S\365\377\037\246\023a\2723900`t_I\035l\0" // South_Carolina_FIPS_3900_Ft_Intl
    "S\365\377\037\246\023\256\373\2723901\0" // South_Carolina_North_FIPS_3901
    "S\365\377\037\246\023\256S\365\2723902\0" // South_Carolina_South_FIPS_3902
    "S\365_Dak\337\256\373\2724001\0" // South_Dakota_North_FIPS_4001
    "S\365_Dak\337\256\373\2724001\372\0" // South_Dakota_North_FIPS_4001_Feet
    "S\365_Dak\337\256\373\2724001`t_\203\0" // South_Dakota_North_FIPS_4001_Ft_US
    "S\365_Dak\337\256S\365\2724002\0" // South_Dakota_South_FIPS_4002
    "S\365_Dak\337\256S\365\2724002\372\0" // South_Dakota_South_FIPS_4002_Feet
    "S\365_Dak\337\256S\365\2724002`t_\203\0" // South_Dakota_South_FIPS_4002_Ft_US
    "S\365_Ea\020_\335\21143\0" // South_East_Island_1943
    "S\365_Ea\020_\335\21143_U\254_Z\003\21540N\0" // South_East_Island_1943_UTM_Zone_40N
    "S\365_Ge\006gi\256L\225b\007t\0" // South_Georgia_Lambert
    "S\365_Y\212\207\0" // South_Yemen
    "S\365_Y\212\207_GK_Z\003\215\0" // South_Yemen_GK_Zone_
    "S\365\007n P\007m\336 B}\023 Atl} L\225b\007t\0" // Southern Permian Basin Atlas Lambert
    "S\365\007n_P\007m\336_B}\023_L\225b\007t\0" // Southern_Permian_Basin_Lambert
    "Spa\023\002B\025e\037# \335s\0" // Spain - Balearic Islands
    "Spa\023\002C\005\037\204\335s\0" // Spain - Canary Islands
    "Spa\023\002C\005\037\204\335s\002El Hi\007r\013w\267\24318!\0" // Spain - Canary Islands - El Hierro west of 18°W
    "Spa\023\002C\005\037\204\335s\002e\314\24318!\0" // Spain - Canary Islands - east of 18°W
    "Spa\023\002C\005\037\204\335s\002w\267\24318!\0" // Spain - Canary Islands - west of 18°W
    "Spa\023\002C\005\037\204\335s\356\0" // Spain - Canary Islands onshore
    "Spa\023\002C\005\037\204\335s \210\010e\314\24318!\0" // Spain - Canary Islands onshore east of 18°W
    "Spa\023\002C\005\037\204\335s we\020\007n\0" // Spain - Canary Islands western
    "Spa\023\002C\005\037\204\335s we\020\007n e\314\24318!\0" // Spain - Canary Islands western east of 18°W
    "Spa\023\002C=\025\003\315\236\0" // Spain - Catalonia onshore
    "Spa\023\002ma\023\206\374B\025e\037# \335s\356\0" // Spain - mainland and Balearic Islands onshore
    "Spa\023\002ma\023\206 except n\006\024we\020\0" // Spain - mainland except northwest
    "Spa\023\002ma\023\206 n\006\024we\020\0" // Spain - mainland northwest
    "Spa\023\002ma\023\206\356\0" // Spain - mainland onshore
    "Spa\023\002ma\023\206 \210\010\253Ceuta\0" // Spain - mainland onshore and Ceuta
    "Sp\207c\007_(ft\203)\0" // Spencer_(ftUS)
    "Sp\207c\007_(m)\0" // Spencer_(m)
    "S\274\215Cl\037k\2151866_Au\024\025#\0" // Sphere_Clarke_1866_Authalic
    "S\274\215G{\21180_Au\024\025#\0" // Sphere_GRS_1980_Authalic
    "S\274\215I\035\007n=\320\025\21124_Au\024\025#\0" // Sphere_International_1924_Authalic
    "Sri L\005k\030\236\0" // Sri Lanka - onshore
    "Sri L\005k\027D=um\31799\0" // Sri Lanka Datum 1999
    "Sri_L\005k\256D=um\21199\0" // Sri_Lanka_Datum_1999
    "St H\242\207\030Asc\207si\231\335\0" // St Helena - Ascension Island
    "St H\242\207\030St H\242\207\027\335\0" // St Helena - St Helena Island
    "St H\242\207\030Tri\020\005 d\027Cunha\0" // St Helena - Tristan da Cunha
    "St K\245ts\374\307v\077\002\236\0" // St Kitts and Nevis - onshore
    "St Luc\213\236\0" // St Lucia - onshore
    "St Pi\007r\010Miqu\242\231\03150\0" // St Pierre Miquelon 1950
    "St Pi\007r\010\253Miqu\242\003\0" // St Pierre and Miquelon
    "St Pi\007r\010\253Miqu\242\003\002\236\0" // St Pierre and Miquelon - onshore
    "St V\023ce\035 \033\017h\010G>n\226\023\220\002\236\0" // St Vincent and the Grenadines - onshore
    "St.\327roix \13427\0" // St. Croix CS27
    "St. H\242\207\027\03171\0" // St. Helena 1971
    "St. H\242\207\027Geod\036# D=um \03415\0" // St. Helena Geodetic Datum 2015
    "St. H\242\207\027Loc\230Gr\257\201Tr\245\005)\0" // St. Helena Local Grid (Tritan)
    "St. H\242\207\027Loc\230Gr\257\31771\0" // St. Helena Local Grid 1971
    "St. H\242\207\027Map Gr\257 \03415\0" // St. Helena Map Grid 2015
    "St. H\242\207\027Tr\245\005\0" // St. Helena Tritan
    "St. H\242\207\027Tr\245\005\012SHLG(Tr\245\005)\0" // St. Helena Tritan / SHLG(Tritan)
    "St. H\242\207\027Tr\245\005\012U\254\27330S\0" // St. Helena Tritan / UTM zone 30S
    "St. K\245ts\31755\0" // St. Kitts 1955
    "St. K\245ts\31755\012Br\245i< W\267\360i\220 Gr\257\0" // St. Kitts 1955 / British West Indies Grid
    "St. Luc\315\03155\0" // St. Lucia 1955
    "St. Luc\315\03155\012Br\245i< W\267\360i\220 Gr\257\0" // St. Lucia 1955 / British West Indies Grid
    "St. Pi\007r\010\036 Miqu\242\231\03150\0" // St. Pierre et Miquelon 1950
    "St.|te\237\207\201F\007ro)\0" // St. Stephen (Ferro)
    "St.|te\237\207 Gr\257\0" // St. Stephen Grid
    "St.|te\237\207 Gr\257\201F\007ro)\0" // St. Stephen Grid (Ferro)
    "St. V\023ce\035\31745\0" // St. Vincent 1945
    "St. V\023ce\035 45\012Br\245i< W\267\360i\220 Gr\257\0" // St. Vincent 45 / British West Indies Grid
    "St._Ste\237\207(F\007ro)\0" // St._Stephen(Ferro)
    "St._Ste\237\207_(F\007ro)\0" // St._Stephen_(Ferro)
    "St\377roix\377\026\035y\372\0" // St_Croix_County_Feet
    "St\377roix\377\026\035y_M\313\0" // St_Croix_County_Meters
    "St\377roix\372\0" // St_Croix_Feet
    "St\377roix_M\313\0" // St_Croix_Meters
    "St_Ge\006g\215\335\0" // St_George_Island
    "St_H\242\207\256Geod\036#_D=um_\03415\0" // St_Helena_Geodetic_Datum_2015
    "St_H\242\207\256Tr\245\005\0" // St_Helena_Tritan
    "St_H\242\207\256Tr\245\005_SHLG(Tr\245\005)\0" // St_Helena_Tritan_SHLG(Tritan)
    "St_H\242\207\256Tr\245\005_U\254_$\21530S\0" // St_Helena_Tritan_UTM_zone_30S
    "St_K\245ts\21155\0" // St_Kitts_1955
    "St_K\245ts\21155_Br\245i<_We\020_\360i\220_Gr\257\0" // St_Kitts_1955_British_West_Indies_Grid
    "St_Law>nc\215\335\0" // St_Lawrence_Island
    "St_Lucia\21155\0" // St_Lucia_1955
    "St_Lucia\21155_Br\245i<_We\020_\360i\220_Gr\257\0" // St_Lucia_1955_British_West_Indies_Grid
    "St_M\037y`t_I\035l\0" // St_Mary_Ft_Intl
    "St_M\037y_M\313\0" // St_Mary_Meters
    "St_Paul_\335\0" // St_Paul_Island
    "St_V\023ce\035\21145\0" // St_Vincent_1945
    "St_V\023ce\035\21145_Br\245i<_We\020_\360i\220_Gr\257\0" // St_Vincent_1945_British_West_Indies_Grid
    "St=i\020#s\377\005\226\256L\225b\007t\0" // Statistics_Canada_Lambert
    "St=ut\010m\341e\0" // Statute mile
    "St=ut\215M\341e\0" // Statute_Mile
    "St\242s\242 v\005 d\010Rijksdriehoeksm\036\023g\0" // Stelsel van de Rijksdriehoeksmeting
    "St\007e\01330\0" // Stereo 30
    "St\007eo_33\0" // Stereo_33
    "Steub\207_(ft\203)\0" // Steuben_(ftUS)
    "Steub\207_(m)\0" // Steuben_(m)
    "Stockh\246m\31738\0" // Stockholm 1938
    "Stockh\246m\31738\201Stockh\246m)\0" // Stockholm 1938 (Stockholm)
    "Stockh\246m\21138\0" // Stockholm_1938
    "Struv\0101860\0" // Struve 1860
    "Struv\2151860\0" // Struve_1860
    "Suc>_\2276\0" // Sucre_2006
    "Sud_Fr\005ce\0" // Sud_France
    "Sud_M\037oc\0" // Sud_Maroc
    "Sud_Tun\077ie\0" // Sud_Tunisie
    "Sud\005\002s\365\0" // Sudan - south
    "Sud\005\002s\365\002e\314\24330\015\0" // Sudan - south - east of 30°E
    "Sud\005\002s\365\002w\267\24330\015\0" // Sudan - south - west of 30°E
    "Sud\005\012U\254\27335N\0" // Sudan / UTM zone 35N
    "Sud\005\012U\254\27336N\0" // Sudan / UTM zone 36N
    "Sud\005_U\254_Z\003\21535N\0" // Sudan_UTM_Zone_35N
    "Sud\005_U\254_Z\003\21536N\0" // Sudan_UTM_Zone_36N
    "Sulliv\005_(ft\203)\0" // Sullivan_(ftUS)
    "Sulliv\005_(m)\0" // Sullivan_(m)
    "S\224\023\225e\0" // Suriname
    "S\224\023\225\216\214f~e\0" // Suriname - offshore
    "S\224\023\225\216\236\0" // Suriname - onshore
    "S\224ve\204\243\360\315L\225b\007t\0" // Survey of India Lambert
    "Sw\275\207\0" // Sweden
    "Sw\275\207\0020 g\003\0" // Sweden - 0 gon
    "Sw\275\207\00212 00\0" // Sweden - 12 00
    "Sw\275\207\00213 30\0" // Sweden - 13 30
    "Sw\275\207\00214 15\0" // Sweden - 14 15
    "Sw\275\207\00215 00\0" // Sweden - 15 00
    "Sw\275\207\00215 45\0" // Sweden - 15 45
    "Sw\275\207\00216 30\0" // Sweden - 16 30
    "Sw\275\207\00217 15\0" // Sweden - 17 15
    "Sw\275\207\00218 00\0" // Sweden - 18 00
    "Sw\275\207\00218 45\0" // Sweden - 18 45
    "Sw\275\207\0022\235 g\231E\0" // Sweden - 2.5 gon E
    "Sw\275\207\0022\235 g\231W\0" // Sweden - 2.5 gon W
    "Sw\275\207\002\034 15\0" // Sweden - 20 15
    "Sw\275\207\00221 45\0" // Sweden - 21 45
    "Sw\275\207\00223 15\0" // Sweden - 23 15
    "Sw\275\207\0025 g\231E\0" // Sweden - 5 gon E
    "Sw\275\207\0025 g\231W\0" // Sweden - 5 gon W
    "Sw\275\207\0027\235 g\231W\0" // Sweden - 7.5 gon W
    "Sw\275\207\002Stockh\246m\0" // Sweden - Stockholm
    "Sw\275\207\002Stockh\246m \352\035y\0" // Sweden - Stockholm county
    "Sw\275\207\002\236\0" // Sweden - onshore
    "Sw\275\207\2730 g\003\0" // Sweden zone 0 gon
    "Sw\275\207\2732\235 g\231O\0" // Sweden zone 2.5 gon O
    "Sw\275\207\2732\235 g\231V\0" // Sweden zone 2.5 gon V
    "Sw\275\207\2735 g\231O\0" // Sweden zone 5 gon O
    "Sw\275\207\2735 g\231V\0" // Sweden zone 5 gon V
    "Sw\275\207\2737\235 g\231V\0" // Sweden zone 7.5 gon V
    "Sw\275i<_N=\320\025_Gr\257\0" // Swedish_National_Grid
    "Sw\077s Obliqu\010M\007c=\006\31703C\0" // Swiss Oblique Mercator 1903C
    "Sw\077s Obliqu\010M\007c=\006\31703C\201G>\207w#h)\0" // Swiss Oblique Mercator 1903C (Greenwich)
    "Sw\077s Obliqu\010M\007c=\006\31703M\0" // Swiss Oblique Mercator 1903M
    "Sw\077s Obliqu\010M\007c=\006\31795\0" // Swiss Oblique Mercator 1995
    "Sw\077s T\007>\375i\230Ref\007\207c\010Fr\225\010\03195\201CHTRF95)\0" // Swiss Terrestrial Reference Frame 1995 (CHTRF95)
    "Sw\077s T\007>\375i\230Ref\007\207c\010Sy\020\212\31795\0" // Swiss Terrestrial Reference System 1995
    "Sw\077s_TRF\21195\0" // Swiss_TRF_1995
    "Syr\213Al Wh\025e\275 \037ea\0" // Syria - Al Whaleed area
    "Syr\213De\340 \037ea\0" // Syria - Deir area
    "Syr\213Sh\226d\226eh \037ea\0" // Syria - Shaddadeh area
    "Syr\213\236\0" // Syria - onshore
    "Sy\020\212 \0" // System 
    "Sy\020\212 \214\017h\010Unifi\275 Trig\003\343\036r#\230C\226a\375\230N\036w\006k\0" // System of the Unified Trigonometrical Cadastral Network
    "Sy\020\212 \214\017h\010Unifi\275 Trig\003\343\036r#\230C\226a\375\230N\036w\006k\201F\007ro)\0" // System of the Unified Trigonometrical Cadastral Network (Ferro)
    "Sy\020\212 \214\017h\010Unifi\275 Trig\003\343\036r#\230C\226a\375\230N\036w\006k [JTSK03]\0" // System of the Unified Trigonometrical Cadastral Network [JTSK03]
    "Sy\020\212 \214\017h\010Unifi\275 Trig\003\343\036r#\230C\226a\375\230N\036w\006k/05\0" // System of the Unified Trigonometrical Cadastral Network/05
    "Sy\020\212 \214\017h\010Unifi\275 Trig\003\343\036r#\230C\226a\375\230N\036w\006k/05\201F\007ro)\0" // System of the Unified Trigonometrical Cadastral Network/05 (Ferro)
    "Sy\020\303\251m J\275n\337nej\017rig\003\343\036r#kej si\036\010\0" // Systém Jednotnej trigonometrickej siete 
    "Sy\020\303\251m J\275n\337n\303\251\017rig\003\343\036r#k\303\251 s\303\255t\304\233 \0" // Systém Jednotné trigonometrické sítě 
    "TC(\03148)\0" // TC(1948)
    "TC(\03148*U\254\27339N\0" // TC(1948) / UTM zone 39N
    "TC(\03148*U\254\27340N\0" // TC(1948) / UTM zone 40N
    "TC\21148_U\254_Z\003\21539N\0" // TC_1948_UTM_Zone_39N
    "TC\21148_U\254_Z\003\21540N\0" // TC_1948_UTM_Zone_40N
    "TGD\2275\0" // TGD2005
    "TGD\2275\012T\003g\027Map Gr\257\0" // TGD2005 / Tonga Map Grid
    "TGD\2275_T\003g\256Map_Gr\257\0" // TGD2005_Tonga_Map_Grid
    "\254 B\025t# 93\0" // TM Baltic 93
    "\254 Z\003\010\034N\201\203 s\224ve\204f\234)\0" // TM Zone 20N (US survey feet)
    "\254 Z\003\01021N\201\203 s\224ve\204f\234)\0" // TM Zone 21N (US survey feet)
    "\25435FIN_NE\0" // TM35FIN_NE
    "\25465\0" // TM65
    "\25465\012Iri< Gr\257\0" // TM65 / Irish Grid
    "\25465\012Iri< N=\320\230Gr\257\0" // TM65 / Irish National Grid
    "\25465_Iri<_Gr\257\0" // TM65_Irish_Grid
    "\25475\0" // TM75
    "\25475\012Iri< Gr\257\0" // TM75 / Irish Grid
    "\25475_Iri<_Gr\257\0" // TM75_Irish_Grid
    "\254_0_N\0" // TM_0_N
    "\254_\2026_SE\0" // TM_116_SE
    "\254_\202_30_SE\0" // TM_11_30_SE
    "\254_132_SE\0" // TM_132_SE
    "\254_30_NE\0" // TM_30_NE
    "\254_36_SE\0" // TM_36_SE
    "\254_5_NE\0" // TM_5_NE
    "\254_60_SW\0" // TM_60_SW
    "\254_6_NE\0" // TM_6_NE
    "\254_B\025t#_\03193\0" // TM_Baltic_1993
    "\254_Em\341ia-R\343agna\0" // TM_Emilia-Romagna
    "\254_Z\003\21510\0" // TM_Zone_10
    "\254_Z\003\21511\0" // TM_Zone_11
    "\254_Z\003\21512\0" // TM_Zone_12
    "\254_Z\003\21513\0" // TM_Zone_13
    "\254_Z\003\215\034N_(\203\372)\0" // TM_Zone_20N_(US_Feet)
    "\254_Z\003\21521N_(\203\372)\0" // TM_Zone_21N_(US_Feet)
    "\254_Z\003\2157\0" // TM_Zone_7
    "\254_Z\003\2158\0" // TM_Zone_8
    "\254_Z\003\2159\0" // TM_Zone_9
    "TN15-ET{89-to-Ab\310vA96_\034\034-IRF.gsb\0" // TN15-ETRS89-to-AbInvA96_2020-IRF.gsb
    "TN15-ET{89-to-EBBWV14-IRF.gsb\0" // TN15-ETRS89-to-EBBWV14-IRF.gsb
    "TN15-ET{89-to-ECML14_NB-IRF.gsb\0" // TN15-ETRS89-to-ECML14_NB-IRF.gsb
    "TN15-ET{89-to-EOS21-IRF.gsb\0" // TN15-ETRS89-to-EOS21-IRF.gsb
    "TN15-ET{89-to-EWR2-IRF.gsb\0" // TN15-ETRS89-to-EWR2-IRF.gsb
    "TN15-ET{89-to-FNL22-IRF.gsb\0" // TN15-ETRS89-to-FNL22-IRF.gsb
    "TN15-ET{89-to-GBK\031-IRF.gsb\0" // TN15-ETRS89-to-GBK19-IRF.gsb
    "TN15-ET{89-to-HULLEE13-IRF.gsb\0" // TN15-ETRS89-to-HULLEE13-IRF.gsb
    "TN15-ET{89-to-MML07-IRF.gsb\0" // TN15-ETRS89-to-MML07-IRF.gsb
    "TN15-ET{89-to-MOLDOR\202-IRF.gsb\0" // TN15-ETRS89-to-MOLDOR11-IRF.gsb
    "TN15-ET{89-to-MRH21-IRF.gsb\0" // TN15-ETRS89-to-MRH21-IRF.gsb
    "TN15-ET{89-to-MWC18-IRF.gsb\0" // TN15-ETRS89-to-MWC18-IRF.gsb
    "TN15-ET{89-to-\323M22-IRF.gsb\0" // TN15-ETRS89-to-SCM22-IRF.gsb
    "TN15-ET{89-to-TPEN\202-IRF.gsb\0" // TN15-ETRS89-to-TPEN11-IRF.gsb
    "TO\306\134v1.GSB\0" // TO27CSv1.GSB
    "TOR\306\134v1.GSB\0" // TOR27CSv1.GSB
    "TPEN\202 Gr\257\0" // TPEN11 Grid
    "TPEN\202 I\035\007m\275i=\010Ref\007\207c\010Fr\225e\0" // TPEN11 Intermediate Reference Frame
    "TPEN\202-IRF\0" // TPEN11-IRF
    "TPEN\202-\254\0" // TPEN11-TM
    "TPEN\202_Gr\257\0" // TPEN11_Grid
    "TPEN\202_I\035\007m\275i=\215Ref\007\207ce`r\225e\0" // TPEN11_Intermediate_Reference_Frame
    "TRA\333IT\002L=L\003\0" // TRANSIT - LatLon
    "TUREF\0" // TUREF
    "TUREF\0123-deg>\010Ga\351s-Krug\007\27310\0" // TUREF / 3-degree Gauss-Kruger zone 10
    "TUREF\0123-deg>\010Ga\351s-Krug\007\27311\0" // TUREF / 3-degree Gauss-Kruger zone 11
    "TUREF\0123-deg>\010Ga\351s-Krug\007\27312\0" // TUREF / 3-degree Gauss-Kruger zone 12
    "TUREF\0123-deg>\010Ga\351s-Krug\007\27313\0" // TUREF / 3-degree Gauss-Kruger zone 13
    "TUREF\0123-deg>\010Ga\351s-Krug\007\27314\0" // TUREF / 3-degree Gauss-Kruger zone 14
    "TUREF\0123-deg>\010Ga\351s-Krug\007\27315\0" // TUREF / 3-degree Gauss-Kruger zone 15
    "TUREF\0123-deg>\010Ga\351s-Krug\007\2739\0" // TUREF / 3-degree Gauss-Kruger zone 9
    "TUREF\012LAEA E\224ope\0" // TUREF / LAEA Europe
    "TUREF\012LCC E\224ope\0" // TUREF / LCC Europe
    "TUREF\012\25427\0" // TUREF / TM27
    "TUREF\012\25430\0" // TUREF / TM30
    "TUREF\012\25433\0" // TUREF / TM33
    "TUREF\012\25436\0" // TUREF / TM36
    "TUREF\012\25439\0" // TUREF / TM39
    "TUREF\012\25442\0" // TUREF / TM42
    "TUREF\012\25445\0" // TUREF / TM45
    "TUREF_\0" // TUREF_
    "TUREF_3_Deg>\215GK_Z\003\215\0" // TUREF_3_Degree_GK_Zone_
    "TWD67\0" // TWD67
    "TWD67\012\2542\273119\0" // TWD67 / TM2 zone 119
    "TWD67\012\2542\273121\0" // TWD67 / TM2 zone 121
    "TWD97\0" // TWD97
    "TWD97\012\2542\273119\0" // TWD97 / TM2 zone 119
    "TWD97\012\2542\273121\0" // TWD97 / TM2 zone 121
    "TWD\21167\0" // TWD_1967
    "TWD\21167_\254_P\207ghu\0" // TWD_1967_TM_Penghu
    "TWD\21167_\254_Taiw\005\0" // TWD_1967_TM_Taiwan
    "TWD_\03197\0" // TWD_1997
    "TWD\21197_\254_P\207ghu\0" // TWD_1997_TM_Penghu
    "TWD\21197_\254_Taiw\005\0" // TWD_1997_TM_Taiwan
    "T\361a\02754\0" // Tahaa 54
    "T\361a\02754\012U\254\2735S\0" // Tahaa 54 / UTM zone 5S
    "T\361aa\21154\0" // Tahaa_1954
    "T\361aa\21154_U\254_5S\0" // Tahaa_1954_UTM_5S
    "T\361\245i 52\0" // Tahiti 52
    "T\361\245i 52\012U\254\2736S\0" // Tahiti 52 / UTM zone 6S
    "T\361\245i 79\0" // Tahiti 79
    "T\361\245i 79\012U\254\2736S\0" // Tahiti 79 / UTM zone 6S
    "T\361\245i 79\022WGS 84\2011)\0" // Tahiti 79 to WGS 84 (1)
    "T\361\245i\21152\0" // Tahiti_1952
    "T\361\245i\21152_U\254_6S\0" // Tahiti_1952_UTM_6S
    "T\361\245i\21179\0" // Tahiti_1979
    "T\361\245i\21179_U\254_Z\003\2156S\0" // Tahiti_1979_UTM_Zone_6S
    "Taiw\005\002\2028\354\034\015\0" // Taiwan - 118°E to 120°E
    "Taiw\005\0021\034\35422\015\0" // Taiwan - 120°E to 122°E
    "Taiw\005\002\210\216P\207ghu\0" // Taiwan - onshore - Penghu
    "Taiw\005\002\210\216ma\023\206\0" // Taiwan - onshore - mainland
    "Taiw\005\002\210\216ma\023\206\374P\207ghu\0" // Taiwan - onshore - mainland and Penghu
    "Taiw\005 2-deg>\010\254\273119\0" // Taiwan 2-degree TM zone 119
    "Taiw\005 2-deg>\010\254\273121\0" // Taiwan 2-degree TM zone 121
    "Taiw\005 D=um\31767\0" // Taiwan Datum 1967
    "Taiw\005 D=um \03197\0" // Taiwan Datum 1997
    "T\225\341 N\226u \333F \254\0" // Tamil Nadu NSF TM
    "T\225\341_N\226u\0" // Tamil_Nadu
    "T\005\005\037ive\0" // Tananarive
    "T\005\005\037iv\010(P\037\077)\0" // Tananarive (Paris)
    "T\005\005\037iv\010(P\037\077*Lab\006d\010Gr\257\0" // Tananarive (Paris) / Laborde Grid
    "T\005\005\037iv\010(P\037\077*Lab\006d\010Gr\257 approxim=\320\0" // Tananarive (Paris) / Laborde Grid approximation
    "T\005\005\037iv\010\011Lab\006d\010Gr\257\0" // Tananarive / Laborde Grid
    "T\005\005\037iv\010\011U\254\27338S\0" // Tananarive / UTM zone 38S
    "T\005\005\037iv\010\011U\254\27339S\0" // Tananarive / UTM zone 39S
    "T\005\005\037iv\010\03125\0" // Tananarive 1925
    "T\005\005\037iv\010\03125\201P\037\077)\0" // Tananarive 1925 (Paris)
    "T\005\005\037ive\21125\0" // Tananarive_1925
    "T\005\005\037ive\21125_\0" // Tananarive_1925_
    "T\005\005\037ive\21125_P\037\077\0" // Tananarive_1925_Paris
    "T\005z\005\213\236\0" // Tanzania - onshore
    "Tapi Aike\0" // Tapi Aike
    "Tapi Aik\010\011\325ge\035\023\0271\0" // Tapi Aike / Argentina 1
    "Tapi Aik\010\011\325ge\035\023\0272\0" // Tapi Aike / Argentina 2
    "Tapi_Aike\0" // Tapi_Aike
    "Tapi_Aik\215\325ge\035\023\2561\0" // Tapi_Aike_Argentina_1
    "Tapi_Aik\215\325ge\035\023\2562\0" // Tapi_Aike_Argentina_2
    "T\037\005aki\377\340cu\245\0" // Taranaki_Circuit
    "Tayl\006\377\026\035y\372\0" // Taylor_County_Feet
    "Tayl\006\377\026\035y_M\313\0" // Taylor_County_Meters
    "Tayl\006\372\0" // Taylor_Feet
    "Tayl\006_M\313\0" // Taylor_Meters
    "T\207n\220se\010\13427\0" // Tennessee CS27
    "T\207n\220see\2724\3120\0" // Tennessee_FIPS_4100
    "T\207n\220see\2724\3120\372\0" // Tennessee_FIPS_4100_Feet
    "T\207n\220see\2724\3120`t_\203\0" // Tennessee_FIPS_4100_Ft_US
    "T\007\005\036_O\035\037io_L\225b\007t\0" // Teranet_Ontario_Lambert
    "T\007\207gg\005u\327}s\023i Gr\257\0" // Terengganu Cassini Grid
    "T\007n \335\31761\0" // Tern Island 1961
    "T\007n_\335\21161\0" // Tern_Island_1961
    "T\036e\0" // Tete
    "T\036\010\011U\254\27336S\0" // Tete / UTM zone 36S
    "T\036\010\011U\254\27337S\0" // Tete / UTM zone 37S
    "T\036\010\03160\0" // Tete 1960
    "T\036\215U\254_Z\003\21536S\0" // Tete_UTM_Zone_36S
    "T\036\215U\254_Z\003\21537S\0" // Tete_UTM_Zone_37S
    "Tex} \134\306\327\367\230$e\0" // Texas CS27 Central zone
    "Tex} \134\306 \324C\367\230$e\0" // Texas CS27 North Central zone
    "Tex} \134\306 \324$e\0" // Texas CS27 North zone
    "Tex} \134\306|\250C\367\230$e\0" // Texas CS27 South Central zone
    "Tex} \134\306|\250$e\0" // Texas CS27 South zone
    "Tex}|t=\010Mapp\023g|y\020\212\201m\313)\0" // Texas State Mapping System (meters)
    "Tex}\377\367\025\2724\0343\0" // Texas_Central_FIPS_4203
    "Tex}\377\367\025\2724\0343\372\0" // Texas_Central_FIPS_4203_Feet
    "Tex}\377\367\025\2724\0343`t_\203\0" // Texas_Central_FIPS_4203_Ft_US
    "Tex}\377\367#_Mapp\023g_Sy\020\212_Alb\232\0" // Texas_Centric_Mapping_System_Albers
    "Tex}\377\367#_Mapp\023g_Sy\020\212_L\225b\007t\0" // Texas_Centric_Mapping_System_Lambert
    "Tex}_\373\377\367\025\2724\0342\0" // Texas_North_Central_FIPS_4202
    "Tex}_\373\377\367\025\2724\0342\372\0" // Texas_North_Central_FIPS_4202_Feet
    "Tex}_\373\377\367\025\2724\0342`t\203\0" // Texas_North_Central_FIPS_4202_FtUS
    "Tex}_\373\2724\0341\0" // Texas_North_FIPS_4201
    "Tex}_\373\2724\0341\372\0" // Texas_North_FIPS_4201_Feet
    "Tex}_\373\2724\0341`t_\203\0" // Texas_North_FIPS_4201_Ft_US
    "Tex}_S\365\377\367\025\2724\0344\0" // Texas_South_Central_FIPS_4204
    "Tex}_S\365\377\367\025\2724\0344\372\0" // Texas_South_Central_FIPS_4204_Feet
    "Tex}_S\365\377\367\025\2724\0344`t\203\0" // Texas_South_Central_FIPS_4204_FtUS
    "Tex}_S\365\2724\0345\0" // Texas_South_FIPS_4205
    "Tex}_S\365\2724\0345\372\0" // Texas_South_FIPS_4205_Feet
    "Tex}_S\365\2724\0345`t_\203\0" // Texas_South_FIPS_4205_Ft_US
    "Tex}_St=ew\257\215Mapp\023g_Sy\020\212\0" // Texas_Statewide_Mapping_System
    "Thai\206\002B\003gk\337 fi\242d\0" // Thailand - Bongkot field
    "Thai\206\002e\314\243\3122\015\0" // Thailand - east of 102°E
    "Thai\206\002\236\0" // Thailand - onshore
    "Thai\206\002\210\010\253GoT 96\015\017o\3122\015\0" // Thailand - onshore and GoT 96°E to102°E
    "Thai\206\002\210\010\253Gulf \243Thai\206\0" // Thailand - onshore and Gulf of Thailand
    "Thai\206\002\210\010e\314\243\3122\015\0" // Thailand - onshore east of 102°E
    "Thim\237u_\254\0" // Thimphu_TM
    "Tim\037u\377\340cu\245\0" // Timaru_Circuit
    "Timb\025ai\31748\0" // Timbalai 1948
    "Timb\025ai\31748\012{O B\006ne\013(ch)\0" // Timbalai 1948 / RSO Borneo (ch)
    "Timb\025ai\31748\012{O B\006ne\013(ftSe)\0" // Timbalai 1948 / RSO Borneo (ftSe)
    "Timb\025ai\31748\012{O B\006ne\013(m)\0" // Timbalai 1948 / RSO Borneo (m)
    "Timb\025ai\31748\012{O|\037awak LSD (m)\0" // Timbalai 1948 / RSO Sarawak LSD (m)
    "Timb\025ai\31748\012U\254\27349N\0" // Timbalai 1948 / UTM zone 49N
    "Timb\025ai\31748\012U\254\27350N\0" // Timbalai 1948 / UTM zone 50N
    "Timb\025ai\31748\022GDBD\2279\2011)\0" // Timbalai 1948 to GDBD2009 (1)
    "Timb\025ai\31768\0" // Timbalai 1968
    "Timb\025ai\21148\0" // Timbalai_1948
    "Timb\025ai\21148_\0" // Timbalai_1948_
    "Tippec\005oe-Wh\245\215(ft\203)\0" // Tippecanoe-White_(ftUS)
    "Tippec\005oe-Wh\245\215(m)\0" // Tippecanoe-White_(m)
    "Togo\0" // Togo
    "Tokyo\0" // Tokyo
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 I\0" // Tokyo / Japan Plane Rectangular CS I
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 II\0" // Tokyo / Japan Plane Rectangular CS II
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 III\0" // Tokyo / Japan Plane Rectangular CS III
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 IV\0" // Tokyo / Japan Plane Rectangular CS IV
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 IX\0" // Tokyo / Japan Plane Rectangular CS IX
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 V\0" // Tokyo / Japan Plane Rectangular CS V
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VI\0" // Tokyo / Japan Plane Rectangular CS VI
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VII\0" // Tokyo / Japan Plane Rectangular CS VII
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 VIII\0" // Tokyo / Japan Plane Rectangular CS VIII
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 X\0" // Tokyo / Japan Plane Rectangular CS X
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XI\0" // Tokyo / Japan Plane Rectangular CS XI
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XII\0" // Tokyo / Japan Plane Rectangular CS XII
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIII\0" // Tokyo / Japan Plane Rectangular CS XIII
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIV\0" // Tokyo / Japan Plane Rectangular CS XIV
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XIX\0" // Tokyo / Japan Plane Rectangular CS XIX
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XV\0" // Tokyo / Japan Plane Rectangular CS XV
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVI\0" // Tokyo / Japan Plane Rectangular CS XVI
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVII\0" // Tokyo / Japan Plane Rectangular CS XVII
    "Tokyo\012Jap\005 Pl\005\010Re\322\005gul\037 \134 XVIII\0" // Tokyo / Japan Plane Rectangular CS XVIII
    "Tokyo\012U\254\27351N\0" // Tokyo / UTM zone 51N
    "Tokyo\012U\254\27352N\0" // Tokyo / UTM zone 52N
    "Tokyo\012U\254\27353N\0" // Tokyo / UTM zone 53N
    "Tokyo\012U\254\27354N\0" // Tokyo / UTM zone 54N
    "Tokyo\012U\254\27355N\0" // Tokyo / UTM zone 55N
    "Toky\0131892\0" // Tokyo 1892
    "Toky\0131892\012K\006e\027C\367\230B\242t\0" // Tokyo 1892 / Korea Central Belt
    "Toky\0131892\012K\006e\027E\314B\242t\0" // Tokyo 1892 / Korea East Belt
    "Toky\0131892\012K\006e\027Ea\020|e\027B\242t\0" // Tokyo 1892 / Korea East Sea Belt
    "Toky\0131892\012K\006e\027W\267B\242t\0" // Tokyo 1892 / Korea West Belt
    "Toky\0131898\0" // Tokyo 1898
    "Toky\013\03118\0" // Tokyo 1918
    "Tokyo_U\254_Z\003\215\0" // Tokyo_UTM_Zone_
    "T\003ga\0" // Tonga
    "T\003g\027Geod\036# D=um \2275\0" // Tonga Geodetic Datum 2005
    "T\003g\256Geod\036#_D=um_\2275\0" // Tonga_Geodetic_Datum_2005
    "T\350<ig\005g_\254\0" // Trashigang_TM
    "T>mpe\025eau\377\026\035y\372\0" // Trempealeau_County_Feet
    "T>mpe\025eau\377\026\035y_M\313\0" // Trempealeau_County_Meters
    "T>mpe\025eau\372\0" // Trempealeau_Feet
    "T>mpe\025eau_M\313\0" // Trempealeau_Meters
    "Tr\023\257\226 03 Gr\257\201ftCla)\0" // Trinidad 03 Grid (ftCla)
    "Tr\023\257\226\31703\0" // Trinidad 1903
    "Tr\023\257\226\31703\012Tr\023\257\226 Gr\257\0" // Trinidad 1903 / Trinidad Grid
    "Tr\023\257\226\31703\012Tr\023\257\226 Gr\257\201ftCla)\0" // Trinidad 1903 / Trinidad Grid (ftCla)
    "Tr\023\257\226 Gr\257\201Cl\037ke's f\234)\0" // Trinidad Grid (Clarke's feet)
    "Tr\023\257\226\374Tobago\0" // Trinidad and Tobago
    "Tr\023\257\226\374Tobago\002Tobago\002\236\0" // Trinidad and Tobago - Tobago - onshore
    "Tr\023\257\226\374Tobago\002Tr\023\257\226\0" // Trinidad and Tobago - Trinidad
    "Tr\023\257\226\374Tobago\002Tr\023\257\226\002\236\0" // Trinidad and Tobago - Trinidad - onshore
    "Tr\023\257\226\374Tobago\002\214f~\010e\314\24360!\0" // Trinidad and Tobago - offshore east of 60°W
    "Tr\023\257\226\374Tobago\002\214f~\010w\267\24360!\0" // Trinidad and Tobago - offshore west of 60°W
    "Tr\023\257\226\21103\0" // Trinidad_1903
    "Tr\023\257\226\21103_Tr\023\257\226_Gr\257\0" // Trinidad_1903_Trinidad_Grid
    "Tr\023\257\226\21103_Tr\023\257\226_Gr\257\372_Cl\037ke\0" // Trinidad_1903_Trinidad_Grid_Feet_Clarke
    "Trip\224\027\333F \254\0" // Tripura NSF TM
    "Tri\020\005\31768\0" // Tristan 1968
    "Tri\020\005\21168\0" // Tristan_1968
    "Tr\245\005|t. H\242\207a\0" // Tritan St. Helena
    "Tr\003gs\256\254\0" // Trongsa_TM
    "Truci\230Co\314\03148\0" // Trucial Coast 1948
    "Truci\025\377oa\020\21148\0" // Trucial_Coast_1948
    "Ts\340\005g_\254\0" // Tsirang_TM
    "Tuh\340\005gi\377\340cu\245\0" // Tuhirangi_Circuit
    "Tun\077\213n\006@\24334\00439'N\0" // Tunisia - north of 34°39'N
    "Tun\077\213\214f~e\0" // Tunisia - offshore
    "Tun\077\213\236\0" // Tunisia - onshore
    "Tun\077\213s\250\24334\00439'N\0" // Tunisia - south of 34°39'N
    "Tunj\256Boyac\256\03197\0" // Tunja_Boyaca_1997
    "T\224key\0" // Turkey
    "T\224key\00228\235\20031\235\015\356\0" // Turkey - 28.5°E to 31.5°E onshore
    "T\224key\00231\235\20034\235\015\356\0" // Turkey - 31.5°E to 34.5°E onshore
    "T\224key\00234\235\20037\235\015\356\0" // Turkey - 34.5°E to 37.5°E onshore
    "T\224key\00237\235\20040\235\015\356\0" // Turkey - 37.5°E to 40.5°E onshore
    "T\224key\00240\235\20043\235\015\356\0" // Turkey - 40.5°E to 43.5°E onshore
    "T\224key\002e\314\24343\235\015\0" // Turkey - east of 43.5°E
    "T\224key\002w\267\24328\235\015\356\0" // Turkey - west of 28.5°E onshore
    "T\224ki< N=\320\230Ref\007\207c\010Fr\225e\0" // Turkish National Reference Frame
    "T\224ki<_N=\320\025_Ref\007\207ce`r\225e\0" // Turkish_National_Reference_Frame
    "UAE\002Abu Dhabi\0" // UAE - Abu Dhabi
    "UAE\002Abu Dhabi\002\214f~e\0" // UAE - Abu Dhabi - offshore
    "UAE\002Abu Dhabi\002\236\0" // UAE - Abu Dhabi - onshore
    "UAE\002Abu Dhabi\002\210\010e\314\24354\015\0" // UAE - Abu Dhabi - onshore east of 54°E
    "UAE\002Abu Dhabi\002\210\010w\267\24354\015\0" // UAE - Abu Dhabi - onshore west of 54°E
    "UAE\002Abu Dhabi\374Dubai\002\236\0" // UAE - Abu Dhabi and Dubai - onshore
    "UAE\002Abu Dhabi\374Dubai\002\210\010e\314\24354\015\0" // UAE - Abu Dhabi and Dubai - onshore east of 54°E
    "UAE\002Abu Dhabi \077\206\0" // UAE - Abu Dhabi island
    "UAE\002Abu \230Bu Khoo<\0" // UAE - Abu al Bu Khoosh
    "UAE\002Dubai\002\214f~e\0" // UAE - Dubai - offshore
    "UAE\002Dubai mun#ip\025\245y\0" // UAE - Dubai municipality
    "UAE\002e\314\24354\015\0" // UAE - east of 54°E
    "U\134-\2270\0" // UCS-2000
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M 21E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M 24E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M \306E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M 30E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M 33E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M 36E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\327M 39E\0" // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\27310\0" // UCS-2000 / 3-degree Gauss-Kruger zone 10
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\27311\0" // UCS-2000 / 3-degree Gauss-Kruger zone 11
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\27312\0" // UCS-2000 / 3-degree Gauss-Kruger zone 12
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\27313\0" // UCS-2000 / 3-degree Gauss-Kruger zone 13
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\2737\0" // UCS-2000 / 3-degree Gauss-Kruger zone 7
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\2738\0" // UCS-2000 / 3-degree Gauss-Kruger zone 8
    "U\134-\2270\0123-deg>\010Ga\351s-Krug\007\2739\0" // UCS-2000 / 3-degree Gauss-Kruger zone 9
    "U\134-\2270\012Ga\351s-Krug\007\327M 21E\0" // UCS-2000 / Gauss-Kruger CM 21E
    "U\134-\2270\012Ga\351s-Krug\007\327M \306E\0" // UCS-2000 / Gauss-Kruger CM 27E
    "U\134-\2270\012Ga\351s-Krug\007\327M 33E\0" // UCS-2000 / Gauss-Kruger CM 33E
    "U\134-\2270\012Ga\351s-Krug\007\327M 39E\0" // UCS-2000 / Gauss-Kruger CM 39E
    "U\134-\2270\012Ga\351s-Krug\007\2734\0" // UCS-2000 / Gauss-Kruger zone 4
    "U\134-\2270\012Ga\351s-Krug\007\2735\0" // UCS-2000 / Gauss-Kruger zone 5
    "U\134-\2270\012Ga\351s-Krug\007\2736\0" // UCS-2000 / Gauss-Kruger zone 6
    "U\134-\2270\012Ga\351s-Krug\007\2737\0" // UCS-2000 / Gauss-Kruger zone 7
    "U\134-\2270\012L\134-01\327rimea\0" // UCS-2000 / LCS-01 Crimea
    "U\134-\2270\012L\134-05 V\023nytsia\0" // UCS-2000 / LCS-05 Vinnytsia
    "U\134-\2270\012L\134-07 V\246yn\0" // UCS-2000 / LCS-07 Volyn
    "U\134-\2270\012L\134-12 Dniprop\036rovsk\0" // UCS-2000 / LCS-12 Dnipropetrovsk
    "U\134-\2270\012L\134-14 D\003\036sk\0" // UCS-2000 / LCS-14 Donetsk
    "U\134-\2270\012L\134-18 Zhyt\343yr\0" // UCS-2000 / LCS-18 Zhytomyr
    "U\134-\2270\012L\134-21 Zak\037p=tia\0" // UCS-2000 / LCS-21 Zakarpattia
    "U\134-\2270\012L\134-23 Zap\006izhzhia\0" // UCS-2000 / LCS-23 Zaporizhzhia
    "U\134-\2270\012L\134-26 Iv\005o-Fr\005kivsk\0" // UCS-2000 / LCS-26 Ivano-Frankivsk
    "U\134-\2270\012L\134-32 Kyiv \265\320\0" // UCS-2000 / LCS-32 Kyiv region
    "U\134-\2270\012L\134-35 K\340ovohr\226\0" // UCS-2000 / LCS-35 Kirovohrad
    "U\134-\2270\012L\134-44 Luh\005sk\0" // UCS-2000 / LCS-44 Luhansk
    "U\134-\2270\012L\134-46 Lviv\0" // UCS-2000 / LCS-46 Lviv
    "U\134-\2270\012L\134-48 Myk\246aiv\0" // UCS-2000 / LCS-48 Mykolaiv
    "U\134-\2270\012L\134-51 Od\220sa\0" // UCS-2000 / LCS-51 Odessa
    "U\134-\2270\012L\134-53 P\246tava\0" // UCS-2000 / LCS-53 Poltava
    "U\134-\2270\012L\134-56 Rivne\0" // UCS-2000 / LCS-56 Rivne
    "U\134-\2270\012L\134-59|umy\0" // UCS-2000 / LCS-59 Sumy
    "U\134-\2270\012L\134-61 T\007nop\341\0" // UCS-2000 / LCS-61 Ternopil
    "U\134-\2270\012L\134-63 Kh\037kiv\0" // UCS-2000 / LCS-63 Kharkiv
    "U\134-\2270\012L\134-65 Kh\232\003\0" // UCS-2000 / LCS-65 Kherson
    "U\134-\2270\012L\134-68 Khm\242nytsky\0" // UCS-2000 / LCS-68 Khmelnytsky
    "U\134-\2270\012L\134-71\327h\007k}y\0" // UCS-2000 / LCS-71 Cherkasy
    "U\134-\2270\012L\134-73\327h\007nivtsi\0" // UCS-2000 / LCS-73 Chernivtsi
    "U\134-\2270\012L\134-74\327h\007nihiv\0" // UCS-2000 / LCS-74 Chernihiv
    "U\134-\2270\012L\134-80 Kyiv c\245y\0" // UCS-2000 / LCS-80 Kyiv city
    "U\134-\2270\012L\134-85|eva\020op\246\0" // UCS-2000 / LCS-85 Sevastopol
    "U\134-\2270\012Uk\350\023\010\254\27310\0" // UCS-2000 / Ukraine TM zone 10
    "U\134-\2270\012Uk\350\023\010\254\27311\0" // UCS-2000 / Ukraine TM zone 11
    "U\134-\2270\012Uk\350\023\010\254\27312\0" // UCS-2000 / Ukraine TM zone 12
    "U\134-\2270\012Uk\350\023\010\254\27313\0" // UCS-2000 / Ukraine TM zone 13
    "U\134-\2270\012Uk\350\023\010\254\2737\0" // UCS-2000 / Ukraine TM zone 7
    "U\134-\2270\012Uk\350\023\010\254\2738\0" // UCS-2000 / Ukraine TM zone 8
    "U\134-\2270\012Uk\350\023\010\254\2739\0" // UCS-2000 / Ukraine TM zone 9
    "U\134-\2270\2734\0" // UCS-2000 zone 4
    "U\134-\2270\2735\0" // UCS-2000 zone 5
    "U\134-\2270\2736\0" // UCS-2000 zone 6
    "U\134-\2270\2737\0" // UCS-2000 zone 7
    "UK\002Ab\007de\207\022\310v\007n\220s\0" // UK - Aberdeen to Inverness
    "UK\002Br\245a\023\374UK\134 49\00445'N\02261\004N\2779\2212\015\0" // UK - Britain and UKCS 49°45'N to 61°N, 9°W to 2°E
    "UK\002C\037diff\022L\023c\246n\0" // UK - Cardiff to Lincoln
    "UK\002Eng\206\0" // UK - England
    "UK\002Eng\206\374W\025\220\277\316l\010\243M\005\0" // UK - England and Wales, Isle of Man
    "UK\002Gl}gow\022K\341m\037nock\0" // UK - Glasgow to Kilmarnock
    "UK\002G>= Br\245a\023 \210\010\253ne\037~e; \316l\010\243M\005\0" // UK - Great Britain onshore and nearshore; Isle of Man
    "UK\002G>= Br\245a\023\356; \316l\010\243M\005\0" // UK - Great Britain onshore; Isle of Man
    "UK\002\310v\007n\220s\022Th\224so\0" // UK - Inverness to Thurso
    "UK\002Le\275s\022Hull\0" // UK - Leeds to Hull
    "UK\002Liv\007po\246\022Le\275s\0" // UK - Liverpool to Leeds
    "UK\002L\003d\003\022B\340m\023gh\225\374C>we\0" // UK - London to Birmingham and Crewe
    "UK\002L\003d\003\022Sheffi\242d\0" // UK - London to Sheffield
    "UK\002M\005che\020\007\022D\006e\0" // UK - Manchester to Dore
    "UK\002M\005che\020\007\277Wig\005\374Che\020\007\0" // UK - Manchester, Wigan and Chester
    "UK\002Mo\024\007w\242l\022\310v\007n\220s\0" // UK - Motherwell to Inverness
    "UK\002\357ca\020l\010t\013A<\023gt\003\0" // UK - Newcastle to Ashington
    "UK\002\357p\006t\022Ebbw V\025e\0" // UK - Newport to Ebbw Vale
    "UK\002\373\007n I>\206\002\236\0" // UK - Northern Ireland - onshore
    "UK\002Oxf\006d\022B\275f\006d\0" // UK - Oxford to Bedford
    "UK\002Sc\337\206\0" // UK - Scotland
    "UK\002Twe\275m\365\022Ab\007de\207\0" // UK - Tweedmouth to Aberdeen
    "UK\002W\025\220\0" // UK - Wales
    "UK\002Wytch F\037m\0" // UK - Wytch Farm
    "UK\002\214f~\216\324Sea\0" // UK - offshore - North Sea
    "U\247_\373\0" // UPS_North
    "U\247_S\365\0" // UPS_South
    "\203 F\006e\020|\007v#\010\265i\2316 Alb\232\0" // US Forest Service region 6 Albers
    "\203 \333IDC EASE-Gr\257 2.0 Glob\025\0" // US NSIDC EASE-Grid 2.0 Global
    "\203 \333IDC EASE-Gr\257 2.0 \373\0" // US NSIDC EASE-Grid 2.0 North
    "\203 \333IDC EASE-Gr\257 2.0|\365\0" // US NSIDC EASE-Grid 2.0 South
    "\203 \333IDC Equ\230A>\027glob\230proje\322\320\0" // US NSIDC Equal Area global projection
    "\203 \333IDC Equ\230A>\027n\006@proje\322\320\0" // US NSIDC Equal Area north projection
    "\203 \333IDC Equ\230A>\027s\250proje\322\320\0" // US NSIDC Equal Area south projection
    "\203 \333IDC|e\027Ic\010p\246\037 \020\007eog\350\237# n\006\024\0" // US NSIDC Sea Ice polar stereographic north
    "\203 \333IDC|e\027Ic\010p\246\037 \020\007eog\350\237# s\365\0" // US NSIDC Sea Ice polar stereographic south
    "\203 s\224ve\204cha\023\0" // US survey chain
    "\203 s\224ve\204fo\337\0" // US survey foot
    "\203 s\224ve\204l\023k\0" // US survey link
    "\203 s\224ve\204m\341e\0" // US survey mile
    "\222\0" // USA
    "\223\3122\22196!\0" // USA - 102°W to 96°W
    "\223\3122\22196!\374GoM O\134\0" // USA - 102°W to 96°W and GoM OCS
    "\223\3122\22196!\356\0" // USA - 102°W to 96°W onshore
    "\223\3128\221\3122!\0" // USA - 108°W to 102°W
    "\223\2024\221\3128!\0" // USA - 114°W to 108°W
    "\2231\034\221\2024!\0" // USA - 120°W to 114°W
    "\2231\034\221\2024!\356\0" // USA - 120°W to 114°W onshore
    "\223126\2211\034!\0" // USA - 126°W to 120°W
    "\223126\2211\034!\356\0" // USA - 126°W to 120°W onshore
    "\223132\221126!\0" // USA - 132°W to 126°W
    "\223138\221132!\0" // USA - 138°W to 132°W
    "\223144\221138!\0" // USA - 144°W to 138°W
    "\223150\221144!\002AK\277O\134\0" // USA - 150°W to 144°W - AK, OCS
    "\223156\221150!\002AK\277HI\0" // USA - 156°W to 150°W - AK, HI
    "\223156\221150!\002AK\277O\134\0" // USA - 156°W to 150°W - AK, OCS
    "\223156\221150! \210\216HI\0" // USA - 156°W to 150°W onshore - HI
    "\223162\221156!\002AK\277HI\0" // USA - 162°W to 156°W - AK, HI
    "\223162\221156!\002AK\277O\134\0" // USA - 162°W to 156°W - AK, OCS
    "\223162\221156! \210\216HI\0" // USA - 162°W to 156°W onshore - HI
    "\223168\221162!\002AK\277O\134\0" // USA - 168°W to 162°W - AK, OCS
    "\223174\35480\015\002AK\277O\134\0" // USA - 174°E to 180°E - AK, OCS
    "\223174\221168!\002AK\277O\134\0" // USA - 174°W to 168°W - AK, OCS
    "\223180\221174!\002AK\277O\134\0" // USA - 180°W to 174°W - AK, OCS
    "\22372\22166!\0" // USA - 72°W to 66°W
    "\22372\22166!\356\0" // USA - 72°W to 66°W onshore
    "\22378\22172!\0" // USA - 78°W to 72°W
    "\22378\22172!\356\0" // USA - 78°W to 72°W onshore
    "\22384\22178!\0" // USA - 84°W to 78°W
    "\22384\22178!\374GoM O\134\0" // USA - 84°W to 78°W and GoM OCS
    "\22384\22178!\356\0" // USA - 84°W to 78°W onshore
    "\22390\22184!\0" // USA - 90°W to 84°W
    "\22390\22184!\374GoM O\134\0" // USA - 90°W to 84°W and GoM OCS
    "\22390\22184!\356\0" // USA - 90°W to 84°W onshore
    "\22396\22190!\0" // USA - 96°W to 90°W
    "\22396\22190!\374GoM O\134\0" // USA - 96°W to 90°W and GoM OCS
    "\22396\22190!\356\0" // USA - 96°W to 90°W onshore
    "\223Alab\225a\0" // USA - Alabama
    "\223Alab\225\030\276\002E\0" // USA - Alabama - SPCS - E
    "\223Alab\225\030\276\002W\0" // USA - Alabama - SPCS - W
    "\223Al}ka\0" // USA - Alaska
    "\223Al}k\030144\221141!\0" // USA - Alaska - 144°W to 141°W
    "\223Al}k\030148\221144!\0" // USA - Alaska - 148°W to 144°W
    "\223Al}k\030152\221148!\0" // USA - Alaska - 152°W to 148°W
    "\223Al}k\030156\221152!\0" // USA - Alaska - 156°W to 152°W
    "\223Al}k\030160\221156!\0" // USA - Alaska - 160°W to 156°W
    "\223Al}k\030164\221160!\0" // USA - Alaska - 164°W to 160°W
    "\223Al}k\030Aleut\336 \335s\0" // USA - Alaska - Aleutian Islands
    "\223Al}k\030Aleut\336 \335s e\314\243180\015\0" // USA - Alaska - Aleutian Islands east of 180°E
    "\223Al}k\030Aleut\336 \335s w\267\243180!\0" // USA - Alaska - Aleutian Islands west of 180°W
    "\223Al}k\030P\005h\033le\0" // USA - Alaska - Panhandle
    "\223Al}k\030St. Ge\006g\010\335\0" // USA - Alaska - St. George Island
    "\223Al}k\030St. Law>nc\010\335\0" // USA - Alaska - St. Lawrence Island
    "\223Al}k\030St. Paul \335\0" // USA - Alaska - St. Paul Island
    "\223Al}k\030n\006@\24354\235\004N; 168\221164!\0" // USA - Alaska - north of 54.5°N; 168°W to 164°W
    "\223Al}k\030n\006@\24354\235\004N; w\267\243168!\0" // USA - Alaska - north of 54.5°N; west of 168°W
    "\223Al}k\027\023clud\023g EEZ\0" // USA - Alaska including EEZ
    "\223Al}k\027ma\023\206\0" // USA - Alaska mainland
    "\223Amt\350k NE c\006r\257\006\0" // USA - Amtrak NE corridor
    "\223\325i$a\0" // USA - Arizona
    "\223\325i$\030Pim\027\352\035\204Mt. L\212m\003\0" // USA - Arizona - Pima county Mt. Lemmon
    "\223\325i$\030Pim\027\352\035\204c\367\025\0" // USA - Arizona - Pima county central
    "\223\325i$\030Pim\027\352\035\204ea\020\0" // USA - Arizona - Pima county east
    "\223\325i$\030Pim\027\352\035\204we\020\0" // USA - Arizona - Pima county west
    "\223\325i$\030\276\002C\0" // USA - Arizona - SPCS - C
    "\223\325i$\030\276\002E\0" // USA - Arizona - SPCS - E
    "\223\325i$\030\276\002W\0" // USA - Arizona - SPCS - W
    "\223\325k\005s}\0" // USA - Arkansas
    "\223\325k\005s}\002\276\002N\0" // USA - Arkansas - SPCS - N
    "\223\325k\005s}\002\276\002S\0" // USA - Arkansas - SPCS - S
    "\223CON\203\002\236\0" // USA - CONUS - onshore
    "\223CON\203\374Al}ka; PRVI\0" // USA - CONUS and Alaska; PRVI
    "\223CON\203\374GoM\0" // USA - CONUS and GoM
    "\223CON\203 e\314\243M\077s\077sippi Riv\007\002\236\0" // USA - CONUS east of Mississippi River - onshore
    "\223CON\203 \023clud\023g EEZ\0" // USA - CONUS including EEZ
    "\223CON\203 w\267\243M\077s\077sippi Riv\007\002\236\0" // USA - CONUS west of Mississippi River - onshore
    "\223C\025if\006nia\0" // USA - California
    "\223C\025if\006n\213\276\0021\0" // USA - California - SPCS - 1
    "\223C\025if\006n\213\276\0022\0" // USA - California - SPCS - 2
    "\223C\025if\006n\213\276\0023\0" // USA - California - SPCS - 3
    "\223C\025if\006n\213\276\0024\0" // USA - California - SPCS - 4
    "\223C\025if\006n\213\276\0026\0" // USA - California - SPCS - 6
    "\223C\025if\006n\213\276\306\0025\0" // USA - California - SPCS27 - 5
    "\223C\025if\006n\213\276\306\0027\0" // USA - California - SPCS27 - 7
    "\223C\025if\006n\213\364\0025\0" // USA - California - SPCS83 - 5
    "\223C\025if\006n\213S\005 Fr\005c\077c\013Ba\204A>a\0" // USA - California - San Francisco Bay Area
    "\223C\025if\006n\213n\006@\24336\235\004N\0" // USA - California - north of 36.5°N
    "\223C\025if\006n\213s\250\24336\235\004N\0" // USA - California - south of 36.5°N
    "\223C\246\006\226o\0" // USA - Colorado
    "\223C\246\006\226o\002\276\002C\0" // USA - Colorado - SPCS - C
    "\223C\246\006\226o\002\276\002N\0" // USA - Colorado - SPCS - N
    "\223C\246\006\226o\002\276\002S\0" // USA - Colorado - SPCS - S
    "\223C\003ne\322#ut\0" // USA - Connecticut
    "\223D\242aw\037e\0" // USA - Delaware
    "\223D\242aw\037\010\253M\037y\206\0" // USA - Delaware and Maryland
    "\223FBN\0" // USA - FBN
    "\223Fl\006\257a\0" // USA - Florida
    "\223Fl\006\257\030\276\002E\0" // USA - Florida - SPCS - E
    "\223Fl\006\257\030\276\002N\0" // USA - Florida - SPCS - N
    "\223Fl\006\257\030\276\002W\0" // USA - Florida - SPCS - W
    "\223Ge\006gia\0" // USA - Georgia
    "\223Ge\006g\213\276\002E\0" // USA - Georgia - SPCS - E
    "\223Ge\006g\213\276\002W\0" // USA - Georgia - SPCS - W
    "\223GoM\00295\22187.25!\0" // USA - GoM - 95°W to 87.25°W
    "\223GoM\002e\314\24387.25!\0" // USA - GoM - east of 87.25°W
    "\223GoM\002w\267\24395!\0" // USA - GoM - west of 95°W
    "\223GoM O\134\0" // USA - GoM OCS
    "\223GoM O\134\00290\22184!\0" // USA - GoM OCS - 90°W to 84°W
    "\223GoM O\134\00296\22190!\0" // USA - GoM OCS - 96°W to 90°W
    "\223GoM O\134\002e\314\24384!\0" // USA - GoM OCS - east of 84°W
    "\223GoM O\134\002w\267\24396!\0" // USA - GoM OCS - west of 96°W
    "\223\334\0" // USA - HARN
    "\223Hawaii\002Kauai\002\236\0" // USA - Hawaii - Kauai - onshore
    "\223Hawaii\002Maui; K\361o\246awe; L\005ai; M\246okai\002\236\0" // USA - Hawaii - Maui; Kahoolawe; Lanai; Molokai - onshore
    "\223Hawaii\002Niihau\002\236\0" // USA - Hawaii - Niihau - onshore
    "\223Hawaii\002O\361u\002\236\0" // USA - Hawaii - Oahu - onshore
    "\223Hawaii\002T\007n \335 \033|\006\242 At\246l\0" // USA - Hawaii - Tern Island and Sorel Atoll
    "\223Hawaii\002\077\206 \243Hawaii\002\236\0" // USA - Hawaii - island of Hawaii - onshore
    "\223Hawaii\002ma\023 \077\206s\0" // USA - Hawaii - main islands
    "\223Hawaii\002\236\0" // USA - Hawaii - onshore
    "\223Id\361o\0" // USA - Idaho
    "\223Id\361o\002\276\002C\0" // USA - Idaho - SPCS - C
    "\223Id\361o\002\276\002E\0" // USA - Idaho - SPCS - E
    "\223Id\361o\002\276\002W\0" // USA - Idaho - SPCS - W
    "\223Id\361\013\253M\003t\005\030e\314\243\2023!\0" // USA - Idaho and Montana - east of 113°W
    "\223Id\361\013\253M\003t\005\030w\267\243\2023!\0" // USA - Idaho and Montana - west of 113°W
    "\223Ill\023o\077\0" // USA - Illinois
    "\223Ill\023o\077\002\276\002E\0" // USA - Illinois - SPCS - E
    "\223Ill\023o\077\002\276\002W\0" // USA - Illinois - SPCS - W
    "\223\360\336a\0" // USA - Indiana
    "\223\360\336\030Ad\225s\0" // USA - Indiana - Adams
    "\223\360\336\030All\207\0" // USA - Indiana - Allen
    "\223\360\336\030B\037\024\246\343ew\0" // USA - Indiana - Bartholomew
    "\223\360\336\030Be\035\003\0" // USA - Indiana - Benton
    "\223\360\336\030Blackf\006d\374D\242aw\037e\0" // USA - Indiana - Blackford and Delaware
    "\223\360\336\030Bo\003\010\253H\207dr#ks\0" // USA - Indiana - Boone and Hendricks
    "\223\360\336\030Brown\0" // USA - Indiana - Brown
    "\223\360\336\030C\037r\246l\0" // USA - Indiana - Carroll
    "\223\360\336\030C}s\0" // USA - Indiana - Cass
    "\223\360\336\030Cl\037k\277Floyd,|c\337t\0" // USA - Indiana - Clark, Floyd, Scott
    "\223\360\336\030Clay\0" // USA - Indiana - Clay
    "\223\360\336\030Cl\023t\003\0" // USA - Indiana - Clinton
    "\223\360\336\030C\350wf\006d\277Law>nce\277Or\005ge\0" // USA - Indiana - Crawford, Lawrence, Orange
    "\223\360\336\030Davi\220s\374G>\207e\0" // USA - Indiana - Daviess and Greene
    "\223\360\336\030DeK\025b\0" // USA - Indiana - DeKalb
    "\223\360\336\030De\037b\006n\277Ohio,|w\245z\007\206\0" // USA - Indiana - Dearborn, Ohio, Switzerland
    "\223\360\336\030Dec=\224\374Ru<\0" // USA - Indiana - Decatur and Rush
    "\223\360\336\030Dubo\077\374M\037t\023\0" // USA - Indiana - Dubois and Martin
    "\223\360\336\030Elkh\037t\277Kosci\351ko\277Waba<\0" // USA - Indiana - Elkhart, Kosciusko, Wabash
    "\223\360\336\030Fay\036te\277Fr\005kl\023\277Un\320\0" // USA - Indiana - Fayette, Franklin, Union
    "\223\360\336\030F\026\035a\023\374W\037>n\0" // USA - Indiana - Fountain and Warren
    "\223\360\336\030Fult\003\277M\037<\025l,|t Jose\237\0" // USA - Indiana - Fulton, Marshall, St Joseph
    "\223\360\336\030Gibs\003\0" // USA - Indiana - Gibson
    "\223\360\336\030Gr\005t\0" // USA - Indiana - Grant
    "\223\360\336\030H\225\341t\231\253Tipt\003\0" // USA - Indiana - Hamilton and Tipton
    "\223\360\336\030H\005cock\374M\226\077\003\0" // USA - Indiana - Hancock and Madison
    "\223\360\336\030H\037r\077\231\253Wa<\023gt\003\0" // USA - Indiana - Harrison and Washington
    "\223\360\336\030H\207ry\0" // USA - Indiana - Henry
    "\223\360\336\030How\037d\374Mi\225i\0" // USA - Indiana - Howard and Miami
    "\223\360\336\030Hu\035\023gt\231\253Wh\245ley\0" // USA - Indiana - Huntington and Whitley
    "\223\360\336\030Jacks\003\0" // USA - Indiana - Jackson
    "\223\360\336\030J}p\007\374P\006t\007\0" // USA - Indiana - Jasper and Porter
    "\223\360\336\030Jay\0" // USA - Indiana - Jay
    "\223\360\336\030Jeff\232\003\0" // USA - Indiana - Jefferson
    "\223\360\336\030J\207n\023gs\0" // USA - Indiana - Jennings
    "\223\360\336\030Johns\231\253M\037\320\0" // USA - Indiana - Johnson and Marion
    "\223\360\336\030Knox\0" // USA - Indiana - Knox
    "\223\360\336\030LaGr\005g\010\253Noble\0" // USA - Indiana - LaGrange and Noble
    "\223\360\336\030LaP\006te\277Pul}ki,|t\037ke\0" // USA - Indiana - LaPorte, Pulaski, Starke
    "\223\360\336\030Lak\010\253\357t\003\0" // USA - Indiana - Lake and Newton
    "\223\360\336\030M\003ro\010\253M\006g\005\0" // USA - Indiana - Monroe and Morgan
    "\223\360\336\030M\003tg\343\007\204\253Putn\225\0" // USA - Indiana - Montgomery and Putnam
    "\223\360\336\030Ow\207\0" // USA - Indiana - Owen
    "\223\360\336\030P\037k\010\253V\007m\341l\320\0" // USA - Indiana - Parke and Vermillion
    "\223\360\336\030P\007ry\0" // USA - Indiana - Perry
    "\223\360\336\030Pik\010\253W\037r#k\0" // USA - Indiana - Pike and Warrick
    "\223\360\336\030Posey\0" // USA - Indiana - Posey
    "\223\360\336\030R\033\246\237\374Wayne\0" // USA - Indiana - Randolph and Wayne
    "\223\360\336\030Ripley\0" // USA - Indiana - Ripley
    "\223\360\336\030\276\002E\0" // USA - Indiana - SPCS - E
    "\223\360\336\030\276\002W\0" // USA - Indiana - SPCS - W
    "\223\360\336\030Sh\242by\0" // USA - Indiana - Shelby
    "\223\360\336\030Sp\207c\007\0" // USA - Indiana - Spencer
    "\223\360\336\030Steub\207\0" // USA - Indiana - Steuben
    "\223\360\336\030Sulliv\005\0" // USA - Indiana - Sullivan
    "\223\360\336\030Tippec\005o\010\253Wh\245e\0" // USA - Indiana - Tippecanoe and White
    "\223\360\336\030V\033\007b\224gh\0" // USA - Indiana - Vanderburgh
    "\223\360\336\030Vigo\0" // USA - Indiana - Vigo
    "\223\360\336\030W\242ls\0" // USA - Indiana - Wells
    "\223Iowa\0" // USA - Iowa
    "\223Iow\030Am\220-D\220 Mo\023\220\0" // USA - Iowa - Ames-Des Moines
    "\223Iow\030B\224l\023gt\003\0" // USA - Iowa - Burlington
    "\223Iow\030C\037r\246l-Atl\005t#\0" // USA - Iowa - Carroll-Atlantic
    "\223Iow\030C\275\037 Rap\257s\0" // USA - Iowa - Cedar Rapids
    "\223Iow\030C\026nc\341 Bluffs\0" // USA - Iowa - Council Bluffs
    "\223Iow\030Dubuque-Dav\207p\006t\0" // USA - Iowa - Dubuque-Davenport
    "\223Iow\030Elk\226\007\0" // USA - Iowa - Elkader
    "\223Iow\030Fa\340fi\242d\0" // USA - Iowa - Fairfield
    "\223Iow\030M}\231C\245y\0" // USA - Iowa - Mason City
    "\223Iow\030\357t\003\0" // USA - Iowa - Newton
    "\223Iow\030R\275 Oak-Ottumwa\0" // USA - Iowa - Red Oak-Ottumwa
    "\223Iow\030\276\002N\0" // USA - Iowa - SPCS - N
    "\223Iow\030\276\002S\0" // USA - Iowa - SPCS - S
    "\223Iow\030Si\026x\327\245y-Iow\027F\025ls\0" // USA - Iowa - Sioux City-Iowa Falls
    "\223Iow\030Sp\207c\007\0" // USA - Iowa - Spencer
    "\223Iow\030W=\007loo\0" // USA - Iowa - Waterloo
    "\223K\005s}\0" // USA - Kansas
    "\223K\005s}\002\325k\005s}\327\245y\0" // USA - Kansas - Arkansas City
    "\223K\005s}\002Atch\077\003\0" // USA - Kansas - Atchison
    "\223K\005s}\002B\242o\245\0" // USA - Kansas - Beloit
    "\223K\005s}\002C\214feyv\341le\0" // USA - Kansas - Coffeyville
    "\223K\005s}\002C\246by\0" // USA - Kansas - Colby
    "\223K\005s}\002Dodg\010C\245y\0" // USA - Kansas - Dodge City
    "\223K\005s}\002Emp\006ia\0" // USA - Kansas - Emporia
    "\223K\005s}\002G\037d\207\327\245y\0" // USA - Kansas - Garden City
    "\223K\005s}\002Good\206\0" // USA - Kansas - Goodland
    "\223K\005s}\002G>= B\207d\0" // USA - Kansas - Great Bend
    "\223K\005s}\002Hays\0" // USA - Kansas - Hays
    "\223K\005s}\002K\005s}\327\245y\0" // USA - Kansas - Kansas City
    "\223K\005s}\002L\037n\275\0" // USA - Kansas - Larned
    "\223K\005s}\002M\005h=t\005\0" // USA - Kansas - Manhattan
    "\223K\005s}\002Ob\007l\023\0" // USA - Kansas - Oberlin
    "\223K\005s}\002P\245tsb\224g\0" // USA - Kansas - Pittsburg
    "\223K\005s}\002Pr=t\0" // USA - Kansas - Pratt
    "\223K\005s}\002\276\002N\0" // USA - Kansas - SPCS - N
    "\223K\005s}\002\276\002S\0" // USA - Kansas - SPCS - S
    "\223K\005s}\002S\025\023a\0" // USA - Kansas - Salina
    "\223K\005s}\002Ulyss\220\0" // USA - Kansas - Ulysses
    "\223K\005s}\002W#h\245a\0" // USA - Kansas - Wichita
    "\223Ke\035ucky\0" // USA - Kentucky
    "\223Ke\035ucky\002\276\002N\0" // USA - Kentucky - SPCS - N
    "\223Ke\035ucky\002\276\002S\0" // USA - Kentucky - SPCS - S
    "\223L\026\077\336a\0" // USA - Louisiana
    "\223L\026\077\336\030\276\002N\0" // USA - Louisiana - SPCS - N
    "\223L\026\077\336\030\276\306\002S\0" // USA - Louisiana - SPCS27 - S
    "\223L\026\077\336\030\364\002S\0" // USA - Louisiana - SPCS83 - S
    "\223Ma\023e\0" // USA - Maine
    "\223Ma\023\216\134\2270\002C\0" // USA - Maine - CS2000 - C
    "\223Ma\023\216\134\2270\002E\0" // USA - Maine - CS2000 - E
    "\223Ma\023\216\134\2270\002W\0" // USA - Maine - CS2000 - W
    "\223Ma\023\216\276\002E\0" // USA - Maine - SPCS - E
    "\223Ma\023\216\276\002W\0" // USA - Maine - SPCS - W
    "\223M\037y\206\0" // USA - Maryland
    "\223M}sach\351\036ts\002\276\002\077\206s\0" // USA - Massachusetts - SPCS - islands
    "\223M}sach\351\036ts\002\276\002ma\023\206\0" // USA - Massachusetts - SPCS - mainland
    "\223M#hig\005\0" // USA - Michigan
    "\223M#hig\005\002\276\002C\0" // USA - Michigan - SPCS - C
    "\223M#hig\005\002\276\002E\0" // USA - Michigan - SPCS - E
    "\223M#hig\005\002\276\002N\0" // USA - Michigan - SPCS - N
    "\223M#hig\005\002\276\002S\0" // USA - Michigan - SPCS - S
    "\223M#hig\005\002\276\002W\0" // USA - Michigan - SPCS - W
    "\223M#hig\005\002\276\002\246d c\367\025\0" // USA - Michigan - SPCS - old central
    "\223M\023n\220\337a\0" // USA - Minnesota
    "\223M\023n\220\337\030\276\002C\0" // USA - Minnesota - SPCS - C
    "\223M\023n\220\337\030\276\002N\0" // USA - Minnesota - SPCS - N
    "\223M\023n\220\337\030\276\002S\0" // USA - Minnesota - SPCS - S
    "\223M\077s\077sippi\0" // USA - Mississippi
    "\223M\077s\077sippi\002\276\002E\0" // USA - Mississippi - SPCS - E
    "\223M\077s\077sippi\002\276\002W\0" // USA - Mississippi - SPCS - W
    "\223M\077s\026ri\0" // USA - Missouri
    "\223M\077s\026ri\002\276\002C\0" // USA - Missouri - SPCS - C
    "\223M\077s\026ri\002\276\002E\0" // USA - Missouri - SPCS - E
    "\223M\077s\026ri\002\276\002W\0" // USA - Missouri - SPCS - W
    "\223M\003t\005a\0" // USA - Montana
    "\223M\003t\005\030B\341l\023gs\0" // USA - Montana - Billings
    "\223M\003t\005\030Blackf\234 >s\007v=\320\0" // USA - Montana - Blackfeet reservation
    "\223M\003t\005\030Crow >s\007v=\320\0" // USA - Montana - Crow reservation
    "\223M\003t\005\030F\006t B\242knap\0" // USA - Montana - Fort Belknap
    "\223M\003t\005\030F\006t Peck high\007 \037e}\0" // USA - Montana - Fort Peck higher areas
    "\223M\003t\005\030F\006t Peck low\007 \037e}\0" // USA - Montana - Fort Peck lower areas
    "\223M\003t\005\030M\341k Riv\007\0" // USA - Montana - Milk River
    "\223M\003t\005\030\276\306\002C\0" // USA - Montana - SPCS27 - C
    "\223M\003t\005\030\276\306\002N\0" // USA - Montana - SPCS27 - N
    "\223M\003t\005\030\276\306\002S\0" // USA - Montana - SPCS27 - S
    "\223M\003t\005\030St M\037\204v\025ley\0" // USA - Montana - St Mary valley
    "\223M\003t\005\030Th>\010F\006ks\0" // USA - Montana - Three Forks
    "\223\307br}ka\0" // USA - Nebraska
    "\223\307br}k\030\276\306\002N\0" // USA - Nebraska - SPCS27 - N
    "\223\307br}k\030\276\306\002S\0" // USA - Nebraska - SPCS27 - S
    "\223\307v\226a\0" // USA - Nevada
    "\223\307v\226\030L} Veg}\0" // USA - Nevada - Las Vegas
    "\223\307v\226\030L} Veg} high \242ev=\320\0" // USA - Nevada - Las Vegas high elevation
    "\223\307v\226\030\276\002C\0" // USA - Nevada - SPCS - C
    "\223\307v\226\030\276\002E\0" // USA - Nevada - SPCS - E
    "\223\307v\226\030\276\002W\0" // USA - Nevada - SPCS - W
    "\223\357 Eng\206\002s\250(CT\277MA\277NH\277RI\277VT)\0" // USA - New England - south (CT, MA, NH, RI, VT)
    "\223\357 H\225p<i>\0" // USA - New Hampshire
    "\223\357 J\232ey\0" // USA - New Jersey
    "\223\357 Mex#o\0" // USA - New Mexico
    "\223\357 Mex#o\002\276\002E\0" // USA - New Mexico - SPCS - E
    "\223\357 Mex#o\002\276\306\002C\0" // USA - New Mexico - SPCS27 - C
    "\223\357 Mex#o\002\276\306\002W\0" // USA - New Mexico - SPCS27 - W
    "\223\357 Mex#o\002\364\002C\0" // USA - New Mexico - SPCS83 - C
    "\223\357 Mex#o\002\364\002W\0" // USA - New Mexico - SPCS83 - W
    "\223\357 Y\006k\0" // USA - New York
    "\223\357 Y\006k\002\276\002C\0" // USA - New York - SPCS - C
    "\223\357 Y\006k\002\276\002E\0" // USA - New York - SPCS - E
    "\223\357 Y\006k\002\276\002L\003g \335\0" // USA - New York - SPCS - Long Island
    "\223\357 Y\006k\002\276\002W\0" // USA - New York - SPCS - W
    "\223\324C\037\246\023a\0" // USA - North Carolina
    "\223\324Dak\337a\0" // USA - North Dakota
    "\223\324Dak\337\030\276\002N\0" // USA - North Dakota - SPCS - N
    "\223\324Dak\337\030\276\002S\0" // USA - North Dakota - SPCS - S
    "\223Ohio\0" // USA - Ohio
    "\223Ohio\002\276\002N\0" // USA - Ohio - SPCS - N
    "\223Ohio\002\276\002S\0" // USA - Ohio - SPCS - S
    "\223Okl\361\343a\0" // USA - Oklahoma
    "\223Okl\361\343\030\276\002N\0" // USA - Oklahoma - SPCS - N
    "\223Okl\361\343\030\276\002S\0" // USA - Oklahoma - SPCS - S
    "\223O>g\003\0" // USA - Oregon
    "\223\326\003\002Bak\007\327\245y\0" // USA - Oregon - Baker City
    "\223\326\003\002B\207d-B\224ns\0" // USA - Oregon - Bend-Burns
    "\223\326\003\002B\207d-Kl\225a@F\025ls\0" // USA - Oregon - Bend-Klamath Falls
    "\223\326\003\002B\207d-R\275m\003d-Pr\023ev\341le\0" // USA - Oregon - Bend-Redmond-Prineville
    "\223\326\003\002B\224ns-H\037p\007\0" // USA - Oregon - Burns-Harper
    "\223\326\003\002C\005y\231C\245y-B\224ns\0" // USA - Oregon - Canyon City-Burns
    "\223\326\003\002C\005y\003v\341le-Gr\005ts P}s\0" // USA - Oregon - Canyonville-Grants Pass
    "\223\326\003\002Co\314R\005g\010\373\0" // USA - Oregon - Coast Range North
    "\223\326\003\002C\246umb\315Riv\007 Ea\020\0" // USA - Oregon - Columbia River East
    "\223\326\003\002C\246umb\315Riv\007 We\020\0" // USA - Oregon - Columbia River West
    "\223\326\003\002C\337tag\010Grove-C\005y\003v\341le\0" // USA - Oregon - Cottage Grove-Canyonville
    "\223\326\003\002Dayv\341le-P\350\340i\010C\245y\0" // USA - Oregon - Dayville-Prairie City
    "\223\326\003\002D\207io-B\224ns\0" // USA - Oregon - Denio-Burns
    "\223\326\003\002Duf\224-M\226r}\0" // USA - Oregon - Dufur-Madras
    "\223\326\003\002Eug\207e\0" // USA - Oregon - Eugene
    "\223\326\003\002Gr\005ts P}s-A<\206\0" // USA - Oregon - Grants Pass-Ashland
    "\223\326\003\002G><\225-W\037m|pr\023gs\0" // USA - Oregon - Gresham-Warm Springs
    "\223\326\003\002H\025fway\0" // USA - Oregon - Halfway
    "\223\326\003\002L\027Gr\033e\0" // USA - Oregon - La Grande
    "\223\326\003\002M\275f\006d-Di\225\003d Lake\0" // USA - Oregon - Medford-Diamond Lake
    "\223\326\003\002M\245ch\242l\0" // USA - Oregon - Mitchell
    "\223\326\003\002\324C\367\025\0" // USA - Oregon - North Central
    "\223\326\003\002Ochoc\013Summ\245\0" // USA - Oregon - Ochoco Summit
    "\223\326\003\002O\035\037io\0" // USA - Oregon - Ontario
    "\223\326\003\002\326\231Coa\020\0" // USA - Oregon - Oregon Coast
    "\223\326\003\002Owyhee\0" // USA - Oregon - Owyhee
    "\223\326\003\002P\207dl\036\003\0" // USA - Oregon - Pendleton
    "\223\326\003\002P\207dl\036\003-L\027Gr\033e\0" // USA - Oregon - Pendleton-La Grande
    "\223\326\003\002P\341\337 Rock-Uki\361\0" // USA - Oregon - Pilot Rock-Ukiah
    "\223\326\003\002P\006t\206\0" // USA - Oregon - Portland
    "\223\326\003\002P\350\340i\010C\245y-Brog\005\0" // USA - Oregon - Prairie City-Brogan
    "\223\326\003\002R\341ey-Lakeview\0" // USA - Oregon - Riley-Lakeview
    "\223\326\003\002\276\002N\0" // USA - Oregon - SPCS - N
    "\223\326\003\002\276\002S\0" // USA - Oregon - SPCS - S
    "\223\326\003\002S\025\212\0" // USA - Oregon - Salem
    "\223\326\003\002S\077kiy\026 P}s\0" // USA - Oregon - Siskiyou Pass
    "\223\326\003\002Sw\234 H\343e-Si\020\232\0" // USA - Oregon - Sweet Home-Sisters
    "\223\326\003\002Uki\361-Fox\0" // USA - Oregon - Ukiah-Fox
    "\223\326\003\002W\025lowa\0" // USA - Oregon - Wallowa
    "\223\326\003\002W\037n\007 Highway\0" // USA - Oregon - Warner Highway
    "\223\326\003\002W\341l\225\036t\010P}s\0" // USA - Oregon - Willamette Pass
    "\223\326\231\253Wa<\023gt\003\0" // USA - Oregon and Washington
    "\223P\207nsylv\005ia\0" // USA - Pennsylvania
    "\223P\207nsylv\005\213\276\002N\0" // USA - Pennsylvania - SPCS - N
    "\223P\207nsylv\005\213\276\002S\0" // USA - Pennsylvania - SPCS - S
    "\223Rhod\010\335\0" // USA - Rhode Island
    "\223\370C\037\246\023a\0" // USA - South Carolina
    "\223\370C\037\246\023\030\276\306\002N\0" // USA - South Carolina - SPCS27 - N
    "\223\370C\037\246\023\030\276\306\002S\0" // USA - South Carolina - SPCS27 - S
    "\223\370Dak\337a\0" // USA - South Dakota
    "\223\370Dak\337\030\276\002N\0" // USA - South Dakota - SPCS - N
    "\223\370Dak\337\030\276\002S\0" // USA - South Dakota - SPCS - S
    "\223T\207n\220see\0" // USA - Tennessee
    "\223Tex}\0" // USA - Texas
    "\223Tex}\002\276\002C\0" // USA - Texas - SPCS - C
    "\223Tex}\002\276\002N\0" // USA - Texas - SPCS - N
    "\223Tex}\002\276\002NC\0" // USA - Texas - SPCS - NC
    "\223Tex}\002\276\306\002S\0" // USA - Texas - SPCS27 - S
    "\223Tex}\002\276\306\002\323\0" // USA - Texas - SPCS27 - SC
    "\223Tex}\002\364\002S\0" // USA - Texas - SPCS83 - S
    "\223Tex}\002\364\002\323\0" // USA - Texas - SPCS83 - SC
    "\223Tex} e\314\243\3120!\0" // USA - Texas east of 100°W
    "\223Tex} w\267\243\3120!\0" // USA - Texas west of 100°W
    "\223Ut\361\0" // USA - Utah
    "\223Ut\361\002\276\002C\0" // USA - Utah - SPCS - C
    "\223Ut\361\002\276\002N\0" // USA - Utah - SPCS - N
    "\223Ut\361\002\276\002S\0" // USA - Utah - SPCS - S
    "\223V\007m\003t\0" // USA - Vermont
    "\223V\340g\023ia\0" // USA - Virginia
    "\223V\340g\023\213\276\002N\0" // USA - Virginia - SPCS - N
    "\223V\340g\023\213\276\002S\0" // USA - Virginia - SPCS - S
    "\223Wa<\023gt\003\002\276\306\002N\0" // USA - Washington - SPCS27 - N
    "\223Wa<\023gt\003\002\276\306\002S\0" // USA - Washington - SPCS27 - S
    "\223Wa<\023gt\003\002\364\002N\0" // USA - Washington - SPCS83 - N
    "\223Wa<\023gt\003\002\364\002S\0" // USA - Washington - SPCS83 - S
    "\223W\267V\340g\023ia\0" // USA - West Virginia
    "\223W\267V\340g\023\213\276\002N\0" // USA - West Virginia - SPCS - N
    "\223W\267V\340g\023\213\276\002S\0" // USA - West Virginia - SPCS - S
    "\223W\077c\003s\023\0" // USA - Wisconsin
    "\223W\077c\003s\023\002Ad\225s\374Juneau\0" // USA - Wisconsin - Adams and Juneau
    "\223W\077c\003s\023\002A<\206\0" // USA - Wisconsin - Ashland
    "\223W\077c\003s\023\002B\037r\003\0" // USA - Wisconsin - Barron
    "\223W\077c\003s\023\002Bayfi\242d\0" // USA - Wisconsin - Bayfield
    "\223W\077c\003s\023\002Brown\0" // USA - Wisconsin - Brown
    "\223W\077c\003s\023\002Buff\025o\0" // USA - Wisconsin - Buffalo
    "\223W\077c\003s\023\002B\224n\036t\0" // USA - Wisconsin - Burnett
    "\223W\077c\003s\023\002C\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebago\0" // USA - Wisconsin - Calumet, Fond du Lac, Outagamie and Winnebago
    "\223W\077c\003s\023\002Chippewa\0" // USA - Wisconsin - Chippewa
    "\223W\077c\003s\023\002Cl\037k\0" // USA - Wisconsin - Clark
    "\223W\077c\003s\023\002C\246umbia\0" // USA - Wisconsin - Columbia
    "\223W\077c\003s\023\002C\350wf\006d\0" // USA - Wisconsin - Crawford
    "\223W\077c\003s\023\002D\005e\0" // USA - Wisconsin - Dane
    "\223W\077c\003s\023\002Dodg\010\253Jeff\232\003\0" // USA - Wisconsin - Dodge and Jefferson
    "\223W\077c\003s\023\002Do\006\0" // USA - Wisconsin - Door
    "\223W\077c\003s\023\002D\026gl}\0" // USA - Wisconsin - Douglas
    "\223W\077c\003s\023\002Dunn\0" // USA - Wisconsin - Dunn
    "\223W\077c\003s\023\002Eau\327lai>\0" // USA - Wisconsin - Eau Claire
    "\223W\077c\003s\023\002Fl\006\207ce\0" // USA - Wisconsin - Florence
    "\223W\077c\003s\023\002F\006e\020\0" // USA - Wisconsin - Forest
    "\223W\077c\003s\023\002Gr\005t\0" // USA - Wisconsin - Grant
    "\223W\077c\003s\023\002G>\207 Lak\010\253M\037qu\036te\0" // USA - Wisconsin - Green Lake and Marquette
    "\223W\077c\003s\023\002G>\207\374Lafay\036te\0" // USA - Wisconsin - Green and Lafayette
    "\223W\077c\003s\023\002Iowa\0" // USA - Wisconsin - Iowa
    "\223W\077c\003s\023\002Ir\003\0" // USA - Wisconsin - Iron
    "\223W\077c\003s\023\002Jacks\003\0" // USA - Wisconsin - Jackson
    "\223W\077c\003s\023\002K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023e\0" // USA - Wisconsin - Kenosha, Milwaukee, Ozaukee and Racine
    "\223W\077c\003s\023\002Kewaunee\277M\005\245owoc \033|heboyg\005\0" // USA - Wisconsin - Kewaunee, Manitowoc and Sheboygan
    "\223W\077c\003s\023\002L\027Crosse\0" // USA - Wisconsin - La Crosse
    "\223W\077c\003s\023\002L\005gl\226e\0" // USA - Wisconsin - Langlade
    "\223W\077c\003s\023\002L\023c\246n\0" // USA - Wisconsin - Lincoln
    "\223W\077c\003s\023\002M\037a\024\003\0" // USA - Wisconsin - Marathon
    "\223W\077c\003s\023\002M\037\023\036te\0" // USA - Wisconsin - Marinette
    "\223W\077c\003s\023\002M\207\343\023ee\0" // USA - Wisconsin - Menominee
    "\223W\077c\003s\023\002M\003roe\0" // USA - Wisconsin - Monroe
    "\223W\077c\003s\023\002Oc\003to\0" // USA - Wisconsin - Oconto
    "\223W\077c\003s\023\002One\257a\0" // USA - Wisconsin - Oneida
    "\223W\077c\003s\023\002Pep\023\374Pi\007ce\0" // USA - Wisconsin - Pepin and Pierce
    "\223W\077c\003s\023\002P\246k\0" // USA - Wisconsin - Polk
    "\223W\077c\003s\023\002P\006tage\0" // USA - Wisconsin - Portage
    "\223W\077c\003s\023\002Pr#e\0" // USA - Wisconsin - Price
    "\223W\077c\003s\023\002R#h\206\0" // USA - Wisconsin - Richland
    "\223W\077c\003s\023\002Rock\0" // USA - Wisconsin - Rock
    "\223W\077c\003s\023\002R\351k\0" // USA - Wisconsin - Rusk
    "\223W\077c\003s\023\002\276\002C\0" // USA - Wisconsin - SPCS - C
    "\223W\077c\003s\023\002\276\002N\0" // USA - Wisconsin - SPCS - N
    "\223W\077c\003s\023\002\276\002S\0" // USA - Wisconsin - SPCS - S
    "\223W\077c\003s\023\002Sauk\0" // USA - Wisconsin - Sauk
    "\223W\077c\003s\023\002Sawy\007\0" // USA - Wisconsin - Sawyer
    "\223W\077c\003s\023\002Shaw\005o\0" // USA - Wisconsin - Shawano
    "\223W\077c\003s\023\002St.\327roix\0" // USA - Wisconsin - St. Croix
    "\223W\077c\003s\023\002Tayl\006\0" // USA - Wisconsin - Taylor
    "\223W\077c\003s\023\002T>mpe\025eau\0" // USA - Wisconsin - Trempealeau
    "\223W\077c\003s\023\002V\007n\003\0" // USA - Wisconsin - Vernon
    "\223W\077c\003s\023\002V\341}\0" // USA - Wisconsin - Vilas
    "\223W\077c\003s\023\002W\025w\006\024\0" // USA - Wisconsin - Walworth
    "\223W\077c\003s\023\002Wa<b\224n\0" // USA - Wisconsin - Washburn
    "\223W\077c\003s\023\002Wa<\023gt\003\0" // USA - Wisconsin - Washington
    "\223W\077c\003s\023\002Wauke<a\0" // USA - Wisconsin - Waukesha
    "\223W\077c\003s\023\002Waupaca\0" // USA - Wisconsin - Waupaca
    "\223W\077c\003s\023\002Wau<\037a\0" // USA - Wisconsin - Waushara
    "\223W\077c\003s\023\002Wood\0" // USA - Wisconsin - Wood
    "\223Wy\343\023g\0" // USA - Wyoming
    "\223Wy\343\023g\002\276\002E\0" // USA - Wyoming - SPCS - E
    "\223Wy\343\023g\002\276\002EC\0" // USA - Wyoming - SPCS - EC
    "\223Wy\343\023g\002\276\002W\0" // USA - Wyoming - SPCS - W
    "\223Wy\343\023g\002\276\002WC\0" // USA - Wyoming - SPCS - WC
    "\223Wy\343\023g\002W\023d Riv\007 >s\007v=\320\0" // USA - Wyoming - Wind River reservation
    "\223w\267\243174\015\002AK\277O\134\0" // USA - west of 174°E - AK, OCS
    "\203FS_R6_Alb\232\0" // USFS_R6_Albers
    "\203GS_Tr\005s\005t\037\322#_M\026\035a\023s\0" // USGS_Transantarctic_Mountains
    "\203_N=\320\025_Atl}_Equ\025_A>a\0" // US_National_Atlas_Equal_Area
    "U\254\27331N wi@p>fix\0" // UTM zone 31N with prefix
    "U\254\27332N wi@p>fix\0" // UTM zone 32N with prefix
    "U\254\27333N wi@p>fix\0" // UTM zone 33N with prefix
    "U\254_Gab\003_\254\0" // UTM_Gabon_TM
    "U\254_Gab\003_\254_\03411\0" // UTM_Gabon_TM_2011
    "U\254_Z\003\21525S\0" // UTM_Zone_25S
    "U\254_Z\003\21539S\0" // UTM_Zone_39S
    "U\254_Z\003\21550N\0" // UTM_Zone_50N
    "U\254_Z\003\21558S\0" // UTM_Zone_58S
    "U\254_$\21532N\0" // UTM_zone_32N
    "U\254_$\21533N\0" // UTM_zone_33N
    "Ug\033\030n\006@\243equ=\006\374w\267\24330\015\0" // Uganda - north of equator and west of 30°E
    "Uki\361-Fox_\021\211\014_\240_LCC`t_I\035l\0" // Ukiah-Fox_NAD_1983_2011_LCC_Ft_Intl
    "Uki\361-Fox_\021\211\014_\240_LCC_M\313\0" // Ukiah-Fox_NAD_1983_2011_LCC_Meters
    "Uk\350\023e\0" // Ukraine
    "Uk\350\023\21622\235\20025\235\015\0" // Ukraine - 22.5°E to 25.5°E
    "Uk\350\023\21624\20030\015\0" // Ukraine - 24°E to 30°E
    "Uk\350\023\21625\235\20028\235\015\0" // Ukraine - 25.5°E to 28.5°E
    "Uk\350\023\21625\20028\015\0" // Ukraine - 25°E to 28°E
    "Uk\350\023\21628\235\20031\235\015\0" // Ukraine - 28.5°E to 31.5°E
    "Uk\350\023\21628\20031\015\356\0" // Ukraine - 28°E to 31°E onshore
    "Uk\350\023\21630\20036\015\0" // Ukraine - 30°E to 36°E
    "Uk\350\023\21631\235\20034\235\015\0" // Ukraine - 31.5°E to 34.5°E
    "Uk\350\023\21631\20034\015\356\0" // Ukraine - 31°E to 34°E onshore
    "Uk\350\023\21634\235\20037\235\015\0" // Ukraine - 34.5°E to 37.5°E
    "Uk\350\023\21634\20037\015\356\0" // Ukraine - 34°E to 37°E onshore
    "Uk\350\023\21637\20040\015\356\0" // Ukraine - 37°E to 40°E onshore
    "Uk\350\023\216Ch\007k}\204obla\020\0" // Ukraine - Cherkasy oblast
    "Uk\350\023\216Ch\007nihiv obla\020\0" // Ukraine - Chernihiv oblast
    "Uk\350\023\216Ch\007nivtsi obla\020\0" // Ukraine - Chernivtsi oblast
    "Uk\350\023\216Crimea\0" // Ukraine - Crimea
    "Uk\350\023\216Dniprop\036rovsk obla\020\0" // Ukraine - Dnipropetrovsk oblast
    "Uk\350\023\216D\003\036sk obla\020\0" // Ukraine - Donetsk oblast
    "Uk\350\023\216Iv\005o-Fr\005kivsk obla\020\0" // Ukraine - Ivano-Frankivsk oblast
    "Uk\350\023\216Kh\037kiv obla\020\0" // Ukraine - Kharkiv oblast
    "Uk\350\023\216Kh\232\231obla\020\0" // Ukraine - Kherson oblast
    "Uk\350\023\216Khm\242nytskyi obla\020\0" // Ukraine - Khmelnytskyi oblast
    "Uk\350\023\216K\340ovohr\226 obla\020\0" // Ukraine - Kirovohrad oblast
    "Uk\350\023\216Kyiv c\245y\0" // Ukraine - Kyiv city
    "Uk\350\023\216Kyiv obla\020\0" // Ukraine - Kyiv oblast
    "Uk\350\023\216Luh\005sk obla\020\0" // Ukraine - Luhansk oblast
    "Uk\350\023\216Lviv obla\020\0" // Ukraine - Lviv oblast
    "Uk\350\023\216Myk\246aiv obla\020\0" // Ukraine - Mykolaiv oblast
    "Uk\350\023\216Od\220s\027obla\020\0" // Ukraine - Odessa oblast
    "Uk\350\023\216P\246tav\027obla\020\0" // Ukraine - Poltava oblast
    "Uk\350\023\216Rivn\010obla\020\0" // Ukraine - Rivne oblast
    "Uk\350\023\216Seva\020op\246\0" // Ukraine - Sevastopol
    "Uk\350\023\216Sum\204obla\020\0" // Ukraine - Sumy oblast
    "Uk\350\023\216T\007nop\341 obla\020\0" // Ukraine - Ternopil oblast
    "Uk\350\023\216V\023nyts\315obla\020\0" // Ukraine - Vinnytsia oblast
    "Uk\350\023\216V\246yn obla\020\0" // Ukraine - Volyn oblast
    "Uk\350\023\216Zak\037p=t\315obla\020\0" // Ukraine - Zakarpattia oblast
    "Uk\350\023\216Zap\006izhzh\315obla\020\0" // Ukraine - Zaporizhzhia oblast
    "Uk\350\023\216Zhyt\343yr obla\020\0" // Ukraine - Zhytomyr oblast
    "Uk\350\023\216e\314\24336\015\0" // Ukraine - east of 36°E
    "Uk\350\023\216e\314\24337\235\015\0" // Ukraine - east of 37.5°E
    "Uk\350\023\216e\314\24340\015\0" // Ukraine - east of 40°E
    "Uk\350\023\216w\267\24322\235\015\0" // Ukraine - west of 22.5°E
    "Uk\350\023\216w\267\24324\015\0" // Ukraine - west of 24°E
    "Uk\350\023\216w\267\24325\015\0" // Ukraine - west of 25°E
    "Uk\350\023\010\2270\0" // Ukraine 2000
    "Uk\350\023\010\2270\022WGS 84\2011)\0" // Ukraine 2000 to WGS 84 (1)
    "Uk\350\023\215\2270\0" // Ukraine_2000
    "Uk\350\023\215\2270_\0" // Ukraine_2000_
    "Uk\350\023\215\2270_3_Deg>\215GK_\0" // Ukraine_2000_3_Degree_GK_
    "Unif\006m A\375o-Geod\036# N\036w\006k\201UAGN)\31756\0" // Uniform Astro-Geodetic Network (UAGN) 1956
    "Unif\006m A\375o-Geod\036# N\036w\006k\201UAGN) \03183\0" // Uniform Astro-Geodetic Network (UAGN) 1983
    "Univ\232\230P\246\037|t\007eog\350\237# \373\0" // Universal Polar Stereographic North
    "Univ\232\230P\246\037|t\007eog\350\237#|\365\0" // Universal Polar Stereographic South
    "Unknown d=um b}\275 up\003\017h\010A\340\2041\0140 \242lipso\257\0" // Unknown datum based upon the Airy 1830 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010A\340\204Modifi\275 1849 \242lipso\257\0" // Unknown datum based upon the Airy Modified 1849 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Au\375\025\336 N=\320\025|\274o\257\0" // Unknown datum based upon the Australian National Spheroid
    "Unknown d=um b}\275 up\003\017h\010Au\024\025# S\274e\0" // Unknown datum based upon the Authalic Sphere
    "Unknown d=um b}\275 up\003\017h\010Av\007ag\010T\007>\375i\025|y\020\212\31777 \242lipso\257\0" // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010B\220s\242 1841 \242lipso\257\0" // Unknown datum based upon the Bessel 1841 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010B\220s\242 Modifi\275 \242lipso\257\0" // Unknown datum based upon the Bessel Modified ellipsoid
    "Unknown d=um b}\275 up\003\017h\010B\220s\242 N\225ib\315\242lipso\257\0" // Unknown datum based upon the Bessel Namibia ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101858 \242lipso\257\0" // Unknown datum based upon the Clarke 1858 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101866 M#hig\005 \242lipso\257\0" // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101866 \242lipso\257\0" // Unknown datum based upon the Clarke 1866 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101880\201\325c) \242lipso\257\0" // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101880\201B\207o\245) \242lipso\257\0" // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101880\201IGN) \242lipso\257\0" // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101880\201RGS) \242lipso\257\0" // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101880\201SGA\31722) \242lipso\257\0" // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Cl\037k\0101880 \242lipso\257\0" // Unknown datum based upon the Clarke 1880 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Ev\007\267(1\0140 Def\023\245\320) \242lipso\257\0" // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Ev\007\2671\0140\201\03137 Adju\020me\035) \242lipso\257\0" // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Ev\007\2671\0140\201\03162 Def\023\245\320) \242lipso\257\0" // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Ev\007\2671\0140\201\03167 Def\023\245\320) \242lipso\257\0" // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Ev\007\2671\0140\201\03175 Def\023\245\320) \242lipso\257\0" // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Ev\007\2671\0140 Modifi\275 \242lipso\257\0" // Unknown datum based upon the Everest 1830 Modified ellipsoid
    "Unknown d=um b}\275 up\003\017h\010GEM \312C \242lipso\257\0" // Unknown datum based upon the GEM 10C ellipsoid
    "Unknown d=um b}\275 up\003\017h\010G{\31767 \242lipso\257\0" // Unknown datum based upon the GRS 1967 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010G{\31780 \242lipso\257\0" // Unknown datum based upon the GRS 1980 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010H\242m\007t\31706 \242lipso\257\0" // Unknown datum based upon the Helmert 1906 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010\360\003\220\336 N=\320\025|\274o\257\0" // Unknown datum based upon the Indonesian National Spheroid
    "Unknown d=um b}\275 up\003\017h\010I\035\007n=\320\230\03124 \242lipso\257\0" // Unknown datum based upon the International 1924 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Kr}sowsk\204\03140 \242lipso\257\0" // Unknown datum based upon the Krassowsky 1940 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010NWL 9D \242lipso\257\0" // Unknown datum based upon the NWL 9D ellipsoid
    "Unknown d=um b}\275 up\003\017h\010OSU86F \242lipso\257\0" // Unknown datum based upon the OSU86F ellipsoid
    "Unknown d=um b}\275 up\003\017h\010OSU91A \242lipso\257\0" // Unknown datum based upon the OSU91A ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Pl\220s\077 1817 \242lipso\257\0" // Unknown datum based upon the Plessis 1817 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010Struv\0101860 \242lipso\257\0" // Unknown datum based upon the Struve 1860 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010WGS 72 \242lipso\257\0" // Unknown datum based upon the WGS 72 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010WGS 84 \242lipso\257\0" // Unknown datum based upon the WGS 84 ellipsoid
    "Unknown d=um b}\275 up\003\017h\010W\037 Off#\010\242lipso\257\0" // Unknown datum based upon the War Office ellipsoid
    "Unspecifi\275 d=um b}\275 up\003\017h\010Cl\037k\0101866 Au\024\025# S\274e\0" // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    "Unspecifi\275 d=um b}\275 up\003\017h\010G{\31780 Au\024\025# S\274e\0" // Unspecified datum based upon the GRS 1980 Authalic Sphere
    "Unspecifi\275 d=um b}\275 up\003\017h\010Hugh\220\31780 \242lipso\257\0" // Unspecified datum based upon the Hughes 1980 ellipsoid
    "Unspecifi\275 d=um b}\275 up\003\017h\010I\035\007n=\320\230\03124 Au\024\025# S\274e\0" // Unspecified datum based upon the International 1924 Authalic Sphere
    "Uruguay\0" // Uruguay
    "Uruguay\002e\314\24354!\0" // Uruguay - east of 54°W
    "Uruguay\002\236\0" // Uruguay - onshore
    "Uruguay\002w\267\24354!\0" // Uruguay - west of 54°W
    "Ut\361 \134\306\327\367\230$e\0" // Utah CS27 Central zone
    "Ut\361 \134\306 \324$e\0" // Utah CS27 North zone
    "Ut\361 \134\306|\250$e\0" // Utah CS27 South zone
    "Ut\361\377\367\025\2724302\0" // Utah_Central_FIPS_4302
    "Ut\361\377\367\025\2724302\372\0" // Utah_Central_FIPS_4302_Feet
    "Ut\361\377\367\025\2724302\372_I\035l\0" // Utah_Central_FIPS_4302_Feet_Intl
    "Ut\361\377\367\025\2724302`t_I\035l\0" // Utah_Central_FIPS_4302_Ft_Intl
    "Ut\361\377\367\025\2724302`t_\203\0" // Utah_Central_FIPS_4302_Ft_US
    "Ut\361_\373\2724301\0" // Utah_North_FIPS_4301
    "Ut\361_\373\2724301\372\0" // Utah_North_FIPS_4301_Feet
    "Ut\361_\373\2724301\372_I\035l\0" // Utah_North_FIPS_4301_Feet_Intl
    "Ut\361_\373\2724301`t_I\035l\0" // Utah_North_FIPS_4301_Ft_Intl
    "Ut\361_\373\2724301`t_\203\0" // Utah_North_FIPS_4301_Ft_US
    "Ut\361_S\365\2724303\0" // Utah_South_FIPS_4303
    "Ut\361_S\365\2724303\372\0" // Utah_South_FIPS_4303_Feet
    "Ut\361_S\365\2724303\372_I\035l\0" // Utah_South_FIPS_4303_Feet_Intl
    "Ut\361_S\365\2724303`t_I\035l\0" // Utah_South_FIPS_4303_Ft_Intl
    "Ut\361_S\365\2724303`t_\203\0" // Utah_South_FIPS_4303_Ft_US
    "Utt\037 Pr\226e< \333F LCC\0" // Uttar Pradesh NSF LCC
    "Utt\037_Pr\226e<\0" // Uttar_Pradesh
    "Utt\037\005ch\230\333F LCC\0" // Uttaranchal NSF LCC
    "Uve\027SHOM\31778\0" // Uvea SHOM 1978
    "VICGRID94\0" // VICGRID94
    "VII\2720407\0" // VII_FIPS_0407
    "VI\2720406\0" // VI_FIPS_0406
    "VI\2720406\372\0" // VI_FIPS_0406_Feet
    "VI\2720406`t_\203\0" // VI_FIPS_0406_Ft_US
    "VN-\2270\0" // VN-2000
    "VN-\2270\012\254-3 \3123-00\0" // VN-2000 / TM-3 103-00
    "VN-\2270\012\254-3 \3124-00\0" // VN-2000 / TM-3 104-00
    "VN-\2270\012\254-3 \3124-30\0" // VN-2000 / TM-3 104-30
    "VN-\2270\012\254-3 \3124-45\0" // VN-2000 / TM-3 104-45
    "VN-\2270\012\254-3 \3125-30\0" // VN-2000 / TM-3 105-30
    "VN-\2270\012\254-3 \3125-45\0" // VN-2000 / TM-3 105-45
    "VN-\2270\012\254-3 \3126-00\0" // VN-2000 / TM-3 106-00
    "VN-\2270\012\254-3 \3126-15\0" // VN-2000 / TM-3 106-15
    "VN-\2270\012\254-3 \3126-30\0" // VN-2000 / TM-3 106-30
    "VN-\2270\012\254-3 \3127-00\0" // VN-2000 / TM-3 107-00
    "VN-\2270\012\254-3 \3127-15\0" // VN-2000 / TM-3 107-15
    "VN-\2270\012\254-3 \3127-30\0" // VN-2000 / TM-3 107-30
    "VN-\2270\012\254-3 \3127-45\0" // VN-2000 / TM-3 107-45
    "VN-\2270\012\254-3 \3128-15\0" // VN-2000 / TM-3 108-15
    "VN-\2270\012\254-3 \3128-30\0" // VN-2000 / TM-3 108-30
    "VN-\2270\012\254-3 D\027N\005g $e\0" // VN-2000 / TM-3 Da Nang zone
    "VN-\2270\012\254-3\273481\0" // VN-2000 / TM-3 zone 481
    "VN-\2270\012\254-3\273482\0" // VN-2000 / TM-3 zone 482
    "VN-\2270\012\254-3\273491\0" // VN-2000 / TM-3 zone 491
    "VN-\2270\012U\254\27348N\0" // VN-2000 / UTM zone 48N
    "VN-\2270\012U\254\27349N\0" // VN-2000 / UTM zone 49N
    "VN-\2270_\254-3_\0" // VN-2000_TM-3_
    "VN_\2270\0" // VN_2000
    "VN_\2270_\254-3_\3127-45\0" // VN_2000_TM-3_107-45
    "VN_\2270_\254-3_$\215481\0" // VN_2000_TM-3_zone_481
    "VN_\2270_\254-3_$\215482\0" // VN_2000_TM-3_zone_482
    "VN_\2270_\254-3_$\215491\0" // VN_2000_TM-3_zone_491
    "VN_\2270_U\254_Z\003\21548N\0" // VN_2000_UTM_Zone_48N
    "VN_\2270_U\254_Z\003\21549N\0" // VN_2000_UTM_Zone_49N
    "V\2720405\0" // V_FIPS_0405
    "V\2720405\372\0" // V_FIPS_0405_Feet
    "V\2720405`t_\203\0" // V_FIPS_0405_Ft_US
    "V\025l\275up\037\377\220\037_\03411\0" // Valledupar_Cesar_2011
    "V\033\007b\224gh_(ft\203)\0" // Vanderburgh_(ftUS)
    "V\033\007b\224gh_(m)\0" // Vanderburgh_(m)
    "V\005u\027Levu\31715\0" // Vanua Levu 1915
    "V\005u\027Levu\31715\012V\005u\027Levu Gr\257\0" // Vanua Levu 1915 / Vanua Levu Grid
    "V\005u\027Levu\31717\0" // Vanua Levu 1917
    "V\005u\256Levu\21115\0" // Vanua_Levu_1915
    "V\005u=u\002n\006\024\007n \077\206s\0" // Vanuatu - northern islands
    "V\005u=u\002s\365\007n \077\206s\0" // Vanuatu - southern islands
    "V\207ezu\242\03072!\37466!\0" // Venezuela - 72°W and 66°W
    "V\207ezu\242\03072!\37466!\356\0" // Venezuela - 72°W and 66°W onshore
    "V\207ezu\242\030Lak\010M\037acaibo\0" // Venezuela - Lake Maracaibo
    "V\207ezu\242\030M\037acaibo\002blocks I II\374III\0" // Venezuela - Maracaibo - blocks I II and III
    "V\207ezu\242\030M\037acaib\013\037ea\0" // Venezuela - Maracaibo area
    "V\207ezu\242\030ea\020\0" // Venezuela - east
    "V\207ezu\242\030e\314\24366!\0" // Venezuela - east of 66°W
    "V\207ezu\242\030e\314\24366!\356\0" // Venezuela - east of 66°W onshore
    "V\207ezu\242\030n\006@\2437\00445'N\0" // Venezuela - north of 7°45'N
    "V\207ezu\242\030\236\0" // Venezuela - onshore
    "V\207ezu\242\030w\267\24372!\0" // Venezuela - west of 72°W
    "V\007m\003t \13427\0" // Vermont CS27
    "V\007m\003t\2724400\0" // Vermont_FIPS_4400
    "V\007m\003t\2724400\372\0" // Vermont_FIPS_4400_Feet
    "V\007m\003t\2724400`t_\203\0" // Vermont_FIPS_4400_Ft_US
    "V\007n\003\377\026\035y\372\0" // Vernon_County_Feet
    "V\007n\003\377\026\035y_M\313\0" // Vernon_County_Meters
    "V\007n\003\372\0" // Vernon_Feet
    "V\007n\003_M\313\0" // Vernon_Meters
    "Vie\035\336\010\03182\0" // Vientiane 1982
    "Vie\035\336e\21182\0" // Vientiane_1982
    "Vi\036n\225\002\3123\235\200\3126\235\015\356\0" // Vietnam - 103.5°E to 106.5°E onshore
    "Vi\036n\225\002\3124\004\034'E\022\3126\00440'E \355prov\023ce\0" // Vietnam - 104°20'E to 106°40'E by province
    "Vi\036n\225\002\3125\00415'E\022\3127\00450'E \355prov\023c\216HCMC\0" // Vietnam - 105°15'E to 107°50'E by province - HCMC
    "Vi\036n\225\00214\004N\02218\004N\356\0" // Vietnam - 14°N to 18°N onshore
    "Vi\036n\225\002An G\336g\277La\013Cai\277Ngh\010An\277Phu Tho\277Y\207 Bai\0" // Vietnam - An Giang, Lao Cai, Nghe An, Phu Tho, Yen Bai
    "Vi\036n\225\002Bac G\336g\374Thu\027Thi\207-Hue\0" // Vietnam - Bac Giang and Thua Thien-Hue
    "Vi\036n\225\002Bac K\005\374Thai Nguy\207\0" // Vietnam - Bac Kan and Thai Nguyen
    "Vi\036n\225\002B\023h D\023h\277Kh\005h Hoa\277N\023h Thu\005\0" // Vietnam - Binh Dinh, Khanh Hoa, Ninh Thuan
    "Vi\036n\225\002B\023h Phuoc\374Qu\005g Tri\0" // Vietnam - Binh Phuoc and Quang Tri
    "Vi\036n\225\002B\023h Thu\005\277Dak Lak\277Dak N\003g\277G\315Lai\277Phu Y\207\0" // Vietnam - Binh Thuan, Dak Lak, Dak Nong, Gia Lai, Phu Yen
    "Vi\036n\225\002C\027Mau\374Ki\207 G\336g\0" // Vietnam - Ca Mau and Kien Giang
    "Vi\036n\225\002C\003|\231\335\0" // Vietnam - Con Son Island
    "Vi\036n\225\002DB\323L 02\37403\0" // Vietnam - DBSCL 02 and 03
    "Vi\036n\225\002Di\207 Bi\207\374Lai\327hau\0" // Vietnam - Dien Bien and Lai Chau
    "Vi\036n\225\002Ho\027B\023h\277Qu\005g B\023h\374Tuy\207 Qu\005g\0" // Vietnam - Hoa Binh, Quang Binh and Tuyen Quang
    "Vi\036n\225\002K\231Tum\0" // Vietnam - Kon Tum
    "Vi\036n\225\002L\005g|\003\0" // Vietnam - Lang Son
    "Vi\036n\225\002Qu\005g N\023h; D\027N\005g\277Qu\005g N\225; B\027Ria-Vung Tau\277D\003g Nai\277L\225 D\003g\0" // Vietnam - Quang Ninh; Da Nang, Quang Nam; Ba Ria-Vung Tau, Dong Nai, Lam Dong
    "Vi\036n\225\002S\231La\0" // Vietnam - Son La
    "Vi\036n\225\002e\314\243\3126\235\015\356\0" // Vietnam - east of 106.5°E onshore
    "Vi\036n\225\002e\314\243\3128\015\356\0" // Vietnam - east of 108°E onshore
    "Vi\036n\225\002\214f~\010Cuu L\003g b}\023\0" // Vietnam - offshore Cuu Long basin
    "Vi\036n\225\002\236\0" // Vietnam - onshore
    "Vi\036n\225\002\210\010Vung Tau \037ea\0" // Vietnam - onshore Vung Tau area
    "Vi\036n\225\002w\267\243\3123\00430'E\356\0" // Vietnam - west of 103°30'E onshore
    "Vi\036n\225\002w\267\243\3128\015\356\0" // Vietnam - west of 108°E onshore
    "Vi\036n\225 \2270\0" // Vietnam 2000
    "Vi\036n\225 \254-3 \3123-00\0" // Vietnam TM-3 103-00
    "Vi\036n\225 \254-3 \3124-00\0" // Vietnam TM-3 104-00
    "Vi\036n\225 \254-3 \3124-30\0" // Vietnam TM-3 104-30
    "Vi\036n\225 \254-3 \3124-45\0" // Vietnam TM-3 104-45
    "Vi\036n\225 \254-3 \3125-30\0" // Vietnam TM-3 105-30
    "Vi\036n\225 \254-3 \3125-45\0" // Vietnam TM-3 105-45
    "Vi\036n\225 \254-3 \3126-00\0" // Vietnam TM-3 106-00
    "Vi\036n\225 \254-3 \3126-15\0" // Vietnam TM-3 106-15
    "Vi\036n\225 \254-3 \3126-30\0" // Vietnam TM-3 106-30
    "Vi\036n\225 \254-3 \3127-00\0" // Vietnam TM-3 107-00
    "Vi\036n\225 \254-3 \3127-15\0" // Vietnam TM-3 107-15
    "Vi\036n\225 \254-3 \3127-30\0" // Vietnam TM-3 107-30
    "Vi\036n\225 \254-3 \3127-45\0" // Vietnam TM-3 107-45
    "Vi\036n\225 \254-3 \3128-15\0" // Vietnam TM-3 108-15
    "Vi\036n\225 \254-3 \3128-30\0" // Vietnam TM-3 108-30
    "Vi\036n\225 \254-3 D\027N\005g $e\0" // Vietnam TM-3 Da Nang zone
    "Vi\036n\225 \254-3\273481\0" // Vietnam TM-3 zone 481
    "Vi\036n\225 \254-3\273482\0" // Vietnam TM-3 zone 482
    "Vi\036n\225 \254-3\273491\0" // Vietnam TM-3 zone 491
    "Vi\036n\225_\2270\0" // Vietnam_2000
    "Vigo_(ft\203)\0" // Vigo_(ftUS)
    "Vigo_(m)\0" // Vigo_(m)
    "V\341}\377\026\035y\372\0" // Vilas_County_Feet
    "V\341}\377\026\035y_M\313\0" // Vilas_County_Meters
    "V\341}\372\0" // Vilas_Feet
    "V\341}_M\313\0" // Vilas_Meters
    "V\341lav#\207cio_M\036\256\03411\0" // Villavicencio_Meta_2011
    "V\340g\023 \335s\277Br\245i<\002\236\0" // Virgin Islands, British - onshore
    "V\340g\023 \335s\277\203\002\236\0" // Virgin Islands, US - onshore
    "V\340g\023\315L\225b\007t\327\003#\327\003f\006m\025\0" // Virginia Lambert Conic Conformal
    "V\340g\023i\256L\225b\007t\0" // Virginia_Lambert
    "V\340g\023i\256\373\2724501\0" // Virginia_North_FIPS_4501
    "V\340g\023i\256\373\2724501\372\0" // Virginia_North_FIPS_4501_Feet
    "V\340g\023i\256\373\2724501`t_\203\0" // Virginia_North_FIPS_4501_Ft_US
    "V\340g\023i\256S\365\2724502\0" // Virginia_South_FIPS_4502
    "V\340g\023i\256S\365\2724502\372\0" // Virginia_South_FIPS_4502_Feet
    "V\340g\023i\256S\365\2724502`t_\203\0" // Virginia_South_FIPS_4502_Ft_US
    "V\245i Levu\31712\0" // Viti Levu 1912
    "V\245i Levu\31712\012V\245i Levu Gr\257\0" // Viti Levu 1912 / Viti Levu Grid
    "V\245i Levu\31716\0" // Viti Levu 1916
    "V\245i_Levu\21112\0" // Viti_Levu_1912
    "V\245i_Levu\21116\0" // Viti_Levu_1916
    "Vo\340\246 1875\0" // Voirol 1875
    "Vo\340\246 1875\201P\037\077)\0" // Voirol 1875 (Paris)
    "Vo\340\246 1875\012\205d Alg\007i\010(\005ci\207ne)\0" // Voirol 1875 / Nord Algerie (ancienne)
    "Vo\340\246 1875\012Sud Alg\007i\010(\005ci\207ne)\0" // Voirol 1875 / Sud Algerie (ancienne)
    "Vo\340\246 1879\0" // Voirol 1879
    "Vo\340\246 1879\201P\037\077)\0" // Voirol 1879 (Paris)
    "Vo\340\246 1879\012\205d Alg\007i\010(\005ci\207ne)\0" // Voirol 1879 / Nord Algerie (ancienne)
    "Vo\340\246 1879\012Sud Alg\007i\010(\005ci\207ne)\0" // Voirol 1879 / Sud Algerie (ancienne)
    "Vo\340\246_1875\0" // Voirol_1875
    "Vo\340\246_1875_P\037\077\0" // Voirol_1875_Paris
    "Vo\340\246_1879\0" // Voirol_1879
    "Vo\340\246_1879_\205d_Alg\007i\215Anci\207ne\0" // Voirol_1879_Nord_Algerie_Ancienne
    "Vo\340\246_1879_P\037\077\0" // Voirol_1879_Paris
    "Vo\340\246_1879_Sud_Alg\007i\215Anci\207ne\0" // Voirol_1879_Sud_Algerie_Ancienne
    "Vo\340\246_Unifi\215\205d\0" // Voirol_Unifie_Nord
    "Vo\340\246_Unifi\215Sud\0" // Voirol_Unifie_Sud
    "WGS 66\0" // WGS 66
    "WGS 72\0" // WGS 72
    "WGS 72\012U\254\273\312N\0" // WGS 72 / UTM zone 10N
    "WGS 72\012U\254\273\312S\0" // WGS 72 / UTM zone 10S
    "WGS 72\012U\254\27311N\0" // WGS 72 / UTM zone 11N
    "WGS 72\012U\254\27311S\0" // WGS 72 / UTM zone 11S
    "WGS 72\012U\254\27312N\0" // WGS 72 / UTM zone 12N
    "WGS 72\012U\254\27312S\0" // WGS 72 / UTM zone 12S
    "WGS 72\012U\254\27313N\0" // WGS 72 / UTM zone 13N
    "WGS 72\012U\254\27313S\0" // WGS 72 / UTM zone 13S
    "WGS 72\012U\254\27314N\0" // WGS 72 / UTM zone 14N
    "WGS 72\012U\254\27314S\0" // WGS 72 / UTM zone 14S
    "WGS 72\012U\254\27315N\0" // WGS 72 / UTM zone 15N
    "WGS 72\012U\254\27315S\0" // WGS 72 / UTM zone 15S
    "WGS 72\012U\254\27316N\0" // WGS 72 / UTM zone 16N
    "WGS 72\012U\254\27316S\0" // WGS 72 / UTM zone 16S
    "WGS 72\012U\254\27317N\0" // WGS 72 / UTM zone 17N
    "WGS 72\012U\254\27317S\0" // WGS 72 / UTM zone 17S
    "WGS 72\012U\254\27318N\0" // WGS 72 / UTM zone 18N
    "WGS 72\012U\254\27318S\0" // WGS 72 / UTM zone 18S
    "WGS 72\012U\254\27319N\0" // WGS 72 / UTM zone 19N
    "WGS 72\012U\254\27319S\0" // WGS 72 / UTM zone 19S
    "WGS 72\012U\254\2731N\0" // WGS 72 / UTM zone 1N
    "WGS 72\012U\254\2731S\0" // WGS 72 / UTM zone 1S
    "WGS 72\012U\254\273\034N\0" // WGS 72 / UTM zone 20N
    "WGS 72\012U\254\273\034S\0" // WGS 72 / UTM zone 20S
    "WGS 72\012U\254\27321N\0" // WGS 72 / UTM zone 21N
    "WGS 72\012U\254\27321S\0" // WGS 72 / UTM zone 21S
    "WGS 72\012U\254\27322N\0" // WGS 72 / UTM zone 22N
    "WGS 72\012U\254\27322S\0" // WGS 72 / UTM zone 22S
    "WGS 72\012U\254\27323N\0" // WGS 72 / UTM zone 23N
    "WGS 72\012U\254\27323S\0" // WGS 72 / UTM zone 23S
    "WGS 72\012U\254\27324N\0" // WGS 72 / UTM zone 24N
    "WGS 72\012U\254\27324S\0" // WGS 72 / UTM zone 24S
    "WGS 72\012U\254\27325N\0" // WGS 72 / UTM zone 25N
    "WGS 72\012U\254\27325S\0" // WGS 72 / UTM zone 25S
    "WGS 72\012U\254\27326N\0" // WGS 72 / UTM zone 26N
    "WGS 72\012U\254\27326S\0" // WGS 72 / UTM zone 26S
    "WGS 72\012U\254\27327N\0" // WGS 72 / UTM zone 27N
    "WGS 72\012U\254\27327S\0" // WGS 72 / UTM zone 27S
    "WGS 72\012U\254\27328N\0" // WGS 72 / UTM zone 28N
    "WGS 72\012U\254\27328S\0" // WGS 72 / UTM zone 28S
    "WGS 72\012U\254\27329N\0" // WGS 72 / UTM zone 29N
    "WGS 72\012U\254\27329S\0" // WGS 72 / UTM zone 29S
    "WGS 72\012U\254\2732N\0" // WGS 72 / UTM zone 2N
    "WGS 72\012U\254\2732S\0" // WGS 72 / UTM zone 2S
    "WGS 72\012U\254\27330N\0" // WGS 72 / UTM zone 30N
    "WGS 72\012U\254\27330S\0" // WGS 72 / UTM zone 30S
    "WGS 72\012U\254\27331N\0" // WGS 72 / UTM zone 31N
    "WGS 72\012U\254\27331S\0" // WGS 72 / UTM zone 31S
    "WGS 72\012U\254\27332N\0" // WGS 72 / UTM zone 32N
    "WGS 72\012U\254\27332S\0" // WGS 72 / UTM zone 32S
    "WGS 72\012U\254\27333N\0" // WGS 72 / UTM zone 33N
    "WGS 72\012U\254\27333S\0" // WGS 72 / UTM zone 33S
    "WGS 72\012U\254\27334N\0" // WGS 72 / UTM zone 34N
    "WGS 72\012U\254\27334S\0" // WGS 72 / UTM zone 34S
    "WGS 72\012U\254\27335N\0" // WGS 72 / UTM zone 35N
    "WGS 72\012U\254\27335S\0" // WGS 72 / UTM zone 35S
    "WGS 72\012U\254\27336N\0" // WGS 72 / UTM zone 36N
    "WGS 72\012U\254\27336S\0" // WGS 72 / UTM zone 36S
    "WGS 72\012U\254\27337N\0" // WGS 72 / UTM zone 37N
    "WGS 72\012U\254\27337S\0" // WGS 72 / UTM zone 37S
    "WGS 72\012U\254\27338N\0" // WGS 72 / UTM zone 38N
    "WGS 72\012U\254\27338S\0" // WGS 72 / UTM zone 38S
    "WGS 72\012U\254\27339N\0" // WGS 72 / UTM zone 39N
    "WGS 72\012U\254\27339S\0" // WGS 72 / UTM zone 39S
    "WGS 72\012U\254\2733N\0" // WGS 72 / UTM zone 3N
    "WGS 72\012U\254\2733S\0" // WGS 72 / UTM zone 3S
    "WGS 72\012U\254\27340N\0" // WGS 72 / UTM zone 40N
    "WGS 72\012U\254\27340S\0" // WGS 72 / UTM zone 40S
    "WGS 72\012U\254\27341N\0" // WGS 72 / UTM zone 41N
    "WGS 72\012U\254\27341S\0" // WGS 72 / UTM zone 41S
    "WGS 72\012U\254\27342N\0" // WGS 72 / UTM zone 42N
    "WGS 72\012U\254\27342S\0" // WGS 72 / UTM zone 42S
    "WGS 72\012U\254\27343N\0" // WGS 72 / UTM zone 43N
    "WGS 72\012U\254\27343S\0" // WGS 72 / UTM zone 43S
    "WGS 72\012U\254\27344N\0" // WGS 72 / UTM zone 44N
    "WGS 72\012U\254\27344S\0" // WGS 72 / UTM zone 44S
    "WGS 72\012U\254\27345N\0" // WGS 72 / UTM zone 45N
    "WGS 72\012U\254\27345S\0" // WGS 72 / UTM zone 45S
    "WGS 72\012U\254\27346N\0" // WGS 72 / UTM zone 46N
    "WGS 72\012U\254\27346S\0" // WGS 72 / UTM zone 46S
    "WGS 72\012U\254\27347N\0" // WGS 72 / UTM zone 47N
    "WGS 72\012U\254\27347S\0" // WGS 72 / UTM zone 47S
    "WGS 72\012U\254\27348N\0" // WGS 72 / UTM zone 48N
    "WGS 72\012U\254\27348S\0" // WGS 72 / UTM zone 48S
    "WGS 72\012U\254\27349N\0" // WGS 72 / UTM zone 49N
    "WGS 72\012U\254\27349S\0" // WGS 72 / UTM zone 49S
    "WGS 72\012U\254\2734N\0" // WGS 72 / UTM zone 4N
    "WGS 72\012U\254\2734S\0" // WGS 72 / UTM zone 4S
    "WGS 72\012U\254\27350N\0" // WGS 72 / UTM zone 50N
    "WGS 72\012U\254\27350S\0" // WGS 72 / UTM zone 50S
    "WGS 72\012U\254\27351N\0" // WGS 72 / UTM zone 51N
    "WGS 72\012U\254\27351S\0" // WGS 72 / UTM zone 51S
    "WGS 72\012U\254\27352N\0" // WGS 72 / UTM zone 52N
    "WGS 72\012U\254\27352S\0" // WGS 72 / UTM zone 52S
    "WGS 72\012U\254\27353N\0" // WGS 72 / UTM zone 53N
    "WGS 72\012U\254\27353S\0" // WGS 72 / UTM zone 53S
    "WGS 72\012U\254\27354N\0" // WGS 72 / UTM zone 54N
    "WGS 72\012U\254\27354S\0" // WGS 72 / UTM zone 54S
    "WGS 72\012U\254\27355N\0" // WGS 72 / UTM zone 55N
    "WGS 72\012U\254\27355S\0" // WGS 72 / UTM zone 55S
    "WGS 72\012U\254\27356N\0" // WGS 72 / UTM zone 56N
    "WGS 72\012U\254\27356S\0" // WGS 72 / UTM zone 56S
    "WGS 72\012U\254\27357N\0" // WGS 72 / UTM zone 57N
    "WGS 72\012U\254\27357S\0" // WGS 72 / UTM zone 57S
    "WGS 72\012U\254\27358N\0" // WGS 72 / UTM zone 58N
    "WGS 72\012U\254\27358S\0" // WGS 72 / UTM zone 58S
    "WGS 72\012U\254\27359N\0" // WGS 72 / UTM zone 59N
    "WGS 72\012U\254\27359S\0" // WGS 72 / UTM zone 59S
    "WGS 72\012U\254\2735N\0" // WGS 72 / UTM zone 5N
    "WGS 72\012U\254\2735S\0" // WGS 72 / UTM zone 5S
    "WGS 72\012U\254\27360N\0" // WGS 72 / UTM zone 60N
    "WGS 72\012U\254\27360S\0" // WGS 72 / UTM zone 60S
    "WGS 72\012U\254\2736N\0" // WGS 72 / UTM zone 6N
    "WGS 72\012U\254\2736S\0" // WGS 72 / UTM zone 6S
    "WGS 72\012U\254\2737N\0" // WGS 72 / UTM zone 7N
    "WGS 72\012U\254\2737S\0" // WGS 72 / UTM zone 7S
    "WGS 72\012U\254\2738N\0" // WGS 72 / UTM zone 8N
    "WGS 72\012U\254\2738S\0" // WGS 72 / UTM zone 8S
    "WGS 72\012U\254\2739N\0" // WGS 72 / UTM zone 9N
    "WGS 72\012U\254\2739S\0" // WGS 72 / UTM zone 9S
    "WGS 72 Tr\005s\245 Bro\226c\314E\237\212\007\077\0" // WGS 72 Transit Broadcast Ephemeris
    "WGS 72BE\012\370Ch\023\027Se\027L\225b\007t\0" // WGS 72BE / South China Sea Lambert
    "WGS 72BE\012\254 \3126 NE\0" // WGS 72BE / TM 106 NE
    "WGS 72BE\012U\254\273\312N\0" // WGS 72BE / UTM zone 10N
    "WGS 72BE\012U\254\273\312S\0" // WGS 72BE / UTM zone 10S
    "WGS 72BE\012U\254\27311N\0" // WGS 72BE / UTM zone 11N
    "WGS 72BE\012U\254\27311S\0" // WGS 72BE / UTM zone 11S
    "WGS 72BE\012U\254\27312N\0" // WGS 72BE / UTM zone 12N
    "WGS 72BE\012U\254\27312S\0" // WGS 72BE / UTM zone 12S
    "WGS 72BE\012U\254\27313N\0" // WGS 72BE / UTM zone 13N
    "WGS 72BE\012U\254\27313S\0" // WGS 72BE / UTM zone 13S
    "WGS 72BE\012U\254\27314N\0" // WGS 72BE / UTM zone 14N
    "WGS 72BE\012U\254\27314S\0" // WGS 72BE / UTM zone 14S
    "WGS 72BE\012U\254\27315N\0" // WGS 72BE / UTM zone 15N
    "WGS 72BE\012U\254\27315S\0" // WGS 72BE / UTM zone 15S
    "WGS 72BE\012U\254\27316N\0" // WGS 72BE / UTM zone 16N
    "WGS 72BE\012U\254\27316S\0" // WGS 72BE / UTM zone 16S
    "WGS 72BE\012U\254\27317N\0" // WGS 72BE / UTM zone 17N
    "WGS 72BE\012U\254\27317S\0" // WGS 72BE / UTM zone 17S
    "WGS 72BE\012U\254\27318N\0" // WGS 72BE / UTM zone 18N
    "WGS 72BE\012U\254\27318S\0" // WGS 72BE / UTM zone 18S
    "WGS 72BE\012U\254\27319N\0" // WGS 72BE / UTM zone 19N
    "WGS 72BE\012U\254\27319S\0" // WGS 72BE / UTM zone 19S
    "WGS 72BE\012U\254\2731N\0" // WGS 72BE / UTM zone 1N
    "WGS 72BE\012U\254\2731S\0" // WGS 72BE / UTM zone 1S
    "WGS 72BE\012U\254\273\034N\0" // WGS 72BE / UTM zone 20N
    "WGS 72BE\012U\254\273\034S\0" // WGS 72BE / UTM zone 20S
    "WGS 72BE\012U\254\27321N\0" // WGS 72BE / UTM zone 21N
    "WGS 72BE\012U\254\27321S\0" // WGS 72BE / UTM zone 21S
    "WGS 72BE\012U\254\27322N\0" // WGS 72BE / UTM zone 22N
    "WGS 72BE\012U\254\27322S\0" // WGS 72BE / UTM zone 22S
    "WGS 72BE\012U\254\27323N\0" // WGS 72BE / UTM zone 23N
    "WGS 72BE\012U\254\27323S\0" // WGS 72BE / UTM zone 23S
    "WGS 72BE\012U\254\27324N\0" // WGS 72BE / UTM zone 24N
    "WGS 72BE\012U\254\27324S\0" // WGS 72BE / UTM zone 24S
    "WGS 72BE\012U\254\27325N\0" // WGS 72BE / UTM zone 25N
    "WGS 72BE\012U\254\27325S\0" // WGS 72BE / UTM zone 25S
    "WGS 72BE\012U\254\27326N\0" // WGS 72BE / UTM zone 26N
    "WGS 72BE\012U\254\27326S\0" // WGS 72BE / UTM zone 26S
    "WGS 72BE\012U\254\27327N\0" // WGS 72BE / UTM zone 27N
    "WGS 72BE\012U\254\27327S\0" // WGS 72BE / UTM zone 27S
    "WGS 72BE\012U\254\27328N\0" // WGS 72BE / UTM zone 28N
    "WGS 72BE\012U\254\27328S\0" // WGS 72BE / UTM zone 28S
    "WGS 72BE\012U\254\27329N\0" // WGS 72BE / UTM zone 29N
    "WGS 72BE\012U\254\27329S\0" // WGS 72BE / UTM zone 29S
    "WGS 72BE\012U\254\2732N\0" // WGS 72BE / UTM zone 2N
    "WGS 72BE\012U\254\2732S\0" // WGS 72BE / UTM zone 2S
    "WGS 72BE\012U\254\27330N\0" // WGS 72BE / UTM zone 30N
    "WGS 72BE\012U\254\27330S\0" // WGS 72BE / UTM zone 30S
    "WGS 72BE\012U\254\27331N\0" // WGS 72BE / UTM zone 31N
    "WGS 72BE\012U\254\27331S\0" // WGS 72BE / UTM zone 31S
    "WGS 72BE\012U\254\27332N\0" // WGS 72BE / UTM zone 32N
    "WGS 72BE\012U\254\27332S\0" // WGS 72BE / UTM zone 32S
    "WGS 72BE\012U\254\27333N\0" // WGS 72BE / UTM zone 33N
    "WGS 72BE\012U\254\27333S\0" // WGS 72BE / UTM zone 33S
    "WGS 72BE\012U\254\27334N\0" // WGS 72BE / UTM zone 34N
    "WGS 72BE\012U\254\27334S\0" // WGS 72BE / UTM zone 34S
    "WGS 72BE\012U\254\27335N\0" // WGS 72BE / UTM zone 35N
    "WGS 72BE\012U\254\27335S\0" // WGS 72BE / UTM zone 35S
    "WGS 72BE\012U\254\27336N\0" // WGS 72BE / UTM zone 36N
    "WGS 72BE\012U\254\27336S\0" // WGS 72BE / UTM zone 36S
    "WGS 72BE\012U\254\27337N\0" // WGS 72BE / UTM zone 37N
    "WGS 72BE\012U\254\27337S\0" // WGS 72BE / UTM zone 37S
    "WGS 72BE\012U\254\27338N\0" // WGS 72BE / UTM zone 38N
    "WGS 72BE\012U\254\27338S\0" // WGS 72BE / UTM zone 38S
    "WGS 72BE\012U\254\27339N\0" // WGS 72BE / UTM zone 39N
    "WGS 72BE\012U\254\27339S\0" // WGS 72BE / UTM zone 39S
    "WGS 72BE\012U\254\2733N\0" // WGS 72BE / UTM zone 3N
    "WGS 72BE\012U\254\2733S\0" // WGS 72BE / UTM zone 3S
    "WGS 72BE\012U\254\27340N\0" // WGS 72BE / UTM zone 40N
    "WGS 72BE\012U\254\27340S\0" // WGS 72BE / UTM zone 40S
    "WGS 72BE\012U\254\27341N\0" // WGS 72BE / UTM zone 41N
    "WGS 72BE\012U\254\27341S\0" // WGS 72BE / UTM zone 41S
    "WGS 72BE\012U\254\27342N\0" // WGS 72BE / UTM zone 42N
    "WGS 72BE\012U\254\27342S\0" // WGS 72BE / UTM zone 42S
    "WGS 72BE\012U\254\27343N\0" // WGS 72BE / UTM zone 43N
    "WGS 72BE\012U\254\27343S\0" // WGS 72BE / UTM zone 43S
    "WGS 72BE\012U\254\27344N\0" // WGS 72BE / UTM zone 44N
    "WGS 72BE\012U\254\27344S\0" // WGS 72BE / UTM zone 44S
    "WGS 72BE\012U\254\27345N\0" // WGS 72BE / UTM zone 45N
    "WGS 72BE\012U\254\27345S\0" // WGS 72BE / UTM zone 45S
    "WGS 72BE\012U\254\27346N\0" // WGS 72BE / UTM zone 46N
    "WGS 72BE\012U\254\27346S\0" // WGS 72BE / UTM zone 46S
    "WGS 72BE\012U\254\27347N\0" // WGS 72BE / UTM zone 47N
    "WGS 72BE\012U\254\27347S\0" // WGS 72BE / UTM zone 47S
    "WGS 72BE\012U\254\27348N\0" // WGS 72BE / UTM zone 48N
    "WGS 72BE\012U\254\27348S\0" // WGS 72BE / UTM zone 48S
    "WGS 72BE\012U\254\27349N\0" // WGS 72BE / UTM zone 49N
    "WGS 72BE\012U\254\27349S\0" // WGS 72BE / UTM zone 49S
    "WGS 72BE\012U\254\2734N\0" // WGS 72BE / UTM zone 4N
    "WGS 72BE\012U\254\2734S\0" // WGS 72BE / UTM zone 4S
    "WGS 72BE\012U\254\27350N\0" // WGS 72BE / UTM zone 50N
    "WGS 72BE\012U\254\27350S\0" // WGS 72BE / UTM zone 50S
    "WGS 72BE\012U\254\27351N\0" // WGS 72BE / UTM zone 51N
    "WGS 72BE\012U\254\27351S\0" // WGS 72BE / UTM zone 51S
    "WGS 72BE\012U\254\27352N\0" // WGS 72BE / UTM zone 52N
    "WGS 72BE\012U\254\27352S\0" // WGS 72BE / UTM zone 52S
    "WGS 72BE\012U\254\27353N\0" // WGS 72BE / UTM zone 53N
    "WGS 72BE\012U\254\27353S\0" // WGS 72BE / UTM zone 53S
    "WGS 72BE\012U\254\27354N\0" // WGS 72BE / UTM zone 54N
    "WGS 72BE\012U\254\27354S\0" // WGS 72BE / UTM zone 54S
    "WGS 72BE\012U\254\27355N\0" // WGS 72BE / UTM zone 55N
    "WGS 72BE\012U\254\27355S\0" // WGS 72BE / UTM zone 55S
    "WGS 72BE\012U\254\27356N\0" // WGS 72BE / UTM zone 56N
    "WGS 72BE\012U\254\27356S\0" // WGS 72BE / UTM zone 56S
    "WGS 72BE\012U\254\27357N\0" // WGS 72BE / UTM zone 57N
    "WGS 72BE\012U\254\27357S\0" // WGS 72BE / UTM zone 57S
    "WGS 72BE\012U\254\27358N\0" // WGS 72BE / UTM zone 58N
    "WGS 72BE\012U\254\27358S\0" // WGS 72BE / UTM zone 58S
    "WGS 72BE\012U\254\27359N\0" // WGS 72BE / UTM zone 59N
    "WGS 72BE\012U\254\27359S\0" // WGS 72BE / UTM zone 59S
    "WGS 72BE\012U\254\2735N\0" // WGS 72BE / UTM zone 5N
    "WGS 72BE\012U\254\2735S\0" // WGS 72BE / UTM zone 5S
    "WGS 72BE\012U\254\27360N\0" // WGS 72BE / UTM zone 60N
    "WGS 72BE\012U\254\27360S\0" // WGS 72BE / UTM zone 60S
    "WGS 72BE\012U\254\2736N\0" // WGS 72BE / UTM zone 6N
    "WGS 72BE\012U\254\2736S\0" // WGS 72BE / UTM zone 6S
    "WGS 72BE\012U\254\2737N\0" // WGS 72BE / UTM zone 7N
    "WGS 72BE\012U\254\2737S\0" // WGS 72BE / UTM zone 7S
    "WGS 72BE\012U\254\2738N\0" // WGS 72BE / UTM zone 8N
    "WGS 72BE\012U\254\2738S\0" // WGS 72BE / UTM zone 8S
    "WGS 72BE\012U\254\2739N\0" // WGS 72BE / UTM zone 9N
    "WGS 72BE\012U\254\2739S\0" // WGS 72BE / UTM zone 9S
    "WGS 84\0" // WGS 84
    "WGS 84 \0" // WGS 84 
    "WGS 84 (G\20250)\0" // WGS 84 (G1150)
    "WGS 84 (G1674)\0" // WGS 84 (G1674)
    "WGS 84 (G1762)\0" // WGS 84 (G1762)
    "WGS 84 (G2139)\0" // WGS 84 (G2139)
    "WGS 84 (G730)\0" // WGS 84 (G730)
    "WGS 84 (G873)\0" // WGS 84 (G873)
    "WGS 84 (Tr\005s\245)\0" // WGS 84 (Transit)
    "WGS 84\012And\225\005\374N#ob\037\0" // WGS 84 / Andaman and Nicobar
    "WGS 84\012Andhr\027Pr\226e<\0" // WGS 84 / Andhra Pradesh
    "WGS 84\012A\035\037\322# P\246\037|t\007eog\350\237#\0" // WGS 84 / Antarctic Polar Stereographic
    "WGS 84\012\325\322# P\246\037|t\007eog\350\237#\0" // WGS 84 / Arctic Polar Stereographic
    "WGS 84\012\325unach\230Pr\226e<\0" // WGS 84 / Arunachal Pradesh
    "WGS 84\012Ass\225\0" // WGS 84 / Assam
    "WGS 84\012Au\375\025\336 A\035\037\322# L\225b\007t\0" // WGS 84 / Australian Antarctic Lambert
    "WGS 84\012Au\375\025\336 A\035\037\322# P\246\037|t\007eog\350\237#\0" // WGS 84 / Australian Antarctic Polar Stereographic
    "WGS 84\012Au\375\025\336\327\367\010f\006 R\212\337\010S\207s\023g L\225b\007t\0" // WGS 84 / Australian Centre for Remote Sensing Lambert
    "WGS 84\012BLM 14N (ft\203)\0" // WGS 84 / BLM 14N (ftUS)
    "WGS 84\012BLM 15N (ft\203)\0" // WGS 84 / BLM 15N (ftUS)
    "WGS 84\012BLM 16N (ft\203)\0" // WGS 84 / BLM 16N (ftUS)
    "WGS 84\012BLM 17N (ft\203)\0" // WGS 84 / BLM 17N (ftUS)
    "WGS 84\012Bih\037\0" // WGS 84 / Bihar
    "WGS 84\012CIG92\0" // WGS 84 / CIG92
    "WGS 84\012CKIG92\0" // WGS 84 / CKIG92
    "WGS 84\012Cap\010V\007d\010N=\320\025\0" // WGS 84 / Cape Verde National
    "WGS 84\012Chh=t\077g\037h\0" // WGS 84 / Chhattisgarh
    "WGS 84\012D\242hi\0" // WGS 84 / Delhi
    "WGS 84\012Dubai Loc\230\254\0" // WGS 84 / Dubai Local TM
    "WGS 84\012E\247G Al}k\027P\246\037|t\007eog\350\237#\0" // WGS 84 / EPSG Alaska Polar Stereographic
    "WGS 84\012E\247G \325\322# Reg\320\230^A1\0" // WGS 84 / EPSG Arctic Regional zone A1
    "WGS 84\012E\247G \325\322# Reg\320\230^A2\0" // WGS 84 / EPSG Arctic Regional zone A2
    "WGS 84\012E\247G \325\322# Reg\320\230^A3\0" // WGS 84 / EPSG Arctic Regional zone A3
    "WGS 84\012E\247G \325\322# Reg\320\230^A4\0" // WGS 84 / EPSG Arctic Regional zone A4
    "WGS 84\012E\247G \325\322# Reg\320\230^A5\0" // WGS 84 / EPSG Arctic Regional zone A5
    "WGS 84\012E\247G \325\322# Reg\320\230^B1\0" // WGS 84 / EPSG Arctic Regional zone B1
    "WGS 84\012E\247G \325\322# Reg\320\230^B2\0" // WGS 84 / EPSG Arctic Regional zone B2
    "WGS 84\012E\247G \325\322# Reg\320\230^B3\0" // WGS 84 / EPSG Arctic Regional zone B3
    "WGS 84\012E\247G \325\322# Reg\320\230^B4\0" // WGS 84 / EPSG Arctic Regional zone B4
    "WGS 84\012E\247G \325\322# Reg\320\230^B5\0" // WGS 84 / EPSG Arctic Regional zone B5
    "WGS 84\012E\247G \325\322# Reg\320\230^C1\0" // WGS 84 / EPSG Arctic Regional zone C1
    "WGS 84\012E\247G \325\322# Reg\320\230^C2\0" // WGS 84 / EPSG Arctic Regional zone C2
    "WGS 84\012E\247G \325\322# Reg\320\230^C3\0" // WGS 84 / EPSG Arctic Regional zone C3
    "WGS 84\012E\247G \325\322# Reg\320\230^C4\0" // WGS 84 / EPSG Arctic Regional zone C4
    "WGS 84\012E\247G \325\322# Reg\320\230^C5\0" // WGS 84 / EPSG Arctic Regional zone C5
    "WGS 84\012E\247G \325\322#\2731-21\0" // WGS 84 / EPSG Arctic zone 1-21
    "WGS 84\012E\247G \325\322#\2731-27\0" // WGS 84 / EPSG Arctic zone 1-27
    "WGS 84\012E\247G \325\322#\2731-29\0" // WGS 84 / EPSG Arctic zone 1-29
    "WGS 84\012E\247G \325\322#\2731-31\0" // WGS 84 / EPSG Arctic zone 1-31
    "WGS 84\012E\247G \325\322#\2732-10\0" // WGS 84 / EPSG Arctic zone 2-10
    "WGS 84\012E\247G \325\322#\2732-12\0" // WGS 84 / EPSG Arctic zone 2-12
    "WGS 84\012E\247G \325\322#\2732-24\0" // WGS 84 / EPSG Arctic zone 2-24
    "WGS 84\012E\247G \325\322#\2732-26\0" // WGS 84 / EPSG Arctic zone 2-26
    "WGS 84\012E\247G \325\322#\2732-28\0" // WGS 84 / EPSG Arctic zone 2-28
    "WGS 84\012E\247G \325\322#\2733-13\0" // WGS 84 / EPSG Arctic zone 3-13
    "WGS 84\012E\247G \325\322#\2733-15\0" // WGS 84 / EPSG Arctic zone 3-15
    "WGS 84\012E\247G \325\322#\2733-17\0" // WGS 84 / EPSG Arctic zone 3-17
    "WGS 84\012E\247G \325\322#\2733-19\0" // WGS 84 / EPSG Arctic zone 3-19
    "WGS 84\012E\247G \325\322#\2733-21\0" // WGS 84 / EPSG Arctic zone 3-21
    "WGS 84\012E\247G \325\322#\2733-23\0" // WGS 84 / EPSG Arctic zone 3-23
    "WGS 84\012E\247G \325\322#\2734-12\0" // WGS 84 / EPSG Arctic zone 4-12
    "WGS 84\012E\247G \325\322#\2734-30\0" // WGS 84 / EPSG Arctic zone 4-30
    "WGS 84\012E\247G \325\322#\2734-32\0" // WGS 84 / EPSG Arctic zone 4-32
    "WGS 84\012E\247G \325\322#\2734-34\0" // WGS 84 / EPSG Arctic zone 4-34
    "WGS 84\012E\247G \325\322#\2734-36\0" // WGS 84 / EPSG Arctic zone 4-36
    "WGS 84\012E\247G \325\322#\2734-38\0" // WGS 84 / EPSG Arctic zone 4-38
    "WGS 84\012E\247G \325\322#\2734-40\0" // WGS 84 / EPSG Arctic zone 4-40
    "WGS 84\012E\247G \325\322#\2735-15\0" // WGS 84 / EPSG Arctic zone 5-15
    "WGS 84\012E\247G \325\322#\2735-17\0" // WGS 84 / EPSG Arctic zone 5-17
    "WGS 84\012E\247G \325\322#\2735-19\0" // WGS 84 / EPSG Arctic zone 5-19
    "WGS 84\012E\247G \325\322#\2735-21\0" // WGS 84 / EPSG Arctic zone 5-21
    "WGS 84\012E\247G \325\322#\2735-23\0" // WGS 84 / EPSG Arctic zone 5-23
    "WGS 84\012E\247G \325\322#\2735-25\0" // WGS 84 / EPSG Arctic zone 5-25
    "WGS 84\012E\247G \325\322#\2735-27\0" // WGS 84 / EPSG Arctic zone 5-27
    "WGS 84\012E\247G\327\005\226\027P\246\037|t\007eog\350\237#\0" // WGS 84 / EPSG Canada Polar Stereographic
    "WGS 84\012E\247G G>\207\206 P\246\037|t\007eog\350\237#\0" // WGS 84 / EPSG Greenland Polar Stereographic
    "WGS 84\012E\247G \205wa\204P\246\037|t\007eog\350\237#\0" // WGS 84 / EPSG Norway Polar Stereographic
    "WGS 84\012E\247G R\351s\315P\246\037|t\007eog\350\237#\0" // WGS 84 / EPSG Russia Polar Stereographic
    "WGS 84\012Equ\230E\037@Am\007#}\0" // WGS 84 / Equal Earth Americas
    "WGS 84\012Equ\230E\037@Asia-Pacif#\0" // WGS 84 / Equal Earth Asia-Pacific
    "WGS 84\012Equ\230E\037@G>\207w#h\0" // WGS 84 / Equal Earth Greenwich
    "WGS 84\012Gab\231\254\0" // WGS 84 / Gabon TM
    "WGS 84\012Gab\231\254 \03411\0" // WGS 84 / Gabon TM 2011
    "WGS 84\012Goa\0" // WGS 84 / Goa
    "WGS 84\012Guj\037=\0" // WGS 84 / Gujarat
    "WGS 84\012H\037y\005a\0" // WGS 84 / Haryana
    "WGS 84\012Himach\230Pr\226e<\0" // WGS 84 / Himachal Pradesh
    "WGS 84\012IBCAO P\246\037|t\007eog\350\237#\0" // WGS 84 / IBCAO Polar Stereographic
    "WGS 84\012IB\134O P\246\037|t\007eog\350\237#\0" // WGS 84 / IBCSO Polar Stereographic
    "WGS 84\012\360\315\333F LCC\0" // WGS 84 / India NSF LCC
    "WGS 84\012\360\315\373ea\020\0" // WGS 84 / India Northeast
    "WGS 84\012J\225mu\374Ka<m\340\0" // WGS 84 / Jammu and Kashmir
    "WGS 84\012Jh\037kh\033\0" // WGS 84 / Jharkhand
    "WGS 84\012K\037n=aka\0" // WGS 84 / Karnataka
    "WGS 84\012K\007\025a\0" // WGS 84 / Kerala
    "WGS 84\012Lak<\226weep\0" // WGS 84 / Lakshadweep
    "WGS 84\012M\226hy\027Pr\226e<\0" // WGS 84 / Madhya Pradesh
    "WGS 84\012M\361\037a<t\350\0" // WGS 84 / Maharashtra
    "WGS 84\012M\005ip\224\0" // WGS 84 / Manipur
    "WGS 84\012Megh\025aya\0" // WGS 84 / Meghalaya
    "WGS 84\012M\007c=\006 41\0" // WGS 84 / Mercator 41
    "WGS 84\012Miz\006\225\0" // WGS 84 / Mizoram
    "WGS 84\012NIWA Alb\232\0" // WGS 84 / NIWA Albers
    "WGS 84\012\333IDC EASE-Gr\257 2.0 Glob\025\0" // WGS 84 / NSIDC EASE-Grid 2.0 Global
    "WGS 84\012\333IDC EASE-Gr\257 2.0 \373\0" // WGS 84 / NSIDC EASE-Grid 2.0 North
    "WGS 84\012\333IDC EASE-Gr\257 2.0|\365\0" // WGS 84 / NSIDC EASE-Grid 2.0 South
    "WGS 84\012\333IDC EASE-Gr\257 Glob\025\0" // WGS 84 / NSIDC EASE-Grid Global
    "WGS 84\012\333IDC EASE-Gr\257 \373\0" // WGS 84 / NSIDC EASE-Grid North
    "WGS 84\012\333IDC EASE-Gr\257|\365\0" // WGS 84 / NSIDC EASE-Grid South
    "WGS 84\012\333IDC|e\027Ic\010P\246\037|t\007eog\350\237# \373\0" // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    "WGS 84\012\333IDC|e\027Ic\010P\246\037|t\007eog\350\237#|\365\0" // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    "WGS 84\012Nag\025\033\0" // WGS 84 / Nagaland
    "WGS 84\012\324P\246\010LAEA Al}ka\0" // WGS 84 / North Pole LAEA Alaska
    "WGS 84\012\324P\246\010LAEA Atl\005t#\0" // WGS 84 / North Pole LAEA Atlantic
    "WGS 84\012\324P\246\010LAEA B\007\023g|ea\0" // WGS 84 / North Pole LAEA Bering Sea
    "WGS 84\012\324P\246\010LAEA C\005\226a\0" // WGS 84 / North Pole LAEA Canada
    "WGS 84\012\324P\246\010LAEA E\224ope\0" // WGS 84 / North Pole LAEA Europe
    "WGS 84\012\324P\246\010LAEA R\351sia\0" // WGS 84 / North Pole LAEA Russia
    "WGS 84\012Or\077sa\0" // WGS 84 / Orissa
    "WGS 84\012PDC M\007c=\006\0" // WGS 84 / PDC Mercator
    "WGS 84\012Pl=\010C\037>e\0" // WGS 84 / Plate Carree
    "WGS 84\012Pseudo-M\007c=\006\0" // WGS 84 / Pseudo-Mercator
    "WGS 84\012Punjab\0" // WGS 84 / Punjab
    "WGS 84\012Raja\020h\005\0" // WGS 84 / Rajasthan
    "WGS 84\012\323\252 IMW|P\031-20\0" // WGS 84 / SCAR IMW SP19-20
    "WGS 84\012\323\252 IMW|P21-22\0" // WGS 84 / SCAR IMW SP21-22
    "WGS 84\012\323\252 IMW|P23-24\0" // WGS 84 / SCAR IMW SP23-24
    "WGS 84\012\323\252 IMW|Q01-02\0" // WGS 84 / SCAR IMW SQ01-02
    "WGS 84\012\323\252 IMW|Q\031-20\0" // WGS 84 / SCAR IMW SQ19-20
    "WGS 84\012\323\252 IMW|Q21-22\0" // WGS 84 / SCAR IMW SQ21-22
    "WGS 84\012\323\252 IMW|Q37-38\0" // WGS 84 / SCAR IMW SQ37-38
    "WGS 84\012\323\252 IMW|Q39-40\0" // WGS 84 / SCAR IMW SQ39-40
    "WGS 84\012\323\252 IMW|Q41-42\0" // WGS 84 / SCAR IMW SQ41-42
    "WGS 84\012\323\252 IMW|Q43-44\0" // WGS 84 / SCAR IMW SQ43-44
    "WGS 84\012\323\252 IMW|Q45-46\0" // WGS 84 / SCAR IMW SQ45-46
    "WGS 84\012\323\252 IMW|Q47-48\0" // WGS 84 / SCAR IMW SQ47-48
    "WGS 84\012\323\252 IMW|Q49-50\0" // WGS 84 / SCAR IMW SQ49-50
    "WGS 84\012\323\252 IMW|Q51-52\0" // WGS 84 / SCAR IMW SQ51-52
    "WGS 84\012\323\252 IMW|Q53-54\0" // WGS 84 / SCAR IMW SQ53-54
    "WGS 84\012\323\252 IMW|Q55-56\0" // WGS 84 / SCAR IMW SQ55-56
    "WGS 84\012\323\252 IMW|Q57-58\0" // WGS 84 / SCAR IMW SQ57-58
    "WGS 84\012\323\252 IMW|R13-14\0" // WGS 84 / SCAR IMW SR13-14
    "WGS 84\012\323\252 IMW|R15-16\0" // WGS 84 / SCAR IMW SR15-16
    "WGS 84\012\323\252 IMW|R17-18\0" // WGS 84 / SCAR IMW SR17-18
    "WGS 84\012\323\252 IMW|R\031-20\0" // WGS 84 / SCAR IMW SR19-20
    "WGS 84\012\323\252 IMW|R\306-28\0" // WGS 84 / SCAR IMW SR27-28
    "WGS 84\012\323\252 IMW|R29-30\0" // WGS 84 / SCAR IMW SR29-30
    "WGS 84\012\323\252 IMW|R31-32\0" // WGS 84 / SCAR IMW SR31-32
    "WGS 84\012\323\252 IMW|R33-34\0" // WGS 84 / SCAR IMW SR33-34
    "WGS 84\012\323\252 IMW|R35-36\0" // WGS 84 / SCAR IMW SR35-36
    "WGS 84\012\323\252 IMW|R37-38\0" // WGS 84 / SCAR IMW SR37-38
    "WGS 84\012\323\252 IMW|R39-40\0" // WGS 84 / SCAR IMW SR39-40
    "WGS 84\012\323\252 IMW|R41-42\0" // WGS 84 / SCAR IMW SR41-42
    "WGS 84\012\323\252 IMW|R43-44\0" // WGS 84 / SCAR IMW SR43-44
    "WGS 84\012\323\252 IMW|R45-46\0" // WGS 84 / SCAR IMW SR45-46
    "WGS 84\012\323\252 IMW|R47-48\0" // WGS 84 / SCAR IMW SR47-48
    "WGS 84\012\323\252 IMW|R49-50\0" // WGS 84 / SCAR IMW SR49-50
    "WGS 84\012\323\252 IMW|R51-52\0" // WGS 84 / SCAR IMW SR51-52
    "WGS 84\012\323\252 IMW|R53-54\0" // WGS 84 / SCAR IMW SR53-54
    "WGS 84\012\323\252 IMW|R55-56\0" // WGS 84 / SCAR IMW SR55-56
    "WGS 84\012\323\252 IMW|R57-58\0" // WGS 84 / SCAR IMW SR57-58
    "WGS 84\012\323\252 IMW|R59-60\0" // WGS 84 / SCAR IMW SR59-60
    "WGS 84\012\323\252 IMW|S04-06\0" // WGS 84 / SCAR IMW SS04-06
    "WGS 84\012\323\252 IMW|S07-09\0" // WGS 84 / SCAR IMW SS07-09
    "WGS 84\012\323\252 IMW|S\312-12\0" // WGS 84 / SCAR IMW SS10-12
    "WGS 84\012\323\252 IMW|S13-15\0" // WGS 84 / SCAR IMW SS13-15
    "WGS 84\012\323\252 IMW|S16-18\0" // WGS 84 / SCAR IMW SS16-18
    "WGS 84\012\323\252 IMW|S\031-21\0" // WGS 84 / SCAR IMW SS19-21
    "WGS 84\012\323\252 IMW|S25-27\0" // WGS 84 / SCAR IMW SS25-27
    "WGS 84\012\323\252 IMW|S28-30\0" // WGS 84 / SCAR IMW SS28-30
    "WGS 84\012\323\252 IMW|S31-33\0" // WGS 84 / SCAR IMW SS31-33
    "WGS 84\012\323\252 IMW|S34-36\0" // WGS 84 / SCAR IMW SS34-36
    "WGS 84\012\323\252 IMW|S37-39\0" // WGS 84 / SCAR IMW SS37-39
    "WGS 84\012\323\252 IMW|S40-42\0" // WGS 84 / SCAR IMW SS40-42
    "WGS 84\012\323\252 IMW|S43-45\0" // WGS 84 / SCAR IMW SS43-45
    "WGS 84\012\323\252 IMW|S46-48\0" // WGS 84 / SCAR IMW SS46-48
    "WGS 84\012\323\252 IMW|S49-51\0" // WGS 84 / SCAR IMW SS49-51
    "WGS 84\012\323\252 IMW|S52-54\0" // WGS 84 / SCAR IMW SS52-54
    "WGS 84\012\323\252 IMW|S55-57\0" // WGS 84 / SCAR IMW SS55-57
    "WGS 84\012\323\252 IMW|S58-60\0" // WGS 84 / SCAR IMW SS58-60
    "WGS 84\012\323\252 IMW|T01-04\0" // WGS 84 / SCAR IMW ST01-04
    "WGS 84\012\323\252 IMW|T05-08\0" // WGS 84 / SCAR IMW ST05-08
    "WGS 84\012\323\252 IMW|T09-12\0" // WGS 84 / SCAR IMW ST09-12
    "WGS 84\012\323\252 IMW|T13-16\0" // WGS 84 / SCAR IMW ST13-16
    "WGS 84\012\323\252 IMW|T17-20\0" // WGS 84 / SCAR IMW ST17-20
    "WGS 84\012\323\252 IMW|T21-24\0" // WGS 84 / SCAR IMW ST21-24
    "WGS 84\012\323\252 IMW|T25-28\0" // WGS 84 / SCAR IMW ST25-28
    "WGS 84\012\323\252 IMW|T29-32\0" // WGS 84 / SCAR IMW ST29-32
    "WGS 84\012\323\252 IMW|T33-36\0" // WGS 84 / SCAR IMW ST33-36
    "WGS 84\012\323\252 IMW|T37-40\0" // WGS 84 / SCAR IMW ST37-40
    "WGS 84\012\323\252 IMW|T41-44\0" // WGS 84 / SCAR IMW ST41-44
    "WGS 84\012\323\252 IMW|T45-48\0" // WGS 84 / SCAR IMW ST45-48
    "WGS 84\012\323\252 IMW|T49-52\0" // WGS 84 / SCAR IMW ST49-52
    "WGS 84\012\323\252 IMW|T53-56\0" // WGS 84 / SCAR IMW ST53-56
    "WGS 84\012\323\252 IMW|T57-60\0" // WGS 84 / SCAR IMW ST57-60
    "WGS 84\012\323\252 IMW|U01-05\0" // WGS 84 / SCAR IMW SU01-05
    "WGS 84\012\323\252 IMW|U06-10\0" // WGS 84 / SCAR IMW SU06-10
    "WGS 84\012\323\252 IMW|U\202-15\0" // WGS 84 / SCAR IMW SU11-15
    "WGS 84\012\323\252 IMW|U16-20\0" // WGS 84 / SCAR IMW SU16-20
    "WGS 84\012\323\252 IMW|U21-25\0" // WGS 84 / SCAR IMW SU21-25
    "WGS 84\012\323\252 IMW|U26-30\0" // WGS 84 / SCAR IMW SU26-30
    "WGS 84\012\323\252 IMW|U31-35\0" // WGS 84 / SCAR IMW SU31-35
    "WGS 84\012\323\252 IMW|U36-40\0" // WGS 84 / SCAR IMW SU36-40
    "WGS 84\012\323\252 IMW|U41-45\0" // WGS 84 / SCAR IMW SU41-45
    "WGS 84\012\323\252 IMW|U46-50\0" // WGS 84 / SCAR IMW SU46-50
    "WGS 84\012\323\252 IMW|U51-55\0" // WGS 84 / SCAR IMW SU51-55
    "WGS 84\012\323\252 IMW|U56-60\0" // WGS 84 / SCAR IMW SU56-60
    "WGS 84\012\323\252 IMW|V01-10\0" // WGS 84 / SCAR IMW SV01-10
    "WGS 84\012\323\252 IMW|V\202-20\0" // WGS 84 / SCAR IMW SV11-20
    "WGS 84\012\323\252 IMW|V21-30\0" // WGS 84 / SCAR IMW SV21-30
    "WGS 84\012\323\252 IMW|V31-40\0" // WGS 84 / SCAR IMW SV31-40
    "WGS 84\012\323\252 IMW|V41-50\0" // WGS 84 / SCAR IMW SV41-50
    "WGS 84\012\323\252 IMW|V51-60\0" // WGS 84 / SCAR IMW SV51-60
    "WGS 84\012\323\252 IMW|W01-60\0" // WGS 84 / SCAR IMW SW01-60
    "WGS 84\012Sikkim\0" // WGS 84 / Sikkim
    "WGS 84\012\370Ge\006g\315L\225b\007t\0" // WGS 84 / South Georgia Lambert
    "WGS 84\012\254 \2026|E\0" // WGS 84 / TM 116 SE
    "WGS 84\012\254 12|E\0" // WGS 84 / TM 12 SE
    "WGS 84\012\254 132|E\0" // WGS 84 / TM 132 SE
    "WGS 84\012\254 36|E\0" // WGS 84 / TM 36 SE
    "WGS 84\012\254 6 NE\0" // WGS 84 / TM 6 NE
    "WGS 84\012\254 60|W\0" // WGS 84 / TM 60 SW
    "WGS 84\012\254 90 NE\0" // WGS 84 / TM 90 NE
    "WGS 84\012\254 Z\003\010\034N (ft\203)\0" // WGS 84 / TM Zone 20N (ftUS)
    "WGS 84\012\254 Z\003\01021N (ft\203)\0" // WGS 84 / TM Zone 21N (ftUS)
    "WGS 84\012\254zn35N\0" // WGS 84 / TMzn35N
    "WGS 84\012\254zn36N\0" // WGS 84 / TMzn36N
    "WGS 84\012T\225\341 N\226u\0" // WGS 84 / Tamil Nadu
    "WGS 84\012Trip\224a\0" // WGS 84 / Tripura
    "WGS 84\012U\247 \324(E,N)\0" // WGS 84 / UPS North (E,N)
    "WGS 84\012U\247 \324(N,E)\0" // WGS 84 / UPS North (N,E)
    "WGS 84\012U\247|\250(E,N)\0" // WGS 84 / UPS South (E,N)
    "WGS 84\012U\247|\250(N,E)\0" // WGS 84 / UPS South (N,E)
    "WGS 84\012\203GS Tr\005s\005t\037\322# M\026\035a\023s\0" // WGS 84 / USGS Transantarctic Mountains
    "WGS 84\012U\254 gr\257 sy\020\212\201n\006\024\007n\311e)\0" // WGS 84 / UTM grid system (northern hemisphere)
    "WGS 84\012U\254 gr\257 sy\020\212\201s\365\007n\311e)\0" // WGS 84 / UTM grid system (southern hemisphere)
    "WGS 84\012U\254\273\312N\0" // WGS 84 / UTM zone 10N
    "WGS 84\012U\254\273\312S\0" // WGS 84 / UTM zone 10S
    "WGS 84\012U\254\27311N\0" // WGS 84 / UTM zone 11N
    "WGS 84\012U\254\27311S\0" // WGS 84 / UTM zone 11S
    "WGS 84\012U\254\27312N\0" // WGS 84 / UTM zone 12N
    "WGS 84\012U\254\27312S\0" // WGS 84 / UTM zone 12S
    "WGS 84\012U\254\27313N\0" // WGS 84 / UTM zone 13N
    "WGS 84\012U\254\27313S\0" // WGS 84 / UTM zone 13S
    "WGS 84\012U\254\27314N\0" // WGS 84 / UTM zone 14N
    "WGS 84\012U\254\27314S\0" // WGS 84 / UTM zone 14S
    "WGS 84\012U\254\27315N\0" // WGS 84 / UTM zone 15N
    "WGS 84\012U\254\27315S\0" // WGS 84 / UTM zone 15S
    "WGS 84\012U\254\27316N\0" // WGS 84 / UTM zone 16N
    "WGS 84\012U\254\27316S\0" // WGS 84 / UTM zone 16S
    "WGS 84\012U\254\27317N\0" // WGS 84 / UTM zone 17N
    "WGS 84\012U\254\27317S\0" // WGS 84 / UTM zone 17S
    "WGS 84\012U\254\27318N\0" // WGS 84 / UTM zone 18N
    "WGS 84\012U\254\27318S\0" // WGS 84 / UTM zone 18S
    "WGS 84\012U\254\27319N\0" // WGS 84 / UTM zone 19N
    "WGS 84\012U\254\27319S\0" // WGS 84 / UTM zone 19S
    "WGS 84\012U\254\2731N\0" // WGS 84 / UTM zone 1N
    "WGS 84\012U\254\2731S\0" // WGS 84 / UTM zone 1S
    "WGS 84\012U\254\273\034N\0" // WGS 84 / UTM zone 20N
    "WGS 84\012U\254\273\034S\0" // WGS 84 / UTM zone 20S
    "WGS 84\012U\254\27321N\0" // WGS 84 / UTM zone 21N
    "WGS 84\012U\254\27321S\0" // WGS 84 / UTM zone 21S
    "WGS 84\012U\254\27322N\0" // WGS 84 / UTM zone 22N
    "WGS 84\012U\254\27322S\0" // WGS 84 / UTM zone 22S
    "WGS 84\012U\254\27323N\0" // WGS 84 / UTM zone 23N
    "WGS 84\012U\254\27323S\0" // WGS 84 / UTM zone 23S
    "WGS 84\012U\254\27324N\0" // WGS 84 / UTM zone 24N
    "WGS 84\012U\254\27324S\0" // WGS 84 / UTM zone 24S
    "WGS 84\012U\254\27325N\0" // WGS 84 / UTM zone 25N
    "WGS 84\012U\254\27325S\0" // WGS 84 / UTM zone 25S
    "WGS 84\012U\254\27326N\0" // WGS 84 / UTM zone 26N
    "WGS 84\012U\254\27326S\0" // WGS 84 / UTM zone 26S
    "WGS 84\012U\254\27327N\0" // WGS 84 / UTM zone 27N
    "WGS 84\012U\254\27327S\0" // WGS 84 / UTM zone 27S
    "WGS 84\012U\254\27328N\0" // WGS 84 / UTM zone 28N
    "WGS 84\012U\254\27328S\0" // WGS 84 / UTM zone 28S
    "WGS 84\012U\254\27329N\0" // WGS 84 / UTM zone 29N
    "WGS 84\012U\254\27329S\0" // WGS 84 / UTM zone 29S
    "WGS 84\012U\254\2732N\0" // WGS 84 / UTM zone 2N
    "WGS 84\012U\254\2732S\0" // WGS 84 / UTM zone 2S
    "WGS 84\012U\254\27330N\0" // WGS 84 / UTM zone 30N
    "WGS 84\012U\254\27330S\0" // WGS 84 / UTM zone 30S
    "WGS 84\012U\254\27331N\0" // WGS 84 / UTM zone 31N
    "WGS 84\012U\254\27331S\0" // WGS 84 / UTM zone 31S
    "WGS 84\012U\254\27332N\0" // WGS 84 / UTM zone 32N
    "WGS 84\012U\254\27332S\0" // WGS 84 / UTM zone 32S
    "WGS 84\012U\254\27333N\0" // WGS 84 / UTM zone 33N
    "WGS 84\012U\254\27333S\0" // WGS 84 / UTM zone 33S
    "WGS 84\012U\254\27334N\0" // WGS 84 / UTM zone 34N
    "WGS 84\012U\254\27334S\0" // WGS 84 / UTM zone 34S
    "WGS 84\012U\254\27335N\0" // WGS 84 / UTM zone 35N
    "WGS 84\012U\254\27335S\0" // WGS 84 / UTM zone 35S
    "WGS 84\012U\254\27336N\0" // WGS 84 / UTM zone 36N
    "WGS 84\012U\254\27336S\0" // WGS 84 / UTM zone 36S
    "WGS 84\012U\254\27337N\0" // WGS 84 / UTM zone 37N
    "WGS 84\012U\254\27337S\0" // WGS 84 / UTM zone 37S
    "WGS 84\012U\254\27338N\0" // WGS 84 / UTM zone 38N
    "WGS 84\012U\254\27338S\0" // WGS 84 / UTM zone 38S
    "WGS 84\012U\254\27339N\0" // WGS 84 / UTM zone 39N
    "WGS 84\012U\254\27339S\0" // WGS 84 / UTM zone 39S
    "WGS 84\012U\254\2733N\0" // WGS 84 / UTM zone 3N
    "WGS 84\012U\254\2733S\0" // WGS 84 / UTM zone 3S
    "WGS 84\012U\254\27340N\0" // WGS 84 / UTM zone 40N
    "WGS 84\012U\254\27340S\0" // WGS 84 / UTM zone 40S
    "WGS 84\012U\254\27341N\0" // WGS 84 / UTM zone 41N
    "WGS 84\012U\254\27341S\0" // WGS 84 / UTM zone 41S
    "WGS 84\012U\254\27342N\0" // WGS 84 / UTM zone 42N
    "WGS 84\012U\254\27342S\0" // WGS 84 / UTM zone 42S
    "WGS 84\012U\254\27343N\0" // WGS 84 / UTM zone 43N
    "WGS 84\012U\254\27343S\0" // WGS 84 / UTM zone 43S
    "WGS 84\012U\254\27344N\0" // WGS 84 / UTM zone 44N
    "WGS 84\012U\254\27344S\0" // WGS 84 / UTM zone 44S
    "WGS 84\012U\254\27345N\0" // WGS 84 / UTM zone 45N
    "WGS 84\012U\254\27345S\0" // WGS 84 / UTM zone 45S
    "WGS 84\012U\254\27346N\0" // WGS 84 / UTM zone 46N
    "WGS 84\012U\254\27346S\0" // WGS 84 / UTM zone 46S
    "WGS 84\012U\254\27347N\0" // WGS 84 / UTM zone 47N
    "WGS 84\012U\254\27347S\0" // WGS 84 / UTM zone 47S
    "WGS 84\012U\254\27348N\0" // WGS 84 / UTM zone 48N
    "WGS 84\012U\254\27348S\0" // WGS 84 / UTM zone 48S
    "WGS 84\012U\254\27349N\0" // WGS 84 / UTM zone 49N
    "WGS 84\012U\254\27349S\0" // WGS 84 / UTM zone 49S
    "WGS 84\012U\254\2734N\0" // WGS 84 / UTM zone 4N
    "WGS 84\012U\254\2734S\0" // WGS 84 / UTM zone 4S
    "WGS 84\012U\254\27350N\0" // WGS 84 / UTM zone 50N
    "WGS 84\012U\254\27350S\0" // WGS 84 / UTM zone 50S
    "WGS 84\012U\254\27351N\0" // WGS 84 / UTM zone 51N
    "WGS 84\012U\254\27351S\0" // WGS 84 / UTM zone 51S
    "WGS 84\012U\254\27352N\0" // WGS 84 / UTM zone 52N
    "WGS 84\012U\254\27352S\0" // WGS 84 / UTM zone 52S
    "WGS 84\012U\254\27353N\0" // WGS 84 / UTM zone 53N
    "WGS 84\012U\254\27353S\0" // WGS 84 / UTM zone 53S
    "WGS 84\012U\254\27354N\0" // WGS 84 / UTM zone 54N
    "WGS 84\012U\254\27354S\0" // WGS 84 / UTM zone 54S
    "WGS 84\012U\254\27355N\0" // WGS 84 / UTM zone 55N
    "WGS 84\012U\254\27355S\0" // WGS 84 / UTM zone 55S
    "WGS 84\012U\254\27356N\0" // WGS 84 / UTM zone 56N
    "WGS 84\012U\254\27356S\0" // WGS 84 / UTM zone 56S
    "WGS 84\012U\254\27357N\0" // WGS 84 / UTM zone 57N
    "WGS 84\012U\254\27357S\0" // WGS 84 / UTM zone 57S
    "WGS 84\012U\254\27358N\0" // WGS 84 / UTM zone 58N
    "WGS 84\012U\254\27358S\0" // WGS 84 / UTM zone 58S
    "WGS 84\012U\254\27359N\0" // WGS 84 / UTM zone 59N
    "WGS 84\012U\254\27359S\0" // WGS 84 / UTM zone 59S
    "WGS 84\012U\254\2735N\0" // WGS 84 / UTM zone 5N
    "WGS 84\012U\254\2735S\0" // WGS 84 / UTM zone 5S
    "WGS 84\012U\254\27360N\0" // WGS 84 / UTM zone 60N
    "WGS 84\012U\254\27360S\0" // WGS 84 / UTM zone 60S
    "WGS 84\012U\254\2736N\0" // WGS 84 / UTM zone 6N
    "WGS 84\012U\254\2736S\0" // WGS 84 / UTM zone 6S
    "WGS 84\012U\254\2737N\0" // WGS 84 / UTM zone 7N
    "WGS 84\012U\254\2737S\0" // WGS 84 / UTM zone 7S
    "WGS 84\012U\254\2738N\0" // WGS 84 / UTM zone 8N
    "WGS 84\012U\254\2738S\0" // WGS 84 / UTM zone 8S
    "WGS 84\012U\254\2739N\0" // WGS 84 / UTM zone 9N
    "WGS 84\012U\254\2739S\0" // WGS 84 / UTM zone 9S
    "WGS 84\012Utt\037 Pr\226e<\0" // WGS 84 / Uttar Pradesh
    "WGS 84\012Utt\037\005ch\025\0" // WGS 84 / Uttaranchal
    "WGS 84\012W\267B\207g\025\0" // WGS 84 / West Bengal
    "WGS 84\012\331 Equ\257i\020\005t\327yl\023dr#\025\0" // WGS 84 / World Equidistant Cylindrical
    "WGS 84\012\331 M\007c=\006\0" // WGS 84 / World Mercator
    "WGS 84\022ET{89\2012)\0" // WGS 84 to ETRS89 (2)
    "WGS 84\022IG05/12 I\035\007m\275i=\010C{\0" // WGS 84 to IG05/12 Intermediate CRS
    "WGS84\0" // WGS84
    "WGS\21166\0" // WGS_1966
    "WGS\21172\0" // WGS_1972
    "WGS\21172_BE\0" // WGS_1972_BE
    "WGS\21172_BE_S\365\377h\023\256Se\256L\225b\007t\0" // WGS_1972_BE_South_China_Sea_Lambert
    "WGS\21172_BE_\254_\3126_NE\0" // WGS_1972_BE_TM_106_NE
    "WGS\21172_U\254_Z\003\215\0" // WGS_1972_UTM_Zone_
    "WGS\21184\0" // WGS_1984
    "WGS\21184_\0" // WGS_1984_
    "WGS\21184_E\247G_\325\322#_\0" // WGS_1984_EPSG_Arctic_
    "WGS\21184_E\247G_\325\322#_Reg\320\025_$\215\0" // WGS_1984_EPSG_Arctic_Regional_zone_
    "WGS\21184_E\247G_\325\322#_$\215\0" // WGS_1984_EPSG_Arctic_zone_
    "WGS\21184_Maj\006_Aux\341i\037y_S\274e\0" // WGS_1984_Major_Auxiliary_Sphere
    "WGS\21184_\373_P\246\215LAEA_\0" // WGS_1984_North_Pole_LAEA_
    "WGS\21184_U\254_Z\003\215\0" // WGS_1984_UTM_Zone_
    "WGS_84_\254_90_NE\0" // WGS_84_TM_90_NE
    "WI\323{ Ad\225s\374Juneau\327\026\035i\220 (ft\203)\0" // WISCRS Adams and Juneau Counties (ftUS)
    "WI\323{ Ad\225s\374Juneau\327\026\035i\220 (m)\0" // WISCRS Adams and Juneau Counties (m)
    "WI\323{ A<\206\327\026\035\204(ft\203)\0" // WISCRS Ashland County (ftUS)
    "WI\323{ A<\206\327\026\035\204(m)\0" // WISCRS Ashland County (m)
    "WI\323{ B\037r\231C\026\035\204(ft\203)\0" // WISCRS Barron County (ftUS)
    "WI\323{ B\037r\231C\026\035\204(m)\0" // WISCRS Barron County (m)
    "WI\323{ Bayfi\242d\327\026\035\204(ft\203)\0" // WISCRS Bayfield County (ftUS)
    "WI\323{ Bayfi\242d\327\026\035\204(m)\0" // WISCRS Bayfield County (m)
    "WI\323{ Brown\327\026\035\204(ft\203)\0" // WISCRS Brown County (ftUS)
    "WI\323{ Brown\327\026\035\204(m)\0" // WISCRS Brown County (m)
    "WI\323{ Buff\025\013C\026\035\204(ft\203)\0" // WISCRS Buffalo County (ftUS)
    "WI\323{ Buff\025\013C\026\035\204(m)\0" // WISCRS Buffalo County (m)
    "WI\323{ B\224n\036t\327\026\035\204(ft\203)\0" // WISCRS Burnett County (ftUS)
    "WI\323{ B\224n\036t\327\026\035\204(m)\0" // WISCRS Burnett County (m)
    "WI\323{\327\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebag\013C\026\035i\220 (ft\203)\0" // WISCRS Calumet, Fond du Lac, Outagamie and Winnebago Counties (ftUS)
    "WI\323{\327\025um\036\277F\003d du Lac\277Outag\225i\010\253W\023nebag\013C\026\035i\220 (m)\0" // WISCRS Calumet, Fond du Lac, Outagamie and Winnebago Counties (m)
    "WI\323{\327hippew\027C\026\035\204(ft\203)\0" // WISCRS Chippewa County (ftUS)
    "WI\323{\327hippew\027C\026\035\204(m)\0" // WISCRS Chippewa County (m)
    "WI\323{\327l\037k\327\026\035\204(ft\203)\0" // WISCRS Clark County (ftUS)
    "WI\323{\327l\037k\327\026\035\204(m)\0" // WISCRS Clark County (m)
    "WI\323{\327\246umb\315C\026\035\204(ft\203)\0" // WISCRS Columbia County (ftUS)
    "WI\323{\327\246umb\315C\026\035\204(m)\0" // WISCRS Columbia County (m)
    "WI\323{\327\350wf\006d\327\026\035\204(ft\203)\0" // WISCRS Crawford County (ftUS)
    "WI\323{\327\350wf\006d\327\026\035\204(m)\0" // WISCRS Crawford County (m)
    "WI\323{ D\005\010C\026\035\204(ft\203)\0" // WISCRS Dane County (ftUS)
    "WI\323{ D\005\010C\026\035\204(m)\0" // WISCRS Dane County (m)
    "WI\323{ Dodg\010\253Jeff\232\231C\026\035i\220 (ft\203)\0" // WISCRS Dodge and Jefferson Counties (ftUS)
    "WI\323{ Dodg\010\253Jeff\232\231C\026\035i\220 (m)\0" // WISCRS Dodge and Jefferson Counties (m)
    "WI\323{ Do\006\327\026\035\204(ft\203)\0" // WISCRS Door County (ftUS)
    "WI\323{ Do\006\327\026\035\204(m)\0" // WISCRS Door County (m)
    "WI\323{ D\026gl}\327\026\035\204(ft\203)\0" // WISCRS Douglas County (ftUS)
    "WI\323{ D\026gl}\327\026\035\204(m)\0" // WISCRS Douglas County (m)
    "WI\323{ Dunn\327\026\035\204(ft\203)\0" // WISCRS Dunn County (ftUS)
    "WI\323{ Dunn\327\026\035\204(m)\0" // WISCRS Dunn County (m)
    "WI\323{ Eau\327la\340\010C\026\035\204(ft\203)\0" // WISCRS Eau Claire County (ftUS)
    "WI\323{ Eau\327la\340\010C\026\035\204(m)\0" // WISCRS Eau Claire County (m)
    "WI\323{ Fl\006\207c\010C\026\035\204(ft\203)\0" // WISCRS Florence County (ftUS)
    "WI\323{ Fl\006\207c\010C\026\035\204(m)\0" // WISCRS Florence County (m)
    "WI\323{ F\006\267C\026\035\204(ft\203)\0" // WISCRS Forest County (ftUS)
    "WI\323{ F\006\267C\026\035\204(m)\0" // WISCRS Forest County (m)
    "WI\323{ Gr\005t\327\026\035\204(ft\203)\0" // WISCRS Grant County (ftUS)
    "WI\323{ Gr\005t\327\026\035\204(m)\0" // WISCRS Grant County (m)
    "WI\323{ G>\207 Lak\010\253M\037qu\036t\010C\026\035i\220 (ft\203)\0" // WISCRS Green Lake and Marquette Counties (ftUS)
    "WI\323{ G>\207 Lak\010\253M\037qu\036t\010C\026\035i\220 (m)\0" // WISCRS Green Lake and Marquette Counties (m)
    "WI\323{ G>\207\374Lafay\036t\010C\026\035i\220 (ft\203)\0" // WISCRS Green and Lafayette Counties (ftUS)
    "WI\323{ G>\207\374Lafay\036t\010C\026\035i\220 (m)\0" // WISCRS Green and Lafayette Counties (m)
    "WI\323{ Iow\027C\026\035\204(ft\203)\0" // WISCRS Iowa County (ftUS)
    "WI\323{ Iow\027C\026\035\204(m)\0" // WISCRS Iowa County (m)
    "WI\323{ Ir\231C\026\035\204(ft\203)\0" // WISCRS Iron County (ftUS)
    "WI\323{ Ir\231C\026\035\204(m)\0" // WISCRS Iron County (m)
    "WI\323{ Jacks\231C\026\035\204(ft\203)\0" // WISCRS Jackson County (ftUS)
    "WI\323{ Jacks\231C\026\035\204(m)\0" // WISCRS Jackson County (m)
    "WI\323{ K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023\010C\026\035i\220 (ft\203)\0" // WISCRS Kenosha, Milwaukee, Ozaukee and Racine Counties (ftUS)
    "WI\323{ K\207o<a\277M\341waukee\277Ozauke\010\253Rac\023\010C\026\035i\220 (m)\0" // WISCRS Kenosha, Milwaukee, Ozaukee and Racine Counties (m)
    "WI\323{ Kewaunee\277M\005\245owoc \033|heboyg\005\327\026\035i\220 (ft\203)\0" // WISCRS Kewaunee, Manitowoc and Sheboygan Counties (ftUS)
    "WI\323{ Kewaunee\277M\005\245owoc \033|heboyg\005\327\026\035i\220 (m)\0" // WISCRS Kewaunee, Manitowoc and Sheboygan Counties (m)
    "WI\323{ L\027Cross\010C\026\035\204(ft\203)\0" // WISCRS La Crosse County (ftUS)
    "WI\323{ L\027Cross\010C\026\035\204(m)\0" // WISCRS La Crosse County (m)
    "WI\323{ L\005gl\226\010C\026\035\204(ft\203)\0" // WISCRS Langlade County (ftUS)
    "WI\323{ L\005gl\226\010C\026\035\204(m)\0" // WISCRS Langlade County (m)
    "WI\323{ L\023c\246n\327\026\035\204(ft\203)\0" // WISCRS Lincoln County (ftUS)
    "WI\323{ L\023c\246n\327\026\035\204(m)\0" // WISCRS Lincoln County (m)
    "WI\323{ M\037a\024\231C\026\035\204(ft\203)\0" // WISCRS Marathon County (ftUS)
    "WI\323{ M\037a\024\231C\026\035\204(m)\0" // WISCRS Marathon County (m)
    "WI\323{ M\037\023\036t\010C\026\035\204(ft\203)\0" // WISCRS Marinette County (ftUS)
    "WI\323{ M\037\023\036t\010C\026\035\204(m)\0" // WISCRS Marinette County (m)
    "WI\323{ M\207\343\023e\010C\026\035\204(ft\203)\0" // WISCRS Menominee County (ftUS)
    "WI\323{ M\207\343\023e\010C\026\035\204(m)\0" // WISCRS Menominee County (m)
    "WI\323{ M\003ro\010C\026\035\204(ft\203)\0" // WISCRS Monroe County (ftUS)
    "WI\323{ M\003ro\010C\026\035\204(m)\0" // WISCRS Monroe County (m)
    "WI\323{ Oc\003t\013C\026\035\204(ft\203)\0" // WISCRS Oconto County (ftUS)
    "WI\323{ Oc\003t\013C\026\035\204(m)\0" // WISCRS Oconto County (m)
    "WI\323{ One\257\027C\026\035\204(ft\203)\0" // WISCRS Oneida County (ftUS)
    "WI\323{ One\257\027C\026\035\204(m)\0" // WISCRS Oneida County (m)
    "WI\323{ Pep\023\374Pi\007c\010C\026\035i\220 (ft\203)\0" // WISCRS Pepin and Pierce Counties (ftUS)
    "WI\323{ Pep\023\374Pi\007c\010C\026\035i\220 (m)\0" // WISCRS Pepin and Pierce Counties (m)
    "WI\323{ P\246k\327\026\035\204(ft\203)\0" // WISCRS Polk County (ftUS)
    "WI\323{ P\246k\327\026\035\204(m)\0" // WISCRS Polk County (m)
    "WI\323{ P\006tag\010C\026\035\204(ft\203)\0" // WISCRS Portage County (ftUS)
    "WI\323{ P\006tag\010C\026\035\204(m)\0" // WISCRS Portage County (m)
    "WI\323{ Pr#\010C\026\035\204(ft\203)\0" // WISCRS Price County (ftUS)
    "WI\323{ Pr#\010C\026\035\204(m)\0" // WISCRS Price County (m)
    "WI\323{ R#h\206\327\026\035\204(ft\203)\0" // WISCRS Richland County (ftUS)
    "WI\323{ R#h\206\327\026\035\204(m)\0" // WISCRS Richland County (m)
    "WI\323{ Rock\327\026\035\204(ft\203)\0" // WISCRS Rock County (ftUS)
    "WI\323{ Rock\327\026\035\204(m)\0" // WISCRS Rock County (m)
    "WI\323{ R\351k\327\026\035\204(ft\203)\0" // WISCRS Rusk County (ftUS)
    "WI\323{ R\351k\327\026\035\204(m)\0" // WISCRS Rusk County (m)
    "WI\323{|auk\327\026\035\204(ft\203)\0" // WISCRS Sauk County (ftUS)
    "WI\323{|auk\327\026\035\204(m)\0" // WISCRS Sauk County (m)
    "WI\323{|awy\007\327\026\035\204(ft\203)\0" // WISCRS Sawyer County (ftUS)
    "WI\323{|awy\007\327\026\035\204(m)\0" // WISCRS Sawyer County (m)
    "WI\323{|haw\005\013C\026\035\204(ft\203)\0" // WISCRS Shawano County (ftUS)
    "WI\323{|haw\005\013C\026\035\204(m)\0" // WISCRS Shawano County (m)
    "WI\323{|t.\327roix\327\026\035\204(ft\203)\0" // WISCRS St. Croix County (ftUS)
    "WI\323{|t.\327roix\327\026\035\204(m)\0" // WISCRS St. Croix County (m)
    "WI\323{ Tayl\006\327\026\035\204(ft\203)\0" // WISCRS Taylor County (ftUS)
    "WI\323{ Tayl\006\327\026\035\204(m)\0" // WISCRS Taylor County (m)
    "WI\323{ T>mpe\025eau\327\026\035\204(ft\203)\0" // WISCRS Trempealeau County (ftUS)
    "WI\323{ T>mpe\025eau\327\026\035\204(m)\0" // WISCRS Trempealeau County (m)
    "WI\323{ V\007n\231C\026\035\204(ft\203)\0" // WISCRS Vernon County (ftUS)
    "WI\323{ V\007n\231C\026\035\204(m)\0" // WISCRS Vernon County (m)
    "WI\323{ V\341}\327\026\035\204(ft\203)\0" // WISCRS Vilas County (ftUS)
    "WI\323{ V\341}\327\026\035\204(m)\0" // WISCRS Vilas County (m)
    "WI\323{ W\025w\006@C\026\035\204(ft\203)\0" // WISCRS Walworth County (ftUS)
    "WI\323{ W\025w\006@C\026\035\204(m)\0" // WISCRS Walworth County (m)
    "WI\323{ Wa<b\224n\327\026\035\204(ft\203)\0" // WISCRS Washburn County (ftUS)
    "WI\323{ Wa<b\224n\327\026\035\204(m)\0" // WISCRS Washburn County (m)
    "WI\323{ Wa<\023gt\231C\026\035\204(ft\203)\0" // WISCRS Washington County (ftUS)
    "WI\323{ Wa<\023gt\231C\026\035\204(m)\0" // WISCRS Washington County (m)
    "WI\323{ Wauke<\027C\026\035\204(ft\203)\0" // WISCRS Waukesha County (ftUS)
    "WI\323{ Wauke<\027C\026\035\204(m)\0" // WISCRS Waukesha County (m)
    "WI\323{ Waupac\027C\026\035\204(ft\203)\0" // WISCRS Waupaca County (ftUS)
    "WI\323{ Waupac\027C\026\035\204(m)\0" // WISCRS Waupaca County (m)
    "WI\323{ Wau<\037\027C\026\035\204(ft\203)\0" // WISCRS Waushara County (ftUS)
    "WI\323{ Wau<\037\027C\026\035\204(m)\0" // WISCRS Waushara County (m)
    "WI\323{ Wood\327\026\035\204(ft\203)\0" // WISCRS Wood County (ftUS)
    "WI\323{ Wood\327\026\035\204(m)\0" // WISCRS Wood County (m)
    "Wa\340\037ap\256C\340cu\245\0" // Wairarapa_Circuit
    "Wak\010\335\31752\0" // Wake Island 1952
    "Wak\215Eniw\036ok\21160\0" // Wake_Eniwetok_1960
    "Wak\215\335\21152\0" // Wake_Island_1952
    "W\025l\077\374Futuna\0" // Wallis and Futuna
    "W\025l\077\374Futun\030W\025l\077\0" // Wallis and Futuna - Wallis
    "W\025low\256\021\211\014_\240_\254`t_I\035l\0" // Wallowa_NAD_1983_2011_TM_Ft_Intl
    "W\025low\256\021\211\014_\240_\254_M\313\0" // Wallowa_NAD_1983_2011_TM_Meters
    "W\025w\006\024\377\026\035y\372\0" // Walworth_County_Feet
    "W\025w\006\024\377\026\035y_M\313\0" // Walworth_County_Meters
    "W\025w\006\024\372\0" // Walworth_Feet
    "W\025w\006\024_M\313\0" // Walworth_Meters
    "W\005g\005ui\377\340cu\245\0" // Wanganui_Circuit
    "W\005gdu\215Phodr\005g_\254\0" // Wangdue_Phodrang_TM
    "W\037 Off#e\0" // War Office
    "W\037_Off#e\0" // War_Office
    "W\037n\007_Highway_\021\211\014_\240_LCC`t_I\035l\0" // Warner_Highway_NAD_1983_2011_LCC_Ft_Intl
    "W\037n\007_Highway_\021\211\014_\240_LCC_M\313\0" // Warner_Highway_NAD_1983_2011_LCC_Meters
    "Wa<b\224n\377\026\035y\372\0" // Washburn_County_Feet
    "Wa<b\224n\377\026\035y_M\313\0" // Washburn_County_Meters
    "Wa<b\224n\372\0" // Washburn_Feet
    "Wa<b\224n_M\313\0" // Washburn_Meters
    "Wa<\023gt\231\134\306 \324$e\0" // Washington CS27 North zone
    "Wa<\023gt\231\134\306|\250$e\0" // Washington CS27 South zone
    "Wa<\023gt\003\377\026\035y\372\0" // Washington_County_Feet
    "Wa<\023gt\003\377\026\035y_M\313\0" // Washington_County_Meters
    "Wa<\023gt\003\372\0" // Washington_Feet
    "Wa<\023gt\003_M\313\0" // Washington_Meters
    "Wa<\023gt\003_\373\2724601\0" // Washington_North_FIPS_4601
    "Wa<\023gt\003_\373\2724601\372\0" // Washington_North_FIPS_4601_Feet
    "Wa<\023gt\003_\373\2724601`t_\203\0" // Washington_North_FIPS_4601_Ft_US
    "Wa<\023gt\003_S\365\2724602\0" // Washington_South_FIPS_4602
    "Wa<\023gt\003_S\365\2724602\372\0" // Washington_South_FIPS_4602_Feet
    "Wa<\023gt\003_S\365\2724602`t_\203\0" // Washington_South_FIPS_4602_Ft_US
    "Wauke<\256C\026\035y\372\0" // Waukesha_County_Feet
    "Wauke<\256C\026\035y_M\313\0" // Waukesha_County_Meters
    "Wauke<a\372\0" // Waukesha_Feet
    "Wauke<\256M\313\0" // Waukesha_Meters
    "Waupac\256C\026\035y\372\0" // Waupaca_County_Feet
    "Waupac\256C\026\035y_M\313\0" // Waupaca_County_Meters
    "Waupaca\372\0" // Waupaca_Feet
    "Waupac\256M\313\0" // Waupaca_Meters
    "Wau<\037\256C\026\035y\372\0" // Waushara_County_Feet
    "Wau<\037\256C\026\035y_M\313\0" // Waushara_County_Meters
    "Wau<\037a\372\0" // Waushara_Feet
    "Wau<\037\256M\313\0" // Waushara_Meters
    "Web M\007c=\006\0" // Web Mercator
    "Web_M\007c=\006\0" // Web_Mercator
    "Web_M\007c=\006_Aux\341i\037y_S\274e\0" // Web_Mercator_Auxiliary_Sphere
    "W\242l\023gt\003\377\340cu\245\0" // Wellington_Circuit
    "W\242ls_(ft\203)\0" // Wells_(ftUS)
    "W\242ls_(m)\0" // Wells_(m)
    "W\267B\207g\230\333F \254\0" // West Bengal NSF TM
    "W\267V\340g\023\315\134\306 \324$e\0" // West Virginia CS27 North zone
    "W\267V\340g\023\315\134\306|\250$e\0" // West Virginia CS27 South zone
    "We\020_B\242t_\03410\0" // West_Belt_2010
    "We\020_B\207g\025\0" // West_Bengal
    "We\020_\021\211\014_\240_OM\372_I\035l\0" // West_NAD_1983_2011_OM_Feet_Intl
    "We\020_\021\211\014_\240_OM_M\313\0" // West_NAD_1983_2011_OM_Meters
    "We\020_\021\211\014_CO{96_OM\372_I\035l\0" // West_NAD_1983_CORS96_OM_Feet_Intl
    "We\020_\021\211\014_CO{96_OM_M\313\0" // West_NAD_1983_CORS96_OM_Meters
    "We\020_V\340g\023i\256\373\2724701\0" // West_Virginia_North_FIPS_4701
    "We\020_V\340g\023i\256\373\2724701\372\0" // West_Virginia_North_FIPS_4701_Feet
    "We\020_V\340g\023i\256\373\2724701`t\203\0" // West_Virginia_North_FIPS_4701_FtUS
    "We\020_V\340g\023i\256S\365\2724702\0" // West_Virginia_South_FIPS_4702
    "We\020_V\340g\023i\256S\365\2724702\372\0" // West_Virginia_South_FIPS_4702_Feet
    "We\020_V\340g\023i\256S\365\2724702`t\203\0" // West_Virginia_South_FIPS_4702_FtUS
    "We\020\007n|\361\037\030n\006@\24324.3\004N\0" // Western Sahara - north of 24.3°N
    "We\020\007n|\361\037\030s\250\24324.3\004N\0" // Western Sahara - south of 24.3°N
    "W\341l\225\036t\215P}s_\021\211\014_\240_\254`t_I\035l\0" // Willamette_Pass_NAD_1983_2011_TM_Ft_Intl
    "W\341l\225\036t\215P}s_\021\211\014_\240_\254_M\313\0" // Willamette_Pass_NAD_1983_2011_TM_Meters
    "W\023d_Riv\007_(ft\203)\0" // Wind_River_(ftUS)
    "W\023d_Riv\007_M\313\0" // Wind_River_Meters
    "W\077c\003s\023 \134\306\327\367\230$e\0" // Wisconsin CS27 Central zone
    "W\077c\003s\023 \134\306 \324$e\0" // Wisconsin CS27 North zone
    "W\077c\003s\023 \134\306|\250$e\0" // Wisconsin CS27 South zone
    "W\077c\003s\023 Tr\005sv\232\010M\007c=\006 27\0" // Wisconsin Transverse Mercator 27
    "W\077c\003s\023 Tr\005sv\232\010M\007c=\006 83\0" // Wisconsin Transverse Mercator 83
    "W\077c\003s\023\377\367\025\2724802\0" // Wisconsin_Central_FIPS_4802
    "W\077c\003s\023\377\367\025\2724802\372\0" // Wisconsin_Central_FIPS_4802_Feet
    "W\077c\003s\023\377\367\025\2724802`t_\203\0" // Wisconsin_Central_FIPS_4802_Ft_US
    "W\077c\003s\023_\373\2724801\0" // Wisconsin_North_FIPS_4801
    "W\077c\003s\023_\373\2724801\372\0" // Wisconsin_North_FIPS_4801_Feet
    "W\077c\003s\023_\373\2724801`t_\203\0" // Wisconsin_North_FIPS_4801_Ft_US
    "W\077c\003s\023_S\365\2724803\0" // Wisconsin_South_FIPS_4803
    "W\077c\003s\023_S\365\2724803\372\0" // Wisconsin_South_FIPS_4803_Feet
    "W\077c\003s\023_S\365\2724803`t_\203\0" // Wisconsin_South_FIPS_4803_Ft_US
    "W\077c\003s\023_\254\0" // Wisconsin_TM
    "Wood\377\026\035y\372\0" // Wood_County_Feet
    "Wood\377\026\035y_M\313\0" // Wood_County_Meters
    "Wood\372\0" // Wood_Feet
    "Wood_M\313\0" // Wood_Meters
    "\331\0" // World
    "\34285\376\02285\004N\0" // World - 85°S to 85°N
    "\34286\376\02286\004N\0" // World - 86°S to 86°N
    "\342N\3530\2006\015\0" // World - N hemisphere - 0°E to 6°E
    "\342N\3530\2006\015\002\366\0" // World - N hemisphere - 0°E to 6°E - by country
    "\342N\3530\004N\02284\004N\0" // World - N hemisphere - 0°N to 84°N
    "\342N\353\3122\200\3128\015\0" // World - N hemisphere - 102°E to 108°E
    "\342N\353\3122\200\3128\015\002\366\0" // World - N hemisphere - 102°E to 108°E - by country
    "\342N\353\3122\200\3128\015\002\363\204\253WGS 72BE\0" // World - N hemisphere - 102°E to 108°E - by country and WGS 72BE
    "\342N\353\3122\22196!\0" // World - N hemisphere - 102°W to 96°W
    "\342N\353\3122\22196!\002\366\0" // World - N hemisphere - 102°W to 96°W - by country
    "\342N\353\3128\200\2024\015\0" // World - N hemisphere - 108°E to 114°E
    "\342N\353\3128\200\2024\015\002\366\0" // World - N hemisphere - 108°E to 114°E - by country
    "\342N\353\3128\200\2024\015\002\363\204\253WGS 72BE\0" // World - N hemisphere - 108°E to 114°E - by country and WGS 72BE
    "\342N\353\3128\221\3122!\0" // World - N hemisphere - 108°W to 102°W
    "\342N\353\3128\221\3122!\002\366\0" // World - N hemisphere - 108°W to 102°W - by country
    "\342N\353\2024\354\034\015\0" // World - N hemisphere - 114°E to 120°E
    "\342N\353\2024\354\034\015\002\366\0" // World - N hemisphere - 114°E to 120°E - by country
    "\342N\353\2024\221\3128!\0" // World - N hemisphere - 114°W to 108°W
    "\342N\353\2024\221\3128!\002\366\0" // World - N hemisphere - 114°W to 108°W - by country
    "\342N\3531\034\35426\015\0" // World - N hemisphere - 120°E to 126°E
    "\342N\3531\034\35426\015\002\366\0" // World - N hemisphere - 120°E to 126°E - by country
    "\342N\3531\034\221\2024!\0" // World - N hemisphere - 120°W to 114°W
    "\342N\3531\034\221\2024!\002\366\0" // World - N hemisphere - 120°W to 114°W - by country
    "\342N\353126\35432\015\0" // World - N hemisphere - 126°E to 132°E
    "\342N\353126\35432\015\002\366\0" // World - N hemisphere - 126°E to 132°E - by country
    "\342N\353126\2211\034!\0" // World - N hemisphere - 126°W to 120°W
    "\342N\353126\2211\034!\002\366\0" // World - N hemisphere - 126°W to 120°W - by country
    "\342N\35312\3548\015\0" // World - N hemisphere - 12°E to 18°E
    "\342N\35312\3548\015\002\366\0" // World - N hemisphere - 12°E to 18°E - by country
    "\342N\35312\3548\015\002\363\204\253WGS 72BE\0" // World - N hemisphere - 12°E to 18°E - by country and WGS 72BE
    "\342N\35312\2216!\0" // World - N hemisphere - 12°W to 6°W
    "\342N\35312\2216!\002\366\0" // World - N hemisphere - 12°W to 6°W - by country
    "\342N\353132\35438\015\0" // World - N hemisphere - 132°E to 138°E
    "\342N\353132\35438\015\002\366\0" // World - N hemisphere - 132°E to 138°E - by country
    "\342N\353132\221126!\0" // World - N hemisphere - 132°W to 126°W
    "\342N\353132\221126!\002\366\0" // World - N hemisphere - 132°W to 126°W - by country
    "\342N\353138\35444\015\0" // World - N hemisphere - 138°E to 144°E
    "\342N\353138\35444\015\002\366\0" // World - N hemisphere - 138°E to 144°E - by country
    "\342N\353138\221132!\0" // World - N hemisphere - 138°W to 132°W
    "\342N\353138\221132!\002\366\0" // World - N hemisphere - 138°W to 132°W - by country
    "\342N\353144\35450\015\0" // World - N hemisphere - 144°E to 150°E
    "\342N\353144\35450\015\002\366\0" // World - N hemisphere - 144°E to 150°E - by country
    "\342N\353144\221138!\0" // World - N hemisphere - 144°W to 138°W
    "\342N\353144\221138!\002\366\0" // World - N hemisphere - 144°W to 138°W - by country
    "\342N\353150\35456\015\0" // World - N hemisphere - 150°E to 156°E
    "\342N\353150\35456\015\002\366\0" // World - N hemisphere - 150°E to 156°E - by country
    "\342N\353150\221144!\0" // World - N hemisphere - 150°W to 144°W
    "\342N\353150\221144!\002\366\0" // World - N hemisphere - 150°W to 144°W - by country
    "\342N\353156\35462\015\0" // World - N hemisphere - 156°E to 162°E
    "\342N\353156\35462\015\002\366\0" // World - N hemisphere - 156°E to 162°E - by country
    "\342N\353156\221150!\0" // World - N hemisphere - 156°W to 150°W
    "\342N\353156\221150!\002\366\0" // World - N hemisphere - 156°W to 150°W - by country
    "\342N\353162\35468\015\0" // World - N hemisphere - 162°E to 168°E
    "\342N\353162\35468\015\002\366\0" // World - N hemisphere - 162°E to 168°E - by country
    "\342N\353162\221156!\0" // World - N hemisphere - 162°W to 156°W
    "\342N\353162\221156!\002\366\0" // World - N hemisphere - 162°W to 156°W - by country
    "\342N\353168\35474\015\0" // World - N hemisphere - 168°E to 174°E
    "\342N\353168\35474\015\002\366\0" // World - N hemisphere - 168°E to 174°E - by country
    "\342N\353168\221162!\0" // World - N hemisphere - 168°W to 162°W
    "\342N\353168\221162!\002\366\0" // World - N hemisphere - 168°W to 162°W - by country
    "\342N\353174\35480\015\0" // World - N hemisphere - 174°E to 180°E
    "\342N\353174\35480\015\002\366\0" // World - N hemisphere - 174°E to 180°E - by country
    "\342N\353174\221168!\0" // World - N hemisphere - 174°W to 168°W
    "\342N\353174\221168!\002\366\0" // World - N hemisphere - 174°W to 168°W - by country
    "\342N\353180\221174!\0" // World - N hemisphere - 180°W to 174°W
    "\342N\353180\221174!\002\366\0" // World - N hemisphere - 180°W to 174°W - by country
    "\342N\35318\20024\015\0" // World - N hemisphere - 18°E to 24°E
    "\342N\35318\20024\015\002\366\0" // World - N hemisphere - 18°E to 24°E - by country
    "\342N\35318\20024\015\002\363\204\253WGS 72BE\0" // World - N hemisphere - 18°E to 24°E - by country and WGS 72BE
    "\342N\35318\22112!\0" // World - N hemisphere - 18°W to 12°W
    "\342N\35318\22112!\002\366\0" // World - N hemisphere - 18°W to 12°W - by country
    "\342N\35324\20030\015\0" // World - N hemisphere - 24°E to 30°E
    "\342N\35324\20030\015\002\366\0" // World - N hemisphere - 24°E to 30°E - by country
    "\342N\35324\22118!\0" // World - N hemisphere - 24°W to 18°W
    "\342N\35324\22118!\002\366\0" // World - N hemisphere - 24°W to 18°W - by country
    "\342N\35330\20036\015\0" // World - N hemisphere - 30°E to 36°E
    "\342N\35330\20036\015\002\366\0" // World - N hemisphere - 30°E to 36°E - by country
    "\342N\35330\22124!\0" // World - N hemisphere - 30°W to 24°W
    "\342N\35330\22124!\002\366\0" // World - N hemisphere - 30°W to 24°W - by country
    "\342N\35336\20042\015\0" // World - N hemisphere - 36°E to 42°E
    "\342N\35336\20042\015\002\366\0" // World - N hemisphere - 36°E to 42°E - by country
    "\342N\35336\22130!\0" // World - N hemisphere - 36°W to 30°W
    "\342N\35336\22130!\002\366\0" // World - N hemisphere - 36°W to 30°W - by country
    "\342N\35342\20048\015\0" // World - N hemisphere - 42°E to 48°E
    "\342N\35342\20048\015\002\366\0" // World - N hemisphere - 42°E to 48°E - by country
    "\342N\35342\22136!\0" // World - N hemisphere - 42°W to 36°W
    "\342N\35342\22136!\002\366\0" // World - N hemisphere - 42°W to 36°W - by country
    "\342N\35348\20054\015\0" // World - N hemisphere - 48°E to 54°E
    "\342N\35348\20054\015\002\366\0" // World - N hemisphere - 48°E to 54°E - by country
    "\342N\35348\22142!\0" // World - N hemisphere - 48°W to 42°W
    "\342N\35348\22142!\002\366\0" // World - N hemisphere - 48°W to 42°W - by country
    "\342N\35354\20060\015\0" // World - N hemisphere - 54°E to 60°E
    "\342N\35354\20060\015\002\366\0" // World - N hemisphere - 54°E to 60°E - by country
    "\342N\35354\22148!\0" // World - N hemisphere - 54°W to 48°W
    "\342N\35354\22148!\002\366\0" // World - N hemisphere - 54°W to 48°W - by country
    "\342N\35360\20066\015\0" // World - N hemisphere - 60°E to 66°E
    "\342N\35360\20066\015\002\366\0" // World - N hemisphere - 60°E to 66°E - by country
    "\342N\35360\22154!\0" // World - N hemisphere - 60°W to 54°W
    "\342N\35360\22154!\002\366\0" // World - N hemisphere - 60°W to 54°W - by country
    "\342N\35366\20072\015\0" // World - N hemisphere - 66°E to 72°E
    "\342N\35366\20072\015\002\366\0" // World - N hemisphere - 66°E to 72°E - by country
    "\342N\35366\22160!\0" // World - N hemisphere - 66°W to 60°W
    "\342N\35366\22160!\002\366\0" // World - N hemisphere - 66°W to 60°W - by country
    "\342N\3536\3542\015\0" // World - N hemisphere - 6°E to 12°E
    "\342N\3536\3542\015\002\366\0" // World - N hemisphere - 6°E to 12°E - by country
    "\342N\3536\2210!\0" // World - N hemisphere - 6°W to 0°W
    "\342N\3536\2210!\002\366\0" // World - N hemisphere - 6°W to 0°W - by country
    "\342N\35372\20078\015\0" // World - N hemisphere - 72°E to 78°E
    "\342N\35372\20078\015\002\366\0" // World - N hemisphere - 72°E to 78°E - by country
    "\342N\35372\22166!\0" // World - N hemisphere - 72°W to 66°W
    "\342N\35372\22166!\002\366\0" // World - N hemisphere - 72°W to 66°W - by country
    "\342N\35378\20084\015\0" // World - N hemisphere - 78°E to 84°E
    "\342N\35378\20084\015\002\366\0" // World - N hemisphere - 78°E to 84°E - by country
    "\342N\35378\22172!\0" // World - N hemisphere - 78°W to 72°W
    "\342N\35378\22172!\002\366\0" // World - N hemisphere - 78°W to 72°W - by country
    "\342N\35384\20090\015\0" // World - N hemisphere - 84°E to 90°E
    "\342N\35384\20090\015\002\366\0" // World - N hemisphere - 84°E to 90°E - by country
    "\342N\35384\22178!\0" // World - N hemisphere - 84°W to 78°W
    "\342N\35384\22178!\002\366\0" // World - N hemisphere - 84°W to 78°W - by country
    "\342N\35390\20096\015\0" // World - N hemisphere - 90°E to 96°E
    "\342N\35390\20096\015\002\366\0" // World - N hemisphere - 90°E to 96°E - by country
    "\342N\35390\22184!\0" // World - N hemisphere - 90°W to 84°W
    "\342N\35390\22184!\002\366\0" // World - N hemisphere - 90°W to 84°W - by country
    "\342N\35396\200\3122\015\0" // World - N hemisphere - 96°E to 102°E
    "\342N\35396\200\3122\015\002\366\0" // World - N hemisphere - 96°E to 102°E - by country
    "\342N\35396\22190!\0" // World - N hemisphere - 96°W to 90°W
    "\342N\35396\22190!\002\366\0" // World - N hemisphere - 96°W to 90°W - by country
    "\342N\353n\006@\24360\004N\0" // World - N hemisphere - north of 60°N
    "\342S\3530\2006\015\0" // World - S hemisphere - 0°E to 6°E
    "\342S\3530\2006\015\002\366\0" // World - S hemisphere - 0°E to 6°E - by country
    "\342S\3530\004N\02280\376\0" // World - S hemisphere - 0°N to 80°S
    "\342S\353\3122\200\3128\015\0" // World - S hemisphere - 102°E to 108°E
    "\342S\353\3122\200\3128\015\002\366\0" // World - S hemisphere - 102°E to 108°E - by country
    "\342S\353\3122\22196!\0" // World - S hemisphere - 102°W to 96°W
    "\342S\353\3122\22196!\002\366\0" // World - S hemisphere - 102°W to 96°W - by country
    "\342S\353\3128\200\2024\015\0" // World - S hemisphere - 108°E to 114°E
    "\342S\353\3128\200\2024\015\002\366\0" // World - S hemisphere - 108°E to 114°E - by country
    "\342S\353\3128\200\2024\015\002\363\204\253WGS 72BE\0" // World - S hemisphere - 108°E to 114°E - by country and WGS 72BE
    "\342S\353\3128\221\3122!\0" // World - S hemisphere - 108°W to 102°W
    "\342S\353\3128\221\3122!\002\366\0" // World - S hemisphere - 108°W to 102°W - by country
    "\342S\353\2024\354\034\015\0" // World - S hemisphere - 114°E to 120°E
    "\342S\353\2024\354\034\015\002\366\0" // World - S hemisphere - 114°E to 120°E - by country
    "\342S\353\2024\221\3128!\0" // World - S hemisphere - 114°W to 108°W
    "\342S\353\2024\221\3128!\002\366\0" // World - S hemisphere - 114°W to 108°W - by country
    "\342S\3531\034\35426\015\0" // World - S hemisphere - 120°E to 126°E
    "\342S\3531\034\35426\015\002\366\0" // World - S hemisphere - 120°E to 126°E - by country
    "\342S\3531\034\221\2024!\0" // World - S hemisphere - 120°W to 114°W
    "\342S\3531\034\221\2024!\002\366\0" // World - S hemisphere - 120°W to 114°W - by country
    "\342S\353126\35432\015\0" // World - S hemisphere - 126°E to 132°E
    "\342S\353126\35432\015\002\366\0" // World - S hemisphere - 126°E to 132°E - by country
    "\342S\353126\2211\034!\0" // World - S hemisphere - 126°W to 120°W
    "\342S\353126\2211\034!\002\366\0" // World - S hemisphere - 126°W to 120°W - by country
    "\342S\35312\3548\015\0" // World - S hemisphere - 12°E to 18°E
    "\342S\35312\3548\015\002\366\0" // World - S hemisphere - 12°E to 18°E - by country
    "\342S\35312\2216!\0" // World - S hemisphere - 12°W to 6°W
    "\342S\35312\2216!\002\366\0" // World - S hemisphere - 12°W to 6°W - by country
    "\342S\353132\35438\015\0" // World - S hemisphere - 132°E to 138°E
    "\342S\353132\35438\015\002\366\0" // World - S hemisphere - 132°E to 138°E - by country
    "\342S\353132\221126!\0" // World - S hemisphere - 132°W to 126°W
    "\342S\353132\221126!\002\366\0" // World - S hemisphere - 132°W to 126°W - by country
    "\342S\353138\35444\015\0" // World - S hemisphere - 138°E to 144°E
    "\342S\353138\35444\015\002\366\0" // World - S hemisphere - 138°E to 144°E - by country
    "\342S\353138\221132!\0" // World - S hemisphere - 138°W to 132°W
    "\342S\353138\221132!\002\366\0" // World - S hemisphere - 138°W to 132°W - by country
    "\342S\353144\35450\015\0" // World - S hemisphere - 144°E to 150°E
    "\342S\353144\35450\015\002\366\0" // World - S hemisphere - 144°E to 150°E - by country
    "\342S\353144\221138!\0" // World - S hemisphere - 144°W to 138°W
    "\342S\353144\221138!\002\366\0" // World - S hemisphere - 144°W to 138°W - by country
    "\342S\353150\35456\015\0" // World - S hemisphere - 150°E to 156°E
    "\342S\353150\35456\015\002\366\0" // World - S hemisphere - 150°E to 156°E - by country
    "\342S\353150\221144!\0" // World - S hemisphere - 150°W to 144°W
    "\342S\353150\221144!\002\366\0" // World - S hemisphere - 150°W to 144°W - by country
    "\342S\353156\35462\015\0" // World - S hemisphere - 156°E to 162°E
    "\342S\353156\35462\015\002\366\0" // World - S hemisphere - 156°E to 162°E - by country
    "\342S\353156\221150!\0" // World - S hemisphere - 156°W to 150°W
    "\342S\353156\221150!\002\366\0" // World - S hemisphere - 156°W to 150°W - by country
    "\342S\353162\35468\015\0" // World - S hemisphere - 162°E to 168°E
    "\342S\353162\35468\015\002\366\0" // World - S hemisphere - 162°E to 168°E - by country
    "\342S\353162\221156!\0" // World - S hemisphere - 162°W to 156°W
    "\342S\353162\221156!\002\366\0" // World - S hemisphere - 162°W to 156°W - by country
    "\342S\353168\35474\015\0" // World - S hemisphere - 168°E to 174°E
    "\342S\353168\35474\015\002\366\0" // World - S hemisphere - 168°E to 174°E - by country
    "\342S\353168\221162!\0" // World - S hemisphere - 168°W to 162°W
    "\342S\353168\221162!\002\366\0" // World - S hemisphere - 168°W to 162°W - by country
    "\342S\353174\35480\015\0" // World - S hemisphere - 174°E to 180°E
    "\342S\353174\35480\015\002\366\0" // World - S hemisphere - 174°E to 180°E - by country
    "\342S\353174\221168!\0" // World - S hemisphere - 174°W to 168°W
    "\342S\353174\221168!\002\366\0" // World - S hemisphere - 174°W to 168°W - by country
    "\342S\353180\221174!\0" // World - S hemisphere - 180°W to 174°W
    "\342S\353180\221174!\002\366\0" // World - S hemisphere - 180°W to 174°W - by country
    "\342S\35318\20024\015\0" // World - S hemisphere - 18°E to 24°E
    "\342S\35318\20024\015\002\366\0" // World - S hemisphere - 18°E to 24°E - by country
    "\342S\35318\22112!\0" // World - S hemisphere - 18°W to 12°W
    "\342S\35318\22112!\002\366\0" // World - S hemisphere - 18°W to 12°W - by country
    "\342S\35324\20030\015\0" // World - S hemisphere - 24°E to 30°E
    "\342S\35324\20030\015\002\366\0" // World - S hemisphere - 24°E to 30°E - by country
    "\342S\35324\22118!\0" // World - S hemisphere - 24°W to 18°W
    "\342S\35324\22118!\002\366\0" // World - S hemisphere - 24°W to 18°W - by country
    "\342S\35330\20036\015\0" // World - S hemisphere - 30°E to 36°E
    "\342S\35330\20036\015\002\366\0" // World - S hemisphere - 30°E to 36°E - by country
    "\342S\35330\22124!\0" // World - S hemisphere - 30°W to 24°W
    "\342S\35330\22124!\002\366\0" // World - S hemisphere - 30°W to 24°W - by country
    "\342S\35336\20042\015\0" // World - S hemisphere - 36°E to 42°E
    "\342S\35336\20042\015\002\366\0" // World - S hemisphere - 36°E to 42°E - by country
    "\342S\35336\22130!\0" // World - S hemisphere - 36°W to 30°W
    "\342S\35336\22130!\002\366\0" // World - S hemisphere - 36°W to 30°W - by country
    "\342S\35342\20048\015\0" // World - S hemisphere - 42°E to 48°E
    "\342S\35342\20048\015\002\366\0" // World - S hemisphere - 42°E to 48°E - by country
    "\342S\35342\22136!\0" // World - S hemisphere - 42°W to 36°W
    "\342S\35342\22136!\002\366\0" // World - S hemisphere - 42°W to 36°W - by country
    "\342S\35348\20054\015\0" // World - S hemisphere - 48°E to 54°E
    "\342S\35348\20054\015\002\366\0" // World - S hemisphere - 48°E to 54°E - by country
    "\342S\35348\22142!\0" // World - S hemisphere - 48°W to 42°W
    "\342S\35348\22142!\002\366\0" // World - S hemisphere - 48°W to 42°W - by country
    "\342S\35354\20060\015\0" // World - S hemisphere - 54°E to 60°E
    "\342S\35354\20060\015\002\366\0" // World - S hemisphere - 54°E to 60°E - by country
    "\342S\35354\22148!\0" // World - S hemisphere - 54°W to 48°W
    "\342S\35354\22148!\002\366\0" // World - S hemisphere - 54°W to 48°W - by country
    "\342S\35360\20066\015\0" // World - S hemisphere - 60°E to 66°E
    "\342S\35360\20066\015\002\366\0" // World - S hemisphere - 60°E to 66°E - by country
    "\342S\35360\22154!\0" // World - S hemisphere - 60°W to 54°W
    "\342S\35360\22154!\002\366\0" // World - S hemisphere - 60°W to 54°W - by country
    "\342S\35366\20072\015\0" // World - S hemisphere - 66°E to 72°E
    "\342S\35366\20072\015\002\366\0" // World - S hemisphere - 66°E to 72°E - by country
    "\342S\35366\22160!\0" // World - S hemisphere - 66°W to 60°W
    "\342S\35366\22160!\002\366\0" // World - S hemisphere - 66°W to 60°W - by country
    "\342S\3536\3542\015\0" // World - S hemisphere - 6°E to 12°E
    "\342S\3536\3542\015\002\366\0" // World - S hemisphere - 6°E to 12°E - by country
    "\342S\3536\2210!\0" // World - S hemisphere - 6°W to 0°W
    "\342S\3536\2210!\002\366\0" // World - S hemisphere - 6°W to 0°W - by country
    "\342S\35372\20078\015\0" // World - S hemisphere - 72°E to 78°E
    "\342S\35372\20078\015\002\366\0" // World - S hemisphere - 72°E to 78°E - by country
    "\342S\35372\22166!\0" // World - S hemisphere - 72°W to 66°W
    "\342S\35372\22166!\002\366\0" // World - S hemisphere - 72°W to 66°W - by country
    "\342S\35378\20084\015\0" // World - S hemisphere - 78°E to 84°E
    "\342S\35378\20084\015\002\366\0" // World - S hemisphere - 78°E to 84°E - by country
    "\342S\35378\22172!\0" // World - S hemisphere - 78°W to 72°W
    "\342S\35378\22172!\002\366\0" // World - S hemisphere - 78°W to 72°W - by country
    "\342S\35384\20090\015\0" // World - S hemisphere - 84°E to 90°E
    "\342S\35384\20090\015\002\366\0" // World - S hemisphere - 84°E to 90°E - by country
    "\342S\35384\22178!\0" // World - S hemisphere - 84°W to 78°W
    "\342S\35384\22178!\002\366\0" // World - S hemisphere - 84°W to 78°W - by country
    "\342S\35390\20096\015\0" // World - S hemisphere - 90°E to 96°E
    "\342S\35390\20096\015\002\366\0" // World - S hemisphere - 90°E to 96°E - by country
    "\342S\35390\22184!\0" // World - S hemisphere - 90°W to 84°W
    "\342S\35390\22184!\002\366\0" // World - S hemisphere - 90°W to 84°W - by country
    "\342S\35396\200\3122\015\0" // World - S hemisphere - 96°E to 102°E
    "\342S\35396\200\3122\015\002\366\0" // World - S hemisphere - 96°E to 102°E - by country
    "\342S\35396\22190!\0" // World - S hemisphere - 96°W to 90°W
    "\342S\35396\22190!\002\366\0" // World - S hemisphere - 96°W to 90°W - by country
    "\342S\353s\250\24360\376\0" // World - S hemisphere - south of 60°S
    "\342WGS72 BE\022WGS 84\002\366\0" // World - WGS72 BE to WGS 84 - by country
    "\342b\036we\207 80\376\37484\004N\0" // World - between 80°S and 84°N
    "\342n\006@\2430\004N\0" // World - north of 0°N
    "\342n\006@\24345\004N\0" // World - north of 45°N
    "\342s\250\2430\004N\0" // World - south of 0°N
    "\342s\250\24350\376\0" // World - south of 50°S
    "\331 Equ\257i\020\005t\327yl\0" // World Equidistant Cyl
    "\331 Equ\257i\020\005t\327yl\023dr#\025\201S\274e)\0" // World Equidistant Cylindrical (Sphere)
    "\331 Geod\036#|y\020\212\31766\0" // World Geodetic System 1966
    "\331 Geod\036#|y\020\212\31772\0" // World Geodetic System 1972
    "\331 Geod\036#|y\020\212\31784 (G\20250)\0" // World Geodetic System 1984 (G1150)
    "\331 Geod\036#|y\020\212\31784 (G1674)\0" // World Geodetic System 1984 (G1674)
    "\331 Geod\036#|y\020\212\31784 (G1762)\0" // World Geodetic System 1984 (G1762)
    "\331 Geod\036#|y\020\212\31784 (G2139)\0" // World Geodetic System 1984 (G2139)
    "\331 Geod\036#|y\020\212\31784 (G730)\0" // World Geodetic System 1984 (G730)
    "\331 Geod\036#|y\020\212\31784 (G873)\0" // World Geodetic System 1984 (G873)
    "\331 Geod\036#|y\020\212\31784 (Tr\005s\245)\0" // World Geodetic System 1984 (Transit)
    "\331 Geod\036#|y\020\212\31784 \207s\212ble\0" // World Geodetic System 1984 ensemble
    "\331 ce\035>d \231150\015\0" // World centred on 150°E
    "\331 ce\035>d \23190!\0" // World centred on 90°W
    "\331_Equ\257i\020\005t\377yl\023dr#\025\0" // World_Equidistant_Cylindrical
    "\331_Equ\257i\020\005t\377yl\023dr#\025_(S\274e)\0" // World_Equidistant_Cylindrical_(Sphere)
    "\331_Geod\036#_Sy\020\212\21184_\0" // World_Geodetic_System_1984_
    "\331_M\007c=\006\0" // World_Mercator
    "Wy\343\023g \134\306 E\314C\367\230$e\0" // Wyoming CS27 East Central zone
    "Wy\343\023g \134\306 E\314$e\0" // Wyoming CS27 East zone
    "Wy\343\023g \134\306 W\267C\367\230$e\0" // Wyoming CS27 West Central zone
    "Wy\343\023g \134\306 W\267$e\0" // Wyoming CS27 West zone
    "Wy\343\023g W\023d Riv\007\201\203|\224ve\204f\234)\0" // Wyoming Wind River (US Survey feet)
    "Wy\343\023g W\023d Riv\007\201m\313)\0" // Wyoming Wind River (meters)
    "Wy\343\023g_E\377\367\025\2724902`t_\203\0" // Wyoming_E_Central_FIPS_4902_Ft_US
    "Wy\343\023g_Ea\020\377\367\025\2724902\0" // Wyoming_East_Central_FIPS_4902
    "Wy\343\023g_Ea\020\377\367\025\2724902\372\0" // Wyoming_East_Central_FIPS_4902_Feet
    "Wy\343\023g_Ea\020\2724901\0" // Wyoming_East_FIPS_4901
    "Wy\343\023g_Ea\020\2724901\372\0" // Wyoming_East_FIPS_4901_Feet
    "Wy\343\023g_Ea\020\2724901`t_\203\0" // Wyoming_East_FIPS_4901_Ft_US
    "Wy\343\023g_W\377\367\025\2724903`t_\203\0" // Wyoming_W_Central_FIPS_4903_Ft_US
    "Wy\343\023g_We\020\377\367\025\2724903\0" // Wyoming_West_Central_FIPS_4903
    "Wy\343\023g_We\020\377\367\025\2724903\372\0" // Wyoming_West_Central_FIPS_4903_Feet
    "Wy\343\023g_We\020\2724904\0" // Wyoming_West_FIPS_4904
    "Wy\343\023g_We\020\2724904\372\0" // Wyoming_West_FIPS_4904_Feet
    "Wy\343\023g_We\020\2724904`t_\203\0" // Wyoming_West_FIPS_4904_Ft_US
    "X\336\31780\0" // Xian 1980
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M \3122E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 102E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M \3125E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 105E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M \3128E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 108E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M \2021E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 111E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M \2024E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 114E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M \2027E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 117E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 1\034E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 120E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 123E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 123E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 126E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 126E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 129E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 129E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 132E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 132E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 135E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 135E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 75E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 75E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 78E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 78E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 81E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 81E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 84E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 84E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 87E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 87E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 90E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 90E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 93E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 93E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 96E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 96E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\327M 99E\0" // Xian 1980 / 3-degree Gauss-Kruger CM 99E
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27325\0" // Xian 1980 / 3-degree Gauss-Kruger zone 25
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27326\0" // Xian 1980 / 3-degree Gauss-Kruger zone 26
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27327\0" // Xian 1980 / 3-degree Gauss-Kruger zone 27
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27328\0" // Xian 1980 / 3-degree Gauss-Kruger zone 28
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27329\0" // Xian 1980 / 3-degree Gauss-Kruger zone 29
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27330\0" // Xian 1980 / 3-degree Gauss-Kruger zone 30
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27331\0" // Xian 1980 / 3-degree Gauss-Kruger zone 31
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27332\0" // Xian 1980 / 3-degree Gauss-Kruger zone 32
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27333\0" // Xian 1980 / 3-degree Gauss-Kruger zone 33
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27334\0" // Xian 1980 / 3-degree Gauss-Kruger zone 34
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27335\0" // Xian 1980 / 3-degree Gauss-Kruger zone 35
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27336\0" // Xian 1980 / 3-degree Gauss-Kruger zone 36
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27337\0" // Xian 1980 / 3-degree Gauss-Kruger zone 37
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27338\0" // Xian 1980 / 3-degree Gauss-Kruger zone 38
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27339\0" // Xian 1980 / 3-degree Gauss-Kruger zone 39
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27340\0" // Xian 1980 / 3-degree Gauss-Kruger zone 40
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27341\0" // Xian 1980 / 3-degree Gauss-Kruger zone 41
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27342\0" // Xian 1980 / 3-degree Gauss-Kruger zone 42
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27343\0" // Xian 1980 / 3-degree Gauss-Kruger zone 43
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27344\0" // Xian 1980 / 3-degree Gauss-Kruger zone 44
    "X\336\31780\0123-deg>\010Ga\351s-Krug\007\27345\0" // Xian 1980 / 3-degree Gauss-Kruger zone 45
    "X\336\31780\012Ga\351s-Krug\007\327M \3125E\0" // Xian 1980 / Gauss-Kruger CM 105E
    "X\336\31780\012Ga\351s-Krug\007\327M \2021E\0" // Xian 1980 / Gauss-Kruger CM 111E
    "X\336\31780\012Ga\351s-Krug\007\327M \2027E\0" // Xian 1980 / Gauss-Kruger CM 117E
    "X\336\31780\012Ga\351s-Krug\007\327M 123E\0" // Xian 1980 / Gauss-Kruger CM 123E
    "X\336\31780\012Ga\351s-Krug\007\327M 129E\0" // Xian 1980 / Gauss-Kruger CM 129E
    "X\336\31780\012Ga\351s-Krug\007\327M 135E\0" // Xian 1980 / Gauss-Kruger CM 135E
    "X\336\31780\012Ga\351s-Krug\007\327M 75E\0" // Xian 1980 / Gauss-Kruger CM 75E
    "X\336\31780\012Ga\351s-Krug\007\327M 81E\0" // Xian 1980 / Gauss-Kruger CM 81E
    "X\336\31780\012Ga\351s-Krug\007\327M 87E\0" // Xian 1980 / Gauss-Kruger CM 87E
    "X\336\31780\012Ga\351s-Krug\007\327M 93E\0" // Xian 1980 / Gauss-Kruger CM 93E
    "X\336\31780\012Ga\351s-Krug\007\327M 99E\0" // Xian 1980 / Gauss-Kruger CM 99E
    "X\336\31780\012Ga\351s-Krug\007\27313\0" // Xian 1980 / Gauss-Kruger zone 13
    "X\336\31780\012Ga\351s-Krug\007\27314\0" // Xian 1980 / Gauss-Kruger zone 14
    "X\336\31780\012Ga\351s-Krug\007\27315\0" // Xian 1980 / Gauss-Kruger zone 15
    "X\336\31780\012Ga\351s-Krug\007\27316\0" // Xian 1980 / Gauss-Kruger zone 16
    "X\336\31780\012Ga\351s-Krug\007\27317\0" // Xian 1980 / Gauss-Kruger zone 17
    "X\336\31780\012Ga\351s-Krug\007\27318\0" // Xian 1980 / Gauss-Kruger zone 18
    "X\336\31780\012Ga\351s-Krug\007\27319\0" // Xian 1980 / Gauss-Kruger zone 19
    "X\336\31780\012Ga\351s-Krug\007\27320\0" // Xian 1980 / Gauss-Kruger zone 20
    "X\336\31780\012Ga\351s-Krug\007\27321\0" // Xian 1980 / Gauss-Kruger zone 21
    "X\336\31780\012Ga\351s-Krug\007\27322\0" // Xian 1980 / Gauss-Kruger zone 22
    "X\336\31780\012Ga\351s-Krug\007\27323\0" // Xian 1980 / Gauss-Kruger zone 23
    "X\336\21180\0" // Xian_1980
    "X\336\21180_3_Deg>\215GK_\0" // Xian_1980_3_Degree_GK_
    "X\336\21180_3_Deg>\215GK_Z\003\215\0" // Xian_1980_3_Degree_GK_Zone_
    "X\336\21180_GK_\0" // Xian_1980_GK_
    "YKG\0" // YKG
    "YNGN96\0" // YNGN96
    "Yac\037e\0" // Yacare
    "Yac\037\010t\013SIRGAS\2011)\0" // Yacare to SIRGAS (1)
    "Y\005gts\215\254\0" // Yangtse_TM
    "Y\037d\0" // Yard
    "Y\037d_B\207o\245_1895_A\0" // Yard_Benoit_1895_A
    "Y\037d_B\207o\245_1895_B\0" // Yard_Benoit_1895_B
    "Y\037d_Cl\037ke\0" // Yard_Clarke
    "Y\037d_\360\336\0" // Yard_Indian
    "Y\037d_\360\336\21137\0" // Yard_Indian_1937
    "Y\037d_\360\336\21162\0" // Yard_Indian_1962
    "Y\037d_\360\336\21175\0" // Yard_Indian_1975
    "Y\037d_Se\037s\0" // Yard_Sears
    "Y\037d_Se\037s\21122_Trunc=\275\0" // Yard_Sears_1922_Truncated
    "Y\212\207\00242\20048\015\0" // Yemen - 42°E to 48°E
    "Y\212\207\00248\20054\015\0" // Yemen - 48°E to 54°E
    "Y\212\207\002\370Y\212\207\002ma\023\206\0" // Yemen - South Yemen - mainland
    "Y\212\207\002\370Y\212\207\002ma\023\206 e\314\24348\015\0" // Yemen - South Yemen - mainland east of 48°E
    "Y\212\207\002\370Y\212\207\002ma\023\206 w\267\24348\015\0" // Yemen - South Yemen - mainland west of 48°E
    "Y\212\207\002e\314\24354\015\0" // Yemen - east of 54°E
    "Y\212\207\002w\267\24342\015\0" // Yemen - west of 42°E
    "Y\212\207 NGN96\0" // Yemen NGN96
    "Y\212\207 NGN96\012U\254\27337N\0" // Yemen NGN96 / UTM zone 37N
    "Y\212\207 NGN96\012U\254\27338N\0" // Yemen NGN96 / UTM zone 38N
    "Y\212\207 NGN96\012U\254\27339N\0" // Yemen NGN96 / UTM zone 39N
    "Y\212\207 NGN96\012U\254\27340N\0" // Yemen NGN96 / UTM zone 40N
    "Y\212\207 N=\320\230Geod\036# N\036w\006k \03196\0" // Yemen National Geodetic Network 1996
    "Y\212\207_NGN_\03196\0" // Yemen_NGN_1996
    "Y\212\207_NGN\21196_U\254_Z\003\215\0" // Yemen_NGN_1996_UTM_Zone_
    "Y\214f\0" // Yoff
    "Y\214f\012U\254\27328N\0" // Yoff / UTM zone 28N
    "Y\214f\21172_U\254_Z\003\21528N\0" // Yoff_1972_UTM_Zone_28N
    "Yop\025\377}\005\037\215\2276\0" // Yopal_Casanare_2006
    "Y\006k\377\367\025\2723\3122\372\0" // York_Central_FIPS_3102_Feet
    "Y\006k_Ea\020\2723\3121\372\0" // York_East_FIPS_3101_Feet
    "Y\006k_L\003g_\335\2723\3124\372\0" // York_Long_Island_FIPS_3104_Feet
    "Y\006k_We\020\2723\3123\372\0" // York_West_FIPS_3103_Feet
    "Yuk\003_Alb\232\0" // Yukon_Albers
    "Zach 1812\0" // Zach 1812
    "Zach_1812\0" // Zach_1812
    "Z\225bia\0" // Zambia
    "Z\033\007ij\0" // Zanderij
    "Z\033\007ij\012S\224\023\225\010O\321 \254\0" // Zanderij / Suriname Old TM
    "Z\033\007ij\012S\224\023\225\010\254\0" // Zanderij / Suriname TM
    "Z\033\007ij\012\254 54 NW\0" // Zanderij / TM 54 NW
    "Z\033\007ij\012U\254\27321N\0" // Zanderij / UTM zone 21N
    "Z\033\007ij\21172_U\254_Z\003\21521N\0" // Zanderij_1972_UTM_Zone_21N
    "Z\033\007ij_S\224\023\225\215O\321_\254\0" // Zanderij_Suriname_Old_TM
    "Z\033\007ij_S\224\023\225\215\254\0" // Zanderij_Suriname_TM
    "Z\033\007ij_\254_54_NW\0" // Zanderij_TM_54_NW
    "Z\300g\005g_\254\0" // Zhemgang_TM
    "Z\003\21512_(E-N)\0" // Zone_12_(E-N)
    "Z\003\21514\0" // Zone_14
    "Z\003\21515\0" // Zone_15
    "Z\003\21516\0" // Zone_16
    "Z\003\21517\0" // Zone_17
    "Z\003\21520\0" // Zone_20
    "Z\003\21521\0" // Zone_21
    "Z\003\21523\0" // Zone_23
    "Z\003\215A1\0" // Zone_A1
    "Z\003\215A2\0" // Zone_A2
    "Z\003\215A3\0" // Zone_A3
    "Z\003\215A4\0" // Zone_A4
    "Z\003\215C0\0" // Zone_C0
    "Z\003\215C1\0" // Zone_C1
    "Z\003\215C2\0" // Zone_C2
    "Z\003\215II\0" // Zone_II
    "Z\003\215III\0" // Zone_III
    "Z\003\215IV\0" // Zone_IV
    "Z\003\215K2\0" // Zone_K2
    "Z\003\215K3\0" // Zone_K3
    "Z\003\215K4\0" // Zone_K4
    "[JTSK03]_Krovak\0" // [JTSK03]_Krovak
    "[JTSK03]_Krovak_Ea\020_\373\0" // [JTSK03]_Krovak_East_North
    "\025}ka.l}\0" // alaska.las
    "\025}ka.los\0" // alaska.los
    "\025hpgn.gsb\0" // alhpgn.gsb
    "\025hpgn.l}\0" // alhpgn.las
    "\025hpgn.los\0" // alhpgn.los
    "\037c-m\023ute\0" // arc-minute
    "\037hpgn.gsb\0" // arhpgn.gsb
    "\037hpgn.l}\0" // arhpgn.las
    "\037hpgn.los\0" // arhpgn.los
    "azhpgn.gsb\0" // azhpgn.gsb
    "azhpgn.l}\0" // azhpgn.las
    "azhpgn.los\0" // azhpgn.los
    "bd72lb72_\036rs89lb08.gsb\0" // bd72lb72_etrs89lb08.gsb
    "ce\035\220im\230m\023ute\0" // centesimal minute
    "ce\035im\036>\0" // centimetre
    "cnhpgn.gsb\0" // cnhpgn.gsb
    "cnhpgn.l}\0" // cnhpgn.las
    "cnhpgn.los\0" // cnhpgn.los
    "cohpgn.gsb\0" // cohpgn.gsb
    "cohpgn.l}\0" // cohpgn.las
    "cohpgn.los\0" // cohpgn.los
    "c\003\351.l}\0" // conus.las
    "c\003\351.los\0" // conus.los
    "cq77na\014.gsb\0" // cq77na83.gsb
    "c<pgn.gsb\0" // cshpgn.gsb
    "c<pgn.l}\0" // cshpgn.las
    "c<pgn.los\0" // cshpgn.los
    "d\215May\337t\215\2274\0" // de_Mayotte_2004
    "d\215N\026v\242l\215C\025\275\003ie\21191-93\0" // de_Nouvelle_Caledonie_1991-93
    "d\215St_Pi\007>_\036_Miqu\242\003_\2276\0" // de_St_Pierre_et_Miquelon_2006
    "d\215l\256P\246yn\220ie`r\005ca\077e\0" // de_la_Polynesie_Francaise
    "d\215l\256RDC_\2275\0" // de_la_RDC_2005
    "deg>\010(suppli\007\022def\023\010>p>se\035=\320)\0" // degree (supplier to define representation)
    "deg>\010\305e\0" // degree hemisphere
    "deg>\010m\023ut\010\305e\0" // degree minute hemisphere
    "deg>\010m\023ut\010sec\003d\311e\0" // degree minute second hemisphere
    "d\220_T\007>s_Au\375\025\220_\036_A\035\037\322iqu\220`r\005ca\077\220_\2277\0" // des_Terres_Australes_et_Antarctiques_Francaises_2007
    "\212hpgn.gsb\0" // emhpgn.gsb
    "\212hpgn.l}\0" // emhpgn.las
    "\212hpgn.los\0" // emhpgn.los
    "epoch \2272.00\0" // epoch 2002.00
    "epoch \034\312.00\0" // epoch 2010.00
    "epoch \03413.00\0" // epoch 2013.00
    "epoch \03416.00\0" // epoch 2016.00
    "epoch \03421.00\0" // epoch 2021.00
    "e<pgn.gsb\0" // eshpgn.gsb
    "e<pgn.l}\0" // eshpgn.las
    "e<pgn.los\0" // eshpgn.los
    "e\024pgn.gsb\0" // ethpgn.gsb
    "e\024pgn.l}\0" // ethpgn.las
    "e\024pgn.los\0" // ethpgn.los
    "fa\024\343\0" // fathom
    "fk54\0" // fk54
    "fk89\012F\037o\010L\225b\007t FK89\0" // fk89 / Faroe Lambert FK89
    "fke\0" // fke
    "flhpgn.l}\0" // flhpgn.las
    "flhpgn.los\0" // flhpgn.los
    "g\361pgn.gsb\0" // gahpgn.gsb
    "g\361pgn.l}\0" // gahpgn.las
    "g\361pgn.los\0" // gahpgn.los
    "gr3df97a.txt\0" // gr3df97a.txt
    "gr3dnc01b.m\035\0" // gr3dnc01b.mnt
    "gr3dnc02b.m\035\0" // gr3dnc02b.mnt
    "gr3dnc03a.m\035\0" // gr3dnc03a.mnt
    "gr\226\0" // grad
    "guhpgn.gsb\0" // guhpgn.gsb
    "guhpgn.l}\0" // guhpgn.las
    "guhpgn.los\0" // guhpgn.los
    "hawaii.l}\0" // hawaii.las
    "hawaii.los\0" // hawaii.los
    "\305\010deg>e\0" // hemisphere degree
    "\305\010deg>\010m\023ute\0" // hemisphere degree minute
    "h\007m\005nskog\242\0" // hermannskogel
    "hihpgn.gsb\0" // hihpgn.gsb
    "hihpgn.l}\0" // hihpgn.las
    "hihpgn.los\0" // hihpgn.los
    "i\361pgn.gsb\0" // iahpgn.gsb
    "i\361pgn.l}\0" // iahpgn.las
    "i\361pgn.los\0" // iahpgn.los
    "\341hpgn.gsb\0" // ilhpgn.gsb
    "\341hpgn.l}\0" // ilhpgn.las
    "\341hpgn.los\0" // ilhpgn.los
    "\023hpgn.gsb\0" // inhpgn.gsb
    "\023hpgn.l}\0" // inhpgn.las
    "\023hpgn.los\0" // inhpgn.los
    "i>65\0" // ire65
    "k=a\375\303\241lnej\0" // katastrálnej
    "k=a\375\303\241lnej\201F\007ro)\0" // katastrálnej (Ferro)
    "k=a\375\303\241lnej [JTSK03]\0" // katastrálnej [JTSK03]
    "k=a\375\303\241ln\303\255\0" // katastrální
    "k=a\375\303\241ln\303\255\201F\007ro)\0" // katastrální (Ferro)
    "k=a\375\303\241ln\303\255/05\0" // katastrální/05
    "k=a\375\303\241ln\303\255/05\201F\007ro)\0" // katastrální/05 (Ferro)
    "k\341om\036>\0" // kilometre
    "k<pgn.gsb\0" // kshpgn.gsb
    "k<pgn.l}\0" // kshpgn.las
    "k<pgn.los\0" // kshpgn.los
    "kyhpgn.gsb\0" // kyhpgn.gsb
    "kyhpgn.l}\0" // kyhpgn.las
    "kyhpgn.los\0" // kyhpgn.los
    "l\361pgn.gsb\0" // lahpgn.gsb
    "l\361pgn.l}\0" // lahpgn.las
    "l\361pgn.los\0" // lahpgn.los
    "mdhpgn.l}\0" // mdhpgn.las
    "mdhpgn.los\0" // mdhpgn.los
    "mehpgn.gsb\0" // mehpgn.gsb
    "mehpgn.l}\0" // mehpgn.las
    "mehpgn.los\0" // mehpgn.los
    "m#ror\226\336\0" // microradian
    "mihpgn.gsb\0" // mihpgn.gsb
    "mihpgn.l}\0" // mihpgn.las
    "mihpgn.los\0" // mihpgn.los
    "m\341_6400\0" // mil_6400
    "m\341lim\036>\0" // millimetre
    "mnhpgn.gsb\0" // mnhpgn.gsb
    "mnhpgn.l}\0" // mnhpgn.las
    "mnhpgn.los\0" // mnhpgn.los
    "mohpgn.gsb\0" // mohpgn.gsb
    "mohpgn.l}\0" // mohpgn.las
    "mohpgn.los\0" // mohpgn.los
    "m<pgn.gsb\0" // mshpgn.gsb
    "m<pgn.l}\0" // mshpgn.las
    "m<pgn.los\0" // mshpgn.los
    "na\306na\014.gsb\0" // na27na83.gsb
    "n\226c\0035.}62.n\226\014\21193.}.l=.trn.\034160901.b\0" // nadcon5.as62.nad83_1993.as.lat.trn.20160901.b
    "n\226c\0035.}62.n\226\014\21193.}.l\003.trn.\034160901.b\0" // nadcon5.as62.nad83_1993.as.lon.trn.20160901.b
    "n\226c\0035.gu63.n\226\014\21193.gu\225cnmi.l=.trn.\034160901.b\0" // nadcon5.gu63.nad83_1993.guamcnmi.lat.trn.20160901.b
    "n\226c\0035.gu63.n\226\014\21193.gu\225cnmi.l\003.trn.\034160901.b\0" // nadcon5.gu63.nad83_1993.guamcnmi.lon.trn.20160901.b
    "n\226c\0035.n\226\306.n\226\014\21186.\025}ka.l=.trn.\034160901.b\0" // nadcon5.nad27.nad83_1986.alaska.lat.trn.20160901.b
    "n\226c\0035.n\226\306.n\226\014\21186.\025}ka.l\003.trn.\034160901.b\0" // nadcon5.nad27.nad83_1986.alaska.lon.trn.20160901.b
    "n\226c\0035.n\226\306.n\226\014\21186.c\003\351.l=.trn.\034160901.b\0" // nadcon5.nad27.nad83_1986.conus.lat.trn.20160901.b
    "n\226c\0035.n\226\306.n\226\014\21186.c\003\351.l\003.trn.\034160901.b\0" // nadcon5.nad27.nad83_1986.conus.lon.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014\21192.\025}ka.l=.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_1992.alaska.lat.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014\21192.\025}ka.l\003.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_1992.alaska.lon.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014\21193.hawaii.l=.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_1993.hawaii.lat.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014\21193.hawaii.l\003.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_1993.hawaii.lon.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014\21193.prvi.l=.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_1993.prvi.lat.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014\21193.prvi.l\003.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_1993.prvi.lon.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014_h\037n.c\003\351.l=.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_harn.conus.lat.trn.20160901.b
    "n\226c\0035.n\226\014\21186.n\226\014_h\037n.c\003\351.l\003.trn.\034160901.b\0" // nadcon5.nad83_1986.nad83_harn.conus.lon.trn.20160901.b
    "n\226c\0035.ohd.n\226\014\21186.hawaii.l=.trn.\034160901.b\0" // nadcon5.ohd.nad83_1986.hawaii.lat.trn.20160901.b
    "n\226c\0035.ohd.n\226\014\21186.hawaii.l\003.trn.\034160901.b\0" // nadcon5.ohd.nad83_1986.hawaii.lon.trn.20160901.b
    "n\226c\0035.pr40.n\226\014\21186.prvi.l=.trn.\034160901.b\0" // nadcon5.pr40.nad83_1986.prvi.lat.trn.20160901.b
    "n\226c\0035.pr40.n\226\014\21186.prvi.l\003.trn.\034160901.b\0" // nadcon5.pr40.nad83_1986.prvi.lon.trn.20160901.b
    "n\226c\0035.sg\03152.n\226\014\21186.\020ge\006ge.l=.trn.\034160901.b\0" // nadcon5.sg1952.nad83_1986.stgeorge.lat.trn.20160901.b
    "n\226c\0035.sg\03152.n\226\014\21186.\020ge\006ge.l\003.trn.\034160901.b\0" // nadcon5.sg1952.nad83_1986.stgeorge.lon.trn.20160901.b
    "n\226c\0035.sl\03152.n\226\014\21186.\020law>nce.l=.trn.\034160901.b\0" // nadcon5.sl1952.nad83_1986.stlawrence.lat.trn.20160901.b
    "n\226c\0035.sl\03152.n\226\014\21186.\020law>nce.l\003.trn.\034160901.b\0" // nadcon5.sl1952.nad83_1986.stlawrence.lon.trn.20160901.b
    "n\226c\0035.sp\03152.n\226\014\21186.\020paul.l=.trn.\034160901.b\0" // nadcon5.sp1952.nad83_1986.stpaul.lat.trn.20160901.b
    "n\226c\0035.sp\03152.n\226\014\21186.\020paul.l\003.trn.\034160901.b\0" // nadcon5.sp1952.nad83_1986.stpaul.lon.trn.20160901.b
    "naut#\230m\341e\0" // nautical mile
    "nbhpgn.gsb\0" // nbhpgn.gsb
    "nbhpgn.l}\0" // nbhpgn.las
    "nbhpgn.los\0" // nbhpgn.los
    "nchpgn.gsb\0" // nchpgn.gsb
    "nchpgn.l}\0" // nchpgn.las
    "nchpgn.los\0" // nchpgn.los
    "ndhpgn.gsb\0" // ndhpgn.gsb
    "ndhpgn.l}\0" // ndhpgn.las
    "ndhpgn.los\0" // ndhpgn.los
    "nehpgn.gsb\0" // nehpgn.gsb
    "nehpgn.l}\0" // nehpgn.las
    "nehpgn.los\0" // nehpgn.los
    "njhpgn.gsb\0" // njhpgn.gsb
    "njhpgn.l}\0" // njhpgn.las
    "njhpgn.los\0" // njhpgn.los
    "nmhpgn.gsb\0" // nmhpgn.gsb
    "nmhpgn.l}\0" // nmhpgn.las
    "nmhpgn.los\0" // nmhpgn.los
    "\035_0599.gsb\0" // nt_0599.gsb
    "\035f_r93.gsb\0" // ntf_r93.gsb
    "\035v2_0.gsb\0" // ntv2_0.gsb
    "nvhpgn.gsb\0" // nvhpgn.gsb
    "nvhpgn.l}\0" // nvhpgn.las
    "nvhpgn.los\0" // nvhpgn.los
    "nyhpgn.gsb\0" // nyhpgn.gsb
    "nyhpgn.l}\0" // nyhpgn.las
    "nyhpgn.los\0" // nyhpgn.los
    "nzgd2kgr\2570005.gsb\0" // nzgd2kgrid0005.gsb
    "nzgd49\0" // nzgd49
    "ohhpgn.gsb\0" // ohhpgn.gsb
    "ohhpgn.l}\0" // ohhpgn.las
    "ohhpgn.los\0" // ohhpgn.los
    "okhpgn.gsb\0" // okhpgn.gsb
    "okhpgn.l}\0" // okhpgn.las
    "okhpgn.los\0" // okhpgn.los
    "p\361pgn.gsb\0" // pahpgn.gsb
    "p\361pgn.l}\0" // pahpgn.las
    "p\361pgn.los\0" // pahpgn.los
    "p\337sd\225\0" // potsdam
    "prvi.l}\0" // prvi.las
    "prvi.los\0" // prvi.los
    "pvhpgn.gsb\0" // pvhpgn.gsb
    "pvhpgn.l}\0" // pvhpgn.las
    "pvhpgn.los\0" // pvhpgn.los
    "rdtr\005s\2278.gsb\0" // rdtrans2008.gsb
    "rdtr\005s\03418.gsb\0" // rdtrans2018.gsb
    ">\025izaci\303\263n 1\0" // realización 1
    ">\025izaci\303\263n 2\0" // realización 2
    ">\025izaci\303\263n 3\0" // realización 3
    ">\025izaci\303\263n 4\0" // realización 4
    ">\025izaci\303\263n 5\0" // realización 5
    ">\025iz=\320_2_epoch_\03410\0" // realization_2_epoch_2010
    ">\025iz=\320_3_epoch_\03413\0" // realization_3_epoch_2013
    ">\025iz=\320_4_epoch_\03416\0" // realization_4_epoch_2016
    "rgf93_\035f.gsb\0" // rgf93_ntf.gsb
    "schpgn.gsb\0" // schpgn.gsb
    "schpgn.l}\0" // schpgn.las
    "schpgn.los\0" // schpgn.los
    "sdhpgn.gsb\0" // sdhpgn.gsb
    "sdhpgn.l}\0" // sdhpgn.las
    "sdhpgn.los\0" // sdhpgn.los
    "sexag\220im\230DM\0" // sexagesimal DM
    "sexag\220im\230DMS\0" // sexagesimal DMS
    "sexag\220im\230DMS.s\0" // sexagesimal DMS.s
    "sp\2752\036.gsb\0" // sped2et.gsb
    "\020ge\006ge.l}\0" // stgeorge.las
    "\020ge\006ge.los\0" // stgeorge.los
    "\020lrnc.l}\0" // stlrnc.las
    "\020lrnc.los\0" // stlrnc.los
    "\020paul.l}\0" // stpaul.las
    "\020paul.los\0" // stpaul.los
    "t}_\31298.gsb\0" // tas_1098.gsb
    "tky2jgd.gsb\0" // tky2jgd.gsb
    "tm75_\036rs89.gsb\0" // tm75_etrs89.gsb
    "tnhpgn.l}\0" // tnhpgn.las
    "tnhpgn.los\0" // tnhpgn.los
    "t\026hokutaiheiy\026oki\240.gsb\0" // touhokutaiheiyouoki2011.gsb
    "u\024pgn.gsb\0" // uthpgn.gsb
    "u\024pgn.l}\0" // uthpgn.las
    "u\024pgn.los\0" // uthpgn.los
    "v2\002L=L\003\0" // v2 - LatLon
    "v3\002L=L\003\0" // v3 - LatLon
    "v4\002L=L\003\0" // v4 - LatLon
    "v5\002L=L\003\0" // v5 - LatLon
    "v6\002L=L\003\0" // v6 - LatLon
    "v7\002L=L\003\0" // v7 - LatLon
    "v\361pgn.gsb\0" // vahpgn.gsb
    "v\361pgn.l}\0" // vahpgn.las
    "v\361pgn.los\0" // vahpgn.los
    "v#_0799.gsb\0" // vic_0799.gsb
    "w\2560400.gsb\0" // wa_0400.gsb
    "w\2560700.gsb\0" // wa_0700.gsb
    "wihpgn.l}\0" // wihpgn.las
    "wihpgn.los\0" // wihpgn.los
    "wmhpgn.gsb\0" // wmhpgn.gsb
    "wmhpgn.l}\0" // wmhpgn.las
    "wmhpgn.los\0" // wmhpgn.los
    "wohpgn.l}\0" // wohpgn.las
    "wohpgn.los\0" // wohpgn.los
    "w<pgn.gsb\0" // wshpgn.gsb
    "w<pgn.l}\0" // wshpgn.las
    "w<pgn.los\0" // wshpgn.los
    "w\024pgn.gsb\0" // wthpgn.gsb
    "w\024pgn.l}\0" // wthpgn.las
    "w\024pgn.los\0" // wthpgn.los
    "wvhpgn.gsb\0" // wvhpgn.gsb
    "wvhpgn.l}\0" // wvhpgn.las
    "wvhpgn.los\0" // wvhpgn.los
    "wyhpgn.gsb\0" // wyhpgn.gsb
    "wyhpgn.l}\0" // wyhpgn.las
    "wyhpgn.los\0" // wyhpgn.los
    "$\2156\0" // zone_6
    "$\2157\0" // zone_7
    "$\2158\0" // zone_8
    "$\215X1\0" // zone_X1
    "$\215X2\0" // zone_X2
    "$\215X3\0" // zone_X3
    "$\215X4\0" // zone_X4
    "$\215X5\0" // zone_X5
    "$\215X6\0" // zone_X6
    "$\215X7\0" // zone_X7
    ;
// clang-format on

} // namespace ZrProj::systems::rows
