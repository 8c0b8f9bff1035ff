// The two keyboards, what lies around them, and the panel.

#include "app/MainWnd.h"

#include "app/KeyboardWalk.h"
#include "headers/DiagramScene.h"
#include "keys/PowerItem.h"
#include "keys/TonicScene.h"
#include "keys/key_pictures.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "keys/pitch_mapping.h"
#include "screen/CenterScreen.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

#include <QGraphicsPixmapItem>

namespace {

using pitch_mapping::whiteKeyWidth;

constexpr int whiteKeyLeft = 8; // x of A0
constexpr int keyTop = 46;
constexpr int blackKeyOffset = -5; // from the white key above it
const QPointF outKeyMove(15, -20);
const QSize cheek(7, 43); // the light beside the outermost keys

// The keyboard, one octave:   | |#|#| | |#|#|#| |
//                             | C | D |E| F | G | A |B|
// The lists of keys depend on this order of creation: all keys of one letter, the lowest octave first.
struct Letter
{
    char name;
    int lowestOctave, highestOctave;
    int semitone; // above the C of the octave
};

constexpr Letter letters[] = {
    {'A', 0, 7, 9}, {'B', 0, 7, 11}, {'C', 1, 8, 0}, {'D', 1, 7, 2},
    {'E', 1, 7, 4}, {'F', 1, 7, 5},  {'G', 1, 7, 7},
};

/// Octave 0 begins with the C that the keyboard does not have, note 12.
int noteOf(const Letter& letter, int octave)
{
    return pitch_mapping::octave * (octave + 1) + letter.semitone;
}

QPoint whitePosition(int note)
{
    const auto& whites = pitch_mapping::whitePitches();
    const auto k = static_cast<int>(std::lower_bound(whites.begin(), whites.end(), note) - whites.begin());
    return {whiteKeyLeft + whiteKeyWidth * k, keyTop};
}

QPixmap barePicture(const QString& name)
{
    return key_pictures::picture(KeySheet::plain, key_pictures::shapeOf(name), KeyCell::idle, KeyShine::none);
}

QGraphicsPixmapItem* addPicture(QGraphicsScene* scene, const char* path, QPointF position)
{
    QGraphicsPixmapItem* item = scene->addPixmap(pictures::load(QLatin1String(path)));
    item->setPos(position);
    return item;
}

void addCheek(QGraphicsScene* scene, KeyShine shine, QPointF position)
{
    scene->addPixmap(key_pictures::shineStrip(shine, cheek))->setPos(position);
}

} // namespace

ResizableItem* MainWnd::createResItem(const QString& side, const QString& name, int note,
                                      const QPixmap& pixmap, QPoint position)
{
    auto* key = new ResizableItem;
    key->setPixmap(pixmap);
    key->setPos(position);
    key_roles::setSide(key, side);
    key_roles::setPitch(key, note);
    key_roles::setName(key, name);
    key_roles::setInScale(key, true);
    key->setPixmap(side == QLatin1String("in") ? addBlueShine(key->pixmap()) : addYellowShine(key->pixmap()));
    return key;
}

QPixmap MainWnd::addBlueShine(const QPixmap& pixmap) const
{
    return key_pictures::withShine(pixmap, KeyShine::blue);
}

QPixmap MainWnd::addYellowShine(const QPixmap& pixmap) const
{
    return key_pictures::withShine(pixmap, KeyShine::yellow);
}

QPixmap MainWnd::overlayTwoPixmaps(const QPixmap& base, const QPixmap& overlay, const QRect& rectangle) const
{
    return pictures::overlay(base, overlay, rectangle);
}

DiagramScene* MainWnd::createKeyScene(const QString& side, const QRectF& rectangle, QGraphicsView* view)
{
    auto* scene = new DiagramScene(powerItem, this);
    scene->setSceneRect(rectangle);
    const auto addKey = [&](const QString& name, int note, QPoint position) {
        scene->addItem(createResItem(side, name, note, barePicture(name), position));
    };
    for (const Letter& letter : letters)
        for (int octave = letter.lowestOctave; octave <= letter.highestOctave; ++octave) {
            const int note = noteOf(letter, octave);
            addKey(QLatin1Char(letter.name) + QString::number(octave), note, whitePosition(note));
        }
    for (int note = pitch_mapping::lowestPitch; note <= pitch_mapping::highestPitch; ++note)
        if (pitch_mapping::isBlackPitch(note))
            addKey(QStringLiteral("#"), note, whitePosition(note + 1) + QPoint(blackKeyOffset, 0));
    view->setScene(scene);
    return scene;
}

void MainWnd::createSceneIn()
{
    createKeyScene(QStringLiteral("in"), QRectF(-15, -4, 153, 190), ui.inKeyboardGraphicsView);
}

void MainWnd::createSceneOut()
{
    createKeyScene(QStringLiteral("out"), QRectF(0, -20, 930, 145), ui.outKeyboardGraphicsView);
}

void MainWnd::createSceneBack()
{
    auto* scene = new QGraphicsScene(QRectF(QPointF(), QSizeF(ui.backgroundGraphicsView->size())), this);
    backgroundOn = addPicture(scene, ":/Resources/Background/BG_t_on-CM.png", {0, 0});
    backgroundOff = addPicture(scene, ":/Resources/Background/BG_t_off.png", {0, 0});
    backgroundOn->hide();
    scene->setBackgroundBrush(Qt::transparent);
    ui.backgroundGraphicsView->setScene(scene);
    // The pictures are the case's shadows and lights over the keys: the pointer means what lies below them.
    ui.backgroundGraphicsView->setAttribute(Qt::WA_TransparentForMouseEvents);
}

// Both scenes received their keys in the same order, so position i of both lists is the same pitch.
void MainWnd::wireKeys()
{
    for (int i = 0; i < listItemsIN.size(); ++i) {
        auto* in = static_cast<ResizableItem*>(listItemsIN[i]);
        auto* out = static_cast<ResizableItem*>(listItemsOUT[i]);
        in->pairedOutKey = out;
        in->listItemsIN = listItemsIN;
        in->listItemsOUT = listItemsOUT;
        in->listItemsTonic = listItemsTonic;
        out->listItemsTonic = listItemsTonic;
        out->moveBy(outKeyMove.x(), outKeyMove.y());
    }
}

void MainWnd::fillSceneIn()
{
    QGraphicsScene* scene = ui.inKeyboardGraphicsView->scene();
    addPicture(scene, ":/Resources/INPUTheaderBG.png", {0, 0});
    powerItem->anchorBarIn = addPicture(scene, ":/Resources/INPUTanchorbar.png", {0, 145});
    addPicture(scene, ":/Resources/hlineIn.png", {2, -4});
    addCheek(scene, KeyShine::blue, {0, 46});
    addCheek(scene, KeyShine::blue, {892, 46});
    scene->setBackgroundBrush(Qt::transparent);
}

void MainWnd::fillSceneOut()
{
    QGraphicsScene* scene = ui.outKeyboardGraphicsView->scene();
    powerItem->anchorBarOut = addPicture(scene, ":/Resources/OUTPUTanchorbar.png", {15, 0});
    addPicture(scene, ":/Resources/hlineOut.png", {15, 21});
    addCheek(scene, KeyShine::yellow, {15, 26});
    addCheek(scene, KeyShine::yellow, {907, 26});
    scene->setBackgroundBrush(Qt::transparent);
}

void MainWnd::endGestures()
{
    if (keyboardWalk)
        keyboardWalk->letGo();
    for (const QGraphicsView* view : {ui.inKeyboardGraphicsView, ui.outKeyboardGraphicsView})
        static_cast<DiagramScene*>(view->scene())->loseHand();
    auto* centre = static_cast<TonicScene*>(ui.centerGraphicsView->scene());
    if (QGraphicsItem* item = centre->mouseGrabberItem())
        item->ungrabMouse();
    centre->endGesture();
    const QList<QPushButton*> buttons = findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton* button : buttons)
        button->setDown(false);
    ScaleListWidget* list = centerScreen->libraryView()->scales;
    if (list->isDragging())
        list->dragCancel();
}
