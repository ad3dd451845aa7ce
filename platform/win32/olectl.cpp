// olectl answered by Windows.
#include "platform/api/olectl.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "platform/win32/ole_session.h"
#include "platform/win32/variant.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ocidl.h>
// clang-format on

namespace win {

namespace {

const ::GUID& native(const CLSID& id) {
    return reinterpret_cast<const ::GUID&>(id);
}

// No message of the system's about a library that is none.
class QuietErrors {
public:
    QuietErrors() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
    ~QuietErrors() { ::SetThreadErrorMode(before_, nullptr); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    ::DWORD before_ = 0;
};

// On a drive, or on a share of another computer.
bool isFullPath(const char* path) {
    const bool drive = path[0] != '\0' && path[1] == ':' && path[2] == '\\';
    return drive || (path[0] == '\\' && path[1] == '\\');
}

// Whoever calls an object of the program's own is told of want of memory: nothing unwinds into
// another module.
template <class Routine>
::HRESULT guarded(Routine&& routine) noexcept {
    try {
        return routine();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

::HRESULT makeObject(::HMODULE library, const CLSID& classId, IDispatch** object) {
    auto* const getClass = reinterpret_cast<::LPFNGETCLASSOBJECT>(
        reinterpret_cast<void (*)()>(::GetProcAddress(library, "DllGetClassObject")));
    if (getClass == nullptr) return HRESULT_FROM_WIN32(ERROR_PROC_NOT_FOUND);
    ::IClassFactory* factory = nullptr;
    ::HRESULT result =
        getClass(native(classId), IID_IClassFactory, reinterpret_cast<void**>(&factory));
    if (FAILED(result)) return result;
    result = factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(object));
    factory->Release();
    return result;
}

class MemberTable final : public ::IDispatch {
public:
    explicit MemberTable(std::span<const DISPATCHMEMBER> members) : members_(members) {}
    virtual ~MemberTable() = default;

    // The events that it listens to as well.
    void listenTo(const ::IID& events) { events_ = events; }

    ::HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == events_;
        *object = known ? static_cast<::IDispatch*>(this) : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ::ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ::ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ::ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    ::HRESULT STDMETHODCALLTYPE GetTypeInfoCount(::UINT* count) noexcept override {
        *count = 0;
        return S_OK;
    }
    ::HRESULT STDMETHODCALLTYPE GetTypeInfo(::UINT, ::LCID, ::ITypeInfo** info) noexcept override {
        *info = nullptr;
        return E_NOTIMPL;
    }

    ::HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, ::LPOLESTR* names, ::UINT count, ::LCID,
                                              ::DISPID* ids) noexcept override {
        std::fill_n(ids, count, DISPID_UNKNOWN);
        return guarded([&] {
            for (const DISPATCHMEMBER& each : members_)
                if (::_wcsicmp(wide(each.name).c_str(), names[0]) == 0) ids[0] = each.id;
            return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
        });
    }

    ::HRESULT STDMETHODCALLTYPE Invoke(::DISPID id, REFIID, ::LCID, ::WORD kind,
                                       ::DISPPARAMS* handed, ::VARIANT* result, ::EXCEPINFO*,
                                       ::UINT*) noexcept override {
        const auto found = std::ranges::find_if(members_, [id, kind](const DISPATCHMEMBER& each) {
            return each.id == id && (each.kinds & kind) != 0;
        });
        if (found == members_.end()) return DISP_E_MEMBERNOTFOUND;
        return guarded([&] {
            Lent arguments;
            if (const ::HRESULT failed = arguments.read(*handed); FAILED(failed)) return failed;
            VARIANT answer;
            const ::HRESULT done = found->call(arguments.values, &answer);
            if (FAILED(done) || result == nullptr) return done;
            *result = Value(answer).release();
            return done;
        });
    }

private:
    // The arguments in the program's order and kinds, for the length of a call.
    struct Lent {
        std::vector<VARIANT> values;

        Lent() = default;
        ~Lent() {
            for (VARIANT& each : values)
                if (auto* const object = std::get_if<win::IDispatch*>(&each))
                    if (*object != nullptr) IDispatch_Release(*object);
        }
        Lent(const Lent&) = delete;
        Lent& operator=(const Lent&) = delete;

        ::HRESULT read(const ::DISPPARAMS& handed) {
            for (::UINT at = handed.cArgs; at-- > 0;) {
                Value value;
                ::HRESULT got = ::VariantCopyInd(value.get(), &handed.rgvarg[at]);
                if (SUCCEEDED(got)) got = value.read(values.emplace_back());
                if (FAILED(got)) return got;
            }
            return S_OK;
        }
    };

    std::span<const DISPATCHMEMBER> members_;
    ::IID events_ = IID_NULL;
    ::ULONG references_ = 1;
};

// Calls `act` with the object's point for these events.
template <class Act>
::HRESULT withPoint(IDispatch* source, const CLSID& events, Act act) {
    ::IConnectionPointContainer* container = nullptr;
    ::HRESULT result = reinterpret_cast<::IDispatch*>(source)->QueryInterface(
        IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
    if (FAILED(result)) return CONNECT_E_NOCONNECTION;
    ::IConnectionPoint* point = nullptr;
    result = container->FindConnectionPoint(native(events), &point);
    container->Release();
    if (FAILED(result)) return result;
    result = act(*point);
    point->Release();
    return result;
}

}  // namespace

HRESULT CoCreateInstanceFrom(const char* libraryPath, const CLSID& classId, IDispatch** object) {
    useOle();
    *object = nullptr;
    if (!isFullPath(libraryPath)) return HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND);
    const QuietErrors quiet;
    ::HMODULE library = ::LoadLibraryExA(libraryPath, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr) return HRESULT_FROM_WIN32(::GetLastError());
    const ::HRESULT made = makeObject(library, classId, object);
    // A library that is of no use is let go, so that a better one can be put in its place.
    if (FAILED(made)) ::FreeLibrary(library);
    return made;
}

IDispatch* CreateStdDispatch(std::span<const DISPATCHMEMBER> members) {
    return reinterpret_cast<IDispatch*>(static_cast<::IDispatch*>(new MemberTable(members)));
}

HRESULT IConnectionPoint_Advise(IDispatch* source, const CLSID& events, IDispatch* sink,
                                DWORD* cookie) {
    auto* const listener = static_cast<MemberTable*>(reinterpret_cast<::IDispatch*>(sink));
    listener->listenTo(native(events));
    return withPoint(source, events, [listener, cookie](::IConnectionPoint& point) {
        ::DWORD number = 0;
        const ::HRESULT result = point.Advise(listener, &number);
        *cookie = number;
        return result;
    });
}

HRESULT IConnectionPoint_Unadvise(IDispatch* source, const CLSID& events, DWORD cookie) {
    return withPoint(source, events,
                     [cookie](::IConnectionPoint& point) { return point.Unadvise(cookie); });
}

}  // namespace win
