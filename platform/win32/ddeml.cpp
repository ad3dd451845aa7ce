// ddeml answered by Windows.
#include "platform/api/ddeml.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ddeml.h>
// clang-format on

namespace win {

namespace {

::HSZ native(HSZ text) {
    return reinterpret_cast<::HSZ>(text);
}

::HCONV native(HCONV conversation) {
    return reinterpret_cast<::HCONV>(conversation);
}

::HDDEDATA native(HDDEDATA data) {
    return reinterpret_cast<::HDDEDATA>(data);
}

}  // namespace

UINT DdeInitializeA(DWORD* instance, PFNCALLBACK callback, DWORD commands, ULONG reserved) {
    return ::DdeInitializeA(reinterpret_cast<::DWORD*>(instance),
                            reinterpret_cast<::PFNCALLBACK>(callback), commands, reserved);
}

BOOL DdeUninitialize(DWORD instance) {
    return ::DdeUninitialize(instance);
}

UINT DdeGetLastError(DWORD instance) {
    return ::DdeGetLastError(instance);
}

HSZ DdeCreateStringHandleA(DWORD instance, const char* text, INT codePage) {
    return reinterpret_cast<HSZ>(::DdeCreateStringHandleA(instance, text, codePage));
}

BOOL DdeFreeStringHandle(DWORD instance, HSZ text) {
    return ::DdeFreeStringHandle(instance, native(text));
}

HCONV DdeConnect(DWORD instance, HSZ service, HSZ topic, void* context) {
    return reinterpret_cast<HCONV>(::DdeConnect(instance, native(service), native(topic),
                                                static_cast<::CONVCONTEXT*>(context)));
}

BOOL DdeDisconnect(HCONV conversation) {
    return ::DdeDisconnect(native(conversation));
}

HDDEDATA DdeClientTransaction(void* data, DWORD bytes, HCONV conversation, HSZ item, UINT format,
                              UINT type, DWORD milliseconds, DWORD* result) {
    return reinterpret_cast<HDDEDATA>(::DdeClientTransaction(
        static_cast<::BYTE*>(data), bytes, native(conversation), native(item), format, type,
        milliseconds, reinterpret_cast<::DWORD*>(result)));
}

DWORD DdeGetData(HDDEDATA data, std::span<char> buffer, DWORD offset) {
    auto* bytes = buffer.empty() ? nullptr : reinterpret_cast<::BYTE*>(buffer.data());
    return ::DdeGetData(native(data), bytes, static_cast<::DWORD>(buffer.size()), offset);
}

BOOL DdeFreeDataHandle(HDDEDATA data) {
    return ::DdeFreeDataHandle(native(data));
}

}  // namespace win
