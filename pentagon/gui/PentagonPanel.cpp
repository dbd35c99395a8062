#include "pentagon/gui/PentagonPanel.h"

#include "common/gui/PageChild.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using quillon::pageChild;

PentagonPanel PentagonPanel::find(QWidget* page)
{
    PentagonPanel panel;
    panel.in = pageChild<QPushButton>(page, QStringLiteral("pentagon_In"));
    panel.out = pageChild<QPushButton>(page, QStringLiteral("pentagon_Out"));
    panel.numIn = pageChild<QLabel>(page, QStringLiteral("pentagon_Num_in"));
    panel.numOut = pageChild<QLabel>(page, QStringLiteral("pentagon_Num_out"));
    panel.clear = pageChild<QPushButton>(page, QStringLiteral("pentagon_clean"));
    panel.animationCount = pageChild<QGroupBox>(page, QStringLiteral("pentagon_g_animation_count"));
    panel.sequentialOrder =
        pageChild<QRadioButton>(page, QStringLiteral("pentagon_sequentialOrder"));
    panel.alternativeOrder =
        pageChild<QRadioButton>(page, QStringLiteral("pentagon_alternativeOrder"));
    panel.epsilonGroup = pageChild<QGroupBox>(page, QStringLiteral("pentagon_g_epsilon"));
    for (size_t i = 0; i < panel.epsilons.size(); ++i) {
        panel.epsilons[i] =
            pageChild<QRadioButton>(page, QStringLiteral("pentagon_epsilon%1").arg(i + 1));
    }
    panel.start = pageChild<QPushButton>(page, QStringLiteral("pentagon_Default"));
    panel.userInput = pageChild<QRadioButton>(page, QStringLiteral("pentagon_userInput"));
    panel.animateInput = pageChild<QRadioButton>(page, QStringLiteral("pentagon_animateInput"));
    panel.autoInput = pageChild<QRadioButton>(page, QStringLiteral("pentagon_autoInput"));
    panel.animationPentagon =
        pageChild<QGroupBox>(page, QStringLiteral("pentagon_g_animation_pentagon"));
    panel.regular = pageChild<QRadioButton>(page, QStringLiteral("pentagon_animate_regular"));
    panel.defaultShape = pageChild<QRadioButton>(page, QStringLiteral("pentagon_animate_default"));
    const char* const items[] = {"pentagon_xvalues", "pentagon_yvalues", "pentagon_xaxis",
                                 "pentagon_yaxis"};
    for (size_t i = 0; i < panel.items.size(); ++i) {
        panel.items[i] = pageChild<QCheckBox>(page, QString::fromLatin1(items[i]));
    }
    panel.view = pageChild<QWidget>(page, QStringLiteral("pentagon_VisWindow"));
    return panel;
}
