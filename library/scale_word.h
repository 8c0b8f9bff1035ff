#pragma once

#include <QString>

/// Whether a text is a whole scale word: "x", the tonic, and eleven letters "x" or "o".
[[nodiscard]] bool isScaleWord(const QString& text);
