// Finding the datum that a user means: of the catalogue, the user's own, or one of the command line.
#pragma once

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

std::string datumName(DatumType type);
std::string_view methodName(DatumMethod method);

/// The datum of a POSC code, a number or a name (a unique part will do). `defined` are those of the command line, which
/// go first. Throws UsageError when it is none.
Datum findDatum(std::string_view text, std::span<Datum const> defined);

/// The names in the user's profile.
std::vector<std::string> userDatumNames();

/// Whether a name means a datum of the catalogue.
bool isCatalogueName(std::string_view name);

/// The figure of the earth that coordinates on a datum belong to.
struct Figure {
    EllipsoidType ellipsoid = EllipsoidTypeWgs84;
    double radius = 0, flattening = 0; // where the ellipsoid is the user's own
};

/// Nothing for a datum that does not tell.
std::optional<Figure> figureOf(Datum const& datum);

} // namespace ZrProj::Command
