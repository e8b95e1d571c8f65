// The water profile calculator: a water is matched to another by trial. What it works out is in
// brewing/salts.h; here are its files and its question, for whoever owns an analysis.
#pragma once

#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "records/water/water_analysis.h"
#include "settings/system_files.h"

namespace wortlex {

/// What the files of the calculator are chosen with. All must outlive it.
struct WaterDesk {
    FolderSet& folders;
    Files& files;
    Prompts& prompts;
};

/// Whether two analyses are the same work: waters, salts, rates, volumes, dilution and pH as they are read in
/// the window, where hundredths are the least. What is worked out from them does not count, nor the unit.
bool is_same_work(const WaterAnalysis& a, const WaterAnalysis& b);

/// Asks for a file and reads it over `analysis`, with what is worked out brought into line. A file that is
/// not found, damaged or incomplete is told. Whether one was read; `path` is then where it is.
bool load_water_analysis(WaterAnalysis& analysis, std::string& path, const WaterDesk& desk);

/// Asks where to save, beginning with `path`, which follows; whether it is saved.
bool save_water_analysis(const WaterAnalysis& analysis, std::string& path, const WaterDesk& desk);

/// The tool's own work, which begins empty.
class WaterCalculator {
public:
    explicit WaterCalculator(const WaterDesk& desk) : desk_(desk) {}

    WaterAnalysis work;

    void load();
    void save();
    /// Whether the work may be dropped: asks if it is not saved.
    bool may_drop();

private:
    bool store();

    WaterDesk desk_;
    WaterAnalysis saved_;
    std::string path_;
};

} // namespace wortlex
