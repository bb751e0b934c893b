// Arrays of points in whatever layout a caller has them, a block at a time, on as many threads as wanted.
#pragma once

#include "door/answer.h"
#include "door/projection.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

namespace ZrProj::Door {

/// x and y of points, each next one `stride` bytes on; numbers need not be aligned.
struct PointArray {
    double *x, *y;
    std::ptrdiff_t stride;
    std::size_t count;
    unsigned char* reasons; // may be null

    PROJPOINT load(std::size_t i) const {
        PROJPOINT point;
        std::memcpy(&point.x, at(x, i), sizeof(double));
        std::memcpy(&point.y, at(y, i), sizeof(double));
        return point;
    }
    void store(std::size_t i, PROJPOINT const& point) const {
        std::memcpy(at(x, i), &point.x, sizeof(double));
        std::memcpy(at(y, i), &point.y, sizeof(double));
    }

private:
    void* at(double* first, std::size_t i) const {
        return reinterpret_cast<char*>(first) + static_cast<std::ptrdiff_t>(i) * stride;
    }
};

/// What is wrong with a caller's array or number of threads, if anything.
Answer check(PointArray const& points);
Answer checkThreads(int threads);

/// The smallest reason that keeps a point from having a result, of what came in.
inline Reason reasonOfInput(PROJPOINT const& point) {
    double const largest = std::numeric_limits<double>::max();
    return std::fabs(point.x) < largest && std::fabs(point.y) < largest ? ZRPROJ_CONVERTED : ZRPROJ_NOT_FINITE;
}

/// Calls `convert(points, reasons)` for the points from `begin` to `end`, block by block; reasons of 16 and more become
/// NaN, NaN.
template <class Convert>
void convertRange(PointArray const& points, std::size_t begin, std::size_t end, Convert const& convert) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    std::array<PROJPOINT, blockPoints> block;
    std::array<Reason, blockPoints> reasons;
    for (; begin < end; begin += blockPoints) {
        std::size_t const count = std::min(blockPoints, end - begin);
        for (std::size_t i = 0; i < count; ++i) {
            block[i] = points.load(begin + i);
            reasons[i] = reasonOfInput(block[i]);
        }
        convert(std::span(block).first(count), std::span(reasons).first(count));
        for (std::size_t i = 0; i < count; ++i)
            points.store(begin + i, hasResult(reasons[i]) ? block[i] : PROJPOINT{none, none});
        if (points.reasons)
            std::memcpy(points.reasons + begin, reasons.data(), count);
    }
}

/// Calls `work(begin, end)` for parts of 0 to `count`, on up to `threads` threads (-1: as many as there are processors)
/// where there is work enough for them. The caller's thread does its part, and what no other can be started for.
void share(std::size_t count, int threads, void (*work)(void const* context, std::size_t begin, std::size_t end),
           void const* context) noexcept;

/// convertRange for all points of a caller's array with which nothing is wrong.
template <class Convert> Answer convertArray(PointArray const& points, int threads, Convert const& convert) {
    if (Answer checked = check(points); !checked.isGood())
        return checked;
    struct Context {
        PointArray const& points;
        Convert const& convert;
    };
    Context const context{points, convert};
    share(
        points.count, threads,
        [](void const* given, std::size_t begin, std::size_t end) {
            auto const& [array, converter] = *static_cast<Context const*>(given);
            convertRange(array, begin, end, converter);
        },
        &context);
    return {};
}

} // namespace ZrProj::Door
