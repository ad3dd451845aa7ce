#include "browser/shortcut_files.h"

#include <optional>

#include "core/state.h"
#include "platform/api/shell32.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/resume_next.h"
#include "platform/services/files.h"
#include "tray/form1.h"

namespace magpie {

namespace {

constexpr std::uint8_t noFiles = 0;
constexpr std::uint8_t folderOfGroup = 1;
constexpr std::uint8_t besideEachOther = 2;

// A name that leads out of its folder is none.
const std::string& fileName(const std::string& name) {
    if (name.find_first_of("/\\") != std::string::npos || name == "." || name == "..")
        throw Failure{failure::badFileName};
    return name;
}

}  // namespace

void writeShortcut(const std::string& title, const std::string& url, const std::string& gName) {
    if (shortcutMode == noFiles) return;
    std::string base;
    std::string path;
    std::optional<TextWriter> file;
    ResumeNext([&] { base = specialFolder(win::CSIDL_FAVORITES).append("\\"); },
               [&] {
                   if (shortcutMode == folderOfGroup) makeFolder(base + fileName(gName));
               },
               [&] {
                   path = base;
                   if (shortcutMode != besideEachOther) path.append(fileName(gName)).append("\\");
                   path.append(fileName(title)).append(".url");
                   file.emplace(path);
               },
               [&] {
                   if (file) file->writeLine("[InternetShortcut]");
               },
               [&] {
                   if (file) file->writeLine("URL=" + url);
               },
               [&] {
                   if (file) file->close();
               });
}

std::string specialFolder(std::int32_t id) {
    win::ITEMIDLIST* place = nullptr;
    if (win::SHGetSpecialFolderLocation(Form1.hWnd(), id, &place) != 0) return {};
    std::string path(512, ' ');
    win::SHGetPathFromIDListA(place, path.data());
    return path.substr(0, path.find('\0'));
}

}  // namespace magpie
