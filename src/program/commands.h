// What can be asked for in menus and on the main screen, by number.
#pragma once

#include <functional>
#include <map>
#include <string_view>
#include <vector>

namespace wortlex {

namespace command {

inline constexpr int system_settings = 40001;
inline constexpr int new_recipe = 40003;
inline constexpr int open_recipe = 40004;
inline constexpr int new_session = 40005;
inline constexpr int open_session = 40006;
inline constexpr int units = 40007;
inline constexpr int hop_time_degradation = 40008;
inline constexpr int water_profile = 40011;
inline constexpr int strike_temperature = 40012;
inline constexpr int mash_designer = 40013;
inline constexpr int water_needed = 40014;
inline constexpr int style_database = 40015;
inline constexpr int malt_database = 40016;
inline constexpr int hop_database = 40017;
inline constexpr int yeast_database = 40018;
inline constexpr int water_database = 40019;
inline constexpr int extra_database = 40020;
inline constexpr int hop_ibu = 40021;
inline constexpr int carbonation = 40022;
inline constexpr int hydrometer = 40032;
inline constexpr int tutorials = 40033;
inline constexpr int alcohol = 40034;
inline constexpr int time_line = 40035;
inline constexpr int dilution = 40040;
inline constexpr int boil_off = 40041;
inline constexpr int date_calculator = 40042;
inline constexpr int raw_wort_gravity = 40045;
inline constexpr int fermentation_gravity = 40046;
inline constexpr int residual_extract = 40047;
inline constexpr int temporary_calibration = 40048;
inline constexpr int refractometer_overview = 40049;
inline constexpr int exit = 999;
inline constexpr int about = 1036;
inline constexpr int help_contents = 1052;

// Of a document window. In its menu `open_recipe` stands for its own kind of document.
inline constexpr int new_document = 40027;
inline constexpr int save_as = 40037;
inline constexpr int save = 8004;
inline constexpr int print = 414;
inline constexpr int close = 10060;

/// A number of our own, for the submenu of recent documents: its entries have no commands.
inline constexpr int open_recent = 41000;
/// Another one, for the log.
inline constexpr int show_log = 41001;

} // namespace command

/// A `&` stands before the letter that picks the entry, unique in its menu. An entry with entries of its own
/// is a submenu and has no command.
struct MenuEntry {
    std::string_view caption;
    int command = 0;
    std::vector<MenuEntry> entries = {};
};

/// The menu bar of recipe and session windows.
std::vector<MenuEntry> document_menu();

/// Who carries out which command. A command that nobody carries out does nothing; menus show it disabled.
class CommandTable {
public:
    /// A later action takes the place of an earlier one.
    void carry_out(int command, std::function<void()> action);
    bool is_built(int command) const;
    void start(int command);

private:
    std::map<int, std::function<void()>> actions_;
};

} // namespace wortlex
