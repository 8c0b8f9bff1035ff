#pragma once

#include <QGraphicsPixmapItem>
#include <QObject>

class KeyControllerBase;

enum tonic_key_type { tonic_key_tonic = 0, tonic_key_scale = 1 };

/// One key of the tonic row or of the scale row. Its picture is the lit key: an off key is all but invisible,
/// yet stays under the pointer. The scene drives it; its own mouse handlers do nothing.
class TonicKeyItem : public QObject, public QGraphicsPixmapItem
{
    Q_OBJECT

public:
    /// `index` counts semitones, 0 to 11. `parentCtrl` is required; a null one is logged.
    TonicKeyItem(tonic_key_type type, KeyControllerBase* parentCtrl, int index);

    QPainterPath shape() const override;

    /// The entry of the key's name table, "" outside 0 to 11.
    [[nodiscard]] QString tableName() const;

    void setOn();
    void setOff();
    void flip();
    /// A tonic key becomes the one active key of its row; a scale key flips. `update` remaps the keyboards.
    void changeState(bool update);
    void handleHiddenMouseMove();

    const tonic_key_type type;
    KeyControllerBase* const parentCtrl;
    bool on = false;
    const int index;

signals:
    void mousePressed(TonicKeyItem* key);
    void mouseReleased(TonicKeyItem* key);
    void mouseHoverEntered(TonicKeyItem* key);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    void becomeTonic();
    void flipDegree();
};
