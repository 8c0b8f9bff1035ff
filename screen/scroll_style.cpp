#include "screen/scroll_style.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

void setStyleWithBars(QAbstractScrollArea& area, const QString& sheet)
{
    area.setStyleSheet(sheet);
    area.verticalScrollBar()->setStyleSheet(sheet);
}
