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
    std::uint16_t wFlags;    ///< 0: "do you want it?"; 0x4000: the report itself, with texts
    std::uint16_t wError;    ///< the error number, 20200 to 20271
    std::int16_t nProduct;   ///< 133
    std::int16_t nClass;     ///< 2
    std::int32_t lReserved;  ///< 0
    char const* pszModule;   ///< "ZrProj"
    char const* pszFile;     ///< the reporting source, for example ".\zrProj.cpp"
    std::int32_t nLine;      ///< the reporting line
    char const* pszText;     ///< the message
    char const* pszHelpFile; ///< the caller instance's help file name
};

/// A host's error callback. Answers 1 to get the full report, 3 when the report failed.
typedef int(ZR_STDCALL* ZrErrorFunc)(_ZRERRINFO const*);

/// Who uses the library: an error callback and the name of a help file.
class ZRPROJ_API ZrCallerInstance {
public:
    /// errorFunc: null for a host that wants no reports. helpFile: kept as the pointer it is; must outlive the object.
    ZrCallerInstance(ZrErrorFunc errorFunc = nullptr, char const* helpFile = "");

    ZrErrorFunc GetErrorFunc() const;
    char const* GetHelpFileNamePtr() const;

private:
    ZrErrorFunc m_errorFunc;
    char const* m_helpFile;
};

/// The current caller instance; at first one without a callback. Null after ZrSetCallerInstancePtr(nullptr).
ZRPROJ_API ZrCallerInstance* ZrGetCallerInstancePtr();

/// Makes `instance` the one that reports go to, from the next report on. It is the host's object and stays so; null for
/// none. May be called at any time, from any thread.
ZRPROJ_API void ZrSetCallerInstancePtr(ZrCallerInstance* instance);

/// A ready callback: asks for the full report, and writes its text to standard error. Always answers 1.
ZRPROJ_API int ZR_STDCALL ZrPrintError(_ZRERRINFO const* info);

/// The last extension of a file name without its dot, a pointer into `fileName`; "" where there is none, and for null.
/// Dots in directory names do not count.
ZRPROJ_API char const* ZrGetFileExt(char const* fileName);

/// Cuts the last extension and its dot off `fileName`, in place. Null, or a name without an extension, is left alone.
ZRPROJ_API void ZrDropFileExt(char* fileName);

/// A tag of a TIFF file: its number, its type (1 byte, 2 ASCII, 3 short, 4 long, 5 rational, ..., 12 double) and as
/// many values of that type as `Count` says, in the processor's own byte order. The data is whoever's made the tag.
struct ZrBitmapTag {
    std::uint16_t Id;
    std::uint16_t Type;
    std::uint32_t Count;
    void const* pData;
};

/// The tags of an image, in the order in which they were added. The list owns copies of their data; copies of the list
/// share them.
class ZRPROJ_API ZrBitmapTagList {
public:
    /// Appends a copy of a tag. False, the list unchanged, for a type that TIFF does not have, for null data with a
    /// count, for more than 256 MB of data, and when memory runs out.
    bool Add(ZrBitmapTag const& tag);

    /// The first tag with a number; null where there is none. Good until a tag is added.
    ZrBitmapTag const* Find(std::uint16_t id) const;

    int Size() const;

    /// The tag at an index from 0 to Size() - 1.
    ZrBitmapTag const& operator[](int index) const;

private:
    struct Held {
        ZrBitmapTag tag;
        std::shared_ptr<void const> data;
    };
    std::vector<Held> m_held;
};

#endif
