// wortlex-report: the figures of recipe and session files, for whole folders of them.
#include "base/ports/quiet_prompts.h"
#include "frame/report/document_report.h"

#include <cstdio>
#include <span>

namespace wortlex {
namespace {

constexpr std::string_view usage =
    "Usage: wortlex-report [--json] FILE ...\n"
    "       wortlex-report --save-as FILE INPUT\n"
    "Run in a brewery folder, with whose settings the figures of recipes (.rec) and brewing\n"
    "sessions (.brw) are worked out.\n"
    "  --json          one JSON object a line instead of a page to read\n"
    "  --save-as FILE  write the one input to FILE as it was loaded, before anything is worked out\n";

struct Options {
    bool json = false;
    bool help = false;
    std::optional<std::string> save_as;
    std::vector<std::string> files;
};

std::optional<Options> parse(std::span<char* const> arguments) {
    Options options;
    bool only_files = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (only_files || !argument.starts_with("--")) {
            options.files.emplace_back(argument);
        } else if (argument == "--") {
            only_files = true;
        } else if (argument == "--json") {
            options.json = true;
        } else if (argument == "--help") {
            options.help = true;
        } else if (argument == "--save-as" && i + 1 < arguments.size()) {
            options.save_as = arguments[++i];
        } else {
            return std::nullopt;
        }
    }
    const bool usable =
        options.help || (!options.files.empty() && (!options.save_as || options.files.size() == 1));
    return usable ? std::optional(options) : std::nullopt;
}

void print(std::FILE* to, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), to);
}

void complain(const std::string& file, std::string_view what) {
    std::string line = "wortlex-report: " + file + ": ";
    for (const char c : what) line += c == '\n' ? ' ' : c;
    print(stderr, line + "\n");
}

// Messages go to standard error.
class ConsolePrompts : public QuietPrompts {
public:
    void tell(const Message& message) override { complain(subject, message.text); }

    std::string subject; ///< the file that a message is about
};

// Returns whether all went well.
bool report_file(Program& program, const std::string& file, const Options& options, ConsolePrompts& prompts) {
    const auto kind = document_kind(file);
    if (!kind) {
        complain(file, "is neither a recipe (.rec) nor a brewing session (.brw)");
        return false;
    }
    const auto load = load_document(program, file, *kind);
    if (load != LoadResult::loaded) complain(file, load_fault(load));
    if (load == LoadResult::not_found || load == LoadResult::damaged) return false;
    if (options.save_as) {
        prompts.subject = *options.save_as;
        return *kind == DocumentKind::recipe
                   ? save_recipe(*options.save_as, program.document, prompts)
                   : save_session(*options.save_as, program.document, program.session, prompts);
    }
    const auto evaluation = evaluate(program, file, *kind, load);
    print(stdout, (options.json ? json_line(program, evaluation) : summary(program, evaluation)) + "\n");
    return true;
}

int run(std::span<char* const> arguments) {
    const auto options = parse(arguments);
    if (!options) {
        print(stderr, usage);
        return 2;
    }
    if (options->help) {
        print(stdout, usage);
        return 0;
    }
    ConsolePrompts prompts;
    prompts.subject = "WlxMSys.DAT";
    Program program;
    if (!start_core(program, working_folder(), prompts)) return 1;
    bool all_well = true;
    for (const auto& file : options->files)
        all_well = report_file(program, file, *options, prompts) && all_well;
    if (std::fflush(stdout) != 0) {
        complain("standard output", "could not be written");
        all_well = false;
    }
    return all_well ? 0 : 1;
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    return wortlex::run(std::span<char* const>(arguments, static_cast<std::size_t>(count)).subspan(1));
}
