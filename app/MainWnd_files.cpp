// The user's doors to the database file.

#include "app/MainWnd.h"

#include "library/SettingsStore.h"
#include "library/shown_text.h"
#include "screen/AlertWidget.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

QString MainWnd::importDatabase(const QString& file)
{
    endGestures();
    QString error = SettingsStore::importDatabase(file);
    // The file's own words on ports were for a start. Here the rows say what is open.
    storePortSelection();
    return error;
}

QString MainWnd::exportDatabase(const QString& file)
{
    endGestures();
    return SettingsStore::exportDatabase(file);
}

void MainWnd::openDatabase()
{
    const QString file = askFile(false);
    if (file.isEmpty())
        return;
    const QString error = importDatabase(file);
    if (!error.isEmpty())
        return alertFile(tr("The file cannot be opened:<br/>%1<br/>%2"), file, error);
    SettingsStore::setDbFileName(file);
}

void MainWnd::saveDatabase()
{
    const QString file = askFile(true);
    if (file.isEmpty())
        return;
    const QString before = SettingsStore::getDbFileName();
    SettingsStore::setDbFileName(file); // it stands in the file
    const QString error = exportDatabase(file);
    if (error.isEmpty())
        return;
    SettingsStore::setDbFileName(before);
    alertFile(tr("The file cannot be saved:<br/>%1<br/>%2"), file, error);
}

// Notes go on being played meanwhile.
QString MainWnd::askFile(bool toSave)
{
    endGestures();
    SettingsStore::registerDefaultValues(); // the place to suggest, before a file was named
    const QFileInfo last(SettingsStore::getDbFileName());
    const QString folder = last.dir().exists() ? last.path() : QDir::homePath();
    QFileDialog dialog(this, toSave ? tr("Save a database") : tr("Open a database"), folder,
                       tr("Sorvane databases (%1)").arg(QStringLiteral("*.svdb")) +
                           (toSave ? QString() : QStringLiteral(";;") + tr("All files (*)")));
    dialog.setObjectName(toSave ? QStringLiteral("saveDatabaseDialog")
                                : QStringLiteral("openDatabaseDialog"));
    dialog.setAcceptMode(toSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(toSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (toSave) {
        dialog.setDefaultSuffix(QStringLiteral("svdb"));
        dialog.selectFile(last.fileName());
    }
    dialogOpen = true;
    const bool accepted = dialog.exec() == QDialog::Accepted;
    dialogOpen = false;
    return accepted ? dialog.selectedFiles().value(0) : QString();
}

void MainWnd::alertFile(const QString& text, const QString& file, const QString& reason)
{
    constexpr int longest = 40; // an alert does not break a word
    const QString name = shownText(QFileInfo(file).fileName(), longest);
    AlertWidget alert(QString(), text.arg(name.toHtmlEscaped(), reason.toHtmlEscaped()), tr("  OK  "),
                      QString(), alert_error, this);
    static_cast<void>(alert.exec());
}
