// The NTv2 layout: records of 16 bytes, a name of 8 characters and a value. Eleven of them for the file, then for each
// grid eleven and its nodes, then one named END.
//
// Source    National Transformation Version 2, Developer's Guide (Geodetic Survey of Canada). Longitudes and their
//           shifts are positive to the west; rows run from the south, nodes of a row from the east.
// Departs   a grid may stand before its parent. The unit of the file holds for limits, spacings and shifts, as it says.
#include "datum/ntv2.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>

namespace ZrProj::datum {
namespace {

constexpr std::size_t recordBytes = 16, headRecords = 11, nodeBytes = 16;
constexpr std::uint64_t mostBytes = std::uint64_t{1} << 35; // the arithmetic counts 2^32 words
constexpr double reachInCells = 1e-5;
constexpr double leastSpacing = 1e-6; // degrees: a decimetre

/// Beyond these, limits in degrees are no places on the Earth.
constexpr double greatestLatitude = 90.000001, greatestLongitude = 540, widest = 360.000001;

struct AngleUnit {
    std::string_view name;
    double perDegree;
};
constexpr AngleUnit units[] = {{"SECONDS", 3600}, {"MINUTES", 60}, {"DEGREES", 1}};

/// A text without what fills it up.
std::string_view trimmed(std::string_view text) {
    constexpr std::string_view filling(" \0", 2);
    auto const last = text.find_last_not_of(filling);
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

/// A text from a file, as a message may show it.
std::string shown(std::string_view text) {
    std::string result(trimmed(text));
    std::ranges::replace_if(
        result, [](char c) { return c < ' ' || c > '~'; }, '?');
    return '"' + result + '"';
}

/// A grid as the file has it; limits and spacings in degrees, positive to the west.
struct Head {
    std::size_t offset;
    std::string_view name, parent;
    double south, north, east, west, dy, dx;
    std::int64_t columns = 0, rows = 0;
};

class Reader {
public:
    explicit Reader(std::span<std::byte const> bytes) : bytes_(bytes) {}

    std::variant<GridSet, GridProblem> read() {
        if (readFileHead() && readGrids() && readEnd() && arrange())
            return std::move(set_);
        return GridProblem{std::move(problem_)};
    }

private:
    bool refuse(std::size_t offset, std::string const& what) {
        problem_ = "at byte " + std::to_string(offset) + ": " + what;
        return false;
    }

    bool has(std::size_t offset, std::uint64_t length) const {
        return offset <= bytes_.size() && length <= bytes_.size() - offset;
    }
    std::string_view text(std::size_t offset) const {
        return {reinterpret_cast<char const*>(bytes_.data()) + offset, 8};
    }
    template <class Word> Word word(std::size_t offset) const {
        Word value;
        std::memcpy(&value, bytes_.data() + offset, sizeof value);
        return set_.isSwapped ? swapped(value) : value;
    }
    template <class Word> static Word swapped(Word value) {
        auto* const bytes = reinterpret_cast<std::byte*>(&value);
        std::reverse(bytes, bytes + sizeof value);
        return value;
    }
    std::uint32_t count(std::size_t record) const { return word<std::uint32_t>(record + 8); }
    double degrees(std::size_t record) const {
        return std::bit_cast<double>(word<std::uint64_t>(record + 8)) / perDegree_;
    }

    /// Whether there is a head at `offset` whose records have these names; an empty name is not looked at.
    bool hasRecords(std::size_t offset, std::string_view const (&names)[headRecords]) {
        for (std::string_view const name : names) {
            if (!has(offset, recordBytes))
                return refuse(bytes_.size(), "the file ends where a record was expected" +
                                                 (name.empty() ? "" : ", " + std::string(name)));
            if (!name.empty() && trimmed(text(offset)) != name)
                return refuse(offset, "a record " + std::string(name) + " was expected, not " + shown(text(offset)));
            offset += recordBytes;
        }
        return true;
    }

    /// The byte order shows in the number of records, which is 11.
    bool readFileHead() {
        if (!hasRecords(0, {"NUM_OREC", "NUM_SREC", "NUM_FILE", "GS_TYPE", "", "", "", "", "", "", ""}))
            return false;
        if (bytes_.size() > mostBytes)
            return refuse(bytes_.size(), "the file is larger than 32 GiB");
        set_.isSwapped = count(0) != headRecords;
        for (std::size_t const record : {std::size_t{0}, recordBytes})
            if (count(record) != headRecords)
                return refuse(record + 8, "11 records were expected, in either byte order");
        grids_ = count(2 * recordBytes);
        if (grids_ == 0 || grids_ > bytes_.size() / recordBytes)
            return refuse(2 * recordBytes + 8, "a file of " + std::to_string(bytes_.size()) + " bytes cannot have " +
                                                   std::to_string(grids_) + " grids");
        return readUnit(3 * recordBytes + 8);
    }

    bool readUnit(std::size_t offset) {
        auto const unit = std::ranges::find(units, trimmed(text(offset)), &AngleUnit::name);
        if (unit == std::end(units))
            return refuse(offset, "SECONDS, MINUTES or DEGREES was expected, not " + shown(text(offset)));
        perDegree_ = unit->perDegree;
        set_.unit = std::numbers::pi / 180 / perDegree_;
        return true;
    }

    bool readGrids() {
        offset_ = headRecords * recordBytes;
        for (std::uint32_t i = 0; i < grids_; ++i)
            if (!readGrid())
                return false;
        return true;
    }

    bool readGrid() {
        if (!hasRecords(offset_, {"SUB_NAME", "PARENT", "", "", "S_LAT", "N_LAT", "E_LONG", "W_LONG", "LAT_INC",
                                  "LONG_INC", "GS_COUNT"}))
            return false;
        auto const record = [&](std::size_t n) { return offset_ + n * recordBytes; };
        Head head{offset_,
                  trimmed(text(offset_ + 8)),
                  trimmed(text(record(1) + 8)),
                  degrees(record(4)),
                  degrees(record(5)),
                  degrees(record(6)),
                  degrees(record(7)),
                  degrees(record(8)),
                  degrees(record(9))};
        std::uint64_t const nodes = count(record(10));
        if (!hasPlace(head) || !isCounted(head, nodes, record(10) + 8))
            return false;
        heads_.push_back(head);
        offset_ = record(headRecords) + nodes * nodeBytes;
        return true;
    }

    /// Whether the limits are on the Earth. Written so that what is no number fails.
    bool hasPlace(Head const& head) {
        auto const record = [&](std::size_t n) { return head.offset + n * recordBytes + 8; };
        if (!(head.south >= -greatestLatitude && head.south < head.north && head.north <= greatestLatitude))
            return refuse(record(4), "latitudes from the south to the north were expected");
        if (!(std::fabs(head.east) <= greatestLongitude && head.east < head.west && head.west - head.east <= widest))
            return refuse(record(6), "longitudes from the east to the west were expected");
        if (!(head.dy >= leastSpacing && head.dy <= head.north - head.south + 1e-9))
            return refuse(record(8), "a spacing of latitudes within the grid's was expected");
        if (!(head.dx >= leastSpacing && head.dx <= head.west - head.east + 1e-9))
            return refuse(record(9), "a spacing of longitudes within the grid's was expected");
        return true;
    }

    /// Takes the numbers of rows and columns from limits and spacings, and holds the number of nodes against them.
    bool isCounted(Head& head, std::uint64_t nodes, std::size_t offset) {
        double const rows = std::round((head.north - head.south) / head.dy) + 1;
        double const columns = std::round((head.west - head.east) / head.dx) + 1;
        if (!(rows * columns == static_cast<double>(nodes))) // below 2^32, so that a product that agrees is exact
            return refuse(offset, std::to_string(nodes) + " nodes do not agree with the limits and spacings");
        if (!has(offset + 8, nodes * nodeBytes))
            return refuse(bytes_.size(), "the file ends within the " + std::to_string(nodes) + " nodes of the grid " +
                                             shown(head.name) + ", which begin at byte " + std::to_string(offset + 8));
        head.rows = static_cast<std::int64_t>(rows);
        head.columns = static_cast<std::int64_t>(columns);
        return true;
    }

    bool readEnd() {
        if (!has(offset_, recordBytes))
            return refuse(bytes_.size(), "the file ends where a record END was expected");
        if (trimmed(text(offset_).substr(0, 4)) != "END")
            return refuse(offset_, "a record END was expected, not " + shown(text(offset_)));
        return true;
    }

    /// Puts parents before their children. What no way from a grid without a parent leads to, is in a circle.
    bool arrange() {
        std::multimap<std::string_view, std::size_t> children;
        std::map<std::string_view, std::size_t> uses;
        for (std::size_t i = 0; i < heads_.size(); ++i) {
            children.emplace(heads_[i].parent, i);
            ++uses[heads_[i].name];
        }
        for (auto const& head : heads_)
            if (head.name == withoutParent)
                return refuse(head.offset + 8, "a grid is called NONE, which says that there is no parent");
            else if (head.parent != withoutParent && uses[head.parent] != 1)
                return refuse(head.offset + recordBytes + 8,
                              std::string(uses[head.parent] == 0 ? "no grid is" : "several grids are") + " called " +
                                  shown(head.parent) + ", the parent of " + shown(head.name));
        placed_.assign(heads_.size(), false);
        place(children);
        auto const lost = std::ranges::find(placed_, false);
        if (lost == placed_.end())
            return true;
        auto const& head = heads_[static_cast<std::size_t>(lost - placed_.begin())];
        return refuse(head.offset + recordBytes + 8, "the grid " + shown(head.name) + " is among its own parents");
    }

    /// The rows from the roots down, each grid's children behind it; without recursion, since the depth is the file's.
    void place(std::multimap<std::string_view, std::size_t> const& children) {
        struct Open {
            std::multimap<std::string_view, std::size_t>::const_iterator next, end;
            int row;
        };
        std::vector<Open> open;
        auto const enter = [&](std::string_view name, int row) {
            auto const [first, last] = children.equal_range(name);
            open.push_back({first, last, row});
        };
        enter(withoutParent, -1);
        while (!open.empty()) {
            auto& siblings = open.back();
            if (siblings.next == siblings.end) {
                if (siblings.row >= 0)
                    set_.rows[static_cast<std::size_t>(siblings.row)].end = static_cast<int>(set_.rows.size());
                open.pop_back();
                continue;
            }
            std::size_t const i = (siblings.next++)->second;
            int const row = static_cast<int>(set_.rows.size()), depth = static_cast<int>(open.size()) - 1;
            placed_[i] = true;
            set_.rows.push_back(rowOf(heads_[i], siblings.row, depth));
            set_.depth = std::max(set_.depth, depth);
            enter(heads_[i].name, row);
        }
    }

    static GridRow rowOf(Head const& head, int parent, int depth) {
        return {.east = std::remainder(-head.east, 360.0),
                .south = head.south,
                .width = head.west - head.east,
                .height = head.north - head.south,
                .perDx = 1 / head.dx,
                .perDy = 1 / head.dy,
                .columns = static_cast<double>(head.columns),
                .rows = static_cast<double>(head.rows),
                .reach = reachInCells * (head.dx + head.dy),
                .firstWord = static_cast<double>((head.offset + headRecords * recordBytes) / sizeof(std::uint64_t)),
                .parent = parent,
                .depth = depth,
                .end = 0};
    }

    static constexpr std::string_view withoutParent = "NONE";

    std::span<std::byte const> bytes_;
    std::size_t offset_ = 0;
    std::uint32_t grids_ = 0;
    double perDegree_ = 1;
    std::vector<Head> heads_;
    std::vector<bool> placed_;
    GridSet set_;
    std::string problem_;
};

} // namespace

std::variant<GridSet, GridProblem> readNtv2(std::span<std::byte const> bytes) {
    Reader reader(bytes);
    auto set = reader.read();
    if (auto* const good = std::get_if<GridSet>(&set))
        good->words = reinterpret_cast<std::uint64_t const*>(bytes.data());
    return set;
}

} // namespace ZrProj::datum
