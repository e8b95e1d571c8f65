#include "windows/main/about_window.h"

#include "desktop/captions.h"
#include "desktop/tool_window.h"
#include "program/version.h"
#include "windows/main/picture_board.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace wortlex {
namespace {

constexpr QSize picture_size{640, 465};
constexpr int title_pixels = 26, motto_pixels = 16, credit_pixels = 12;

class AboutWindow : public QDialog {
public:
    AboutWindow(Program& program, QWidget* owner)
        : QDialog(owner),
          place_(dress_window(*this, window_info("ABOUTDIALOG"), 0, Opener::main, owner, places(program))),
          picture_(about_picture(program.data_folder, devicePixelRatioF())) {
        setWindowModality(Qt::WindowModal);
        setFixedSize(picture_size);
        auto* const layout = new QVBoxLayout(this);
        add_line(*layout, program_version, title_pixels);
        add_line(*layout, "Software for the Micro, Pub, Pico, Nano and Sub-Atomic Brewer", motto_pixels);
        layout->addSpacing(credit_pixels);
        add_line(*layout, "Hop bitterness by Jackie Rager, Mark Garetz and Glenn Tinseth", credit_pixels);
        add_line(*layout, "Beer color by Ray Daniels, Dan Morey and Randy Mosher", credit_pixels);
        add_line(*layout, "Built with Qt", credit_pixels);
        layout->addStretch();
        add_button(*layout);
    }

    void setVisible(bool visible) override {
        if (visible) place_.put();
        QDialog::setVisible(visible);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.fillRect(rect(), Qt::black);
        if (!picture_.isNull()) painter.drawImage(rect(), picture_);
    }

private:
    // In pixels, as the picture is.
    void add_line(QVBoxLayout& layout, const char* text, int pixels) {
        auto* const line = new QLabel(QString::fromLatin1(text), this);
        auto font = line->font();
        font.setPixelSize(pixels);
        line->setFont(font);
        auto colours = line->palette();
        colours.setColor(QPalette::WindowText, Qt::white);
        line->setPalette(colours);
        line->setAlignment(Qt::AlignCenter);
        layout.addWidget(line);
    }

    void add_button(QVBoxLayout& layout) {
        auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
        set_tips(*buttons, true);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        layout.addWidget(buttons);
    }

    WindowPlace& place_;
    QImage picture_;
};

} // namespace

void show_about(Program& program, QWidget* owner) {
    AboutWindow(program, owner).exec();
}

} // namespace wortlex
