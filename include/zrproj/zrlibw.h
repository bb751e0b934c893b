// The host's side: how a host program hears of errors.
//
// Every failure that a caller must hear of has a number (20200 to 20271) and a text. The library hands both to the
// error callback of the host's caller instance. It asks first, with wFlags 0 and no texts: an answer of 1 means "tell
// me", and brings a second call with wFlags 0x4000 and every field filled. Any other answer ends the report.
//
//     #include <zrproj/zrproj.h>
//
//     int main() {
//         ZrCallerInstance host(ZrPrintError);
//         ZrSetCallerInstancePtr(&host);   // errors now go to standard error
//         ...
//         ZrSetCallerInstancePtr(nullptr); // before host goes out of scope
//     }
#ifndef ZRPROJ_ZRLIBW_H
#define ZRPROJ_ZRLIBW_H

#include "api.h"

#include <cstdint>
#include <memory>
#include <vector>

#if defined(_WIN32) && !defined(_WIN64)
#define ZR_STDCALL __stdcall
#else
#define ZR_STDCALL
#endif

/// One error report, as the callback sees it. The texts live only as long as the call.
struct _ZRERRINFO {
    std::uint16_t wFlags;    ///< 0: "do you want it?", without texts; 0x4000: the report itself
    std::uint16_t wError;    ///< the error number, 20200 to 20271
    std::int16_t nProduct;   ///< always 133
    std::int16_t nClass;     ///< always 2
    std::int32_t lReserved;  ///< always 0
    char const* pszModule;   ///< "ZrProj"
    char const* pszFile;     ///< the reporting source, for example ".\zrProj.cpp"
    std::int32_t nLine;      ///< the reporting line
    char const* pszText;     ///< the message
    char const* pszHelpFile; ///< the caller instance's help file name
};

/// A host's error callback. It answers 1 to get the full report, and 3 when reporting failed. It may be called on any
/// thread that calls the library; one that throws counts as having failed.
typedef int(ZR_STDCALL* ZrErrorFunc)(_ZRERRINFO const*);

/// Who uses the library: an error callback and the name of a help file.
class ZRPROJ_API ZrCallerInstance {
public:
    /// Takes the callback, null for a host that wants no reports, and the name of the help file that reports carry. The
    /// name is kept as the pointer it is and must outlive the object.
    ZrCallerInstance(ZrErrorFunc errorFunc = nullptr, char const* helpFile = "");

    /// Gives the callback; null where there is none.
    ZrErrorFunc GetErrorFunc() const;
    /// Gives the pointer to the help file's name that the constructor was given.
    char const* GetHelpFileNamePtr() const;

private:
    ZrErrorFunc m_errorFunc;
    char const* m_helpFile;
};

/// Gives the current caller instance, which at first is one without a callback. Returns null after
/// ZrSetCallerInstancePtr(nullptr).
ZRPROJ_API ZrCallerInstance* ZrGetCallerInstancePtr();

/// Makes `instance` the one that reports go to, from the next report on. It is the host's object and stays so; null
/// stands for none. May be called at any time, from any thread.
ZRPROJ_API void ZrSetCallerInstancePtr(ZrCallerInstance* instance);

/// Writes a report's text to standard error: a ready callback for a ZrCallerInstance. Always answers 1, and writes
/// nothing for null or for a report without a text.
ZRPROJ_API int ZR_STDCALL ZrPrintError(_ZRERRINFO const* info);

/// Finds the last extension of a file name, and returns a pointer into `fileName` behind its dot.
///
/// Returns "" where there is none, and for null. Dots in directory names do not count, nor does one that a name begins
/// with; both "/" and "\" separate directories.
ZRPROJ_API char const* ZrGetFileExt(char const* fileName);

/// Cuts the last extension, as ZrGetFileExt finds it, and its dot off `fileName`, in place. Null and a name without an
/// extension are left alone.
ZRPROJ_API void ZrDropFileExt(char* fileName);

/// A tag of a TIFF file. The data belongs to whoever made the tag.
struct ZrBitmapTag {
    std::uint16_t Id;    ///< the tag's number, 34735 for GeoTIFF's keys for example
    std::uint16_t Type;  ///< of the values: 1 byte, 2 ASCII, 3 short, 4 long, 5 rational, ..., 12 double; 13, 16 to 18
    std::uint32_t Count; ///< how many values there are
    void const* pData;   ///< the values, in the processor's own byte order; may be null for a count of 0
};

/// The tags of an image, in the order in which they were added. The list owns copies of their data; copies of the list
/// share them.
class ZRPROJ_API ZrBitmapTagList {
public:
    /// Appends a copy of a tag. A number may occur more than once. Returns false, with the list unchanged, for a type
    /// that TIFF does not have, for null data with a count, for more than 256 MB of data, and when memory runs out.
    bool Add(ZrBitmapTag const& tag);

    /// Finds the first tag with a number. Returns null where there is none. The pointer is good until a tag is added.
    ZrBitmapTag const* Find(std::uint16_t id) const;

    /// Tells how many tags there are.
    int Size() const;

    /// Gives the tag at an index, which must be from 0 to Size() - 1. The reference is good until a tag is added.
    ZrBitmapTag const& operator[](int index) const;

private:
    struct Held {
        ZrBitmapTag tag;
        std::shared_ptr<void const> data;
    };
    std::vector<Held> m_held;
};

#endif
