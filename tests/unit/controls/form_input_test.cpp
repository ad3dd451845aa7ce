// Forms: modality, focus, keys and the mouse.
#include "platform/api/user32.h"
#include "platform/controls/basic_controls.h"
#include "platform/controls/text_box.h"
#include "tests/unit/controls/controls_test.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Room : Form {
    explicit Room(const char* name)
        : Form({.className = name,
                .caption = name,
                .border = BorderStyle::sizable,
                .clientWidth = 6000,
                .clientHeight = 4500,
                .keyPreview = true}) {}
    TextBox first;
    TextBox second;
    Button accept;
    Button refuse;
};

// A control that wants Enter and Escape for itself, as an open drop-down list does.
struct Greedy : TextBox {
    bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                       win::LRESULT& answer) override {
        if (message != win::WM_GETDLGCODE || lParam == 0)
            return Control::handleMessage(message, wParam, lParam, answer);
        note("asked for " + std::to_string(reinterpret_cast<win::MSG*>(lParam)->wParam));
        answer = win::DLGC_WANTALLKEYS;
        return true;
    }
};

Room room("Room");
Room dialog("Dialog");

void make(Room& form) {
    form.first.create(form, {300, 300, 1500, 300}, "");
    form.second.create(form, {300, 750, 1500, 300}, "");
    form.accept.create(form, {300, 1200, 1500, 375}, "OK");
    form.refuse.create(form, {300, 1800, 1500, 375}, "Cancel");
}

class FormInput : public ControlsTest {
public:
    FormInput() {
        room.makeControls = [] { make(room); };
        dialog.makeControls = [] { make(dialog); };
    }

    static void useDefaultAndCancel() {
        room.accept.makeDefault();
        room.refuse.makeCancel();
        room.accept.onClick = [] { note("OK"); };
        room.refuse.onClick = [] { note("Cancel"); };
    }
};

// Modality -----------------------------------------------------------------------------

TEST_F(FormInput, AModalFormHoldsTheOthersUntilItHides) {
    Room third("Third");
    room.Show();
    third.load();
    driver::whenIdle([] {
        EXPECT_TRUE(dialog.Visible());
        EXPECT_TRUE(win::IsWindowEnabled(dialog.hWnd()));
        EXPECT_FALSE(win::IsWindowEnabled(room.hWnd()));
        EXPECT_FALSE(win::IsWindowEnabled(loadedForms()[1]->hWnd()));
        driver::click(room.accept.hWnd(), {5, 5});
        win::PostMessageA(dialog.hWnd(), win::WM_NULL, 0, 0);
        dialog.Hide();
    });
    room.accept.onClick = [] { note("clicked"); };
    room.Left(9000);
    dialog.showModal();
    EXPECT_THAT(noted, IsEmpty());
    EXPECT_TRUE(win::IsWindowEnabled(room.hWnd()));
    EXPECT_TRUE(win::IsWindowEnabled(third.hWnd()));
    EXPECT_TRUE(dialog.loaded());
    EXPECT_FALSE(dialog.Visible());
    EXPECT_EQ(win::GetActiveWindow(), room.hWnd());
    third.discard();
}

TEST_F(FormInput, AModalFormEndsWhenItUnloads) {
    room.Show();
    driver::whenIdle(
        [] { win::PostMessageA(dialog.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0); });
    dialog.showModal();
    EXPECT_FALSE(dialog.loaded());
    EXPECT_TRUE(win::IsWindowEnabled(room.hWnd()));
    EXPECT_EQ(win::GetActiveWindow(), room.hWnd());
}

TEST_F(FormInput, AModalFormGivesTheActivationBackToWhereItCameFrom) {
    Room third("Third");
    third.makeControls = [] { make(static_cast<Room&>(*loadedForms().back())); };
    room.Show();
    room.second.SetFocus();
    driver::whenIdle([] {
        // Another form has come to lie between the two.
        win::SetWindowPos(loadedForms().back()->hWnd(), win::HWND_TOP, 0, 0, 0, 0,
                          win::SWP_NOMOVE | win::SWP_NOSIZE | win::SWP_NOACTIVATE);
        win::SetWindowPos(dialog.hWnd(), win::HWND_TOP, 0, 0, 0, 0,
                          win::SWP_NOMOVE | win::SWP_NOSIZE | win::SWP_NOACTIVATE);
        dialog.Hide();
        win::PostMessageA(room.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.load();
    third.Visible(true);
    room.Show();
    dialog.showModal();
    EXPECT_EQ(win::GetActiveWindow(), room.hWnd());
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
    third.discard();
}

TEST_F(FormInput, AModalFormThatIsNotActiveLeavesTheActivationAlone) {
    room.Show();
    driver::whenIdle([] {
        driver::deactivateApplication();
        win::PostMessageA(room.hWnd(), win::WM_NULL, 0, 0);
        dialog.unload();
    });
    dialog.showModal();
    EXPECT_EQ(win::GetActiveWindow(), nullptr);
}

TEST_F(FormInput, ModalFormsNest) {
    room.Show();
    driver::whenIdle([] {
        Room inner("Inner");
        driver::whenIdle([] {
            EXPECT_FALSE(win::IsWindowEnabled(room.hWnd()));
            EXPECT_FALSE(win::IsWindowEnabled(dialog.hWnd()));
            loadedForms().back()->Hide();
            win::PostMessageA(room.hWnd(), win::WM_NULL, 0, 0);
        });
        inner.showModal();
        EXPECT_FALSE(win::IsWindowEnabled(room.hWnd()));
        EXPECT_TRUE(win::IsWindowEnabled(dialog.hWnd()));
        inner.discard();
        dialog.Hide();
        win::PostMessageA(room.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.showModal();
    EXPECT_TRUE(win::IsWindowEnabled(room.hWnd()));
}

TEST_F(FormInput, AFormThatWasDisabledBeforeStaysSo) {
    room.Show();
    win::EnableWindow(room.hWnd(), false);
    driver::whenIdle([] {
        dialog.Hide();
        win::PostMessageA(room.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.showModal();
    EXPECT_FALSE(win::IsWindowEnabled(room.hWnd()));
}

TEST_F(FormInput, AFormMayGoUnderAModalOne) {
    room.Show();
    driver::whenIdle([] {
        room.unload();
        dialog.Hide();
        win::PostMessageA(dialog.hWnd(), win::WM_NULL, 0, 0);
    });
    dialog.showModal();
    EXPECT_FALSE(room.loaded());
}

TEST_F(FormInput, TheEndOfTheProgramEndsAModalLoop) {
    room.Show();
    driver::whenIdle([] { win::PostQuitMessage(3); });
    dialog.showModal();
    EXPECT_EQ(runUntilNoForm(), 3);
}

// Focus --------------------------------------------------------------------------------

TEST_F(FormInput, TheFirstStopHasTheFocusAtFirst) {
    room.Show();
    EXPECT_EQ(win::GetFocus(), room.first.hWnd());
}

TEST_F(FormInput, AFirstStopThatCannotHaveTheFocusIsPassedOver) {
    room.first.Enabled(false);
    room.second.Visible(false);
    room.Show();
    EXPECT_EQ(win::GetFocus(), room.accept.hWnd());
}

TEST_F(FormInput, TheFocusComesBackToWhereItWas) {
    room.Show();
    room.second.SetFocus();
    dialog.Show();
    EXPECT_EQ(win::GetFocus(), dialog.first.hWnd());
    room.Show();
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
    driver::deactivateApplication();
    driver::activateApplication();
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
}

TEST_F(FormInput, AFocusWhoseControlHidMeanwhileGoesToTheFirstStop) {
    room.Show();
    room.second.SetFocus();
    dialog.Show();
    room.second.Visible(false);
    room.Show();
    EXPECT_EQ(win::GetFocus(), room.first.hWnd());
}

TEST_F(FormInput, TabWalksTheStopsInTheirOrder) {
    room.Show();
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), room.accept.hWnd());
    driver::key(win::VK_TAB, {.ctrl = false, .shift = true, .alt = false});
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
}

TEST_F(FormInput, AnActivationIsTold) {
    room.onActivate = [] { note("activate"); };
    room.Show();
    EXPECT_THAT(noted, ElementsAre("activate"));
    dialog.Show();
    room.Show();
    EXPECT_THAT(noted, ElementsAre("activate", "activate"));
}

TEST_F(FormInput, AReturnFromAnotherProgramIsNoActivationButTheFirstOneIs) {
    room.onActivate = [] { note("activate"); };
    room.Show();
    EXPECT_THAT(noted, ElementsAre("activate"));
    driver::deactivateApplication();
    driver::activateApplication();
    EXPECT_THAT(noted, ElementsAre("activate"));
    room.unload();
    room.Show();
    EXPECT_THAT(noted, ElementsAre("activate", "activate"));
}

// Keys ---------------------------------------------------------------------------------

TEST_F(FormInput, EnterAndEscapePressTheFormsButtons) {
    room.Show();
    useDefaultAndCancel();
    driver::key(win::VK_RETURN);
    driver::key(win::VK_ESCAPE);
    EXPECT_THAT(noted, ElementsAre("OK", "Cancel"));
}

TEST_F(FormInput, EnterPressesTheButtonThatHasTheFocus) {
    room.Show();
    useDefaultAndCancel();
    room.refuse.SetFocus();
    driver::key(win::VK_RETURN);
    EXPECT_THAT(noted, ElementsAre("Cancel"));
}

TEST_F(FormInput, EnterAndEscapeLeaveTheFocusWhereItIs) {
    room.Show();
    useDefaultAndCancel();
    room.second.SetFocus();
    driver::key(win::VK_RETURN);
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
    driver::key(win::VK_ESCAPE);
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
}

bool looksDefault(Control& button) {
    return (win::GetWindowLongPtrA(button.hWnd(), win::GWL_STYLE) & 0xF) == win::BS_DEFPUSHBUTTON;
}

TEST_F(FormInput, TheButtonThatEnterWouldPressLooksSo) {
    room.Show();
    useDefaultAndCancel();
    EXPECT_TRUE(looksDefault(room.accept));
    room.second.SetFocus();
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), room.accept.hWnd());
    EXPECT_TRUE(looksDefault(room.accept));
    driver::key(win::VK_TAB);
    EXPECT_FALSE(looksDefault(room.accept));
    EXPECT_TRUE(looksDefault(room.refuse));
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), room.first.hWnd());
    EXPECT_TRUE(looksDefault(room.accept));
    EXPECT_FALSE(looksDefault(room.refuse));
    driver::click(room.refuse.hWnd(), {5, 5});
    EXPECT_FALSE(looksDefault(room.accept));
    EXPECT_TRUE(looksDefault(room.refuse));
}

TEST_F(FormInput, TheLookComesBackAfterThePlatformTookIt) {
    room.Show();
    useDefaultAndCancel();
    win::SendMessageA(room.accept.hWnd(), win::BM_SETSTYLE, win::BS_PUSHBUTTON, 1);
    driver::key(win::VK_TAB);
    EXPECT_EQ(win::GetFocus(), room.second.hWnd());
    EXPECT_TRUE(looksDefault(room.accept));
}

TEST_F(FormInput, TheAccessKeyOfALabelEntersTheNextStop) {
    static Form plain({.className = "Plain", .caption = "Plain"});
    static TextBox before;
    static Frame frame;
    static Label label;
    static TextBox hidden;
    static TextBox text;
    plain.makeControls = [] {
        before.create(plain, {0, 0, 900, 300}, "");
        frame.create(plain, {0, 300, 3000, 1500}, "");
        label.create(frame, {0, 300, 900, 300}, "&Name");
        hidden.create(frame, {0, 600, 900, 300}, "");
        hidden.Visible(false);
        text.create(plain, {0, 2100, 900, 300}, "offered");
    };
    plain.Show();
    ASSERT_EQ(win::GetFocus(), before.hWnd());
    driver::key('N', {.ctrl = false, .shift = false, .alt = true});
    EXPECT_EQ(win::GetFocus(), text.hWnd());
    driver::type("new");
    EXPECT_EQ(text.Text(), "new");
    plain.discard();
}

TEST_F(FormInput, EnterOnACheckBoxPressesTheDefaultButton) {
    static Form plain({.className = "Plain", .caption = "Plain"});
    static CheckBox box;
    static Button accept;
    plain.makeControls = [] {
        box.create(plain, {0, 0, 900, 300}, "Box");
        accept.create(plain, {0, 600, 900, 300}, "OK");
        accept.makeDefault();
    };
    box.onClick = [] { note("box"); };
    accept.onClick = [] { note("OK"); };
    plain.Show();
    ASSERT_EQ(win::GetFocus(), box.hWnd());
    driver::key(win::VK_RETURN);
    EXPECT_THAT(noted, ElementsAre("OK"));
    EXPECT_EQ(box.Value(), 0);
    plain.discard();
}

TEST_F(FormInput, AControlMayWantEnterAndEscapeForItself) {
    static Form plain({.className = "Plain", .caption = "Plain"});
    static Greedy greedy;
    static Button accept;
    plain.makeControls = [] {
        greedy.create(plain, {0, 0, 900, 300}, "");
        accept.create(plain, {0, 600, 900, 300}, "OK");
        accept.makeDefault();
        accept.makeCancel();
    };
    accept.onClick = [] { note("OK"); };
    greedy.onKeyDown = [](int key, int) { note("key " + std::to_string(key)); };
    plain.Show();
    driver::key(win::VK_RETURN);
    driver::key(win::VK_ESCAPE);
    EXPECT_THAT(noted, ElementsAre("asked for 13", "key 13", "asked for 27", "key 27"));
    plain.discard();
}

TEST_F(FormInput, ADisabledButtonIsNotPressed) {
    room.Show();
    useDefaultAndCancel();
    room.accept.Enabled(false);
    room.refuse.Enabled(false);
    driver::key(win::VK_RETURN);
    driver::key(win::VK_ESCAPE);
    EXPECT_THAT(noted, IsEmpty());
}

TEST_F(FormInput, SpacePressesTheButtonThatHasTheFocus) {
    room.Show();
    useDefaultAndCancel();
    room.accept.SetFocus();
    driver::key(win::VK_SPACE);
    EXPECT_THAT(noted, ElementsAre("OK"));
}

TEST_F(FormInput, AnEnterThatClosesTheFormIsNoTrouble) {
    room.Show();
    room.accept.makeDefault();
    room.accept.onClick = [] { room.unload(); };
    driver::key(win::VK_RETURN);
    EXPECT_FALSE(room.loaded());
}

TEST_F(FormInput, AClickThatClosesTheFormIsNoTrouble) {
    room.Show();
    room.accept.onClick = [] { room.unload(); };
    driver::click(room.accept.hWnd(), {5, 5});
    EXPECT_FALSE(room.loaded());
    EXPECT_EQ(driver::live(), driver::Counts{});
}

TEST_F(FormInput, TheFormHearsCharactersBeforeItsControls) {
    room.onKeyPress = [](int character) {
        note(std::to_string(character) + " at '" + room.first.Text() + "'");
    };
    room.Show();
    driver::type("ab");
    driver::key(win::VK_ESCAPE);
    room.accept.SetFocus();
    driver::key('A', {.ctrl = true, .shift = false, .alt = false});
    EXPECT_THAT(noted, ElementsAre("97 at ''", "98 at 'a'", "27 at 'ab'", "1 at 'ab'"));
    EXPECT_EQ(room.first.Text(), "ab");
}

TEST_F(FormInput, WithoutThePreviewTheFormHearsNoCharacters) {
    Form plain({.className = "Plain", .caption = "Plain"});
    static TextBox* box = nullptr;
    TextBox text;
    box = &text;
    plain.makeControls = [] { box->create(*Form::underConstruction, {0, 0, 900, 300}, ""); };
    plain.onKeyPress = [](int) { note("heard"); };
    plain.Show();
    driver::type("a");
    EXPECT_THAT(noted, IsEmpty());
    EXPECT_EQ(text.Text(), "a");
    plain.discard();
}

TEST_F(FormInput, AKeyThatClosesTheFormIsNoTrouble) {
    room.onKeyPress = [](int) { room.unload(); };
    room.Show();
    driver::type("a");
    EXPECT_FALSE(room.loaded());
}

TEST_F(FormInput, AControlHearsItsKeysWithTheShifts) {
    room.accept.onKeyDown = [](int code, int shift) {
        note("down " + std::to_string(code) + " " + std::to_string(shift));
    };
    room.accept.onKeyUp = [](int code, int shift) {
        note("up " + std::to_string(code) + " " + std::to_string(shift));
    };
    room.Show();
    room.accept.SetFocus();
    driver::key(win::VK_F4);
    EXPECT_THAT(noted, ElementsAre("down 115 0", "up 115 0"));
    noted.clear();
    driver::key(win::VK_F4, {.ctrl = true, .shift = true, .alt = false});
    EXPECT_THAT(noted, testing::Contains("down 115 3"));
}

TEST_F(FormInput, AControlHearsItsCharacters) {
    room.accept.onKeyPress = [](int character) { note(std::to_string(character)); };
    room.Show();
    room.accept.SetFocus();
    driver::type("a\x06");
    EXPECT_THAT(noted, ElementsAre("97", "6"));
}

// Shortcuts ----------------------------------------------------------------------------

constexpr driver::Keys ctrl{.ctrl = true, .shift = false, .alt = false};

bool noteShortcut(char letter) {
    note(std::string("shortcut ").append(1, letter));
    return letter != 'Q';
}

TEST_F(FormInput, AShortcutIsHeardOnceAndByTheFormAlone) {
    room.onShortcut = noteShortcut;
    room.onKeyPress = [](int character) { note(std::to_string(character)); };
    room.accept.onKeyDown = [](int code, int) { note("down " + std::to_string(code)); };
    room.Show();
    room.accept.SetFocus();
    driver::key('B', ctrl);
    EXPECT_THAT(noted, ElementsAre("down 17", "shortcut B"));
}

TEST_F(FormInput, WhatIsNoShortcutGoesItsUsualWay) {
    room.onShortcut = noteShortcut;
    room.onKeyPress = [](int character) { note(std::to_string(character)); };
    room.Show();
    room.accept.SetFocus();
    driver::key('Q', ctrl);
    EXPECT_THAT(noted, ElementsAre("shortcut Q", "17"));
    noted.clear();
    driver::key('B');
    driver::key('B', {.ctrl = true, .shift = true, .alt = false});
    driver::key('B', {.ctrl = true, .shift = false, .alt = true});
    driver::key('1', ctrl);
    EXPECT_THAT(noted, ElementsAre("98", "2", "98"));
}

TEST_F(FormInput, AShortcutGoesBeforeTheKeyThatMarksAText) {
    room.onShortcut = noteShortcut;
    room.onKeyPress = [](int character) { note(std::to_string(character)); };
    room.Show();
    room.first.Text("text");
    room.first.SetFocus();
    driver::key('A', ctrl);
    EXPECT_THAT(noted, ElementsAre("shortcut A"));
    EXPECT_EQ(win::SendMessageA(room.first.hWnd(), win::EM_GETSEL, 0, 0), 0);
    noted.clear();
    room.onShortcut = [](char) { return false; };
    driver::key('A', ctrl);
    EXPECT_THAT(noted, IsEmpty());
    EXPECT_EQ(win::SendMessageA(room.first.hWnd(), win::EM_GETSEL, 0, 0), win::makeLParam(0, 4));
}

TEST_F(FormInput, AShortcutThatFailsOrClosesTheFormIsNoTrouble) {
    room.onShortcut = [](char letter) -> bool {
        if (letter == 'B') throw Failure{13};
        room.unload();
        return true;
    };
    room.Show();
    driver::key('B', ctrl);
    EXPECT_TRUE(room.loaded());
    driver::key('N', ctrl);
    EXPECT_FALSE(room.loaded());
}

// The menu key -------------------------------------------------------------------------

TEST_F(FormInput, TheMenuKeyAndShiftF10AskForTheMenuOfTheControlWithTheFocus) {
    room.accept.onMenuKey = [] { note("accept"); };
    room.refuse.onMenuKey = [] { note("refuse"); };
    room.Show();
    room.accept.SetFocus();
    driver::key(win::VK_APPS);
    driver::key(win::VK_F10, {.ctrl = false, .shift = true, .alt = false});
    EXPECT_THAT(noted, ElementsAre("accept", "accept"));
}

TEST_F(FormInput, TheRightButtonIsNoMenuKey) {
    room.accept.onMenuKey = [] { note("menu"); };
    room.Show();
    driver::click(room.accept.hWnd(), {5, 5}, driver::Button::right);
    EXPECT_THAT(noted, IsEmpty());
}

TEST_F(FormInput, TheMenuOfAControlBelongsBelowIt) {
    room.Show();
    win::RECT inner{};
    win::GetClientRect(room.accept.hWnd(), &inner);
    win::POINT corner{0, inner.bottom};
    win::ClientToScreen(room.accept.hWnd(), &corner);
    const win::POINT place = room.accept.menuPlace();
    EXPECT_EQ(place.x, corner.x);
    EXPECT_EQ(place.y, corner.y);
}

// The mouse ----------------------------------------------------------------------------

TEST_F(FormInput, TheFormHearsTheMouseInTwipsOrPixels) {
    room.onMouseDown = [](int button, int shift, double x, double y) {
        note("down " + std::to_string(button) + " " + std::to_string(shift) + " " +
             std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
    };
    room.onMouseUp = [](int button, int, double, double) { note("up " + std::to_string(button)); };
    room.Show();
    driver::click(room.hWnd(), {300, 200});
    EXPECT_THAT(noted, ElementsAre("down 1 0 4500 3000", "up 1"));
    noted.clear();
    room.ScaleMode = scalePixels;
    driver::click(room.hWnd(), {300, 200}, driver::Button::right);
    driver::click(room.hWnd(), {300, 200}, driver::Button::middle);
    EXPECT_THAT(noted, ElementsAre("down 2 0 300 200", "up 2", "down 4 0 300 200", "up 4"));
}

TEST_F(FormInput, AMoveTellsOfTheButtonsThatAreHeld) {
    room.onMouseMove = [](int button, int shift, double x, double) {
        note(std::to_string(button) + " " + std::to_string(shift) + " " +
             std::to_string(static_cast<int>(x)));
    };
    room.Show();
    win::SendMessageA(room.hWnd(), win::WM_MOUSEMOVE,
                      static_cast<win::WPARAM>(win::MK_LBUTTON | win::MK_MBUTTON), 514);
    driver::hold(win::VK_CONTROL, true);
    driver::moveMouse(room.hWnd(), {300, 200});
    EXPECT_THAT(noted, ElementsAre("5 0 7710", "0 2 4500"));
}

TEST_F(FormInput, AtAHighDensityATwipIsLessOfAPixel) {
    driver::setDpi(144);
    room.onMouseDown = [](int, int, double x, double) {
        note(std::to_string(static_cast<int>(x)));
    };
    room.Show();
    driver::click(room.hWnd(), {450, 300});
    EXPECT_THAT(noted, ElementsAre("4500"));
    win::RECT rect{};
    win::GetWindowRect(room.first.hWnd(), &rect);
    EXPECT_EQ(rect.right - rect.left, 150);
    EXPECT_EQ(room.first.Width(), 1500);
}

}  // namespace
}  // namespace magpie
