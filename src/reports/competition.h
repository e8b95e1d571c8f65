// What a brewer enters a beer in a competition with: the entry form and the labels of the bottles.
#pragma once

#include "documents/live_document.h"
#include "page/page.h"
#include "page/text_sink.h"
#include "reports/report.h"
#include "reports/report_source.h"

namespace wortlex {

/// Beside the beer: who submits it, and where.
struct CompetitionEntry {
    const CompetitionTexts& texts;
    const CompetitionInfo& contact;
    const SessionDocument& session; ///< whose brewers submit it, those of a recipe too
};

/// "Who and who", or the one that there is.
std::string submitters(const CompetitionEntry& entry);

/// Club, address, a row a line, telephones and mail.
struct ContactRows {
    bool keeps_empty = false;   ///< else what is empty is left out
    bool parts_address = false; ///< by a blank line
};
std::vector<ReportRow> contact_rows(const CompetitionEntry& entry, ContactRows how = {});

/// The entry form: a shortened report, with the sections that `wanted` asks for among those that it can hold.
DocumentReport competition_report(const ReportSource& source, const CompetitionEntry& entry,
                                  const PrintSelection& wanted);

/// One label as rows of a label and what it tells. With `keeps_empty` also those without anything to tell.
std::vector<ReportRow> label_rows(const ReportSource& source, const CompetitionEntry& entry,
                                  bool keeps_empty = false);

/// Four times the same label.
void write_labels_text(const std::vector<ReportRow>& label, TextSink& sink);
void write_labels_print(const std::vector<ReportRow>& label, PageContext& page);
HtmlWriter write_labels_html(const std::vector<ReportRow>& label, const HtmlTheme& theme);

/// At which labels are printed that fit.
inline constexpr float label_scale = 0.75F;

} // namespace wortlex
