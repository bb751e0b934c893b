// What an exported function does runs in here: nothing is thrown across the interface.
#pragma once

#include "frame/errors.h"

#include <cstdint>

namespace ZrProj {

/// The work's answer; false, and error 20201, when it runs out of memory, the one thing that throws here.
template <class Work> bool guarded(char const* sourceFile, Work const& work, int line = __builtin_LINE()) noexcept {
    try {
        return work();
    } catch (...) {
        ReportError(sourceFile, line, errorOutOfMemory, nullptr);
        return false;
    }
}

/// What a reader of an image's side file does: refuses to go without a name, and tells in `flags`, which may be null,
/// what `read` found.
template <class Read>
bool readBeside(char const* imageFileName, char const* sourceFile, std::uint32_t* flags, Read const& read,
                int line = __builtin_LINE()) noexcept {
    std::uint32_t found = 0;
    bool good = false;
    if (!imageFileName || !*imageFileName)
        ReportError(sourceFile, line, errorBadParameter, nullptr);
    else
        good = guarded(
            sourceFile, [&] { return read(found); }, line);
    if (flags)
        *flags = found;
    return good;
}

} // namespace ZrProj
