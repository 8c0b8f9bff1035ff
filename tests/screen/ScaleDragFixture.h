#pragma once

#include "LibraryFixture.h"

#include <QApplication>
#include <QLabel>

/// The library open on its first category with the scale switch off, and a hand that drags rows of the
/// scales.
class ScaleDragFixture : public LibraryFixture
{
protected:
    void openForDrags()
    {
        openWindow();
        show();
        openLibrary();
        scale().setSwitchOff(true);
        play(ionian);
        settle();
        showCategory(0);
    }
    void closeAfterDrags()
    {
        if (window)
            release({1, 1}); // whatever a test held
        closeWindow();
    }

    /// Presses on a row and moves until the drag is under way.
    void drag(int row) const
    {
        const QPoint from = placeOfRow(scaleList(), row);
        press(from);
        move(from + QPoint(QApplication::startDragDistance(), 0));
        QVERIFY(scaleList().isDragging());
    }
    /// What follows the pointer, or null.
    QLabel* dragPicture() const
    {
        for (QLabel* label : window->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
            if (!label->isHidden() && label->testAttribute(Qt::WA_TransparentForMouseEvents) &&
                label->pixmap(Qt::ReturnByValue).height())
                return label;
        return nullptr;
    }
    /// Nothing of a drag is left.
    bool isOver() const
    {
        const auto* line = scaleList().viewport()->findChild<QLabel*>();
        const auto* frame = categoryList().viewport()->findChild<QLabel*>();
        return !scaleList().isDragging() && line->isHidden() && frame->isHidden() &&
               !scaleList().viewport()->testAttribute(Qt::WA_SetCursor);
    }
};
