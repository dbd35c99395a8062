#pragma once

#include <QImage>
#include <QString>

namespace quillon
{

// Finds one of the program's images by its file name: a file of that name in the working
// directory takes precedence (so a user can swap in their own), otherwise the copy embedded
// in the program is used, so the program works from any working directory.
QString imagePath(const QString& fileName);

// The image at imagePath(fileName), as that file was when it was first loaded; a null image
// when neither copy exists.
QImage loadImage(const QString& fileName);

} // namespace quillon
