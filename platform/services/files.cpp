#include "platform/services/files.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/api/kernel32.h"
#include "platform/runtime/failure.h"

namespace magpie {

namespace {

constexpr int deviceError = 57;
constexpr std::size_t chunkSize = 64 * 1024;

int failureOf(win::DWORD error) {
    switch (error) {
        case win::ERROR_FILE_NOT_FOUND: return failure::fileNotFound;
        case win::ERROR_PATH_NOT_FOUND: return failure::pathNotFound;
        case win::ERROR_ACCESS_DENIED: return failure::pathAccess;
        case win::ERROR_SHARING_VIOLATION: return failure::permissionDenied;
        case win::ERROR_FILE_EXISTS:
        case win::ERROR_ALREADY_EXISTS: return failure::fileExists;
        case win::ERROR_DISK_FULL: return failure::diskFull;
        case win::ERROR_INVALID_NAME:
        case win::ERROR_FILENAME_EXCED_RANGE: return failure::badFileName;
        default: return deviceError;
    }
}

[[noreturn]] void raiseLastError() {
    throw Failure{failureOf(win::GetLastError())};
}

win::HANDLE openFile(const std::string& path, win::DWORD access, win::DWORD disposition) {
    const win::HANDLE file = win::CreateFileA(path.c_str(), access, win::FILE_SHARE_READ, nullptr,
                                              disposition, win::FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == win::INVALID_HANDLE_VALUE) raiseLastError();
    return file;
}

bool beginsWithDrive(const std::string& path) {
    const char letter = path.empty() ? '\0' : static_cast<char>(path[0] & ~0x20);
    return letter >= 'A' && letter <= 'Z' && path.find(':') == 1;
}

// Behind the drive a colon is part of no name: it would write into a stream that hangs, out of
// sight, on another file.
const std::string& withoutStream(const std::string& path) {
    if (path.find(':', beginsWithDrive(path) ? 2 : 0) != std::string::npos)
        throw Failure{failure::badFileName};
    return path;
}

}  // namespace

bool fileExists(const std::string& path) {
    const win::DWORD attributes = win::GetFileAttributesA(path.c_str());
    return attributes != win::INVALID_FILE_ATTRIBUTES &&
           (attributes & win::FILE_ATTRIBUTE_DIRECTORY) == 0;
}

void renameFile(const std::string& from, const std::string& to) {
    if (!win::MoveFileA(from.c_str(), to.c_str())) raiseLastError();
}

void deleteFile(const std::string& path) {
    if (!win::DeleteFileA(path.c_str())) raiseLastError();
}

void makeFolder(const std::string& path) {
    if (win::CreateDirectoryA(withoutStream(path).c_str(), nullptr)) return;
    if (win::GetLastError() == win::ERROR_ALREADY_EXISTS) throw Failure{failure::pathAccess};
    raiseLastError();
}

TextReader::TextReader(const std::string& path)
    : file_(openFile(path, win::GENERIC_READ, win::OPEN_EXISTING)) {}

TextReader::~TextReader() {
    win::CloseHandle(file_);
}

// Reads another chunk behind what is left. False at the end of the file.
bool TextReader::fill() {
    if (fileEnded_) return false;
    buffer_.erase(0, start_);
    start_ = 0;
    const std::size_t kept = buffer_.size();
    buffer_.resize(kept + std::max(chunkSize, kept));
    win::DWORD read = 0;
    const std::span<char> room(buffer_.data() + kept, buffer_.size() - kept);
    const bool ok = win::ReadFile(file_, room, &read, nullptr) != 0;
    buffer_.resize(ok ? kept + read : 0);
    fileEnded_ = !ok || read == 0;
    if (!ok) raiseLastError();
    lineFeed_ = start_;
    return read > 0;
}

bool TextReader::atEnd() {
    return start_ == buffer_.size() && !fill();
}

// Length of the line at start_, up to the end of what is in the buffer when no line end
// is. The line feed is remembered, so that a file of bare carriage returns is not
// searched for it again at each line.
std::size_t TextReader::lineLength() {
    const char* const data = buffer_.data();
    if (lineFeed_ <= start_) {
        const void* found = std::memchr(data + start_, '\n', buffer_.size() - start_);
        lineFeed_ = found == nullptr
                        ? buffer_.size()
                        : static_cast<std::size_t>(static_cast<const char*>(found) - data);
    }
    const void* found = std::memchr(data + start_, '\r', lineFeed_ - start_);
    if (found == nullptr) return lineFeed_ - start_;
    return static_cast<std::size_t>(static_cast<const char*>(found) - data) - start_;
}

// Whether the end of the line is in the buffer. A CR in the last byte may be half of one.
bool TextReader::hasWholeEnd(std::size_t length) const {
    const std::size_t end = start_ + length;
    return end < buffer_.size() && (buffer_[end] == '\n' || end + 1 < buffer_.size());
}

std::string_view TextReader::readLine() {
    if (atEnd()) throw Failure{failure::inputPastEnd};
    std::size_t length = lineLength();
    while (!hasWholeEnd(length) && fill()) length = lineLength();
    const std::string_view line(buffer_.data() + start_, length);
    skipLineEnd(length);
    return line;
}

void TextReader::skipLineEnd(std::size_t length) {
    start_ += length;
    if (start_ < buffer_.size() && buffer_[start_] == '\r') ++start_;
    // An LF behind a CR belongs to it; an LF without one stands here itself.
    if (start_ < buffer_.size() && buffer_[start_] == '\n') ++start_;
}

TextWriter::TextWriter(const std::string& path)
    : file_(openFile(withoutStream(path), win::GENERIC_WRITE, win::CREATE_ALWAYS)) {
    buffer_.reserve(chunkSize + 1024);
}

TextWriter::~TextWriter() {
    if (file_ == nullptr) return;
    try {
        close();
    } catch (const Failure&) {
        // Whoever abandoned the writer has a failure to tell already.
    }
}

void TextWriter::write(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= chunkSize) flush();
}

void TextWriter::writeLine(std::string_view text) {
    buffer_ += text;
    write("\r\n");
}

void TextWriter::flush() {
    win::DWORD written = 0;
    const bool ok = win::WriteFile(file_, buffer_, &written, nullptr) != 0;
    const bool whole = written == buffer_.size();
    buffer_.clear();
    if (!ok) raiseLastError();
    if (!whole) throw Failure{failure::diskFull};
}

void TextWriter::close() {
    struct Closing {
        win::HANDLE& file;
        ~Closing() { win::CloseHandle(std::exchange(file, nullptr)); }
    } const closing{file_};
    if (!buffer_.empty()) flush();
}

}  // namespace magpie
