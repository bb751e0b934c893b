// Grid files for the tests, written beside the running program, and gone with the object.
#pragma once

#include "host/platform.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

namespace ZrProj::test {

/// A header as it stands at byte 64 of a grid file.
struct GridHeader {
    std::int32_t columns, rows, values;
    float xmin, dx, ymin, dy;
};

class GridFiles {
public:
    explicit GridFiles(std::string name = "zrproj-test-" + std::to_string(getpid())) : name_(std::move(name)) {}
    ~GridFiles() {
        std::filesystem::remove(path(".LAS"));
        std::filesystem::remove(path(".LOS"));
    }
    GridFiles(GridFiles const&) = delete;
    GridFiles& operator=(GridFiles const&) = delete;

    char const* name() const { return name_.c_str(); }
    std::string path(char const* extension) const { return executableDirectory() + '/' + name_ + extension; }

    /// Writes a file whose value in row r and column c (column 0 is the leading word) is value(r, c). The header takes
    /// 23 words, so that a grid of 22 columns or more keeps all of its rows.
    template <class Value> void write(char const* extension, GridHeader const& header, Value const& value) const {
        auto const record = static_cast<std::size_t>(header.columns) + 1;
        std::vector<float> words(record * (static_cast<std::size_t>(header.rows) + 1));
        for (std::size_t i = record; i < words.size(); ++i)
            words[i] = static_cast<float>(value(static_cast<int>(i / record), static_cast<int>(i % record)));
        std::vector<char> bytes(words.size() * sizeof(float));
        std::memcpy(bytes.data(), words.data(), bytes.size());
        std::memcpy(bytes.data() + 64, &header, sizeof header);
        writeBytes(extension, bytes);
    }

    void writeBytes(char const* extension, std::vector<char> const& bytes) const {
        std::ofstream(path(extension), std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

private:
    std::string name_;
};

} // namespace ZrProj::test
