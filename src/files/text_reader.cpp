#include "files/text_reader.h"

#include "files/blanks.h"

#include <algorithm>

namespace ZrProj {

bool readLine(std::FILE& file, TextLine& line) {
    line.clear();
    for (int c = std::getc(&file); c != EOF; c = std::getc(&file)) {
        if (c == '\n')
            return true;
        if (c == '\r')
            continue;
        if (line.isFull()) {
            static_cast<void>(std::ungetc(c, &file));
            return true;
        }
        line.append(static_cast<char>(c));
    }
    return false;
}

std::optional<std::string_view> takeToken(std::string_view& text) {
    text = skipBlanks(text);
    if (text.empty())
        return {};
    bool const quoted = text.front() == '\'' || text.front() == '"';
    if (quoted)
        text.remove_prefix(1);
    // A double quotation mark, too, is closed by a single one.
    std::size_t const end = std::min(quoted ? text.find('\'') : text.find_first_of(blanks), text.size());
    std::string_view const token = text.substr(0, end);
    text.remove_prefix(std::min(end + (quoted ? 1 : 0), text.size()));
    text = skipBlanks(text);
    return token;
}

} // namespace ZrProj
