#include "platform/memory/driver_line.h"

#include "platform/memory/libraries.h"
#include "platform/memory/refuse.h"

namespace win::memory::driver {
namespace {

auto libraryCalled(std::string_view file) {
    const auto found = systemLibraries().find(file);
    if (found == systemLibraries().end()) refuse("driver: no library", file);
    return found;
}

}  // namespace

void setDialUp(std::vector<DialUp> connections) {
    line().dialUp = std::move(connections);
}

void setOnline(bool online) {
    line().online = online;
}

const LineQuestions& lineQuestions() {
    return line().asked;
}

std::shared_ptr<void> takeLibraryAway(std::string_view file) {
    const auto found = libraryCalled(file);
    auto taken = std::make_shared<Libraries::node_type>(systemLibraries().extract(found));
    return {nullptr, [taken](void*) { systemLibraries().insert(std::move(*taken)); }};
}

std::shared_ptr<void> takeFunctionAway(std::string_view file, std::string_view function) {
    Functions& functions = libraryCalled(file)->second;
    const auto found = functions.find(function);
    if (found == functions.end()) refuse("driver: no function", function);
    auto taken = std::make_shared<Functions::node_type>(functions.extract(found));
    return {nullptr, [&functions, taken](void*) { functions.insert(std::move(*taken)); }};
}

}  // namespace win::memory::driver
