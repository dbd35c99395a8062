// The pentagon tab's configuration file reader (point size, line width and seven colours).
#include "fuzz/ColorFileRoundTrip.h"
#include "pentagon/engine/PentagonFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PentagonColorSettings elsewhere;
    elsewhere.colors.fill({-7, -7, -7});
    elsewhere.lineWidth = -7;
    elsewhere.pointSize = -7;
    checkConfigurationRoundTrip(inputText(data, size), PentagonColorSettings{}, elsewhere,
                                readPentagonConfiguration, pentagonConfigurationText);
    return 0;
}
