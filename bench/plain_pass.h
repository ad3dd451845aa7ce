// Plain pass: the least that reading or writing a stack file can be, as the baseline of what the
// program takes. It goes to the same disk and knows nothing of records, groups or failures.
#pragma once

#include <string>
#include <vector>

namespace magpie::bench {

struct PlainEntry {
    std::string name;
    std::string url;
};

// What of an entry stands in its line.
struct PlainFields {
    std::string name;
    std::string url;
    double lastAccesed;
    double created;
    int visited;
    int catagory;
    int rated;
};

struct PlainGroup {
    std::string name;
    std::vector<PlainFields> entries;
};

void readWhole(const std::string& path, std::string& bytes);

// Reads the file's bytes, splits them at line ends and separators and copies name and address of
// each entry line.
void readPlainly(const std::string& path, std::vector<PlainEntry>& entries);

// Prints the fields of the lines into one buffer and writes that.
void writePlainly(const std::string& path, const std::vector<PlainGroup>& groups);

// What is in the store, for writePlainly.
std::vector<PlainGroup> plainCopyOfStore();

}  // namespace magpie::bench
