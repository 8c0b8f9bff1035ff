// The program as it is started in one language or another: what it says in the terminal, and what it writes
// into a file, which no language may show in.

#include "ProgramUnderTest.h"

#include <QTemporaryDir>
#include <QtTest>

class TestStartLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void languageIsTheEnvironments_data();
    void languageIsTheEnvironments();
    void sessionsAreAlikeInAllLanguages();
    void sessionOfOneLanguageGoesOnInAnother();

private:
    /// What a run leaves in its file. Two of the factory's presets hold scales that only a "User" name is
    /// made for.
    QByteArray play(const char* locale, const char* name, const QStringList& more) const;

    QTemporaryDir folder;
};

namespace {

const QString programPath = QStringLiteral(SORVANE_PROGRAM);

void speak(const QByteArray& all, const QByteArray& lang = {}, const QByteArray& language = {})
{
    qputenv("LC_ALL", all);
    qputenv("LANG", lang);
    qputenv("LANGUAGE", language);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestStartLanguages::initTestCase()
{
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit()); // no MIDI service
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit()); // nor a folder of the desktop's own name
}

void TestStartLanguages::languageIsTheEnvironments_data()
{
    QTest::addColumn<QByteArray>("all");
    QTest::addColumn<QByteArray>("lang");
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<bool>("german");
    const auto row = [](const char* name, const char* all, const char* lang, const char* language,
                        bool german) {
        QTest::newRow(name) << QByteArray(all) << QByteArray(lang) << QByteArray(language) << german;
    };
    row("German", "", "de_DE.UTF-8", "", true);
    row("of Austria", "", "de_AT.UTF-8", "", true);
    row("German before all", "de_DE.UTF-8", "en_GB.UTF-8", "", true);
    row("German texts only", "", "en_GB.UTF-8", "de:en", true);
    row("French", "", "fr_FR.UTF-8", "", false);
    row("English before German", "", "de_DE.UTF-8", "en:de", false);
    row("none at all", "C", "de_DE.UTF-8", "de", false);
    row("nothing set", "", "", "", false);
}

void TestStartLanguages::languageIsTheEnvironments()
{
    QFETCH(QByteArray, all);
    QFETCH(QByteArray, lang);
    QFETCH(QByteArray, language);
    QFETCH(bool, german);
    speak(all, lang, language);
    const QLatin1String help(german ? "Ohne Fenster laufen." : "Run without a window.");
    const QString error = german ? QStringLiteral("--power nimmt on oder off, nicht \u201eof\u201c.")
                                 : QStringLiteral("--power takes on or off, not \"of\".");
    ProgramUnderTest helping(programPath);
    QCOMPARE(helping.run({"--help"}), 0);
    QVERIFY2(helping.output().contains(help), qPrintable(helping.output()));
    ProgramUnderTest failing(programPath);
    QCOMPARE(failing.run({"--power", "of"}), 2);
    QCOMPARE(failing.errors(), QStringLiteral("sorvane: ") + error + QLatin1Char('\n'));
}

QByteArray TestStartLanguages::play(const char* locale, const char* name, const QStringList& more) const
{
    speak("", locale);
    const bool german = QByteArray(locale).startsWith("de");
    const QString file = folder.filePath(QLatin1String(name));
    ProgramUnderTest program(programPath);
    program.start(QStringList{"--headless", "--no-virtual", "--export", file} + more);
    const bool came = program.waitForError(QLatin1String(german ? "Kein MIDI-Dienst" : "No MIDI service"));
    return program.stop() == 0 && came ? contentOf(file) : QByteArray();
}

void TestStartLanguages::sessionsAreAlikeInAllLanguages()
{
    const QByteArray english = play("en_GB.UTF-8", "english.svdb", {"--power", "on"});
    QVERIFY(english.contains("\"NameScenic1\": \"User\""));
    QCOMPARE(play("de_DE.UTF-8", "german.svdb", {"--power", "on"}), english);
}

void TestStartLanguages::sessionOfOneLanguageGoesOnInAnother()
{
    const QByteArray german = play("de_DE.UTF-8", "german.svdb", {"--power", "on"});
    QVERIFY(!german.isEmpty());
    QCOMPARE(play("en_GB.UTF-8", "english.svdb", {"--import", folder.filePath("german.svdb")}), german);
    QCOMPARE(play("de_DE.UTF-8", "again.svdb", {"--import", folder.filePath("english.svdb")}), german);
}

QTEST_GUILESS_MAIN(TestStartLanguages)
#include "test_start_languages.moc"
