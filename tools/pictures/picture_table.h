#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>

#include <functional>
#include <vector>

/// One picture of the instrument: where it goes, how large it is, and who paints it.
struct Picture
{
    QString path; ///< below Resources/
    QSize size;   ///< logical pixels
    std::function<void(QPainter&)> paint;
};

/// Every picture of the program.
[[nodiscard]] const std::vector<Picture>& allPictures();

/// Paints a picture at a scale of 1 or 2: vectors, never an enlargement.
[[nodiscard]] QImage paintPicture(const Picture& picture, int scale);

// One source each.
void addKeyPictures(std::vector<Picture>& table);
void addPowerPictures(std::vector<Picture>& table);
void addHeaderPictures(std::vector<Picture>& table);
void addBackgrounds(std::vector<Picture>& table);
void addOverlays(std::vector<Picture>& table);
void addBars(std::vector<Picture>& table);
void addAnchorPictures(std::vector<Picture>& table);
void addSelectorPictures(std::vector<Picture>& table);
void addDisplayPictures(std::vector<Picture>& table);
void addLogo(std::vector<Picture>& table);
void addLibraryPictures(std::vector<Picture>& table);
void addLibraryButtons(std::vector<Picture>& table);
void addGamePictures(std::vector<Picture>& table);
void addDialogPictures(std::vector<Picture>& table);
void addDigitSheets(std::vector<Picture>& table);
