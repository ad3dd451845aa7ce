#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/api/hhctrl.h"
#include "platform/api/kernel32.h"
#include "platform/api/olectl.h"
#include "tests/conformance/objects_hand.h"

using namespace win;

namespace {

constexpr auto moduleNotFound = static_cast<HRESULT>(0x8007007Eu);
constexpr auto denied = static_cast<HRESULT>(0x80070005u);
constexpr auto ownFailure = static_cast<HRESULT>(0x800A0005u);

VARIANT number(std::int64_t value) {
    return value;
}

// What an object of the tests' own was told.
std::vector<VARIANT> told;

HRESULT greet(std::span<const VARIANT> arguments, VARIANT* result) {
    told.assign(arguments.begin(), arguments.end());
    *result = std::string("hello");
    return 0;
}
HRESULT size(std::span<const VARIANT>, VARIANT* result) {
    *result = std::int64_t{42};
    return 0;
}
HRESULT refuse(std::span<const VARIANT>, VARIANT*) {
    return ownFailure;
}
HRESULT heardText(std::span<const VARIANT> arguments, VARIANT*) {
    told.push_back(arguments[0]);
    return 0;
}

constexpr DISPATCHMEMBER ownMembers[] = {
    {"Greet", 1, DISPATCH_METHOD, greet},
    {"Size", 2, DISPATCH_PROPERTYGET, size},
    {"Refuse", 3, DISPATCH_METHOD, refuse},
};

// Without event 2.
constexpr DISPATCHMEMBER listenerMembers[] = {
    {"Heard", 1, DISPATCH_METHOD, heardText},
};

class Objects : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(CoCreateInstanceFrom(hand::objectLibrary().c_str(), hand::objectClass, &object),
                  0);
        ASSERT_NE(object, nullptr);
    }
    void TearDown() override {
        IDispatch_Release(own);
        IDispatch_Release(object);
    }

    HRESULT put(const VARIANT& value) {
        return IDispatch_Invoke(object, "Value", DISPATCH_PROPERTYPUT, {&value, 1}, nullptr);
    }
    VARIANT get() {
        VARIANT value;
        EXPECT_EQ(IDispatch_Invoke(object, "Value", DISPATCH_PROPERTYGET, {}, &value), 0);
        return value;
    }
    HRESULT call(const char* method, const std::vector<VARIANT>& arguments = {},
                 VARIANT* result = nullptr) {
        return IDispatch_Invoke(object, method, DISPATCH_METHOD, arguments, result);
    }
    HRESULT raise(const char* text) { return call("Raise", {std::string(text)}); }
    HRESULT askOwn(const char* member, WORD kind, VARIANT* result) {
        return call("Ask", {own, std::string(member), number(kind)}, result);
    }

    IDispatch* object = nullptr;
    IDispatch* own = CreateStdDispatch(ownMembers);
};

TEST(ObjectLibrary, ThatIsNotThereMakesNothing) {
    auto* object = reinterpret_cast<IDispatch*>(std::uintptr_t{1});
    const std::string path = hand::objectLibrary() + ".no";
    EXPECT_EQ(CoCreateInstanceFrom(path.c_str(), hand::objectClass, &object), moduleNotFound);
    EXPECT_EQ(object, nullptr);
}

// It stands beside the program, and that does not count; nor does a folder that depends on where
// the program is.
TEST(ObjectLibrary, IsNotLookedForWithoutItsFullPath) {
    hand::objectLibrary();
    IDispatch* object = nullptr;
    for (const char* path : {"object_double.dll", "\\object_double.dll", "C:object_double.dll",
                             ".\\object_double.dll", ""})
        EXPECT_EQ(CoCreateInstanceFrom(path, hand::objectClass, &object), moduleNotFound) << path;
}

TEST(ObjectLibrary, NeedNotBeOnADrive) {
    IDispatch* object = nullptr;
    const std::string path = hand::objectLibraryOnNoDrive();
    ASSERT_EQ(CoCreateInstanceFrom(path.c_str(), hand::objectClass, &object), 0) << path;
    IDispatch_Release(object);
}

TEST(ObjectLibrary, ThatIsOfNoUseMakesNothingAndIsLetGo) {
    for (const std::string& path : {hand::libraryWithoutObjects(), hand::brokenLibrary()}) {
        auto* object = reinterpret_cast<IDispatch*>(std::uintptr_t{1});
        EXPECT_LT(CoCreateInstanceFrom(path.c_str(), hand::objectClass, &object), 0) << path;
        EXPECT_EQ(object, nullptr);
        EXPECT_TRUE(hand::isLetGo(path)) << path;
    }
}

TEST(ObjectLibrary, MakesNoObjectsOfAClassThatItDoesNotKnow) {
    IDispatch* object = nullptr;
    const CLSID unknown{1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 99}};
    EXPECT_EQ(CoCreateInstanceFrom(hand::objectLibrary().c_str(), unknown, &object),
              CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Objects, APropertyKeepsWhatItIsGiven) {
    for (const VARIANT& value :
         {VARIANT(true), VARIANT(false), number(0), number(-1), number(0x7FFFFFFF),
          number(0x1122334455667788), VARIANT(std::string("text")), VARIANT(std::string())}) {
        EXPECT_EQ(put(value), 0);
        EXPECT_EQ(get(), value);
    }
}

TEST_F(Objects, AnObjectThatIsKeptIsHeld) {
    IDispatch* lent = CreateStdDispatch(ownMembers);
    EXPECT_EQ(put(lent), 0);
    IDispatch_Release(lent);
    auto* const kept = std::get<IDispatch*>(get());
    VARIANT answer;
    EXPECT_EQ(IDispatch_Invoke(kept, "Size", DISPATCH_PROPERTYGET, {}, &answer), 0);
    EXPECT_EQ(answer, number(42));
    IDispatch_Release(kept);
}

TEST_F(Objects, AMemberThatIsNotThereHasNoName) {
    EXPECT_EQ(call("Nothing"), DISP_E_UNKNOWNNAME);
    VARIANT value;
    EXPECT_EQ(IDispatch_Invoke(object, "None", DISPATCH_PROPERTYGET, {}, &value),
              DISP_E_UNKNOWNNAME);
}

TEST_F(Objects, AnAnswerOfAnyKindCanBeDropped) {
    EXPECT_EQ(call("Odd"), 0);
}

TEST_F(Objects, AFailureOfAMethodIsTold) {
    EXPECT_EQ(call("Fail"), denied);
}

TEST_F(Objects, AnOwnOneIsCalledByTheNamesOfItsMembersInAnyCase) {
    VARIANT answer;
    EXPECT_EQ(call("Ask",
                   {own, std::string("gREET"), number(DISPATCH_METHOD), std::string("first"),
                    number(2), true},
                   &answer),
              0);
    EXPECT_EQ(answer, VARIANT(std::string("hello")));
    EXPECT_EQ(told, (std::vector<VARIANT>{std::string("first"), number(2), true}));
    EXPECT_EQ(askOwn("Size", DISPATCH_PROPERTYGET, &answer), 0);
    EXPECT_EQ(answer, number(42));
}

TEST_F(Objects, AnOwnOneTellsItsFailures) {
    VARIANT answer = number(7);
    EXPECT_EQ(askOwn("Refuse", DISPATCH_METHOD, &answer), ownFailure);
    EXPECT_EQ(askOwn("Nothing", DISPATCH_METHOD, &answer), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(askOwn("Size", DISPATCH_METHOD, &answer), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(answer, number(7));
}

TEST_F(Objects, AListenerHearsTheEventsThatItHasUntilItIsTakenBack) {
    IDispatch* listener = CreateStdDispatch(listenerMembers);
    DWORD cookie = 0;
    told.clear();
    EXPECT_EQ(IConnectionPoint_Advise(object, hand::objectEvents, listener, &cookie), 0);
    IDispatch_Release(listener);
    EXPECT_EQ(raise("one"), 0);
    EXPECT_EQ(raise("two"), 0);
    EXPECT_EQ(told, (std::vector<VARIANT>{std::string("one"), std::string("two")}));
    EXPECT_EQ(IConnectionPoint_Unadvise(object, hand::objectEvents, cookie), 0);
    EXPECT_EQ(raise("three"), 0);
    EXPECT_EQ(told.size(), 2u);
    EXPECT_EQ(IConnectionPoint_Unadvise(object, hand::objectEvents, cookie),
              CONNECT_E_NOCONNECTION);
}

TEST_F(Objects, AListenerThatNobodyTookBackGoesWithTheObject) {
    IDispatch* listener = CreateStdDispatch(listenerMembers);
    DWORD cookie = 0;
    EXPECT_EQ(IConnectionPoint_Advise(object, hand::objectEvents, listener, &cookie), 0);
    IDispatch_Release(listener);
}

TEST_F(Objects, OtherEventsHaveNoConnection) {
    IDispatch* listener = CreateStdDispatch(listenerMembers);
    DWORD cookie = 0;
    EXPECT_EQ(IConnectionPoint_Advise(object, hand::objectClass, listener, &cookie),
              CONNECT_E_NOCONNECTION);
    EXPECT_EQ(IConnectionPoint_Unadvise(object, hand::objectClass, 1), CONNECT_E_NOCONNECTION);
    IDispatch_Release(listener);
}

TEST(HelpViewer, WithoutTheFileHasNothingToShow) {
    ASSERT_NE(LoadLibraryExA("hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32), nullptr);
    EXPECT_EQ(HtmlHelpA(nullptr, "C:\\magpie_no_such.chm", HH_DISPLAY_TOPIC, 0), nullptr);
    EXPECT_EQ(HtmlHelpA(nullptr, "C:\\magpie_no_such.chm", HH_HELP_CONTEXT, 1), nullptr);
}

}  // namespace
