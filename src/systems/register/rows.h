// What the rows of the register's tables are made of. Numbers are in degrees and metres.
#pragma once

#include "systems/operations.h"

#include <cstdint>

namespace ZrProj::systems::rows {

/// Where a name begins in `texts`, packed; it ends at the next 0.
using Text = std::uint32_t;

struct UnitRow {
    std::uint16_t code;
    bool ofAngle;
    Text name;
    double factor;
};

struct EllipsoidRow {
    std::uint16_t code;
    Text name;
    double semiMajor, inverseFlattening;
};

struct MeridianRow {
    std::uint16_t code;
    Text name;
    double longitude;
};

struct DatumRow {
    std::uint16_t code, ellipsoid, meridian; // all codes
    std::uint16_t ensembleCentimetres;       // the accuracy of an ensemble of realizations
    Text name;
};

struct RealizationRow {
    std::uint16_t code, ensemble; // of datums
};

struct AreaRow {
    Text name;
    std::int16_t west, south, east, north; // hundredths of a degree; all 0: the register has none
};

/// The axes of systems: the unit's code, where they grow to, which one comes first.
struct AxesRow {
    std::uint16_t unit;
    Sense x, y;
    bool northingFirst;
};

struct ConversionRow {
    std::uint16_t code;
    Method method;
    Text name;
    std::uint16_t values[7]; // indices of `values`, in the order of the method's parameters
};

struct SystemRow {
    std::uint16_t code;
    std::uint16_t base; // the code of a geographic system's datum, of a projected one's geographic system
    Text name;
    std::uint16_t conversion; // an index; `geographic` for a geographic system
    std::uint16_t area;       // an index
    std::uint8_t axes;        // an index
    bool deprecated;
};
inline constexpr std::uint16_t geographic = 0xffff;

/// A system of three dimensions or with heights, and its horizontal part; a nickname, and what it stands for.
struct PartRow {
    std::int32_t code;
    std::uint16_t horizontal;
};

struct ReplacementRow {
    std::uint16_t code, replacement;
};

enum class Maker : std::uint8_t { esri, epsg, proj };

/// A further name: a beginning that many share, and the rest.
struct AliasRow {
    std::uint32_t beginning : 8, rest : 24; // an index of `beginnings`; a Text
    std::uint16_t code;
    Maker maker;
};

/// An operation from datum to datum.
struct OperationRow {
    std::uint32_t name : 24;    // a Text; from `numbered` up, the n of "A to B (n)"
    std::uint32_t accuracy : 8; // an index
    std::uint16_t code;
    std::uint16_t from, to; // indices of geographic systems in two dimensions
    std::uint16_t area;     // an index
    std::uint16_t operands; // the index of the first one
    OperationMethod method;
    std::uint8_t count : 4; // of operands
    std::uint8_t marks : 4; // OperationMark
};
inline constexpr std::uint32_t numbered = 1U << 23;

enum OperationMark : std::uint8_t {
    deprecated = 1,
    superseded = 2, // by one in force between the same systems, which needs no grid unless this one does
    flat = 4,       // said between systems of two dimensions
};

struct GridRow {
    Text first, second; // the files' names; "" where there is no second one
    Text copy;          // what an NTv2 file of the same shifts is called; "" where nobody has one
    bool copyIsReversed;
};

} // namespace ZrProj::systems::rows
