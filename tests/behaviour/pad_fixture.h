// PadFixture: the program with its pad in sight, and the mouse over it.
#pragma once

#include <string>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/services/screen.h"
#include "tests/behaviour/program_fixture.h"
#include "tray/form1.h"

namespace magpie {

class PadFixture : public ProgramFixture {
public:
    static constexpr win::POINT face{8, 8};
    static constexpr win::POINT strip{24, 8};  // 360 twips from the left

    // The pad on, at a place of its own, and the line up from the first tick on.
    static void startOnline() {
        putSampleFile();
        putRecord("ID", "2 3000 4500 0 1 0 True False");
        start();
        win::memory::driver::advance(4000);
    }

    // The letter of the picture on show; '-' for none.
    static char letter() {
        const std::string path = win::memory::driver::pictureOf(Form1.Picture1.hWnd());
        return path.size() > 5 ? path[path.size() - 5] : '-';
    }

    static std::string tip() { return win::memory::driver::toolTip(Form1.Picture1.hWnd()); }
    static std::string file(char which) {
        return std::string("C:\\Magpie\\uBank\\i") + which + ".bnk";
    }

    static void press(win::POINT at,
                      win::memory::driver::Button button = win::memory::driver::Button::left) {
        win::memory::driver::press(Form1.Picture1.hWnd(), at, button);
        win::memory::driver::pump();
    }
    static void release(win::POINT at,
                        win::memory::driver::Button button = win::memory::driver::Button::left) {
        win::memory::driver::release(Form1.Picture1.hWnd(), at, button);
        win::memory::driver::pump();
    }
    static void click(win::POINT at,
                      win::memory::driver::Button button = win::memory::driver::Button::left) {
        press(at, button);
        release(at, button);
    }

    // The strip begins with this pixel.
    static void expectStripFrom(int pixel) {
        startOnline();
        press({pixel - 1, 8});
        EXPECT_EQ(letter(), 'c');
        release({-5, 8});
        win::memory::driver::dragTo(90, 75);
        press({pixel, 8});
        EXPECT_EQ(letter(), 'b');
        EXPECT_EQ(iconLeft, 90 * Screen.TwipsPerPixelX());
    }

    static bool isTopMost() {
        return (win::GetWindowLongPtrA(Form1.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
};

}  // namespace magpie
