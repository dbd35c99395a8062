#pragma once

#include <string>

class RootsSolver;

// The nine-line text export of the current results: the single-precision coefficients, then
// every quantity of the naive single, cancellation-free single and double columns (the
// 256-bit column is not exported).
std::string rootsTextExport(const RootsSolver& solver);
