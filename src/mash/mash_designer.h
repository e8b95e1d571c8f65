// The complex schedule under work: the Mash Designer by itself, or with a recipe or a brewing session beside
// it.
#pragma once

#include "brewing/mash_recalculation.h"
#include "mash/mash_history.h"

#include <functional>

namespace wortlex {

enum class DesignerSide { free, recipe, session };

/// What the owner of a schedule gives its designer, and what it is told. A free designer has grain, thermal
/// mass and units of its own; a document's has those of the document and of the settings.
struct MashOwner {
    DesignerSide side = DesignerSide::free;
    std::function<float()> grain{}; ///< pounds to mash, up to date; not of a free designer
    /// After every change: the schedule and its water, and the quarts per pound that carry the water over to
    /// another grain bill. May be empty.
    std::function<void(const MashDesign& design, float ratio)> told{};

    bool is_free() const { return side == DesignerSide::free; }
};

struct MashDesigner {
    MashOwner owner;
    Settings settings; ///< as this designer has them: a free one with units of its own
    MashDesign design;
    float ratio = 0;            ///< of a document, quarts per pound: carries the water over
    std::int32_t selection = 0; ///< step
    MashWater totals;           ///< after the last step
    MashHistory history;
    std::string file_name;         ///< proposed for the next save
    MashDesign saved;              ///< of a free designer, as it was loaded or saved last
    bool thickness_is_set = false; ///< since the step was selected: shown by another factor then
};

/// Starts empty, sized by the system mode.
MashDesigner free_designer(const Settings& settings);

/// Starts on a copy of a document's schedule, `ratio` in quarts per pound. Where grain temperature or ratio
/// are not above 0 they are filled in; a ratio above 0 gives the water.
MashDesigner document_designer(const MashDesign& design, float ratio, MashOwner owner,
                               const Settings& settings);

/// Works out every step, and tells the owner.
void recalculate(MashDesigner& designer);

/// Of a free designer, for volumes and weights alike. The ratios are stored in the new unit.
void set_volume_units(MashDesigner& designer, Units units);

/// The settings have changed, or the grain bill: the water follows by the ratio as it stands.
void follow_settings(MashDesigner& designer, const Settings& settings);
void follow_grain(MashDesigner& designer);
/// The document has been worked on elsewhere: takes over what it has, and begins to remember anew. True: the
/// water had to follow the grain.
bool follow_document(MashDesigner& designer, const ComplexMash& mash, float dough_in_water);

/// One edit: notes what was, changes, works everything out and tells the owner. Edits of the same key, if it
/// is not empty, make one step of undo until `end_edit`.
void edit(MashDesigner& designer, std::string_view key, const std::function<void()>& change);
void end_edit(MashDesigner& designer);
/// Each answers whether there was a step to take.
bool undo(MashDesigner& designer);
bool redo(MashDesigner& designer);

/// The selected step; nullptr for none.
MashStep* selected_step(MashDesigner& designer);
const MashStep* selected_step(const MashDesigner& designer);

/// Water and its ratio to grain follow each other. A shown ratio is quarts per pound or litres per kilogram.
void set_dough_in(MashDesigner& designer, float quarts);
void set_dough_in_ratio(MashDesigner& designer, float shown);
float dough_in_ratio(const MashDesigner& designer);

/// A whole temperature as typed, in degrees F. In Celsius a free designer rounds otherwise than a document.
std::int32_t typed_degrees(const MashDesigner& designer, std::int32_t shown);

} // namespace wortlex
