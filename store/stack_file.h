// Stack file: the whole store in one text file, the groups in order and below each one the
// bookmarks that belong to it. The store in memory is the truth between loading and saving; the
// file is opened, used and closed within one routine.
#pragma once

#include <string>

namespace magpie {

// Reads a stack file line by line and lets pending window events run after each line. A line that
// fails is passed over. Without `merge` the store, the rows of the list in view and the unsaved
// changes go first, whether or not the file can be read then; with it the groups and records of
// the file come behind those present, and the store counts as changed. The screens are not
// rebuilt.
//
// True when the file was read to its end; false, in silence, when it is missing or cannot be
// opened. Raises Failure 6, with nothing done, when a merge finds urlsDirty at 32,767.
bool ReadStackFile(const std::string& path, bool merge);

// Writes the store over the file and leaves no unsaved changes. A record whose Owner is not the
// position of a group is left out. Raises the file's failures and, for a date that has no
// spelling, Failure 13; the file then ends where the failure was met, and urlsDirty stays.
void WriteStackFile(const std::string& path);

// Reads the default stack file in place of the store.
void Populate();

// Saves the default stack file; the one that stood there becomes the backup, and the backup
// before it is gone. A store without records is not saved at all. Failures are passed over: the
// backup is the surviving copy then, and urlsDirty stays.
void DePopulate();

// The save at closing: a changed store that has records and groups is saved if the settings say
// so, and counts as unchanged afterwards in any case.
void shouldSaveUrls();

}  // namespace magpie
