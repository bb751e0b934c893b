#include "cli/points/progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr unsigned long long largeInput = 16ULL << 20;
constexpr auto pause = std::chrono::milliseconds(100);

} // namespace

Progress::Progress(unsigned long long total)
    : m_total(total >= largeInput && isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO) ? total : 0),
      m_next(std::chrono::steady_clock::now() + 2 * pause) {}

void Progress::show(unsigned long long done) {
    if (m_total == 0 || std::chrono::steady_clock::now() < m_next)
        return;
    m_next = std::chrono::steady_clock::now() + pause;
    m_visible = true;
    constexpr std::size_t width = 40;
    auto const percent = std::min(100 * done / m_total, 100ULL);
    std::string bar(width * percent / 100, '#');
    bar.resize(width, '.');
    std::fprintf(stderr, "\r[%s] %3llu %%", bar.c_str(), percent);
}

void Progress::hide() {
    if (m_visible)
        std::fprintf(stderr, "\r\033[K");
    m_visible = false;
}

} // namespace ZrProj::Command
