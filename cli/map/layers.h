// What a map is drawn of, each as SVG elements.
#pragma once

#include "cli/map/drawing.h"
#include "cli/map/paper.h"

namespace ZrProj::Command {

std::string seaLayer(MapPaper& paper);
std::string landLayer(MapPaper& paper, std::vector<Places> const& land);
std::string graticuleLayer(MapPaper& paper, double step);
/// What circles of 0.05 radii around every `step` degrees become, by the scales at their centres.
std::string ellipseLayer(MapPaper& paper, double step);
std::string outlineLayer(MapPaper& paper);
/// Points, with the names that fit between those before.
std::string pointLayer(MapPaper& paper, std::vector<LabelledPlace> const& points);

} // namespace ZrProj::Command
