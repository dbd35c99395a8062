#include "roots/engine/RootsFieldRule.h"

#include "common/core/FieldValidation.h"

bool isAcceptableFieldText(const std::string& text, const RootsFieldRange& range)
{
    return quillon::validateDecimalField(text, range.bottom, range.top, range.decimals) ==
           quillon::FieldState::Acceptable;
}
