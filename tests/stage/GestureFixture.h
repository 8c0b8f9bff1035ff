#pragma once

#include "StageFixture.h"

#include <functional>
#include <vector>

/// Everything that a hand may hold on the stage, for tests of what takes it away.
class GestureFixture : public StageFixture
{
    Q_OBJECT

protected:
    struct Gesture
    {
        const char* name;
        std::function<void()> begin;
    };
    std::vector<Gesture> gestures() const;
    /// One data row for each of them, in the column "gesture".
    void addGestures() const;
    /// Begins the gesture of that name and holds on.
    void begin(const QString& name) const;
    /// The hand that holds something.
    Hand& holding() const { return hand->held() ? *hand : *outHand; }

    void activate() const;
    QPointF anchorGrip() const { return {anchors()->x() + 399, 165}; }
    /// Keys, headers and the power button answer a fresh hand as if nothing had been.
    void expectTheNextGesturesToWork();
};
