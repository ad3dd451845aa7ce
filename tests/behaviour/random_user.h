// RandomUser: somebody who does one thing after the other in the main window, by its menus, keys,
// mouse and dialogs, chosen by a seed; and who knows after each what the store has to hold and
// which entries the list has to show.
#pragma once

#include <initializer_list>
#include <random>
#include <set>
#include <string>

#include "tests/behaviour/entry_fixture.h"
#include "tests/behaviour/store_model.h"

namespace magpie {

class RandomUser : public EntryFixture {
public:
    ~RandomUser() override;

    // Opens the window on the sample file.
    void begin(unsigned seed);
    // Does one thing, a little later than the one before.
    void act();
    // Fails the test where store, list, controls or the state between two commands are not as
    // they have to be.
    void expectAllAsKnown();
    // Saves, leaves and comes back.
    void expectTheFileHoldsAll();

    // What was done last, for the message of a failure.
    std::string deed;

private:
    struct Chosen;

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }
    std::string someName();
    std::string someUrl();

    // What makes and changes groups.
    void newGroup();
    void renameGroup();
    void removeGroup();
    void loadIfNumbersHaveGaps();
    void chooseForGroups(const std::string& inMainMenu, const std::string& inGroupMenu);
    void answerName(const std::string& name);

    // What makes and changes entries.
    void newEntry();
    void editEntry();
    void dropText();
    void rate();
    void move();
    void remove();
    void visit();
    void sendToBrowser();
    void sendToFolder();
    void selectSome();
    void take(StoreModel::Entry& entry, const Chosen& chosen);
    Chosen fillDialog();

    // What moves the view about.
    void switchTab();
    void stepFace();
    void pickGroup();
    void tickGroups();
    void maskRatings();
    void maskText();
    void listAll();
    void sortRows();
    void find();
    void moveByKeys();
    void clickSomeRow();

    // What saves and loads.
    void save();
    void open();
    void flush();

    // The list was refreshed and shows what the masks let through.
    void refreshed();
    bool passes(const StoreModel::Entry& entry) const;
    bool groupIsChosen() const;
    void expectRows();
    void expectGroupControls();
    void expectNothingHeld();

    std::mt19937 random_;
    StoreModel model_;
    std::multiset<std::string> shown_;  // keys
    bool panelIsLate_ = false;          // rows have gone that the status bar still counts
    int named_ = 0;                     // names given so far
};

}  // namespace magpie
