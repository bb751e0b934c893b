// The way from one coordinate system to another.
#pragma once

#include "cli/model/system.h"

#include <zrproj/c.h>

#include <memory>
#include <string>

namespace ZrProj::Command {

struct WayOptions {
    std::string grids;         // folders to look for grids in, before the usual ones
    bool refusesRough = false; // ways that lose more than 1 m, or nobody knows how much
};

class Way {
public:
    /// Throws std::runtime_error with the reason where there is none.
    Way(SystemPointer from, SystemPointer to, WayOptions options = {});

    System const& from() const { return *m_from; }
    System const& to() const { return *m_to; }
    zrproj_transform const* handle() const { return m_handle.get(); }

    /// Of what leads from datum to datum, in metres: 0 where nothing does, NaN where nobody states it.
    double accuracy() const { return told().accuracy; }

    /// What it does, a line a step, and how accurate that is where it leads from datum to datum.
    std::string description() const;

    /// The parts that it falls into where its end is a map: to the longitudes and latitudes that the map is based on,
    /// and onto the map.
    std::shared_ptr<Way const> toPlaces() const;
    std::shared_ptr<Way const> ontoMap() const;

private:
    struct Destroy {
        void operator()(zrproj_transform* handle) const { zrproj_transform_destroy(handle); }
    };

    struct Told {
        std::string text;
        double accuracy = 0;
    };

    Told told() const;

    SystemPointer m_from, m_to;
    WayOptions m_options;
    std::unique_ptr<zrproj_transform, Destroy> m_handle;
};

using WayPointer = std::shared_ptr<Way const>;

} // namespace ZrProj::Command
