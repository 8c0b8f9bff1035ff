// The categories, their order, and where the user stands among them.

#include "library/DatabaseLibrary.h"

#include "library/DatabaseLibraryPrivate.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

void DatabaseLibraryPrivate::moveToFront(const QString& category)
{
    recentCategories.removeOne(category);
    recentCategories.prepend(category);
}

void DatabaseLibrary::sortStringVector(QVector<QString>& strings)
{
    if (strings.isEmpty())
        return;
    // The C locale has no collation and would put "10" before "2".
    const QLocale locale;
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates)
                                                       : locale);
    collator.setNumericMode(true);
    std::sort(strings.begin(), strings.end(),
              [&](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
}

void DatabaseLibrary::insertCategory(const QString& name)
{
    if (d->categoryNames.contains(name))
        return;
    QVector<QString> names = d->categoryNames;
    names.append(name);
    sortStringVector(names);
    // A renamed category may move in the sort: the lists of words go with their names.
    QVector<QList<QString>> words;
    words.reserve(names.size());
    for (const QString& category : qAsConst(names))
        words.append(scalesFromCategory(category));
    d->categoryNames = names;
    d->categoryScales = words;
    d->recentCategories.prepend(name);
    d->currentScaleIdx[name] = -1;
}

void DatabaseLibrary::removeCategory(const QString& name)
{
    const int index = indexOfCategory(name, 0);
    if (index < 0)
        return;
    d->categoryNames.remove(index);
    d->categoryScales.remove(index);
    d->recentCategories.removeOne(name);
}

void DatabaseLibrary::removeScalesWithCategory(const QString& name)
{
    const QList<QString> words = scalesFromCategory(name);
    for (const QString& word : words)
        d->scales.remove(word);
}

bool DatabaseLibrary::renameCategory(const QString& oldName, const QString& newName)
{
    const int index = indexOfCategory(oldName, 0);
    if (index < 0 || d->categoryNames.contains(newName))
        return false;
    d->categoryNames[index] = newName;
    d->recentCategories[d->recentCategories.indexOf(oldName)] = newName;
    return true;
}

QVector<QString> DatabaseLibrary::categories() const
{
    return d->categoryNames;
}

int DatabaseLibrary::categoryCount() const
{
    return d->categoryNames.size();
}

int DatabaseLibrary::indexOfCategory(const QString& name, int from) const
{
    return d->categoryNames.indexOf(name, from);
}

void DatabaseLibrary::setCurrentCategory(const QString& name)
{
    setCurrentCategoryIndex(indexOfCategory(name, 0));
}

void DatabaseLibrary::setCurrentCategoryIndex(int index)
{
    const bool known = index >= 0 && index < categoryCount();
    d->currentCategoryIdx = known ? index : -1;
    if (known)
        d->moveToFront(d->categoryNames.at(index));
}

int DatabaseLibrary::currentCagetoryIndex() const
{
    return d->currentCategoryIdx;
}

QString DatabaseLibrary::currentCategory() const
{
    return d->categoryNames.value(d->currentCategoryIdx);
}

void DatabaseLibrary::setCurrentScaleIndex(const QString& category, int index)
{
    if (indexOfCategory(category, 0) < 0)
        return;
    const bool known = index >= 0 && index < scalesCountFromCategory(category);
    d->currentScaleIdx[category] = known ? index : -1;
}

int DatabaseLibrary::currentScaleIndex(const QString& category) const
{
    return d->currentScaleIdx.value(category, -1);
}

QString DatabaseLibrary::currentScale() const
{
    if (d->currentCategoryIdx < 0 || d->currentCategoryIdx >= categoryCount())
        return {};
    const QString category = currentCategory();
    return scaleFromCategory(category, currentScaleIndex(category));
}
