#pragma once

#include <QString>

namespace quillon
{

// The style of the tool windows' check boxes: 20-pixel indicators showing the program's
// "c.png" (checked) and "u.png" (unchecked), found where imagePath() finds them.
QString checkBoxStyleSheet();

} // namespace quillon
