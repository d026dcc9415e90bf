#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <utility>
#include <vector>

namespace varnok {

// Folders without the right to write while the object lives. Access rights bind nobody who is root, so the test gives that up for
// its time.
class Ohne_Schreibrecht {
public:
    explicit Ohne_Schreibrecht(std::vector<std::filesystem::path> Ordner) : Ordner_(std::move(Ordner)) {
        for (const auto& p : Ordner_) std::filesystem::permissions(p, std::filesystem::perms(0555));
        if (geteuid() == 0) entzogen_ = seteuid(65534) == 0;
    }
    ~Ohne_Schreibrecht() {
        if (entzogen_ && seteuid(0) != 0) ADD_FAILURE() << "the rights did not come back";
        for (const auto& p : Ordner_) std::filesystem::permissions(p, std::filesystem::perms::owner_all);
    }
    Ohne_Schreibrecht(const Ohne_Schreibrecht&) = delete;
    Ohne_Schreibrecht& operator=(const Ohne_Schreibrecht&) = delete;

private:
    std::vector<std::filesystem::path> Ordner_;
    bool entzogen_ = false;
};

}  // namespace varnok
