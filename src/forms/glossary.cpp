#include "forms/glossary.h"

#include <array>

namespace wortlex {
namespace {

struct Word {
    std::string_view word, meaning;
};

// "Brix Correction" before "Brix": the first found counts.
constexpr std::array words = {
    Word{"IBU", "International Bitterness Units: milligrams of bitter acids in a liter of beer"},
    Word{"HBU", "Home Bittering Units: ounces of hops times their alpha acid in percent"},
    Word{"MBU", "Metric Bittering Units: grams of hops times their alpha acid in percent"},
    Word{"Brix Correction", "How much more than true Plato a refractometer shows in wort, about 1.04"},
    Word{"SG", "Specific gravity: how much denser than water"},
    Word{"BU:GU", "IBU for each point of gravity: about 0.5 is balanced, more is bitter"},
    Word{"ABV", "Alcohol by volume, from the original and the final gravity"},
    Word{"OG", "Original gravity: the specific gravity before fermentation"},
    Word{"FG", "Final gravity: the specific gravity after fermentation"},
    Word{"Plato", "Grams of extract in 100 grams of wort"},
    Word{"Brix", "Grams of sugar in 100 grams of solution, nearly the same as Plato"},
    Word{"Zeiss", "The scale of an immersion refractometer"},
    Word{"RI", "Refractive index: how strongly the wort bends light"},
    Word{"SRM", "Standard Reference Method: the color of beer, 2 is pale and 40 black"},
    Word{"EBC", "European Brewery Convention: the color of beer, about twice the number of SRM"},
    Word{"Lovibond", "The color of a malt on the scale of SRM"},
    Word{"CLR", "The color of the beer in the glass"},
    Word{"pppg", "Points of gravity that a pound yields in a gallon: 37 make 1.037"},
    Word{"HWE", "Hot water extract: liter degrees a kilogram"},
    Word{"DME", "Dry malt extract"},
    Word{"PH", "Acidity: below 7 is sour, a mash is best at 5.2 to 5.6"},
    Word{"CaCO3", "Calcium carbonate, by which hardness and alkalinity are measured"},
    Word{"HCO3", "Bicarbonate, which raises the pH of a mash"},
    Word{"ppm", "Parts per million: milligrams in a liter"},
    Word{"Alpha Acid", "The part of the hop that makes beer bitter"},
    Word{"Alpha", "Of hops, the acid that makes beer bitter; of a color, how opaque it is"},
    Word{"Noble", "One of the classic European aroma hops"},
    Word{"Efficiency", "How much of the extract in the grain comes into the kettle"},
    Word{"Thermal Mass", "The heat that the mash tun takes up, as pounds of water"},
    Word{"Heat Capacity", "The heat that malt takes up against that of water, about 0.4"},
    Word{"Absorption", "Water that the grain keeps back"},
    Word{"Strike", "The hot water that the grain is stirred into"},
    Word{"Decoction", "A part of the mash that is boiled and brought back to heat the rest"},
    Word{"Shrinkage", "Hot wort loses volume as it cools, about 4 %"},
    Word{"Evaporation", "Water that boils off in an hour"},
    Word{"Utilization", "How much of the bitter acids comes from the hops into the beer"},
    Word{"First Wort", "Hops that go into the kettle before the wort is run in"},
    Word{"Mash Hopping", "Hops that go into the mash"},
    Word{"Concentration Factor", "More than 1 where the wort is boiled thicker than the batch"},
    Word{"Kettle Size", "Bigger kettles draw more bitterness from the hops"},
    Word{"Attenuation", "How much of the extract the yeast ferments"},
    Word{"Flocculation", "How well the yeast sinks after its work"},
    Word{"Sucrose", "Plain sugar: a pound in a gallon makes 46.21 points of gravity"},
    Word{"Moisture", "Water in the malt, which yields no extract"},
    Word{"Method #1", "Gravity from the potential of each malt, times the efficiency"},
    Word{"Method #2", "Gravity from the weight of the grain, times the efficiency; potentials play no role"},
    Word{"Boil Time", "Minutes that the wort boils"},
    Word{"FG/CG", "What finely ground malt yields more than coarsely ground"},
    Word{"Must Mash", "Gives its extract only in a mash, as flaked grain does"},
    Word{"Batch Size", "The beer that goes into the fermenter"},
    Word{"Wort Size", "The wort in the kettle at the end of the boil"},
    Word{"JPG", "A picture file"},
    Word{"CO2", "Carbon dioxide, which makes beer sparkle"},
};

bool is_letter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool has_word(std::string_view caption, std::string_view word) {
    for (auto at = caption.find(word); at != std::string_view::npos; at = caption.find(word, at + 1)) {
        const auto end = at + word.size();
        if ((at == 0 || !is_letter(caption[at - 1])) && (end == caption.size() || !is_letter(caption[end])))
            return true;
    }
    return false;
}

} // namespace

std::string_view meaning_of(std::string_view caption) {
    for (const auto& [word, meaning] : words)
        if (has_word(caption, word)) return meaning;
    return {};
}

} // namespace wortlex
