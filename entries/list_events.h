// What the user does to the main window's lists. ListView1 shares one set of events:
// elements 1 and 2 are the record lists, element 3 is the Group List.
#pragma once

#include <string>

namespace magpie {

void ListView1_Click(int Index);
// A visit of the list's selected item: counts it, sends the address to the browser, and
// brings the row in step. The Group List has none. Raises 5, with nothing counted, when the
// record has gone.
void ListView1_DblClick(int Index);
void ListView1_ItemClick(int Index);
void ListView1_KeyDown(int Index, int keyCode, int shift);
void ListView1_KeyUp(int Index, int keyCode, int shift);
void ListView1_KeyPress(int Index, int character);
void ListView1_MouseUp(int Index, int button, int shift, double x, double y);
void ListView1_MenuKey(int Index);
void ListView1_OLEDragDrop(int Index, const std::string& text);

}  // namespace magpie
