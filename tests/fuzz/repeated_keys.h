#pragma once

class QByteArray;

/// Whether an object of the JSON text holds a key twice. Qt's parser then keeps one of the two values and
/// leaks the other if that is an array or an object.
[[nodiscard]] bool repeatsKey(const QByteArray& text);
