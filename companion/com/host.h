// Host: the program's form that the library was given, and its public methods, called by name.
#pragma once

#include <string>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

namespace magpie {

// Held while it lives. Without a form, or where the form has no such member, the calls come to
// nothing.
class Host {
public:
    Host() = default;
    explicit Host(IDispatch* form) { reset(form); }
    ~Host() { reset(nullptr); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    void reset(IDispatch* form);

    // The form's window; null without one.
    HWND window() const;
    // Where the browser of this file is installed; empty for one that is not.
    std::wstring findCurrentVersion(const wchar_t* exeName) const;
    // The help topic of this number, over a window. False where the form opens no topics; one that
    // fails to open it has had its try.
    bool showHelp(int topic, HWND window) const;

private:
    // The last argument comes first.
    HRESULT call(const wchar_t* member, WORD kind, VARIANT* arguments, UINT count,
                 VARIANT* result) const;

    IDispatch* form_ = nullptr;
};

}  // namespace magpie
