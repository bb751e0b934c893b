// The two routines that RSF and world files are read with: lines of a file, and tokens of a line.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <string_view>

namespace ZrProj {

/// A line's text, at most 255 characters; a null character ends it.
class TextLine {
public:
    bool isFull() const { return length_ + 1 == text_.size(); }
    void append(char c) { text_[length_++] = c; }
    void clear() {
        text_ = {};
        length_ = 0;
    }
    std::string_view text() const { return text_.data(); }

private:
    std::array<char, 256> text_ = {};
    std::size_t length_ = 0;
};

/// Reads the next line, dropping carriage returns and the line feed that ends it. False at the end of the file: a last
/// line that no line feed ends counts as missing. A line that is longer than `line` holds goes on as the next one.
bool readLine(std::FILE& file, TextLine& line);

/// Takes the next token off the text: characters between blanks, or between a quotation mark, single or double, and the
/// next single one. Nothing where only blanks are left.
std::optional<std::string_view> takeToken(std::string_view& text);

} // namespace ZrProj
