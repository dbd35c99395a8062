#pragma once

#include <gmp.h>

// A GMP rational that owns its storage: initialised to 0, cleared when it goes.
class GmpRational
{
public:
    GmpRational() { mpq_init(value); }
    ~GmpRational() { mpq_clear(value); }
    GmpRational(const GmpRational&) = delete;
    GmpRational& operator=(const GmpRational&) = delete;

    mpq_ptr get() { return value; }
    mpq_srcptr get() const { return value; }

private:
    mpq_t value;
};
