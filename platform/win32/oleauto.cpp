// oleauto answered by Windows: members are looked up by name, texts become wide ones.
#include "platform/api/oleauto.h"

#include <vector>

#include "platform/win32/ole_session.h"
#include "platform/win32/variant.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

namespace win {

namespace {

::IDispatch* native(IDispatch* object) {
    return reinterpret_cast<::IDispatch*>(object);
}

}  // namespace

HRESULT CoCreateInstance(const CLSID& classId, IDispatch** object) {
    useOle();
    static_assert(sizeof(CLSID) == sizeof(::CLSID));
    *object = nullptr;
    return ::CoCreateInstance(reinterpret_cast<const ::CLSID&>(classId), nullptr, CLSCTX_ALL,
                              IID_IDispatch, reinterpret_cast<void**>(object));
}

HRESULT IDispatch_Invoke(IDispatch* object, const char* name, WORD kind,
                         std::span<const VARIANT> arguments, VARIANT* result) {
    std::wstring member = wide(name);
    wchar_t* asked = member.data();
    ::DISPID id = DISPID_UNKNOWN;
    ::HRESULT answer = native(object)->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(answer)) return answer;
    // The last one first, as the platform has them.
    std::vector<Value> values;
    std::vector<::VARIANT> plain;
    for (std::size_t at = arguments.size(); at-- > 0;) values.emplace_back(arguments[at]);
    for (Value& each : values) plain.push_back(*each.get());
    ::DISPID put = DISPID_PROPERTYPUT;
    ::DISPPARAMS handed{plain.data(), nullptr, static_cast<::UINT>(plain.size()), 0};
    if (kind == DISPATCH_PROPERTYPUT) {
        handed.rgdispidNamedArgs = &put;
        handed.cNamedArgs = 1;
    }
    Value found;
    answer = native(object)->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &handed, found.get(),
                                    nullptr, nullptr);
    if (FAILED(answer) || result == nullptr) return answer;
    return found.read(*result);
}

ULONG IDispatch_Release(IDispatch* object) {
    return native(object)->Release();
}

}  // namespace win
