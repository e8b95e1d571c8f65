// Checks where the fields of a record stand in a file, at offsets written out in the test: the rows of its
// table encode the record a second time.
#pragma once

#include "base/layout.h"

#include <gtest/gtest.h>

#include <iterator>

namespace wortlex {

static_assert(std::endian::native == std::endian::little, "the probe holds values as this machine does");

/// Bytes that differ from place to place. None is 0, and no four of them are a not-a-number.
inline Bytes distinct_bytes(std::size_t size) {
    Bytes bytes(size);
    for (std::uint32_t state = 1; auto& byte : bytes) {
        state = state * 1664525 + 1013904223;
        const auto value = 1 + (state >> 16) % 253; // 0x7F and 0xFF begin the not-a-numbers
        byte = static_cast<std::byte>(value < 0x7F ? value : value + 1);
    }
    return bytes;
}

template <class Value>
void poke(Bytes& file, std::size_t offset, const Value& value) {
    ASSERT_LE(offset + sizeof(Value), file.size());
    std::memcpy(file.data() + offset, &value, sizeof(Value));
}

/// The first place in which two files differ, for a message that helps; -1 if they are equal.
inline std::ptrdiff_t first_difference(ByteView a, ByteView b) {
    const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return in_a == a.end() && in_b == b.end() ? -1 : in_a - a.begin();
}

struct Placed {
    std::size_t offset;
    Bytes bytes;
};

template <class T>
T element(const T&);
template <std::size_t N>
char element(const Text<N>&);
template <class T, std::size_t N>
auto element(const std::array<T, N>& list) -> decltype(element(list[0]));

/// A field of the file's type `Stored`, or an array of such; enums count as their width.
template <class Stored>
Placed field(std::size_t offset, const auto& value) {
    using Element = decltype(element(value));
    static_assert(sizeof(Element) == sizeof(Stored));
    static_assert(std::is_floating_point_v<Element> == std::is_floating_point_v<Stored>);
    static_assert(std::is_enum_v<Element> || std::is_signed_v<Element> == std::is_signed_v<Stored>);
    const auto bytes = std::as_bytes(std::span(&value, 1));
    return {offset, {bytes.begin(), bytes.end()}};
}
// clang-format off
inline Placed u8(std::size_t offset, const auto& value) { return field<std::uint8_t>(offset, value); }
inline Placed i16(std::size_t offset, const auto& value) { return field<std::int16_t>(offset, value); }
inline Placed i32(std::size_t offset, const auto& value) { return field<std::int32_t>(offset, value); }
inline Placed u32(std::size_t offset, const auto& value) { return field<std::uint32_t>(offset, value); }
inline Placed f32(std::size_t offset, const auto& value) { return field<float>(offset, value); }
inline Placed text(std::size_t offset, const auto& value) { return field<char>(offset, value); }
// clang-format on

/// The records of a list one after the other.
Placed each(std::size_t offset, const auto& list, auto table) {
    Placed row{offset, {}};
    for (const auto& record : list) std::ranges::copy(table(record), std::back_inserter(row.bytes));
    return row;
}

/// The bytes of a record, whose rows leave neither gap nor overlap.
struct Table : Bytes {
    Table(std::initializer_list<Placed> rows) {
        for (const auto& row : rows) {
            EXPECT_EQ(row.offset, size()) << "the row before is wider or narrower than its table says";
            insert(end(), row.bytes.begin(), row.bytes.end());
        }
    }
};

/// A record of `size` bytes is read as its table says and written back as it was.
template <class RecordLayout>
void expect_layout(std::size_t size, const RecordLayout& format, auto table) {
    const auto file = distinct_bytes(size);
    typename RecordLayout::record_type record;
    ASSERT_EQ(RecordLayout::size, size);
    format.get(record, file.data());
    EXPECT_EQ(first_difference(table(record), file), -1);
    EXPECT_EQ(first_difference(encoded(record, format), file), -1);
}

} // namespace wortlex
