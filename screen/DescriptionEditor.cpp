#include "screen/DescriptionEditor.h"

#include <QMouseEvent>

void DescriptionEditor::mousePressEvent(QMouseEvent* event)
{
    QTextBrowser::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        emit pressed();
}
