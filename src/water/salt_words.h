// What the brewing salts are called, in the order of `salt_effects`: each place keeps the words that its
// users know.
#pragma once

#include "brewing/salts.h"

#include <string>

namespace wortlex {

struct SaltWords {
    const char* key;
    const char* label;        ///< of the calculator, with its mnemonic
    const char* totals_label; ///< of the quantities
    const char* quantity;     ///< name and formula on the page of quantities, a tab between them
    const char* head;         ///< of its line on the page of the match
    const char* legend;       ///< below that page
    const char* chart;        ///< below the printed chart; null: never listed there
};

inline constexpr std::array salt_words = {
    SaltWords{"gypsum", "&Gypsum (CaSO4)", "Gypsum (CaSO4)", "Gypsum\tCaSO4",
              "Gypsum:", "Gypsum:\tCaSO4\t(Calcium   + Sulfate)", "Gypsum (CaSO4)"},
    SaltWords{"epsom_salt", "&Epsom Salts (MgSO4)", "Espsom Salts (MgSO4)", "Epsom Salt\tMgSO4.",
              "Epsom Salt:", "Epsom Salt:\tMgSO4\t(Magnesium + Sulfate)", "Epsom Salt (MgSO4)"},
    SaltWords{"canning_salt", "&Canning Salt (NaCl)", "Canning Salt (NaCl)", "Canning Salt\tNaCl.",
              "Canning Salt:", "Canning Salt:\tNaCl\t(Sodium    + Chloride)", "Table Salt (NaCl)"},
    SaltWords{"baking_soda", "&Baking Soda (NaHCO3)", "Baking Soda (NaHCO3)", "Baking Soda\tNaHCO3.",
              "Baking Soda:", "Baking Soda:\tNaHCO3\t(Sodium    + Carbonate)", nullptr},
    SaltWords{"calcium_chloride", "Ca&lcium Chloride (CaCl2)", "Calcium Chloride (CaCl2)",
              "Calcium Chloride\tCaCl.", "Calcium Chlr:", "Calcium Chloride:\tCaCl\t(Calcium   + Chloride)",
              "Calcium Chloride (CaCl)"},
    SaltWords{"chalk", "Chal&k (CaCO3)", "Chalk (CaCO3)", "Chalk\tCaCO3.",
              "Chalk:", "Chalk:\tCaCO3\t(Calcium   + Carbonate)", "Chalk (CaCO3)"}};
/// As the calculator shows it, without the mnemonic.
inline std::string plain_label(const SaltWords& salt) {
    std::string label = salt.label;
    std::erase(label, '&');
    return label;
}

static_assert(salt_words.size() == salt_effects.size());

} // namespace wortlex
