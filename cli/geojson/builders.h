// Coordinates, and the text of other members, put together from what a parser meets.
#pragma once

#include "cli/geojson/object.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ZrProj::Command {

/// Coordinates put together from lists and numbers: a list is a position where its first element is a number.
class CoordinatesBuilder {
public:
    /// Each returns what is wrong there, or null. What is wrong is passed over.
    char const* open();
    char const* number(double value, std::string const& text);
    char const* close();

    /// What was put together so far.
    Coordinates take();

private:
    Coordinates m_coordinates;
    bool m_listOpened = false; // it may become a position
    bool m_inPosition = false;
    int m_numbers = 0; // of the position
    PROJPOINT m_point{};
    std::string m_extra;
};

/// Members of an object copied as text, value by value.
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
