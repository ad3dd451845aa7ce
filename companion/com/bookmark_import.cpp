#include "companion/com/bookmark_import.h"

#include <string>

#include "Pienest.h"
#include "companion/com/dispatched.h"
#include "companion/com/event_source.h"
#include "companion/com/guarded.h"
#include "companion/com/host.h"
#include "companion/import/import.h"
#include "companion/import/windows/disk.h"
#include "companion/import/windows/platform_code_pages.h"
#include "companion/import/windows/wide_text.h"
#include "companion/resource_ids.h"
#include "platform/runtime/failure.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <commdlg.h>
#include <shlobj.h>
// clang-format on

namespace magpie {

namespace {

enum Event : DISPID { newGroup = 1, bungURL = 2, storeLastRootOwner = 3 };

// A text in the program's code page as the platform hands texts over.
class HandedText {
public:
    explicit HandedText(const std::string& bytes) {
        const int count = static_cast<int>(bytes.size());
        const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, nullptr, 0);
        text_ = SysAllocStringLen(nullptr, static_cast<UINT>(length));
        if (text_ == nullptr) throw std::bad_alloc();
        MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, text_, length);
    }
    ~HandedText() { SysFreeString(text_); }
    HandedText(const HandedText&) = delete;
    HandedText& operator=(const HandedText&) = delete;

    BSTR get() const { return text_; }

private:
    BSTR text_ = nullptr;
};

// The host has let go of the import: there is nobody left to tell of it.
struct Abandoned {};

// True when the host had room for it.
bool taken(HRESULT result) {
    constexpr auto objectNotSet = static_cast<HRESULT>(0x800A0000u | failure::objectNotSet);
    if (result == CONNECT_E_NOCONNECTION || result == objectNotSet) throw Abandoned{};
    return SUCCEEDED(result);
}

class EventSink final : public ImportSink {
public:
    explicit EventSink(EventSource& source) : source_(source) {}

    bool NewGroup(const std::string& name) override {
        const HandedText text(name);
        return taken(source_.raise(Event::newGroup, {text.get()}));
    }
    bool BungURL(const std::string& title, const std::string& url) override {
        const HandedText first(title);
        const HandedText second(url);
        return taken(source_.raise(Event::bungURL, {first.get(), second.get()}));
    }
    void storeLastRootOwner() override { source_.raise(Event::storeLastRootOwner, {}); }

private:
    EventSource& source_;
};

class WaitPointer {
public:
    WaitPointer() : before_(SetCursor(LoadCursorA(nullptr, IDC_WAIT))) {}
    ~WaitPointer() { SetCursor(before_); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;

private:
    HCURSOR before_;
};

// Over the window that the user came from, which the box is to hold; `given` where the user has
// turned to another program meanwhile.
void tell(HWND given, const std::string& report) {
    HWND active = GetActiveWindow();
    MessageBoxW(active != nullptr ? active : given, wideOf(report).c_str(),
                resourceText(IMPORT_TITLE).c_str(), MB_OK | MB_ICONINFORMATION | boxLevel());
}

// Empty where the user chose none.
std::wstring chosenBookmarkFile(HWND owner) {
    std::wstring filter = resourceText(IMPORT_FILTER);
    for (wchar_t& letter : filter)
        if (letter == L'|') letter = L'\0';
    const std::wstring title = resourceText(IMPORT_FILE_TITLE);
    std::wstring path(32768, L'\0');
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrTitle = title.c_str();
    dialog.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!GetOpenFileNameW(&dialog)) return {};
    return path.c_str();
}

class BookmarkImport final : public Dispatched<Imb, IID_Imb> {
public:
    HRESULT STDMETHODCALLTYPE put_Host(IDispatch* value) noexcept override {
        host_.reset(value);
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE ImportFavorites(LONG window) noexcept override {
        return guarded([this, window] {
            // Where there is no folder, that is said like any other that can't be read.
            wchar_t folder[MAX_PATH] = L"";
            SHGetSpecialFolderPathW(nullptr, folder, CSIDL_FAVORITES, FALSE);
            return import(reinterpret_cast<HWND>(static_cast<std::intptr_t>(window)),
                          [&folder](FolderFiles& files, ImportSink& sink) {
                              return importFavorites(files, utf8OfWide(folder), options(), sink);
                          });
        });
    }

    // The file is the user's choice whatever the flag says.
    HRESULT STDMETHODCALLTYPE ImportNetscape(VARIANT_BOOL) noexcept override {
        return guarded([this]() -> HRESULT {
            const HWND owner = host_.window();
            const std::wstring file = chosenBookmarkFile(owner);
            if (file.empty()) return S_OK;
            return import(owner, [&file](FolderFiles& files, ImportSink& sink) {
                return importBookmarkFile(files, utf8OfWide(file), options(), sink);
            });
        });
    }

    // Groups come by their names alone, so that nothing here goes by their numbers.
    HRESULT STDMETHODCALLTYPE lastRootOwner(LONG) noexcept override { return S_OK; }

protected:
    void* otherInterface(REFIID id) noexcept override { return events_.asContainer(id); }

private:
    static ImportOptions options() { return {programCodePage(), platformCodePages()}; }

    // A file is whatever the user has chosen: what it holds may be more than memory does.
    template <class Reading>
    HRESULT import(HWND owner, Reading reading) {
        try {
            tell(owner, reportOf(countsOf(reading)));
        } catch (const Abandoned&) {  // so there is nobody to tell either
        }
        return S_OK;
    }

    template <class Reading>
    ImportCounts countsOf(Reading reading) {
        Disk disk;
        EventSink sink(events_);
        const WaitPointer waiting;
        return reading(disk, sink);
    }

    Host host_;
    EventSource events_{*this, DIID_DmbEvents};
};

}  // namespace

IDispatch* newBookmarkImport() {
    return new BookmarkImport;
}

}  // namespace magpie
