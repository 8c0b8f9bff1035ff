// The window that the tests of the database file share, and the files that it reads and writes.

#include "FileFixture.h"

#include "keys/TonicKeyItem.h"
#include "screen/CenterScreen.h"

#include <QFile>
#include <QJsonDocument>

const QString FileFixture::scalesKey = QStringLiteral("SorvaneDefaultScalesArray");
const QString FileFixture::headersKey = QStringLiteral("SorvaneDefaultHeadersArray");
const QString FileFixture::powerPlaceKey = QStringLiteral("SorvanePowerButtonPosition");
const QString FileFixture::anchorsPlaceKey = QStringLiteral("SorvaneAnchorPosition");
const QString FileFixture::hiddenTonicKey = QStringLiteral("TonicKeyBehindSwitch");

void FileFixture::write(const QString& file, const QByteArray& text)
{
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly));
    QCOMPARE(out.write(text), qint64(text.size()));
}

QJsonObject FileFixture::read(const QString& file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(in.readAll()).object() : QJsonObject();
}

QJsonObject FileFixture::exported() const
{
    const QString file = pathOf("exported.svdb");
    QFile::remove(file);
    const QString error = window->exportDatabase(file);
    return error.isEmpty() ? read(file) : QJsonObject{{QStringLiteral("error"), error}};
}

void FileFixture::import(const QJsonObject& root) const
{
    const QString file = pathOf("imported.svdb");
    write(file, QJsonDocument(root).toJson(QJsonDocument::Compact));
    QCOMPARE(window->importDatabase(file), QString());
}

QStringList FileFixture::catalogue() const
{
    QStringList lines;
    for (const QString& category : library().categories())
        lines << category + QStringLiteral(": ") +
                     QStringList(library().scalesFromCategory(category)).join(QLatin1Char(' '));
    return lines;
}

FileFixture::Facts FileFixture::facts() const
{
    const CenterScreen& screen = *window->centerScreen;
    QStringList records, statuses, places, targets;
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        records << asText(item->record);
        statuses << QString::number(item->status());
        places << QStringLiteral("%1 %2").arg(item->x()).arg(item->y());
    }
    for (int note = 21; note <= 108; ++note)
        targets << QString::number(target(note));
    const auto at = [](const QGraphicsItem* item) {
        return QStringLiteral("%1 %2").arg(item->x()).arg(item->y());
    };
    const QString line(QLatin1Char('\n'));
    return {
        {QStringLiteral("catalogue"), catalogue().join(line)},
        {QStringLiteral("presets"), records.join(line)},
        {QStringLiteral("active preset"), QString::number(active()) + line + statuses.join(line)},
        {QStringLiteral("flags' places"), places.join(line)},
        {QStringLiteral("tonic"), QString::number(tonic().tonicModifierIndex())},
        {QStringLiteral("tonic switch"), QString::number(tonic().switchOn)},
        {QStringLiteral("scale"), scale().scaleModifier()},
        {QStringLiteral("scale switch"), QString::number(scale().switchOn)},
        {QStringLiteral("power"), QString::number(window->isPowerOn())},
        {QStringLiteral("power's place"), at(power()) + line + QString::number(key_roles::pitch(power()))},
        {QStringLiteral("anchors"), at(anchors())},
        {QStringLiteral("scene"), QString::number(screen.currentScene)},
        {QStringLiteral("library view"), QString::number(screen.libraryOpen)},
        {QStringLiteral("map"), targets.join(line)}};
}

QStringList FileFixture::changesSince(const Facts& before) const
{
    QStringList names;
    const Facts now = facts();
    for (auto fact = before.begin(); fact != before.end(); ++fact)
        if (now.value(fact.key()) != fact.value())
            names << fact.key();
    return names;
}

void FileFixture::leaveTheStart() const
{
    window->setPower(true);
    library().insertCategory(QStringLiteral("Mine"));
    library().appendScaleToCategory(QStringLiteral("Mine"), lydian);
    recall(27);
    tonic().setSwitchOn(true);
    scale().setSwitchOn(true);
    setTonic("E");
    for (const int degree : {3, 4})
        scale().findKey(degree)->changeState(true);
    placeAnchors(34);
    power()->remap();
    window->showScene(CenterScreen::scene_ports);
}

QJsonObject FileFixture::scaleObject(const QString& category, const QString& word, const QString& title)
{
    return {{QStringLiteral("Category"), category},
            {QStringLiteral("Title"), title},
            {QStringLiteral("Abbr1"), title.left(3)},
            {QStringLiteral("Abbr2"), title.mid(3)},
            {QStringLiteral("Scale"), word},
            {QStringLiteral("LibBody"), QStringLiteral("About ") + title}};
}

QJsonObject FileFixture::headerObject(const header_data& data)
{
    return {
        {QStringLiteral("NameScenic1"), data.nameScenic1}, {QStringLiteral("NameScenic2"), data.nameScenic2},
        {QStringLiteral("NameTonic"), data.nameTonic},     {QStringLiteral("TonicOn"), data.tonicOn},
        {QStringLiteral("TonicData"), data.tonicData},     {QStringLiteral("ScaleOn"), data.scaleOn},
        {QStringLiteral("ScaleData"), data.scaleData},     {QStringLiteral("AnchorValid"), data.anchorValid},
        {QStringLiteral("AnchorPos"), data.anchorPos}};
}
