// The about box, the maker's addresses and the help file, from the main window and from the tray.
#include <gmock/gmock.h>

#include "config/companion.h"
#include "config/help.h"
#include "core/misc.h"
#include "entries/edit_entry.h"
#include "entries/form2.h"
#include "entries/url_information.h"
#include "platform/memory/driver_line.h"
#include "tests/behaviour/companion_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AboutAndHelp : public CompanionFixture {
public:
    static void startInTray() {
        putTrayRecord();
        start();
    }

    static win::VARIANT windowOf(const win::VARIANT& host) {
        win::VARIANT window;
        EXPECT_EQ(ask(objectIn(host), "hWnd", win::DISPATCH_PROPERTYGET, {}, &window), 0);
        return window;
    }
    static win::VARIANT handleOf(Form& form) {
        return number(reinterpret_cast<std::intptr_t>(form.hWnd()));
    }

    // What the host says when the about box asks for a help topic.
    win::HRESULT helpAnswer = 1;
    void askForHelp(std::int64_t topic) {
        during("About", [this, topic](Library&) {
            helpAnswer = ask(objectIn(arguments[0]), "out_ShowHelpID", win::DISPATCH_METHOD,
                             {topic, number(0x1234)}, nullptr);
        });
    }
};

TEST_F(AboutAndHelp, TheAboutBoxGetsItsOwnerTheFolderAndTheVersion) {
    open();
    bool shown = false;
    during("About", [&](Library&) {
        shown = true;
        EXPECT_EQ(windowOf(arguments[0]), handleOf(Form3));
        arguments.erase(arguments.begin());
    });
    chooseFromMenu("About");
    EXPECT_TRUE(shown);
    EXPECT_THAT(arguments, ElementsAre(std::string("C:\\Magpie"), number(11), number(12),
                                       number(13), number(flag)));
    EXPECT_EQ(driver::objects(), 0);
}

TEST_F(AboutAndHelp, FromTheMainWindowTheAboutBoxHoldsTheInterfaceOnALoweredWindow) {
    open();
    mainOnTop = true;
    setTopMost(Form3, -1);
    bool shown = false;
    during("About", [&](Library&) {
        shown = true;
        EXPECT_EQ(modalOpen, 1);
        EXPECT_FALSE(onTop(Form3));
    });
    chooseFromMenu("About");
    EXPECT_TRUE(shown);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop(Form3));
}

TEST_F(AboutAndHelp, FromTheTrayTheAboutBoxNeedsNoMainWindow) {
    startInTray();
    bool shown = false;
    during("About", [&](Library&) {
        shown = true;
        EXPECT_EQ(modalOpen, 1);
        EXPECT_EQ(windowOf(arguments[0]), handleOf(Form1));
    });
    chooseFromTray("About");
    EXPECT_TRUE(shown);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(AboutAndHelp, FromTheTrayTheMainWindowKeepsItsLevel) {
    open();
    mainOnTop = true;
    setTopMost(Form3, -1);
    during("About", [](Library&) { EXPECT_TRUE(onTop(Form3)); });
    chooseFromTray("About");
    EXPECT_THAT(done, ElementsAre("About()"));
    EXPECT_TRUE(onTop(Form3));
}

// It gives the interface back as it found it free, also where a dialog has it: that one then has
// nothing to accept.
TEST_F(AboutAndHelp, FromTheTrayUnderADialogItTakesTheInterfaceFromTheDialog) {
    open();
    clickTab(2);
    bool asked = false;
    driver::whenIdle([&] {
        asked = true;
        ASSERT_TRUE(Form2.loaded());
        Form2.Text1[0].Text("Another name");
        during("About", [](Library&) { EXPECT_EQ(modalOpen, 1); });
        chooseFromTray("About");
        EXPECT_TRUE(Form2.loaded());
        EXPECT_EQ(modalOpen, 0);
        acceptEntry_Click();
        EXPECT_FALSE(Form2.loaded());
        win::PostMessageA(Form3.hWnd(), win::WM_NULL, 0, 0);
    });
    mnuEdit_Click();
    EXPECT_TRUE(asked);
    EXPECT_THAT(done, ElementsAre("About()"));
    EXPECT_THAT(titlesInView(), testing::Not(testing::Contains("Another name")));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(AboutAndHelp, TheProgramsEndUnderTheAboutBoxTakesEverythingAlong) {
    open();
    during("About", [](Library&) { chooseFromTray("Unload"); });
    chooseFromMenu("About");
    EXPECT_EQ(driver::objects(), 0);
    expectGone();
}

TEST_F(AboutAndHelp, TheMakersAddressesHaveNumbers) {
    startInTray();
    chooseFromTray("Contacting Fennelworks");
    EXPECT_THAT(done, ElementsAre("Contact()"));
    ASSERT_EQ(arguments.size(), 2u);
    EXPECT_EQ(arguments[1], win::VARIANT(number(0)));
    chooseFromTray("Magpie Web Site");
    EXPECT_THAT(done, ElementsAre("Contact()", "Contact()"));
    EXPECT_EQ(arguments[1], win::VARIANT(number(1)));
    EXPECT_EQ(modalOpen, 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(AboutAndHelp, TheMakersAddressesDoNotHoldTheInterface) {
    startInTray();
    during("Contact", [this](Library&) {
        EXPECT_EQ(modalOpen, 0);
        EXPECT_EQ(windowOf(arguments[0]), handleOf(Form1));
    });
    chooseFromTray("Magpie Web Site");
    EXPECT_THAT(done, ElementsAre("Contact()"));
}

TEST_F(AboutAndHelp, WithoutTheLibraryTheAboutBoxGivesTheInterfaceBack) {
    open();
    mainOnTop = true;
    setTopMost(Form3, -1);
    driver::failCall("CoCreateInstanceFrom", 1, win::ERROR_MOD_NOT_FOUND);
    EXPECT_EQ(failureOf([] { showAbout(Form3); }), failure::cannotCreateObject);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(onTop(Form3));
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(AboutAndHelp, AnAboutBoxThatFailsGivesTheInterfaceBack) {
    open();
    failing("About");
    chooseFromMenu("About");
    EXPECT_THAT(done, ElementsAre("About()"));
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(driver::objects(), 0);
}

// Help ---------------------------------------------------------------------------------------

TEST_F(AboutAndHelp, HelpOpensTheFilesFirstTopicFromEitherWindow) {
    open();
    chooseFromTray("Magpie Help");
    chooseFromMenu("Help");
    ASSERT_EQ(driver::helpCalls().size(), 2u);
    const win::HWND callers[] = {Form1.hWnd(), Form3.hWnd()};
    for (std::size_t at = 0; at < 2; ++at) {
        const win::memory::HelpCall& call = driver::helpCalls()[at];
        EXPECT_EQ(call.caller, callers[at]);
        EXPECT_EQ(call.file, "C:\\Magpie\\PNSHelp.chm");
        EXPECT_EQ(call.command, 0u);
        EXPECT_EQ(call.data, 0u);
    }
}

TEST_F(AboutAndHelp, TheAboutBoxOpensATopicByItsNumberThroughItsOwner) {
    open();
    askForHelp(4711);
    chooseFromMenu("About");
    EXPECT_EQ(helpAnswer, 0);
    ASSERT_EQ(driver::helpCalls().size(), 1u);
    const win::memory::HelpCall& call = driver::helpCalls().front();
    EXPECT_EQ(call.caller, reinterpret_cast<win::HWND>(std::uintptr_t{0x1234}));
    EXPECT_EQ(call.file, "C:\\Magpie\\PNSHelp.chm");
    EXPECT_EQ(call.command, 15u);
    EXPECT_EQ(call.data, 4711u);
}

TEST_F(AboutAndHelp, TheTrayIsNoOwnerThatOpensTopics) {
    startInTray();
    askForHelp(4711);
    chooseFromTray("About");
    EXPECT_EQ(helpAnswer, win::DISP_E_UNKNOWNNAME);
    EXPECT_THAT(driver::helpCalls(), IsEmpty());
}

TEST_F(AboutAndHelp, WithoutTheViewerThereIsNoHelpAndNothingWorse) {
    open();
    const auto gone = driver::takeLibraryAway("hhctrl.ocx");
    EXPECT_EQ(failureOf([] { showHelp(Form3); }), failure::fileNotFound);
    chooseFromMenu("Help");
    chooseFromTray("Magpie Help");
    askForHelp(1);
    chooseFromMenu("About");
    EXPECT_LT(helpAnswer, 0);
    EXPECT_THAT(driver::helpCalls(), IsEmpty());
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    EXPECT_EQ(modalOpen, 0);
}

}  // namespace
}  // namespace magpie
