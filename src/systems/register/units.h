// Units of length and angle.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr UnitRow units[] = {
    {1025, false, 375245, 0.001}, // millimetre
    {1033, false, 374598, 0.01}, // centimetre
    {9001, false, 94399, 1}, // metre
    {9002, false, 49895, 0.3048}, // foot
    {9003, false, 317477, 0.3048006096012192}, // US survey foot
    {9005, false, 49886, 0.3047972654}, // Clarke's foot
    {9014, false, 374967, 1.8288}, // fathom
    {9030, false, 375256, 1852}, // nautical mile
    {9031, false, 94386, 1.0000135965}, // German legal metre
    {9033, false, 317461, 20.116840233680467}, // US survey chain
    {9034, false, 317492, 0.20116840233680466}, // US survey link
    {9035, false, 317507, 1609.3472186944373}, // US survey mile
    {9036, false, 375214, 1000}, // kilometre
    {9037, false, 49914, 0.9143917962}, // Clarke's yard
    {9038, false, 49871, 20.1166195164}, // Clarke's chain
    {9039, false, 49900, 0.201166195164}, // Clarke's link
    {9040, false, 37882, 0.9143984146160287}, // British yard (Sears 1922)
    {9041, false, 37642, 0.3047994715386762}, // British foot (Sears 1922)
    {9042, false, 37481, 20.116765121552632}, // British chain (Sears 1922)
    {9043, false, 37762, 0.2011676512155263}, // British link (Sears 1922)
    {9050, false, 37788, 0.9143992}, // British yard (Benoit 1895 A)
    {9051, false, 37548, 0.3047997333333333}, // British foot (Benoit 1895 A)
    {9052, false, 37384, 20.1167824}, // British chain (Benoit 1895 A)
    {9053, false, 37668, 0.201167824}, // British link (Benoit 1895 A)
    {9060, false, 37817, 0.9143992042898124}, // British yard (Benoit 1895 B)
    {9061, false, 37577, 0.30479973476327077}, // British foot (Benoit 1895 B)
    {9062, false, 37414, 20.116782494375872}, // British chain (Benoit 1895 B)
    {9063, false, 37697, 0.2011678249437587}, // British link (Benoit 1895 B)
    {9070, false, 37508, 0.30480083333333335}, // British foot (1865)
    {9080, false, 106925, 0.30479951024814694}, // Indian foot
    {9081, false, 106937, 0.30479841}, // Indian foot (1937)
    {9082, false, 106956, 0.3047996}, // Indian foot (1962)
    {9083, false, 106975, 0.3047995}, // Indian foot (1975)
    {9084, false, 106994, 0.9143985307444408}, // Indian yard
    {9085, false, 107006, 0.91439523}, // Indian yard (1937)
    {9086, false, 107025, 0.9143988}, // Indian yard (1962)
    {9087, false, 107044, 0.9143985}, // Indian yard (1975)
    {9093, false, 307069, 1609.344}, // Statute mile
    {9094, false, 95262, 0.3047997101815088}, // Gold Coast foot
    {9095, false, 37528, 0.3048007491}, // British foot (1936)
    {9096, false, 49923, 0.9144}, // yard
    {9097, false, 49880, 20.1168}, // chain
    {9098, false, 49909, 0.201168}, // link
    {9099, false, 37846, 0.914398}, // British yard (Sears 1922 truncated)
    {9101, true, 375229, 57.29577951308232}, // radian
    {9102, true, 375025, 1}, // degree
    {9103, true, 374569, 0.016666666666666666}, // arc-minute
    {9105, true, 375009, 0.9}, // grad
    {9106, true, 126898, 0.9}, // gon
    {9108, true, 374812, 1}, // degree minute second hemisphere
    {9109, true, 375224, 5.7295779513082324e-05}, // microradian
    {9110, true, 375450, 1}, // sexagesimal DMS
    {9111, true, 375435, 1}, // sexagesimal DM
    {9112, true, 374580, 0.009}, // centesimal minute
    {9114, true, 375236, 0.05625}, // mil_6400
    {9115, true, 375043, 1}, // degree minute
    {9116, true, 374769, 1}, // degree hemisphere
    {9117, true, 375014, 1}, // hemisphere degree
    {9118, true, 374787, 1}, // degree minute hemisphere
    {9119, true, 375032, 1}, // hemisphere degree minute
    {9121, true, 375466, 1}, // sexagesimal DMS.s
    {9122, true, 374726, 1}, // degree (supplier to define representation)
    {9204, false, 35398, 100.58420116840234}, // Bin width 330 US survey feet
    {9205, false, 35326, 50.29210058420117}, // Bin width 165 US survey feet
    {9206, false, 35471, 25.146050292100586}, // Bin width 82.5 US survey feet
    {9207, false, 35427, 37.5}, // Bin width 37.5 metres
    {9208, false, 35355, 25}, // Bin width 25 metres
    {9209, false, 35304, 12.5}, // Bin width 12.5 metres
    {9210, false, 35449, 6.25}, // Bin width 6.25 metres
    {9211, false, 35375, 3.125}, // Bin width 3.125 metres
    {9300, false, 37606, 0.30479933333333337}, // British foot (Sears 1922 truncated)
    {9301, false, 37444, 20.116756}, // British chain (Sears 1922 truncated)
    {9302, false, 37726, 0.20116756}, // British link (Sears 1922 truncated)
};
// clang-format on

} // namespace ZrProj::systems::rows
