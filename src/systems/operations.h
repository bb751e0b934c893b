// The register's operations from datum to datum: what moves horizontal positions, and what is known of it.
#pragma once

#include "systems/definition.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::systems {

enum class OperationMethod : unsigned char {
    null, // positions stay as they are
    geocentric,
    molodensky,
    abridgedMolodensky,
    offsets,
    nadcon,
    ntv2,
    concatenated,
    unsupported, // known to the register, not computed here
};

/// How positions on one datum become those on another one.
struct Operation {
    Code code = 0; // 0: not the register's
    std::string name;
    Code from = 0, to = 0; // datums
    OperationMethod method = OperationMethod::null;

    /// geocentric: translation (metres), rotation (arcseconds, as a position vector turns), scale (parts per million),
    /// the point that they are about (metres); offsets: degrees of longitude and of latitude.
    std::array<double, 10> parameters{};

    /// File names: NADCON's latitudes and longitudes, or one NTv2 file. What the files say leads from `from` to `to`,
    /// unless `gridIsReversed`.
    std::array<std::string, 2> grids;
    bool gridIsReversed = false;
    std::string gridCopy; // an NTv2 file that has the same shifts, "" where there is none
    bool copyIsReversed = false;

    std::vector<Code> steps; // of a concatenated one: operations, in the order from `from` to `to`

    double accuracy = 0; // metres, NaN where nobody states one
    std::optional<Area> area;
    double epoch = 0; // the year for which an operation that depends on time is taken; 0 where none does
    bool deprecated = false;
    bool superseded = false; // by one in force between the same systems, not by a grid unless it is one
    bool flat = true;        // said between systems of two dimensions, not geocentric ones or with heights
};

/// Nothing where the register has none of that code.
std::optional<Operation> operationOf(Code code);

/// An operation with the way round in which it is meant.
struct DirectedOperation {
    Operation operation;
    bool reversed = false;
};

/// The operations that lead from one datum to another, either way round, in the order of codes. Between an ensemble and
/// one of its realizations there is the null operation, whose code is 0.
std::vector<DirectedOperation> operationsBetween(Code from, Code to);

/// The datums that operations lead to from a datum, either way round, in the order of codes.
std::vector<Code> datumsBeside(Code datum);

/// Those of them on which positions are the same: on another meridian, an ensemble or its realizations.
std::vector<Code> datumsTakenFor(Code datum);

} // namespace ZrProj::systems
