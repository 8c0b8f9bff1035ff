#pragma once

#include "ScreenFixture.h"

#include <QTimer>

class AddWindow;
class ChangeDialog;
class QMenu;

/// The window with the power on and the library open, and hands for its dialogs, menus, buttons and lists.
class LibraryFixture : public ScreenFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        openLibrary();
    }

protected:
    /// Shown and at rest, with the library open at the scale that is played.
    void openPlaying();

    using Acts = std::function<void()>;

    // Dialogs and menus: the first that opens is answered and, if that leaves it open, closed
    template <typename Dialog>
    void whenOpen(const std::function<void(Dialog&)>& look);
    void whenMenu(const std::function<void(QMenu&)>& look);
    /// Answers the next dialog for one name.
    void giveName(const QString& text, bool accepting = true);
    /// Chooses a category in the next menu; closes it if there is no such row or it is disabled.
    void choose(const QString& category);
    /// Does something; gives the class of the dialog or menu that opens, with the name of the field that has
    /// the keyboard, or "". It is closed.
    QString whatOpens(const Acts& acts);
    static void clickButtonOf(const QWidget& dialog, bool accepting);

    // The pointer on the centre screen; places in its scene
    void pointer(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held) const;
    void pressOn(LibraryButton::Code code, Qt::MouseButton button = Qt::LeftButton) const;
    void releaseOn(LibraryButton::Code code, Qt::MouseButton button = Qt::LeftButton) const;

    // The pointer on the shown window
    QPoint placeOfRow(const QListWidget& list, int row) const;
    void press(QPoint place, Qt::MouseButton button = Qt::LeftButton) const;
    void move(QPoint place, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void release(QPoint place, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void clickRow(const QListWidget& list, int row) const;

    // What is played
    /// As a gesture on the selector does it.
    void play(const QString& word) const;
    void sendNote(int note, int velocity) const;

    // What stands in the library
    QString category(int index) const { return library().categories().value(index); }
    QList<QString> words(const QString& name) const { return library().scalesFromCategory(name); }
    QStringList titles(const QString& name) const;
    QString titleOf(const QString& word) const;
    void showCategory(int index) const;
    /// A record's names and its description; all empty if there is none.
    QStringList storedNames(const QString& word) const;
    /// Every category with its words.
    QStringList allWords() const;
    /// The same record for record, with the words that are in none.
    QList<QStringList> wholeLibrary() const;
    /// A library record in that category.
    void addWord(const QString& word, const QString& title, const QString& to) const;
    /// The one that lets notes pass before the browser follows.
    QTimer& browserTimer() const;
    /// Until nothing waits to be shown.
    void settle() const;
};

template <typename Dialog>
void LibraryFixture::whenOpen(const std::function<void(Dialog&)>& look)
{
    auto* poll = new QTimer(window.get());
    connect(poll, &QTimer::timeout, this, [this, poll, look] {
        for (Dialog* dialog : window->findChildren<Dialog*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (dialog->isHidden())
                continue;
            poll->stop();
            poll->deleteLater();
            ++seen;
            look(*dialog);
            dialog->hide();
            return;
        }
    });
    poll->start(0);
}
