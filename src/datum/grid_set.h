// Grids of datum shifts as the arithmetic reads them, the same for every processor level.
#pragma once

#include "levels/stage.h"

#include <cstdint>
#include <vector>

namespace ZrProj::datum {

/// One grid: rows of nodes from the south, and nodes from the east in each of them. Its children lie behind it in the
/// set, before the next grid that is no descendant.
struct GridRow {
    double east, south;     // degrees, of the first node; -180 to 180 the longitude
    double width, height;   // degrees
    double perDx, perDy;    // columns and rows a degree
    double columns, rows;   // of nodes, at least 2 each
    double reach;           // degrees beyond its edges that still count as on them, for what is rounded
    double firstWord;       // of the set's words
    int parent, depth, end; // -1 and 0 for one without a parent; the first grid behind its descendants
};

/// Grids, a parent before its children, and the shifts at their nodes. Where two grids of one parent meet, the first
/// one has the place.
struct GridSet {
    std::vector<GridRow> rows;
    /// A node is two of them: shifts to the north and to the west as two numbers of 32 bits, in this order, and what
    /// nobody reads here.
    std::uint64_t const* words = nullptr;
    bool isSwapped = false; // the numbers are in the other byte order than this machine's
    double unit = 0;        // of the shifts, in radians
    int depth = 0;          // the greatest of the rows
};

/// The operations of one processor level; the constants of their stages are a GridSet.
struct GridOperations {
    levels::Convert* driver;
    levels::StageCode forward, inverse;
};

} // namespace ZrProj::datum
