// wortlex-report: the figures of recipe and session files, for whole folders of them.
#include "base/ports/quiet_prompts.h"
#include "companion/full_report.h"
#include "companion/report_format.h"
#include "companion/terminal.h"
#include "program/brewery_folder.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>
#include <span>

namespace wortlex {
namespace {

constexpr std::string_view usage =
    "Usage: wortlex-report [--json] FILE ...\n"
    "       wortlex-report --text | --html [--output FOLDER] FILE ...\n"
    "       wortlex-report --save-as FILE INPUT\n"
    "Works out the figures of recipes (.rec) and brewing sessions (.brw) with the settings of the\n"
    "brewery folder that it is run in; elsewhere, as far as it is installed, with those of your own.\n"
    "  --json           one JSON object a line instead of a page to read\n"
    "  --text           the report of the program's text export; it holds the sections that are\n"
    "                   chosen as default in the program\n"
    "  --html           the same as a web page in the default theme, without the pictures of charts\n"
    "  --output FOLDER  write each of these to a file of its own, named after the document's file,\n"
    "                   instead of one after the other; the folder is made if it is not there\n"
    "  --save-as FILE   write the one input to FILE as it was loaded, before anything is worked out\n";

enum class Form { summary, json, text, html };

struct Options {
    Form form = Form::summary;
    bool help = false;
    std::optional<std::string> output;
    std::optional<std::string> save_as;
    std::vector<std::string> files;
};

bool is_whole_report(Form form) {
    return form == Form::text || form == Form::html;
}

bool is_usable(const Options& options) {
    if (options.help) return true;
    if (options.files.empty() || (options.output && !is_whole_report(options.form))) return false;
    return !options.save_as || (options.files.size() == 1 && options.form == Form::summary);
}

std::optional<Form> form_of(std::string_view word) {
    if (word == "--json") return Form::json;
    if (word == "--text") return Form::text;
    return word == "--html" ? std::optional(Form::html) : std::nullopt;
}

// Takes a word that is all of an option. There is one form at most.
bool take_option(Options& options, std::string_view word) {
    if (word == "--help") return options.help = true;
    const auto form = form_of(word);
    if (!form || options.form != Form::summary) return false;
    options.form = *form;
    return true;
}

std::optional<Options> parse(std::span<char* const> arguments) {
    Options options;
    bool only_files = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (only_files || !argument.starts_with("--")) {
            options.files.emplace_back(argument);
        } else if (argument == "--") {
            only_files = true;
        } else if (argument == "--save-as" && i + 1 < arguments.size()) {
            options.save_as = arguments[++i];
        } else if (argument == "--output" && i + 1 < arguments.size()) {
            options.output = arguments[++i];
        } else if (!take_option(options, argument)) {
            return std::nullopt;
        }
    }
    return is_usable(options) ? std::optional(options) : std::nullopt;
}

void print(std::FILE* to, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), to);
}

void complain(const std::string& file, std::string_view what) {
    std::string line(what);
    std::replace(line.begin(), line.end(), '\n', ' ');
    print(stderr, one_line("wortlex-report: " + file + ": " + line) + "\n");
}

// Messages go to standard error.
class ConsolePrompts : public QuietPrompts {
public:
    void tell(const Message& message) override { complain(subject, message.text); }

    std::string subject; ///< the file that a message is about
};

// All that one run needs for its files.
struct Reporter {
    Program& program;
    const Options& options;
    ConsolePrompts& prompts;
    std::optional<FullReports> full{};
    std::set<std::string> written{};
};

bool save_as(Reporter& reporter, const std::string& path) {
    auto image = image_of(live_document(reporter.program));
    reporter.prompts.subject = path;
    return save_document(path, image, reporter.prompts);
}

// A folder that cannot be made is told by the save that fails in it.
void make_folder(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
}

// A name for each input; those of the same name are numbered.
std::string output_path(Reporter& reporter, const std::string& file, std::string_view ending) {
    const auto stem = std::filesystem::path(*reporter.options.output) / std::filesystem::path(file).stem();
    auto path = stem.string().append(ending);
    for (int number = 2; !reporter.written.insert(path).second; ++number)
        path = stem.string().append(" ").append(std::to_string(number)).append(ending);
    return path;
}

bool report_whole(Reporter& reporter, const std::string& file) {
    const bool is_text = reporter.options.form == Form::text;
    const auto text = is_text ? reporter.full->text() : TextSink();
    const auto html = is_text ? std::optional<HtmlWriter>() : reporter.full->html();
    if (!reporter.options.output) {
        print(stdout, terminal_text(is_text ? text.text() : html->page()));
        return true;
    }
    make_folder(*reporter.options.output);
    const auto path = output_path(reporter, file, is_text ? ".txt" : ".html");
    reporter.prompts.subject = path;
    return is_text ? save_text(path, text, reporter.prompts) : save_html(path, *html, reporter.prompts);
}

// Returns whether all went well; an incomplete file gives its figures all the same.
bool report_file(Reporter& reporter, const std::string& file) {
    auto& program = reporter.program;
    const auto kind = document_kind(file);
    if (!kind) {
        complain(file, is_no_document);
        return false;
    }
    const auto load = load_document(program, file, *kind);
    if (load != LoadResult::loaded) complain(file, load_fault(load));
    if (!is_sound(load)) return false;
    const bool is_whole = load == LoadResult::loaded;
    if (reporter.options.save_as) return save_as(reporter, *reporter.options.save_as) && is_whole;
    const auto evaluation = evaluate(program, file, load);
    if (is_whole_report(reporter.options.form)) return report_whole(reporter, file) && is_whole;
    const bool is_json = reporter.options.form == Form::json;
    print(stdout, (is_json ? json_line(program, evaluation) : summary(program, evaluation)) + "\n");
    return is_whole;
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
    const auto folder = open_brewery(start_places(), prompts);
    if (!folder || !start_core(program, *folder, prompts)) return 1;
    Reporter reporter{program, *options, prompts};
    if (is_whole_report(options->form)) reporter.full.emplace(program);
    bool all_well = true;
    for (const auto& file : options->files) all_well = report_file(reporter, file) && all_well;
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
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
