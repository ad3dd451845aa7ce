#include "views/mask_filters.h"

#include <cstddef>

#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/runtime/checked.h"
#include "platform/runtime/decimal_text.h"
#include "platform/runtime/number_text.h"
#include "views/rated.h"
#include "views/refresh.h"

namespace magpie {

namespace {

constexpr double belowMain = 500;  // twips

// The last element of the rating names is none.
constexpr std::size_t ratings = std::tuple_size_v<decltype(ratedNames)> - 1;

ListRow ratingRow(std::size_t rating) {
    return Rated.ListView1[0].Row(static_cast<int>(rating) + 1);
}

std::uint8_t chosen(int combo) {
    return Checked<std::uint8_t>(Rated.Combo3[combo].ListIndex());
}

std::int16_t number(int box) {
    return int16Of(Rated.Text2[box].Text());
}

}  // namespace

void Command5_Click(int) {
    modalOpen = plainDialog;
    showDialogModal(Rated);
}

void Rated_Load() {
    Rated.Icon(Form3.Icon());
    for (std::size_t i = 0; i < ratings; ++i)
        Rated.ListView1[0].Add(ratedNames[i]).Checked(ratedMask[i]);
    // The keyboard starts on a rating that the space bar can tick.
    Rated.ListView1[0].Row(1).Selected(true);
    Rated.Combo3[0].ListIndex(visitedMode);
    Rated.Text2[0].Text(integerText(visitedCount));
    Rated.Combo3[1].ListIndex(accessedMode);
    Rated.Text2[1].Text(integerText(accessedValue));
    Rated.Combo3[2].ListIndex(accessedUnit);
    Rated.Left(Form3.Left());
    Rated.Top(Form3.Top() + belowMain);
}

void Rated_Unload() {
    Rated.ListView1[0].Clear();
    modalOpen = 0;
}

void tickRatings_Click(int Index) {
    for (std::size_t i = 0; i < ratings; ++i) ratingRow(i).Checked(Index == 1);
}

void cmdFilter_Click() {
    for (std::size_t i = 0; i < ratings; ++i) ratedMask[i] = ratingRow(i).Checked();
    visitedMode = chosen(0);
    visitedCount = number(0);
    accessedMode = chosen(1);
    accessedValue = number(1);
    accessedUnit = chosen(2);
    RefreshURLPage();
}

void cmdCancel_Click() {
    Rated.unload();
}

}  // namespace magpie
