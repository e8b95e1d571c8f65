// The same bytes as every settings file.
#include "base/files.h"
#include "fuzz_input.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace wortlex;

namespace {

void write(const std::string& path, const std::uint8_t* data, std::size_t size) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = "/dev/shm/wortlex-fuzz-" + std::to_string(getpid()) + "/";
    std::filesystem::create_directories(folder);
    for (const auto* name : {"WlxMSys.DAT", "WlxCSys.DAT", "WlxDir.dir", "WlxWin.pos", "WlxGlobalWin.pos",
                             "Nags.dat", "RPSys.DAT", "BPSys.DAT", "WATER_USAGE.DAT"})
        write(folder + name, data, size);

    auto files = LoadSystemFiles(folder);
    promise(!files.loaded || size >= 1580);
    Settings settings;
    ApplySettings(files.settings, settings, true);
    promise(!(settings.batch_size <= 0) && !(settings.wort_size <= 0) && settings.jpg_quality >= 20);
    const auto document = new_document(settings, settings.default_schedule);
    promise(document.mash.step_count == 0);

    const auto folders = LoadFolders(folder);
    for (std::size_t kind = 0; kind < folder_kinds; ++kind)
        promise(folder_path(folders, static_cast<FolderKind>(kind)).ends_with('/'));
    LoadMainPosition(folder);
    LoadToolPositions(folder);
    LoadReminders(folder);
    for (const auto kind : {DocumentKind::recipe, DocumentKind::session}) {
        auto selection = LoadPrintSelection(folder, kind, 1.0F);
        promise(selection[PrintOption::html_file] == 0 || selection[PrintOption::clipboard] == 0);
    }
    WaterNeeds needs;
    LoadWaterUsage(folder, needs);
    BalanceWater(needs, true, settings);
    return 0;
}
