// What the events of "Mask Filters" run: event on the left, routine on the right.
#include "views/mask_filters.h"
#include "views/rated.h"

namespace magpie {

void wireRated() {
    Rated.makeControls = makeRated;
    Rated.onLoad = Rated_Load;
    Rated.onUnload = Rated_Unload;

    for (Button& button : Rated.Command2) button.onClick = tickRatings_Click;
    Rated.cmdFilter.onClick = cmdFilter_Click;
    Rated.cmdCancel.onClick = cmdCancel_Click;
}

}  // namespace magpie
