#include "screen/LibraryView.h"

#include "keys/pictures.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/RightTracker.h"
#include "screen/ScaleListWidget.h"
#include "screen/scroll_style.h"

#include <QCoreApplication>
#include <QGraphicsScene>

namespace {

constexpr char room[] = "LibraryView"; // the texts' context
constexpr int rowHeight = 13;

// In the scene; the widgets stand in the form.
constexpr QPoint formOfScene(-116, 152);
constexpr QPoint backgroundPlace(186, 15), markPlace(583, 20);
constexpr QRect categoriesPlace(193, 40, 148, 80), scalesPlace(349, 40, 132, 80),
    trackerPlace(482, 38, 6, 84), descriptionPlace(492, 43, 177, 73);

struct ButtonRow
{
    LibraryButton::Code code;
    const char* picture;
    QPoint place;
    const char* toolTip;
};

constexpr ButtonRow buttonRows[] = {
    {LibraryButton::add_category,
     "LibCatPlus",
     {288, 19},
     QT_TRANSLATE_NOOP("LibraryView", "New category (Insert)")},
    {LibraryButton::delete_category,
     "LibCatMinus",
     {306, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Delete the category (Delete)")},
    {LibraryButton::rename_category,
     "LibCatRename",
     {324, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Rename the category (F2)")},
    {LibraryButton::add_scale,
     "LibAdd",
     {412, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Add the scale that is played (Insert)")},
    {LibraryButton::copy_scale,
     "LibNameCopy",
     {430, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Copy the scale to another category (Ctrl+C)")},
    {LibraryButton::move_scale,
     "LibNameMove",
     {448, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Move the scale to another category (Ctrl+X)")},
    {LibraryButton::delete_scale,
     "LibNameDelete",
     {466, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Delete the scale from the category (Delete)")},
    {LibraryButton::edit_abbr1,
     "LibDescrAbb1",
     {601, 19},
     QT_TRANSLATE_NOOP("LibraryView", "First short name: click to edit")},
    {LibraryButton::edit_abbr2,
     "LibDescrAbb2",
     {645, 19},
     QT_TRANSLATE_NOOP("LibraryView", "Second short name: click to edit")},
    {LibraryButton::open_library,
     "LibAccessOpen",
     {732, 105},
     QT_TRANSLATE_NOOP("LibraryView", "Open the scale library (Ctrl+L)")},
    {LibraryButton::close_library,
     "LibAccessClose",
     {732, 105},
     QT_TRANSLATE_NOOP("LibraryView", "Close the scale library (Ctrl+L)")},
    {LibraryButton::scale_label,
     nullptr,
     {488, 19},
     QT_TRANSLATE_NOOP("LibraryView", "The scale that is played: click to edit its name")},
    {LibraryButton::edit_description,
     "LibCatRename",
     {672, 41},
     QT_TRANSLATE_NOOP("LibraryView", "Edit the description")},
};

QString say(const char* text)
{
    return QCoreApplication::translate(room, text);
}

QString picturePath(const char* name, const char* state)
{
    return name ? QStringLiteral(":/Resources/LibraryScreen/Buttons/%1_%2.png")
                      .arg(QLatin1String(name), QLatin1String(state))
                : QStringLiteral(":/Resources/LibraryScreen/Buttons/Scale_label.png");
}

/// Open and close stand outside the view and are always there.
bool isAccess(int code)
{
    return code == LibraryButton::open_library || code == LibraryButton::close_library;
}

} // namespace

LibraryView::LibraryView(QGraphicsScene& scene, QWidget* window)
    : categories(new CategoryListWidget(window)), scales(new ScaleListWidget(categories, window)),
      description(new DescriptionEditor(window)), tracker(new RightTracker(scales, window))
{
    background = scene.addPixmap(pictures::load(QStringLiteral(":/Resources/LibraryScreen/LibBGScene.png")));
    background->setPos(backgroundPlace);
    mark =
        scene.addPixmap(pictures::load(QStringLiteral(":/Resources/LibraryScreen/LibExclamationMark.png")));
    mark->setPos(markPlace);
    mark->setToolTip(say(QT_TRANSLATE_NOOP("LibraryView", "The scale that is played is not in the library")));
    addButtons(scene);
    dressLists();
    dressDescription();
    tracker->setGeometry(trackerPlace.translated(formOfScene));
    setVisible(false);
}

void LibraryView::addButtons(QGraphicsScene& scene)
{
    for (const ButtonRow& row : buttonRows) {
        auto* made =
            new LibraryButton(row.code, row.place, pictures::load(picturePath(row.picture, "neutral")),
                              pictures::load(picturePath(row.picture, "active")), nullptr);
        made->setToolTip(say(row.toolTip));
        scene.addItem(made);
        buttons.at(row.code) = made;
    }
}

void LibraryView::dressLists()
{
    const QString style =
        CenterScreen::getMainTextData(QStringLiteral(":/Resources/LibraryScreen/Library_list-mac.qss"));
    for (AbstractListWidget* list :
         {static_cast<AbstractListWidget*>(categories), static_cast<AbstractListWidget*>(scales)}) {
        setStyleWithBars(*list, style);
        list->setItemHeight(rowHeight);
    }
    categories->setGeometry(categoriesPlace.translated(formOfScene));
    categories->setAccessibleName(say(QT_TRANSLATE_NOOP("LibraryView", "Scale categories")));
    scales->setGeometry(scalesPlace.translated(formOfScene));
    scales->setAccessibleName(say(QT_TRANSLATE_NOOP("LibraryView", "Scales of the category")));
}

void LibraryView::dressDescription()
{
    description->setGeometry(descriptionPlace.translated(formOfScene));
    setStyleWithBars(*description, CenterScreen::getMainTextData(
                                       QStringLiteral(":/Resources/LibraryScreen/Library_descr.qss")));
    description->setFocusPolicy(Qt::NoFocus);
    description->setFrameShape(QFrame::NoFrame);
    description->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    description->setOpenLinks(false);
    description->document()->setDocumentMargin(0);
    description->document()->setDefaultStyleSheet(
        QStringLiteral("div { line-height: 97%; }")); // six whole lines
    description->setAccessibleName(say(QT_TRANSLATE_NOOP("LibraryView", "Description of the scale")));
    description->setToolTip(say(QT_TRANSLATE_NOOP("LibraryView", "Click to edit the description")));
}

void LibraryView::setVisible(bool visible)
{
    for (QWidget* widget : widgets())
        widget->setVisible(visible);
    background->setVisible(visible);
    mark->setVisible(false);
    for (int code = 1; code <= LibraryButton::codes; ++code)
        if (!isAccess(code))
            buttons.at(static_cast<std::size_t>(code))->setVisible(visible);
    button(LibraryButton::open_library).setVisible(!visible);
    button(LibraryButton::close_library).setVisible(visible);
}

void LibraryView::setPlain()
{
    for (LibraryButton* each : buttons)
        if (each)
            each->setPlain();
}

LibraryButton& LibraryView::button(LibraryButton::Code code) const
{
    return *buttons.at(code);
}

QList<QWidget*> LibraryView::widgets() const
{
    return {categories, scales, description, tracker};
}
