// How a row of a form reaches what it shows: a value that is read and written, or a text, number or switch
// that may change while the form is open.
#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace wortlex {

/// A fixed value, or a function that is asked anew each time the form is shown. (A lambda without captures
/// also converts to bool, hence the second condition.)
template <class T>
class Live {
public:
    template <class Value>
    requires(std::convertible_to<const Value&, T> && !std::is_invocable_v<const Value&>)
        Live(const Value& value)
        : ask_([fixed = static_cast<T>(value)] { return fixed; }) {}

    Live(const char* text) requires std::same_as<T, std::string> : ask_([fixed = T(text)] { return fixed; }) {
    }

    template <class Ask>
    requires std::is_invocable_r_v<T, const Ask&> Live(Ask ask) : ask_(std::move(ask)) {}

    T operator()() const { return ask_(); }

private:
    std::function<T()> ask_;
};

/// A value somewhere else, read and written as a `T`.
template <class T>
struct Binding {
    std::function<T()> get;
    std::function<void(T)> set;

    Binding(std::function<T()> read, std::function<void(T)> write)
        : get(std::move(read)), set(std::move(write)) {}

    /// A field of a record. It must outlive the form.
    template <class Field>
    requires((std::is_arithmetic_v<Field> || std::is_enum_v<Field>)&&!std::is_const_v<Field>)
        Binding(Field& field)
        : get([&field] { return static_cast<T>(field); }),
          set([&field](T value) { field = static_cast<Field>(value); }) {}
};

} // namespace wortlex
