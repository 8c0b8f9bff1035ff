// The library view as a whole: its coming and going, and its signs.

#include "screen/CenterScreen.h"

#include "headers/selector_access.h"
#include "keys/ScaleKeyController.h"
#include "keys/StageMenu.h"
#include "screen/CategoryListWidget.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"
#include "screen/library_name.h"

#include <QTimer>

void CenterScreen::addLibraryView()
{
    if (view)
        return;
    samplePage = getMainTextData(QStringLiteral(":/Resources/LibraryScreen/Sample-descr.html"));
    view = std::make_unique<LibraryView>(*scene, window);
    setLibraryAccess(false);
    connect(view->categories, &QListWidget::itemPressed, this, &CenterScreen::categoryListItemClicked);
    connect(view->categories, &QListWidget::itemDoubleClicked, this, &CenterScreen::editCategory);
    connect(view->scales, &QListWidget::itemPressed, this, &CenterScreen::scaleListItemClicked);
    connect(view->scales, &QListWidget::itemDoubleClicked, this, &CenterScreen::scaleListItemDblClicked);
    connect(view->description, &DescriptionEditor::pressed, this, &CenterScreen::descrButtonClicked);
    connect(view->categories, &AbstractListWidget::editKeyPressed, this, &CenterScreen::editCategoryKey);
    connect(view->scales, &AbstractListWidget::editKeyPressed, this, &CenterScreen::editScaleKey);
}

void CenterScreen::showLibraryView(bool show)
{
    if (!view || libraryOpen == show)
        return;
    libraryOpen = show;
    if (isLibraryAccessible())
        libraryRemembered = show;
    view->setVisible(show);
    view->button(LibraryButton::scale_label).setEnabled(show);
    view->mark->setVisible(show && !matches);
    if (show) {
        playedWord = selector_access::scaleSelector().scaleModifier();
        describedWord = playedWord;
        refreshBrowser();
    } else {
        browserTimer->stop();
        if (categoryMenu)
            categoryMenu->close(); // it must not outlive what it works on
    }
}

void CenterScreen::setLibraryAccess(bool powered)
{
    view->button(LibraryButton::open_library).setEnabled(powered);
    view->button(LibraryButton::scale_label).setEnabled(false); // until the view shows
}

bool CenterScreen::isLibraryAccessible() const
{
    return view && view->button(LibraryButton::open_library).isEnabled();
}

void CenterScreen::setGhostCopyButtonsEnabled(bool enabled)
{
    for (const auto code :
         {LibraryButton::copy_scale, LibraryButton::move_scale, LibraryButton::delete_scale})
        view->button(code).setEnabled(enabled);
}

void CenterScreen::showExclamationMark(bool show)
{
    matches = !show;
    if (view)
        view->mark->setVisible(show && libraryOpen);
}

bool CenterScreen::canBeRightLibraryName(const QString& name) const
{
    return view && library_name::fits(name);
}
