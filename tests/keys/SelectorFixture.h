#pragma once

#include "KeyFixture.h"
#include "keys/SwitchItem.h"

/// A shown window with the power on, and the pointer on its tonic and scale selectors.
class SelectorFixture : public KeyFixture
{
    Q_OBJECT

private slots:
    void init();

protected:
    QWidget* view() const { return window->ui.centerGraphicsView->viewport(); }
    /// A place on a selector's key where no other key lies over it.
    QPoint placeOn(const KeyControllerBase& controller, int index) const;
    QPoint placeOn(const SwitchItem* item) const;
    void click(QPoint pos) const { QTest::mouseClick(view(), Qt::LeftButton, {}, pos); }
    void press(QPoint pos) const { QTest::mousePress(view(), Qt::LeftButton, {}, pos); }
    void move(QPoint pos) const;
    void release(QPoint pos) const { QTest::mouseRelease(view(), Qt::LeftButton, {}, pos); }
};
