#pragma once

#include "app/StageStops.h"

#include <QObject>
#include <QTimer>

class FocusRing;
class MainWnd;
class QKeyEvent;

/// The window by the computer's keyboard. Tab goes from stop to stop as the eye does; in a stop with controls
/// the arrow keys go from one to the next and Return presses it, for as long as it is held. What has the
/// focus shows a ring once the keyboard is used, and only then does Return mean anything.
class KeyboardWalk : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardWalk(MainWnd& mainWindow);

    /// Tab was pressed somewhere: from now on the focus is seen.
    void wake();
    /// To the next stop that can be reached, or the one before. False if there is none. It wakes nothing: Qt
    /// steps too, away from what is hidden.
    bool step(bool next);
    /// Ends what Return holds, and puts back what was taken.
    void letGo();
    /// The control that has the focus, or null.
    [[nodiscard]] StageControl* current() const;
    [[nodiscard]] const StageStops& places() const { return stops; }
    /// What was taken and not yet dropped, or null.
    [[nodiscard]] const StageControl* carried() const { return taken; }

    // For assistive technology (KeyboardWalk_told.cpp); what cannot be reached now, or lies behind a dialog
    // or a menu, stays as it is
    void goTo(const StageStop& at, StageControl& control);
    /// A short press.
    void tap(const StageStop& at, StageControl& control);
    void slide(const StageStop& at, StageControl& control, int steps);
    void openMenuOf(const StageStop& at, StageControl& control);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void follow();
    void followFocus(const QWidget* now);
    [[nodiscard]] int here() const;
    /// Only with a current control.
    [[nodiscard]] const StageStop& stopHere() const;
    void arriveAt(int to, Qt::FocusReason reason);
    [[nodiscard]] StageControl* arrival(const StageStop& at) const;
    [[nodiscard]] StageControl* instead(const StageStop& at, const StageControl* gone) const;
    void setCurrent(StageControl* control);

    void specialKey(int key);
    void release();
    void drop(StageControl* at);

    // Keys (KeyboardWalk_keys.cpp)
    [[nodiscard]] static bool isReturn(int key);
    [[nodiscard]] bool takeKey(const QKeyEvent& event);
    [[nodiscard]] bool command(const QKeyEvent& event);
    [[nodiscard]] bool arrow(int key);
    void moveInRow(int key);
    void moveToRow(int step);

    [[nodiscard]] bool answers(const StageStop& at, const StageControl& control) const;
    void tellFocus() const;
    static void tellState(const StageStop& at, const StageControl& control);

    MainWnd& window;
    StageStops stops;
    FocusRing* const ring;
    int stop = -1;                         ///< where the focus is, -1 elsewhere
    std::vector<StageControl*> remembered; ///< by stop
    StageControl* held = nullptr;
    StageControl* taken = nullptr;
    const QWidget* keyCameTo = nullptr; ///< what had the focus then; only compared
    QTimer tapEnd;
};
