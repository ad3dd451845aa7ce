// LineFixture: the program with its pad, and the line in the test's hand.
#pragma once

#include "platform/api/rasapi32.h"
#include "platform/memory/driver_line.h"
#include "tests/behaviour/pad_fixture.h"

namespace magpie {

namespace driver = win::memory::driver;

class LineFixture : public PadFixture {
public:
    static constexpr win::DWORD dialing = 4;  // any state between the two that count

    // The record "ID" with the pad on, on top and always in sight. `check` and
    // `action` as lineCheck and onlineAction.
    static void putLineRecord(int check, int action = 0, bool padForTheLine = false) {
        std::string id = std::to_string(check);
        id.append(" 3000 4500 0 1 ").append(std::to_string(action));
        id.append(padForTheLine ? " True True" : " True False");
        putRecord("ID", id);
    }

    // Starts with dial-up lines; the first look comes 4 seconds later.
    static void startByDialUp(int action = 0, bool padForTheLine = false) {
        putSampleFile();
        putLineRecord(0, action, padForTheLine);
        start();
    }

    static void connect(win::DWORD handle = 7) {
        driver::setDialUp({{handle, win::RASCS_Connected}});
    }
    static void disconnect() { driver::setDialUp({}); }

    static void tick() { driver::advance(4000); }
};

}  // namespace magpie
