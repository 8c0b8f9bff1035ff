#pragma once

#include <QString>

/// A text of any length and content as it is shown in a line of its own: control characters and line breaks
/// are blanks, and beyond `most` characters three dots stand. What a file holds may be too long to be laid
/// out.
[[nodiscard]] QString shownText(const QString& text, int most = 200);
