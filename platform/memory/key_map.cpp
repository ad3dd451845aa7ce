#include "platform/memory/key_map.h"

#include <array>

#include "platform/api/constants.h"

namespace win::memory {
namespace {

struct Key {
    int virtualKey;
    char plain;
    char shifted;
};

// The keys that are neither letters nor control keys; the platform numbers those right
// of the letters from 0xBA on.
constexpr std::array<Key, 22> signs = {{
    {VK_SPACE, ' ', ' '}, {'0', '0', ')'},   {'1', '1', '!'},  {'2', '2', '@'},  {'3', '3', '#'},
    {'4', '4', '$'},      {'5', '5', '%'},   {'6', '6', '^'},  {'7', '7', '&'},  {'8', '8', '*'},
    {'9', '9', '('},      {0xBA, ';', ':'},  {0xBB, '=', '+'}, {0xBC, ',', '<'}, {0xBD, '-', '_'},
    {0xBE, '.', '>'},     {0xBF, '/', '?'},  {0xC0, '`', '~'}, {0xDB, '[', '{'}, {0xDC, '\\', '|'},
    {0xDD, ']', '}'},     {0xDE, '\'', '"'},
}};

bool isLetter(int virtualKey) {
    return virtualKey >= 'A' && virtualKey <= 'Z';
}

}  // namespace

int characterOf(int virtualKey, bool shift, bool ctrl) {
    if (isLetter(virtualKey)) {
        if (ctrl) return virtualKey - 'A' + 1;
        return shift ? virtualKey : virtualKey + ('a' - 'A');
    }
    if (virtualKey == VK_RETURN) return ctrl ? '\n' : '\r';
    if (virtualKey == VK_TAB || virtualKey == VK_BACK || virtualKey == VK_ESCAPE) return virtualKey;
    for (const Key& each : signs) {
        if (each.virtualKey == virtualKey && !ctrl) return shift ? each.shifted : each.plain;
    }
    return 0;
}

}  // namespace win::memory
