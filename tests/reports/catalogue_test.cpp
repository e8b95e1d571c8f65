#include "report_forms.h"
#include "reported_recipe.h"

#include "reports/file_names.h"
#include "reports/row_words.h"
#include "support/recording_desk.h"

#include <gmock/gmock.h>

#include <regex>

namespace wortlex {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string joined(const std::vector<ReportCell>& cells) {
    std::string all;
    for (const auto& cell : cells)
        all += (cell.is_label ? "<" : "[") + cell.text + (cell.is_figure ? "#]" : "]");
    return all;
}

TEST(RowWords, marks_end_cells_in_all_forms_but_that_of_text) {
    const std::tuple<const char*, ReportRow, std::string, std::string> rows[] = {
        {"blanks around a cell belong to the text form",
         {"\nSize (Gal):     |%8.2f    |Wort (Gal): |%6.2f\n", {5.0, 12.5}},
         "\nSize (Gal):         5.00    Wort (Gal):  12.50\n",
         "<Size (Gal):][5.00#]<Wort (Gal):][12.50#]"},
        {"nothing but a mark ends a cell",
         {"Left:  %8.0f %s - of: a  b\n\n", {75.0, "%"}},
         "Left:        75 % - of: a  b\n\n",
         "[Left:  75 % - of: a  b#]"},
        {"typed text is one cell, whatever is in it",
         {"Known for: |%s\n", {"ale:  %d 100% and | stout:"}},
         "Known for: ale:  %d 100% and | stout:\n",
         "<Known for:][ale:  %d 100% and | stout:]"},
        {"numbers with leading zeros are names, empty texts keep their place",
         {"%02d-%c  |%s|%s\n", {7, "C", "", ""}},
         "07-C  \n",
         "[07-C][][]"},
        {"a row that lacks a value", {"%d  |%s", {1}}, "1  ", "[1#][]"},
    };
    for (const auto& [why, row, text, cells] : rows) {
        EXPECT_EQ(text_words(row), text) << why;
        EXPECT_EQ(joined(row_cells(row)), cells) << why;
    }
}

SystemSettings precise_extract() {
    auto image = WriteDefaultSettings();
    image.sg_precision = 2;
    image.plato_precision = 1;
    image.view_actual_extract = 1;
    image.gravity_base = GravityBase::mass;
    image.HopFormula = HopFormulaCode::Tinseth;
    image.use_additional_utilization = 1;
    image.display_home_bittering = 1;
    image.bittering_unit = BitteringUnit::hbu;
    return image;
}

// The texts of a page's cells, a row a line.
std::string html_cells(const std::string& page) {
    const std::pair<const char*, const char*> steps[] = {
        {"\\s*\n\\s*", ""}, {"</TD>", "|"}, {"<BR>", "\n"}, {"</TR>|</TITLE>|<HR[^>]*>", "\n"},
        {"<[^>]*>", ""},    {"\n\n+", "\n"}};
    auto text = page;
    for (const auto& [what, with] : steps) text = std::regex_replace(text, std::regex(what), with);
    return text;
}

TEST(Catalogue, reads_as_it_always_has) {
    ReportedRecipe home(WriteDefaultSettings());
    expect_golden("home.txt", plain_lines(home.text()));
    expect_golden("home_html.txt", html_cells(home.html()));

    ReportedRecipe brewery(metric_brewery());
    brewery.document.mash_flags = 1;
    brewery.view.show_ibu = false;
    expect_golden("metric_brewery.txt", plain_lines(brewery.text()));
    EXPECT_THAT(brewery.html(), HasSubstr("Infuse<BR>Temp"));

    ReportedRecipe extract(precise_extract());
    extract.document.recipe_kind = RecipeKind::extract;
    extract.document.hops[3].boil_time = 500;
    extract.view.show_ibu = false;
    expect_golden("precise_extract.txt", plain_lines(extract.text()));
}

// The frame is 300 of the 445 pixels of the paper's 2400 dots, at the scale that was chosen.
TEST(Catalogue, the_chart_of_the_mash_ends_a_printed_recipe) {
    const auto width_at = [](float scale) {
        ReportedRecipe recipe(WriteDefaultSettings());
        recipe.wanted.scale = scale;
        const auto drawn = recipe.print();
        EXPECT_LT(drawn.find("Awards"), drawn.find("Wortlex Mash Schedule Chart"));
        std::smatch box;
        EXPECT_TRUE(std::regex_search(
            drawn, box, std::regex("pen FFFF00 \\d+ solid\nbrush none\nrectangle (\\d+),\\d+,(\\d+),")));
        return std::stoi(box[2]) - std::stoi(box[1]);
    };
    for (const auto& [scale, width] : {std::pair{1.0F, 1617}, {0.75F, 1213}, {0.5F, 808}, {0.25F, 404}})
        EXPECT_NEAR(width_at(scale), width, 3);
    ReportedRecipe extract(WriteDefaultSettings());
    extract.document.recipe_kind = RecipeKind::extract;
    EXPECT_THAT(extract.print(), testing::Not(HasSubstr("Mash Schedule Chart")));
}

TEST(Catalogue, closing_notes_name_the_scale_of_the_grain_list) {
    const auto note = [](auto change) {
        auto image = WriteDefaultSettings();
        change(image);
        return ReportedRecipe(image).text();
    };
    using Shown = PotentialDisplay;
    const std::pair<Shown, const char*> potentials[] = {
        {Shown::sg, "Potential represented as SG per pound per gallon.\r\n\r\n"},
        {Shown::points, "Potential represented as Points per pound per gallon.\r\n\r\n"},
        {Shown::hwe, "Potential represented as IOB - HWE.\r\n\r\n"},
        {Shown::percent_yield, "Potential represented as % Yield - Fine Grind As Is.\r\n\r\n"}};
    for (const auto& [display, words] : potentials)
        EXPECT_THAT(note([display = display](auto& image) {
                        image.potential_display = display;
                        image.yield_type = YieldType::fine_as_is;
                    }),
                    HasSubstr(words));
    const char* contributions[] = {"SG", "Points", "kg", "Plato", "% of Total Extract"};
    for (std::uint32_t i = 0; i < 5; ++i)
        EXPECT_THAT(note([&](auto& image) {
                        image.efficiency_method_setting = EfficiencyMethod::method_2;
                        image.extract_display = static_cast<ExtractDisplay>(i);
                        image.weight_units = Units::metric;
                    }),
                    HasSubstr("Exract represented as " + std::string(contributions[i]) + ".\r\n\r\n"));
}

TEST(Catalogue, an_empty_recipe_keeps_headings_titles_and_zeros) {
    ReportedRecipe recipe(WriteDefaultSettings());
    recipe.document = new_document(recipe.settings, ScheduleKind::simple);
    const auto text = plain_lines(recipe.text());
    EXPECT_THAT(text,
                HasSubstr("AHA Style and Style Guidelines\n------------------------------\n\n00  , \n\n"));
    EXPECT_THAT(text, HasSubstr("Hops\n----\n\n   Amount     Name  "));
    EXPECT_THAT(text, HasSubstr("Boil Time\n\nExtras\n------\n\n  Amount      Name  "));
    EXPECT_THAT(text, HasSubstr("Yeast\n-----\n\n  \n\nWater Profile\n"));
    EXPECT_THAT(text, HasSubstr("Awards\n------\n\n"));
    EXPECT_THAT(text, Not(HasSubstr("Mash Schedule")));
    EXPECT_THAT(recipe.html(), HasSubstr("<TITLE>A Wortlex Recipe</TITLE>"));
    EXPECT_THAT(recipe.print(), HasSubstr("\tAwards\n"));
}

TEST(Catalogue, switches_leave_what_every_report_has) {
    ReportedRecipe recipe(WriteDefaultSettings());
    recipe.wanted.sections.fill(0);
    std::vector<std::string> headings;
    for (const auto& section : recipe.report().sections) headings.push_back(section.heading);
    EXPECT_THAT(headings, testing::ElementsAre("", "Recipe Specifics", "Grain/Extract/Sugar", "Hops",
                                               "Extras", "Yeast"));
    recipe.wanted.sections[static_cast<std::size_t>(PrintSection::mash_schedule)] = 1;
    recipe.document.mash_flags = 1;
    recipe.document.mash.step_count = 0;
    EXPECT_THAT(plain_lines(recipe.text()),
                HasSubstr("Type     Temp     Amount  Ratio\n\n\nTotal Water Qts:           12.00 - After"));
}

TEST(Catalogue, a_simple_mash_tells_its_kind_and_the_rests_of_that_kind) {
    const std::pair<MashKind, const char*> kinds[] = {{MashKind::partial_mash, "Partial Mash"},
                                                      {MashKind::single_step, "Single Step"},
                                                      {MashKind::multi_step, "Multi Step"},
                                                      {MashKind::decoction, "Decoction"}};
    for (const auto& [kind, words] : kinds) {
        ReportedRecipe recipe(WriteDefaultSettings());
        auto& mash = recipe.document.simple_mash;
        mash.mash_kind = kind;
        mash.dough_in = mash.acid = mash.intermediate = mash.mash_out = {100, 5};
        const auto text = plain_lines(recipe.text());
        EXPECT_THAT(text, HasSubstr("Mash Type: " + std::string(words) + "\nGrain Lbs:    9.50\n"));
        EXPECT_THAT(text, HasSubstr("Dough In Temp:              100  Time:   5\n"));
        EXPECT_THAT(text, HasSubstr("Mash-out Rest Temp:         100  Time:   5\n"));
        for (const auto* rest : {"Acid Rest Temp:             100", "Protein Rest Temp:          122",
                                 "Intermediate Rest Temp:     100"})
            EXPECT_EQ(text.find(rest) == std::string::npos, kind == MashKind::single_step) << rest;
    }
}

TEST(Catalogue, print_has_words_of_its_own) {
    ReportedRecipe home(WriteDefaultSettings());
    EXPECT_THAT(home.print(), HasSubstr("Total Mash Volume Gal:\t3.76 - After Additioanl Infusions"));
    auto image = WriteDefaultSettings();
    image.volume_units = Units::metric;
    EXPECT_THAT(ReportedRecipe(image).print(), HasSubstr(" - After Additional Infusions"));

    ReportedRecipe brewery(metric_brewery());
    brewery.document.mash_flags = 1;
    brewery.view.show_ibu = false;
    const auto pages = brewery.print();
    EXPECT_THAT(pages, HasSubstr("Batch Size (hL):\t0.19\tWort Size (hL):\t0.19"));
    EXPECT_THAT(pages, HasSubstr("Tun Thermal Mass :\t  0.00"));
    EXPECT_THAT(pages, HasSubstr("Total Mash Volume hL:\t  0.14\t-After Additional Infusions"));
    // A unit is 3.75 dots, a letter 20: three figures that end at 202 and 252, from the margin at 168 on.
    EXPECT_THAT(pages, HasSubstr("[168,674,816,"));
    EXPECT_THAT(pages, HasSubstr("Maltose\t  5\t 20\t 63\t 62\tDecoc\t100\t"));
    EXPECT_THAT(pages, HasSubstr("\tDirect\t---\t-----\t----\n"));
}

PageJob printed(const DocumentReport& report) {
    RecordingPageDesk desk;
    desk.show({"", 1, [&](PageContext& page) { write_print(report, page); }});
    return std::move(desk.jobs.front());
}

TEST(Print, leaves_no_heading_alone_on_a_sheet) {
    for (int lines = 30; lines < 90; ++lines) {
        std::string notes;
        for (int line = 0; line < lines; ++line) notes += "word\n";
        DocumentReport report;
        report.sections = {section_of("Notes", ReportText(notes)), section_of("Awards", ReportText(""))};
        const auto job = printed(report);
        const auto last = texts_on(job, job.pages.size() - 1);
        EXPECT_THAT(last.back(), HasSubstr("Awards")) << lines;
        EXPECT_THAT(last, testing::Contains(HasSubstr("word"))) << lines;
    }
}

TEST(Print, parts_no_paragraph_and_leaves_no_row_of_a_list_alone) {
    for (int rows = 2; rows < 90; ++rows) {
        DocumentReport report;
        ReportTable list{{{"One\nTwo", 0, 0, 90}}, {}};
        list.rows.assign(static_cast<std::size_t>(rows), {"row\n", {}});
        const ReportLines paragraph{{}, {{"What follows:\n\n", {}}, {"line\n", {}}, {"line\n\n", {}}}};
        report.sections = {section_of("Steps", std::move(list), paragraph)};
        const auto job = printed(report);
        for (std::size_t page = 0; page < job.pages.size(); ++page) {
            const auto texts = texts_on(job, page);
            const auto count = [&](const char* word) {
                return std::count_if(texts.begin(), texts.end(),
                                     [word](const auto& text) { return text.ends_with(word); });
            };
            EXPECT_NE(count("row"), 1) << rows;
            EXPECT_EQ(count("line"), 2 * count("What follows:")) << rows;
        }
    }
}

TEST(Notes, end_their_lines_alike_whatever_they_came_with) {
    EXPECT_EQ(ReportText("a\nb\rc\r\n\n\rd").text(), "a\r\nb\r\nc\r\n\r\n\r\nd");
}

TEST(Catalogue, columns_stay_apart_in_every_form) {
    auto precise = WriteDefaultSettings();
    precise.sg_precision = 2;
    ReportedRecipe recipe(precise);
    recipe.document.malts[0].record.name.assign(std::string(54, 'W'));
    EXPECT_THAT(recipe.print(), HasSubstr("Min OG:\t1.04400\tMax OG:\t1.05000\n"));
    EXPECT_THAT(html_cells(recipe.html()),
                testing::ContainsRegex("Gravity:[|]1[.]05[0-9][0-9][0-9][|]SG[|]12[.]7[|]Plato[|]\n"));
    EXPECT_THAT(recipe.print(), testing::ContainsRegex("8.00 lbs.\tW+\tGermany\t"));
    EXPECT_THAT(recipe.print(), Not(HasSubstr(std::string(54, 'W'))));

    // Each table is 550 pixels wide; a cell takes 6 beside its own width.
    const auto page = recipe.html();
    const std::regex table("<TABLE[^>]*BORDERCOLOR[^]*?</TABLE>"), width("<TD WIDTH=\"(\\d+)\"|</TR>");
    for (std::sregex_iterator at(page.begin(), page.end(), table), end; at != end; ++at) {
        const auto text = at->str();
        int across = 0;
        for (std::sregex_iterator cell(text.begin(), text.end(), width); cell != end; ++cell) {
            const bool is_row_end = !(*cell)[1].matched;
            EXPECT_TRUE(!is_row_end || across == 0 || across == 550) << across << text;
            across = is_row_end ? 0 : across + std::stoi((*cell)[1]) + 6;
        }
    }
}

TEST(Catalogue, hostile_documents_come_out_in_every_form) {
    const float huge[] = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                          -1e38F, 3e38F};
    for (const float value : huge) {
        ReportedRecipe recipe(WriteDefaultSettings());
        auto& document = recipe.document;
        recipe.settings.sg_precision = recipe.settings.plato_precision = 0xFFFFFFFF;
        document.batch_size = document.wort_size = document.water.ph = document.simple_mash.dough_in_water =
            value;
        document.malts.assign(
            400, reported_malt("\x01\x1F\x7F\x81\xFF\t\r\n%s%n", "\n", MaltType{200}, value, value, value));
        document.hops.assign(400, reported_hop("\r", HopForm{9}, value, -32768));
        document.extras.assign(400, reported_extra("%d", 5, value, std::numeric_limits<int>::min()));
        for (auto& extra : document.extras) extra.record.time_place = TimePlace{255};
        document.notes.assign(std::string(5000, '\r') + std::string(3000, '\0'));
        document.mash_flags = static_cast<std::uint8_t>(std::isnan(value));
        document.mash.steps[1].infuse_temperature = std::numeric_limits<int>::max();
        EXPECT_THAT(recipe.text(), HasSubstr("%s%n"));
        EXPECT_THAT(recipe.print(), HasSubstr("Page 2"));
        EXPECT_THAT(recipe.html(), testing::EndsWith("</BODY>\n</HTML>\n"));
    }
}

TEST(FileNames, are_safe_in_addresses_only_for_html) {
    EXPECT_EQ(recipe_file_name("Who? Me *2", ReportOutput::report), "Who? Me *2");
    EXPECT_EQ(html_file_name(recipe_file_name("Who? Me *2", ReportOutput::report)), "Who__Me__2");
    EXPECT_EQ(recipe_file_name("Kölsch", ReportOutput::competition_form), "Comp_Kölsch");
    EXPECT_EQ(recipe_file_name("Kölsch", ReportOutput::competition_labels), "CompL_Kölsch");
}

} // namespace
} // namespace wortlex
