// A session with something in every place of its report.
#pragma once

#include "reported_recipe.h"
#include "reports/competition.h"

namespace wortlex {

struct ReportedSession : ReportedRecipe {
    SessionDocument session;
    WaterBalance water;
    Stocks stocks;
    CompetitionTexts texts;
    CompetitionInfo contact;

    explicit ReportedSession(const SystemSettings& image)
        : ReportedRecipe(image), session(new_session(document)) {
        session.head_brewer.assign("Maud");
        session.assistant_brewer.assign("Tom");
        set_brew_date(session, {5, 3, 2001});
        session.actual_og = 1.05F;
        session.actual_fg = 1.0125F;
        session.runnings_sg = 1.008F;
        fill_log();
        fill_water();
        session.session_notes[0].assign("Mash");
        session.session_notes[2].assign("Taste");
        MaltRecord malt = document.malts[0].record;
        malt.stock = 5;
        stocks.malts.slots[0] = malt;
        stocks.malts.count = 1;
    }

    OpenDocument open() { return {document, figures, settings, &session, &water}; }
    ReportSource source(const OpenDocument& opened) {
        return {opened, view, colours, session.water_needs.evaporation_rate, &stocks};
    }
    CompetitionEntry entry() const { return {texts, contact, session}; }

    std::string text(ReportPart part = ReportPart::whole) {
        const auto opened = recalculated();
        TextSink sink;
        write_text(document_report(source(opened), wanted, part), sink);
        return sink.text();
    }
    std::string form_text() {
        const auto opened = recalculated();
        TextSink sink;
        write_text(competition_report(source(opened), entry(), wanted), sink);
        return sink.text();
    }
    std::string label_text() {
        const auto opened = recalculated();
        TextSink sink;
        write_labels_text(label_rows(source(opened), entry()), sink);
        return sink.text();
    }

    OpenDocument recalculated() {
        const auto opened = open();
        recalculate_opened(opened);
        return opened;
    }

private:
    ColorTable colours = built_in_color_table();

    void fill_log() {
        session.tail.recorded_volume = 5.5F;
        session.tail.recorded_og = 1.048F;
        session.tail.measured_in_fermenter = 1;
        session.infusions.heat_type = SimpleHeat::infusion;
        session.infusions.saccharification = {205, 0};
        auto& log = session.fermentation;
        log.pitched_from = PitchedFrom::slurry;
        log.amount_pitched = 2;
        log.amount_unit = PitchUnit::litres;
        log.lag_hours = 12;
        log.primary_vessel = Vessel::stainless_steel;
        log.primary_days = 8;
        log.primary_temperature = 68;
        auto& bottling = session.bottling;
        bottling.bottling_day = 31; // of February, which no calendar has
        bottling.bottling_month = 2;
        bottling.bottling_year = 2001;
        bottling.used = {1, 1, 1};
        bottling.natural_carbonation = {1, 1, 0};
        bottling.priming_medium[1] = PrimingMedium::dme;
        bottling.priming_amount = {4, 3, 0};
        bottling.pressure[2] = 11;
    }
    void fill_water() {
        session.source_water = document.water;
        session.source_water.name.assign("Our well");
        session.source_water.calcium = 40;
        session.salt_grams[0] = 1;
        session.dilution_rate = 0.5F;
        auto& needs = session.water_needs;
        needs.sparge = 4;
        needs.sparge_deadspace = 0.5F;
        needs.evaporation_rate = 10;
        needs.hopback = 0.25F;
        needs.other = 0.25F;
    }
};

} // namespace wortlex
