#include "store/stack_file.h"

#include <optional>
#include <span>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/resume_next.h"
#include "platform/services/files.h"
#include "platform/services/screen.h"
#include "store/records_by_group.h"
#include "store/stack_line.h"

namespace magpie {

namespace {

void emptyStore() {
    IDXList.reset();
    Form3.Combo1[1].Clear();
    Form3.ListView1[lvIndex].Clear();
    uBlock.URLDatas().Clear();
    urlsDirty = 0;
    IDXCount = 0;
}

// A line that cannot be read any more fails as one that cannot be parsed does; the reader is at
// its end then.
void readLines(TextReader& file) {
    while (trueOrFailing([&] { return !file.atEnd(); })) {
        ResumeNext([&] { ParseStackLine(file.readLine()); }, DoEvents);
    }
}

void writeGroup(TextWriter& file, const IDXEntry& group, std::span<const URLData* const> records) {
    std::string line;
    appendGroupLine(line, group);
    file.write(line);
    for (const URLData* record : records) {
        line.clear();
        appendEntryLine(line, *record);
        file.write(line);
    }
}

// The stack file becomes the backup; the backup before it makes room for it.
void keepAsBackup(const std::string& file, const std::string& backup) {
    const auto rename = [&] { renameFile(file, backup); };
    ResumeNextNoting(
        [&](const Failure& failed) {
            if (failed.number != failure::fileExists) return;
            ResumeNext([&] { deleteFile(backup); }, rename);
        },
        rename);
}

}  // namespace

bool ReadStackFile(const std::string& path, bool merge) {
    const Hourglass wait;
    if (merge) {
        ++urlsDirty;
    } else {
        emptyStore();
    }
    std::optional<TextReader> file;
    ResumeNext([&] { file.emplace(path); });
    if (!file) return false;  // missing, or nothing that can be read: nobody is told
    readLines(*file);
    return true;
}

void WriteStackFile(const std::string& path) {
    TextWriter file(path);
    const std::int32_t groups = IDXList.uBound();
    const RecordsByGroup sorted(uBlock.URLDatas(), groups);
    for (std::int32_t i = 0; i < groups; ++i) writeGroup(file, IDXList[i], sorted.of(i));
    file.close();
    urlsDirty = 0;
}

void Populate() {
    ReadStackFile(stackPath + ".pns", false);
}

void DePopulate() {
    if (uBlock.URLDatas().Count() < 1) return;
    const Hourglass wait;
    const std::string file = stackPath + ".pns";
    ResumeNext([&] { keepAsBackup(file, stackPath + ".bak"); }, [&] { WriteStackFile(file); });
}

void shouldSaveUrls() {
    if (urlsDirty == 0) return;
    if (uBlock.URLDatas().Count() < 1 || IDXList.uBound() < 1) return;
    if (autoSaveURLs) DePopulate();
    urlsDirty = 0;
}

}  // namespace magpie
