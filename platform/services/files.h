// Files: whole-file operations and text streams. Text is bytes; nothing is converted.
//
// Failures are raised by number: 52 a name that can't be one or is too long, 53 no such file, 57
// the device fails, 58 the file already exists, 61 the disk is full, 70 another program holds the
// file, 75 no right to it (a folder, a read-only file), 76 no such folder.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/api/types.h"

namespace magpie {

// True for a file; a folder is none.
bool fileExists(const std::string& path);

// Never replaces: a target that exists raises 58.
void renameFile(const std::string& from, const std::string& to);

void deleteFile(const std::string& path);

// Raises 75 when something of that name is there already.
void makeFolder(const std::string& path);

// A file open for reading, line by line. A line ends at CR LF, at LF or at CR alone;
// the last one needs no end. A NUL is a byte like any other.
class TextReader {
public:
    explicit TextReader(const std::string& path);
    ~TextReader();
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    // True when no line is left. Raises 57 when the file can't be read on; the reader is
    // at its end then.
    bool atEnd();

    // The next line without its end, good until the next call. Raises 62 at the end, and
    // 57 as atEnd.
    std::string_view readLine();

private:
    bool fill();
    std::size_t lineLength();
    bool hasWholeEnd(std::size_t length) const;
    void skipLineEnd(std::size_t length);

    win::HANDLE file_;
    std::string buffer_;  // what was read and not yet handed out, from start_ on
    std::size_t start_ = 0;
    std::size_t lineFeed_ = 0;  // the first LF at or behind start_, or the buffer's end
    bool fileEnded_ = false;
};

// A file being written, over whatever stood there. What was written stays written when
// the writer is abandoned.
class TextWriter {
public:
    explicit TextWriter(const std::string& path);
    ~TextWriter();
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void write(std::string_view text);
    // Adds CR LF.
    void writeLine(std::string_view text);

    // Writes what is left and closes the file.
    void close();

private:
    void flush();

    win::HANDLE file_;
    std::string buffer_;
};

}  // namespace magpie
