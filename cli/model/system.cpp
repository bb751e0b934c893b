#include "cli/model/system.h"

#include "cli/model/parameters.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

constexpr std::streamsize longestDefinition = 256 * 1024; // bytes; the library takes none longer

/// One of the units that the command knows, or one of the system's own; 0 metres where it has none.
LengthUnit unitOf(zrproj_system const* system) {
    double metres = 0;
    if (zrproj_system_unit(system, &metres) != ZRPROJ_OK)
        return {};
    for (LengthUnit const& unit : lengthUnits)
        if (std::fabs(metres / unit.metres - 1) < 1e-12)
            return unit;
    return {"", "units", "units of the system", metres};
}

SystemPointer made(zrproj_status status, zrproj_system* handle) {
    if (status != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    return std::make_shared<System const>(handle);
}

} // namespace

System::System(zrproj_system* handle, MadeBy madeBy) : m_handle(handle), m_unit(unitOf(handle)), m_madeBy(madeBy) {}

std::string System::text(zrproj_format format) const {
    std::size_t length = 0;
    zrproj_system_text(handle(), format, nullptr, 0, &length);
    std::string text(length + 1, '\0');
    if (zrproj_system_text(handle(), format, text.data(), text.size(), &length) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    text.resize(length);
    return text;
}

std::string System::code() const {
    std::array<char, 32> code{};
    bool const isKnown = zrproj_system_text(handle(), ZRPROJ_CODE, code.data(), code.size(), nullptr) == ZRPROJ_OK;
    return isKnown ? code.data() : "";
}

std::string System::title() const {
    std::string const name = text(ZRPROJ_NAME), code = this->code();
    return code.empty() ? name : name + " (" + code + ")";
}

SystemPointer System::geographic() const {
    zrproj_system* geographic = nullptr;
    zrproj_status const status = zrproj_system_geographic(handle(), &geographic);
    return made(status, geographic);
}

SystemPointer systemOfDefinition(std::string const& definition) {
    zrproj_system* handle = nullptr;
    zrproj_status const status = zrproj_system_create(definition.c_str(), &handle);
    if (status == ZRPROJ_OK && *zrproj_message() != '\0')
        std::fprintf(stderr, "zrproj: %s\n", zrproj_message());
    return made(status, handle);
}

SystemPointer systemOfFile(std::string const& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string text(longestDefinition + 1, '\0');
    if (!stream || (!stream.read(text.data(), longestDefinition + 1) && !stream.eof()))
        throw std::runtime_error("cannot read " + inQuotes(file) + ": " + systemMessage(errno));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3);
    try {
        return systemOfDefinition(text);
    } catch (std::runtime_error const& error) {
        throw std::runtime_error("cannot read " + inQuotes(file) + ": " + error.what());
    }
}

namespace {

/// Whether a text that is no definition is written as the path of a file: with an extension, or a separator between
/// letters, which in names of systems stands between blanks.
bool looksLikePath(std::string const& text) {
    std::string const extension = std::filesystem::path(text).extension().string();
    auto const slash = text.find('/');
    bool const isSeparated = slash != text.npos && text.substr(slash).find("/ ") != 0 && text.find("://") == text.npos;
    return isSeparated || (extension.size() > 2 && extension.size() < 9 &&
                           std::ranges::all_of(extension.substr(1), [](unsigned char c) { return std::isalpha(c); }));
}

} // namespace

SystemPointer systemNamed(std::string const& definitionOrFile) {
    std::error_code none;
    if (std::filesystem::is_regular_file(definitionOrFile, none))
        return systemOfFile(definitionOrFile);
    if (std::filesystem::is_directory(definitionOrFile, none))
        throw std::runtime_error("cannot read " + inQuotes(definitionOrFile) + ": it is a directory");
    zrproj_system* handle = nullptr;
    zrproj_status const status = zrproj_system_create(definitionOrFile.c_str(), &handle);
    zrproj_system_destroy(handle);
    if (status == ZRPROJ_UNKNOWN && looksLikePath(definitionOrFile))
        throw std::runtime_error("cannot read " + inQuotes(definitionOrFile) + ": " + systemMessage(ENOENT));
    return systemOfDefinition(definitionOrFile);
}

SystemPointer systemOfParameters(zrproj_parameters const& parameters) {
    zrproj_system* handle = nullptr;
    switch (zrproj_system_create_from_parameters(&parameters, &handle)) {
    case ZRPROJ_OK:
        return std::make_shared<System const>(handle, MadeBy::Parameters);
    case ZRPROJ_UNSUPPORTED:
        throw UsageError(noMapText(recordOf(parameters)));
    default:
        throw UsageError(zrproj_message());
    }
}

SystemPointer systemOfRecord(PROJDATA const& record) {
    return systemOfParameters(parametersOf(record));
}

zrproj_format formatNamed(std::string_view word) {
    struct FormatWord {
        std::string_view word;
        zrproj_format format;
    };
    constexpr std::array words{FormatWord{"wkt2", ZRPROJ_WKT2},         FormatWord{"wkt1", ZRPROJ_WKT1},
                               FormatWord{"esri", ZRPROJ_WKT_ESRI},     FormatWord{"proj", ZRPROJ_PROJ_STRING},
                               FormatWord{"projjson", ZRPROJ_PROJJSON}, FormatWord{"code", ZRPROJ_CODE},
                               FormatWord{"name", ZRPROJ_NAME}};
    auto const* const found = std::ranges::find(words, word, &FormatWord::word);
    if (found == words.end())
        throw UsageError("--as: " + inQuotes(std::string(word)) +
                         " is none of wkt2, wkt1, esri, proj, projjson, code and name");
    return found->format;
}

} // namespace ZrProj::Command
