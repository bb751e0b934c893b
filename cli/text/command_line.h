// The command line as its subcommands declare it: arguments, options and flags, and the help that tells of them.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace ZrProj::Command {

/// An argument, option or flag that was declared.
class Option {
public:
    Option() = default;
    explicit Option(CLI::Option* option) : m_option(option) {}

    /// Whether the command line that was read has it.
    bool isGiven() const;
    /// The name by which messages call it.
    std::string name() const;

    /// Refuses command lines without it.
    void require() const;
    /// Lets the option stand without a value, which then stays empty.
    void allowNoValue() const;
    /// Shows the value that the text of the option has now as the standard one.
    void showStandard() const;

private:
    CLI::Option* m_option = nullptr;
};

/// A command or a subcommand. What its arguments and options say is put into the variables that they were declared
/// with, which must stay where they are until the command line was read.
class CommandLine {
public:
    explicit CommandLine(CLI::App& app, char const* group = nullptr) : m_app(&app), m_group(group) {}

    /// The same command, whose options are listed under a title of their own.
    CommandLine inGroup(char const* title) const { return CommandLine(*m_app, title); }

    Option argument(char const* name, std::string& value, std::string const& description) const;
    /// Any number of arguments.
    Option arguments(char const* name, std::vector<std::string>& values, std::string const& description) const;

    /// names: "-o,--output". placeholder: what help shows for the value.
    Option option(std::string const& names, std::string& value, char const* placeholder,
                  std::string const& description) const;
    /// An option that may be given several times.
    Option repeatedOption(std::string const& names, std::vector<std::string>& values, char const* placeholder,
                          std::string const& description) const;

    Option flag(std::string const& names, std::string const& description) const;
    Option flag(std::string const& names, bool& value, std::string const& description) const;

    CommandLine subcommand(char const* name, char const* description) const;
    /// Refuses command lines that name none of the subcommands.
    void requireSubcommand() const;
    /// Whether the command line that was read names this subcommand.
    bool isGiven() const;

    /// What help says below the options.
    void footer(std::string const& text) const;

private:
    Option inOwnGroup(CLI::Option* option) const;

    CLI::App* m_app;
    char const* m_group; // null for the usual one
};

/// The whole command line of a program.
class ProgramLine {
public:
    ProgramLine(char const* name, char const* description, char const* version);
    ~ProgramLine();

    CommandLine command() { return CommandLine(*m_app); }

    /// Reads the command line. Returns the text that it asks for in place of a run, help or the version; "" for none.
    /// Throws UsageError.
    std::string read(int argc, char** argv);

private:
    std::unique_ptr<CLI::App> m_app;
};

} // namespace ZrProj::Command
