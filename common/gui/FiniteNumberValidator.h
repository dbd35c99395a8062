#pragma once

#include <QValidator>

namespace quillon
{

// Refuses text that reads as infinity or NaN ("inf", "nan", "1e39" for a float), which would
// leave a plot without a range. Any other text is acceptable: what is no number at all reads
// as 0, as the plots' fields always have.
class FiniteNumberValidator : public QValidator
{
    Q_OBJECT

public:
    explicit FiniteNumberValidator(QObject* owner);

    State validate(QString& input, int& position) const override;
};

} // namespace quillon
