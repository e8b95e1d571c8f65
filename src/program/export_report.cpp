#include "program/export_report.h"

#include "base/files.h"
#include "program/program.h"
#include "reports/catalogue.h"
#include "reports/file_names.h"
#include "reports/print_options.h"
#include "reports/report_writers.h"
#include "reports/row_parts.h"

#include <filesystem>

namespace wortlex {
namespace {

struct FileForm {
    std::string_view filter;
    std::string_view extension;
    FolderKind folder;
};

constexpr FileForm text_files = {"Text File (*.txt)|*.txt", "txt", FolderKind::text_exports};
constexpr FileForm html_files = {"HTML File (*.html)|*.html", "html", FolderKind::html_exports};

// A title may hold what would lead into another folder.
std::string file_name_of(std::string name, const FileForm& form) {
    name = tame_file_name(std::move(name), "/\\");
    return name.empty() ? name : name.append(".").append(form.extension);
}

std::optional<std::string> choose_file(const WindowPorts& ports, const std::string& name,
                                       const FileForm& form) {
    auto& folders = ports.program.folders;
    auto path = ports.files.choose_to_save(
        {form.filter, folder_path(folders, form.folder), file_name_of(name, form), form.extension});
    if (path) follow_user(folders, form.folder, *path);
    return path;
}

TextSink text_of(const DocumentReport& report) {
    TextSink sink;
    write_text(report, sink);
    return sink;
}

// Empty for a document that has not been saved.
std::string file_stem(const Program& program) {
    return std::filesystem::path(program.document.file.path).stem().string();
}

void print(const WindowPorts& ports, const DocumentReport& report, const std::string& title) {
    const auto& traits = document_traits(ports.program.document.kind);
    ports.pages.show({.document_name = title.empty() ? std::string(traits.printed_name) : title,
                      .printer_scale = ports.program.settings.printer_scale,
                      .run = [&report](PageContext& page) { write_print(report, page); },
                      .file_name = file_stem(ports.program)});
}

} // namespace

void export_document(const WindowPorts& ports, const RecipeView& view) {
    auto& program = ports.program;
    const auto open = live_document(program);
    const auto& selection = print_selection(program);
    const auto report =
        document_report({open, view, program.color_table, evaporation_rate(program)}, selection);
    const auto title = line_text(program.document.recipe.title);
    const auto name = recipe_file_name(title, ReportOutput::report);
    switch (report_form(selection)) {
    case ReportForm::print:
        return print(ports, report, title);
    case ReportForm::clipboard:
        return copy_text(ports.clipboard, text_of(report));
    case ReportForm::text_file:
        if (const auto path = choose_file(ports, name, text_files))
            save_text(*path, text_of(report), ports.prompts);
        return;
    case ReportForm::html_file:
        if (const auto path = choose_file(ports, html_file_name(name), html_files))
            save_html(*path, write_html(report, program.html_theme), ports.prompts);
    }
}

void save_as_default(DocumentKind kind, const PrintSelection& selection, const std::string& data_folder,
                     Prompts& prompts) {
    const Message question{.text = document_traits(kind).save_selection, .icon = Icon::question};
    if (prompts.ask_yes_no(question) != Answer::yes) return;
    if (!SavePrintSelection(data_folder, kind, selection))
        prompts.tell({.text = "The print defaults could not be written. Is the disk full, or the folder "
                              "read-only?",
                      .icon = Icon::error});
}

} // namespace wortlex
