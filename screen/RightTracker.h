#pragma once

#include <QWidget>

class ScaleListWidget;

/// The strip beside the scale list: a drag whose release was lost ends when the pointer passes it.
class RightTracker : public QWidget
{
    Q_OBJECT

public:
    RightTracker(ScaleListWidget* scaleList, QWidget* parent);

protected:
    void leaveEvent(QEvent* event) override;

private:
    ScaleListWidget* const list;
};
