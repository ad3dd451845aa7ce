// The two screens of the main window and the hand-over from one to the other.
#pragma once

namespace magpie {

// Shows the screen of the strip's selected tab. Does nothing for the tab on show.
void tabSwitch();
void tbStrip_MouseUp(int Index, int button, int shift, double x, double y);

// Sets the margins and the place of the screen on show for the strip's placement,
// then lays it out.
void tabThing();

// Moves the tabs to another edge: 0 top, 1 bottom, 2 left, 3 right.
void setTabPlacement(int placement);

// Fills Combo1(1) with the groups.
void buildMainScrn();

// Copy the widths of the record list in view to and from `colWidths`. Raise 9 for a
// tenth column.
void storeCHeaders();
void updateCHeaders();

// Shows the flip box's picture. Raises 53 or 481 when it can't be read.
void setMiniIcons();

}  // namespace magpie
