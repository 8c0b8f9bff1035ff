// The file dialogs under a real hand: the desktop's dialog is typed into, clicked away and asked again, while
// a JACK client plays. Guards that a stage set is saved and opened as a performer expects, that a file that
// will not do says so and changes nothing, and that the music goes on meanwhile.

#include "SessionRun.h"
#include "StagePlaces.h"
#include "on_x_server.h"
#include "tunes.h"

#include <QDir>
#include <QtTest>

#include <algorithm>

namespace {

using Messages = SessionRun::Messages;

const QString stageTitle = QStringLiteral("^Sorvane$"), openTitle = QStringLiteral("^Open a database$"),
              saveTitle = QStringLiteral("^Save a database$"), anyFileTitle = QStringLiteral("a database$");
constexpr int homeKey = 49;
constexpr QPoint newCategory(317, 179);

/// The white keys from middle C to the C above, in D# Aeolian, with which a test begins, and in G Aeolian.
constexpr int firstPitches[] = {63, 65, 66, 68, 70, 71, 73, 75},
              laterPitches[] = {67, 69, 70, 72, 74, 75, 77, 79};

template <std::size_t count>
Messages taps(const int (&pitches)[count])
{
    Messages messages;
    for (const int pitch : pitches)
        messages += tap(pitch);
    return messages;
}

bool key(const char* name)
{
    return XServer::key(QLatin1String(name));
}

/// The window that has the keyboard: a question takes it a moment after it was called for.
QByteArray keyboardWindow()
{
    ChildProcess hand;
    hand.start(QStringLiteral("xdotool"), {QStringLiteral("getwindowfocus"), QStringLiteral("-f")});
    return hand.waitForFinished() ? hand.readAllStandardOutput() : QByteArray();
}

} // namespace

class EndToEndFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void savedSetOpensAgain();
    void overwritingAsks();
    void escapeLeaves();
    void fileThatWillNotDoIsReported_data();
    void fileThatWillNotDoIsReported();
    void musicGoesOnMeanwhile();
    void heldKeysEndAsTheyBegan();
    void gestureEndsWhenTheDialogComes();
    void questionsComeOneAtATime_data();
    void questionsComeOneAtATime();

private:
    [[nodiscard]] QString path(const QString& name) const { return run.folder() + QLatin1Char('/') + name; }
    [[nodiscard]] QByteArray contentOf(const QString& name) const;
    [[nodiscard]] bool plays(const Messages& expected);
    [[nodiscard]] bool changeTheTonic();
    /// Opens the dialog by its shortcut and gives it the keyboard.
    [[nodiscard]] bool ask(const char* shortcut);
    /// Waits until the dialog is gone and gives the keyboard back, as a window manager does.
    [[nodiscard]] bool goBack();
    [[nodiscard]] bool answer(const QString& text);
    [[nodiscard]] bool save(const QString& file) { return ask("ctrl+s") && answer(file) && goBack(); }
    [[nodiscard]] bool open(const QString& file) { return ask("ctrl+o") && answer(file) && goBack(); }
    [[nodiscard]] static bool photograph(const char* name);

    SessionRun run{QStringLiteral(SORVANE_PROGRAM)};
    QTemporaryDir home;
};

void EndToEndFiles::initTestCase()
{
    for (const char* place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(place, home.path().toLocal8Bit());
    if (!run.startService())
        QSKIP(qPrintable(run.reason()));
    QVERIFY(QDir().mkpath(QStringLiteral(FILE_PICTURES)));
}

void EndToEndFiles::init()
{
    QVERIFY(run.forget());
    QVERIFY(QDir(run.folder()).mkpath(QStringLiteral("my stage sets")));
    QVERIFY(run.start({"--power", "on", "--tonic", "D#", "--scale", "xoxxoxoxxoxo"}));
    QVERIFY(plays(taps(firstPitches)));
}

void EndToEndFiles::cleanup()
{
    QVERIFY(XServer::release());
    run.kill();
}

QByteArray EndToEndFiles::contentOf(const QString& name) const
{
    QFile in(path(name));
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

bool EndToEndFiles::plays(const Messages& expected)
{
    return QTest::qWaitFor([&] { return run.answerTo(tapWhiteKeys(60, 72)) == expected; });
}

bool EndToEndFiles::changeTheTonic()
{
    return XServer::click(stage::tonicPlace(7)) && plays(taps(laterPitches));
}

bool EndToEndFiles::ask(const char* shortcut)
{
    return key(shortcut) && SessionRun::giveKeyboardTo(anyFileTitle);
}

bool EndToEndFiles::goBack()
{
    const auto isGone = [] { return !SessionRun::hasWindow(anyFileTitle); };
    return QTest::qWaitFor(isGone, 10000) && SessionRun::giveKeyboardTo(stageTitle) && run.heard(0).isEmpty();
}

bool EndToEndFiles::answer(const QString& text)
{
    return key("ctrl+a") && SessionRun::type(text) && key("Return");
}

bool EndToEndFiles::photograph(const char* name)
{
    return SessionRun::picture().save(QStringLiteral(FILE_PICTURES "/%1.png").arg(QLatin1String(name)));
}

void EndToEndFiles::savedSetOpensAgain()
{
    const QString name = QStringLiteral("my stage sets/Friday, 2nd set");
    QVERIFY(ask("ctrl+s"));
    QVERIFY(SessionRun::hasWindow(saveTitle));
    QVERIFY(photograph("save-dialog"));
    QVERIFY(answer(path(name)) && goBack());
    const QByteArray saved = contentOf(name + ".svdb");
    QVERIFY(saved.contains("D#"));
    QVERIFY(changeTheTonic());
    QVERIFY(ask("ctrl+o"));
    QVERIFY(SessionRun::hasWindow(openTitle));
    QVERIFY(photograph("open-dialog"));
    QVERIFY(answer(path(name + ".svdb")) && goBack());
    QVERIFY(plays(taps(firstPitches)));
    QCOMPARE(contentOf(name + ".svdb"), saved);
    QVERIFY(key("space")); // the stage has the keyboard
    QVERIFY(plays(tapWhiteKeys(60, 72)));
    // An ending that is typed is kept, and the first file is still opened.
    QVERIFY(save(path(QStringLiteral("my stage sets/late.json"))));
    QVERIFY(!contentOf(QStringLiteral("my stage sets/late.json")).isEmpty());
    QVERIFY(open(path(name + ".svdb")));
    QVERIFY(plays(taps(firstPitches)));
}

void EndToEndFiles::overwritingAsks()
{
    const QString name = QStringLiteral("set.svdb");
    QVERIFY(save(path(name)));
    const QByteArray saved = contentOf(name);
    QVERIFY(changeTheTonic());
    QVERIFY(ask("ctrl+s") && photograph("save-dialog-again"));
    QVERIFY(answer(path(name)));
    QVERIFY(photograph("overwrite-question"));
    QVERIFY(key("Escape")); // No
    QCOMPARE(contentOf(name), saved);
    QVERIFY(SessionRun::giveKeyboardTo(saveTitle) && key("Escape") && goBack());
    QCOMPARE(contentOf(name), saved);
    QVERIFY(ask("ctrl+s"));
    const QByteArray dialog = keyboardWindow();
    QVERIFY(answer(path(name)) && QTest::qWaitFor([&] { return keyboardWindow() != dialog; }));
    QVERIFY(key("alt+y") && goBack());
    QVERIFY(contentOf(name) != saved && contentOf(name).endsWith("}\n"));
    QVERIFY(open(path(name)));
    QVERIFY(plays(taps(laterPitches)));
}

void EndToEndFiles::escapeLeaves()
{
    for (const char* shortcut : {"ctrl+s", "ctrl+o"}) {
        const QImage before = SessionRun::picture();
        QVERIFY(ask(shortcut));
        QVERIFY(SessionRun::type(path(QStringLiteral("nothing.svdb"))));
        QVERIFY(key("Escape")); // the list of completions, if there is one
        if (SessionRun::hasWindow(anyFileTitle))
            QVERIFY(key("Escape"));
        QVERIFY(goBack());
        QVERIFY(QTest::qWaitFor([&] { return SessionRun::picture() == before; }));
        QVERIFY(plays(taps(firstPitches)));
    }
    QCOMPARE(QDir(run.folder()).entryList(QDir::Files), QStringList());
}

void EndToEndFiles::fileThatWillNotDoIsReported_data()
{
    QTest::addColumn<bool>("toSave");
    QTest::addColumn<QString>("file"); // in the folder, if it is no absolute path
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("broken") << false << QStringLiteral("broken & <b>bold.svdb")
                            << QByteArray("{\"TonicModifier\": \"G\",");
    QTest::newRow("no database") << false << QStringLiteral("list.svdb") << QByteArray("[\"TonicModifier\"]");
    QTest::newRow("long name") << false << QStringLiteral("ANameWithoutAGap").repeated(10)
                               << QByteArray("[\"TonicModifier\"]");
    QTest::newRow("unreadable") << false << QStringLiteral("/proc/self/mem") << QByteArray();
    QTest::newRow("folder that cannot be written")
        << true << QStringLiteral("/proc/set.svdb") << QByteArray();
}

// Nobody but the system may write there, not even the superuser.
void EndToEndFiles::fileThatWillNotDoIsReported()
{
    QFETCH(const bool, toSave);
    QFETCH(QString, file);
    QFETCH(const QByteArray, content);
    if (!content.isEmpty()) {
        QFile out(path(file));
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(content) == content.size());
        file = path(file);
    }
    QVERIFY(changeTheTonic());
    for (const char* closing : {"Escape", "Return"}) {
        const QImage before = SessionRun::picture();
        QVERIFY(toSave ? save(file) : open(file));
        QVERIFY(SessionRun::picture() != before);
        QVERIFY(
            photograph(QByteArray("alert-").append(QTest::currentDataTag()).replace(' ', '-').constData()));
        QVERIFY(plays(taps(laterPitches))); // it does not stop the music
        QVERIFY(key(closing));
        QVERIFY(QTest::qWaitFor([&] { return SessionRun::picture() == before; }));
        QVERIFY(plays(taps(laterPitches)));
    }
    QVERIFY(key("space")); // the stage has the keyboard again
    QVERIFY(plays(tapWhiteKeys(60, 72)));
}

void EndToEndFiles::musicGoesOnMeanwhile()
{
    QVERIFY(ask("ctrl+s"));
    QVERIFY(plays(taps(firstPitches)));
    const Messages others{{0xB0, 64, 127}, {0xE0, 0, 80}, {0x95, 60, 9}};
    for (const auto& message : others)
        run.player().send(message);
    QCOMPARE(run.player().collect(others.size()), others);
    QVERIFY(XServer::click(stage::keyPlace(stage::Keyboard::in, 108))); // beside the dialog
    QVERIFY(XServer::click(stage::tonicPlace(0)));
    QVERIFY(XServer::click(stage::powerSquare(homeKey)));
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(SessionRun::giveKeyboardTo(saveTitle) && answer(path(QStringLiteral("a b c"))) && goBack());
    QVERIFY(plays(taps(firstPitches)));
    QVERIFY(!contentOf(QStringLiteral("a b c.svdb")).isEmpty());
}

// What the keys began ends while its map is still there.
void EndToEndFiles::heldKeysEndAsTheyBegan()
{
    QVERIFY(changeTheTonic());
    QVERIFY(save(path(QStringLiteral("later.svdb"))));
    run.kill();
    QVERIFY(run.start({"--power", "on", "--tonic", "D#", "--scale", "xoxxoxoxxoxo"}));
    const Messages chord{{0x90, 60, 64}, {0x90, 64, 64}, {0x90, 67, 64}};
    QCOMPARE(run.answerTo(chord), (Messages{{0x90, 63, 64}, {0x90, 66, 64}, {0x90, 70, 64}}));
    QVERIFY(ask("ctrl+o"));
    QCOMPARE(run.answerTo({{0x80, 64, 0}, {0x90, 65, 64}}), (Messages{{0x80, 66, 0}, {0x90, 68, 64}}));
    QVERIFY(answer(path(QStringLiteral("later.svdb"))));
    Messages ends = run.heard(3);
    std::sort(ends.begin(), ends.end());
    QCOMPARE(ends, (Messages{{0x80, 63, 0}, {0x80, 68, 0}, {0x80, 70, 0}}));
    QVERIFY(goBack());
    QCOMPARE(run.answerTo({{0x80, 60, 0}, {0x80, 65, 0}, {0x80, 67, 0}}), Messages());
    QVERIFY(plays(taps(laterPitches)));
}

void EndToEndFiles::gestureEndsWhenTheDialogComes()
{
    const auto hold = [](QPoint from, QPoint to) {
        return XServer::move(from) && XServer::press() && XServer::move(from + QPoint(6, 0)) &&
               XServer::move(to);
    };
    QVERIFY(hold(stage::powerSleeve(homeKey), stage::flagPlace(75)));
    QVERIFY(ask("ctrl+o"));
    QVERIFY(XServer::release() && key("Escape") && goBack());
    QVERIFY(plays(taps(firstPitches)));
    const Messages power = tap(homeKey);
    QCOMPARE(run.answerTo(power), Messages()); // it stands where it stood
    QVERIFY(plays(tapWhiteKeys(60, 72)));
    QCOMPARE(run.answerTo(power), Messages());
    QVERIFY(XServer::move(stage::keyPlace(stage::Keyboard::in, 60)) && XServer::press());
    QCOMPARE(run.heard(1), (Messages{{0x90, 63, 75}}));
    QVERIFY(key("ctrl+s"));
    QCOMPARE(run.heard(1), (Messages{{0x80, 63, 0}})); // at once
    QVERIFY(SessionRun::giveKeyboardTo(saveTitle) && XServer::release() && key("Escape") && goBack());
    QVERIFY(plays(taps(firstPitches)));
}

void EndToEndFiles::questionsComeOneAtATime_data()
{
    QTest::addColumn<QString>("shortcut"); // that asks something
    QTest::addColumn<QPoint>("place");     // or the place where a click does
    QTest::addColumn<int>("button");

    QTest::newRow("question") << QStringLiteral("ctrl+r") << QPoint() << 1;
    QTest::newRow("menu of a flag") << QString() << stage::flagPlace(58) << 3;
    QTest::newRow("name of a category") << QStringLiteral("ctrl+l") << newCategory << 1;
    QTest::newRow("file") << QStringLiteral("ctrl+s") << QPoint() << 1;
}

void EndToEndFiles::questionsComeOneAtATime()
{
    QFETCH(const QString, shortcut);
    QFETCH(const QPoint, place);
    QFETCH(const int, button);
    QVERIFY(shortcut.isEmpty() || XServer::key(shortcut));
    QVERIFY(place.isNull() || XServer::click(place, button));
    const bool isFile = shortcut == "ctrl+s";
    QVERIFY(!isFile || SessionRun::giveKeyboardTo(saveTitle));
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(key("ctrl+o"));
    QVERIFY(isFile || key("ctrl+s"));
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(!SessionRun::hasWindow(openTitle));
    QCOMPARE(SessionRun::hasWindow(saveTitle), isFile);
    QVERIFY(key("Escape") && goBack());
    QVERIFY(plays(taps(firstPitches)));
    QVERIFY(ask("ctrl+o") && key("Escape") && goBack()); // now it comes
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndFiles>(argc, argv);
}

#include "e2e_files.moc"
