#include "app/PictureExportDialog.h"

#include "app/NameOnlyFileIconProvider.h"
#include "common/core/CFormat.h"
#include "common/picture/PictureFile.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace
{

enum SizeChoice { ViewSize, FullHd, UltraHd, OwnSize };

constexpr QSize kFullHd(1920, 1080);
constexpr QSize kUltraHd(3840, 2160);

QString sizeText(QSize size)
{
    return QString::fromStdString(quillon::cformat("%d x %d", size.width(), size.height()));
}

QSpinBox* pixelField(int value, const QString& name)
{
    auto* field = new QSpinBox;
    field->setObjectName(name);
    field->setRange(quillon::kMinPictureSide, quillon::kMaxPictureSide);
    field->setValue(value);
    field->setSuffix(QStringLiteral(" px"));
    return field;
}

} // namespace

PictureExportDialog::PictureExportDialog(QSize viewSize, QWidget* parent)
    : QDialog(parent), viewSize(viewSize)
{
    setWindowTitle(tr("Export picture"));
    file = new QLineEdit;
    file->setObjectName(QStringLiteral("picture_file"));
    file->setPlaceholderText(tr("picture.png or picture.svg"));
    auto* browseButton = new QPushButton(tr("Browse ..."));
    browseButton->setObjectName(QStringLiteral("picture_browse"));
    connect(browseButton, &QPushButton::clicked, this, &PictureExportDialog::browse);
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(file);
    fileRow->addWidget(browseButton);

    sizes = new QButtonGroup(this);
    auto* sizeColumn = new QVBoxLayout;
    sizeColumn->addWidget(
        addSizeChoice(tr("The view's size (%1)").arg(sizeText(viewSize)), ViewSize));
    sizeColumn->addWidget(addSizeChoice(sizeText(kFullHd), FullHd));
    sizeColumn->addWidget(addSizeChoice(sizeText(kUltraHd), UltraHd));
    width = pixelField(kFullHd.width(), QStringLiteral("picture_width"));
    height = pixelField(kFullHd.height(), QStringLiteral("picture_height"));
    auto* ownRow = new QHBoxLayout;
    ownRow->addWidget(addSizeChoice(tr("Width and height:"), OwnSize));
    ownRow->addWidget(width);
    ownRow->addWidget(new QLabel(QStringLiteral("x")));
    ownRow->addWidget(height);
    ownRow->addStretch();
    sizeColumn->addLayout(ownRow);
    sizes->button(ViewSize)->setChecked(true);
    for (QSpinBox* field : {width, height}) {
        connect(field, &QSpinBox::valueChanged, this,
                [this] { sizes->button(OwnSize)->setChecked(true); });
    }

    message = new QLabel;
    message->setObjectName(QStringLiteral("picture_message"));
    message->setStyleSheet(QStringLiteral("color: red"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PictureExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PictureExportDialog::reject);

    auto* form = new QFormLayout;
    form->addRow(tr("File:"), fileRow);
    form->addRow(tr("Size:"), sizeColumn);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(message);
    layout->addWidget(buttons);
}

QRadioButton* PictureExportDialog::addSizeChoice(const QString& text, int id)
{
    auto* choice = new QRadioButton(text);
    choice->setObjectName(QStringLiteral("picture_size_%1").arg(id));
    sizes->addButton(choice, id);
    return choice;
}

QString PictureExportDialog::fileName() const
{
    return file->text();
}

QSize PictureExportDialog::pictureSize() const
{
    switch (sizes->checkedId()) {
    case FullHd:
        return kFullHd;
    case UltraHd:
        return kUltraHd;
    case OwnSize:
        return QSize(width->value(), height->value());
    default:
        return viewSize;
    }
}

void PictureExportDialog::accept()
{
    if (file->text().isEmpty() || !quillon::pictureFormatFor(file->text())) {
        message->setText(tr("Name the file with .png or .svg at its end."));
        return;
    }
    QDialog::accept();
}

// The program's save dialog, which tells files apart by name only and never reads one.
void PictureExportDialog::browse()
{
    NameOnlyFileIconProvider icons;
    QFileDialog dialog(this, tr("Export picture"), QDir::currentPath(),
                       tr("Pictures (*.png *.svg)"));
    dialog.setIconProvider(&icons);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        file->setText(dialog.selectedFiles().first());
    }
}
