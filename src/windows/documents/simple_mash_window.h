// The window of the simple mash schedule, of a recipe or a session.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/tool_window.h"
#include "mash/simple_mash_form.h"
#include "windows/documents/page_ending.h"

#include <functional>

namespace wortlex {

/// What the document window gives, and what it is told. What is empty cannot be done.
struct SimpleMashCalls {
    std::function<float()> mash_grain; ///< pounds, up to date
    /// OK: the schedule to take over.
    std::function<void(const SimpleMashWork& work)> accepted;
    std::function<void()> save; ///< the document, with what was taken over
    /// After that, where the complex schedule is to come into force; empty: it cannot.
    std::function<void()> revert_to_complex;
    /// Over the window, whose work it follows.
    std::function<void(const SimpleMashWork& work, QWidget* origin)> graph = nullptr;
    std::function<void(const SimpleMashWork& work)> print = nullptr;

    /// Of a session: each may change the work, over the window that it is given.
    using Work = std::function<void(SimpleMashWork& work, QWidget* owner)>;
    Work calculate_strike = nullptr;
    Work correct_gravity = nullptr;
    Work measure_runnings = nullptr;
    /// Of a session: that is chosen at once, and stays whatever becomes of the rest.
    std::function<void(SimpleHeat heat)> heat_chosen = nullptr;
};

/// A page of a document window: modeless, on a working copy. Cancel leaves the document as it was; Esc and
/// the closing button ask.
class SimpleMashWindow : public ToolWindow {
public:
    SimpleMashWindow(const SimpleMashWork& work, const Settings& settings, MashSide side,
                     SimpleMashCalls calls, Prompts& prompts, const Places& places, QWidget* origin);

    bool holds_changes() const override { return work_ != in_document_; }
    void hand_over() override { ending_.close_by(PageEnd::ok); }
    void dismiss() override { ending_.close_by(PageEnd::gone); }

protected:
    /// With another grain bill it takes the new weight, and the water by the ratio.
    void follow(Change change) override;
    bool may_close() override;

private:
    void save();
    void edited(const Row& row);
    void tell_chart() const { notices_.tell(Change::mash); }
    SimpleMashActions actions();
    std::function<void()> revert_action();
    std::function<void()> graph_action();
    std::function<void()> print_action();
    std::function<void()> work_action(const SimpleMashCalls::Work& change);

    NoticeBoard& notices_;
    SimpleMashCalls calls_;
    SimpleMashWork work_;
    Form form_;
    FormWidgets widgets_;
    SimpleMashWork in_document_; ///< what was opened, or taken over since
    PageEnding ending_;
};

} // namespace wortlex
