#include "roots/gui/RootsPage.h"

#include "common/core/CFormat.h"
#include "common/core/SafeFileWriter.h"
#include "common/gui/ImageLookup.h"
#include "roots/engine/RootsCellColors.h"
#include "roots/engine/RootsFieldRule.h"
#include "roots/engine/RootsTextExport.h"

#include <QDoubleValidator>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

using quillon::cformat;

namespace
{

const char* const kRowGroupNames[] = {"roots_g_solution", "roots_g_b2", "roots_g_4ac",
                                      "roots_g_sqrt",     "roots_g_L",  "roots_g_LR",
                                      "roots_g_S",        "roots_g_SR"};
const char* const kRowHeadingNames[] = {"roots_solution",    "roots_b2_label",    "roots_ac_label",
                                        "roots_sqrt_label",  "roots_root1_label", "roots_result1",
                                        "roots_root2_label", "roots_result2"};
// %1 is the column, 1..4.
const char* const kCellNamePatterns[] = {
    "roots_solution%1_label", "roots_b2_label_%1", "roots_ac_label_%1",    "roots_sqrt_label_%1",
    "roots_root1_label_%1",   "roots_result1_%1",  "roots_root2_label_%1", "roots_result2_%1"};
const char* const kColumnHeadings[] = {"Naive\nSingle P.", "Cancellation\nSingle P.",
                                       "Naive\nDouble P.", "Naive\nHigh P."};
const char* const kGroupStyle = "QGroupBox{border:2px solid black}";

template <typename Widget> Widget* pageChild(QWidget* page, const QString& name)
{
    auto* widget = page->findChild<Widget*>(name);
    if (widget == nullptr) {
        qFatal("the Roots page has no widget named %s", qPrintable(name));
    }
    return widget;
}

QColor toQColor(const quillon::ColorTriple& color)
{
    return QColor(color.red, color.green, color.blue);
}

QDoubleValidator* fieldValidator(const RootsFieldRange& range, QObject* owner)
{
    auto* validator = new QDoubleValidator(range.bottom, range.top, range.decimals, owner);
    validator->setLocale(QLocale::c());
    validator->setNotation(QDoubleValidator::StandardNotation);
    return validator;
}

void fillWith(QWidget* widget, const QColor& background)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::All, QPalette::Window, background);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

QRect proportional(int width, int height, double x, double y, double w, double h)
{
    return QRect(int(width * x), int(height * y), int(width * w), int(height * h));
}

} // namespace

RootsPage::RootsPage(QWidget* page, std::FILE* trace) : page(page), rootsSolver(trace)
{
    findWidgets();
    stylePage();
    setUpInputs();
    showResults();
    highlightDifferences();
}

RootsPage::~RootsPage() = default;

void RootsPage::findWidgets()
{
    aValue = pageChild<QLineEdit>(page, QStringLiteral("roots_a_value"));
    bValue = pageChild<QLineEdit>(page, QStringLiteral("roots_b_value"));
    cValue = pageChild<QLineEdit>(page, QStringLiteral("roots_c_value"));
    for (int row = 0; row <= kRootsRowCount; ++row) {
        rowGroups[row] = pageChild<QGroupBox>(page, QString::fromLatin1(kRowGroupNames[row]));
        grid[row][0] = pageChild<QLabel>(page, QString::fromLatin1(kRowHeadingNames[row]));
        for (int column = 1; column <= kRootsVariantCount; ++column) {
            const QString name = QString::fromLatin1(kCellNamePatterns[row]).arg(column);
            grid[row][column] = pageChild<QLabel>(page, name);
        }
    }
}

void RootsPage::setUpInputs()
{
    writeBackSingleCopies();
    aValidator = fieldValidator(kRootsAField, page);
    bValidator = fieldValidator(kRootsBCField, page);
    cValidator = fieldValidator(kRootsBCField, page);
    aValue->setValidator(aValidator);
    bValue->setValidator(bValidator);
    cValue->setValidator(cValidator);
}

void RootsPage::stylePage()
{
    page->setFont(QFont(QStringLiteral("Arial")));
    for (const char* name : {"roots_inputGroup", "roots_outputGroup"}) {
        pageChild<QGroupBox>(page, QString::fromLatin1(name))->setStyleSheet(kGroupStyle);
    }
    for (int row = 0; row <= kRootsRowCount; ++row) {
        rowGroups[row]->setStyleSheet(kGroupStyle);
        for (QLabel* label : grid[row]) {
            label->setAlignment(Qt::AlignCenter);
        }
        if (row > 0) {
            fillWith(rowGroups[row], toQColor(rootsRowBackground(RootsRow(row - 1))));
        }
    }
    for (int column = 0; column < kRootsVariantCount; ++column) {
        grid[0][column + 1]->setText(QString::fromLatin1(kColumnHeadings[column]));
    }
    const auto showImage = [this](const char* labelName, const char* imageName) {
        pageChild<QLabel>(page, QString::fromLatin1(labelName))
            ->setPixmap(QPixmap(quillon::imagePath(QString::fromLatin1(imageName))));
    };
    showImage("roots_title", "ax2+bx+c=0.png");
    showImage("roots_b2_label", "b2.png");
    showImage("roots_ac_label", "4ac.png");
    showImage("roots_result1", "ax2+bx+c=.png");
    showImage("roots_result2", "ax2+bx+c=.png");
    pageChild<QLabel>(page, QStringLiteral("roots_title"))->setAlignment(Qt::AlignCenter);
}

void RootsPage::readA()
{
    if (rootsSolver.readA(aValue->text().toStdString())) {
        aValue->setText(QString::fromStdString(cformat("%f", 1e-11)));
    }
}

void RootsPage::updateA()
{
    readA();
    recomputeAndShow();
}

void RootsPage::updateB()
{
    rootsSolver.readB(bValue->text().toStdString());
    recomputeAndShow();
}

void RootsPage::updateC()
{
    rootsSolver.readC(cValue->text().toStdString());
    recomputeAndShow();
}

void RootsPage::calculate()
{
    readA();
    rootsSolver.readB(bValue->text().toStdString());
    rootsSolver.readC(cValue->text().toStdString());
    recomputeAndShow();
}

void RootsPage::recomputeAndShow()
{
    rootsSolver.recomputeAll();
    showResults();
    highlightDifferences();
}

void RootsPage::useExample(int number)
{
    rootsSolver.useExample(number);
    showResults();
    highlightDifferences();
    writeBackSingleCopies();
}

void RootsPage::writeBackSingleCopies()
{
    aValue->setText(QString::fromStdString(cformat("%f", double(rootsSolver.singleA()))));
    bValue->setText(QString::fromStdString(cformat("%f", double(rootsSolver.singleB()))));
    cValue->setText(QString::fromStdString(cformat("%f", double(rootsSolver.singleC()))));
}

void RootsPage::showResults()
{
    const RootsGrid texts = rootsSolver.showResults();
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            grid[row + 1][variant + 1]->setText(QString::fromStdString(texts[row][variant]));
        }
    }
}

void RootsPage::highlightDifferences()
{
    const RootsAgreements agreements = rootsSolver.classifyRows();
    for (int row = 0; row < kRootsRowCount; ++row) {
        const QColor background = toQColor(rootsRowBackground(RootsRow(row)));
        for (int variant = 0; variant < 3; ++variant) {
            const auto ink = rootsCellInk(agreements[row], variant);
            if (!ink) {
                continue;
            }
            QLabel* cell = grid[row + 1][variant + 1];
            QPalette palette = cell->palette();
            palette.setColor(QPalette::All, QPalette::WindowText, toQColor(*ink));
            cell->setPalette(palette);
            fillWith(cell, background);
        }
    }
    page->update();
}

QString RootsPage::saveTextData(const QString& fileName) const
{
    std::string error;
    if (!quillon::writeFileAtomically(fileName.toStdString(), rootsTextExport(rootsSolver),
                                      error)) {
        return QString::fromStdString(error);
    }
    return QString();
}

void RootsPage::layOut(int width, int height)
{
    const int margin = width / 50;
    const int innerWidth = width - 2 * margin;
    pageChild<QLabel>(page, QStringLiteral("roots_title"))
        ->setGeometry(margin, height / 100, innerWidth, height * 8 / 100);
    auto* input = pageChild<QGroupBox>(page, QStringLiteral("roots_inputGroup"));
    input->setGeometry(margin, height * 10 / 100, innerWidth, height * 13 / 100);
    auto* output = pageChild<QGroupBox>(page, QStringLiteral("roots_outputGroup"));
    output->setGeometry(margin, height * 25 / 100, innerWidth, height * 68 / 100);

    const int inputHeight = input->height();
    const char* inputRow[3][2] = {{"roots_a_label", "roots_a_value"},
                                  {"roots_b_label", "roots_b_value"},
                                  {"roots_c_label", "roots_c_value"}};
    for (int i = 0; i < 3; ++i) {
        const double left = 0.02 + i * 0.26;
        pageChild<QLabel>(page, QString::fromLatin1(inputRow[i][0]))
            ->setGeometry(proportional(innerWidth, inputHeight, left, 0.35, 0.04, 0.45));
        pageChild<QLineEdit>(page, QString::fromLatin1(inputRow[i][1]))
            ->setGeometry(proportional(innerWidth, inputHeight, left + 0.04, 0.35, 0.19, 0.45));
    }
    pageChild<QPushButton>(page, QStringLiteral("roots_calculate"))
        ->setGeometry(proportional(innerWidth, inputHeight, 0.81, 0.3, 0.16, 0.55));

    // Eight bands below the group's title: the column headings and the seven quantities.
    const int titleSpace = 22;
    const int bandPitch = (output->height() - titleSpace - 6) / (kRootsRowCount + 1);
    for (int row = 0; row <= kRootsRowCount; ++row) {
        QGroupBox* band = rowGroups[row];
        band->setGeometry(6, titleSpace + row * bandPitch, innerWidth - 12, bandPitch - 4);
        const int bandWidth = band->width();
        const int bandHeight = band->height();
        grid[row][0]->setGeometry(proportional(bandWidth, bandHeight, 0.01, 0.08, 0.18, 0.84));
        for (int column = 1; column <= kRootsVariantCount; ++column) {
            const double left = 0.20 + (column - 1) * 0.2;
            grid[row][column]->setGeometry(
                proportional(bandWidth, bandHeight, left, 0.08, 0.195, 0.84));
        }
    }
}
