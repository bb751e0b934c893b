#include "cli/files/input_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj::Command {

InputFile::InputFile(std::string const& name)
    : m_title(name == "-" ? "<stdin>" : name),
      m_descriptor(name == "-" ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (m_descriptor < 0)
        m_error = errno;
}

InputFile::~InputFile() {
    if (m_descriptor > STDERR_FILENO)
        ::close(m_descriptor);
}

unsigned long long fileSize(std::string const& name) {
    struct stat status = {};
    int const failed = name == "-" ? fstat(STDIN_FILENO, &status) : stat(name.c_str(), &status);
    return failed || !S_ISREG(status.st_mode) ? 0 : static_cast<unsigned long long>(status.st_size);
}

unsigned long long totalSize(std::vector<std::string> const& names) {
    unsigned long long total = 0;
    for (std::string const& name : names) {
        unsigned long long const size = fileSize(name);
        if (size == 0)
            return 0;
        total += size;
    }
    return total;
}

} // namespace ZrProj::Command
