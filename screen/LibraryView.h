#pragma once

#include "screen/LibraryButton.h"

#include <QList>

#include <array>

class CategoryListWidget;
class DescriptionEditor;
class QGraphicsScene;
class RightTracker;
class ScaleListWidget;

/// What the library looks like: the lists, the page, the buttons and where they stand. It knows no scales.
class LibraryView
{
public:
    /// The widgets belong to `window`, the pictures to `scene`. Hidden at first.
    LibraryView(QGraphicsScene& scene, QWidget* window);

    void setVisible(bool visible);
    /// All buttons as if no pointer had been there.
    void setPlain();
    [[nodiscard]] LibraryButton& button(LibraryButton::Code code) const;
    /// The children of the window among it.
    [[nodiscard]] QList<QWidget*> widgets() const;

    CategoryListWidget* const categories;
    ScaleListWidget* const scales;
    DescriptionEditor* const description;
    RightTracker* const tracker;
    QGraphicsPixmapItem* background = nullptr;
    QGraphicsPixmapItem* mark = nullptr; ///< the played scale is not in the library

private:
    void addButtons(QGraphicsScene& scene);
    void dressLists();
    void dressDescription();

    std::array<LibraryButton*, LibraryButton::codes + 1> buttons{}; ///< by code
};
