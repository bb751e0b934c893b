#include "page.h"

#include "head_comment.h"
#include "texts.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iomanip>
#include <stdexcept>
#include <vector>

namespace ZrProj::docs {
namespace {

// Nearly every type has these.
constexpr std::array<int, 4> common{ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg};

std::string parameterName(int parameter) {
    char name[64];
    ProjParamInfo(parameter, name, nullptr, nullptr, nullptr);
    return name;
}

void writeParameters(std::ostream& out, ProjType type, std::span<int const> parameters) {
    out << "\n| parameter | in the record | |\n|---|---|---|\n";
    for (int const parameter : parameters)
        out << "| " << parameterName(parameter) << " | `" << fieldOf(parameter) << "` | " << meaningOf(parameter, type)
            << " |\n";
}

/// The type's parameters but for the common ones.
std::vector<int> ownParameters(ProjType type) {
    std::vector<int> parameters;
    for (int i = 0; i < ProjNumParams(type); ++i)
        if (int const parameter = ProjEnumParam(type, i); std::ranges::find(common, parameter) == common.end())
            parameters.push_back(parameter);
    return parameters;
}

/// What a type that does without some of the common parameters is told to do without.
void writeMissing(std::ostream& out, ProjType type) {
    for (int const parameter : common)
        if (!ProjUsesParam(type, parameter))
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

void writeSpeed(std::ostream& out, Speeds const& speeds, std::string const& row) {
    auto const found = speeds.rows.find(row);
    if (found == speeds.rows.end())
        throw std::runtime_error("speeds: no row " + row);
    out << "- Speed: " << std::fixed << std::setprecision(1) << found->second.forward << " ns a point forward, "
        << found->second.inverse << " ns inverse\n";
}

void writeMember(std::ostream& out, Member const& member, std::string const& formulas, Speeds const& speeds) {
    char name[64];
    ProjGetProjectionInfo(member.type, name);
    auto const head = headOf(formulas + "/" + member.formula + ".cpp");
    out << "\n### " << name << "\n\nType " << member.type << ". " << head.description << "\n";
    if (auto const own = ownParameters(member.type); !own.empty())
        writeParameters(out, member.type, own);
    out << "\n";
    writeMissing(out, member.type);
    writeItems(out, head);
    writeSpeed(out, speeds, member.benchmark);
}

/// The types that compute a map: all but 0 and the two of the State Plane.
void expectEveryType() {
    int members = 0;
    for (auto const& family : families())
        members += static_cast<int>(family.members.size());
    if (members != ProjNumProjections() - 3)
        throw std::runtime_error("the families do not hold every type");
}

} // namespace

void writePage(std::ostream& out, std::string const& formulas, Speeds const& speeds) {
    expectEveryType();
    out << introduction << "\n" << speeds.run << "\n\nAll types but those that say so use\n";
    writeParameters(out, ProjTypeMercator, common);
    for (auto const& family : families()) {
        out << "\n## " << family.title << "\n\n```console\n" << family.example << "```\n";
        for (auto const& member : family.members)
            writeMember(out, member, formulas, speeds);
    }
}

} // namespace ZrProj::docs
