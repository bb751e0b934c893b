// A directory that is there while its object is.
#pragma once

#include <filesystem>

namespace ZrProj::Command {

class ScratchDirectory {
public:
    /// Makes it within `parent`. Throws std::runtime_error.
    explicit ScratchDirectory(std::filesystem::path const& parent);
    ~ScratchDirectory();
    ScratchDirectory(ScratchDirectory const&) = delete;
    ScratchDirectory& operator=(ScratchDirectory const&) = delete;

    std::string file(char const* name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

/// Where the system keeps temporary files. Throws std::runtime_error where there is no such place.
std::filesystem::path temporaryDirectory();

/// The directory that a file is in.
std::filesystem::path directoryOf(std::string const& file);

} // namespace ZrProj::Command
