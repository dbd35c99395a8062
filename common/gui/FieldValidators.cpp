#include "common/gui/FieldValidators.h"

#include "common/gui/DecimalFieldValidator.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLocale>

namespace quillon
{
namespace
{

QLocale cLocaleWithoutGroups()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    return locale;
}

} // namespace

QDoubleValidator* decimalFieldValidator(double bottom, double top, int decimals, QObject* owner)
{
    auto* validator = new DecimalFieldValidator(bottom, top, decimals, owner);
    validator->setLocale(cLocaleWithoutGroups());
    validator->setNotation(QDoubleValidator::StandardNotation);
    return validator;
}

QIntValidator* integerFieldValidator(int bottom, int top, QObject* owner)
{
    auto* validator = new QIntValidator(bottom, top, owner);
    validator->setLocale(cLocaleWithoutGroups());
    return validator;
}

} // namespace quillon
