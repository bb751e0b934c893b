#include "support/failing_memory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int never = -1;
thread_local int allocationsLeft = never; // until one fails

} // namespace

void* operator new(std::size_t size) {
    if (allocationsLeft != never && allocationsLeft-- == 0)
        throw std::bad_alloc();
    if (void* const memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

/// Does not fail: who calls it can do without.
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace ZrProj::test {

int withFailingMemory(std::function<void()> const& call, std::function<void(bool failed)> const& check) {
    for (int count = 0;; ++count) {
        allocationsLeft = count;
        call();
        bool const failed = allocationsLeft == never;
        allocationsLeft = never;
        check(failed);
        if (!failed)
            return count;
    }
}

} // namespace ZrProj::test
