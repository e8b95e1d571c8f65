#include "settings/label_sheets.h"

#include "base/files.h"
#include "base/number.h"

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

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(" \t\r") + 1 - first));
}

std::vector<std::string> fields_of(std::string_view line) {
    std::vector<std::string> fields;
    for (std::size_t end = 0; end != std::string_view::npos;) {
        end = line.find(field_end);
        fields.push_back(trimmed(line.substr(0, end)));
        if (end != std::string_view::npos) line.remove_prefix(end + 1);
    }
    return fields;
}

std::optional<LabelSheet> sheet_of(const std::vector<std::string>& fields) {
    constexpr std::size_t first_length = 4;
    if (fields.size() != first_length + lengths.size()) return std::nullopt;
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

void take_line(LabelSettings& settings, std::string_view line) {
    if (line.starts_with(sheet_word)) {
        if (auto sheet = sheet_of(fields_of(line.substr(sheet_word.size()))))
            settings.own.push_back(*std::move(sheet));
    } else if (line.starts_with(offset_word)) {
        const auto fields = fields_of(line.substr(offset_word.size()));
        if (fields.size() == 3) settings.shifts[fields[0]] = {shift_of(fields[1]), shift_of(fields[2])};
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
    return !sheet.name.empty() && fits(sheet.left, sheet.columns, sheet.width, sheet.gap_across, across) &&
           fits(sheet.top, sheet.rows, sheet.height, sheet.gap_down, down);
}

LabelSettings LoadLabelSettings(const std::string& data_folder) {
    constexpr std::size_t most = 65536;
    LabelSettings settings;
    const auto file = read_file(find_data_file(data_folder, label_file), most);
    if (!file) return settings;
    std::string text;
    for (const std::byte byte : *file) text += static_cast<char>(byte);
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
