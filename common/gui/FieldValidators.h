#pragma once

#include <QDoubleValidator>
#include <QIntValidator>

namespace quillon
{

// The validators of the program's number fields. They judge text in the C locale, so '.' is
// the decimal point under every user locale, and they refuse group separators: "1,000" would
// otherwise be typeable and be read as something other than what the field shows. A decimal
// field also refuses a number too large to convert, as it refuses one digit too many. The rule
// the command line applies (FieldValidation) is checked against these very objects.
QDoubleValidator* decimalFieldValidator(double bottom, double top, int decimals, QObject* owner);
QIntValidator* integerFieldValidator(int bottom, int top, QObject* owner);

} // namespace quillon
