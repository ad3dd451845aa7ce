#include <functional>
#include <string>
#include <vector>

#include "platform/api/kernel32.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

struct Fault {
    std::string function;
    int callsLeft;
    DWORD error;
    std::function<void()> action;  // what happens instead of an error
};

std::vector<Fault>& faults() {
    static std::vector<Fault> armed;
    return armed;
}

}  // namespace

DWORD countedFault(std::string_view function) {
    DWORD error = 0;
    std::vector<std::function<void()>> actions;
    for (std::size_t at = 0; at < faults().size();) {
        Fault& fault = faults()[at];
        if (fault.function == function && --fault.callsLeft == 0) {
            error = fault.error;
            if (fault.action) actions.push_back(fault.action);
            faults().erase(faults().begin() + static_cast<std::ptrdiff_t>(at));
        } else {
            ++at;
        }
    }
    faultsArmed = !faults().empty();
    if (error) SetLastError(error);
    for (const auto& each : actions) each();
    return error;
}

void armFault(std::string_view function, int nth, DWORD error) {
    if (nth < 1 || error == 0) refuse("fault without a call or an error", function);
    faults().push_back({std::string(function), nth, error, {}});
    faultsArmed = true;
}

void armAction(std::string_view function, int nth, std::function<void()> action) {
    if (nth < 1) refuse("action without a call", function);
    faults().push_back({std::string(function), nth, 0, std::move(action)});
    faultsArmed = true;
}

int faultsLeft() {
    return static_cast<int>(faults().size());
}

}  // namespace win::memory
