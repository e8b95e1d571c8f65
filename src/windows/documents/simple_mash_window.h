// The window of the simple mash schedule of a recipe.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "mash/simple_mash_form.h"

#include <functional>

namespace wortlex {

/// What the document window gives, and what it is told.
struct SimpleMashCalls {
    std::function<float()> mash_grain; ///< pounds, up to date
    /// OK: the schedule to take over.
    std::function<void(const SimpleMash& mash)> accepted;
    std::function<void()> save; ///< the recipe, with what was taken over
    /// After that, where the complex schedule is to come into force; empty: it cannot.
    std::function<void()> revert_to_complex;
    std::function<void(const SimpleMashWork& work)> print; ///< empty: it cannot be printed
};

/// A page of a document window: modeless, on a working copy. Closing it in any other way than with OK leaves
/// the document as it was.
class SimpleMashWindow : public ToolWindow {
public:
    SimpleMashWindow(const SimpleMashWork& work, const Settings& settings, SimpleMashCalls calls,
                     const Places& places, QWidget* origin);

protected:
    /// With another grain bill it takes the new weight, and the water by the ratio.
    void follow(Change change) override;

private:
    void accept();
    void save() const;
    std::function<void()> revert_action();
    std::function<void()> print_action();

    SimpleMashCalls calls_;
    SimpleMashWork work_;
    Form form_;
    FormWidgets widgets_;
};

} // namespace wortlex
