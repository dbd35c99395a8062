#include "HighFloat.h"

HighFloat::HighFloat()
{
    mpf_init2(value, kPrecisionBits);
}

HighFloat::HighFloat(const char* decimal) : HighFloat()
{
    mpf_set_str(value, decimal, 10);
}

HighFloat::HighFloat(const HighFloat& other) : HighFloat()
{
    mpf_set(value, other.value);
}

HighFloat& HighFloat::operator=(const HighFloat& other)
{
    mpf_set(value, other.value);
    return *this;
}

HighFloat::~HighFloat()
{
    mpf_clear(value);
}

int HighFloat::parse(const std::string& decimal)
{
    return mpf_set_str(value, decimal.c_str(), 10);
}
