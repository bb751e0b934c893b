#include "cli/points/layout.h"

#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ZrProj::Command {
namespace {

enum class Meaning { Longitude, Latitude, X, Y, Easting, Northing, Zone };

struct Word {
    Meaning meaning;
    std::string_view text;
};

constexpr std::array words{
    Word{Meaning::Longitude, "longitude"},
    Word{Meaning::Longitude, "lon"},
    Word{Meaning::Longitude, "long"},
    Word{Meaning::Longitude, "lng"},
    Word{Meaning::Latitude, "lat"},
    Word{Meaning::Latitude, "latitude"},
    Word{Meaning::X, "x"},
    Word{Meaning::Y, "y"},
    Word{Meaning::Easting, "easting"},
    Word{Meaning::Easting, "east"},
    Word{Meaning::Easting, "e"},
    Word{Meaning::Northing, "northing"},
    Word{Meaning::Northing, "north"},
    Word{Meaning::Northing, "n"},
    Word{Meaning::Zone, "zone"},
};

constexpr std::array<std::string_view, 7> angleWords{"", "deg", "degree", "degrees", "dd", "dms", "decimaldegrees"};

struct Pair {
    Meaning x, y;
};

constexpr Pair longitudeLatitude{Meaning::Longitude, Meaning::Latitude};
constexpr Pair xy{Meaning::X, Meaning::Y};
constexpr Pair eastingNorthing{Meaning::Easting, Meaning::Northing};
constexpr std::array forwardPairs{longitudeLatitude, xy, eastingNorthing};
constexpr std::array inversePairs{eastingNorthing, xy};

/// A column's name as the word that it begins with and what follows: "Easting (us ft)" is "Easting" and "usft".
struct Name {
    std::string_view word;
    std::string rest;
};

Name splitName(std::string_view text) {
    auto const end = std::find_if_not(text.begin(), text.end(), isLetter);
    auto const length = static_cast<std::size_t>(end - text.begin());
    return {text.substr(0, length), squeezed(text.substr(length))};
}

bool means(Name const& name, Meaning meaning) {
    std::string const word = squeezed(name.word);
    return std::any_of(words.begin(), words.end(),
                       [&](Word const& known) { return known.meaning == meaning && known.text == word; });
}

bool isAngle(Name const& name) {
    return std::find(angleWords.begin(), angleWords.end(), name.rest) != angleWords.end();
}

bool isLength(Name const& name, LengthUnit const* wanted) {
    LengthUnit const* const unit = findLengthUnit(name.rest);
    return name.rest.empty() || (unit && (!wanted || unit == wanted));
}

/// The leftmost column of a meaning, or -1.
int find(std::span<std::string const> names, Meaning meaning, Operation operation, LengthUnit const* unit) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        Name const name = splitName(names[i]);
        bool const fits = meaning == Meaning::Zone ? name.rest.empty()
                          : readsAngles(operation) ? isAngle(name)
                                                   : isLength(name, unit);
        if (fits && means(name, meaning))
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace

LengthUnit const* unitOfColumn(std::string_view name) {
    return findLengthUnit(splitName(name).rest);
}

std::optional<Columns> findColumns(std::span<std::string const> names, Operation operation, LengthUnit const* unit) {
    std::span<Pair const> const pairs =
        readsAngles(operation) ? std::span<Pair const>(forwardPairs) : std::span<Pair const>(inversePairs);
    for (Pair const& pair : pairs) {
        int const x = find(names, pair.x, operation, unit);
        int const y = find(names, pair.y, operation, unit);
        if (x < 0 || y < 0)
            continue;
        LengthUnit const* const found = unitOfColumn(names[static_cast<std::size_t>(x)]);
        if (found != unitOfColumn(names[static_cast<std::size_t>(y)]))
            return std::nullopt;
        return Columns{x, y, find(names, Meaning::Zone, operation, unit), found};
    }
    return std::nullopt;
}

namespace {

bool isNumber(std::string_view text) {
    return !text.empty() && text.size() < 7 && std::all_of(text.begin(), text.end(), isDigit);
}

int columnOf(std::string_view number) {
    int column = 0;
    std::from_chars(number.data(), number.data() + number.size(), column);
    return column - 1;
}

/// Whether a field was meant as a coordinate, well written or not: it begins with a digit, a sign, a point, the mark of
/// an unplottable point, or a hemisphere letter before one of these.
bool looksNumeric(std::string_view text) {
    constexpr std::string_view firsts = "0123456789+-.*\xE2"; // the last one begins a typographic minus
    if (!text.empty() && std::string_view("NSEWnsew").find(text[0]) != std::string_view::npos)
        text = trimmed(text.substr(1));
    return !text.empty() && firsts.find(text[0]) != std::string_view::npos;
}

bool looksLikeName(std::string_view text) {
    return !text.empty() && !looksNumeric(text);
}

bool byNumber(ColumnRequest const& request) {
    return request.columns.empty() || isNumber(request.columns[0]);
}

/// The columns by their number, or the first ones.
Columns numberedColumns(ColumnRequest const& request) {
    Columns result;
    if (!request.columns.empty())
        result = {columnOf(request.columns[0]), columnOf(request.columns[1]), -1, nullptr};
    if (request.zone)
        result.zone = request.columns.empty() ? 2 : columnOf(request.columns[2]);
    return result;
}

/// One line, split in one way.
class Candidate {
public:
    Candidate(std::string_view line, char delimiter, ColumnRequest const& request);
    Recognition recognise() const;

private:
    std::string_view at(int column) const;
    bool reads(std::string_view text, bool isX) const;
    Recognition header(Columns columns) const;
    Recognition namedHeader() const;
    Recognition numbered() const;
    Recognition found() const;
    Recognition unclear() const { return {false, {m_delimiter, false, 0, numberedColumns(m_request)}, ""}; }
    static Recognition faulty(std::string fault) { return {true, {}, std::move(fault)}; }
    std::string missingPair() const;

    ColumnRequest const& m_request;
    char m_delimiter;
    std::vector<std::string> m_texts;
};

Candidate::Candidate(std::string_view line, char delimiter, ColumnRequest const& request)
    : m_request(request), m_delimiter(delimiter), m_texts(fieldTexts(line, delimiter)) {}

std::string_view Candidate::at(int column) const {
    auto const index = static_cast<std::size_t>(column);
    return index < m_texts.size() ? std::string_view(m_texts[index]) : std::string_view();
}

bool Candidate::reads(std::string_view text, bool isX) const {
    return text == noCoordinate || !readCoordinate(text, isX, m_request.operation).error;
}

Recognition Candidate::recognise() const {
    if (m_texts.empty())
        return unclear();
    return byNumber(m_request) ? numbered() : namedHeader();
}

/// The line as a header with these columns, if their units agree with each other and with --units.
Recognition Candidate::header(Columns columns) const {
    if (!readsAngles(m_request.operation)) {
        columns.unit = unitOfColumn(at(columns.x));
        if (columns.unit != unitOfColumn(at(columns.y)))
            return faulty("the columns of easting and northing have different units");
        if (columns.unit && m_request.unit && columns.unit != m_request.unit)
            return faulty("the columns are in " + std::string(columns.unit->words) + ", not in " +
                          std::string(m_request.unit->words));
    }
    if (m_request.zone && columns.zone < 0)
        return faulty("the header has no column \"zone\"; name the columns with --columns EASTING,NORTHING,ZONE");
    return {true, {m_delimiter, true, m_texts.size(), columns}, ""};
}

Recognition Candidate::namedHeader() const {
    std::vector<int> columns;
    for (std::string const& wanted : m_request.columns) {
        auto const fits = [&](std::string const& text) { return squeezed(text) == squeezed(wanted); };
        auto const column = std::find_if(m_texts.begin(), m_texts.end(), fits);
        if (column == m_texts.end())
            return {false, {}, "the header has no column " + inQuotes(wanted)};
        if (std::find_if(column + 1, m_texts.end(), fits) != m_texts.end())
            return faulty("the header has more than one column " + inQuotes(wanted) + "; give its number");
        columns.push_back(static_cast<int>(column - m_texts.begin()));
    }
    return header({columns[0], columns[1], columns.size() > 2 ? columns[2] : -1, nullptr});
}

Recognition Candidate::numbered() const {
    Columns const columns = numberedColumns(m_request);
    if (reads(at(columns.x), true) && reads(at(columns.y), false))
        return {true, {m_delimiter, false, 0, columns}, ""};
    if (m_request.columns.empty())
        return found();
    if (looksLikeName(at(columns.x)) && looksLikeName(at(columns.y)))
        return header(columns);
    return unclear();
}

/// The line as a header whose names tell the columns.
Recognition Candidate::found() const {
    if (auto const columns = findColumns(m_texts, m_request.operation, m_request.unit))
        return header(*columns);
    Recognition result = unclear();
    if (m_texts.size() > 1 && std::all_of(m_texts.begin(), m_texts.end(), looksLikeName))
        result.fault = missingPair();
    return result;
}

std::string Candidate::missingPair() const {
    std::string const unit = m_request.unit ? " in " + std::string(m_request.unit->words) : "";
    return "the header has no columns " +
           (readsAngles(m_request.operation) ? R"("longitude" and "latitude")" : R"("easting" and "northing")" + unit) +
           "; name them with --columns";
}

} // namespace

std::vector<std::string> parseColumns(std::string_view option, bool zone) {
    std::vector<std::string> result;
    for (std::size_t begin = 0; begin <= option.size();) {
        std::size_t const end = std::min(option.find(',', begin), option.size());
        result.emplace_back(trimmed(option.substr(begin, end - begin)));
        begin = end + 1;
    }
    auto const numbers = std::count_if(result.begin(), result.end(), isNumber);
    if (result.size() != (zone ? 3U : 2U))
        throw UsageError(zone ? "--columns needs three columns here: easting, northing and zone"
                              : "--columns needs two columns, x first: two numbers, or two names of the header");
    if (numbers != 0 && numbers != static_cast<std::ptrdiff_t>(result.size()))
        throw UsageError("--columns needs numbers, or names, not both");
    std::vector<std::string> sorted = result;
    std::sort(sorted.begin(), sorted.end());
    bool const repeated = std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end();
    if (repeated || sorted.front().empty() ||
        (numbers && std::any_of(result.begin(), result.end(), [](auto& text) { return columnOf(text) < 0; })))
        throw UsageError("--columns needs different columns, counted from 1");
    return result;
}

Recognition recognise(std::string_view line, ColumnRequest const& request) {
    Recognition first;
    for (char delimiter : possibleDelimiters(line)) {
        Recognition result = Candidate(line, delimiter, request).recognise();
        if (result.clear)
            return result;
        if (delimiter == possibleDelimiters(line).front())
            first = std::move(result);
    }
    return first;
}

} // namespace ZrProj::Command
