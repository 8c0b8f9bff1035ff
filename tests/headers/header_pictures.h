#pragma once

#include "headers/HeaderItem.h"

#include <QPixmap>

class QGraphicsPixmapItem;

// Pictures as the tests of the headers ask for them.

/// One data row for each header_type, in the column "type".
void addTypes();
/// A header's picture by its type and the end of its file's name.
[[nodiscard]] QPixmap picture(int type, const char* suffix);
/// Whether both are the same picture in memory. False for none.
[[nodiscard]] bool isSame(const QPixmap& a, const QPixmap& b);
/// Whether an item looks like the picture of that resource.
[[nodiscard]] bool shows(const QGraphicsPixmapItem* item, const QString& path);
