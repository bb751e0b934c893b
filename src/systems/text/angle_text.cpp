#include "systems/text/angle_text.h"

#include "systems/text/number.h"

#include <array>
#include <cmath>

namespace ZrProj::systems {

namespace {

struct AngleUnit {
    std::string_view marks;
    double degrees;
};

constexpr std::array<AngleUnit, 3> units = {{{"dD", 1}, {"'", 1.0 / 60}, {"\"", 1.0 / 3600}}};

} // namespace

std::optional<double> angleOf(std::string_view text) {
    if (auto const plain = wholeNumber(text))
        return plain;
    bool negative = text.starts_with('-');
    if (!text.empty() && std::string_view("NnEeSsWw").find(text.back()) != std::string_view::npos) {
        negative = negative != (std::string_view("SsWw").find(text.back()) != std::string_view::npos);
        text.remove_suffix(1);
    }
    if (text.empty())
        return {};
    double sum = 0;
    for (AngleUnit const& unit : units) {
        if (text.empty())
            break;
        auto const number = leadingNumber(text);
        if (!number)
            return {};
        sum += std::abs(number->value) * unit.degrees;
        text.remove_prefix(number->length);
        if (!text.empty() && unit.marks.find(text.front()) == std::string_view::npos)
            return {};
        text.remove_prefix(text.empty() ? 0 : 1);
    }
    if (!text.empty())
        return {};
    return negative ? -sum : sum;
}

} // namespace ZrProj::systems
