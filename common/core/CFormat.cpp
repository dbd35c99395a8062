#include "common/core/CFormat.h"

#include "common/core/CLocaleScope.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

namespace quillon
{

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
