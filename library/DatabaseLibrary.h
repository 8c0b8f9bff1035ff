#pragma once

#include "library/scale_data.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QVector>

#include <memory>

class DatabaseLibraryPrivate;

/// The catalogue of scales: an ordered list of categories, each an ordered list of scale words, over one
/// record for each word. Names and words are compared exactly. What is unknown gives -1, "", an empty list or
/// false; nothing throws. Main thread only.
class DatabaseLibrary
{
public:
    /// Of a record: a custom one stands in for a word that was played and is in no category; any other is a
    /// library record.
    enum UserRole { AnyRole = 0, LibraryRole = 1, CustomRole = 2 };

    /// Loads the factory scales.
    DatabaseLibrary();
    ~DatabaseLibrary();
    DatabaseLibrary(const DatabaseLibrary&) = delete;
    DatabaseLibrary& operator=(const DatabaseLibrary&) = delete;

    // The whole
    /// Forgets categories and records; the current category index and the current scale indexes stay.
    void clear();
    /// Replaces everything by the factory scales.
    void loadDefault();
    /// Category to scales, the first scale inserted first; an empty category is marked by an empty record.
    /// Custom records are left out.
    void getData(QMap<QString, scale_data>& data) const;
    /// Loads what getData() gave, read back from a file in the file's order. Each category's values are taken
    /// from the last inserted to the first; of two records with one word the first one met counts.
    void setData(const QMap<QString, scale_data>& data);

    /// Another number after each change of categories, words or records; where the user stands does not
    /// count.
    [[nodiscard]] int revision() const;

    // Records
    /// False, with `out` untouched, for an unknown word or one of the other role.
    bool getScaleData(const QString& key, scale_data& out, UserRole role) const;
    /// Overwrites or creates. The role settles whether the record is custom; AnyRole leaves that as it was.
    void setScaleData(const QString& key, const scale_data& record, UserRole role);
    [[nodiscard]] bool containsScale(const QString& key, UserRole role) const;
    [[nodiscard]] bool isCustomScale(const QString& key) const;
    /// Marks an existing record as custom.
    void setCustomScale(const QString& key);
    [[nodiscard]] QList<QString> customScales() const;
    /// Removes the record, and the word from every category but the first. Kept: the first keeps the word.
    void removeScale(const QString& key);
    [[nodiscard]] QList<QString> findCategoriesWithScale(const QString& key) const;

    // Categories
    /// Puts a new category in its collated place; nothing if there is one of that name.
    void insertCategory(const QString& name);
    /// The records stay, and so do the current category index and the category's current scale index.
    void removeCategory(const QString& name);
    /// No caller. Deletes the records of a category's words; the words stay.
    void removeScalesWithCategory(const QString& name);
    /// False if the new name is taken or the old one unknown. Kept: the place stays, collated or not.
    bool renameCategory(const QString& oldName, const QString& newName);
    [[nodiscard]] QVector<QString> categories() const;
    [[nodiscard]] int categoryCount() const;
    [[nodiscard]] int indexOfCategory(const QString& name, int from) const;

    // Where the user stands
    void setCurrentCategory(const QString& name);
    void setCurrentCategoryIndex(int index);
    /// -1 for none; may lie past the end after a removal. Kept: so spelt.
    [[nodiscard]] int currentCagetoryIndex() const;
    [[nodiscard]] QString currentCategory() const;
    /// An index that the category does not have stores -1.
    void setCurrentScaleIndex(const QString& category, int index);
    [[nodiscard]] int currentScaleIndex(const QString& category) const;
    /// The word at the current index of the current category.
    [[nodiscard]] QString currentScale() const;

    // Words in a category
    [[nodiscard]] QList<QString> scalesFromCategory(const QString& category) const;
    [[nodiscard]] QString scaleFromCategory(const QString& category, int index) const;
    [[nodiscard]] int scalesCountFromCategory(const QString& category) const;
    [[nodiscard]] bool isEmptyCategory(const QString& category) const;
    [[nodiscard]] int indexOfScaleFromCategory(const QString& category, const QString& key, int from) const;
    /// The new index; -1 if the category or the record is unknown, or the word is there already.
    int appendScaleToCategory(const QString& category, const QString& key);
    void appendScalesToCategory(const QString& category, const QList<QString>& keys);
    /// As appendScaleToCategory(), at an index, which is bounded; the record need not exist.
    int insertScaleToCategory(const QString& category, int index, const QString& key);
    /// The record stays.
    void removeScaleFromCategory(const QString& category, int index);
    void clearScalesFromCategory(const QString& category);
    void moveScale(int from, int to, const QString& category);
    /// Between categories `to` is bounded; a category that has the word already keeps it where it is.
    void moveScale(int from, int to, const QString& oldCategory, const QString& newCategory);

    /// Sorts by the default locale, numbers by their value: "9" stands before "10".
    static void sortStringVector(QVector<QString>& strings);

private:
    const std::unique_ptr<DatabaseLibraryPrivate> d;
};
