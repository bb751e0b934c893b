/* A C99 program on zrproj/c.h alone: converts a million points on two threads and reads the reasons, uses one handle on
   two threads of its own, fits control points and lists the wrong one, clips a polygon, reads a world file by its path.
   Usage: door DIRECTORY, where it may write. */
#include <zrproj/c.h>

#include <math.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { count = 1000000, controls = 9, wrong = 5 };

static void need(int holds, char const* what) {
    if (!holds) {
        fprintf(stderr, "%s: %s\n", what, zrproj_message());
        exit(1);
    }
}

static zrproj_system* utm17(void) {
    zrproj_parameters parameters;
    zrproj_system* system;
    memset(&parameters, 0, sizeof parameters);
    parameters.size = sizeof parameters;
    need(zrproj_projection_find("utm", &parameters.type) == ZRPROJ_OK, "projection");
    need(zrproj_ellipsoid_find("WGS 84", &parameters.ellipsoid) == ZRPROJ_OK, "ellipsoid");
    need(zrproj_utm_meridian(17, &parameters.lon0) == ZRPROJ_OK, "zone");
    need(zrproj_system_create_from_parameters(&parameters, &system) == ZRPROJ_OK, "system");
    return system;
}

static zrproj_transform* toUtm17(void) {
    zrproj_system *map = utm17(), *geographic;
    zrproj_transform* transform;
    zrproj_options options = {sizeof options, NULL, 2, 0};
    need(zrproj_system_geographic(map, &geographic) == ZRPROJ_OK, "geographic system");
    need(zrproj_transform_create(geographic, map, &options, &transform) == ZRPROJ_OK, "transform");
    zrproj_system_destroy(map);
    zrproj_system_destroy(geographic);
    return transform;
}

/* Places from 60 degrees west of the zone's meridian to 60 east of it, and beyond the pole. */
static void place(size_t i, double* longitude, double* latitude) {
    *longitude = -141 + 120.0 * (double)(i % 1000) / 999;
    *latitude = 91 * (double)(i / 1000) / 999;
}

static void convertAMillionPoints(zrproj_transform const* transform) {
    double* pairs = malloc(2 * count * sizeof *pairs);
    unsigned char* reasons = malloc(count);
    size_t tally[32] = {0}, i;
    need(pairs && reasons, "memory");
    for (i = 0; i < count; ++i)
        place(i, pairs + 2 * i, pairs + 2 * i + 1);
    pairs[0] = NAN;
    need(zrproj_transform_points(transform, 0, pairs, pairs + 1, 2 * sizeof *pairs, count, reasons) == ZRPROJ_OK,
         "points");
    for (i = 0; i < count; ++i) {
        ++tally[reasons[i]];
        need(isnan(pairs[2 * i]) == (reasons[i] >= ZRPROJ_NOT_FINITE), "a point without a result is NaN");
    }
    for (i = 0; i < 32; ++i)
        if (tally[i])
            printf("%lu %s\n", (unsigned long)tally[i], zrproj_reason_name((zrproj_reason)i));
    free(pairs);
    free(reasons);
}

static void* convertOnItsOwn(void* transform) {
    double x = -79.38, y = 43.65, last = 0;
    int i;
    for (i = 0; i < 1000; ++i) {
        x = -79.38, y = 43.65;
        zrproj_transform_points(transform, 0, &x, &y, 8, 1, NULL);
        need(i == 0 || x == last, "the same point comes out the same");
        last = x;
    }
    return NULL;
}

static void shareAHandle(zrproj_transform* transform) {
    pthread_t threads[2];
    int i;
    for (i = 0; i < 2; ++i)
        need(pthread_create(&threads[i], NULL, convertOnItsOwn, transform) == 0, "thread");
    for (i = 0; i < 2; ++i)
        pthread_join(threads[i], NULL);
}

static void listTheWrongControlPoint(void) {
    double source[2 * controls], target[2 * controls];
    zrproj_fit* fit;
    zrproj_analysis* analysis;
    zrproj_residual residual = {sizeof residual, 0, 0, 0, 0, 0, 0};
    int affine;
    size_t i;
    for (i = 0; i < controls; ++i) {
        double const x = 100.0 * (double)(i % 3), y = 80.0 * (double)(i / 3);
        source[2 * i] = x, source[2 * i + 1] = y;
        target[2 * i] = 5e5 + 2 * x + (double)(i % 2), target[2 * i + 1] = 5e6 - 2 * y - (double)(i % 4) / 2;
    }
    target[2 * wrong] += 50;
    need(zrproj_fit_method_find("affine", &affine) == ZRPROJ_OK, "method");
    need(zrproj_fit_create(affine, source, target, controls, &fit) == ZRPROJ_OK, "fit");
    need(zrproj_analysis_create(fit, &analysis) == ZRPROJ_OK, "analysis");
    for (i = 0; zrproj_analysis_residual(analysis, i, &residual) == ZRPROJ_OK; ++i)
        if (residual.stands_out)
            printf("control point %lu stands out by %.0f\n", (unsigned long)i, residual.left_out);
    zrproj_analysis_destroy(analysis);
    zrproj_fit_destroy(fit);
}

static void clipAPolygon(void) {
    double const square[] = {-130, 10, -60, 10, -60, 60, -130, 60};
    double const* points;
    size_t n, length;
    zrproj_system* map = utm17();
    zrproj_pieces* pieces;
    need(zrproj_clip_ring(map, square, 4, &pieces) == ZRPROJ_OK, "clipping");
    for (n = 0; zrproj_pieces_entry(pieces, n, &points, &length, NULL) == ZRPROJ_OK; ++n)
        printf("ring of %lu points, the first at %.3f %.3f\n", (unsigned long)length, points[0], points[1]);
    zrproj_pieces_destroy(pieces);
    zrproj_system_destroy(map);
}

static void readAWorldFile(char const* directory) {
    char path[1024];
    FILE* file;
    zrproj_description* description;
    zrproj_georeference georeference;
    snprintf(path, sizeof path, "%s/of any name", directory);
    file = fopen(path, "w");
    need(file && fputs("2\n0\n0\n-2\n500001\n4649999\n", file) >= 0 && fclose(file) == 0, "writing");
    need(zrproj_description_read(path, ZRPROJ_WORLD_FILE, &description) == ZRPROJ_OK, "world file");
    georeference.size = sizeof georeference;
    need(zrproj_description_georeference(description, &georeference) == ZRPROJ_OK, "georeference");
    printf("the image's corner lies at %.0f %.0f\n", georeference.coefficients[2], georeference.coefficients[5]);
    zrproj_description_destroy(description);
    remove(path);
}

int main(int argc, char** argv) {
    zrproj_transform* transform = toUtm17();
    need(argc == 2, "usage: door DIRECTORY");
    convertAMillionPoints(transform);
    shareAHandle(transform);
    zrproj_transform_destroy(transform);
    listTheWrongControlPoint();
    clipAPolygon();
    readAWorldFile(argv[1]);
    return 0;
}
