#pragma once

#include <QString>

// How an argument the user gave is repeated in an error line: at most kShownArgumentLength
// characters of it, then "..." when it was longer, so that a 100,000-digit number gives a
// line one can read; and any control character (a line break, a tab) as '?', so that the
// error stays one line.
constexpr int kShownArgumentLength = 60;

QString shownArgument(const QString& argument);
