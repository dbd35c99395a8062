// The associative-law tab's colour configuration file reader.
#include "assoc/engine/AssoFiles.h"
#include "fuzz/ColorFileRoundTrip.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const AssoColors startingColors{
        {{128, 0, 128}, {0, 128, 128}, {255, 69, 0}, {128, 128, 0}, {0, 255, 0}}};
    AssoColors elsewhere;
    elsewhere.fill({-7, -7, -7});
    checkConfigurationRoundTrip(inputText(data, size), startingColors, elsewhere, readAssoColorFile,
                                assoColorFileText);
    return 0;
}
