#include "common/core/CLocaleScope.h"

namespace quillon
{
namespace
{

locale_t cLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return locale;
}

} // namespace

CLocaleScope::CLocaleScope() : previous(uselocale(cLocale())) {}

CLocaleScope::~CLocaleScope()
{
    uselocale(previous);
}

} // namespace quillon
