// The catalogue of projection types and their parameters, as callers see it.
#include "proj/parameter_table.h"
#include "proj/projection_table.h"

#include <algorithm>
#include <cstring>

namespace ZrProj {
int ProjNumProjections() {
    return static_cast<int>(projectionTable.size());
}

unsigned ProjGetProjectionInfo(ProjType type, char* name) {
    auto const* const row = projectionRow(type);
    if (name)
        std::strcpy(name, row ? row->name : type == ProjTypeUndefined ? "undefined" : "");
    return row ? row->bits : 0;
}

int ProjNumParams(ProjType type) {
    auto const* const row = projectionRow(type);
    return row ? static_cast<int>(std::ranges::find(row->parameters, ProjParamNone) - row->parameters.begin()) : -1;
}

int ProjEnumParam(ProjType type, int index) {
    if (index < 0 || index >= ProjNumParams(type))
        return ProjParamNone;
    return projectionRow(type)->parameters[static_cast<std::size_t>(index)];
}

bool ProjUsesParam(ProjType type, int id) {
    auto const* const row = projectionRow(type);
    return row && id != ProjParamNone && std::ranges::find(row->parameters, id) != row->parameters.end();
}

bool ProjParamInfo(int id, char* name, ProjDataType* type, int* offset, int* size) {
    auto const row = parameterRow(id);
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
    auto const row = parameterRow(id);
    if (!row || !data || !value)
        return false;
    std::memcpy(value, reinterpret_cast<char const*>(data) + row->offset, static_cast<std::size_t>(row->size));
    return true;
}

bool ProjSetParam(PROJDATA* data, int id, void const* value) {
    auto const row = parameterRow(id);
    if (!row || !data || !value)
        return false;
    std::memcpy(reinterpret_cast<char*>(data) + row->offset, value, static_cast<std::size_t>(row->size));
    return true;
}

} // namespace ZrProj
