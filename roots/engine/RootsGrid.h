#pragma once

#include <array>
#include <string>

// The rows of the roots grid, in display order.
enum RootsRow {
    RowB2,
    RowFourAC,
    RowSqrtD,
    RowLargeRoot,
    RowLargeResult,
    RowSmallRoot,
    RowSmallResult,
    kRootsRowCount
};

// The columns: naive single, cancellation-free single, naive double, naive 256-bit.
constexpr int kRootsVariantCount = 4;

// The rows' quantities and the columns' headings, as the command line and the inspector name
// them.
inline constexpr const char* kRootsRowNames[kRootsRowCount] = {"b^2",
                                                               "4ac",
                                                               "sqrt(b^2 - 4ac)",
                                                               "large root",
                                                               "a*x1^2 + b*x1 + c",
                                                               "small root",
                                                               "a*x2^2 + b*x2 + c"};
inline constexpr const char* kRootsVariantNames[kRootsVariantCount] = {
    "Naive Single P.", "Cancellation Single P.", "Naive Double P.", "Naive High P."};
// The columns' headings as the grid shows them, each on two lines.
inline constexpr const char* kRootsColumnHeadings[kRootsVariantCount] = {
    "Naive\nSingle P.", "Cancellation\nSingle P.", "Naive\nDouble P.", "Naive\nHigh P."};
// The widest text a cell can show: "%.12e" of a negative number with a three-digit exponent.
inline constexpr const char* kRootsWidestCellText = "-1.234567890123e-100";

// The text of every cell, [row][variant].
using RootsGrid = std::array<std::array<std::string, kRootsVariantCount>, kRootsRowCount>;

// The agreement class of every row (see RootsSolver::classifyAgreement).
using RootsAgreements = std::array<int, kRootsRowCount>;
