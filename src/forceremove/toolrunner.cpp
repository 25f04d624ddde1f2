#include "toolrunner.h"

#include "platform/platform.h"
#include "platform/processes.h"
#include "platform/services.h"
#include "platform/strings.h"
#include "platform/tracerules.h"

#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <algorithm>

namespace {

// Windows' own exit codes, so that a log reads the same on both.
constexpr int NotFoundExitCode = 128; // taskkill: no process of that image
constexpr int NoSuchServiceExitCode = 1060; // sc: ERROR_SERVICE_DOES_NOT_EXIST

ToolResult finishedWith(int exitCode, QByteArray output = QByteArray())
{
    return ToolResult { true, exitCode, std::move(output) };
}

// The argument after the switch, matched as the tools match switches: in any case.
QString argumentAfter(const QStringList& arguments, const QString& option)
{
    for (int i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments.at(i).compare(option, Qt::CaseInsensitive) == 0)
            return arguments.at(i + 1);
    }
    return QString();
}

} // namespace

std::shared_ptr<ToolRunner> ToolRunner::forCurrentPlatform()
{
    const std::wstring sandbox = platform::current().sandboxRoot();
    if (!sandbox.empty())
        return std::make_shared<SandboxToolRunner>(QString::fromStdWString(sandbox));
    return std::make_shared<ProcessToolRunner>();
}

ToolResult ProcessToolRunner::run(const QString& program, const QStringList& arguments, int timeoutMs)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, arguments);
    if (!process.waitForStarted())
        return ToolResult();
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        return ToolResult();
    }
    return finishedWith(
        process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput());
}

SandboxToolRunner::SandboxToolRunner(QString sandboxRoot)
    : m_root(std::move(sandboxRoot))
{
}

ToolResult SandboxToolRunner::run(const QString& program, const QStringList& arguments, int)
{
    const QString tool = program.toLower();
    if (tool == QLatin1String("taskkill"))
        return taskkill(arguments);
    if (tool == QLatin1String("schtasks"))
        return schtasks(arguments);
    if (tool == QLatin1String("sc"))
        return sc(arguments);
    return ToolResult();
}

ToolResult SandboxToolRunner::taskkill(const QStringList& arguments)
{
    const std::wstring image = argumentAfter(arguments, QStringLiteral("/IM")).toStdWString();
    if (image.empty())
        return finishedWith(1);
    platform::Processes& processes = platform::current().processes();
    bool ended = false;
    for (const platform::ProcessInfo& process : processes.snapshot()) {
        if (platform::equalsNoCase(process.imageName, image))
            ended = processes.terminate(process.pid, 1) == platform::Termination::Terminated || ended;
    }
    return finishedWith(ended ? 0 : NotFoundExitCode);
}

ToolResult SandboxToolRunner::schtasks(const QStringList& arguments)
{
    QFile file(m_root + QLatin1Char('/') + tasksFileName());
    const QByteArray listing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.close();
    if (arguments.contains(QStringLiteral("/query"), Qt::CaseInsensitive))
        return finishedWith(0, listing);

    const QString name = argumentAfter(arguments, QStringLiteral("/tn"));
    if (!arguments.contains(QStringLiteral("/delete"), Qt::CaseInsensitive) || name.isEmpty())
        return finishedWith(1);
    QByteArray kept;
    bool found = false;
    for (const QByteArray& line : listing.split('\n')) {
        // A task listed once per trigger is still one task: all its lines go.
        const bool isTask = !line.trimmed().isEmpty()
            && QString::fromStdWString(platform::traces::taskName(QString::fromLocal8Bit(line).toStdWString())) == name;
        if (isTask)
            found = true;
        else if (!line.isEmpty())
            kept += line + '\n';
    }
    if (!found)
        return finishedWith(1);
    QSaveFile out(file.fileName());
    // Unbuffered, so that a full disk fails the write rather than emptying the list at commit().
    if (!out.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || out.write(kept) != kept.size() || !out.commit())
        return finishedWith(1);
    return finishedWith(0);
}

ToolResult SandboxToolRunner::sc(const QStringList& arguments)
{
    if (arguments.size() < 2)
        return finishedWith(1);
    const QString command = arguments.at(0).toLower();
    const std::wstring name = arguments.at(1).toStdWString();
    platform::Services& services = platform::current().services();
    if (command == QLatin1String("delete"))
        return finishedWith(services.remove(name) ? 0 : NoSuchServiceExitCode);
    if (command == QLatin1String("stop")) {
        // Sandbox services never run; stopping one that exists is a no-op that succeeds.
        const auto listed = services.list();
        const bool exists = listed && std::any_of(listed->begin(), listed->end(), [&](const platform::ServiceInfo& s) {
            return platform::equalsNoCase(s.name, name);
        });
        return finishedWith(exists ? 0 : NoSuchServiceExitCode);
    }
    return finishedWith(1);
}
