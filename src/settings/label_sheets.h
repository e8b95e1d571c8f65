// Sheets of labels by their geometry, and by how far each printer misses the place: the brewer's own, in a
// text beside the settings.
#pragma once

#include "settings/paper_choice.h"

#include <map>
#include <span>
#include <vector>

namespace wortlex {

/// Lengths are millimetres, from the upper left corner of the upright sheet.
struct LabelSheet {
    std::string name;
    PaperKind paper = PaperKind::a4;
    std::int32_t columns = 1;
    std::int32_t rows = 1;
    float width = 0; ///< of one label
    float height = 0;
    float left = 0; ///< of the first
    float top = 0;
    float gap_across = 0;
    float gap_down = 0;

    std::int32_t count() const { return columns * rows; }
    bool operator==(const LabelSheet&) const = default;
};

/// Six that are common, three of each paper.
std::span<const LabelSheet> common_label_sheets();

/// Whether there is a label on it, and all of them lie on the paper.
bool is_usable(const LabelSheet& sheet);

inline constexpr float most_shift = 20;

/// Millimetres to the right and down by which pages are moved.
struct PrintShift {
    float across = 0;
    float down = 0;
    bool operator==(const PrintShift&) const = default;
};

struct LabelSettings {
    std::vector<LabelSheet> own;
    std::map<std::string, PrintShift> shifts; ///< by the printer's name
    bool operator==(const LabelSettings&) const = default;
};

/// Null where there is none of this name.
const LabelSheet* find_sheet(std::string_view name, std::span<const LabelSheet> sheets);

/// What a line does not tell as it should is passed over, and a sheet whose name there is already.
LabelSettings LoadLabelSettings(const std::string& data_folder);
bool SaveLabelSettings(const std::string& data_folder, const LabelSettings& settings);

} // namespace wortlex
