// What the user does with the library: the buttons, the keys that stand for them, and the names of scales.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/ScaleKeyController.h"
#include "screen/AddWindow.h"
#include "screen/EditWindow.h"
#include "screen/scale_field.h"

#include <algorithm>
#include <iterator>

namespace {

/// The keys of the two lists, and the buttons that they stand for.
struct KeyRow
{
    int key;
    LibraryButton::Code inCategories, inScales;
};

constexpr auto noButton = static_cast<LibraryButton::Code>(0);
constexpr KeyRow keyRows[] = {
    {Qt::Key_Insert, LibraryButton::add_category, LibraryButton::add_scale},
    {Qt::Key_Delete, LibraryButton::delete_category, LibraryButton::delete_scale},
    {Qt::Key_F2, LibraryButton::rename_category, noButton},
    {Qt::Key_C, noButton, LibraryButton::copy_scale},
    {Qt::Key_X, noButton, LibraryButton::move_scale},
};

KeyRow rowOf(int key)
{
    const auto* row = std::find_if(std::begin(keyRows), std::end(keyRows),
                                   [key](const KeyRow& known) { return known.key == key; });
    return row != std::end(keyRows) ? *row : KeyRow{key, noButton, noButton};
}

template <typename Dialog>
void fill(Dialog& dialog, const scale_data& record)
{
    dialog.setName(record.title);
    dialog.setAbbr1(record.abbr1);
    dialog.setAbbr2(record.abbr2);
    dialog.setDescription(record.libBody);
}

template <typename Dialog>
scale_data read(const Dialog& dialog, const QString& word)
{
    return {word, dialog.abbr1(), dialog.abbr2(), dialog.name(), dialog.description()};
}

/// The dialog cuts what is too wide for the user's names; a name that was not touched stays whole.
QString keptAbbr(const QString& typed, const QString& before)
{
    return typed == AddWindow::findRightAbbrText(before) ? before : typed;
}

/// The record of a word: the library's, else the one of the player, else a new "User" one.
scale_data recordOf(const QString& word)
{
    scale_data record;
    if (mainWnd->library.getScaleData(word, record, DatabaseLibrary::LibraryRole) ||
        mainWnd->library.getScaleData(word, record, DatabaseLibrary::CustomRole))
        return record;
    const QString number = QStringLiteral("%1").arg(
        static_cast<ScaleKeyController*>(mainWnd->scaleController)->curScaleNumber());
    //: Files hold it, and it is looked for there: "User" in every language.
    const QString user = CenterScreen::tr("User");
    return {word, user, number, user + QLatin1Char(' ') + number, {}};
}

} // namespace

void CenterScreen::carryOut(LibraryButton::Code code)
{
    switch (code) {
    case LibraryButton::add_category:
        return appendCategory();
    case LibraryButton::delete_category:
        return deleteCategory();
    case LibraryButton::rename_category:
        return renameCategory();
    case LibraryButton::add_scale:
        return appendScale(title_field);
    case LibraryButton::copy_scale:
        return copyScale();
    case LibraryButton::move_scale:
        return moveScale();
    case LibraryButton::delete_scale:
        return deleteScale();
    case LibraryButton::edit_abbr1:
        return openEditSceneDlg(describedWord, abbr1_field);
    case LibraryButton::edit_abbr2:
        return openEditSceneDlg(describedWord, abbr2_field);
    case LibraryButton::open_library:
        return mainWnd->showLibraryScreen(true);
    case LibraryButton::close_library:
        return mainWnd->showLibraryScreen(false);
    case LibraryButton::scale_label:
        return openEditSceneDlg(playedWord, title_field);
    case LibraryButton::edit_description:
        return openEditSceneDlg(describedWord, description_field);
    default:
        return;
    }
}

void CenterScreen::editCategoryKey(int key)
{
    carryOut(rowOf(key).inCategories);
}

void CenterScreen::editScaleKey(int key)
{
    if (key == Qt::Key_F2)
        return openEditSceneDlg(describedWord, title_field);
    carryOut(rowOf(key).inScales);
}

void CenterScreen::appendScale(int field)
{
    addToLibrary(playedWord, field);
}

// By value, here and below: a note behind the dialog changes the words that the callers hold.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void CenterScreen::addToLibrary(QString word, int field)
{
    DatabaseLibrary& library = mainWnd->library;
    AddWindow dialog(field, mainWnd);
    const scale_data before = recordOf(word);
    fill(dialog, before);
    dialog.setCategoryList(library.categories().toList());
    dialog.setCurrentCategory(library.currentCategory());
    if (!dialog.exec())
        return;
    if (library.isCustomScale(word))
        library.removeScale(word); // it becomes a record of the library
    scale_data record = read(dialog, word);
    record.abbr1 = keptAbbr(record.abbr1, before.abbr1);
    record.abbr2 = keptAbbr(record.abbr2, before.abbr2);
    library.setScaleData(word, record, DatabaseLibrary::LibraryRole);
    library.appendScaleToCategory(dialog.category(), word);
    library.setCurrentCategory(dialog.category());
    library.setCurrentScaleIndex(dialog.category(),
                                 library.indexOfScaleFromCategory(dialog.category(), word, 0));
    showStored(word);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
void CenterScreen::openEditSceneDlg(QString word, int field)
{
    if (word.isEmpty() || mainWnd->dialogOpen)
        return;
    if (mainWnd->library.findCategoriesWithScale(word).isEmpty())
        return addToLibrary(word, field);
    EditWindow dialog(field, mainWnd);
    fill(dialog, recordOf(word));
    if (!dialog.exec())
        return;
    mainWnd->library.setScaleData(word, read(dialog, word), DatabaseLibrary::LibraryRole);
    showStored(word);
}

void CenterScreen::showStored(const QString& word)
{
    mainWnd->headerController->updateHeaderScenics(word);
    refreshBrowser();
    mainWnd->checkScaleMatches(true);
}
