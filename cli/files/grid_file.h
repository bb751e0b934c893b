// Grid files of the NADCON layout, one at a time.
#pragma once

#include <zrproj/datum.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct GridHeader {
    std::int32_t columns = 0, rows = 0, values = 0;
    float xmin = 0, dx = 0, ymin = 0, dy = 0;

    bool operator==(GridHeader const&) const = default;
    /// Why no grid can look like this, "" where one can.
    std::string fault() const;
    /// Whether the grid shifts a point.
    bool covers(double longitude, double latitude) const;
    double east() const { return xmin + (columns - 1.0) * dx; }
    double north() const { return ymin + (rows - 1.0) * dy; }
};

class GridFile {
public:
    /// Throws UsageError when the file cannot be opened, or its header is none.
    explicit GridFile(std::string path);

    std::string const& path() const { return m_path; }
    GridHeader const& header() const { return m_header; }
    /// What the header says of the grid's origin, in print.
    std::string const& identification() const { return m_identification; }
    /// Reads a record: of row 0 the header, else the leading word and the values. Throws std::runtime_error when it is
    /// not there.
    std::vector<float> const& record(int row);

private:
    std::string m_path;
    std::ifstream m_file;
    GridHeader m_header;
    std::string m_identification;
    std::vector<float> m_record;
};

/// Where the library looks for grids: the directory of this program, with its closing separator.
std::string gridDirectory();

/// The name of the grid that a NADCON datum uses.
char const* gridName(DatumType type);

} // namespace ZrProj::Command
