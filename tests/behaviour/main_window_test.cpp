// The main window on the screen: groups, rows, counts.
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/memory/driver.h"
#include "tests/behaviour/program_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

using MainWindow = ProgramFixture;
using testing::ElementsAre;

TEST_F(MainWindow, AClickOnThePadShowsTheGroupsAndTheRowsOfTheFirst) {
    startAndOpen();
    EXPECT_TRUE(Form3.Visible());
    clickTab(2);
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 2);
    EXPECT_EQ(Form3.Combo1[1].List(0), "Reference");
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 0);
    EXPECT_THAT(titlesInView(), ElementsAre("Front page", "Tools"));
    EXPECT_THAT(rowTexts(1),
                ElementsAre("Front page", "http://server/index.html", "V.High", "Reference",
                            "1999-10-02 14:29:59", "1999-09-01 09:14:59", "3"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 2");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 3");
}

TEST_F(MainWindow, PickingAGroupShowsItsRows) {
    startAndOpen();
    clickTab(2);
    Form3.Combo1[1].SetFocus();
    driver::key(win::VK_DOWN);
    driver::pump();
    EXPECT_THAT(titlesInView(), ElementsAre("Plan"));
    EXPECT_EQ(rowTexts(1)[4], "Never");
}

}  // namespace
}  // namespace magpie
