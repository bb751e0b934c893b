// Plain files on Windows.
#if defined(_WIN32)

#include "plain_file.h"

#include <io.h>
#include <utility>
#include <windows.h>

namespace ZrProj {

namespace {

/// The stream where its file is of one of the two kinds; otherwise it is closed.
Stream ofKind(Stream stream, DWORD kind, DWORD otherKind) {
    if (!stream)
        return nullptr;
    auto const handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream.get())));
    DWORD const found = GetFileType(handle);
    return found == kind || found == otherKind ? std::move(stream) : nullptr;
}

} // namespace

Stream openPlainFile(std::string const& name) noexcept {
    return ofKind(Stream(std::fopen(name.c_str(), "rt")), FILE_TYPE_DISK, FILE_TYPE_DISK);
}

Stream createFile(std::string const& name) noexcept {
    return ofKind(Stream(std::fopen(name.c_str(), "wt")), FILE_TYPE_DISK, FILE_TYPE_CHAR);
}

std::uint64_t fileSize(std::FILE& stream) noexcept {
    __int64 const size = _filelengthi64(_fileno(&stream));
    return size > 0 ? static_cast<std::uint64_t>(size) : 0;
}

Deletion deletePlainFile(std::string const& name) noexcept {
    DWORD const attributes = GetFileAttributesA(name.c_str());
    DWORD const others = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & others))
        return Deletion::NotPlain;
    if (attributes != INVALID_FILE_ATTRIBUTES && DeleteFileA(name.c_str()))
        return Deletion::Done;
    return GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND ? Deletion::NothingThere
                                                                                            : Deletion::Failed;
}

} // namespace ZrProj

#endif
