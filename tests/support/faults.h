// Points found at fault by a sweep, reported together: how many, and the first few of them.
#pragma once

#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <sstream>
#include <string>

namespace ZrProj {

/// How a point is written in a report.
inline std::ostream& operator<<(std::ostream& out, PROJPOINT const& point) {
    return out << '(' << point.x << ", " << point.y << ')';
}

namespace test {

class Faults {
public:
    explicit Faults(std::string where) : where_(std::move(where)) {
        text_.precision(std::numeric_limits<double>::max_digits10);
    }
    ~Faults() {
        if (count_ != 0)
            ADD_FAILURE() << where_ << ": " << count_ << " at fault" << text_.str();
    }
    Faults(Faults const&) = delete;
    Faults& operator=(Faults const&) = delete;

    template <class... Parts> void add(Parts const&... parts) {
        constexpr int shown = 4;
        if (++count_ <= shown)
            ((text_ << "\n    ") << ... << parts);
    }

private:
    std::string where_;
    std::ostringstream text_;
    int count_ = 0;
};

} // namespace test
} // namespace ZrProj
