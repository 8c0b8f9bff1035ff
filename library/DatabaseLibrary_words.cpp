// The words of a category.

#include "library/DatabaseLibrary.h"

#include "library/DatabaseLibraryPrivate.h"

QList<QString>* DatabaseLibraryPrivate::wordsOf(const QString& category)
{
    const int index = categoryNames.indexOf(category);
    if (index < 0)
        return nullptr;
    ++revision; // who asks for a list to write in writes
    return &categoryScales[index];
}

const QList<QString>* DatabaseLibraryPrivate::wordsOf(const QString& category) const
{
    const int index = categoryNames.indexOf(category);
    return index < 0 ? nullptr : &categoryScales.at(index);
}

QList<QString> DatabaseLibrary::scalesFromCategory(const QString& category) const
{
    const QList<QString>* words = qAsConst(*d).wordsOf(category);
    return words ? *words : QList<QString>();
}

QString DatabaseLibrary::scaleFromCategory(const QString& category, int index) const
{
    const QList<QString>* words = qAsConst(*d).wordsOf(category);
    return words ? words->value(index) : QString();
}

int DatabaseLibrary::scalesCountFromCategory(const QString& category) const
{
    const QList<QString>* words = qAsConst(*d).wordsOf(category);
    return words ? words->size() : 0;
}

bool DatabaseLibrary::isEmptyCategory(const QString& category) const
{
    return scalesCountFromCategory(category) == 0;
}

int DatabaseLibrary::indexOfScaleFromCategory(const QString& category, const QString& key, int from) const
{
    const QList<QString>* words = qAsConst(*d).wordsOf(category);
    return words ? words->indexOf(key, from) : -1;
}

int DatabaseLibrary::appendScaleToCategory(const QString& category, const QString& key)
{
    if (!d->scales.contains(key))
        return -1;
    return insertScaleToCategory(category, scalesCountFromCategory(category), key);
}

void DatabaseLibrary::appendScalesToCategory(const QString& category, const QList<QString>& keys)
{
    for (const QString& key : keys)
        appendScaleToCategory(category, key);
}

int DatabaseLibrary::insertScaleToCategory(const QString& category, int index, const QString& key)
{
    QList<QString>* words = d->wordsOf(category);
    if (!words || words->contains(key))
        return -1;
    const int place = qBound(0, index, words->size());
    words->insert(place, key);
    return place;
}

void DatabaseLibrary::removeScaleFromCategory(const QString& category, int index)
{
    QList<QString>* words = d->wordsOf(category);
    if (words && index >= 0 && index < words->size())
        words->removeAt(index);
}

void DatabaseLibrary::clearScalesFromCategory(const QString& category)
{
    if (QList<QString>* words = d->wordsOf(category))
        words->clear();
}

void DatabaseLibrary::moveScale(int from, int to, const QString& category)
{
    const int count = scalesCountFromCategory(category);
    if (from >= 0 && from < count && to >= 0 && to < count)
        d->wordsOf(category)->move(from, to);
}

void DatabaseLibrary::moveScale(int from, int to, const QString& oldCategory, const QString& newCategory)
{
    if (oldCategory == newCategory) {
        moveScale(from, to, oldCategory);
        return;
    }
    if (from < 0 || from >= scalesCountFromCategory(oldCategory) || !d->wordsOf(newCategory))
        return;
    const QString word = scaleFromCategory(oldCategory, from);
    removeScaleFromCategory(oldCategory, from);
    insertScaleToCategory(newCategory, to, word);
}
