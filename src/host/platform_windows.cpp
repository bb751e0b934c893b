// The platform on Windows.
#if defined(_WIN32)

#include "platform.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <windows.h>

namespace ZrProj {

namespace {

HANDLE handleOf(std::intptr_t value) {
    return reinterpret_cast<HANDLE>(value);
}

/// A link opened as itself shows up as a reparse point.
bool isPlainFile(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION info = {};
    DWORD const others = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &info) &&
           !(info.dwFileAttributes & others) && info.nNumberOfLinks == 1;
}

} // namespace

char const* environmentVariable(char const* name) noexcept {
    return std::getenv(name);
}

FileName logFileName() noexcept {
    return {"c:\\zrproj.log"};
}

std::string executableDirectory() {
    std::string name(MAX_PATH, '\0');
    DWORD length = GetModuleFileNameA(nullptr, name.data(), static_cast<DWORD>(name.size()));
    while (length == name.size()) {
        name.resize(2 * name.size());
        length = GetModuleFileNameA(nullptr, name.data(), static_cast<DWORD>(name.size()));
    }
    name.resize(length);
    std::size_t const separator = name.find_last_of("\\/");
    return separator == std::string::npos ? std::string() : name.substr(0, separator);
}

PlainFile::PlainFile(std::string const& name) noexcept
    : handle_(reinterpret_cast<std::intptr_t>(CreateFileA(name.c_str(), GENERIC_READ,
                                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))) {
    bool const opened = handleOf(handle_) != INVALID_HANDLE_VALUE;
    missing_ = !opened && (GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND);
    LARGE_INTEGER size = {};
    open_ = opened && GetFileType(handleOf(handle_)) == FILE_TYPE_DISK && GetFileSizeEx(handleOf(handle_), &size);
    if (open_)
        size_ = static_cast<std::uint64_t>(size.QuadPart);
}

PlainFile::~PlainFile() {
    if (handleOf(handle_) != INVALID_HANDLE_VALUE)
        CloseHandle(handleOf(handle_));
}

bool PlainFile::read(std::uint64_t offset, void* buffer, std::size_t length) const noexcept {
    auto* out = static_cast<char*>(buffer);
    while (length > 0) {
        OVERLAPPED position = {};
        position.Offset = static_cast<DWORD>(offset);
        position.OffsetHigh = static_cast<DWORD>(offset >> 32);
        auto const wanted = static_cast<DWORD>(std::min<std::size_t>(length, 1U << 30));
        DWORD count = 0;
        if (!ReadFile(handleOf(handle_), out, wanted, &count, &position) || count == 0)
            return false;
        out += count;
        offset += count;
        length -= count;
    }
    return true;
}

void appendToFile(char const* fileName, std::string_view text) noexcept {
    DWORD const lastError = GetLastError();
    HANDLE const file =
        CreateFileA(fileName, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        DWORD written = 0;
        if (isPlainFile(file))
            WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        CloseHandle(file);
    }
    SetLastError(lastError);
}

std::array<char, 26> localTimeText() noexcept {
    std::array<char, 26> text = {};
    std::time_t const now = std::time(nullptr);
    return ctime_s(text.data(), text.size(), &now) == 0 ? text : std::array<char, 26>{"\n"};
}

} // namespace ZrProj

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH)
        ZrProj::onModuleStart();
    else if (reason == DLL_PROCESS_DETACH)
        ZrProj::onModuleEnd();
    return TRUE;
}

#endif
