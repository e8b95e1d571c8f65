// Which sheet labels are printed on, how many, and by how far each printer misses it.
#pragma once

#include "base/ports/prompts.h"
#include "base/text.h"
#include "forms/form.h"
#include "reports/label_printing.h"

#include <optional>

namespace wortlex {

/// How labels are printed: without a sheet, four blocks down the page.
struct LabelChoice {
    std::optional<std::string> sheet_name{};
    LabelRun run{common_label_sheets().front(), common_label_sheets().front().count(), 1};

    bool is_on_sheet() const { return sheet_name.has_value(); }
};

/// The work on it; nothing is written before `save`. All must outlive the form.
class LabelDesk {
public:
    /// `installed` are the printers; PDF files are added to them.
    LabelDesk(LabelChoice& label_choice, std::string folder, std::vector<std::string> installed,
              Prompts& asked);

    LabelChoice& choice;
    Prompts& prompts;
    LabelSettings settings;
    std::vector<std::string> printers; ///< the first one, without a name, stands for PDF files
    std::int32_t printer = 0;
    Text<64> own_name; ///< by which the sheet is to be kept

    /// As they are offered. 0: no sheet.
    std::vector<Live<std::string>> sheet_words() const;
    std::int32_t chosen() const;
    void choose(std::int32_t place);

    PrintShift shift() const;
    void set_shift(const PrintShift& shift);

    /// Puts the sheet among the brewer's own, who is asked before it takes the place of another; whether it
    /// stands there.
    bool keep_sheet();
    /// Whether the brewer's own ones hold the chosen sheet.
    bool is_own() const;
    /// Takes the chosen sheet out of the brewer's own, who is asked first; whether it is gone. It comes back
    /// where nothing is saved.
    bool remove_sheet();
    /// False, and told, where the labels would not lie on the paper.
    bool is_sound() const;
    void save();

private:
    const LabelSheet* sheet_at(std::int32_t place) const;
    std::string words_of(std::int32_t place) const;
    bool may_keep(const LabelSheet& sheet) const;

    std::string data_folder_;
};

/// `ruler` shows the page that tells how far a printer is off.
void label_form(Form& form, LabelDesk& desk, std::function<void()> ruler);

} // namespace wortlex
