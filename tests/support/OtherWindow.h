#pragma once

#include <QRasterWindow>
#include <QtTest>

/// A window of the test's own beside the program's.
class OtherWindow : public QRasterWindow
{
public:
    /// Gives way to no other window until it is destroyed. The program learns of it, but Qt waits a moment
    /// for the focus to come back before it believes that it is gone.
    [[nodiscard]] bool takeFocus()
    {
        setGeometry(1000, 500, 40, 40);
        show();
        requestActivate();
        return QTest::qWaitForWindowActive(this);
    }
};
