#pragma once

#include "roots/engine/RootsGrid.h"

// What the Roots page shows at the left of each grid row: a caption, a typeset formula (one of
// the program's images), or a caption followed by a formula. The page and its picture both
// take their headings from here.
struct RootsRowHeading {
    const char* text = nullptr;
    const char* image = nullptr;
};

// The headings of the seven rows, in display order.
inline constexpr RootsRowHeading kRootsRowHeadings[kRootsRowCount] = {
    {nullptr, "b2.png"},
    {nullptr, "4ac.png"},
    {"sqrt(b^2- 4ac)", "b2-4ac.png"},
    {"Large Root", nullptr},
    {"Calculated", "ax2+bx+c=.png"},
    {"Small Root", nullptr},
    {"Calculated", "ax2+bx+c=.png"}};

// The heading above the row headings, beside the column headings.
inline constexpr const char* kRootsCornerHeading = "Solution";

// The equation above the page's inputs.
inline constexpr const char* kRootsEquationImage = "ax2+bx+c=0.png";
