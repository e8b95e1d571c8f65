#include "documents/forms/extra_amount.h"

#include "base/windows1252.h"
#include "records/ingredients/amount_words.h"

#include <algorithm>

namespace wortlex {
namespace {

// Only weights are told; spoons, cups and pieces go without.
std::string amount_unit(AmountUnit unit) {
    if (unit > AmountUnit::pounds) return "";
    const auto& words = words_of(unit);
    return unit == AmountUnit::pounds ? words.dotted : words.full;
}

} // namespace

void extra_amount_form(Form& form, ExtraUse& line) {
    auto& rows = form.rows();
    rows.shown("name", [&line] { return utf8_from_windows1252(line.record.name.view()); })
        .label("Name:")
        .width(30);
    rows.number("amount", line.amount)
        .label("&Amount:")
        .range(0.0F, 2000.0F)
        .step(0.05F)
        .format("%5.2f")
        .unit(amount_unit(line.record.amount_unit))
        .changed([&line] { line.amount = std::clamp(line.amount, 0.0F, 2000.0F); }); // after a step beyond
    rows.integer("time", line.record.time)
        .label("&Time:")
        .range(0, 1000)
        .step(1)
        .unit(line.record.time_unit == TimeUnit::minutes ? "Minutes" : "Day(s)");
}

} // namespace wortlex
