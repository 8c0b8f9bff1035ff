#include "LibraryModel.h"

#include "library/default_tables.h"

namespace library_model {
namespace {

/// Plain order of letters, lower case, with every number as wide as the widest.
QString sortKey(const QString& name)
{
    QString key, digits;
    for (const QChar c : name.toLower() + QChar('\0')) {
        if (c.isDigit()) {
            digits += c;
            continue;
        }
        key += digits.isEmpty() ? QString() : digits.rightJustified(6, '0');
        digits.clear();
        key += c;
    }
    return key;
}

} // namespace

bool comesBefore(const QString& a, const QString& b)
{
    return sortKey(a) < sortKey(b);
}

Shelf* Model::find(const QString& name)
{
    const auto isNamed = [&](const Shelf& shelf) { return shelf.name == name; };
    const auto found = std::find_if(shelves.begin(), shelves.end(), isNamed);
    return found == shelves.end() ? nullptr : &*found;
}

// The model: the whole

void Model::clear()
{
    shelves.clear();
    records.clear();
    custom.clear();
}

void Model::loadDefault()
{
    clear();
    for (std::size_t i = 0; i < resetCatrgoryData.size(); ++i) {
        insertCategory(resetCatrgoryData[i]);
        for (int row = 0; row < numResetScales[i + 1]; ++row) {
            const scale_data& record = resetScaleData[i + 1][static_cast<std::size_t>(row)];
            setScaleData(record.scale, record, Role::AnyRole);
            appendScaleToCategory(resetCatrgoryData[i], record.scale);
        }
    }
}

Entries Model::data() const
{
    std::map<QString, std::vector<Fields>> sorted;
    for (const Shelf& shelf : shelves) {
        if (shelf.words.isEmpty())
            sorted[shelf.name].push_back({});
        for (const QString& word : shelf.words)
            if (containsScale(word, Role::LibraryRole))
                sorted[shelf.name].push_back(fieldsOf(records.at(word)));
    }
    Entries entries;
    for (const auto& [name, all] : sorted)
        for (const Fields& fields : all)
            entries.emplace_back(name, fields);
    return entries;
}

void Model::load(const Entries& entries)
{
    clear();
    std::map<QString, std::vector<scale_data>> sorted;
    for (const auto& [name, fields] : entries)
        sorted[name].insert(sorted[name].begin(), recordOf(fields));
    for (const auto& [name, lastFirst] : sorted) {
        insertCategory(name);
        for (const scale_data& record : lastFirst) {
            if (record.scale.isEmpty() || record.title.isEmpty())
                continue;
            records.emplace(record.scale, record);
            appendScaleToCategory(name, record.scale);
        }
    }
}

// The model: records

bool Model::containsScale(const QString& key, Role role) const
{
    return records.count(key) != 0 &&
           (role == Role::AnyRole || (role == Role::CustomRole) == isCustomScale(key));
}

bool Model::getScaleData(const QString& key, scale_data& out, Role role) const
{
    if (!containsScale(key, role))
        return false;
    out = records.at(key);
    return true;
}

void Model::setScaleData(const QString& key, const scale_data& record, Role role)
{
    records[key] = record;
    if (role == Role::CustomRole)
        setCustomScale(key);
    else if (role == Role::LibraryRole)
        custom.removeAll(key);
}

void Model::setCustomScale(const QString& key)
{
    if (records.count(key) != 0 && !custom.contains(key))
        custom.append(key);
}

void Model::removeScale(const QString& key)
{
    for (std::size_t i = 1; i < shelves.size(); ++i)
        shelves[i].words.removeAll(key);
    custom.removeAll(key);
    records.erase(key);
}

Names Model::findCategoriesWithScale(const QString& key) const
{
    Names found;
    for (const Shelf& shelf : shelves)
        if (shelf.words.contains(key))
            found.append(shelf.name);
    return found;
}

// The model: categories

void Model::insertCategory(const QString& name)
{
    if (find(name) != nullptr)
        return;
    shelves.push_back({name, {}});
    std::sort(shelves.begin(), shelves.end(),
              [](const Shelf& a, const Shelf& b) { return comesBefore(a.name, b.name); });
    scaleIndexes[name] = -1;
}

void Model::removeCategory(const QString& name)
{
    const auto isNamed = [&](const Shelf& shelf) { return shelf.name == name; };
    shelves.erase(std::remove_if(shelves.begin(), shelves.end(), isNamed), shelves.end());
}

void Model::removeScalesWithCategory(const QString& name)
{
    for (const QString& word : scalesFromCategory(name))
        records.erase(word);
}

bool Model::renameCategory(const QString& oldName, const QString& newName)
{
    Shelf* shelf = find(oldName);
    if (shelf == nullptr || find(newName) != nullptr)
        return false;
    shelf->name = newName;
    return true;
}

QVector<QString> Model::categories() const
{
    QVector<QString> names;
    for (const Shelf& shelf : shelves)
        names.append(shelf.name);
    return names;
}

void Model::sortStringVector(QVector<QString>& strings)
{
    std::sort(strings.begin(), strings.end(), comesBefore);
}

// The model: where the user stands

void Model::setCurrentScaleIndex(const QString& category, int index)
{
    if (const Shelf* shelf = find(category))
        scaleIndexes[category] = index >= 0 && index < shelf->words.size() ? index : -1;
}

int Model::currentScaleIndex(const QString& category) const
{
    const auto found = scaleIndexes.find(category);
    return found == scaleIndexes.end() ? -1 : found->second;
}

QString Model::currentScale() const
{
    if (current < 0 || current >= categoryCount())
        return {};
    return scaleFromCategory(currentCategory(), currentScaleIndex(currentCategory()));
}

// The model: words in a category

Names Model::scalesFromCategory(const QString& category) const
{
    const Shelf* shelf = find(category);
    return shelf == nullptr ? Names() : shelf->words;
}

QString Model::scaleFromCategory(const QString& category, int index) const
{
    return scalesFromCategory(category).value(index);
}

int Model::indexOfScaleFromCategory(const QString& category, const QString& key, int from) const
{
    return indexFrom(scalesFromCategory(category), key, from);
}

int Model::appendScaleToCategory(const QString& category, const QString& key)
{
    if (records.count(key) == 0)
        return -1;
    return insertScaleToCategory(category, scalesCountFromCategory(category), key);
}

void Model::appendScalesToCategory(const QString& category, const Names& keys)
{
    for (const QString& key : keys)
        appendScaleToCategory(category, key);
}

int Model::insertScaleToCategory(const QString& category, int index, const QString& key)
{
    Shelf* shelf = find(category);
    if (shelf == nullptr || shelf->words.contains(key))
        return -1;
    const int bounded = std::clamp(index, 0, shelf->words.size());
    shelf->words.insert(bounded, key);
    return bounded;
}

void Model::removeScaleFromCategory(const QString& category, int index)
{
    Shelf* shelf = find(category);
    if (shelf != nullptr && index >= 0 && index < shelf->words.size())
        shelf->words.removeAt(index);
}

void Model::clearScalesFromCategory(const QString& category)
{
    if (Shelf* shelf = find(category))
        shelf->words.clear();
}

void Model::moveScale(int from, int to, const QString& category)
{
    const int count = scalesCountFromCategory(category);
    if (from < 0 || from >= count || to < 0 || to >= count)
        return;
    Names& words = find(category)->words;
    const QString word = words.takeAt(from);
    words.insert(to, word);
}

void Model::moveScale(int from, int to, const QString& oldCategory, const QString& newCategory)
{
    if (oldCategory == newCategory)
        return moveScale(from, to, oldCategory);
    if (find(newCategory) == nullptr || from < 0 || from >= scalesCountFromCategory(oldCategory))
        return;
    insertScaleToCategory(newCategory, to, find(oldCategory)->words.takeAt(from));
}

} // namespace library_model
