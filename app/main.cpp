#include "app/Application.h"
#include "app/EndSignals.h"
#include "app/MainWnd.h"
#include "app/Translations.h"
#include "app/start.h"
#include "app/tell.h"
#include "app/vendor.h"
#include "app/version.h"
#include "app/window_icon.h"
#include "logging/QtMessages.h"
#include "logging/log_file.h"

#include <QLoggingCategory>
#include <QPixmapCache>

#include <cstdio>

namespace {

constexpr int badUsage = 2;
constexpr int notWritten = 1;
// Each file dialog leaves some 20 KiB of painted icons in Qt's cache, which no later dialog finds again: with
// Qt's own limit they would pile up to 10 MiB.
constexpr int paintedIconsKiB = 512;

int fail(const QString& line)
{
    tell(line);
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

/// Reads the arguments that something is wrong with once more, to say so in the user's language.
int runFailing(int argc, char** argv)
{
    const QStringList arguments = toList(argc, argv);
    const QCoreApplication application(argc, argv);
    const Translations translations;
    CommandLine wanted;
    return fail(wanted.parse(arguments));
}

/// What needs no window and no display.
int runPrinting(const CommandLine& wanted, int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    nameProgram();
    const Translations translations;
    if (wanted.help)
        CommandLine::showHelp();
    if (wanted.version) {
        std::printf("Sorvane %s\n", sorvaneVersion);
        return 0;
    }
    midiService().choose(wanted.midiApi);
    return start::listPorts();
}

/// Prints one line for each of the text's, if it has any. True if it has none.
bool report(const QString& lines)
{
    for (const QString& line : lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        tell(line);
    return lines.isEmpty();
}

int end(const CommandLine& wanted, MainWnd& window)
{
    start::stopMidiInput(window);
    start::stopNotes(window);
    const bool written = report(start::writeFiles(wanted, window));
    start::closeMidiOutput(window);
    return written ? 0 : notWritten;
}

int runStage(CommandLine& wanted, int argc, char** argv)
{
    Application::followScreens();
    Application application(argc, argv);
    app = &application;
    const EndSignals signalWatch(nullptr);
    // Asked whether the desktop's session may end, Qt would close the window even if the answer of others is
    // no.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    nameProgram();
    nameDesktopEntry();
    const Translations translations;
    std::optional<QtMessages> messages;
    if (wanted.logLevel) {
        initializeLogFile(*wanted.logLevel);
        messages.emplace();
    }
    midiService().choose(wanted.midiApi);
    QString error = start::openFiles(wanted);
    if (error.isEmpty())
        error = start::selectPorts(wanted);
    if (!error.isEmpty())
        return fail(error);
    start::reportMissingService();

    mainWnd = new MainWnd; // lives as long as the process
    mainWnd->ui.versionLabel->setText(versionLine());
    error = start::readFiles(wanted, *mainWnd);
    if (!error.isEmpty())
        return fail(error);
    start::setSelectors(wanted, *mainWnd);
    if (!wanted.headless) {
        mainWnd->show();
        giveIcon(*mainWnd->windowHandle());
    }
    // Not before: the style sheet and the stage share the background through the cache, which is larger.
    QPixmapCache::setCacheLimit(paintedIconsKiB);
    // The desktop that ends its session may not wait for the end of the event loop.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, mainWnd,
                     [&wanted] { report(start::writeSession(wanted, *mainWnd)); });
    QApplication::exec();
    return end(wanted, *mainWnd);
}

} // namespace

int main(int argc, char** argv)
{
    CommandLine wanted;
    if (!wanted.parse(toList(argc, argv)).isEmpty())
        return runFailing(argc, argv);
    // A line for each note costs more than the note. QT_LOGGING_RULES has the last word.
    if (!wanted.debug && wanted.logLevel.value_or(LoggerModel::fatal) > LoggerModel::debug)
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
