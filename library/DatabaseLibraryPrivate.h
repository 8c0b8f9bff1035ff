#pragma once

#include "library/scale_data.h"

#include <QList>
#include <QLocale>
#include <QMap>
#include <QString>
#include <QVector>

/// What DatabaseLibrary holds. `categoryScales` and `categoryNames` have the same length and belong together
/// by index; `recentCategories` holds the same names; a category holds a word at most once.
class DatabaseLibraryPrivate
{
public:
    /// The words of a category, or null.
    [[nodiscard]] QList<QString>* wordsOf(const QString& category);
    [[nodiscard]] const QList<QString>* wordsOf(const QString& category) const;
    /// Keeps the records whose words are new, and returns all their words once. Leaves out what has no word
    /// or no title.
    [[nodiscard]] QList<QString> takeRecords(const QList<scale_data>& records);
    void moveToFront(const QString& category);
    /// False after a rename, and where the default locale is no more the one of the last sort.
    [[nodiscard]] bool isSorted() const { return namesSorted && sortedBy == QLocale(); }
    /// Sorts the names, and the words with them.
    void sortCategories();

    int revision = 0;
    QVector<QList<QString>> categoryScales;
    QMap<QString, scale_data> scales;
    QList<QString> customList;
    int currentCategoryIdx = -1;
    QList<QString> recentCategories; ///< the most recently selected first
    QVector<QString> categoryNames;
    bool namesSorted = true; ///< until a category is renamed
    QLocale sortedBy;
    QMap<QString, int> currentScaleIdx; ///< by category, -1 for none
};
