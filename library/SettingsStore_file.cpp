// The two doors to the database file, and what passes through them besides library and presets.

#include "library/SettingsStore.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "headers/selector_access.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "library/DbReadWriter.h"
#include "library/database_file.h"
#include "library/scale_word.h"
#include "library/settings_keys.h"
#include "logging/categories.h"
#include "screen/CenterScreen.h"

#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

using namespace selector_access;

namespace {

constexpr int lowestHeader = 22; // key number

// A tonic selector that is switched off tells no tonic, but its key still decides what sounds.
const QString hiddenTonicKey = QStringLiteral("TonicKeyBehindSwitch");

/// A number from a file; 0 for what is none or is no number of a key or a scene.
int smallNumber(const QVariant& value)
{
    constexpr double most = 1e6;
    return std::abs(value.toDouble()) < most ? value.toInt() : 0;
}

void recallHeader(const QVariant& keyNumber)
{
    const int key = smallNumber(keyNumber);
    if (key >= lowestHeader)
        mainWnd->headerController->setActiveHeader(mainWnd->headerController->findHeader(key), true);
}

void setTonic(const QVariant& name)
{
    tonicSelector().setTonicModifier(name.toString(), true, true);
}

/// Whole or not at all: the selector itself would keep the degrees before a wrong letter. It does not read
/// the first letter, nor those behind the twelfth.
void setScale(const QString& word)
{
    if (isScaleWord(QLatin1Char('x') + word.mid(1, scaleWordLength - 1)))
        scaleSelector().setScaleModifier(word, true);
}

void showLibrary(const QVariant& opened)
{
    if (mainWnd->isPowerOn())
        mainWnd->showLibraryScreen(opened.toBool());
    else // it sleeps with the power
        mainWnd->centerScreen->libraryRemembered = opened.toBool();
}

QString hiddenTonic()
{
    const TonicKeyController& selector = tonicSelector();
    return selector.activeKey && !selector.switchOn ? selector.activeKey->tableName() : QString();
}

/// How a value is taken up, in the order of taking.
struct Taker
{
    QString key;
    void (*take)(const QVariant& value);
};

const QVector<Taker>& takers()
{
    static const QVector<Taker> all = {
        {defaultKeys[key_active_header], &recallHeader},
        {defaultKeys[key_tonic_on],
         [](const QVariant& on) { setSwitch(tonicSelector(), on.toBool(), true); }},
        {defaultKeys[key_scale_on],
         [](const QVariant& on) { setSwitch(scaleSelector(), on.toBool(), true); }},
        {defaultKeys[key_tonic_modifier], &setTonic},
        {hiddenTonicKey, &setTonic},
        {defaultKeys[key_scale_modifier], [](const QVariant& word) { setScale(word.toString()); }},
        {defaultKeys[key_anchor_x], [](const QVariant& x) { placeAnchors(x.toDouble()); }},
        {defaultKeys[key_power_on], [](const QVariant& on) { mainWnd->setPower(on.toBool()); }},
        {defaultKeys[key_current_scene],
         [](const QVariant& number) { mainWnd->showScene(smallNumber(number)); }},
        {defaultKeys[key_library_opened], &showLibrary},
    };
    return all;
}

bool namesSelectors(const QJsonObject& root)
{
    const settings_key keys[] = {key_tonic_on, key_scale_on, key_tonic_modifier, key_scale_modifier};
    return std::any_of(std::begin(keys), std::end(keys),
                       [&](settings_key key) { return root.contains(defaultKeys.at(key)); });
}

// The next recall stores the selectors in the active preset. If presets came without selectors, that would
// take the loaded one away.
void showLoadedPreset(const QJsonObject& root)
{
    HeaderController& presets = *mainWnd->headerController;
    if (presets.headers.indexOf(presets.activeHeader) >= DbReadWriter::headerCount(root))
        return; // it is not among them
    const qreal place = anchorsPlace();
    presets.showActiveHeader();
    if (DbReadWriter::placesAnchors(root) || root.contains(defaultKeys.at(key_anchor_x)))
        placeAnchors(place);
}

} // namespace

QString SettingsStore::importDatabase(const QString& file)
{
    QJsonObject root;
    QString error = load(file, root);
    if (error.isEmpty())
        processAfterLoad(root);
    return error;
}

QString SettingsStore::exportDatabase(const QString& file)
{
    processBeforeSave();
    return save(file);
}

QString SettingsStore::load(const QString& file, QJsonObject& root)
{
    if (properties.isEmpty())
        registerDefaultValues();
    const database_file::Content content = database_file::read(file);
    if (!content.error.isEmpty())
        return content.error;
    root = content.root;
    for (auto member = root.begin(); member != root.end(); ++member)
        setSettingsProperty(member.key(), member.value().toVariant());
    mainWnd->releaseHeldNotes(); // the keys may mean something else by the time they are let go
    DbReadWriter::importJsonDatabase(root);
    return {};
}

// The file of that name is replaced as a whole, or not at all.
QString SettingsStore::save(const QString& file)
{
    QString obstacle = database_file::whyNotWritable(file);
    QSaveFile out(file);
    if (!obstacle.isEmpty())
        return obstacle;
    if (!out.open(QIODevice::WriteOnly))
        return out.errorString();
    qCDebug(lcLibrary) << "Success Write File";
    QJsonObject root;
    for (auto property = properties.cbegin(); property != properties.cend(); ++property)
        root.insert(property.key(), QJsonValue::fromVariant(property.value()));
    DbReadWriter::exportJsonDatabase(root);
    const QByteArray text = QJsonDocument(root).toJson();
    return out.write(text) == text.size() && out.commit() ? QString() : out.errorString();
}

// The present state is the fallback of each value: what the file does not name is left alone. What earlier
// files and defaults have left in the map does not count.
void SettingsStore::processAfterLoad(const QJsonObject& loaded)
{
    for (const Taker& taker : takers())
        if (loaded.contains(taker.key))
            taker.take(properties.value(taker.key));
    if (!namesSelectors(loaded))
        showLoadedPreset(loaded);
    DbReadWriter::restoreHeaders(loaded);
    // The anchors have moved without a remap, which with the power off leaves the black keys blue.
    mainWnd->powerItem->remap();
    mainWnd->powerItem->setAllBlackBlue(mainWnd->isPowerOn());
    mainWnd->checkScaleMatches(true);
}

void SettingsStore::processBeforeSave()
{
    const auto set = [](settings_key key, const QVariant& value) {
        setSettingsProperty(defaultKeys.at(key), value);
    };
    const HeaderItem* active = mainWnd->headerController->activeHeader;
    setPowerState(mainWnd->isPowerOn());
    set(key_active_header, active ? key_roles::pitch(active) : 0);
    set(key_tonic_on, tonicSelector().switchOn);
    set(key_scale_on, scaleSelector().switchOn);
    set(key_tonic_modifier, tonicSelector().tonicModifier());
    set(key_scale_modifier, scaleSelector().scaleModifier());
    set(key_anchor_x, anchorsPlace());
    set(key_current_scene, mainWnd->centerScreen->currentScene);
    set(key_library_opened, mainWnd->centerScreen->libraryOpen);
    properties.remove(hiddenTonicKey);
    if (!hiddenTonic().isEmpty())
        setSettingsProperty(hiddenTonicKey, hiddenTonic());
}
