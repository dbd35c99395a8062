#include "common/gui/CheckBoxStyle.h"

#include "common/picture/ImageLookup.h"

namespace quillon
{

QString checkBoxStyleSheet()
{
    return QStringLiteral("QCheckBox::indicator{width: 20px;height: 20px;} "
                          "QCheckBox::indicator:checked {image: url(%1);}"
                          "QCheckBox::indicator:unchecked {image: url(%2);}")
        .arg(imagePath(QStringLiteral("c.png")), imagePath(QStringLiteral("u.png")));
}

} // namespace quillon
