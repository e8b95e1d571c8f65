// A recipe with something in every place of a report, worked out under any settings.
#pragma once

#include "documents/brewing.h"
#include "documents/opening.h"
#include "reports/catalogue.h"
#include "reports/report_writers.h"
#include "support/recording_surface.h"

namespace wortlex {

inline MaltUse reported_malt(std::string_view name, std::string_view origin, MaltType type, float amount,
                             float potential, float colour) {
    auto line = malt(type, potential, amount, false, 78, colour);
    line.record.name.assign(name);
    line.record.origin.assign(origin);
    return line;
}

inline HopUse reported_hop(std::string_view name, HopForm form, float amount, int boil_time) {
    auto line = hop(5, amount, boil_time);
    line.record.name.assign(name);
    set_form(line.record, form);
    return line;
}

inline ExtraUse reported_extra(std::string_view name, int kind, float amount, int time) {
    ExtraUse line;
    line.record.name.assign(name);
    line.record.extra_type = static_cast<ExtraType>(kind % 6);
    line.record.amount_unit = static_cast<AmountUnit>(kind % 7);
    line.record.time_place = static_cast<TimePlace>(kind % 3);
    line.record.time_unit = static_cast<TimeUnit>(kind % 2);
    line.record.time = time;
    line.amount = amount;
    return line;
}

inline MashStep reported_step(std::string_view name, StepHeat heat, int temperature, int infusion) {
    MashStep step;
    step.name.assign(name);
    step.heat_type = heat;
    step.start_temperature = temperature;
    step.stop_temperature = temperature - 1;
    step.infuse_temperature = infusion;
    step.rest_minutes = 20;
    step.step_minutes = 5;
    step.ratio = 0.65F;
    return step;
}

struct ReportedRecipe {
    Settings settings;
    BrewDocument document;
    RecipeFigures figures;
    RecipeView view;
    PrintSelection wanted;

    explicit ReportedRecipe(SystemSettings image) : settings(settings_from(image)) {
        document = new_document(settings, ScheduleKind::simple);
        fill();
        view = default_report_view(settings);
        wanted.sections.fill(1);
    }

    OpenDocument open() { return {document, figures, settings}; }

    DocumentReport report() {
        recalculate_opened(open());
        const auto opened = open();
        return document_report({opened, view, built_in_color_table(), 10}, wanted);
    }
    std::string text() {
        TextSink sink;
        write_text(report(), sink);
        return sink.text();
    }
    std::string html() {
        HtmlTheme theme;
        take_built_in(theme, BuiltInTheme::mint);
        return write_html(report(), theme).page();
    }
    // Everything that is drawn, a call a line, in wide letters.
    std::string print() {
        RecordingSurface measure, paper;
        measure.character.width = 20;
        const auto made = report();
        const auto job = record_report({"", 0.75F, [&](PageContext& page) { write_print(made, page); }},
                                       {{2480, 3508}, {2400, 3400}, 50, false}, measure);
        for (std::size_t page = 0; page < job->pages.size(); ++page) job->draw(page, paper);
        std::string all;
        for (const auto& line : paper.lines) all += line + "\n";
        return all;
    }

private:
    void fill() {
        document.title.assign("K\xF6lsch <b>&\t100%%</b>");
        document.batch_size = 5;
        document.wort_size = 6;
        document.efficiency = 0.75F;
        auto& style = document.style;
        style.number = 7;
        style.letter = 'C';
        style.name.assign("K\xF6lsch");
        style.category.assign("Pale Bitter European Beer");
        style.min_og = 1.044F;
        style.max_og = 1.05F;
        style.min_ibu = 18;
        style.max_ibu = 30;
        style.min_colour = 3;
        style.max_colour = 5;
        document.malts = {reported_malt("Pilsner Malt From The Far End Of The Valley", "Germany",
                                        MaltType::grain, 8, 1.037F, 2),
                          reported_malt("M\xFCnchner",
                                        "Deutschland, s\xFC"
                                        "d",
                                        MaltType::grain, 1.5F, 1.035F, 9),
                          reported_malt("Candi", "", MaltType::sugar, 0.5F, 1.046F, 75)};
        document.hops = {reported_hop("Tettnang", HopForm::whole, 1, 61),
                         reported_hop("Hersbr\xFC"
                                      "cker",
                                      HopForm::plug, 0.5F, 60),
                         reported_hop("Saaz", HopForm::pellet, 1, 5),
                         reported_hop("Saaz", HopForm::pellet, 2, -5),
                         reported_hop("Saaz", HopForm::pellet, 2, 62)};
        for (int kind = 0; kind < 7; ++kind)
            document.extras.push_back(
                reported_extra(std::string(1, static_cast<char>('A' + kind)), kind, 1.25F, 15 * kind));
        document.yeast.record.lab.assign("Wyeast");
        document.yeast.record.catalog_number.assign("2565");
        document.yeast.record.name.assign("K\xF6lsch");
        document.water = {.name = Text<27>("K\xF6ln"),
                          .calcium = 104,
                          .magnesium = 15,
                          .sodium = 52,
                          .sulfate = 86,
                          .chloride = 109,
                          .bicarbonate = 152,
                          .ph = 7.5F,
                          .known_for = Text<155>("Its own beer")};
        document.notes.assign(std::string(80, 'n') + "\r\n\"Two\" <lines>");
        auto& mash = document.simple_mash;
        mash.mash_kind = MashKind::multi_step;
        mash.dough_in_water = 12;
        mash.protein = {122, 20};
        mash.saccharification = {150, 60};
        mash.sparge = {168, 30};
        document.mash.mash_name.assign("Stufen");
        document.mash.step_count = 3;
        document.mash.steps[0] = reported_step("Eiwei\xDFrast", StepHeat::infuse, 122, 0);
        document.mash.steps[1] = reported_step("Maltose", StepHeat::decoction, 145, 212);
        document.mash.steps[2] = reported_step("Verzuckerung", StepHeat::direct, 160, 0);
    }
};

} // namespace wortlex
