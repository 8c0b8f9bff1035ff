#pragma once

#include "HeaderFixture.h"

class AbstractDialog;

/// A shown window with a recording port for each test, and hands for the dialogs in it.
class DialogFixture : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        show();
    }

protected:
    using Acts = std::function<void()>;

    /// One row for each kind of dialog, in the column "kind".
    static void addKinds();
    /// A dialog of that kind, filled in so that it can be accepted.
    std::unique_ptr<AbstractDialog> make(const QString& kind) const;
    /// Runs a dialog, acts within the run, and rejects the dialog if it runs on then. Gives exec()'s result.
    static int run(AbstractDialog& dialog, const Acts& acts);

    /// Presses a key where the keyboard's focus is, in a popup if there is one.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void type(const char* keys);
    /// Clicks a place of the window, or the middle of a widget in it, as a window system does.
    void click(QPoint place) const;
    void clickOn(const QWidget* widget) const;
    /// Plays and lets go a key of the stage by the pointer; gives what is sent.
    QList<QList<int>> tapKey(int note) const;

    QWidget* inView() const { return window->ui.inKeyboardGraphicsView; }
};
