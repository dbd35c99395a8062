#include "common/core/FieldValidation.h"
#include "common/gui/FieldValidators.h"
#include "tests/support/QtFieldState.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QRandomGenerator>
#include <QtTest>
#include <memory>

using quillon::FieldState;

namespace
{

// Hand-picked texts around every rule, plus random strings over the characters that matter.
QStringList corpus()
{
    QStringList texts = {"",
                         "-",
                         "+",
                         ".",
                         "-.",
                         "0",
                         "00",
                         "-0",
                         "1",
                         "+3",
                         "007",
                         ".5",
                         "5.",
                         "1e3",
                         "1,5",
                         "1,000",
                         "1,000.5",
                         ",",
                         ",1",
                         "1,,0",
                         "12,34",
                         "1,234,567",
                         "1000,000",
                         "99999",
                         "99999.99",
                         "99999.999",
                         "100000",
                         "-99999.99",
                         "10000",
                         "-10000",
                         "10000.01",
                         "-10000.01",
                         " 1",
                         "1 ",
                         "3-",
                         "--3",
                         "inf",
                         "nan",
                         "0x1",
                         "1.5.",
                         "1.23",
                         "1.234",
                         "2.5",
                         "-2.5",
                         "123456789",
                         "1234567890",
                         "100000000",
                         "-100000000",
                         "0.000000001",
                         "0.0000000001",
                         "1,000,000",
                         "9999999999999999999999",
                         "-1,000.25",
                         "+1,000",
                         "1,000,",
                         "12,345",
                         "123,456.7",
                         "0,001",
                         "-,5",
                         "+-1",
                         "1.0000000001",
                         "249999.99999",
                         "0.00000001",
                         "99999999.999999999",
                         "-0.5",
                         QString(308, '9'),
                         QString(309, '9'),
                         QString(400, '1'),
                         "-" + QString(400, '1'),
                         "+" + QString(400, '1'),
                         QString(400, '1') + ".5",
                         QString(400, '0') + "1",
                         "0." + QString(400, '0')};
    QRandomGenerator random(12345);
    const QString alphabet = QStringLiteral("0123456789.,-+e ");
    for (int i = 0; i < 3000; ++i) {
        QString text;
        const int length = int(random.bounded(1, 12));
        for (int j = 0; j < length; ++j) {
            text += alphabet[int(random.bounded(alphabet.size()))];
        }
        texts << text;
    }
    return texts;
}

} // namespace

class FieldValidationTest : public QObject
{
    Q_OBJECT

private slots:
    void decimalFieldsJudgeLikeTheirValidators_data();
    void decimalFieldsJudgeLikeTheirValidators();
    void decimalFieldsRefuseNumbersTooLargeForADouble_data();
    void decimalFieldsRefuseNumbersTooLargeForADouble();
    void integerFieldsJudgeLikeTheirValidators_data();
    void integerFieldsJudgeLikeTheirValidators();
};

void FieldValidationTest::decimalFieldsJudgeLikeTheirValidators_data()
{
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<int>("decimals");
    QTest::newRow("roots a") << 1e-11 << 1e8 << 9;
    QTest::newRow("roots b and c") << -1e8 << 1e8 << 9;
    QTest::newRow("associative law R and X0") << -10000.0 << 10000.0 << 2;
}

void FieldValidationTest::decimalFieldsJudgeLikeTheirValidators()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(int, decimals);
    std::unique_ptr<QDoubleValidator> validator(
        quillon::decimalFieldValidator(bottom, top, decimals, nullptr));
    for (QString text : corpus()) {
        const FieldState ours =
            quillon::validateDecimalField(text.toStdString(), bottom, top, decimals);
        int position = 0;
        QVERIFY2(validator->validate(text, position) == qtFieldState(ours),
                 qPrintable(QStringLiteral("'%1'").arg(text)));
    }
}

void FieldValidationTest::decimalFieldsRefuseNumbersTooLargeForADouble_data()
{
    decimalFieldsJudgeLikeTheirValidators_data();
}

// Ten digits are already refused by every decimal field, so four hundred must be too, although
// no double holds their value; leading zeros keep a small number small.
void FieldValidationTest::decimalFieldsRefuseNumbersTooLargeForADouble()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(int, decimals);
    std::unique_ptr<QDoubleValidator> validator(
        quillon::decimalFieldValidator(bottom, top, decimals, nullptr));
    const QString ones(400, '1');
    for (QString text : {ones, "-" + ones, "+" + ones, ones + ".5", QString(309, '9'),
                         QStringLiteral("1234567890")}) {
        int position = 0;
        QVERIFY2(validator->validate(text, position) == QValidator::Invalid,
                 qPrintable(text.left(20)));
        QVERIFY2(quillon::validateDecimalField(text.toStdString(), bottom, top, decimals) ==
                     FieldState::Invalid,
                 qPrintable(text.left(20)));
    }
    QString smallNumber = QString(400, '0') + "1";
    int position = 0;
    QCOMPARE(validator->validate(smallNumber, position), QValidator::Acceptable);
    QCOMPARE(quillon::validateDecimalField(smallNumber.toStdString(), bottom, top, decimals),
             FieldState::Acceptable);
}

void FieldValidationTest::integerFieldsJudgeLikeTheirValidators_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::newRow("iterations") << 1 << 10000;
    QTest::newRow("signed") << -360 << 360;
}

void FieldValidationTest::integerFieldsJudgeLikeTheirValidators()
{
    QFETCH(int, bottom);
    QFETCH(int, top);
    std::unique_ptr<QIntValidator> validator(quillon::integerFieldValidator(bottom, top, nullptr));
    for (QString text : corpus()) {
        const FieldState ours = quillon::validateIntegerField(text.toStdString(), bottom, top);
        int position = 0;
        QVERIFY2(validator->validate(text, position) == qtFieldState(ours),
                 qPrintable(QStringLiteral("'%1'").arg(text)));
    }
}

QTEST_MAIN(FieldValidationTest)
#include "FieldValidationTest.moc"
