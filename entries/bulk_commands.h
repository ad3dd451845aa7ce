// The commands on the selected rows of the record list in view.
#pragma once

namespace magpie {

void mnuRate_Click(int Index);  // 0 "Not Rated" to 4 "Very High"
void mnuMove_Click();           // to another group
void mnuRemove_Click();
void mnuSend_Click(int Index);  // 0 to the browser window active last, 1 to a new one
void mnuSendFolder_Click();     // as shortcut files

}  // namespace magpie
