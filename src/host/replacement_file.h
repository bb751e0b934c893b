// A file written beside the one that it is to replace, so that there is always a whole one.
#pragma once

#include <string>

namespace ZrProj {

class ReplacementFile {
public:
    /// Makes an empty file in the directory of `original`, which need not exist; of a link, the file that it stands for
    /// is replaced. Pipes, devices and directories are not replaced.
    explicit ReplacementFile(std::string const& original);
    /// Deletes the file unless it was committed.
    ~ReplacementFile();
    ReplacementFile(ReplacementFile const&) = delete;
    ReplacementFile& operator=(ReplacementFile const&) = delete;

    /// Where to write; "" where the file could not be made.
    std::string const& name() const { return m_name; }
    /// Puts the file, whatever was written to it, in the original's place, once it is on the disk.
    bool commit();
    /// Why the file could not be made or committed, in the system's words.
    std::string const& reason() const { return m_reason; }

private:
    std::string m_original, m_name, m_reason;
};

} // namespace ZrProj
