// The paper that the brewer prints on, in a small text beside the settings.
#pragma once

#include <cstdint>
#include <string>

namespace wortlex {

enum class PaperKind : std::int32_t { a4, letter };
enum class PaperTurn : std::int32_t { portrait, landscape };

/// What the user chooses of the paper.
struct PaperChoice {
    PaperKind kind = PaperKind::a4;
    PaperTurn turn = PaperTurn::portrait;

    bool operator==(const PaperChoice&) const = default;
};

/// As it was last chosen; what the file does not tell is as `usual`.
PaperChoice LoadPaperChoice(const std::string& data_folder, const PaperChoice& usual);
bool SavePaperChoice(const std::string& data_folder, const PaperChoice& choice);

} // namespace wortlex
