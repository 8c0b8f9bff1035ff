#pragma once

#include "HeaderFixture.h"
#include "keys/key_pictures.h"

#include <QGraphicsItemGroup>

/// A fresh window with the power on and a recording port for each test of the keys and the selectors.
class KeyFixture : public HeaderFixture
{
    Q_OBJECT

private slots:
    void init() { openKeys(); }

protected:
    void openKeys();

    QList<QList<int>> sent() const { return port->takeLists(); }
    /// Slides the map by white keys, as the main anchor would.
    void slideBy(int shift);
    static bool shows(const ResizableItem* key, KeySheet sheet, KeyCell cell, KeyShine shine);

private:
    QGraphicsItemGroup anchor;
};
