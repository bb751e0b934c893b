#include "page.h"

#include "head_comment.h"
#include "texts.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace ZrProj::docs {
namespace {

// Nearly every type has these.
constexpr std::array common{ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg};

std::string parameterName(ProjParam parameter) {
    char name[64];
    ProjParamInfo(parameter, name, nullptr, nullptr, nullptr);
    return name;
}

void writeParameters(std::ostream& out, ProjectionRow const& type, std::span<ProjParam const> parameters) {
    out << "\n| parameter | in the record | |\n|---|---|---|\n";
    for (ProjParam const parameter : parameters)
        out << "| " << parameterName(parameter) << " | `" << fieldOf(parameter) << "` | " << meaningOf(parameter, type)
            << " |\n";
}

/// The type's parameters but for the common ones.
std::vector<ProjParam> ownParameters(ProjectionRow const& type) {
    std::vector<ProjParam> parameters;
    std::ranges::copy_if(type.parameters, std::back_inserter(parameters), [](ProjParam parameter) {
        return parameter != ProjParamNone && std::ranges::find(common, parameter) == common.end();
    });
    return parameters;
}

/// What a type that does without some of the common parameters is told to do without.
void writeMissing(std::ostream& out, ProjectionRow const& type) {
    for (ProjParam const parameter : common)
        if (!ProjUsesParam(type.type, parameter))
            out << "- Not used: " << parameterName(parameter) << "\n";
}

HeadComment headOf(std::string const& file) {
    std::ifstream source(file);
    auto head = readHeadComment(source);
    for (char const* const item : {"Source", "Accuracy", "Domain"})
        if (!head.items.contains(item))
            throw std::runtime_error(file + ": the head comment has no item " + item);
    return head;
}

void writeItems(std::ostream& out, HeadComment const& head) {
    for (char const* const item : {"Source", "Departs", "Domain", "Accuracy"})
        if (auto const found = head.items.find(item); found != head.items.end())
            out << "- " << item << ": " << found->second << "\n";
}

/// The speeds of a type, or else of another type that the same formula computes.
Speeds::Row speedOf(ProjectionRow const& type, Speeds const& speeds) {
    if (auto const own = speeds.rows.find(type.key); own != speeds.rows.end())
        return own->second;
    for (auto const& other : projectionTable)
        if (auto const found = speeds.rows.find(other.key); other.method == type.method && found != speeds.rows.end())
            return found->second;
    throw std::runtime_error(std::string("speeds: no row ") + type.key);
}

void writeSpeed(std::ostream& out, Speeds::Row const& speed) {
    out << "- Speed: " << std::fixed << std::setprecision(1) << speed.forward << " ns a point forward, "
        << speed.inverse << " ns inverse\n";
}

void writeType(std::ostream& out, ProjectionRow const& type, std::string const& formulas, Speeds const& speeds) {
    auto const head = headOf(formulas + "/" + type.source + ".cpp");
    out << "\n### " << type.name << "\n\nType " << type.type << ". " << head.description << "\n";
    if (auto const own = ownParameters(type); !own.empty())
        writeParameters(out, type, own);
    out << "\n";
    writeMissing(out, type);
    writeItems(out, head);
    writeSpeed(out, speedOf(type, speeds));
}

} // namespace

void writePage(std::ostream& out, std::string const& formulas, Speeds const& speeds) {
    out << introduction << "\n" << speeds.run << "\n\nAll types but those that say so use\n";
    writeParameters(out, *projectionRow(ProjTypeMercator), common);
    for (auto const& family : families()) {
        out << "\n## " << family.title << "\n\n```console\n" << family.example << "```\n";
        for (auto const& type : projectionTable)
            if (type.family == family.family)
                writeType(out, type, formulas, speeds);
    }
}

} // namespace ZrProj::docs
