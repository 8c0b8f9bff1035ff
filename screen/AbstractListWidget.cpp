#include "screen/AbstractListWidget.h"

#include "library/shown_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocument>

AbstractListWidget::AbstractListWidget(QWidget* parent)
    : QListWidget(parent), indicator(new QLabel(viewport()))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(NoDragDrop); // it drags by itself
    indicator->setFocusPolicy(Qt::NoFocus);
    indicator->setAutoFillBackground(true);
    indicator->setAttribute(Qt::WA_TransparentForMouseEvents);
    indicator->setStyleSheet(QStringLiteral("background-color: #575450; border: none;"));
    indicator->hide();
}

AbstractListWidget::~AbstractListWidget() = default;

void AbstractListWidget::setItemHeight(int height)
{
    rowHeight = qMax(1, height);
    for (int row = 0; row < count(); ++row)
        item(row)->setSizeHint({1, rowHeight});
}

QString AbstractListWidget::customMimeType() const
{
    return QStringLiteral("sorvane/scaleitemmodeldata");
}

Qt::DropActions AbstractListWidget::supportedDropActions() const
{
    return Qt::MoveAction | Qt::CopyAction;
}

void AbstractListWidget::dragStart(QMimeData* payload, const QPixmap& pixmap)
{
    dragData.reset(payload);
    dragPicture = new QLabel(window());
    dragPicture->setAttribute(Qt::WA_TransparentForMouseEvents);
    dragPicture->setPixmap(pixmap);
    dragPicture->adjustSize();
    dragging = true;
}

void AbstractListWidget::moveDragPicture(const QPoint& globalPos)
{
    constexpr int beside = 8; // the pointer stays clear of the picture
    if (!dragPicture)
        return;
    dragPicture->move(window()->mapFromGlobal(globalPos) + QPoint(beside, beside));
    dragPicture->show();
    dragPicture->raise();
}

void AbstractListWidget::dragFinish()
{
    dragging = false;
    if (dragPicture) {
        dragPicture->hide();
        dragPicture->deleteLater(); // the window may be telling its children something just now
        dragPicture = nullptr;
    }
    showIndicator(false, -1);
}

void AbstractListWidget::dragCancel()
{
    dragFinish();
    dragData.reset();
}

void AbstractListWidget::dragButton(const QMouseEvent&, const QPoint&)
{
    dragCancel();
}

void AbstractListWidget::trackIndicator(const QPoint& pos, int except)
{
    const int index = availableIndex(pos);
    showIndicator(index >= 0 && index != except, index);
}

void AbstractListWidget::dressItem(QListWidgetItem* item, const QString& text, const QString& key) const
{
    const QString line = shownText(text);
    item->setText(line);
    item->setToolTip(Qt::mightBeRichText(line) ? QStringLiteral("<qt>%1</qt>").arg(line.toHtmlEscaped())
                                               : line);
    item->setData(Qt::UserRole, key);
    // Narrower than the list: a row is then as wide as the list and its text is elided.
    item->setSizeHint({1, rowHeight});
}

QString AbstractListWidget::keyAt(int row) const
{
    const QListWidgetItem* found = item(row);
    return found && (found->flags() & Qt::ItemIsEnabled) ? found->data(Qt::UserRole).toString() : QString();
}

void AbstractListWidget::showRemark(const QString& text)
{
    clear();
    auto* remark = new QListWidgetItem(text, this);
    remark->setFlags(Qt::NoItemFlags);
    remark->setSizeHint({1, rowHeight});
}

void AbstractListWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mousePressEvent(event);
}

void AbstractListWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        QListWidget::mouseMoveEvent(event);
}

void AbstractListWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mouseDoubleClickEvent(event);
}

void AbstractListWidget::keyPressEvent(QKeyEvent* event)
{
    if (dragging)
        return; // the row in the hand must stay where it is
    const int key = event->key();
    const bool copyOrMove =
        event->modifiers() == Qt::ControlModifier && (key == Qt::Key_C || key == Qt::Key_X);
    if (key == Qt::Key_Insert || key == Qt::Key_Delete || key == Qt::Key_F2 || copyOrMove) {
        emit editKeyPressed(key);
        return;
    }
    const QListWidgetItem* before = currentItem();
    QListWidget::keyPressEvent(event);
    if (currentItem() && currentItem() != before)
        emit itemPressed(currentItem());
}
