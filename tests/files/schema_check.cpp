#include "schema_check.h"

#include <QProcess>

namespace schema_check {

Answer ask(const QStringList& files)
{
    constexpr int timeoutMs = 60000, allValid = 0, someInvalid = 1;
    QProcess python;
    python.start(QStringLiteral(SORVANE_PYTHON),
                 QStringList{QStringLiteral(SORVANE_CHECK_SCHEMA),
                             QStringLiteral(SORVANE_DOCS "/database.schema.json")} +
                     files);
    if (!python.waitForFinished(timeoutMs) || python.exitStatus() != QProcess::NormalExit)
        return {{}, python.errorString()};
    if (python.exitCode() != allValid && python.exitCode() != someInvalid)
        return {{}, QString::fromUtf8(python.readAllStandardError())};
    const QString lines = QString::fromUtf8(python.readAllStandardOutput());
    const QStringList verdicts = lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return {verdicts, verdicts.size() == files.size() ? QString() : QStringLiteral("not a verdict a file")};
}

} // namespace schema_check
