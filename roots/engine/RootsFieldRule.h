#pragma once

#include <string>

// The range and precision a coefficient field of the Roots tab accepts.
struct RootsFieldRange {
    double bottom;
    double top;
    int decimals;
};

constexpr RootsFieldRange kRootsAField{1e-11, 1e8, 9};
constexpr RootsFieldRange kRootsBCField{-1e8, 1e8, 9};

// Whether the field would accept `text` as finished input, the condition for Enter to read it:
// plain decimal notation in the C locale (an optional sign, digits without group separators,
// at most one '.', at most `decimals` digits after it, no exponent, no blanks), a value
// within bottom..top, and no minus sign when bottom is not negative.
bool isAcceptableFieldText(const std::string& text, const RootsFieldRange& range);
