#include "tests/support/TestFiles.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

std::string readTestFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "missing test file %s\n", path.c_str());
        std::abort();
    }
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}
