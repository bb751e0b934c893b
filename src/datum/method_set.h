// The operations of one processor level, one for each source.
#pragma once

#include "datum/step.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {

void read(Block& block, DATUMPOINT const* points, int count) noexcept;
void cut(Block& block) noexcept;
void restore(Block& block) noexcept;
bool write(Block const& block, DATUMPOINT* points) noexcept;
void prepareMolodensky(Step& step, DATUM2WGS84 const& record) noexcept;
void prepareBursaWolf(Step& step, DATUM2WGS84 const& record) noexcept;
void prepareRegression(Step& step, DatumType type) noexcept;

} // namespace ZrProj::datum::ZRPROJ_LEVEL
