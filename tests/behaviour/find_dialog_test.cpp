// The Find dialog, driven as by its user while it holds the interface.
#include "core/misc.h"
#include "mainwindow/status_panel.h"
#include "platform/runtime/word.h"
#include "tests/behaviour/find_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class FindDialog : public FindFixture {
public:
    // Makes the dialog's loop look whether it is over.
    static void wake() {
        if (win::HWND window = win::GetActiveWindow())
            win::PostMessageA(window, win::WM_NULL, 0, 0);
    }

    // Opens the dialog, lets the user act in it, and closes it if that did not.
    static void ask(const std::function<void()>& user) {
        bool came = false;
        driver::whenIdle([&] {
            came = true;
            ASSERT_TRUE(Find.Visible());
            user();
            Find.unload();
            wake();
        });
        mnuFind_Click(0);
        ASSERT_TRUE(came) << "the dialog did not open";
    }

    static void click(Control& control) {
        driver::click(control.hWnd(), driver::middleOf(control.hWnd()));
        driver::pump();
    }

    static void press(int key, driver::Keys held = {}) {
        driver::key(key, held);
        driver::pump();
    }

    static std::pair<win::DWORD, win::DWORD> markedText() {
        win::DWORD first = 0;
        win::DWORD last = 0;
        win::SendMessageA(Find.Text1.hWnd(), win::EM_GETSEL, reinterpret_cast<win::WPARAM>(&first),
                          reinterpret_cast<win::LPARAM>(&last));
        return {first, last};
    }

    static bool onTop(Form& form) {
        return (win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
};

// Opening and closing ----------------------------------------------------------------------

TEST_F(FindDialog, ItOffersTheLastTextAndTheWayDown) {
    open({"one"});
    findText = "two";
    ask([] {
        EXPECT_NE(driver::findWindow("Find", "Find..."), nullptr);
        EXPECT_EQ(Find.Text1.Text(), "two");
        EXPECT_EQ(Find.Combo1.ListCount(), 2);
        EXPECT_EQ(Find.Combo1.List(0), "Up");
        EXPECT_EQ(Find.Combo1.List(1), "Down");
        EXPECT_EQ(Find.Combo1.ListIndex(), 1);
        EXPECT_EQ(Find.Label1.Caption(), "Find What:");
        EXPECT_EQ(Find.Command1.Caption(), "Find Next");
        EXPECT_EQ(Find.Command2.Caption(), "Cancel");
    });
}

TEST_F(FindDialog, TheFirstTimeItIsEmpty) {
    open({"one"});
    ask([] { EXPECT_EQ(Find.Text1.Text(), ""); });
}

TEST_F(FindDialog, ItHoldsTheInterfaceWhileItIsUp) {
    open({"one"});
    ask([] {
        EXPECT_EQ(modalOpen, 4);
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
        EXPECT_EQ(win::GetWindow(Find.hWnd(), win::GW_OWNER), nullptr);
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_FALSE(Find.loaded());
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
    EXPECT_EQ(win::GetActiveWindow(), Form3.hWnd());
}

TEST_F(FindDialog, ItLiesOverTheMiddleOfTheMainWindowUnderItsIcon) {
    open({"one"});
    Form3.Left(3000);
    Form3.Top(1500);
    ask([] {
        EXPECT_EQ(Find.Left(), 3000 + (Form3.Width() - Find.Width()) / 2);
        EXPECT_EQ(Find.Top(), 1500 + (Form3.Height() - Find.Height()) / 2);
        EXPECT_EQ(driver::iconOf(Find.hWnd(), win::ICON_SMALL), Form3.Icon().small);
        EXPECT_EQ(driver::iconOf(Find.hWnd(), win::ICON_BIG), Form3.Icon().big);
    });
}

TEST_F(FindDialog, ItsTextHasTheKeyboardAndIsMarkedWhole) {
    open({"one"});
    findText = "three";
    ask([] {
        EXPECT_EQ(win::GetFocus(), Find.Text1.hWnd());
        EXPECT_EQ(markedText(), std::pair(win::DWORD{0}, win::DWORD{5}));
        driver::type("new");
        driver::pump();
        EXPECT_EQ(Find.Text1.Text(), "new");
    });
}

TEST_F(FindDialog, ComingBackFromAnotherProgramFindsItAsItWasLeft) {
    open({"one"});
    findText = "three";
    ask([] {
        Find.Combo1.SetFocus();
        driver::deactivateApplication();
        EXPECT_TRUE(Form3.Visible());
        driver::activateApplication();
        driver::pump();
        EXPECT_EQ(win::GetFocus(), Find.Combo1.hWnd());
    });
}

TEST_F(FindDialog, EveryWayOutLetsTheInterfaceGo) {
    open({"one"});
    const std::function<void()> ways[] = {
        [] { click(Find.Command2); },
        [] { press(win::VK_ESCAPE); },
        [] { win::SendMessageA(Find.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0); },
    };
    for (const auto& way : ways) {
        driver::whenIdle([&way] {
            EXPECT_EQ(modalOpen, 4);
            way();
            EXPECT_FALSE(Find.loaded());
            wake();
        });
        mnuFind_Click(0);
        EXPECT_EQ(modalOpen, 0);
        EXPECT_THAT(selected(), ElementsAre(0));
    }
}

TEST_F(FindDialog, AMainWindowOnTopStepsDownUnderIt) {
    open({"one"});
    mainOnTop = true;
    setTopMost(Form3, wordTrue);
    ask([] { EXPECT_FALSE(onTop(Form3)); });
    EXPECT_TRUE(onTop(Form3));
}

TEST_F(FindDialog, CancelKeepsTheTextOfTheLastSearchOnly) {
    open({"one", "two"});
    ask([] {
        driver::type("two");
        press(win::VK_RETURN);
        Find.Text1.Text("three");
        click(Find.Command2);
    });
    EXPECT_EQ(findText, "two");
    ask([] { EXPECT_EQ(Find.Text1.Text(), "two"); });
}

TEST_F(FindDialog, OpenedManyTimesItLeavesNothingBehind) {
    open({"one"});
    ask([] {});
    const driver::Counts before = driver::live();
    for (int time = 0; time < 20; ++time) ask([] { press(win::VK_RETURN); });
    EXPECT_EQ(driver::live(), before);
}

// Finding ----------------------------------------------------------------------------------

TEST_F(FindDialog, EnterInTheTextFindsOnceAndAgain) {
    open({"one", "two", "one", "one", "one"});
    ask([] {
        driver::type("one");
        press(win::VK_RETURN);
        EXPECT_THAT(selected(), ElementsAre(2));
        EXPECT_TRUE(Find.Visible());
        EXPECT_EQ(win::GetFocus(), Find.Text1.hWnd());
        EXPECT_EQ(findText, "one");
        press(win::VK_RETURN);
        EXPECT_THAT(selected(), ElementsAre(3));
        EXPECT_EQ(driver::beeps(), 0);
    });
    EXPECT_THAT(selected(), ElementsAre(3));
}

TEST_F(FindDialog, TheButtonFindsOnceForAClickOrForAKeyOnIt) {
    open({"one", "one", "one", "one", "one"});
    ask([] {
        Find.Text1.Text("one");
        click(Find.Command1);
        EXPECT_THAT(selected(), ElementsAre(1));
        press(win::VK_RETURN);
        EXPECT_THAT(selected(), ElementsAre(2));
        press(win::VK_SPACE);
        EXPECT_THAT(selected(), ElementsAre(3));
    });
}

TEST_F(FindDialog, EnterOnCancelCancels) {
    open({"one", "one"});
    ask([] {
        Find.Text1.Text("one");
        Find.Command2.SetFocus();
        press(win::VK_RETURN);
        EXPECT_FALSE(Find.loaded());
    });
    EXPECT_EQ(findText, "");
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindDialog, UpAndDownAreChosenByTheKeyboard) {
    open({"one", "two", "one", "two", "one"});
    select({2});
    list().Row(1).Selected(false);
    ask([] {
        driver::type("one");
        press('D', {.ctrl = false, .shift = false, .alt = true});
        EXPECT_EQ(win::GetFocus(), Find.Combo1.hWnd());
        press(win::VK_UP);
        press(win::VK_RETURN);
        EXPECT_THAT(selected(), ElementsAre(0));
        press(win::VK_DOWN);
        press(win::VK_RETURN);
        EXPECT_THAT(selected(), ElementsAre(2));
    });
}

TEST_F(FindDialog, TheNextOpeningGoesDownAgain) {
    open({"one"});
    ask([] { Find.Combo1.ListIndex(0); });
    ask([] { EXPECT_EQ(Find.Combo1.ListIndex(), 1); });
}

TEST_F(FindDialog, SpacesAtTheEndsAreTrimmedAndTheRestIsKept) {
    open({"x", "two words"});
    ask([] {
        driver::type("  o w ");
        press(win::VK_RETURN);
        EXPECT_EQ(Find.Text1.Text(), "  o w ");
    });
    EXPECT_EQ(findText, "o w");
    EXPECT_THAT(selected(), ElementsAre(1));
    ask([] { EXPECT_EQ(Find.Text1.Text(), "o w"); });
}

TEST_F(FindDialog, AnEmptyTextBeepsAndForgetsTheLastOne) {
    open({"one", "two"});
    findText = "two";
    ask([] {
        Find.Text1.Text("   ");
        press(win::VK_RETURN);
        EXPECT_EQ(driver::beeps(), 1);
        EXPECT_TRUE(Find.Visible());
        Find.Text1.Text("");
        click(Find.Command1);
        EXPECT_EQ(driver::beeps(), 2);
    });
    EXPECT_EQ(findText, "");
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(FindDialog, NoMatchChangesNothingAndSaysNothing) {
    open({"one", "two"});
    ask([] {
        driver::type("three");
        press(win::VK_RETURN);
        EXPECT_TRUE(Find.Visible());
    });
    EXPECT_THAT(selected(), ElementsAre(0));
    EXPECT_EQ(driver::beeps(), 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    EXPECT_EQ(findText, "three");
}

TEST_F(FindDialog, AnInvalidPatternLeavesTheDialogInUse) {
    open({"one", "two", "one"});
    ask([] {
        driver::type("[");
        press(win::VK_RETURN);
        EXPECT_TRUE(Find.Visible());
        EXPECT_THAT(selected(), ElementsAre(0));
        Find.Text1.Text("one");
        press(win::VK_RETURN);
        EXPECT_THAT(selected(), ElementsAre(2));
    });
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(FindDialog, WithoutASelectedRowTheTextIsKeptAllTheSame) {
    open({"one"});
    list().Row(1).Selected(false);
    ask([] {
        driver::type("one");
        press(win::VK_RETURN);
    });
    EXPECT_EQ(findText, "one");
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(FindDialog, TabGoesFromTheTextOverTheWayToTheButtons) {
    open({"one"});
    ask([] {
        std::vector<win::HWND> stops;
        for (int step = 0; step < 4; ++step) {
            stops.push_back(win::GetFocus());
            press(win::VK_TAB);
        }
        EXPECT_THAT(stops, ElementsAre(Find.Text1.hWnd(), Find.Combo1.hWnd(), Find.Command1.hWnd(),
                                       Find.Command2.hWnd()));
        EXPECT_EQ(win::GetFocus(), Find.Text1.hWnd());
    });
}

// Around it --------------------------------------------------------------------------------

TEST_F(FindDialog, TheLineWatchSleepsUnderIt) {
    open({"one"});
    lineCheck = 3;
    driver::advance(4000);
    ASSERT_NE(isOnline, 0);
    ask([] {
        lineCheck = 0;
        driver::advance(9000);
        EXPECT_TRUE(Form3.loaded());
        EXPECT_NE(isOnline, 0);
    });
    driver::advance(4000);
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(isOnline, 0);
}

TEST_F(FindDialog, ItsFirstSearchLeavesFindNextGreyUntilTheMenusAreUpdated) {
    open({"one", "two"});
    ASSERT_FALSE(Form3.mnuFind[1].Enabled);
    ask([] {
        driver::type("two");
        press(win::VK_RETURN);
    });
    EXPECT_EQ(findText, "two");
    EXPECT_FALSE(Form3.mnuFind[1].Enabled);
    UpdateMenus();
    EXPECT_TRUE(Form3.mnuFind[1].Enabled);
}

TEST_F(FindDialog, AMainWindowThatIsFlushedUnderItCostsItsListOnly) {
    open({"one", "two"});
    ask([] {
        Form1.mFlush.onClick.raise(0);
        EXPECT_FALSE(Form3.loaded());
        EXPECT_TRUE(Find.Visible());
        // There is nothing to search, and so nothing is loaded to be searched.
        driver::type("two");
        press(win::VK_RETURN);
        EXPECT_FALSE(Form3.loaded());
        EXPECT_EQ(driver::beeps(), 0);
        Find.unload();
    });
    EXPECT_EQ(findText, "two");
    EXPECT_EQ(modalOpen, 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(FindDialog, AProgramThatEndsUnderItDoesNotComeBack) {
    open({"one", "two"});
    ask([] {
        Form1.mPopExit.onClick.raise(0);
        ASSERT_FALSE(Form1.loaded());
        Find.Text1.Text("two");
        Find.Command1.onClick.raise(0);
        EXPECT_FALSE(Form3.loaded());
        Find.unload();
        EXPECT_THAT(loadedForms(), IsEmpty());
    });
}

}  // namespace
}  // namespace magpie
