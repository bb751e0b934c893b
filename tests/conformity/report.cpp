#include "report.h"

#include <iostream>

namespace ZrProj::Conformity {

void Report::fail(std::size_t line, std::string const& why) {
    failed_ = true;
    std::cout << file_ << ':' << line << ": " << why << '\n';
}

bool Report::finish() const {
    std::cout << file_ << ": " << points_.passed << " of " << points_.all << " points, " << trips_.passed << " of "
              << trips_.all << " round trips\n";
    return !failed_ && points_.all + trips_.all > 0;
}

} // namespace ZrProj::Conformity
