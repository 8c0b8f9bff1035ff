#pragma once

#include <QGraphicsPixmapItem>
#include <QPixmap>

/// A picture button of the centre scene. It is pressed under the pointer and acts when it is let go inside.
class LibraryButton : public QGraphicsPixmapItem
{
public:
    /// What a release does; also the number that a button is known by.
    enum Code {
        add_category = 1,
        delete_category = 2,
        rename_category = 3,
        add_scale = 4,
        copy_scale = 5,
        move_scale = 6,
        delete_scale = 7,
        edit_abbr1 = 8, ///< its plate shows that short name
        edit_abbr2 = 9,
        open_library = 10,
        close_library = 11,
        scale_label = 12, ///< its plate shows the played scale's short names
        edit_description = 13
    };
    static constexpr int codes = 13;

    /// `place` in scene coordinates.
    LibraryButton(Code buttonCode, QPoint place, const QPixmap& neutral, const QPixmap& active,
                  QGraphicsItem* parent);

    /// A disabled button is a ghost: faint, and blind to the pointer.
    void setEnabled(bool enabled);
    /// Shows the neutral picture, whatever the pointer did.
    void setPlain();
    /// What the plate reads.
    void setText(const QString& words);
    [[nodiscard]] QString text() const { return plateText; }
    [[nodiscard]] bool isPressed() const { return pressed; }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    const Code code;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    bool sceneEvent(QEvent* event) override;

private:
    void showPressed(bool down);

    const QPixmap neutralPix, activePix, ghostPix;
    QString plateText;
    bool pressed = false;
};
