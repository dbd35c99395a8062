#pragma once

#include "common/core/ColorTriple.h"
#include "pentagon/engine/PentagonEngine.h"

#include <array>
#include <string>

// The colours, line width and point size the Pentagon tab draws with.
struct PentagonColorSettings {
    // Point 1 .. Point 5 while entering, then the initial pentagon of the history, then the
    // newest one.
    std::array<quillon::ColorTriple, 7> colors{{{255, 0, 0},
                                                {255, 165, 0},
                                                {0, 255, 0},
                                                {0, 0, 255},
                                                {0, 0, 0},
                                                {255, 0, 0},
                                                {0, 0, 255}}};
    int lineWidth = 1;
    int pointSize = 8;

    friend bool operator==(const PentagonColorSettings& a, const PentagonColorSettings& b)
    {
        return a.colors == b.colors && a.lineWidth == b.lineWidth && a.pointSize == b.pointSize;
    }
};

// The configuration file: "Five point size %d \n", "All line widthes %d \n", then the seven
// colours as "Point1 Color R r G g B b" .. "Point5 ...", "Current Color ..." (the initial
// pentagon's colour) and "Initial Color ..." (the newest pentagon's).
std::string pentagonConfigurationText(const PentagonColorSettings& settings);

// Reads a configuration file's text: three words and the point size, three words and the
// line width, then the seven colour lines. Words are skipped, not compared; a number that
// cannot be read keeps its value.
void readPentagonConfiguration(const std::string& text, PentagonColorSettings& settings);

// The history export: a header "Point %d: X, Y; " for 0 .. 4, then per valid pentagon of the
// history its five points as "%e, %e; ".
std::string pentagonHistoryText(const PentagonEngine& engine);
