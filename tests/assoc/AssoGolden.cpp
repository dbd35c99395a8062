#include "AssoGolden.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

std::string assoGolden(const std::string& name)
{
    std::ifstream in(std::string(QUILLON_TEST_DATA_DIR) + "/" + name, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "missing golden file %s\n", name.c_str());
        std::abort();
    }
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}
