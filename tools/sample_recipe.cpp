#include "base/number.h"
#include "sample_sources.h"

#include <algorithm>

namespace wortlex {
namespace {

// The one record that fits; `what` tells the author what was looked for.
template <class Record, class Fits>
const Record& find_one(const Database<Record>& database, const SourceValue& what, Fits fits) {
    const auto entries = database.entries();
    const auto found = std::find_if(entries.begin(), entries.end(), fits);
    if (found == entries.end())
        refuse(what.place, what.name + ": \"" + what.text + "\" is not in the database");
    if (std::find_if(found + 1, entries.end(), fits) != entries.end())
        refuse(what.place, what.name + ": \"" + what.text + "\" is in the database more than once");
    return *found;
}

// Whether a record's text is the one that a source names.
template <std::size_t N>
auto named(const SourceValue& value) {
    return [wanted = folded(value.windows1252(N))](const Text<N>& text) {
        return folded(text.view()) == wanted;
    };
}

std::string after(std::string_view word, const SourceValue& value) {
    return std::string(trimmed(std::string_view(value.text).substr(word.size())));
}

void read_style(KeyedFile& source, const Databases& databases, BrewDocument& document) {
    const auto value = source.find("style");
    if (!value) return;
    const auto parts = value->parts(2, 2);
    const auto book = parts[0].word<StyleBook>({{"AHA", StyleBook::aha}, {"BJCP", StyleBook::bjcp}});
    const auto& styles = book == StyleBook::aha ? databases.aha_styles : databases.bjcp_styles;
    const auto is_it = named<55>(parts[1]);
    document.style = find_one(styles, parts[1], [&](const StyleRecord& style) { return is_it(style.name); });
    const auto& style = document.style;
    document.target_ibu = truncate(style.min_ibu + (double{style.max_ibu} - style.min_ibu) / 2);
}

MaltUse malt_line(const SourceValue& value, const Databases& databases) {
    const auto parts = value.parts(3, 3);
    const auto is_name = named<55>(parts[1]), is_supplier = named<55>(parts[2]);
    const auto& record = find_one(databases.malts, parts[1], [&](const MaltRecord& malt) {
        return is_name(malt.name) && is_supplier(malt.supplier);
    });
    return new_malt_line(record, parts[0].number(0, 10000));
}

// Minutes, or the word of an addition outside the boil.
std::int16_t hop_time(const SourceValue& value, int boil_minutes) {
    constexpr int dry = -5;
    const auto word = folded(value.text);
    if (word == "dry") return dry;
    if (word == "first wort") return static_cast<std::int16_t>(boil_minutes + 1);
    if (word == "mash") return static_cast<std::int16_t>(boil_minutes + 2);
    return static_cast<std::int16_t>(value.whole(0, boil_minutes));
}

// AMOUNT | TIME | NAME | FORM, then an origin and "alpha PERCENT", each where it is needed.
HopUse hop_line(const SourceValue& value, int boil_minutes, const Databases& databases) {
    constexpr std::string_view alpha_word = "alpha ";
    auto parts = value.parts(4, 6);
    std::optional<float> alpha;
    if (parts.back().text.starts_with(alpha_word)) {
        alpha = SourceValue{value.place, "alpha", after(alpha_word, parts.back())}.number(0, 100);
        parts.pop_back();
    }
    const auto is_name = named<55>(parts[2]);
    const auto is_form = [&](const HopRecord& hop) {
        return folded(form_word(form(hop))) == folded(parts[3].text);
    };
    const auto is_origin = [&](const HopRecord& hop) {
        return parts.size() < 5 || named<55>(parts[4])(hop.origin);
    };
    const auto& record = find_one(databases.hops, parts[2], [&](const HopRecord& hop) {
        return is_name(hop.name) && is_form(hop) && is_origin(hop);
    });
    auto line = new_hop_line(record, boil_minutes, parts[0].number(0, 10000));
    line.alpha = alpha.value_or(record.alpha);
    line.boil_time = hop_time(parts[1], boil_minutes);
    return line;
}

ExtraUse extra_line(const SourceValue& value, const Databases& databases) {
    const auto parts = value.parts(2, 2);
    const auto is_name = named<55>(parts[1]);
    ExtraUse line;
    line.amount = parts[0].number(0, 10000);
    line.record =
        find_one(databases.extras, parts[1], [&](const ExtraRecord& extra) { return is_name(extra.name); });
    return line;
}

// By its laboratory and its catalog number, or its name where it has none.
YeastRecord yeast(const SourceValue& value, const Databases& databases) {
    const auto parts = value.parts(2, 2);
    const auto is_lab = named<55>(parts[0]), is_name = named<55>(parts[1]);
    const auto is_number = named<25>(parts[1]);
    return find_one(databases.yeasts, parts[1], [&](const YeastRecord& yeast) {
        return is_lab(yeast.lab) && (is_number(yeast.catalog_number) || is_name(yeast.name));
    });
}

Rest& rest_named(const SourceValue& name, SimpleMash& mash) {
    return mash.*name.word<Rest SimpleMash::*>({{"dough in", &SimpleMash::dough_in},
                                                {"acid", &SimpleMash::acid},
                                                {"protein", &SimpleMash::protein},
                                                {"intermediate", &SimpleMash::intermediate},
                                                {"saccharification", &SimpleMash::saccharification},
                                                {"mash out", &SimpleMash::mash_out},
                                                {"sparge", &SimpleMash::sparge}});
}

void read_simple_mash(KeyedFile& source, SimpleMash& mash) {
    if (const auto kind = source.find("mash"))
        mash.mash_kind = kind->word<MashKind>(
            {{"single step", MashKind::single_step}, {"multi step", MashKind::multi_step}});
    if (const auto quarts = source.find("dough-in water")) mash.dough_in_water = quarts->number(0, 10000);
    for (const auto& value : source.all("rest")) {
        const auto parts = value.parts(3, 3);
        rest_named(parts[0], mash) = {parts[1].whole(32, 212), parts[2].whole(1, 1000)};
    }
}

// NAME | HEAT | START | STOP | REST MINUTES | STEP MINUTES, then the temperature of what is infused or
// returned, and the thickness of a decoction.
MashStep mash_step(const SourceValue& value) {
    const auto parts = value.parts(6, 8);
    MashStep step;
    step.name = parts[0].stored_name<255>(18);
    step.heat_type = parts[1].word<StepHeat>(
        {{"infuse", StepHeat::infuse}, {"direct", StepHeat::direct}, {"decoction", StepHeat::decoction}});
    step.start_temperature = parts[2].whole(32, 212);
    step.stop_temperature = parts[3].whole(32, 212);
    step.rest_minutes = parts[4].whole(0, 1000);
    step.step_minutes = parts[5].whole(0, 1000);
    if (parts.size() > 6) step.infuse_temperature = parts[6].whole(32, 212);
    if (parts.size() > 7) step.ratio = parts[7].number(0, 10);
    return step;
}

void read_schedule(KeyedFile& source, BrewDocument& document) {
    constexpr std::size_t most_steps = 49; // as a schedule made by hand
    auto& mash = document.mash;
    document.mash_flags = static_cast<std::uint8_t>(ScheduleKind::simple);
    if (const auto name = source.find("schedule")) {
        document.mash_flags = static_cast<std::uint8_t>(ScheduleKind::complex);
        mash.mash_name = name->stored_name<255>(79);
        for (const auto& value : source.all("step")) {
            if (mash.used_steps().size() == most_steps) refuse(value.place, "is one step too many");
            const auto step = mash_step(value);
            if (mash.step_count == 0 && step.heat_type != StepHeat::infuse)
                refuse(value.place, "the first step is the dough-in, which infuses");
            mash.steps[static_cast<std::size_t>(mash.step_count++)] = step;
        }
        if (mash.step_count == 0) refuse(name->place, "the schedule has no steps");
    }
    if (const auto temperature = source.find("grain temperature"))
        mash.grain_temperature = temperature->whole(32, 212);
}

void read_figures(KeyedFile& source, BrewDocument& document) {
    document.title = source.require("title").stored_name<85>();
    document.recipe_kind =
        source.require("kind").word<RecipeKind>({{"all grain", RecipeKind::all_grain},
                                                 {"partial mash", RecipeKind::partial_mash},
                                                 {"extract", RecipeKind::extract}});
    if (const auto size = source.find("batch size")) document.batch_size = size->number(1, 100000);
    document.wort_size = document.batch_size;
    if (const auto percent = source.find("efficiency"))
        document.efficiency = narrow(percent->number(5, 100) / 100.0);
    if (const auto minutes = source.find("boil")) document.boil_minutes = minutes->whole(5, 500);
}

} // namespace

void read_recipe_keys(KeyedFile& source, const Databases& databases, BrewDocument& document) {
    read_figures(source, document);
    read_style(source, databases, document);
    for (const auto& value : source.all("malt")) document.malts.push_back(malt_line(value, databases));
    for (const auto& value : source.all("hop"))
        document.hops.push_back(hop_line(value, document.boil_minutes, databases));
    for (const auto& value : source.all("extra")) document.extras.push_back(extra_line(value, databases));
    if (const auto value = source.find("yeast")) document.yeast.record = yeast(*value, databases);
    if (const auto value = source.find("water")) {
        const auto is_name = named<27>(*value);
        document.water =
            find_one(databases.water, *value, [&](const WaterRecord& water) { return is_name(water.name); });
    }
    read_simple_mash(source, document.simple_mash);
    read_schedule(source, document);
    document.notes = stored_lines<4028>(source, "notes", 4026);
    document.awards = stored_lines<4028>(source, "awards", 4026);
}

} // namespace wortlex
