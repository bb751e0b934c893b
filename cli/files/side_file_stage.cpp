#include "cli/files/side_file_stage.h"

#include "cli/text/text.h"

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp

#include <cerrno>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace ZrProj::Command {

ScratchDirectory::ScratchDirectory(std::filesystem::path const& parent) {
    std::string name = (parent / ".zrproj-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("cannot write in " + inQuotes(parent.string()) + ": " + systemMessage(errno));
    m_path = name;
}

ScratchDirectory::~ScratchDirectory() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

std::filesystem::path temporaryDirectory() {
    std::error_code error;
    std::filesystem::path directory = std::filesystem::temp_directory_path(error);
    if (error)
        throw std::runtime_error("there is no directory for temporary files; set TMPDIR to one");
    return directory;
}

std::filesystem::path directoryOf(std::string const& file) {
    std::filesystem::path const parent = std::filesystem::path(file).parent_path();
    return parent.empty() ? "." : parent;
}

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
