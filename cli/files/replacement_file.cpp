#include "cli/files/replacement_file.h"

#include "cli/text/text.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj::Command {
namespace {

[[noreturn]] void fail(std::string const& name, int error) {
    throw std::runtime_error("cannot write " + inQuotes(name) + ": " + systemMessage(error));
}

/// What the link stands for, so that the link stays.
std::string target(std::string const& name) {
    std::error_code error;
    auto const real = std::filesystem::canonical(name, error);
    return error ? name : real.string();
}

mode_t modeOf(std::string const& original) {
    struct stat status = {};
    if (stat(original.c_str(), &status) == 0)
        return status.st_mode & 07777;
    mode_t const mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

ReplacementFile::ReplacementFile(std::string const& original)
    : m_original(target(original)), m_name(m_original + ".XXXXXX") {
    int const descriptor = mkstemp(m_name.data());
    if (descriptor < 0)
        fail(original, errno);
    fchmod(descriptor, modeOf(m_original));
    close(descriptor);
}

ReplacementFile::~ReplacementFile() {
    if (!m_committed)
        unlink(m_name.c_str());
}

void ReplacementFile::copyOriginal() {
    std::error_code error;
    std::filesystem::copy_file(m_original, m_name, std::filesystem::copy_options::overwrite_existing, error);
    if (error)
        fail(m_original, error.value());
}

void ReplacementFile::commit() {
    int const descriptor = open(m_name.c_str(), O_RDONLY | O_CLOEXEC);
    bool const safe = descriptor >= 0 && fsync(descriptor) == 0;
    if (descriptor >= 0)
        close(descriptor);
    if (!safe || rename(m_name.c_str(), m_original.c_str()) != 0)
        fail(m_original, errno);
    m_committed = true;
}

} // namespace ZrProj::Command
