// File layouts of records. A record in memory is a plain, aligned struct; its place in a file is a
// list beside it that reads like a table and is checked as it compiles:
//
//     constexpr auto step_layout = layout<Step, 8>(at(0, &Step::minutes), at(4, &Step::amount));
//
// A gap, an overlap or a wrong total does not compile.
#pragma once

#include "base/bytes.h"
#include "base/text.h"

#include <array>
#include <cstring>
#include <functional>
#include <utility>

namespace wortlex {

/// Stands for "no layout of its own": numbers, texts and bytes.
struct Plain {};

/// One entry of a layout: a member pointer or a way through one (`via`), and for a nested
/// record (or an array of such) the layout of that record.
template <class Access, class Sub>
struct Field {
    std::size_t offset = 0;
    Access access{};
    Sub sub{};
};

template <class Access>
constexpr auto at(std::size_t offset, Access access) {
    return Field<Access, Plain>{offset, access, {}};
}

template <class Access, class Sub>
constexpr auto at(std::size_t offset, Access access, Sub sub) {
    return Field<Access, Sub>{offset, access, sub};
}

/// Reaches a field inside a member: `at(4, via(&Step::water, &Water::amount))`.
template <class Outer, class Inner>
struct Via {
    Outer outer{};
    Inner inner{};

    template <class Record>
    constexpr auto& operator()(Record& record) const {
        return std::invoke(inner, std::invoke(outer, record));
    }
};

template <class Outer, class Inner>
constexpr auto via(Outer outer, Inner inner) {
    return Via<Outer, Inner>{outer, inner};
}

namespace stored {

template <class T>
struct IsArray : std::false_type {};
template <class T, std::size_t N>
struct IsArray<std::array<T, N>> : std::true_type {};

template <class T>
struct IsText : std::false_type {};
template <std::size_t N>
struct IsText<Text<N>> : std::true_type {};

template <class T>
inline constexpr bool is_byte = std::is_same_v<T, std::uint8_t> || std::is_same_v<T, std::byte>;

template <class T, class Sub>
constexpr std::size_t size() {
    if constexpr (IsArray<T>::value) {
        return std::tuple_size_v<T> * size<typename T::value_type, Sub>();
    } else if constexpr (!std::is_same_v<Sub, Plain>) {
        return Sub::size;
    } else if constexpr (IsText<T>::value) {
        return T::capacity;
    } else {
        static_assert((std::is_arithmetic_v<T> || std::is_enum_v<T>)&&!std::is_same_v<T, bool>);
        return sizeof(T);
    }
}

template <class T, class Sub>
void put(const T& value, const Sub& sub, std::byte* to) {
    if constexpr (IsText<T>::value) {
        std::memcpy(to, value.bytes.data(), T::capacity);
    } else if constexpr (IsArray<T>::value) {
        if constexpr (is_byte<typename T::value_type>) {
            std::memcpy(to, value.data(), value.size());
        } else {
            for (const auto& element : value) {
                put(element, sub, to);
                to += size<typename T::value_type, Sub>();
            }
        }
    } else if constexpr (std::is_same_v<Sub, Plain>) {
        put_little_endian(value, to);
    } else {
        sub.put(value, to);
    }
}

template <class T, class Sub>
void get(T& value, const Sub& sub, const std::byte* from) {
    if constexpr (IsText<T>::value) {
        std::memcpy(value.bytes.data(), from, T::capacity);
    } else if constexpr (IsArray<T>::value) {
        if constexpr (is_byte<typename T::value_type>) {
            std::memcpy(value.data(), from, value.size());
        } else {
            for (auto& element : value) {
                get(element, sub, from);
                from += size<typename T::value_type, Sub>();
            }
        }
    } else if constexpr (std::is_same_v<Sub, Plain>) {
        value = get_little_endian<T>(from);
    } else {
        sub.get(value, from);
    }
}

/// One of the fields of a layout, told apart from those of the same type by its number.
template <std::size_t Number, class Field>
struct Numbered {
    Field field;
};

template <class Numbers, class... Fields>
struct FieldList;

/// A flat list by inheritance: a tuple of so many types costs a quarter of the time that the program takes to
/// compile.
template <std::size_t... Numbers, class... Fields>
struct FieldList<std::index_sequence<Numbers...>, Fields...> : Numbered<Numbers, Fields>... {
    constexpr explicit FieldList(const Fields&... fields) : Numbered<Numbers, Fields>{fields}... {}

    template <class Visit>
    constexpr void each(Visit visit) const {
        (visit(static_cast<const Numbered<Numbers, Fields>&>(*this).field), ...);
    }
};

} // namespace stored

/// How a `Record` stands in a file, in `Size` bytes.
template <class Record, std::size_t Size, class... Fields>
struct Layout {
    using record_type = Record;
    static constexpr std::size_t size = Size;

    stored::FieldList<std::index_sequence_for<Fields...>, Fields...> fields;

    /// Writes `record` into the `Size` bytes at `to`.
    void put(const Record& record, std::byte* to) const {
        fields.each([&](const auto& field) {
            stored::put(std::invoke(field.access, record), field.sub, to + field.offset);
        });
    }

    /// Reads `record` from the `Size` bytes at `from`.
    void get(Record& record, const std::byte* from) const {
        fields.each([&](const auto& field) {
            stored::get(std::invoke(field.access, record), field.sub, from + field.offset);
        });
    }
};

namespace stored {

template <class Record, class Access, class Sub>
constexpr std::size_t field_size(const Field<Access, Sub>&) {
    return size<std::remove_cvref_t<std::invoke_result_t<Access, Record&>>, Sub>();
}

} // namespace stored

/// The layout of `Record` in `Size` bytes; its fields are listed in the order of the file.
template <class Record, std::size_t Size, class... Fields>
constexpr auto layout(Fields... fields) {
    std::size_t end = 0;
    const auto follow = [&end](std::size_t offset, std::size_t length) {
        if (offset != end) throw "a field leaves a gap or overlaps the one before it";
        end += length;
    };
    (follow(fields.offset, stored::field_size<Record>(fields)), ...);
    if (end != Size) throw "the fields do not fill the record";
    return Layout<Record, Size, Fields...>{
        stored::FieldList<std::index_sequence_for<Fields...>, Fields...>(fields...)};
}

/// Adds `record` to the end of `file`.
template <class Record, class RecordLayout>
void append(Bytes& file, const Record& record, const RecordLayout& format) {
    const auto start = file.size();
    file.resize(start + RecordLayout::size);
    format.put(record, file.data() + start);
}

/// `record` as the bytes of a file.
template <class Record, class RecordLayout>
Bytes encoded(const Record& record, const RecordLayout& format) {
    Bytes file;
    append(file, record, format);
    return file;
}

/// Reads records off a file that may end early: what is missing stays as the record had it.
class ByteReader {
public:
    explicit ByteReader(ByteView file) : rest_(file) {}

    ByteView rest() const { return rest_; }
    /// False once something was asked for that the file did not hold in full.
    bool complete() const { return complete_; }

    template <class Record, class RecordLayout>
    void read(Record& record, const RecordLayout& format) {
        if (rest_.size() >= RecordLayout::size) {
            format.get(record, rest_.data());
            rest_ = rest_.subspan(RecordLayout::size);
            return;
        }
        complete_ = false;
        if (rest_.empty()) return;
        std::array<std::byte, RecordLayout::size> whole{};
        format.put(record, whole.data());
        std::memcpy(whole.data(), rest_.data(), rest_.size());
        format.get(record, whole.data());
        rest_ = {};
    }

private:
    ByteView rest_;
    bool complete_ = true;
};

} // namespace wortlex
