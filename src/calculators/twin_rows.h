// Lines of a calculator that hold a quantity in both its units: a field, the word of the other unit, and its
// field.
#pragma once

#include "base/bytes.h"
#include "forms/form.h"
#include "measures/twins.h"

#include <optional>

namespace wortlex {

/// What every calculator offers beside its figures. An empty one is disabled.
struct ToolActions {
    std::function<void()> print;
    std::function<void()> help;
};

/// Corrects a hydrometer's reading (SG); nothing if the user leaves it.
using CorrectGravity = std::function<std::optional<float>(float sg)>;

/// Of a calculator that keeps its values in a file of its own. Empty ones are disabled.
struct StateActions {
    CorrectGravity correct;
    std::function<bool()> save; ///< whether it could; tells why not
    ToolActions page;
};

/// The buttons of these, below all groups.
void tool_buttons(Rows& rows, ToolActions actions);
/// The same behind "Save As Default", which says that it was done as long as `present` stays what was saved.
void state_buttons(Form& form, StateActions actions, std::function<Bytes()> present);

/// The units in which the calculators show gallons and litres: barrels and hectolitres in a brewery.
struct VolumeWords {
    std::string_view american; ///< "GAL" or "BBL"
    std::string_view metric;   ///< "Liters" or "Hectoliters"
    double gallons = 1;        ///< in one of the former
    double litres = 1;         ///< in one of the latter
};
VolumeWords volume_words(const Settings& settings);

/// "LABEL (GAL):", a volume, the metric word, and the volume in that; tabs between them.
std::string volume_text(const std::string& label, const TwinGallons& volume, const Settings& settings);

/// The lines of one table. What they bind must outlive them; every edit ends with `changed`.
class TwinLines {
public:
    TwinLines(Rows& rows, std::string key, const Settings& settings, std::function<void()> changed = nullptr);

    /// Keys "KEY_sg" and "KEY_plato". Ranges are the caller's to give.
    struct Gravity {
        NumberRow& sg;
        NumberRow& plato;
        Rows& line; ///< more may follow in it
    };
    Gravity gravity(const std::string& key, const std::string& label, TwinGravity& pair);

    /// Of a wort, SG 1 to 5, with a button to correct what a hydrometer read.
    void correctable_gravity(const std::string& key, const std::string& label, TwinGravity& pair,
                             const CorrectGravity& correct);

    /// Keys "KEY_gallons" and "KEY_litres". The label is followed by the unit.
    struct Volume {
        NumberRow& gallons;
        NumberRow& litres;
    };
    Volume volume(const std::string& key, const std::string& label, TwinGallons& pair);
    Volume named_volume(const std::string& key, const std::string& label, TwinGallons& pair); ///< by itself

    /// Keys "KEY_fahrenheit" and "KEY_celsius"; both can be below zero.
    void degrees(const std::string& key, const std::string& label, TwinDegrees& pair, Range fahrenheit,
                 Range celsius);

    IntegerRow& integer(const std::string& key, const std::string& label, std::int32_t& value);

    struct Figure {
        std::string key;
        std::function<float()> value;
        Live<std::string> pattern = "%0.2f";
        std::string name = {}; ///< of a second one whose label and word do not make it
    };
    void shown(const std::string& label, const Figure& only);
    void shown(const std::string& label, const Figure& first, const Live<std::string>& word,
               const Figure& second);
    void shown_degrees(const std::string& key, const std::string& label, std::function<TwinDegrees()> pair);
    void shown_gravity(const std::string& key, const std::string& label,
                       const std::function<TwinGravity()>& pair);
    void shown_volume(const std::string& key, const std::string& label,
                      const std::function<TwinGallons()>& pair);

private:
    template <class Pair>
    Binding<float> bound(Pair& pair, float Pair::*part, Pair (*both)(float)) const;

    GridRow& table_;
    const Settings& settings_;
    std::function<void()> changed_;
};

} // namespace wortlex
