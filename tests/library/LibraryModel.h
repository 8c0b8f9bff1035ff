#pragma once

#include "library/DatabaseLibrary.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>
#include <vector>

/// A simple model of the scale catalogue, independent of the program's own.
namespace library_model {

using Role = DatabaseLibrary::UserRole;
using Names = QList<QString>;

// Records and saved data in a form that compares
using Fields = std::array<QString, 5>;
/// Category and record, in the order in which they go into the map.
using Entries = std::vector<std::pair<QString, Fields>>;

inline Fields fieldsOf(const scale_data& r)
{
    return {r.scale, r.abbr1, r.abbr2, r.title, r.libBody};
}
inline scale_data recordOf(const Fields& f)
{
    return {f[0], f[1], f[2], f[3], f[4]};
}

/// The collated order of plain names: lower case, numbers by value.
[[nodiscard]] bool comesBefore(const QString& a, const QString& b);

/// As the containers search: a negative start counts from the end.
template <typename List>
int indexFrom(const List& list, const QString& wanted, int from)
{
    const int size = static_cast<int>(list.size());
    for (int i = from < 0 ? std::max(from + size, 0) : from; i < size; ++i)
        if (list.at(i) == wanted)
            return i;
    return -1;
}

struct Shelf
{
    QString name;
    Names words;
};

/// What the catalogue should do, said as simply as possible. Its operations have the names of the
/// catalogue's.
class Model
{
public:
    Model() { loadDefault(); }

    void clear();
    void loadDefault();
    [[nodiscard]] Entries data() const;
    void load(const Entries& entries);

    bool getScaleData(const QString& key, scale_data& out, Role role) const;
    void setScaleData(const QString& key, const scale_data& record, Role role);
    bool containsScale(const QString& key, Role role) const;
    bool isCustomScale(const QString& key) const { return custom.contains(key); }
    void setCustomScale(const QString& key);
    Names customScales() const { return custom; }
    void removeScale(const QString& key);
    Names findCategoriesWithScale(const QString& key) const;

    void insertCategory(const QString& name);
    void removeCategory(const QString& name);
    void removeScalesWithCategory(const QString& name);
    bool renameCategory(const QString& oldName, const QString& newName);
    QVector<QString> categories() const;
    int categoryCount() const { return static_cast<int>(shelves.size()); }
    int indexOfCategory(const QString& name, int from) const { return indexFrom(categories(), name, from); }
    static void sortStringVector(QVector<QString>& strings);

    void setCurrentCategory(const QString& name) { current = indexOfCategory(name, 0); }
    void setCurrentCategoryIndex(int index) { current = index >= 0 && index < categoryCount() ? index : -1; }
    int currentCagetoryIndex() const { return current; }
    QString currentCategory() const { return categories().value(current); }
    void setCurrentScaleIndex(const QString& category, int index);
    int currentScaleIndex(const QString& category) const;
    QString currentScale() const;

    Names scalesFromCategory(const QString& category) const;
    QString scaleFromCategory(const QString& category, int index) const;
    int scalesCountFromCategory(const QString& category) const { return scalesFromCategory(category).size(); }
    bool isEmptyCategory(const QString& category) const { return scalesFromCategory(category).isEmpty(); }
    int indexOfScaleFromCategory(const QString& category, const QString& key, int from) const;
    int appendScaleToCategory(const QString& category, const QString& key);
    void appendScalesToCategory(const QString& category, const Names& keys);
    int insertScaleToCategory(const QString& category, int index, const QString& key);
    void removeScaleFromCategory(const QString& category, int index);
    void clearScalesFromCategory(const QString& category);
    void moveScale(int from, int to, const QString& category);
    void moveScale(int from, int to, const QString& oldCategory, const QString& newCategory);

private:
    Shelf* find(const QString& name);
    const Shelf* find(const QString& name) const { return const_cast<Model*>(this)->find(name); }

    std::vector<Shelf> shelves;
    std::map<QString, scale_data> records;
    Names custom;
    int current = -1;
    std::map<QString, int> scaleIndexes; ///< outlives the category, even its name
};

} // namespace library_model
