#include "desktop/print_preview.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include "base/files.h"

#include <QComboBox>
#include <QLabel>
#include <QtTest/QTest>

namespace wortlex {
namespace {

struct PreviewDialog {
    SystemSettings settings = WriteDefaultSettings();
    ToolPositions positions;
    NoticeBoard notices;
    ScriptedPrompts prompts;
    ScriptedFiles files;
    PaperChoice paper;
    FolderSet folders;
    int runs = 0;
    PrintRequest request{"Recipe: \"Ale\"", 1, [this](PageContext& page) { write(page); }};
    PrintPreview preview;

    explicit PreviewDialog(std::deque<std::optional<std::string>> paths = {})
        : files(std::move(paths)),
          preview(request, {files, prompts, {positions, settings, notices}, folders, paper}, nullptr) {
        set_folder(folders, FolderKind::text_exports, "Exports");
        folders.save_automatically = 1;
        preview.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&preview));
    }
    void write(PageContext& page) {
        ++runs;
        page.SetHeader(0, "Wortlex Recipe Printout");
        for (int line = 0; line < 120; ++line) page.Line("a line");
    }
    QString place() { return qobject_cast<QLabel*>(&preview.widgets().field("place"))->text(); }
    bool is_enabled(const char* key) { return preview.widgets().field(key).isEnabled(); }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(&preview, key, with); }
};

TEST(PrintPreview, TurnsPagesAndTakesOtherPaper) {
    PreviewDialog dialog;
    EXPECT_EQ(dialog.place(), "Page 1 of 3"); // A4: 54 lines of 58 dots below the title
    EXPECT_FALSE(dialog.is_enabled("previous"));
    dialog.key(Qt::Key_PageDown);
    EXPECT_EQ(dialog.place(), "Page 2 of 3");
    dialog.key(Qt::Key_End);
    EXPECT_EQ(dialog.place(), "Page 3 of 3");
    EXPECT_FALSE(dialog.is_enabled("next"));
    dialog.key(Qt::Key_PageDown);
    EXPECT_EQ(dialog.place(), "Page 3 of 3");

    auto* const turn = qobject_cast<QComboBox*>(&dialog.preview.widgets().field("turn"));
    turn->setFocus();
    QTest::keyClick(turn, Qt::Key_Down);
    EXPECT_EQ(dialog.runs, 2);
    EXPECT_EQ(dialog.paper.turn, PaperTurn::landscape) << "kept for the next preview";
    EXPECT_EQ(dialog.place(), "Page 3 of 4");
    dialog.key(Qt::Key_Home);
    EXPECT_EQ(dialog.place(), "Page 1 of 4");
    dialog.key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.preview.isVisible());
}

TEST(PrintPreview, SavesPdfAlsoWhereThereIsNoPrinter) {
    const TemporaryFolder folder;
    PreviewDialog dialog({folder / "recipe.pdf"});
    EXPECT_FALSE(dialog.preview.widgets().field("print").toolTip().isEmpty())
        << "its key, or why it is disabled";
    dialog.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(dialog.files.offers.back(), "save PDF File (*.pdf)|*.pdf Exports/ Recipe_ _Ale_.pdf pdf");
    EXPECT_EQ(folder_path(dialog.folders, FolderKind::text_exports), folder.path());
    const auto file = read_file(folder / "recipe.pdf").value_or(Bytes{});
    const std::string text(reinterpret_cast<const char*>(file.data()), file.size());
    EXPECT_EQ(text.substr(0, 5), "%PDF-");
    EXPECT_NE(text.find("/Count 3"), std::string::npos);
}

TEST(PrintPreview, PrintsOnTheUsualPaperWithAFifthOfAnInchAround) {
    const auto before = QLocale();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(usual_paper(), (PaperChoice{PaperKind::letter, PaperTurn::portrait}));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(usual_paper(), (PaperChoice{PaperKind::a4, PaperTurn::portrait}));
    QLocale::setDefault(before);
    // 11 by 8.5 inches, 0.4 of them margins, at 300 dots.
    const auto paper = paper_of({PaperKind::letter, PaperTurn::landscape});
    EXPECT_EQ(paper.sheet, (Extent{3300, 2550}));
    EXPECT_NEAR(paper.area.width, 3180, 4);
    EXPECT_NEAR(paper.area.height, 2430, 4);
    EXPECT_NEAR(paper.top_offset, 60, 3);
    EXPECT_TRUE(paper.is_landscape);
}

} // namespace
} // namespace wortlex
