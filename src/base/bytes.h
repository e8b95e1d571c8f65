// Runs of bytes, and the one place where little-endian is spelled.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace wortlex {

using Bytes = std::vector<std::byte>;
using ByteView = std::span<const std::byte>;

/// The bytes of a text file as its text.
inline std::string characters_of(ByteView bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const auto byte : bytes) text += static_cast<char>(byte);
    return text;
}

template <std::size_t Width>
using UnsignedOf =
    std::conditional_t<Width == 1, std::uint8_t,
                       std::conditional_t<Width == 2, std::uint16_t,
                                          std::conditional_t<Width == 4, std::uint32_t, std::uint64_t>>>;

/// Writes an integer, enum or float of at most 8 bytes, lowest byte first.
template <class Scalar>
void put_little_endian(Scalar value, std::byte* to) {
    const auto raw = std::bit_cast<UnsignedOf<sizeof(Scalar)>>(value);
    for (std::size_t i = 0; i < sizeof(Scalar); ++i) to[i] = static_cast<std::byte>(raw >> (8 * i));
}

/// Reads what `put_little_endian` wrote.
template <class Scalar>
Scalar get_little_endian(const std::byte* from) {
    UnsignedOf<sizeof(Scalar)> raw = 0;
    for (std::size_t i = 0; i < sizeof(Scalar); ++i) {
        raw = static_cast<UnsignedOf<sizeof(Scalar)>>(raw | static_cast<UnsignedOf<sizeof(Scalar)>>(from[i])
                                                                << (8 * i));
    }
    return std::bit_cast<Scalar>(raw);
}

} // namespace wortlex
