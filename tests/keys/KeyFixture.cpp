// The window that the tests of the keys share.

#include "KeyFixture.h"

void KeyFixture::openKeys()
{
    openWindow();
    window->setPower(true);
}

void KeyFixture::slideBy(int shift)
{
    anchor.setPos(-17.0 * shift, 0);
    window->powerItem->mainAnchorIn = &anchor;
    window->powerItem->changeScaleByTonic();
}

bool KeyFixture::shows(const ResizableItem* key, KeySheet sheet, KeyCell cell, KeyShine shine)
{
    const KeyShape shape = key_pictures::shapeOf(key_roles::name(key));
    return key->pixmap().cacheKey() == key_pictures::picture(sheet, shape, cell, shine).cacheKey();
}
