// What files say of a map: read and written one by one, and put together for an image.
#include "door/fit.h"
#include "door/parameters.h"
#include "door/system.h"
#include "files/geotiff/system.h"
#include "files/geotiff/tags.h"
#include "files/side_file.h"
#include "georef/method_table.h"
#include "systems/recognition.h"
#include "systems/to_record.h"

#include <zrproj/geotiff.h>
#include <zrproj/reffile.h>

#include <limits>
#include <sstream>

using namespace ZrProj;
using namespace ZrProj::Door;

struct zrproj_description {
    PROJDATA projection{};
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 shift{};
    std::optional<systems::Definition> system; // as a definition says it, whether a record can say it or not
    int method = TransformMethodNone;
    std::vector<GEOREFPOINT> source, target;
    std::array<double, 6> coefficients{};
    bool isOneNumber = false;           // the coefficients are all that a reference file keeps of them
    std::array<std::string, 3> files{}; // by zrproj_part: which file told it
    std::vector<std::string> notes;     // what was told and is not in here

    zrproj_description() { projection.Type = ProjTypeUndefined; }

    bool hasProjection() const { return projection.Type != ProjTypeUndefined; }
    bool hasDatum() const { return datum != DatumTypeNone; }
    bool tellsOfSystem() const { return hasProjection() || hasDatum() || system; }
    bool hasGeoreference() const { return method != TransformMethodNone; }
    bool isByCoefficients() const { return method == TransformMethodPrecalculatedAffineCoefficients; }
};

struct zrproj_side_files {
    std::vector<SideFile> files;
};

struct zrproj_tags {
    ZrBitmapTag* tags = nullptr;
    int count = 0;

    zrproj_tags() = default;
    zrproj_tags(zrproj_tags const&) = delete;
    zrproj_tags& operator=(zrproj_tags const&) = delete;
    ~zrproj_tags() { ZrProjDiscardGeoTIFFTags(tags, count); }
};

namespace {

void takeGeoreference(zrproj_description& description, GEOREF const& georef) {
    description.method = georef.Method;
    if (description.isByCoefficients())
        description.coefficients = {georef.A, georef.B, georef.C, georef.D, georef.E, georef.F};
    else if (georef.pSource && georef.nControls > 0) {
        auto const count = static_cast<std::size_t>(georef.nControls);
        description.source.assign(georef.pSource, georef.pSource + count);
        description.target.assign(georef.pTarget, georef.pTarget + count);
    }
}

void take(zrproj_description& description, MapRecord const& record, std::string const& file) {
    description.projection = record.projection;
    description.datum = record.datum;
    description.shift = record.datumParameters;
    takeGeoreference(description, record.georef);
    description.files.fill(file);
}

/// A record of what a description says; its control points stay the description's.
MapRecord mapRecordOf(zrproj_description const& description) {
    MapRecord record = emptyMapRecord();
    record.projection = description.projection;
    record.datum = description.datum;
    record.datumParameters = description.shift;
    GEOREF& georef = record.georef;
    georef.Method = static_cast<TransformMethod>(description.method);
    auto const& c = description.coefficients;
    georef.A = c[0], georef.B = c[1], georef.C = c[2], georef.D = c[3], georef.E = c[4], georef.F = c[5];
    georef.nControls = static_cast<std::int32_t>(description.source.size());
    if (georef.nControls > 0) { // nobody writes to them
        georef.pSource = const_cast<GEOREFPOINT*>(description.source.data());
        georef.pTarget = const_cast<GEOREFPOINT*>(description.target.data());
    }
    return record;
}

/// Takes from a later source what the earlier ones did not tell.
void addLater(zrproj_description& description, zrproj_description const& later) {
    bool const tellsOfSystem = description.tellsOfSystem(), hasOwnDatum = description.system.has_value();
    if (!description.hasProjection() && !description.system) {
        description.projection = later.projection;
        description.files[ZRPROJ_PROJECTION] = later.files[ZRPROJ_PROJECTION];
    }
    if (!tellsOfSystem)
        description.system = later.system;
    if (!description.hasDatum() && !hasOwnDatum) {
        description.datum = later.datum;
        description.shift = later.shift;
        description.files[ZRPROJ_DATUM] = later.files[ZRPROJ_DATUM];
    }
    bool const yields = description.isOneNumber && later.hasGeoreference() && !later.isOneNumber;
    if (!description.hasGeoreference() || yields) {
        description.method = later.method;
        description.source = later.source;
        description.target = later.target;
        description.coefficients = later.coefficients;
        description.isOneNumber = later.isOneNumber;
        description.files[ZRPROJ_GEOREFERENCE] = later.files[ZRPROJ_GEOREFERENCE];
    }
    description.notes.insert(description.notes.end(), later.notes.begin(), later.notes.end());
}

std::string joined(std::vector<std::string> const& notes) {
    std::string text;
    for (std::string const& note : notes)
        text += (text.empty() ? "" : "; ") + note;
    return text;
}

/// What the tags say that no record can, or what is wrong with them, line by line.
std::vector<std::string> explanations(ZrBitmapTagList const& tags) {
    std::array<char, 2048> text{};
    ZrProjExplainGeoTIFF(tags, text.data(), static_cast<int>(text.size()));
    std::vector<std::string> lines;
    std::istringstream in(text.data());
    for (std::string line; std::getline(in, line);)
        if (!line.empty())
            lines.push_back(std::move(line));
    return lines;
}

Answer listTags(zrproj_tag const* tags, std::size_t count, ZrBitmapTagList& list) {
    if (count > 0 && !tags)
        return badArgument("null pointer to tags");
    for (zrproj_tag const& tag : std::span(tags, count))
        if (!list.Add({tag.id, tag.type, tag.count, tag.data}))
            return badArgument("tag " + std::to_string(tag.id) + " has no data, or a type that TIFF does not have");
    return {};
}

/// Longitudes and latitudes are degrees here, whatever their unit in tags.
void scaleMap(zrproj_description& description, double factor) {
    for (double& coefficient : description.coefficients)
        coefficient *= factor;
    for (GEOREFPOINT& point : description.target)
        point = {point.x * factor, point.y * factor};
}

Answer readTags(zrproj_tag const* tags, std::size_t count, std::string const& image, zrproj_description& description) {
    ZrBitmapTagList list;
    if (Answer listed = listTags(tags, count, list); !listed.isGood())
        return listed;
    OwnedMapRecord record;
    std::vector<std::string> notes = explanations(list);
    if (!ZrProjGetGeoTIFF(list, &record.projection, &record.datum, &record.datumParameters, &record.georef, nullptr))
        return fileFailure(notes.empty() ? "" : notes.front());
    take(description, record, image);
    if (auto system = GeoTIFF::systemOf(list)) {
        scaleMap(description, system->degrees);
        description.system = std::move(system->definition);
    }
    description.notes = std::move(notes);
    return {ZRPROJ_OK, joined(description.notes)};
}

FileOutcome readFile(SideFile const& file, zrproj_description& description) {
    OwnedMapRecord record;
    FileOutcome outcome = readSideFile(file.name, file.kind, record);
    if (outcome.failure.empty())
        take(description, record, file.name);
    description.isOneNumber = file.kind == SideFileKind::reference && description.isByCoefficients();
    description.notes = outcome.notes;
    return outcome;
}

/// Every side file of the image, then its tags, each part from the first that has it.
Answer readImage(std::string const& image, zrproj_tag const* tags, std::size_t count, zrproj_description& found) {
    for (SideFile const& file : sideFilesOf(image)) {
        zrproj_description told;
        FileOutcome const outcome = readFile(file, told);
        if (!outcome.failure.empty())
            told.notes = {outcome.failure + "; passed over"};
        addLater(found, told);
    }
    zrproj_description tagged;
    Answer const read = readTags(tags, count, image, tagged);
    if (read.status == ZRPROJ_BAD_ARGUMENT)
        return read;
    if (!read.isGood())
        tagged.notes = {"the GeoTIFF tags of " + inQuotes(image) + " are damaged: " + read.message + "; passed over"};
    addLater(found, tagged);
    return {ZRPROJ_OK, joined(found.notes)};
}

/// Whether parameters are longitudes and latitudes, or a datum, that need no ellipsoid and have none.
bool hasNoFigure(zrproj_parameters const& parameters) {
    return parameters.type == ProjTypeUnprojectedLatLong && !hasDatum(parameters) &&
           parameters.ellipsoid == EllipsoidTypeUserDefined && parameters.radius == 0;
}

/// The system of a caller's parameters, completed.
Answer takeParameters(zrproj_description& description, zrproj_parameters const& given) {
    bool const isDatumAlone = given.type == ProjTypeUndefined;
    zrproj_parameters parameters = given;
    if (isDatumAlone)
        parameters.type = ProjTypeUnprojectedLatLong;
    if (Answer completed = hasNoFigure(parameters) ? Answer{} : complete(parameters); !completed.isGood())
        return completed;
    description.projection = recordOf(parameters);
    if (isDatumAlone)
        description.projection.Type = ProjTypeUndefined;
    if (isDatumAlone ? parameters.datum != DatumTypeNone : hasDatum(parameters)) {
        description.datum = static_cast<DatumType>(parameters.datum);
        description.shift = shiftOf(parameters);
    }
    return {};
}

Answer takeGeoreference(zrproj_description& description, zrproj_georeference const& given) {
    if (!isGeorefMethod(static_cast<TransformMethod>(given.method)))
        return unknown("there is no method " + std::to_string(given.method) + " of georeferencing");
    description.method = given.method;
    if (description.isByCoefficients()) {
        std::ranges::copy(given.coefficients, description.coefficients.begin());
        return areFinite(given.coefficients) ? Answer{} : badArgument("a coefficient is not finite");
    }
    if (Answer checked = checkPairs(given.source, given.target, given.count); !checked.isGood())
        return checked;
    if (given.count == 0)
        return badArgument("no control points");
    description.source = pairsOf(given.source, given.count);
    description.target = pairsOf(given.target, given.count);
    return {};
}

/// The system of a definition, with what a record can say of it.
void takeSystem(zrproj_description& description, systems::Definition const& system) {
    description.system = system;
    auto const made = systems::recordOf(system);
    if (auto const* const record = std::get_if<systems::SystemRecord>(&made)) {
        description.projection = record->projection;
        description.datum = record->datum;
        description.shift = record->parameters;
    }
}

zrproj_georeference georeferenceOf(zrproj_description const& description) {
    zrproj_georeference georeference{};
    georeference.size = sizeof georeference;
    georeference.method = description.method;
    georeference.count = description.source.size();
    if (georeference.count > 0) {
        georeference.source = &description.source[0].x;
        georeference.target = &description.target[0].x;
    }
    std::ranges::copy(description.coefficients, georeference.coefficients);
    return georeference;
}

Answer explainTags(MapRecord const& record) {
    std::array<char, 1024> reason{};
    ZrProjExplainGeoTIFFTags(&record.projection, record.datum, &record.datumParameters, &record.georef, reason.data(),
                             static_cast<int>(reason.size()));
    if (reason[0] == '\0')
        throw std::bad_alloc();
    return unsupported(reason.data());
}

Answer makeTags(zrproj_description const& description, zrproj_tags& made) {
    auto const system = systems::reconcile(*description.system).definition;
    zrproj_description inUnits = description;
    if (!system.isProjected())
        scaleMap(inUnits, 1 / system.angularUnit.factor);
    auto const tags = GeoTIFF::makeTags(system, mapRecordOf(inUnits).georef);
    if (!tags)
        return unsupported(tags.reason());
    made.tags = tags->data();
    made.count = static_cast<int>(tags->size());
    return {};
}

/// The system as a note calls it.
std::string titleOf(systems::Definition const& system) {
    return system.name + (system.code == 0 ? "" : " (EPSG:" + std::to_string(system.code) + ")");
}

/// What no record says of a definition; "" where one says all of it.
std::string leftOut(zrproj_description const& description, SideFileKind kind) {
    if (!description.system)
        return {};
    auto const because = [kind](std::string const& reason) {
        return " is left out: " + (kind == SideFileKind::reference ? reason : "the format has none");
    };
    auto const made = systems::recordOf(*description.system);
    if (auto const* const why = std::get_if<systems::Unsupported>(&made))
        return "the system " + titleOf(*description.system) + because(why->reason);
    auto const& reason = std::get<systems::SystemRecord>(made).noDatum;
    return reason.empty() ? "" : "the datum " + description.system->datum.name + because(reason);
}

std::vector<std::string> lossOf(zrproj_description const& description, SideFileKind kind) {
    auto lost = ZrProj::lossOf(kind, mapRecordOf(description));
    if (auto note = leftOut(description, kind); !note.empty())
        lost.insert(lost.begin(), std::move(note));
    return lost;
}

/// The root of the sum of the squared distances from their middle.
double spread(std::span<GEOREFPOINT const> points) {
    auto const count = static_cast<double>(points.size());
    double x = 0, y = 0, sum = 0;
    for (GEOREFPOINT const& point : points) {
        x += point.x / count;
        y += point.y / count;
    }
    for (GEOREFPOINT const& point : points)
        sum += (point.x - x) * (point.x - x) + (point.y - y) * (point.y - y);
    return std::sqrt(sum);
}

/// How far a method's fit misses control points, or those that stand for coefficients.
Answer giveMiss(zrproj_description const& description, TransformMethod method, double* mean, double* pixels) {
    GEOREF georef = mapRecordOf(description).georef;
    OwnedMapRecord corners;
    if (description.isByCoefficients()) {
        corners.georef = georef;
        if (!RefCoeffToControls(&corners.georef, 0, 0))
            throw std::bad_alloc();
        georef = corners.georef;
    }
    georef.Method = method;
    double miss = std::numeric_limits<double>::max();
    if (!CGeorefTransform(&georef).ComputeError(&miss, nullptr) || !(miss < std::numeric_limits<double>::max()))
        return {ZRPROJ_NOT_SOLVABLE, "the control points determine no such map"};
    auto const count = static_cast<std::size_t>(georef.nControls);
    give(mean, miss);
    give(pixels, miss == 0 ? 0 : miss / (spread({georef.pTarget, count}) / spread({georef.pSource, count})));
    return {};
}

bool isKind(zrproj_side_file kind) {
    auto const number = static_cast<std::size_t>(kind);
    return number < sideFileKinds;
}

bool isEmpty(char const* text) {
    return !text || !*text;
}

} // namespace

zrproj_status zrproj_side_files_create(char const* image, zrproj_side_files** files) {
    return answerWith(files, [&](zrproj_side_files& made) -> Answer {
        if (isEmpty(image))
            return badArgument("no name of an image");
        made.files = sideFilesOf(image);
        return {};
    });
}

zrproj_status zrproj_side_files_entry(zrproj_side_files const* files, size_t n, zrproj_side_file* kind,
                                      char const** path) {
    return answer([&]() -> Answer {
        if (!files)
            return badArgument("null pointer to side files");
        if (!(n < files->files.size()))
            return pastTheLast(n, files->files.size());
        give(kind, static_cast<zrproj_side_file>(files->files[n].kind));
        give(path, files->files[n].name.c_str());
        return {};
    });
}

void zrproj_side_files_destroy(zrproj_side_files* files) {
    std::unique_ptr<zrproj_side_files>{files}.reset();
}

zrproj_status zrproj_side_file_kind(char const* path, zrproj_side_file* kind) {
    return answer([&]() -> Answer {
        if (isEmpty(path) || !kind)
            return badArgument("no name of a file");
        auto const found = sideFileKind(path);
        if (!found)
            return unknown(inQuotes(path) + " is no side file by its name");
        *kind = static_cast<zrproj_side_file>(*found);
        return {};
    });
}

zrproj_status zrproj_side_file_name(char const* image, zrproj_side_file kind, char* buffer, size_t size,
                                    size_t* length) {
    return answer([&] {
        if (isEmpty(image) || !isKind(kind))
            return badArgument("no name of an image, or no kind of file");
        return giveText(sideFileName(image, static_cast<SideFileKind>(kind)), buffer, size, length);
    });
}

zrproj_status zrproj_description_read(char const* path, zrproj_side_file kind, zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) -> Answer {
        if (isEmpty(path) || !isKind(kind))
            return badArgument("no name of a file, or no kind of file");
        FileOutcome const outcome = readFile({static_cast<SideFileKind>(kind), path}, made);
        return outcome.failure.empty() ? Answer{ZRPROJ_OK, joined(outcome.notes)} : fileFailure(outcome.failure);
    });
}

zrproj_status zrproj_description_of_image(char const* image, zrproj_tag const* tags, size_t count,
                                          zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) {
        return isEmpty(image) ? badArgument("no name of an image") : readImage(image, tags, count, made);
    });
}

zrproj_status zrproj_description_of_tags(zrproj_tag const* tags, size_t count, zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) { return readTags(tags, count, "", made); });
}

zrproj_status zrproj_description_create(zrproj_parameters const* parameters, zrproj_georeference const* georeference,
                                        zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) -> Answer {
        if ((parameters && !hasKnownSize(parameters)) || (georeference && !hasKnownSize(georeference)))
            return badArgument("parameters or a georeference of no known size");
        Answer system = parameters ? takeParameters(made, *parameters) : Answer{};
        return system.isGood() && georeference ? takeGeoreference(made, *georeference) : system;
    });
}

zrproj_status zrproj_description_create_from_system(zrproj_system const* system, char const* path,
                                                    zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) -> Answer {
        if (!system)
            return badArgument("null pointer to a system");
        made.files.fill(path ? path : "");
        if (system->parameters)
            return takeParameters(made, *system->parameters);
        takeSystem(made, system->definition);
        return {};
    });
}

zrproj_status zrproj_description_combine(zrproj_description const* first, zrproj_description const* second,
                                         zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) -> Answer {
        if (!first || !second)
            return badArgument("null pointer to a description");
        made = *first;
        addLater(made, *second);
        return {};
    });
}

void zrproj_description_destroy(zrproj_description* description) {
    std::unique_ptr<zrproj_description>{description}.reset();
}

zrproj_status zrproj_description_parameters(zrproj_description const* description, zrproj_parameters* parameters) {
    return answer([&]() -> Answer {
        if (!description || !hasKnownSize(parameters))
            return badArgument("no description, or no parameters of a known size");
        if (!description->hasProjection() && !description->hasDatum())
            return unknown("nothing is told of a coordinate system");
        *parameters = parametersOf(description->projection, description->datum, description->shift);
        return {};
    });
}

zrproj_status zrproj_description_datum(zrproj_description const* description, zrproj_parameters* parameters) {
    return answer([&]() -> Answer {
        if (!description || !hasKnownSize(parameters))
            return badArgument("no description, or no parameters of a known size");
        if (!description->hasDatum())
            return unknown("nothing is told of a datum");
        *parameters = parametersOf(emptyMapRecord().projection, description->datum, description->shift);
        return {};
    });
}

zrproj_status zrproj_description_system(zrproj_description const* description, zrproj_system** system) {
    return answerWith(system, [&](zrproj_system& made) -> Answer {
        if (!description)
            return badArgument("null pointer to a description");
        if (description->system)
            return makeSystem(made, *description->system);
        if (!description->hasProjection())
            return unknown("no coordinate system is told");
        return makeSystem(made, parametersOf(description->projection, description->datum, description->shift));
    });
}

zrproj_status zrproj_description_georeference(zrproj_description const* description,
                                              zrproj_georeference* georeference) {
    return answer([&]() -> Answer {
        if (!description || !hasKnownSize(georeference))
            return badArgument("no description, or no georeference of a known size");
        if (!description->hasGeoreference())
            return unknown("there is no georeference");
        *georeference = georeferenceOf(*description);
        return {};
    });
}

zrproj_status zrproj_description_source(zrproj_description const* description, zrproj_part part, char const** path) {
    return answer([&]() -> Answer {
        if (!description || !(static_cast<std::size_t>(part) < description->files.size()))
            return badArgument("no description, or no part of one");
        bool const isTold = part == ZRPROJ_PROJECTION ? description->hasProjection() || description->system
                            : part == ZRPROJ_DATUM    ? description->hasDatum()
                                                      : description->hasGeoreference();
        if (!isTold)
            return unknown("nothing is told of that part");
        give(path, description->files[static_cast<std::size_t>(part)].c_str());
        return {};
    });
}

zrproj_status zrproj_description_note(zrproj_description const* description, size_t n, char const** note) {
    return answer([&]() -> Answer {
        if (!description || !note)
            return badArgument("null pointer");
        if (!(n < description->notes.size()))
            return pastTheLast(n, description->notes.size());
        *note = description->notes[n].c_str();
        return {};
    });
}

zrproj_status zrproj_description_miss(zrproj_description const* description, int method, double* mean, double* pixels) {
    return answer([&] {
        auto const asked = static_cast<TransformMethod>(method);
        if (!description)
            return badArgument("null pointer to a description");
        if (!description->hasGeoreference())
            return unknown("there is no georeference");
        if (!isGeorefMethod(asked) || asked == TransformMethodPrecalculatedAffineCoefficients)
            return unknown("there is no method " + std::to_string(method) + " of fitting");
        return giveMiss(*description, asked, mean, pixels);
    });
}

zrproj_status zrproj_description_fit(zrproj_description const* description, zrproj_fit** fit) {
    return answerWith(fit, [&](zrproj_fit& made) {
        if (!description)
            return badArgument("null pointer to a description");
        if (!description->hasGeoreference())
            return unknown("there is no georeference");
        return description->isByCoefficients()
                   ? makeFit(made, description->coefficients)
                   : makeFit(made, description->method, description->source, description->target);
    });
}

zrproj_status zrproj_description_loss(zrproj_description const* description, zrproj_side_file kind, size_t n,
                                      char* buffer, size_t size, size_t* length) {
    return answer([&]() -> Answer {
        if (!description || !isKind(kind))
            return badArgument("no description, or no kind of file");
        auto const lost = lossOf(*description, static_cast<SideFileKind>(kind));
        return n < lost.size() ? giveText(lost[n], buffer, size, length) : pastTheLast(n, lost.size());
    });
}

zrproj_status zrproj_description_write(zrproj_description const* description, char const* path, zrproj_side_file kind) {
    return answer([&]() -> Answer {
        if (!description || isEmpty(path) || !isKind(kind))
            return badArgument("no description, no name of a file, or no kind of file");
        FileOutcome const outcome = writeSideFile(path, static_cast<SideFileKind>(kind), mapRecordOf(*description));
        if (outcome.failure.empty())
            return {ZRPROJ_OK, joined(lossOf(*description, static_cast<SideFileKind>(kind)))};
        return outcome.isFit ? fileFailure(outcome.failure) : unsupported(outcome.failure);
    });
}

zrproj_status zrproj_tags_create(zrproj_description const* description, zrproj_tags** tags) {
    return answerWith(tags, [&](zrproj_tags& made) {
        if (!description)
            return badArgument("null pointer to a description");
        if (description->system)
            return makeTags(*description, made);
        MapRecord const record = mapRecordOf(*description);
        return ZrProjBuildGeoTIFFTags(&record.projection, record.datum, &record.datumParameters, &record.georef,
                                      &made.tags, &made.count)
                   ? Answer{}
                   : explainTags(record);
    });
}

zrproj_status zrproj_tags_entry(zrproj_tags const* tags, size_t n, zrproj_tag* tag) {
    return answer([&]() -> Answer {
        if (!tags || !tag)
            return badArgument("null pointer");
        auto const count = static_cast<std::size_t>(tags->count);
        if (!(n < count))
            return pastTheLast(n, count);
        ZrBitmapTag const& found = tags->tags[n];
        *tag = {found.Id, found.Type, found.Count, found.pData};
        return {};
    });
}

void zrproj_tags_destroy(zrproj_tags* tags) {
    std::unique_ptr<zrproj_tags>{tags}.reset();
}
