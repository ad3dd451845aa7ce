#include "bench/plain_pass.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "core/state.h"
#include "platform/api/kernel32.h"
#include "store/records.h"
#include "store/stack_line.h"

namespace magpie::bench {

namespace {

constexpr std::size_t chunk = 64 * 1024;

win::HANDLE openFile(const std::string& path, win::DWORD access, win::DWORD disposition) {
    const win::HANDLE file = win::CreateFileA(path.c_str(), access, 0, nullptr, disposition,
                                              win::FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == win::INVALID_HANDLE_VALUE) std::abort();
    return file;
}

// The text from `from` to the next `byte`, which `from` then stands behind.
std::string_view cutAt(char byte, const char*& from, const char* end) {
    const auto left = static_cast<std::size_t>(end - from);
    const void* const found = left == 0 ? nullptr : std::memchr(from, byte, left);
    const char* const at = found == nullptr ? end : static_cast<const char*>(found);
    const std::string_view text(from, static_cast<std::size_t>(at - from));
    from = at == end ? end : at + 1;
    return text;
}

void readLine(std::string_view line, std::vector<PlainEntry>& entries) {
    std::array<std::string_view, 7> parts;
    std::size_t count = 0;
    const char* from = line.data();
    const char* const end = from + line.size();
    while (from != end && count < parts.size()) parts[count++] = cutAt(stackSeparator, from, end);
    if (count > 1) entries.push_back({std::string(parts[1]), std::string(parts[0])});
}

class Printer {
public:
    explicit Printer(std::size_t room) : text_(room, '\0') {}

    void put(std::string_view text) { at_ += text.copy(text_.data() + at_, text.size()); }
    void put(char byte) { text_[at_++] = byte; }
    void put(int number, int base) {
        char* const begin = text_.data() + at_;
        at_ += static_cast<std::size_t>(
            std::to_chars(begin, text_.data() + text_.size(), number, base).ptr - begin);
    }
    void putDate(double days) {
        const int day = static_cast<int>(days);
        if (day == 0) return put('0');
        put(day, 16);
        put(static_cast<int>((days - day) * 100000), 16);
    }

    std::string_view text() const { return {text_.data(), at_}; }

private:
    std::string text_;
    std::size_t at_ = 0;
};

void print(Printer& printer, const PlainFields& fields) {
    printer.put(fields.url);
    printer.put(stackSeparator);
    printer.put(fields.name);
    printer.put(stackSeparator);
    printer.putDate(fields.lastAccesed);
    printer.put(stackSeparator);
    printer.putDate(fields.created);
    for (const int number : {fields.visited, fields.catagory, fields.rated}) {
        printer.put(stackSeparator);
        printer.put(number, 10);
    }
    printer.put("\r\n");
}

std::size_t roomFor(const std::vector<PlainGroup>& groups) {
    constexpr std::size_t numbersOfALine = 64;
    std::size_t room = 0;
    for (const PlainGroup& group : groups) {
        room += group.name.size() + 3;
        for (const PlainFields& fields : group.entries) {
            room += fields.url.size() + fields.name.size() + numbersOfALine;
        }
    }
    return room;
}

}  // namespace

void readWhole(const std::string& path, std::string& bytes) {
    const win::HANDLE file = openFile(path, win::GENERIC_READ, win::OPEN_EXISTING);
    win::DWORD read = 0;
    do {
        const std::size_t size = bytes.size();
        bytes.resize(size + chunk);
        if (!win::ReadFile(file, {bytes.data() + size, chunk}, &read, nullptr)) std::abort();
        bytes.resize(size + read);
    } while (read != 0);
    win::CloseHandle(file);
}

void readPlainly(const std::string& path, std::vector<PlainEntry>& entries) {
    std::string bytes;
    readWhole(path, bytes);
    const char* from = bytes.data();
    const char* const end = from + bytes.size();
    while (from != end) readLine(cutAt('\n', from, end), entries);
}

void writePlainly(const std::string& path, const std::vector<PlainGroup>& groups) {
    Printer printer(roomFor(groups));
    for (const PlainGroup& group : groups) {
        printer.put('+');
        printer.put(group.name);
        printer.put("\r\n");
        for (const PlainFields& fields : group.entries) print(printer, fields);
    }
    const win::HANDLE file = openFile(path, win::GENERIC_WRITE, win::CREATE_ALWAYS);
    win::DWORD written = 0;
    if (!win::WriteFile(file, printer.text(), &written, nullptr)) std::abort();
    win::CloseHandle(file);
}

std::vector<PlainGroup> plainCopyOfStore() {
    std::vector<PlainGroup> groups;
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) groups.push_back({IDXList[i].Name, {}});
    for (const URLData& record : uBlock.URLDatas()) {
        groups[static_cast<std::size_t>(record.Owner)].entries.push_back(
            {record.Name(), record.URL(), record.LastAccesed.days, record.Created.days,
             record.Visited, record.Catagory, record.Rated});
    }
    return groups;
}

}  // namespace magpie::bench
