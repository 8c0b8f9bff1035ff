#pragma once

#include <QString>

class QAbstractScrollArea;

/// Dresses an area and its scroll bar, which Qt forgets where the window has a style sheet of its own.
void setStyleWithBars(QAbstractScrollArea& area, const QString& sheet);
