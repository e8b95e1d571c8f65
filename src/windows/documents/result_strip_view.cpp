#include "windows/documents/result_strip_view.h"

#include "desktop/colours.h"
#include "desktop/drawings.h"
#include "desktop/glass.h"
#include "desktop/qt_text.h"
#include "desktop/read_aloud.h"
#include "forms/glossary.h"

#include <QHBoxLayout>
#include <QPainter>

#include <optional>

namespace wortlex {
namespace {

QColor range_colour(const QPalette& palette) {
    return is_dark(palette) ? QColor(70, 132, 74) : QColor(140, 200, 140);
}

} // namespace

/// One figure: its name and what is said of it above, its band below.
class StripCellView : public QWidget {
public:
    explicit StripCellView(QWidget* parent) : QWidget(parent) {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        give_role(*this, QAccessible::StaticText);
        let_reader_reach(*this);
    }

    void tell(StripCell cell) {
        if (cell == cell_) return;
        cell_ = std::move(cell);
        const auto words = string_of(spoken(cell_));
        const auto meaning = string_of(meaning_of(cell_.name));
        setAccessibleName(words);
        setToolTip(meaning.isEmpty() ? words : meaning + QLatin1Char('\n') + words);
        update();
    }
    /// The colour of the beer; null: an empty glass. Only the cell that is told has one.
    void fill_glass(const std::optional<QColor>& beer) {
        if (has_glass_ && beer == beer_) return;
        has_glass_ = true;
        beer_ = beer;
        update();
    }
    QSize sizeHint() const override { return {fontMetrics().averageCharWidth() * 15, height_of_lines()}; }
    QSize minimumSizeHint() const override {
        return {fontMetrics().averageCharWidth() * 11, height_of_lines()};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        draw_caption(painter);
        draw_figure(painter);
        draw_band(painter);
        if (has_glass_) draw_glass(painter, glass_box(), beer_);
        draw_focus(painter, *this);
    }

private:
    QFont large_font() const {
        auto large = font();
        large.setPointSizeF(large.pointSizeF() * 1.6);
        large.setBold(true);
        return large;
    }
    int band_height() const { return fontMetrics().height() * 2 / 3; }
    int height_of_lines() const {
        return fontMetrics().height() + QFontMetrics(large_font()).height() + band_height() + 4;
    }
    // Beside the text, above the band.
    QRectF glass_box() const {
        const qreal tall = height() - band_height() - 6, wide = tall * 0.62;
        return {width() - wide - 1, 1, wide, tall};
    }
    int text_width() const { return has_glass_ ? static_cast<int>(glass_box().left()) - 4 : width(); }

    void draw_caption(QPainter& painter) const {
        const QRect line(0, 0, text_width(), fontMetrics().height());
        auto bold = font();
        bold.setBold(true);
        const auto word = string_of(cell_.word);
        const int room = line.width() - QFontMetrics(bold).horizontalAdvance(word + QLatin1Char(' '));
        const auto caption = cell_.note.empty() ? cell_.name : cell_.name + ", " + cell_.note;
        painter.setFont(font());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(string_of(caption), Qt::ElideRight, room));
        painter.setFont(bold);
        painter.setPen(warning_colour(palette()));
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, word);
    }
    // A range of many digits is written smaller than it stands beside others.
    void draw_figure(QPainter& painter) const {
        auto large = large_font();
        const auto figure = string_of(cell_.figure);
        const int wide = QFontMetrics(large).horizontalAdvance(figure);
        if (wide >= text_width()) large.setPointSizeF(large.pointSizeF() * (text_width() - 4) / wide);
        painter.setFont(large);
        painter.setPen(palette().color(QPalette::WindowText));
        const QRect line(0, fontMetrics().height(), text_width(), QFontMetrics(large_font()).height());
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, figure);
    }
    void draw_band(QPainter& painter) const {
        const qreal tall = band_height(), top = height() - tall - 1;
        const QRectF track(0, top + tall / 4, width(), tall / 2);
        painter.setPen(Qt::NoPen);
        painter.setBrush(toned_ground(palette(), 22));
        painter.drawRoundedRect(track, 2, 2);
        if (!cell_.mark) return;
        painter.fillRect(QRectF(width() * style_on_band.from, track.top(),
                                width() * (style_on_band.to - style_on_band.from), track.height()),
                         range_colour(palette()));
        draw_mark(painter, top, tall);
    }
    // A pin of its full height, or a bar over all that a range covers.
    void draw_mark(QPainter& painter, qreal top, qreal tall) const {
        const qreal least = tall / 2.5;
        const qreal left = cell_.mark->from * (width() - least);
        const qreal wide = (cell_.mark->to - cell_.mark->from) * (width() - least) + least;
        painter.setBrush(cell_.word.empty() ? palette().color(QPalette::WindowText)
                                            : warning_colour(palette()));
        painter.drawRoundedRect(QRectF(left, top, wide, tall), 1.5, 1.5);
    }

    StripCell cell_;
    bool has_glass_ = false;
    std::optional<QColor> beer_;
};

ResultStripView::ResultStripView(const RecipeSubject& subject, NoticeBoard& notices, QWidget* parent)
    : QWidget(parent), subject_(subject) {
    setObjectName(QStringLiteral("result_strip"));
    setAccessibleName(QStringLiteral("Results"));
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(fontMetrics().height());
    for (auto& cell : cells_) {
        cell = new StripCellView(this);
        line->addWidget(cell, 1);
    }
    listening_ = notices.listen([this](Change) { refresh(); });
    refresh();
}

void ResultStripView::refresh() {
    const auto& open = subject_.editor.open;
    auto strip = result_strip(open);
    for (std::size_t i = 0; i < strip.size(); ++i) cells_.at(i)->tell(std::move(strip.at(i)));
    std::optional<QColor> beer;
    if (!open.document.malts.empty())
        beer = colour_of(swatch_colour(subject_.colours, open.figures.colour.srm, open.settings));
    cells_.back()->fill_glass(beer);
}

} // namespace wortlex
