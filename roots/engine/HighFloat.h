#pragma once

#include <gmp.h>
#include <string>

// A 256-bit GMP floating-point value that owns its storage: initialised on construction,
// cleared on destruction, copied by value.
class HighFloat
{
public:
    static constexpr mp_bitcnt_t kPrecisionBits = 256;

    HighFloat();
    // Parses `decimal` in base 10; the literals this is used with are all valid numbers.
    explicit HighFloat(const char* decimal);
    HighFloat(const HighFloat& other);
    HighFloat& operator=(const HighFloat& other);
    ~HighFloat();

    mpf_ptr get() { return value; }
    mpf_srcptr get() const { return value; }

    // mpf_set_str in base 10: returns 0 when the whole text is a number, -1 otherwise, in
    // which case the value is left as it was.
    int parse(const std::string& decimal);

    // The value truncated to a double (mpf_get_d).
    double toDouble() const { return mpf_get_d(value); }

private:
    mpf_t value;
};
