// The text of side files: blanks, numbers, lines and tokens, and a file being written. The decimal mark is a point
// whatever the host's locale.
#pragma once

#include "host/plain_file.h"
#include "host/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace ZrProj {

/// Spaces, tabs and whatever ends lines.
constexpr std::string_view blanks = " \t\r\n";

constexpr bool isBlank(char c) {
    return blanks.find(c) != std::string_view::npos;
}

constexpr std::string_view skipBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

constexpr std::string_view trimBlanks(std::string_view text) {
    return skipBlanks(text.substr(0, text.find_last_not_of(blanks) + 1));
}

/// How keys and the names of values are compared: neither letter case nor blanks count.
constexpr bool equalButBlanks(std::string_view a, std::string_view b) {
    for (;; a.remove_prefix(1), b.remove_prefix(1)) {
        a = skipBlanks(a);
        b = skipBlanks(b);
        if (a.empty() || b.empty())
            return a.empty() && b.empty();
        if (asciiLower(a.front()) != asciiLower(b.front()))
            return false;
    }
}

/// Whether the text begins with the other one, letter case ignored.
constexpr bool beginsWith(std::string_view text, std::string_view beginning) {
    return equalIgnoringCase(text.substr(0, beginning.size()), beginning);
}

/// Appends what printf's "%.15G" gives in the C locale: up to 15 significant digits, no trailing zeros, an upper-case
/// exponent where it is shorter; INF and NAN.
void appendNumber(std::string& text, double value);

/// The number that a text begins with, 0 where it does not begin with one. Blanks and a sign may precede it, anything
/// may follow. Beyond the range of doubles it is infinite or 0. The text has at most 300 characters.
double readNumber(std::string_view text);

/// Reads a whole number in the same way. One beyond the range of int becomes the bound that it lies behind.
int readInteger(std::string_view text);

/// The text of a line, at most 255 characters; a null character ends it.
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

/// Reads the next line, dropping carriage returns and the line feed that ends it. Returns false at the end of the file:
/// a last line that no line feed ends counts as missing. A line that is longer than `line` holds goes on as the next
/// one.
bool readLine(std::FILE& file, TextLine& line);

/// Takes the next token off the text: characters between blanks, or between a quotation mark, single or double, and the
/// next single one. Returns nothing where only blanks are left.
std::optional<std::string_view> takeToken(std::string_view& text);

/// A text file being written. What was written counts only when close() has said so: a full disk may show as late as
/// that.
class OutputFile {
public:
    explicit OutputFile(std::string const& name) : stream_(createFile(name)) {}

    bool isOpen() const { return stream_ != nullptr; }
    /// Writes a text. Returns false when it, or anything before it, could not be written.
    bool write(std::string_view text) {
        return std::fwrite(text.data(), 1, text.size(), stream_.get()) == text.size() && !std::ferror(stream_.get());
    }
    /// Closes the file. Returns whether all of it has been written.
    bool close() {
        bool const good = !std::ferror(stream_.get());
        return std::fclose(stream_.release()) == 0 && good;
    }

private:
    Stream stream_;
};

} // namespace ZrProj
