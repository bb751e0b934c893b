// User datums: datums with names of their own, which a user adds to those of the catalogue.
//
// They are kept in a profile, a text file that people may edit and several programs may share: its section "Custom
// Datums" has a line for each. By default it is zrproj/zrproj.ini under the directory that XDG_CONFIG_HOME names, else
// under ~/.config (on Windows under APPDATA). The functions read it afresh in each call.
//
// A name is 1 to 255 bytes without control characters; any other text will do: blanks at its ends, quotation marks,
// "=", "]", UTF-8. Names are equal regardless of ASCII letter case. Lines that are no datum, be it by a fault in them,
// are as if they were not there.
//
//     ZrProj::DATUM2WGS84 own = {};
//     own.Method = ZrProj::DatumMethodMolodensky;
//     own.Ellipsoid = ZrProj::EllipsoidTypeBessel1841;
//     own.dX = 598.1, own.dY = 73.7, own.dZ = 418.2;
//     ZrProj::NDatSetDatum("Town survey 1931", &own);
//
// All of it may be used on several threads at once.
#ifndef ZRPROJ_USERDATUM_H
#define ZRPROJ_USERDATUM_H

#include "api.h"
#include "datum.h"

namespace ZrProj {

/// Sets the profile used from now on, by the whole program; null stands for the default one. The file need not exist.
/// Returns false, with nothing changed, for an empty name and when memory runs out.
ZRPROJ_API bool NDatSetProfile(char const* fileName);

/// Tells how many user datums there are. Returns 0 where the profile does not exist or cannot be read; a file above
/// 1 MiB cannot.
ZRPROJ_API int NDatNumDatums();

/// Writes the name of a user datum to `name`, by its index in the profile's order, from 0 to NDatNumDatums() - 1.
///
/// `nameSize` is the number of bytes in `name`, the closing null included; 256 hold every name. Returns false, with
/// `name` untouched, for null, for an index out of range, and for a buffer that is too small.
ZRPROJ_API bool NDatGetDatumName(int index, char* name, int nameSize);

/// Copies the record of a user datum, all fields as they were set. Returns false, with `*params` untouched, for null
/// and where there is no such datum.
ZRPROJ_API bool NDatGetDatumParams(char const* name, DATUM2WGS84* params);

/// Tells the method of a user datum. Returns false, with `*method` untouched, for null and where there is no such
/// datum.
ZRPROJ_API bool NDatGetDatumMethod(char const* name, DatumMethod* method);

/// Adds a user datum, or replaces the one of that name. All else in the profile stays as it is. When this returns true,
/// the datum is on the disk; a crash or a full disk on the way loses nothing that was there.
///
/// Returns false, with the profile as it was, for null; for a name that cannot be one; for a record that no conversion
/// could use (a method other than 0, 2 and 3, or a value that DatCheckParams refuses); and when the profile cannot be
/// read or written, or would get larger than 1 MiB.
ZRPROJ_API bool NDatSetDatum(char const* name, DATUM2WGS84 const* params);

/// Removes a user datum. Returns false, with the profile as it was, for null, where there is no such datum, and when
/// the profile cannot be read or written.
ZRPROJ_API bool NDatDeleteDatum(char const* name);

} // namespace ZrProj

#endif
