#include "systems/text/wkt_tree.h"

#include "host/text.h"
#include "systems/text/number.h"

#include <algorithm>

namespace ZrProj::systems {

namespace {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

constexpr bool isWordCharacter(char c) {
    return isAsciiDigit(c) || (asciiLower(c) >= 'a' && asciiLower(c) <= 'z') || c == '_';
}

constexpr char asciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

class TreeReader {
public:
    TreeReader(std::string_view text, Complaint& complaint) : text_(text), complaint_(complaint) {}

    WktNode wholeText() {
        WktNode root = node(0);
        skipBlanks();
        while (next() == ',' &&
               root.is({"PROJCS", "GEOGCS"})) // ESRI's height system follows without a bracket around both
            vertical();
        if (at_ != text_.size())
            complaint_.malformed(at_, "nothing may follow the definition");
        return root;
    }

private:
    char next() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    void skipBlanks() {
        while (at_ < text_.size() && isBlank(text_[at_]))
            ++at_;
    }

    void vertical() {
        ++at_;
        WktNode const second = node(0);
        if (!second.is({"VERTCS", "VERT_CS"}))
            complaint_.malformed(second.offset, "nothing but VERTCS may follow the definition");
        skipBlanks();
    }

    WktNode node(int depth) {
        skipBlanks();
        WktNode made;
        made.offset = at_;
        if (depth > greatestDepth)
            complaint_.malformed(at_, "nested too deeply");
        else if (next() == '"')
            quoted(made);
        else if (isAsciiDigit(next()) || next() == '-' || next() == '+' || next() == '.')
            number(made);
        else if (isWordCharacter(next()))
            wordOrGroup(made, depth);
        else
            complaint_.malformed(at_, "a keyword, a number or a text in quotation marks was expected");
        return made;
    }

    /// A quotation mark within a text is doubled.
    void quoted(WktNode& made) {
        made.kind = WktNode::Kind::text;
        while (true) {
            std::size_t const end = text_.find('"', ++at_);
            if (end == std::string_view::npos)
                return complaint_.malformed(made.offset, "this text has no closing quotation mark");
            made.value += text_.substr(at_, end - at_);
            at_ = end + 1;
            if (next() != '"')
                return;
            made.value += '"';
        }
    }

    void number(WktNode& made) {
        made.kind = WktNode::Kind::number;
        auto const read = leadingNumber(text_.substr(at_));
        if (!read)
            return complaint_.malformed(at_, "this is no number");
        made.number = read->value;
        made.value = text_.substr(at_, read->length);
        at_ += read->length;
    }

    void wordOrGroup(WktNode& made, int depth) {
        while (isWordCharacter(next()))
            made.value += text_[at_++];
        skipBlanks();
        if (next() != '[' && next() != '(')
            return;
        made.kind = WktNode::Kind::group;
        std::ranges::transform(made.value, made.value.begin(), asciiUpper);
        char const closing = next() == '[' ? ']' : ')';
        do {
            ++at_;
            made.children.push_back(node(depth + 1));
            skipBlanks();
        } while (next() == ',' && !complaint_.made());
        if (next() != closing)
            complaint_.malformed(at_, closing == ']' ? "',' or ']' was expected" : "',' or ')' was expected");
        at_ = std::min(at_ + 1, text_.size());
    }

    std::string_view text_;
    Complaint& complaint_;
    std::size_t at_ = 0;
};

} // namespace

bool WktNode::is(std::initializer_list<std::string_view> keywords) const {
    return kind == Kind::group && std::ranges::find(keywords, value) != keywords.end();
}

WktNode const* WktNode::child(std::initializer_list<std::string_view> keywords) const {
    auto const found = std::ranges::find_if(children, [&](WktNode const& node) { return node.is(keywords); });
    return found == children.end() ? nullptr : &*found;
}

WktNode readWktTree(std::string_view text, Complaint& complaint) {
    if (text.size() > greatestTextSize) {
        complaint.malformed(greatestTextSize, "too long for a definition");
        return {};
    }
    return TreeReader(text, complaint).wholeText();
}

} // namespace ZrProj::systems
