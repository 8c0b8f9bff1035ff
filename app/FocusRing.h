#pragma once

#include <QWidget>

/// A ring around what has the keyboard's focus. It shows from when the keyboard is used until the mouse is:
/// asleep it sees no event of the program. It lies above the whole window and never takes the pointer.
class FocusRing : public QWidget
{
    Q_OBJECT

public:
    static constexpr int thickness = 4; ///< outside of what it encloses

    explicit FocusRing(QWidget* window);

    void wake();
    [[nodiscard]] bool isAwake() const { return awake; }
    /// Encloses a place of the window; an empty one shows no ring.
    void enclose(const QRect& place);

signals:
    /// The window is about to be painted: what the ring encloses may have moved.
    void windowChanges();
    /// A key was pressed anywhere, before it means anything.
    void keyComes(int key);
    void slept();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void sleep();

    bool awake = false;
};
