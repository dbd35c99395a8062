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

// The text of every cell, [row][variant].
using RootsGrid = std::array<std::array<std::string, kRootsVariantCount>, kRootsRowCount>;

// The agreement class of every row (see RootsSolver::classifyAgreement).
using RootsAgreements = std::array<int, kRootsRowCount>;
