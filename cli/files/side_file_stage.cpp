#include "cli/files/side_file_stage.h"

#include "cli/text/text.h"

#include <cerrno>
#include <cstdio>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

/// The name as it is. Throws std::runtime_error for pipes and devices, which are neither waited for nor replaced.
std::string const& plain(std::string const& file, char const* what) {
    std::error_code error;
    if (std::filesystem::exists(file, error) && !std::filesystem::is_regular_file(file, error))
        throw std::runtime_error(std::string("cannot ") + what + ' ' + inQuotes(file) + ": it is no plain file");
    return file;
}

} // namespace

ReadingStage::ReadingStage(std::string const& existing, char const* fileName) : Stage(temporaryDirectory(), fileName) {
    if (std::FILE* const readable = std::fopen(plain(existing, "read").c_str(), "r"))
        static_cast<void>(std::fclose(readable));
    else
        throw std::runtime_error("cannot read " + inQuotes(existing) + ": " + systemMessage(errno));
    std::filesystem::create_symlink(std::filesystem::absolute(existing), file);
}

WritingStage::WritingStage(std::string const& file, char const* fileName)
    : m_name(file), m_replacement(plain(file, "write")), m_stage(directoryOf(m_replacement.name()), fileName) {
    std::filesystem::create_symlink(std::filesystem::absolute(m_replacement.name()), m_stage.file);
    errno = 0;
}

void WritingStage::finish(bool written) {
    int const reason = errno;
    if (!written || std::filesystem::file_size(m_replacement.name()) == 0)
        throw std::runtime_error("cannot write " + inQuotes(m_name) + (reason ? ": " + systemMessage(reason) : ""));
    m_replacement.commit();
}

} // namespace ZrProj::Command
