// The reports of a recipe and of a session with every section in their three forms, by the number of lines;
// print is recorded on paper of 300 dots an inch, with its texts measured as in the preview.
#include "desktop/print_device.h"
#include "documents/opening.h"
#include "paint_watch.h"
#include "reports/catalogue.h"
#include "reports/report_writers.h"
#include "sample_document.h"

namespace wortlex {
namespace {

struct Measured {
    Settings settings;
    BrewDocument document;
    RecipeFigures figures;
    SessionDocument session;
    WaterBalance water;
    RecipeView view;
    PrintSelection wanted;
    Stocks stocks;
    ColorTable colours = built_in_color_table();
    bool is_session = false;

    explicit Measured(std::size_t lines, bool with_session = false) : is_session(with_session) {
        auto image = WriteDefaultSettings();
        settings = settings_from(image);
        document = sample_document(lines, settings);
        document.notes.assign(std::string(4000, 'n'));
        document.awards.assign(std::string(4000, 'a'));
        session = new_session(document);
        for (auto& note : session.session_notes) note.assign(std::string(4000, 's'));
        session.bottling.used.fill(1);
        view = default_report_view(settings);
        wanted.sections.fill(1);
        recalculate_opened(open());
    }

    OpenDocument open() {
        if (!is_session) return {document, figures, settings};
        return {document, figures, settings, &session, &water};
    }

    DocumentReport report() {
        const auto opened = open();
        return document_report({opened, view, colours, 10, &stocks}, wanted);
    }
};

void text(benchmark::State& state) {
    Measured measured(static_cast<std::size_t>(state.range(0)), state.range(1) != 0);
    for (auto _ : state) {
        TextSink sink;
        write_text(measured.report(), sink);
        benchmark::DoNotOptimize(sink.text().data());
    }
}

void html(benchmark::State& state) {
    Measured measured(static_cast<std::size_t>(state.range(0)), state.range(1) != 0);
    HtmlTheme theme;
    take_built_in(theme, BuiltInTheme::mint);
    for (auto _ : state) benchmark::DoNotOptimize(write_html(measured.report(), theme).page().data());
}

void print(benchmark::State& state) {
    Measured measured(static_cast<std::size_t>(state.range(0)), state.range(1) != 0);
    MeasuringSurface measure;
    const auto paper = paper_of(PaperChoice{});
    for (auto _ : state) {
        const auto report = measured.report();
        const auto job = record_report({"", 0.75F, [&](PageContext& page) { write_print(report, page); }},
                                       paper, measure.surface());
        benchmark::DoNotOptimize(job->pages.data());
    }
}

#define EACH_SIZE                                                                                            \
    ArgNames({"lines", "session"})                                                                           \
        ->Args({25, 0})                                                                                      \
        ->Args({100, 0})                                                                                     \
        ->Args({25, 1})                                                                                      \
        ->Unit(benchmark::kMicrosecond)
BENCHMARK(text)->EACH_SIZE;
BENCHMARK(html)->EACH_SIZE;
BENCHMARK(print)->EACH_SIZE;

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    wortlex::Measurements measurements(count, arguments);
    return measurements.run();
}
