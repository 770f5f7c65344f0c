#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace tessarin {

/// A temporary folder, removed at the end with everything in it.
class ScratchFolder {
public:
    ScratchFolder() { std::filesystem::create_directory(mPath); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() { std::filesystem::remove_all(mPath); }

    std::string File(const std::string& name) const { return (mPath / name).string(); }
    std::string Write(const std::string& name, const std::string& content) const {
        std::ofstream(File(name), std::ios::binary) << content;
        return File(name);
    }

private:
    std::filesystem::path mPath = std::filesystem::temp_directory_path() /
                                  ("tessarin-test-" + std::to_string(std::random_device{}()));
};

} // namespace tessarin
