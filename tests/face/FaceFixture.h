#pragma once

#include "CenterFixture.h"
#include "screen/AbstractDialog.h"

#include <memory>

/// A shown window for each test of the face, and the states in which a user meets it.
class FaceFixture : public CenterFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        show();
    }
    void cleanup()
    {
        dialog.reset();
        closeWindow();
    }

protected:
    /// The widths at which the window is looked at: the form's, one between, the pictured instrument's.
    static constexpr int widths[] = {677, 800, 952};

    /// The names that enter() knows.
    static QStringList states();
    /// One data row a state, in the column "state".
    static void addStates();
    /// One data row for each state at each width, in the columns "state" and "width".
    static void addStatesAndWidths();
    /// One data row for each look of a button of the display, in the column "how".
    static void addButtonLooks();
    /// Gives a button one of these looks.
    static void show(QPushButton& button, const QString& how);
    using CenterFixture::show;

    /// Brings a fresh window into a state. Ports have rows that no service has opened; dialogs are shown.
    void enter(const QString& state);
    /// Rows of the port lists as a user's machine has them; each list's first one is selected.
    void fillPorts(const QStringList& names) const;

    /// The dialog that shows, if the state is one; it belongs to the test.
    std::unique_ptr<AbstractDialog> dialog;

private:
    std::unique_ptr<AbstractDialog> makeDialog(const QString& kind) const;
};
