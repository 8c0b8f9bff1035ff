// The window in the languages that it speaks and in others, and that what it says finds room.

#include "DialogFixture.h"
#include "app/Translations.h"
#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"
#include "shown_words.h"

#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>

class TestLanguages : public DialogFixture
{
    Q_OBJECT

private slots:
    void init() {}
    void cleanup() { end(); }

    void firstLanguageThatIsSpokenIsTaken_data();
    void firstLanguageThatIsSpokenIsTaken();
    void germanLeavesNoEnglish();
    void otherLanguagesReadAsEnglish();
    void userScalesAreNamedAlikeInFiles();
    void buttonsOfTheDisplayHaveRoom_data() { addLanguages(); }
    void buttonsOfTheDisplayHaveRoom();
    void pageOfTheDisplayHasRoom_data() { addLanguages(); }
    void pageOfTheDisplayHasRoom();
    void remarksInTheListsHaveRoom_data() { addLanguages(); }
    void remarksInTheListsHaveRoom();
    void dialogsHaveRoom_data() { addLanguages(); }
    void dialogsHaveRoom();
    void alertsHaveRoom_data() { addLanguages(); }
    void alertsHaveRoom();

private:
    using Look = std::function<void(const QWidget&)>;

    static void addLanguages();
    void begin(const QStringList& languages);
    void beginRow();
    void end();
    QStringList words();
    /// Opens every question and every dialog of the library, one after the other.
    void lookAtAlerts(const Look& look);
    void lookAtDialogs(const Look& look) const;

    std::unique_ptr<Translations> translations;
};

namespace {

// What is a name and no word.
const QStringList names = {"MIDI I/O", "@Facebook", "@YouTube", "Sorvane", "User", "OK"};

QString textOf(const QString& word)
{
    return word.section(QLatin1Char('='), 1);
}

QStringList placesOf(QStringList words)
{
    for (QString& word : words)
        word = word.section(QLatin1Char('='), 0, 0);
    return words;
}

bool isData(const QString& text, const DatabaseLibrary& library)
{
    return names.contains(text.trimmed()) || library.categories().contains(text);
}

/// What of a label or button does not show.
QString cut(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool wraps = label && label->wordWrap();
    const QSize wanted = wraps ? QSize(0, label->heightForWidth(label->width())) : widget.sizeHint();
    if (wanted.width() <= widget.width() && wanted.height() <= widget.height())
        return {};
    return QStringLiteral("%1 \"%2\" wants %3x%4, has %5x%6")
        .arg(widget.objectName(), widget.property("text").toString())
        .arg(wanted.width())
        .arg(wanted.height())
        .arg(widget.width())
        .arg(widget.height());
}

/// Labels and buttons of a shown panel that are cut short or stand over its edge.
QStringList cutIn(const QWidget& panel)
{
    QStringList all;
    int seen = 0;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        const bool speaks = qobject_cast<const QLabel*>(child) || qobject_cast<const QPushButton*>(child);
        if (!speaks || !child->isVisible() || child->property("text").toString().trimmed().isEmpty())
            continue;
        ++seen;
        all << cut(*child);
        if (!panel.rect().contains(QRect(child->mapTo(&panel, QPoint()), child->size())))
            all << child->objectName() + QLatin1String(" stands over the edge");
    }
    all.removeAll({});
    return seen < 2 ? all << QStringLiteral("less than two texts") : all;
}

} // namespace

void TestLanguages::addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("German") << QStringLiteral("de");
}

void TestLanguages::begin(const QStringList& languages)
{
    end();
    translations = std::make_unique<Translations>(languages);
    openWindow();
    show();
}

void TestLanguages::beginRow()
{
    QFETCH(QString, language);
    begin({language});
    QCOMPARE(translations->language(), language);
}

void TestLanguages::end()
{
    if (window)
        closeWindow();
    translations.reset();
}

void TestLanguages::lookAtDialogs(const Look& look) const
{
    ChangeDialog change(window.get());
    change.setLabel(CenterScreen::tr("Choose a name for the new Category:"));
    change.setOkButtonTitle(CenterScreen::tr("Rename"));
    AddWindow add(1, window.get());
    EditWindow edit(1, window.get());
    for (AbstractDialog* dialog : std::initializer_list<AbstractDialog*>{&change, &add, &edit})
        run(*dialog, [&] {
            if (dialog != &change) { // a wrong letter brings the remark out
                auto* shortName = dialog->findChild<QLineEdit*>(QStringLiteral("abbr1"));
                QVERIFY(shortName);
                QTest::keyClick(shortName, Qt::Key_Space);
            }
            QCoreApplication::processEvents();
            look(*dialog);
        });
}

void TestLanguages::lookAtAlerts(const Look& look)
{
    const auto opened = [&](const std::function<void()>& open) {
        whenAsked([&](AlertWidget& alert) {
            QCoreApplication::processEvents();
            look(alert);
            alert.reject();
        });
        open();
    };
    opened([this] { presets().resetAll(); });
    opened([this] { presets().eraseAll(); });
    window->setPower(true);
    window->showLibraryScreen(true);
    opened([this] { window->centerScreen->carryOut(LibraryButton::delete_category); });
    opened([this] { window->centerScreen->carryOut(LibraryButton::delete_scale); });
    const RtMidiError error(
        "MidiInAlsa::openPort: ALSA error making port connection, and a long reason for that.",
        RtMidiError::DRIVER_ERROR);
    AlertWidget broken(QString(), MainWnd::portErrorText(QString::fromStdString(error.getMessage())),
                       MainWnd::tr("  OK  "), QString(), alert_error, window.get());
    broken.resize(window->size());
    broken.show();
    QCoreApplication::processEvents();
    look(broken);
}

QStringList TestLanguages::words()
{
    QStringList all = shown_words::of(*window);
    setRecord(active(), {{}, {}, "C", true, "C", true, "xooooooxoooo"});
    all += header(active())
               ->describe()
               .split(QLatin1Char('\n'))
               .replaceInStrings(QRegularExpression("^"), "flag=");
    lookAtDialogs([&](const QWidget& dialog) { all += shown_words::of(dialog); });
    lookAtAlerts([&](const QWidget& alert) { all += shown_words::of(alert); });
    return all;
}

void TestLanguages::firstLanguageThatIsSpokenIsTaken_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("taken");
    QTest::newRow("none") << QStringList() << "en";
    QTest::newRow("of a country") << QStringList{"de-AT", "de"} << "de";
    QTest::newRow("of no country") << QStringList{"de"} << "de";
    QTest::newRow("not spoken") << QStringList{"fr-FR", "fr"} << "en";
    QTest::newRow("the second") << QStringList{"fr-FR", "fr", "de"} << "de";
    QTest::newRow("English before others") << QStringList{"en-GB", "de"} << "en";
    QTest::newRow("a like beginning") << QStringList{"der"} << "en";
    QTest::newRow("no language") << QStringList{"", "../sorvane_de"} << "en";
}

void TestLanguages::firstLanguageThatIsSpokenIsTaken()
{
    QFETCH(QStringList, wanted);
    QFETCH(QString, taken);
    const Translations made(wanted);
    QCOMPARE(made.language(), taken);
    QCOMPARE(MainWnd::tr("Cancel"), QLatin1String(taken == QLatin1String("de") ? "Abbrechen" : "Cancel"));
}

void TestLanguages::germanLeavesNoEnglish()
{
    begin({"en"});
    const QStringList english = words();
    begin({"de-DE"});
    const QStringList german = words();
    QVERIFY2(english.size() > 100, qPrintable(QString::number(english.size())));
    QCOMPARE(placesOf(german), placesOf(english));
    QStringList left;
    for (int i = 0; i < english.size(); ++i)
        if (german[i] == english[i] && !isData(textOf(german[i]), library()))
            left << german[i];
    QCOMPARE(left, QStringList());
}

void TestLanguages::otherLanguagesReadAsEnglish()
{
    begin({"en"});
    const QStringList english = words();
    begin({"fr-FR", "fr"});
    QCOMPARE(words(), english);
}

void TestLanguages::userScalesAreNamedAlikeInFiles()
{
    for (const char* language : {"en", "de"}) {
        begin({QLatin1String(language)});
        const int key = active();
        setRecord(key, {{}, {}, "C", true, "C", true, "xooooooxoooo"});
        recall(key);
        QCOMPARE(record(key).nameScenic1, QStringLiteral("User"));
    }
}

void TestLanguages::buttonsOfTheDisplayHaveRoom()
{
    beginRow();
    const Ui_SorvaneClass& form = window->ui;
    for (QPushButton* button : {form.buttonMIDIinOut, form.buttonCredits, form.buttonManual,
                                form.buttonExport, form.buttonImport, form.buttonReset}) {
        button->setChecked(true); // bold, if anything is
        QCOMPARE(cut(*button), QString());
    }
}

void TestLanguages::pageOfTheDisplayHasRoom()
{
    beginRow();
    const QTextBrowser& about = *window->ui.about;
    QCOMPARE(about.document()->blockCount(), 3);
    QVERIFY(about.document()->size().height() <= about.viewport()->height());
    QVERIFY(about.document()->idealWidth() <= about.viewport()->width());
}

void TestLanguages::remarksInTheListsHaveRoom()
{
    beginRow();
    LibraryView& view = *window->centerScreen->libraryView();
    library().clear();
    window->setPower(true);
    window->showLibraryScreen(true);
    for (QListWidget* list : std::initializer_list<QListWidget*>{view.categories, view.scales}) {
        QCOMPARE(list->count(), 1);
        QVERIFY(list->item(0)->text().startsWith(QLatin1Char('(')));
        const int wanted = QFontMetrics(list->font()).horizontalAdvance(list->item(0)->text());
        QVERIFY(wanted > 0 && wanted <= list->visualItemRect(list->item(0)).width());
    }
}

void TestLanguages::dialogsHaveRoom()
{
    beginRow();
    int looked = 0;
    lookAtDialogs([&](const QWidget& dialog) {
        ++looked;
        QCOMPARE(cutIn(dialog), QStringList());
    });
    QCOMPARE(looked, 3);
}

void TestLanguages::alertsHaveRoom()
{
    beginRow();
    int looked = 0;
    lookAtAlerts([&](const QWidget& alert) {
        ++looked;
        QCOMPARE(cutIn(alert), QStringList());
    });
    QCOMPARE(looked, 5);
}

QTEST_MAIN(TestLanguages)
#include "test_languages.moc"
