// The reference file's exported operations.
#include "files/guarded.h"
#include "files/reference_file.h"
#include "files/side_names.h"

#include <zrproj/reffile.h>

#include <algorithm>
#include <array>

namespace ZrProj {

namespace {

bool isEmpty(char const* name) {
    return !name || !*name;
}

MapRecord recordOf(PROJDATA const* projection, DatumType datum, DATUM2WGS84 const* parameters, GEOREF const* georef) {
    MapRecord record = emptyMapRecord();
    if (projection)
        record.projection = *projection;
    if (parameters) {
        record.datum = datum;
        record.datumParameters = *parameters;
    }
    if (georef)
        record.georef = *georef;
    return record;
}

bool write(std::string const& name, MapRecord const& record) {
    std::string const fileName = referenceName(name);
    WriteResult const result = writeReferenceFile(fileName, record);
    // Under a name that got its extension here, what the caller named is another file.
    if (result == WriteResult::NotWritten && fileName == name)
        deletePlainFile(fileName);
    return result == WriteResult::Written;
}

/// A file that is not there says nothing, which is no failure.
bool read(std::string const& name, ReferenceRequest const& wanted, MapRecord& record, bool& accepted) {
    std::array const names{referenceName(name)};
    Stream const file = openSideFile(names);
    return !file || readReferenceFile(*file, wanted, record, accepted);
}

/// Only methods that are made from controls keep them.
void settleControls(GEOREF& georef) {
    if (georef.Method == TransformMethodNone || georef.Method == TransformMethodPrecalculatedAffineCoefficients)
        RefFreeControls(&georef);
}

/// The flags of what a record says.
std::uint32_t contents(MapRecord const& record) {
    bool const coefficients = record.georef.Method == TransformMethodPrecalculatedAffineCoefficients;
    return (record.projection.Type != ProjTypeUndefined ? RefFileFlagProjection : 0u) |
           (record.datum != DatumTypeNone ? RefFileFlagDatum : 0u) | (coefficients ? RefFileFlagCoefficients : 0u) |
           (record.georef.nControls > 0 ? RefFileFlagControls : 0u);
}

} // namespace

bool ZrProjRefFileWriteEx(char const* fileName, PROJDATA const* projection, DatumType datum,
                          DATUM2WGS84 const* parameters, GEOREF const* georef) {
    return !isEmpty(fileName) &&
           guarded(referenceSource, [&] { return write(fileName, recordOf(projection, datum, parameters, georef)); });
}

bool ZrProjRefFileWrite(char const* fileName, PROJDATA const* projection, DatumType datum,
                        DATUM2WGS84 const* parameters) {
    return ZrProjRefFileWriteEx(fileName, projection, datum, parameters, nullptr);
}

bool ZrProjRefFileReadEx(char const* fileName, PROJDATA* projection, DatumType* datum, DATUM2WGS84* parameters,
                         GEOREF* georef, std::uint32_t* flags) {
    if (isEmpty(fileName))
        return false;
    MapRecord record = emptyMapRecord();
    ReferenceRequest const wanted{projection != nullptr, datum && parameters, georef != nullptr};
    bool accepted = false;
    bool const good = guarded(referenceSource, [&] { return read(fileName, wanted, record, accepted); });
    if (good)
        settleControls(record.georef);
    else
        RefFreeControls(&record.georef);
    if (projection)
        *projection = record.projection;
    if (datum)
        *datum = record.datum;
    if (parameters)
        *parameters = record.datumParameters;
    if (georef)
        *georef = record.georef;
    if (flags)
        *flags = (good ? contents(record) : 0u) | (accepted ? RefFileFlagRead : 0u);
    return good;
}

bool ZrProjRefFileRead(char const* fileName, PROJDATA* projection, DatumType* datum, DATUM2WGS84* parameters) {
    GEOREF scratch = {};
    bool const good = ZrProjRefFileReadEx(fileName, projection, datum, parameters, &scratch, nullptr);
    RefFreeControls(&scratch);
    return good;
}

bool ZrProjRefFileDelete(char const* fileName) {
    return !isEmpty(fileName) && guarded(referenceSource, [&] { return deleteSideFile(referenceName(fileName), ""); });
}

bool ZrProjRefFilesDelete(char const* mapFileName) {
    if (isEmpty(mapFileName))
        return false;
    ZrProjRefFileDelete(mapFileName);
    return guarded(referenceSource, [&] {
        std::string const map = mapFileName;
        std::string const bare = withoutExtension(map);
        std::array const names{rsfName(map), bare + ".WLD", map + 'W', worldName(map, bare + 'W')};
        return std::ranges::all_of(names, [&](std::string const& name) { return deleteSideFile(name, map); });
    });
}

} // namespace ZrProj
