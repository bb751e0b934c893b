#include "cli/whole_file.h"

#include "cli/output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj::Command {
namespace {

/// What the process would give a file that it makes anew.
mode_t usualMode() {
    mode_t const mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

int writeAndClose(int file, std::string_view text) {
    Output output(file);
    output << text;
    int error = output.flush() ? 0 : output.error();
    if (!error && fchmod(file, usualMode()) != 0)
        error = errno;
    if (close(file) != 0 && !error)
        error = errno;
    return error;
}

} // namespace

int writeWholeFile(std::string const& name, std::string_view text) {
    std::string temporary = name + ".XXXXXX";
    int const file = mkstemp(temporary.data());
    if (file < 0)
        return errno;
    int error = writeAndClose(file, text);
    if (!error && std::rename(temporary.c_str(), name.c_str()) != 0)
        error = errno;
    if (error)
        unlink(temporary.c_str());
    return error;
}

} // namespace ZrProj::Command
