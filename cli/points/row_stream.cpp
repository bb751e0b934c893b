#include "cli/points/row_stream.h"

#include <algorithm>
#include <system_error>

namespace ZrProj::Command {
namespace {

constexpr std::size_t rowsPerBlock = 4096;
constexpr unsigned long long bytesPerThread = 1ULL << 20; // of a file for less of which a thread is not worth starting

/// As many as were asked for, or fewer for small files; 0 bytes are not known.
int threadsFor(unsigned long long bytes, int asked) {
    auto const most = static_cast<unsigned long long>(asked);
    return bytes == 0 ? asked : static_cast<int>(std::min(1 + bytes / bytesPerThread, most));
}

} // namespace

RowStream::RowStream(PointWork const& work, RowFiles const& files, RowWriter const& writer, Output& output)
    : m_work(work), m_files(files), m_writer(writer), m_output(output), m_progress(totalSize(files.names)),
      m_report(m_progress), m_source(files.names, files.columns, work) {}

int RowStream::run(bool strict) {
    std::vector<std::thread> others = startThreads(threadsFor(totalSize(m_files.names), m_files.threads) - 1);
    runThread();
    for (std::thread& other : others)
        other.join();
    if (m_failure)
        std::rethrow_exception(m_failure);
    return m_report.conclude(m_output, strict);
}

/// Where the machine grants no more threads, fewer will do.
std::vector<std::thread> RowStream::startThreads(int count) {
    std::vector<std::thread> threads;
    try {
        for (int i = 0; i < count; ++i)
            threads.emplace_back([this] { runThread(); });
    } catch (std::system_error const&) {
    }
    return threads;
}

void RowStream::runThread() noexcept {
    try {
        convertPieces();
    } catch (...) {
        std::lock_guard const lock(m_writing);
        fail();
    }
}

/// Keeps the exception in flight. For who holds m_writing.
void RowStream::fail() {
    if (!m_failure)
        m_failure = std::current_exception();
    m_isStopped = true;
}

/// Of a source that gives little at a time, as a person at a terminal does, a piece is written before the next one is
/// waited for; reading ahead would gain nothing, and not see that whoever reads the results has enough of them.
void RowStream::convertPieces() {
    for (;;) {
        std::unique_lock reading(m_reading);
        if (m_isStopped)
            return;
        auto const piece = m_source.next();
        if (!piece)
            return;
        std::uint64_t const turn = m_pieces++;
        if (!piece->isSmall())
            reading.unlock();
        writeInTurn(turn, *piece, convert(*piece));
    }
}

RowStream::Result RowStream::convert(RowPiece const& piece) const {
    Result result{std::string(piece.mark), {}, piece.unusable};
    try {
        if (!piece.unusable)
            for (RowSection const& section : piece.sections)
                convertSection(piece, section, result);
    } catch (...) {
        result.failure = std::current_exception();
    }
    return result;
}

void RowStream::convertSection(RowPiece const& piece, RowSection const& section, Result& result) const {
    result.text.reserve(piece.memory.size());
    result.text += section.header;
    RowReader reader(section.layout, m_files.columns);
    std::vector<Row> rows;
    rows.reserve(std::min(rowsPerBlock, section.end - section.begin));
    PointBlock block;
    for (std::size_t begin = section.begin; begin < section.end; begin += rowsPerBlock) {
        rows.clear();
        block.clear();
        for (std::size_t i = begin; i < std::min(begin + rowsPerBlock, section.end); ++i) {
            Row& row = rows.emplace_back(Row{piece.lines[i], piece.firstNumber + i, isVerbatim(piece.lines[i]), 0});
            RowPoint const point = row.verbatim ? RowPoint() : reader.read(row);
            if (!point.fault.empty())
                result.notes.push_back({row.number, PointState::Unread, point.fault});
            block.add(point.point);
        }
        m_work.convert(block, section.layout);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            BlockPoint const point = block[i];
            if (point.state != PointState::Good && point.state != PointState::Unread)
                result.notes.push_back({rows[i].number, point.state, ""});
            m_writer.write(result.text, rows[i], section.layout, point);
        }
    }
}

void RowStream::writeInTurn(std::uint64_t turn, RowPiece const& piece, Result const& result) {
    std::unique_lock lock(m_writing);
    m_turns.wait(lock, [&] { return m_written == turn; });
    try {
        if (!m_isStopped && !write(piece, result))
            m_isStopped = true;
    } catch (...) {
        fail();
    }
    ++m_written;
    m_turns.notify_all();
}

/// False when there is no sense in going on.
bool RowStream::write(RowPiece const& piece, Result const& result) {
    if (result.failure)
        std::rethrow_exception(result.failure);
    m_report.startFile(piece.file);
    if (!piece.failure.empty())
        m_report.failure(piece.failure);
    for (Result::Note const& note : result.notes)
        note.fault.empty() ? m_report.point(note.state, note.line) : m_report.badLine(note.line, note.fault);
    m_output << result.text;
    m_progress.show(piece.position);
    return m_output.flush();
}

} // namespace ZrProj::Command
