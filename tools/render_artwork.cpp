// render-artwork: draws the bitmaps of the main screen and the about box from their sources in data/artwork/.
// What is there already is left as it is: a brewer may have put pictures of his own there.
#include "base/files.h"
#include "desktop/artwork.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <array>
#include <cstdio>
#include <filesystem>
#include <span>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 22> buttons = {
    "rb01", "rb02", "rb03", "rb04", "cb01", "cb02", "cb04", "cb05", "cb06", "cb07", "cb08",
    "cb09", "cb10", "cb11", "cb12", "cb13", "db01", "db02", "db03", "db04", "db05", "db06"};
constexpr std::array<std::string_view, 3> button_sets = {"", "_2", "_3"};
constexpr std::array<std::string_view, 4> pictures = {"KVBack", "KVBack2", "KVBack3", "kettle"};

std::vector<std::string> all_files() {
    std::vector<std::string> files(pictures.begin(), pictures.end());
    for (const auto button : buttons) {
        for (const auto set : button_sets) files.push_back(std::string(button) + std::string(set));
    }
    return files;
}

// Without an alpha channel the bitmap has 24 bits a pixel.
QByteArray bitmap(const QImage& picture) {
    QByteArray content;
    QBuffer buffer(&content);
    return buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "BMP") ? content : QByteArray();
}

bool complain(const std::string& path, const char* what) {
    std::fprintf(stderr, "render-artwork: %s: %s\n", path.c_str(), what);
    return false;
}

// Returns whether the file is there, new or old, under whatever capitals.
bool make_picture(const QString& sources, const std::string& art, const std::string& file) {
    const auto path = find_data_file(art, file + ".bmp");
    if (fs::exists(fs::symlink_status(path))) return true;
    const auto picture = draw_artwork(sources, file, 1.0);
    if (picture.isNull()) return complain(file, "has no source that can be drawn");
    const auto content = bitmap(picture);
    const bool saved = !content.isEmpty() && save_atomically(path, std::as_bytes(std::span(content)));
    return saved || complain(path, "cannot be written");
}

bool make_pictures(const QString& sources, const std::string& target) {
    const auto art = target + "art/";
    std::error_code error;
    fs::create_directories(art, error);
    if (!fs::is_directory(art, error)) return complain(art, "cannot be made");
    bool all_well = true;
    for (const auto& file : all_files()) all_well = make_picture(sources, art, file) && all_well;
    return all_well;
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");                   // builders have no display
    QLoggingCategory::setFilterRules("default.warning=false"); // nor a session, which Qt would remark upon
    const QGuiApplication application(count, arguments);
    if (count != 3) {
        std::fputs("Usage: render-artwork SOURCE_DIR TARGET_DIR\n", stderr);
        return 2;
    }
    const auto target = wortlex::native_folder(arguments[2]);
    return wortlex::make_pictures(QFile::decodeName(arguments[1]), target) ? 0 : 1;
}
