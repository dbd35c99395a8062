#include "app/AnimationKeys.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextEdit>

namespace
{

// Whether `widget` takes typed text, so that Space, "+" and "-" belong to what is typed.
bool takesTextInput(const QWidget* widget)
{
    if (widget == nullptr) {
        return false;
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        return combo->isEditable();
    }
    return qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           qobject_cast<const QTextEdit*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           widget->testAttribute(Qt::WA_InputMethodEnabled);
}

// A key held with Ctrl, Alt or Meta is some shortcut's, never an animation key.
bool hasCommandModifier(const QKeyEvent& key)
{
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

} // namespace

AnimationKeys::AnimationKeys(QWidget* window, const QTabWidget* tabs,
                             std::array<AnimationButtons, TabCount> buttonsByTab)
    : QObject(window), window(window), tabs(tabs), buttonsByTab(std::move(buttonsByTab))
{
    window->installEventFilter(this);
}

// Only key presses that reach the window itself are looked at, that is the ones the focused
// widget and its parents left unused. A focused push button, check box or radio button uses
// Space itself (it presses that button, the keyboard's usual way to operate the control one
// has moved to), so Space there never reaches this filter: it toggles a focused check box as
// always and never acts twice, not even on the pause button itself.
bool AnimationKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window && event->type() == QEvent::KeyPress) {
        return handleKey(*static_cast<QKeyEvent*>(event));
    }
    return QObject::eventFilter(watched, event);
}

bool AnimationKeys::handleKey(const QKeyEvent& key)
{
    if (hasCommandModifier(key) || focusIsInTextField()) {
        return false;
    }
    QAbstractButton* button = buttonForKey(key);
    if (button == nullptr) {
        return false;
    }
    button->click();
    return true;
}

QAbstractButton* AnimationKeys::buttonForKey(const QKeyEvent& key) const
{
    const int tab = tabs->currentIndex();
    if (tab < 0 || tab >= TabCount) {
        return nullptr;
    }
    const AnimationButtons& buttons = buttonsByTab[tab];
    switch (key.key()) {
    case Qt::Key_Space: {
        // A held Space repeats; like a focused button, only the press itself counts.
        const bool drivesAnimation =
            !buttons.startPauseDrivesAnimation || buttons.startPauseDrivesAnimation();
        return key.isAutoRepeat() || !drivesAnimation ? nullptr : buttons.startPause;
    }
    case Qt::Key_Plus:
        return buttons.faster;
    case Qt::Key_Minus:
        return buttons.slower;
    default:
        return nullptr;
    }
}

// A text field's own parents may pass a key on (a read-only field does), so the focus is
// asked directly rather than trusted to have used the key.
bool AnimationKeys::focusIsInTextField() const
{
    return takesTextInput(window->focusWidget());
}
