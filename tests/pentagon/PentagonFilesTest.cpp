#include "pentagon/engine/PentagonFiles.h"

#include <gtest/gtest.h>

TEST(PentagonFiles, DefaultConfigurationText)
{
    EXPECT_EQ(pentagonConfigurationText(PentagonColorSettings{}), "Five point size 8 \n"
                                                                  "All line widthes 1 \n"
                                                                  "Point1 Color R 255 G 0 B 0\n"
                                                                  "Point2 Color R 255 G 165 B 0\n"
                                                                  "Point3 Color R 0 G 255 B 0\n"
                                                                  "Point4 Color R 0 G 0 B 255\n"
                                                                  "Point5 Color R 0 G 0 B 0\n"
                                                                  "Current Color R 255 G 0 B 0\n"
                                                                  "Initial Color R 0 G 0 B 255\n");
}

// All 23 values come back in their places, the two pentagon colours included; values outside
// 0..255 are taken as they are.
TEST(PentagonFiles, ConfigurationRoundTripKeepsAllTwentyThreeValues)
{
    PentagonColorSettings settings;
    for (size_t i = 0; i < settings.colors.size(); ++i) {
        const int32_t n = int32_t(i);
        settings.colors[i] = {n * 3 + 1, n * 3 + 2, n * 3 + 3};
    }
    settings.colors[6] = {-5, 300, 7};
    settings.lineWidth = 4;
    settings.pointSize = 13;
    PentagonColorSettings read;
    readPentagonConfiguration(pentagonConfigurationText(settings), read);
    EXPECT_EQ(read, settings);
    EXPECT_EQ(read.colors[5], (quillon::ColorTriple{16, 17, 18}));
    EXPECT_EQ(read.colors[6], (quillon::ColorTriple{-5, 300, 7}));
}

// Words are skipped whatever they say; a number that cannot be read, and everything after a
// file's end, keeps its value; CRLF line ends read like LF.
TEST(PentagonFiles, DamagedConfigurationChangesOnlyWhatItHolds)
{
    PentagonColorSettings read;
    readPentagonConfiguration("a b c 20\r\nx y z\r\nP C R 1 G 2 B 3\r\nP C R 4 G", read);
    PentagonColorSettings expected;
    expected.pointSize = 20;
    expected.colors[0] = {1, 2, 3};
    expected.colors[1] = {4, expected.colors[1].green, expected.colors[1].blue};
    EXPECT_EQ(read, expected);

    PentagonColorSettings untouched;
    readPentagonConfiguration(std::string(100000, 'z'), untouched);
    EXPECT_EQ(untouched, PentagonColorSettings{});
}
