#pragma once

#include <QGraphicsPixmapItem>

/// The octave of unlit keys behind a selector row.
class TonicBackView : public QGraphicsPixmapItem
{
public:
    using QGraphicsPixmapItem::QGraphicsPixmapItem;
};
