// Citations: what keys say in words. Writers put there what the keys have no numbers for.
#pragma once

#include "files/geotiff/keys.h"
#include "systems/definition.h"

namespace ZrProj::GeoTIFF {

/// What stands behind a label ("Datum = ") in a text, up to the next '|'; "" where the label is missing.
std::string labelled(std::string_view text, std::string_view label);

/// The well-known text that a citation holds ("ESRI PE String = PROJCS[...]"); "" for none.
std::string esriText(KeyDirectory const& keys);

/// The register's projected system that a citation names; 0 for none.
systems::Code systemCited(KeyDirectory const& keys);

} // namespace ZrProj::GeoTIFF
