// What the preview of a report does: the pages it has, the one it shows, the paper they are made for.
#pragma once

#include "desktop/print_device.h"
#include "forms/form.h"
#include "page/page.h"

namespace wortlex {

/// How large a page is shown; the last three are shares of its true size.
enum class PreviewZoom : std::int32_t { fit_page, fit_width, full, half_more, twice };

/// The report is run anew for each paper.
class PreviewPages {
public:
    /// `paper` is where the paper starts and where the user's choice is kept. Both must outlive this.
    PreviewPages(const PrintRequest& request, PaperChoice& paper);

    const PageJob& job() const { return job_; }
    std::size_t count() const { return job_.pages.size(); }
    /// From 0.
    std::size_t current() const { return current_; }
    /// What a file of the pages is called, without its ending.
    std::string file_name() const;
    /// "Page 2 of 3".
    std::string place() const;

    /// Shows a page, the first or last where there is none so far.
    void go_to(std::ptrdiff_t page);
    void turn(std::ptrdiff_t pages) { go_to(static_cast<std::ptrdiff_t>(current_) + pages); }
    /// What the pages are made for: the user's choice, or the sheet on which all has its exact place.
    PaperChoice paper() const;
    bool has_choice_of_paper() const { return !request_.sheet; }
    QPageLayout layout() const;
    /// By how far the pages are moved on a printer of that name.
    PrintShift shift_of(const std::string& printer) const;
    void choose(PaperChoice paper);
    PreviewZoom zoom() const { return zoom_; }
    void choose(PreviewZoom zoom);

    std::function<void()> changed; ///< what is shown

private:
    void record();
    void tell() const;

    const PrintRequest& request_;
    PaperChoice& paper_;
    MeasuringSurface measure_;
    PageJob job_;
    std::size_t current_ = 0;
    PreviewZoom zoom_ = PreviewZoom::fit_page;
};

/// What the buttons do. Printing is disabled where there is no printer.
struct PreviewButtons {
    std::function<void()> print;
    std::function<void()> save;
    std::function<void()> close;
    bool has_printer = false;
};

void preview_form(Form& form, PreviewPages& pages, const PreviewButtons& buttons);

} // namespace wortlex
