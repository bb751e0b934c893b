#include "cli/files/scratch_directory.h"

#include "cli/text/text.h"

#include <cerrno>
#include <stdexcept>
#include <string>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp

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

} // namespace ZrProj::Command
