// Files in memory on Windows.
#if defined(_WIN32)

#include "mapped_file.h"

#include <windows.h>

namespace ZrProj {

namespace {

/// The bytes of an open file; null where they cannot be mapped.
std::byte const* map(HANDLE file) {
    HANDLE const mapping = CreateFileMappingA(file, nullptr, PAGE_READONLY, 0, 0, nullptr);
    if (!mapping)
        return nullptr;
    void const* const start = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0);
    CloseHandle(mapping); // the view stays
    return static_cast<std::byte const*>(start);
}

} // namespace

MappedFile::MappedFile(std::string const& name) noexcept {
    HANDLE const file = CreateFileA(name.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    LARGE_INTEGER size = {};
    open_ = GetFileType(file) == FILE_TYPE_DISK && GetFileSizeEx(file, &size);
    if (open_ && size.QuadPart > 0) { // nothing cannot be mapped
        std::byte const* const start = map(file);
        open_ = start != nullptr;
        if (open_)
            bytes_ = {start, static_cast<std::size_t>(size.QuadPart)};
    }
    CloseHandle(file);
}

MappedFile::~MappedFile() {
    if (!bytes_.empty())
        UnmapViewOfFile(bytes_.data());
}

} // namespace ZrProj

#endif
