#include "systems/text/json_tree.h"

#include "host/text.h"
#include "systems/text/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace ZrProj::systems {

namespace {

struct Escape {
    char letter, character;
};

constexpr std::array<Escape, 8> escapes = {
    {{'"', '"'}, {'\\', '\\'}, {'/', '/'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}}};

/// Appends a code point's UTF-8.
void appendUtf8(std::string& text, std::uint32_t code) {
    auto const follow = [&](unsigned shift) { text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | (code >> 6));
        follow(0);
    } else if (code < 0x10000) {
        text += static_cast<char>(0xE0 | (code >> 12));
        follow(6);
        follow(0);
    } else {
        text += static_cast<char>(0xF0 | (code >> 18));
        follow(12);
        follow(6);
        follow(0);
    }
}

class TreeReader {
public:
    TreeReader(std::string_view text, Complaint& complaint) : text_(text), complaint_(complaint) {}

    JsonNode wholeText() {
        skipBlanks();
        if (next() != '{')
            complaint_.malformed(at_, "'{' was expected");
        JsonNode root = value(0);
        skipBlanks();
        if (at_ != text_.size())
            complaint_.malformed(at_, "nothing may follow the definition");
        return root;
    }

private:
    char next() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    void skipBlanks() {
        while (at_ < text_.size() && std::string_view(" \t\r\n").find(text_[at_]) != std::string_view::npos)
            ++at_;
    }

    bool take(std::string_view word) {
        bool const there = text_.substr(at_).starts_with(word);
        at_ += there ? word.size() : 0;
        return there;
    }

    void expect(char c) {
        skipBlanks();
        if (next() != c)
            complaint_.malformed(at_, std::string("'") + c + "' was expected");
        else
            ++at_;
    }

    JsonNode value(int depth) {
        skipBlanks();
        JsonNode made;
        made.offset = at_;
        if (depth > greatestDepth)
            complaint_.malformed(at_, "nested too deeply");
        else if (next() == '{')
            members(made, depth, JsonNode::Kind::object, '}');
        else if (next() == '[')
            members(made, depth, JsonNode::Kind::array, ']');
        else
            scalar(made);
        return made;
    }

    void scalar(JsonNode& made) {
        if (next() == '"') {
            made.kind = JsonNode::Kind::text;
            made.text = quoted();
        } else if (take("true") || take("false")) {
            made.kind = JsonNode::Kind::boolean;
            made.text = text_.substr(made.offset, at_ - made.offset);
        } else if (!take("null")) {
            number(made);
        }
    }

    void number(JsonNode& made) {
        made.kind = JsonNode::Kind::number;
        bool const begins = isAsciiDigit(next()) || next() == '-';
        auto const read = begins ? leadingNumber(text_.substr(at_)) : std::nullopt;
        if (!read)
            return complaint_.malformed(at_, "a value was expected");
        made.number = read->value;
        at_ += read->length;
    }

    void members(JsonNode& made, int depth, JsonNode::Kind kind, char closing) {
        made.kind = kind;
        ++at_;
        skipBlanks();
        if (next() == closing) {
            ++at_;
            return;
        }
        while (true) {
            made.children.push_back(kind == JsonNode::Kind::object ? member(depth) : value(depth + 1));
            skipBlanks();
            if (next() != ',' || complaint_.made())
                break;
            ++at_;
        }
        expect(closing);
    }

    JsonNode member(int depth) {
        skipBlanks();
        if (next() != '"')
            complaint_.malformed(at_, "a name in quotation marks was expected");
        std::string key = quoted();
        expect(':');
        JsonNode made = value(depth + 1);
        made.key = std::move(key);
        return made;
    }

    std::string quoted() {
        std::string made;
        std::size_t const begin = at_;
        at_ = std::min(at_ + 1, text_.size());
        while (at_ < text_.size() && text_[at_] != '"' && !complaint_.made()) {
            char const c = text_[at_++];
            if (static_cast<unsigned char>(c) < 0x20)
                complaint_.malformed(at_ - 1, "a control character stands in a text");
            else if (c == '\\')
                escaped(made);
            else
                made += c;
        }
        if (at_ >= text_.size())
            complaint_.malformed(begin, "this text has no closing quotation mark");
        at_ = std::min(at_ + 1, text_.size());
        return made;
    }

    void escaped(std::string& made) {
        if (next() == 'u')
            return appendUtf8(made, codePoint());
        auto const found = std::ranges::find(escapes, next(), &Escape::letter);
        if (found == escapes.end())
            return complaint_.malformed(at_ - 1, "nothing is written so in JSON");
        made += found->character;
        ++at_;
    }

    /// A code point beyond the first plane is two halves.
    std::uint32_t codePoint() {
        std::uint32_t const first = fourDigits();
        if (first < 0xD800 || first > 0xDFFF)
            return first;
        std::uint32_t const second = first < 0xDC00 && take("\\") ? fourDigits() : 0;
        if (second < 0xDC00 || second > 0xDFFF)
            complaint_.malformed(at_, "half a character is missing");
        return 0x10000 + ((first & 0x3FF) << 10) + (second & 0x3FF);
    }

    std::uint32_t fourDigits() {
        std::uint32_t code = 0;
        std::string_view const digits = text_.substr(std::min(at_ + 1, text_.size())).substr(0, 4);
        auto const end = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16).ptr;
        if (next() != 'u' || digits.size() != 4 || end != digits.data() + 4)
            complaint_.malformed(at_, "four hexadecimal digits were expected");
        at_ = std::min(at_ + 5, text_.size());
        return code;
    }

    std::string_view text_;
    Complaint& complaint_;
    std::size_t at_ = 0;
};

} // namespace

JsonNode const* JsonNode::member(std::string_view name) const {
    auto const found = kind == Kind::object ? std::ranges::find(children, name, &JsonNode::key) : children.end();
    return found == children.end() ? nullptr : &*found;
}

JsonNode readJsonTree(std::string_view text, Complaint& complaint) {
    if (text.size() > greatestTextSize) {
        complaint.malformed(greatestTextSize, "too long for a definition");
        return {};
    }
    return TreeReader(text, complaint).wholeText();
}

std::string jsonText(std::string_view text) {
    std::string made = "\"";
    for (char const c : text) {
        if (c == '"' || c == '\\')
            made += '\\';
        made += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
    }
    return made + '"';
}

} // namespace ZrProj::systems
