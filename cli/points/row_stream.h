// Files of points in, files of points out: piece by piece, by several threads, in the order of the lines.
#pragma once

#include "cli/points/conversion.h"
#include "cli/points/layout.h"
#include "cli/points/report.h"
#include "cli/points/row_source.h"
#include "cli/points/rows.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace ZrProj::Command {

/// What becomes of the points that a RowStream reads. Its threads share the work.
class PointWork : public RowHeader {
public:
    /// Converts the points of a block that are Good, in place.
    virtual void convert(PointBlock& block, Layout const& layout) const = 0;
};

/// What a RowStream reads, and how.
struct RowFiles {
    std::vector<std::string> const& names; // "-" is standard input
    ColumnRequest const& columns;
    int threads; // at least 1
};

/// Runs files through, in memory that does not grow with them. Every thread reads the next piece when it is free,
/// converts it, and writes the result when those of all earlier pieces are written: what comes out does not depend on
/// the number of threads.
class RowStream {
public:
    /// The work and the files must outlive the stream.
    RowStream(PointWork const& work, RowFiles const& files, RowWriter const& writer, Output& output);

    /// Returns the exit status, see Report::conclude. Throws UsageError for a header that cannot be used.
    int run(bool strict);

private:
    /// What came of a piece.
    struct Result {
        struct Note {
            std::uint64_t line;
            PointState state;
            std::string fault; // why the line is Unread
        };

        std::string text;
        std::vector<Note> notes; // in the order of lines
        std::exception_ptr failure;
    };

    std::vector<std::thread> startThreads(int count);
    void runThread() noexcept;
    void convertPieces();
    void fail();
    Result convert(RowPiece const& piece) const;
    void convertSection(RowPiece const& piece, RowSection const& section, Result& result) const;
    void writeInTurn(std::uint64_t turn, RowPiece const& piece, Result const& result);
    bool write(RowPiece const& piece, Result const& result);

    PointWork const& m_work;
    RowFiles m_files;
    RowWriter m_writer;
    Output& m_output;
    Progress m_progress;
    Report m_report;

    std::mutex m_reading;
    RowSource m_source;
    std::uint64_t m_pieces = 0; // read so far

    std::mutex m_writing;
    std::condition_variable m_turns;
    std::uint64_t m_written = 0; // pieces so far
    std::exception_ptr m_failure;

    std::atomic<bool> m_isStopped = false;
};

} // namespace ZrProj::Command
