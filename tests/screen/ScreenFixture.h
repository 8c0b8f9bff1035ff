#pragma once

#include "HeaderFixture.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

/// A fresh window with a recording port for each test of the centre screen.
class ScreenFixture : public HeaderFixture
{
    Q_OBJECT

protected:
    CenterScreen& screen() const { return *window->centerScreen; }
    LibraryView& view() const { return *screen().libraryView(); }
    ScaleListWidget& scaleList() const { return *view().scales; }
    CategoryListWidget& categoryList() const { return *view().categories; }
    LibraryButton& button(LibraryButton::Code code) const { return view().button(code); }
    /// With the power on.
    void openLibrary() const;
    /// Presses and releases the left button on a library button, through the view.
    void click(LibraryButton::Code code) const;
    /// What the rows of a list read.
    static QStringList rows(const QListWidget& list);
};
