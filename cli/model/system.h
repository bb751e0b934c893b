// Coordinate systems of the library, by whatever says them: definitions, files of definitions, records.
#pragma once

#include "cli/model/units.h"

#include <zrproj/c.h>
#include <zrproj/zrproj.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ZrProj::Command {

enum class MadeBy { Definition, Parameters };

class System {
public:
    /// Takes the handle over.
    explicit System(zrproj_system* handle, MadeBy madeBy = MadeBy::Definition);

    zrproj_system const* handle() const { return m_handle.get(); }
    bool isGeographic() const { return m_unit.metres == 0; }
    /// Whether it is computed by the formulas of the records, which hold less far than those of definitions.
    bool isByParameters() const { return m_madeBy == MadeBy::Parameters; }

    /// A text of the form. Throws std::runtime_error where the form cannot say the system.
    std::string text(zrproj_format format) const;

    /// "EPSG:28992"; "" for a system that is not in the register.
    std::string code() const;

    /// "Amersfoort / RD New (EPSG:28992)".
    std::string title() const;

    /// Of a projected system's coordinates; lives as long as the system.
    LengthUnit const& unit() const { return m_unit; }

    /// The system of the longitudes and latitudes that this one is based on.
    std::shared_ptr<System const> geographic() const;

private:
    struct Destroy {
        void operator()(zrproj_system* handle) const { zrproj_system_destroy(handle); }
    };

    std::unique_ptr<zrproj_system, Destroy> m_handle;
    LengthUnit m_unit{};
    MadeBy m_madeBy;
};

using SystemPointer = std::shared_ptr<System const>;

/// The system of a definition: a code, a name, well-known text, PROJJSON or a PROJ string. What was noticed goes to
/// standard error. Throws std::runtime_error with the reason.
SystemPointer systemOfDefinition(std::string const& definition);

/// The same of a definition in a file, a .prj file for one.
SystemPointer systemOfFile(std::string const& file);

/// A definition, or the path of a file that holds one.
SystemPointer systemNamed(std::string const& definitionOrFile);

/// Of parameters, or of a record without a datum. Throws UsageError where they make none.
SystemPointer systemOfParameters(zrproj_parameters const& parameters);
SystemPointer systemOfRecord(PROJDATA const& record);

/// The form that a word names: "wkt2", "wkt1", "esri", "proj", "projjson", "code", "name". Throws UsageError.
zrproj_format formatNamed(std::string_view word);

} // namespace ZrProj::Command
