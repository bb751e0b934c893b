// Files to read, and to put in another's place as a whole.
#pragma once

#include "cli/text/line_reader.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// A file to read, or standard input.
class InputFile {
public:
    /// name: "-" for standard input.
    explicit InputFile(std::string const& name);
    ~InputFile();
    InputFile(InputFile const&) = delete;
    InputFile& operator=(InputFile const&) = delete;

    /// The open file descriptor, negative when opening failed; error() tells why.
    int descriptor() const { return m_descriptor; }
    int error() const { return m_error; }
    /// What to call it in messages.
    std::string const& title() const { return m_title; }

private:
    std::string m_title;
    int m_descriptor;
    int m_error = 0;
};

/// A file's size in bytes; 0 where it is none that has one.
unsigned long long fileSize(std::string const& name);

/// The bytes of all files; 0 when one does not tell.
unsigned long long totalSize(std::vector<std::string> const& names);

/// Hands the lines of a file, "-" for standard input, to `take`. Throws std::runtime_error when it cannot be read.
void readLines(InputFile const& file, std::function<void(InputLine)> const& take);

/// A file written beside the one that it is to replace, so that there is always a whole one.
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

/// Puts a file with the text in the place of what was there before, which stays after a failure. What is no plain file,
/// such as a device or a pipe, is written to. Throws std::runtime_error.
void writeWholeFile(std::string const& name, std::string_view text);

} // namespace ZrProj::Command
