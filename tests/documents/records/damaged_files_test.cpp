#include "support/sample_documents.h"

namespace wortlex {
namespace {

// The file that `cut` would be the beginning of, if what is missing were that of a new document.
Bytes completed(ByteView cut, bool is_session) {
    Bytes counts(97);
    std::copy_n(cut.begin(), std::min(cut.size(), counts.size()), counts.begin());
    auto document = is_session ? new_session_recipe(test_settings()) : new_document(test_settings(), {});
    const auto session = new_session(document);
    const auto count = [&](std::size_t at) {
        return static_cast<std::size_t>(peek<std::int32_t>(counts, at));
    };
    document.hops.resize(count(85));
    document.malts.resize(count(89));
    document.extras.resize(count(93));
    auto whole = is_session ? session_bytes(document, session) : recipe_bytes(document);
    std::copy(cut.begin(), cut.end(), whole.begin());
    return whole;
}

// A list that the cut file could not hold on any account.
bool is_beyond(ByteView cut, const Lines& lines) {
    return (cut.size() > 85 && lines.hops * 635 > cut.size()) ||
           (cut.size() > 89 && lines.malts * 529 > cut.size()) ||
           (cut.size() > 93 && lines.extras * 589 > cut.size());
}

LoadResult read(ByteView file, Loaded& live, bool is_session) {
    return is_session ? read_session(file, live.document, live.session, test_settings())
                      : read_recipe(file, live.document, test_settings());
}

void expect_cut(ByteView cut, const Lines& lines, bool is_session) {
    Loaded loaded, expected;
    loaded.document.title.assign("live");
    if (is_beyond(cut, lines)) {
        ASSERT_EQ(read(cut, loaded, is_session), LoadResult::damaged);
        ASSERT_EQ(loaded.document.title.view(), "live");
        return;
    }
    ASSERT_EQ(read(cut, loaded, is_session), LoadResult::incomplete);
    ASSERT_EQ(read(completed(cut, is_session), expected, is_session), LoadResult::loaded);
    ASSERT_TRUE(loaded.document == expected.document && loaded.session == expected.session);
}

TEST(DocumentFiles, MayEndAnywhere) {
    for (const auto& [lines, is_session, step] :
         {std::tuple{Lines{}, false, 1U}, {Lines{1, 2, 1}, false, 3U}, {Lines{1, 1, 1}, true, 29U}}) {
        const auto file = is_session ? sample_session(lines) : sample_recipe(lines);
        for (std::size_t cut = 0; cut < file.size() && !testing::Test::HasFatalFailure(); cut += step) {
            SCOPED_TRACE(cut);
            expect_cut(ByteView(file).first(cut), lines, is_session);
        }
        expect_cut(ByteView(file).first(file.size() - 1), lines, is_session);
    }
}

TEST(DocumentFiles, DamagedCountsLeaveTheLiveDocumentUntouched) {
    struct Row {
        const char* why;
        std::size_t at;
        std::int32_t count;
    };
    for (const auto& row :
         {Row{"negative", 85, -1}, Row{"lowest", 89, std::numeric_limits<std::int32_t>::min()},
          Row{"negative extras", 93, -7}, Row{"one hop too many", 85, 40}, Row{"one malt too many", 89, 48},
          Row{"highest", 93, 2147483647}}) {
        SCOPED_TRACE(row.why);
        auto recipe = sample_recipe({}), session_file = sample_session({});
        poke(recipe, row.at, row.count);
        poke(session_file, row.at, row.count);
        session_file.resize(recipe.size());
        Loaded live;
        live.document.title.assign("live");
        live.document.mash_flags = 0x21;
        live.session.brew_year = 1999;
        const auto before = live;
        EXPECT_EQ(read_recipe(recipe, live.document, test_settings()), LoadResult::damaged);
        EXPECT_EQ(read_session(session_file, live.document, live.session, test_settings()),
                  LoadResult::damaged);
        EXPECT_TRUE(live.document == before.document && live.session == before.session);
    }
}

} // namespace
} // namespace wortlex
