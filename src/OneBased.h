// An array counted from 1, as rows, columns, slots and players are on the board.
#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <utility>

namespace quendrel {

/// N values at places 1 to N. Any other place throws std::out_of_range.
template <typename T, int N>
class OneBased {
public:
    constexpr OneBased() = default;
    constexpr explicit OneBased(std::array<T, N> values) : values_(std::move(values)) {}

    constexpr T& operator[](int place) { return values_[Index(place)]; }
    constexpr const T& operator[](int place) const { return values_[Index(place)]; }

    constexpr void Fill(const T& value) { values_.fill(value); }
    constexpr auto begin() const { return values_.begin(); }
    constexpr auto end() const { return values_.end(); }
    constexpr bool operator==(const OneBased&) const = default;

private:
    static constexpr std::size_t Index(int place) {
        if (place < 1 || place > N) {
            throw std::out_of_range("index " + std::to_string(place) + " is outside 1 to " +
                                    std::to_string(N));
        }
        return static_cast<std::size_t>(place - 1);
    }

    std::array<T, N> values_{};
};

}  // namespace quendrel
