#pragma once

#include <QMap>
#include <QStringList>

/// Finds remembered ports under new names: ALSA ends a name with its client's and port's numbers ("Keystation
/// MIDI 1 24:0"), which follow the order in which devices are plugged in. Returns the remembered name of each
/// present port that has another number only; none where two ports could be meant.
[[nodiscard]] QMap<QString, QString> movedPorts(const QStringList& present, const QStringList& remembered);
