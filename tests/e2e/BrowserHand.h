#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>

class ChildProcess;

/// A real hand on mouse and keyboard for a window of the test's own process: its events come through the X
/// server while the event loop runs, nested loops included. Each call returns once the program has taken the
/// last of them, false if it does not. Places are pixels of the screen.
class BrowserHand : public QObject
{
    Q_OBJECT

public:
    /// Gives the keyboard the letters that `type` may need beyond those of a US one. After the application
    /// object: a server that loses its last client forgets all.
    [[nodiscard]] static bool prepareKeyboard();

    BrowserHand();

    bool move(QPoint place);
    bool press(int button = 1);
    bool release(int button = 1);
    /// Never the second half of a double click.
    bool click(QPoint place, int button = 1);
    bool doubleClick(QPoint place);
    /// Down for positive notches.
    bool turnWheel(QPoint place, int notches);

    /// Presses a key, or several joined by "+".
    bool key(const QString& name);
    bool holdKey(const QString& name);
    bool letKeyGo(const QString& name);
    bool type(const QString& text);

    /// All that was done so far has reached the program.
    [[nodiscard]] bool isIdle() const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] QStringList wayTo(QPoint place);
    bool act(const QStringList& arguments);

    QList<const ChildProcess*> running;
    int marksAwaited = 0, marks = 0;
    QPoint here, lastPress{-100, -100};
};
