#pragma once

#include <QGraphicsItemGroup>

/// The numbered in anchors as one: its x is the shift of the mapping in scene pixels, 17 a white key.
class AnchorsGroup : public QGraphicsItemGroup
{
public:
    using QGraphicsItemGroup::QGraphicsItemGroup;

    /// Dims the anchors that lie beyond the bar; they stay under the pointer.
    void refresh();
};
