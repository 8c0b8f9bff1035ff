// The categories, their order, and where the user stands among them.

#include "library/DatabaseLibrary.h"

#include "library/DatabaseLibraryPrivate.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

namespace {

/// By the default locale, numbers by their value.
class CollatedOrder
{
public:
    CollatedOrder() : collator(collation()) { collator.setNumericMode(true); }
    bool operator()(const QString& a, const QString& b) const { return collator.compare(a, b) < 0; }

private:
    // Without an argument a collator would take the environment's own order, which may be another language's
    // or none. The C locale has none, and would put "10" before "2".
    static QLocale collation()
    {
        const QLocale chosen;
        return chosen.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : chosen;
    }

    QCollator collator;
};

} // namespace

void DatabaseLibraryPrivate::moveToFront(const QString& category)
{
    recentCategories.removeOne(category);
    recentCategories.prepend(category);
}

void DatabaseLibraryPrivate::sortCategories()
{
    QVector<QString> names = categoryNames;
    DatabaseLibrary::sortStringVector(names);
    QVector<QList<QString>> words;
    words.reserve(names.size());
    for (const QString& name : qAsConst(names))
        words.append(categoryScales.at(categoryNames.indexOf(name)));
    categoryNames = names;
    categoryScales = words;
    namesSorted = true;
    sortedBy = QLocale();
}

void DatabaseLibrary::sortStringVector(QVector<QString>& strings)
{
    if (!strings.isEmpty())
        std::stable_sort(strings.begin(), strings.end(), CollatedOrder());
}

void DatabaseLibrary::insertCategory(const QString& name)
{
    if (d->categoryNames.contains(name))
        return;
    if (!d->isSorted())
        d->sortCategories();
    ++d->revision;
    const auto& names = qAsConst(d->categoryNames);
    const auto place = std::upper_bound(names.begin(), names.end(), name, CollatedOrder());
    const int index = static_cast<int>(place - names.begin());
    d->categoryNames.insert(index, name);
    d->categoryScales.insert(index, QList<QString>());
    d->recentCategories.prepend(name);
    d->currentScaleIdx[name] = -1;
}

void DatabaseLibrary::removeCategory(const QString& name)
{
    const int index = indexOfCategory(name, 0);
    if (index < 0)
        return;
    ++d->revision;
    d->categoryNames.remove(index);
    d->categoryScales.remove(index);
    d->recentCategories.removeOne(name);
}

void DatabaseLibrary::removeScalesWithCategory(const QString& name)
{
    ++d->revision;
    const QList<QString> words = scalesFromCategory(name);
    for (const QString& word : words)
        d->scales.remove(word);
}

bool DatabaseLibrary::renameCategory(const QString& oldName, const QString& newName)
{
    const int index = indexOfCategory(oldName, 0);
    if (index < 0 || d->categoryNames.contains(newName))
        return false;
    ++d->revision;
    d->categoryNames[index] = newName;
    d->namesSorted = false;
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
