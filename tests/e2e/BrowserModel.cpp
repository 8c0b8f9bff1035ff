#include "BrowserModel.h"

#include "library/default_tables.h"

#include <QCollator>

#include <algorithm>

namespace {

const QString ionian = QStringLiteral("xoxoxxoxoxox"), nothingButTonic = QStringLiteral("xooooooooooo");
constexpr int blackKeys[] = {1, 3, 6, 8, 10};

/// The place of a black key's flag among all; the lowest one, A#0, is the first.
std::size_t flagOf(int blackKey)
{
    const auto inOctave = std::find(std::begin(blackKeys), std::end(blackKeys), blackKey % 12);
    return static_cast<std::size_t>((blackKey / 12 - 2) * 5 + (inOctave - std::begin(blackKeys)) + 1);
}

bool comesBefore(const QString& a, const QString& b)
{
    QCollator collator;
    collator.setNumericMode(true);
    return collator.compare(a, b) < 0;
}

} // namespace

BrowserModel::BrowserModel() : activeFlag(flagOf(63)), played(ionian)
{
    for (std::size_t block = 0; block < resetCatrgoryData.size(); ++block) {
        Category category{resetCatrgoryData[block], {}, -1};
        for (int row = 0; row < numResetScales[block + 1]; ++row) {
            const scale_data& scale = resetScaleData[block + 1][static_cast<std::size_t>(row)];
            category.words << scale.scale;
            records[scale.scale] = {{scale.abbr1, scale.abbr2, scale.title, scale.libBody}, false};
        }
        categories << category;
    }
    for (const header_data& row : resetHeaderData)
        flags.push_back({row.scaleOn, row.scaleData, row.nameScenic1, row.nameScenic2});
    renewFlags({});
    follow();
}

void BrowserModel::setPower(bool on)
{
    power = on;
    if (on)
        follow();
}

// What was looked at is forgotten with the library.
void BrowserModel::setOpen(bool shown)
{
    open = shown;
    if (open)
        described = chosenWord().isEmpty() ? played : chosenWord();
}

void BrowserModel::setScaleSwitch(bool on)
{
    scaleSwitch = on;
    flags[activeFlag].scaleOn = on;
    flags[activeFlag].word = played;
    follow();
}

void BrowserModel::play(const QString& word)
{
    played = word;
    flags[activeFlag].scaleOn = scaleSwitch;
    flags[activeFlag].word = word;
    follow();
}

void BrowserModel::toggleDegree(int degree)
{
    QString word = played;
    word[degree] = QLatin1Char(word.at(degree) == QLatin1Char('x') ? 'o' : 'x');
    play(word);
}

// The preset that is left keeps what the selectors show.
void BrowserModel::recall(int blackKey)
{
    flags[activeFlag].scaleOn = scaleSwitch;
    flags[activeFlag].word = played;
    renew(flags[activeFlag]);
    activeFlag = flagOf(blackKey);
    scaleSwitch = flags[activeFlag].scaleOn;
    if (scaleSwitch)
        played = flags[activeFlag].word;
    follow();
}

void BrowserModel::pressCategory(const QString& name)
{
    current = indexOf(name);
    Category& category = categories[current];
    if (category.remembered >= category.words.size())
        category.remembered = -1;
    if (category.remembered >= 0)
        described = chosenWord();
}

void BrowserModel::pressScale(int row)
{
    categories[current].remembered = row;
    described = chosenWord();
    if (scaleSwitch)
        play(described);
}

void BrowserModel::doubleClickScale(int row)
{
    pressScale(row);
    scaleSwitch = true;
    play(described);
}

void BrowserModel::createCategory(const QString& name)
{
    if (indexOf(name) < 0) {
        categories << Category{name, {}, -1};
        std::stable_sort(categories.begin(), categories.end(),
                         [](const Category& a, const Category& b) { return comesBefore(a.name, b.name); });
    }
    current = indexOf(name);
    if (!chosenWord().isEmpty())
        described = chosenWord();
}

// Its place stays, collated or not.
void BrowserModel::renameCategory(const QString& name)
{
    if (indexOf(name) < 0)
        categories[current].name = name;
}

void BrowserModel::deleteCategory()
{
    if (categories.size() < 2)
        return;
    categories.removeAt(current);
    current = std::min(current, categories.size() - 1);
    renewFlags({});
    follow();
}

void BrowserModel::deleteScale()
{
    const QString word = chosenWord();
    Category& category = categories[current];
    category.words.removeAt(category.remembered);
    category.remembered = std::min(category.remembered, category.words.size() - 1);
    renewFlags(word);
    follow();
}

void BrowserModel::addPlayed(const Names& names, const QString& name)
{
    records[played] = {names, false};
    Category& category = *find(name);
    if (!category.words.contains(played))
        category.words << played;
    current = indexOf(name);
    renewFlags(played);
    follow();
}

void BrowserModel::edit(const QString& word, const Names& names)
{
    records[word] = {names, false};
    renewFlags(word);
    follow();
}

void BrowserModel::reorder(int from, int to)
{
    categories[current].words.move(from, to);
    categories[current].remembered = to;
    follow();
}

void BrowserModel::dropOnCategory(int row, const QString& target, bool copy)
{
    Category& source = categories[current];
    const QString word = source.words.at(row);
    if (!copy)
        source.words.removeAt(row);
    find(target)->words << word;
    current = indexOf(target);
    categories[current].remembered = categories[current].words.size() - 1;
    described = word;
    follow();
}

void BrowserModel::copyByMenu(const QString& target)
{
    find(target)->words << chosenWord();
    follow();
}

void BrowserModel::moveByMenu(const QString& target)
{
    dropOnCategory(categories.at(current).remembered, target, false);
}

QStringList BrowserModel::categoryNames() const
{
    QStringList names;
    for (const Category& category : categories)
        names << category.name;
    return names;
}

QString BrowserModel::currentName() const
{
    return current < 0 ? QString() : categories.at(current).name;
}

QStringList BrowserModel::words() const
{
    return current < 0 ? QStringList() : categories.at(current).words;
}

QString BrowserModel::chosenWord() const
{
    return current < 0 ? QString() : categories.at(current).words.value(categories.at(current).remembered);
}

BrowserModel::Names BrowserModel::namesOf(const QString& word) const
{
    return records.value(word).names;
}

BrowserSnapshot BrowserModel::snapshot() const
{
    BrowserSnapshot now;
    now.power = power;
    now.open = open;
    now.scaleSwitch = scaleSwitch;
    now.played = played;
    now.activeFlag = QStringList{flags[activeFlag].abbr1, flags[activeFlag].abbr2};
    for (const Category& category : categories)
        now.categories << BrowserSnapshot::Category{category.name, category.words, category.remembered};
    now.current = current;
    for (auto record = records.begin(); record != records.end(); ++record)
        now.records[record.key()] =
            QStringList{record->names.abbr1, record->names.abbr2, record->names.title, record->names.body,
                        record->custom ? QStringLiteral("custom") : QStringLiteral("library")};
    now.categoryRows = categoryNames();
    now.categoryRow = current;
    for (const QString& word : words())
        now.scaleRows << namesOf(word).title;
    if (now.scaleRows.isEmpty())
        now.scaleRows << QStringLiteral("(no records)");
    now.scaleRow = chosenWord().isEmpty() ? -1 : categories.at(current).remembered;
    const Names shown = namesOf(described);
    const QStringList page{shown.title, shown.abbr1 + QLatin1Char(' ') + shown.abbr2,
                           shown.body.isEmpty() ? QStringLiteral("(no description)") : shown.body};
    now.page = page.join(QLatin1Char('\n'));
    now.playedPlate = namesOf(played).abbr1 + QLatin1Char(' ') + namesOf(played).abbr2;
    now.abbrPlates = QStringList{shown.abbr1, shown.abbr2};
    now.mark = mark;
    now.ghosts = chosenWord().isEmpty();
    return now;
}

BrowserModel::Category* BrowserModel::find(const QString& name)
{
    return &categories[indexOf(name)];
}

int BrowserModel::indexOf(const QString& name) const
{
    return categoryNames().indexOf(name);
}

bool BrowserModel::isPlaced(const QString& word) const
{
    return std::any_of(categories.begin(), categories.end(),
                       [&](const Category& category) { return category.words.contains(word); });
}

int BrowserModel::freeUserNumber() const
{
    const auto taken = [this](int number) {
        return std::any_of(flags.begin(), flags.end(), [number](const Flag& flag) {
            return flag.abbr1 == QLatin1String("User") && flag.abbr2 == QString::number(number);
        });
    };
    int number = 1;
    while (taken(number))
        ++number;
    return number;
}

// The browser goes where the played scale is, and stays if it is nowhere.
void BrowserModel::follow()
{
    renew(flags[activeFlag]);
    const auto holds = [this](const Category& category) { return category.words.contains(played); };
    if (current >= 0)
        categories[current].remembered = categories.at(current).words.indexOf(played);
    if (current < 0 || categories.at(current).remembered < 0) {
        const auto first = std::find_if(categories.begin(), categories.end(), holds);
        if (first != categories.end()) {
            current = static_cast<int>(first - categories.begin());
            first->remembered = first->words.indexOf(played);
        }
    }
    if (open)
        described = played;
    const bool known = records.contains(played) && !records.value(played).custom;
    mark = played != nothingButTonic && !(known && isPlaced(played));
}

void BrowserModel::renew(Flag& flag)
{
    dropUnusedRecords();
    if (!flag.scaleOn || flag.word.isEmpty()) {
        flag.abbr1.clear();
        flag.abbr2.clear();
        return;
    }
    if (!records.contains(flag.word)) {
        flag.abbr1.clear();
        flag.abbr2.clear();
        const QString number = QString::number(freeUserNumber());
        records[flag.word] = {{QStringLiteral("User"), number, QStringLiteral("User ") + number, QString()},
                              true};
    }
    flag.abbr1 = namesOf(flag.word).abbr1;
    flag.abbr2 = namesOf(flag.word).abbr2;
}

void BrowserModel::renewFlags(const QString& word)
{
    for (Flag& flag : flags)
        if (word.isEmpty() || flag.word == word)
            renew(flag);
}

void BrowserModel::dropUnusedRecords()
{
    const auto used = [this](const QString& word) {
        return std::any_of(flags.begin(), flags.end(),
                           [&](const Flag& flag) { return flag.scaleOn && flag.word == word; });
    };
    for (const QString& word : knownWords())
        if (records.value(word).custom && !used(word))
            records.remove(word);
}
