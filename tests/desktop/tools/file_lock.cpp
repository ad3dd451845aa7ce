// Holds a file open so that nobody else can open it, until it is killed.
//   file_lock FILE     prints "locked" once it has the file
#include <cstdio>

#include <windows.h>

int main(int count, char** arguments) {
    if (count != 2) return 2;
    HANDLE file = CreateFileA(arguments[1], GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 1;
    std::puts("locked");
    std::fflush(stdout);
    Sleep(INFINITE);
}
