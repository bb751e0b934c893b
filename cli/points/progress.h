// A bar on the terminal that shows how far a long conversion is.
#pragma once

#include <chrono>

namespace ZrProj::Command {

class Progress {
public:
    /// total: bytes to read, 0 where that is not known. The bar shows only for large input, on a standard error that is
    /// a terminal, and not on a terminal where the results themselves appear.
    explicit Progress(unsigned long long total);
    ~Progress() { hide(); }
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    void show(unsigned long long done);
    /// Clears the bar's line, for a message or for good.
    void hide();

private:
    unsigned long long m_total;
    bool m_visible = false;
    std::chrono::steady_clock::time_point m_next;
};

} // namespace ZrProj::Command
