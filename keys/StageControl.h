#pragma once

#include <QAccessible>
#include <QPoint>
#include <QRectF>
#include <QString>

class QGraphicsItem;

/// One thing on the stage that a hand can reach, told in words instead of pixels: what the computer's
/// keyboard and assistive technology act on. It does what the pointer would do there. It only looks at its
/// item.
class StageControl
{
public:
    explicit StageControl(QGraphicsItem& onItem) : item(onItem) {}
    virtual ~StageControl() = default;
    Q_DISABLE_COPY_MOVE(StageControl)

    // What it is; made up when it is asked for, never while notes are played
    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QString description() const { return {}; }
    [[nodiscard]] virtual QAccessible::Role role() const = 0;
    /// Whether it shows and answers.
    [[nodiscard]] virtual bool isReachable() const;
    /// Where it is seen, in its scene.
    [[nodiscard]] virtual QRectF place() const;
    /// Lit, chosen or switched on, for what can be.
    [[nodiscard]] virtual bool isOn() const { return false; }

    // What can be done with it
    virtual void press() = 0;
    /// The end of a press; what acts at once needs none.
    virtual void release() {}
    [[nodiscard]] virtual bool hasMenu() const { return false; }
    virtual void openMenu(QPoint /*screen*/) {}

    // A slider's; `step` is one white key to the right
    [[nodiscard]] virtual bool slides() const { return false; }
    [[nodiscard]] virtual int value() const { return 0; }
    [[nodiscard]] virtual int lowest() const { return 0; }
    [[nodiscard]] virtual int highest() const { return 0; }
    /// Stops at the ends.
    virtual void slide(int /*steps*/) {}

    // What is taken to another place
    [[nodiscard]] virtual bool canBeTaken() const { return false; }
    virtual void take() {}
    /// Ends what take() began, with a swap if the other one is a place for it.
    virtual void dropOn(StageControl* /*other*/) {}

    QGraphicsItem& item;
};
