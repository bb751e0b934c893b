// What becomes of the checks of a file.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace ZrProj::Conformity {

/// Why a check cannot be made, or does not hold.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Kind { point, roundTrip };

/// Counts the checks of a file, and prints each that fails as FILE:LINE: why.
class Report {
public:
    explicit Report(std::string file) : file_(std::move(file)) {}

    /// Counts what `holds()` finds: it throws a Fault where the check fails.
    template <class Holds> void check(Kind kind, std::size_t line, Holds const& holds) {
        Count& count = kind == Kind::point ? points_ : trips_;
        ++count.all;
        try {
            holds();
            ++count.passed;
        } catch (Fault const& fault) {
            fail(line, fault.what());
        }
    }

    /// What is wrong with the file itself.
    void fail(std::size_t line, std::string const& why);

    /// Prints the counts. False where anything failed, or nothing was checked at all.
    bool finish() const;

private:
    struct Count {
        int all = 0, passed = 0;
    };

    std::string file_;
    Count points_, trips_;
    bool failed_ = false;
};

} // namespace ZrProj::Conformity
