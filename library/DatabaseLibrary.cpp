// The catalogue as a whole, and its records.

#include "library/DatabaseLibrary.h"

#include "library/DatabaseLibraryPrivate.h"
#include "library/default_tables.h"

#include <QHash>
#include <QMultiMap>
#include <QSet>

DatabaseLibrary::DatabaseLibrary() : d(std::make_unique<DatabaseLibraryPrivate>())
{
    loadDefault();
}

DatabaseLibrary::~DatabaseLibrary() = default;

int DatabaseLibrary::revision() const
{
    return d->revision;
}

void DatabaseLibrary::clear()
{
    ++d->revision;
    d->scales.clear();
    d->categoryNames.clear();
    d->namesSorted = true;
    d->recentCategories.clear();
    d->customList.clear();
    d->categoryScales.clear();
}

void DatabaseLibrary::loadDefault()
{
    clear();
    for (std::size_t i = 0; i < resetCatrgoryData.size(); ++i) {
        insertCategory(resetCatrgoryData[i]);
        if (i + 1 == resetCatrgoryData.size())
            break; // the last category is the user's
        std::size_t row = 0;
        do {
            const scale_data& scale = resetScaleData[i + 1][row];
            setScaleData(scale.scale, scale, AnyRole);
            appendScaleToCategory(resetCatrgoryData[i], scale.scale);
        } while (static_cast<int>(++row) < numResetScales[i + 1]);
    }
}

void DatabaseLibrary::getData(QMap<QString, scale_data>& data) const
{
    QMultiMap<QString, scale_data> all;
    for (int i = 0; i < d->categoryNames.size(); ++i) { // the map has an order of its own
        const QString& category = d->categoryNames.at(i);
        const QList<QString>& words = d->categoryScales.at(i);
        if (words.isEmpty())
            all.insert(category, scale_data());
        scale_data record;
        for (const QString& word : words)
            if (getScaleData(word, record, LibraryRole))
                all.insert(category, record);
    }
    data = all;
}

// A file may hold any number of categories and scales: nothing here looks through all of them for each.
// Records are taken in the map's order, which decides between two of one word, and the categories are sorted
// once.
void DatabaseLibrary::setData(const QMap<QString, scale_data>& data)
{
    const QMultiMap<QString, scale_data> all(data);
    clear();
    QVector<QString> names = all.uniqueKeys().toVector();
    QHash<QString, QList<QString>> words;
    for (const QString& category : qAsConst(names)) {
        words[category] = d->takeRecords(all.values(category));
        d->recentCategories.prepend(category);
        d->currentScaleIdx[category] = -1;
    }
    sortStringVector(names);
    for (const QString& category : qAsConst(names))
        d->categoryScales.append(words.value(category));
    d->categoryNames = names;
    d->sortedBy = QLocale();
}

QList<QString> DatabaseLibraryPrivate::takeRecords(const QList<scale_data>& records)
{
    QList<QString> words;
    QSet<QString> listed;
    for (const scale_data& record : records) {
        if (record.scale.isEmpty() || record.title.isEmpty() || listed.contains(record.scale))
            continue; // the marker of an empty category, or a word that is listed
        if (!scales.contains(record.scale))
            scales.insert(record.scale, record);
        listed.insert(record.scale);
        words.append(record.scale);
    }
    return words;
}

bool DatabaseLibrary::getScaleData(const QString& key, scale_data& out, UserRole role) const
{
    if (!containsScale(key, role))
        return false;
    out = d->scales.value(key);
    return true;
}

void DatabaseLibrary::setScaleData(const QString& key, const scale_data& record, UserRole role)
{
    ++d->revision;
    d->scales.insert(key, record);
    if (role == LibraryRole)
        d->customList.removeAll(key);
    else if (role == CustomRole)
        setCustomScale(key);
}

bool DatabaseLibrary::containsScale(const QString& key, UserRole role) const
{
    return d->scales.contains(key) && (role == AnyRole || isCustomScale(key) == (role == CustomRole));
}

bool DatabaseLibrary::isCustomScale(const QString& key) const
{
    return d->customList.contains(key);
}

void DatabaseLibrary::setCustomScale(const QString& key)
{
    if (!d->scales.contains(key) || isCustomScale(key))
        return;
    ++d->revision;
    d->customList.append(key);
}

QList<QString> DatabaseLibrary::customScales() const
{
    return d->customList;
}

void DatabaseLibrary::removeScale(const QString& key)
{
    ++d->revision;
    for (int i = 1; i < d->categoryScales.size(); ++i)
        d->categoryScales[i].removeOne(key);
    d->customList.removeOne(key);
    d->scales.remove(key);
}

QList<QString> DatabaseLibrary::findCategoriesWithScale(const QString& key) const
{
    QList<QString> found;
    for (int i = 0; i < d->categoryNames.size(); ++i)
        if (d->categoryScales.at(i).contains(key))
            found.append(d->categoryNames.at(i));
    return found;
}
