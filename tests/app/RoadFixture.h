#pragma once

#include "HeaderFixture.h"

/// A fresh window whose input can be played and whose output is recorded.
class RoadFixture : public HeaderFixture
{
protected:
    /// As the input's signal would bring it.
    void play(const QList<int>& message) const { emit window->signalKey(message); }
    QList<QList<int>> sent() const { return port->takeLists(); }
};
