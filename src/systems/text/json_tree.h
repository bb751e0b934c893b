// JSON as a tree (RFC 8259): what definitions in PROJJSON are read from.
#pragma once

#include "systems/text/problem.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::systems {

struct JsonNode {
    enum class Kind : unsigned char { null, boolean, number, text, array, object };

    Kind kind = Kind::null;
    std::size_t offset = 0; // in the text read
    std::string key;        // of an object's member
    std::string text;       // of a text, in UTF-8; "true" or "false"
    double number = 0;
    std::vector<JsonNode> children;

    /// An object's member, or null.
    JsonNode const* member(std::string_view name) const;
};

/// The one object that the text consists of.
JsonNode readJsonTree(std::string_view text, Complaint& complaint);

/// The text in quotation marks, as JSON writes it.
std::string jsonText(std::string_view text);

} // namespace ZrProj::systems
