#include "common/gui/GroupBoxStyle.h"

namespace quillon
{

QString groupBoxStyleSheet()
{
    // A box with a title ("[title]" matches a non-empty one) starts its border half a line
    // down, so that the title sits on it, and pads its contents below the title. Untitled
    // boxes, such as the bands inside a titled box that this sheet also reaches, keep no room.
    return QStringLiteral(
        "QGroupBox{border:2px solid black}"
        " QGroupBox[title]{margin-top: 0.7em; padding-top: 0.7em}"
        " QGroupBox::title{subcontrol-origin: margin; subcontrol-position: top left; left: 8px;"
        " padding: 0 3px; background-color: palette(window)}");
}

} // namespace quillon
