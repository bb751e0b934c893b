// Finding what a user means by a name, or a part of one.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

enum class Match {
    One,     // `found` is the one name
    Several, // all the names that hold the text
    None,    // the names nearest to the text, if any is near
};

struct NameMatch {
    Match match;
    std::vector<int> found; // indices in the list of names
};

/// Looks for a text among names. Letter case, blanks and punctuation do not count. A whole name goes before names that
/// hold the text as a part. An empty text matches nothing.
NameMatch matchName(std::string_view text, std::span<std::string const> names);

/// Why a text does not name one of `names`, on one line, with the names to choose from.
/// kind: what the names are, "projection". where: the command that lists them all.
std::string explainMismatch(std::string_view kind, std::string_view text, std::span<std::string const> names,
                            NameMatch const& result, std::string_view where);

} // namespace ZrProj::Command
