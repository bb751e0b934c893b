// Units of length and angle.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr UnitRow units[] = {
    {1025, false, 231632, 0.001}, // millimetre
    {1033, false, 230510, 0.01}, // centimetre
    {9001, false, 63937, 1}, // metre
    {9002, false, 33841, 0.3048}, // foot
    {9003, false, 198072, 0.3048006096012192}, // US survey foot
    {9005, false, 33833, 0.3047972654}, // Clarke's foot
    {9014, false, 230975, 1.8288}, // fathom
    {9030, false, 232818, 1852}, // nautical mile
    {9031, false, 63928, 1.0000135965}, // German legal metre
    {9033, false, 198060, 20.116840233680467}, // US survey chain
    {9034, false, 198083, 0.20116840233680466}, // US survey link
    {9035, false, 198094, 1609.3472186944373}, // US survey mile
    {9036, false, 231434, 1000}, // kilometre
    {9037, false, 33857, 0.9143917962}, // Clarke's yard
    {9038, false, 33820, 20.1166195164}, // Clarke's chain
    {9039, false, 33845, 0.201166195164}, // Clarke's link
    {9040, false, 25543, 0.9143984146160287}, // British yard (Sears 1922)
    {9041, false, 25361, 0.3047994715386762}, // British foot (Sears 1922)
    {9042, false, 25238, 20.116765121552632}, // British chain (Sears 1922)
    {9043, false, 25452, 0.2011676512155263}, // British link (Sears 1922)
    {9050, false, 25471, 0.9143992}, // British yard (Benoit 1895 A)
    {9051, false, 25289, 0.3047997333333333}, // British foot (Benoit 1895 A)
    {9052, false, 25163, 20.1167824}, // British chain (Benoit 1895 A)
    {9053, false, 25380, 0.201167824}, // British link (Benoit 1895 A)
    {9060, false, 25494, 0.9143992042898124}, // British yard (Benoit 1895 B)
    {9061, false, 25312, 0.30479973476327077}, // British foot (Benoit 1895 B)
    {9062, false, 25187, 20.116782494375872}, // British chain (Benoit 1895 B)
    {9063, false, 25403, 0.2011678249437587}, // British link (Benoit 1895 B)
    {9070, false, 25258, 0.30480083333333335}, // British foot (1865)
    {9080, false, 72661, 0.30479951024814694}, // Indian foot
    {9081, false, 72668, 0.30479841}, // Indian foot (1937)
    {9082, false, 72680, 0.3047996}, // Indian foot (1962)
    {9083, false, 72692, 0.3047995}, // Indian foot (1975)
    {9084, false, 72704, 0.9143985307444408}, // Indian yard
    {9085, false, 72711, 0.91439523}, // Indian yard (1937)
    {9086, false, 72723, 0.9143988}, // Indian yard (1962)
    {9087, false, 72735, 0.9143985}, // Indian yard (1975)
    {9093, false, 190314, 1609.344}, // Statute mile
    {9094, false, 64533, 0.3047997101815088}, // Gold Coast foot
    {9095, false, 25274, 0.3048007491}, // British foot (1936)
    {9096, false, 33865, 0.9144}, // yard
    {9097, false, 33828, 20.1168}, // chain
    {9098, false, 33853, 0.201168}, // link
    {9099, false, 25517, 0.914398}, // British yard (Sears 1922 truncated)
    {9101, true, 231588, 57.29577951308232}, // radian
    {9102, true, 231170, 1}, // degree
    {9103, true, 230404, 0.016666666666666666}, // arc-minute
    {9105, true, 231111, 0.9}, // grad
    {9106, true, 85416, 0.9}, // gon
    {9108, true, 230772, 1}, // degree minute second hemisphere
    {9109, true, 231584, 5.7295779513082324e-05}, // microradian
    {9110, true, 233527, 1}, // sexagesimal DMS
    {9111, true, 233515, 1}, // sexagesimal DM
    {9112, true, 230497, 0.009}, // centesimal minute
    {9114, true, 231624, 0.05625}, // mil_6400
    {9115, true, 231178, 1}, // degree minute
    {9116, true, 230751, 1}, // degree hemisphere
    {9117, true, 231168, 1}, // hemisphere degree
    {9118, true, 230759, 1}, // degree minute hemisphere
    {9119, true, 231176, 1}, // hemisphere degree minute
    {9121, true, 233540, 1}, // sexagesimal DMS.s
    {9122, true, 230722, 1}, // degree (supplier to define representation)
    {9204, false, 23582, 100.58420116840234}, // Bin width 330 US survey feet
    {9205, false, 23531, 50.29210058420117}, // Bin width 165 US survey feet
    {9206, false, 23633, 25.146050292100586}, // Bin width 82.5 US survey feet
    {9207, false, 23602, 37.5}, // Bin width 37.5 metres
    {9208, false, 23551, 25}, // Bin width 25 metres
    {9209, false, 23516, 12.5}, // Bin width 12.5 metres
    {9210, false, 23617, 6.25}, // Bin width 6.25 metres
    {9211, false, 23565, 3.125}, // Bin width 3.125 metres
    {9300, false, 25335, 0.30479933333333337}, // British foot (Sears 1922 truncated)
    {9301, false, 25211, 20.116756}, // British chain (Sears 1922 truncated)
    {9302, false, 25426, 0.20116756}, // British link (Sears 1922 truncated)
};
// clang-format on

} // namespace ZrProj::systems::rows
