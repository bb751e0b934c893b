// World files: an image's six affine coefficients, one a line.
#include "files/guarded.h"
#include "files/side_file.h"
#include "files/side_names.h"
#include "files/side_text.h"

#include <zrproj/reffile.h>
#include <zrproj/worldfile.h>

#include <array>

namespace ZrProj {

namespace {

constexpr char sourceFile[] = ".\\WLDFile.cpp";

/// The coefficients in the order of the file's lines.
constexpr std::array coefficients{&GEOREF::A, &GEOREF::D, &GEOREF::B, &GEOREF::E, &GEOREF::C, &GEOREF::F};

} // namespace

GEOREF readWorldFile(std::FILE& file) {
    GEOREF found = {};
    found.Method = TransformMethodPrecalculatedAffineCoefficients;
    TextLine line;
    for (double GEOREF::*coefficient : coefficients) {
        if (!readLine(file, line))
            return {};
        found.*coefficient = readNumber(line.text());
    }
    return found;
}

namespace {

bool read(char const* image, GEOREF* georef, std::uint32_t& flags) {
    Stream const file = openSideFile(worldNamesToRead(image));
    if (!file)
        return true;
    GEOREF const found = readWorldFile(*file);
    bool const complete = found.Method == TransformMethodPrecalculatedAffineCoefficients;
    flags = RefFileFlagRead | (complete ? RefFileFlagCoefficients : 0u);
    if (georef)
        *georef = found;
    return true;
}

} // namespace

bool writeWorldFile(std::string const& fileName, GEOREF const& georef) {
    std::string text;
    for (double GEOREF::*coefficient : coefficients) {
        appendNumber(text, georef.*coefficient);
        text += '\n';
    }
    OutputFile file(fileName);
    if (!file.isOpen())
        return false;
    bool const good = file.write(text);
    return file.close() && good;
}

namespace {

/// Coefficients of a record that has none are worked out from its controls, where they suffice.
bool writeGeoref(char const* image, GEOREF georef) {
    bool const has = georef.Method == TransformMethodPrecalculatedAffineCoefficients || RefControlsToCoeff(&georef);
    return !has || writeWorldFile(worldNameToWrite(image), georef);
}

} // namespace

bool ZrProjReadESRIWorld(char const* imageFileName, GEOREF* georef, std::uint32_t* flags) {
    return readBeside(imageFileName, sourceFile, flags,
                      [&](std::uint32_t& found) { return read(imageFileName, georef, found); });
}

bool ZrProjWriteESRIWorld(char const* imageFileName, GEOREF const* georef) {
    if (!imageFileName || !*imageFileName || !georef)
        return true;
    return guarded(sourceFile, [&] { return writeGeoref(imageFileName, *georef); });
}

} // namespace ZrProj
