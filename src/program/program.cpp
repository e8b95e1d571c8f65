#include "program/program.h"

#include "base/files.h"

#include <filesystem>

namespace wortlex {

bool start_core(Program& program, const std::string& data_folder, Prompts& prompts) {
    program.data_folder = data_folder;
    program.system = LoadSystemFiles(data_folder);
    ApplySettings(program.system.settings, program.settings, true);
    LoadWaterUsage(data_folder, program.water_usage);
    take_usual_schedule(program.document, program.settings);
    new_recipe(program);
    if (!program.system.loaded) prompts.tell({.text = bad_system_file, .icon = Icon::error});
    return program.system.loaded;
}

std::string working_folder() {
    std::error_code error;
    return native_folder(std::filesystem::current_path(error).string());
}

float evaporation_rate(const Program& program) {
    const auto& document = program.document;
    const bool is_session = document.kind == DocumentKind::session;
    return is_session ? document.session.water_needs.evaporation_rate : program.water_usage.evaporation_rate;
}

OpenDocument live_document(Program& program) {
    return view_of(program.document, program.settings);
}

PrintSelection& print_selection(Program& program) {
    return program.document.kind == DocumentKind::session ? program.session_print : program.recipe_print;
}

} // namespace wortlex
