#include "invariants.h"

#include "app/MainWnd.h"
#include "headers/AnchorsGroup.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/pitch_mapping.h"
#include "screen/CenterScreen.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace invariants {
namespace {

constexpr int headerCount = 36;
constexpr qreal farthest = 1e6; // as far as a file may move things, in scene pixels

class Report
{
public:
    void expect(bool holds, const QString& otherwise)
    {
        if (!holds)
            lines.append(otherwise);
    }

    QStringList lines;
};

QString named(const char* text, const QString& name)
{
    return QString::fromLatin1(text).arg(name);
}

QString counted(const char* text, int count)
{
    return QString::fromLatin1(text).arg(count);
}

void checkCategory(const DatabaseLibrary& library, const QString& category, Report& report)
{
    const QList<QString> words = library.scalesFromCategory(category);
    const QSet<QString> different(words.begin(), words.end());
    report.expect(different.size() == words.size(),
                  named("a word stands twice in the category %1", category));
    for (const QString& word : words) {
        scale_data record;
        const bool known = library.getScaleData(word, record, DatabaseLibrary::LibraryRole);
        report.expect(known, named("the listed word %1 has no record", word));
        report.expect(!known || record.scale == word, named("the record of %1 bears another word", word));
        report.expect(!known || !record.title.isEmpty(), named("the record of %1 has no title", word));
    }
}

void checkLibrary(const DatabaseLibrary& library, Report& report)
{
    const QVector<QString> categories = library.categories();
    const QSet<QString> different(categories.begin(), categories.end());
    report.expect(different.size() == categories.size(), QStringLiteral("a category is listed twice"));
    report.expect(library.currentCagetoryIndex() >= -1, QStringLiteral("the current category lies below -1"));
    for (const QString& category : categories)
        checkCategory(library, category, report);
}

/// A played word that is in no category has a record as long as a header holds it, and no longer.
void checkTemporaryRecords(const MainWnd& window, Report& report)
{
    QSet<QString> held;
    for (const HeaderItem* header : qAsConst(window.headerController->headers))
        if (header->record.scaleOn && !header->record.scaleData.isEmpty())
            held.insert(header->record.scaleData);
    for (const QString& word : qAsConst(held))
        report.expect(window.library.containsScale(word, DatabaseLibrary::AnyRole),
                      named("the header's word %1 has no record", word));
    for (const QString& word : window.library.customScales())
        report.expect(held.contains(word), named("no header holds the temporary record %1", word));
}

void checkHeaders(const MainWnd& window, Report& report)
{
    const HeaderController& presets = *window.headerController;
    report.expect(presets.headers.size() == headerCount, counted("%1 headers", presets.headers.size()));
    const auto active = std::count_if(presets.headers.begin(), presets.headers.end(),
                                      [](const HeaderItem* header) { return header->isActive(); });
    report.expect(active == 1, counted("%1 active headers", static_cast<int>(active)));
    report.expect(presets.activeHeader && presets.activeHeader->isActive(),
                  QStringLiteral("the active header is not shown as active"));
    for (const HeaderItem* header : presets.headers) {
        const int key = key_roles::pitch(header);
        report.expect(header->pos() == header->homePos, counted("header %1 is away from its home", key));
        const bool covered = key == key_roles::pitch(window.powerItem);
        report.expect(header->isVisible() == (window.isPowerOn() && !covered),
                      counted("header %1 shows when it should not, or does not when it should", key));
    }
}

void checkSelectors(const MainWnd& window, Report& report)
{
    const auto& tonic = *static_cast<const TonicKeyController*>(window.tonicController);
    const auto lit =
        std::count_if(tonic.keys.begin(), tonic.keys.end(), [](const TonicKeyItem* key) { return key->on; });
    report.expect(lit == 1, counted("%1 lit tonics", static_cast<int>(lit)));
    report.expect(tonic.activeKey && tonic.activeKey->on, QStringLiteral("the tonic is not lit"));
}

void checkStage(const MainWnd& window, Report& report)
{
    const int powerKey = key_roles::pitch(window.powerItem);
    report.expect(window.headerController->findHeader(powerKey) != nullptr,
                  counted("the power button stands on key %1", powerKey));
    const qreal x = window.powerItem->anchorsGroup->x();
    report.expect(std::isfinite(x) && std::abs(x) <= farthest,
                  QStringLiteral("the anchors are off the world"));
    for (const int target : targets(window))
        report.expect(target == pitch_mapping::noTarget ||
                          (target >= pitch_mapping::lowestPitch && target <= pitch_mapping::highestPitch),
                      counted("a key's target is %1", target));
}

void checkScreen(const MainWnd& window, Report& report)
{
    const CenterScreen& screen = *window.centerScreen;
    report.expect(screen.currentScene >= CenterScreen::scene_default &&
                      screen.currentScene <= CenterScreen::scene_credits,
                  counted("scene %1", screen.currentScene));
    report.expect(window.isPowerOn() || !screen.libraryOpen,
                  QStringLiteral("the library is open with the power off"));
    report.expect(!window.dialogOpen, QStringLiteral("a dialog is open"));
    report.expect(!window.isRecalling(), QStringLiteral("a recall goes on"));
}

} // namespace

QStringList broken(const MainWnd& window)
{
    Report report;
    checkLibrary(window.library, report);
    checkTemporaryRecords(window, report);
    checkHeaders(window, report);
    checkSelectors(window, report);
    checkStage(window, report);
    checkScreen(window, report);
    return report.lines;
}

QList<int> targets(const MainWnd& window)
{
    QList<int> all;
    for (int note = pitch_mapping::lowestPitch; note <= pitch_mapping::highestPitch; ++note)
        if (const ResizableItem* key = window.findInNote(note))
            all.append(key_roles::target(key));
    return all;
}

} // namespace invariants
