// The order of work after each kind of change to a document.
#pragma once

#include "base/number.h"
#include "brewing/water_balance.h"
#include "documents/figures.h"
#include "records/documents/session_document.h"
#include "records/water/water_analysis.h"
#include "settings/system_files.h"

namespace wortlex {

/// A document with what is worked out beside it. The session's blocks are there only in a session.
struct OpenDocument {
    BrewDocument& document;
    RecipeFigures& figures;
    const Settings& settings;
    SessionDocument* session = nullptr;
    WaterBalance* water = nullptr; ///< of the session
    SaltUnit* salt_unit = nullptr; ///< of the quantities of its salts; none: ounces
};

inline DocumentKind kind_of(const OpenDocument& open) {
    return open.session != nullptr ? DocumentKind::session : DocumentKind::recipe;
}

/// What the editing window remembers between changes.
struct RecipeLocks {
    bool to_batch = false;   ///< "Lock Ingredients to Batch Size"
    bool efficiency = false; ///< the gravity holds while the efficiency changes
    float locked_efficiency = 0;
};

/// The gravity that the hop formulae are given: that of `og_points` as it stands.
float hop_gravity(const BrewDocument& document);

/// The bitterness of every line and the totals of bitterness and weight.
void hops_update(BrewDocument& document, RecipeFigures& figures, const Settings& settings);

void colour_update(const BrewDocument& document, RecipeFigures& figures, const Settings& settings);

/// The mashed grain, the water and volume of the schedule in force and, in a session, the water balance.
void mash_refresh(const OpenDocument& open);

/// Colour, then mash: how most changes end.
void colour_and_mash(const OpenDocument& open);

/// Works out the schedule in force from the mashed grain as it stands, without telling the water balance.
void recalculate_schedule(const OpenDocument& open);

/// Brings a session's water record up to date with its mash and balances it.
void refresh_water(const OpenDocument& open);

/// `compute_og` into `og_points`, if there are malts.
void gravity_update(BrewDocument& document, RecipeFigures& figures, const Settings& settings);

/// After each kind of edit. The value itself is already in the document, in stored units.
void wort_size_changed(const OpenDocument& open);
void batch_size_changed(const OpenDocument& open, float old_size, const RecipeLocks& locks);
void efficiency_changed(const OpenDocument& open, RecipeLocks& locks);
/// A line was added, removed or its amount changed.
void malts_changed(const OpenDocument& open);
/// The totals are kept up by difference, not summed anew.
void hop_added(const OpenDocument& open, std::size_t index);
void hop_removed(const OpenDocument& open);
void recipe_kind_changed(const OpenDocument& open);

/// Changes one hop line: `edit` is given the line. The totals are kept up by difference, not summed anew.
template <class Edit>
void change_hop(const OpenDocument& open, std::size_t index, Edit edit);

/// Recomputes one line's bitterness with the gravity as it stands.
void update_hop_line(const OpenDocument& open, HopUse& line);

/// Scales every amount by the ratio of two batch sizes, both above 0, and the wort size unless it follows the
/// batch; in a session the water of the dough-in too. Then works the recipe out anew. Efficiency, times and
/// yeast stay.
void scale_to_batch(const OpenDocument& open, float old_size, float new_size);

template <class Edit>
void change_hop(const OpenDocument& open, std::size_t index, Edit edit) {
    auto& line = open.document.hops[index];
    auto& total_ibu = open.document.total_ibu;
    auto& total_ounces = open.figures.total_hop_ounces;
    total_ibu = narrow(double{total_ibu} - line.ibu);
    total_ounces = narrow(double{total_ounces} - line.amount);
    edit(line);
    update_hop_line(open, line);
    total_ibu = narrow(double{total_ibu} + line.ibu);
    total_ounces = narrow(double{total_ounces} + line.amount);
}

} // namespace wortlex
