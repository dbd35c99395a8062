#include "sine/gui/SineOverviewWindow.h"

#include "common/core/CFormat.h"
#include "common/gui/PlotOverviewTexts.h"
#include "inspect/engine/SineReference.h"
#include "sine/engine/SineEngine.h"
#include "sine/gui/SineOpenGLScene.h"

#include <QTextBrowser>
#include <cmath>

SineOverviewWindow::SineOverviewWindow(const QString& title, const SineOpenGLScene* scene)
    : HelpTextWindow(title, overviewText(scene->getX())), scene(scene)
{
}

double SineOverviewWindow::libraryArgumentError(int degrees)
{
    // Only the two sines are wanted; the series part of the reference is cut at one term.
    const SineReference reference = sineReference(degrees, sineDegreesToRadians(degrees), 1.0f, 1);
    MpfrNumber difference(kReferenceBits);
    mpfr_sub(difference.get(), reference.argumentSine.get(), reference.trueSine.get(), MPFR_RNDN);
    return std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

QString SineOverviewWindow::overviewText(int degrees)
{
    const QString distance =
        QString::fromStdString(quillon::cformat("%.3e", libraryArgumentError(degrees)));
    return QStringLiteral(
               "What it shows: sin(X) for an angle of X whole degrees, worked out by the Taylor "
               "series x - x^3/3! + x^5/5! - ... in single precision in twelve ways (the angle "
               "used as it is or first reduced to 0..90 degrees; each term computed from scratch "
               "or from the one before; three ways of adding). Each curve is one way's partial "
               "sums plotted against the number of terms, and the \"C++ Math lib\" line runs "
               "across the plot at the library's value (when the curves show errors instead, "
               "that line sits at 0).\n"
               "\n"
               "Colours: the \"C++ Math lib\" line is black by default; every approach has its "
               "own colour, shown beside its name in the legend and in the Status window, and "
               "the Color map window changes them.\n"
               "\n"
               "\"C++ Math lib\" is not the true sine. It is worked out the way the series are: "
               "X degrees is first turned into radians in single precision (X * 3.141592502593994 "
               "/ 180 in double precision, rounded to single; the factor is one unit in the last "
               "place below single-precision pi). The math library's sin() is then evaluated in "
               "double precision of that single-precision radian argument, and the result is "
               "stored in single precision. For X = %1 the sine of that argument lies %2 from "
               "the true sine of %1 degrees; the final rounding to single precision adds at most "
               "half a unit in its last place.\n"
               "\n")
               .arg(degrees)
               .arg(distance) +
           referenceLinesOverview() + QStringLiteral("\n") + animationKeysOverview();
}

void SineOverviewWindow::refresh()
{
    browser()->setPlainText(overviewText(scene->getX()));
}

void SineOverviewWindow::showEvent(QShowEvent* event)
{
    refresh();
    HelpTextWindow::showEvent(event);
}
