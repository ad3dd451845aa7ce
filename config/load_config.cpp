// Reading the main window's settings: the records "CF" and "CH".
#include <cmath>

#include "config/config.h"
#include "config/flags.h"
#include "config/reg_module.h"
#include "config/setting_record.h"
#include "config/task_bar.h"
#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/layout.h"
#include "mainwindow/tab_screens.h"
#include "platform/runtime/number_text.h"
#include "platform/runtime/resume_next.h"
#include "platform/runtime/word.h"
#include "platform/services/clock.h"
#include "platform/services/screen.h"
#include "store/group_lookup.h"
#include "views/filter_strips.h"
#include "views/refresh.h"
#include "views/side_panel.h"

namespace magpie {

namespace {

constexpr double leastHeight = 2380;
constexpr double heightInstead = 3624;
constexpr double leastWidth = 2496;
constexpr double widthInstead = 5208;
constexpr std::uint8_t defaultAdvMode = 1;

// Takes the token at `position` and, unless it is empty, runs `use` on it, each as a
// statement of its own.
template <class Use>
void unlessEmpty(SettingRecord& record, int position, Use use) {
    ResumeNextNoting(
        record.trap(), [&] { record.take(position); },
        [&] {
            if (!record.token.empty()) use(record.token);
        });
}

void readFace(SettingRecord& cf) {
    ResumeNextNoting(
        cf.trap(), [&] { cf.take(5); },
        [&] { savedAdvMode = cf.token.empty() ? defaultAdvMode : byteOf(cf.token); },
        [] { Form3.advMode = savedAdvMode; });
}

void readPlace(SettingRecord& cf) {
    unlessEmpty(cf, 7, [](const std::string& token) { Form3.Top(int32Of(token)); });
    unlessEmpty(cf, 8, [](const std::string& token) { Form3.Left(int32Of(token)); });
    unlessEmpty(cf, 9, [](const std::string& token) { Form3.Width(int32Of(token)); });
    unlessEmpty(cf, 10, [](const std::string& token) { Form3.Height(int32Of(token)); });
}

void readFirstDate(SettingRecord& cf) {
    ResumeNextNoting(
        cf.trap(), [&] { cf.take(13); },
        [&] { firstDate = cf.token.empty() ? std::floor(now().days) : int32Of(cf.token); });
}

// Brings a window from another display, or from a damaged record, into sight.
void clampMainWindow(double taskBar) {
    if (Form3.Top() < 0) Form3.Top(0);
    if (Form3.Left() < 0) Form3.Left(0);
    if (Form3.Height() < leastHeight) Form3.Height(heightInstead);
    if (Form3.Width() < leastWidth) Form3.Width(widthInstead);
    if (Form3.Left() + Form3.Width() > Screen.Width()) Form3.Left(Screen.Width() - Form3.Width());
    if (Form3.Top() + Form3.Height() > Screen.Height())
        Form3.Top(Screen.Height() - Form3.Height() - taskBar);
}

void readTabs(SettingRecord& cf) {
    unlessEmpty(cf, 3, [](const std::string& token) {
        Form3.tbStrip.Placement(byteOf(token));
        tabStyle = Form3.tbStrip.Placement();
    });
    unlessEmpty(cf, 4, [](const std::string& token) { Form3.tbStrip.SelectTab(int32Of(token)); });
    unlessEmpty(cf, 2, [](const std::string& token) { browserType = byteOf(token); });
}

void readColumns() {
    SettingRecord ch;
    ResumeNextNoting(ch.trap(), [&] { ch.read(regGetValue(settingsKey, "CH")); });
    ListView& list = Form3.ListView1[lvIndex];
    for (int i = 1; i <= list.ColumnCount(); ++i) {
        unlessEmpty(ch, i - 1, [&list, i](const std::string& token) {
            const auto at = static_cast<std::size_t>(i - 1);
            if (at >= colWidths.size()) throw Failure{failure::subscript};
            const std::int16_t width = int16Of(token);
            list.ColumnWidth(i, width);
            colWidths[at] = width;
        });
    }
}

void readGroup(SettingRecord& cf) {
    unlessEmpty(cf, 6, [&cf](const std::string& token) {
        ResumeNextNoting(
            cf.trap(), [&] { selectGroupItem(int16Of(token)); },
            [&] { Form3.lastIDX2 = int16Of(token); });
    });
}

void readFlags(SettingRecord& cf) {
    unlessEmpty(cf, 0, [&cf](const std::string& token) {
        const auto has = [&token](std::int32_t bit) { return (int32Of(token) & bit) != 0; };
        ResumeNextNoting(
            cf.trap(), [&] { mainOnTop = has(flag::mainOnTop); },
            [] { setTopMost(Form3, word(mainOnTop)); },
            [&] { useKeystrokes = has(flag::useKeystrokes); },
            [&] { startFullWindow = has(flag::startFullWindow); },
            [&] { Form3.filterAdvanced = has(flag::filterAdvanced); });
    });
}

void noteGroupInView() {
    if (Form3.tbStrip.SelectedTab() == 1 && Form3.ListView1[3].Count() > 0)
        Form3.tmpIDX = int16Of(Form3.ListView1[3].SelectedItem().Tag());
}

}  // namespace

void loadConfig() {
    SettingRecord cf;
    double taskBar = 0;
    ResumeNextNoting(
        cf.trap(), [&] { cf.read(regGetValue(settingsKey, "CF")); },
        [&] { taskBar = taskBarHeight(); }, [&] { readFace(cf); }, [&] { readPlace(cf); },
        [&] {
            unlessEmpty(cf, 12, [](const std::string& token) { shortcutMode = byteOf(token); });
        },
        [&] { readFirstDate(cf); }, [&] { clampMainWindow(taskBar); }, [&] { readTabs(cf); },
        readColumns, [] { fullScrnRefresh(false); }, [&] { readGroup(cf); }, [&] { readFlags(cf); },
        [&] { unlessEmpty(cf, 11, [](const std::string& token) { slideState = int32Of(token); }); },
        noteGroupInView, [] { openStrips(slideState); }, setMiniIcons, tabThing, buildFilterScrn,
        UpdateFilterTab, RefreshURLPage);
}

void reloadLastGroup() {
    SettingRecord cf;
    ResumeNextNoting(
        cf.trap(), [&] { cf.read(regGetValue(settingsKey, "CF")); }, [&] { cf.take(6); },
        [&] { Form3.lastIDX2 = cf.token.empty() ? std::int16_t{0} : int16Of(cf.token); });
}

}  // namespace magpie
