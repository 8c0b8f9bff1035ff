// The selector rows, their switches, and the lists of items that the constructor takes from the scenes.

#include "app/MainWnd.h"

#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/SwitchItem.h"
#include "keys/TonicBackView.h"
#include "keys/TonicKeyController.h"
#include "keys/TonicScene.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "keys/tonic_names.h"

#include <QPainter>

#include <algorithm>

namespace {

const QPointF tonicRow(14, 33), scaleRow(778, 33); // scene coordinates of an octave's top left
const QPointF switchOffset(79, 68);                // from the octave
const QPointF displayPart(186, 15);
constexpr int rowHeight = 60;

//   index      0   1   2   3   4   5   6   7   8   9  10  11
//                |1| |3|         |6| |8| |10|
//              | 0 | 2 | 4 | 5 | 7 | 9 | 11|
struct Cell
{
    int x, width, height;
    bool black;
};

constexpr Cell cells[] = {
    {0, 17, 60, false},  {12, 10, 38, true},  {17, 17, 60, false}, {29, 10, 38, true},
    {34, 17, 60, false}, {51, 17, 60, false}, {63, 10, 38, true},  {68, 17, 60, false},
    {80, 10, 38, true},  {85, 17, 60, false}, {97, 10, 38, true},  {102, 17, 60, false},
};

// The sheet has six rows: idle octave, lit white keys, lit black keys; first for the tonic, then for the
// scale.
QPixmap sheetCell(tonic_key_type type, int row, const QRect& cell)
{
    const int first = type == tonic_key_scale ? 3 : 0;
    const QPixmap sheet = pictures::load(QStringLiteral(":/Resources/KeyboardTonic.png"));
    return pictures::crop(sheet, cell.translated(0, (first + row) * rowHeight));
}

QPixmap litKey(tonic_key_type type, const Cell& cell)
{
    return sheetCell(type, cell.black ? 2 : 1, QRect(cell.x, 0, cell.width, cell.height));
}

/// The lit key on a transparent ground of its own size.
QPixmap onTransparent(const QPixmap& pix)
{
    const QPixmap ground = pictures::load(QStringLiteral(":/Resources/Background/transparent.png"));
    return pictures::overlay(pictures::crop(ground, QRect(QPoint(), pictures::sizeOf(pix))), pix);
}

constexpr int squareWidth = 15;
constexpr int squareOnWhite = 47, squareOverBlack = -13; // y from the octave's top

QPointF squarePosition(const Cell& cell)
{
    return {cell.x + (cell.width - squareWidth) / 2.0 - (cell.black ? 0.5 : 0.0),
            static_cast<qreal>(cell.black ? squareOverBlack : squareOnWhite)};
}

} // namespace

TonicKeyItem* MainWnd::createTonicKeyItem(tonic_key_type type, KeyControllerBase* ctrl, int index,
                                          const QPixmap& pix, QPointF pos)
{
    auto* key = new TonicKeyItem(type, ctrl, index);
    key->setPixmap(onTransparent(pix));
    key->setPos(pos);
    key_roles::setSide(key, type == tonic_key_scale ? QStringLiteral("scale") : QStringLiteral("tonic"));
    key_roles::setPitch(key, index);
    key_roles::setName(key, key->tableName());
    key_roles::setStateOn(key, key->on);
    ctrl->addKey(key);
    return key;
}

void MainWnd::createRow(tonic_key_type type, KeyControllerBase* ctrl, TonicScene& scene, QPointF origin)
{
    auto* back = new TonicBackView(sheetCell(type, 0, QRect(0, 0, 119, rowHeight)));
    back->setPos(origin);
    scene.addItem(back);
    selectorItems.append(back);
    for (const bool black : {false, true}) // black keys lie over white ones
        for (int index = 0; index < pitch_mapping::octave; ++index) {
            const Cell& cell = cells[index];
            if (cell.black != black)
                continue;
            auto* key =
                createTonicKeyItem(type, ctrl, index, litKey(type, cell), origin + QPointF(cell.x, 0));
            scene.addItem(key);
            selectorItems.append(key);
        }
    auto* switchItem = new SwitchItem(type == tonic_key_scale ? SwitchItem::scaleSwitch : 0, ctrl);
    switchItem->setPos(origin + switchOffset);
    scene.addItem(switchItem);
}

QPixmap MainWnd::numberedPlate(int ordinal) const
{
    QPixmap plate = pictures::load(QStringLiteral(":/Resources/SquareButton.png"));
    if (ordinal == 0)
        return plate;
    const QPixmap digits = getDigitalPix(digit_square, ordinal);
    QPainter(&plate).drawPixmap((squareWidth - pictures::sizeOf(digits).width()) / 2, 1, digits);
    return plate;
}

void MainWnd::createScaleSquares(TonicScene& scene, QPointF origin)
{
    for (std::size_t ordinal = 0; ordinal < squarePlates.size(); ++ordinal)
        squarePlates[ordinal] = numberedPlate(static_cast<int>(ordinal));
    for (std::size_t degree = 0; degree < scaleSquares.size(); ++degree) {
        scaleSquares[degree] = scene.addPixmap(squarePlates[0]);
        scaleSquares[degree]->setPos(origin + squarePosition(cells[degree]));
        scaleSquares[degree]->setAcceptedMouseButtons(Qt::NoButton);
        selectorItems.append(scaleSquares[degree]);
    }
}

void MainWnd::createDisplayParts(TonicScene& scene)
{
    for (const char* path :
         {":/Resources/Background/smoke.gif", ":/Resources/Background/GlareDisplaySilkscreen.png"})
        scene.addPixmap(pictures::load(QLatin1String(path)))->setPos(displayPart);
}

void MainWnd::createSceneTonic()
{
    auto* scene = new TonicScene(QRectF(QPointF(), QSizeF(ui.centerGraphicsView->size())), this);
    createDisplayParts(*scene);
    tonicController = new TonicKeyController(this);
    scaleController = new ScaleKeyController(this);
    createRow(tonic_key_tonic, tonicController, *scene, tonicRow);
    createRow(tonic_key_scale, scaleController, *scene, scaleRow);
    createScaleSquares(*scene, scaleRow);
    tonicController->findKey(0)->changeState(false);
    for (const int degree : {0, 2, 4, 5, 7, 9, 11}) // the Ionian word
        scaleController->findKey(degree)->setOn();
    ui.centerGraphicsView->setScene(scene);
}

void MainWnd::showScaleSquare(int degree, int ordinal)
{
    const QPixmap& plate = squarePlates.at(static_cast<std::size_t>(ordinal));
    QGraphicsPixmapItem* square = scaleSquares.at(static_cast<std::size_t>(degree));
    if (square->pixmap().cacheKey() != plate.cacheKey())
        square->setPixmap(plate);
}

void MainWnd::takeItemLists()
{
    listItemsIN = ui.inKeyboardGraphicsView->scene()->items(Qt::DescendingOrder);
    listItemsOUT = ui.outKeyboardGraphicsView->scene()->items(Qt::DescendingOrder);
    listItemsTonic = ui.centerGraphicsView->scene()->items(Qt::DescendingOrder);
    std::stable_sort(listItemsTonic.begin(), listItemsTonic.end(),
                     [](const QGraphicsItem* a, const QGraphicsItem* b) {
                         return key_roles::pitch(a) < key_roles::pitch(b);
                     });
}

// The tonic degree of the scale: a key in no scene, on for ever, so that degree 0 of every scale sounds.
void MainWnd::addTonicDegreeKey()
{
    auto* key = new TonicKeyItem(tonic_key_scale, scaleController, 0);
    key->setParent(scaleController);
    scaleController->addKey(key);
    key_roles::setSide(key, QStringLiteral("scale"));
    key_roles::setPitchText(key, QStringLiteral("0"));
    key_roles::setName(key, scaleModifierName[0]);
    key->setOn();
    listItemsTonic.append(key);
}
