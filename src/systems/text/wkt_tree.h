// Well-known text as a tree: what every generation of it shares. It knows no keyword's meaning.
#pragma once

#include "systems/text/problem.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::systems {

/// KEYWORD[...], a word, a number or a text in quotation marks.
struct WktNode {
    enum class Kind : unsigned char { group, word, number, text };

    Kind kind = Kind::word;
    std::size_t offset = 0; // in the text read
    std::string value;      // the keyword in capitals, the word, the number as it stands, the text without its marks
    double number = 0;
    std::vector<WktNode> children;

    /// Whether this is a group of one of these keywords.
    bool is(std::initializer_list<std::string_view> keywords) const;

    /// The first child of one of these keywords, or null.
    WktNode const* child(std::initializer_list<std::string_view> keywords) const;
};

/// The one group that the text consists of. Brackets are square or round.
WktNode readWktTree(std::string_view text, Complaint& complaint);

} // namespace ZrProj::systems
