#include "door/handles.h"
#include "support/side_files.h"

#include <cmath>
#include <string>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

constexpr double worldCoefficients[] = {2, 0, 500001, 0, -2, 4649999}; // of a file: the first pixel's centre
constexpr char worldText[] = "2\n0\n0\n-2\n500001\n4649999\n";

Description read(std::string const& path, zrproj_side_file kind) {
    return made<Description>([&](zrproj_description** d) { return zrproj_description_read(path.c_str(), kind, d); });
}

zrproj_status statusOfReading(std::string const& path, zrproj_side_file kind) {
    zrproj_description* description = nullptr;
    zrproj_status const status = zrproj_description_read(path.c_str(), kind, &description);
    EXPECT_EQ(description, nullptr);
    return status;
}

zrproj_georeference georeferenceOf(Description const& description) {
    zrproj_georeference georeference{};
    georeference.size = sizeof georeference;
    EXPECT_EQ(zrproj_description_georeference(description.get(), &georeference), ZRPROJ_OK) << zrproj_message();
    return georeference;
}

zrproj_parameters systemOf(Description const& description) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    EXPECT_EQ(zrproj_description_parameters(description.get(), &parameters), ZRPROJ_OK) << zrproj_message();
    return parameters;
}

zrproj_parameters utm17() {
    auto parameters = parametersOf(recordOf("type=utm ellipsoid=wgs-84"));
    parameters.lon0 = -81;
    parameters.datum = DatumTypeWorldGeodeticSystem1984;
    return parameters;
}

/// Everything of an image: UTM, and six coefficients from its corner.
Description scan(bool hasSystem = true) {
    zrproj_parameters const parameters = utm17();
    zrproj_georeference georeference{};
    georeference.size = sizeof georeference;
    georeference.method = TransformMethodPrecalculatedAffineCoefficients;
    double const coefficients[] = {2, 0, 500000, 0, -2, 4650000};
    std::copy(std::begin(coefficients), std::end(coefficients), georeference.coefficients);
    return made<Description>([&](zrproj_description** d) {
        return zrproj_description_create(hasSystem ? &parameters : nullptr, &georeference, d);
    });
}

zrproj_status write(Description const& description, std::string const& path, zrproj_side_file kind) {
    return zrproj_description_write(description.get(), path.c_str(), kind);
}

std::vector<std::string> lossOf(Description const& description, zrproj_side_file kind) {
    std::vector<std::string> lost;
    char text[200];
    while (zrproj_description_loss(description.get(), kind, lost.size(), text, sizeof text, nullptr) == ZRPROJ_OK)
        lost.emplace_back(text);
    return lost;
}

std::vector<std::string> namesIn(TemporaryDirectory const& directory) {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(directory.path()))
        names.push_back(entry.path().filename().string());
    return names;
}

} // namespace

TEST(DoorDescription, ReadsFilesOfAnyName) {
    TemporaryDirectory const directory;
    auto const name = directory.file("anything.txt");
    writeFile(name, worldText);
    auto const world = georeferenceOf(read(name, ZRPROJ_WORLD_FILE));
    EXPECT_EQ(world.method, TransformMethodPrecalculatedAffineCoefficients);
    EXPECT_EQ(world.coefficients[2], 500000); // from the corner
    EXPECT_EQ(world.coefficients[5], 4650000);
    writeFile(name, "2 3\n'a' 1 2 0 10 20 0 1\n'b' 3 4 0 30 40 0 1\n'c' 5 7 0 50 60 0 1\n");
    Description const rsf = read(name, ZRPROJ_RSF_FILE);
    EXPECT_EQ(georeferenceOf(rsf).count, 3U);
    EXPECT_EQ(georeferenceOf(rsf).source[5], 7);
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    EXPECT_EQ(zrproj_description_parameters(rsf.get(), &parameters), ZRPROJ_UNKNOWN);

    EXPECT_EQ(statusOfReading(name, ZRPROJ_REFERENCE_FILE), ZRPROJ_FILE);
    EXPECT_EQ(zrproj_message(), "cannot read \"" + name + "\": it is no reference file, or damaged");
    EXPECT_EQ(statusOfReading(name, ZRPROJ_WORLD_FILE), ZRPROJ_FILE);
    writeFile(name, "2 9\n'a' 1 2 0 10 20 0 1\n");
    EXPECT_EQ(statusOfReading(name, ZRPROJ_RSF_FILE), ZRPROJ_FILE);
    EXPECT_EQ(statusOfReading(directory.file("none"), ZRPROJ_WORLD_FILE), ZRPROJ_FILE);
    EXPECT_EQ(zrproj_message(), "cannot read \"" + directory.file("none") + "\": No such file or directory");
    EXPECT_EQ(statusOfReading(directory.path().string(), ZRPROJ_WORLD_FILE), ZRPROJ_FILE);
    EXPECT_EQ(statusOfReading(name, static_cast<zrproj_side_file>(3)), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDescription, WritesWhatItReads) {
    TemporaryDirectory const directory;
    auto const name = directory.file("any name");
    Description const given = scan();
    ASSERT_EQ(write(given, name, ZRPROJ_REFERENCE_FILE), ZRPROJ_OK);
    EXPECT_STRNE(zrproj_message(), ""); // coefficients become control points
    Description const back = read(name, ZRPROJ_REFERENCE_FILE);
    EXPECT_EQ(systemOf(back).type, ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(systemOf(back).lon0, -81);
    EXPECT_EQ(systemOf(back).datum, DatumTypeWorldGeodeticSystem1984);
    EXPECT_EQ(georeferenceOf(back).count, 4U);
    Fit const fit = made<Fit>([&](zrproj_fit** f) { return zrproj_description_fit(back.get(), f); });
    double pixel[] = {250, 100};
    ASSERT_EQ(zrproj_fit_points(fit.get(), pixel, pixel + 1, 16, 1, nullptr, 0), ZRPROJ_OK);
    EXPECT_NEAR(pixel[0], 500500, 1e-6);
    EXPECT_NEAR(pixel[1], 4649800, 1e-6);

    ASSERT_EQ(write(scan(false), name, ZRPROJ_WORLD_FILE), ZRPROJ_OK);
    EXPECT_STREQ(zrproj_message(), "");
    EXPECT_EQ(fileBytes(name), worldText);
    ASSERT_EQ(write(back, name, ZRPROJ_WORLD_FILE), ZRPROJ_OK); // by an affine fit
    auto const world = georeferenceOf(read(name, ZRPROJ_WORLD_FILE));
    for (int i = 0; i < 6; ++i)
        EXPECT_NEAR(world.coefficients[i], worldCoefficients[i] - (i == 2 ? 1 : i == 5 ? -1 : 0), 1e-6);
    ASSERT_EQ(write(given, name, ZRPROJ_RSF_FILE), ZRPROJ_OK);
    EXPECT_EQ(georeferenceOf(read(name, ZRPROJ_RSF_FILE)).count, 4U);
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"any name"});
}

TEST(DoorDescription, TellsWhatFilesCannotCarry) {
    std::string const projection = "the projection is left out: the format has none",
                      datum = "the datum is left out: the format has none";
    EXPECT_EQ(lossOf(scan(), ZRPROJ_WORLD_FILE), (std::vector{projection, datum}));
    auto const ofRsf = lossOf(scan(), ZRPROJ_RSF_FILE);
    ASSERT_EQ(ofRsf.size(), 3U);
    EXPECT_NE(ofRsf[2].find("similarity"), std::string::npos);
    EXPECT_EQ(lossOf(scan(), ZRPROJ_REFERENCE_FILE).size(), 1U); // coefficients become control points
    EXPECT_EQ(lossOf(scan(false), ZRPROJ_WORLD_FILE).size(), 0U);

    TemporaryDirectory const directory;
    auto const name = directory.file("map.zrr");
    ASSERT_EQ(write(scan(), name, ZRPROJ_REFERENCE_FILE), ZRPROJ_OK);
    Description const controls = read(name, ZRPROJ_REFERENCE_FILE);
    EXPECT_EQ(lossOf(controls, ZRPROJ_REFERENCE_FILE).size(), 0U);
    EXPECT_EQ(lossOf(controls, ZRPROJ_WORLD_FILE),
              (std::vector<std::string>{projection, datum, "the control points are fitted by an affine map"}));
    std::size_t length = 0;
    EXPECT_EQ(zrproj_description_loss(controls.get(), ZRPROJ_WORLD_FILE, 0, nullptr, 0, &length), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(length, projection.size());
    EXPECT_EQ(zrproj_description_loss(controls.get(), ZRPROJ_WORLD_FILE, 3, nullptr, 0, nullptr), ZRPROJ_UNKNOWN);
    EXPECT_EQ(zrproj_description_loss(nullptr, ZRPROJ_WORLD_FILE, 0, nullptr, 0, nullptr), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDescription, KeepsADatumOfItsOwn) {
    TemporaryDirectory const directory;
    auto const name = directory.file("map.zrr");
    for (int const type : {0, 4, 999}) {
        SCOPED_TRACE(type);
        auto parameters = utm17();
        parameters.type = type;
        parameters.ellipsoid = EllipsoidTypeUserDefined;
        parameters.radius = 6377000;
        parameters.flattening = 0.0033;
        parameters.datum = DatumTypeUserDefined;
        parameters.shift = {DatumMethodBursaWolf, 1, 2, 3, 4, 5, 6, 7, 8};
        auto const given = made<Description>(
            [&](zrproj_description** d) { return zrproj_description_create(&parameters, nullptr, d); });
        ASSERT_EQ(write(given, name, ZRPROJ_REFERENCE_FILE), ZRPROJ_OK);
        auto back = systemOf(read(name, ZRPROJ_REFERENCE_FILE));
        EXPECT_EQ(back.type, type);
        EXPECT_EQ(back.datum, DatumTypeUserDefined);
        EXPECT_EQ(back.radius, 6377000);
        EXPECT_EQ(back.shift.method, DatumMethodBursaWolf);
        EXPECT_EQ(back.shift.rz, 6);
        EXPECT_EQ(back.shift.prime_meridian, 8);
        back.type = type == 999 ? 0 : type;
        EXPECT_TRUE(test::systemOf(back));
    }
}

TEST(DoorDescription, KeepsTheOldFileWhereWritingFails) {
    TemporaryDirectory const directory;
    auto const name = directory.file("map.tfw");
    writeFile(name, "before");
    {
        FullDisk const disk(10);
        EXPECT_EQ(write(scan(), name, ZRPROJ_WORLD_FILE), ZRPROJ_FILE);
    }
    EXPECT_EQ(fileBytes(name), "before");
    {
        ReadOnlyDirectory const locked(directory.path());
        EXPECT_EQ(write(scan(), name, ZRPROJ_WORLD_FILE), ZRPROJ_FILE);
    }
    EXPECT_EQ(fileBytes(name), "before");
    EXPECT_EQ(namesIn(directory), std::vector<std::string>{"map.tfw"});
    EXPECT_EQ(write(scan(), directory.path().string(), ZRPROJ_WORLD_FILE), ZRPROJ_FILE);
    EXPECT_EQ(write(scan(), "", ZRPROJ_WORLD_FILE), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDescription, KeepsLinksAndRights) {
    TemporaryDirectory const directory;
    auto const name = directory.file("real"), link = directory.file("link");
    writeFile(name, "before");
    chmod(name.c_str(), 0640);
    std::filesystem::create_symlink(name, link);
    ASSERT_EQ(write(scan(false), link, ZRPROJ_WORLD_FILE), ZRPROJ_OK);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(fileBytes(name), worldText);
    struct stat status = {};
    stat(name.c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST(DoorDescription, RefusesWhatAFormatCannotCarry) {
    TemporaryDirectory const directory;
    auto const name = directory.file("map");
    zrproj_parameters const parameters = utm17();
    auto const system =
        made<Description>([&](zrproj_description** d) { return zrproj_description_create(&parameters, nullptr, d); });
    EXPECT_EQ(write(system, name, ZRPROJ_WORLD_FILE), ZRPROJ_UNSUPPORTED);
    EXPECT_EQ(write(system, name, ZRPROJ_RSF_FILE), ZRPROJ_UNSUPPORTED);
    EXPECT_EQ(write(system, name, ZRPROJ_REFERENCE_FILE), ZRPROJ_OK);
    auto const nothing =
        made<Description>([](zrproj_description** d) { return zrproj_description_create(nullptr, nullptr, d); });
    EXPECT_EQ(write(nothing, name, ZRPROJ_REFERENCE_FILE), ZRPROJ_UNSUPPORTED);
    zrproj_georeference line{};
    line.size = sizeof line;
    line.count = 3;
    double const pairs[] = {0, 0, 1, 1, 2, 2};
    line.source = line.target = pairs;
    auto const onALine =
        made<Description>([&](zrproj_description** d) { return zrproj_description_create(nullptr, &line, d); });
    EXPECT_EQ(write(onALine, name, ZRPROJ_WORLD_FILE), ZRPROJ_UNSUPPORTED);
    EXPECT_EQ(write(onALine, name, ZRPROJ_RSF_FILE), ZRPROJ_OK); // a similarity is determined
}

TEST(DoorDescription, RefusesWhatDescribesNothing) {
    zrproj_description* description = nullptr;
    auto const status = [&](auto const& change) {
        zrproj_georeference georeference{};
        georeference.size = sizeof georeference;
        georeference.method = TransformMethodPrecalculatedAffineCoefficients;
        change(georeference);
        return zrproj_description_create(nullptr, &georeference, &description);
    };
    EXPECT_EQ(status([](auto& g) { g.size = 1; }), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(status([](auto& g) { g.method = 12; }), ZRPROJ_UNKNOWN);
    EXPECT_EQ(status([](auto& g) { g.method = -1; }), ZRPROJ_UNKNOWN);
    EXPECT_EQ(status([](auto& g) { g.coefficients[3] = HUGE_VAL; }), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(status([](auto& g) { g.method = 1; }), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(status([](auto& g) { g.method = 1, g.count = 2; }), ZRPROJ_BAD_ARGUMENT);
    auto parameters = utm17();
    parameters.lon0 = 400;
    EXPECT_EQ(zrproj_description_create(&parameters, nullptr, &description), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(description, nullptr);
}

TEST(DoorDescription, PutsAnImageTogether) {
    TemporaryDirectory const directory;
    auto const image = directory.file("map.tif");
    auto const ofImage = [&] {
        return made<Description>(
            [&](zrproj_description** d) { return zrproj_description_of_image(image.c_str(), nullptr, 0, d); });
    };
    zrproj_georeference none{};
    none.size = sizeof none;
    EXPECT_EQ(zrproj_description_georeference(ofImage().get(), &none), ZRPROJ_UNKNOWN);
    writeFile(directory.file("map.TFW"), worldText);
    EXPECT_EQ(georeferenceOf(ofImage()).coefficients[2], 500000);
    zrproj_parameters const parameters = utm17();
    auto const system =
        made<Description>([&](zrproj_description** d) { return zrproj_description_create(&parameters, nullptr, d); });
    ASSERT_EQ(write(system, directory.file("map.tif.zrr"), ZRPROJ_REFERENCE_FILE), ZRPROJ_OK);
    Description const both = ofImage();
    EXPECT_EQ(systemOf(both).lon0, -81);
    EXPECT_EQ(georeferenceOf(both).coefficients[2], 500000);
    writeFile(directory.file("map.RSF"), "damaged");
    EXPECT_EQ(georeferenceOf(ofImage()).coefficients[2], 500000); // passed over, and told
    ofImage();
    EXPECT_NE(std::string(zrproj_message()).find("map.RSF"), std::string::npos);

    auto const files =
        made<SideFiles>([&](zrproj_side_files** f) { return zrproj_side_files_create(image.c_str(), f); });
    std::vector<std::pair<int, std::string>> listed;
    zrproj_side_file kind{};
    char const* path = nullptr;
    while (zrproj_side_files_entry(files.get(), listed.size(), &kind, &path) == ZRPROJ_OK)
        listed.emplace_back(kind, path);
    std::vector<std::pair<int, std::string>> const expected{{ZRPROJ_REFERENCE_FILE, image + ".zrr"},
                                                            {ZRPROJ_RSF_FILE, directory.file("map.RSF")},
                                                            {ZRPROJ_WORLD_FILE, directory.file("map.TFW")}};
    EXPECT_EQ(listed, expected);
}

TEST(DoorDescription, CombinesParts) {
    TemporaryDirectory const directory;
    auto const world = directory.file("map.wld"), number = directory.file("map.zrr");
    writeFile(world, worldText);
    writeFile(number, "Zorvane Cartographic Reference Information : Version 1.10\nDatum Name : Tokyo\n"
                      "Georef Method : Known Coefficients\nGeoref Coefficient A : 3\n");
    auto parameters = utm17();
    parameters.datum = DatumTypeNone;
    auto const system =
        made<Description>([&](zrproj_description** d) { return zrproj_description_create(&parameters, nullptr, d); });
    auto const combined = [](Description const& first, Description const& second) {
        return made<Description>(
            [&](zrproj_description** d) { return zrproj_description_combine(first.get(), second.get(), d); });
    };
    Description const all =
        combined(combined(system, read(number, ZRPROJ_REFERENCE_FILE)), read(world, ZRPROJ_WORLD_FILE));
    auto const sourceOf = [](Description const& description, zrproj_part part) {
        char const* path = nullptr;
        return std::string(zrproj_description_source(description.get(), part, &path) == ZRPROJ_OK ? path : "none");
    };
    EXPECT_EQ(sourceOf(all, ZRPROJ_PROJECTION), "");
    EXPECT_EQ(sourceOf(all, ZRPROJ_DATUM), number);
    EXPECT_EQ(sourceOf(all, ZRPROJ_GEOREFERENCE), world); // one number yields to six
    EXPECT_EQ(sourceOf(system, ZRPROJ_DATUM), "none");
    EXPECT_EQ(systemOf(all).type, ProjTypeUniversalTransverseMercator);
    zrproj_parameters datum{};
    datum.size = sizeof datum;
    ASSERT_EQ(zrproj_description_datum(all.get(), &datum), ZRPROJ_OK);
    EXPECT_EQ(datum.type, ProjTypeUndefined);
    EXPECT_EQ(datum.datum, DatumTypeTokyo);
    EXPECT_EQ(datum.shift.method, 0); // as the file has it
    EXPECT_EQ(zrproj_description_datum(system.get(), &datum), ZRPROJ_UNKNOWN);
    Description const own = combined(read(world, ZRPROJ_WORLD_FILE), read(number, ZRPROJ_REFERENCE_FILE));
    EXPECT_EQ(georeferenceOf(own).coefficients[2], 500000);
    zrproj_description* none = nullptr;
    EXPECT_EQ(zrproj_description_combine(own.get(), nullptr, &none), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDescription, TellsWhatIsMissedAndWhatIsLeftOut) {
    TemporaryDirectory const directory;
    auto const name = directory.file("map.zrr");
    double mean = -1, pixels = -1;
    Description const given = scan();
    EXPECT_EQ(zrproj_description_miss(given.get(), TransformMethodAffinePolynomial, &mean, &pixels), ZRPROJ_OK);
    EXPECT_NEAR(mean, 0, 1e-6);
    EXPECT_EQ(zrproj_description_miss(given.get(), TransformMethodHelmert, &mean, &pixels), ZRPROJ_OK);
    EXPECT_NEAR(mean, 100 * std::sqrt(2.0), 1e-6); // a square of 200 metres mirrored: all corners fall on its middle
    EXPECT_NEAR(pixels, 50 * std::sqrt(2.0), 1e-6);
    EXPECT_EQ(zrproj_description_miss(given.get(), TransformMethodPrecalculatedAffineCoefficients, &mean, &pixels),
              ZRPROJ_UNKNOWN);

    writeFile(name, "Zorvane Cartographic Reference Information : Version 1.10\nGeoref Method : Helmert\n"
                    "Georef Control Point Count : 4\n");
    Description const announced = read(name, ZRPROJ_REFERENCE_FILE);
    char const* note = nullptr;
    ASSERT_EQ(zrproj_description_note(announced.get(), 0, &note), ZRPROJ_OK);
    EXPECT_EQ(note, "the control points that \"" + name + "\" announces are not there");
    EXPECT_EQ(zrproj_description_note(announced.get(), 1, &note), ZRPROJ_UNKNOWN);
    EXPECT_EQ(zrproj_description_miss(announced.get(), TransformMethodHelmert, &mean, &pixels), ZRPROJ_UNKNOWN);
}

TEST(DoorDescription, KnowsFilesByTheirNames) {
    zrproj_side_file kind{};
    auto const kindOf = [&](char const* name) { return zrproj_side_file_kind(name, &kind) == ZRPROJ_OK ? kind : -1; };
    EXPECT_EQ(kindOf("map.tif.zrr"), ZRPROJ_REFERENCE_FILE);
    EXPECT_EQ(kindOf("map.RSF"), ZRPROJ_RSF_FILE);
    for (char const* const name : {"map.tfw", "a/b.TIFW", "x.wld", "x.jgw", "x.pgw"})
        EXPECT_EQ(kindOf(name), ZRPROJ_WORLD_FILE) << name;
    for (char const* const name : {"map.tif", "x.raw", "x.new", "wld", ""})
        EXPECT_EQ(kindOf(name), -1) << name;
    char text[32];
    EXPECT_EQ(zrproj_side_file_name("map.tif", ZRPROJ_REFERENCE_FILE, text, sizeof text, nullptr), ZRPROJ_OK);
    EXPECT_STREQ(text, "map.tif.zrr");
    EXPECT_EQ(zrproj_side_file_name("map.tif", ZRPROJ_WORLD_FILE, text, sizeof text, nullptr), ZRPROJ_OK);
    EXPECT_STREQ(text, "map.tfW");
}

TEST(DoorDescription, CarriesSystemsThatRecordsDoNotSay) {
    TemporaryDirectory const directory;
    auto const name = directory.file("map.zrr");
    auto const ofSystem = [](char const* definition) {
        auto const system = made<System>([&](zrproj_system** s) { return zrproj_system_create(definition, s); });
        return made<Description>(
            [&](zrproj_description** d) { return zrproj_description_create_from_system(system.get(), "a file", d); });
    };
    auto const throughTags = [](Description const& description) {
        auto const tags = made<Tags>([&](zrproj_tags** t) { return zrproj_tags_create(description.get(), t); });
        std::vector<zrproj_tag> list;
        for (zrproj_tag tag{}; zrproj_tags_entry(tags.get(), list.size(), &tag) == ZRPROJ_OK;)
            list.push_back(tag);
        return made<Description>(
            [&](zrproj_description** d) { return zrproj_description_of_tags(list.data(), list.size(), d); });
    };
    auto const textOf = [](Description const& description, zrproj_format format) {
        auto const system =
            made<System>([&](zrproj_system** s) { return zrproj_description_system(description.get(), s); });
        char text[2000];
        EXPECT_EQ(zrproj_system_text(system.get(), format, text, sizeof text, nullptr), ZRPROJ_OK) << zrproj_message();
        return std::string(text);
    };
    for (char const* const code : {"EPSG:27700", "EPSG:28992", "EPSG:2065", "EPSG:8857", "EPSG:3857", "EPSG:4807"}) {
        SCOPED_TRACE(code);
        EXPECT_EQ(textOf(throughTags(ofSystem(code)), ZRPROJ_CODE), code);
    }
    EXPECT_EQ(textOf(throughTags(ofSystem("EPSG:7405")), ZRPROJ_CODE), "EPSG:27700");
    char const own[] = "+proj=tmerc +lat_0=1 +lon_0=2 +k=0.999 +x_0=3000 +y_0=4000 +ellps=bessel "
                       "+towgs84=1,2,3,4,5,6,7 +units=m +no_defs +type=crs";
    EXPECT_EQ(textOf(throughTags(ofSystem(own)), ZRPROJ_PROJ_STRING), own);

    // Longitudes are degrees here and grads in tags, as the system has them.
    auto const place = made<Description>([&](zrproj_description** d) {
        auto const parts = scan(false), system = ofSystem("EPSG:4807");
        return zrproj_description_combine(system.get(), parts.get(), d);
    });
    auto const back = georeferenceOf(throughTags(place));
    EXPECT_NEAR(back.coefficients[2], 500000, 1e-6);
    EXPECT_NEAR(back.coefficients[4], -2, 1e-12);

    EXPECT_EQ(lossOf(ofSystem("EPSG:27700"), ZRPROJ_REFERENCE_FILE),
              std::vector<std::string>{"the datum Ordnance Survey of Great Britain 1936 is left out: datum 6277 is not "
                                       "one of the catalogue's"});
    EXPECT_EQ(lossOf(ofSystem("EPSG:28992"), ZRPROJ_REFERENCE_FILE).size(), 1U);
    EXPECT_EQ(lossOf(ofSystem("EPSG:32617"), ZRPROJ_REFERENCE_FILE).size(), 0U);
    EXPECT_EQ(write(ofSystem("EPSG:28992"), name, ZRPROJ_REFERENCE_FILE), ZRPROJ_UNSUPPORTED);
    char const* path = nullptr;
    ASSERT_EQ(zrproj_description_source(ofSystem("EPSG:28992").get(), ZRPROJ_PROJECTION, nullptr), ZRPROJ_OK);
    EXPECT_EQ(zrproj_description_source(ofSystem("EPSG:28992").get(), ZRPROJ_DATUM, &path), ZRPROJ_UNKNOWN);
    // A system's own datum is not another file's.
    auto const combined = made<Description>([&](zrproj_description** d) {
        auto const british = ofSystem("EPSG:27700"), american = scan();
        return zrproj_description_combine(british.get(), american.get(), d);
    });
    EXPECT_EQ(zrproj_description_source(combined.get(), ZRPROJ_DATUM, &path), ZRPROJ_UNKNOWN);
    zrproj_description* none = nullptr;
    EXPECT_EQ(zrproj_description_create_from_system(nullptr, nullptr, &none), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDescription, GoesThroughTags) {
    Description const given = scan();
    auto const tags = made<Tags>([&](zrproj_tags** t) { return zrproj_tags_create(given.get(), t); });
    std::vector<zrproj_tag> list;
    for (zrproj_tag tag{}; zrproj_tags_entry(tags.get(), list.size(), &tag) == ZRPROJ_OK;)
        list.push_back(tag);
    ASSERT_GE(list.size(), 3U);
    auto const back = made<Description>(
        [&](zrproj_description** d) { return zrproj_description_of_tags(list.data(), list.size(), d); });
    EXPECT_EQ(systemOf(back).type, ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(georeferenceOf(back).coefficients[5], 4650000);
    TemporaryDirectory const directory;
    auto const image = directory.file("map.tif");
    auto const ofImage = made<Description>([&](zrproj_description** d) {
        return zrproj_description_of_image(image.c_str(), list.data(), list.size(), d);
    });
    EXPECT_EQ(systemOf(ofImage).lon0, -81);

    zrproj_description* description = nullptr;
    zrproj_tag const noData[] = {{34735, 3, 4, nullptr}}, noType[] = {{34735, 99, 0, nullptr}};
    EXPECT_EQ(zrproj_description_of_tags(noData, 1, &description), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_description_of_tags(noType, 1, &description), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_description_of_tags(nullptr, 1, &description), ZRPROJ_BAD_ARGUMENT);
    unsigned short const damaged[] = {1, 1, 0, 9};
    zrproj_tag const short_[] = {{34735, 3, 4, damaged}};
    EXPECT_EQ(zrproj_description_of_tags(short_, 1, &description), ZRPROJ_FILE);
    EXPECT_EQ(description, nullptr);
}

TEST(DoorDescription, HasASystemThatNoRecordSays) {
    auto const describe = [](unsigned short code) {
        unsigned short const keys[] = {1, 1, 0, 2, 1024, 0, 1, 1, 3072, 0, 1, code};
        zrproj_tag const tag{34735, 3, 12, keys};
        return made<Description>([&](zrproj_description** d) { return zrproj_description_of_tags(&tag, 1, d); });
    };
    auto const ofDescription = [](Description const& description) {
        return made<System>([&](zrproj_system** s) { return zrproj_description_system(description.get(), s); });
    };
    auto const codeOf = [](System const& system) {
        char text[32] = "";
        EXPECT_EQ(zrproj_system_text(system.get(), ZRPROJ_CODE, text, sizeof text, nullptr), ZRPROJ_OK);
        return std::string(text);
    };
    Description const amersfoort = describe(28992);
    EXPECT_EQ(zrproj_message(), std::string("no record says the projection Oblique Stereographic"));
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    EXPECT_EQ(zrproj_description_parameters(amersfoort.get(), &parameters), ZRPROJ_UNKNOWN);
    EXPECT_EQ(codeOf(ofDescription(amersfoort)), "EPSG:28992");
    EXPECT_EQ(codeOf(ofDescription(describe(32617))), "EPSG:32617");
    EXPECT_EQ(codeOf(ofDescription(scan())), "EPSG:32617"); // of parameters

    zrproj_system* system = nullptr;
    EXPECT_EQ(zrproj_description_system(scan(false).get(), &system), ZRPROJ_UNKNOWN);
    EXPECT_EQ(zrproj_description_system(nullptr, &system), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(system, nullptr);
}
