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
constexpr QRect strip_place(86, 3, 465, 70);
constexpr int heading_pixels = 11, link_pixels = 12, heading_height = 15, link_height = 18;
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
    StripLink(int number, QWidget* strip) : QAbstractButton(strip), number_(QString::number(number)) {
        setObjectName(QStringLiteral("recent_") + number_);
        setShortcut(QKeySequence(QStringLiteral("Alt+") + number_));
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        hide();
    }

    void lead_to(const OfferedRecipe& recipe) {
        recipe_ = recipe;
        setAccessibleName(recipe.path.empty() ? QStringLiteral("Begin a new recipe")
                                              : QStringLiteral("Open ") + string_of(recipe.name));
        setToolTip(string_of(recipe.about) +
                   QStringLiteral(" (%1)").arg(shortcut().toString(QKeySequence::NativeText)));
        setEnabled(recipe.can_be_opened);
        show();
        update();
    }
    const std::string& path() const { return recipe_.path; }

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
        draw_over_picture(
            painter, name,
            painter.fontMetrics().elidedText(string_of(recipe_.name), Qt::ElideRight, name.width()));
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
    for (int place = 0; place < static_cast<int>(links_.size()); ++place) {
        auto* const link = links_.at(static_cast<std::size_t>(place)) = new StripLink(place + 1, this);
        link->setGeometry(place % 2 * link_width, heading_height + place / 2 * link_height, link_width,
                          link_height);
        connect(link, &QAbstractButton::clicked, this, [this, link] { open(std::string(link->path())); });
    }
}

void RecentStrip::refresh() {
    auto recipes = recent_recipes(program_);
    heading_ = QStringLiteral("Recent recipes");
    if (recipes.empty()) recipes = welcome();
    for (std::size_t i = 0; i < links_.size(); ++i)
        i < recipes.size() ? links_.at(i)->lead_to(recipes[i]) : links_.at(i)->hide();
    setAccessibleName(heading_);
    update();
}

std::vector<OfferedRecipe> RecentStrip::welcome() {
    std::vector<OfferedRecipe> recipes;
    if (auto sample = sample_recipe(program_)) recipes.push_back(*std::move(sample));
    heading_ = recipes.empty()
                   ? QStringLiteral("Welcome! Begin with a recipe of your own:")
                   : QStringLiteral("Welcome! Look at a sample recipe, or begin one of your own:");
    recipes.push_back({{}, "A new recipe", "An empty recipe to fill in", true, {}});
    return recipes;
}

void RecentStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    auto small = font();
    small.setPixelSize(heading_pixels);
    painter.setFont(small);
    draw_over_picture(painter, QRect(3, 0, width(), heading_height), heading_);
}

} // namespace wortlex
