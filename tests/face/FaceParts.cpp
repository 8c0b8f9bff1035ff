// What shows in a window, read from its items and widgets.

#include "FaceParts.h"

#include "app/MainWnd.h"
#include "headers/AnchorItem.h"
#include "headers/AnchorsGroup.h"
#include "keys/PowerItem.h"
#include "keys/SwitchItem.h"
#include "keys/TonicKeyItem.h"
#include "keys/key_roles.h"
#include "painted.h"
#include "screen/AbstractDialog.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/RightTracker.h"
#include "screen/ScaleListWidget.h"
#include "tools/pictures/stage.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsTextItem>
#include <QLabel>

namespace face_parts {

namespace {

constexpr qreal hardlySeen = 0.05;
constexpr int keysOnStage = 12, centreOnStage = 21; // x of the views on the widest stage

const QRectF flagsAndKeys = stage::headerGround | stage::inKeys;
const QRectF anchorAndKeys = stage::inKeys | QRectF(27, 447, 907, 34);
const QRectF outRailAndCase(27, 0, 907, 48); // plates of the out anchors reach up onto the case

/// Where a library widget belongs on the browser's picture.
struct Pane
{
    const char* name;
    QRectF ofPicture;
};

constexpr Pane panes[] = {{"categories", {6, 23, 150, 83}},
                          {"scales", {162, 23, 134, 83}},
                          {"description", {302, 23, 202, 83}},
                          {"tracker", {290, 20, 12, 90}}};

QString anchorName(const QGraphicsItem* item)
{
    for (const QGraphicsItem* each = item; each; each = each->parentItem()) {
        const bool in = dynamic_cast<const AnchorItem*>(each);
        const bool out = qgraphicsitem_cast<const QGraphicsItemGroup*>(each) && !each->parentItem() &&
                         !key_roles::anchorName(each).isEmpty();
        if (in || out)
            return (in ? QStringLiteral("anchor ") : QStringLiteral("out anchor ")) +
                   key_roles::anchorName(each);
    }
    return {};
}

QString selectorName(const QGraphicsItem* item)
{
    if (const auto* key = dynamic_cast<const TonicKeyItem*>(item))
        return (key->type == tonic_key_scale ? QStringLiteral("scale ") : QStringLiteral("tonic ")) +
               key->tableName();
    if (dynamic_cast<const SwitchItem*>(item))
        return item->x() < stage::width / 2 ? QStringLiteral("tonic switch") : QStringLiteral("scale switch");
    if (const auto* button = dynamic_cast<const LibraryButton*>(item))
        return QStringLiteral("library button %1").arg(button->code);
    if (dynamic_cast<const QGraphicsProxyWidget*>(item))
        return QStringLiteral("paper game");
    return {};
}

QString keyName(const QGraphicsItem* item)
{
    if (key_roles::isHeader(item))
        return QStringLiteral("flag %1").arg(key_roles::headerSlot(item));
    if (key_roles::isPower(item))
        return QStringLiteral("power");
    if (key_roles::isIn(item) || key_roles::isOut(item))
        return QStringLiteral("%1 %2").arg(key_roles::side(item)).arg(key_roles::pitch(item));
    return {};
}

QRectF paintedRect(const QGraphicsItem& item)
{
    const auto* picture = qgraphicsitem_cast<const QGraphicsPixmapItem*>(&item);
    const auto* pixmapItem = picture ? picture : dynamic_cast<const QGraphicsPixmapItem*>(&item);
    if (!pixmapItem)
        return item.sceneBoundingRect();
    const QRectF box = painted::boundsOf(pixmapItem->pixmap()).translated(pixmapItem->offset());
    return item.mapRectToScene(box);
}

/// A rectangle of the widest stage in a window of any width.
QRectF onStage(const QGraphicsView& view, const QRectF& home)
{
    const bool keys = view.height() > 130;
    return home.translated(view.x() - (keys ? keysOnStage : centreOnStage), 0);
}

QRectF homeOf(const QString& name)
{
    const auto begins = [&name](const char* word) { return name.startsWith(QLatin1String(word)); };
    if (begins("in "))
        return stage::inKeys;
    if (begins("out anchor"))
        return outRailAndCase;
    if (begins("out "))
        return stage::outKeys;
    if (begins("anchor"))
        return anchorAndKeys;
    if (begins("flag") || begins("power"))
        return flagsAndKeys;
    if (begins("tonic"))
        return stage::leftPanel;
    if (begins("scale") || begins("number") || name == QLatin1String("library button 10") ||
        name == QLatin1String("library button 11"))
        return stage::rightPanel;
    if (begins("paper"))
        return stage::rightPanel | stage::display;
    return stage::display;
}

bool shows(const QGraphicsItem& item, const QString& name)
{
    const bool selector =
        name.startsWith(QLatin1String("tonic ")) || name.startsWith(QLatin1String("scale "));
    return item.isVisible() && (selector || item.effectiveOpacity() > hardlySeen);
}

QString namedPart(const QGraphicsItem& item)
{
    const QString name = nameOf(&item);
    if (!name.isEmpty())
        return name;
    if (qgraphicsitem_cast<const QGraphicsTextItem*>(&item))
        return QStringLiteral("credit line");
    const auto* picture = qgraphicsitem_cast<const QGraphicsPixmapItem*>(&item);
    return picture && picture->boundingRect().size() == QSizeF(15, 10) ? QStringLiteral("number square")
                                                                       : QString();
}

void addItems(QVector<FacePart>& parts, const QGraphicsView& view)
{
    const auto toWindow = [&view](const QRectF& ofScene) {
        return QRectF(view.mapFromScene(ofScene.topLeft()) + view.pos(), ofScene.size());
    };
    const auto items = view.scene()->items(Qt::AscendingOrder);
    for (const QGraphicsItem* item : items) {
        const QString name = namedPart(*item);
        const bool isGroup =
            !item->childItems().isEmpty() && !dynamic_cast<const QGraphicsProxyWidget*>(item);
        if (name.isEmpty() || isGroup || !shows(*item, name))
            continue;
        parts.append({name, toWindow(paintedRect(*item)), onStage(view, homeOf(name)), view.geometry()});
    }
}

void addWidget(QVector<FacePart>& parts, const QString& name, const QWidget& widget, const QRectF& home,
               const QWidget& window)
{
    if (!widget.isVisibleTo(&window))
        return;
    QRectF place(widget.mapTo(&window, QPoint()), widget.size());
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->pixmap(Qt::ReturnByValue).width() > 0)
        place = painted::boundsOf(label->pixmap(Qt::ReturnByValue)).translated(place.topLeft());
    const QWidget* around = widget.parentWidget();
    const QRectF pane(around->mapTo(&window, QPoint()), around->size());
    parts.append({name, place, home, pane});
}

void addDisplay(QVector<FacePart>& parts, const MainWnd& window)
{
    const Ui_SorvaneClass& form = window.ui;
    const QRectF display = onStage(*form.centerGraphicsView, stage::display);
    for (const QWidget* child : std::initializer_list<const QWidget*>{
             form.buttonMIDIinOut, form.buttonCredits, form.buttonManual, form.buttonExport,
             form.buttonImport, form.buttonReset, form.centerLogo, form.about, form.versionLabel,
             form.hiddenLayer, form.labelBottom})
        addWidget(parts, child->objectName(), *child, display, window);
    addWidget(parts, QStringLiteral("in ports"), *window.centerScreen->inPortList, display, window);
    addWidget(parts, QStringLiteral("out ports"), *window.centerScreen->outPortList, display, window);
}

void addLibrary(QVector<FacePart>& parts, const MainWnd& window)
{
    const LibraryView& view = *window.centerScreen->libraryView();
    const QGraphicsView& centre = *window.ui.centerGraphicsView;
    const QPointF corner = view.background->pos() + centre.pos();
    const QWidget* const widgets[] = {view.categories, view.scales, view.description, view.tracker};
    for (std::size_t i = 0; i < std::size(panes); ++i)
        addWidget(parts, QLatin1String(panes[i].name), *widgets[i], panes[i].ofPicture.translated(corner),
                  window);
}

void addDialog(QVector<FacePart>& parts, const MainWnd& window, const AbstractDialog& dialog)
{
    const auto panels = dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* panel : panels) {
        addWidget(parts, QStringLiteral("dialog"), *panel, QRectF(window.rect()), window);
        const QRectF home(panel->mapTo(&window, QPoint()), panel->size());
        const auto children = panel->findChildren<QWidget*>();
        for (const QWidget* child : children)
            addWidget(
                parts,
                QStringLiteral("dialog's %1 %2").arg(child->metaObject()->className(), child->objectName()),
                *child, home, window);
    }
}

} // namespace

QString nameOf(const QGraphicsItem* item)
{
    const QString anchor = anchorName(item);
    if (!anchor.isEmpty())
        return anchor;
    const QString selector = selectorName(item);
    return selector.isEmpty() ? keyName(item) : selector;
}

QVector<FacePart> all(const MainWnd& window, const AbstractDialog* dialog)
{
    QVector<FacePart> parts;
    for (const QGraphicsView* view :
         {window.ui.outKeyboardGraphicsView, window.ui.inKeyboardGraphicsView, window.ui.centerGraphicsView})
        addItems(parts, *view);
    addDisplay(parts, window);
    addLibrary(parts, window);
    if (dialog)
        addDialog(parts, window, *dialog);
    return parts;
}

} // namespace face_parts
