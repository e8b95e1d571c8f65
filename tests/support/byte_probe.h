// Checks where the fields of a record stand in a file: byte by byte, at offsets written out in the test.
#pragma once

#include "base/layout.h"

#include <gtest/gtest.h>

namespace wortlex {

/// Bytes that differ from place to place. None is 0, and no four of them are a not-a-number.
inline Bytes distinct_bytes(std::size_t size) {
    Bytes bytes(size);
    std::uint32_t state = 1;
    for (auto& byte : bytes) {
        state = state * 1664525 + 1013904223;
        const auto value = 1 + (state >> 16) % 253; // 0x7F and 0xFF begin the not-a-numbers
        byte = static_cast<std::byte>(value < 0x7F ? value : value + 1);
    }
    return bytes;
}

/// The bytes of a number or text as a little-endian file holds them.
template <class Value>
Bytes raw(const Value& value) {
    if constexpr (stored::IsText<Value>::value) {
        return raw(value.bytes);
    } else if constexpr (stored::IsArray<Value>::value) {
        Bytes all;
        for (const auto& element : value) {
            for (const auto byte : raw(element)) all.push_back(byte);
        }
        return all;
    } else {
        Bytes bytes;
        auto rest = static_cast<std::uint64_t>(std::bit_cast<UnsignedOf<sizeof(Value)>>(value));
        for (std::size_t i = 0; i < sizeof(Value); ++i, rest /= 256) bytes.push_back(std::byte(rest % 256));
        return bytes;
    }
}

template <class Value>
void poke(Bytes& file, std::size_t offset, const Value& value) {
    const auto bytes = raw(value);
    ASSERT_LE(offset + bytes.size(), file.size());
    std::copy(bytes.begin(), bytes.end(), file.begin() + static_cast<std::ptrdiff_t>(offset));
}

template <class Value>
Value peek(ByteView file, std::size_t offset) {
    std::array<std::byte, sizeof(Value)> bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[std::endian::native == std::endian::little ? i : bytes.size() - 1 - i] = file[offset + i];
    return std::bit_cast<Value>(bytes);
}

/// The first place in which two files differ, for a message that helps; -1 if they are equal.
inline std::ptrdiff_t first_difference(ByteView a, ByteView b) {
    const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return in_a == a.end() && in_b == b.end() ? -1 : in_a - a.begin();
}

/// One row of a table of fields: where it stands, and what the record holds.
template <class Record>
struct FieldRow {
    std::size_t offset;
    std::function<Bytes(const Record&)> stored;
};

template <class Record>
using FieldRows = std::vector<FieldRow<Record>>;

template <class T>
struct ElementOf {
    using type = T;
};
template <class T, std::size_t N>
struct ElementOf<std::array<T, N>> : ElementOf<T> {};

/// A field of the file's type `Stored` (or an array of such); enums count as their width.
template <class Stored, class Record, class Member>
FieldRow<Record> field(std::size_t offset, Member Record::*member) {
    using Element = typename ElementOf<Member>::type;
    static_assert(sizeof(Element) == sizeof(Stored));
    static_assert(std::is_floating_point_v<Element> == std::is_floating_point_v<Stored>);
    if constexpr (!std::is_enum_v<Element>)
        static_assert(std::is_signed_v<Element> == std::is_signed_v<Stored>);
    return {offset, [=](const Record& record) { return raw(record.*member); }};
}

// The types as the tables of the file formats name them.
inline constexpr auto u8 = [](std::size_t at, auto member) { return field<std::uint8_t>(at, member); };
inline constexpr auto i16 = [](std::size_t at, auto member) { return field<std::int16_t>(at, member); };
inline constexpr auto i32 = [](std::size_t at, auto member) { return field<std::int32_t>(at, member); };
inline constexpr auto u32 = [](std::size_t at, auto member) { return field<std::uint32_t>(at, member); };
inline constexpr auto f32 = [](std::size_t at, auto member) { return field<float>(at, member); };

template <class Record, std::size_t N>
FieldRow<Record> text(std::size_t offset, Text<N> Record::*member) {
    return {offset, [=](const Record& record) { return raw(record.*member); }};
}

/// A record at `offset` inside another one; `access` leads to it.
template <class Inner, class Access>
struct Inside {
    std::size_t offset;
    FieldRows<Inner> rows;
    Access access;
};
template <class Inner, class Access>
Inside(std::size_t, FieldRows<Inner>, Access) -> Inside<Inner, Access>;

/// `count` records of `size` bytes one after the other; `access` leads to their list.
template <class Inner, class Access>
struct Each {
    std::size_t offset;
    std::size_t size;
    std::size_t count;
    FieldRows<Inner> rows;
    Access access;
};
template <class Inner, class Access>
Each(std::size_t, std::size_t, std::size_t, FieldRows<Inner>, Access) -> Each<Inner, Access>;

template <class Record>
void add(FieldRows<Record>& table, const FieldRow<Record>& row) {
    table.push_back(row);
}

template <class Record, class Inner, class Access>
void add(FieldRows<Record>& table, const Inside<Inner, Access>& inside) {
    for (const auto& row : inside.rows) {
        table.push_back(
            {inside.offset + row.offset, [stored = row.stored, access = inside.access](const Record& record) {
                 return stored(std::invoke(access, record));
             }});
    }
}

template <class Record, class Inner, class Access>
void add(FieldRows<Record>& table, const Each<Inner, Access>& each) {
    for (std::size_t i = 0; i < each.count; ++i) {
        const auto element = [access = each.access, i](const Record& record) -> const Inner& {
            return std::invoke(access, record)[i];
        };
        add(table, Inside{each.offset + each.size * i, each.rows, element});
    }
}

/// The table of a record: fields, and records inside it.
template <class Record, class... Parts>
FieldRows<Record> rows(const Parts&... parts) {
    FieldRows<Record> table;
    (add(table, parts), ...);
    return table;
}

/// The rows cover `file` without gap or overlap, and the record holds what the file has there.
template <class Record>
void expect_fields(const FieldRows<Record>& table, const Record& record, ByteView file) {
    std::size_t end = 0;
    for (const auto& row : table) {
        ASSERT_EQ(row.offset, end) << "the row before is wider or narrower than its table says";
        const auto bytes = row.stored(record);
        end += bytes.size();
        ASSERT_LE(end, file.size());
        EXPECT_EQ(first_difference(bytes, file.subspan(row.offset, bytes.size())), -1)
            << "the field at " << row.offset;
    }
    EXPECT_EQ(end, file.size());
}

/// A record of `size` bytes is read field by field and written back as it was.
template <class Record, class RecordLayout>
void expect_layout(std::size_t size, const RecordLayout& format, const FieldRows<Record>& table) {
    ASSERT_EQ(RecordLayout::size, size);
    const auto file = distinct_bytes(size);
    Record record;
    format.get(record, file.data());
    expect_fields(table, record, file);
    EXPECT_EQ(first_difference(encoded(record, format), file), -1);
}

} // namespace wortlex
