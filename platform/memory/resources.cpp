// Cursors, icons and pictures.
#include "platform/memory/resources.h"

#include <array>
#include <string>

#include "platform/api/kernel32.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/gdi_objects.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr std::uintptr_t firstSharedIcon = 0x60000;
constexpr std::uintptr_t firstOwnIcon = 0x20000000;

WORD numberIn(const char* name) {
    auto value = reinterpret_cast<std::uintptr_t>(name);
    if (value > 0xFFFF) refuse("resource with a name", name);
    return static_cast<WORD>(value);
}

HICON loadIcon(WORD number, bool shared) {
    if (!icons().numbers.contains(number)) return nullptr;
    if (shared) return reinterpret_cast<HICON>(firstSharedIcon + number);
    auto icon = reinterpret_cast<HICON>(firstOwnIcon + ++icons().made * 4);
    icons().owned.insert(icon);
    return icon;
}

// The beginning of a bitmap file: "BM", at 14 the size of the second header (40 or
// more), at 26 the planes, at 28 the bits of a pixel.
bool isBitmap(const std::array<char, 30>& header) {
    auto byte = [&](std::size_t at) { return static_cast<unsigned char>(header[at]); };
    return byte(0) == 'B' && byte(1) == 'M' && byte(14) >= 40 && byte(26) == 1 && byte(28) <= 32;
}

HBITMAP loadPicture(const char* path) {
    HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    std::array<char, 30> header{};
    DWORD read = 0;
    bool whole = ReadFile(file, header, &read, nullptr) && read == header.size();
    CloseHandle(file);
    if (!whole || !isBitmap(header)) return nullptr;
    HBITMAP picture = newBitmap();
    pictureFiles()[picture] = path;
    return picture;
}

}  // namespace

Icons& icons() {
    static Icons theIcons;
    return theIcons;
}

std::map<HBITMAP, std::string>& pictureFiles() {
    static std::map<HBITMAP, std::string> files;
    return files;
}

}  // namespace win::memory

namespace win {

using namespace memory;

HCURSOR LoadCursorA(HINSTANCE instance, const char* name) {
    WORD number = numberIn(name);
    if (instance) refuse("cursor of the program", number);
    if (number != IDC_ARROW_NUMBER && number != IDC_WAIT_NUMBER && number != IDC_SIZEALL_NUMBER)
        refuse("cursor", number);
    return reinterpret_cast<HCURSOR>(firstCursor + number);
}

HCURSOR SetCursor(HCURSOR cursor) {
    HCURSOR previous = desktop().cursor;
    desktop().cursor = cursor;
    return previous;
}

HANDLE LoadImageA(HINSTANCE, const char* name, UINT type, int width, int height, UINT flags) {
    if (width < 0 || height < 0) refuse("size of a picture", "negative");
    if (faultIn("LoadImageA")) return nullptr;
    if (type == IMAGE_BITMAP && flags == LR_LOADFROMFILE) return loadPicture(name);
    if (type != IMAGE_ICON || flags & ~LR_SHARED) refuse("picture of the kind and flags", flags);
    return loadIcon(numberIn(name), flags & LR_SHARED);
}

BOOL DestroyIcon(HICON icon) {
    if (!icons().owned.erase(icon))
        refuse("destroyed an icon that is not owned", reinterpret_cast<std::uintptr_t>(icon));
    return true;
}

}  // namespace win
