// Plain files on POSIX systems.
#if !defined(_WIN32)

#include "plain_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj {

namespace {

constexpr mode_t everybodys = 0666; // less what the user's mask takes away

/// The descriptor as a stream where its file is of a kind that `fits`; closes it otherwise.
template <class Predicate> Stream streamOf(int descriptor, char const* mode, Predicate fits) {
    if (descriptor < 0)
        return nullptr;
    struct stat info = {};
    bool const good = fstat(descriptor, &info) == 0 && fits(info.st_mode);
    Stream stream(good ? fdopen(descriptor, mode) : nullptr);
    if (!stream)
        close(descriptor);
    return stream;
}

bool isPlain(mode_t mode) {
    return S_ISREG(mode);
}

bool isPlainOrDevice(mode_t mode) {
    return S_ISREG(mode) || S_ISCHR(mode);
}

} // namespace

// Non-blocking, so that opening a pipe does not wait for its other end.
Stream openPlainFile(std::string const& name) noexcept {
    return streamOf(open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC), "r", isPlain);
}

Stream createFile(std::string const& name) noexcept {
    int const flags = O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return streamOf(open(name.c_str(), flags, everybodys), "w", isPlainOrDevice);
}

std::uint64_t fileSize(std::FILE& stream) noexcept {
    struct stat info = {};
    return fstat(fileno(&stream), &info) == 0 ? static_cast<std::uint64_t>(info.st_size) : 0;
}

Deletion deletePlainFile(std::string const& name) noexcept {
    struct stat info = {};
    if (lstat(name.c_str(), &info) == 0) {
        if (!S_ISREG(info.st_mode))
            return Deletion::NotPlain;
        if (unlink(name.c_str()) == 0)
            return Deletion::Done;
    }
    return errno == ENOENT ? Deletion::NothingThere : Deletion::Failed;
}

} // namespace ZrProj

#endif
