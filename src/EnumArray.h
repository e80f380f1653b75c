// An array with an element for each value of a scoped enumeration that counts from 0.
#pragma once

#include <array>
#include <cstddef>

namespace quendrel {

template <class Enum, class T, std::size_t N>
struct EnumArray {
    std::array<T, N> values{};

    /// Throws std::out_of_range.
    constexpr T& operator[](Enum index) { return values.at(static_cast<std::size_t>(index)); }
    constexpr const T& operator[](Enum index) const {
        return values.at(static_cast<std::size_t>(index));
    }

    constexpr auto begin() { return values.begin(); }
    constexpr auto end() { return values.end(); }
    constexpr auto begin() const { return values.begin(); }
    constexpr auto end() const { return values.end(); }

    bool operator==(const EnumArray&) const = default;
};

}  // namespace quendrel
