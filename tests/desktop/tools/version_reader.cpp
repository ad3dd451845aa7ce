// Prints the version that a program's file carries in its resources: version_reader FILE
#include <cstdio>
#include <vector>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <winver.h>
// clang-format on

int main(int count, char** arguments) {
    if (count != 2) return 2;
    std::vector<char> block(GetFileVersionInfoSizeA(arguments[1], nullptr));
    void* found = nullptr;
    UINT size = 0;
    if (block.empty() ||
        !GetFileVersionInfoA(arguments[1], 0, static_cast<DWORD>(block.size()), block.data()) ||
        !VerQueryValueA(block.data(), "\\", &found, &size))
        return 1;
    const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(found);
    std::printf("%d.%d.%d\n", HIWORD(version.dwFileVersionMS), LOWORD(version.dwFileVersionMS),
                HIWORD(version.dwFileVersionLS));
    return 0;
}
