// zrproj datum: conversion from one datum to another, and the user's own datums.
#include "cli/commands/commands.h"
#include "cli/model/datums.h"
#include "cli/model/parameters.h"
#include "cli/text/numbers.h"
#include "cli/text/output.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <array>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

constexpr char const* profileHelp = "the file zrproj/zrproj.ini under $XDG_CONFIG_HOME, else under ~/.config";

bool isStored(std::string const& name) {
    DatumMethod method{};
    return NDatGetDatumMethod(name.c_str(), &method);
}

class Add : public Subcommand {
public:
    explicit Add(CommandLine line) {
        line.argument("DATUM", m_definition, "\"NAME: method=molodensky, ellipsoid=..., dx=..., dy=..., dz=...\"")
            .require();
        line.flag("--replace", m_replace, "Replace a datum of that name");
        std::string footer = "The datum is kept in ";
        footer += profileHelp;
        footer += R"(.

Example:
  zrproj datum add "My site: method=molodensky, ellipsoid=clarke 1866, dx=-8, dy=160, dz=176")";
        line.footer(footer);
    }

    int run(Output&) override {
        Datum const datum = readDatumDefinition(m_definition);
        if (!m_replace && isStored(datum.name))
            throw UsageError("there is a datum " + inQuotes(datum.name) + " already; --replace replaces it");
        if (!NDatSetDatum(datum.name.c_str(), &datum.record))
            throw std::runtime_error("the datum cannot be stored in " + std::string(profileHelp));
        return 0;
    }

private:
    std::string m_definition;
    bool m_replace = false;
};

class Remove : public Subcommand {
public:
    explicit Remove(CommandLine line) { line.argument("NAME", m_name, "Its whole name, in any letter case").require(); }

    int run(Output&) override {
        if (!isStored(m_name))
            throw UsageError("there is no datum " + inQuotes(m_name) +
                             " of your own; \"zrproj list datums own\" lists them");
        if (!NDatDeleteDatum(m_name.c_str()))
            throw std::runtime_error("the datum cannot be removed from " + std::string(profileHelp));
        return 0;
    }

private:
    std::string m_name;
};

class ShowDatum : public Subcommand {
public:
    explicit ShowDatum(CommandLine line) {
        line.argument("NAME", m_name, "Name (a unique part will do), number or POSC code").require();
    }

    int run(Output& output) override {
        Datum const datum = findDatum(m_name, {});
        Table table{{}, "lll", {}};
        int code = 0;
        table.rows.push_back({"Datum", datum.name, datum.isOwn() ? "" : std::to_string(datum.type)});
        if (DatGetDatumPOSCNumber(datum.type, &code))
            table.rows.push_back({"POSC code", std::to_string(code), ""});
        table.rows.push_back({"Method", std::string(methodName(datum.method())), "method"});
        table.rows.push_back({"Converts", datum.isReversible() ? "from and to it" : "from it only", ""});
        addFigure(table, datum);
        addNumbers(table, datum);
        table.write(output);
        return 0;
    }

private:
    static void addFigure(Table& table, Datum const& datum) {
        if (auto const figure = figureOf(datum); figure && figure->ellipsoid != EllipsoidTypeUserDefined)
            table.rows.push_back({"Ellipsoid", ellipsoidName(figure->ellipsoid), "ellipsoid"});
    }

    static void addNumbers(Table& table, Datum const& datum) {
        DATUM2WGS84 record = datum.record;
        if (!datum.isOwn() && !DatGetDatumParams(datum.type, &record))
            return;
        for (DatumField const& field : datumFields(record)) {
            bool const told = record.Ellipsoid != EllipsoidTypeUserDefined;
            bool const isFigure = field.key == "radius" || field.key == "flattening";
            bool const rotates = field.key.front() == 'r' || field.key == "scale";
            if ((isFigure && record.Method == DatumMethodNone) ||
                (rotates && !isFigure && !hasRotations(record.Method)))
                continue;
            std::string const value = field.key == "flattening"
                                          ? flatteningText(field.value)
                                          : numberText(field.value) + ' ' + std::string(field.unit);
            table.rows.push_back({std::string(field.words), value, isFigure && told ? "" : std::string(field.key)});
        }
    }

    std::string m_name;
};

struct Part {
    char const* name;
    char const* description;
    std::unique_ptr<Subcommand> (*make)(CommandLine line);
};

template <class Command> std::unique_ptr<Subcommand> make(CommandLine line) {
    return std::make_unique<Command>(line);
}

constexpr std::array parts{
    Part{"add", "Keep a datum of your own, by the name that you give it", make<Add>},
    Part{"remove", "Remove a datum of your own", make<Remove>},
    Part{"show", "Show a datum's parameters", make<ShowDatum>},
};

class DatumCommand : public Subcommand {
public:
    explicit DatumCommand(CommandLine line) : m_conversion(makeDatumConversion(line)) {
        for (Part const& part : parts) {
            m_partLines.push_back(line.subcommand(part.name, part.description));
            m_parts.push_back(part.make(m_partLines.back()));
        }
    }

    int run(Output& output) override {
        for (std::size_t i = 0; i < parts.size(); ++i)
            if (m_partLines[i].isGiven())
                return m_parts[i]->run(output);
        return m_conversion->run(output);
    }

private:
    std::vector<CommandLine> m_partLines; // by row
    std::unique_ptr<Subcommand> m_conversion;
    std::vector<std::unique_ptr<Subcommand>> m_parts; // by row
};

} // namespace

std::unique_ptr<Subcommand> makeDatum(CommandLine line) {
    line.footer(R"(Example: old positions of a survey, on the datum of GPS
  zrproj datum --from nad27 --to wgs84 survey.csv
"zrproj list datums" lists the datums. Those of the method NADCON need grids: "zrproj grid --help".)");
    return std::make_unique<DatumCommand>(line);
}

} // namespace ZrProj::Command
