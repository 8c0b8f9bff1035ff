#include "keys/ResizableItem.h"

#include "keys/key_roles.h"

#include <QPainterPath>

ResizableItem::ResizableItem()
    : mainPix(key_pictures::sheet(KeySheet::plain)), mainPixIn(key_pictures::sheet(KeySheet::in)),
      mainPixOut(key_pictures::sheet(KeySheet::out)),
      mainPixDeactive(key_pictures::sheet(KeySheet::deactive)),
      mainPixLearn(key_pictures::sheet(KeySheet::learn))
{
    setCacheMode(NoCache, QSize(-1, -1));
    setAcceptedMouseButtons(Qt::LeftButton);
}

QPainterPath ResizableItem::shape() const
{
    const KeyShape kind = keyShape();
    QPainterPath path;
    if (kind == KeyShape::none)
        path.addRect(boundingRect());
    else
        path.addRegion(key_pictures::outlineOf(kind));
    return path;
}

KeyShape ResizableItem::keyShape() const
{
    return key_pictures::shapeOf(key_roles::name(this));
}

void ResizableItem::showCell(KeySheet sheet, KeyCell cell, KeyShine shine)
{
    const KeyShape shape = keyShape();
    if (shape == KeyShape::none)
        return;
    const QPixmap& picture = key_pictures::picture(sheet, shape, cell, shine);
    // A remap shows most keys as they were; repainting them would cost more than the remap.
    if (picture.cacheKey() != pixmap().cacheKey())
        setPixmap(picture);
}
