#pragma once

#include "common/core/FieldValidation.h"

#include <QValidator>

// The judgement of the command line's field rules in the terms of Qt's validators, so that
// the two can be compared directly.
QValidator::State qtFieldState(quillon::FieldState state);
