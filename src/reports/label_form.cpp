#include "reports/label_form.h"

#include "base/windows1252.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::int32_t most_copies = 1000, most_in_a_line = 50;

std::string name_of(const LabelChoice& choice) {
    return windows1252_from_utf8(choice.sheet_name.value_or("")).value_or("");
}

ChoiceRow& sheet_row(Rows& rows, LabelDesk& desk) {
    return rows
        .choice("sheet",
                {[&desk] { return desk.chosen(); }, [&desk](std::int32_t place) { desk.choose(place); }},
                desk.sheet_words())
        .look(ChoiceRow::Look::drop_down)
        .label("La&bels On:");
}

void run_rows(Rows& rows, LabelDesk& desk) {
    const auto on_sheet = [&desk] { return desk.choice.is_on_sheet(); };
    rows.integer("copies", desk.choice.run.copies)
        .label("&Number Of Labels:")
        .range(1, most_copies)
        .step(1)
        .enabled(on_sheet);
    rows.integer("start", desk.choice.run.start)
        .label("&First Label At:")
        .range(1, [&desk] { return desk.choice.run.sheet.count(); })
        .step(1)
        .unit([&desk] { return "of " + std::to_string(desk.choice.run.sheet.count()); })
        .hint("The place on a sheet already begun, counted along the rows")
        .enabled(on_sheet);
}

void count_rows(Rows& rows, LabelSheet& sheet, const Live<bool>& on_sheet) {
    const auto count = [&](const char* key, const char* label, std::int32_t& value) {
        rows.integer(key, value).label(label).range(1, most_in_a_line).step(1).enabled(on_sheet);
    };
    count("columns", "&Columns:", sheet.columns);
    count("rows", "&Rows:", sheet.rows);
}

void length_rows(Rows& rows, LabelSheet& sheet, const Live<bool>& on_sheet) {
    const auto length = [&](const char* key, const char* label, float& value) {
        rows.number(key, value).label(label).range(0, 300).step(0.1F).unit("mm").enabled(on_sheet);
    };
    length("width", "Label &Width:", sheet.width);
    length("height", "Label &Height:", sheet.height);
    length("left", "&Left Margin:", sheet.left);
    length("top", "&Top Margin:", sheet.top);
    length("gap_across", "Gap &Across:", sheet.gap_across);
    length("gap_down", "Gap &Down:", sheet.gap_down);
}

void sheet_rows(Rows& rows, LabelDesk& desk, ChoiceRow& list) {
    auto& sheet = desk.choice.run.sheet;
    const auto on_sheet = [&desk] { return desk.choice.is_on_sheet(); };
    count_rows(rows, sheet, on_sheet);
    length_rows(rows, sheet, on_sheet);
    rows.choice("paper", sheet.paper, {"A4", "Letter"}).label("Paper:").enabled(on_sheet);
    rows.text("own_name", desk.own_name).label("Na&me:").width(28).enabled(on_sheet);
    rows.button("keep", "&Keep As Own Sheet",
                [&desk, &list] {
                    if (desk.keep_sheet()) list.words = desk.sheet_words();
                })
        .hint("Puts the sheet into the list under its name; it stays there with OK")
        .enabled(on_sheet);
    rows.button("remove", "Remove Th&is Sheet",
                [&desk, &list] {
                    if (desk.remove_sheet()) list.words = desk.sheet_words();
                })
        .hint("Takes a sheet of your own out of the list; it is gone with OK")
        .enabled([&desk] { return desk.is_own(); })
        .disabled_because("Only a sheet of your own can be removed.");
}

void shift_rows(Rows& rows, LabelDesk& desk, std::function<void()> ruler) {
    const auto on_sheet = [&desk] { return desk.choice.is_on_sheet(); };
    std::vector<Live<std::string>> names(desk.printers.begin(), desk.printers.end());
    names.front() = "PDF File";
    rows.choice("printer", desk.printer, std::move(names))
        .look(ChoiceRow::Look::drop_down)
        .label("&Printer:")
        .enabled(on_sheet);
    const auto shift_row = [&](const char* key, const char* label, float PrintShift::*part) {
        rows.signed_number(key, {[&desk, part] { return desk.shift().*part; },
                                 [&desk, part](float value) {
                                     auto shift = desk.shift();
                                     shift.*part = value;
                                     desk.set_shift(shift);
                                 }})
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
    if (chosen() == 0) choice.sheet_name.reset();
    own_name.assign(name_of(choice));
}

const LabelSheet* LabelDesk::sheet_at(std::int32_t place) const {
    const auto common = common_label_sheets();
    const auto index = static_cast<std::size_t>(place) - 1;
    if (place < 1) return nullptr;
    if (index < common.size()) return &common[index];
    return index - common.size() < settings.own.size() ? &settings.own[index - common.size()] : nullptr;
}

// An edited one is not what its name says.
std::string LabelDesk::words_of(std::int32_t place) const {
    const auto* const sheet = sheet_at(place);
    if (sheet == nullptr) return "Four blocks on a page";
    const bool is_changed = place == chosen() && *sheet != choice.run.sheet;
    return sheet->name + (is_changed ? " (changed)" : "");
}

std::vector<Live<std::string>> LabelDesk::sheet_words() const {
    std::vector<Live<std::string>> words;
    for (std::int32_t place = 0; place == 0 || sheet_at(place) != nullptr; ++place)
        words.emplace_back([this, place] { return words_of(place); });
    return words;
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
    own_name.assign(name_of(choice));
}

PrintShift LabelDesk::shift() const {
    const auto found = settings.shifts.find(printers.at(static_cast<std::size_t>(printer)));
    return found == settings.shifts.end() ? PrintShift{} : found->second;
}

void LabelDesk::set_shift(const PrintShift& shift) {
    const auto& name = printers.at(static_cast<std::size_t>(printer));
    settings.shifts.erase(name);
    if (shift != PrintShift{}) settings.shifts[name] = shift;
}

bool LabelDesk::may_keep(const LabelSheet& sheet) const {
    if (sheet.name.empty() || find_sheet(sheet.name, common_label_sheets()) != nullptr) {
        prompts.tell({.text = "A sheet of your own needs a name that no common sheet has.",
                      .icon = Icon::warning,
                      .is_advice = true});
        return false;
    }
    const auto* const known = find_sheet(sheet.name, settings.own);
    if (known == nullptr || *known == sheet) return true;
    const auto question =
        sheet.name + "\nThis sheet of labels already exists!\n\nDo you wish to replace this item?";
    return prompts.ask_yes_no({.text = question, .icon = Icon::question}) == Answer::yes;
}

bool LabelDesk::keep_sheet() {
    auto sheet = choice.run.sheet;
    sheet.name = utf8_from_windows1252(trimmed(own_name.view()));
    if (!is_sound() || !may_keep(sheet)) return false;
    std::replace_if(
        settings.own.begin(), settings.own.end(),
        [&](const LabelSheet& known) { return known.name == sheet.name; }, sheet);
    if (find_sheet(sheet.name, settings.own) == nullptr) settings.own.push_back(sheet);
    choice.sheet_name = sheet.name;
    choice.run.sheet = std::move(sheet);
    return true;
}

bool LabelDesk::is_own() const {
    return find_sheet(choice.sheet_name.value_or(""), settings.own) != nullptr;
}

bool LabelDesk::remove_sheet() {
    const auto name = choice.sheet_name.value_or("");
    const auto question = name + "\n\nDo you really want to remove this sheet of labels?";
    if (!is_own() || prompts.ask_yes_no({.text = question, .icon = Icon::question}) != Answer::yes)
        return false;
    std::erase_if(settings.own, [&](const LabelSheet& sheet) { return sheet.name == name; });
    choose(0);
    return true;
}

bool LabelDesk::is_sound() const {
    if (!choice.is_on_sheet() || is_usable(choice.run.sheet)) return true;
    prompts.tell({.text = "The labels do not lie on the paper: their sizes, margins and gaps are more than "
                          "it has.",
                  .icon = Icon::warning,
                  .is_advice = true});
    return false;
}

void LabelDesk::save() {
    if (!SaveLabelSettings(data_folder_, settings))
        prompts.tell({.text = "The sheets of labels could not be written. Is the disk full, or the folder "
                              "read-only?",
                      .icon = Icon::error});
}

void label_form(Form& form, LabelDesk& desk, std::function<void()> ruler) {
    auto& labels = form.group("Labels");
    auto& list = sheet_row(labels, desk);
    run_rows(labels, desk);
    shift_rows(form.group("Where They Land"), desk, std::move(ruler));
    form.next_column();
    sheet_rows(form.group("Sheet"), desk, list);
    form.accept_if([&desk] { return desk.is_sound(); });
    form.on_accept([&desk, before = desk.settings] {
        if (desk.settings != before) desk.save();
    });
}

} // namespace wortlex
