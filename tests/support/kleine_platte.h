#pragma once

#include <sched.h>
#include <sys/mount.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

namespace varnok {

// A disk of a few bytes in the place of a folder, for this process alone, while the object lives. Needs the right to mount.
class Kleine_Platte {
public:
    Kleine_Platte(std::filesystem::path Ort, int Kilobytes) : Ort_(std::move(Ort)) {
        const std::string Groesse = "mode=0777,size=" + std::to_string(Kilobytes) + "k";
        steht_ = unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                 mount("none", Ort_.c_str(), "tmpfs", 0, Groesse.c_str()) == 0;
    }
    ~Kleine_Platte() {
        if (steht_) umount2(Ort_.c_str(), MNT_DETACH);
    }
    Kleine_Platte(const Kleine_Platte&) = delete;
    Kleine_Platte& operator=(const Kleine_Platte&) = delete;

    bool steht() const { return steht_; }
    // Takes what room is left.
    void fuelle() const {
        std::ofstream Strom(Ort_ / "filler", std::ios::binary | std::ios::app);
        while (Strom << std::string(512, 'x') << std::flush) continue;
    }

private:
    std::filesystem::path Ort_;
    bool steht_ = false;
};

}  // namespace varnok
