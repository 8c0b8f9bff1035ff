#pragma once

#include <QString>

class QGraphicsItem;

/// The item data roles of the stage. Every other file goes through the accessors below.
enum key_role {
    ROLE_SIDE = 1,  ///< string: "in", "out", "power", "header", "tonic", "scale"; int 59 on a main anchor
    ROLE_PITCH = 2, ///< int: MIDI note number, 21 to 108; the index 0 to 11 on a selector key
    ROLE_NAME = 3,  ///< string: "A0" to "C8", "#" for every black key; the table name on a selector key
    ROLE_STATE = 4, ///< string: "on" or "off", selector keys
    ROLE_SOUNDED_OUT = 7,  ///< int: the out pitch that the last push of this in key sounded
    ROLE_IN_SCALE = 8,     ///< string: "on" or "off", in keys
    ROLE_HEADER_SLOT = 12, ///< int: MIDI note number of a header's black key
    ROLE_ACTIVITY = 44,    ///< string: "active" or "deactive", in keys; unset counts as active
    ROLE_BLACK_OUT = 77,   ///< int: read by findAndReleaseBlackOut() only, written by nobody
    ROLE_TARGET = 99,    ///< int, or the string "-1", on in keys; "on" or "off" on out keys; an anchor's name
    ROLE_OUT_EDGE = 100, ///< string: "pushed" or "released", out keys
    ROLE_VELOCITY = 555  ///< int: velocity of the MIDI event being processed, 0 outside it
};

/// Typed doors to the item data. A null item reads as an item without data, and what is written to it is
/// lost: the walks of the mapping run past the ends of the keyboard and rely on that.
namespace key_roles {

[[nodiscard]] QString side(const QGraphicsItem* item);
void setSide(QGraphicsItem* item, const QString& side);
[[nodiscard]] bool isIn(const QGraphicsItem* item);
[[nodiscard]] bool isOut(const QGraphicsItem* item);
[[nodiscard]] bool isHeader(const QGraphicsItem* item);
[[nodiscard]] bool isPower(const QGraphicsItem* item);

/// MIDI note number of a key, index of a selector key; 0 for an item that is no key.
[[nodiscard]] int pitch(const QGraphicsItem* item);
void setPitch(QGraphicsItem* item, int pitch);
/// Kept: the extra scale key stores its index as text.
void setPitchText(QGraphicsItem* item, const QString& pitch);

[[nodiscard]] QString name(const QGraphicsItem* item);
void setName(QGraphicsItem* item, const QString& name);
/// True for the name "#" and no other.
[[nodiscard]] bool isBlack(const QGraphicsItem* item);

/// A selector key's "on" or "off".
[[nodiscard]] bool isStateOn(const QGraphicsItem* item);
void setStateOn(QGraphicsItem* item, bool on);

/// 0 until the first push; kept after the release.
[[nodiscard]] int soundedOut(const QGraphicsItem* item);
void setSoundedOut(QGraphicsItem* item, int pitch);

[[nodiscard]] bool isInScale(const QGraphicsItem* item);
void setInScale(QGraphicsItem* item, bool on);

[[nodiscard]] bool isDeactive(const QGraphicsItem* item);
void setActive(QGraphicsItem* item, bool active);

/// The out pitch that an in key drives, pitch_mapping::noTarget for none. Both stored forms, number and text,
/// read alike.
[[nodiscard]] int target(const QGraphicsItem* item);
[[nodiscard]] QString targetText(const QGraphicsItem* item);
void setTarget(QGraphicsItem* item, int pitch);
void setTargetText(QGraphicsItem* item, const QString& pitch);

/// True if an out key is coloured as part of the scale.
[[nodiscard]] bool isColoured(const QGraphicsItem* item);
void setColoured(QGraphicsItem* item, bool on);

/// The edge memory of an out key. A key that was never pressed is not "released" either.
[[nodiscard]] bool isEdgeReleased(const QGraphicsItem* item);
void setEdgeReleased(QGraphicsItem* item, bool released);

[[nodiscard]] int velocity(const QGraphicsItem* item);
void setVelocity(QGraphicsItem* item, int velocity);

/// The black key of a header, as a MIDI note number; 0 on any other item.
[[nodiscard]] int headerSlot(const QGraphicsItem* item);
void setHeaderSlot(QGraphicsItem* item, int pitch);

[[nodiscard]] int blackOut(const QGraphicsItem* item);

/// "main", or the number of a numbered anchor as text.
[[nodiscard]] QString anchorName(const QGraphicsItem* anchor);
void setAnchorName(QGraphicsItem* anchor, const QString& name);
/// The marks that the main anchor bears besides its name; read by nobody.
void markMainAnchor(QGraphicsItem* anchor);
void markMainPicture(QGraphicsItem* picture);

/// True if the data under a role, whichever it is, reads as that word.
[[nodiscard]] bool bears(const QGraphicsItem* item, int role, const QString& word);

} // namespace key_roles
