// A preset's names: how they follow the library, and the words that describe it.

#include "headers/HeaderItem.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "library/shown_text.h"

void HeaderItem::takeNamesFromLibrary()
{
    scale_data scale;
    if (!mainWnd || !mainWnd->library.getScaleData(record.scaleData, scale, DatabaseLibrary::AnyRole))
        return;
    record.nameScenic1 = scale.abbr1;
    record.nameScenic2 = scale.abbr2;
}

// A played note comes by here: what stays the same is not painted again.
void HeaderItem::updateScenic()
{
    if (!mainWnd || !mainWnd->headerController)
        return;
    mainWnd->headerController->removeUnusedTempRecords();
    scale_data scale;
    if (record.scaleOn && !record.scaleData.isEmpty())
        scale = libraryRecord();
    if (record.nameScenic1 != scale.abbr1)
        setNameScenic1(scale.abbr1);
    if (record.nameScenic2 != scale.abbr2)
        setNameScenic2(scale.abbr2);
}

scale_data HeaderItem::temporaryScale(const QString& word, const QString& name1, const QString& name2)
{
    return {word, name1, name2, QString(name1 + QLatin1Char(' ') + name2).trimmed(), {}};
}

scale_data HeaderItem::libraryRecord()
{
    scale_data scale;
    if (mainWnd->library.getScaleData(record.scaleData, scale, DatabaseLibrary::AnyRole))
        return scale;
    // Its own number must not count as taken.
    record.nameScenic1.clear();
    record.nameScenic2.clear();
    //: Files hold it, and it is looked for there: "User" in every language.
    const QString user = tr("User");
    scale =
        temporaryScale(record.scaleData, user, QString::number(mainWnd->headerController->findMinUserNum()));
    mainWnd->library.setScaleData(record.scaleData, scale, DatabaseLibrary::CustomRole);
    return scale;
}

void HeaderItem::setNameScenic1(const QString& name)
{
    record.nameScenic1 = name;
    update(nameRect1);
}

void HeaderItem::setNameScenic2(const QString& name)
{
    record.nameScenic2 = name;
    update(nameRect2);
}

void HeaderItem::setNameTonic(const QString& name)
{
    record.nameTonic = name;
    update(tonicRect);
}

// The record may be gone: a pasted scale that is in no category is named again when its header is recalled.
QString HeaderItem::describeScale() const
{
    scale_data scale;
    if (!record.scaleOn || record.scaleData.isEmpty())
        return {};
    if (!mainWnd->library.getScaleData(record.scaleData, scale, DatabaseLibrary::AnyRole))
        return shownText(record.scaleData);
    return tr("%1 (%2 %3)").arg(shownText(scale.title), shownText(scale.abbr1), shownText(scale.abbr2));
}

QString HeaderItem::describe() const
{
    const QString& name = record.nameTonic.isEmpty() ? record.tonicData : record.nameTonic;
    const QString tonic = record.tonicOn ? shownText(name) : QString();
    const QString scale = describeScale();
    QStringList locked;
    if (!tonic.isEmpty())
        locked << tr("tonic");
    if (!scale.isEmpty())
        locked << tr("scale");
    const QString unlocked = tr("as it is");
    const QStringList lines = {
        tr("Tonic: %1").arg(tonic.isEmpty() ? unlocked : tonic),
        tr("Scale: %1").arg(scale.isEmpty() ? unlocked : scale),
        tr("Locked: %1").arg(locked.isEmpty() ? tr("nothing") : locked.join(QLatin1String(", ")))};
    return lines.join(QLatin1Char('\n'));
}
