#include "tests/conformance/test_folder.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <filesystem>

#include "platform/api/kernel32.h"
#else
#include "platform/memory/driver_system.h"
#endif

namespace {

// Each test has a folder of its own, so that tests may run beside each other.
std::string nameOfTest() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    return std::string("conformance ") + info->test_suite_name() + "." + info->name();
}

}  // namespace

std::string TestFolder::path(const std::string& name) const {
    return name.empty() ? path_ : path_ + "\\" + name;
}

#ifdef _WIN32

namespace {

void removeAll(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    if (!fs::exists(folder)) return;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
    }
    fs::remove_all(folder);
}

}  // namespace

TestFolder::TestFolder() : path_((std::filesystem::temp_directory_path() / nameOfTest()).string()) {
    removeAll(path_);
    std::filesystem::create_directories(path_);
}

TestFolder::~TestFolder() {
    removeAll(path_);
}

void TestFolder::makeFolder(const std::string& name) {
    std::filesystem::create_directory(path(name));
}

bool writesReadOnlyFiles() {
    // Wine's drive of the host, where only the superuser may read this file.
    win::HANDLE file =
        win::CreateFileA("Z:\\etc\\shadow", win::GENERIC_READ, win::FILE_SHARE_READ, nullptr,
                         win::OPEN_EXISTING, win::FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == win::INVALID_HANDLE_VALUE) return false;
    win::CloseHandle(file);
    return true;
}

#else

TestFolder::TestFolder() : path_("C:\\Temp\\" + nameOfTest()) {
    win::memory::driver::makeFolder(path_);
}

// The disk goes with the process.
TestFolder::~TestFolder() = default;

void TestFolder::makeFolder(const std::string& name) {
    win::memory::driver::makeFolder(path(name));
}

bool writesReadOnlyFiles() {
    return false;
}

#endif
