// A measured gravity on both scales, with the instruments that it may come from.
#pragma once

#include "forms/form.h"

namespace wortlex {

/// The fields of an SG that is at least 1, by the keys KEY and KEY_plato. Each sets the other; the Plato
/// stands as it was typed as long as the SG is its own.
struct GravityFields {
    NumberRow& sg;
    NumberRow& plato;
};
GravityFields gravity_fields(Rows& rows, const std::string& key, const std::string& label, float& sg,
                             float highest, const Settings& settings);

/// What an instrument made of a gravity (SG); nothing if it was left.
using MeasureGravity = std::function<std::optional<float>(float sg)>;

/// A button that measures `sg` and tells what became of it, held within the range of its fields.
ButtonRow& measure_button(Rows& rows, const std::string& key, const std::string& caption, float& sg,
                          float highest, const MeasureGravity& measure, const std::function<void()>& tell);

} // namespace wortlex
