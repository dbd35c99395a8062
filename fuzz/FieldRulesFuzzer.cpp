// The command line accepts a number option exactly when the window's field would: the text
// goes through the command line's rules (FieldValidation, RootsFieldRule) and through the
// validators the fields really use (Qt's, as FieldValidators sets them up), for every number
// field of the program, and any difference in judgement stops the fuzzer.
#include "common/core/FieldValidation.h"
#include "common/gui/FieldValidators.h"
#include "fuzz/FuzzCheck.h"
#include "roots/engine/RootsFieldRule.h"
#include "tests/support/QtFieldState.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QString>
#include <iterator>
#include <memory>
#include <vector>

namespace
{

struct DecimalField {
    const char* name;
    double bottom;
    double top;
    int decimals;
    // The Roots command's rule for this field, which must say yes exactly to Acceptable.
    const RootsFieldRange* rootsRule;
};

struct IntegerField {
    const char* name;
    int bottom;
    int top;
};

// The ranges the program's fields are given (roots/gui/RootsPage, assoc/gui/AssoOpenGLScene,
// sine/gui/SineOpenGLScene).
constexpr DecimalField kDecimalFields[] = {
    {"roots a", kRootsAField.bottom, kRootsAField.top, kRootsAField.decimals, &kRootsAField},
    {"roots b and c", kRootsBCField.bottom, kRootsBCField.top, kRootsBCField.decimals,
     &kRootsBCField},
    {"associative law R and X0", -10000.0, 10000.0, 2, nullptr}};
constexpr IntegerField kIntegerFields[] = {{"iterations", 1, 10000},
                                           {"sine angle", -1000000, 1000000}};

const char* stateName(QValidator::State state)
{
    switch (state) {
    case QValidator::Invalid:
        return "Invalid";
    case QValidator::Intermediate:
        return "Intermediate";
    default:
        return "Acceptable";
    }
}

QValidator::State judgedByField(const QValidator& validator, QString text)
{
    int position = 0;
    return validator.validate(text, position);
}

void checkSameJudgement(const char* field, QValidator::State fieldState,
                        QValidator::State ruleState, const std::string& input)
{
    check(fieldState == ruleState,
          std::string(field) + ": the field says " + stateName(fieldState) +
              ", the command line's rule " + stateName(ruleState),
          input);
}

void checkDecimalField(const DecimalField& field, const QValidator& validator, const QString& text,
                       const std::string& input)
{
    const std::string bytes = text.toStdString();
    const QValidator::State fieldState = judgedByField(validator, text);
    checkSameJudgement(
        field.name, fieldState,
        qtFieldState(quillon::validateDecimalField(bytes, field.bottom, field.top, field.decimals)),
        input);
    if (field.rootsRule != nullptr) {
        check(isAcceptableFieldText(bytes, *field.rootsRule) ==
                  (fieldState == QValidator::Acceptable),
              std::string(field.name) + ": the field and the Roots command disagree on Enter",
              input);
    }
}

void checkIntegerField(const IntegerField& field, const QValidator& validator, const QString& text,
                       const std::string& input)
{
    checkSameJudgement(
        field.name, judgedByField(validator, text),
        qtFieldState(quillon::validateIntegerField(text.toStdString(), field.bottom, field.top)),
        input);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto decimalValidators = [] {
        std::vector<std::unique_ptr<QValidator>> made;
        for (const DecimalField& field : kDecimalFields) {
            made.emplace_back(
                quillon::decimalFieldValidator(field.bottom, field.top, field.decimals, nullptr));
        }
        return made;
    }();
    static const auto integerValidators = [] {
        std::vector<std::unique_ptr<QValidator>> made;
        for (const IntegerField& field : kIntegerFields) {
            made.emplace_back(quillon::integerFieldValidator(field.bottom, field.top, nullptr));
        }
        return made;
    }();

    const std::string input = inputText(data, size);
    // The command line gets its option as a QString from the arguments and hands the rules
    // its UTF-8 bytes, as the fuzzer does here.
    const QString text = QString::fromUtf8(input.data(), qsizetype(input.size()));
    for (size_t i = 0; i < std::size(kDecimalFields); ++i) {
        checkDecimalField(kDecimalFields[i], *decimalValidators[i], text, input);
    }
    for (size_t i = 0; i < std::size(kIntegerFields); ++i) {
        checkIntegerField(kIntegerFields[i], *integerValidators[i], text, input);
    }
    return 0;
}
