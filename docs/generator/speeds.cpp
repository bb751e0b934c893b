#include "speeds.h"

#include <sstream>
#include <stdexcept>

namespace ZrProj::docs {

Speeds readSpeeds(std::istream& in) {
    Speeds speeds;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("# ")) {
            speeds.run += line.substr(2);
            continue;
        }
        std::istringstream fields(line);
        std::string name;
        Speeds::Row row;
        if (!(fields >> name >> row.forward >> row.inverse))
            throw std::runtime_error("speeds: cannot read: " + line);
        speeds.rows[name] = row;
    }
    return speeds;
}

} // namespace ZrProj::docs
