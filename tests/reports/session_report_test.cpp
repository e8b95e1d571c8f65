#include "reported_session.h"

#include "report_forms.h"
#include "reports/file_names.h"
#include "reports/session_pages.h"
#include "support/recording_desk.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(SessionReport, ReadsAsItDid) {
    ReportedSession home(WriteDefaultSettings());
    home.document.hops.resize(2);
    home.document.extras.resize(1);
    expect_golden("session.txt", plain_lines(home.text()));

    auto image = metric_brewery();
    image.date_format = DateFormat::day_name_year;
    ReportedSession brewery(image);
    brewery.document.mash_flags = 1;
    brewery.session.bottling.used = {0, 0, 1};
    brewery.session.fermentation.secondary_days = 14;
    expect_golden("session_metric_brewery.txt", plain_lines(brewery.text()));
}

TEST(SessionReport, AnExtractBrewHasNoMashAndNoEfficiency) {
    ReportedSession session(WriteDefaultSettings());
    session.document.recipe_kind = RecipeKind::extract;
    session.session.water_needs.top_up = 6;
    const auto text = plain_lines(session.text());
    EXPECT_THAT(text, HasSubstr("Actual Mash System Efficiency: 0 %\n"));
    EXPECT_THAT(text, HasSubstr("Actual Points From Mash:       0.00\n"));
    EXPECT_THAT(text, HasSubstr("Sparge Amount:    0.00\n"));
    EXPECT_THAT(text, HasSubstr("Amount into Kettle:    6.00\n"));
    EXPECT_THAT(text, HasSubstr("Adjust Sparge Water - 0.00 Gallons (0.00 Quarts) with:\n"));
    const auto opened = session.recalculated();
    const auto page_of_water = session_page(SessionPrint::water_needed, session.source(opened));
    EXPECT_THAT(
        printed_lines({"", 1, [&](PageContext& page) { write_print(page_of_water, page); }}),
        testing::IsSupersetOf({"Water Needed For Brewing Session Printout",
                               "Sparge Amount:\t0.00\tSparge Deadspace:\t0.00\tTotal Into Mash:\t  0.00",
                               "\t\tAmount into Kettle:\t\t\t6.00"}));
}

TEST(SessionReport, WithAllSwitchesOffLeavesWhatEveryReportHas) {
    ReportedSession session(WriteDefaultSettings());
    session.wanted.sections.fill(0);
    const auto opened = session.recalculated();
    std::vector<std::string> headings;
    for (const auto& section : document_report(session.source(opened), session.wanted).sections)
        headings.push_back(section.heading);
    EXPECT_THAT(headings, testing::ElementsAre("", "Recipe Specifics", "Grain/Extract/Sugar", "Hops",
                                               "Extras", "Yeast"));
    EXPECT_THAT(session.text(ReportPart::recipe),
                testing::AllOf(HasSubstr("A Wortlex Brewing Session - Recipe Details Report"),
                               Not(HasSubstr("Actual OG"))));
}

TEST(Competition, FormAndLabelsReadAsTheyDid) {
    ReportedSession session(WriteDefaultSettings());
    session.document.hops.clear();
    session.document.extras.clear();
    session.contact.address.assign("1 Mash Lane\r\nGrist");
    session.contact.email_address.assign("a@b.example");
    session.texts.name.assign("Spring Cup");
    expect_golden("competition_form.txt", plain_lines(session.form_text()));
    expect_golden("competition_labels.txt", plain_lines(session.label_text()));
}

TEST(Competition, LeavesOutWhatIsNotTold) {
    ReportedSession session(WriteDefaultSettings());
    session.session.head_brewer.assign("");
    session.texts.style.assign("7C, dark");
    session.session.bottling.used = {};
    session.session.infusions.heat_type = SimpleHeat::direct;
    const auto form = plain_lines(session.form_text());
    EXPECT_THAT(form, testing::StartsWith("Wortlex Competition Form Printout\n"));
    EXPECT_THAT(form, HasSubstr("Competition Style: 7C, dark\n\nSubmitted By:\n-------------\nTom\n\n"
                                "AHA Style\n--------------\n07-C  "));
    EXPECT_THAT(form, HasSubstr("Qts Water Per Lbs Grain: 1.26\n"));
    EXPECT_THAT(form, testing::AllOf(Not(HasSubstr("Bottling")), Not(HasSubstr("Generated"))));
    EXPECT_THAT(plain_lines(session.label_text()), Not(HasSubstr("AHA Style")));
    session.texts.style.assign("");
    session.document.style = {};
    EXPECT_THAT(plain_lines(session.label_text()), HasSubstr("---\n\nRecipe Name:"));
    EXPECT_THAT(plain_lines(session.form_text()), HasSubstr("AHA Style\n--------------\n00  , \n\n"));
}

TEST(Competition, APrintedFormBeginsAsItsText) {
    ReportedSession session(WriteDefaultSettings());
    const auto first_lines = [&] {
        const auto opened = session.recalculated();
        const auto report = competition_report(session.source(opened), session.entry(), session.wanted);
        const auto lines = printed_lines({"", 1, [&](PageContext& page) { write_print(report, page); }});
        return std::vector(lines.begin(), lines.begin() + 3);
    };
    EXPECT_THAT(first_lines(), testing::ElementsAre("Wortlex Competition Form Printout", HasSubstr("Page 1"),
                                                    "Submitted By:"));
    session.texts.name.assign("Spring Cup");
    EXPECT_THAT(first_lines(), testing::ElementsAre("Spring Cup - Entry Form", HasSubstr("Page 1"),
                                                    HasSubstr("Wortlex Competition Form Printout")));
}

TEST(SessionReport, AGravityThatNoWortHasHasNoPlato) {
    ReportedSession session(WriteDefaultSettings());
    session.session.actual_og = 100;
    EXPECT_THAT(session.text(), HasSubstr("Actual OG:  100.000   Plato:               --\r\n"));
}

TEST(FileNames, OfSessionsHoldTheDayThatThereWas) {
    auto image = WriteDefaultSettings();
    auto settings = settings_from(image);
    SessionDocument session;
    set_brew_date(session, {5, 3, 2001});
    const auto name = [&](const char* title, ReportOutput output) {
        return session_file_name(title, session, output, settings);
    };
    EXPECT_EQ(name("Ale", ReportOutput::report), "03-05-2001_Ale");
    EXPECT_EQ(name("", ReportOutput::competition_form), "03-05-2001");
    EXPECT_EQ(session_pages_name("Ale", session), "Ale - session 2001-03-05");
    settings.session_name_before_date = 1;
    settings.date_format = DateFormat::day_name_year;
    EXPECT_EQ(name("Ale", ReportOutput::competition_labels), "CompL_Ale_05-Mar-2001");
    session.brew_month = 13;
    EXPECT_EQ(name("Ale", ReportOutput::report), "Ale");
    EXPECT_EQ(proposed_file("a/\"b\"", "txt"), "a__b_.txt");
    std::string umlauts;
    for (int i = 0; i < 200; ++i) umlauts += "\u00E4";
    EXPECT_EQ(proposed_file(umlauts, "txt").size(), 254U) << "no half character";
}

} // namespace
} // namespace wortlex
