// The picture with its buttons that fills the main window.
#pragma once

#include "base/bytes.h"
#include "base/ports/surface.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace wortlex {

/// A button as it is seen.
struct ButtonPicture {
    std::string_view bitmap; ///< base name of its file; empty: no button
    Point at;                ///< in the frame
    std::string_view title;  ///< below the button
    std::string_view name;   ///< for those who cannot see it
};

struct MainScreenButton {
    int command = 0;
    ButtonPicture picture;
};

inline constexpr Extent main_screen_frame = {640, 480};
inline constexpr int button_side = 65;

struct ArtScheme {
    std::string_view label;
    std::string_view suffix;     ///< of the button set
    std::string_view background; ///< its file
};

inline constexpr std::array<ArtScheme, 5> art_schemes = {{{"Wortlex Default", "", "KVBack.bmp"},
                                                          {"Stainless on Copper", "_2", "KVBack2.bmp"},
                                                          {"Copper on Copper", "_3", "KVBack2.bmp"},
                                                          {"Copper on Stainless", "_3", "KVBack3.bmp"},
                                                          {"Stainless on Stainless", "_2", "KVBack3.bmp"}}};

/// The scheme of a setting; a number that is none gives the default.
const ArtScheme& art_scheme(std::uint8_t number);

/// Where the frame begins in a client area: centred, and at 0,0 where the area is smaller.
Point main_screen_origin(int width, int height);

/// The button under a point of the client area, or null. Right and bottom edges belong to none.
const MainScreenButton* button_at(std::span<const MainScreenButton> buttons, Point point, int width,
                                  int height);

/// The files of the pictures.
std::string button_bitmap(const std::string& data_folder, const ArtScheme& scheme,
                          const ButtonPicture& button);
std::string background_bitmap(const std::string& data_folder, const ArtScheme& scheme);
std::string about_bitmap(const std::string& data_folder);

inline constexpr std::string_view bitmap_fault_caption = "File Error";

/// What is told of a bitmap file under that caption; empty for a sound one. Nothing stands for a file that
/// cannot be read. Headers may be core or extended ones, pixels 60 million at the most.
std::string_view bitmap_fault(std::optional<ByteView> file);

/// What is told of a sound file that cannot be drawn, and its caption.
inline constexpr std::string_view undrawable_bitmap = "Fail1";
inline constexpr std::string_view undrawable_bitmap_caption = "Error";

} // namespace wortlex
