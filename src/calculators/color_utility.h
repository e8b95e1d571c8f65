// The Color Spectrum Utility: the colour table row by row, its previews and its files.
#pragma once

#include "base/ports/clock.h"
#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "base/ports/surface.h"
#include "brewing/beer_colour.h"
#include "forms/form.h"

namespace wortlex {

/// What the utility works on. All must outlive it.
struct ColorUtilityDesk {
    ColorTable& live;      ///< that the swatches are painted with
    SystemSettings& image; ///< calibration and global adjust are edited in it at once
    std::string data_folder;
    Files& files;
    Prompts& prompts;
    Pictures& pictures;
    const Clock& clock;
};

/// The ways to paint a row.
enum class ColorPreview { raw, adjusted, raw_alpha, adjusted_alpha };

/// Works on a copy of the live table.
class ColorUtility {
public:
    explicit ColorUtility(const ColorUtilityDesk& desk);

    /// 0x00BBGGRR of the chosen row.
    std::uint32_t preview(ColorPreview as) const;
    /// Adds the adjustments to the colours of the chosen row, or of all; each is kept within 0 and 255.
    void combine_single();
    void combine_all();

    /// The four ways to load and the two to save; each asks what it must.
    void load_table();
    void load_text();
    void load_picture();
    void save_table();
    void save_default();
    void reset();

    /// Whether the window may close. If so, the live table is the edited one, or the one of the start.
    bool accept();
    bool cancel();

    std::int32_t global_adjust() const { return desk_.image.color_alpha >> 8; }
    void set_global_adjust(std::int32_t adjust);
    ColorRow& chosen() { return work.rows[static_cast<std::size_t>(selected)]; }
    const ColorRow& chosen() const { return work.rows[static_cast<std::size_t>(selected)]; }
    SystemSettings& image() { return desk_.image; }
    const Settings& units() const { return units_; }

    ColorTable work;
    std::int32_t selected = 0; ///< always a row

private:
    void combine(ColorRow& row) const;
    bool asked(std::string_view question) const;
    void fail(std::string_view text) const;
    void take_origin(const std::string& path);
    bool is_modified() const;

    ColorUtilityDesk desk_;
    Settings units_; ///< of the image: what the user has just chosen counts
    ColorTable backup_;
};

void color_utility_form(Form& form, ColorUtility& utility);

/// The entries of its menu "File".
struct ColorUtilityEntry {
    std::string_view caption;
    void (ColorUtility::*action)();
};
inline constexpr std::array<ColorUtilityEntry, 6> color_utility_menu = {
    {{"&Load LDT File", &ColorUtility::load_table},
     {"Load File From &Tab Delineated Text", &ColorUtility::load_text},
     {"Load File From &JPG Image", &ColorUtility::load_picture},
     {"&Save As LDT File", &ColorUtility::save_table},
     {"Save As &Default, \"kv_lovrgb.ldt\"", &ColorUtility::save_default},
     {"&Reset From Wortlex Executable", &ColorUtility::reset}}};

} // namespace wortlex
