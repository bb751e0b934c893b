#include "cli/model/way.h"

#include "cli/text/numbers.h"

#include <cmath>
#include <stdexcept>

namespace ZrProj::Command {

Way::Way(SystemPointer from, SystemPointer to, WayOptions options)
    : m_from(std::move(from)), m_to(std::move(to)), m_options(std::move(options)) {
    zrproj_options asked{};
    asked.size = sizeof asked;
    asked.grids = m_options.grids.c_str();
    asked.refuse_rough = m_options.refusesRough;
    zrproj_transform* handle = nullptr;
    if (zrproj_transform_create(m_from->handle(), m_to->handle(), &asked, &handle) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    m_handle.reset(handle);
}

Way::Told Way::told() const {
    Told told;
    std::size_t length = 0;
    zrproj_transform_describe(handle(), nullptr, 0, &length, nullptr);
    told.text.resize(length + 1);
    if (zrproj_transform_describe(handle(), told.text.data(), told.text.size(), &length, &told.accuracy) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    told.text.resize(length);
    return told;
}

std::string Way::description() const {
    auto const [text, accuracy] = told();
    std::string const words = std::isnan(accuracy) ? "not stated"
                              : accuracy == 0      ? "exact"
                                                   : numberText(accuracy) + " m";
    return text + "\naccuracy of the way between the datums: " + words;
}

WayPointer Way::toPlaces() const {
    return std::make_shared<Way const>(m_from, m_to->geographic(), m_options);
}

WayPointer Way::ontoMap() const {
    return std::make_shared<Way const>(m_to->geographic(), m_to);
}

} // namespace ZrProj::Command
