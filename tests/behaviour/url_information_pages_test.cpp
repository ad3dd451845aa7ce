// The keyboard and the pages of the dialog "URL Information".
#include "tests/behaviour/entry_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;

class UrlInformationPages : public EntryFixture {
public:
    // Which control has the keyboard, by name.
    static std::string focused() {
        const std::pair<const char*, Control*> known[] = {
            {"name", &Form2.Text1[0]},   {"url", &Form2.Text1[1]},    {"rating", &Form2.Combo1[0]},
            {"group", &Form2.Combo1[1]}, {"accept", &Form2.Command1}, {"cancel", &Form2.Command2},
            {"tabs", &Form2.TabStrip},
        };
        for (const auto& [name, control] : known)
            if (control->hWnd() == win::GetFocus()) return name;
        return "none";
    }
    static void ctrlTab(bool back = false) {
        key(win::VK_TAB, {.ctrl = true, .shift = back, .alt = false});
    }
};

// The keyboard ------------------------------------------------------------------------------

TEST_F(UrlInformationPages, ItsNameHasTheKeyboardAndIsMarkedWhole) {
    open();
    adding([] {
        EXPECT_EQ(focused(), "name");
        driver::type("typed");
        EXPECT_EQ(Form2.Text1[0].Text(), "typed");
    });
    editing([] {
        EXPECT_EQ(focused(), "name");
        EXPECT_EQ(marked(Form2.Text1[0]), std::pair(win::DWORD{0}, win::DWORD{2}));
        driver::type("n");
        EXPECT_EQ(Form2.Text1[0].Text(), "n");
    });
}

TEST_F(UrlInformationPages, ComingBackFromAnotherProgramFindsItAsItWasLeft) {
    open();
    editing([] {
        Form2.Text1[1].SetFocus();
        driver::deactivateApplication();
        EXPECT_TRUE(Form3.Visible());
        driver::activateApplication();
        driver::pump();
        EXPECT_EQ(focused(), "url");
        driver::type("x");
        EXPECT_EQ(Form2.Text1[0].Text(), "a1");
    });
}

TEST_F(UrlInformationPages, TabRunsDownThePageAndOverTheButtonsToTheTabs) {
    open();
    adding([] {
        std::vector<std::string> stops;
        for (int step = 0; step < 7; ++step) {
            stops.push_back(focused());
            key(win::VK_TAB);
        }
        EXPECT_THAT(stops,
                    ElementsAre("name", "url", "rating", "group", "accept", "cancel", "tabs"));
        EXPECT_EQ(focused(), "name");
    });
}

TEST_F(UrlInformationPages, ControlAMarksTheTextAndAddsNothing) {
    open();
    adding([] {
        Form2.Text1[1].SetFocus();
        key('A', {.ctrl = true, .shift = false, .alt = false});
        EXPECT_EQ(marked(Form2.Text1[1]), std::pair(win::DWORD{0}, win::DWORD{7}));
        EXPECT_EQ(modalOpen, D_NEW);
    });
}

// Pages ------------------------------------------------------------------------------------

TEST_F(UrlInformationPages, APageIsTurnedAwayAndKeepsWhatItHolds) {
    open();
    adding([] {
        EXPECT_EQ(Form2.Frame[0].Left(), 192);
        EXPECT_EQ(Form2.Frame[1].Left(), -20000);
        writeName("kept");
        chooseRating("High");
        clickPage(2);
        EXPECT_EQ(Form2.Frame[0].Left(), -20000);
        EXPECT_FALSE(Form2.Frame[0].Enabled());
        EXPECT_EQ(Form2.Frame[1].Left(), 192);
        EXPECT_TRUE(Form2.Frame[1].Enabled());
        clickPage(1);
        EXPECT_EQ(Form2.Frame[0].Left(), 192);
        EXPECT_TRUE(Form2.Frame[0].Enabled());
        EXPECT_EQ(Form2.Frame[1].Left(), -20000);
        EXPECT_FALSE(Form2.Frame[1].Enabled());
        EXPECT_EQ(Form2.Text1[0].Text(), "kept");
        EXPECT_EQ(chosen(Form2.Combo1[0]), "High");
    });
}

TEST_F(UrlInformationPages, AHiddenPageCannotTakeTheFocus) {
    open();
    adding([] {
        clickPage(2);
        EXPECT_EQ(focused(), "tabs");
        std::vector<std::string> stops;
        for (int step = 0; step < 4; ++step) {
            key(win::VK_TAB);
            stops.push_back(focused());
        }
        EXPECT_THAT(stops, ElementsAre("accept", "cancel", "tabs", "accept"));
        Form2.Text1[0].SetFocus();
        EXPECT_EQ(focused(), "accept");
        driver::deactivateApplication();
        driver::activateApplication();
        driver::pump();
        EXPECT_EQ(focused(), "accept");
    });
}

TEST_F(UrlInformationPages, APageThatIsTurnedAwayGivesTheFocusToTheTabs) {
    open();
    adding([] {
        EXPECT_EQ(focused(), "name");
        Form2.TabStrip.SelectTab(2);
        EXPECT_EQ(focused(), "tabs");
        key(win::VK_LEFT);
        EXPECT_EQ(Form2.TabStrip.SelectedTab(), 1);
        EXPECT_EQ(focused(), "tabs");
    });
}

TEST_F(UrlInformationPages, ControlTabTurnsThePagesEitherWay) {
    open();
    adding([] {
        ctrlTab();
        EXPECT_EQ(Form2.Frame[1].Left(), 192);
        ctrlTab();
        EXPECT_EQ(Form2.Frame[0].Left(), 192);
        ctrlTab(true);
        EXPECT_EQ(Form2.Frame[1].Left(), 192);
        ctrlTab(true);
        EXPECT_EQ(Form2.Frame[0].Left(), 192);
    });
}

TEST_F(UrlInformationPages, ControlTabComesBackToTheFieldThatItLeft) {
    open();
    adding([] {
        Form2.Text1[1].SetFocus();
        ctrlTab();
        EXPECT_EQ(focused(), "tabs");
        ctrlTab();
        EXPECT_EQ(focused(), "url");
        EXPECT_EQ(marked(Form2.Text1[1]), std::pair(win::DWORD{0}, win::DWORD{7}));
        Form2.Command2.SetFocus();
        ctrlTab();
        EXPECT_EQ(focused(), "cancel");
    });
}

TEST_F(UrlInformationPages, EnterAndEscapeWorkFromTheOtherPage) {
    open();
    adding([] {
        ctrlTab();
        key(win::VK_ESCAPE);
        EXPECT_FALSE(Form2.loaded());
    });
    adding([] {
        ctrlTab();
        key(win::VK_RETURN);
        EXPECT_FALSE(Form2.loaded());
    });
    EXPECT_EQ(uBlock.URLDatas().Count(), 5);
}

}  // namespace
}  // namespace magpie
