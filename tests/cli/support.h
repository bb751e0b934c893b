// What the tests of the command's readers share.
#pragma once

#include "support/temporary_directory.h"

#include <fcntl.h>
#include <unistd.h>

namespace ZrProj::Command {

/// A file with this text, open for reading.
class TextFile {
public:
    explicit TextFile(std::string const& text) {
        std::ofstream(name(), std::ios::binary) << text;
        m_descriptor = open(name().c_str(), O_RDONLY);
    }
    ~TextFile() { close(m_descriptor); }
    TextFile(TextFile const&) = delete;
    TextFile& operator=(TextFile const&) = delete;

    std::string name() const { return m_directory.file("text"); }
    int descriptor() const { return m_descriptor; }

private:
    TemporaryDirectory m_directory;
    int m_descriptor = -1;
};

/// What an error of this type says that the call ends with; "" where it does not.
template <class Error, class Call> std::string messageOf(Call call) {
    try {
        call();
    } catch (Error const& error) {
        return error.what();
    }
    return "";
}

} // namespace ZrProj::Command
