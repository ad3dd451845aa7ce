#include "views/filter_strips.h"

#include <cmath>
#include <optional>
#include <utility>

#include "mainwindow/form3.h"
#include "platform/runtime/number_text.h"

namespace magpie {

namespace {

// Twips.
constexpr double stripPitch = 400;      // from a shut strip to the next
constexpr double openMargin = 30;       // left free under an open frame
constexpr double frameDrop = 170;       // from a strip to its frame
constexpr double tailUnderOpen = 1200;  // from the last frame, or strip, to the panel's end
constexpr double tailUnderShut = 700;
constexpr double dragThreshold = 60;

constexpr const char* opened = "True";
constexpr const char* shut = "False";
constexpr int lastStrip = 4;

Frame& frameOf(int strip) {
    Frame* const frames[] = {&Form3.Frame2, &Form3.visitedFrame, &Form3.accessedFrame,
                             &Form3.addedFrame, &Form3.Frame4};
    return *frames[strip];
}

bool isOpen(int strip) {
    return boolOf(frameOf(strip).Tag);
}

double topUnder(int strip) {
    const double below = Form3.slideSwitch[strip].Top() + stripPitch;
    return isOpen(strip) ? below + frameOf(strip).Height() + openMargin : below;
}

void layOutStrips() {
    for (int i = 1; i <= lastStrip; ++i) Form3.slideSwitch[i].Top(topUnder(i - 1));
    for (int i = 0; i <= lastStrip; ++i) frameOf(i).Top(Form3.slideSwitch[i].Top() + frameDrop);
}

double panelHeight() {
    return isOpen(lastStrip) ? Form3.Frame4.Top() + tailUnderOpen
                             : Form3.slideSwitch[lastStrip].Top() + tailUnderShut;
}

}  // namespace

void startStrips() {
    Form3.slidePressTop.reset();
    for (Button& button : Form3.slideButton) button.Tag = shut;
    for (int i = 0; i <= lastStrip; ++i) frameOf(i).Tag = shut;
    for (int i = 0; i <= lastStrip; ++i) slideBump(i, -1);
}

void slideBump(int Index, int state) {
    Button& button = Form3.slideButton[Index];
    button.Tag = button.Tag == shut ? opened : shut;
    if (state == 0) button.Tag = shut;
    if (state == 1) button.Tag = opened;
    {
        const HeldDrawing still(Form3.filter3Box);
        frameOf(Index).Tag = button.Tag;
        frameOf(Index).Visible(isOpen(Index));
        layOutStrips();
    }
    Form3.filter3Box.Height(panelHeight());
    if (Form3.filter3Box.Visible()) Form3.filter3Box.Refresh();
}

std::int32_t openStrips() {
    std::int32_t bits = 0;
    std::int32_t bit = 1;
    for (Button& button : Form3.slideButton) {
        if (boolOf(button.Tag)) bits |= bit;
        bit *= 2;
    }
    return bits;
}

void openStrips(std::int32_t bits) {
    std::int32_t bit = 1;
    for (Button& button : Form3.slideButton) {
        slideBump(button.Index, (bits & bit) != 0 ? 1 : 0);
        bit *= 2;
    }
}

void slideButton_MouseDown(int, int, int, double, double) {
    Form3.slidePressTop = Form3.filter3Box.Top();
}

// A release beside the button is not followed by a click.
void slideButton_MouseUp(int Index, int, int, double x, double y) {
    Button& button = Form3.slideButton[Index];
    if (x < 0 || y < 0 || x >= button.Width() || y >= button.Height()) Form3.slidePressTop.reset();
}

// The keys click as well, wherever the panel has been scrolled to.
void slideButton_Click(int Index) {
    const std::optional<double> pressTop = std::exchange(Form3.slidePressTop, std::nullopt);
    if (pressTop && std::abs(Form3.filter3Box.Top() - *pressTop) >= dragThreshold) return;
    slideBump(Index, -1);
}

}  // namespace magpie
