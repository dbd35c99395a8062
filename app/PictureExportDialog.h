#pragma once

#include <QDialog>
#include <QSize>
#include <QString>

class QButtonGroup;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

// Asks where to export a tab's picture and how large: the file (PNG or SVG, by its suffix)
// and the size, the view's own or a width and height in pixels (1920 x 1080 and 3840 x 2160
// offered). It accepts only a name with a picture suffix; anything else is said in the dialog,
// which stays open.
class PictureExportDialog : public QDialog
{
    Q_OBJECT

public:
    PictureExportDialog(QSize viewSize, QWidget* parent = nullptr);

    QString fileName() const;
    QSize pictureSize() const;

    void accept() override;

private:
    void browse();
    QRadioButton* addSizeChoice(const QString& text, int id);

    QSize viewSize;
    QLineEdit* file = nullptr;
    QButtonGroup* sizes = nullptr;
    QSpinBox* width = nullptr;
    QSpinBox* height = nullptr;
    QLabel* message = nullptr;
};
