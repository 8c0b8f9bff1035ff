// A run of a dialog, from exec() to its end, over the window or over another dialog.

#include "screen/AbstractDialog.h"

#include "app/MainWnd.h"

#include <QEventLoop>

#include <algorithm>

namespace {

/// The dialogs whose exec() has not returned, the innermost last.
QList<AbstractDialog*>& running()
{
    static QList<AbstractDialog*> dialogs;
    return dialogs;
}

} // namespace

AbstractDialog::~AbstractDialog()
{
    loop->exit(0);
    const bool ends = !isHidden() || running().contains(this);
    running().removeOne(this);
    if (ends)
        leave();
}

// Also valid while the window is being destroyed, which deletes the dialogs in it: it is none by then.
MainWnd* AbstractDialog::livingWindow() const
{
    return qobject_cast<MainWnd*>(mainWindow.data());
}

bool AbstractDialog::isRunning() const
{
    return loop->isRunning();
}

int AbstractDialog::exec()
{
    if (running().contains(this))
        return 0;
    wasAccepted = wasRejected = false;
    focusBelow = QApplication::focusWidget();
    livingWindow()->endGestures();
    livingWindow()->dialogOpen = true;
    running().append(this);
    show();
    raise();
    const QPointer<AbstractDialog> alive(this);
    const std::shared_ptr<QEventLoop> run = loop;
    run->exec();
    if (!alive)
        return 0;
    if (!wasAccepted && !wasRejected)
        reject();
    running().removeOne(this);
    return wasAccepted ? 1 : 0;
}

void AbstractDialog::setVisible(bool visible)
{
    QWidget::setVisible(visible);
    if (!visible && isRunning())
        reject(); // closed by other means: nobody could end the run any more
}

void AbstractDialog::accept()
{
    finish(true);
}

void AbstractDialog::reject()
{
    finish(false);
}

void AbstractDialog::finish(bool accepts)
{
    if (isRunning())
        loop->exit(accepts ? 1 : 0);
    hide();
    const QPointer<AbstractDialog> alive(this);
    if (accepts)
        emit accepted();
    else
        emit rejected();
    if (!alive)
        return;
    (accepts ? wasAccepted : wasRejected) = true;
    leave();
}

// What another dialog needs stays: its flag and the focus.
void AbstractDialog::leave()
{
    MainWnd* window = livingWindow();
    if (!window)
        return;
    const auto& all = running();
    const auto below = std::find_if(all.rbegin(), all.rend(),
                                    [](const AbstractDialog* dialog) { return dialog->isRunning(); });
    window->dialogOpen = below != all.rend();
    if (!window->dialogOpen)
        window->ui.inKeyboardGraphicsView->setFocus(Qt::OtherFocusReason);
    else if (focusBelow && (*below)->isAncestorOf(focusBelow))
        focusBelow->setFocus(Qt::OtherFocusReason);
    else
        (*below)->takeFocus();
}

// One press, one answer: the window tells of a press once for each widget that it comes by, and the dialog
// below must not take what ended the one above. A dialog that is only shown leaves the keys to one that runs.
bool AbstractDialog::takesKeys() const
{
    if (isHidden() || (popupHadKey && !QApplication::activePopupWidget()))
        return false;
    return running().isEmpty() ? !livingWindow()->dialogOpen : running().last() == this;
}
