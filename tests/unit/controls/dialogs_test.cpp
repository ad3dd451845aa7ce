// The dialogs that ask: file dialogs, message box, input box.
#include "platform/api/user32.h"
#include "platform/controls/basic_controls.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/input_box.h"
#include "platform/controls/message_box.h"
#include "platform/memory/driver_system.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

Form owner({.className = "Owner", .caption = "Owner", .clientWidth = 6000, .clientHeight = 4500});

class Dialogs : public ControlsTest {
public:
    Dialogs() { owner.Show(); }
};

// File dialogs -------------------------------------------------------------------------

TEST_F(Dialogs, AFileDialogAnswersTheChosenPath) {
    driver::putFile("C:\\a\\one.pns", "");
    driver::answerFileDialog("C:\\a\\one.pns");
    CommonDialog dialog;
    dialog.DialogTitle = "Open";
    dialog.Filter = "(*.PNS)|*.pns";
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "C:\\a\\one.pns");
    const auto& shown = driver::shownFileDialogs();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].owner, owner.hWnd());
    EXPECT_EQ(shown[0].title, "Open");
    EXPECT_FALSE(shown[0].save);
    EXPECT_THAT(shown[0].filter, ElementsAre("(*.PNS)", "*.pns"));
}

TEST_F(Dialogs, ACancelledFileDialogRaises32755AndKeepsTheName) {
    CommonDialog dialog;
    dialog.FileName = "old.pns";
    driver::cancelFileDialog();
    EXPECT_EQ(failureOf([&] { dialog.ShowOpen(); }), 32755);
    EXPECT_EQ(dialog.FileName, "old.pns");
    driver::cancelFileDialog();
    EXPECT_EQ(failureOf([&] { dialog.ShowSave(); }), 32755);
    EXPECT_EQ(dialog.FileName, "old.pns");
}

TEST_F(Dialogs, AFileDialogThatFailsCountsAsCancelled) {
    CommonDialog dialog;
    driver::failCall("GetSaveFileNameA", 1, 2);
    EXPECT_EQ(failureOf([&] { dialog.ShowSave(); }), 32755);
}

// Message box --------------------------------------------------------------------------

TEST_F(Dialogs, AMessageBoxStandsUnderTheProgramsTitleOverTheActiveForm) {
    driver::answerMessageBox(win::IDNO);
    EXPECT_EQ(MsgBox("Sure?", win::MB_YESNO), win::IDNO);
    ASSERT_EQ(driver::messageBoxes().size(), 1u);
    EXPECT_EQ(driver::messageBoxes()[0].caption, "Magpie");
    EXPECT_EQ(driver::messageBoxes()[0].text, "Sure?");
    EXPECT_EQ(driver::messageBoxes()[0].owner, owner.hWnd());
    driver::answerMessageBox(win::IDYES);
    EXPECT_EQ(MsgBox("Sure?", win::MB_YESNO), win::IDYES);
}

// Input box ----------------------------------------------------------------------------

// Does it when the box waits for its user.
void theUser(void (*action)()) {
    driver::whenIdle([action] {
        action();
        win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
    });
}

win::HWND inputBox() {
    return driver::findWindow("InputBox", "");
}

win::HWND part(const char* className, const char* text) {
    return driver::findChild(inputBox(), className, text);
}

std::string ask() {
    return InputBox("What name?", "New Group", "Group 1", 3000, 1500);
}

TEST_F(Dialogs, AnInputBoxShowsItsTextsAtItsPlace) {
    theUser([] {
        ASSERT_NE(inputBox(), nullptr);
        EXPECT_TRUE(win::IsWindowVisible(inputBox()));
        EXPECT_FALSE(win::IsWindowEnabled(owner.hWnd()));
        EXPECT_NE(driver::findWindow("InputBox", "New Group"), nullptr);
        EXPECT_NE(part("STATIC", "What name?"), nullptr);
        EXPECT_EQ(win::GetFocus(), part("EDIT", "Group 1"));
        win::RECT rect{};
        win::GetWindowRect(inputBox(), &rect);
        EXPECT_EQ(rect.left, 200);
        EXPECT_EQ(rect.top, 100);
        driver::key(win::VK_ESCAPE);
    });
    EXPECT_EQ(ask(), "");
    EXPECT_EQ(inputBox(), nullptr);
    EXPECT_TRUE(win::IsWindowEnabled(owner.hWnd()));
    EXPECT_EQ(win::GetActiveWindow(), owner.hWnd());
}

TEST_F(Dialogs, TypingReplacesTheOfferedText) {
    theUser([] {
        driver::type("News");
        driver::key(win::VK_RETURN);
    });
    EXPECT_EQ(ask(), "News");
}

TEST_F(Dialogs, OkAnswersTheOfferedText) {
    theUser([] { driver::click(part("BUTTON", "OK"), {5, 5}); });
    EXPECT_EQ(ask(), "Group 1");
}

TEST_F(Dialogs, CancelAnswersNothing) {
    theUser([] {
        driver::type("News");
        driver::click(part("BUTTON", "Cancel"), {5, 5});
    });
    EXPECT_EQ(ask(), "");
}

TEST_F(Dialogs, TheCloseBoxAnswersNothing) {
    theUser([] {
        driver::type("News");
        win::PostMessageA(inputBox(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0);
    });
    EXPECT_EQ(ask(), "");
}

TEST_F(Dialogs, EnterOnCancelAnswersNothing) {
    theUser([] {
        driver::key(win::VK_TAB);
        driver::key(win::VK_TAB);
        EXPECT_EQ(win::GetFocus(), part("BUTTON", "Cancel"));
        driver::key(win::VK_RETURN);
    });
    EXPECT_EQ(ask(), "");
}

TEST_F(Dialogs, AnEmptyAnswerIsAnAnswer) {
    theUser([] {
        driver::key(win::VK_DELETE);
        driver::key(win::VK_RETURN);
    });
    EXPECT_EQ(ask(), "");
}

TEST_F(Dialogs, ManyInputBoxesLeaveNothingBehind) {
    const driver::Counts before = driver::live();
    for (int time = 0; time < 20; ++time) {
        theUser([] { driver::key(win::VK_RETURN); });
        EXPECT_EQ(ask(), "Group 1");
    }
    EXPECT_EQ(driver::live(), before);
    EXPECT_THAT(loadedForms(), ElementsAre(&owner));
}

TEST_F(ControlsTest, AnInputBoxFitsAHighDensity) {
    driver::setDpi(144);
    owner.Show();
    theUser([] {
        win::RECT rect{};
        win::GetWindowRect(inputBox(), &rect);
        EXPECT_EQ(rect.left, 300);
        EXPECT_EQ(rect.top, 150);
        win::GetClientRect(inputBox(), &rect);
        EXPECT_EQ(rect.right, 540);
        driver::key(win::VK_RETURN);
    });
    EXPECT_EQ(ask(), "Group 1");
}

}  // namespace
}  // namespace magpie
