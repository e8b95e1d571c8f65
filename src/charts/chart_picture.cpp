#include "charts/chart_picture.h"

#include "base/files.h"

namespace wortlex {
namespace {

constexpr std::string_view picture_files = "JPEG Bitmap File (*.jpg)|*.jpg";

void tell(std::string_view text, Prompts& prompts) {
    prompts.tell({.text = text, .caption = "Wortlex Error", .icon = Icon::error});
}

} // namespace

bool save_chart(const std::string& path, const ChartDrawing& chart, const PictureDesk& desk) {
    const auto pixels = desk.easel.drawn(chart.size, chart.draw);
    const auto result = desk.pictures.save(path, pixels, desk.quality);
    if (result == PictureSave::not_encoded) tell("Error Initializing JPG Properties!", desk.prompts);
    if (result == PictureSave::not_written) tell("Error Writing JPG File!", desk.prompts);
    return result == PictureSave::saved;
}

void choose_and_save_chart(const ChartDrawing& chart, const std::string& name, const PictureDesk& desk) {
    const auto proposed = name.empty() ? name : tame_file_name(name) + ".jpg";
    const auto folder = folder_path(desk.folders, FolderKind::jpg_exports);
    const auto path = desk.files.choose_to_save({picture_files, folder, proposed, "jpg"});
    if (!path) return;
    follow_user(desk.folders, FolderKind::jpg_exports, *path);
    save_chart(*path, chart, desk);
}

} // namespace wortlex
