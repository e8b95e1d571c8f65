#include "base/files.h"
#include "support/byte_probe.h"
#include "support/temporary_folder.h"

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

Bytes bytes_of(std::string_view text) {
    const auto view = std::as_bytes(std::span(text));
    return {view.begin(), view.end()};
}

void put(const std::string& path, std::string_view text) {
    std::ofstream(path, std::ios::binary) << text;
}

TEST(SaveAtomically, ReplacesAFileKeepsItsModeAndLeavesNothingElse) {
    const TemporaryFolder folder;
    const auto path = folder / "a.rec";
    ASSERT_TRUE(save_atomically(path, bytes_of("first, and longer")));
    fs::permissions(path, fs::perms{0640});
    ASSERT_TRUE(save_atomically(path, bytes_of("second")));
    EXPECT_EQ(read_file(path), bytes_of("second"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0640});
    ASSERT_TRUE(save_atomically(path, {})) << "an empty file is a file";
    EXPECT_EQ(read_file(path), Bytes());
    EXPECT_EQ(folder.entries(), 1U);
}

TEST(SaveAtomically, NewFileTakesTheUsersMask) {
    const TemporaryFolder folder;
    const auto old = ::umask(027);
    const bool saved = save_atomically(folder / "new", bytes_of("x"));
    ::umask(old);
    ASSERT_TRUE(saved);
    EXPECT_EQ(fs::status(folder / "new").permissions(), fs::perms{0640});
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
    EXPECT_EQ(folder.entries(), 3U);
    fs::create_symlink("round", folder / "round");
    EXPECT_FALSE(save_atomically(folder / "round", bytes_of("x"))) << "a link to itself";
}

TEST(SaveAtomically, RefusesWhatIsNoWritableFile) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const auto* name : {"folder", "pipe", "absent/file", ""})
        EXPECT_FALSE(save_atomically(*name ? folder / name : name, bytes_of("x"))) << name;
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_TRUE(fs::is_empty(folder / "folder"));
    EXPECT_EQ(folder.entries(), 2U) << "a temporary file stayed behind";
    EXPECT_FALSE(save_atomically("/dev/full", bytes_of("x"))) << "a device is not replaced by a file";
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

// A limit on the size of files stands in for a full disk: both end a write half-way.
TEST(SaveAtomically, WriteThatEndsHalfWayLeavesTheOldFileWhole) {
    const TemporaryFolder folder;
    put(folder / "kept", "old");
    rlimit limit = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    auto lower = limit;
    lower.rlim_cur = 1000;
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &lower), 0);
    const bool saved = save_atomically(folder / "kept", Bytes(5000));
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, old_handler);
    EXPECT_FALSE(saved);
    EXPECT_EQ(read_file(folder / "kept"), bytes_of("old"));
    EXPECT_EQ(folder.entries(), 1U);
}

TEST(SaveAtomically, RefusesAReadOnlyFileAsTheSystemWould) {
    if (::geteuid() == 0) GTEST_SKIP() << "the super-user may write everything";
    const TemporaryFolder folder;
    put(folder / "kept", "old");
    fs::permissions(folder / "kept", fs::perms{0444});
    EXPECT_FALSE(save_atomically(folder / "kept", bytes_of("new")));
    EXPECT_EQ(read_file(folder / "kept"), bytes_of("old"));
    EXPECT_EQ(folder.entries(), 1U);
}

TEST(ReadFile, TakesRegularFilesOnlyAndNoMoreThanAsked) {
    const TemporaryFolder folder;
    put(folder / "a", "0123456789");
    EXPECT_EQ(read_file(folder / "a", 4), bytes_of("0123"));
    EXPECT_EQ(read_file(folder / "a", 10), bytes_of("0123456789"));
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(read_file(folder / "pipe")) << "and does not wait for a writer";
    EXPECT_FALSE(read_file(folder.path()));
    EXPECT_FALSE(read_file(folder / "absent"));
    EXPECT_FALSE(read_file(""));
}

TEST(FindDataFile, LooksAgainWithoutRegardToCapitals) {
    const TemporaryFolder folder;
    put(folder / "hops.dat", "");
    EXPECT_EQ(find_data_file(folder.path(), "HOPS.DAT"), folder / "hops.dat");
    EXPECT_EQ(find_data_file(folder.path(), "HOPS.DA"), folder / "HOPS.DA") << "as asked where nothing fits";
    put(folder / "HOPS.DAT", "");
    EXPECT_EQ(find_data_file(folder.path(), "HOPS.DAT"), folder / "HOPS.DAT") << "the exact name wins";
    EXPECT_EQ(find_data_file(folder / "absent/", "a"), folder / "absent/a");
}

TEST(NativeFolder, HasSlashesAndOneAtTheEnd) {
    EXPECT_EQ(native_folder("C:\\Beer\\Recipes\\"), "C:/Beer/Recipes/");
    EXPECT_EQ(native_folder("/home/brewer"), "/home/brewer/");
    EXPECT_EQ(native_folder("/"), "/");
    EXPECT_EQ(native_folder(""), "");
}

} // namespace
} // namespace wortlex
