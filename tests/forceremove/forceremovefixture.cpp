#include "forceremovefixture.h"

#include <platform/registry.h>

#include <QDir>
#include <QThread>

ToolResult RecordedTools::run(const QString& program, const QStringList& arguments, int)
{
    if (blockMs > 0)
        QThread::msleep(blockMs);
    QMutexLocker locker(&m_lock);
    m_calls.append(QStringList { program } + arguments);
    return m_results.value(program, ToolResult { true, 0, QByteArray() });
}

void RecordedTools::answer(const QString& program, const ToolResult& result)
{
    QMutexLocker locker(&m_lock);
    m_results.insert(program, result);
}

QList<QStringList> RecordedTools::calls() const
{
    QMutexLocker locker(&m_lock);
    return m_calls;
}

// The sandbox reads its process list from its own folder; a machine without one gets a file
// beside it, so that no case writes into a real system's folders.
QString SandboxMachine::processList() const
{
    const std::wstring root = platform().sandboxRoot();
    return root.empty() ? outside(QStringLiteral("processes.txt"))
                        : QString::fromStdWString(root) + QStringLiteral("/processes.txt");
}

void SandboxMachine::writeFile(const QString& windowsPath, qint64 bytes)
{
    testfiles::writeSized(local(windowsPath), bytes);
}

void SandboxMachine::makeFolder(const QString& windowsPath)
{
    QDir().mkpath(local(windowsPath));
}

void SandboxMachine::setProcesses(const QStringList& lines)
{
    testfiles::write(processList(), (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
}

QStringList SandboxMachine::processes() const
{
    return QString::fromUtf8(testfiles::read(processList())).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void SandboxMachine::addService(const QString& name, const QString& binary, const QString& displayName)
{
    const std::wstring key = L"SYSTEM\\CurrentControlSet\\Services\\" + name.toStdWString();
    registry().setDword(platform::Hive::LocalMachine, key, L"Type", 0x10);
    registry().setString(
        platform::Hive::LocalMachine, key, L"ImagePath", binary.toStdWString(), platform::TypeExpandString);
    if (!displayName.isEmpty())
        registry().setString(platform::Hive::LocalMachine, key, L"DisplayName", displayName.toStdWString());
}

InstalledApp fooApp(const QString& installLocation)
{
    InstalledApp app;
    app.name = QStringLiteral("Foo App");
    app.publisher = QStringLiteral("Acme Software Inc");
    app.installLocation = installLocation;
    app.status = QStringLiteral("nouninstaller");
    return app;
}
