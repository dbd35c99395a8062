#include "roots/picture/RootsGridPicture.h"

#include "common/picture/ImageLookup.h"
#include "common/picture/QtColor.h"
#include "roots/engine/RootsCellColors.h"
#include "roots/picture/RootsGridLayout.h"
#include "roots/picture/RootsRowHeading.h"

#include <QPen>

namespace
{

// Formula images are scaled to this many times their place's size once, smoothly, so that a
// picture drawn larger than its view still shows smooth formulas.
constexpr int kImageDetail = 2;

class RootsPictureBuilder
{
public:
    RootsPictureBuilder(const RootsSolver& solver, QSize viewSize, const RootsCellInks* shownInks);

    quillon::PlotPicture build();

private:
    void addEquation();
    void addBands();
    void addGridLines();
    void addHeadings();
    void addCells();
    void addText(const QString& text, const QFont& font, const QColor& color, const QRectF& box,
                 int flags);
    void addImage(const char* name, const QRectF& target);

    const RootsSolver& solver;
    const RootsCellInks* shownInks;
    RootsGrid texts;
    std::array<QString, 3> coefficients;
    RootsGridLayout layout;
    quillon::PlotPicture picture;
};

QStringList allCellTexts(const RootsGrid& texts)
{
    QStringList all;
    for (const auto& row : texts) {
        for (const std::string& text : row) {
            all << QString::fromStdString(text);
        }
    }
    return all;
}

std::array<QString, 3> coefficientTexts(const RootsSolver& solver)
{
    const std::array<std::string, 3> values = solver.singleCopyTexts();
    return {QStringLiteral("a = ") + QString::fromStdString(values[0]),
            QStringLiteral("b = ") + QString::fromStdString(values[1]),
            QStringLiteral("c = ") + QString::fromStdString(values[2])};
}

RootsPictureBuilder::RootsPictureBuilder(const RootsSolver& solver, QSize viewSize,
                                         const RootsCellInks* shownInks)
    : solver(solver), shownInks(shownInks), texts(solver.showResults()),
      coefficients(coefficientTexts(solver)), layout(viewSize, allCellTexts(texts), coefficients)
{
    picture.size = viewSize;
}

quillon::PlotPicture RootsPictureBuilder::build()
{
    addEquation();
    addBands();
    addGridLines();
    addHeadings();
    addCells();
    return std::move(picture);
}

void RootsPictureBuilder::addText(const QString& text, const QFont& font, const QColor& color,
                                  const QRectF& box, int flags)
{
    picture.overlay.emplace_back(quillon::PlotBoxText{text, font, color, box, flags});
}

void RootsPictureBuilder::addImage(const char* name, const QRectF& target)
{
    const QImage image = quillon::loadImage(QString::fromLatin1(name));
    if (image.isNull() || target.isEmpty()) {
        return;
    }
    const QSize detailed = (target.size() * kImageDetail).toSize();
    picture.overlay.emplace_back(quillon::PlotImage{
        target, image.scaled(detailed, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)});
}

void RootsPictureBuilder::addEquation()
{
    addImage(kRootsEquationImage, layout.equationFormula());
    for (size_t i = 0; i < coefficients.size(); ++i) {
        addText(coefficients[i], layout.equationFont(), Qt::black, layout.coefficientBox(int(i)),
                Qt::AlignLeft | Qt::AlignVCenter);
    }
}

// The rows' banded backgrounds, cell by cell; the column headings stay on white.
void RootsPictureBuilder::addBands()
{
    for (int row = 0; row < kRootsRowCount; ++row) {
        const QColor background = quillon::toQColor(rootsRowBackground(RootsRow(row)));
        for (int column = 0; column < RootsGridLayout::kColumnCount; ++column) {
            picture.overlay.emplace_back(
                quillon::PlotFill{layout.cell(row + 1, column), background});
        }
    }
}

void RootsPictureBuilder::addGridLines()
{
    const QRectF grid = layout.grid();
    quillon::PlotLines lines;
    lines.pen = QPen(Qt::black, layout.lineWidth());
    for (int band = 1; band < RootsGridLayout::kBandCount; ++band) {
        const qreal y = layout.cell(band, 0).top();
        lines.lines.emplace_back(grid.left(), y, grid.right(), y);
    }
    for (int column = 1; column < RootsGridLayout::kColumnCount; ++column) {
        const qreal x = layout.cell(0, column).left();
        lines.lines.emplace_back(x, grid.top(), x, grid.bottom());
    }
    picture.overlay.emplace_back(std::move(lines));
    picture.overlay.emplace_back(quillon::PlotOutline{grid, QPen(Qt::black, layout.lineWidth())});
}

void RootsPictureBuilder::addHeadings()
{
    const QFont font = layout.cellFont();
    addText(QString::fromLatin1(kRootsCornerHeading), font, Qt::black, layout.cell(0, 0),
            Qt::AlignCenter);
    for (int variant = 0; variant < kRootsVariantCount; ++variant) {
        addText(QString::fromLatin1(kRootsColumnHeadings[variant]), font, Qt::black,
                layout.cell(0, variant + 1), Qt::AlignCenter);
    }
    for (int row = 0; row < kRootsRowCount; ++row) {
        const RootsRowHeading& heading = kRootsRowHeadings[row];
        if (heading.text != nullptr) {
            const int flags =
                heading.image != nullptr ? Qt::AlignRight | Qt::AlignVCenter : int(Qt::AlignCenter);
            addText(QString::fromLatin1(heading.text), font, Qt::black,
                    layout.rowCaption(RootsRow(row)), flags);
        }
        if (heading.image != nullptr) {
            addImage(heading.image, layout.rowFormula(RootsRow(row)));
        }
    }
}

// Each cell's text in its ink: the page's, or the highlight colour of its row's agreement class
// in the three compared columns, black where the class leaves the colour alone and in the
// 256-bit column.
void RootsPictureBuilder::addCells()
{
    const RootsAgreements agreements = solver.classifyRows();
    const QFont font = layout.cellFont();
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            QColor ink = Qt::black;
            if (shownInks != nullptr) {
                ink = (*shownInks)[row][variant];
            } else if (variant < 3) {
                ink = quillon::toQColor(
                    rootsCellInk(agreements[row], variant).value_or(quillon::ColorTriple{0, 0, 0}));
            }
            addText(QString::fromStdString(texts[row][variant]), font, ink,
                    layout.cell(row + 1, variant + 1), Qt::AlignCenter);
        }
    }
}

} // namespace

quillon::PlotPicture rootsGridPicture(const RootsSolver& solver, QSize viewSize,
                                      const RootsCellInks* shownInks)
{
    return RootsPictureBuilder(solver, viewSize, shownInks).build();
}
