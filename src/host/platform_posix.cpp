// The platform on POSIX systems with ELF modules.
#if !defined(_WIN32)

#include "platform.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include <filesystem>

namespace ZrProj {

namespace {

[[gnu::constructor]] void start() {
    onModuleStart();
}

[[gnu::destructor]] void end() {
    onModuleEnd();
}

/// A name in a directory that others may write to can be prepared by them: as a link to somebody's file, as a pipe, or
/// as a file of theirs to read along in.
bool isPlainFileOfOurs(int descriptor) {
    struct stat info = {};
    return fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode) && info.st_nlink == 1 && info.st_uid == geteuid();
}

} // namespace

char const* environmentVariable(char const* name) noexcept {
#if defined(__GLIBC__)
    return secure_getenv(name); // null in a program that runs with more rights than its user has
#else
    return std::getenv(name);
#endif
}

FileName logFileName() noexcept {
    FileName result = {};
    char const* const directory = environmentVariable("TMPDIR");
    bool const given = directory && *directory;
    int const length = std::snprintf(result.data(), result.size(), "%s/zrproj.log", given ? directory : "/tmp");
    return length >= 0 && length < static_cast<int>(result.size()) ? result : FileName{"/tmp/zrproj.log"};
}

std::string executableDirectory() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

PlainFile::PlainFile(std::string const& name) noexcept
    : handle_(open(name.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
    missing_ = handle_ < 0 && errno == ENOENT;
    struct stat info = {};
    open_ = handle_ >= 0 && fstat(static_cast<int>(handle_), &info) == 0 && S_ISREG(info.st_mode);
    if (open_)
        size_ = static_cast<std::uint64_t>(info.st_size);
}

PlainFile::~PlainFile() {
    if (handle_ >= 0)
        close(static_cast<int>(handle_));
}

bool PlainFile::read(std::uint64_t offset, void* buffer, std::size_t length) const noexcept {
    auto* out = static_cast<char*>(buffer);
    while (length > 0) {
        ssize_t const count = pread(static_cast<int>(handle_), out, length, static_cast<off_t>(offset));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        out += count;
        offset += static_cast<std::uint64_t>(count);
        length -= static_cast<std::size_t>(count);
    }
    return true;
}

void appendToFile(char const* fileName, std::string_view text) noexcept {
    // Non-blocking, so that a pipe without a reader is an error, not a wait.
    int const descriptor = open(fileName, O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return;
    // One write, so that lines of several processes stay whole.
    if (isPlainFileOfOurs(descriptor))
        static_cast<void>(!write(descriptor, text.data(), text.size()));
    close(descriptor);
}

std::array<char, 26> localTimeText() noexcept {
    std::array<char, 26> text = {};
    std::time_t const now = std::time(nullptr);
    return ctime_r(&now, text.data()) ? text : std::array<char, 26>{"\n"};
}

} // namespace ZrProj

#endif
