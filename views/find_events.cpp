// What the Find dialog's events run: event on the left, routine on the right.
#include "views/find.h"
#include "views/find_form.h"

namespace magpie {

// Enter in the text finds as the default button.
void wireFind() {
    Find.makeControls = makeFind;
    Find.onLoad = Find_Load;
    Find.onActivate = Find_Activate;
    Find.onUnload = Find_Unload;

    Find.Command1.onClick = findNext_Click;
    Find.Command2.onClick = findCancel_Click;
}

}  // namespace magpie
