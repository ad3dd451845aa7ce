#include "resources/resource_ids.h"
#include "tray/form1.h"
#include "tray/tray_menu.h"

namespace magpie {

namespace {

constexpr double padTwips = 480;
constexpr win::UINT lineWatchMilliseconds = 4000;

}  // namespace

TrayForm::TrayForm()
    : Form({.className = "Form1",
            .caption = "Magpie Tray Control",
            .border = BorderStyle::none,
            .clientWidth = padTwips,
            .clientHeight = padTwips,
            .iconResource = MAGPIE_ICON,
            .live = true}) {}

void makeForm1() {
    Form1.Picture1.createForPicture(Form1, {0, 0, padTwips, padTwips});
    Form1.Timer1.create(lineWatchMilliseconds, false);
    designTrayMenu();
}

}  // namespace magpie
