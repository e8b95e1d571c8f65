#include "water/salt_suggestion.h"

#include "water/salt_words.h"

namespace wortlex {
namespace {

void rate_lines(Rows& rows, const WaterAnalysis& analysis, const SaltProposal& proposal) {
    auto& grid = rows.grid("rates", {"Now", "Proposed"});
    for (std::size_t i = 0; i < salt_effects.size(); ++i) {
        auto& line = grid.line(plain_label(salt_words[i]));
        const std::string key = salt_words[i].key;
        line.shown_number(
            key + "_now", [&analysis, i] { return analysis.rate(salt_effects[i].salt); }, "%4.2f");
        line.shown_number(
            key + "_proposed", [&proposal, i] { return proposal.rates[i]; }, "%4.2f");
    }
}

void ion_lines(Rows& rows, const WaterAnalysis& analysis, const SaltProposal& proposal) {
    auto& grid = rows.grid("ions", {"Difference", "Remaining"});
    for (std::size_t i = 0; i < ions.size(); ++i) {
        auto& line = grid.line(ions[i].symbol);
        const std::string key = ions[i].key;
        line.shown_number(
            key + "_difference", [&analysis, i] { return analysis.difference.*ions[i].ppm; }, "%4.1f");
        line.shown_number(
            key + "_remaining", [&proposal, i] { return proposal.remaining[i]; }, "%4.1f");
    }
}

} // namespace

void salt_suggestion_form(Form& form, const WaterAnalysis& analysis, SaltSuggestion& suggestion) {
    const auto propose = [&analysis, &suggestion] {
        suggestion.proposal = propose_salts(analysis.difference, suggestion.with_chalk);
    };
    propose();
    rate_lines(form.group("Grams Per Gallon"), analysis, suggestion.proposal);
    form.rows()
        .check("with_chalk", {[&suggestion] { return suggestion.with_chalk; },
                              [&suggestion](bool wanted) { suggestion.with_chalk = wanted; }})
        .label("&With Chalk")
        .hint("Chalk hardly dissolves in water that is not sour")
        .changed(propose);
    form.rows().note("meaning", "OK takes the proposed rates, Cancel leaves yours.");
    form.next_column();
    ion_lines(form.group("ppm"), analysis, suggestion.proposal);
}

void take_proposal(WaterAnalysis& analysis, const SaltProposal& proposal) {
    for (std::size_t i = 0; i < salt_effects.size(); ++i)
        set_salt_rate(analysis, salt_effects[i], proposal.rates[i]);
}

} // namespace wortlex
