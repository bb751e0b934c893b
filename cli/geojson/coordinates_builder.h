// Coordinates put together from the lists and numbers that a parser meets: a list is a position where its first element
// is a number.
#pragma once

#include "cli/geojson/object.h"

#include <string>

namespace ZrProj::Command {

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

} // namespace ZrProj::Command
