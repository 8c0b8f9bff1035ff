#pragma once

#include "keys/degree_marks.h"
#include "keys/key_pictures.h"
#include "keys/pitch_mapping.h"

#include <QGraphicsPixmapItem>
#include <QList>

class AnchorsGroup;
class QGraphicsItemGroup;

/// A key of either keyboard, and the base of the power button and the headers. Its musical state lives in
/// item data (key_roles.h); its picture is always a crop of a key sheet. Mapping operations run on the power
/// item, press and release on the key. Main thread only.
class ResizableItem : public QGraphicsPixmapItem
{
public:
    ResizableItem();

    /// The key as it is seen, without the notches in which black keys lie; the whole picture of all else.
    QPainterPath shape() const override;

    // Press and release (ResizableItem_press.cpp)
    /// Picture, note, bookkeeping, in this order. An in key sounds its target, an out key itself.
    void pushKey();
    /// Ends what pushKey() began; an in key stops the pitch that it sounded, whatever it is mapped to now.
    void releaseKey();
    /// Sounds and shows an out pitch for this in key; -1 does nothing.
    void pushOUTbyIN(int outPitch);
    void releaseOUTbyIN(int outPitch);
    /// No caller. Releases the remembered black out key unless a white key follows `pitch` directly.
    void findAndReleaseBlackOut(int pitch);
    /// Sends a note message with this key's velocity; 75 if it has none, 0 with a note-off (0x80).
    /// `noteOverride` -1 is the key's own note. Note 0 and a set learn flag send nothing.
    void sendOutMidi(int status, int noteOverride);

    // Mapping, on the power item (ResizableItem_mapping.cpp)
    /// Semitones from C to the active tonic, 0 to 11; 0 with the power off.
    [[nodiscard]] int getCurTonicModifier() const;
    /// Recomputes scale membership, targets and colours of all keys from the selectors.
    void changeScaleByTonic();
    /// `tonic` -1 asks getCurTonicModifier(). Not enabled, every key drives its own pitch.
    void setOutForIn(int tonic, bool enabled);
    /// Slides the targets by the shift of the main in anchor.
    void setOutForIntByPitch();

    // Activation and colours, on the power item (ResizableItem_activation.cpp)
    /// Colours the out keyboard by scale membership.
    void changeColorOut(bool power);
    /// Blue black in keys say: presets, not notes.
    void setAllBlackBlue(bool power);
    /// Greys and silences the white in keys without a target.
    void setKeysDeactive();
    /// No caller; the earlier form of setKeysDeactive().
    void setAllKeysActive();

    // Marks along the keyboards, on the power item (ResizableItem_indexes.cpp)
    /// Brings anchors, greyed keys and degree numbers up to date; `tonic` -1 asks getCurTonicModifier().
    void redrawAnchorAxis(int tonic);
    /// Numbers the live white in keys by the degrees that they play; the bar is bare with the power off.
    /// `count` is the number of degrees, -1 asks getCurScaleCount().
    void drawIndexesIN(int count);
    /// Numbers the scale on the out keys, in the octave of the tonic above middle C.
    void drawIndexesOUT();
    /// Counts the scale degrees that are on, 1 to 12, and numbers the squares of the scale selector.
    int getCurScaleCount(bool);
    /// No caller. Puts an in anchor on the white key that it touches; none leaves it.
    void findPosForAnchor(QGraphicsItemGroup* anchor);
    /// Pixels that a number on the out bar is moved by, from a table set by hand; 0 beyond it. `tonic` is 0
    /// to 11, `ordinal` the number.
    [[nodiscard]] int correctCoordAnchorOutByTonic(int tonic, int ordinal, int count) const;
    /// The numbers that the bars show now, from left to right.
    [[nodiscard]] const degree_marks::Marks& marksIn() const { return shownIn; }
    [[nodiscard]] const degree_marks::Marks& marksOut() const { return shownOut; }

    bool isPushed = false;
    bool mouseHeld = false;
    QGraphicsItem* pairedOutKey = nullptr; ///< on an in key: the out key of the same pitch

    // The five key sheets, shared by all keys.
    QPixmap mainPix, mainPixIn, mainPixOut, mainPixDeactive, mainPixLearn;

    bool pressedByMouse = false;
    bool dragStarted = false;
    bool powerGrabbed = false;

    QList<QGraphicsItem*> listItemsTonic; ///< selector items by index, the extra scale key last
    QList<QGraphicsItem*> listItemsOUT;
    QList<QGraphicsItem*> listItemsIN;

    // Filled on the power item only.
    QGraphicsItem* anchorBarIn = nullptr;
    QGraphicsItem* anchorBarOut = nullptr;
    QGraphicsItemGroup* mainAnchorIn = nullptr;
    QList<QGraphicsItemGroup*> anchorsInRight, anchorsInLeft;
    QGraphicsItemGroup* mainAnchorOut = nullptr;
    QList<QGraphicsItemGroup*> anchorsOutRight, anchorsOutLeft;
    AnchorsGroup* anchorsGroup = nullptr;

protected:
    // Pointer (ResizableItem_pointer.cpp, ResizableItem_drag.cpp)
    bool sceneEvent(QEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    [[nodiscard]] KeyShape keyShape() const;
    void showCell(KeySheet sheet, KeyCell cell, KeyShine shine);

    void pushIn(KeySheet sheet, int target);
    void pushOut(KeySheet sheet);
    void learnFromKey();
    void pushBlackIn();
    void togglePower();
    void followPower() const;
    void recallPreset();
    [[nodiscard]] KeySheet idleSheet() const;

    [[nodiscard]] pitch_mapping::PitchSet scaleFromRoles() const;
    void writeIdentity();
    void deactivateUnmapped(ResizableItem* key, bool dead) const;

    void placeInAnchors(int count);
    void placeOutAnchors(int tonic);
    void showMarks(QGraphicsItem* bar, const degree_marks::Marks& marks, degree_marks::Marks& shown) const;

    void takeArmedGesture();
    void pressPower(QPointF pos);
    void pressHeader();
    void sweep(QPointF pointer);
    void dragPower(const QGraphicsSceneMouseEvent& event);
    void dragAlong(const QGraphicsSceneMouseEvent& event);
    void endDrag();
    void releaseHeader();
    void releasePower(QPointF pos);
    void losePointer();

    qreal gripX = 0; ///< where in its picture the hand took a dragged item, in pixels
    degree_marks::Marks shownIn, shownOut;
};
