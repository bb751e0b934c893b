// How the door's functions answer: a status, and this thread's message.
#pragma once

#include "host/fpenv.h"

#include <zrproj/c.h>

#include <cmath>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace ZrProj::Door {

/// What a call comes to; the message is told of a success too.
struct Answer {
    zrproj_status status = ZRPROJ_OK;
    std::string message{};

    bool isGood() const { return status == ZRPROJ_OK; }
};

inline Answer badArgument(std::string message) {
    return {ZRPROJ_BAD_ARGUMENT, std::move(message)};
}
inline Answer badDefinition(std::string message) {
    return {ZRPROJ_BAD_DEFINITION, std::move(message)};
}
inline Answer unknown(std::string message) {
    return {ZRPROJ_UNKNOWN, std::move(message)};
}
inline Answer unsupported(std::string message) {
    return {ZRPROJ_UNSUPPORTED, std::move(message)};
}
inline Answer fileFailure(std::string message) {
    return {ZRPROJ_FILE, std::move(message)};
}

/// Makes a text this thread's message: one line, cut where it is too long.
void tell(std::string_view message) noexcept;

/// What an exception comes to, as nothing may be thrown out of the door. None but those of memory that runs out is
/// expected. Only while one is handled.
zrproj_status answerOfException() noexcept;

/// Runs a function of the door, in the default floating-point environment.
template <class Work> zrproj_status answer(Work const& work) noexcept {
    try {
        Answer const result = withDefaultFloatingPoint(work);
        tell(result.message);
        return result.status;
    } catch (...) {
        return answerOfException();
    }
}

/// answer() for a function that makes a handle: `*handle` is null unless it succeeds. `make(Handle&)` fills a new one.
template <class Handle, class Make> zrproj_status answerWith(Handle** handle, Make const& make) noexcept {
    if (handle)
        *handle = nullptr;
    return answer([&]() -> Answer {
        if (!handle)
            return badArgument("null pointer to a handle");
        auto made = std::make_unique<Handle>();
        Answer result = make(*made);
        if (result.isGood())
            *handle = made.release();
        return result;
    });
}

/// The answer past the end of a list.
inline Answer pastTheLast(std::size_t n, std::size_t count) {
    return unknown("there is no entry " + std::to_string(n) + " in a list of " + std::to_string(count));
}

/// Writes to an output that may be null.
template <class T> void give(T* output, T const& value) {
    if (output)
        *output = value;
}

/// Copies a text to a caller's buffer, cut where it is too short, and its length to `length` unless that is null.
Answer giveText(std::string_view text, char* buffer, std::size_t size, std::size_t* length);

/// Whether a structure of the caller's is of a size that is known.
template <class T> bool hasKnownSize(T const* structure) {
    return structure && structure->size == sizeof(T);
}

inline bool areFinite(std::span<double const> numbers) {
    for (double const number : numbers)
        if (!std::isfinite(number))
            return false;
    return true;
}

/// A text between quotation marks.
inline std::string inQuotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

} // namespace ZrProj::Door
