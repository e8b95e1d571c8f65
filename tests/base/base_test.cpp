#include "base/folder_guard.h"
#include "base/number.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "support/file_content.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <csignal>
#include <locale>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

TEST(SaveAtomically, ReplacesAFileKeepsItsModeAndLeavesNothingElse) {
    const TemporaryFolder folder;
    const auto path = folder / "a.rec";
    const auto mask = ::umask(027);
    EXPECT_TRUE(save_atomically(path, bytes_of("first, and longer")));
    ::umask(mask);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0640}) << "a new file takes the user's mask";
    fs::permissions(path, fs::perms{0604});
    ASSERT_TRUE(save_atomically(path, bytes_of("second")));
    EXPECT_EQ(read_file(path), bytes_of("second"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0604});
    ASSERT_TRUE(save_atomically(path, {})) << "an empty file is a file";
    EXPECT_EQ(read_file(path), Bytes());
    EXPECT_EQ(folder.entries(), 1);
}

TEST(SaveAtomically, GoesThroughSymbolicLinks) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "far");
    fs::create_symlink("far/target", folder / "relative");
    fs::create_symlink("relative", folder / "link");
    ASSERT_TRUE(save_atomically(folder / "link", bytes_of("through a dangling link"))); // makes the target
    ASSERT_TRUE(save_atomically(folder / "link", bytes_of("x")));
    EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "relative"));
    EXPECT_EQ(read_file(folder / "far/target"), bytes_of("x"));
    EXPECT_EQ(folder.entries(), 3);
    fs::create_symlink("round", folder / "round");
    EXPECT_FALSE(save_atomically(folder / "round", bytes_of("x"))) << "a link to itself";
}

TEST(SaveAtomically, RefusesWhatIsNoWritableFile) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    write_content(folder / "kept", "old");
    fs::permissions(folder / "kept", fs::perms{0444});
    for (const auto& path : {folder / "folder", folder / "pipe", folder / "absent/file", std::string()})
        EXPECT_FALSE(save_atomically(path, bytes_of("x"))) << path;
    if (::geteuid() != 0) { // the super-user may write everything
        EXPECT_FALSE(save_atomically(folder / "kept", bytes_of("new")));
    }
    EXPECT_EQ(read_file(folder / "kept"), bytes_of("old"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe") && fs::is_empty(folder / "folder"));
    EXPECT_EQ(folder.entries(), 3) << "a temporary file stayed behind";
    EXPECT_FALSE(save_atomically("/dev/full", bytes_of("x"))) << "a device is not replaced by a file";
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

// A limit on the size of files stands in for a full disk: both end a write half-way.
TEST(SaveAtomically, WriteThatEndsHalfWayLeavesTheOldFileWhole) {
    const TemporaryFolder folder;
    write_content(folder / "kept", "old");
    rlimit limit = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit lower{1000, limit.rlim_max};
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &lower), 0);
    ScriptedPrompts prompts;
    prompts.expect_tell(
        "kept could not be written: there is no room for it on the disk.\nNothing is changed. Make "
        "room, or save it on another disk.",
        Icon::warning);
    const bool saved = save_or_tell(folder / "kept", Bytes(5000), prompts);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, old_handler);
    EXPECT_FALSE(saved);
    EXPECT_EQ(read_file(folder / "kept"), bytes_of("old"));
    EXPECT_EQ(folder.entries(), 1);
}

TEST(FolderGuard, KeepsASecondProgramOutAndNobodyElse) {
    const TemporaryFolder folder;
    for (const std::string left : {"", "4711\nwortlex\nanother-machine\n", "\xFF\xFE rubbish"}) {
        const auto brewery = folder / "Br\xE4u/"; // a name in another encoding than ours
        fs::create_directory(brewery);
        ASSERT_TRUE(save_atomically(brewery + ".wortlex.lock", bytes_of(left)));
        const FolderGuard first(brewery);
        EXPECT_FALSE(first.is_open_elsewhere()) << left;
        EXPECT_TRUE(FolderGuard(brewery).is_open_elsewhere());
    }
    fs::create_directory(folder / ".wortlex.lock");
    EXPECT_FALSE(FolderGuard(folder.path()).is_open_elsewhere());
    EXPECT_FALSE(FolderGuard(folder / "none/").is_open_elsewhere());
}

TEST(Files, AreReadIfRegularAndFoundWithoutRegardToCapitals) {
    const TemporaryFolder folder;
    write_content(folder / "hops.dat", "0123456789");
    EXPECT_EQ(read_file(folder / "hops.dat", 4), bytes_of("0123"));
    EXPECT_EQ(read_file(folder / "hops.dat", 10), bytes_of("0123456789"));
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0); // whose writer is not waited for
    for (const auto& path : {folder / "pipe", folder.path(), folder / "absent", std::string()})
        EXPECT_FALSE(read_file(path)) << path;
    EXPECT_EQ(find_data_file(folder.path(), "HOPS.DAT"), folder / "hops.dat");
    EXPECT_EQ(find_data_file(folder.path(), "HOPS.DA"), folder / "HOPS.DA") << "as asked where nothing fits";
    write_content(folder / "HOPS.DAT", "");
    EXPECT_EQ(find_data_file(folder.path(), "HOPS.DAT"), folder / "HOPS.DAT") << "the exact name wins";
    EXPECT_EQ(find_data_file(folder / "absent/", "a"), folder / "absent/a");
    // clang-format off
    for (const auto& [stored, native] : {std::pair{"C:\\Beer\\Recipes\\", "C:/Beer/Recipes/"},
         {"/home/brewer", "/home/brewer/"}, {"/", "/"}, {"", ""}})
        // clang-format on
        EXPECT_EQ(native_folder(stored), native);
}

TEST(Numbers, NarrowRoundsAndTruncateIsDefinedForAll) {
    EXPECT_EQ(narrow(16777217.0), 16777216.0F) << "halfway goes to the even one";
    EXPECT_EQ(narrow(16777219.0), 16777220.0F);
    EXPECT_TRUE(std::isinf(narrow(1e300)) && std::isnan(narrow(NAN)));
    constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
    // clang-format off
    for (const auto& [x, cut] : {std::pair{2.999, 2}, {-2.999, -2}, {-0.5, 0}, {2147483647.9, 2147483647},
         {2147483648.0, lowest}, {-2147483648.9, lowest}, {-2147483649.0, lowest}, {INFINITY, lowest},
         {-INFINITY, lowest}, {NAN, lowest}})
        // clang-format on
        EXPECT_EQ(truncate(x), cut) << x;
}

void expect_prints_and_reads() {
    EXPECT_EQ(fixed(1234.5, 2), "1234.50");
    EXPECT_EQ(fixed(2.5, 0), "2") << "as C prints it: half to even";
    EXPECT_EQ(fixed(-0.004, 2), "-0.00");
    EXPECT_EQ(fixed(-1e308, 2).size(), 1U + 309 + 3);
    EXPECT_EQ(fixed(NAN, 2) + fixed(-INFINITY, 0), "----");
    EXPECT_EQ(significant(0.25, 6), "0.25");
    EXPECT_EQ(significant(1234567.0, 6), "1.23457e+06");
    for (const auto& [text, number] : {std::pair{" 1.25\r\n", 1.25}, {"+.5", 0.5}, {"-1e3", -1000.0}})
        EXPECT_EQ(parse_number(text), number);
    EXPECT_EQ(parse_whole(" +42 "), 42);
    EXPECT_EQ(parse_whole("-2147483648"), std::numeric_limits<std::int32_t>::min());
    for (const auto* rubbish :
         {"", " ", "+", "-", "+-1", "--1", "1,5", "1.5x", "1 2", "0x10", "1e", ".", "1e999", "inf", "nan"})
        EXPECT_FALSE(parse_number(rubbish)) << '"' << rubbish << '"';
    for (const auto* rubbish : {"", "2147483648", "1.0", "1e3", "+-1", "4 2"})
        EXPECT_FALSE(parse_whole(rubbish)) << '"' << rubbish << '"';
    EXPECT_FALSE(parse_number(std::string_view("1\0", 2)));
}

struct Commas : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Numbers, ReadAndPrintAlikeInEveryLocale) {
    expect_prints_and_reads();
    for (const auto* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"})
        if (std::setlocale(LC_ALL, name)) break;
    std::locale::global(std::locale(std::locale(), new Commas));
    expect_prints_and_reads();
    std::locale::global(std::locale::classic());
}

TEST(Windows1252, CharactersAreThoseOfTheCodePage) {
    std::string every, upper = "K\xF6lsch ";
    for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
    EXPECT_EQ(windows1252_from_utf8(utf8_from_windows1252(every)), every);
    for (int byte = 0x80; byte < 0xA1; ++byte) upper += static_cast<char>(byte);
    EXPECT_EQ(utf8_from_windows1252(upper),
              "K\u00F6lsch "
              "\u20AC\xC2\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\xC2\x8D\u017D"
              "\xC2\x8F\xC2\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\xC2"
              "\x9D\u017E\u0178\u00A0");
    // Beyond the code page, a byte that means the Euro, cut, without a beginning, too long, half a pair.
    for (const auto* bad : {"\u0100", "\xC2\x80", "\U0001F37A", "a\xC3", "\xE2\x82", "\x82", "\xC3z",
                            "\xC0\xAF", "\xE0\x83\xB6", "\xED\xA0\x80", "\xFF"})
        EXPECT_FALSE(windows1252_from_utf8(bad)) << bad;
}

TEST(Text, EndsWithItsNulOrWithTheArray) {
    Text<4> text, other("a");
    EXPECT_TRUE(text.empty());
    text.assign("too long");
    EXPECT_EQ(text.view(), "too") << "a NUL is kept behind it";
    text.bytes = {'f', 'u', 'l', 'l'};
    EXPECT_EQ(text.view(), "full") << "not terminated";
    text.assign(std::string_view("a\0b", 3));
    EXPECT_EQ(text.bytes, (std::array<char, 4>{'a', '\0', '\0', '\0'})) << "clears what stood there";
    other.bytes[3] = 'z';
    EXPECT_TRUE(text == other) << "what stands behind the NUL does not count";
    EXPECT_FALSE(text == Text<4>("b"));
}

} // namespace
} // namespace wortlex
