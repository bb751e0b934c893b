// The beginnings of aliases.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr Text beginnings[] = {
    10, // 
    4024, // AGD_1966_AMG_Zone_
    4054, // AGD_1984_AMG_Zone_
    4902, // Adindan_UTM_Zone_
    5851, // Ain_el_Abd_UTM_Zone_
    10814, // Aratu_UTM_Zone_
    11022, // Arc_1960_UTM_Zone_
    147021, // Argentina_Zone_
    18906, // BGS2005_UTM_zone_
    22436, // Beijing_1954_3_Degree_GK_
    22457, // Beijing_1954_3_Degree_GK_Zone_
    22481, // Beijing_1954_GK_Zone_
    22498, // Beijing_1954_Gauss_Kruger_CM_
    26041, // C Inchauspe /Argentina 
    27791, // CGCS2000_3_Degree_GK_
    27808, // CGCS2000_3_Degree_GK_Zone_
    27828, // CGCS2000_GK_
    29180, // Camacupa_
    39492, // Clarke_
    34994, // Colombia_
    36890, // Corrego_Alegre_
    37869, // DB_REF_3-Degree_GK_Zone_
    38528, // DGN_1995_Indonesia_TM-3_Zone_
    38548, // DGN_1995_UTM_Zone_
    38953, // DHDN_3_Degree_GK_Zone_
    38972, // DHDN_3_Degree_Gauss_Zone_
    39475, // DRUKREF_03_
    39487, // D_
    39490, // D_Clarke_
    39498, // D_ITRF_
    39506, // D_NAD_1983_
    39513, // D_North_American_
    39524, // D_Reseau_Geodesique_
    39592, // Dabola_1981_UTM_Zone_
    41950, // ED_1950_
    41957, // ED_1950_3_Degree_GK_Zone_
    41977, // ED_1950_UTM_Zone_
    42192, // ELD_1979_Libya_
    42220, // ELD_1979_UTM_Zone_
    44088, // ETRF2000 epoca 2008.0 fuso 
    44412, // ETRS - 
    46503, // ETRS_1989_
    46511, // ETRS_1989_EPSG_Arctic_zone_
    46529, // ETRS_1989_NTM_Zone_
    46543, // ETRS_1989_Poland_CS2000_Zone_
    46562, // ETRS_1989_UTM_Zone_
    50119, // European_Terrestrial_Reference_Frame_
    50275, // Everest_
    52611, // Foot_
    129318, // GCS_
    54525, // GCS_Clarke_
    54534, // GCS_ITRF_
    54543, // GCS_NAD_1983_
    54551, // GCS_North_American_
    55109, // GDA2020_
    55116, // GDA2020_MGA_Zone_
    55646, // GDA_1994_
    55654, // GDA_1994_MGA_Zone_
    55954, // GDM_2000_State_Cassini_
    56615, // GR96_EPSG_Arctic_zone_
    65593, // Greenland_1996_UTM_Zone_
    68050, // Hjorsey_1955_UTM_Zone_
    68852, // IERS Terrestrial Reference Frame 
    69294, // IGCB_1955_Congo_TM_Zone_
    69375, // IGC_1962_Congo_TM_Zone_
    70094, // IGN_Astro_1960_UTM_Zone_
    71875, // InGCS 2011 
    72747, // Indian_
    73942, // Indonesian_1974_UTM_Zone_
    77437, // JGD_2000_Japan_Zone_
    77453, // JGD_2000_UTM_Zone_
    77475, // JGD_2011_Japan_Zone_
    77490, // JGD_2011_UTM_Zone_
    77444, // Japan_Zone_
    79426, // KSA-GRF17_UTM_zone_
    79928, // Kalianpur_
    79946, // Kalianpur_1880_India_Zone_
    79991, // Kalianpur_1975_India_Zone_
    80007, // Kalianpur_1975_UTM_Zone_
    80856, // Karbala_1979_Polservice_UTM_Zone_
    81228, // Katanga_1955_Katanga_
    81998, // Kertau_
    82859, // Korea_2000_Korea_
    83220, // Korean_1985_
    83229, // Korean_1985_Modified_Korea_
    83742, // Kyrg-06_TM_Zone_
    84288, // LGD2006_Libya_TM_Zone_
    84305, // LGD2006_UTM_Zone_
    84886, // Lake_Maracaibo_
    85328, // Le Pouce (Mauritius 
    88886, // MAGNA_
    89802, // MGI_
    89814, // MGI_1901_Balkans_
    89828, // MGI_3_Degree_Gauss_Zone_
    89848, // MGI_Austria_
    90600, // MTRF-2000_UTM_zone_
    93271, // Mauritania_1999_UTM_Zone_
    93656, // Mexican_Datum_1993_UTM_Zone_
    94209, // Mexico_ITRF2008_UTM_Zone_
    96583, // Monte_Mario_
    97424, // NAD 83 
    115894, // NAD83(CSRS) 
    129138, // NAD_1927_
    129143, // NAD_1927_BLM_Zone_
    129165, // NAD_1927_CGQ77_
    129175, // NAD_1927_DEF_1976_MTM_
    129190, // NAD_1927_DEF_1976_UTM_Zone_
    129222, // NAD_1927_StatePlane_
    129235, // NAD_1927_StatePlane_California_
    129256, // NAD_1927_UTM_Zone_
    39508, // NAD_1983_
    129267, // NAD_1983_(2011)_IaRCS_zone_
    129283, // NAD_1983_(2011)_NCRS_Las_Vegas_
    129304, // NAD_1983_2011_
    129311, // NAD_1983_2011_InGCS_
    129322, // NAD_1983_2011_KS_RCS_Zone_
    129338, // NAD_1983_2011_RMTCRS_
    129351, // NAD_1983_2011_StatePlane_
    129366, // NAD_1983_2011_StatePlane_California_
    129389, // NAD_1983_2011_UTM_Zone_
    129402, // NAD_1983_2011_WISCRS_
    129414, // NAD_1983_BLM_Zone_
    129426, // NAD_1983_CORS96_StatePlane_Oregon_
    129447, // NAD_1983_CSRS_
    129455, // NAD_1983_CSRS_EPSG_Arctic_zone_
    129473, // NAD_1983_CSRS_MTM_
    129484, // NAD_1983_CSRS_UTM_Zone_
    129498, // NAD_1983_HARN_
    129505, // NAD_1983_HARN_StatePlane_
    129520, // NAD_1983_HARN_StatePlane_California_
    129543, // NAD_1983_HARN_StatePlane_New_
    129560, // NAD_1983_HARN_UTM_Zone_
    129573, // NAD_1983_HARN_WISCRS_
    129585, // NAD_1983_MTM_
    129593, // NAD_1983_NSRS2007_
    129603, // NAD_1983_NSRS2007_StatePlane_
    129621, // NAD_1983_NSRS2007_StatePlane_California_
    129647, // NAD_1983_NSRS2007_UTM_Zone_
    129663, // NAD_1983_PA11_StatePlane_Hawaii_
    129687, // NAD_1983_StatePlane_
    129700, // NAD_1983_StatePlane_Alaska_
    129718, // NAD_1983_StatePlane_California_
    129739, // NAD_1983_StatePlane_New_
    129754, // NAD_1983_UTM_Zone_
    129765, // NAD_Michigan_StatePlane_Michigan_
    129836, // NCRS Las Vegas 
    130471, // NGO_1948_Oslo_Norway_Zone_
    131081, // NTF_Paris_
    131090, // NTF_Paris_Lambert_
    132612, // NZGD_1949_
    132629, // NZGD_2000_
    132840, // Nahrwan_1934_UTM_zone_
    132864, // Nahrwan_1967_UTM_Zone_
    135852, // New S African CS zone 
    137023, // New_Beijing_3_Degree_Gauss_Kruger_
    137051, // New_Beijing_3_Degree_Gauss_Kruger_Zone_
    137082, // New_Beijing_Gauss_Kruger_
    138125, // Nord_Sahara_1959_
    139364, // North_American_Datum_of_1983_(CSRS)_version_
    142081, // OCRS_
    142086, // OCRS_Bend-Burns_NAD_1983_
    142104, // OCRS_Bend-Klamath_Falls_NAD_1983_
    142127, // OCRS_Bend-Redmond-Prineville_NAD_1983_
    142154, // OCRS_Canyonville-Grants_Pass_NAD_1983_
    142181, // OCRS_Columbia_River_
    142197, // OCRS_Cottage_Grove-Canyonville_NAD_1983_
    142225, // OCRS_Dufur-Madras_NAD_1983_
    142244, // OCRS_Eugene_NAD_1983_
    142258, // OCRS_Grants_Pass-Ashland_NAD_1983_
    142281, // OCRS_Gresham-Warm_Springs_NAD_1983_
    142306, // OCRS_La_Grande_NAD_1983_
    142321, // OCRS_Ontario_NAD_1983_
    142336, // OCRS_Oregon_Coast_NAD_1983_
    142352, // OCRS_Pendleton-La_Grande_NAD_1983_
    142374, // OCRS_Pendleton_NAD_1983_
    142390, // OCRS_Portland_NAD_1983_
    142404, // OCRS_Santiam_Pass_NAD_1983_
    143304, // Ocotepeque_1935_
    143691, // Old_Hawaiian_StatePlane_Hawaii_
    147012, // POSGAR_1994_Argentina_Zone_
    147041, // POSGAR_1998_Argentina_Zone_
    147069, // POSGAR_2007_Argentina_Zone_
    147224, // PRS_1992_Philippines_Zone_
    147466, // PSAD_1956_UTM_Zone_
    148284, // Palestine_1923_Palestine_
    148397, // Pampa_del_Castillo_Argentina_
    149597, // Peru96_UTM_Zone_
    147230, // Philippines_Zone_
    151681, // Posiciones Geodésicas Argentinas 
    166562, // Pulkovo_
    166582, // Pulkovo_1942_3_Degree_GK_
    166604, // Pulkovo_1942_3_Degree_GK_CM_
    166628, // Pulkovo_1942_3_Degree_GK_Zone_
    166653, // Pulkovo_1942_Adj_
    166687, // Pulkovo_1942_Adj_1958_3_Degree_GK_Zone_
    166719, // Pulkovo_1942_Adj_1958_GK_Zone_
    166744, // Pulkovo_1942_Adj_1958_Poland_Zone_
    166789, // Pulkovo_1942_Adj_1983_3_Degree_GK_Zone_
    166820, // Pulkovo_1942_CS63_
    166836, // Pulkovo_1942_GK_Zone_
    166854, // Pulkovo_1942_Gauss-Kruger_CM_
    166890, // Pulkovo_1995_3_Degree_GK_
    166912, // Pulkovo_1995_3_Degree_GK_CM_
    166936, // Pulkovo_1995_3_Degree_GK_Zone_
    166961, // Pulkovo_1995_GK_Zone_
    166979, // Pulkovo_1995_Gauss-Kruger_CM_
    167994, // RDN2008_
    169233, // RGF_1993_
    169520, // RGNC_1991-93_UTM_Zone_
    170029, // RGRDC_2005_Congo_TM_Zone_
    170550, // RGTAAF07_UTM_zone_
    172235, // Red Geodesica Nacional 
    174962, // S-42 zone 
    174973, // S-95 zone 
    175283, // S-JTSK_
    175730, // SAD_1969_96_UTM_Zone_
    175764, // SAD_1969_UTM_Zone_
    177323, // SIRGAS Multi-Year Solution 
    177346, // SIRGAS-CON 
    177676, // SIRGAS-CON_
    177700, // SIRGAS-Chile 
    178173, // SIRGAS-Chile_
    178439, // SIRGAS_2000_UTM_Zone_
    178456, // SIRGAS_Continuously_Operating_Network_
    178500, // SIRGAS_UTM_Zone_
    182960, // SRGI2013_UTM_zone_
    183223, // SW African CS zone 
    183591, // SWEREF99_
    186817, // South African CS zone 
    186827, // South African Coordinate System zone 
    188462, // South West African Coord. System zone 
    189003, // South_Yemen_GK_Zone_
    191211, // System 
    191429, // Systém Jednotnej trigonometrickej siete 
    191461, // Systém Jednotné trigonometrické sítě 
    192746, // TUREF_
    192753, // TUREF_3_Degree_GK_Zone_
    193384, // Tananarive_1925_
    194410, // Timbalai_1948_
    195213, // Tokyo_UTM_Zone_
    205181, // Ukraine_2000_
    205190, // Ukraine_2000_3_Degree_GK_
    207864, // VN-2000_TM-3_
    213577, // WGS 84 
    220181, // WGS_1972_UTM_Zone_
    220202, // WGS_1984_
    220210, // WGS_1984_EPSG_Arctic_
    220226, // WGS_1984_EPSG_Arctic_Regional_zone_
    220250, // WGS_1984_EPSG_Arctic_zone_
    220292, // WGS_1984_North_Pole_LAEA_
    220310, // WGS_1984_UTM_Zone_
    227452, // World_Geodetic_System_1984_
    229488, // Xian_1980_3_Degree_GK_
    229505, // Xian_1980_3_Degree_GK_Zone_
    229525, // Xian_1980_GK_
    229904, // Yemen_NGN_1996_UTM_Zone_
};
// clang-format on

} // namespace ZrProj::systems::rows
