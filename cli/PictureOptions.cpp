#include "cli/PictureOptions.h"

#include "cli/ArgumentText.h"

#include <QCommandLineParser>
#include <QStringList>
#include <utility>

namespace
{

// The help lines are at most this wide, as the commands' own lines are.
constexpr int kHelpWidth = 92;

// `text`'s words in lines of at most `width` characters (a longer word on a line of its own).
QStringList wrapped(const QString& text, int width)
{
    QStringList lines;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (!lines.isEmpty() && lines.last().size() + 1 + word.size() <= width) {
            lines.last() += QLatin1Char(' ') + word;
        } else {
            lines << word;
        }
    }
    return lines;
}

// One option's help: its name and value, then its description in lines that start at
// `column` (the first one on a line of its own when the name reaches the column).
QString optionHelp(const QString& option, const QString& description, int column)
{
    const QString indent(column, QLatin1Char(' '));
    QString head = QStringLiteral("  ") + option;
    head =
        head.size() + 2 > column ? head + QLatin1Char('\n') + indent : head.leftJustified(column);
    return head + wrapped(description, kHelpWidth - column).join(QLatin1Char('\n') + indent) +
           QLatin1Char('\n');
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

PictureOptions::PictureOptions(QSize referenceView)
    : reference(referenceView), png(QStringLiteral("png"), QString(), QStringLiteral("FILE")),
      svg(QStringLiteral("svg"), QString(), QStringLiteral("FILE")),
      size(QStringLiteral("size"), QString(), QStringLiteral("WxH"))
{
}

void PictureOptions::addTo(QCommandLineParser& parser) const
{
    parser.addOptions({png, svg, size});
}

QString PictureOptions::help(int column) const
{
    return optionHelp(QStringLiteral("--png FILE"),
                      QStringLiteral("Draw what the tab shows for these inputs (a plot once "
                                     "its animation has run to the end) into FILE, as a PNG "
                                     "picture."),
                      column) +
           optionHelp(QStringLiteral("--svg FILE"), QStringLiteral("Likewise, as an SVG picture."),
                      column) +
           optionHelp(QStringLiteral("--size WxH"),
                      QStringLiteral("The pictures' size in pixels, each side from %1 to %2. "
                                     "Default: %3, the view's size in the default window; a "
                                     "larger picture draws texts and lines larger.")
                          .arg(quillon::kMinPictureSide)
                          .arg(quillon::kMaxPictureSide)
                          .arg(sizeText(reference)),
                      column);
}

std::optional<QString> PictureOptions::read(const QCommandLineParser& parser,
                                            PictureRequest& request) const
{
    request = {{}, reference, reference};
    if (parser.isSet(size)) {
        const std::optional<QSize> pixels = quillon::parsePictureSize(parser.value(size));
        if (!pixels) {
            return QStringLiteral("--size '%1' is not a picture size (WxH, each side a whole "
                                  "number of pixels from %2 to %3)")
                .arg(shownArgument(parser.value(size)))
                .arg(quillon::kMinPictureSide)
                .arg(quillon::kMaxPictureSide);
        }
        request.size = *pixels;
    }
    const std::pair<const QCommandLineOption&, quillon::PictureFormat> formats[] = {
        {png, quillon::PictureFormat::Png}, {svg, quillon::PictureFormat::Svg}};
    for (const auto& [option, format] : formats) {
        if (!parser.isSet(option)) {
            continue;
        }
        if (parser.value(option).isEmpty()) {
            return QStringLiteral("--%1 needs a file name").arg(option.names().first());
        }
        request.files.push_back({parser.value(option), format});
    }
    return std::nullopt;
}
