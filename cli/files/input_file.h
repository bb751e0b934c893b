// A file to read, or standard input.
#pragma once

#include <string>
#include <vector>

namespace ZrProj::Command {

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

} // namespace ZrProj::Command
