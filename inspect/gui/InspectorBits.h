#pragma once

#include <QString>
#include <QWidget>

// The bits of one value drawn as boxes, coloured by field: sign, exponent, significand.
class InspectorBits : public QWidget
{
    Q_OBJECT

public:
    explicit InspectorBits(QWidget* parent = nullptr);

    // `pattern` holds every bit, most significant first; the sign is one bit and the
    // exponent `exponentBits` bits.
    void showBits(const QString& pattern, int exponentBits);
    const QString& bits() const { return pattern; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString pattern;
    int exponentBits = 0;
};
