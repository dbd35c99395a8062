#include "tests/support/QtFieldState.h"

QValidator::State qtFieldState(quillon::FieldState state)
{
    switch (state) {
    case quillon::FieldState::Invalid:
        return QValidator::Invalid;
    case quillon::FieldState::Intermediate:
        return QValidator::Intermediate;
    default:
        return QValidator::Acceptable;
    }
}
