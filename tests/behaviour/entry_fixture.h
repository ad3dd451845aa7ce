// EntryFixture: the open main window with entries in two groups, and the URL Information
// dialog over it, driven as by its user.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "entries/form2.h"
#include "tests/behaviour/menu_fixture.h"

namespace magpie {

class EntryFixture : public MenuFixture {
public:
    ~EntryFixture() override;

    // As MenuFixture: the group "A" with "a1" to "a3" in view, "B" with "b"; nothing is
    // unsaved.
    static void open();

    // Opens the dialog by the entry menu, lets the user act in it, and closes it as by
    // "Cancel" if that did not.
    static void editing(const std::function<void()>& user);
    static void adding(const std::function<void()>& user);
    // The same by any other command.
    static void asking(const std::function<void()>& command, const std::function<void()>& user);
    // Lets a loop whose dialog has gone look up.
    static void wake();

    static void accept() { press(Form2.Command1); }
    static void cancel() { press(Form2.Command2); }
    static void press(Control& control);
    static void key(int virtualKey, win::memory::driver::Keys held = {});
    static void clickPage(int tab);  // from 1

    static void writeName(const std::string& text) { Form2.Text1[0].Text(text); }
    static void writeUrl(const std::string& text) { Form2.Text1[1].Text(text); }
    // Chooses the row with this text.
    static void choose(ComboBox& combo, const std::string& text);
    static void chooseRating(const std::string& text) { choose(Form2.Combo1[0], text); }
    static void chooseGroup(const std::string& text) { choose(Form2.Combo1[1], text); }
    // The text of the chosen row, empty without one.
    static std::string chosen(ComboBox& combo);

    static std::pair<win::DWORD, win::DWORD> marked(TextBox& box);

    // The entry added last.
    static URLData& newest() { return uBlock.URLDatas().Item(uBlock.URLDatas().Count()); }
    static URLData& record(int position) { return uBlock.URLDatas().Item(position); }
    static std::vector<std::string> tags();
    static std::vector<int> selectedRows();  // from 1
};

}  // namespace magpie
