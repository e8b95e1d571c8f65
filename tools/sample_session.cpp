#include "base/number.h"
#include "base/windows1252.h"
#include "documents/opening.h"
#include "sample_sources.h"

#include <chrono>

namespace wortlex {
namespace {

struct Date {
    std::int32_t day = 0;
    std::int32_t month = 0;
    std::int32_t year = 0;
};

// Year-month-day.
Date date(const SourceValue& value) {
    const auto piece = [&](std::size_t from, std::size_t length) {
        return value.text.size() == 10 ? parse_whole(value.text.substr(from, length)).value_or(0) : 0;
    };
    const Date date{piece(8, 2), piece(5, 2), piece(0, 4)};
    const std::chrono::year_month_day day{std::chrono::year(date.year),
                                          std::chrono::month(static_cast<unsigned>(date.month)),
                                          std::chrono::day(static_cast<unsigned>(date.day))};
    if (!day.ok() || date.year < 1900) refuse(value.place, value.name + ": \"" + value.text + "\" is no day");
    return date;
}

void read_number(KeyedFile& source, std::string_view key, float& figure, double low, double high) {
    if (const auto value = source.find(key)) figure = value->number(low, high);
}

void read_brew_day(KeyedFile& source, SessionDocument& session) {
    const auto brewed = date(source.require("date"));
    session.brew_day = static_cast<std::int16_t>(brewed.day);
    session.brew_month = static_cast<std::int16_t>(brewed.month);
    session.brew_year = static_cast<std::int16_t>(brewed.year);
    if (const auto name = source.find("brewer")) session.head_brewer = name->stored<255>();
    if (const auto name = source.find("assistant")) session.assistant_brewer = name->stored<255>();
}

// Loading a session puts batch size and actual gravity where nothing was recorded; the same here keeps a
// sample as it is written.
void read_gravities(KeyedFile& source, const BrewDocument& document, SessionDocument& session) {
    read_number(source, "actual OG", session.actual_og, 1, 2);
    read_number(source, "actual FG", session.actual_fg, 0.9, 2);
    read_number(source, "runnings stopped at", session.runnings_sg, 1, 2);
    read_number(source, "wort pH", session.wort_ph, 3, 10);
    auto& tail = session.tail;
    tail.recorded_volume = document.batch_size;
    tail.recorded_og = session.actual_og;
    read_number(source, "recorded volume", tail.recorded_volume, 0.1, 100000);
    read_number(source, "recorded OG", tail.recorded_og, 1, 2);
    if (const auto where = source.find("recorded in"))
        tail.measured_in_fermenter = where->word<std::uint8_t>({{"kettle", 0}, {"fermenter", 1}});
}

void read_infusions(KeyedFile& source, InfusionExtras& infusions) {
    if (const auto heat = source.find("heat"))
        infusions.heat_type =
            heat->word<SimpleHeat>({{"direct", SimpleHeat::direct}, {"infusion", SimpleHeat::infusion}});
    for (const auto& value : source.all("infusion")) {
        const auto parts = value.parts(2, 2);
        const auto infusion = parts[0].word<Infusion InfusionExtras::*>(
            {{"protein", &InfusionExtras::protein},
             {"intermediate", &InfusionExtras::intermediate},
             {"saccharification", &InfusionExtras::saccharification},
             {"mash out", &InfusionExtras::mash_out}});
        (infusions.*infusion).temperature = parts[1].whole(32, 212);
    }
}

void read_water_needs(KeyedFile& source, WaterNeeds& needs) {
    for (const auto& value : source.all("volume")) {
        const auto parts = value.parts(2, 2);
        const auto gallons =
            parts[0].word<float WaterNeeds::*>({{"sparge", &WaterNeeds::sparge},
                                                {"sparge deadspace", &WaterNeeds::sparge_deadspace},
                                                {"top up", &WaterNeeds::top_up},
                                                {"lauter loss", &WaterNeeds::lauter_loss},
                                                {"kettle deadspace", &WaterNeeds::kettle_deadspace},
                                                {"hopback", &WaterNeeds::hopback},
                                                {"chiller", &WaterNeeds::chiller},
                                                {"other", &WaterNeeds::other}});
        needs.*gallons = parts[1].number(0, 100000);
    }
    read_number(source, "evaporation rate", needs.evaporation_rate, 0, 100);
}

// VESSEL | open or closed | DAYS | DEGREES
struct Stage {
    Vessel vessel{};
    std::uint8_t is_open = 0;
    std::int32_t days = 0;
    std::int32_t temperature = 0;
};

Stage stage(const SourceValue& value) {
    const auto parts = value.parts(4, 4);
    return {parts[0].word<Vessel>({{"glass", Vessel::glass},
                                   {"stainless steel", Vessel::stainless_steel},
                                   {"plastic", Vessel::plastic},
                                   {"wood", Vessel::wood},
                                   {"other", Vessel::other}}),
            parts[1].word<std::uint8_t>({{"closed", 0}, {"open", 1}}), parts[2].whole(0, 1000),
            parts[3].whole(0, 212)};
}

// SOURCE | AMOUNT | UNIT | LAG HOURS
void read_pitch(const SourceValue& value, FermentationLog& log) {
    const auto parts = value.parts(4, 4);
    log.pitched_from = parts[0].word<PitchedFrom>({{"starter", PitchedFrom::starter},
                                                   {"liquid pack", PitchedFrom::liquid_pack},
                                                   {"pitchable flask", PitchedFrom::pitchable_flask},
                                                   {"dry pack", PitchedFrom::dry_pack},
                                                   {"slurry", PitchedFrom::slurry}});
    log.amount_pitched = parts[1].whole(0, 100000);
    log.amount_unit = parts[2].word<PitchUnit>({{"mL", PitchUnit::millilitres},
                                                {"L", PitchUnit::litres},
                                                {"g", PitchUnit::grams},
                                                {"oz", PitchUnit::ounces},
                                                {"lb", PitchUnit::pounds},
                                                {"qt", PitchUnit::quarts}});
    log.lag_hours = parts[3].number(0, 1000);
}

void read_fermentation(KeyedFile& source, FermentationLog& log) {
    if (const auto value = source.find("pitched")) read_pitch(*value, log);
    if (const auto value = source.find("primary")) {
        const auto primary = stage(*value);
        log.primary_vessel = primary.vessel;
        log.primary_open = primary.is_open;
        log.primary_days = primary.days;
        log.primary_temperature = primary.temperature;
    }
    if (const auto value = source.find("secondary")) {
        const auto secondary = stage(*value);
        log.secondary_vessel = secondary.vessel;
        log.secondary_open = secondary.is_open;
        log.secondary_days = secondary.days;
        log.secondary_temperature = secondary.temperature;
    }
}

// COLUMN | GALLONS | natural | MEDIUM | OUNCES | DAYS, or with forced | DEGREES | PSI in the middle.
void read_packaging(const SourceValue& value, BottlingLog& log) {
    const auto parts = value.parts(6, 6);
    const auto column = parts[0].word<std::size_t>({{"bottles", 0}, {"kegs", 1}, {"tanks", 2}});
    log.used[column] = 1;
    log.amount[column] = parts[1].number(0, 100000);
    log.natural_carbonation[column] = parts[2].word<std::uint8_t>({{"forced", 0}, {"natural", 1}});
    if (log.natural_carbonation[column] != 0) {
        log.priming_medium[column] = parts[3].word<PrimingMedium>({{"corn sugar", PrimingMedium::corn_sugar},
                                                                   {"DME", PrimingMedium::dme},
                                                                   {"other", PrimingMedium::other}});
        log.priming_amount[column] = parts[4].number(0, 10000);
    } else {
        log.carbonation_temperature[column] = parts[3].whole(0, 212);
        log.pressure[column] = parts[4].number(0, 100);
    }
    log.days_conditioned[column] = parts[5].whole(0, 1000);
}

void read_bottling(KeyedFile& source, BottlingLog& log) {
    if (const auto value = source.find("bottled")) {
        const auto bottled = date(*value);
        log.bottling_day = bottled.day;
        log.bottling_month = bottled.month;
        log.bottling_year = bottled.year;
    }
    read_number(source, "carbonation", log.co2_volumes, 0, 10);
    if (const auto value = source.find("bottling temperature"))
        log.ferment_temperature = value->whole(0, 212);
    for (const auto& value : source.all("packaged")) read_packaging(value, log);
}

// The file's name comes from the title.
void check_title(const SourceValue& title) {
    if (title.text.find('/') != std::string::npos || title.text.starts_with('.'))
        refuse(title.place, "\"" + title.text + "\" is no name for a file");
}

} // namespace

void read_session_keys(KeyedFile& source, const BrewDocument& document, SessionDocument& session) {
    read_brew_day(source, session);
    read_gravities(source, document, session);
    read_infusions(source, session.infusions);
    read_water_needs(source, session.water_needs);
    read_fermentation(source, session.fermentation);
    read_bottling(source, session.bottling);
    constexpr std::array<std::string_view, 4> notes = {"mash notes", "fermentation notes", "tasting notes",
                                                       "problem notes"};
    for (std::size_t i = 0; i < notes.size(); ++i)
        session.session_notes[i] = stored_lines<4096>(source, notes[i], 4094);
}

std::string Sample::file_name() const {
    return utf8_from_windows1252(document.title.view()) + (kind == DocumentKind::session ? ".brw" : ".rec");
}

Sample read_sample(const std::string& path, const Databases& databases, const Settings& settings) {
    KeyedFile source(path);
    Sample sample;
    sample.kind =
        source.require("document")
            .word<DocumentKind>({{"recipe", DocumentKind::recipe}, {"session", DocumentKind::session}});
    check_title(source.require("title"));
    const bool is_session = sample.kind == DocumentKind::session;
    sample.document =
        is_session ? new_session_recipe(settings) : new_document(settings, ScheduleKind::simple);
    read_recipe_keys(source, databases, sample.document);
    if (is_session) {
        read_number(source, "wort size", sample.document.wort_size, 1, 100000);
        sample.session = new_session(sample.document);
        read_session_keys(source, sample.document, sample.session);
    }
    source.refuse_unread();
    RecipeFigures figures;
    WaterBalance water;
    recalculate_opened({sample.document, figures, settings, is_session ? &sample.session : nullptr,
                        is_session ? &water : nullptr});
    return sample;
}

} // namespace wortlex
