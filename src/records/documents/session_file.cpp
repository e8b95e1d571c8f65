#include "base/files.h"
#include "base/number.h"
#include "records/documents/document_files.h"
#include "records/documents/document_parts.h"

namespace wortlex {
namespace {

constexpr auto fermentation_layout = layout<FermentationLog, 32>(
    at(0, &FermentationLog::pitched_from), at(1, &FermentationLog::lag_hours),
    at(5, &FermentationLog::amount_pitched), at(9, &FermentationLog::amount_unit),
    at(10, &FermentationLog::primary_vessel), at(11, &FermentationLog::secondary_vessel),
    at(12, &FermentationLog::primary_open), at(13, &FermentationLog::secondary_open),
    at(14, &FermentationLog::primary_days), at(18, &FermentationLog::secondary_days),
    at(22, &FermentationLog::primary_temperature), at(26, &FermentationLog::secondary_temperature),
    at(30, &FermentationLog::primary_temperature_unit), at(31, &FermentationLog::secondary_temperature_unit));

constexpr auto bottling_layout = layout<BottlingLog, 129>(
    at(0, &BottlingLog::bottling_day), at(4, &BottlingLog::bottling_month),
    at(8, &BottlingLog::bottling_year), at(12, &BottlingLog::reserved_12), at(13, &BottlingLog::co2_volumes),
    at(17, &BottlingLog::ferment_temperature), at(21, &BottlingLog::used), at(24, &BottlingLog::amount),
    at(36, &BottlingLog::natural_carbonation), at(39, &BottlingLog::priming_medium),
    at(42, &BottlingLog::priming_amount), at(54, &BottlingLog::liquid_added),
    at(66, &BottlingLog::carbonation_temperature), at(78, &BottlingLog::pressure),
    at(90, &BottlingLog::days_conditioned), at(102, &BottlingLog::reserved_102));

// From the brewers' names to the dilution rate.
constexpr auto log_layout = layout<SessionDocument, 22833>(
    at(0, &SessionDocument::head_brewer), at(255, &SessionDocument::assistant_brewer),
    at(510, &SessionDocument::brew_day), at(512, &SessionDocument::brew_month),
    at(514, &SessionDocument::brew_year), at(516, &SessionDocument::actual_og),
    at(520, &SessionDocument::actual_fg), at(524, &SessionDocument::runnings_sg),
    at(528, &SessionDocument::bottling, bottling_layout), at(657, &SessionDocument::session_notes),
    at(21137, &SessionDocument::inventory_finalized),
    at(21138, &SessionDocument::infusions, infusion_extras_layout), at(21179, &SessionDocument::wort_ph),
    at(21183, &SessionDocument::water_needs, water_needs_layout),
    at(21243, &SessionDocument::salt_effects, water_layout),
    at(22575, &SessionDocument::source_water, water_layout), at(22797, &SessionDocument::salt_grams),
    at(22825, &SessionDocument::sparge_quarts), at(22829, &SessionDocument::dilution_rate));

constexpr auto pair_layout =
    layout<RefractometerPair, 8>(at(0, &RefractometerPair::plato), at(4, &RefractometerPair::net_zeiss));

constexpr auto alcohol_reading_layout =
    layout<AlcoholReading, 12>(at(0, &AlcoholReading::net_zeiss), at(4, &AlcoholReading::original_extract),
                               at(8, &AlcoholReading::fg_plato));

constexpr auto tail_layout = layout<SessionTail, 5496>(
    at(0, &SessionTail::reserved_0), at(5371, &SessionTail::measured_in_fermenter),
    at(5372, &SessionTail::fg_by_refractometer), at(5373, &SessionTail::reserved_5373),
    at(5436, &SessionTail::recorded_volume), at(5440, &SessionTail::recorded_og),
    at(5444, &SessionTail::calculated_ph), at(5448, &SessionTail::runnings_reading, pair_layout),
    at(5456, &SessionTail::recorded_og_reading, pair_layout),
    at(5464, &SessionTail::actual_og_reading, pair_layout),
    at(5472, &SessionTail::actual_fg_reading, pair_layout),
    at(5480, &SessionTail::alcohol_reading, alcohol_reading_layout), at(5492, &SessionTail::reserved_5492));

} // namespace

std::size_t size_of_session_parts() {
    return fermentation_layout.size + log_layout.size + tail_layout.size;
}

void repair_recording(SessionDocument& session, const BrewDocument& document) {
    auto& tail = session.tail;
    if (tail.recorded_volume == 0) tail.recorded_volume = document.batch_size;
    if (tail.recorded_volume == 0) tail.recorded_volume = 1.0F;
    // Points in a gravity field: what an efficiency page without an actual gravity has always shown.
    if (tail.recorded_og == 0)
        tail.recorded_og = session.actual_og > 1.0F ? session.actual_og : document.og_points;
}

LoadResult load_session(const std::string& path, BrewDocument& document, SessionDocument& session,
                        const Settings& settings) {
    const auto file = read_file(path);
    return file ? read_session(*file, document, session, settings) : LoadResult::not_found;
}

bool save_session(const std::string& path, BrewDocument& document, const SessionDocument& session,
                  Prompts& prompts) {
    return save_document(path, session_bytes(document, session), document, prompts);
}

LoadResult read_session(ByteView file, BrewDocument& document, SessionDocument& session,
                        const Settings& settings) {
    auto fresh = new_session_recipe(settings);
    auto log = new_session(fresh);
    ByteReader reader(file);
    if (!read_opening(reader, fresh)) return LoadResult::damaged;
    reader.read(log.fermentation, fermentation_layout);
    read_texts(reader, fresh);
    reader.read(log, log_layout);
    log.sparge_gallons = narrow(log.sparge_quarts / 4.0);
    read_schedule(reader, fresh);
    reader.read(log.tail, tail_layout);
    bring_up_to_date(fresh);
    fresh.mash.tun_thermal_mass = settings.tun_thermal_mass;
    repair_recording(log, fresh);
    log.has_recipe = 1;
    document = std::move(fresh);
    session = log;
    return end_of(reader);
}

Bytes session_bytes(const BrewDocument& document, const SessionDocument& session) {
    Bytes file;
    append_opening(file, document);
    append(file, session.fermentation, fermentation_layout);
    append_texts(file, document);
    append(file, session, log_layout);
    append_schedule(file, document);
    append(file, session.tail, tail_layout);
    return file;
}

} // namespace wortlex
