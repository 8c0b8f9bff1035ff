#pragma once

#include "headers/header_data.h"
#include "keys/ResizableItem.h"
#include "library/scale_data.h"

#include <QCoreApplication>
#include <QFont>
#include <QRect>

class HeaderController;

/// The five pictures, one for each black key of the octave: C#, D#, F#, G#, A#.
enum header_type { header_c_sharp = 0, header_d_sharp, header_f_sharp, header_g_sharp, header_a_sharp };

enum header_status : int {
    header_deactive = 0,
    header_active = 1,
    header_active_shadow = 2,
    header_switch = 3,       ///< lit as a drop target
    header_switch_active = 4 ///< the same on the active header
};

/// A preset on the stage: a flag whose stem stands on its black key. It shows its state and its tonic, and
/// keeps its names in step with the scale library. Main thread only.
class HeaderItem : public ResizableItem
{
    Q_DECLARE_TR_FUNCTIONS(HeaderItem)

public:
    /// Names that the library has for the scale win over those of `data`.
    HeaderItem(HeaderController* owner, header_type kind, const header_data& data);

    /// The flag itself, not the empty corners of its picture.
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// An active header becomes the controller's active one. Nothing happens if the status is unchanged.
    void setStatus(header_status status);
    [[nodiscard]] header_status status() const { return currentStatus; }
    /// Active, lit as a drop target or not.
    [[nodiscard]] bool isActive() const;

    /// Takes the names from the library. A scale that the library does not hold gets a temporary record
    /// named "User" and a number; a scale that is off or empty has no names.
    void updateScenic();
    /// The record of a played word that is in no category. Its title is its two names.
    [[nodiscard]] static scale_data temporaryScale(const QString& word, const QString& name1,
                                                   const QString& name2);
    void setNameScenic1(const QString& name);
    void setNameScenic2(const QString& name);
    void setNameTonic(const QString& name);
    /// What the face does not tell: names, title, what is locked.
    [[nodiscard]] QString describe() const;

    /// Kept: a source whose tonic or scale is off leaves those fields of this header alone, names apart.
    void copyHeadersData(const HeaderItem* source);
    void swapHeadersData(HeaderItem* other);
    /// No caller. Swaps the bare values: pictures and the active header are the caller's.
    void swapHeadersStatus(HeaderItem* other);

    /// Lays the picture of the open menu over the item, or takes it away.
    void overlayContextMenu(bool on);
    /// Back to `homePos`.
    void restorePos();

    HeaderController* const controller; ///< not owned, may be null
    const header_type type;
    header_data record;
    QPointF homePos;
    QRect nameRect1, nameRect2, tonicRect;
    QPointF powerPoint; ///< where the stem ends
    QPixmap savedPixmap;

protected:
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;

private:
    void takeNamesFromLibrary();
    [[nodiscard]] scale_data libraryRecord();
    [[nodiscard]] QString describeScale() const;
    void applyLayout();

    header_status currentStatus = header_deactive;
    bool overlaid = false; ///< between the two calls of overlayContextMenu()
    const QFont font;
};
