#include "desktop/outlined_style.h"

#include "desktop/colours.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace wortlex {
namespace {

constexpr int black_enough = 40; // of 255: the frame of a lighter window can be seen

class OutlinedStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        switch (element) {
        case PE_IndicatorRadioButton:
            return outline(*option, *painter, &OutlinedStyle::draw_ring);
        case PE_IndicatorCheckBox:
        case PE_FrameLineEdit:
        case PE_PanelButtonCommand:
        case PE_Frame:
            return outline(*option, *painter, &OutlinedStyle::draw_frame);
        default:
            return;
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_SpinBox || control == CC_ComboBox)
            outline(*option, *painter, &OutlinedStyle::draw_frame);
    }

private:
    static void draw_frame(QPainter& painter, const QRect& place) { painter.drawRect(place); }
    static void draw_ring(QPainter& painter, const QRect& place) { painter.drawEllipse(place); }

    static void outline(const QStyleOption& option, QPainter& painter,
                        void (*draw)(QPainter&, const QRect&)) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        const int thick = option.state.testFlag(State_HasFocus) ? 3 : 1, inset = thick / 2;
        painter.setPen(QPen(option.palette.color(QPalette::WindowText), thick));
        painter.setBrush(Qt::NoBrush);
        draw(painter, option.rect.adjusted(inset, inset, -1 - inset, -1 - inset));
        painter.restore();
    }
};

// What is faint on other desktops is as black as the rest there.
QPalette with_faint_words(QPalette palette) {
    constexpr int faint_percent = 60;
    const auto faint = toned_ground(palette, faint_percent);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

} // namespace

void outline_on_black() {
    const auto palette = QApplication::palette();
    if (palette.color(QPalette::Window).lightness() >= black_enough) return;
    QApplication::setStyle(new OutlinedStyle(QApplication::style()->name())); // which the toolkit owns
    QApplication::setPalette(with_faint_words(palette));
}

} // namespace wortlex
