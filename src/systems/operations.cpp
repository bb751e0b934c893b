#include "systems/operations.h"

#include "systems/register.h"
#include "systems/register/tables.h"

#include <algorithm>
#include <limits>
#include <set>

namespace ZrProj::systems {
namespace {

using namespace rows;

Code datumAt(std::uint16_t system) {
    return systems[system].base;
}

std::string nameOf(OperationRow const& row) {
    if (row.name < numbered)
        return at(row.name);
    return at(systems[row.from].name) + " to " + at(systems[row.to].name) + " (" + std::to_string(row.name - numbered) +
           ")";
}

/// The last operand is the epoch where there is one more than translations, rotations and scale, and pivot take.
void setShift(Operation& operation, OperationRow const& row) {
    std::size_t const count = row.count, taken = count == 4 || count == 8 || count == 11 ? count - 1 : count;
    for (std::size_t i = 0; i < taken; ++i)
        operation.parameters[i] = shifts[operands[row.operands + i]];
    operation.epoch = taken == count ? 0 : shifts[operands[row.operands + taken]];
}

void setGrid(Operation& operation, GridRow const& row) {
    operation.grids = {at(row.first), at(row.second)};
    operation.gridCopy = at(row.copy);
    operation.copyIsReversed = row.copyIsReversed;
}

void setOperands(Operation& operation, OperationRow const& row) {
    auto const* const first = operands + row.operands;
    switch (row.method) {
    case OperationMethod::geocentric:
    case OperationMethod::offsets:
        return setShift(operation, row);
    case OperationMethod::nadcon:
    case OperationMethod::ntv2:
    case OperationMethod::unsupported:
        return setGrid(operation, grids[*first]);
    case OperationMethod::concatenated:
        return operation.steps.assign(first, first + row.count);
    default:
        return;
    }
}

Operation unfolded(OperationRow const& row) {
    Operation operation;
    operation.code = row.code;
    operation.name = nameOf(row);
    operation.from = datumAt(row.from);
    operation.to = datumAt(row.to);
    operation.method = row.method;
    setOperands(operation, row);
    operation.accuracy = row.accuracy == 0 ? std::numeric_limits<double>::quiet_NaN() : accuracies[row.accuracy];
    operation.area = areaOf(areas[row.area]);
    operation.deprecated = (row.marks & deprecated) != 0;
    operation.superseded = (row.marks & superseded) != 0;
    operation.flat = (row.marks & flat) != 0;
    return operation;
}

/// What makes a realization of its ensemble.
Operation realization(Code ensemble, Code member) {
    Datum const whole = *datumOf(ensemble), part = *datumOf(member);
    Operation operation;
    operation.name = whole.name + " to " + part.name;
    operation.from = ensemble;
    operation.to = member;
    operation.accuracy = whole.ensembleAccuracy;
    return operation;
}

/// The other ends of the operations that are meant and of the ensembles, in the order of codes.
std::vector<Code> otherEnds(Code datum, bool (*isMeant)(OperationRow const&)) {
    std::set<Code> ends;
    auto const join = [&](Code start, Code end) {
        if (start == datum)
            ends.insert(end);
        if (end == datum)
            ends.insert(start);
    };
    for (OperationRow const& row : operations)
        if (isMeant(row))
            join(datumAt(row.from), datumAt(row.to));
    for (RealizationRow const& row : realizations)
        join(row.code, row.ensemble);
    ends.erase(datum);
    return {ends.begin(), ends.end()};
}

} // namespace

std::optional<Operation> operationOf(Code code) {
    auto const* row = find(operations, code);
    return row ? std::optional(unfolded(*row)) : std::nullopt;
}

std::vector<DirectedOperation> operationsBetween(Code from, Code to) {
    std::vector<DirectedOperation> found;
    for (OperationRow const& row : operations) {
        Code const start = datumAt(row.from), end = datumAt(row.to);
        if (start == from && end == to)
            found.push_back({unfolded(row), false});
        else if (start == to && end == from)
            found.push_back({unfolded(row), true});
    }
    if (ensembleOf(to) == from)
        found.push_back({realization(from, to), false});
    if (ensembleOf(from) == to)
        found.push_back({realization(to, from), true});
    return found;
}

std::vector<Code> datumsBeside(Code datum) {
    return otherEnds(datum, [](OperationRow const&) { return true; });
}

std::vector<Code> datumsTakenFor(Code datum) {
    return otherEnds(datum, [](OperationRow const& row) { return row.method == OperationMethod::null; });
}

} // namespace ZrProj::systems
