// The catalogue of projection types and their parameters, as callers see it.
#include "proj/method_table.h"
#include "proj/parameter_table.h"

#include <algorithm>
#include <cstring>

namespace ZrProj {
namespace {

ParameterRow const* findParameter(int id) {
    auto const row = std::ranges::find(parameterTable, id, &ParameterRow::id);
    return row == parameterTable.end() ? nullptr : &*row;
}

ParameterUse const* findUse(ProjType type) {
    auto const row = std::ranges::find(parameterUseTable, type, &ParameterUse::type);
    return row == parameterUseTable.end() ? nullptr : &*row;
}

} // namespace

int ProjNumProjections() {
    return static_cast<int>(methodTable.size());
}

unsigned ProjGetProjectionInfo(ProjType type, char* name) {
    bool const known = type >= 0 && type < ProjNumProjections();
    auto const row = known                       ? methodTable[static_cast<std::size_t>(type)]
                     : type == ProjTypeUndefined ? MethodRow{"undefined", 0}
                                                 : MethodRow{"", 0};
    if (name)
        std::strcpy(name, row.name);
    return row.bits;
}

int ProjNumParams(ProjType type) {
    auto const use = findUse(type);
    return use ? static_cast<int>(std::ranges::find(use->ids, ProjParamNone) - use->ids.begin()) : -1;
}

int ProjEnumParam(ProjType type, int index) {
    if (index < 0 || index >= ProjNumParams(type))
        return ProjParamNone;
    return findUse(type)->ids[static_cast<std::size_t>(index)];
}

bool ProjUsesParam(ProjType type, int id) {
    auto const use = findUse(type);
    return use && id != ProjParamNone && std::ranges::find(use->ids, id) != use->ids.end();
}

bool ProjParamInfo(int id, char* name, ProjDataType* type, int* offset, int* size) {
    auto const row = findParameter(id);
    if (!row)
        return false;
    if (name)
        std::strcpy(name, row->name);
    if (type)
        *type = row->type;
    if (offset)
        *offset = row->offset;
    if (size)
        *size = row->size;
    return true;
}

bool ProjGetParam(PROJDATA const* data, int id, void* value) {
    auto const row = findParameter(id);
    if (!row || !data || !value)
        return false;
    std::memcpy(value, reinterpret_cast<char const*>(data) + row->offset, static_cast<std::size_t>(row->size));
    return true;
}

bool ProjSetParam(PROJDATA* data, int id, void const* value) {
    auto const row = findParameter(id);
    if (!row || !data || !value)
        return false;
    std::memcpy(reinterpret_cast<char*>(data) + row->offset, value, static_cast<std::size_t>(row->size));
    return true;
}

} // namespace ZrProj
