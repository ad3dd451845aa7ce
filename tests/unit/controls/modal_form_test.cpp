// Modal forms: what they hold, what stays in use, and what comes up behind them.
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/controls/basic_controls.h"
#include "platform/controls/control_failure.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;

constexpr FormDesign design(const char* name) {
    FormDesign made{};
    made.className = made.caption = name;
    made.clientWidth = 3000;
    made.clientHeight = 1500;
    return made;
}

constexpr FormDesign liveDesign() {
    FormDesign made = design("Live");
    made.live = true;
    return made;
}

Form desk(design("Desk"));
Form other(design("Other"));
Form live(liveDesign());
Form dialog(design("Dialog"));
Form inner(design("Inner"));

class ModalForm : public ControlsTest {
public:
    // Shows a form modally, acts under it, and takes it away.
    template <class Action>
    static void under(Form& form, Action action) {
        driver::whenIdle([&form, action] {
            action();
            form.unload();
            win::PostMessageA(desk.hWnd(), win::WM_NULL, 0, 0);
        });
        form.showModal();
        EXPECT_FALSE(form.loaded());
    }

    static bool inUse(Form& form) { return win::IsWindowEnabled(form.hWnd()) != 0; }

    ModalForm() {
        for (Form* form : {&desk, &other, &live}) form->Show();
        desk.Show();
    }
};

TEST_F(ModalForm, HoldsEveryOtherFormButALiveOne) {
    under(dialog, [] {
        EXPECT_FALSE(inUse(desk));
        EXPECT_FALSE(inUse(other));
        EXPECT_TRUE(inUse(live));
        EXPECT_TRUE(inUse(dialog));
        EXPECT_TRUE(dialog.modal());
    });
    EXPECT_TRUE(inUse(desk));
    EXPECT_TRUE(inUse(other));
    EXPECT_FALSE(desk.modal());
    EXPECT_EQ(win::GetActiveWindow(), desk.hWnd());
}

TEST_F(ModalForm, HoldsAnotherModalFormUntilItGoes) {
    under(dialog, [] {
        under(inner, [] {
            EXPECT_FALSE(inUse(dialog));
            EXPECT_TRUE(inUse(live));
        });
        EXPECT_TRUE(inUse(dialog));
        EXPECT_FALSE(inUse(desk));
    });
    EXPECT_TRUE(inUse(desk));
}

TEST_F(ModalForm, AFormThatIsShownMeanwhileComesUpBehindIt) {
    desk.Hide();
    under(dialog, [] {
        desk.Show();
        EXPECT_TRUE(desk.Visible());
        EXPECT_EQ(win::GetActiveWindow(), dialog.hWnd());
        EXPECT_EQ(win::GetWindow(dialog.hWnd(), win::GW_HWNDNEXT), desk.hWnd());
    });
}

// As a library's dialog over a form of the program, which knows nothing of it.
TEST_F(ModalForm, AFormThatAnotherModulesDialogHoldsComesUpBehindThat) {
    for (const win::DWORD level : {win::DWORD{0}, win::WS_EX_TOPMOST}) {
        win::HWND foreign =
            win::CreateWindowExA(level, "STATIC", "", win::WS_POPUP | win::WS_VISIBLE, 0, 0, 90, 90,
                                 desk.hWnd(), nullptr, win::GetOwnModule(), nullptr);
        win::EnableWindow(desk.hWnd(), false);
        desk.Hide();
        desk.Show();
        EXPECT_EQ(win::GetActiveWindow(), foreign);
        EXPECT_EQ(win::GetWindowLongPtrA(foreign, win::GWL_EXSTYLE) & win::WS_EX_TOPMOST, level);
        win::DestroyWindow(foreign);
        win::EnableWindow(desk.hWnd(), true);
        desk.Hide();
        desk.Show();
        EXPECT_EQ(win::GetActiveWindow(), desk.hWnd());
    }
}

TEST_F(ModalForm, AFormThatLoadsMeanwhileIsHeldAsWell) {
    other.unload();
    under(dialog, [] {
        other.Show();
        EXPECT_FALSE(inUse(other));
        EXPECT_EQ(win::GetActiveWindow(), dialog.hWnd());
        live.unload();
        live.Show();
        EXPECT_TRUE(inUse(live));
        EXPECT_EQ(win::GetActiveWindow(), live.hWnd());
    });
    EXPECT_TRUE(inUse(other));
}

TEST_F(ModalForm, AFormThatGoesMeanwhileStaysAway) {
    under(dialog, [] { other.unload(); });
    EXPECT_FALSE(other.loaded());
    EXPECT_TRUE(inUse(desk));
}

// A window of another module -------------------------------------------------------------------

class OverAnOuterWindow : public ModalForm {
public:
    win::HWND outer =
        win::CreateWindowExA(0, "Static", "", win::WS_POPUP | win::WS_VISIBLE, 0, 0, 100, 100,
                             nullptr, nullptr, win::GetModuleHandleA(nullptr), nullptr);
};

TEST_F(OverAnOuterWindow, ItOwnsTheFormAndIsHeldAsWell) {
    driver::whenIdle([this] {
        EXPECT_EQ(win::GetWindow(dialog.hWnd(), win::GW_OWNER), outer);
        EXPECT_FALSE(win::IsWindowEnabled(outer));
        EXPECT_FALSE(inUse(desk));
        dialog.unload();
        win::PostMessageA(desk.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.showModal(outer);
    EXPECT_TRUE(win::IsWindowEnabled(outer));
    EXPECT_TRUE(inUse(desk));
}

TEST_F(OverAnOuterWindow, ItTakesTheFormAlong) {
    driver::whenIdle([this] {
        win::DestroyWindow(outer);
        win::PostMessageA(desk.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.showModal(outer);
    EXPECT_FALSE(dialog.loaded());
    EXPECT_TRUE(inUse(desk));
    under(dialog, [] { EXPECT_EQ(win::GetWindow(dialog.hWnd(), win::GW_OWNER), nullptr); });
}

TEST_F(OverAnOuterWindow, NothingIsLeftBehindWhenItTakesTheFormAlong) {
    const driver::Counts before = driver::live();
    driver::whenIdle([this] {
        dialog.toolTips();
        win::DestroyWindow(outer);
        win::PostMessageA(desk.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.showModal(outer);
    const driver::Counts after = driver::live();
    EXPECT_EQ(after.windows, before.windows - 1);
    EXPECT_EQ(after.gdiObjects, before.gdiObjects);
}

// A form that goes under a routine -------------------------------------------------------------

Event<> outerEvent;
Event<> innerEvent;

class GoneInside : public ModalForm {
public:
    // Raises one event, and inside of it another one in which the form goes.
    static void goInside() { innerEvent.raise(0); }

    GoneInside() {
        innerEvent = [] { desk.unload(); };
    }
};

TEST_F(GoneInside, ARoutineThatWasUnderWayDoesNotLoadItAgain) {
    outerEvent = [] {
        goInside();
        note("gone");
        EXPECT_EQ(failureOf([] { desk.Caption("again"); }), failure::objectNotSet);
        desk.Caption("again");
        note("never");
    };
    outerEvent.raise(0);
    EXPECT_THAT(noted, ElementsAre("gone"));
    EXPECT_FALSE(desk.loaded());
    desk.Caption("a new one");
    EXPECT_TRUE(desk.loaded());
}

TEST_F(GoneInside, ARoutineMayShowItAgain) {
    outerEvent = [] {
        goInside();
        desk.Show();
        desk.Caption("again");
    };
    outerEvent.raise(0);
    EXPECT_TRUE(desk.Visible());
    EXPECT_EQ(desk.Caption(), "again");
}

TEST_F(GoneInside, TheRoutineThatTookItAwayAndThoseThatBeginLaterMayLoadIt) {
    outerEvent = [] {
        desk.unload();
        desk.Caption("again");
        desk.unload();
        innerEvent = [] { desk.Caption("later"); };
        innerEvent.raise(0);
    };
    outerEvent.raise(0);
    EXPECT_EQ(desk.Caption(), "later");
}

TEST_F(GoneInside, OfANewOneThatHasComeMeanwhileItIsNotKeptAway) {
    outerEvent = [] {
        goInside();
        innerEvent = [] { desk.Show(); };
        innerEvent.raise(0);
        desk.Caption("the new one");
    };
    outerEvent.raise(0);
    EXPECT_EQ(desk.Caption(), "the new one");
}

}  // namespace
}  // namespace magpie
