// Programs run as a user runs them.
#pragma once

#include "support/file_content.h"
#include "support/temporary_folder.h"

#include <iomanip>
#include <sstream>
#include <vector>

namespace wortlex {

inline std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) lines.push_back(line);
    return lines;
}

struct Ran {
    int status;
    std::string out, err;
};

inline Ran run(const std::string& folder, const std::vector<std::string>& words) {
    const TemporaryFolder scratch;
    std::ostringstream command;
    command << "cd " << std::quoted(folder) << " &&";
    for (const auto& word : words) command << ' ' << std::quoted(word);
    command << " >" << scratch / "out"
            << " 2>" << scratch / "err";
    const int result = std::system(command.str().c_str());
    return {WEXITSTATUS(result), content_of(scratch / "out"), content_of(scratch / "err")};
}

/// A brewery folder from the project's own data, made once.
inline const std::string& made_brewery() {
    static const TemporaryFolder folder;
    static const auto made = run("/", {MAKE_BREWERY, DATA_FOLDER, folder.path()});
    if (made.status != 0) throw std::runtime_error(made.err);
    return folder.path();
}

/// The sample files of the made brewery, below it.
inline std::vector<std::string> sample_files() {
    std::vector<std::string> files;
    for (const std::string place : {"Recipes/", "Sessions/"})
        for (const auto& entry : std::filesystem::directory_iterator(made_brewery() + place))
            files.push_back(place + entry.path().filename().string());
    return files;
}

inline const std::string bitter = "Recipes/Ploughman's Best Bitter.rec";
inline const std::string brown_ale = "Recipes/First Batch Brown Ale.rec";
inline const std::string brew_day = "Sessions/Front Porch Pale Ale, Second Brewing.brw";

/// Runs the companion in the made brewery.
inline Ran report(std::vector<std::string> words) {
    words.insert(words.begin(), WORTLEX_REPORT);
    return run(made_brewery(), words);
}

} // namespace wortlex
