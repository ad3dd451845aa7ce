// Writing the main window's settings: the records "CF" and "CH".
#include <cstdint>
#include <string>

#include "config/config.h"
#include "config/flags.h"
#include "config/reg_module.h"
#include "config/setting_record.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/tab_screens.h"
#include "platform/runtime/decimal_text.h"
#include "store/group_lookup.h"
#include "views/filter_strips.h"

namespace magpie {

namespace {

std::int32_t flagsWord() {
    const auto bit = [](bool set, std::int32_t value) { return set ? value : 0; };
    return bit(useKeystrokes, flag::useKeystrokes) | bit(mainOnTop, flag::mainOnTop) |
           bit(Form3.mnuFullwindow.Checked, flag::startFullWindow) |
           bit(Form3.filterAdvanced, flag::filterAdvanced) |
           bit(!autoLoadSettings, flag::noLoadSettings) |
           bit(!autoSaveSettings, flag::noSaveSettings) | bit(!autoLoadURLs, flag::noLoadURLs) |
           bit(!autoSaveURLs, flag::noSaveURLs);
}

std::string mainRecord() {
    return joinTokens({integerText(flagsWord()), integerText(lineCheck.value()),
                       integerText(browserType.value()), integerText(Form3.tbStrip.Placement()),
                       integerText(currentTab), integerText(savedAdvMode.value()),
                       integerText(GetSelectedIndex()), integerText(mainTop), integerText(mainLeft),
                       integerText(mainWidth), integerText(mainHeight), integerText(slideState),
                       integerText(shortcutMode.value()), integerText(firstDate)});
}

std::string columnRecord() {
    std::string record;
    for (int i = 0; i < Form3.ListView1[lvIndex].ColumnCount(); ++i)
        record += integerText(colWidths.at(static_cast<std::size_t>(i))) + " ";
    return record;
}

}  // namespace

void saveConfig() {
    storeMainPlacement();
    storeCHeaders();
    regCreateKey(settingsKey, win::HKEY_CURRENT_USER);
    slideState = openStrips();
    regPutValue(settingsKey, "CF", mainRecord(), win::REG_SZ);
    regPutValue(settingsKey, "CH", columnRecord(), win::REG_SZ);
}

}  // namespace magpie
