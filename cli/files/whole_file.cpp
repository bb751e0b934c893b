#include "cli/files/whole_file.h"

#include "cli/files/replacement_file.h"
#include "cli/text/output.h"
#include "cli/text/text.h"

#include <cerrno>
#include <filesystem>
#include <stdexcept>

#include <fcntl.h>
#include <unistd.h>

namespace ZrProj::Command {
namespace {

/// Returns an errno, 0 when all went well.
int writeInto(std::string const& name, std::string_view text) {
    int const file = open(name.c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return errno;
    Output output(file);
    output << text;
    int const error = output.flush() ? 0 : output.error();
    return close(file) != 0 && !error ? errno : error;
}

void check(int error, std::string const& name) {
    if (error)
        throw std::runtime_error("cannot write " + inQuotes(name) + ": " + systemMessage(error));
}

bool isReplaceable(std::string const& name) {
    std::error_code error;
    auto const status = std::filesystem::status(name, error);
    return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

} // namespace

void writeWholeFile(std::string const& name, std::string_view text) {
    if (!isReplaceable(name))
        return check(writeInto(name, text), name);
    ReplacementFile file(name);
    check(writeInto(file.name(), text), name);
    file.commit();
}

} // namespace ZrProj::Command
