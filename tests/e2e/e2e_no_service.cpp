// The program where there is no MIDI service: it says so in one line and plays by mouse and computer
// keyboard. And the command line as a shell sees it. Guards against a library that throws, prints or waits
// where it should not.

#include "ProgramUnderTest.h"
#include "on_x_server.h"

#include <QPixmap>
#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString programPath = QStringLiteral(SORVANE_PROGRAM);
const QPoint tonicC(38, 226), tonicE(74, 226), powerSquare(324, 354);

QColor pixel(QPoint pos)
{
    const QPixmap grabbed = QGuiApplication::primaryScreen()->grabWindow(0, pos.x(), pos.y(), 1, 1);
    return grabbed.toImage().pixelColor(0, 0);
}

bool turnsInto(QPoint pos, const std::function<bool(const QColor&)>& wanted)
{
    return QTest::qWaitFor([&] { return wanted(pixel(pos)); }, 10000);
}

bool isPale(const QColor& color)
{
    return color.lightness() > 180;
}

bool isWarm(const QColor& color)
{
    return color.red() > color.blue() + 60;
}

} // namespace

class EndToEndNoService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", empty.path().toLocal8Bit()); }
    void init() { program = std::make_unique<ProgramUnderTest>(programPath); }
    void cleanup() { program.reset(); }

    void windowComesUpAndPlaysBySpaceAndSelectors();
    void headlessSaysWhatIsMissingInOneLine();
    void listPortsSaysWhatIsMissing();
    void badValueEndsWithStatusTwoAndOneLine_data();
    void badValueEndsWithStatusTwoAndOneLine();
    void helpAndVersionNeedNoDisplay();

private:
    QTemporaryDir empty; // no server has its socket here
    std::unique_ptr<ProgramUnderTest> program;
};

void EndToEndNoService::windowComesUpAndPlaysBySpaceAndSelectors()
{
    QVERIFY(program->start({"--midi-api", "jack"}));
    QVERIFY(turnsInto({220, 230}, isPale)); // the display
    QCOMPARE(program->ownErrorLines().size(), 1);
    QVERIFY(!isPale(pixel(tonicC)) && !isWarm(pixel(tonicC))); // asleep
    QVERIFY(XServer::key(QStringLiteral("space")));
    QVERIFY(turnsInto(tonicC, isWarm));
    QVERIFY(turnsInto(powerSquare, isWarm));
    QVERIFY(XServer::click(tonicE));
    QVERIFY(turnsInto(tonicE, isWarm));
    QVERIFY(turnsInto(tonicC, isPale));
    QVERIFY(XServer::key(QStringLiteral("Escape")));
    QVERIFY(XServer::key(QStringLiteral("space")));
    QVERIFY(turnsInto(tonicE, [](const QColor& color) { return !isWarm(color) && !isPale(color); }));
    QCOMPARE(program->stop(), 0);
}

void EndToEndNoService::headlessSaysWhatIsMissingInOneLine()
{
    QVERIFY(program->start({"--headless", "--midi-api", "jack"}));
    QVERIFY(program->waitForError(QStringLiteral("No MIDI service")));
    QCOMPARE(program->stop(), 0);
    QCOMPARE(program->ownErrorLines().size(), 1);
}

void EndToEndNoService::listPortsSaysWhatIsMissing()
{
    QCOMPARE(program->run({"--list-ports", "--midi-api", "jack"}), 1);
    QVERIFY(program->errors().contains(QStringLiteral("No MIDI service")));
}

void EndToEndNoService::badValueEndsWithStatusTwoAndOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* arguments :
         {"--power maybe", "--tonic H", "--scale xo", "--midi-api oss", "--loud", "word", "--in nobody",
          "--out nobody", "--power", "--tonic", "--scale", "--in", "--out"})
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(QLatin1Char(' '));
}

void EndToEndNoService::badValueEndsWithStatusTwoAndOneLine()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(program->run(QStringList("--headless") + arguments), 2);
    const QStringList lines = program->errors().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().startsWith(QStringLiteral("sorvane: ")));
    QVERIFY(program->output().isEmpty());
}

void EndToEndNoService::helpAndVersionNeedNoDisplay()
{
    const QByteArray display = qgetenv("DISPLAY");
    qunsetenv("DISPLAY");
    QCOMPARE(program->run({"--version"}), 0);
    QVERIFY(program->output().startsWith(QStringLiteral("Sorvane ")));
    ProgramUnderTest help(programPath);
    QCOMPARE(help.run({"--help"}), 0);
    QVERIFY(help.output().contains(QStringLiteral("--midi-api")));
    qputenv("DISPLAY", display);
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndNoService>(argc, argv);
}

#include "e2e_no_service.moc"
