#include "files/reference_file.h"

#include "files/reference_keys.h"
#include "files/side_text.h"
#include "frame/errors.h"
#include "host/plain_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace ZrProj {

namespace {

// Writing.

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
    if (!ProjUsesParam(projection.Type, ProjParamZone))
        projection.Zone = StateZoneTypeNone;
    if (!ProjUsesParam(projection.Type, ProjParamAlpha))
        projection.Alpha = 0;
    completeEllipsoid(projection);
}

bool isTold(ReferenceKey const& row, MapRecord const& map) {
    switch (row.section) {
    case Section::Projection:
        return map.projection.Type == ProjTypeUnprojectedLatLong ? row.encoding == &projectionName
                                                                 : map.projection.Type != ProjTypeUndefined;
    case Section::Datum:
        return map.datum != DatumTypeNone;
    case Section::Georef:
        return map.georef.Method != TransformMethodNone;
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
        if (isTold(row, record) && row.isUsed(record) && row.encoding->write(bytes + row.offset, line))
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

// Reading.

/// Lines of at most 258 characters, their line feeds included; what is longer goes on as the next line. A null
/// character ends a line's text.
class LineSource {
public:
    explicit LineSource(std::FILE& file) : file_(file) {}

    std::optional<std::string_view> next() {
        if (!std::fgets(line_.data(), static_cast<int>(line_.size()), &file_))
            return {};
        return line_.data();
    }

private:
    std::FILE& file_;
    std::array<char, 259> line_ = {};
};

bool takeWord(std::string_view& text, std::string_view word) {
    if (!beginsWith(text, word))
        return false;
    text = skipBlanks(text.substr(word.size()));
    return true;
}

/// The version that a header names; nothing where the line is no header.
std::optional<double> headerVersion(std::string_view line) {
    if (!takeWord(line, referenceHeader) || !takeWord(line, ":") || !takeWord(line, "Version"))
        return {};
    return readNumber(line);
}

/// Takes a number off the text, with whatever follows it up to the next blanks.
double takeNumber(std::string_view& text) {
    double const number = readNumber(text);
    text = skipBlanks(text);
    text = skipBlanks(text.substr(std::min(text.find_first_of(blanks), text.size())));
    return number;
}

struct KeyedLine {
    std::string_view key, value;
};

/// A line's parts; nothing for one without a colon, or without a blank before it.
std::optional<KeyedLine> splitLine(std::string_view line) {
    std::size_t const colon = line.find(':');
    if (colon == std::string_view::npos)
        return {};
    std::size_t const keyLength = line.substr(0, colon).find_last_not_of(" \t") + 1;
    if (keyLength == colon)
        return {};
    return KeyedLine{line.substr(0, keyLength), skipBlanks(line.substr(colon + 1))};
}

class LineReader {
public:
    LineReader(ReferenceRequest const& wanted, MapRecord& record, std::uint64_t fileBytes)
        : wanted_(wanted), record_(record), fileBytes_(fileBytes) {}

    /// Takes a line in. Returns false when memory runs out.
    bool take(std::string_view line) {
        std::optional<KeyedLine> const parts = splitLine(line);
        if (!parts)
            return true;
        auto const row = std::ranges::find_if(
            referenceKeys, [&](ReferenceKey const& each) { return equalButBlanks(each.key, parts->key); });
        if (row != referenceKeys.end())
            setField(*row, parts->value);
        else if (equalButBlanks(referencePointKey, parts->key))
            return takePoint(parts->value);
        return true;
    }

private:
    bool isWanted(Section section) const {
        return section == Section::Projection ? wanted_.projection
               : section == Section::Datum    ? wanted_.datum
                                              : wanted_.georef;
    }

    /// The count of controls that are there stands.
    void setField(ReferenceKey const& row, std::string_view value) {
        bool const settled = row.encoding == &integerValue && record_.georef.pSource;
        if (isWanted(row.section) && !settled)
            row.encoding->read(reinterpret_cast<std::byte*>(&record_) + row.offset, value);
    }

    bool takePoint(std::string_view value) {
        GEOREF& georef = record_.georef;
        if (!wanted_.georef || georef.nControls < 1)
            return true;
        if (!georef.pSource && !allocateControls(georef, georef.nControls, fileBytes_))
            return false;
        if (points_ < georef.nControls)
            setPoint(georef.pSource[points_], georef.pTarget[points_], value);
        ++points_;
        return true;
    }

    static void setPoint(GEOREFPOINT& source, GEOREFPOINT& target, std::string_view value) {
        for (double* coordinate : {&source.x, &source.y, &target.x, &target.y})
            *coordinate = takeNumber(value);
    }

    ReferenceRequest wanted_;
    MapRecord& record_;
    std::uint64_t fileBytes_;
    std::int64_t points_ = 0;
};

bool fails(unsigned error, int line = __builtin_LINE()) {
    ReportError(referenceSource, line, error, nullptr);
    return false;
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

bool readReferenceFile(std::FILE& file, ReferenceRequest const& wanted, MapRecord& record, bool& accepted) {
    LineSource lines(file);
    std::optional<std::string_view> const first = lines.next();
    if (!first)
        return false;
    std::optional<double> const version = headerVersion(*first);
    if (!version)
        return fails(errorReadingFile);
    accepted = !(*version > referenceVersion);
    LineReader reader(wanted, record, fileSize(file));
    for (auto line = accepted ? lines.next() : std::nullopt; line; line = lines.next())
        if (!reader.take(*line))
            return fails(errorOutOfMemory);
    return true;
}

} // namespace ZrProj
