#include "reports/label_form.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::int32_t most_copies = 1000, most_in_a_line = 50;

struct Length {
    const char* key;
    const char* label;
    float LabelSheet::*value;
};

constexpr std::array sheet_lengths = {Length{"width", "Label &Width:", &LabelSheet::width},
                                      Length{"height", "Label &Height:", &LabelSheet::height},
                                      Length{"left", "&Left Margin:", &LabelSheet::left},
                                      Length{"top", "&Top Margin:", &LabelSheet::top},
                                      Length{"gap_across", "Gap &Across:", &LabelSheet::gap_across},
                                      Length{"gap_down", "Gap &Down:", &LabelSheet::gap_down}};

std::vector<Live<std::string>> live(const std::vector<std::string>& words) {
    return {words.begin(), words.end()};
}

void run_rows(Rows& rows, LabelDesk& desk) {
    const auto on_sheet = [&desk] { return desk.choice.is_on_sheet(); };
    rows.choice("sheet",
                {[&desk] { return desk.chosen(); }, [&desk](std::int32_t place) { desk.choose(place); }},
                live(desk.sheet_names()))
        .look(ChoiceRow::Look::drop_down)
        .label("La&bels On:");
    rows.integer("copies", desk.choice.run.copies)
        .label("&Number Of Labels:")
        .range(1, most_copies)
        .step(1)
        .enabled(on_sheet);
    rows.integer("start", desk.choice.run.start)
        .label("&First Label At:")
        .range(1, [&desk] { return desk.choice.run.sheet.count(); })
        .step(1)
        .hint("The place on a sheet already begun, counted along the rows")
        .enabled(on_sheet);
}

void geometry_rows(Rows& rows, LabelDesk& desk) {
    auto& sheet = desk.choice.run.sheet;
    const auto on_sheet = [&desk] { return desk.choice.is_on_sheet(); };
    rows.integer("columns", sheet.columns)
        .label("&Columns:")
        .range(1, most_in_a_line)
        .step(1)
        .enabled(on_sheet);
    rows.integer("rows", sheet.rows).label("&Rows:").range(1, most_in_a_line).step(1).enabled(on_sheet);
    for (const auto& length : sheet_lengths)
        rows.number(length.key, sheet.*length.value)
            .label(length.label)
            .range(0, 300)
            .step(0.1F)
            .unit("mm")
            .enabled(on_sheet);
    rows.choice("paper", sheet.paper, {"A4", "Letter"}).label("Paper:").enabled(on_sheet);
    rows.button("keep", "&Keep As Own Sheet", [&desk] { desk.keep_sheet(); }).enabled(on_sheet);
}

void shift_rows(Rows& rows, LabelDesk& desk, std::function<void()> ruler) {
    const auto on_sheet = [&desk] { return desk.choice.is_on_sheet(); };
    auto names = desk.printers;
    names.front() = "PDF File";
    rows.choice("printer", desk.printer, live(names))
        .look(ChoiceRow::Look::drop_down)
        .label("&Printer:")
        .enabled(on_sheet);
    const auto shift_row = [&](const char* key, const char* label, float PrintShift::*part) {
        rows.signed_number(key, {[&desk, part] { return desk.shift().*part; },
                                 [&desk, part](float value) { desk.shift().*part = value; }})
            .label(label)
            .range(-most_shift, most_shift)
            .step(0.1F)
            .unit("mm")
            .enabled(on_sheet);
    };
    shift_row("across", "Mov&e Right By:", &PrintShift::across);
    shift_row("down", "Mo&ve Down By:", &PrintShift::down);
    rows.button("ruler", "Ruler Pa&ge", std::move(ruler))
        .hint("Print it and measure where its lines lie: what they miss is to be entered here")
        .enabled(on_sheet);
}

} // namespace

LabelDesk::LabelDesk(LabelChoice& label_choice, std::string folder, std::vector<std::string> installed,
                     Prompts& asked)
    : choice(label_choice), prompts(asked), settings(LoadLabelSettings(folder)),
      printers(std::move(installed)), data_folder_(std::move(folder)) {
    printers.insert(printers.begin(), "");
}

const LabelSheet* LabelDesk::sheet_at(std::int32_t place) const {
    const auto common = common_label_sheets();
    const auto index = static_cast<std::size_t>(place) - 1;
    if (place < 1) return nullptr;
    if (index < common.size()) return &common[index];
    return index - common.size() < settings.own.size() ? &settings.own[index - common.size()] : nullptr;
}

std::vector<std::string> LabelDesk::sheet_names() const {
    std::vector<std::string> names{"Four blocks on a page"};
    for (std::int32_t place = 1; sheet_at(place) != nullptr; ++place) names.push_back(sheet_at(place)->name);
    return names;
}

std::int32_t LabelDesk::chosen() const {
    for (std::int32_t place = 1; sheet_at(place) != nullptr; ++place)
        if (sheet_at(place)->name == choice.sheet_name) return place;
    return 0;
}

void LabelDesk::choose(std::int32_t place) {
    const auto* const sheet = sheet_at(place);
    choice.sheet_name = sheet == nullptr ? std::nullopt : std::optional(sheet->name);
    if (sheet != nullptr) choice.run = {*sheet, sheet->count(), 1};
}

void LabelDesk::keep_sheet() {
    if (!is_sound()) return;
    auto sheet = choice.run.sheet;
    sheet.name = "Own, " + formatted("%d labels of ", sheet.count()) + fixed(sheet.width, 1) + " x " +
                 fixed(sheet.height, 1) + " mm";
    std::erase_if(settings.own, [&](const LabelSheet& own) { return own.name == sheet.name; });
    settings.own.push_back(sheet);
    save();
    prompts.tell({.text = "The sheet is kept in WlxLabels.txt as \"" + sheet.name +
                          "\". It is offered the next time that labels are printed."});
}

bool LabelDesk::is_sound() const {
    if (!choice.is_on_sheet() || is_usable(choice.run.sheet)) return true;
    prompts.tell({.text = "The labels do not lie on the paper: their sizes, margins and gaps are more than "
                          "it has.",
                  .icon = Icon::warning});
    return false;
}

void LabelDesk::save() {
    std::erase_if(settings.shifts, [](const auto& shift) { return shift.second == PrintShift{}; });
    if (!SaveLabelSettings(data_folder_, settings))
        prompts.tell({.text = "The sheets of labels could not be written. Is the disk full, or the folder "
                              "read-only?",
                      .icon = Icon::error});
}

void label_form(Form& form, LabelDesk& desk, std::function<void()> ruler) {
    run_rows(form.group("Labels"), desk);
    shift_rows(form.group("Where They Land"), desk, std::move(ruler));
    form.next_column();
    geometry_rows(form.group("Sheet"), desk);
    form.accept_if([&desk] { return desk.is_sound(); });
    form.on_accept([&desk, before = desk.settings] {
        if (desk.settings != before) desk.save();
    });
}

} // namespace wortlex
