// Programs run as a user runs them.
#pragma once

#include "support/temporary_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <vector>

#include <sys/wait.h>

namespace wortlex {

inline std::string content_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void write_content(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

struct Ran {
    int status = -1;
    std::string out;
    std::string err;
};

inline std::string quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

/// Runs a program in `folder`. `environment` is empty or assignments with a blank behind them.
inline Ran run(const std::string& folder, const std::vector<std::string>& words,
               const std::string& environment = {}) {
    const TemporaryFolder scratch;
    auto command = "cd " + quoted(folder) + " && " + environment;
    for (const auto& word : words) command += quoted(word) + " ";
    const int result =
        std::system((command + ">" + quoted(scratch / "out") + " 2>" + quoted(scratch / "err")).c_str());
    return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, content_of(scratch / "out"),
            content_of(scratch / "err")};
}

inline std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const auto end = std::min(text.find('\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

/// A brewery folder from the project's own data, made once.
inline const std::string& made_brewery() {
    static const TemporaryFolder folder;
    static const auto made = run("/", {MAKE_BREWERY, DATA_FOLDER, folder / "brewery"});
    static const std::string path = folder / "brewery/";
    if (made.status != 0) throw std::runtime_error(made.err);
    return path;
}

/// The sample files of a brewery, below it.
inline std::vector<std::string> sample_files(const std::string& brewery) {
    std::vector<std::string> files;
    for (const std::string place : {"Recipes/", "Sessions/"}) {
        for (const auto& entry : std::filesystem::directory_iterator(brewery + place))
            files.push_back(place + entry.path().filename().string());
    }
    return files;
}

} // namespace wortlex
