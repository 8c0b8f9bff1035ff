// What the user does with the categories, and with the places of scales in them. Only a category that is the
// last one is safe.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/StageMenu.h"
#include "screen/ChangeDialog.h"
#include "screen/LibraryView.h"

#include <QGraphicsView>

namespace {

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

} // namespace

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
