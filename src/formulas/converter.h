// What the engine sees of the formulas: the operations of each, and what a projection made ready for its parameters is.
// The same for every processor level.
#pragma once

#include "formulas/map_edges.h"
#include "formulas/method.h"
#include "formulas/parameters.h"
#include "levels/level.h"
#include "levels/stage.h"

#include <zrproj/projection.h>

#include <cstddef>
#include <optional>

namespace ZrProj::formulas {

/// A projection made ready: the formula's constants, and its two directions as stages between degrees and map
/// coordinates, whose code is empty where the parameters define no map.
struct Converter {
    using Direction = levels::StageCode Converter::*;

    levels::StageCode forward, inverse;
    levels::Convert* driver = nullptr; // at the level of the stages
    double xOrg = 0, yOrg = 0, scale = 1;
    double fullTurn = 360; // what a longitude of 360 degrees comes back as: where that is an edge, just inside
    alignas(std::max_align_t) std::byte constants[3072];

    /// A stage lives no longer than the converter, and only while that stays where it is.
    levels::Stage stageOf(Direction direction) const { return {this->*direction, this}; }

    /// Where there is a map.
    levels::Outcome convert(Direction direction, levels::Points points, levels::Marking const& marking) const {
        auto const stage = stageOf(direction);
        return driver(&stage, 1, points, marking);
    }
};

/// The operations of a formula. All but `prepare` take points in degrees.
struct Formula {
    void (*prepare)(Converter& converter, Parameters const& given) noexcept;
    bool (*inProjection)(ParametersInDegrees const& given, PROJPOINT const& point) noexcept;
    bool (*offsetSplitObject)(ParametersInDegrees const& given, PROJPOINT const* points, unsigned count, double* out1,
                              double* out2) noexcept;
    MapEdges (*edges)(ParametersInDegrees const& given) noexcept; // where there is a map
};

/// The formulas of a processor level, in the order of Method.
struct FormulaSet {
    Formula (*byMethod[methodCount])() noexcept;
};

/// A formula at the level in use; nothing for Method::none.
inline std::optional<Formula> formulaOf(Method method) noexcept {
    if (method == Method::none)
        return {};
    return levels::operationsInUse<FormulaSet>().byMethod[static_cast<std::size_t>(method)]();
}

} // namespace ZrProj::formulas
