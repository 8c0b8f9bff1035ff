// The window itself: keys of the computer keyboard, the places of its children, and what it asks.

#include "app/MainWnd.h"

#include "app/KeyboardWalk.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "screen/AbstractListWidget.h"
#include "screen/AlertWidget.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryView.h"

#include <QKeyEvent>

#include <functional>
#include <utility>

namespace {

constexpr int formWidth = 677;
constexpr int stageWidth = 952;
constexpr int stageHeight = 480;

bool isTouch(QEvent::Type type)
{
    return type == QEvent::TouchBegin || type == QEvent::TouchUpdate || type == QEvent::TouchEnd ||
           type == QEvent::TouchCancel;
}

/// The list that a mouse button concerns because a drag of its rows is under way; else null. Mouse events
/// come to a list's viewport.
AbstractListWidget* draggingList(QObject* object, QEvent::Type type)
{
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)
        return nullptr;
    auto* list = qobject_cast<AbstractListWidget*>(object);
    if (!list)
        list = qobject_cast<AbstractListWidget*>(object->parent());
    return list && list->isDragging() ? list : nullptr;
}

} // namespace

bool MainWnd::eventFilter(QObject* object, QEvent* event)
{
    if (isTouch(event->type())) {
        event->ignore();
        return true;
    }
    if (AbstractListWidget* list = draggingList(object, event->type())) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        list->dragButton(*mouse, mouse->localPos().toPoint());
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride)
        freshKey = true; // comes once or more before each press
    if (event->type() == QEvent::KeyPress && filterKeyPress(event))
        return true;
    return QDialog::eventFilter(object, event);
}

void MainWnd::createShortcuts()
{
    const auto add = [this](const char* keys, const std::function<void()>& action) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        connect(shortcut, &QShortcut::activated, this, [this, action] {
            if (!dialogOpen)
                action();
        });
    };
    add("Ctrl+R", [this] { headerController->resetAll(); });
    add("Ctrl+Left", [this] {
        if (powerItem->isSwitchOn())
            headerController->setActiveHeaderPrev();
    });
    add("Ctrl+Right", [this] {
        if (powerItem->isSwitchOn())
            headerController->setActiveHeaderNext();
    });
    add("Ctrl+M", [this] { openPorts(); });
    add("Ctrl+L", [this] { toggleLibrary(); });
    add("Ctrl+O", [this] { openDatabase(); });
    add("Ctrl+S", [this] { saveDatabase(); });
}

bool MainWnd::filterKeyPress(QEvent* event)
{
    if (QApplication::activeModalWidget())
        return false; // the file dialog is a window of its own, with text fields and buttons
    const auto* press = static_cast<QKeyEvent*>(event);
    const int key = press->key();
    const bool inDialog = dialogOpen;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        keyboardWalk->wake();
    const bool special = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
    // A press comes by here several times: for the window, the widget, and each parent if it is ignored.
    const bool first = std::exchange(freshKey, false);
    if (special && first && !press->isAutoRepeat())
        emit specialKeyPressed(key);
    if (key == Qt::Key_Space) {
        // A space bar that is held down must not flutter the power.
        if (!press->isAutoRepeat())
            switchPower();
        return true;
    }
    // A dialog has had it; what lies below must not see it too, not even the field that the dialog leaves.
    if (inDialog && key == Qt::Key_Return && press->modifiers() == Qt::NoModifier &&
        !QApplication::activePopupWidget())
        return true;
    // Kept: the main Return key is not among them.
    if (key != Qt::Key_Enter && key != Qt::Key_Escape)
        return false;
    event->ignore();
    return true;
}

bool MainWnd::focusNextPrevChild(bool next)
{
    return keyboardWalk ? keyboardWalk->step(next) : QDialog::focusNextPrevChild(next);
}

void MainWnd::rememberPlaces()
{
    for (QWidget* child : {ui.outKeyboardGraphicsView, ui.inKeyboardGraphicsView})
        places.remember(child, 2);
    for (QWidget* child : std::initializer_list<QWidget*>{ui.centerGraphicsView,
                                                          ui.buttonMIDIinOut,
                                                          ui.buttonCredits,
                                                          ui.buttonManual,
                                                          ui.buttonExport,
                                                          ui.buttonImport,
                                                          ui.buttonReset,
                                                          ui.centerLogo,
                                                          ui.about,
                                                          ui.scene1Button,
                                                          ui.scene2Button,
                                                          ui.scene34TopButton,
                                                          ui.scene34LeftButton,
                                                          ui.scene4RightButton,
                                                          ui.scene3RightButton,
                                                          ui.hiddenLayer,
                                                          ui.labelBottom,
                                                          ui.versionLabel,
                                                          centerScreen->inPortList,
                                                          centerScreen->outPortList})
        places.remember(child, 1);
    const QList<QWidget*> libraryWidgets = centerScreen->libraryView()->widgets();
    for (QWidget* child : libraryWidgets)
        places.remember(child, 1);
    setMinimumSize(formWidth, stageHeight);
    setMaximumSize(stageWidth, stageHeight);
    resize(stageWidth, stageHeight);
    places.apply(width() - formWidth);
}

void MainWnd::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    places.apply(width() - formWidth);
}

bool MainWnd::confirmAlert(const QString& text, const QString& accept)
{
    AlertWidget alert(QString(), text, accept, tr("Cancel"), alert_warning, this);
    return alert.exec() == 1;
}
