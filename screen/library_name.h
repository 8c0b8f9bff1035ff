#pragma once

#include <QFont>
#include <QString>

/// The short names of a scale, as the library's plates and the presets' flags show them.
namespace library_name {

inline constexpr int maxLength = 7;   ///< characters
inline constexpr int widthLimit = 33; ///< pixels of libraryFont(); a name must be narrower

/// The font of the library's plates: Arial, 10 pixels.
[[nodiscard]] QFont libraryFont();

/// Whether a name fits a plate: at most seven characters out of A-Z a-z 0-9 . * ? ( ) + / - #, and narrow
/// enough. The empty name fits.
[[nodiscard]] bool fits(const QString& name);

} // namespace library_name
