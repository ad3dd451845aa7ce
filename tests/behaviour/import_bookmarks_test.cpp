// The import of other browsers' bookmarks: groups and entries come by the library's events alone.
#include <gmock/gmock.h>

#include "config/companion.h"
#include "config/pienest.h"
#include "tests/behaviour/companion_fixture.h"
#include "tests/unit/runtime/failure_of.h"
#include "views/refresh.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ImportBookmarks : public CompanionFixture {
public:
    static void newGroup(Library& mb, const std::string& name) {
        const win::VARIANT handed[] = {name};
        mb.raise(pienest::newGroup, handed);
    }
    static void bungURL(Library& mb, const std::string& title, const std::string& url) {
        const win::VARIANT handed[] = {title, url};
        mb.raise(pienest::bungURL, handed);
    }

    // A library that brings two groups with three entries.
    static void bringSome(Library& mb) {
        newGroup(mb, "Favorites");
        bungURL(mb, "One", "http://one/");
        newGroup(mb, "Deep - Deeper");
        bungURL(mb, "Two", "http://two/");
        bungURL(mb, "Three", "http://three/");
    }

    static std::vector<std::string> groups() {
        std::vector<std::string> names;
        for (std::int32_t at = 0; at < IDXList.uBound(); ++at) names.push_back(IDXList[at].Name);
        return names;
    }

    static double ownerOf(int record) { return uBlock.URLDatas().Item(record).Owner; }
};

TEST_F(ImportBookmarks, FavoritesComeIntoGroupsOfTheirOwn) {
    open();
    during("ImportFavorites", bringSome);
    chooseFromMenu("IE Favorites");
    EXPECT_THAT(done, ElementsAre("ImportFavorites()"));
    EXPECT_THAT(arguments, ElementsAre(number(reinterpret_cast<std::intptr_t>(Form1.hWnd()))));
    EXPECT_THAT(groups(), ElementsAre("Reference", "Work", "Favorites", "Deep - Deeper"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 6);
    EXPECT_EQ(ownerOf(4), 2);
    EXPECT_EQ(ownerOf(5), 3);
    EXPECT_EQ(ownerOf(6), 3);
    EXPECT_EQ(Form3.mb, nullptr);
    EXPECT_EQ(driver::objects(), 0);
}

TEST_F(ImportBookmarks, TheInterfaceIsHeldWhileFavoritesComeAndNotForABookmarkFile) {
    open();
    int held = -1;
    during("ImportFavorites", [&](Library&) { held = modalOpen; });
    chooseFromMenu("IE Favorites");
    EXPECT_EQ(held, 1);
    EXPECT_EQ(modalOpen, 0);
    during("ImportNetscape", [&](Library&) { held = modalOpen; });
    chooseFromMenu("Netscape .HTM");
    EXPECT_EQ(held, 0);
    modalOpen = 3;
    importNetscape();
    EXPECT_EQ(held, 3);
    EXPECT_EQ(modalOpen, 3);
}

TEST_F(ImportBookmarks, ABookmarkFileIsTheLibrarysChoice) {
    open();
    during("ImportNetscape", [](Library& mb) {
        win::VARIANT window;
        EXPECT_EQ(
            ask(objectIn(mb.properties["Host"]), "hWnd", win::DISPATCH_PROPERTYGET, {}, &window),
            0);
        EXPECT_EQ(window, win::VARIANT(number(reinterpret_cast<std::intptr_t>(Form3.hWnd()))));
        bringSome(mb);
    });
    chooseFromMenu("Netscape .HTM");
    EXPECT_THAT(done, ElementsAre("Host", "ImportNetscape()"));
    EXPECT_THAT(arguments, ElementsAre(win::VARIANT(flag)));
    EXPECT_EQ(uBlock.URLDatas().Count(), 6);
}

TEST_F(ImportBookmarks, IntoAnEmptyFileNothingHappensUntilTheEventsComeAndTheListShowsItAtTheEnd) {
    putStackFile("");
    open();
    clickTab(2);
    during("ImportFavorites", [](Library& mb) {
        EXPECT_EQ(IDXList.uBound(), 0);
        EXPECT_EQ(uBlock.URLDatas().Count(), 0);
        bringSome(mb);
        EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    });
    chooseFromMenu("IE Favorites");
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 2);
    EXPECT_EQ(Form3.Combo1[1].List(1), "Deep - Deeper");
}

TEST_F(ImportBookmarks, OfAllTickedGroupsTheListShowsWhatCameAsWell) {
    open();
    clickTab(1);
    Form3.advMode = 0;
    RefreshURLPage();
    ASSERT_THAT(titlesInView(), SizeIs(3));
    during("ImportFavorites", bringSome);
    bool refreshing = false;
    driver::atPump(1, [&refreshing] {
        refreshing = true;
        EXPECT_EQ(uBlock.URLDatas().Count(), 6);
        EXPECT_EQ(Form3.mb, nullptr);
        EXPECT_EQ(modalOpen, 0);
    });
    chooseFromMenu("IE Favorites");
    EXPECT_TRUE(refreshing);
    EXPECT_THAT(titlesInView(), ElementsAre("Front page", "Tools", "Plan", "One", "Two", "Three"));
    EXPECT_EQ(Form3.ListView1[3].Count(), 4);
    EXPECT_EQ(Form3.ListView1[3].Row(4).Text(), "Deep - Deeper");
}

TEST_F(ImportBookmarks, TheLibraryIsToldTheLastGroupsNumber) {
    open();
    during("ImportFavorites", [this](Library& mb) {
        newGroup(mb, "Favorites");
        mb.raise(pienest::storeLastRootOwner);
        EXPECT_EQ(done.back(), "lastRootOwner()");
        EXPECT_THAT(arguments, ElementsAre(number(IDXList.uBound() - 1)));
        EXPECT_THAT(arguments, ElementsAre(number(2)));
    });
    chooseFromMenu("IE Favorites");
    EXPECT_THAT(done, ElementsAre("ImportFavorites()", "lastRootOwner()"));
}

TEST_F(ImportBookmarks, WithoutAnImportNobodyAsksForTheLastGroup) {
    open();
    mb_storeLastRootOwner();
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(ImportBookmarks, AnImportOfNothingChangesNothing) {
    open();
    chooseFromMenu("IE Favorites");
    chooseFromMenu("Netscape .HTM");
    EXPECT_THAT(groups(), ElementsAre("Reference", "Work"));
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(ImportBookmarks, WhatIsNoTextIsRefused) {
    open();
    during("ImportFavorites", [](Library& mb) {
        const win::VARIANT handed[] = {std::int64_t{7}};
        mb.raise(pienest::newGroup, handed);
        mb.raise(pienest::bungURL, handed);
        mb.raise(99);
    });
    chooseFromMenu("IE Favorites");
    EXPECT_THAT(groups(), ElementsAre("Reference", "Work"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

// What goes wrong ----------------------------------------------------------------------------

TEST_F(ImportBookmarks, WithoutTheLibraryNothingComesAndTheProgramGoesOn) {
    open();
    for (void (*import)() : {importFavorites, importNetscape}) {
        driver::failCall("CoCreateInstanceFrom", 1, win::ERROR_MOD_NOT_FOUND);
        EXPECT_EQ(failureOf([&] { import(); }), failure::cannotCreateObject);
        EXPECT_EQ(modalOpen, 0);
        EXPECT_EQ(Form3.mb, nullptr);
    }
    driver::failCall("CoCreateInstanceFrom", 1, win::ERROR_MOD_NOT_FOUND);
    chooseFromMenu("IE Favorites");
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(ImportBookmarks, AnImportThatFailsKeepsWhatCameAndGivesTheInterfaceBack) {
    open();
    during("ImportFavorites", bringSome);
    failing("ImportFavorites");
    EXPECT_NE(failureOf([] { importFavorites(); }), 0);
    EXPECT_EQ(uBlock.URLDatas().Count(), 6);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(Form3.mb, nullptr);
    EXPECT_EQ(driver::objects(), 0);
}

// The line is watched under a bookmark file, and not under Favorites.
TEST_F(ImportBookmarks, TheLineThatFallsMeanwhileFlushesUnderABookmarkFileAlone) {
    open();
    driver::advance(4000);
    ASSERT_NE(isOnline, 0);
    lineCheck = 0;
    during("ImportFavorites", [](Library&) {
        driver::advance(8000);
        EXPECT_NE(isOnline, 0);
        EXPECT_TRUE(Form3.loaded());
    });
    chooseFromMenu("IE Favorites");
    during("ImportNetscape", [](Library& mb) {
        driver::advance(8000);
        EXPECT_EQ(isOnline, 0);
        EXPECT_FALSE(Form3.loaded());
        bringSome(mb);
    });
    chooseFromMenu("Netscape .HTM");
    EXPECT_THAT(done, ElementsAre("ImportFavorites()", "Host", "ImportNetscape()"));
    expectResident();
}

// Neither what still comes nor the refresh at the end brings the window back.
TEST_F(ImportBookmarks, AFlushUnderAnImportFromTheMenuEndsIt) {
    open();
    during("ImportFavorites", [](Library& mb) {
        newGroup(mb, "Before");
        chooseFromTray("Flush");
        bringSome(mb);
        EXPECT_FALSE(Form3.loaded());
    });
    chooseFromMenu("IE Favorites");
    expectResident();
    EXPECT_EQ(driver::objects(), 0);
    clickPad();
    EXPECT_THAT(groups(), ElementsAre("Reference", "Work"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(ImportBookmarks, TheProgramsEndUnderAnImportTakesEverythingAlong) {
    open();
    during("ImportFavorites", [](Library& mb) {
        chooseFromTray("Unload");
        bringSome(mb);
    });
    chooseFromMenu("IE Favorites");
    EXPECT_EQ(driver::objects(), 0);
    expectGone();
}

TEST_F(ImportBookmarks, AMainWindowThatIsFlushedMeanwhileLetsGoOfTheImport) {
    open();
    during("ImportFavorites", [](Library& mb) {
        chooseFromTray("Flush");
        EXPECT_EQ(Form3.mb, nullptr);
        mb.raise(pienest::storeLastRootOwner);
    });
    importFavorites();
    EXPECT_THAT(done, ElementsAre("ImportFavorites()"));
    EXPECT_EQ(driver::objects(), 0);
}

}  // namespace
}  // namespace magpie
