// The catalogue held to a simple model: a long random walk over every operation, each result and the whole
// visible state compared after each step, and the way of random catalogues through a save and a load.

#include "LibraryModel.h"
#include "library/DatabaseLibrary.h"
#include "library/default_tables.h"

#include <QDebug>
#include <QLocale>
#include <QtTest>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <utility>
#include <vector>

class TestLibraryModel : public QObject
{
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale("en_US")); }

    void randomOperationsAgreeWithTheModel_data();
    void randomOperationsAgreeWithTheModel();
    void savedLibrariesLoadAsTheyWere();
};

namespace {

using namespace library_model;

constexpr unsigned walkSeed = 20250117;
constexpr int walkSteps = 20000;
constexpr unsigned loadSeed = 4711;
constexpr int loadRounds = 500;
constexpr std::array roles = {Role::AnyRole, Role::LibraryRole, Role::CustomRole};

// Saved data of either side

Entries dataOf(const Model& model)
{
    return model.data();
}
void load(Model& model, const Entries& entries)
{
    model.load(entries);
}

/// The values of one key come out of the map last inserted first.
Entries dataOf(const DatabaseLibrary& library)
{
    QMap<QString, scale_data> data = {{"left over", {"xooooooooooo", {}, {}, "left over", {}}}};
    library.getData(data);
    const QMultiMap<QString, scale_data> all(data);
    Entries entries;
    for (const QString& name : all.uniqueKeys()) {
        const QList<scale_data> lastFirst = all.values(name);
        for (auto record = lastFirst.crbegin(); record != lastFirst.crend(); ++record)
            entries.emplace_back(name, fieldsOf(*record));
    }
    return entries;
}

void load(DatabaseLibrary& library, const Entries& entries)
{
    QMultiMap<QString, scale_data> data;
    for (const auto& [name, fields] : entries)
        data.insert(name, recordOf(fields));
    library.setData(data);
}

// Names and words of the walk

/// No two differ in letter case alone: which of them comes first is the locale's affair. One is empty.
const Names& usedNames()
{
    static const QString plain = "1 - a|2 - b|3 - c|9 - i|10 - j|11 - k|12 - x|100 - c|alpha|beta|gamma|"
                                 "mode 2|mode 10|mode 9 of 10|";
    static const Names names = plain.split('|')
                               << resetCatrgoryData[0] << resetCatrgoryData[8] << resetCatrgoryData[9];
    return names;
}

/// Asked for, never given to a category.
const Names& strangeNames()
{
    static const Names names = QString("ALPHA|alpha | beta|1 - A|01 - a|nowhere").split('|');
    return names;
}

/// Some of the factory's, some unknown to it; some that are no words, one of them empty.
const Names& usedWords()
{
    static const QString plain =
        "xoxoxoxxoxox|xoxoxxoxoxox|xooxoxxxooxo|xxxxxxxxxxxx|xooooooooooo|xxoooooooooo|"
        "xoxooooooooo|xooxoooooooo|xoooxooooooo|xooooxoooooo|xoooooxooooo|xooooooxoooo|"
        "xoooooooxooo|xooooooooxoo|oooooooooooo|XOXOXXOXOXOX|xoxo|";
    static const Names words = plain.split('|');
    return words;
}

Names everyName()
{
    Names names = usedNames() + strangeNames();
    for (const QString& name : resetCatrgoryData)
        if (!names.contains(name))
            names.append(name);
    return names;
}

Names everyWord()
{
    Names words = usedWords();
    for (const auto& block : resetScaleData)
        for (const scale_data& row : block)
            if (!words.contains(row.scale))
                words.append(row.scale);
    return words;
}

// Chance

class Chance
{
public:
    explicit Chance(unsigned seed) : engine(seed) {}

    /// Plain remainder, so that every standard library draws the same.
    int below(int bound) { return static_cast<int>(engine() % static_cast<unsigned>(bound)); }
    bool percent(int share) { return below(100) < share; }
    /// A little past both ends of 0..count.
    int around(int count) { return below(count + 5) - 2; }
    QString oneOf(const Names& list) { return list.isEmpty() ? QString() : list.at(below(list.size())); }

    QString text(const char* stem) { return percent(12) ? QString() : stem + QString::number(below(50)); }
    scale_data record(const QString& word)
    {
        return {percent(8) ? oneOf(usedWords()) : word, text("a"), text("b"), text("title "), text("body ")};
    }
    Entries entries();

private:
    std::mt19937 engine;
};

/// Words repeat with other titles; records without a word or a title are among them.
Entries Chance::entries()
{
    Entries all;
    for (int i = below(25); i > 0; --i) {
        const QString name = oneOf(usedNames());
        all.emplace_back(name, fieldsOf(percent(10) ? scale_data() : record(oneOf(usedWords()))));
    }
    return all;
}

// Operations

/// The arguments of one step; each operation takes what it needs.
struct Step
{
    QString name, other, word;
    Names words;
    QVector<QString> strings;
    int place = 0;  ///< around the number of categories
    int index = 0;  ///< around the number of words of `name`
    int second = 0; ///< the same
    int to = 0;     ///< around the number of words of `other`
    Role role = Role::AnyRole;
    scale_data record;
    Entries entries;
};

template <typename T>
QString textOf(const T& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

QString textOf(const Fields& fields)
{
    return textOf(QStringList(fields.begin(), fields.end()));
}
QString textOf(const std::optional<Fields>& fields)
{
    return fields ? textOf(*fields) : "nothing";
}
QString textOf(const std::map<QString, Fields>::value_type& entry)
{
    return textOf(entry.second);
}
QString textOf(const Entries::value_type& entry)
{
    return textOf(entry.first) + ": " + textOf(entry.second);
}

/// One operation on either side; what it returns comes back as text.
struct Operation
{
    const char* name;
    int weight;
    std::function<QString(Model&, const Step&)> onModel;
    std::function<QString(DatabaseLibrary&, const Step&)> onLibrary;
};

template <typename Call>
Operation operation(const char* name, int weight, Call call)
{
    const auto asText = [call](auto& side, const Step& s) {
        if constexpr (std::is_void_v<decltype(call(side, s))>) {
            call(side, s);
            return QString();
        } else {
            return textOf(call(side, s));
        }
    };
    return {name, weight, asText, asText};
}

/// A member that both sides have, called with arguments out of the step `s`.
#define OPERATION(weight, call)                                                                              \
    operation(#call, weight, [](auto& side, [[maybe_unused]] const Step& s) { return side.call; })

template <typename Side>
QString readRecord(const Side& side, const Step& s)
{
    scale_data out = s.record; // stays so if nothing is found
    const bool found = side.getScaleData(s.word, out, s.role);
    return textOf(found) + textOf(fieldsOf(out));
}

template <typename Side>
QVector<QString> sorted(const Side&, const Step& s)
{
    QVector<QString> strings = s.strings;
    Side::sortStringVector(strings);
    return strings;
}

std::vector<Operation> everyOperation()
{
    return {
        OPERATION(1, clear()),
        OPERATION(1, loadDefault()),
        operation("setData(getData())", 2, [](auto& side, const Step&) { load(side, dataOf(side)); }),
        operation("setData(s.entries)", 1, [](auto& side, const Step& s) { load(side, s.entries); }),

        operation("getScaleData", 8, [](auto& side, const Step& s) { return readRecord(side, s); }),
        OPERATION(24, setScaleData(s.word, s.record, s.role)),
        OPERATION(8, containsScale(s.word, s.role)),
        OPERATION(8, isCustomScale(s.word)),
        OPERATION(8, setCustomScale(s.word)),
        OPERATION(2, customScales()),
        OPERATION(8, removeScale(s.word)),
        OPERATION(4, findCategoriesWithScale(s.word)),

        OPERATION(12, insertCategory(s.other)),
        OPERATION(6, removeCategory(s.name)),
        OPERATION(2, removeScalesWithCategory(s.name)),
        OPERATION(10, renameCategory(s.name, s.other)),
        OPERATION(2, categories()),
        OPERATION(2, categoryCount()),
        OPERATION(8, indexOfCategory(s.name, s.place)),
        operation("sortStringVector", 4, [](auto& side, const Step& s) { return sorted(side, s); }),

        OPERATION(8, setCurrentCategory(s.name)),
        OPERATION(8, setCurrentCategoryIndex(s.place)),
        OPERATION(2, currentCagetoryIndex()),
        OPERATION(2, currentCategory()),
        OPERATION(16, setCurrentScaleIndex(s.name, s.index)),
        OPERATION(4, currentScaleIndex(s.name)),
        OPERATION(2, currentScale()),

        OPERATION(2, scalesFromCategory(s.name)),
        OPERATION(8, scaleFromCategory(s.name, s.index)),
        OPERATION(4, scalesCountFromCategory(s.name)),
        OPERATION(4, isEmptyCategory(s.name)),
        OPERATION(8, indexOfScaleFromCategory(s.name, s.word, s.index)),
        OPERATION(24, appendScaleToCategory(s.name, s.word)),
        OPERATION(12, appendScalesToCategory(s.name, s.words)),
        OPERATION(24, insertScaleToCategory(s.name, s.index, s.word)),
        OPERATION(10, removeScaleFromCategory(s.name, s.index)),
        OPERATION(3, clearScalesFromCategory(s.name)),
        OPERATION(12, moveScale(s.index, s.second, s.name)),
        OPERATION(20, moveScale(s.index, s.to, s.name, s.other)),
    };
}

QString textOf(const Step& s)
{
    QString text;
    QDebug(&text) << "name" << s.name << "other" << s.other << "word" << s.word << "words" << s.words
                  << "strings" << s.strings << "place" << s.place << "index" << s.index << "second"
                  << s.second << "to" << s.to << "role" << s.role << "record" << textOf(fieldsOf(s.record))
                  << "entries" << s.entries.size();
    return text;
}

// Choice of the arguments

QString someName(Chance& chance, const Model& model)
{
    const int kind = chance.below(10);
    return chance.oneOf(kind < 6 ? model.categories().toList() : kind < 9 ? usedNames() : strangeNames());
}

QString someWord(Chance& chance, const Model& model, const QString& category)
{
    const int kind = chance.below(10);
    return chance.oneOf(kind < 3   ? model.scalesFromCategory(category)
                        : kind < 5 ? model.customScales()
                                   : usedWords());
}

Step someStep(Chance& chance, const Model& model)
{
    Step s;
    s.name = someName(chance, model);
    s.other = chance.percent(15) ? s.name : chance.oneOf(model.categories().toList() + usedNames());
    if (strangeNames().contains(s.other))
        s.other = usedNames().first();
    s.word = someWord(chance, model, s.name);
    for (int i = chance.below(6); i > 0; --i)
        s.words.append(someWord(chance, model, s.other));
    for (int i = chance.below(8); i > 0; --i)
        s.strings.append(chance.oneOf(usedNames()));
    s.place = chance.around(model.categoryCount());
    s.index = chance.around(model.scalesCountFromCategory(s.name));
    s.second = chance.around(model.scalesCountFromCategory(s.name));
    s.to = chance.around(model.scalesCountFromCategory(s.other));
    s.role = roles[static_cast<std::size_t>(chance.below(3))];
    s.record = chance.record(s.word);
    s.entries = chance.entries();
    return s;
}

// All that can be seen of a catalogue

struct View
{
    QVector<QString> categories;
    std::vector<Names> words;                   ///< by category
    std::vector<QString> current;               ///< category index, category, word
    std::vector<int> scaleIndexes;              ///< by name, those of removed and unknown categories too
    std::vector<std::optional<Fields>> records; ///< by word and role
    Names custom;
    std::vector<Names> holders; ///< by word
    Entries data;
};

template <typename Side>
View viewOf(const Side& side)
{
    static const Names names = everyName(), words = everyWord();
    View view{side.categories(), {}, {}, {}, {}, side.customScales(), {}, dataOf(side)};
    for (const QString& name : qAsConst(view.categories))
        view.words.push_back(side.scalesFromCategory(name));
    view.current = {QString::number(side.currentCagetoryIndex()), side.currentCategory(),
                    side.currentScale()};
    for (const QString& name : names)
        view.scaleIndexes.push_back(side.currentScaleIndex(name));
    for (const QString& word : words) {
        view.holders.push_back(side.findCategoriesWithScale(word));
        for (const Role role : roles) {
            scale_data out;
            const bool found = side.getScaleData(word, out, role);
            view.records.push_back(found ? std::optional(fieldsOf(out)) : std::nullopt);
        }
    }
    return view;
}

template <typename List>
QString partDifference(const char* part, const List& model, const List& library)
{
    if (model == library)
        return {};
    const auto [mine, its] = std::mismatch(model.begin(), model.end(), library.begin(), library.end());
    return QString("%1[%2]: the model has %3, the library %4")
        .arg(part)
        .arg(std::distance(model.begin(), mine))
        .arg(mine == model.end() ? "no more" : textOf(*mine),
             its == library.end() ? "no more" : textOf(*its));
}

/// Empty if both are alike.
QString difference(const View& model, const View& library)
{
    const Names parts = {partDifference("categories", model.categories, library.categories),
                         partDifference("words by category", model.words, library.words),
                         partDifference("current index, category, word", model.current, library.current),
                         partDifference("scale indexes by name", model.scaleIndexes, library.scaleIndexes),
                         partDifference("records by word and role", model.records, library.records),
                         partDifference("custom words", model.custom, library.custom),
                         partDifference("categories by word", model.holders, library.holders),
                         partDifference("saved data", model.data, library.data)};
    return parts.filter(":").join("; ");
}

template <typename List>
bool hasTwice(const List& list)
{
    return std::set<QString>(list.begin(), list.end()).size() != static_cast<std::size_t>(list.size());
}

/// What holds of any catalogue, whatever the model says. Empty if it does.
QString brokenInvariant(const DatabaseLibrary& library, const View& view)
{
    if (library.categoryCount() != view.categories.size())
        return "the count of categories is not that of their names";
    if (hasTwice(view.categories))
        return "two categories have one name";
    if (std::any_of(view.words.begin(), view.words.end(), hasTwice<Names>))
        return "a category holds a word twice";
    if (hasTwice(view.custom))
        return "a word is custom twice";
    if (library.currentCagetoryIndex() < -1)
        return "the current category index is below -1";
    return {};
}

// The walk

/// The model and the catalogue side by side.
class Walk
{
public:
    explicit Walk(unsigned seed);

    /// Empty if both start alike.
    QString start() const { return difference(before, viewOf(library)); }
    /// Does one operation on both; empty, or what went wrong.
    QString step();
    /// Operations that never changed anything nor had two results: a walk with such has shown nothing of
    /// them.
    Names idleOperations() const;

private:
    QString perform(std::size_t chosen, const Step& s);

    Chance chance;
    Model model;
    DatabaseLibrary library;
    View before;
    const std::vector<Operation> operations = everyOperation();
    std::vector<std::size_t> urn; ///< each operation as often as it weighs
    std::vector<std::set<QString>> results;
    std::vector<bool> changed;
};

Walk::Walk(unsigned seed)
    : chance(seed), before(viewOf(model)), results(operations.size()), changed(operations.size())
{
    for (std::size_t i = 0; i < operations.size(); ++i)
        urn.insert(urn.end(), static_cast<std::size_t>(operations[i].weight), i);
}

QString Walk::step()
{
    const std::size_t chosen = urn[static_cast<std::size_t>(chance.below(static_cast<int>(urn.size())))];
    const Step s = someStep(chance, model);
    const QString wrong = perform(chosen, s);
    return wrong.isEmpty() ? wrong
                           : QString("%1\n   with %2\n   %3").arg(operations[chosen].name, textOf(s), wrong);
}

QString Walk::perform(std::size_t chosen, const Step& s)
{
    const QString expected = operations[chosen].onModel(model, s);
    const QString result = operations[chosen].onLibrary(library, s);
    if (result != expected)
        return "gives " + result + " for " + expected;
    const View after = viewOf(model), seen = viewOf(library);
    results[chosen].insert(result);
    changed[chosen] = changed[chosen] || !difference(before, after).isEmpty();
    before = after;
    const QString broken = brokenInvariant(library, seen);
    return broken.isEmpty() ? difference(after, seen) : broken;
}

Names Walk::idleOperations() const
{
    Names idle;
    for (std::size_t i = 0; i < operations.size(); ++i)
        if (!changed[i] && results[i].size() < 2)
            idle.append(operations[i].name);
    return idle;
}

// Save and load

/// What a save and a load should leave of a catalogue.
struct Kept
{
    std::map<QString, Names> words; ///< by category
    std::map<QString, Fields> records;
    int emptyCategories = 0;
    int customWords = 0; ///< in categories, so that leaving them out shows
};

/// Random words in random order.
Names someWords(Chance& chance)
{
    Names pool = usedWords(), words;
    pool.removeAll(QString());
    for (int i = chance.below(pool.size()); i > 0; --i)
        words.append(pool.takeAt(chance.below(pool.size())));
    return words;
}

/// Every third word or so is custom.
void addRecords(DatabaseLibrary& library, Chance& chance)
{
    for (const QString& word : someWords(chance)) {
        const scale_data record = {word, chance.text("a"), chance.text("b"), "title of " + word,
                                   chance.text("c")};
        library.setScaleData(word, record, chance.percent(30) ? Role::CustomRole : Role::LibraryRole);
    }
}

/// Empty, or with a library word among its words: a category of custom words alone is not saved.
void addCategory(DatabaseLibrary& library, Chance& chance, const QString& name, Kept& kept)
{
    Names added, saved;
    for (const QString& word : someWords(chance)) {
        if (library.containsScale(word, Role::AnyRole))
            added.append(word);
        if (library.containsScale(word, Role::LibraryRole))
            saved.append(word);
    }
    library.insertCategory(name);
    kept.words[name] = saved;
    kept.emptyCategories += saved.isEmpty() ? 1 : 0;
    if (saved.isEmpty())
        return;
    library.appendScalesToCategory(name, added);
    kept.customWords += added.size() - saved.size();
    for (const QString& word : saved) {
        scale_data record;
        library.getScaleData(word, record, Role::LibraryRole);
        kept.records[word] = fieldsOf(record);
    }
}

/// A file is written in the order of the map, which has the last inserted of one key first, and read into a
/// map in the order of the file: that turns the words of a category round, as setData() does once more.
QMap<QString, scale_data> throughAFile(const QMap<QString, scale_data>& data)
{
    QMultiMap<QString, scale_data> read;
    for (auto entry = data.cbegin(); entry != data.cend(); ++entry)
        read.insert(entry.key(), *entry);
    return read;
}

Kept fill(DatabaseLibrary& library, Chance& chance)
{
    Kept kept;
    library.clear();
    addRecords(library, chance);
    for (int i = chance.below(12); i > 0; --i) {
        const QString name = chance.oneOf(usedNames());
        if (kept.words.count(name) == 0)
            addCategory(library, chance, name, kept);
    }
    return kept;
}

/// Empty if the catalogue holds what was kept and nothing else.
QString difference(const Kept& kept, const DatabaseLibrary& library)
{
    QVector<QString> names;
    std::vector<Names> words, itsWords;
    for (const auto& [name, list] : kept.words)
        names.append(name);
    std::sort(names.begin(), names.end(), comesBefore);
    for (const QString& name : names) {
        words.push_back(kept.words.at(name));
        itsWords.push_back(library.scalesFromCategory(name));
    }
    std::map<QString, Fields> itsRecords;
    scale_data record;
    for (const QString& word : everyWord())
        if (library.getScaleData(word, record, Role::AnyRole))
            itsRecords[word] = fieldsOf(record);
    const Names parts = {partDifference("categories", names, library.categories()),
                         partDifference("words by category", words, itsWords),
                         partDifference("custom words", Names(), library.customScales()),
                         partDifference("records", kept.records, itsRecords)};
    return parts.filter(":").join("; ");
}

} // namespace

/// The plain locale has no order of its own that puts "9" before "10".
void TestLibraryModel::randomOperationsAgreeWithTheModel_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("a language") << "en_US";
    QTest::newRow("no language") << "C";
}

void TestLibraryModel::randomOperationsAgreeWithTheModel()
{
    QFETCH(const QString, locale);
    QLocale::setDefault(QLocale(locale));
    Walk walk(walkSeed);
    QCOMPARE(walk.start(), QString());
    for (int step = 0; step < walkSteps; ++step) {
        const QString wrong = walk.step();
        if (!wrong.isEmpty())
            QFAIL(qPrintable(QString("seed %1, step %2: %3").arg(walkSeed).arg(step).arg(wrong)));
    }
    QCOMPARE(walk.idleOperations(), Names());
}

void TestLibraryModel::savedLibrariesLoadAsTheyWere()
{
    Chance chance(loadSeed);
    int emptyCategories = 0, customWords = 0;
    for (int round = 0; round < loadRounds; ++round) {
        DatabaseLibrary saved, loaded;
        const Kept kept = fill(saved, chance);
        QMap<QString, scale_data> data;
        saved.getData(data);
        loaded.setData(throughAFile(data));
        const QString wrong = difference(kept, loaded);
        if (!wrong.isEmpty())
            QFAIL(qPrintable(QString("seed %1, library %2: %3").arg(loadSeed).arg(round).arg(wrong)));
        emptyCategories += kept.emptyCategories;
        customWords += kept.customWords;
    }
    QVERIFY(emptyCategories > loadRounds / 2 && customWords > loadRounds / 2);
}

QTEST_GUILESS_MAIN(TestLibraryModel)
#include "test_library_model.moc"
