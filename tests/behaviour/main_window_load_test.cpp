// The main window's load, step by step, and its events at form level.
#include <algorithm>

#include "config/config.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "store/records.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class MainWindowLoad : public ProgramFixture {
public:
    static std::vector<std::string> groupNames() {
        std::vector<std::string> names;
        for (std::int32_t i = 0; i < IDXList.uBound(); ++i) names.push_back(IDXList[i].Name);
        return names;
    }

    static std::vector<std::string> groupListTexts() {
        std::vector<std::string> texts;
        for (int row = 1; row <= Form3.ListView1[3].Count(); ++row)
            texts.push_back(Form3.ListView1[3].Row(row).Text());
        return texts;
    }

    static void clickMenuButton(const std::string& caption) {
        driver::choose(caption);
        driver::click(Form3.Command3[1].hWnd(), {8, 8});
        driver::pump();
    }
};

// The main window's load ---------------------------------------------------------------

// What could be seen of the program in a pump of the main window's load.
struct Sight {
    bool hooked, iconTaken, resident, settings, flushEnabled, fullWindow, loadedFlag;
    int records, groupRows, lastGroup;
    std::string padTip;
};

std::vector<Sight> sightsOfLoading() {
    static std::vector<Sight> sights;
    static win::WNDPROC own = nullptr;
    sights.clear();
    const auto procedure = [] {
        return reinterpret_cast<win::WNDPROC>(
            win::GetWindowLongPtrA(Form3.hWnd(), win::GWLP_WNDPROC));
    };
    // Form1's window has the procedure that the main window's had before the hook.
    own = reinterpret_cast<win::WNDPROC>(win::GetWindowLongPtrA(Form1.hWnd(), win::GWLP_WNDPROC));
    for (int n = 1; n <= 60; ++n)
        driver::atPump(n, [procedure] {
            sights.push_back({procedure() != own, Form3.Icon().big == Form1.Icon().big,
                              keepResident, mainOnTop, Form1.mFlush.Enabled,
                              Form3.mnuFullwindow.Checked, reallyLoaded, uBlock.URLDatas().Count(),
                              Form3.ListView1[3].Count(), Form3.lastIDX2,
                              Form1.Picture1.ToolTipText()});
        });
    Form3.load();
    const std::vector<Sight> loading = sights;
    while (driver::unplayed() > 0) DoEvents();
    return loading;
}

TEST_F(MainWindowLoad, TheMainWindowLoadsStepByStep) {
    putRecord("ID", "2 3000 4000 0 1 0 False False");
    putRecord("CF", "14 2 1 0 1 0 1 1500 1500 9000 7500 31 0 36000");
    putSampleFile();
    start();
    isOnline = -1;
    const std::vector<Sight> sights = sightsOfLoading();
    ASSERT_GE(sights.size(), 4u);

    // The first pump comes behind the first build and before the settings.
    EXPECT_TRUE(sights.front().hooked);
    EXPECT_TRUE(sights.front().iconTaken);
    EXPECT_TRUE(sights.front().resident);
    EXPECT_FALSE(sights.front().settings);

    // Settings, then records, then the groups of the pick list.
    const auto first = [&sights](auto seen) {
        return std::find_if(sights.begin(), sights.end(), seen) - sights.begin();
    };
    const auto settings = first([](const Sight& at) { return at.settings; });
    const auto records = first([](const Sight& at) { return at.records > 0; });
    const auto groups = first([](const Sight& at) { return at.groupRows > 0; });
    EXPECT_LT(0, settings);
    EXPECT_LT(settings, records);
    EXPECT_LT(records, groups);
    EXPECT_LT(static_cast<std::size_t>(groups), sights.size());
    EXPECT_EQ(sights[static_cast<std::size_t>(groups)].records, 3);
    EXPECT_EQ(sights[static_cast<std::size_t>(groups)].lastGroup, 1);

    // No event of the load sees its last steps done.
    for (const Sight& at : sights) {
        EXPECT_FALSE(at.flushEnabled);
        EXPECT_FALSE(at.fullWindow);
        EXPECT_FALSE(at.loadedFlag);
        EXPECT_NE(at.padTip, "Status: Online: Ready");
    }
    EXPECT_TRUE(Form1.mFlush.Enabled);
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_TRUE(reallyLoaded);
    EXPECT_EQ(Form1.Picture1.ToolTipText(), "Status: Online: Ready");
}

TEST_F(MainWindowLoad, TheFirstBuildFillsTheNamesAndSetsTheTab) {
    putRecord("CF", "16");  // without the settings
    start();
    driver::atPump(1, [] {
        EXPECT_EQ(currentTab, 1);
        EXPECT_EQ(lvIndex, 2);
        EXPECT_EQ(IDXList.uBound(), 0);
        EXPECT_THAT(std::vector<std::string>(ratedNames.begin(), ratedNames.begin() + 5),
                    ElementsAre("Not Rated", "Low", "Medium", "High", "V.High"));
        EXPECT_THAT(ddeApps, ElementsAre("IEXPLORE", "Netscape", "Opera", ""));
        // Lower right of a screen of 15360 by 11520 twips with a task bar of 420.
        EXPECT_EQ(Form3.Left(), 15360 - Form3.Width());
        EXPECT_EQ(Form3.Top(), 11520 - Form3.Height() - 420);
    });
    Form3.load();
}

TEST_F(MainWindowLoad, WithoutTheSettingTheWindowKeepsItsDefaultPlace) {
    putRecord("CF", "16 0 1 0 2 1 0 1500 1500 9000 7500 31 0 36000");
    start();
    clickPad();
    EXPECT_EQ(Form3.Left(), 15360 - Form3.Width());
    EXPECT_EQ(Form3.Top(), 11520 - Form3.Height() - 420);
    EXPECT_EQ(currentTab, 1);
}

TEST_F(MainWindowLoad, WithTheSettingTheWindowComesBackToItsPlaceAndTab) {
    putRecord("CF", "0 0 1 0 2 1 0 1500 1800 9000 7500 31 0 36000");
    putSampleFile();
    start();
    clickPad();
    EXPECT_EQ(Form3.Top(), 1500);
    EXPECT_EQ(Form3.Left(), 1800);
    EXPECT_EQ(Form3.Width(), 9000);
    EXPECT_EQ(Form3.Height(), 7500);
    EXPECT_EQ(currentTab, 2);
}

TEST_F(MainWindowLoad, TheGroupOfTheLastRunIsTheGroupInView) {
    putRecord("CF", "0 0 1 0 1 1 1 1500 1800 9000 7500 31 0 36000");
    putSampleFile();
    start();
    clickPad();
    EXPECT_EQ(Form3.lastIDX2, 1);
    EXPECT_THAT(groupListTexts(), ElementsAre("Reference", "Work"));
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "Work");
}

TEST_F(MainWindowLoad, WithoutAutomaticLoadingTheWindowOpensWithNoGroups) {
    putRecord("CF", "72");
    putSampleFile();
    start();
    clickPad();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_TRUE(reallyLoaded);
    EXPECT_THAT(groupNames(), IsEmpty());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(urlsDirty, 0);
    clickMenuButton("Open Default");
    EXPECT_THAT(groupNames(), ElementsAre("Reference", "Work"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(MainWindowLoad, LoadAllFillsAWindowThatOpenedEmpty) {
    putRecord("CF", "72");
    putSampleFile();
    start();
    clickPad();
    clickMenuButton("Load All");
    EXPECT_THAT(groupNames(), ElementsAre("Reference", "Work"));
}

TEST_F(MainWindowLoad, AMissingStackFileGivesAnEmptyStoreAndNoMessage) {
    start();
    clickPad();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_THAT(groupNames(), IsEmpty());
    EXPECT_THAT(groupListTexts(), IsEmpty());
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(MainWindowLoad, AStackFileThatNobodyMayReadCountsAsMissing) {
    putSampleFile();
    const auto held = driver::lockFile(stackFilePath);
    start();
    clickPad();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(MainWindowLoad, MissingPicturesDoNotStopTheLoad) {
    for (const char* name : {"ia", "ib", "ic", "id", "b1u", "b1d"})
        driver::removeFile(std::string("C:\\Magpie\\uBank\\").append(name).append(".bnk"));
    putSampleFile();
    start();
    clickPad();
    EXPECT_TRUE(reallyLoaded);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(MainWindowLoad, TheWindowOpensFullWhenTheLastRunLeftItSo) {
    putRecord("CF", "12 0 1 0 1 1 0 1500 1800 9000 7500 31 0 36000");
    start();
    clickPad();
    EXPECT_TRUE(Form3.mnuFullwindow.Checked);
    EXPECT_FALSE(Form3.tbStrip.Visible());
    EXPECT_FALSE(Form3.StatusBar1.Visible());
}

// The main window's events -------------------------------------------------------------

TEST_F(MainWindowLoad, EscapeTogglesTheFullWindow) {
    startAndOpen();
    Form3.ListView1[2].SetFocus();
    driver::key(win::VK_ESCAPE);
    EXPECT_FALSE(Form3.tbStrip.Visible());
    driver::key(win::VK_ESCAPE);
    EXPECT_TRUE(Form3.tbStrip.Visible());
}

TEST_F(MainWindowLoad, AMinimisedMainWindowStaysInTheTray) {
    startAndOpen();
    win::SendMessageA(Form3.hWnd(), win::WM_SYSCOMMAND, win::SC_MINIMIZE, 0);
    driver::pump();
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateMinimised);
    EXPECT_TRUE(keepResident);
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    clickPad();
    EXPECT_TRUE(Form3.Visible());
    EXPECT_EQ(Form3.WindowState(), stateNormal);
    win::SendMessageA(Form3.hWnd(), win::WM_SYSCOMMAND, win::SC_MINIMIZE, 0);
    driver::pump();
    EXPECT_FALSE(Form3.Visible());
}

TEST_F(MainWindowLoad, ALargerWindowGivesTheListInViewMoreRoom) {
    startAndOpen();
    const double before = Form3.ListView1[2].Width();
    Form3.Width(Form3.Width() + 1500);
    driver::pump();
    EXPECT_EQ(Form3.ListView1[2].Width(), before + 1500);
    clickTab(2);
    const double standard = Form3.ListView1[1].Width();
    Form3.Width(Form3.Width() + 1500);
    driver::pump();
    EXPECT_EQ(Form3.ListView1[1].Width(), standard + 1500);
}

}  // namespace
}  // namespace magpie
