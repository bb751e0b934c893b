#include "printed.h"

#include "door.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Conformity {
namespace {

enum Column { source, name, options, longitude, latitude, x, y, metresOfUnit, tolerance, columns };

std::vector<std::string> fieldsOf(std::string const& line, char mark) {
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, mark);)
        fields.push_back(field);
    return fields;
}

double numberOf(std::string_view text) {
    double number = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        throw Fault("not a number: " + std::string(text));
    return number;
}

/// A number, or one divided by another: "1/298.257223563".
double valueOf(std::string_view text) {
    auto const slash = text.find('/');
    if (slash == std::string_view::npos)
        return numberOf(text);
    return numberOf(text.substr(0, slash)) / numberOf(text.substr(slash + 1));
}

struct Parameter {
    int number = 0;
    zrproj_kind kind{};
};

/// The parameter that an option sets: "--use-alpha" is use_alpha.
Parameter parameterOf(std::string option) {
    if (option == "-p")
        return {1, ZRPROJ_KIND_PROJECTION};
    std::ranges::replace(option, '-', '_');
    Parameter parameter;
    char const* key = nullptr;
    for (std::size_t n = 0; zrproj_parameter_entry(n, &parameter.number, &key, nullptr, &parameter.kind) == ZRPROJ_OK;
         ++n)
        if (option == std::string("__") + key)
            return parameter;
    throw Fault("not an option: " + option);
}

System systemOfOptions(std::string const& text) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        auto const sign = word.find('=');
        Parameter const parameter = parameterOf(word.substr(0, sign));
        std::string value = sign == std::string::npos ? "1" : word.substr(sign + 1);
        if (sign == std::string::npos && parameter.kind != ZRPROJ_KIND_FLAG)
            words >> value;
        demand(zrproj_parameters_set(&parameters, parameter.number, valueOf(value)));
    }
    return systemOf(parameters);
}

/// What the example's system says of itself, read again: by a definition a Transverse Mercator is exact, by parameters
/// a series that holds near its meridian. A type that no definition says stays as it is.
System asDefined(System system) {
    std::array<char, 5000> text;
    auto const status = zrproj_system_text(system.get(), ZRPROJ_WKT2, text.data(), text.size(), nullptr);
    if (status == ZRPROJ_UNSUPPORTED)
        return system;
    demand(status);
    return systemOf(text.data());
}

void expectExample(std::vector<std::string> const& fields) {
    if (fields.size() != columns)
        throw Fault("not nine columns");
    System const system = asDefined(systemOfOptions(fields[options]));
    Way const way(geographicOf(system), system);
    Point const found = way.convert({numberOf(fields[longitude]), numberOf(fields[latitude])}, false);
    double const unit = numberOf(fields[metresOfUnit]);
    double const dx = found.x / unit - numberOf(fields[x]), dy = found.y / unit - numberOf(fields[y]);
    double const far = numberOf(fields[tolerance]); // of each, since they were rounded one by one
    if (!(std::fabs(dx) <= far && std::fabs(dy) <= far)) {
        std::ostringstream why;
        why << fields[source] << ", " << fields[name] << ": off by " << dx << ' ' << dy;
        throw Fault(why.str());
    }
}

} // namespace

void runPrinted(std::istream& table, Report& report) {
    std::string line;
    for (std::size_t number = 1; std::getline(table, line); ++number)
        if (!line.empty() && line[0] != '#')
            report.check(Kind::point, number, [&] { expectExample(fieldsOf(line, '\t')); });
}

} // namespace ZrProj::Conformity
