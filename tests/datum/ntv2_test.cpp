#include "datum/ntv2.h"

#include "support/ntv2_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <limits>
#include <span>

using namespace ZrProj;
using datum::GridProblem, datum::GridSet, datum::readNtv2;
using test::Ntv2File, test::Ntv2Grid;

namespace {

float zero(int, int) {
    return 0;
}

Ntv2Grid grid(std::string name, std::string parent, double south, double east, double step, int rows, int columns) {
    return {std::move(name), std::move(parent), south, east, step, step, rows, columns, zero, zero};
}

/// A grid, two in it, one in the second of those, and another one beside; children before their parents as well.
Ntv2File family(std::endian order = std::endian::little) {
    return {{grid("INNER", "SECOND", 37800, -3600, 900, 3, 3), grid("WIDE", "NONE", 36000, -7200, 3600, 3, 3),
             grid("FIRST", "WIDE", 36000, -7200, 1800, 3, 3), grid("SECOND", "WIDE", 37800, -3600, 1800, 3, 3),
             grid("BESIDE", "NONE", 0, 0, 3600, 2, 2)},
            order};
}

/// Reads bytes from memory that is aligned, and ends with them.
std::variant<GridSet, GridProblem> read(std::string const& bytes) {
    std::vector<std::uint64_t> words((bytes.size() + 7) / 8);
    std::ranges::copy(std::as_bytes(std::span(bytes)), std::as_writable_bytes(std::span(words)).begin());
    return readNtv2(std::as_bytes(std::span(words)).first(bytes.size()));
}

/// Why the bytes are refused; "" where they are not.
std::string refusal(std::string const& bytes) {
    auto const result = read(bytes);
    auto const* const problem = std::get_if<GridProblem>(&result);
    return problem ? problem->reason : "";
}

/// The family's bytes with others in the place of some.
std::string spoilt(std::size_t offset, std::string const& by, std::endian order = std::endian::little) {
    std::string bytes = family(order).bytes();
    return bytes.replace(offset, by.size(), by);
}

void expectRefused(std::size_t offset, std::string const& by, std::string const& reason) {
    EXPECT_EQ(refusal(spoilt(offset, by)).substr(0, reason.size()), reason);
}

std::string asCount(std::int32_t value) {
    return Ntv2File{}.inOrder(value);
}
std::string asNumber(double value) {
    return Ntv2File{}.inOrder(value);
}

constexpr double infinity = std::numeric_limits<double>::infinity(),
                 notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(Ntv2, PutsParentsBeforeTheirChildren) {
    for (auto const order : {std::endian::little, std::endian::big}) {
        auto const result = read(family(order).bytes());
        auto const& rows = std::get<GridSet>(result).rows;
        ASSERT_EQ(rows.size(), 5U);
        constexpr int parents[] = {-1, 0, 0, 2, -1}, ends[] = {4, 2, 4, 4, 5}, depths[] = {0, 1, 1, 2, 0};
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].parent, parents[i]) << i;
            EXPECT_EQ(rows[i].end, ends[i]) << i;
            EXPECT_EQ(rows[i].depth, depths[i]) << i;
        }
        EXPECT_EQ(rows[0].east, 2);
        EXPECT_EQ(rows[0].south, 10);
        EXPECT_EQ(rows[3].perDx, 4);
        EXPECT_EQ(rows[3].firstWord, (11 + 11) * 2); // the first grid of the file
        EXPECT_EQ(std::get<GridSet>(result).depth, 2);
    }
}

TEST(Ntv2, RefusesFilesThatAreCutShort) {
    for (auto const order : {std::endian::little, std::endian::big}) {
        std::string const whole = family(order).bytes();
        for (std::size_t length = 0; length < whole.size(); ++length) {
            auto const reason = refusal(whole.substr(0, length));
            ASSERT_TRUE(reason.starts_with("at byte " + std::to_string(length) + ": the file ends")) << reason;
        }
        EXPECT_EQ(refusal(whole + "whatever"), "");
    }
}

TEST(Ntv2, TellsWhereAFileIsDamaged) {
    std::size_t const first = family().headOf(0), second = family().headOf(1);
    expectRefused(0, "NUM_OREX", "at byte 0: a record NUM_OREC was expected, not \"NUM_OREX\"");
    expectRefused(8, asCount(12), "at byte 8: 11 records were expected");
    expectRefused(24, asCount(10), "at byte 24: 11 records were expected");
    for (std::int32_t const count : {0, -1, 100000})
        expectRefused(40, asCount(count), "at byte 40: a file of ");
    expectRefused(40, asCount(4), "at byte " + std::to_string(family().headOf(4)) + ": a record END was expected");
    expectRefused(40, asCount(6), "at byte " + std::to_string(family().headOf(5)) + ": a record SUB_NAME was expected");
    expectRefused(56, "PARSECS ", "at byte 56: SECONDS, MINUTES or DEGREES was expected, not \"PARSECS\"");
    expectRefused(first + 8, "NONE    ", "at byte " + std::to_string(first + 8) + ": a grid is called NONE");
    expectRefused(first + 24, "NOBODY\n ",
                  "at byte " + std::to_string(first + 24) + ": no grid is called \"NOBODY?\", the parent of \"INNER\"");
    expectRefused(first + 24, "INNER   ", "at byte " + std::to_string(first + 24) + ": the grid \"INNER\" is among");
    expectRefused(second + 24, "INNER   ", "at byte "); // WIDE in INNER in SECOND in WIDE
    expectRefused(second + 8, "SECOND  ", "at byte " + std::to_string(first + 24) + ": several grids are called");
}

TEST(Ntv2, RefusesCountsAndLimitsThatCannotBe) {
    std::size_t const head = family().headOf(0);
    auto const value = [&](std::size_t record) { return head + record * 16 + 8; };
    auto const at = [&](std::size_t record) { return "at byte " + std::to_string(value(record)) + ": "; };
    for (std::int32_t const count : {0, 1, 8, 10, -1, INT32_MIN, INT32_MAX})
        expectRefused(value(10), asCount(count), at(10));
    for (double const bad : {notANumber, infinity, -infinity, DBL_MAX, -DBL_MAX}) {
        for (std::size_t const record : {4U, 5U})
            expectRefused(value(record), asNumber(bad), at(4));
        for (std::size_t const record : {6U, 7U})
            expectRefused(value(record), asNumber(bad), at(6));
        for (std::size_t const record : {8U, 9U})
            expectRefused(value(record), asNumber(bad), at(record));
    }
    for (double const spacing : {0.0, -900.0, 5e-324, 1e-300, 1e5})
        expectRefused(value(8), asNumber(spacing), at(8));
    expectRefused(value(9), asNumber(0.004), at(10)); // 450001 columns
    // Counts whose product is the file's, but a file has not that many bytes: 65536 * 65535 nodes.
    std::string huge = spoilt(value(10), asCount(static_cast<std::int32_t>(65536U * 65535U)));
    huge.replace(value(8), 8, asNumber(1800.0 / 65535)).replace(value(9), 8, asNumber(1800.0 / 65534));
    EXPECT_TRUE(refusal(huge).starts_with("at byte " + std::to_string(huge.size()) + ": the file ends within the "));
}
