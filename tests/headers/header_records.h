#pragma once

#include "headers/HeaderItem.h"

#include <QString>
#include <QStringList>

// Words, keys and records that the tests of the headers share.

inline const QString ionian = QStringLiteral("xoxoxxoxoxox");
inline const QString lydian = QStringLiteral("xoxoxoxxoxox");
inline const QString wholeTone = QStringLiteral("xoxoxoxoxoxo");
inline const QString octaves = QStringLiteral("xooooooooooo");
inline const QString unknownWord = QStringLiteral("xxxooooooooo"); // in no category
inline const QString otherUnknownWord = QStringLiteral("xoooooooxxxx");

constexpr int firstActive = 63, powerKey = 49, lowest = 22, highest = 106;

[[nodiscard]] header_data factoryRow(int index);
/// A record that differs from the selectors' start in every field.
[[nodiscard]] header_data fullRecord();
/// F sharp and a scale, with names that no library gives and without a pitch position.
[[nodiscard]] header_data scaleRecord(const QString& word, bool scaleOn = true);

[[nodiscard]] QString onOrOff(bool flag);
/// All nine in the order of their declaration; switches read "on" or "off".
[[nodiscard]] QStringList fields(const header_data& data);
/// The same in one line.
[[nodiscard]] QString asText(const header_data& data);
/// The two names of the scale.
[[nodiscard]] QStringList names(const HeaderItem* header);
