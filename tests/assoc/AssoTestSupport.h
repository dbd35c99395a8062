#pragma once

#include "assoc/engine/AssoRecurrence.h"

#include <string>

// The whole contents of tests/assoc/data/<name>.
std::string assoGolden(const std::string& name);

// The five sequences for growth rate r, start x0 and n iterations.
AssoSequences computed(float r, float x0, int n);
