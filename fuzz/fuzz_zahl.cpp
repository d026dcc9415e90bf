#include "leserproben.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Anzahl) {
    const std::string Eingang{Bytes, Bytes + Anzahl};
    varnok::fuzz::pruefe_Zahl(Eingang);
    varnok::fuzz::pruefe_Zeichen(Eingang);
    return 0;
}
