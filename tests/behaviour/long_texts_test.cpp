// Names and addresses longer than the 254 characters of which the list tells.
#include "tests/behaviour/entry_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;
using testing::ElementsAre;
using testing::IsEmpty;

class LongTexts : public EntryFixture {
public:
    // The three records of "A" in view, the second one selected.
    static void openOnSecond() {
        open();
        clickRow(records(), 2, Button::left);
    }
};

TEST_F(LongTexts, ANewEntryKeepsThemWhole) {
    open();
    const std::string name(2000, 'n');
    const std::string url = std::string("http://").append(40000, 'u');
    adding([&] {
        writeName(name);
        writeUrl(url);
        accept();
    });
    EXPECT_EQ(newest().Name(), name);
    EXPECT_EQ(newest().URL(), url);
    EXPECT_EQ(records().Row(4).Text(), name);
    EXPECT_EQ(records().Row(4).SubItem(1), url);
}

TEST_F(LongTexts, AnEditShowsThemWhole) {
    openOnSecond();
    const std::string name(300, 'n');
    const std::string url = std::string("http://").append(40000, 'u');
    record(2).Name(name);
    record(2).URL(url);
    RefreshURLPage();
    clickRow(records(), 2, Button::left);
    editing([&] {
        EXPECT_EQ(Form2.Text1[0].Text(), name);
        EXPECT_EQ(Form2.Text1[1].Text(), url);
    });
}

// Nothing is lost, but Accept ends only when the row, whose record the list's texts do not
// tell, is let go. The dialog can be closed meanwhile, and the list is in use again.
TEST_F(LongTexts, AnEditKeepsThemWholeAndTheRowWaitsToBeLetGo) {
    openOnSecond();
    savedAdvMode = 0;
    const std::string url = std::string("http://").append(300, 'u');
    editing([&] {
        writeName("long");
        writeUrl(url);
        driver::atPump(20, [&] {
            EXPECT_EQ(record(2).URL(), url);
            EXPECT_EQ(rowTexts(2)[1], url);
            cancel();
            EXPECT_FALSE(Form2.loaded());
            EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
        });
        driver::atPump(40, [] { clickRow(records(), 3, Button::left); });
        accept();
    });
    EXPECT_EQ(record(2).Name(), "long");
    EXPECT_EQ(record(2).URL(), url);
    EXPECT_EQ(record(2).Owner, 0);
    EXPECT_EQ(record(3).Name(), "a3");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "long", "a3"));
    EXPECT_THAT(selectedRows(), ElementsAre(3));
    EXPECT_FALSE(Form2.loaded());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(LongTexts, AProgramThatEndsMeanwhileEnds) {
    openOnSecond();
    editing([] {
        writeUrl(std::string(300, 'u'));
        driver::atPump(20, [] {
            Form1.mPopExit.onClick.raise(0);
            win::PostMessageA(Form2.hWnd(), win::WM_NULL, 0, 0);
        });
        accept();
        EXPECT_FALSE(Form1.loaded());
        EXPECT_FALSE(Form3.loaded());
        Form2.unload();
        EXPECT_THAT(loadedForms(), IsEmpty());
    });
}

}  // namespace
}  // namespace magpie
