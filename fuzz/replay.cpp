// Runs a fuzz target over the files of a directory: the corpus as an ordinary test.
#include "fuzz/input_file.h"

#include <cstdio>

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (auto const& entry : std::filesystem::directory_iterator(argv[i])) {
            std::string const bytes = bytesOf(entry.path().string());
            LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
