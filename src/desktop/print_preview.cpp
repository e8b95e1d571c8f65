#include "desktop/print_preview.h"

#include "base/files.h"
#include "desktop/captions.h"
#include "desktop/list_keys.h"
#include "desktop/message_boxes.h"
#include "desktop/qt_text.h"
#include "desktop/tool_window.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace wortlex {
namespace {

constexpr int ground = 16; // pixels around the sheet

class Sheet : public QWidget {
public:
    Sheet(const PreviewPages& pages, QWidget* parent) : QWidget(parent), pages_(pages) {}

protected:
    void paintEvent(QPaintEvent*) override {
        if (pages_.count() == 0) return;
        const auto& job = pages_.job();
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        const QRect sheet = rect().adjusted(ground, ground, -ground, -ground);
        painter.fillRect(sheet.translated(3, 3), palette().color(QPalette::Shadow));
        painter.fillRect(sheet, Qt::white);
        const double zoom = static_cast<double>(sheet.width()) / job.paper.sheet.width;
        painter.translate(sheet.topLeft());
        painter.scale(zoom, zoom);
        painter.translate((job.paper.sheet.width - job.paper.area.width) / 2.0, job.paper.top_offset);
        PainterSurface surface(painter, job.paper.area);
        job.draw(pages_.current(), surface);
    }

private:
    const PreviewPages& pages_;
};

// The dots of the screen for one of the paper.
double zoom_of(const PreviewPages& pages, const QSize& room, double dots_per_inch) {
    const auto& sheet = pages.job().paper.sheet;
    const double across = static_cast<double>(room.width() - 2 * ground) / sheet.width;
    const double down = static_cast<double>(room.height() - 2 * ground) / sheet.height;
    const double true_size = dots_per_inch / print_resolution;
    switch (pages.zoom()) {
    case PreviewZoom::fit_page:
        return std::min(across, down);
    case PreviewZoom::fit_width:
        return across;
    case PreviewZoom::half_more:
        return true_size * 1.5;
    case PreviewZoom::twice:
        return true_size * 2;
    default:
        return true_size;
    }
}

// What the platform's dialog was told to print.
PageRange range_of(const QPrinter& printer, std::size_t current) {
    if (printer.printRange() == QPrinter::CurrentPage) return {current + 1, current + 1};
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() == 0) return {};
    return {static_cast<std::size_t>(printer.fromPage()), static_cast<std::size_t>(printer.toPage())};
}

} // namespace

PageView::PageView(const PreviewPages& pages, QWidget* parent)
    : QScrollArea(parent), pages_(pages), sheet_(new Sheet(pages, this)) {
    setBackgroundRole(QPalette::Dark);
    setAlignment(Qt::AlignCenter);
    setWidget(sheet_);
    setMinimumSize(fontMetrics().height() * 30, fontMetrics().height() * 24);
}

void PageView::refresh() {
    if (pages_.count() == 0) return;
    // Fitting the width leaves room for the bar that it brings about.
    auto room = maximumViewportSize();
    if (pages_.zoom() == PreviewZoom::fit_width) room.rwidth() -= verticalScrollBar()->sizeHint().width();
    const double zoom = zoom_of(pages_, room, logicalDpiX());
    const auto& sheet = pages_.job().paper.sheet;
    sheet_->resize(static_cast<int>(sheet.width * zoom) + 2 * ground,
                   static_cast<int>(sheet.height * zoom) + 2 * ground);
    sheet_->update();
}

void PageView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    refresh();
}

PrintPreview::PrintPreview(const PrintRequest& request, const PrintPorts& ports, QWidget* owner)
    : QDialog(owner), ports_(ports), pages_(request, ports.paper), form_(made_form()),
      widgets_(form_, ports.places, *this), view_(new PageView(pages_, this)),
      place_(dress_window(*this, window_info("PRINTPREVIEW"), 0, Opener::main, owner, ports.places)) {
    setWindowTitle(windowTitle() + QStringLiteral(" - ") + string_of(request.document_name));
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    lay_out_rows();
    pages_.changed = [this] { view_->refresh(); };
    for (const auto& [key, button] :
         {std::pair(QKeySequence::MoveToStartOfLine, "first"),
          std::pair(QKeySequence::MoveToPreviousPage, "previous"),
          std::pair(QKeySequence::MoveToNextPage, "next"), std::pair(QKeySequence::MoveToEndOfLine, "last"),
          std::pair(QKeySequence::Save, "save")})
        press_in_window(*this, key, widgets_.field(button));
    add_key(*qobject_cast<QPushButton*>(&widgets_.field("close")), QKeySequence::Cancel);
    view_->setFocus();
}

Form PrintPreview::made_form() {
    Form form;
    preview_form(form, pages_,
                 {.print = [this] { print(); },
                  .save = [this] { save(); },
                  .close = [this] { close(); },
                  .has_printer = !QPrinterInfo::availablePrinterNames().isEmpty()});
    return form;
}

void PrintPreview::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
}

// Two lines of rows above the page; no button is pressed by Enter.
void PrintPreview::lay_out_rows() {
    auto* const layout = new QVBoxLayout(this);
    const auto add_line = [&](std::initializer_list<const char*> left,
                              std::initializer_list<const char*> right) {
        auto* const line = new QHBoxLayout;
        layout->addLayout(line);
        const auto add = [&](const char* key) {
            if (auto* const label = widgets_.label(key)) line->addWidget(label);
            line->addWidget(&widgets_.field(key));
        };
        for (const auto* const key : left) add(key);
        line->addStretch();
        for (const auto* const key : right) add(key);
    };
    add_line({"first", "previous", "place", "next", "last"}, {"zoom"});
    add_line({"paper", "turn"}, {"print", "save", "close"});
    layout->addWidget(view_, 1);
    for (auto* const button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    resize(sizeHint().expandedTo(screen()->availableSize() * 3 / 4));
}

void PrintPreview::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setResolution(print_resolution);
    printer.setPageLayout(pages_.layout());
    printer.setDocName(string_of(pages_.job().document_name));
    QPrintDialog dialog(&printer, this);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, static_cast<int>(pages_.count()));
    if (dialog.exec() != QDialog::Accepted) return;
    PagedPrinter paper(printer, pages_.job().paper, pages_.shift_of(printer.printerName().toStdString()));
    print_pages(pages_.job(), range_of(printer, pages_.current()), paper, ports_.prompts);
}

void PrintPreview::save() {
    const auto path =
        ports_.files.choose_to_save({.filter = "PDF File (*.pdf)|*.pdf",
                                     .folder = folder_path(ports_.folders, FolderKind::text_exports),
                                     .suggested_name = tame_file_name(pages_.file_name()) + ".pdf",
                                     .extension = "pdf"});
    if (!path) return;
    follow_user(ports_.folders, FolderKind::text_exports, *path);
    const auto file = pdf_of(pages_.job(), pages_.paper(), ports_.prompts, pages_.shift_of(""));
    if (!file.empty()) save_or_tell(*path, file, ports_.prompts);
}

PreviewDesk::PreviewDesk(Files& files, Prompts& prompts, const Places& places, FolderSet& folders,
                         std::string data_folder)
    : data_folder_(std::move(data_folder)),
      paper_(LoadPaperChoice(data_folder_, usual_paper())), ports_{files, prompts, places, folders, paper_} {}

void PreviewDesk::show(const PrintRequest& request) {
    const auto before = paper_;
    PrintPreview(request, ports_, window_in_use()).exec();
    if (paper_ != before) SavePaperChoice(data_folder_, paper_);
}

} // namespace wortlex
