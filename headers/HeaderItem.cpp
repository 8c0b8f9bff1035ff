#include "headers/HeaderItem.h"

#include "app/MainWnd.h"
#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "logging/categories.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr auto unsetStatus = static_cast<header_status>(-1);

/// Where the texts stand on a flag; right and bottom belong to the rectangles.
struct Layout
{
    QRect name1, name2, tonic;
    QPointF power;
};

QRect corners(int left, int top, int right, int bottom)
{
    return {QPoint(left, top), QPoint(right, bottom)};
}

const Layout& layoutOf(header_type type)
{
    static const Layout layouts[] = {
        {corners(2, 3, 31, 13), corners(2, 13, 31, 23), corners(19, 40, 32, 53), {25, 60}},
        {corners(2, 3, 31, 13), corners(2, 13, 31, 23), corners(2, 40, 15, 53), {8, 60}},
        {corners(2, 3, 33, 13), corners(2, 13, 33, 23), corners(29, 67, 42, 80), {35, 87}},
        {corners(2, 3, 33, 13), corners(2, 13, 33, 23), corners(11, 67, 24, 80), {17, 87}},
        {corners(11, 3, 41, 13), corners(11, 13, 41, 23), corners(2, 67, 15, 80), {8, 87}},
    };
    return layouts[type];
}

QPixmap picture(header_type type, const char* suffix)
{
    return pictures::load(
        QStringLiteral(":/Resources/Headers/Header%1sharp_%2.png").arg(type + 1).arg(QLatin1String(suffix)));
}

QPixmap statusPicture(header_type type, header_status status)
{
    static constexpr const char* suffixes[] = {"deactive", "active", "ActiveDropShadow", "Switch", "Switch"};
    return picture(type, suffixes[status]);
}

QColor textColour(header_status status)
{
    const bool lit =
        status == header_active || status == header_active_shadow || status == header_switch_active;
    return lit ? QColor(0xFF, 0xFF, 0x00) : QColor(0x00, 0xC9, 0xFF);
}

QFont flagFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(8);
    return font;
}

} // namespace

HeaderItem::HeaderItem(HeaderController* owner, header_type kind, const header_data& data)
    : controller(owner), type(kind), record(data), font(flagFont())
{
    takeNamesFromLibrary();
    currentStatus = unsetStatus;
    setStatus(header_deactive);
    key_roles::setPitch(this, -1); // until it is set on its key
    setAcceptHoverEvents(true);
    updateScenic();
}

void HeaderItem::applyLayout()
{
    const Layout& layout = layoutOf(type);
    nameRect1 = layout.name1;
    nameRect2 = layout.name2;
    tonicRect = layout.tonic;
    powerPoint = layout.power;
}

void HeaderItem::setStatus(header_status status)
{
    if (status == currentStatus)
        return;
    currentStatus = status;
    if (status == header_active && mainWnd && mainWnd->headerController)
        mainWnd->headerController->setActiveHeader(this, false);
    applyLayout();
    const QPixmap face = statusPicture(type, status);
    setPixmap(face);
    if (overlaid)
        savedPixmap = face;
}

bool HeaderItem::isActive() const
{
    return currentStatus == header_active || currentStatus == header_switch_active;
}

QPainterPath HeaderItem::shape() const
{
    const QRectF box = QRectF(nameRect1.united(nameRect2)).adjusted(-1, -2, 1, 1);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(box);
    path.addRect(
        QRectF(QPointF(tonicRect.left(), box.bottom()), QPointF(tonicRect.right() + 1, powerPoint.y() + 2)));
    return path.translated(offset());
}

// Kept: the names are part of the record, but the face carries the tonic alone.
void HeaderItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    QGraphicsPixmapItem::paint(painter, option, widget);
    if (!record.tonicOn || record.nameTonic.isEmpty())
        return;
    painter->setFont(font);
    painter->setPen(textColour(currentStatus));
    constexpr int longest = 3; // characters that the badge could show
    painter->drawText(QRectF(tonicRect).translated(offset()), Qt::AlignCenter,
                      record.nameTonic.left(longest));
}

void HeaderItem::copyHeadersData(const HeaderItem* source)
{
    qCDebug(lcHeaders) << "HeaderItem::copyHeaderData";
    const header_data& other = source->record;
    setNameScenic1(other.nameScenic1);
    setNameScenic2(other.nameScenic2);
    setNameTonic(other.nameTonic);
    if (other.tonicOn) {
        record.tonicOn = other.tonicOn;
        record.tonicData = other.tonicData;
        record.anchorValid = other.anchorValid;
        record.anchorPos = other.anchorPos;
    }
    if (other.scaleOn) {
        record.scaleOn = other.scaleOn;
        record.scaleData = other.scaleData;
    }
}

void HeaderItem::swapHeadersData(HeaderItem* other)
{
    if (other == this)
        return;
    std::swap(record, other->record);
    updateScenic();
    other->updateScenic();
    update();
    other->update();
}

void HeaderItem::swapHeadersStatus(HeaderItem* other)
{
    if (other == this)
        return;
    std::swap(currentStatus, other->currentStatus);
    updateScenic();
    other->updateScenic();
}

void HeaderItem::overlayContextMenu(bool on)
{
    if (on) {
        savedPixmap = pixmap();
        setPixmap(pictures::overlay(savedPixmap, picture(type, "SwitchContextMenu")));
    } else if (!savedPixmap.isNull()) {
        setPixmap(savedPixmap);
    }
    overlaid = on;
}

void HeaderItem::restorePos()
{
    qCDebug(lcHeaders) << "Headeritem :: restorePos" << homePos;
    setPos(homePos);
}

void HeaderItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event)
{
    // A menu would swallow the release of a hand that holds something on the stage.
    const auto* stage = qobject_cast<DiagramScene*>(scene());
    if (controller && !(stage && stage->leftDown))
        controller->contextMenuEvent(this, event);
}

void HeaderItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    // Made when it may be needed, not when a note or a recall changes what it says.
    const QString text = describe().toHtmlEscaped(); // names may come from a file and hold anything
    setToolTip(QStringLiteral("<p style=\"white-space:pre\">%1</p>").arg(text));
    ResizableItem::hoverEnterEvent(event);
}
