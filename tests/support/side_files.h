// Side files in a directory of a test's own.
#pragma once

#include "support/temporary_directory.h"

#include <zrproj/zrproj.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#if !defined(_WIN32)
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ZrProj::test {

/// A packed record's field, which no reference may be bound to.
template <class T> T value(T field) {
    return field;
}

inline void writeFile(std::string const& name, std::string_view bytes) {
    std::ofstream(name, std::ios::binary) << bytes;
}

/// A georeference whose controls go with it.
struct Georef : GEOREF {
    Georef() : GEOREF() {}
    ~Georef() { RefFreeControls(this); }
    Georef(Georef const&) = delete;
    Georef& operator=(Georef const&) = delete;
};

#if !defined(_WIN32)
/// While it lives, no file grows beyond so many bytes: a full disk, for root too.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &saved_);
        rlimit const limit{bytes, saved_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(FullDisk const&) = delete;
    FullDisk& operator=(FullDisk const&) = delete;

private:
    rlimit saved_ = {};
    void (*handler_)(int);
};

/// While it lives, a directory cannot be written to: root, whom permissions do not stop, is nobody meanwhile.
class ReadOnlyDirectory {
public:
    explicit ReadOnlyDirectory(std::filesystem::path const& path) : path_(path) {
        chmod(path.c_str(), 0555);
        if (geteuid() == 0)
            changed_ = seteuid(65534) == 0;
    }
    ~ReadOnlyDirectory() {
        if (changed_)
            static_cast<void>(!seteuid(0));
        chmod(path_.c_str(), 0755);
    }
    ReadOnlyDirectory(ReadOnlyDirectory const&) = delete;
    ReadOnlyDirectory& operator=(ReadOnlyDirectory const&) = delete;

private:
    std::filesystem::path path_;
    bool changed_ = false;
};
#endif

} // namespace ZrProj::test
