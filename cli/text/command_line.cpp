// The only source that CLI11, which takes long to compile, is included in.
#include "cli/text/command_line.h"

#include "cli/text/usage_error.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace ZrProj::Command {

bool Option::isGiven() const {
    return m_option->count() > 0;
}

std::string Option::name() const {
    return m_option->get_name();
}

void Option::require() const {
    m_option->required();
}

void Option::allowNoValue() const {
    m_option->expected(0, 1);
}

void Option::showStandard() const {
    m_option->capture_default_str();
}

Option CommandLine::inOwnGroup(CLI::Option* option) const {
    if (m_group)
        option->group(m_group);
    return Option(option);
}

Option CommandLine::argument(char const* name, std::string& value, std::string const& description) const {
    return inOwnGroup(m_app->add_option(name, value, description)->option_text(" "));
}

Option CommandLine::arguments(char const* name, std::vector<std::string>& values,
                              std::string const& description) const {
    return inOwnGroup(m_app->add_option(name, values, description)->option_text(" "));
}

Option CommandLine::option(std::string const& names, std::string& value, char const* placeholder,
                           std::string const& description) const {
    return inOwnGroup(m_app->add_option(names, value, description)->type_name(placeholder));
}

Option CommandLine::repeatedOption(std::string const& names, std::vector<std::string>& values, char const* placeholder,
                                   std::string const& description) const {
    return inOwnGroup(m_app->add_option(names, values, description)->type_name(placeholder)->allow_extra_args(false));
}

Option CommandLine::flag(std::string const& names, std::string const& description) const {
    return inOwnGroup(m_app->add_flag(names, description)->disable_flag_override());
}

Option CommandLine::flag(std::string const& names, bool& value, std::string const& description) const {
    return inOwnGroup(m_app->add_flag(names, value, description)->disable_flag_override());
}

CommandLine CommandLine::subcommand(char const* name, char const* description) const {
    return CommandLine(*m_app->add_subcommand(name, description));
}

void CommandLine::requireSubcommand() const {
    m_app->require_subcommand(1);
}

bool CommandLine::isGiven() const {
    return m_app->parsed();
}

void CommandLine::footer(std::string const& text) const {
    m_app->footer(text);
}

ProgramLine::ProgramLine(char const* name, char const* description, char const* version)
    : m_app(std::make_unique<CLI::App>(description, name)) {
    m_app->set_version_flag("--version", version);
    m_app->get_formatter()->column_width(44);
}

ProgramLine::~ProgramLine() = default;

/// The parser reports help and version like errors.
std::string ProgramLine::read(int argc, char** argv) {
    try {
        m_app->parse(argc, argv);
        return "";
    } catch (CLI::ParseError const& error) {
        std::ostringstream text, complaint;
        if (m_app->exit(error, text, complaint) != 0)
            throw UsageError(std::string(error.what()) + "; \"" + m_app->get_name() + " --help\" tells more");
        return text.str();
    }
}

} // namespace ZrProj::Command
