#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

namespace ZrProj::test {

/// Whether two records or arrays hold the same bytes.
template <class T> bool sameBytes(std::span<T const> a, std::span<T const> b) {
    return std::ranges::equal(std::as_bytes(a), std::as_bytes(b));
}
template <class T> bool sameBytes(T const& a, T const& b) {
    return sameBytes(std::span(&a, 1), std::span(&b, 1));
}

} // namespace ZrProj::test
