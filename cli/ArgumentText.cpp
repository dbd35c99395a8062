#include "cli/ArgumentText.h"

QString shownArgument(const QString& argument)
{
    QString shown = argument.left(kShownArgumentLength);
    // Never keep half of a character that takes two UTF-16 units.
    if (shown.size() < argument.size() && !shown.isEmpty() && shown.back().isHighSurrogate()) {
        shown.chop(1);
    }
    for (QChar& character : shown) {
        if (character.category() == QChar::Other_Control) {
            character = QLatin1Char('?');
        }
    }
    if (shown.size() < argument.size()) {
        shown += QStringLiteral("...");
    }
    return shown;
}
