#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/api/advapi32.h"

using namespace win;

namespace {

constexpr DWORD allAccess = 63;
constexpr LSTATUS badPathname = 161;
constexpr LSTATUS notFound = LSTATUS(ERROR_FILE_NOT_FOUND);
constexpr LSTATUS invalidHandle = LSTATUS(ERROR_INVALID_HANDLE);
constexpr LSTATUS moreData = LSTATUS(ERROR_MORE_DATA);

LSTATUS createKey(HKEY root, const std::string& name, HKEY& key, DWORD* disposition = nullptr) {
    return RegCreateKeyExA(root, name.c_str(), 0, nullptr, 0, allAccess, nullptr, &key,
                           disposition);
}

LSTATUS openKey(HKEY root, const std::string& name, HKEY& key) {
    return RegOpenKeyExA(root, name.c_str(), 0, allAccess, &key);
}

struct Answer {
    LSTATUS status = 0;
    DWORD type = 0;
    DWORD size = 0;
    std::string bytes;  // the whole buffer, '#' where it was not written
};

// The test's own key, empty at its start as far as the test's values go.
class Registry : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(createKey(HKEY_CURRENT_USER, path(), key), 0); }
    void TearDown() override { RegCloseKey(key); }

    // Tests that create keys use names of their own below it: keys can not be removed.
    static std::string path(const std::string& below = {}) {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        return std::string("Software\\MagpieConformance\\") + info->name() + below;
    }

    LSTATUS set(const char* name, DWORD type, std::string_view bytes) const {
        return RegSetValueExA(key, name, 0, type, bytes.data(), DWORD(bytes.size()));
    }

    Answer query(const char* name, std::size_t room) const {
        Answer answer;
        answer.bytes.assign(room, '#');
        answer.size = DWORD(room);
        answer.status =
            RegQueryValueExA(key, name, nullptr, &answer.type, answer.bytes.data(), &answer.size);
        return answer;
    }

    // Without a buffer: type and size only.
    Answer ask(const char* name) const {
        Answer answer;
        answer.size = 99;
        answer.status = RegQueryValueExA(key, name, nullptr, &answer.type, nullptr, &answer.size);
        return answer;
    }

    HKEY key = nullptr;
};

TEST_F(Registry, AValueComesBackWithItsTypeAndSize) {
    EXPECT_EQ(set("text", REG_SZ, {"hello w", 8}), 0);
    Answer answer = ask("text");
    EXPECT_EQ(answer.status, 0);
    EXPECT_EQ(answer.type, REG_SZ);
    EXPECT_EQ(answer.size, 8u);
    answer = query("text", 8);
    EXPECT_EQ(answer.status, 0);
    EXPECT_EQ(answer.bytes, std::string("hello w", 8));
    answer = query("text", 10);
    EXPECT_EQ(answer.size, 8u);
    EXPECT_EQ(answer.bytes, std::string("hello w\0##", 10));
}

TEST_F(Registry, ANumberIsFourBytes) {
    const std::string bytes("\x01\x00\x00\x80", 4);
    EXPECT_EQ(set("number", REG_DWORD, bytes), 0);
    const Answer answer = query("number", 4);
    EXPECT_EQ(answer.type, REG_DWORD);
    EXPECT_EQ(answer.size, 4u);
    EXPECT_EQ(answer.bytes, bytes);
    EXPECT_EQ(query("number", 2).status, moreData);
}

TEST_F(Registry, BinaryBytesStayAsTheyAre) {
    EXPECT_EQ(set("binary", REG_BINARY, {"\1\2\3", 3}), 0);
    const Answer answer = query("binary", 5);
    EXPECT_EQ(answer.type, REG_BINARY);
    EXPECT_EQ(answer.size, 3u);
    EXPECT_EQ(answer.bytes, "\1\2\3##");
}

TEST_F(Registry, ABufferTooSmallLearnsTheSizeAndIsNotTouched) {
    set("text", REG_SZ, {"hello w", 8});
    const Answer answer = query("text", 7);
    EXPECT_EQ(answer.status, moreData);
    EXPECT_EQ(answer.type, REG_SZ);
    EXPECT_EQ(answer.size, 8u);
    EXPECT_EQ(answer.bytes, "#######");
}

TEST_F(Registry, TheTypeAloneCanBeAsked) {
    set("text", REG_SZ, {"a", 2});
    DWORD type = 99;
    EXPECT_EQ(RegQueryValueExA(key, "text", nullptr, &type, nullptr, nullptr), 0);
    EXPECT_EQ(type, REG_SZ);
    std::array<char, 4> buffer{};
    DWORD bytes = 4;
    EXPECT_EQ(RegQueryValueExA(key, "text", nullptr, nullptr, buffer.data(), &bytes), 0);
    EXPECT_EQ(RegQueryValueExA(key, "text", nullptr, &type, buffer.data(), nullptr),
              LSTATUS(ERROR_INVALID_PARAMETER));
}

TEST_F(Registry, AValueOfNoBytesHasNoSize) {
    EXPECT_EQ(set("empty", REG_SZ, {"", 0}), 0);
    EXPECT_EQ(RegSetValueExA(key, "null", 0, REG_SZ, nullptr, 0), 0);
    for (const char* name : {"empty", "null"}) {
        EXPECT_EQ(ask(name).size, 0u);
        const Answer answer = query(name, 2);
        EXPECT_EQ(answer.status, 0);
        EXPECT_EQ(answer.type, REG_SZ);
        EXPECT_EQ(answer.size, 0u);
        EXPECT_EQ(answer.bytes, "##");
    }
}

TEST_F(Registry, ANulBehindACountedTextIsTakenIn) {
    EXPECT_EQ(set("text", REG_SZ, std::string_view("abc\0x", 5).substr(0, 3)), 0);
    EXPECT_EQ(ask("text").size, 4u);
}

TEST_F(Registry, ATextWithoutNulGetsOneWhereThereIsRoom) {
    EXPECT_EQ(set("text", REG_SZ, std::string_view("abcx").substr(0, 3)), 0);
    EXPECT_EQ(ask("text").size, 3u);
    EXPECT_EQ(query("text", 3).bytes, "abc");
    const Answer answer = query("text", 5);
    EXPECT_EQ(answer.size, 3u);
    EXPECT_EQ(answer.bytes, std::string("abc\0#", 5));
}

TEST_F(Registry, NulsInsideATextAreKept) {
    const std::string bytes("a\0b\0", 4);
    EXPECT_EQ(set("text", REG_SZ, bytes), 0);
    EXPECT_EQ(query("text", 4).bytes, bytes);
}

TEST_F(Registry, ALongTextIsKept) {
    const std::string text(1 << 20, 'x');
    EXPECT_EQ(set("long", REG_SZ, {text.c_str(), text.size() + 1}), 0);
    const Answer answer = query("long", text.size() + 1);
    EXPECT_EQ(answer.status, 0);
    EXPECT_STREQ(answer.bytes.c_str(), text.c_str());
}

TEST_F(Registry, NamesOfValuesIgnoreCapitals) {
    set("Name", REG_SZ, {"a", 2});
    EXPECT_EQ(ask("nAME").status, 0);
    set("\xE4\xF7", REG_SZ, {"a", 2});
    EXPECT_EQ(ask("\xC4\xF7").status, 0);
    EXPECT_EQ(ask("\xC4\xD7").status, notFound);
}

TEST_F(Registry, TheDefaultValueHasNoName) {
    EXPECT_EQ(set(nullptr, REG_SZ, {"a", 2}), 0);
    EXPECT_EQ(query("", 2).bytes, std::string("a\0", 2));
    EXPECT_EQ(set("", REG_SZ, {"b", 2}), 0);
    EXPECT_EQ(query(nullptr, 2).bytes, std::string("b\0", 2));
    EXPECT_EQ(RegDeleteValueA(key, nullptr), 0);
    EXPECT_EQ(ask("").status, notFound);
}

TEST_F(Registry, AMissingValueIsNotFound) {
    EXPECT_EQ(ask("none").status, notFound);
    EXPECT_EQ(query("none", 4).status, notFound);
    EXPECT_EQ(RegDeleteValueA(key, "none"), notFound);
}

TEST_F(Registry, ADeletedValueIsGone) {
    set("text", REG_SZ, {"a", 2});
    EXPECT_EQ(RegDeleteValueA(key, "text"), 0);
    EXPECT_EQ(ask("text").status, notFound);
}

TEST_F(Registry, CreatingOpensTheKeyThatIsThere) {
    set("text", REG_SZ, {"a", 2});
    HKEY again = nullptr;
    DWORD disposition = 0;
    EXPECT_EQ(createKey(HKEY_CURRENT_USER, path(), again, &disposition), 0);
    EXPECT_EQ(disposition, 2u);
    EXPECT_EQ(RegQueryValueExA(again, "text", nullptr, nullptr, nullptr, nullptr), 0);
    RegCloseKey(again);
}

TEST_F(Registry, CreatingMakesTheKeysOnTheWay) {
    // A key can not be removed here, so each run makes one of a new name.
    std::string fresh = "\\";
    fresh += std::to_string(testing::UnitTest::GetInstance()->start_timestamp());
    HKEY deep = nullptr;
    DWORD disposition = 0;
    EXPECT_EQ(createKey(HKEY_CURRENT_USER, path(fresh + "\\a\\b"), deep, &disposition), 0);
    EXPECT_EQ(disposition, 1u);
    RegCloseKey(deep);
    EXPECT_EQ(openKey(HKEY_CURRENT_USER, path(fresh + "\\a"), deep), 0);
    EXPECT_EQ(RegCloseKey(deep), 0);
}

TEST_F(Registry, NamesOfKeysIgnoreCapitalsAndABackslashAtTheirEnd) {
    std::string capitals = path();
    for (char& letter : capitals) letter = static_cast<char>(std::toupper(letter));
    for (const std::string& name : {path("\\"), capitals, capitals + "\\"}) {
        HKEY again = nullptr;
        EXPECT_EQ(openKey(HKEY_CURRENT_USER, name, again), 0) << name;
        RegCloseKey(again);
    }
}

TEST_F(Registry, AnEmptyNameIsTheKeyItself) {
    set("text", REG_SZ, {"a", 2});
    for (const char* name : {"", static_cast<const char*>(nullptr)}) {
        HKEY same = nullptr;
        EXPECT_EQ(RegOpenKeyExA(key, name, 0, allAccess, &same), 0);
        EXPECT_EQ(RegQueryValueExA(same, "text", nullptr, nullptr, nullptr, nullptr), 0);
        EXPECT_EQ(RegCloseKey(same), 0);
    }
}

TEST_F(Registry, ABackslashAtTheBeginningIsABadName) {
    HKEY none = nullptr;
    EXPECT_EQ(openKey(HKEY_CURRENT_USER, std::string("\\").append(path()), none), badPathname);
    EXPECT_EQ(createKey(HKEY_CURRENT_USER, std::string("\\").append(path()), none), badPathname);
    EXPECT_EQ(none, nullptr);
}

TEST_F(Registry, AMissingKeyIsNotFound) {
    HKEY none = nullptr;
    EXPECT_EQ(openKey(HKEY_CURRENT_USER, path("\\none"), none), notFound);
    EXPECT_EQ(openKey(HKEY_CURRENT_USER, path("\\none\\deeper"), none), notFound);
    EXPECT_EQ(openKey(HKEY_LOCAL_MACHINE, path("\\none"), none), notFound);
    EXPECT_EQ(none, nullptr);
}

TEST_F(Registry, KeysOpenBelowOtherKeys) {
    HKEY software = nullptr;
    ASSERT_EQ(openKey(HKEY_CURRENT_USER, "Software", software), 0);
    HKEY below = nullptr;
    EXPECT_EQ(openKey(software, path().substr(std::strlen("Software\\")), below), 0);
    RegCloseKey(below);
    RegCloseKey(software);
}

TEST_F(Registry, NoKeyIsBehindANullOrClosedHandle) {
    HKEY closed = nullptr;
    ASSERT_EQ(openKey(HKEY_CURRENT_USER, path(), closed), 0);
    EXPECT_EQ(RegCloseKey(closed), 0);
    EXPECT_EQ(RegCloseKey(closed), invalidHandle);
    for (HKEY dead : {HKEY(nullptr), closed}) {
        HKEY none = nullptr;
        EXPECT_EQ(openKey(dead, "a", none), invalidHandle);
        EXPECT_EQ(createKey(dead, "a", none), invalidHandle);
        EXPECT_EQ(RegSetValueExA(dead, "a", 0, REG_SZ, "a", 2), invalidHandle);
        EXPECT_EQ(RegQueryValueExA(dead, "a", nullptr, nullptr, nullptr, nullptr), invalidHandle);
        EXPECT_EQ(RegDeleteValueA(dead, "a"), invalidHandle);
        EXPECT_EQ(RegCloseKey(dead), invalidHandle);
    }
}

TEST_F(Registry, ARootCanBeClosedAndUsedAgain) {
    EXPECT_EQ(RegCloseKey(HKEY_CURRENT_USER), 0);
    HKEY again = nullptr;
    EXPECT_EQ(openKey(HKEY_CURRENT_USER, path(), again), 0);
    RegCloseKey(again);
}

}  // namespace
