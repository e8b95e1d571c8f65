#include "windows/documents/document_designer_window.h"

#include "base/number.h"
#include "desktop/captions.h"
#include "mash/session_mash_rows.h"
#include "program/program.h"
#include "windows/calculators/gravity_dialogs.h"
#include "windows/documents/document_keys.h"
#include "windows/documents/session_log.h"
#include "windows/documents/simple_mash_printout.h"

#include <QGroupBox>
#include <QLabel>

#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view step_name = "Mash Schedule";

Opener opener_of(const OpenDocument& open) {
    return kind_of(open) == DocumentKind::session ? Opener::session : Opener::recipe;
}

const WindowInfo& info_of(const OpenDocument& open) {
    return window_info(kind_of(open) == DocumentKind::session ? "BATCHSTEPMASHDETAIL"
                                                              : "RECIPESTEPMASHDETAIL");
}

DocumentDesignerWindow::Backup backup_of(const OpenDocument& open, const LiveDocument& live) {
    return {open.document.mash, open.document.simple_mash.dough_in_water, live.water_to_grain,
            open.session == nullptr ? MashLog{} : mash_log(*open.session)};
}

void put_back(const DocumentDesignerWindow::Backup& backup, const OpenDocument& open, LiveDocument& live) {
    open.document.mash = backup.mash;
    open.document.simple_mash.dough_in_water = backup.dough_in_water;
    live.water_to_grain = backup.water_to_grain;
    if (open.session != nullptr) {
        open.session->wort_ph = backup.log.wort_ph;
        open.session->runnings_sg = backup.log.runnings_sg;
        open.session->tail.runnings_reading = backup.log.runnings_reading;
    }
    mash_refresh(open);
}

// The document has what the designer has, from one keystroke to the next.
MashOwner owner_of(RecipeEditor& editor, LiveDocument& live) {
    const auto side =
        kind_of(editor.open) == DocumentKind::session ? DesignerSide::session : DesignerSide::recipe;
    return {.side = side,
            .grain = [&editor] { return editor.open.figures.mash_grain; },
            .told =
                [&editor, &live](const MashDesign& design, float ratio) {
                    editor.open.document.mash = design.mash;
                    editor.open.document.simple_mash.dough_in_water = design.dough_in_water;
                    live.water_to_grain = ratio;
                    mash_refresh(editor.open);
                    tell_change(editor);
                }};
}

} // namespace

DocumentDesignerWindow::DocumentDesignerWindow(const WindowPorts& ports, RecipeEditor& editor,
                                               MashDesigner designer, Backup backup,
                                               DocumentDesignerCalls calls, QWidget* origin)
    : DesignerWindow(ports, info_of(editor.open), opener_of(editor.open), origin, std::move(designer)),
      editor_(editor), backup_(backup), calls_(std::move(calls)), steps_seen_(editor.history.taken()),
      ending_(*this, ports.prompts) {
    take_wort();
    begin([this](Form& form) { add_wort(form); }, [this] { revert(); });
    add_save_key(*this, [this] { calls_.save(); });
    auto* const ok = end_button("ok", tr("&OK"), tr("Keeps the schedule"));
    add_ok_keys(*this, *ok);
    connect(ok, &QPushButton::clicked, this, [this] { ending_.close_by(PageEnd::ok); });
    auto* const cancel = end_button("cancel", tr("Cancel"), tr("Puts back the schedule as it was"));
    connect(cancel, &QPushButton::clicked, this, [this] { ending_.close_by(PageEnd::cancel); });
    opened_ = backup_of(editor.open, ports.program.document);
}

QPushButton* DocumentDesignerWindow::end_button(const char* name, const QString& caption,
                                                const QString& meaning) {
    auto* const button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    set_tip(*button, meaning);
    buttons().addWidget(button);
    return button;
}

void DocumentDesignerWindow::add_wort(Form& form) {
    auto* const session = editor_.open.session;
    if (session == nullptr) return;
    const auto correct = [this] {
        if (const auto sg = correct_gravity(ports(), this, wort_.runnings.sg, HydrometerUse::mash))
            wort_.runnings = of_sg(*sg);
    };
    const auto measure = [this, session] {
        if (const auto sg = measure_raw_wort(ports(), this, RefractometerUse::runnings, wort_.runnings.sg,
                                             session->tail.runnings_reading, printed_session(editor_.open)))
            wort_.runnings = of_sg(*sg);
    };
    const auto hand_over = [this, session] {
        session->wort_ph = wort_.wort_ph;
        session->runnings_sg = wort_.runnings.sg;
        tell_change(editor_);
    };
    const auto then = [hand_over](const std::function<void()>& measured) {
        return [measured, hand_over] {
            measured();
            hand_over();
        };
    };
    wort_rows(form.group("Wort"), wort_, then(correct), then(measure));
    form.after_edit([hand_over](const Row& row) {
        if (row.key == "wort_ph" || row.key == "runnings_sg" || row.key == "runnings_plato") hand_over();
    });
}

QWidget* DocumentDesignerWindow::added_part() {
    if (editor_.open.session == nullptr) return nullptr;
    auto* const grid = new QGridLayout;
    add_field(*grid, widgets(), "wort_ph", 0, 0);
    grid->addWidget(new QLabel(tr("Runnings Stopped At:")), 1, 0, 1, 2);
    int line = 2;
    for (const auto& [key, word] :
         {std::pair("runnings_sg", tr("SG")), std::pair("runnings_plato", tr("Plato"))}) {
        auto* const label = new QLabel(word);
        auto& field = widgets().field(key);
        label->setBuddy(&field);
        field.setAccessibleName(tr("Runnings Stopped At") + QLatin1Char(' ') + word);
        grid->addWidget(label, line, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(&field, line++, 1);
    }
    auto* const measured = new QHBoxLayout;
    for (const auto* const key : {"correct_gravity", "measure_runnings"})
        measured->addWidget(&widgets().field(key));
    grid->addLayout(measured, line, 0, 1, 2);
    auto* const box = new QGroupBox(tr("Wort"));
    box->setAccessibleName(box->title());
    box->setLayout(grid);
    return box;
}

void DocumentDesignerWindow::take_wort() {
    const auto* const session = editor_.open.session;
    if (session == nullptr) return;
    wort_.wort_ph = session->wort_ph;
    if (wort_.runnings.sg != session->runnings_sg) wort_.runnings = of_sg(session->runnings_sg);
}

void DocumentDesignerWindow::follow(Change change) {
    if (is_closing_ || change != Change::document) return;
    if (chosen_schedule(editor_.open.document) == ScheduleKind::simple) return dismiss(); // undone beneath it
    take_wort();
    follow_document();
}

// What has become a step of the document is undone there.
void DocumentDesignerWindow::follow_document() {
    const auto& document = editor_.open.document;
    if (steps_seen_ == editor_.history.taken()) return;
    steps_seen_ = editor_.history.taken();
    if (wortlex::follow_document(designer(), document.mash, document.simple_mash.dough_in_water))
        editor_.history.settle(editor_.open);
}

void DocumentDesignerWindow::travel(Travel travel) {
    if (can_travel(travel)) return DesignerWindow::travel(travel);
    travel == Travel::undo ? undo(editor_) : redo(editor_);
}

PrintRequest DocumentDesignerWindow::printout() const {
    return complex_mash_printout(editor_.open, ports().program.color_table);
}

void DocumentDesignerWindow::keep() {
    backup_ = opened_ = backup_of(editor_.open, ports().program.document);
}

void DocumentDesignerWindow::revert() {
    const auto revert = calls_.revert; // a copy: closing may end this window
    ending_.close_by(PageEnd::ok);
    revert();
}

// On a copy that has what there was, worked out for the grain of now: that is no change of this page.
bool DocumentDesignerWindow::has_changes() const {
    auto copy = ports().program.document;
    const auto open = view_of(copy, ports().program.settings);
    put_back(opened_, open, copy);
    return backup_of(open, copy) != backup_of(editor_.open, ports().program.document);
}

bool DocumentDesignerWindow::may_close() {
    const auto end = ending_.settle(has_changes());
    if (end == PageEnd::stays) return false;
    is_closing_ = true;
    if (end == PageEnd::gone) return true;
    end_page(editor_, step_name);
    if (end == PageEnd::cancel) { // noted first: who cancels by mistake can undo it
        put_back(backup_, editor_.open, ports().program.document);
        end_page(editor_, "Cancel " + std::string(step_name));
    }
    return true;
}

DocumentDesignerWindow* make_document_designer(const WindowPorts& ports, RecipeEditor& editor,
                                               DocumentDesignerCalls calls, QWidget* origin) {
    auto& live = ports.program.document;
    const auto& open = editor.open;
    const auto backup = backup_of(open, live);
    auto designer = document_designer(
        {.mash = open.document.mash, .dough_in_water = open.document.simple_mash.dough_in_water},
        live.water_to_grain, owner_of(editor, live), open.settings);
    return new DocumentDesignerWindow(ports, editor, std::move(designer), backup, std::move(calls), origin);
}

} // namespace wortlex
