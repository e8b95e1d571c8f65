#include "desktop/print_device.h"

#include "desktop/qt_text.h"

#include <QBuffer>
#include <QLocale>
#include <QPdfWriter>

#include <algorithm>
#include <span>

namespace wortlex {
namespace {

constexpr double margin_inches = 0.2;

Extent extent_of(const QSize& size) {
    return {size.width(), size.height()};
}

Bytes bytes_of(const QByteArray& array) {
    const auto view = std::as_bytes(std::span(array.constData(), static_cast<std::size_t>(array.size())));
    return {view.begin(), view.end()};
}

} // namespace

PaperChoice usual_paper() {
    const bool uses_inches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return {.kind = uses_inches ? PaperKind::letter : PaperKind::a4};
}

QPageLayout layout_of(const PaperChoice& choice) {
    const auto size = choice.kind == PaperKind::letter ? QPageSize::Letter : QPageSize::A4;
    const auto turn = choice.turn == PaperTurn::landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    const QMarginsF margins(margin_inches, margin_inches, margin_inches, margin_inches);
    return {QPageSize(size), turn, margins, QPageLayout::Inch};
}

Paper paper_of(const PaperChoice& choice) {
    const auto layout = layout_of(choice);
    const auto sheet = layout.fullRectPixels(print_resolution),
               area = layout.paintRectPixels(print_resolution);
    return {.sheet = extent_of(sheet.size()),
            .area = extent_of(area.size()),
            .top_offset = area.top() - sheet.top(),
            .is_landscape = choice.turn == PaperTurn::landscape};
}

MeasuringSurface::MeasuringSurface()
    : image_(1, 1, QImage::Format_RGB32), painter_(&image_), surface_(painter_, {1, 1}) {}

QPageLayout whole_sheet_layout(PaperKind kind) {
    auto layout = layout_of({.kind = kind});
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

Paper whole_sheet(PaperKind kind) {
    const auto sheet = extent_of(layout_of({.kind = kind}).fullRectPixels(print_resolution).size());
    return {.sheet = sheet, .area = sheet, .is_exact = true};
}

PagedPrinter::PagedPrinter(QPagedPaintDevice& device, const Paper& paper, const PrintShift& shift)
    : device_(device), paper_(paper), shift_(shift), surface_(painter_, paper.area) {}

double PagedPrinter::scale() const {
    const double dots = static_cast<double>(device_.logicalDpiX()) / print_resolution;
    if (paper_.is_exact) return dots;
    const auto room = device_.pageLayout().paintRectPixels(device_.logicalDpiX());
    return std::min({dots, static_cast<double>(room.width()) / paper_.area.width,
                     static_cast<double>(room.height()) / paper_.area.height});
}

bool PagedPrinter::begin(std::string_view /*document_name*/) {
    if (!painter_.begin(&device_)) return false;
    painter_.setPen(
        Qt::NoPen); // of the pen that a painter begins with, the device of a PDF file does not know
    painter_.scale(scale(), scale());
    painter_.translate(shift_.across * paper_.dots_per_millimetre, shift_.down * paper_.dots_per_millimetre);
    return true;
}

Bytes pdf_of(const PageJob& job, const PaperChoice& choice, Prompts& prompts, const PrintShift& shift) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(print_resolution);
        writer.setPageLayout(job.paper.is_exact ? whole_sheet_layout(choice.kind) : layout_of(choice));
        writer.setTitle(string_of(job.document_name));
        writer.setCreator(QStringLiteral("Wortlex"));
        PagedPrinter printer(writer, job.paper, shift);
        if (!print_pages(job, {}, printer, prompts)) return {};
    }
    return bytes_of(buffer.data());
}

} // namespace wortlex
