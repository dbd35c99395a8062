#include "roots/engine/HighFloat.h"

#include "common/core/CLocaleScope.h"

HighFloat::HighFloat()
{
    mpf_init2(value, kPrecisionBits);
}

HighFloat::HighFloat(const char* decimal) : HighFloat()
{
    parse(decimal);
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
    // GMP reads the decimal point of the C library's current locale; the texts are always
    // written with '.'.
    const quillon::CLocaleScope cLocale;
    return mpf_set_str(value, decimal.c_str(), 10);
}
