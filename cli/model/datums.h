// Datums: of the catalogue, the user's own, or those that a command line defines.
#pragma once

#include <zrproj/c.h>
#include <zrproj/zrproj.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct Datum {
    std::string name;
    DatumType type = DatumTypeUserDefined;
    DATUM2WGS84 record = {}; // where the type is the user's own

    bool isOwn() const { return type == DatumTypeUserDefined; }
    DatumMethod method() const;
    /// Whether points can be converted to it, too.
    bool isReversible() const;
};

/// From one datum to another.
struct DatumShift {
    Datum from, to;
};

std::string datumName(DatumType type);
std::string_view methodName(DatumMethod method);
/// Whether the method goes by the shifts of a record; by its rotations and scale as well.
bool hasShifts(DatumMethod method);
bool hasRotations(DatumMethod method);

/// The datum of a POSC code, a number or a name (a unique part will do). `defined` are those of the command line, which
/// go first. Throws UsageError when it is none.
Datum findDatum(std::string_view text, std::span<Datum const> defined);

/// The names in the user's profile.
std::vector<std::string> userDatumNames();

/// Whether a name means a datum of the catalogue.
bool isCatalogueName(std::string_view name);

/// A datum alone, as parameters say it.
zrproj_parameters parametersOf(Datum const& datum);

/// The figure of the earth that coordinates on a datum belong to.
struct Figure {
    EllipsoidType ellipsoid = EllipsoidTypeWgs84;
    double radius = 0, flattening = 0; // where the ellipsoid is the user's own
};

/// Nothing for a datum that does not tell.
std::optional<Figure> figureOf(Datum const& datum);

/// Reads a definition: a name, a colon, and fields between commas, in any order. Those left out are zero; the method
/// must be there. Throws UsageError for anything that no conversion could use, and for a name of the
/// catalogue.
Datum readDatumDefinition(std::string_view text);

struct DatumField {
    std::string_view key, unit, words;
    double value;
};

/// The record's numbers, as a definition calls them.
std::vector<DatumField> datumFields(DATUM2WGS84 const& record);

} // namespace ZrProj::Command
