#include "documents/records/document_files.h"

#include "base/files.h"
#include "base/number.h"
#include "measures/gravity.h"

#include <cmath>

namespace wortlex {
namespace {

// The counts are those of the lists; only the file holds them beside.
struct ListCounts {
    std::int32_t hops = 0;
    std::int32_t malts = 0;
    std::int32_t extras = 0;
};

constexpr auto title_layout = layout<BrewDocument, 85>(at(0, &BrewDocument::title));

constexpr auto counts_layout =
    layout<ListCounts, 12>(at(0, &ListCounts::hops), at(4, &ListCounts::malts), at(8, &ListCounts::extras));

constexpr auto figures_layout = layout<BrewDocument, 1060>(
    at(0, &BrewDocument::wort_size), at(4, &BrewDocument::batch_size), at(8, &BrewDocument::og_points),
    at(12, &BrewDocument::total_ibu), at(16, &BrewDocument::efficiency), at(20, &BrewDocument::boil_minutes),
    at(24, &BrewDocument::target_ibu), at(28, &BrewDocument::recipe_kind),
    at(29, &BrewDocument::style, style_layout));

constexpr auto choices_layout = layout<BrewDocument, 757>(
    at(0, &BrewDocument::yeast, yeast_use_layout), at(473, &BrewDocument::water, water_layout),
    at(695, &BrewDocument::simple_mash, simple_mash_layout));

constexpr auto texts_layout = layout<BrewDocument, 8311>(
    at(0, &BrewDocument::notes), at(4028, &BrewDocument::awards), at(8056, &BrewDocument::reserved_text));

constexpr auto schedule_layout = layout<BrewDocument, 14868>(at(0, &BrewDocument::mash, complex_mash_layout),
                                                             at(14867, &BrewDocument::mash_flags));

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
    at(
        21138, [](auto& s) -> auto& { return s.infusions.heat_type; }),
    at(
        21139, [](auto& s) -> auto& { return s.infusions.reserved_bytes; }),
    at(
        21143, [](auto& s) -> auto& { return s.infusions.protein.temperature; }),
    at(
        21147, [](auto& s) -> auto& { return s.infusions.intermediate.temperature; }),
    at(
        21151, [](auto& s) -> auto& { return s.infusions.saccharification.temperature; }),
    at(
        21155, [](auto& s) -> auto& { return s.infusions.mash_out.temperature; }),
    at(
        21159, [](auto& s) -> auto& { return s.infusions.reserved_word; }),
    at(
        21163, [](auto& s) -> auto& { return s.infusions.protein.amount; }),
    at(
        21167, [](auto& s) -> auto& { return s.infusions.intermediate.amount; }),
    at(
        21171, [](auto& s) -> auto& { return s.infusions.saccharification.amount; }),
    at(
        21175, [](auto& s) -> auto& { return s.infusions.mash_out.amount; }),
    at(21179, &SessionDocument::wort_ph), at(21183, &SessionDocument::water_needs, water_needs_layout),
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

template <class Line, class LineLayout>
void read_lines(ByteReader& reader, std::int32_t count, std::vector<Line>& lines, const LineLayout& format) {
    lines.resize(static_cast<std::size_t>(count));
    for (auto& line : lines) reader.read(line, format);
}

template <class Line, class LineLayout>
void append_lines(Bytes& file, const std::vector<Line>& lines, const LineLayout& format) {
    for (const auto& line : lines) append(file, line, format);
}

bool fits(std::int32_t count, std::size_t line_size, std::size_t file_size) {
    return count >= 0 && static_cast<std::size_t>(count) <= file_size / line_size;
}

bool fits(const ListCounts& counts, std::size_t file_size) {
    return fits(counts.hops, hop_use_layout.size, file_size) &&
           fits(counts.malts, malt_use_layout.size, file_size) &&
           fits(counts.extras, extra_use_layout.size, file_size);
}

// What recipe and session files share: all up to the simple mash. False for a damaged file.
bool read_opening(ByteReader& reader, BrewDocument& document) {
    const auto file_size = reader.rest().size();
    ListCounts counts;
    reader.read(document, title_layout);
    reader.read(counts, counts_layout);
    if (!fits(counts, file_size)) return false;
    reader.read(document, figures_layout);
    read_lines(reader, counts.hops, document.hops, hop_use_layout);
    read_lines(reader, counts.malts, document.malts, malt_use_layout);
    read_lines(reader, counts.extras, document.extras, extra_use_layout);
    reader.read(document, choices_layout);
    return true;
}

void append_opening(Bytes& file, const BrewDocument& document) {
    const ListCounts counts{static_cast<std::int32_t>(document.hops.size()),
                            static_cast<std::int32_t>(document.malts.size()),
                            static_cast<std::int32_t>(document.extras.size())};
    append(file, document, title_layout);
    append(file, counts, counts_layout);
    append(file, document, figures_layout);
    append_lines(file, document.hops, hop_use_layout);
    append_lines(file, document.malts, malt_use_layout);
    append_lines(file, document.extras, extra_use_layout);
    append(file, document, choices_layout);
}

// Re-bases the yields on the potential and keeps the old difference. A line without a coarse yield is
// older than these fields.
void update_yields(MaltRecord& malt) {
    if (malt.coarse_yield != 0) {
        const float fine = yield_from_sg(malt.potential);
        const double difference = std::abs(double{malt.fine_yield} - malt.coarse_yield);
        malt.coarse_yield = narrow(fine - difference);
        malt.fine_yield = fine;
    } else {
        malt.moisture = 4.0F;
        malt.fine_yield = narrow(narrow((malt.potential - 1.0) * 1000) / sucrose_points_default * 100);
        malt.coarse_yield = narrow(malt.fine_yield - 1.5);
    }
}

void bring_up_to_date(BrewDocument& document) {
    if (document.simple_mash.mash_kind == MashKind::none)
        document.simple_mash.mash_kind = MashKind::single_step;
    document.file_efficiency_mode = document.mash_flags >> 4;
    document.mash_flags &= 0x0F;
    for (auto& line : document.malts) update_yields(line.record);
}

std::uint8_t packed_flags(const BrewDocument& document) {
    return static_cast<std::uint8_t>((document.file_efficiency_mode << 4 & 0xF0) |
                                     (document.mash_flags & 0x0F));
}

void append_schedule(Bytes& file, const BrewDocument& document) {
    append(file, document, schedule_layout);
    file.back() = static_cast<std::byte>(packed_flags(document));
}

// Values that later divisions rely on.
void repair_recording(SessionDocument& session, const BrewDocument& document) {
    auto& tail = session.tail;
    if (tail.recorded_volume == 0) tail.recorded_volume = document.batch_size;
    if (tail.recorded_volume == 0) tail.recorded_volume = 1.0F;
    // Points in a gravity field: what an efficiency page without an actual gravity has always shown.
    if (tail.recorded_og == 0)
        tail.recorded_og = session.actual_og > 1.0F ? session.actual_og : document.og_points;
}

constexpr std::string_view write_error =
    "Wortlex has experienced an error in writing this file.\n\nPossible reasons include:\n\n"
    "a) The file has somehow been tagged as read-only by the system.\n\n"
    "b) The file has become corrupted by other means.\n\n"
    "If the file has been transferred over a network and saved by a \n"
    "different program, it is very likely it has been tagged as read-only.\n\n"
    "It is suggested you try and save the file under a different name.";

bool save(const std::string& path, const Bytes& file, BrewDocument& document, Prompts& prompts) {
    if (!save_atomically(path, file)) {
        prompts.tell({.text = write_error, .icon = Icon::warning});
        return false;
    }
    document.mash_flags = packed_flags(document);
    return true;
}

} // namespace

std::string load_message(LoadResult result, const std::string& path) {
    switch (result) {
    case LoadResult::not_found:
        return std::string(file_not_found);
    case LoadResult::damaged:
        return "The file " + path + " is damaged or is no Wortlex document. It was not opened.";
    case LoadResult::incomplete:
        return "The file " + path + " ended early. What is missing was left empty.";
    case LoadResult::loaded:
        break;
    }
    return {};
}

LoadResult load_recipe(const std::string& path, BrewDocument& document, const Settings& settings) {
    const auto file = read_file(path);
    return file ? read_recipe(*file, document, settings) : LoadResult::not_found;
}

LoadResult load_session(const std::string& path, BrewDocument& document, SessionDocument& session,
                        const Settings& settings) {
    const auto file = read_file(path);
    return file ? read_session(*file, document, session, settings) : LoadResult::not_found;
}

bool save_recipe(const std::string& path, BrewDocument& document, Prompts& prompts) {
    return save(path, recipe_bytes(document), document, prompts);
}

bool save_session(const std::string& path, BrewDocument& document, const SessionDocument& session,
                  Prompts& prompts) {
    return save(path, session_bytes(document, session), document, prompts);
}

LoadResult read_recipe(ByteView file, BrewDocument& document, const Settings& settings) {
    auto fresh = new_document(settings, static_cast<ScheduleKind>(document.mash_flags & 0x0F));
    ByteReader reader(file);
    if (!read_opening(reader, fresh)) return LoadResult::damaged;
    reader.read(fresh, texts_layout);
    reader.read(fresh, schedule_layout);
    bring_up_to_date(fresh);
    document = std::move(fresh);
    return reader.complete() ? LoadResult::loaded : LoadResult::incomplete;
}

LoadResult read_session(ByteView file, BrewDocument& document, SessionDocument& session,
                        const Settings& settings) {
    auto fresh = new_session_recipe(settings);
    auto log = new_session(fresh);
    ByteReader reader(file);
    if (!read_opening(reader, fresh)) return LoadResult::damaged;
    reader.read(log.fermentation, fermentation_layout);
    reader.read(fresh, texts_layout);
    reader.read(log, log_layout);
    log.sparge_gallons = narrow(log.sparge_quarts / 4.0);
    reader.read(fresh, schedule_layout);
    reader.read(log.tail, tail_layout);
    bring_up_to_date(fresh);
    fresh.mash.tun_thermal_mass = settings.tun_thermal_mass;
    repair_recording(log, fresh);
    document = std::move(fresh);
    session = log;
    return reader.complete() ? LoadResult::loaded : LoadResult::incomplete;
}

Bytes recipe_bytes(const BrewDocument& document) {
    Bytes file;
    append_opening(file, document);
    append(file, document, texts_layout);
    append_schedule(file, document);
    return file;
}

Bytes session_bytes(const BrewDocument& document, const SessionDocument& session) {
    Bytes file;
    append_opening(file, document);
    append(file, session.fermentation, fermentation_layout);
    append(file, document, texts_layout);
    append(file, session, log_layout);
    append_schedule(file, document);
    append(file, session.tail, tail_layout);
    return file;
}

} // namespace wortlex
