// The menu items that load and save the store: what they show and what they write.
#include "store/stack_commands.h"

#include <string>

#include "config/reg_module.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "store/group_lookup.h"
#include "store/groups.h"
#include "tests/behaviour/store_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

using testing::ElementsAre;

const std::string threeGroups =
    "+Reference\r\nu|Front page|8E53EC00|8E34968D|3|1|4\r\nu|Tools|0|8E34968D|0|1|0\r\n"
    "+Empty group\r\n+Work\r\nu|Plan|0|8E53EC00|0|0|0\r\n";

class StackCommands : public StoreFixture {
public:
    // The group in view when the main window was last left.
    static void remember(int group) {
        driver::setRegistryText(win::HKEY_CURRENT_USER, settingsKey, "CF",
                                "0 0 0 0 1 0 " + std::to_string(group));
    }

    static std::vector<std::string> rowsInView() {
        std::vector<std::string> rows;
        ListView& list = Form3.ListView1[lvIndex];
        for (int i = 1; i <= list.Count(); ++i) rows.push_back(list.Row(i).Text());
        return rows;
    }
};

TEST_F(StackCommands, OpenDefaultGoesToTheRememberedGroup) {
    remember(2);
    putStackFile(threeGroups);
    mnuOpen_Click(0);
    EXPECT_EQ(Form3.lastIDX2, 2);
    EXPECT_EQ(getCurrentIDX(), 2);
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 3");
}

TEST_F(StackCommands, OpenDefaultOnTheStandardScreenShowsTheRememberedGroup) {
    showTab(2);
    remember(2);
    putStackFile(threeGroups);
    mnuOpen_Click(0);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 2);
    EXPECT_THAT(rowsInView(), ElementsAre("Plan"));
}

TEST_F(StackCommands, ARememberedGroupThatIsNotThereIsPassedOver) {
    remember(9);
    putStackFile(threeGroups);
    mnuOpen_Click(0);
    EXPECT_EQ(Form3.ListView1[3].Count(), 3);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(StackCommands, OpenDefaultDropsUnsavedChanges) {
    putStackFile(threeGroups);
    mnuOpen_Click(0);
    addRecord("unsaved", 0);
    urlsDirty = 1;
    mnuOpen_Click(0);
    EXPECT_THAT(recordNames(), ElementsAre("Front page", "Tools", "Plan"));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackCommands, OpenDefaultWithoutAFileShowsAnEmptyScreen) {
    putStackFile(threeGroups);
    mnuOpen_Click(0);
    driver::removeFile(stackPathInTests);
    mnuOpen_Click(0);
    EXPECT_EQ(Form3.ListView1[3].Count(), 0);
    EXPECT_EQ(Form3.ListView1[lvIndex].Count(), 0);
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 0");
}

TEST_F(StackCommands, MergeShowsTheGroupsOfBothFiles) {
    putStackFile(threeGroups);
    mnuOpen_Click(0);
    driver::putFile("C:\\other.pns", lines("+Reference\r\nv|More\r\n"));
    driver::answerFileDialog("C:\\other.pns");
    mnuMerge_Click(0);
    EXPECT_THAT(groupNames(), ElementsAre("Reference", "Empty group", "Work", "Reference"));
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 4");
}

TEST_F(StackCommands, LoadAllReadsTheDefaultFileAndTheSettings) {
    putStackFile(threeGroups);
    driver::setRegistryText(win::HKEY_CURRENT_USER, settingsKey, "CF", "0 0 2 0 1 0 1");
    mnuLoadAll_Click();
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(browserType.value(), 2);
    EXPECT_EQ(Form3.lastIDX2, 1);
}

TEST_F(StackCommands, SaveAllWritesTheSettingsAndTheDefaultFile) {
    NewCatagory("A");
    addRecord("a", 0);
    urlsDirty = 1;
    mnuSaveAll_Click();
    EXPECT_NE(driver::registryText(win::HKEY_CURRENT_USER, settingsKey, "CF"), std::nullopt);
    EXPECT_EQ(stackFile(), lines("+A\r\nhttp://server/a|a|0|8E34968D|0|0|0\r\n"));
    EXPECT_EQ(urlsDirty, 0);
}

}  // namespace
}  // namespace magpie
