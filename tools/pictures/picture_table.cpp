#include "tools/pictures/picture_table.h"

const std::vector<Picture>& allPictures()
{
    static const std::vector<Picture> table = [] {
        std::vector<Picture> pictures;
        addKeyPictures(pictures);
        addPowerPictures(pictures);
        addHeaderPictures(pictures);
        addBackgrounds(pictures);
        addOverlays(pictures);
        addBars(pictures);
        addAnchorPictures(pictures);
        addSelectorPictures(pictures);
        addDisplayPictures(pictures);
        addLogo(pictures);
        addLibraryPictures(pictures);
        addLibraryButtons(pictures);
        addGamePictures(pictures);
        addDialogPictures(pictures);
        addDigitSheets(pictures);
        return pictures;
    }();
    return table;
}

QImage paintPicture(const Picture& picture, int scale)
{
    QImage image(picture.size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    picture.paint(painter);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
