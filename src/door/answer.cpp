#include "door/answer.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <new>
#include <stdexcept>

namespace ZrProj::Door {
namespace {

constexpr std::size_t messageSize = 1024;
thread_local std::array<char, messageSize> lastMessage = {};

/// How much of a UTF-8 text fits, whole characters only.
std::size_t fitting(std::string_view text, std::size_t most) {
    std::size_t length = std::min(text.size(), most);
    while (length < text.size() && length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        --length;
    return length;
}

// clang-format off
constexpr std::array statusNames{"ok", "bad argument", "bad definition", "unknown", "unsupported", "no path", "file",
                                 "not solvable", "no memory"};
// clang-format on
static_assert(statusNames.size() == ZRPROJ_NO_MEMORY + 1);

zrproj_status noMemory() noexcept {
    tell("out of memory");
    return ZRPROJ_NO_MEMORY;
}

/// Of the library itself, for which there is no status of its own.
zrproj_status fault(char const* what) noexcept {
    std::array<char, 200> text{};
    std::snprintf(text.data(), text.size(), "a fault of the library: %s", what);
    tell(text.data());
    return ZRPROJ_UNSUPPORTED;
}

} // namespace

void tell(std::string_view message) noexcept {
    std::size_t const length = fitting(message, messageSize - 1);
    std::ranges::replace_copy(message.substr(0, length), lastMessage.begin(), '\n', ' ');
    lastMessage[length] = '\0';
}

zrproj_status answerOfException() noexcept {
    try {
        throw;
    } catch (std::bad_alloc const&) {
        return noMemory();
    } catch (std::length_error const&) { // a vector or text so long that no memory could hold it
        return noMemory();
    } catch (std::exception const& exception) {
        return fault(exception.what());
    } catch (...) {
        return fault("of no known type");
    }
}

Answer giveText(std::string_view text, char* buffer, std::size_t size, std::size_t* length) {
    if (!buffer && size > 0)
        return badArgument("null buffer");
    give(length, text.size());
    if (size > 0)
        buffer[text.copy(buffer, fitting(text, size - 1))] = '\0';
    if (text.size() < size)
        return {};
    return badArgument("the buffer is too short: the text takes " + std::to_string(text.size() + 1) + " bytes");
}

} // namespace ZrProj::Door

using namespace ZrProj::Door;

char const* zrproj_status_name(zrproj_status status) {
    auto const index = static_cast<std::size_t>(status);
    return index < statusNames.size() ? statusNames[index] : "";
}

char const* zrproj_message() {
    return lastMessage.data();
}

char const* zrproj_version() {
    return ZRPROJ_VERSION;
}
