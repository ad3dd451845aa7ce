// Portable disk: the folders and files of the machine that measures, where it is not Windows.
#pragma once

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "companion/import/folder_files.h"

namespace magpie::bench {

class PortableDisk : public FolderFiles {
public:
    bool list(const std::string& path, std::vector<FolderEntry>& entries) override {
        std::error_code failed;
        for (const auto& each : std::filesystem::directory_iterator(path, failed)) {
            entries.push_back({each.path().filename().string(), each.is_directory(failed)});
        }
        return !failed;
    }

    std::optional<std::string> identity(const std::string& path) override {
        std::error_code failed;
        const std::filesystem::path real = std::filesystem::canonical(path, failed);
        if (failed) return std::nullopt;
        return real.string();
    }

    bool read(const std::string& path, std::size_t limit, std::string& bytes) override {
        constexpr std::size_t chunk = 64 * 1024;
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                                   std::fclose);
        if (!file) return false;
        std::setbuf(file.get(), nullptr);
        bytes.clear();
        char buffer[chunk];
        std::size_t count = 0;
        do {
            count = std::fread(buffer, 1, std::min(chunk, limit - bytes.size()), file.get());
            bytes.append(buffer, count);
        } while (count == chunk);
        return true;
    }

    [[nodiscard]] std::string inFolder(const std::string& path,
                                       const std::string& name) const override {
        return path + "/" + name;
    }
};

}  // namespace magpie::bench
