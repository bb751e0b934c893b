// A C++11 program on zrproj/c.h alone, doing what door.c does in its own way. Usage: door DIRECTORY, where it may
// write.
#include <zrproj/c.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

void need(zrproj_status status) {
    if (status != ZRPROJ_OK)
        throw std::runtime_error(std::string(zrproj_status_name(status)) + ": " + zrproj_message());
}

template <class T> using Handle = std::unique_ptr<T, void (*)(T*)>;

using System = Handle<zrproj_system>;
using Transform = Handle<zrproj_transform>;

System utm17() {
    zrproj_parameters parameters = zrproj_parameters();
    parameters.size = sizeof parameters;
    need(zrproj_projection_find("UTM", &parameters.type));
    need(zrproj_ellipsoid_find("wgs 84", &parameters.ellipsoid));
    need(zrproj_utm_meridian(17, &parameters.lon0));
    zrproj_system* system = nullptr;
    need(zrproj_system_create_from_parameters(&parameters, &system));
    return System(system, zrproj_system_destroy);
}

Transform toUtm17() {
    System const map = utm17();
    zrproj_system* base = nullptr;
    need(zrproj_system_geographic(map.get(), &base));
    System const geographic(base, zrproj_system_destroy);
    zrproj_options const options = {sizeof options, nullptr, 2, 0};
    zrproj_transform* transform = nullptr;
    need(zrproj_transform_create(geographic.get(), map.get(), &options, &transform));
    return Transform(transform, zrproj_transform_destroy);
}

void convertAMillionPoints(zrproj_transform const* transform) {
    std::size_t const count = 1000000;
    std::vector<double> x(count), y(count);
    for (std::size_t i = 0; i < count; ++i) {
        x[i] = -141 + 120.0 * double(i % 1000) / 999;
        y[i] = 91 * double(i / 1000) / 999;
    }
    x[0] = NAN;
    std::vector<unsigned char> reasons(count);
    need(zrproj_transform_points(transform, 0, x.data(), y.data(), sizeof(double), count, reasons.data()));
    std::map<unsigned char, std::size_t> tally;
    for (unsigned char const reason : reasons)
        ++tally[reason];
    for (std::pair<unsigned char const, std::size_t> const& entry : tally)
        std::printf("%lu %s\n", static_cast<unsigned long>(entry.second),
                    zrproj_reason_name(static_cast<zrproj_reason>(entry.first)));
}

void shareAHandle(zrproj_transform const* transform) {
    double results[2] = {0, 1};
    std::vector<std::thread> threads;
    for (double& result : results)
        threads.emplace_back([transform, &result] {
            for (int i = 0; i < 1000; ++i) {
                double point[] = {-79.38, 43.65};
                need(zrproj_transform_points(transform, 0, point, point + 1, 16, 1, nullptr));
                result = point[0];
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    if (results[0] != results[1])
        throw std::runtime_error("two threads, two results");
}

void listTheWrongControlPoint() {
    std::vector<double> source, target;
    for (int i = 0; i < 9; ++i) {
        double const x = 100 * (i % 3), y = 80 * (i / 3);
        source.insert(source.end(), {x, y});
        target.insert(target.end(), {5e5 + 2 * x + i % 2 + (i == 5 ? 50 : 0), 5e6 - 2 * y - i % 4 / 2.0});
    }
    int affine = 0;
    need(zrproj_fit_method_find("affine", &affine));
    zrproj_fit* madeFit = nullptr;
    need(zrproj_fit_create(affine, source.data(), target.data(), 9, &madeFit));
    Handle<zrproj_fit> const fit(madeFit, zrproj_fit_destroy);
    zrproj_analysis* madeAnalysis = nullptr;
    need(zrproj_analysis_create(fit.get(), &madeAnalysis));
    Handle<zrproj_analysis> const analysis(madeAnalysis, zrproj_analysis_destroy);
    zrproj_fit_summary summary = zrproj_fit_summary();
    summary.size = sizeof summary;
    need(zrproj_analysis_summary(analysis.get(), &summary));
    if (summary.outliers > 0)
        std::printf("control point %lu stands out by %.0f\n", static_cast<unsigned long>(summary.worst),
                    summary.worst_left_out);
}

void clipAPolygon() {
    double const square[] = {-130, 10, -60, 10, -60, 60, -130, 60};
    zrproj_pieces* made = nullptr;
    need(zrproj_clip_ring(utm17().get(), square, 4, &made));
    Handle<zrproj_pieces> const pieces(made, zrproj_pieces_destroy);
    double const* points = nullptr;
    std::size_t count = 0;
    for (std::size_t n = 0; zrproj_pieces_entry(pieces.get(), n, &points, &count, nullptr) == ZRPROJ_OK; ++n)
        std::printf("ring of %lu points, the first at %.3f %.3f\n", static_cast<unsigned long>(count), points[0],
                    points[1]);
}

void readAWorldFile(std::string const& directory) {
    std::string const path = directory + "/of any other name";
    std::ofstream(path) << "2\n0\n0\n-2\n500001\n4649999\n";
    zrproj_description* made = nullptr;
    need(zrproj_description_read(path.c_str(), ZRPROJ_WORLD_FILE, &made));
    Handle<zrproj_description> const description(made, zrproj_description_destroy);
    zrproj_georeference georeference = zrproj_georeference();
    georeference.size = sizeof georeference;
    need(zrproj_description_georeference(description.get(), &georeference));
    std::printf("the image's corner lies at %.0f %.0f\n", georeference.coefficients[2], georeference.coefficients[5]);
    std::remove(path.c_str());
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 2)
        throw std::runtime_error("usage: door DIRECTORY");
    Transform const transform = toUtm17();
    convertAMillionPoints(transform.get());
    shareAHandle(transform.get());
    listTheWrongControlPoint();
    clipAPolygon();
    readAWorldFile(argv[1]);
} catch (std::exception const& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
