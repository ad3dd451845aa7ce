// ShutdownFixture: the program with a tray icon and an open main window, the ways to
// command it, and the states that it can be in.
#pragma once

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "store/records.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"

namespace magpie {

namespace driver = win::memory::driver;

class ShutdownFixture : public ProgramFixture {
public:
    // A tray icon, the pad on, the line always up.
    static void putTrayRecord() { putRecord("ID", "2 3000 4005 0 1 0 False False"); }

    // Starts with a tray icon and opens the main window.
    static void open() {
        putTrayRecord();
        startAndOpen();
    }

    static void chooseFromMenu(const std::string& caption) {
        driver::choose(caption);
        Button& button = currentTab == 1 ? Form3.Command3[1] : Form3.Command1[1];
        driver::click(button.hWnd(), {8, 8});
        driver::pump();
    }

    static void chooseFromTray(const std::string& caption) {
        driver::choose(caption);
        driver::postTrayMessage(win::WM_RBUTTONUP);
        driver::pump();
    }

    static void clickTrayIcon() {
        driver::postTrayMessage(win::WM_LBUTTONUP);
        driver::pump();
    }

    static void clickCloseBox(Form& form) {
        win::PostMessageA(form.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0);
        driver::pump();
    }

    static void changeFirstTitle(const std::string& title) {
        uBlock.URLDatas().Item(1).Name(title);
        ++urlsDirty;
    }

    static std::string sampleWith(const std::string& title) {
        return lines(
            "+Reference\r\n"
            "http://server/index.html|" +
            title +
            "|8E53EC00|8E34968D|3|1|4\r\n"
            "http://server/tools.html|Tools|0|8E34968D|0|1|0\r\n"
            "+Work\r\n"
            "http://server/a.html|Plan|0|8E53EC00|0|0|0\r\n");
    }

    // The states that the program can be in.
    static void expectResident() {
        EXPECT_TRUE(Form1.loaded());
        EXPECT_FALSE(Form3.loaded());
        EXPECT_EQ(uBlock.URLDatas().Count(), 0);
        EXPECT_EQ(IDXList.uBound(), 0);
        EXPECT_FALSE(keepResident);
    }

    static void expectOpen() {
        EXPECT_TRUE(Form1.loaded());
        ASSERT_TRUE(Form3.loaded());
        EXPECT_TRUE(Form3.Visible());
        EXPECT_TRUE(keepResident);
    }

    static void expectHidden() {
        EXPECT_TRUE(Form1.loaded());
        ASSERT_TRUE(Form3.loaded());
        EXPECT_FALSE(Form3.Visible());
        EXPECT_EQ(Form3.WindowState(), stateMinimised);
        EXPECT_TRUE(keepResident);
        EXPECT_EQ(uBlock.URLDatas().Count(), 3);
    }

    // The loop has nothing left to wait for, and nothing is left behind.
    static void expectGone() {
        EXPECT_THAT(loadedForms(), testing::IsEmpty());
        EXPECT_EQ(runUntilNoForm(), 0);
        EXPECT_EQ(driver::live(), driver::Counts{});
        EXPECT_THAT(driver::shownTrayIcons(), testing::IsEmpty());
        EXPECT_EQ(driver::liveInSystem().registryKeys, 0);
        EXPECT_EQ(driver::liveInSystem().globalBlocks, 0);
    }
};

}  // namespace magpie
