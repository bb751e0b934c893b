// Why a text is no definition that can be used, and where in it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace ZrProj::systems {

/// What is wrong with a text.
enum class Fault {
    malformed,  // it makes no sense from some offset on
    unknown,    // well formed, but it names what nobody knows
    unsupported // known, but it cannot be said or computed
};

struct Problem {
    Fault fault;
    std::string message; // one line, with the line and column in a text
};

/// What was asked for, or why there is none.
template <class T> using OrProblem = std::variant<T, Problem>;

/// The first problem that a reader met. Readers go on with harmless values after it, and tell it at their end.
class Complaint {
public:
    explicit Complaint(std::string_view text) : text_(text) {}

    void malformed(std::size_t offset, std::string_view what) { note(Fault::malformed, offset, what); }
    void unknown(std::size_t offset, std::string_view what) { note(Fault::unknown, offset, what); }
    void unsupported(std::size_t offset, std::string_view what) { note(Fault::unsupported, offset, what); }

    bool made() const { return problem_.has_value(); }

    /// The value, or the problem where there was one.
    template <class T> OrProblem<T> orProblem(T value) && {
        if (problem_)
            return *std::move(problem_);
        return value;
    }

private:
    void note(Fault fault, std::size_t offset, std::string_view what) {
        if (!problem_)
            problem_ = Problem{fault, lineAndColumn(offset) + ": " + std::string(what)};
    }

    /// Lines and columns count from 1; a column is a byte.
    std::string lineAndColumn(std::size_t offset) const {
        std::string_view const before = text_.substr(0, offset);
        auto const line = 1 + std::count(before.begin(), before.end(), '\n');
        auto const column = offset - (before.rfind('\n') + 1) + 1;
        return "line " + std::to_string(line) + ", column " + std::to_string(column);
    }

    std::string_view text_;
    std::optional<Problem> problem_;
};

/// Texts longer than this, or nested more deeply, are no definitions.
inline constexpr std::size_t greatestTextSize = 256 * 1024;
inline constexpr int greatestDepth = 32;

} // namespace ZrProj::systems
