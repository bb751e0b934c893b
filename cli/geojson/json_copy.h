// Members of an object copied as text, value by value, from what a parser meets.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ZrProj::Command {

class JsonCopy {
public:
    /// Begins a member behind `text`, ,"name":value, which is taken off again unless it is kept.
    void begin(std::string& text, std::string_view name, bool isKept);

    void key(std::string_view name);
    void open(char bracket);
    /// True, as for scalar(), when the value is whole.
    bool close(char bracket);
    bool scalar(std::string_view text);

private:
    void separate();
    bool isWhole();

    std::string* m_text = nullptr;
    std::size_t m_begin = 0;
    int m_level = 0; // of lists and objects
    bool m_kept = true;
};

} // namespace ZrProj::Command
