#include "program/settings_forms/competition_settings.h"

namespace wortlex {
namespace {

constexpr std::size_t most_address_bytes = 1272;
constexpr std::size_t most_line_bytes = 252;

} // namespace

void competition_form(Form& form, CompetitionInfo& info, std::function<void()> help) {
    auto& rows = form.group("Additional Information For Competition Form Printouts");
    rows.text("address", info.address)
        .label("&Address:")
        .lines()
        .colours(ColorArea::entries)
        .limit(most_address_bytes)
        .width(40);
    const auto line = [&rows](const char* key, const char* label, Text<255>& text) {
        rows.text(key, text).label(label).limit(most_line_bytes).width(40);
    };
    line("daytime_phone", "&Daytime Phone:", info.daytime_phone);
    line("evening_phone", "&Evening Phone:", info.evening_phone);
    line("email", "E&mail Address:", info.email_address);
    line("club", "&Brew Club:", info.brew_club);
    form.group().button("help", "&Help", std::move(help));
    form.restore_on_cancel(info);
}

} // namespace wortlex
