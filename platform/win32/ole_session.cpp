#include "platform/win32/ole_session.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ole2.h>
// clang-format on

namespace win {

namespace {

class OleSession {
public:
    OleSession() { ::OleInitialize(nullptr); }
    ~OleSession() { ::OleUninitialize(); }
    OleSession(const OleSession&) = delete;
    OleSession& operator=(const OleSession&) = delete;
};

}  // namespace

void useOle() {
    static const OleSession session;
}

}  // namespace win
