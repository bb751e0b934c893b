// The beginnings of aliases.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr Text beginnings[] = {
    15, // 
    4793, // AGD_1966_AMG_Zone_
    4829, // AGD_1984_AMG_Zone_
    5920, // Adindan_UTM_Zone_
    7362, // Ain_el_Abd_UTM_Zone_
    15401, // Aratu_UTM_Zone_
    15747, // Arc_1960_UTM_Zone_
    241739, // Argentina_Zone_
    28943, // BGS2005_UTM_zone_
    33857, // Beijing_1954_3_Degree_GK_
    33883, // Beijing_1954_3_Degree_GK_Zone_
    33914, // Beijing_1954_GK_Zone_
    33936, // Beijing_1954_Gauss_Kruger_CM_
    38594, // C Inchauspe /Argentina 
    41067, // CGCS2000_3_Degree_GK_
    41089, // CGCS2000_3_Degree_GK_Zone_
    41116, // CGCS2000_GK_
    42720, // Camacupa_
    58429, // Clarke_
    51600, // Colombia_
    54740, // Corrego_Alegre_
    56128, // DB_REF_3-Degree_GK_Zone_
    57173, // DGN_1995_Indonesia_TM-3_Zone_
    57203, // DGN_1995_UTM_Zone_
    57784, // DHDN_3_Degree_GK_Zone_
    57807, // DHDN_3_Degree_Gauss_Zone_
    58412, // DRUKREF_03_
    58424, // D_
    58427, // D_Clarke_
    58437, // D_ITRF_
    58445, // D_NAD_1983_
    58457, // D_North_American_
    58475, // D_Reseau_Geodesique_
    58574, // Dabola_1981_UTM_Zone_
    61841, // ED_1950_
    61850, // ED_1950_3_Degree_GK_Zone_
    61876, // ED_1950_UTM_Zone_
    62194, // ELD_1979_Libya_
    62228, // ELD_1979_UTM_Zone_
    65076, // ETRF2000 epoca 2008.0 fuso 
    65488, // ETRS - 
    68487, // ETRS_1989_
    68498, // ETRS_1989_EPSG_Arctic_zone_
    68526, // ETRS_1989_NTM_Zone_
    68546, // ETRS_1989_Poland_CS2000_Zone_
    68576, // ETRS_1989_UTM_Zone_
    74479, // European_Terrestrial_Reference_Frame_
    74713, // Everest_
    78641, // Foot_
    213761, // GCS_
    81464, // GCS_Clarke_
    81476, // GCS_ITRF_
    81486, // GCS_NAD_1983_
    81500, // GCS_North_American_
    82343, // GDA2020_
    82352, // GDA2020_MGA_Zone_
    82938, // GDA_1994_
    82948, // GDA_1994_MGA_Zone_
    83374, // GDM_2000_State_Cassini_
    84372, // GR96_EPSG_Arctic_zone_
    96992, // Greenland_1996_UTM_Zone_
    100350, // Hjorsey_1955_UTM_Zone_
    101474, // IERS Terrestrial Reference Frame 
    102211, // IGCB_1955_Congo_TM_Zone_
    102326, // IGC_1962_Congo_TM_Zone_
    103211, // IGN_Astro_1960_UTM_Zone_
    105383, // InGCS 2011 
    107063, // Indian_
    109974, // Indonesian_1974_UTM_Zone_
    114881, // JGD_2000_Japan_Zone_
    114902, // JGD_2000_UTM_Zone_
    114930, // JGD_2011_Japan_Zone_
    114951, // JGD_2011_UTM_Zone_
    114890, // Japan_Zone_
    117732, // KSA-GRF17_UTM_zone_
    118634, // Kalianpur_
    118660, // Kalianpur_1880_India_Zone_
    118732, // Kalianpur_1975_India_Zone_
    118759, // Kalianpur_1975_UTM_Zone_
    120163, // Karbala_1979_Polservice_UTM_Zone_
    120732, // Katanga_1955_Katanga_
    121869, // Kertau_
    123203, // Korea_2000_Korea_
    123748, // Korean_1985_
    123761, // Korean_1985_Modified_Korea_
    124403, // Kyrg-06_TM_Zone_
    125203, // LGD2006_Libya_TM_Zone_
    125226, // LGD2006_UTM_Zone_
    125974, // Lake_Maracaibo_
    126768, // Le Pouce (Mauritius 
    131908, // MAGNA_
    133141, // MGI_
    133155, // MGI_1901_Balkans_
    133173, // MGI_3_Degree_Gauss_Zone_
    133198, // MGI_Austria_
    134206, // MTRF-2000_UTM_zone_
    138427, // Mauritania_1999_UTM_Zone_
    138992, // Mexican_Datum_1993_UTM_Zone_
    139734, // Mexico_ITRF2008_UTM_Zone_
    143533, // Monte_Mario_
    144595, // NAD 83 
    184251, // NAD83(CSRS) 
    213462, // NAD_1927_
    213472, // NAD_1927_BLM_Zone_
    213506, // NAD_1927_CGQ77_
    213522, // NAD_1927_DEF_1976_MTM_
    213545, // NAD_1927_DEF_1976_UTM_Zone_
    213598, // NAD_1927_StatePlane_
    213619, // NAD_1927_StatePlane_California_
    213651, // NAD_1927_UTM_Zone_
    58447, // NAD_1983_
    213670, // NAD_1983_(2011)_IaRCS_zone_
    213698, // NAD_1983_(2011)_NCRS_Las_Vegas_
    213730, // NAD_1983_2011_
    213745, // NAD_1983_2011_InGCS_
    213766, // NAD_1983_2011_KS_RCS_Zone_
    213793, // NAD_1983_2011_RMTCRS_
    213815, // NAD_1983_2011_StatePlane_
    213841, // NAD_1983_2011_StatePlane_California_
    213878, // NAD_1983_2011_UTM_Zone_
    213902, // NAD_1983_2011_WISCRS_
    213924, // NAD_1983_BLM_Zone_
    213943, // NAD_1983_CORS96_StatePlane_Oregon_
    213978, // NAD_1983_CSRS_
    213993, // NAD_1983_CSRS_EPSG_Arctic_zone_
    214025, // NAD_1983_CSRS_MTM_
    214044, // NAD_1983_CSRS_UTM_Zone_
    214068, // NAD_1983_HARN_
    214083, // NAD_1983_HARN_StatePlane_
    214109, // NAD_1983_HARN_StatePlane_California_
    214146, // NAD_1983_HARN_StatePlane_New_
    214176, // NAD_1983_HARN_UTM_Zone_
    214200, // NAD_1983_HARN_WISCRS_
    214222, // NAD_1983_MTM_
    214236, // NAD_1983_NSRS2007_
    214255, // NAD_1983_NSRS2007_StatePlane_
    214285, // NAD_1983_NSRS2007_StatePlane_California_
    214326, // NAD_1983_NSRS2007_UTM_Zone_
    214354, // NAD_1983_PA11_StatePlane_Hawaii_
    214387, // NAD_1983_StatePlane_
    214408, // NAD_1983_StatePlane_Alaska_
    214436, // NAD_1983_StatePlane_California_
    214468, // NAD_1983_StatePlane_New_
    214493, // NAD_1983_UTM_Zone_
    214512, // NAD_Michigan_StatePlane_Michigan_
    214546, // NCRS Las Vegas 
    215345, // NGO_1948_Oslo_Norway_Zone_
    216090, // NTF_Paris_
    216101, // NTF_Paris_Lambert_
    218228, // NZGD_1949_
    218249, // NZGD_2000_
    218586, // Nahrwan_1934_UTM_zone_
    218622, // Nahrwan_1967_UTM_Zone_
    223120, // New S African CS zone 
    225405, // New_Beijing_3_Degree_Gauss_Kruger_
    225440, // New_Beijing_3_Degree_Gauss_Kruger_Zone_
    225480, // New_Beijing_Gauss_Kruger_
    226795, // Nord_Sahara_1959_
    229533, // North_American_Datum_of_1983_(CSRS)_version_
    233897, // OCRS_
    233903, // OCRS_Bend-Burns_NAD_1983_
    233929, // OCRS_Bend-Klamath_Falls_NAD_1983_
    233963, // OCRS_Bend-Redmond-Prineville_NAD_1983_
    234002, // OCRS_Canyonville-Grants_Pass_NAD_1983_
    234041, // OCRS_Columbia_River_
    234062, // OCRS_Cottage_Grove-Canyonville_NAD_1983_
    234103, // OCRS_Dufur-Madras_NAD_1983_
    234131, // OCRS_Eugene_NAD_1983_
    234153, // OCRS_Grants_Pass-Ashland_NAD_1983_
    234188, // OCRS_Gresham-Warm_Springs_NAD_1983_
    234224, // OCRS_La_Grande_NAD_1983_
    234249, // OCRS_Ontario_NAD_1983_
    234272, // OCRS_Oregon_Coast_NAD_1983_
    234300, // OCRS_Pendleton-La_Grande_NAD_1983_
    234335, // OCRS_Pendleton_NAD_1983_
    234360, // OCRS_Portland_NAD_1983_
    234384, // OCRS_Santiam_Pass_NAD_1983_
    235479, // Ocotepeque_1935_
    236126, // Old_Hawaiian_StatePlane_Hawaii_
    241727, // POSGAR_1994_Argentina_Zone_
    241767, // POSGAR_1998_Argentina_Zone_
    241807, // POSGAR_2007_Argentina_Zone_
    242032, // PRS_1992_Philippines_Zone_
    242428, // PSAD_1956_UTM_Zone_
    243484, // Palestine_1923_Palestine_
    243657, // Pampa_del_Castillo_Argentina_
    245395, // Peru96_UTM_Zone_
    242041, // Philippines_Zone_
    248190, // Posiciones Geodésicas Argentinas 
    268155, // Pulkovo_
    268177, // Pulkovo_1942_3_Degree_GK_
    268203, // Pulkovo_1942_3_Degree_GK_CM_
    268232, // Pulkovo_1942_3_Degree_GK_Zone_
    268263, // Pulkovo_1942_Adj_
    268303, // Pulkovo_1942_Adj_1958_3_Degree_GK_Zone_
    268343, // Pulkovo_1942_Adj_1958_GK_Zone_
    268374, // Pulkovo_1942_Adj_1958_Poland_Zone_
    268431, // Pulkovo_1942_Adj_1983_3_Degree_GK_Zone_
    268471, // Pulkovo_1942_CS63_
    268490, // Pulkovo_1942_GK_Zone_
    268512, // Pulkovo_1942_Gauss-Kruger_CM_
    268555, // Pulkovo_1995_3_Degree_GK_
    268581, // Pulkovo_1995_3_Degree_GK_CM_
    268610, // Pulkovo_1995_3_Degree_GK_Zone_
    268641, // Pulkovo_1995_GK_Zone_
    268663, // Pulkovo_1995_Gauss-Kruger_CM_
    270161, // RDN2008_
    271627, // RGF_1993_
    271941, // RGNC_1991-93_UTM_Zone_
    272676, // RGRDC_2005_Congo_TM_Zone_
    273373, // RGTAAF07_UTM_zone_
    275546, // Red Geodesica Nacional 
    280845, // S-42 zone 
    280861, // S-95 zone 
    281251, // S-JTSK_
    281879, // SAD_1969_96_UTM_Zone_
    281927, // SAD_1969_UTM_Zone_
    284079, // SIRGAS Multi-Year Solution 
    284107, // SIRGAS-CON 
    284439, // SIRGAS-CON_
    284464, // SIRGAS-Chile 
    285121, // SIRGAS-Chile_
    285377, // SIRGAS_2000_UTM_Zone_
    285399, // SIRGAS_Continuously_Operating_Network_
    285454, // SIRGAS_UTM_Zone_
    295121, // SRGI2013_UTM_zone_
    295452, // SW African CS zone 
    295881, // SWEREF99_
    300251, // South African CS zone 
    300274, // South African Coordinate System zone 
    304222, // South West African Coord. System zone 
    305238, // South_Yemen_GK_Zone_
    308290, // System 
    308609, // Systém Jednotnej trigonometrickej siete 
    308651, // Systém Jednotné trigonometrické sítě 
    309804, // TUREF_
    309811, // TUREF_3_Degree_GK_Zone_
    310733, // Tananarive_1925_
    312332, // Timbalai_1948_
    313398, // Tokyo_UTM_Zone_
    330604, // Ukraine_2000_
    330618, // Ukraine_2000_3_Degree_GK_
    334326, // VN-2000_TM-3_
    342938, // WGS 84 
    352193, // WGS_1972_UTM_Zone_
    352221, // WGS_1984_
    352231, // WGS_1984_EPSG_Arctic_
    352253, // WGS_1984_EPSG_Arctic_Regional_zone_
    352289, // WGS_1984_EPSG_Arctic_zone_
    352348, // WGS_1984_North_Pole_LAEA_
    352374, // WGS_1984_UTM_Zone_
    370204, // World_Geodetic_System_1984_
    373277, // Xian_1980_3_Degree_GK_
    373300, // Xian_1980_3_Degree_GK_Zone_
    373328, // Xian_1980_GK_
    373909, // Yemen_NGN_1996_UTM_Zone_
};
// clang-format on

} // namespace ZrProj::systems::rows
