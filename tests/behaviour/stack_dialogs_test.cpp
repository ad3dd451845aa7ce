// Opening, merging and saving a stack file of the user's choice.
#include "store/stack_dialogs.h"

#include <string>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/user32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "store/stack_commands.h"
#include "tests/behaviour/store_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

using testing::ElementsAre;
using testing::IsEmpty;

const std::string otherFile = "C:\\other.pns";
const std::string thirdFile = "C:\\third.pns";

class StackDialogs : public StoreFixture {
public:
    static std::string savedText() { return lines("+A\r\nhttp://server/a|a|0|8E34968D|0|0|0\r\n"); }

    static bool onTop() {
        return (win::GetWindowLongPtrA(Form3.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
};

TEST_F(StackDialogs, OpenAsReadsTheChosenFileInPlaceOfTheStore) {
    addGroupWithRecord();
    driver::putFile(otherFile, lines("+B\r\nu|b\r\n"));
    driver::answerFileDialog(otherFile);
    mnuOpen_Click(1);
    EXPECT_THAT(groupNames(), ElementsAre("B"));
    EXPECT_THAT(recordNames(), ElementsAre("b"));
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(Form3.ListView1[3].Count(), 1);
    const auto& dialog = driver::shownFileDialogs().at(0);
    EXPECT_FALSE(dialog.save);
    EXPECT_EQ(dialog.title, "Open Pienest As");
    EXPECT_THAT(dialog.filter, ElementsAre("(*.PNS)", "*.pns"));
}

TEST_F(StackDialogs, AFileOpenedAsAnotherIsSavedOverTheDefaultOne) {
    driver::putFile(otherFile, lines("+B\r\nu|b|0|8E34968D|0|0|0\r\n"));
    driver::answerFileDialog(otherFile);
    mnuOpen_Click(1);
    EXPECT_EQ(stackPath + ".pns", stackPathInTests);
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), lines("+B\r\nu|b|0|8E34968D|0|0|0\r\n"));
}

TEST_F(StackDialogs, CancelledOpenAsLeavesTheStoreAndRebuildsTheScreen) {
    addGroupWithRecord();
    driver::cancelFileDialog();
    mnuOpen_Click(1);
    EXPECT_THAT(recordNames(), ElementsAre("a"));
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(Form3.ListView1[3].Count(), 1);
}

TEST_F(StackDialogs, MergeAppendsTheChosenFile) {
    addGroupWithRecord();
    driver::putFile(otherFile, lines("+A\r\nu|b\r\n"));
    driver::answerFileDialog(otherFile);
    mnuMerge_Click(0);
    EXPECT_THAT(groupNames(), ElementsAre("A", "A"));
    EXPECT_THAT(recordNames(), ElementsAre("a", "b"));
    EXPECT_EQ(urlsDirty, 2);
    EXPECT_EQ(driver::shownFileDialogs().at(0).title, "Merge From Pienest");
}

TEST_F(StackDialogs, CancelledMergeIsNoChange) {
    addGroupWithRecord();
    driver::cancelFileDialog();
    mnuMerge_Click(0);
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(StackDialogs, TheyAnswerThePathChosen) {
    driver::answerFileDialog(otherFile);
    EXPECT_EQ(SaveURLAs(), otherFile);
    driver::answerFileDialog(otherFile);
    EXPECT_EQ(OpenURLAs(false), otherFile);
    driver::cancelFileDialog();
    EXPECT_EQ(SaveURLAs(), "");
}

TEST_F(StackDialogs, SaveAsWritesAFreeNameWithoutAQuestion) {
    addGroupWithRecord();
    driver::answerFileDialog(otherFile);
    mnuSave_Click(1);
    EXPECT_EQ(driver::file(otherFile), savedText());
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
    const auto& dialog = driver::shownFileDialogs().at(0);
    EXPECT_TRUE(dialog.save);
    EXPECT_EQ(dialog.title, "Save Pienest As");
    EXPECT_THAT(dialog.filter, ElementsAre("(*.PNS)", "*.pns"));
}

TEST_F(StackDialogs, SaveAsMakesNoBackup) {
    addGroupWithRecord();
    putStackFile("old");
    driver::answerFileDialog(stackPathInTests);
    driver::answerMessageBox(win::IDYES);
    mnuSave_Click(1);
    EXPECT_EQ(stackFile(), savedText());
    EXPECT_EQ(backup(), std::nullopt);
}

TEST_F(StackDialogs, SaveAsTrimsTheName) {
    addGroupWithRecord();
    driver::onFileDialog([](const auto&) { return std::string("  ") + otherFile + " "; });
    mnuSave_Click(1);
    EXPECT_EQ(driver::file(otherFile), savedText());
}

TEST_F(StackDialogs, SaveAsAsksBeforeItOverwritesAFile) {
    addGroupWithRecord();
    mainOnTop = true;
    driver::putFile(otherFile, "old");
    driver::answerFileDialog(otherFile);
    driver::onMessageBox([](const driver::Box& box) {
        EXPECT_EQ(box.text, "File Already Exists, Overwrite?");
        EXPECT_EQ(box.type & 0xF, win::MB_YESNO);
        EXPECT_EQ(modalOpen, 1);
        EXPECT_FALSE(onTop());
        return win::IDYES;
    });
    mnuSave_Click(1);
    EXPECT_EQ(driver::file(otherFile), savedText());
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop());
}

TEST_F(StackDialogs, NoLetsTheUserChooseAgain) {
    addGroupWithRecord();
    driver::putFile(otherFile, "old");
    driver::answerFileDialog(otherFile);
    driver::answerMessageBox(win::IDNO);
    driver::answerFileDialog(thirdFile);
    mnuSave_Click(1);
    EXPECT_EQ(driver::file(otherFile), "old");
    EXPECT_EQ(driver::file(thirdFile), savedText());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(StackDialogs, TheQuestionIsPutForEachNameThatExists) {
    addGroupWithRecord();
    driver::putFile(otherFile, "old");
    driver::putFile(thirdFile, "old");
    driver::answerFileDialog(otherFile);
    driver::answerMessageBox(win::IDNO);
    driver::answerFileDialog(thirdFile);
    driver::answerMessageBox(win::IDYES);
    mnuSave_Click(1);
    EXPECT_EQ(driver::messageBoxes().size(), 2U);
    EXPECT_EQ(driver::file(thirdFile), savedText());
}

TEST_F(StackDialogs, CancelAtTheFirstSaveDialogChangesNothing) {
    addGroupWithRecord();
    driver::cancelFileDialog();
    mnuSave_Click(1);
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(StackDialogs, CancelAtARepeatedSaveDialogLeavesTheInterfaceHeld) {
    addGroupWithRecord();
    mainOnTop = true;
    driver::putFile(otherFile, "old");
    driver::answerFileDialog(otherFile);
    driver::answerMessageBox(win::IDNO);
    driver::cancelFileDialog();
    mnuSave_Click(1);
    EXPECT_EQ(driver::file(otherFile), "old");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 1);
    EXPECT_FALSE(onTop());
}

TEST_F(StackDialogs, AFailedSaveAsIsSilent) {
    addGroupWithRecord();
    record(1).Created = {36404};
    driver::answerFileDialog(otherFile);
    mnuSave_Click(1);
    EXPECT_EQ(driver::file(otherFile), "+A\r\n");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackDialogs, SaveAsIntoAFolderThatIsNotThereIsSilent) {
    addGroupWithRecord();
    driver::answerFileDialog("C:\\nowhere\\x.pns");
    mnuSave_Click(1);
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackDialogs, SaveAsDoesNotChangeTheDefaultFile) {
    addGroupWithRecord();
    driver::answerFileDialog(otherFile);
    mnuSave_Click(1);
    addRecord("b", 0);
    mnuSave_Click(0);
    EXPECT_NE(stackFile(), std::nullopt);
    EXPECT_EQ(driver::file(otherFile), savedText());
}

}  // namespace
}  // namespace magpie
