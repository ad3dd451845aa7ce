#include "views/mask_controls.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/number_text.h"

namespace magpie {

namespace {

Checked<std::uint8_t> chosen(int combo) {
    return Form3.Combo3[combo].ListIndex();
}

std::int16_t typed(int field) {
    return int16Of(Form3.Text2[field].Text());
}

}  // namespace

void setRatedBoxes(bool on) {
    for (CheckBox& box : Form3.ratedBox) box.Value(on ? 1 : 0);
}

void syncRatedBoxes(bool store) {
    for (CheckBox& box : Form3.ratedBox) {
        bool& shown = ratedMask[static_cast<std::size_t>(box.Index)];
        if (store)
            shown = box.Value() >= 1;
        else
            box.Value(shown ? 1 : 0);
    }
}

void showMasks() {
    syncRatedBoxes(false);
    Form3.Combo3[0].ListIndex(visitedMode);
    Form3.Text2[0].Text(integerText(visitedCount));
    Form3.Combo3[1].ListIndex(accessedMode);
    Form3.Text2[1].Text(integerText(accessedValue));
    Form3.Combo3[2].ListIndex(accessedUnit);
    Form3.Combo3[3].ListIndex(addedMode);
    Form3.Text2[2].Text(integerText(addedValue));
    Form3.Combo3[4].ListIndex(addedUnit);
}

void takeMasks() {
    syncRatedBoxes(true);
    visitedMode = chosen(0);
    visitedCount = typed(0);
    addedMode = chosen(3);
    addedValue = typed(2);
    addedUnit = chosen(4);
    accessedMode = chosen(1);
    accessedValue = typed(1);
    accessedUnit = chosen(2);
}

}  // namespace magpie
