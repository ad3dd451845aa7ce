// The import of other browsers' bookmarks: the companion library reads them and hands them over
// by its events.
#include <cstdint>
#include <memory>
#include <string>

#include "config/companion.h"
#include "config/companion_host.h"
#include "config/library_member.h"
#include "config/pienest.h"
#include "core/state.h"
#include "entries/imported_entries.h"
#include "mainwindow/form3.h"
#include "platform/runtime/word.h"
#include "tray/form1.h"

namespace magpie {

namespace {

// An import that the main window has let go of has nobody to hear of it any more.
template <class Routine>
win::HRESULT heard(Routine routine) {
    return answered([&routine] {
        if (!Form3.mb) throw Failure{failure::objectNotSet};
        routine();
    });
}

win::HRESULT newGroup(LibraryArguments arguments, win::VARIANT*) {
    return heard([=] { mb_NewGroup(argument<std::string>(arguments, 0)); });
}

win::HRESULT bungURL(LibraryArguments arguments, win::VARIANT*) {
    return heard([=] {
        mb_BungURL(argument<std::string>(arguments, 0), argument<std::string>(arguments, 1));
    });
}

win::HRESULT storeLastRootOwner(LibraryArguments, win::VARIANT*) {
    return answered(mb_storeLastRootOwner);
}

constexpr win::DISPATCHMEMBER mbEvents[] = {
    {"NewGroup", pienest::newGroup, win::DISPATCH_METHOD, newGroup},
    {"BungURL", pienest::bungURL, win::DISPATCH_METHOD, bungURL},
    {"storeLastRootOwner", pienest::storeLastRootOwner, win::DISPATCH_METHOD, storeLastRootOwner},
};

// The object, heard of its events. The main window has it as its own as long as it is there; the
// call itself returns when the library is through with it.
class Import {
public:
    Import() { Form3.mb = object_; }
    ~Import() { Form3.mb.reset(); }
    Import(const Import&) = delete;
    Import& operator=(const Import&) = delete;

    const AutomationObject& mb() const { return *object_; }

private:
    std::shared_ptr<AutomationObject> object_ =
        std::make_shared<AutomationObject>(newLibraryObject(pienest::mb));
    EventListener listener_{*object_, pienest::mbEvents, mbEvents};
};

}  // namespace

void importFavorites() {
    const Import import;
    const LibraryDialog dialog;
    const auto window = reinterpret_cast<std::intptr_t>(Form1.hWnd());
    import.mb().call("ImportFavorites", {std::int64_t { window }});
}

// The interface is not held here, other than by the dialogs that the library shows.
void importNetscape() {
    const Import import;
    const AutomationObject host = hostObject(Form3);
    import.mb().put("Host", host.lend());
    import.mb().call("ImportNetscape", {std::int64_t { wordTrue }});
}

void mb_storeLastRootOwner() {
    if (!Form3.mb) return;
    const Checked<std::int32_t> last = Checked<std::int32_t>(IDXList.uBound()) - 1;
    const auto mb = Form3.mb;  // held during the call
    mb->call("lastRootOwner", {std::int64_t{last.value()}});
}

}  // namespace magpie
