#include "HostileState.h"

#include "MappingRule.h"
#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "header_records.h"
#include "headers/AnchorsGroup.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"
#include "screen/CenterScreen.h"

#include <QSet>
#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace hostile_state {
namespace {

constexpr int presetCount = 36;
constexpr qreal farthest = 1e6; // scene pixels

TonicKeyController& tonicOf(const MainWnd& window)
{
    return *static_cast<TonicKeyController*>(window.tonicController);
}

ScaleKeyController& scaleOf(const MainWnd& window)
{
    return *static_cast<ScaleKeyController*>(window.scaleController);
}

template <typename List>
bool hasTwins(const List& list)
{
    QSet<QString> met;
    for (const QString& entry : list)
        met.insert(entry);
    return met.size() != list.size();
}

QString faultOfShelf(const DatabaseLibrary& library, const QString& category)
{
    const QList<QString> words = library.scalesFromCategory(category);
    if (hasTwins(words))
        return QStringLiteral("a word is listed twice in ") + category;
    for (const QString& word : words) {
        scale_data record;
        if (!library.getScaleData(word, record, DatabaseLibrary::LibraryRole))
            return QStringLiteral("no record of the listed word ") + word;
        if (record.scale != word || word.isEmpty() || record.title.isEmpty())
            return QStringLiteral("a record of another word, or of no title: ") + word;
    }
    return {};
}

QString faultOfLibrary(const DatabaseLibrary& library)
{
    const QVector<QString> names = library.categories();
    if (hasTwins(names))
        return QStringLiteral("two categories of one name");
    if (names.size() != library.categoryCount())
        return QStringLiteral("categories are miscounted");
    // A shelf is found by a walk along the names: of very many, some must do.
    const int step = std::max(1, names.size() / 500);
    for (int i = 0; i < names.size(); i += step)
        if (const QString text = faultOfShelf(library, names.at(i)); !text.isEmpty())
            return text;
    return {};
}

bool isHeld(const HeaderController& presets, const QString& word)
{
    return std::any_of(presets.headers.begin(), presets.headers.end(), [&](const HeaderItem* header) {
        return header->record.scaleOn && header->record.scaleData == word;
    });
}

QString faultOfCustomScales(const MainWnd& window)
{
    const QList<QString> words = window.library.customScales();
    if (hasTwins(words))
        return QStringLiteral("a played scale is listed twice");
    for (const QString& word : words)
        if (word.isEmpty() || !isHeld(*window.headerController, word) ||
            !window.library.containsScale(word, DatabaseLibrary::CustomRole))
            return QStringLiteral("a played scale that no preset holds: ") + word;
    return {};
}

QString faultOfPreset(const MainWnd& window, const HeaderItem* header)
{
    const bool active = header == window.headerController->activeHeader;
    const int key = key_roles::pitch(header);
    if (!pitch_mapping::isBlackPitch(key))
        return QStringLiteral("a preset on no black key");
    if (header->status() != (active ? header_active : header_deactive))
        return QStringLiteral("the preset of key %1 has another status").arg(key);
    const bool shown = window.isPowerOn() && key != key_roles::pitch(window.powerItem);
    if (header->isVisible() != shown)
        return QStringLiteral("the preset of key %1 shows where it should not, or not").arg(key);
    if (!std::isfinite(header->x()) || header->pos() != header->homePos)
        return QStringLiteral("the preset of key %1 is not at home").arg(key);
    return {};
}

QString faultOfPresets(const MainWnd& window)
{
    const HeaderController& presets = *window.headerController;
    if (presets.headers.size() != presetCount || !presets.headers.contains(presets.activeHeader))
        return QStringLiteral("presets are missing, or none of them is active");
    int before = 0;
    for (const HeaderItem* header : presets.headers) {
        if (const QString text = faultOfPreset(window, header); !text.isEmpty())
            return text;
        if (key_roles::pitch(header) <= before)
            return QStringLiteral("the presets are out of order");
        before = key_roles::pitch(header);
    }
    return {};
}

QString faultOfPlaces(const MainWnd& window)
{
    const PowerItem& power = *window.powerItem;
    const HeaderItem* below = window.headerController->findHeader(key_roles::pitch(&power));
    if (!below || !std::isfinite(power.x()) ||
        std::abs(power.sceneBoundingRect().center().x() - below->mapToScene(below->powerPoint).x()) > 9)
        return QStringLiteral("the power button is not over its black key");
    const qreal anchors = power.anchorsGroup->x();
    if (!std::isfinite(anchors) || std::abs(anchors) > farthest)
        return QStringLiteral("the anchors are off every stage");
    return {};
}

QString faultOfSelectors(const MainWnd& window)
{
    const TonicKeyController& tonic = tonicOf(window);
    const auto lit =
        std::count_if(tonic.keys.begin(), tonic.keys.end(), [](const TonicKeyItem* key) { return key->on; });
    if (lit != 1 || !tonic.activeKey || !tonic.activeKey->on)
        return QStringLiteral("%1 tonic keys are lit, or another than the active one").arg(lit);
    const QString word = scaleOf(window).scaleModifier();
    if (word.size() != 12 || !scaleOf(window).findKey(0) || !scaleOf(window).findKey(0)->on)
        return QStringLiteral("the tonic degree is off: ") + word;
    return {};
}

/// What the in keys must play by what the selectors and the anchors show.
std::map<int, int> shownMapping(const MainWnd& window)
{
    const int tonic = tonicOf(window).tonicModifierIndex();
    const QString word = scaleOf(window).scaleModifier();
    std::bitset<12> degrees;
    for (std::size_t degree = 0; degree < degrees.size(); ++degree)
        degrees.set(degree, word.at(static_cast<int>(degree)) == QLatin1Char('x'));
    const MappingRule rule(tonic, degrees);
    const int shift = pitch_mapping::shiftOfAnchor(window.powerItem->mainAnchorIn->scenePos().x());
    // Kept: beyond the keyboard nothing is left to move in one direction, and nothing moves in the other.
    if (shift >= pitch_mapping::whiteCount)
        return {};
    return shift == 0 || shift <= -pitch_mapping::whiteCount ? rule.target : rule.slid(shift, tonic, degrees);
}

QString faultOfMapping(const MainWnd& window)
{
    const std::map<int, int> shown = shownMapping(window);
    for (int note = pitch_mapping::lowestPitch; note <= pitch_mapping::highestPitch; ++note) {
        const auto white = shown.find(note);
        const int onWhite = white == shown.end() ? pitch_mapping::noTarget : white->second;
        const int wanted = window.isPowerOn() ? onWhite : note;
        const int played = key_roles::target(window.findInNote(note));
        if (played != wanted)
            return QStringLiteral("key %1 plays %2 and not %3").arg(note).arg(played).arg(wanted);
    }
    return {};
}

QString faultOfScene(const MainWnd& window)
{
    const CenterScreen& screen = *window.centerScreen;
    if (screen.currentScene < CenterScreen::scene_default ||
        screen.currentScene > CenterScreen::scene_credits)
        return QStringLiteral("there is no scene %1").arg(screen.currentScene);
    if (screen.libraryOpen && !window.isPowerOn())
        return QStringLiteral("the library is open with the power off");
    return {};
}

QString onOrNot(bool flag)
{
    return flag ? QStringLiteral("on") : QStringLiteral("off");
}

} // namespace

QString fault(const MainWnd& window)
{
    for (const QString& text :
         {faultOfLibrary(window.library), faultOfCustomScales(window), faultOfPresets(window),
          faultOfPlaces(window), faultOfSelectors(window), faultOfMapping(window), faultOfScene(window)})
        if (!text.isEmpty())
            return text;
    return {};
}

QString faultOfNotes(MainWnd& window, RecordingPort& port)
{
    const int under = key_roles::pitch(window.powerItem);
    for (const int note : {21, 60, 64, 71, 108, under == 66 ? 68 : 66, 62}) {
        port.clear();
        const int target = key_roles::target(window.findInNote(note));
        emit window.signalKey({0x90, note, 90});
        emit window.signalKey({0x80, note, 0});
        QList<QList<int>> wanted;
        if (target != pitch_mapping::noTarget)
            wanted = {{0x90, target, 90}, {0x80, target, 0}};
        if (port.takeLists() != wanted)
            return QStringLiteral("key %1 does not begin and end its note %2").arg(note).arg(target);
    }
    return {};
}

QString summary(const MainWnd& window)
{
    QString text;
    QTextStream out(&text);
    for (const HeaderItem* header : qAsConst(window.headerController->headers))
        out << asText(header->record) << '\n';
    const QVector<QString> names = window.library.categories();
    for (const QString& name : names)
        out << name << window.library.scalesCountFromCategory(name) << '\n';
    out << key_roles::pitch(window.powerItem) << ' ' << window.powerItem->anchorsGroup->x() << ' '
        << key_roles::pitch(window.headerController->activeHeader) << ' '
        << tonicOf(window).tonicModifierIndex() << ' ' << scaleOf(window).scaleModifier() << ' '
        << onOrNot(tonicOf(window).switchOn) << onOrNot(scaleOf(window).switchOn)
        << onOrNot(window.isPowerOn()) << ' ' << window.centerScreen->currentScene
        << onOrNot(window.centerScreen->libraryOpen);
    return text;
}

} // namespace hostile_state
