// The library for C, and for whatever can call C: coordinate systems, transforms between them, control points, clipping
// and side files, as functions on handles. Plain C99 and C++11.
//
//     zrproj_system *map, *geographic;
//     zrproj_transform* transform;
//     if (zrproj_system_create("WGS 84 / UTM zone 17N", &map) != ZRPROJ_OK) // or "EPSG:32617", or well-known text
//         puts(zrproj_message());
//     zrproj_system_geographic(map, &geographic);
//     zrproj_transform_create(geographic, map, NULL, &transform);
//     double point[] = {-79.38, 43.65};                        // longitude, latitude
//     unsigned char reason;
//     zrproj_transform_points(transform, 0, point, point + 1, 16, 1, &reason);
//
// What holds for all of it:
//
// - Angles are degrees, x comes before y, longitude before latitude. Structures are zeroed, and their `size` set,
//   before they are filled; they may grow at their end.
// - A handle never changes after its creation, and any number of threads may use it at once. The destroy functions
//   ignore null; nothing else may be using the handle by then.
// - Functions that can fail return a status. Outputs are written on success only; those that receive a handle hold null
//   after a failure. A null pointer where it is not said to be allowed is ZRPROJ_BAD_ARGUMENT, memory that runs out is
//   ZRPROJ_NO_MEMORY, and neither is listed again below.
// - Texts that come out as pointers are UTF-8, closed by a null, and live as long as the library, unless said
//   otherwise.
// - Entries of a list are asked for one by one, 0 first; ZRPROJ_UNKNOWN is the answer past the last.
// - Nothing is thrown, the caller's floating-point environment and locale are neither changed nor of any influence.
#ifndef ZRPROJ_C_H
#define ZRPROJ_C_H

#include "api.h"

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/// What became of a call.
typedef enum zrproj_status {
    ZRPROJ_OK = 0,
    ZRPROJ_BAD_ARGUMENT,   ///< null, a count that cannot be, a number that is not finite
    ZRPROJ_BAD_DEFINITION, ///< the definition makes no sense; the message says where it stops making sense
    ZRPROJ_UNKNOWN,        ///< well formed, but not in the list or register; the message suggests what is near
    ZRPROJ_UNSUPPORTED,    ///< known, but cannot be computed or said; the message says which part of it and why
    ZRPROJ_NO_PATH,        ///< no way from one datum to the other; the message says why, and which grid would help
    ZRPROJ_FILE,           ///< could not be read or written, or is damaged; the message says where
    ZRPROJ_NOT_SOLVABLE,   ///< too few control points, collinear, alike
    ZRPROJ_NO_MEMORY
} zrproj_status;

/// A status in words, "bad argument" say; "" for a number that is none.
ZRPROJ_API char const* zrproj_status_name(zrproj_status status);

/// What this thread's last failure was, one line; after a success "", or what was noticed on the way. Every function
/// that returns a status sets it. The text is good until the thread's next call of such a function.
ZRPROJ_API char const* zrproj_message(void);

/// The version of the library, "0.1.0" say.
ZRPROJ_API char const* zrproj_version(void);

// ---- Catalogues: what the numbers of parameters mean.

/// What a parameter's value is.
typedef enum zrproj_kind {
    ZRPROJ_KIND_PROJECTION = 0, ///< a number of zrproj_projection_entry
    ZRPROJ_KIND_ELLIPSOID,      ///< a number of zrproj_ellipsoid_entry
    ZRPROJ_KIND_ZONE,           ///< a number of zrproj_state_plane_entry
    ZRPROJ_KIND_FLAG,           ///< 0 or 1
    ZRPROJ_KIND_FACTOR,         ///< above 0
    ZRPROJ_KIND_METRES,
    ZRPROJ_KIND_LONGITUDE, ///< degrees, within 360 either way
    ZRPROJ_KIND_LATITUDE,  ///< degrees, within 90 either way
    ZRPROJ_KIND_AZIMUTH,   ///< degrees, within 360 either way
    ZRPROJ_KIND_FLATTENING ///< at least 0, below 1
} zrproj_kind;

/// The n-th projection type: its number, its key ("lambert-conformal-conic", for options and file names) and its name.
/// Outputs may be null, here and in all catalogues.
ZRPROJ_API zrproj_status zrproj_projection_entry(size_t n, int* type, char const** key, char const** name);

/// Finds a projection type by its key or its name, letter case ignored. ZRPROJ_UNKNOWN where there is none.
ZRPROJ_API zrproj_status zrproj_projection_find(char const* name, int* type);

/// The n-th parameter that a type uses, in the order in which a user interface presents them. ZRPROJ_UNKNOWN also for
/// a number that is no type.
ZRPROJ_API zrproj_status zrproj_projection_parameter(int type, size_t n, int* parameter);

/// The n-th parameter that differs from 0 in a picture that shows the type well, and its value. The others are 0, the
/// scale factors 1, and any ellipsoid will do. ZRPROJ_UNKNOWN also for a number that is no type.
ZRPROJ_API zrproj_status zrproj_projection_picture(int type, size_t n, int* parameter, double* value);

/// The n-th parameter of the catalogue: its number, its key ("lat0", a field of zrproj_parameters), its name ("Central
/// Latitude") and what its value is.
ZRPROJ_API zrproj_status zrproj_parameter_entry(size_t n, int* parameter, char const** key, char const** name,
                                                zrproj_kind* kind);

/// The n-th ellipsoid of the catalogue: its number, name, semi-major axis in metres and flattening. Number 0, which
/// comes first, stands for the caller's own and has neither.
ZRPROJ_API zrproj_status zrproj_ellipsoid_entry(size_t n, int* ellipsoid, char const** name, double* radius,
                                                double* flattening);

/// Finds an ellipsoid by its name, letter case ignored. ZRPROJ_UNKNOWN where there is none.
ZRPROJ_API zrproj_status zrproj_ellipsoid_find(char const* name, int* ellipsoid);

/// The n-th datum of the catalogue: its number, its name, its ellipsoid and the name of the method that carries it to
/// WGS 84 ("Molodensky").
ZRPROJ_API zrproj_status zrproj_datum_entry(size_t n, int* datum, char const** name, int* ellipsoid,
                                            char const** method);

/// The n-th method that carries datums to WGS 84: its number, its name, how many numbers of a zrproj_shift it goes by
/// beside the prime meridian (3: the shifts; 7: the rotations and the scale as well; 0: none; -1: it goes by equations
/// or grids that only datums of the catalogue have), and whether it leads back from WGS 84 (1) or not (0).
ZRPROJ_API zrproj_status zrproj_datum_method_entry(size_t n, int* method, char const** name, int* numbers,
                                                   int* inverts);

/// Finds a datum by its name, letter case ignored. ZRPROJ_UNKNOWN where there is none.
ZRPROJ_API zrproj_status zrproj_datum_find(char const* name, int* datum);

/// The n-th State Plane zone: its number, its name and its USGS code, 0 where it has none.
ZRPROJ_API zrproj_status zrproj_state_plane_entry(size_t n, int* zone, char const** name, int* usgs);

/// Finds a State Plane zone by its name, letter case ignored. ZRPROJ_UNKNOWN where there is none.
ZRPROJ_API zrproj_status zrproj_state_plane_find(char const* name, int* zone);

/// The n-th method of fitting control points: its number, its key ("thin-plate"), its name and how many control points
/// it needs at least.
ZRPROJ_API zrproj_status zrproj_fit_method_entry(size_t n, int* method, char const** key, char const** name,
                                                 size_t* needed);

/// Finds a method of fitting by its key or its name, letter case ignored. ZRPROJ_UNKNOWN where there is none.
ZRPROJ_API zrproj_status zrproj_fit_method_find(char const* name, int* method);

// ---- Systems.

/// How a datum of the caller's own is carried to WGS 84.
typedef struct zrproj_shift {
    int method;            ///< 0: the datum is not told; 2: seven parameters (Bursa-Wolf); 3: three (Molodensky)
    double dx, dy, dz;     ///< metres
    double rx, ry, rz;     ///< rotations in arcseconds, within 3600 either way
    double scale;          ///< parts per million on top of 1
    double prime_meridian; ///< degrees east of Greenwich, within 180 either way
} zrproj_shift;

/// A coordinate system by numbers: a projection with its parameters, and the datum. Zero it, set `size`, then set what
/// the type uses (zrproj_projection_parameter). A factor of 0 counts as 1, and 0.9996 for the k0 of type 4, UTM.
typedef struct zrproj_parameters {
    size_t size;             ///< sizeof(zrproj_parameters)
    int type;                ///< projection; 0 is geographic, longitude and latitude
    int ellipsoid;           ///< 0: radius and flattening, or where these are 0 the datum's ellipsoid
    int zone;                ///< State Plane zone, types 9 and 10 only
    int datum;               ///< of the catalogue, 1 to 236; 0: the caller's own, by `shift`; 237: not told
    int south;               ///< not 0: southern hemisphere (UTM)
    int use_alpha;           ///< not 0: azimuth instead of two points (Hotine)
    int rotate;              ///< not 0: turn u, v to x, y (Hotine)
    int u_offset;            ///< not 0: measure u from the centre (Hotine)
    double scale;            ///< map scale, after the false origin: 3937/1200.0 gives US survey feet
    double x0, y0;           ///< false easting and northing, metres; of UTM they are known
    double lat0, lon0;       ///< centre, degrees; latitudes within 90, longitudes within 360 either way
    double lat1, lat2, lat3; ///< standard parallels, degrees
    double lon1, lon2, lon3; ///< meridians, degrees
    double k0;               ///< scale factor at the centre
    double alpha;            ///< azimuth, degrees, within 360 either way
    double radius;           ///< semi-major axis, metres, above 0
    double flattening;       ///< at least 0, below 1; exactly 0 is a sphere
    zrproj_shift shift;      ///< of datum 0; passed over with any other, of which a file may tell it
} zrproj_parameters;

/// The field of a parameter, by its number: flags and numbers of catalogues as doubles. ZRPROJ_UNKNOWN for a number
/// that is no parameter.
ZRPROJ_API zrproj_status zrproj_parameters_get(zrproj_parameters const* parameters, int parameter, double* value);

/// Sets the field of a parameter, by its number. The value is not checked, but ZRPROJ_BAD_ARGUMENT is the answer for
/// one that the field cannot hold; ZRPROJ_UNKNOWN for a number that is no parameter.
ZRPROJ_API zrproj_status zrproj_parameters_set(zrproj_parameters* parameters, int parameter, double value);

/// A coordinate system.
typedef struct zrproj_system zrproj_system;

/// Makes a system of a definition, in UTF-8 or else in Latin-1 (a text that is no valid UTF-8 is taken as Latin-1, so
/// that names come out in UTF-8 always; a byte order mark is skipped), whatever its form: a code ("EPSG:28992",
/// "28992", a URN), a name of the register or another maker's ("Amersfoort / RD New"; without regard to case; "WGS84",
/// "NAD27", "UTM 17N"), well-known text of any generation (1 as GDAL or as ESRI writes it, 2 of 2015 or 2019),
/// PROJJSON, or a PROJ string. Coordinates are x, y always, whatever a definition says of their order; axes that run
/// south or west keep their sense. A compound system is taken by its horizontal part; heights and epochs are left out.
///
/// What says the same as an entry of the register is that entry. Where a code or name is contradicted by its own
/// numbers the numbers count, and the message tells; it tells of a deprecated system too. ZRPROJ_BAD_DEFINITION, with
/// the line and column as message, for a text that makes no sense; ZRPROJ_UNKNOWN, with what is near, for a code or
/// name that the register does not have; ZRPROJ_UNSUPPORTED for what is known, but cannot be computed.
ZRPROJ_API zrproj_status zrproj_system_create(char const* definition, zrproj_system** system);

/// Makes a system of parameters. ZRPROJ_BAD_DEFINITION, with the reason as message, for parameters that make no
/// projection or datum: a type that is none, an angle out of its range, a cone that is none, a zone without a
/// definition, no ellipsoid at all. ZRPROJ_BAD_ARGUMENT for a number that is not finite. ZRPROJ_UNSUPPORTED for a
/// projection that with these parameters shows nothing.
ZRPROJ_API zrproj_status zrproj_system_create_from_parameters(zrproj_parameters const* parameters,
                                                              zrproj_system** system);

/// Frees a system. Transforms that were made of it stay good.
ZRPROJ_API void zrproj_system_destroy(zrproj_system* system);

/// The form of a system's text.
typedef enum zrproj_format {
    ZRPROJ_NAME = 0,    ///< "Amersfoort / RD New"
    ZRPROJ_CODE,        ///< "EPSG:28992"; ZRPROJ_UNKNOWN for a system that is not in the register
    ZRPROJ_WKT2,        ///< well-known text, ISO 19162:2019
    ZRPROJ_WKT1,        ///< well-known text of the first generation as GDAL writes it
    ZRPROJ_WKT_ESRI,    ///< well-known text of the first generation as ESRI writes it, for .prj files
    ZRPROJ_PROJ_STRING, ///< "+proj=..."; of most datums it tells the ellipsoid alone
    ZRPROJ_PROJJSON
} zrproj_format;

/// A system's text, for one made of parameters too. Buffer and length as for zrproj_transform_describe.
/// ZRPROJ_UNSUPPORTED where the form cannot say what changes coordinates.
ZRPROJ_API zrproj_status zrproj_system_text(zrproj_system const* system, zrproj_format format, char* buffer,
                                            size_t size, size_t* length);

/// The area of use in degrees; west > east crosses the antimeridian. Outputs may be null. ZRPROJ_UNKNOWN where the
/// definition has none.
ZRPROJ_API zrproj_status zrproj_system_area(zrproj_system const* system, double* west, double* south, double* east,
                                            double* north);

/// The figure that a system's longitudes and latitudes lie on: semi-major axis in metres, and flattening. Outputs may
/// be null.
ZRPROJ_API zrproj_status zrproj_system_ellipsoid(zrproj_system const* system, double* radius, double* flattening);

/// Metres a unit of a projected system's coordinates. ZRPROJ_UNKNOWN for a geographic system, whose unit is the degree.
ZRPROJ_API zrproj_status zrproj_system_unit(zrproj_system const* system, double* metres);

/// The parameters that a system stands for, completed: radius, flattening and scale factors, the false origin of a UTM
/// zone. Of a system made of a definition those of the record that says the same, if any (a Transverse Mercator's is
/// computed by the series, near its meridian only); the message tells of a datum that the catalogue does not have.
/// `parameters->size` must be set. ZRPROJ_UNSUPPORTED where no record says the system.
ZRPROJ_API zrproj_status zrproj_system_parameters(zrproj_system const* system, zrproj_parameters* parameters);

/// The system of longitudes and latitudes that a system is based on, of the same figure and datum, as a handle of its
/// own.
ZRPROJ_API zrproj_status zrproj_system_geographic(zrproj_system const* system, zrproj_system** geographic);

/// The n-th system of the register, in the order of codes: its code, its name and its kind, "geographic" or
/// "projected". Outputs may be null.
ZRPROJ_API zrproj_status zrproj_register_entry(size_t n, int* code, char const** name, char const** kind);

/// Searches the register: systems with all the words of `text` in their name, letter case ignored, or with that code,
/// and with `place`, a longitude and a latitude in degrees, in their area of use; the smallest area first where a place
/// is given, else in the order of codes. Either may be null. Deprecated systems are found by their whole code alone.
/// The first `size` results are written to `entries`, as numbers for zrproj_register_entry, which may be null where
/// `size` is 0; `*count` is how many there are. ZRPROJ_BAD_ARGUMENT for a place that is none.
ZRPROJ_API zrproj_status zrproj_register_search(char const* text, double const* place, size_t* entries, size_t size,
                                                size_t* count);

/// The edition of the register, by its publisher, version and date.
ZRPROJ_API char const* zrproj_register_version(void);

/// The terms of use of the register's data, a sentence.
ZRPROJ_API char const* zrproj_register_terms(void);

// ---- Transforms.

/// The way from one system to another.
typedef struct zrproj_transform zrproj_transform;

/// How a transform works; all zero but `size`: the defaults.
typedef struct zrproj_options {
    size_t size;       ///< sizeof(zrproj_options)
    char const* grids; ///< folders to look for grids in, ':' between them (';' on Windows); may be null. Then come
                       ///< those of the environment's ZRPROJ_GRIDS, and PROJ's
    int threads;       ///< 0 or 1: the calling thread only; n: up to n; -1: as many as there are processors
    int refuse_rough;  ///< not 0: ZRPROJ_NO_PATH instead of a way that loses more than 1 m, or nobody knows how much
} zrproj_options;

/// Makes the way from one system to another; both may be destroyed afterwards. `options` may be null for the defaults.
///
/// Between datums it goes by what the definitions themselves say, else by the operations that the register ranks first
/// for the area of the systems, of those whose grids are there; zrproj_transform_describe tells which. Backwards it is
/// the exact inverse in two dimensions: heights are 0 on the side of `from`. Realizations of one datum are taken as
/// one, which is told as well.
///
/// ZRPROJ_BAD_ARGUMENT for options of no known size or threads below -1. ZRPROJ_NO_PATH where no way is known, or none
/// without a grid, which the message names. ZRPROJ_FILE for a grid's file that is damaged or cannot be read, with the
/// place. ZRPROJ_UNSUPPORTED for shifts of a definition that are too large for datums of one body.
ZRPROJ_API zrproj_status zrproj_transform_create(zrproj_system const* from, zrproj_system const* to,
                                                 zrproj_options const* options, zrproj_transform** transform);

/// Frees a transform.
ZRPROJ_API void zrproj_transform_destroy(zrproj_transform* transform);

/// What the transform does, one line a step, each operation between datums with its name, code, accuracy and area; what
/// else is to be told of it, such as the epoch that a moving datum is taken at; and which grid, if it were there, would
/// make it better. `*accuracy` is that of all the operations together in metres: NaN where nobody states one, 0 where
/// there are none.
///
/// Up to `size` bytes are written with the final null; `*length` is what the whole text takes without it. Too short a
/// buffer: cut, ZRPROJ_BAD_ARGUMENT. `buffer` may be null where `size` is 0, and `length` and `accuracy` may be null.
ZRPROJ_API zrproj_status zrproj_transform_describe(zrproj_transform const* transform, char* buffer, size_t size,
                                                   size_t* length, double* accuracy);

/// What became of a point. Below 16 the point has a result.
typedef enum zrproj_reason {
    ZRPROJ_CONVERTED = 0,
    ZRPROJ_FAR = 1,         ///< computed, but farther out than the method's accuracy is stated for: Transverse Mercator
                            ///< of a definition more than 3900 km from its central meridian, and by parameters (types
                            ///< 4, 17, 18) on an ellipsoid more than 10 degrees
    ZRPROJ_OUT_OF_AREA = 2, ///< computed, but outside the area that the way between the datums is stated for
    ZRPROJ_NOT_FINITE = 16, ///< came in infinite, NaN or already marked (DBL_MAX)
    ZRPROJ_BEYOND_POLE = 17, ///< a latitude above 90 degrees either way
    ZRPROJ_NOT_SHOWN = 18,   ///< a place that the projection does not show
    ZRPROJ_OFF_THE_MAP = 19, ///< map coordinates where no place is
    ZRPROJ_OFF_THE_GRID = 20 ///< a place that a grid which must be used does not cover
} zrproj_reason;

/// A reason in words, "not shown" say; "" for a number that is none.
ZRPROJ_API char const* zrproj_reason_name(zrproj_reason reason);

/// Converts `count` points in place. `x` is longitude or easting, `y` latitude or northing (always in this order), in
/// the units of the system. Each next number is `stride` bytes on: 8 for two arrays, 16 for pairs of x and y.
///
/// A point without a result becomes NaN, NaN; that alone is no failure. `reasons` may be null, or receives a
/// zrproj_reason for each point, one after the other. `backwards` not 0: from `to` to `from`. A point's result depends
/// neither on the array's layout nor on its place in it or on the number of threads, to the bit. Longitudes may be
/// given in any turn of the globe, and come out from -180 to 180.
///
/// A count of 0 does nothing, whatever the pointers. ZRPROJ_BAD_ARGUMENT, points as they were, for null pointers, with
/// more than one point a stride below 8 either way, and a count that no memory can hold. Numbers need not be aligned.
ZRPROJ_API zrproj_status zrproj_transform_points(zrproj_transform const* transform, int backwards, double* x, double* y,
                                                 ptrdiff_t stride, size_t count, unsigned char* reasons);

// ---- Datums.

/// The way from one datum to another through WGS 84, by the methods of the catalogue and callers' own shifts.
typedef struct zrproj_datum_shift zrproj_datum_shift;

/// Makes the way between the datums that two sets of parameters tell; nothing else of them counts but the ellipsoid of
/// a caller's own datum, which with method 0 is WGS 84 on an ellipsoid of its own. The same datum of the catalogue
/// twice leaves points as they are. ZRPROJ_NO_PATH for a datum that is not told and for one that only can be converted
/// from; ZRPROJ_BAD_DEFINITION for a shift out of its range; ZRPROJ_FILE, with the reason as message, where the grid
/// that the method needs is not beside the running program, or none.
ZRPROJ_API zrproj_status zrproj_datum_shift_create(zrproj_parameters const* from, zrproj_parameters const* to,
                                                   zrproj_datum_shift** shift);

/// Frees a datum shift.
ZRPROJ_API void zrproj_datum_shift_destroy(zrproj_datum_shift* shift);

/// Converts `count` longitudes and latitudes in degrees in place. Layout, NaN and failures as for
/// zrproj_transform_points; longitudes keep their turn of the globe. The reasons are ZRPROJ_CONVERTED,
/// ZRPROJ_OUT_OF_AREA where regression equations are used so far outside their area that they are off by 50 metres or
/// far more, ZRPROJ_NOT_FINITE, ZRPROJ_BEYOND_POLE, ZRPROJ_OFF_THE_GRID, and ZRPROJ_OFF_THE_MAP where the formulas have
/// no result. ZRPROJ_FILE where a file of the grid ends before what a point needs; the points from there on stay as
/// they were.
ZRPROJ_API zrproj_status zrproj_datum_shift_points(zrproj_datum_shift const* shift, double* x, double* y,
                                                   ptrdiff_t stride, size_t count, unsigned char* reasons);

// ---- Control points.

/// A map of the plane onto itself, from an image's coordinates to a map's say, by control points or coefficients.
typedef struct zrproj_fit zrproj_fit;

/// Fits a method (zrproj_fit_method_entry) to control points: `count` pairs of x and y in source coordinates, and the
/// same points in target coordinates. Least squares where there are more points than the method needs. The pairs are
/// copied.
///
/// ZRPROJ_UNKNOWN for a number that is no method; ZRPROJ_BAD_ARGUMENT for a coordinate that is not finite;
/// ZRPROJ_NOT_SOLVABLE where the points determine no such map, with what is wrong with them as message;
/// ZRPROJ_UNSUPPORTED for more than 10,000 points of a method that meets every one.
ZRPROJ_API zrproj_status zrproj_fit_create(int method, double const* source, double const* target, size_t count,
                                           zrproj_fit** fit);

/// Makes the map of six coefficients a to f: X = a x + b y + c, Y = d x + e y + f. ZRPROJ_BAD_ARGUMENT for one that is
/// not finite.
ZRPROJ_API zrproj_status zrproj_fit_create_affine(double const coefficients[6], zrproj_fit** fit);

/// Frees a fit. Its analyses stay good.
ZRPROJ_API void zrproj_fit_destroy(zrproj_fit* fit);

/// Maps `count` points in place from source to target coordinates, on as many threads as zrproj_options::threads says.
/// Layout, NaN, reasons and failures as for zrproj_transform_points; the reasons are ZRPROJ_CONVERTED,
/// ZRPROJ_NOT_FINITE, and ZRPROJ_OFF_THE_MAP where the result is not finite. ZRPROJ_BAD_ARGUMENT for threads below -1,
/// too.
ZRPROJ_API zrproj_status zrproj_fit_points(zrproj_fit const* fit, double* x, double* y, ptrdiff_t stride, size_t count,
                                           unsigned char* reasons, int threads);

/// The n-th term of a similarity, a polynomial or six coefficients, "x^2 y" say, and its coefficients for X and for Y
/// in source coordinates as they are. Methods that meet every control point have no terms. Outputs may be null; `term`
/// lives as long as the library.
ZRPROJ_API zrproj_status zrproj_fit_coefficient(zrproj_fit const* fit, size_t n, char const** term, double* x,
                                                double* y);

/// How well a fit meets its control points, and which of them do not belong.
typedef struct zrproj_analysis zrproj_analysis;

/// Looks into a fit; the fit may be destroyed afterwards. ZRPROJ_UNSUPPORTED for one of six coefficients.
///
/// A least-squares fit is looked into by Baarda's data snooping: a point stands out when the chance that any of them is
/// so far off is below 1 percent, each taken against the spread of the others. A method that meets every point leaves
/// out each in turn, up to 150 points (more take too long): a point stands out when it then lies 12 times the others'
/// median away. Points that stand out are left aside one by one, up to a third of them. Where the points are too few
/// for the method to tell, but enough for an affine fit, that one judges.
ZRPROJ_API zrproj_status zrproj_analysis_create(zrproj_fit const* fit, zrproj_analysis** analysis);

/// Frees an analysis.
ZRPROJ_API void zrproj_analysis_destroy(zrproj_analysis* analysis);

/// The whole of an analysis. What cannot be told is NaN.
typedef struct zrproj_fit_summary {
    size_t size;                        ///< sizeof(zrproj_fit_summary)
    size_t count;                       ///< of control points
    double mean, rms;                   ///< of the residuals' lengths
    double left_out_mean, left_out_rms; ///< of the leave-one-out residuals' lengths
    size_t outliers;                    ///< how many points stand out
    double rms_without;                 ///< of the fit without them, leave-one-out for methods that meet every point
    size_t worst;                       ///< the first of them, else the point with the greatest leave-one-out residual
    double worst_residual, worst_left_out; ///< its lengths, by the judge
    int judge;                             ///< the method whose residuals tell which points stand out
    size_t fewest_to_tell;                 ///< control points that the method itself needs to tell
    int looked;                            ///< 0: too many points to look for outliers
} zrproj_fit_summary;

/// `summary->size` must be set.
ZRPROJ_API zrproj_status zrproj_analysis_summary(zrproj_analysis const* analysis, zrproj_fit_summary* summary);

/// What a fit makes of one of its control points, in target units. What cannot be told is NaN.
typedef struct zrproj_residual {
    size_t size;     ///< sizeof(zrproj_residual)
    double dx, dy;   ///< where the fit puts the point, less where it is given
    double length;   ///< of dx, dy
    double left_out; ///< the length once more, by a fit to all the other points
    double leverage; ///< how much of its own fit the point makes, 0 to 1; of least-squares methods
    int stands_out;  ///< 0, or 1 for the first point that was found to stand out, 2 for the next, ...
} zrproj_residual;

/// The n-th control point's residual. `residual->size` must be set.
ZRPROJ_API zrproj_status zrproj_analysis_residual(zrproj_analysis const* analysis, size_t n, zrproj_residual* residual);

// ---- Clipping.

/// What a map shows of lines and areas: pieces, each a line or a ring of longitudes and latitudes.
typedef struct zrproj_pieces zrproj_pieces;

/// Cuts a line at the edges of a projected system's map: `count` pairs of longitude and latitude in degrees, at least
/// 2. Segments are straight in that plane and go the short way around the globe; the line breaks at a point that is no
/// place. Every point of the pieces is shown by the map, and no piece goes over an edge of it. A line of which nothing
/// is cut comes back unchanged; no pieces at all is no failure.
///
/// ZRPROJ_UNSUPPORTED for a geographic system, which has no edges.
ZRPROJ_API zrproj_status zrproj_clip_line(zrproj_system const* system, double const* points, size_t count,
                                          zrproj_pieces** pieces);

/// Cuts an area, given by the ring around it, at least 3 pairs; a first pair that is repeated at the end is tolerated.
/// The pieces are rings, closed along the map's edges with points a degree apart at most; one inside another is a hole
/// in it. The ring's segments, windings around a pole and failures are those of the line.
ZRPROJ_API zrproj_status zrproj_clip_ring(zrproj_system const* system, double const* points, size_t count,
                                          zrproj_pieces** pieces);

/// The n-th piece: its `count` pairs of longitude and latitude, which live as long as `pieces`, and whether it is a
/// ring, whose last point joins the first. Outputs may be null.
ZRPROJ_API zrproj_status zrproj_pieces_entry(zrproj_pieces const* pieces, size_t n, double const** points,
                                             size_t* count, int* closed);

/// Frees all of the pieces.
ZRPROJ_API void zrproj_pieces_destroy(zrproj_pieces* pieces);

// ---- What files say of a map or an image.

/// A kind of file beside an image, in the order in which they count.
typedef enum zrproj_side_file {
    ZRPROJ_REFERENCE_FILE = 0, ///< projection, datum and georeference: "map.tif.zrr"
    ZRPROJ_RSF_FILE,           ///< control points: "map.RSF"
    ZRPROJ_WORLD_FILE          ///< six coefficients: "map.tfW"
} zrproj_side_file;

/// The side files of an image that are there.
typedef struct zrproj_side_files zrproj_side_files;

/// Looks for the side files of an image, which need not exist itself. Names that differ in the case of their extension
/// are found after the exact ones.
ZRPROJ_API zrproj_status zrproj_side_files_create(char const* image, zrproj_side_files** files);

/// The n-th file, in the order in which they count; `path` lives as long as `files`. Outputs may be null.
ZRPROJ_API zrproj_status zrproj_side_files_entry(zrproj_side_files const* files, size_t n, zrproj_side_file* kind,
                                                 char const** path);

/// Frees the list, its paths included.
ZRPROJ_API void zrproj_side_files_destroy(zrproj_side_files* files);

/// The kind of a file by its name: "zrr", "rsf", and "wld" or what becomes of an image's extension ("tfw", "tifw").
/// ZRPROJ_UNKNOWN for any other.
ZRPROJ_API zrproj_status zrproj_side_file_kind(char const* path, zrproj_side_file* kind);

/// The name of an image's side file of a kind, as it is written. Buffer and length as for zrproj_transform_describe.
ZRPROJ_API zrproj_status zrproj_side_file_name(char const* image, zrproj_side_file kind, char* buffer, size_t size,
                                               size_t* length);

/// A tag of a TIFF file: its number, its type (3 short, 12 double, 2 text, ...) and `count` values of that type, in the
/// processor's own byte order.
typedef struct zrproj_tag {
    unsigned short id, type;
    unsigned int count;
    void const* data;
} zrproj_tag;

/// How an image lies on a map: by control points and a method to fit them by, or by coefficients.
typedef struct zrproj_georeference {
    size_t size;                   ///< sizeof(zrproj_georeference)
    int method;                    ///< of zrproj_fit_method_entry; 5: the coefficients
    size_t count;                  ///< of control points, 0 with method 5
    double const *source, *target; ///< `count` pairs of x and y each
    double coefficients[6];        ///< as for zrproj_fit_create_affine, 0 with any other method
} zrproj_georeference;

/// What files say of a map: a system and a georeference, either of which may be missing. Image coordinates count from
/// the upper left corner of the first pixel; world files, which count from its centre, are shifted by half a pixel when
/// they are read and when they are written.
typedef struct zrproj_description zrproj_description;

/// What a description may tell.
typedef enum zrproj_part { ZRPROJ_PROJECTION = 0, ZRPROJ_DATUM, ZRPROJ_GEOREFERENCE } zrproj_part;

/// Reads one side file of whatever name. ZRPROJ_FILE, with the reason as message, where it cannot be read, is of
/// another kind or damaged.
ZRPROJ_API zrproj_status zrproj_description_read(char const* path, zrproj_side_file kind,
                                                 zrproj_description** description);

/// All that is known of an image: from its reference file, its RSF file, its world file and its GeoTIFF tags (`count`
/// of them, may be 0), in this order, each part from the first that has it. Coefficients of a reference file, which are
/// but one number, yield to a later source. A source that is damaged is passed over, and a note tells of it.
ZRPROJ_API zrproj_status zrproj_description_of_image(char const* image, zrproj_tag const* tags, size_t count,
                                                     zrproj_description** description);

/// What GeoTIFF tags say. Notes tell what is contradictory or cannot be read, and what parameters cannot say;
/// zrproj_description_system has such a system all the same. ZRPROJ_FILE, with what is wrong with them as message, for
/// damaged tags.
ZRPROJ_API zrproj_status zrproj_description_of_tags(zrproj_tag const* tags, size_t count,
                                                    zrproj_description** description);

/// Puts a description together of a system's parameters, where type 999 stands for a datum alone (0 with method 0 is
/// one without a way to WGS 84), and a georeference; either may be null. Nothing is fitted, and the pairs are copied.
/// ZRPROJ_BAD_DEFINITION for parameters that make no system, ZRPROJ_UNKNOWN for a number that is no method,
/// ZRPROJ_BAD_ARGUMENT for a coordinate or coefficient that is not finite.
ZRPROJ_API zrproj_status zrproj_description_create(zrproj_parameters const* parameters,
                                                   zrproj_georeference const* georeference,
                                                   zrproj_description** description);

/// A description of a system, and of as much as parameters can say of it. `path` is the file that tells it, null for
/// none.
ZRPROJ_API zrproj_status zrproj_description_create_from_system(zrproj_system const* system, char const* path,
                                                               zrproj_description** description);

/// Puts two descriptions together, which may be destroyed afterwards: each part from `first` where that tells it, else
/// from `second`. Coefficients that a reference file keeps one number of yield to any other georeference.
ZRPROJ_API zrproj_status zrproj_description_combine(zrproj_description const* first, zrproj_description const* second,
                                                    zrproj_description** description);

/// Frees a description, with the texts and pairs that it gave out.
ZRPROJ_API void zrproj_description_destroy(zrproj_description* description);

/// The system, as it is told: `type` 999 where only the datum is, `datum` 237 where it is not. ZRPROJ_UNKNOWN where
/// nothing is told of it. `parameters->size` must be set; zrproj_system_create_from_parameters completes and checks.
ZRPROJ_API zrproj_status zrproj_description_parameters(zrproj_description const* description,
                                                       zrproj_parameters* parameters);

/// The datum alone: `type` is 999, ellipsoid, radius and flattening are the datum's own, and `shift` is what a file
/// says of the way to WGS 84, of a datum of the catalogue as well. ZRPROJ_UNKNOWN where no datum is told.
/// `parameters->size` must be set.
ZRPROJ_API zrproj_status zrproj_description_datum(zrproj_description const* description, zrproj_parameters* parameters);

/// The system, ready to convert; the register's where it is one, whether or not parameters can say it. The message
/// tells of a code or name that its numbers contradict. ZRPROJ_UNKNOWN where no system, or a datum alone, is told;
/// otherwise fails as zrproj_system_create and zrproj_system_create_from_parameters do.
ZRPROJ_API zrproj_status zrproj_description_system(zrproj_description const* description, zrproj_system** system);

/// The georeference; its pairs live as long as the description. `georeference->size` must be set. ZRPROJ_UNKNOWN where
/// there is none.
ZRPROJ_API zrproj_status zrproj_description_georeference(zrproj_description const* description,
                                                         zrproj_georeference* georeference);

/// The file that tells a part, "" for tags without an image and for what the caller told. `path` may be null, and lives
/// as long as the description. ZRPROJ_UNKNOWN where the part is not told.
ZRPROJ_API zrproj_status zrproj_description_source(zrproj_description const* description, zrproj_part part,
                                                   char const** path);

/// The n-th note of what was read: what a file says and no record can hold, or why it was passed over. The message of
/// the call that read it has all of them, as far as there is room. `note` lives as long as the description.
ZRPROJ_API zrproj_status zrproj_description_note(zrproj_description const* description, size_t n, char const** note);

/// How far a fit of a method (zrproj_fit_method_entry) misses the control points on the average, in the map's unit and
/// in pixels, whatever method the description names: what becomes of them in a file that keeps none. Coefficients are
/// taken as four control points. Outputs may be null. ZRPROJ_UNKNOWN where there is no georeference and for a number
/// that is no method of fitting, ZRPROJ_NOT_SOLVABLE where the points determine no such map.
ZRPROJ_API zrproj_status zrproj_description_miss(zrproj_description const* description, int method, double* mean,
                                                 double* pixels);

/// The georeference as a map of points. ZRPROJ_UNKNOWN where there is none; otherwise fails as zrproj_fit_create does.
ZRPROJ_API zrproj_status zrproj_description_fit(zrproj_description const* description, zrproj_fit** fit);

/// The n-th thing that a side file of a kind cannot carry of a description, as a sentence. The last one tells how a
/// georeference is read back that the format cannot keep (zrproj_description_miss tells how well): from a world file by
/// its affine fit, from an RSF file by a similarity, which cannot mirror. Buffer and length as for
/// zrproj_transform_describe.
ZRPROJ_API zrproj_status zrproj_description_loss(zrproj_description const* description, zrproj_side_file kind, size_t n,
                                                 char* buffer, size_t size, size_t* length);

/// Writes a side file of whatever name, in place of one that is there, which stays as it is until the new one is whole.
/// The message has all that zrproj_description_loss tells, as far as there is room. ZRPROJ_UNSUPPORTED where it can
/// carry nothing of the description, and for a world file of control points that make no affine fit; ZRPROJ_FILE where
/// writing fails.
ZRPROJ_API zrproj_status zrproj_description_write(zrproj_description const* description, char const* path,
                                                  zrproj_side_file kind);

/// The GeoTIFF tags that say what a description says.
typedef struct zrproj_tags zrproj_tags;

/// A system of the register is written by its code, whether or not parameters can say it; any other by its numbers.
/// ZRPROJ_UNSUPPORTED, with the reason as message, where tags cannot say it exactly.
ZRPROJ_API zrproj_status zrproj_tags_create(zrproj_description const* description, zrproj_tags** tags);

/// The n-th tag, in ascending order; its data lives as long as `tags`.
ZRPROJ_API zrproj_status zrproj_tags_entry(zrproj_tags const* tags, size_t n, zrproj_tag* tag);

/// Frees the tags and their data.
ZRPROJ_API void zrproj_tags_destroy(zrproj_tags* tags);

// ---- Zones, angles, grids.

/// The UTM zone of a place in degrees, 1 to 60: six degrees of longitude each, without the exceptions around Norway and
/// Svalbard; `*south` is 1 below the equator. Outputs may be null. ZRPROJ_BAD_ARGUMENT for a coordinate that is not
/// finite or a latitude beyond 90.
ZRPROJ_API zrproj_status zrproj_utm_zone(double longitude, double latitude, int* zone, int* south);

/// The central meridian of a UTM zone in degrees, for zrproj_parameters' lon0. ZRPROJ_BAD_ARGUMENT outside 1 to 60.
ZRPROJ_API zrproj_status zrproj_utm_meridian(int zone, double* longitude);

/// Reads a UTM zone: "17N", "17 s", "Zone 17N", "UTM 17N"; a number alone is in the north. Outputs may be null.
/// ZRPROJ_UNKNOWN for any other text, numbers outside 1 to 60 and other letters (33U is a grid square's band).
ZRPROJ_API zrproj_status zrproj_utm_read(char const* text, int* zone, int* south);

/// Reads an angle in degrees: "-36.8699", "-36d52.194", "-36d52'11.6315". ZRPROJ_BAD_DEFINITION for any other text.
ZRPROJ_API zrproj_status zrproj_angle_read(char const* text, double* degrees);

/// Writes an angle: in degrees (`parts` 1), degrees and minutes (2), or degrees, minutes and seconds (3), with 0 to 12
/// decimals on the last part. Minutes and seconds are never written as 60. Buffer and length as for
/// zrproj_transform_describe. ZRPROJ_BAD_ARGUMENT also for an angle that is not finite and for other parts or decimals.
ZRPROJ_API zrproj_status zrproj_angle_write(double degrees, int parts, int decimals, char* buffer, size_t size,
                                            size_t* length);

/// What a grid of datum shifts covers, in degrees.
typedef struct zrproj_grid {
    size_t size;                     ///< sizeof(zrproj_grid)
    int columns, rows;               ///< of its nodes
    double west, south, east, north; ///< where the outermost nodes lie
    double dx, dy;                   ///< between two nodes
    char identification[65];         ///< what the file says of its origin, in print
} zrproj_grid;

/// Reads the header of a NADCON grid: by the path of either of its files, or by its name without an extension, which is
/// looked for as it stands and then in the directory of the running program ("conus", "prvi"). `grid->size` must be
/// set. ZRPROJ_FILE, with the reason as message, where it cannot be read, is no grid, or has less than 22 columns,
/// since the header lies over the first rows then.
ZRPROJ_API zrproj_status zrproj_grid_read(char const* name, zrproj_grid* grid);

/// Reads a row of one of a grid's files, named as for zrproj_grid_read: `columns` shifts in arcseconds, west to east.
/// Rows count from 1, south to north. ZRPROJ_FILE also where the file ends before the row does; ZRPROJ_BAD_ARGUMENT for
/// a row that the grid does not have or a `count` that is not its columns.
ZRPROJ_API zrproj_status zrproj_grid_row(char const* name, int row, float* shifts, size_t count);

/// Writes a pair of grids as this library reads it: shifts of longitudes, east positive, to the file of that name with
/// ".LAS" added, and those of latitudes to the one with ".LOS", `columns` times `rows` of each, in arcseconds, row by
/// row from the south. Files that are there stay as they are until both new ones are whole. ZRPROJ_FILE where writing
/// fails; ZRPROJ_BAD_ARGUMENT for a header that zrproj_grid_read would refuse and for another `count`.
ZRPROJ_API zrproj_status zrproj_grid_write(char const* name, zrproj_grid const* grid, float const* longitudes,
                                           float const* latitudes, size_t count);

/// Whether a grid shifts a place: points up to two columns west of it are, points south of it are not.
/// ZRPROJ_BAD_ARGUMENT for a coordinate that is not finite.
ZRPROJ_API zrproj_status zrproj_grid_covers(zrproj_grid const* grid, double longitude, double latitude, int* covers);

#ifdef __cplusplus
}
#endif

#endif
