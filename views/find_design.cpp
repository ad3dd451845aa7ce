// The Find dialog's controls, in tab order. All sizes are twips.
#include "views/find_form.h"

namespace magpie {

FindForm::FindForm()
    : Form({.className = "Find",
            .caption = "Find...",
            .border = BorderStyle::fixedDialog,
            .clientWidth = 5400,
            .clientHeight = 1005}) {}

void makeFind() {
    Find.Label1.create(Find, {120, 180, 870, 195}, "Find What:");
    Find.Text1.create(Find, {1020, 120, 3000, 315}, "");
    Find.Label2.create(Find, {120, 615, 870, 195}, "&Direction:");
    Find.Combo1.create(Find, {1020, 555, 1200, 315}, "Direction");
    Find.Combo1.AddItem("Up");
    Find.Combo1.AddItem("Down");
    Find.Command1.create(Find, {4200, 120, 1080, 345}, "Find Next");
    Find.Command2.create(Find, {4200, 540, 1080, 345}, "Cancel");
    Find.Command1.makeDefault();
    Find.Command2.makeCancel();
}

}  // namespace magpie
