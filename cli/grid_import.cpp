#include "cli/grid_import.h"

#include "cli/grid_file.h"
#include "cli/replacement_file.h"
#include "cli/text.h"
#include "cli/usage_error.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

/// The file of a pair with that ending, in small letters or capitals.
std::string findFile(std::string const& path, std::string_view small, std::string_view capital) {
    std::string const name = path + std::string(small);
    return std::filesystem::exists(name) ? name : path + std::string(capital);
}

void write(std::ofstream& out, std::vector<float> const& words) {
    out.write(reinterpret_cast<char const*>(words.data()), static_cast<std::streamsize>(words.size() * sizeof(float)));
}

/// Copies a grid, its values multiplied by `sign`.
void copyGrid(GridFile& from, std::string const& to, float sign) {
    std::ofstream out(to, std::ios::binary);
    write(out, from.record(0));
    for (int row = 1; row <= from.header().rows; ++row) {
        std::vector<float> values = from.record(row);
        for (float& value : values)
            value *= sign;
        values[0] = values[1];
        write(out, values);
    }
    if (!out.flush())
        throw std::runtime_error("cannot write " + inQuotes(to) + ": " + systemMessage(errno));
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
    ReplacementFile newLas(las), newLos(los);
    copyGrid(longitudes, newLas.name(), -1);
    copyGrid(latitudes, newLos.name(), 1);
    newLas.commit();
    newLos.commit();
}

} // namespace ZrProj::Command
