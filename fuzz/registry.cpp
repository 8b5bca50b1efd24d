// What is read from a registry text is the same after it was written and read again.

#include "formats/reg_text.h"
#include "formats/registry_data.h"
#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    morpho::RegistryData first, second;
    morpho::ReadRegText(Text(data, size), first);
    const std::string written = morpho::WriteRegText(first);
    morpho::ReadRegText(written, second);
    Require(morpho::WriteRegText(second) == written, "A registry text does not keep its values.");
    return 0;
}
