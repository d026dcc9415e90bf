#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace varnok {

// A folder that is gone after the test.
class Probeordner {
public:
    Probeordner() {
        static int Nummer = 0;
        Wurzel_ = std::filesystem::temp_directory_path() /
                  ("varnok-extras-" + std::to_string(::getpid()) + "-" + std::to_string(Nummer++));
        std::filesystem::create_directories(Wurzel_);
    }
    ~Probeordner() { std::filesystem::remove_all(Wurzel_); }
    Probeordner(const Probeordner&) = delete;
    Probeordner& operator=(const Probeordner&) = delete;

    std::string Pfad(const std::string& Name = {}) const { return Name.empty() ? Wurzel_.string() : (Wurzel_ / Name).string(); }
    void schreibe(const std::string& Name, const std::string& Bytes) const {
        std::filesystem::create_directories((Wurzel_ / Name).parent_path());
        std::ofstream(Wurzel_ / Name, std::ios::binary) << Bytes;
    }

private:
    std::filesystem::path Wurzel_;
};

}  // namespace varnok
