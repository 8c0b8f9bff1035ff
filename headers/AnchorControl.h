#pragma once

#include "keys/StageControl.h"

#include <QCoreApplication>

class AnchorsGroup;
class QGraphicsItemGroup;

/// One of the anchors of the input, which slide together; the one that is held stops at the ends of the bar.
class AnchorControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(AnchorControl)

public:
    AnchorControl(QGraphicsItemGroup& onAnchor, AnchorsGroup& all);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString description() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Slider; }
    [[nodiscard]] bool isReachable() const override;
    [[nodiscard]] QRectF place() const override;
    void press() override {}
    [[nodiscard]] bool slides() const override { return true; }
    [[nodiscard]] int value() const override;
    [[nodiscard]] int lowest() const override;
    [[nodiscard]] int highest() const override;
    void slide(int steps) override;

private:
    QGraphicsItemGroup& anchor;
    AnchorsGroup& group;
};
