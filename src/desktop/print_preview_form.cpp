#include "desktop/print_preview_form.h"

#include <algorithm>

namespace wortlex {
namespace {

void turning_rows(Rows& rows, PreviewPages& pages) {
    const auto is_behind_first = [&pages] { return pages.current() > 0; };
    const auto is_before_last = [&pages] { return pages.current() + 1 < pages.count(); };
    rows.button("first", "&First", [&pages] { pages.go_to(0); }).enabled(is_behind_first);
    rows.button("previous", "&Previous", [&pages] { pages.turn(-1); }).enabled(is_behind_first);
    rows.note("place", [&pages] { return pages.place(); });
    rows.button("next", "&Next", [&pages] { pages.turn(1); }).enabled(is_before_last);
    rows.button("last", "&Last", [&pages] { pages.go_to(static_cast<std::ptrdiff_t>(pages.count())); })
        .enabled(is_before_last);
}

// One half of the choice of paper.
template <class Half>
Binding<std::int32_t> half_of_paper(PreviewPages& pages, Half PaperChoice::*half) {
    return {[&pages, half] { return static_cast<std::int32_t>(pages.paper().*half); },
            [&pages, half](std::int32_t code) {
                auto paper = pages.paper();
                paper.*half = static_cast<Half>(code);
                pages.choose(paper);
            }};
}

ChoiceRow& drop_down(Rows& rows, const char* key, const char* label, Binding<std::int32_t> code,
                     std::vector<Live<std::string>> words) {
    return rows.choice(key, std::move(code), std::move(words)).look(ChoiceRow::Look::drop_down).label(label);
}

} // namespace

PreviewPages::PreviewPages(const PrintRequest& request, PaperChoice& paper)
    : request_(request), paper_(paper) {
    record();
}

void PreviewPages::record() {
    const auto paper = request_.sheet ? whole_sheet(*request_.sheet) : paper_of(paper_);
    job_ = record_report(request_, paper, measure_.surface()).value_or(PageJob{});
    turn(0);
}

void PreviewPages::tell() const {
    if (changed) changed();
}

void PreviewPages::go_to(std::ptrdiff_t page) {
    const auto last = std::max<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(count()) - 1, 0);
    current_ = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(page, 0, last));
    tell();
}

void PreviewPages::choose(PaperChoice paper) {
    paper_ = paper;
    record();
}

void PreviewPages::choose(PreviewZoom zoom) {
    zoom_ = zoom;
    tell();
}

PaperChoice PreviewPages::paper() const {
    return request_.sheet ? PaperChoice{.kind = *request_.sheet} : paper_;
}

QPageLayout PreviewPages::layout() const {
    return request_.sheet ? whole_sheet_layout(*request_.sheet) : layout_of(paper_);
}

PrintShift PreviewPages::shift_of(const std::string& printer) const {
    return request_.shift ? request_.shift(printer) : PrintShift{};
}

std::string PreviewPages::file_name() const {
    return request_.file_name.empty() ? request_.document_name : request_.file_name;
}

std::string PreviewPages::place() const {
    return "Page " + std::to_string(current_ + 1) + " of " + std::to_string(count());
}

void preview_form(Form& form, PreviewPages& pages, const PreviewButtons& buttons) {
    auto& rows = form.group();
    turning_rows(rows, pages);
    drop_down(rows, "zoom", "&Zoom:",
              {[&pages] { return static_cast<std::int32_t>(pages.zoom()); },
               [&pages](std::int32_t code) { pages.choose(static_cast<PreviewZoom>(code)); }},
              {"Fit Page", "Fit Width", "100 %", "150 %", "200 %"});
    const auto* const told_by_sheet = "The sheet of labels tells its paper";
    drop_down(rows, "paper", "Pape&r:", half_of_paper(pages, &PaperChoice::kind), {"A4", "Letter"})
        .enabled(pages.has_choice_of_paper())
        .disabled_because(told_by_sheet);
    drop_down(rows, "turn", "&Orientation:", half_of_paper(pages, &PaperChoice::turn),
              {"Portrait", "Landscape"})
        .enabled(pages.has_choice_of_paper())
        .disabled_because(told_by_sheet);
    rows.button("print", "Prin&t...", buttons.print)
        .enabled(buttons.has_printer)
        .disabled_because("No printer is installed. Save the pages as a PDF file instead.");
    rows.button("save", "&Save as PDF...", buttons.save);
    rows.button("close", "&Close", buttons.close);
}

} // namespace wortlex
