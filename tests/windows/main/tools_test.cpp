#include "windows/main/main_menu.h"
#include "windows/main/tools.h"

#include <gmock/gmock.h>

#include <set>

namespace wortlex {
namespace {

// A menu as its commands, submenus in brackets. Every letter picks one entry; every entry leads somewhere.
std::string commands_of(const std::vector<MenuEntry>& menu) {
    std::string commands;
    std::set<char> letters;
    for (const auto& entry : menu) {
        const char letter = entry.caption.substr(entry.caption.find('&') + 1).front();
        EXPECT_TRUE(letters.insert(static_cast<char>(letter | 0x20)).second) << entry.caption;
        EXPECT_NE(entry.command == 0, entry.entries.empty()) << entry.caption;
        commands += entry.entries.empty() ? std::to_string(entry.command) + ' '
                                          : "[ " + commands_of(entry.entries) + "] ";
    }
    return commands;
}

TEST(Menus, ReachEveryCommandByALetter) {
    EXPECT_EQ(commands_of(document_menu()), "[ 40027 40004 8004 40037 414 10060 ] ");
    const std::string instruments = "[ 40034 40032 ] [ 40048 40045 40046 40047 40049 ] ";
    EXPECT_EQ(commands_of(main_menu()),
              "[ [ 40003 40005 ] [ 40004 40006 ] 41000 999 ] "
              "[ 40034 40041 40022 40040 40021 40008 40032 40013 40012 40007 40014 40011 " +
                  instruments + "40042 40035 ] [ " + instruments +
                  "] [ 40015 40016 40017 40018 40019 40020 ] [ 40001 ] [ 1052 40033 41001 1036 ] ");
}

TEST(Menus, NameACommandByItsPlace) {
    const auto menu = main_menu();
    EXPECT_EQ(menu[1].entries[6].caption, "&Hydrometer Calculator");
    EXPECT_EQ(menu[1].entries[12].entries[1].caption, "&Temperature Correction Calculator");
}

TEST(MainScreen, FindsTheButtonUnderAPoint) {
    const auto buttons = main_screen_buttons();
    const auto command_at = [&](int x, int y, int width, int height) {
        const auto* const button = button_at(buttons, {x, y}, width, height);
        return button ? button->command : 0;
    };
    const std::pair<int, std::vector<std::pair<int, int>>> rows[] = {
        {76, {{86, 40003}, {186, 40004}, {386, 40005}, {486, 40006}}},
        {180, {{86, 40007}, {166, 40008}, {246, 40021}, {326, 40011}, {406, 40014}, {486, 40041}}},
        {260, {{86, 40012}, {166, 40013}, {246, 40022}, {326, 40032}, {406, 40034}, {486, 40040}}},
        {360, {{86, 40015}, {166, 40016}, {246, 40017}, {326, 40018}, {406, 40019}, {486, 40020}}}};
    for (const auto& [y, places] : rows)
        for (const auto& [x, command] : places) {
            EXPECT_EQ(command_at(x, y, 300, 200), command) << "a small area cuts the frame off";
            EXPECT_EQ(command_at(x + 64 + 50, y + 64 + 10, 741, 501), command) << "half pixels are cut off";
            EXPECT_EQ(command_at(x + 65, y, 640, 480) + command_at(x, y + 65, 640, 480), 0) << command;
        }
    EXPECT_EQ(button_bitmap("/b/", art_scheme(3), tool_of(command::boil_off).button), "/b/art/cb12_3.bmp");
    EXPECT_EQ(background_bitmap("/b/", art_scheme(5)), "/b/art/KVBack.bmp");
}

} // namespace
} // namespace wortlex
