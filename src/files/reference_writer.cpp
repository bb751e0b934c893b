#include "files/reference_file.h"

#include "files/controls.h"
#include "files/number_text.h"
#include "files/output_file.h"
#include "files/reference_keys.h"
#include "files/reference_usage.h"

#include <algorithm>
#include <cstddef>

namespace ZrProj {

namespace {

template <class Record> void completeEllipsoid(Record& record) {
    if (record.Ellipsoid == EllipsoidTypeUserDefined || record.Ellipsoid == EllipsoidTypeNone)
        return;
    record.MajorRadius = EllipsoidRadius(record.Ellipsoid);
    record.Flattening = EllipsoidFlattening(record.Ellipsoid);
}

void normalise(PROJDATA& projection) {
    if (projection.Type == ProjTypeUnprojectedLatLong) {
        projection = {};
        projection.Ellipsoid = EllipsoidTypeNone;
    }
    if (projection.Type != ProjTypeStatePlane1927 && projection.Type != ProjTypeStatePlane1983)
        projection.Zone = StateZoneTypeNone;
    if (projection.Type != ProjTypeHotineObliqueMercator)
        projection.Alpha = 0;
    completeEllipsoid(projection);
}

template <class Table> bool uses(Table const& table, std::int32_t type, int code) {
    auto const found = std::ranges::find(table, type, &ReferenceUsage::type);
    return found != table.end() && (found->codes >> code & 1) != 0;
}

bool applies(ReferenceKey const& row, PROJDATA const& projection) {
    ProjType const type = projection.Type;
    if (type == ProjTypeUnprojectedLatLong)
        return row.encoding == &projectionName;
    return type != ProjTypeUndefined && (row.usage == 0 || uses(projectionUsage, type, row.usage));
}

bool applies(ReferenceKey const& row, MapRecord const& record) {
    switch (row.section) {
    case Section::Projection:
        return applies(row, record.projection);
    case Section::Datum:
        return record.datum != DatumTypeNone &&
               (row.usage == 0 || uses(datumUsage, record.datumParameters.Method, row.usage));
    case Section::Georef:
        return record.georef.Method != TransformMethodNone &&
               (row.usage == 0 || uses(georefUsage, record.georef.Method, row.usage));
    }
    return false;
}

/// A key with the colon that ends it.
std::string lineStart(char const* key) {
    return std::string(key) + " : ";
}

std::string keyLines(MapRecord const& record) {
    auto const* const bytes = reinterpret_cast<std::byte const*>(&record);
    std::string text;
    for (ReferenceKey const& row : referenceKeys) {
        std::string line = lineStart(row.key);
        if (applies(row, record) && row.encoding->write(bytes + row.offset, line))
            text += line + '\n';
    }
    return text;
}

std::string pointLine(GEOREFPOINT const& source, GEOREFPOINT const& target) {
    std::string line = lineStart(referencePointKey);
    char const* separator = "";
    for (double number : {source.x, source.y, target.x, target.y}) {
        line += separator;
        appendNumber(line, number);
        separator = "  ";
    }
    return line + '\n';
}

bool writePoints(OutputFile& file, GEOREF const& georef) {
    for (std::int32_t i = 0; hasControls(georef) && i < georef.nControls; ++i)
        if (!file.write(pointLine(georef.pSource[i], georef.pTarget[i])))
            return false;
    return true;
}

} // namespace

WriteResult writeReferenceFile(std::string const& fileName, MapRecord record) {
    normalise(record.projection);
    completeEllipsoid(record.datumParameters);
    std::string const header = lineStart(referenceHeader) + "Version " + referenceVersionText + '\n';
    OutputFile file(fileName);
    if (!file.isOpen())
        return WriteResult::NotMade;
    bool const written = file.write(header) && file.write(keyLines(record)) && writePoints(file, record.georef);
    return file.close() && written ? WriteResult::Written : WriteResult::NotWritten;
}

} // namespace ZrProj
