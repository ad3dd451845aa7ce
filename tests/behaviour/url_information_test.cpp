// The dialog "URL Information" whatever it is for: how it comes up and goes away, and what
// may go wrong under it.
#include "entries/url_information.h"

#include "core/misc.h"
#include "mainwindow/status_panel.h"
#include "platform/controls/control_failure.h"
#include "platform/runtime/word.h"
#include "tests/behaviour/entry_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class UrlInformation : public EntryFixture {
public:
    static bool onTop(Form& form) {
        return (win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
    static std::vector<std::string> rowsOf(ComboBox& combo) {
        std::vector<std::string> rows;
        for (int row = 0; row < combo.ListCount(); ++row) rows.push_back(combo.List(row));
        return rows;
    }
};

// Looks ------------------------------------------------------------------------------------

TEST_F(UrlInformation, ItShowsItsTwoPagesAndTheirFields) {
    open();
    adding([] {
        EXPECT_NE(driver::findWindow("Form2", "URL Information"), nullptr);
        char caption[40] = "";
        for (const char* wanted : {"Quick Edit", "Extended"}) {
            win::TCITEMA tab{};
            tab.mask = win::TCIF_TEXT;
            tab.pszText = caption;
            tab.cchTextMax = sizeof caption;
            win::SendMessageA(Form2.TabStrip.hWnd(), win::TCM_GETITEMA, wanted[0] == 'E' ? 1 : 0,
                              reinterpret_cast<win::LPARAM>(&tab));
            EXPECT_STREQ(caption, wanted);
        }
        EXPECT_EQ(Form2.Label1[0].Caption(), "Name:");
        EXPECT_EQ(Form2.Label1[1].Caption(), "URL:");
        EXPECT_EQ(Form2.Label1[2].Caption(), "Rating:");
        EXPECT_EQ(Form2.Label5.Caption(), "Group:");
        EXPECT_EQ(Form2.Label2[0].Caption(), "Created:");
        EXPECT_EQ(Form2.Label2[1].Caption(), "Last Accessed:");
        EXPECT_EQ(Form2.Label2[2].Caption(), "Times Accessed:");
        EXPECT_EQ(Form2.Command1.Caption(), "Accept");
        EXPECT_EQ(Form2.Command2.Caption(), "Cancel");
    });
}

// The three spellings of the best rating stay apart.
TEST_F(UrlInformation, ItOffersFiveRatingsInTheirOrderAndItsOwnSpelling) {
    open();
    adding([] {
        EXPECT_THAT(rowsOf(Form2.Combo1[0]),
                    ElementsAre("Not Rated", "Low", "Medium", "High", "V.High!"));
    });
    EXPECT_EQ(ratedNames[4], "V.High");
}

TEST_F(UrlInformation, ItsGroupsAreSortedAndEachRowKnowsItsGroup) {
    openWith({"pears", "Apples", "oranges"});
    RefreshURLPage();
    adding([] {
        ComboBox& groupsOffered = Form2.Combo1[1];
        EXPECT_THAT(rowsOf(groupsOffered), ElementsAre("Apples", "oranges", "pears"));
        EXPECT_EQ(groupsOffered.ItemData(0), 1);
        EXPECT_EQ(groupsOffered.ItemData(1), 2);
        EXPECT_EQ(groupsOffered.ItemData(2), 0);
        EXPECT_EQ(chosen(groupsOffered), "pears");
        EXPECT_TRUE(groupsOffered.Visible());
        EXPECT_TRUE(Form2.Label5.Visible());
    });
}

TEST_F(UrlInformation, GroupsOfOneNameAreToldApartByTheirNumbers) {
    openWith({"A", "B", "A"});
    groups().Row(3).Selected(true);
    adding([] {
        EXPECT_EQ(chosen(Form2.Combo1[1]), "A");
        EXPECT_EQ(Form2.Combo1[1].ItemData(Form2.Combo1[1].ListIndex()), 2);
        accept();
    });
    EXPECT_EQ(newest().Owner, 2);
}

TEST_F(UrlInformation, ItLiesOverTheMiddleOfTheMainWindowUnderItsIcon) {
    open();
    Form3.Left(3000);
    Form3.Top(1500);
    adding([] {
        EXPECT_EQ(Form2.Left(), 3000 + (Form3.Width() - Form2.Width()) / 2);
        EXPECT_EQ(Form2.Top(), 1500 + (Form3.Height() - Form2.Height()) / 2);
        EXPECT_EQ(driver::iconOf(Form2.hWnd(), win::ICON_SMALL), Form3.Icon().small);
        EXPECT_EQ(driver::iconOf(Form2.hWnd(), win::ICON_BIG), Form3.Icon().big);
    });
}

// Opening and closing ----------------------------------------------------------------------

TEST_F(UrlInformation, ItHoldsTheInterfaceWhileItIsUp) {
    open();
    for (const std::uint8_t mode : {D_NEW, D_EDIT}) {
        const auto held = [mode] {
            EXPECT_EQ(modalOpen, mode);
            EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
            EXPECT_EQ(win::GetWindow(Form2.hWnd(), win::GW_OWNER), nullptr);
            UpdateMenus();
            for (const MenuItem* item : {&Form3.mnuEdit, &Form3.mnuAddz, &Form3.mnuRemove})
                EXPECT_FALSE(item->Enabled);
        };
        if (mode == D_NEW)
            adding(held);
        else
            editing(held);
        EXPECT_EQ(modalOpen, 0);
        EXPECT_FALSE(Form2.loaded());
        EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
        EXPECT_EQ(win::GetActiveWindow(), Form3.hWnd());
    }
}

TEST_F(UrlInformation, WhileItIsUpNoSecondOneOpens) {
    open();
    adding([] {
        const win::HWND dialog = Form2.hWnd();
        Form3.mnuEdit.onClick.raise(0);
        Form3.mnuAddEntry[1].onClick.raise(1);
        Form3.mnuAddEntry[0].onClick.raise(0);
        EXPECT_EQ(Form2.hWnd(), dialog);
        EXPECT_EQ(modalOpen, D_NEW);
    });
}

TEST_F(UrlInformation, EveryWayOutButAcceptStoresNothingAndLetsTheInterfaceGo) {
    open();
    const std::function<void()> ways[] = {
        [] { cancel(); },
        [] { key(win::VK_ESCAPE); },
        [] { win::SendMessageA(Form2.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0); },
    };
    for (const auto& way : ways) {
        const auto user = [&way] {
            writeName("new");
            way();
            EXPECT_FALSE(Form2.loaded());
        };
        adding(user);
        EXPECT_EQ(modalOpen, 0);
        editing(user);
        EXPECT_EQ(modalOpen, 0);
    }
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    EXPECT_EQ(record(1).Name(), "a1");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(UrlInformation, EnterInAnyFieldAccepts) {
    open();
    Control* const fields[] = {&Form2.Text1[0], &Form2.Text1[1], &Form2.Combo1[0],
                               &Form2.Combo1[1]};
    for (Control* field : fields) {
        adding([field] {
            field->SetFocus();
            key(win::VK_RETURN);
            EXPECT_FALSE(Form2.loaded());
        });
    }
    EXPECT_EQ(uBlock.URLDatas().Count(), 8);
    EXPECT_EQ(urlsDirty, 4);
}

TEST_F(UrlInformation, EnterOnCancelCancels) {
    open();
    adding([] {
        Form2.Command2.SetFocus();
        key(win::VK_RETURN);
        EXPECT_FALSE(Form2.loaded());
    });
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
}

TEST_F(UrlInformation, AMainWindowOnTopStepsDownUnderIt) {
    open();
    mainOnTop = true;
    setTopMost(Form3, wordTrue);
    adding([] { EXPECT_FALSE(onTop(Form3)); });
    EXPECT_TRUE(onTop(Form3));
}

TEST_F(UrlInformation, NoBoxSurvivesFromOneOpeningToTheNext) {
    open();
    adding([] {
        writeName("forgotten");
        writeUrl("ftp://forgotten/");
        chooseRating("High");
        clickPage(2);
    });
    adding([] {
        EXPECT_EQ(Form2.Text1[0].Text(), "");
        EXPECT_EQ(Form2.Text1[1].Text(), "http://");
        EXPECT_EQ(Form2.Combo1[0].ListIndex(), 0);
        EXPECT_EQ(Form2.TabStrip.SelectedTab(), 1);
        EXPECT_EQ(Form2.Frame[0].Left(), 192);
    });
}

TEST_F(UrlInformation, OpenedManyTimesItLeavesNothingBehind) {
    open();
    adding([] {});
    const driver::Counts before = driver::live();
    for (int time = 0; time < 10; ++time) {
        adding([] { clickPage(2); });
        editing([] { key(win::VK_ESCAPE); });
        editing([] { accept(); });
    }
    EXPECT_EQ(driver::live(), before);
}

// With any other purpose than its two it is empty, and Accept only closes it.
TEST_F(UrlInformation, WithoutAPurposeItIsEmptyAndAcceptStoresNothing) {
    open();
    for (const std::uint8_t mode : std::initializer_list<std::uint8_t>{0, 1, 4}) {
        asking(
            [mode] {
                modalOpen = mode;
                showDialogModal(Form2);
            },
            [] {
                for (TextBox& box : Form2.Text1) EXPECT_EQ(box.Text(), "");
                for (ComboBox& combo : Form2.Combo1) EXPECT_EQ(combo.ListIndex(), -1);
                for (Label& value : Form2.Label3) EXPECT_EQ(value.Caption(), "");
                EXPECT_EQ(Form2.Combo1[1].ListCount(), 2);
                writeName("name");
                accept();
                EXPECT_FALSE(Form2.loaded());
            });
        EXPECT_EQ(modalOpen, 0);
    }
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    EXPECT_EQ(urlsDirty, 0);
}

// What fails ---------------------------------------------------------------------------------

// The load is abandoned where it looks for the group in view; nothing can be accepted.
TEST_F(UrlInformation, WithoutAGroupInViewNothingIsChosenAndAcceptStoresNothing) {
    openWith({});
    RefreshURLPage();
    adding([] {
        EXPECT_EQ(Form2.Text1[1].Text(), "http://");
        EXPECT_EQ(Form2.Combo1[1].ListIndex(), -1);
        EXPECT_EQ(Form2.Left(), Form3.Left() + (Form3.Width() - Form2.Width()) / 2);
        accept();
        EXPECT_TRUE(Form2.Visible());
        EXPECT_EQ(modalOpen, D_NEW);
        cancel();
        EXPECT_FALSE(Form2.loaded());
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(UrlInformation, WithoutAChosenRowInTheDropDownOfGroupsItIsTheSame) {
    open();
    clickTab(2);
    Form3.Combo1[1].ListIndex(-1);
    EXPECT_EQ(failureOf([] { CreateNew(); }), failure::invalidProperty);
    Form2.unload();
    for (const auto& open : {EntryFixture::adding, EntryFixture::editing}) {
        open([] {
            EXPECT_EQ(Form2.Combo1[1].ListIndex(), -1);
            accept();
            EXPECT_TRUE(Form2.Visible());
        });
    }
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(UrlInformation, WhenTheChosenGroupIsTakenAwayAcceptFailsStoresNothingAndItStaysUp) {
    open();
    const auto user = [] {
        const std::string first = record(1).Name();
        const int changes = urlsDirty;
        Form2.Combo1[1].ListIndex(-1);
        writeName("changed");
        chooseRating("High");
        accept();
        EXPECT_TRUE(Form2.Visible());
        EXPECT_NE(modalOpen, 0);
        EXPECT_EQ(record(1).Name(), first);
        EXPECT_EQ(record(1).Rated, 0);
        EXPECT_EQ(urlsDirty, changes);
        chooseGroup("A");
        accept();
        EXPECT_FALSE(Form2.loaded());
    };
    adding(user);
    EXPECT_EQ(newest().Name(), "changed");
    EXPECT_EQ(uBlock.URLDatas().Count(), 5);
    EXPECT_EQ(urlsDirty, 1);
    editing(user);
    EXPECT_EQ(record(1).Name(), "changed");
    EXPECT_EQ(record(1).Rated, 3);
    EXPECT_EQ(urlsDirty, 3);
}

// Around it ----------------------------------------------------------------------------------

TEST_F(UrlInformation, TheLineWatchSleepsUnderIt) {
    open();
    for (const auto& opening : {EntryFixture::adding, EntryFixture::editing}) {
        lineCheck = 3;
        driver::advance(4000);
        ASSERT_NE(isOnline, 0);
        opening([] {
            lineCheck = 0;
            driver::advance(9000);
            EXPECT_NE(isOnline, 0);
            EXPECT_TRUE(Form3.loaded());
        });
    }
    driver::advance(4000);
    EXPECT_EQ(isOnline, 0);
    EXPECT_FALSE(Form3.loaded());
}

TEST_F(UrlInformation, AMainWindowThatIsFlushedUnderItTakesItAlong) {
    startAndOpen();
    for (const auto& opening : {EntryFixture::adding, EntryFixture::editing}) {
        opening([] {
            writeName("too late");
            Form1.mFlush.onClick.raise(0);
            EXPECT_FALSE(Form2.loaded());
            EXPECT_FALSE(Form3.loaded());
            EXPECT_EQ(modalOpen, 0);
        });
        EXPECT_FALSE(Form3.loaded());
        clickPad();
        ASSERT_TRUE(Form3.Visible());
        EXPECT_EQ(uBlock.URLDatas().Count(), 3);
        for (const URLData& each : uBlock.URLDatas()) EXPECT_NE(each.Name(), "too late");
        EXPECT_EQ(urlsDirty, 0);
    }
}

TEST_F(UrlInformation, AProgramThatEndsUnderItDoesNotComeBack) {
    open();
    adding([] {
        Form1.mPopExit.onClick.raise(0);
        ASSERT_FALSE(Form1.loaded());
        Form2.Command1.onClick.raise(0);
        EXPECT_FALSE(Form3.loaded());
        Form2.unload();
        EXPECT_THAT(loadedForms(), IsEmpty());
    });
}

}  // namespace
}  // namespace magpie
