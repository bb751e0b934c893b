// How the fields of a record are written in a reference file and read back.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj {

struct Encoding {
    /// Appends a field's text; false where its line is left out.
    bool (*write)(void const* field, std::string& text);
    /// Sets a field from its text, which never fails: what cannot be understood gets a value that says so.
    void (*read)(void* field, std::string_view text);
};

extern Encoding const realValue, flagValue, integerValue;
extern Encoding const projectionName, stateZoneName, ellipsoidName, datumName, datumMethodName, georefMethodName;

} // namespace ZrProj
