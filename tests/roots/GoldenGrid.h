#pragma once

#include "roots/engine/RootsGrid.h"

#include <string>

// A roots grid as quillon-cli prints it: a header line, then per row its name, the four cell
// texts and the agreement class, tab-separated. Golden files in tests/roots/data use it.
struct GoldenGrid {
    RootsGrid texts;
    RootsAgreements agreements{};

    // Reads tests/roots/data/<name>; stops the test program when the file is unusable.
    static GoldenGrid load(const std::string& name);
};

// The whole contents of tests/roots/data/<name>.
std::string goldenFile(const std::string& name);
