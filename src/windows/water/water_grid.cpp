#include "windows/water/water_grid.h"

#include "water/salt_words.h"

#include <QFrame>

namespace wortlex {
namespace {

constexpr int rate_column = 1, first_ion_column = 2;
constexpr int all_columns = first_ion_column + static_cast<int>(ions.size());

class WaterGrid {
public:
    WaterGrid(const FormWidgets& widgets, QWidget& parent)
        : widgets_(widgets), parent_(parent), grid_(new QGridLayout) {}

    QLayout* laid_out() {
        add_heads();
        add_line("target", "Target water");
        add_line("source", "Your water (+ dilutions)");
        add_line("difference", "Difference", Weight::bold);
        add_rule();
        for (std::size_t i = 0; i < salt_words.size(); ++i) add_salt(i);
        add_rule();
        add_line("totals", "Totals", Weight::bold);
        add_line("remaining", "Still to add");
        grid_->addWidget(&widgets_.field("met_note"), line_, first_ion_column, 1,
                         all_columns - first_ion_column);
        return grid_;
    }

private:
    enum class Weight { plain, bold };

    QLabel* words(const QString& text, Weight weight) {
        auto* const label = new QLabel(text, &parent_);
        auto font = label->font();
        font.setBold(weight == Weight::bold);
        label->setFont(font);
        return label;
    }

    void add_heads() {
        const auto head = [this](const QString& text, int column) {
            auto* const label = words(text, Weight::bold);
            label->setAlignment(Qt::AlignCenter);
            grid_->addWidget(label, 0, column);
            grid_->setColumnStretch(column, 1);
        };
        head(QObject::tr("Grams Per\nGallon"), rate_column);
        for (std::size_t i = 0; i < ions.size(); ++i)
            head(QLatin1String(ions[i].symbol) + QObject::tr("\nppm"), column_of(i));
        line_ = 1;
    }

    static int column_of(std::size_t ion) { return first_ion_column + static_cast<int>(ion); }

    void add_cell(const std::string& key, std::size_t ion) {
        auto& field = widgets_.field(key + '_' + ions[ion].key);
        field.setMaximumWidth(QWIDGETSIZE_MAX); // as wide as its column, which its least width makes
        field.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        grid_->addWidget(&field, line_, column_of(ion));
    }

    void add_line(const char* key, const char* label, Weight weight = Weight::plain) {
        grid_->addWidget(words(QObject::tr(label), weight), line_, 0);
        for (std::size_t i = 0; i < ions.size(); ++i) add_cell(key, i);
        ++line_;
    }

    void add_salt(std::size_t salt) {
        const std::string key = salt_words[salt].key;
        grid_->addWidget(widgets_.label(key + "_rate"), line_, 0);
        grid_->addWidget(&widgets_.field(key + "_rate"), line_, rate_column);
        for (std::size_t i = 0; i < ions.size(); ++i)
            if (ions[i].ppm == salt_effects[salt].cation || ions[i].ppm == salt_effects[salt].anion)
                add_cell(key, i);
        ++line_;
    }

    void add_rule() {
        auto* const rule = new QFrame(&parent_);
        rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
        grid_->addWidget(rule, line_++, 0, 1, all_columns);
    }

    const FormWidgets& widgets_;
    QWidget& parent_;
    QGridLayout* grid_;
    int line_ = 0;
};

} // namespace

QLayout* water_grid(const FormWidgets& widgets, QWidget& parent) {
    return WaterGrid(widgets, parent).laid_out();
}

} // namespace wortlex
