// Files of GeoJSON in, the same out with their coordinates converted.
#pragma once

#include "cli/geojson/clip.h"
#include "cli/geojson/reader.h"
#include "cli/points/conversion.h"
#include "cli/points/report.h"

#include <optional>
#include <string>

namespace ZrProj::Command {

/// Whether a file's name tells that it holds GeoJSON.
bool isGeoJsonName(std::string_view name);

class GeoJsonConversion : private GeoJsonSink {
public:
    /// job: without columns, and without a zone for each point. clip: for results on a map, to cut geometries to what
    /// it shows. Throws UsageError when the projection or the datums cannot convert.
    GeoJsonConversion(ConversionJob job, bool clip, Output& output);

    /// Returns the exit status.
    int run();

private:
    void openCollection(std::string const& members) override;
    void closeCollection(std::string const& members) override;
    void feature(GeoObject object, std::string const& fault) override;
    bool goesOn() const override { return m_output.error() == 0; }

    bool convertFile(std::string const& name);
    void convert(GeoObject& object);
    void convertGeometry(GeoObject& geometry);
    void convertWhole(GeoObject& geometry);
    void fillBlock(std::vector<PROJPOINT> const& points);
    void report(std::size_t i);

    void clip(GeoObject& geometry);
    void shiftPoints(std::vector<PROJPOINT>& points);
    void clipPoints(GeoObject& geometry);
    void clipLines(GeoObject& geometry);
    void clipPolygons(GeoObject& geometry);
    void project(Paths& paths);

    ConversionJob m_job;
    Output& m_output;
    std::optional<Transform> m_shift; // where that comes before the cutting
    Transform m_transform;
    Units m_units;
    System const* m_map; // to cut to; null for no cutting
    Progress m_progress;
    Report m_report;

    unsigned long long m_bytesBefore = 0; // read from earlier files
    std::uint64_t m_number = 0;           // of the feature in its file
    bool m_inCollection = false, m_isFirst = false;
    PointBlock m_block;
};

} // namespace ZrProj::Command
