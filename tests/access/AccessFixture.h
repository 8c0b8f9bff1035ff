#pragma once

#include "LibraryFixture.h"
#include "app/FocusRing.h"
#include "app/KeyboardWalk.h"
#include "keys/StageControl.h"

/// A shown window with a recording port, played by the computer's keyboard alone.
class AccessFixture : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init() { openAlone(); }

protected:
    void openAlone();

    /// As a keyboard sends it, to what has the focus; a hold has no release.
    static void type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1);
    static void hold(int key);
    static void letUp(int key);

    KeyboardWalk& walk() const { return *window->keyboardWalk; }
    FocusRing& ring() const { return *window->findChild<FocusRing*>(); }
    /// What has the focus, in words: a control's name, else the name of the widget.
    QString here() const;
    /// The default scene 1 to the credits 4, and 5: the library.
    void showScene(int number, bool powered) const;
    /// Tab until the focus is there; false if it never comes.
    bool tabTo(const QString& place) const;
    /// The notes that began and were not ended, and what was sent since the last call.
    QList<QList<int>> heard() const { return port->takeLists(); }
};
