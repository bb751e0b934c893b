// A value, or the sentence that says why there is none.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace ZrProj::GeoTIFF {

struct Refusal {
    std::string reason;
};

template <class T> class Outcome {
public:
    Outcome(T value) : m_value(std::move(value)) {}
    Outcome(Refusal refusal) : m_reason(std::move(refusal.reason)) {}

    explicit operator bool() const { return m_value.has_value(); }
    T const& operator*() const { return *m_value; }
    T const* operator->() const { return &*m_value; }
    /// Why there is no value.
    std::string const& reason() const { return m_reason; }
    Refusal refusal() const { return {m_reason}; }

private:
    std::optional<T> m_value;
    std::string m_reason;
};

} // namespace ZrProj::GeoTIFF
