// The records of all headers: temporary scales, user numbers, bulk reads and writes.

#include "headers/HeaderController.h"

#include "app/MainWnd.h"
#include "keys/key_roles.h"

#include <QSet>

#include <algorithm>
#include <bitset>

namespace {

constexpr int lastUserNumber = 108;

/// The number of a temporary scale's names; 0 if they are none.
int userNumber(const header_data& record)
{
    const int number = record.nameScenic2.toInt();
    const bool named = record.nameScenic1 == QLatin1String("User") && number >= 1 && number <= lastUserNumber;
    return named ? number : 0;
}

bool holds(const HeaderItem* header, const QString& word)
{
    return header && header->record.scaleOn && header->record.scaleData == word;
}

/// Which words have names, and which "User" numbers are taken, while presets are loaded.
class NamesGiven
{
public:
    [[nodiscard]] bool has(const QString& word) const { return words.contains(word); }
    /// False if the record has no played word, no names, or comes after another claim to its word or its
    /// number.
    [[nodiscard]] bool take(const header_data& record)
    {
        const auto number = static_cast<std::size_t>(userNumber(record));
        const bool named = !record.nameScenic1.isEmpty() || !record.nameScenic2.isEmpty();
        if (!record.scaleOn || record.scaleData.isEmpty() || !named || has(record.scaleData) ||
            numbers[number])
            return false;
        words.insert(record.scaleData);
        numbers.set(number, number != 0);
        return true;
    }

private:
    QSet<QString> words;
    std::bitset<lastUserNumber + 1> numbers;
};

} // namespace

void HeaderController::removeUnusedTempRecords()
{
    const QList<QString> words = mainWnd->library.customScales();
    for (const QString& word : words) {
        // An empty word cannot be held: it is no scale.
        const bool used = !word.isEmpty() && std::any_of(headers.cbegin(), headers.cend(),
                                                         [&](const auto* h) { return holds(h, word); });
        if (!used)
            mainWnd->library.removeScale(word);
    }
}

int HeaderController::findMinUserNum() const
{
    std::bitset<lastUserNumber + 1> taken;
    for (const HeaderItem* header : headers)
        taken.set(static_cast<std::size_t>(userNumber(header->record)));
    for (int number = 1; number <= lastUserNumber; ++number)
        if (!taken[static_cast<std::size_t>(number)])
            return number;
    return 0;
}

void HeaderController::getHeadersPosition(QList<QPointF>& positions) const
{
    positions.clear();
    for (const HeaderItem* header : headers)
        positions.append(header->pos());
}

void HeaderController::getHeadersData(QList<header_data>& data) const
{
    data.clear();
    for (const HeaderItem* header : headers)
        data.append(header->record);
}

void HeaderController::updatePostions(const QList<QPointF>& positions)
{
    const int count = std::min(headers.size(), positions.size());
    for (int i = 0; i < count; ++i)
        headers.at(i)->setPos(positions.at(i));
}

// All records stand before the first name is looked up, so that a number held by a record that is about to go
// does not count as taken.
void HeaderController::reloadHeaders(const QList<header_data>& data)
{
    const int count = std::min(headers.size(), data.size());
    for (int i = 0; i < count; ++i)
        headers.at(i)->record = data.at(i);
    for (int i = 0; i < count; ++i) {
        headers.at(i)->updateScenic();
        headers.at(i)->update();
    }
}

void HeaderController::nameUnknownScales(const QList<header_data>& data) const
{
    DatabaseLibrary& library = mainWnd->library;
    NamesGiven given;
    for (int i = data.size(); i < headers.size(); ++i) // these keep what they have
        static_cast<void>(given.take(headers.at(i)->record));
    const QList<QString> before = library.customScales();
    for (const QString& word : before)
        if (!given.has(word))
            library.removeScale(word);
    for (const header_data& record : data)
        if (!library.containsScale(record.scaleData, DatabaseLibrary::LibraryRole) && given.take(record))
            library.setScaleData(
                record.scaleData,
                HeaderItem::temporaryScale(record.scaleData, record.nameScenic1, record.nameScenic2),
                DatabaseLibrary::CustomRole);
}

void HeaderController::updateHeaderScenics(const QString& word)
{
    for (HeaderItem* header : qAsConst(headers))
        if (word.isEmpty() || header->record.scaleData == word)
            header->updateScenic();
}
