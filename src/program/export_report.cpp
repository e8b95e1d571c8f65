#include "program/export_report.h"

#include "program/picture_desk.h"
#include "program/program.h"
#include "reports/competition.h"
#include "reports/print_options.h"
#include "reports/report_writers.h"
#include "reports/row_parts.h"
#include "settings/reminders.h"

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

std::optional<std::string> choose_file(const WindowPorts& ports, const std::string& name,
                                       const FileForm& form) {
    auto& folders = ports.program.folders;
    auto path = ports.files.choose_to_save({form.filter, folder_path(folders, form.folder),
                                            proposed_file(name, form.extension), form.extension});
    if (path) follow_user(folders, form.folder, *path);
    return path;
}

// What is put out, before it takes a form.
struct Exported {
    const ReportSource& source;
    const CompetitionEntry& entry;
    const PrintSelection& selection;
    ReportOutput output;
    ReportPart part;
};

DocumentReport report_of(const Exported& exported) {
    if (exported.output == ReportOutput::competition_form)
        return competition_report(exported.source, exported.entry, exported.selection);
    return document_report(exported.source, exported.selection, exported.part);
}

TextSink text_of(const Exported& exported) {
    TextSink sink;
    if (exported.output == ReportOutput::competition_labels) {
        write_labels_text(label_rows(exported.source, exported.entry), sink);
    } else {
        write_text(report_of(exported), sink);
    }
    return sink;
}

void save_html_labels(const WindowPorts& ports, const Exported& exported, const std::string& path) {
    const auto labels = label_rows(exported.source, exported.entry, true);
    save_html(path, write_labels_html(labels, ports.program.html_theme), ports.prompts);
}

// The pictures stand beside the page, and the user is reminded to take them along.
void save_html_report(const WindowPorts& ports, const Exported& exported, const std::string& path) {
    auto& program = ports.program;
    const auto report = report_of(exported);
    const auto file = std::filesystem::path(path).filename().string();
    const auto name = file.substr(0, file.find('.'));
    if (!save_html(path, write_html(report, program.html_theme, name), ports.prompts)) return;
    ChartPictureNames names;
    for (const auto& section : report.sections) {
        if (!section.chart) continue;
        const auto picture = picture_name(name, *section.chart);
        save_chart(std::filesystem::path(path).replace_filename(picture).string(), section.chart->drawing,
                   picture_desk(ports));
        (section.chart->ending == "_mash" ? names.mash : names.water) = picture;
    }
    remind_of_pictures(names, program.reminders, program.data_folder, ports.prompts);
}

// Empty for a document that has not been saved.
std::string file_stem(const Program& program) {
    return std::filesystem::path(program.document.file.path).stem().string();
}

std::string proposed_name(const Program& program, ReportOutput output) {
    const auto title = line_text(program.document.recipe.title);
    return program.document.kind == DocumentKind::session
               ? session_file_name(title, program.document.session, output, program.settings)
               : recipe_file_name(title, output);
}

// A report of a document that was saved goes by its file.
std::string pages_name(const Program& program, const Exported& exported) {
    const bool is_session =
        program.document.kind == DocumentKind::session && exported.part != ReportPart::recipe;
    auto name = file_stem(program);
    if (is_session && name.empty()) name = line_text(program.document.recipe.title);
    if (exported.output == ReportOutput::report && !name.empty())
        return is_session ? session_pages_name(name, program.document.session) : name;
    name = proposed_name(program, exported.output);
    return std::filesystem::path(proposed_file(name, "pdf")).stem().string();
}

PrintRequest label_sheets_of(const Exported& exported, const LabelRun& run, const LabelSettings& settings) {
    return {.document_name = "",
            .run = [label = label_rows(exported.source, exported.entry),
                    run](PageContext& page) { draw_label_sheets(label, run, page); },
            .sheet = run.sheet.paper,
            .shift = shift_by_printer(settings)};
}

PrintRequest label_blocks_of(const Exported& exported) {
    return {.document_name = "",
            .printer_scale = label_scale,
            .run = [label = label_rows(exported.source, exported.entry)](
                       PageContext& page) { write_labels_print(label, page); },
            .on_one_page = true};
}

PrintRequest pages_of(const Exported& exported, const Program& program) {
    if (exported.output == ReportOutput::competition_labels)
        return program.labels.is_on_sheet()
                   ? label_sheets_of(exported, program.labels.run, LoadLabelSettings(program.data_folder))
                   : label_blocks_of(exported);
    const bool is_form = exported.output == ReportOutput::competition_form;
    return {.document_name = "",
            .printer_scale = is_form ? exported.selection.scale : program.settings.printer_scale,
            .run = [report = report_of(exported)](PageContext& page) { write_print(report, page); }};
}

void print(const WindowPorts& ports, const Exported& exported) {
    const auto& program = ports.program;
    const auto title = line_text(program.document.recipe.title);
    auto request = pages_of(exported, program);
    request.document_name =
        title.empty() ? std::string(document_traits(program.document.kind).printed_name) : title;
    request.file_name = pages_name(program, exported);
    ports.pages.show(request);
}

// Where a report goes, asked before anything is made; nothing if the user stops there.
struct Destination {
    ReportForm form;
    std::string path{}; ///< of a file
};

std::optional<Destination> choose_destination(const WindowPorts& ports, ReportForm form,
                                              const std::string& name) {
    if (form != ReportForm::text_file && form != ReportForm::html_file) return Destination{form};
    const bool is_text = form == ReportForm::text_file;
    auto path =
        is_text ? choose_file(ports, name, text_files) : choose_file(ports, html_file_name(name), html_files);
    return path ? std::optional(Destination{form, *std::move(path)}) : std::nullopt;
}

void put_out(const WindowPorts& ports, const Exported& exported, const Destination& to) {
    switch (to.form) {
    case ReportForm::print:
        return print(ports, exported);
    case ReportForm::clipboard:
        return copy_text(ports.clipboard, text_of(exported));
    case ReportForm::text_file:
        save_text(to.path, text_of(exported), ports.prompts);
        return;
    case ReportForm::html_file:
        if (exported.output == ReportOutput::competition_labels)
            return save_html_labels(ports, exported, to.path);
        save_html_report(ports, exported, to.path);
    }
}

bool is_inventory_wanted(const OpenDocument& open, PrintSelection selection) {
    return open.session != nullptr && selection[PrintSection::inventory] != 0;
}

} // namespace

void export_document(const WindowPorts& ports, const RecipeView& view, const CompetitionQuestion& ask,
                     ReportPart part) {
    auto& program = ports.program;
    const auto selection = part == ReportPart::recipe ? program.recipe_print : print_selection(program);
    const auto output = report_output(selection);
    const auto destination =
        choose_destination(ports, report_form(selection), proposed_name(program, output));
    if (!destination || (output != ReportOutput::report && !ask(output, destination->form))) return;
    const auto open = live_document(program);
    std::optional<Stocks> stocks;
    if (is_inventory_wanted(open, selection)) LoadStocks(program.data_folder, stocks.emplace());
    const ReportSource source{open, view, program.color_table, evaporation_rate(program),
                              stocks ? &*stocks : nullptr};
    const CompetitionEntry entry{program.document.competition, program.system.competition,
                                 program.document.session};
    put_out(ports, {source, entry, selection, output, part}, *destination);
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
