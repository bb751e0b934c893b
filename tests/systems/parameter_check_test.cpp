#include "systems/parameter_check.h"

#include "systems/method_table.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ZrProj::systems;

namespace {

/// Values that every method makes a map of.
ParameterValues usableValues(MethodRow const& method) {
    ParameterValues values;
    for (int const code : method.parameters)
        if (ParameterRow const* row = parameterByCode(code); row && code != 0)
            values[row->parameter] = row->parameter == Parameter::standardParallel2 ? 30 : 20;
    return values;
}

} // namespace

TEST(ParameterCheck, ScalesAndLatitudesOfEveryMethod) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    int scales = 0, latitudes = 0;
    for (MethodRow const& method : methodRows) {
        ParameterValues const usable = usableValues(method);
        EXPECT_FALSE(wrongParameter(method.method, usable)) << method.name;
        for (int const code : method.parameters) {
            ParameterRow const* const row = code != 0 ? parameterByCode(code) : nullptr;
            if (!row)
                continue;
            auto const isWrong = [&](double value) {
                ParameterValues values = usable;
                values[row->parameter] = value;
                auto const wrong = wrongParameter(method.method, values);
                return wrong && wrong->parameter == row->parameter;
            };
            bool const scale = row->kind == Kind::scale;
            bool const latitude = row->name.starts_with("Latitude") || row->name.starts_with("Spherical latitude");
            EXPECT_EQ(isWrong(0) && isWrong(-1) && isWrong(infinite), scale) << method.name << ": " << row->name;
            EXPECT_EQ(isWrong(90.1) && isWrong(-90.1), latitude) << method.name << ": " << row->name;
            scales += scale;
            latitudes += latitude;
        }
    }
    EXPECT_GT(scales, 20);
    EXPECT_GT(latitudes, 50);
}

TEST(ParameterCheck, PolesAndTheEquatorWhereTheyLeaveNoMap) {
    struct Case {
        Method method;
        Parameter parameter;
        double value;
        bool isWrong;
    };
    constexpr Case cases[] = {
        {Method::mercatorB, Parameter::standardParallel1, 90, true},
        {Method::cylindricalEqualArea, Parameter::standardParallel1, -90, true},
        {Method::polarStereographicB, Parameter::standardParallel1, 90, false},
        {Method::transverseMercator, Parameter::latitudeOfOrigin, 90, false},
        {Method::lambertConic1, Parameter::latitudeOfOrigin, 90, true},
        {Method::lambertConic1, Parameter::latitudeOfOrigin, 0, true},
        {Method::lambertConic2, Parameter::standardParallel2, 90, true},
        {Method::lambertConic2, Parameter::standardParallel2, -20, true},
        {Method::albers, Parameter::standardParallel2, 90, false},
        {Method::albers, Parameter::standardParallel2, -20, true},
        {Method::hotineA, Parameter::latitudeOfOrigin, 90, true},
    };
    for (Case const& each : cases) {
        ParameterValues values = usableValues(rowOf(each.method));
        values[each.parameter] = each.value;
        EXPECT_EQ(wrongParameter(each.method, values).has_value(), each.isWrong)
            << rowOf(each.method).name << ' ' << each.value;
    }
}
