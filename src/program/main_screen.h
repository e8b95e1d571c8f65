// The picture with 22 buttons that fills the main window.
#pragma once

#include "base/bytes.h"
#include "base/ports/surface.h"
#include "program/commands.h"

#include <array>

namespace wortlex {

struct MainScreenButton {
    std::string_view bitmap; ///< base name of its file
    Point at;                ///< in the frame
    int command;
    std::string_view title; ///< below the button
    std::string_view name;  ///< for those who cannot see it
};

inline constexpr Extent main_screen_frame = {640, 480};
inline constexpr int button_side = 65;

// clang-format off
inline constexpr std::array<MainScreenButton, 22> main_screen_buttons = {{
    {"rb01", {86, 76}, command::new_recipe, "New Recipe", "New Recipe"},
    {"rb02", {186, 76}, command::open_recipe, "Open Recipe", "Open Recipe"},
    {"rb03", {386, 76}, command::new_session, "New Session", "New Brewing Session"},
    {"rb04", {486, 76}, command::open_session, "Open Session", "Open Brewing Session"},
    {"cb01", {86, 180}, command::units, "Units", "Units"},
    {"cb02", {166, 180}, command::hop_time_degradation, "Hop Aging", "Hop Time Degradation"},
    {"cb04", {246, 180}, command::hop_ibu, "Hop IBU's", "Hop IBU's"},
    {"cb05", {326, 180}, command::water_profile, "Water Prof.", "Water Profile"},
    {"cb06", {406, 180}, command::water_needed, "Water Needed", "Water Needed"},
    {"cb12", {486, 180}, command::boil_off, "Boil Off", "Boil Off Calculator"},
    {"cb07", {86, 260}, command::strike_temperature, "Strike Temp.", "Strike Temperature"},
    {"cb08", {166, 260}, command::mash_designer, "Mash Design", "Mash Designer"},
    {"cb11", {246, 260}, command::carbonation, "Carbonation", "Carbonation Calculator"},
    {"cb09", {326, 260}, command::hydrometer, "Hydrometer", "Hydrometer Calculator"},
    {"cb10", {406, 260}, command::alcohol, "% Alcohol", "% Alcohol"},
    {"cb13", {486, 260}, command::dilution, "Dilution", "Dilution Calculator"},
    {"db01", {86, 360}, command::style_database, "Styles", "Style Database"},
    {"db02", {166, 360}, command::malt_database, "Grain", "Grain, Extract, Sugars Database"},
    {"db03", {246, 360}, command::hop_database, "Hops", "Hops Database"},
    {"db04", {326, 360}, command::yeast_database, "Yeast", "Yeast Database"},
    {"db05", {406, 360}, command::water_database, "Water", "Water Database"},
    {"db06", {486, 360}, command::extra_database, "Extra", "Extra Database"},
}};
// clang-format on

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
const MainScreenButton* button_at(Point point, int width, int height);

/// The files of the pictures.
std::string button_bitmap(const std::string& data_folder, const ArtScheme& scheme,
                          const MainScreenButton& button);
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
