// All projections on one sheet.
#pragma once

#include "cli/map/drawing.h"

namespace ZrProj::Command {

/// A picture of each of mapViews(), with its name as title; what `content` says of title and bounds is not looked at.
MapPicture drawSheet(MapContent content, double size);

} // namespace ZrProj::Command
