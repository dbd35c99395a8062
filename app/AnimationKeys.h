#pragma once

#include "app/MenuTable.h"

#include <QObject>
#include <array>
#include <functional>

class QAbstractButton;
class QKeyEvent;
class QTabWidget;
class QWidget;

// The buttons of one tab that the animation keys press; a tab without a button leaves that
// key without effect there.
struct AnimationButtons {
    QAbstractButton* startPause = nullptr;
    QAbstractButton* faster = nullptr;
    QAbstractButton* slower = nullptr;
    // Whether startPause is the animation's button right now; empty: always.
    std::function<bool()> startPauseDrivesAnimation;
};

// The keyboard's way to the current tab's animation, an addition: Space presses the button
// that starts, pauses or resumes it, "+" and "-" the faster and slower buttons. Each key
// clicks the very button, so texts, enabled states and the timer change exactly as a click
// changes them, and a disabled button does nothing. Keys typed into a text field stay text.
class AnimationKeys : public QObject
{
    Q_OBJECT

public:
    // Watches the key presses that reach `window` (the ones no widget in it used) and acts
    // on the tab `tabs` shows.
    AnimationKeys(QWidget* window, const QTabWidget* tabs,
                  std::array<AnimationButtons, TabCount> buttonsByTab);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool handleKey(const QKeyEvent& key);
    QAbstractButton* buttonForKey(const QKeyEvent& key) const;
    bool focusIsInTextField() const;

    QWidget* window;
    const QTabWidget* tabs;
    std::array<AnimationButtons, TabCount> buttonsByTab;
};
