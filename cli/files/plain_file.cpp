#include "cli/files/plain_file.h"

#include "cli/text/output.h"
#include "cli/text/text.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

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

void readLines(InputFile const& file, std::function<void(InputLine)> const& take) {
    if (file.descriptor() < 0)
        throw std::runtime_error("cannot open " + file.title() + ": " + systemMessage(file.error()));
    LineReader lines(file.descriptor());
    while (lines.read())
        while (auto const line = lines.next())
            take(*line);
    if (lines.error())
        throw std::runtime_error("cannot read " + file.title() + ": " + systemMessage(lines.error()));
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

namespace {

[[noreturn]] void fail(std::string const& name, int error) {
    throw std::runtime_error("cannot write " + inQuotes(name) + ": " + systemMessage(error));
}

/// What the link stands for, so that the link stays.
std::string target(std::string const& name) {
    std::error_code error;
    auto const real = std::filesystem::canonical(name, error);
    return error ? name : real.string();
}

mode_t modeOf(std::string const& original) {
    struct stat status = {};
    if (stat(original.c_str(), &status) == 0)
        return status.st_mode & 07777;
    mode_t const mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

ReplacementFile::ReplacementFile(std::string const& original)
    : m_original(target(original)), m_name(m_original + ".XXXXXX") {
    int const descriptor = mkstemp(m_name.data());
    if (descriptor < 0)
        fail(original, errno);
    fchmod(descriptor, modeOf(m_original));
    close(descriptor);
}

ReplacementFile::~ReplacementFile() {
    if (!m_committed)
        unlink(m_name.c_str());
}

void ReplacementFile::copyOriginal() {
    std::error_code error;
    std::filesystem::copy_file(m_original, m_name, std::filesystem::copy_options::overwrite_existing, error);
    if (error)
        fail(m_original, error.value());
}

void ReplacementFile::commit() {
    int const descriptor = open(m_name.c_str(), O_RDONLY | O_CLOEXEC);
    bool const safe = descriptor >= 0 && fsync(descriptor) == 0;
    if (descriptor >= 0)
        close(descriptor);
    if (!safe || rename(m_name.c_str(), m_original.c_str()) != 0)
        fail(m_original, errno);
    m_committed = true;
}

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
