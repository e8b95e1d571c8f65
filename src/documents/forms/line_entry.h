// A line of a recipe as a brewer writes it down: "9 lb 2-row", "28 g cascade 60".
#pragma once

#include "documents/forms/typed_amount.h"
#include "records/documents/brew_document.h"

namespace wortlex {

/// What was told of a line. The name is to be looked for in a database.
struct WrittenLine {
    std::string name;
    std::optional<TypedWeight> weight;
    std::optional<float> alpha;            ///< percent, of a hop
    std::optional<std::int16_t> boil_time; ///< the code of a hop line
    std::string fault;                     ///< what cannot be understood, in words; empty: nothing
};

/// The weight stands anywhere with its unit, or first without one. UTF-8.
WrittenLine read_malt_line(std::string_view text);

/// Likewise; a time stands last, as minutes within the boil, "dry", "fwh" or "mh", and alpha acid with its %.
WrittenLine read_hop_line(std::string_view text, std::int32_t boil_minutes);

/// A new line with what was told; the rest is as in a picked one.
MaltUse malt_line(const MaltRecord& malt, const WrittenLine& written, const Settings& settings);
HopUse hop_line(const HopRecord& hop, const WrittenLine& written, const BrewDocument& document,
                const Settings& settings);

} // namespace wortlex
