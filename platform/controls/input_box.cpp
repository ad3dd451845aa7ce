#include "platform/controls/input_box.h"

#include "platform/controls/basic_controls.h"
#include "platform/controls/form.h"
#include "platform/controls/text_box.h"

namespace magpie {

namespace {

struct InputForm : Form {
    InputForm() : Form({"InputBox", "", BorderStyle::fixedDialog, 5400, 1620}) {}

    Label prompt;
    Button accept;
    Button cancel;
    TextBox answer;
    bool accepted = false;
};

InputForm* current = nullptr;

void makeInputControls() {
    InputForm& box = *current;
    box.prompt.create(box, {120, 120, 3960, 780}, "");
    box.answer.create(box, {120, 1140, 5160, 330}, "");
    box.accept.create(box, {4200, 120, 1080, 345}, "OK");
    box.cancel.create(box, {4200, 540, 1080, 345}, "Cancel");
    box.accept.makeDefault();
    box.cancel.makeCancel();
}

}  // namespace

std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text,
                     double left, double top) {
    InputForm box;
    InputForm* outer = current;
    current = &box;
    box.makeControls = makeInputControls;
    box.accept.onClick = [] {
        current->accepted = true;
        current->Hide();
    };
    box.cancel.onClick = [] { current->Hide(); };
    box.load();
    box.Caption(title);
    box.prompt.Caption(prompt);
    box.answer.Text(text);
    box.answer.selectAll();
    box.Left(left);
    box.Top(top);
    box.answer.SetFocus();
    box.showModal();
    // The close box unloads the form, and its text is gone with it.
    const std::string answer = box.loaded() && box.accepted ? box.answer.Text() : std::string();
    box.unload();
    current = outer;
    return answer;
}

}  // namespace magpie
