// The presets on the stage, and the scale library that follows the selectors.

#include "app/MainWnd.h"

#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/key_roles.h"
#include "library/default_tables.h"
#include "library/scale_word.h"
#include "logging/categories.h"
#include "screen/CenterScreen.h"

#include <algorithm>

namespace {

constexpr int octaves = 7;
constexpr int octaveWidth = 7 * pitch_mapping::whiteKeyWidth;
constexpr int firstActiveKey = 63;

// The flags of one octave; boxes stand in two rows so that they do not touch:
//       [F#]  [G#] [A#]
//  [C#]  |[D#] |   |
struct Slot
{
    int keyNumber;
    header_type type;
    QPoint position;
};

constexpr int flagsPerOctave = 5;
const Slot lowestFlag = {22, header_a_sharp, {16, 1}};
const Slot firstOctave[flagsPerOctave] = {{25, header_c_sharp, {33, 28}},
                                          {27, header_d_sharp, {67, 28}},
                                          {30, header_f_sharp, {74, 1}},
                                          {32, header_g_sharp, {109, 1}},
                                          {34, header_a_sharp, {135, 1}}};

} // namespace

void MainWnd::createHeaders()
{
    headerController = new HeaderController(this);
    int index = 0;
    const auto create = [&](const Slot& slot, int octave) {
        const int key = slot.keyNumber + pitch_mapping::octave * octave;
        createHeaderItem(QStringLiteral("header"), key, index++, slot.type,
                         slot.position + QPoint(octaveWidth * octave, 0),
                         key == firstActiveKey ? header_active : header_deactive);
    };
    create(lowestFlag, 0);
    for (int octave = 0; octave < octaves; ++octave)
        for (const Slot& slot : firstOctave)
            create(slot, octave);
}

void MainWnd::createHeaderItem(const QString& name, int keyNumber, int headerIndex, header_type type,
                               QPointF position, header_status status)
{
    if (!headerController) {
        qCDebug(lcHeaders) << "HeaderController must be initialized before creating any Header";
        return;
    }
    if (headerIndex < 0 || headerIndex >= resetHeaderCount || type < header_c_sharp || type > header_a_sharp)
        return;
    auto* header =
        new HeaderItem(headerController, type, resetHeaderData.at(static_cast<std::size_t>(headerIndex)));
    header->homePos = position;
    header->setPos(position);
    key_roles::setSide(header, name);
    key_roles::setHeaderSlot(header, keyNumber);
    key_roles::setPitch(header, keyNumber);
    key_roles::setName(header, QStringLiteral("#"));
    headerController->headers.append(header);
    ui.inKeyboardGraphicsView->scene()->addItem(header);
    header->setStatus(status);
}

// A played note comes by here: the browser is only told what it should show, and follows later.
void MainWnd::checkScaleMatches(bool)
{
    if (!centerScreen || !headerController || !scaleController)
        return; // still under construction
    const QString word = selector_access::scaleSelector().scaleModifier();
    if (word.isEmpty())
        return centerScreen->showExclamationMark(false);
    if (headerController->activeHeader)
        headerController->activeHeader->updateScenic();
    const bool placed = takeLibraryTo(word);
    const bool known = placed && library.containsScale(word, DatabaseLibrary::LibraryRole);
    centerScreen->showExclamationMark(!known && word != tonicAloneWord);
    if (centerScreen->libraryOpen)
        centerScreen->updateSceneDescr(word);
    centerScreen->updateBrowser();
}

bool MainWnd::takeLibraryTo(const QString& word)
{
    const QString current = library.currentCategory();
    const int index = library.indexOfScaleFromCategory(current, word, 0);
    library.setCurrentScaleIndex(current, index);
    if (index >= 0)
        return true;
    const QList<QString> others = library.findCategoriesWithScale(word);
    if (others.isEmpty())
        return false;
    library.setCurrentCategory(others.first());
    library.setCurrentScaleIndex(others.first(), library.indexOfScaleFromCategory(others.first(), word, 0));
    return true;
}

bool MainWnd::findPowerItemPosition(QPointF pos)
{
    auto* scene = qobject_cast<DiagramScene*>(ui.inKeyboardGraphicsView->scene());
    if (!powerItem || !scene)
        return false;
    const qreal halfHeight = powerItem->boundingRect().height() / 2;
    const QRectF place(pos.x() + 3, pos.y() + halfHeight, 10, halfHeight);
    const auto items = scene->itemsAmongHeaders(place);
    const bool found = std::any_of(items.begin(), items.end(), [&](QGraphicsItem* item) {
        return key_roles::isHeader(item) && scene->swapHeader(powerItem, static_cast<HeaderItem*>(item));
    });
    headerController->setHeadersStatus(powerItem->isSwitchOn());
    qCDebug(lcHeaders) << (found ? "findPowerItemPosition found and swap"
                                 : "findPowerItemPosition not found");
    if (!found)
        powerItem->restorePos();
    return found;
}
