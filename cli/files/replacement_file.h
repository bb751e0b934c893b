// A file written beside the one that it is to replace, so that there is always a whole one.
#pragma once

#include <string>

namespace ZrProj::Command {

class ReplacementFile {
public:
    /// Makes an empty file in the directory of `original`, which need not exist. Throws std::runtime_error.
    explicit ReplacementFile(std::string const& original);
    /// Deletes the file unless it was committed.
    ~ReplacementFile();
    ReplacementFile(ReplacementFile const&) = delete;
    ReplacementFile& operator=(ReplacementFile const&) = delete;

    std::string const& name() const { return m_name; }

    /// Fills it with the original's bytes. Throws std::runtime_error.
    void copyOriginal();
    /// Puts the file, whatever was written to it, in the original's place. Throws std::runtime_error.
    void commit();

private:
    std::string m_original, m_name;
    bool m_committed = false;
};

} // namespace ZrProj::Command
