#include "door/handles.h"

#include <set>

using namespace ZrProj::test;

namespace {

/// How many entries a list has; `entry(n)` asks for one.
template <class Entry> std::size_t countOf(Entry const& entry) {
    std::size_t n = 0;
    while (entry(n) == ZRPROJ_OK)
        ++n;
    EXPECT_EQ(entry(n), ZRPROJ_UNKNOWN);
    EXPECT_EQ(entry(SIZE_MAX), ZRPROJ_UNKNOWN);
    return n;
}

} // namespace

TEST(DoorCatalogues, ListAll) {
    int const projections = ZrProj::ProjNumProjections();
    EXPECT_EQ(countOf([](size_t n) { return zrproj_projection_entry(n, nullptr, nullptr, nullptr); }),
              static_cast<std::size_t>(projections));
    EXPECT_EQ(countOf([](size_t n) { return zrproj_parameter_entry(n, nullptr, nullptr, nullptr, nullptr); }), 22U);
    EXPECT_EQ(countOf([](size_t n) { return zrproj_ellipsoid_entry(n, nullptr, nullptr, nullptr, nullptr); }), 50U);
    EXPECT_EQ(countOf([](size_t n) { return zrproj_datum_entry(n, nullptr, nullptr, nullptr, nullptr); }), 236U);
    EXPECT_EQ(countOf([](size_t n) { return zrproj_state_plane_entry(n, nullptr, nullptr, nullptr); }), 142U);
    EXPECT_EQ(countOf([](size_t n) { return zrproj_fit_method_entry(n, nullptr, nullptr, nullptr, nullptr); }), 12U);
    EXPECT_EQ(countOf([](size_t n) { return zrproj_projection_parameter(5, n, nullptr); }), 8U);
    EXPECT_EQ(countOf([](size_t n) { return zrproj_projection_parameter(0, n, nullptr); }), 0U);
    for (int const none : {-1, projections, 999}) {
        EXPECT_EQ(zrproj_projection_parameter(none, 0, nullptr), ZRPROJ_UNKNOWN);
        EXPECT_EQ(zrproj_projection_picture(none, 0, nullptr, nullptr), ZRPROJ_UNKNOWN);
    }
}

TEST(DoorCatalogues, FindWhatTheyList) {
    int number = 0, found = 0;
    char const *key = nullptr, *name = nullptr;
    for (size_t n = 0; zrproj_projection_entry(n, &number, &key, &name) == ZRPROJ_OK; ++n) {
        EXPECT_EQ(zrproj_projection_find(key, &found), ZRPROJ_OK);
        EXPECT_EQ(found, number);
        EXPECT_EQ(zrproj_projection_find(name, &found), ZRPROJ_OK);
        EXPECT_EQ(found, number);
    }
    std::set<std::string> names; // where two have one name, the first is found
    for (size_t n = 0; zrproj_datum_entry(n, &number, &name, nullptr, nullptr) == ZRPROJ_OK; ++n) {
        ASSERT_EQ(zrproj_datum_find(name, &found), ZRPROJ_OK);
        if (names.insert(name).second) {
            EXPECT_EQ(found, number) << name;
        }
    }
    for (size_t n = 0; zrproj_ellipsoid_entry(n, &number, &name, nullptr, nullptr) == ZRPROJ_OK; ++n) {
        EXPECT_EQ(zrproj_ellipsoid_find(name, &found), ZRPROJ_OK);
        EXPECT_EQ(found, number) << name;
    }
    EXPECT_EQ(zrproj_state_plane_find("california i", &found), ZRPROJ_OK);
    EXPECT_EQ(found, 17);
    EXPECT_EQ(zrproj_fit_method_find("Thin Plate Spline", &found), ZRPROJ_OK);
    EXPECT_EQ(found, 6);
    EXPECT_EQ(zrproj_fit_method_find("nearest", &found), ZRPROJ_UNKNOWN);
    EXPECT_STREQ(zrproj_message(), "there is no method called \"nearest\"");
    EXPECT_EQ(zrproj_datum_find(nullptr, &found), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_datum_find("Tokyo", nullptr), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorCatalogues, SayWhatEntriesAre) {
    char const *name = nullptr, *method = nullptr;
    int ellipsoid = 0;
    ASSERT_EQ(zrproj_datum_entry(1, nullptr, &name, &ellipsoid, &method), ZRPROJ_OK);
    EXPECT_STREQ(name, "North American Datum 1927");
    EXPECT_STREQ(method, "Molodensky");
    EXPECT_EQ(ellipsoid, 15);
    ASSERT_EQ(zrproj_datum_entry(ZrProj::DatumTypeEuropean1950Mre - 1, nullptr, nullptr, &ellipsoid, &method),
              ZRPROJ_OK);
    EXPECT_STREQ(method, "regression");
    EXPECT_EQ(ellipsoid, ZrProj::EllipsoidTypeInternational1924); // which its record does not name
    std::set<std::string> methods;
    int numbers = 0, inverts = 0;
    for (size_t n = 0; zrproj_datum_method_entry(n, nullptr, &name, &numbers, &inverts) == ZRPROJ_OK; ++n)
        methods.insert(std::string(name) + ' ' + std::to_string(numbers) + ' ' + std::to_string(inverts));
    for (char const* const known : {"none 0 1", "NADCON -1 0", "Bursa-Wolf 7 1", "Molodensky 3 1", "regression -1 0"})
        EXPECT_TRUE(methods.contains(known)) << known;
    double radius = 0, flattening = 0;
    ASSERT_EQ(zrproj_ellipsoid_entry(15, nullptr, &name, &radius, &flattening), ZRPROJ_OK);
    EXPECT_EQ(radius, 6378206.4);
    EXPECT_EQ(flattening, 1 / 294.9786982);
    zrproj_kind kind{};
    char const* key = nullptr;
    ASSERT_EQ(zrproj_parameter_entry(5, nullptr, &key, &name, &kind), ZRPROJ_OK);
    EXPECT_STREQ(key, "lon0");
    EXPECT_EQ(kind, ZRPROJ_KIND_LONGITUDE);
    size_t needed = 0;
    ASSERT_EQ(zrproj_fit_method_entry(4, nullptr, &key, nullptr, &needed), ZRPROJ_OK);
    EXPECT_STREQ(key, "third");
    EXPECT_EQ(needed, 10U);
}

// Every type's picture is a system; each of its parameters is one that the type uses.
TEST(DoorCatalogues, GivePicturesOfEveryProjection) {
    for (int type = 1; type < ZrProj::ProjNumProjections(); ++type) {
        zrproj_parameters parameters{};
        parameters.size = sizeof parameters;
        parameters.type = type;
        parameters.ellipsoid = 47;
        int parameter = 0, used = 0;
        double value = 0;
        for (size_t n = 0; zrproj_projection_picture(type, n, &parameter, &value) == ZRPROJ_OK; ++n) {
            EXPECT_EQ(zrproj_parameters_set(&parameters, parameter, value), ZRPROJ_OK);
            bool isUsed = false;
            for (size_t k = 0; zrproj_projection_parameter(type, k, &used) == ZRPROJ_OK; ++k)
                isUsed |= used == parameter;
            EXPECT_TRUE(isUsed) << type << ' ' << parameter;
        }
        EXPECT_TRUE(systemOf(parameters)) << type;
    }
}

TEST(DoorCatalogues, SetAndGetParameters) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    double value = 0;
    for (int id = 1; id <= 22; ++id) {
        ASSERT_EQ(zrproj_parameters_set(&parameters, id, 1), ZRPROJ_OK);
        ASSERT_EQ(zrproj_parameters_get(&parameters, id, &value), ZRPROJ_OK);
        EXPECT_EQ(value, 1);
        EXPECT_EQ(zrproj_parameters_set(&parameters, id, HUGE_VAL), ZRPROJ_BAD_ARGUMENT);
    }
    EXPECT_EQ(parameters.u_offset, 1);
    EXPECT_EQ(parameters.flattening, 1);
    EXPECT_EQ(zrproj_parameters_set(&parameters, 14, 2), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_parameters_set(&parameters, 20, 0.5), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_parameters_set(&parameters, 20, -1), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_parameters_set(&parameters, 23, 1), ZRPROJ_UNKNOWN);
    EXPECT_EQ(zrproj_parameters_get(&parameters, 0, &value), ZRPROJ_UNKNOWN);
    parameters.size = 0;
    EXPECT_EQ(zrproj_parameters_set(&parameters, 1, 1), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_parameters_get(&parameters, 1, &value), ZRPROJ_BAD_ARGUMENT);
}
