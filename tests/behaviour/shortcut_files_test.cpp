// Entries as Internet Shortcuts in Favorites.
#include "browser/shortcut_files.h"

#include "core/state.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr const char* shortcutText = "[InternetShortcut]\r\nURL=http://a/\r\n";

class ShortcutFiles : public ProgramFixture {
public:
    ShortcutFiles() { start(); }

    static void write(int mode, const std::string& title = "Title") {
        shortcutMode = static_cast<std::uint8_t>(mode);
        writeShortcut(title, "http://a/", "Group");
    }
    static std::vector<std::string> inFavorites() { return driver::filesIn("C:\\Favorites"); }
    static std::vector<std::string> inGroup() { return driver::filesIn("C:\\Favorites\\Group"); }
};

TEST_F(ShortcutFiles, WithModeZeroNoFileAndNoFolderAppears) {
    write(0);
    EXPECT_THAT(inFavorites(), IsEmpty());
    EXPECT_THAT(inGroup(), IsEmpty());
}

TEST_F(ShortcutFiles, WithModeOneTheFileGoesIntoTheGroupsFolder) {
    write(1);
    EXPECT_THAT(driver::file("C:\\Favorites\\Group\\Title.url"),
                Optional(std::string(shortcutText)));
}

TEST_F(ShortcutFiles, AFolderThatIsThereTakesTheFile) {
    write(1);
    write(1, "Other");
    EXPECT_THAT(inGroup(),
                ElementsAre("C:\\Favorites\\Group\\Other.url", "C:\\Favorites\\Group\\Title.url"));
}

TEST_F(ShortcutFiles, WithModeTwoEntriesOfOneNameShareAFileAndTheLaterWins) {
    shortcutMode = 2;
    writeShortcut("Title", "http://first/", "Group");
    writeShortcut("Title", "http://a/", "Other");
    EXPECT_THAT(inFavorites(), ElementsAre("C:\\Favorites\\Title.url"));
    EXPECT_THAT(driver::file("C:\\Favorites\\Title.url"), Optional(std::string(shortcutText)));
}

TEST_F(ShortcutFiles, AnyOtherModeWantsTheGroupsFolderAndMakesNone) {
    write(3);
    EXPECT_THAT(inGroup(), IsEmpty());
    driver::makeFolder("C:\\Favorites\\Group");
    write(3);
    EXPECT_THAT(inGroup(), ElementsAre("C:\\Favorites\\Group\\Title.url"));
}

TEST_F(ShortcutFiles, ATitleThatIsNoNameGetsNoFile) {
    for (const char* title : {"a/b", "a\\b", "what?", "News: today", "a*", "\"a\"", "a|b", "<a>"}) {
        SCOPED_TRACE(title);
        write(2, title);
        EXPECT_THAT(inFavorites(), IsEmpty());
    }
}

// Wherever it leads, and though the folder is there.
TEST_F(ShortcutFiles, ATitleWithASlashGetsNoFileInAnotherFolder) {
    for (const char* folder : {"C:\\Favorites\\a", "C:\\Favorites\\Group\\a"})
        driver::makeFolder(folder);
    for (const char* title : {"a/b", "a\\b", "../b", "..\\b", "/b", "."}) {
        for (const int mode : {1, 2}) {
            SCOPED_TRACE(title);
            write(mode, title);
            for (const char* folder : {"C:", "C:\\Favorites", "C:\\Favorites\\a",
                                       "C:\\Favorites\\Group", "C:\\Favorites\\Group\\a"})
                EXPECT_THAT(driver::filesIn(folder), IsEmpty()) << folder;
        }
    }
}

TEST_F(ShortcutFiles, AGroupThatLeadsToAnotherFolderGetsNoFile) {
    driver::makeFolder("C:\\Favorites\\a\\b");
    shortcutMode = 1;
    for (const char* group : {"a/b", "a\\b", "a/c", ".", ".."}) {
        SCOPED_TRACE(group);
        writeShortcut("Title", "http://a/", group);
        for (const char* folder :
             {"C:", "C:\\Favorites", "C:\\Favorites\\a\\b", "C:\\Favorites\\a\\c"})
            EXPECT_THAT(driver::filesIn(folder), IsEmpty()) << folder;
    }
}

TEST_F(ShortcutFiles, ATitleThatIsTooLongForAPathGetsNoFile) {
    // Favorites' path, the backslash and the ending take 17 bytes of the 259.
    write(2, std::string(259 - 17, 't'));
    EXPECT_EQ(inFavorites().size(), 1u);
    write(2, std::string(259 - 16, 'u'));
    write(2, std::string(4000, 'v'));
    EXPECT_EQ(inFavorites().size(), 1u);
}

TEST_F(ShortcutFiles, AGroupThatIsNoNameGetsNoFolderAndItsEntriesNoFile) {
    for (const char* group : {"what?", "News: today", ":", "C:", "a*", "\"a\"", "a|b", "<a>",
                              "none\\deeper", "none/deeper"}) {
        SCOPED_TRACE(group);
        shortcutMode = 1;
        writeShortcut("Title", "http://a/", group);
        EXPECT_THAT(driver::filesIn("C:\\"), IsEmpty());
        EXPECT_THAT(inFavorites(), IsEmpty());
    }
    const std::string tooLong(260, 'g');
    writeShortcut("Title", "http://a/", tooLong);
    EXPECT_THAT(inFavorites(), IsEmpty());
}

// A folder's name ends before its dots and blanks, and on the way through it one dot is passed
// over.
TEST_F(ShortcutFiles, AGroupThatEndsInADotKeepsItsEntriesAndOneThatEndsOtherwiseDoesNot) {
    shortcutMode = 1;
    writeShortcut("Title", "http://a/", "etc.");
    EXPECT_THAT(driver::file("C:\\Favorites\\etc\\Title.url"), Optional(std::string(shortcutText)));
    for (const char* group : {"blank ", "dots..", "both. "}) {
        SCOPED_TRACE(group);
        writeShortcut("Title", "http://a/", group);
    }
    for (const char* folder : {"blank", "dots", "both"})
        EXPECT_THAT(driver::filesIn(std::string("C:\\Favorites\\").append(folder)), IsEmpty());
}

TEST_F(ShortcutFiles, AGroupWithoutANameKeepsItsEntriesInFavorites) {
    shortcutMode = 1;
    writeShortcut("Title", "http://a/", "");
    EXPECT_THAT(driver::file("C:\\Favorites\\Title.url"), Optional(std::string(shortcutText)));
}

TEST_F(ShortcutFiles, WithoutFavoritesThePathStartsAtTheRootOfTheDrive) {
    driver::takeFavoritesAway();
    EXPECT_EQ(specialFolder(win::CSIDL_FAVORITES), "");
    write(2);
    EXPECT_THAT(driver::file("C:\\Title.url"), Optional(std::string(shortcutText)));
    write(1);
    EXPECT_THAT(driver::file("C:\\Group\\Title.url"), Optional(std::string(shortcutText)));
}

TEST_F(ShortcutFiles, WithoutFavoritesAColonIsPartOfNoNameEither) {
    driver::takeFavoritesAway();
    write(2, ":x");
    write(2, "x:y");
    shortcutMode = 1;
    writeShortcut("Title", "http://a/", ":x");
    EXPECT_THAT(driver::filesIn("C:\\"), IsEmpty());
}

TEST_F(ShortcutFiles, AFullDiskIsPassedOver) {
    driver::setDiskRoom(0);
    write(2);
    EXPECT_THAT(driver::file("C:\\Favorites\\Title.url"), Optional(std::string()));
}

TEST_F(ShortcutFiles, AFileThatAnotherProgramHoldsStaysAsItIs) {
    driver::putFile("C:\\Favorites\\Title.url", "old");
    const auto held = driver::lockFile("C:\\Favorites\\Title.url");
    write(2);
    EXPECT_THAT(driver::file("C:\\Favorites\\Title.url"), Optional(std::string("old")));
}

TEST_F(ShortcutFiles, AWriteThatFailsIsPassedOverAndTheFileIsClosed) {
    for (const win::DWORD error : {win::ERROR_ACCESS_DENIED, win::ERROR_SHARING_VIOLATION}) {
        driver::failCall("WriteFile", 1, error);
        write(2);
        EXPECT_THAT(driver::file("C:\\Favorites\\Title.url"), Optional(std::string()));
    }
    write(2);
    EXPECT_THAT(driver::file("C:\\Favorites\\Title.url"), Optional(std::string(shortcutText)));
}

TEST_F(ShortcutFiles, APlaceThatCannotBeHadIsNoFolder) {
    driver::failCall("SHGetSpecialFolderLocation", 1, win::ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(specialFolder(win::CSIDL_FAVORITES), "");
    driver::failCall("SHGetSpecialFolderLocation", 1, win::ERROR_ACCESS_DENIED);
    write(2);
    EXPECT_THAT(driver::file("C:\\Title.url"), Optional(std::string(shortcutText)));
}

TEST_F(ShortcutFiles, AnUntranslatablePlaceIsNoFolder) {
    driver::failCall("SHGetPathFromIDListA", 1, win::ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(specialFolder(win::CSIDL_FAVORITES), "");
}

}  // namespace
}  // namespace magpie
