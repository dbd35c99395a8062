#pragma once

#include <string>

// The whole contents of tests/assoc/data/<name>.
std::string assoGolden(const std::string& name);
