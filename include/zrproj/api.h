// What every public header needs: how a symbol is exported.
//
// ZRPROJ_API stands before everything that the shared library exports. On Windows it exports where the library itself
// is built, which defines ZRPROJ_BUILDING, and imports in every other program; elsewhere all but these symbols is
// hidden.
#ifndef ZRPROJ_API_H
#define ZRPROJ_API_H

#if defined(_WIN32)
#if defined(ZRPROJ_BUILDING)
#define ZRPROJ_API __declspec(dllexport)
#else
#define ZRPROJ_API __declspec(dllimport)
#endif
#else
#define ZRPROJ_API __attribute__((visibility("default")))
#endif

#endif
