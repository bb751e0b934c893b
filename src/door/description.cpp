// What files say of a map: read and written one by one, and put together for an image.
#include "door/fit.h"
#include "door/parameters.h"
#include "files/side_file.h"
#include "georef/method_table.h"

#include <zrproj/geotiff.h>
#include <zrproj/reffile.h>

using namespace ZrProj;
using namespace ZrProj::Door;

struct zrproj_description {
    PROJDATA projection{};
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 shift{};
    int method = TransformMethodNone;
    std::vector<GEOREFPOINT> source, target;
    std::array<double, 6> coefficients{};

    zrproj_description() { projection.Type = ProjTypeUndefined; }

    bool hasProjection() const { return projection.Type != ProjTypeUndefined; }
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

void take(zrproj_description& description, MapRecord const& record) {
    description.projection = record.projection;
    description.datum = record.datum;
    description.shift = record.datumParameters;
    takeGeoreference(description, record.georef);
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
void addLater(zrproj_description& description, zrproj_description&& later) {
    if (!description.hasProjection())
        description.projection = later.projection;
    if (description.datum == DatumTypeNone) {
        description.datum = later.datum;
        description.shift = later.shift;
    }
    if (description.hasGeoreference())
        return;
    description.method = later.method;
    description.source = std::move(later.source);
    description.target = std::move(later.target);
    description.coefficients = later.coefficients;
}

void addNote(std::string& notes, std::string const& note) {
    if (!note.empty())
        notes += (notes.empty() ? "" : "; ") + note;
}

std::string explanation(ZrBitmapTagList const& tags) {
    std::array<char, 1024> text{};
    ZrProjExplainGeoTIFF(tags, text.data(), static_cast<int>(text.size()));
    return text.data();
}

Answer listTags(zrproj_tag const* tags, std::size_t count, ZrBitmapTagList& list) {
    if (count > 0 && !tags)
        return badArgument("null pointer to tags");
    for (zrproj_tag const& tag : std::span(tags, count))
        if (!list.Add({tag.id, tag.type, tag.count, tag.data}))
            return badArgument("tag " + std::to_string(tag.id) + " has no data, or a type that TIFF does not have");
    return {};
}

Answer readTags(zrproj_tag const* tags, std::size_t count, zrproj_description& description) {
    ZrBitmapTagList list;
    if (Answer listed = listTags(tags, count, list); !listed.isGood())
        return listed;
    OwnedMapRecord record;
    if (!ZrProjGetGeoTIFF(list, &record.projection, &record.datum, &record.datumParameters, &record.georef, nullptr))
        return fileFailure("the tags are damaged: " + explanation(list));
    take(description, record);
    return {ZRPROJ_OK, explanation(list)};
}

FileOutcome readFile(SideFile const& file, zrproj_description& description) {
    OwnedMapRecord record;
    FileOutcome outcome = readSideFile(file.name, file.kind, record);
    if (outcome.failure.empty())
        take(description, record);
    return outcome;
}

/// Every side file of the image, each part from the first that has it.
std::string readSideFiles(std::string const& image, zrproj_description& found, zrproj_description& oneNumber) {
    std::string notes;
    for (SideFile const& file : sideFilesOf(image)) {
        zrproj_description told;
        FileOutcome const outcome = readFile(file, told);
        addNote(notes, outcome.failure.empty() ? "" : outcome.failure + "; passed over");
        addNote(notes, outcome.notes);
        if (file.kind == SideFileKind::reference && told.isByCoefficients()) {
            oneNumber.coefficients = told.coefficients;
            oneNumber.method = std::exchange(told.method, TransformMethodNone);
        }
        addLater(found, std::move(told));
    }
    return notes;
}

Answer readImage(std::string const& image, zrproj_tag const* tags, std::size_t count, zrproj_description& found) {
    zrproj_description oneNumber, tagged;
    std::string notes = readSideFiles(image, found, oneNumber);
    Answer const read = readTags(tags, count, tagged);
    if (read.status == ZRPROJ_BAD_ARGUMENT)
        return read;
    addNote(notes, read.isGood() ? read.message : read.message + "; passed over");
    addLater(found, std::move(tagged));
    addLater(found, std::move(oneNumber)); // coefficients of a reference file, after all others
    return {ZRPROJ_OK, notes};
}

/// The system of a caller's parameters, as it is told: only what makes it none is refused.
Answer takeParameters(zrproj_description& description, zrproj_parameters const& given) {
    bool const isDatumAlone = given.type == ProjTypeUndefined;
    zrproj_parameters parameters = given;
    if (isDatumAlone)
        parameters.type = ProjTypeUnprojectedLatLong;
    if (Answer completed = complete(parameters); !completed.isGood())
        return completed;
    description.projection = recordOf(parameters);
    if (isDatumAlone)
        description.projection.Type = ProjTypeUndefined;
    if (hasDatum(parameters)) {
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
        return outcome.failure.empty() ? Answer{ZRPROJ_OK, outcome.notes} : fileFailure(outcome.failure);
    });
}

zrproj_status zrproj_description_of_image(char const* image, zrproj_tag const* tags, size_t count,
                                          zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) {
        return isEmpty(image) ? badArgument("no name of an image") : readImage(image, tags, count, made);
    });
}

zrproj_status zrproj_description_of_tags(zrproj_tag const* tags, size_t count, zrproj_description** description) {
    return answerWith(description, [&](zrproj_description& made) { return readTags(tags, count, made); });
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

void zrproj_description_destroy(zrproj_description* description) {
    std::unique_ptr<zrproj_description>{description}.reset();
}

zrproj_status zrproj_description_parameters(zrproj_description const* description, zrproj_parameters* parameters) {
    return answer([&]() -> Answer {
        if (!description || !hasKnownSize(parameters))
            return badArgument("no description, or no parameters of a known size");
        if (!description->hasProjection() && description->datum == DatumTypeNone)
            return unknown("nothing is told of a coordinate system");
        *parameters = parametersOf(description->projection, description->datum, description->shift);
        return {};
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

zrproj_status zrproj_description_write(zrproj_description const* description, char const* path, zrproj_side_file kind) {
    return answer([&]() -> Answer {
        if (!description || isEmpty(path) || !isKind(kind))
            return badArgument("no description, no name of a file, or no kind of file");
        FileOutcome const outcome = writeSideFile(path, static_cast<SideFileKind>(kind), mapRecordOf(*description));
        if (outcome.failure.empty())
            return {ZRPROJ_OK, outcome.notes};
        return outcome.isFit ? fileFailure(outcome.failure) : unsupported(outcome.failure);
    });
}

zrproj_status zrproj_tags_create(zrproj_description const* description, zrproj_tags** tags) {
    return answerWith(tags, [&](zrproj_tags& made) {
        if (!description)
            return badArgument("null pointer to a description");
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
