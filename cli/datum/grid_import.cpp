#include "cli/datum/grid_import.h"

#include "cli/datum/grid_fit.h"
#include "cli/files/replacement_file.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

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

/// Refuses files that would be overwritten by what is made of them, and those that are no pair to be imported.
void checkPair(GridFile& latitudes, GridFile& longitudes, std::array<std::string, 2> const& destinations) {
    std::error_code error; // what is not there is no file's equal
    for (GridFile const* source : {&latitudes, &longitudes})
        for (std::string const& name : destinations)
            if (std::filesystem::equivalent(source->path(), name, error))
                throw UsageError(source->path() + " is itself what would be written; give another --to or --name");
    if (!(latitudes.header() == longitudes.header()))
        throw UsageError("the headers of " + latitudes.path() + " and " + longitudes.path() +
                         " differ; they are no pair");
    Arrangement const found = arrangementOf(latitudes, longitudes, usual);
    if (!(found == usual))
        throw UsageError(latitudes.path() + " and " + longitudes.path() + " look like " + std::string(found.words) +
                         (found == own ? "; copy them as they are" : ", which cannot be imported"));
}

} // namespace

void importGrids(GridImport const& job) {
    GridFile latitudes(findFile(job.source, ".las", ".LAS")), longitudes(findFile(job.source, ".los", ".LOS"));
    std::string const las = job.destination + ".LAS", los = job.destination + ".LOS";
    checkPair(latitudes, longitudes, {las, los});
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
