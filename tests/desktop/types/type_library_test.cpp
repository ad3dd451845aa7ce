// The built companion library: how its own type library describes it, in the order that the
// interfaces have, and objects of it that are made and asked by that description.
#include <gmock/gmock.h>
#include <string>
#include <vector>

// The platform's names of the seam come before those of the SDK.
#include "config/pienest.h"

// clang-format off
#include <windows.h>
#include <oleauto.h>
#include <shlobj.h>
// clang-format on

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

std::wstring libraryPath() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program = path;
    return program.substr(0, program.rfind(L'\\') + 1) + L"Pienest.dll";
}

std::string narrow(const wchar_t* text) {
    std::string made;
    for (; *text != L'\0'; ++text) made += static_cast<char>(*text);
    return made;
}

const CLSID& native(const win::CLSID& id) {
    return reinterpret_cast<const CLSID&>(id);
}

// "put 1 lineCheck byte": how a member is called, its number and name, what it takes, and what it
// gives behind an arrow.
class Member {
public:
    Member(ITypeInfo& info, UINT at) : info_(info) { info.GetFuncDesc(at, &desc_); }
    ~Member() { info_.ReleaseFuncDesc(desc_); }
    Member(const Member&) = delete;
    Member& operator=(const Member&) = delete;

    std::string text() const {
        std::string line = kind();
        line.append(" ").append(std::to_string(desc_->memid)).append(" ").append(name());
        for (SHORT each = 0; each < desc_->cParams; ++each) {
            const ELEMDESC& parameter = desc_->lprgelemdescParam[each];
            const bool given = (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0;
            line += given ? " -> " : " ";
            line += given ? kindOf(*parameter.tdesc.lptdesc) : kindOf(parameter.tdesc);
        }
        return line;
    }
    SHORT place() const { return desc_->oVft; }

private:
    std::string kind() const {
        if (desc_->invkind == INVOKE_PROPERTYPUT) return "put";
        return desc_->invkind == INVOKE_PROPERTYGET ? "get" : "call";
    }
    std::string name() const {
        BSTR found = nullptr;
        UINT count = 0;
        info_.GetNames(desc_->memid, &found, 1, &count);
        std::string made = narrow(found);
        SysFreeString(found);
        return made;
    }
    static std::string kindOf(const TYPEDESC& type) {
        switch (type.vt) {
            case VT_UI1: return "byte";
            case VT_BOOL: return "boolean";
            case VT_I4: return "long";
            case VT_BSTR: return "text";
            case VT_VARIANT: return "variant";
            case VT_DISPATCH: return "object";
            case VT_PTR: return kindOf(*type.lptdesc) + "*";
            default: return "kind " + std::to_string(type.vt);
        }
    }

    ITypeInfo& info_;
    FUNCDESC* desc_ = nullptr;
};

class TypeLibrary : public testing::Test {
public:
    void SetUp() override {
        ASSERT_EQ(LoadTypeLibEx(libraryPath().c_str(), REGKIND_NONE, &library_), S_OK);
    }
    void TearDown() override {
        if (library_ != nullptr) library_->Release();
    }

    // The members that an interface has of its own, in its order.
    static std::vector<std::string> membersOf(ITypeInfo& info) {
        TYPEATTR* attributes = nullptr;
        info.GetTypeAttr(&attributes);
        const UINT count = attributes->cFuncs;
        const bool table = attributes->typekind == TKIND_INTERFACE;
        info.ReleaseTypeAttr(attributes);
        std::vector<std::string> members;
        for (UINT at = 0; at < count; ++at) {
            const Member member(info, at);
            members.push_back(member.text());
            // Behind the seven of every dual interface.
            if (table) {
                EXPECT_EQ(member.place(), static_cast<SHORT>((7 + at) * sizeof(void*)));
            }
        }
        return members;
    }

    // Those of a class's interface, or of its events.
    std::vector<std::string> membersOf(const win::CLSID& classId, bool events) {
        ITypeInfo* made = nullptr;
        EXPECT_EQ(library_->GetTypeInfoOfGuid(native(classId), &made), S_OK);
        std::vector<std::string> members;
        for (UINT at = 0; at < 2; ++at) {
            int flags = 0;
            HREFTYPE reference = 0;
            ITypeInfo* info = nullptr;
            if (FAILED(made->GetImplTypeFlags(at, &flags))) continue;
            if (((flags & IMPLTYPEFLAG_FSOURCE) != 0) != events) continue;
            made->GetRefTypeOfImplType(at, &reference);
            made->GetRefTypeInfo(reference, &info);
            // Of a dual interface the table, which has nothing but its own members.
            ITypeInfo* table = nullptr;
            if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) &&
                SUCCEEDED(info->GetRefTypeInfo(reference, &table))) {
                info->Release();
                info = table;
            }
            members = membersOf(*info);
            info->Release();
        }
        made->Release();
        return members;
    }

    std::string nameOf(const win::CLSID& id) {
        ITypeInfo* info = nullptr;
        if (FAILED(library_->GetTypeInfoOfGuid(native(id), &info))) return "nothing";
        BSTR name = nullptr;
        info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
        std::string made = narrow(name);
        SysFreeString(name);
        info->Release();
        return made;
    }

    ITypeLib* library_ = nullptr;
};

TEST_F(TypeLibrary, BearsItsNameAndHasThreeClasses) {
    BSTR name = nullptr;
    ASSERT_EQ(library_->GetDocumentation(-1, &name, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(narrow(name), "Pienest");
    SysFreeString(name);
    std::vector<std::string> classes;
    for (UINT at = 0; at < library_->GetTypeInfoCount(); ++at) {
        TYPEKIND kind = TKIND_ALIAS;
        library_->GetTypeInfoType(at, &kind);
        if (kind != TKIND_COCLASS) continue;
        library_->GetDocumentation(static_cast<INT>(at), &name, nullptr, nullptr, nullptr);
        classes.push_back(narrow(name));
        SysFreeString(name);
    }
    EXPECT_THAT(classes, ElementsAre("gcfg", "mb", "out"));
}

TEST_F(TypeLibrary, ItsClassesAndEventsHaveTheNumbersThatTheProgramAsksFor) {
    EXPECT_EQ(nameOf(pienest::gcfg), "gcfg");
    EXPECT_EQ(nameOf(pienest::mb), "mb");
    EXPECT_EQ(nameOf(pienest::out), "out");
    EXPECT_EQ(nameOf(pienest::gcfgEvents), "DgcfgEvents");
    EXPECT_EQ(nameOf(pienest::mbEvents), "DmbEvents");
}

TEST_F(TypeLibrary, PreferencesHaveThePropertiesInTheirOrderAndShowAtTheEnd) {
    const std::pair<const char*, const char*> settings[] = {
        {"lineCheck", "byte"},           {"onlineAction", "byte"},
        {"noTrayIcon", "boolean"},       {"onlineOnly", "boolean"},
        {"activeIcon", "boolean"},       {"shortcutMode", "byte"},
        {"fullWindow", "boolean"},       {"browserType", "byte"},
        {"useKeystrokes", "boolean"},    {"autoLoadURLs", "boolean"},
        {"autoSaveURLs", "boolean"},     {"autoLoadSettings", "boolean"},
        {"autoSaveSettings", "boolean"}, {"Placement", "byte"},
        {"iconOnTop", "boolean"},        {"mainOnTop", "boolean"}};
    std::vector<std::string> wanted;
    int number = 0;
    for (const auto& [name, kind] : settings) {
        const std::string middle = std::to_string(++number).append(" ").append(name);
        wanted.push_back(std::string("put ").append(middle).append(" ").append(kind));
        wanted.push_back(std::string("get ").append(middle).append(" -> ").append(kind));
    }
    for (const char* line : {"put 17 appPath text", "get 17 appPath -> text", "put 18 Host object",
                             "put 19 Application object", "call 20 Show -> variant"})
        wanted.emplace_back(line);
    EXPECT_THAT(membersOf(pienest::gcfg, false), ElementsAreArray(wanted));
    EXPECT_THAT(membersOf(pienest::gcfg, true),
                ElementsAre("call " + std::to_string(pienest::applyCurrent) + " ApplyCurrent"));
}

TEST_F(TypeLibrary, AnImportHasItsCallsAndTellsWhatItFinds) {
    EXPECT_THAT(membersOf(pienest::mb, false),
                ElementsAre("put 1 Host object", "call 2 ImportFavorites long",
                            "call 3 ImportNetscape boolean", "call 4 lastRootOwner long"));
    EXPECT_THAT(
        membersOf(pienest::mb, true),
        ElementsAre("call " + std::to_string(pienest::newGroup) + " NewGroup text",
                    "call " + std::to_string(pienest::bungURL) + " BungURL text text",
                    "call " + std::to_string(pienest::storeLastRootOwner) + " storeLastRootOwner"));
}

TEST_F(TypeLibrary, TheAboutBoxHasItsCallsAndNoEvents) {
    EXPECT_THAT(membersOf(pienest::out, false),
                ElementsAre("call 1 About object text long long long boolean",
                            "call 2 Contact object byte"));
    EXPECT_THAT(membersOf(pienest::out, true), ElementsAre());
}

// Objects ----------------------------------------------------------------------------------

// Null when it can't be made.
IDispatch* newObject(const win::CLSID& classId) {
    HMODULE library = LoadLibraryW(libraryPath().c_str());
    if (library == nullptr) return nullptr;
    const auto getClass = reinterpret_cast<LPFNGETCLASSOBJECT>(
        reinterpret_cast<void (*)()>(GetProcAddress(library, "DllGetClassObject")));
    IClassFactory* factory = nullptr;
    if (getClass(native(classId), IID_IClassFactory, reinterpret_cast<void**>(&factory)) != S_OK)
        return nullptr;
    IDispatch* made = nullptr;
    factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(&made));
    factory->Release();
    return made;
}

class PreferencesObject : public testing::Test {
public:
    void SetUp() override {
        gcfg = newObject(pienest::gcfg);
        ASSERT_NE(gcfg, nullptr);
    }
    void TearDown() override {
        if (gcfg != nullptr) gcfg->Release();
    }

    int get(DISPID member) {
        DISPPARAMS none{};
        VARIANT value;
        VariantInit(&value);
        EXPECT_EQ(gcfg->Invoke(member, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr,
                               nullptr),
                  S_OK);
        EXPECT_EQ(VariantChangeType(&value, &value, 0, VT_I4), S_OK);
        return value.lVal;
    }
    void put(DISPID member, int number) {
        VARIANT value;
        VariantInit(&value);
        value.vt = VT_I4;
        value.lVal = number;
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS handed{&value, &named, 1, 1};
        EXPECT_EQ(gcfg->Invoke(member, IID_NULL, 0, DISPATCH_PROPERTYPUT, &handed, nullptr, nullptr,
                               nullptr),
                  S_OK);
    }
    std::vector<int> all() {
        std::vector<int> values;
        for (DISPID member = 1; member <= 16; ++member) values.push_back(get(member));
        return values;
    }

    IDispatch* gcfg = nullptr;
};

TEST_F(PreferencesObject, KeepsEachSettingAndChangesNoOtherByIt) {
    std::vector<int> wanted(16, 0);
    EXPECT_EQ(all(), wanted);
    for (DISPID member = 1; member <= 16; ++member) {
        SCOPED_TRACE(member);
        const bool byte = member <= 2 || member == 6 || member == 8 || member == 14;
        put(member, byte ? 3 : -1);
        wanted[static_cast<std::size_t>(member - 1)] = byte ? 3 : -1;
        EXPECT_EQ(all(), wanted);
    }
}

// A box would wait for its user.
TEST(ImportObject, ThatNobodyHearsOfEndsWithoutAWord) {
    wchar_t favorites[MAX_PATH] = L"";
    ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, favorites, CSIDL_FAVORITES, TRUE));
    const std::wstring file = std::wstring(favorites) + L"\\Of nobody.url";
    const std::string text = "[InternetShortcut]\r\nURL=http://a/\r\n";
    HANDLE written =
        CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(written, INVALID_HANDLE_VALUE);
    DWORD count = 0;
    WriteFile(written, text.data(), static_cast<DWORD>(text.size()), &count, nullptr);
    CloseHandle(written);

    IDispatch* import = newObject(pienest::mb);
    ASSERT_NE(import, nullptr);
    constexpr DISPID importFavorites = 2;
    VARIANT window;
    VariantInit(&window);
    window.vt = VT_I4;
    DISPPARAMS handed{&window, nullptr, 1, 0};
    EXPECT_EQ(import->Invoke(importFavorites, IID_NULL, 0, DISPATCH_METHOD, &handed, nullptr,
                             nullptr, nullptr),
              S_OK);
    import->Release();
    DeleteFileW(file.c_str());
}

}  // namespace
}  // namespace magpie
