// zrproj-conformity FILE...: runs files of gie, and tables (.tsv) of printed examples; tells what fails, and how much
// passes.
#include "gie.h"
#include "printed.h"

#include <fstream>
#include <iostream>
#include <span>
#include <string>

using namespace ZrProj::Conformity;

namespace {

bool run(std::string const& path) {
    Report report(path.substr(path.find_last_of('/') + 1));
    std::ifstream file(path);
    if (!file)
        report.fail(0, "cannot be read");
    else if (path.ends_with(".tsv"))
        runPrinted(file, report);
    else
        runGie(file, report);
    return report.finish();
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::cerr << "usage: zrproj-conformity FILE...\n";
        return 2;
    }
    bool good = true;
    for (char const* path : std::span(arguments, static_cast<std::size_t>(count)).subspan(1))
        good = run(path) && good;
    return good ? 0 : 1;
}
