#include "cli/georef/controls.h"

#include "cli/files/plain_file.h"
#include "cli/points/fields.h"
#include "cli/text/line_reader.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <set>

namespace ZrProj::Command {
namespace {

constexpr std::size_t mostControls = 1000000;
constexpr std::size_t mostFaults = 20; // told one by one
constexpr std::size_t coordinates = 4;

using Columns = std::array<int, coordinates + 1>; // from 0; the last one is the name's, -1 for none
constexpr Columns inOrder{0, 1, 2, 3, 4};
constexpr std::array<std::string_view, coordinates> coordinateNames{"source x", "source y", "target x", "target y"};

struct Word {
    int column;
    std::string_view text;
};
constexpr std::array words{
    Word{0, "sourcex"}, Word{0, "pixelx"}, Word{0, "imagex"},  Word{0, "column"},   Word{0, "col"},
    Word{1, "sourcey"}, Word{1, "pixely"}, Word{1, "imagey"},  Word{1, "row"},      Word{1, "line"},
    Word{2, "targetx"}, Word{2, "mapx"},   Word{2, "groundx"}, Word{2, "easting"},  Word{2, "east"},
    Word{3, "targety"}, Word{3, "mapy"},   Word{3, "groundy"}, Word{3, "northing"}, Word{3, "north"},
    Word{4, "name"},    Word{4, "id"},     Word{4, "point"},   Word{4, "label"},
};

std::vector<std::string> splitAtCommas(std::string_view text) {
    return fieldTexts(text, ',');
}

/// Reads the lines of one file.
class ControlsReader {
public:
    ControlsReader(std::string title, std::vector<std::string> columns)
        : m_title(std::move(title)), m_wanted(std::move(columns)) {}

    void take(InputLine line);
    std::vector<ControlPoint> finish();

private:
    void settle(std::string_view line);
    bool settleAs(std::string_view line, char delimiter);
    Columns columnsOf(std::vector<std::string> const& names) const;
    Columns namedColumns(std::vector<std::string> const& names) const;
    Columns wantedColumns(std::vector<std::string> const& names) const;
    void read(std::vector<std::string> const& texts);
    void fault(std::string const& reason);

    std::string m_title;
    std::vector<std::string> m_wanted; // --columns
    std::uint64_t m_line = 0;
    bool m_settled = false;
    char m_delimiter = ',';
    Columns m_columns = inOrder;
    std::vector<ControlPoint> m_controls;
    std::string m_faults;
    std::size_t m_faultCount = 0;
};

void ControlsReader::fault(std::string const& reason) {
    if (++m_faultCount <= mostFaults)
        m_faults += m_title + ':' + std::to_string(m_line) + ": " + reason + '\n';
}

/// Columns that --columns gives by number, or by names of the header.
Columns ControlsReader::wantedColumns(std::vector<std::string> const& names) const {
    Columns result{-1, -1, -1, -1, -1};
    for (std::size_t i = 0; i < m_wanted.size(); ++i) {
        std::string const& wanted = m_wanted[i];
        auto const found = std::find_if(names.begin(), names.end(),
                                        [&](std::string const& name) { return squeezed(name) == squeezed(wanted); });
        int number = 0;
        auto const [end, status] = std::from_chars(wanted.data(), wanted.data() + wanted.size(), number);
        if (status == std::errc() && end == wanted.data() + wanted.size() && number > 0)
            result[i] = number - 1;
        else if (found != names.end())
            result[i] = static_cast<int>(found - names.begin());
        else
            throw UsageError("--columns: " + inQuotes(wanted) +
                             " is neither a number from 1 nor a column of the header");
    }
    return result;
}

/// Columns that the header's own names tell; in order where it has none of the known names.
Columns ControlsReader::namedColumns(std::vector<std::string> const& names) const {
    Columns result{-1, -1, -1, -1, -1};
    for (std::size_t i = names.size(); i-- > 0;)
        for (Word const& word : words)
            if (squeezed(names[i]) == word.text)
                result[static_cast<std::size_t>(word.column)] = static_cast<int>(i);
    auto const known = coordinates - static_cast<std::size_t>(std::count(result.begin(), result.end() - 1, -1));
    if (known == 0)
        return inOrder;
    if (known < coordinates)
        throw UsageError(m_title + ':' + std::to_string(m_line) +
                         ": the header names only some of source_x, source_y, target_x and target_y; give --columns");
    return result;
}

Columns ControlsReader::columnsOf(std::vector<std::string> const& names) const {
    return m_wanted.empty() ? namedColumns(names) : wantedColumns(names);
}

/// Whether the line, split so, is a line of numbers or a header.
bool ControlsReader::settleAs(std::string_view line, char delimiter) {
    auto const texts = fieldTexts(line, delimiter);
    if (texts.size() < coordinates)
        return false;
    auto const isNumber = [](std::string const& text) { return !readNumber(text).error; };
    bool const header = std::none_of(texts.begin(), texts.end(), isNumber);
    if (!header && std::count_if(texts.begin(), texts.end(), isNumber) < static_cast<std::ptrdiff_t>(coordinates))
        return false;
    m_delimiter = delimiter;
    m_columns = header ? columnsOf(texts) : m_wanted.empty() ? inOrder : wantedColumns({});
    m_settled = true;
    if (!header)
        read(texts);
    return true;
}

void ControlsReader::settle(std::string_view line) {
    for (char const delimiter : possibleDelimiters(line))
        if (settleAs(line, delimiter))
            return;
    fault("not a control point: source x, source y, target x, target y, and a name if you like");
}

void ControlsReader::read(std::vector<std::string> const& texts) {
    ControlPoint control;
    control.line = m_line;
    std::array<double*, coordinates> const to{&control.source.x, &control.source.y, &control.target.x,
                                              &control.target.y};
    for (std::size_t i = 0; i < coordinates; ++i) {
        auto const column = static_cast<std::size_t>(m_columns[i]);
        if (column >= texts.size())
            return fault(std::string(coordinateNames[i]) + " is missing");
        Reading const reading = readNumber(texts[column]);
        if (reading.error)
            return fault(std::string(coordinateNames[i]) + ' ' + inQuotes(texts[column]) + ' ' + reading.error);
        *to[i] = reading.value;
    }
    auto const name = static_cast<std::size_t>(m_columns[coordinates]);
    if (m_columns[coordinates] >= 0 && name < texts.size())
        control.name = texts[name];
    m_controls.push_back(std::move(control));
}

void ControlsReader::take(InputLine line) {
    if (++m_line == 1 && line.text.starts_with(byteOrderMark))
        line.text.remove_prefix(byteOrderMark.size());
    if (line.tooLong)
        return fault("line of more than 1 MiB");
    if (isVerbatim(line))
        return;
    if (m_controls.size() == mostControls)
        throw ControlsError(m_title + ": more than " + std::to_string(mostControls) + " control points");
    std::string_view const text = trimmed(line.text);
    if (m_settled)
        read(fieldTexts(text, m_delimiter));
    else
        settle(text);
}

std::vector<ControlPoint> ControlsReader::finish() {
    if (m_faultCount > mostFaults)
        m_faults += "and " + std::to_string(m_faultCount - mostFaults) + " more lines\n";
    if (m_faultCount > 0)
        throw ControlsError(m_faults + "nothing is fitted while a control point cannot be read");
    if (m_controls.empty())
        throw ControlsError(m_title + ": no control points");
    return std::move(m_controls);
}

bool inOnePlace(GEOREFPOINT const& a, GEOREFPOINT const& b) {
    return a.x == b.x && a.y == b.y;
}

/// The controls that share their source point with one before them, each beside that one.
std::string duplicates(std::vector<ControlPoint> const& controls) {
    std::vector<ControlPoint const*> sorted;
    for (auto const& control : controls)
        sorted.push_back(&control);
    std::stable_sort(sorted.begin(), sorted.end(), [](auto* a, auto* b) {
        return a->source.x < b->source.x || (a->source.x == b->source.x && a->source.y < b->source.y);
    });
    std::string result;
    for (std::size_t i = 1; i < sorted.size() && result.size() < 200; ++i)
        if (inOnePlace(sorted[i - 1]->source, sorted[i]->source))
            result += (result.empty() ? "" : ", ") + std::to_string(sorted[i - 1]->line) + " and " +
                      std::to_string(sorted[i]->line);
    return result;
}

/// Whether a method's map is determined by where the sources lie, whatever the targets.
bool doSourcesDetermine(TransformMethod method, std::vector<ControlPoint> const& controls) {
    std::vector<GEOREFPOINT> source;
    for (auto const& control : controls)
        source.push_back(control.source);
    GEOREF record{};
    record.Method = method;
    record.pSource = record.pTarget = source.data();
    record.nControls = static_cast<std::int32_t>(source.size());
    return CGeorefTransform(&record).IsCreated();
}

std::size_t countSources(std::vector<ControlPoint> const& controls) {
    std::set<std::pair<double, double>> sources;
    for (auto const& control : controls)
        sources.emplace(control.source.x, control.source.y);
    return sources.size();
}

/// What else keeps controls that are not on one line from determining a map.
std::string shapeOf(TransformMethod method) {
    switch (method) {
    case TransformMethod1stOrderPolynomial:
        return "they lie on one hyperbola with axes along x and y, or on two lines along these";
    case TransformMethod2ndOrderPolynomial:
        return "they lie on one conic, such as a circle or two lines";
    case TransformMethod3rdOrderPolynomial:
        return "they lie on one cubic curve, such as a conic and a line";
    default:
        return "they lie too close together";
    }
}

std::string linesOf(std::vector<ControlPoint> const& controls) {
    constexpr std::size_t most = 10;
    std::string result;
    for (std::size_t i = 0; i < controls.size() && i < most; ++i)
        result += (i ? ", " : "") + std::to_string(controls[i].line);
    return result + (controls.size() > most ? ", ..." : "");
}

} // namespace

std::string ControlPoint::title() const {
    return name.empty() ? "line " + std::to_string(line) : inQuotes(name);
}

std::vector<ControlPoint> readControls(std::string const& file, std::string const& columns) {
    auto const wanted = columns.empty() ? std::vector<std::string>() : splitAtCommas(columns);
    if (!columns.empty() && wanted.size() != coordinates && wanted.size() != coordinates + 1)
        throw UsageError(
            "--columns needs four columns, or five with the name's: source x, source y, target x, target y");
    InputFile const input(file);
    ControlsReader controls(input.title(), wanted);
    readLines(input, [&](InputLine const& line) { controls.take(line); });
    return controls.finish();
}

std::string whyNoFit(GeorefMethod const& method, std::vector<ControlPoint> const& controls) {
    if (controls.size() < method.needed)
        return std::string(method.key) + " needs " + std::to_string(method.needed) + " control points, there are " +
               std::to_string(controls.size());
    std::string const twice = duplicates(controls); // a least-squares fit that has enough others does not mind them
    if (!twice.empty() && (isExact(method) || countSources(controls) < method.needed))
        return "two control points at one source point, in lines " + twice;
    if (controls.size() > 2 && !doSourcesDetermine(TransformMethodAffinePolynomial, controls))
        return "the control points are all on one line (lines " + linesOf(controls) + ')';
    return "the control points do not determine a map by " + std::string(method.key) + ": " +
           (doSourcesDetermine(method.method, controls) ? "their target coordinates are too large"
                                                        : shapeOf(method.method));
}

} // namespace ZrProj::Command
