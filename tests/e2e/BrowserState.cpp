#include "BrowserState.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"
#include "keys/ScaleKeyController.h"
#include "screen/AbstractDialog.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>

namespace {

QStringList rowsOf(const QListWidget& list)
{
    QStringList rows;
    for (int row = 0; row < list.count(); ++row)
        rows << list.item(row)->text();
    return rows;
}

int chosenRow(const QListWidget& list)
{
    const QList<QListWidgetItem*> chosen = list.selectedItems();
    return chosen.isEmpty() ? -1 : list.row(chosen.first());
}

const ScaleKeyController& selectorOf(const MainWnd& window)
{
    return *static_cast<const ScaleKeyController*>(window.scaleController);
}

void addRecords(BrowserSnapshot& now, const DatabaseLibrary& library, QStringList words)
{
    for (const auto& category : now.categories)
        words += category.words;
    words += library.customScales();
    for (const QString& word : words) {
        scale_data record;
        if (library.getScaleData(word, record, DatabaseLibrary::AnyRole))
            now.records[record.scale] = QStringList{record.abbr1, record.abbr2, record.title, record.libBody,
                                                    library.isCustomScale(word) ? QStringLiteral("custom")
                                                                                : QStringLiteral("library")};
    }
}

void addLibrary(BrowserSnapshot& now, const DatabaseLibrary& library, const QStringList& words)
{
    const QVector<QString> names = library.categories();
    for (const QString& name : names)
        now.categories << BrowserSnapshot::Category{name, library.scalesFromCategory(name),
                                                    library.currentScaleIndex(name)};
    now.current = library.currentCagetoryIndex();
    addRecords(now, library, words);
}

void addView(BrowserSnapshot& now, const LibraryView& view)
{
    now.categoryRows = rowsOf(*view.categories);
    now.categoryRow = chosenRow(*view.categories);
    now.scaleRows = rowsOf(*view.scales);
    now.scaleRow = chosenRow(*view.scales);
    now.page = view.description->toPlainText().trimmed();
    now.playedPlate = view.button(LibraryButton::scale_label).text();
    now.abbrPlates = QStringList{view.button(LibraryButton::edit_abbr1).text(),
                                 view.button(LibraryButton::edit_abbr2).text()};
    now.mark = view.mark->isVisible();
    now.ghosts = !view.button(LibraryButton::copy_scale).isEnabled();
}

template <typename Field>
void addField(QStringList& lines, const QWidget& dialog, const char* name, QString (Field::*text)() const)
{
    const auto* field = dialog.findChild<Field*>(QLatin1String(name));
    if (field && field->isVisible())
        lines << QLatin1String(name) + QStringLiteral(": ") + (field->*text)();
}

} // namespace

BrowserSnapshot snapshotOf(const MainWnd& window, const QStringList& words)
{
    BrowserSnapshot now;
    now.power = window.isPowerOn();
    now.dialog = window.dialogOpen;
    now.open = window.centerScreen->libraryOpen;
    now.scaleSwitch = selectorOf(window).switchOn;
    now.played = selectorOf(window).scaleModifier();
    const header_data& flag = window.headerController->activeHeader->record;
    now.activeFlag = QStringList{flag.nameScenic1, flag.nameScenic2};
    addLibrary(now, window.library, words);
    addView(now, *window.centerScreen->libraryView());
    return now;
}

bool isBrowserBehind(const MainWnd& window)
{
    const QList<QTimer*> timers = window.centerScreen->findChildren<QTimer*>();
    return std::any_of(timers.begin(), timers.end(),
                       [](const QTimer* timer) { return timer->isSingleShot() && timer->isActive(); });
}

QWidget* shownDialog(const MainWnd& window)
{
    const QList<AbstractDialog*> dialogs = window.findChildren<AbstractDialog*>();
    const auto shown =
        std::find_if(dialogs.begin(), dialogs.end(), [](const auto* dialog) { return dialog->isVisible(); });
    return shown == dialogs.end() ? nullptr : *shown;
}

QStringList fieldsOf(const QWidget& dialog)
{
    QStringList lines;
    for (const char* name : {"name", "title", "abbr1", "abbr2"})
        addField<QLineEdit>(lines, dialog, name, &QLineEdit::text);
    addField<QComboBox>(lines, dialog, "category", &QComboBox::currentText);
    addField<QTextEdit>(lines, dialog, "description", &QTextEdit::toPlainText);
    addField<QLabel>(lines, dialog, "message", &QLabel::text);
    return lines;
}
