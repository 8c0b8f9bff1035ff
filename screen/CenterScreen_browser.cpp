// What the browser shows: the lists, the page, the plates. They follow the played scale and the library, and
// are built anew only where they differ from what they should show, never between a note's coming and going.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "headers/selector_access.h"
#include "keys/ScaleKeyController.h"
#include "library/scale_word.h"
#include "logging/categories.h"
#include "screen/CategoryListWidget.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"
#include "screen/description_page.h"
#include "screen/scale_field.h"

#include <QTimer>

using selector_access::scaleSelector;

bool CenterScreen::Shown::operator==(const Shown& other) const
{
    return revision == other.revision && category == other.category && scale == other.scale &&
           described == other.described && played == other.played;
}

CenterScreen::Shown CenterScreen::wanted() const
{
    const DatabaseLibrary& library = mainWnd->library;
    const QString category = library.currentCategory();
    return {library.revision(), library.currentCagetoryIndex(), library.currentScaleIndex(category),
            describedWord, playedWord};
}

void CenterScreen::updateBrowser()
{
    if (libraryOpen && !browserTimer->isActive() && !(wanted() == shown))
        browserTimer->start();
}

void CenterScreen::refreshBrowser()
{
    browserTimer->stop();
    if (!libraryOpen || view->scales->isDragging())
        return; // rows must stay where the hand took them
    DatabaseLibrary& library = mainWnd->library;
    const QString current = library.currentScale();
    if (!current.isEmpty())
        describedWord = current;
    const Shown now = wanted();
    if (now.revision != shown.revision)
        updateCategoryItems();
    view->categories->setCurrentRow(now.category);
    if (now.revision != shown.revision || now.category != shown.category)
        updateNameItems(library.currentCategory(), now.scale);
    view->scales->setCurrentRow(now.scale);
    setGhostCopyButtonsEnabled(!current.isEmpty());
    if (now.revision != shown.revision || now.described != shown.described || now.played != shown.played)
        showDescription();
    shown = now;
}

void CenterScreen::updateCategoryItems()
{
    CategoryListWidget& list = *view->categories;
    const QVector<QString> names = mainWnd->library.categories();
    if (names.isEmpty())
        return list.showRemark(tr("(no categories)"));
    QVector<QString> rows;
    for (int row = 0; row < list.count(); ++row)
        rows.append(list.keyAt(row));
    if (rows == names)
        return; // the list stays where it is scrolled to
    list.clear();
    for (int i = 0; i < names.size(); ++i)
        list.insertItem(i, names.at(i));
}

void CenterScreen::updateNameItems(const QString& category, int index)
{
    ScaleListWidget& list = *view->scales;
    list.category = category;
    std::vector<std::pair<QString, QString>> rows;
    const QList<QString> words = mainWnd->library.scalesFromCategory(category);
    for (const QString& word : words) {
        scale_data record;
        mainWnd->library.getScaleData(word, record, DatabaseLibrary::AnyRole);
        rows.emplace_back(word, record.title.isEmpty() ? word : record.title);
    }
    if (rows != shownScales || list.count() == 0) {
        list.clear();
        for (std::size_t i = 0; i < rows.size(); ++i)
            list.insertItem(static_cast<int>(i), rows[i].first, rows[i].second);
        if (rows.empty())
            list.showRemark(tr("(no records)"));
        shownScales = rows;
    }
    list.setCurrentRow(index);
}

void CenterScreen::updateSceneDescr(const QString& key)
{
    playedWord = describedWord = key;
}

void CenterScreen::showDescription()
{
    scale_data described, played;
    const bool known = mainWnd->library.getScaleData(describedWord, described, DatabaseLibrary::AnyRole);
    const QString page = known ? descriptionPage(samplePage, described) : QString();
    if (page != shownPage)
        view->description->setHtml(page);
    shownPage = page;
    view->button(LibraryButton::edit_abbr1).setText(described.abbr1);
    view->button(LibraryButton::edit_abbr2).setText(described.abbr2);
    mainWnd->library.getScaleData(playedWord, played, DatabaseLibrary::AnyRole);
    view->button(LibraryButton::scale_label)
        .setText((played.abbr1 + QLatin1Char(' ') + played.abbr2).trimmed());
}

void CenterScreen::categoryListItemClicked(QListWidgetItem* item)
{
    DatabaseLibrary& library = mainWnd->library;
    const QString category = view->categories->keyAt(view->categories->row(item));
    if (category.isEmpty())
        return;
    library.setCurrentCategoryIndex(library.indexOfCategory(category, 0));
    // The remembered scale may have moved since.
    const int remembered = library.currentScaleIndex(category);
    const int index =
        library.indexOfScaleFromCategory(category, library.scaleFromCategory(category, remembered), 0);
    library.setCurrentScaleIndex(category, index);
    refreshBrowser();
}

void CenterScreen::scaleListItemClicked(QListWidgetItem* item)
{
    DatabaseLibrary& library = mainWnd->library;
    const QString category = view->scales->category; // what the hand saw, though a note may have left it
    const QString word = view->scales->keyAt(view->scales->row(item));
    if (word.isEmpty())
        return;
    library.setCurrentCategory(category);
    library.setCurrentScaleIndex(category, library.indexOfScaleFromCategory(category, word, 0));
    describedWord = word;
    if (scaleSelector().switchOn)
        playScale(word);
    refreshBrowser();
}

void CenterScreen::scaleListItemDblClicked(QListWidgetItem*)
{
    qCDebug(lcScreen) << "CenterScreen::scaleListDbClicked";
    DatabaseLibrary& library = mainWnd->library;
    const QString category = library.currentCategory();
    const QString word = library.scaleFromCategory(category, library.currentScaleIndex(category));
    if (!word.isEmpty()) {
        if (!scaleSelector().switchOn)
            scaleSelector().setSwitchOn(true);
        library.setCurrentCategory(category); // the switch has asked where the scale before it stands
        playScale(word);
    }
    mainWnd->focusInKeyboard();
}

// As a gesture on the selector does it.
void CenterScreen::playScale(const QString& word)
{
    if (!isScaleWord(word) || !scaleSelector().setScaleModifier(word, false))
        return;
    mainWnd->headerController->storeScale(true, word);
    mainWnd->checkScaleMatches(true);
}

void CenterScreen::descrButtonClicked()
{
    openEditSceneDlg(describedWord, description_field);
}
