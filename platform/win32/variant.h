// Value: a value of automation as the platform has it, made from the program's and read back.
// Texts are wide ones there.
#pragma once

#include <string>

#include "platform/api/oleauto.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

namespace win {

inline std::wstring wide(const std::string& text) {
    const int bytes = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, nullptr, 0);
    std::wstring made(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, made.data(), length);
    return made;
}

inline std::string ansi(::BSTR text) {
    const int length = static_cast<int>(::SysStringLen(text));
    const int bytes = ::WideCharToMultiByte(CP_ACP, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string made(static_cast<std::size_t>(bytes), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text, length, made.data(), bytes, nullptr, nullptr);
    return made;
}

// A value of the platform's, emptied at the end.
class Value {
public:
    Value() { ::VariantInit(&value_); }
    explicit Value(const VARIANT& from) : Value() { std::visit(*this, from); }
    ~Value() { ::VariantClear(&value_); }
    Value(Value&& other) noexcept : value_(other.value_) { ::VariantInit(&other.value_); }
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;

    void operator()(std::monostate) {}
    void operator()(bool truth) {
        value_.vt = VT_BOOL;
        value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int64_t number) {
        const bool small = number == static_cast<std::int32_t>(number);
        value_.vt = small ? VT_I4 : VT_I8;
        value_.llVal = number;
    }
    void operator()(const std::string& text) {
        const std::wstring letters = wide(text);
        value_.vt = VT_BSTR;
        value_.bstrVal = ::SysAllocStringLen(letters.data(), static_cast<::UINT>(letters.size()));
    }
    void operator()(IDispatch* object) {
        value_.vt = VT_DISPATCH;
        value_.pdispVal = reinterpret_cast<::IDispatch*>(object);
        if (object != nullptr) value_.pdispVal->AddRef();
    }

    ::VARIANT* get() { return &value_; }

    // The value, from now on the caller's to clear.
    ::VARIANT release() {
        const ::VARIANT given = value_;
        ::VariantInit(&value_);
        return given;
    }

    // The value in the program's terms; a kind that it has no use for is a whole number, if it
    // can be one.
    ::HRESULT read(VARIANT& to) {
        switch (value_.vt) {
            case VT_EMPTY: to = std::monostate{}; return S_OK;
            case VT_BOOL: to = value_.boolVal != VARIANT_FALSE; return S_OK;
            case VT_BSTR: to = ansi(value_.bstrVal); return S_OK;
            case VT_DISPATCH:
                to = reinterpret_cast<IDispatch*>(value_.pdispVal);
                value_.vt = VT_EMPTY;  // the caller's now
                return S_OK;
            default: break;
        }
        const ::HRESULT changed = ::VariantChangeType(&value_, &value_, 0, VT_I8);
        if (SUCCEEDED(changed)) to = std::int64_t{value_.llVal};
        return changed;
    }

private:
    ::VARIANT value_;
};

}  // namespace win
