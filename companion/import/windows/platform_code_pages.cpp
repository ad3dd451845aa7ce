#include "companion/import/windows/platform_code_pages.h"

#include <windows.h>

namespace magpie {

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

bool toUtf16(unsigned codePage, std::string_view bytes, std::u16string& text) {
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, 0, bytes.data(), size, nullptr, 0);
    if (length == 0 && size != 0) return false;
    text.resize(static_cast<std::size_t>(length));
    MultiByteToWideChar(codePage, 0, bytes.data(), size, reinterpret_cast<wchar_t*>(text.data()),
                        length);
    return true;
}

// Some code pages have every character; they take no flag and answer no question.
bool holdsAll(unsigned codePage) {
    return codePage == 54936 || codePage == CP_UTF8;
}

bool fromUtf16(unsigned codePage, std::u16string_view text, std::string& bytes) {
    char found[16];
    BOOL replaced = FALSE;
    const bool all = holdsAll(codePage);
    const int length = WideCharToMultiByte(
        codePage, all ? 0 : WC_NO_BEST_FIT_CHARS, reinterpret_cast<const wchar_t*>(text.data()),
        static_cast<int>(text.size()), found, sizeof found, nullptr, all ? nullptr : &replaced);
    if (length == 0 || replaced != FALSE) return false;
    bytes.append(found, static_cast<std::size_t>(length));
    return true;
}

}  // namespace

unsigned programCodePage() {
    return GetACP();
}

CodePageCalls platformCodePages() {
    return {toUtf16, fromUtf16};
}

}  // namespace magpie
