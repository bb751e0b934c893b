#include "door/points.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <numeric>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity(),
                 notANumber = std::numeric_limits<double>::quiet_NaN();

/// Turns x, y to y, 2 x; has no result for an x of 13, and is far off for one of 14.
void turn(std::span<PROJPOINT> points, std::span<Reason> reasons) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (hasResult(reasons[i]))
            reasons[i] = points[i].x == 13 ? ZRPROJ_NOT_SHOWN : points[i].x == 14 ? ZRPROJ_FAR : ZRPROJ_CONVERTED;
        points[i] = {points[i].y, 2 * points[i].x};
    }
}

/// Memory with points in it, and bytes between them that nothing may change.
struct Layout {
    std::vector<unsigned char> bytes;
    std::size_t x, y; // where the first point's numbers are
    std::ptrdiff_t stride;

    Layout(std::size_t count, std::size_t firstX, std::size_t firstY, std::ptrdiff_t step)
        : bytes(1 << 16, 0xA5), x(firstX), y(firstY), stride(step) {
        for (std::size_t i = 0; i < count; ++i)
            put(i, {static_cast<double>(i), -static_cast<double>(i)});
    }
    unsigned char* at(std::size_t first, std::size_t i) {
        return bytes.data() + static_cast<std::ptrdiff_t>(first) + static_cast<std::ptrdiff_t>(i) * stride;
    }
    PROJPOINT get(std::size_t i) {
        PROJPOINT point;
        std::memcpy(&point.x, at(x, i), 8);
        std::memcpy(&point.y, at(y, i), 8);
        return point;
    }
    void put(std::size_t i, PROJPOINT const& point) {
        std::memcpy(at(x, i), &point.x, 8);
        std::memcpy(at(y, i), &point.y, 8);
    }
    PointArray array(std::size_t count, unsigned char* reasons) {
        return {reinterpret_cast<double*>(at(x, 0)), reinterpret_cast<double*>(at(y, 0)), stride, count, reasons};
    }
};

std::string complaintOf(PointArray const& points) {
    Answer const answer = check(points);
    EXPECT_EQ(answer.status, answer.message.empty() ? ZRPROJ_OK : ZRPROJ_BAD_ARGUMENT);
    return answer.message;
}

} // namespace

TEST(DoorPoints, LieInAnyLayout) {
    constexpr std::size_t count = 1200; // more than two blocks
    struct {
        std::size_t x, y;
        std::ptrdiff_t stride;
    } const layouts[] = {{0, 10000, 8}, {10003, 5, 8},      {0, 8, 16},          {8, 0, 16},
                         {3, 20, 29},   {40000, 50000, -8}, {30000, 30008, -16}, {40001, 40020, -31}};
    for (auto const& [x, y, stride] : layouts) {
        SCOPED_TRACE(testing::Message() << x << ' ' << y << ' ' << stride);
        Layout points(count, x, y, stride), expected(0, x, y, stride);
        for (std::size_t i = 0; i < count; ++i)
            expected.put(i, i == 13 ? PROJPOINT{notANumber, notANumber}
                                    : PROJPOINT{-static_cast<double>(i), 2.0 * static_cast<double>(i)});
        ASSERT_TRUE(convertArray(points.array(count, nullptr), 0, turn).isGood());
        EXPECT_EQ(points.bytes, expected.bytes);
    }
}

TEST(DoorPoints, HaveAReasonEach) {
    constexpr std::size_t count = 600;
    Layout points(count, 0, 8, 16);
    double const wild[] = {notANumber, infinity, -infinity, DBL_MAX, -DBL_MAX};
    for (std::size_t i = 0; i < std::size(wild); ++i) {
        points.put(20 + i, {wild[i], 1});
        points.put(520 + i, {1, wild[i]});
    }
    points.put(30, {std::nextafter(DBL_MAX, 0), 1});
    std::vector<unsigned char> reasons(count + 2, 200);
    ASSERT_TRUE(convertArray(points.array(count, &reasons[1]), 0, turn).isGood());
    for (std::size_t i = 0; i < count; ++i) {
        bool const isWild = (i >= 20 && i < 25) || (i >= 520 && i < 525);
        EXPECT_EQ(reasons[i + 1], isWild    ? ZRPROJ_NOT_FINITE
                                  : i == 13 ? ZRPROJ_NOT_SHOWN
                                  : i == 14 ? ZRPROJ_FAR
                                            : ZRPROJ_CONVERTED);
        auto const point = points.get(i);
        EXPECT_EQ(std::isnan(point.x) && std::isnan(point.y), !hasResult(reasons[i + 1])) << i;
    }
    EXPECT_EQ(reasons.front(), 200); // neither before nor behind its own
    EXPECT_EQ(reasons.back(), 200);
}

TEST(DoorPoints, AreRefusedWhereTheyCannotBe) {
    double numbers[4] = {1, 2, 3, 4};
    double *const x = numbers, *const y = numbers + 1;
    for (std::ptrdiff_t const stride : {8, -8, 16, 9, -1000}) // that an array ends is the caller's affair
        EXPECT_EQ(complaintOf({x, y, stride, 2, nullptr}), "") << stride;
    for (std::ptrdiff_t const stride : {0, 1, 7, -1, -7}) {
        EXPECT_NE(complaintOf({x, y, stride, 2, nullptr}), "") << stride;
        EXPECT_EQ(complaintOf({x, y, stride, 1, nullptr}), "") << stride; // there is no next one
    }
    EXPECT_EQ(complaintOf({nullptr, nullptr, 0, 0, nullptr}), "");
    EXPECT_NE(complaintOf({x, nullptr, 8, 1, nullptr}), "");
    EXPECT_NE(complaintOf({nullptr, y, 8, 1, nullptr}), "");
    for (std::ptrdiff_t const stride : {PTRDIFF_MAX, PTRDIFF_MIN})
        EXPECT_NE(complaintOf({x, y, stride, 2, nullptr}), "") << stride;
    EXPECT_NE(complaintOf({x, y, 8, SIZE_MAX / 8, nullptr}), "");

    EXPECT_FALSE(convertArray({x, y, 4, 2, nullptr}, 0, turn).isGood());
    EXPECT_EQ(numbers[0], 1);
    EXPECT_TRUE(checkThreads(-1).isGood());
    EXPECT_EQ(checkThreads(-2).status, ZRPROJ_BAD_ARGUMENT);
}

// Each point once, whatever the parts.
TEST(DoorPoints, AreSharedBetweenThreads) {
    for (std::size_t const count : {0U, 1U, 49999U, 50000U, 50001U, 75001U, 120001U})
        for (int const threads : {-1, 0, 1, 2, 3, 7, 1000}) {
            std::vector<unsigned char> visits(count);
            auto const visit = [&](std::size_t begin, std::size_t end) {
                for (std::size_t i = begin; i < end; ++i)
                    ++visits[i];
            };
            share(
                count, threads,
                [](void const* work, std::size_t begin, std::size_t end) {
                    (*static_cast<decltype(visit) const*>(work))(begin, end);
                },
                &visit);
            EXPECT_EQ(visits, std::vector<unsigned char>(count, 1)) << threads;
        }
}
