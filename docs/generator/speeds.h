// docs/generator/speeds.txt: a line a row of the benchmark, its name and nanoseconds a point forward and inverse.
#pragma once

#include <istream>
#include <map>
#include <string>

namespace ZrProj::docs {

struct Speeds {
    struct Row {
        double forward = 0, inverse = 0;
    };
    std::string run; // the comment that tells of the benchmark run
    std::map<std::string, Row> rows;
};

Speeds readSpeeds(std::istream& in);

} // namespace ZrProj::docs
