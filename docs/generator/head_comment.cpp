#include "head_comment.h"

namespace ZrProj::docs {
namespace {

constexpr std::size_t textColumn = 10;

/// The word that starts an item, or "".
std::string wordOf(std::string const& line) {
    auto const end = line.find(' ');
    bool const startsItem = line.size() > textColumn && end != std::string::npos && end < textColumn &&
                            line.find_first_not_of(' ', end) == textColumn;
    return startsItem ? line.substr(0, end) : "";
}

void append(std::string& text, std::string const& line) {
    if (!text.empty())
        text += ' ';
    text += line.substr(line.find_first_not_of(' '));
}

/// Reads the lines of one paragraph of the comment, without their marks, up to the empty one that ends it.
template <class Use> void forEachLine(std::istream& source, Use const& use) {
    for (std::string line; std::getline(source, line) && line.starts_with("// ");)
        use(line.substr(3));
}

} // namespace

HeadComment readHeadComment(std::istream& source) {
    HeadComment head;
    forEachLine(source, [&](std::string const& line) { append(head.description, line); });
    std::string word;
    forEachLine(source, [&](std::string const& line) {
        bool const starts = !wordOf(line).empty();
        if (starts)
            word = wordOf(line);
        append(head.items[word], starts ? line.substr(textColumn) : line);
    });
    return head;
}

} // namespace ZrProj::docs
