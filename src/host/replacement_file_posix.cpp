// Replacing files on POSIX systems.
#if !defined(_WIN32)

#include "host/replacement_file.h"

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj {
namespace {

std::string systemMessage(int error) {
    return std::generic_category().message(error);
}

/// What a link stands for, so that the link stays.
std::string behindLinks(std::string const& name) {
    std::error_code error;
    auto const real = std::filesystem::canonical(name, error);
    return error ? name : real.string();
}

/// Makes a new file beside another one, under a name that it completes; -1 where that fails. A new file has the rights
/// that the user's mask leaves.
int makeBeside(std::string& name) {
    static std::atomic<unsigned> made{0};
    std::string const beginning = name + '.' + std::to_string(getpid()) + '-';
    int descriptor = -1;
    do {
        name = beginning + std::to_string(made.fetch_add(1, std::memory_order_relaxed));
        descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    } while (descriptor < 0 && errno == EEXIST);
    return descriptor;
}

} // namespace

ReplacementFile::ReplacementFile(std::string const& original) : m_original(behindLinks(original)) {
    struct stat status = {};
    bool const isThere = stat(m_original.c_str(), &status) == 0;
    if (isThere && !S_ISREG(status.st_mode)) {
        m_reason = "it is no plain file";
        return;
    }
    std::string name = m_original;
    int const descriptor = makeBeside(name);
    if (descriptor < 0) {
        m_reason = systemMessage(errno);
        return;
    }
    m_name = std::move(name);
    if (isThere)
        static_cast<void>(fchmod(descriptor, status.st_mode & 07777));
    close(descriptor);
}

ReplacementFile::~ReplacementFile() {
    if (!m_name.empty())
        unlink(m_name.c_str());
}

bool ReplacementFile::commit() {
    int const descriptor = open(m_name.c_str(), O_RDONLY | O_CLOEXEC);
    bool const isSafe = descriptor >= 0 && fsync(descriptor) == 0;
    if (descriptor >= 0)
        close(descriptor);
    bool const isDone = isSafe && rename(m_name.c_str(), m_original.c_str()) == 0;
    if (isDone)
        m_name.clear();
    else
        m_reason = systemMessage(errno);
    return isDone;
}

} // namespace ZrProj

#endif
