#include "platform/memory/shell_folders.h"

#include "platform/api/shell32.h"
#include "platform/memory/faults.h"
#include "platform/memory/files.h"
#include "platform/memory/refuse.h"

namespace win {

struct ITEMIDLIST {};

namespace memory {
namespace {

constexpr const char* usualFavorites = "C:\\Favorites";

// The one place that is handed out. Nobody gives places back.
ITEMIDLIST favoritesPlace;

std::string makeFavorites() {
    disk().files[usualFavorites] =
        std::make_shared<File>(File{.folder = true, .bytes = {}, .openers = {}});
    return usualFavorites;
}

}  // namespace

std::optional<std::string>& favoritesFolder() {
    static std::optional<std::string> folder(makeFavorites());
    return folder;
}

}  // namespace memory

using namespace memory;

HRESULT SHGetSpecialFolderLocation(HWND, INT folder, ITEMIDLIST** place) {
    constexpr HRESULT notFound = static_cast<HRESULT>(0x80070002);
    if (folder != CSIDL_FAVORITES) refuse("SHGetSpecialFolderLocation", static_cast<UINT>(folder));
    *place = nullptr;
    if (faultIn("SHGetSpecialFolderLocation") || !favoritesFolder()) return notFound;
    *place = &favoritesPlace;
    return 0;
}

BOOL SHGetPathFromIDListA(const ITEMIDLIST* place, char* path) {
    if (place != &favoritesPlace) refuse("SHGetPathFromIDListA", "a place of no folder");
    path[0] = '\0';
    if (faultIn("SHGetPathFromIDListA")) return 0;
    path[favoritesFolder()->copy(path, 259)] = '\0';
    return 1;
}

}  // namespace win
