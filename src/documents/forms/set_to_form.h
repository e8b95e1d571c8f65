// The dialog that sets a recipe to a figure: what is wanted, and the recipe before and after.
#pragma once

#include "documents/snapshot.h"
#include "documents/work/set_to.h"
#include "forms/form.h"

#include <array>
#include <vector>

namespace wortlex {

/// What the dialog works with. It plans anew with each edit, and changes the recipe with OK alone.
struct SetToWork {
    RecipeEditor& editor;
    DocumentImage before; ///< that is planned for
    SetToWish wish;
    SetToPlan plan;
    /// What is compared: its name, before, after; UTF-8.
    std::vector<std::array<std::string, 3>> lines;
};

SetToWork begin_set_to(RecipeEditor& editor);

/// Why there is nothing to be done, in words; empty: OK does it.
std::string set_to_fault(const SetToWork& work);

/// Fills `form`; `work` must outlive it.
void set_to_form(Form& form, SetToWork& work);

} // namespace wortlex
