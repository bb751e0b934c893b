// Points on their way through a computation: where they come from, the stages that they pass, and what becomes of
// them. The same for every processor level.
#pragma once

#include <cfloat>
#include <cstddef>

namespace ZrProj::levels {

/// A caller's points, which are converted in place: x and y in turn.
struct Points {
    double* numbers;
    std::size_t count;
};

/// An array of records that are an x and a y each.
template <class Record> Points pointsOf(Record* records, std::size_t count) noexcept {
    static_assert(sizeof(Record) == 2 * sizeof(double));
    return {reinterpret_cast<double*>(records), count};
}

inline constexpr int blockPoints = 256;

/// Up to blockPoints points in the first-level cache, in an order of their own. What cannot be computed is NaN.
struct Block {
    alignas(64) double x[blockPoints], y[blockPoints];
    int count;
    // What a stage leaves for a later one. Not a multiple of 4096 bytes from x, where the processor would take a number
    // that is written for one that is read.
    alignas(64) double kept[blockPoints];
};

/// A point that did not come out of a block, on its way alone, in `double` with the arithmetic flags watched: a
/// register may overflow where `double` does not.
struct LonePoint {
    double x, y;
    double kept = 0;
    bool raised = false; // a stage raised an arithmetic exception
};

/// One step of a computation, compiled for a processor level; empty, it leaves points as they are. The constants are
/// read by these functions only.
struct StageCode {
    void (*run)(void const* constants, Block& block) noexcept = nullptr;
    void (*alone)(void const* constants, LonePoint& point) noexcept = nullptr;

    [[gnu::always_inline]] explicit operator bool() const { return run != nullptr; }
};
struct Stage {
    StageCode code;
    void const* constants;
};

/// Why a point has no result, where that is asked: it came in marked, infinite or NaN, or a stage lost it, the n-th
/// from 0 being lostInStage + n.
inline constexpr unsigned char cameOut = 0, cameInLost = 1, lostInStage = 2;

/// Whether a point is marked, of whatever type: its coordinates, or one of them, are DBL_MAX. Inlined at every level,
/// for no other level may get a level's own.
template <class Point> [[gnu::always_inline]] constexpr bool isMarked(Point const& point) {
    return point.x == DBL_MAX || point.y == DBL_MAX;
}

/// What is asked of a computation besides its results. A point that cannot be computed is lost: both of its coordinates
/// become DBL_MAX. A marked point may come in, too.
struct Marking {
    bool keepsMarked = false;         // what came in marked and finite stays as it is, and does not count
    unsigned char* reasons = nullptr; // one a point, cameOut before; where given, those of the lost points are set
};

/// What became of an array of points.
struct Outcome {
    bool lost = false;   // at least one point was marked
    bool failed = false; // at least one point raised an arithmetic exception
};

/// A level's driver. Stages must be of the same level.
using Convert = Outcome(Stage const* stages, std::size_t stageCount, Points points, Marking const& marking) noexcept;

} // namespace ZrProj::levels
