// TestFolder: a folder of the disk that is empty at the start of a test and gone at its
// end, on the desktop that the tests run on.
#pragma once

#include <string>

class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    // Full path of what is called `name` in the folder; of the folder itself without one.
    std::string path(const std::string& name = {}) const;

    void makeFolder(const std::string& name);

private:
    std::string path_;
};

// A known gap: Wine asks the host before it opens a read-only file for writing, and the
// host's superuser is never told no. True on such a desktop.
bool writesReadOnlyFiles();
