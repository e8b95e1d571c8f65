// The Hop Time Degradation Calculator: the alpha that is left of a hop after its time in store.
#pragma once

#include "calculators/hop_memory.h"
#include "forms/form.h"
#include "settings/settings.h"

namespace wortlex {

struct HopDegradation {
    std::string name;       ///< UTF-8
    float start_alpha = 0;  ///< percent
    float lost_percent = 0; ///< of alpha, in six months at 20 degrees C
    float fahrenheit = 0;
    float celsius = 0;
    std::int16_t months = 0;
    StorageKind storage{};
    float adjusted_alpha = 0; ///< percent
};

/// A hop of the database as the calculators work on it: stored as remembered, or else as `settings` say.
HopUse picked_hop(const HopRecord& hop, const HopMemory& memory, const Settings& settings);

/// From the hop's alpha; an age below a month, 0 degrees without an age and storage without a kind are taken
/// for not set.
HopDegradation start_degradation(const HopUse& hop, const Settings& settings);

/// Keeps start alpha, age, temperature and kind of storage in the line.
void keep_storage(const HopDegradation& degradation, HopUse& hop);
/// Keeps a line's age, temperature and kind of storage for the next opening.
void remember_storage(const HopUse& hop, HopMemory& memory);

/// The alpha after `months`, all else as told.
float alpha_after(const HopDegradation& degradation, int months);

/// As captions and the chart name them.
std::string_view storage_words(StorageKind kind);

struct DegradationActions {
    std::function<void()> save_jpg; ///< empty, as the next two: disabled
    std::function<void()> print;
    std::function<void()> help;
};

/// Each edit works out the adjusted alpha anew. `degradation` must outlive the form.
void hop_degradation_form(Form& form, HopDegradation& degradation, DegradationActions actions = {});

} // namespace wortlex
