#pragma once

#include <QStringList>

/// The lines in which a text scrolls over the display. A carriage return or a line feed ends a line, empty
/// lines are left out, and a line of fewer than 46 characters stays as it is.
///
/// A longer line is cut at its commas, full stops and semicolons, and its pieces are joined again with
/// commas, as many in a line as stay below 46 characters. Meant, so do not mend:
/// - all three marks come out as ",", and a line that is followed by another piece ends with one;
/// - such a line loses one leading blank, the last line does not;
/// - a last piece that does not fit behind the others is lost;
/// - a first piece that is too long has an empty line before it, and no piece is ever cut.
[[nodiscard]] QStringList wrappedCreditLines(const QString& text);
