#include "windows/main/recent_strip.h"

#include "desktop/colours.h"
#include "desktop/glass.h"
#include "desktop/qt_text.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace wortlex {
namespace {

// In pixels, as the picture is.
constexpr QRect strip_place(86, 4, 465, 72);
constexpr int heading_pixels = 11, link_pixels = 12, heading_height = 16, link_height = 18;
constexpr int link_width = 232;
constexpr double gone = 0.45; // of a recipe that cannot be opened

void draw_over_picture(QPainter& painter, const QRect& place, const QString& text) {
    painter.setPen(Qt::black);
    painter.drawText(place.translated(1, 1), Qt::AlignLeft | Qt::AlignVCenter, text);
    painter.setPen(Qt::white);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
}

} // namespace

/// A line that opens something: its number, a glass and a name.
class StripLink : public QAbstractButton {
public:
    StripLink(std::size_t number, const OfferedRecipe& recipe, QWidget* strip)
        : QAbstractButton(strip), number_(QString::number(number)), recipe_(recipe) {
        const QKeySequence key(Qt::ALT | (Qt::Key_0 + static_cast<int>(number)));
        setText(string_of(recipe.name));
        setObjectName(QStringLiteral("recent_") + number_);
        setAccessibleName(QStringLiteral("Open ") + text());
        setToolTip(string_of(recipe.about) + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) +
                   QLatin1Char(')'));
        setEnabled(recipe.can_be_opened);
        setShortcut(key);
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        is_enter ? click() : QAbstractButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!isEnabled()) painter.setOpacity(gone);
        auto small = font();
        small.setPixelSize(link_pixels);
        painter.setFont(small);
        const int number_width = painter.fontMetrics().horizontalAdvance(QStringLiteral("00"));
        draw_over_picture(painter, rect().adjusted(3, 0, 0, 0), number_);
        const int glass_left = 3 + number_width, glass_width = 10;
        if (recipe_.beer || !recipe_.can_be_opened)
            draw_glass(painter, QRectF(glass_left, 2, glass_width, height() - 4),
                       recipe_.beer ? std::optional(colour_of(*recipe_.beer)) : std::nullopt);
        const auto name = rect().adjusted(glass_left + glass_width + 6, 0, -3, 0);
        small.setUnderline(isEnabled() && (underMouse() || hasFocus()));
        painter.setFont(small);
        draw_over_picture(painter, name,
                          painter.fontMetrics().elidedText(text(), Qt::ElideRight, name.width()));
        if (!hasFocus()) return;
        painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }

private:
    QString number_;
    OfferedRecipe recipe_;
};

RecentStrip::RecentStrip(const Program& program, Calls calls, QWidget* board)
    : QWidget(board), program_(program), calls_(std::move(calls)) {
    setObjectName(QStringLiteral("recent"));
    setGeometry(strip_place);
}

StripLink& RecentStrip::add_link(std::size_t place, const OfferedRecipe& recipe) {
    auto* const link = new StripLink(place + 1, recipe, this);
    links_.push_back(link);
    const auto row = static_cast<int>(place / 2), column = static_cast<int>(place % 2);
    link->setGeometry(column * link_width, heading_height + row * link_height, link_width, link_height);
    link->show();
    return *link;
}

void RecentStrip::refresh() {
    for (auto* const link : std::exchange(links_, {})) link->deleteLater();
    const auto recipes = recent_recipes(program_);
    recipes.empty() ? welcome() : show_recent(recipes);
    update();
}

void RecentStrip::show_recent(const std::vector<OfferedRecipe>& recipes) {
    heading_ = QStringLiteral("Recent recipes");
    for (std::size_t i = 0; i < recipes.size(); ++i)
        connect(&add_link(i, recipes[i]), &QAbstractButton::clicked, this,
                [this, path = recipes[i].path] { calls_.open(path); });
}

void RecentStrip::welcome() {
    const auto sample = sample_recipe(program_);
    heading_ = sample ? QStringLiteral("Welcome! Look at a sample recipe, or begin one of your own:")
                      : QStringLiteral("Welcome! Begin with a recipe of your own:");
    if (sample)
        connect(&add_link(0, *sample), &QAbstractButton::clicked, this,
                [this, path = sample->path] { calls_.open(path); });
    const OfferedRecipe own{{}, "A new recipe", "An empty recipe to fill in", true, {}};
    connect(&add_link(links_.size(), own), &QAbstractButton::clicked, this, calls_.new_recipe);
}

void RecentStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    auto small = font();
    small.setPixelSize(heading_pixels);
    painter.setFont(small);
    draw_over_picture(painter, QRect(3, 0, width(), heading_height), heading_);
}

} // namespace wortlex
