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
// All of it may be used on several threads at once.
#ifndef ZRPROJ_USERDATUM_H
#define ZRPROJ_USERDATUM_H

#include "api.h"
#include "datum.h"

namespace ZrProj {

/// Sets the profile used from now on, by the whole program; null: the default one. The file need not exist. False, and
/// nothing changed, for an empty name.
ZRPROJ_API bool NDatSetProfile(char const* fileName);

/// How many user datums there are; 0 where the profile does not exist or cannot be read (1 MiB is the most).
ZRPROJ_API int NDatNumDatums();

/// Writes the name of the user datum at a place, 0 to NDatNumDatums() - 1, in the profile's order. False, `name`
/// untouched, for any other place, for null, and where the `nameSize` bytes cannot hold the name and its closing null
/// (256 always can).
ZRPROJ_API bool NDatGetDatumName(int index, char* name, int nameSize);

/// The record of a user datum, all fields as they were set. False, `*params` untouched, for null and where there is no
/// such datum.
ZRPROJ_API bool NDatGetDatumParams(char const* name, DATUM2WGS84* params);

/// The method of a user datum. False, `*method` untouched, for null and where there is no such datum.
ZRPROJ_API bool NDatGetDatumMethod(char const* name, DatumMethod* method);

/// Adds a user datum, or replaces the one of that name. All else in the profile stays as it is. When this returns true,
/// the datum is on the disk; a crash or a full disk on the way loses nothing that was there.
/// False, the profile as it was, for null, for a name that cannot be one, for a record that no conversion could use
/// (a method other than 0, 2 and 3, or a value that DatCheckParams refuses), and when the profile cannot be read or
/// written, or would get larger than 1 MiB.
ZRPROJ_API bool NDatSetDatum(char const* name, DATUM2WGS84 const* params);

/// Removes a user datum. False, the profile as it was, for null, where there is no such datum, and when the profile
/// cannot be read or written.
ZRPROJ_API bool NDatDeleteDatum(char const* name);

} // namespace ZrProj

#endif
