// What a formula's source says of itself: a description, then items, a word at the start of the line and the text from
// the tenth column on:
//
//     // Mercator: conformal, ...
//     //
//     // Source    Snyder (1987), ...
//     //           continued
//     // Domain    all but the poles.
//     //
//     // legend of symbols
#pragma once

#include <istream>
#include <map>
#include <string>

namespace ZrProj::docs {

struct HeadComment {
    std::string description;
    std::map<std::string, std::string> items; // by their words
};

HeadComment readHeadComment(std::istream& source);

} // namespace ZrProj::docs
