#pragma once

#include <QRectF>
#include <QString>
#include <QVector>

class AbstractDialog;
class MainWnd;
class QGraphicsItem;
class QGraphicsView;

/// One thing of the face. All rectangles are in the window, in logical pixels.
struct FacePart
{
    QString name;
    QRectF painted; ///< the pixels that are not transparent
    QRectF home;    ///< the picture or panel it belongs to
    QRectF pane;    ///< what its view, or the widget it stands in, can show
};

namespace face_parts {

/// "in 60", "out 60", "flag 61", "power", "anchor -1", "out anchor 1", "tonic C#", "scale m3", "tonic
/// switch", "library button 3", "paper game"; "" for what is none of them.
[[nodiscard]] QString nameOf(const QGraphicsItem* item);

/// Everything that shows in a window, with the dialog that lies over it if there is one.
[[nodiscard]] QVector<FacePart> all(const MainWnd& window, const AbstractDialog* dialog);

} // namespace face_parts
