#include "screen/ScaleListWidget.h"

#include "app/MainWnd.h"
#include "keys/pictures.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/scale_payload.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int lineHeight = 2; // of the indicator
const QColor plate(216, 218, 209), ink(0x57, 0x54, 0x50);

} // namespace

ScaleListWidget::ScaleListWidget(AbstractListWidget* categories, QWidget* parent)
    : AbstractListWidget(parent), categoryList(categories)
{
    connect(mainWnd, &MainWnd::specialKeyPressed, this, &ScaleListWidget::specialKeyPress);
}

CategoryListWidget* ScaleListWidget::categories() const
{
    return static_cast<CategoryListWidget*>(categoryList);
}

void ScaleListWidget::updateItem(QListWidgetItem* item, int, const QString& word, const QString& title)
{
    dressItem(item, title, word);
}

void ScaleListWidget::insertItem(int index, const QString& word, const QString& title)
{
    auto* item = new QListWidgetItem;
    updateItem(item, index, word, title);
    AbstractListWidget::insertItem(index, item);
}

QPixmap ScaleListWidget::pixmapForDragging(int row, const QSize& size) const
{
    QPixmap pixmap = pictures::transparent(size, devicePixelRatioF());
    const QListWidgetItem* dragged = item(row);
    if (!dragged)
        return pixmap;
    QPainter painter(&pixmap);
    painter.fillRect(QRect(QPoint(), size), plate);
    const_cast<ScaleListWidget*>(this)->viewport()->render(&painter, QPoint(), visualItemRect(dragged),
                                                           DrawWindowBackground | DrawChildren);
    painter.setPen(ink);
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    return pixmap;
}

void ScaleListWidget::dragStart(int row, Qt::DropAction action)
{
    const QString word = keyAt(row);
    if (word.isEmpty())
        return;
    auto* payload = packPayload({category, word, item(row)->text(), row}, customMimeType());
    dragAction = action;
    AbstractListWidget::dragStart(payload, pixmapForDragging(row, visualItemRect(item(row)).size()));
}

void ScaleListWidget::dragCancel()
{
    AbstractListWidget::dragCancel();
    categories()->dragCancel();
    pressed = QModelIndex();
    viewport()->unsetCursor();
    mainWnd->centerScreen->updateBrowser(); // what changed meanwhile has waited
}

// Any other button gives the drag up.
void ScaleListWidget::dragButton(const QMouseEvent& event, const QPoint& pos)
{
    if (event.type() == QEvent::MouseButtonRelease && event.button() == Qt::LeftButton) {
        const QPoint globalPos = viewport()->mapToGlobal(pos);
        const QPoint inCategories = categories()->viewport()->mapFromGlobal(globalPos);
        trackDrag(globalPos, event.modifiers()); // a key may have changed what the drop does
        dragFinish();
        if (viewport()->rect().contains(pos))
            dropData(pos);
        else if (categories()->viewport()->rect().contains(inCategories))
            categories()->dropData(inCategories);
    }
    dragCancel();
}

int ScaleListWidget::availableIndex(const QPoint& pos) const
{
    if (!viewport()->rect().contains(pos))
        return -1;
    const QModelIndex under = indexAt(pos);
    if (!under.isValid())
        return keyAt(0).isEmpty() ? 0 : count();
    if (keyAt(under.row()).isEmpty())
        return 0;
    return under.row() + (pos.y() > visualRect(under).center().y() ? 1 : 0);
}

void ScaleListWidget::showIndicator(bool show, int index)
{
    indicator->setVisible(show && index >= 0);
    if (!show || index < 0)
        return;
    const QListWidgetItem* below = item(index);
    const QListWidgetItem* above = item(index - 1);
    const int y = below ? visualItemRect(below).top() : above ? visualItemRect(above).bottom() + 1 : 0;
    indicator->setGeometry(0, qBound(0, y - lineHeight / 2, viewport()->height() - lineHeight),
                           viewport()->width(), lineHeight);
}

bool ScaleListWidget::dropData(const QPoint& pos)
{
    return dropData(availableIndex(pos), dragData.get());
}

bool ScaleListWidget::dropData(int index, const QMimeData* mime)
{
    DatabaseLibrary& library = mainWnd->library;
    const scale_payload payload = unpackPayload(mime, customMimeType());
    if (index < 0 || payload.word.isEmpty() ||
        library.scaleFromCategory(payload.category, payload.index) != payload.word)
        return false;
    const bool reorders = payload.category == category;
    const int to = reorders ? reorder(payload.index, index)
                            : library.insertScaleToCategory(category, index, payload.word);
    if (to < 0)
        return false;
    library.setCurrentCategory(category); // a note may have left it
    library.setCurrentScaleIndex(category, to);
    mainWnd->centerScreen->refreshBrowser();
    mainWnd->checkScaleMatches(true);
    if (reorders)
        emit itemMoved(payload.index, to);
    else
        emit itemInserted(to);
    return true;
}

/// The row's new index; -1 if it stays where it is.
int ScaleListWidget::reorder(int from, int before) const
{
    DatabaseLibrary& library = mainWnd->library;
    const int last = library.scalesCountFromCategory(category) - 1;
    const int to = qMin(before > from ? before - 1 : before, last);
    if (to == from)
        return -1;
    library.moveScale(from, to, category);
    return to;
}

void ScaleListWidget::specialKeyPress(int key)
{
    if (isDragging() && key == Qt::Key_Escape)
        dragCancel();
    else if (hasFocus() && !mainWnd->isOccupied() && key != Qt::Key_Escape && currentItem())
        emit itemDoubleClicked(currentItem());
}

void ScaleListWidget::mousePressEvent(QMouseEvent* event)
{
    pressPos = event->pos();
    pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    AbstractListWidget::mousePressEvent(event);
}

void ScaleListWidget::mouseMoveEvent(QMouseEvent* event)
{
    const bool far = (event->pos() - pressPos).manhattanLength() >= QApplication::startDragDistance();
    if (!isDragging() && pressed.isValid() && far && (event->buttons() & Qt::LeftButton))
        dragStart(pressed.row(), Qt::MoveAction);
    if (isDragging())
        trackDrag(event->globalPos(), event->modifiers());
    else
        AbstractListWidget::mouseMoveEvent(event);
}

void ScaleListWidget::mouseReleaseEvent(QMouseEvent* event)
{
    pressed = QModelIndex();
    AbstractListWidget::mouseReleaseEvent(event);
}

void ScaleListWidget::trackDrag(const QPoint& globalPos, Qt::KeyboardModifiers modifiers)
{
    moveDragPicture(globalPos);
    const bool copies = modifiers & Qt::ControlModifier;
    categories()->offer(dragData.get(), copies ? Qt::CopyAction : dragAction);
    const scale_payload payload = unpackPayload(dragData.get(), customMimeType());
    const QPoint here = viewport()->mapFromGlobal(globalPos);
    const QPoint there = categories()->viewport()->mapFromGlobal(globalPos);
    const int row = categories()->availableIndex(there);
    const bool taken = categories()->takes(row, dragData.get());
    trackIndicator(here, payload.index);
    categories()->showIndicator(taken, row);
    const bool refused = availableIndex(here) < 0 && !taken;
    viewport()->setCursor(refused           ? Qt::ForbiddenCursor
                          : taken && copies ? Qt::DragCopyCursor
                                            : Qt::DragMoveCursor);
}

// The release of a drag can be lost to another window. It is seen when the pointer comes back without it.
void ScaleListWidget::cancelLostDrag()
{
    if (isDragging() && !(QApplication::mouseButtons() & Qt::LeftButton))
        dragCancel();
}

void ScaleListWidget::enterEvent(QEvent* event)
{
    cancelLostDrag();
    AbstractListWidget::enterEvent(event);
}

void ScaleListWidget::leaveEvent(QEvent* event)
{
    cancelLostDrag();
    AbstractListWidget::leaveEvent(event);
}

void ScaleListWidget::hideEvent(QHideEvent* event)
{
    if (isDragging())
        dragCancel(); // a note may close the library under the hand
    AbstractListWidget::hideEvent(event);
}

bool ScaleListWidget::event(QEvent* event)
{
    if (event->type() == QEvent::WindowDeactivate && isDragging())
        dragCancel();
    return AbstractListWidget::event(event);
}
