// The platform on Windows.
#if defined(_WIN32)

#include "platform.h"

#include <cstdlib>
#include <ctime>
#include <windows.h>

namespace ZrProj {

namespace {

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
