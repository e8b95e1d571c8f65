#include "program/shipped_data.h"

#include "base/joint_save.h"
#include "base/ports/quiet_prompts.h"
#include "program/inventory.h"
#include "program/program.h"

#include <filesystem>

namespace wortlex {
namespace {

constexpr std::string_view not_added =
    "Your answer could not be kept, and nothing was added. Is the disk full, or a file or folder "
    "read-only?\n\nThe next start asks again.";

} // namespace

ShippedOffer find_offer(const Program& program, const std::string& shipped_folder) {
    std::error_code error;
    const bool waits = std::filesystem::exists(program.data_folder + std::string(booking_journal), error);
    if (shipped_folder.empty() || waits) return {};
    return find_offer(shipped_folder, program.data_folder, program.settings);
}

void take_answer(Program& program, const ShippedOffer& offer, Prompts& prompts) {
    if (!answer_offer(offer, program.settings)) return prompts.tell({.text = not_added, .icon = Icon::error});
    QuietPrompts quiet; // it was whole
    LoadWater(program.data_folder, program.water_database, quiet);
    program.notices.tell(Change::databases);
}

void finish_offer(const std::string& data_folder) {
    finish_joint_save(data_folder + std::string(shipped_journal));
}

} // namespace wortlex
