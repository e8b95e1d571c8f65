// render-icons: draws the icons of the desktop from a drawing, a picture a size, in the folders of an icon
// theme.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cstdio>

namespace {

constexpr std::array sizes = {16, 22, 24, 32, 48, 64, 128, 256};

bool complain(const QString& what) {
    std::fprintf(stderr, "render-icons: %s\n", what.toLocal8Bit().constData());
    return false;
}

// `name` is that of the icon behind the folder of its kind, as "apps/wortlex".
bool render(QSvgRenderer& drawing, int size, const QDir& theme, const QString& name) {
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter, picture.rect());
    painter.end();
    const auto path = theme.filePath(QStringLiteral("%1x%1/%2.png").arg(size).arg(name));
    const bool is_saved = QDir().mkpath(QFileInfo(path).path()) && picture.save(path);
    return is_saved || complain(path + QStringLiteral(" cannot be written"));
}

bool render_all(const QString& source, const QString& theme, const QString& name) {
    QSvgRenderer drawing(source);
    if (!drawing.isValid()) return complain(source + QStringLiteral(" is no drawing"));
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    for (const int size : sizes)
        if (!render(drawing, size, QDir(theme), name)) return false;
    return true;
}

} // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");                   // builders have no display
    QLoggingCategory::setFilterRules("default.warning=false"); // nor a session, which Qt would remark upon
    const QGuiApplication application(count, arguments);
    if (count != 4) {
        std::fputs("Usage: render-icons DRAWING.svg THEME_DIR KIND/NAME\n", stderr);
        return 2;
    }
    const auto word = [&](int i) { return QFile::decodeName(arguments[i]); };
    return render_all(word(1), word(2), word(3)) ? 0 : 1;
}
