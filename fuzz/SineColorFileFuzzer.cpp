// The sine tab's colour configuration file reader.
#include "fuzz/ColorFileRoundTrip.h"
#include "sine/engine/SineFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    SineColors startingColors;
    startingColors.fill({0, 255, 0});
    SineColors elsewhere;
    elsewhere.fill({-7, -7, -7});
    checkConfigurationRoundTrip(inputText(data, size), startingColors, elsewhere, readSineColorFile,
                                sineColorFileText);
    return 0;
}
