// URL Information: what the dialog `Form2` does. `modalOpen` says before it loads what it is
// for, D_EDIT or D_NEW; with any other value it is empty and Accept stores nothing. Nothing
// that the user writes is checked or refused.
#pragma once

namespace magpie {

// Where a page of the dialog lies, in twips: on show, and out of sight.
inline constexpr double pageAtRest = 192;
inline constexpr double pageAway = -20000;

// Shows the record of the list's selected item, after the selection was cut down to it. The
// group is the one in view, not the record's: where they differ, Accept moves the record.
// Raises 5 when the record has gone, and 380 for a rating that the dialog does not offer or
// while no group is in view; what comes before is shown.
void EditSelected();

// The defaults of a new entry. Raises 380 while no group is in view.
void CreateNew();

void Form2_Load();
void Form2_Activate();
void Form2_Unload();
void TabStrip_Click();

// Accept: stores what the page "Quick Edit" holds, whatever page is on show, and closes.
// Raises 380 while no group is chosen and 5 when the record has gone; the dialog then
// stays up, with nothing stored. It closes when an edit fails that was stored already.
void acceptEntry_Click();
void cancelEntry_Click();

}  // namespace magpie
