// Automation of the shell's windows, by the names of their members.
#include <gmock/gmock.h>
#include <string>

#include "platform/api/oleauto.h"
#include "tests/conformance/peers.h"

using namespace win;

namespace {

using peers::Browser;
using testing::Contains;

class Automation : public testing::Test {
protected:
    static VARIANT get(IDispatch* object, const char* member) {
        VARIANT value;
        EXPECT_GE(IDispatch_Invoke(object, member, DISPATCH_PROPERTYGET, {}, &value), 0) << member;
        return value;
    }
    static IDispatch* item(IDispatch* object, std::int64_t at) {
        const VARIANT index = at;
        VARIANT value = static_cast<IDispatch*>(nullptr);
        EXPECT_GE(IDispatch_Invoke(object, "Item", DISPATCH_METHOD, {&index, 1}, &value), 0);
        return std::get<IDispatch*>(value);
    }
    IDispatch* collection() {
        IDispatch* object = nullptr;
        EXPECT_GE(CoCreateInstance(CLSID_ShellWindows, &object), 0);
        return object;
    }
};

TEST_F(Automation, ABrowsersWindowTellsWhatItShows) {
    const Browser browser("IEFrame", "window title", "http://a/\xE9", "page \xE9");
    IDispatch* windows = collection();
    ASSERT_NE(windows, nullptr);
    EXPECT_EQ(std::get<std::int64_t>(get(windows, "Count")), 1);
    IDispatch* page = item(windows, 0);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(std::get<std::string>(get(page, "Name")), "Microsoft Internet Explorer");
    EXPECT_EQ(std::get<std::int64_t>(get(page, "HWND")),
              reinterpret_cast<std::intptr_t>(browser.window()));
    EXPECT_TRUE(std::get<bool>(get(page, "Visible")));
    EXPECT_EQ(std::get<std::string>(get(page, "LocationName")), "page \xE9");
    EXPECT_EQ(std::get<std::string>(get(page, "LocationURL")), "http://a/\xE9");
    IDispatch_Release(page);
    IDispatch_Release(windows);
}

TEST_F(Automation, ItIsShownAndSentElsewhere) {
    const Browser browser("IEFrame", "window title", "http://a/", "page");
    IDispatch* windows = collection();
    ASSERT_NE(windows, nullptr);
    IDispatch* page = item(windows, 0);
    const VARIANT yes = true;
    EXPECT_GE(IDispatch_Invoke(page, "Visible", DISPATCH_PROPERTYPUT, {&yes, 1}, nullptr), 0);
    const VARIANT address = std::string("http://b/\xE9");
    VARIANT result;
    EXPECT_GE(IDispatch_Invoke(page, "Navigate", DISPATCH_METHOD, {&address, 1}, &result), 0);
    EXPECT_THAT(browser.done(), Contains("visible"));
    EXPECT_THAT(browser.done(), Contains("navigate http://b/\xE9"));
    EXPECT_EQ(std::get<std::string>(get(page, "LocationURL")), "http://b/\xE9");
    IDispatch_Release(page);
    IDispatch_Release(windows);
}

TEST_F(Automation, AMemberThatIsNotThereHasNoName) {
    const Browser browser("IEFrame", "window title", "http://a/", "page");
    IDispatch* windows = collection();
    ASSERT_NE(windows, nullptr);
    IDispatch* page = item(windows, 0);
    VARIANT value;
    for (IDispatch* each : {windows, page})
        EXPECT_EQ(IDispatch_Invoke(each, "Nonsense", DISPATCH_PROPERTYGET, {}, &value),
                  DISP_E_UNKNOWNNAME);
    IDispatch_Release(page);
    IDispatch_Release(windows);
}

TEST_F(Automation, WithoutTheirProgramThereAreNone) {
    IDispatch* windows = nullptr;
    {
        Browser browser("IEFrame", "window title", "http://a/", "page");
        windows = collection();
        ASSERT_NE(windows, nullptr);
        IDispatch* page = item(windows, 0);
        browser.end();
        VARIANT value;
        EXPECT_LT(IDispatch_Invoke(page, "Name", DISPATCH_PROPERTYGET, {}, &value), 0);
        IDispatch_Release(page);
        IDispatch* other = nullptr;
        EXPECT_EQ(CoCreateInstance(CLSID_ShellWindows, &other), REGDB_E_CLASSNOTREG);
        EXPECT_EQ(other, nullptr);
    }
    IDispatch_Release(windows);
}

}  // namespace
