#pragma once

#include "common/picture/PictureFile.h"

#include <QCommandLineOption>
#include <QSize>
#include <QString>
#include <optional>
#include <vector>

class QCommandLineParser;

// What a command's picture options asked for: the files to draw, in the order PNG, SVG, their
// size in pixels and the view size their texts and lines are scaled from.
struct PictureRequest {
    struct File {
        QString path;
        quillon::PictureFormat format;
    };
    std::vector<File> files;
    QSize size;
    QSize referenceView;

    bool empty() const { return files.empty(); }
};

// The options every module command that draws its tab's view shares: --png FILE and
// --svg FILE (the option names the format, whatever the file's suffix) and --size WxH, by
// default the tab's view in the default window (`referenceView`).
class PictureOptions
{
public:
    explicit PictureOptions(QSize referenceView);

    void addTo(QCommandLineParser& parser) const;

    // The options' lines for a command's --help, their descriptions starting at `column` so
    // that they line up with the command's own options.
    QString help(int column) const;

    // Reads the options of a parsed `parser` into `request`. Returns the one-line reason why
    // they cannot be used (an empty file name, a size that is not WxH within the limits), or
    // nothing.
    std::optional<QString> read(const QCommandLineParser& parser, PictureRequest& request) const;

private:
    QSize reference;
    QCommandLineOption png;
    QCommandLineOption svg;
    QCommandLineOption size;
};
