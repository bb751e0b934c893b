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
    void load(std::size_t begin, std::span<PROJPOINT> points) const {
        if (arePairs())
            std::memcpy(points.data(), at(x, begin), points.size_bytes());
        else
            for (std::size_t i = 0; i < points.size(); ++i)
                points[i] = load(begin + i);
    }
    void store(std::size_t begin, std::span<PROJPOINT const> points) const {
        if (arePairs())
            std::memcpy(at(x, begin), points.data(), points.size_bytes());
        else
            for (std::size_t i = 0; i < points.size(); ++i)
                store(begin + i, points[i]);
    }
    void store(std::size_t i, PROJPOINT const& point) const {
        std::memcpy(at(x, i), &point.x, sizeof(double));
        std::memcpy(at(y, i), &point.y, sizeof(double));
    }

private:
    bool arePairs() const { return stride == sizeof(PROJPOINT) && y == x + 1; }
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

/// The reasons of points as they come in; most blocks have none, and little is spent on them.
inline void tellInput(std::span<PROJPOINT const> points, std::span<Reason> reasons) {
    double const largest = std::numeric_limits<double>::max();
    bool good = true;
    for (PROJPOINT const& point : points)
        good &= (std::fabs(point.x) < largest) & (std::fabs(point.y) < largest);
    std::ranges::fill(reasons, Reason{ZRPROJ_CONVERTED});
    if (!good)
        std::ranges::transform(points, reasons.begin(), reasonOfInput);
}

/// Calls `convert(points, reasons)` for the points from `begin` to `end`, block by block; reasons of 16 and more become
/// NaN, NaN.
template <class Convert>
void convertRange(PointArray const& points, std::size_t begin, std::size_t end, Convert const& convert) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    std::array<PROJPOINT, blockPoints> room;
    std::array<Reason, blockPoints> why;
    for (; begin < end; begin += blockPoints) {
        auto const block = std::span(room).first(std::min(blockPoints, end - begin));
        auto const reasons = std::span(why).first(block.size());
        points.load(begin, block);
        tellInput(block, reasons);
        convert(block, reasons);
        if (!allHaveResults(reasons))
            for (std::size_t i = 0; i < block.size(); ++i)
                if (!hasResult(reasons[i]))
                    block[i] = {none, none};
        points.store(begin, block);
        if (points.reasons)
            std::ranges::copy(reasons, points.reasons + begin);
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
