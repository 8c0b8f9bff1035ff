#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>

/// A window of its own that tells which area of one item is painted again.
class RepaintWatch : public QGraphicsView
{
public:
    static constexpr QSize canvas{60, 100}; ///< holds every header

    explicit RepaintWatch(QGraphicsItem& watched);
    ~RepaintWatch() override;

    /// What was painted since the last call, in the item's coordinates; empty if nothing was.
    [[nodiscard]] QRect take();
    /// The same, up to the pixel that a view adds around what it is asked for.
    [[nodiscard]] bool tookOnly(const QRect& expected);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QGraphicsScene stage;
    QGraphicsItem& item;
    QRect area;
};
