// Profiles on POSIX systems. A new text goes into a file of its own beside the profile, is synced, and replaces
// the profile; a file of locks beside it keeps writers apart (the profile itself is replaced, and a lock with it).
#if !defined(_WIN32)

#include "host/platform.h"
#include "host/profile_text.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj {
namespace {

constexpr std::size_t largest = std::size_t{1} << 20;

class Descriptor {
public:
    explicit Descriptor(int value) : value_(value) {}
    ~Descriptor() { shut(); }
    Descriptor(Descriptor const&) = delete;
    Descriptor& operator=(Descriptor const&) = delete;

    int value() const { return value_; }
    explicit operator bool() const { return value_ >= 0; }
    /// Closes the file. Returns false when that tells of a write that failed.
    bool shut() { return value_ < 0 || close(std::exchange(value_, -1)) == 0; }

private:
    int value_;
};

/// A file of locks is made for those who may write to the profile, but under the mask of who comes first. For a lock it
/// need only be read; network file systems want to write, so that is tried first.
int openLocks(std::string const& name) {
    constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    int const file = open(name.c_str(), O_RDWR | O_CREAT | flags, 0666);
    return file < 0 && errno == EACCES ? open(name.c_str(), O_RDONLY | flags) : file;
}

/// Waits for the lock; false when it does not come free in time.
bool lock(Descriptor const& file) {
    using namespace std::chrono;
    auto const deadline = steady_clock::now() + seconds(10);
    while (flock(file.value(), LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(milliseconds(2));
    }
    return true;
}

/// The file that a name stands for, behind links; empty for links in a circle.
std::string behindLinks(std::string const& name) {
    constexpr int mostLinks = 40;
    std::error_code error;
    std::filesystem::path path = name;
    for (int i = 0; i < mostLinks; ++i) {
        if (!std::filesystem::is_symlink(path, error))
            return path.string();
        path = path.parent_path() / std::filesystem::read_symlink(path, error); // an absolute one replaces all of it
    }
    return {};
}

std::optional<std::string> readText(std::string const& name) {
    PlainFile const file(name);
    if (file.isMissing())
        return std::string();
    if (!file.isOpen() || file.size() > largest)
        return std::nullopt;
    std::string text(file.size(), '\0');
    return file.read(0, text.data(), text.size()) ? std::optional(std::move(text)) : std::nullopt;
}

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        ssize_t const count = write(file, text.data(), text.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// Gives the new file the owner, the group and the mode of the one that it is to replace. Where it cannot have the
/// owner, it is our own; where it cannot have the group, ours gets no rights.
bool takeOver(struct stat const& old, int file) {
    constexpr auto asItIs = static_cast<uid_t>(-1);
    bool const sameGroup = fchown(file, old.st_uid, old.st_gid) == 0 || fchown(file, asItIs, old.st_gid) == 0;
    return fchmod(file, old.st_mode & (sameGroup ? 07777 : 07707)) == 0;
}

/// Writes a file whole, so that it is on the disk.
bool writeSynced(std::string const& name, std::string_view text, struct stat const* old) {
    constexpr mode_t newMode = 0666; // as the user's mask has it
    unlink(name.c_str());            // left by a writer that was killed
    Descriptor file(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, old ? 0600 : newMode));
    return file && writeAll(file.value(), text) && (!old || takeOver(*old, file.value())) && fsync(file.value()) == 0 &&
           file.shut();
}

/// What a crash of the machine leaves of a rename depends on this; what the rename did for everybody else does not.
void syncDirectory(std::string const& name) {
    std::filesystem::path const directory = std::filesystem::path(name).parent_path();
    Descriptor const file(open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file)
        static_cast<void>(fsync(file.value()));
}

/// To be called under the lock, which makes the name of the temporary file this writer's own.
bool replaceText(std::string const& name, std::string_view text) {
    struct stat info = {};
    bool const exists = stat(name.c_str(), &info) == 0;
    std::string const temporary = name + ".tmp";
    if (!writeSynced(temporary, text, exists ? &info : nullptr) || rename(temporary.c_str(), name.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    syncDirectory(name);
    return true;
}

void makeDirectoryOf(std::string const& profile) {
    std::filesystem::path const directory = std::filesystem::path(profile).parent_path();
    for (auto const& path : {directory.parent_path(), directory})
        mkdir(path.c_str(), 0700);
}

} // namespace

std::string defaultProfileName() {
    char const* const settings = environmentVariable("XDG_CONFIG_HOME");
    if (settings && *settings == '/')
        return std::string(settings) + "/zrproj/zrproj.ini";
    char const* const home = environmentVariable("HOME");
    return home && *home ? std::string(home) + "/.config/zrproj/zrproj.ini" : std::string();
}

std::optional<std::vector<ProfileEntry>> readProfile(std::string const& file, std::string_view section) {
    auto const text = readText(file);
    return text ? std::optional(profileEntries(*text, section)) : std::nullopt;
}

bool writeProfile(std::string const& file, std::string_view section, std::string_view key,
                  std::optional<std::string_view> value) {
    if (value && file == defaultProfileName())
        makeDirectoryOf(file);
    std::string const name = behindLinks(file);
    Descriptor const locks(name.empty() ? -1 : openLocks(name + ".lock"));
    if (!locks || !lock(locks))
        return false;
    auto const text = readText(name);
    if (!text)
        return false;
    auto const edited = value ? withEntry(*text, section, key, *value) : withoutEntry(*text, section, key);
    return edited && edited->size() <= largest && replaceText(name, *edited);
}

} // namespace ZrProj

#endif
