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
    {1025, false, 221726, 0.001}, // millimetre
    {1033, false, 221252, 0.01}, // centimetre
    {9001, false, 60728, 1}, // metre
    {9002, false, 31422, 0.3048}, // foot
    {9003, false, 189614, 0.3048006096012192}, // US survey foot
    {9005, false, 31414, 0.3047972654}, // Clarke's foot
    {9014, false, 221511, 1.8288}, // fathom
    {9030, false, 221734, 1852}, // nautical mile
    {9031, false, 60719, 1.0000135965}, // German legal metre
    {9033, false, 189602, 20.116840233680467}, // US survey chain
    {9034, false, 189625, 0.20116840233680466}, // US survey link
    {9035, false, 189636, 1609.3472186944373}, // US survey mile
    {9036, false, 221703, 1000}, // kilometre
    {9037, false, 31438, 0.9143917962}, // Clarke's yard
    {9038, false, 31401, 20.1166195164}, // Clarke's chain
    {9039, false, 31426, 0.201166195164}, // Clarke's link
    {9040, false, 23879, 0.9143984146160287}, // British yard (Sears 1922)
    {9041, false, 23697, 0.3047994715386762}, // British foot (Sears 1922)
    {9042, false, 23574, 20.116765121552632}, // British chain (Sears 1922)
    {9043, false, 23788, 0.2011676512155263}, // British link (Sears 1922)
    {9050, false, 23807, 0.9143992}, // British yard (Benoit 1895 A)
    {9051, false, 23625, 0.3047997333333333}, // British foot (Benoit 1895 A)
    {9052, false, 23499, 20.1167824}, // British chain (Benoit 1895 A)
    {9053, false, 23716, 0.201167824}, // British link (Benoit 1895 A)
    {9060, false, 23830, 0.9143992042898124}, // British yard (Benoit 1895 B)
    {9061, false, 23648, 0.30479973476327077}, // British foot (Benoit 1895 B)
    {9062, false, 23523, 20.116782494375872}, // British chain (Benoit 1895 B)
    {9063, false, 23739, 0.2011678249437587}, // British link (Benoit 1895 B)
    {9070, false, 23594, 0.30480083333333335}, // British foot (1865)
    {9080, false, 68878, 0.30479951024814694}, // Indian foot
    {9081, false, 68885, 0.30479841}, // Indian foot (1937)
    {9082, false, 68897, 0.3047996}, // Indian foot (1962)
    {9083, false, 68909, 0.3047995}, // Indian foot (1975)
    {9084, false, 68921, 0.9143985307444408}, // Indian yard
    {9085, false, 68928, 0.91439523}, // Indian yard (1937)
    {9086, false, 68940, 0.9143988}, // Indian yard (1962)
    {9087, false, 68952, 0.9143985}, // Indian yard (1975)
    {9093, false, 182636, 1609.344}, // Statute mile
    {9094, false, 61199, 0.3047997101815088}, // Gold Coast foot
    {9095, false, 23610, 0.3048007491}, // British foot (1936)
    {9096, false, 31446, 0.9144}, // yard
    {9097, false, 31409, 20.1168}, // chain
    {9098, false, 31434, 0.201168}, // link
    {9099, false, 23853, 0.914398}, // British yard (Sears 1922 truncated)
    {9101, true, 221714, 57.29577951308232}, // radian
    {9102, true, 221551, 1}, // degree
    {9103, true, 221230, 0.016666666666666666}, // arc-minute
    {9105, true, 221545, 0.9}, // grad
    {9106, true, 80921, 0.9}, // gon
    {9108, true, 221394, 1}, // degree minute second hemisphere
    {9109, true, 221710, 5.7295779513082324e-05}, // microradian
    {9110, true, 221891, 1}, // sexagesimal DMS
    {9111, true, 221879, 1}, // sexagesimal DM
    {9112, true, 221239, 0.009}, // centesimal minute
    {9114, true, 221718, 0.05625}, // mil_6400
    {9115, true, 221559, 1}, // degree minute
    {9116, true, 221373, 1}, // degree hemisphere
    {9117, true, 221549, 1}, // hemisphere degree
    {9118, true, 221381, 1}, // degree minute hemisphere
    {9119, true, 221557, 1}, // hemisphere degree minute
    {9121, true, 221904, 1}, // sexagesimal DMS.s
    {9122, true, 221344, 1}, // degree (supplier to define representation)
    {9204, false, 22321, 100.58420116840234}, // Bin width 330 US survey feet
    {9205, false, 22270, 50.29210058420117}, // Bin width 165 US survey feet
    {9206, false, 22371, 25.146050292100586}, // Bin width 82.5 US survey feet
    {9207, false, 22340, 37.5}, // Bin width 37.5 metres
    {9208, false, 22290, 25}, // Bin width 25 metres
    {9209, false, 22255, 12.5}, // Bin width 12.5 metres
    {9210, false, 22355, 6.25}, // Bin width 6.25 metres
    {9211, false, 22304, 3.125}, // Bin width 3.125 metres
    {9300, false, 23671, 0.30479933333333337}, // British foot (Sears 1922 truncated)
    {9301, false, 23547, 20.116756}, // British chain (Sears 1922 truncated)
    {9302, false, 23762, 0.20116756}, // British link (Sears 1922 truncated)
};
// clang-format on

} // namespace ZrProj::systems::rows
