// RSF files: an image's control points, one a line, after a line with their count.
#include "files/guarded.h"
#include "files/map_record.h"
#include "files/side_file.h"
#include "files/side_names.h"
#include "files/side_text.h"

#include <zrproj/reffile.h>
#include <zrproj/worldfile.h>

#include <array>

namespace ZrProj {

namespace {

constexpr char sourceFile[] = ".\\RSFFile.cpp";

double takeNumber(std::string_view& text) {
    return readNumber(takeToken(text).value_or(""));
}

int claimedCount(std::string_view line) {
    takeToken(line);
    return readInteger(takeToken(line).value_or(""));
}

/// A point's line: name, x and y, height, x and y on the map, height, and a mark of use.
void readPoint(std::string_view line, GEOREFPOINT& source, GEOREFPOINT& target) {
    takeToken(line);
    source.x = takeNumber(line);
    source.y = takeNumber(line);
    takeToken(line);
    target.x = takeNumber(line);
    target.y = takeNumber(line);
}

/// Whether the file holds as many points as there are controls to fill.
bool readPoints(std::FILE& file, GEOREF& georef) {
    TextLine line;
    for (std::int32_t i = 0; i < georef.nControls; ++i) {
        if (!readLine(file, line))
            return false;
        readPoint(line.text(), georef.pSource[i], georef.pTarget[i]);
    }
    return true;
}

} // namespace

bool readRsfFile(std::FILE& file, GEOREF& georef) {
    TextLine line;
    int const count = readLine(file, line) ? claimedCount(line.text()) : 0;
    if (count < 1)
        return true;
    if (!allocateControls(georef, count, fileSize(file))) {
        ReportError(sourceFile, __LINE__, errorOutOfMemory, nullptr);
        return false;
    }
    if (!readPoints(file, georef))
        RefFreeControls(&georef);
    return true;
}

namespace {

bool read(char const* image, GEOREF* georef, std::uint32_t& flags) {
    std::array const names{rsfName(image)};
    Stream const file = openSideFile(names);
    if (!file)
        return true;
    GEOREF found = {}; // Helmert
    if (!readRsfFile(*file, found))
        return false;
    flags = RefFileFlagRead | (found.nControls > 0 ? RefFileFlagControls : 0u);
    if (georef)
        *georef = found;
    else
        RefFreeControls(&found);
    return true;
}

std::string pointLine(std::int32_t index, GEOREFPOINT const& source, GEOREFPOINT const& target) {
    std::string line = "'Point " + std::to_string(index) + '\'';
    for (GEOREFPOINT const& point : {source, target}) {
        for (double coordinate : {point.x, point.y}) {
            line += ' ';
            appendNumber(line, coordinate);
        }
        line += " 0.0";
    }
    return line + " 1\n";
}

} // namespace

bool writeRsfFile(std::string const& fileName, GEOREF const& georef) {
    OutputFile file(fileName);
    if (!file.isOpen())
        return false;
    bool good = file.write("2 " + std::to_string(georef.nControls) + '\n');
    for (std::int32_t i = 0; good && i < georef.nControls; ++i)
        good = file.write(pointLine(i, georef.pSource[i], georef.pTarget[i]));
    return file.close() && good;
}

namespace {

/// Controls of a record that has none are made from its coefficients, where it has those.
bool writeGeoref(char const* image, GEOREF georef) {
    if (hasControls(georef))
        return writeRsfFile(rsfName(image), georef);
    georef.pSource = georef.pTarget = nullptr; // the caller's
    if (!RefCoeffToControls(&georef, 0, 0))
        return true;
    bool const good = writeRsfFile(rsfName(image), georef);
    RefFreeControls(&georef);
    return good;
}

} // namespace

bool ZrProjReadBlueMarbleRSF(char const* imageFileName, GEOREF* georef, std::uint32_t* flags) {
    return readBeside(imageFileName, sourceFile, flags,
                      [&](std::uint32_t& found) { return read(imageFileName, georef, found); });
}

bool ZrProjWriteBlueMarbleRSF(char const* imageFileName, GEOREF const* georef) {
    if (!imageFileName || !*imageFileName || !georef)
        return true;
    return guarded(sourceFile, [&] { return writeGeoref(imageFileName, *georef); });
}

} // namespace ZrProj
