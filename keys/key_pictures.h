#pragma once

#include <QPixmap>
#include <QRect>
#include <QRegion>
#include <QString>

/// The five colourings of the key sheet.
enum class KeySheet { plain, in, out, deactive, learn };

/// The outlines of keys. `lowest` is A0, which looks like C and F; `none` is an item that is no key.
enum class KeyShape { bAndE, cAndF, dGAndA, full, lowest, black, none };

enum class KeyCell { idle, pressed };

/// The light that lies on an idle key.
enum class KeyShine { none, blue, yellow };

/// The pictures of keys: each crop of a sheet, with its shine, is made once and shared by all keys of its
/// kind.
namespace key_pictures {

/// The shape for a key's name: "A0" to "C8", or "#". Any other name gives `none`.
[[nodiscard]] KeyShape shapeOf(const QString& name);

/// The cell of a shape on every sheet, in logical pixels; an empty rectangle for `none`.
[[nodiscard]] QRect cellOf(KeyShape shape, KeyCell cell);

/// What the hand can touch of a key, in logical pixels from its top left: its cell without the notches in
/// which its black neighbours lie. Empty for `none`.
[[nodiscard]] QRegion outlineOf(KeyShape shape);

/// The resource path of a sheet.
[[nodiscard]] QString pathOf(KeySheet sheet);

[[nodiscard]] QPixmap sheet(KeySheet sheet);

/// The finished picture of a key. A null picture for `none`.
[[nodiscard]] const QPixmap& picture(KeySheet sheet, KeyShape shape, KeyCell cell, KeyShine shine);

/// A picture with the blue light of the input side, or the yellow light of the output side, on its top left.
[[nodiscard]] QPixmap withShine(const QPixmap& picture, KeyShine shine);

/// The light itself, as a strip of the given logical size.
[[nodiscard]] QPixmap shineStrip(KeyShine shine, const QSize& size);

} // namespace key_pictures
