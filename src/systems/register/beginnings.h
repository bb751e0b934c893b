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
    3725, // AGD_1966_AMG_Zone_
    3755, // AGD_1984_AMG_Zone_
    4528, // Adindan_UTM_Zone_
    5375, // Ain_el_Abd_UTM_Zone_
    10073, // Aratu_UTM_Zone_
    10277, // Arc_1960_UTM_Zone_
    140854, // Argentina_Zone_
    17739, // BGS2005_UTM_zone_
    21191, // Beijing_1954_3_Degree_GK_
    21212, // Beijing_1954_3_Degree_GK_Zone_
    21236, // Beijing_1954_GK_Zone_
    21253, // Beijing_1954_Gauss_Kruger_CM_
    24349, // C Inchauspe /Argentina 
    26071, // CGCS2000_3_Degree_GK_
    26088, // CGCS2000_3_Degree_GK_Zone_
    26108, // CGCS2000_GK_
    27285, // Camacupa_
    36853, // Clarke_
    32489, // Colombia_
    34329, // Corrego_Alegre_
    35249, // DB_REF_3-Degree_GK_Zone_
    35908, // DGN_1995_Indonesia_TM-3_Zone_
    35928, // DGN_1995_UTM_Zone_
    36332, // DHDN_3_Degree_GK_Zone_
    36351, // DHDN_3_Degree_Gauss_Zone_
    36836, // DRUKREF_03_
    36848, // D_
    36851, // D_Clarke_
    36859, // D_ITRF_
    36867, // D_NAD_1983_
    36874, // D_North_American_
    36885, // D_Reseau_Geodesique_
    36953, // Dabola_1981_UTM_Zone_
    39243, // ED_1950_
    39250, // ED_1950_3_Degree_GK_Zone_
    39270, // ED_1950_UTM_Zone_
    39484, // ELD_1979_Libya_
    39511, // ELD_1979_UTM_Zone_
    41378, // ETRF2000 epoca 2008.0 fuso 
    41702, // ETRS - 
    43789, // ETRS_1989_
    43797, // ETRS_1989_EPSG_Arctic_zone_
    43815, // ETRS_1989_NTM_Zone_
    43828, // ETRS_1989_Poland_CS2000_Zone_
    43847, // ETRS_1989_UTM_Zone_
    47213, // European_Terrestrial_Reference_Frame_
    47370, // Everest_
    49685, // Foot_
    124123, // GCS_
    51452, // GCS_Clarke_
    51461, // GCS_ITRF_
    51470, // GCS_NAD_1983_
    51478, // GCS_North_American_
    52037, // GDA2020_
    52044, // GDA2020_MGA_Zone_
    52455, // GDA_1994_
    52463, // GDA_1994_MGA_Zone_
    52765, // GDM_2000_State_Cassini_
    53426, // GR96_EPSG_Arctic_zone_
    62194, // Greenland_1996_UTM_Zone_
    64568, // Hjorsey_1955_UTM_Zone_
    65368, // IERS Terrestrial Reference Frame 
    65846, // IGCB_1955_Congo_TM_Zone_
    65925, // IGC_1962_Congo_TM_Zone_
    66581, // IGN_Astro_1960_UTM_Zone_
    68081, // InGCS 2011 
    68964, // Indian_
    70125, // Indonesian_1974_UTM_Zone_
    73293, // JGD_2000_Japan_Zone_
    73309, // JGD_2000_UTM_Zone_
    73330, // JGD_2011_Japan_Zone_
    73345, // JGD_2011_UTM_Zone_
    73300, // Japan_Zone_
    75131, // KSA-GRF17_UTM_zone_
    75632, // Kalianpur_
    75650, // Kalianpur_1880_India_Zone_
    75695, // Kalianpur_1975_India_Zone_
    75711, // Kalianpur_1975_UTM_Zone_
    76559, // Karbala_1979_Polservice_UTM_Zone_
    76928, // Katanga_1955_Katanga_
    77669, // Kertau_
    78488, // Korea_2000_Korea_
    78826, // Korean_1985_
    78834, // Korean_1985_Modified_Korea_
    79275, // Kyrg-06_TM_Zone_
    79820, // LGD2006_Libya_TM_Zone_
    79836, // LGD2006_UTM_Zone_
    80397, // Lake_Maracaibo_
    80833, // Le Pouce (Mauritius 
    84256, // MAGNA_
    85071, // MGI_
    85083, // MGI_1901_Balkans_
    85097, // MGI_3_Degree_Gauss_Zone_
    85117, // MGI_Austria_
    85856, // MTRF-2000_UTM_zone_
    88484, // Mauritania_1999_UTM_Zone_
    88857, // Mexican_Datum_1993_UTM_Zone_
    89330, // Mexico_ITRF2008_UTM_Zone_
    91692, // Monte_Mario_
    92402, // NAD 83 
    110744, // NAD83(CSRS) 
    123946, // NAD_1927_
    123951, // NAD_1927_BLM_Zone_
    123973, // NAD_1927_CGQ77_
    123983, // NAD_1927_DEF_1976_MTM_
    123997, // NAD_1927_DEF_1976_UTM_Zone_
    124028, // NAD_1927_StatePlane_
    124041, // NAD_1927_StatePlane_California_
    124062, // NAD_1927_UTM_Zone_
    36869, // NAD_1983_
    124072, // NAD_1983_(2011)_IaRCS_zone_
    124088, // NAD_1983_(2011)_NCRS_Las_Vegas_
    124109, // NAD_1983_2011_
    124116, // NAD_1983_2011_InGCS_
    124127, // NAD_1983_2011_KS_RCS_Zone_
    124143, // NAD_1983_2011_RMTCRS_
    124156, // NAD_1983_2011_StatePlane_
    124171, // NAD_1983_2011_StatePlane_California_
    124194, // NAD_1983_2011_UTM_Zone_
    124206, // NAD_1983_2011_WISCRS_
    124218, // NAD_1983_BLM_Zone_
    124230, // NAD_1983_CORS96_StatePlane_Oregon_
    124251, // NAD_1983_CSRS_
    124259, // NAD_1983_CSRS_EPSG_Arctic_zone_
    124277, // NAD_1983_CSRS_MTM_
    124287, // NAD_1983_CSRS_UTM_Zone_
    124300, // NAD_1983_HARN_
    124307, // NAD_1983_HARN_StatePlane_
    124322, // NAD_1983_HARN_StatePlane_California_
    124345, // NAD_1983_HARN_StatePlane_New_
    124362, // NAD_1983_HARN_UTM_Zone_
    124374, // NAD_1983_HARN_WISCRS_
    124386, // NAD_1983_MTM_
    124393, // NAD_1983_NSRS2007_
    124403, // NAD_1983_NSRS2007_StatePlane_
    124421, // NAD_1983_NSRS2007_StatePlane_California_
    124447, // NAD_1983_NSRS2007_UTM_Zone_
    124462, // NAD_1983_PA11_StatePlane_Hawaii_
    124486, // NAD_1983_StatePlane_
    124499, // NAD_1983_StatePlane_Alaska_
    124517, // NAD_1983_StatePlane_California_
    124538, // NAD_1983_StatePlane_New_
    124553, // NAD_1983_UTM_Zone_
    124563, // NAD_Michigan_StatePlane_Michigan_
    124588, // NCRS Las Vegas 
    125169, // NGO_1948_Oslo_Norway_Zone_
    125673, // NTF_Paris_
    125682, // NTF_Paris_Lambert_
    127131, // NZGD_1949_
    127148, // NZGD_2000_
    127359, // Nahrwan_1934_UTM_zone_
    127382, // Nahrwan_1967_UTM_Zone_
    130322, // New S African CS zone 
    131505, // New_Beijing_3_Degree_Gauss_Kruger_
    131533, // New_Beijing_3_Degree_Gauss_Kruger_Zone_
    131564, // New_Beijing_Gauss_Kruger_
    132336, // Nord_Sahara_1959_
    133551, // North_American_Datum_of_1983_(CSRS)_version_
    136176, // OCRS_
    136181, // OCRS_Bend-Burns_NAD_1983_
    136199, // OCRS_Bend-Klamath_Falls_NAD_1983_
    136222, // OCRS_Bend-Redmond-Prineville_NAD_1983_
    136249, // OCRS_Canyonville-Grants_Pass_NAD_1983_
    136276, // OCRS_Columbia_River_
    136292, // OCRS_Cottage_Grove-Canyonville_NAD_1983_
    136320, // OCRS_Dufur-Madras_NAD_1983_
    136339, // OCRS_Eugene_NAD_1983_
    136353, // OCRS_Grants_Pass-Ashland_NAD_1983_
    136376, // OCRS_Gresham-Warm_Springs_NAD_1983_
    136401, // OCRS_La_Grande_NAD_1983_
    136416, // OCRS_Ontario_NAD_1983_
    136431, // OCRS_Oregon_Coast_NAD_1983_
    136447, // OCRS_Pendleton-La_Grande_NAD_1983_
    136469, // OCRS_Pendleton_NAD_1983_
    136485, // OCRS_Portland_NAD_1983_
    136499, // OCRS_Santiam_Pass_NAD_1983_
    137298, // Ocotepeque_1935_
    137685, // Old_Hawaiian_StatePlane_Hawaii_
    140845, // POSGAR_1994_Argentina_Zone_
    140874, // POSGAR_1998_Argentina_Zone_
    140902, // POSGAR_2007_Argentina_Zone_
    141047, // PRS_1992_Philippines_Zone_
    141275, // PSAD_1956_UTM_Zone_
    141998, // Palestine_1923_Palestine_
    142111, // Pampa_del_Castillo_Argentina_
    143226, // Peru96_UTM_Zone_
    141053, // Philippines_Zone_
    145000, // Posiciones Geodésicas Argentinas 
    159876, // Pulkovo_
    159896, // Pulkovo_1942_3_Degree_GK_
    159918, // Pulkovo_1942_3_Degree_GK_CM_
    159942, // Pulkovo_1942_3_Degree_GK_Zone_
    159967, // Pulkovo_1942_Adj_
    160001, // Pulkovo_1942_Adj_1958_3_Degree_GK_Zone_
    160033, // Pulkovo_1942_Adj_1958_GK_Zone_
    160058, // Pulkovo_1942_Adj_1958_Poland_Zone_
    160103, // Pulkovo_1942_Adj_1983_3_Degree_GK_Zone_
    160134, // Pulkovo_1942_CS63_
    160150, // Pulkovo_1942_GK_Zone_
    160168, // Pulkovo_1942_Gauss-Kruger_CM_
    160204, // Pulkovo_1995_3_Degree_GK_
    160226, // Pulkovo_1995_3_Degree_GK_CM_
    160250, // Pulkovo_1995_3_Degree_GK_Zone_
    160275, // Pulkovo_1995_GK_Zone_
    160293, // Pulkovo_1995_Gauss-Kruger_CM_
    161271, // RDN2008_
    162474, // RGF_1993_
    162712, // RGNC_1991-93_UTM_Zone_
    163195, // RGRDC_2005_Congo_TM_Zone_
    163707, // RGTAAF07_UTM_zone_
    165356, // Red Geodesica Nacional 
    168079, // S-42 zone 
    168090, // S-95 zone 
    168400, // S-JTSK_
    168781, // SAD_1969_96_UTM_Zone_
    168814, // SAD_1969_UTM_Zone_
    170332, // SIRGAS Multi-Year Solution 
    170355, // SIRGAS-CON 
    170685, // SIRGAS-CON_
    170709, // SIRGAS-Chile 
    171182, // SIRGAS-Chile_
    171386, // SIRGAS_2000_UTM_Zone_
    171402, // SIRGAS_Continuously_Operating_Network_
    171446, // SIRGAS_UTM_Zone_
    175837, // SRGI2013_UTM_zone_
    176096, // SW African CS zone 
    176464, // SWEREF99_
    179309, // South African CS zone 
    179319, // South African Coordinate System zone 
    180889, // South West African Coord. System zone 
    181430, // South_Yemen_GK_Zone_
    183480, // System 
    183703, // Systém Jednotnej trigonometrickej siete 
    183735, // Systém Jednotné trigonometrické sítě 
    184568, // TUREF_
    184575, // TUREF_3_Degree_GK_Zone_
    185182, // Tananarive_1925_
    186156, // Timbalai_1948_
    186955, // Tokyo_UTM_Zone_
    196200, // Ukraine_2000_
    196209, // Ukraine_2000_3_Degree_GK_
    198872, // VN-2000_TM-3_
    204543, // WGS 84 
    211106, // WGS_1972_UTM_Zone_
    211126, // WGS_1984_
    211134, // WGS_1984_EPSG_Arctic_
    211150, // WGS_1984_EPSG_Arctic_Regional_zone_
    211174, // WGS_1984_EPSG_Arctic_zone_
    211216, // WGS_1984_North_Pole_LAEA_
    211234, // WGS_1984_UTM_Zone_
    218351, // World_Geodetic_System_1984_
    220387, // Xian_1980_3_Degree_GK_
    220404, // Xian_1980_3_Degree_GK_Zone_
    220424, // Xian_1980_GK_
    220786, // Yemen_NGN_1996_UTM_Zone_
};
// clang-format on

} // namespace ZrProj::systems::rows
