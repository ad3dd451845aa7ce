#include "companion/com/host.h"

#include <cstdint>
#include <utility>

namespace magpie {

void Host::reset(IDispatch* form) {
    if (form != nullptr) form->AddRef();
    if (IDispatch* before = std::exchange(form_, form)) before->Release();
}

HWND Host::window() const {
    VARIANT window;
    VariantInit(&window);
    if (FAILED(call(L"hWnd", DISPATCH_PROPERTYGET, nullptr, 0, &window)) ||
        FAILED(VariantChangeType(&window, &window, 0, VT_I8)))
        return nullptr;
    return reinterpret_cast<HWND>(static_cast<std::intptr_t>(window.llVal));
}

std::wstring Host::findCurrentVersion(const wchar_t* exeName) const {
    VARIANT handed[2];
    for (VARIANT& each : handed) {
        VariantInit(&each);
        each.vt = VT_BSTR;
    }
    handed[0].bstrVal = SysAllocString(L"");
    handed[1].bstrVal = SysAllocString(exeName);
    VARIANT found;
    VariantInit(&found);
    const HRESULT asked = call(L"gcfg_findCurrentVersion", DISPATCH_METHOD, handed, 2, &found);
    std::wstring path;
    if (SUCCEEDED(asked) && found.vt == VT_BSTR && found.bstrVal != nullptr) path = found.bstrVal;
    VariantClear(&found);
    for (VARIANT& each : handed) VariantClear(&each);
    return path;
}

bool Host::showHelp(int topic, HWND window) const {
    VARIANT handed[2];
    for (VARIANT& each : handed) VariantInit(&each);
    handed[0].vt = VT_I8;
    handed[0].llVal = reinterpret_cast<std::intptr_t>(window);
    handed[1].vt = VT_I4;
    handed[1].lVal = topic;
    const HRESULT shown = call(L"out_ShowHelpID", DISPATCH_METHOD, handed, 2, nullptr);
    return form_ != nullptr && shown != DISP_E_UNKNOWNNAME;
}

HRESULT Host::call(const wchar_t* member, WORD kind, VARIANT* arguments, UINT count,
                   VARIANT* result) const {
    if (form_ == nullptr) return E_POINTER;
    std::wstring name = member;
    wchar_t* asked = name.data();
    DISPID id = DISPID_UNKNOWN;
    const HRESULT known = form_->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(known)) return known;
    DISPPARAMS parameters{arguments, nullptr, count, 0};
    return form_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result, nullptr,
                         nullptr);
}

}  // namespace magpie
