// GeoJSON taken apart feature by feature: a FeatureCollection, one object, or a sequence of objects (one a line, or by
// RFC 8142).
#pragma once

#include "cli/geojson/byte_source.h"
#include "cli/geojson/object.h"

#include <string>

namespace ZrProj::Command {

/// Takes what a file holds, in its order.
class GeoJsonSink {
public:
    virtual ~GeoJsonSink() = default;

    /// A FeatureCollection's members before its features, and those behind them, each as ,"name":value.
    virtual void openCollection(std::string const& members) = 0;
    virtual void closeCollection(std::string const& members) = 0;
    /// A feature of a collection, or a feature or geometry by itself. fault: "", or why it cannot be converted.
    virtual void feature(GeoObject object, std::string const& fault) = 0;
    /// Whether anybody still wants more.
    virtual bool goesOn() const = 0;
};

/// Reads all that the source has; memory is that of the largest feature. Members named bbox or crs, which tell of the
/// coordinates as they were, are left out. Returns "", or what is wrong with the text; nothing behind it is read.
std::string readGeoJson(ByteSource& source, GeoJsonSink& sink);

} // namespace ZrProj::Command
