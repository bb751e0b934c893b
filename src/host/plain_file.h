// Plain files as streams of text, opened and deleted such that nothing waits and nothing else is touched.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace ZrProj {

/// Closes a stream that goes out of scope; what closing tells is lost.
struct StreamCloser {
    void operator()(std::FILE* stream) const noexcept { static_cast<void>(std::fclose(stream)); }
};
using Stream = std::unique_ptr<std::FILE, StreamCloser>;

/// Opens a plain file for reading. Returns null where there is none; directories, pipes and devices, which may have no
/// end, are not opened.
Stream openPlainFile(std::string const& name) noexcept;

/// Makes a file, or empties it, for writing. Returns null where that fails. A device is written to as it is; a pipe is
/// not opened, since its reader may never come.
Stream createFile(std::string const& name) noexcept;

/// The size of an open file in bytes; 0 where it cannot be told.
std::uint64_t fileSize(std::FILE& stream) noexcept;

/// What deleting a file came to.
enum class Deletion { Done, NothingThere, NotPlain, Failed };

/// Deletes a plain file. Links, directories, pipes and devices stay.
Deletion deletePlainFile(std::string const& name) noexcept;

} // namespace ZrProj
