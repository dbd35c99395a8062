#include "common/gui/FiniteNumberValidator.h"

#include <cmath>

namespace quillon
{

FiniteNumberValidator::FiniteNumberValidator(QObject* owner) : QValidator(owner) {}

QValidator::State FiniteNumberValidator::validate(QString& input, int&) const
{
    return std::isfinite(input.toFloat()) ? Acceptable : Invalid;
}

} // namespace quillon
