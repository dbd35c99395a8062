#pragma once

#include <QDoubleValidator>

namespace quillon
{

// A QDoubleValidator that also refuses a number too large for a double. Qt's own validator
// cannot convert such a text and then calls it Intermediate, so a field that refuses ten
// digits would take four hundred, and the button that reads the field would get an infinity.
// For every text a double can hold it judges exactly as QDoubleValidator does.
class DecimalFieldValidator : public QDoubleValidator
{
public:
    DecimalFieldValidator(double bottom, double top, int decimals, QObject* owner);

    State validate(QString& input, int& position) const override;
};

} // namespace quillon
