#include "views/list_all.h"

#include "mainwindow/form3.h"
#include "views/refresh.h"

namespace magpie {

void setListAll(bool ticked) {
    Form3.mnuListAll.Checked = ticked;
    Form3.mnuListAll2.Checked = ticked;
}

void mnuListAll_Click() {
    setListAll(!Form3.mnuListAll.Checked);
    RefreshURLPage();
}

void mnuListAll2_Click() {
    mnuListAll_Click();
}

}  // namespace magpie
