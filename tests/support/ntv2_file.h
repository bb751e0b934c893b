// NTv2 files made for tests: any grids inside each other, in either byte order.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace ZrProj::test {

/// A grid in the file's unit, longitudes and their shifts positive to the west; nodes counted from the south-east.
struct Ntv2Grid {
    std::string name, parent = "NONE";
    double south, east, dy, dx;
    int rows, columns;
    std::function<float(int row, int column)> north, west; // shifts

    double northEdge() const { return south + (rows - 1) * dy; }
    double westEdge() const { return east + (columns - 1) * dx; }
};

struct Ntv2File {
    std::vector<Ntv2Grid> grids;
    std::endian order = std::endian::little;
    std::string unit = "SECONDS";

    std::string bytes() const {
        std::string out;
        count(out, "NUM_OREC", 11);
        count(out, "NUM_SREC", 11);
        count(out, "NUM_FILE", grids.size());
        for (auto const& [name, value] : {std::pair<char const*, std::string>{"GS_TYPE", unit},
                                          {"VERSION", "test"},
                                          {"SYSTEM_F", "FROM"},
                                          {"SYSTEM_T", "TO"}})
            out += text(name) + text(value);
        for (char const* const name : {"MAJOR_F", "MINOR_F", "MAJOR_T", "MINOR_T"})
            number(out, name, 6378137);
        for (auto const& grid : grids)
            append(out, grid);
        return out + text("END") + std::string(8, '\0');
    }

    /// Where the head of a grid begins.
    std::size_t headOf(std::size_t grid) const {
        std::size_t offset = 11 * 16;
        for (std::size_t i = 0; i < grid; ++i)
            offset += 11 * 16 + static_cast<std::size_t>(grids[i].rows * grids[i].columns) * 16;
        return offset;
    }

    /// A value as the file has it.
    template <class T> std::string inOrder(T value) const {
        std::string result(sizeof value, '\0');
        std::memcpy(result.data(), &value, sizeof value);
        if (order != std::endian::native)
            std::ranges::reverse(result);
        return result;
    }

private:
    static std::string text(std::string value) {
        value.resize(8, ' ');
        return value;
    }
    void count(std::string& out, char const* name, std::size_t value) const {
        out += text(name) + inOrder(static_cast<std::int32_t>(value)) + std::string(4, '\0');
    }
    void number(std::string& out, char const* name, double value) const { out += text(name) + inOrder(value); }

    void append(std::string& out, Ntv2Grid const& grid) const {
        out += text("SUB_NAME") + text(grid.name) + text("PARENT") + text(grid.parent);
        out += text("CREATED") + text("") + text("UPDATED") + text("");
        number(out, "S_LAT", grid.south), number(out, "N_LAT", grid.northEdge());
        number(out, "E_LONG", grid.east), number(out, "W_LONG", grid.westEdge());
        number(out, "LAT_INC", grid.dy), number(out, "LONG_INC", grid.dx);
        count(out, "GS_COUNT", static_cast<std::size_t>(grid.rows * grid.columns));
        for (int row = 0; row < grid.rows; ++row)
            for (int column = 0; column < grid.columns; ++column)
                for (float const value : {grid.north(row, column), grid.west(row, column), 0.1F, 0.1F})
                    out += inOrder(value);
    }
};

} // namespace ZrProj::test
