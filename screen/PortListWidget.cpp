#include "screen/PortListWidget.h"

#include "app/MainWnd.h"

#include <QKeyEvent>

namespace {

constexpr int rowHeight = 15;

} // namespace

PortListWidget::PortListWidget(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(MultiSelection);
    setFocusPolicy(Qt::NoFocus); // a click leaves the keyboard where it is
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QListWidgetItem* PortListWidget::addRow(const QString& name)
{
    auto* row = new QListWidgetItem(name, this);
    row->setToolTip(name);
    row->setSizeHint({1, rowHeight}); // no wider than the list, so that the text is elided
    return row;
}

void PortListWidget::specialKeyPress(int key)
{
    if (!hasFocus() || mainWnd->isOccupied())
        return;
    if (key == Qt::Key_Escape) {
        emit left();
    } else if (QListWidgetItem* row = currentItem()) {
        row->setSelected(!row->isSelected());
        setFocus(); // a new selection gives the keyboard away; here the hand is still on the list
    }
}

void PortListWidget::keyPressEvent(QKeyEvent* event)
{
    const bool sideways = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    if (sideways && neighbour)
        neighbour->setFocus();
    else if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Space)
        QListWidget::keyPressEvent(event);
}

void PortListWidget::focusInEvent(QFocusEvent* event)
{
    if (!currentItem() && count() > 0)
        setCurrentRow(0, QItemSelectionModel::NoUpdate);
    QListWidget::focusInEvent(event);
}
