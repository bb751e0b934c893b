// Files of points in, files of points out: line by line, in blocks of rows.
#pragma once

#include "cli/points/conversion.h"
#include "cli/points/layout.h"
#include "cli/points/report.h"
#include "cli/points/rows.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// What becomes of the points that a RowStream reads.
class PointWork {
public:
    virtual ~PointWork() = default;

    /// A file's header with the names of the new columns.
    virtual std::string header(std::string_view line, Layout const& layout) const = 0;
    /// Converts the points of a block that are Good, in place.
    virtual void convert(PointBlock& block, Layout const& layout) = 0;
};

/// Runs files through, in memory that does not grow with them.
class RowStream {
public:
    /// files: "-" is standard input. The work, the files and the request must outlive the stream.
    RowStream(PointWork& work, std::vector<std::string> const& files, ColumnRequest const& request,
              RowWriter const& writer, Output& output);

    /// Returns the exit status, see Report::conclude. Throws UsageError for a header that cannot be used.
    int run(bool strict);

private:
    bool convertFile(std::string const& name);
    bool convertLines(LineReader& lines);
    void take(InputLine line);
    void takeFirstLine(InputLine& line);
    bool settleLayout(InputLine const& line);
    void flushRows();

    PointWork& m_work;
    std::vector<std::string> const& m_files;
    ColumnRequest const& m_request;
    RowWriter m_writer;
    Output& m_output;
    Progress m_progress;
    Report m_report;
    unsigned long long m_bytesBefore = 0; // read from earlier files

    Layout m_layout;        // of the present file
    bool m_settled = false; // whether that is sure
    std::optional<RowReader> m_reader;
    std::string m_fileTitle;
    std::uint64_t m_lineNumber = 0;
    std::string m_header; // written last

    std::vector<Row> m_rows;
    PointBlock m_block; // the rows' points
};

} // namespace ZrProj::Command
