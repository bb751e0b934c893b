// Files of points in, files of points out.
#pragma once

#include "cli/input_file.h"
#include "cli/layout.h"
#include "cli/progress.h"
#include "cli/projection_options.h"
#include "cli/report.h"
#include "cli/rows.h"
#include "cli/transform.h"

#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

struct ConversionJob {
    ProjectionChoice projection; // not for Direction::Datum
    std::optional<DatumShift> shift;
    ColumnRequest columns; // with the direction, and --units
    int decimals = 0;
    bool strict = false;
    std::vector<std::string> files; // "-" is standard input

    /// The unit of projected coordinates: what --units says, else the file's own, which may be null, else that of
    /// the file of --like, else metres.
    LengthUnit const& unit(LengthUnit const* ofFile) const;
};

/// Runs one command line's files through, in blocks of lines, in memory that does not grow with the input.
class Conversion {
public:
    /// Throws UsageError when the projection or the datums cannot convert.
    Conversion(ConversionJob job, Output& output);

    /// Returns the exit status. Throws UsageError for a header that cannot be used.
    int run();

private:
    bool convertFile(std::string const& name);
    bool convertLines(LineReader& reader);
    void take(InputLine line);
    void takeFirstLine(InputLine& line);
    bool settleLayout(InputLine const& line);
    void writeHeader(InputLine const& line);
    void flushRows();
    bool flushOutput();

    ConversionJob m_job;
    Output& m_output;
    Transform m_transform;
    unsigned long long m_bytesBefore = 0; // read from earlier files
    Progress m_progress;
    Report m_report;
    RowWriter m_writer;

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
