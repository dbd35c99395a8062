#include "tests/assoc/AssoTestSupport.h"

#include "tests/support/TestFiles.h"

std::string assoGolden(const std::string& name)
{
    return readTestFile(std::string(QUILLON_TEST_DATA_DIR) + "/" + name);
}

AssoSequences computed(float r, float x0, int n)
{
    AssoSequences sequences;
    computeSequences(r, x0, n, sequences);
    return sequences;
}
