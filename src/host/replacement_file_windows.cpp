// Replacing files on Windows.
#if defined(_WIN32)

#include "host/replacement_file.h"

#include <array>
#include <filesystem>
#include <system_error>

#include <windows.h>

namespace ZrProj {
namespace {

std::string lastMessage() {
    return std::system_category().message(static_cast<int>(GetLastError()));
}

} // namespace

ReplacementFile::ReplacementFile(std::string const& original) : m_original(original) {
    std::error_code error;
    bool const isPlain = !std::filesystem::exists(original, error) || std::filesystem::is_regular_file(original, error);
    auto const directory = std::filesystem::path(original).parent_path().string();
    std::array<char, MAX_PATH> name{};
    if (isPlain && GetTempFileNameA(directory.empty() ? "." : directory.c_str(), "zrp", 0, name.data()) != 0)
        m_name = name.data();
    else
        m_reason = isPlain ? lastMessage() : "it is no plain file";
}

ReplacementFile::~ReplacementFile() {
    if (!m_name.empty())
        DeleteFileA(m_name.c_str());
}

bool ReplacementFile::commit() {
    DWORD const flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    bool const isDone = MoveFileExA(m_name.c_str(), m_original.c_str(), flags) != 0;
    if (isDone)
        m_name.clear();
    else
        m_reason = lastMessage();
    return isDone;
}

} // namespace ZrProj

#endif
