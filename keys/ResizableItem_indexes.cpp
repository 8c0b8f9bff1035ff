// The numbers and marks that tell the player which degree is where. All of it runs on the power item.

#include "keys/ResizableItem.h"

#include "app/MainWnd.h"
#include "headers/AnchorItem.h"
#include "headers/AnchorsGroup.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyItem.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"

#include <QPainter>

#include <array>

using namespace pitch_mapping;
using degree_marks::Mark;
using degree_marks::Marks;

namespace {

constexpr int outAnchorMiddle = 23; // x of an out anchor's tip, as created
constexpr int oneDigit = 5;         // pixels, of most of them
constexpr int inMarkTop = 3, outMarkTop = 9;
constexpr qreal awake = 1, asleep = 0.7; // of the anchors, with the power on and off

Degrees degreesOn()
{
    Degrees scale;
    for (int degree = 0; mainWnd->scaleController && degree < octave; ++degree) {
        const TonicKeyItem* key = mainWnd->scaleController->findKey(degree);
        scale[static_cast<std::size_t>(degree)] = key && key->on;
    }
    return scale;
}

/// The keys of a keyboard in a table from A0 to C8.
std::array<const ResizableItem*, keyCount> byPitch(const QList<QGraphicsItem*>& keys)
{
    std::array<const ResizableItem*, keyCount> table{};
    for (const QGraphicsItem* item : keys) {
        const int pitch = key_roles::pitch(item);
        if (isOnKeyboard(pitch))
            table[indexOf(pitch)] = static_cast<const ResizableItem*>(item);
    }
    return table;
}

int widthOfKey(const ResizableItem* key)
{
    return static_cast<int>(key->boundingRect().width());
}

} // namespace

void ResizableItem::redrawAnchorAxis(int tonic)
{
    if (tonic == -1)
        tonic = getCurTonicModifier();
    const int count = getCurScaleCount(false);
    placeInAnchors(count);
    placeOutAnchors(tonic);
    setKeysDeactive();
    drawIndexesIN(count);
    drawIndexesOUT();
}

// An anchor stands on the left edge of the white key that plays the tonic that many octaves up.
void ResizableItem::placeInAnchors(int count)
{
    if (anchorsGroup)
        anchorsGroup->setOpacity(mainWnd->powerItem->isSwitchOn() ? awake : asleep);
    for (int n = -AnchorItem::eachSide; anchorsGroup && n <= AnchorItem::eachSide; ++n)
        if (QGraphicsItem* anchor = anchorsGroup->findAnchorByName(AnchorItem::nameOf(n)))
            anchor->setX(n * count * whiteKeyWidth);
}

// And its twin on the out keyboard on that tonic itself.
void ResizableItem::placeOutAnchors(int tonic)
{
    const bool power = mainWnd->powerItem->isSwitchOn();
    const auto keys = byPitch(listItemsOUT);
    const auto place = [&](QGraphicsItem* anchor, int n) {
        const int pitch = seedPitch + tonic + octave * n;
        const ResizableItem* key = isOnKeyboard(pitch) ? keys[indexOf(pitch)] : nullptr;
        if (key)
            anchor->setX(key->x() - outAnchorMiddle);
        anchor->setOpacity(power ? awake : asleep);
        anchor->setVisible(key && (power || n == 0));
    };
    if (mainAnchorOut)
        place(mainAnchorOut, 0);
    for (int i = 0; i < anchorsOutRight.size(); ++i)
        place(anchorsOutRight[i], i + 1);
    for (int i = 0; i < anchorsOutLeft.size(); ++i)
        place(anchorsOutLeft[i], -i - 1);
}

// Painted only when the numbers change: most remaps of a recall leave a bar as it is.
void ResizableItem::showMarks(QGraphicsItem* bar, const Marks& marks, Marks& shown) const
{
    auto* picture = qgraphicsitem_cast<QGraphicsPixmapItem*>(bar);
    if (!picture || marks == shown)
        return;
    const bool in = bar == anchorBarIn;
    QPixmap face = pictures::load(in ? QStringLiteral(":/Resources/INPUTanchorbar.png")
                                     : QStringLiteral(":/Resources/OUTPUTanchorbar.png"));
    {
        QPainter painter(&face);
        for (const Mark& mark : marks)
            painter.drawPixmap(mark.x, in ? inMarkTop : outMarkTop, mainWnd->degreeDigits(mark.number));
    }
    picture->setPixmap(face);
    shown = marks;
}

void ResizableItem::drawIndexesIN(int count)
{
    if (count == -1)
        count = getCurScaleCount(false);
    Marks marks;
    if (mainWnd->powerItem->isSwitchOn() && count > 0) {
        const int tonic = getCurTonicModifier();
        const Degrees scale = degreesOn();
        const auto keys = byPitch(listItemsIN);
        for (const int pitch : whitePitches()) {
            const ResizableItem* key = keys[indexOf(pitch)];
            if (!key || key_roles::isDeactive(key))
                continue;
            const int number = degree_marks::numberOf(key_roles::target(key), tonic, scale);
            const int left = static_cast<int>(key->x() - anchorBarIn->x());
            const int width = pictures::sizeOf(mainWnd->degreeDigits(number)).width();
            marks.push_back({left + (whiteKeyWidth - width) / 2, number});
        }
    }
    showMarks(anchorBarIn, marks, shownIn);
}

void ResizableItem::drawIndexesOUT()
{
    Marks marks;
    if (mainWnd->powerItem->isSwitchOn()) {
        const int tonic = getCurTonicModifier();
        const Degrees scale = degreesOn();
        const auto keys = byPitch(listItemsOUT);
        const auto count = static_cast<int>(scale.count());
        for (int number = 1; number <= count; ++number) {
            const int pitch = degree_marks::pitchOf(number, tonic, scale);
            const ResizableItem* key = keys[indexOf(pitch)];
            if (!key || !key_roles::isColoured(key))
                continue;
            const auto middle = static_cast<int>(key->x() - anchorBarOut->x()) + widthOfKey(key) / 2;
            const int left = middle - oneDigit / 2 - (number == 10 ? 2 : 0);
            marks.push_back({left + correctCoordAnchorOutByTonic(tonic, number, count), number});
        }
    }
    showMarks(anchorBarOut, marks, shownOut);
}

int ResizableItem::correctCoordAnchorOutByTonic(int tonic, int ordinal, int count) const
{
    return degree_marks::outCorrection(tonic, ordinal, count);
}

int ResizableItem::getCurScaleCount(bool)
{
    const Degrees scale = degreesOn();
    int count = 0;
    for (int degree = 0; degree < octave; ++degree) {
        const bool on = scale[static_cast<std::size_t>(degree)];
        count += on ? 1 : 0;
        mainWnd->showScaleSquare(degree, on ? count : 0);
    }
    return count;
}

void ResizableItem::findPosForAnchor(QGraphicsItemGroup* anchor)
{
    const auto touched = anchor->collidingItems();
    for (const QGraphicsItem* item : touched) {
        if (!key_roles::isIn(item) || key_roles::isBlack(item))
            continue;
        const QPointF place = item->scenePos() - QPointF(anchor->boundingRect().center().x(), 0);
        anchor->setX(anchor->parentItem() ? anchor->parentItem()->mapFromScene(place).x() : place.x());
        return;
    }
}
