#pragma once

#include "screen/AbstractListWidget.h"

#include <QIcon>

/// The list of categories. A scale that is dropped on one goes there.
class CategoryListWidget : public AbstractListWidget
{
    Q_OBJECT

public:
    explicit CategoryListWidget(QWidget* parent);

    // Rows; `index` is the category's in the library
    void updateItem(QListWidgetItem* item, int index, const QString& name);
    void insertItem(int index, const QString& name);

    // Drop
    /// Whether a payload can go to a row: not to the category that it comes from, nor to one that holds it.
    [[nodiscard]] bool takes(int row, const QMimeData* mime) const;
    /// The row under the point, or -1.
    [[nodiscard]] int availableIndex(const QPoint& pos) const override;
    /// Frames the row.
    void showIndicator(bool show, int index) override;
    /// What a drop at a point would take; valid while a drag of another list goes on.
    void offer(const QMimeData* mime, Qt::DropAction action);
    /// Takes what is offered. False if it is refused.
    bool dropData(const QPoint& pos);
    /// Moves the payload's scale to the category of that row, or copies it there if that is offered.
    bool dropData(int row, const QMimeData* mime);
    void dragCancel() override;

private:
    QIcon folder;
    const QMimeData* offered = nullptr;
    Qt::DropAction offeredAction = Qt::MoveAction;
};
