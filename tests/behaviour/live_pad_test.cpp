// Pad and tray icon under the program's dialogs: both stay in use, and what they do to the main
// window leaves the dialog in front of it.
#include <functional>
#include <initializer_list>
#include <ostream>

#include "entries/form2.h"
#include "entries/frm_move.h"
#include "store/records.h"
#include "tests/behaviour/pad_fixture.h"
#include "views/find_form.h"
#include "views/rated.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

struct Dialog {
    const char* name;
    int tab;  // the screen that it is opened from
    void (*open)();
    const char* className;
    int holder;  // modalOpen meanwhile
};

void PrintTo(const Dialog& dialog, std::ostream* out) {
    *out << dialog.name;
}

void clickButton(Button& button) {
    driver::click(button.hWnd(), driver::middleOf(button.hWnd()));
}

void pressInList(int key) {
    Form3.ListView1[lvIndex].SetFocus();
    driver::key(key, {.ctrl = true, .shift = false, .alt = false});
}

void chooseFromRow(const char* line) {
    win::RECT row{};
    row.left = win::LVIR_BOUNDS;
    win::HWND list = Form3.ListView1[lvIndex].hWnd();
    win::SendMessageA(list, win::LVM_GETITEMRECT, 0, reinterpret_cast<win::LPARAM>(&row));
    driver::choose(line);
    driver::click(list, {row.left + 30, (row.top + row.bottom) / 2}, driver::Button::right);
}

const Dialog dialogs[] = {
    {"Find", 1, [] { pressInList('F'); }, "Find", 4},
    {"MaskFilters", 2, [] { clickButton(Form3.Command5[0]); }, "Rated", 1},
    {"NameOfAGroup", 1,
     [] {
         driver::choose("New Group");
         clickButton(Form3.Command3[1]);
     },
     "InputBox", 1},
    {"NewEntry", 1, [] { pressInList('A'); }, "Form2", D_NEW},
    {"Edit", 2, [] { chooseFromRow("Edit"); }, "Form2", D_EDIT},
    {"Move", 1, [] { chooseFromRow("Move"); }, "frmMove", 1},
};

class LivePad : public PadFixture, public testing::WithParamInterface<Dialog> {
public:
    ~LivePad() override {
        for (Form* form : std::initializer_list<Form*>{&Find, &Rated, &Form2, &frmMove})
            form->discard();
    }

    static win::HWND box() { return driver::findWindow(GetParam().className, ""); }

    // Opens the dialog as a user does, lets the user act under it, and closes it.
    static void under(const std::function<void()>& user) {
        bool came = false;
        driver::whenIdle([&] {
            came = true;
            ASSERT_NE(box(), nullptr);
            ASSERT_EQ(modalOpen, GetParam().holder);
            user();
            if (box() != nullptr)
                win::PostMessageA(box(), win::WM_CLOSE, 0, 0);
            else if (Form1.loaded())
                win::PostMessageA(Form1.hWnd(), win::WM_NULL, 0, 0);
        });
        openDialog();
        driver::pump();
        EXPECT_TRUE(came);
        EXPECT_EQ(modalOpen, 0);
        EXPECT_EQ(box(), nullptr);
    }

    // The dialog on a single entry is unloaded with the main window.
    static bool goesAlong() { return GetParam().holder == D_NEW || GetParam().holder == D_EDIT; }

    static void startUnderADialog(const std::function<void()>& user) {
        putSampleFile();
        putRecord("ID", "2 3000 4500 0 1 0 False False");
        start();
        driver::advance(4000);
        clickPad();
        ASSERT_TRUE(Form3.Visible());
        if (GetParam().tab == 2) clickTab(2);
        under(user);
    }

    static void clickTray(win::UINT button) {
        driver::postTrayMessage(button);
        driver::pump();
    }

    static void chooseFromPad(const char* line) {
        driver::choose(line);
        click(face, driver::Button::right);
    }

    // The main window behind the dialog, on the screen and held.
    static void expectMainWindowHeld() {
        ASSERT_TRUE(Form3.loaded());
        EXPECT_TRUE(Form3.Visible());
        EXPECT_EQ(Form3.WindowState(), stateNormal);
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
        EXPECT_TRUE(win::IsWindowVisible(box()));
        EXPECT_EQ(win::GetActiveWindow(), box());
        EXPECT_TRUE(isAbove(box(), Form3.hWnd()));
        EXPECT_EQ(modalOpen, GetParam().holder);
    }

    static void expectMainWindowFree() {
        ASSERT_TRUE(Form3.loaded());
        EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
    }

private:
    static void openDialog() {
        GetParam().open();
        driver::pump();
    }

    static bool isAbove(win::HWND upper, win::HWND lower) {
        win::HWND each = upper;
        while (each != nullptr && each != lower) each = win::GetWindow(each, win::GW_HWNDNEXT);
        return each == lower;
    }
};

TEST_P(LivePad, OnlyThePadIsLeftInUse) {
    startUnderADialog([] {
        EXPECT_TRUE(win::IsWindowEnabled(Form1.hWnd()));
        EXPECT_TRUE(win::IsWindowEnabled(box()));
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
    });
    expectMainWindowFree();
    EXPECT_EQ(win::GetActiveWindow(), Form3.hWnd());
}

TEST_P(LivePad, AClickHidesTheMainWindowAndBringsItBackBehindTheDialog) {
    startUnderADialog([] {
        click(face);
        EXPECT_FALSE(Form3.Visible());
        EXPECT_TRUE(win::IsWindowVisible(box()));
        EXPECT_TRUE(keepResident);
        click(face);
        expectMainWindowHeld();
    });
    expectMainWindowFree();
    EXPECT_TRUE(Form3.Visible());
}

TEST_P(LivePad, AHiddenMainWindowStaysHiddenBehindTheDialogThatCloses) {
    startUnderADialog([] { click(face); });
    EXPECT_FALSE(Form3.Visible());
    expectMainWindowFree();
    click(face);
    EXPECT_TRUE(Form3.Visible());
}

TEST_P(LivePad, ItsPictureAndItsMiddleButtonWorkAsEver) {
    startUnderADialog([] {
        press(face);
        EXPECT_EQ(letter(), 'c');
        release({-5, 8});
        EXPECT_EQ(letter(), 'd');
        click(face, driver::Button::middle);
        EXPECT_TRUE(Form3.Visible());
        EXPECT_EQ(letter(), 'd');
    });
}

TEST_P(LivePad, ItsStripDragsIt) {
    startUnderADialog([] {
        driver::dragTo(700, 90);
        press(strip);
        EXPECT_EQ(iconLeft, 700 * 15);
        EXPECT_EQ(iconTop, 90 * 15);
    });
}

TEST_P(LivePad, ItsMenuBringsTheMainWindowUpBehindTheDialog) {
    startUnderADialog([] {
        for (const char* const line : {"Restore", "Magpie"}) {
            SCOPED_TRACE(line);
            click(face);
            ASSERT_FALSE(Form3.Visible());
            chooseFromPad(line);
            expectMainWindowHeld();
        }
    });
    expectMainWindowFree();
}

TEST_P(LivePad, TheTrayIconBringsTheMainWindowUpBehindTheDialog) {
    startUnderADialog([] {
        clickTray(win::WM_LBUTTONUP);
        expectMainWindowHeld();
        click(face);
        ASSERT_FALSE(Form3.Visible());
        clickTray(win::WM_LBUTTONUP);
        expectMainWindowHeld();
        driver::choose("Restore");
        clickTray(win::WM_RBUTTONUP);
        expectMainWindowHeld();
    });
    expectMainWindowFree();
}

TEST_P(LivePad, AMainWindowThatIsFlushedStaysAwayUntilItIsCalledAndComesUpBehindTheDialog) {
    startUnderADialog([] {
        chooseFromPad("Flush");
        EXPECT_FALSE(Form3.loaded());
        EXPECT_EQ(box() == nullptr, goesAlong());
        EXPECT_EQ(letter(), 'b');
        click(face);
        if (goesAlong())
            expectMainWindowFree();
        else
            expectMainWindowHeld();
        EXPECT_EQ(letter(), 'd');
    });
    expectMainWindowFree();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    // It can be used like any other.
    clickTab(3 - currentTab);
    EXPECT_EQ(currentTab, Form3.tbStrip.SelectedTab());
}

TEST_P(LivePad, AMainWindowThatIsFlushedIsNotBroughtBackByTheDialogThatCloses) {
    startUnderADialog([] { chooseFromPad("Flush"); });
    EXPECT_FALSE(Form3.loaded());
    EXPECT_FALSE(keepResident);
    EXPECT_EQ(letter(), 'b');
}

TEST_P(LivePad, TheProgramEndsWithTheDialogThatIsLeft) {
    startUnderADialog([] {
        driver::choose("Unload");
        press(face, driver::Button::right);
        EXPECT_FALSE(Form1.loaded());
        EXPECT_FALSE(Form3.loaded());
        EXPECT_THAT(driver::shownTrayIcons(), IsEmpty());
    });
    EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(LivePad, TheLineWatchSleepsUntilTheDialogCloses) {
    startUnderADialog([] {
        lineCheck = 0;
        driver::advance(9000);
        EXPECT_NE(isOnline, 0);
        EXPECT_TRUE(Form3.loaded());
        EXPECT_EQ(letter(), 'd');
    });
    driver::advance(4000);
    EXPECT_EQ(isOnline, 0);
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(letter(), 'a');
}

INSTANTIATE_TEST_SUITE_P(Dialogs, LivePad, testing::ValuesIn(dialogs),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace magpie
