#include "files/side_names.h"

#include "host/text.h"

#include <zrproj/zrlibw.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace ZrProj {

namespace {

constexpr char const* referenceExtension = "zrr";

std::string_view extensionOf(std::string const& name) {
    return ZrGetFileExt(name.c_str());
}

constexpr bool isAsciiLetter(char c) {
    return asciiLower(c) >= 'a' && asciiLower(c) <= 'z';
}

std::vector<std::size_t> lettersOfExtension(std::string const& name) {
    std::vector<std::size_t> letters;
    for (std::size_t i = name.size() - extensionOf(name).size(); i < name.size(); ++i)
        if (isAsciiLetter(name[i]))
            letters.push_back(i);
    return letters;
}

/// The name with those of the letters in upper case whose bits are set, the others in lower case.
std::string withCase(std::string name, std::span<std::size_t const> letters, std::size_t upperBits) {
    for (std::size_t i = 0; i < letters.size(); ++i) {
        char& letter = name[letters[i]];
        letter = asciiLower(letter);
        if (upperBits >> i & 1)
            letter = static_cast<char>(letter - 'a' + 'A');
    }
    return name;
}

bool isSameFile(std::string const& a, std::string const& b) {
    std::error_code error;
    return a == b || std::filesystem::equivalent(a, b, error);
}

bool isGone(std::string const& name, std::string const& image) {
    if (isSameFile(name, image))
        return true;
    Deletion const result = deletePlainFile(name);
    return result == Deletion::Done || result == Deletion::NothingThere;
}

} // namespace

std::string withoutExtension(std::string name) {
    ZrDropFileExt(name.data());
    name.resize(std::char_traits<char>::length(name.c_str()));
    return name;
}

std::string worldName(std::string const& image, std::string const& otherwise) {
    std::string_view const extension = extensionOf(image);
    if (extension.size() < 3)
        return otherwise;
    return withoutExtension(image) + '.' + extension[0] + extension[2] + 'W';
}

std::string rsfName(std::string const& image) {
    return withoutExtension(image) + ".RSF";
}

std::vector<std::string> worldNamesToRead(std::string const& image) {
    std::string const bare = withoutExtension(image);
    return {worldName(image, bare + 'W'), image + 'w', bare + ".WLD"};
}

std::string worldNameToWrite(std::string const& image) {
    return worldName(image, image + 'W');
}

std::string referenceName(std::string const& name) {
    std::string_view const extension = referenceExtension;
    bool const hasIt = name.size() >= extension.size() + 2 &&
                       equalIgnoringCase(std::string_view(name).substr(name.size() - extension.size()), extension);
    return hasIt ? name : name + '.' + referenceExtension;
}

std::vector<std::string> caseVariants(std::string const& name) {
    constexpr std::size_t most = 8;
    std::vector<std::size_t> const letters = lettersOfExtension(name);
    std::vector<std::string> variants;
    for (std::size_t bits = 0; letters.size() <= most && bits < std::size_t{1} << letters.size(); ++bits)
        variants.push_back(withCase(name, letters, bits));
    std::erase(variants, name);
    return variants;
}

Stream openSideFile(std::span<std::string const> names) {
    for (std::string const& name : names)
        if (Stream stream = openPlainFile(name))
            return stream;
    for (std::string const& name : names)
        for (std::string const& variant : caseVariants(name))
            if (Stream stream = openPlainFile(variant))
                return stream;
    return nullptr;
}

bool deleteSideFile(std::string const& name, std::string const& image) {
    auto const variantIsGone = [&](std::string const& variant) {
        return isSameFile(variant, image) || deletePlainFile(variant) != Deletion::Failed;
    };
    return isGone(name, image) && std::ranges::all_of(caseVariants(name), variantIsGone);
}

} // namespace ZrProj
