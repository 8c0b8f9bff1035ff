#pragma once

#include "keys/pictures.h"
#include "screen/LibraryButton.h"

#include <QRect>

/// The thirteen buttons of the library, by code: picture, place in the scene, tool tip, and what a release
/// opens.
namespace library_button_table {

struct Row
{
    LibraryButton::Code code;
    const char* picture;
    QRect place;
    const char* tip;
    const char* opens;
};

inline const Row rowsOfTable[] = {
    {LibraryButton::add_category,
     "LibCatPlus",
     {288, 19, 16, 16},
     "New category (Insert)",
     "ChangeDialog name"},
    {LibraryButton::delete_category,
     "LibCatMinus",
     {306, 19, 16, 16},
     "Delete the category (Delete)",
     "AlertWidget"},
    {LibraryButton::rename_category,
     "LibCatRename",
     {324, 19, 16, 16},
     "Rename the category (F2)",
     "ChangeDialog name"},
    {LibraryButton::add_scale,
     "LibAdd",
     {412, 19, 16, 16},
     "Add the scale that is played (Insert)",
     "AddWindow title"},
    {LibraryButton::copy_scale,
     "LibNameCopy",
     {430, 19, 16, 16},
     "Copy the scale to another category (Ctrl+C)",
     "StageMenu"},
    {LibraryButton::move_scale,
     "LibNameMove",
     {448, 19, 16, 16},
     "Move the scale to another category (Ctrl+X)",
     "StageMenu"},
    {LibraryButton::delete_scale,
     "LibNameDelete",
     {466, 19, 16, 16},
     "Delete the scale from the category (Delete)",
     "AlertWidget"},
    {LibraryButton::edit_abbr1,
     "LibDescrAbb1",
     {601, 19, 42, 16},
     "First short name: click to edit",
     "EditWindow abbr1"},
    {LibraryButton::edit_abbr2,
     "LibDescrAbb2",
     {645, 19, 42, 16},
     "Second short name: click to edit",
     "EditWindow abbr2"},
    {LibraryButton::open_library, "LibAccessOpen", {732, 105, 42, 16}, "Open the scale library (Ctrl+L)", ""},
    {LibraryButton::close_library,
     "LibAccessClose",
     {732, 105, 42, 16},
     "Close the scale library (Ctrl+L)",
     ""},
    {LibraryButton::scale_label,
     "",
     {488, 19, 92, 16},
     "The scale that is played: click to edit its name",
     "EditWindow title"},
    {LibraryButton::edit_description,
     "LibCatRename",
     {672, 41, 16, 16},
     "Edit the description",
     "EditWindow description"},
};

inline QPixmap pictureOf(const Row& row, const char* state)
{
    const QString room = QStringLiteral(":/Resources/LibraryScreen/Buttons/");
    return pictures::load(*row.picture ? room + QLatin1String(row.picture) + QLatin1Char('_') + state +
                                             QLatin1String(".png")
                                       : room + QLatin1String("Scale_label.png"));
}

inline const Row& rowOf(int code)
{
    return rowsOfTable[code - 1];
}

inline bool looksLike(const LibraryButton& button, const QPixmap& picture)
{
    return !picture.isNull() && button.pixmap().toImage() == picture.toImage();
}

} // namespace library_button_table
