#pragma once

#include "screen/AbstractListWidget.h"

class CategoryListWidget;

/// The scales of the current category. A row can be dragged to another place of the list, or to a category.
class ScaleListWidget : public AbstractListWidget
{
    Q_OBJECT

public:
    ScaleListWidget(AbstractListWidget* categories, QWidget* parent);

    // Rows; `index` is the scale's in its category
    void updateItem(QListWidgetItem* item, int index, const QString& word, const QString& title);
    void insertItem(int index, const QString& word, const QString& title);
    QString category; ///< whose scales the rows are

    // Drag
    /// The row as the list paints it, on a plate of that size.
    [[nodiscard]] QPixmap pixmapForDragging(int row, const QSize& size) const;
    /// Begins to drag a row; `action` is what a drop on a category does until a key says otherwise.
    void dragStart(int row, Qt::DropAction action);
    void dragCancel() override;
    void dragButton(const QMouseEvent& event, const QPoint& pos) override;

    // Drop
    /// The row before which a drop goes, up to the number of rows; -1 outside.
    [[nodiscard]] int availableIndex(const QPoint& pos) const override;
    /// A line before the row.
    void showIndicator(bool show, int index) override;
    /// Takes the drag that is under way.
    bool dropData(const QPoint& pos);
    /// Moves the payload's scale before row `index` of the category that shows, or copies it there from
    /// another one. False if it is refused.
    bool dropData(int index, const QMimeData* mime);

public slots:
    /// Return plays the current scale; Escape ends a drag.
    void specialKeyPress(int key);

signals:
    /// A scale was copied into the list.
    void itemInserted(int index);
    /// A scale changed its place.
    void itemMoved(int fromIndex, int toIndex);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] CategoryListWidget* categories() const;
    void trackDrag(const QPoint& globalPos, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] int reorder(int from, int before) const;
    void cancelLostDrag();

    AbstractListWidget* const categoryList;
    QPoint pressPos;
    QPersistentModelIndex pressed; ///< gone with the rows when the list is filled anew
    Qt::DropAction dragAction = Qt::MoveAction;
};
