// Writes docs/projection-types.md: what each projection type is, from the library's own catalogue, the head comments of
// the formulas, and the speeds of a benchmark run.
//
//     zrproj-projection-types FORMULAS SPEEDS > docs/projection-types.md
#include "page.h"

#include <exception>
#include <fstream>
#include <iostream>

int main(int argc, char** argv) try {
    using namespace ZrProj::docs;
    if (argc != 3) {
        std::cerr << "usage: zrproj-projection-types FORMULAS SPEEDS\n";
        return 2;
    }
    std::ifstream speeds(argv[2]);
    writePage(std::cout, argv[1], readSpeeds(speeds));
    return std::cout.flush() ? 0 : 1;
} catch (std::exception const& fault) {
    std::cerr << "zrproj-projection-types: " << fault.what() << "\n";
    return 1;
}
