#include "core/CFormat.h"

#include <clocale>
#include <cstdarg>
#include <cstdio>
#include <locale.h>
#include <vector>

namespace quillon
{
namespace
{

locale_t cLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return locale;
}

// Switches the calling thread to the C locale for the lifetime of the object.
class CLocaleScope
{
public:
    CLocaleScope() : previous(uselocale(cLocale())) {}
    ~CLocaleScope() { uselocale(previous); }
    CLocaleScope(const CLocaleScope&) = delete;
    CLocaleScope& operator=(const CLocaleScope&) = delete;

private:
    locale_t previous;
};

} // namespace

std::string cformat(const char* format, ...)
{
    CLocaleScope scope;
    va_list args;
    va_start(args, format);
    va_list measureArgs;
    va_copy(measureArgs, args);
    const int length = std::vsnprintf(nullptr, 0, format, measureArgs);
    va_end(measureArgs);
    if (length <= 0) {
        va_end(args);
        return std::string();
    }
    std::vector<char> buffer(static_cast<size_t>(length) + 1);
    std::vsnprintf(buffer.data(), buffer.size(), format, args);
    va_end(args);
    return std::string(buffer.data(), static_cast<size_t>(length));
}

} // namespace quillon
