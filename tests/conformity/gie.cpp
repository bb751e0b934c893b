#include "gie.h"

#include "operation.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Conformity {
namespace {

constexpr double standardTolerance = 5e-4; // metres
constexpr int standardTrips = 100;

constexpr std::array<std::string_view, 9> commandNames{"operation", "crs_src",   "crs_dst",
                                                       "direction", "tolerance", "accept",
                                                       "expect",    "roundtrip", "use_proj4_init_rules"};

struct Command {
    std::size_t line = 0;
    std::string name, text;
};

/// A line without its comment, the blanks around it and the mark that it goes on.
std::string bare(std::string line) {
    line.resize(std::min(line.find('#'), line.size()));
    line.resize(line.find_last_not_of(" \t\r\\") + 1);
    return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
}

/// The commands between the tags. A line that begins with none goes on with the one before.
class Reader {
public:
    explicit Reader(Report& report) : report_(report) {}

    void read(std::istream& file) {
        for (std::string line; std::getline(file, line);) {
            ++line_;
            take(bare(line));
        }
        if (inside_)
            report_.fail(line_, "the file ends before </gie>");
    }

    std::vector<Command> commands;

private:
    void take(std::string const& line) {
        if (line == "<gie>" || line == "<gie-strict>" || line == "</gie>" || line == "</gie-strict>")
            inside_ = line[1] != '/';
        else if (inside_ && !line.empty() && !line.starts_with("---"))
            takeCommand(line);
    }

    void takeCommand(std::string const& line) {
        auto const blank = std::min(line.find_first_of(" \t"), line.size());
        if (std::ranges::find(commandNames, std::string_view(line).substr(0, blank)) != commandNames.end())
            commands.push_back({line_, line.substr(0, blank), line.substr(blank)});
        else if (!commands.empty() && commands.back().name == "operation")
            commands.back().text += ' ' + line;
        else
            report_.fail(line_, "not understood: " + line);
    }

    Report& report_;
    std::size_t line_ = 0;
    bool inside_ = false;
};

/// Numbers of a line as far as they go, and the word behind them.
struct Fields {
    explicit Fields(std::string const& text) {
        std::istringstream stream(text);
        for (double number = 0; stream >> number;)
            numbers.push_back(number);
        if (stream.eof())
            return;
        stream.clear();
        std::getline(stream >> std::ws, rest);
    }

    std::vector<double> numbers;
    std::string rest;
};

Point pointOf(std::string const& text) {
    Fields const fields(text);
    if (fields.numbers.size() < 2 || !fields.rest.empty())
        throw Fault("not a point: " + text);
    if (std::any_of(fields.numbers.begin() + 2, fields.numbers.end(), [](double height) { return height != 0; }))
        throw Fault("heights and times are not converted");
    return {fields.numbers[0], fields.numbers[1]};
}

double metresOf(double number, std::string const& unit) {
    if (unit.empty() || unit == "m")
        return number;
    if (unit == "cm")
        return number / 100;
    if (unit == "mm")
        return number / 1000;
    throw Fault("not a unit of tolerances: " + unit);
}

double toleranceOf(std::string const& text) {
    Fields const fields(text);
    if (fields.numbers.size() != 1)
        throw Fault("not a tolerance: " + text);
    return metresOf(fields.numbers[0], fields.rest);
}

/// How often there and back, and the tolerance where it has one of its own.
struct Trips {
    Trips(std::string const& text, double standing) : tolerance(standing) {
        Fields const fields(text);
        if (fields.numbers.size() > 2 || (fields.numbers.size() < 2 && !fields.rest.empty()))
            throw Fault("not a round trip: " + text);
        if (!fields.numbers.empty())
            count = static_cast<int>(fields.numbers[0]);
        if (fields.numbers.size() == 2)
            tolerance = metresOf(fields.numbers[1], fields.rest);
        if (count < 1)
            throw Fault("no round trip at all");
    }

    int count = standardTrips;
    double tolerance;
};

std::string textOf(Point point) {
    std::ostringstream text;
    text.precision(12);
    text << point.x << ' ' << point.y;
    return text.str();
}

/// Written so that a distance that is no number is none within.
void expectWithin(double tolerance, End const& end, Point found, Point expected) {
    double const distance = end.distance(found, expected);
    if (!(distance <= tolerance)) {
        std::ostringstream text;
        text << textOf(found) << " instead of " << textOf(expected) << ": " << distance << " away, not " << tolerance;
        throw Fault(text.str());
    }
}

/// Follows the commands. What one of them refuses, an operation that cannot be made say, fails every check that needs
/// it.
class Run {
public:
    explicit Run(Report& report) : report_(report) {}

    void follow(Command const& command) {
        if (command.name == "expect")
            report_.check(Kind::point, command.line, [&] { expect(command.text); });
        else if (command.name == "roundtrip")
            report_.check(Kind::roundTrip, command.line, [&] { roundTrip(command.text); });
        else
            try {
                set(command);
            } catch (Fault const& fault) {
                report_.fail(command.line, fault.what());
            }
    }

private:
    void set(Command const& command) {
        if (command.name == "operation")
            begin([&] { return operationOf(command.text); });
        else if (command.name == "crs_src")
            source_ = command.text;
        else if (command.name == "crs_dst")
            begin([&] { return Operation(systemOf(source_), systemOf(command.text)); });
        else if (command.name == "direction")
            setDirection(bare(command.text));
        else if (command.name == "tolerance")
            setTolerance(command.text);
        else if (command.name == "accept")
            accept(command.text);
    }

    /// An operation begins with the standard tolerance, forward.
    template <class Make> void begin(Make const& make) {
        operation_.reset();
        accepted_.reset();
        backwards_ = false;
        tolerance_ = standardTolerance;
        operation_.emplace(make());
    }

    void setDirection(std::string const& direction) {
        if (direction != "forward" && direction != "inverse")
            throw Fault("not a direction: " + direction);
        backwards_ = direction == "inverse";
    }

    void setTolerance(std::string const& text) {
        tolerance_ = -1; // nothing is within one that cannot be read
        tolerance_ = toleranceOf(text);
    }

    void accept(std::string const& text) {
        accepted_.reset();
        accepted_ = pointOf(text);
    }

    void demandReady() const {
        if (!operation_)
            throw Fault("no operation");
        if (!accepted_)
            throw Fault("no point accepted");
    }

    void expect(std::string const& text) const {
        demandReady();
        expectWithin(tolerance_, operation_->end(!backwards_), operation_->convert(*accepted_, backwards_),
                     pointOf(text));
    }

    void roundTrip(std::string const& text) const {
        demandReady();
        Trips const trips(text, tolerance_);
        Point point = *accepted_;
        for (int i = 0; i < trips.count; ++i)
            point = operation_->convert(operation_->convert(point, backwards_), !backwards_);
        expectWithin(trips.tolerance, operation_->end(backwards_), point, *accepted_);
    }

    Report& report_;
    std::string source_;
    std::optional<Operation> operation_;
    std::optional<Point> accepted_;
    double tolerance_ = standardTolerance;
    bool backwards_ = false;
};

} // namespace

void runGie(std::istream& file, Report& report) {
    Reader reader(report);
    reader.read(file);
    Run run(report);
    for (Command const& command : reader.commands)
        run.follow(command);
}

} // namespace ZrProj::Conformity
