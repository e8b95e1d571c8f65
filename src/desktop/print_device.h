// Paper and what prints on it.
#pragma once

#include "base/bytes.h"
#include "desktop/painter_surface.h"
#include "page/page_job.h"
#include "settings/label_sheets.h"

#include <QImage>
#include <QPageLayout>
#include <QPagedPaintDevice>

namespace wortlex {

inline constexpr int print_resolution = 300; // dots an inch

/// Letter where inches are usual, else A4.
PaperChoice usual_paper();
/// With margins of a fifth of an inch, which every printer manages.
QPageLayout layout_of(const PaperChoice& choice);
Paper paper_of(const PaperChoice& choice);
/// The same without margins, for what has its exact place on the sheet.
QPageLayout whole_sheet_layout(PaperKind kind);
Paper whole_sheet(PaperKind kind);

/// Tells how wide texts will be on paper.
class MeasuringSurface {
public:
    MeasuringSurface();
    Surface& surface() { return surface_; }

private:
    QImage image_;
    QPainter painter_;
    PainterSurface surface_;
};

/// A printer or a PDF file being written. Pages made for `paper` are drawn smaller where the device keeps
/// wider margins or has been given a smaller sheet.
class PagedPrinter : public Printer {
public:
    PagedPrinter(QPagedPaintDevice& device, const Paper& paper, const PrintShift& shift = {});

    bool begin(std::string_view document_name) override;
    Surface& page() override { return surface_; }
    bool next_page() override { return device_.newPage(); }
    void end() override { painter_.end(); }

private:
    QPagedPaintDevice& device_;
    double scale() const;

    Paper paper_;
    PrintShift shift_;
    QPainter painter_;
    PainterSurface surface_;
};

/// The job as the bytes of a PDF file; empty if it could not be made.
Bytes pdf_of(const PageJob& job, const PaperChoice& choice, Prompts& prompts, const PrintShift& shift = {});

} // namespace wortlex
