#include "settings/label_sheets.h"

#include "base/files.h"
#include "base/number.h"
#include "base/text.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr std::string_view label_file = "WlxLabels.txt";
constexpr std::string_view explanation =
    "# sheet: name | A4 or Letter | columns | rows | label width | height | left margin | top margin | "
    "gap across | gap down (millimetres)\n"
    "# offset: printer | to the right | down (millimetres)\n";
constexpr std::string_view sheet_word = "sheet: ", offset_word = "offset: ";
constexpr char field_end = '|';

constexpr std::array lengths = {&LabelSheet::width, &LabelSheet::height,     &LabelSheet::left,
                                &LabelSheet::top,   &LabelSheet::gap_across, &LabelSheet::gap_down};

// A name may hold the mark that parts fields, so they are taken from the end.
std::vector<std::string> fields_of(std::string_view line, std::size_t count) {
    std::vector<std::string> fields(count);
    for (std::size_t i = count - 1; i > 0; --i) {
        const auto mark = line.rfind(field_end);
        if (mark == std::string_view::npos) return {};
        fields[i] = trimmed(line.substr(mark + 1));
        line = line.substr(0, mark);
    }
    fields.front() = trimmed(line);
    return fields;
}

std::optional<LabelSheet> sheet_of(std::string_view line) {
    constexpr std::size_t first_length = 4;
    const auto fields = fields_of(line, first_length + lengths.size());
    if (fields.empty() || fields.front().empty()) return std::nullopt;
    LabelSheet sheet{.name = fields[0], .paper = fields[1] == "Letter" ? PaperKind::letter : PaperKind::a4};
    sheet.columns = truncate(leading_number(fields[2]));
    sheet.rows = truncate(leading_number(fields[3]));
    for (std::size_t i = 0; i < lengths.size(); ++i)
        sheet.*lengths.at(i) = narrow(leading_number(fields[first_length + i]));
    return is_usable(sheet) ? std::optional(sheet) : std::nullopt;
}

std::string line_of(const LabelSheet& sheet) {
    auto line =
        std::string(sheet_word) + sheet.name + (sheet.paper == PaperKind::letter ? " | Letter" : " | A4");
    line += formatted(" | %d", sheet.columns) + formatted(" | %d", sheet.rows);
    for (const auto length : lengths) line += formatted(" | %0.2f", sheet.*length);
    return line + "\n";
}

float shift_of(const std::string& field) {
    return std::clamp(narrow(leading_number(field)), -most_shift, most_shift);
}

bool is_new(const LabelSheet& sheet, const LabelSettings& settings) {
    return find_sheet(sheet.name, common_label_sheets()) == nullptr &&
           find_sheet(sheet.name, settings.own) == nullptr;
}

void take_line(LabelSettings& settings, std::string_view line) {
    if (line.starts_with(sheet_word)) {
        auto sheet = sheet_of(line.substr(sheet_word.size()));
        if (sheet && is_new(*sheet, settings)) settings.own.push_back(*std::move(sheet));
    } else if (line.starts_with(offset_word)) {
        const auto fields = fields_of(line.substr(offset_word.size()), 3);
        if (!fields.empty()) settings.shifts[fields[0]] = {shift_of(fields[1]), shift_of(fields[2])};
    }
}

} // namespace

std::span<const LabelSheet> common_label_sheets() {
    using enum PaperKind;
    static const std::array sheets = {
        LabelSheet{"A4, 8 labels of 99 x 68 mm", a4, 2, 4, 99.1F, 67.7F, 4.65F, 13.1F, 2.5F, 0},
        LabelSheet{"A4, 14 labels of 99 x 38 mm", a4, 2, 7, 99.1F, 38.1F, 4.65F, 15.15F, 2.5F, 0},
        LabelSheet{"A4, 21 labels of 64 x 38 mm", a4, 3, 7, 63.5F, 38.1F, 7.25F, 15.15F, 2.5F, 0},
        LabelSheet{"Letter, 6 labels of 4 x 3 1/3 in", letter, 2, 3, 101.6F, 84.67F, 3.97F, 12.7F, 4.76F, 0},
        LabelSheet{"Letter, 10 labels of 4 x 2 in", letter, 2, 5, 101.6F, 50.8F, 3.97F, 12.7F, 4.76F, 0},
        LabelSheet{"Letter, 30 labels of 2 5/8 x 1 in", letter, 3, 10, 66.68F, 25.4F, 4.76F, 12.7F, 3.18F,
                   0}};
    return sheets;
}

bool is_usable(const LabelSheet& sheet) {
    constexpr std::int32_t most = 50;
    constexpr float smallest = 5, hair = 0.05F;
    const bool is_letter = sheet.paper == PaperKind::letter;
    const float across = is_letter ? 215.9F : 210.0F, down = is_letter ? 279.4F : 297.0F;
    const auto fits = [](float start, std::int32_t count, float size, float gap, float room) {
        if (count < 1 || count > most || !(size >= smallest) || !(start >= 0) || !(gap >= 0)) return false;
        return start + narrow(count) * size + narrow(count - 1) * gap <= room + hair;
    };
    return fits(sheet.left, sheet.columns, sheet.width, sheet.gap_across, across) &&
           fits(sheet.top, sheet.rows, sheet.height, sheet.gap_down, down);
}

const LabelSheet* find_sheet(std::string_view name, std::span<const LabelSheet> sheets) {
    const auto found = std::find_if(sheets.begin(), sheets.end(),
                                    [name](const LabelSheet& sheet) { return sheet.name == name; });
    return found == sheets.end() ? nullptr : &*found;
}

LabelSettings LoadLabelSettings(const std::string& data_folder) {
    constexpr std::size_t most = 65536;
    LabelSettings settings;
    const auto file = read_file(find_data_file(data_folder, label_file), most);
    if (!file) return settings;
    const auto text = characters_of(*file);
    for (std::string_view rest = text; !rest.empty();) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        take_line(settings, line);
    }
    return settings;
}

bool SaveLabelSettings(const std::string& data_folder, const LabelSettings& settings) {
    std::string text(explanation);
    for (const auto& sheet : settings.own) text += line_of(sheet);
    for (const auto& [printer, shift] : settings.shifts)
        text += std::string(offset_word) + printer + formatted(" | %0.2f", shift.across) +
                formatted(" | %0.2f", shift.down) + "\n";
    return save_atomically(find_data_file(data_folder, label_file), std::as_bytes(std::span(text)));
}

} // namespace wortlex
