// What the events of "URL Information" run: event on the left, routine on the right.
#include "entries/form2.h"
#include "entries/url_information.h"

namespace magpie {

void wireForm2() {
    Form2.makeControls = makeForm2;
    Form2.onLoad = Form2_Load;
    Form2.onActivate = Form2_Activate;
    Form2.onUnload = Form2_Unload;

    Form2.TabStrip.onClick = TabStrip_Click;
    Form2.Command1.onClick = acceptEntry_Click;
    Form2.Command2.onClick = cancelEntry_Click;
}

}  // namespace magpie
