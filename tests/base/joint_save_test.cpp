#include "base/joint_save.h"
#include "support/file_content.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// Two files and one that is to go, all "old".
struct JointDesk {
    TemporaryFolder folder;
    std::string journal = folder / "journal";

    JointDesk() {
        for (const auto* const name : {"a", "b", "gone"}) save_atomically(folder / name, bytes_of("old"));
    }
    std::string content() const {
        std::string all;
        for (const auto* const name : {"a", "b", "gone"})
            all += (std::filesystem::exists(folder / name) ? content_of(folder / name) : "none") + ' ';
        return all;
    }
    std::vector<FileChange> changes() const {
        return {
            {folder / "a", bytes_of("new")}, {folder / "b", bytes_of("n")}, {folder / "gone", std::nullopt}};
    }
};

// What a save leaves that is killed as soon as its journal stands.
const std::string left_journal = std::string("Wortlex joint save 1\n") + std::string("\3\0\0\0", 4) +
                                 std::string("\1\0\0\0a\3\0\0\0new", 12) +
                                 std::string("\1\0\0\0b\1\0\0\0n", 10) +
                                 std::string("\4\0\0\0gone\xFF\xFF\xFF\xFF", 12);

TEST(JointSave, MakesAllChangesOrNone) {
    const JointDesk desk;
    auto refused = desk.changes();
    refused.push_back({desk.folder / "missing/c", Bytes()});
    EXPECT_EQ(save_jointly(desk.journal, refused), JointSave::refused);
    EXPECT_EQ(desk.content(), "old old old ");
    EXPECT_EQ(desk.folder.entries(), 3) << "nothing is left lying about";
    EXPECT_EQ(save_jointly(desk.journal, desk.changes()), JointSave::done);
    EXPECT_EQ(desk.content(), "new n none ");
    EXPECT_EQ(desk.folder.entries(), 2);
}

TEST(JointSave, AKilledOneIsFinished) {
    const JointDesk desk;
    EXPECT_EQ(finish_joint_save(desk.journal), LeftChanges::none);
    save_atomically(desk.journal, bytes_of(left_journal));
    EXPECT_EQ(read_journal(bytes_of(left_journal), desk.folder / ""), desk.changes());
    EXPECT_EQ(finish_joint_save(desk.journal), LeftChanges::made);
    EXPECT_EQ(desk.content(), "new n none ");
    EXPECT_FALSE(read_file(desk.journal));
}

TEST(JointSave, WhatCannotBeWrittenWaitsAlone) {
    const JointDesk desk;
    std::filesystem::remove(desk.folder / "b");
    std::filesystem::create_directory(desk.folder / "b");
    save_atomically(desk.journal, bytes_of(left_journal));
    EXPECT_EQ(finish_joint_save(desk.journal), LeftChanges::wait);
    EXPECT_EQ(save_jointly(desk.journal, desk.changes()), JointSave::refused) << "nothing goes before it";
    save_atomically(desk.folder / "a", bytes_of("newer"));
    std::filesystem::remove(desk.folder / "b");
    EXPECT_EQ(finish_joint_save(desk.journal), LeftChanges::made);
    EXPECT_EQ(desk.content(), "newer n none ") << "what was made is not made again";
}

TEST(JointSave, ACutJournalIsNone) {
    const JointDesk desk;
    for (std::size_t size = 0; size < left_journal.size(); ++size)
        EXPECT_TRUE(read_journal(bytes_of(left_journal.substr(0, size)), "").empty()) << size;
    save_atomically(desk.journal, bytes_of(left_journal.substr(0, 40)));
    EXPECT_EQ(finish_joint_save(desk.journal), LeftChanges::none);
    EXPECT_EQ(save_jointly(desk.journal, desk.changes()), JointSave::done);
}

} // namespace
} // namespace wortlex
