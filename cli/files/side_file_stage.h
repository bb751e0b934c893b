// A directory that is there while its object is.
#pragma once

#include "cli/files/plain_file.h"

#include <filesystem>
#include <string>

namespace ZrProj::Command {

/// A directory that is there while its object is.
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

/// The library finds a side file by its image's name; here the user has named the file itself. So it is read and
/// written on a stage, where it has the name that belongs to the image "map.tif".
struct Stage {
    Stage(std::filesystem::path const& parent, char const* fileName)
        : directory(parent), file(directory.file(fileName)), image(directory.file("map.tif")) {}

    ScratchDirectory directory;
    std::string file, image;
};

/// A stage on which the user's file stands. Throws std::runtime_error where it is none that can be read.
struct ReadingStage : Stage {
    ReadingStage(std::string const& existing, char const* fileName);
};

/// A stage on which a file stands that is to replace the user's, in one step. Throws std::runtime_error where that
/// cannot be.
class WritingStage {
public:
    WritingStage(std::string const& file, char const* fileName);

    char const* file() const { return m_stage.file.c_str(); }
    char const* image() const { return m_stage.image.c_str(); }

    /// Puts what was written in its place. Throws std::runtime_error.
    void finish(bool written);

private:
    std::string m_name;
    ReplacementFile m_replacement;
    Stage m_stage;
};

} // namespace ZrProj::Command
