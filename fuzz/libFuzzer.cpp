#include "KTFuzz.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerInitialize(int *, char ***);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    KTFuzz::setUp();
    // Each question once, so that no run pays for the tables.
    std::string input("?<catalogue><article/></catalogue>");
    for (int question = 0; question < 256; ++question) {
        input.front() = static_cast<char>(question);
        KTFuzz::KT_FUZZ_TARGET({input.data(), input.data() + input.size()});
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto *const begin = reinterpret_cast<const char *>(data);
    KTFuzz::KT_FUZZ_TARGET({begin, begin + size});
    return 0;
}
