// The bytes of a fuzzer as a side file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

/// A directory of the process's own, gone with it.
class FuzzDirectory {
public:
    FuzzDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "zrproj-fuzz-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no temporary directory");
        path_ = name;
    }
    ~FuzzDirectory() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    FuzzDirectory(FuzzDirectory const&) = delete;
    FuzzDirectory& operator=(FuzzDirectory const&) = delete;

    std::string file(char const* name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

/// The name of a file in that directory.
inline std::string fuzzFile(char const* name) {
    static FuzzDirectory const directory;
    return directory.file(name);
}

inline void writeFuzzFile(std::string const& name, std::uint8_t const* data, std::size_t size) {
    std::ofstream(name, std::ios::binary)
        .write(reinterpret_cast<char const*>(data), static_cast<std::streamsize>(size));
}

inline std::string bytesOf(std::string const& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// What must hold, holds; otherwise the fuzzer has found something.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);
