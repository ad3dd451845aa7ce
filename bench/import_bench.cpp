// What the import of a full store's worth of links costs: a Favorites tree beside opening and
// reading the same files, a bookmark file beside a plain pass over the same bytes. Prints each
// measurement and its ratio with the limit; with --check the program fails when a ratio is over it.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/stopwatch.h"
#include "companion/import/import.h"

#ifdef _WIN32
#include "companion/import/windows/disk.h"
#else
#include "bench/portable_disk.h"
#endif

namespace magpie::bench {
namespace {

constexpr double favoritesLimit = 2;
constexpr double bookmarksLimit = 3;
constexpr int links = 32767;
constexpr int folders = 256;

#ifdef _WIN32
using TheDisk = Disk;
#else
using TheDisk = PortableDisk;
#endif

// Keeps the texts, as the program does, and nothing else.
class Keeper : public ImportSink {
public:
    bool NewGroup(const std::string& name) override {
        groups.push_back(name);
        return true;
    }
    bool BungURL(const std::string& title, const std::string& url) override {
        kept.push_back({title, url});
        return true;
    }
    void storeLastRootOwner() override {}

    struct Link {
        std::string title;
        std::string url;
    };
    std::vector<std::string> groups;
    std::vector<Link> kept;
};

std::string titleOf(int link) {
    return "A page with a title of usual length " + std::to_string(link);
}

std::string addressOf(int link) {
    return "http://server" + std::to_string(link % 977) +
           ".example/path/to/page?id=" + std::to_string(link);
}

// --- Favorites ---------------------------------------------------------------

using Paths = std::vector<std::string>;

// Makes the tree and gives the paths of its files, folder by folder.
Paths makeTree(TheDisk& disk, const std::filesystem::path& root) {
    Paths paths;
    for (int folder = 0; folder < folders; ++folder) {
        const std::string name = "Folder " + std::to_string(folder);
        std::filesystem::create_directories(root / name);
        for (int link = folder; link < links; link += folders) {
            const std::string path =
                disk.inFolder(disk.inFolder(root.string(), name), titleOf(link) + ".url");
            std::ofstream(path, std::ios::binary)
                << "[DEFAULT]\r\nBASEURL=" << addressOf(link)
                << "\r\n[InternetShortcut]\r\nURL=" << addressOf(link)
                << "\r\nModified=20F06BA06D07BD014D\r\nIconIndex=1\r\n";
            paths.push_back(path);
        }
    }
    return paths;
}

std::size_t readAll(TheDisk& disk, const Paths& paths) {
    std::size_t size = 0;
    std::string bytes;
    for (const std::string& path : paths) {
        if (!disk.read(path, 1024 * 1024, bytes)) std::abort();
        size += bytes.size();
    }
    return size;
}

void importTree(TheDisk& disk, const std::string& root) {
    Keeper keeper;
    const ImportCounts counts = importFavorites(disk, root, {}, keeper);
    if (counts.links != static_cast<std::size_t>(links) || counts.groups != folders) std::abort();
}

// --- Bookmark file -----------------------------------------------------------

void makePage(const std::string& path) {
    std::ofstream page(path, std::ios::binary);
    page << "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n<META HTTP-EQUIV=\"Content-Type\" "
            "CONTENT=\"text/html; charset=UTF-8\">\n<TITLE>Bookmarks</TITLE>\n"
            "<H1>Bookmarks</H1>\n<DL><p>\n";
    for (int folder = 0; folder < folders; ++folder) {
        page << "    <DT><H3 ADD_DATE=\"1599750431\">Folder " << folder << "</H3>\n    <DL><p>\n";
        for (int link = folder; link < links; link += folders) {
            page << "        <DT><A HREF=\"" << addressOf(link)
                 << "\" ADD_DATE=\"1599750431\" LAST_MODIFIED=\"1599750431\">" << titleOf(link)
                 << "</A>\n";
        }
        page << "    </DL><p>\n";
    }
    page << "</DL><p>\n";
}

// The least that reading such a page can be: finds the parts by what stands around them and
// copies them.
void passPlainly(TheDisk& disk, const std::string& path) {
    std::string bytes;
    if (!disk.read(path, static_cast<std::size_t>(-1), bytes)) std::abort();
    constexpr std::string_view before = "<A HREF=\"";
    Keeper keeper;
    const std::string_view page = bytes;
    for (std::size_t at = page.find(before); at != std::string_view::npos;
         at = page.find(before, at)) {
        at += before.size();
        const std::size_t quote = page.find('"', at);
        const std::size_t title = page.find('>', quote) + 1;
        const std::size_t end = page.find('<', title);
        keeper.BungURL(std::string(page.substr(title, end - title)),
                       std::string(page.substr(at, quote - at)));
        at = end;
    }
    if (keeper.kept.size() != links) std::abort();
}

void importPage(TheDisk& disk, const std::string& path) {
    Keeper keeper;
    const ImportCounts counts = importBookmarkFile(disk, path, {}, keeper);
    if (counts.links != static_cast<std::size_t>(links) || counts.groups != folders) std::abort();
}

// --- Ratios ------------------------------------------------------------------

bool compare(const char* what, double time, const char* beside, double baseline, double limit) {
    const double ratio = time / baseline;
    std::printf("%5.2f of %.1f  %s (%.1f ms) / %s (%.1f ms)%s\n", ratio, limit, what, time, beside,
                baseline, ratio <= limit ? "" : "  OVER");
    return ratio <= limit;
}

bool compareAll(const std::filesystem::path& root) {
    TheDisk disk;
    const std::filesystem::path tree = root / "Favorites";
    const std::string page = (root / "bookmark.htm").string();
    const Paths paths = makeTree(disk, tree);
    makePage(page);
    readAll(disk, paths);  // from now on the disk's cache has all
    const double reading = leastOf([&] { readAll(disk, paths); });
    const double favorites = leastOf([&] { importTree(disk, tree.string()); });
    const double pass = leastOf([&] { passPlainly(disk, page); });
    const double bookmarks = leastOf([&] { importPage(disk, page); });
    bool within = compare("import of 32,767 shortcut files", favorites, "opening and reading them",
                          reading, favoritesLimit);
    within &= compare("import of a file of 32,767 bookmarks", bookmarks, "plain pass", pass,
                      bookmarksLimit);
    return within;
}

int run(int count, char** arguments) {
    const bool check = count == 2 && std::strcmp(arguments[1], "--check") == 0;
    const std::filesystem::path root =
        std::filesystem::temp_directory_path() / "magpie_import_bench";
    std::filesystem::remove_all(root);
    std::filesystem::create_directories(root);
    const bool within = compareAll(root);
    std::filesystem::remove_all(root);
    return check && !within ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace
}  // namespace magpie::bench

int main(int count, char** arguments) {
    return magpie::bench::run(count, arguments);
}
