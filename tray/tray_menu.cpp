#include "tray/tray_menu.h"

#include "config/companion.h"
#include "config/help.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "tray/form1.h"

namespace magpie {

namespace {

const MenuRow mSysTray[] = {
    {0, &Form1.mMagpie, "Magpie"},
    {0, &Form1.mPopRestore, "Restore"},
    {0, &Form1.mBrk3, "-"},
    {0, &Form1.mHelp, "Magpie Help"},
    {0, &Form1.mContact, "Contacting Fennelworks"},
    {0, &Form1.mBrk4, "-"},
    {0, &Form1.mWebSite, "Magpie Web Site"},
    {0, &Form1.mbrk1, "-"},
    {0, &Form1.mFlush, "Flush", "", false},
    {0, &Form1.mBrk2, "-"},
    {0, &Form1.mAbout, "About"},
    {0, &Form1.mPopExit, "Unload"},
};

}  // namespace

void designTrayMenu() {
    designMenu(mSysTray);
}

void popUpTrayMenu() {
    PopupMenu(Form1, mSysTray);
}

void mMagpie_Click() {
    Form3.Show();
}

void mPopRestore_Click() {
    Form3.WindowState(stateNormal);
    Form3.Show();
}

void mHelp_Click() {
    showHelp(Form1);
}

void mContact_Click() {
    showContact(Form1, contactMail);
}

void mWebSite_Click() {
    showContact(Form1, contactWebSite);
}

void mFlush_Click() {
    keepResident = false;
    Form3.unload();
}

void mAbout_Click() {
    showAbout(Form1);
}

void mPopExit_Click() {
    Form1.unload();
}

}  // namespace magpie
