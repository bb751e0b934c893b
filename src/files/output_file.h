// A text file being written. What was written counts only when close() has said so: a full disk may show as late as
// that.
#pragma once

#include "host/plain_file.h"

#include <string_view>

namespace ZrProj {

class OutputFile {
public:
    explicit OutputFile(std::string const& name) : stream_(createFile(name)) {}

    bool isOpen() const { return stream_ != nullptr; }
    /// False when this, or anything before it, could not be written.
    bool write(std::string_view text) {
        return std::fwrite(text.data(), 1, text.size(), stream_.get()) == text.size() && !std::ferror(stream_.get());
    }
    /// The same once all of it is out.
    bool close() {
        bool const good = !std::ferror(stream_.get());
        return std::fclose(stream_.release()) == 0 && good;
    }

private:
    Stream stream_;
};

} // namespace ZrProj
