#include "cli/grid_import.h"

#include "cli/grid_file.h"
#include "cli/text.h"
#include "cli/usage_error.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj::Command {
namespace {

/// A new file that takes its name only when it is whole; until then it is gone with the object.
class NewFile {
public:
    explicit NewFile(std::string name) : m_name(std::move(name)), m_temporary(m_name + ".XXXXXX") {
        m_file = ::mkstemp(m_temporary.data());
        if (m_file < 0)
            fail();
    }
    ~NewFile() {
        if (m_file >= 0)
            ::close(m_file);
        if (!m_kept)
            ::unlink(m_temporary.c_str());
    }
    NewFile(NewFile const&) = delete;
    NewFile& operator=(NewFile const&) = delete;

    void write(std::vector<float> const& words) {
        auto const* bytes = reinterpret_cast<char const*>(words.data());
        for (std::size_t left = words.size() * sizeof(float); left > 0;) {
            ssize_t const count = ::write(m_file, bytes, left);
            if (count < 0 && errno != EINTR)
                fail();
            bytes += std::max<ssize_t>(count, 0);
            left -= static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        }
    }
    void close() {
        constexpr mode_t forAll = 0644;
        if (::fchmod(m_file, forAll) != 0 || ::fsync(m_file) != 0 || ::close(std::exchange(m_file, -1)) != 0)
            fail();
    }
    void keep() {
        if (::rename(m_temporary.c_str(), m_name.c_str()) != 0)
            fail();
        m_kept = true;
    }

private:
    [[noreturn]] void fail() const { throw std::runtime_error("cannot write " + m_name + ": " + systemMessage(errno)); }

    std::string m_name, m_temporary;
    int m_file = -1;
    bool m_kept = false;
};

/// The file of a pair with that ending, in small letters or capitals.
std::string findFile(std::string const& path, std::string_view small, std::string_view capital) {
    std::string const name = path + std::string(small);
    return std::filesystem::exists(name) ? name : path + std::string(capital);
}

/// Copies a grid, its values multiplied by `sign`.
void copyGrid(GridFile& from, NewFile& to, float sign) {
    to.write(from.record(0));
    for (int row = 1; row <= from.header().rows; ++row) {
        std::vector<float> values = from.record(row);
        for (float& value : values)
            value *= sign;
        values[0] = values[1];
        to.write(values);
    }
    to.close();
}

} // namespace

void importGrids(GridImport const& job) {
    GridFile latitudes(findFile(job.source, ".las", ".LAS")), longitudes(findFile(job.source, ".los", ".LOS"));
    if (!(latitudes.header() == longitudes.header()))
        throw UsageError("the headers of " + latitudes.path() + " and " + longitudes.path() +
                         " differ; they are no pair");
    std::string const las = job.destination + ".LAS", los = job.destination + ".LOS";
    for (std::string const& name : {las, los})
        if (!job.replace && std::filesystem::exists(name))
            throw UsageError(name + " is there already; --replace replaces it");
    NewFile newLas(las), newLos(los);
    copyGrid(longitudes, newLas, -1);
    copyGrid(latitudes, newLos, 1);
    newLas.keep();
    newLos.keep();
}

} // namespace ZrProj::Command
