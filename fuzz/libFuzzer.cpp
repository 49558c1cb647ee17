#include "KTFuzz.h"

#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *, char ***);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    KTFuzz::setUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    KTFuzz::KT_FUZZ_TARGET(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
