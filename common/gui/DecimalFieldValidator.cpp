#include "common/gui/DecimalFieldValidator.h"

#include <cmath>

namespace quillon
{

DecimalFieldValidator::DecimalFieldValidator(double bottom, double top, int decimals,
                                             QObject* owner)
    : QDoubleValidator(bottom, top, decimals, owner)
{
}

QValidator::State DecimalFieldValidator::validate(QString& input, int& position) const
{
    const State state = QDoubleValidator::validate(input, position);
    if (state != Intermediate) {
        return state;
    }
    // The locale's conversion answers an infinity, and no success, exactly when the number
    // overflows; beyond every bound it has more whole digits than the field lets a user type.
    bool converted = false;
    const double value = locale().toDouble(input, &converted);
    return !converted && std::isinf(value) ? Invalid : Intermediate;
}

} // namespace quillon
