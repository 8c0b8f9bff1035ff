#include "screen/CategoryListWidget.h"

#include "app/MainWnd.h"
#include "keys/pictures.h"
#include "screen/CenterScreen.h"
#include "screen/scale_payload.h"

#include <QLabel>

CategoryListWidget::CategoryListWidget(QWidget* parent) : AbstractListWidget(parent)
{
    folder.addPixmap(
        pictures::load(QStringLiteral(":/Resources/LibraryScreen/LibListFolderIcon_neutral.png")),
        QIcon::Normal);
    folder.addPixmap(pictures::load(QStringLiteral(":/Resources/LibraryScreen/LibListFolderIcon_active.png")),
                     QIcon::Selected);
    setIconSize({12, 10});
    indicator->setAutoFillBackground(false);
    indicator->setStyleSheet(QStringLiteral(
        "background-color: rgba(87, 84, 80, 40); border: 1px solid #575450; border-radius: 2px;"));
}

void CategoryListWidget::updateItem(QListWidgetItem* item, int, const QString& name)
{
    dressItem(item, name, name);
    item->setIcon(folder);
}

void CategoryListWidget::insertItem(int index, const QString& name)
{
    auto* item = new QListWidgetItem;
    updateItem(item, index, name);
    AbstractListWidget::insertItem(index, item);
}

int CategoryListWidget::availableIndex(const QPoint& pos) const
{
    return viewport()->rect().contains(pos) ? indexAt(pos).row() : -1;
}

void CategoryListWidget::showIndicator(bool show, int index)
{
    const QListWidgetItem* row = item(index);
    indicator->setVisible(show && row);
    if (show && row)
        indicator->setGeometry(visualItemRect(row));
}

bool CategoryListWidget::takes(int row, const QMimeData* mime) const
{
    const QString target = keyAt(row);
    const scale_payload payload = unpackPayload(mime, customMimeType());
    return !target.isEmpty() && payload.index >= 0 && !payload.word.isEmpty() && target != payload.category &&
           mainWnd->library.indexOfScaleFromCategory(target, payload.word, 0) < 0;
}

void CategoryListWidget::offer(const QMimeData* mime, Qt::DropAction action)
{
    offered = mime;
    offeredAction = action;
}

bool CategoryListWidget::dropData(const QPoint& pos)
{
    return dropData(availableIndex(pos), offered);
}

bool CategoryListWidget::dropData(int row, const QMimeData* mime)
{
    if (!takes(row, mime))
        return false;
    DatabaseLibrary& library = mainWnd->library;
    const scale_payload payload = unpackPayload(mime, customMimeType());
    const QString target = keyAt(row);
    if (library.scaleFromCategory(payload.category, payload.index) != payload.word)
        return false; // it went away while it was dragged
    if (offeredAction == Qt::CopyAction)
        library.appendScaleToCategory(target, payload.word);
    else
        library.moveScale(payload.index, library.scalesCountFromCategory(target), payload.category, target);
    library.setCurrentCategoryIndex(library.indexOfCategory(target, 0));
    library.setCurrentScaleIndex(target, library.indexOfScaleFromCategory(target, payload.word, 0));
    mainWnd->centerScreen->refreshBrowser();
    mainWnd->checkScaleMatches(true);
    return true;
}

void CategoryListWidget::dragCancel()
{
    AbstractListWidget::dragCancel();
    offered = nullptr;
}
