// The stand-in for the host's utility library: who hears of errors, and file name extensions.
#include <zrproj/zrlibw.h>

#include <atomic>
#include <cstdio>
#include <string_view>

namespace {

constexpr unsigned fullReport = 0x4000;

ZrCallerInstance defaultInstance;
std::atomic<ZrCallerInstance*> currentInstance = &defaultInstance;

/// The offset of the last extension's dot, npos where there is none. As in the file systems' own names, a dot that a
/// name begins with is part of the name.
std::size_t extensionDot(std::string_view fileName) {
    std::size_t const separator = fileName.find_last_of("/\\");
    std::size_t const nameStart = separator == std::string_view::npos ? 0 : separator + 1;
    std::string_view const name = fileName.substr(nameStart);
    std::size_t const dot = name.rfind('.');
    bool const isExtension = dot != std::string_view::npos && dot > 0 && name != "..";
    return isExtension ? nameStart + dot : std::string_view::npos;
}

} // namespace

ZrCallerInstance::ZrCallerInstance(ZrErrorFunc errorFunc, char const* helpFile)
    : m_errorFunc(errorFunc), m_helpFile(helpFile) {}

ZrErrorFunc ZrCallerInstance::GetErrorFunc() const {
    return m_errorFunc;
}

char const* ZrCallerInstance::GetHelpFileNamePtr() const {
    return m_helpFile;
}

ZrCallerInstance* ZrGetCallerInstancePtr() {
    return currentInstance.load(std::memory_order_acquire);
}

void ZrSetCallerInstancePtr(ZrCallerInstance* instance) {
    currentInstance.store(instance, std::memory_order_release);
}

int ZR_STDCALL ZrPrintError(_ZRERRINFO const* info) {
    if (info && (info->wFlags & fullReport) && info->pszText)
        std::fprintf(stderr, "%s\n", info->pszText);
    return 1;
}

char const* ZrGetFileExt(char const* fileName) {
    std::size_t const dot = fileName ? extensionDot(fileName) : std::string_view::npos;
    return dot == std::string_view::npos ? "" : fileName + dot + 1;
}

void ZrDropFileExt(char* fileName) {
    std::size_t const dot = fileName ? extensionDot(fileName) : std::string_view::npos;
    if (dot != std::string_view::npos)
        fileName[dot] = '\0';
}
