#pragma once

#include <locale.h>

namespace quillon
{

// Switches the calling thread to the C locale for the lifetime of the object. The application
// object switches the C library to the user's locale at start-up, and C library routines (and
// the libraries built on them, such as GMP's decimal parser) then read and write numbers with
// that locale's decimal point; inside this scope they always use '.'.
class CLocaleScope
{
public:
    CLocaleScope();
    ~CLocaleScope();
    CLocaleScope(const CLocaleScope&) = delete;
    CLocaleScope& operator=(const CLocaleScope&) = delete;

private:
    locale_t previous;
};

} // namespace quillon
