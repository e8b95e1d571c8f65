#include "program/program.h"

#include "base/files.h"

#include <filesystem>

namespace wortlex {

bool start_core(Program& program, const std::string& data_folder, Prompts& prompts) {
    program.data_folder = data_folder;
    program.system = LoadSystemFiles(data_folder);
    ApplySettings(program.system.settings, program.settings, true);
    LoadWaterUsage(data_folder, program.water_usage);
    new_recipe(program);
    if (!program.system.loaded) prompts.tell({.text = bad_system_file, .icon = Icon::error});
    return program.system.loaded;
}

std::string working_folder() {
    std::error_code error;
    return native_folder(std::filesystem::current_path(error).string());
}

OpenDocument open_recipe(Program& program) {
    return {program.document, program.figures, program.settings};
}

OpenDocument open_session(Program& program) {
    return {program.document, program.figures, program.settings, &program.session, &program.water};
}

} // namespace wortlex
