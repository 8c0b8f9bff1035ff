#include "app/Application.h"
#include "app/EndSignals.h"
#include "app/MainWnd.h"
#include "app/start.h"
#include "app/vendor.h"
#include "app/version.h"
#include "logging/categories.h"

#include <cstdio>

namespace {

constexpr int badUsage = 2;

int fail(const QString& line)
{
    std::fprintf(stderr, "sorvane: %s\n", qUtf8Printable(line));
    return badUsage;
}

QStringList toList(int argc, char** argv)
{
    QStringList list;
    for (int i = 0; i < argc; ++i)
        list.append(QString::fromLocal8Bit(argv[i]));
    return list;
}

void nameProgram()
{
    QCoreApplication::setOrganizationName(QString::fromLatin1(vendor::organisation));
    QCoreApplication::setApplicationName(QStringLiteral("Sorvane"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(sorvaneVersion));
    QCoreApplication::setOrganizationDomain(QString::fromLatin1(vendor::organisationDomain));
}

QString versionLine()
{
    return QCoreApplication::translate("main", "Sorvane %1, <a style=\"color: #575450\" href=\"%2\">%2</a>")
        .arg(QString::fromLatin1(sorvaneVersion), QString::fromLatin1(vendor::site));
}

/// What needs no window and no display.
int runPrinting(const CommandLine& wanted, int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    nameProgram();
    if (wanted.help)
        CommandLine::showHelp();
    if (wanted.version) {
        std::printf("Sorvane %s\n", sorvaneVersion);
        return 0;
    }
    midiService().choose(wanted.midiApi);
    return start::listPorts();
}

int runStage(CommandLine& wanted, int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    Application application(argc, argv);
    app = &application;
    const EndSignals signalWatch(nullptr);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    nameProgram();
    midiService().choose(wanted.midiApi);
    const QString error = start::selectPorts(wanted);
    if (!error.isEmpty())
        return fail(error);
    start::reportMissingService();

    mainWnd = new MainWnd; // lives as long as the process
    if (!wanted.headless)
        mainWnd->show();
    mainWnd->ui.versionLabel->setText(versionLine());
    start::setSelectors(wanted, *mainWnd);
    QApplication::exec();
    mainWnd->endGestures(); // a key that the pointer holds must not sound on
    start::stopMidiInput(*mainWnd);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    CommandLine wanted;
    const QString error = wanted.parse(toList(argc, argv));
    if (!error.isEmpty())
        return fail(error);
    // A line for each note costs more than the note. QT_LOGGING_RULES has the last word.
    if (!wanted.debug)
        QLoggingCategory::setFilterRules(QStringLiteral("sorvane.*.debug=false"));
    if (wanted.help || wanted.version || wanted.listPorts)
        return runPrinting(wanted, argc, argv);
    if (wanted.headless)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nothing is drawn with OpenGL; its software driver alone would take 45 MiB.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    return runStage(wanted, argc, argv);
}
