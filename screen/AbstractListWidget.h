#pragma once

#include <QListWidget>
#include <QPointer>

#include <memory>

class QLabel;
class QMimeData;

/// A list of the library. What is dragged between the lists is a row of the scale list; the drag stays inside
/// the window and lives on mouse events, so that the note road never waits for it.
class AbstractListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit AbstractListWidget(QWidget* parent);
    ~AbstractListWidget() override;

    /// Pixels of a row; at least 1.
    [[nodiscard]] int itemHeight() const { return rowHeight; }
    void setItemHeight(int height);

    // Drag and drop
    /// The payload: source category, scale word, scale title (QVariants with a string each), source index
    /// (int), in a QDataStream.
    [[nodiscard]] QString customMimeType() const;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] bool isDragging() const { return dragging; }
    /// Begins a drag with this payload, which the list owns, and the picture that follows the pointer.
    void dragStart(QMimeData* payload, const QPixmap& pixmap);
    /// Ends the drag; its payload stays for a drop.
    void dragFinish();
    /// Ends the drag without a drop.
    virtual void dragCancel();
    /// A mouse button went down or up while this list drags; `pos` is in the viewport.
    virtual void dragButton(const QMouseEvent& event, const QPoint& pos);

    // Where a drop would go
    /// The place for a drop at a point of the viewport; -1 for none.
    [[nodiscard]] virtual int availableIndex(const QPoint& pos) const = 0;
    /// Shows or hides the mark of a place.
    virtual void showIndicator(bool show, int index) = 0;
    /// Marks the place at a point, but for `except`, which would change nothing.
    void trackIndicator(const QPoint& pos, int except);

    /// What a row stands for, a category's name or a scale's word; "" for a row that is neither.
    [[nodiscard]] QString keyAt(int row) const;
    /// Shows one line that is no row, such as "(no records)".
    void showRemark(const QString& text);

    /// Empty: typing never moves the selection.
    void keyboardSearch(const QString&) override {}

signals:
    /// A key that stands for a button of the list (Insert, Delete, F2, Ctrl+C, Ctrl+X).
    void editKeyPressed(int key);

protected:
    // Only the left button means something; rows are not selected as the pointer passes them
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    /// Arrow keys choose a row as a press of the mouse does.
    void keyPressEvent(QKeyEvent* event) override;
    void moveDragPicture(const QPoint& globalPos);
    /// A row that shows `text`, elided, with the whole of it as its tool tip.
    void dressItem(QListWidgetItem* item, const QString& text, const QString& key) const;

    QLabel* const indicator;
    std::unique_ptr<QMimeData> dragData;

private:
    int rowHeight = 14;
    bool dragging = false;
    QPointer<QLabel> dragPicture; ///< the window's
};
