#include "program/brewery_folder.h"

#include "base/files.h"
#include "support/file_content.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

namespace fs = std::filesystem;

// An installed program and a user, neither of whom has started it yet.
struct Installed {
    TemporaryFolder place;
    ScriptedPrompts prompts;
    StartPlaces places{place / "elsewhere/", place / "a prefix/bin/", place / "Anna's home/"};
    std::string shipped = place / "a prefix/share/wortlex/brewery/";
    std::string own = places.user_data + "wortlex/";

    Installed() {
        fs::create_directories(shipped + "Recipes");
        fs::create_directories(places.programs);
        fs::create_directories(places.working);
        for (const char* const file : {"WlxMSys.DAT", "HOPS.DAT", "Recipes/Ale.rec"}) {
            write_content(shipped + file, std::string("shipped ") + file);
            fs::permissions(shipped + file, fs::perms::owner_read);
        }
    }
    std::optional<std::string> open() { return open_brewery(places, prompts); }
    void expect_fault() {
        prompts.expect_tell("The brewery folder cannot be made or filled. Is the disk full, or a folder "
                            "read-only?\n" +
                                own,
                            Icon::error);
    }
};

TEST(BreweryFolder, IsFilledOnceAndNeverOverWhatIsThere) {
    Installed installed;
    fs::create_directories(installed.own);
    write_content(installed.own + "hops.dat", "mine");
    write_content(installed.own + "Recipes", "in the way of a folder");
    installed.expect_fault();
    EXPECT_FALSE(installed.open());
    fs::remove(installed.own + "Recipes");
    EXPECT_EQ(installed.open(), installed.own);
    EXPECT_EQ(content_of(installed.own + "hops.dat"), "mine");
    EXPECT_FALSE(fs::exists(installed.own + "HOPS.DAT")) << "the same file but for capitals";
    const auto recipe = installed.own + "Recipes/Ale.rec";
    EXPECT_EQ(content_of(recipe), "shipped Recipes/Ale.rec");
    EXPECT_NE(fs::status(recipe).permissions() & fs::perms::owner_write, fs::perms::none);
    fs::remove(recipe);
    EXPECT_EQ(installed.open(), installed.own);
    EXPECT_FALSE(fs::exists(recipe)) << "what the brewer deletes stays away";
    EXPECT_FALSE(fs::exists(installed.own + ".wortlex-copy")) << "a half of a file is left";
}

TEST(BreweryFolder, IsWhereTheProgramIsStartedOrBelongs) {
    Installed installed;
    auto& places = installed.places;
    EXPECT_EQ(shipped_data(places.programs), installed.shipped);
    auto home = std::exchange(places.user_data, "");
    installed.prompts.expect_tell("There is no home folder to keep the brewery in.", Icon::error);
    EXPECT_FALSE(installed.open());
    places.user_data = home;
    const auto portable = installed.place / "a prefix/brewery/";
    fs::create_directory(portable);
    EXPECT_EQ(installed.open(), portable);
    EXPECT_TRUE(fs::exists(portable + "HOPS.DAT"));
    write_content(places.working + "wlxmsys.dat", "of another brewery");
    EXPECT_EQ(installed.open(), places.working);
    EXPECT_FALSE(fs::exists(installed.own));
    places.programs = installed.place / "build/src/";
    fs::remove(places.working + "wlxmsys.dat");
    EXPECT_EQ(installed.open(), places.working) << "a build tells of missing settings";
    EXPECT_EQ(shipped_data(places.programs), "");
    fs::create_directories(installed.place / "build/brewery");
    EXPECT_EQ(shipped_data(places.programs), installed.place / "build/brewery/");
}

} // namespace
} // namespace wortlex
