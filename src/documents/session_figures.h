// What the measurements of a brew day tell.
#pragma once

#include "documents/document_recalculation.h"

#include <optional>

namespace wortlex {

/// Points are at batch size.
struct EfficiencyFigures {
    float achieved_points = 0;
    float total_points = 0; ///< every line at 100 % extraction
    float mash_points = 0;
    float extract_points = 0;
    float actual_mash_points = 0;
    float efficiency = 0; ///< of the mash, as a fraction
};

/// The efficiency behind a gravity (SG) recorded in `gallons`. A zero in either is replaced as on loading a
/// session, points in a gravity field included.
EfficiencyFigures session_efficiency(const BrewDocument& document, const SessionDocument& session, float og,
                                     float gallons, const Settings& settings);

/// Gallons to add to a volume measured in the fermenter: what stayed behind, less its shrinkage.
float recording_losses(const SessionDocument& session, const Settings& settings);

/// Gallons recorded, with these losses.
float recorded_gallons(const SessionDocument& session, const Settings& settings);

/// The efficiency of the session's recording. An extract recipe, or none, has none.
EfficiencyFigures recorded_efficiency(const BrewDocument& document, const SessionDocument& session,
                                      const Settings& settings);

/// A wort in the kettle.
struct PreBoil {
    float volume = 0; ///< gallons
    float points = 0;
};

/// The wort at the end of the boil.
PreBoil end_of_boil(const BrewDocument& document, const Settings& settings);

/// The kettle before the boil. `rate` is percent or gallons per hour, by the settings.
PreBoil raw_pre_boil(const BrewDocument& document, float rate, const Settings& settings);

/// The gravity before the boil in the kettle that the water plan fills.
PreBoil water_pre_boil(const BrewDocument& document, const WaterNeeds& needs, const Settings& settings);

/// Percent.
struct FermentationFigures {
    float alcohol_by_weight = 0;
    float alcohol_by_volume = 0;
    float apparent_attenuation = 0;
    float real_attenuation = 0;
};

/// By hydrometer or, where the session says so, by refractometer.
FermentationFigures update_attenuation(const SessionDocument& session, const Settings& settings);

/// The same for windows, which show each of the figures in a field of its own: worked out anew only when
/// something that they hang on has changed, as the search for a refractometer's reading takes its time.
class KnownFermentation {
public:
    const FermentationFigures& of(const SessionDocument& session, const Settings& settings);

private:
    struct Basis {
        float og = 0;
        float fg = 0;
        std::uint8_t by_refractometer = 0;
        AlcoholReading reading;
        float water_brix = 0; ///< where the search starts, and zero of the instrument

        bool operator==(const Basis&) const = default;
    };

    std::optional<Basis> basis_;
    FermentationFigures figures_;
};

} // namespace wortlex
