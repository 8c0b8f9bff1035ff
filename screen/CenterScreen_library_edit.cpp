// What the user does with the library: the buttons' actions. Only a category that is the last one is safe.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/ScaleKeyController.h"
#include "keys/StageMenu.h"
#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"
#include "screen/LibraryView.h"

#include <QGraphicsScene>
#include <QGraphicsView>

namespace {

enum field : int { title_field = 1, abbr1_field = 2, abbr2_field = 3, description_field = 4 };

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

/// A name as an alert has room for it.
QString shortened(const QString& name)
{
    constexpr int room = 40; // characters
    if (name.size() <= room)
        return name;
    const bool splitsPair = name.at(room - 2).isHighSurrogate();
    return name.left(splitsPair ? room - 2 : room - 1) + QChar(0x2026);
}

bool isBlank(const QString& text)
{
    return text.trimmed().isEmpty();
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

void CenterScreen::editKey(bool inScales, int key)
{
    if (inScales && key == Qt::Key_F2)
        return openEditSceneDlg(describedWord, title_field);
    for (const KeyRow& row : keyRows)
        if (row.key == key)
            carryOut(inScales ? row.inScales : row.inCategories);
}

void CenterScreen::appendCategory()
{
    ChangeDialog dialog(mainWnd);
    dialog.setLabel(tr("Choose a name for the new Category:"));
    dialog.setOkButtonTitle(tr("Create"));
    if (!dialog.exec() || isBlank(dialog.text()))
        return;
    DatabaseLibrary& library = mainWnd->library;
    library.insertCategory(dialog.text());
    library.setCurrentCategoryIndex(library.indexOfCategory(dialog.text(), 0));
    refreshBrowser();
}

void CenterScreen::renameCategory()
{
    DatabaseLibrary& library = mainWnd->library;
    const QString oldName = library.currentCategory();
    if (oldName.isEmpty())
        return;
    ChangeDialog dialog(mainWnd);
    dialog.setLabel(tr("Choose a new name"));
    dialog.setOkButtonTitle(tr("Rename"));
    dialog.setText(oldName);
    if (!dialog.exec() || isBlank(dialog.text()))
        return;
    const int scale = library.currentScaleIndex(oldName);
    if (!library.renameCategory(oldName, dialog.text()))
        return;
    library.setCurrentCategoryIndex(library.indexOfCategory(dialog.text(), 0));
    library.setCurrentScaleIndex(dialog.text(), scale); // the library keeps it under the old name
    refreshBrowser();
}

void CenterScreen::editCategory()
{
    renameCategory();
}

bool CenterScreen::confirmDelete(const QString& name)
{
    return mainWnd->confirmAlert(tr("<h4>Are you sure you want to delete <br/>&quot;%1&quot;?</h4>"
                                    "<h6>You can't undo this action.</h6>")
                                     .arg(shortened(name).toHtmlEscaped()),
                                 tr("Delete"));
}

void CenterScreen::deleteCategory()
{
    DatabaseLibrary& library = mainWnd->library;
    const int index = library.currentCagetoryIndex();
    const QString category = library.currentCategory();
    if (library.categoryCount() < 2 || category.isEmpty() || !confirmDelete(category))
        return;
    const QString now = library.currentCategory(); // a note may have changed it behind the question
    library.removeCategory(category);
    if (now != category)
        library.setCurrentCategory(now);
    else if (index >= library.categoryCount())
        library.setCurrentCategoryIndex(index - 1);
    refreshBrowser();
    mainWnd->headerController->updateHeaderScenics({});
    mainWnd->checkScaleMatches(true);
}

void CenterScreen::deleteScale()
{
    DatabaseLibrary& library = mainWnd->library;
    const QString word = library.currentScale();
    const QString category = library.currentCategory();
    scale_data record;
    if (word.isEmpty())
        return;
    library.getScaleData(word, record, DatabaseLibrary::AnyRole);
    if (!confirmDelete(record.title.isEmpty() ? word : record.title))
        return;
    const int index = library.indexOfScaleFromCategory(category, word, 0);
    library.removeScaleFromCategory(category, index);
    library.setCurrentScaleIndex(category, qMin(index, library.scalesCountFromCategory(category) - 1));
    refreshBrowser();
    mainWnd->headerController->updateHeaderScenics(word);
    mainWnd->checkScaleMatches(true);
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

QString CenterScreen::askCategory(LibraryButton::Code at, const QString& word)
{
    const DatabaseLibrary& library = mainWnd->library;
    StageMenu menu(window);
    const QVector<QString> names = library.categories();
    for (const QString& name : names) {
        if (name == library.currentCategory())
            continue;
        QAction* action = menu.addAction(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setProperty("category", name);
        action->setEnabled(library.indexOfScaleFromCategory(name, word, 0) < 0);
    }
    if (menu.isEmpty())
        return {};
    categoryMenu = &menu;
    const LibraryButton& button = view->button(at);
    const QPointF corner = button.sceneBoundingRect().bottomLeft();
    const QGraphicsView* stage = form.centerGraphicsView;
    const QAction* chosen = nullptr;
    connect(&menu, &QMenu::triggered, this, [&chosen](const QAction* action) { chosen = action; });
    menu.exec(stage->viewport()->mapToGlobal(stage->mapFromScene(corner)));
    return chosen && libraryOpen ? chosen->property("category").toString() : QString();
}

void CenterScreen::copyScale()
{
    DatabaseLibrary& library = mainWnd->library;
    const QString word = library.currentScale();
    const QString target = word.isEmpty() ? QString() : askCategory(LibraryButton::copy_scale, word);
    if (target.isEmpty())
        return;
    library.appendScaleToCategory(target, word);
    refreshBrowser();
    mainWnd->checkScaleMatches(true);
}

void CenterScreen::moveScale()
{
    DatabaseLibrary& library = mainWnd->library;
    const QString word = library.currentScale();
    const QString source = library.currentCategory();
    const QString target = word.isEmpty() ? QString() : askCategory(LibraryButton::move_scale, word);
    const int from = library.indexOfScaleFromCategory(source, word, 0);
    if (target.isEmpty() || from < 0)
        return;
    library.moveScale(from, library.scalesCountFromCategory(target), source, target);
    library.setCurrentCategoryIndex(library.indexOfCategory(target, 0));
    library.setCurrentScaleIndex(target, library.indexOfScaleFromCategory(target, word, 0));
    refreshBrowser();
    mainWnd->checkScaleMatches(true);
}
