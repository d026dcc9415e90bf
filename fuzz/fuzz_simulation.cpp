#include "leserproben.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Anzahl) {
    varnok::fuzz::pruefe_Simulation({Bytes, Bytes + Anzahl});
    return 0;
}
